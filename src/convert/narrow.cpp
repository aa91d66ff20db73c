// Integers to narrower integers.
#include "frame/packed24.h"

using namespace qvx;

namespace {

// Saturated to the destination, which may be 24 bits of a 32-bit lane.
template <class V> V clamped(V v, LaneOf<V> least, LaneOf<V> most) { return hn::Min(hn::Max(v, same<V>(least)), same<V>(most)); }

// 32 to 16 bits after a function of 32-bit lanes.
template <class F> QvxStatus to16(const Qvx32s* src, Qvx16s* dst, int len, F f) {
  return loop([f](auto pair) { return narrowInOrder<int16_t>(each(pair, f)); }, destination(dst), elements(len), InPairs{src});
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
  const auto with = [=](auto kernel) {
    return loop([kernel](auto quad) { return each(quad, kernel); }, To24<T>{dst}, elements(len), Quads{src});
  };
  if (scaleFactor > 0) {
    return with([s = std::min(scaleFactor, 31)](auto v) { return clamped(roundedShift(v, s), Range::kLeast, Range::kMost); });
  }
  const int places = -std::max(scaleFactor, -31);
  return with([places](auto v) { return clamped(saturatedShiftLeft(v, places), Range::kLeast, Range::kMost); });
}

}  // namespace

QvxStatus qvxsConvert_32s16s(const Qvx32s* a, Qvx16s* d, int len) {
  const QvxStatus status = check(len, a, d);
  return status != qvxStatOk ? status : to16(a, d, len, [](auto v) { return v; });
}

QvxStatus qvxsConvert_32s16s_Sfs(const Qvx32s* a, Qvx16s* d, int len, int sf) {
  if (sf == 0) return qvxsConvert_32s16s(a, d, len);
  const QvxStatus status = check(len, a, d);
  if (status != qvxStatOk) return status;
  if (sf > 15) return to16(a, d, len, [s = std::min(sf, 31)](auto v) { return roundedShift(v, s); });
  if (sf > 0) {
    // The limit is far beyond 16 bits and leaves room to add the half.
    const Qvx32s most = INT32_MAX - (1 << (sf - 1));
    return to16(a, d, len, [=](auto v) { return roundedShiftRoomy(hn::Min(v, same<decltype(v)>(most)), sf); });
  }
  return to16(a, d, len, [places = -std::max(sf, -15)](auto v) { return saturatedShiftLeft(v, places); });
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
    return loop([kernel](auto pair) { return saturatedTo32(each(pair, kernel)); }, destination(d), elements(len), InPairs{a});
  };
  if (sf <= 0) return with([places = -std::max(sf, -31)](auto v) { return saturatedShiftLeft(v, places); });
  const int places = std::min(sf, 63);
  if (mode == qvxRoundNearestEven) return with([places](auto v) { return roundedShift(v, places); });
  return byMode(mode, places, [&](auto shift) {
    return with([shift](auto v) { return shift(Halved<decltype(v)>{hn::ShiftRight<1>(v), v}); });
  });
}

// clang-format off
QvxStatus qvxsConvert_32u24u_Sfs(const Qvx32u* a, Qvx8u* d, int len, int sf) { return to24(a, d, len, sf); }
QvxStatus qvxsConvert_32s24s_Sfs(const Qvx32s* a, Qvx8u* d, int len, int sf) { return to24(a, d, len, sf); }
// clang-format on
