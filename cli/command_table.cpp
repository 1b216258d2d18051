#include "cli/commands.h"

namespace kqx {

const Command kCommands[] = {
    {"info", "FILE", CmdInfo},
    {"lines", "FILE", CmdLines},
    {"resave", "IN OUT", CmdResave},
    {"compile", "IN [-o OUT]", CmdCompile},
    {"list", "IN [-o OUT] [--now \"YYYY-MM-DD HH:MM:SS\"]", CmdList},
    {"convert", "IN OUT [--format N]", CmdConvert},
    {"prompts", "FILE [--texts CSV] [--voice LANG] [--format N]", CmdPrompts},
    {"script", "FILE|- [--settings FILE] [--data DIR] [--home DIR] [--screen W H]", CmdScript},
    {nullptr, nullptr, nullptr},
};

}  // namespace kqx
