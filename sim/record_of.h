// A line's record read out of its block, as the record struct that its function has.
#pragma once

#include <cstdint>
#include <cstring>

namespace kq::sim {

template <typename R>
R RecordOf(const uint8_t* block) {
  R r;
  std::memcpy(&r, block, sizeof r);
  return r;
}

}  // namespace kq::sim
