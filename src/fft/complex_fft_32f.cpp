// Complex transforms in single precision: interleaved parts (32fc) and separate ones (32f).
#include "fft/record.h"

namespace qvx::transform {

using T = Qvx32f;
template void complexTransform(const ComplexPlan<T>&, Interleaved<const T, false>, Interleaved<T, false>, T*, Unscaled);
template void complexTransform(const ComplexPlan<T>&, Interleaved<const T, false>, Interleaved<T, false>, T*, ScaledBy<T>);
template void complexTransform(const ComplexPlan<T>&, Interleaved<const T, true>, Interleaved<T, true>, T*, ScaledBy<T>);

}  // namespace qvx::transform

using namespace qvx;
using namespace qvx::fft;

namespace {

using T = Qvx32f;
using Specs = QvxsFFTSpec_C_32fc;
using SplitSpecs = QvxsFFTSpec_C_32f;

constexpr int kLimit = Orders<T>::kComplex;

}  // namespace

// clang-format off
QvxStatus qvxsFFTGetSize_C_32fc(int order, int flag, int, int* pSpecSize, int* pInitSize, int* pWorkSize) { return getSize(order, flag, kLimit, pSpecSize, pInitSize, pWorkSize, complexSizes<T>); }
QvxStatus qvxsFFTInit_C_32fc(Specs** ppSpec, int order, int flag, int, Qvx8u* pSpec, Qvx8u* pInit) { return initComplex(ppSpec, order, flag, pSpec, pInit); }
QvxStatus qvxsFFTInitAlloc_C_32fc(Specs** ppSpec, int order, int flag, int hint) { return initAlloc(ppSpec, order, flag, hint, qvxsFFTGetSize_C_32fc, qvxsFFTInit_C_32fc); }
QvxStatus qvxsFFTFree_C_32fc(Specs* spec) { return release(spec); }
QvxStatus qvxsFFTGetBufSize_C_32fc(const Specs* spec, int* pSize) { return bufferSize(spec, pSize); }
QvxStatus qvxsFFTGetSize_C_32f(int order, int flag, int hint, int* pSpecSize, int* pInitSize, int* pWorkSize) { return qvxsFFTGetSize_C_32fc(order, flag, hint, pSpecSize, pInitSize, pWorkSize); }
QvxStatus qvxsFFTInit_C_32f(SplitSpecs** ppSpec, int order, int flag, int, Qvx8u* pSpec, Qvx8u* pInit) { return initComplex(ppSpec, order, flag, pSpec, pInit); }
QvxStatus qvxsFFTInitAlloc_C_32f(SplitSpecs** ppSpec, int order, int flag, int hint) { return initAlloc(ppSpec, order, flag, hint, qvxsFFTGetSize_C_32f, qvxsFFTInit_C_32f); }
QvxStatus qvxsFFTFree_C_32f(SplitSpecs* spec) { return release(spec); }
QvxStatus qvxsFFTGetBufSize_C_32f(const SplitSpecs* spec, int* pSize) { return bufferSize(spec, pSize); }

QvxStatus qvxsFFTFwd_CToC_32fc(const Qvx32fc* src, Qvx32fc* dst, const Specs* spec, Qvx8u* pBuffer) { return interleavedTransform<false>(src, dst, spec, pBuffer); }
QvxStatus qvxsFFTFwd_CToC_32fc_I(Qvx32fc* d, const Specs* spec, Qvx8u* pBuffer) { return interleavedTransform<false>(d, d, spec, pBuffer); }
QvxStatus qvxsFFTInv_CToC_32fc(const Qvx32fc* src, Qvx32fc* dst, const Specs* spec, Qvx8u* pBuffer) { return interleavedTransform<true>(src, dst, spec, pBuffer); }
QvxStatus qvxsFFTInv_CToC_32fc_I(Qvx32fc* d, const Specs* spec, Qvx8u* pBuffer) { return interleavedTransform<true>(d, d, spec, pBuffer); }
QvxStatus qvxsFFTFwd_CToC_32f(const T* srcRe, const T* srcIm, T* dstRe, T* dstIm, const SplitSpecs* spec, Qvx8u* pBuffer) { return splitTransform<false>(srcRe, srcIm, dstRe, dstIm, spec, pBuffer); }
QvxStatus qvxsFFTFwd_CToC_32f_I(T* re, T* im, const SplitSpecs* spec, Qvx8u* pBuffer) { return splitTransform<false>(re, im, re, im, spec, pBuffer); }
QvxStatus qvxsFFTInv_CToC_32f(const T* srcRe, const T* srcIm, T* dstRe, T* dstIm, const SplitSpecs* spec, Qvx8u* pBuffer) { return splitTransform<true>(srcRe, srcIm, dstRe, dstIm, spec, pBuffer); }
QvxStatus qvxsFFTInv_CToC_32f_I(T* re, T* im, const SplitSpecs* spec, Qvx8u* pBuffer) { return splitTransform<true>(re, im, re, im, spec, pBuffer); }
// clang-format on
