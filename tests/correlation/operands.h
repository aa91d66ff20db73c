// Operands of convolution and correlation, and what results have to be.
#pragma once

#include <gtest/gtest.h>
#include <qvx/qvxs.h>

#include <cmath>

#include "reference/correlation.h"
#include "support/bounded.h"
#include "support/values.h"

namespace tests {

// Whole numbers up to `most`, whose sums of products are exact as long as they fit the mantissa.
template <class T> std::vector<T> wholeNumbers(size_t n, int most, Random& random) {
  std::uniform_int_distribution<int> draw(-most, most);
  std::vector<T> all(n);
  for (T& v : all) {
    if constexpr (isComplex<T>) v = {static_cast<Part<T>>(draw(random)), static_cast<Part<T>>(draw(random))};
    else v = static_cast<T>(draw(random));
  }
  return all;
}
// Floats, the middle third of which is 10^6 times as large.
template <class T> std::vector<T> unevenNumbers(size_t n, Random& random) {
  std::uniform_real_distribution<Part<T>> draw(-1, 1);
  std::vector<T> all(n);
  for (size_t i = 0; i < n; ++i) {
    const Part<T> size = i >= n / 3 && i < 2 * n / 3 ? Part<T>(1e6) : Part<T>(1);
    if constexpr (isComplex<T>) all[i] = {size * draw(random), size * draw(random)};
    else all[i] = size * draw(random);
  }
  return all;
}

// One element becomes infinite.
template <class T> struct Spoiled {
  std::vector<T> data;
  std::vector<T> marks;  // 1 there, 0 elsewhere

  Spoiled(const std::vector<T>& whole, size_t at) : data(whole), marks(whole.size()) {
    constexpr Part<T> kInfinity = std::numeric_limits<Part<T>>::infinity();
    if constexpr (isComplex<T>) data[at].re = kInfinity, marks[at] = {1, 0};
    else data[at] = kInfinity, marks[at] = 1;
  }
};
template <class T> std::vector<T> ones(size_t n) {
  if constexpr (isComplex<T>) return std::vector<T>(n, T{1, 0});
  else return std::vector<T>(n, T{1});
}
template <class T> bool isFinite(T v) {
  const auto z = reference::wide(v);
  return std::isfinite(std::real(z)) && std::isfinite(std::imag(z));
}

template <class T> long double normOf(const std::vector<T>& v) {
  long double sum = 0;
  for (const T x : v) sum += std::norm(std::complex<long double>(reference::wide(x)));
  return std::sqrt(sum);
}
// What a transform long enough for both operands may be off by.
template <class T> long double transformError(const std::vector<T>& a, const std::vector<T>& b) {
  const long double eps = std::numeric_limits<Part<T>>::epsilon() / 2;
  return 4 * eps * std::ceil(std::log2(static_cast<long double>(a.size() + b.size() - 1))) * normOf(a) * normOf(b);
}
template <class T, class Wide> long double distance(T y, Wide exact) { return std::abs(reference::wide(y) - exact); }

}  // namespace tests
