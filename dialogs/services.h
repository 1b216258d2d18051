// The services that all function and declaration dialogs share: the precondition checks,
// centring, filling and reading the combos of variables, paths, labels, tables, numbers and
// operators, the key filters, the optional label pieces of a DisplayLine, and the messages
// of path and conversion errors. Faults of the program end it with a "Program Error" box.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "dialogs/list_control.h"
#include "document/records.h"

namespace ui {
class Control;
class FileListBox;
class Form;
}  // namespace ui

namespace kq {

// ---- Preconditions of a function (the messages appear when showMessage is true)
bool DefinedVar(bool showMessage, int funcNo);
bool DefinedPath(bool showMessage, int funcNo);
bool DefinedDBTbl();

// ---- Position of a dialog: centred on the main window, kept on the screen (twips).
void CenterForm(ui::Form& form);

// ---- Variables
// Fills the combo with the declared variables of the shown types and selects v.
void GetListBoxVar(bool showLong, bool showDouble, bool showString, ListControl combo,
                   const VarRef& v);
// Reads the combo back into v for a slot of dataType (-1: a variable and nothing else).
// False when the typed constant does not suit the slot; v is then untouched.
bool AssignListBoxVar(ListControl combo, int dataType, VarRef& v);
// The index in the variable table of the variable the combo shows.
int16_t GetListboxVarNo(ListControl combo);

// ---- Paths
void GetListBoxPath(ListControl combo, int32_t firstLetter, int32_t selectedType);
int16_t GetPathTypeLetter(ListControl combo);
void GetListBoxPathVar(ListControl combo, int32_t pathType, std::string_view selectedName);
int16_t GetListBoxPathVarNo(ListControl combo, int32_t pathType);
// Points the file list at the folder of the path variable name (a fixed field) of
// pathType and selects fileName (a fixed field), or the first file. A name the type does not
// have shows "Missing path definition" and leaves the list as it was. Returns the run-time
// error of a folder that cannot be read (0 none), for the caller's HandlePathError.
int SetFileListBox(ui::FileListBox& list, int32_t pathType, std::string_view name,
                   std::string_view fileName);
// Action code for an error met while showing the files of a path variable: 2 after the
// message, 3 for an error that is not a missing disk or path.
int HandlePathError(int errorNumber);

// ---- Labels, tables, numbers
// Fills the combo with the labels of all lines and selects label (a fixed field).
void GetListBoxLabel(ListControl combo, std::string_view label);
void GetListBoxDBTbl(ListControl combo, std::string_view tableName);
void GetListBoxNumber(ListControl combo, int32_t first, int32_t count, int32_t step,
                      int32_t selected);
// The optional label piece of a DisplayLine: line + prefix + label, or the line trimmed.
std::string AppendLabelParm(std::string_view line, std::string_view prefix, std::string_view label);
void DeselectListBox(ui::ListBox& list);

// ---- Operators
void GetArithmeticOpr(ListControl combo, int32_t dataType, int32_t selected);
void GetRelationalOpr(ListControl combo, int32_t dataType, int32_t selected);

// ---- Key filters: keyAscii is set to 0 when the key is refused or swallowed.
// Data types: 0 Long, 1 Double, 2 String, 3 unsigned number.
void LegalInput(TextControl control, int dataType, int& keyAscii);
void LegalLabelKey(TextControl control, int& keyAscii);
// True for the characters of the String set (Windows-1252 codes).
bool IsStringKey(int keyAscii);
// Text put into a field by other means than typing (a paste) goes through the field's
// KeyPress path one character at a time, so it obeys the same rules as typed keys.
void TypeText(ui::Control& control, std::string_view text);

// ---- Messages
// The message of a return code of the audio conversion; code 0 shows nothing.
void ConvertMessage(int returnCode);
// A name chosen or typed for a fixed field of `width` bytes holds at most width - 1
// characters, the field keeping its NUL. A longer one is refused where it is chosen, with
// the box "{what} {name} has more than {n} characters." under the title, so that nothing
// is ever stored cut short. True when the name fits.
bool NameFits(std::string_view name, size_t width, const std::string& what,
              const std::string& title);

// ---- Helpers shared by the services and the dialogs
// The text of a fixed field for display and comparison: trailing blanks and the closing
// NUL removed (RTrimZ, but a field without its NUL is taken as it stands).
std::string FieldText(std::string_view field);

}  // namespace kq
