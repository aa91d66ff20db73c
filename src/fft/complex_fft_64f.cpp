// Complex transforms in double precision: interleaved parts (64fc) and separate ones (64f).
#include "fft/record.h"

namespace qvx::transform {

using T = Qvx64f;
template void complexTransform(const ComplexPlan<T>&, Interleaved<const T, false>, Interleaved<T, false>, T*, Unscaled);
template void complexTransform(const ComplexPlan<T>&, Interleaved<const T, false>, Interleaved<T, false>, T*, ScaledBy<T>);
template void complexTransform(const ComplexPlan<T>&, Interleaved<const T, true>, Interleaved<T, true>, T*, ScaledBy<T>);

}  // namespace qvx::transform

using namespace qvx;
using namespace qvx::fft;

namespace {

using T = Qvx64f;
using Specs = QvxsFFTSpec_C_64fc;
using SplitSpecs = QvxsFFTSpec_C_64f;

constexpr int kLimit = Orders<T>::kComplex;

}  // namespace

// clang-format off
QvxStatus qvxsFFTGetSize_C_64fc(int order, int flag, int, int* pSpecSize, int* pInitSize, int* pWorkSize) { return getSize(order, flag, kLimit, pSpecSize, pInitSize, pWorkSize, complexSizes<T>); }
QvxStatus qvxsFFTInit_C_64fc(Specs** ppSpec, int order, int flag, int, Qvx8u* pSpec, Qvx8u* pInit) { return initComplex(ppSpec, order, flag, pSpec, pInit); }
QvxStatus qvxsFFTInitAlloc_C_64fc(Specs** ppSpec, int order, int flag, int hint) { return initAlloc(ppSpec, order, flag, hint, qvxsFFTGetSize_C_64fc, qvxsFFTInit_C_64fc); }
QvxStatus qvxsFFTFree_C_64fc(Specs* spec) { return release(spec); }
QvxStatus qvxsFFTGetBufSize_C_64fc(const Specs* spec, int* pSize) { return bufferSize(spec, pSize); }
QvxStatus qvxsFFTGetSize_C_64f(int order, int flag, int hint, int* pSpecSize, int* pInitSize, int* pWorkSize) { return qvxsFFTGetSize_C_64fc(order, flag, hint, pSpecSize, pInitSize, pWorkSize); }
QvxStatus qvxsFFTInit_C_64f(SplitSpecs** ppSpec, int order, int flag, int, Qvx8u* pSpec, Qvx8u* pInit) { return initComplex(ppSpec, order, flag, pSpec, pInit); }
QvxStatus qvxsFFTInitAlloc_C_64f(SplitSpecs** ppSpec, int order, int flag, int hint) { return initAlloc(ppSpec, order, flag, hint, qvxsFFTGetSize_C_64f, qvxsFFTInit_C_64f); }
QvxStatus qvxsFFTFree_C_64f(SplitSpecs* spec) { return release(spec); }
QvxStatus qvxsFFTGetBufSize_C_64f(const SplitSpecs* spec, int* pSize) { return bufferSize(spec, pSize); }

QvxStatus qvxsFFTFwd_CToC_64fc(const Qvx64fc* src, Qvx64fc* dst, const Specs* spec, Qvx8u* pBuffer) { return interleavedTransform<false>(src, dst, spec, pBuffer); }
QvxStatus qvxsFFTFwd_CToC_64fc_I(Qvx64fc* d, const Specs* spec, Qvx8u* pBuffer) { return interleavedTransform<false>(d, d, spec, pBuffer); }
QvxStatus qvxsFFTInv_CToC_64fc(const Qvx64fc* src, Qvx64fc* dst, const Specs* spec, Qvx8u* pBuffer) { return interleavedTransform<true>(src, dst, spec, pBuffer); }
QvxStatus qvxsFFTInv_CToC_64fc_I(Qvx64fc* d, const Specs* spec, Qvx8u* pBuffer) { return interleavedTransform<true>(d, d, spec, pBuffer); }
QvxStatus qvxsFFTFwd_CToC_64f(const T* srcRe, const T* srcIm, T* dstRe, T* dstIm, const SplitSpecs* spec, Qvx8u* pBuffer) { return splitTransform<false>(srcRe, srcIm, dstRe, dstIm, spec, pBuffer); }
QvxStatus qvxsFFTFwd_CToC_64f_I(T* re, T* im, const SplitSpecs* spec, Qvx8u* pBuffer) { return splitTransform<false>(re, im, re, im, spec, pBuffer); }
QvxStatus qvxsFFTInv_CToC_64f(const T* srcRe, const T* srcIm, T* dstRe, T* dstIm, const SplitSpecs* spec, Qvx8u* pBuffer) { return splitTransform<true>(srcRe, srcIm, dstRe, dstIm, spec, pBuffer); }
QvxStatus qvxsFFTInv_CToC_64f_I(T* re, T* im, const SplitSpecs* spec, Qvx8u* pBuffer) { return splitTransform<true>(re, im, re, im, spec, pBuffer); }
// clang-format on
