// Between the spectrum Z of a real sequence taken as H complex numbers, and the sequence's own spectrum X.
//
// With a = Z[k], b = Z[H - k] and W = exp(-2 pi i / N), N = 2H, X[k] is (a + conj b) / 2 - (i/2) W^k (a - conj b). In the numbers
// C = cos(2 pi k / N) / 2 and D = (1 - sin(2 pi k / N)) / 2, P = re(a - b), Q = im(a + b), t = C Q + D P, u = D Q - C P this is
//
//   X[k] = (re b + t, u - im b)     X[H - k] = (re a - t, u - im a)
//
// The way back is the same with -C in place of C, and gives half of Z.
#pragma once

#include "fft/complex_transform.h"

namespace qvx::fft {

// C and D of k = 1 .. H/2 in groups of L, in the order of interleaved elements; or, for long sequences, the roots exp(-2 pi i k /
// N) of k = 1 .. kFine, and of 0, kFine, 2 kFine ..., of which each k takes a product.
template <class T> struct RealRoots {
  const T* fine;
  const T* coarse;  // null where there is only one table
};

template <class V, bool kInverse> QVX_INLINE void recombine(Complex<V>& a, Complex<V>& b, Complex<V> cd) {
  const V p = a.re - b.re;
  const V q = a.im + b.im;
  const V c = kInverse ? hn::Neg(cd.re) : cd.re;
  const V t = hn::MulAdd(c, q, cd.im * p);
  const V u = hn::NegMulAdd(c, p, cd.im * q);
  const Complex<V> z = a;
  a = {b.re + t, u - b.im};
  b = {z.re - t, u - z.im};
}

// A vector from either end of the lower and the upper half at a time. Shuffles do not know vectors of two floats.
template <class T> constexpr size_t lanesForReal(size_t h) {
  size_t lanes = kWidest<T>;
  while (lanes > 1 && 2 * lanes > h) lanes /= 2;
  return lanes * sizeof(T) < 16 ? 1 : lanes;
}

template <bool kInverse, size_t L, class T> void recombineIn(const T* src, T* dst, size_t h, RealRoots<T> roots) {
  using V = Vec<Lanes<T, L>>;
  const Interleaved<const T, false> from{src};
  const Interleaved<T, false> to{dst};
  const auto turned = [](Complex<V> z) { return L == 1 ? z : Complex<V>{reversed(z.re), reversed(z.im)}; };
  const V half = same<V>(T(0.5));
  for (size_t k = 0; k < h / 2; k += L) {
    Complex<V> cd = group<L>(roots.fine + 2 * (isNull(roots.coarse) ? k : k % Orders<T>::kFine));
    if (!isNull(roots.coarse)) {
      const T* coarse = roots.coarse + k / Orders<T>::kFine * 2;
      const Complex<V> root = product(cd, coarse[0], coarse[1]);
      cd = {half * root.re, hn::MulAdd(half, root.im, half)};
    }
    Complex<V> a = from.template get<L>(k + 1);
    Complex<V> b = turned(from.template get<L>(h - k - L));
    recombine<V, kInverse>(a, b, cd);
    to.template put<L>(a, k + 1);
    to.template put<L>(turned(b), h - k - L);
  }
}

template <bool kInverse, class T, size_t L = kWidest<T>> void recombine(const T* src, T* dst, size_t h, RealRoots<T> roots) {
  if (lanesForReal<T>(h) == L) return recombineIn<kInverse, L>(src, dst, h, roots);
  if constexpr (L > 1) recombine<kInverse, T, L * sizeof(T) <= 16 ? 1 : L / 2>(src, dst, h, roots);
}

// k = 1..count in groups of L: put(group's lane, real, imaginary part) from exp(-2 pi i k step / n).
template <class T, size_t L, class Value> void writeRealGroups(T* out, size_t n, size_t count, size_t step, Value value) {
  writeRoots(
      n, count, [=](size_t i) { return (i / L * L + Interleaved<T, false>::template element<L>(i % L) + 1) * step; },
      [=](size_t i, double re, double im) {
        const auto v = value(re, im);
        out[i / L * 2 * L + i % L] = static_cast<T>(v.re);
        out[i / L * 2 * L + i % L + L] = static_cast<T>(v.im);
      });
}

}  // namespace qvx::fft
