// Cosine transforms in double precision.
#include "dct/record.h"

using namespace qvx;
using namespace qvx::dct;

namespace {

using T = Qvx64f;
using Fwd = QvxsDCTFwdSpec_64f;
using Inv = QvxsDCTInvSpec_64f;

}  // namespace

// clang-format off
QvxStatus qvxsDCTFwdGetSize_64f(int len, int, int* pSpecSize, int* pInitSize, int* pWorkSize) { return getSize(len, sizesOf<T>, pSpecSize, pInitSize, pWorkSize); }
QvxStatus qvxsDCTFwdInit_64f(Fwd** ppSpec, int len, int, Qvx8u* pSpec, Qvx8u* pInit) { return init(ppSpec, len, pSpec, pInit); }
QvxStatus qvxsDCTFwdInitAlloc_64f(Fwd** ppSpec, int len, int) { return initAlloc(ppSpec, len, sizesOf<T>, init<Fwd>); }
QvxStatus qvxsDCTFwdFree_64f(Fwd* spec) { return release(spec); }
QvxStatus qvxsDCTFwdGetBufSize_64f(const Fwd* spec, int* pSize) { return bufferSize(spec, pSize); }
QvxStatus qvxsDCTInvGetSize_64f(int len, int, int* pSpecSize, int* pInitSize, int* pWorkSize) { return getSize(len, sizesOf<T>, pSpecSize, pInitSize, pWorkSize); }
QvxStatus qvxsDCTInvInit_64f(Inv** ppSpec, int len, int, Qvx8u* pSpec, Qvx8u* pInit) { return init(ppSpec, len, pSpec, pInit); }
QvxStatus qvxsDCTInvInitAlloc_64f(Inv** ppSpec, int len, int) { return initAlloc(ppSpec, len, sizesOf<T>, init<Inv>); }
QvxStatus qvxsDCTInvFree_64f(Inv* spec) { return release(spec); }
QvxStatus qvxsDCTInvGetBufSize_64f(const Inv* spec, int* pSize) { return bufferSize(spec, pSize); }
QvxStatus qvxsDCTFwd_64f(const T* src, T* dst, const Fwd* spec, Qvx8u* pBuffer) { return transformed(spec, src, dst, pBuffer); }
QvxStatus qvxsDCTFwd_64f_I(T* d, const Fwd* spec, Qvx8u* pBuffer) { return transformed(spec, d, d, pBuffer); }
QvxStatus qvxsDCTInv_64f(const T* src, T* dst, const Inv* spec, Qvx8u* pBuffer) { return transformed(spec, src, dst, pBuffer); }
QvxStatus qvxsDCTInv_64f_I(T* d, const Inv* spec, Qvx8u* pBuffer) { return transformed(spec, d, d, pBuffer); }
// clang-format on
