// Instructions that few kernels use: what simd.h, which every file includes, need not have.
#pragma once

#include "frame/simd.h"

namespace qvx {

// The even or the odd lanes of floats twice. From memory that is done as they are loaded, by no unit that shuffles.
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
