// Fuzz target of the KQX reader: every input goes through open and through insert on the
// headless platform. A "Program Error" is a legal end of a command here; a crash, a
// sanitizer report or a hang is a fault. Built with libFuzzer under clang; with replay_main.cpp
// an ordinary program that replays the files it is given.
#include <cstdint>
#include <string>
#include <vector>

#include "document/catalogue.h"
#include "document/document.h"
#include "document/file.h"
#include "document/run_scope.h"
#include "document/state.h"
#include "fuzz/fuzz_harness.h"
#include "ui/headless/headless_platform.h"
#include "ui/model/list_controls.h"

namespace {

using kq::fuzz::Harness;
using kq::fuzz::TheHarness;

// One Remark line in the new document.
void OneRemarkLine(Harness& h) {
  h.platform.ClearEvents();
  h.host.lstEdit.Clear();
  h.host.lstEdit.AddItem("0000\t\tRemark\t");
  kq::LineTable[0].LineFuncNo = 13;
  kq::InitFuncParm(0, 13);
  kq::PrgHdr.LineCount = 1;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  Harness& h = TheHarness();
  const kq::RunScope run{{&h.platform, &h.host.lstEdit}};
  const std::vector<uint8_t> bytes(data, data + size);
  OneRemarkLine(h);  // the scope has started a new document
  try {
    std::string title = "fuzz.kqx", name = "fuzz.kqx";
    kq::OpenFileBytes(title, name, bytes);
  } catch (const ui::ProgramEnded&) {
  }
  kq::InitDocument();
  OneRemarkLine(h);
  try {
    std::string title = "fuzz.kqx";
    kq::InsertFileBytes(title, bytes, 1);
  } catch (const ui::ProgramEnded&) {
  }
  return 0;
}
