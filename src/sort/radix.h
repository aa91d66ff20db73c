// Radix sort through as much memory again, from the lowest digit on.
#pragma once

#include <utility>

#include "frame/map.h"
#include "frame/unroll.h"
#include "sort/keys.h"

namespace qvx {

// Registers of 16 bytes hold so few keys that quicksort takes twice as long: 10^5 32-bit keys 6.4 ns each, these passes 2.6. With
// wider ones it takes 2.5, and on another make 2.7 where the passes take 4.
inline constexpr bool kHasRadixSort = kVectorBytes == 16;
// Keys from which it is faster.
template <class K> inline constexpr size_t kRadixFrom = sizeof(K) == 2 ? 400 : sizeof(K) == 4 ? 700 : 1000;
// Whether quicksort's buffer is room enough to be worth it: 1000 doubles would take 0.9 of the time, but 1.3 where each is there
// 15 times.
template <class K> inline constexpr bool kHasRoomInBuffer = kHasRadixSort && sizeof(K) <= 4;

namespace detail {

// Digits of 11, 11 and 10 bits make 32, and their counts fit the first-level cache and the stack of a call. Longer keys count
// their lower half first.
template <class K> inline constexpr int kDigitBits = sizeof(K) == 2 ? 8 : 11;
template <class K> inline constexpr size_t kDigits = sizeof(K) == 2 ? 2 : 3;
template <class K> inline constexpr size_t kPartsOfKey = sizeof(K) == 8 ? 2 : 1;
template <class K> inline constexpr size_t kBitsOfPart = 8 * sizeof(K) / kPartsOfKey<K>;
// Values of a digit, and the place of its counts after those of the digits below.
template <class K> constexpr size_t valuesOf(size_t digit) {
  return size_t{1} << std::min<size_t>(kDigitBits<K>, kBitsOfPart<K> - digit * kDigitBits<K>);
}
template <class K> constexpr size_t countsBelow(size_t digit) { return digit << kDigitBits<K>; }

template <size_t kPart, size_t kDigit, class K> [[gnu::always_inline]] inline size_t digitOf(K key) {
  const auto part = static_cast<uint32_t>(static_cast<std::make_unsigned_t<K>>(key) >> kPart * kBitsOfPart<K>);
  return (part >> kDigit * kDigitBits<K>) % valuesOf<K>(kDigit);
}

// Counts become the sums of those before them, by vectors: one by one, those of 5120 values took a tenth of the time of 1000
// keys.
template <class Count> void sumCounts(Count* counts, size_t values) {
  constexpr size_t N = 16 / sizeof(Count);
  const Lanes<Count, N> d;
  auto before = hn::Zero(d);
  for (size_t i = 0; i < values; i += N) {
    const auto v = load(d, counts + i);
    auto sums = v + hn::ShiftLeftLanes<1>(d, v);
    sums = sums + hn::ShiftLeftLanes<2>(d, sums);
    if constexpr (N > 4) sums = sums + hn::ShiftLeftLanes<4>(d, sums);
    sums = sums + before;
    store(sums - v, d, counts + i);
    before = hn::Broadcast<N - 1>(sums);
  }
}

// Three passes at most, between x and room; true if they end in room. A digit that all keys share is left out. All digits are
// counted at once: one before each pass, for which a third of the tables would do, 10^4 keys took 1.1 of the time.
template <class Count, size_t kPart, class K> [[gnu::noinline]] bool sortByPart(K* x, K* room, size_t n) {
  constexpr size_t kHighest = kDigits<K> - 1;
  alignas(64) Count counts[countsBelow<K>(kHighest) + valuesOf<K>(kHighest)] = {};
  for (size_t i = 0; i < n; ++i) {
    unrolled<kDigits<K>>([&](auto digit)
                             __attribute__((always_inline)) { ++counts[countsBelow<K>(digit) + digitOf<kPart, digit>(x[i])]; });
  }
  K *from = x, *to = room;
  unrolled<kDigits<K>>([&](auto digit) __attribute__((always_inline)) {
    Count* const at = counts + countsBelow<K>(digit);
    if (at[digitOf<kPart, digit>(x[0])] == n) return;
    sumCounts(at, valuesOf<K>(digit));
    for (size_t i = 0; i < n; ++i) to[at[digitOf<kPart, digit>(from[i])]++] = from[i];
    std::swap(from, to);
  });
  return from == room;
}

}  // namespace detail

// x as `in` maps it is sorted and left as `out` maps it back.
template <class K> void radixSort(K* x, K* room, size_t n, KeyMap<K> in, KeyMap<K> out) {
  // The least key becomes zeros.
  in.flip ^= std::numeric_limits<K>::min();
  out.flip ^= std::numeric_limits<K>::min();
  if (!in.isIdentity()) loop([in](auto v) { return in.keys(v); }, destination(x), n, source(x));
  K *from = x, *to = room;
  unrolled<detail::kPartsOfKey<K>>([&](auto part) {
    const bool isInRoom =
        n <= UINT16_MAX ? detail::sortByPart<uint16_t, part>(from, to, n) : detail::sortByPart<uint32_t, part>(from, to, n);
    if (isInRoom) std::swap(from, to);
  });
  if (!out.isIdentity() || from != x) loop([out](auto v) { return out.originals(v); }, destination(x), n, source(from));
}

}  // namespace qvx
