// Convolution and correlation as one writes them without a library.
#pragma once

#include <algorithm>

namespace plain {

// y has aLen + bLen - 1 elements; the longer operand first.
template <class T> void convolve(const T* __restrict a, int aLen, const T* __restrict b, int bLen, T* __restrict y) {
  std::fill_n(y, aLen + bLen - 1, T{});
  for (int k = 0; k < bLen; ++k) {
    for (int i = 0; i < aLen; ++i) y[k + i] += b[k] * a[i];
  }
}

template <class T>
void correlate(const T* __restrict a, int aLen, const T* __restrict b, int bLen, T* __restrict y, int lags, int low) {
  for (int n = 0; n < lags; ++n) {
    T sum{};
    const int lag = n + low;
    for (int i = std::max(0, -lag); i < std::min(aLen, bLen - lag); ++i) sum += a[i] * b[i + lag];
    y[n] = sum;
  }
}

}  // namespace plain
