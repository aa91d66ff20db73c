// Real transforms of any length in double precision.
#include "dft/real_plan.h"

namespace qvx::dft {

using T = double;
template Bytes choose<T>(RealPlan<T>& plan, uint32_t n, int flag);
template Bytes chooseLong<T>(RealPlan<T>& plan, uint32_t n, int flag);
template void writeTables<T>(RealPlan<T>& plan, int flag, uint8_t* block, uint8_t* work);
template void forward<T>(const RealPlan<T>& plan, SpectrumLayout layout, const T* src, T* dst, uint8_t* work);
template void inverse<T>(const RealPlan<T>& plan, SpectrumLayout layout, const T* src, T* dst, uint8_t* work);

}  // namespace qvx::dft
