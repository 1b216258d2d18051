// Making a staged document the open one, and the DisplayLines that only a dialog can write.
#include <cstring>

#include "dialogs/dialogs.h"
#include "document/catalogue.h"
#include "document/document.h"
#include "document/state.h"
#include "document/text.h"
#include "textform/text_form.h"
#include "ui/headless/headless_platform.h"
#include "ui/model/form.h"
#include "ui/model/list_controls.h"

namespace kq::textform {

namespace {

// Builds line i's DisplayLine as Modify does: the line is loaded into its function's
// dialog and OK is pressed, on a platform of its own so that no window shows and no box
// waits for an answer. False when the dialog (or the check before it) refuses.
bool BuildDisplayLine(int i, std::string& display, std::string& refusal) {
  ui::Platform& previous = ui::platform();
  ui::HeadlessPlatform headless;
  headless.SetEventStream(nullptr);
  ui::SetPlatform(&headless);
  struct Restore {
    ui::Platform& p;
    ~Restore() { ui::SetPlatform(&p); }
  } restore{previous};

  const ProgramLine& entry = LineTable[i];
  EditList().SetListIndex(i);
  FuncModify = true;
  FuncPick = true;
  FuncNo = entry.LineFuncNo;
  FuncName.assign(entry.LineFuncName, sizeof entry.LineFuncName);
  FuncLine = NulToBlank(View(FuncNames[entry.LineFuncNo]));
  headless.QueueModal("", [](ui::Form& form) {
    if (ui::Control* ok = form.FindControl("cmdOk")) ok->UserClick();
    if (form.Loaded()) form.Unload();
  });
  GetFuncParm(entry.LineFuncNo);
  FuncModify = false;
  if (!FuncOk) {
    const auto boxes = headless.EventsOf("msgbox");
    refusal = boxes.empty() ? "a field the dialog checks is empty or wrong"
                            : "\"" + boxes.back().fields["text"].Str() + "\"";
    return false;
  }
  display = Format0000(i) + FuncLine;
  display.resize(kDisplayLineWidth, ' ');
  return true;
}

}  // namespace

bool InstallDocument(const StagedDocument& doc, ImportError& error) {
  InitDocument();
  PrgHdr = *doc.header;
  const int count = static_cast<int>(doc.lines.size());
  PrgHdr.LineCount = static_cast<int16_t>(count);
  std::vector<std::string> items;
  items.reserve(doc.lines.size());
  for (int i = 0; i < count; ++i) {
    const StagedLine& line = doc.lines[static_cast<size_t>(i)];
    LineTable[i] = line.entry;
    std::memcpy(FuncBlock[i], line.record.data(), line.record.size());
    std::memset(FuncBlock[i] + line.record.size(), 0, kBlockSize - line.record.size());
    items.push_back(line.display ? *line.display
                                 : Format0000(i) + std::string(kDisplayLineWidth - 4, ' '));
  }
  ui::ListBox& list = EditList();
  list.ReplaceAll(std::move(items));

  for (int i = 0; i < count; ++i) {
    if (doc.lines[static_cast<size_t>(i)].display) continue;
    std::string display, refusal;
    if (!BuildDisplayLine(i, display, refusal)) {
      const std::string name = RTrimZ(View(FuncNames[LineTable[i].LineFuncNo]));
      error = {"/lines/" + std::to_string(i),
               "no \"display\", and the " + name + " dialog refuses the line: " + refusal};
      InitDocument();
      list.Clear();
      return false;
    }
    list.SetList(i, display);
  }
  list.SetListIndex(count > 0 ? 0 : -1);
  ChangedFlag = false;
  return true;
}

}  // namespace kq::textform
