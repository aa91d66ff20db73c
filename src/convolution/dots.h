// Outputs of a filter that drops most of them: each is a sum of products with vectors along the taps, and the lanes of several
// outputs are folded together. With lanes along few outputs most would stay empty, and samples would first have to be dealt among
// rows: 8 outputs of 64 taps take 0.45 (16 bits) to 0.6 (floats) of that time, any number at 8:1 with 16 taps 0.4.
#pragma once

#include "convolution/convolve.h"

namespace qvx::convolution {

template <class C> inline constexpr bool kHasDots = PartsOf<C>::kCount == 1 || std::is_same_v<C, Qvx32fc>;

// The elements that the taps take: whole vectors, with zeros before the first, so that the last one ends where the samples end
// that it meets.
template <class C> constexpr size_t dotsLen(size_t taps) {
  return (taps + kVectorElements<C> - 1) / kVectorElements<C> * kVectorElements<C>;
}

// The elements for the taps themselves. Complex ones are stored twice, a vector of real parts and one of imaginary parts in turn,
// each part for both parts of a sample.
template <class C> constexpr size_t dotsTapsLen(size_t taps) { return dotsLen<C>(taps) * PartsOf<C>::kCount; }
template <class C> void setDotsTap(C tap, size_t at, C* p) {
  if constexpr (PartsOf<C>::kCount == 1) {
    p[at] = tap;
  } else {
    constexpr size_t N = kVectorElements<C>;
    C* const to = p + at / N * 2 * N + at % N;
    to[0] = {tap.re, tap.re};
    to[N] = {tap.im, tap.im};
  }
}

// Samples of a call, x[0] and on, and those of calls before, which end at `before`.
template <class C> struct Samples {
  const C* before;
  const C* x;
};
// Where the two are apart, x has a vector at least. With masks both are loaded by whole vectors: what has just been stored as one
// need not wait for the cache. Else the first dotsLen(taps) samples of x stand at `before` too, for outputs that begin before it.
inline constexpr bool kJoinsSamples = kHasMasks;

// y[n] = p[0] * x[first + n * apart] + ... + p[length - 1] * x[first + n * apart + length - 1] for n below count, with the taps
// at the end of p, by setDotsTap. length: dotsLen(taps). y must not overlap x.
void convolveApart(Samples<Qvx32f> x, ptrdiff_t first, size_t apart, const Qvx32f* p, size_t taps, size_t count, Qvx32f* y);
void convolveApart(Samples<Qvx64f> x, ptrdiff_t first, size_t apart, const Qvx64f* p, size_t taps, size_t count, Qvx64f* y);
void convolveApart(Samples<Qvx32fc> x, ptrdiff_t first, size_t apart, const Qvx32fc* p, size_t taps, size_t count, Qvx32fc* y);
// Integers as those of convolve.h.
void convolveApart(Samples<Qvx16s> x, ptrdiff_t first, size_t apart, const Qvx16s* p, size_t taps, size_t count, Qvx16s* y,
                   int64_t places);

}  // namespace qvx::convolution
