// The library's vocabulary of vectors: Highway's operations under the name hn::, what it lacks or does slowly, and raw
// intrinsics, which are nowhere else.
//
// Kernels are written on whole vectors of the variant's widest register and on `Lanes<T, N>`, a tag for N elements of T;
// N times the size of T may be anything from 4 bytes to a register.
#pragma once

#include <hwy/highway.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <type_traits>

// The variant's instructions, for the preprocessor.
#define QVXS_AVX512 (HWY_TARGET == HWY_AVX3)
#define QVXS_AVX2 (HWY_TARGET <= HWY_AVX2)  // or more

namespace qvx {

namespace hn = hwy::HWY_NAMESPACE;

// Highway falls back to a lower target without a word if a flag is missing: then the variant would be one in name only.
static_assert(HWY_TARGET == QVXS_EXPECTED_TARGET, "the compiler's flags do not give this variant its instruction set");
inline constexpr bool kHasMasks = QVXS_AVX512;
inline constexpr bool kFuses = HWY_NATIVE_FMA;  // multiplication and addition with one rounding

inline constexpr size_t kVectorBytes = HWY_LANES(uint8_t);

template <class T, size_t N> using Lanes = hn::FixedTag<T, N>;
template <class D> using Vec = hn::Vec<D>;
template <class V> using TagOf = hn::DFromV<V>;
template <class V> using LaneOf = hn::TFromV<V>;
template <class V> inline constexpr size_t kLanesOf = hn::MaxLanes(TagOf<V>());

namespace detail {

// The first `bytes` (0 to 16) bytes at p, zeros after them: two overlapping loads of the largest width that fits, since a
// round trip through the stack costs a failed store forwarding (about 4 ns).
inline __m128i loadBytes(const uint8_t* p, size_t bytes) {
  const auto at = [p](size_t offset, auto word) { return std::memcpy(&word, p + offset, sizeof(word)), word; };
  uint64_t low = 0;
  uint64_t high = 0;
  if (bytes >= 8) {
    low = at(0, uint64_t{});
    const size_t half = 4 * (16 - bytes);  // shifted twice, because bytes == 8 needs a shift by 64
    high = at(bytes - 8, uint64_t{}) >> half >> half;
  } else if (bytes >= 4) {
    low = at(0, uint32_t{}) | uint64_t{at(bytes - 4, uint32_t{})} << (8 * (bytes - 4));
  } else if (bytes >= 2) {
    low = at(0, uint16_t{}) | uint64_t{at(bytes - 2, uint16_t{})} << (8 * (bytes - 2));
  } else if (bytes == 1) {
    low = *p;
  }
  return _mm_set_epi64x(static_cast<int64_t>(high), static_cast<int64_t>(low));
}

inline void storeBytes(__m128i v, uint8_t* p, size_t bytes) {
  const auto put = [p](size_t offset, auto word) { std::memcpy(p + offset, &word, sizeof(word)); };
  const auto low = static_cast<uint64_t>(_mm_cvtsi128_si64(v));
  if (bytes >= 8) {
    const auto high = static_cast<uint64_t>(_mm_cvtsi128_si64(_mm_unpackhi_epi64(v, v)));
    const size_t half = 4 * (bytes - 8);
    put(0, low);
    put(bytes - 8, (low >> half >> half) | (bytes == 8 ? 0 : high << (8 * (16 - bytes))));
  } else if (bytes >= 4) {
    put(0, static_cast<uint32_t>(low));
    put(bytes - 4, static_cast<uint32_t>(low >> (8 * (bytes - 4))));
  } else if (bytes >= 2) {
    put(0, static_cast<uint16_t>(low));
    put(bytes - 2, static_cast<uint16_t>(low >> (8 * (bytes - 2))));
  } else if (bytes == 1) {
    *p = static_cast<uint8_t>(low);
  }
}

// Instructions without a Highway operation of just their meaning: saturating packs that keep to 128-bit blocks, and float to
// integer conversions that leave the processor's indefinite value (the most negative integer) for all they cannot represent.
inline __m128i packU8(__m128i lo, __m128i hi) { return _mm_packus_epi16(lo, hi); }
inline __m128i packS8(__m128i lo, __m128i hi) { return _mm_packs_epi16(lo, hi); }
inline __m128i packS16(__m128i lo, __m128i hi) { return _mm_packs_epi32(lo, hi); }
inline __m128i toIntCurrent(__m128 v) { return _mm_cvtps_epi32(v); }
inline __m128i toIntTruncated(__m128 v) { return _mm_cvttps_epi32(v); }
inline __m128i toIntCurrent(__m128d v) { return _mm_cvtpd_epi32(v); }
inline __m128i toIntTruncated(__m128d v) { return _mm_cvttpd_epi32(v); }
inline __m128i pairProducts(__m128i a, __m128i b) { return _mm_madd_epi16(a, b); }
template <int kBy> __m128d delayed(__m128d before, __m128d v) { return _mm_shuffle_pd(before, v, 0x1); }
template <int kAt> __m128d everyLane(__m128d v) { return _mm_shuffle_pd(v, v, kAt * 0x3); }
template <int kAt> __m128d everyBlock(__m128d v) { return v; }
inline __m128 minusPlus(__m128 a, __m128 b) { return _mm_addsub_ps(a, b); }
inline __m128d minusPlus(__m128d a, __m128d b) { return _mm_addsub_pd(a, b); }
inline __m128i wordsInTurn(__m128i v) { return _mm_shuffle_epi32(v, 0xD8); }
inline __m128 evens(__m128 x, __m128 y) { return _mm_shuffle_ps(x, y, 0x88); }
inline __m128 odds(__m128 x, __m128 y) { return _mm_shuffle_ps(x, y, 0xDD); }
#if QVXS_AVX2
template <int kBy> __m256d delayed(__m256d before, __m256d v) {
  const __m256d middle = _mm256_permute2f128_pd(before, v, 0x21);
  if constexpr (kBy == 2) return middle;
  else if constexpr (kBy == 1) return _mm256_shuffle_pd(middle, v, 0x5);
  else return _mm256_shuffle_pd(before, middle, 0x5);
}
template <int kAt> __m256d everyLane(__m256d v) { return _mm256_permute4x64_pd(v, kAt * 0x55); }
template <int kAt> __m256d everyBlock(__m256d v) { return _mm256_permute2f128_pd(v, v, kAt * 0x11); }
inline __m256 minusPlus(__m256 a, __m256 b) { return _mm256_addsub_ps(a, b); }
inline __m256d minusPlus(__m256d a, __m256d b) { return _mm256_addsub_pd(a, b); }
inline __m256i wordsInTurn(__m256i v) { return _mm256_shuffle_epi32(v, 0xD8); }
inline __m256 evens(__m256 x, __m256 y) { return _mm256_shuffle_ps(x, y, 0x88); }
inline __m256 odds(__m256 x, __m256 y) { return _mm256_shuffle_ps(x, y, 0xDD); }
template <class V> auto twice(V v) {
  if constexpr (std::is_same_v<LaneOf<V>, double>) {
    return Vec<Lanes<double, 4>>{_mm256_permute4x64_pd(_mm256_castpd128_pd256(v.raw), 0x50)};
  } else {
    return Vec<Lanes<float, 8>>{
        _mm256_permutevar8x32_ps(_mm256_castps128_ps256(v.raw), _mm256_setr_epi32(0, 0, 1, 1, 2, 2, 3, 3))};
  }
}
inline __m128i packU16(__m128i lo, __m128i hi) { return _mm_packus_epi32(lo, hi); }
inline __m256i packU8(__m256i lo, __m256i hi) { return _mm256_packus_epi16(lo, hi); }
inline __m256i packS8(__m256i lo, __m256i hi) { return _mm256_packs_epi16(lo, hi); }
inline __m256i packS16(__m256i lo, __m256i hi) { return _mm256_packs_epi32(lo, hi); }
inline __m256i packU16(__m256i lo, __m256i hi) { return _mm256_packus_epi32(lo, hi); }
inline __m256i toIntCurrent(__m256 v) { return _mm256_cvtps_epi32(v); }
inline __m256i toIntTruncated(__m256 v) { return _mm256_cvttps_epi32(v); }
inline __m256i pairProducts(__m256i a, __m256i b) { return _mm256_madd_epi16(a, b); }
inline __m128i toIntCurrent(__m256d v) { return _mm256_cvtpd_epi32(v); }
inline __m128i toIntTruncated(__m256d v) { return _mm256_cvttpd_epi32(v); }
// To nearest whatever the processor's mode: a wide register takes the mode with the instruction, the others round first.
constexpr int kNearest = _MM_FROUND_TO_NEAREST_INT | _MM_FROUND_NO_EXC;
inline __m128i toIntNearest(__m128 v) { return _mm_cvttps_epi32(_mm_round_ps(v, kNearest)); }
inline __m128i toIntNearest(__m128d v) { return _mm_cvttpd_epi32(_mm_round_pd(v, kNearest)); }
inline __m256i toIntNearest(__m256 v) { return _mm256_cvttps_epi32(_mm256_round_ps(v, kNearest)); }
inline __m128i toIntNearest(__m256d v) { return _mm256_cvttpd_epi32(_mm256_round_pd(v, kNearest)); }
constexpr int kToward0 = _MM_FROUND_TO_ZERO | _MM_FROUND_NO_EXC;
template <int kMode> __m128i toHalf(__m128 v) { return _mm_cvtps_ph(v, kMode); }
template <int kMode> __m128i toHalf(__m256 v) { return _mm256_cvtps_ph(v, kMode); }
#else
inline __m128i packU16(__m128i lo, __m128i hi) {  // for lanes from -2^31 + 2^15 on, which is all that callers have
  const __m128i bias = _mm_set1_epi32(0x8000);
  const __m128i packed = _mm_packs_epi32(_mm_sub_epi32(lo, bias), _mm_sub_epi32(hi, bias));
  return _mm_xor_si128(packed, _mm_set1_epi16(INT16_MIN));
}
#endif
#if QVXS_AVX512
template <int kBy> __m512d delayed(__m512d before, __m512d v) {
  return _mm512_castsi512_pd(_mm512_alignr_epi64(_mm512_castpd_si512(v), _mm512_castpd_si512(before), 8 - kBy));
}
template <int kAt> __m512d everyLane(__m512d v) { return _mm512_permutexvar_pd(_mm512_set1_epi64(kAt), v); }
template <int kAt> __m512d everyBlock(__m512d v) { return _mm512_shuffle_f64x2(v, v, kAt * 0x55); }
inline __m512 minusPlus(__m512 a, __m512 b) { return _mm512_fmaddsub_ps(a, _mm512_set1_ps(1), b); }
inline __m512d minusPlus(__m512d a, __m512d b) { return _mm512_fmaddsub_pd(a, _mm512_set1_pd(1), b); }
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
inline __m512i packU8(__m512i lo, __m512i hi) { return _mm512_packus_epi16(lo, hi); }
inline __m512i packS8(__m512i lo, __m512i hi) { return _mm512_packs_epi16(lo, hi); }
inline __m512i packS16(__m512i lo, __m512i hi) { return _mm512_packs_epi32(lo, hi); }
inline __m512i packU16(__m512i lo, __m512i hi) { return _mm512_packus_epi32(lo, hi); }
inline __m512i pairProducts(__m512i a, __m512i b) { return _mm512_madd_epi16(a, b); }
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

// Instructions that take a rounding mode or a table of two registers exist for the widest register, or are as fast there.
// Narrower vectors go through it, which costs nothing: the results of the upper lanes are dropped.
inline __m512 whole(__m128 v) { return _mm512_castps128_ps512(v); }
inline __m512 whole(__m256 v) { return _mm512_castps256_ps512(v); }
inline __m512 whole(__m512 v) { return v; }
inline __m512d whole(__m128d v) { return _mm512_castpd128_pd512(v); }
inline __m512d whole(__m256d v) { return _mm512_castpd256_pd512(v); }
inline __m512d whole(__m512d v) { return v; }
inline __m512i whole(__m128i v) { return _mm512_castsi128_si512(v); }
inline __m512i whole(__m256i v) { return _mm512_castsi256_si512(v); }
inline __m512i whole(__m512i v) { return v; }
// Hides from GCC that a vector is part of a wider one: it would merge the extraction with a masked store into one instruction,
// which faults on lanes that are not stored.
template <class R> void separate(R& part) { __asm__("" : "+v"(part)); }
inline void partOf(__m512 v, __m128& part) {
  part = _mm512_castps512_ps128(v);
  separate(part);
}
inline void partOf(__m512 v, __m256& part) {
  part = _mm512_castps512_ps256(v);
  separate(part);
}
inline void partOf(__m512 v, __m512& part) { part = v; }
inline void partOf(__m512d v, __m128d& part) {
  part = _mm512_castpd512_pd128(v);
  separate(part);
}
inline void partOf(__m512d v, __m256d& part) {
  part = _mm512_castpd512_pd256(v);
  separate(part);
}
inline void partOf(__m512d v, __m512d& part) { part = v; }

inline __m512 mulAddNearest(__m512 a, __m512 b, __m512 c) { return _mm512_fmadd_round_ps(a, b, c, kNearest); }
inline __m512d mulAddNearest(__m512d a, __m512d b, __m512d c) { return _mm512_fmadd_round_pd(a, b, c, kNearest); }
inline __m512d negMulAddNearest(__m512d a, __m512d b, __m512d c) { return _mm512_fnmadd_round_pd(a, b, c, kNearest); }
inline __m512d productNearest(__m512d a, __m512d b) { return _mm512_mul_round_pd(a, b, kNearest); }
inline __m512 quotientNearest(__m512 a, __m512 b) { return _mm512_div_round_ps(a, b, kNearest); }
inline __m512d quotientNearest(__m512d a, __m512d b) { return _mm512_div_round_pd(a, b, kNearest); }
inline __m512 rootNearest(__m512 v) { return _mm512_sqrt_round_ps(v, kNearest); }
inline __m512 toFloatNearest(__m512i v) { return _mm512_cvt_roundepi32_ps(v, kNearest); }
inline __m512 greaterQuiet(__m512 v, __m512 held) { return _mm512_max_round_ps(v, held, _MM_FROUND_NO_EXC); }
inline __m512d greaterQuiet(__m512d v, __m512d held) { return _mm512_max_round_pd(v, held, _MM_FROUND_NO_EXC); }
inline __m512d toDoubleQuiet(__m128 v) { return _mm512_cvt_roundps_pd(_mm256_castps128_ps256(v), _MM_FROUND_NO_EXC); }
inline __m512d toDoubleQuiet(__m256 v) { return _mm512_cvt_roundps_pd(v, _MM_FROUND_NO_EXC); }
inline __m256 toFloatNearest(__m512d v) { return _mm512_cvt_roundpd_ps(v, kNearest); }
inline void partOf(__m256 v, __m128& part) {
  part = _mm256_castps256_ps128(v);
  separate(part);
}
inline void partOf(__m256 v, __m256& part) { part = v; }
inline __m128d nearReciprocalRoot(__m128d v) { return _mm_rsqrt14_pd(v); }
inline __m256d nearReciprocalRoot(__m256d v) { return _mm256_rsqrt14_pd(v); }
inline __m512d nearReciprocalRoot(__m512d v) { return _mm512_rsqrt14_pd(v); }
inline __m128d nearReciprocal(__m128d v) { return _mm_rcp14_pd(v); }
inline __m256d nearReciprocal(__m256d v) { return _mm256_rcp14_pd(v); }
inline __m512d nearReciprocal(__m512d v) { return _mm512_rcp14_pd(v); }
inline __m512 scaled(__m512 v, __m512 exponent) { return _mm512_scalef_ps(v, exponent); }
inline __m512d scaled(__m512d v, __m512d exponent) { return _mm512_scalef_pd(v, exponent); }
inline __m512 exponent(__m512 v) { return _mm512_getexp_ps(v); }
inline __m512d exponent(__m512d v) { return _mm512_getexp_pd(v); }
inline __m512 mantissa(__m512 v) { return _mm512_getmant_ps(v, _MM_MANT_NORM_p75_1p5, _MM_MANT_SIGN_src); }
inline __m512d mantissa(__m512d v) { return _mm512_getmant_pd(v, _MM_MANT_NORM_p75_1p5, _MM_MANT_SIGN_src); }
inline __m512 lookup(__m512i i, const float (&t)[16]) { return _mm512_permutexvar_ps(i, _mm512_load_ps(t)); }
inline __m512 lookup(__m512i i, const float (&t)[32]) {
  return _mm512_permutex2var_ps(_mm512_load_ps(t), i, _mm512_load_ps(t + 16));
}
inline __m512d lookup(__m512i i, const double (&t)[16]) {
  return _mm512_permutex2var_pd(_mm512_load_pd(t), i, _mm512_load_pd(t + 8));
}
constexpr int kNanOrMinusZero = 0x01 | 0x04 | 0x80;  // as vfpclass numbers quiet NaN, -0.0, signalling NaN
inline __mmask8 areNanOrMinusZero(__m128 v) { return _mm_fpclass_ps_mask(v, kNanOrMinusZero); }
inline __mmask8 areNanOrMinusZero(__m256 v) { return _mm256_fpclass_ps_mask(v, kNanOrMinusZero); }
inline __mmask16 areNanOrMinusZero(__m512 v) { return _mm512_fpclass_ps_mask(v, kNanOrMinusZero); }
inline __mmask8 areNanOrMinusZero(__m128d v) { return _mm_fpclass_pd_mask(v, kNanOrMinusZero); }
inline __mmask8 areNanOrMinusZero(__m256d v) { return _mm256_fpclass_pd_mask(v, kNanOrMinusZero); }
inline __mmask8 areNanOrMinusZero(__m512d v) { return _mm512_fpclass_pd_mask(v, kNanOrMinusZero); }
#endif

}  // namespace detail

template <class D> Vec<D> load(D d, const hn::TFromD<D>* p) { return hn::LoadU(d, p); }

template <class D> void store(Vec<D> v, D d, hn::TFromD<D>* p) { hn::StoreU(v, d, p); }

namespace detail {

// Loads part of a register without a mask: by halves down to 16 bytes, and these by words.
template <size_t kBytes> auto loadPieces(const uint8_t* p, size_t bytes) {
  const Lanes<uint8_t, kBytes> d;
  if constexpr (kBytes <= 16) {
    return Vec<decltype(d)>{loadBytes(p, bytes)};
  } else {
    constexpr size_t kHalf = kBytes / 2;
    if (bytes < kHalf) return hn::ZeroExtendVector(d, loadPieces<kHalf>(p, bytes));
    return hn::Combine(d, loadPieces<kHalf>(p + kHalf, bytes - kHalf), load(Lanes<uint8_t, kHalf>(), p));
  }
}
template <size_t kBytes> void storePieces(Vec<Lanes<uint8_t, kBytes>> v, uint8_t* p, size_t bytes) {
  if constexpr (kBytes <= 16) {
    storeBytes(v.raw, p, bytes);
  } else {
    constexpr size_t kHalf = kBytes / 2;
    const Lanes<uint8_t, kHalf> half;
    if (bytes < kHalf) return storePieces<kHalf>(hn::LowerHalf(half, v), p, bytes);
    store(hn::LowerHalf(half, v), half, p);
    storePieces<kHalf>(hn::UpperHalf(half, v), p + kHalf, bytes - kHalf);
  }
}

// Whether masks select what is loaded or stored.
template <class T, size_t kBytes> inline constexpr bool kMasked = kHasMasks || (kBytes == 32 && sizeof(T) >= 4);

// Lanes that a mask leaves out do not fault, but the processor takes 150 ns to find that out where their page is not mapped or
// was never touched, 8 ns where it is. Pieces take 2 to 4 ns; they are inlined, because a call would give each kernel a stack
// frame.
template <size_t kBytes> bool reachesNextPage(const void* p) {
  constexpr uintptr_t kPage = 4096;
  return reinterpret_cast<uintptr_t>(p) % kPage > kPage - kBytes;
}

}  // namespace detail

// The first n lanes (0 to all) from memory, the rest zero. Nothing past them is read.
template <class D> Vec<D> loadFirst(D d, const hn::TFromD<D>* p, size_t n) {
  using T = hn::TFromD<D>;
  constexpr size_t kBytes = hn::MaxLanes(D()) * sizeof(T);
  const auto* bytes = reinterpret_cast<const uint8_t*>(p);
  if constexpr (detail::kMasked<T, kBytes>) {
    if (!detail::reachesNextPage<kBytes>(p)) [[likely]]
      return hn::MaskedLoad(hn::FirstN(d, n), d, p);
  }
  return hn::BitCast(d, detail::loadPieces<kBytes>(bytes, n * sizeof(T)));
}

// The first n lanes (0 to all) from memory, the rest a value of the caller's choice.
template <class D> Vec<D> loadFirstOr(D d, const hn::TFromD<D>* p, size_t n, hn::TFromD<D> padding) {
  return hn::IfThenElse(hn::FirstN(d, n), loadFirst(d, p, n), hn::Set(d, padding));
}

// Stores the first n lanes (0 to all). Nothing past them is written.
template <class D> void storeFirst(Vec<D> v, D d, hn::TFromD<D>* p, size_t n) {
  using T = hn::TFromD<D>;
  constexpr size_t kBytes = hn::MaxLanes(D()) * sizeof(T);
  auto* bytes = reinterpret_cast<uint8_t*>(p);
  const Lanes<uint8_t, kBytes> untyped;
  if constexpr (detail::kMasked<T, kBytes>) {
    if (!detail::reachesNextPage<kBytes>(p)) [[likely]]
      return hn::BlendedStore(v, hn::FirstN(d, n), d, p);
  }
  detail::storePieces<kBytes>(hn::BitCast(untyped, v), bytes, n * sizeof(T));
}

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

// Orders streamed stores before all later ones.
inline void storeFence() { _mm_sfence(); }

// 1 / sqrt(x) to 12 bits, the same in every variant on one processor.
inline float reciprocalRootEstimate(float x) { return _mm_cvtss_f32(_mm_rsqrt_ss(_mm_set_ss(x))); }

// A vector of the same bits.
template <class T, class V> auto as(V v) { return hn::BitCast(hn::Repartition<T, TagOf<V>>(), v); }

template <class V> V same(LaneOf<V> value) { return hn::Set(TagOf<V>(), value); }

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

// The upper half of the lanes. Highway clears what follows a part of a register before it shifts, by a mask or a constant.
template <class V> auto upperHalf(V v) {
  const hn::Half<TagOf<V>> half;
  if constexpr (kLanesOf<V> * sizeof(LaneOf<V>) >= 16) return hn::UpperHalf(half, v);
  else if constexpr (sizeof(LaneOf<V>) == 4) return hn::LowerHalf(half, hn::Shuffle2301(v));
  else return Vec<hn::Half<TagOf<V>>>{_mm_srli_si128(v.raw, kLanesOf<V> * sizeof(LaneOf<V>) / 2)};
}

// v where it is greater (less) than held; else held, also where one of them is a NaN and where both are zeros. The processor's
// own instruction gives that for this order of operands.
template <class V> V greater(V v, V held) {
  if constexpr (!QVXS_AVX2 && std::is_same_v<LaneOf<V>, uint16_t>) return hn::SaturatedSub(v, held) + held;  // not five
  else return hn::Max(v, held);
}
template <class V> V less(V v, V held) {
  if constexpr (!QVXS_AVX2 && std::is_same_v<LaneOf<V>, uint16_t>) return v - hn::SaturatedSub(v, held);
  else return hn::Min(v, held);
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

// Keeps v in a register. Compilers load an operand again for each use; with two uses of two sources, those loads bound the loop
// (16-bit scaled sums take 0.8 of the time with it).
template <class V> V held(V v) {
  __asm__("" : "+v"(v.raw));
  return v;
}

// Two vectors of lanes twice as wide as To's, in the order of widen(), as one vector of To: saturated and in order again.
template <class V> struct Pair {
  V lo;
  V hi;
};

// The real and the imaginary parts of complex elements.
template <class V> struct Complex {
  V re;
  V im;
};

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

// a[0] * b[0] + a[1] * b[1] and so on, in lanes of 32 bits: exact, but for four times -32768, whose 2^31 wraps to -2^31.
template <class V> auto pairProducts(V a, V b) {
  return Vec<hn::RepartitionToWide<TagOf<V>>>{detail::pairProducts(a.raw, b.raw)};
}

// The 64-bit products of the even and of the odd lanes of 32 bits. Highway's go through memory on SSSE3, which only multiplies
// unsigned numbers: a negative factor counts as 2^32 more there, so the other factor is taken off the upper half of the product.
template <class V> struct EvenOdd {
  V even;
  V odd;
};
template <class V> auto wideProduct(V a, V b) {
  const V oddA = hn::Shuffle2301(a);
  const V oddB = hn::Shuffle2301(b);
  if constexpr (!QVXS_AVX2 && std::is_signed_v<LaneOf<V>>) {
    const auto even = as<int64_t>(hn::MulEven(as<uint32_t>(a), as<uint32_t>(b)));
    const auto odd = as<int64_t>(hn::MulEven(as<uint32_t>(oddA), as<uint32_t>(oddB)));
    using W = std::remove_const_t<decltype(even)>;
    const auto excess = as<int64_t>((hn::BroadcastSignBit(a) & b) + (hn::BroadcastSignBit(b) & a));
    return EvenOdd<W>{even - hn::ShiftLeft<32>(excess), odd - hn::AndNot(same<W>(UINT32_MAX), excess)};
  } else {
    const auto even = hn::MulEven(a, b);
    return EvenOdd<std::remove_const_t<decltype(even)>>{even, hn::MulEven(oddA, oddB)};
  }
}
template <class V> auto evenProducts(V a, V b) {
  if constexpr (!QVXS_AVX2 && std::is_signed_v<LaneOf<V>>) {
    const auto product = as<int64_t>(hn::MulEven(as<uint32_t>(a), as<uint32_t>(b)));
    const V excess = (hn::BroadcastSignBit(a) & b) + (hn::BroadcastSignBit(b) & a);
    return product - hn::ShiftLeft<32>(as<int64_t>(excess));
  } else {
    return hn::MulEven(a, b);
  }
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

// a - b in the even lanes, a + b in the odd ones.
template <class V> V minusPlus(V a, V b) { return V{detail::minusPlus(a.raw, b.raw)}; }

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

// yes where the lane's sign bit is set. Highway's own operation takes the other bits too on SSSE3.
template <class V> V ifNegative(V lane, V yes, V no) {
  using Signed = hwy::SignedFromSize<sizeof(LaneOf<V>)>;
  if constexpr (!QVXS_AVX2) return hn::IfVecThenElse(as<LaneOf<V>>(hn::BroadcastSignBit(as<Signed>(lane))), yes, no);
  else return hn::IfNegativeThenElse(lane, yes, no);
}

// 64-bit integers to doubles in the processor's rounding mode. Without an instruction for it, Highway adds two halves, which
// gives -0 for 0 when rounding down.
template <class V> auto toDouble(V v) {
  const auto converted = hn::ConvertTo(hn::Rebind<double, TagOf<V>>(), v);
  if constexpr (kHasMasks) return converted;
  else return hn::BitCast(TagOf<decltype(converted)>(), hn::IfThenZeroElse(v == same<V>(0), hn::BitCast(TagOf<V>(), converted)));
}

// Whether each lane can be loaded from its own address: the 32 bits at p + 2 * at[i] bytes.
inline constexpr bool kGathers = QVXS_AVX2;
template <class V> V loadEach(const uint16_t* p, V at) {
  return hn::GatherOffset(TagOf<V>(), reinterpret_cast<const int32_t*>(p), at + at);
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
  if constexpr (sizeof(LaneOf<V>) == 4) return V{_mm512_permutex2var_ps(a.raw, order.raw, b.raw)};
  else return V{_mm512_permutex2var_pd(a.raw, order.raw, b.raw)};
}
#endif

#if QVXS_AVX512
namespace detail {
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
}  // namespace detail
#endif

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
// And back.
template <class V> Pair<V> deinterleaved(Pair<V> v) {
  const TagOf<V> d;
  return {hn::ConcatEven(d, v.hi, v.lo), hn::ConcatOdd(d, v.hi, v.lo)};
}

// The lanes from the last to the first.
template <class V> V reversed(V v) {
  const TagOf<V> d;
  if constexpr (sizeof(LaneOf<V>) == 1) {
    const V inBlocks = hn::TableLookupBytes(v, hn::AndNot(hn::Iota(d, 0), same<V>(15)));
    if constexpr (kLanesOf<V> <= 16) return inBlocks;
    else return hn::ReverseBlocks(d, inBlocks);
  } else {
    return hn::Reverse(d, v);
  }
}

#if QVXS_AVX512
// A table of 16 or 32 floats or 16 doubles, 64-byte aligned, that stays in registers; of the index only the bits that count.
template <class V, class T, size_t kEntries> V lookup(Vec<hn::RebindToUnsigned<TagOf<V>>> index, const T (&table)[kEntries]) {
  V v;
  detail::partOf(detail::lookup(detail::whole(index.raw), table), v.raw);
  return v;
}

// a * b + c, to nearest whatever the processor's mode.
template <class V> V mulAddNearest(V a, V b, V c) {
  detail::partOf(detail::mulAddNearest(detail::whole(a.raw), detail::whole(b.raw), detail::whole(c.raw)), a.raw);
  return a;
}

// 1 / sqrt(v) of doubles, off by 2^-14 of it at most; processors differ in the bits after.
template <class V> V nearReciprocalRoot(V v) { return V{detail::nearReciprocalRoot(v.raw)}; }
// 1 / v likewise.
template <class V> V nearReciprocal(V v) { return V{detail::nearReciprocal(v.raw)}; }

// v * 2^floor(exponent), rounded once, for any exponent.
template <class V> V scaledBy(V v, V exponent) {
  detail::partOf(detail::scaled(detail::whole(v.raw), detail::whole(exponent.raw)), v.raw);
  return v;
}

// The mantissa between 0.75 and 1.5, with v's sign.
template <class V> V mantissaOf(V v) {
  detail::partOf(detail::mantissa(detail::whole(v.raw)), v.raw);
  return v;
}

// The exponent floor(log2 |v|): infinite for zero and infinity; NaN stays NaN.
template <class V> V exponentOf(V v) {
  detail::partOf(detail::exponent(detail::whole(v.raw)), v.raw);
  return v;
}
#endif

// Arithmetic that raises no floating-point exception, neither as a trap nor as a flag, and rounds to nearest whatever the control
// word says. In AVX-512 the instruction itself carries both; elsewhere it is plain arithmetic within a SilentScope around the
// call.
inline constexpr bool kQuietByInstruction = kHasMasks;
struct Quiet {
  template <class V> static V quotient(V a, V b) {
#if QVXS_AVX512
    detail::partOf(detail::quotientNearest(detail::whole(a.raw), detail::whole(b.raw)), a.raw);
    return a;
#else
    return a / b;
#endif
  }
  template <class V> static V root(V v) {
#if QVXS_AVX512
    detail::partOf(detail::rootNearest(detail::whole(v.raw)), v.raw);
    return v;
#else
    return hn::Sqrt(v);
#endif
  }
  // Of 32-bit integers.
  template <class V> static auto floatOf(V v) {
    Vec<hn::Rebind<float, TagOf<V>>> f;
#if QVXS_AVX512
    detail::partOf(detail::toFloatNearest(detail::whole(v.raw)), f.raw);
#else
    f = hn::ConvertTo(TagOf<decltype(f)>(), v);
#endif
    return f;
  }
  // As greater().
  template <class V> static V max(V v, V held) {
#if QVXS_AVX512
    detail::partOf(detail::greaterQuiet(detail::whole(v.raw), detail::whole(held.raw)), v.raw);
    return v;
#else
    return hn::Max(v, held);
#endif
  }
#if QVXS_AVX512
  template <class V> static V product(V a, V b) {
    detail::partOf(detail::productNearest(detail::whole(a.raw), detail::whole(b.raw)), a.raw);
    return a;
  }
  template <class V> static V mulAdd(V a, V b, V c) { return mulAddNearest(a, b, c); }
  template <class V> static V negMulAdd(V a, V b, V c) {  // c - a * b
    detail::partOf(detail::negMulAddNearest(detail::whole(a.raw), detail::whole(b.raw), detail::whole(c.raw)), a.raw);
    return a;
  }
  template <class V> static auto toDouble(V v) {
    Vec<hn::Rebind<double, TagOf<V>>> wide;
    detail::partOf(detail::toDoubleQuiet(v.raw), wide.raw);
    return wide;
  }
  template <class V> static auto toFloat(V v) {
    Vec<hn::Rebind<float, TagOf<V>>> narrow;
    detail::partOf(detail::toFloatNearest(detail::whole(v.raw)), narrow.raw);
    return narrow;
  }
#endif
};

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

// ---- exchanges of lanes, for sorting networks

namespace detail {

inline __m128i exchangedBlocks(__m128i v, std::integral_constant<size_t, 0>) { return v; }
#if QVXS_AVX2
template <size_t kBy> __m256i exchangedBlocks(__m256i v, std::integral_constant<size_t, kBy>) {
  return kBy == 0 ? v : _mm256_permute4x64_epi64(v, 0x4E);
}
#endif
#if QVXS_AVX512
template <size_t kBy> __m512i exchangedBlocks(__m512i v, std::integral_constant<size_t, kBy>) {
  return kBy == 0 ? v : _mm512_shuffle_i64x2(v, v, kBy == 1 ? 0xB1 : kBy == 2 ? 0x4E : 0x1B);
}
#endif

}  // namespace detail

// Lane i ^ kBy in the place of lane i.
template <size_t kBy, class V> V exchanged(V v) {
  using T = LaneOf<V>;
  constexpr size_t kInBlock = 16 / sizeof(T);
  constexpr size_t kInner = kBy % kInBlock;
  const V blocks{detail::exchangedBlocks(v.raw, std::integral_constant<size_t, kBy / kInBlock>())};
  if constexpr (kInner == 0) {
    return blocks;
  } else if constexpr (sizeof(T) >= 4) {
    const auto words = as<uint32_t>(blocks);
    constexpr size_t kWords = kInner * (sizeof(T) / 4);
    if constexpr (kWords == 1) return as<T>(hn::Shuffle2301(words));
    else if constexpr (kWords == 2) return as<T>(hn::Shuffle1032(words));
    else return as<T>(hn::Shuffle0123(words));
  } else {
    const auto bytes = as<uint8_t>(blocks);
    const TagOf<std::remove_const_t<decltype(bytes)>> d;
    alignas(16) constexpr auto kOrder = [] {
      struct {
        uint8_t at[16];
      } order{};
      for (size_t i = 0; i < 16; ++i) order.at[i] = static_cast<uint8_t>(i ^ (kInner * sizeof(T)));
      return order;
    }();
    return as<T>(hn::TableLookupBytes(bytes, hn::LoadDup128(d, kOrder.at)));
  }
}

// The lanes whose number has the bit kBit.
template <size_t kBit, class D> hn::Mask<D> lanesWithBit([[maybe_unused]] D d) {
#if QVXS_AVX512
  constexpr uint64_t kMask = [] {
    uint64_t mask = 0;
    for (size_t i = 0; i < hn::MaxLanes(D()); ++i) mask |= uint64_t{(i & kBit) != 0} << i;
    return mask;
  }();
  return {static_cast<decltype(hn::Mask<D>::raw)>(kMask)};
#else
  const hn::RebindToUnsigned<D> lanes;
  return hn::RebindMask(d, hn::And(hn::Iota(lanes, 0), hn::Set(lanes, kBit)) == hn::Set(lanes, kBit));
#endif
}

// `upper` in the lanes whose number has the bit kBit, `lower` in the others.
template <size_t kBit, class V> V lanesByBit(V lower, V upper) {
#if QVXS_AVX2 && !QVXS_AVX512
  if constexpr (sizeof(V) == 32 && kBit * sizeof(LaneOf<V>) >= 4) {
    constexpr int kMask = [] {
      int mask = 0;
      for (size_t word = 0; word < 8; ++word) mask |= static_cast<int>((word * 4 / sizeof(LaneOf<V>) & kBit) != 0) << word;
      return mask;
    }();
    return V{_mm256_blend_epi32(lower.raw, upper.raw, kMask)};
  } else if constexpr (sizeof(LaneOf<V>) == 2) {
    return hn::OddEven(upper, lower);
  } else
#endif
  {
    if constexpr (sizeof(V) == 16 && kBit * sizeof(LaneOf<V>) == 8) {
      return as<LaneOf<V>>(hn::OddEven(as<double>(upper), as<double>(lower)));
    } else {
      return hn::IfThenElse(lanesWithBit<kBit>(TagOf<V>()), upper, lower);
    }
  }
}

// ---- lanes parted by a mask

namespace detail {

// For each mask of kLanes lanes: the numbers of the lanes in it, then of the others; each lane as kUnits units.
template <class Index, size_t kLanes, size_t kUnits> struct PartedOrder {
  Index of[size_t{1} << kLanes][kLanes * kUnits];
  constexpr PartedOrder() : of{} {
    for (size_t mask = 0; mask < size_t{1} << kLanes; ++mask) {
      size_t to = 0;
      for (const bool isIn : {true, false}) {
        for (size_t i = 0; i < kLanes; ++i) {
          if ((mask >> i & 1) != isIn) continue;
          for (size_t unit = 0; unit < kUnits; ++unit) of[mask][to++] = static_cast<Index>(i * kUnits + unit);
        }
      }
    }
  }
};
template <class Index, size_t kLanes, size_t kUnits> alignas(64) inline constexpr PartedOrder<Index, kLanes, kUnits> kPartedOrder;

template <size_t kBytes> __m128i partedBy(__m128i v, uint64_t mask) {
  return _mm_shuffle_epi8(v,
                          _mm_load_si128(reinterpret_cast<const __m128i*>(kPartedOrder<uint8_t, 16 / kBytes, kBytes>.of[mask])));
}
#if QVXS_AVX2
template <size_t kBytes> __m256i partedBy(__m256i v, uint64_t mask) {
  const auto* order = kPartedOrder<uint32_t, 32 / kBytes, kBytes / 4>.of[mask];
  return _mm256_permutevar8x32_epi32(v, _mm256_load_si256(reinterpret_cast<const __m256i*>(order)));
}
#endif
#if QVXS_AVX512
template <size_t kBytes> __m512i partedBy(__m512i v, uint64_t mask) {
  static_assert(kBytes == 8);
  const auto* order = kPartedOrder<uint8_t, 8, 1>.of[mask];
  return _mm512_permutexvar_epi64(_mm512_cvtepu8_epi64(_mm_loadl_epi64(reinterpret_cast<const __m128i*>(order))), v);
}
// 16 lanes are gathered by the instruction, between registers: one make of processor takes 100 times as long where it stores to
// memory. 8 lanes are gathered by a table, whose one shuffle serves both parts: a partition takes 0.9 of the time.
template <class V> inline constexpr bool kGathersLanes = sizeof(V) == 64 && sizeof(LaneOf<V>) == 4;
template <class V, class M> auto gathered(V v, M mask) { return _mm512_maskz_compress_epi32(mask.raw, as<uint8_t>(v).raw); }
#else
template <class V> inline constexpr bool kGathersLanes = false;
#endif

}  // namespace detail

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

// Partitions lanes by the bits of a mask: those in it are stored from `low` on, which moves to their end; the others so that they
// end at `high`, which moves to their start. There is room for a whole vector at either.
template <class V> [[gnu::always_inline]] inline void part(V v, uint64_t bits, LaneOf<V>*& low, LaneOf<V>*& high) {
  const TagOf<V> d;
  constexpr size_t N = kLanesOf<V>;
  const size_t count = countLanes<N>(bits);
  const V both{detail::partedBy<sizeof(LaneOf<V>)>(v.raw, bits)};
  hn::StoreU(both, d, low);
  hn::StoreU(both, d, high - N);
  low += count;
  high -= N - count;
}
template <class V, class M> [[gnu::always_inline]] inline void part(V v, M mask, LaneOf<V>*& low, LaneOf<V>*& high) {
  const TagOf<V> d;
  if constexpr (!detail::kGathersLanes<V>) {
    part(v, maskBits(d, mask), low, high);
  } else {
#if QVXS_AVX512
    constexpr size_t N = kLanesOf<V>;
    const size_t count = countLanes<N>(maskBits(d, mask));
    hn::StoreU(V{detail::gathered(v, mask)}, d, low);
    low += count;
    high -= N - count;
    hn::BlendedStore(V{detail::gathered(v, hn::Not(mask))}, hn::FirstN(d, N - count), d, high);
#endif
  }
}
// The same, but the others are stored from `high` on. Returns how many lanes are in the mask.
template <class V> size_t separate(V v, uint64_t bits, LaneOf<V>* low, LaneOf<V>* high) {
  const TagOf<V> d;
  constexpr uint64_t kAll = (uint64_t{1} << kLanesOf<V>)-1;
  hn::StoreU(V{detail::partedBy<sizeof(LaneOf<V>)>(v.raw, bits)}, d, low);
  hn::StoreU(V{detail::partedBy<sizeof(LaneOf<V>)>(v.raw, bits ^ kAll)}, d, high);
  return countLanes<kLanesOf<V>>(bits);
}
template <class V, class M> size_t separate(V v, M mask, LaneOf<V>* low, LaneOf<V>* high) {
  const TagOf<V> d;
  if constexpr (!detail::kGathersLanes<V>) {
    return separate(v, maskBits(d, mask), low, high);
  } else {
#if QVXS_AVX512
    hn::StoreU(V{detail::gathered(v, mask)}, d, low);
    hn::StoreU(V{detail::gathered(v, hn::Not(mask))}, d, high);
    return countLanes<kLanesOf<V>>(maskBits(d, mask));
#endif
  }
}
// The lanes of vectors that are partitioned: as many as the instruction takes, or as a table of a few KiB serves.
#if QVXS_AVX512
template <class T> inline constexpr size_t kPartedLanes = kVectorBytes / sizeof(T) / (sizeof(T) == 2 ? 4 : 1);
#else
template <class T> inline constexpr size_t kPartedLanes = std::min(kVectorBytes / sizeof(T), size_t{8});
#endif

// Whether n elements are finite: x * 0 is 0 only then. The products are added up, one instruction a vector, and tested once.
template <class T> bool areFinite(const T* p, size_t n) {
  constexpr size_t N = kVectorBytes / sizeof(T);
  const Lanes<T, N> d;
  const auto zero = hn::Zero(d);
  auto sum = zero;
  for (; n >= N; n -= N, p += N) sum = hn::MulAdd(load(d, p), zero, sum);
  if (n > 0) sum = hn::MulAdd(loadFirst(d, p, n), zero, sum);
  return hn::AllTrue(d, sum == zero);
}

// The even or the odd lanes of floats, each twice. From memory the load unit does it, and no shuffle port.
namespace detail {
inline __m128 evensTwice(__m128 v) { return _mm_moveldup_ps(v); }
inline __m128 oddsTwice(__m128 v) { return _mm_movehdup_ps(v); }
inline __m128d evensTwice(__m128d v) { return _mm_movedup_pd(v); }
inline __m128d oddsTwice(__m128d v) { return _mm_unpackhi_pd(v, v); }
#if QVXS_AVX2
inline __m256 evensTwice(__m256 v) { return _mm256_moveldup_ps(v); }
inline __m256 oddsTwice(__m256 v) { return _mm256_movehdup_ps(v); }
inline __m256d evensTwice(__m256d v) { return _mm256_movedup_pd(v); }
inline __m256d oddsTwice(__m256d v) { return _mm256_permute_pd(v, 0xF); }
#endif
#if QVXS_AVX512
inline __m512 evensTwice(__m512 v) { return _mm512_moveldup_ps(v); }
inline __m512 oddsTwice(__m512 v) { return _mm512_movehdup_ps(v); }
inline __m512d evensTwice(__m512d v) { return _mm512_movedup_pd(v); }
inline __m512d oddsTwice(__m512d v) { return _mm512_permute_pd(v, 0xFF); }
#endif
}  // namespace detail
template <class V> V evensTwice(V v) { return V{detail::evensTwice(v.raw)}; }
template <class V> V oddsTwice(V v) { return V{detail::oddsTwice(v.raw)}; }

#if QVXS_AVX512
// Floats in the widest register, to nearest whatever the processor's mode, without a floating-point exception; and estimates that
// are off by 2^-14 at most.
namespace nearest {
using V = Vec<Lanes<float, 16>>;
inline V product(V a, V b) { return V{_mm512_mul_round_ps(a.raw, b.raw, detail::kNearest)}; }
inline V mulAdd(V a, V b, V c) { return V{_mm512_fmadd_round_ps(a.raw, b.raw, c.raw, detail::kNearest)}; }
inline V negMulAdd(V a, V b, V c) { return V{_mm512_fnmadd_round_ps(a.raw, b.raw, c.raw, detail::kNearest)}; }
inline V nearReciprocal(V v) { return V{_mm512_rcp14_ps(v.raw)}; }
inline V nearReciprocalRoot(V v) { return V{_mm512_rsqrt14_ps(v.raw)}; }
}  // namespace nearest
#endif

}  // namespace qvx
