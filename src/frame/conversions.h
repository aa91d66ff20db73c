// Lanes of another width or type.
#pragma once

#include "frame/shuffles.h"

namespace qvx {

namespace detail {

// Instructions without a Highway operation of just their meaning: saturating packs that keep to 128-bit blocks, and float to
// integer conversions that leave the processor's indefinite value (the most negative integer) for all they cannot represent.
inline __m128i packU8(__m128i lo, __m128i hi) { return _mm_packus_epi16(lo, hi); }
inline __m128i packS8(__m128i lo, __m128i hi) { return _mm_packs_epi16(lo, hi); }
inline __m128i packS16(__m128i lo, __m128i hi) { return _mm_packs_epi32(lo, hi); }
inline __m128i toIntCurrent(__m128 v) { return _mm_cvtps_epi32(v); }
inline __m128i toIntTruncated(__m128 v) { return _mm_cvttps_epi32(v); }
inline __m128i toIntCurrent(__m128d v) { return _mm_cvtpd_epi32(v); }
inline __m128i toIntTruncated(__m128d v) { return _mm_cvttpd_epi32(v); }
#if QVXS_AVX2
inline __m128i packU16(__m128i lo, __m128i hi) { return _mm_packus_epi32(lo, hi); }
inline __m256i packU8(__m256i lo, __m256i hi) { return _mm256_packus_epi16(lo, hi); }
inline __m256i packS8(__m256i lo, __m256i hi) { return _mm256_packs_epi16(lo, hi); }
inline __m256i packS16(__m256i lo, __m256i hi) { return _mm256_packs_epi32(lo, hi); }
inline __m256i packU16(__m256i lo, __m256i hi) { return _mm256_packus_epi32(lo, hi); }
inline __m256i toIntCurrent(__m256 v) { return _mm256_cvtps_epi32(v); }
inline __m256i toIntTruncated(__m256 v) { return _mm256_cvttps_epi32(v); }
inline __m128i toIntCurrent(__m256d v) { return _mm256_cvtpd_epi32(v); }
inline __m128i toIntTruncated(__m256d v) { return _mm256_cvttpd_epi32(v); }
// To nearest whatever the processor's mode: a wide register takes the mode with the instruction, the others round first.
inline __m128i toIntNearest(__m128 v) { return _mm_cvttps_epi32(_mm_round_ps(v, kNearest)); }
inline __m128i toIntNearest(__m128d v) { return _mm_cvttpd_epi32(_mm_round_pd(v, kNearest)); }
inline __m256i toIntNearest(__m256 v) { return _mm256_cvttps_epi32(_mm256_round_ps(v, kNearest)); }
inline __m128i toIntNearest(__m256d v) { return _mm256_cvttpd_epi32(_mm256_round_pd(v, kNearest)); }
constexpr int kToward0 = _MM_FROUND_TO_ZERO | _MM_FROUND_NO_EXC;
template <int kMode> __m128i toHalf(__m128 v) { return _mm_cvtps_ph(v, kMode); }
template <int kMode> __m128i toHalf(__m256 v) { return _mm256_cvtps_ph(v, kMode); }
#else
inline __m128d toDouble(__m128i v) {
  const auto part = [](__m128i lane) { return _mm_cvtsi64_sd(_mm_setzero_pd(), _mm_cvtsi128_si64(lane)); };
  return _mm_unpacklo_pd(part(v), part(_mm_unpackhi_epi64(v, v)));
}
inline __m128i packU16(__m128i lo, __m128i hi) {  // for lanes from -2^31 + 2^15 on, which is all that callers have
  const __m128i bias = _mm_set1_epi32(0x8000);
  const __m128i packed = _mm_packs_epi32(_mm_sub_epi32(lo, bias), _mm_sub_epi32(hi, bias));
  return _mm_xor_si128(packed, _mm_set1_epi16(INT16_MIN));
}
#endif
#if QVXS_AVX512
inline __m512i packU8(__m512i lo, __m512i hi) { return _mm512_packus_epi16(lo, hi); }
inline __m512i packS8(__m512i lo, __m512i hi) { return _mm512_packs_epi16(lo, hi); }
inline __m512i packS16(__m512i lo, __m512i hi) { return _mm512_packs_epi32(lo, hi); }
inline __m512i packU16(__m512i lo, __m512i hi) { return _mm512_packus_epi32(lo, hi); }
inline __m512i toIntCurrent(__m512 v) { return _mm512_cvtps_epi32(v); }
inline __m512i toIntTruncated(__m512 v) { return _mm512_cvttps_epi32(v); }
inline __m256i toIntCurrent(__m512d v) { return _mm512_cvtpd_epi32(v); }
inline __m256i toIntTruncated(__m512d v) { return _mm512_cvttpd_epi32(v); }
inline __m512i toIntNearest(__m512 v) { return _mm512_cvt_roundps_epi32(v, kNearest); }
inline __m256i toIntNearest(__m512d v) { return _mm512_cvt_roundpd_epi32(v, kNearest); }
template <int kMode> __m256i toHalf(__m512 v) { return _mm512_cvtps_ph(v, kMode); }
inline __m128i toInt64(__m128d v) { return _mm_cvttpd_epi64(v); }
inline __m256i toInt64(__m256d v) { return _mm256_cvttpd_epi64(v); }
inline __m512i toInt64(__m512d v) { return _mm512_cvttpd_epi64(v); }
inline __m128i saturatedTo32(__m128i v) { return _mm_cvtsepi64_epi32(v); }
inline __m128i saturatedTo32(__m256i v) { return _mm256_cvtsepi64_epi32(v); }
inline __m256i saturatedTo32(__m512i v) { return _mm512_cvtsepi64_epi32(v); }
#endif

}  // namespace detail

// Two vectors of lanes twice as wide as To's, in the order of widen(), as one vector of To: saturated and in order again.
template <class To, class V> auto narrow(Pair<V> v) {
  using From = LaneOf<V>;
  static_assert(sizeof(From) == 2 * sizeof(To) && sizeof(From) <= 4);
  const hn::Repartition<To, TagOf<V>> d;
  if constexpr (std::is_same_v<To, uint8_t>) {
    return Vec<decltype(d)>{detail::packU8(v.lo.raw, v.hi.raw)};
  } else if constexpr (std::is_same_v<To, int8_t>) {
    return Vec<decltype(d)>{detail::packS8(v.lo.raw, v.hi.raw)};
  } else if constexpr (std::is_same_v<To, int16_t>) {
    return Vec<decltype(d)>{detail::packS16(v.lo.raw, v.hi.raw)};
  } else {
    return Vec<decltype(d)>{detail::packU16(v.lo.raw, v.hi.raw)};
  }
}

// narrow() for two vectors that follow each other in memory.
template <class To, class V> auto narrowInOrder(Pair<V> v) {
  auto packed = narrow<To>(v);
#if QVXS_AVX512
  if constexpr (sizeof(packed.raw) == 64) {
    packed.raw = _mm512_permutexvar_epi64(_mm512_setr_epi64(0, 2, 4, 6, 1, 3, 5, 7), packed.raw);
  }
#endif
#if QVXS_AVX2
  if constexpr (sizeof(packed.raw) == 32) packed.raw = _mm256_permute4x64_epi64(packed.raw, 0xD8);
#endif
  return packed;
}

// The lanes of a whole vector at twice their width: the low and the high half of every 128-bit block. That costs one instruction
// each; the order of elements would cost a shuffle across blocks.
template <class To, class V> auto widen(V v) {
  static_assert(sizeof(To) == 2 * sizeof(LaneOf<V>));
  const TagOf<V> d;
  V above = hn::Zero(d);
  if constexpr (std::is_signed_v<LaneOf<V>>) above = hn::BroadcastSignBit(v);
  return Pair<Vec<hn::Repartition<To, TagOf<V>>>>{as<To>(hn::InterleaveLower(d, v, above)),
                                                  as<To>(hn::InterleaveUpper(d, v, above))};
}

// 64-bit integers to doubles in the processor's rounding mode. Without an instruction for vectors, Highway adds two halves, which
// gives -0 for 0 when rounding down; of two lanes each takes the instruction for one number (0.8 of the time).
template <class V> auto toDouble(V v) {
  const hn::Rebind<double, TagOf<V>> d;
#if QVXS_AVX2
  const auto converted = hn::ConvertTo(d, v);
  if constexpr (kHasMasks) return converted;
  else return hn::BitCast(d, hn::IfThenZeroElse(v == same<V>(0), hn::BitCast(TagOf<V>(), converted)));
#else
  return Vec<decltype(d)>{detail::toDouble(v.raw)};
#endif
}

// Floats to 32-bit integers: in the processor's rounding mode, truncated, or to nearest whatever the mode (SSSE3 has no such
// instruction, so there the mode must be the nearest). What no int32 can hold becomes INT32_MIN.
inline constexpr bool kRoundsByInstruction = QVXS_AVX2;
template <class V> auto toInt(V v) { return Vec<hn::Rebind<int32_t, TagOf<V>>>{detail::toIntCurrent(v.raw)}; }
template <class V> auto toIntTruncated(V v) { return Vec<hn::Rebind<int32_t, TagOf<V>>>{detail::toIntTruncated(v.raw)}; }
template <class V> auto toIntNearest(V v) {
#if QVXS_AVX2
  return Vec<hn::Rebind<int32_t, TagOf<V>>>{detail::toIntNearest(v.raw)};
#else
  return toInt(v);
#endif
}

#if QVXS_AVX2
// Floats to binary16 in uint16_t lanes, to nearest or toward zero whatever the processor's mode.
template <bool kNearest, class V> auto toHalf(V v) {
  return Vec<hn::Rebind<uint16_t, TagOf<V>>>{detail::toHalf < kNearest ? detail::kNearest : detail::kToward0 > (v.raw)};
}
#endif

// Doubles truncated to 64-bit integers. Variants differ beyond the range of those.
template <class V> auto toInt64(V v) {
  const hn::Rebind<int64_t, TagOf<V>> d;
#if QVXS_AVX512
  return Vec<decltype(d)>{detail::toInt64(v.raw)};
#else
  return hn::ConvertTo(d, v);
#endif
}

// 64-bit lanes of two vectors saturated to 32-bit ones, in the order of evenAndOdd(). Without an instruction for it the upper
// words tell what does not fit: 9 instructions of SSSE3, where limits in lanes of 64 bits take 20.
#if !QVXS_AVX512
template <class V> auto saturatedWords(V x, V y) {
  const auto words = evenAndOdd(as<float>(x), as<float>(y));
  const auto low = as<int32_t>(words.re);
  const auto high = as<int32_t>(words.im);
  const auto extreme = hn::BroadcastSignBit(high) ^ same<std::remove_const_t<decltype(high)>>(INT32_MAX);
  return hn::IfThenElse(high == hn::BroadcastSignBit(low), low, extreme);
}
#endif

// 64-bit lanes saturated to 32-bit ones, of two vectors or one.
template <class V> auto saturatedTo32(Pair<V> v) {
#if QVXS_AVX512
  const hn::Rebind<int32_t, TagOf<V>> half;
  const auto saturated = [&](V v) { return Vec<decltype(half)>{detail::saturatedTo32(v.raw)}; };
  return hn::Combine(hn::Twice<decltype(half)>(), saturated(v.hi), saturated(v.lo));
#else
  auto words = saturatedWords(v.lo, v.hi);
#if QVXS_AVX2
  if constexpr (sizeof(words.raw) == 32) words.raw = _mm256_permute4x64_epi64(words.raw, 0xD8);
#endif
  return words;
#endif
}
template <class V> auto saturatedTo32(V v) {
  const hn::Rebind<int32_t, TagOf<V>> d;
#if QVXS_AVX512
  return Vec<decltype(d)>{detail::saturatedTo32(v.raw)};
#else
  return hn::LowerHalf(d, saturatedTo32(Pair<V>{v, v}));
#endif
}

// Converts lanes to another type by value; what a float cannot hold is rounded in the processor's mode.
template <class To, class V> auto convertLanes(V v) {
  using From = LaneOf<V>;
  const hn::Rebind<To, TagOf<V>> d;
  if constexpr (std::is_same_v<To, From>) {
    return v;
  } else if constexpr (std::is_same_v<To, float> && std::is_integral_v<From>) {
    if constexpr (std::is_same_v<From, uint32_t>) return hn::ConvertTo(d, as<int32_t>(v));  // callers have no more than 31 bits
    else return hn::ConvertTo(d, convertLanes<int32_t>(v));
  } else if constexpr (std::is_same_v<To, double> && sizeof(From) == 2) {
    return hn::PromoteTo(d, convertLanes<int32_t>(v));
  } else if constexpr (std::is_same_v<To, double> && sizeof(From) == 8) {
    return toDouble(v);
  } else if constexpr (sizeof(From) > sizeof(To)) {
    return hn::DemoteTo(d, v);
  } else {
    return hn::PromoteTo(d, v);
  }
}

}  // namespace qvx
