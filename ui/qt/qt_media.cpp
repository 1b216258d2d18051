#include "ui/qt/qt_media.h"

#include <QAudioFormat>
#include <QAudioOutput>
#include <QAudioSource>
#include <QFile>
#include <QMediaDevices>
#include <QMediaPlayer>
#include <QUrl>
#include <QtEndian>

#include "ui/platform/platform.h"

namespace ui::qt {

namespace {

uint32_t Le32(const char* p) {
  return qFromLittleEndian<quint32>(p);
}

// The format chunk and the data of a WAVE file; false when it is none.
bool ReadWave(const std::string& fileName, QByteArray& fmt, QByteArray& data) {
  QFile f(QString::fromStdString(fileName));
  if (!f.open(QIODevice::ReadOnly)) return false;
  const QByteArray all = f.readAll();
  if (all.size() < 12 || !all.startsWith("RIFF") || all.mid(8, 4) != "WAVE") return false;
  qsizetype p = 12;
  while (p + 8 <= all.size()) {
    const QByteArray tag = all.mid(p, 4);
    const qsizetype size = Le32(all.constData() + p + 4);
    if (tag == "fmt ") fmt = all.mid(p + 8, size);
    if (tag == "data") {
      data = all.mid(p + 8, size);
      return fmt.size() >= 16;
    }
    p += 8 + size + (size & 1);
  }
  return false;
}

}  // namespace

QtMediaDevice::QtMediaDevice() = default;

QMediaPlayer& QtMediaDevice::Player() {
  if (!player_) {
    // The FFmpeg backend plays plain wave files on every machine; the GStreamer one needs
    // plug-ins that a machine may lack. A choice made in the environment stands.
    if (qEnvironmentVariableIsEmpty("QT_MEDIA_BACKEND")) qputenv("QT_MEDIA_BACKEND", "ffmpeg");
    player_ = std::make_unique<QMediaPlayer>();
    output_ = std::make_unique<QAudioOutput>();
    player_->setAudioOutput(output_.get());
    QObject::connect(player_.get(), &QMediaPlayer::positionChanged, [this](qint64) {
      if (onStatus) onStatus();
    });
    QObject::connect(player_.get(), &QMediaPlayer::playbackStateChanged,
                     [this](QMediaPlayer::PlaybackState state) {
                       if (state != QMediaPlayer::PlayingState) {
                         SetPosition(static_cast<int32_t>(player_->position()));
                       }
                       if (onStatus) onStatus();
                     });
  }
  return *player_;
}

QtMediaDevice::~QtMediaDevice() {
  StopRecording();
  // The player's own threads may still be at work: it goes when the event loop is back.
  if (player_) {
    player_->stop();
    player_.release()->deleteLater();
    output_.release()->deleteLater();
  }
}

int32_t QtMediaDevice::Milliseconds(qsizetype bytes) const {
  return byteRate_ > 0 ? static_cast<int32_t>(qint64{bytes} * 1000 / byteRate_) : 0;
}

int QtMediaDevice::Open(const std::string& deviceType, const std::string& fileName) {
  const int error = MediaDevice::Open(deviceType, fileName);
  if (error != 0) return error;
  fmt_.clear();
  data_.clear();
  if (!ReadWave(fileName, fmt_, data_)) {
    MediaDevice::Close();
    return kMediaErrorFileNotFound;
  }
  byteRate_ = static_cast<int>(Le32(fmt_.constData() + 8));
  changed_ = false;
  playFile_ = fileName;
  sourceSet_ = false;
  return 0;
}

void QtMediaDevice::Close() {
  StopRecording();
  if (player_) {
    player_->stop();
    player_->setSource(QUrl());
  }
  MediaDevice::Close();
}

int QtMediaDevice::Play() {
  if (!IsOpen()) return kMediaErrorNotOpen;
  StopRecording();
  if (changed_) {
    // What was recorded is played from a copy in the temporary folder.
    playFile_ = platform().TempDirectory() + "/recording.wav";
    if (!WriteWave(playFile_)) return kMediaErrorCannotSave;
    sourceSet_ = false;
    changed_ = false;
  }
  if (QMediaDevices::audioOutputs().isEmpty()) {
    // A machine without sound output hears nothing, as the plain device does.
    return MediaDevice::Play();
  }
  if (!sourceSet_) {
    Player().setSource(QUrl::fromLocalFile(QString::fromStdString(playFile_)));
    Player().setPosition(MediaDevice::Position());
    sourceSet_ = true;
  }
  Player().play();
  return 0;
}

int QtMediaDevice::Record() {
  if (!IsOpen()) return kMediaErrorNotOpen;
  if (player_) player_->stop();
  StopRecording();
  if (QMediaDevices::audioInputs().isEmpty()) return MediaDevice::Record();
  QAudioFormat format;
  format.setSampleRate(static_cast<int>(Le32(fmt_.constData() + 4)));
  format.setChannelCount(qFromLittleEndian<quint16>(fmt_.constData() + 2));
  const int bits = qFromLittleEndian<quint16>(fmt_.constData() + 14);
  format.setSampleFormat(bits == 8 ? QAudioFormat::UInt8 : QAudioFormat::Int16);
  source_ = new QAudioSource(QMediaDevices::defaultAudioInput(), format);
  input_ = source_->start();
  if (input_ == nullptr) {
    StopRecording();
    return kMediaErrorNotOpen;
  }
  QObject::connect(input_, &QIODevice::readyRead, [this] {
    data_.append(input_->readAll());
    changed_ = true;
    SetLength(Milliseconds(data_.size()));
    SetPosition(Length());
    if (onStatus) onStatus();
  });
  return 0;
}

void QtMediaDevice::StopRecording() {
  if (source_ == nullptr) return;
  source_->stop();
  delete source_;
  source_ = nullptr;
  input_ = nullptr;
}

int QtMediaDevice::Stop() {
  if (!IsOpen()) return kMediaErrorNotOpen;
  StopRecording();
  if (player_) {
    SetPosition(static_cast<int32_t>(player_->position()));
    player_->pause();
  }
  return 0;
}

int QtMediaDevice::Seek(int32_t milliseconds) {
  const int error = MediaDevice::Seek(milliseconds);
  if (error == 0 && player_) player_->setPosition(MediaDevice::Position());
  return error;
}

bool QtMediaDevice::Playing() const {
  return player_ && player_->playbackState() == QMediaPlayer::PlayingState;
}

int32_t QtMediaDevice::Position() const {
  // Only a playing player knows better than the last seek or stop.
  if (!Playing()) return MediaDevice::Position();
  return static_cast<int32_t>(player_->position());
}

bool QtMediaDevice::WriteWave(const std::string& fileName) const {
  QFile f(QString::fromStdString(fileName));
  if (!f.open(QIODevice::WriteOnly | QIODevice::Truncate)) return false;
  auto le32 = [](quint32 v) {
    char b[4];
    qToLittleEndian(v, b);
    return QByteArray(b, 4);
  };
  QByteArray out = "RIFF" + le32(static_cast<quint32>(4 + 8 + fmt_.size() + 8 + data_.size())) +
                   "WAVE" + "fmt " + le32(static_cast<quint32>(fmt_.size())) + fmt_ + "data" +
                   le32(static_cast<quint32>(data_.size())) + data_;
  return f.write(out) == out.size();
}

int QtMediaDevice::Save(const std::string& fileName) {
  if (!IsOpen()) return kMediaErrorNotOpen;
  return WriteWave(fileName) ? 0 : kMediaErrorCannotSave;
}

}  // namespace ui::qt
