// Angles of complex vectors, alone and with the magnitude.
#include "math/phase.h"

#include "frame/complex.h"
#include "frame/power.h"
#include "frame/rounding.h"

using namespace qvx;

namespace {

// Floats in float lanes where a fused multiplication gives the remainder of a division, else in doubles.
struct Angle {
  template <class V> auto operator()(V re, V im) const {
    if constexpr (sizeof(LaneOf<V>) == 8 || kFuses) {
      return phase(im, re);
    } else {
      const hn::Half<TagOf<V>> half;
      const auto of = [](auto re, auto im) {
        return convertLanes<float>(phase<false>(convertLanes<double>(im), convertLanes<double>(re)));
      };
      return hn::Combine(TagOf<V>(), of(hn::UpperHalf(half, re), hn::UpperHalf(half, im)),
                         of(hn::LowerHalf(half, re), hn::LowerHalf(half, im)));
    }
  }
  template <class V> auto operator()(Pair<V> z) const { return (*this)(z.lo, z.hi); }
};

// Integers times 2^-scaleFactor: the angle, rounded to a float, times the factor, plus a half, is still exact in a float.
template <class T> struct AngleScaled {
  float factor;

  template <class V> auto operator()(V re, V im) const {
    const auto angle = convertLanes<float>(phase(convertLanes<double>(im), convertLanes<double>(re)));
    using F = std::remove_const_t<decltype(angle)>;
    const F scaled = angle * same<F>(factor);
    const F away = scaled + hn::CopySignToAbs(same<F>(0.5F), scaled);
    constexpr auto kMost = static_cast<float>(std::numeric_limits<T>::max());  // of 32 bits it is 2^31, which wraps to 2^31 - 1
    const auto whole = toIntTruncated(hn::Min(away, same<F>(kMost)));
    if constexpr (sizeof(T) == 2) return convertLanes<T>(whole);
    else return whole ^ as<int32_t>(hn::VecFromMask(TagOf<F>(), away >= same<F>(kMost)));
  }
  template <class V> auto operator()(Pair<V> z) const { return (*this)(z.lo, z.hi); }
};

template <class T, class... Src> QvxStatus scaledPhase(T* dst, int len, int scaleFactor, Src... src) {
  const QvxStatus status = check(len, pointerOf(src)..., dst);
  if (status != qvxStatOk) return status;
  const RoundingScope nearest(Rounding::kNearest);
  const AngleScaled<T> kernel{powerOfTwo<float>(std::min(-int64_t{scaleFactor}, int64_t{127}))};
  return loop<double>(kernel, destination(dst), elements(len), source(src)...);
}

// The magnitude's status comes first; the phase is computed all the same.
QvxStatus both(QvxStatus magnitude, QvxStatus phase) { return magnitude != qvxStatOk ? magnitude : phase; }

// Of parts in two vectors. Magnitudes that take the place of a source wait until the phase has read it.
template <class T, class Magnitude, class Phase>
QvxStatus cartToPolar(const T* re, const T* im, T* magn, T* phase, int len, Magnitude magnitudeOf, Phase phaseOf) {
  if (isNull(magn) || isNull(phase) || (magn != re && magn != im)) {
    const QvxStatus first = magnitudeOf(re, im, magn, len);
    return both(first, phaseOf(re, im, phase, len));
  }
  const QvxStatus status = check(len, re, im);
  if (status != qvxStatOk) return status;
  constexpr size_t kBlock = 4096 / sizeof(T);
  T waiting[kBlock];
  for (size_t at = 0, some; at < elements(len); at += some) {
    some = std::min(elements(len) - at, kBlock);
    magnitudeOf(re + at, im + at, waiting, static_cast<int>(some));
    phaseOf(re + at, im + at, phase + at, static_cast<int>(some));
    std::copy_n(waiting, some, magn + at);
  }
  return qvxStatOk;
}

}  // namespace

// clang-format off
QvxStatus qvxsPhase_32fc(const Qvx32fc* a, Qvx32f* d, int len) { return map<Angle>(d, len, AsIs{}, deinterleaved(a)); }
QvxStatus qvxsPhase_64fc(const Qvx64fc* a, Qvx64f* d, int len) { return map<Angle>(d, len, AsIs{}, deinterleaved(a)); }
QvxStatus qvxsPhase_16sc32f(const Qvx16sc* a, Qvx32f* d, int len) { return map<Angle>(d, len, AsIs{}, deinterleaved(a)); }
QvxStatus qvxsPhase_16sc_Sfs(const Qvx16sc* a, Qvx16s* d, int len, int sf) { return scaledPhase(d, len, sf, deinterleaved(a)); }
QvxStatus qvxsPhase_32sc_Sfs(const Qvx32sc* a, Qvx32s* d, int len, int sf) { return scaledPhase(d, len, sf, deinterleaved(a)); }
QvxStatus qvxsPhase_32f(const Qvx32f* re, const Qvx32f* im, Qvx32f* d, int len) { return map<Angle>(d, len, AsIs{}, re, im); }
QvxStatus qvxsPhase_64f(const Qvx64f* re, const Qvx64f* im, Qvx64f* d, int len) { return map<Angle>(d, len, AsIs{}, re, im); }
QvxStatus qvxsPhase_16s_Sfs(const Qvx16s* re, const Qvx16s* im, Qvx16s* d, int len, int sf) { return scaledPhase(d, len, sf, re, im); }
QvxStatus qvxsPhase_16s32f(const Qvx16s* re, const Qvx16s* im, Qvx32f* d, int len) { return map<Angle>(d, len, AsIs{}, re, im); }
// clang-format on

QvxStatus qvxsCartToPolar_32fc(const Qvx32fc* a, Qvx32f* magn, Qvx32f* phase, int len) {
  const QvxStatus first = qvxsMagnitude_32fc(a, magn, len);
  return both(first, qvxsPhase_32fc(a, phase, len));
}
QvxStatus qvxsCartToPolar_64fc(const Qvx64fc* a, Qvx64f* magn, Qvx64f* phase, int len) {
  const QvxStatus first = qvxsMagnitude_64fc(a, magn, len);
  return both(first, qvxsPhase_64fc(a, phase, len));
}
QvxStatus qvxsCartToPolar_32f(const Qvx32f* re, const Qvx32f* im, Qvx32f* magn, Qvx32f* phase, int len) {
  return cartToPolar(re, im, magn, phase, len, qvxsMagnitude_32f, qvxsPhase_32f);
}
QvxStatus qvxsCartToPolar_64f(const Qvx64f* re, const Qvx64f* im, Qvx64f* magn, Qvx64f* phase, int len) {
  return cartToPolar(re, im, magn, phase, len, qvxsMagnitude_64f, qvxsPhase_64f);
}
QvxStatus qvxsCartToPolar_16sc_Sfs(const Qvx16sc* a, Qvx16s* magn, Qvx16s* phase, int len, int magnSf, int phaseSf) {
  const QvxStatus first = qvxsMagnitude_16sc_Sfs(a, magn, len, magnSf);
  return first != qvxStatOk ? first : qvxsPhase_16sc_Sfs(a, phase, len, phaseSf);
}
