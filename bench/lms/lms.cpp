// Adaptive filters, as streams, beside the loop of their definition.
#include "frame/families.h"
#include "peers/liquid_lms.h"
#include "peers/plain_fir.h"

namespace bench {

namespace {

// Small enough for samples up to 1000 that the outputs hardly change while a benchmark runs.
constexpr float kStep = 1e-10F;

template <int kTaps> QvxStatus ours(const float* src, const float* ref, float* dst, int n) {
  static auto* state = [] {
    QvxsFIRLMSState_32f* made = nullptr;
    qvxsFIRLMSInitAlloc_32f(&made, nullptr, kTaps, nullptr, 0);
    return made;
  }();
  static int seen = -1;
  if (seen != freshData) {
    qvxsFIRLMSFree_32f(state);
    qvxsFIRLMSInitAlloc_32f(&state, nullptr, kTaps, nullptr, 0);
  }
  seen = freshData;
  return qvxsFIRLMS_32f(src, ref, dst, n, state, kStep);
}

[[gnu::noipa]] void loop(const float* __restrict x, const float* __restrict ref, float* __restrict h, int taps,
                         float* __restrict dst, int n) {
  for (int i = 0; i < n; ++i) {
    float y = 0;
    for (int k = 0; k < taps; ++k) y += h[k] * x[i + k];
    const float e = (ref[i] - y) * (2 * kStep);
    for (int k = 0; k < taps; ++k) h[k] += e * x[i + k];
    dst[i] = y;
  }
}
template <int kTaps> void plainLoop(const float* src, const float* ref, float* dst, int n) {
  static plain::History<float> history(kTaps);
  static std::vector<float> h(kTaps);
  static int seen = -1;
  if (seen != freshData) std::fill(h.begin(), h.end(), 0.0F);
  seen = freshData;
  loop(history.with(src, n), ref, h.data(), kTaps, dst, n);
  history.keep(n);
}
template <int kTaps> void liquidLms(const float* src, const float* ref, float* dst, int n) {
  static const auto filter = liquid::adaptive(kTaps, kStep);
  static int seen = -1;
  if (seen != freshData) liquid::reset(filter);
  seen = freshData;
  liquid::run(filter, src, ref, dst, n);
}

template <int kTaps> void row(Suite& s) {
  s.row("FIRLMS_32f, " + std::to_string(kTaps) + " taps", ours<kTaps>)
      .stream()
      .operations(4 * kTaps)
      .against("plain", plainLoop<kTaps>, Agreement::kSummed)
      .against("liquid-dsp", liquidLms<kTaps>, Agreement::kDiffers);
}

}  // namespace

void lms(Suite& s) {
  row<16>(s);
  row<64>(s);
  row<256>(s);
}

}  // namespace bench
