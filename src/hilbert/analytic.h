// The Hilbert transform h of n real numbers.
//
// Its spectrum is -i X[k] below n/2, i X[k] above, and 0 at 0 and n/2. For even n neither spectrum has to be computed: with Z the
// transform of the numbers taken as H = n/2 complex ones, a = Z[k], b = Z[H - k], W = exp(-2 pi i k / n),
//
//   p = conj(W) (a + conj b) / 2     q = W (a - conj b) / 2     Z'[k] = p - q     Z'[H - k] = -conj(p + q)
//
// is the transform of h, taken likewise. So two transforms of half the length and one pass between them do it.
#pragma once

#include "transform/matrix.h"
#include "transform/mirror.h"

namespace qvx::hilbert {

using transform::group;
using transform::inVectors;
using transform::kWidest;
using transform::withLanesWithin;

// ---- Few numbers: the product with a matrix of constants

inline constexpr int kLongestByMatrix = 16;

template <int N> struct Matrix {
  static constexpr size_t L = transform::RowShape<Qvx32f, N>::kLanes;
  static constexpr size_t kVectors = transform::RowShape<Qvx32f, N>::kVectors;
  Qvx32f row[N][kVectors * L];
  // What number i of the source adds to number j of h: 2/n times the sum of sin(2 pi k (j - i) / n) over the k below n/2.
  constexpr Matrix() : row() {
    for (int distance = 0; distance < N; ++distance) {
      long double sum = 0;
      for (int k = 1; 2 * k < N; ++k) sum += transform::cosine(4 * k * distance + 3 * N, N);
      for (int i = 0; i < N; ++i) row[i][(i + distance) % N] = static_cast<Qvx32f>(2 * sum / N);
    }
  }
};
template <int N> alignas(64) inline constexpr Matrix<N> kMatrix;

template <int N> void byMatrix(const Qvx32f* x, Qvx32f* h) {
  using M = Matrix<N>;
  const auto sums = transform::combined<N, 1, M::L>(x, kMatrix<N>.row);
  unrolled<M::kVectors>([&](auto w)
                            __attribute__((always_inline)) { transform::storeConstant<N - w * M::L>(sums[w], h + w * M::L); });
}
using Kernel = void (*)(const Qvx32f*, Qvx32f*);
// By length.
inline constexpr auto kKernels = []<int... N>(std::integer_sequence<int, N...>) {
  return std::array<Kernel, sizeof...(N)>{byMatrix<N + 1>...};
}
(std::make_integer_sequence<int, kLongestByMatrix>());

// ---- The pass between the transforms of even lengths

constexpr size_t twiddleCount(size_t n) { return n / 4; }
inline size_t twiddleTableLength(size_t n) {
  size_t length = 0;
  withLanesWithin<Qvx32f>(twiddleCount(n), [&](auto L) { length = (twiddleCount(n) + L - 1) / L * 2 * L; });
  return length;
}
// W / n for each k from 1 to twiddleCount(n), in groups of L, so that the inverse transform of H points needs no factor.
inline void writeHilbertTwiddles(Qvx32f* out, size_t n) {
  const double f = 1 / static_cast<double>(n);
  const size_t count = twiddleCount(n);
  withLanesWithin<Qvx32f>(count, [=](auto L) {
    transform::writeTwiddles(
        n, (count + L - 1) / L * L, [=](size_t i) { return std::min(i / L * L, count - L) + i % L + 1; },
        [=, put = transform::intoGroups<L>(out)](size_t i, double re, double im) { put(i, f * re, f * im); });
  });
}

// In place.
inline void multiplyByMinusI(Qvx32f* z, size_t n, const Qvx32f* table) {
  using transform::conjugate;
  using transform::mirrored;
  const size_t h = n / 2;
  withLanesWithin<Qvx32f>(twiddleCount(n), [=](auto L) {
    const transform::Interleaved<Qvx32f, false> points{z};
    const Qvx32f* at = table;
    const auto get = [&](size_t i) __attribute__((always_inline)) {
      return std::pair(points.template getInOrder<L>(i + 1), points.template getInOrder<L>(h - i - L));
    };
    const auto put = [&](auto ab, size_t i) __attribute__((always_inline)) {
      const auto w = group<L>(at);
      at += 2 * L;
      const auto b = conjugate(mirrored(ab.second));
      const auto p = transform::productWithConjugate(transform::sum(ab.first, b), w);
      const auto q = transform::product(transform::difference(ab.first, b), w);
      points.template putInOrder<L>(transform::difference(p, q), i + 1);
      const auto s = transform::sum(p, q);
      points.template putInOrder<L>(mirrored(decltype(s){hn::Neg(s.re), s.im}), h - i - L);
    };
    // The last vectors overlap those before, so they are loaded first.
    const size_t count = twiddleCount(n);
    const size_t whole = count / L * L;
    const auto last = get(count - L);
    for (size_t i = 0; i < whole; i += L) put(get(i), i);
    if (whole < count) put(last, count - L);
  });
  z[0] = 0;
  z[1] = 0;
}

// Multiplies by -i, in place, the spectrum of an odd number n of real numbers, packed with the first number alone.
inline void multiplyPairsByMinusI(Qvx32f* spectrum, size_t n) {
  spectrum[0] = 0;
  for (size_t k = 1; k < n; k += 2) {
    const Qvx32f re = spectrum[k];
    spectrum[k] = spectrum[k + 1];
    spectrum[k + 1] = -re;
  }
}

// ---- The analytic signal

// dst[i] = x[i] + i h[i], from the last number to the first: dst may begin where x does.
inline void interleave(const Qvx32f* x, const Qvx32f* h, Qvx32f* dst, size_t n) {
  const auto step = [=](auto d, size_t i) __attribute__((always_inline)) {
    const auto both = interleaved(Pair<Vec<decltype(d)>>{load(d, x + i), load(d, h + i)});
    store(both.lo, d, dst + 2 * i);
    store(both.hi, d, dst + 2 * i + hn::MaxLanes(d));
  };
  constexpr size_t L = kWidest<Qvx32f>;
  const Lanes<Qvx32f, L> d;
  size_t i = n;
  for (; i >= L; i -= L) step(d, i - L);
  for (; i > 0; --i) {
    const Qvx32f re = x[i - 1];
    dst[2 * i - 1] = h[i - 1];
    dst[2 * i - 2] = re;
  }
}

}  // namespace qvx::hilbert
