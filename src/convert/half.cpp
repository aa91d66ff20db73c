// IEEE 754 binary16, a storage form: 32-bit floats in all arithmetic.
//
// Variants without an instruction for the conversions compute the same bits, under the processor's rounding mode.
#include "frame/map.h"
#include "frame/power.h"
#include "frame/rounding.h"

using namespace qvx;

namespace {

constexpr bool kHasInstruction = QVXS_AVX2;

struct FromHalf {
  template <class V>  // uint16_t lanes
  auto operator()(V v) const {
    const hn::Rebind<float, TagOf<V>> df;
    if constexpr (kHasInstruction) {
      return hn::PromoteTo(df, hn::BitCast(hn::Rebind<hwy::float16_t, TagOf<V>>(), v));
    } else {
      const auto wide = convertLanes<uint32_t>(v);
      using W = decltype(wide + wide);
      const W magnitude = wide & same<W>(0x7FFF);
      const W sign = hn::ShiftLeft<16>(wide ^ magnitude);
      const W shifted = hn::ShiftLeft<13>(magnitude);
      const W normal = shifted + same<W>(112U << 23);
      // Subnormal halves as integers times 2^-24: no float is subnormal on the way, which the caller's mode might flush.
      const W subnormal = as<uint32_t>(hn::ConvertTo(df, as<int32_t>(magnitude)) * hn::Set(df, 0x1p-24F));
      const W quiet = hn::IfThenElseZero(magnitude > same<W>(0x7C00), same<W>(0x00400000));
      const W special = shifted | same<W>(0x7F800000) | quiet;
      const W finite = hn::IfThenElse(magnitude < same<W>(0x0400), subnormal, normal);
      return as<float>(hn::IfThenElse(magnitude > same<W>(0x7BFF), special, finite) | sign);
    }
  }
};

template <bool kNearest> struct ToHalf {
  template <class V>  // float lanes
  auto operator()(V v) const {
    const hn::Rebind<uint16_t, TagOf<V>> d16;
    if constexpr (kHasInstruction) {
      return toHalf<kNearest>(v);
    } else {
      const auto bits = as<uint32_t>(v);
      using W = decltype(bits + bits);
      const W magnitude = bits & same<W>(0x7FFFFFFF);
      const W sign = hn::ShiftRight<16>(bits ^ magnitude);
      W rounded = magnitude;
      if constexpr (kNearest) rounded = magnitude + same<W>(0x0FFF) + (hn::ShiftRight<13>(magnitude) & same<W>(1));
      // An overflow ends at infinity, or at the largest number where rounding goes toward zero.
      const W largest = kNearest ? same<W>(0x7C00) : same<W>(0x7BFF);
      const W normal = hn::Min(hn::ShiftRight<13>(rounded) - same<W>(112U << 10), largest);
      // The unit in the last place of 0.5 is the smallest half, so the processor does the rounding.
      const W subnormal = as<uint32_t>(as<float>(magnitude) + same<V>(0.5F)) - as<uint32_t>(same<V>(0.5F));
      const W number = same<W>(0x7E00) | (hn::ShiftRight<13>(magnitude) & same<W>(0x03FF));
      W result = hn::IfThenElse(magnitude < same<W>(0x38800000), subnormal, normal);
      result = hn::IfThenElse(magnitude == same<W>(0x7F800000), same<W>(0x7C00), result);
      result = hn::IfThenElse(magnitude > same<W>(0x7F800000), number, result);
      return hn::TruncateTo(d16, result | sign);
    }
  }
};

QvxStatus checkHalf(const void* src, const void* dst, int len, QvxRoundMode mode) {
  const QvxStatus status = check(len, src, dst);
  if (status != qvxStatOk) return status;
  return mode == qvxRoundHalfAway ? qvxStatBadRoundMode : qvxStatOk;
}

template <class T> QvxStatus halves(const T* src, Qvx16f* dst, int len, QvxRoundMode mode) {
  const QvxStatus status = checkHalf(src, dst, len, mode);
  if (status != qvxStatOk) return status;
  const auto with = [=](auto convert) {
    return loop<float>([convert](auto v) { return convert(convertLanes<float>(v)); }, destination(dst), elements(len),
                       source(src));
  };
  const bool nearest = mode == qvxRoundNearestEven;
  const RoundingScope scope(kHasInstruction ? Rounding::kCallers : nearest ? Rounding::kNearest : Rounding::kTowardZero);
  return nearest ? with(ToHalf<true>()) : with(ToHalf<false>());
}

}  // namespace

QvxStatus qvxsConvert_16f32f(const Qvx16f* a, Qvx32f* d, int len) {
  const QvxStatus status = check(len, a, d);
  if (status != qvxStatOk) return status;
  return loop(FromHalf(), destination(d), elements(len), source(a));
}

QvxStatus qvxsConvert_16f16s_Sfs(const Qvx16f* a, Qvx16s* d, int len, QvxRoundMode mode, int sf) {
  const QvxStatus status = checkHalf(a, d, len, mode);
  if (status != qvxStatOk) return status;
  const float factor = powerOfTwo<float>(-int64_t{sf});
  const auto with = [=](auto convert) {
    return loop<float>(
        [=](auto v) {
          const auto scaled = FromHalf()(v) * hn::Set(hn::Rebind<float, TagOf<decltype(v)>>(), factor);
          return convertLanes<int16_t>(convert(hn::Min(scaled, same<std::remove_const_t<decltype(scaled)>>(32767.0F))));
        },
        destination(d), elements(len), source(a));
  };
  if (mode != qvxRoundNearestEven) return with([](auto v) { return toIntTruncated(v); });
  const RoundingScope scope(kRoundsByInstruction ? Rounding::kCallers : Rounding::kNearest);
  return with([](auto v) { return toIntNearest(v); });
}

// clang-format off
QvxStatus qvxsConvert_32f16f(const Qvx32f* a, Qvx16f* d, int len, QvxRoundMode mode) { return halves(a, d, len, mode); }
QvxStatus qvxsConvert_16s16f(const Qvx16s* a, Qvx16f* d, int len, QvxRoundMode mode) { return halves(a, d, len, mode); }
// clang-format on
