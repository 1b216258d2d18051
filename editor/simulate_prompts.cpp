#include "editor/simulate_prompts.h"

#include <filesystem>

#include "speech/codec/convert.h"
#include "ui/platform/platform.h"

namespace kq {

namespace fs = std::filesystem;

PromptPlayer::PromptPlayer(ui::MMControl& media, int voxFormat)
    : media_(media), voxFormat_(voxFormat) {
  media_.SetNotify(false);
  media_.SetWait(false);
  media_.SetShareable(false);
  media_.SetDeviceType("WaveAudio");
  // A device that has finished (or was never playing) moves on to the next prompt.
  media_.OnStatusUpdate = [this] {
    if (!queue_.empty() && media_.Mode() != ui::mciModePlay) PlayNext();
  };
}

void PromptPlayer::Play(const std::vector<std::string>& files) {
  const bool idle = queue_.empty() && media_.Mode() != ui::mciModePlay;
  queue_.insert(queue_.end(), files.begin(), files.end());
  if (idle) PlayNext();
}

void PromptPlayer::Stop() {
  queue_.clear();
  if (media_.Mode() == ui::mciModePlay) media_.SetCommand("Stop");
}

void PromptPlayer::PlayNext() {
  // A device that plays nothing (the headless one) ends each prompt at once: the loop
  // then goes through the whole queue here.
  if (starting_) return;
  starting_ = true;
  while (!queue_.empty()) {
    const std::string file = queue_.front();
    queue_.pop_front();
    const int format = speech::SpeechFormatOfFile(file, voxFormat_);
    if (format == speech::kIllegalSpeechFormat) continue;
    const fs::path wave = fs::path(ui::platform().TempDirectory()) /
                          ("kqedit-prompt" + std::to_string(made_++ % 2) + "-" +
                           fs::path(file).filename().string() + ".wav");
    if (speech::Convert(file.c_str(), static_cast<int16_t>(format), 8, wave.string().c_str(), 4,
                        8) != 0) {
      continue;
    }
    media_.SetFileName(wave.string());
    media_.SetCommand("Open");
    media_.SetCommand("Play");
    if (media_.Mode() == ui::mciModePlay) break;
  }
  starting_ = false;
}

}  // namespace kq
