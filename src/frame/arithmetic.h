// Arithmetic on vectors that Highway lacks or does slowly.
#pragma once

#include "frame/load_store.h"

namespace qvx {

namespace detail {

inline __m128i pairProducts(__m128i a, __m128i b) { return _mm_madd_epi16(a, b); }
inline __m128 minusPlus(__m128 a, __m128 b) { return _mm_addsub_ps(a, b); }
inline __m128d minusPlus(__m128d a, __m128d b) { return _mm_addsub_pd(a, b); }
#if QVXS_AVX2
inline __m256 minusPlus(__m256 a, __m256 b) { return _mm256_addsub_ps(a, b); }
inline __m256d minusPlus(__m256d a, __m256d b) { return _mm256_addsub_pd(a, b); }
inline __m256i pairProducts(__m256i a, __m256i b) { return _mm256_madd_epi16(a, b); }
#endif
#if QVXS_AVX512
inline __m512 minusPlus(__m512 a, __m512 b) { return _mm512_fmaddsub_ps(a, _mm512_set1_ps(1), b); }
inline __m512d minusPlus(__m512d a, __m512d b) { return _mm512_fmaddsub_pd(a, _mm512_set1_pd(1), b); }
inline __m512i pairProducts(__m512i a, __m512i b) { return _mm512_madd_epi16(a, b); }
inline __m128d nearReciprocalRoot(__m128d v) { return _mm_rsqrt14_pd(v); }
inline __m256d nearReciprocalRoot(__m256d v) { return _mm256_rsqrt14_pd(v); }
inline __m512d nearReciprocalRoot(__m512d v) { return _mm512_rsqrt14_pd(v); }
inline __m128d nearReciprocal(__m128d v) { return _mm_rcp14_pd(v); }
inline __m256d nearReciprocal(__m256d v) { return _mm256_rcp14_pd(v); }
inline __m512d nearReciprocal(__m512d v) { return _mm512_rcp14_pd(v); }
template <uint32_t kTable> __m512 replacedByClass(__m512 v) {
  return _mm512_fixupimm_ps(v, v, _mm512_set1_epi32(static_cast<int>(kTable)), 0);
}
inline __m512 scaled(__m512 v, __m512 exponent) { return _mm512_scalef_ps(v, exponent); }
inline __m512d scaled(__m512d v, __m512d exponent) { return _mm512_scalef_pd(v, exponent); }
inline __m512 exponent(__m512 v) { return _mm512_getexp_ps(v); }
inline __m512d exponent(__m512d v) { return _mm512_getexp_pd(v); }
inline __m512 mantissa(__m512 v) { return _mm512_getmant_ps(v, _MM_MANT_NORM_p75_1p5, _MM_MANT_SIGN_src); }
inline __m512d mantissa(__m512d v) { return _mm512_getmant_pd(v, _MM_MANT_NORM_p75_1p5, _MM_MANT_SIGN_src); }
#endif

}  // namespace detail

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

// a - b in the even lanes, a + b in the odd ones.
template <class V> V minusPlus(V a, V b) { return V{detail::minusPlus(a.raw, b.raw)}; }

// 1 / sqrt(x) to 12 bits, the same in every variant on one processor.
inline float reciprocalRootEstimate(float x) { return _mm_cvtss_f32(_mm_rsqrt_ss(_mm_set_ss(x))); }

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

#if QVXS_AVX512
// 1 / sqrt(v) of doubles, off by 2^-14 of it at most; processors differ in the bits after.
template <class V> V nearReciprocalRoot(V v) { return V{detail::nearReciprocalRoot(v.raw)}; }
// 1 / v likewise.
template <class V> V nearReciprocal(V v) { return V{detail::nearReciprocal(v.raw)}; }

// v * 2^floor(exponent), rounded once, for any exponent.
template <class V> V scaledBy(V v, V exponent) {
  detail::partOf(detail::scaled(detail::whole(v.raw), detail::whole(exponent.raw)), v.raw);
  return v;
}

// What each class of floats becomes.
enum class Becomes : uint32_t { kItself = 1, kZero = 8, kMinusOne = 9, kOne = 10 };
struct ByClass {
  Becomes nan, zero, one, minusInfinity, infinity, negative, positive;

  constexpr uint32_t table() const {
    uint32_t all = 0, place = 0;
    for (const Becomes each : {nan, nan, zero, one, minusInfinity, infinity, negative, positive}) {
      all |= static_cast<uint32_t>(each) << place;
      place += 4;
    }
    return all;
  }
};
template <ByClass kBy, class V> V replacedByClass(V v) {
  detail::partOf(detail::replacedByClass<kBy.table()>(detail::whole(v.raw)), v.raw);
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

}  // namespace qvx
