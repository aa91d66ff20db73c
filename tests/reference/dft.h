// The discrete Fourier transform as defined, in long double.
#pragma once

#include <algorithm>
#include <cmath>
#include <complex>
#include <vector>

namespace tests {

using Exact = std::complex<long double>;

// exp(2 pi i x / n), exact where it is 1, i, -1 or -i.
inline Exact rootOfUnity(size_t x, size_t n) {
  const size_t quarter = 4 * (x % n) / n;
  const auto angle = 2 * M_PIl * static_cast<long double>(4 * (x % n) - quarter * n) / static_cast<long double>(4 * n);
  const Exact powersOfI[] = {{1, 0}, {0, 1}, {-1, 0}, {0, -1}};
  return powersOfI[quarter] * Exact(std::cos(angle), std::sin(angle));
}

namespace detail {
// The operator asks each product of finite numbers whether it is one of infinities.
inline Exact product(const Exact& x, const Exact& y) {
  return {x.real() * y.real() - x.imag() * y.imag(), x.real() * y.imag() + x.imag() * y.real()};
}

// Of n points, `step` apart; twiddles: those of the whole transform. By fours, since what takes most of the time is to store
// numbers of 80 bits: a transform of 2^20 takes 0.4 of the time by twos.
inline void dft(const Exact* x, size_t n, size_t step, const std::vector<Exact>& twiddles, Exact* result) {
  if (n == 1) {
    *result = *x;
    return;
  }
  const size_t parts = n % 4 == 0 ? 4 : n % 2 == 0 ? 2 : n;
  if (parts == n) {
    for (size_t k = 0; k < n; ++k) {
      result[k] = 0;
      for (size_t i = 0; i < n; ++i) result[k] += product(x[i * step], twiddles[i * k % n * step]);
    }
    return;
  }
  const size_t m = n / parts;
  for (size_t i = 0; i < parts; ++i) dft(x + i * step, m, parts * step, twiddles, result + i * m);
  for (size_t k = 0; k < m; ++k) {
    Exact* const z = result + k;
    const Exact a = z[0];
    const Exact b = product(twiddles[k * step], z[m]);
    if (parts == 2) {
      z[0] = a + b;
      z[m] = a - b;
      continue;
    }
    const Exact c = product(twiddles[2 * k * step], z[2 * m]);
    const Exact d = product(twiddles[3 * k * step], z[3 * m]);
    const Exact turned = product(twiddles[m * step], b - d);
    z[0] = (a + c) + (b + d);
    z[m] = (a - c) + turned;
    z[2 * m] = (a + c) - (b + d);
    z[3 * m] = (a - c) - turned;
  }
}
}  // namespace detail

inline size_t largestPrimeFactor(size_t n) {
  size_t largest = 1;
  for (size_t p = 2; n > 1; n % p == 0 ? n /= p : ++p) largest = std::max(largest, p);
  return largest;
}

// sum of x[n] exp(sign 2 pi i n k / N) for all k; even lengths above 4 by the sums over every fourth or second element.
inline std::vector<Exact> dft(const std::vector<Exact>& x, int sign) {
  const size_t n = x.size();
  const Exact quarter(0, sign);
  std::vector<Exact> twiddles(n);
  for (size_t k = 0; k < n; ++k) {
    if (n % 4 == 0 && k >= n / 4) {
      twiddles[k] = detail::product(quarter, twiddles[k - n / 4]);
      continue;
    }
    const Exact root = rootOfUnity(k, n);
    twiddles[k] = sign < 0 ? std::conj(root) : root;
  }
  std::vector<Exact> result(n);
  detail::dft(x.data(), n, 1, twiddles, result.data());
  return result;
}

}  // namespace tests
