// Roots of integers times a power of two, in integers that hold everything.
#pragma once

#include <cmath>
#include <cstdint>

#include "reference/scaled.h"

namespace reference {

using Natural = unsigned __int128;

// The largest n with n * n <= v, for v below 2^126.
inline Natural rootFloor(Natural v) {
  auto n = static_cast<Natural>(std::sqrt(static_cast<long double>(v)));
  while (n * n > v) --n;
  while ((n + 1) * (n + 1) <= v) ++n;
  return n;
}

// sqrt(x) * 2^-s, nearest even; x below 0 counts as 0. From 2^63 on any number may stand for the result.
inline __int128 nearestRoot(__int128 x, int64_t s) {
  if (x <= 0) return 0;
  auto v = static_cast<Natural>(x);
  if (s <= 0) {
    for (; s < 0; ++s, v *= 4) {
      if (v >= Natural{1} << 124) return __int128{1} << 63;
    }
    const Natural n = rootFloor(v);
    return static_cast<__int128>(n + (v - n * n > n));  // (n + 1/2)^2 is n^2 + n and a quarter
  }
  if (s > 40) return 0;
  const Natural n = rootFloor(v) >> s;
  const Natural middle = (2 * n + 1) << s;  // (n + 1/2) * 2^s, doubled
  const bool up = 4 * v > middle * middle || (4 * v == middle * middle && n % 2 == 1);
  return static_cast<__int128>(n + up);
}

// The same, saturated.
template <class T> T scaledRoot(__int128 x, int s) { return saturated<T>(nearestRoot(x, s)); }

}  // namespace reference
