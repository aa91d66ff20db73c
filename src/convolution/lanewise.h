// Neighbouring outputs of which each needs its own samples and taps, as with a ratio like 160 to 147: a vector of samples is
// loaded for all of them, and each lane picks its own. Nothing has to be dealt among rows or joined again, at the price of a
// permutation for each multiplication.
#pragma once

#include "convolution/convolve.h"

namespace qvx::convolution {

// The outputs from `output` of a period on: as many as a register has lanes, or as find their samples in one register.
struct LaneGroup {
  int output;
  int count;
  int sample;  // that the first tap of its first output meets, after the first of the period
};

// A lane's place, of the size of its element.
template <class C> using LanePlace = std::conditional_t<sizeof(C) <= 4, int32_t, int64_t>;

template <class C> struct Lanewise {
  static constexpr bool kIsFloat = std::is_floating_point_v<Part<C>>;
  using Tap = std::conditional_t<kIsFloat, Part<C>, Qvx16sc>;
  static constexpr int kLanes = static_cast<int>(kVectorBytes / std::max<size_t>(sizeof(C), 4));
  // From two lanes on: 160:147 in SSSE3 takes 0.35 to 0.6 of the time that rows take.
  static constexpr bool kPays = kLanes >= 2 && sizeof(C) <= 8 && (kIsFloat || sizeof(C) == 2);
  // Elements of a group's table for each step: a tap of floats, of which a complex one is a vector of real parts, each twice, and
  // one of imaginary parts; a pair of integers.
  static constexpr int kEach = kLanes * (kIsFloat ? PartsOf<C>::kCount * PartsOf<C>::kCount : 1);
  static constexpr int steps(int taps) { return kIsFloat ? taps : (taps + 1) / 2; }

  const LaneGroup* groups;
  int groupCount;
  const LanePlace<C>* order;  // kLanes for each group: the place of each lane's first sample after the group's
  const Tap* taps;            // kEach for each step of each group
  int stepCount;
  int up;
  int down;
};

// y: periods * up outputs. x: the first sample of the first period; a vector may be read past the last that is needed.
void convolve(const Lanewise<Qvx32f>& filter, const Qvx32f* x, size_t periods, Qvx32f* y);
void convolve(const Lanewise<Qvx64f>& filter, const Qvx64f* x, size_t periods, Qvx64f* y);
void convolve(const Lanewise<Qvx32fc>& filter, const Qvx32fc* x, size_t periods, Qvx32fc* y);
// Integers as those of convolve.h, of which no more than kMostPaired samples are needed. Two vectors may be read past the last.
inline constexpr int kMostPaired = 2048;
void convolve(const Lanewise<Qvx16s>& filter, const Qvx16s* x, size_t periods, Qvx16s* y, int64_t places);

}  // namespace qvx::convolution
