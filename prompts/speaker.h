// Speech synthesis for placeholder prompts. The one place that talks to the synthesizer
// library; the rest of the program sees text in and samples out.
#pragma once

#include <memory>
#include <string>

#include "speech/codec/wave_file.h"

namespace kq::prompts {

class Speaker {
 public:
  virtual ~Speaker() = default;
  // Speaks `text` (UTF-8) into `pcm`. False with `error` when nothing could be spoken.
  virtual bool Speak(const std::string& text, speech::Pcm& pcm, std::string& error) = 0;
};

// The synthesizer with a voice of a language ("en", "de", "en-us"). Null, with `error`
// saying why, when the synthesizer's data or the voice is missing.
std::unique_ptr<Speaker> OpenSynthSpeaker(const std::string& voice, std::string& error);

// The name of the synthesizer's shared library, loaded when a speaker is first opened.
const char* SynthLibrary();

// Empty when the synthesizer's shared library `file` loads with every call the speaker
// makes, else the message that opening a speaker would give.
std::string SynthLibraryFault(const char* file);

}  // namespace kq::prompts
