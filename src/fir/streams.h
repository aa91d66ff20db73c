// The records of filters that keep no samples, and filtering with them.
#pragma once

#include "fir/contents.h"
#include "fir/ratio.h"

namespace qvx::fir {

// The caller's taps as lists, one for each tap that may be the first of an output: that tap and those `up` places apart after it,
// in the order of the samples that they meet.
template <class H> struct TapLists {
  const H* taps;
  int64_t tapsLen;
  int64_t up;

  struct List {
    const H* taps;
    int64_t count;
  };
  List of(int64_t first) const {
    if (first >= tapsLen) return {taps, 0};
    const int64_t whole = tapsLen / up;
    return {taps + first * whole + std::min(first, tapsLen % up), whole + (first < tapsLen % up ? 1 : 0)};
  }
  void set(const H* from, H* to) const {
    for (int64_t first = 0; first < std::min(up, tapsLen); ++first) {
      for (int64_t k = of(first).count; k-- > 0;) *to++ = from[first + k * up];
    }
  }
};

// x: the first sample of the call, preceded by `before` samples; earlier ones are not read. put(j, y) takes the outputs in turn.
template <class H, class T, class Sum, class Put>
void forEachOutput(const TapLists<H>& lists, const Factors& f, const T* x, int64_t before, int64_t outputs, Sum sum, Put put) {
  Branch branch = Branch::of(int64_t{f.downPhase} - f.upPhase, f.up);
  for (int64_t j = 0; j < outputs; ++j, branch.advance(f.up, f.down)) {
    const auto list = lists.of(branch.tap);
    const int64_t first = branch.sample - list.count + 1;
    const int64_t missing = std::clamp<int64_t>(-before - first, 0, list.count);
    put(j, sum(x + first + missing, list.taps + missing, list.count - missing));
  }
}

template <class T> struct StreamRecord : RecordHead {
  int tapsLen;
  Factors factors;
  int tapsFactor;
  QvxRoundMode roundMode;
  T* taps;  // in lists

  TapLists<T> lists() const { return {taps, tapsLen, factors.up}; }
};

template <class S> inline constexpr uint32_t kStreamId = 0;
template <> inline constexpr uint32_t kStreamId<QvxsFIRState_32f> = identity(33);
template <> inline constexpr uint32_t kStreamId<QvxsFIRState_16s> = identity(31);
template <class S> inline constexpr uint32_t kMultirateStreamId = kStreamId<S> + 1;

template <class S> inline constexpr bool kHasStreams = kStreamId<S> != 0;
template <class S> bool isStream(const S* state) {
  return kHasStreams<S> && (state->magic == kStreamId<S> || state->magic == kMultirateStreamId<S>);
}
template <class S> const StreamRecord<typename S::Sample>& asStream(const S* state) {
  return *reinterpret_cast<const StreamRecord<typename S::Sample>*>(state);
}

// src: tapsLen - 1 samples before the first, of a multi-rate record a branch's less one; it may be dst.
QvxStatus filterStream(const StreamRecord<Qvx32f>& record, const Qvx32f* src, Qvx32f* dst, int numIters, int scaleFactor);
QvxStatus filterStream(const StreamRecord<Qvx16s>& record, const Qvx16s* src, Qvx16s* dst, int numIters, int scaleFactor);

}  // namespace qvx::fir
