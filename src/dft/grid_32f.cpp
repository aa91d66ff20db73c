// Transforms of two factors in single precision.
#include "transform/grid.h"

namespace qvx::transform {

template void runGrid<float>(const GridPlan<float>& plan, bool isInverse, const float* src, float* dst, float factor);

}  // namespace qvx::transform
