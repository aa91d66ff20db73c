// Thresholds of one element for the plain loops.
#pragma once

#include "peers/plain_math.h"

namespace plain {

inline constexpr auto raisedTo = [](auto x, auto level) { return x < level ? level : x; };
inline constexpr auto loweredTo = [](auto x, auto level) { return x > level ? level : x; };
inline constexpr auto replacedBelow = [](auto x, auto level, auto value) { return x < level ? value : x; };
inline constexpr auto replacedOutside = [](auto x, auto lt, auto ltValue, auto gt, auto gtValue) {
  return x < lt ? ltValue : x > gt ? gtValue : x;
};

template <class T> T signedLike(T magnitude, T x) {
  if constexpr (std::is_integral_v<T>) return static_cast<T>(x < 0 ? -magnitude : magnitude);
  else return std::copysign(magnitude, x);
}
inline constexpr auto magnitudeRaised = [](auto x, auto level) {
  return (x < 0 ? x > -level : x < level) ? signedLike(level, x) : x;
};
inline constexpr auto magnitudeLowered = [](auto x, auto level) {
  return (x < 0 ? x < -level : x > level) ? signedLike(level, x) : x;
};

// 16-bit elements in 32-bit floats.
template <class C> auto magnitude(C x) {
  using F = std::conditional_t<std::is_same_v<decltype(x.re), double>, double, float>;
  return std::sqrt(static_cast<F>(x.re) * static_cast<F>(x.re) + static_cast<F>(x.im) * static_cast<F>(x.im));
}
template <class T, class F> T rounded(F x) {
  if constexpr (std::is_integral_v<T>) return static_cast<T>(std::rint(x));
  else return x;
}
inline constexpr auto clippedAbove = [](auto x, auto level) {
  using T = decltype(x.re);
  const auto size = magnitude(x);
  const auto factor = static_cast<decltype(size)>(level) / size;
  if (size > level) x.re = rounded<T>(x.re * factor), x.im = rounded<T>(x.im * factor);
  return x;
};
inline constexpr auto complexReplacedBelow = [](auto x, auto level, auto value) { return magnitude(x) < level ? value : x; };

inline constexpr auto inverse = [](auto x, auto level) { return 1 / (std::abs(x) < level ? std::copysign(level, x) : x); };
inline constexpr auto complexInverse = [](auto x, auto level) {
  const auto size = magnitude(x);
  const auto square = size < level ? size * level : size * size;
  x.re = x.re / square, x.im = -x.im / square;
  return x;
};

}  // namespace plain
