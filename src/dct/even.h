// Between the cosine transform y of n numbers x and the spectrum Z of n/2 complex ones, n even.
//
// With v the even numbers of x in order, then the odd ones backwards, taken as H = n/2 complex numbers, Z their transform, a =
// Z[k], b = Z[H - k], t = exp(-2 pi i k / (4n)) and f = sqrt(1 / (2n)),
//
//   p = f t (a + conj b)     q = f t^5 (-i) (a - conj b)     s = p + q     d = p - q
//   y[k] = re s     y[n - k] = -im s     y[H - k] = sqrt(1/2) (re d - im d)     y[H + k] = sqrt(1/2) (re d + im d)
//
// The inverse is the same read backwards, with the conjugates of the two factors.
#pragma once

#include "transform/mirror.h"

namespace qvx::dct {

using transform::conjugate;
using transform::group;
using transform::inVectors;
using transform::mirrored;
using transform::productWithConjugate;
using transform::withLanesWithin;
using transform::writeTwiddles;

// ---- The order of the numbers: even ones, then odd ones backwards

template <class T> void toHalves(const T* x, T* v, size_t n) {
  withLanesWithin<T>(n / 2, [=](auto L) {
    const Lanes<T, L> d;
    inVectors<L>(n / 2, [=](size_t i) {
      const auto pair = deinterleaved(Pair<Vec<Lanes<T, L>>>{load(d, x + 2 * i), load(d, x + 2 * i + L)});
      store(pair.lo, d, v + i);
      store(reversed(pair.hi), d, v + n - i - L);
    });
  });
  if (n % 2 != 0) v[n / 2] = x[n - 1];
}
template <class T> void fromHalves(const T* v, T* x, size_t n) {
  withLanesWithin<T>(n / 2, [=](auto L) {
    const Lanes<T, L> d;
    inVectors<L>(n / 2, [=](size_t i) {
      const auto pair = interleaved(Pair<Vec<Lanes<T, L>>>{load(d, v + i), reversed(load(d, v + n - i - L))});
      store(pair.lo, d, x + 2 * i);
      store(pair.hi, d, x + 2 * i + L);
    });
  });
  if (n % 2 != 0) x[n - 1] = v[n / 2];
}

// ---- The factors

// The number of the k.
constexpr size_t twiddlePairs(size_t n) { return n / 4; }
// The length of a table with two numbers for each k; its vectors overlap where they do not fill the last one.
template <class T> size_t evenTableLength(size_t n) {
  size_t length = 0;
  withLanesWithin<T>(twiddlePairs(n), [&](auto L) { length = (twiddlePairs(n) + L - 1) / L * 4 * L; });
  return length;
}

// f t and -i f t^5 for each k from 1 to twiddlePairs(n), in groups of L.
template <class T> void writeEvenTwiddles(T* out, size_t n) {
  // In long double: rounded to a double, its error would be common to all results.
  const long double f = std::sqrt(0.5L / static_cast<long double>(n));
  const size_t count = twiddlePairs(n);
  withLanesWithin<T>(count, [=](auto L) {
    const size_t length = (count + L - 1) / L * L;
    const auto number = [=](size_t i) { return std::min(i / L * L, count - L) + i % L + 1; };
    for (const size_t second : {0, 1}) {
      writeTwiddles(
          4 * n, length, [=](size_t i) { return second == 0 ? number(i) : 5 * number(i) + n; },
          [=](size_t i, double re, double im) {
            T* at = out + (i / L * 2 + second) * 2 * L + i % L;
            at[0] = static_cast<T>(f * re);
            at[L] = static_cast<T>(f * im);
          });
    }
  });
}

template <class T> void spectrumToCosines(const T* z, T* y, size_t n, const T* table, T mean) {
  using transform::difference;
  using transform::product;
  using transform::sum;
  constexpr T kHalf = 0.70710678118654752440;
  const size_t h = n / 2;
  y[0] = mean * (z[0] + z[1]);
  y[h] = mean * (z[0] - z[1]);
  withLanesWithin<T>(twiddlePairs(n), [=](auto L) {
    using V = Vec<Lanes<T, L>>;
    const Lanes<T, L> d;
    const transform::Interleaved<const T, false> from{z};
    const T* at = table;
    inVectors<L>(
        twiddlePairs(n), [&](size_t i) __attribute__((always_inline)) {
          const size_t k = i + 1;
          const Complex<V> a = from.template getInOrder<L>(k);
          const Complex<V> b = conjugate(mirrored(from.template getInOrder<L>(h - k - L + 1)));
          const Complex<V> p = product(sum(a, b), group<L>(at));
          const Complex<V> q = product(difference(a, b), group<L>(at + 2 * L));
          at += 4 * L;
          const Complex<V> s = sum(p, q);
          const Complex<V> off = difference(p, q);
          store(s.re, d, y + k);
          store(reversed(hn::Neg(s.im)), d, y + n - k - L + 1);
          store(reversed((off.re - off.im) * same<V>(kHalf)), d, y + h - k - L + 1);
          store((off.re + off.im) * same<V>(kHalf), d, y + h + k);
        });
  });
}

template <class T> void cosinesToSpectrum(const T* y, T* z, size_t n, const T* table, T mean) {
  using transform::difference;
  using transform::sum;
  constexpr T kHalf = 0.70710678118654752440;
  const size_t h = n / 2;
  z[0] = mean * (y[0] + y[h]);
  z[1] = mean * (y[0] - y[h]);
  withLanesWithin<T>(twiddlePairs(n), [=](auto L) {
    using V = Vec<Lanes<T, L>>;
    const Lanes<T, L> d;
    const transform::Interleaved<T, false> to{z};
    const T* at = table;
    inVectors<L>(
        twiddlePairs(n), [&](size_t i) __attribute__((always_inline)) {
          const size_t k = i + 1;
          const Complex<V> s{load(d, y + k), hn::Neg(reversed(load(d, y + n - k - L + 1)))};
          const V before = reversed(load(d, y + h - k - L + 1)) * same<V>(kHalf);
          const V after = load(d, y + h + k) * same<V>(kHalf);
          const Complex<V> off{before + after, after - before};
          const Complex<V> p = productWithConjugate(sum(s, off), group<L>(at));
          const Complex<V> q = productWithConjugate(difference(s, off), group<L>(at + 2 * L));
          at += 4 * L;
          to.template putInOrder<L>(sum(p, q), k);
          to.template putInOrder<L>(mirrored(conjugate(difference(p, q))), h - k - L + 1);
        });
  });
}

}  // namespace qvx::dct
