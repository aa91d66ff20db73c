// Keys sorted by two threads: partitioned once by a pivot, each side is sorted by whoever comes first.
#pragma once

#include "frame/team.h"
#include "sort/radix.h"

namespace qvx {

// Keys from which two threads were measured to be faster.
inline constexpr TeamRule kSortTeam = {16384};

// The median of many keys: the larger side decides how long it takes.
template <class K> [[gnu::noinline]] K evenPivotOf(const K* x, size_t n, KeyMap<K> in) {
  constexpr size_t kCount = 255;
  K sample[kCount];
  const size_t stretch = n / kCount;
  for (size_t i = 0; i < kCount; ++i) sample[i] = in.key(x[i * stretch + i * i % stretch]);
  quicksort<K>(sample, kCount, {}, {});
  return sample[kCount / 2];
}

template <class K> [[gnu::noinline]] size_t halve(K* x, size_t n, KeyMap<K> in) {
  const K pivot = evenPivotOf(x, n, in);
  alignas(64) K buffer[kSortBuffer<K>];
  return partition(x, n, pivot, in, buffer);
}

// room: for n keys.
template <class K> void sortInTeam(K* x, K* room, size_t n, KeyMap<K> map) {
  if (isSortedByReversal(x, n, map)) return;
  if (n < kSortTeam.worthIt || kSortTeam.threads() < 2) return sortThrough(x, room, n, map, map);
  const size_t below = halve(x, n, map);
  inParts(2, [=](size_t part) {
    if (part == 0) sortThrough<K>(x, room, below, {}, map);
    else sortThrough<K>(x + below, room + below, n - below, {}, map);
    return qvxStatOk;
  });
}

}  // namespace qvx
