// kqx compile IN [-o OUT]: opens an application, compiles it as the Compile menu does,
// prints every box as a JSON line and then the result; a successful compile saves the
// whole document to OUT (IN when no -o is given).
#include "cli/cli_document.h"
#include "cli/commands.h"
#include "document/file.h"
#include "document/state.h"
#include "editor/commands.h"
#include "ui/headless/headless_platform.h"
#include "ui/model/list_controls.h"

namespace kqx {

int CmdCompile(CliContext& ctx) {
  const char* usage = "compile IN [-o OUT]";
  std::string in, out;
  const auto& a = ctx.args;
  if (a.size() == 1) {
    in = a[0];
  } else if (a.size() == 3 && a[1] == "-o") {
    in = a[0];
    out = a[2];
  } else {
    ctx.err << "usage: kqx " << usage << "\n";
    return kExitRefused;
  }
  if (out.empty()) out = in;
  if (!OpenDocument(ctx, in)) return kExitRefused;
  kq::ApplFileName = in;
  kq::ApplFileTitle = TitleOf(in);

  kq::CompileCommand();
  const bool compiled = kq::PrgHdr.CompiledFlag != 0;
  ui::Json::Array selected;
  for (int line : kq::EditList().SelectedIndexes()) selected.emplace_back(line);
  ui::Json result;
  result.Set("event", "result");
  result.Set("compiled", compiled);
  result.Set("selected", std::move(selected));
  ctx.platform.Record(std::move(result));
  if (!compiled) return kExitRefused;

  std::string title = TitleOf(out);
  std::string name = out;
  int16_t count = static_cast<int16_t>(kq::EditList().ListCount());
  kq::SaveFile(title, name, true, 0, count - 1, count);
  // A save that did not finish leaves the document changed; its box has been printed.
  return kq::ChangedFlag ? kExitRefused : kExitOk;
}

}  // namespace kqx
