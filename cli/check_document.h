// Opening an application for the commands that only read it (lint, graph): the file must
// exist (nothing is created), and a refusal is told on the error stream, not as an event.
#pragma once

#include <string>

#include "cli/kqx.h"

namespace kqx {

// False, with the reason written to ctx.err, when the file is missing or refused.
bool OpenForReading(CliContext& ctx, const std::string& path);

}  // namespace kqx
