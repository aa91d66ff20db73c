// Products of complex numbers with their parts side by side, fused where the processor can.
#pragma once

#include "frame/map.h"

namespace qvx {

#if QVXS_AVX2
namespace detail {

inline __m128 minusPlus(__m128 a, __m128 b, __m128 c) { return _mm_fmaddsub_ps(a, b, c); }
inline __m128d minusPlus(__m128d a, __m128d b, __m128d c) { return _mm_fmaddsub_pd(a, b, c); }
inline __m256 minusPlus(__m256 a, __m256 b, __m256 c) { return _mm256_fmaddsub_ps(a, b, c); }
inline __m256d minusPlus(__m256d a, __m256d b, __m256d c) { return _mm256_fmaddsub_pd(a, b, c); }
inline __m128 plusMinus(__m128 a, __m128 b, __m128 c) { return _mm_fmsubadd_ps(a, b, c); }
inline __m128d plusMinus(__m128d a, __m128d b, __m128d c) { return _mm_fmsubadd_pd(a, b, c); }
inline __m256 plusMinus(__m256 a, __m256 b, __m256 c) { return _mm256_fmsubadd_ps(a, b, c); }
inline __m256d plusMinus(__m256d a, __m256d b, __m256d c) { return _mm256_fmsubadd_pd(a, b, c); }
#if QVXS_AVX512
inline __m512 minusPlus(__m512 a, __m512 b, __m512 c) { return _mm512_fmaddsub_ps(a, b, c); }
inline __m512d minusPlus(__m512d a, __m512d b, __m512d c) { return _mm512_fmaddsub_pd(a, b, c); }
inline __m512 plusMinus(__m512 a, __m512 b, __m512 c) { return _mm512_fmsubadd_ps(a, b, c); }
inline __m512d plusMinus(__m512d a, __m512d b, __m512d c) { return _mm512_fmsubadd_pd(a, b, c); }
#endif

}  // namespace detail

// a * b - c in the even lanes and a * b + c in the odd ones, rounded once where products are fused; and the other way round.
template <class V> V minusPlus(V a, V b, V c) { return V{detail::minusPlus(a.raw, b.raw, c.raw)}; }
template <class V> V plusMinus(V a, V b, V c) { return V{detail::plusMinus(a.raw, b.raw, c.raw)}; }
#else
template <class V> V minusPlus(V a, V b, V c) { return minusPlus(a * b, c); }
template <class V> V plusMinus(V a, V b, V c) { return minusPlus(a * b, hn::Neg(c)); }
#endif

}  // namespace qvx
