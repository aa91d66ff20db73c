// Steps over numbers k from either end of a spectrum at a time, for any count of them.
#pragma once

#include "transform/plan.h"

namespace qvx::transform {

// step(L) with the most lanes, a register's at most, that `count` fills.
template <class T, class Step> void withLanesWithin(size_t count, Step step) {
  if constexpr (kWidest<T> >= 16) {
    if (count >= 16) return step(std::integral_constant<size_t, 16>());
  }
  if constexpr (kWidest<T> >= 8) {
    if (count >= 8) return step(std::integral_constant<size_t, 8>());
  }
  if constexpr (kWidest<T> >= 4) {
    if (count >= 4) return step(std::integral_constant<size_t, 4>());
  }
  step(std::integral_constant<size_t, 2>());
}
// step(i) for vectors of L that cover 0..count-1; the last overlaps the one before.
template <size_t L, class Step> QVX_INLINE void inVectors(size_t count, Step step) {
  size_t i = 0;
  for (; i + L <= count; i += L) step(i);
  if (i < count) step(count - L);
}

template <class V> QVX_INLINE Complex<V> conjugate(Complex<V> z) { return {z.re, hn::Neg(z.im)}; }
template <class V> QVX_INLINE Complex<V> mirrored(Complex<V> z) { return {reversed(z.re), reversed(z.im)}; }
// z * conj w
template <class V> QVX_INLINE Complex<V> productWithConjugate(Complex<V> z, Complex<V> w) {
  return {hn::MulAdd(z.im, w.im, z.re * w.re), hn::NegMulAdd(z.re, w.im, z.im * w.re)};
}

}  // namespace qvx::transform
