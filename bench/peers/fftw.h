// FFTW's plans under one interface, planned by measurement; for a length and a place once in a process.
#pragma once

#include <fftw3.h>

#include <memory>

namespace fftw {

// clang-format off
template <class T> struct Api;
template <> struct Api<float> {
  using Complex = fftwf_complex;
  static constexpr auto planComplex = fftwf_plan_dft_1d;
  static constexpr auto planReal = fftwf_plan_dft_r2c_1d;
  static constexpr auto execute = fftwf_execute;
  static constexpr auto destroy = fftwf_destroy_plan;
};
template <> struct Api<double> {
  using Complex = fftw_complex;
  static constexpr auto planComplex = fftw_plan_dft_1d;
  static constexpr auto planReal = fftw_plan_dft_r2c_1d;
  static constexpr auto execute = fftw_execute;
  static constexpr auto destroy = fftw_destroy_plan;
};
// clang-format on

// A forward transform. Planning writes both vectors.
template <class T, bool kReal> class Plan {
 public:
  using F = Api<T>;
  Plan(int n, const T* src, T* dst) {
    T* in = const_cast<T*>(src);
    auto* out = reinterpret_cast<typename F::Complex*>(dst);
    if constexpr (kReal) plan_ = F::planReal(n, in, out, FFTW_MEASURE | FFTW_PRESERVE_INPUT * (src != dst));
    else plan_ = F::planComplex(n, reinterpret_cast<typename F::Complex*>(in), out, FFTW_FORWARD, FFTW_MEASURE);
  }
  ~Plan() { F::destroy(plan_); }
  Plan(const Plan&) = delete;
  Plan& operator=(const Plan&) = delete;
  void run(const T*, T*) const { F::execute(plan_); }

 private:
  decltype(F::planComplex(0, nullptr, nullptr, 0, 0)) plan_;
};

}  // namespace fftw
