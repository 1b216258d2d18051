// What each placeholder prompt says: the texts file (file name, text) or the words of the
// file's name.
#pragma once

#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace kq::prompts {

// Texts by file name, the name in capitals so that "welcome.vox" finds "WELCOME.VOX".
using PromptTexts = std::map<std::string, std::string>;

// Reads the CSV of prompt texts (UTF-8): two fields a row, file name and text, fields may be
// quoted with "" for a quote inside; a first row "file,text" is a header; blank lines are
// skipped. False with `error` naming the row when a row has another number of fields, a
// quote is left open or a name is empty. `names`, when given, receives the file names as
// written, in the file's order.
bool ParsePromptTexts(std::string_view csv, PromptTexts& texts, std::string& error,
                      std::vector<std::string>* names = nullptr);

// Reads the texts file at `path` (a name on disk) with ParsePromptTexts; false with `error`
// saying why ("cannot read ...", or the row that is wrong, with the file's name).
bool ReadPromptTextsFile(const std::string& path, PromptTexts& texts, std::string& error,
                         std::vector<std::string>* names = nullptr);

// The key of a file name in PromptTexts.
std::string PromptKey(std::string_view fileName);

// The words of a file name: the extension dropped, underscores, hyphens and dots as blanks,
// a capital after a small letter and a digit after a letter begin a word, all in small
// letters ("ENTER_PIN.VOX" says "enter pin", "Menu2.wav" says "menu 2").
std::string WordsOfFileName(std::string_view fileName);

// The text of a prompt: the texts file's, else the words of its name.
std::string PromptText(const PromptTexts& texts, std::string_view fileName);

}  // namespace kq::prompts
