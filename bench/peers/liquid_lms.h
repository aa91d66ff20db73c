// The adaptive equaliser of liquid-dsp: its step is normalised by the power in the window.
#pragma once

#include <liquid/liquid.h>

namespace liquid {

inline eqlms_rrrf adaptive(int taps, float mu) {
  const eqlms_rrrf filter = eqlms_rrrf_create(nullptr, static_cast<unsigned>(taps));
  eqlms_rrrf_set_bw(filter, mu);
  return filter;
}
inline void reset(eqlms_rrrf filter) { eqlms_rrrf_reset(filter); }
inline void run(eqlms_rrrf filter, const float* src, const float* ref, float* dst, int n) {
  for (int i = 0; i < n; ++i) {
    eqlms_rrrf_push_block(filter, const_cast<float*>(src) + i, 1);
    eqlms_rrrf_execute(filter, dst + i);
    eqlms_rrrf_step(filter, ref[i], dst[i]);
  }
}

}  // namespace liquid
