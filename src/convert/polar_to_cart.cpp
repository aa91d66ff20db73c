// Polar coordinates to complex numbers: magnitude times cosine and sine of the phase.
#include "frame/complex.h"
#include "frame/power.h"
#include "frame/rounding.h"
#include "math/sin_cos.h"

using namespace qvx;

namespace {

// In lanes of doubles; floats have one rounding, at the end.
template <class T> struct ToCart {
  // SSSE3 rounds quarter turns to a whole number in the processor's mode: any other than to nearest would lead out of the
  // polynomials' interval.
  static constexpr Rounding kNeeds = kRoundsByInstruction ? Rounding::kCallers : Rounding::kNearest;

  template <class V> auto operator()(V magnitude, V phase) const {
    constexpr int kDigits = std::numeric_limits<T>::digits;
    const auto turn = sinCos<kDigits>(convertLanes<double>(phase));
    const auto length = convertLanes<double>(magnitude);
    const auto re = convertLanes<T>(length * turn.cosine);
    return Pair<std::remove_const_t<decltype(re)>>{re, convertLanes<T>(length * turn.sine)};
  }
};

template <class T, class C> QvxStatus toComplex(const T* magnitude, const T* phase, C* dst, int len) {
  const QvxStatus status = check(len, magnitude, phase, dst);
  if (status != qvxStatOk) return status;
  const RoundingScope scope(ToCart<T>::kNeeds);
  return loop<double>(ToCart<T>(), InterleavedDestination<T>{parts(dst)}, elements(len), source(magnitude), source(phase));
}

template <class T> QvxStatus toParts(const T* magnitude, const T* phase, T* re, T* im, int len) {
  const QvxStatus status = check(len, magnitude, phase, re, im);
  if (status != qvxStatOk) return status;
  const RoundingScope scope(ToCart<T>::kNeeds);
  return loop<double>(ToCart<T>(), SplitDestination<T>{re, im}, elements(len), source(magnitude), source(phase));
}

// Integers times a power of two each; the products rounded to nearest even and saturated.
struct ToCartScaled {
  double magnitudeFactor;
  double phaseFactor;

  template <class V> auto operator()(V magnitude, V phase) const {
    const auto angle = convertLanes<double>(phase);
    using F = std::remove_const_t<decltype(angle)>;
    const auto turn = sinCos<53>(angle * same<F>(phaseFactor));
    const auto length = convertLanes<double>(magnitude) * same<F>(magnitudeFactor);
    const auto toLane = [](F v) {
      // Below the range of 32 bits the conversion gives the most negative integer.
      constexpr double kMost = std::numeric_limits<LaneOf<V>>::max();
      return convertLanes<LaneOf<V>>(toIntNearest(hn::Min(v, same<F>(kMost))));
    };
    return Pair<V>{toLane(length * turn.cosine), toLane(length * turn.sine)};
  }
};

template <class T, class C>
QvxStatus toScaled(const T* magnitude, const T* phase, C* dst, int len, int magnitudeScale, int phaseScale) {
  const QvxStatus status = check(len, magnitude, phase, dst);
  if (status != qvxStatOk) return status;
  const RoundingScope nearest(Rounding::kNearest);
  const ToCartScaled kernel{powerOfTwo<double>(-magnitudeScale), powerOfTwo<double>(-phaseScale)};
  return loop<double>(kernel, InterleavedDestination<T>{parts(dst)}, elements(len), source(magnitude), source(phase));
}

// A phase in fixed point.
template <int kMostPlaces, class T, class C> QvxStatus toFixed(const T* magnitude, const T* phase, int point, C* dst, int len) {
  const QvxStatus status = check(len, magnitude, phase, dst);
  if (status != qvxStatOk) return status;
  if (point < 0 || point > kMostPlaces) return qvxStatBadSize;
  return toScaled(magnitude, phase, dst, len, 0, point);
}

}  // namespace

// clang-format off
QvxStatus qvxsPolarToCart_32fc(const Qvx32f* magn, const Qvx32f* phase, Qvx32fc* d, int len) { return toComplex(magn, phase, d, len); }
QvxStatus qvxsPolarToCart_64fc(const Qvx64f* magn, const Qvx64f* phase, Qvx64fc* d, int len) { return toComplex(magn, phase, d, len); }
QvxStatus qvxsPolarToCart_32f(const Qvx32f* magn, const Qvx32f* phase, Qvx32f* re, Qvx32f* im, int len) { return toParts(magn, phase, re, im, len); }
QvxStatus qvxsPolarToCart_64f(const Qvx64f* magn, const Qvx64f* phase, Qvx64f* re, Qvx64f* im, int len) { return toParts(magn, phase, re, im, len); }
QvxStatus qvxsPolarToCart_16sc_Sfs(const Qvx16s* magn, const Qvx16s* phase, Qvx16sc* d, int len, int magnSf, int phaseSf) {
  return toScaled(magn, phase, d, len, std::clamp(magnSf, -31, 31), std::clamp(phaseSf, -31, 31));
}
QvxStatus qvxsPolarToCart_16sc(const Qvx16s* magn, const Qvx16s* phase, int point, Qvx16sc* d, int len) { return toFixed<15>(magn, phase, point, d, len); }
QvxStatus qvxsPolarToCart_32sc(const Qvx32s* magn, const Qvx32s* phase, int point, Qvx32sc* d, int len) { return toFixed<31>(magn, phase, point, d, len); }
// clang-format on
