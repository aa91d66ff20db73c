#include "filter.h"

#include <cmath>
#include <complex>
#include <memory>
#include <numbers>
#include <stdexcept>

#include "../support/audio.h"
#include "../support/gnuplot.h"

namespace {

std::vector<double> design(const Specification& s) {
  std::vector<double> taps(2 * static_cast<size_t>(s.order) + 2);
  const auto generate = s.isHighPass ? qvxsIIRGenHighpass_64f : qvxsIIRGenLowpass_64f;
  const QvxStatus status = generate(s.frequency / s.sampleRate, s.ripple, s.order, taps.data(), s.ripple > 0 ? 1 : 0);
  if (status == qvxStatBadCutoff) throw std::runtime_error("the edge has to be above 0 and below half the sampling rate");
  check(status);
  return taps;
}

struct FreeState {
  void operator()(QvxsIIRState64f_32f* state) const { qvxsIIRFree64f_32f(state); }
};
// One channel's memory.
using State = std::unique_ptr<QvxsIIRState64f_32f, FreeState>;

State makeState(const std::vector<double>& taps) {
  QvxsIIRState64f_32f* state = nullptr;
  check(qvxsIIRInitAlloc64f_32f(&state, taps.data(), static_cast<int>(taps.size()) / 2 - 1, nullptr));
  return State(state);
}

std::complex<double> polynomial(const double* taps, size_t order, std::complex<double> z) {
  std::complex<double> sum = 0;
  for (size_t k = order + 1; k-- > 0;) sum = sum * z + taps[k];
  return sum;
}

}  // namespace

Filter::Filter(const Specification& specification) : specification_(specification), taps_(design(specification)) {}

double Filter::gainDb(double frequency) const {
  const size_t order = taps_.size() / 2 - 1;
  const auto z = std::polar(1.0, -2 * std::numbers::pi * frequency / specification_.sampleRate);
  return 20 * std::log10(std::abs(polynomial(&taps_[0], order, z) / polynomial(&taps_[order + 1], order, z)));
}

long long Filter::apply(const std::string& input, const std::string& output) const {
  AudioReader in(input);
  if (in.sampleRate() != specification_.sampleRate) {
    throw std::runtime_error(input + " has " + std::to_string(in.sampleRate()) + " Hz: give that as the rate");
  }
  const int channels = in.channels();
  AudioWriter out(output, SF_FORMAT_WAV | SF_FORMAT_PCM_16, channels, in.sampleRate(), {input});
  const auto frame = vector(qvxsMalloc_32f(kBlockFrames * channels));
  const auto filtered = vector(qvxsMalloc_16s(kBlockFrames * channels));
  const auto samples = vector(qvxsMalloc_32f(kBlockFrames * channels));
  std::vector<State> states;
  std::vector<Qvx32f*> channel;
  for (int c = 0; c < channels; ++c) {
    states.push_back(makeState(taps_));
    channel.push_back(samples.get() + std::ptrdiff_t{c} * kBlockFrames);
  }
  long long all = 0;
  for (int frames; (frames = in.read(frame.get())) > 0; all += frames) {
    for (int c = 0; c < channels; ++c) {
      Qvx32f* const one = channel[static_cast<size_t>(c)];
      for (int i = 0; i < frames; ++i) one[i] = frame[i * channels + c];
      check(qvxsMulC_32f_I(32768, one, frames));
      check(qvxsIIR64f_32f_I(one, frames, states[static_cast<size_t>(c)].get()));
    }
    check(qvxsJoin_32f16s_D2L(channel.data(), channels, frames, filtered.get()));
    out.write(filtered.get(), frames);
  }
  return all;
}

void plot(const Filter& filter, const std::string& path) {
  const Specification& s = filter.specification();
  Gnuplot gnuplot(path, 900, 500);
  std::fprintf(gnuplot.file(),
               "set logscale x\nset grid\nset xlabel 'Hz'\nset ylabel 'dB'\nset yrange [-80:5]\nunset key\n"
               "set title '%s-pass, order %d, %g Hz'\nplot '-' with lines\n",
               s.isHighPass ? "High" : "Low", s.order, s.frequency);
  constexpr int kPoints = 500;
  for (int i = 0; i < kPoints; ++i) {
    const double frequency = s.sampleRate / 1000 * std::pow(500, (i + 0.5) / kPoints);
    std::fprintf(gnuplot.file(), "%g %g\n", frequency, std::max(filter.gainDb(frequency), -200.0));
  }
  std::fprintf(gnuplot.file(), "e\n");
  gnuplot.finish();
}
