#include "document/migration.h"

#include <cstring>

#include "document/state.h"

namespace kq {

namespace {

// 3.08 path table: 20 rows of the six type codes 64 to 69, each text 65 and name 28.
constexpr int kOldPathTypes = 6;
constexpr size_t kOldPathText = 65;
// 3.08 table entry: name 16, a dropped 28-byte text, 24 columns.
constexpr size_t kOldTableText = 28;
constexpr size_t kOldSettings = 45;
constexpr int kOldVariables = 250;

// Delete Record, SELECT Records and Update Record of 3.08, and 27 and 34 of 3.09:
// table name, error label and a label that is dropped. The condition fields take the
// function's own defaults (for Update Record its WhereValue stays all zero).
void ReadOldTableRecord(ByteReader& in, TableWhereRec& work, const TableWhereRec& init) {
  work = init;
  in.Read(work.TableName, sizeof work.TableName);
  in.Read(work.ErrorLabel.LabelRefName, sizeof work.ErrorLabel.LabelRefName);
  work.ErrorLabel.LabelRefLine = in.I32();
  in.Skip(sizeof(LabelRef));
}

// Call Out of 3.08: five outcomes instead of seven.
void ReadOldCallOut(ByteReader& in, CallOutRec& work) {
  for (int i = 0; i < 5; ++i) in.Read(work.OutcomeLabel[i], sizeof work.OutcomeLabel[i]);
  for (int i = 0; i < 5; ++i) work.OutcomeLine[i] = in.I32();
  for (int i = 5; i < 7; ++i) {
    std::memcpy(work.OutcomeLabel[i], BlankLabelRef.LabelRefName, sizeof work.OutcomeLabel[i]);
    work.OutcomeLine[i] = -1;
  }
  work.Rings = in.I32();
  work.WaitForDialTone = in.I32();
  work.Number.VarRefType = in.I32();
  in.Read(work.Number.VarRefName, sizeof work.Number.VarRefName);
}

}  // namespace

void ReadHeader308(ByteReader& in, ProgramHeader& hdr) {
  hdr.CompiledFlag = in.I16();
  in.Read(hdr.Variable, kOldVariables * sizeof(VarRef));
  for (int i = kOldVariables; i < kMaxVariables; ++i) hdr.Variable[i] = BlankVarRef;

  for (auto& row : hdr.Path) {
    for (int code = 64; code < 64 + kOldPathTypes; ++code) {
      if (code == 64) {
        in.Skip(kOldPathText + 28);  // the type 64 is no longer used
        continue;
      }
      PathEntry& p = row[code - kPathExport];
      // All 65 characters, the text with its NUL, then blanks to the new width.
      in.Read(p.PathText, kOldPathText);
      std::memset(p.PathText + kOldPathText, ' ', sizeof p.PathText - kOldPathText);
      in.Read(p.PathName, sizeof p.PathName);
    }
  }

  for (auto& t : hdr.Table) {
    in.Read(t.TableName, sizeof t.TableName);
    in.Skip(kOldTableText);
    in.Read(t.Column, sizeof t.Column);
  }
  in.Skip(kOldSettings);
  hdr.LineCount = in.I16();
}

bool HasOldRecord(KqxVersion version, int funcNo) {
  const OldRecordLayout* old = OldRecordOf(version, funcNo);
  return old != nullptr && !old->discontinued;
}

void ReadOldRecord(ByteReader& in, int funcNo, RecordSet& work) {
  switch (ToFn(funcNo)) {
    case Fn::CallOut:
      ReadOldCallOut(in, work.CallOut);
      break;
    case Fn::DeleteRecord:
      ReadOldTableRecord(in, work.DeleteRecord, InitRecord.DeleteRecord);
      break;
    case Fn::SelectRecords:
      ReadOldTableRecord(in, work.SelectRecords, InitRecord.SelectRecords);
      break;
    case Fn::UpdateRecord:
      ReadOldTableRecord(in, work.UpdateRecord, InitRecord.UpdateRecord);
      break;
    default:
      break;
  }
}

}  // namespace kq
