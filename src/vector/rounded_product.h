// 32-bit products by way of 64-bit floats: rounded to 53 bits once before they are rounded to an integer.
#pragma once

#include "frame/map.h"
#include "frame/power.h"
#include "frame/rounding.h"

namespace qvx {

// (a * 2^-scaleFactor) * b [+ c * 2^-scaleFactor] in Qvx64f, clamped, nearest even.
struct ScaledFloat {
  int scaleFactor;

  template <class Op, class Dst, class... Src> QvxStatus run(Op op, Dst dst, size_t n, Src... src) const {
    // Beyond these every result is 0 or an extreme already.
    const auto factor = powerOfTwo<double>(-std::clamp(scaleFactor, -64, 64));
    const RoundingScope nearest(Rounding::kNearest);
    const auto inFloat = [op, factor](auto... x) { return op(factor, x...); };
    return loop([inFloat](auto... v) { return inDoubles(inFloat, v...); }, dst, n, src...);
  }

 private:
  // Half a vector of 32-bit integers fills one of doubles.
  template <class F, class V, class... More> static V inDoubles(F f, V first, More... more) {
    const TagOf<V> d;
    const hn::Half<TagOf<V>> half;
    const Lanes<double, kLanesOf<V> / 2> wide;
    using W = Vec<Lanes<double, kLanesOf<V> / 2>>;
    const auto toInts = [](W x) { return toInt(hn::Max(hn::Min(x, same<W>(2147483647.0)), same<W>(-2147483648.0))); };
    const auto upper = [&](V v) { return hn::PromoteTo(wide, hn::UpperHalf(half, v)); };
    const auto lower = [&](V v) { return hn::PromoteTo(wide, hn::LowerHalf(half, v)); };
    return hn::Combine(d, toInts(f(upper(first), upper(more)...)), toInts(f(lower(first), lower(more)...)));
  }
};

struct RoundedProduct {
  template <class V> V operator()(double factor, V a, V b) const { return a * same<V>(factor) * b; }
  template <class V> V operator()(double factor, V a, V b, V c) const { return a * same<V>(factor) * b + c * same<V>(factor); }
};

}  // namespace qvx
