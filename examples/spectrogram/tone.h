// The frequency and the level of a tone from moment to moment, by its analytic signal.
#pragma once

#include "windows.h"

struct Moment {
  double time;
  double hz;
  double dbfs;  // 0 is a sine of full scale
};

// One for each window: of its middle, where the window weighs most.
std::vector<Moment> momentsOf(Windows& windows);
