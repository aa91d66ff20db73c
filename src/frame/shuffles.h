// Lanes in another order: halves, broadcasts, lanes dealt, interleaved, reversed, looked up in registers.
#pragma once

#include "frame/vectors.h"

namespace qvx {

namespace detail {

template <int kBy> __m128d delayed(__m128d before, __m128d v) { return _mm_shuffle_pd(before, v, 0x1); }
template <int kAt> __m128d everyLane(__m128d v) { return _mm_shuffle_pd(v, v, kAt * 0x3); }
template <int kAt> __m128d everyBlock(__m128d v) { return v; }
inline __m128i wordsInTurn(__m128i v) { return _mm_shuffle_epi32(v, 0xD8); }
inline __m128 evens(__m128 x, __m128 y) { return _mm_shuffle_ps(x, y, 0x88); }
inline __m128 odds(__m128 x, __m128 y) { return _mm_shuffle_ps(x, y, 0xDD); }
inline __m128 evensTwice(__m128 v) { return _mm_moveldup_ps(v); }
inline __m128 oddsTwice(__m128 v) { return _mm_movehdup_ps(v); }
inline __m128d evensTwice(__m128d v) { return _mm_movedup_pd(v); }
inline __m128d oddsTwice(__m128d v) { return _mm_unpackhi_pd(v, v); }
#if QVXS_AVX2
template <int kBy> __m256d delayed(__m256d before, __m256d v) {
  const __m256d middle = _mm256_permute2f128_pd(before, v, 0x21);
  if constexpr (kBy == 2) return middle;
  else if constexpr (kBy == 1) return _mm256_shuffle_pd(middle, v, 0x5);
  else return _mm256_shuffle_pd(before, middle, 0x5);
}
template <int kAt> __m256d everyLane(__m256d v) { return _mm256_permute4x64_pd(v, kAt * 0x55); }
template <int kAt> __m256d everyBlock(__m256d v) { return _mm256_permute2f128_pd(v, v, kAt * 0x11); }
inline __m256i wordsInTurn(__m256i v) { return _mm256_shuffle_epi32(v, 0xD8); }
inline __m256 evens(__m256 x, __m256 y) { return _mm256_shuffle_ps(x, y, 0x88); }
inline __m256 odds(__m256 x, __m256 y) { return _mm256_shuffle_ps(x, y, 0xDD); }
inline __m256 evensTwice(__m256 v) { return _mm256_moveldup_ps(v); }
inline __m256 oddsTwice(__m256 v) { return _mm256_movehdup_ps(v); }
inline __m256d evensTwice(__m256d v) { return _mm256_movedup_pd(v); }
inline __m256d oddsTwice(__m256d v) { return _mm256_permute_pd(v, 0xF); }
template <class V> auto twice(V v) {
  if constexpr (std::is_same_v<LaneOf<V>, double>) {
    return Vec<Lanes<double, 4>>{_mm256_permute4x64_pd(_mm256_castpd128_pd256(v.raw), 0x50)};
  } else {
    return Vec<Lanes<float, 8>>{
        _mm256_permutevar8x32_ps(_mm256_castps128_ps256(v.raw), _mm256_setr_epi32(0, 0, 1, 1, 2, 2, 3, 3))};
  }
}
#endif
#if QVXS_AVX512
template <int kBy> __m512d delayed(__m512d before, __m512d v) {
  return _mm512_castsi512_pd(_mm512_alignr_epi64(_mm512_castpd_si512(v), _mm512_castpd_si512(before), 8 - kBy));
}
template <int kAt> __m512d everyLane(__m512d v) { return _mm512_permutexvar_pd(_mm512_set1_epi64(kAt), v); }
template <int kAt> __m512d everyBlock(__m512d v) { return _mm512_shuffle_f64x2(v, v, kAt * 0x55); }
inline __m512 evens(__m512 x, __m512 y) { return _mm512_shuffle_ps(x, y, 0x88); }
inline __m512 odds(__m512 x, __m512 y) { return _mm512_shuffle_ps(x, y, 0xDD); }
inline __m512 evenBlocks(__m512 a, __m512 b) { return _mm512_shuffle_f32x4(a, b, 0x88); }
inline __m512 oddBlocks(__m512 a, __m512 b) { return _mm512_shuffle_f32x4(a, b, 0xDD); }
inline __m512d evenBlocks(__m512d a, __m512d b) { return _mm512_shuffle_f64x2(a, b, 0x88); }
inline __m512d oddBlocks(__m512d a, __m512d b) { return _mm512_shuffle_f64x2(a, b, 0xDD); }
inline auto twice(hn::Vec256<double> v) {
  return Vec<Lanes<double, 8>>{_mm512_permutexvar_pd(_mm512_setr_epi64(0, 0, 1, 1, 2, 2, 3, 3), _mm512_castpd256_pd512(v.raw))};
}
inline auto twice(hn::Vec256<float> v) {
  const __m512i order = _mm512_setr_epi32(0, 0, 1, 1, 2, 2, 3, 3, 4, 4, 5, 5, 6, 6, 7, 7);
  return Vec<Lanes<float, 16>>{_mm512_permutexvar_ps(order, _mm512_castps256_ps512(v.raw))};
}
inline __m512 evensTwice(__m512 v) { return _mm512_moveldup_ps(v); }
inline __m512 oddsTwice(__m512 v) { return _mm512_movehdup_ps(v); }
inline __m512d evensTwice(__m512d v) { return _mm512_movedup_pd(v); }
inline __m512d oddsTwice(__m512d v) { return _mm512_permute_pd(v, 0xFF); }
inline __m512 lookup(__m512i i, const float (&t)[16]) { return _mm512_permutexvar_ps(i, _mm512_load_ps(t)); }
inline __m512 lookup(__m512i i, const float (&t)[32]) {
  return _mm512_permutex2var_ps(_mm512_load_ps(t), i, _mm512_load_ps(t + 16));
}
inline __m512d lookup(__m512i i, const double (&t)[16]) {
  return _mm512_permutex2var_pd(_mm512_load_pd(t), i, _mm512_load_pd(t + 8));
}

template <class T> struct InTurn {
  static constexpr size_t kLanes = 64 / sizeof(T);
  T low[kLanes];
  T high[kLanes];
  constexpr InTurn() : low(), high() {
    for (size_t i = 0; i < kLanes; ++i) {
      low[i] = static_cast<T>(i / 2 + i % 2 * kLanes);
      high[i] = static_cast<T>(low[i] + kLanes / 2);
    }
  }
};
template <class T> alignas(64) inline constexpr InTurn<T> kInTurn;
template <class T> __m512i lanesOfBoth(__m512i a, const T* order, __m512i b) {
  const __m512i index = _mm512_load_si512(order);
  if constexpr (sizeof(T) == 2) return _mm512_permutex2var_epi16(a, index, b);
  else if constexpr (sizeof(T) == 4) return _mm512_permutex2var_epi32(a, index, b);
  else return _mm512_permutex2var_epi64(a, index, b);
}
#endif

}  // namespace detail

// The upper half of the lanes. Highway clears what follows a part of a register before it shifts, by a mask or a constant.
template <class V> auto upperHalf(V v) {
  const hn::Half<TagOf<V>> half;
  if constexpr (kLanesOf<V> * sizeof(LaneOf<V>) >= 16) return hn::UpperHalf(half, v);
  else if constexpr (sizeof(LaneOf<V>) == 4) return hn::LowerHalf(half, hn::Shuffle2301(v));
  else return Vec<hn::Half<TagOf<V>>>{_mm_srli_si128(v.raw, kLanesOf<V> * sizeof(LaneOf<V>) / 2)};
}

// Every lane twice, in a vector of twice as many.
template <class V> auto twice(V v) {
  using T = LaneOf<V>;
  constexpr size_t N = 2 * kLanesOf<V>;
  const Lanes<T, N> d;
  if constexpr (sizeof(T) * N <= 16) {
    const Lanes<T, 16 / sizeof(T)> whole;
    return Vec<decltype(d)>{hn::InterleaveLower(whole, Vec<decltype(whole)>{v.raw}, Vec<decltype(whole)>{v.raw}).raw};
  } else if constexpr (sizeof(T) < 4) {
    const auto wide =
        hn::PromoteTo(Lanes<hwy::UnsignedFromSize<2 * sizeof(T)>, N / 2>(), as<hwy::UnsignedFromSize<sizeof(T)>>(v));
    return as<T>(wide | hn::ShiftLeft<8 * sizeof(T)>(wide));
  } else {
#if QVXS_AVX2
    return as<T>(detail::twice(as<hwy::FloatFromSize<sizeof(T)>>(v)));
#endif
  }
}

// Doubles delayed by kBy lanes, up to a whole vector: the last kBy of the vector before, then the first of v.
template <size_t kBy, class V> V delayed(V before, V v) {
  static_assert(std::is_same_v<LaneOf<V>, double> && kBy <= kLanesOf<V>);
  if constexpr (kBy == 0) return v;
  else if constexpr (kBy == kLanesOf<V>) return before;
  else return V{detail::delayed<kBy>(before.raw, v.raw)};
}

// Doubles: broadcasts one lane, or one block of two.
template <size_t kAt, class V> V everyLane(V v) { return V{detail::everyLane<kAt>(v.raw)}; }
template <size_t kAt, class V> V everyBlock(V v) { return V{detail::everyBlock<kAt>(v.raw)}; }

// The even and the odd lanes of two vectors, within their 128-bit blocks: x0 x2 y0 y2 x4 x6 y4 y6 of floats.
template <class V> Complex<V> evenAndOdd(V x, V y) {
  const TagOf<V> d;
  if constexpr (sizeof(LaneOf<V>) == 4 && kLanesOf<V> >= 4)
    return {V{detail::evens(x.raw, y.raw)}, V{detail::odds(x.raw, y.raw)}};
  else return {hn::InterleaveLower(d, x, y), hn::InterleaveUpper(d, x, y)};
}

// The 32-bit lanes of evenAndOdd() of two vectors of 64-bit lanes in turn: x0 y0 x1 y1 of x0 x1 y0 y1.
template <class V> V wordsInTurn(V v) {
  if constexpr (kLanesOf<V> < 4) return v;
  else return V{detail::wordsInTurn(v.raw)};
}

// The even or the odd lanes of floats, each twice. From memory the load unit does it, and no shuffle port.
template <class V> V evensTwice(V v) { return V{detail::evensTwice(v.raw)}; }
template <class V> V oddsTwice(V v) { return V{detail::oddsTwice(v.raw)}; }

// The even or the odd ones of the 128-bit blocks of two vectors.
template <class V> V evenBlocks(V a, V b) {
#if QVXS_AVX512
  if constexpr (sizeof(a.raw) == 64) return V{detail::evenBlocks(a.raw, b.raw)};
#endif
  return hn::ConcatLowerLower(TagOf<V>(), b, a);
}
template <class V> V oddBlocks(V a, V b) {
#if QVXS_AVX512
  if constexpr (sizeof(a.raw) == 64) return V{detail::oddBlocks(a.raw, b.raw)};
#endif
  return hn::ConcatUpperUpper(TagOf<V>(), b, a);
}

// Real and imaginary parts exchanged, in vectors of interleaved ones.
template <class V> V swapped(V v) {
  if constexpr (sizeof(LaneOf<V>) == 2) return as<int16_t>(hn::RotateRight<16>(as<uint32_t>(v)));
  else if constexpr (sizeof(LaneOf<V>) == 4) return hn::Shuffle2301(v);
  else return hn::Shuffle01(v);
}

// The lanes of both vectors in turn: lo[0], hi[0], lo[1] ... in the first of the result.
template <class V> Pair<V> interleaved(Pair<V> v) {
  const TagOf<V> d;
#if QVXS_AVX512
  if constexpr (sizeof(v.lo.raw) == 64 && sizeof(LaneOf<V>) == 1) {  // no shuffle takes single bytes: as words of two
    const hn::Half<TagOf<V>> half;
    const hn::Rebind<uint16_t, decltype(half)> words;
    const auto both = [&](auto lo, auto hi) {
      return as<LaneOf<V>>(hn::PromoteTo(words, as<uint8_t>(lo)) | hn::ShiftLeft<8>(hn::PromoteTo(words, as<uint8_t>(hi))));
    };
    return {both(hn::LowerHalf(half, v.lo), hn::LowerHalf(half, v.hi)),
            both(hn::UpperHalf(half, v.lo), hn::UpperHalf(half, v.hi))};
  } else if constexpr (sizeof(v.lo.raw) == 64) {
    using T = hwy::UnsignedFromSize<sizeof(LaneOf<V>)>;
    const auto lo = as<uint8_t>(v.lo);
    const auto hi = as<uint8_t>(v.hi);
    using B = std::remove_const_t<decltype(lo)>;
    return {as<LaneOf<V>>(B{detail::lanesOfBoth(lo.raw, detail::kInTurn<T>.low, hi.raw)}),
            as<LaneOf<V>>(B{detail::lanesOfBoth(lo.raw, detail::kInTurn<T>.high, hi.raw)})};
  }
#endif
  const V lower = hn::InterleaveLower(d, v.lo, v.hi);
  const V upper = hn::InterleaveUpper(d, v.lo, v.hi);
  if constexpr (kLanesOf<V> * sizeof(LaneOf<V>) <= 16) return {lower, upper};
  else return {hn::ConcatLowerLower(d, upper, lower), hn::ConcatUpperUpper(d, upper, lower)};
}
// The same of two half vectors in a whole one.
template <class V> auto inTurn(Pair<V> v) {
  using Whole = Vec<hn::Twice<TagOf<V>>>;
#if QVXS_AVX512
  if constexpr (sizeof(Whole) == 64) {
    using T = hwy::UnsignedFromSize<sizeof(LaneOf<V>)>;
    const auto lo = as<uint8_t>(v.lo);
    const auto hi = as<uint8_t>(v.hi);
    const auto both = detail::lanesOfBoth(detail::whole(lo.raw), detail::kInTurn<T>.low, detail::whole(hi.raw));
    return as<LaneOf<V>>(Vec<Lanes<uint8_t, 64>>{both});
  } else
#endif
  {
    static_assert(sizeof(V) <= 16);
    const TagOf<V> d;
    return hn::Combine(TagOf<Whole>(), hn::InterleaveUpper(d, v.lo, v.hi), hn::InterleaveLower(d, v.lo, v.hi));
  }
}
// And back. SSSE3 packs no words: one shuffle of bytes parts both kinds of 16-bit lanes, where Highway takes one for each.
template <class V> Pair<V> deinterleaved(Pair<V> v) {
  const TagOf<V> d;
  if constexpr (!QVXS_AVX2 && sizeof(LaneOf<V>) == 2 && kLanesOf<V> == 8) {
    alignas(16) static constexpr uint8_t kEvensFirst[16] = {0, 1, 4, 5, 8, 9, 12, 13, 2, 3, 6, 7, 10, 11, 14, 15};
    const hn::Repartition<uint64_t, decltype(d)> halves;
    const auto order = hn::Load(hn::Repartition<uint8_t, decltype(d)>(), kEvensFirst);
    const auto lo = as<uint64_t>(hn::TableLookupBytes(v.lo, order));
    const auto hi = as<uint64_t>(hn::TableLookupBytes(v.hi, order));
    return {hn::BitCast(d, hn::InterleaveLower(halves, lo, hi)), hn::BitCast(d, hn::InterleaveUpper(halves, lo, hi))};
  }
  return {hn::ConcatEven(d, v.hi, v.lo), hn::ConcatOdd(d, v.hi, v.lo)};
}

// The lanes from the last to the first.
template <class V> V reversed(V v) {
  const TagOf<V> d;
  if constexpr (sizeof(LaneOf<V>) == 1) {
    const V inBlocks = hn::TableLookupBytes(v, hn::AndNot(hn::Iota(d, 0), same<V>(15)));
    if constexpr (kLanesOf<V> <= 16) return inBlocks;
    else return hn::ReverseBlocks(d, inBlocks);
  } else if constexpr (sizeof(LaneOf<V>) == 2 && !QVXS_AVX2) {
    // Highway exchanges the halves of words by shifts after it has reversed the words: 256 integers take 1.9 times as long.
    const hn::Repartition<uint8_t, decltype(d)> bytes;
    const auto last = hn::Set(bytes, 2 * (kLanesOf<V> - 1));
    return as<LaneOf<V>>(hn::TableLookupBytes(as<uint8_t>(v), hn::Xor(last, hn::Iota(bytes, 0))));
  } else {
    return hn::Reverse(d, v);
  }
}

#if QVXS_AVX512
// Sixteen of the 32-bit lanes of two registers: 0 to 15 count those of the first, 16 to 31 those of the second.
template <class V> V lanesOfTwo(V a, V b, const int32_t (&order)[16]) {
  static_assert(sizeof(a.raw) == 64);
  return V{_mm512_permutex2var_epi32(a.raw, _mm512_load_si512(order), b.raw)};
}

// The same for lanes of any size in an order that is computed: from, from + 1 and so on to begin with.
template <class V> auto laneNumbers(size_t from) {
  const hn::RebindToUnsigned<TagOf<V>> d;
  return hn::Iota(d, static_cast<hn::TFromD<decltype(d)>>(from));
}
template <class V> V lanesOfTwo(V a, V b, Vec<hn::RebindToUnsigned<TagOf<V>>> order) {
  if constexpr (sizeof(LaneOf<V>) == 2) return V{_mm512_permutex2var_epi16(a.raw, order.raw, b.raw)};
  else if constexpr (sizeof(LaneOf<V>) == 4) return V{_mm512_permutex2var_ps(a.raw, order.raw, b.raw)};
  else return V{_mm512_permutex2var_pd(a.raw, order.raw, b.raw)};
}

// A table of 16 or 32 floats or 16 doubles, 64-byte aligned, that stays in registers; of the index only the bits that count.
template <class V, class T, size_t kEntries> V lookup(Vec<hn::RebindToUnsigned<TagOf<V>>> index, const T (&table)[kEntries]) {
  V v;
  detail::partOf(detail::lookup(detail::whole(index.raw), table), v.raw);
  return v;
}
#endif

}  // namespace qvx
