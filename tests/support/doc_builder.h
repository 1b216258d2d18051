// Test documents built directly from records: the header declarations, and lines with
// their label, function number and record bytes, shown in an edit list of the test's own.
#pragma once

#include <cstdint>
#include <cstring>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "document/edit_host.h"
#include "document/record_view.h"
#include "document/run_scope.h"
#include "document/state.h"
#include "document/text.h"
#include "ui/headless/headless_platform.h"
#include "ui/model/list_controls.h"

namespace kq::test {

// Blank declarations and defaults, as a new document has them.
void ResetDocument();

// A record under construction: the function's default record, then fields by offset.
class Rec {
 public:
  explicit Rec(int funcNo);
  int funcNo;
  std::vector<uint8_t> bytes;
  Rec& I32(int offset, int32_t v);
  Rec& Text(int offset, int width, const std::string& text);
  Rec& Var(int offset, int32_t type, const std::string& name);
  Rec& Label(int offset, const std::string& name);  // 16-byte label name
  Rec& LabelRef(int offset, const std::string& name, int32_t line);
  int32_t I32At(int offset) const;
};

void DeclareVariable(int index, int32_t type, const std::string& name);
void DeclarePath(int32_t type, int row, const std::string& name, const std::string& path);
void DeclareTable(int index, const std::string& name);
void DeclareColumn(int table, int column, int32_t type, const std::string& name);

// Appends a line to the stores and the edit list.
void AddLine(ui::ListBox& list, const std::string& label, const Rec& rec);
// The block of a line as a record of its function.
Rec LineRecord(int line);

// The usual set-up: a headless platform, the edit list registered, a new document.
class DocFixture {
 public:
  DocFixture();
  ~DocFixture();
  ui::HeadlessPlatform platform;
  std::unique_ptr<EditHost> host;
  std::optional<RunScope> run;
  ui::ListBox& list() { return host->lstEdit; }
  void Add(const std::string& label, const Rec& rec) { AddLine(list(), label, rec); }
};

}  // namespace kq::test
