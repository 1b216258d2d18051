#include "document/run_scope.h"

#include "document/catalogue.h"
#include "document/document.h"
#include "ui/platform/platform.h"

namespace kq {

namespace {

void Install(const RunParts& parts) {
  ui::SetPlatform(parts.platform);
  SetEditList(parts.editList);
  SetMainWindow(parts.mainWindow);
}

}  // namespace

RunParts InstalledParts() {
  return {ui::InstalledPlatform(), InstalledEditList(), MainWindow()};
}

RunScope::RunScope(const RunParts& parts)
    : previous_(InstalledParts()), previousShell_(std::move(Shell)) {
  Install(parts);
  Shell = {};
  InitNameTables();
  GetFuncRecordLength();
  InitDocument();
  FuncModify = false;
  FuncOk = false;
  FuncPick = false;
}

RunScope::~RunScope() {
  Install(previous_);
  Shell = std::move(previousShell_);
}

}  // namespace kq
