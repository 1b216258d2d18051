// The command functions of kqx.
#pragma once

#include "cli/kqx.h"

namespace kqx {

int CmdInfo(CliContext& ctx);
int CmdLines(CliContext& ctx);
int CmdResave(CliContext& ctx);
int CmdCompile(CliContext& ctx);
int CmdList(CliContext& ctx);
int CmdScript(CliContext& ctx);
int CmdConvert(CliContext& ctx);
int CmdLint(CliContext& ctx);
int CmdGraph(CliContext& ctx);

}  // namespace kqx
