// The angle of a complex number, from -pi to pi: arctan(y / x) with the quadrant of the signs.
//
// Error below 1.0 ULP, for a float or a double. Zeros, infinities and NaN give what the C library's atan2 gives. The rounding of
// the quotient would add too much to the arctangent's own error, so its remainder is carried along. kRemainder false: without it,
// for doubles that become floats.
#pragma once

#include <cmath>

#include "frame/redo.h"
#include "frame/remainder.h"
#include "math/arctan.h"

namespace qvx {

namespace detail {

// Between these neither a sum nor a remainder leaves the range of normal numbers. The C library takes what lies beyond, except
// zeros.
template <class T> inline constexpr T kLeastSize = sizeof(T) == 4 ? T(0x1p-100) : T(0x1p-900);
template <class T> inline constexpr T kMostSize = sizeof(T) == 4 ? T(0x1p120) : T(0x1p960);

// num / den, and its error. den + denLow is the exact divisor.
template <class V> Pair<V> quotient(V num, V den, V denLow) {
  if constexpr (sizeof(LaneOf<V>) == 4) {
    const V t = num / den;
    const V rest = hn::NegMulAdd(t, denLow, remainderOf(t, den, num));
    return {t, rest * hn::ApproximateReciprocal(den)};
  } else if constexpr (kFuses) {  // one division for both
    const V inverse = same<V>(1) / den;
    const V near = num * inverse;
    const V t = hn::MulAdd(remainderOf(near, den, num), inverse, near);
    return {t, hn::NegMulAdd(t, denLow, remainderOf(t, den, num)) * inverse};
  } else {
    const V t = num / den;
    return {t, (remainderOf(t, den, num) - t * denLow) / den};
  }
}

}  // namespace detail

template <bool kRemainder = true, class V> V phase(V y, V x) {
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
  const V denLow = hn::IfThenElseZero(hn::AndNot(isLarge, isMiddle), hn::Min(up, along) - (sum - size));
  const auto [t, wrong] = kRemainder ? detail::quotient(num, den, denLow) : Pair<V>{num / den, zero};
  const V z = t * t;
  // The error of the quotient times the arctangent's slope 1 / (1 + z) is the error of the angle, near enough.
  const V low =
      hn::NegMulAdd(wrong * same<V>(T(0.72)), z, wrong) + ofRange(zero, same<V>(C::kHalfPiLow / 2), same<V>(C::kHalfPiLow));
  const V high = ofRange(zero, same<V>(C::kHalfPi / 2), same<V>(C::kHalfPi));
  const V more = hn::MulAdd(t, z * polynomial(z, C::kQ), low);
  const V angle = high + t;
  const V rest = t - (angle - high) + more;
  // Left of the imaginary axis the angle is pi less this one.
  const V pi = same<V>(2 * C::kHalfPi);
  const V left = pi - angle;
  const V leftRest = ((pi - left) - angle) + (same<V>(2 * C::kHalfPiLow) - rest);
  const V result = ifNegative(x, left + leftRest, angle + rest) ^ (y & signBit);

  const V smaller = hn::Min(up, along);
  const auto isFine = [&](V v) { return hn::Or(v >= same<V>(detail::kLeastSize<T>), v == zero); };
  const auto isNear = hn::And(hn::And(isFine(smaller), isFine(size)), size <= same<V>(detail::kMostSize<T>));
  const uint64_t far = maskBits(d, hn::Not(hn::And(isNear, y == y)));
  if (HWY_LIKELY(far == 0)) return result;
  return redone(
      far, result, [](double imaginary, double real) { return static_cast<T>(std::atan2(imaginary, real)); }, y, x);
}

}  // namespace qvx
