// Arithmetic that rounds to nearest whatever the processor's mode, and raises no floating-point exception.
#pragma once

#include "frame/vectors.h"

namespace qvx {

#if QVXS_AVX512
namespace detail {

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

}  // namespace detail

// a * b + c, to nearest whatever the processor's mode.
template <class V> V mulAddNearest(V a, V b, V c) {
  detail::partOf(detail::mulAddNearest(detail::whole(a.raw), detail::whole(b.raw), detail::whole(c.raw)), a.raw);
  return a;
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
