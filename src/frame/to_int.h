// Float lanes to 32-bit integer lanes by a round mode, and the limits that go before it.
#pragma once

#include "frame/simd.h"
#include "qvx/qvxdefs.h"

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

}  // namespace qvx
