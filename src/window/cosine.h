// Windows that are polynomials of s = sin^2(pi n / (N-1)): Hann, Hamming and the Blackman family.
//
// From s nothing cancels where a window goes to zero: its smallest weights are as good as its largest.
#pragma once

#include "frame/check.h"

namespace qvx::window {

// w = c0 + s (c1 + c2 s)
struct InSquares {
  double c0;
  double c1;
  double c2;
};

inline constexpr InSquares kHann = {0, 1, 0};
inline constexpr InSquares kHamming = {0.54 - 0.46, 2 * 0.46, 0};
inline InSquares blackman(double alpha) { return {0, 1 + 4 * alpha, -4 * alpha}; }

// Integers times 2^-scaleFactor, the middle of odd lengths too.
template <class T> QvxStatus cosineWindow(const T* src, T* dst, int len, InSquares form, int scaleFactor = 0);

}  // namespace qvx::window
