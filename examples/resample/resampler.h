// Conversion between any two sampling rates: one multi-rate filter a channel, its taps a windowed sinc.
#pragma once

#include <vector>

#include "../support/audio.h"

// What a filter is designed for.
struct Level {
  int rejection;    // of images and aliases, in dB
  double passBand;  // up to this share of half the lower rate
  bool isWide;      // sums in double precision: single ones leave noise at 145 dB below full scale
};
inline constexpr Level kLevels[] = {{60, 0.80, false}, {100, 0.90, false}, {140, 0.91, true}};
const Level& levelOf(int rejection);

// The ratio of two rates in lowest terms, and the taps for it.
struct Design {
  int from;
  int to;
  int up;
  int down;
  double passEdge;  // in Hz
  double stopEdge;  // half the lower rate
  std::vector<Qvx64f> taps;

  Design(int fromRate, int toRate, const Level& level);
  int delay() const { return static_cast<int>(taps.size() / 2) / down; }  // in outputs, of which it is a whole number
};

struct ReleaseState {
  void operator()(QvxsFIRState_32f* state) const { qvxsFIRFree_32f(state); }
  void operator()(QvxsFIRState64f_32f* state) const { qvxsFIRFree64f_32f(state); }
};

// One channel as a stream of groups: `down` samples in, `up` samples out.
class Resampler {
 public:
  Resampler(const Design& design, bool isWide);

  void convert(const Qvx32f* src, Qvx32f* dst, int groups);

 private:
  std::unique_ptr<QvxsFIRState_32f, ReleaseState> single_;
  std::unique_ptr<QvxsFIRState64f_32f, ReleaseState> wide_;
};

// A whole signal, with zeros before it and after it: sample i of the result is that of the same time.
std::vector<Qvx32f> resampled(const std::vector<Qvx32f>& signal, const Design& design, bool isWide);
