// kqx resave IN OUT: opens an application as the editor does and saves it whole as OUT.
// A 3.10 file comes out byte for byte; 3.08 and 3.09 files come out converted.
#include "cli/cli_document.h"
#include "cli/commands.h"
#include "document/file.h"
#include "document/state.h"
#include "ui/model/list_controls.h"

namespace kqx {

int CmdResave(CliContext& ctx) {
  if (!ExpectArgs(ctx, 2, "resave IN OUT")) return kExitRefused;
  if (!OpenDocument(ctx, ctx.args[0])) return kExitRefused;
  std::string title = TitleOf(ctx.args[1]);
  std::string name = ctx.args[1];
  int16_t count = static_cast<int16_t>(kq::EditList().ListCount());
  kq::ChangedFlag = true;
  kq::SaveFile(title, name, true, 0, count - 1, count);
  // A save that did not finish leaves the document changed.
  return kq::ChangedFlag ? kExitRefused : kExitOk;
}

}  // namespace kqx
