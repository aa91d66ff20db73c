#include "distortion.h"

#include <algorithm>
#include <cmath>
#include <stdexcept>

namespace {

constexpr int kRowDb = 5;

double decibels(double power) { return 10 * std::log10(power); }

double squared(double x) { return x * x; }

// Sends signals through both laws.
class Meter {
 public:
  explicit Meter(int maxLen) : codes_(vector(qvxsMalloc_8u(maxLen))), decoded_(vector(qvxsMalloc_32f(maxLen))) {}

  Distortion measure(const Qvx32f* signal, int len) {
    Distortion result = {1, len};
    Qvx32f norm;
    check(qvxsNorm_L2_32f(signal, len, &norm));
    result.signal = squared(norm);
    for (size_t law = 0; law < kLaws.size(); ++law) {
      check(kLaws[law]->codesOf32f(signal, codes_.get(), len));
      check(kLaws[law]->codesTo32f(codes_.get(), decoded_.get(), len));
      check(qvxsNormDiff_L2_32f(decoded_.get(), signal, len, &norm));
      result.noise[law] = squared(norm);
    }
    return result;
  }

 private:
  Vector<Qvx8u> codes_;
  Vector<Qvx32f> decoded_;
};

}  // namespace

void Distortion::add(const Distortion& more) {
  blocks += more.blocks;
  samples += more.samples;
  signal += more.signal;
  for (size_t law = 0; law < noise.size(); ++law) noise[law] += more.noise[law];
}

double Distortion::levelDbfs() const { return decibels(2 * signal / static_cast<double>(samples)); }

double Distortion::snrDb(size_t law) const { return decibels(signal / noise[law]); }

DistortionByLevel distortionOfSines() {
  // 1 kHz would meet no more than 8 phases in 8000 samples a second; 1013 is prime, and one second meets 8000.
  constexpr int kRate = 8000;
  constexpr double kCyclesPerSample = 1013.0 / kRate;
  const auto sine = vector(qvxsMalloc_32f(kRate));
  const auto scaled = vector(qvxsMalloc_32f(kRate));
  for (int i = 0; i < kRate; ++i) sine[i] = static_cast<Qvx32f>(std::sin(2 * M_PI * kCyclesPerSample * i));
  Meter meter(kRate);
  DistortionByLevel rows;
  for (int level = -60; level <= 0; level += kRowDb) {
    check(qvxsMulC_32f(sine.get(), static_cast<Qvx32f>(std::pow(10, level / 20.0)), scaled.get(), kRate));
    rows[level] = meter.measure(scaled.get(), kRate);
  }
  return rows;
}

DistortionByLevel distortionOf(const std::string& path) {
  AudioReader file(path);
  const int blockFrames = std::clamp(file.sampleRate() / 50, 1, kBlockFrames);
  const int blockLen = blockFrames * file.channels();
  const auto signal = vector(qvxsMalloc_32f(blockLen));
  Meter meter(blockLen);
  DistortionByLevel rows;
  for (int frames; (frames = file.read(signal.get(), blockFrames)) > 0;) {
    const Distortion block = meter.measure(signal.get(), frames * file.channels());
    if (block.signal == 0) continue;
    rows[static_cast<int>(std::lround(block.levelDbfs() / kRowDb)) * kRowDb].add(block);
  }
  if (rows.empty()) throw std::runtime_error(path + ": there is nothing but silence in it");
  return rows;
}
