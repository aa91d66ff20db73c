// Level, frequency and distortion of a recording.
#pragma once

#include <string>
#include <vector>

#include "windows.h"

struct Measured {
  double rms;                     // dBFS
  double peak;                    // dBFS
  bool isTonal;                   // one component has at least half of the power
  double frequency;               // of that component, Hz
  double distortion;              // its harmonics beside it, dB
  double noise;                   // all but it beside it, dB
  std::vector<double> harmonics;  // from the second on, each beside it, dB
};

// Of the first channel: the longest power of two of samples that the file has, 2^18 at most.
Measured measure(const std::string& path, const Window& window);
