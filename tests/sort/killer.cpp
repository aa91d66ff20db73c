// The adversary of reference::killerOfQuicksort for pivots that are medians of vectors. It needs to know where these are loaded
// and how a partition moves keys, so it runs both, as SSSE3 has them.
#include "sort/killer.h"

#include <numeric>

#include "sort/pairs_partition.h"
#include "sort/quicksort.h"

namespace tests {

template <class K> std::vector<K> killerOfMedians(size_t n, bool hasNumbers) {
  constexpr size_t N = qvx::kPivotLanes<K>;
  constexpr K kUndecided = 1 << 24;  // and its place in the vector
  std::vector<K> value(n);
  std::iota(value.begin(), value.end(), kUndecided);
  std::vector<K> moved = value;
  std::vector<int32_t> numbers(n);
  alignas(64) K keyBuffer[std::max(qvx::kSortBuffer<K>, qvx::kPairBuffer)];
  alignas(64) int32_t numberBuffer[qvx::kPairBuffer];
  K decided = 0;
  for (size_t begin = 0; n - begin > qvx::kSortBuffer<K>;) {
    K* const x = moved.data() + begin;
    const size_t left = n - begin;
    // Two vectors of three in two threes of three, and a lane more than half of each, are below all others.
    qvx::SamplePlaces places(left);
    for (int v = 0; v < 6; ++v) {
      K* const lanes = x + places.nextBelow(left - N + 1);
      for (size_t i = 0; i <= N / 2 && v % 3 < 2; ++i) {
        if (lanes[i] < kUndecided) continue;
        value[static_cast<size_t>(lanes[i] - kUndecided)] = decided;
        lanes[i] = decided++;
      }
    }
    const K pivot = qvx::pivotOf<K>(x, left, {});
    begin += hasNumbers ? qvx::partitionPairs<K>({x, numbers.data() + begin}, left, pivot, {keyBuffer, numberBuffer})
                        : qvx::partition<K>(x, left, pivot, {}, keyBuffer);
  }
  return value;
}
template std::vector<int32_t> killerOfMedians(size_t, bool);
template std::vector<int64_t> killerOfMedians(size_t, bool);

}  // namespace tests
