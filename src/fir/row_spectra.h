// Long branches of a multi-rate filter by way of the FFT: a block of each row is transformed once and serves all branches; the
// products of its spectrum with those of a branch's taps for that row are added up, and one transform back gives the branch's
// outputs. 2048 taps at 1:2 take an eighth of the time of the sums of products, 256 taps half of it.
#pragma once

#include "fft/adapter.h"
#include "fft/ready.h"
#include "fir/ratio.h"
#include "frame/record.h"

namespace qvx::fir {

template <class C> class RowSpectra {
 public:
  static constexpr int kLeastTaps = 128;  // of a branch

  // Places the spectra for blocks of up to `most` periods, in rows whose next sample is at `history`. The rows share the given
  // bytes with them. Places nothing if spectra do not pay or do not fit.
  void place(const Ratio& q, int64_t rows, int64_t history, int64_t most, Carver& carver, int64_t bytes) {
    if (q.taps < kLeastTaps) return;
    Branch last = q.branch();
    const int64_t begin = last.sample - q.taps + 1 + history * rows;
    for (int j = 1; j < q.up; ++j) last.advance(q.up, q.down);
    first_ = begin / rows;
    span_ = (last.sample + history * rows) / rows - first_ + 1;
    rows_ = rows;
    up_ = q.up;
    taps_ = q.taps;
    const int least = std::max(static_cast<int>(std::bit_width(static_cast<uint64_t>(span_ + span_ / 2 - 1))), fft::kLowestReady);
    order_ = least;
    while (points() < 4 * span_ && points() - span_ < most) ++order_;
    for (; order_ >= least; --order_) {
      if (order_ > fft::kHighestReady || !areWorth(std::min(most, block()))) continue;
      const auto* spec = fft::readySpec<typename fft::Transform<C>::Spec>(order_);
      const int64_t work = fft::TransformSizes::ofOrder<C>(order_).work;
      const int64_t samples = rows * (history + std::min(most, block()) + 2 * kVectorElements<C>);
      const int64_t spectra = (up_ * rows_ + kept() + 1) * points();
      const int64_t needed = (samples + spectra) * int64_t{sizeof(C)} + work + 5 * Carver::kLine;
      if (isNull(spec) || needed > bytes) continue;
      spec_ = spec;
      spectra_ = carver.takeLines<C>(up_ * rows_ * points());
      samples_ = carver.takeLines<C>(kept() * points());
      sum_ = carver.takeLines<C>(points());
      work_ = carver.takeLines<Qvx8u>(work);
      return;
    }
  }
  bool isPlaced() const { return !isNull(spec_); }
  int64_t block() const { return points() - span_ + 1; }

  // putTaps(put) calls put(branch, row, at, tap) for all of them.
  template <class PutTaps> void setTaps(PutTaps putTaps) {
    const int64_t all = up_ * rows_;
    std::fill_n(spectra_, all * points(), C{});
    putTaps([this](int64_t branch, int64_t row, int64_t at, C tap) {
      if constexpr (PartsOf<C>::kCount == 2) tap.im = -tap.im;
      spectra_[(branch * rows_ + row) * points() + at - first_] = tap;
    });
    for (int64_t i = 0; i < all; ++i) {
      C* const spectrum = spectra_ + i * points();
      fft::Transform<C>::kForward(spectrum, spectrum, spec_, work_);
      fft::conjugate(spectrum, length());
    }
  }

  // Whether spectra are faster for a block of `periods`. The unit is a product of the direct way, 0.018 ns with AVX-512; a call
  // for a transform or a product of spectra takes as long as kCall of them.
  bool areWorth(int64_t periods) const {
    constexpr int64_t kCall = 1000;
    constexpr int64_t kDirect = PartsOf<C>::kCount;  // complex products take four times as long, transforms twice
    const int64_t transforms = (up_ + rows_) * (2 * points() * order_ + kCall);
    const int64_t products = up_ * rows_ * (3 * points() + kCall);
    return periods * up_ * taps_ * kDirect > transforms + products;
  }
  bool takes(int64_t periods) const { return isPlaced() && periods <= block() && areWorth(periods); }

  // The samples of a block; `rows` is where the first row stands when the block's first sample is at `history`.
  void transformRows(const C* rows, int64_t stride, int64_t periods) {
    const int64_t count = span_ - 1 + periods;
    for (int64_t i = 0; i < rows_; ++i) {
      C* const block = samples_ + i % kept() * points();
      std::copy_n(rows + i * stride + first_, count, block);
      std::fill(block + count, block + points(), C{});
      fft::Transform<C>::kForward(block, block, spec_, work_);
      if (up_ == 1) addProduct(0, i);
    }
  }
  void filter(int64_t branch, int64_t periods, C* outputs) {
    for (int64_t i = 0; up_ > 1 && i < rows_; ++i) addProduct(branch, i);
    fft::Transform<C>::kInverse(sum_, sum_, spec_, work_);
    std::copy_n(sum_, periods, outputs);
  }

 private:
  // The spectra of rows that are kept for further branches: with a single branch, one at a time.
  int64_t kept() const { return up_ == 1 ? 1 : rows_; }
  void addProduct(int64_t branch, int64_t row) {
    const C* const spectrum = spectra_ + (branch * rows_ + row) * points();
    const C* const block = samples_ + row % kept() * points();
    if (row > 0) return fft::addProduct(spectrum, block, sum_, length());
    std::copy_n(block, points(), sum_);
    fft::multiply(spectrum, sum_, length());
  }
  int64_t points() const { return int64_t{1} << order_; }
  int length() const { return 1 << order_; }

  const typename fft::Transform<C>::Spec* spec_ = nullptr;  // null: none
  C* spectra_ = nullptr;  // of the taps, branch by branch, conjugate: what they meet goes forward
  C* samples_ = nullptr;  // of the rows
  C* sum_ = nullptr;
  Qvx8u* work_ = nullptr;
  int64_t first_ = 0;  // where in a row a block's samples begin
  int64_t span_ = 0;   // samples of a row that an output meets, at most
  int64_t rows_ = 0;
  int64_t up_ = 0;
  int64_t taps_ = 0;
  int order_ = 0;
};

}  // namespace qvx::fir
