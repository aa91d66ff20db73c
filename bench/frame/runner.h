// Checks and times every case.
#pragma once

#include <regex>

#include "frame/report.h"
#include "frame/suite.h"

namespace bench {

// How often a cell is measured, and measured again where a peer looks faster. The minimum counts: other processes only ever add
// time.
struct Effort {
  double seconds;
  int repetitions;
  int looks;  // with two, one cell gave 0.54 where a quiet machine gives 0.99
};
inline constexpr Effort kThorough = {0.008, 5, 3};
inline constexpr Effort kBrief = {0.003, 4, 2};

// Returns the number of pairs whose outputs differ.
int run(const Suite& suite, const std::regex& filter, Report& report, const Effort& effort = kThorough);

}  // namespace bench
