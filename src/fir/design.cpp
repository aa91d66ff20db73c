// Windowed sincs: low-pass, high-pass, band-pass and band-stop filters.
#include <algorithm>
#include <bit>
#include <cmath>

#include "frame/check.h"
#include "math/spaced_sin_cos.h"

using namespace qvx;

namespace {

using Real = long double;
constexpr double kPi = 3.14159265358979323846;

enum WindowType { kBartlett = 0, kBlackmanOpt = 1, kHamming = 2, kHann = 3 };

constexpr size_t kLanes = kVectorBytes / sizeof(double);
using V = Vec<Lanes<double, kLanes>>;

// A frequency in turns a sample.
class Frequency {
 public:
  explicit Frequency(Real f)
      : first_(std::bit_cast<double>(std::bit_cast<uint64_t>(static_cast<double>(f)) >> 31 << 31)),
        rest_(static_cast<double>(f - first_)) {}

  // Sines and cosines at m samples from the middle. m is a multiple of 1/2: its products with the first 22 bits of the frequency
  // are exact, and those with the rest are small.
  SinCos<V> at(V m) const {
    const V turns = fractionOfTurns(m * same<V>(first_)) + fractionOfTurns(m * same<V>(rest_));
    return sinCosOfTurns(fractionOfTurns(turns));
  }

 private:
  double first_, rest_;
};

// value / (pi m), in the middle another.
V overPiM(V value, V m, double middle) {
  const auto isMiddle = m == hn::Zero(TagOf<V>());
  return hn::IfThenElse(isMiddle, same<V>(middle), value / hn::IfThenElse(isMiddle, same<V>(1), m * same<V>(kPi)));
}

// Calls f(i, m, count) for the taps up to the middle, a vector from i on at a time; m: their distances from the middle.
template <class F> void forEachVector(int n, F f) {
  const size_t first = (elements(n) + 1) / 2;
  const V number = hn::Iota(TagOf<V>(), 0);
  for (size_t i = 0; i < first; i += kLanes) {
    f(i, same<V>((n - 1) * 0.5 - static_cast<double>(i)) - number, std::min(kLanes, first - i));
  }
}

void weigh(Qvx64f* taps, int n, int type) {
  if (type == kBartlett) qvxsWinBartlett_64f_I(taps, n);
  if (type == kBlackmanOpt) qvxsWinBlackmanOpt_64f_I(taps, n);
  if (type == kHamming) qvxsWinHamming_64f_I(taps, n);
  if (type == kHann) qvxsWinHann_64f_I(taps, n);
}

// The gain in the pass band: at frequency 0, at half the sampling rate, or at a frequency between.
double gainAt(const Qvx64f* taps, int n, Real frequency, bool isAntisymmetric) {
  const Lanes<double, kLanes> d;
  const Frequency passes(frequency);
  Real sum = 0;
  forEachVector(n, [&](size_t i, V m, size_t count) {
    const SinCos<V> wave = passes.at(m);
    const V twice = hn::IfThenElse(m == hn::Zero(d), same<V>(1), same<V>(2));
    double parts[kLanes];
    store(loadFirst(d, taps + i, count) * (isAntisymmetric ? wave.sine : wave.cosine) * twice, d, parts);
    for (size_t k = 0; k < count; ++k) sum += parts[k];
  });
  return static_cast<double>(std::abs(sum));
}

bool isInside(Qvx64f frequency) { return frequency > 0 && frequency < 0.5; }

// tapsOf(m) computes the taps at distances m from the middle.
template <class Taps>
QvxStatus design(Qvx64f* taps, int n, int window, int normalise, Real passes, bool isAntisymmetric, Taps tapsOf) {
  const int first = (n + 1) / 2;
  const Lanes<double, kLanes> d;
  forEachVector(n, [&](size_t i, V m, size_t count) { storeFirst(tapsOf(m), d, taps + i, count); });
  std::fill(taps + first, taps + n, 0.0);
  weigh(taps, n, window);
  if (normalise != 0) {
    const double gain = gainAt(taps, n, passes, isAntisymmetric);
    for (int i = 0; i < first; ++i) taps[i] /= gain;
  }
  for (int i = 0; i < n / 2; ++i) taps[n - 1 - i] = isAntisymmetric ? -taps[i] : taps[i];
  return qvxStatOk;
}

// The low-pass filter of `high` less that of `low`, as a product: nothing cancels in a narrow band.
struct Band {
  Frequency middle, halfWidth;
  double whole;

  Band(double low, double high)
      : middle((Real{low} + high) / 2), halfWidth((Real{high} - low) / 2), whole(static_cast<double>(2 * (Real{high} - low))) {}
  V at(V m, double sign, double one) const {
    const V product = middle.at(m).cosine * halfWidth.at(m).sine * same<V>(2 * sign);
    return overPiM(product, m, one + sign * whole);
  }
};

}  // namespace

QvxStatus qvxsFIRGenLowpass_64f(Qvx64f f, Qvx64f* taps, int n, int window, int normalise) {
  if (isNull(taps)) return qvxStatNullPtr;
  if (n < 5 || !isInside(f)) return qvxStatBadSize;
  return design(taps, n, window, normalise, 0, false,
                [f, turns = Frequency(f)](V m) { return overPiM(turns.at(m).sine, m, 2 * f); });
}

QvxStatus qvxsFIRGenHighpass_64f(Qvx64f f, Qvx64f* taps, int n, int window, int normalise) {
  if (isNull(taps)) return qvxStatNullPtr;
  if (n < 5 || !isInside(f)) return qvxStatBadSize;
  const Frequency turns(f);
  if (n % 2 != 0) {
    return design(taps, n, window, normalise, 0.5L, false, [=](V m) { return overPiM(hn::Neg(turns.at(m).sine), m, 1 - 2 * f); });
  }
  return design(taps, n, window, normalise, 0.5L, true, [=](V m) { return overPiM(turns.at(m).cosine, m, 0); });
}

QvxStatus qvxsFIRGenBandpass_64f(Qvx64f low, Qvx64f high, Qvx64f* taps, int n, int window, int normalise) {
  if (isNull(taps)) return qvxStatNullPtr;
  if (n < 5 || !isInside(low) || !isInside(high) || low >= high) return qvxStatBadSize;
  return design(taps, n, window, normalise, (Real{low} + high) / 2, false,
                [band = Band(low, high)](V m) { return band.at(m, 1, 0); });
}

QvxStatus qvxsFIRGenBandstop_64f(Qvx64f low, Qvx64f high, Qvx64f* taps, int n, int window, int normalise) {
  if (isNull(taps)) return qvxStatNullPtr;
  if (n < 5 || !isInside(low) || !isInside(high) || low >= high) return qvxStatBadSize;
  return design(taps, n, window, normalise, 0, false, [band = Band(low, high)](V m) { return band.at(m, -1, 1); });
}
