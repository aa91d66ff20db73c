// What a converter does to sines: how their level varies over the pass band, and what else it puts beside them.
#pragma once

#include <functional>
#include <vector>

#include "../support/audio.h"

using Converter = std::function<std::vector<Qvx32f>(const std::vector<Qvx32f>&)>;

struct Quality {
  double ripple;     // dB, from the least level of a sine in the pass band to the largest
  double rejection;  // dB, of the strongest line that no sine of the pass band, or one above both bands, should leave
};

// passBand: as a share of half the lower rate.
Quality measured(const Converter& convert, int from, int to, double passBand);
