#include "prompts/prompt_list.h"

#include <cstring>
#include <filesystem>
#include <set>

#include "document/functions.h"
#include "document/state.h"
#include "document/text.h"
#include "speech/codec/convert.h"
#include "ui/model/list_controls.h"

namespace kq::prompts {

namespace {

namespace fs = std::filesystem;

template <typename Rec>
Rec BlockAs(int line) {
  Rec rec;
  std::memcpy(&rec, FuncBlock[line], sizeof rec);
  return rec;
}

// The text of a fixed field up to its NUL, right-trimmed; a damaged field without its NUL
// gives its whole text rather than ending the program, since only names are looked up here.
std::string FieldText(std::string_view field) {
  const size_t nul = field.find('\0');
  return RTrim(field.substr(0, nul));
}

// The directory declared for a path variable of a kind, or empty.
std::string FolderOf(int32_t type, const std::string& name, const std::string& applFolder) {
  if (name.empty()) return {};
  for (int row = 0; row < kPathRows; ++row) {
    const PathEntry& e = PrgHdr.Path[row][type - kPathExport];
    if (FieldText(View(e.PathName)) != name) continue;
    std::string folder = FieldText(View(e.PathText));
    if (folder.empty()) return {};
    fs::path p(folder);
    if (p.is_relative() && !applFolder.empty()) p = fs::path(applFolder) / p;
    return p.generic_string();
  }
  return {};
}

class Collector {
 public:
  Collector(const std::string& applFolder, int voxFormat)
      : applFolder_(applFolder), voxFormat_(voxFormat) {}

  void Add(int32_t type, std::string_view pathField, std::string_view fileField) {
    NamedPrompt p;
    p.file = FieldText(fileField);
    if (p.file.empty()) return;
    p.pathName = FieldText(pathField);
    p.folder = FolderOf(type, p.pathName, applFolder_);
    p.format = speech::SpeechFormatOfFile(p.file, voxFormat_);
    if (!seen_.insert(p.folder + "\n" + p.pathName + "\n" + p.file).second) return;
    list_.push_back(std::move(p));
  }

  std::vector<NamedPrompt> Take() { return std::move(list_); }

 private:
  std::string applFolder_;
  int voxFormat_;
  std::set<std::string> seen_;
  std::vector<NamedPrompt> list_;
};

}  // namespace

std::vector<NamedPrompt> NamedPrompts(const std::string& applFolder, int voxFormat) {
  Collector found(applFolder, voxFormat);
  const int count = EditList().ListCount();
  for (int line = 0; line < count && line < kMaxLines; ++line) {
    switch (static_cast<Fn>(LineTable[line].LineFuncNo)) {
      case Fn::Voice: {
        const auto rec = BlockAs<VoiceRec>(line);
        for (const auto& file : rec.VoiceFile)
          found.Add(kPathVoice, View(rec.VoicePath), View(file));
        break;
      }
      case Fn::SayNumber: {
        const auto rec = BlockAs<SayNumberRec>(line);
        for (int i = 0; i < 2; ++i) {
          if (rec.PlayFlag[i] != 0) {
            found.Add(kPathVoice, View(rec.SayPath[i]), View(rec.SayVoiceFile[i]));
          }
        }
        break;
      }
      case Fn::SayFile: {
        // A file name given as a string constant; a variable's file is known only at run time.
        const auto rec = BlockAs<SayFileRec>(line);
        if (rec.FileName.VarRefType == 10) {
          found.Add(kPathMessage, View(rec.MessagePath), View(rec.FileName.VarRefName));
        }
        break;
      }
      default:
        break;
    }
  }
  return found.Take();
}

std::vector<NamedPrompt> TextPrompts(const std::vector<std::string>& fileNames,
                                     const std::string& folder, int voxFormat) {
  std::vector<NamedPrompt> list;
  for (const std::string& file : fileNames) {
    list.push_back({file, std::string(), folder, speech::SpeechFormatOfFile(file, voxFormat)});
  }
  return list;
}

std::string PromptPath(const NamedPrompt& prompt) {
  if (prompt.folder.empty()) return prompt.file;
  return (fs::path(prompt.folder) / prompt.file).generic_string();
}

}  // namespace kq::prompts
