// The same passes of any odd radix, with its vectors in memory: primes that no kernel of registers serves.
#pragma once

#include "transform/mixed_passes.h"

namespace qvx::transform {

inline constexpr size_t kLargestFactor = 149;

// put(j, z): the results of the points get(k). matrix: for j = 1..H, for k = 1..H cos and sin of 2 pi j k / R.
template <class V, class T, class Get, class Put> QVX_INLINE void dftOfMany(size_t R, const T* matrix, Get get, Put put) {
  const size_t H = R / 2;
  const auto first = get(0);
  using Z = std::remove_const_t<decltype(first)>;
  Z sums[kLargestFactor / 2];
  Z differences[kLargestFactor / 2];
  const Z zero{};
  Z totals[] = {first, zero};
  for (size_t k = 0; k < H; ++k) {
    const Z a = get(k + 1);
    const Z b = get(R - 1 - k);
    sums[k] = sum(a, b);
    differences[k] = difference(a, b);
    totals[k % 2] = sum(totals[k % 2], sums[k]);
  }
  put(size_t{0}, sum(totals[0], totals[1]));
  for (size_t j = 1; j <= H; ++j) {
    // Two sums of each have half the latency, and less error.
    Z even[] = {first, zero};
    Z odd[] = {zero, zero};
    const auto take = [&](size_t k, size_t to) __attribute__((always_inline)) {
      even[to] = addProduct(same<V>(matrix[0]), even[to], sums[k]);
      odd[to] = addProduct(same<V>(matrix[1]), odd[to], differences[k]);
      matrix += 2;
    };
    size_t k = 0;
    for (; k + 2 <= H; k += 2) {
      take(k, 0);
      take(k + 1, 1);
    }
    if (k < H) take(k, 0);
    const Z evens = sum(even[0], even[1]);
    const Z odds = sum(odd[0], odd[1]);
    put(j, differenceWithI(evens, odds));
    put(R - j, sumWithI(evens, odds));
  }
}

// Half the widest register: twice kLargestFactor vectors have room on the stack.
template <class T>
inline constexpr size_t kManyLanes = kVectorBytes >= 64 ? kVectorBytes / 2 / sizeof(T) : kVectorBytes / sizeof(T);

// Src, Points: Planes, Conjugable or Numbers, L of them at a time.
template <size_t L, class T, class Src, class Points>
[[gnu::noinline]] void firstPassOfMany(size_t R, const T* matrix, Src src, Points y, size_t m, const T* twiddles) {
  using V = VectorOf<Src, L>;
  for (size_t p = 0; p < m; p += L, twiddles += (R - 1) * 2 * L) {
    const size_t wide = std::min(m - p, L);
    const auto get = [&](size_t k) { return src.template getFirst<L>(p + k * m, wide); };
    const auto put = [&](size_t j, auto z) {
      if (j > 0) z = rotatedBy(z, twiddles + (j - 1) * 2 * L);
      y.template putApart<Src>(z, p * R + j, R, wide);
    };
    dftOfMany<V>(R, matrix, get, put);
  }
}

template <size_t L, class T, class From, class To>
[[gnu::noinline]] void middlePassOfMany(size_t R, const T* matrix, From x, To y, size_t s, size_t m, const T* twiddles) {
  using V = VectorOf<From, L>;
  for (size_t p = 0; p < m; ++p, twiddles += (R - 1) * 2) {
    for (size_t begin = 0; begin < s; begin += L) {
      const size_t q = s >= L ? std::min(begin, s - L) : 0;
      const size_t wide = std::min(s, L);
      const auto get = [&](size_t k) { return x.template getFirst<L>(q + s * (p + m * k), wide); };
      const auto put = [&](size_t j, auto z) {
        if (j > 0) z = product(z, twiddles[2 * j - 2], twiddles[2 * j - 1]);
        y.template putFirst<L>(z, q + s * (R * p + j), wide);
      };
      dftOfMany<V>(R, matrix, get, put);
    }
  }
}

template <size_t L, class T, class From, class Dst>
[[gnu::noinline]] void lastPassOfMany(size_t R, const T* matrix, From x, Dst dst, LastSteps steps, T factor) {
  using V = VectorOf<From, L>;
  const size_t columns = steps.columns;
  for (size_t run = 0; run < steps.runs; ++run, x = x.from(steps.fromRun), dst = dst.from(steps.toRun)) {
    for (size_t begin = 0; begin < columns; begin += L) {
      const size_t q = columns >= L ? std::min(begin, columns - L) : 0;
      const size_t wide = std::min(columns, L);
      const auto get = [&](size_t k) { return x.template getFirst<L>(q + steps.points * k, wide); };
      const auto put = [&](size_t j, auto z) { dst.template putFirst<L>(scaledBy(factor, z), q + steps.results * j, wide); };
      dftOfMany<V>(R, matrix, get, put);
    }
  }
}

}  // namespace qvx::transform
