// The engine's parts on their own: values, the scripted line's clock, the trace writer,
// the sandbox's mapping, and a line that makes the engine wait.
#include <gtest/gtest.h>

#include <nlohmann/json.hpp>
#include <sstream>

#include "document/state.h"
#include "editor/commands.h"
#include "sim/call_script.h"
#include "sim/engine.h"
#include "sim/keypad_line.h"
#include "sim/sandbox.h"
#include "sim/scripted_line.h"
#include "sim/trace.h"
#include "sim/value.h"
#include "tests/sim/sim_app.h"

namespace kq::sim {
namespace {

TEST(SimValue, ConvertsOnlyWhatFits) {
  EXPECT_EQ(Convert(Value::OfString(" 42 "), VType::Long)->l, 42);
  EXPECT_FALSE(Convert(Value::OfString("1.5"), VType::Long));
  EXPECT_FALSE(Convert(Value::OfString("12abc"), VType::Double));
  EXPECT_FALSE(Convert(Value::OfString(""), VType::Long));
  EXPECT_FALSE(Convert(Value::OfDouble(2147483648.0), VType::Long));
  EXPECT_EQ(Convert(Value::OfDouble(-2147483648.0), VType::Long)->l, INT32_MIN);
  EXPECT_EQ(Convert(Value::OfDouble(0.1), VType::String)->s, "0.1");
  EXPECT_EQ(Convert(Value::OfLong(-7), VType::String)->s, "-7");
  EXPECT_EQ(Value::OfString(std::string(300, 'x')).s.size(), kMaxString);
}

TEST(SimScriptedLine, KeysComeAtTheirTimesAndTimeoutsMoveTheClock) {
  CallScript s;
  s.ringAt = 1000;
  s.rings = 3;
  s.keys = {{'1', -1}, {'2', 20000}, {'3', 21000}};
  s.hangupAt = 30000;
  ScriptedLine line(s, {});
  CallInfo info;
  EXPECT_EQ(line.WaitForCall(2, -1, info), LineStatus::Done);
  EXPECT_EQ(line.Now(), 1000 + 2 * ScriptedLine::kRingMs);
  EXPECT_EQ(line.NextKey(5000, true).key, '1');  // at once
  EXPECT_EQ(line.Now(), 13000);
  KeyResult r = line.NextKey(5000, true);  // "2" comes after the timeout
  EXPECT_EQ(r.status, LineStatus::Timeout);
  EXPECT_EQ(line.Now(), 18000);
  EXPECT_EQ(line.NextKey(5000, true).key, '2');
  EXPECT_EQ(line.Now(), 20000);
  EXPECT_EQ(line.Play(5000, false), LineStatus::Done);  // "3" waits in the buffer
  EXPECT_EQ(line.NextKey(0, true).key, '3');
  EXPECT_EQ(line.Play(10000, true), LineStatus::Hangup);
  EXPECT_EQ(line.Now(), 30000);
  EXPECT_TRUE(line.CallerHungUp());
  EXPECT_EQ(line.WaitForCall(2, -1, info), LineStatus::NoMoreCalls);
}

TEST(SimScriptedLine, MissedCallsDailyTimesAndHangupWhenKeysRunOut) {
  CallScript s;
  s.rings = 1;  // gives up after one ring
  ScriptedLine missed(s, {});
  CallInfo info;
  EXPECT_EQ(missed.WaitForCall(2, -1, info), LineStatus::NoMoreCalls);

  CallScript d;
  d.ringAt = 50000;
  ScriptedLine daily(d, {});
  EXPECT_EQ(daily.WaitForCall(1, 40000, info), LineStatus::Daily);
  EXPECT_EQ(daily.Now(), 40000);
  EXPECT_EQ(daily.WaitForCall(1, -1, info), LineStatus::Done);

  CallScript k;
  k.keys = {{'5', -1}};
  k.hangupWhenDone = true;
  ScriptedLine keys(k, {});
  keys.WaitForCall(1, -1, info);
  EXPECT_EQ(keys.NextKey(3000, true).key, '5');
  EXPECT_EQ(keys.NextKey(3000, true).status, LineStatus::Hangup);
}

TEST(SimTrace, LinesAreJsonWhateverTheTextHolds) {
  std::ostringstream out;
  {
    Trace t(&out);
    t.Line(7, "Voice");
    t.Set("NAME", Value::OfString("a \"q\" \\ \t\x01 caf\xE9 \x80"));
    t.Set("X", Value::OfDouble(0.1));
    t.Begin("play").Field("files", std::vector<std::string>{"a/b.vox", "c"}).End();
  }
  std::istringstream lines(out.str());
  std::string line;
  std::vector<nlohmann::json> j;
  while (std::getline(lines, line)) j.push_back(nlohmann::json::parse(line));
  ASSERT_EQ(j.size(), 4u);
  EXPECT_EQ(j[0]["line"], 7);
  EXPECT_EQ(j[1]["value"], "a \"q\" \\ \t\x01 caf\xC3\xA9 \xE2\x82\xAC");
  EXPECT_EQ(j[2]["value"].get<double>(), 0.1);
  EXPECT_EQ(j[3]["files"][1], "c");
}

TEST(SimSandbox, PathTextsStayInsideTheSandbox) {
  Sandbox box("/sb", "/app");
  EXPECT_EQ(box.Map("C:\\VOICE\\")->generic_string(), "/sb/C/VOICE");
  EXPECT_EQ(box.Map("/srv/msg/")->generic_string(), "/sb/srv/msg");
  EXPECT_EQ(box.Map("msg\\.\\in\\")->generic_string(), "/sb/msg/in");
  EXPECT_FALSE(box.Map("msg/../../etc/"));
  EXPECT_FALSE(box.MapFile("msg/", "../x"));
  EXPECT_FALSE(box.MapFile("msg/", ".."));
  EXPECT_FALSE(box.MapFile("msg/", ""));
  EXPECT_EQ(box.MapFile("msg/", "a.vox")->generic_string(), "/sb/msg/a.vox");
  EXPECT_EQ(box.Declared("voice/").generic_string(), "/app/voice/");
  EXPECT_EQ(box.Declared("/abs/").generic_string(), "/abs/");
}

// A person at the keypad: the engine waits on its line, traced once, until the person
// rings, presses keys or hangs up.
TEST(SimEngine, WaitsOnTheKeypadWithoutRunningTheLineTwice) {
  test::DocFixture fx;
  test::App app(fx);
  app.String("K");
  app.Line<WaitForCallRec>("", Fn::WaitForCall, [](WaitForCallRec& r) { r.Rings = 1; });
  app.Line<GetKeysRec>("", Fn::GetKeys, [&](GetKeysRec& r) {
    app.V(r.Target, "K");
    r.KeyCount = 3;  // two keys
  });
  app.Line<GetKeysRec>("", Fn::GetKeys, [&](GetKeysRec& r) { app.V(r.Target, "K"); });
  ASSERT_TRUE(Compile());
  PrgHdr.CompiledFlag = -1;
  KeypadLine line;
  std::ostringstream out;
  Trace trace(&out);
  Tables tables;
  std::string error;
  ASSERT_TRUE(tables.Open(PrgHdr, "", "", error));
  Sandbox box("/nonexistent-sandbox", "/");
  Engine engine(line, trace, tables, box, EngineOptions{});
  EXPECT_EQ(engine.Step(), StepStatus::Waiting);  // nobody rings
  line.PressKey('9');                             // not heard before the call
  line.Ring();
  EXPECT_EQ(engine.Step(), StepStatus::Ran);
  EXPECT_EQ(engine.Step(), StepStatus::Waiting);
  line.PressKey('9');
  EXPECT_EQ(engine.Step(), StepStatus::Waiting);  // one key of two
  EXPECT_EQ(engine.CurrentLine(), 1);
  line.PressKey('2');
  EXPECT_EQ(engine.Step(), StepStatus::Ran);
  EXPECT_EQ(engine.Vars().Get(engine.Vars().FindName("K")).s, "92");
  EXPECT_EQ(engine.Step(), StepStatus::Waiting);
  line.CallerHangsUp();
  EXPECT_EQ(engine.Step(), StepStatus::Ended);
  EXPECT_EQ(engine.Reason(), EndReason::Hangup);
  trace.Flush();
  const std::string t = out.str();
  EXPECT_EQ(t.find("\"line\":1,"), t.rfind("\"line\":1,")) << t;
  EXPECT_EQ(t.find("\"line\":0,"), t.rfind("\"line\":0,")) << t;
  EXPECT_NE(t.find("{\"event\":\"keys\",\"keys\":\"92\"}"), std::string::npos) << t;
}

TEST(SimEngine, RandomFollowsTheSeed) {
  auto draws = [](uint64_t seed) {
    test::DocFixture fx;
    test::App app(fx);
    app.Long("R");
    for (int i = 0; i < 5; ++i) {
      app.Line<RandomRec>("", Fn::Random, [&](RandomRec& r) {
        app.V(r.Target, "R");
        r.Lower = 0;
        r.Upper = 1000;
      });
    }
    EXPECT_TRUE(Compile());
    PrgHdr.CompiledFlag = -1;
    ScriptedLine line(CallScript{}, {});
    std::ostringstream out;
    std::string values;
    {
      Trace trace(&out);
      trace.observer = [&](std::string_view l) {
        if (l.find("\"set\"") != std::string_view::npos) values += std::string(l) + "\n";
      };
      Tables tables;
      std::string error;
      tables.Open(PrgHdr, "", "", error);
      Sandbox box("/nonexistent-sandbox", "/");
      EngineOptions o;
      o.seed = seed;
      Engine(line, trace, tables, box, o).Run();
    }
    return values;
  };
  EXPECT_EQ(draws(7), draws(7));
  EXPECT_NE(draws(7), draws(8));
}

}  // namespace
}  // namespace kq::sim
