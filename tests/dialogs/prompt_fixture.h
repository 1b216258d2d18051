// The fixtures of the prompt dialog tests: a document with the caller's variables and a
// folder of voice files for Say Number and Voice.
#pragma once

#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <functional>

#include "dialogs/dialogs.h"
#include "dialogs/frm_get_key.h"
#include "dialogs/frm_record_sound.h"
#include "dialogs/frm_say_file.h"
#include "dialogs/frm_say_no.h"
#include "dialogs/frm_voice.h"
#include "dialogs/frm_wait_for_key.h"
#include "document/header.h"
#include "tests/dialogs/dialog_fixture.h"
#include "tests/dialogs/dialog_values.h"
#include "ui/platform/disk.h"

namespace kqtest {

class PromptDialogTest : public DialogTest {
 protected:
  static void Declare() {
    AddVariable("Count", kq::kVarLong);
    AddVariable("Rate", kq::kVarDouble);
    AddVariable("Name", kq::kVarString);
    DeclarePath(kq::kPathMessage, 0, "Msg");
    DeclarePath(kq::kPathMessage, 1, "Greet");
  }
};

const kq::LabelRef kNoLabel = Label("");
namespace fs = std::filesystem;

// A folder of voice files made for the test, declared as the voice path "Voices"; "Gone"
// is a voice path whose folder does not exist.
class VoiceFolderTest : public PromptDialogTest {
 protected:
  void SetUp() override {
    PromptDialogTest::SetUp();
    root = fs::temp_directory_path() / ("kq_prompt_" + std::to_string(getpid()));
    fs::remove_all(root);
    fs::create_directories(root / "voice");
    for (const char* f : {"b.vox", "a.vox", "c.wav", "A.vox"}) {
      std::ofstream(root / "voice" / f) << "x";
    }
    Declare();
    DeclareVoice(0, "Voices", (root / "voice").string() + "/");
    DeclareVoice(1, "Gone", (root / "none").string() + "/");
    DeclarePath(kq::kPathNumber, 0, "Digits");
  }
  void TearDown() override {
    fs::remove_all(root);
    PromptDialogTest::TearDown();
  }
  static void DeclareVoice(int row, const std::string& name, const std::string& dir) {
    DeclarePath(kq::kPathVoice, row, name);
    kq::SetField(kq::PrgHdr.Path[row][kq::kPathVoice - 65].PathText, dir);
  }
  static std::vector<std::string> Files(const ui::ListBox& list) {
    std::vector<std::string> out;
    for (int i = 0; i < list.ListCount(); ++i) out.push_back(list.List(i));
    return out;
  }
  fs::path root;
};

// ---- Say File

}  // namespace kqtest
