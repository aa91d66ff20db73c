#include "quality.h"

#include <algorithm>
#include <cmath>
#include <complex>
#include <numbers>

namespace {

constexpr int kOrder = 15;
constexpr int kPoints = 1 << kOrder;
constexpr double kAlpha = 20;   // of the Kaiser window: side lobes 180 dB below the line
constexpr double kLobe = 8;     // half the width of its main lobe, in lines
constexpr double kLevel = 0.5;  // of the sines

class Spectrum {
 public:
  Spectrum() : window_(kPoints), points_(kPoints + 2) {
    QvxsFFTSpec_R_64f* spec = nullptr;
    check(qvxsFFTInitAlloc_R_64f(&spec, kOrder, QVX_FFT_SCALE_NONE, 0));
    spec_.reset(spec);
    for (size_t i = 0; i < window_.size(); ++i) {
      const double place = 2 * static_cast<double>(i) / (kPoints - 1) - 1;
      window_[i] = std::cyl_bessel_i(0, kAlpha * std::sqrt(1 - place * place));
    }
    check(qvxsSum_64f(window_.data(), kPoints, &sum_));
  }

  // The middle of a signal.
  void take(const std::vector<Qvx32f>& signal) {
    const auto start = static_cast<ptrdiff_t>((signal.size() - kPoints) / 2);
    std::copy_n(signal.begin() + start, kPoints, points_.begin());
    check(qvxsMul_64f_I(window_.data(), points_.data(), kPoints));
    windowed_.assign(points_.begin(), points_.begin() + kPoints);
    check(qvxsFFTFwd_RToCCS_64f_I(points_.data(), spec_.get(), nullptr));
  }
  // The amplitude of a sine of so many cycles a sample.
  double amplitude(double frequency) const {
    std::complex<double> sum;
    for (size_t i = 0; i < windowed_.size(); ++i) {
      sum += windowed_[i] * std::polar(1.0, -2 * std::numbers::pi * std::fmod(frequency * static_cast<double>(i), 1));
    }
    return 2 * std::abs(sum) / sum_;
  }
  // The strongest line, but for those around a frequency.
  double strongestBeside(double frequency) const {
    double most = 0;
    for (size_t line = 0; line <= kPoints / 2; ++line) {
      if (std::abs(static_cast<double>(line) - frequency * kPoints) < kLobe + 2) continue;
      const size_t at = 2 * line;
      most = std::max(most, std::hypot(points_[at], points_[at + 1]));
    }
    return 2 * most / sum_;
  }

 private:
  struct ReleaseSpec {
    void operator()(QvxsFFTSpec_R_64f* spec) const { qvxsFFTFree_R_64f(spec); }
  };
  std::unique_ptr<QvxsFFTSpec_R_64f, ReleaseSpec> spec_;
  std::vector<Qvx64f> window_;
  std::vector<Qvx64f> points_;
  std::vector<Qvx64f> windowed_;
  Qvx64f sum_ = 0;
};

std::vector<Qvx32f> sine(double frequency, size_t n) {
  std::vector<Qvx32f> x(n);
  for (size_t i = 0; i < n; ++i) {
    const double turns = std::fmod(frequency * static_cast<double>(i), 1);
    x[i] = static_cast<Qvx32f>(kLevel * std::sin(2 * std::numbers::pi * turns));
  }
  return x;
}

double decibels(double ratio) { return 20 * std::log10(ratio); }

}  // namespace

Quality measured(const Converter& convert, int from, int to, double passBand) {
  constexpr int kSines = 12;
  const double lower = std::min(from, to) / 2.0;
  // As many samples as fill the spectrum, and as many again for what converters leave out at the ends.
  const auto n = static_cast<size_t>(2.0 * kPoints * std::max(1.0, static_cast<double>(from) / to)) + kPoints;
  Spectrum spectrum;
  double least = 1e9;
  double most = 0;
  double beside = 0;
  for (int i = 1; i <= kSines; ++i) {
    const double frequency = passBand * lower * i / kSines;
    spectrum.take(convert(sine(frequency / from, n)));
    const double amplitude = spectrum.amplitude(frequency / to) / kLevel;
    least = std::min(least, amplitude);
    most = std::max(most, amplitude);
    beside = std::max(beside, spectrum.strongestBeside(frequency / to) / kLevel);
  }
  for (int i = 0; from > to && i < kSines; ++i) {  // what the second rate has no room for
    const double frequency = 1.002 * lower + (0.499 * from - 1.002 * lower) * i / (kSines - 1);
    spectrum.take(convert(sine(frequency / from, n)));
    beside = std::max(beside, spectrum.strongestBeside(-1) / kLevel);
  }
  return {decibels(most / least), -decibels(beside)};
}
