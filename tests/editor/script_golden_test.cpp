// The golden user stories: every tests/scripts/NAME.kqs runs in-process through the script
// runner on the editor, and its JSON lines must equal NAME.expected. "$HOME" in a script
// stands for a fresh folder of the run; the output names it the same way. A NAME.settings
// file is the settings store at start; the store at the end follows the events. A NAME.kqx
// file is copied into the folder of the run before it starts, for the script to open, and so
// is what a NAME folder holds (text forms, prompts). The date
// and time of a printed page header are the clock's: they read "####-##-## ##:##:##".
#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <regex>
#include <sstream>
#include <string>
#include <vector>

#include "cli/cmd_script.h"
#include "tests/support/test_text.h"
#include "ui/headless/script_runner.h"

namespace fs = std::filesystem;

namespace {

using kq::test::ReadText;

std::string ReplaceAll(std::string text, const std::string& from, const std::string& to) {
  for (size_t at = text.find(from); at != std::string::npos; at = text.find(from, at + to.size())) {
    text.replace(at, from.size(), to);
  }
  return text;
}

std::vector<std::string> Lines(const std::string& text) {
  std::vector<std::string> out;
  std::istringstream in(text);
  std::string line;
  while (std::getline(in, line)) out.push_back(line);
  return out;
}

std::vector<fs::path> Scripts() {
  std::vector<fs::path> out;
  for (const auto& e : fs::directory_iterator(KQ_SCRIPTS_DIR)) {
    if (e.path().extension() == ".kqs") out.push_back(e.path());
  }
  std::sort(out.begin(), out.end());
  return out;
}

class ScriptGolden : public ::testing::TestWithParam<fs::path> {};

TEST_P(ScriptGolden, EventsMatchExpected) {
  const fs::path script = GetParam();
  const fs::path home = fs::temp_directory_path() /
                        ("kq-golden-" + script.stem().string() + "-" + std::to_string(::getpid()));
  fs::remove_all(home);
  fs::create_directories(home);
  const std::string homeText = home.string();

  fs::path settingsSeed = script;
  settingsSeed.replace_extension(".settings");
  const fs::path settings = home / "settings.ini";
  if (fs::exists(settingsSeed)) {
    std::ofstream(settings, std::ios::binary)
        << ReplaceAll(ReadText(settingsSeed), "$HOME", homeText);
  }
  fs::path documentSeed = script;
  documentSeed.replace_extension(".kqx");
  if (fs::exists(documentSeed)) {
    std::ofstream(home / documentSeed.filename(), std::ios::binary) << ReadText(documentSeed);
  }
  const fs::path folderSeed = fs::path(script).replace_extension();
  if (fs::is_directory(folderSeed)) fs::copy(folderSeed, home, fs::copy_options::recursive);

  std::istringstream in(ReplaceAll(ReadText(script), "$HOME", homeText));
  std::ostringstream out;
  ui::ScriptOptions options;
  options.settingsFile = settings.string();
  options.dataDir = homeText;
  options.homeDir = homeText;
  const int status = ui::RunScript(in, out, options, kqx::EditorScriptHooks());

  std::string actual = out.str();
  actual += "{\"exit\":" + std::to_string(status) + "}\n";
  for (const auto& line : Lines(ReadText(settings))) actual += "{\"setting\":\"" + line + "\"}\n";
  actual = ReplaceAll(actual, homeText, "$HOME");
  static const std::regex clock("Date/Time: [0-9]{4}-[0-9]{2}-[0-9]{2} [0-9]{2}:[0-9]{2}:[0-9]{2}");
  actual = std::regex_replace(actual, clock, "Date/Time: ####-##-## ##:##:##");

  fs::path expectedPath = script;
  expectedPath.replace_extension(".expected");
  if (std::getenv("KQ_UPDATE_GOLDEN") != nullptr) {
    std::ofstream(expectedPath, std::ios::binary) << actual;
  }
  const auto want = Lines(ReadText(expectedPath));
  const auto got = Lines(actual);
  for (size_t i = 0; i < std::max(want.size(), got.size()); ++i) {
    ASSERT_EQ(i < want.size() ? want[i] : "<end>", i < got.size() ? got[i] : "<end>")
        << "line " << i + 1 << " of the events of " << script.filename();
  }
  fs::remove_all(home);
}

std::string Name(const ::testing::TestParamInfo<fs::path>& info) {
  std::string n = info.param.stem().string();
  for (char& c : n) {
    if (!std::isalnum(static_cast<unsigned char>(c))) c = '_';
  }
  return n;
}

INSTANTIATE_TEST_SUITE_P(Scripts, ScriptGolden, ::testing::ValuesIn(Scripts()), Name);

}  // namespace
