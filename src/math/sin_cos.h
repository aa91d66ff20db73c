// Sine and cosine of whole vectors of double.
//
// kDigits 53: error below 0.85 ULP (0.807 seen). kDigits 24: good for a float, that is within 2^-28 of the result. Any finite
// angle will do: those above kFarAngle are left to the C library, one by one, as is what is not finite.
//
// x = k pi/2 + r. pi/2 is given in three parts; the products of k below 2^20 with the first two are exact.
#pragma once

#include <cmath>

#include "frame/redo.h"
#include "frame/to_int64.h"
#include "math/polynomial.h"

namespace qvx {

namespace detail {

inline constexpr double kFarAngle = 0x1p20 * 1.57;

// kS: sin r = r + r z s(z), kC: cos r = 1 - z/2 + z^2 c(z), z = r^2, up to pi/4.
template <int kDigits> struct SinCosNumbers;
template <> struct SinCosNumbers<24> {
  // degree 2, errors 0.06 and 0.002 of 2^-24
  static constexpr double kS[] = {-0x1.555545981c23dp-3, 0x1.11075fd1c81ccp-7, -0x1.994e86ca4fc62p-13};
  static constexpr double kC[] = {0x1.55554ab37c62ep-5, -0x1.6c0c8b5ebd9c6p-10, 0x1.9a023d24b2d67p-16};
};
template <> struct SinCosNumbers<53> {
  // degree 5, errors 0.05 and 0.01 of 2^-53
  static constexpr double kS[] = {-0x1.5555555555549p-3, 0x1.111111110f87ep-7,   -0x1.a01a019c12028p-13,
                                  0x1.71de357814538p-19, -0x1.ae5e66862934bp-26, 0x1.5d93178dc2034p-33};
  static constexpr double kC[] = {0x1.555555555554cp-5,   -0x1.6c16c16c15181p-10, 0x1.a01a019cb2186p-16,
                                  -0x1.27e4f80a34ad5p-22, 0x1.1ee9ec1907cf2p-29,  -0x1.8faeb606d7df0p-37};
};

}  // namespace detail

template <class V> struct SinCos {
  V sine;
  V cosine;
};

// For k quarter turns and r, at most an eighth of a turn; `rest` has the digits after r's.
template <int kDigits, class V> SinCos<V> sinCosOfQuarters(V k, V r, V rest) {
  using C = detail::SinCosNumbers<kDigits>;
  const V z = r * r;
  const V half = same<V>(0.5) * z;
  const V one = same<V>(1);
  const V w = one - half;
  V s = (r * z) * polynomial(z, C::kS);
  V c = hn::MulAdd(z * z, polynomial(z, C::kC), (one - w) - half);
  if constexpr (kDigits > 24) {
    s = hn::MulAdd(rest, w, s);
    c = hn::NegMulAdd(rest, r, c);
  }
  s = r + s;
  c = w + c;

  // Every quarter turn swaps the two, every second one turns a sign: the lowest bits of k, moved to the place of the sign.
  const V signBit = same<V>(-0.0);
  const auto quarter = as<uint64_t>(k + same<V>(0x1.8p52));
  const V odd = as<double>(hn::ShiftLeft<63>(quarter));
  const V turned = as<double>(hn::ShiftLeft<62>(quarter)) & signBit;
  return {ifNegative(odd, c, s) ^ turned, ifNegative(odd, s, c) ^ turned ^ (odd & signBit)};
}

// For an angle in turns, of which quarters and their remainder are exact. Error below 1 ULP, or as above.
template <int kDigits = 53, class V> SinCos<V> sinCosOfTurns(V turns) {
  const V k = shortNearest(turns * same<V>(4));
  const V r = hn::NegMulAdd(k, same<V>(0.25), turns) * same<V>(0x1.921fb54442d18p+2);
  return sinCosOfQuarters<kDigits>(k, r, hn::Zero(TagOf<V>()));
}

template <int kDigits, class V> SinCos<V> sinCos(V x) {
  const TagOf<V> d;
  const V signBit = same<V>(-0.0);
  const V size = hn::AndNot(signBit, x);
  const V k = shortNearest(size * same<V>(0x1.45F306DC9C883p-1));
  const V first = hn::NegMulAdd(k, same<V>(0x1.921fb544p+0), size);
  const V kB = same<V>(0x1.0b4611a6p-34);
  const V kC = same<V>(0x1.3198a2e037073p-69);
  V r = hn::NegMulAdd(k, kB, first);
  V rest = hn::Zero(d);
  if constexpr (kDigits > 24) {  // the rounding error of r
    const V low = hn::NegMulAdd(k, kC, hn::NegMulAdd(k, kB, first - r));
    const V sum = r + low;
    rest = (r - sum) + low;
    r = sum;
  } else {
    r = hn::NegMulAdd(k, kC, r);
  }
  SinCos<V> found = sinCosOfQuarters<kDigits>(k, r, rest);
  found.sine = found.sine ^ (x & signBit);

  const uint64_t far = maskBits(d, hn::Not(size <= same<V>(detail::kFarAngle)));
  if (HWY_LIKELY(far == 0)) return found;
  return {redone(
              far, found.sine, [](double v) { return std::sin(v); }, x),
          redone(
              far, found.cosine, [](double v) { return std::cos(v); }, x)};
}

}  // namespace qvx
