#include "cli/check_document.h"

#include <filesystem>

#include "cli/cli_document.h"
#include "ui/headless/headless_platform.h"

namespace kqx {

bool OpenForReading(Session& session, const std::string& path) {
  std::error_code ec;
  if (!std::filesystem::is_regular_file(std::filesystem::u8path(path), ec)) {
    session.err << "kqx: " << path << ": no such file\n";
    return false;
  }
  session.platform.SetEventStream(nullptr);
  session.platform.ClearEvents();
  const bool opened = OpenDocument(path);
  session.platform.SetEventStream(&session.out);
  if (opened) return true;
  session.err << "kqx: " << path << ": refused";
  for (const auto& e : session.platform.EventsOf("msgbox")) {
    session.err << ": " << e.fields["text"].Str();  // Windows-1252 file names are rare here
  }
  session.err << "\n";
  return false;
}

}  // namespace kqx
