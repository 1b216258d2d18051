// The manual's function pages against the dialogs: every live function has a page, the
// contents link it, and every caption a page names is a control of that function's dialog;
// every field label and check box of the dialog is named on its page.
#include <filesystem>
#include <fstream>
#include <map>
#include <regex>
#include <set>
#include <sstream>

#include "document/functions.h"
#include "tests/dialogs/dialog_fixture.h"

namespace {

using namespace kq;
namespace fs = std::filesystem;

std::string ReadText(const fs::path& path) {
  std::ifstream in(path, std::ios::binary);
  std::ostringstream s;
  s << in.rdbuf();
  return s.str();
}

std::string Unescape(std::string s) {
  const std::pair<const char*, const char*> entities[] = {
      {"&lt;", "<"}, {"&gt;", ">"}, {"&quot;", "\""}, {"&#x27;", "'"}, {"&amp;", "&"}};
  for (const auto& [from, to] : entities) {
    for (size_t at = s.find(from); at != std::string::npos; at = s.find(from, at + 1)) {
      s.replace(at, std::strlen(from), to);
    }
  }
  return s;
}

// A caption as the page writes it: no access-key "&", no blanks around it.
std::string Plain(std::string s) {
  std::string out;
  for (size_t i = 0; i < s.size(); ++i) {
    if (s[i] == '&' && i + 1 < s.size() && s[i + 1] != ' ') continue;
    out += s[i];
  }
  const size_t b = out.find_first_not_of(' ');
  const size_t e = out.find_last_not_of(' ');
  return b == std::string::npos ? std::string() : out.substr(b, e - b + 1);
}

std::vector<std::string> PageCaptions(const std::string& html) {
  static const std::regex dt(R"(<dt class="caption">([^<]*)</dt>)");
  std::vector<std::string> out;
  for (auto it = std::sregex_iterator(html.begin(), html.end(), dt); it != std::sregex_iterator();
       ++it) {
    out.push_back(Plain(Unescape((*it)[1].str())));
  }
  return out;
}

bool IsLive(int n) {
  return n >= 0 && n <= 55 && n != 22 && n != 23 && n != 35 && n != 42;
}

class ManualPagesTest : public kqtest::DialogTest {
 protected:
  void SetUp() override {
    DialogTest::SetUp();
    ShowAllFunctions = true;
    AddVariable("Count", 0);
    AddVariable("Amount", 1);
    AddVariable("Name", 2);
    for (int32_t letter = kPathExport; letter <= kPathGeneral; ++letter) {
      DeclarePath(letter, 0, std::string("Path") + static_cast<char>(letter));
      SetField(PrgHdr.Path[0][letter - kPathExport].PathText, fs::current_path().string() + "/");
    }
    DeclareTable(0, "Orders");
    PrgHdr.Table[0].Column[0] = PrgHdr.Variable[0];
  }

  // The captions of the dialog of function n, and those of its field labels (a label that
  // ends in a colon) and check boxes.
  void CaptionsOf(int n, std::set<std::string>& all, std::set<std::string>& fields) {
    PrepareNew(n);
    bool shown = false;
    p.QueueModal("", [&](ui::Form& f) {
      shown = true;
      for (const ui::Control* c : f.Controls()) {
        const std::string caption = Plain(c->Caption());
        if (caption.empty()) continue;
        all.insert(caption);
        if ((c->Kind() == ui::ControlKind::Label && caption.back() == ':') ||
            c->Kind() == ui::ControlKind::CheckBox) {
          fields.insert(caption);
        }
      }
      if (auto* d = dynamic_cast<FuncDialog*>(&f)) d->cmdCancel.UserClick();
    });
    GetFuncParm(static_cast<int16_t>(n));
    EXPECT_TRUE(shown) << "function " << n << " showed no dialog";
  }

  const fs::path dir_{KQ_MANUAL_DIR};
};

TEST_F(ManualPagesTest, EveryLiveFunctionHasAPageThatMatchesItsDialog) {
  const std::string contents = ReadText(dir_ / "index.html");
  int pages = 0;
  for (int n = 0; n <= 55; ++n) {
    char name[32];
    std::snprintf(name, sizeof name, "function-%02d.html", n);
    const fs::path path = dir_ / name;
    if (!IsLive(n)) {
      EXPECT_FALSE(fs::exists(path)) << name << " describes an empty slot";
      continue;
    }
    SCOPED_TRACE(name);
    ASSERT_TRUE(fs::exists(path));
    ++pages;
    const std::string html = ReadText(path);
    const std::string title = RTrimZ(View(FuncNames[n]));
    EXPECT_NE(html.find("<h1>" + title + "</h1>"), std::string::npos) << "no heading " << title;
    EXPECT_NE(contents.find(std::string("href=\"") + name + "\""), std::string::npos)
        << "the contents do not link the page";

    std::set<std::string> all, fields;
    CaptionsOf(n, all, fields);
    const std::vector<std::string> named = PageCaptions(html);
    EXPECT_GE(named.size(), 2u) << "the page names no field of the dialog";
    for (const std::string& caption : named) {
      EXPECT_TRUE(all.count(caption)) << "the page names \"" << caption << "\", not on the dialog";
    }
    const std::set<std::string> onPage(named.begin(), named.end());
    for (const std::string& caption : fields) {
      EXPECT_TRUE(onPage.count(caption)) << "the dialog's \"" << caption << "\" is not described";
    }
  }
  EXPECT_EQ(pages, 52);
}

TEST_F(ManualPagesTest, EveryLinkOfTheManualLeadsToAPage) {
  static const std::regex href(R"re(href="([^"#]+)(#[^"]*)?")re");
  int links = 0;
  for (const auto& entry : fs::directory_iterator(dir_)) {
    if (entry.path().extension() != ".html") continue;
    const std::string html = ReadText(entry.path());
    for (auto it = std::sregex_iterator(html.begin(), html.end(), href);
         it != std::sregex_iterator(); ++it) {
      const std::string target = (*it)[1].str();
      if (target.find("://") != std::string::npos) continue;
      ++links;
      EXPECT_TRUE(fs::exists(dir_ / target)) << entry.path().filename() << " -> " << target;
      const std::string place = (*it)[2].str();
      if (!place.empty() && target.ends_with(".html")) {
        EXPECT_NE(ReadText(dir_ / target).find("id=\"" + place.substr(1) + "\""), std::string::npos)
            << entry.path().filename() << " -> " << target << place;
      }
    }
  }
  EXPECT_GT(links, 200);
}

}  // namespace
