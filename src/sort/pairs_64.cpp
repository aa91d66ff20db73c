// Quicksort of 64-bit keys and their numbers, all keys different.
#include "sort/pairs.h"
#include "sort/pairs_packed.h"
#include "sort/sort_in_team.h"

using namespace qvx;

namespace {

using K = int64_t;
constexpr size_t N = Pairs<K>::N;

// Each pair goes to where as many others belong before it; 30 doubles take 0.8 of the time that packing takes, but 1.3 in AVX2.
// False, with the pairs as they were, if keys are equal: then the ranks do not add up to those of n places.
constexpr size_t kFewPairs = kHasMasks ? 32 : kVectorBytes > 16 ? 24 : 16;
bool sortByRanks(Pairs<K> x, size_t n) {
  constexpr Lanes<K, N> d;
  K keys[kFewPairs];
  int32_t numbers[kFewPairs];
  std::fill_n(keys, kFewPairs, std::numeric_limits<K>::max());
  std::copy_n(x.keys, n, keys);
  std::copy_n(x.numbers, n, numbers);
  size_t ranks = 0;
  for (size_t i = 0; i < n; ++i) {
    const auto key = same<KeysOf<K>>(keys[i]);
    size_t rank = 0;
    for (size_t k = 0; k < n; k += N) rank += countLanes<N>(maskBits(d, load(d, keys + k) < key));
    x.keys[rank] = keys[i];
    x.numbers[rank] = numbers[i];
    ranks += rank;
  }
  if (ranks == n * (n - 1) / 2) return true;
  std::copy_n(keys, n, x.keys);
  std::copy_n(numbers, n, x.numbers);
  return false;
}

// As Quicksort (quicksort.h), until equal keys are seen.
bool sortRange(Pairs<K> x, size_t n, Pairs<K> buffer, K least, K most, int levels) {
  for (; n > kFewPairs; --levels) {
    if (n <= kPackedPairs && sortPacked(x, n, reinterpret_cast<int32_t*>(buffer.keys), buffer.numbers)) return true;
    const K pivot = levels > 0 ? pivotOf<K>(x.keys, n, {}) : middleOf(least, most);
    if (pivot == least) return false;
    const size_t below = partitionPairs(x, n, pivot, buffer);
    if (below <= n - below) {
      if (below > 0 && !sortRange(x, below, buffer, least, pivot - 1, levels - 1)) return false;
      x = x.from(below);
      n -= below;
      least = pivot;
    } else {
      if (below < n && !sortRange(x.from(below), n - below, buffer, pivot, most, levels - 1)) return false;
      n = below;
      most = pivot - 1;
    }
  }
  return n == 0 || sortByRanks(x, n);
}

bool sortAlone(Pairs<K> x, size_t n) {
  if (n <= kFewPairs) return sortByRanks(x, n);
  static_assert(kPackedPairs <= kPairBuffer);
  alignas(64) K keys[std::max(kPairBuffer, kSortBuffer<int32_t> / 2)];  // packed ones, too
  alignas(64) int32_t numbers[kPairBuffer];
  return sortRange(x, n, {keys, numbers}, std::numeric_limits<K>::min(), std::numeric_limits<K>::max(), levelsByMedians(n));
}

}  // namespace

bool qvx::sortDifferentPairs(int64_t* keys, int32_t* numbers, size_t n) {
  const Pairs<K> x = {keys, numbers};
  return isWorthTeam(kPairTeam, n) ? sortPairsInTeam(x, n, sortAlone) : sortAlone(x, n);
}
