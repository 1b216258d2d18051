// kqx list IN [-o OUT] [--now "YYYY-MM-DD HH:MM:SS"]: the listing text of an application,
// as the Print menu writes it to its text file, to OUT or to standard output. --now fixes
// the date and time of the first row.
#include <cstring>
#include <memory>
#include <sstream>

#include <CLI/CLI.hpp>

#include "cli/cli_document.h"
#include "cli/commands.h"
#include "document/state.h"
#include "editor/listing.h"
#include "ui/headless/headless_platform.h"
#include "ui/platform/durable_file.h"

namespace kqx {

namespace {

struct ListArgs {
  std::string in, out, now;
};

int List(Session& session, const ListArgs& a) {
  const std::string& in = a.in;
  const std::string& out = a.out;
  std::string now = a.now;
  // Written to standard output, the listing stays alone there: the boxes go to the
  // error stream.
  if (out.empty()) session.platform.SetEventStream(&session.err);
  if (!OpenDocument(in)) return kExitRefused;
  kq::ApplFileName = in;
  kq::ApplFileTitle = TitleOf(in);
  if (now.empty()) now = kq::NowText();

  // A listing file is written whole and durably: a failure leaves the last one in place.
  std::ostringstream text;
  std::ostream& sink = out.empty() ? session.out : text;
  try {
    kq::WriteListing([&](const std::string& row) { sink << row << kq::kRowEnd; }, now);
  } catch (const kq::ListingFault& fault) {
    session.err << "kqx: the listing stops: " << fault.what() << "\n";
    return kExitRefused;
  }
  if (!out.empty()) {
    const std::string bytes = text.str();
    if (const int err = ui::WriteFileDurably(out, bytes.data(), bytes.size()); err != 0) {
      session.err << "kqx: can't write " << out << ": " << std::strerror(err) << "\n";
      return kExitRefused;
    }
  }
  return kExitOk;
}

}  // namespace

void AddListCommand(CLI::App& app, Session& session) {
  auto a = std::make_shared<ListArgs>();
  CLI::App* cmd = app.add_subcommand(
      "list", "The listing text of an application, as the Print menu writes it to a file");
  cmd->add_option("IN", a->in, "the application file")->required();
  cmd->add_option("-o,--output", a->out, "the file to write (standard output when not given)");
  cmd->add_option("--now", a->now, "the date and time of the first row")
      ->type_name("\"YYYY-MM-DD HH:MM:SS\"");
  OnRun(*cmd, session, [a, &session] { return List(session, *a); });
}

}  // namespace kqx
