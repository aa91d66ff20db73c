// The shortest transforms as products with a matrix whose columns are constants of the code. For up to 16 numbers, and for 25,
// that is faster than algorithms that share sums, since the sums of all results are independent.
#pragma once

#include "transform/matrix.h"

namespace qvx::dct {

using transform::combined;
using transform::storeConstant;

inline constexpr int kLongestByMatrix = 16;
inline constexpr int kLongestByHalves = 32;
constexpr bool isByMatrix(int n) { return n <= kLongestByMatrix || n == 25; }
constexpr bool hasKernel(int n) { return isByMatrix(n) || (n <= kLongestByHalves && n % 2 == 0); }

// The matrix entry for number n of the sequence and number k of its transform.
constexpr long double entry(int n, int k, int N) {
  return transform::squareRoot((k == 0 ? 1.0L : 2.0L) / N) * transform::cosine((2 * n + 1) * k, N);
}

// Row i: what number i of the source contributes to the results, in vectors of L.
template <class T, int N, bool kInverse> struct Matrix {
  static constexpr size_t L = transform::RowShape<T, N>::kLanes;
  static constexpr size_t kVectors = transform::RowShape<T, N>::kVectors;
  T row[N][kVectors * L];
  constexpr Matrix() : row() {
    for (int i = 0; i < N; ++i) {
      for (int j = 0; j < N; ++j) row[i][j] = static_cast<T>(kInverse ? entry(j, i, N) : entry(i, j, N));
    }
  }
};
template <class T, int N, bool kInverse> alignas(64) inline constexpr Matrix<T, N, kInverse> kMatrix;

template <class T, int N, bool kInverse> void byMatrix(const T* src, T* dst) {
  using M = Matrix<T, N, kInverse>;
  const auto sums = combined<N, 1, M::L>(src, kMatrix<T, N, kInverse>.row);
  unrolled<M::kVectors>([&](auto w) __attribute__((always_inline)) { storeConstant<N - w * M::L>(sums[w], dst + w * M::L); });
}

// ---- Twice as many, from the sums and the differences of numbers at the same distance from the ends: the sums make the results
// of even k, the differences those of odd k

template <class T, int N, bool kInverse> struct HalfMatrix {
  static constexpr int H = N / 2;
  static constexpr size_t L = transform::RowShape<T, H>::kLanes;
  static constexpr size_t kVectors = transform::RowShape<T, H>::kVectors;
  static_assert(N % 2 == 0 && kVectors * L <= N);
  T row[N][kVectors * L];
  constexpr HalfMatrix() : row() {
    for (int i = 0; i < N; ++i) {
      for (int j = 0; j < H; ++j) row[i][j] = static_cast<T>(kInverse ? entry(j, i, N) : entry(i / 2, 2 * j + i % 2, N));
    }
  }
};
template <class T, int N, bool kInverse> alignas(64) inline constexpr HalfMatrix<T, N, kInverse> kHalfMatrix;

template <class T, int N, bool kInverse> void byHalves(const T* src, T* dst) {
  using M = HalfMatrix<T, N, kInverse>;
  constexpr size_t L = M::L;
  constexpr size_t H = M::H;
  const Lanes<T, L> d;
  const auto& rows = kHalfMatrix<T, N, kInverse>.row;
  if constexpr (kInverse) {
    const auto even = combined<H, 2, L>(src, rows);
    const auto odd = combined<H, 2, L>(src + 1, rows + 1);
    // What is stored past this half is overwritten by the other half.
    unrolled<M::kVectors>([&](auto w)
                              __attribute__((always_inline)) { store(reversed(even[w] - odd[w]), d, dst + N - (w + 1) * L); });
    unrolled<M::kVectors>([&](auto w)
                              __attribute__((always_inline)) { storeConstant<H - w * L>(even[w] + odd[w], dst + w * L); });
  } else {
    alignas(64) T folded[2 * M::kVectors * L];
    unrolled<M::kVectors>([&](auto w) __attribute__((always_inline)) {
      const auto fore = load(d, src + w * L);
      const auto aft = reversed(load(d, src + N - (w + 1) * L));
      const auto both = interleaved(Pair<Vec<Lanes<T, L>>>{fore + aft, fore - aft});
      store(both.lo, d, folded + 2 * w * L);
      store(both.hi, d, folded + (2 * w + 1) * L);
    });
    const auto even = combined<H, 2, L>(folded, rows);
    const auto odd = combined<H, 2, L>(folded + 1, rows + 1);
    unrolled<M::kVectors>([&](auto w) __attribute__((always_inline)) {
      const auto both = interleaved(Pair<Vec<Lanes<T, L>>>{even[w], odd[w]});
      constexpr size_t kRest = N - 2 * w * L;
      storeConstant<kRest>(both.lo, dst + 2 * w * L);
      if constexpr (kRest > L) storeConstant<kRest - L>(both.hi, dst + (2 * w + 1) * L);
    });
  }
}

template <class T> using Kernel = void (*)(const T*, T*);
template <class T, int N, bool kInverse> constexpr Kernel<T> kernelOf() {
  if constexpr (isByMatrix(N)) return byMatrix<T, N, kInverse>;
  else if constexpr (hasKernel(N)) return byHalves<T, N, kInverse>;
  else return nullptr;
}
// The kernels by length; null where there is none.
template <class T, bool kInverse> inline constexpr auto kKernels = []<int... N>(std::integer_sequence<int, N...>) {
  return std::array<Kernel<T>, sizeof...(N)>{kernelOf<T, N + 1, kInverse>()...};
}
(std::make_integer_sequence<int, kLongestByHalves>());

}  // namespace qvx::dct
