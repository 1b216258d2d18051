#include "document/kqx_format.h"

#include <cstring>

#include "document/catalogue.h"
#include "document/text.h"

namespace kq {

static_assert(kHeaderSize == kVersionSize + 2 + sizeof(ProgramHeader::Variable) +
                                 sizeof(ProgramHeader::Path) + sizeof(ProgramHeader::Table) + 2);

KqxVersion VersionOf(const char (&version)[5]) {
  if (std::memcmp(version, "3.10", 5) == 0) return KqxVersion::Current;
  if (std::memcmp(version, "3.08", 5) == 0) return KqxVersion::V308;
  if (std::memcmp(version, "3.09", 5) == 0) return KqxVersion::V309;
  return KqxVersion::Unknown;
}

const OldRecordLayout* OldRecordOf(KqxVersion version, int funcNo) {
  for (const OldRecordLayout& old : kOldRecords) {
    if (old.version == version && ToInt(old.fn) == funcNo) return &old;
  }
  return nullptr;
}

int32_t FileRecordLength(KqxVersion version, int funcNo) {
  if (const OldRecordLayout* old = OldRecordOf(version, funcNo)) return old->length;
  return IsLiveFunction(funcNo) ? kCatalogueLength[funcNo] : -1;
}

// The header's arrays are laid out in memory exactly as the file holds them.
void ReadHeader(ByteReader& in, ProgramHeader& hdr) {
  hdr.CompiledFlag = in.I16();
  in.Read(hdr.Variable, sizeof hdr.Variable);
  in.Read(hdr.Path, sizeof hdr.Path);
  in.Read(hdr.Table, sizeof hdr.Table);
  hdr.LineCount = in.I16();
}

void WriteHeader(ByteWriter& out, const ProgramHeader& hdr) {
  out.I16(hdr.CompiledFlag);
  out.Put(hdr.Variable, sizeof hdr.Variable);
  out.Put(hdr.Path, sizeof hdr.Path);
  out.Put(hdr.Table, sizeof hdr.Table);
  out.I16(hdr.LineCount);
}

void ReadProgramLine(ByteReader& in, ProgramLine& line) {
  in.Read(line.LineLabel, sizeof line.LineLabel);
  line.LineFuncNo = in.I16();
  in.Read(line.LineFuncName, sizeof line.LineFuncName);
}

void WriteProgramLine(ByteWriter& out, const ProgramLine& line) {
  out.Put(line.LineLabel, sizeof line.LineLabel);
  out.I16(line.LineFuncNo);
  out.Put(line.LineFuncName, sizeof line.LineFuncName);
}

LineWalk WalkLines(ByteReader in, KqxVersion version, int lineCount) {
  LineWalk walk;
  for (int i = 0; i < lineCount; ++i) {
    in.Skip(16);
    const int funcNo = in.I16();
    in.Skip(17);
    if (!in.ok()) return walk;
    const int32_t length = FileRecordLength(version, funcNo);
    if (length < 0) {
      walk.illegalLine = i;
      walk.illegalFuncNo = funcNo;
      walk.complete = true;
      return walk;
    }
    if (!in.Skip(static_cast<size_t>(length))) return walk;
  }
  walk.complete = true;
  return walk;
}

KqxCheck CheckImage(const uint8_t* data, size_t size, KqxImage& image) {
  if (size == 0) return KqxCheck::Empty;
  ByteReader in(data, size);
  if (!in.Read(image.versionText, kVersionSize)) return KqxCheck::Damaged;
  image.version = VersionOf(image.versionText);
  if (image.version == KqxVersion::Unknown) return KqxCheck::WrongVersion;
  image.headerPos = in.pos();
  const size_t header = image.version == KqxVersion::V308 ? kHeaderSize308 : kHeaderSize;
  if (!in.Skip(header - kVersionSize - 2)) return KqxCheck::Damaged;
  image.lineCount = in.I16();
  if (!in.ok() || image.lineCount < 0 || image.lineCount > kMaxLines) return KqxCheck::Damaged;
  image.displayPos = in.pos();
  if (!in.Skip(static_cast<size_t>(image.lineCount) * kDisplayLineWidth)) {
    return KqxCheck::Damaged;
  }
  image.recordsPos = in.pos();
  image.walk = WalkLines(in, image.version, image.lineCount);
  return image.walk.complete ? KqxCheck::Ok : KqxCheck::Damaged;
}

std::string VersionMessage(const std::string& title, const char (&version)[5]) {
  return "File " + title + " has KQX file format version: " + RTrimZ(View(version));
}

}  // namespace kq
