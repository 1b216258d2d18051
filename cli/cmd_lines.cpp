// kqx lines FILE: the DisplayLines of an application, one a line, trailing blanks removed.
#include "cli/cli_document.h"
#include "cli/commands.h"
#include "document/state.h"
#include "document/text.h"
#include "ui/headless/json.h"
#include "ui/model/list_controls.h"

namespace kqx {

int CmdLines(CliContext& ctx) {
  if (!ExpectArgs(ctx, 1, "lines FILE")) return kExitRefused;
  if (!OpenDocument(ctx, ctx.args[0])) return kExitRefused;
  const ui::ListBox& list = kq::EditList();
  for (int i = 0; i < list.ListCount(); ++i) {
    ctx.out << ui::Cp1252ToUtf8(kq::RTrim(list.List(i))) << "\n";
  }
  return kExitOk;
}

}  // namespace kqx
