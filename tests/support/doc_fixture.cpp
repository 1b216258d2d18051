#include "tests/support/doc_fixture.h"

#include <filesystem>
#include <fstream>
#include <iterator>

#include "document/catalogue.h"
#include "document/document.h"
#include "document/file.h"
#include "document/state.h"
#include "document/text.h"

namespace kqtest {

using namespace kq;

void FillRecord(int funcNo, uint32_t seed, uint8_t* image) {
  uint32_t x = seed * 2654435761u + static_cast<uint32_t>(funcNo) * 40503u + 1u;
  for (int i = 0; i < kCatalogueLength[funcNo]; ++i) {
    x ^= x << 13;
    x ^= x >> 17;
    x ^= x << 5;
    image[i] = static_cast<uint8_t>(x);
  }
}

void AddLine(int funcNo, const std::string& label, uint32_t seed, const uint8_t* image) {
  const int i = EditList().ListCount();
  ProgramLine& line = LineTable[i];
  SetField(line.LineLabel, label);
  line.LineFuncNo = static_cast<int16_t>(funcNo);
  std::memcpy(line.LineFuncName, FuncNames[funcNo], sizeof line.LineFuncName);
  if (image != nullptr) {
    std::memcpy(FuncBlock[i], image, kCatalogueLength[funcNo]);
  } else {
    FillRecord(funcNo, seed, FuncBlock[i]);
  }
  std::string text = Format0000(i) + "\t" + label + "\t" + RTrimZ(View(FuncNames[funcNo])) +
                     "\tparameters of line " + std::to_string(i) + " \xC6\xE9";
  EditList().AddItem(text);
  PrgHdr.LineCount = static_cast<int16_t>(EditList().ListCount());
}

void AddMixedLines(int count) {
  std::vector<std::string> items;
  items.reserve(count);
  int f = 0;
  for (int i = 0; i < count; ++i) {
    while (!IsLiveFunction(f)) f = (f + 1) % kFuncCount;
    AddLine(f, i % 7 == 0 ? "L" + std::to_string(i) : "", static_cast<uint32_t>(i));
    f = (f + 1) % kFuncCount;
  }
}

void FillDeclarations() {
  for (int i = 0; i < kMaxVariables; ++i) {
    PrgHdr.Variable[i].VarRefType = i % 3;
    SetField(PrgHdr.Variable[i].VarRefName, "Var" + std::to_string(i));
  }
  for (int r = 0; r < kPathRows; ++r) {
    for (int t = 0; t < kPathTypes; ++t) {
      SetField(PrgHdr.Path[r][t].PathText,
               "/data/" + std::to_string(t) + "/" + std::to_string(r) + "/");
      SetField(PrgHdr.Path[r][t].PathName, "P" + std::string(1, char('A' + t)) + std::to_string(r));
    }
  }
  for (int i = 0; i < kMaxTables; ++i) {
    SetField(PrgHdr.Table[i].TableName, "Tbl" + std::to_string(i));
    for (int c = 0; c < kTableColumns; ++c) {
      PrgHdr.Table[i].Column[c] = PrgHdr.Variable[(i * kTableColumns + c) % kMaxVariables];
    }
  }
}

std::vector<uint8_t> ReadBytes(const std::string& path) {
  std::ifstream in(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
}

void WriteBytes(const std::string& path, const std::vector<uint8_t>& bytes) {
  std::ofstream out(path, std::ios::binary | std::ios::trunc);
  out.write(reinterpret_cast<const char*>(bytes.data()),
            static_cast<std::streamsize>(bytes.size()));
}

void SaveAll(const std::string& path) {
  std::string title = std::filesystem::path(path).filename().string();
  std::string name = path;
  int16_t count = static_cast<int16_t>(EditList().ListCount());
  SaveFile(title, name, true, 0, count - 1, count);
}

std::string Open(const std::string& path, const std::string& title) {
  std::string t = title;
  std::string name = path;
  OpenFile(t, name);
  return t;
}

Snapshot Snapshot::Take() {
  Snapshot s;
  const auto* h = reinterpret_cast<const uint8_t*>(&PrgHdr);
  s.header.assign(h, h + sizeof PrgHdr);
  s.items = EditList().Items();
  const size_t n = s.items.size() + 1;
  const auto* t = reinterpret_cast<const uint8_t*>(LineTable);
  s.lines.assign(t, t + n * sizeof(ProgramLine));
  s.lines.insert(s.lines.end(), &FuncBlock[0][0], &FuncBlock[0][0] + n * kBlockSize);
  s.changed = ChangedFlag;
  return s;
}

void DocTest::SetUp() {
  run_.emplace(RunParts{&platform_, &host_.lstEdit});
  std::memset(LineTable, 0, sizeof(ProgramLine) * 16);
  const auto* info = ::testing::UnitTest::GetInstance()->current_test_info();
  dir_ = (std::filesystem::path(::testing::TempDir()) / "kqdoc" / info->test_suite_name() /
          info->name())
             .string();
  std::filesystem::remove_all(dir_);
  std::filesystem::create_directories(dir_);
}

void DocTest::TearDown() {
  run_.reset();
  std::filesystem::remove_all(dir_);
}

std::string DocTest::TempPath(const std::string& name) const {
  return (std::filesystem::path(dir_) / name).string();
}

}  // namespace kqtest
