#include "cli/check_document.h"

#include <filesystem>

#include "cli/cli_document.h"
#include "document/state.h"
#include "ui/headless/headless_platform.h"
#include "ui/model/list_controls.h"

namespace kqx {

bool OpenForReading(CliContext& ctx, const std::string& path) {
  std::error_code ec;
  if (!std::filesystem::is_regular_file(std::filesystem::u8path(path), ec)) {
    ctx.err << "kqx: " << path << ": no such file\n";
    return false;
  }
  ctx.platform.SetEventStream(nullptr);
  ctx.platform.ClearEvents();
  const bool opened = OpenDocument(ctx, path);
  ctx.platform.SetEventStream(&ctx.out);
  if (opened) return true;
  ctx.err << "kqx: " << path << ": refused";
  for (const auto& e : ctx.platform.EventsOf("msgbox")) {
    ctx.err << ": " << e.fields["text"].Str();  // Windows-1252 file names are rare here
  }
  ctx.err << "\n";
  return false;
}

}  // namespace kqx
