// Files that reach the editor from the desktop rather than from its file dialog: one named
// on the command line, one dropped on the window. Both go the way of File > Open.
#pragma once

#include <string>

namespace kq {

class FrmEdit;

// True for a name ending in ".kqx", in any case.
bool IsApplicationFile(const std::string& path);

// Opens the file as File > Open opens a chosen one: the guard against an open document,
// then title, name and folder from the file, then the open with all its refusals. A
// relative name is taken from the current folder.
void OpenNamedFile(FrmEdit& form, const std::string& path);

// A file dropped on the window: the document is closed first as File > Close closes it
// (its prompts may cancel), then the file is opened. Anything but an application file is
// passed over.
void OpenDroppedFile(FrmEdit& form, const std::string& path);

}  // namespace kq
