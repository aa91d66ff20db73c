// Float lanes to 32-bit integer lanes by a round mode, and the limits that go before it.
#pragma once

#include <limits>

#include "frame/simd.h"
#include <qvx/qvxdefs.h>

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

// Floats to the integers of T, in lanes of 32 bits: the largest T for what is not below it, be it a number or not. What lies
// below the range of 32 bits becomes the least, and saturates on the way to a narrower type.
template <class T, class Convert, class V> auto toIntsBelow(V v, Convert convert) {
  if constexpr (sizeof(T) == 4 && sizeof(LaneOf<V>) == 4) {
    // The largest number has no float of its own: what is not below 2^31 has its indefinite value turned over.
    return convert(v) ^ as<int32_t>(hn::VecFromMask(TagOf<V>(), hn::Not(v < same<V>(0x1p31F))));
  } else {
    return convert(clippedAbove(v, std::numeric_limits<T>::max()));
  }
}

}  // namespace qvx
