// Sums, differences and products for the plain loops: as they are, saturated, or scaled by 2^-s.
#pragma once

#include <bit>
#include <cmath>

#include "peers/plain_loop.h"

namespace plain {

// The traits of an operation. Exact<D, E...> holds its integer result; kFull: it has no bit to spare, so nothing can be added.
struct Sum {
  static constexpr bool kAccumulates = false;
  template <class D, class... E> using Exact = Int<kTwice<D>>;
  template <class D, class... E> static constexpr bool kFull = false;
  template <class V> V operator()(V a, V b) const { return a + b; }
};

// The second operand minus the first.
struct Difference : Sum {
  template <class V> V operator()(V a, V b) const { return b - a; }
};
struct FirstMinusSecond : Sum {
  template <class V> V operator()(V a, V b) const { return a - b; }
};

struct SumInto : Sum {
  static constexpr bool kAccumulates = true;
};

struct Product {
  static constexpr bool kAccumulates = false;
  // A complex product of integers has one bit more than two elements, a product of which one is unsigned fills 32 bits.
  template <class D, class A, class B> static constexpr bool kFull = kUnsigned<A>&& kBytes<A> == 2;
  template <class D, class A, class B>
  using Exact = std::conditional_t<
      kIsComplex<A> && kIsComplex<B>, Int<std::min(16, 2 * kTwice<D>)>,
      std::conditional_t<kFull<D, A, B> && kUnsigned<D>, UInt<4>, Int<std::max<int>(4, kBytes<A> + kBytes<B>)>>>;
  template <class V, class W> W operator()(V a, W b) const { return a * b; }
};

// third + first * second
struct ProductSum {
  static constexpr bool kAccumulates = true;
  template <class D, class... E> static constexpr bool kFull = false;
  template <class D, class... E> using Exact = Int<kTwice<D>>;
  template <class V> V operator()(V a, V b, V c) const { return c + a * b; }
};

template <class Op, class D, class... E> struct ResultOf { using Type = typename Op::template Exact<D, E...>; };
template <class Op, class D, class... E>
requires std::is_floating_point_v<Part<D>>
struct ResultOf<Op, D, E...> {
  using Type = Part<D>;
};

template <class Op> struct Elementwise {
  static constexpr bool kAccumulates = Op::kAccumulates;  // the destination is the last operand
};

// Floats as they are, integers saturated.
template <class Op> struct Direct : Elementwise<Op> {
  template <class D, class... E, class L> static void dispatch(const L& loop) {
    using W = typename ResultOf<Op, D, E...>::Type;
    loop([](E... e) { return each<D>(Op()(lift<W>(e)...), [](W v) { return saturate<Part<D>>(v); }); });
  }
};

// Times 2^-s, nearest even, saturated.
template <class Op> struct Scaled : Elementwise<Op> {
  template <class D, class... E, class L> static void dispatch(const L& loop, int s) {
    using W = typename Op::template Exact<D, E...>;
    using T = Part<D>;
    constexpr int kBits = 8 * sizeof(W);
    const auto with = [&loop](auto fit) { loop([fit](E... e) { return each<D>(Op()(lift<W>(e)...), fit); }); };
    if (s == 0) {
      with([](W v) { return saturate<T>(v); });
    } else if (s < 0) {
      using Up = std::conditional_t<std::is_unsigned_v<T>, UInt<kTwice<T>>, Int<kTwice<T>>>;
      const int places = std::min(-s, static_cast<int>(8 * sizeof(T)) - std::is_signed_v<T>);
      with([places](W v) { return saturate<T>(static_cast<Up>(static_cast<Up>(saturate<T>(v)) << places)); });
    } else if (s > kBits - 2) {
      using More = Int<16>;
      const int places = std::min(s, 126);
      loop([places](E... e) {
        return each<D>(Op()(lift<More>(e)...), [places](More v) { return saturate<T>(halfEven(v, places)); });
      });
    } else if constexpr (Op::template kFull<D, E...>) {
      with([s](W v) { return saturate<T>(halfEvenOfFull(v, s)); });
    } else {
      with([s](W v) { return saturate<T>(halfEven(v, s)); });
    }
  }
};

// The smaller of the sum and the largest number: a 32-bit sum that wrapped is below its operands.
struct SumOf32u : Elementwise<Sum> {
  template <class D, class... E, class L> static void dispatch(const L& loop) {
    loop([](uint32_t a, uint32_t b) {
      const uint32_t sum = a + b;
      return sum < a ? UINT32_MAX : sum;
    });
  }
};

// Sums of 64 bits whose ties end at zero, unless both operands are positive or the sum is negative.
struct ScaledSum64 : Elementwise<Sum> {
  template <class D, class... E, class L> static void dispatch(const L& loop, int s) {
    if (s < 2 || s > 63) return Scaled<Sum>::dispatch<D, E...>(loop, s);
    loop([s](int64_t a, int64_t b) {
      const __int128 v = static_cast<__int128>(a) + b;
      const uint64_t fraction = static_cast<uint64_t>(v) & ((uint64_t{1} << s) - 1);
      const bool zero = fraction == uint64_t{1} << (s - 1) && v >= 0 && !(a > 0 && b > 0);
      return zero ? 0 : saturate<int64_t>(halfEven(v, s));
    });
  }
};

// With a round mode: toward zero, nearest even, or half away from zero.
template <class W> W towardZero(W v, int s) { return (v + (v < 0 ? (W(1) << s) - 1 : 0)) >> s; }
template <class W> W halfAway(W v, int s) { return (v + (W(1) << (s - 1)) - (v < 0 ? 1 : 0)) >> s; }

// The same where v fills its type.
template <class W> W halfAwayOfFull(W v, int s) {
  return (v >> s) + (((v & ((W(1) << s) - 1)) + (W(1) << (s - 1)) - (v < 0 ? 1 : 0)) >> s);
}

template <class Op> struct Rounded : Elementwise<Op> {
  template <class D, class... E, class L> static void dispatch(const L& loop, int s, QvxRoundMode mode) {
    using W = typename Op::template Exact<D, E...>;
    if (s <= 0) return Scaled<Op>::template dispatch<D, E...>(loop, s);
    const auto with = [&loop](auto round) { loop([round](E... e) { return saturate<D>(round(Op()(lift<W>(e)...))); }); };
    const int places = std::min(s, static_cast<int>(8 * sizeof(W)) - 2);
    if (mode == qvxRoundTowardZero) with([places](W v) { return towardZero(v, places); });
    else if (mode == qvxRoundNearestEven) with([places](W v) { return halfEven(v, places); });
    else with([places](W v) { return halfAway(v, places); });
  }
};

// Through doubles: (a * 2^-s) * b [+ c * 2^-s].
template <class Op> struct ThroughDoubles : Elementwise<Op> {
  template <class D, class... E, class L> static void dispatch(const L& loop, int s) {
    const double factor = powerOfTwo<double>(-s);
    const auto rounded = [](double v) {
      return static_cast<int32_t>(std::rint(std::max(std::min(v, 2147483647.0), -2147483648.0)));
    };
    if constexpr (Elementwise<Op>::kAccumulates) {
      loop([=](int32_t a, int32_t b, int32_t c) { return rounded(a * factor * b + c * factor); });
    } else {
      loop([=](int32_t a, int32_t b) { return rounded(a * factor * b); });
    }
  }
};

// The low word of the product, shifted without rounding.
struct LowProduct : Elementwise<Product> {
  template <class D, class... E, class L> static void dispatch(const L& loop, int s) {
    if (s > 62) loop([](int32_t, int32_t) { return 0; });
    else if (s >= 0) loop([s](int32_t a, int32_t b) { return static_cast<int32_t>((int64_t{a} * b) >> s); });
    else if (s >= -31) loop([s](uint32_t a, uint32_t b) { return static_cast<int32_t>((a * b) << -s); });
    else loop([](int32_t a, int32_t b) { return a == 0 || b == 0 ? 0 : (a ^ b) < 0 ? INT32_MIN : INT32_MAX; });
  }
};

// The rule as it is defined, for any scale factor: what a user writes who does not know the form with shifts.
template <class Op>
[[gnu::noipa]] void byDefinition(const int16_t* __restrict a, const int16_t* __restrict b, int16_t* __restrict d, int n, int s) {
  for (int i = 0; i < n; ++i) {
    int64_t v = Op()(int64_t{a[i]}, int64_t{b[i]});
    if (s > 0) {
      const int64_t floor = v >> s;
      const int64_t fraction = v - floor * (int64_t{1} << s);
      const int64_t half = int64_t{1} << (s - 1);
      v = floor + (fraction > half || (fraction == half && (floor & 1) != 0));
    } else {
      v *= int64_t{1} << -s;
    }
    d[i] = saturate<int16_t>(v);
  }
}

// 64-bit products have 127 bits, which are scaled whole.
struct ProductOf64s : Elementwise<Product> {
  template <class D, class... E, class L> static void dispatch(const L& loop, int s) {
    if (s <= 0) Scaled<Product>::dispatch<D, int64_t, int64_t>(loop, s);
    else
      loop([s = std::min(s, 126)](int64_t a, int64_t b) {
        return saturate<int64_t>(halfEven<__int128>(static_cast<__int128>(a) * b, s));
      });
  }
};

// A float constant is an integer of 53 bits times a power of two.
[[gnu::noipa]] inline void mulC64f64s(Qvx64f c, Qvx64s* d, Qvx32u n, int s) {
  int exponent = 0;
  const auto fraction = static_cast<Qvx64s>(std::ldexp(std::frexp(c, &exponent), 53));
  Loop<ProductOf64s, QvxStatus (*)(Qvx64s, Qvx64s*, Qvx32u, int)>::run(fraction, d, n, s - exponent + 53);
}

// Float sources times a constant to 16 bits.
struct FloatProductTo16 : Elementwise<Product> {
  template <class D, class... E, class L> static void dispatch(const L& loop, int s) {
    const float factor = powerOfTwo<float>(-s);
    loop([factor](float a, float c) {
      return static_cast<int16_t>(std::rint(std::max(std::min(a * (c * factor), 32767.0F), -32768.0F)));
    });
  }
};

// The same without a scale factor; what 32 bits cannot hold becomes -32768.
struct LowFloatProductTo16 : Elementwise<Product> {
  template <class D, class... E, class L> static void dispatch(const L& loop) {
    loop([](float a, float c) {
      const float v = std::rint(a * c);
      return v >= -0x1p31F && v < 0x1p31F ? saturate<int16_t>(static_cast<int32_t>(v)) : INT16_MIN;
    });
  }
};

}  // namespace plain
