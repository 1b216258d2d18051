#include "document/run_scope.h"

#include <memory>
#include <vector>

#include "document/document.h"
#include "ui/platform/platform.h"

namespace kq {

namespace {

// The document a scope replaced, one slot per depth of scopes. The document's tables are
// some 200 KB; the line stores (10 MB) are kept only below an outer scope, whose run is
// using them: outside any scope no document's lines come back. A slot stays for the next
// scope of its depth, so that a scope per test or fuzz input allocates nothing.
struct Replaced {
  DocumentState document;
  std::unique_ptr<LineStores> stores;
};
std::vector<std::unique_ptr<Replaced>> g_replaced;
int g_depth = 0;

// The platform has its own place in the window layer (ui::platform()), which knows
// nothing of the document: it follows the run's parts.
void Install(const RunParts& parts) {
  TheRun.parts = parts;
  ui::SetPlatform(parts.platform);
}

}  // namespace

RunParts InstalledParts() {
  RunParts parts = TheRun.parts;
  parts.platform = ui::InstalledPlatform();
  return parts;
}

RunScope::RunScope(const RunParts& parts)
    : previousParts_(InstalledParts()), previousShell_(std::move(TheRun.Shell)), depth_(g_depth) {
  if (g_replaced.size() <= static_cast<size_t>(depth_)) {
    g_replaced.push_back(std::make_unique<Replaced>());
  }
  Replaced& slot = *g_replaced[depth_];
  slot.document = TheRun.document;
  if (depth_ > 0) {
    if (!slot.stores) slot.stores = std::make_unique<LineStores>();
    *slot.stores = TheRun.stores;
  }
  ++g_depth;
  Install(parts);
  TheRun.Shell = {};
  InitDocument();
  FuncModify = false;
  FuncOk = false;
  FuncPick = false;
}

RunScope::~RunScope() {
  g_depth = depth_;
  Replaced& slot = *g_replaced[depth_];
  if (depth_ > 0) TheRun.stores = *slot.stores;
  TheRun.document = slot.document;
  TheRun.Shell = std::move(previousShell_);
  Install(previousParts_);
}

}  // namespace kq
