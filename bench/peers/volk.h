// VOLK's kernels in the order of our arguments. The conversions of floats multiply by a scalar, those to floats divide by one: it
// is made from the scale factor, so that the work is equal. They are inlined into the timing loop: no call more than its own.
#pragma once

#include <volk/volk.h>

#include <bit>
#include <cstring>

#include "qvx/qvxs.h"

namespace volk {

// VOLK chooses by the processor. To be called first: keeps it within the instructions that the peers are compiled for.
void hold();

inline const lv_32fc_t* complex(const Qvx32fc* p) { return reinterpret_cast<const lv_32fc_t*>(p); }
inline lv_32fc_t* complex(Qvx32fc* p) { return reinterpret_cast<lv_32fc_t*>(p); }
inline int32_t* asSigned(Qvx32u* p) { return reinterpret_cast<int32_t*>(p); }
inline const int32_t* asSigned(const Qvx32u* p) { return reinterpret_cast<const int32_t*>(p); }
inline float powerOfTwo(int exponent) { return std::bit_cast<float>((127 + exponent) << 23); }

using F = const float*;
using C = const Qvx32fc*;

// clang-format off
inline constexpr auto add32f = [](F a, F b, float* d, int n) { volk_32f_x2_add_32f(d, a, b, n); };
inline constexpr auto sub32f = [](F a, F b, float* d, int n) { volk_32f_x2_subtract_32f(d, b, a, n); };
inline constexpr auto mul32f = [](F a, F b, float* d, int n) { volk_32f_x2_multiply_32f(d, a, b, n); };
inline constexpr auto div32f = [](F a, F b, float* d, int n) { volk_32f_x2_divide_32f(d, b, a, n); };
inline constexpr auto addC32f = [](F a, float c, float* d, int n) { volk_32f_s32f_add_32f(d, a, c, n); };
inline constexpr auto mulC32f = [](F a, float c, float* d, int n) { volk_32f_s32f_multiply_32f(d, a, c, n); };
inline constexpr auto sqrt32f = [](F a, float* d, int n) { volk_32f_sqrt_32f(d, a, n); };
inline constexpr auto add64f = [](const double* a, const double* b, double* d, int n) { volk_64f_x2_add_64f(d, a, b, n); };
inline constexpr auto mul64f = [](const double* a, const double* b, double* d, int n) { volk_64f_x2_multiply_64f(d, a, b, n); };
inline constexpr auto add32fc = [](C a, C b, Qvx32fc* d, int n) { volk_32fc_x2_add_32fc(complex(d), complex(a), complex(b), n); };
inline constexpr auto mul32fc = [](C a, C b, Qvx32fc* d, int n) { volk_32fc_x2_multiply_32fc(complex(d), complex(a), complex(b), n); };
inline constexpr auto mul32f32fc = [](F a, C b, Qvx32fc* d, int n) { volk_32fc_32f_multiply_32fc(complex(d), complex(b), a, n); };
inline constexpr auto div32fc = [](C a, C b, Qvx32fc* d, int n) { volk_32fc_x2_divide_32fc(complex(d), complex(b), complex(a), n); };
inline constexpr auto mulC32fc = [](C a, Qvx32fc c, Qvx32fc* d, int n) { volk_32fc_s32fc_multiply_32fc(complex(d), complex(a), {c.re, c.im}, n); };

inline constexpr auto and32u = [](const Qvx32u* a, const Qvx32u* b, Qvx32u* d, int n) { volk_32i_x2_and_32i(asSigned(d), asSigned(a), asSigned(b), n); };
inline constexpr auto or32u = [](const Qvx32u* a, const Qvx32u* b, Qvx32u* d, int n) { volk_32i_x2_or_32i(asSigned(d), asSigned(a), asSigned(b), n); };
inline constexpr auto swap16u = [](Qvx16u* d, int n) { volk_16u_byteswap(d, n); };
inline constexpr auto swap32u = [](Qvx32u* d, int n) { volk_32u_byteswap(d, n); };
inline constexpr auto swap64u = [](Qvx64u* d, int n) { volk_64u_byteswap(d, n); };

inline constexpr auto to32f = [](auto* a, float* d, int n) {
  using T = std::remove_cvref_t<decltype(*a)>;
  if constexpr (sizeof(T) == 1) volk_8i_s32f_convert_32f(d, a, 1.0F, n);
  else if constexpr (sizeof(T) == 2) volk_16i_s32f_convert_32f(d, a, 1.0F, n);
  else volk_32i_s32f_convert_32f(d, a, 1.0F, n);
};
inline constexpr auto to32fScaled = [](auto* a, float* d, int n, int s) {
  using T = std::remove_cvref_t<decltype(*a)>;
  if constexpr (sizeof(T) == 2) volk_16i_s32f_convert_32f(d, a, powerOfTwo(s), n);
  else volk_32i_s32f_convert_32f(d, a, powerOfTwo(s), n);
};
inline constexpr auto from32f = [](F a, auto* d, int n, QvxRoundMode, int s) {
  using T = std::remove_pointer_t<decltype(d)>;
  if constexpr (sizeof(T) == 1) volk_32f_s32f_convert_8i(d, a, powerOfTwo(-s), n);
  else if constexpr (sizeof(T) == 2) volk_32f_s32f_convert_16i(d, a, powerOfTwo(-s), n);
  else volk_32f_s32f_convert_32i(d, a, powerOfTwo(-s), n);
};
inline constexpr auto to16s = [](const Qvx8s* a, Qvx16s* d, int n) { volk_8i_convert_16i(d, a, n); };  // times 256
inline constexpr auto to64f = [](F a, double* d, int n) { volk_32f_convert_64f(d, a, n); };
inline constexpr auto from64f = [](const double* a, float* d, int n) { volk_64f_convert_32f(d, a, n); };

inline const lv_16sc_t* complex(const Qvx16sc* p) { return reinterpret_cast<const lv_16sc_t*>(p); }
inline constexpr auto real16sc = [](const Qvx16sc* a, Qvx16s* d, int n) { volk_16ic_deinterleave_real_16i(d, complex(a), n); };
inline constexpr auto real32fc = [](C a, float* d, int n) { volk_32fc_deinterleave_real_32f(d, complex(a), n); };
inline constexpr auto imag32fc = [](C a, float* d, int n) { volk_32fc_deinterleave_imag_32f(d, complex(a), n); };
inline constexpr auto split16sc = [](const Qvx16sc* a, Qvx16s* re, Qvx16s* im, int n) { volk_16ic_deinterleave_16i_x2(re, im, complex(a), n); };
inline constexpr auto split32fc = [](C a, float* re, float* im, int n) { volk_32fc_deinterleave_32f_x2(re, im, complex(a), n); };
inline constexpr auto join32f = [](F re, F im, Qvx32fc* d, int n) { volk_32f_x2_interleave_32fc(complex(d), re, im, n); };
inline constexpr auto conj32fc = [](C a, Qvx32fc* d, int n) { volk_32fc_conjugate_32fc(complex(d), complex(a), n); };
inline constexpr auto magnitude32fc = [](C a, float* d, int n) { volk_32fc_magnitude_32f(d, complex(a), n); };
inline constexpr auto phase32fc = [](C a, float* d, int n) { volk_32fc_s32f_atan2_32f(d, complex(a), 1.0F, n); };
inline constexpr auto power32fc = [](C a, float* d, int n) { volk_32fc_magnitude_squared_32f(d, complex(a), n); };

inline constexpr auto sum32f = [](F a, int n, float* r, int) { volk_32f_accumulator_s32f(r, a, n); };
inline constexpr auto dot32f = [](F a, F b, int n, float* r) { volk_32f_x2_dot_prod_32f(r, a, b, n); };
inline constexpr auto dot32fc = [](C a, C b, int n, Qvx32fc* r) { volk_32fc_x2_dot_prod_32fc(complex(r), complex(a), complex(b), n); };
inline constexpr auto dot32f32fc = [](F a, C b, int n, Qvx32fc* r) { volk_32fc_32f_dot_prod_32fc(complex(r), complex(b), a, n); };
inline constexpr auto dot16sc = [](const Qvx16sc* a, const Qvx16sc* b, int n, Qvx16sc* r, int) {
  volk_16ic_x2_dot_prod_16ic(reinterpret_cast<lv_16sc_t*>(r), reinterpret_cast<const lv_16sc_t*>(a), reinterpret_cast<const lv_16sc_t*>(b), n);
};
inline constexpr auto meanStdDev32f = [](F a, int n, float* mean, float* deviation, int) { volk_32f_stddev_and_mean_32f_x2(deviation, mean, a, n); };
inline constexpr auto maxEvery32f = [](F a, F b, float* d, int n) { volk_32f_x2_max_32f(d, a, b, n); };
inline constexpr auto minEvery32f = [](F a, F b, float* d, int n) { volk_32f_x2_min_32f(d, a, b, n); };
inline constexpr auto maxEvery64f = [](const double* a, const double* b, double* d, int n) { volk_64f_x2_max_64f(d, a, b, n); };
inline constexpr auto maxIndex32f = [](F a, int n, float* max, int* index) {
  uint32_t at;
  volk_32f_index_max_32u(&at, a, n);
  *max = a[at];
  *index = static_cast<int>(at);
};
inline constexpr auto minIndex32f = [](F a, int n, float* min, int* index) {
  uint32_t at;
  volk_32f_index_min_32u(&at, a, n);
  *min = a[at];
  *index = static_cast<int>(at);
};
// clang-format on

}  // namespace volk
