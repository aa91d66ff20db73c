// Quicksort of keys and numbers, which lie apart: partitions look at the keys alone and move both, a network sorts both as the
// two halves of 64-bit keys.
#include "sort/pairs.h"

#include "sort/quicksort.h"

using namespace qvx;

namespace {

constexpr size_t N = kPartLanes<int32_t>;
constexpr size_t kStep = 4 * N;
constexpr size_t kBuffer = 1024;
constexpr size_t kNetworkPairs = kNetworkKeys<int64_t>;
using D = Lanes<int32_t, N>;
using V = Vec<D>;

struct Pairs {
  int32_t* keys;
  int32_t* numbers;

  Pairs from(size_t i) const { return {keys + i, numbers + i}; }
  Pair<V> operator[](size_t i) const { return {load(D(), keys + i), load(D(), numbers + i)}; }
  void put(size_t i, Pair<V> v) const {
    store(v.lo, D(), keys + i);
    store(v.hi, D(), numbers + i);
  }
  void copyTo(Pairs to, size_t n) const {
    std::memcpy(to.keys, keys, n * sizeof(int32_t));
    std::memcpy(to.numbers, numbers, n * sizeof(int32_t));
  }
};

// As of keys alone (partition.h).
size_t separate(Pairs src, size_t n, int32_t pivot, Pairs low, Pairs high) {
  size_t below = 0;
  size_t i = 0;
  for (; i + N <= n; i += N) {
    const Pair<V> v = src[i];
    const auto isLow = v.lo < same<V>(pivot);
    qvx::separate(v.hi, isLow, low.numbers + below, high.numbers + i - below);
    below += qvx::separate(v.lo, isLow, low.keys + below, high.keys + i - below);
  }
  for (; i < n; ++i) {
    const int32_t key = src.keys[i], number = src.numbers[i];
    low.keys[below] = high.keys[i - below] = key;
    low.numbers[below] = high.numbers[i - below] = number;
    below += key < pivot;
  }
  return below;
}

size_t partitionPairs(Pairs x, size_t n, int32_t pivot, Pairs buffer) {
  if (n <= kBuffer) {
    const size_t below = separate(x, n, pivot, x, buffer);
    buffer.copyTo(x.from(below), n - below);
    return below;
  }
  const size_t head = kStep + n % kStep;
  x.copyTo(buffer, head);
  x.from(n - kStep).copyTo(buffer.from(head), kStep);
  Pairs low = x, high = x.from(n);
  size_t from = head, to = n - kStep;
  const auto isLowNearer = [&] { return x.keys + from - low.keys <= high.keys - (x.keys + to); };
  while (from < to) {
    size_t at = from;
    if (isLowNearer()) {
      from += kStep;
    } else {
      at = to -= kStep;
    }
    Pair<V> v[kStep / N];
    unrolled<kStep / N>([&](auto i) __attribute__((always_inline)) { v[i] = x[at + i * N]; });
    unrolled<kStep / N>([&](auto i) __attribute__((always_inline)) {
      const auto isLow = v[i].lo < same<V>(pivot);
      part(v[i].hi, isLow, low.numbers, high.numbers);
      part(v[i].lo, isLow, low.keys, high.keys);
    });
  }
  const auto left = static_cast<size_t>(high.keys - low.keys);
  const size_t below = separate(buffer, left, pivot, low, buffer);
  buffer.copyTo(low.from(below), left - below);
  return static_cast<size_t>(low.keys - x.keys) + below;
}

// The key is the upper half of a 64-bit one.
[[gnu::noinline]] void sortFewPairs(Pairs x, size_t n) {
  int64_t both[kNetworkPairs];
  auto* const halves = reinterpret_cast<int32_t*>(both);
  size_t i = 0;
  for (; i + N <= n; i += N) {
    const Pair<V> v = x[i];
    const Pair<V> turned = interleaved(Pair<V>{v.hi, v.lo});
    store(turned.lo, D(), halves + 2 * i);
    store(turned.hi, D(), halves + 2 * i + N);
  }
  for (; i < n; ++i)
    both[i] = static_cast<int64_t>(uint64_t{static_cast<uint32_t>(x.keys[i])} << 32 | static_cast<uint32_t>(x.numbers[i]));
  sortByNetwork(both, n, {}, {});
  for (i = 0; i + N <= n; i += N) {
    const Pair<V> v = deinterleaved(Pair<V>{load(D(), halves + 2 * i), load(D(), halves + 2 * i + N)});
    x.put(i, {v.hi, v.lo});
  }
  for (; i < n; ++i) {
    x.numbers[i] = halves[2 * i];
    x.keys[i] = halves[2 * i + 1];
  }
}

[[gnu::noinline]] void sortHeap(Pairs x, size_t n) {
  const auto isLess = [&](size_t a, size_t b) {
    return x.keys[a] != x.keys[b] ? x.keys[a] < x.keys[b] : x.numbers[a] < x.numbers[b];
  };
  const auto exchange = [&](size_t a, size_t b) {
    std::swap(x.keys[a], x.keys[b]);
    std::swap(x.numbers[a], x.numbers[b]);
  };
  const auto sift = [&](size_t at, size_t end) {
    for (size_t child; (child = 2 * at + 1) < end; at = child) {
      if (child + 1 < end && isLess(child, child + 1)) ++child;
      if (!isLess(at, child)) return;
      exchange(at, child);
    }
  };
  for (size_t i = n / 2; i-- > 0;) sift(i, n);
  for (size_t end = n; end-- > 1;) {
    exchange(0, end);
    sift(0, end);
  }
}

// As Quicksort (quicksort.h). Equal keys end up side by side, and their numbers are sorted.
void sortRange(Pairs x, size_t n, Pairs buffer, int32_t least) {
  for (int levels = 4 * static_cast<int>(std::bit_width(n)); n > kNetworkPairs;) {
    if (levels-- == 0) return sortHeap(x, n);
    const int32_t pivot = pivotOf<int32_t>(x.keys, n, {});
    if (pivot == least) {
      const bool isLast = pivot == INT32_MAX;
      const size_t equal = isLast ? n : partitionPairs(x, n, pivot + 1, buffer);
      Quicksort<int32_t>({}, buffer.keys).sort(x.numbers, equal, {});
      if (isLast) return;
      x = x.from(equal);
      n -= equal;
      least = pivot + 1;
      continue;
    }
    const size_t below = partitionPairs(x, n, pivot, buffer);
    if (below <= n - below) {
      if (below > 0) sortRange(x, below, buffer, least);
      x = x.from(below);
      n -= below;
      least = pivot;
    } else {
      if (below < n) sortRange(x.from(below), n - below, buffer, pivot);
      n = below;
    }
  }
  if (n > 0) sortFewPairs(x, n);
}

}  // namespace

void qvx::sortPairs(int32_t* keys, int32_t* numbers, size_t n) {
  if (n <= kNetworkPairs) return sortFewPairs({keys, numbers}, n);
  static_assert(2 * kBuffer == kSortBuffer<int32_t>);
  alignas(64) int32_t buffer[2 * kBuffer];
  sortRange({keys, numbers}, n, {buffer, buffer + kBuffer}, INT32_MIN);
}
