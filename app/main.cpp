// KQEdit: the desktop program. The main window reads its settings before it exists, then
// is loaded and shown; the window system's loop is the program's only loop.
#include "app/startup.h"

int main(int argc, char** argv) {
  return kq::desktop::RunKQEdit(argc, argv);
}
