// Sorting is done on signed integers in ascending order. A map brings every element type and direction to them and back: floats
// by their bits, so that -0.0 comes before 0.0 and a NaN has its place, outside the infinity of its sign.
#pragma once

#include <cstdint>
#include <limits>
#include <type_traits>

#include "frame/simd.h"

namespace qvx {

template <size_t kBytes> struct KeyOfBytes;
template <> struct KeyOfBytes<1> { using Type = int8_t; };
template <> struct KeyOfBytes<2> { using Type = int16_t; };
template <> struct KeyOfBytes<4> { using Type = int32_t; };
template <> struct KeyOfBytes<8> { using Type = int64_t; };
template <class T> using Key = typename KeyOfBytes<sizeof(T)>::Type;

enum class Order { kAscending, kDescending };
inline constexpr Order kUp = Order::kAscending;  // where lines of exports have no room
inline constexpr Order kDown = Order::kDescending;

// key = x ^ (fold where x is negative) ^ flip. Neither step moves anything but bits of one key, and each is its own inverse.
template <class K> struct KeyMap {
  K fold = 0;  // negative floats count their magnitude downwards
  K flip = 0;  // the sign of unsigned elements; everything for the descending order

  bool isIdentity() const { return (fold | flip) == 0; }
  K key(K x) const { return static_cast<K>(folded(x) ^ flip); }
  K original(K k) const { return folded(static_cast<K>(k ^ flip)); }

  template <class V> V keys(V x) const { return folded(x) ^ same<V>(flip); }
  template <class V> V originals(V k) const { return folded(k ^ same<V>(flip)); }
  // Of keys: the bits of numbers that are in the order of the keys.
  template <class V> V folded(V x) const { return x ^ (hn::BroadcastSignBit(x) & same<V>(fold)); }

 private:
  K folded(K x) const { return static_cast<K>(x ^ (x < 0 ? fold : 0)); }
};

// What is a key already.
template <class K> struct AsKeys {
  K key(K x) const { return x; }
  K original(K k) const { return k; }
  template <class V> V keys(V x) const { return x; }
};

template <class T> KeyMap<Key<T>> keyMap(Order order) {
  using K = Key<T>;
  using Limits = std::numeric_limits<K>;
  KeyMap<K> map;
  if (std::is_floating_point_v<T>) map.fold = Limits::max();
  if (std::is_unsigned_v<T>) map.flip = Limits::min();
  if (order == Order::kDescending) map.flip = static_cast<K>(~map.flip);
  return map;
}

}  // namespace qvx
