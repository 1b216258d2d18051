// Where the run's files live. Path texts declared for the application are mapped onto a
// sandbox folder, so that Record Sound, Variable Export, Delete File and the checks never
// reach outside it; prompts are also looked for in the declared folders themselves, read
// only, as the Voice dialog finds them.
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

namespace kq::sim {

class Sandbox {
 public:
  // `root`: the sandbox folder; `base`: the folder against which relative path texts are
  // read (the application file's folder).
  Sandbox(std::filesystem::path root, std::filesystem::path base)
      : root_(std::move(root)), base_(std::move(base)) {}

  const std::filesystem::path& Root() const { return root_; }

  // The sandbox folder of a path text ("C:\VOICE\" is ROOT/C/VOICE, "/srv/msg/" is
  // ROOT/srv/msg, "msg\" is ROOT/msg); nullopt for a text with a ".." step.
  std::optional<std::filesystem::path> Map(std::string_view pathText) const;
  // The sandbox file of a path text and a file name; nullopt for a name that is empty,
  // holds a separator or is "." or "..".
  std::optional<std::filesystem::path> MapFile(std::string_view pathText,
                                               std::string_view fileName) const;
  // The declared folder itself, relative texts read against the base folder.
  std::filesystem::path Declared(std::string_view pathText) const;

  // A file of that name in the folder, the letter case ignored (the names as the board's
  // file system compares them); the exact name wins.
  static std::optional<std::filesystem::path> FindIn(const std::filesystem::path& folder,
                                                     std::string_view fileName);

 private:
  std::filesystem::path root_;
  std::filesystem::path base_;
};

// A file name from the system's text (Windows-1252) to the platform's, and back.
std::filesystem::path NativePath(std::string_view cp1252);
std::string SystemText(const std::filesystem::path& p);

}  // namespace kq::sim
