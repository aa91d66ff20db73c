// Checks and times every case and prints the table.
#pragma once

#include <regex>

#include "frame/suite.h"

namespace bench {

// The number of pairs whose outputs differ.
int run(const Suite& suite, const std::regex& filter);

}  // namespace bench
