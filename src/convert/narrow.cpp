// Integers to narrower integers.
#include "convert/packed24.h"

using namespace qvx;

namespace {

// Saturated to the destination, which may be 24 bits of a 32-bit lane.
template <class V> V clamped(V v, LaneOf<V> least, LaneOf<V> most) { return hn::Min(hn::Max(v, same<V>(least)), same<V>(most)); }

struct Into16 {
  template <class V> auto operator()(V v) const { return convertLanes<int16_t>(v); }
};

// 64-bit lanes within the range of 32 bits.
template <class V> auto lowWords(V v) {
  const hn::Rebind<int32_t, TagOf<V>> d;
  return hn::BitCast(d, hn::TruncateTo(hn::RebindToUnsigned<decltype(d)>(), as<uint64_t>(v)));
}

// Runs `with` on the shift kernel of the round mode; anything but the two others is half away.
template <class With> QvxStatus byMode(QvxRoundMode mode, int s, const With& with) {
  if (mode == qvxRoundTowardZero) return with(ShiftByMode<qvxRoundTowardZero>{s});
  if (mode == qvxRoundNearestEven) return with(ShiftByMode<qvxRoundNearestEven>{s});
  return with(ShiftByMode<qvxRoundHalfAway>{s});
}

// 24 bits of T in 32-bit lanes.
template <class T> QvxStatus to24(const T* src, Qvx8u* dst, int len, int scaleFactor) {
  using Range = Range24<T>;
  const QvxStatus status = check(len, src, dst);
  if (status != qvxStatOk) return status;
  const auto with = [=](auto kernel) { return loop(kernel, To24<T>{dst}, elements(len), source(src)); };
  if (scaleFactor > 0) {
    return with([s = std::min(scaleFactor, 31)](auto v) { return clamped(roundedShift(v, s), Range::kLeast, Range::kMost); });
  }
  const int places = -std::max(scaleFactor, -31);
  return with([places](auto v) { return clamped(saturatedShiftLeft(v, places), Range::kLeast, Range::kMost); });
}

}  // namespace

QvxStatus qvxsConvert_32s16s_Sfs(const Qvx32s* a, Qvx16s* d, int len, int sf) {
  const QvxStatus status = check(len, a, d);
  if (status != qvxStatOk) return status;
  const auto with = [=](auto kernel) { return loop(kernel, destination(d), elements(len), source(a)); };
  if (sf == 0) return with(Into16());
  if (sf > 0) return with([s = std::min(sf, 31)](auto v) { return Into16()(roundedShift(v, s)); });
  return with([places = -std::max(sf, -15)](auto v) { return saturatedShiftLeft(Into16()(v), places); });
}

QvxStatus qvxsConvert_16s8s_Sfs(const Qvx16s* a, Qvx8s* d, Qvx32u len, QvxRoundMode mode, int sf) {
  const QvxStatus status = check(Unsigned{len}, a, d);
  if (status != qvxStatOk) return status;
  const auto with = [=](auto kernel) {
    return loop([kernel](auto v) { return convertLanes<int8_t>(kernel(v)); }, destination(d), len, source(a));
  };
  // From 17 places on nothing reaches a half.
  if (sf > 16) return with([](auto v) { return hn::Zero(TagOf<decltype(v)>()); });
  if (sf > 0) {
    return byMode(mode, sf, [&](auto shift) {
      return with([shift](auto v) { return shift(Halved<decltype(v)>{hn::ShiftRight<1>(v), v}); });
    });
  }
  return with([places = -std::max(sf, -15)](auto v) { return saturatedShiftLeft(v, places); });
}

QvxStatus qvxsConvert_64s32s_Sfs(const Qvx64s* a, Qvx32s* d, int len, QvxRoundMode mode, int sf) {
  const QvxStatus status = check(len, a, d);
  if (status != qvxStatOk) return status;
  const auto with = [=](auto kernel) {
    return loop([kernel](auto v) { return lowWords(clamped(kernel(v), INT32_MIN, INT32_MAX)); }, destination(d), elements(len),
                source(a));
  };
  if (sf > 0) {
    return byMode(mode, std::min(sf, 63), [&](auto shift) {
      return with([shift](auto v) { return shift(Halved<decltype(v)>{hn::ShiftRight<1>(v), v}); });
    });
  }
  return with([places = -std::max(sf, -31)](auto v) { return saturatedShiftLeft(v, places); });
}

// clang-format off
QvxStatus qvxsConvert_32s16s(const Qvx32s* a, Qvx16s* d, int len) { return map<Into16>(d, len, AsIs{}, a); }
QvxStatus qvxsConvert_32u24u_Sfs(const Qvx32u* a, Qvx8u* d, int len, int sf) { return to24(a, d, len, sf); }
QvxStatus qvxsConvert_32s24s_Sfs(const Qvx32s* a, Qvx8u* d, int len, int sf) { return to24(a, d, len, sf); }
// clang-format on
