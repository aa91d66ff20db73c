// The magnitudes of complex floats beside a level, in 64-bit lanes, of which both parts of an element hold the same.
#pragma once

#include <limits>

#include "frame/map.h"

namespace qvx {

template <class V> auto inDoubles(V x) { return convertLanes<double>(x); }
template <class V, class W> V fromDoubles(W x) { return convertLanes<LaneOf<V>>(x); }

// For the real part in even lanes, for the imaginary part in odd ones.
template <class W> W byPart(double re, double im) {
  const TagOf<W> d;
  return hn::OddEven(hn::Set(d, im), hn::Set(d, re));
}

template <class W> W squareOf(W x) {
  const W squares = x * x;
  return squares + hn::Reverse2(TagOf<W>(), squares);
}

// An element x as value / unit. The unit is a power of two: 1 for 32-bit elements, whose squares fit a double wherever they lie;
// for 64-bit ones that which brings the larger part to 1 to 2, or as near to it as a normal number does.
template <class W> struct Measured {
  W value;
  W unit;
  W square;  // |value|^2

  auto isBelow(double level) const { return square < squared(level); }
  auto isAbove(double level) const { return square > squared(level); }
  auto isZero() const { return square == same<W>(0); }
  auto isInfinite() const { return square == same<W>(std::numeric_limits<double>::infinity()); }

 private:
  W squared(double level) const {
    const W scaled = same<W>(level) * unit;
    return scaled * scaled;
  }
};

template <class V> auto measured(V x) {
  const auto value = inDoubles(x);
  using W = std::remove_const_t<decltype(value)>;
  if constexpr (std::is_same_v<LaneOf<V>, float>) {
    return Measured<W>{value, same<W>(1), squareOf(value)};
  } else {
    const W part = hn::Abs(value);
    // The limit keeps the unit of infinity a positive number.
    const W larger = hn::Min(hn::Max(part, hn::Reverse2(TagOf<W>(), part)), same<W>(0x1p1022));
    const auto exponent = as<uint64_t>(larger) & same<decltype(as<uint64_t>(larger))>(0x7FF0000000000000);
    const W unit = as<double>(same<std::remove_const_t<decltype(exponent)>>(0x7FE0000000000000) - exponent);
    const W scaled = value * unit;
    return Measured<W>{scaled, unit, squareOf(scaled)};
  }
}

template <class M, class W> bool isAny(M mask, W) { return !hn::AllFalse(TagOf<W>(), mask); }

// The lanes of x where a mask of doubles is set, replaced.
template <class V, class M> V replaced(M mask, V yes, V x) {
  const hn::Rebind<double, TagOf<V>> wide;
  return hn::IfThenElse(maskAs(TagOf<V>(), wide, mask), yes, x);
}

}  // namespace qvx
