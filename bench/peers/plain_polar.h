// Polar coordinates of one element for the plain loops.
#pragma once

#include "peers/plain_complex.h"

namespace plain {

// What a user would compute in: 16-bit parts in floats, 32-bit ones in doubles.
template <class T> using RealFor = std::conditional_t<sizeof(T) <= 2 || std::is_same_v<T, float>, float, double>;

// Of two parts or of a complex element.
struct MagnitudeOf {
  template <class T> auto operator()(T re, T im) const {
    const auto a = static_cast<RealFor<T>>(re);
    const auto b = static_cast<RealFor<T>>(im);
    return std::sqrt(a * a + b * b);
  }
  template <class C> auto operator()(C z) const { return (*this)(z.re, z.im); }
};
struct PhaseOf {
  template <class T> auto operator()(T re, T im) const {
    return std::atan2(static_cast<RealFor<T>>(im), static_cast<RealFor<T>>(re));
  }
  template <class C> auto operator()(C z) const { return (*this)(z.re, z.im); }
};
inline constexpr MagnitudeOf magnitudeOf;
inline constexpr PhaseOf phaseOf;

// To integers of 2 or 4 bytes, with a scale factor.
template <class Of, class Lane> struct Scaled {
  template <class C> Lane operator()(C z, int s) const { return scaled(Of()(z), s); }
  template <class T> Lane operator()(T re, T im, int s) const { return scaled(Of()(re, im), s); }

 private:
  template <class F> static Lane scaled(F v, int s) {
    constexpr auto kMost = static_cast<F>(std::numeric_limits<Lane>::max());
    return static_cast<Lane>(std::min(std::rint(v * powerOfTwo<F>(-s)), kMost));
  }
};
inline constexpr Scaled<MagnitudeOf, Qvx16s> scaledMagnitude16;
inline constexpr Scaled<MagnitudeOf, Qvx32s> scaledMagnitude32;
inline constexpr Scaled<PhaseOf, Qvx16s> scaledPhase16;
inline constexpr Scaled<PhaseOf, Qvx32s> scaledPhase32;

inline constexpr auto toCart = []<class T>(T magnitude, T phase) {
  return typename ComplexOf<T>::Type{magnitude * std::cos(phase), magnitude * std::sin(phase)};
};

template <class C>
[[gnu::noipa]] void toPolar(const C* __restrict src, Part<C>* __restrict magnitude, Part<C>* __restrict phase, int n) {
  for (int i = 0; i < n; ++i) {
    magnitude[i] = magnitudeOf(src[i]);
    phase[i] = phaseOf(src[i]);
  }
}

}  // namespace plain
