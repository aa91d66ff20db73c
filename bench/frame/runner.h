// Checks and times every case.
#pragma once

#include <regex>

#include "frame/report.h"
#include "frame/suite.h"

namespace bench {

// The number of pairs whose outputs differ.
int run(const Suite& suite, const std::regex& filter, Report& report);

}  // namespace bench
