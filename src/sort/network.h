// Up to 16 vectors of keys sorted in registers.
//
// The keys lie in rows, a vector each. A network sorts the columns, all lanes at once; then columns are merged with their
// neighbours, pairs of them and so on, by bitonic mergers, most of whose steps are between rows and need no exchange of lanes. At
// the end the columns, one after the other, are the sorted sequence: it is transposed on its way to memory.
#pragma once

#include <array>

#include "frame/unroll.h"
#include "sort/keys.h"

namespace qvx {

// Lanes of a row. Rows of 16-bit keys are half registers in w4: whole ones would take another level of merging across lanes.
template <class K> inline constexpr size_t kRowLanes = std::min(kVectorBytes / sizeof(K), size_t{16});
inline constexpr size_t kMostRows = 16;
// The keys that one network sorts.
template <class K> inline constexpr size_t kNetworkKeys = kMostRows* kRowLanes<K>;

namespace detail {

struct Comparator {
  size_t low, high;
};

// Batcher's odd-even merge sort of kRows wires.
template <size_t kRows, class Each> constexpr void forEachComparator(Each each) {
  for (size_t p = 1; p < kRows; p *= 2) {
    for (size_t k = p; k >= 1; k /= 2) {
      for (size_t j = k % p; j + k < kRows; j += 2 * k) {
        for (size_t i = 0; i < k && i + j + k < kRows; ++i) {
          if ((i + j) / (2 * p) == (i + j + k) / (2 * p)) each(Comparator{i + j, i + j + k});
        }
      }
    }
  }
}
template <size_t kRows> constexpr size_t countComparators() {
  size_t count = 0;
  forEachComparator<kRows>([&](Comparator) { ++count; });
  return count;
}
template <size_t kRows>
inline constexpr auto kComparators = [] {
  std::array<Comparator, countComparators<kRows>()> all{};
  size_t at = 0;
  forEachComparator<kRows>([&](Comparator c) { all[at++] = c; });
  return all;
}();

// The lesser and the greater lanes of two. Of 64 bits by one comparison: minimum and maximum take two instructions each where
// there are such, and a comparison each where there are none.
template <class V> struct Ordered { V least, most; };
template <class V> [[gnu::always_inline]] inline Ordered<V> ordered(V a, V b) {
  if constexpr (sizeof(LaneOf<V>) == 8) {
    const auto isAbove = a > b;
    return {hn::IfThenElse(isAbove, b, a), hn::IfThenElse(isAbove, a, b)};
  } else {
    return {hn::Min(a, b), hn::Max(a, b)};
  }
}

template <class V> [[gnu::always_inline]] inline void order(V& low, V& high) {
  const Ordered<V> both = ordered(low, high);
  low = both.least;
  high = both.most;
}

// Lanes at a distance of one bit, ordered.
template <size_t kBit, class V> [[gnu::always_inline]] inline void orderLanes(V& v) {
  const Ordered<V> both = ordered(v, exchanged<kBit>(v));
  v = lanesByBit<kBit>(both.least, both.most);
}

// Merges groups of kColumns / 2 columns, which are sorted, into groups of kColumns.
template <size_t kColumns, size_t kRows, class V> [[gnu::always_inline]] inline void mergeColumns(V (&v)[kRows]) {
  constexpr size_t kUpper = kColumns / 2;
  if constexpr (kRows == 1) {
    const Ordered<V> both = ordered(v[0], exchanged<kColumns - 1>(v[0]));
    v[0] = lanesByBit<kUpper>(both.least, both.most);
  }
  unrolled<kRows / 2>([&](auto r) __attribute__((always_inline)) {
    V& row = v[r];
    V& last = v[kRows - 1 - r];
    const Ordered<V> both = ordered(row, exchanged<kColumns - 1>(last));
    row = lanesByBit<kUpper>(both.least, both.most);
    last = exchanged<kColumns - 1>(lanesByBit<kUpper>(both.most, both.least));
  });
  const auto across = [&](auto bit) __attribute__((always_inline)) {
    if constexpr (kUpper > bit) unrolled<kRows>([&](auto r) __attribute__((always_inline)) { orderLanes<bit>(v[r]); });
  };
  across(std::integral_constant<size_t, 8>());
  across(std::integral_constant<size_t, 4>());
  across(std::integral_constant<size_t, 2>());
  across(std::integral_constant<size_t, 1>());
  const auto down = [&](auto distance) __attribute__((always_inline)) {
    if constexpr (distance < kRows) {
      unrolled<kRows / 2>([&](auto i) __attribute__((always_inline)) {
        constexpr size_t kRow = i / distance * 2 * distance + i % distance;
        order(v[kRow], v[kRow + distance]);
      });
    }
  };
  down(std::integral_constant<size_t, 8>());
  down(std::integral_constant<size_t, 4>());
  down(std::integral_constant<size_t, 2>());
  down(std::integral_constant<size_t, 1>());
}

// Rows of lanes to columns: each round of interleaving the upper half of the rows with the lower turns the index by one bit.
template <size_t kRows, class V> [[gnu::always_inline]] inline void transpose(V (&v)[kRows]) {
  const auto round = [&]() __attribute__((always_inline)) {
    V turned[kRows];
    unrolled<kRows / 2>([&](auto i) __attribute__((always_inline)) {
      const Pair<V> pair = interleaved(Pair<V>{v[i], v[i + kRows / 2]});
      turned[2 * i] = pair.lo;
      turned[2 * i + 1] = pair.hi;
    });
    unrolled<kRows>([&](auto r) __attribute__((always_inline)) { v[r] = turned[r]; });
  };
  if constexpr (kRows >= 2) round();
  if constexpr (kRows >= 4) round();
  if constexpr (kRows >= 8) round();
  if constexpr (kRows >= 16) round();
}

template <size_t kRows, class V> [[gnu::always_inline]] inline void sortRows(V (&v)[kRows]) {
  if constexpr (kRows > 1) {
    unrolled<kComparators<kRows>.size()>([&](auto i) __attribute__((always_inline)) {
      constexpr Comparator kPair = kComparators<kRows>[i];
      order(v[kPair.low], v[kPair.high]);
    });
  }
  constexpr size_t kLanes = kLanesOf<V>;
  if constexpr (kLanes >= 2) mergeColumns<2>(v);
  if constexpr (kLanes >= 4) mergeColumns<4>(v);
  if constexpr (kLanes >= 8) mergeColumns<8>(v);
  if constexpr (kLanes >= 16) mergeColumns<16>(v);
  transpose(v);
}

// n keys of no more than kRows rows; the rest of the rows is filled with the greatest key.
template <size_t kRows, class K> [[gnu::noinline]] void sortInRows(K* x, size_t n, KeyMap<K> in, KeyMap<K> out) {
  constexpr size_t N = kRowLanes<K>;
  const Lanes<K, N> d;
  using V = Vec<Lanes<K, N>>;
  constexpr K kLast = std::numeric_limits<K>::max();
  const size_t whole = n / N;
  const size_t rest = n % N;
  V v[kRows];
  unrolled<kRows>([&](auto r)
                      __attribute__((always_inline)) { v[r] = r < whole ? load(d, x + r * N) : same<V>(in.original(kLast)); });
  if (rest != 0) {
    const V partial = loadFirstOr(d, x + whole * N, rest, in.original(kLast));
    unrolled<kRows>([&](auto r) __attribute__((always_inline)) { v[r] = r == whole ? partial : v[r]; });
  }
  if (!in.isIdentity()) unrolled<kRows>([&](auto r) __attribute__((always_inline)) { v[r] = in.keys(v[r]); });
  sortRows(v);
  if (!out.isIdentity()) unrolled<kRows>([&](auto r) __attribute__((always_inline)) { v[r] = out.originals(v[r]); });
  V partial = v[0];
  unrolled<kRows>([&](auto r) __attribute__((always_inline)) {
    if (r < whole) store(v[r], d, x + r * N);
    else if (r == whole) partial = v[r];
  });
  if (rest != 0) storeFirst(partial, d, x + whole * N, rest);
}

}  // namespace detail

// n keys, 1 to kNetworkKeys: x as `in` maps it is sorted and left as `out` maps it back.
template <class K> void sortByNetwork(K* x, size_t n, KeyMap<K> in, KeyMap<K> out) {
  constexpr size_t N = kRowLanes<K>;
  if (n <= N) return detail::sortInRows<1>(x, n, in, out);
  if (n <= 2 * N) return detail::sortInRows<2>(x, n, in, out);
  if (n <= 4 * N) return detail::sortInRows<4>(x, n, in, out);
  if (n <= 8 * N) return detail::sortInRows<8>(x, n, in, out);
  detail::sortInRows<16>(x, n, in, out);
}

}  // namespace qvx
