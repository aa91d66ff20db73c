// The sine alone, of angles in turns: where no cosine is asked for, one polynomial over a quarter turn takes half the time of the
// two over an eighth in sin_cos.h.
//
// kDigits 53: error below 2 ULP. kDigits 24: doubles within 2^-27 of the result.
#pragma once

#include <array>

#include "frame/unroll.h"
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

// The same for some vectors, step by step beside each other: one after the other, so many instructions wait for the one before
// them that those of the next vector are not seen. Eight vectors of AVX-512 take 0.88 of the time, four of SSSE3 0.9.
template <int kDigits, size_t kCount, class V>
[[gnu::always_inline]] inline std::array<V, kCount> sinesOfQuarterTurns(const std::array<V, kCount>& u) {
  constexpr auto& kC = detail::kSine<kDigits>;
  std::array<V, kCount> square, sum;
  const auto each = [](auto step) __attribute__((always_inline)) { unrolled<kCount>(step); };
  each([&](auto i) __attribute__((always_inline)) { square[i] = u[i] * u[i]; });
  each([&](auto i) __attribute__((always_inline)) { sum[i] = same<V>(kC[std::size(kC) - 1]); });
  unrolled<std::size(kC) - 1>([&](auto k) __attribute__((always_inline)) {
    each([&](auto i)
             __attribute__((always_inline)) { sum[i] = hn::MulAdd(sum[i], square[i], same<V>(kC[std::size(kC) - 2 - k])); });
  });
  each([&](auto i) __attribute__((always_inline)) { sum[i] = sum[i] * u[i]; });
  return sum;
}

// The quotient of the sine and an angle up to a right one, from the square of the angle: of floats in radians, of doubles in
// turns. In floats it waits for three products and sums, by Horner's rule for four.
template <class T> inline constexpr double kSquaredHalfTurn = sizeof(T) == sizeof(float) ? 9.869604401089358 : 0.25;
template <class V> [[gnu::always_inline]] inline V sineByAngle(V z) {
  if constexpr (std::is_same_v<LaneOf<V>, float>) {
    const auto c = [](size_t k) { return same<V>(detail::kSineOfFloats[k]); };
    const V square = z * z;
    return hn::MulAdd(square, hn::MulAdd(square, c(3), hn::MulAdd(z, c(2), c(1))), hn::MulAdd(z, c(0), same<V>(1)));
  } else {
    return polynomial(z, detail::kSine<53>);
  }
}

// From -1/2 to 1/2 turn.
template <int kDigits, class V> [[gnu::always_inline]] inline V sineOfHalfTurn(V turns) {
  const V size = hn::Abs(turns);
  const V sine = sineOfQuarterTurn<kDigits>(hn::Min(size, same<V>(0.5) - size));
  return hn::CopySignToAbs(sine, turns);
}

}  // namespace qvx
