// The bytes of every element in reverse.
#include "frame/packed24.h"

using namespace qvx;

namespace {

struct Swap {
  template <class V> V operator()(V v) const {
    constexpr uint8_t kLast = sizeof(LaneOf<V>) - 1;
    const Lanes<uint8_t, kLanesOf<V>*(kLast + 1)> d;
    return as<LaneOf<V>>(hn::TableLookupBytes(as<uint8_t>(v), hn::Iota(d, 0) ^ hn::Set(d, kLast)));
  }
};

QvxStatus swap24(const Qvx8u* src, Qvx8u* dst, int len) {
  const QvxStatus status = check(len, src, dst);
  if (status != qvxStatOk) return status;
  constexpr auto kReversed = Block24::kReversed;
  return loop([](auto quad) { return quad; }, To24<Qvx32u, kReversed>{dst}, elements(len), From24<Qvx32u, kReversed>{src});
}

}  // namespace

// clang-format off
QvxStatus qvxsSwapBytes_16u(const Qvx16u* a, Qvx16u* d, int len) { return map<Swap>(d, len, AsIs{}, a); }
QvxStatus qvxsSwapBytes_16u_I(Qvx16u* d, int len) { return map<Swap>(d, len, AsIs{}, d); }
QvxStatus qvxsSwapBytes_24u(const Qvx8u* a, Qvx8u* d, int len) { return swap24(a, d, len); }
QvxStatus qvxsSwapBytes_24u_I(Qvx8u* d, int len) { return swap24(d, d, len); }
QvxStatus qvxsSwapBytes_32u(const Qvx32u* a, Qvx32u* d, int len) { return map<Swap>(d, len, AsIs{}, a); }
QvxStatus qvxsSwapBytes_32u_I(Qvx32u* d, int len) { return map<Swap>(d, len, AsIs{}, d); }
QvxStatus qvxsSwapBytes_64u(const Qvx64u* a, Qvx64u* d, int len) { return map<Swap>(d, len, AsIs{}, a); }
QvxStatus qvxsSwapBytes_64u_I(Qvx64u* d, int len) { return map<Swap>(d, len, AsIs{}, d); }
// clang-format on
