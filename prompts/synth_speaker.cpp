// The speaker on the synthesizer library. Its state is global to the process, so it is set
// up once; the voice is chosen again for each speaker opened. The library is loaded when a
// prompt is first spoken, not when a program starts: it brings some thirty libraries of
// sound output and file formats with it, which would be half of every kqx command's start.
#include <dlfcn.h>
#include <espeak-ng/speak_lib.h>

#include <mutex>

#include "prompts/speaker.h"

namespace kq::prompts {

namespace {

// The calls of the synthesizer library that the speaker makes.
struct Synth {
  decltype(&espeak_Initialize) initialize = nullptr;
  decltype(&espeak_SetSynthCallback) setSynthCallback = nullptr;
  decltype(&espeak_SetVoiceByName) setVoiceByName = nullptr;
  decltype(&espeak_Synth) synth = nullptr;
  decltype(&espeak_Synchronize) synchronize = nullptr;
};

template <typename Call>
bool Find(void* handle, const char* name, Call& call) {
  call = reinterpret_cast<Call>(::dlsym(handle, name));
  return call != nullptr;
}

// Loads the library `file` and finds its calls; false with `error` when it cannot. The
// library stays loaded for the rest of the process.
bool LoadSynth(const char* file, Synth& synth, std::string& error) {
  void* handle = ::dlopen(file, RTLD_NOW | RTLD_LOCAL);
  if (handle == nullptr) {
    error = std::string("espeak-ng could not start: its library (") + file + ") is not installed";
    return false;
  }
  if (!Find(handle, "espeak_Initialize", synth.initialize) ||
      !Find(handle, "espeak_SetSynthCallback", synth.setSynthCallback) ||
      !Find(handle, "espeak_SetVoiceByName", synth.setVoiceByName) ||
      !Find(handle, "espeak_Synth", synth.synth) ||
      !Find(handle, "espeak_Synchronize", synth.synchronize)) {
    error = std::string("espeak-ng could not start: its library (") + file + ") lacks a call";
    ::dlclose(handle);
    return false;
  }
  return true;
}

std::mutex synthMutex;
Synth synth;
int synthRate = 0;       // the library's output rate once it is set up; -1 when it failed
std::string synthFault;  // why it failed

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
    if (synth.setVoiceByName(voice_.c_str()) != EE_OK) {
      error = "espeak-ng has no voice \"" + voice_ + "\"";
      return false;
    }
    std::vector<int16_t> samples;
    collecting = &samples;
    const espeak_ERROR result = synth.synth(text.c_str(), text.size() + 1, 0, POS_CHARACTER, 0,
                                            espeakCHARS_UTF8, nullptr, nullptr);
    synth.synchronize();
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
    synthRate = -1;
    if (LoadSynth(SynthLibrary(), synth, synthFault)) {
      synthRate =
          synth.initialize(AUDIO_OUTPUT_SYNCHRONOUS, 0, nullptr, espeakINITIALIZE_DONT_EXIT);
      if (synthRate > 0) synth.setSynthCallback(Collect);
      if (synthRate <= 0) {
        synthRate = -1;
        synthFault = "espeak-ng could not start: its data (espeak-ng-data) is not installed";
      }
    }
  }
  if (synthRate < 0) {
    error = synthFault;
    return nullptr;
  }
  if (voice.empty() || synth.setVoiceByName(voice.c_str()) != EE_OK) {
    error = "espeak-ng has no voice \"" + voice + "\" (espeak-ng --voices lists them)";
    return nullptr;
  }
  return std::make_unique<SynthSpeaker>(voice);
}

const char* SynthLibrary() {
  return KQ_SYNTH_LIBRARY;
}

std::string SynthLibraryFault(const char* file) {
  Synth calls;
  std::string error;
  return LoadSynth(file, calls, error) ? std::string() : error;
}

}  // namespace kq::prompts
