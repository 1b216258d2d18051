#include "cli/commands.h"

namespace kqx {

const Command kCommands[] = {
    {"info", "FILE", CmdInfo},
    {"lines", "FILE", CmdLines},
    {"resave", "IN OUT", CmdResave},
    {nullptr, nullptr, nullptr},
};

}  // namespace kqx
