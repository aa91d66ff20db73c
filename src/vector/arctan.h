// The arctangent of whole vectors of float or double.
//
// Error below 0.90 ULP. Infinities give the halves of pi nearest to them, zeros and what is not a number themselves.
//
// From 1 on it is pi/2 less the arctangent of the reciprocal; below, t + t z q(z) with z = t^2. One division, and no table: a
// polynomial of 19 coefficients takes less than what looks a shorter one up and rotates the argument to it.
#pragma once

#include "vector/polynomial.h"

namespace qvx {

namespace detail {

// kHalfPi + kHalfPiLow is pi/2. kQ: on 0 to 1.
template <class T> struct ArctanNumbers;

template <> struct ArctanNumbers<float> {
  static constexpr float kHalfPi = 0x1.921FB6p+0F;
  static constexpr float kHalfPiLow = -0x1.777A5Cp-25F;
  // degree 7, error 0.37 of 2^-24
  static constexpr float kQ[] = {-0x1.5554e6p-2F, 0x1.997adcp-3F, -0x1.231b66p-3F, 0x1.b568dep-4F,
                                 -0x1.368048p-4F, 0x1.64cad2p-5F, -0x1.0fab16p-6F, 0x1.85e3d8p-9F};
};

template <> struct ArctanNumbers<double> {
  static constexpr double kHalfPi = 0x1.921FB54442D18p+0;
  static constexpr double kHalfPiLow = 0x1.1A62633145C07p-54;
  // degree 18, error 0.30 of 2^-53
  static constexpr double kQ[] = {-0x1.5555555555464p-2,  0x1.9999999985ccap-3,  -0x1.2492491ffb7c3p-3, 0x1.c71c70b0764f6p-4,
                                  -0x1.745d0352b398cp-4,  0x1.3b12beaa26021p-4,  -0x1.1108f23e252b5p-4, 0x1.e17b980902682p-5,
                                  -0x1.ad4075009b489p-5,  0x1.7f0cbe053d501p-5,  -0x1.4fa1e3cf0a567p-5, 0x1.17b813f897ed5p-5,
                                  -0x1.a8da06521f5a7p-6,  0x1.17e86618da33ap-6,  -0x1.2f9bdb4c482e1p-7, 0x1.ff3d8f8756db9p-9,
                                  -0x1.3588361de6422p-10, 0x1.dbbcef2017b6cp-13, -0x1.5aa847e66aed8p-16};
};

}  // namespace detail

template <class V> V arctan(V x) {
  using T = LaneOf<V>;
  using C = detail::ArctanNumbers<T>;
  const V signBit = same<V>(T(-0.0));
  const V one = same<V>(1);
  const V size = hn::AndNot(signBit, x);
  const auto isLarge = size > one;
  const V ratio = hn::Min(one, size) / hn::Max(one, size);  // both give their second operand if it is not a number
  const V t = ratio ^ hn::IfThenElseZero(isLarge, signBit);
  const V z = t * t;
  const V more = hn::MulAdd(t, z * polynomial(z, C::kQ), hn::IfThenElseZero(isLarge, same<V>(C::kHalfPiLow)));
  return (hn::IfThenElseZero(isLarge, same<V>(C::kHalfPi)) + (t + more)) ^ (x & signBit);
}

}  // namespace qvx
