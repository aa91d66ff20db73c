// A vector of keys partitioned by a pivot, in place.
#pragma once

#include <bit>

#include "frame/stream.h"
#include "frame/unroll.h"
#include "sort/radix.h"

namespace qvx {

// Vectors read from one side before the side is chosen again: the choice is an unpredictable branch.
template <class K> inline constexpr size_t kPartitionVectors = kPartitionLanes<K> > 8 ? 4 : 8;
// Bytes of working memory, and the keys that they hold. As room of a radix sort they leave its counts 10 KiB of the
// stack, and the ranges of long vectors 5.
template <class K> inline constexpr size_t kSortBytes = sizeof(K) == 2 ? 16384 : kHasRoomInBuffer<K> ? 9216 : 8192;
template <class K> inline constexpr size_t kSortBuffer = kSortBytes<K> / sizeof(K);

// Keys up to which those above the pivot are copied to the buffer and back; whole vectors are stored.
template <class K> inline constexpr size_t kFewKeys = std::min(kSortBuffer<K> - 2 * kPartitionLanes<K>, size_t{1024});
// How far ahead keys are fetched.
template <class K> inline constexpr size_t kAhead = 1024 / sizeof(K);

namespace detail {

// By vectors: most partitions are of a few hundred keys, for which a call of memcpy takes longer.
template <class K> void copyKeys(const K* src, size_t n, K* dst) {
  constexpr size_t N = kVectorBytes / sizeof(K);
  const Lanes<K, N> d;
  if (n < N) return storeFirst(loadFirst(d, src, n), d, dst, n);
  for (size_t i = 0; i + N < n; i += N) store(load(d, src + i), d, dst + i);
  store(load(d, src + n - N), d, dst + n - N);
}

// Few enough that the buffer holds those that are not below the pivot; a vector at least.
template <class K, class Map> size_t partitionFew(K* x, size_t n, K pivot, Map in, K* buffer) {
  constexpr size_t N = kPartitionLanes<K>;
  const Lanes<K, N> d;
  using V = Vec<Lanes<K, N>>;
  // From the buffer's end down, one shuffle of a vector serves both parts. Where the parts are gathered by themselves they go up:
  // down, that of the others would have to be stored by a mask, which takes a tenth longer.
  constexpr bool kGoesUp = kGathersLanes<V>;
  K* low = x;
  K* high = kGoesUp ? buffer : buffer + kSortBuffer<K>;
  const auto put = [&, pivots = same<V>(pivot) ](V v) __attribute__((always_inline)) {
    if constexpr (kGoesUp) {
      const size_t count = partitionLanesUp(v, v < pivots, low, high);
      low += count;
      high += N - count;
    } else {
      partitionLanes(v, v < pivots, low, high);
    }
  };
  // The rest goes first, its vector filled with the greatest key: at the buffer's end that does no harm. From then on a vector is
  // stored as far as into the one after it, which has to be loaded by then.
  const size_t rest = n % N;
  V next = load(d, x);
  if (rest != 0) {
    put(in.keys(loadFirstOr(d, x + n - rest, rest, in.original(std::numeric_limits<K>::max()))));
    if (kGoesUp) high -= N - rest;
  }
  for (size_t i = N; i <= n - rest; i += N) {
    const V v = in.keys(next);
    next = load(d, x + std::min(i, n - N));
    put(v);
  }
  const auto below = static_cast<size_t>(low - x);
  copyKeys(kGoesUp ? buffer : high, n - below, low);
  return below;
}

// Keys that waited fill the gap to the last one: one by one until whole vectors are left, each of which is stored at both ends.
// Where those that are not below the pivot begin.
template <class K, class Map> [[gnu::always_inline]] inline K* fillGap(K* low, K* high, const K* waiting, K pivot, Map in) {
  constexpr size_t N = kPartitionLanes<K>;
  const Lanes<K, N> d;
  for (; static_cast<size_t>(high - low) % N != 0; ++waiting) {
    const K k = in.key(*waiting);
    const bool isLow = k < pivot;
    *low = high[-1] = k;
    low += isLow;
    high -= !isLow;
  }
  for (; low < high; waiting += N) {
    const auto v = in.keys(load(d, waiting));
    partitionLanes(v, v < same<decltype(v)>(pivot), low, high);
  }
  return low;
}

template <class K, class Map> size_t partition(K* x, size_t n, K pivot, Map in, K* buffer) {
  constexpr size_t N = kPartitionLanes<K>;
  constexpr size_t kStep = kPartitionVectors<K> * N;
  static_assert(3 * kStep <= kFewKeys<K>);
  if (n <= kFewKeys<K>) return partitionFew(x, n, pivot, in, buffer);
  // A step from either end waits in the buffer. So there is room for two, and one of the ends always has room for the step that
  // is read from the other.
  const Lanes<K, N> d;
  using V = Vec<Lanes<K, N>>;
  const V pivots = same<V>(pivot);
  const size_t head = kStep + n % kStep;
  std::memcpy(buffer, x, head * sizeof(K));
  std::memcpy(buffer + head, x + n - kStep, kStep * sizeof(K));
  K* low = x;
  // From `low` to the end of the gap. Each vector takes N of it, so its far end follows from the near one and need not be moved
  // by itself: sorts of 10^4 keys take 0.94 to 0.96 of the time.
  size_t gap = n;
  const K* from = x + head;
  const K* to = x + n - kStep;
  while (from < to) {
    const K* src = from;
    if (from - low <= low + gap - to) {
      from += kStep;
      prefetchLines<kStep * sizeof(K)>(src + kAhead<K>);
    } else {
      src = to -= kStep;
      prefetchLines<kStep * sizeof(K)>(src - kAhead<K>);
    }
    V v[kPartitionVectors<K>];
    unrolled<kPartitionVectors<K>>([&](auto i) __attribute__((always_inline)) { v[i] = in.keys(load(d, src + i * N)); });
    unrolled<kPartitionVectors<K>>([&](auto i) __attribute__((always_inline)) {
      K* high = low + (gap - i * N);
      partitionLanes(v[i], v[i] < pivots, low, high);
    });
    gap -= kStep;
  }
  return static_cast<size_t>(fillGap(low, low + gap, buffer, pivot, in) - x);
}

}  // namespace detail

// x, as `in` maps it, becomes the keys below the pivot and then the others; the number below. `buffer`: kSortBuffer keys.
template <class K> size_t partition(K* x, size_t n, K pivot, KeyMap<K> in, K* buffer) {
  return in.isIdentity() ? detail::partition(x, n, pivot, AsKeys<K>(), buffer) : detail::partition(x, n, pivot, in, buffer);
}

}  // namespace qvx
