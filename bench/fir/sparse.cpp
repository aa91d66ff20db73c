// Sparse FIR filters, as streams, and the design of filters.
#include <memory>
#include <numbers>

#include "fir/taps.h"
#include "frame/families.h"
#include "peers/plain_fir.h"

namespace bench {

namespace {

// Echoes: up to 200 samples after one another.
std::vector<Qvx32s> positions(int count) {
  std::vector<Qvx32s> places(static_cast<size_t>(count));
  uint32_t random = 1;
  int at = 0;
  for (Qvx32s& place : places) {
    place = at;
    random = random * 1664525 + 1013904223;
    at += 1 + static_cast<int>(random >> 16) % 200;
  }
  return places;
}

template <int kTaps> QvxStatus ours(const Qvx32f* src, Qvx32f* dst, int n) {
  static const auto h = taps<Qvx32f>(kTaps);
  static const auto places = positions(kTaps);
  static const auto block = [] {
    int bytes = 0;
    qvxsFIRSparseGetStateSize_32f(kTaps, places.back(), &bytes);
    return std::make_unique<Qvx8u[]>(static_cast<size_t>(bytes));
  }();
  static QvxsFIRSparseState_32f* state = nullptr;
  static int seen = -1;
  if (seen != freshData) qvxsFIRSparseInit_32f(&state, h.data(), places.data(), kTaps, nullptr, block.get());
  seen = freshData;
  return qvxsFIRSparse_32f(src, dst, n, state);
}

[[gnu::noipa]] void loop(const float* __restrict x, const float* __restrict h, const int* __restrict places, int taps,
                         float* __restrict y, int n) {
  for (int i = 0; i < n; ++i) {
    float sum = 0;
    for (int k = 0; k < taps; ++k) sum += h[k] * x[i - places[k]];
    y[i] = sum;
  }
}
[[gnu::noipa]] void loopByTap(const float* __restrict x, const float* __restrict h, const int* __restrict places, int taps,
                              float* __restrict y, int n) {
  for (int i = 0; i < n; ++i) y[i] = h[0] * x[i - places[0]];
  for (int k = 1; k < taps; ++k) {
    for (int i = 0; i < n; ++i) y[i] += h[k] * x[i - places[k]];
  }
}
template <int kTaps, auto kLoop> void plainLoop(const Qvx32f* src, Qvx32f* dst, int n) {
  static const auto h = taps<Qvx32f>(kTaps);
  static const auto places = positions(kTaps);
  static plain::History<float> history(static_cast<size_t>(places.back()) + 1);
  kLoop(history.with(src, n) + places.back(), h.data(), places.data(), countOf<kTaps>(), dst, n);
  history.keep(n);
}

template <int kTaps> void row(Suite& s) {
  s.row("FIRSparse_32f, " + std::to_string(kTaps) + " taps", ours<kTaps>)
      .stream()
      .operations(2 * kTaps)
      .against("plain", plainLoop<kTaps, loop>, Agreement::kSummed)
      .against("plain by tap", plainLoop<kTaps, loopByTap>, Agreement::kSummed);
}

// ---- design

constexpr int kHamming = 2;
QvxStatus lowpass(Qvx64f* h, int n) { return qvxsFIRGenLowpass_64f(0.1, h, n, kHamming, 1); }
QvxStatus bandpass(Qvx64f* h, int n) { return qvxsFIRGenBandpass_64f(0.1, 0.2, h, n, kHamming, 1); }

// Taps of the difference of two low-pass filters, with the gain 1 at a frequency.
[[gnu::noipa]] void design(double low, double high, double passes, double* h, int n) {
  constexpr double kPi = std::numbers::pi;
  double gain = 0;
  for (int i = 0; i < n; ++i) {
    const double m = i - (n - 1) / 2.0;
    const double sinc = m == 0 ? 2 * (high - low) : (std::sin(2 * kPi * high * m) - std::sin(2 * kPi * low * m)) / (kPi * m);
    h[i] = sinc * (0.54 - 0.46 * std::cos(2 * kPi * i / (n - 1)));
    gain += h[i] * std::cos(2 * kPi * passes * m);
  }
  for (int i = 0; i < n; ++i) h[i] /= gain;
}
void plainLowpass(Qvx64f* h, int n) { design(0, 0.1, 0, h, n); }
void plainBandpass(Qvx64f* h, int n) { design(0.1, 0.2, 0.15, h, n); }

}  // namespace

void sparse(Suite& s) {
  row<4>(s);
  row<16>(s);
  row<64>(s);
}

void firDesign(Suite& s) {
  const std::vector<int> sizes = {16, 64, 256, 1024};
  s.row("FIRGenLowpass_64f", lowpass).stream(sizes).against("doubles", plainLowpass, Agreement::kDiffers);
  s.row("FIRGenBandpass_64f", bandpass).stream(sizes).against("doubles", plainBandpass, Agreement::kDiffers);
}

}  // namespace bench
