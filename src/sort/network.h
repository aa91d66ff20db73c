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

inline constexpr bool kHasBlends = kVectorBytes > 16;

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

template <class V> struct Ordered { V least, most; };
template <size_t kBit, class V> [[gnu::always_inline]] inline Ordered<V> exchangedByBit(Ordered<V> v) {
  return {lanesByBit<kBit>(v.least, v.most), lanesByBit<kBit>(v.most, v.least)};
}

// Lanes of two that change places.
template <class M, class V> [[gnu::always_inline]] inline Ordered<V> exchangedWhere(M mask, V a, V b) {
  if constexpr (kHasBlends) {
    return {hn::IfThenElse(mask, b, a), hn::IfThenElse(mask, a, b)};
  } else {
    const V difference = (a ^ b) & hn::VecFromMask(TagOf<V>(), mask);
    return {a ^ difference, b ^ difference};
  }
}

// The lesser and the greater lanes of two; by bit, the other way round in the lanes with that bit.
struct ByMinima {
  template <class V> [[gnu::always_inline]] static Ordered<V> ordered(V a, V b) { return {hn::Min(a, b), hn::Max(a, b)}; }
  template <size_t kBit, class V> [[gnu::always_inline]] static Ordered<V> orderedByBit(V a, V b) {
    return exchangedByBit<kBit>(ordered(a, b));
  }
};
// Of lanes that are equal it does not matter which is which.
struct ByComparisons {
  template <class V> [[gnu::always_inline]] static Ordered<V> ordered(V a, V b) { return exchangedWhere(a > b, a, b); }
  template <size_t kBit, class V> [[gnu::always_inline]] static Ordered<V> orderedByBit(V a, V b) {
    return exchangedWhere(hn::Xor(a > b, lanesWithBit<kBit>(TagOf<V>())), a, b);
  }
};
// Lanes that are the bits of doubles, whose minimum and maximum take an instruction each.
struct ByDoubles {
  template <class V> [[gnu::always_inline]] static Ordered<V> ordered(V a, V b) {
    const auto both = ByMinima::ordered(as<double>(a), as<double>(b));
    return {as<int64_t>(both.least), as<int64_t>(both.most)};
  }
  template <size_t kBit, class V> [[gnu::always_inline]] static Ordered<V> orderedByBit(V a, V b) {
    return exchangedByBit<kBit>(ordered(a, b));
  }
};
// Without blends, minima of 32 bits are made of comparisons: the network of 64 keys takes 0.7 of the time. Those of 64 bits take
// two instructions each where there are such. They come sooner than what a mask chooses, so that two rows take 0.7 of the time on
// one make and no more on another; of more rows that many instructions take longer.
template <size_t kRows, class K>
inline constexpr bool kHasMinima = sizeof(K) == 2 || (sizeof(K) == 4 && kHasBlends) ||
                                   (sizeof(K) == 8 && kHasMasks && kRows <= 2);
template <size_t kRows, class K> using ByKeys = std::conditional_t<kHasMinima<kRows, K>, ByMinima, ByComparisons>;

template <class By, class V> [[gnu::always_inline]] inline void order(V& low, V& high) {
  const Ordered<V> both = By::ordered(low, high);
  low = both.least;
  high = both.most;
}

// Lanes at a distance of one bit, ordered.
template <class By, size_t kBit, class V> [[gnu::always_inline]] inline void orderLanes(V& v) {
  v = By::template orderedByBit<kBit>(v, exchanged<kBit>(v)).least;
}

// Merges groups of kColumns / 2 columns, which are sorted, into groups of kColumns.
template <class By, size_t kColumns, size_t kRows, class V> [[gnu::always_inline]] inline void mergeColumns(V (&v)[kRows]) {
  constexpr size_t kUpper = kColumns / 2;
  if constexpr (kRows == 1) {
    v[0] = By::template orderedByBit<kUpper>(v[0], exchanged<kColumns - 1>(v[0])).least;
  }
  unrolled<kRows / 2>([&](auto r) __attribute__((always_inline)) {
    V& row = v[r];
    V& last = v[kRows - 1 - r];
    const Ordered<V> both = By::template orderedByBit<kUpper>(row, exchanged<kColumns - 1>(last));
    row = both.least;
    last = exchanged<kColumns - 1>(both.most);
  });
  const auto across = [&](auto bit) __attribute__((always_inline)) {
    if constexpr (kUpper > bit) unrolled<kRows>([&](auto r) __attribute__((always_inline)) { orderLanes<By, bit>(v[r]); });
  };
  across(std::integral_constant<size_t, 8>());
  across(std::integral_constant<size_t, 4>());
  across(std::integral_constant<size_t, 2>());
  across(std::integral_constant<size_t, 1>());
  const auto down = [&](auto distance) __attribute__((always_inline)) {
    if constexpr (distance < kRows) {
      unrolled<kRows / 2>([&](auto i) __attribute__((always_inline)) {
        constexpr size_t kRow = i / distance * 2 * distance + i % distance;
        order<By>(v[kRow], v[kRow + distance]);
      });
    }
  };
  down(std::integral_constant<size_t, 8>());
  down(std::integral_constant<size_t, 4>());
  down(std::integral_constant<size_t, 2>());
  down(std::integral_constant<size_t, 1>());
}

// Rows of lanes to columns: each round of interleaving the upper half of the rows with the lower rotates the bits of the index by
// one.
template <size_t kRows, class V> [[gnu::always_inline]] inline void transpose(V (&v)[kRows]) {
  const auto round = [&]() __attribute__((always_inline)) {
    V rotated[kRows];
    unrolled<kRows / 2>([&](auto i) __attribute__((always_inline)) {
      const Pair<V> pair = interleaved(Pair<V>{v[i], v[i + kRows / 2]});
      rotated[2 * i] = pair.lo;
      rotated[2 * i + 1] = pair.hi;
    });
    unrolled<kRows>([&](auto r) __attribute__((always_inline)) { v[r] = rotated[r]; });
  };
  if constexpr (kRows >= 2) round();
  if constexpr (kRows >= 4) round();
  if constexpr (kRows >= 8) round();
  if constexpr (kRows >= 16) round();
}

template <class By, size_t kRows, class V> [[gnu::always_inline]] inline void sortRows(V (&v)[kRows]) {
  if constexpr (kRows > 1) {
    unrolled<kComparators<kRows>.size()>([&](auto i) __attribute__((always_inline)) {
      constexpr Comparator kPair = kComparators<kRows>[i];
      order<By>(v[kPair.low], v[kPair.high]);
    });
  }
  constexpr size_t kLanes = kLanesOf<V>;
  if constexpr (kLanes >= 2) mergeColumns<By, 2>(v);
  if constexpr (kLanes >= 4) mergeColumns<By, 4>(v);
  if constexpr (kLanes >= 8) mergeColumns<By, 8>(v);
  if constexpr (kLanes >= 16) mergeColumns<By, 16>(v);
  transpose(v);
}

// n elements of no more than kRows rows; the rest of the rows is filled.
template <size_t kRows, class K, class V>
[[gnu::always_inline]] inline void loadRows(const K* x, size_t n, K filling, V (&v)[kRows]) {
  constexpr size_t N = kRowLanes<K>;
  const TagOf<V> d;
  const size_t whole = n / N;
  unrolled<kRows>([&](auto r) __attribute__((always_inline)) { v[r] = r < whole ? load(d, x + r * N) : same<V>(filling); });
  if (n % N == 0) return;
  const V partial = loadFirstOr(d, x + whole * N, n % N, filling);
  unrolled<kRows>([&](auto r) __attribute__((always_inline)) { v[r] = r == whole ? partial : v[r]; });
}
template <size_t kRows, class K, class V> [[gnu::always_inline]] inline void storeRows(const V (&v)[kRows], K* x, size_t n) {
  constexpr size_t N = kRowLanes<K>;
  const TagOf<V> d;
  const size_t whole = n / N;
  V partial = v[0];
  unrolled<kRows>([&](auto r) __attribute__((always_inline)) {
    if (r < whole) store(v[r], d, x + r * N);
    else if (r == whole) partial = v[r];
  });
  if (n % N != 0) storeFirst(partial, d, x + whole * N, n % N);
}

// Whether no lane is the bits of a NaN, a subnormal double or -0.0: minimum and maximum, with subnormal numbers or without, then
// leave two lanes as they are or exchange them.
template <size_t kRows, class V> [[gnu::always_inline]] inline bool areOrdinary(const V (&v)[kRows]) {
  const TagOf<V> d;
  // Twice the bits, without the sign, brought from 2^53 to the least integer: infinity is the most then.
  const auto isOdd = [](V x) { return x + x + same<V>(0x7FE0000000000000) > same<V>(0x7FC0000000000000); };
  auto areOdd = isOdd(v[0]);
  unrolled<kRows - 1>([&](auto r) __attribute__((always_inline)) { areOdd = hn::Or(areOdd, isOdd(v[r + 1])); });
  if (HWY_LIKELY(hn::AllFalse(d, areOdd))) return true;
  auto areNotZero = hn::AndNot(v[0] == hn::Zero(d), isOdd(v[0]));
  unrolled<kRows - 1>([&](auto r) __attribute__((always_inline)) {
    areNotZero = hn::Or(areNotZero, hn::AndNot(v[r + 1] == hn::Zero(d), isOdd(v[r + 1])));
  });
  return hn::AllFalse(d, areNotZero);
}

// Keys of doubles as what they are, if they are ordinary: 128 take 0.84 of the time. Of one row or two the tests take longer than
// they save.
template <size_t kRows, class K> inline constexpr bool kSortsDoubles = sizeof(K) == 8 && kRows > 2;
template <size_t kRows>
[[gnu::always_inline]] inline bool sortDoublesInRows(const int64_t* x, int64_t* dst, size_t n, KeyMap<int64_t> in,
                                                     KeyMap<int64_t> out) {
  constexpr int64_t kInfinityBits = 0x7FF0000000000000;
  using V = Vec<Lanes<int64_t, kRowLanes<int64_t>>>;
  V v[kRows];
  loadRows(x, n, in.original(kInfinityBits), v);
  if (!in.isIdentity()) unrolled<kRows>([&](auto r) __attribute__((always_inline)) { v[r] = in.keys(v[r]); });
  unrolled<kRows>([&](auto r) __attribute__((always_inline)) { v[r] = out.folded(v[r]); });
  if (!areOrdinary(v)) return false;
  sortRows<ByDoubles>(v);
  const V sign = same<V>(std::numeric_limits<int64_t>::min());
  if (out.flip != 0) unrolled<kRows>([&](auto r) __attribute__((always_inline)) { v[r] = v[r] ^ sign; });
  storeRows(v, dst, n);
  return true;
}

template <size_t kRows, class K> [[gnu::noinline]] void sortInRows(const K* x, K* dst, size_t n, KeyMap<K> in, KeyMap<K> out) {
  if constexpr (kSortsDoubles<kRows, K>) {
    if (out.fold != 0 && sortDoublesInRows<kRows>(x, dst, n, in, out)) return;
  }
  Vec<Lanes<K, kRowLanes<K>>> v[kRows];
  loadRows(x, n, in.original(std::numeric_limits<K>::max()), v);
  if (!in.isIdentity()) unrolled<kRows>([&](auto r) __attribute__((always_inline)) { v[r] = in.keys(v[r]); });
  sortRows<ByKeys<kRows, K>>(v);
  if (!out.isIdentity()) unrolled<kRows>([&](auto r) __attribute__((always_inline)) { v[r] = out.originals(v[r]); });
  storeRows(v, dst, n);
}

}  // namespace detail

// n keys, 1 to kNetworkKeys: x as `in` maps it is sorted and stored as `out` maps it back.
template <class K> void sortByNetwork(const K* x, K* dst, size_t n, KeyMap<K> in, KeyMap<K> out) {
  constexpr size_t N = kRowLanes<K>;
  if (n <= N) return detail::sortInRows<1>(x, dst, n, in, out);
  if (n <= 2 * N) return detail::sortInRows<2>(x, dst, n, in, out);
  if (n <= 4 * N) return detail::sortInRows<4>(x, dst, n, in, out);
  if (n <= 8 * N) return detail::sortInRows<8>(x, dst, n, in, out);
  detail::sortInRows<16>(x, dst, n, in, out);
}
template <class K> void sortByNetwork(K* x, size_t n, KeyMap<K> in, KeyMap<K> out) { sortByNetwork(x, x, n, in, out); }

// A few elements, one by one. A vector of what has just been stored in two pieces has to wait for both to reach the cache: ten
// doubles in order took 14 ns after a copy, 11 this way, and ten 32-bit integers in none 24, 18.
template <class K> bool areFewInOrder(const K* x, size_t n, KeyMap<K> in) {
  bool isBelow = false;
  K last = in.key(x[0]);
  for (size_t i = 1; i < n; ++i) {
    const K next = in.key(x[i]);
    isBelow |= next < last;
    last = next;
  }
  return !isBelow;
}

// n elements, one at least. What is in no order shows that in the first vectors.
template <Order kOrder, class K> bool areInOrder(const K* x, size_t n, KeyMap<K> in) {
  constexpr size_t kFew = 16;
  if (kOrder == Order::kAscending && n <= kFew) return areFewInOrder(x, n, in);
  constexpr size_t N = kVectorBytes / sizeof(K);
  const Lanes<K, N> d;
  const auto areOrdered = [=](auto a, auto b) {
    return hn::AllFalse(d, kOrder == Order::kAscending ? in.keys(a) > in.keys(b) : in.keys(a) < in.keys(b));
  };
  size_t i = 0;
  for (; i + N < n; i += N) {
    if (!areOrdered(load(d, x + i), load(d, x + i + 1))) return false;
  }
  const size_t rest = n - 1 - i;
  return rest == 0 || areOrdered(loadFirst(d, x + i, rest), loadFirst(d, x + i + 1, rest));
}

}  // namespace qvx
