// Cosine transforms in single precision.
#include "dct/record.h"

using namespace qvx;
using namespace qvx::dct;

namespace {

using T = Qvx32f;
using Fwd = QvxsDCTFwdSpec_32f;
using Inv = QvxsDCTInvSpec_32f;

}  // namespace

// clang-format off
QvxStatus qvxsDCTFwdGetSize_32f(int len, int, int* pSpecSize, int* pInitSize, int* pWorkSize) { return getSize(len, sizesOf<T>, pSpecSize, pInitSize, pWorkSize); }
QvxStatus qvxsDCTFwdInit_32f(Fwd** ppSpec, int len, int, Qvx8u* pSpec, Qvx8u* pInit) { return init(ppSpec, len, pSpec, pInit); }
QvxStatus qvxsDCTFwdInitAlloc_32f(Fwd** ppSpec, int len, int) { return initAlloc(ppSpec, len, sizesOf<T>, init<Fwd>); }
QvxStatus qvxsDCTFwdFree_32f(Fwd* spec) { return release(spec); }
QvxStatus qvxsDCTFwdGetBufSize_32f(const Fwd* spec, int* pSize) { return bufferSize(spec, pSize); }
QvxStatus qvxsDCTInvGetSize_32f(int len, int, int* pSpecSize, int* pInitSize, int* pWorkSize) { return getSize(len, sizesOf<T>, pSpecSize, pInitSize, pWorkSize); }
QvxStatus qvxsDCTInvInit_32f(Inv** ppSpec, int len, int, Qvx8u* pSpec, Qvx8u* pInit) { return init(ppSpec, len, pSpec, pInit); }
QvxStatus qvxsDCTInvInitAlloc_32f(Inv** ppSpec, int len, int) { return initAlloc(ppSpec, len, sizesOf<T>, init<Inv>); }
QvxStatus qvxsDCTInvFree_32f(Inv* spec) { return release(spec); }
QvxStatus qvxsDCTInvGetBufSize_32f(const Inv* spec, int* pSize) { return bufferSize(spec, pSize); }
QvxStatus qvxsDCTFwd_32f(const T* src, T* dst, const Fwd* spec, Qvx8u* pBuffer) { return transformed(spec, src, dst, pBuffer); }
QvxStatus qvxsDCTFwd_32f_I(T* d, const Fwd* spec, Qvx8u* pBuffer) { return transformed(spec, d, d, pBuffer); }
QvxStatus qvxsDCTInv_32f(const T* src, T* dst, const Inv* spec, Qvx8u* pBuffer) { return transformed(spec, src, dst, pBuffer); }
QvxStatus qvxsDCTInv_32f_I(T* d, const Inv* spec, Qvx8u* pBuffer) { return transformed(spec, d, d, pBuffer); }
// clang-format on
