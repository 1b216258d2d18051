// The media control over the plain device: lengths from WAVE headers, modes, the buttons a
// person can press and the handler that may cancel a button's command.
#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <string>

#include "ui/headless/headless_platform.h"
#include "ui/model/form.h"
#include "ui/model/media_control.h"

namespace {

namespace fs = std::filesystem;

// A WAVE file with an extra chunk of odd length before the data, as some recorders write.
std::string WriteWave(const fs::path& path, uint32_t byteRate, uint32_t dataBytes) {
  auto le = [](std::ofstream& o, uint32_t v, int n) {
    for (int i = 0; i < n; ++i) o.put(static_cast<char>(v >> (8 * i)));
  };
  std::ofstream o(path, std::ios::binary);
  o << "RIFF";
  le(o, 4 + 24 + 10 + 8 + dataBytes, 4);
  o << "WAVEfmt ";
  le(o, 16, 4);
  le(o, 1, 2);
  le(o, 1, 2);
  le(o, byteRate, 4);
  le(o, byteRate, 4);
  le(o, 1, 2);
  le(o, 8, 2);
  o << "LIST";
  le(o, 1, 4);
  o << "x" << '\0';
  o << "data";
  le(o, dataBytes, 4);
  o << std::string(dataBytes, '\x80');
  return path.string();
}

class MediaControlTest : public ::testing::Test {
 protected:
  void SetUp() override {
    dir = fs::temp_directory_path() / ("kq-media-" + std::to_string(getpid()));
    fs::create_directories(dir);
    ui::SetPlatform(&p);
  }
  void TearDown() override {
    ui::SetPlatform(nullptr);
    fs::remove_all(dir);
  }
  ui::HeadlessPlatform p;
  ui::Form form{"frmTest", "Test"};
  ui::MMControl media{form, "MMControl1"};
  fs::path dir;
};

TEST_F(MediaControlTest, OpensWaveFilesAndSeeksWithinTheirLength) {
  EXPECT_EQ(media.Mode(), ui::mciModeNotOpen);
  media.SetFileName(WriteWave(dir / "a.wav", 8000, 4000));
  media.SetCommand("Open");
  EXPECT_EQ(media.Error(), 0);
  EXPECT_EQ(media.Mode(), ui::mciModeStop);
  EXPECT_EQ(media.Length(), 500);
  media.SetFrom(9999);
  media.SetCommand("Seek");
  EXPECT_EQ(media.Position(), 500);
  media.SetCommand("Prev");
  EXPECT_EQ(media.Position(), 0);

  std::ofstream(dir / "b.wav") << "RIFF....WAVEdata";
  media.SetFileName((dir / "b.wav").string());
  media.SetCommand("Open");
  EXPECT_NE(media.Error(), 0);
  EXPECT_EQ(media.Mode(), ui::mciModeNotOpen);
  media.SetCommand("Play");
  EXPECT_NE(media.Error(), 0);
}

TEST_F(MediaControlTest, ButtonClickMayCancelAndHiddenButtonsCannotBePressed) {
  EXPECT_FALSE(media.UserPress(ui::MediaButton::Play));  // the form is not shown yet
  p.Show(form);
  media.SetFileName(WriteWave(dir / "a.wav", 8000, 800));
  media.SetCommand("Open");
  bool cancel = true;
  media.OnButtonClick = [&](ui::MediaButton, bool& c) { c = cancel; };
  EXPECT_TRUE(media.UserPress(ui::MediaButton::Play));
  EXPECT_EQ(p.EventsOf("media").back().fields["command"].Str(), "Open");
  cancel = false;
  EXPECT_TRUE(media.UserPress(ui::MediaButton::Play));
  EXPECT_EQ(p.EventsOf("media").back().fields["command"].Str(), "Play");
  media.SetButtonEnabled(ui::MediaButton::Record, false);
  EXPECT_FALSE(media.UserPress(ui::MediaButton::Record));
  media.SetVisible(false);
  EXPECT_FALSE(media.UserPress(ui::MediaButton::Stop));
  EXPECT_EQ(ui::MediaButtonOfName("Eject"), 8);
  EXPECT_EQ(ui::MediaButtonOfName("eject"), -1);
}

}  // namespace
