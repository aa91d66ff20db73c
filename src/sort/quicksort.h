// Quicksort on partitions in vectors, down to what a network sorts in registers.
#pragma once

#include <algorithm>
#include <bit>

#include "sort/count.h"
#include "sort/network.h"
#include "sort/often.h"
#include "sort/partition.h"

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

// A fixed place in each stretch of a vector would meet whatever has its period: by the golden ratio, of 2^32, the places go on
// without one, and none waits for the one before.
inline constexpr uint32_t kGolden = 2654435769;

template <class K> inline constexpr size_t kMostSample = std::min<size_t>(64, kNetworkKeys<K>);

// Keys from all over x, as `in` maps them, in order: 16, or from 4096 keys on 64. How many.
template <class K> size_t takeSample(const K* x, size_t n, KeyMap<K> in, K (&sample)[kMostSample<K>]) {
  const size_t count = n < 4096 ? 16 : kMostSample<K>;
  const size_t stretch = n / count;
  auto fraction = static_cast<uint32_t>(n) * kGolden;
  for (size_t i = 0; i < count; ++i, fraction += kGolden) {
    sample[i] = in.key(x[i * stretch + (uint64_t{fraction} * stretch >> 32)]);
  }
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
  auto fraction = static_cast<uint32_t>(n) * kGolden;
  const auto next = [&]() __attribute__((always_inline)) {
    fraction += kGolden;
    return in.keys(load(d, x + (uint64_t{fraction} * (n - N + 1) >> 32)));
  };
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

template <class K> class Quicksort {
 public:
  // `buffer`: kSortBuffer keys.
  Quicksort(KeyMap<K> map, K* buffer) : map_(map), buffer_(buffer) {}

  // x, as `in` maps it, comes to be in order, and its elements what they were. All keys are from `least` to `most`.
  void sort(K* x, size_t n, KeyMap<K> in, K least = Limits::min(), K most = Limits::max()) {
    // Bad pivots from random places are no accident more than so many times: then it is a heap's turn.
    for (int levels = 4 * static_cast<int>(std::bit_width(n)); n > kNetworkKeys<K>; in = {}) {
      if constexpr (sizeof(K) == 2) {
        if (isCounted<K>(n, least, most)) return sortByCounting(x, n, in, map_, least, most, buffer_);
      }
      if (levels-- == 0) return sortHeap(x, n, in);
      Often<K> often;
      K pivot = pivotOf(x, n, in, often);
      if (often.count > 0) {
        const size_t others = countOut(x, n, in, often);
        if (others <= n / 2) {
          if (others > 0) sort(x, others, {}, least, most);
          return mergeRuns(x, n, others, often, map_);
        }
        putBack(x, others, often);  // the sample misled
        in = {};
      }
      if (isDense(n, least, most)) pivot = static_cast<K>((least + most + 1) >> 1);
      // A pivot that is the least key there can be: those equal to it are done.
      if (pivot == least) {
        if (pivot == most) return fill(x, n, pivot);
        const size_t equal = partition(x, n, static_cast<K>(pivot + 1), in, buffer_);
        fill(x, equal, pivot);
        x += equal;
        n -= equal;
        least = static_cast<K>(pivot + 1);
        continue;
      }
      const size_t below = partition(x, n, pivot, in, buffer_);
      if (below <= n - below) {
        if (below > 0) sort(x, below, {}, least, static_cast<K>(pivot - 1));
        x += below;
        n -= below;
        least = pivot;
      } else {
        if (below < n) sort(x + below, n - below, {}, pivot, most);
        n = below;
        most = static_cast<K>(pivot - 1);
      }
    }
    if (n > 0) sortByNetwork(x, n, in, map_);
  }

 private:
  using Limits = std::numeric_limits<K>;

  void fill(K* x, size_t n, K key) const { fillRun(x, n, map_.original(key)); }
  [[gnu::noinline]] void sortHeap(K* x, size_t n, KeyMap<K> in) const {
    std::transform(x, x + n, x, [=](K v) { return in.key(v); });
    std::make_heap(x, x + n);
    std::sort_heap(x, x + n);
    std::transform(x, x + n, x, [map = map_](K k) { return map.original(k); });
  }

  KeyMap<K> map_;
  K* buffer_;
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

}  // namespace qvx
