// Windowed sincs: low-pass, high-pass, band-pass and band-stop filters.
#include <algorithm>
#include <cmath>

#include "frame/check.h"

using namespace qvx;

namespace {

using Real = long double;
constexpr Real kPi = 3.14159265358979323846264338327950288L;

enum WindowType { kBartlett = 0, kBlackmanOpt = 1, kHamming = 2, kHann = 3 };

// Cosine or sine of 2 pi f m, where m is a whole number of halves: f times it is exact in 64 bits up to 2^11 halves, and off by
// no more than 2^-64 of itself beyond.
Real turnsOf(Real f, int64_t halves) { return std::fmod(f * static_cast<Real>(halves), Real{2}); }
Real sineOf(Real f, int64_t halves) { return std::sin(kPi * turnsOf(f, halves)); }
Real cosineOf(Real f, int64_t halves) { return std::cos(kPi * turnsOf(f, halves)); }

// The tap of the low-pass filter of cut-off f, `halves` / 2 from the middle.
Real lowTap(Real f, int64_t halves) { return halves == 0 ? 2 * f : sineOf(f, halves) * 2 / (kPi * static_cast<Real>(halves)); }

// That of `high` less that of `low`, as a product: nothing cancels in a narrow band.
Real bandTap(Real low, Real high, int64_t halves) {
  if (halves == 0) return 2 * (high - low);
  return cosineOf((low + high) / 2, halves) * sineOf((high - low) / 2, halves) * 4 / (kPi * static_cast<Real>(halves));
}

void weigh(Qvx64f* taps, int n, int type) {
  if (type == kBartlett) qvxsWinBartlett_64f_I(taps, n);
  if (type == kBlackmanOpt) qvxsWinBlackmanOpt_64f_I(taps, n);
  if (type == kHamming) qvxsWinHamming_64f_I(taps, n);
  if (type == kHann) qvxsWinHann_64f_I(taps, n);
}

// The gain in the pass band: at frequency 0, at half the sampling rate, or at a frequency between.
Real gainAt(const Qvx64f* taps, int n, Real frequency, bool isAntisymmetric) {
  const int half = n / 2;
  Real sum = 0;
  for (int i = 0; i < half; ++i) {
    const int64_t halves = n - 1 - 2 * int64_t{i};
    sum += taps[i] * (isAntisymmetric ? sineOf(frequency, halves) : cosineOf(frequency, halves));
  }
  return std::abs(2 * sum + (n % 2 != 0 ? Real{taps[half]} : 0));
}

bool isInside(Qvx64f frequency) { return frequency > 0 && frequency < 0.5; }

// tapOf(halves) for the taps up to the middle, which is `halves` 0.
template <class Tap>
QvxStatus design(Qvx64f* taps, int n, int window, int normalise, Real passes, bool isAntisymmetric, Tap tapOf) {
  const int first = (n + 1) / 2;
  for (int i = 0; i < first; ++i) taps[i] = static_cast<Qvx64f>(tapOf(n - 1 - 2 * int64_t{i}));
  std::fill(taps + first, taps + n, 0.0);
  weigh(taps, n, window);
  if (normalise != 0) {
    const Real gain = gainAt(taps, n, passes, isAntisymmetric);
    for (int i = 0; i < first; ++i) taps[i] = static_cast<Qvx64f>(taps[i] / gain);
  }
  for (int i = 0; i < n / 2; ++i) taps[n - 1 - i] = isAntisymmetric ? -taps[i] : taps[i];
  return qvxStatOk;
}

}  // namespace

QvxStatus qvxsFIRGenLowpass_64f(Qvx64f f, Qvx64f* taps, int n, int window, int normalise) {
  if (isNull(taps)) return qvxStatNullPtr;
  if (n < 5 || !isInside(f)) return qvxStatBadSize;
  return design(taps, n, window, normalise, 0, false, [=](int64_t halves) { return lowTap(f, halves); });
}

QvxStatus qvxsFIRGenHighpass_64f(Qvx64f f, Qvx64f* taps, int n, int window, int normalise) {
  if (isNull(taps)) return qvxStatNullPtr;
  if (n < 5 || !isInside(f)) return qvxStatBadSize;
  if (n % 2 != 0) {
    return design(taps, n, window, normalise, 0.5L, false,
                  [=](int64_t halves) { return (halves == 0 ? 1 : 0) - lowTap(f, halves); });
  }
  return design(taps, n, window, normalise, 0.5L, true,
                [=](int64_t halves) { return cosineOf(f, halves) * 2 / (kPi * static_cast<Real>(halves)); });
}

QvxStatus qvxsFIRGenBandpass_64f(Qvx64f low, Qvx64f high, Qvx64f* taps, int n, int window, int normalise) {
  if (isNull(taps)) return qvxStatNullPtr;
  if (n < 5 || !isInside(low) || !isInside(high) || low >= high) return qvxStatBadSize;
  return design(taps, n, window, normalise, (Real{low} + high) / 2, false,
                [=](int64_t halves) { return bandTap(low, high, halves); });
}

QvxStatus qvxsFIRGenBandstop_64f(Qvx64f low, Qvx64f high, Qvx64f* taps, int n, int window, int normalise) {
  if (isNull(taps)) return qvxStatNullPtr;
  if (n < 5 || !isInside(low) || !isInside(high) || low >= high) return qvxStatBadSize;
  return design(taps, n, window, normalise, 0, false,
                [=](int64_t halves) { return (halves == 0 ? 1 : 0) - bandTap(low, high, halves); });
}
