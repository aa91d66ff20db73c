// The orthonormal cosine transforms as defined, in long double.
#pragma once

#include <cmath>
#include <cstdint>
#include <vector>

#include "reference/dft.h"

namespace tests {

class CosineTransform {
 public:
  explicit CosineTransform(size_t n) : n_(n) {
    for (size_t i = 0; i < 4 * n; ++i) cosines_.push_back(rootOfUnity(i, 4 * n).real());
  }

  // Result `at` of the transform of x: type II, or III where it is inverse.
  template <class T> long double one(const std::vector<T>& x, size_t at, bool isInverse) const {
    long double sum = 0;
    for (size_t i = 0; i < n_; ++i) {
      const size_t n = isInverse ? at : i;
      const size_t k = isInverse ? i : at;
      sum += factor(k) * static_cast<long double>(x[i]) * cosines_[(2 * n + 1) * k % (4 * n_)];
    }
    return sum;
  }
  template <class T> std::vector<long double> all(const std::vector<T>& x, bool isInverse) const {
    std::vector<long double> y(n_);
    for (size_t i = 0; i < n_; ++i) y[i] = one(x, i, isInverse);
    return y;
  }

 private:
  long double factor(size_t k) const { return std::sqrt((k == 0 ? 1.0L : 2.0L) / static_cast<long double>(n_)); }

  size_t n_;
  std::vector<long double> cosines_;  // of pi i / (2n)
};

}  // namespace tests
