// The magnitudes of complex floats, to be compared with a level: in 64-bit lanes, one for each element.
#pragma once

#include <limits>

#include "frame/complex.h"

namespace qvx {

template <class V> auto inDoubles(Pair<V> x) {
  return each(x, [](V part) { return convertLanes<double>(part); });
}
template <class V, class W> Pair<V> fromDoubles(Pair<W> x) {
  return each(x, [](W part) { return convertLanes<LaneOf<V>>(part); });
}

// The parts of interleaved elements, of which there are half as many as lanes.
template <class V> auto partsOf(V x) {
  const TagOf<V> d;
  const hn::Half<TagOf<V>> half;
  return Pair<Vec<hn::Half<TagOf<V>>>>{hn::LowerHalf(half, hn::ConcatEven(d, x, x)), hn::LowerHalf(half, hn::ConcatOdd(d, x, x))};
}

template <class W> W squareOf(Pair<W> x) { return x.lo * x.lo + x.hi * x.hi; }

// An element x as value / unit. The unit is a power of two: 1 for 32-bit elements, whose squares fit a double wherever they lie;
// for 64-bit ones that which brings the larger part to 1 to 2, or as near to it as a normal number does.
template <class W> struct Measured {
  Pair<W> value;
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

// A unit below 1 may cost a subnormal part its last bits: 64-bit elements whose larger part is 2 to `whole` have the unit 1.
template <class V> auto measured(Pair<V> x, double whole = 0) {
  const auto value = inDoubles(x);
  using W = std::remove_const_t<decltype(value.lo)>;
  if constexpr (std::is_same_v<LaneOf<V>, float>) {
    // The squares of single parts are exact: fused or not, the sum is rounded once. A Pair copied as a whole passes through
    // memory in AVX2 (4096 reciprocals: 8.2 us, not 2.4).
    return Measured<W>{
        {value.lo, value.hi}, same<W>(1), kFuses ? hn::MulAdd(value.lo, value.lo, value.hi * value.hi) : squareOf(value)};
  } else {
    // The limit keeps the unit of infinity a positive number.
    const W larger = hn::Min(hn::Max(hn::Abs(value.lo), hn::Abs(value.hi)), same<W>(0x1p1022));
    const auto exponent = as<uint64_t>(larger) & same<decltype(as<uint64_t>(larger))>(0x7FF0000000000000);
    const W nearOne = as<double>(same<std::remove_const_t<decltype(exponent)>>(0x7FE0000000000000) - exponent);
    const W unit = hn::IfThenElse(larger < same<W>(whole), hn::Max(nearOne, same<W>(1)), nearOne);
    const Pair<W> scaled = {value.lo * unit, value.hi * unit};
    return Measured<W>{scaled, unit, squareOf(scaled)};
  }
}

// numerator / sqrt(square), off by 2^-40.6 of it at most; NaN where the square is 0 or infinite. The estimate of 14 bits gets a
// step of third order.
template <class Arithmetic, class W> W nearQuotientByRoot(W numerator, W square) {
  const W near = nearReciprocalRoot(square);
  const W error = Arithmetic::negMulAdd(Arithmetic::product(square, near), near, same<W>(1));
  const W correction = Arithmetic::product(error, Arithmetic::mulAdd(error, same<W>(0.375), same<W>(0.5)));
  const W quotient = Arithmetic::product(numerator, near);
  return Arithmetic::mulAdd(quotient, correction, quotient);
}

template <class M, class W> bool isAny(M mask, W) { return !hn::AllFalse(TagOf<W>(), mask); }

// The elements of x where a mask of doubles is set, replaced.
template <class V, class M> Pair<V> replaced(M mask, Pair<V> yes, Pair<V> x) {
  const hn::Rebind<double, TagOf<V>> wide;
  const auto narrow = maskAs(TagOf<V>(), wide, mask);
  return {hn::IfThenElse(narrow, yes.lo, x.lo), hn::IfThenElse(narrow, yes.hi, x.hi)};
}

}  // namespace qvx
