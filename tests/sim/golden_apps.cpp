// The applications of the golden cases under tests/sim/golden, one builder a folder.
#include "tests/sim/sim_app.h"

namespace kq::test {

namespace {

using A = App;

void Shutdown(A& a, const std::string& label) {
  a.Line<HookRec>(label, Fn::OnOffHook, [](HookRec& r) { r.HookAction = 2; });
}
void Say(A& a, const std::string& label, const std::vector<std::string>& files,
         const std::string& hangup = "", const std::string& error = "") {
  a.Line<VoiceRec>(label, Fn::Voice, [&](VoiceRec& r) {
    A::T(r.VoicePath, "VOICE");
    for (size_t i = 0; i < files.size(); ++i) A::T(r.VoiceFile[i], files[i]);
    A::L(r.HangupLabel, hangup);
    A::L(r.ErrorLabel, error);
  });
}
void Goto(A& a, const std::string& label, const std::string& target) {
  a.Line<GotoRec>(label, Fn::Goto, [&](GotoRec& r) { A::L(r.Target, target); });
}

// Answer, a menu by keys, a table lookup, a recording, a call out, hang up.
void Complete(A& a) {
  a.String("CALLER").String("ACCT").String("NAME").Double("BALANCE").String("MSGFILE");
  a.Path(kPathVoice, "VOICE", "voice/").Path(kPathMessage, "MSG", "msg/");
  a.Path(kPathNumber, "DIGITS", "digits/");
  a.Table("ACCOUNTS", {"ACCT", "NAME", "BALANCE"});
  a.Line<WaitForCallRec>("START", Fn::WaitForCall, [&](WaitForCallRec& r) {
    r.Rings = 2;
    r.GetCallerId = 1;
    a.V(r.CallerIdVar, "CALLER");
  });
  Say(a, "", {"welcome.vox"}, "BYE", "BYE");
  Say(a, "MENU", {"menu.vox"}, "BYE");
  a.Line<WaitForKeyRec>("", Fn::WaitForKey, [](WaitForKeyRec& r) {
    A::T(r.KeyLabel[1], "LOOKUP");
    A::T(r.KeyLabel[2], "RECORD");
    A::T(r.KeyLabel[3], "TRANSFER");
    A::T(r.KeyLabel[10], "BYE");
    A::T(r.KeyLabel[16], "BYE");
    A::T(r.KeyLabel[17], "MENU");
    A::T(r.KeyLabel[18], "MENU");
    r.TimeoutSec = 5;
  });
  a.Line<GetKeysRec>("LOOKUP", Fn::GetKeys, [&](GetKeysRec& r) {
    a.V(r.Target, "ACCT");
    r.KeyCount = 0;
    r.TermKey = 12;  // "#"
    A::L(r.TimeoutLabel, "MENU");
    A::L(r.HangupLabel, "BYE");
    A::L(r.ErrorLabel, "MENU");
  });
  a.Line<ConnectTableRec>("", Fn::ConnectTable, [](ConnectTableRec& r) {
    A::T(r.TableName, "ACCOUNTS");
    A::L(r.BusyLabel, "BYE");
    A::L(r.ErrorLabel, "BYE");
  });
  a.Line<TableWhereRec>("", Fn::SelectRecords, [&](TableWhereRec& r) {
    A::T(r.TableName, "ACCOUNTS");
    r.WhereField[0] = 1;
    a.V(r.WhereValue[0], "ACCT");
  });
  a.Line<TableNavRec>("", Fn::GetFirstRecord, [](TableNavRec& r) {
    A::T(r.TableName, "ACCOUNTS");
    A::L(r.NoDataLabel, "NOTFOUND");
  });
  Say(a, "", {"balance.vox"}, "BYE");
  a.Line<SayNumberRec>("", Fn::SayNumber, [&](SayNumberRec& r) {
    a.V(r.Number, "BALANCE");
    A::T(r.SayPath[2], "DIGITS");
    A::L(r.HangupLabel, "BYE");
  });
  a.Line<TableErrorRec>("", Fn::DisconnectTable,
                        [](TableErrorRec& r) { A::T(r.TableName, "ACCOUNTS"); });
  Goto(a, "", "MENU");
  Say(a, "NOTFOUND", {"unknown.vox"}, "BYE");
  Goto(a, "", "MENU");
  a.Line<CalculateRec>("RECORD", Fn::Calculate, [&](CalculateRec& r) {
    a.V(r.Target, "MSGFILE");
    a.V(r.Left, "CALLER");
    A::S(r.Right, ".wav");
    r.Operator = 5;
  });
  a.Line<RecordSoundRec>("", Fn::RecordSound, [&](RecordSoundRec& r) {
    A::T(r.MessagePath, "MSG");
    a.V(r.FileName, "MSGFILE");
    r.MaxRecordSec = 30;
    r.SilenceSec = 3;
    A::L(r.SilenceLabel, "MENU");
    A::L(r.HangupLabel, "BYE");
    A::L(r.ErrorLabel, "BYE");
  });
  Goto(a, "", "MENU");
  a.Line<CallOutRec>("TRANSFER", Fn::CallOut, [](CallOutRec& r) {
    A::C(r.Number, 5550100);
    A::T(r.OutcomeLabel[0], "MENU");
    A::T(r.OutcomeLabel[1], "CONNECTED");
    A::T(r.OutcomeLabel[2], "MENU");
    A::T(r.OutcomeLabel[4], "MENU");
    r.Rings = 4;
  });
  Say(a, "CONNECTED", {"connect.vox"});
  a.Line<HookRec>("BYE", Fn::OnOffHook, [](HookRec& r) { r.HookAction = 0; });
  Goto(a, "", "START");
}

// Condition, Gosub and Return, Goto, Delay, Random, Remark.
void Flow(A& a) {
  a.Long("N").Long("R");
  a.Line<AssignRec>("", Fn::Assign, [&](AssignRec& r) {
    a.V(r.Target, "N");
    A::C(r.Source, 3);
  });
  a.Line<ConditionRec>("LOOP", Fn::Condition, [&](ConditionRec& r) {
    a.V(r.Left, "N");
    A::C(r.Right, 0);
    r.Operator = 3;  // >
    A::T(r.ThenLabel, "BODY");
    A::T(r.ElseLabel, "DONE");
  });
  a.Line<GosubRec>("BODY", Fn::Gosub, [](GosubRec& r) { A::L(r.Target, "SUB"); });
  a.Line<CalculateRec>("", Fn::Calculate, [&](CalculateRec& r) {
    a.V(r.Target, "N");
    a.V(r.Left, "N");
    A::C(r.Right, 1);
    r.Operator = 1;
  });
  Goto(a, "", "LOOP");
  a.Line<ConditionRec>("DONE", Fn::Condition, [&](ConditionRec& r) {
    a.V(r.Left, "N");
    A::C(r.Right, 0);
    A::T(r.ThenLabel, "NOELSE");
  });
  a.Line<ConditionRec>("NOELSE", Fn::Condition, [&](ConditionRec& r) {
    a.V(r.Left, "N");
    A::C(r.Right, 1);
    A::T(r.ThenLabel, "DONE");
  });
  a.Line<DelayRec>("", Fn::Delay, [](DelayRec& r) { r.DelayMs = 250; });
  a.Line<RandomRec>("", Fn::Random, [&](RandomRec& r) {
    a.V(r.Target, "R");
    r.Lower = 1;
    r.Upper = 6;
  });
  a.Line<RemarkRec>("", Fn::Remark,
                    [](RemarkRec& r) { A::T(r.RemarkText, "the end of the flow"); });
  a.Line<ReturnRec>("", Fn::Return, [](ReturnRec& r) { A::L(r.ErrorLabel, "RETERR"); });
  a.Line<GosubRec>("RETERR", Fn::Gosub, [](GosubRec& r) {
    A::L(r.Target, "DEEP");
    A::L(r.ErrorLabel, "TOODEEP");
  });
  a.Line<GosubRec>("DEEP", Fn::Gosub, [](GosubRec& r) {
    A::L(r.Target, "DEEP");
    A::L(r.ErrorLabel, "TOODEEP");
  });
  Shutdown(a, "TOODEEP");
  a.Line<RandomRec>("SUB", Fn::Random, [&](RandomRec& r) {
    a.V(r.Target, "R");
    r.Lower = 1;
    r.Upper = 100;
  });
  a.Line<ReturnRec>("", Fn::Return, [](ReturnRec&) {});
}

// A Return without Gosub and without an error label ends the run with a fault.
void Fault(A& a) {
  a.Line<RemarkRec>("", Fn::Remark, [](RemarkRec& r) { A::T(r.RemarkText, "no Gosub before"); });
  a.Line<ReturnRec>("", Fn::Return, [](ReturnRec&) {});
}

// A loop that never ends meets the step limit.
void Steps(A& a) {
  Goto(a, "AGAIN", "AGAIN");
}

}  // namespace

void DataApps(std::map<std::string, AppBuilder>& apps);
void CallApps(std::map<std::string, AppBuilder>& apps);
void TableApps(std::map<std::string, AppBuilder>& apps);

const std::map<std::string, AppBuilder>& GoldenApps() {
  static const std::map<std::string, AppBuilder> apps = [] {
    std::map<std::string, AppBuilder> m{
        {"complete", Complete}, {"flow", Flow}, {"fault", Fault}, {"steps", Steps}};
    DataApps(m);
    CallApps(m);
    TableApps(m);
    return m;
  }();
  return apps;
}

}  // namespace kq::test
