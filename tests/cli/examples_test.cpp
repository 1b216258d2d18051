// The example applications through kqx: each opens, compiles and lists as committed; its
// script makes it again from nothing; its prompts are spoken, found missing and made again,
// and decode to speech of a plausible length.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <regex>
#include <sstream>

#include "cli/kqx.h"
#include "speech/codec/wave_file.h"

namespace {

namespace fs = std::filesystem;

const char* const kExamples[] = {"balance", "reminder", "mailbox"};

std::string ReadText(const fs::path& path) {
  std::ifstream in(path, std::ios::binary);
  std::ostringstream s;
  s << in.rdbuf();
  return s.str();
}

// The listing without its second row, which names the file as it was given.
std::string WithoutFileRow(const std::string& listing) {
  const size_t first = listing.find('\n');
  const size_t second = listing.find('\n', first + 1);
  return listing.substr(0, first + 1) + listing.substr(second + 1);
}

// The prompts file's rows: file name and text.
std::vector<std::pair<std::string, std::string>> PromptRows(const fs::path& csv) {
  std::vector<std::pair<std::string, std::string>> rows;
  std::istringstream in(ReadText(csv));
  std::string line;
  std::getline(in, line);  // the header
  while (std::getline(in, line)) {
    const size_t comma = line.find(',');
    std::string text = line.substr(comma + 1);
    if (!text.empty() && text.front() == '"') text = text.substr(1, text.size() - 2);
    rows.emplace_back(line.substr(0, comma), text);
  }
  return rows;
}

int Words(const std::string& text) {
  std::istringstream in(text);
  std::string w;
  int n = 0;
  while (in >> w) ++n;
  return n;
}

class ExamplesTest : public ::testing::Test {
 protected:
  void SetUp() override {
    const auto* info = ::testing::UnitTest::GetInstance()->current_test_info();
    dir_ = fs::path(::testing::TempDir()) / "kqexamples" / info->name();
    fs::remove_all(dir_);
    fs::create_directories(dir_);
    cwd_ = fs::current_path();
  }
  void TearDown() override {
    fs::current_path(cwd_);
    fs::remove_all(dir_);
  }
  int Run(std::vector<std::string> args) {
    out_.str("");
    err_.str("");
    return kqx::RunKqx(args, out_, err_);
  }
  // The example's sources (script, texts, tables) in a fresh folder of the test.
  fs::path CopySources(const std::string& name) {
    const fs::path from = fs::path(KQ_EXAMPLES_DIR) / name;
    const fs::path to = dir_ / name;
    fs::create_directories(to);
    for (const char* f : {"prompts.csv"}) fs::copy_file(from / f, to / f);
    fs::copy_file(from / (name + ".kqs"), to / (name + ".kqs"));
    fs::copy(from / "tables", to / "tables", fs::copy_options::recursive);
    for (const auto& entry : fs::directory_iterator(from)) {
      if (entry.is_directory() && entry.path().filename() != "tables") {
        fs::create_directories(to / entry.path().filename());
      }
    }
    return to;
  }

  fs::path dir_, cwd_;
  std::ostringstream out_, err_;
};

TEST_F(ExamplesTest, EachOpensCompilesAndListsAsCommitted) {
  for (const std::string name : kExamples) {
    SCOPED_TRACE(name);
    const fs::path example = fs::path(KQ_EXAMPLES_DIR) / name;
    const fs::path copy = dir_ / (name + ".kqx");
    fs::copy_file(example / (name + ".kqx"), copy);
    ASSERT_EQ(Run({"info", copy.string()}), 0) << out_.str();
    EXPECT_NE(out_.str().find("\"compiled\":true"), std::string::npos);
    ASSERT_EQ(Run({"compile", copy.string()}), 0) << out_.str();
    EXPECT_NE(out_.str().find("Successfully compilation..."), std::string::npos);
    EXPECT_NE(out_.str().find("\"compiled\":true"), std::string::npos);
    const fs::path listing = dir_ / (name + ".lst");
    ASSERT_EQ(Run({"list", copy.string(), "-o", listing.string(), "--now", "2026-01-01 09:00:00"}),
              0);
    EXPECT_EQ(WithoutFileRow(ReadText(listing)),
              WithoutFileRow(ReadText(example / (name + ".lst"))));
    // Every table the application reads has its CSV, with the declared column names.
    ASSERT_EQ(Run({"info", copy.string()}), 0);
    static const std::regex table(R"re(\{"name":"([A-Z]+)","columns":\[([^\]]*)\])re");
    const std::string info = out_.str();
    int tables = 0;
    for (auto it = std::sregex_iterator(info.begin(), info.end(), table);
         it != std::sregex_iterator(); ++it, ++tables) {
      std::string columns = std::regex_replace((*it)[2].str(), std::regex(R"(,null)"), "");
      columns = std::regex_replace(columns, std::regex("\""), "");
      const std::string csv = ReadText(example / "tables" / ((*it)[1].str() + ".csv"));
      EXPECT_EQ(csv.substr(0, csv.find('\n')), columns) << (*it)[1].str();
    }
    EXPECT_GE(tables, 1);
  }
}

TEST_F(ExamplesTest, ScriptsMakeTheApplicationsAgain) {
  for (const std::string name : kExamples) {
    SCOPED_TRACE(name);
    const fs::path here = CopySources(name);
    fs::current_path(here);
    ASSERT_EQ(Run({"prompts", "--into", "voice", "--texts", "prompts.csv"}), 0) << err_.str();
    ASSERT_EQ(Run({"script", name + ".kqs", "--home", here.string()}), 0) << err_.str();
    const std::string events = out_.str();
    EXPECT_EQ(events.find("\"event\":\"refused\""), std::string::npos) << events;
    EXPECT_EQ(events.find("Compilation Error"), std::string::npos) << events;
    ASSERT_TRUE(fs::exists(here / (name + ".kqx")));
    // The same lines as the committed application.
    ASSERT_EQ(Run({"lines", (here / (name + ".kqx")).string()}), 0);
    const std::string made = out_.str();
    ASSERT_EQ(Run({"lines", (fs::path(KQ_EXAMPLES_DIR) / name / (name + ".kqx")).string()}), 0);
    EXPECT_EQ(made, out_.str());
    fs::current_path(cwd_);
  }
}

TEST_F(ExamplesTest, MissingPromptsAreMadeAndDecodeToSpeechOfTheirLength) {
  const fs::path here = CopySources("balance");
  fs::current_path(here);
  ASSERT_EQ(Run({"prompts", "--into", "voice", "--texts", "prompts.csv"}), 0) << err_.str();
  ASSERT_EQ(Run({"script", "balance.kqs", "--home", here.string()}), 0);
  fs::current_path(cwd_);
  const std::string app = (here / "balance.kqx").string();

  // All there: nothing is made, nothing is touched.
  const auto before = fs::last_write_time(here / "voice" / "GOODBYE.VOX");
  ASSERT_EQ(Run({"prompts", app, "--texts", (here / "prompts.csv").string()}), 0);
  EXPECT_NE(out_.str().find("\"made\":0,\"existing\":8,\"faults\":0"), std::string::npos)
      << out_.str();
  EXPECT_EQ(fs::last_write_time(here / "voice" / "GOODBYE.VOX"), before);

  // Two taken away: those two are made again, from the texts file.
  fs::remove(here / "voice" / "GOODBYE.VOX");
  fs::remove(here / "voice" / "SORRY_BUSY.VOX");
  ASSERT_EQ(Run({"prompts", app, "--texts", (here / "prompts.csv").string()}), 0);
  EXPECT_NE(out_.str().find("\"made\":2,\"existing\":6,\"faults\":0"), std::string::npos)
      << out_.str();

  for (const auto& [file, text] : PromptRows(here / "prompts.csv")) {
    SCOPED_TRACE(file);
    const fs::path wav = dir_ / (file + ".wav");
    ASSERT_EQ(Run({"convert", (here / "voice" / file).string(), wav.string()}), 0) << out_.str();
    std::ifstream in(wav, std::ios::binary);
    const std::vector<uint8_t> bytes((std::istreambuf_iterator<char>(in)), {});
    kq::speech::Pcm pcm;
    ASSERT_EQ(kq::speech::ParseWave(bytes, pcm), 0);
    EXPECT_EQ(pcm.rate, 8000);
    const double seconds = static_cast<double>(pcm.samples.size()) / pcm.rate;
    const int words = Words(text);
    EXPECT_GT(seconds, 0.15 * words) << words << " words";
    EXPECT_LT(seconds, 1.0 * words + 1.0) << words << " words";
    int loud = 0;
    for (const int16_t s : pcm.samples) loud += (s > 2000 || s < -2000);
    EXPECT_GT(loud, static_cast<int>(pcm.samples.size() / 20)) << "mostly silence";
  }
}

TEST_F(ExamplesTest, BadVoiceAndBadTextsAreRefusedWithNothingMade) {
  const fs::path here = CopySources("mailbox");
  const std::string into = (here / "voice").string();
  EXPECT_EQ(Run({"prompts", "--into", into, "--texts", (here / "prompts.csv").string(), "--voice",
                 "qq-nosuchvoice"}),
            1);
  EXPECT_NE(err_.str().find("espeak-ng has no voice \"qq-nosuchvoice\""), std::string::npos)
      << err_.str();
  {
    std::ofstream bad(here / "bad.csv");
    bad << "file,text\nWELCOME.VOX,Welcome,to the mailbox\n";
  }
  EXPECT_EQ(Run({"prompts", "--into", into, "--texts", (here / "bad.csv").string()}), 1);
  EXPECT_NE(err_.str().find("line 2: expected 2 columns (file name, text), found 3"),
            std::string::npos)
      << err_.str();
  EXPECT_TRUE(fs::is_empty(here / "voice"));
  EXPECT_EQ(Run({"prompts", "--into", into}), kqx::kExitUsage);  // --into needs the texts
  EXPECT_NE(err_.str().find("--texts"), std::string::npos) << err_.str();
  EXPECT_EQ(Run({"prompts"}), kqx::kExitUsage);  // neither FILE nor --into
  EXPECT_NE(err_.str().find("give either FILE or --into DIR"), std::string::npos) << err_.str();
}

}  // namespace

// Each example answers the call in its folder (call.json) in the simulator, with its own
// prompts and tables: the call goes the way the example is made for, and ends well.
TEST_F(ExamplesTest, EachAnswersItsScriptedCall) {
  const std::pair<const char*, const char*> kWayOfTheCall[] = {
      {"balance", "BALANCE_IS.VOX"},                               // the PIN matched its row
      {"reminder", R"("number":"5550101","outcome":"answered")"},  // the first patient
      {"mailbox", R"("event":"record")"},                          // a message was left
  };
  for (const auto& [name, sign] : kWayOfTheCall) {
    SCOPED_TRACE(name);
    const fs::path example = fs::path(KQ_EXAMPLES_DIR) / name;
    fs::current_path(example);  // the path texts are relative to the example's folder
    const fs::path sandbox = dir_ / (std::string(name) + "-sandbox");
    EXPECT_EQ(Run({"run", std::string(name) + ".kqx", "--call", "call.json", "--hangup", "--tables",
                   "tables", "--sandbox", sandbox.string()}),
              0)
        << err_.str();
    const std::string trace = out_.str();
    EXPECT_NE(trace.find(sign), std::string::npos) << trace;
    const size_t end = trace.rfind("{\"event\":\"end\"");
    ASSERT_NE(end, std::string::npos);
    EXPECT_TRUE(trace.find("\"reason\":\"hangup\"", end) != std::string::npos ||
                trace.find("\"reason\":\"end\"", end) != std::string::npos)
        << trace.substr(end);
  }
}
