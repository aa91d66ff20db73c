// Few pairs sorted as keys alone: the lowest bits of a key make room for its place, and after the sort a place tells which low
// bits and which number belong to it. 10^3 to 10^6 doubles take 0.75 to 0.85 of the time of networks that move keys and numbers,
// in AVX2 as well, and 100 32-bit keys in AVX2 0.55 of that of a network of 64-bit keys.
#pragma once

#include "sort/pairs_partition.h"
#include "sort/quicksort.h"

namespace qvx {

// Pairs that are sorted that way: of 32-bit keys no more than leave bits enough to tell random ones apart.
template <class K> inline constexpr size_t kPackedPairs = sizeof(K) == 8 ? 512 : kNetworkKeys<int32_t>;

namespace detail {

template <class K> void storePairs(Vec<Lanes<std::make_unsigned_t<K>, kPartLanes<K>>> low, NumbersOf<K> numbers, uint64_t* to) {
  constexpr size_t N = kPartLanes<K>;
  if constexpr (sizeof(K) == 8) {
    const Lanes<uint64_t, N> d;
    store(hn::ShiftLeft<32>(low) | hn::PromoteTo(d, as<uint32_t>(numbers)), d, to);
  } else {
    const Lanes<uint32_t, N> d;
    const auto both = interleaved(Pair<decltype(low)>{as<uint32_t>(numbers), low});
    store(both.lo, d, reinterpret_cast<uint32_t*>(to));
    store(both.hi, d, reinterpret_cast<uint32_t*>(to) + N);
  }
}
template <class K> struct LowAndNumbers {
  Vec<Lanes<std::make_unsigned_t<K>, kPartLanes<K>>> low;
  NumbersOf<K> numbers;
};
template <class K> LowAndNumbers<K> loadPairs(const uint64_t* from) {
  constexpr size_t N = kPartLanes<K>;
  if constexpr (sizeof(K) == 8) {
    const auto both = load(Lanes<uint64_t, N>(), from);
    return {hn::ShiftRight<32>(both), as<int32_t>(hn::TruncateTo(Lanes<uint32_t, N>(), both))};
  } else {
    const Lanes<uint32_t, N> d;
    const auto* const halves = reinterpret_cast<const uint32_t*>(from);
    const auto both = deinterleaved(Pair<Vec<Lanes<uint32_t, N>>>{load(d, halves), load(d, halves + N)});
    return {both.hi, as<int32_t>(both.lo)};
  }
}

// A packed key is upper bits of (key - least), then the place: as few low bits are left out as the span of the keys allows, of
// most vectors that were partitioned before none.
template <class K> class Packing {
 public:
  using U = std::make_unsigned_t<K>;

  Packing(const K* keys, size_t n) : placeBits_(std::bit_width(n - 1)) {
    auto least = same<KeysOf<K>>(keys[0]), most = least;
    const auto take = [&](auto v) __attribute__((always_inline)) {
      least = hn::Min(least, v);
      most = hn::Max(most, v);
    };
    size_t i = 0;
    for (; i + N <= n; i += N) take(load(kKeys, keys + i));
    if (i < n) take(loadFirstOr(kKeys, keys + i, n - i, keys[0]));
    least_ = static_cast<U>(hn::GetLane(hn::MinOfLanes(kKeys, least)));
    const auto span = static_cast<U>(static_cast<U>(hn::GetLane(hn::MaxOfLanes(kKeys, most))) - least_);
    lowBits_ = std::max(placeBits_ - std::countl_zero(span), 0);
  }

  // rest: the number of each pair and, above it, the bits that were left out; whole vectors.
  void pack(Pairs<K> x, size_t n, uint64_t* rest) const {
    const auto least = hn::Set(kUnsigned, least_), lowMask = hn::Set(kUnsigned, mask(lowBits_)), sign = hn::Set(kUnsigned, kSign);
    const auto first = hn::Iota(kUnsigned, 0);
    change(
        x.keys, n, [ =, this ](auto keys, size_t at) __attribute__((always_inline)) {
          const auto above = as<U>(keys) - least;
          storePairs<K>(above & lowMask, n - at >= N ? x.numbersAt(at) : loadFirst(kNumbers, x.numbers + at, n - at), rest + at);
          const auto upper = hn::ShiftLeftSame(hn::ShiftRightSame(above, lowBits_), placeBits_);
          return as<K>((upper | (first + hn::Set(kUnsigned, static_cast<U>(at)))) ^ sign);
        });
  }
  // inOrder: room for `rest` in the order of the packed keys.
  void unpack(Pairs<K> x, size_t n, const uint64_t* rest, uint64_t* inOrder) const {
    for (size_t i = 0; i < n; ++i) inOrder[i] = rest[static_cast<U>(x.keys[i]) & mask(placeBits_)];
    const auto least = hn::Set(kUnsigned, least_), sign = hn::Set(kUnsigned, kSign);
    change(
        x.keys, n, [ =, this ](auto keys, size_t at) __attribute__((always_inline)) {
          const LowAndNumbers<K> both = loadPairs<K>(inOrder + at);
          if (n - at >= N) store(both.numbers, kNumbers, x.numbers + at);
          else storeFirst(both.numbers, kNumbers, x.numbers + at, n - at);
          const auto upper = hn::ShiftLeftSame(hn::ShiftRightSame(as<U>(keys) ^ sign, placeBits_), lowBits_);
          return as<K>((upper | both.low) + least);
        });
  }

 private:
  static constexpr size_t N = Pairs<K>::N;
  static constexpr Lanes<K, N> kKeys{};
  static constexpr Lanes<U, N> kUnsigned{};
  static constexpr Lanes<int32_t, N> kNumbers{};
  static constexpr U kSign = U{1} << (8 * sizeof(K) - 1);
  static U mask(int bits) { return static_cast<U>((U{1} << bits) - 1); }

  // f(keys, index of the first) changes them.
  template <class F> static void change(K* keys, size_t n, F f) {
    size_t i = 0;
    for (; i + N <= n; i += N) store(f(load(kKeys, keys + i), i), kKeys, keys + i);
    if (i < n) storeFirst(f(loadFirst(kKeys, keys + i, n - i), i), kKeys, keys + i, n - i);
  }

  U least_;
  int placeBits_;
  int lowBits_;
};

}  // namespace detail

template <class K> bool areAscending(const K* keys, size_t n) {
  constexpr size_t N = kPartLanes<K>;
  const Lanes<K, N> d;
  size_t i = 1;
  auto all = hn::FirstN(d, N);
  for (; i + N <= n; i += N) all = hn::And(all, load(d, keys + i - 1) < load(d, keys + i));
  bool isRest = true;
  for (; i < n; ++i) isRest &= keys[i - 1] < keys[i];
  return isRest && hn::AllTrue(d, all);
}

// One pair at least. False if keys are equal, or differ only in what was left out and are in the wrong order: each still has its
// number.
// buffer: kSortBuffer keys.
template <class K> [[gnu::noinline]] bool sortPacked(Pairs<K> x, size_t n, K* buffer) {
  static_assert(kPackedPairs<K> * sizeof(uint64_t) <= kSortBuffer<K> * sizeof(K));
  const detail::Packing<K> packing(x.keys, n);
  alignas(64) uint64_t rest[kPackedPairs<K>];
  packing.pack(x, n, rest);
  Quicksort<K>({}, buffer).sort(x.keys, n, {});
  packing.unpack(x, n, rest, reinterpret_cast<uint64_t*>(buffer));
  return areAscending(x.keys, n);
}

}  // namespace qvx
