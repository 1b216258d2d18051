// kqx run in-process on files saved from documents built here: exit statuses, the compile
// in memory, and bad input refused with a message and nothing written outside the sandbox.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <nlohmann/json.hpp>
#include <set>
#include <sstream>

#include "cli/kqx.h"
#include "document/file.h"
#include "document/state.h"
#include "tests/sim/sim_app.h"

namespace kq::test {
namespace {

namespace fs = std::filesystem;
using nlohmann::json;

class KqxRunTest : public ::testing::Test, public DocFixture {
 protected:
  void SetUp() override {
    dir = fs::temp_directory_path() / ("kq_sim_cli_" + std::to_string(::getpid()));
    fs::remove_all(dir);
    fs::create_directories(dir / "voice");
    std::ofstream(dir / "voice" / "hi.vox", std::ios::binary) << std::string(160, '\0');
    app.Long("N").String("FN");
    app.Path(kPathVoice, "VOICE", "voice/").Path(kPathMessage, "MSG", "inbox/");
  }
  void TearDown() override { fs::remove_all(dir); }
  std::string Save(const std::string& name) {
    std::string title = name;
    std::string path = (dir / name).string();
    int16_t count = static_cast<int16_t>(list().ListCount());
    SaveFile(title, path, true, 0, count - 1, count);
    return path;
  }
  int Run(std::vector<std::string> args) {
    out.str("");
    err.str("");
    args.insert(args.begin(), "run");
    const int status = kqx::RunKqx(args, out, err);
    ui::SetPlatform(&platform);
    SetEditList(&host->lstEdit);
    return status;
  }
  std::vector<json> Events() {
    std::vector<json> events;
    std::istringstream in(out.str());
    for (std::string l; std::getline(in, l);) events.push_back(json::parse(l));
    return events;
  }
  std::set<std::string> Listing() {
    std::set<std::string> names;
    for (auto& e : fs::recursive_directory_iterator(dir)) names.insert(e.path().string());
    return names;
  }
  void Voice(const std::string& file, const std::string& error = "") {
    app.Line<VoiceRec>("", Fn::Voice, [&](VoiceRec& r) {
      A::T(r.VoicePath, "VOICE");
      A::T(r.VoiceFile[0], file);
      A::L(r.ErrorLabel, error);
    });
  }
  using A = App;
  App app{*this};
  fs::path dir;
  std::ostringstream out, err;
};

TEST_F(KqxRunTest, AnUncompiledFileIsCompiledInMemoryAndRuns) {
  app.Line<WaitForCallRec>("", Fn::WaitForCall, [](WaitForCallRec& r) { r.Rings = 1; });
  Voice("hi.vox");
  app.Line<GetKeysRec>("", Fn::GetKeys, [&](GetKeysRec& r) {
    app.V(r.Target, "N");
    r.KeyCount = 3;
  });
  const std::string file = Save("app.kqx");
  ASSERT_EQ(Run({file, "--keys", "42"}), 0) << err.str();
  auto e = Events();
  ASSERT_FALSE(e.empty());
  EXPECT_EQ(e.front(), json::parse(R"({"event":"line","line":0,"function":"Wait for Call"})"));
  EXPECT_EQ(e.back(), json::parse(R"({"event":"end","reason":"end","line":3})"));
  bool played = false, set = false;
  for (const json& j : e) {
    if (j["event"] == "play") played = j["files"][0] == (dir / "voice" / "hi.vox").string();
    if (j["event"] == "set") set = j == json::parse(R"({"event":"set","variable":"N","value":42})");
  }
  EXPECT_TRUE(played);
  EXPECT_TRUE(set);
  // The file on disk stays as it was: not compiled.
  EXPECT_EQ(Run({file, "--keys", "4", "--hangup"}), 0);
  EXPECT_EQ(Events().back()["reason"], "hangup");
}

TEST_F(KqxRunTest, ACompileFaultPrintsItsBoxAndRunsNothing) {
  app.Line<GotoRec>("", Fn::Goto, [](GotoRec& r) { A::L(r.Target, "NOWHERE"); });
  const std::string file = Save("bad.kqx");
  EXPECT_EQ(Run({file}), 1);
  auto e = Events();
  ASSERT_EQ(e.size(), 1u) << out.str();
  EXPECT_EQ(e[0]["event"], "msgbox");
  EXPECT_NE(e[0].dump().find("Label 'NOWHERE' not found in line"), std::string::npos) << e[0];
}

TEST_F(KqxRunTest, DamagedMissingAndWrongArgumentsAreRefused) {
  Voice("hi.vox");
  const std::string file = Save("app.kqx");
  std::string bytes;
  {
    std::ifstream in(file, std::ios::binary);
    bytes.assign(std::istreambuf_iterator<char>(in), {});
  }
  std::ofstream(dir / "cut.kqx", std::ios::binary) << bytes.substr(0, bytes.size() - 10);
  EXPECT_EQ(Run({(dir / "cut.kqx").string()}), 1);
  EXPECT_NE(out.str().find("is damaged."), std::string::npos) << out.str();

  const auto before = Listing();
  EXPECT_EQ(Run({(dir / "none.kqx").string()}), 1);
  EXPECT_NE(err.str().find("no such file"), std::string::npos);
  EXPECT_EQ(Listing(), before);  // the missing file was not made

  EXPECT_EQ(Run({file, "--frobnicate"}), kqx::kExitUsage);
  EXPECT_NE(err.str().find("--frobnicate"), std::string::npos) << err.str();
  EXPECT_EQ(Run({file, "--max-steps", "x"}), kqx::kExitUsage);
  EXPECT_EQ(Run({file, "--max-steps", "0"}), kqx::kExitUsage);
  EXPECT_EQ(Run({file, "--seed"}), kqx::kExitUsage);
  EXPECT_EQ(Run({file, "--keys", "12E"}), 1);
  EXPECT_NE(err.str().find("--keys may hold only"), std::string::npos) << err.str();
  EXPECT_TRUE(out.str().empty());
}

TEST_F(KqxRunTest, AMissingPromptIsAFaultOrTheErrorLabel) {
  app.Line<WaitForCallRec>("", Fn::WaitForCall, [](WaitForCallRec& r) { r.Rings = 1; });
  Voice("gone.vox", "ERR");
  app.Line<HookRec>("ERR", Fn::OnOffHook, [](HookRec& r) { r.HookAction = 0; });
  Voice("gone.vox");
  const std::string file = Save("app.kqx");
  EXPECT_EQ(Run({file}), 3);
  auto e = Events();
  EXPECT_EQ(e.back()["reason"], "fault");
  EXPECT_EQ(e.back()["line"], 3);
  EXPECT_EQ(e.back()["message"], "Voice: file gone.vox not found in voice/");
  int errors = 0;
  for (const json& j : e) errors += j["event"] == "error";
  EXPECT_EQ(errors, 2);  // the label's and the fault's
}

TEST_F(KqxRunTest, BadCallJsonAndCsvAreRefusedBeforeAnythingIsWritten) {
  app.Table("T", {"N"});
  app.Line<ConnectTableRec>("", Fn::ConnectTable,
                            [](ConnectTableRec& r) { A::T(r.TableName, "T"); });
  const std::string file = Save("app.kqx");
  fs::create_directories(dir / "csv");
  std::ofstream(dir / "csv" / "T.csv") << "N\n1\nlots\n";
  std::ofstream(dir / "call.json") << "{\"keys\": \"12\",}";
  std::ofstream(dir / "call2.json") << "{\"rings\": \"two\"}";
  std::ofstream(dir / "call3.json") << "{\"keyz\": \"1\"}";
  const auto before = Listing();
  const std::string db = (dir / "t.db").string(), box = (dir / "box").string();

  EXPECT_EQ(Run({file, "--call", (dir / "call.json").string(), "--db", db, "--sandbox", box}), 1);
  EXPECT_NE(err.str().find("call.json: the call is not valid JSON"), std::string::npos)
      << err.str();
  EXPECT_EQ(Run({file, "--call", (dir / "call2.json").string()}), 1);
  EXPECT_NE(err.str().find("\"rings\" must be a number"), std::string::npos) << err.str();
  EXPECT_EQ(Run({file, "--call", (dir / "call3.json").string()}), 1);
  EXPECT_NE(err.str().find("unknown field \"keyz\""), std::string::npos) << err.str();
  EXPECT_EQ(Run({file, "--call", (dir / "nothere.json").string()}), 1);
  EXPECT_EQ(Listing(), before);

  EXPECT_EQ(Run({file, "--tables", (dir / "csv").string(), "--db", db}), 1);
  EXPECT_NE(err.str().find("T.csv: line 3: 'lots' is not a whole number for N"), std::string::npos)
      << err.str();
  EXPECT_FALSE(fs::exists(db));
  EXPECT_TRUE(out.str().empty());

  std::ofstream(dir / "csv" / "T.csv") << "N\n1\n2\n";
  EXPECT_EQ(Run({file, "--tables", (dir / "csv").string(), "--db", db}), 0) << err.str();
  EXPECT_TRUE(fs::exists(db));  // kept for inspection
}

TEST_F(KqxRunTest, RecordingWritesInTheSandboxOnlyAndTheStepLimitEndsALoop) {
  std::ofstream(dir / "call.json") << R"({"voice":"caller.wav"})";
  {
    // 100 ms of 8000 Hz 16-bit mono.
    std::string data(1600, '\1');
    std::ofstream w(dir / "caller.wav", std::ios::binary);
    auto u32 = [&](uint32_t v) { w.write(reinterpret_cast<const char*>(&v), 4); };
    auto u16 = [&](uint16_t v) { w.write(reinterpret_cast<const char*>(&v), 2); };
    w << "RIFF";
    u32(36 + 1600);
    w << "WAVEfmt ";
    u32(16), u16(1), u16(1), u32(8000), u32(16000), u16(2), u16(16);
    w << "data";
    u32(1600);
    w << data;
  }
  app.Line<WaitForCallRec>("", Fn::WaitForCall, [](WaitForCallRec& r) { r.Rings = 1; });
  app.Line<RecordSoundRec>("AGAIN", Fn::RecordSound, [](RecordSoundRec& r) {
    A::T(r.MessagePath, "MSG");
    A::S(r.FileName, "m.vox");
    r.MaxRecordSec = 5;
    A::L(r.SilenceLabel, "AGAIN");
  });
  app.Line<GotoRec>("", Fn::Goto, [](GotoRec& r) { A::L(r.Target, "AGAIN"); });
  const std::string file = Save("app.kqx");
  const auto before = Listing();
  const std::string box = (dir / "box").string();
  EXPECT_EQ(
      Run({file, "--call", (dir / "call.json").string(), "--sandbox", box, "--max-steps", "5"}), 3);
  auto e = Events();
  EXPECT_EQ(e.back(), json::parse(R"({"event":"end","reason":"steps","line":1,
                                     "message":"the limit of 5 steps is reached"})"));
  auto after = Listing();
  std::set<std::string> added;
  for (const auto& n : after) {
    if (!before.count(n)) added.insert(fs::relative(n, dir).generic_string());
  }
  EXPECT_EQ(added, (std::set<std::string>{"box", "box/inbox", "box/inbox/m.vox"}));
  // 8000 Hz linear (the default ".vox" format): two bytes a sample.
  EXPECT_EQ(fs::file_size(dir / "box" / "inbox" / "m.vox"), 1600u);
}

}  // namespace
}  // namespace kq::test
