// The sine alone, of angles in turns: where no cosine is asked for, one polynomial over a quarter turn takes half the time of the
// two over an eighth in sin_cos.h.
//
// kDigits 53: error below 2 ULP. kDigits 24: doubles within 2^-27 of the result.
#pragma once

#include "math/polynomial.h"

namespace qvx {

namespace detail {

// sin 2 pi u = u p(u^2), u up to a quarter.
template <int kDigits> inline constexpr double kSine[] = {};
// degree 4, error 0.09 of 2^-24
template <>
inline constexpr double kSine<24>[] = {0x1.921fb520646ffp+2, -0x1.4abbc16588adbp+5, 0x1.4668af11a8913p+6, -0x1.324cc3dfd7120p+6,
                                       0x1.3daf7b5e6e2a8p+5};
// degree 8, error 0.4 of 2^-53
template <>
inline constexpr double kSine<53>[] = {0x1.921fb54442d18p+2,  -0x1.4abbce625be52p+5, 0x1.466bc6775aa6ep+6,
                                       -0x1.32d2cce627537p+6, 0x1.5078348518ad6p+5,  -0x1.e3074ddce80eap+3,
                                       0x1.e8f35e8cc6bd3p+1,  -0x1.6f79745e8ac16p-1, 0x1.9d1b2c9bc3dcbp-4};
// sin x = x + x z q(z), z = x^2, x up to a right angle: degree 3, error 0.2 of 2^-24
inline constexpr float kSineOfFloats[] = {-0x1.55554cp-3F, 0x1.110ed4p-7F, -0x1.9f6ff6p-13F, 0x1.5dbd6ep-19F};

}  // namespace detail

// From -1/4 to 1/4 turn.
template <int kDigits, class V> [[gnu::always_inline]] inline V sineOfQuarterTurn(V u) {
  return u * polynomial(u * u, detail::kSine<kDigits>);
}

// Of floats in radians, from -pi/2 to pi/2.
template <class V> [[gnu::always_inline]] inline V sineOfRightAngle(V x) {
  const V z = x * x;
  return hn::MulAdd(x * z, horner<0, 1>(z, detail::kSineOfFloats), x);
}

// From -1/2 to 1/2 turn.
template <int kDigits, class V> [[gnu::always_inline]] inline V sineOfHalfTurn(V turns) {
  const V size = hn::Abs(turns);
  const V sine = sineOfQuarterTurn<kDigits>(hn::Min(size, same<V>(0.5) - size));
  return hn::CopySignToAbs(sine, turns);
}
template <int kDigits, class V> [[gnu::always_inline]] inline V cosineOfHalfTurn(V turns) {
  return sineOfQuarterTurn<kDigits>(same<V>(0.25) - hn::Abs(turns));
}

}  // namespace qvx
