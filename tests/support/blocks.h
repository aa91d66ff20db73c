// Memory that guards its ends: a block between unreadable pages, with canaries in the slack.
#pragma once

#include <sys/mman.h>

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <deque>
#include <map>
#include <vector>

namespace tests {

class Block {
 public:
  explicit Block(size_t capacity) : capacity_((capacity + kPage - 1) / kPage * kPage) {
    std::vector<uint8_t*>& spare = spares()[capacity_];
    if (spare.empty()) {
      base_ = mapped(capacity_);
    } else {
      base_ = spare.back();
      spare.pop_back();
    }
  }
  ~Block() {
    if (capacity_ <= kKept) spares()[capacity_].push_back(base_);
    else munmap(base_ - kPage, capacity_ + 2 * kPage);
  }
  Block(const Block&) = delete;
  Block& operator=(const Block&) = delete;

  // A vector of these bytes that ends at the unreadable page, or `offset` bytes after the start of the block.
  uint8_t* atEnd(size_t bytes) { return place(base_ + capacity_ - bytes, bytes); }
  uint8_t* atOffset(size_t offset, size_t bytes) { return place(base_ + offset, bytes); }

  // Whether the bytes around the vector placed last are as they were.
  bool isIntact() const {
    for (const uint8_t* p = vector_ - lead(); p < vector_; ++p) {
      if (*p != kCanary) return false;
    }
    const uint8_t* end = vector_ + bytes_;
    for (const uint8_t* p = end; p < end + trail(); ++p) {
      if (*p != kCanary) return false;
    }
    return true;
  }

 private:
  static constexpr size_t kPage = 4096;
  static constexpr size_t kSlack = 128;  // two of the widest vectors
  static constexpr size_t kKept = 1 << 16;
  static constexpr uint8_t kCanary = 0xC9;

  static uint8_t* mapped(size_t capacity) {
    void* p = mmap(nullptr, capacity + 2 * kPage, PROT_NONE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    if (p == MAP_FAILED) std::abort();
    uint8_t* base = static_cast<uint8_t*>(p) + kPage;
    if (mprotect(base, capacity, PROT_READ | PROT_WRITE) != 0) std::abort();
    return base;
  }
  // Pages by their size, to be used again: to map them for each vector took the kernel 73 % of the time of some tests.
  static std::map<size_t, std::vector<uint8_t*>>& spares() {
    thread_local std::map<size_t, std::vector<uint8_t*>> all;
    return all;
  }

  size_t lead() const { return std::min<size_t>(kSlack, static_cast<size_t>(vector_ - base_)); }
  size_t trail() const { return std::min<size_t>(kSlack, static_cast<size_t>(base_ + capacity_ - vector_ - bytes_)); }
  uint8_t* place(uint8_t* p, size_t bytes) {
    vector_ = p;
    bytes_ = bytes;
    std::memset(p - lead(), kCanary, lead() + bytes + trail());
    return p;
  }

  size_t capacity_;
  uint8_t* base_;
  uint8_t* vector_ = nullptr;
  size_t bytes_ = 0;
};

// Blocks of one size, taken one by one and returned all at once.
class Memory {
 public:
  Block& take() {
    if (used_ == blocks_.size()) blocks_.emplace_back(kCapacity);
    return blocks_[used_++];
  }
  void reuse() { used_ = 0; }
  static constexpr size_t kCapacity = 4 << 20;

 private:
  std::deque<Block> blocks_;
  size_t used_ = 0;
};

}  // namespace tests
