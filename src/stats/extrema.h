// Extreme values, for the plain forms and those with an index.
//
// All follow the scan with a strict comparison: the first element is held, and replaced only by one that is greater (less). So a
// NaN counts only as the first element, and of equal zeros the first gives the sign. Lanes that all start from the first element
// do the same at no cost.
#pragma once

#include <limits>

#include "frame/reduce.h"

namespace qvx {

struct Greatest {
  template <class V> static V of(V v, V held) { return greater(v, held); }
  template <class T> static bool replaces(T v, T held) { return v > held; }
};
struct Least {
  template <class V> static V of(V v, V held) { return less(v, held); }
  template <class T> static bool replaces(T v, T held) { return v < held; }
};

// What is compared: elements, or their magnitudes. The magnitude of the most negative integer is one more than its type can
// hold: unsigned lanes hold it, results do not.
struct Element {
  template <class V> static V of(V v) { return v; }
  template <class T> static T result(T lane) { return lane; }
  template <class V> static auto equals(V v, LaneOf<V> value) { return v == same<V>(value); }
};
struct Magnitude {
  template <class T> static constexpr auto kMost = static_cast<std::make_unsigned_t<T>>(std::numeric_limits<T>::max());

  template <class V> static auto of(V v) { return as<std::make_unsigned_t<LaneOf<V>>>(hn::Abs(v)); }
  template <class U> static auto result(U lane) {
    using T = std::make_signed_t<U>;
    return static_cast<T>(std::min(lane, kMost<T>));
  }
  template <class V> static auto equals(V v, LaneOf<V> value) {
    return as<LaneOf<V>>(hn::Min(of(v), same<decltype(of(v))>(kMost<LaneOf<V>>))) == same<V>(value);
  }
};

template <class Order, class V> LaneOf<V> ofLanes(V a) {
  return hn::GetLane(folded<1>(a, [](auto v, auto held) { return Order::of(v, held); }));
}

template <class Order, class Key, class T> struct Extreme : Reduction {
  static constexpr bool kRepeats = true;
  const T* first;

  explicit Extreme(const T* p) : first(p) {}
  template <class V> auto start(V v) const { return Order::of(Key::of(v), Key::of(same<V>(*first))); }
  template <class A, class V> A add(A a, V v) const { return Order::of(Key::of(v), a); }
  template <class A> static A join(A a, A b) { return Order::of(a, b); }
  template <class A> T total(A a) const { return Key::result(ofLanes<Order>(a)); }
};

template <class T> struct Range {
  T least;
  T greatest;
};

template <class T> struct Extremes : Reduction {
  static constexpr bool kRepeats = true;
  const T* first;

  explicit Extremes(const T* p) : first(p) {}
  template <class V> Pair<V> start(V v) const { return add(Pair<V>{same<V>(*first), same<V>(*first)}, v); }
  template <class V> Pair<V> add(Pair<V> a, V v) const { return {less(v, a.lo), greater(v, a.hi)}; }
  template <class V> static Pair<V> join(Pair<V> a, Pair<V> b) { return {less(a.lo, b.lo), greater(a.hi, b.hi)}; }
  template <class V> Range<T> total(Pair<V> a) const { return {ofLanes<Least>(a.lo), ofLanes<Greatest>(a.hi)}; }
};

// The reductions over n elements, each lane from *first.
template <class Order, class Key, class T> T extreme(const T* first, const T* src, size_t n) {
  return reduce(Extreme<Order, Key, T>(first), n, PaddedWith{first, src});
}
template <class T> Range<T> extremes(const T* first, const T* src, size_t n) {
  return reduce(Extremes<T>(first), n, PaddedWith{first, src});
}

// The first element with this key, or n.
template <class Key, class T> size_t firstEqual(T value, const T* src, size_t n) {
  return firstWhere([=](auto v) { return Key::equals(v, value); }, n, source(src));
}

}  // namespace qvx
