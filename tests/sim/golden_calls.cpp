// Golden applications: call control, prompts, keys and recording.
#include "tests/sim/sim_app.h"

namespace kq::test {

namespace {

using A = App;

void WaitCall(A& a, const std::string& label, int rings = 1) {
  a.Line<WaitForCallRec>(label, Fn::WaitForCall, [&](WaitForCallRec& r) { r.Rings = rings; });
}
void Hook(A& a, const std::string& label, int action) {
  a.Line<HookRec>(label, Fn::OnOffHook, [&](HookRec& r) { r.HookAction = action; });
}
void Say(A& a, const std::string& label, const std::vector<std::string>& files,
         const std::string& hangup = "", const std::string& error = "", int disable = 0) {
  a.Line<VoiceRec>(label, Fn::Voice, [&](VoiceRec& r) {
    A::T(r.VoicePath, "VOICE");
    for (size_t i = 0; i < files.size(); ++i) A::T(r.VoiceFile[i], files[i]);
    A::L(r.HangupLabel, hangup);
    A::L(r.ErrorLabel, error);
    r.DisableHangup = disable;
  });
}

void Calls(A& a) {
  a.String("CALLER").Long("CALLED").String("NUM");
  a.Line<WaitForCallRec>("START", Fn::WaitForCall, [&](WaitForCallRec& r) {
    r.Rings = 2;
    r.DailyGoto = 1;
    r.DailyHour = 10;
    r.DailyMinute = 0;
    A::L(r.DailyLabel, "DAILY");
    r.GetCallerId = 1;
    a.V(r.CallerIdVar, "CALLER");
    r.GetCalledId = 1;
    a.V(r.CalledIdVar, "CALLED");
  });
  a.Line<GotoRec>("", Fn::Goto, [](GotoRec& r) { A::L(r.Target, "OUT0"); });
  a.Line<GotoRec>("DAILY", Fn::Goto, [](GotoRec& r) { A::L(r.Target, "START"); });
  // One Call Out for each outcome; each outcome's label leads to the next.
  for (int i = 0; i < 7; ++i) {
    a.Line<CallOutRec>("OUT" + std::to_string(i), Fn::CallOut, [&](CallOutRec& r) {
      A::S(r.Number, i == 6 ? "55x" : "5550100");
      for (int k = 0; k < 7; ++k) A::T(r.OutcomeLabel[k], "OUT" + std::to_string(i + 1));
      r.Rings = 3;
      r.WaitForDialTone = 1;
    });
  }
  a.Line<CallOutRec>("OUT7", Fn::CallOut, [&](CallOutRec& r) {
    A::C(r.Number, 5550199);
    A::T(r.OutcomeLabel[1], "ANSWERED");
  });
  a.Line<RemarkRec>("", Fn::Remark, [](RemarkRec& r) { A::T(r.RemarkText, "not reached"); });
  a.Line<DialNumberRec>("ANSWERED", Fn::DialNumber, [&](DialNumberRec& r) {
    A::S(r.Number, "12A#");
    r.WaitForDialTone = 1;
    A::L(r.NoDialToneLabel, "NOTONE");
  });
  a.Line<DialNumberRec>("NOTONE", Fn::DialNumber, [&](DialNumberRec& r) {
    A::S(r.Number, "100");
    A::L(r.ErrorLabel, "LINEERR");
  });
  a.Line<DialNumberRec>("LINEERR", Fn::DialNumber, [&](DialNumberRec& r) {
    A::S(r.Number, "1-2");
    A::L(r.ErrorLabel, "BADNUM");
  });
  a.Line<DialNumberRec>("BADNUM", Fn::DialNumber, [&](DialNumberRec& r) { A::C(r.Number, 200); });
  a.Line<RSwitchRec>("", Fn::RSwitch, [](RSwitchRec& r) { r.InterruptMs = 150; });
  a.Line<CTBusRec>("", Fn::CTBusConnect, [&](CTBusRec& r) {
    for (int i = 0; i < 5; ++i) A::C(r.BusVar[i], i + 1);
    r.BusType = 1;
    A::L(r.ErrorLabel, "BUSERR");
  });
  a.Line<CTBusRec>("", Fn::CTBusConnect, [&](CTBusRec& r) {
    for (int i = 0; i < 5; ++i) A::C(r.BusVar[i], i);
    a.V(r.BusVar[2], "NUM");
    A::L(r.ErrorLabel, "BUSERR");
  });
  Hook(a, "BUSERR", 1);
  Hook(a, "", 0);
  Hook(a, "", 2);
}

void Prompts(A& a) {
  a.Double("AMT").String("FN").Long("N");
  a.Path(kPathVoice, "VOICE", "voice/").Path(kPathVoice, "UNITS", "units/");
  a.Path(kPathMessage, "MSG", "msg/").Path(kPathNumber, "DIGITS", "digits/");
  WaitCall(a, "");
  Say(a, "", {"hello.vox", "MENU.VOX"});
  Say(a, "", {"hello.vox", "nosuch.vox"}, "", "MISSING");
  a.Line<AssignRec>("MISSING", Fn::Assign, [&](AssignRec& r) {
    a.V(r.Target, "FN");
    A::S(r.Source, "note.vox");
  });
  a.Line<SayFileRec>("", Fn::SayFile, [&](SayFileRec& r) {
    A::T(r.MessagePath, "MSG");
    a.V(r.FileName, "FN");
  });
  a.Line<SayFileRec>("", Fn::SayFile, [&](SayFileRec& r) {
    A::T(r.MessagePath, "MSG");
    A::S(r.FileName, "absent.vox");
    A::L(r.ErrorLabel, "NOMSG");
  });
  a.Line<AssignRec>("NOMSG", Fn::Assign, [&](AssignRec& r) {
    a.V(r.Target, "AMT");
    A::D(r.Source, "-12.5");
  });
  a.Line<SayNumberRec>("", Fn::SayNumber, [&](SayNumberRec& r) {
    a.V(r.Number, "AMT");
    r.Layout = 0;
    r.PlayFlag[0] = 1;
    r.PlayFlag[1] = 1;
    A::T(r.SayPath[0], "UNITS");
    A::T(r.SayPath[1], "UNITS");
    A::T(r.SayPath[2], "DIGITS");
    A::T(r.SayVoiceFile[0], "comma.vox");
    A::T(r.SayVoiceFile[1], "kroner.vox");
  });
  for (int layout = 0; layout < 3; ++layout) {
    a.Line<SayNumberRec>("", Fn::SayNumber, [&](SayNumberRec& r) {
      a.V(r.Number, "AMT");
      r.Layout = layout;
      A::T(r.SayPath[2], "DIGITS");
    });
  }
  a.Line<SayNumberRec>("", Fn::SayNumber, [&](SayNumberRec& r) {
    a.V(r.Number, "N");
    A::T(r.SayPath[2], "DIGITS");
  });
  Say(a, "", {"long.vox"}, "GONE");
  a.Line<RemarkRec>("", Fn::Remark, [](RemarkRec& r) { A::T(r.RemarkText, "not reached"); });
  Hook(a, "GONE", 2);
}

// The caller hangs up during a message: each prompt's hangup label, then no label.
void SayHangup(A& a) {
  a.Long("N");
  a.Path(kPathVoice, "VOICE", "voice/").Path(kPathMessage, "MSG", "msg/");
  a.Path(kPathNumber, "DIGITS", "digits/");
  WaitCall(a, "");
  a.Line<SayFileRec>("", Fn::SayFile, [&](SayFileRec& r) {
    A::T(r.MessagePath, "MSG");
    A::S(r.FileName, "note.vox");
    A::L(r.HangupLabel, "H1");
  });
  a.Line<SayNumberRec>("H1", Fn::SayNumber, [&](SayNumberRec& r) {
    a.V(r.Number, "N");
    A::T(r.SayPath[2], "DIGITS");
    A::L(r.HangupLabel, "H2");
  });
  Say(a, "H2", {"hello.vox"}, "", "", 1);
  Say(a, "", {"hello.vox"});
}

void GetKeys(A& a) {
  a.String("K").Long("KL");
  WaitCall(a, "");
  auto keys = [&](const std::string& label, const std::string& var, int count, int term,
                  const std::string& timeout, const std::string& hangup, const std::string& err) {
    a.Line<GetKeysRec>(label, Fn::GetKeys, [&](GetKeysRec& r) {
      a.V(r.Target, var);
      r.KeyCount = count;
      r.TermKey = term;
      r.TimeoutSec = 5;
      A::L(r.TimeoutLabel, timeout);
      A::L(r.HangupLabel, hangup);
      A::L(r.ErrorLabel, err);
    });
  };
  keys("", "K", 3, 0, "", "", "");             // two keys
  keys("", "KL", 0, 12, "", "", "");           // up to "#"
  keys("", "KL", 2, 0, "", "", "KEYERR");      // "*" is no number
  keys("KEYERR", "K", 4, 0, "", "", "");       // "7", then the time runs out
  keys("", "K", 4, 0, "TIMEOUT", "", "");      // nothing at all
  keys("TIMEOUT", "K", 0, 0, "", "GONE", "");  // the caller hangs up
  a.Line<RemarkRec>("", Fn::Remark, [](RemarkRec& r) { A::T(r.RemarkText, "not reached"); });
  keys("GONE", "K", 0, 0, "", "", "");  // no hangup label: the run ends
}

void WaitForKey(A& a) {
  WaitCall(a, "");
  auto menu = [&](const std::string& label, int timeout) {
    a.Line<WaitForKeyRec>(label, Fn::WaitForKey, [&](WaitForKeyRec& r) {
      A::T(r.KeyLabel[1], "ONE");
      A::T(r.KeyLabel[10], "HASH");
      A::T(r.KeyLabel[11], "STAR");
      A::T(r.KeyLabel[16], "GONE");
      A::T(r.KeyLabel[17], "UNDEF");
      A::T(r.KeyLabel[18], "TMO");
      r.TimeoutSec = timeout;
    });
  };
  menu("", 3);
  menu("ONE", 3);
  menu("UNDEF", 3);
  menu("HASH", 3);
  menu("STAR", 3);
  menu("TMO", 60);
  Hook(a, "GONE", 0);
}

void Record(A& a) {
  a.String("FN").Long("CNT");
  a.Path(kPathMessage, "MSG", "inbox/");
  WaitCall(a, "");
  a.Line<AssignRec>("", Fn::Assign, [&](AssignRec& r) {
    a.V(r.Target, "CNT");
    A::C(r.Source, 5);
  });
  a.Line<FormatTargetRec>("", Fn::SoundFileCount, [&](FormatTargetRec& r) {
    r.Format = 1;
    a.V(r.Target, "CNT");
  });
  auto rec = [&](const std::string& label, const std::string& file, int counter, int append,
                 const std::string& err) {
    a.Line<RecordSoundRec>(label, Fn::RecordSound, [&](RecordSoundRec& r) {
      A::T(r.MessagePath, "MSG");
      A::S(r.FileName, file);
      r.CounterActive = counter;
      r.BeepBefore = counter;
      r.Append = append;
      r.MaxRecordSec = 1;
      r.SilenceSec = 2;
      A::L(r.SilenceLabel, "SILENT");
      A::L(r.ErrorLabel, err);
    });
  };
  rec("", "msg.wav", 1, 0, "");
  a.Line<FormatTargetRec>("", Fn::SoundFileCount, [&](FormatTargetRec& r) {
    r.Format = 0;
    a.V(r.Target, "CNT");
  });
  a.Line<SayFileRec>("", Fn::SayFile, [&](SayFileRec& r) {
    A::T(r.MessagePath, "MSG");
    A::S(r.FileName, "msg0005.wav");
  });
  rec("", "note.vox", 0, 0, "");
  rec("", "note.vox", 0, 1, "");
  rec("", "note.txt", 0, 0, "BADNAME");
  Hook(a, "BADNAME", 2);
  Hook(a, "SILENT", 2);
}

// The caller says nothing: silence, then the caller hangs up while it is recorded.
void RecordSilence(A& a) {
  a.Path(kPathMessage, "MSG", "inbox/");
  WaitCall(a, "");
  auto rec = [&](const std::string& label, const std::string& hangup) {
    a.Line<RecordSoundRec>(label, Fn::RecordSound, [&](RecordSoundRec& r) {
      A::T(r.MessagePath, "MSG");
      A::S(r.FileName, "quiet.vox");
      r.SilenceSec = 3;
      A::L(r.SilenceLabel, "SILENT");
      A::L(r.HangupLabel, hangup);
    });
  };
  rec("", "");
  rec("SILENT", "GONE");
  Hook(a, "GONE", 2);
}

void NoCall(A& a) {
  WaitCall(a, "", 2);
}

}  // namespace

void CallApps(std::map<std::string, AppBuilder>& apps) {
  apps["calls"] = Calls;
  apps["prompts"] = Prompts;
  apps["say_hangup"] = SayHangup;
  apps["getkeys"] = GetKeys;
  apps["waitforkey"] = WaitForKey;
  apps["record"] = Record;
  apps["record_silence"] = RecordSilence;
  apps["nocall"] = NoCall;
}

}  // namespace kq::test
