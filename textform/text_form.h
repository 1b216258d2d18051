// The text form of an application: the whole document as JSON, written for people and for
// version control, and read back into exactly the same bytes.
//
// Export writes the document that is open (header, DisplayLines, line table, blocks).
// Import reads JSON into a staged document and checks all of it before anything of the
// open document is touched; Install then makes it the open document.
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "document/header.h"

namespace kq::textform {

// The open document as JSON text: the header, then one line of text per program line.
std::string ExportDocument();

// Where the JSON is wrong ("/lines/3/record/Target/name", or "line 4, column 7" when it
// does not parse) and what is wrong with it.
struct ImportError {
  std::string place;
  std::string message;
  std::string Text() const { return place.empty() ? message : place + ": " + message; }
};

struct StagedLine {
  std::optional<std::string> display;  // 180 bytes; none: built by the line's dialog
  ProgramLine entry{};
  std::vector<uint8_t> record;  // RecordLength[entry.LineFuncNo] bytes
};

struct StagedDocument {
  std::unique_ptr<ProgramHeader> header = std::make_unique<ProgramHeader>();
  std::vector<StagedLine> lines;
};

// Parses and checks the JSON text. On a fault returns false with the error; `doc` is then
// of no use. Needs the name tables and InitRecord (the defaults of fields left out).
bool ParseDocument(std::string_view json, StagedDocument& doc, ImportError& error);

// Makes the staged document the open document, unchanged and not yet saved to any file,
// and builds each missing DisplayLine by loading its line into the function's dialog and
// pressing OK. False, with the error, when a dialog refuses its record: the open document
// is then a new, empty one.
bool InstallDocument(const StagedDocument& doc, ImportError& error);

}  // namespace kq::textform

namespace kq::textform {

// The changes from one text form to another, one a line ("line 12: record.DelayMs: 10 ->
// 20", "variable 3: only in the second"); empty when they are the same. Both texts are
// ExportDocument's output.
std::vector<std::string> DiffTexts(std::string_view first, std::string_view second);

}  // namespace kq::textform
