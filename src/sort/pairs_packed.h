// Few pairs sorted as 32-bit keys alone: upper bits of a key, then its place. After the sort a place tells which pair belongs
// there, and the few pairs that differ in lower bits only are inserted where they belong. 100 to 500 doubles take 0.5 to
// 0.6 of the time of 64-bit packed keys.
#pragma once

#include "sort/pairs_partition.h"
#include "sort/quicksort.h"

namespace qvx {

// Pairs that are sorted that way: more leave fewer bits to tell them apart.
inline constexpr size_t kPackedPairs = 512;

namespace detail {

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
    least_ = hn::GetLane(hn::MinOfLanes(kKeys, least));
    const auto span = static_cast<U>(static_cast<U>(hn::GetLane(hn::MaxOfLanes(kKeys, most))) - static_cast<U>(least_));
    leftOut_ = std::max(static_cast<int>(std::bit_width(span)) + placeBits_ - 32, 0);
  }

  // Copies the pairs and puts packed keys in the place of their numbers.
  void pack(Pairs<K> x, size_t n, Pairs<K> copy) const {
    const Lanes<uint32_t, N> d;
    const auto sign = hn::Set(d, uint32_t{1} << 31);
    const auto packed = [&](auto v, auto numbers, size_t i) __attribute__((always_inline)) {
      store(v, kKeys, copy.keys + i);
      store(numbers, kNumbers, copy.numbers + i);
      const auto upper = hn::ShiftRightSame(as<U>(v - same<KeysOf<K>>(least_)), leftOut_);
      const auto place = hn::Iota(d, static_cast<uint32_t>(i));
      return as<int32_t>((hn::ShiftLeftSame(narrowed(upper), placeBits_) | place) ^ sign);
    };
    size_t i = 0;
    for (; i + N <= n; i += N) store(packed(x.keysAt(i), x.numbersAt(i), i), kNumbers, x.numbers + i);
    if (i == n) return;
    const auto last = packed(loadFirst(kKeys, x.keys + i, n - i), loadFirst(kNumbers, x.numbers + i, n - i), i);
    storeFirst(last, kNumbers, x.numbers + i, n - i);
  }
  uint32_t placeMask() const { return (1U << placeBits_) - 1; }

 private:
  static constexpr size_t N = Pairs<K>::N;
  static constexpr Lanes<K, N> kKeys{};
  static constexpr Lanes<int32_t, N> kNumbers{};

  template <class V> static auto narrowed(V v) {
    if constexpr (sizeof(K) == 8) return hn::TruncateTo(Lanes<uint32_t, N>(), v);
    else return v;
  }

  K least_;
  int placeBits_;
  int leftOut_;
};

template <class K> bool areAscending(const K* keys, size_t n) {
  constexpr size_t N = kPartitionLanes<K>;
  const Lanes<K, N> d;
  size_t i = 1;
  auto all = hn::FirstN(d, N);
  for (; i + N <= n; i += N) all = hn::And(all, load(d, keys + i - 1) < load(d, keys + i));
  bool isRest = true;
  for (; i < n; ++i) isRest &= keys[i - 1] < keys[i];
  return isRest && hn::AllTrue(d, all);
}

// Inserts pairs one by one; false, with all of them still there, if keys are equal or n moves are not enough.
template <class K> [[gnu::noinline]] bool insertSome(Pairs<K> x, size_t n) {
  size_t moves = n;
  for (size_t i = 1; i < n; ++i) {
    const K key = x.keys[i];
    if (x.keys[i - 1] < key) continue;
    const int32_t number = x.numbers[i];
    size_t at = i;
    for (; at > 0 && x.keys[at - 1] > key && moves > 0; --at, --moves) {
      x.keys[at] = x.keys[at - 1];
      x.numbers[at] = x.numbers[at - 1];
    }
    x.keys[at] = key;
    x.numbers[at] = number;
    if (at > 0 && x.keys[at - 1] >= key) return false;
  }
  return true;
}

}  // namespace detail

// One pair at least. False, with the pairs in another order, if keys are equal or differ in lower bits only.
// buffer: kSortBuffer<int32_t> keys; numbers: room for kPackedPairs.
template <class K> [[gnu::noinline]] bool sortPacked(Pairs<K> x, size_t n, int32_t* buffer, int32_t* numbers) {
  const detail::Packing<K> packing(x.keys, n);
  alignas(64) K keys[kPackedPairs];
  packing.pack(x, n, {keys, numbers});
  Quicksort<int32_t, false>({}, buffer).sort(x.numbers, n, {});
  const uint32_t placeMask = packing.placeMask();
  for (size_t i = 0; i < n; ++i) {
    const size_t place = static_cast<uint32_t>(x.numbers[i]) & placeMask;
    x.keys[i] = keys[place];
    x.numbers[i] = numbers[place];
  }
  return detail::areAscending(x.keys, n) || detail::insertSome(x, n);
}

}  // namespace qvx
