// The order in which medians are taken, and the lanes that have it. Integers are compared as they are, and so are floats as long
// as none of them is a NaN or -0.0, which float comparisons do not order: vectors that contain one are compared by keys, as in a
// sort.
#pragma once

#include "frame/reduce.h"
#include "sort/keys.h"

namespace qvx::median {

// How elements T become lanes of type Lane, and back.
template <class T> struct AsTheyAre {
  using Lane = T;
  static T lane(T x) { return x; }
  static T element(T lane) { return lane; }
  template <class V> static V lanes(V v) { return v; }
  template <class V> static V elements(V v) { return v; }
};
template <class T> struct AsKey {
  using Lane = Key<T>;
  static Lane lane(T x) { return map().key(std::bit_cast<Lane>(x)); }
  static T element(Lane lane) { return std::bit_cast<T>(map().original(lane)); }
  template <class V> static auto lanes(V v) { return map().keys(as<Lane>(v)); }
  template <class V> static auto elements(V v) { return as<T>(map().originals(v)); }

 private:
  static KeyMap<Lane> map() { return keyMap<T>(Order::kAscending); }
};

// Whether some float does not compare as its key does.
template <class V> bool needsKeys(V v) { return !hn::AllFalse(TagOf<V>(), areNanOrMinusZero(v)); }
template <class T> bool compareAsTheyAre(const T* x, size_t n) {
  if constexpr (std::is_integral_v<T>) return true;
  else return firstWhere([](auto v) { return areNanOrMinusZero(v); }, n, source(x)) == n;
}

template <class V> V least(V a, V b) {
  if constexpr (sizeof(LaneOf<V>) == 8 && std::is_integral_v<LaneOf<V>>) return hn::IfThenElse(a > b, b, a);
  else return hn::Min(a, b);
}
template <class V> V most(V a, V b) {
  if constexpr (sizeof(LaneOf<V>) == 8 && std::is_integral_v<LaneOf<V>>) return hn::IfThenElse(a > b, a, b);
  else return hn::Max(a, b);
}
template <class V> void order(V& a, V& b) {
  const V low = least(a, b);
  b = most(a, b);
  a = low;
}
template <class V> struct Run {
  V low;
  V mid;
  V high;
};
template <class V> Run<V> ordered(V a, V b, V c) {
  order(a, b);
  order(b, c);
  order(a, b);
  return {a, b, c};
}
template <class V> V middle(V a, V b, V c) { return most(least(a, b), least(most(a, b), c)); }

// The effective mask: odd, and at most long enough to reach from every element to both ends. A longer one only adds as many
// copies of the first element to each window as of the last, which does not move its median.
inline size_t effectiveMask(size_t maskSize, size_t len) { return std::min((maskSize - 1) / 2, len - 1) * 2 + 1; }

}  // namespace qvx::median
