// Golden applications: the database functions.
#include "tests/sim/sim_app.h"

namespace kq::test {

namespace {

using A = App;

void Nav(A& a, const std::string& label, Fn fn, const std::string& table, const std::string& noData,
         const std::string& err = "") {
  a.Line<TableNavRec>(label, fn, [&](TableNavRec& r) {
    A::T(r.TableName, table);
    A::L(r.NoDataLabel, noData);
    A::L(r.ErrorLabel, err);
  });
}
void Plain(A& a, const std::string& label, Fn fn, const std::string& table,
           const std::string& err = "") {
  a.Line<TableErrorRec>(label, fn, [&](TableErrorRec& r) {
    A::T(r.TableName, table);
    A::L(r.ErrorLabel, err);
  });
}
void Where(A& a, const std::string& label, Fn fn, const std::string& table, int field, int op,
           const std::function<void(VarRef&)>& value, const std::string& err = "") {
  a.Line<TableWhereRec>(label, fn, [&](TableWhereRec& r) {
    A::T(r.TableName, table);
    if (field > 0) {
      r.WhereField[0] = field;
      r.WhereOperator[0] = op;
      value(r.WhereValue[0]);
    }
    A::L(r.ErrorLabel, err);
  });
}
void Target(A& a, const std::string& label, Fn fn, const std::string& table, const std::string& var,
            const std::string& err = "") {
  a.Line<TableTargetRec>(label, fn, [&](TableTargetRec& r) {
    A::T(r.TableName, table);
    a.V(r.Target, var);
    A::L(r.ErrorLabel, err);
  });
}
void Connect(A& a, const std::string& label, const std::string& table, const std::string& busy,
             const std::string& err) {
  a.Line<ConnectTableRec>(label, Fn::ConnectTable, [&](ConnectTableRec& r) {
    A::T(r.TableName, table);
    r.TimeoutSec = 2;
    A::L(r.BusyLabel, busy);
    A::L(r.ErrorLabel, err);
  });
}
template <typename V>
void Set(A& a, const std::string& var, V source) {
  a.Line<AssignRec>("", Fn::Assign, [&](AssignRec& r) {
    a.V(r.Target, var);
    source(r.Source);
  });
}

void Tables(A& a) {
  a.Long("ID").String("NAME").Double("AMT").Long("N").Long("RN");
  a.Table("CUST", {"ID", "NAME", "AMT"}).Table("LOG", {"ID"}).Table("SHARED", {"N"});
  auto none = [](VarRef&) {};
  Nav(a, "", Fn::GetFirstRecord, "CUST", "", "NOTCONN");
  Connect(a, "NOTCONN", "CUST", "", "");
  Target(a, "", Fn::GetNoOfRec, "CUST", "N");
  Nav(a, "", Fn::GetFirstRecord, "CUST", "EMPTY");
  Nav(a, "", Fn::GetNextRecord, "CUST", "EMPTY");
  Nav(a, "", Fn::GetLastRecord, "CUST", "EMPTY");
  Nav(a, "", Fn::GetNextRecord, "CUST", "PASTEND");
  Nav(a, "PASTEND", Fn::GetPrevRecord, "CUST", "");
  Target(a, "", Fn::GetRecordNo, "CUST", "RN");
  Where(a, "", Fn::SelectRecords, "CUST", 3, 5, [](VarRef& v) { A::C(v, 20); });
  Nav(a, "", Fn::GetFirstRecord, "CUST", "EMPTY");
  Nav(a, "", Fn::GetNextRecord, "CUST", "EMPTY");
  Nav(a, "", Fn::GetNextRecord, "CUST", "SELEND");
  Nav(a, "SELEND", Fn::GetPrevRecord, "CUST", "");
  Nav(a, "", Fn::GetPrevRecord, "CUST", "TOP");
  Set(a, "AMT", [](VarRef& v) { A::D(v, "99.5"); });
  Nav(a, "TOP", Fn::GetFirstRecord, "CUST", "");
  Set(a, "AMT", [](VarRef& v) { A::D(v, "99.5"); });
  Where(a, "", Fn::UpdateRecord, "CUST", 0, 0, none);
  Set(a, "ID", [](VarRef& v) { A::C(v, 4); });
  Set(a, "NAME", [](VarRef& v) { A::S(v, "Dee"); });
  Plain(a, "", Fn::AddRecord, "CUST");
  Set(a, "NAME", [](VarRef& v) { A::S(v, "Eve"); });
  Nav(a, "", Fn::InsertRecord, "CUST", "RANGE");
  Where(a, "", Fn::UpdateRecord, "CUST", 2, 0, [](VarRef& v) { A::S(v, "Bob"); });
  Where(a, "", Fn::DeleteRecord, "CUST", 1, 0, [](VarRef& v) { A::C(v, 1); });
  Target(a, "", Fn::GetNoOfRec, "CUST", "N");
  Nav(a, "", Fn::GetFirstRecord, "CUST", "");
  Where(a, "", Fn::DeleteRecord, "CUST", 0, 0, none);
  Nav(a, "", Fn::GetNextRecord, "CUST", "EMPTY");
  Where(a, "", Fn::SelectRecords, "CUST", 2, 0, [](VarRef& v) { A::S(v, "nobody"); });
  Nav(a, "", Fn::GetFirstRecord, "CUST", "NONE");
  Plain(a, "NONE", Fn::EmptyTable, "CUST");
  Target(a, "", Fn::GetNoOfRec, "CUST", "N");
  Nav(a, "", Fn::InsertRecord, "CUST", "RANGE");
  Nav(a, "RANGE", Fn::GetPrevRecord, "CUST", "NOPREV");
  Nav(a, "NOPREV", Fn::GetLastRecord, "CUST", "EMPTY");
  Plain(a, "EMPTY", Fn::DisconnectTable, "CUST");
  // Every function on a table that is not connected takes its error label.
  Plain(a, "", Fn::DisconnectTable, "LOG", "E1");
  Plain(a, "E1", Fn::AddRecord, "LOG", "E2");
  Where(a, "E2", Fn::DeleteRecord, "LOG", 0, 0, none, "E3");
  Nav(a, "E3", Fn::InsertRecord, "LOG", "", "E4");
  Nav(a, "E4", Fn::GetLastRecord, "LOG", "", "E5");
  Nav(a, "E5", Fn::GetNextRecord, "LOG", "", "E6");
  Nav(a, "E6", Fn::GetPrevRecord, "LOG", "", "E7");
  Where(a, "E7", Fn::SelectRecords, "LOG", 0, 0, none, "E8");
  Where(a, "E8", Fn::UpdateRecord, "LOG", 0, 0, none, "E9");
  Target(a, "E9", Fn::GetRecordNo, "LOG", "RN", "E10");
  Target(a, "E10", Fn::GetNoOfRec, "LOG", "N", "E11");
  Plain(a, "E11", Fn::EmptyTable, "LOG", "E12");
  // A condition whose value does not fit the field's type.
  Connect(a, "E12", "LOG", "", "");
  Where(
      a, "", Fn::SelectRecords, "LOG", 1, 0, [](VarRef& v) { A::S(v, "abc"); }, "E13");
  Connect(a, "E13", "SHARED", "BUSY", "");
  Connect(a, "BUSY", "SHARED", "", "E14");
  a.Line<HookRec>("E14", Fn::OnOffHook, [](HookRec& r) { r.HookAction = 2; });
}

}  // namespace

void TableApps(std::map<std::string, AppBuilder>& apps) {
  apps["tables"] = Tables;
}

}  // namespace kq::test
