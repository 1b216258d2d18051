#include "cli/commands.h"

namespace kqx {

const Command kCommands[] = {
    {"info", "FILE", CmdInfo},
    {"lines", "FILE", CmdLines},
    {"resave", "IN OUT", CmdResave},
    {"compile", "IN [-o OUT]", CmdCompile},
    {"list", "IN [-o OUT] [--now \"YYYY-MM-DD HH:MM:SS\"]", CmdList},
    {"convert", "IN OUT [--format N]", CmdConvert},
    {"run",
     "FILE [--keys KEYS] [--hangup] [--call CALL.json] [--tables DIR] [--db FILE] [--sandbox DIR] "
     "[--seed N] [--max-steps N] [--decode]",
     CmdRun},
    {"script", "FILE|- [--settings FILE] [--data DIR] [--home DIR] [--screen W H]", CmdScript},
    {nullptr, nullptr, nullptr},
};

}  // namespace kqx
