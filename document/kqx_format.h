// The layout of the KQX application file: the versions that are read, the header of the
// current version, the line entries, and the walk that checks that every announced line
// and record is present before anything is taken from a file.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

#include "document/byte_reader.h"
#include "document/functions.h"
#include "document/header.h"

namespace kq {

enum class KqxVersion { Current, V309, V308, Unknown };

inline constexpr char kCurrentVersion[5] = {'3', '.', '1', '0', '\0'};
inline constexpr size_t kVersionSize = 5;
// Version to LineCount of the current header, and of the 3.08 header.
inline constexpr size_t kHeaderSize = 84009;
inline constexpr size_t kHeaderSize308 = 59814;
inline constexpr size_t kProgramLineSize = 35;
// No application file needs more bytes than this: the header and 10,001 lines of the
// largest record. Bytes behind it are never read.
inline constexpr size_t kMaxKqxFileSize =
    kHeaderSize + static_cast<size_t>(kMaxLines) * (kDisplayLineWidth + kProgramLineSize + 888);

// Compares the five bytes exactly, NUL included, with "3.10", "3.08" and "3.09".
KqxVersion VersionOf(const char (&version)[5]);

// The records whose form changed since an older version: the old length of each, and
// whether the function was discontinued (its record is read and thrown away).
struct OldRecordLayout {
  KqxVersion version;
  Fn fn;
  int32_t length;
  bool discontinued;
};
inline constexpr OldRecordLayout kOldRecords[] = {
    {KqxVersion::V308, Fn::CallOut, 140, false},  // five outcomes instead of seven
    {KqxVersion::V308, Fn::DeleteRecord, 56, false},
    {KqxVersion::V308, Fn::SelectRecords, 56, false},
    {KqxVersion::V308, Fn::UpdateRecord, 56, false},
    {KqxVersion::V308, Fn::Empty35, 152, true},  // the WHERE Clause
    {KqxVersion::V309, Fn::DeleteRecord, 56, false},
    {KqxVersion::V309, Fn::UpdateRecord, 56, false},
    {KqxVersion::V309, Fn::Empty35, 152, true},
};
// The entry of a function in that version; nullptr when its record has the current form.
const OldRecordLayout* OldRecordOf(KqxVersion version, int funcNo);

// The length of function funcNo's record in a file of that version; -1 for a number the
// version does not know.
int32_t FileRecordLength(KqxVersion version, int funcNo);

// CompiledFlag to LineCount, in the current form.
void ReadHeader(ByteReader& in, ProgramHeader& hdr);
void WriteHeader(ByteWriter& out, const ProgramHeader& hdr);

void ReadProgramLine(ByteReader& in, ProgramLine& line);
void WriteProgramLine(ByteWriter& out, const ProgramLine& line);

// The result of walking the line entries of a file.
struct LineWalk {
  bool complete = false;  // every line entry and record is there
  int illegalLine = -1;   // first line with a number the version does not know
  int illegalFuncNo = 0;  // stops the walk: its record length is unknown
};
LineWalk WalkLines(ByteReader in, KqxVersion version, int lineCount);

// A file opened or inserted, checked whole before the document is touched.
struct KqxImage {
  KqxVersion version = KqxVersion::Unknown;
  char versionText[5] = {};
  int lineCount = 0;
  size_t headerPos = 0;   // CompiledFlag
  size_t displayPos = 0;  // first DisplayLine
  size_t recordsPos = 0;  // first line entry
  LineWalk walk;
};

enum class KqxCheck { Ok, Empty, WrongVersion, Damaged };

// Reads the version and checks that header, DisplayLines and line entries are all
// there, with a LineCount from 0 to 10,001. An illegal function number is not a damage
// here: it stops the walk and is reported where the lines are taken.
KqxCheck CheckImage(const uint8_t* data, size_t size, KqxImage& image);

// "File {title} has KQX file format version: {version}" (the version through RTrimZ).
std::string VersionMessage(const std::string& title, const char (&version)[5]);

}  // namespace kq
