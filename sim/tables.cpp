#include "sim/tables.h"

#include <filesystem>
#include <fstream>
#include <sstream>

#include "document/field_empty.h"
#include "document/text.h"
#include "text/csv.h"

namespace kq::sim {

namespace fs = std::filesystem;

namespace {

// Fields keep their blanks; an open quote is reported on the line where it stands.
text::CsvRead ReadTableCsv(std::string_view csv) {
  return text::ReadCsv(csv, {.faultLine = text::CsvOptions::FaultLine::QuoteStart});
}

}  // namespace

bool ParseCsv(const std::string& text, std::vector<std::vector<std::string>>& rows, int& badLine) {
  text::CsvRead csv = ReadTableCsv(text);
  if (csv.fault) {
    badLine = static_cast<int>(csv.fault->line);
    return false;
  }
  for (text::CsvRow& row : csv.rows) rows.push_back(std::move(row.fields));
  return true;
}

bool Tables::Open(const ProgramHeader& header, const std::string& dbFile, const std::string& csvDir,
                  std::string& error) {
  tables_.clear();
  for (const TableEntry& e : header.Table) {
    if (EmptyField(e.TableName)) continue;
    TableState t;
    t.name = Text(e.TableName);
    for (int f = 0; f < kTableColumns; ++f) {
      const VarRef& c = e.Column[f];
      if (EmptyField(c.VarRefName) || c.VarRefType < kVarLong || c.VarRefType > kVarString) {
        continue;
      }
      std::string var = RTrim(std::string_view(c.VarRefName, 28));
      if (!var.empty() && var.back() == '\0') var.pop_back();
      for (const SqlColumn& have : t.columns) {
        if (have.name == var) {
          error = "table " + t.name + ": variable " + var + " is bound to two fields";
          return false;
        }
      }
      t.fieldOfColumn.push_back(f);
      t.varOfColumn.push_back(var);
      t.columns.push_back({var, static_cast<VType>(c.VarRefType)});
    }
    tables_.push_back(std::move(t));
  }

  // Read every CSV before the database file is touched.
  std::vector<std::string> csv(tables_.size());
  for (size_t i = 0; i < tables_.size(); ++i) {
    if (csvDir.empty()) continue;
    const fs::path p = fs::path(csvDir) / (tables_[i].name + ".csv");
    std::error_code ec;
    if (!fs::exists(p, ec)) continue;
    std::ifstream in(p, std::ios::binary);
    std::stringstream ss;
    ss << in.rdbuf();
    if (!in) {
      error = p.string() + ": cannot be read";
      return false;
    }
    csv[i] = ss.str();
    if (csv[i].empty()) csv[i] = "\n";
  }
  // Check every CSV in a scratch store in memory first, so that a bad one writes nothing.
  for (size_t i = 0; i < tables_.size(); ++i) {
    if (csv[i].empty()) continue;
    std::string scratchError;
    store_ = SqlStore::Open("", scratchError);
    if (!store_ || !store_->Create(tables_[i].name, tables_[i].columns) ||
        !Seed(tables_[i], csv[i], error)) {
      if (error.empty()) error = "table " + tables_[i].name + ": " + scratchError;
      error = (fs::path(csvDir) / (tables_[i].name + ".csv")).string() + ": " + error;
      store_.reset();
      return false;
    }
  }

  store_ = SqlStore::Open(dbFile, error);
  if (!store_) {
    error = (dbFile.empty() ? std::string("memory") : dbFile) + ": " + error;
    return false;
  }
  store_->Begin();
  for (size_t i = 0; i < tables_.size(); ++i) {
    TableState& t = tables_[i];
    const std::vector<std::string> have = store_->ExistingColumns(t.name);
    if (!have.empty() && csv[i].empty()) {
      // A table kept in the database file from an earlier run must fit the declaration.
      bool same = have.size() == t.columns.size();
      for (size_t c = 0; same && c < have.size(); ++c) same = have[c] == t.columns[c].name;
      if (!same) {
        error = dbFile + ": table " + t.name + " has other columns than its declaration";
        store_->Commit();
        store_.reset();
        return false;
      }
      continue;
    }
    if (!store_->Create(t.name, t.columns) || (!csv[i].empty() && !Seed(t, csv[i], error))) {
      if (error.empty()) error = store_->LastError();
      store_.reset();
      return false;
    }
  }
  store_->Commit();
  return true;
}

bool Tables::Seed(TableState& t, const std::string& text, std::string& error) {
  const text::CsvRead csv = ReadTableCsv(text);
  if (csv.fault) {
    error = "line " + std::to_string(csv.fault->line) + ": a quoted field is not closed";
    return false;
  }
  const std::vector<text::CsvRow>& rows = csv.rows;
  std::string expected;
  for (size_t c = 0; c < t.columns.size(); ++c) expected += (c ? "," : "") + t.columns[c].name;
  const std::string head = "line " + std::to_string(rows.empty() ? 1 : rows[0].line) + ": ";
  if (rows.empty() || rows[0].fields.size() != t.columns.size()) {
    error = head + "the header must name the columns " + expected;
    return false;
  }
  for (size_t c = 0; c < t.columns.size(); ++c) {
    const std::string& name = rows[0].fields[c];
    if (Trim(name) != t.columns[c].name) {
      error = head + "column " + std::to_string(c + 1) + " is '" + name + "', expected '" +
              t.columns[c].name + "' (the header must name the columns " + expected + ")";
      return false;
    }
  }
  for (size_t r = 1; r < rows.size(); ++r) {
    const std::string where = "line " + std::to_string(rows[r].line) + ": ";
    if (rows[r].fields.size() != t.columns.size()) {
      error = where + std::to_string(rows[r].fields.size()) + " fields, the header has " +
              std::to_string(t.columns.size());
      return false;
    }
    std::vector<Value> values;
    for (size_t c = 0; c < t.columns.size(); ++c) {
      const std::string& f = rows[r].fields[c];
      switch (t.columns[c].type) {
        case VType::Long: {
          auto l = ParseLong(f);
          if (!l) {
            error = where + "'" + f + "' is not a whole number for " + t.columns[c].name;
            return false;
          }
          values.push_back(Value::OfLong(*l));
          break;
        }
        case VType::Double: {
          auto d = ParseNumber(f);
          if (!d) {
            error = where + "'" + f + "' is not a number for " + t.columns[c].name;
            return false;
          }
          values.push_back(Value::OfDouble(*d));
          break;
        }
        case VType::String:
          if (f.size() > kMaxString) {
            error = where + "a text longer than 255 characters for " + t.columns[c].name;
            return false;
          }
          values.push_back(Value::OfString(f));
          break;
      }
    }
    if (!store_->InsertAt(t.name, t.columns, static_cast<int64_t>(r), values)) {
      error = where + store_->LastError();
      return false;
    }
  }
  return true;
}

TableState* Tables::Find(const char* name16) {
  std::string_view f(name16, 16);
  const size_t nul = f.find('\0');
  std::string_view name = f.substr(0, nul == std::string_view::npos ? 16 : nul);
  for (TableState& t : tables_) {
    if (t.name == name) return &t;
  }
  return nullptr;
}

int64_t Tables::SetSize(const TableState& t) {
  return t.selection ? static_cast<int64_t>(t.selection->size()) : store_->Count(t.name);
}

int64_t Tables::RecnoAt(const TableState& t, int64_t index) {
  if (index < 0 || index >= SetSize(t)) return 0;
  return t.selection ? (*t.selection)[index] : index + 1;
}

int64_t Tables::Current(const TableState& t) {
  return RecnoAt(t, t.pos);
}

std::string Tables::CurrentRowText(const TableState& t) {
  const std::string head = t.name + ": ";
  if (!t.connected) return head + "not connected";
  const int64_t recno = Current(t);
  if (recno <= 0) return head + "no record";
  std::string text = head + "record " + std::to_string(recno);
  std::vector<Value> values;
  if (!store_->Read(t.name, t.columns, recno, values)) return text;
  for (size_t c = 0; c < values.size() && c < t.varOfColumn.size(); ++c) {
    text += (c == 0 ? ": " : ", ") + t.varOfColumn[c] + " = " + ToText(values[c]);
  }
  return text;
}

int Tables::ColumnOfField(const TableState& t, int field) {
  for (size_t c = 0; c < t.fieldOfColumn.size(); ++c) {
    if (t.fieldOfColumn[c] == field - 1) return static_cast<int>(c);
  }
  return -1;
}

}  // namespace kq::sim
