// Correlation and convolution as they are defined, in integers or floats that hold more than the result.
#pragma once

#include <complex>
#include <cstdint>
#include <type_traits>
#include <vector>

namespace reference {

template <class T> auto wide(T v) {
  if constexpr (std::is_integral_v<T>) return static_cast<__int128>(v);
  else if constexpr (std::is_floating_point_v<T>) return static_cast<long double>(v);
  else return std::complex<long double>(v.re, v.im);
}
template <class T> T conjugate(T v) { return v; }
template <class T> std::complex<T> conjugate(std::complex<T> v) { return std::conj(v); }

// The sum over i of conj(a[i]) * b[i + lag].
template <class T> auto correlation(const std::vector<T>& a, const std::vector<T>& b, int64_t lag) {
  decltype(wide(T())) sum = 0;
  const auto aLen = static_cast<int64_t>(a.size());
  const auto bLen = static_cast<int64_t>(b.size());
  for (int64_t i = std::max<int64_t>(0, -lag); i < std::min(aLen, bLen - lag); ++i) {
    sum += conjugate(wide(a[static_cast<size_t>(i)])) * wide(b[static_cast<size_t>(i + lag)]);
  }
  return sum;
}

// The sum over k of a[k] * b[n - k].
template <class T> auto convolution(const std::vector<T>& a, const std::vector<T>& b, int64_t n) {
  decltype(wide(T())) sum = 0;
  const auto aLen = static_cast<int64_t>(a.size());
  const auto bLen = static_cast<int64_t>(b.size());
  for (int64_t k = std::max<int64_t>(0, n + 1 - bLen); k < std::min(aLen, n + 1); ++k) {
    sum += wide(a[static_cast<size_t>(k)]) * wide(b[static_cast<size_t>(n - k)]);
  }
  return sum;
}

}  // namespace reference
