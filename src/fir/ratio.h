// The arithmetic of multi-rate filters: which taps and samples an output is made of.
#pragma once

#include <numeric>

#include "frame/check.h"

namespace qvx::fir {

struct Factors {
  int up;
  int upPhase;
  int down;
  int downPhase;

  QvxStatus checkSizes(int tapsLen) const {
    if (tapsLen < 1) return qvxStatBadTapsLen;
    return up < 1 || down < 1 ? qvxStatBadMRFactor : qvxStatOk;
  }
  QvxStatus check(int tapsLen) const {
    const QvxStatus status = checkSizes(tapsLen);
    if (status != qvxStatOk) return status;
    const auto isOf = [](int phase, int factor) { return phase >= 0 && phase < factor; };
    return isOf(upPhase, up) && isOf(downPhase, down) ? qvxStatOk : qvxStatBadMRPhase;
  }
  bool isOneRate() const { return up == 1 && down == 1; }
  int delayLen(int tapsLen) const { return static_cast<int>((int64_t{tapsLen} + up - 1) / up); }
};

// For one output: the sample that its first tap meets, and that tap. The following taps, `up` places apart, meet the samples
// before.
struct Branch {
  int64_t sample;
  int64_t tap;

  static Branch of(int64_t place, int64_t up) {
    const int64_t sample = (place >= 0 ? place : place - up + 1) / up;
    return {sample, place - up * sample};
  }
  // Moves on to the next output: by `down`, or by the Branch of `down`.
  void advance(int64_t up, int64_t down) { advance(of(down, up), up); }
  void advance(const Branch& by, int64_t up) {
    sample += by.sample;
    tap += by.tap;
    if (tap >= up) tap -= up, ++sample;
  }
};

// A filter reduced to factors without a common divisor. If the factors have one, some taps meet only zeros or make only dropped
// outputs; the others are the taps of the reduced filter.
struct Ratio {
  int up;
  int down;
  int offset;  // output j meets sample i with tap down * j + offset - up * i
  int step;    // the reduced filter's tap k is the caller's tap step * k + first
  int first;
  int taps;      // of a branch
  int delayLen;  // samples that the caller's delay line has

  static Ratio of(int tapsLen, const Factors& f) {
    const int step = std::gcd(f.up, f.down);
    const int apart = f.downPhase - f.upPhase;
    const int first = ((apart % step) + step) % step;
    const int64_t reduced = tapsLen > first ? (int64_t{tapsLen} - first + step - 1) / step : 0;
    const int up = f.up / step;
    const int64_t taps = std::max<int64_t>((reduced + up - 1) / up, 1);
    return {up,
            f.down / step,
            static_cast<int>((int64_t{apart} - first) / step),
            step,
            first,
            static_cast<int>(taps),
            f.delayLen(tapsLen)};
  }
  Branch branch() const { return Branch::of(offset, up); }
  // Tap t of a branch, in the order of the samples, of the caller's taps in reverse.
  template <class T> T tapOf(const T* reversed, int64_t tapsLen, int64_t branch, int64_t t) const {
    const int64_t k = step * (branch + up * (taps - 1 - t)) + first;
    return k < tapsLen ? reversed[tapsLen - 1 - k] : T{};
  }
};

}  // namespace qvx::fir
