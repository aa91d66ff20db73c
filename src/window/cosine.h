// Windows that are polynomials of s = sin^2(pi n / (N-1)): Hann, Hamming and the Blackman family.
//
// From s nothing cancels where a window goes to zero: its smallest weights are as good as its largest.
#pragma once

#include <bit>

#include "frame/each_vector.h"
#include "frame/lane_numbers.h"
#include "frame/power.h"
#include "math/sine.h"
#include "math/spaced_sin_cos.h"
#include "window/weigh.h"

namespace qvx::window {

// Each has its weight for a sine, and for one times `scale`, which saves an operation.
struct Hann {
  static constexpr bool kIsZeroAtEnds = true;
  static constexpr double scale() { return 1; }
  template <class V> V operator()(V sine) const { return sine * sine; }
  template <class V> V ofScaled(V sine) const { return sine * sine; }
};
// 0.08 + 0.92 s
struct Hamming {
  static constexpr bool kIsZeroAtEnds = false;
  static constexpr double scale() { return 0.9591663046625439; }  // the root of 0.92
  template <class V> V operator()(V sine) const { return ofScaled(sine * same<V>(static_cast<LaneOf<V>>(scale()))); }
  template <class V> V ofScaled(V sine) const {
    return hn::MulAdd(sine, sine, same<V>(static_cast<LaneOf<V>>(0.54 - 0.46)));
  }
};
// s (c1 + c2 s) = t (c1 / r + t), where r is the root of c2 and t = r s; with a negative c2 -t in the sum.
struct Blackman {
  static constexpr bool kIsZeroAtEnds = true;
  double c1;
  double c2;

  double root() const { return std::sqrt(std::max(std::abs(c2), 0x1p-64)); }
  double scale() const { return std::sqrt(root()); }
  template <class V> V operator()(V sine) const {
    using W = LaneOf<V>;
    const V s = sine * sine;
    return s * hn::MulAdd(s, same<V>(static_cast<W>(c2)), same<V>(static_cast<W>(c1)));
  }
  template <class V> V ofScaled(V sine) const {
    using W = LaneOf<V>;
    const V t = sine * sine;
    return t * ((t ^ same<V>(static_cast<W>(std::copysign(0.0, c2)))) + same<V>(static_cast<W>(c1 / root())));
  }
};

namespace detail {

// As many weights at most are made by a polynomial each, which is faster than rotating vectors by angles that have to be made
// first.
template <class Real> inline constexpr size_t kSinesEach = 16 * kVectorBytes / sizeof(Real);
template <class Real> using Angles = SpacedAngles<Real, Span::kFromZero>;
static_assert(2 * kSinesEach<float> >= 4 * Angles<float>::kEighth && 2 * kSinesEach<double> >= 4 * Angles<double>::kEighth);

// sin(pi n / (N-1)) for n = 0, 1, ..., a vector at a time.
template <class Real> class Sines {
 public:
  static constexpr size_t N = kVectorBytes / sizeof(Real);

  explicit Sines(size_t len) : turns_(0.5 / static_cast<double>(len - 1)) {}
  auto next() {
    const auto n = number_;
    number_ = n + hn::Set(d_, static_cast<double>(N));
    return sineOfQuarterTurn<53>(n * hn::Set(d_, turns_));
  }

 private:
  static constexpr Lanes<double, N> d_ = {};
  double turns_;
  Vec<Lanes<double, N>> number_ = laneNumbersOf(d_);
};

// Angles in floats are sums of two multiples of steps of which the first are exact, so that an angle is rounded once.
template <> class Sines<float> {
 public:
  static constexpr size_t N = kVectorBytes / sizeof(float);

  explicit Sines(size_t len) {
    const double step = 3.141592653589793 / static_cast<double>(len - 1);
    // All but 24 digits and as many as places have, without a way through integer registers: 5 ns of a call.
    constexpr int kLower = 53 - 24 + std::bit_width(kSinesEach<float> - 1);
    const auto mask = hn::Set(pair_, std::bit_cast<double>(~uint64_t{0} << kLower));
    const auto upperStep = hn::GetLane(hn::Set(pair_, step) & mask);
    const auto upper = static_cast<float>(upperStep);
    const auto lower = static_cast<float>(step - upperStep);
    high_ = placesOf(d_) * hn::Set(d_, upper);
    low_ = placesOf(d_) * hn::Set(d_, lower);
    highStep_ = hn::Set(d_, N * upper);
    lowStep_ = hn::Set(d_, N * lower);
  }
  auto next() {
    const auto angle = high_ + low_;
    high_ = high_ + highStep_;
    low_ = low_ + lowStep_;
    return sineOfRightAngle(angle);
  }

 private:
  using V = Vec<Lanes<float, N>>;
  static constexpr Lanes<float, N> d_ = {};
  static constexpr Lanes<double, 2> pair_ = {};
  V high_;
  V low_;
  V highStep_;
  V lowStep_;
};

// Real: what the sines and the sums of their squares are computed in. Two functions: what a short window needs stays in
// registers.
template <class Real, class T, class Form>
[[gnu::noinline, gnu::flatten]] void weighBySines(const T* src, T* dst, size_t len, Form form, Qvx32f factor) {
  weigh(src, dst, len, factor, [=](size_t count, const auto& put) {
    Sines<Real> sines(len);
    eachVector<Sines<Real>::N>(count, [&](size_t at, auto... rest) {
      const auto sine = sines.next();
      put(at, convertLanes<Weight<T>>(form(sine)), rest...);
    });
  });
}
template <class Real, class T, class Form>
[[gnu::noinline, gnu::flatten]] void weighByTurning(const T* src, T* dst, size_t len, Form form, Qvx32f factor) {
  const double step = 0.5 / static_cast<double>(len - 1);
  weigh(src, dst, len, factor, [=](size_t count, const auto& put) {
    const Angles<Real> angles(step, form.scale());
    constexpr size_t kBlock = Angles<Real>::kBlock;
    for (size_t from = 0; from < count; from += kBlock) {
      angles.each(static_cast<double>(from) * step, std::min(count - from, kBlock), [&](size_t at, auto sine, auto, auto... rest) {
        put(from + at, convertLanes<Weight<T>>(form.ofScaled(sine)), rest...);
      });
    }
  });
}
template <class Real, class T, class Form> void weighByCosine(const T* src, T* dst, size_t len, Form form, Qvx32f factor) {
  if (len / 2 <= kSinesEach<Real>) weighBySines<Real>(src, dst, len, form, factor);
  else weighByRotation<Real>(src, dst, len, form, factor);
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
