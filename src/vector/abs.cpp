// dst = |src|
#include "frame/past_caches.h"

using namespace qvx;

namespace {

// Read as unsigned, the bits of the most negative integer are its magnitude, one more than the type holds.
struct Magnitude {
  template <class V> V operator()(V v) const {
    using T = LaneOf<V>;
    if constexpr (std::is_floating_point_v<T>) return hn::Abs(v);
    else if constexpr (sizeof(T) == 2) return hn::Max(v, hn::SaturatedSub(hn::Zero(TagOf<V>()), v));
    else return hn::Abs(v) + hn::BroadcastSignBit(hn::Abs(v));
  }
};

}  // namespace

// clang-format off
QvxStatus qvxsAbs_16s(const Qvx16s* a, Qvx16s* d, int len) { return map<Magnitude>(d, len, AsIs{}, a); }
QvxStatus qvxsAbs_16s_I(Qvx16s* d, int len) { return map<Magnitude>(d, len, AsIs{}, d); }
QvxStatus qvxsAbs_32s(const Qvx32s* a, Qvx32s* d, int len) { return map<Magnitude>(d, len, AsIs{}, a); }
QvxStatus qvxsAbs_32s_I(Qvx32s* d, int len) { return map<Magnitude>(d, len, AsIs{}, d); }
QvxStatus qvxsAbs_32f(const Qvx32f* a, Qvx32f* d, int len) { return map<Magnitude>(d, len, PastCaches{}, a); }
QvxStatus qvxsAbs_32f_I(Qvx32f* d, int len) { return map<Magnitude>(d, len, AsIs{}, d); }
QvxStatus qvxsAbs_64f(const Qvx64f* a, Qvx64f* d, int len) { return map<Magnitude>(d, len, PastCaches{}, a); }
QvxStatus qvxsAbs_64f_I(Qvx64f* d, int len) { return map<Magnitude>(d, len, AsIs{}, d); }
// clang-format on
