// Filters of liquid-dsp.
#pragma once

#include <liquid/liquid.h>

#include <complex>

#include "frame/vectors.h"

namespace liquid {

inline auto create(const float* h, int n) { return firfilt_rrrf_create(const_cast<float*>(h), static_cast<unsigned>(n)); }
inline auto create(const Qvx32fc* h, int n) {
  return firfilt_cccf_create(reinterpret_cast<liquid_float_complex*>(const_cast<Qvx32fc*>(h)), static_cast<unsigned>(n));
}
inline void reset(firfilt_rrrf filter) { firfilt_rrrf_reset(filter); }
inline void reset(firfilt_cccf filter) { firfilt_cccf_reset(filter); }
inline void run(firfilt_rrrf filter, const float* src, float* dst, int n) {
  firfilt_rrrf_execute_block(filter, const_cast<float*>(src), static_cast<unsigned>(n), dst);
}
inline void run(firfilt_cccf filter, const Qvx32fc* src, Qvx32fc* dst, int n) {
  firfilt_cccf_execute_block(filter, reinterpret_cast<liquid_float_complex*>(const_cast<Qvx32fc*>(src)), static_cast<unsigned>(n),
                             reinterpret_cast<liquid_float_complex*>(dst));
}

}  // namespace liquid
