// Windows that are polynomials of s = sin^2(pi n / (N-1)): Hann, Hamming and the Blackman family.
//
// From s nothing cancels where a window goes to zero: its smallest weights are as good as its largest.
#pragma once

#include "frame/power.h"
#include "math/spaced_sin_cos.h"
#include "window/weigh.h"

namespace qvx::window {

struct Hann {
  static constexpr bool kIsZeroAtEnds = true;
  template <class V> V operator()(V s) const { return s; }
};
struct Hamming {
  static constexpr bool kIsZeroAtEnds = false;
  template <class V> V operator()(V s) const {
    using W = LaneOf<V>;
    return hn::MulAdd(s, same<V>(static_cast<W>(2 * 0.46)), same<V>(static_cast<W>(0.54 - 0.46)));
  }
};
// s (c1 + c2 s)
struct Blackman {
  static constexpr bool kIsZeroAtEnds = true;
  double c1;
  double c2;
  template <class V> V operator()(V s) const {
    using W = LaneOf<V>;
    return s * hn::MulAdd(s, same<V>(static_cast<W>(c2)), same<V>(static_cast<W>(c1)));
  }
};

namespace detail {

// Real: what the sines and the sums of their squares are computed in.
template <class Real, class T, class Form> void weighByCosine(const T* src, T* dst, size_t len, Form form, Qvx32f factor) {
  using Angles = SpacedAngles<Real>;
  const double step = 0.5 / static_cast<double>(len - 1);
  weigh(src, dst, len, factor, [=](size_t count, auto put) {
    const auto weighFrom = [&](size_t from) {
      return
          [=](size_t at, auto sine, auto, auto... rest) { put(from + at, convertLanes<Weight<T>>(form(sine * sine)), rest...); };
    };
    if (count <= Angles::kFew) return Angles::few(0, step, 1, count, weighFrom(0));
    const Angles angles(step, 1);
    for (size_t from = 0; from < count; from += Angles::kBlock) {
      angles.each(static_cast<double>(from) * step, std::min(count - from, Angles::kBlock), weighFrom(from));
    }
  });
}

// Where a Blackman window comes down to 1 from weights far above, it is the difference of terms of that size, and sines in floats
// leave 2^-22 of those: a quarter of a unit of 16 bits from here on, 2 units at an alpha of 100.
inline constexpr double kSteep = 32;

template <class T, class Form> void weighAsNeeded(const T* src, T* dst, size_t len, Form form, Qvx32f factor) {
  if constexpr (std::is_integral_v<Part<T>> && std::is_same_v<Form, Blackman>) {
    if (std::abs(form.c2) > kSteep) return weighByCosine<double>(src, dst, len, form, factor);
  }
  weighByCosine<Weight<T>>(src, dst, len, form, factor);
}

}  // namespace detail

// Integers times 2^-scaleFactor, the middle of odd lengths too.
template <class T, class Form> QvxStatus cosineWindow(const T* src, T* dst, int len, Form form, int scaleFactor = 0) {
  const QvxStatus status = checkWindow(src, dst, len);
  if (status != qvxStatOk) return status;
  const bool isCleared = len == 3 && Form::kIsZeroAtEnds;
  if (isCleared) clearEnds(src, dst);
  const RoundingScope mode(kMode<T>);
  const auto factor = powerOfTwo<Qvx32f>(std::min(-int64_t{scaleFactor}, int64_t{127}));
  if (!isCleared) detail::weighAsNeeded(src, dst, elements(len), form, factor);
  if constexpr (std::is_same_v<T, Qvx16s>) {
    T& middle = dst[len / 2];
    if (len % 2 != 0 && scaleFactor != 0) middle = roundedTo<Qvx16s>(static_cast<double>(middle * factor));
  }
  return qvxStatOk;
}

}  // namespace qvx::window
