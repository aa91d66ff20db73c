// Extreme values and nearest entries, in the words of their definitions.
#pragma once

#include <qvx/qvxdefs.h>

#include <cmath>
#include <cstddef>
#include <limits>
#include <utility>

namespace reference {

template <class T> struct Found {
  T value;
  int index;
};

// key(element) held until one follows that is greater, or with kLess less.
template <bool kLess, class T, class Key> Found<T> extreme(const T* src, size_t n, Key key) {
  Found<T> held{static_cast<T>(key(src[0])), 0};
  for (size_t i = 1; i < n; ++i) {
    const auto v = key(src[i]);
    if (kLess ? v < held.value : v > held.value) held = {static_cast<T>(v), static_cast<int>(i)};
  }
  return held;
}

// A place found by comparison with the value: 0 for a value that equals nothing.
template <class T> int firstEqual(const T* src, size_t n, T value) {
  for (size_t i = 0; i < n; ++i) {
    if (src[i] == value) return static_cast<int>(i);
  }
  return 0;
}

constexpr auto element = [](auto v) { return v; };
constexpr auto saturatedMagnitude = [](auto v) -> int64_t {
  const int64_t magnitude = v < 0 ? -int64_t{v} : int64_t{v};
  return std::min<int64_t>(magnitude, std::numeric_limits<decltype(v)>::max());
};

inline int nearest(const Qvx16u* table, int tblLen, int v) {
  if (tblLen < 2 || v <= table[0]) return 0;
  if (v >= table[tblLen - 1]) return tblLen - 1;
  int base = 0;
  int span = tblLen - 1;
  while (span > 1) {
    const int half = span / 2;
    if (v < table[base + half]) {
      span = half;
    } else {
      base += half;
      span -= half;
    }
  }
  return v - table[base] > table[base + 1] - v ? base + 1 : base;
}

}  // namespace reference
