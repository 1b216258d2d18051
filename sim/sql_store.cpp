#include "sim/sql_store.h"

#include <sqlite3.h>

namespace kq::sim {

struct SqlStore::Db {
  sqlite3* handle = nullptr;
  ~Db() {
    if (handle != nullptr) sqlite3_close(handle);
  }
};

namespace {

// One prepared statement, finalized when it goes.
class Stmt {
 public:
  Stmt(sqlite3* db, const std::string& sql) {
    if (sqlite3_prepare_v2(db, sql.c_str(), -1, &s_, nullptr) != SQLITE_OK) s_ = nullptr;
  }
  ~Stmt() { sqlite3_finalize(s_); }
  bool Ok() const { return s_ != nullptr; }
  sqlite3_stmt* operator*() const { return s_; }
  void Bind(int i, const Value& v) {
    switch (v.type) {
      case VType::Long:
        sqlite3_bind_int(s_, i, v.l);
        break;
      case VType::Double:
        sqlite3_bind_double(s_, i, v.d);
        break;
      case VType::String:
        sqlite3_bind_text(s_, i, v.s.data(), static_cast<int>(v.s.size()), SQLITE_TRANSIENT);
        break;
    }
  }
  void Bind(int i, int64_t n) { sqlite3_bind_int64(s_, i, n); }

 private:
  sqlite3_stmt* s_ = nullptr;
};

Value Column(sqlite3_stmt* s, int i, VType type) {
  switch (type) {
    case VType::Long:
      return Value::OfLong(sqlite3_column_int(s, i));
    case VType::Double:
      return Value::OfDouble(sqlite3_column_double(s, i));
    case VType::String: {
      const unsigned char* t = sqlite3_column_text(s, i);
      const int n = sqlite3_column_bytes(s, i);
      return Value::OfString(t == nullptr ? std::string()
                                          : std::string(reinterpret_cast<const char*>(t), n));
    }
  }
  return {};
}

const char* SqlType(VType t) {
  switch (t) {
    case VType::Long:
      return "INTEGER";
    case VType::Double:
      return "REAL";
    case VType::String:
      return "TEXT";
  }
  return "TEXT";
}

}  // namespace

std::string SqlName(const std::string& name) {
  std::string out = "\"";
  for (char c : name) {
    if (c == '"') out += '"';
    out += c;
  }
  return out + "\"";
}

SqlStore::SqlStore(std::unique_ptr<Db> db) : db_(std::move(db)) {}
SqlStore::~SqlStore() = default;

std::unique_ptr<SqlStore> SqlStore::Open(const std::string& file, std::string& error) {
  auto db = std::make_unique<Db>();
  const std::string name = file.empty() ? ":memory:" : file;
  if (sqlite3_open_v2(name.c_str(), &db->handle, SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE,
                      nullptr) != SQLITE_OK) {
    error = db->handle != nullptr ? sqlite3_errmsg(db->handle) : "cannot open the database";
    return nullptr;
  }
  // A file that is no database shows here, before anything is written to it.
  char* msg = nullptr;
  if (sqlite3_exec(db->handle, "SELECT count(*) FROM sqlite_master", nullptr, nullptr, &msg) !=
      SQLITE_OK) {
    error = msg != nullptr ? msg : "not a database";
    sqlite3_free(msg);
    return nullptr;
  }
  return std::unique_ptr<SqlStore>(new SqlStore(std::move(db)));
}

bool SqlStore::Exec(const std::string& sql) {
  char* msg = nullptr;
  if (sqlite3_exec(db_->handle, sql.c_str(), nullptr, nullptr, &msg) != SQLITE_OK) {
    error_ = msg != nullptr ? msg : "SQL error";
    sqlite3_free(msg);
    return false;
  }
  return true;
}

bool SqlStore::Begin() {
  return Exec("BEGIN");
}
bool SqlStore::Commit() {
  return Exec("COMMIT");
}

std::vector<std::string> SqlStore::ExistingColumns(const std::string& table) {
  std::vector<std::string> cols;
  Stmt s(db_->handle, "SELECT name FROM pragma_table_info(?1) ORDER BY cid");
  if (!s.Ok()) return cols;
  sqlite3_bind_text(*s, 1, table.data(), static_cast<int>(table.size()), SQLITE_TRANSIENT);
  while (sqlite3_step(*s) == SQLITE_ROW) {
    const unsigned char* t = sqlite3_column_text(*s, 0);
    std::string n = t == nullptr ? std::string() : reinterpret_cast<const char*>(t);
    if (n != "recno") cols.push_back(n);
  }
  return cols;
}

bool SqlStore::Create(const std::string& table, const std::vector<SqlColumn>& columns) {
  std::string sql = "DROP TABLE IF EXISTS " + SqlName(table) + "; CREATE TABLE " + SqlName(table) +
                    " (recno INTEGER PRIMARY KEY";
  for (const SqlColumn& c : columns) sql += ", " + SqlName(c.name) + " " + SqlType(c.type);
  return Exec(sql + ")");
}

int64_t SqlStore::Count(const std::string& table) {
  Stmt s(db_->handle, "SELECT count(*) FROM " + SqlName(table));
  if (!s.Ok() || sqlite3_step(*s) != SQLITE_ROW) return 0;
  return sqlite3_column_int64(*s, 0);
}

bool SqlStore::Read(const std::string& table, const std::vector<SqlColumn>& columns, int64_t recno,
                    std::vector<Value>& out) {
  std::string sql = "SELECT ";
  for (size_t i = 0; i < columns.size(); ++i) sql += (i ? ", " : "") + SqlName(columns[i].name);
  Stmt s(db_->handle, sql + " FROM " + SqlName(table) + " WHERE recno = ?1");
  if (!s.Ok()) return false;
  s.Bind(1, recno);
  if (sqlite3_step(*s) != SQLITE_ROW) return false;
  out.clear();
  for (size_t i = 0; i < columns.size(); ++i)
    out.push_back(Column(*s, static_cast<int>(i), columns[i].type));
  return true;
}

bool SqlStore::InsertAt(const std::string& table, const std::vector<SqlColumn>& columns,
                        int64_t recno, const std::vector<Value>& values) {
  // Move the tail up from its end, so that no two records share a number on the way.
  if (!Exec("UPDATE " + SqlName(table) +
            " SET recno = -recno - 1 WHERE recno >= " + std::to_string(recno)) ||
      !Exec("UPDATE " + SqlName(table) + " SET recno = -recno WHERE recno < 0")) {
    return false;
  }
  std::string sql = "INSERT INTO " + SqlName(table) + " (recno";
  std::string marks = "?1";
  for (size_t i = 0; i < columns.size(); ++i) {
    sql += ", " + SqlName(columns[i].name);
    marks += ", ?" + std::to_string(i + 2);
  }
  Stmt s(db_->handle, sql + ") VALUES (" + marks + ")");
  if (!s.Ok()) return false;
  s.Bind(1, recno);
  for (size_t i = 0; i < values.size(); ++i) s.Bind(static_cast<int>(i + 2), values[i]);
  return sqlite3_step(*s) == SQLITE_DONE;
}

bool SqlStore::Update(const std::string& table, const std::vector<SqlColumn>& columns,
                      int64_t recno, const std::vector<Value>& values) {
  std::string sql = "UPDATE " + SqlName(table) + " SET ";
  for (size_t i = 0; i < columns.size(); ++i) {
    sql += (i ? ", " : "") + SqlName(columns[i].name) + " = ?" + std::to_string(i + 2);
  }
  Stmt s(db_->handle, sql + " WHERE recno = ?1");
  if (!s.Ok()) return false;
  s.Bind(1, recno);
  for (size_t i = 0; i < values.size(); ++i) s.Bind(static_cast<int>(i + 2), values[i]);
  return sqlite3_step(*s) == SQLITE_DONE;
}

bool SqlStore::Delete(const std::string& table, int64_t recno) {
  const std::string n = std::to_string(recno);
  return Exec("DELETE FROM " + SqlName(table) + " WHERE recno = " + n) &&
         Exec("UPDATE " + SqlName(table) + " SET recno = -(recno - 1) WHERE recno > " + n) &&
         Exec("UPDATE " + SqlName(table) + " SET recno = -recno WHERE recno < 0");
}

bool SqlStore::Empty(const std::string& table) {
  return Exec("DELETE FROM " + SqlName(table));
}

std::vector<int64_t> SqlStore::Select(const std::string& table,
                                      const std::vector<SqlColumn>& columns,
                                      const std::vector<SqlCondition>& conditions) {
  static const char* kOps[] = {"=", "<>", "<", ">", "<=", ">="};
  std::string sql = "SELECT recno FROM " + SqlName(table);
  for (size_t i = 0; i < conditions.size(); ++i) {
    sql += i ? " AND " : " WHERE ";
    sql += SqlName(columns[conditions[i].column].name) + " " + kOps[conditions[i].op] + " ?" +
           std::to_string(i + 1);
  }
  std::vector<int64_t> out;
  Stmt s(db_->handle, sql + " ORDER BY recno");
  if (!s.Ok()) {
    error_ = sqlite3_errmsg(db_->handle);
    return out;
  }
  for (size_t i = 0; i < conditions.size(); ++i)
    s.Bind(static_cast<int>(i + 1), conditions[i].value);
  while (sqlite3_step(*s) == SQLITE_ROW) out.push_back(sqlite3_column_int64(*s, 0));
  return out;
}

}  // namespace kq::sim
