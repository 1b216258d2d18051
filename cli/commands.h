// The command functions of kqx.
#pragma once

#include "cli/kqx.h"

namespace kqx {

int CmdInfo(CliContext& ctx);
int CmdLines(CliContext& ctx);
int CmdResave(CliContext& ctx);

}  // namespace kqx
