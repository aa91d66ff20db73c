// Transforms of up to 16 real numbers, one lane each, by even and odd elements.
#pragma once

#include "fft/folded.h"

namespace qvx::fft {

// X[0], X[N/2], and X[k] for the k between them.
template <size_t N, class V> struct HalfSpectrum {
  V first;
  V last;
  Complex<V> between[N / 2];
};

template <size_t N, class V> QVX_INLINE Complex<V> rootOf(size_t k, bool inverse) {
  using T = LaneOf<V>;
  const double sine = cosineOf32(k * (32 / N) + 8);  // -sin
  return {same<V>(T(cosineOf32(k * (32 / N)))), same<V>(T(inverse ? -sine : sine))};
}

// x(i): element i.
template <size_t N, class V, class Get> QVX_INLINE HalfSpectrum<N, V> realForward(Get x) {
  HalfSpectrum<N, V> result;
  if constexpr (N == 2) {
    result.first = x(0) + x(1);
    result.last = x(0) - x(1);
  } else {
    constexpr size_t M = N / 2;
    const auto even = realForward<M, V>([=](size_t i) __attribute__((always_inline)) { return x(2 * i); });
    const auto odd = realForward<M, V>([=](size_t i) __attribute__((always_inline)) { return x(2 * i + 1); });
    result.first = even.first + odd.first;
    result.last = even.first - odd.first;
    result.between[M / 2] = {even.last, hn::Neg(odd.last)};
    unrolled<(M > 2 ? M / 2 - 1 : 0)>([&](auto i) __attribute__((always_inline)) {
      constexpr size_t k = i + 1;
      const Complex<V> turned = product(odd.between[k], rootOf<N, V>(k, false));
      const Complex<V> mirrored = difference(even.between[k], turned);
      result.between[k] = sum(even.between[k], turned);
      result.between[M - k] = {mirrored.re, hn::Neg(mirrored.im)};
    });
  }
  return result;
}

// N times the sequence: put(i, x).
template <size_t N, class V, class Put> QVX_INLINE void realInverse(const HalfSpectrum<N, V>& spectrum, Put put) {
  if constexpr (N == 2) {
    put(0, spectrum.first + spectrum.last);
    put(1, spectrum.first - spectrum.last);
  } else {
    constexpr size_t M = N / 2;
    const Complex<V> middle = spectrum.between[M / 2];
    HalfSpectrum<M, V> even;
    HalfSpectrum<M, V> odd;
    even.first = spectrum.first + spectrum.last;
    even.last = middle.re + middle.re;
    odd.first = spectrum.first - spectrum.last;
    odd.last = hn::Neg(middle.im + middle.im);
    unrolled<(M > 2 ? M / 2 - 1 : 0)>([&](auto i) __attribute__((always_inline)) {
      constexpr size_t k = i + 1;
      const Complex<V> a = spectrum.between[k];
      const Complex<V> b = {spectrum.between[M - k].re, hn::Neg(spectrum.between[M - k].im)};
      even.between[k] = sum(a, b);
      odd.between[k] = product(difference(a, b), rootOf<N, V>(k, true));
    });
    realInverse<M>(
        even, [=](size_t i, V v) __attribute__((always_inline)) { put(2 * i, v); });
    realInverse<M>(
        odd, [=](size_t i, V v) __attribute__((always_inline)) { put(2 * i + 1, v); });
  }
}

}  // namespace qvx::fft
