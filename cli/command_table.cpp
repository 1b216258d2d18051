#include "cli/commands.h"

namespace kqx {

const Command kCommands[] = {
    {"info", "FILE", CmdInfo},
    {"lines", "FILE", CmdLines},
    {"resave", "IN OUT", CmdResave},
    {"script", "FILE|- [--settings FILE] [--data DIR] [--home DIR] [--screen W H]", CmdScript},
    {nullptr, nullptr, nullptr},
};

}  // namespace kqx
