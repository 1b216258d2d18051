#include "cli/commands.h"

namespace kqx {

const Command kCommands[] = {
    {"info", "FILE", CmdInfo},
    {"lines", "FILE", CmdLines},
    {"resave", "IN OUT", CmdResave},
    {"compile", "IN [-o OUT]", CmdCompile},
    {"list", "IN [-o OUT] [--now \"YYYY-MM-DD HH:MM:SS\"]", CmdList},
    {"convert", "IN OUT [--format N]", CmdConvert},
    {"lint", "FILE [--format json|text] [--werror]", CmdLint},
    {"graph", "FILE [-o FILE.dot|FILE.svg]", CmdGraph},
    {"script", "FILE|- [--settings FILE] [--data DIR] [--home DIR] [--screen W H]", CmdScript},
    {nullptr, nullptr, nullptr},
};

}  // namespace kqx
