// Streams of choices that anything can be drawn from.
#pragma once

#include <cstdint>
#include <initializer_list>
#include <span>

namespace tests {

// First the bytes that a fuzzer provides, then a random sequence that follows from them: SplitMix64, whose state is one number.
// Seeding and copying the 2.5 KB of a Mersenne twister took as long as most of the calls.
class Choices {
 public:
  explicit Choices(std::span<const uint8_t> bytes) : bytes_(bytes), state_(seedOf(bytes)) {}
  explicit Choices(uint64_t seed) : state_(seed) {}

  uint64_t bits(int bytes = 8) {
    if (bytes == 8 && left_ == 0 && at_ == bytes_.size()) return random();
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
    if (left_ == 0) word_ = random(), left_ = 8;
    --left_;
    return static_cast<uint8_t>(word_ >> 8 * left_);
  }
  uint64_t random() {
    uint64_t z = state_ += 0x9E3779B97F4A7C15;
    z = (z ^ z >> 30) * 0xBF58476D1CE4E5B9;
    z = (z ^ z >> 27) * 0x94D049BB133111EB;
    return z ^ z >> 31;
  }
  static uint64_t seedOf(std::span<const uint8_t> bytes) {
    uint64_t h = bytes.size();
    for (const uint8_t b : bytes) h = (h ^ b) * 0x100000001B3;
    return h;
  }

  std::span<const uint8_t> bytes_;
  size_t at_ = 0;
  uint64_t state_;
  uint64_t word_ = 0;
  int left_ = 0;
};

}  // namespace tests
