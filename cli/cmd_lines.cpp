// kqx lines FILE: the DisplayLines of an application, one a line, trailing blanks removed.
#include <memory>

#include <CLI/CLI.hpp>

#include "cli/cli_document.h"
#include "cli/commands.h"
#include "document/state.h"
#include "document/text.h"
#include "ui/model/list_controls.h"
#include "ui/platform/codepage.h"

namespace kqx {

namespace {

int Lines(Session& session, const std::string& file) {
  if (!OpenDocument(file)) return kExitRefused;
  const ui::ListBox& list = kq::EditList();
  for (int i = 0; i < list.ListCount(); ++i) {
    session.out << ui::Cp1252ToUtf8(kq::RTrim(list.List(i))) << "\n";
  }
  return kExitOk;
}

}  // namespace

void AddLinesCommand(CLI::App& app, Session& session) {
  auto file = std::make_shared<std::string>();
  CLI::App* cmd = app.add_subcommand("lines", "The DisplayLines of an application, one a line");
  cmd->add_option("FILE", *file, "the application file")->required();
  OnRun(*cmd, session, [file, &session] { return Lines(session, *file); });
}

}  // namespace kqx
