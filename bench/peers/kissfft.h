// kissfft, which has floats only, in the configuration that Debian packages.
#pragma once

#include <kiss_fft.h>
#include <kiss_fftr.h>

#include "qvx/qvxs.h"

namespace kissfft {

template <class T, bool kReal> class Plan {
 public:
  Plan(int n, const Qvx32f*, Qvx32f*) {
    if constexpr (kReal) real_ = kiss_fftr_alloc(n, 0, nullptr, nullptr);
    else complex_ = kiss_fft_alloc(n, 0, nullptr, nullptr);
  }
  ~Plan() {
    kiss_fft_free(real_);
    kiss_fft_free(complex_);
  }
  Plan(const Plan&) = delete;
  Plan& operator=(const Plan&) = delete;
  void run(const Qvx32f* src, Qvx32f* dst) const {
    auto* out = reinterpret_cast<kiss_fft_cpx*>(dst);
    if constexpr (kReal) kiss_fftr(real_, src, out);
    else kiss_fft(complex_, reinterpret_cast<const kiss_fft_cpx*>(src), out);
  }

 private:
  kiss_fftr_cfg real_ = nullptr;
  kiss_fft_cfg complex_ = nullptr;
};

}  // namespace kissfft
