// Filters of liquid-dsp.
#pragma once

#include <liquid/liquid.h>

#include <complex>
#include <vector>

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

// ---- several rates: one of three filters, depending on the factors

template <class T> struct Rates;
template <> struct Rates<float> {
  static constexpr auto kDecimator = firdecim_rrrf_create;
  static constexpr auto kDecimate = firdecim_rrrf_execute_block;
  static constexpr auto kResetDecimator = firdecim_rrrf_reset;
  static constexpr auto kInterpolator = firinterp_rrrf_create;
  static constexpr auto kInterpolate = firinterp_rrrf_execute_block;
  static constexpr auto kResetInterpolator = firinterp_rrrf_reset;
  static constexpr auto kResampler = rresamp_rrrf_create;
  static constexpr auto kResample = rresamp_rrrf_execute;
  static constexpr auto kResetResampler = rresamp_rrrf_reset;
  static float* values(const float* p) { return const_cast<float*>(p); }
};
template <> struct Rates<Qvx32fc> {
  static constexpr auto kDecimator = firdecim_cccf_create;
  static constexpr auto kDecimate = firdecim_cccf_execute_block;
  static constexpr auto kResetDecimator = firdecim_cccf_reset;
  static constexpr auto kInterpolator = firinterp_cccf_create;
  static constexpr auto kInterpolate = firinterp_cccf_execute_block;
  static constexpr auto kResetInterpolator = firinterp_cccf_reset;
  static constexpr auto kResampler = rresamp_cccf_create;
  static constexpr auto kResample = rresamp_cccf_execute;
  static constexpr auto kResetResampler = rresamp_cccf_reset;
  static liquid_float_complex* values(const Qvx32fc* p) {
    return reinterpret_cast<liquid_float_complex*>(const_cast<Qvx32fc*>(p));
  }
};

// periods: of `down` samples and `up` outputs. A resampler of both makes its taps fit itself: only its work is comparable.
template <class T, int kUp, int kDown, int kTaps>
void rates(const std::vector<T>& h, const T* src, T* dst, int periods, bool isFresh) {
  using R = Rates<T>;
  auto* const x = R::values(src);
  auto* const y = R::values(dst);
  const auto count = static_cast<unsigned>(periods);
  if constexpr (kUp == 1) {
    static auto* const filter = R::kDecimator(kDown, R::values(h.data()), kTaps);
    if (isFresh) R::kResetDecimator(filter);
    R::kDecimate(filter, x, count, y);
  } else if constexpr (kDown == 1) {
    static auto* const filter = R::kInterpolator(kUp, R::values(h.data()), kTaps);
    if (isFresh) R::kResetInterpolator(filter);
    R::kInterpolate(filter, x, count, y);
  } else {
    constexpr unsigned kHalf = kTaps / kUp / 2;
    static auto* const filter = [] {
      std::vector<T> taps(2 * kHalf * kUp + 1);
      return R::kResampler(kUp, kDown, kHalf, R::values(taps.data()));
    }();
    if (isFresh) R::kResetResampler(filter);
    for (int i = 0; i < periods; ++i) R::kResample(filter, x + i * kDown, y + i * kUp);
  }
}

}  // namespace liquid
