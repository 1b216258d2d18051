// The voice files that an application names, each with the folder of its path variable and
// the speech format its name asks for.
#pragma once

#include <string>
#include <vector>

namespace kq::prompts {

struct NamedPrompt {
  std::string file;      // the file name as the line holds it (Windows-1252)
  std::string pathName;  // the path variable
  std::string folder;    // the path variable's directory; empty when the path is not declared
  int format = 0;        // the speech format of the name's extension
};

// The voice files of the open document, in line order, each once: the five files of Voice,
// the two files of Say Number that its check boxes play, and the constant file name of Say
// File. A relative directory is taken from `applFolder` (the application file's folder);
// ".vox" names are in `voxFormat`, the application's speech format.
std::vector<NamedPrompt> NamedPrompts(const std::string& applFolder, int voxFormat);

// Every file that the texts file lists, in `folder`: for making an application's prompts
// before the application exists (its voice dialogs choose among files that exist).
std::vector<NamedPrompt> TextPrompts(const std::vector<std::string>& fileNames,
                                     const std::string& folder, int voxFormat);

// Where a prompt's file lives: its folder joined with its name.
std::string PromptPath(const NamedPrompt& prompt);

}  // namespace kq::prompts
