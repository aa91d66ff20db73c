// Taps to measure filters with.
#pragma once

#include <cmath>
#include <vector>

#include "frame/vectors.h"

namespace bench {

// A decaying oscillation: taps of all sizes, of which the first are the largest.
template <class T> std::vector<T> taps(int n) {
  std::vector<T> h(static_cast<size_t>(n));
  for (int k = 0; k < n; ++k) {
    const double size = std::exp(-3.0 * k / n) / std::sqrt(n);
    const double re = size * std::cos(0.7 * k);
    if constexpr (std::is_integral_v<T>) h[static_cast<size_t>(k)] = static_cast<T>(std::lrint(re * 8191));
    else if constexpr (sizeof(T) == sizeof(Part<T>)) h[static_cast<size_t>(k)] = static_cast<T>(re);
    else h[static_cast<size_t>(k)] = {static_cast<Part<T>>(re), static_cast<Part<T>>(size * std::sin(0.7 * k))};
  }
  return h;
}
template <class T> std::vector<T> reversed(std::vector<T> h) { return {h.rbegin(), h.rend()}; }

// A number of taps that the compiler does not know.
template <int kTaps> int countOf() {
  int taps = kTaps;
  __asm__("" : "+r"(taps));
  return taps;
}

}  // namespace bench
