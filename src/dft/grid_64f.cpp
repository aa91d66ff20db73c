// Transforms of two factors in double precision.
#include "transform/grid.h"

namespace qvx::transform {

template void runGrid<double>(const GridPlan<double>& plan, bool isInverse, const double* src, double* dst, double factor);

}  // namespace qvx::transform
