// kqx graph FILE [-o FILE.dot|FILE.svg]: the call-flow diagram, laid out; DOT text for a
// name ending in .dot (and on standard output without -o), SVG otherwise.
#include <memory>
#include <string>
#include <vector>

#include <CLI/CLI.hpp>

#include "check/flow.h"
#include "cli/check_document.h"
#include "cli/commands.h"
#include "diagram/diagram.h"
#include "document/file_io.h"
#include "document/state.h"
#include "ui/model/list_controls.h"

namespace kqx {

namespace {

struct GraphArgs {
  std::string file;
  std::string out;
};

int Graph(Session& session, const GraphArgs& a) {
  if (!OpenForReading(session, a.file)) return kExitRefused;
  ui::ListBox& list = kq::EditList();
  const int count = list.ListCount();
  std::vector<std::string> texts;
  texts.reserve(static_cast<size_t>(count));
  for (int i = 0; i < count; ++i) texts.push_back(list.List(i));
  const kq::check::FlowGraph graph = kq::check::BuildFlow(count);
  const kq::diagram::Format format =
      a.out.empty() ? kq::diagram::Format::Dot : kq::diagram::FormatForFile(a.out);
  std::string data, error;
  if (!kq::diagram::Render(graph, texts, format, data, error)) {
    session.err << "kqx: " << a.file << ": " << error << "\n";
    return kExitRefused;
  }
  if (a.out.empty()) {
    session.out << data;
    return kExitOk;
  }
  const int rc =
      kq::WriteWholeFile(a.out, reinterpret_cast<const uint8_t*>(data.data()), data.size());
  if (rc != 0) {
    session.err << "kqx: " << a.out << ": cannot write (error " << rc << ")\n";
    return kExitRefused;
  }
  return kExitOk;
}

}  // namespace

void AddGraphCommand(CLI::App& app, Session& session) {
  auto a = std::make_shared<GraphArgs>();
  CLI::App* cmd = app.add_subcommand("graph", "The call-flow diagram as DOT or SVG");
  cmd->add_option("FILE", a->file, "the application file")->required();
  cmd->add_option("-o", a->out, "FILE.dot or FILE.svg (DOT on standard output without it)");
  OnRun(*cmd, session, [a, &session] { return Graph(session, *a); });
}

}  // namespace kqx
