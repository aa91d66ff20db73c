// Steps over what has no sources, or several ends, and so no place in the loop engine.
#pragma once

#include <cstddef>

namespace qvx {

// step(at) for every N of n elements, then step(at, rest) for what is left of them.
template <size_t N, class Step> [[gnu::always_inline]] inline void eachVector(size_t n, Step step) {
  size_t at = 0;
  for (; at + N <= n; at += N) step(at);
  if (at < n) step(at, n - at);
}

}  // namespace qvx
