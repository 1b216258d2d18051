#include <set>

#include "dialogs/services.h"
#include "tests/dialogs/dialog_fixture.h"

namespace kqtest {
namespace {

class Host : public ui::Form {
 public:
  Host() : Form("frmHost", "Host") {}
  ui::TextBox txt{*this, "txt"};
  ui::ComboBox cbo{*this, "cbo"};
};

// The characters a String field takes, written out as the system lists them.
std::set<int> StringSet() {
  std::set<int> s = {32,  33,  35,  36,  37,  38,  39,  40,  41,  42,  43,  44,  45,  46,  47,
                     58,  59,  60,  61,  62,  63,  64,  91,  92,  93,  94,  95,  96,  123, 124,
                     125, 126, 163, 164, 167, 168, 180, 189, 197, 198, 216, 229, 230, 248};
  for (int c = 48; c <= 57; ++c) s.insert(c);
  for (int c = 65; c <= 90; ++c) s.insert(c);
  for (int c = 97; c <= 122; ++c) s.insert(c);
  return s;
}

std::set<int> Digits() {
  std::set<int> s;
  for (int c = '0'; c <= '9'; ++c) s.insert(c);
  return s;
}

class KeyFilterTest : public DialogTest {
 protected:
  // Runs one key through the filter; returns the key as left and whether it beeped.
  std::pair<int, bool> Filter(int type, int key) {
    const int beeps = p.CountOf("beep");
    if (type < 0) {
      kq::LegalLabelKey(host.txt, key);
    } else {
      kq::LegalInput(host.txt, type, key);
    }
    return {key, p.CountOf("beep") > beeps};
  }
  void ExpectOverAllCodes(int type, const std::set<int>& allowed) {
    for (int code = 0; code < 256; ++code) {
      const auto [key, beeped] = Filter(type, code);
      if (code == 8) {
        EXPECT_EQ(key, 8);
        EXPECT_FALSE(beeped);
      } else if (code == 13) {
        EXPECT_EQ(key, 0) << "Enter is swallowed";
        EXPECT_FALSE(beeped);
      } else if (allowed.count(code)) {
        EXPECT_EQ(key, code) << "type " << type << " code " << code;
        EXPECT_FALSE(beeped) << "type " << type << " code " << code;
      } else {
        EXPECT_EQ(key, 0) << "type " << type << " code " << code;
        EXPECT_TRUE(beeped) << "type " << type << " code " << code;
      }
    }
  }
  Host host;
};

TEST_F(KeyFilterTest, EveryCodeOnAnEmptyFieldOfEachType) {
  std::set<int> longKeys = Digits();
  longKeys.insert('-');
  std::set<int> doubleKeys = longKeys;
  doubleKeys.insert('.');
  ExpectOverAllCodes(0, longKeys);
  ExpectOverAllCodes(1, doubleKeys);
  ExpectOverAllCodes(2, StringSet());
  ExpectOverAllCodes(3, Digits());
  ExpectOverAllCodes(-1, StringSet());  // the label-target filter
  EXPECT_FALSE(kq::IsStringKey(34));    // the double quote
  EXPECT_FALSE(kq::IsStringKey(233));   // an accented letter outside the six
}

TEST_F(KeyFilterTest, AFullFieldTakesNewCharactersOnlyOverAWholeSelection) {
  host.txt.SetText("123456789");
  EXPECT_EQ(Filter(0, '1').first, 0);
  EXPECT_EQ(Filter(3, '1').first, 0);
  EXPECT_EQ(Filter(1, '1').first, '1');  // a Double holds 27
  host.txt.SelectAll();
  EXPECT_EQ(Filter(0, '1').first, '1');
  host.txt.SetSelection(2, 3);
  EXPECT_EQ(Filter(0, '1').first, 0);
  EXPECT_EQ(Filter(0, 8).first, 8);
  host.txt.SetText(std::string(27, 'x'));
  EXPECT_EQ(Filter(2, 'y').first, 0);
  EXPECT_EQ(Filter(2, '-').first, 0);  // in a String field the minus is a character
  EXPECT_EQ(Filter(1, '.').first, 0);
  host.txt.SelectAll();
  EXPECT_EQ(Filter(2, 'y').first, 'y');
}

TEST_F(KeyFilterTest, MinusOnlyAtTheStartOrOverASelection) {
  host.txt.SetText("12");
  EXPECT_EQ(Filter(0, '-'), std::make_pair(0, true));
  EXPECT_EQ(Filter(1, '-'), std::make_pair(0, true));
  host.txt.SetSelection(0, 1);
  EXPECT_EQ(Filter(0, '-').first, '-');
  host.txt.SetText(std::string(9, '9'));
  host.txt.SetSelection(0, 1);  // the minus is not counted against the limit
  EXPECT_EQ(Filter(0, '-').first, '-');
}

TEST_F(KeyFilterTest, OneDecimalPointSelectedOrNot) {
  host.txt.SetText("1.5");
  EXPECT_EQ(Filter(1, '.'), std::make_pair(0, true));
  host.txt.SelectAll();
  EXPECT_EQ(Filter(1, '.'), std::make_pair(0, true));
  EXPECT_EQ(Filter(1, ','), std::make_pair(0, true));
}

TEST_F(KeyFilterTest, LabelTargetsHoldFifteenCharactersSelectionOrNot) {
  host.cbo.SetText(std::string(14, 'a'));
  int key = 'b';
  kq::LegalLabelKey(host.cbo, key);
  EXPECT_EQ(key, 'b');
  host.cbo.SetText(std::string(15, 'a'));
  host.cbo.SelectAll();
  key = 'b';
  kq::LegalLabelKey(host.cbo, key);
  EXPECT_EQ(key, 0);
  EXPECT_EQ(p.CountOf("beep"), 1);
  key = 8;
  kq::LegalLabelKey(host.cbo, key);
  EXPECT_EQ(key, 8);
}

TEST_F(KeyFilterTest, IllegalDataTypeIsAProgramError) {
  int key = '1';
  EXPECT_THROW(kq::LegalInput(host.txt, 4, key), ui::ProgramEnded);
  EXPECT_EQ(ui::LastProgramError(), "Illegal variable datatype  4 in Global LegalInput.");
}

TEST_F(KeyFilterTest, PastedTextGoesThroughTheFieldsKeyPress) {
  host.txt.SetMaxLength(4);
  host.txt.OnKeyPress = [this](int& k) { kq::LegalInput(host.txt, 3, k); };
  kq::TypeText(host.txt, "12a\"345");
  EXPECT_EQ(host.txt.Text(), "1234");
  EXPECT_EQ(p.CountOf("beep"), 2);
}

}  // namespace
}  // namespace kqtest
