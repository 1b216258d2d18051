#include "dialogs/frm_in_str.h"

namespace kq {

namespace {
// Target, source, operand.
constexpr VarSlot kSlots[3] = {
    {true, false, false, -1, -1}, {false, false, true, 2, 2}, {false, false, true, 2, 2}};
}  // namespace

frmInStr::frmInStr()
    : StringOpDialog("frmInStr", "In String", 48, "INSTR", &RecordSet::InString, kSlots) {}

}  // namespace kq
