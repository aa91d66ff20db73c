// Transforms of real sequences in single precision.
#include "fft/real_transform.h"

using namespace qvx;
using namespace qvx::fft;

namespace {

using T = Qvx32f;
using Specs = QvxsFFTSpec_R_32f;

constexpr int kLimit = Orders<T>::kReal;
constexpr uint32_t kId = kReal32f;

template <Layout kLayout> QvxStatus forward(const T* src, T* dst, const Specs* spec, Qvx8u* pBuffer) {
  return called<false>(spec, kId, src, dst, pBuffer,
                       [=](const Specs& record, T* y, auto fit) { forwardOf<kLayout, T>(record, src, dst, y, fit); });
}
template <Layout kLayout> QvxStatus inverse(const T* src, T* dst, const Specs* spec, Qvx8u* pBuffer) {
  return called<true>(spec, kId, src, dst, pBuffer,
                      [=](const Specs& record, T* y, auto fit) { inverseOf<kLayout, T>(record, src, dst, y, fit); });
}

}  // namespace

// clang-format off
QvxStatus qvxsFFTGetSize_R_32f(int order, int flag, int, int* pSpecSize, int* pInitSize, int* pWorkSize) { return getSize(order, flag, kLimit, pSpecSize, pInitSize, pWorkSize, realSizes<T>); }
QvxStatus qvxsFFTInit_R_32f(Specs** ppSpec, int order, int flag, int hint, Qvx8u* pSpec, Qvx8u* pInit) {
  return init<Specs, T>(ppSpec, order, flag, hint, kLimit, kId, pSpec, pInit, [order](Specs& spec, Qvx8u* tables) {
    spec.workSize = static_cast<int32_t>(realSizes<T>(order).work);
    if (order - 1 > Orders<T>::kCached && order - 1 <= Orders<T>::kThreaded) spec.threads = threadsOf();
    writeRealRoots(spec, writeRootsOf<Interleaved<T, false>>(spec, order - 1, reinterpret_cast<T*>(tables)));
  });
}
QvxStatus qvxsFFTInitAlloc_R_32f(Specs** ppSpec, int order, int flag, int hint) { return initAlloc(ppSpec, order, flag, hint, qvxsFFTGetSize_R_32f, qvxsFFTInit_R_32f); }
QvxStatus qvxsFFTFree_R_32f(Specs* spec) { return release(spec, kId); }
QvxStatus qvxsFFTGetBufSize_R_32f(const Specs* spec, int* pSize) { return bufferSize(spec, pSize, kId); }

QvxStatus qvxsFFTFwd_RToPerm_32f(const T* src, T* dst, const Specs* spec, Qvx8u* pBuffer) { return forward<Layout::kPerm>(src, dst, spec, pBuffer); }
QvxStatus qvxsFFTFwd_RToPerm_32f_I(T* d, const Specs* spec, Qvx8u* pBuffer) { return forward<Layout::kPerm>(d, d, spec, pBuffer); }
QvxStatus qvxsFFTFwd_RToPack_32f(const T* src, T* dst, const Specs* spec, Qvx8u* pBuffer) { return forward<Layout::kPack>(src, dst, spec, pBuffer); }
QvxStatus qvxsFFTFwd_RToPack_32f_I(T* d, const Specs* spec, Qvx8u* pBuffer) { return forward<Layout::kPack>(d, d, spec, pBuffer); }
QvxStatus qvxsFFTFwd_RToCCS_32f(const T* src, T* dst, const Specs* spec, Qvx8u* pBuffer) { return forward<Layout::kCcs>(src, dst, spec, pBuffer); }
QvxStatus qvxsFFTFwd_RToCCS_32f_I(T* d, const Specs* spec, Qvx8u* pBuffer) { return forward<Layout::kCcs>(d, d, spec, pBuffer); }
QvxStatus qvxsFFTInv_PermToR_32f(const T* src, T* dst, const Specs* spec, Qvx8u* pBuffer) { return inverse<Layout::kPerm>(src, dst, spec, pBuffer); }
QvxStatus qvxsFFTInv_PermToR_32f_I(T* d, const Specs* spec, Qvx8u* pBuffer) { return inverse<Layout::kPerm>(d, d, spec, pBuffer); }
QvxStatus qvxsFFTInv_PackToR_32f(const T* src, T* dst, const Specs* spec, Qvx8u* pBuffer) { return inverse<Layout::kPack>(src, dst, spec, pBuffer); }
QvxStatus qvxsFFTInv_PackToR_32f_I(T* d, const Specs* spec, Qvx8u* pBuffer) { return inverse<Layout::kPack>(d, d, spec, pBuffer); }
QvxStatus qvxsFFTInv_CCSToR_32f(const T* src, T* dst, const Specs* spec, Qvx8u* pBuffer) { return inverse<Layout::kCcs>(src, dst, spec, pBuffer); }
QvxStatus qvxsFFTInv_CCSToR_32f_I(T* d, const Specs* spec, Qvx8u* pBuffer) { return inverse<Layout::kCcs>(d, d, spec, pBuffer); }
// clang-format on
