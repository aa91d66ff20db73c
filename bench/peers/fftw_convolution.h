// Convolution through FFTW, by overlap-save where that is faster than one transform for all: its plans are measured, and the
// length of its blocks too, before anything is timed.
#pragma once

#include <fftw3.h>

#include <algorithm>
#include <chrono>
#include <complex>
#include <limits>
#include <vector>

namespace fftw {

class Convolution {
 public:
  // The longer operand first.
  Convolution(int aLen, int bLen) : aLen_(aLen), bLen_(bLen) {
    const std::vector<float> a(static_cast<size_t>(aLen), 1), b(static_cast<size_t>(bLen), 1);
    std::vector<float> y(static_cast<size_t>(aLen + bLen - 1));
    double least = std::numeric_limits<double>::infinity();
    int best = 0;
    for (int length = 16; best == 0 || length <= 16 * bLen; length *= 2) {
      if (length < 2 * bLen) continue;
      plan(length);
      const auto took = [&] {
        const auto start = std::chrono::steady_clock::now();
        run(a.data(), b.data(), y.data());
        return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
      };
      double time = took();
      for (int i = 0; i < 20; ++i) time = std::min(time, took());
      if (time < least) least = time, best = length;
      if (length >= aLen + bLen - 1) break;
    }
    plan(best);
  }
  Convolution(const Convolution&) = delete;
  ~Convolution() { release(); }

  void run(const float* a, const float* b, float* y) {
    const int total = aLen_ + bLen_ - 1, old = length_ < total ? bLen_ - 1 : 0, fresh = length_ - old;
    std::copy_n(b, bLen_, block_);
    std::fill(block_ + bLen_, block_ + length_, 0.0F);
    fftwf_execute_dft_r2c(forward_, block_, reinterpret_cast<fftwf_complex*>(taps_));
    const float scale = 1.0F / static_cast<float>(length_);
    for (int at = 0; at < total; at += fresh) {
      const int first = std::max(0, old - at), last = std::clamp(aLen_ - at + old, first, length_);
      std::fill(block_, block_ + first, 0.0F);
      std::copy(a + at - old + first, a + at - old + last, block_ + first);
      std::fill(block_ + last, block_ + length_, 0.0F);
      fftwf_execute_dft_r2c(forward_, block_, reinterpret_cast<fftwf_complex*>(spectrum_));
      for (int k = 0; k <= length_ / 2; ++k) {
        const std::complex<float> u = spectrum_[k], v = taps_[k];
        spectrum_[k] = {scale * (u.real() * v.real() - u.imag() * v.imag()), scale * (u.real() * v.imag() + u.imag() * v.real())};
      }
      fftwf_execute_dft_c2r(inverse_, reinterpret_cast<fftwf_complex*>(spectrum_), block_);
      std::copy_n(block_ + old, std::min(fresh, total - at), y + at);
    }
  }

 private:
  void plan(int length) {
    release();
    length_ = length;
    const auto n = static_cast<size_t>(length);
    block_ = fftwf_alloc_real(n);
    taps_ = reinterpret_cast<std::complex<float>*>(fftwf_alloc_complex(n / 2 + 1));
    spectrum_ = reinterpret_cast<std::complex<float>*>(fftwf_alloc_complex(n / 2 + 1));
    forward_ = fftwf_plan_dft_r2c_1d(length, block_, reinterpret_cast<fftwf_complex*>(spectrum_), FFTW_MEASURE);
    inverse_ = fftwf_plan_dft_c2r_1d(length, reinterpret_cast<fftwf_complex*>(spectrum_), block_, FFTW_MEASURE);
  }
  void release() {
    if (length_ == 0) return;
    fftwf_destroy_plan(forward_);
    fftwf_destroy_plan(inverse_);
    fftwf_free(block_);
    fftwf_free(taps_);
    fftwf_free(spectrum_);
  }

  int aLen_, bLen_, length_ = 0;
  float* block_ = nullptr;
  std::complex<float>* taps_ = nullptr;
  std::complex<float>* spectrum_ = nullptr;
  fftwf_plan forward_ = nullptr, inverse_ = nullptr;
};

}  // namespace fftw
