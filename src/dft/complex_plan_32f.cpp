// Complex transforms of any length in single precision.
#include "dft/complex_plan.h"

namespace qvx::dft {

using T = float;
template Factors<T> factorsOf<T>(uint32_t n, int flag);
template Bytes choose<T>(ComplexPlan<T>& plan, uint32_t n, bool isApart, int flag);
template void writeTables<T>(ComplexPlan<T>& plan, int flag, uint8_t* block, uint8_t* work);
template void run<T>(const ComplexPlan<T>& plan, bool isInverse, const T* src, T* dst, uint8_t* work);
template QvxStatus runSmall<T>(const ComplexPlan<T>& plan, bool isInverse, const T* src, T* dst);
template void run<T>(const ComplexPlan<T>& plan, bool isInverse, const T* srcRe, const T* srcIm, T* dstRe, T* dstIm,
                     uint8_t* work);
template void spectrumByChirp<T>(const ComplexPlan<T>& plan, const T* src, T* dst, T factor, uint8_t* work);

}  // namespace qvx::dft
