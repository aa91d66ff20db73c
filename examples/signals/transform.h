// A real Fourier transform that keeps its record and buffer.
#pragma once

#include <memory>
#include <vector>

#include "../support/audio.h"

class Transform {
 public:
  explicit Transform(int order) : len_(1 << order), spectrum_(vector(qvxsMalloc_64fc(len_ / 2 + 1))) {
    QvxsFFTSpec_R_64f* record = nullptr;
    check(qvxsFFTInitAlloc_R_64f(&record, order, QVX_FFT_SCALE_NONE, 0));
    record_.reset(record);
    int bytes = 0;
    check(qvxsFFTGetBufSize_R_64f(record, &bytes));
    if (bytes > 0) buffer_ = vector(qvxsMalloc_8u(bytes));
  }

  int len() const { return len_; }

  // Squared magnitudes of bins 0 to len / 2.
  std::vector<double> power(const Qvx64f* samples) {
    check(qvxsFFTFwd_RToCCS_64f(samples, &spectrum_[0].re, record_.get(), buffer_.get()));
    std::vector<double> all(static_cast<size_t>(len_ / 2 + 1));
    check(qvxsPowerSpectr_64fc(spectrum_.get(), all.data(), len_ / 2 + 1));
    return all;
  }

 private:
  struct EndOfRecord {
    void operator()(QvxsFFTSpec_R_64f* record) const { qvxsFFTFree_R_64f(record); }
  };

  int len_;
  std::unique_ptr<QvxsFFTSpec_R_64f, EndOfRecord> record_;
  Vector<Qvx8u> buffer_;
  Vector<Qvx64fc> spectrum_;
};
