#include <unistd.h>

#include <filesystem>
#include <fstream>

#include "dialogs/dialogs.h"
#include "dialogs/frm_def_path.h"
#include "dialogs/services.h"
#include "tests/dialogs/dialog_fixture.h"
#include "ui/platform/disk.h"

namespace kqtest {
namespace {

namespace fs = std::filesystem;

// The disk of this machine, except that the drive's current directory can be made one that
// does not resolve.
class DriveDisk : public ui::Disk {
 public:
  explicit DriveDisk(ui::Disk& real) : real_(real) {}
  int ReadFolder(const std::string& folder, std::vector<std::string>& folders,
                 std::vector<std::string>& files) override {
    return real_.ReadFolder(folder, folders, files);
  }
  std::string CurrentDirectory() override {
    return current.empty() ? real_.CurrentDirectory() : current;
  }
  int ChangeDirectory(const std::string& folder) override { return real_.ChangeDirectory(folder); }
  std::string current;

 private:
  ui::Disk& real_;
};

class DefPathTest : public DialogTest {
 protected:
  void SetUp() override {
    DialogTest::SetUp();
    cwd = fs::current_path();
    root = fs::temp_directory_path() / ("kq_def_path_" + std::to_string(getpid()));
    fs::remove_all(root);
    fs::create_directories(root / "voice");
    fs::create_directories(root / "msg");
    for (const char* f : {"b.vox", "a.vox"}) std::ofstream(root / "voice" / f) << "x";
    base = root.string();
    p.SetUserDirectory(base + "/msg");
    kq::DefineItemIndex = 4;  // Voice
  }
  void TearDown() override {
    ui::SetDisk(nullptr);
    fs::current_path(cwd);
    fs::remove_all(root);
    DialogTest::TearDown();
  }
  void Define(const std::function<void(kq::frmDefPath&)>& act) {
    p.QueueModal("frmDefPath", [&](ui::Form& f) {
      auto& d = static_cast<kq::frmDefPath&>(f);
      act(d);
      if (d.Loaded()) d.cmdCancel.UserClick();
    });
    kq::ShowDefinePaths();
  }
  static void Declare(int32_t letter, int row, const std::string& name, const std::string& dir) {
    DeclarePath(letter, row, name);
    kq::SetField(kq::PrgHdr.Path[row][letter - 65].PathText, dir);
  }
  static std::vector<std::string> Names(const kq::frmDefPath& d) {
    std::vector<std::string> out;
    for (int i = 0; i < d.lstVariable.ListCount(); ++i) {
      out.push_back(kq::RTrim(d.lstVariable.List(i)) + "=" + kq::RTrim(d.lstDataType.List(i)));
    }
    return out;
  }
  static std::vector<std::string> Table(int32_t letter) {
    std::vector<std::string> out;
    for (int row = 0; row < kq::kPathRows; ++row) {
      const auto& e = kq::PrgHdr.Path[row][letter - 65];
      if (kq::FieldEmpty(kq::View(e.PathName))) continue;
      out.push_back(kq::RTrimZ(kq::View(e.PathName)) + "=" + kq::RTrimZ(kq::View(e.PathText)));
    }
    return out;
  }
  void Add(kq::frmDefPath& d, const std::string& name) {
    Type(d.txtName, name);
    d.cmdAdd.UserClick();
  }
  std::string LastBox() const {
    const auto boxes = p.EventsOf("msgbox");
    if (boxes.empty()) return "";
    return boxes.back().fields["title"].Str() + ": " + boxes.back().fields["text"].Str();
  }

  fs::path cwd, root;
  std::string base;
};

TEST_F(DefPathTest, EachDefineItemNamesItsKindAndAnEmptyKindOpensTheUsersFolder) {
  const char* captions[] = {"Define Export Paths", "Define Message Paths", "Define Number Paths",
                            "Define Voice Paths", "Define General Paths"};
  for (int16_t item = 1; item <= 5; ++item) {
    kq::DefineItemIndex = item;
    Define([&](kq::frmDefPath& d) { EXPECT_EQ(d.Caption(), captions[item - 1]); });
  }
  Define([&](kq::frmDefPath& d) {
    EXPECT_EQ(d.lblVariable.Caption(), "Path name to add:");
    EXPECT_EQ(d.dirPath.Path(), base + "/msg");
    EXPECT_EQ(d.filPath.Path(), base + "/msg");
    EXPECT_EQ(d.drvPath.Drive(), "/");
    for (auto* b : {&d.cmdAdd, &d.cmdModify, &d.cmdDelete, &d.cmdClear}) {
      EXPECT_FALSE(b->Enabled()) << b->Name();
    }
    EXPECT_FALSE(d.lstDataType.Visible());
    // A folder with files shows them with the first selected; the process follows.
    ASSERT_EQ(d.dirPath.UserPath(base + "/voice"), 0);
    EXPECT_EQ(d.filPath.Items(), (std::vector<std::string>{"a.vox", "b.vox"}));
    EXPECT_EQ(d.filPath.ListIndex(), 0);
    EXPECT_EQ(fs::current_path(), root / "voice");
  });
  EXPECT_TRUE(p.EventsOf("msgbox").empty());
  EXPECT_FALSE(kq::ChangedFlag);
}

TEST_F(DefPathTest, LoadShowsTheDirectoryOfTableEntryZeroAndClicksFollowTheList) {
  Declare(68, 0, "zeta", base + "/voice/");
  Declare(68, 1, "alpha", base + "/msg/");
  Declare(65, 0, "export", base + "/");
  Define([&](kq::frmDefPath& d) {
    EXPECT_EQ(Names(d),
              (std::vector<std::string>{"alpha=" + base + "/msg/", "zeta=" + base + "/voice/"}));
    EXPECT_EQ(d.lstVariable.ListIndex(), 0);
    EXPECT_TRUE(d.cmdModify.Enabled() && d.cmdDelete.Enabled() && d.cmdClear.Enabled());
    // The first click (Load's own selection) was swallowed: the lists show entry 0.
    EXPECT_EQ(d.dirPath.Path(), base + "/voice");
    d.lstVariable.UserSelect(0);
    EXPECT_EQ(d.dirPath.Path(), base + "/msg");
    EXPECT_EQ(d.filPath.ListCount(), 0);
    d.lstVariable.UserSelect(1);
    EXPECT_EQ(d.filPath.Path(), base + "/voice");
  });
  EXPECT_TRUE(p.EventsOf("msgbox").empty());
}

TEST_F(DefPathTest, MissingDirectoriesAndForeignDrivesGiveThePathMessages) {
  Declare(68, 0, "gone", base + "/gone/");
  Declare(68, 1, "old", "C:\\VOICE\\");
  Declare(68, 2, "ok", base + "/voice/");
  Define([&](kq::frmDefPath& d) {
    EXPECT_EQ(LastBox(), "Path not found: Path do not exist for the defined path variable.");
    EXPECT_EQ(d.dirPath.Path(), ui::FullFolder(cwd.string()));  // load ended there
    d.lstVariable.UserSelect(1);                                // gone, ok, old
    EXPECT_EQ(d.dirPath.Path(), base + "/voice");
    d.lstVariable.UserSelect(2);
    EXPECT_EQ(LastBox(), "Disk not found: Disk do not exist for the defined path variable.");
    EXPECT_EQ(d.lstVariable.ListIndex(), 2);  // the selection stays
    EXPECT_EQ(d.dirPath.Path(), base + "/voice");
    d.cmdOk.UserClick();
  });
  EXPECT_EQ(p.CountOf("msgbox"), 2);
  // Texts of other systems are kept as they are; OK writes the sorted order.
  EXPECT_EQ(kq::RTrimZ(kq::View(kq::PrgHdr.Path[2][3].PathText)), "C:\\VOICE\\");
}

TEST_F(DefPathTest, AddAppendsOneSeparatorAndRefusesDuplicatesAndTheTwentyFirst) {
  Define([&](kq::frmDefPath& d) {
    Type(d.txtName, "Greet");
    EXPECT_TRUE(d.cmdAdd.Enabled());
    d.cmdAdd.UserClick();
    EXPECT_EQ(d.txtName.Text(), "");
    EXPECT_EQ(d.lstVariable.ListIndex(), -1);  // the new item is not selected
    EXPECT_TRUE(d.cmdClear.Enabled());
    ASSERT_EQ(d.dirPath.UserPath("/"), 0);
    Add(d, "greet");  // names differ by case
    kq::ChangedFlag = false;
    Add(d, "Greet");
    EXPECT_EQ(LastBox(), "Path name add error: Path name Greet exist already.");
    EXPECT_EQ(d.txtName.Text(), "Greet");
    EXPECT_EQ(LastFocus(), "txtName");
    EXPECT_TRUE(kq::ChangedFlag);  // a refused Add still marks the document
    EXPECT_EQ(kq::PrgHdr.CompiledFlag, 0);
    d.txtName.SetText("");
    EXPECT_FALSE(d.cmdAdd.Enabled());
    EXPECT_EQ(Names(d), (std::vector<std::string>{"Greet=" + base + "/msg/", "greet=/"}));
    for (int i = 2; i < 20; ++i) Add(d, "P" + std::to_string(i));
    EXPECT_EQ(d.lstVariable.ListCount(), 20);
    EXPECT_EQ(p.CountOf("msgbox"), 1);
    Add(d, "P20");
    EXPECT_EQ(LastBox(), "Path name add error: Maximum number of path names are  20");
    EXPECT_EQ(d.lstVariable.ListCount(), 20);
    d.txtName.SetText("");
    d.cmdOk.UserClick();
  });
  EXPECT_EQ(Table(68).size(), 20u);
  EXPECT_EQ(Table(68)[1], "greet=/");
  // Each kind counts by itself, and the same name may stand in two kinds.
  kq::DefineItemIndex = 1;
  Define([&](kq::frmDefPath& d) {
    Add(d, "Greet");
    d.cmdOk.UserClick();
  });
  EXPECT_EQ(Table(65), (std::vector<std::string>{"Greet=" + base + "/msg/"}));
  EXPECT_EQ(Table(68).size(), 20u);
}

// A directory whose text, with its separator, the path field could hold only cut short is
// refused at Add with the limit in the box; the list and the table stay as they were.
TEST_F(DefPathTest, AddRefusesADirectoryLongerThanItsField) {
  const fs::path deep = root / std::string(200, 'a') / std::string(100, 'b');
  fs::create_directories(deep);
  const std::string shown = deep.string() + "/";
  ASSERT_GT(shown.size(), 259u);
  Define([&](kq::frmDefPath& d) {
    ASSERT_EQ(d.dirPath.UserPath(deep.string()), 0);
    Add(d, "deep");
    ASSERT_EQ(p.CountOf("msgbox"), 1);
    EXPECT_EQ(LastBox(), "Path name add error: Path " + shown + " has more than 259 characters.");
    EXPECT_EQ(p.EventsOf("msgbox").back().fields["icon"].Str(), "exclamation");
    EXPECT_EQ(d.lstVariable.ListCount(), 0);
    EXPECT_EQ(d.txtName.Text(), "deep");  // the name stays for another directory
    ASSERT_EQ(d.dirPath.UserPath(base + "/voice"), 0);
    d.cmdAdd.UserClick();
    EXPECT_EQ(Names(d), (std::vector<std::string>{"deep=" + base + "/voice/"}));
    d.cmdOk.UserClick();
  });
  EXPECT_EQ(Table(68), (std::vector<std::string>{"deep=" + base + "/voice/"}));
  EXPECT_EQ(p.CountOf("msgbox"), 1);
}

TEST_F(DefPathTest, ModifyDeleteAndClearWorkOnTheListsOnly) {
  Declare(68, 0, "one", base + "/voice/");
  Declare(68, 1, "two", base + "/msg/");
  Define([&](kq::frmDefPath& d) {
    d.lstVariable.UserSelect(0);
    d.lstVariable.RaiseDblClick();  // Modify
    EXPECT_EQ(d.txtName.Text(), "one");
    EXPECT_EQ(Names(d), (std::vector<std::string>{"two=" + base + "/msg/"}));
    EXPECT_FALSE(d.cmdModify.Enabled());
    EXPECT_EQ(d.dirPath.Path(), base + "/voice");  // still the item's directory
    d.txtName.SetText("uno");
    d.cmdAdd.UserClick();
    EXPECT_EQ(Names(d),
              (std::vector<std::string>{"two=" + base + "/msg/", "uno=" + base + "/voice/"}));
    d.cmdDelete.UserClick();  // nothing selected
    EXPECT_EQ(p.CountOf("beep"), 1);
    p.QueueAnswer(ui::vbCancel);
    d.cmdClear.UserClick();
    EXPECT_EQ(LastBox(), "Confirm clear: Clear all the path names ?");
    EXPECT_EQ(d.lstVariable.ListCount(), 2);
    d.cmdCancel.UserClick();
  });
  EXPECT_EQ(Table(68),
            (std::vector<std::string>{"one=" + base + "/voice/", "two=" + base + "/msg/"}));
  Declare(65, 0, "keep", base + "/");
  Define([&](kq::frmDefPath& d) {
    p.QueueAnswer(ui::vbOK);
    d.cmdClear.UserClick();
    EXPECT_EQ(d.lstVariable.ListCount(), 0);
    EXPECT_FALSE(d.cmdClear.Enabled() || d.cmdModify.Enabled() || d.cmdDelete.Enabled());
    d.cmdOk.UserClick();
  });
  EXPECT_TRUE(Table(68).empty());
  for (int row = 0; row < kq::kPathRows; ++row) {
    EXPECT_EQ(std::memcmp(&kq::PrgHdr.Path[row][3], &kq::BlankPathEntry, sizeof(kq::PathEntry)), 0);
  }
  EXPECT_EQ(Table(65), (std::vector<std::string>{"keep=" + base + "/"}));
}

TEST_F(DefPathTest, OkAddsTheTypedNameEvenAfterARefusal) {
  Declare(68, 0, "one", base + "/voice/");
  Define([&](kq::frmDefPath& d) {
    Type(d.txtName, "one");
    d.cmdOk.UserClick();
    EXPECT_FALSE(d.Loaded());
  });
  EXPECT_EQ(LastBox(), "Path name add error: Path name one exist already.");
  Define([&](kq::frmDefPath& d) {
    Type(d.txtName, "two");
    d.cmdOk.UserClick();
  });
  EXPECT_EQ(Table(68),
            (std::vector<std::string>{"one=" + base + "/voice/", "two=" + base + "/voice/"}));
}

TEST_F(DefPathTest, TheDriveListBringsBackTheCurrentDirectoryOrTheDiskMessage) {
  DriveDisk fake(ui::disk());
  ui::SetDisk(&fake);
  Define([&](kq::frmDefPath& d) {
    fs::current_path(root / "voice");
    ASSERT_EQ(d.drvPath.UserPath("/"), 0);
    EXPECT_EQ(d.dirPath.Path(), base + "/voice");
    fake.current = base + "/gone";
    d.drvPath.UserPath("/");
    EXPECT_EQ(LastBox(), "Change drive path: Path do not exist.");
    fake.current = "E:";
    p.QueueAnswer(ui::vbRetry);
    p.QueueAnswer(ui::vbCancel);
    d.drvPath.UserPath("/");
    EXPECT_EQ(p.CountOf("msgbox"), 3);  // retried once
    EXPECT_EQ(LastBox(),
              "Change drive path: There is no disk in the selected drive.Insert a disk and try "
              "again.");
    EXPECT_EQ(d.dirPath.Path(), base + "/voice");
  });
}

// A folder name longer than this system's file names allow can't be read for another
// reason than a missing path: the error is raised again, at load, on a click and on a
// drive change alike, and ends the program with the run time's box.
TEST_F(DefPathTest, OtherErrorsThanAMissingDiskOrPathAreRaisedAgain) {
  const std::string tooLong = "/" + std::string(256, 'x') + "/";
  const std::string raised = "Run-time error '75':\r\rPath/File access error";
  Declare(68, 0, "long", tooLong);
  EXPECT_THROW(kq::ShowDefinePaths(), ui::ProgramEnded);
  EXPECT_EQ(ui::LastProgramError(), raised);
  ASSERT_EQ(p.CountOf("msgbox"), 1);
  EXPECT_EQ(LastBox(), "KQEdit: " + raised);
  EXPECT_EQ(p.EventsOf("msgbox").back().fields["icon"].Str(), "critical");

  p.ClearEvents();
  Declare(68, 0, "a", base + "/voice/");
  Declare(68, 1, "long", tooLong);
  p.QueueModal("frmDefPath", [&](ui::Form& f) {
    auto& d = static_cast<kq::frmDefPath&>(f);
    EXPECT_EQ(d.dirPath.Path(), base + "/voice");
    d.lstVariable.UserSelect(1);
  });
  EXPECT_THROW(kq::ShowDefinePaths(), ui::ProgramEnded);
  EXPECT_EQ(LastBox(), "KQEdit: " + raised);

  DriveDisk fake(ui::disk());
  ui::SetDisk(&fake);
  p.ClearEvents();
  p.QueueModal("frmDefPath", [&](ui::Form& f) {
    auto& d = static_cast<kq::frmDefPath&>(f);
    fake.current = tooLong;
    d.drvPath.UserPath("/");
  });
  EXPECT_THROW(kq::ShowDefinePaths(), ui::ProgramEnded);
  EXPECT_EQ(p.CountOf("msgbox"), 1);  // no disk message of its own
  EXPECT_EQ(LastBox(), "KQEdit: " + raised);
}

TEST_F(DefPathTest, AnIllegalDefineItemEndsTheProgram) {
  kq::DefineItemIndex = 6;
  EXPECT_THROW(kq::ShowDefinePaths(), ui::ProgramEnded);
  EXPECT_EQ(ui::LastProgramError(), "Illegal DefineIndex 6 in frmDefPath - Form_Load.");
  kq::DefineItemIndex = 2;
  p.QueueModal("frmDefPath", [](ui::Form& f) {
    kq::DefineItemIndex = 0;
    static_cast<kq::frmDefPath&>(f).cmdOk.UserClick();
  });
  EXPECT_THROW(kq::ShowDefinePaths(), ui::ProgramEnded);
  EXPECT_EQ(ui::LastProgramError(), "Illegal DefineIndex 0 in frmDefPath - cmdOK_Click.");
}

TEST_F(DefPathTest, SetFileListBoxSelectsTheFileOfAPathVariable) {
  class Holder : public ui::Form {
   public:
    Holder() : Form("frmVoice", "Voice") {}
    ui::FileListBox filVoice{*this, "filVoice"};
  } holder;
  Declare(68, 0, "Greet", base + "/voice/");
  char file[13];
  kq::SetField(file, "b.vox");
  EXPECT_EQ(kq::SetFileListBox(holder.filVoice, 68, "Greet", file), 0);
  EXPECT_EQ(holder.filVoice.Path(), base + "/voice");
  EXPECT_EQ(holder.filVoice.FileName(), "b.vox");
  kq::SetField(file, "none.vox");
  EXPECT_EQ(kq::SetFileListBox(holder.filVoice, 68, "Greet", file), 0);
  EXPECT_EQ(holder.filVoice.FileName(), "a.vox");
  EXPECT_EQ(kq::SetFileListBox(holder.filVoice, 67, "Greet", file), 0);
  EXPECT_EQ(LastBox(),
            "Missing path definition: Path variable name 'Greet' not defined in Number path.");
  EXPECT_EQ(holder.filVoice.Path(), base + "/voice");  // left as it was
  Declare(68, 1, "Gone", base + "/gone/");
  EXPECT_EQ(kq::SetFileListBox(holder.filVoice, 68, "Gone", file), ui::kErrorPathNotFound);
}

}  // namespace
}  // namespace kqtest
