#include "spectrogram.h"

#include <algorithm>
#include <cmath>

namespace {

// Silence has a level too.
double decibels(double power) { return 10 * std::log10(std::max(power, 1e-15)); }

// The window's mean square over the square of its mean: a sine has so much more power than its middle bin shows.
constexpr double kNoiseBins = 1.5;

}  // namespace

PowerSpectrum::PowerSpectrum(int len)
    : len_(len),
      window_(raisedCosine(len)),
      block_(vector(qvxsMalloc_32f(len))),
      spectrum_(vector(qvxsMalloc_32fc(bins()))),
      power_(vector(qvxsMalloc_32f(bins()))) {
  check(qvxsMulC_32f_I(2, window_.data(), len));  // a sine has half of its amplitude at its frequency, half at the negative one
  QvxsDFTSpec_R_32f* record = nullptr;
  check(qvxsDFTInitAlloc_R_32f(&record, len, QVX_FFT_SCALE_NONE, 0));
  record_.reset(record);
  int bytes = 0;
  check(qvxsDFTGetBufSize_R_32f(record, &bytes));
  if (bytes > 0) buffer_ = vector(qvxsMalloc_8u(bytes));
}

const Qvx32f* PowerSpectrum::of(const Qvx32f* samples) {
  check(qvxsMul_32f(samples, window_.data(), block_.get(), len_));
  check(qvxsDFTFwd_RToCCS_32f(block_.get(), &spectrum_[0].re, record_.get(), buffer_.get()));
  check(qvxsPowerSpectr_32fc(spectrum_.get(), power_.get(), bins()));
  return power_.get();
}

Spectrogram spectrogramOf(Windows& windows, int mostColumns, int mostRows) {
  PowerSpectrum spectrum(windows.len());
  const int64_t count = windows.count();
  Spectrogram s{};
  s.columns = static_cast<int>(std::min<int64_t>(count, mostColumns));
  s.rows = std::min(spectrum.bins(), mostRows);
  s.hz = 0.5 * windows.sampleRate();
  const auto columns = static_cast<size_t>(s.columns);
  const auto rows = static_cast<size_t>(s.rows);
  std::vector<double> sums(columns * rows);
  std::vector<int> windowsOf(columns);
  int64_t index = 0;
  while (const Qvx32f* samples = windows.next()) {
    s.seconds = windows.time();
    const auto column = static_cast<size_t>(std::min(index++ * s.columns / count, int64_t{s.columns} - 1));
    ++windowsOf[column];
    const Qvx32f* power = spectrum.of(samples);
    for (size_t row = 0; row < rows; ++row) {
      const auto bins = static_cast<size_t>(spectrum.bins());
      Qvx32f largest = 0;
      const size_t first = row * bins / rows;
      check(qvxsMax_32f(power + first, static_cast<int>((row + 1) * bins / rows - first), &largest));
      sums[row * columns + column] += static_cast<double>(largest);
    }
  }
  s.levels.resize(sums.size());
  for (size_t i = 0; i < sums.size(); ++i) {
    s.levels[i] = static_cast<Qvx32f>(decibels(sums[i] / std::max(windowsOf[i % columns], 1)));
  }
  return s;
}

Bands bandsOf(Windows& windows, double seconds) {
  PowerSpectrum spectrum(windows.len());
  const double binHz = static_cast<double>(windows.sampleRate()) / windows.len();
  Bands bands;
  // Bands that hold a bin at least, and whose centre the sampling rate has.
  for (int octave = -6; std::ldexp(1000, octave) < 0.5 * windows.sampleRate(); ++octave) {
    const double centre = std::ldexp(1000, octave);
    if (centre * M_SQRT1_2 > binHz) bands.centres.push_back(centre);
  }
  std::vector<double> sums(bands.centres.size());
  int64_t row = 0;
  int count = 0;
  const auto finish = [&] {
    if (count == 0) return;
    Bands::Row& done = bands.rows.emplace_back(Bands::Row{static_cast<double>(row) * seconds, {}});
    for (double& sum : sums) {
      done.levels.push_back(decibels(sum / count / kNoiseBins));
      sum = 0;
    }
    count = 0;
  };
  while (const Qvx32f* samples = windows.next()) {
    const double start = windows.time() - 0.5 * windows.len() / windows.sampleRate();
    const auto of = static_cast<int64_t>(std::floor(start / seconds));
    if (of != row) finish();
    row = of;
    ++count;
    const Qvx32f* power = spectrum.of(samples);
    for (size_t b = 0; b < sums.size(); ++b) {
      // A bin counts by the part of it that lies within the band.
      const double low = bands.centres[b] * M_SQRT1_2 / binHz;
      const double high = std::min(bands.centres[b] * M_SQRT2 / binHz, static_cast<double>(spectrum.bins()) - 0.5);
      for (auto k = static_cast<int>(std::lround(low)); k <= static_cast<int>(std::lround(high)) && k < spectrum.bins(); ++k) {
        const double part = std::min(high, k + 0.5) - std::max(low, k - 0.5);
        sums[b] += std::max(part, 0.0) * static_cast<double>(power[k]);
      }
    }
  }
  finish();
  return bands;
}
