// The same operations on real and on complex numbers, one at a time and in vectors, so that every filter is written once.
//
// A vector of complex numbers holds their parts interleaved. The product with a constant takes two multiplications by vectors of
// that constant's parts, one of them on the exchanged parts.
#pragma once

#include <complex>

#include "frame/map.h"

namespace qvx::iir {

// ---- one at a time

template <class T> inline constexpr size_t kParts = PartsOf<T>::kCount;

template <class T, class P> T number(P re, P im) {
  if constexpr (kParts<T> == 1) return static_cast<T>(re);
  else return {static_cast<Part<T>>(re), static_cast<Part<T>>(im)};
}
template <class T> auto realPart(T v) {
  if constexpr (kParts<T> == 1) return v;
  else return v.re;
}
template <class T> auto imaginaryPart(T v) {
  if constexpr (kParts<T> == 1) return T{0};
  else return v.im;
}
template <class T> bool isZero(T v) { return realPart(v) == 0 && imaginaryPart(v) == 0; }

template <class T> T sum(T a, T b) { return number<T>(realPart(a) + realPart(b), imaginaryPart(a) + imaginaryPart(b)); }
template <class T> T difference(T a, T b) { return number<T>(realPart(a) - realPart(b), imaginaryPart(a) - imaginaryPart(b)); }
template <class T> T product(T a, T b) {
  if constexpr (kParts<T> == 1) return a * b;
  else return {a.re * b.re - a.im * b.im, a.re * b.im + a.im * b.re};
}

// The type with parts of P: a table's numbers are computed in long double.
template <class T, class P> struct InPartsOf { using Type = P; };
template <class T, class P>
requires(kParts<T> == 2) struct InPartsOf<T, P> {
  using Type = std::complex<P>;
};
template <class T> using Exact = typename InPartsOf<T, long double>::Type;
template <class T> Exact<T> exact(T v) {
  if constexpr (kParts<T> == 1) return v;
  else return {v.re, v.im};
}
inline long double conjugate(long double v) { return v; }
inline std::complex<long double> conjugate(std::complex<long double> v) { return std::conj(v); }

// ---- constants of a kernel, in the lanes that filters compute in

using Lane = Qvx64f;
inline constexpr size_t kLanes = kVectorBytes / sizeof(Lane);
using Wide = Lanes<Lane, kLanes>;
using V = Vec<Wide>;

template <size_t kParts> struct Coefficient {
  Lane re;
  Lane im;
};
template <> struct Coefficient<1> { Lane re; };

inline Coefficient<1> coefficient(long double v) { return {static_cast<Lane>(v)}; }
inline Coefficient<2> coefficient(std::complex<long double> v) {
  return {static_cast<Lane>(v.real()), static_cast<Lane>(v.imag())};
}
// What rounding took off v.
inline Coefficient<1> remainder(long double v, Coefficient<1> rounded) { return coefficient(v - rounded.re); }
inline Coefficient<2> remainder(std::complex<long double> v, Coefficient<2> rounded) {
  return coefficient(v - std::complex<long double>(rounded.re, rounded.im));
}

// ---- vectors

// A factor for each number of a vector: the factor itself, or (re, re) and (-im, im).
template <size_t kParts> struct Factor {
  V re;
  V im;
};
template <> struct Factor<1> { V re; };

inline Factor<1> factor(Coefficient<1> c) { return {hn::Set(Wide(), c.re)}; }
inline Factor<2> factor(Coefficient<2> c) {
  return {hn::Set(Wide(), c.re), hn::OddEven(hn::Set(Wide(), c.im), hn::Set(Wide(), -c.im))};
}

// A vector to be multiplied: the parts of complex numbers are exchanged once for all its products.
template <size_t kParts> struct Multiplied {
  V v;
  V exchanged;
};
template <> struct Multiplied<1> { V v; };
template <size_t kParts> Multiplied<kParts> multiplied(V v) {
  if constexpr (kParts == 1) return {v};
  else return {v, swapped(v)};
}

inline V times(Factor<1> f, Multiplied<1> x) { return f.re * x.v; }
inline V times(Factor<2> f, Multiplied<2> x) { return hn::MulAdd(f.im, x.exchanged, f.re * x.v); }
inline V plusProduct(V sum, Factor<1> f, Multiplied<1> x) { return hn::MulAdd(f.re, x.v, sum); }
inline V plusProduct(V sum, Factor<2> f, Multiplied<2> x) { return hn::MulAdd(f.im, x.exchanged, hn::MulAdd(f.re, x.v, sum)); }

// Coefficients that follow each other, a factor for each place.
template <size_t kParts> Factor<kParts> factors(const Coefficient<kParts>* p) {
  const V v = load(Wide(), &p->re);
  if constexpr (kParts == 1) return {v};
  else return {hn::DupEven(v), hn::OddEven(hn::DupOdd(v), hn::Neg(hn::DupOdd(v)))};
}

// Broadcasts one number of a vector.
template <size_t kParts, size_t kAt> V everyNumber(V v) {
  if constexpr (kParts == 1) return everyLane<kAt>(v);
  else return everyBlock<kAt>(v);
}

// Broadcasts the number at p.
template <size_t kParts> V everywhere(const Lane* p) {
  if constexpr (kParts == 1) return hn::Set(Wide(), *p);
  else return hn::LoadDup128(Wide(), p);
}

}  // namespace qvx::iir
