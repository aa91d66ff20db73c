// A plain loop over vectors, for functions that the loop engine does not fit: those without sources, and those that work from
// both ends.
#pragma once

#include <cstddef>

namespace qvx {

// step(at) for every N of n elements, then step(at, rest) for the rest.
template <size_t N, class Step> [[gnu::always_inline]] inline void eachVector(size_t n, Step step) {
  size_t at = 0;
  for (; at + N <= n; at += N) step(at);
  if (at < n) step(at, n - at);
}

}  // namespace qvx
