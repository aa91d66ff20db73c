// Transforms of any number of reals in single precision.
#include "dft/record.h"

using namespace qvx;
using namespace qvx::dft;

namespace {

using T = Qvx32f;

template <class Record> QvxStatus initReal(Record** ppSpec, int len, int flag) {
  return initAlloc(ppSpec, len, flag, fft::Orders<T>::kReal, realWork<T>,
                   [=](auto& plan, uint32_t n) { return choose(plan, n, flag); });
}

}  // namespace

// clang-format off
QvxStatus qvxsDFTInitAlloc_R_32f(QvxsDFTSpec_R_32f** ppSpec, int len, int flag, int) { return initReal(ppSpec, len, flag); }
QvxStatus qvxsDFTFree_R_32f(QvxsDFTSpec_R_32f* spec) { return release(spec); }
QvxStatus qvxsDFTGetBufSize_R_32f(const QvxsDFTSpec_R_32f* spec, int* pSize) { return bufferSize(spec, pSize); }
QvxStatus qvxsDFTFwd_RToPerm_32f(const Qvx32f* src, Qvx32f* dst, const QvxsDFTSpec_R_32f* spec, Qvx8u* pBuffer) { return spectrumOf<SpectrumLayout::kPerm>(src, dst, spec, pBuffer); }
QvxStatus qvxsDFTFwd_RToPack_32f(const Qvx32f* src, Qvx32f* dst, const QvxsDFTSpec_R_32f* spec, Qvx8u* pBuffer) { return spectrumOf<SpectrumLayout::kPack>(src, dst, spec, pBuffer); }
QvxStatus qvxsDFTFwd_RToCCS_32f(const Qvx32f* src, Qvx32f* dst, const QvxsDFTSpec_R_32f* spec, Qvx8u* pBuffer) { return spectrumOf<SpectrumLayout::kCcs>(src, dst, spec, pBuffer); }
QvxStatus qvxsDFTInv_PermToR_32f(const Qvx32f* src, Qvx32f* dst, const QvxsDFTSpec_R_32f* spec, Qvx8u* pBuffer) { return sequenceOf<SpectrumLayout::kPerm>(src, dst, spec, pBuffer); }
QvxStatus qvxsDFTInv_PackToR_32f(const Qvx32f* src, Qvx32f* dst, const QvxsDFTSpec_R_32f* spec, Qvx8u* pBuffer) { return sequenceOf<SpectrumLayout::kPack>(src, dst, spec, pBuffer); }
QvxStatus qvxsDFTInv_CCSToR_32f(const Qvx32f* src, Qvx32f* dst, const QvxsDFTSpec_R_32f* spec, Qvx8u* pBuffer) { return sequenceOf<SpectrumLayout::kCcs>(src, dst, spec, pBuffer); }
// clang-format on
