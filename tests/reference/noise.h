// The source of noise by its rule, one step at a time, in wide arithmetic.
#pragma once

#include <cmath>
#include <cstdint>

namespace reference {

class NoiseSource {
 public:
  explicit NoiseSource(uint32_t seed) : lag1_(seed), lag2_(after(lag1_)), lag3_(after(lag2_)) {}

  int32_t next() {
    int64_t t = signedOf(lag2_ - lag3_ + borrow_);
    borrow_ = t < 0 ? -1 : 0;
    if (t < 0) t = signedOf(t - 18);
    lag3_ = lag2_;
    lag2_ = lag1_;
    lag1_ = t;
    cong_ = after(cong_);
    return static_cast<int32_t>(signedOf(t + cong_));
  }
  uint32_t lag1() const { return static_cast<uint32_t>(lag1_); }

 private:
  static int64_t signedOf(int64_t v) {
    const int64_t low = v & 0xFFFFFFFF;
    return low < 0x80000000 ? low : low - 0x100000000;
  }
  static int64_t after(int64_t v) { return (v * 69069 + 1013904243) & 0xFFFFFFFF; }

  int64_t lag1_, lag2_, lag3_, borrow_ = -1, cong_ = 1131199209;
};

struct NormalPair {
  double factor, first, second;
};
inline NormalPair nextPair(NoiseSource& source) {
  for (;;) {
    const double u = source.next() * 4.656612873077e-10;
    const double v = source.next() * 4.656612873077e-10;
    const double q = u * u + v * v;
    if (q < 1 && q != 0) return {std::sqrt(-2 * std::log(q) / q), v, u};
  }
}

}  // namespace reference
