// Complex transforms of any length in single precision: interleaved parts (32fc) and separate ones (32f).
#include "dft/record.h"

using namespace qvx;
using namespace qvx::dft;

namespace {

using T = Qvx32f;

template <class Record> QvxStatus initComplex(Record** ppSpec, int len, int flag, bool isApart) {
  return initAlloc(ppSpec, len, flag, fft::Orders<T>::kComplex, complexWork<T>,
                   [=](auto& plan, uint32_t n) { return choose(plan, n, isApart, flag); });
}

}  // namespace

// clang-format off
QvxStatus qvxsDFTInitAlloc_C_32fc(QvxsDFTSpec_C_32fc** ppSpec, int len, int flag, int) { return initComplex(ppSpec, len, flag, false); }
QvxStatus qvxsDFTFree_C_32fc(QvxsDFTSpec_C_32fc* spec) { return release(spec); }
QvxStatus qvxsDFTGetBufSize_C_32fc(const QvxsDFTSpec_C_32fc* spec, int* pSize) { return bufferSize(spec, pSize); }
QvxStatus qvxsDFTInitAlloc_C_32f(QvxsDFTSpec_C_32f** ppSpec, int len, int flag, int) { return initComplex(ppSpec, len, flag, true); }
QvxStatus qvxsDFTFree_C_32f(QvxsDFTSpec_C_32f* spec) { return release(spec); }
QvxStatus qvxsDFTGetBufSize_C_32f(const QvxsDFTSpec_C_32f* spec, int* pSize) { return bufferSize(spec, pSize); }
QvxStatus qvxsDFTFwd_CToC_32fc(const Qvx32fc* src, Qvx32fc* dst, const QvxsDFTSpec_C_32fc* spec, Qvx8u* pBuffer) { return interleavedTransform<false>(src, dst, spec, pBuffer); }
QvxStatus qvxsDFTInv_CToC_32fc(const Qvx32fc* src, Qvx32fc* dst, const QvxsDFTSpec_C_32fc* spec, Qvx8u* pBuffer) { return interleavedTransform<true>(src, dst, spec, pBuffer); }
QvxStatus qvxsDFTFwd_CToC_32f(const Qvx32f* srcRe, const Qvx32f* srcIm, Qvx32f* dstRe, Qvx32f* dstIm, const QvxsDFTSpec_C_32f* spec, Qvx8u* pBuffer) { return splitTransform<false>(srcRe, srcIm, dstRe, dstIm, spec, pBuffer); }
QvxStatus qvxsDFTInv_CToC_32f(const Qvx32f* srcRe, const Qvx32f* srcIm, Qvx32f* dstRe, Qvx32f* dstIm, const QvxsDFTSpec_C_32f* spec, Qvx8u* pBuffer) { return splitTransform<true>(srcRe, srcIm, dstRe, dstIm, spec, pBuffer); }
// clang-format on
