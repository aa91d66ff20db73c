// The filter bank, as streams, beside the loops of its definition.
#include "frame/families.h"
#include "peers/plain_fir.h"

namespace bench {

namespace {

constexpr auto kSummed = Agreement::kSummed;

// Taps of all sizes; of the two bands and directions alike but for signs.
std::vector<float> filter(int n, bool isHigh) {
  std::vector<float> h(static_cast<size_t>(n));
  for (int k = 0; k < n; ++k) {
    const double tap = std::exp(-2.0 * k / n) * std::cos(0.7 * k) / std::sqrt(n);
    h[static_cast<size_t>(k)] = static_cast<float>(isHigh && k % 2 != 0 ? -tap : tap);
  }
  return h;
}

template <class Record, auto kInit> Record* record(int n) {
  Record* made = nullptr;
  kInit(&made, filter(n, false).data(), n, 0, filter(n, true).data(), n, 0);
  return made;
}

// Half of n results in either band.
template <int kTaps> QvxStatus forward(const float* x, float* low, float* high, int n) {
  static auto* const state = record<QvxsWTFwdState_32f, qvxsWTFwdInitAlloc_32f>(kTaps);
  static const std::vector<float> zeros(kTaps);
  static int seen = -1;
  if (seen != freshData) qvxsWTFwdSetDlyLine_32f(state, zeros.data(), zeros.data());
  seen = freshData;
  return qvxsWTFwd_32f(x, low, high, n / 2, state);
}
template <int kTaps> QvxStatus inverse(const float* low, const float* high, float* x, int n) {
  static auto* const state = record<QvxsWTInvState_32f, qvxsWTInvInitAlloc_32f>(kTaps);
  static const std::vector<float> zeros(kTaps);
  static int seen = -1;
  if (seen != freshData) qvxsWTInvSetDlyLine_32f(state, zeros.data(), zeros.data());
  seen = freshData;
  return qvxsWTInv_32f(low, high, n / 2, x, state);
}

[[gnu::noipa]] void split(const float* __restrict x, const float* __restrict p, const float* __restrict q, int taps,
                          float* __restrict low, float* __restrict high, int n) {
  for (int k = 0; k < n / 2; ++k) {
    float first = 0, second = 0;
    for (int j = 0; j < taps; ++j) {
      first += p[j] * x[2 * k + j];
      second += q[j] * x[2 * k + j];
    }
    low[k] = first;
    high[k] = second;
  }
}
[[gnu::noipa]] void join(const float* __restrict low, const float* __restrict high, const float* __restrict p,
                         const float* __restrict q, int pairs, float* __restrict x, int n) {
  for (int k = 0; k < n / 2; ++k) {
    float first = 0, second = 0;
    for (int j = 0; j < pairs; ++j) {
      first += p[2 * j] * low[k + j] + q[2 * j] * high[k + j];
      second += p[2 * j + 1] * low[k + j] + q[2 * j + 1] * high[k + j];
    }
    x[2 * k] = first;
    x[2 * k + 1] = second;
  }
}

template <int kTaps> void plainForward(const float* x, float* low, float* high, int n) {
  static const auto h = filter(kTaps, false), g = filter(kTaps, true);
  static const std::vector<float> p(h.rbegin(), h.rend()), q(g.rbegin(), g.rend());
  static plain::History<float> history(kTaps);
  split(history.with(x, n), p.data(), q.data(), kTaps, low, high, n);
  history.keep(n);
}
template <int kTaps> void plainInverse(const float* low, const float* high, float* x, int n) {
  const auto pairs = [](std::vector<float> h) {
    for (size_t i = 0, j = h.size() - 2; i < j; i += 2, j -= 2) {
      std::swap(h[i], h[j]);
      std::swap(h[i + 1], h[j + 1]);
    }
    return h;
  };
  static const auto p = pairs(filter(kTaps, false)), q = pairs(filter(kTaps, true));
  static plain::History<float> first(kTaps / 2), second(kTaps / 2);
  join(first.with(low, n / 2), second.with(high, n / 2), p.data(), q.data(), kTaps / 2, x, n);
  first.keep(n / 2);
  second.keep(n / 2);
}

template <int kTaps> void rows(Suite& s) {
  const std::string taps = ", " + std::to_string(kTaps) + " taps";
  s.row("WTFwd_32f" + taps, forward<kTaps>).stream().operations(2 * kTaps).against("plain", plainForward<kTaps>, kSummed);
  s.row("WTInv_32f" + taps, inverse<kTaps>).stream().operations(2 * kTaps).against("plain", plainInverse<kTaps>, kSummed);
}

}  // namespace

void filterBank(Suite& s) {
  rows<2>(s);
  rows<8>(s);
  rows<20>(s);
}

}  // namespace bench
