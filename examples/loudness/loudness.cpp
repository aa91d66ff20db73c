#include "loudness.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <stdexcept>

#include "../support/audio.h"

namespace {

constexpr double kFloor = 1e-12;  // -120 dB

// Sums of squares over stretches of so many frames each.
class Meter {
 public:
  Meter(int frames, int channels) : frames_(frames), channels_(channels) {}

  // `frames` that belong to one stretch.
  int room() const { return frames_ - filled_; }
  void add(const Qvx32f* samples, int frames) {
    Qvx64f squares = 0;
    check(qvxsDotProd_32f64f(samples, samples, frames * channels_, &squares));
    squares_ += squares;
    filled_ += frames;
    if (filled_ == frames_) finish();
  }
  void finish() {
    if (filled_ == 0) return;
    const double mean = squares_ / (static_cast<double>(filled_) * channels_);
    levels_.push_back(static_cast<float>(10 * std::log10(std::max(mean, kFloor))));
    squares_ = filled_ = 0;
  }
  std::vector<float> levels() const { return levels_; }

 private:
  int frames_, channels_, filled_ = 0;
  double squares_ = 0;
  std::vector<float> levels_;
};

void addTo(Meter& meter, const Qvx32f* samples, int frames, int channels) {
  while (frames > 0) {
    const int part = std::min(frames, meter.room());
    meter.add(samples, part);
    samples += std::ptrdiff_t{part} * channels;
    frames -= part;
  }
}

}  // namespace

Levels levelsOf(const std::string& path, double blockSeconds) {
  AudioReader file(path);
  const int channels = file.channels();
  Meter blocks(std::max(1, static_cast<int>(std::lround(blockSeconds * file.sampleRate()))), channels);
  Meter seconds(file.sampleRate(), channels);
  const auto samples = vector(qvxsMalloc_32f(kBlockFrames * channels));
  for (int frames; (frames = file.read(samples.get())) > 0;) {
    addTo(blocks, samples.get(), frames, channels);
    addTo(seconds, samples.get(), frames, channels);
  }
  blocks.finish();
  seconds.finish();
  if (blocks.levels().empty()) throw std::runtime_error(path + ": holds no samples");
  return {blockSeconds, blocks.levels(), seconds.levels()};
}

std::vector<float> sorted(std::vector<float> levels) {
  check(qvxsSortAscend_32f_I(levels.data(), static_cast<int>(levels.size())));
  return levels;
}

float percentile(const std::vector<float>& sorted, double percent) {
  const double place = std::ceil(percent / 100 * static_cast<double>(sorted.size())) - 1;
  return sorted[static_cast<size_t>(std::max(place, 0.0))];
}

std::vector<int> byLoudness(std::vector<float> levels) {
  std::vector<Qvx32s> places(levels.size());
  check(qvxsSortIndexDescend_32f_I(levels.data(), places.data(), static_cast<int>(levels.size())));
  return {places.begin(), places.end()};
}
