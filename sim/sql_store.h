// The simulator's tables on SQLite: the only file that sees sqlite3.h is sql_store.cpp.
// Each table holds its records in the order of their record numbers (column "recno",
// 1 to the count, kept without gaps), then one column per bound field.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "sim/value.h"

namespace kq::sim {

struct SqlColumn {
  std::string name;
  VType type;
};

// One condition of SELECT, Delete and Update Record: column index, relational operator
// (0 "=", 1 "<>", 2 "<", 3 ">", 4 "<=", 5 ">="), value of the column's type.
struct SqlCondition {
  int column;
  int op;
  Value value;
};

class SqlStore {
 public:
  // Opens the database file (created if missing), or a database in memory for "".
  static std::unique_ptr<SqlStore> Open(const std::string& file, std::string& error);
  ~SqlStore();

  // The table's columns as the file holds them (besides recno); empty when it has none.
  std::vector<std::string> ExistingColumns(const std::string& table);
  // Creates the table anew, dropping one of that name.
  bool Create(const std::string& table, const std::vector<SqlColumn>& columns);

  int64_t Count(const std::string& table);
  bool Read(const std::string& table, const std::vector<SqlColumn>& columns, int64_t recno,
            std::vector<Value>& out);
  // Puts a record at `recno`, moving that record and those behind it up by one.
  bool InsertAt(const std::string& table, const std::vector<SqlColumn>& columns, int64_t recno,
                const std::vector<Value>& values);
  bool Update(const std::string& table, const std::vector<SqlColumn>& columns, int64_t recno,
              const std::vector<Value>& values);
  // Removes the record and closes the gap.
  bool Delete(const std::string& table, int64_t recno);
  bool Empty(const std::string& table);
  // The record numbers meeting every condition, in order.
  std::vector<int64_t> Select(const std::string& table, const std::vector<SqlColumn>& columns,
                              const std::vector<SqlCondition>& conditions);

  bool Begin();
  bool Commit();
  const std::string& LastError() const { return error_; }

 private:
  struct Db;
  explicit SqlStore(std::unique_ptr<Db> db);
  bool Exec(const std::string& sql);
  std::unique_ptr<Db> db_;
  std::string error_;
};

// A name as an SQL identifier, in double quotes.
std::string SqlName(const std::string& name);

}  // namespace kq::sim
