// A long filter through FFTW for streams in short blocks: partitions as long as a block, products of spectra, plans by
// measurement. It also takes pieces of a block, each at the cost of a whole one.
#pragma once

#include <fftw3.h>

#include <algorithm>
#include <complex>
#include <vector>

namespace fftw {

class PartitionedFilter {
 public:
  PartitionedFilter(const std::vector<float>& taps, int block)
      : block_(static_cast<size_t>(block)), count_((taps.size() + block_ - 1) / block_) {
    x_ = fftwf_alloc_real(2 * block_);
    y_ = fftwf_alloc_real(2 * block_);
    sums_ = fftwf_alloc_complex(bins());
    taps_ = fftwf_alloc_complex(count_ * stride());
    samples_ = fftwf_alloc_complex(count_ * stride());
    forward_ = fftwf_plan_dft_r2c_1d(2 * block, x_, sums_, FFTW_MEASURE);
    inverse_ = fftwf_plan_dft_c2r_1d(2 * block, sums_, y_, FFTW_MEASURE);
    for (size_t p = 0; p < count_; ++p) {
      std::fill_n(x_, 2 * block_, 0.0F);
      for (size_t i = 0; i < std::min(block_, taps.size() - p * block_); ++i) {
        x_[i] = taps[p * block_ + i] / static_cast<float>(2 * block_);
      }
      fftwf_execute_dft_r2c(forward_, x_, taps_ + p * stride());
    }
    reset();
  }
  PartitionedFilter(const PartitionedFilter&) = delete;
  ~PartitionedFilter() {
    fftwf_destroy_plan(forward_);
    fftwf_destroy_plan(inverse_);
    fftwf_free(x_);
    fftwf_free(y_);
    for (fftwf_complex* p : {sums_, taps_, samples_}) fftwf_free(p);
  }

  void reset() {
    std::fill_n(x_, 2 * block_, 0.0F);
    std::fill_n(&samples_[0][0], 2 * count_ * stride(), 0.0F);
    filled_ = newest_ = 0;
  }

  void run(const float* src, float* dst, int n) {
    for (size_t left = static_cast<size_t>(n), some; left > 0; left -= some, src += some, dst += some) {
      some = std::min(left, block_ - filled_);
      std::copy_n(src, some, x_ + block_ + filled_);
      fftwf_execute_dft_r2c(forward_, x_, samples_ + newest_ * stride());
      addUp();
      fftwf_execute_dft_c2r(inverse_, sums_, y_);
      std::copy_n(y_ + block_ + filled_, some, dst);
      filled_ += some;
      if (filled_ < block_) continue;
      std::copy_n(x_ + block_, block_, x_);
      std::fill_n(x_ + block_, block_, 0.0F);
      filled_ = 0;
      newest_ = (newest_ == 0 ? count_ : newest_) - 1;
    }
  }

 private:
  size_t bins() const { return block_ + 1; }
  size_t stride() const { return block_ + 8; }  // plans count on the alignment they were made for

  void addUp() {
    std::fill_n(&sums_[0][0], 2 * bins(), 0.0F);
    for (size_t p = 0; p < count_; ++p) {
      const fftwf_complex* const a = taps_ + p * stride();
      const fftwf_complex* const b = samples_ + (newest_ + p) % count_ * stride();
      for (size_t k = 0; k < bins(); ++k) {
        sums_[k][0] += a[k][0] * b[k][0] - a[k][1] * b[k][1];
        sums_[k][1] += a[k][0] * b[k][1] + a[k][1] * b[k][0];
      }
    }
  }

  size_t block_, count_, filled_ = 0, newest_ = 0;
  float *x_, *y_;
  fftwf_complex *sums_, *taps_, *samples_;
  fftwf_plan forward_, inverse_;
};

}  // namespace fftw
