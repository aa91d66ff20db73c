// Products of a few numbers with a matrix whose rows are constants of the code.
#pragma once

#include <array>

#include "transform/butterfly.h"

namespace qvx::transform {

// cos(pi j / (2 n)): the series, of an angle within a quarter of a turn.
constexpr long double cosine(int j, int n) {
  j %= 4 * n;
  if (j > 2 * n) j = 4 * n - j;
  const bool isNegative = j > n;
  if (isNegative) j = 2 * n - j;
  const long double x = 1.57079632679489661923132169163975144L * j / n;
  long double sum = 0;
  long double term = 1;
  for (int i = 1; i < 30; i += 2) {
    sum += term;
    term *= -x * x / (i * (i + 1));
  }
  return isNegative ? -sum : sum;
}
constexpr long double squareRoot(long double x) {
  long double root = x < 1 ? 1 : x;
  for (int i = 0; i < 40; ++i) root = 0.5L * (root + x / root);
  return root;
}

// The vectors that hold n numbers, of kLanes each.
template <class T, int n> struct RowShape {
  static constexpr size_t kLanes = std::min<size_t>(kVectorBytes / sizeof(T), n <= 2 ? 2 : n <= 4 ? 4 : n <= 8 ? 8 : 16);
  static constexpr size_t kVectors = (n + kLanes - 1) / kLanes;
};

// The sum of src[i * kStep] * rows[i * kStep], i < kCount, in kVectors vectors.
template <size_t kCount, size_t kStep, size_t L, class T, size_t kRow>
QVX_INLINE auto combined(const T* src, const T (*rows)[kRow]) {
  constexpr size_t W = kRow / L;
  constexpr size_t kChains = std::min<size_t>(kCount, W == 1 ? 4 : W == 2 ? 2 : 1);  // sums that do not wait for one another
  const Lanes<T, L> d;
  std::array<Vec<Lanes<T, L>>, W> sum[kChains];
  unrolled<kCount>([&](auto i) __attribute__((always_inline)) {
    const auto x = hn::Set(d, src[i * kStep]);
    unrolled<W>([&](auto w) __attribute__((always_inline)) {
      const auto column = load(d, rows[i * kStep] + w * L);
      auto& s = sum[i % kChains][w];
      if constexpr (i < kChains) s = x * column;
      else s = hn::MulAdd(x, column, s);
    });
  });
  unrolled<W>([&](auto w) __attribute__((always_inline)) {
    if constexpr (kChains == 4) sum[0][w] = (sum[0][w] + sum[1][w]) + (sum[2][w] + sum[3][w]);
    else unrolled<kChains - 1>([&](auto i) __attribute__((always_inline)) { sum[0][w] = sum[0][w] + sum[i + 1][w]; });
  });
  return sum[0];
}

// The first kCount lanes, of 1 and more.
template <size_t kCount, class V> QVX_INLINE void storeConstant(V v, LaneOf<V>* p) {
  if constexpr (kCount >= kLanesOf<V>) store(v, TagOf<V>(), p);
  else storeFirst(v, TagOf<V>(), p, kCount);
}

}  // namespace qvx::transform
