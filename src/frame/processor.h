// What kernels choose by, of the processor at hand.
#pragma once

namespace qvx {

// Whether dividing is faster than any way around it: 16 quotients of floats take 0.6 ns, 8 roots of doubles 1.9, on another
// processor 2.6 and 6.3. Set as the library is loaded.
[[gnu::visibility("hidden")]] extern const bool kDividesFast;

// Whether narrow registers fill the second-level cache faster by four stores a round: AVX2 writes 200 to 258 bytes a ns so, by
// one a round 130, the C library 170. On another processor several stores a round take up to 1.7 times as long.
[[gnu::visibility("hidden")]] extern const bool kStoresInFours;

// Whether tiles serve 2^16 complex doubles, of which source and destination are 2 MiB: they take 0.75 of the time of passes, 0.93
// in place; with a second-level cache of 1 MiB 1.14 and 1.05.
[[gnu::visibility("hidden")]] extern const bool kTilesFillFarCache;

}  // namespace qvx
