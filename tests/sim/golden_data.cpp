// Golden applications: the data functions and the file and system functions.
#include "tests/sim/sim_app.h"

namespace kq::test {

namespace {

using A = App;

void Shutdown(A& a, const std::string& label) {
  a.Line<HookRec>(label, Fn::OnOffHook, [](HookRec& r) { r.HookAction = 2; });
}

template <typename R>
void Format(A& a, Fn fn, const std::string& var, int format) {
  a.Line<R>("", fn, [&](R& r) {
    r.Format = format;
    a.V(r.Target, var);
  });
}

void Data(A& a) {
  a.Long("A").Long("B").Double("X").String("S").String("T").Long("D").String("DS");
  a.Long("CH").Long("LEN").Long("POS");
  a.Path(kPathVoice, "VOICE", "voice/").Path(kPathVoice, "VOICE2", "other/");
  a.Line<AssignRec>("", Fn::Assign, [&](AssignRec& r) {
    a.V(r.Target, "A");
    A::C(r.Source, 7);
  });
  a.Line<AssignRec>("", Fn::Assign, [&](AssignRec& r) {
    a.V(r.Target, "S");
    A::S(r.Source, "  Hello World  ");
  });
  a.Line<AssignRec>("", Fn::Assign, [&](AssignRec& r) {
    a.V(r.Target, "A");
    a.V(r.Source, "S");
    A::L(r.ErrorLabel, "CONVERR");
  });
  a.Line<AssignPathRec>("CONVERR", Fn::AssignPath, [](AssignPathRec& r) {
    r.PathType = kPathVoice;
    A::T(r.TargetPath, "VOICE2");
    A::T(r.SourcePath, "VOICE");
  });
  auto calc = [&](const std::string& target, auto left, auto right, int op,
                  const std::string& err) {
    a.Line<CalculateRec>("", Fn::Calculate, [&](CalculateRec& r) {
      a.V(r.Target, target);
      left(r.Left);
      right(r.Right);
      r.Operator = op;
      A::L(r.ErrorLabel, err);
    });
  };
  auto var = [&](const std::string& n) { return [&a, n](VarRef& v) { a.V(v, n); }; };
  auto num = [](int32_t n) { return [n](VarRef& v) { A::C(v, n); }; };
  calc("B", var("A"), num(6), 2, "");
  calc("X", var("B"), num(8), 3, "");
  calc("X", var("X"), num(2), 4, "");
  calc("T", var("S"), var("B"), 5, "");
  calc("B", var("A"), num(0), 3, "DIVERR");
  a.Line<RemarkRec>("DIVERR", Fn::Remark, [](RemarkRec& r) { A::T(r.RemarkText, "dates"); });
  Format<FormatTargetRec>(a, Fn::GetDate, "DS", 0);
  Format<FormatTargetRec>(a, Fn::GetDate, "D", 6);
  Format<FormatTargetRec>(a, Fn::GetTime, "DS", 0);
  Format<FormatTargetRec>(a, Fn::GetTime, "D", 2);
  Format<FormatTargetRec>(a, Fn::GetDayOfWeek, "D", 0);
  Format<FormatTargetRec>(a, Fn::GetDayOfWeek, "DS", 1);
  a.Line<TargetRec>("", Fn::GetChannelNo, [&](TargetRec& r) { a.V(r.Target, "CH"); });
  for (int action = 0; action < 3; ++action) {
    a.Line<TrimStringRec>("", Fn::TrimString, [&](TrimStringRec& r) {
      r.TrimAction = action;
      a.V(r.Target, "T");
      a.V(r.Source, "S");
    });
  }
  a.Line<LenStringRec>("", Fn::LenString, [&](LenStringRec& r) {
    a.V(r.Target, "LEN");
    a.V(r.Source, "S");
  });
  a.Line<StringOpRec>("", Fn::RightString, [&](StringOpRec& r) {
    a.V(r.Target, "T");
    a.V(r.Source, "S");
    A::C(r.Operand, 7);
  });
  a.Line<StringOpRec>("", Fn::LeftString, [&](StringOpRec& r) {
    a.V(r.Target, "T");
    a.V(r.Source, "T");
    A::C(r.Operand, 5);
  });
  a.Line<StringOpRec>("", Fn::InString, [&](StringOpRec& r) {
    a.V(r.Target, "POS");
    a.V(r.Source, "S");
    A::S(r.Operand, "World");
  });
  a.Line<StringOpRec>("", Fn::InString, [&](StringOpRec& r) {
    a.V(r.Target, "POS");
    a.V(r.Source, "S");
    A::S(r.Operand, "world");
  });
  Shutdown(a, "");
}

void Files(A& a) {
  a.String("FN").Long("X");
  a.Path(kPathExport, "EXP", "export/").Path(kPathGeneral, "GEN", "C:\\BIN\\");
  a.Table("T", {"X"});
  auto checkPath = [&](const std::string& label, const std::string& no, const std::string& yes) {
    a.Line<CheckPathRec>(label, Fn::CheckPath, [&](CheckPathRec& r) {
      r.PathType = kPathExport;
      A::T(r.PathVar, "EXP");
      A::T(r.CheckLabel[0], no);
      A::T(r.CheckLabel[1], yes);
    });
  };
  auto file = [&](Fn fn, const std::string& label, const std::string& name, const std::string& no,
                  const std::string& yes) {
    a.Line<CheckFileRec>(label, fn, [&](CheckFileRec& r) {
      r.PathType = kPathExport;
      A::T(r.PathVar, "EXP");
      A::S(r.FileVar, name);
      A::T(r.CheckLabel[0], no);
      A::T(r.CheckLabel[1], yes);
    });
  };
  auto exportTo = [&](const std::string& label, const std::string& name, const std::string& err) {
    a.Line<VarExportRec>(label, Fn::VariableExport, [&](VarExportRec& r) {
      a.V(r.ExportVar[0], "X");
      a.V(r.ExportVar[1], "FN");
      r.FieldSep = 1;
      r.TextDelim = 0;
      A::T(r.ExportPath, "EXP");
      A::S(r.ExportFile, name);
      A::L(r.ErrorLabel, err);
    });
  };
  checkPath("", "NOPATH", "");
  a.Line<AssignRec>("NOPATH", Fn::Assign, [&](AssignRec& r) {
    a.V(r.Target, "FN");
    A::S(r.Source, "say \"hi\"");
  });
  exportTo("", "calls.csv", "");
  exportTo("", "calls.csv", "");
  checkPath("", "", "HASPATH");
  file(Fn::CheckFile, "HASPATH", "calls.csv", "", "YES");
  file(Fn::CheckFile, "YES", "none.csv", "NOFILE", "");
  file(Fn::DeleteFile, "NOFILE", "none.csv", "NOTDEL", "");
  file(Fn::DeleteFile, "NOTDEL", "calls.csv", "", "DELETED");
  exportTo("DELETED", "../escape.csv", "EXPERR");
  a.Line<RunRec>("EXPERR", Fn::Run, [&](RunRec& r) {
    A::T(r.RunPath, "GEN");
    A::S(r.FileVar, "report.exe");
    A::S(r.Parameters, "/all");
    r.WaitForTermination = 1;
  });
  a.Line<PrototypeRec>("", Fn::Prototype, [&](PrototypeRec& r) {
    A::C(r.ProtoFunction, 7);
    for (auto& v : r.ProtoVar) a.V(v, "X");
    r.PathType = kPathExport;
    for (auto& p : r.ProtoPath) A::T(p, "EXP");
    A::T(r.TableName, "T");
  });
  Shutdown(a, "");
}

}  // namespace

void DataApps(std::map<std::string, AppBuilder>& apps) {
  apps["data"] = Data;
  apps["files"] = Files;
}

}  // namespace kq::test
