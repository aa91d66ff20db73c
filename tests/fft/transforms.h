// Records of transforms of a power of two, their factors, and the errors they may have.
#pragma once

#include <gtest/gtest.h>
#include <qvx/qvxs.h>

#include "reference/dft.h"
#include "support/blocks.h"
#include "support/owned.h"
#include "support/values.h"

namespace tests {

// The functions of a record type.
template <class Spec> struct Life {
  QvxStatus (*getSize)(int, int, int, int*, int*, int*);
  QvxStatus (*init)(Spec**, int, int, int, Qvx8u*, Qvx8u*);
  QvxStatus (*initAlloc)(Spec**, int, int, int);
  QvxStatus (*free)(Spec*);
  QvxStatus (*getBufSize)(const Spec*, int*);
};

template <class Spec> class Record : public Owned<Spec> {
 public:
  Record(const Life<Spec>& life, int order, int flag, int hint = 0)
      : Owned<Spec>(life.free, life.initAlloc, order, flag, hint), getBufSize_(life.getBufSize) {}
  int bufferSize() const {
    int size = -1;
    EXPECT_EQ(getBufSize_(this->get(), &size), qvxStatOk);
    return size;
  }

 private:
  QvxStatus (*getBufSize_)(const Spec*, int*);
};

// Root of the mean square of the error, relative to that of the values.
template <class T> long double relativeError(const std::vector<T>& found, const std::vector<Exact>& expected) {
  long double error = 0;
  long double size = 0;
  for (size_t i = 0; i < expected.size(); ++i) {
    error += std::norm(Exact(found[i].re, found[i].im) - expected[i]);
    size += std::norm(expected[i]);
  }
  return size == 0 ? error : std::sqrt(error / size);
}

template <class T> long double allowedError(int order) {
  const long double eps = std::numeric_limits<T>::epsilon();
  return eps * std::max(0.2L, 0.35L * std::sqrt(static_cast<long double>(order)));
}

inline constexpr int kFlags[] = {QVX_FFT_SCALE_FWD, QVX_FFT_SCALE_INV, QVX_FFT_SCALE_BOTH_SQRT, QVX_FFT_SCALE_NONE};

inline long double factorOf(int flag, bool inverse, int order) {
  const long double n = std::ldexp(1.0L, order);
  if (flag == QVX_FFT_SCALE_BOTH_SQRT) return 1 / std::sqrt(n);
  return flag == (inverse ? QVX_FFT_SCALE_INV : QVX_FFT_SCALE_FWD) ? 1 / n : 1;
}

}  // namespace tests
