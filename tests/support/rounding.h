// The caller's rounding mode, which no integer result may depend on.
#pragma once

#include <gtest/gtest.h>
#include <xmmintrin.h>

#include <cfenv>

namespace tests {

// In all four rounding modes of the caller.
template <class F> void inEveryRounding(F f) {
  for (const int mode : {FE_TONEAREST, FE_DOWNWARD, FE_UPWARD, FE_TOWARDZERO}) {
    SCOPED_TRACE("rounding " + std::to_string(mode));
    std::fesetround(mode);
    const unsigned before = _mm_getcsr() & 0xFFC0U;
    f();
    EXPECT_EQ(_mm_getcsr() & 0xFFC0U, before) << "the control word was changed";
    std::fesetround(FE_TONEAREST);
  }
}

}  // namespace tests
