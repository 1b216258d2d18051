// The speech tools and the About box built by the generic binding on real widgets.
#include <gtest/gtest.h>

#include <QDialog>
#include <QPushButton>
#include <QScrollBar>
#include <QTest>
#include <filesystem>

#include "editor/tool_forms.h"
#include "speech/forms/frm_recording_wave.h"
#include "ui/qt/form_binding.h"
#include "ui/qt/qt_platform.h"

namespace {

class SpeechFormsGuiTest : public ::testing::Test {
 protected:
  void SetUp() override {
    cwd_ = std::filesystem::current_path();
    platform.SetDataDirectory(KQ_TEST_DATA_DIR);
    ui::SetPlatform(&platform);
  }
  void TearDown() override {
    ui::SetPlatform(nullptr);
    std::filesystem::current_path(cwd_);
  }
  // Shows a form through its menu entry point, checks its title and leaves it by the
  // button labelled Exit.
  void OpenAndExit(void (*show)(), const QString& title,
                   const std::function<void(QDialog&, ui::qt::FormBinding&)>& look = {}) {
    bool shown = false;
    platform.QueueModal([&](QDialog& dialog, ui::qt::FormBinding& b) {
      shown = true;
      EXPECT_TRUE(dialog.windowTitle().startsWith(title));
      if (look) look(dialog, b);
      for (auto* button : dialog.findChildren<QPushButton*>()) {
        if (button->text() == "E&xit") return QTest::mouseClick(button, Qt::LeftButton);
      }
      ADD_FAILURE() << "no Exit button";
      dialog.reject();
    });
    show();
    EXPECT_TRUE(shown);
  }

  ui::qt::QtPlatform platform;
  std::filesystem::path cwd_;
};

TEST_F(SpeechFormsGuiTest, EachSpeechFormOpensAndCloses) {
  OpenAndExit(kq::ShowListen, "Listen To Speech Files");
  OpenAndExit(kq::ShowConvert, "Convert Speech Files From WAVE To");
  OpenAndExit(kq::ShowAbout, "About KQEdit");
  OpenAndExit(kq::ShowRecordingWave, "Recording in WAVE audio format",
              [](QDialog& dialog, ui::qt::FormBinding& b) {
                auto& f = static_cast<kq::frmRecordingWave&>(b.form());
                QWidget* media = b.WidgetOf(f.MMControl1);
                ASSERT_NE(media, nullptr);
                QStringList shown;
                for (auto* button : media->findChildren<QPushButton*>()) {
                  if (button->isVisibleTo(&dialog)) shown << button->text();
                }
                EXPECT_EQ(shown, (QStringList{"Prev", "Next", "Play", "Stop", "Record"}));
                auto* bar = qobject_cast<QScrollBar*>(b.WidgetOf(f.HScroll1));
                ASSERT_NE(bar, nullptr);
                EXPECT_EQ(bar->maximum(), 32767);
                f.mnuFileNew.UserClick();  // the template opens on the real device
                EXPECT_EQ(f.lblBitsValue.Caption(), "16");
                QTest::mouseClick(media->findChildren<QPushButton*>().at(1), Qt::LeftButton);
                EXPECT_EQ(f.lblCurrentValue.Caption(), "0.00");
              });
}

}  // namespace
