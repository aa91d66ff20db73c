// The scaled result, in the words of its definition and in integers that hold everything.
#pragma once

#include <algorithm>
#include <limits>

namespace reference {

using Wide = __int128;

template <class T> T saturated(Wide v) {
  if (v > Wide{std::numeric_limits<T>::max()}) return std::numeric_limits<T>::max();
  if (v < Wide{std::numeric_limits<T>::min()}) return std::numeric_limits<T>::min();
  return static_cast<T>(v);
}

enum class Mode { kTowardZero, kNearestEven, kHalfAway };

// numerator / denominator as a whole number, for a denominator above 0.
inline Wide dividedAndRounded(Wide numerator, Wide denominator, Mode mode) {
  Wide quotient = numerator / denominator;  // toward zero
  Wide remainder = numerator % denominator;
  const int sign = numerator < 0 ? -1 : 1;
  if (remainder < 0) remainder = -remainder;
  const bool above = 2 * remainder > denominator;
  const bool tie = 2 * remainder == denominator;
  if (mode == Mode::kNearestEven && (above || (tie && quotient % 2 != 0))) quotient += sign;
  if (mode == Mode::kHalfAway && (above || tie)) quotient += sign;
  return quotient;
}

// v / 2^s as a whole number.
inline Wide rounded(Wide v, int s, Mode mode) {
  if (s > 126) return 0;  // no value exceeds 2^126, which is half of the next unit: a tie, and 0 is even
  return dividedAndRounded(v, Wide{1} << s, mode);
}

// v * 2^-s, rounded and saturated.
template <class T> T scaled(Wide v, int s, Mode mode = Mode::kNearestEven) {
  if (s >= 0) return saturated<T>(rounded(v, s, mode));
  // Doubling saturates for good once it leaves the range.
  for (; s < 0 && v != 0 && saturated<T>(v) == v; ++s) v *= 2;
  return saturated<T>(v);
}

}  // namespace reference
