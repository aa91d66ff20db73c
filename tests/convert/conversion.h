// One conversion against an oracle of one element, in every rounding mode the caller may have set.
#pragma once

#include <xmmintrin.h>

#include <cfenv>
#include <cmath>
#include <functional>

#include "reference/scaled.h"
#include "support/elementwise.h"

namespace tests {

// Three bytes as an element, so that the driver can count and place it.
template <class T> struct Packed24 {
  uint8_t byte[3];
  static Packed24 of(T v) { return {{static_cast<uint8_t>(v), static_cast<uint8_t>(v >> 8), static_cast<uint8_t>(v >> 16)}}; }
  T number() const {
    const uint32_t bits = byte[0] | byte[1] << 8 | static_cast<uint32_t>(byte[2]) << 16;
    return std::is_signed_v<T> ? static_cast<T>(bits << 8) >> 8 : static_cast<T>(bits);
  }
};
template <class T> inline constexpr bool isComplex<Packed24<T>> = false;
template <class T> std::string show(Packed24<T> v) { return std::to_string(v.number()); }

// Those that 32 and 64 bits can tell apart, and far ones.
inline std::vector<int> scaleFactorsOf32Bits() {
  std::vector<int> all = {INT32_MIN, -1000, 1000, INT32_MAX};
  for (int s = -66; s <= 66; ++s) all.push_back(s);
  return all;
}

inline constexpr int kRoundings[] = {FE_TONEAREST, FE_DOWNWARD, FE_UPWARD, FE_TOWARDZERO};

class CallersRounding {
 public:
  explicit CallersRounding(int mode) { std::fesetround(mode); }
  ~CallersRounding() { std::fesetround(FE_TONEAREST); }
};

// Lets the oracle run under nearest and the call under the caller's mode, which must come back from it.
template <class Call> auto underRounding(int mode, Call call) {
  return [=](auto... arguments) {
    const CallersRounding scope(mode);
    const unsigned before = _mm_getcsr() & 0xFFC0U;
    const QvxStatus status = call(arguments...);
    EXPECT_EQ(_mm_getcsr() & 0xFFC0U, before) << "the control word was changed";
    return status;
  };
}

// Random floats and all that is hard: ties, the neighbours of ties and of limits, what is beyond any range, no numbers.
template <class T> std::vector<T> hardFloats() {
  Random random(seed());
  std::vector<T> v = values<T>(400, random);
  const T inf = std::numeric_limits<T>::infinity();
  for (const double limit : {0.0,
                             0.5,
                             1.5,
                             2.5,
                             127.0,
                             127.5,
                             128.0,
                             128.5,
                             255.0,
                             255.5,
                             256.0,
                             32767.0,
                             32767.5,
                             32768.0,
                             65535.5,
                             65536.0,
                             8388607.0,
                             8388607.5,
                             8388608.0,
                             8388609.0,
                             16777215.0,
                             16777215.5,
                             2147483647.0,
                             2147483647.5,
                             2147483648.0,
                             4503599627370497.0,
                             9223372036854774784.0,
                             9223372036854775808.0,
                             1e30}) {
    for (const T x : {std::nextafter(T(limit), -inf), T(limit), std::nextafter(T(limit), inf)}) v.push_back(x), v.push_back(-x);
  }
  v.insert(v.end(), {inf, -inf, std::numeric_limits<T>::quiet_NaN(), std::numeric_limits<T>::denorm_min()});
  return v;
}

}  // namespace tests
