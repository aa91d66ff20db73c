// SLEEF's vector functions of at most 1.0 ULP called over a vector, of the instruction set of the variant that is measured.
#pragma once

#include <immintrin.h>
#include <sleef.h>

#include "qvx/qvxs.h"

#pragma GCC diagnostic ignored "-Wignored-attributes"  // of the registers as template arguments

namespace sleef {

// kFunction over whole registers, the last of which overlaps its neighbour; load and store are those of its type.
template <auto kFunction, class R, class T, class... Src> void over(T* d, int n, const Src*... src) {
  constexpr int kLanes = sizeof(R) / sizeof(T);
  const auto load = [](const T* p) {
    R v;
    __builtin_memcpy(&v, p, sizeof(v));
    return v;
  };
  const auto at = [=](int i) {
    const R v = kFunction(load(src + i)...);
    __builtin_memcpy(d + i, &v, sizeof(v));
  };
  int i = 0;
  for (; i + kLanes <= n; i += kLanes) at(i);
  if (i < n) at(n - kLanes);
}

// The function of the variant's instruction set.
template <auto kSse2, auto kAvx2, auto kAvx512, class T, class... Src> void bestOver(T* d, int n, const Src*... src) {
  constexpr bool kFloat = sizeof(T) == 4;
  const char variant = qvxsGetLibVersion()->cpuTag[1];
  if (variant == '4') over<kAvx512, std::conditional_t<kFloat, __m512, __m512d>>(d, n, src...);
  else if (variant == '3') over<kAvx2, std::conditional_t<kFloat, __m256, __m256d>>(d, n, src...);
  else over<kSse2, std::conditional_t<kFloat, __m128, __m128d>>(d, n, src...);
}
template <auto kSse2, auto kAvx2, auto kAvx512, class T> void best(const T* a, T* d, int n) {
  bestOver<kSse2, kAvx2, kAvx512>(d, n, a);
}
template <auto kSse2, auto kAvx2, auto kAvx512, class T> void bestPhase(const T* re, const T* im, T* d, int n) {
  bestOver<kSse2, kAvx2, kAvx512>(d, n, im, re);
}

// clang-format off
inline constexpr auto exp32f = best<Sleef_expf4_u10sse2, Sleef_expf8_u10avx2, Sleef_expf16_u10avx512f, float>;
inline constexpr auto exp64f = best<Sleef_expd2_u10sse2, Sleef_expd4_u10avx2, Sleef_expd8_u10avx512f, double>;
inline constexpr auto ln32f = best<Sleef_logf4_u10sse2, Sleef_logf8_u10avx2, Sleef_logf16_u10avx512f, float>;
inline constexpr auto ln64f = best<Sleef_logd2_u10sse2, Sleef_logd4_u10avx2, Sleef_logd8_u10avx512f, double>;
inline constexpr auto arctan32f = best<Sleef_atanf4_u10sse2, Sleef_atanf8_u10avx2, Sleef_atanf16_u10avx512f, float>;
inline constexpr auto arctan64f = best<Sleef_atand2_u10sse2, Sleef_atand4_u10avx2, Sleef_atand8_u10avx512f, double>;
inline constexpr auto phase32f = bestPhase<Sleef_atan2f4_u10sse2, Sleef_atan2f8_u10avx2, Sleef_atan2f16_u10avx512f, float>;
inline constexpr auto phase64f = bestPhase<Sleef_atan2d2_u10sse2, Sleef_atan2d4_u10avx2, Sleef_atan2d8_u10avx512f, double>;
inline constexpr auto cubrt32f = best<Sleef_cbrtf4_u10sse2, Sleef_cbrtf8_u10avx2, Sleef_cbrtf16_u10avx512f, float>;
// clang-format on

}  // namespace sleef
