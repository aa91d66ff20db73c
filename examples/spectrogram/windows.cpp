#include "windows.h"

#include <algorithm>
#include <cmath>
#include <stdexcept>

Windows::Windows(const std::string& path, int len, int hop)
    : input_(path), len_(len), hop_(hop), samples_(static_cast<size_t>(len)) {}

double Windows::time() const { return (static_cast<double>(index_) * hop_ + 0.5 * len_) / sampleRate(); }

int64_t Windows::count() const { return input_.frames() < len_ ? 1 : (input_.frames() - len_) / hop_ + 1; }

int Windows::read(Qvx32f* dst, int frames) {
  const auto channels = static_cast<size_t>(input_.channels());
  int done = 0;
  while (done < frames) {
    frames_.resize(kBlockFrames * channels);
    const int got = input_.read(frames_.data(), std::min(frames - done, kBlockFrames));
    if (got == 0) break;
    for (int i = 0; i < got; ++i) {
      Qvx32f sum = 0;
      for (size_t c = 0; c < channels; ++c) sum += frames_[static_cast<size_t>(i) * channels + c];
      dst[done++] = sum / static_cast<Qvx32f>(channels);
    }
  }
  return done;
}

const Qvx32f* Windows::next() {
  Qvx32f* const samples = samples_.data();
  if (index_++ < 0) {
    if (read(samples, len_) == 0) throw std::runtime_error(input_.path() + ": holds no samples");
    return samples;
  }
  int fresh = len_;
  if (hop_ < len_) {
    fresh = hop_;
    check(qvxsMove_32f(samples + hop_, samples, len_ - hop_));
  }
  for (int skipped = hop_ - fresh; skipped > 0;) {
    const int got = read(samples, std::min(skipped, len_));
    if (got == 0) return nullptr;
    skipped -= got;
  }
  return read(samples + len_ - fresh, fresh) == fresh ? samples : nullptr;
}

std::vector<Qvx32f> raisedCosine(int len) {
  std::vector<Qvx32f> window(static_cast<size_t>(len));
  for (int i = 0; i < len; ++i) {
    const double turn = 2 * M_PI * (i + 0.5) / len;
    window[static_cast<size_t>(i)] = static_cast<Qvx32f>((1 - std::cos(turn)) / len);
  }
  return window;
}
