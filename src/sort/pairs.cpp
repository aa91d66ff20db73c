// Quicksort of 32-bit keys and their numbers: a network sorts few of them as the two halves of 64-bit keys.
#include "sort/pairs.h"

#include "sort/pairs_packed.h"
#include "sort/sort_in_team.h"

using namespace qvx;

namespace {

constexpr size_t N = kPartitionLanes<int32_t>;
constexpr size_t kNetworkPairs = kNetworkKeys<int64_t>;
using D = Lanes<int32_t, N>;
using V = Vec<D>;

// The key is the upper half of a 64-bit one.
[[gnu::noinline]] void sortFewPairs(Pairs<int32_t> x, size_t n) {
  int64_t both[kNetworkPairs];
  auto* const halves = reinterpret_cast<int32_t*>(both);
  size_t i = 0;
  for (; i + N <= n; i += N) {
    const Pair<V> pairs = interleaved(Pair<V>{x.numbersAt(i), x.keysAt(i)});
    store(pairs.lo, D(), halves + 2 * i);
    store(pairs.hi, D(), halves + 2 * i + N);
  }
  for (; i < n; ++i)
    both[i] = static_cast<int64_t>(uint64_t{static_cast<uint32_t>(x.keys[i])} << 32 | static_cast<uint32_t>(x.numbers[i]));
  sortByNetwork(both, n, {}, {});
  for (i = 0; i + N <= n; i += N) {
    const Pair<V> v = deinterleaved(Pair<V>{load(D(), halves + 2 * i), load(D(), halves + 2 * i + N)});
    store(v.hi, D(), x.keys + i);
    store(v.lo, D(), x.numbers + i);
  }
  for (; i < n; ++i) {
    x.numbers[i] = halves[2 * i];
    x.keys[i] = halves[2 * i + 1];
  }
}

// As Quicksort (quicksort.h). Equal keys end up side by side, and their numbers are sorted. To pack pairs is tried where keys are
// different: with equal ones it fails, and 1000 pairs took 1.2 to 1.5 times as long.
template <bool kAreDifferent>
void sortRange(Pairs<int32_t> x, size_t n, Pairs<int32_t> buffer, int32_t least, int32_t most, int levels) {
  for (; n > kNetworkPairs; --levels) {
    if (kAreDifferent && n <= kPackedPairs && sortPacked(x, n, buffer.keys, buffer.keys + kSortBuffer<int32_t>)) return;
    const int32_t pivot = levels > 0 ? pivotOf<int32_t>(x.keys, n, {}) : middleOf(least, most);
    if (pivot == least) {
      const bool isLast = pivot == most;
      const size_t equal = isLast ? n : partitionPairs(x, n, pivot + 1, buffer);
      Quicksort<int32_t, false>({}, buffer.keys).sort(x.numbers, equal, {});
      if (isLast) return;
      x = x.from(equal);
      n -= equal;
      least = pivot + 1;
      continue;
    }
    const size_t below = partitionPairs(x, n, pivot, buffer);
    if (below <= n - below) {
      if (below > 0) sortRange<kAreDifferent>(x, below, buffer, least, pivot - 1, levels - 1);
      x = x.from(below);
      n -= below;
      least = pivot;
    } else {
      if (below < n) sortRange<kAreDifferent>(x.from(below), n - below, buffer, pivot, most, levels - 1);
      n = below;
      most = pivot - 1;
    }
  }
  if (n > 0) sortFewPairs(x, n);
}

template <bool kAreDifferent> void sortAlone(Pairs<int32_t> x, size_t n) {
  if (n <= kNetworkPairs) return sortFewPairs(x, n);
  static_assert(2 * kPairBuffer <= kSortBuffer<int32_t>);
  alignas(64) int32_t buffer[kSortBuffer<int32_t> + kPackedPairs];
  sortRange<kAreDifferent>(x, n, {buffer, buffer + kPairBuffer}, INT32_MIN, INT32_MAX, levelsByMedians(n));
}

template <bool kAreDifferent> void sort(Pairs<int32_t> x, size_t n) {
  if (!isWorthTeam(kPairTeam, n)) return sortAlone<kAreDifferent>(x, n);
  sortPairsInTeam(x, n, [](Pairs<int32_t> part, size_t count) { return sortAlone<kAreDifferent>(part, count), true; });
}

}  // namespace

void qvx::sortPairs(int32_t* keys, int32_t* numbers, size_t n) { sort<false>({keys, numbers}, n); }
bool qvx::sortDifferentPairs(int32_t* keys, int32_t* numbers, size_t n) { return sort<true>({keys, numbers}, n), true; }
