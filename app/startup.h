// The desktop program's start: the main window on the Qt platform, the window system's
// clipboard, files dropped on the window, and a file named on the command line.
#pragma once

#include <QStringList>

namespace ui::qt {
class QtPlatform;
}

namespace kq {

class FrmEdit;

namespace desktop {

// Shows the main window (the second stage of start-up), lets it take application files
// dropped on it, then opens the first argument behind the program's name, if there is
// one, as File > Open opens a chosen file. A refused file leaves the editor open.
void StartEditor(ui::qt::QtPlatform& platform, FrmEdit& form, const QStringList& arguments);

// The whole program: returns the event loop's exit code.
int RunKQEdit(int argc, char** argv);

}  // namespace desktop
}  // namespace kq
