// Filters without a record: what the caller keeps for them, and its tests.
#pragma once

#include "fir/filter.h"

namespace qvx::fir {

// The taps in reverse, for the time of a call.
template <class H> class Reversed {
 public:
  Reversed(const H* taps, int n) : block_(n > kLocal ? n * int64_t{sizeof(H)} : 0) {
    if (n > kLocal) p_ = reinterpret_cast<H*>(block_.get());
    if (p_ != nullptr) copyReversed(taps, static_cast<size_t>(n), p_);
  }
  bool isMissing() const { return p_ == nullptr; }
  const H* get() const { return p_; }

 private:
  static constexpr int kLocal = 64;
  H local_[kLocal];
  Block block_;
  H* p_ = local_;
};

inline QvxStatus checkIndex(int tapsLen, const int* index) {
  return *index < 0 || *index >= tapsLen ? qvxStatBadDlyIndex : qvxStatOk;
}

// All pointers, the length, the taps, the index.
template <class H, class T> struct Stateless {
  const H* taps;
  int tapsLen;
  T* delay;
  int* index;

  template <class... V> QvxStatus check(int numIters, const V*... vectors) const {
    const QvxStatus status = qvx::check(numIters, vectors..., taps, delay, index);
    if (status != qvxStatOk) return status;
    return tapsLen < 1 ? qvxStatBadTapsLen : checkIndex(tapsLen, index);
  }

  // dst[i] = sum(window, reversed taps). A source may be the destination.
  template <class Sum> QvxStatus forEachSample(const T* src, T* dst, int numIters, Sum sum) const {
    QvxStatus status = check(numIters, src, dst);
    if (status != qvxStatOk) return status;
    const Reversed<H> reversed(taps, tapsLen);
    if (reversed.isMissing()) return qvxStatNoMem;
    DelayLine<T> line = {delay, *index};
    for (int i = 0; i < numIters; ++i) dst[i] = sum(line.push(src[i], tapsLen), reversed.get());
    *index = line.index;
    return qvxStatOk;
  }
};

// ---- float sums as integers

// Saturated, rounded half away from zero by adding a half. NaN becomes the upper limit.
template <class T, class F> T rounded(F v) {
  if constexpr (std::is_floating_point_v<T>) {
    return static_cast<T>(v);
  } else {
    constexpr auto kMost = static_cast<F>(std::numeric_limits<T>::max());
    constexpr auto kLeast = static_cast<F>(std::numeric_limits<T>::min());
    if (!(v < kMost)) return std::numeric_limits<T>::max();
    if (v <= kLeast) return std::numeric_limits<T>::min();
    return static_cast<T>(v + std::copysign(F(0.5), v));
  }
}

// Kept finite: the largest power saturates any sum but 0, which stays 0.
template <class F> F unitOf(int scaleFactor) {
  constexpr int kMost = std::numeric_limits<F>::max_exponent - 1;
  return powerOfTwo<F>(std::min(-int64_t{scaleFactor}, int64_t{kMost}));
}

}  // namespace qvx::fir
