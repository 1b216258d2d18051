#include "dialogs/frm_left_str.h"

namespace kq {

namespace {
// Target, source, operand.
constexpr VarSlot kSlots[3] = {
    {false, false, true, -1, -1}, {false, false, true, 2, 2}, {true, false, false, 0, 3}};
}  // namespace

frmLeftStr::frmLeftStr()
    : StringOpDialog("frmLeftStr", "Left String", 47, "LEFT", &RecordSet::LeftString, kSlots) {}

}  // namespace kq
