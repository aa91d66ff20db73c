#include "peers/vqsort.h"

#include <hwy/targets.h>
#include <qvx/qvxs.h>

#include <string>

const hwy::Sorter& vqsort::sorter() {
  static const hwy::Sorter one = [] {
    const std::string variant = qvxsGetLibVersion()->cpuTag;
    if (variant == "w3") hwy::SetSupportedTargetsForTest(HWY_AVX2);
    if (variant == "u8") hwy::SetSupportedTargetsForTest(HWY_SSSE3);
    return hwy::Sorter();
  }();
  return one;
}
