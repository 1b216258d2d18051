#include "editor/desktop_files.h"

#include <cctype>
#include <filesystem>
#include <system_error>

#include "editor/frm_edit.h"

namespace kq {

bool IsApplicationFile(const std::string& path) {
  if (path.size() < 4) return false;
  const std::string ext = path.substr(path.size() - 4);
  return ext[0] == '.' && std::tolower(static_cast<unsigned char>(ext[1])) == 'k' &&
         std::tolower(static_cast<unsigned char>(ext[2])) == 'q' &&
         std::tolower(static_cast<unsigned char>(ext[3])) == 'x';
}

void OpenNamedFile(FrmEdit& form, const std::string& path) {
  std::error_code ignored;
  const std::filesystem::path full = std::filesystem::absolute(path, ignored);
  form.OpenChosenFile(full.empty() ? path : full.lexically_normal().string());
}

void OpenDroppedFile(FrmEdit& form, const std::string& path) {
  if (!IsApplicationFile(path)) return;
  bool cancel = false;
  form.ConfirmChangedFile("Close", cancel);
  if (cancel) return;
  OpenNamedFile(form, path);
}

}  // namespace kq
