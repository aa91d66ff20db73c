// Windows by their formulas.
#pragma once

#include <cmath>
#include <numbers>

namespace reference {

using Real = long double;

inline Real cosineOf(int n, int len) {
  // The near half of the turn: no digits are lost in n / (len - 1).
  const Real half = std::sin(std::numbers::pi_v<Real> * n / (len - 1));
  return 1 - 2 * half * half;
}
inline Real hann(int n, int len) {
  const Real half = std::sin(std::numbers::pi_v<Real> * n / (len - 1));
  return half * half;
}
inline Real hamming(int n, int len) { return 0.54L - 0.46L * cosineOf(n, len); }
inline Real bartlett(int n, int len) { return 2 * static_cast<Real>(n) / (len - 1); }
// (alpha+1)/2 - cos/2 - alpha/2 cos 2: with c = 1 - 2s it is s (1 + 4 alpha - 4 alpha s).
inline Real blackman(int n, int len, Real alpha) {
  const Real s = hann(n, len);
  return s * (1 + 4 * alpha - 4 * alpha * s);
}
// With the alpha of (0.5 / cos x)^2, x = pi / (len - 1): 1 + 4 alpha is -tan^2 x, of which the sum itself would leave few digits.
inline Real optimalBlackman(int n, int len) {
  const Real s = hann(n, len);
  const Real tangent = std::tan(std::numbers::pi_v<Real> / (len - 1));
  return s * (s + tangent * tangent * (s - 1));
}

// Its power series: all terms are positive.
inline Real besselI0(Real x) {
  Real sum = 1, term = 1;
  for (int k = 1; term > sum * 1e-20L; ++k) {
    term *= (x / (2 * k)) * (x / (2 * k));
    sum += term;
  }
  return sum;
}
inline Real kaiser(int n, int len, Real alpha) {
  const Real a = std::abs(alpha);
  return besselI0(a * std::sqrt(static_cast<Real>(n) * (len - 1 - n))) / besselI0(a * (len - 1) / 2);
}

}  // namespace reference
