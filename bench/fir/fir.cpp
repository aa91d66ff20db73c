// FIR filters, as streams.
#include "fir/taps.h"
#include "frame/families.h"
#include "peers/fftw_partitioned.h"
#include "peers/liquid.h"
#include "peers/plain_fir.h"
#include "peers/volk.h"
#include "qvx/qvxcore.h"

namespace bench {

namespace {

constexpr auto kSummed = Agreement::kSummed;

// ---- contenders: a filter of kTaps taps each, with its state in the function

template <class T> struct Ours;
template <> struct Ours<Qvx32f> {
  static constexpr auto kInit = qvxsFIRInitAlloc_32f;
  static constexpr auto kSetLine = qvxsFIRSetDlyLine_32f;
  static constexpr auto kBlock = qvxsFIR_32f;
};
template <> struct Ours<Qvx64f> {
  static constexpr auto kInit = qvxsFIRInitAlloc_64f;
  static constexpr auto kSetLine = qvxsFIRSetDlyLine_64f;
  static constexpr auto kBlock = qvxsFIR_64f;
};
template <> struct Ours<Qvx32fc> {
  static constexpr auto kInit = qvxsFIRInitAlloc_32fc;
  static constexpr auto kSetLine = qvxsFIRSetDlyLine_32fc;
  static constexpr auto kBlock = qvxsFIR_32fc;
};
template <> struct Ours<Qvx64fc> {
  static constexpr auto kInit = qvxsFIRInitAlloc_64fc;
  static constexpr auto kSetLine = qvxsFIRSetDlyLine_64fc;
  static constexpr auto kBlock = qvxsFIR_64fc;
};
template <> struct Ours<Qvx16s> {
  static constexpr auto kInit = [](QvxsFIRState_16s** state, const Qvx16s* h, int n, const Qvx16s* line) {
    return qvxsFIRInitAlloc_16s(state, h, n, 0, line);
  };
  static constexpr auto kSetLine = qvxsFIRSetDlyLine_16s;
  static constexpr auto kBlock = [](const Qvx16s* src, Qvx16s* dst, int n, QvxsFIRState_16s* state) {
    return qvxsFIR_16s_Sfs(src, dst, n, state, 15);
  };
};
template <class State, class T> State stateOf(QvxStatus (*)(State*, const T*));

// kMost: samples to a call at most, as many as the vector has if 0.
template <class T, int kTaps, int kMost = 0> QvxStatus ours(const T* src, T* dst, int n) {
  using Own = Ours<T>;
  using State = decltype(stateOf(Own::kSetLine));
  static State* const state = [] {
    State* made = nullptr;
    qvxSetNumThreads(2);  // room for two
    Own::kInit(&made, taps<T>(kTaps).data(), kTaps, nullptr);
    qvxSetNumThreads(1);
    return made;
  }();
  static int seen = -1;
  if (seen != freshData) Own::kSetLine(state, nullptr);
  seen = freshData;
  if (kMost == 0) return Own::kBlock(src, dst, n, state);
  for (int i = 0; i < n; i += kMost) Own::kBlock(src + i, dst + i, std::min(n - i, kMost), state);
  return qvxStatOk;
}

template <class T, int kTaps>
constexpr auto plainLoop = [](const T* src, T* dst, int n) {
  static const auto p = reversed(taps<T>(kTaps));
  static plain::History<T> history(kTaps);
  plain::filter(history.with(src, n), p.data(), countOf<kTaps>(), dst, n);
  history.keep(n);
};

template <class T, int kTaps>
constexpr auto volkDot = [](const T* src, T* dst, int n) {
  static const auto p = reversed(taps<T>(kTaps));
  static plain::History<T> history(kTaps);
  const T* x = history.with(src, n);
  for (int i = 0; i < n; ++i) {
    if constexpr (std::is_same_v<T, Qvx32f>) volk::dot32f(x + i, p.data(), kTaps, dst + i);
    else volk::dot32fc(x + i, p.data(), kTaps, dst + i);
  }
  history.keep(n);
};

template <class T, int kTaps>
constexpr auto liquidBlock = [](const T* src, T* dst, int n) {
  static const auto filter = liquid::create(taps<T>(kTaps).data(), kTaps);
  static int seen = -1;
  if (seen != freshData) liquid::reset(filter);
  seen = freshData;
  liquid::run(filter, src, dst, n);
};

template <class T, int kTaps> void row(Suite& s, const std::string& name) {
  auto row = s.row(name + ", " + std::to_string(kTaps) + " taps", ours<T, kTaps>);
  constexpr double kEach = sizeof(T) == sizeof(Part<T>) ? 2 : 8;
  row.stream().operations(kEach * kTaps).against("plain", plainLoop<T, kTaps>, kSummed);
  if constexpr (std::is_same_v<T, Qvx32f> || std::is_same_v<T, Qvx32fc>) {
    row.against("VOLK", volkDot<T, kTaps>, kSummed).against("liquid-dsp", liquidBlock<T, kTaps>, kSummed);
  }
  // Too short for the transform, which a whole block takes.
  constexpr int kDirect = sizeof(T) == sizeof(Part<T>) ? 511 : 255;
  if constexpr (kTaps > 16 && !std::is_integral_v<T>) row.besides("direct", ours<T, kTaps, kDirect>, kSummed);
}
template <class T> void rows(Suite& s, const std::string& name) {
  row<T, 4>(s, name);
  row<T, 16>(s, name);
  row<T, 63>(s, name);
  row<T, 127>(s, name);
  row<T, 512>(s, name);
  row<T, 2048>(s, name);
}

// Long filters on streams in blocks of kBlock samples.
template <int kTaps, int kBlock> void blocks(Suite& s) {
  const auto peer = [](const Qvx32f* src, Qvx32f* dst, int n) {
    static fftw::PartitionedFilter filter(taps<Qvx32f>(kTaps), kBlock);
    static int seen = -1;
    if (seen != freshData) filter.reset();
    seen = freshData;
    for (int i = 0; i < n; i += kBlock) filter.run(src + i, dst + i, std::min(n - i, kBlock));
  };
  s.row("FIR_32f, " + std::to_string(kTaps) + " taps, blocks of " + std::to_string(kBlock), ours<Qvx32f, kTaps, kBlock>)
      .stream({kBlock, 16 * kBlock})
      .against("FFTW by partitions", peer, kSummed);
}

}  // namespace

void fir(Suite& s) {
  rows<Qvx32f>(s, "FIR_32f");
  rows<Qvx64f>(s, "FIR_64f");
  rows<Qvx32fc>(s, "FIR_32fc");
  rows<Qvx64fc>(s, "FIR_64fc");
  rows<Qvx16s>(s, "FIR_16s_Sfs");
  blocks<512, 32>(s);
  blocks<512, 64>(s);
  blocks<2048, 64>(s);
  blocks<2048, 1024>(s);
  blocks<8192, 256>(s);
  blocks<8192, 4096>(s);
  blocks<65536, 64>(s);
  blocks<65536, 1024>(s);
  blocks<65536, 4096>(s);
  s.row("FIR_32f, 16 taps", ours<Qvx32f, 16>).inTeam();
  s.row("FIR_32f, 63 taps", ours<Qvx32f, 63>).inTeam();
  s.row("FIR_32f, 127 taps", ours<Qvx32f, 127>).inTeam();
  s.row("FIR_32f, 2048 taps", ours<Qvx32f, 2048>).inTeam();
  s.row("FIR_32fc, 15 taps", ours<Qvx32fc, 15>).inTeam();
  s.row("FIR_32fc, 63 taps", ours<Qvx32fc, 63>).inTeam();
}

}  // namespace bench
