// Converts float lanes to 32-bit integer lanes in a round mode; and the limits that must be applied first.
#pragma once

#include <limits>

#include <qvx/qvxdefs.h>
#include "frame/simd.h"

namespace qvx {

template <class V> V clippedAbove(V v, LaneOf<V> most) { return hn::Min(v, same<V>(most)); }
template <class V> V clippedBelow(V v, LaneOf<V> least) { return hn::Max(v, same<V>(least)); }

// To nearest even needs the processor's nearest mode where kRoundsByInstruction is not set.
template <int kMode> struct ToInt {
  template <class V> auto operator()(V v) const {
    if constexpr (kMode == qvxRoundTowardZero) return toIntTruncated(v);
    else if constexpr (kMode == qvxRoundNearestEven) return toIntNearest(v);
    else return toIntTruncated(v + hn::CopySignToAbs(same<V>(LaneOf<V>(0.5)), v));
  }
};

// Converts floats to integers in the range of T, in lanes of 32 bits. Values at or above the largest T, and NaN, give the largest
// T; values below the range of 32 bits give the least, which saturates on the way to a narrower type.
template <class T, class Convert, class V> auto toIntsBelow(V v, Convert convert) {
  if constexpr (sizeof(T) == 4 && sizeof(LaneOf<V>) == 4) {
    // No float equals the largest integer: lanes not below 2^31 have their indefinite value inverted.
    return convert(v) ^ as<int32_t>(hn::VecFromMask(TagOf<V>(), hn::Not(v < same<V>(0x1p31F))));
  } else {
    return convert(clippedAbove(v, std::numeric_limits<T>::max()));
  }
}

}  // namespace qvx
