// The multi-rate functions beside those of one rate of the same types.
#pragma once

#include "fir/pairs.h"
#include "support/blocks.h"

namespace tests {

struct Factors {
  int up;
  int upPhase;
  int down;
  int downPhase;

  int delayLen(int tapsLen) const { return (tapsLen + up - 1) / up; }
};

template <class Init, class Alloc, class Direct, class InPlace> struct Multirate {
  QvxStatus (*getSize)(int, int, int, int*);
  Init init;
  Alloc alloc;
  Direct direct;  // null: none of its own
  InPlace inPlace;

  int size(int tapsLen, const Factors& f) const {
    int bytes = -1;
    EXPECT_EQ(getSize(tapsLen, f.up, f.down, &bytes), qvxStatOk);
    return bytes;
  }
  template <class State, class H, class T>
  State* build(const std::vector<H>& h, int factor, const Factors& f, const T* line, uint8_t* memory) const {
    State* state = nullptr;
    const int n = static_cast<int>(h.size());
    if constexpr (std::is_invocable_v<Init, State**, const H*, int, int, int, int, int, int, const T*, uint8_t*>)
      EXPECT_EQ(init(&state, h.data(), n, factor, f.up, f.upPhase, f.down, f.downPhase, line, memory), qvxStatOk);
    else EXPECT_EQ(init(&state, h.data(), n, f.up, f.upPhase, f.down, f.downPhase, line, memory), qvxStatOk);
    return state;
  }
};
template <class... F> Multirate(QvxStatus (*)(int, int, int, int*), F...) -> Multirate<F...>;

// clang-format off
inline auto multirateOf(QvxsFIRState_32f*, Qvx32f*) { return Multirate{qvxsFIRMRGetStateSize_32f, qvxsFIRMRInit_32f, qvxsFIRMRInitAlloc_32f, qvxsFIRMR_Direct_32f, qvxsFIRMR_Direct_32f_I}; }
inline auto multirateOf(QvxsFIRState_32fc*, Qvx32fc*) { return Multirate{qvxsFIRMRGetStateSize_32fc, qvxsFIRMRInit_32fc, qvxsFIRMRInitAlloc_32fc, qvxsFIRMR_Direct_32fc, qvxsFIRMR_Direct_32fc_I}; }
inline auto multirateOf(QvxsFIRState32f_16s*, Qvx32f*) { return Multirate{qvxsFIRMRGetStateSize32f_16s, qvxsFIRMRInit32f_16s, qvxsFIRMRInitAlloc32f_16s, qvxsFIRMR32f_Direct_16s_Sfs, qvxsFIRMR32f_Direct_16s_ISfs}; }
inline auto multirateOf(QvxsFIRState32fc_16sc*, Qvx32fc*) { return Multirate{qvxsFIRMRGetStateSize32fc_16sc, qvxsFIRMRInit32fc_16sc, qvxsFIRMRInitAlloc32fc_16sc, qvxsFIRMR32fc_Direct_16sc_Sfs, qvxsFIRMR32fc_Direct_16sc_ISfs}; }
inline auto multirateOf(QvxsFIRState_64f*, Qvx64f*) { return Multirate{qvxsFIRMRGetStateSize_64f, qvxsFIRMRInit_64f, qvxsFIRMRInitAlloc_64f, qvxsFIRMR_Direct_64f, qvxsFIRMR_Direct_64f_I}; }
inline auto multirateOf(QvxsFIRState_64fc*, Qvx64fc*) { return Multirate{qvxsFIRMRGetStateSize_64fc, qvxsFIRMRInit_64fc, qvxsFIRMRInitAlloc_64fc, qvxsFIRMR_Direct_64fc, qvxsFIRMR_Direct_64fc_I}; }
inline auto multirateOf(QvxsFIRState64f_32f*, Qvx64f*) { return Multirate{qvxsFIRMRGetStateSize64f_32f, qvxsFIRMRInit64f_32f, qvxsFIRMRInitAlloc64f_32f, qvxsFIRMR64f_Direct_32f, qvxsFIRMR64f_Direct_32f_I}; }
inline auto multirateOf(QvxsFIRState64fc_32fc*, Qvx64fc*) { return Multirate{qvxsFIRMRGetStateSize64fc_32fc, qvxsFIRMRInit64fc_32fc, qvxsFIRMRInitAlloc64fc_32fc, qvxsFIRMR64fc_Direct_32fc, qvxsFIRMR64fc_Direct_32fc_I}; }
inline auto multirateOf(QvxsFIRState64f_32s*, Qvx64f*) { return Multirate{qvxsFIRMRGetStateSize64f_32s, qvxsFIRMRInit64f_32s, qvxsFIRMRInitAlloc64f_32s, qvxsFIRMR64f_Direct_32s_Sfs, qvxsFIRMR64f_Direct_32s_ISfs}; }
inline auto multirateOf(QvxsFIRState64fc_32sc*, Qvx64fc*) { return Multirate{qvxsFIRMRGetStateSize64fc_32sc, qvxsFIRMRInit64fc_32sc, qvxsFIRMRInitAlloc64fc_32sc, qvxsFIRMR64fc_Direct_32sc_Sfs, qvxsFIRMR64fc_Direct_32sc_ISfs}; }
inline auto multirateOf(QvxsFIRState64f_16s*, Qvx64f*) { return Multirate{qvxsFIRMRGetStateSize64f_16s, qvxsFIRMRInit64f_16s, qvxsFIRMRInitAlloc64f_16s, qvxsFIRMR64f_Direct_16s_Sfs, qvxsFIRMR64f_Direct_16s_ISfs}; }
inline auto multirateOf(QvxsFIRState64fc_16sc*, Qvx64fc*) { return Multirate{qvxsFIRMRGetStateSize64fc_16sc, qvxsFIRMRInit64fc_16sc, qvxsFIRMRInitAlloc64fc_16sc, qvxsFIRMR64fc_Direct_16sc_Sfs, qvxsFIRMR64fc_Direct_16sc_ISfs}; }
inline auto multirateOf(QvxsFIRState32s_16s*, Qvx32s*) { return Multirate{qvxsFIRMRGetStateSize32s_16s, qvxsFIRMRInit32s_16s, qvxsFIRMRInitAlloc32s_16s, qvxsFIRMR32s_Direct_16s_Sfs, qvxsFIRMR32s_Direct_16s_ISfs}; }
inline auto multirateOf(QvxsFIRState32sc_16sc*, Qvx32sc*) { return Multirate{qvxsFIRMRGetStateSize32sc_16sc, qvxsFIRMRInit32sc_16sc, qvxsFIRMRInitAlloc32sc_16sc, qvxsFIRMR32sc_Direct_16sc_Sfs, qvxsFIRMR32sc_Direct_16sc_ISfs}; }
inline auto multirateOf(QvxsFIRState_16s*, Qvx16s*) { return Multirate{qvxsFIRMRGetStateSize_16s, qvxsFIRMRInit_16s, qvxsFIRMRInitAlloc_16s, qvxsFIRMR_Direct_16s_Sfs, qvxsFIRMR_Direct_16s_ISfs}; }
inline auto multirateOf(QvxsFIRState32s_16s*, Qvx32f*) { return Multirate{qvxsFIRMRGetStateSize32s_16s32f, qvxsFIRMRInit32s_16s32f, qvxsFIRMRInitAlloc32s_16s32f, nullptr, nullptr}; }
inline auto multirateOf(QvxsFIRState32sc_16sc*, Qvx32fc*) { return Multirate{qvxsFIRMRGetStateSize32sc_16sc32fc, qvxsFIRMRInit32sc_16sc32fc, qvxsFIRMRInitAlloc32sc_16sc32fc, nullptr, nullptr}; }
// clang-format on

// with(pair, multirate) for all pairs of types that have several rates.
template <class With> void forEachMultirate(With with) {
  forEachPair([&](const auto& pair) {
    using P = std::remove_cvref_t<decltype(pair)>;
    if constexpr (!(std::is_same_v<typename P::State, QvxsFIRState64f_32s> && std::is_same_v<typename P::Taps, Qvx32s>)) {
      with(pair, multirateOf(static_cast<typename P::State*>(nullptr), static_cast<typename P::Taps*>(nullptr)));
    }
  });
}

// The signal that the taps meet: zeros between the samples, each of which stands at its place among them.
template <class T> class Upsampled {
 public:
  // newestFirst: what a caller keeps; taps as many as are looked back at, at most.
  Upsampled(const Factors& f, const std::vector<T>& newestFirst, size_t taps)
      : f_(f), all_(taps), start_(taps + newestFirst.size() * static_cast<size_t>(f.up)) {
    for (size_t i = newestFirst.size(); i-- > 0;) append(newestFirst[i]);
  }
  void append(T x) {
    all_.resize(all_.size() + static_cast<size_t>(f_.up));
    all_[all_.size() - static_cast<size_t>(f_.up - f_.upPhase)] = x;
  }
  // Where output j of the whole stream is taken.
  const T* at(size_t j) const {
    return all_.data() + start_ + j * static_cast<size_t>(f_.down) + static_cast<size_t>(f_.downPhase);
  }

 private:
  Factors f_;
  std::vector<T> all_;
  size_t start_;
};

struct Case {
  int tapsLen;
  Factors factors;
};

// Common ratios with few taps and many; factors with a common divisor, after which taps are left, or none; more zeros than taps;
// a period that is longer than what samples are converted in.
inline std::vector<Case> cases(Random& random, size_t drawn) {
  std::vector<Case> all = {
      {1, {1, 0, 2, 1}},        {1, {5, 4, 3, 0}},         {3, {1, 0, 2, 0}},    {7, {1, 0, 2, 1}},    {3, {2, 1, 2, 0}},
      {6, {2, 0, 5, 4}},        {64, {2, 1, 1, 0}},        {65, {1, 0, 4, 3}},   {33, {1, 0, 8, 2}},   {48, {3, 2, 2, 0}},
      {50, {2, 0, 3, 2}},       {40, {6, 5, 4, 1}},        {2, {8, 7, 12, 2}},   {2, {4, 0, 4, 3}},    {30, {4, 3, 4, 0}},
      {300, {1, 0, 3, 1}},      {257, {2, 1, 1, 0}},       {20, {37, 36, 1, 0}}, {90, {1, 0, 41, 40}}, {320, {16, 3, 15, 14}},
      {20, {160, 7, 147, 3}},   {700, {147, 0, 160, 159}}, {900, {2, 1, 1, 0}},  {700, {1, 0, 2, 1}},  {1100, {2, 1, 3, 2}},
      {90, {1, 0, 1100, 1099}},
  };
  const auto below = [&](int most) { return static_cast<int>(random() % static_cast<uint64_t>(most)); };
  for (size_t i = 0; i < drawn; ++i) {
    const int up = 1 + below(9);
    const int down = 1 + below(9);
    all.push_back({1 + below(i % 4 == 0 ? 300 : 40), {up, below(up), down, below(down)}});
  }
  return all;
}

inline std::string describe(const char* name, const Case& c) {
  const Factors& f = c.factors;
  const auto text = [](int i) { return std::to_string(i); };
  return std::string(name) + ", taps " + text(c.tapsLen) + ", up " + text(f.up) + " (" + text(f.upPhase) + "), down " +
         text(f.down) + " (" + text(f.downPhase) + "), seed " + std::to_string(seed());
}

template <class T> long double rootMeanSquare(const std::vector<T>& x) {
  long double sum = 0;
  for (const T v : x) sum += std::norm(exact(v));
  return std::sqrt(sum / static_cast<long double>(x.size()));
}

// Samples and outputs between unreadable pages.
template <class T> struct Vectors {
  Block input{1 << 20};
  Block output{1 << 20};
  T* src = nullptr;
  T* dst = nullptr;

  void place(const std::vector<T>& x, size_t outputs, bool inPlace) {
    const size_t bytes = x.size() * sizeof(T);
    src = reinterpret_cast<T*>(input.atEnd(bytes));
    std::memcpy(static_cast<void*>(src), x.data(), bytes);
    dst = reinterpret_cast<T*>(output.atEnd((inPlace ? std::max(x.size(), outputs) : outputs) * sizeof(T)));
    if (inPlace) std::memcpy(static_cast<void*>(dst), x.data(), bytes);
  }
  bool areIntact(const std::vector<T>& x) const {
    return input.isIntact() && output.isIntact() && std::memcmp(src, x.data(), x.size() * sizeof(T)) == 0;
  }
};

}  // namespace tests
