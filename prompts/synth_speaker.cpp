// The speaker on the synthesizer library. Its state is global to the process, so it is set
// up once; the voice is chosen again for each speaker opened.
#include <espeak-ng/speak_lib.h>

#include <mutex>

#include "prompts/speaker.h"

namespace kq::prompts {

namespace {

std::mutex synthMutex;
int synthRate = 0;  // the library's output rate once it is set up; -1 when it failed

std::vector<int16_t>* collecting = nullptr;

int Collect(short* samples, int count, espeak_EVENT*) {
  if (samples != nullptr && count > 0 && collecting != nullptr) {
    collecting->insert(collecting->end(), samples, samples + count);
  }
  return 0;  // go on
}

class SynthSpeaker : public Speaker {
 public:
  explicit SynthSpeaker(std::string voice) : voice_(std::move(voice)) {}

  bool Speak(const std::string& text, speech::Pcm& pcm, std::string& error) override {
    std::lock_guard lock(synthMutex);
    if (espeak_SetVoiceByName(voice_.c_str()) != EE_OK) {
      error = "espeak-ng has no voice \"" + voice_ + "\"";
      return false;
    }
    std::vector<int16_t> samples;
    collecting = &samples;
    const espeak_ERROR result = espeak_Synth(text.c_str(), text.size() + 1, 0, POS_CHARACTER, 0,
                                             espeakCHARS_UTF8, nullptr, nullptr);
    espeak_Synchronize();
    collecting = nullptr;
    if (result != EE_OK || samples.empty()) {
      error = "espeak-ng could not speak \"" + text + "\"";
      return false;
    }
    pcm.samples = std::move(samples);
    pcm.rate = synthRate;
    return true;
  }

 private:
  std::string voice_;
};

}  // namespace

std::unique_ptr<Speaker> OpenSynthSpeaker(const std::string& voice, std::string& error) {
  std::lock_guard lock(synthMutex);
  if (synthRate == 0) {
    synthRate = espeak_Initialize(AUDIO_OUTPUT_SYNCHRONOUS, 0, nullptr, espeakINITIALIZE_DONT_EXIT);
    if (synthRate > 0) espeak_SetSynthCallback(Collect);
    if (synthRate <= 0) synthRate = -1;
  }
  if (synthRate < 0) {
    error = "espeak-ng could not start: its data (espeak-ng-data) is not installed";
    return nullptr;
  }
  if (voice.empty() || espeak_SetVoiceByName(voice.c_str()) != EE_OK) {
    error = "espeak-ng has no voice \"" + voice + "\" (espeak-ng --voices lists them)";
    return nullptr;
  }
  return std::make_unique<SynthSpeaker>(voice);
}

}  // namespace kq::prompts
