// Odd lengths with small factors, and primes whose points go through a convolution in another order: by a real transform of
// the numbers in halves (even.h).
#pragma once

#include "dct/even.h"
#include "dct/plan.h"

namespace qvx::dct {

// sqrt(2/n) exp(-2 pi i k / (4n)) for k = 1 .. n/2: all real parts, then all imaginary ones.
template <class T> void writeOddTwiddles(T* out, size_t n) {
  const long double factor = std::sqrt(2 / static_cast<long double>(n));
  writeTwiddles(
      4 * n, n / 2, [](size_t i) { return i + 1; },
      [=](size_t i, double re, double im) {
        out[i] = static_cast<T>(factor * re);
        out[n / 2 + i] = static_cast<T>(factor * im);
      });
}

template <class T> void spectrumToCosinesOdd(const T* z, T* y, size_t n, const T* twiddles, T mean) {
  constexpr size_t L = transform::kWidest<T>;
  const size_t h = n / 2;
  const Lanes<T, L> d;
  y[0] = mean * z[0];
  inVectors<L>(
      h, [=](size_t i) __attribute__((always_inline)) {
        const size_t k = i + 1;
        const auto spectrum = transform::Interleaved<const T, false>{z}.template getInOrder<L>(k);
        const auto v = transform::product(spectrum, Complex<Vec<Lanes<T, L>>>{load(d, twiddles + i), load(d, twiddles + h + i)});
        store(v.re, d, y + k);
        store(reversed(hn::Neg(v.im)), d, y + n - k - L + 1);
      });
}

template <class T> void cosinesToSpectrumOdd(const T* y, T* z, size_t n, const T* twiddles, T mean) {
  constexpr size_t L = transform::kWidest<T>;
  using V = Vec<Lanes<T, L>>;
  const size_t h = n / 2;
  const Lanes<T, L> d;
  const transform::Interleaved<T, false> to{z};
  z[0] = mean * y[0];
  z[1] = 0;
  inVectors<L>(
      h, [=](size_t i) __attribute__((always_inline)) {
        const size_t k = i + 1;
        const V half = same<V>(T(0.5));
        const Complex<V> v{half * load(d, y + k), hn::Neg(half * reversed(load(d, y + n - k - L + 1)))};
        const auto spectrum = productWithConjugate(v, Complex<V>{load(d, twiddles + i), load(d, twiddles + h + i)});
        to.template putInOrder<L>(spectrum, k);
      });
}

}  // namespace qvx::dct
