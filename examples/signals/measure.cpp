#include "measure.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <cstdint>
#include <numbers>
#include <stdexcept>
#include <utility>

#include "../support/audio.h"
#include "transform.h"

namespace {

constexpr int kLeastOrder = 9;
constexpr int kMostOrder = 18;
constexpr int kHarmonics = 9;
constexpr int kLobe = 12;  // bins on either side that belong to a component
constexpr double kNothing = 1e-30;

double decibels(double power) { return 10 * std::log10(std::max(power, kNothing)); }

std::vector<double> firstChannel(AudioReader& input) {
  std::vector<double> samples;
  std::vector<double> block(static_cast<size_t>(kBlockFrames) * static_cast<size_t>(input.channels()));
  for (int frames; samples.size() < size_t{1} << kMostOrder && (frames = input.read(block.data())) > 0;) {
    for (int i = 0; i < frames; ++i) samples.push_back(block[static_cast<size_t>(i) * static_cast<size_t>(input.channels())]);
  }
  if (samples.size() < size_t{1} << kLeastOrder) throw std::runtime_error(input.path() + ": has fewer than 512 samples");
  samples.resize(std::min(std::bit_floor(samples.size()), size_t{1} << kMostOrder));
  return samples;
}

double powerAt(const std::vector<double>& samples, double frequency) {
  Qvx64fc value{};
  check(qvxsGoertz_64f(samples.data(), static_cast<int>(samples.size()), &value, frequency));
  return value.re * value.re + value.im * value.im;
}

// The largest magnitude between two relative frequencies, by golden section.
double strongest(const std::vector<double>& samples, double low, double high) {
  constexpr double kPart = 1 / std::numbers::phi;
  for (int step = 0; step < 50; ++step) {
    const double width = kPart * (high - low);
    if (powerAt(samples, high - width) > powerAt(samples, low + width)) {
      high = low + width;
    } else {
      low = high - width;
    }
  }
  return (low + high) / 2;
}

// The power of bins [from, to) that no earlier call has taken.
double take(std::vector<double>& power, double from, double to) {
  double sum = 0;
  const auto last = static_cast<long>(power.size());
  for (long k = std::max(0L, std::lround(from)); k < std::min(last, std::lround(to)); ++k)
    sum += std::exchange(power[static_cast<size_t>(k)], 0);
  return sum;
}

}  // namespace

Measured measure(const std::string& path, const Window& window) {
  AudioReader input(path);
  std::vector<double> samples = firstChannel(input);
  const int len = static_cast<int>(samples.size());
  Measured result{};
  Qvx64f squares = 0, peak = 0;
  check(qvxsDotProd_64f(samples.data(), samples.data(), len, &squares));
  check(qvxsNorm_Inf_64f(samples.data(), len, &peak));
  result.rms = decibels(squares / len);
  result.peak = decibels(peak * peak);

  window.apply(samples.data(), len);
  Transform transform(std::countr_zero(samples.size()));
  std::vector<double> power = transform.power(samples.data());
  take(power, 0, kLobe);  // a constant
  Qvx64f all = 0;
  check(qvxsSum_64f(power.data(), static_cast<int>(power.size()), &all));
  const double bin = static_cast<double>(std::max_element(power.begin(), power.end()) - power.begin());
  const double tone = take(power, bin - kLobe, bin + kLobe + 1);
  result.isTonal = tone > all / 2;
  if (!result.isTonal) return result;
  const double frequency = strongest(samples, (bin - 1) / len, std::min(0.5, (bin + 1) / len));
  result.frequency = frequency * input.sampleRate();
  result.noise = decibels((all - tone) / tone);
  double harmonics = 0;
  for (int h = 2; h <= kHarmonics && h * frequency < 0.5; ++h) {
    const double place = h * frequency * len;
    const double harmonic = take(power, place - kLobe, place + kLobe + 1);
    result.harmonics.push_back(decibels(harmonic / tone));
    harmonics += harmonic;
  }
  result.distortion = decibels(harmonics / tone);
  return result;
}
