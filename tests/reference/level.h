// Thresholds and reciprocals of one element, in the words of their definition.
#pragma once

#include <qvx/qvxdefs.h>

#include <cmath>
#include <limits>

#include "reference/scaled.h"

namespace reference {

template <class T> T withSign(T magnitude, T v) {
  if constexpr (std::is_integral_v<T>) return v < 0 ? static_cast<T>(-magnitude) : magnitude;
  else return std::copysign(magnitude, v);
}

// 64 bits of fraction and room for every square.
using Long = long double;

template <class C> Long magnitude(C v) { return hypotl(v.re, v.im); }

// The point of the circle with radius r in the direction of v.
struct Point {
  Long re;
  Long im;
};
template <class C> Point onCircle(C v, Long r) {
  const Long size = magnitude(v);
  if (size != 0 && !std::isinf(size)) return {v.re / size * r, v.im / size * r};
  // Zeros and infinities as atan2 has it: by the signs of their parts.
  const bool isReal = size == 0 || std::isinf(v.re);
  const bool isImaginary = std::isinf(v.im);
  const Long each = isReal && isImaginary ? r / sqrtl(2) : r;
  return {copysignl(isReal ? each : 0, v.re), copysignl(isImaginary ? each : 0, v.im)};
}

// part * level / sqrt(square) to the nearest integer: the largest k of which the middle below does not exceed it.
inline Qvx16s quotientOnCircle(Qvx16s part, Qvx16s level, Wide square) {
  const Wide twice = Wide{2} * part * level;
  int k = 0;
  for (int step = 32768; step > 0; step /= 2) {
    const Wide odd = 2 * (k + step) - 1;
    if (odd * odd * square <= twice * twice) k += step;
  }
  return static_cast<Qvx16s>(part < 0 ? -k : k);
}

}  // namespace reference
