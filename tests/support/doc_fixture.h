// A document on the headless platform for tests: a hidden list standing for lstEdit, a
// fresh document, and builders for lines, declarations and files of every version.
#pragma once

#include <gtest/gtest.h>

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "document/byte_reader.h"
#include "document/header.h"
#include "document/records.h"
#include "document/run_scope.h"
#include "tests/support/doc_builder.h"
#include "ui/headless/headless_platform.h"
#include "ui/model/list_controls.h"

namespace kqtest {

;

// Fills the record image of function funcNo with bytes that depend on the seed.
void FillRecord(int funcNo, uint32_t seed, uint8_t* image);

// Appends a line of function funcNo to the document: DisplayLine, line table, block.
// Without a record image the block gets pseudo-random bytes from the seed.
void AddLine(int funcNo, const std::string& label, uint32_t seed, const uint8_t* image = nullptr);
// Lines mixing every live function, count of them.
void AddMixedLines(int count);
// Every declaration slot used: 500 variables, 100 path variables, 50 tables.
void FillDeclarations();

std::vector<uint8_t> ReadBytes(const std::string& path);
void WriteBytes(const std::string& path, const std::vector<uint8_t>& bytes);
// Saves the whole document to path.
void SaveAll(const std::string& path);
// Opens path as the document; returns the title afterwards.
std::string Open(const std::string& path, const std::string& title = "test.kqx");

// A snapshot of everything a file command may change, to check that a refusal left the
// document as it was.
struct Snapshot {
  std::vector<uint8_t> header;
  std::vector<std::string> items;
  std::vector<uint8_t> lines;
  bool changed;
  static Snapshot Take();
  bool operator==(const Snapshot&) const = default;
};

class DocTest : public ::testing::Test {
 protected:
  void SetUp() override;
  void TearDown() override;
  std::string TempPath(const std::string& name) const;
  ui::ListBox& list() { return host_.lstEdit; }
  // A field of the last message box, "" when none was shown.
  std::string LastBox(const char* field = "text") const {
    auto boxes = platform_.EventsOf("msgbox");
    return boxes.empty() ? "" : boxes.back().fields[field].Str();
  }

  ui::HeadlessPlatform platform_;
  kq::EditHost host_;
  std::optional<kq::RunScope> run_;
  std::string dir_;
};

// A 3.08 or 3.09 file written field by field, for the conversion tests.
struct OldFile {
  std::vector<uint8_t> bytes;
  kq::ByteWriter out{bytes};
};

}  // namespace kqtest
