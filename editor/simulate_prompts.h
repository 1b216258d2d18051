// The prompts a simulated call plays, heard through a media control: each file is
// converted to a wave file in the temporary folder and played, one after the other, without
// holding up the run.
#pragma once

#include <deque>
#include <string>
#include <vector>

#include "ui/model/media_control.h"

namespace kq {

class PromptPlayer {
 public:
  // `media` plays; `voxFormat` is the format of ".vox" files (the editor's setting).
  PromptPlayer(ui::MMControl& media, int voxFormat);

  // Queues the files behind those still to play and starts the first when nothing plays.
  void Play(const std::vector<std::string>& files);
  // Drops what is queued and stops the device.
  void Stop();
  size_t Queued() const { return queue_.size(); }

 private:
  void PlayNext();
  ui::MMControl& media_;
  int voxFormat_;
  std::deque<std::string> queue_;
  int made_ = 0;           // wave files made, for their names
  bool starting_ = false;  // within PlayNext: the device's own status calls are not a finish
};

}  // namespace kq
