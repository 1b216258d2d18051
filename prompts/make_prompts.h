// Making the missing placeholder prompts of an application: each voice file that is not in
// its folder is spoken from its text and converted to the format its name asks for. A file
// that exists is never touched.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "prompts/prompt_list.h"
#include "prompts/prompt_texts.h"
#include "prompts/speaker.h"

namespace kq::prompts {

enum class Outcome {
  Made,       // spoken and written
  Exists,     // the file was there already and is left as it is
  NoFolder,   // the path variable is not declared, or its directory does not exist
  NoFormat,   // the name's extension is no speech format
  Failed,     // speaking or converting failed (detail says why)
  Cancelled,  // not reached: the run was cancelled before it
};

struct PromptResult {
  NamedPrompt prompt;
  Outcome outcome = Outcome::Cancelled;
  std::string text;    // what was (or would have been) spoken, UTF-8
  std::string detail;  // for NoFolder and Failed, what went wrong
};

// The word for an outcome: "made", "exists", "no folder", "no format", "failed", "cancelled".
const char* OutcomeName(Outcome outcome);

// Called before each prompt with its index and the count; returns false to stop there.
using Progress = std::function<bool(size_t index, size_t count, const NamedPrompt& prompt)>;

// Makes the missing files of `prompts` in order, speaking the text of each through
// `speaker`. Every prompt gets a result; those after a cancel are Cancelled.
std::vector<PromptResult> MakeMissingPrompts(const std::vector<NamedPrompt>& prompts,
                                             const PromptTexts& texts, Speaker& speaker,
                                             const Progress& progress = {});

}  // namespace kq::prompts
