// Low-pass and high-pass filters from analog prototypes: poles and zeros in long double, expanded once, rounded once.
#include <cmath>
#include <complex>

#include "frame/check.h"

using namespace qvx;

namespace {

using Real = long double;
using Pole = std::complex<Real>;

constexpr int kMostOrder = 12;
constexpr Real kPi = 3.14159265358979323846264338327950288L;

enum class Band { kLow, kHigh };
enum Prototype { kButterworth = 0, kChebyshev = 1 };

// The k-th pole of the prototype with its edge at 1: on the unit circle's left half, or on an ellipse inside it.
Pole prototypePole(int k, int order, int type, Real ripple) {
  const Real angle = kPi * (2 * k + 1) / (2 * order);
  if (type == kButterworth) return {-std::sin(angle), std::cos(angle)};
  const Real width = std::asinh(1 / std::sqrt(std::expm1(ripple * std::log(Real{10}) / 10))) / order;
  return {-std::sinh(width) * std::sin(angle), std::cosh(width) * std::cos(angle)};
}

// The product of (1 - root / z) for all roots, whose imaginary parts cancel.
void expand(const Pole* roots, int order, Real* coefficients) {
  Pole all[kMostOrder + 1] = {1};
  for (int i = 0; i < order; ++i) {
    for (int k = i + 1; k > 0; --k) all[k] -= roots[i] * all[k - 1];
  }
  for (int k = 0; k <= order; ++k) coefficients[k] = all[k].real();
}

Real sumOf(const Real* c, int order, Real z) {
  Real all = 0;
  for (int k = order; k >= 0; --k) all = all * z + c[k];
  return all;
}

QvxStatus design(Band band, Qvx64f frequency, Qvx64f ripple, int order, Qvx64f* taps, int type) {
  if (isNull(taps)) return qvxStatNullPtr;
  if (order < 1 || order > kMostOrder) return qvxStatBadGenOrder;
  if (!(frequency > 0 && frequency < 0.5)) return qvxStatBadCutoff;
  if (type != kButterworth && type != kChebyshev) return qvxStatBadGenParam;
  if (type == kChebyshev && !(ripple > 0 && ripple <= 29)) return qvxStatBadGenParam;

  // The bilinear transform z = (1 + s) / (1 - s) leads the analog edge tan(pi f) to f. A high-pass is a low-pass in 1 / s.
  // Near 0.5 that is the reciprocal of another, since pi f loses what is left to pi / 2.
  const Real edge = frequency < 0.25 ? std::tan(kPi * frequency) : 1 / std::tan(kPi * (0.5 - frequency));
  // Gain 1 at the far end of the pass band, z = 1 or -1, where a Chebyshev filter of even order is at the bottom of its ripple.
  // As a product of z - pole, but in s: at 1e-9 from the end that difference has 11 digits.
  Pole poles[kMostOrder];
  Pole zeros[kMostOrder];
  Pole gain = 1;
  for (int k = 0; k < order; ++k) {
    const Pole p = prototypePole(k, order, type, ripple);
    const Pole s = band == Band::kLow ? edge * p : edge / p;
    poles[k] = (Real{1} + s) / (Real{1} - s);
    zeros[k] = band == Band::kLow ? -1 : 1;
    gain *= (band == Band::kLow ? Real{-2} * s : Pole{-2}) / (Real{1} - s);
  }
  Real a[kMostOrder + 1];
  Real b[kMostOrder + 1];
  expand(poles, order, a);
  expand(zeros, order, b);
  const Real z = band == Band::kLow ? 1 : -1;
  Real scale = gain.real() * std::pow(z, order) / sumOf(b, order, z);
  if (type == kChebyshev && order % 2 == 0) scale *= std::pow(Real{10}, -Real{ripple} / 20);
  for (int k = 0; k <= order; ++k) {
    taps[k] = static_cast<Qvx64f>(b[k] * scale);
    taps[order + 1 + k] = static_cast<Qvx64f>(a[k]);
  }
  return qvxStatOk;
}

}  // namespace

QvxStatus qvxsIIRGenLowpass_64f(Qvx64f frequency, Qvx64f ripple, int order, Qvx64f* taps, int type) {
  return design(Band::kLow, frequency, ripple, order, taps, type);
}
QvxStatus qvxsIIRGenHighpass_64f(Qvx64f frequency, Qvx64f ripple, int order, Qvx64f* taps, int type) {
  return design(Band::kHigh, frequency, ripple, order, taps, type);
}
