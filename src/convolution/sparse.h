// Filters of few taps, each at a delay of its own: what FIR and recursive ones share.
#pragma once

#include "frame/map.h"

namespace qvx::convolution {

// Whether the positions increase from `least` on.
inline bool increases(const Qvx32s* positions, int count, int least) {
  for (int i = 0; i < count; least = positions[i++] + 1) {
    if (positions[i] < least) return false;
  }
  return true;
}

// dst[n] += tap * src[n]: products and sums are rounded apart.
inline void addTap(const Qvx32f* src, Qvx32f* dst, size_t n, Qvx32f tap) {
  loop([tap](auto v, auto all) { return all + same<decltype(v)>(tap) * v; }, destination(dst), n, source(src),
       source(static_cast<const Qvx32f*>(dst)));
}

// dst[n] = the sum of taps[i] * src[n - positions[i]], tap by tap in this order for every output, whatever the cut of the stream.
inline void sumTaps(const Qvx32f* taps, const Qvx32s* positions, int count, const Qvx32f* src, Qvx32f* dst, size_t n) {
  constexpr size_t kBlock = 1024;
  for (size_t at = 0; at < n; at += kBlock) {
    const size_t length = std::min(kBlock, n - at);
    std::fill_n(dst + at, length, 0.0F);
    for (int i = 0; i < count; ++i) addTap(src + at - positions[i], dst + at, length, taps[i]);
  }
}

// Moves a window of the last `order` samples, oldest first, on by n samples that end at `end`; those of short vectors are already
// in it.
inline void moveOn(Qvx32f* window, size_t order, const Qvx32f* end, size_t n) {
  if (n >= order) std::copy_n(end - order, order, window);
  else std::copy_n(window + n, order, window);
}

}  // namespace qvx::convolution
