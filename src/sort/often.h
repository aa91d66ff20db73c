// Keys most of which have one of a few values: these are counted, the others sorted, and all put together.
#pragma once

#include <algorithm>

#include "frame/map.h"
#include "frame/unroll.h"
#include "sort/keys.h"

namespace qvx {

inline constexpr size_t kMostOften = 8;

// Values in ascending order, and how many keys have them.
template <class K> struct Often {
  K value[kMostOften];
  uint32_t keys[kMostOften] = {};
  uint32_t count = 0;  // of values
};

// Those that a sorted sample has more than once, if they are few.
template <class K> [[gnu::noinline]] Often<K> oftenIn(const K* sample, size_t n) {
  Often<K> often;
  for (size_t i = 0, next; i < n; i = next) {
    for (next = i + 1; next < n && sample[next] == sample[i];) ++next;
    if (next == i + 1) continue;
    if (often.count == kMostOften) return {};
    often.value[often.count++] = sample[i];
  }
  return often;
}

namespace detail {

// Of whole vectors, no more than a lane can count. Where there are fewer values than kValues, the last one stands for the rest.
template <size_t kValues, class K> size_t countedOut(K* x, size_t n, K* others, KeyMap<K> in, Often<K>& often) {
  constexpr size_t N = kVectorBytes / sizeof(K);
  const Lanes<K, N> d;
  using V = Vec<Lanes<K, N>>;
  V value[kValues], counts[kValues];
  unrolled<kValues>([&](auto j) __attribute__((always_inline)) {
    value[j] = same<V>(often.value[std::min<uint32_t>(j, often.count - 1)]);
    counts[j] = hn::Zero(d);
  });
  K* const from = others;
  for (size_t i = 0; i < n; i += N) {
    const V v = in.keys(load(d, x + i));
    auto isOften = v == value[0];
    unrolled<kValues>([&](auto j) __attribute__((always_inline)) {
      const auto isEqual = v == value[j];
      isOften = hn::Or(isOften, isEqual);
      counts[j] =
          kHasMasks ? hn::IfThenElse(isEqual, counts[j] + same<V>(1), counts[j]) : counts[j] - hn::VecFromMask(d, isEqual);
    });
    if (hn::AllTrue(d, isOften)) continue;
    constexpr size_t kPart = kPartitionLanes<K>;
    K rest[kPart];
    if constexpr (kPart == N) {
      others += partitionLanesUp(v, hn::Not(isOften), others, rest);
    } else {
      const Lanes<K, kPart> part;
      K keys[N];
      store(v, d, keys);
      const uint64_t bits = ~maskBits(d, isOften);
      for (size_t k = 0; k < N; k += kPart) {
        const auto isOther = hn::LoadMaskBits(part, reinterpret_cast<const uint8_t*>(&bits) + k / 8);
        others += partitionLanesUp(load(part, keys + k), isOther, others, rest);
      }
    }
  }
  unrolled<kValues>([&](auto j) __attribute__((always_inline)) {
    if (j >= often.count) return;
    std::make_unsigned_t<K> all[N];
    store(counts[j], d, reinterpret_cast<K*>(all));
    for (const auto count : all) often.keys[j] += static_cast<uint32_t>(count);
  });
  return static_cast<size_t>(others - from);
}

}  // namespace detail

// Counts the keys of x, as `in` maps it, that have one of the values; moves the others to its front, as keys, and returns their
// number.
template <class K> size_t countOut(K* x, size_t n, KeyMap<K> in, Often<K>& often) {
  constexpr size_t N = kVectorBytes / sizeof(K);
  constexpr size_t kSlice = N << 14;
  size_t others = 0, i = 0;
  for (const size_t whole = n / N * N; i < whole; i += kSlice) {
    const size_t slice = std::min(kSlice, whole - i);
    others += often.count <= kMostOften / 2 ? detail::countedOut<kMostOften / 2>(x + i, slice, x + others, in, often)
                                            : detail::countedOut<kMostOften>(x + i, slice, x + others, in, often);
  }
  for (i = n / N * N; i < n; ++i) {
    const K key = in.key(x[i]);
    const size_t j = static_cast<size_t>(std::find(often.value, often.value + often.count, key) - often.value);
    if (j < often.count) ++often.keys[j];
    else x[others++] = key;
  }
  return others;
}

template <class K> void fillRun(K* x, size_t n, K value) {
  if (n > 0) loop([](auto v) { return v; }, destination(x), n, Constant<K>{value});
}

// What countOut took comes back after the others, as keys.
template <class K> void putBack(K* x, size_t others, const Often<K>& often) {
  x += others;
  for (size_t j = 0; j < often.count; x += often.keys[j++]) fillRun(x, often.keys[j], often.value[j]);
}

// `others` elements in order at the front of x come to stand between those that were counted.
template <class K> void mergeRuns(K* x, size_t n, size_t others, const Often<K>& often, KeyMap<K> out) {
  K* end = x + n;
  for (size_t j = often.count; j-- > 0;) {
    const K value = often.value[j];
    K* const above = std::partition_point(x, x + others, [=](K element) { return out.key(element) < value; });
    const size_t moved = static_cast<size_t>(x + others - above);
    end -= moved;
    std::memmove(end, above, moved * sizeof(K));
    others -= moved;
    end -= often.keys[j];
    fillRun(end, often.keys[j], out.original(value));
  }
}

}  // namespace qvx
