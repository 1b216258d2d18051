#include "editor/line_clipboard.h"

#include <array>
#include <cstring>

#include "document/kqx_format.h"
#include "document/merge.h"
#include "document/state.h"
#include "ui/model/list_controls.h"

namespace kq {

namespace {

constexpr char kMagic[16] = {'K', 'Q', 'E', 'D', 'I',  'T',  ' ',    'L',
                             'I', 'N', 'E', 'S', '\r', '\n', '\x1a', '\n'};
constexpr size_t kEnvelopeSize = 32;

void PutU32(std::string& out, uint32_t v) {
  for (int i = 0; i < 4; ++i) out.push_back(static_cast<char>((v >> (8 * i)) & 0xFF));
}

uint32_t GetU32(const std::string& in, size_t at) {
  uint32_t v = 0;
  for (int i = 3; i >= 0; --i) v = (v << 8) | static_cast<uint8_t>(in[at + static_cast<size_t>(i)]);
  return v;
}

std::array<uint32_t, 256> CrcTable() {
  std::array<uint32_t, 256> table{};
  for (uint32_t n = 0; n < 256; ++n) {
    uint32_t c = n;
    for (int k = 0; k < 8; ++k) c = (c & 1) != 0 ? 0xEDB88320u ^ (c >> 1) : c >> 1;
    table[n] = c;
  }
  return table;
}

}  // namespace

uint32_t Crc32(const uint8_t* data, size_t size) {
  static const std::array<uint32_t, 256> table = CrcTable();
  uint32_t c = 0xFFFFFFFFu;
  for (size_t i = 0; i < size; ++i) c = table[(c ^ data[i]) & 0xFF] ^ (c >> 8);
  return c ^ 0xFFFFFFFFu;
}

std::string EncodeLines(const std::vector<uint8_t>& image, int lineCount) {
  std::string out(kMagic, sizeof kMagic);
  out.push_back(static_cast<char>(kLinesFormatVersion & 0xFF));
  out.push_back(static_cast<char>(kLinesFormatVersion >> 8));
  out.push_back('\0');
  out.push_back('\0');
  PutU32(out, static_cast<uint32_t>(lineCount));
  PutU32(out, static_cast<uint32_t>(image.size()));
  PutU32(out, Crc32(image.data(), image.size()));
  out.append(reinterpret_cast<const char*>(image.data()), image.size());
  return out;
}

ui::ClipboardData LinesClipboardData(const std::vector<int>& lines) {
  ui::ClipboardData data;
  data[kLinesMime] = EncodeLines(LinesImage(lines), static_cast<int>(lines.size()));
  std::string text;
  const ui::ListBox& list = EditList();
  for (int i : lines) {
    text += list.List(i);
    text += '\n';
  }
  data[ui::kPlainTextMime] = std::move(text);
  return data;
}

LinesCheck ReadLines(const ui::ClipboardData& data, std::vector<uint8_t>& image) {
  const auto it = data.find(kLinesMime);
  if (it == data.end()) return LinesCheck::Absent;
  const std::string& in = it->second;
  if (in.size() < kEnvelopeSize || std::memcmp(in.data(), kMagic, sizeof kMagic) != 0) {
    return LinesCheck::Damaged;
  }
  const unsigned version = static_cast<uint8_t>(in[16]) | (static_cast<uint8_t>(in[17]) << 8);
  if (version > kLinesFormatVersion) return LinesCheck::LaterFormat;
  if (version != kLinesFormatVersion) return LinesCheck::Damaged;
  const uint32_t lineCount = GetU32(in, 20);
  const uint32_t length = GetU32(in, 24);
  if (length != in.size() - kEnvelopeSize) return LinesCheck::Damaged;
  const auto* bytes = reinterpret_cast<const uint8_t*>(in.data()) + kEnvelopeSize;
  if (Crc32(bytes, length) != GetU32(in, 28)) return LinesCheck::Damaged;

  // A sound envelope around an image that is not one is damaged all the same.
  KqxImage check;
  if (CheckImage(bytes, length, check) != KqxCheck::Ok || check.version != KqxVersion::Current ||
      check.lineCount != static_cast<int>(lineCount) || check.walk.illegalLine >= 0) {
    return LinesCheck::Damaged;
  }
  image.assign(bytes, bytes + length);
  return LinesCheck::Ok;
}

}  // namespace kq
