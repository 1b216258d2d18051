// Opening a function dialog: what the function needs to have been declared, then its
// dialog. All checks of a function run, so that every missing declaration is reported.
#include "dialogs/dialogs.h"
#include "dialogs/func_dialog.h"
#include "dialogs/services.h"
#include "document/catalogue.h"
#include "document/state.h"
#include "document/text.h"
#include "ui/platform/platform.h"

namespace kq {

namespace {

[[noreturn]] void IllegalFunction(int funcNo, const char* where) {
  ui::ProgramError("Illegal Function Number " + Str(static_cast<int64_t>(funcNo)) + " in Global " +
                   where + ".");
}

bool HasVariableOf(int32_t type) {
  for (const VarRef& v : PrgHdr.Variable) {
    if (!FieldEmpty(View(v.VarRefName)) && v.VarRefType == type) return true;
  }
  return false;
}

// What each function needs declared before its dialog opens, by function number.
constexpr unsigned kNeedsVar = 1, kNeedsPath = 2, kNeedsTable = 4;
constexpr unsigned V = kNeedsVar, P = kNeedsPath, T = kNeedsTable;
constexpr unsigned kNeeds[kFuncCount] = {
    V,     P,     V,     V,     0, V,         V,     V,     V,     0,      // 0 to 9
    0,     V,     V | P, 0,     0, 0,         V | P, V | P, P,     0,      // 10 to 19
    0,     V | P, 0,     0,     T, T,         T,     T,     T,     T,      // 20 to 29
    T,     T,     T,     T,     T, 0,         V,     V,     T | V, T | V,  // 30 to 39
    T,     V,     0,     0,     V, V,         V,     V,     V,     P,      // 40 to 49
    V | P, V | P, V,     V | P, V, T | V | P,                              // 50 to 55
};

bool PathTypeDefined(int32_t letter) {
  return !FieldEmpty(View(PrgHdr.Path[0][letter - kPathExport].PathName));
}

}  // namespace

bool DefinedVar(bool showMessage, int funcNo) {
  bool found = false;
  const char* text = nullptr;
  switch (funcNo) {
    case 0:
    case 2:
    case 3:
    case 7:
    case 16:
    case 17:
      found = HasVariableOf(kVarLong) || HasVariableOf(kVarDouble) || HasVariableOf(kVarString);
      text = "Define a long, double or string variable before using this function.";
      break;
    case 5:
    case 6:
    case 8:
    case 19:
    case 36:
    case 37:
      found = HasVariableOf(kVarLong) || HasVariableOf(kVarString);
      text = "Define a long or string variable before using this function.";
      break;
    case 11:
    case 38:
    case 39:
    case 41:
    case 52:
    case 54:
    case 55:
      found = HasVariableOf(kVarLong);
      text = "Define a long variable before using this function.";
      break;
    case 12:
    case 21:
    case 44:
    case 50:
    case 51:
    case 53:
      found = HasVariableOf(kVarString);
      text = "Define a string variable before using this function.";
      break;
    case 45:
    case 46:
    case 47:
    case 48:
      found = HasVariableOf(kVarLong) && HasVariableOf(kVarString);
      text = "Define a long and string variable before using this function.";
      break;
    default:
      IllegalFunction(funcNo, "DefinedVar");
  }
  if (!found && showMessage) {
    ui::platform().MsgBox(text, ui::vbOKOnly | ui::vbExclamation, "Variable Define Error");
  }
  return found;
}

bool DefinedPath(bool showMessage, int funcNo) {
  bool found = false;
  const char* text = nullptr;
  switch (funcNo) {
    case 1:
    case 49:
    case 50:
    case 55:
      found = PathTypeDefined(kPathExport) || PathTypeDefined(kPathMessage) ||
              PathTypeDefined(kPathNumber) || PathTypeDefined(kPathVoice) ||
              PathTypeDefined(kPathGeneral);
      text =
          "Define a export, message, number, voice or general path variable before using this "
          "function.";
      break;
    case 51:
      found = PathTypeDefined(kPathExport) || PathTypeDefined(kPathMessage) ||
              PathTypeDefined(kPathNumber) || PathTypeDefined(kPathVoice);
      text = "Define a export, message, number or voice path variable before using this function.";
      break;
    case 12:
    case 21:
      found = PathTypeDefined(kPathMessage);
      text = "Define a message path variable before using this function.";
      break;
    case 16:
      found = PathTypeDefined(kPathNumber);
      text = "Define a number path variable before using this function.";
      break;
    case 17:
      found = PathTypeDefined(kPathExport);
      text = "Define a export path variable before using this function.";
      break;
    case 18:
      found = PathTypeDefined(kPathVoice);
      text = "Define a voice path variable before using this function.";
      break;
    case 53:
      found = PathTypeDefined(kPathGeneral);
      text = "Define a general path variable before using this function.";
      break;
    default:
      IllegalFunction(funcNo, "DefinedPath");
  }
  if (!found && showMessage) {
    ui::platform().MsgBox(text, ui::vbOKOnly | ui::vbExclamation, "Path Variable Define Error");
  }
  return found;
}

bool DefinedDBTbl() {
  for (const TableEntry& t : PrgHdr.Table) {
    if (!FieldEmpty(View(t.TableName))) return true;
  }
  ui::platform().MsgBox("Define a Database table name before using this function.",
                        ui::vbOKOnly | ui::vbExclamation, "Database table name Define Error");
  return false;
}

void GetFuncParm(int funcNo) {
  if (!IsLiveFunction(funcNo)) IllegalFunction(funcNo, "GetFuncParm");
  // A refused function leaves the editor nothing to take, whatever an earlier dialog left.
  FuncOk = false;
  const unsigned needs = kNeeds[funcNo];
  bool ok = true;
  // Every check runs, in this order, so that each missing declaration is reported.
  if (needs & kNeedsTable) ok = DefinedDBTbl() && ok;
  if (needs & kNeedsVar) ok = DefinedVar(true, funcNo) && ok;
  if (needs & kNeedsPath) ok = DefinedPath(true, funcNo) && ok;
  if (!ok) return;
  if (!ShowFuncDialog(funcNo)) {
    ui::platform().MsgBox("This function's dialog is not available yet.", ui::vbOKOnly, "Function");
  }
}

}  // namespace kq
