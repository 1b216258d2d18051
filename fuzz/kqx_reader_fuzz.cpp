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
#include "ui/headless/headless_platform.h"
#include "ui/model/form.h"
#include "ui/model/list_controls.h"

namespace {

class ListHost : public ui::Form {
 public:
  ListHost() : Form("frmEdit", "Editor") {}
  ui::ListBox lstEdit{*this, "lstEdit"};
};

struct Harness {
  ui::HeadlessPlatform platform;
  ListHost host;
  kq::RunScope run{{&platform, &host.lstEdit}};
  void Fresh() {
    platform.ClearEvents();
    kq::InitDocument();
    host.lstEdit.Clear();
    host.lstEdit.AddItem("0000\t\tRemark\t");
    kq::LineTable[0].LineFuncNo = 13;
    kq::InitFuncParm(0, 13);
    kq::PrgHdr.LineCount = 1;
  }
};

Harness& TheHarness() {
  static Harness h;
  return h;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  Harness& h = TheHarness();
  const std::vector<uint8_t> bytes(data, data + size);
  h.Fresh();
  try {
    std::string title = "fuzz.kqx", name = "fuzz.kqx";
    kq::OpenFileBytes(title, name, bytes);
  } catch (const ui::ProgramEnded&) {
  }
  h.Fresh();
  try {
    std::string title = "fuzz.kqx";
    kq::InsertFileBytes(title, bytes, 1);
  } catch (const ui::ProgramEnded&) {
  }
  return 0;
}
