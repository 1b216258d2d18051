// Test applications kept as text form files (the JSON of `kqx export`): one is read, made
// the open document and compiled.
#pragma once

#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>

#include "document/header.h"
#include "document/state.h"
#include "editor/commands.h"
#include "textform/text_form.h"

namespace kq::test {

// False with the reason when the file is missing, its text is refused or it does not
// compile. Needs the usual fixture (a headless platform and the edit list).
inline bool OpenAppText(const std::filesystem::path& file, std::string& error,
                        bool compile = true) {
  std::ifstream in(file, std::ios::binary);
  if (!in) {
    error = "can't read " + file.string();
    return false;
  }
  std::stringstream text;
  text << in.rdbuf();
  textform::StagedDocument doc;
  textform::ImportError fault;
  if (!textform::ParseDocument(text.str(), doc, fault) || !textform::InstallDocument(doc, fault)) {
    error = file.string() + ": " + fault.Text();
    return false;
  }
  if (!compile) return true;
  if (!kq::Compile()) {
    error = file.string() + " does not compile";
    return false;
  }
  PrgHdr.CompiledFlag = -1;
  return true;
}

}  // namespace kq::test
