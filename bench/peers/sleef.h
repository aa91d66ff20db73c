// SLEEF's vector functions of at most 1.0 ULP called over a vector, of the instruction set of the variant that is measured.
#pragma once

#include <immintrin.h>
#include <sleef.h>

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

// The registers of the variant's instruction set, and the names of its functions.
#if defined __AVX512F__
using Floats = __m512;
using Doubles = __m512d;
#define SLEEF_32F(function) Sleef_##function##f16_u10avx512f
#define SLEEF_64F(function) Sleef_##function##d8_u10avx512f
#elif defined __AVX2__
using Floats = __m256;
using Doubles = __m256d;
#define SLEEF_32F(function) Sleef_##function##f8_u10avx2
#define SLEEF_64F(function) Sleef_##function##d4_u10avx2
#else
using Floats = __m128;
using Doubles = __m128d;
#define SLEEF_32F(function) Sleef_##function##f4_u10sse2
#define SLEEF_64F(function) Sleef_##function##d2_u10sse2
#endif

template <auto kFunction, class R, class T> void call(const T* a, T* d, int n) { over<kFunction, R>(d, n, a); }
template <auto kFunction, class R, class T> void phase(const T* re, const T* im, T* d, int n) {
  over<kFunction, R>(d, n, im, re);
}

inline constexpr auto exp32f = call<SLEEF_32F(exp), Floats, float>;
inline constexpr auto exp64f = call<SLEEF_64F(exp), Doubles, double>;
inline constexpr auto ln32f = call<SLEEF_32F(log), Floats, float>;
inline constexpr auto ln64f = call<SLEEF_64F(log), Doubles, double>;
inline constexpr auto arctan32f = call<SLEEF_32F(atan), Floats, float>;
inline constexpr auto arctan64f = call<SLEEF_64F(atan), Doubles, double>;
inline constexpr auto phase32f = phase<SLEEF_32F(atan2), Floats, float>;
inline constexpr auto phase64f = phase<SLEEF_64F(atan2), Doubles, double>;
inline constexpr auto cubrt32f = call<SLEEF_32F(cbrt), Floats, float>;

}  // namespace sleef
