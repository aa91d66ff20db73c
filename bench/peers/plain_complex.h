// Forms of complex vectors for the plain loops.
#pragma once

#include <algorithm>

#include "peers/plain_math.h"

namespace plain {

inline constexpr auto realPart = [](auto z) { return z.re; };
inline constexpr auto imaginaryPart = [](auto z) { return z.im; };

template <class T> struct ComplexOf;
template <> struct ComplexOf<Qvx16s> { using Type = Qvx16sc; };
template <> struct ComplexOf<Qvx32f> { using Type = Qvx32fc; };
template <> struct ComplexOf<Qvx64f> { using Type = Qvx64fc; };
inline constexpr auto join = []<class T>(T re, T im) { return typename ComplexOf<T>::Type{re, im}; };

inline constexpr auto conjugate = [](auto z) { return decltype(z){z.re, -z.im}; };
inline constexpr auto saturatedConjugate = [](auto z) {
  return decltype(z){z.re, static_cast<Qvx16s>(z.im == -32768 ? 32767 : -z.im)};
};

template <class C> [[gnu::noipa]] void split(const C* __restrict src, Part<C>* __restrict re, Part<C>* __restrict im, int n) {
  for (int i = 0; i < n; ++i) {
    re[i] = src[i].re;
    im[i] = src[i].im;
  }
}
template <class T> [[gnu::noipa]] void flip(const T* __restrict src, T* __restrict dst, int n) {
  for (int i = 0; i < n; ++i) dst[i] = src[n - 1 - i];
}
template <class T> [[gnu::noipa]] void conjugateFlip(const T* __restrict src, T* __restrict dst, int n) {
  for (int i = 0; i < n; ++i) dst[i] = conjugate(src[n - 1 - i]);
}
template <class T> [[gnu::noipa]] void flipInPlace(T* v, int n) { std::reverse(v, v + n); }

// Of a complex element or of its two parts.
template <class Wide> struct PowerIn {
  template <class T> Wide operator()(T re, T im) const {
    return static_cast<Wide>(re) * static_cast<Wide>(re) + static_cast<Wide>(im) * static_cast<Wide>(im);
  }
  template <class C> Wide operator()(C z) const { return (*this)(z.re, z.im); }
};
struct PowerAsIs {
  template <class T> T operator()(T re, T im) const { return re * re + im * im; }
  template <class C> auto operator()(C z) const { return z.re * z.re + z.im * z.im; }
};
inline constexpr PowerAsIs power;
inline constexpr PowerIn<float> floatPower;
inline constexpr PowerIn<double> widePower;

// Nearest even, for a scale factor above 0, limited.
template <class Lane> Lane shifted(Lane v, int s, Lane most) {
  return std::min<Lane>((v + (Lane{1} << (s - 1)) - 1 + ((v >> s) & 1)) >> s, most);
}
struct ScaledPower16 {
  uint32_t operator()(Qvx16s re, Qvx16s im, int s) const {
    return shifted<uint32_t>(static_cast<uint32_t>(re * re) + static_cast<uint32_t>(im * im), s, 32767);
  }
  uint32_t operator()(Qvx16sc z, int s) const { return (*this)(z.re, z.im, s); }
};
struct ScaledPower32 {
  uint64_t operator()(Qvx32sc z, int s) const {
    return shifted<uint64_t>(static_cast<uint64_t>(int64_t{z.re} * z.re) + static_cast<uint64_t>(int64_t{z.im} * z.im), s,
                             2147483647);
  }
};
inline constexpr ScaledPower16 scaledPower16;
inline constexpr ScaledPower32 scaledPower32;

}  // namespace plain
