// Complex transforms of any length in double precision: interleaved parts (64fc) and separate ones (64f).
#include "dft/record.h"

using namespace qvx;
using namespace qvx::dft;

namespace {

using T = Qvx64f;

template <class Record> QvxStatus initComplex(Record** ppSpec, int len, int flag, bool isApart) {
  return initAlloc(ppSpec, len, flag, fft::Orders<T>::kComplex, complexWork<T>,
                   [=](auto& plan, uint32_t n) { return choose(plan, n, isApart, flag); });
}

}  // namespace

// clang-format off
QvxStatus qvxsDFTInitAlloc_C_64fc(QvxsDFTSpec_C_64fc** ppSpec, int len, int flag, int) { return initComplex(ppSpec, len, flag, false); }
QvxStatus qvxsDFTFree_C_64fc(QvxsDFTSpec_C_64fc* spec) { return release(spec); }
QvxStatus qvxsDFTGetBufSize_C_64fc(const QvxsDFTSpec_C_64fc* spec, int* pSize) { return bufferSize(spec, pSize); }
QvxStatus qvxsDFTInitAlloc_C_64f(QvxsDFTSpec_C_64f** ppSpec, int len, int flag, int) { return initComplex(ppSpec, len, flag, true); }
QvxStatus qvxsDFTFree_C_64f(QvxsDFTSpec_C_64f* spec) { return release(spec); }
QvxStatus qvxsDFTGetBufSize_C_64f(const QvxsDFTSpec_C_64f* spec, int* pSize) { return bufferSize(spec, pSize); }
QvxStatus qvxsDFTFwd_CToC_64fc(const Qvx64fc* src, Qvx64fc* dst, const QvxsDFTSpec_C_64fc* spec, Qvx8u* pBuffer) { return interleavedTransform<false>(src, dst, spec, pBuffer); }
QvxStatus qvxsDFTInv_CToC_64fc(const Qvx64fc* src, Qvx64fc* dst, const QvxsDFTSpec_C_64fc* spec, Qvx8u* pBuffer) { return interleavedTransform<true>(src, dst, spec, pBuffer); }
QvxStatus qvxsDFTFwd_CToC_64f(const Qvx64f* srcRe, const Qvx64f* srcIm, Qvx64f* dstRe, Qvx64f* dstIm, const QvxsDFTSpec_C_64f* spec, Qvx8u* pBuffer) { return splitTransform<false>(srcRe, srcIm, dstRe, dstIm, spec, pBuffer); }
QvxStatus qvxsDFTInv_CToC_64f(const Qvx64f* srcRe, const Qvx64f* srcIm, Qvx64f* dstRe, Qvx64f* dstIm, const QvxsDFTSpec_C_64f* spec, Qvx8u* pBuffer) { return splitTransform<true>(srcRe, srcIm, dstRe, dstIm, spec, pBuffer); }
// clang-format on
