// The remainder of a quotient or a root, in its own precision.
#pragma once

#include "frame/simd.h"

namespace qvx {

// c - a * b with one rounding, or very nearly so.
template <class V> V remainderOf(V a, V b, V c) {
  if constexpr (kFuses) {
    return hn::NegMulAdd(a, b, c);
  } else {
    const V product = a * b;
    const auto upper = [](V v) {  // of its digits a half
      const V large = v * same<V>(0x1p27 + 1);
      return large - (large - v);
    };
    const V aHigh = upper(a);
    const V bHigh = upper(b);
    const V aLow = a - aHigh;
    const V bLow = b - bHigh;
    return (c - product) - (((aHigh * bHigh - product) + aHigh * bLow + aLow * bHigh) + aLow * bLow);
  }
}

}  // namespace qvx
