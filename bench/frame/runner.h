// Checks and times every case.
#pragma once

#include <regex>

#include "frame/report.h"
#include "frame/suite.h"

namespace bench {

// How often a cell is measured, and again where a peer looks faster. The minimum counts: what another process takes away only
// ever adds.
struct Effort {
  double seconds;
  int repetitions;
  int looks;  // two once gave 0.54 where a quiet machine gives 0.99
};
inline constexpr Effort kThorough = {0.008, 5, 3};
inline constexpr Effort kBrief = {0.003, 4, 2};

// The number of pairs whose outputs differ.
int run(const Suite& suite, const std::regex& filter, Report& report, const Effort& effort = kThorough);

}  // namespace bench
