// kqx list IN [-o OUT] [--now "YYYY-MM-DD HH:MM:SS"]: the listing text of an application,
// as the Print menu writes it to its text file, to OUT or to standard output. --now fixes
// the date and time of the first row.
#include <cstring>
#include <sstream>

#include "cli/cli_document.h"
#include "cli/commands.h"
#include "document/state.h"
#include "editor/listing.h"
#include "ui/headless/headless_platform.h"
#include "ui/platform/durable_file.h"

namespace kqx {

int CmdList(CliContext& ctx) {
  const char* usage = "list IN [-o OUT] [--now \"YYYY-MM-DD HH:MM:SS\"]";
  std::string in, out, now;
  bool bad = ctx.args.empty();
  for (size_t i = 0; i < ctx.args.size() && !bad; ++i) {
    const std::string& a = ctx.args[i];
    if ((a == "-o" || a == "--now") && i + 1 < ctx.args.size()) {
      (a == "-o" ? out : now) = ctx.args[++i];
    } else if (in.empty() && !a.empty() && a[0] != '-') {
      in = a;
    } else {
      bad = true;
    }
  }
  if (bad || in.empty()) {
    ctx.err << "usage: kqx " << usage << "\n";
    return kExitRefused;
  }
  // Written to standard output, the listing stays alone there: the boxes go to the
  // error stream.
  if (out.empty()) ctx.platform.SetEventStream(&ctx.err);
  if (!OpenDocument(ctx, in)) return kExitRefused;
  kq::ApplFileName = in;
  kq::ApplFileTitle = TitleOf(in);
  if (now.empty()) now = kq::NowText();

  // A listing file is written whole and durably: a failure leaves the last one in place.
  std::ostringstream text;
  std::ostream& sink = out.empty() ? ctx.out : text;
  try {
    kq::WriteListing([&](const std::string& row) { sink << row << kq::kRowEnd; }, now);
  } catch (const kq::ListingFault& fault) {
    ctx.err << "kqx: the listing stops: " << fault.what() << "\n";
    return kExitRefused;
  }
  if (!out.empty()) {
    const std::string bytes = text.str();
    if (const int err = ui::WriteFileDurably(out, bytes.data(), bytes.size()); err != 0) {
      ctx.err << "kqx: can't write " << out << ": " << std::strerror(err) << "\n";
      return kExitRefused;
    }
  }
  return kExitOk;
}

}  // namespace kqx
