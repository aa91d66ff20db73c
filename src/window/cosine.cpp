// The one kernel of all cosine windows.
#include "window/cosine.h"

#include "frame/power.h"
#include "math/spaced_sin_cos.h"
#include "window/weigh.h"

namespace qvx::window {

namespace {

// Takes the sines of half the window's angles, which are between 0 and 1.
template <class T> struct FromSines {
  InSquares form;
  T* w;

  template <class V> [[gnu::always_inline]] void operator()(size_t at, V sine, V) const {
    const V s = sine * sine;
    const V slope = hn::MulAdd(s, same<V>(static_cast<T>(form.c2)), same<V>(static_cast<T>(form.c1)));
    store(hn::MulAdd(s, slope, same<V>(static_cast<T>(form.c0))), TagOf<V>(), w + at);
  }
};

template <class T> void weighByCosine(const T* src, T* dst, size_t len, InSquares form, Qvx32f factor) {
  using W = Weight<T>;
  using Angles = SpacedAngles<W>;
  const double step = 0.5 / static_cast<double>(len - 1);
  if (len / 2 <= Angles::kFew) {
    weigh(src, dst, len, factor, [=](size_t, size_t count, W* w) { Angles::few(0, step, 1, count, FromSines<W>{form, w}); });
  } else {
    const Angles angles(step, 1);
    weigh(src, dst, len, factor, [=, &angles](size_t from, size_t count, W* w) {
      angles.each(static_cast<double>(from) * step, count, FromSines<W>{form, w});
    });
  }
}

}  // namespace

template <class T> QvxStatus cosineWindow(const T* src, T* dst, int len, InSquares form, int scaleFactor) {
  const QvxStatus status = checkWindow(src, dst, len);
  if (status != qvxStatOk) return status;
  const bool isCleared = len == 3 && form.c0 == 0;
  if (isCleared) clearEnds(src, dst);
  const RoundingScope mode(kMode<T>);
  const auto factor = powerOfTwo<Qvx32f>(std::min(-int64_t{scaleFactor}, int64_t{127}));
  if (!isCleared) weighByCosine(src, dst, elements(len), form, factor);
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
