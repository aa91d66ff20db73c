// The arctangent of whole vectors of float or double.
//
// Error below 1.0 ULP (float), 1.25 ULP (double). Infinities give pi/2 and -pi/2 rounded to nearest; zeros and NaN give
// themselves.
//
// Below 2/3 it is t + t z q(z) with t = x and z = t^2. From there to 1.6, t = (x - 1) / (x + 1), the tangent of the angle less
// pi/4; above, t = -1 / x, that of the angle less pi/2. Two ranges, below and above 1, would need 21 coefficients in double
// instead of 14, and lose 0.3 ULP to cancellation.
#pragma once

#include "math/polynomial.h"

namespace qvx {

namespace detail {

// kHalfPi + kHalfPiLow is pi/2. kQ: on 0 to 4/9.
template <class T> struct ArctanNumbers;

template <> struct ArctanNumbers<float> {
  static constexpr float kHalfPi = 0x1.921FB6p+0F;
  static constexpr float kHalfPiLow = -0x1.777A5Cp-25F;
  // degree 5 error 0.19 of 2^-24
  static constexpr float kQ[] = {-0x1.555506p-2F, 0x1.997d36p-3F, -0x1.22d958p-3F, 0x1.ade4dp-4F, -0x1.11f2bp-4F, 0x1.90caa4p-6F};
};

template <> struct ArctanNumbers<double> {
  static constexpr double kHalfPi = 0x1.921FB54442D18p+0;
  static constexpr double kHalfPiLow = 0x1.1A62633145C07p-54;
  // degree 13 error 0.20 of 2^-53
  static constexpr double kQ[] = {-0x1.555555555547ap-2, 0x1.99999999832e9p-3, -0x1.2492491e235bp-3,  0x1.c71c6fe852167p-4,
                                  -0x1.745ceddfbf086p-4, 0x1.3b115d50a406ep-4, -0x1.10fa0d8d08c0bp-4, 0x1.e09e4b2737fb4p-5,
                                  -0x1.a8b2fdd8a9726p-5, 0x1.6dcced747280ap-5, -0x1.2073f0dfda515p-5, 0x1.76759887ef2a1p-6,
                                  -0x1.53167419c71f1p-7, 0x1.34add93e7f3a5p-9};
};

}  // namespace detail

template <class V> V arctan(V x) {
  using T = LaneOf<V>;
  using C = detail::ArctanNumbers<T>;
  const V signBit = same<V>(T(-0.0));
  const V one = same<V>(1);
  const V size = hn::AndNot(signBit, x);
  const auto isMiddle = size > same<V>(T(2) / 3);
  const auto isLarge = size > same<V>(T(1.6));
  const auto ofRange = [&](V small, V middle, V large) {
    return hn::IfThenElse(isLarge, large, hn::IfThenElse(isMiddle, middle, small));
  };
  const V t = ofRange(size, size - one, same<V>(-1)) / ofRange(one, size + one, size);
  const V z = t * t;
  const V zero = hn::Zero(TagOf<V>());
  const V low = ofRange(zero, same<V>(C::kHalfPiLow / 2), same<V>(C::kHalfPiLow));
  const V high = ofRange(zero, same<V>(C::kHalfPi / 2), same<V>(C::kHalfPi));
  const V more = hn::MulAdd(t, z * polynomial(z, C::kQ), low);
  // The sum of the two large parts, and its rounding error.
  const V sum = high + t;
  const V rest = t - (sum - high);
  return (sum + (rest + more)) ^ (x & signBit);
}

}  // namespace qvx
