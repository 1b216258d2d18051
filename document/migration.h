// Reading the older accepted versions 3.08 and 3.09 into the current form.
#pragma once

#include "document/byte_reader.h"
#include "document/header.h"
#include "document/kqx_format.h"
#include "document/records.h"

namespace kq {

// The 3.08 header (CompiledFlag to LineCount) into the current header: 250 variables,
// path texts of 65 characters widened to 260, the old table list and settings.
// Variables 250 to 499 become blank.
void ReadHeader308(ByteReader& in, ProgramHeader& hdr);

// True when function funcNo has an old record form in that version (5, 27, 29, 34).
bool HasOldRecord(KqxVersion version, int funcNo);
// Reads the old record and fills the function's record in `work` as the current form.
void ReadOldRecord(ByteReader& in, int funcNo, RecordSet& work);

// The record of the discontinued function 35, read and thrown away.
inline constexpr int kDiscontinuedFunction = ToInt(Fn::Empty35);
inline constexpr size_t kDiscontinuedRecordSize = 152;

}  // namespace kq
