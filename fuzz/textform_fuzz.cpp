// Fuzz target of the text-form import: every input is parsed as the JSON text of an
// application and, when it parses and checks, installed as the open document (lines
// without a DisplayLine go through their dialogs) and exported again. What one import
// accepts must come back the same through a second export and import: a difference is a
// fault, as are a crash, a sanitizer report and a hang. A refusal is a legal end.
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <string_view>

#include "document/run_scope.h"
#include "fuzz/fuzz_harness.h"
#include "textform/text_form.h"
#include "ui/headless/headless_platform.h"
#include "ui/model/list_controls.h"
#include "ui/platform/platform.h"

namespace {

using kq::fuzz::Harness;
using kq::fuzz::TheHarness;

// Parses and installs `json`; the export of the installed document, or nothing.
bool ImportAndExport(std::string_view json, std::string& text) {
  kq::textform::StagedDocument doc;
  kq::textform::ImportError error;
  if (!kq::textform::ParseDocument(json, doc, error) || !kq::textform::InstallDocument(doc, error))
    return false;
  text = kq::textform::ExportDocument();
  return true;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  Harness& h = TheHarness();
  const kq::RunScope run{{&h.platform, &h.host.lstEdit}};
  h.platform.ClearEvents();
  h.host.lstEdit.Clear();
  const std::string_view json(reinterpret_cast<const char*>(data), size);
  std::string first, second;
  try {
    if (!ImportAndExport(json, first)) return 0;
    if (!ImportAndExport(first, second) || second != first) {
      std::fprintf(stderr, "the export of an accepted import does not come back the same\n");
      std::abort();
    }
  } catch (const ui::ProgramEnded&) {
  }
  return 0;
}
