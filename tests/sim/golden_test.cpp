// The golden cases: each folder under tests/sim/golden holds what one run needs: app.json,
// the application in the text form of `kqx export`; call.json, options.json, tables/*.csv,
// prompt files; and expected.jsonl, the trace and then {"exit":N}. Paths in the trace are
// written with $CASE for the folder and $SANDBOX for the sandbox.
// KQ_UPDATE_GOLDEN=1 rewrites the expected files (review the diff before keeping them).
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <nlohmann/json.hpp>
#include <set>
#include <sstream>

#include <unistd.h>

#include "document/catalogue.h"
#include "document/text.h"
#include "sim/run.h"
#include "tests/sim/app_text.h"
#include "tests/support/doc_builder.h"

namespace kq::test {
namespace {

namespace fs = std::filesystem;
using nlohmann::json;

std::string ReadAll(const fs::path& p) {
  std::ifstream in(p, std::ios::binary);
  std::stringstream ss;
  ss << in.rdbuf();
  return ss.str();
}

void ReplaceAll(std::string& s, const std::string& from, const std::string& to) {
  for (size_t at = s.find(from); at != std::string::npos; at = s.find(from, at + to.size())) {
    s.replace(at, from.size(), to);
  }
}

struct GoldenRun {
  std::string trace;  // with $CASE and $SANDBOX
  int exit = -1;
  std::vector<fs::path> sandboxFiles;
  uintmax_t noteBytes = 0;  // the size of inbox/note.vox, when there is one
};

GoldenRun RunCase(const fs::path& folder) {
  DocFixture fx;
  std::string error;
  EXPECT_TRUE(OpenAppText(folder / "app.json", error)) << error;

  sim::RunOptions o;
  o.appFile = (folder / "app.kqx").string();
  o.speechFormat = 6;
  if (fs::exists(folder / "call.json")) o.callFile = (folder / "call.json").string();
  if (fs::exists(folder / "tables")) o.tablesDir = (folder / "tables").string();
  if (fs::exists(folder / "options.json")) {
    json j = json::parse(ReadAll(folder / "options.json"));
    if (j.contains("keys")) o.keys = j["keys"].get<std::string>();
    o.hangup = j.value("hangup", false);
    o.seed = j.value("seed", 1);
    o.maxSteps = j.value("maxSteps", int64_t{10'000'000});
  }
  // A sandbox of this process's own: the tests run side by side, some on the same case.
  const fs::path sandbox = fs::temp_directory_path() / ("kq-golden-" + folder.filename().string() +
                                                        "-" + std::to_string(::getpid()));
  fs::remove_all(sandbox);
  o.sandboxDir = sandbox.string();

  GoldenRun r;
  std::ostringstream out, err;
  r.exit = sim::RunDocument(o, out, err);
  r.trace = out.str();
  ReplaceAll(r.trace, sandbox.string(), "$SANDBOX");
  ReplaceAll(r.trace, folder.string(), "$CASE");
  for (auto& e : fs::recursive_directory_iterator(sandbox)) {
    if (e.is_regular_file()) r.sandboxFiles.push_back(fs::relative(e.path(), sandbox));
  }
  if (fs::exists(sandbox / "inbox" / "note.vox"))
    r.noteBytes = fs::file_size(sandbox / "inbox" / "note.vox");
  fs::remove_all(sandbox);
  EXPECT_EQ(err.str(), "") << folder;
  return r;
}

std::vector<fs::path> Cases() {
  std::vector<fs::path> cases;
  for (auto& e : fs::directory_iterator(KQ_SIM_GOLDEN_DIR)) {
    if (e.is_directory()) cases.push_back(e.path());
  }
  std::sort(cases.begin(), cases.end());
  return cases;
}

TEST(SimGolden, EveryCaseGivesItsExpectedTrace) {
  const bool update = std::getenv("KQ_UPDATE_GOLDEN") != nullptr;
  const auto cases = Cases();
  ASSERT_GE(cases.size(), 15u);
  for (const fs::path& folder : cases) {
    SCOPED_TRACE(folder.filename().string());
    GoldenRun r = RunCase(folder);
    const std::string got = r.trace + "{\"exit\":" + std::to_string(r.exit) + "}\n";
    const fs::path expected = folder / "expected.jsonl";
    if (update) {
      std::ofstream(expected, std::ios::binary) << got;
      continue;
    }
    ASSERT_TRUE(fs::exists(expected));
    EXPECT_EQ(got, ReadAll(expected));
  }
}

// Every trace line is one JSON object with an event; the run ends with exactly one end
// event, last; every live function of the catalogue runs in some case.
TEST(SimGolden, TracesAreJsonAndReachEveryLiveFunction) {
  std::set<std::string> ran;
  for (const fs::path& folder : Cases()) {
    SCOPED_TRACE(folder.filename().string());
    GoldenRun r = RunCase(folder);
    std::istringstream lines(r.trace);
    std::string line, lastEvent;
    int ends = 0;
    while (std::getline(lines, line)) {
      json j = json::parse(line, nullptr, false);
      ASSERT_FALSE(j.is_discarded()) << line;
      ASSERT_TRUE(j.contains("event")) << line;
      lastEvent = j["event"];
      if (lastEvent == "end") ++ends;
      if (lastEvent == "line") ran.insert(j["function"].get<std::string>());
    }
    EXPECT_EQ(ends, 1);
    EXPECT_EQ(lastEvent, "end");
  }
  for (int fn = 0; fn < kFuncCount; ++fn) {
    if (!IsLiveFunction(fn)) continue;
    std::string name = RTrimZ(View(FuncNames[fn]));
    EXPECT_TRUE(ran.count(name)) << name << " runs in no golden case";
  }
}

// Recording writes the caller's voice into the sandbox and nowhere else; the export file
// is gone after Delete File.
TEST(SimGolden, FilesAreWrittenInTheSandboxOnly) {
  const fs::path golden = KQ_SIM_GOLDEN_DIR;
  GoldenRun rec = RunCase(golden / "record");
  std::set<std::string> files;
  for (auto& p : rec.sandboxFiles) files.insert(p.generic_string());
  EXPECT_EQ(files, (std::set<std::string>{"inbox/msg0005.wav", "inbox/note.vox"}));
  // Two recordings of 500 ms, the second appended: 8000 Hz linear, two bytes a sample.
  EXPECT_EQ(rec.noteBytes, 2u * 500 * 8 * 2);
  GoldenRun f = RunCase(golden / "files");
  EXPECT_TRUE(f.sandboxFiles.empty());
  EXPECT_FALSE(fs::exists(golden / "escape.csv"));
  EXPECT_FALSE(fs::exists(golden / "files" / "export"));
}

}  // namespace
}  // namespace kq::test
