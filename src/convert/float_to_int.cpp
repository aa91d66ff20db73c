// Floats to integers with a scale factor and a round mode.
//
// Values are clipped as floats, so that no element needs a branch: against the upper limit by a minimum that gives the limit
// for NaN, while values below the range convert to the most negative integer and saturate on the way to a narrower type.
#include <cmath>

#include "frame/packed24.h"
#include "frame/power.h"
#include "frame/rounding.h"
#include "frame/to_int.h"
#include "frame/to_int64.h"

using namespace qvx;

namespace {

struct ToIntInMode {
  template <class V> auto operator()(V v) const { return toInt(v); }
};

// Elements from which AVX2 sets the processor's rounding mode, which takes 1 ns, instead of two more operations a vector.
constexpr int kWorthScope = 128;

// Runs `with` on the conversion of the round mode. half: the processor's mode in which the half is added. The product before it
// is exact, or too small or too large for the mode to matter.
template <class With> QvxStatus byMode(QvxRoundMode mode, Rounding half, int len, const With& with) {
  if (mode == qvxRoundTowardZero) return with(ToInt<qvxRoundTowardZero>());
  if (mode == qvxRoundNearestEven) {
    if (kHasMasks || (kRoundsByInstruction && len < kWorthScope)) return with(ToInt<qvxRoundNearestEven>());
    const RoundingScope scope(Rounding::kNearest);
    return with(ToIntInMode());
  }
  const RoundingScope scope(half);
  return with(ToInt<qvxRoundHalfAway>());
}

// Lanes of 32 bits to bytes, in order. Instructions that take four vectors leave the blocks of each side by side.
template <class T, class V> auto bytesInOrder(Quad<V> v) {
  const auto half = [](V lo, V hi) { return narrow<int16_t>(Pair<V>{lo, hi}); };
  const auto lo = half(v.a, v.b);
  const auto bytes = narrow<T>(Pair<std::remove_const_t<decltype(lo)>>{lo, half(v.c, v.d)});
  if constexpr (kLanesOf<V> == 8) {
    alignas(32) static constexpr int32_t kOrder[] = {0, 4, 1, 5, 2, 6, 3, 7};
    const Lanes<int32_t, kLanesOf<V>> words;
    return as<T>(hn::TableLookupLanes(as<int32_t>(bytes), hn::SetTableIndices(words, kOrder)));
  } else {
    return bytes;
  }
}

// 32-bit floats to 8 and 16 bits.
template <class T> QvxStatus toNarrow(const Qvx32f* src, T* dst, int len, QvxRoundMode mode, int scaleFactor) {
  const QvxStatus status = check(len, src, dst);
  if (status != qvxStatOk) return status;
  const Qvx32f factor = powerOfTwo<Qvx32f>(-int64_t{scaleFactor});
  return byMode(mode, Rounding::kNearest, len, [=](auto convert) {
    const auto toInts = [=](auto v) {
      auto scaled = v * same<decltype(v)>(factor);
      if constexpr (std::is_unsigned_v<T>) scaled = clippedBelow(scaled, 0);
      return toIntsBelow<T>(scaled, convert);
    };
    if constexpr (sizeof(T) == 2) {
      return loop([=](auto pair) { return narrowInOrder<T>(each(pair, toInts)); }, destination(dst), elements(len), InPairs{src});
    } else if constexpr (!kHasMasks) {  // four vectors to a store: 256 floats take 0.6 of the time
      return loop([=](auto quad) { return bytesInOrder<T>(each(quad, toInts)); }, destination(dst), elements(len), Quads{src});
    } else {
      return loop([=](auto v) { return convertLanes<T>(toInts(v)); }, destination(dst), elements(len), source(src));
    }
  });
}

template <class T> QvxStatus to32(const T* src, Qvx32s* dst, int len, QvxRoundMode mode, int scaleFactor) {
  const QvxStatus status = check(len, src, dst);
  if (status != qvxStatOk) return status;
  const T factor = powerOfTwo<T>(-int64_t{scaleFactor});
  return byMode(mode, Rounding::kCallers, len, [=](auto convert) {
    return loop([=](auto v) { return toIntsBelow<Qvx32s>(v * same<decltype(v)>(factor), convert); }, destination(dst),
                elements(len), source(src));
  });
}

// 24 bits: clipped from below first, so that NaN becomes the lower limit.
template <class T> QvxStatus to24(const Qvx32f* src, Qvx8u* dst, int len, int scaleFactor) {
  using Range = Range24<T>;
  const QvxStatus status = check(len, src, dst);
  if (status != qvxStatOk) return status;
  const Qvx32f factor = powerOfTwo<Qvx32f>(-int64_t{scaleFactor});
  const RoundingScope nearest(Rounding::kNearest);
  const auto toInts = [=](auto v) {
    return toIntNearest(clippedAbove(clippedBelow(v * same<decltype(v)>(factor), Range::kLeast), Range::kMost));
  };
  return loop([=](auto quad) { return each(quad, toInts); }, To24<Qvx32s>{dst}, elements(len), Quads{src});
}

// 64-bit floats to 64 bits. NaN gives 0, and so does everything if the factor underflows.
template <int kMode, bool kTwoFactors> struct ToInt64 {
  double factor1;
  double factor2;  // where one would overflow

  template <class V> auto operator()(V x) const {
    V v = x * same<V>(factor1);
    if constexpr (kTwoFactors) v = v * same<V>(factor2);
    V whole = v;  // to nearest, what follows rounds in the processor's mode
    if constexpr (kMode != qvxRoundNearestEven) whole = hn::Trunc(v);
    else if constexpr (kRoundsByInstruction) whole = hn::Round(v);
    if constexpr (kMode == qvxRoundHalfAway) {
      const auto up = hn::Abs(v - whole) >= same<V>(0.5);
      whole = whole + hn::IfThenElseZero(up, hn::CopySignToAbs(same<V>(1.0), v));
    }
    // Values below the range convert to the most negative integer; clamped to just that, they do in all variants.
    V limit = hn::Max(whole, same<V>(-0x1p63));
    if constexpr (!kHasMasks) limit = hn::Min(limit, same<V>(0x1p63));
    const auto number = wholeToInt64(limit);
    using N = std::remove_const_t<decltype(number)>;
    const hn::Rebind<int64_t, TagOf<V>> di;
    const N limited = hn::IfThenElse(hn::RebindMask(di, whole >= same<V>(0x1p63)), same<N>(INT64_MAX), number);
    return hn::IfThenElseZero(hn::RebindMask(di, whole == whole), limited);
  }
};

template <bool kTwoFactors, class With>
QvxStatus toInt64ByMode(QvxRoundMode mode, double factor1, double factor2, const With& with) {
  if (mode == qvxRoundTowardZero) return with(ToInt64<qvxRoundTowardZero, kTwoFactors>{factor1, factor2});
  if (mode == qvxRoundNearestEven) return with(ToInt64<qvxRoundNearestEven, kTwoFactors>{factor1, factor2});
  return with(ToInt64<qvxRoundHalfAway, kTwoFactors>{factor1, factor2});
}

}  // namespace

QvxStatus qvxsConvert_64f16s_Sfs(const Qvx64f* a, Qvx16s* d, int len, QvxRoundMode mode, int sf) {
  const QvxStatus status = check(len, a, d);
  if (status != qvxStatOk) return status;
  const Qvx64f factor = powerOfTwo<Qvx64f>(-std::clamp(sf, -1008, 1022));
  return byMode(mode, Rounding::kTowardZero, len, [=](auto convert) {
    return loop(
        [=](auto v) {
          const auto clipped = clippedBelow(clippedAbove(v * same<decltype(v)>(factor), INT16_MAX), INT16_MIN);
          return convertLanes<int16_t>(convert(clipped));
        },
        destination(d), elements(len), source(a));
  });
}

QvxStatus qvxsConvert_64f64s_Sfs(const Qvx64f* a, Qvx64s* d, Qvx32u len, QvxRoundMode mode, int sf) {
  const QvxStatus status = check(Unsigned{len}, a, d);
  if (status != qvxStatOk) return status;
  const auto with = [=](auto kernel) { return loop(kernel, destination(d), len, source(a)); };
  const int64_t exponent = -int64_t{sf};
  if (exponent < -1074) return with([](auto v) { return hn::Zero(hn::Rebind<int64_t, TagOf<decltype(v)>>()); });
  const double factor1 = powerOfTwo<double>(std::min<int64_t>(exponent, 1000));
  const double factor2 = powerOfTwo<double>(std::max<int64_t>(exponent - 1000, 0));
  const RoundingScope nearest(kRoundsByInstruction ? Rounding::kCallers : Rounding::kNearest);
  if (factor2 != 1) return toInt64ByMode<true>(mode, factor1, factor2, with);
  return toInt64ByMode<false>(mode, factor1, factor2, with);
}

// clang-format off
QvxStatus qvxsConvert_32f8s_Sfs(const Qvx32f* a, Qvx8s* d, int len, QvxRoundMode mode, int sf) { return toNarrow(a, d, len, mode, sf); }
QvxStatus qvxsConvert_32f8u_Sfs(const Qvx32f* a, Qvx8u* d, int len, QvxRoundMode mode, int sf) { return toNarrow(a, d, len, mode, sf); }
QvxStatus qvxsConvert_32f16s_Sfs(const Qvx32f* a, Qvx16s* d, int len, QvxRoundMode mode, int sf) { return toNarrow(a, d, len, mode, sf); }
QvxStatus qvxsConvert_32f16u_Sfs(const Qvx32f* a, Qvx16u* d, int len, QvxRoundMode mode, int sf) { return toNarrow(a, d, len, mode, sf); }
QvxStatus qvxsConvert_32f32s_Sfs(const Qvx32f* a, Qvx32s* d, int len, QvxRoundMode mode, int sf) { return to32(a, d, len, mode, sf); }
QvxStatus qvxsConvert_64f32s_Sfs(const Qvx64f* a, Qvx32s* d, int len, QvxRoundMode mode, int sf) { return to32(a, d, len, mode, sf); }
QvxStatus qvxsConvert_32f24u_Sfs(const Qvx32f* a, Qvx8u* d, int len, int sf) { return to24<Qvx32u>(a, d, len, sf); }
QvxStatus qvxsConvert_32f24s_Sfs(const Qvx32f* a, Qvx8u* d, int len, int sf) { return to24<Qvx32s>(a, d, len, sf); }
// clang-format on
