// Blocks of samples handed from one thread to another, at most a few at a time, so that
// reading and resampling run beside encoding and writing with bounded memory.
#pragma once

#include <condition_variable>
#include <cstdint>
#include <deque>
#include <mutex>
#include <vector>

namespace kq::speech {

class BlockQueue {
 public:
  // Waits for room; false when the taker has stopped.
  bool Push(std::vector<int16_t>&& block) {
    std::unique_lock lock(mutex_);
    room_.wait(lock, [&] { return blocks_.size() < kDepth || stopped_; });
    if (stopped_) return false;
    blocks_.push_back(std::move(block));
    ready_.notify_one();
    return true;
  }
  // The giver is done: `code` 0 after the last block, or the code of its fault.
  void Finish(int code) {
    std::lock_guard lock(mutex_);
    finished_ = true;
    code_ = code;
    ready_.notify_one();
  }
  // The next block; false when the giver has finished and all blocks are taken, or when
  // the taking has been stopped.
  bool Pop(std::vector<int16_t>& block) {
    std::unique_lock lock(mutex_);
    ready_.wait(lock, [&] { return !blocks_.empty() || finished_ || stopped_; });
    if (blocks_.empty() || stopped_) return false;
    block = std::move(blocks_.front());
    blocks_.pop_front();
    room_.notify_one();
    return true;
  }
  // The taking stops: a waiting giver returns, and so does a waiting taker.
  void Stop() {
    std::lock_guard lock(mutex_);
    stopped_ = true;
    room_.notify_all();
    ready_.notify_all();
  }
  int Code() {
    std::lock_guard lock(mutex_);
    return code_;
  }

 private:
  static constexpr size_t kDepth = 4;
  std::mutex mutex_;
  std::condition_variable room_, ready_;
  std::deque<std::vector<int16_t>> blocks_;
  bool finished_ = false;
  bool stopped_ = false;
  int code_ = 0;
};

}  // namespace kq::speech
