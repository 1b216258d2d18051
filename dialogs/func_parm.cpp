// Opening a function dialog: what the function needs to have been declared, then its
// dialog. All checks of a function run, so that every missing declaration is reported.
#include "dialogs/dialogs.h"
#include "dialogs/func_dialog.h"
#include "dialogs/services.h"
#include "document/catalogue.h"
#include "document/function_table.h"
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

bool PathTypeDefined(int32_t letter) {
  return !FieldEmpty(View(PrgHdr.Path[0][letter - kPathExport].PathName));
}

}  // namespace

bool DefinedVar(bool showMessage, int funcNo) {
  const FunctionInfo* fn = FunctionOf(funcNo);
  bool found = false;
  const char* text = nullptr;
  switch (fn == nullptr ? VarNeed::None : fn->varNeed) {
    case VarNeed::Any:
      found = HasVariableOf(kVarLong) || HasVariableOf(kVarDouble) || HasVariableOf(kVarString);
      text = "Define a long, double or string variable before using this function.";
      break;
    case VarNeed::LongOrString:
      found = HasVariableOf(kVarLong) || HasVariableOf(kVarString);
      text = "Define a long or string variable before using this function.";
      break;
    case VarNeed::Long:
      found = HasVariableOf(kVarLong);
      text = "Define a long variable before using this function.";
      break;
    case VarNeed::String:
      found = HasVariableOf(kVarString);
      text = "Define a string variable before using this function.";
      break;
    case VarNeed::LongAndString:
      found = HasVariableOf(kVarLong) && HasVariableOf(kVarString);
      text = "Define a long and string variable before using this function.";
      break;
    case VarNeed::None:
      IllegalFunction(funcNo, "DefinedVar");
  }
  if (!found && showMessage) {
    ui::platform().MsgBox(text, ui::vbOKOnly | ui::vbExclamation, "Variable Define Error");
  }
  return found;
}

bool DefinedPath(bool showMessage, int funcNo) {
  const FunctionInfo* fn = FunctionOf(funcNo);
  bool found = false;
  const char* text = nullptr;
  switch (fn == nullptr ? PathNeed::None : fn->pathNeed) {
    case PathNeed::AnyType:
      found = PathTypeDefined(kPathExport) || PathTypeDefined(kPathMessage) ||
              PathTypeDefined(kPathNumber) || PathTypeDefined(kPathVoice) ||
              PathTypeDefined(kPathGeneral);
      text =
          "Define a export, message, number, voice or general path variable before using this "
          "function.";
      break;
    case PathNeed::AnyButGeneral:
      found = PathTypeDefined(kPathExport) || PathTypeDefined(kPathMessage) ||
              PathTypeDefined(kPathNumber) || PathTypeDefined(kPathVoice);
      text = "Define a export, message, number or voice path variable before using this function.";
      break;
    case PathNeed::Message:
      found = PathTypeDefined(kPathMessage);
      text = "Define a message path variable before using this function.";
      break;
    case PathNeed::Number:
      found = PathTypeDefined(kPathNumber);
      text = "Define a number path variable before using this function.";
      break;
    case PathNeed::Export:
      found = PathTypeDefined(kPathExport);
      text = "Define a export path variable before using this function.";
      break;
    case PathNeed::Voice:
      found = PathTypeDefined(kPathVoice);
      text = "Define a voice path variable before using this function.";
      break;
    case PathNeed::General:
      found = PathTypeDefined(kPathGeneral);
      text = "Define a general path variable before using this function.";
      break;
    case PathNeed::None:
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
  const unsigned needs = FunctionOf(funcNo)->needs;
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
