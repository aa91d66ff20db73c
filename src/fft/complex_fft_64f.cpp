// Complex transforms in double precision: interleaved parts (64fc) and separate ones (64f).
#include "fft/complex_transform.h"

using namespace qvx;
using namespace qvx::fft;

namespace {

using T = Qvx64f;
using Specs = QvxsFFTSpec_C_64fc;
using SplitSpecs = QvxsFFTSpec_C_64f;

constexpr int kLimit = Orders<T>::kComplex;

template <class Order, class Record>
QvxStatus build(Record** ppSpec, int order, int flag, int hint, uint32_t id, Qvx8u* pMemory, const Qvx8u* pInitBuffer) {
  return init<Record, T>(ppSpec, order, flag, hint, kLimit, id, pMemory, pInitBuffer, [order](Record& spec, Qvx8u* tables) {
    spec.workSize = static_cast<int32_t>(complexSizes<T>(order).work);
    if (order > Orders<T>::kCached && order <= Orders<T>::kThreaded) spec.threads = threadsOf();
    writeRootsOf<Order>(spec, order, reinterpret_cast<T*>(tables));
  });
}

template <bool kInverse, class Record, class Src, class Dst>
QvxStatus transformed(const Record* spec, uint32_t id, Src src, Dst dst, Qvx8u* pBuffer) {
  return called<kInverse>(spec, id, src, dst, pBuffer, [=](const Record& record, T* y, auto fit) {
    complexTransform(record, record.order, src, dst, y, fit);
  });
}
template <bool kInverse> QvxStatus interleaved(const Qvx64fc* src, Qvx64fc* dst, const Specs* spec, Qvx8u* pBuffer) {
  return transformed<kInverse>(spec, kComplex64fc, Interleaved<const T, kInverse>{parts(src)},
                               Interleaved<T, kInverse>{parts(dst)}, pBuffer);
}
QvxStatus apart(const T* srcRe, const T* srcIm, T* dstRe, T* dstIm, const SplitSpecs* spec, Qvx8u* pBuffer) {
  return transformed<false>(spec, kComplex64f, Apart<const T>{srcRe, srcIm}, Apart<T>{dstRe, dstIm}, pBuffer);
}
// Forward with the parts exchanged, but for the factor, which is that of the direction.
QvxStatus apartInverse(const T* srcRe, const T* srcIm, T* dstRe, T* dstIm, const SplitSpecs* spec, Qvx8u* pBuffer) {
  return transformed<true>(spec, kComplex64f, Apart<const T>{srcIm, srcRe}, Apart<T>{dstIm, dstRe}, pBuffer);
}

}  // namespace

// clang-format off
QvxStatus qvxsFFTGetSize_C_64fc(int order, int flag, int, int* pSpecSize, int* pInitSize, int* pWorkSize) { return getSize(order, flag, kLimit, pSpecSize, pInitSize, pWorkSize, complexSizes<T>); }
QvxStatus qvxsFFTInit_C_64fc(Specs** ppSpec, int order, int flag, int hint, Qvx8u* pSpec, Qvx8u* pInit) { return build<Interleaved<T, false>>(ppSpec, order, flag, hint, kComplex64fc, pSpec, pInit); }
QvxStatus qvxsFFTInitAlloc_C_64fc(Specs** ppSpec, int order, int flag, int hint) { return initAlloc(ppSpec, order, flag, hint, qvxsFFTGetSize_C_64fc, qvxsFFTInit_C_64fc); }
QvxStatus qvxsFFTFree_C_64fc(Specs* spec) { return release(spec, kComplex64fc); }
QvxStatus qvxsFFTGetBufSize_C_64fc(const Specs* spec, int* pSize) { return bufferSize(spec, pSize, kComplex64fc); }
QvxStatus qvxsFFTGetSize_C_64f(int order, int flag, int hint, int* pSpecSize, int* pInitSize, int* pWorkSize) { return qvxsFFTGetSize_C_64fc(order, flag, hint, pSpecSize, pInitSize, pWorkSize); }
QvxStatus qvxsFFTInit_C_64f(SplitSpecs** ppSpec, int order, int flag, int hint, Qvx8u* pSpec, Qvx8u* pInit) { return build<Apart<T>>(ppSpec, order, flag, hint, kComplex64f, pSpec, pInit); }
QvxStatus qvxsFFTInitAlloc_C_64f(SplitSpecs** ppSpec, int order, int flag, int hint) { return initAlloc(ppSpec, order, flag, hint, qvxsFFTGetSize_C_64f, qvxsFFTInit_C_64f); }
QvxStatus qvxsFFTFree_C_64f(SplitSpecs* spec) { return release(spec, kComplex64f); }
QvxStatus qvxsFFTGetBufSize_C_64f(const SplitSpecs* spec, int* pSize) { return bufferSize(spec, pSize, kComplex64f); }

QvxStatus qvxsFFTFwd_CToC_64fc(const Qvx64fc* src, Qvx64fc* dst, const Specs* spec, Qvx8u* pBuffer) { return interleaved<false>(src, dst, spec, pBuffer); }
QvxStatus qvxsFFTFwd_CToC_64fc_I(Qvx64fc* d, const Specs* spec, Qvx8u* pBuffer) { return interleaved<false>(d, d, spec, pBuffer); }
QvxStatus qvxsFFTInv_CToC_64fc(const Qvx64fc* src, Qvx64fc* dst, const Specs* spec, Qvx8u* pBuffer) { return interleaved<true>(src, dst, spec, pBuffer); }
QvxStatus qvxsFFTInv_CToC_64fc_I(Qvx64fc* d, const Specs* spec, Qvx8u* pBuffer) { return interleaved<true>(d, d, spec, pBuffer); }
QvxStatus qvxsFFTFwd_CToC_64f(const T* srcRe, const T* srcIm, T* dstRe, T* dstIm, const SplitSpecs* spec, Qvx8u* pBuffer) { return apart(srcRe, srcIm, dstRe, dstIm, spec, pBuffer); }
QvxStatus qvxsFFTFwd_CToC_64f_I(T* re, T* im, const SplitSpecs* spec, Qvx8u* pBuffer) { return apart(re, im, re, im, spec, pBuffer); }
QvxStatus qvxsFFTInv_CToC_64f(const T* srcRe, const T* srcIm, T* dstRe, T* dstIm, const SplitSpecs* spec, Qvx8u* pBuffer) { return apartInverse(srcRe, srcIm, dstRe, dstIm, spec, pBuffer); }
QvxStatus qvxsFFTInv_CToC_64f_I(T* re, T* im, const SplitSpecs* spec, Qvx8u* pBuffer) { return apartInverse(re, im, re, im, spec, pBuffer); }
// clang-format on
