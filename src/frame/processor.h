// What kernels choose by, of the processor at hand.
#pragma once

namespace qvx {

// Whether dividing is faster than any way around it: 16 quotients of floats take 0.6 ns, 8 roots of doubles 1.9, on another
// processor 2.6 and 6.3. Set as the library is loaded.
[[gnu::visibility("hidden")]] extern const bool kDividesFast;

}  // namespace qvx
