#include "frame/processor.h"

#include <cpuid.h>

namespace qvx {
namespace {

// 0 where the processor does not report it.
unsigned family() {
  unsigned version = 0, unused = 0;
  if (__get_cpuid(1, &version, &unused, &unused, &unused) == 0) return 0;
  const unsigned base = version >> 8 & 15;
  return base == 15 ? base + (version >> 20 & 255) : base;
}

}  // namespace

// By the family, as that also holds for processors to come; those below 23 with AVX-512 are 6, 18 and 19.
const bool kDividesFast = family() >= 23;

// Measured on one of family 26.
const bool kStoresInFours = family() >= 26;
const bool kTilesFillFarCache = family() < 26;

}  // namespace qvx
