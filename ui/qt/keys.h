// The toolkit's key events in the codes of the window model: KeyDown codes of the original
// toolkit, its shift mask, and the Windows-1252 code a typed key puts in.
#pragma once

#include <QKeyEvent>

namespace ui::qt {

// The KeyDown code of a key (65 for A, 46 for Delete, 112 for F1); 0 when it has none.
int VirtualKeyOf(const QKeyEvent& e);
// 1 Shift, 2 Ctrl, 4 Alt.
int ShiftOf(Qt::KeyboardModifiers m);
// The KeyPress code of a key (13 Enter, 27 Escape, 8 Backspace, the character's code);
// -1 when the key types nothing or its character is not in the code page.
int KeyAsciiOf(const QKeyEvent& e);

}  // namespace ui::qt
