// Medians of long masks, at a cost that hardly depends on the mask: of bytes by a histogram of the window, of other types by the
// ranks of all elements in a stretch of the source. A window is then a set of ranks, a bit each, and its median moves from one
// set bit to another.
#pragma once

#include "frame/record.h"
#include "median/order.h"
#include "sort/pairs.h"
#include "sort/sort_keys.h"

namespace qvx::median {

// Copies the source as keys, extended by its first and its last element, so that windows do not depend on what is stored in
// place.
template <class As, class T> void continued(const T* src, size_t len, size_t reach, typename As::Lane* out) {
  std::fill_n(out, reach, As::lane(src[0]));
  for (size_t i = 0; i < len; ++i) out[reach + i] = As::lane(src[i]);
  std::fill_n(out + reach + len, reach, As::lane(src[len - 1]));
}

inline QvxStatus filterByHistogram(const Qvx8u* src, Qvx8u* dst, size_t len, size_t mask) {
  const size_t reach = mask / 2;
  const Block memory(static_cast<int64_t>(len + 2 * reach));
  if (!memory) return qvxStatNoMem;
  Qvx8u* const x = memory.get();
  continued<AsTheyAre<Qvx8u>>(src, len, reach, x);
  uint32_t count[256] = {};
  for (size_t i = 0; i < mask; ++i) ++count[x[i]];
  size_t median = 0;
  size_t below = 0;  // elements of the window that are less than `median`
  for (size_t n = 0;; ++n) {
    while (below > reach) below -= count[--median];
    while (below + count[median] <= reach) below += count[median++];
    dst[n] = static_cast<Qvx8u>(median);
    if (n + 1 == len) return qvxStatOk;
    const size_t old = x[n];
    const size_t fresh = x[n + mask];
    --count[old];
    ++count[fresh];
    below += static_cast<size_t>(fresh < median) - static_cast<size_t>(old < median);
  }
}

// A set of numbers that are close to each other.
class RankSet {
 public:
  explicit RankSet(uint64_t* words) : words_(words) {}

  void insert(size_t rank) { words_[rank / 64] |= uint64_t{1} << rank % 64; }
  void erase(size_t rank) { words_[rank / 64] &= ~(uint64_t{1} << rank % 64); }
  // from(): the first member from `rank` on. before(): the last one before it. There must be one.
  size_t from(size_t rank) const {
    size_t at = rank / 64;
    uint64_t word = words_[at] & (~uint64_t{0} << rank % 64);
    while (word == 0) word = words_[++at];
    return at * 64 + static_cast<size_t>(std::countr_zero(word));
  }
  size_t before(size_t rank) const {
    size_t at = rank / 64;
    uint64_t word = words_[at] & ((uint64_t{1} << rank % 64) - 1);
    while (word == 0) word = words_[--at];
    return at * 64 + 63 - static_cast<size_t>(std::countl_zero(word));
  }

 private:
  uint64_t* words_;
};

// ranks[i] = the place of x[i] in sorted order, no two alike; sorted: the elements in order.
inline void rank(const int32_t* x, size_t n, int32_t* sorted, int32_t* numbers, int32_t* ranks) {
  std::copy_n(x, n, sorted);
  fillNumbers(numbers, n);
  sortPairs(sorted, numbers, n);
  for (size_t i = 0; i < n; ++i) ranks[numbers[i]] = static_cast<int32_t>(i);
}
// 64 bits: by a search for each element; equal elements get successive places.
inline void rank(const int64_t* x, size_t n, int64_t* sorted, int32_t* numbers, int32_t* ranks) {
  std::copy_n(x, n, sorted);
  sortKeys(sorted, n, {});
  std::fill_n(numbers, n, 0);
  for (size_t i = 0; i < n; ++i) {
    const auto first = static_cast<size_t>(std::lower_bound(sorted, sorted + n, x[i]) - sorted);
    ranks[i] = static_cast<int32_t>(first) + numbers[first]++;
  }
}

// Keys of 32 or 64 bits.
template <class T> struct AsLongKey : AsKey<T> {};
template <> struct AsLongKey<Qvx32s> : AsTheyAre<Qvx32s> {};
template <> struct AsLongKey<Qvx16s> {
  using Lane = int32_t;
  static Lane lane(Qvx16s x) { return x; }
  static Qvx16s element(Lane lane) { return static_cast<Qvx16s>(lane); }
};

template <class T> QvxStatus filterByRanks(const T* src, T* dst, size_t len, size_t mask) {
  using As = AsLongKey<T>;
  using K = typename As::Lane;
  const size_t reach = mask / 2;
  const size_t stretch = std::min(len, std::max<size_t>(4096, 4 * mask));  // outputs from one sort
  const auto most = static_cast<int64_t>(stretch + 2 * reach);
  const auto all = static_cast<int64_t>(len + 2 * reach);
  const Block memory((all + most) * int64_t{sizeof(K)} + 2 * most * int64_t{sizeof(int32_t)} + most / 8 + 6 * Carver::kLine);
  if (!memory) return qvxStatNoMem;
  Carver carver(memory.get(), Carver::kLine);
  K* const x = carver.takeLines<K>(all);
  K* const sorted = carver.takeLines<K>(most);
  auto* const numbers = carver.takeLines<int32_t>(most);
  auto* const ranks = carver.takeLines<int32_t>(most);
  auto* const words = carver.takeLines<uint64_t>(most / 64 + 1);
  continued<As>(src, len, reach, x);
  for (size_t at = 0; at < len; at += stretch) {
    const size_t outputs = std::min(stretch, len - at);
    const size_t n = outputs + 2 * reach;
    rank(x + at, n, sorted, numbers, ranks);
    std::fill_n(words, n / 64 + 1, uint64_t{0});
    RankSet window(words);
    for (size_t i = 0; i < mask; ++i) window.insert(static_cast<size_t>(ranks[i]));
    size_t median = 0;
    size_t below = 0;  // members that are less than `median`
    for (size_t i = 0;; ++i) {
      for (; below > reach; --below) median = window.before(median);
      median = window.from(median);
      for (; below < reach; ++below) median = window.from(median + 1);
      dst[at + i] = As::element(sorted[median]);
      if (i + 1 == outputs) break;
      const auto old = static_cast<size_t>(ranks[i]);
      const auto fresh = static_cast<size_t>(ranks[i + mask]);
      window.erase(old);
      window.insert(fresh);
      below += static_cast<size_t>(fresh < median) - static_cast<size_t>(old < median);
    }
  }
  return qvxStatOk;
}

}  // namespace qvx::median
