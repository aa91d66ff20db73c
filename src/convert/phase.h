// The angle of a complex number, from -pi to pi: arctan(y / x) with the quadrant of the signs.
//
// Float: error below 1.0 ULP. Double: below 1.4 ULP. Zeros, infinities and what is not a number as the C library's atan2 has
// them. The quotient has a rounding of its own, which a float has no room for: its remainder is taken along.
#pragma once

#include <cmath>

#include "frame/redo.h"
#include "vector/arctan.h"

namespace qvx {

namespace detail {

// Between these neither a sum nor a remainder leaves the range of normal numbers; what lies beyond is left to the C library.
template <class T> inline constexpr T kLeastSize = sizeof(T) == 4 ? T(0x1p-100) : T(0x1p-960);
template <class T> inline constexpr T kMostSize = sizeof(T) == 4 ? T(0x1p120) : T(0x1p1000);

}  // namespace detail

template <class V> V phase(V y, V x) {
  using T = LaneOf<V>;
  using C = detail::ArctanNumbers<T>;
  const TagOf<V> d;
  const V signBit = same<V>(T(-0.0));
  const V zero = hn::Zero(d);
  const V up = hn::AndNot(signBit, y);
  const V along = hn::AndNot(signBit, x);
  const V size = hn::Max(up, along);
  const auto isZero = size == zero;
  const auto isMiddle = up > along * same<V>(T(2) / 3);
  const auto isLarge = up > along * same<V>(T(1.5));
  const auto ofRange = [&](V small, V middle, V large) {
    return hn::IfThenElse(isLarge, large, hn::IfThenElse(isMiddle, middle, small));
  };
  const V sum = up + along;
  const V num = ofRange(up, up - along, hn::Xor(along, signBit));
  const V den = hn::IfThenElse(isZero, same<V>(1), ofRange(along, sum, up));
  const V t = num / den;
  const V z = t * t;
  V low = ofRange(zero, same<V>(C::kHalfPiLow / 2), same<V>(C::kHalfPiLow));
  if constexpr (sizeof(T) == 4) {
    const V denLow = hn::IfThenElseZero(hn::AndNot(isLarge, isMiddle), hn::Min(up, along) - (sum - size));
    const V remainder = hn::NegMulAdd(t, denLow, hn::NegMulAdd(t, den, num));
    low = hn::MulAdd(remainder, hn::ApproximateReciprocal(den), low);
  }
  const V high = ofRange(zero, same<V>(C::kHalfPi / 2), same<V>(C::kHalfPi));
  const V more = hn::MulAdd(t, z * polynomial(z, C::kQ), low);
  const V angle = high + t;
  const V rest = t - (angle - high) + more;
  // To the left of the axis it is pi less that.
  const V pi = same<V>(2 * C::kHalfPi);
  const V left = pi - angle;
  const V leftRest = ((pi - left) - angle) + (same<V>(2 * C::kHalfPiLow) - rest);
  const V result = ifNegative(x, left + leftRest, angle + rest) ^ (y & signBit);

  const auto isNear = hn::And(size >= same<V>(detail::kLeastSize<T>), size <= same<V>(detail::kMostSize<T>));
  const uint64_t far = maskBits(d, hn::Not(hn::Or(isNear, hn::And(isZero, y == y))));
  if (HWY_LIKELY(far == 0)) return result;
  return redone(
      far, result, [](T imaginary, T real) { return std::atan2(imaginary, real); }, y, x);
}

}  // namespace qvx
