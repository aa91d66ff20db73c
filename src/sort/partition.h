// A vector of keys parted by a pivot, in place.
#pragma once

#include <bit>

#include "frame/stream.h"
#include "frame/unroll.h"
#include "sort/keys.h"

namespace qvx {

template <class K> inline constexpr size_t kPartLanes = kPartedLanes<K>;
// Vectors from one side before the side is chosen again: the choice is a branch that nobody foresees.
template <class K> inline constexpr size_t kPartVectors = kPartLanes<K> > 8 ? 4 : 8;
// Keys of working memory, and how many of them a partition out of place takes: whole vectors are stored.
template <class K> inline constexpr size_t kSortBuffer = (sizeof(K) == 2 ? 16384 : 8192) / sizeof(K);

// Keys up to which those above the pivot are copied to the buffer and back.
template <class K> inline constexpr size_t kApart = std::min(kSortBuffer<K>, size_t{1024});
// How far ahead keys are fetched.
template <class K> inline constexpr size_t kAhead = 1024 / sizeof(K);

namespace detail {

// The keys of src below the pivot to `low`, the others to `high`; the number below. low or high may be src.
template <class K, class Map> size_t separate(const K* src, size_t n, K pivot, Map in, K* low, K* high) {
  constexpr size_t N = kPartLanes<K>;
  const Lanes<K, N> d;
  using V = Vec<Lanes<K, N>>;
  const V pivots = same<V>(pivot);
  size_t below = 0;
  size_t i = 0;
  for (; i + N <= n; i += N) {
    const V v = in.keys(load(d, src + i));
    below += qvx::separate(v, v < pivots, low + below, high + i - below);
  }
  for (; i < n; ++i) {
    const K k = in.key(src[i]);
    low[below] = k;
    high[i - below] = k;
    below += k < pivot;
  }
  return below;
}

template <class K, class Map> size_t partition(K* x, size_t n, K pivot, Map in, K* buffer) {
  constexpr size_t N = kPartLanes<K>;
  constexpr size_t kStep = kPartVectors<K> * N;
  static_assert(3 * kStep <= kSortBuffer<K>);
  if (n <= kApart<K>) {
    const size_t below = separate(x, n, pivot, in, x, buffer);
    std::memcpy(x + below, buffer, (n - below) * sizeof(K));
    return below;
  }
  // A step from either end waits in the buffer. So there is room for two, and one of the ends always has room for the step that
  // is read from the other.
  const Lanes<K, N> d;
  using V = Vec<Lanes<K, N>>;
  const V pivots = same<V>(pivot);
  const size_t head = kStep + n % kStep;
  std::memcpy(buffer, x, head * sizeof(K));
  std::memcpy(buffer + head, x + n - kStep, kStep * sizeof(K));
  K* low = x;
  K* high = x + n;
  K* from = x + head;
  K* to = x + n - kStep;
  while (from < to) {
    const K* src = from;
    if (from - low <= high - to) {
      from += kStep;
      prefetchLines<kStep * sizeof(K)>(src + kAhead<K>);
    } else {
      src = to -= kStep;
      prefetchLines<kStep * sizeof(K)>(src - kAhead<K>);
    }
    V v[kPartVectors<K>];
    unrolled<kPartVectors<K>>([&](auto i) __attribute__((always_inline)) { v[i] = in.keys(load(d, src + i * N)); });
    unrolled<kPartVectors<K>>([&](auto i) __attribute__((always_inline)) { part(v[i], v[i] < pivots, low, high); });
  }
  const auto left = static_cast<size_t>(high - low);
  const size_t below = separate(buffer, left, pivot, in, low, buffer);
  std::memcpy(low + below, buffer, (left - below) * sizeof(K));
  return static_cast<size_t>(low - x) + below;
}

}  // namespace detail

// x, as `in` maps it, becomes the keys below the pivot and then the others; the number below. `buffer`: kSortBuffer keys.
template <class K> size_t partition(K* x, size_t n, K pivot, KeyMap<K> in, K* buffer) {
  return in.isIdentity() ? detail::partition(x, n, pivot, AsKeys<K>(), buffer) : detail::partition(x, n, pivot, in, buffer);
}

}  // namespace qvx
