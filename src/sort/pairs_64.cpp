// Quicksort of 64-bit keys and their numbers, all keys different: a network sorts few of them.
#include "sort/pairs.h"

#include "sort/pairs_partition.h"
#include "sort/quicksort.h"

namespace qvx {

namespace detail {

// A vector of keys and one of their numbers: as the network sees it, one vector.
template <class V> struct Both {
  V keys;
  V numbers;
};

template <class M, class V> [[gnu::always_inline]] inline Both<V> chosen(M mask, Both<V> yes, Both<V> no) {
  return {hn::IfThenElse(mask, yes.keys, no.keys), hn::IfThenElse(mask, yes.numbers, no.numbers)};
}
template <size_t kBit, class V> [[gnu::always_inline]] inline Both<V> lanesByBit(Both<V> lower, Both<V> upper) {
  return {qvx::lanesByBit<kBit>(lower.keys, upper.keys), qvx::lanesByBit<kBit>(lower.numbers, upper.numbers)};
}
template <size_t kBy, class V> [[gnu::always_inline]] inline Both<V> exchanged(Both<V> v) {
  return {qvx::exchanged<kBy>(v.keys), qvx::exchanged<kBy>(v.numbers)};
}
template <class V> [[gnu::always_inline]] inline Pair<Both<V>> interleaved(Pair<Both<V>> v) {
  const auto keys = qvx::interleaved(Pair<V>{v.lo.keys, v.hi.keys});
  const auto numbers = qvx::interleaved(Pair<V>{v.lo.numbers, v.hi.numbers});
  return {{keys.lo, numbers.lo}, {keys.hi, numbers.hi}};
}
struct ByKeysOfBoth {
  template <class V> [[gnu::always_inline]] static Ordered<Both<V>> ordered(Both<V> a, Both<V> b) {
    const auto isAbove = a.keys > b.keys;
    return {chosen(isAbove, b, a), chosen(isAbove, a, b)};
  }
  template <size_t kBit, class V> [[gnu::always_inline]] static Ordered<Both<V>> orderedByBit(Both<V> a, Both<V> b) {
    return exchangedByBit<kBit>(ordered(a, b));
  }
};
// Either lane compares the lower one with the upper: equal keys stay where they are, and none of their numbers is lost.
template <class By, size_t kBit, class V> [[gnu::always_inline]] inline void orderLanes(Both<V>& v) {
  const Both<V> other = exchanged<kBit>(v);
  const auto isAbove = qvx::lanesByBit<kBit>(v.keys, other.keys) > qvx::lanesByBit<kBit>(other.keys, v.keys);
  v = chosen(isAbove, other, v);
}

}  // namespace detail

template <class V> inline constexpr size_t kLanesOf<detail::Both<V>> = kLanesOf<V>;

namespace {

using K = int64_t;
constexpr size_t N = kRowLanes<K>;
static_assert(N == Pairs<K>::N);
constexpr size_t kRows = 8;
constexpr size_t kNetworkPairs = kRows * N;

// n pairs of no more than kUsed rows; the rest of the rows is filled with the greatest key, which no pair has.
template <size_t kUsed> [[gnu::noinline]] void sortInRows(Pairs<K> x, size_t n) {
  const Lanes<K, N> d;
  const Lanes<int32_t, N> d32;
  using B = detail::Both<KeysOf<K>>;
  constexpr K kLast = std::numeric_limits<K>::max();
  const size_t whole = n / N;
  const size_t rest = n % N;
  B v[kUsed];
  unrolled<kUsed>([&](auto r) __attribute__((always_inline)) {
    if (r < whole) v[r] = B{x.keysAt(r * N), hn::PromoteTo(d, x.numbersAt(r * N))};
    else v[r] = B{same<KeysOf<K>>(kLast), same<KeysOf<K>>(kLast)};
  });
  if (rest != 0) {
    const B partial = {loadFirstOr(d, x.keys + whole * N, rest, kLast),
                       hn::PromoteTo(d, loadFirst(d32, x.numbers + whole * N, rest))};
    unrolled<kUsed>([&](auto r) __attribute__((always_inline)) {
      if (r == whole) v[r] = partial;
    });
  }
  detail::sortRows<detail::ByKeysOfBoth>(v);
  const auto numbersOf = [=](B row) {
    return hn::BitCast(d32, hn::TruncateTo(hn::RebindToUnsigned<Lanes<int32_t, N>>(), as<uint64_t>(row.numbers)));
  };
  B partial = v[0];
  unrolled<kUsed>([&](auto r) __attribute__((always_inline)) {
    if (r < whole) {
      store(v[r].keys, d, x.keys + r * N);
      store(numbersOf(v[r]), d32, x.numbers + r * N);
    } else if (r == whole) {
      partial = v[r];
    }
  });
  if (rest != 0) {
    storeFirst(partial.keys, d, x.keys + whole * N, rest);
    storeFirst(numbersOf(partial), d32, x.numbers + whole * N, rest);
  }
}

void sortFewPairs(Pairs<K> x, size_t n) {
  if (n <= 2 * N) return sortInRows<2>(x, n);
  if (n <= 4 * N) return sortInRows<4>(x, n);
  sortInRows<kRows>(x, n);
}

// As Quicksort (quicksort.h), until equal keys are seen.
bool sortRange(Pairs<K> x, size_t n, Pairs<K> buffer, K least) {
  for (int levels = 4 * static_cast<int>(std::bit_width(n)); n > kNetworkPairs;) {
    if (levels-- == 0) return sortHeap(x, n), true;
    const K pivot = pivotOf<K>(x.keys, n, {});
    if (pivot == least) return false;
    const size_t below = partitionPairs(x, n, pivot, buffer);
    if (below <= n - below) {
      if (below > 0 && !sortRange(x, below, buffer, least)) return false;
      x = x.from(below);
      n -= below;
      least = pivot;
    } else {
      if (below < n && !sortRange(x.from(below), n - below, buffer, pivot)) return false;
      n = below;
    }
  }
  if (n > 0) sortFewPairs(x, n);
  return true;
}

}  // namespace

bool sortDifferentPairs(int64_t* keys, int32_t* numbers, size_t n) {
  if (n <= kNetworkPairs) return sortFewPairs({keys, numbers}, n), true;
  alignas(64) int64_t keyBuffer[kPairBuffer];
  alignas(64) int32_t numberBuffer[kPairBuffer];
  return sortRange({keys, numbers}, n, {keyBuffer, numberBuffer}, std::numeric_limits<K>::min());
}

}  // namespace qvx
