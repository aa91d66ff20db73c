// Transforms of real sequences in single precision.
#include "fft/record.h"

using namespace qvx;
using namespace qvx::fft;

namespace {

using T = Qvx32f;
using Specs = QvxsFFTSpec_R_32f;

constexpr int kLimit = Orders<T>::kReal;

}  // namespace

// clang-format off
QvxStatus qvxsFFTGetSize_R_32f(int order, int flag, int, int* pSpecSize, int* pInitSize, int* pWorkSize) { return getSize(order, flag, kLimit, pSpecSize, pInitSize, pWorkSize, realSizes<T>); }
QvxStatus qvxsFFTInit_R_32f(Specs** ppSpec, int order, int flag, int, Qvx8u* pSpec, Qvx8u* pInit) { return initReal(ppSpec, order, flag, pSpec, pInit); }
QvxStatus qvxsFFTInitAlloc_R_32f(Specs** ppSpec, int order, int flag, int hint) { return initAlloc(ppSpec, order, flag, hint, qvxsFFTGetSize_R_32f, qvxsFFTInit_R_32f); }
QvxStatus qvxsFFTFree_R_32f(Specs* spec) { return release(spec); }
QvxStatus qvxsFFTGetBufSize_R_32f(const Specs* spec, int* pSize) { return bufferSize(spec, pSize); }

QvxStatus qvxsFFTFwd_RToPerm_32f(const T* src, T* dst, const Specs* spec, Qvx8u* pBuffer) { return spectrumOf<SpectrumLayout::kPerm>(src, dst, spec, pBuffer); }
QvxStatus qvxsFFTFwd_RToPerm_32f_I(T* d, const Specs* spec, Qvx8u* pBuffer) { return spectrumOf<SpectrumLayout::kPerm>(d, d, spec, pBuffer); }
QvxStatus qvxsFFTFwd_RToPack_32f(const T* src, T* dst, const Specs* spec, Qvx8u* pBuffer) { return spectrumOf<SpectrumLayout::kPack>(src, dst, spec, pBuffer); }
QvxStatus qvxsFFTFwd_RToPack_32f_I(T* d, const Specs* spec, Qvx8u* pBuffer) { return spectrumOf<SpectrumLayout::kPack>(d, d, spec, pBuffer); }
QvxStatus qvxsFFTFwd_RToCCS_32f(const T* src, T* dst, const Specs* spec, Qvx8u* pBuffer) { return spectrumOf<SpectrumLayout::kCcs>(src, dst, spec, pBuffer); }
QvxStatus qvxsFFTFwd_RToCCS_32f_I(T* d, const Specs* spec, Qvx8u* pBuffer) { return spectrumOf<SpectrumLayout::kCcs>(d, d, spec, pBuffer); }
QvxStatus qvxsFFTInv_PermToR_32f(const T* src, T* dst, const Specs* spec, Qvx8u* pBuffer) { return sequenceOf<SpectrumLayout::kPerm>(src, dst, spec, pBuffer); }
QvxStatus qvxsFFTInv_PermToR_32f_I(T* d, const Specs* spec, Qvx8u* pBuffer) { return sequenceOf<SpectrumLayout::kPerm>(d, d, spec, pBuffer); }
QvxStatus qvxsFFTInv_PackToR_32f(const T* src, T* dst, const Specs* spec, Qvx8u* pBuffer) { return sequenceOf<SpectrumLayout::kPack>(src, dst, spec, pBuffer); }
QvxStatus qvxsFFTInv_PackToR_32f_I(T* d, const Specs* spec, Qvx8u* pBuffer) { return sequenceOf<SpectrumLayout::kPack>(d, d, spec, pBuffer); }
QvxStatus qvxsFFTInv_CCSToR_32f(const T* src, T* dst, const Specs* spec, Qvx8u* pBuffer) { return sequenceOf<SpectrumLayout::kCcs>(src, dst, spec, pBuffer); }
QvxStatus qvxsFFTInv_CCSToR_32f_I(T* d, const Specs* spec, Qvx8u* pBuffer) { return sequenceOf<SpectrumLayout::kCcs>(d, d, spec, pBuffer); }
// clang-format on
