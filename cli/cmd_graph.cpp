// kqx graph FILE [-o FILE.dot|FILE.svg]: the call-flow diagram, laid out; DOT text for a
// name ending in .dot (and on standard output without -o), SVG otherwise.
#include <fstream>

#include "check/flow.h"
#include "cli/check_document.h"
#include "cli/commands.h"
#include "diagram/diagram.h"
#include "document/file_io.h"
#include "document/state.h"
#include "ui/model/list_controls.h"

namespace kqx {

int CmdGraph(CliContext& ctx) {
  const char* usage = "graph FILE [-o FILE.dot|FILE.svg]";
  const auto& a = ctx.args;
  std::string file, out;
  if (a.size() == 1) {
    file = a[0];
  } else if (a.size() == 3 && a[1] == "-o" && !a[2].empty()) {
    file = a[0];
    out = a[2];
  } else {
    ctx.err << "usage: kqx " << usage << "\n";
    return kExitRefused;
  }
  if (!OpenForReading(ctx, file)) return kExitRefused;
  ui::ListBox& list = kq::EditList();
  const int count = list.ListCount();
  std::vector<std::string> texts;
  texts.reserve(static_cast<size_t>(count));
  for (int i = 0; i < count; ++i) texts.push_back(list.List(i));
  const kq::check::FlowGraph graph = kq::check::BuildFlow(count);
  const kq::diagram::Format format =
      out.empty() ? kq::diagram::Format::Dot : kq::diagram::FormatForFile(out);
  std::string data, error;
  if (!kq::diagram::Render(graph, texts, format, data, error)) {
    ctx.err << "kqx: " << file << ": " << error << "\n";
    return kExitRefused;
  }
  if (out.empty()) {
    ctx.out << data;
    return kExitOk;
  }
  const int rc =
      kq::WriteWholeFile(out, reinterpret_cast<const uint8_t*>(data.data()), data.size());
  if (rc != 0) {
    ctx.err << "kqx: " << out << ": cannot write (error " << rc << ")\n";
    return kExitRefused;
  }
  return kExitOk;
}

}  // namespace kqx
