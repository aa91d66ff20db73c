#include "canceller.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <memory>

#include "../support/audio.h"
#include "../support/gnuplot.h"

namespace {

constexpr int kBlock = 64;  // samples to a step size

struct Free {
  void operator()(QvxsFIRLMSState_32f* state) const { qvxsFIRLMSFree_32f(state); }
  void operator()(QvxsRandGaussState_32f* state) const { qvxsRandGaussFree_32f(state); }
};

double decibels(double amplitude) { return 20 * std::log10(std::max(amplitude, 1e-6)); }

}  // namespace

std::vector<float> recorded(const std::vector<float>& played, const Room& room, double sampleRate) {
  // Reflections at growing distances, each weaker than the one before and some of them inverted.
  const auto first = static_cast<Qvx32s>(std::lrint(room.delay * sampleRate));
  const auto level = static_cast<float>(std::pow(10, room.level / 20));
  const std::vector<Qvx32s> positions = {first, first + 7, first + 23, first + 61, first + 140};
  const std::vector<float> taps = {level, -0.5F * level, 0.3F * level, 0.15F * level, -0.08F * level};
  int bytes = 0;
  check(qvxsFIRSparseGetStateSize_32f(static_cast<int>(taps.size()), positions.back(), &bytes));
  const auto block = vector(qvxsMalloc_8u(bytes));
  QvxsFIRSparseState_32f* filter = nullptr;
  check(qvxsFIRSparseInit_32f(&filter, taps.data(), positions.data(), static_cast<int>(taps.size()), nullptr, block.get()));
  std::vector<float> heard(played.size()), noise(played.size());
  const int n = static_cast<int>(played.size());
  check(qvxsFIRSparse_32f(played.data(), heard.data(), n, filter));

  QvxsRandGaussState_32f* made = nullptr;
  check(qvxsRandGaussInitAlloc_32f(&made, 0, static_cast<float>(std::pow(10, room.noise / 20)), 1));
  const std::unique_ptr<QvxsRandGaussState_32f, Free> random(made);
  check(qvxsRandGauss_32f(noise.data(), n, random.get()));
  check(qvxsAdd_32f_I(noise.data(), heard.data(), n));
  return heard;
}

std::vector<float> cancelled(const std::vector<float>& played, const std::vector<float>& recording, const Learning& learning) {
  QvxsFIRLMSState_32f* made = nullptr;
  check(qvxsFIRLMSInitAlloc_32f(&made, nullptr, learning.taps, nullptr, 0));
  const std::unique_ptr<QvxsFIRLMSState_32f, Free> filter(made);
  std::vector<float> left = recording, echo(kBlock);
  for (size_t at = 0; at < played.size(); at += kBlock) {
    // The filter settles as long as the step is below 1 / (taps * mean square), of the samples that its window may hold.
    const size_t n = std::min<size_t>(kBlock, played.size() - at);
    const size_t from = at - std::min(at, static_cast<size_t>(learning.taps));
    double energy;
    check(qvxsDotProd_32f64f(&played[from], &played[from], static_cast<int>(at + n - from), &energy));
    const auto step = static_cast<float>(learning.rate / (energy + 1e-3 * learning.taps));
    check(qvxsFIRLMS_32f(&played[at], &recording[at], echo.data(), static_cast<int>(n), filter.get(), step));
    check(qvxsSub_32f_I(echo.data(), &left[at], static_cast<int>(n)));
  }
  return left;
}

std::vector<Stretch> levels(const std::vector<float>& recording, const std::vector<float>& left, double seconds,
                            double sampleRate) {
  std::vector<Stretch> all;
  const auto length = static_cast<size_t>(std::max(1.0, seconds * sampleRate));
  for (size_t at = 0; at < left.size(); at += length) {
    const size_t n = std::min(length, left.size() - at);
    const auto level = [&](const std::vector<float>& x) {
      float norm;
      check(qvxsNorm_L2_32f(&x[at], static_cast<int>(n), &norm));
      return decibels(norm / std::sqrt(static_cast<double>(n)));
    };
    all.push_back({static_cast<double>(at) / sampleRate, level(recording), level(left)});
  }
  return all;
}

void plot(const std::vector<Stretch>& stretches, const std::string& path) {
  Gnuplot gnuplot(path, 900, 500);
  std::fprintf(gnuplot.file(),
               "set grid\nset xlabel 's'\nset ylabel 'dB'\n"
               "plot '-' with lines title 'recording', '-' with lines title 'without its echo'\n");
  for (const Stretch& s : stretches) std::fprintf(gnuplot.file(), "%g %g\n", s.start, s.before);
  std::fprintf(gnuplot.file(), "e\n");
  for (const Stretch& s : stretches) std::fprintf(gnuplot.file(), "%g %g\n", s.start, s.after);
  std::fprintf(gnuplot.file(), "e\n");
  gnuplot.finish();
}
