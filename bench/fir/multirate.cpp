// Multi-rate FIR filters, as streams.
#include "fir/taps.h"
#include "frame/families.h"
#include "peers/liquid.h"
#include "peers/plain_fir.h"
#include "qvx/qvxcore.h"

namespace bench {

namespace {

template <class T> struct Ours;
template <> struct Ours<Qvx32f> {
  static constexpr auto kInit = qvxsFIRMRInitAlloc_32f;
  static constexpr auto kSetLine = qvxsFIRSetDlyLine_32f;
  static constexpr auto kBlock = qvxsFIR_32f;
};
template <> struct Ours<Qvx64f> {
  static constexpr auto kInit = qvxsFIRMRInitAlloc_64f;
  static constexpr auto kSetLine = qvxsFIRSetDlyLine_64f;
  static constexpr auto kBlock = qvxsFIR_64f;
};
template <> struct Ours<Qvx32fc> {
  static constexpr auto kInit = qvxsFIRMRInitAlloc_32fc;
  static constexpr auto kSetLine = qvxsFIRSetDlyLine_32fc;
  static constexpr auto kBlock = qvxsFIR_32fc;
};
template <> struct Ours<Qvx16s> {
  static constexpr auto kInit = [](QvxsFIRState_16s** state, const Qvx16s* h, int n, int up, int upPhase, int down, int downPhase,
                                   const Qvx16s* line) {
    return qvxsFIRMRInitAlloc_16s(state, h, n, 0, up, upPhase, down, downPhase, line);
  };
  static constexpr auto kSetLine = qvxsFIRSetDlyLine_16s;
  static constexpr auto kBlock = [](const Qvx16s* src, Qvx16s* dst, int groups, QvxsFIRState_16s* state) {
    return qvxsFIR_16s_Sfs(src, dst, groups, state, 15);
  };
};
template <class State, class T> State stateOf(QvxStatus (*)(State*, const T*));

// n: samples or outputs, whichever are more.
template <int kUp, int kDown> int groupsOf(int n) { return n / std::max(kUp, kDown); }

template <class T, int kUp, int kDown, int kTaps> QvxStatus ours(const T* src, T* dst, int n) {
  using Own = Ours<T>;
  using State = decltype(stateOf(Own::kSetLine));
  static State* const state = [] {
    State* made = nullptr;
    Own::kInit(&made, taps<T>(kTaps).data(), kTaps, kUp, 0, kDown, 0, nullptr);
    return made;
  }();
  static int seen = -1;
  if (seen != freshData) Own::kSetLine(state, nullptr);
  seen = freshData;
  return Own::kBlock(src, dst, groupsOf<kUp, kDown>(n), state);
}

template <class T, int kUp, int kDown, int kTaps>
constexpr auto plainLoop = [](const T* src, T* dst, int n) {
  static const plain::Ratio ratio(kUp, kDown, countOf<kTaps>());
  static const auto lists = ratio.lists(taps<T>(kTaps));
  static plain::History<T> history(static_cast<size_t>(ratio.taps));
  const int groups = groupsOf<kUp, kDown>(n);
  plain::polyphase(history.with(src, groups * kDown), lists.data(), ratio, dst, groups);
  history.keep(groups * kDown);
};

template <class T, int kUp, int kDown, int kTaps>
constexpr auto liquidRates = [](const T* src, T* dst, int n) {
  static const auto h = taps<T>(kTaps);
  static int seen = -1;
  liquid::rates<T, kUp, kDown, kTaps>(h, src, dst, groupsOf<kUp, kDown>(n), seen != freshData);
  seen = freshData;
};

template <class T, int kUp, int kDown, int kTaps> void row(Suite& s, const std::string& name) {
  constexpr int kMost = std::max(kUp, kDown);
  const std::string ratio = std::to_string(kDown) + ":" + std::to_string(kUp);
  auto row = s.row(name + ", " + ratio + ", " + std::to_string(kTaps) + " taps", ours<T, kUp, kDown, kTaps>);
  constexpr double kEach = sizeof(T) == sizeof(Part<T>) ? 2 : 8;
  row.stream(kMost > 64 ? std::vector<int>{1024, 65536} : kStreamSizes);
  row.operations(kEach * kTaps / kMost).against("plain", plainLoop<T, kUp, kDown, kTaps>, Agreement::kSummed);
  if constexpr ((std::is_same_v<T, Qvx32f> || std::is_same_v<T, Qvx32fc>)&&kTaps >= 2 * kUp) {
    const auto agreement = kUp == 1 || kDown == 1 ? Agreement::kSummed : Agreement::kDiffers;
    row.against("liquid-dsp", liquidRates<T, kUp, kDown, kTaps>, agreement);
  }
}
template <class T, int kUp, int kDown> void rows(Suite& s, const std::string& name) {
  row<T, kUp, kDown, 16>(s, name);
  row<T, kUp, kDown, 64>(s, name);
  row<T, kUp, kDown, 256>(s, name);
  row<T, kUp, kDown, 2048>(s, name);
}
template <class T> void ratios(Suite& s, const std::string& name) {
  rows<T, 1, 2>(s, name);
  rows<T, 1, 4>(s, name);
  rows<T, 1, 8>(s, name);
  rows<T, 2, 1>(s, name);
  rows<T, 2, 3>(s, name);
  rows<T, 3, 2>(s, name);
  rows<T, 147, 160>(s, name);
  rows<T, 160, 147>(s, name);
}

}  // namespace

void multirate(Suite& s) {
  ratios<Qvx32f>(s, "FIRMR_32f");
  ratios<Qvx64f>(s, "FIRMR_64f");
  ratios<Qvx32fc>(s, "FIRMR_32fc");
  ratios<Qvx16s>(s, "FIRMR_16s_Sfs");
}

}  // namespace bench
