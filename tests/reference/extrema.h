// Extreme values and nearest entries, in the words of their definitions.
#pragma once

#include <qvx/qvxdefs.h>

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <limits>
#include <utility>
#include <vector>

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

// The entry of a sorted table that is nearest to v; of two as near, the lower.
inline Qvx16u nearest(const std::vector<Qvx16u>& table, int v) {
  const auto above = std::lower_bound(table.begin(), table.end(), v);
  if (above == table.begin()) return *above;
  if (above == table.end()) return table.back();
  return v - above[-1] > *above - v ? *above : above[-1];
}

}  // namespace reference
