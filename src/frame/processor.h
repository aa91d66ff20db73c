// What kernels choose by, of the processor at hand.
#pragma once

namespace qvx {

// Whether dividing is faster than any way around it: 16 quotients of floats in 2.5 cycles, 8 roots of doubles in 7.5, where
// others take 16 and 32. Set as the library is loaded.
[[gnu::visibility("hidden")]] extern const bool kDividesFast;

}  // namespace qvx
