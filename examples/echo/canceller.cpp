#include "canceller.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <qvx/qvxs.hpp>

#include "../support/gnuplot.h"

namespace {

constexpr int kBlock = 64;  // samples to a step size

double decibels(double amplitude) { return 20 * std::log10(std::max(amplitude, 1e-6)); }

}  // namespace

std::vector<float> recorded(const std::vector<float>& played, const Room& room, double sampleRate) {
  // Reflections at growing distances, each weaker than the one before and some of them inverted.
  const auto first = static_cast<Qvx32s>(std::lrint(room.delay * sampleRate));
  const auto level = static_cast<float>(std::pow(10, room.level / 20));
  const std::vector<Qvx32s> positions = {first, first + 7, first + 23, first + 61, first + 140};
  const std::vector<float> taps = {level, -0.5F * level, 0.3F * level, 0.15F * level, -0.08F * level};
  auto filter = qvx::SparseFir::make(taps, positions).value();
  auto random = qvx::GaussNoise<float>::make(0, static_cast<float>(std::pow(10, room.noise / 20)), 1).value();
  std::vector<float> heard(played.size()), noise(played.size());
  filter.filter(played, heard).orThrow();
  random.generate(noise).orThrow();
  qvx::Add(noise, heard).orThrow();
  return heard;
}

std::vector<float> cancelled(const std::vector<float>& played, const std::vector<float>& recording, const Learning& learning) {
  auto filter = qvx::Lms<float>::make(learning.taps).value();
  std::vector<float> left = recording, buffer(kBlock);
  for (size_t at = 0; at < played.size(); at += kBlock) {
    // The filter settles as long as the step is below 1 / (taps * mean square), of the samples that its window may hold.
    const size_t n = std::min<size_t>(kBlock, played.size() - at);
    const size_t from = at - std::min(at, static_cast<size_t>(learning.taps));
    const auto window = std::span(played).subspan(from, at + n - from);
    double energy;
    qvx::DotProd(window, window, energy).orThrow();
    const auto step = static_cast<float>(learning.rate / (energy + 1e-3 * learning.taps));
    const auto echo = std::span(buffer).first(n);
    filter.filter(std::span(played).subspan(at, n), std::span(recording).subspan(at, n), echo, step).orThrow();
    qvx::Sub(echo, std::span(left).subspan(at, n)).orThrow();
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
      qvx::Norm_L2(std::span(x).subspan(at, n), norm).orThrow();
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
