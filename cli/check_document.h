// Opening an application for the commands that only read it (lint, graph): the file must
// exist (nothing is created), and a refusal is told on the error stream, not as an event.
#pragma once

#include <string>

#include "cli/kqx.h"

namespace kqx {

// False, with the reason written to session.err, when the file is missing or refused.
bool OpenForReading(Session& session, const std::string& path);

}  // namespace kqx
