#include "denoiser.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "../support/audio.h"

namespace {

// The orthogonal filter of 8 taps with four zeros at half the sampling rate (Daubechies 1988, table 1).
constexpr int kTaps = 8;
constexpr float kLow[kTaps] = {0.230377813309F,  0.714846570553F, 0.630880767930F, -0.027983769417F,
                               -0.187034811719F, 0.030841381836F, 0.032883011667F, -0.010597401785F};

struct Filters {
  float low[kTaps], high[kTaps], backLow[kTaps], backHigh[kTaps];
  Filters() {
    for (int k = 0; k < kTaps; ++k) {
      low[k] = backLow[kTaps - 1 - k] = kLow[k];
      high[k] = backHigh[kTaps - 1 - k] = (k % 2 == 0 ? 1.0F : -1.0F) * kLow[kTaps - 1 - k];
    }
  }
};
const Filters kFilters;

struct Free {
  void operator()(QvxsWTFwdState_32f* state) const { qvxsWTFwdFree_32f(state); }
  void operator()(QvxsWTInvState_32f* state) const { qvxsWTInvFree_32f(state); }
  void operator()(QvxsRandGaussState_32f* state) const { qvxsRandGaussFree_32f(state); }
};

int lengthOf(const std::vector<float>& x) { return static_cast<int>(x.size()); }

void split(const std::vector<float>& x, std::vector<float>& low, std::vector<float>& high) {
  QvxsWTFwdState_32f* made = nullptr;
  check(qvxsWTFwdInitAlloc_32f(&made, kFilters.low, kTaps, 0, kFilters.high, kTaps, 0));
  const std::unique_ptr<QvxsWTFwdState_32f, Free> state(made);
  low.resize(x.size() / 2);
  high.resize(x.size() / 2);
  check(qvxsWTFwd_32f(x.data(), low.data(), high.data(), lengthOf(low), state.get()));
}

std::vector<float> joined(const std::vector<float>& low, const std::vector<float>& high) {
  QvxsWTInvState_32f* made = nullptr;
  check(qvxsWTInvInitAlloc_32f(&made, kFilters.backLow, kTaps, 0, kFilters.backHigh, kTaps, 0));
  const std::unique_ptr<QvxsWTInvState_32f, Free> state(made);
  std::vector<float> x(2 * low.size());
  check(qvxsWTInv_32f(low.data(), high.data(), lengthOf(low), x.data(), state.get()));
  return x;
}

// The standard deviation of normal noise, half of whose magnitudes are below 0.6745 times that.
double deviationOf(std::vector<float> coefficients) {
  for (float& c : coefficients) c = std::abs(c);
  const auto middle = coefficients.begin() + static_cast<std::ptrdiff_t>(coefficients.size() / 2);
  std::nth_element(coefficients.begin(), middle, coefficients.end());
  return *middle / 0.6745;
}

// Takes the threshold off every magnitude, down to 0; gives the part that is left.
double shrink(std::vector<float>& coefficients, float threshold) {
  std::vector<float> within(coefficients.size());
  const int n = lengthOf(within);
  check(qvxsThreshold_LTValGTVal_32f(coefficients.data(), within.data(), n, -threshold, -threshold, threshold, threshold));
  check(qvxsSub_32f_I(within.data(), coefficients.data(), n));
  const auto gone = std::count(coefficients.begin(), coefficients.end(), 0.0F);
  return 1 - static_cast<double>(gone) / n;
}

}  // namespace

Denoised denoised(const std::vector<float>& noisy, int levels, double strength, double sampleRate) {
  // A stage delays by kTaps - 1 samples of its own rate, so results of lower levels come later: the higher levels are delayed to
  // match.
  const size_t unit = size_t{1} << levels;
  const size_t delay = (unit - 1) * (kTaps - 1);
  std::vector<float> low = noisy;
  low.resize((noisy.size() + delay + unit - 1) / unit * unit);

  Denoised result;
  std::vector<std::vector<float>> high(static_cast<size_t>(levels));
  for (std::vector<float>& band : high) {
    std::vector<float> below;
    split(low, below, band);
    low = std::move(below);
    sampleRate /= 2;
    // The universal threshold: the largest of n normal numbers is hardly ever above it. Signals fill low levels, so noise is
    // measured at the highest; white noise is alike in all.
    const double deviation = result.levels.empty() ? deviationOf(band) : 0;
    const double universal = deviation * std::sqrt(2 * std::log(static_cast<double>(noisy.size())));
    const double threshold = result.levels.empty() ? strength * universal : result.levels[0].threshold;
    result.levels.push_back({sampleRate / 2, threshold, shrink(band, static_cast<float>(threshold))});
  }
  for (size_t level = high.size(), late = 0; level-- > 0; late = 2 * late + kTaps - 1) {
    std::vector<float>& band = high[level];
    band.insert(band.begin(), late, 0.0F);
    band.resize(low.size());
    low = joined(low, band);
  }
  const auto begin = low.begin() + static_cast<std::ptrdiff_t>(delay);
  result.samples.assign(begin, begin + static_cast<std::ptrdiff_t>(noisy.size()));
  return result;
}

std::vector<float> noise(size_t n, double deviation, unsigned seed) {
  QvxsRandGaussState_32f* made = nullptr;
  check(qvxsRandGaussInitAlloc_32f(&made, 0, static_cast<float>(deviation), seed));
  const std::unique_ptr<QvxsRandGaussState_32f, Free> state(made);
  std::vector<float> x(n);
  check(qvxsRandGauss_32f(x.data(), lengthOf(x), state.get()));
  return x;
}

double signalToNoise(const std::vector<float>& wanted, const std::vector<float>& got) {
  float signal, error;
  check(qvxsNorm_L2_32f(wanted.data(), lengthOf(wanted), &signal));
  check(qvxsNormDiff_L2_32f(wanted.data(), got.data(), lengthOf(wanted), &error));
  return error > 0 ? 20 * std::log10(signal / error) : std::numeric_limits<double>::infinity();
}
