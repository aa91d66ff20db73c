// Between the spectrum Z of a real sequence taken as H complex numbers, and the sequence's own spectrum X.
//
// With a = Z[k], b = Z[H - k] and W = exp(-2 pi i / N), N = 2H, X[k] is (a + conj b) / 2 - (i/2) W^k (a - conj b). In the numbers
// C = cos(2 pi k / N) / 2 and D = (1 - sin(2 pi k / N)) / 2, P = re(a - b), Q = im(a + b), t = C Q + D P, u = D Q - C P this is
//
//   X[k] = (re b + t, u - im b)     X[H - k] = (re a - t, u - im a)
//
// The way back is the same with -C in place of C, and gives half of Z.
#pragma once

#include "transform/complex_transform.h"

namespace qvx::transform {

// From so many numbers on, one table of n/4 twiddles would fill the caches that the transform itself needs: there are two then,
// one of kFine neighbours and one of every kFine-th.
template <class T> inline constexpr size_t kTwoTables = size_t{1} << (sizeof(T) == 4 ? 19 : 17);
template <class T> inline constexpr size_t kFine = sizeof(T) == 4 ? 1024 : 512;

// C and D of k = 1 .. H/2 in groups of L, in the order of interleaved elements; or, for long sequences, the twiddles exp(-2 pi i
// k / N) of k = 1 .. kFine, and of 0, kFine, 2 kFine ..., of which each k takes a product.
template <class T> struct RealTwiddles {
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

// A vector from either end of the lower and the upper half at a time, of those whose first k are in a range of 0 to h / 2; h from
// 32 on.
template <bool kInverse, class T>
[[gnu::noinline]] void recombine(const T* src, T* dst, size_t h, Range range, RealTwiddles<T> twiddles) {
  constexpr size_t L = kWidest<T>;
  using V = Vec<Lanes<T, L>>;
  const Interleaved<const T, false> from{src};
  const Interleaved<T, false> to{dst};
  const auto mirrored = [](Complex<V> z) { return Complex<V>{reversed(z.re), reversed(z.im)}; };
  const V half = same<V>(T(0.5));
  for (size_t k = range.from; k < range.to; k += L) {
    Complex<V> cd = group<L>(twiddles.fine + 2 * (isNull(twiddles.coarse) ? k : k % kFine<T>));
    if (!isNull(twiddles.coarse)) {
      const T* coarse = twiddles.coarse + k / kFine<T> * 2;
      const Complex<V> twiddle = product(cd, coarse[0], coarse[1]);
      cd = {half * twiddle.re, hn::MulAdd(half, twiddle.im, half)};
    }
    Complex<V> a = from.template get<L>(k + 1);
    Complex<V> b = mirrored(from.template get<L>(h - k - L));
    recombine<V, kInverse>(a, b, cd);
    to.template put<L>(a, k + 1);
    to.template put<L>(mirrored(b), h - k - L);
  }
}
template <bool kInverse, class T> void recombineInTeam(int threads, const T* src, T* dst, size_t h, RealTwiddles<T> twiddles) {
  constexpr size_t L = kWidest<T>;
  dividedBetween(threads, h / 2 / L, [=](size_t from, size_t count, size_t) {
    recombine<kInverse>(src, dst, h, {from * L, (from + count) * L}, twiddles);
    return qvxStatOk;
  });
}

// Twiddles k = 1..count in groups: value(real, imaginary part) of exp(-2 pi i k / n).
template <class T, class Value, class Write = BySines>
constexpr void writeRealGroups(T* out, size_t n, size_t count, Value value, Write write = {}) {
  constexpr size_t L = kWidest<T>;
  const auto put = intoGroups<L>(out);
  write(
      n, count, [=](size_t i) { return i / L * L + Interleaved<T, false>::template element<L>(i % L) + 1; },
      [=](size_t i, double re, double im) {
        const auto v = value(re, im);
        put(i, v.re, v.im);
      });
}

}  // namespace qvx::transform
