// The application's declared tables during a run: their bound fields, the connection, the
// current selection and the cursor, over the SQL store. Seeded from TABLE.csv files.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "document/header.h"
#include "sim/sql_store.h"

namespace kq::sim {

struct TableState {
  std::string name;
  std::vector<int> fieldOfColumn;        // the declared field (0 to 23) of each SQL column
  std::vector<std::string> varOfColumn;  // the bound variable's name of each column
  std::vector<SqlColumn> columns;
  bool connected = false;
  std::optional<std::vector<int64_t>> selection;  // SELECT's records; none: all records
  int64_t pos = -1;  // index in the selection (or record number - 1); -1 before the first
};

class Tables {
 public:
  // Opens the store (the file, or memory for "") and makes every declared table, seeding
  // each from DIR/NAME.csv when `csvDir` holds one. A file or CSV in error refuses with a
  // message that names the file, line and column; the database file is then not created.
  bool Open(const ProgramHeader& header, const std::string& dbFile, const std::string& csvDir,
            std::string& error);

  // The table of a name field (16 bytes); null when not declared.
  TableState* Find(const char* name16);
  SqlStore& Store() { return *store_; }
  // Every declared table, in the order of the declarations.
  std::vector<TableState>& All() { return tables_; }

  // The records the cursor walks: the selection, or all.
  int64_t SetSize(const TableState& t);
  int64_t RecnoAt(const TableState& t, int64_t index);
  // The current record's number, 0 when there is none.
  int64_t Current(const TableState& t);
  // The current record as a window shows it: "NAME: record 3: FIELD = value, ...", or
  // "NAME: not connected", "NAME: no record".
  std::string CurrentRowText(const TableState& t);
  // The declared field (1 to 24) as a column index, -1 when the field is not bound.
  static int ColumnOfField(const TableState& t, int field);

 private:
  bool Seed(TableState& t, const std::string& csvFile, std::string& error);
  std::unique_ptr<SqlStore> store_;
  std::vector<TableState> tables_;
};

// Splits CSV text into rows of fields (commas, fields in double quotes with "" inside).
// False with the line number when a quote is not closed.
bool ParseCsv(const std::string& text, std::vector<std::vector<std::string>>& rows, int& badLine);

}  // namespace kq::sim
