#include "resampler.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <numeric>
#include <stdexcept>

namespace {

// 4 dB more than asked for: images add up.
struct Kaiser {
  double attenuation;
  double alpha() const { return 0.1102 * (attenuation - 8.7); }
  // Taps for a transition of so many cycles a sample.
  double taps(double transition) const { return (attenuation - 7.95) / (14.36 * transition) + 1; }
};

}  // namespace

const Level& levelOf(int rejection) {
  const auto* level =
      std::find_if(std::begin(kLevels), std::end(kLevels), [=](const Level& l) { return l.rejection == rejection; });
  if (level == std::end(kLevels)) throw std::invalid_argument("levels are 60, 100 and 140 dB");
  return *level;
}

// The filter runs at `up` times the first rate. Half of it is a whole number of outputs, so that the result has no delay.
Design::Design(int fromRate, int toRate, const Level& level)
    : from(fromRate),
      to(toRate),
      up(toRate / std::gcd(fromRate, toRate)),
      down(fromRate / std::gcd(fromRate, toRate)),
      passEdge(level.passBand * std::min(fromRate, toRate) / 2),
      stopEdge(std::min(fromRate, toRate) / 2.0) {
  constexpr double kMostTaps = 1 << 24;
  const double rate = static_cast<double>(fromRate) * up;
  const Kaiser window = {level.rejection + 4.0};
  const double wanted = window.taps((stopEdge - passEdge) / rate);
  if (!(wanted < kMostTaps)) throw std::runtime_error("these rates have too large a ratio in lowest terms");
  const auto half = (static_cast<int64_t>(wanted / 2) + down - 1) / down * down;
  const double cutoff = (passEdge + stopEdge) / rate;  // in half cycles a sample, in the middle of the transition
  taps.resize(static_cast<size_t>(2 * half + 1));
  for (int64_t i = -half; i <= half; ++i) {
    const double x = static_cast<double>(i);
    const double place = x / static_cast<double>(half + 1);
    const double angle = std::numbers::pi * cutoff * x;
    const double sinc = i == 0 ? 1 : std::sin(angle) / angle;
    taps[static_cast<size_t>(i + half)] = up * cutoff * sinc *
                                          std::cyl_bessel_i(0, window.alpha() * std::sqrt(1 - place * place)) /
                                          std::cyl_bessel_i(0, window.alpha());
  }
}

Resampler::Resampler(const Design& design, bool isWide) {
  const auto n = static_cast<int>(design.taps.size());
  if (isWide) {
    QvxsFIRState64f_32f* state = nullptr;
    check(qvxsFIRMRInitAlloc64f_32f(&state, design.taps.data(), n, design.up, 0, design.down, 0, nullptr));
    wide_.reset(state);
  } else {
    const std::vector<Qvx32f> taps(design.taps.begin(), design.taps.end());
    QvxsFIRState_32f* state = nullptr;
    check(qvxsFIRMRInitAlloc_32f(&state, taps.data(), n, design.up, 0, design.down, 0, nullptr));
    single_.reset(state);
  }
}

void Resampler::convert(const Qvx32f* src, Qvx32f* dst, int groups) {
  check(wide_ ? qvxsFIR64f_32f(src, dst, groups, wide_.get()) : qvxsFIR_32f(src, dst, groups, single_.get()));
}

std::vector<Qvx32f> resampled(const std::vector<Qvx32f>& signal, const Design& design, bool isWide) {
  const auto up = static_cast<size_t>(design.up);
  const auto down = static_cast<size_t>(design.down);
  const auto delay = static_cast<size_t>(design.delay());
  const size_t wanted = (signal.size() * up + down - 1) / down;
  const size_t groups = (wanted + delay + up - 1) / up;
  const size_t whole = std::min(signal.size() / down, groups);
  std::vector<Qvx32f> tail(signal.begin() + static_cast<ptrdiff_t>(whole * down), signal.end());
  tail.resize((groups - whole) * down);
  Resampler resampler(design, isWide);
  const auto convert = [&](size_t from, size_t count, Qvx32f* dst) {
    const size_t given = std::min(count, whole - std::min(from, whole));
    if (given > 0) resampler.convert(signal.data() + from * down, dst, static_cast<int>(given));
    if (given == count) return;
    resampler.convert(tail.data() + (from + given - whole) * down, dst + given * up, static_cast<int>(count - given));
  };
  // The groups with the results that come before the first sample.
  const size_t early = (delay + up - 1) / up;
  std::vector<Qvx32f> first(early * up);
  convert(0, early, first.data());
  std::vector<Qvx32f> result(groups * up - delay);
  std::copy(first.begin() + static_cast<ptrdiff_t>(delay), first.end(), result.begin());
  if (groups > early) convert(early, groups - early, result.data() + first.size() - delay);
  result.resize(wanted);
  return result;
}
