#include "generator.h"

#include <algorithm>
#include <cmath>
#include <stdexcept>

#include "../support/audio.h"

namespace {

constexpr int kSweepStep = 32;  // samples of one frequency

// Makes one block after another.
class Generator {
 public:
  explicit Generator(const Signal& signal)
      : signal_(signal),
        peak_(static_cast<Qvx16s>(std::lround(32767 * std::pow(10, signal.level / 20)))),
        seed_(signal.seed),
        frames_(signal.seconds * signal.rate) {
    if (peak_ < 1) throw std::runtime_error("the level is too low for 16 bits");
    if (frames_ < 1) throw std::runtime_error("the length is below one sample");
  }

  void next(Qvx16s* samples, int len) {
    if (signal_.shape == "tone") {
      check(qvxsTone_Direct_16s(samples, len, peak_, relative(signal_.frequency), &phase_, 0));
    } else if (signal_.shape == "triangle") {
      const auto asymmetry = static_cast<Qvx32f>(signal_.asymmetry * 3.141592);
      check(qvxsTriangle_Direct_16s(samples, len, peak_, relative(signal_.frequency), asymmetry, &phase_));
    } else if (signal_.shape == "sweep") {
      sweep(samples, len);
    } else if (signal_.shape == "uniform") {
      check(qvxsRandUniform_Direct_16s(samples, len, static_cast<Qvx16s>(-peak_), peak_, &seed_));
    } else {
      check(qvxsRandGauss_Direct_16s(samples, len, 0, peak_, &seed_));
    }
    done_ += len;
  }

  double framesLeft() const { return std::floor(frames_ - done_); }

 private:
  Qvx32f relative(double hz) const { return static_cast<Qvx32f>(hz / signal_.rate); }

  // The logarithm of the frequency rises in a straight line.
  void sweep(Qvx16s* samples, int len) {
    for (int i = 0; i < len; i += kSweepStep) {
      const double hz = signal_.frequency * std::pow(signal_.last / signal_.frequency, (done_ + i) / frames_);
      check(qvxsTone_Direct_16s(samples + i, std::min(kSweepStep, len - i), peak_, relative(hz), &phase_, 0));
    }
  }

  Signal signal_;
  Qvx16s peak_;
  Qvx32u seed_;
  double frames_;
  double done_ = 0;
  Qvx32f phase_ = 0;
};

}  // namespace

void writeSignal(const Signal& signal, const std::string& path) {
  Generator generator(signal);
  AudioWriter out(path, SF_FORMAT_WAV | SF_FORMAT_PCM_16, 1, signal.rate, {});
  const auto samples = vector(qvxsMalloc_16s(kBlockFrames));
  while (generator.framesLeft() >= 1) {
    const int frames = static_cast<int>(std::min<double>(kBlockFrames, generator.framesLeft()));
    generator.next(samples.get(), frames);
    out.write(samples.get(), frames);
  }
}
