// Sum and difference as operations of the loop engine.
#pragma once

#include "frame/map.h"

namespace qvx {

// There are no shifts of 8-bit lanes, so these are widened to 16 bits, which hold the sum; all others halve.
template <class Exact> struct ScaledSum {
  template <class T, class With> static QvxStatus scaleDown(int s, const With& with) {
    if constexpr (sizeof(T) == 1) {
      return with([s](auto a, auto b) {
        const auto wideA = widen<int16_t>(a);
        const auto wideB = widen<int16_t>(b);
        const auto half = [s](auto x, auto y) { return roundedShift(Exact::wide(x, y), s); };
        return narrow<T>(Pair<decltype(wideA.lo)>{half(wideA.lo, wideB.lo), half(wideA.hi, wideB.hi)});
      });
    } else if (s == 1) {
      return with([](auto a, auto b) { return ShiftOne()(Exact::halved(a, b)); });
    } else {
      return with([s](auto a, auto b) { return ShiftMore{s}(Exact::halved(a, b)); });
    }
  }
};

struct Sum : ScaledSum<Sum> {
  template <class T> static constexpr int kMaxScale = 8 * sizeof(T) + std::is_unsigned_v<T>;

  template <class V> V operator()(V a, V b) const { return saturatedAdd(a, b); }
  template <class V> static V wide(V a, V b) { return a + b; }
  template <class V> static Halved<V> halved(V a, V b) { return halvedSum(a, b); }
};

// The second operand minus the first.
struct Difference : ScaledSum<Difference> {
  template <class T> static constexpr int kMaxScale = 8 * sizeof(T);

  template <class V> V operator()(V a, V b) const { return saturatedSub(b, a); }
  template <class V> static V wide(V a, V b) { return b - a; }
  template <class V> static Halved<V> halved(V a, V b) { return halvedDifference(b, a); }

  template <class T, class With> static QvxStatus scaleDown(int s, const With& with) {
    if constexpr (std::is_same_v<T, uint16_t>) {
      // A negative difference gives 0 at any scale, and any other fits a lane.
      return with([s](auto a, auto b) { return roundedShift(hn::SaturatedSub(b, a), s); });
    } else {
      return ScaledSum::template scaleDown<T>(s, with);
    }
  }
};

// Whether a constant is 0, which is rare: laid out for the others, for which a taken jump would cost 0.3 ns.
template <class T> bool isZero(T val) { return __builtin_expect(val == 0, false); }

}  // namespace qvx
