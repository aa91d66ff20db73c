// Keys of few values, sorted by how often each occurs.
#pragma once

#include "sort/keys.h"

namespace qvx {

// Stores `value` `count` times from `out` on, by whole vectors where `end` leaves room; always at least one vector, since whether
// there is an element at all is an unpredictable branch.
template <class T> T* putRun(T* out, const T* end, T value, size_t count) {
  constexpr size_t N = 32 / sizeof(T);
  const Lanes<T, kVectorBytes / sizeof(T)> d;
  constexpr size_t kLanes = kVectorBytes / sizeof(T);
  static_assert(kLanes <= 2 * N);
  T* const past = out + count;
  const auto v = hn::Set(d, value);
  if (static_cast<size_t>(end - past) >= kLanes) {
    store(v, d, out);
    for (out += kLanes; out < past; out += kLanes) store(v, d, out);
    return past;
  }
  std::fill(out, past, value);
  return past;
}

// 16-bit keys that lie close, one or more to each value between their bounds, are halved by value, not by a median, until a
// stretch of values can be counted: 10^5 keys of all 65536 values take 2.0 ns each, by medians 2.5.
inline constexpr size_t kCountedFrom = 4096;
inline constexpr size_t kCountedValues = 4096;

template <class K> bool isDense(size_t n, K least, K most) {
  return sizeof(K) == 2 && n >= kCountedFrom && n >= static_cast<size_t>(most - least);
}
template <class K> bool isCounted(size_t n, K least, K most) {
  return isDense(n, least, most) && static_cast<size_t>(most - least) < kCountedValues;
}

// `memory`: kCountedValues numbers of 32 bits.
inline void sortByCounting(int16_t* x, size_t n, KeyMap<int16_t> in, KeyMap<int16_t> out, int16_t least, int16_t most,
                           void* memory) {
  auto* const counts = static_cast<uint32_t*>(memory);
  const int values = most - least + 1;
  std::fill_n(counts, values, 0U);
  // From four stretches in turn: equal neighbours, of vectors nearly in order, would wait for each other's count in memory; 10^5
  // such keys took twice as long as random ones. An odd distance meets few periods.
  const size_t stretch = (n / 4 - 1) | 1;
  const auto count = [&](size_t i) { ++counts[in.key(x[i]) - least]; };
  for (size_t i = 0; i < stretch; ++i) {
    count(i);
    count(i + stretch);
    count(i + 2 * stretch);
    count(i + 3 * stretch);
  }
  for (size_t i = 4 * stretch; i < n; ++i) count(i);
  int16_t* at = x;
  for (int v = 0; v < values; ++v) at = putRun(at, x + n, out.original(static_cast<int16_t>(least + v)), counts[v]);
}

}  // namespace qvx
