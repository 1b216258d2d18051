// Database functions: Connect and Disconnect Table, the record cursor, SELECT Records,
// Add, Insert, Update and Delete Record, the record number and count, Empty Table.
#include <cstring>

#include "document/functions.h"
#include "document/text.h"
#include "sim/engine.h"
#include "sim/record_of.h"

namespace kq::sim {

void Engine::TraceDb(const char* op, const TableState& t, int64_t recno) {
  trace_.Begin("db").Field("op", op).Field("table", t.name).Field("recno", recno).End();
}

void Engine::LoadRecord(TableState& t, int64_t recno) {
  std::vector<Value> values;
  if (!tables_.Store().Read(t.name, t.columns, recno, values)) return;
  for (size_t c = 0; c < values.size(); ++c) {
    const int slot = vars_.FindName(t.varOfColumn[c]);
    if (slot < 0 || vars_.Type(slot) != values[c].type) continue;
    vars_.Set(slot, std::move(values[c]));
    trace_.Set(vars_.Name(slot), vars_.Get(slot));
  }
}

std::vector<Value> Engine::RecordValues(TableState& t, bool& ok) {
  std::vector<Value> values;
  ok = true;
  for (size_t c = 0; c < t.columns.size(); ++c) {
    const int slot = vars_.FindName(t.varOfColumn[c]);
    if (slot < 0 || vars_.Type(slot) != t.columns[c].type) {
      ok = false;
      return values;
    }
    values.push_back(vars_.Get(slot));
  }
  return values;
}

bool Engine::Conditions(TableState& t, const TableWhereRec& r, std::vector<SqlCondition>& out,
                        std::string& why) {
  for (int i = 0; i < 5; ++i) {
    if (r.WhereField[i] <= 0) continue;
    const int column = Tables::ColumnOfField(t, r.WhereField[i]);
    if (column < 0) {
      why =
          "field" + Str(static_cast<int64_t>(r.WhereField[i])) + " of " + t.name + " is not bound";
      return false;
    }
    Value v;
    if (!Read(r.WhereValue[i], v)) {
      why = "the value '" + VarText(r.WhereValue[i]) + "' has none";
      return false;
    }
    auto c = Convert(v, t.columns[column].type);
    if (!c || r.WhereOperator[i] < 0 || r.WhereOperator[i] > 5) {
      why = "'" + ToText(v) + "' cannot be compared with " + t.columns[column].name;
      return false;
    }
    out.push_back({column, r.WhereOperator[i], std::move(*c)});
  }
  return true;
}

void Engine::ExecTable(const uint8_t* block, int fn) {
  // Every record form starts with the table name and the error label.
  const auto head = RecordOf<TableErrorRec>(block);
  const Fn f = ToFn(fn);
  TableState* tp = tables_.Find(head.TableName);
  if (tp == nullptr) {
    Fail(head.ErrorLabel,
         FunctionNameOf(fn) + ": table " + Text(head.TableName) + " is not declared");
    return;
  }
  TableState& t = *tp;
  SqlStore& store = tables_.Store();
  if (f == Fn::ConnectTable) {
    if (options_.busyTables.count(t.name) != 0) {
      const auto r = RecordOf<ConnectTableRec>(block);
      call_.Advance(static_cast<int64_t>(std::max<int32_t>(r.TimeoutSec, 0)) * 1000);
      TraceDb("busy", t, 0);
      if (!Take(r.BusyLabel)) Fail(r.ErrorLabel, "Connect Table: " + t.name + " is busy");
      return;
    }
    t.connected = true;
    t.selection.reset();
    t.pos = -1;
    TraceDb("connect", t, 0);
    return;
  }
  if (!t.connected) {
    Fail(head.ErrorLabel, FunctionNameOf(fn) + ": table " + t.name + " is not connected");
    return;
  }
  const int64_t count = store.Count(t.name);
  switch (f) {
    case Fn::DisconnectTable:
      t.connected = false;
      t.selection.reset();
      t.pos = -1;
      TraceDb("disconnect", t, 0);
      return;
    case Fn::AddRecord:
    case Fn::InsertRecord: {
      int64_t at = count + 1;
      if (f == Fn::InsertRecord) {
        at = tables_.Current(t);
        if (at == 0) {
          TraceDb("insert", t, 0);
          // Compile leaves this label's line number alone: it is found by its name.
          LabelRef range = RecordOf<TableNavRec>(block).NoDataLabel;
          if (range.LabelRefName[0] != '\0' && range.LabelRefName[0] != ' ') {
            range.LabelRefLine = LineOfLabel(range.LabelRefName);
            if (range.LabelRefLine < 0) {
              Fault("Insert Record: no line bears the label " + Text(range.LabelRefName));
              return;
            }
          }
          Take(range);
          return;
        }
      }
      bool ok = false;
      const std::vector<Value> values = RecordValues(t, ok);
      if (!ok || !store.InsertAt(t.name, t.columns, at, values)) {
        Fail(head.ErrorLabel,
             FunctionNameOf(fn) + ": " + (ok ? store.LastError() : "a bound variable is missing"));
        return;
      }
      t.selection.reset();
      t.pos = at - 1;
      TraceDb(f == Fn::AddRecord ? "add" : "insert", t, at);
      return;
    }
    case Fn::GetFirstRecord:
    case Fn::GetLastRecord:
    case Fn::GetNextRecord:
    case Fn::GetPrevRecord: {
      const auto r = RecordOf<TableNavRec>(block);
      const int64_t n = tables_.SetSize(t);
      static const char* kOps[] = {"first", "last", "next", "prev"};
      const char* op = f == Fn::GetFirstRecord  ? kOps[0]
                       : f == Fn::GetLastRecord ? kOps[1]
                       : f == Fn::GetNextRecord ? kOps[2]
                                                : kOps[3];
      int64_t pos = f == Fn::GetFirstRecord  ? 0
                    : f == Fn::GetLastRecord ? n - 1
                    : f == Fn::GetNextRecord ? std::min(t.pos + 1, n)
                                             : std::max<int64_t>(t.pos - 1, -1);
      t.pos = pos;
      const int64_t recno = tables_.RecnoAt(t, pos);
      TraceDb(op, t, recno);
      if (recno == 0) {
        Take(r.NoDataLabel);
        return;
      }
      LoadRecord(t, recno);
      return;
    }
    case Fn::SelectRecords:
    case Fn::DeleteRecord:
    case Fn::UpdateRecord: {
      const auto r = RecordOf<TableWhereRec>(block);
      std::vector<SqlCondition> conditions;
      std::string why;
      if (!Conditions(t, r, conditions, why)) {
        Fail(r.ErrorLabel, FunctionNameOf(fn) + ": " + why);
        return;
      }
      std::vector<int64_t> recnos;
      if (!conditions.empty() || f == Fn::SelectRecords) {
        recnos = store.Select(t.name, t.columns, conditions);
      } else if (tables_.Current(t) != 0) {
        recnos.push_back(tables_.Current(t));
      }
      if (f == Fn::SelectRecords) {
        t.selection = recnos;
        t.pos = -1;
        trace_.Begin("db")
            .Field("op", "select")
            .Field("table", t.name)
            .Field("count", static_cast<int64_t>(recnos.size()))
            .End();
        return;
      }
      if (f == Fn::UpdateRecord) {
        if (recnos.empty() && conditions.empty()) {
          Fail(r.ErrorLabel, "Update Record: " + t.name + " has no current record");
          return;
        }
        bool ok = false;
        const std::vector<Value> values = RecordValues(t, ok);
        for (int64_t n : recnos) {
          if (!ok || !store.Update(t.name, t.columns, n, values)) {
            Fail(r.ErrorLabel,
                 "Update Record: " +
                     (ok ? store.LastError() : std::string("a bound variable is missing")));
            return;
          }
        }
        trace_.Begin("db")
            .Field("op", "update")
            .Field("table", t.name)
            .Field("count", static_cast<int64_t>(recnos.size()))
            .End();
        return;
      }
      const int64_t current = tables_.Current(t);
      // Delete from the back, so that the numbers still to delete keep their records.
      for (auto it = recnos.rbegin(); it != recnos.rend(); ++it) {
        if (!store.Delete(t.name, *it)) {
          Fail(r.ErrorLabel, "Delete Record: " + store.LastError());
          return;
        }
      }
      t.selection.reset();
      t.pos = conditions.empty() && current != 0 ? current - 2 : -1;
      trace_.Begin("db")
          .Field("op", "delete")
          .Field("table", t.name)
          .Field("count", static_cast<int64_t>(recnos.size()))
          .End();
      return;
    }
    case Fn::GetRecordNo:
    case Fn::GetNoOfRec: {
      const auto r = RecordOf<TableTargetRec>(block);
      const int64_t n = f == Fn::GetRecordNo ? tables_.Current(t) : count;
      TraceDb(f == Fn::GetRecordNo ? "recno" : "count", t, n);
      if (!Write(r.Target, Value::OfLong(static_cast<int32_t>(n)))) {
        Fail(r.ErrorLabel,
             FunctionNameOf(fn) + ": '" + VarText(r.Target) + "' is not a Long variable");
      }
      return;
    }
    case Fn::EmptyTable:
      if (!store.Empty(t.name)) {
        Fail(head.ErrorLabel, "Empty Table: " + store.LastError());
        return;
      }
      t.selection.reset();
      t.pos = -1;
      TraceDb("empty", t, 0);
      return;
    default:
      Fault("illegal function number" + Str(static_cast<int64_t>(fn)));
      return;
  }
}

}  // namespace kq::sim
