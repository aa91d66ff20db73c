#include "spectrum.h"

#include <algorithm>
#include <cmath>
#include <qvx/qvxs.hpp>
#include <stdexcept>

namespace {

// Silence has a level too.
constexpr double kLeastDb = -300;

// What a block's window leaves of a sine so many bins off.
double windowedSine(double bins) { return bins == 0 ? 1 : std::sin(M_PI * bins) / (M_PI * bins * (1 - bins * bins)); }

// Adds up the power spectra of windowed blocks.
class Welch {
 public:
  explicit Welch(int order)
      : len_(1 << order),
        fft_(qvx::Fft<Qvx32f>::make(order, qvx::Scale::kNone).value()),
        window_(fft_.size()),
        block_(fft_.size()),
        spectrum_(fft_.spectrumSize()),
        power_(fft_.spectrumSize()),
        sum_(fft_.spectrumSize()) {
    // A raised cosine, so that half-way blocks add up to 1, and a sine of full scale comes to 1 in the middle of a bin.
    for (int i = 0; i < len_; ++i) window_[i] = static_cast<Qvx32f>((1 - std::cos(2 * M_PI * i / len_)) * 2 / len_);
  }

  int len() const { return len_; }
  int bins() const { return len_ / 2 + 1; }

  void add(const std::vector<Qvx32f>& samples) {
    qvx::Mul(samples, window_, block_).orThrow();
    fft_.forward(block_, spectrum_).orThrow();
    qvx::PowerSpectr(spectrum_, power_).orThrow();
    for (int k = 0; k < bins(); ++k) sum_[k] += power_[k];
    ++count_;
  }

  std::vector<double> levels() const {
    std::vector<double> all;
    all.reserve(static_cast<size_t>(bins()));
    for (int k = 0; k < bins(); ++k) all.push_back(std::max(kLeastDb, 10 * std::log10(sum_[k] / static_cast<double>(count_))));
    return all;
  }

 private:
  int len_;
  int64_t count_ = 0;
  qvx::Fft<Qvx32f> fft_;
  std::vector<Qvx32f> window_;
  std::vector<Qvx32f> block_;
  std::vector<Qvx32fc> spectrum_;
  std::vector<Qvx32f> power_;
  std::vector<Qvx64f> sum_;
};

// The last samples of each channel.
class Channels {
 public:
  Channels(int channels, int len) : len_(len), each_(channels, std::vector<Qvx32f>(len)) {}

  void push(const Qvx32f* frames, int count) {
    for (size_t c = 0; c < each_.size(); ++c) {
      std::vector<Qvx32f>& samples = each_[c];
      if (count < len_) check(qvxsMove_32f(samples.data() + count, samples.data(), len_ - count));
      for (int i = 0; i < count; ++i) samples[len_ - count + i] = frames[i * each_.size() + c];
    }
  }
  const std::vector<std::vector<Qvx32f>>& each() const { return each_; }

 private:
  int len_;
  std::vector<std::vector<Qvx32f>> each_;
};

// As many frames as there are, up to `count`.
int readFully(AudioReader& input, Qvx32f* frames, int count) {
  int done = 0;
  while (done < count) {
    const int got = input.read(frames + int64_t{done} * input.channels(), std::min(count - done, kBlockFrames));
    if (got == 0) break;
    done += got;
  }
  return done;
}

}  // namespace

Spectrum spectrumOf(const std::string& path, int order) {
  AudioReader input(path);
  Welch welch(order);
  Channels channels(input.channels(), welch.len());
  const int step = welch.len() / 2;
  std::vector<Qvx32f> frames(size_t{2} * step * input.channels());
  if (readFully(input, frames.data(), 2 * step) == 0) throw std::runtime_error(path + ": holds no samples");
  int64_t blocks = 0;
  int fresh = 2 * step;  // zeros where the file has no more
  do {
    channels.push(frames.data(), fresh);
    for (const std::vector<Qvx32f>& samples : channels.each()) welch.add(samples);
    ++blocks;
    fresh = step;
  } while (readFully(input, frames.data(), step) == step);  // what does not fill a step is left out
  return {static_cast<double>(input.sampleRate()) / welch.len(), blocks, welch.levels()};
}

std::vector<Peak> peaksOf(const Spectrum& spectrum, size_t count) {
  std::vector<Peak> peaks;
  const std::vector<double>& level = spectrum.levels;
  for (size_t k = 1; k + 1 < level.size(); ++k) {
    if (level[k] <= level[k - 1] || level[k] < level[k + 1] || level[k] <= kLeastDb) continue;
    const bool isBelow = level[k - 1] > level[k + 1];
    const double ratio = std::pow(10, (level[isBelow ? k - 1 : k + 1] - level[k]) / 20);
    const double off = std::max(0.0, (2 * ratio - 1) / (ratio + 1));
    const double place = static_cast<double>(k) + (isBelow ? -off : off);
    peaks.push_back({place * spectrum.binHz, level[k] - 20 * std::log10(windowedSine(off))});
  }
  const auto stronger = [](const Peak& a, const Peak& b) { return a.dbfs > b.dbfs; };
  std::stable_sort(peaks.begin(), peaks.end(), stronger);
  if (peaks.size() > count) peaks.resize(count);
  return peaks;
}
