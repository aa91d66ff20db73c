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

// twiddles: those of the whole transform, `step` apart.
inline std::vector<Exact> dft(const std::vector<Exact>& x, const std::vector<Exact>& twiddles, size_t step) {
  const size_t n = x.size();
  std::vector<Exact> result(n);
  if (n <= 4 || n % 2 != 0) {
    for (size_t k = 0; k < n; ++k) {
      for (size_t i = 0; i < n; ++i) result[k] += product(x[i], twiddles[i * k % n * step]);
    }
    return result;
  }
  std::vector<Exact> even(n / 2);
  std::vector<Exact> odd(n / 2);
  for (size_t i = 0; i < n / 2; ++i) even[i] = x[2 * i], odd[i] = x[2 * i + 1];
  even = dft(even, twiddles, 2 * step);
  odd = dft(odd, twiddles, 2 * step);
  for (size_t k = 0; k < n / 2; ++k) {
    const Exact term = product(twiddles[k * step], odd[k]);
    result[k] = even[k] + term;
    result[k + n / 2] = even[k] - term;
  }
  return result;
}
}  // namespace detail

inline size_t largestPrimeFactor(size_t n) {
  size_t largest = 1;
  for (size_t p = 2; n > 1; n % p == 0 ? n /= p : ++p) largest = std::max(largest, p);
  return largest;
}

// sum of x[n] exp(sign 2 pi i n k / N) for all k; even lengths above 4 by the sums over the even and the odd elements.
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
  return detail::dft(x, twiddles, 1);
}

}  // namespace tests
