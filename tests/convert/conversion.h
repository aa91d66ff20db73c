// One conversion against an oracle of one element, in every rounding mode the caller may have set.
#pragma once

#include <cmath>

#include "reference/scaled.h"
#include "support/elementwise.h"

namespace tests {

// Those that 32 and 64 bits can tell apart, and far ones.
inline std::vector<int> scaleFactorsOf32Bits() { return range(-66, 66, {INT32_MIN, -1000, 1000, INT32_MAX}); }

inline constexpr double kLimits[] = {0,
                                     0.5,
                                     1.5,
                                     2.5,
                                     127,
                                     127.5,
                                     128,
                                     128.5,
                                     255,
                                     255.5,
                                     256,
                                     32767,
                                     32767.5,
                                     32768,
                                     65535.5,
                                     65536,
                                     8388607,
                                     8388607.5,
                                     8388608,
                                     8388609,
                                     16777215,
                                     16777215.5,
                                     2147483647,
                                     2147483647.5,
                                     2147483648,
                                     4503599627370497,
                                     9223372036854774784,
                                     9223372036854775808.0,
                                     1e30};

// Random floats and all that is hard: ties, the neighbours of ties and of limits, what is beyond any range, NaN.
template <class T> std::vector<T> hardFloats() {
  Random random(seed());
  std::vector<T> v = values<T>(400, random);
  const T inf = std::numeric_limits<T>::infinity();
  for (const double limit : kLimits) {
    for (const T x : {std::nextafter(T(limit), -inf), T(limit), std::nextafter(T(limit), inf)}) v.push_back(x), v.push_back(-x);
  }
  v.insert(v.end(), {inf, -inf, std::numeric_limits<T>::quiet_NaN(), std::numeric_limits<T>::denorm_min()});
  return v;
}

}  // namespace tests
