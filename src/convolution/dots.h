// A few outputs of a filter that drops most of them: each is a sum of products with vectors along the taps, and the lanes of
// several outputs are folded together. With lanes along the outputs most would stay empty, and samples would first have to be
// dealt among rows: 8 outputs of 64 taps take 0.45 (16 bits) to 0.6 (floats) of that time.
#pragma once

#include "convolution/convolve.h"

namespace qvx::convolution {

// Complex outputs gain nothing.
template <class C> inline constexpr bool kHasDots = PartsOf<C>::kCount == 1;

// The elements that the taps take: whole vectors, with zeros after the last.
template <class C> constexpr size_t dotsLen(size_t taps) {
  return (taps + kVectorElements<C> - 1) / kVectorElements<C> * kVectorElements<C>;
}

// y[n] = p[0] * x[n * apart] + ... + p[taps - 1] * x[n * apart + taps - 1] for n below count. A vector of x may be read past the
// last that is needed. y must not overlap x.
void convolveApart(const Qvx32f* x, size_t apart, const Qvx32f* p, size_t taps, size_t count, Qvx32f* y);
void convolveApart(const Qvx64f* x, size_t apart, const Qvx64f* p, size_t taps, size_t count, Qvx64f* y);
// Integers as those of convolve.h.
void convolveApart(const Qvx16s* x, size_t apart, const Qvx16s* p, size_t taps, size_t count, Qvx16s* y, int64_t places);

}  // namespace qvx::convolution
