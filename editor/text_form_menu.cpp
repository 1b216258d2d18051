// File > Export as Text and File > Import Text: the open document as its JSON text form,
// and a text form read back as a new, not yet saved document.
#include <fstream>
#include <optional>
#include <sstream>

#include "document/state.h"
#include "editor/frm_edit.h"
#include "textform/text_form.h"
#include "ui/platform/platform.h"

namespace kq {

namespace {

constexpr const char* kTextFilter = "Text Form (*.json)|*.json";

std::optional<std::string> AskTextFile(ui::FileDialogRequest::Kind kind,
                                       const std::string& fileName) {
  ui::FileDialogRequest r;
  r.kind = kind;
  r.initDir = ApplPathName;
  r.fileName = fileName;
  r.filter = kTextFilter;
  return ui::platform().FileDialog(r);
}

// The name with its extension replaced: "app.kqx" and ".json" give "app.json".
std::string WithExtension(const std::string& name, const std::string& extension) {
  const size_t slash = name.find_last_of('/');
  const size_t dot = name.find_last_of('.');
  const bool hasExtension = dot != std::string::npos && (slash == std::string::npos || dot > slash);
  return (hasExtension ? name.substr(0, dot) : name) + extension;
}

void FileError(const std::string& text) {
  ui::platform().MsgBox(text, ui::vbExclamation, "File Error");
}

}  // namespace

void FrmEdit::mnuFileExportText_Click() {
  const std::string suggested =
      ApplFileTitle == "Untitled" ? std::string() : WithExtension(ApplFileTitle, ".json");
  const auto chosen = AskTextFile(ui::FileDialogRequest::Kind::Save, suggested);
  if (!chosen) return;
  std::ofstream out(*chosen, std::ios::binary | std::ios::trunc);
  out << textform::ExportDocument();
  out.close();
  if (!out) FileError("File " + *chosen + " can't be written.");
}

void FrmEdit::mnuFileImportText_Click() {
  if (!GuardOpenDocument()) return;
  const auto chosen = AskTextFile(ui::FileDialogRequest::Kind::Open, "");
  if (!chosen) return;
  std::ifstream in(*chosen, std::ios::binary);
  std::stringstream text;
  text << in.rdbuf();
  if (!in) {
    FileError("File " + *chosen + " can't be read.");
    return;
  }
  textform::StagedDocument doc;
  textform::ImportError error;
  // Nothing of the open document changes until the whole text has been checked.
  if (!textform::ParseDocument(text.str(), doc, error)) {
    FileError(*chosen + ": " + error.Text());
    return;
  }
  if (!textform::InstallDocument(doc, error)) {
    ApplFileTitle = "Untitled";
    ApplFileName.clear();
    ResetEditor();
    FileError(*chosen + ": " + error.Text());
    return;
  }
  // A new document that has not been saved: Save writes it beside the text.
  ApplFileName = WithExtension(*chosen, ".kqx");
  const size_t slash = ApplFileName.find_last_of('/');
  ApplFileTitle = slash == std::string::npos ? ApplFileName : ApplFileName.substr(slash + 1);
  FileOpened();
  ChangedFlag = true;
}

}  // namespace kq
