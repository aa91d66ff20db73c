// Conversions between element types for the plain loops.
#pragma once

#include <cmath>

#include "peers/plain_arithmetic.h"

namespace plain {

struct Conversion {
  static constexpr bool kAccumulates = false;
};

// To a type that holds the value, by rounding, or saturated.
struct Cast : Conversion {
  template <class D, class E, class L> static void dispatch(const L& loop) {
    if constexpr (std::is_integral_v<D> && sizeof(D) < sizeof(E)) loop([](E v) { return saturate<D>(v); });
    else loop([](E v) { return static_cast<D>(v); });
  }
};

// Integers to floats, times 2^-s.
struct CastScaled : Conversion {
  template <class D, class E, class L> static void dispatch(const L& loop, int s) {
    loop([factor = powerOfTwo<D>(-s)](E v) { return static_cast<D>(v) * factor; });
  }
};

// Floats to integers. 32-bit floats hold no INT32_MAX: from 2^31 on it is chosen after the conversion.
template <class D, class S> D clipped(S v) {
  using Limits = std::numeric_limits<D>;
  constexpr S kLeast = static_cast<S>(Limits::min());
  constexpr S kMost = static_cast<S>(Limits::max());
  if constexpr (sizeof(D) < sizeof(S) || sizeof(D) < 4) return static_cast<D>(std::max(std::min(v, kMost), kLeast));
  else return v < kMost ? static_cast<D>(std::max(v, kLeast)) : Limits::max();
}

struct FloatToInteger : Conversion {
  template <class D, class S, class L> static void dispatch(const L& loop, QvxRoundMode mode, int s) {
    const S factor = powerOfTwo<S>(-s);
    if (mode == qvxRoundTowardZero) loop([factor](S v) { return clipped<D>(v * factor); });
    else if (mode == qvxRoundNearestEven) loop([factor](S v) { return clipped<D>(std::rint(v * factor)); });
    else loop([factor](S v) { return clipped<D>(v * factor + std::copysign(S(0.5), v)); });
  }
};

// Integers to narrower ones, nearest even; and with a round mode. 32 and 64 bits are rounded where they have room.
struct NarrowScaled : Conversion {
  template <class D, class E, class L> static void dispatch(const L& loop, int s) {
    if (s == 0) loop([](E v) { return saturate<D>(v); });
    else if (s < 0) loop([p = std::min(-s, 15)](E v) { return saturate<D>(static_cast<E>(saturate<D>(v)) << p); });
    else loop([s = std::min(s, 31)](E v) { return saturate<D>(halfEvenOfFull(v, s)); });
  }
};

struct NarrowRounded : Conversion {
  template <class D, class E, class L> static void dispatch(const L& loop, QvxRoundMode mode, int s) {
    using W = std::conditional_t<sizeof(E) == 8, int64_t, int32_t>;
    const auto with = [&loop](auto round) { loop([round](E v) { return saturate<D>(round(static_cast<W>(v))); }); };
    const int places = std::min(s, static_cast<int>(8 * sizeof(W)) - 1);
    if (s <= 0) with([p = std::min(-s, 31)](W v) { return saturate<D>(static_cast<W>(saturate<D>(v)) << p); });
    else if (mode == qvxRoundTowardZero) with([places](W v) { return towardZero(v, places); });
    else if (mode == qvxRoundNearestEven) with([places](W v) { return halfEvenOfFull(v, places); });
    else with([places](W v) { return halfAwayOfFull(v, places); });
  }
};

// binary16, rounded to nearest even; the compiler's own type does it.
struct ToHalf : Conversion {
  template <class D, class E, class L> static void dispatch(const L& loop, QvxRoundMode) {
    loop([](E v) { return std::bit_cast<uint16_t>(static_cast<_Float16>(v)); });
  }
};
struct FromHalf : Conversion {
  template <class D, class E, class L> static void dispatch(const L& loop) {
    loop([](uint16_t v) { return static_cast<float>(std::bit_cast<_Float16>(v)); });
  }
  template <class D, class E, class L> static void dispatch(const L& loop, QvxRoundMode, int s) {
    loop([factor = powerOfTwo<float>(-s)](uint16_t v) {
      const float scaled = static_cast<float>(std::bit_cast<_Float16>(v)) * factor;
      const float below = scaled < 32767.0F ? scaled : 32767.0F;
      return static_cast<int16_t>(std::rint(below > -32768.0F ? below : -32768.0F));
    });
  }
};

// Three bytes an element, the lowest first.
template <class T> T read24(const Qvx8u* p) {
  const uint32_t v = p[0] | static_cast<uint32_t>(p[1]) << 8 | static_cast<uint32_t>(p[2]) << 16;
  return std::is_signed_v<T> ? static_cast<T>(static_cast<int32_t>(v << 8) >> 8) : static_cast<T>(v);
}
inline void write24(uint32_t v, Qvx8u* p) {
  p[0] = static_cast<Qvx8u>(v);
  p[1] = static_cast<Qvx8u>(v >> 8);
  p[2] = static_cast<Qvx8u>(v >> 16);
}
template <class T> inline constexpr T kLeast24 = std::is_signed_v<T> ? -(1 << 23) : 0;
template <class T> inline constexpr T kMost24 = std::is_signed_v<T> ? (1 << 23) - 1 : (1 << 24) - 1;

template <class T, class D> [[gnu::noipa]] void from24(const Qvx8u* __restrict a, D* __restrict d, int n) {
  for (int i = 0; i < n; ++i) d[i] = static_cast<D>(read24<T>(a + 3 * i));
}

template <class T> [[gnu::noipa]] void to24(const T* __restrict a, Qvx8u* __restrict d, int n, int s) {
  const auto write = [=](int i, T v) { write24(static_cast<uint32_t>(std::clamp(v, kLeast24<T>, kMost24<T>)), d + 3 * i); };
  if (s > 0)
    for (int i = 0; i < n; ++i) write(i, halfEvenOfFull(a[i], std::min(s, 31)));
  else
    for (int i = 0; i < n; ++i) write(i, saturate<T>(static_cast<Int<8>>(a[i]) * (Int<8>{1} << std::min(-s, 31))));
}

template <class T> [[gnu::noipa]] void floatTo24(const Qvx32f* __restrict a, Qvx8u* __restrict d, int n, int s) {
  const float factor = powerOfTwo<float>(-s);
  for (int i = 0; i < n; ++i) {
    const float v = std::clamp<float>(a[i] * factor, kLeast24<T>, kMost24<T>);
    write24(static_cast<uint32_t>(static_cast<int32_t>(std::rint(v))), d + 3 * i);
  }
}

}  // namespace plain
