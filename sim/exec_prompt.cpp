// Prompt and input functions: Voice, Say Number, Say File, Get Keys, Wait for Key,
// Record Sound.
#include <cstring>
#include <fstream>
#include <iterator>

#include "document/functions.h"
#include "document/header.h"
#include "document/state.h"
#include "document/text.h"
#include "sim/engine.h"
#include "sim/record_of.h"
#include "speech/codec/codecs.h"
#include "speech/codec/convert.h"
#include "speech/codec/resample.h"
#include "speech/codec/wave_file.h"

namespace kq::sim {

namespace fs = std::filesystem;

namespace {

std::string Field16(const char (&f)[16]) {
  std::string_view v(f, 16);
  const size_t nul = v.find('\0');
  std::string s(v.substr(0, nul == std::string_view::npos ? 16 : nul));
  while (!s.empty() && s.back() == ' ') s.pop_back();
  return s;
}

bool ReadBytes(const fs::path& p, std::vector<uint8_t>& out) {
  std::ifstream in(p, std::ios::binary);
  if (!in) return false;
  out.assign(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
  return true;
}

bool IsWave(const std::string& name) {
  return name.size() >= 4 && (name.compare(name.size() - 4, 4, ".wav") == 0 ||
                              name.compare(name.size() - 4, 4, ".WAV") == 0);
}

// The counter's number before the extension: "msg.vox" with 7 is "msg0007.vox".
std::string WithCounter(const std::string& name, int64_t counter) {
  const size_t dot = name.find_last_of('.');
  const std::string n = Format0000(counter);
  return dot == std::string::npos ? name + n : name.substr(0, dot) + n + name.substr(dot);
}

LabelRef EntryLabel(const char (&name)[16], int32_t line) {
  LabelRef r;
  std::memcpy(r.LabelRefName, name, 16);
  r.LabelRefLine = line;
  return r;
}

int KeyIndex(char k) {
  if (k >= '0' && k <= '9') return k - '0';
  if (k == '#') return 10;
  if (k == '*') return 11;
  if (k >= 'A' && k <= 'D') return 12 + (k - 'A');
  return 17;
}

}  // namespace

std::string Engine::PathText(int32_t type, const char* name28) const {
  const int t = type - kPathExport;
  if (t < 0 || t >= kPathTypes) return {};
  for (int row = 0; row < kPathRows; ++row) {
    if (std::memcmp(PrgHdr.Path[row][t].PathName, name28, 28) == 0) {
      return pathTexts_[t * kPathRows + row];
    }
  }
  return {};
}

bool Engine::PathDeclared(int32_t type, const char* name28) const {
  const int t = type - kPathExport;
  if (t < 0 || t >= kPathTypes || name28[0] == '\0') return false;
  for (int row = 0; row < kPathRows; ++row) {
    if (std::memcmp(PrgHdr.Path[row][t].PathName, name28, 28) == 0) return true;
  }
  return false;
}

std::string Engine::FindPrompt(const std::string& pathText, const std::string& file,
                               std::string& why) {
  std::optional<fs::path> found;
  if (auto mapped = sandbox_.Map(pathText)) found = Sandbox::FindIn(*mapped, file);
  if (!found) found = Sandbox::FindIn(sandbox_.Declared(pathText), file);
  if (!found) {
    why = "file " + file + " not found in " + pathText;
    return {};
  }
  if (options_.decodePrompts) {
    std::vector<uint8_t> bytes;
    if (!ReadBytes(*found, bytes)) {
      why = "file " + file + " cannot be read";
      return {};
    }
    if (IsWave(file)) {
      speech::Pcm pcm;
      if (speech::ParseWave(bytes, pcm) != 0) {
        why = "file " + file + " is not a valid WAVE file";
        return {};
      }
    } else {
      const int format = speech::SpeechFormatOfFile(file, options_.speechFormat);
      if (!speech::IsSpeechFormat(format) || format == speech::kWave) {
        why = "file " + file + " has no speech file extension";
        return {};
      }
      (void)speech::Decode(format, bytes);
    }
  }
  return SystemText(*found);
}

int64_t Engine::PromptMs(const std::string& file) {
  std::error_code ec;
  const fs::path p = NativePath(file);
  const auto size = static_cast<int64_t>(fs::file_size(p, ec));
  if (ec) return 0;
  if (IsWave(file)) {
    std::vector<uint8_t> bytes;
    speech::Pcm pcm;
    if (!ReadBytes(p, bytes) || speech::ParseWave(bytes, pcm) != 0 || pcm.rate <= 0) return 0;
    return static_cast<int64_t>(pcm.samples.size()) * 1000 / pcm.rate;
  }
  switch (speech::SpeechFormatOfFile(file, options_.speechFormat)) {
    case speech::kRhetorex32:
    case speech::kOki32:
      return size * 2 / 8;
    case speech::kRhetorex24:
      return size * 8 / 3 / 8;
    case speech::kULaw:
    case speech::kALaw:
      return size / 8;
    case speech::kLinear:
      return size / 16;
    case speech::kOki24:
      return size * 2 / 6;
    default:
      return 0;
  }
}

StepStatus Engine::PlayFiles(const std::vector<std::string>& files, bool disableHangup,
                             const LabelRef* hangup) {
  int64_t ms = 0;
  for (const std::string& f : files) ms += PromptMs(f);
  trace_.Begin("play").Field("files", files).End();
  const LineStatus s = call_.Play(ms, !disableHangup);
  if (s == LineStatus::Pending) return StepStatus::Waiting;
  if (s == LineStatus::Hangup) HungUp(hangup);
  if (s == LineStatus::Done && onPlay) onPlay(files);
  return StepStatus::Ran;
}

std::string Engine::SayNumberFile(const std::string& pathText, const std::string& name,
                                  std::string& why) {
  static const char* kExt[] = {".vox", ".lin", ".r32", ".r24", ".o32",
                               ".o24", ".alw", ".mlw", ".wav"};
  for (const char* ext : kExt) {
    std::string ignored;
    std::string f = FindPrompt(pathText, name + ext, ignored);
    if (!f.empty()) return f;
  }
  why = "no speech file " + name + " in " + pathText;
  return {};
}

StepStatus Engine::ExecPrompt(const uint8_t* block, int fn) {
  switch (ToFn(fn)) {
    case Fn::Voice: {
      const auto r = RecordOf<VoiceRec>(block);
      const std::string path = PathText(kPathVoice, r.VoicePath);
      std::vector<std::string> files;
      for (const auto& name : r.VoiceFile) {
        const std::string n = Field16(name);
        if (n.empty()) continue;
        std::string why;
        std::string f = FindPrompt(path, n, why);
        if (f.empty()) {
          Fail(r.ErrorLabel, "Voice: " + why);
          return StepStatus::Ran;
        }
        files.push_back(f);
      }
      return PlayFiles(files, r.DisableHangup != 0, &r.HangupLabel);
    }
    case Fn::SayFile: {
      const auto r = RecordOf<SayFileRec>(block);
      std::string name;
      if (!ReadText(r.FileName, name)) {
        Fail(r.ErrorLabel, "Say File: '" + VarText(r.FileName) + "' has no value");
        return StepStatus::Ran;
      }
      if (r.CounterActive != 0) name = WithCounter(name, counter_);
      std::string why;
      std::string f = FindPrompt(PathText(kPathMessage, r.MessagePath), name, why);
      if (f.empty()) {
        Fail(r.ErrorLabel, "Say File: " + why);
        return StepStatus::Ran;
      }
      return PlayFiles({f}, r.DisableHangup != 0, &r.HangupLabel);
    }
    case Fn::SayNumber: {
      const auto r = RecordOf<SayNumberRec>(block);
      Value v;
      if (!Read(r.Number, v)) {
        Fault("Say Number: '" + VarText(r.Number) + "' has no value");
        return StepStatus::Ran;
      }
      const std::string text = ToText(v);
      const size_t dot = text.find('.');
      std::string whole = text.substr(0, dot),
                  part = dot == std::string::npos ? "" : text.substr(dot + 1);
      const std::string numberPath(PathText(kPathNumber, r.SayPath[2]));
      std::vector<std::string> files;
      std::string why;
      auto say = [&](const std::string& digits) {
        for (char c : digits) {
          const std::string name = c == '-' ? "minus" : std::string(1, c);
          if (!(c == '-' || (c >= '0' && c <= '9'))) {
            why = "'" + text + "' cannot be said";
            return false;
          }
          std::string f = SayNumberFile(numberPath, name, why);
          if (f.empty()) return false;
          files.push_back(f);
        }
        return true;
      };
      auto voice = [&](int i) {
        std::string f =
            FindPrompt(PathText(kPathVoice, r.SayPath[i]), Field16(r.SayVoiceFile[i]), why);
        if (f.empty()) return false;
        files.push_back(f);
        return true;
      };
      bool ok = true;
      if (r.Layout == 2) {
        ok = say(part);
      } else {
        ok = say(whole);
        if (ok && r.Layout == 0 && !part.empty()) {
          if (r.PlayFlag[0] != 0) {
            ok = voice(0);
          } else {
            std::string f = SayNumberFile(numberPath, "point", why);
            ok = !f.empty();
            if (ok) files.push_back(f);
          }
          ok = ok && say(part);
        }
      }
      if (ok && r.PlayFlag[1] != 0) ok = voice(1);
      if (!ok) {
        Fault("Say Number: " + why);
        return StepStatus::Ran;
      }
      return PlayFiles(files, r.DisableHangup != 0, &r.HangupLabel);
    }
    case Fn::GetKeys: {
      const auto r = RecordOf<GetKeysRec>(block);
      const int count = r.KeyCount >= 1 ? r.KeyCount - 1 : -1;
      static const char kTerm[] = "\0000123456789*#ABCD";
      const char term = r.TermKey >= 1 && r.TermKey <= 16 ? kTerm[r.TermKey] : 0;
      bool timedOut = false;
      while (count < 0 || static_cast<int>(pendingKeys_.size()) < count) {
        const KeyResult k =
            call_.NextKey(static_cast<int64_t>(r.TimeoutSec) * 1000, r.DisableHangup == 0);
        if (k.status == LineStatus::Pending) return StepStatus::Waiting;
        if (k.status == LineStatus::Hangup) {
          pendingKeys_.clear();
          HungUp(&r.HangupLabel);
          return StepStatus::Ran;
        }
        if (k.status == LineStatus::Timeout) {
          timedOut = true;
          break;
        }
        if (term != 0 && k.key == term) break;
        pendingKeys_ += k.key;
      }
      const std::string keys = std::move(pendingKeys_);
      pendingKeys_.clear();
      if (timedOut && keys.empty()) {
        trace_.Begin("timeout").Field("line", line_).End();
        Take(r.TimeoutLabel);
        return StepStatus::Ran;
      }
      trace_.Begin("keys").Field("keys", keys).End();
      if (!Write(r.Target, Value::OfString(keys))) {
        Fail(r.ErrorLabel, "Get Keys: '" + keys + "' does not fit " + VarText(r.Target));
      }
      return StepStatus::Ran;
    }
    case Fn::WaitForKey: {
      const auto r = RecordOf<WaitForKeyRec>(block);
      const KeyResult k =
          call_.NextKey(static_cast<int64_t>(r.TimeoutSec) * 1000, r.DisableHangup == 0);
      if (k.status == LineStatus::Pending) return StepStatus::Waiting;
      if (k.status == LineStatus::Hangup) {
        const LabelRef h = EntryLabel(r.KeyLabel[16], r.KeyLine[16]);
        HungUp(&h);
        return StepStatus::Ran;
      }
      if (k.status == LineStatus::Timeout) {
        trace_.Begin("timeout").Field("line", line_).End();
        Take(r.KeyLabel[18], r.KeyLine[18]);
        return StepStatus::Ran;
      }
      trace_.Begin("keys").Field("keys", std::string(1, k.key)).End();
      const int i = KeyIndex(k.key);
      if (!Take(r.KeyLabel[i], r.KeyLine[i])) Take(r.KeyLabel[17], r.KeyLine[17]);
      return StepStatus::Ran;
    }
    case Fn::RecordSound: {
      const auto r = RecordOf<RecordSoundRec>(block);
      StepStatus status = StepStatus::Ran;
      RecordSound(r, status);
      return status;
    }
    default:
      Fault("illegal function number" + Str(static_cast<int64_t>(fn)));
      return StepStatus::Ran;
  }
}

void Engine::RecordSound(const RecordSoundRec& r, StepStatus& status) {
  std::string name;
  if (!ReadText(r.FileName, name)) {
    Fail(r.ErrorLabel, "Record Sound: '" + VarText(r.FileName) + "' has no value");
    return;
  }
  if (r.CounterActive != 0) name = WithCounter(name, counter_);
  const auto file = sandbox_.MapFile(PathText(kPathMessage, r.MessagePath), name);
  const int format =
      IsWave(name) ? speech::kWave : speech::SpeechFormatOfFile(name, options_.speechFormat);
  if (!file || !speech::IsSpeechFormat(format)) {
    Fail(r.ErrorLabel, "Record Sound: '" + name + "' is no speech file name in the sandbox");
    return;
  }
  if (r.BeepBefore != 0) trace_.Begin("beep").End();
  RecordResult rec = call_.Record(static_cast<int64_t>(r.MaxRecordSec) * 1000,
                                  static_cast<int64_t>(r.SilenceSec) * 1000, r.DisableHangup == 0);
  if (rec.status == LineStatus::Pending) {
    status = StepStatus::Waiting;
    return;
  }
  if (rec.status == LineStatus::Timeout ||
      (rec.status == LineStatus::Hangup && rec.samples.empty())) {
    if (rec.status == LineStatus::Hangup) {
      HungUp(&r.HangupLabel);
      return;
    }
    trace_.Begin("silence").Field("line", line_).End();
    Take(r.SilenceLabel);
    return;
  }
  std::vector<uint8_t> bytes;
  std::error_code ec;
  const bool append = r.Append != 0 && fs::exists(*file, ec);
  if (format == speech::kWave) {
    speech::Pcm pcm{rec.samples, 8000};
    if (append) {
      std::vector<uint8_t> old;
      speech::Pcm before;
      if (ReadBytes(*file, old) && speech::ParseWave(old, before) == 0 && before.rate == 8000) {
        before.samples.insert(before.samples.end(), pcm.samples.begin(), pcm.samples.end());
        pcm = std::move(before);
      }
    }
    bytes = speech::WaveImage(pcm);
  } else {
    std::vector<int16_t> s = rec.samples;
    if (speech::FormatRate(format) != 8000)
      s = speech::Resample(s, 8000, speech::FormatRate(format));
    bytes = speech::Encode(format, s);
  }
  fs::create_directories(file->parent_path(), ec);
  std::ofstream out(
      *file,
      std::ios::binary | (append && format != speech::kWave ? std::ios::app : std::ios::trunc));
  out.write(reinterpret_cast<const char*>(bytes.data()),
            static_cast<std::streamsize>(bytes.size()));
  out.close();
  if (!out) {
    Fail(r.ErrorLabel, "Record Sound: " + name + " cannot be written");
    return;
  }
  trace_.Begin("record")
      .Field("file", SystemText(*file))
      .Field("ms", static_cast<int64_t>(rec.samples.size() / 8))
      .End();
  if (r.CounterActive != 0) ++counter_;
  if (rec.status == LineStatus::Hangup) HungUp(&r.HangupLabel);
}

}  // namespace kq::sim
