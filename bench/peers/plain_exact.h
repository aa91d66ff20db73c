// Elements for the plain loops: exact integer results in the narrowest type that holds them, complex numbers, saturation.
#pragma once

#include <algorithm>
#include <bit>
#include <cstdint>
#include <limits>
#include <type_traits>

#include "frame/vectors.h"

namespace plain {

using bench::Part;

template <class W> struct Complex {
  W re, im;
  friend Complex operator+(Complex a, Complex b) { return {a.re + b.re, a.im + b.im}; }
  friend Complex operator-(Complex a, Complex b) { return {a.re - b.re, a.im - b.im}; }
  friend Complex operator*(Complex a, Complex b) { return {a.re * b.re - a.im * b.im, a.re * b.im + a.im * b.re}; }
  friend Complex operator*(W a, Complex b) { return {a * b.re, a * b.im}; }
};

template <class T> inline constexpr bool kIsComplex = !std::is_same_v<T, Part<T>>;
template <class T> inline constexpr size_t kBytes = sizeof(Part<T>);
template <class T> inline constexpr bool kUnsigned = std::is_unsigned_v<Part<T>>;

template <class W, class T> auto lift(T x) {
  if constexpr (kIsComplex<T>) return Complex<W>{static_cast<W>(x.re), static_cast<W>(x.im)};
  else return static_cast<W>(x);
}

template <class D, class F, class W> D each(Complex<W> v, F f) { return {f(v.re), f(v.im)}; }
template <class D, class F, class W> D each(W v, F f) { return f(v); }

template <int kBytesWide> struct IntegerOf;
template <> struct IntegerOf<4> {
  using Signed = int32_t;
  using Unsigned = uint32_t;
};
template <> struct IntegerOf<8> {
  using Signed = int64_t;
  using Unsigned = uint64_t;
};
template <> struct IntegerOf<16> {
  using Signed = __int128;
  using Unsigned = unsigned __int128;
};
template <int kBytesWide> using Int = typename IntegerOf<kBytesWide>::Signed;
template <int kBytesWide> using UInt = typename IntegerOf<kBytesWide>::Unsigned;

// Twice an element's width, 32 bits at least.
template <class D> inline constexpr int kTwice = std::max<int>(4, 2 * kBytes<D>);

// A value type by its width, also where the standard traits know no 128-bit integers.
template <class W> inline constexpr bool kIsSigned = W(-1) < W(0);

template <class T, class W> T saturate(W v) {
  using Limits = std::numeric_limits<T>;
  if constexpr (std::is_floating_point_v<T> || std::is_same_v<T, W>) {
    return static_cast<T>(v);
  } else if constexpr (kIsSigned<W>) {
    const W below = v < W(Limits::max()) ? v : W(Limits::max());
    return static_cast<T>(below > W(Limits::min()) ? below : W(Limits::min()));
  } else {
    return static_cast<T>(v < W(Limits::max()) ? v : W(Limits::max()));
  }
}

// 2^exponent without a call, as far as it is a normal number.
inline float powerOfTwo(float, int exponent) { return std::bit_cast<float>((127 + std::clamp(exponent, -126, 127)) << 23); }
inline double powerOfTwo(double, int exponent) {
  return std::bit_cast<double>(static_cast<int64_t>(1023 + std::clamp(exponent, -1022, 1023)) << 52);
}
template <class S> S powerOfTwo(int exponent) { return powerOfTwo(S(), exponent); }

// v / 2^s, nearest even.
template <class W> W halfEven(W v, int s) { return (v + ((W(1) << (s - 1)) - 1) + ((v >> s) & 1)) >> s; }

// The same where v fills its type: the sum is that of the fraction alone.
template <class W> W halfEvenOfFull(W v, int s) {
  const W floor = v >> s;
  const W fraction = v & ((W(1) << s) - 1);
  return floor + ((fraction + ((W(1) << (s - 1)) - 1) + (floor & 1)) >> s);
}

}  // namespace plain
