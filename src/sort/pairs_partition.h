// Keys and numbers, which lie apart, partitioned by a pivot: partitions look at the keys alone and move both.
#pragma once

#include "sort/partition.h"

namespace qvx {

template <class K> using KeysOf = Vec<Lanes<K, kPartitionLanes<K>>>;
template <class K> using NumbersOf = Vec<Lanes<int32_t, kPartitionLanes<K>>>;

template <class K> struct Pairs {
  static constexpr size_t N = kPartitionLanes<K>;
  K* keys;
  int32_t* numbers;

  Pairs from(size_t i) const { return {keys + i, numbers + i}; }
  KeysOf<K> keysAt(size_t i) const { return load(Lanes<K, N>(), keys + i); }
  NumbersOf<K> numbersAt(size_t i) const { return load(Lanes<int32_t, N>(), numbers + i); }
  void copyTo(Pairs to, size_t n) const {
    std::memcpy(to.keys, keys, n * sizeof(K));
    std::memcpy(to.numbers, numbers, n * sizeof(int32_t));
  }
};

// Pairs of working memory, and up to which those above the pivot are copied there and back.
inline constexpr size_t kPairBuffer = 1024;

namespace detail {

// The numbers' lanes have a mask of their own where they are narrower than the keys'.
template <class M> auto forNumbers(Lanes<int32_t, kPartitionLanes<int32_t>>, M isLow) { return isLow; }
template <class M> uint64_t forNumbers(Lanes<int64_t, kPartitionLanes<int64_t>> d, M isLow) { return maskBits(d, isLow); }

// The pairs of src whose keys are below the pivot to `low`, the others to `high`; how many are below. low or high may be src.
template <class K> size_t partitionPairsUp(Pairs<K> src, size_t n, K pivot, Pairs<K> low, Pairs<K> high) {
  constexpr size_t N = Pairs<K>::N;
  size_t below = 0;
  size_t i = 0;
  for (; i + N <= n; i += N) {
    const auto keys = src.keysAt(i);
    const auto isLow = keys < same<KeysOf<K>>(pivot);
    partitionLanesUp(src.numbersAt(i), forNumbers(Lanes<K, N>(), isLow), low.numbers + below, high.numbers + i - below);
    below += partitionLanesUp(keys, isLow, low.keys + below, high.keys + i - below);
  }
  for (; i < n; ++i) {
    const K key = src.keys[i];
    const int32_t number = src.numbers[i];
    low.keys[below] = high.keys[i - below] = key;
    low.numbers[below] = high.numbers[i - below] = number;
    below += key < pivot;
  }
  return below;
}

}  // namespace detail

template <class K> size_t partitionPairs(Pairs<K> x, size_t n, K pivot, Pairs<K> buffer) {
  constexpr size_t N = Pairs<K>::N;
  constexpr size_t kStep = kPartitionVectors<K> * N;
  static_assert(3 * kStep <= kPairBuffer);
  if (n <= kPairBuffer) {
    const size_t below = detail::partitionPairsUp(x, n, pivot, x, buffer);
    buffer.copyTo(x.from(below), n - below);
    return below;
  }
  const size_t head = kStep + n % kStep;
  x.copyTo(buffer, head);
  x.from(n - kStep).copyTo(buffer.from(head), kStep);
  Pairs<K> low = x;
  size_t gap = n;  // as in partition()
  size_t from = head, to = n - kStep;
  const auto isLowNearer = [&] { return x.keys + from - low.keys <= low.keys + gap - (x.keys + to); };
  while (from < to) {
    size_t at = from;
    if (isLowNearer()) {
      from += kStep;
    } else {
      at = to -= kStep;
    }
    KeysOf<K> keys[kStep / N];
    NumbersOf<K> numbers[kStep / N];
    unrolled<kStep / N>([&](auto i) __attribute__((always_inline)) {
      keys[i] = x.keysAt(at + i * N);
      numbers[i] = x.numbersAt(at + i * N);
    });
    unrolled<kStep / N>([&](auto i) __attribute__((always_inline)) {
      const auto isLow = keys[i] < same<KeysOf<K>>(pivot);
      Pairs<K> high = low.from(gap - i * N);
      partitionLanes(numbers[i], detail::forNumbers(Lanes<K, N>(), isLow), low.numbers, high.numbers);
      partitionLanes(keys[i], isLow, low.keys, high.keys);
    });
    gap -= kStep;
  }
  const size_t below = detail::partitionPairsUp(buffer, gap, pivot, low, buffer);
  buffer.copyTo(low.from(below), gap - below);
  return static_cast<size_t>(low.keys - x.keys) + below;
}

}  // namespace qvx
