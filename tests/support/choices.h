// Streams of choices that anything can be drawn from.
#pragma once

#include <cstdint>
#include <initializer_list>
#include <random>
#include <span>

namespace tests {

// Bytes first, as a fuzzer brings them, then a random sequence that follows from them.
class Choices {
 public:
  explicit Choices(std::span<const uint8_t> bytes) : bytes_(bytes), random_(seedOf(bytes)) {}
  explicit Choices(uint64_t seed) : random_(seed) {}

  uint64_t bits(int bytes = 8) {
    if (bytes == 8 && left_ == 0 && at_ == bytes_.size()) return random_();
    uint64_t v = 0;
    for (int i = 0; i < bytes; ++i) v = v << 8 | next();
    return v;
  }
  int64_t between(int64_t least, int64_t most) {
    const auto count = static_cast<uint64_t>(most - least) + 1;
    return least + static_cast<int64_t>(bits(count <= 256 ? 1 : 4) % count);
  }
  bool oneIn(int n) { return between(1, n) == 1; }
  template <class T> T oneOf(std::initializer_list<T> values) {
    return values.begin()[between(0, static_cast<int64_t>(values.size()) - 1)];
  }

 private:
  uint8_t next() {
    if (at_ < bytes_.size()) return bytes_[at_++];
    if (left_ == 0) word_ = random_(), left_ = 8;
    --left_;
    return static_cast<uint8_t>(word_ >> 8 * left_);
  }
  static uint64_t seedOf(std::span<const uint8_t> bytes) {
    uint64_t h = bytes.size();
    for (const uint8_t b : bytes) h = (h ^ b) * 0x100000001B3;
    return h;
  }

  std::span<const uint8_t> bytes_;
  size_t at_ = 0;
  std::mt19937_64 random_;
  uint64_t word_ = 0;
  int left_ = 0;
};

}  // namespace tests
