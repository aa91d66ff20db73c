// What is left of a signal after encoding and decoding: signal-to-noise ratios of both laws by input level.
#pragma once

#include <array>
#include <map>

#include "codec.h"

inline constexpr std::array<const Law*, 2> kLaws = {&kALaw, &kMuLaw};

// Energies of all signals that were added.
struct Distortion {
  int64_t blocks = 0;
  int64_t samples = 0;
  double signal = 0;
  std::array<double, 2> noise = {};  // by law

  void add(const Distortion& more);
  double levelDbfs() const;  // 0 dB is a sine that reaches full scale
  double snrDb(size_t law) const;
};

// Level rows of 5 dB by their middle in dBFS, the lowest first.
using DistortionByLevel = std::map<int, Distortion>;

// Sines of 13 levels, -60 to 0 dBFS.
DistortionByLevel distortionOfSines();

// Blocks of 20 ms, all channels together; silent ones do not count. Throws if there are no others.
DistortionByLevel distortionOf(const std::string& path);
