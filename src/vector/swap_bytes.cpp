// The bytes of every element in reverse.
#include "frame/map.h"

using namespace qvx;

namespace {

struct Swap {
  template <class V> V operator()(V v) const {
    using T = LaneOf<V>;
    const Lanes<uint8_t, kLanesOf<V> * sizeof(T)> d;
    const auto order = hn::Iota(d, 0) ^ hn::Set(d, sizeof(T) - 1);
    return as<T>(hn::TableLookupBytes(as<uint8_t>(v), order));
  }
};

// Three bytes an element: five of them and the first byte of the sixth at a time. That byte is written back as it was, so
// the next round finds it unharmed in place too.
QvxStatus swap24(const Qvx8u* src, Qvx8u* dst, int len) {
  const QvxStatus status = check(len, src, dst);
  if (status != qvxStatOk) return status;
  const Lanes<uint8_t, 16> d;
  alignas(16) static constexpr uint8_t kOrder[16] = {2, 1, 0, 5, 4, 3, 8, 7, 6, 11, 10, 9, 14, 13, 12, 15};
  const auto order = load(d, kOrder);
  const size_t bytes = 3 * elements(len);
  size_t i = 0;
  for (; i + 16 <= bytes; i += 15) store(hn::TableLookupBytes(load(d, src + i), order), d, dst + i);
  if (i < bytes) storeFirst(hn::TableLookupBytes(loadFirst(d, src + i, bytes - i), order), d, dst + i, bytes - i);
  return qvxStatOk;
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
