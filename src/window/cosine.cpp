// The one kernel of all cosine windows.
#include "window/cosine.h"

#include "frame/power.h"
#include "math/spaced_sin_cos.h"
#include "window/weigh.h"

namespace qvx::window {

namespace {

// Takes the sines of half the window's angles, which are between 0 and 1.
template <class W> struct FromSines {
  InSquares form;
  W* w;

  template <class V> [[gnu::always_inline]] void operator()(size_t at, V sine, V) const {
    using T = LaneOf<V>;
    const V s = sine * sine;
    const V slope = hn::MulAdd(s, same<V>(static_cast<T>(form.c2)), same<V>(static_cast<T>(form.c1)));
    const auto weights = convertLanes<W>(hn::MulAdd(s, slope, same<V>(static_cast<T>(form.c0))));
    store(weights, TagOf<decltype(weights)>(), w + at);
  }
};

// Real: what the sines and the sums of their squares are computed in.
template <class Real, class T> void weighByCosine(const T* src, T* dst, size_t len, InSquares form, Qvx32f factor) {
  using W = Weight<T>;
  using Angles = SpacedAngles<Real>;
  const double step = 0.5 / static_cast<double>(len - 1);
  if (len / 2 <= Angles::kFew) {
    weigh(src, dst, len, factor, [=](size_t, size_t count, W* w) { Angles::few(0, step, 1, count, FromSines<W>{form, w}); });
  } else {
    const Angles angles(step, 1);
    weigh(src, dst, len, factor, [=, &angles](size_t from, size_t count, W* w) {
      for (size_t at = 0; at < count; at += Angles::kBlock) {
        angles.each(static_cast<double>(from + at) * step, std::min(count - at, Angles::kBlock), FromSines<W>{form, w + at});
      }
    });
  }
}

// Where a Blackman window comes down to 1 from weights far above, it is the difference of terms of that size, and sines in floats
// leave 2^-22 of those: a quarter of a unit of 16 bits from here on, 2 units at an alpha of 100.
constexpr double kSteep = 32;

template <class T> void weighAsNeeded(const T* src, T* dst, size_t len, InSquares form, Qvx32f factor) {
  if constexpr (std::is_integral_v<Part<T>>) {
    if (std::abs(form.c2) > kSteep) return weighByCosine<double>(src, dst, len, form, factor);
  }
  weighByCosine<Weight<T>>(src, dst, len, form, factor);
}

}  // namespace

template <class T> QvxStatus cosineWindow(const T* src, T* dst, int len, InSquares form, int scaleFactor) {
  const QvxStatus status = checkWindow(src, dst, len);
  if (status != qvxStatOk) return status;
  const bool isCleared = len == 3 && form.c0 == 0;
  if (isCleared) clearEnds(src, dst);
  const RoundingScope mode(kMode<T>);
  const auto factor = powerOfTwo<Qvx32f>(std::min(-int64_t{scaleFactor}, int64_t{127}));
  if (!isCleared) weighAsNeeded(src, dst, elements(len), form, factor);
  if constexpr (std::is_same_v<T, Qvx16s>) {
    if (len % 2 != 0 && scaleFactor != 0) dst[len / 2] = roundedTo<Qvx16s>(static_cast<double>(dst[len / 2] * factor));
  }
  return qvxStatOk;
}

template QvxStatus cosineWindow(const Qvx16s*, Qvx16s*, int, InSquares, int);
template QvxStatus cosineWindow(const Qvx16sc*, Qvx16sc*, int, InSquares, int);
template QvxStatus cosineWindow(const Qvx32f*, Qvx32f*, int, InSquares, int);
template QvxStatus cosineWindow(const Qvx32fc*, Qvx32fc*, int, InSquares, int);
template QvxStatus cosineWindow(const Qvx64f*, Qvx64f*, int, InSquares, int);
template QvxStatus cosineWindow(const Qvx64fc*, Qvx64fc*, int, InSquares, int);

}  // namespace qvx::window
