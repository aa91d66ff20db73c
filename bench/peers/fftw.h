// FFTW's plans under one interface, planned by measurement; for a length and a place once in a process.
#pragma once

#include <dlfcn.h>
#include <fftw3.h>

#include <cstdlib>
#include <memory>
#include <string>

namespace fftw {

// clang-format off
template <class T> struct Api;
template <> struct Api<float> {
  using Complex = fftwf_complex;
  static constexpr auto planComplex = fftwf_plan_dft_1d;
  static constexpr auto planReal = fftwf_plan_dft_r2c_1d;
  static constexpr auto planCosines = fftwf_plan_r2r_1d;
  static constexpr auto execute = fftwf_execute;
  static constexpr auto destroy = fftwf_destroy_plan;
};
template <> struct Api<double> {
  using Complex = fftw_complex;
  static constexpr auto planComplex = fftw_plan_dft_1d;
  static constexpr auto planReal = fftw_plan_dft_r2c_1d;
  static constexpr auto planCosines = fftw_plan_r2r_1d;
  static constexpr auto execute = fftw_execute;
  static constexpr auto destroy = fftw_destroy_plan;
};
// clang-format on

// The same for libraries built for this processor, in the folder QVXS_BUILT_FFTW. Their symbols are those of the packaged ones,
// so they are opened with dlopen; what is missing is null.
inline void* built(const char* library, const char* name) {
  const char* folder = std::getenv("QVXS_BUILT_FFTW");
  if (folder == nullptr) return nullptr;
  void* handle = dlopen((std::string(folder) + "/" + library).c_str(), RTLD_NOW | RTLD_LOCAL | RTLD_DEEPBIND);
  return handle == nullptr ? nullptr : dlsym(handle, name);
}
template <class F> F* built(F*, const char* library, const char* name) { return reinterpret_cast<F*>(built(library, name)); }
template <class T> struct BuiltApi;
template <> struct BuiltApi<float> {
  using Complex = fftwf_complex;
  static inline const auto planComplex = built(fftwf_plan_dft_1d, "libfftw3f.so.3", "fftwf_plan_dft_1d");
  static inline const auto planReal = built(fftwf_plan_dft_r2c_1d, "libfftw3f.so.3", "fftwf_plan_dft_r2c_1d");
  static inline const auto planCosines = built(fftwf_plan_r2r_1d, "libfftw3f.so.3", "fftwf_plan_r2r_1d");
  static inline const auto execute = built(fftwf_execute, "libfftw3f.so.3", "fftwf_execute");
  static inline const auto destroy = built(fftwf_destroy_plan, "libfftw3f.so.3", "fftwf_destroy_plan");
};
template <> struct BuiltApi<double> {
  using Complex = fftw_complex;
  static inline const auto planComplex = built(fftw_plan_dft_1d, "libfftw3.so.3", "fftw_plan_dft_1d");
  static inline const auto planReal = built(fftw_plan_dft_r2c_1d, "libfftw3.so.3", "fftw_plan_dft_r2c_1d");
  static inline const auto planCosines = built(fftw_plan_r2r_1d, "libfftw3.so.3", "fftw_plan_r2r_1d");
  static inline const auto execute = built(fftw_execute, "libfftw3.so.3", "fftw_execute");
  static inline const auto destroy = built(fftw_destroy_plan, "libfftw3.so.3", "fftw_destroy_plan");
};
// Called when suites are made, after all static objects.
template <class T> bool isBuilt() { return BuiltApi<T>::execute != nullptr; }

// A forward transform. Planning writes both vectors.
template <class T, bool kReal, class F = Api<T>, unsigned kEffort = FFTW_MEASURE> class Plan {
 public:
  Plan(int n, const T* src, T* dst) {
    T* in = const_cast<T*>(src);
    auto* out = reinterpret_cast<typename F::Complex*>(dst);
    if constexpr (kReal) plan_ = F::planReal(n, in, out, kEffort | FFTW_PRESERVE_INPUT * (src != dst));
    else plan_ = F::planComplex(n, reinterpret_cast<typename F::Complex*>(in), out, FFTW_FORWARD, kEffort);
  }
  ~Plan() { F::destroy(plan_); }
  Plan(const Plan&) = delete;
  Plan& operator=(const Plan&) = delete;
  void run(const T*, T*) const { F::execute(plan_); }

 private:
  decltype(F::planComplex(0, nullptr, nullptr, 0, 0)) plan_;
};

template <class T, bool kReal> using MeasuredPlan = Plan<T, kReal>;
template <class T, bool kReal> using BuiltPlan = Plan<T, kReal, BuiltApi<T>>;
// Planning 2^17 points with this effort would take more than a minute.
template <class T, bool kReal> using PatientPlan = Plan<T, kReal, BuiltApi<T>, FFTW_PATIENT>;
inline constexpr int kMostPatient = 1 << 16;

// A cosine transform of type II, or of type III where it is inverse.
template <class T, bool kInverse, class F = Api<T>> class Cosines {
 public:
  Cosines(int n, const T* src, T* dst)
      : plan_(F::planCosines(n, const_cast<T*>(src), dst, kInverse ? FFTW_REDFT01 : FFTW_REDFT10,
                             FFTW_MEASURE | FFTW_PRESERVE_INPUT * (src != dst))) {}
  ~Cosines() { F::destroy(plan_); }
  Cosines(const Cosines&) = delete;
  Cosines& operator=(const Cosines&) = delete;
  void run(const T*, T*) const { F::execute(plan_); }

 private:
  decltype(F::planCosines(0, nullptr, nullptr, FFTW_REDFT10, 0)) plan_;
};

// The analytic signal of floats: a real transform there, a complex one back, and between them twice the positive frequencies.
class Analytic {
 public:
  Analytic(int n, const float* src, float* dst)
      : n_(n),
        dst_(dst),
        there_(fftwf_plan_dft_r2c_1d(n, const_cast<float*>(src), complex(), FFTW_MEASURE | FFTW_PRESERVE_INPUT)),
        back_(fftwf_plan_dft_1d(n, complex(), complex(), FFTW_BACKWARD, FFTW_MEASURE)) {}
  ~Analytic() {
    fftwf_destroy_plan(there_);
    fftwf_destroy_plan(back_);
  }
  Analytic(const Analytic&) = delete;
  Analytic& operator=(const Analytic&) = delete;
  void run(const float*, float*) const {
    fftwf_execute(there_);
    const float factor = 1 / static_cast<float>(n_);
    const int above = n_ / 2 + 1;
    const int doubled = (n_ + 1) / 2;
    for (int i = 0; i < 2 * above; ++i) dst_[i] *= i < 2 || i >= 2 * doubled ? factor : 2 * factor;
    for (int i = 2 * above; i < 2 * n_; ++i) dst_[i] = 0;
    fftwf_execute(back_);
  }

 private:
  fftwf_complex* complex() const { return reinterpret_cast<fftwf_complex*>(dst_); }

  int n_;
  float* dst_;
  fftwf_plan there_;
  fftwf_plan back_;
};

}  // namespace fftw
