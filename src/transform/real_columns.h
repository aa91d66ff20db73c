// Odd numbers of reals, n = R * m, by half of the complex transforms that as many points would take.
//
// The first pass transforms R numbers, m apart, and multiplies results j = 1..R/2 of column p by exp(-2 pi i p j / n); what would
// be the others are conjugate. Result j of all columns is a row of m points, the real result 0 a row of m numbers. Result q of a
// row's transform is number R q + j of the spectrum, or, from the middle on, R (m - q) - j of its conjugate.
//
// Back: the same from the end to the beginning. Rows are read with their points 1 to m - 1 backwards, so that their transform is
// the forward one.
#pragma once

#include "transform/plan.h"
#include "transform/real_butterfly.h"

namespace qvx::transform {

inline constexpr uint8_t kRealRadices[] = {27, 25, 15, 13, 11, 9, 7, 5, 3};
template <class Step> QVX_INLINE void withRealRadix(size_t radix, Step step) {
  switch (radix) {
    case 3:
      return step(std::integral_constant<size_t, 3>());
    case 5:
      return step(std::integral_constant<size_t, 5>());
    case 7:
      return step(std::integral_constant<size_t, 7>());
    case 9:
      return step(std::integral_constant<size_t, 9>());
    case 11:
      return step(std::integral_constant<size_t, 11>());
    case 13:
      return step(std::integral_constant<size_t, 13>());
    case 15:
      return step(std::integral_constant<size_t, 15>());
    case 25:
      return step(std::integral_constant<size_t, 25>());
    default:
      return step(std::integral_constant<size_t, 27>());
  }
}

template <class T> struct RealColumns {
  uint8_t radix;      // R, 0 where n has none
  uint32_t m;         // from a vector's lanes on
  const T* twiddles;  // for each vector of columns, for j = 1..R/2, a group; the last vector ends where the columns do
};

constexpr bool hasLargePrime(uint32_t n) {
  for (const uint32_t p : {2, 3, 5, 7, 11, 13}) {
    while (n % p == 0) n /= p;
  }
  return n > 1;
}

// The largest radix that leaves rows of half its length. Rows of floats are shorter in vectors, and each costs a call: 375 take
// 0.78 to 0.85 by 5 and 75 of what they take by 15 and 25, unless a large prime would go through memory in a longer row.
template <class T> void chooseRealColumns(RealColumns<T>& plan, uint32_t n) {
  plan.radix = 0;
  for (const uint32_t radix : kRealRadices) {
    const uint32_t m = n / radix;
    const bool isShort = sizeof(T) == 4 && !hasLargePrime(m) ? m < 2 * radix : 2 * m < radix;
    if (n % radix != 0 || m < kWidest<T> || isShort) continue;
    plan.radix = static_cast<uint8_t>(radix);
    plan.m = m;
    return;
  }
}
template <class T> size_t numbersOfTwiddles(const RealColumns<T>& plan) {
  return (plan.m + kWidest<T> - 1) / kWidest<T> * kWidest<T> * (plan.radix / 2U);
}
template <class T> size_t tableLength(const RealColumns<T>& plan) {
  return 2 * numbersOfTwiddles(plan) + Carver::kLine / sizeof(T);
}
// The end of the table.
template <class T> T* writeRealColumns(RealColumns<T>& plan, T* block) {
  constexpr size_t L = kWidest<T>;
  T* const out = alignedUp(block, Carver::kLine);
  plan.twiddles = out;
  const size_t m = plan.m;
  const auto column = [m](size_t group, size_t lane) { return std::min(group * L, m - L) + lane; };
  writeTwiddles(m * plan.radix, numbersOfTwiddles(plan), inTurn(L, plan.radix / 2U, column), intoGroups<L>(out));
  return out + 2 * numbersOfTwiddles(plan);
}

// Rows 1..R/2 after one another, m points each, then row 0.
template <size_t R, class T> [[gnu::noinline]] void realsToRows(const T* src, T* rows, size_t m, const T* twiddles, T factor) {
  constexpr size_t L = kWidest<T>;
  const Lanes<T, L> d;
  using V = Vec<Lanes<T, L>>;
  const V f = same<V>(factor);
  for (size_t begin = 0; begin < m; begin += L, twiddles += R / 2 * 2 * L) {
    const size_t p = std::min(begin, m - L);
    transformReals<R>(
        [=](auto k) __attribute__((always_inline)) { return f * load(d, src + p + k * m); },
        [=](auto j, Complex<V> z) __attribute__((always_inline)) {
          if constexpr (j == 0) {
            store(z.re, d, rows + (R - 1) * m + p);
          } else {
            const Interleaved<T, false> row{rows + 2 * (j - 1) * m};
            row.template putInOrder<L>(product(z, group<L>(twiddles + (j - 1) * 2 * L)), p);
          }
        });
  }
}
template <size_t R, class T> [[gnu::noinline]] void rowsToReals(const T* rows, T* dst, size_t m, const T* twiddles, T factor) {
  constexpr size_t L = kWidest<T>;
  const Lanes<T, L> d;
  using V = Vec<Lanes<T, L>>;
  const V f = same<V>(factor);
  for (size_t begin = 0; begin < m; begin += L, twiddles += R / 2 * 2 * L) {
    const size_t p = std::min(begin, m - L);
    transformToReals<R>(
        [=](auto j) __attribute__((always_inline)) {
          if constexpr (j == 0) {
            return Complex<V>{load(d, rows + (R - 1) * m + p), hn::Zero(d)};
          } else {
            const Interleaved<const T, false> row{rows + 2 * (j - 1) * m};
            return productWithConjugate(row.template getInOrder<L>(p), group<L>(twiddles + (j - 1) * 2 * L));
          }
        },
        [=](auto k, V v) __attribute__((always_inline)) { store(f * v, d, dst + p + k * m); });
  }
}

template <class T> QVX_INLINE void copyPoint(const T* from, T* to) {
  const Lanes<T, 2> d;
  store(load(d, from), d, to);
}
template <class T> QVX_INLINE void copyConjugate(const T* from, T* to) {
  const Lanes<T, 2> d;
  store(load(d, from) * alternating<Vec<Lanes<T, 2>>>(), d, to);
}
// pairs: where number 0 of the spectrum would be as a pair; 1 is the first. Row 0: the results up to its middle, the first as a
// number.
template <class T> void rowsToSpectrum(const T* rows, T* pairs, size_t radix, size_t m) {
  const size_t half = radix / 2;
  const T* const first = rows + (radix - 1) * m - 1;
  for (size_t q = 0; q <= m / 2; ++q, pairs += 2 * radix) {
    if (q > 0) copyPoint(first + 2 * q, pairs);
    for (size_t j = 1; j <= half; ++j) copyPoint(rows + 2 * ((j - 1) * m + q), pairs + 2 * j);
    if (q == m / 2) return;
    for (size_t j = half; j >= 1; --j) copyConjugate(rows + 2 * (j * m - 1 - q), pairs + 2 * (radix - j));
  }
}
template <class T> void spectrumToRows(const T* pairs, T* rows, size_t radix, size_t m) {
  const size_t half = radix / 2;
  T* const first = rows + (radix - 1) * m - 1;
  for (size_t q = 0; q <= m / 2; ++q, pairs += 2 * radix) {
    if (q > 0) copyPoint(pairs, first + 2 * q);
    for (size_t j = 1; j <= half; ++j) copyPoint(pairs + 2 * j, rows + 2 * ((j - 1) * m + (q > 0 ? m - q : 0)));
    if (q == m / 2) return;
    for (size_t j = half; j >= 1; --j) copyConjugate(pairs + 2 * (radix - j), rows + 2 * ((j - 1) * m + q + 1));
  }
}

}  // namespace qvx::transform
