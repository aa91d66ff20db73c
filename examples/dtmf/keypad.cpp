#include "keypad.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <random>
#include <stdexcept>

#include "../support/audio.h"

namespace {

const std::string kKeys = "123A456B789C*0#D";  // by row, then column

constexpr double kBlockSeconds = 0.0256;  // tells apart tones 39 Hz from each other
constexpr double kHopSeconds = kBlockSeconds / 2;
constexpr double kLeastLevel = -36;  // dB of each tone of a key
constexpr double kTwist = 8;         // dB that one tone of a key may be above the other
constexpr double kAbove = 8;         // dB that a tone is above all others of its group
constexpr double kShare = 0.7;       // of a block's energy that its two tones make up

// The amplitudes of all tones in a block: pairs of them in one pass each.
std::array<double, 8> amplitudes(const std::vector<float>& block, double sampleRate) {
  std::array<double, 8> found{};
  const auto len = static_cast<int>(block.size());
  for (size_t k = 0; k < kTones.size(); k += 2) {
    const float frequencies[] = {static_cast<float>(kTones[k] / sampleRate), static_cast<float>(kTones[k + 1] / sampleRate)};
    Qvx32fc values[2];
    check(qvxsGoertzTwo_32f(block.data(), len, values, frequencies));
    for (size_t i = 0; i < 2; ++i) found[k + i] = 2 * std::hypot(values[i].re, values[i].im) / static_cast<float>(len);
  }
  return found;
}

double decibels(double amplitude) { return 20 * std::log10(std::max(amplitude, 1e-6)); }

// The loudest of four, or 4 if another is near.
size_t loudest(const double* levels) {
  const auto most = static_cast<size_t>(std::max_element(levels, levels + 4) - levels);
  for (size_t k = 0; k < 4; ++k) {
    if (k != most && levels[k] > levels[most] - kAbove) return 4;
  }
  return most;
}

// The key of a block, or 0.
char keyOf(const std::vector<float>& block, const std::array<double, 8>& levels) {
  const size_t row = loudest(&levels[0]);
  const size_t column = loudest(&levels[4]);
  if (row == 4 || column == 4) return 0;
  const double low = levels[row];
  const double high = levels[4 + column];
  if (std::min(low, high) < kLeastLevel || std::abs(low - high) > kTwist) return 0;
  double energy;
  check(qvxsDotProd_32f64f(block.data(), block.data(), static_cast<int>(block.size()), &energy));
  const double tones = (std::pow(10, low / 10) + std::pow(10, high / 10)) / 2 * static_cast<double>(block.size());
  return tones > kShare * energy ? kKeys[4 * row + column] : char{0};
}

}  // namespace

void dial(const std::string& keys, int sampleRate, double noiseDb, const std::string& output) {
  const size_t other = keys.find_first_not_of(kKeys);
  if (other != std::string::npos) throw std::runtime_error(std::string("there is no key ") + keys[other]);
  AudioWriter out(output, SF_FORMAT_WAV | SF_FORMAT_PCM_16, 1, sampleRate, {});
  std::mt19937 random(1);
  std::normal_distribution<double> noise(0, std::pow(10, noiseDb / 20) / std::numbers::sqrt2);
  const int half = sampleRate * 80 / 1000;
  for (const char key : keys) {
    const size_t at = kKeys.find(key);
    std::vector<Qvx16s> samples;
    for (int i = 0; i < 2 * half; ++i) {
      const double t = 2 * std::numbers::pi * i / sampleRate;
      const double tones = i < half ? 0.35 * (std::sin(t * kTones[at / 4]) + std::sin(t * kTones[4 + at % 4])) : 0;
      samples.push_back(static_cast<Qvx16s>(std::lrint(32767 * std::clamp(tones + noise(random), -1.0, 1.0))));
    }
    for (size_t i = 0; i < samples.size(); i += kBlockFrames) {
      out.write(&samples[i], static_cast<int>(std::min<size_t>(kBlockFrames, samples.size() - i)));
    }
  }
}

std::vector<Press> listen(const std::string& input) {
  AudioReader in(input);
  const auto rate = static_cast<double>(in.sampleRate());
  if (rate < 4000) throw std::runtime_error(input + ": tones of up to 1633 Hz need 4000 Hz at least");
  const auto hop = static_cast<size_t>(kHopSeconds * rate);
  const auto channels = static_cast<size_t>(in.channels());
  std::vector<float> frames(kBlockFrames * channels), heard;
  std::vector<Press> presses;
  char last = 0;
  size_t block = 0;
  for (int n; (n = in.read(frames.data())) > 0;) {
    for (size_t i = 0; i < static_cast<size_t>(n); ++i) heard.push_back(frames[i * channels]);
    size_t used = 0;
    for (; heard.size() - used >= 2 * hop; used += hop, ++block) {
      const auto from = heard.begin() + static_cast<std::ptrdiff_t>(used);
      const std::vector<float> samples(from, from + static_cast<std::ptrdiff_t>(2 * hop));
      std::array<double, 8> levels = amplitudes(samples, rate);
      for (double& level : levels) level = decibels(level);
      const char key = keyOf(samples, levels);
      if (key != 0 && key != last) presses.push_back({key, static_cast<double>(block * hop) / rate, 0, levels});
      if (key != 0) {
        Press& press = presses.back();
        press.length = static_cast<double>((block + 2) * hop) / rate - press.start;
        for (size_t k = 0; k < levels.size(); ++k) press.levelsDb[k] = std::max(press.levelsDb[k], levels[k]);
      }
      last = key;
    }
    heard.erase(heard.begin(), heard.begin() + static_cast<std::ptrdiff_t>(used));
  }
  return presses;
}
