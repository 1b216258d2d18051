// Combos of arithmetic and relational operators for a slot of a given data type.
#include "dialogs/services.h"
#include "document/text.h"
#include "ui/platform/platform.h"

namespace kq {

namespace {

void Fill(ListControl combo, std::initializer_list<const char*> entries, int32_t selected) {
  combo.Clear();
  for (const char* e : entries) combo.AddItem(e);
  // A stored operator the slot does not offer (the variable's type changed) falls back to
  // the first entry.
  if (selected < 0 || selected >= combo.ListCount()) selected = 0;
  combo.SetListIndex(selected);
}

}  // namespace

void GetArithmeticOpr(ListControl combo, int32_t dataType, int32_t selected) {
  switch (dataType) {
    case 0:
      Fill(combo, {"+", "-", "*", "/"}, selected == 4 ? 0 : selected);
      break;
    case 1:
      Fill(combo, {"+", "-", "*", "/", "^"}, selected);
      break;
    case 2:
      Fill(combo, {"&"}, 0);
      break;
    default:
      ui::ProgramError("Illegal variable datatype " + Str(int64_t{dataType}) +
                       " in Global GetArithmeticOpr");
  }
}

void GetRelationalOpr(ListControl combo, int32_t dataType, int32_t selected) {
  switch (dataType) {
    case 0:
    case 1:
      Fill(combo, {"=", "<>", "<", ">", "<=", ">="}, selected);
      break;
    case 2:
      Fill(combo, {"=", "<>"}, selected < 2 ? selected : 0);
      break;
    default:
      ui::ProgramError("Illegal variable datatype " + Str(int64_t{dataType}) +
                       " in Global GetRelationalOpr.");
  }
}

}  // namespace kq
