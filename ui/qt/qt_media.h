// The media device of the desktop: wave audio played through Qt Multimedia and recorded
// from the default input in the format of the opened file; Save writes a WAVE file.
#pragma once

#include <QByteArray>
#include <memory>

#include "ui/platform/media.h"

class QMediaPlayer;
class QAudioOutput;
class QAudioSource;
class QIODevice;

namespace ui::qt {

class QtMediaDevice : public MediaDevice {
 public:
  QtMediaDevice();
  ~QtMediaDevice() override;
  int Open(const std::string& deviceType, const std::string& fileName) override;
  void Close() override;
  int Play() override;
  int Record() override;
  int Stop() override;
  int Seek(int32_t milliseconds) override;
  int Save(const std::string& fileName) override;
  bool Playing() const override;
  bool Recording() const override { return source_ != nullptr; }
  int32_t Position() const override;

 private:
  int32_t Milliseconds(qsizetype bytes) const;
  bool WriteWave(const std::string& fileName) const;
  void StopRecording();
  QMediaPlayer& Player();  // made on first play

  std::unique_ptr<QMediaPlayer> player_;
  std::unique_ptr<QAudioOutput> output_;
  QAudioSource* source_ = nullptr;
  QIODevice* input_ = nullptr;
  // The format chunk and the sound of the open file, with what has been recorded.
  QByteArray fmt_;
  QByteArray data_;
  int byteRate_ = 0;
  bool changed_ = false;
  bool sourceSet_ = false;
  std::string playFile_;
};

}  // namespace ui::qt
