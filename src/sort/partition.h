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

// Keys up to which a range is partitioned into itself and the buffer. Where the lanes are gathered by the instruction, a store of
// a part of a vector makes that slower than in place beyond.
template <class K>
inline constexpr size_t kApartKeys = detail::kGathersLanes<Vec<Lanes<K, kPartitionLanes<K>>>> ? 1024 : kSortBuffer<K>;
// How far ahead keys are fetched.
template <class K> inline constexpr size_t kAhead = 1024 / sizeof(K);

namespace detail {

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
  static_assert(3 * kStep <= kApartKeys<K>);
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

// What stays in its range never overtakes what is read.
template <bool kIsInRoom, class K, class Map> size_t partitionApart(K* x, K* room, size_t n, K pivot, Map in) {
  constexpr size_t N = kPartitionLanes<K>;
  const Lanes<K, N> d;
  using V = Vec<Lanes<K, N>>;
  const V pivots = same<V>(pivot);
  K* low = x;
  K* high = room + n;
  const auto at = [=](size_t i, size_t count) { return kIsInRoom ? room + (n - i - count) : x + i; };
  const size_t rest = n % N;
  for (size_t i = 0; i < rest; ++i) {
    const K k = in.key(*at(i, 1));
    const bool isLow = k < pivot;
    *low = high[-1] = k;
    low += isLow;
    high -= !isLow;
  }
  for (size_t i = rest; i < n; i += N) {
    const V v = in.keys(load(d, at(i, N)));
    partitionLanes(v, v < pivots, low, high);
  }
  return static_cast<size_t>(low - x);
}

}  // namespace detail

// x, as `in` maps it, becomes the keys below the pivot and then the others; the number below. `buffer`: kSortBuffer keys; x has
// more than kApartKeys.
template <class K> size_t partition(K* x, size_t n, K pivot, KeyMap<K> in, K* buffer) {
  return in.isIdentity() ? detail::partition(x, n, pivot, AsKeys<K>(), buffer) : detail::partition(x, n, pivot, in, buffer);
}

// n keys, as `in` maps them, of x or of `room`: those below the pivot come to the front of x, the others to where they follow
// them, but in `room`; the number below. One range is read in order: to choose the end to read from is mispredicted half of the
// time. So it is faster while both are in the first-level cache.
template <class K> size_t partitionApart(K* x, K* room, bool isInRoom, size_t n, K pivot, KeyMap<K> in) {
  if (isInRoom) return detail::partitionApart<true>(x, room, n, pivot, AsKeys<K>());
  return in.isIdentity() ? detail::partitionApart<false>(x, room, n, pivot, AsKeys<K>())
                         : detail::partitionApart<false>(x, room, n, pivot, in);
}

}  // namespace qvx
