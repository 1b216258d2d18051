#include "dialogs/frm_right_str.h"

namespace kq {

namespace {
// Target, source, operand.
constexpr VarSlot kSlots[3] = {
    {false, false, true, -1, -1}, {false, false, true, 2, 2}, {true, false, false, 0, 3}};
}  // namespace

frmRightStr::frmRightStr()
    : StringOpDialog("frmRightStr", "Right String", 46, "RIGHT", &RecordSet::RightString, kSlots) {}

}  // namespace kq
