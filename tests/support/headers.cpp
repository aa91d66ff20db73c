// The headers of all tests, which its target compiles for them, and what every test program begins with.
#include <cstdlib>

namespace {

// A sanitizer preloaded for the library is not for the programs that tests start.
[[maybe_unused]] const int preloadsNoMore = unsetenv("LD_PRELOAD");

}  // namespace
