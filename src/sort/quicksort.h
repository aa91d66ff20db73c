// Quicksort on partitions in vectors, down to what a network sorts in registers or, in SSSE3, a radix sort with the buffer for
// room.
#pragma once

#include <algorithm>
#include <bit>

#include "sort/count.h"
#include "sort/network.h"
#include "sort/often.h"
#include "sort/partition.h"
#include "sort/radix.h"

namespace qvx {

// How many neighbours of n keys, which are in order, are equal.
template <class K> size_t equalNeighbours(const K* keys, size_t n) {
  constexpr size_t N = kVectorBytes / sizeof(K);
  const Lanes<K, N> d;
  size_t count = 0, i = 0;
  for (; i + N < n; i += N) count += countLanes<N>(maskBits(d, load(d, keys + i) == load(d, keys + i + 1)));
  const size_t rest = n - 1 - i;
  return count + countLanes<N>(maskBits(d, loadFirstOr(d, keys + i, rest, K{0}) == loadFirstOr(d, keys + i + 1, rest, K{1})));
}

// Places all over n keys. A fixed one in each stretch would meet whatever has its period: by the golden ratio, of 2^32,
// they go on without one, and none waits for the one before.
class SamplePlaces {
 public:
  explicit SamplePlaces(size_t n) : fraction_(static_cast<uint32_t>(n) * kGolden) {}
  size_t nextBelow(size_t count) {
    fraction_ += kGolden;
    return static_cast<size_t>(uint64_t{fraction_} * count >> 32);
  }

 private:
  static constexpr uint32_t kGolden = 2654435769;
  uint32_t fraction_;
};

template <class K> inline constexpr size_t kMostSample = std::min<size_t>(64, kNetworkKeys<K>);

// Keys from all over x, as `in` maps them, in order: 16, or from 4096 keys on 64. How many.
template <class K> size_t takeSample(const K* x, size_t n, KeyMap<K> in, K (&sample)[kMostSample<K>]) {
  const size_t count = n < 4096 ? 16 : kMostSample<K>;
  const size_t stretch = n / count;
  SamplePlaces places(n);
  for (size_t i = 0; i < count; ++i) sample[i] = in.key(x[i * stretch + places.nextBelow(stretch)]);
  sortByNetwork(sample, count, {}, {});
  return count;
}

// 16 lanes of 32 bits take 5 % longer for 300 keys than 8 and gain nothing for more; 16-bit ones are exchanged in rows only.
template <class K> inline constexpr size_t kPivotLanes = sizeof(K) == 2 ? kRowLanes<K> : std::min(kRowLanes<K>, size_t{8});

// Keys in order, as `in` maps them: for each lane the median of nine, in threes, from vectors all over x. Networks of 16 sampled
// keys took a fifth to a quarter of the time of a sort.
template <class K> [[gnu::always_inline]] inline auto medians(const K* x, size_t n, KeyMap<K> in) {
  using By = detail::ByKeys<1, K>;
  constexpr size_t N = kPivotLanes<K>;
  const Lanes<K, N> d;
  using V = Vec<Lanes<K, N>>;
  SamplePlaces places(n);
  const auto next = [&]() __attribute__((always_inline)) { return in.keys(load(d, x + places.nextBelow(n - N + 1))); };
  const auto middle = [](V a, V b, V c) __attribute__((always_inline)) {
    const auto both = By::ordered(a, b);
    return By::ordered(both.least, By::ordered(both.most, c).least).most;
  };
  V v[3];
  for (V& three : v) {
    const V a = next(), b = next(), c = next();
    three = middle(a, b, c);
  }
  V row[] = {middle(v[0], v[1], v[2])};
  detail::sortRows<By>(row);
  return row[0];
}

// The middle one of such medians; and what x has often, which is looked for where half of them are in equal pairs.
template <class K> [[gnu::noinline]] K pivotOf(const K* x, size_t n, KeyMap<K> in, Often<K>& often) {
  constexpr size_t N = kPivotLanes<K>;
  const Lanes<K, N> d;
  const auto inOrder = medians(x, n, in);
  often.count = 0;
  if (countLanes<N>(maskBits(d, inOrder == exchanged<1>(inOrder))) >= N / 2) {
    K sample[kMostSample<K>];
    const size_t count = takeSample(x, n, in, sample);
    // Three quarters of 16 keys equal to their neighbours are four values. At a quarter, vectors that have each value 15 times
    // were counted in vain in their last partitions: 10^6 keys took a third longer.
    if (4 * equalNeighbours(sample, count) >= 3 * count) often = oftenIn(sample, count);
  }
  K keys[N];
  store(inOrder, d, keys);
  return keys[N / 2];
}
template <class K> K pivotOf(const K* x, size_t n, KeyMap<K> in) {
  Often<K> often;
  return pivotOf(x, n, in, often);
}

// The pivot that halves the values there can be, above `least` unless there is one alone.
template <class K> constexpr K middleOf(K least, K most) { return static_cast<K>((least | most) - ((least ^ most) >> 1)); }
static_assert(middleOf(INT32_MIN, INT32_MAX) == 0 && middleOf(-2, -1) == -1 &&
              middleOf(INT64_MIN, INT64_MIN + 1) == INT64_MIN + 1);

// Pivots from the same places of n keys may be bad ones once, but no more than so many times by accident. After that values are
// halved, which ends when there is one: a sort takes O(n (log n + bits of a key)) whatever it is given.
inline int levelsByMedians(size_t n) { return 4 * static_cast<int>(std::bit_width(n)); }

// kHasRoom: the stack has room for the counts of a radix sort.
template <class K, bool kHasRoom = kHasRoomInBuffer<K>> class Quicksort {
 public:
  // `buffer`: kSortBuffer keys.
  Quicksort(KeyMap<K> map, K* buffer) : map_(map), buffer_(buffer) {}

  // x, as `in` maps it, comes to be in order, and its elements what they were.
  void sort(K* x, size_t n, KeyMap<K> in) {
    sort(x, n, in, std::numeric_limits<K>::min(), std::numeric_limits<K>::max(), levelsByMedians(n));
  }

 private:
  // All keys are from `least` to `most`.
  void sort(K* x, size_t n, KeyMap<K> in, K least, K most, int levels) {
    for (;; in = {}, --levels) {
      if constexpr (sizeof(K) == 2) {
        if (isCounted<K>(n, least, most)) return sortByCounting(x, n, in, map_, least, most, buffer_);
      }
      if (n <= kApartKeys<K>) {
        first_ = x;
        return sortApart(x, false, n, in, least, most);
      }
      Often<K> often;
      K pivot = pivotOf(x, n, in, often);
      if (often.count > 0) {
        const auto sortOthers = [&](size_t others) { sort(x, others, {}, least, most, levels - 1); };
        if (sortByCounts(x, n, in, often, sortOthers)) return;
        in = {};
      }
      if (levels <= 0 || isDense(n, least, most)) pivot = middleOf(least, most);
      // A pivot that is the least key there can be: those equal to it are done. There are others, else they would have been
      // counted.
      const bool isLeast = pivot == least;
      if (isLeast) ++pivot;
      const size_t below = partition(x, n, pivot, in, buffer_);
      if (isLeast || below <= n - below) {
        if (isLeast) fill(x, below, least);
        else if (below > 0) sort(x, below, {}, least, static_cast<K>(pivot - 1), levels - 1);
        x += below;
        n -= below;
        least = pivot;
      } else {
        if (below < n) sort(x + below, n - below, {}, pivot, most, levels - 1);
        n = below;
        most = static_cast<K>(pivot - 1);
      }
    }
  }

  // The same of keys that the buffer has room for: too few for bad pivots to matter. They are in x or, where they were not below
  // a pivot, in the buffer.
  void sortApart(K* x, bool isInRoom, size_t n, KeyMap<K> in, K least, K most) {
    for (; n > kNetworkKeys<K>; in = {}) {
      K* const room = roomOf(x);
      Often<K> often;
      K pivot = pivotOf(isInRoom ? room : x, n, in, often);
      if (often.count > 0) {
        if (isInRoom) std::copy_n(room, n, x);
        isInRoom = false;
        const auto sortOthers = [&](size_t others) { sortApart(x, false, others, {}, least, most); };
        if (sortByCounts(x, n, in, often, sortOthers)) return;
        in = {};
      }
      if constexpr (kHasRoom) {
        if (n >= kRadixFrom<K> && !isInRoom) return radixSort(x, room, n, in, map_);
      }
      const bool isLeast = pivot == least;
      if (isLeast) ++pivot;
      const size_t below = partitionApart(x, room, isInRoom, n, pivot, in);
      if (isLeast || below <= n - below) {
        if (isLeast) fill(x, below, least);
        else if (below > 0) sortApart(x, false, below, {}, least, static_cast<K>(pivot - 1));
        x += below;
        isInRoom = true;
        n -= below;
        least = pivot;
      } else {
        if (below < n) sortApart(x + below, true, n - below, {}, pivot, most);
        isInRoom = false;
        n = below;
        most = static_cast<K>(pivot - 1);
      }
    }
    if (n > 0) sortByNetwork(isInRoom ? roomOf(x) : x, x, n, in, map_);
  }

  // sortOthers(n) sorts the first n of x. False, with all keys still there, if the sample misled.
  template <class Sort> bool sortByCounts(K* x, size_t n, KeyMap<K> in, Often<K>& often, Sort sortOthers) {
    const size_t others = countOut(x, n, in, often);
    if (others > n / 2) return putBack(x, others, often), false;
    if (others > 0) sortOthers(others);
    return mergeRuns(x, n, others, often, map_), true;
  }
  K* roomOf(K* x) const { return buffer_ + (x - first_); }
  void fill(K* x, size_t n, K key) const { fillRun(x, n, map_.original(key)); }

  KeyMap<K> map_;
  K* buffer_;
  K* first_ = nullptr;  // of the keys that the buffer has room for
};

template <class K> void quicksort(K* x, size_t n, KeyMap<K> in, KeyMap<K> out) {
  if (n <= kNetworkKeys<K>) return n > 0 ? sortByNetwork(x, n, in, out) : void();
  alignas(64) K buffer[kSortBuffer<K>];
  Quicksort<K>(out, buffer).sort(x, n, in);
}

// Whether a whole vector, which often is in order or in reverse, is sorted now.
template <class K> bool isSortedByReversal(K* x, size_t n, KeyMap<K> map) {
  if (n == 0 || areInOrder<Order::kAscending>(x, n, map)) return true;
  if (n <= kNetworkKeys<K> || !areInOrder<Order::kDescending>(x, n, map)) return false;
  std::reverse(x, x + n);
  return true;
}
template <class K> void quicksort(K* x, size_t n, KeyMap<K> map) {
  if (!isSortedByReversal(x, n, map)) quicksort(x, n, map, map);
}

// The faster of both; `room`: for n keys.
template <class K> void sortThrough(K* x, K* room, size_t n, KeyMap<K> in, KeyMap<K> out) {
  if constexpr (kHasRadixSort) {
    if (n >= kRadixFrom<K>) return radixSort(x, room, n, in, out);
  }
  quicksort(x, n, in, out);
}

}  // namespace qvx
