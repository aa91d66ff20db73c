// Masks of lanes, and choices by a bit of each lane.
#pragma once

#include "frame/vectors.h"

namespace qvx {

namespace detail {

#if QVXS_AVX512
constexpr int kNanOrMinusZero = 0x01 | 0x04 | 0x80;  // as vfpclass numbers quiet NaN, -0.0, signalling NaN
inline __mmask8 areNanOrMinusZero(__m128 v) { return _mm_fpclass_ps_mask(v, kNanOrMinusZero); }
inline __mmask8 areNanOrMinusZero(__m256 v) { return _mm256_fpclass_ps_mask(v, kNanOrMinusZero); }
inline __mmask16 areNanOrMinusZero(__m512 v) { return _mm512_fpclass_ps_mask(v, kNanOrMinusZero); }
inline __mmask8 areNanOrMinusZero(__m128d v) { return _mm_fpclass_pd_mask(v, kNanOrMinusZero); }
inline __mmask8 areNanOrMinusZero(__m256d v) { return _mm256_fpclass_pd_mask(v, kNanOrMinusZero); }
inline __mmask8 areNanOrMinusZero(__m512d v) { return _mm512_fpclass_pd_mask(v, kNanOrMinusZero); }
#endif

}  // namespace detail

// A bit for every lane of a mask.
template <class D, class M> uint64_t maskBits([[maybe_unused]] D d, M mask) {
#if QVXS_AVX512
  return mask.raw;
#else
  return hn::detail::BitsFromMask(mask);
#endif
}

// A mask for lanes of one width as a mask for as many lanes of another.
template <class To, class From, class M> auto maskAs([[maybe_unused]] To d, [[maybe_unused]] From from, M mask) {
#if QVXS_AVX512
  return hn::Mask<To>{static_cast<decltype(hn::Mask<To>::raw)>(mask.raw)};
#else
  if constexpr (sizeof(hn::TFromD<To>) == sizeof(hn::TFromD<From>)) {
    return hn::RebindMask(d, mask);
  } else {
    static_assert(2 * sizeof(hn::TFromD<To>) == sizeof(hn::TFromD<From>));
    const hn::RebindToUnsigned<To> narrow;
    const auto lanes = hn::BitCast(hn::RebindToUnsigned<From>(), hn::VecFromMask(from, mask));
    return hn::MaskFromVec(hn::BitCast(d, hn::TruncateTo(narrow, lanes)));
  }
#endif
}

// Lanes of floats that minima and maxima have no place for.
template <class V> auto areNanOrMinusZero(V v) {
  const TagOf<V> d;
#if QVXS_AVX512
  return hn::Mask<decltype(d)>{detail::areNanOrMinusZero(v.raw)};
#else
  const hn::RebindToUnsigned<decltype(d)> bits;
  using U = hn::TFromD<decltype(bits)>;
  const auto isMinusZero = hn::BitCast(bits, v) == hn::Set(bits, U{1} << (8 * sizeof(U) - 1));
  return hn::Or(hn::RebindMask(d, isMinusZero), hn::IsNaN(v));
#endif
}

// The bits of `among` that are set in neither a nor b.
template <class V> V neither(V a, V b, V among) {
#if QVXS_AVX512
  if constexpr (sizeof(a.raw) == 64) return V{_mm512_ternarylogic_epi64(a.raw, b.raw, among.raw, 0x02)};
  else if constexpr (sizeof(a.raw) == 32) return V{_mm256_ternarylogic_epi64(a.raw, b.raw, among.raw, 0x02)};
  else return V{_mm_ternarylogic_epi64(a.raw, b.raw, among.raw, 0x02)};
#else
  return hn::AndNot(a | b, among);
#endif
}

// yes where the lane's sign bit is set. Highway's own operation takes the other bits too on SSSE3.
template <class V> V ifNegative(V lane, V yes, V no) {
  using Signed = hwy::SignedFromSize<sizeof(LaneOf<V>)>;
  if constexpr (!QVXS_AVX2) return hn::IfVecThenElse(as<LaneOf<V>>(hn::BroadcastSignBit(as<Signed>(lane))), yes, no);
  else return hn::IfNegativeThenElse(lane, yes, no);
}

// How many of kLanes lanes have their bit. Without an instruction for it the compiler would call a function, for which every
// vector register is saved: 10^4 32-bit integers took 1.4 times as long to sort.
template <size_t kLanes> size_t countLanes(uint64_t bits) {
#ifdef __POPCNT__
  return static_cast<size_t>(__builtin_popcountll(bits));
#else
  static_assert(kLanes <= 8);
  constexpr uint64_t kOfFour = 0x4332322132212110;  // a digit for each number of four bits
  const uint64_t count = kOfFour >> 4 * (bits & 15) & 15;
  return kLanes <= 4 ? count : count + (kOfFour >> 4 * (bits >> 4) & 15);
#endif
}

}  // namespace qvx
