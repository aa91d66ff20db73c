// Sums of 32 bits, which wrap, scaled to 16-bit results.
#pragma once

#include "frame/map.h"

namespace qvx::convolution {

// Times 2^places, rounded to nearest even, or wrapped.
struct SumShift {
  int places;

  static SumShift of(int64_t places) { return {static_cast<int>(std::clamp<int64_t>(places, -31, 32))}; }

  template <class V> V operator()(V sum) const {
    if (places < 0) return roundedShift(sum, -places);
    return places > 31 ? hn::Zero(TagOf<V>()) : hn::ShiftLeftSame(sum, places);
  }
};

}  // namespace qvx::convolution
