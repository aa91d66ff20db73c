// Real and complex products as operations of the loop engine.
#pragma once

#include "frame/map.h"
#include "frame/simd.h"

namespace qvx {

// A product that its lanes hold.
struct FittingProduct {
  template <class T> static constexpr int kMaxScale = 8 * sizeof(T) - 2;

  template <class V> V operator()(V a, V b) const { return a * b; }

  template <class T, class With> static QvxStatus scaleDown(int s, const With& with) {
    return with([s](auto a, auto b) { return roundedShiftRoomy(a * b, s); });
  }
};

// Of 16-bit integers in lanes of 32 bits with upper halves of 0: the sum of a pair's products is then the product, by one
// instruction, where a product of 32-bit lanes takes two in AVX2 and six in SSSE3.
struct ProductOf16 : FittingProduct {
  template <class V> static V of(V a, V b) { return pairProducts(as<int16_t>(a), as<int16_t>(b)); }
  template <class V> V operator()(V a, V b) const { return of(a, b); }

  template <class T, class With> static QvxStatus scaleDown(int s, const With& with) {
    return with([s](auto a, auto b) { return roundedShiftRoomy(of(a, b), s); });
  }
};

// A real product: exact in twice the bits of its operands, then saturated or shifted back.
struct Product {
  // The product of 16-bit operands of both kinds reaches 2^31 - 2^15, so 31 places can still leave a 1.
  template <class T>
  static constexpr int kMaxScale = 8 * int{sizeof(T)} * 2 - (std::is_same_v<T, int16_t> ? 1
                                                             : std::is_signed_v<T>      ? 2
                                                                                        : 0);

  template <class A, class B> B operator()(A a, B b) const {
    using T = LaneOf<B>;
    if constexpr (std::is_floating_point_v<T>) {
      return a * b;
    } else if constexpr (sizeof(T) == 1) {
      return narrow8(a, b, [](auto wide) { return wide; });
    } else if constexpr (std::is_same_v<T, uint16_t>) {
      return (a * b) | hn::VecFromMask(TagOf<B>(), hn::MulHigh(a, b) != hn::Zero(TagOf<B>()));
    } else if constexpr (sizeof(T) == 2) {
      return narrow<T>(joined(splitProduct(a, b)));
    } else {
      return narrow(wideProduct(a, b));
    }
  }

  template <class T, class With> static QvxStatus scaleDown(int s, const With& with) {
    if constexpr (sizeof(T) == 1) {
      return with([s](auto a, auto b) { return narrow8(a, b, [s](auto wide) { return roundedShift(wide, s); }); });
    } else if constexpr (sizeof(T) == 4) {
      return with(
          [s](auto a, auto b) { return narrow(each(wideProduct(a, b), [s](auto wide) { return roundedShiftRoomy(wide, s); })); });
    } else if (s < 16) {
      return with([s](auto a, auto b) { return ShiftLow<false>{s}(splitProduct(a, b)); });
    } else if (s == 16) {
      return with([s](auto a, auto b) { return ShiftLow<true>{s}(splitProduct(a, b)); });
    } else {
      return with([s](auto a, auto b) { return ShiftHigh{s}(splitProduct(a, b)); });
    }
  }

 private:
  // The pack to 8 bits takes its lanes as signed, so they are clamped first.
  template <class V, class F> static V narrow8(V a, V b, F f) {
    const auto wideA = widen<uint16_t>(a);
    const auto wideB = widen<uint16_t>(b);
    const auto clamped = [f](auto x, auto y) { return hn::Min(f(x * y), same<decltype(x)>(255)); };
    return narrow<uint8_t>(Pair<decltype(wideA.lo)>{clamped(wideA.lo, wideB.lo), clamped(wideA.hi, wideB.hi)});
  }
};

// a[0] * b[0] - a[1] * b[1] and so on, of 16-bit integers in lanes of 32 bits: the real parts of complex products. -b[1] may not
// fit 16 bits, ~b[1] = -b[1] - 1 does: the product with it lacks one a[1].
template <class V> auto differencesOfProducts(V a, V b) {
  const V negated = b ^ hn::OddEven(same<V>(-1), same<V>(0));
  return pairProducts(a, negated) + hn::ShiftRight<16>(as<int32_t>(a));
}

// Both parts of products of complex integers through one function.
template <class V, class F> auto each(Complex<V> v, F f) { return Complex<decltype(f(v.re))>{f(v.re), f(v.im)}; }

// (re1*re2 - im1*im2, re1*im2 + im1*re2); one integer value, the square of the most negative number, does not fit twice the
// bits: it is taken as the largest that does, which saturates and rounds alike.
struct ComplexProduct {
  template <class T> static constexpr int kMaxScale = 16 * sizeof(T) - 1;

  template <class V> V operator()(V a, V b) const {
    using T = LaneOf<V>;
    if constexpr (std::is_floating_point_v<T>) {
      // Arranged so that all of a constant b is outside the loop, and a variable one twice as it is loaded: one shuffle is left.
      return minusPlus(a * evensTwice(b), swapped(a) * oddsTwice(b));
    } else {
      return interleaved<T>(wide(a, b));
    }
  }

  template <class T, class With> static QvxStatus scaleDown(int s, const With& with) {
    return with([s](auto a, auto b) { return interleaved<T>(each(wide(a, b), [s](auto v) { return roundedShift(v, s); })); });
  }

 private:
  template <class V> static auto wide(V a, V b) {
    using T = LaneOf<V>;
    using Wide = std::conditional_t<sizeof(T) == 2, int32_t, int64_t>;
    using W = Vec<hn::Repartition<Wide, TagOf<V>>>;
    const auto noOverflow = [](W v) { return v + hn::VecFromMask(TagOf<W>(), v == same<W>(std::numeric_limits<Wide>::min())); };
    if constexpr (sizeof(T) == 2) {
      return Complex<W>{differencesOfProducts(a, b), noOverflow(pairProducts(a, swapped(b)))};
    } else {
      const auto straight = wideProduct(a, b);
      const auto crossed = wideProduct(a, swapped(b));
      return Complex<W>{straight.even - straight.odd, noOverflow(crossed.even + crossed.odd)};
    }
  }

  template <class T, class V> static auto interleaved(Complex<V> v) {
    if constexpr (sizeof(T) == 4) {
      return narrow(EvenOdd<V>{v.re, v.im});
    } else {
      const TagOf<V> d;
      return narrow<T>(Pair<V>{hn::InterleaveLower(d, v.re, v.im), hn::InterleaveUpper(d, v.re, v.im)});
    }
  }
};

}  // namespace qvx
