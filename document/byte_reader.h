// A bounds-checked cursor over the bytes of a file. Once a read runs past the end the
// reader is failed for good: later reads give zeros and it stays failed, so a parser can
// read a whole structure and check once.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <vector>

namespace kq {

class ByteReader {
 public:
  ByteReader(const uint8_t* data, size_t size) : data_(data), size_(size) {}

  bool ok() const { return !failed_; }
  size_t pos() const { return pos_; }
  size_t remaining() const { return failed_ ? 0 : size_ - pos_; }

  // Copies n bytes into dst; past the end dst gets zeros and the reader fails.
  bool Read(void* dst, size_t n) {
    if (!Take(n)) {
      std::memset(dst, 0, n);
      return false;
    }
    std::memcpy(dst, data_ + pos_ - n, n);
    return true;
  }
  bool Skip(size_t n) { return Take(n); }
  int16_t I16() {
    int16_t v;
    Read(&v, sizeof v);
    return v;
  }
  int32_t I32() {
    int32_t v;
    Read(&v, sizeof v);
    return v;
  }
  // The next n bytes in place, or nullptr (and failed) when they are not all there.
  const uint8_t* Bytes(size_t n) { return Take(n) ? data_ + pos_ - n : nullptr; }

 private:
  bool Take(size_t n) {
    if (failed_ || n > size_ - pos_) {
      failed_ = true;
      return false;
    }
    pos_ += n;
    return true;
  }

  const uint8_t* data_;
  size_t size_;
  size_t pos_ = 0;
  bool failed_ = false;
};

// Appends fields to a byte buffer.
class ByteWriter {
 public:
  explicit ByteWriter(std::vector<uint8_t>& out) : out_(out) {}
  void Put(const void* p, size_t n) {
    const auto* b = static_cast<const uint8_t*>(p);
    out_.insert(out_.end(), b, b + n);
  }
  void I16(int16_t v) { Put(&v, sizeof v); }
  void I32(int32_t v) { Put(&v, sizeof v); }

 private:
  std::vector<uint8_t>& out_;
};

}  // namespace kq
