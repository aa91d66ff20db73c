// Taps and signals at random, and what the exact recursion makes of them.
#pragma once

#include <cmath>

#include "iir/members.h"

namespace tests {

inline double uniform(Random& random, double low, double high) {
  return low + (high - low) * 0x1p-64 * static_cast<double>(random());
}

// A section with its poles and zeros at random, real or complex.
template <class T> std::vector<T> section(Random& random, double radius, double angle, long double gain = 0.5) {
  using N = std::complex<long double>;
  const N p = std::polar<long double>(radius, angle);
  const N q = isComplex<T> ? std::polar<long double>(radius * uniform(random, 0.3, 1), uniform(random, -3, 3)) : std::conj(p);
  const N z = std::polar<long double>(uniform(random, 0.2, 1), uniform(random, 0, 3.1));
  const N w = isComplex<T> ? std::polar<long double>(uniform(random, 0.2, 1), uniform(random, -3, 3)) : std::conj(z);
  const N a0 = isComplex<T> ? N(0, 2) : N(2);
  std::vector<T> t;
  for (const N v : {N(gain), -gain * (z + w), gain * z * w, N(1), -(p + q), p * q}) {
    const N scaled = v * a0;
    if constexpr (isComplex<T>) t.push_back({static_cast<Part<T>>(scaled.real()), static_cast<Part<T>>(scaled.imag())});
    else t.push_back(static_cast<T>(scaled.real()));
  }
  return t;
}

template <class T> std::vector<T> samples(size_t n, Random& random) {
  std::vector<T> x(n);
  const double most = std::is_integral_v<Part<T>> ? std::min<double>(std::numeric_limits<Part<T>>::max(), 1e9) / 8 : 1;
  for (size_t i = 0; i < n * sizeof(T) / sizeof(Part<T>); ++i) {
    reinterpret_cast<Part<T>*>(x.data())[i] = static_cast<Part<T>>(uniform(random, -most, most));
  }
  return x;
}

template <class N, class T> std::vector<N> through(std::vector<Recursion<N>> sections, const std::vector<T>& x) {
  std::vector<N> y;
  for (const T& v : x) {
    N in = static_cast<N>(exact(v));
    for (auto& r : sections) in = r(in);
    y.push_back(in);
  }
  return y;
}

}  // namespace tests
