// The rounding modes that a caller may have set.
#pragma once

#include <cfenv>

namespace tests {

inline constexpr int kRoundings[] = {FE_TONEAREST, FE_DOWNWARD, FE_UPWARD, FE_TOWARDZERO};

class CallersRounding {
 public:
  explicit CallersRounding(int mode) { std::fesetround(mode); }
  ~CallersRounding() { std::fesetround(FE_TONEAREST); }
  CallersRounding(const CallersRounding&) = delete;
};

}  // namespace tests
