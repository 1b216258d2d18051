// Save and open of the application file. The writer and the reader are mirror images:
// version, header, all DisplayLines, then each line's ProgramLine and its record, whose
// length only the function number before it tells.
//
// Open reads the whole file and checks it before the document is touched: an unknown
// version, or a file that ends before its announced lines and records (or announces a
// line count outside 0 to 10,001), is refused and leaves the document as it was.
// Save builds the whole file in memory and writes it under a temporary name that is then
// renamed over the old file, so a failing save never destroys the last good file.
#include "document/file.h"

#include <array>
#include <cstring>
#include <vector>

#include "document/byte_reader.h"
#include "document/disk_error.h"
#include "document/document.h"
#include "document/field_empty.h"
#include "document/file_common.h"
#include "document/file_io.h"
#include "document/kqx_format.h"
#include "document/merge.h"
#include "document/migration.h"
#include "document/state.h"
#include "document/text.h"
#include "ui/model/list_controls.h"
#include "ui/platform/platform.h"

namespace kq {

namespace {

// Versions whose applications must be ported by hand: named so that the refusal can say
// so, never read.
constexpr std::array<const char*, 28> kPortableVersions = {
    "3.07", "3.06", "3.05", "3.04", "3.03", "3.02", "3.01", "3.00", "2.05", "2.04",
    "2.03", "2.02", "2.01", "2.00", "1.13", "1.12", "1.11", "1.10", "1.09", "1.08",
    "1.07", "1.06", "1.05", "1.04", "1.03", "1.02", "1.01", "1.00"};

bool IsPortableVersion(const char (&version)[5]) {
  for (const char* v : kPortableVersions) {
    if (std::memcmp(version, v, 5) == 0) return true;
  }
  return false;
}

void Untitled(std::string& title, std::string& fileName) {
  title = "Untitled";
  fileName.clear();
  ui::platform().SetMousePointer(ui::vbDefault);
}

void StageHeader(bool saveAll, int firstLine, int lastLine, int16_t lineCount) {
  CopyHdr.CompiledFlag = PrgHdr.CompiledFlag;
  if (saveAll) {
    std::memcpy(CopyHdr.Variable, PrgHdr.Variable, sizeof CopyHdr.Variable);
    std::memcpy(CopyHdr.Path, PrgHdr.Path, sizeof CopyHdr.Path);
  } else {
    StagePartVariables(firstLine, lastLine);
    StagePartPaths(firstLine, lastLine);
  }
  std::memcpy(CopyHdr.Table, PrgHdr.Table, sizeof CopyHdr.Table);  // a part keeps every table
  CopyHdr.LineCount = lineCount;
}

// The file of the staged header and the given lines of the list; `renumber` numbers the
// DisplayLines from 0000 in the order given.
void BuildFileOf(std::vector<uint8_t>& bytes, const std::vector<int>& lines, bool renumber) {
  const size_t n = lines.size();
  bytes.clear();
  bytes.reserve(kHeaderSize + n * (kDisplayLineWidth + kProgramLineSize) + n * 256);
  ByteWriter out(bytes);
  out.Put(PrgHdr.Version, kVersionSize);
  WriteHeader(out, CopyHdr);

  ui::ListBox& list = EditList();
  char field[kDisplayLineWidth];
  for (size_t k = 0; k < n; ++k) {
    const std::string& item = list.List(lines[k]);
    const size_t len = std::min(item.size(), sizeof field);
    std::memcpy(field, item.data(), len);
    std::memset(field + len, ' ', sizeof field - len);
    if (renumber) {
      const std::string digits = Format0000(static_cast<int>(k));
      std::memcpy(field, digits.data(), 4);
    }
    out.Put(field, sizeof field);
  }

  for (int i : lines) {
    const ProgramLine& line = LineTable[i];
    WriteProgramLine(out, line);
    const int funcNo = line.LineFuncNo;
    if (!IsLiveFunction(funcNo)) {
      ui::ProgramError("Illegal Function Number " + Str(int64_t{funcNo}) + " in Global SaveFile.");
    }
    uint8_t* record = WorkRecord.Image(funcNo);
    const size_t length = static_cast<size_t>(kCatalogueLength[funcNo]);
    std::memcpy(record, FuncBlock[i], length);
    out.Put(record, length);
  }
}

void BuildFile(std::vector<uint8_t>& bytes, int firstLine, int lastLine) {
  std::vector<int> lines;
  for (int i = firstLine; i <= lastLine; ++i) lines.push_back(i);
  BuildFileOf(bytes, lines, firstLine > 0);
}

// Takes the lines of a checked file into the stores, converting old records.
void TakeLines(ByteReader& in, const KqxImage& image) {
  bool discontinuedShown = false;
  for (int i = 0; i < image.lineCount; ++i) {
    ProgramLine& line = LineTable[i];
    ReadProgramLine(in, line);
    const int funcNo = line.LineFuncNo;
    if (i == image.walk.illegalLine) {
      ui::ProgramError("Illegal Function Number " + Str(int64_t{funcNo}) + " in line " +
                       Str(int64_t{i}) + " Global OpenFile.");
    }
    if (funcNo == kDiscontinuedFunction) {
      // The line stays, with its DisplayLine; its block is not written.
      in.Skip(kDiscontinuedRecordSize);
      if (!discontinuedShown) {
        ui::platform().MsgBox(
            "The WHERE Clause Database function is remove because it is discontinued.",
            ui::vbOKOnly | ui::vbExclamation, "Function Discontinued");
        discontinuedShown = true;
      }
      continue;
    }
    if (HasOldRecord(image.version, funcNo)) {
      ReadOldRecord(in, funcNo, WorkRecord);
    } else {
      in.Read(WorkRecord.Image(funcNo), static_cast<size_t>(kCatalogueLength[funcNo]));
    }
    UpdateFuncParm(i, funcNo);
  }
}

}  // namespace

std::vector<uint8_t> LinesImage(const std::vector<int>& lines) {
  CopyHdr.CompiledFlag = 0;  // lines taken out of their application need a compile
  StagePartVariables(lines);
  StagePartPaths(lines);
  int j = 0;
  for (int t = 0; t < kMaxTables; ++t) {
    TableEntry& c = CopyHdr.Table[t];
    SetField(c.TableName, "");
    for (auto& column : c.Column) column = BlankVarRef;
  }
  for (const TableEntry& t : PrgHdr.Table) {
    if (!EmptyField(t.TableName) && TableUsedInLines(View(t.TableName), lines)) {
      CopyHdr.Table[j++] = t;
    }
  }
  CopyHdr.LineCount = static_cast<int16_t>(lines.size());
  std::vector<uint8_t> bytes;
  BuildFileOf(bytes, lines, true);
  return bytes;
}

void SaveFile(std::string& title, std::string& fileName, bool saveAll, int firstLine, int lastLine,
              int16_t& lineCount) {
  (void)title;
  ui::Platform& p = ui::platform();
  p.SetMousePointer(ui::vbHourglass);
  // A range with lines outside the list (Save Part As with no line selected asks for
  // lines -1 to 0) is an array bound error: it goes to the handler, which shows nothing
  // and raises it, and the command ends before anything is written or staged.
  if (lastLine >= firstLine && (firstLine < 0 || lastLine >= EditList().ListCount())) {
    HandleDiskError("Save", kErrSubscript);
    p.SetMousePointer(ui::vbDefault);
    return;
  }
  StageHeader(saveAll, firstLine, lastLine, lineCount);

  std::vector<uint8_t> bytes;
  BuildFile(bytes, firstLine, lastLine);

  // Retry writes the whole file again. Leave, and raise (which would only repeat the error
  // to a caller that has no handler of its own), end the command with the old file as it
  // was.
  if (RetryDiskOperation(
          "Save", [&] { return WriteWholeFile(fileName, bytes.data(), bytes.size()); }) != 0) {
    p.SetMousePointer(ui::vbDefault);
    return;
  }

  if (Shell.addRecentFile) Shell.addRecentFile(fileName);
  ChangedFlag = false;
  p.SetMousePointer(ui::vbDefault);
}

void OpenFile(std::string& title, std::string& fileName) {
  ui::Platform& p = ui::platform();
  p.SetMousePointer(ui::vbHourglass);
  if (Shell.caption && Shell.caption() == kCaptionPrefix + title) {
    FileErrorBox("File " + title + " is already open.");
    Untitled(title, fileName);
    return;
  }

  std::vector<uint8_t> bytes;
  if (!ReadFileForCommand("Open", fileName, bytes)) {
    Untitled(title, fileName);
    return;
  }
  OpenFileBytes(title, fileName, bytes);
}

void OpenFileBytes(std::string& title, std::string& fileName, const std::vector<uint8_t>& bytes) {
  ui::Platform& p = ui::platform();
  p.SetMousePointer(ui::vbHourglass);
  KqxImage image;
  switch (CheckImage(bytes.data(), bytes.size(), image)) {
    case KqxCheck::Ok:
      break;
    case KqxCheck::Empty:
      FileErrorBox("File " + title + " doesn't exist.");
      Untitled(title, fileName);
      return;
    case KqxCheck::WrongVersion: {
      std::string text = VersionMessage(title, image.versionText);
      if (IsPortableVersion(image.versionText)) {
        text +=
            "\rThe Voice/Response Application must be manually ported to version: 3.08.xx or "
            "newer";
      }
      FileErrorBox(text);
      Untitled(title, fileName);
      return;
    }
    case KqxCheck::Damaged:
      FileErrorBox("File " + title + " is damaged.");
      Untitled(title, fileName);
      return;
  }

  ByteReader in(bytes.data(), bytes.size());
  in.Skip(image.headerPos);
  std::memcpy(PrgHdr.Version, image.versionText, kVersionSize);
  if (image.version == KqxVersion::V308) {
    ReadHeader308(in, PrgHdr);
  } else {
    ReadHeader(in, PrgHdr);
  }
  if (image.version != KqxVersion::Current) PrgHdr.CompiledFlag = 0;

  std::vector<std::string> items(static_cast<size_t>(image.lineCount));
  for (auto& item : items) {
    const uint8_t* text = in.Bytes(kDisplayLineWidth);
    item.assign(reinterpret_cast<const char*>(text), kDisplayLineWidth);
  }
  EditList().ReplaceAll(std::move(items));

  TakeLines(in, image);

  std::memcpy(PrgHdr.Version, kCurrentVersion, kVersionSize);
  ChangedFlag = false;
  if (Shell.fileOpened) Shell.fileOpened();
  if (EditList().ListCount() > 0) EditList().SetListIndex(0);
  p.SetMousePointer(ui::vbDefault);
}

}  // namespace kq
