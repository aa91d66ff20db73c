// All functions with a record, and those that return no status, with the arguments they have in C, as overloads.
// Written by tools/cpp_face.py from the C headers and traits/: change those and run it.
// clang-format off
#ifndef QVX_QVXS_HANDLES_HPP
#define QVX_QVXS_HANDLES_HPP

#include <qvx/qvxs_vectors.hpp>

namespace qvx::handles {

// qvxs_support.h: Allocates an uninitialised vector of len elements, 64-byte aligned, to be released with qvxsFree.
inline Qvx8u* Malloc(Types<Qvx8u>, int len) { return qvxsMalloc_8u(len); }
inline Qvx16u* Malloc(Types<Qvx16u>, int len) { return qvxsMalloc_16u(len); }
inline Qvx32u* Malloc(Types<Qvx32u>, int len) { return qvxsMalloc_32u(len); }
inline Qvx8s* Malloc(Types<Qvx8s>, int len) { return qvxsMalloc_8s(len); }
inline Qvx16s* Malloc(Types<Qvx16s>, int len) { return qvxsMalloc_16s(len); }
inline Qvx32s* Malloc(Types<Qvx32s>, int len) { return qvxsMalloc_32s(len); }
inline Qvx64s* Malloc(Types<Qvx64s>, int len) { return qvxsMalloc_64s(len); }
inline Qvx32f* Malloc(Types<Qvx32f>, int len) { return qvxsMalloc_32f(len); }
inline Qvx64f* Malloc(Types<Qvx64f>, int len) { return qvxsMalloc_64f(len); }
inline Qvx8sc* Malloc(Types<Qvx8sc>, int len) { return qvxsMalloc_8sc(len); }
inline Qvx16sc* Malloc(Types<Qvx16sc>, int len) { return qvxsMalloc_16sc(len); }
inline Qvx32sc* Malloc(Types<Qvx32sc>, int len) { return qvxsMalloc_32sc(len); }
inline Qvx64sc* Malloc(Types<Qvx64sc>, int len) { return qvxsMalloc_64sc(len); }
inline Qvx32fc* Malloc(Types<Qvx32fc>, int len) { return qvxsMalloc_32fc(len); }
inline Qvx64fc* Malloc(Types<Qvx64fc>, int len) { return qvxsMalloc_64fc(len); }

// qvxs_support.h: Releases a vector from any qvxsMalloc function. A null pointer is allowed and does nothing.
inline void Free(void* ptr) { return qvxsFree(ptr); }

// qvxs_support.h: Identity of the loaded library: a constant record, the same at every call, never to be freed.
inline const QvxLibraryVersion* GetLibVersion() { return qvxsGetLibVersion(); }

// qvxs_fft.h: A record for transforms of 2^order points: its order, factor, tables.
inline QvxStatus FFTGetSize_C(Types<Qvx32fc>, int order, int flag, int hint, int* pSpecSize, int* pInitSize, int* pWorkSize) {
    return qvxsFFTGetSize_C_32fc(order, flag, hint, pSpecSize, pInitSize, pWorkSize); }

// qvxs_fft.h: A record for transforms of 2^order points: its order, factor, tables.
inline QvxStatus FFTInit(QvxsFFTSpec_C_32fc** ppSpec, int order, int flag, int hint, Qvx8u* pSpec, Qvx8u* pInit) { return
    qvxsFFTInit_C_32fc(ppSpec, order, flag, hint, pSpec, pInit); }

// qvxs_fft.h: A record for transforms of 2^order points: its order, factor, tables.
inline QvxStatus FFTInitAlloc(QvxsFFTSpec_C_32fc** ppSpec, int order, int flag, int hint) { return qvxsFFTInitAlloc_C_32fc(ppSpec,
    order, flag, hint); }

// qvxs_fft.h: A record for transforms of 2^order points: its order, factor, tables.
inline QvxStatus FFTFree(QvxsFFTSpec_C_32fc* pSpec) { return qvxsFFTFree_C_32fc(pSpec); }

// qvxs_fft.h: A record for transforms of 2^order points: its order, factor, tables.
inline QvxStatus FFTGetBufSize(const QvxsFFTSpec_C_32fc* pSpec, int* pSize) { return qvxsFFTGetBufSize_C_32fc(pSpec, pSize); }

// qvxs_fft.h: A record for transforms of 2^order points: its order, factor, tables.
inline QvxStatus FFTGetSize_C(Types<Qvx32f>, int order, int flag, int hint, int* pSpecSize, int* pInitSize, int* pWorkSize) {
    return qvxsFFTGetSize_C_32f(order, flag, hint, pSpecSize, pInitSize, pWorkSize); }

// qvxs_fft.h: A record for transforms of 2^order points: its order, factor, tables.
inline QvxStatus FFTInit(QvxsFFTSpec_C_32f** ppSpec, int order, int flag, int hint, Qvx8u* pSpec, Qvx8u* pInit) { return
    qvxsFFTInit_C_32f(ppSpec, order, flag, hint, pSpec, pInit); }

// qvxs_fft.h: A record for transforms of 2^order points: its order, factor, tables.
inline QvxStatus FFTInitAlloc(QvxsFFTSpec_C_32f** ppSpec, int order, int flag, int hint) { return qvxsFFTInitAlloc_C_32f(ppSpec,
    order, flag, hint); }

// qvxs_fft.h: A record for transforms of 2^order points: its order, factor, tables.
inline QvxStatus FFTFree(QvxsFFTSpec_C_32f* pSpec) { return qvxsFFTFree_C_32f(pSpec); }

// qvxs_fft.h: A record for transforms of 2^order points: its order, factor, tables.
inline QvxStatus FFTGetBufSize(const QvxsFFTSpec_C_32f* pSpec, int* pSize) { return qvxsFFTGetBufSize_C_32f(pSpec, pSize); }

// qvxs_fft.h: A record for transforms of 2^order points: its order, factor, tables.
inline QvxStatus FFTGetSize_C(Types<Qvx64fc>, int order, int flag, int hint, int* pSpecSize, int* pInitSize, int* pWorkSize) {
    return qvxsFFTGetSize_C_64fc(order, flag, hint, pSpecSize, pInitSize, pWorkSize); }

// qvxs_fft.h: A record for transforms of 2^order points: its order, factor, tables.
inline QvxStatus FFTInit(QvxsFFTSpec_C_64fc** ppSpec, int order, int flag, int hint, Qvx8u* pSpec, Qvx8u* pInit) { return
    qvxsFFTInit_C_64fc(ppSpec, order, flag, hint, pSpec, pInit); }

// qvxs_fft.h: A record for transforms of 2^order points: its order, factor, tables.
inline QvxStatus FFTInitAlloc(QvxsFFTSpec_C_64fc** ppSpec, int order, int flag, int hint) { return qvxsFFTInitAlloc_C_64fc(ppSpec,
    order, flag, hint); }

// qvxs_fft.h: A record for transforms of 2^order points: its order, factor, tables.
inline QvxStatus FFTFree(QvxsFFTSpec_C_64fc* pSpec) { return qvxsFFTFree_C_64fc(pSpec); }

// qvxs_fft.h: A record for transforms of 2^order points: its order, factor, tables.
inline QvxStatus FFTGetBufSize(const QvxsFFTSpec_C_64fc* pSpec, int* pSize) { return qvxsFFTGetBufSize_C_64fc(pSpec, pSize); }

// qvxs_fft.h: A record for transforms of 2^order points: its order, factor, tables.
inline QvxStatus FFTGetSize_C(Types<Qvx64f>, int order, int flag, int hint, int* pSpecSize, int* pInitSize, int* pWorkSize) {
    return qvxsFFTGetSize_C_64f(order, flag, hint, pSpecSize, pInitSize, pWorkSize); }

// qvxs_fft.h: A record for transforms of 2^order points: its order, factor, tables.
inline QvxStatus FFTInit(QvxsFFTSpec_C_64f** ppSpec, int order, int flag, int hint, Qvx8u* pSpec, Qvx8u* pInit) { return
    qvxsFFTInit_C_64f(ppSpec, order, flag, hint, pSpec, pInit); }

// qvxs_fft.h: A record for transforms of 2^order points: its order, factor, tables.
inline QvxStatus FFTInitAlloc(QvxsFFTSpec_C_64f** ppSpec, int order, int flag, int hint) { return qvxsFFTInitAlloc_C_64f(ppSpec,
    order, flag, hint); }

// qvxs_fft.h: A record for transforms of 2^order points: its order, factor, tables.
inline QvxStatus FFTFree(QvxsFFTSpec_C_64f* pSpec) { return qvxsFFTFree_C_64f(pSpec); }

// qvxs_fft.h: A record for transforms of 2^order points: its order, factor, tables.
inline QvxStatus FFTGetBufSize(const QvxsFFTSpec_C_64f* pSpec, int* pSize) { return qvxsFFTGetBufSize_C_64f(pSpec, pSize); }

// qvxs_fft.h: The complex transform of N = 2^order points, of 32fc and 64fc with interleaved parts, of 32f and ...
inline QvxStatus FFTFwd_CToC(const Qvx32fc* pSrc, Qvx32fc* pDst, const QvxsFFTSpec_C_32fc* pSpec, Qvx8u* pBuffer) { return
    qvxsFFTFwd_CToC_32fc(pSrc, pDst, pSpec, pBuffer); }
inline QvxStatus FFTFwd_CToC(Qvx32fc* pSrcDst, const QvxsFFTSpec_C_32fc* pSpec, Qvx8u* pBuffer) { return
    qvxsFFTFwd_CToC_32fc_I(pSrcDst, pSpec, pBuffer); }

// qvxs_fft.h: The complex transform of N = 2^order points, of 32fc and 64fc with interleaved parts, of 32f and ...
inline QvxStatus FFTInv_CToC(const Qvx32fc* pSrc, Qvx32fc* pDst, const QvxsFFTSpec_C_32fc* pSpec, Qvx8u* pBuffer) { return
    qvxsFFTInv_CToC_32fc(pSrc, pDst, pSpec, pBuffer); }
inline QvxStatus FFTInv_CToC(Qvx32fc* pSrcDst, const QvxsFFTSpec_C_32fc* pSpec, Qvx8u* pBuffer) { return
    qvxsFFTInv_CToC_32fc_I(pSrcDst, pSpec, pBuffer); }

// qvxs_fft.h: The complex transform of N = 2^order points, of 32fc and 64fc with interleaved parts, of 32f and ...
inline QvxStatus FFTFwd_CToC(const Qvx32f* pSrcRe, const Qvx32f* pSrcIm, Qvx32f* pDstRe, Qvx32f* pDstIm, const QvxsFFTSpec_C_32f*
    pSpec, Qvx8u* pBuffer) { return qvxsFFTFwd_CToC_32f(pSrcRe, pSrcIm, pDstRe, pDstIm, pSpec, pBuffer); }
inline QvxStatus FFTFwd_CToC(Qvx32f* pSrcDstRe, Qvx32f* pSrcDstIm, const QvxsFFTSpec_C_32f* pSpec, Qvx8u* pBuffer) { return
    qvxsFFTFwd_CToC_32f_I(pSrcDstRe, pSrcDstIm, pSpec, pBuffer); }

// qvxs_fft.h: The complex transform of N = 2^order points, of 32fc and 64fc with interleaved parts, of 32f and ...
inline QvxStatus FFTInv_CToC(const Qvx32f* pSrcRe, const Qvx32f* pSrcIm, Qvx32f* pDstRe, Qvx32f* pDstIm, const QvxsFFTSpec_C_32f*
    pSpec, Qvx8u* pBuffer) { return qvxsFFTInv_CToC_32f(pSrcRe, pSrcIm, pDstRe, pDstIm, pSpec, pBuffer); }
inline QvxStatus FFTInv_CToC(Qvx32f* pSrcDstRe, Qvx32f* pSrcDstIm, const QvxsFFTSpec_C_32f* pSpec, Qvx8u* pBuffer) { return
    qvxsFFTInv_CToC_32f_I(pSrcDstRe, pSrcDstIm, pSpec, pBuffer); }

// qvxs_fft.h: The complex transform of N = 2^order points, of 32fc and 64fc with interleaved parts, of 32f and ...
inline QvxStatus FFTFwd_CToC(const Qvx64fc* pSrc, Qvx64fc* pDst, const QvxsFFTSpec_C_64fc* pSpec, Qvx8u* pBuffer) { return
    qvxsFFTFwd_CToC_64fc(pSrc, pDst, pSpec, pBuffer); }
inline QvxStatus FFTFwd_CToC(Qvx64fc* pSrcDst, const QvxsFFTSpec_C_64fc* pSpec, Qvx8u* pBuffer) { return
    qvxsFFTFwd_CToC_64fc_I(pSrcDst, pSpec, pBuffer); }

// qvxs_fft.h: The complex transform of N = 2^order points, of 32fc and 64fc with interleaved parts, of 32f and ...
inline QvxStatus FFTInv_CToC(const Qvx64fc* pSrc, Qvx64fc* pDst, const QvxsFFTSpec_C_64fc* pSpec, Qvx8u* pBuffer) { return
    qvxsFFTInv_CToC_64fc(pSrc, pDst, pSpec, pBuffer); }
inline QvxStatus FFTInv_CToC(Qvx64fc* pSrcDst, const QvxsFFTSpec_C_64fc* pSpec, Qvx8u* pBuffer) { return
    qvxsFFTInv_CToC_64fc_I(pSrcDst, pSpec, pBuffer); }

// qvxs_fft.h: The complex transform of N = 2^order points, of 32fc and 64fc with interleaved parts, of 32f and ...
inline QvxStatus FFTFwd_CToC(const Qvx64f* pSrcRe, const Qvx64f* pSrcIm, Qvx64f* pDstRe, Qvx64f* pDstIm, const QvxsFFTSpec_C_64f*
    pSpec, Qvx8u* pBuffer) { return qvxsFFTFwd_CToC_64f(pSrcRe, pSrcIm, pDstRe, pDstIm, pSpec, pBuffer); }
inline QvxStatus FFTFwd_CToC(Qvx64f* pSrcDstRe, Qvx64f* pSrcDstIm, const QvxsFFTSpec_C_64f* pSpec, Qvx8u* pBuffer) { return
    qvxsFFTFwd_CToC_64f_I(pSrcDstRe, pSrcDstIm, pSpec, pBuffer); }

// qvxs_fft.h: The complex transform of N = 2^order points, of 32fc and 64fc with interleaved parts, of 32f and ...
inline QvxStatus FFTInv_CToC(const Qvx64f* pSrcRe, const Qvx64f* pSrcIm, Qvx64f* pDstRe, Qvx64f* pDstIm, const QvxsFFTSpec_C_64f*
    pSpec, Qvx8u* pBuffer) { return qvxsFFTInv_CToC_64f(pSrcRe, pSrcIm, pDstRe, pDstIm, pSpec, pBuffer); }
inline QvxStatus FFTInv_CToC(Qvx64f* pSrcDstRe, Qvx64f* pSrcDstIm, const QvxsFFTSpec_C_64f* pSpec, Qvx8u* pBuffer) { return
    qvxsFFTInv_CToC_64f_I(pSrcDstRe, pSrcDstIm, pSpec, pBuffer); }

// qvxs_fft.h: Records for transforms of 2^order real numbers, as those for complex ones; order: 0 to 29 for ...
inline QvxStatus FFTGetSize_R(Types<Qvx32f>, int order, int flag, int hint, int* pSpecSize, int* pInitSize, int* pWorkSize) {
    return qvxsFFTGetSize_R_32f(order, flag, hint, pSpecSize, pInitSize, pWorkSize); }

// qvxs_fft.h: Records for transforms of 2^order real numbers, as those for complex ones; order: 0 to 29 for ...
inline QvxStatus FFTInit(QvxsFFTSpec_R_32f** ppSpec, int order, int flag, int hint, Qvx8u* pSpec, Qvx8u* pInit) { return
    qvxsFFTInit_R_32f(ppSpec, order, flag, hint, pSpec, pInit); }

// qvxs_fft.h: Records for transforms of 2^order real numbers, as those for complex ones; order: 0 to 29 for ...
inline QvxStatus FFTInitAlloc(QvxsFFTSpec_R_32f** ppSpec, int order, int flag, int hint) { return qvxsFFTInitAlloc_R_32f(ppSpec,
    order, flag, hint); }

// qvxs_fft.h: Records for transforms of 2^order real numbers, as those for complex ones; order: 0 to 29 for ...
inline QvxStatus FFTFree(QvxsFFTSpec_R_32f* pSpec) { return qvxsFFTFree_R_32f(pSpec); }

// qvxs_fft.h: Records for transforms of 2^order real numbers, as those for complex ones; order: 0 to 29 for ...
inline QvxStatus FFTGetBufSize(const QvxsFFTSpec_R_32f* pSpec, int* pSize) { return qvxsFFTGetBufSize_R_32f(pSpec, pSize); }

// qvxs_fft.h: Records for transforms of 2^order real numbers, as those for complex ones; order: 0 to 29 for ...
inline QvxStatus FFTGetSize_R(Types<Qvx64f>, int order, int flag, int hint, int* pSpecSize, int* pInitSize, int* pWorkSize) {
    return qvxsFFTGetSize_R_64f(order, flag, hint, pSpecSize, pInitSize, pWorkSize); }

// qvxs_fft.h: Records for transforms of 2^order real numbers, as those for complex ones; order: 0 to 29 for ...
inline QvxStatus FFTInit(QvxsFFTSpec_R_64f** ppSpec, int order, int flag, int hint, Qvx8u* pSpec, Qvx8u* pInit) { return
    qvxsFFTInit_R_64f(ppSpec, order, flag, hint, pSpec, pInit); }

// qvxs_fft.h: Records for transforms of 2^order real numbers, as those for complex ones; order: 0 to 29 for ...
inline QvxStatus FFTInitAlloc(QvxsFFTSpec_R_64f** ppSpec, int order, int flag, int hint) { return qvxsFFTInitAlloc_R_64f(ppSpec,
    order, flag, hint); }

// qvxs_fft.h: Records for transforms of 2^order real numbers, as those for complex ones; order: 0 to 29 for ...
inline QvxStatus FFTFree(QvxsFFTSpec_R_64f* pSpec) { return qvxsFFTFree_R_64f(pSpec); }

// qvxs_fft.h: Records for transforms of 2^order real numbers, as those for complex ones; order: 0 to 29 for ...
inline QvxStatus FFTGetBufSize(const QvxsFFTSpec_R_64f* pSpec, int* pSize) { return qvxsFFTGetBufSize_R_64f(pSpec, pSize); }

// qvxs_fft.h: The transform of N = 2^order real numbers, and back. X[k] = f * sum over n of src[n] * exp(-2 pi ...
inline QvxStatus FFTFwd_RToPerm(const Qvx32f* pSrc, Qvx32f* pDst, const QvxsFFTSpec_R_32f* pSpec, Qvx8u* pBuffer) { return
    qvxsFFTFwd_RToPerm_32f(pSrc, pDst, pSpec, pBuffer); }
inline QvxStatus FFTFwd_RToPerm(Qvx32f* pSrcDst, const QvxsFFTSpec_R_32f* pSpec, Qvx8u* pBuffer) { return
    qvxsFFTFwd_RToPerm_32f_I(pSrcDst, pSpec, pBuffer); }
inline QvxStatus FFTFwd_RToPerm(const Qvx64f* pSrc, Qvx64f* pDst, const QvxsFFTSpec_R_64f* pSpec, Qvx8u* pBuffer) { return
    qvxsFFTFwd_RToPerm_64f(pSrc, pDst, pSpec, pBuffer); }
inline QvxStatus FFTFwd_RToPerm(Qvx64f* pSrcDst, const QvxsFFTSpec_R_64f* pSpec, Qvx8u* pBuffer) { return
    qvxsFFTFwd_RToPerm_64f_I(pSrcDst, pSpec, pBuffer); }

// qvxs_fft.h: The transform of N = 2^order real numbers, and back. X[k] = f * sum over n of src[n] * exp(-2 pi ...
inline QvxStatus FFTFwd_RToPack(const Qvx32f* pSrc, Qvx32f* pDst, const QvxsFFTSpec_R_32f* pSpec, Qvx8u* pBuffer) { return
    qvxsFFTFwd_RToPack_32f(pSrc, pDst, pSpec, pBuffer); }
inline QvxStatus FFTFwd_RToPack(Qvx32f* pSrcDst, const QvxsFFTSpec_R_32f* pSpec, Qvx8u* pBuffer) { return
    qvxsFFTFwd_RToPack_32f_I(pSrcDst, pSpec, pBuffer); }
inline QvxStatus FFTFwd_RToPack(const Qvx64f* pSrc, Qvx64f* pDst, const QvxsFFTSpec_R_64f* pSpec, Qvx8u* pBuffer) { return
    qvxsFFTFwd_RToPack_64f(pSrc, pDst, pSpec, pBuffer); }
inline QvxStatus FFTFwd_RToPack(Qvx64f* pSrcDst, const QvxsFFTSpec_R_64f* pSpec, Qvx8u* pBuffer) { return
    qvxsFFTFwd_RToPack_64f_I(pSrcDst, pSpec, pBuffer); }

// qvxs_fft.h: The transform of N = 2^order real numbers, and back. X[k] = f * sum over n of src[n] * exp(-2 pi ...
inline QvxStatus FFTFwd_RToCCS(const Qvx32f* pSrc, Qvx32f* pDst, const QvxsFFTSpec_R_32f* pSpec, Qvx8u* pBuffer) { return
    qvxsFFTFwd_RToCCS_32f(pSrc, pDst, pSpec, pBuffer); }
inline QvxStatus FFTFwd_RToCCS(Qvx32f* pSrcDst, const QvxsFFTSpec_R_32f* pSpec, Qvx8u* pBuffer) { return
    qvxsFFTFwd_RToCCS_32f_I(pSrcDst, pSpec, pBuffer); }
inline QvxStatus FFTFwd_RToCCS(const Qvx64f* pSrc, Qvx64f* pDst, const QvxsFFTSpec_R_64f* pSpec, Qvx8u* pBuffer) { return
    qvxsFFTFwd_RToCCS_64f(pSrc, pDst, pSpec, pBuffer); }
inline QvxStatus FFTFwd_RToCCS(Qvx64f* pSrcDst, const QvxsFFTSpec_R_64f* pSpec, Qvx8u* pBuffer) { return
    qvxsFFTFwd_RToCCS_64f_I(pSrcDst, pSpec, pBuffer); }

// qvxs_fft.h: The transform of N = 2^order real numbers, and back. X[k] = f * sum over n of src[n] * exp(-2 pi ...
inline QvxStatus FFTInv_PermToR(const Qvx32f* pSrc, Qvx32f* pDst, const QvxsFFTSpec_R_32f* pSpec, Qvx8u* pBuffer) { return
    qvxsFFTInv_PermToR_32f(pSrc, pDst, pSpec, pBuffer); }
inline QvxStatus FFTInv_PermToR(Qvx32f* pSrcDst, const QvxsFFTSpec_R_32f* pSpec, Qvx8u* pBuffer) { return
    qvxsFFTInv_PermToR_32f_I(pSrcDst, pSpec, pBuffer); }
inline QvxStatus FFTInv_PermToR(const Qvx64f* pSrc, Qvx64f* pDst, const QvxsFFTSpec_R_64f* pSpec, Qvx8u* pBuffer) { return
    qvxsFFTInv_PermToR_64f(pSrc, pDst, pSpec, pBuffer); }
inline QvxStatus FFTInv_PermToR(Qvx64f* pSrcDst, const QvxsFFTSpec_R_64f* pSpec, Qvx8u* pBuffer) { return
    qvxsFFTInv_PermToR_64f_I(pSrcDst, pSpec, pBuffer); }

// qvxs_fft.h: The transform of N = 2^order real numbers, and back. X[k] = f * sum over n of src[n] * exp(-2 pi ...
inline QvxStatus FFTInv_PackToR(const Qvx32f* pSrc, Qvx32f* pDst, const QvxsFFTSpec_R_32f* pSpec, Qvx8u* pBuffer) { return
    qvxsFFTInv_PackToR_32f(pSrc, pDst, pSpec, pBuffer); }
inline QvxStatus FFTInv_PackToR(Qvx32f* pSrcDst, const QvxsFFTSpec_R_32f* pSpec, Qvx8u* pBuffer) { return
    qvxsFFTInv_PackToR_32f_I(pSrcDst, pSpec, pBuffer); }
inline QvxStatus FFTInv_PackToR(const Qvx64f* pSrc, Qvx64f* pDst, const QvxsFFTSpec_R_64f* pSpec, Qvx8u* pBuffer) { return
    qvxsFFTInv_PackToR_64f(pSrc, pDst, pSpec, pBuffer); }
inline QvxStatus FFTInv_PackToR(Qvx64f* pSrcDst, const QvxsFFTSpec_R_64f* pSpec, Qvx8u* pBuffer) { return
    qvxsFFTInv_PackToR_64f_I(pSrcDst, pSpec, pBuffer); }

// qvxs_fft.h: The transform of N = 2^order real numbers, and back. X[k] = f * sum over n of src[n] * exp(-2 pi ...
inline QvxStatus FFTInv_CCSToR(const Qvx32f* pSrc, Qvx32f* pDst, const QvxsFFTSpec_R_32f* pSpec, Qvx8u* pBuffer) { return
    qvxsFFTInv_CCSToR_32f(pSrc, pDst, pSpec, pBuffer); }
inline QvxStatus FFTInv_CCSToR(Qvx32f* pSrcDst, const QvxsFFTSpec_R_32f* pSpec, Qvx8u* pBuffer) { return
    qvxsFFTInv_CCSToR_32f_I(pSrcDst, pSpec, pBuffer); }
inline QvxStatus FFTInv_CCSToR(const Qvx64f* pSrc, Qvx64f* pDst, const QvxsFFTSpec_R_64f* pSpec, Qvx8u* pBuffer) { return
    qvxsFFTInv_CCSToR_64f(pSrc, pDst, pSpec, pBuffer); }
inline QvxStatus FFTInv_CCSToR(Qvx64f* pSrcDst, const QvxsFFTSpec_R_64f* pSpec, Qvx8u* pBuffer) { return
    qvxsFFTInv_CCSToR_64f_I(pSrcDst, pSpec, pBuffer); }

// qvxs_fft_integer.h: Records for transforms of integers, as those for floats (qvxs_fft.h): sizes, making, release, ...
inline QvxStatus FFTGetSize_C(Types<Qvx16sc>, int order, int flag, int hint, int* pSpecSize, int* pInitSize, int* pWorkSize) {
    return qvxsFFTGetSize_C_16sc(order, flag, hint, pSpecSize, pInitSize, pWorkSize); }

// qvxs_fft_integer.h: Records for transforms of integers, as those for floats (qvxs_fft.h): sizes, making, release, ...
inline QvxStatus FFTInit(QvxsFFTSpec_C_16sc** ppSpec, int order, int flag, int hint, Qvx8u* pSpec, Qvx8u* pInit) { return
    qvxsFFTInit_C_16sc(ppSpec, order, flag, hint, pSpec, pInit); }

// qvxs_fft_integer.h: Records for transforms of integers, as those for floats (qvxs_fft.h): sizes, making, release, ...
inline QvxStatus FFTInitAlloc(QvxsFFTSpec_C_16sc** ppSpec, int order, int flag, int hint) { return qvxsFFTInitAlloc_C_16sc(ppSpec,
    order, flag, hint); }

// qvxs_fft_integer.h: Records for transforms of integers, as those for floats (qvxs_fft.h): sizes, making, release, ...
inline QvxStatus FFTFree(QvxsFFTSpec_C_16sc* pSpec) { return qvxsFFTFree_C_16sc(pSpec); }

// qvxs_fft_integer.h: Records for transforms of integers, as those for floats (qvxs_fft.h): sizes, making, release, ...
inline QvxStatus FFTGetBufSize(const QvxsFFTSpec_C_16sc* pSpec, int* pSize) { return qvxsFFTGetBufSize_C_16sc(pSpec, pSize); }

// qvxs_fft_integer.h: Records for transforms of integers, as those for floats (qvxs_fft.h): sizes, making, release, ...
inline QvxStatus FFTGetSize_C(Types<Qvx16s>, int order, int flag, int hint, int* pSpecSize, int* pInitSize, int* pWorkSize) {
    return qvxsFFTGetSize_C_16s(order, flag, hint, pSpecSize, pInitSize, pWorkSize); }

// qvxs_fft_integer.h: Records for transforms of integers, as those for floats (qvxs_fft.h): sizes, making, release, ...
inline QvxStatus FFTInit(QvxsFFTSpec_C_16s** ppSpec, int order, int flag, int hint, Qvx8u* pSpec, Qvx8u* pInit) { return
    qvxsFFTInit_C_16s(ppSpec, order, flag, hint, pSpec, pInit); }

// qvxs_fft_integer.h: Records for transforms of integers, as those for floats (qvxs_fft.h): sizes, making, release, ...
inline QvxStatus FFTInitAlloc(QvxsFFTSpec_C_16s** ppSpec, int order, int flag, int hint) { return qvxsFFTInitAlloc_C_16s(ppSpec,
    order, flag, hint); }

// qvxs_fft_integer.h: Records for transforms of integers, as those for floats (qvxs_fft.h): sizes, making, release, ...
inline QvxStatus FFTFree(QvxsFFTSpec_C_16s* pSpec) { return qvxsFFTFree_C_16s(pSpec); }

// qvxs_fft_integer.h: Records for transforms of integers, as those for floats (qvxs_fft.h): sizes, making, release, ...
inline QvxStatus FFTGetBufSize(const QvxsFFTSpec_C_16s* pSpec, int* pSize) { return qvxsFFTGetBufSize_C_16s(pSpec, pSize); }

// qvxs_fft_integer.h: Records for transforms of integers, as those for floats (qvxs_fft.h): sizes, making, release, ...
inline QvxStatus FFTGetSize_R(Types<Qvx16s>, int order, int flag, int hint, int* pSpecSize, int* pInitSize, int* pWorkSize) {
    return qvxsFFTGetSize_R_16s(order, flag, hint, pSpecSize, pInitSize, pWorkSize); }

// qvxs_fft_integer.h: Records for transforms of integers, as those for floats (qvxs_fft.h): sizes, making, release, ...
inline QvxStatus FFTInit(QvxsFFTSpec_R_16s** ppSpec, int order, int flag, int hint, Qvx8u* pSpec, Qvx8u* pInit) { return
    qvxsFFTInit_R_16s(ppSpec, order, flag, hint, pSpec, pInit); }

// qvxs_fft_integer.h: Records for transforms of integers, as those for floats (qvxs_fft.h): sizes, making, release, ...
inline QvxStatus FFTInitAlloc(QvxsFFTSpec_R_16s** ppSpec, int order, int flag, int hint) { return qvxsFFTInitAlloc_R_16s(ppSpec,
    order, flag, hint); }

// qvxs_fft_integer.h: Records for transforms of integers, as those for floats (qvxs_fft.h): sizes, making, release, ...
inline QvxStatus FFTFree(QvxsFFTSpec_R_16s* pSpec) { return qvxsFFTFree_R_16s(pSpec); }

// qvxs_fft_integer.h: Records for transforms of integers, as those for floats (qvxs_fft.h): sizes, making, release, ...
inline QvxStatus FFTGetBufSize(const QvxsFFTSpec_R_16s* pSpec, int* pSize) { return qvxsFFTGetBufSize_R_16s(pSpec, pSize); }

// qvxs_fft_integer.h: Records for transforms of integers, as those for floats (qvxs_fft.h): sizes, making, release, ...
inline QvxStatus FFTGetSize_C(Types<Qvx32sc>, int order, int flag, int hint, int* pSpecSize, int* pInitSize, int* pWorkSize) {
    return qvxsFFTGetSize_C_32sc(order, flag, hint, pSpecSize, pInitSize, pWorkSize); }

// qvxs_fft_integer.h: Records for transforms of integers, as those for floats (qvxs_fft.h): sizes, making, release, ...
inline QvxStatus FFTInit(QvxsFFTSpec_C_32sc** ppSpec, int order, int flag, int hint, Qvx8u* pSpec, Qvx8u* pInit) { return
    qvxsFFTInit_C_32sc(ppSpec, order, flag, hint, pSpec, pInit); }

// qvxs_fft_integer.h: Records for transforms of integers, as those for floats (qvxs_fft.h): sizes, making, release, ...
inline QvxStatus FFTInitAlloc(QvxsFFTSpec_C_32sc** ppSpec, int order, int flag, int hint) { return qvxsFFTInitAlloc_C_32sc(ppSpec,
    order, flag, hint); }

// qvxs_fft_integer.h: Records for transforms of integers, as those for floats (qvxs_fft.h): sizes, making, release, ...
inline QvxStatus FFTFree(QvxsFFTSpec_C_32sc* pSpec) { return qvxsFFTFree_C_32sc(pSpec); }

// qvxs_fft_integer.h: Records for transforms of integers, as those for floats (qvxs_fft.h): sizes, making, release, ...
inline QvxStatus FFTGetBufSize(const QvxsFFTSpec_C_32sc* pSpec, int* pSize) { return qvxsFFTGetBufSize_C_32sc(pSpec, pSize); }

// qvxs_fft_integer.h: Records for transforms of integers, as those for floats (qvxs_fft.h): sizes, making, release, ...
inline QvxStatus FFTGetSize_C(Types<Qvx32s>, int order, int flag, int hint, int* pSpecSize, int* pInitSize, int* pWorkSize) {
    return qvxsFFTGetSize_C_32s(order, flag, hint, pSpecSize, pInitSize, pWorkSize); }

// qvxs_fft_integer.h: Records for transforms of integers, as those for floats (qvxs_fft.h): sizes, making, release, ...
inline QvxStatus FFTInit(QvxsFFTSpec_C_32s** ppSpec, int order, int flag, int hint, Qvx8u* pSpec, Qvx8u* pInit) { return
    qvxsFFTInit_C_32s(ppSpec, order, flag, hint, pSpec, pInit); }

// qvxs_fft_integer.h: Records for transforms of integers, as those for floats (qvxs_fft.h): sizes, making, release, ...
inline QvxStatus FFTInitAlloc(QvxsFFTSpec_C_32s** ppSpec, int order, int flag, int hint) { return qvxsFFTInitAlloc_C_32s(ppSpec,
    order, flag, hint); }

// qvxs_fft_integer.h: Records for transforms of integers, as those for floats (qvxs_fft.h): sizes, making, release, ...
inline QvxStatus FFTFree(QvxsFFTSpec_C_32s* pSpec) { return qvxsFFTFree_C_32s(pSpec); }

// qvxs_fft_integer.h: Records for transforms of integers, as those for floats (qvxs_fft.h): sizes, making, release, ...
inline QvxStatus FFTGetBufSize(const QvxsFFTSpec_C_32s* pSpec, int* pSize) { return qvxsFFTGetBufSize_C_32s(pSpec, pSize); }

// qvxs_fft_integer.h: Records for transforms of integers, as those for floats (qvxs_fft.h): sizes, making, release, ...
inline QvxStatus FFTGetSize_R(Types<Qvx32s>, int order, int flag, int hint, int* pSpecSize, int* pInitSize, int* pWorkSize) {
    return qvxsFFTGetSize_R_32s(order, flag, hint, pSpecSize, pInitSize, pWorkSize); }

// qvxs_fft_integer.h: Records for transforms of integers, as those for floats (qvxs_fft.h): sizes, making, release, ...
inline QvxStatus FFTInit(QvxsFFTSpec_R_32s** ppSpec, int order, int flag, int hint, Qvx8u* pSpec, Qvx8u* pInit) { return
    qvxsFFTInit_R_32s(ppSpec, order, flag, hint, pSpec, pInit); }

// qvxs_fft_integer.h: Records for transforms of integers, as those for floats (qvxs_fft.h): sizes, making, release, ...
inline QvxStatus FFTInitAlloc(QvxsFFTSpec_R_32s** ppSpec, int order, int flag, int hint) { return qvxsFFTInitAlloc_R_32s(ppSpec,
    order, flag, hint); }

// qvxs_fft_integer.h: Records for transforms of integers, as those for floats (qvxs_fft.h): sizes, making, release, ...
inline QvxStatus FFTFree(QvxsFFTSpec_R_32s* pSpec) { return qvxsFFTFree_R_32s(pSpec); }

// qvxs_fft_integer.h: Records for transforms of integers, as those for floats (qvxs_fft.h): sizes, making, release, ...
inline QvxStatus FFTGetBufSize(const QvxsFFTSpec_R_32s* pSpec, int* pSize) { return qvxsFFTGetBufSize_R_32s(pSpec, pSize); }

// qvxs_fft_integer.h: Records for transforms of integers, as those for floats (qvxs_fft.h): sizes, making, release, ...
inline QvxStatus FFTGetSize_R(Types<Qvx16s, Qvx32s>, int order, int flag, int hint, int* pSpecSize, int* pInitSize, int*
    pWorkSize) { return qvxsFFTGetSize_R_16s32s(order, flag, hint, pSpecSize, pInitSize, pWorkSize); }

// qvxs_fft_integer.h: Records for transforms of integers, as those for floats (qvxs_fft.h): sizes, making, release, ...
inline QvxStatus FFTInit(QvxsFFTSpec_R_16s32s** ppSpec, int order, int flag, int hint, Qvx8u* pSpec, Qvx8u* pInit) { return
    qvxsFFTInit_R_16s32s(ppSpec, order, flag, hint, pSpec, pInit); }

// qvxs_fft_integer.h: Records for transforms of integers, as those for floats (qvxs_fft.h): sizes, making, release, ...
inline QvxStatus FFTInitAlloc(QvxsFFTSpec_R_16s32s** ppSpec, int order, int flag, int hint) { return
    qvxsFFTInitAlloc_R_16s32s(ppSpec, order, flag, hint); }

// qvxs_fft_integer.h: Records for transforms of integers, as those for floats (qvxs_fft.h): sizes, making, release, ...
inline QvxStatus FFTFree(QvxsFFTSpec_R_16s32s* pSpec) { return qvxsFFTFree_R_16s32s(pSpec); }

// qvxs_fft_integer.h: Records for transforms of integers, as those for floats (qvxs_fft.h): sizes, making, release, ...
inline QvxStatus FFTGetBufSize(const QvxsFFTSpec_R_16s32s* pSpec, int* pSize) { return qvxsFFTGetBufSize_R_16s32s(pSpec, pSize); }

// qvxs_fft_integer.h: The complex transform of N = 2^order points times 2^-scaleFactor, rounded to nearest and saturated:
inline QvxStatus FFTFwd_CToC(const Qvx16sc* pSrc, Qvx16sc* pDst, const QvxsFFTSpec_C_16sc* pSpec, int scaleFactor, Qvx8u* pBuffer)
    { return qvxsFFTFwd_CToC_16sc_Sfs(pSrc, pDst, pSpec, scaleFactor, pBuffer); }
inline QvxStatus FFTFwd_CToC(Qvx16sc* pSrcDst, const QvxsFFTSpec_C_16sc* pSpec, int scaleFactor, Qvx8u* pBuffer) { return
    qvxsFFTFwd_CToC_16sc_ISfs(pSrcDst, pSpec, scaleFactor, pBuffer); }

// qvxs_fft_integer.h: The complex transform of N = 2^order points times 2^-scaleFactor, rounded to nearest and saturated:
inline QvxStatus FFTInv_CToC(const Qvx16sc* pSrc, Qvx16sc* pDst, const QvxsFFTSpec_C_16sc* pSpec, int scaleFactor, Qvx8u* pBuffer)
    { return qvxsFFTInv_CToC_16sc_Sfs(pSrc, pDst, pSpec, scaleFactor, pBuffer); }
inline QvxStatus FFTInv_CToC(Qvx16sc* pSrcDst, const QvxsFFTSpec_C_16sc* pSpec, int scaleFactor, Qvx8u* pBuffer) { return
    qvxsFFTInv_CToC_16sc_ISfs(pSrcDst, pSpec, scaleFactor, pBuffer); }

// qvxs_fft_integer.h: The complex transform of N = 2^order points times 2^-scaleFactor, rounded to nearest and saturated:
inline QvxStatus FFTFwd_CToC(const Qvx32sc* pSrc, Qvx32sc* pDst, const QvxsFFTSpec_C_32sc* pSpec, int scaleFactor, Qvx8u* pBuffer)
    { return qvxsFFTFwd_CToC_32sc_Sfs(pSrc, pDst, pSpec, scaleFactor, pBuffer); }
inline QvxStatus FFTFwd_CToC(Qvx32sc* pSrcDst, const QvxsFFTSpec_C_32sc* pSpec, int scaleFactor, Qvx8u* pBuffer) { return
    qvxsFFTFwd_CToC_32sc_ISfs(pSrcDst, pSpec, scaleFactor, pBuffer); }

// qvxs_fft_integer.h: The complex transform of N = 2^order points times 2^-scaleFactor, rounded to nearest and saturated:
inline QvxStatus FFTInv_CToC(const Qvx32sc* pSrc, Qvx32sc* pDst, const QvxsFFTSpec_C_32sc* pSpec, int scaleFactor, Qvx8u* pBuffer)
    { return qvxsFFTInv_CToC_32sc_Sfs(pSrc, pDst, pSpec, scaleFactor, pBuffer); }
inline QvxStatus FFTInv_CToC(Qvx32sc* pSrcDst, const QvxsFFTSpec_C_32sc* pSpec, int scaleFactor, Qvx8u* pBuffer) { return
    qvxsFFTInv_CToC_32sc_ISfs(pSrcDst, pSpec, scaleFactor, pBuffer); }

// qvxs_fft_integer.h: The complex transform of N = 2^order points times 2^-scaleFactor, rounded to nearest and saturated:
inline QvxStatus FFTFwd_CToC(const Qvx16s* pSrcRe, const Qvx16s* pSrcIm, Qvx16s* pDstRe, Qvx16s* pDstIm, const QvxsFFTSpec_C_16s*
    pSpec, int scaleFactor, Qvx8u* pBuffer) { return qvxsFFTFwd_CToC_16s_Sfs(pSrcRe, pSrcIm, pDstRe, pDstIm, pSpec, scaleFactor,
    pBuffer); }
inline QvxStatus FFTFwd_CToC(Qvx16s* pSrcDstRe, Qvx16s* pSrcDstIm, const QvxsFFTSpec_C_16s* pSpec, int scaleFactor, Qvx8u*
    pBuffer) { return qvxsFFTFwd_CToC_16s_ISfs(pSrcDstRe, pSrcDstIm, pSpec, scaleFactor, pBuffer); }

// qvxs_fft_integer.h: The complex transform of N = 2^order points times 2^-scaleFactor, rounded to nearest and saturated:
inline QvxStatus FFTInv_CToC(const Qvx16s* pSrcRe, const Qvx16s* pSrcIm, Qvx16s* pDstRe, Qvx16s* pDstIm, const QvxsFFTSpec_C_16s*
    pSpec, int scaleFactor, Qvx8u* pBuffer) { return qvxsFFTInv_CToC_16s_Sfs(pSrcRe, pSrcIm, pDstRe, pDstIm, pSpec, scaleFactor,
    pBuffer); }
inline QvxStatus FFTInv_CToC(Qvx16s* pSrcDstRe, Qvx16s* pSrcDstIm, const QvxsFFTSpec_C_16s* pSpec, int scaleFactor, Qvx8u*
    pBuffer) { return qvxsFFTInv_CToC_16s_ISfs(pSrcDstRe, pSrcDstIm, pSpec, scaleFactor, pBuffer); }

// qvxs_fft_integer.h: The complex transform of N = 2^order points times 2^-scaleFactor, rounded to nearest and saturated:
inline QvxStatus FFTFwd_CToC(const Qvx32s* pSrcRe, const Qvx32s* pSrcIm, Qvx32s* pDstRe, Qvx32s* pDstIm, const QvxsFFTSpec_C_32s*
    pSpec, int scaleFactor, Qvx8u* pBuffer) { return qvxsFFTFwd_CToC_32s_Sfs(pSrcRe, pSrcIm, pDstRe, pDstIm, pSpec, scaleFactor,
    pBuffer); }
inline QvxStatus FFTFwd_CToC(Qvx32s* pSrcDstRe, Qvx32s* pSrcDstIm, const QvxsFFTSpec_C_32s* pSpec, int scaleFactor, Qvx8u*
    pBuffer) { return qvxsFFTFwd_CToC_32s_ISfs(pSrcDstRe, pSrcDstIm, pSpec, scaleFactor, pBuffer); }

// qvxs_fft_integer.h: The complex transform of N = 2^order points times 2^-scaleFactor, rounded to nearest and saturated:
inline QvxStatus FFTInv_CToC(const Qvx32s* pSrcRe, const Qvx32s* pSrcIm, Qvx32s* pDstRe, Qvx32s* pDstIm, const QvxsFFTSpec_C_32s*
    pSpec, int scaleFactor, Qvx8u* pBuffer) { return qvxsFFTInv_CToC_32s_Sfs(pSrcRe, pSrcIm, pDstRe, pDstIm, pSpec, scaleFactor,
    pBuffer); }
inline QvxStatus FFTInv_CToC(Qvx32s* pSrcDstRe, Qvx32s* pSrcDstIm, const QvxsFFTSpec_C_32s* pSpec, int scaleFactor, Qvx8u*
    pBuffer) { return qvxsFFTInv_CToC_32s_ISfs(pSrcDstRe, pSrcDstIm, pSpec, scaleFactor, pBuffer); }

// qvxs_fft_integer.h: The transform of N = 2^order real integers, and back, with the spectrum in one of the layouts of ...
inline QvxStatus FFTFwd_RToPerm(const Qvx16s* pSrc, Qvx16s* pDst, const QvxsFFTSpec_R_16s* pSpec, int scaleFactor, Qvx8u* pBuffer)
    { return qvxsFFTFwd_RToPerm_16s_Sfs(pSrc, pDst, pSpec, scaleFactor, pBuffer); }
inline QvxStatus FFTFwd_RToPerm(Qvx16s* pSrcDst, const QvxsFFTSpec_R_16s* pSpec, int scaleFactor, Qvx8u* pBuffer) { return
    qvxsFFTFwd_RToPerm_16s_ISfs(pSrcDst, pSpec, scaleFactor, pBuffer); }
inline QvxStatus FFTFwd_RToPerm(const Qvx32s* pSrc, Qvx32s* pDst, const QvxsFFTSpec_R_32s* pSpec, int scaleFactor, Qvx8u* pBuffer)
    { return qvxsFFTFwd_RToPerm_32s_Sfs(pSrc, pDst, pSpec, scaleFactor, pBuffer); }
inline QvxStatus FFTFwd_RToPerm(Qvx32s* pSrcDst, const QvxsFFTSpec_R_32s* pSpec, int scaleFactor, Qvx8u* pBuffer) { return
    qvxsFFTFwd_RToPerm_32s_ISfs(pSrcDst, pSpec, scaleFactor, pBuffer); }

// qvxs_fft_integer.h: The transform of N = 2^order real integers, and back, with the spectrum in one of the layouts of ...
inline QvxStatus FFTFwd_RToPack(const Qvx16s* pSrc, Qvx16s* pDst, const QvxsFFTSpec_R_16s* pSpec, int scaleFactor, Qvx8u* pBuffer)
    { return qvxsFFTFwd_RToPack_16s_Sfs(pSrc, pDst, pSpec, scaleFactor, pBuffer); }
inline QvxStatus FFTFwd_RToPack(Qvx16s* pSrcDst, const QvxsFFTSpec_R_16s* pSpec, int scaleFactor, Qvx8u* pBuffer) { return
    qvxsFFTFwd_RToPack_16s_ISfs(pSrcDst, pSpec, scaleFactor, pBuffer); }
inline QvxStatus FFTFwd_RToPack(const Qvx32s* pSrc, Qvx32s* pDst, const QvxsFFTSpec_R_32s* pSpec, int scaleFactor, Qvx8u* pBuffer)
    { return qvxsFFTFwd_RToPack_32s_Sfs(pSrc, pDst, pSpec, scaleFactor, pBuffer); }
inline QvxStatus FFTFwd_RToPack(Qvx32s* pSrcDst, const QvxsFFTSpec_R_32s* pSpec, int scaleFactor, Qvx8u* pBuffer) { return
    qvxsFFTFwd_RToPack_32s_ISfs(pSrcDst, pSpec, scaleFactor, pBuffer); }

// qvxs_fft_integer.h: The transform of N = 2^order real integers, and back, with the spectrum in one of the layouts of ...
inline QvxStatus FFTFwd_RToCCS(const Qvx16s* pSrc, Qvx16s* pDst, const QvxsFFTSpec_R_16s* pSpec, int scaleFactor, Qvx8u* pBuffer)
    { return qvxsFFTFwd_RToCCS_16s_Sfs(pSrc, pDst, pSpec, scaleFactor, pBuffer); }
inline QvxStatus FFTFwd_RToCCS(Qvx16s* pSrcDst, const QvxsFFTSpec_R_16s* pSpec, int scaleFactor, Qvx8u* pBuffer) { return
    qvxsFFTFwd_RToCCS_16s_ISfs(pSrcDst, pSpec, scaleFactor, pBuffer); }
inline QvxStatus FFTFwd_RToCCS(const Qvx32s* pSrc, Qvx32s* pDst, const QvxsFFTSpec_R_32s* pSpec, int scaleFactor, Qvx8u* pBuffer)
    { return qvxsFFTFwd_RToCCS_32s_Sfs(pSrc, pDst, pSpec, scaleFactor, pBuffer); }
inline QvxStatus FFTFwd_RToCCS(Qvx32s* pSrcDst, const QvxsFFTSpec_R_32s* pSpec, int scaleFactor, Qvx8u* pBuffer) { return
    qvxsFFTFwd_RToCCS_32s_ISfs(pSrcDst, pSpec, scaleFactor, pBuffer); }

// qvxs_fft_integer.h: The transform of N = 2^order real integers, and back, with the spectrum in one of the layouts of ...
inline QvxStatus FFTInv_PermToR(const Qvx16s* pSrc, Qvx16s* pDst, const QvxsFFTSpec_R_16s* pSpec, int scaleFactor, Qvx8u* pBuffer)
    { return qvxsFFTInv_PermToR_16s_Sfs(pSrc, pDst, pSpec, scaleFactor, pBuffer); }
inline QvxStatus FFTInv_PermToR(Qvx16s* pSrcDst, const QvxsFFTSpec_R_16s* pSpec, int scaleFactor, Qvx8u* pBuffer) { return
    qvxsFFTInv_PermToR_16s_ISfs(pSrcDst, pSpec, scaleFactor, pBuffer); }
inline QvxStatus FFTInv_PermToR(const Qvx32s* pSrc, Qvx32s* pDst, const QvxsFFTSpec_R_32s* pSpec, int scaleFactor, Qvx8u* pBuffer)
    { return qvxsFFTInv_PermToR_32s_Sfs(pSrc, pDst, pSpec, scaleFactor, pBuffer); }
inline QvxStatus FFTInv_PermToR(Qvx32s* pSrcDst, const QvxsFFTSpec_R_32s* pSpec, int scaleFactor, Qvx8u* pBuffer) { return
    qvxsFFTInv_PermToR_32s_ISfs(pSrcDst, pSpec, scaleFactor, pBuffer); }

// qvxs_fft_integer.h: The transform of N = 2^order real integers, and back, with the spectrum in one of the layouts of ...
inline QvxStatus FFTInv_PackToR(const Qvx16s* pSrc, Qvx16s* pDst, const QvxsFFTSpec_R_16s* pSpec, int scaleFactor, Qvx8u* pBuffer)
    { return qvxsFFTInv_PackToR_16s_Sfs(pSrc, pDst, pSpec, scaleFactor, pBuffer); }
inline QvxStatus FFTInv_PackToR(Qvx16s* pSrcDst, const QvxsFFTSpec_R_16s* pSpec, int scaleFactor, Qvx8u* pBuffer) { return
    qvxsFFTInv_PackToR_16s_ISfs(pSrcDst, pSpec, scaleFactor, pBuffer); }
inline QvxStatus FFTInv_PackToR(const Qvx32s* pSrc, Qvx32s* pDst, const QvxsFFTSpec_R_32s* pSpec, int scaleFactor, Qvx8u* pBuffer)
    { return qvxsFFTInv_PackToR_32s_Sfs(pSrc, pDst, pSpec, scaleFactor, pBuffer); }
inline QvxStatus FFTInv_PackToR(Qvx32s* pSrcDst, const QvxsFFTSpec_R_32s* pSpec, int scaleFactor, Qvx8u* pBuffer) { return
    qvxsFFTInv_PackToR_32s_ISfs(pSrcDst, pSpec, scaleFactor, pBuffer); }

// qvxs_fft_integer.h: The transform of N = 2^order real integers, and back, with the spectrum in one of the layouts of ...
inline QvxStatus FFTInv_CCSToR(const Qvx16s* pSrc, Qvx16s* pDst, const QvxsFFTSpec_R_16s* pSpec, int scaleFactor, Qvx8u* pBuffer)
    { return qvxsFFTInv_CCSToR_16s_Sfs(pSrc, pDst, pSpec, scaleFactor, pBuffer); }
inline QvxStatus FFTInv_CCSToR(Qvx16s* pSrcDst, const QvxsFFTSpec_R_16s* pSpec, int scaleFactor, Qvx8u* pBuffer) { return
    qvxsFFTInv_CCSToR_16s_ISfs(pSrcDst, pSpec, scaleFactor, pBuffer); }
inline QvxStatus FFTInv_CCSToR(const Qvx32s* pSrc, Qvx32s* pDst, const QvxsFFTSpec_R_32s* pSpec, int scaleFactor, Qvx8u* pBuffer)
    { return qvxsFFTInv_CCSToR_32s_Sfs(pSrc, pDst, pSpec, scaleFactor, pBuffer); }
inline QvxStatus FFTInv_CCSToR(Qvx32s* pSrcDst, const QvxsFFTSpec_R_32s* pSpec, int scaleFactor, Qvx8u* pBuffer) { return
    qvxsFFTInv_CCSToR_32s_ISfs(pSrcDst, pSpec, scaleFactor, pBuffer); }

// qvxs_fft_integer.h: The transform of N = 2^order real integers, and back, with the spectrum in one of the layouts of ...
inline QvxStatus FFTFwd_RToCCS(const Qvx16s* pSrc, Qvx32s* pDst, const QvxsFFTSpec_R_16s32s* pSpec, int scaleFactor, Qvx8u*
    pBuffer) { return qvxsFFTFwd_RToCCS_16s32s_Sfs(pSrc, pDst, pSpec, scaleFactor, pBuffer); }

// qvxs_fft_integer.h: The transform of N = 2^order real integers, and back, with the spectrum in one of the layouts of ...
inline QvxStatus FFTInv_CCSToR(const Qvx32s* pSrc, Qvx16s* pDst, const QvxsFFTSpec_R_16s32s* pSpec, int scaleFactor, Qvx8u*
    pBuffer) { return qvxsFFTInv_CCSToR_32s16s_Sfs(pSrc, pDst, pSpec, scaleFactor, pBuffer); }

// qvxs_dft.h: A record for transforms of len points (len real numbers where its name has an R): length, ...
inline QvxStatus DFTInitAlloc(QvxsDFTSpec_C_32fc** ppSpec, int len, int flag, int hint) { return qvxsDFTInitAlloc_C_32fc(ppSpec,
    len, flag, hint); }

// qvxs_dft.h: A record for transforms of len points (len real numbers where its name has an R): length, ...
inline QvxStatus DFTFree(QvxsDFTSpec_C_32fc* pSpec) { return qvxsDFTFree_C_32fc(pSpec); }

// qvxs_dft.h: A record for transforms of len points (len real numbers where its name has an R): length, ...
inline QvxStatus DFTGetBufSize(const QvxsDFTSpec_C_32fc* pSpec, int* pSize) { return qvxsDFTGetBufSize_C_32fc(pSpec, pSize); }

// qvxs_dft.h: A record for transforms of len points (len real numbers where its name has an R): length, ...
inline QvxStatus DFTInitAlloc(QvxsDFTSpec_C_32f** ppSpec, int len, int flag, int hint) { return qvxsDFTInitAlloc_C_32f(ppSpec,
    len, flag, hint); }

// qvxs_dft.h: A record for transforms of len points (len real numbers where its name has an R): length, ...
inline QvxStatus DFTFree(QvxsDFTSpec_C_32f* pSpec) { return qvxsDFTFree_C_32f(pSpec); }

// qvxs_dft.h: A record for transforms of len points (len real numbers where its name has an R): length, ...
inline QvxStatus DFTGetBufSize(const QvxsDFTSpec_C_32f* pSpec, int* pSize) { return qvxsDFTGetBufSize_C_32f(pSpec, pSize); }

// qvxs_dft.h: A record for transforms of len points (len real numbers where its name has an R): length, ...
inline QvxStatus DFTInitAlloc(QvxsDFTSpec_R_32f** ppSpec, int len, int flag, int hint) { return qvxsDFTInitAlloc_R_32f(ppSpec,
    len, flag, hint); }

// qvxs_dft.h: A record for transforms of len points (len real numbers where its name has an R): length, ...
inline QvxStatus DFTFree(QvxsDFTSpec_R_32f* pSpec) { return qvxsDFTFree_R_32f(pSpec); }

// qvxs_dft.h: A record for transforms of len points (len real numbers where its name has an R): length, ...
inline QvxStatus DFTGetBufSize(const QvxsDFTSpec_R_32f* pSpec, int* pSize) { return qvxsDFTGetBufSize_R_32f(pSpec, pSize); }

// qvxs_dft.h: A record for transforms of len points (len real numbers where its name has an R): length, ...
inline QvxStatus DFTInitAlloc(QvxsDFTSpec_C_64fc** ppSpec, int len, int flag, int hint) { return qvxsDFTInitAlloc_C_64fc(ppSpec,
    len, flag, hint); }

// qvxs_dft.h: A record for transforms of len points (len real numbers where its name has an R): length, ...
inline QvxStatus DFTFree(QvxsDFTSpec_C_64fc* pSpec) { return qvxsDFTFree_C_64fc(pSpec); }

// qvxs_dft.h: A record for transforms of len points (len real numbers where its name has an R): length, ...
inline QvxStatus DFTGetBufSize(const QvxsDFTSpec_C_64fc* pSpec, int* pSize) { return qvxsDFTGetBufSize_C_64fc(pSpec, pSize); }

// qvxs_dft.h: A record for transforms of len points (len real numbers where its name has an R): length, ...
inline QvxStatus DFTInitAlloc(QvxsDFTSpec_C_64f** ppSpec, int len, int flag, int hint) { return qvxsDFTInitAlloc_C_64f(ppSpec,
    len, flag, hint); }

// qvxs_dft.h: A record for transforms of len points (len real numbers where its name has an R): length, ...
inline QvxStatus DFTFree(QvxsDFTSpec_C_64f* pSpec) { return qvxsDFTFree_C_64f(pSpec); }

// qvxs_dft.h: A record for transforms of len points (len real numbers where its name has an R): length, ...
inline QvxStatus DFTGetBufSize(const QvxsDFTSpec_C_64f* pSpec, int* pSize) { return qvxsDFTGetBufSize_C_64f(pSpec, pSize); }

// qvxs_dft.h: A record for transforms of len points (len real numbers where its name has an R): length, ...
inline QvxStatus DFTInitAlloc(QvxsDFTSpec_R_64f** ppSpec, int len, int flag, int hint) { return qvxsDFTInitAlloc_R_64f(ppSpec,
    len, flag, hint); }

// qvxs_dft.h: A record for transforms of len points (len real numbers where its name has an R): length, ...
inline QvxStatus DFTFree(QvxsDFTSpec_R_64f* pSpec) { return qvxsDFTFree_R_64f(pSpec); }

// qvxs_dft.h: A record for transforms of len points (len real numbers where its name has an R): length, ...
inline QvxStatus DFTGetBufSize(const QvxsDFTSpec_R_64f* pSpec, int* pSize) { return qvxsDFTGetBufSize_R_64f(pSpec, pSize); }

// qvxs_dft.h: A record for transforms of len points (len real numbers where its name has an R): length, ...
inline QvxStatus DFTInitAlloc(QvxsDFTSpec_C_16sc** ppSpec, int len, int flag, int hint) { return qvxsDFTInitAlloc_C_16sc(ppSpec,
    len, flag, hint); }

// qvxs_dft.h: A record for transforms of len points (len real numbers where its name has an R): length, ...
inline QvxStatus DFTFree(QvxsDFTSpec_C_16sc* pSpec) { return qvxsDFTFree_C_16sc(pSpec); }

// qvxs_dft.h: A record for transforms of len points (len real numbers where its name has an R): length, ...
inline QvxStatus DFTGetBufSize(const QvxsDFTSpec_C_16sc* pSpec, int* pSize) { return qvxsDFTGetBufSize_C_16sc(pSpec, pSize); }

// qvxs_dft.h: A record for transforms of len points (len real numbers where its name has an R): length, ...
inline QvxStatus DFTInitAlloc(QvxsDFTSpec_C_16s** ppSpec, int len, int flag, int hint) { return qvxsDFTInitAlloc_C_16s(ppSpec,
    len, flag, hint); }

// qvxs_dft.h: A record for transforms of len points (len real numbers where its name has an R): length, ...
inline QvxStatus DFTFree(QvxsDFTSpec_C_16s* pSpec) { return qvxsDFTFree_C_16s(pSpec); }

// qvxs_dft.h: A record for transforms of len points (len real numbers where its name has an R): length, ...
inline QvxStatus DFTGetBufSize(const QvxsDFTSpec_C_16s* pSpec, int* pSize) { return qvxsDFTGetBufSize_C_16s(pSpec, pSize); }

// qvxs_dft.h: A record for transforms of len points (len real numbers where its name has an R): length, ...
inline QvxStatus DFTInitAlloc(QvxsDFTSpec_R_16s** ppSpec, int len, int flag, int hint) { return qvxsDFTInitAlloc_R_16s(ppSpec,
    len, flag, hint); }

// qvxs_dft.h: A record for transforms of len points (len real numbers where its name has an R): length, ...
inline QvxStatus DFTFree(QvxsDFTSpec_R_16s* pSpec) { return qvxsDFTFree_R_16s(pSpec); }

// qvxs_dft.h: A record for transforms of len points (len real numbers where its name has an R): length, ...
inline QvxStatus DFTGetBufSize(const QvxsDFTSpec_R_16s* pSpec, int* pSize) { return qvxsDFTGetBufSize_R_16s(pSpec, pSize); }

// qvxs_dft.h: The complex transform of N points, of 32fc and 64fc with interleaved parts, of 32f and 64f with ...
inline QvxStatus DFTFwd_CToC(const Qvx32fc* pSrc, Qvx32fc* pDst, const QvxsDFTSpec_C_32fc* pSpec, Qvx8u* pBuffer) { return
    qvxsDFTFwd_CToC_32fc(pSrc, pDst, pSpec, pBuffer); }

// qvxs_dft.h: The complex transform of N points, of 32fc and 64fc with interleaved parts, of 32f and 64f with ...
inline QvxStatus DFTInv_CToC(const Qvx32fc* pSrc, Qvx32fc* pDst, const QvxsDFTSpec_C_32fc* pSpec, Qvx8u* pBuffer) { return
    qvxsDFTInv_CToC_32fc(pSrc, pDst, pSpec, pBuffer); }

// qvxs_dft.h: The complex transform of N points, of 32fc and 64fc with interleaved parts, of 32f and 64f with ...
inline QvxStatus DFTFwd_CToC(const Qvx32f* pSrcRe, const Qvx32f* pSrcIm, Qvx32f* pDstRe, Qvx32f* pDstIm, const QvxsDFTSpec_C_32f*
    pSpec, Qvx8u* pBuffer) { return qvxsDFTFwd_CToC_32f(pSrcRe, pSrcIm, pDstRe, pDstIm, pSpec, pBuffer); }

// qvxs_dft.h: The complex transform of N points, of 32fc and 64fc with interleaved parts, of 32f and 64f with ...
inline QvxStatus DFTInv_CToC(const Qvx32f* pSrcRe, const Qvx32f* pSrcIm, Qvx32f* pDstRe, Qvx32f* pDstIm, const QvxsDFTSpec_C_32f*
    pSpec, Qvx8u* pBuffer) { return qvxsDFTInv_CToC_32f(pSrcRe, pSrcIm, pDstRe, pDstIm, pSpec, pBuffer); }

// qvxs_dft.h: The complex transform of N points, of 32fc and 64fc with interleaved parts, of 32f and 64f with ...
inline QvxStatus DFTFwd_CToC(const Qvx64fc* pSrc, Qvx64fc* pDst, const QvxsDFTSpec_C_64fc* pSpec, Qvx8u* pBuffer) { return
    qvxsDFTFwd_CToC_64fc(pSrc, pDst, pSpec, pBuffer); }

// qvxs_dft.h: The complex transform of N points, of 32fc and 64fc with interleaved parts, of 32f and 64f with ...
inline QvxStatus DFTInv_CToC(const Qvx64fc* pSrc, Qvx64fc* pDst, const QvxsDFTSpec_C_64fc* pSpec, Qvx8u* pBuffer) { return
    qvxsDFTInv_CToC_64fc(pSrc, pDst, pSpec, pBuffer); }

// qvxs_dft.h: The complex transform of N points, of 32fc and 64fc with interleaved parts, of 32f and 64f with ...
inline QvxStatus DFTFwd_CToC(const Qvx64f* pSrcRe, const Qvx64f* pSrcIm, Qvx64f* pDstRe, Qvx64f* pDstIm, const QvxsDFTSpec_C_64f*
    pSpec, Qvx8u* pBuffer) { return qvxsDFTFwd_CToC_64f(pSrcRe, pSrcIm, pDstRe, pDstIm, pSpec, pBuffer); }

// qvxs_dft.h: The complex transform of N points, of 32fc and 64fc with interleaved parts, of 32f and 64f with ...
inline QvxStatus DFTInv_CToC(const Qvx64f* pSrcRe, const Qvx64f* pSrcIm, Qvx64f* pDstRe, Qvx64f* pDstIm, const QvxsDFTSpec_C_64f*
    pSpec, Qvx8u* pBuffer) { return qvxsDFTInv_CToC_64f(pSrcRe, pSrcIm, pDstRe, pDstIm, pSpec, pBuffer); }

// qvxs_dft.h: The complex transform of N points, of 32fc and 64fc with interleaved parts, of 32f and 64f with ...
inline QvxStatus DFTFwd_CToC(const Qvx16sc* pSrc, Qvx16sc* pDst, const QvxsDFTSpec_C_16sc* pSpec, int scaleFactor, Qvx8u* pBuffer)
    { return qvxsDFTFwd_CToC_16sc_Sfs(pSrc, pDst, pSpec, scaleFactor, pBuffer); }

// qvxs_dft.h: The complex transform of N points, of 32fc and 64fc with interleaved parts, of 32f and 64f with ...
inline QvxStatus DFTInv_CToC(const Qvx16sc* pSrc, Qvx16sc* pDst, const QvxsDFTSpec_C_16sc* pSpec, int scaleFactor, Qvx8u* pBuffer)
    { return qvxsDFTInv_CToC_16sc_Sfs(pSrc, pDst, pSpec, scaleFactor, pBuffer); }

// qvxs_dft.h: The complex transform of N points, of 32fc and 64fc with interleaved parts, of 32f and 64f with ...
inline QvxStatus DFTFwd_CToC(const Qvx16s* pSrcRe, const Qvx16s* pSrcIm, Qvx16s* pDstRe, Qvx16s* pDstIm, const QvxsDFTSpec_C_16s*
    pSpec, int scaleFactor, Qvx8u* pBuffer) { return qvxsDFTFwd_CToC_16s_Sfs(pSrcRe, pSrcIm, pDstRe, pDstIm, pSpec, scaleFactor,
    pBuffer); }

// qvxs_dft.h: The complex transform of N points, of 32fc and 64fc with interleaved parts, of 32f and 64f with ...
inline QvxStatus DFTInv_CToC(const Qvx16s* pSrcRe, const Qvx16s* pSrcIm, Qvx16s* pDstRe, Qvx16s* pDstIm, const QvxsDFTSpec_C_16s*
    pSpec, int scaleFactor, Qvx8u* pBuffer) { return qvxsDFTInv_CToC_16s_Sfs(pSrcRe, pSrcIm, pDstRe, pDstIm, pSpec, scaleFactor,
    pBuffer); }

// qvxs_dft.h: The transform of N real numbers, and back. X[k] = f * sum over n of src[n] * exp(-2 pi i n k / ...
inline QvxStatus DFTFwd_RToPerm(const Qvx32f* pSrc, Qvx32f* pDst, const QvxsDFTSpec_R_32f* pSpec, Qvx8u* pBuffer) { return
    qvxsDFTFwd_RToPerm_32f(pSrc, pDst, pSpec, pBuffer); }
inline QvxStatus DFTFwd_RToPerm(const Qvx64f* pSrc, Qvx64f* pDst, const QvxsDFTSpec_R_64f* pSpec, Qvx8u* pBuffer) { return
    qvxsDFTFwd_RToPerm_64f(pSrc, pDst, pSpec, pBuffer); }
inline QvxStatus DFTFwd_RToPerm(const Qvx16s* pSrc, Qvx16s* pDst, const QvxsDFTSpec_R_16s* pSpec, int scaleFactor, Qvx8u* pBuffer)
    { return qvxsDFTFwd_RToPerm_16s_Sfs(pSrc, pDst, pSpec, scaleFactor, pBuffer); }

// qvxs_dft.h: The transform of N real numbers, and back. X[k] = f * sum over n of src[n] * exp(-2 pi i n k / ...
inline QvxStatus DFTFwd_RToPack(const Qvx32f* pSrc, Qvx32f* pDst, const QvxsDFTSpec_R_32f* pSpec, Qvx8u* pBuffer) { return
    qvxsDFTFwd_RToPack_32f(pSrc, pDst, pSpec, pBuffer); }
inline QvxStatus DFTFwd_RToPack(const Qvx64f* pSrc, Qvx64f* pDst, const QvxsDFTSpec_R_64f* pSpec, Qvx8u* pBuffer) { return
    qvxsDFTFwd_RToPack_64f(pSrc, pDst, pSpec, pBuffer); }
inline QvxStatus DFTFwd_RToPack(const Qvx16s* pSrc, Qvx16s* pDst, const QvxsDFTSpec_R_16s* pSpec, int scaleFactor, Qvx8u* pBuffer)
    { return qvxsDFTFwd_RToPack_16s_Sfs(pSrc, pDst, pSpec, scaleFactor, pBuffer); }

// qvxs_dft.h: The transform of N real numbers, and back. X[k] = f * sum over n of src[n] * exp(-2 pi i n k / ...
inline QvxStatus DFTFwd_RToCCS(const Qvx32f* pSrc, Qvx32f* pDst, const QvxsDFTSpec_R_32f* pSpec, Qvx8u* pBuffer) { return
    qvxsDFTFwd_RToCCS_32f(pSrc, pDst, pSpec, pBuffer); }
inline QvxStatus DFTFwd_RToCCS(const Qvx64f* pSrc, Qvx64f* pDst, const QvxsDFTSpec_R_64f* pSpec, Qvx8u* pBuffer) { return
    qvxsDFTFwd_RToCCS_64f(pSrc, pDst, pSpec, pBuffer); }
inline QvxStatus DFTFwd_RToCCS(const Qvx16s* pSrc, Qvx16s* pDst, const QvxsDFTSpec_R_16s* pSpec, int scaleFactor, Qvx8u* pBuffer)
    { return qvxsDFTFwd_RToCCS_16s_Sfs(pSrc, pDst, pSpec, scaleFactor, pBuffer); }

// qvxs_dft.h: The transform of N real numbers, and back. X[k] = f * sum over n of src[n] * exp(-2 pi i n k / ...
inline QvxStatus DFTInv_PermToR(const Qvx32f* pSrc, Qvx32f* pDst, const QvxsDFTSpec_R_32f* pSpec, Qvx8u* pBuffer) { return
    qvxsDFTInv_PermToR_32f(pSrc, pDst, pSpec, pBuffer); }
inline QvxStatus DFTInv_PermToR(const Qvx64f* pSrc, Qvx64f* pDst, const QvxsDFTSpec_R_64f* pSpec, Qvx8u* pBuffer) { return
    qvxsDFTInv_PermToR_64f(pSrc, pDst, pSpec, pBuffer); }
inline QvxStatus DFTInv_PermToR(const Qvx16s* pSrc, Qvx16s* pDst, const QvxsDFTSpec_R_16s* pSpec, int scaleFactor, Qvx8u* pBuffer)
    { return qvxsDFTInv_PermToR_16s_Sfs(pSrc, pDst, pSpec, scaleFactor, pBuffer); }

// qvxs_dft.h: The transform of N real numbers, and back. X[k] = f * sum over n of src[n] * exp(-2 pi i n k / ...
inline QvxStatus DFTInv_PackToR(const Qvx32f* pSrc, Qvx32f* pDst, const QvxsDFTSpec_R_32f* pSpec, Qvx8u* pBuffer) { return
    qvxsDFTInv_PackToR_32f(pSrc, pDst, pSpec, pBuffer); }
inline QvxStatus DFTInv_PackToR(const Qvx64f* pSrc, Qvx64f* pDst, const QvxsDFTSpec_R_64f* pSpec, Qvx8u* pBuffer) { return
    qvxsDFTInv_PackToR_64f(pSrc, pDst, pSpec, pBuffer); }
inline QvxStatus DFTInv_PackToR(const Qvx16s* pSrc, Qvx16s* pDst, const QvxsDFTSpec_R_16s* pSpec, int scaleFactor, Qvx8u* pBuffer)
    { return qvxsDFTInv_PackToR_16s_Sfs(pSrc, pDst, pSpec, scaleFactor, pBuffer); }

// qvxs_dft.h: The transform of N real numbers, and back. X[k] = f * sum over n of src[n] * exp(-2 pi i n k / ...
inline QvxStatus DFTInv_CCSToR(const Qvx32f* pSrc, Qvx32f* pDst, const QvxsDFTSpec_R_32f* pSpec, Qvx8u* pBuffer) { return
    qvxsDFTInv_CCSToR_32f(pSrc, pDst, pSpec, pBuffer); }
inline QvxStatus DFTInv_CCSToR(const Qvx64f* pSrc, Qvx64f* pDst, const QvxsDFTSpec_R_64f* pSpec, Qvx8u* pBuffer) { return
    qvxsDFTInv_CCSToR_64f(pSrc, pDst, pSpec, pBuffer); }
inline QvxStatus DFTInv_CCSToR(const Qvx16s* pSrc, Qvx16s* pDst, const QvxsDFTSpec_R_16s* pSpec, int scaleFactor, Qvx8u* pBuffer)
    { return qvxsDFTInv_CCSToR_16s_Sfs(pSrc, pDst, pSpec, scaleFactor, pBuffer); }

// qvxs_dft.h: Records for transforms out of order: as those above.
inline QvxStatus DFTOutOrdInitAlloc(QvxsDFTOutOrdSpec_C_32fc** ppSpec, int len, int flag, int hint) { return
    qvxsDFTOutOrdInitAlloc_C_32fc(ppSpec, len, flag, hint); }

// qvxs_dft.h: Records for transforms out of order: as those above.
inline QvxStatus DFTOutOrdFree(QvxsDFTOutOrdSpec_C_32fc* pSpec) { return qvxsDFTOutOrdFree_C_32fc(pSpec); }

// qvxs_dft.h: Records for transforms out of order: as those above.
inline QvxStatus DFTOutOrdGetBufSize(const QvxsDFTOutOrdSpec_C_32fc* pSpec, int* pSize) { return
    qvxsDFTOutOrdGetBufSize_C_32fc(pSpec, pSize); }

// qvxs_dft.h: Records for transforms out of order: as those above.
inline QvxStatus DFTOutOrdInitAlloc(QvxsDFTOutOrdSpec_C_64fc** ppSpec, int len, int flag, int hint) { return
    qvxsDFTOutOrdInitAlloc_C_64fc(ppSpec, len, flag, hint); }

// qvxs_dft.h: Records for transforms out of order: as those above.
inline QvxStatus DFTOutOrdFree(QvxsDFTOutOrdSpec_C_64fc* pSpec) { return qvxsDFTOutOrdFree_C_64fc(pSpec); }

// qvxs_dft.h: Records for transforms out of order: as those above.
inline QvxStatus DFTOutOrdGetBufSize(const QvxsDFTOutOrdSpec_C_64fc* pSpec, int* pSize) { return
    qvxsDFTOutOrdGetBufSize_C_64fc(pSpec, pSize); }

// qvxs_dft.h: The complex transform with the spectrum in an order of its own, which Fwd writes and Inv takes. ...
inline QvxStatus DFTOutOrdFwd_CToC(const Qvx32fc* pSrc, Qvx32fc* pDst, const QvxsDFTOutOrdSpec_C_32fc* pSpec, Qvx8u* pBuffer) {
    return qvxsDFTOutOrdFwd_CToC_32fc(pSrc, pDst, pSpec, pBuffer); }

// qvxs_dft.h: The complex transform with the spectrum in an order of its own, which Fwd writes and Inv takes. ...
inline QvxStatus DFTOutOrdInv_CToC(const Qvx32fc* pSrc, Qvx32fc* pDst, const QvxsDFTOutOrdSpec_C_32fc* pSpec, Qvx8u* pBuffer) {
    return qvxsDFTOutOrdInv_CToC_32fc(pSrc, pDst, pSpec, pBuffer); }

// qvxs_dft.h: The complex transform with the spectrum in an order of its own, which Fwd writes and Inv takes. ...
inline QvxStatus DFTOutOrdFwd_CToC(const Qvx64fc* pSrc, Qvx64fc* pDst, const QvxsDFTOutOrdSpec_C_64fc* pSpec, Qvx8u* pBuffer) {
    return qvxsDFTOutOrdFwd_CToC_64fc(pSrc, pDst, pSpec, pBuffer); }

// qvxs_dft.h: The complex transform with the spectrum in an order of its own, which Fwd writes and Inv takes. ...
inline QvxStatus DFTOutOrdInv_CToC(const Qvx64fc* pSrc, Qvx64fc* pDst, const QvxsDFTOutOrdSpec_C_64fc* pSpec, Qvx8u* pBuffer) {
    return qvxsDFTOutOrdInv_CToC_64fc(pSrc, pDst, pSpec, pBuffer); }

// qvxs_dct.h: A record for transforms of len numbers in one direction: its length and tables.
inline QvxStatus DCTFwdGetSize(Types<Qvx32f>, int len, int hint, int* pSpecSize, int* pInitSize, int* pWorkSize) { return
    qvxsDCTFwdGetSize_32f(len, hint, pSpecSize, pInitSize, pWorkSize); }

// qvxs_dct.h: A record for transforms of len numbers in one direction: its length and tables.
inline QvxStatus DCTFwdInit(QvxsDCTFwdSpec_32f** ppSpec, int len, int hint, Qvx8u* pSpec, Qvx8u* pInit) { return
    qvxsDCTFwdInit_32f(ppSpec, len, hint, pSpec, pInit); }

// qvxs_dct.h: A record for transforms of len numbers in one direction: its length and tables.
inline QvxStatus DCTFwdInitAlloc(QvxsDCTFwdSpec_32f** ppSpec, int len, int hint) { return qvxsDCTFwdInitAlloc_32f(ppSpec, len,
    hint); }

// qvxs_dct.h: A record for transforms of len numbers in one direction: its length and tables.
inline QvxStatus DCTFwdFree(QvxsDCTFwdSpec_32f* pSpec) { return qvxsDCTFwdFree_32f(pSpec); }

// qvxs_dct.h: A record for transforms of len numbers in one direction: its length and tables.
inline QvxStatus DCTFwdGetBufSize(const QvxsDCTFwdSpec_32f* pSpec, int* pSize) { return qvxsDCTFwdGetBufSize_32f(pSpec, pSize); }

// qvxs_dct.h: A record for transforms of len numbers in one direction: its length and tables.
inline QvxStatus DCTFwdGetSize(Types<Qvx64f>, int len, int hint, int* pSpecSize, int* pInitSize, int* pWorkSize) { return
    qvxsDCTFwdGetSize_64f(len, hint, pSpecSize, pInitSize, pWorkSize); }

// qvxs_dct.h: A record for transforms of len numbers in one direction: its length and tables.
inline QvxStatus DCTFwdInit(QvxsDCTFwdSpec_64f** ppSpec, int len, int hint, Qvx8u* pSpec, Qvx8u* pInit) { return
    qvxsDCTFwdInit_64f(ppSpec, len, hint, pSpec, pInit); }

// qvxs_dct.h: A record for transforms of len numbers in one direction: its length and tables.
inline QvxStatus DCTFwdInitAlloc(QvxsDCTFwdSpec_64f** ppSpec, int len, int hint) { return qvxsDCTFwdInitAlloc_64f(ppSpec, len,
    hint); }

// qvxs_dct.h: A record for transforms of len numbers in one direction: its length and tables.
inline QvxStatus DCTFwdFree(QvxsDCTFwdSpec_64f* pSpec) { return qvxsDCTFwdFree_64f(pSpec); }

// qvxs_dct.h: A record for transforms of len numbers in one direction: its length and tables.
inline QvxStatus DCTFwdGetBufSize(const QvxsDCTFwdSpec_64f* pSpec, int* pSize) { return qvxsDCTFwdGetBufSize_64f(pSpec, pSize); }

// qvxs_dct.h: A record for transforms of len numbers in one direction: its length and tables.
inline QvxStatus DCTFwdGetSize(Types<Qvx16s>, int len, int hint, int* pSpecSize, int* pInitSize, int* pWorkSize) { return
    qvxsDCTFwdGetSize_16s(len, hint, pSpecSize, pInitSize, pWorkSize); }

// qvxs_dct.h: A record for transforms of len numbers in one direction: its length and tables.
inline QvxStatus DCTFwdInit(QvxsDCTFwdSpec_16s** ppSpec, int len, int hint, Qvx8u* pSpec, Qvx8u* pInit) { return
    qvxsDCTFwdInit_16s(ppSpec, len, hint, pSpec, pInit); }

// qvxs_dct.h: A record for transforms of len numbers in one direction: its length and tables.
inline QvxStatus DCTFwdInitAlloc(QvxsDCTFwdSpec_16s** ppSpec, int len, int hint) { return qvxsDCTFwdInitAlloc_16s(ppSpec, len,
    hint); }

// qvxs_dct.h: A record for transforms of len numbers in one direction: its length and tables.
inline QvxStatus DCTFwdFree(QvxsDCTFwdSpec_16s* pSpec) { return qvxsDCTFwdFree_16s(pSpec); }

// qvxs_dct.h: A record for transforms of len numbers in one direction: its length and tables.
inline QvxStatus DCTFwdGetBufSize(const QvxsDCTFwdSpec_16s* pSpec, int* pSize) { return qvxsDCTFwdGetBufSize_16s(pSpec, pSize); }

// qvxs_dct.h: The discrete cosine transform of type II, with the factors that make its matrix orthonormal; N ...
inline QvxStatus DCTFwd(const Qvx32f* pSrc, Qvx32f* pDst, const QvxsDCTFwdSpec_32f* pSpec, Qvx8u* pBuffer) { return
    qvxsDCTFwd_32f(pSrc, pDst, pSpec, pBuffer); }
inline QvxStatus DCTFwd(Qvx32f* pSrcDst, const QvxsDCTFwdSpec_32f* pSpec, Qvx8u* pBuffer) { return qvxsDCTFwd_32f_I(pSrcDst,
    pSpec, pBuffer); }
inline QvxStatus DCTFwd(const Qvx64f* pSrc, Qvx64f* pDst, const QvxsDCTFwdSpec_64f* pSpec, Qvx8u* pBuffer) { return
    qvxsDCTFwd_64f(pSrc, pDst, pSpec, pBuffer); }
inline QvxStatus DCTFwd(Qvx64f* pSrcDst, const QvxsDCTFwdSpec_64f* pSpec, Qvx8u* pBuffer) { return qvxsDCTFwd_64f_I(pSrcDst,
    pSpec, pBuffer); }
inline QvxStatus DCTFwd(const Qvx16s* pSrc, Qvx16s* pDst, const QvxsDCTFwdSpec_16s* pSpec, int scaleFactor, Qvx8u* pBuffer) {
    return qvxsDCTFwd_16s_Sfs(pSrc, pDst, pSpec, scaleFactor, pBuffer); }
inline QvxStatus DCTFwd(Qvx16s* pSrcDst, const QvxsDCTFwdSpec_16s* pSpec, int scaleFactor, Qvx8u* pBuffer) { return
    qvxsDCTFwd_16s_ISfs(pSrcDst, pSpec, scaleFactor, pBuffer); }

// qvxs_dct.h: The same for the way back: a record of this direction is of a type of its own.
inline QvxStatus DCTInvGetSize(Types<Qvx32f>, int len, int hint, int* pSpecSize, int* pInitSize, int* pWorkSize) { return
    qvxsDCTInvGetSize_32f(len, hint, pSpecSize, pInitSize, pWorkSize); }

// qvxs_dct.h: The same for the way back: a record of this direction is of a type of its own.
inline QvxStatus DCTInvInit(QvxsDCTInvSpec_32f** ppSpec, int len, int hint, Qvx8u* pSpec, Qvx8u* pInit) { return
    qvxsDCTInvInit_32f(ppSpec, len, hint, pSpec, pInit); }

// qvxs_dct.h: The same for the way back: a record of this direction is of a type of its own.
inline QvxStatus DCTInvInitAlloc(QvxsDCTInvSpec_32f** ppSpec, int len, int hint) { return qvxsDCTInvInitAlloc_32f(ppSpec, len,
    hint); }

// qvxs_dct.h: The same for the way back: a record of this direction is of a type of its own.
inline QvxStatus DCTInvFree(QvxsDCTInvSpec_32f* pSpec) { return qvxsDCTInvFree_32f(pSpec); }

// qvxs_dct.h: The same for the way back: a record of this direction is of a type of its own.
inline QvxStatus DCTInvGetBufSize(const QvxsDCTInvSpec_32f* pSpec, int* pSize) { return qvxsDCTInvGetBufSize_32f(pSpec, pSize); }

// qvxs_dct.h: The same for the way back: a record of this direction is of a type of its own.
inline QvxStatus DCTInvGetSize(Types<Qvx64f>, int len, int hint, int* pSpecSize, int* pInitSize, int* pWorkSize) { return
    qvxsDCTInvGetSize_64f(len, hint, pSpecSize, pInitSize, pWorkSize); }

// qvxs_dct.h: The same for the way back: a record of this direction is of a type of its own.
inline QvxStatus DCTInvInit(QvxsDCTInvSpec_64f** ppSpec, int len, int hint, Qvx8u* pSpec, Qvx8u* pInit) { return
    qvxsDCTInvInit_64f(ppSpec, len, hint, pSpec, pInit); }

// qvxs_dct.h: The same for the way back: a record of this direction is of a type of its own.
inline QvxStatus DCTInvInitAlloc(QvxsDCTInvSpec_64f** ppSpec, int len, int hint) { return qvxsDCTInvInitAlloc_64f(ppSpec, len,
    hint); }

// qvxs_dct.h: The same for the way back: a record of this direction is of a type of its own.
inline QvxStatus DCTInvFree(QvxsDCTInvSpec_64f* pSpec) { return qvxsDCTInvFree_64f(pSpec); }

// qvxs_dct.h: The same for the way back: a record of this direction is of a type of its own.
inline QvxStatus DCTInvGetBufSize(const QvxsDCTInvSpec_64f* pSpec, int* pSize) { return qvxsDCTInvGetBufSize_64f(pSpec, pSize); }

// qvxs_dct.h: The same for the way back: a record of this direction is of a type of its own.
inline QvxStatus DCTInvGetSize(Types<Qvx16s>, int len, int hint, int* pSpecSize, int* pInitSize, int* pWorkSize) { return
    qvxsDCTInvGetSize_16s(len, hint, pSpecSize, pInitSize, pWorkSize); }

// qvxs_dct.h: The same for the way back: a record of this direction is of a type of its own.
inline QvxStatus DCTInvInit(QvxsDCTInvSpec_16s** ppSpec, int len, int hint, Qvx8u* pSpec, Qvx8u* pInit) { return
    qvxsDCTInvInit_16s(ppSpec, len, hint, pSpec, pInit); }

// qvxs_dct.h: The same for the way back: a record of this direction is of a type of its own.
inline QvxStatus DCTInvInitAlloc(QvxsDCTInvSpec_16s** ppSpec, int len, int hint) { return qvxsDCTInvInitAlloc_16s(ppSpec, len,
    hint); }

// qvxs_dct.h: The same for the way back: a record of this direction is of a type of its own.
inline QvxStatus DCTInvFree(QvxsDCTInvSpec_16s* pSpec) { return qvxsDCTInvFree_16s(pSpec); }

// qvxs_dct.h: The same for the way back: a record of this direction is of a type of its own.
inline QvxStatus DCTInvGetBufSize(const QvxsDCTInvSpec_16s* pSpec, int* pSize) { return qvxsDCTInvGetBufSize_16s(pSpec, pSize); }

// qvxs_dct.h: The way back, a transform of type III:
inline QvxStatus DCTInv(const Qvx32f* pSrc, Qvx32f* pDst, const QvxsDCTInvSpec_32f* pSpec, Qvx8u* pBuffer) { return
    qvxsDCTInv_32f(pSrc, pDst, pSpec, pBuffer); }
inline QvxStatus DCTInv(Qvx32f* pSrcDst, const QvxsDCTInvSpec_32f* pSpec, Qvx8u* pBuffer) { return qvxsDCTInv_32f_I(pSrcDst,
    pSpec, pBuffer); }
inline QvxStatus DCTInv(const Qvx64f* pSrc, Qvx64f* pDst, const QvxsDCTInvSpec_64f* pSpec, Qvx8u* pBuffer) { return
    qvxsDCTInv_64f(pSrc, pDst, pSpec, pBuffer); }
inline QvxStatus DCTInv(Qvx64f* pSrcDst, const QvxsDCTInvSpec_64f* pSpec, Qvx8u* pBuffer) { return qvxsDCTInv_64f_I(pSrcDst,
    pSpec, pBuffer); }
inline QvxStatus DCTInv(const Qvx16s* pSrc, Qvx16s* pDst, const QvxsDCTInvSpec_16s* pSpec, int scaleFactor, Qvx8u* pBuffer) {
    return qvxsDCTInv_16s_Sfs(pSrc, pDst, pSpec, scaleFactor, pBuffer); }
inline QvxStatus DCTInv(Qvx16s* pSrcDst, const QvxsDCTInvSpec_16s* pSpec, int scaleFactor, Qvx8u* pBuffer) { return
    qvxsDCTInv_16s_ISfs(pSrcDst, pSpec, scaleFactor, pBuffer); }

// qvxs_hilbert.h: A record for sequences of len numbers: qvxsHilbertInitAlloc makes it, qvxsHilbertFree releases it.
inline QvxStatus HilbertInitAlloc(QvxsHilbertSpec_32f32fc** ppSpec, int len, int hint) { return
    qvxsHilbertInitAlloc_32f32fc(ppSpec, len, hint); }

// qvxs_hilbert.h: A record for sequences of len numbers: qvxsHilbertInitAlloc makes it, qvxsHilbertFree releases it.
inline QvxStatus HilbertFree(QvxsHilbertSpec_32f32fc* pSpec) { return qvxsHilbertFree_32f32fc(pSpec); }

// qvxs_hilbert.h: A record for sequences of len numbers: qvxsHilbertInitAlloc makes it, qvxsHilbertFree releases it.
inline QvxStatus HilbertInitAlloc(QvxsHilbertSpec_16s32fc** ppSpec, int len, int hint) { return
    qvxsHilbertInitAlloc_16s32fc(ppSpec, len, hint); }

// qvxs_hilbert.h: A record for sequences of len numbers: qvxsHilbertInitAlloc makes it, qvxsHilbertFree releases it.
inline QvxStatus HilbertFree(QvxsHilbertSpec_16s32fc* pSpec) { return qvxsHilbertFree_16s32fc(pSpec); }

// qvxs_hilbert.h: A record for sequences of len numbers: qvxsHilbertInitAlloc makes it, qvxsHilbertFree releases it.
inline QvxStatus HilbertInitAlloc(QvxsHilbertSpec_16s16sc** ppSpec, int len, int hint) { return
    qvxsHilbertInitAlloc_16s16sc(ppSpec, len, hint); }

// qvxs_hilbert.h: A record for sequences of len numbers: qvxsHilbertInitAlloc makes it, qvxsHilbertFree releases it.
inline QvxStatus HilbertFree(QvxsHilbertSpec_16s16sc* pSpec) { return qvxsHilbertFree_16s16sc(pSpec); }

// qvxs_hilbert.h: The analytic signal: dst[n] = src[n] + i h[n], h the Hilbert transform of the sequence taken as ...
inline QvxStatus Hilbert(const Qvx32f* pSrc, Qvx32fc* pDst, const QvxsHilbertSpec_32f32fc* pSpec) { return
    qvxsHilbert_32f32fc(pSrc, pDst, pSpec); }
inline QvxStatus Hilbert(const Qvx16s* pSrc, Qvx32fc* pDst, const QvxsHilbertSpec_16s32fc* pSpec) { return
    qvxsHilbert_16s32fc(pSrc, pDst, pSpec); }
inline QvxStatus Hilbert(const Qvx16s* pSrc, Qvx16sc* pDst, const QvxsHilbertSpec_16s16sc* pSpec, int scaleFactor) { return
    qvxsHilbert_16s16sc_Sfs(pSrc, pDst, pSpec, scaleFactor); }

// qvxs_fir.h: *pSize = the bytes of a record of tapsLen taps, for a block of any alignment. It depends on the ...
inline QvxStatus FIRGetStateSize(Types<Qvx32f>, int tapsLen, int* pSize) { return qvxsFIRGetStateSize_32f(tapsLen, pSize); }
inline QvxStatus FIRGetStateSize(Types<Qvx32fc>, int tapsLen, int* pSize) { return qvxsFIRGetStateSize_32fc(tapsLen, pSize); }
inline QvxStatus FIRGetStateSize(Types<Qvx32f, Qvx16s>, int tapsLen, int* pSize) { return qvxsFIRGetStateSize32f_16s(tapsLen,
    pSize); }
inline QvxStatus FIRGetStateSize(Types<Qvx32fc, Qvx16sc>, int tapsLen, int* pSize) { return qvxsFIRGetStateSize32fc_16sc(tapsLen,
    pSize); }
inline QvxStatus FIRGetStateSize(Types<Qvx64f>, int tapsLen, int* pSize) { return qvxsFIRGetStateSize_64f(tapsLen, pSize); }
inline QvxStatus FIRGetStateSize(Types<Qvx64fc>, int tapsLen, int* pSize) { return qvxsFIRGetStateSize_64fc(tapsLen, pSize); }
inline QvxStatus FIRGetStateSize(Types<Qvx64f, Qvx32f>, int tapsLen, int* pSize) { return qvxsFIRGetStateSize64f_32f(tapsLen,
    pSize); }
inline QvxStatus FIRGetStateSize(Types<Qvx64fc, Qvx32fc>, int tapsLen, int* pSize) { return qvxsFIRGetStateSize64fc_32fc(tapsLen,
    pSize); }
inline QvxStatus FIRGetStateSize(Types<Qvx64f, Qvx32s>, int tapsLen, int* pSize) { return qvxsFIRGetStateSize64f_32s(tapsLen,
    pSize); }
inline QvxStatus FIRGetStateSize(Types<Qvx64fc, Qvx32sc>, int tapsLen, int* pSize) { return qvxsFIRGetStateSize64fc_32sc(tapsLen,
    pSize); }
inline QvxStatus FIRGetStateSize(Types<Qvx64f, Qvx16s>, int tapsLen, int* pSize) { return qvxsFIRGetStateSize64f_16s(tapsLen,
    pSize); }
inline QvxStatus FIRGetStateSize(Types<Qvx64fc, Qvx16sc>, int tapsLen, int* pSize) { return qvxsFIRGetStateSize64fc_16sc(tapsLen,
    pSize); }
inline QvxStatus FIRGetStateSize(Types<Qvx32s, Qvx16s>, int tapsLen, int* pSize) { return qvxsFIRGetStateSize32s_16s(tapsLen,
    pSize); }
inline QvxStatus FIRGetStateSize(Types<Qvx32sc, Qvx16sc>, int tapsLen, int* pSize) { return qvxsFIRGetStateSize32sc_16sc(tapsLen,
    pSize); }
inline QvxStatus FIRGetStateSize(Types<Qvx16s>, int tapsLen, int* pSize) { return qvxsFIRGetStateSize_16s(tapsLen, pSize); }

// qvxs_fir.h: Builds a record in pBuffer, of the size that qvxsFIRGetStateSize gives, and stores its address ...
inline QvxStatus FIRInit(QvxsFIRState_32f** ppState, const Qvx32f* pTaps, int tapsLen, const Qvx32f* pDlyLine, Qvx8u* pBuffer) {
    return qvxsFIRInit_32f(ppState, pTaps, tapsLen, pDlyLine, pBuffer); }
inline QvxStatus FIRInit(QvxsFIRState_32fc** ppState, const Qvx32fc* pTaps, int tapsLen, const Qvx32fc* pDlyLine, Qvx8u* pBuffer)
    { return qvxsFIRInit_32fc(ppState, pTaps, tapsLen, pDlyLine, pBuffer); }
inline QvxStatus FIRInit(QvxsFIRState32f_16s** ppState, const Qvx32f* pTaps, int tapsLen, const Qvx16s* pDlyLine, Qvx8u* pBuffer)
    { return qvxsFIRInit32f_16s(ppState, pTaps, tapsLen, pDlyLine, pBuffer); }
inline QvxStatus FIRInit(QvxsFIRState32fc_16sc** ppState, const Qvx32fc* pTaps, int tapsLen, const Qvx16sc* pDlyLine, Qvx8u*
    pBuffer) { return qvxsFIRInit32fc_16sc(ppState, pTaps, tapsLen, pDlyLine, pBuffer); }
inline QvxStatus FIRInit(QvxsFIRState_64f** ppState, const Qvx64f* pTaps, int tapsLen, const Qvx64f* pDlyLine, Qvx8u* pBuffer) {
    return qvxsFIRInit_64f(ppState, pTaps, tapsLen, pDlyLine, pBuffer); }
inline QvxStatus FIRInit(QvxsFIRState_64fc** ppState, const Qvx64fc* pTaps, int tapsLen, const Qvx64fc* pDlyLine, Qvx8u* pBuffer)
    { return qvxsFIRInit_64fc(ppState, pTaps, tapsLen, pDlyLine, pBuffer); }
inline QvxStatus FIRInit(QvxsFIRState64f_32f** ppState, const Qvx64f* pTaps, int tapsLen, const Qvx32f* pDlyLine, Qvx8u* pBuffer)
    { return qvxsFIRInit64f_32f(ppState, pTaps, tapsLen, pDlyLine, pBuffer); }
inline QvxStatus FIRInit(QvxsFIRState64fc_32fc** ppState, const Qvx64fc* pTaps, int tapsLen, const Qvx32fc* pDlyLine, Qvx8u*
    pBuffer) { return qvxsFIRInit64fc_32fc(ppState, pTaps, tapsLen, pDlyLine, pBuffer); }
inline QvxStatus FIRInit(QvxsFIRState64f_32s** ppState, const Qvx64f* pTaps, int tapsLen, const Qvx32s* pDlyLine, Qvx8u* pBuffer)
    { return qvxsFIRInit64f_32s(ppState, pTaps, tapsLen, pDlyLine, pBuffer); }
inline QvxStatus FIRInit(QvxsFIRState64fc_32sc** ppState, const Qvx64fc* pTaps, int tapsLen, const Qvx32sc* pDlyLine, Qvx8u*
    pBuffer) { return qvxsFIRInit64fc_32sc(ppState, pTaps, tapsLen, pDlyLine, pBuffer); }
inline QvxStatus FIRInit(QvxsFIRState64f_16s** ppState, const Qvx64f* pTaps, int tapsLen, const Qvx16s* pDlyLine, Qvx8u* pBuffer)
    { return qvxsFIRInit64f_16s(ppState, pTaps, tapsLen, pDlyLine, pBuffer); }
inline QvxStatus FIRInit(QvxsFIRState64fc_16sc** ppState, const Qvx64fc* pTaps, int tapsLen, const Qvx16sc* pDlyLine, Qvx8u*
    pBuffer) { return qvxsFIRInit64fc_16sc(ppState, pTaps, tapsLen, pDlyLine, pBuffer); }
inline QvxStatus FIRInit(QvxsFIRState32s_16s** ppState, const Qvx32s* pTaps, int tapsLen, int tapsFactor, const Qvx16s* pDlyLine,
    Qvx8u* pBuffer) { return qvxsFIRInit32s_16s(ppState, pTaps, tapsLen, tapsFactor, pDlyLine, pBuffer); }
inline QvxStatus FIRInit(QvxsFIRState32sc_16sc** ppState, const Qvx32sc* pTaps, int tapsLen, int tapsFactor, const Qvx16sc*
    pDlyLine, Qvx8u* pBuffer) { return qvxsFIRInit32sc_16sc(ppState, pTaps, tapsLen, tapsFactor, pDlyLine, pBuffer); }
inline QvxStatus FIRInit(QvxsFIRState_16s** ppState, const Qvx16s* pTaps, int tapsLen, int tapsFactor, const Qvx16s* pDlyLine,
    Qvx8u* pBuffer) { return qvxsFIRInit_16s(ppState, pTaps, tapsLen, tapsFactor, pDlyLine, pBuffer); }

// qvxs_fir.h: The same in a block of its own, which qvxsFIRFree releases. Returns also qvxStatNoMem.
inline QvxStatus FIRInitAlloc(QvxsFIRState_32f** ppState, const Qvx32f* pTaps, int tapsLen, const Qvx32f* pDlyLine) { return
    qvxsFIRInitAlloc_32f(ppState, pTaps, tapsLen, pDlyLine); }
inline QvxStatus FIRInitAlloc(QvxsFIRState_32fc** ppState, const Qvx32fc* pTaps, int tapsLen, const Qvx32fc* pDlyLine) { return
    qvxsFIRInitAlloc_32fc(ppState, pTaps, tapsLen, pDlyLine); }
inline QvxStatus FIRInitAlloc(QvxsFIRState32f_16s** ppState, const Qvx32f* pTaps, int tapsLen, const Qvx16s* pDlyLine) { return
    qvxsFIRInitAlloc32f_16s(ppState, pTaps, tapsLen, pDlyLine); }
inline QvxStatus FIRInitAlloc(QvxsFIRState32fc_16sc** ppState, const Qvx32fc* pTaps, int tapsLen, const Qvx16sc* pDlyLine) {
    return qvxsFIRInitAlloc32fc_16sc(ppState, pTaps, tapsLen, pDlyLine); }
inline QvxStatus FIRInitAlloc(QvxsFIRState_64f** ppState, const Qvx64f* pTaps, int tapsLen, const Qvx64f* pDlyLine) { return
    qvxsFIRInitAlloc_64f(ppState, pTaps, tapsLen, pDlyLine); }
inline QvxStatus FIRInitAlloc(QvxsFIRState_64fc** ppState, const Qvx64fc* pTaps, int tapsLen, const Qvx64fc* pDlyLine) { return
    qvxsFIRInitAlloc_64fc(ppState, pTaps, tapsLen, pDlyLine); }
inline QvxStatus FIRInitAlloc(QvxsFIRState64f_32f** ppState, const Qvx64f* pTaps, int tapsLen, const Qvx32f* pDlyLine) { return
    qvxsFIRInitAlloc64f_32f(ppState, pTaps, tapsLen, pDlyLine); }
inline QvxStatus FIRInitAlloc(QvxsFIRState64fc_32fc** ppState, const Qvx64fc* pTaps, int tapsLen, const Qvx32fc* pDlyLine) {
    return qvxsFIRInitAlloc64fc_32fc(ppState, pTaps, tapsLen, pDlyLine); }
inline QvxStatus FIRInitAlloc(QvxsFIRState64f_32s** ppState, const Qvx64f* pTaps, int tapsLen, const Qvx32s* pDlyLine) { return
    qvxsFIRInitAlloc64f_32s(ppState, pTaps, tapsLen, pDlyLine); }
inline QvxStatus FIRInitAlloc(QvxsFIRState64fc_32sc** ppState, const Qvx64fc* pTaps, int tapsLen, const Qvx32sc* pDlyLine) {
    return qvxsFIRInitAlloc64fc_32sc(ppState, pTaps, tapsLen, pDlyLine); }
inline QvxStatus FIRInitAlloc(QvxsFIRState64f_16s** ppState, const Qvx64f* pTaps, int tapsLen, const Qvx16s* pDlyLine) { return
    qvxsFIRInitAlloc64f_16s(ppState, pTaps, tapsLen, pDlyLine); }
inline QvxStatus FIRInitAlloc(QvxsFIRState64fc_16sc** ppState, const Qvx64fc* pTaps, int tapsLen, const Qvx16sc* pDlyLine) {
    return qvxsFIRInitAlloc64fc_16sc(ppState, pTaps, tapsLen, pDlyLine); }
inline QvxStatus FIRInitAlloc(QvxsFIRState32s_16s** ppState, const Qvx32s* pTaps, int tapsLen, int tapsFactor, const Qvx16s*
    pDlyLine) { return qvxsFIRInitAlloc32s_16s(ppState, pTaps, tapsLen, tapsFactor, pDlyLine); }
inline QvxStatus FIRInitAlloc(QvxsFIRState32sc_16sc** ppState, const Qvx32sc* pTaps, int tapsLen, int tapsFactor, const Qvx16sc*
    pDlyLine) { return qvxsFIRInitAlloc32sc_16sc(ppState, pTaps, tapsLen, tapsFactor, pDlyLine); }
inline QvxStatus FIRInitAlloc(QvxsFIRState_16s** ppState, const Qvx16s* pTaps, int tapsLen, int tapsFactor, const Qvx16s*
    pDlyLine) { return qvxsFIRInitAlloc_16s(ppState, pTaps, tapsLen, tapsFactor, pDlyLine); }

// qvxs_fir.h: Releases the block of a record from qvxsFIRInitAlloc; does nothing to one from qvxsFIRInit.
inline QvxStatus FIRFree(QvxsFIRState_32f* pState) { return qvxsFIRFree_32f(pState); }
inline QvxStatus FIRFree(QvxsFIRState_32fc* pState) { return qvxsFIRFree_32fc(pState); }
inline QvxStatus FIRFree(QvxsFIRState32f_16s* pState) { return qvxsFIRFree32f_16s(pState); }
inline QvxStatus FIRFree(QvxsFIRState32fc_16sc* pState) { return qvxsFIRFree32fc_16sc(pState); }
inline QvxStatus FIRFree(QvxsFIRState_64f* pState) { return qvxsFIRFree_64f(pState); }
inline QvxStatus FIRFree(QvxsFIRState_64fc* pState) { return qvxsFIRFree_64fc(pState); }
inline QvxStatus FIRFree(QvxsFIRState64f_32f* pState) { return qvxsFIRFree64f_32f(pState); }
inline QvxStatus FIRFree(QvxsFIRState64fc_32fc* pState) { return qvxsFIRFree64fc_32fc(pState); }
inline QvxStatus FIRFree(QvxsFIRState64f_32s* pState) { return qvxsFIRFree64f_32s(pState); }
inline QvxStatus FIRFree(QvxsFIRState64fc_32sc* pState) { return qvxsFIRFree64fc_32sc(pState); }
inline QvxStatus FIRFree(QvxsFIRState64f_16s* pState) { return qvxsFIRFree64f_16s(pState); }
inline QvxStatus FIRFree(QvxsFIRState64fc_16sc* pState) { return qvxsFIRFree64fc_16sc(pState); }
inline QvxStatus FIRFree(QvxsFIRState32s_16s* pState) { return qvxsFIRFree32s_16s(pState); }
inline QvxStatus FIRFree(QvxsFIRState32sc_16sc* pState) { return qvxsFIRFree32sc_16sc(pState); }
inline QvxStatus FIRFree(QvxsFIRState_16s* pState) { return qvxsFIRFree_16s(pState); }

// qvxs_fir.h: Reads or replaces the taps, h[0] first; the delay line stays. Integer taps are read as they were ...
inline QvxStatus FIRGetTaps(const QvxsFIRState_32f* pState, Qvx32f* pTaps) { return qvxsFIRGetTaps_32f(pState, pTaps); }
inline QvxStatus FIRGetTaps(const QvxsFIRState_32fc* pState, Qvx32fc* pTaps) { return qvxsFIRGetTaps_32fc(pState, pTaps); }
inline QvxStatus FIRGetTaps(const QvxsFIRState32f_16s* pState, Qvx32f* pTaps) { return qvxsFIRGetTaps32f_16s(pState, pTaps); }
inline QvxStatus FIRGetTaps(const QvxsFIRState32fc_16sc* pState, Qvx32fc* pTaps) { return qvxsFIRGetTaps32fc_16sc(pState, pTaps);
    }
inline QvxStatus FIRGetTaps(const QvxsFIRState_64f* pState, Qvx64f* pTaps) { return qvxsFIRGetTaps_64f(pState, pTaps); }
inline QvxStatus FIRGetTaps(const QvxsFIRState_64fc* pState, Qvx64fc* pTaps) { return qvxsFIRGetTaps_64fc(pState, pTaps); }
inline QvxStatus FIRGetTaps(const QvxsFIRState64f_32f* pState, Qvx64f* pTaps) { return qvxsFIRGetTaps64f_32f(pState, pTaps); }
inline QvxStatus FIRGetTaps(const QvxsFIRState64fc_32fc* pState, Qvx64fc* pTaps) { return qvxsFIRGetTaps64fc_32fc(pState, pTaps);
    }
inline QvxStatus FIRGetTaps(const QvxsFIRState64f_32s* pState, Qvx64f* pTaps) { return qvxsFIRGetTaps64f_32s(pState, pTaps); }
inline QvxStatus FIRGetTaps(const QvxsFIRState64fc_32sc* pState, Qvx64fc* pTaps) { return qvxsFIRGetTaps64fc_32sc(pState, pTaps);
    }
inline QvxStatus FIRGetTaps(const QvxsFIRState64f_16s* pState, Qvx64f* pTaps) { return qvxsFIRGetTaps64f_16s(pState, pTaps); }
inline QvxStatus FIRGetTaps(const QvxsFIRState64fc_16sc* pState, Qvx64fc* pTaps) { return qvxsFIRGetTaps64fc_16sc(pState, pTaps);
    }
inline QvxStatus FIRGetTaps(const QvxsFIRState32s_16s* pState, Qvx32s* pTaps, int* pTapsFactor) { return
    qvxsFIRGetTaps32s_16s(pState, pTaps, pTapsFactor); }
inline QvxStatus FIRGetTaps(const QvxsFIRState32sc_16sc* pState, Qvx32sc* pTaps, int* pTapsFactor) { return
    qvxsFIRGetTaps32sc_16sc(pState, pTaps, pTapsFactor); }
inline QvxStatus FIRGetTaps(const QvxsFIRState_16s* pState, Qvx16s* pTaps, int* pTapsFactor) { return qvxsFIRGetTaps_16s(pState,
    pTaps, pTapsFactor); }

// qvxs_fir.h: Reads or replaces the taps, h[0] first; the delay line stays. Integer taps are read as they were ...
inline QvxStatus FIRSetTaps(const Qvx32f* pTaps, QvxsFIRState_32f* pState) { return qvxsFIRSetTaps_32f(pTaps, pState); }
inline QvxStatus FIRSetTaps(const Qvx32fc* pTaps, QvxsFIRState_32fc* pState) { return qvxsFIRSetTaps_32fc(pTaps, pState); }
inline QvxStatus FIRSetTaps(const Qvx32f* pTaps, QvxsFIRState32f_16s* pState) { return qvxsFIRSetTaps32f_16s(pTaps, pState); }
inline QvxStatus FIRSetTaps(const Qvx32fc* pTaps, QvxsFIRState32fc_16sc* pState) { return qvxsFIRSetTaps32fc_16sc(pTaps, pState);
    }
inline QvxStatus FIRSetTaps(const Qvx64f* pTaps, QvxsFIRState_64f* pState) { return qvxsFIRSetTaps_64f(pTaps, pState); }
inline QvxStatus FIRSetTaps(const Qvx64fc* pTaps, QvxsFIRState_64fc* pState) { return qvxsFIRSetTaps_64fc(pTaps, pState); }
inline QvxStatus FIRSetTaps(const Qvx64f* pTaps, QvxsFIRState64f_32f* pState) { return qvxsFIRSetTaps64f_32f(pTaps, pState); }
inline QvxStatus FIRSetTaps(const Qvx64fc* pTaps, QvxsFIRState64fc_32fc* pState) { return qvxsFIRSetTaps64fc_32fc(pTaps, pState);
    }
inline QvxStatus FIRSetTaps(const Qvx64f* pTaps, QvxsFIRState64f_32s* pState) { return qvxsFIRSetTaps64f_32s(pTaps, pState); }
inline QvxStatus FIRSetTaps(const Qvx64fc* pTaps, QvxsFIRState64fc_32sc* pState) { return qvxsFIRSetTaps64fc_32sc(pTaps, pState);
    }
inline QvxStatus FIRSetTaps(const Qvx64f* pTaps, QvxsFIRState64f_16s* pState) { return qvxsFIRSetTaps64f_16s(pTaps, pState); }
inline QvxStatus FIRSetTaps(const Qvx64fc* pTaps, QvxsFIRState64fc_16sc* pState) { return qvxsFIRSetTaps64fc_16sc(pTaps, pState);
    }
inline QvxStatus FIRSetTaps(const Qvx32s* pTaps, QvxsFIRState32s_16s* pState, int tapsFactor) { return
    qvxsFIRSetTaps32s_16s(pTaps, pState, tapsFactor); }
inline QvxStatus FIRSetTaps(const Qvx32sc* pTaps, QvxsFIRState32sc_16sc* pState, int tapsFactor) { return
    qvxsFIRSetTaps32sc_16sc(pTaps, pState, tapsFactor); }
inline QvxStatus FIRSetTaps(const Qvx16s* pTaps, QvxsFIRState_16s* pState, int tapsFactor) { return qvxsFIRSetTaps_16s(pTaps,
    pState, tapsFactor); }

// qvxs_fir.h: Reads or replaces the last tapsLen samples, newest first; qvxsFIRSetDlyLine takes null for ...
inline QvxStatus FIRGetDlyLine(const QvxsFIRState_32f* pState, Qvx32f* pDlyLine) { return qvxsFIRGetDlyLine_32f(pState, pDlyLine);
    }
inline QvxStatus FIRGetDlyLine(const QvxsFIRState_32fc* pState, Qvx32fc* pDlyLine) { return qvxsFIRGetDlyLine_32fc(pState,
    pDlyLine); }
inline QvxStatus FIRGetDlyLine(const QvxsFIRState32f_16s* pState, Qvx16s* pDlyLine) { return qvxsFIRGetDlyLine32f_16s(pState,
    pDlyLine); }
inline QvxStatus FIRGetDlyLine(const QvxsFIRState32fc_16sc* pState, Qvx16sc* pDlyLine) { return qvxsFIRGetDlyLine32fc_16sc(pState,
    pDlyLine); }
inline QvxStatus FIRGetDlyLine(const QvxsFIRState_64f* pState, Qvx64f* pDlyLine) { return qvxsFIRGetDlyLine_64f(pState, pDlyLine);
    }
inline QvxStatus FIRGetDlyLine(const QvxsFIRState_64fc* pState, Qvx64fc* pDlyLine) { return qvxsFIRGetDlyLine_64fc(pState,
    pDlyLine); }
inline QvxStatus FIRGetDlyLine(const QvxsFIRState64f_32f* pState, Qvx32f* pDlyLine) { return qvxsFIRGetDlyLine64f_32f(pState,
    pDlyLine); }
inline QvxStatus FIRGetDlyLine(const QvxsFIRState64fc_32fc* pState, Qvx32fc* pDlyLine) { return qvxsFIRGetDlyLine64fc_32fc(pState,
    pDlyLine); }
inline QvxStatus FIRGetDlyLine(const QvxsFIRState64f_32s* pState, Qvx32s* pDlyLine) { return qvxsFIRGetDlyLine64f_32s(pState,
    pDlyLine); }
inline QvxStatus FIRGetDlyLine(const QvxsFIRState64fc_32sc* pState, Qvx32sc* pDlyLine) { return qvxsFIRGetDlyLine64fc_32sc(pState,
    pDlyLine); }
inline QvxStatus FIRGetDlyLine(const QvxsFIRState64f_16s* pState, Qvx16s* pDlyLine) { return qvxsFIRGetDlyLine64f_16s(pState,
    pDlyLine); }
inline QvxStatus FIRGetDlyLine(const QvxsFIRState64fc_16sc* pState, Qvx16sc* pDlyLine) { return qvxsFIRGetDlyLine64fc_16sc(pState,
    pDlyLine); }
inline QvxStatus FIRGetDlyLine(const QvxsFIRState32s_16s* pState, Qvx16s* pDlyLine) { return qvxsFIRGetDlyLine32s_16s(pState,
    pDlyLine); }
inline QvxStatus FIRGetDlyLine(const QvxsFIRState32sc_16sc* pState, Qvx16sc* pDlyLine) { return qvxsFIRGetDlyLine32sc_16sc(pState,
    pDlyLine); }
inline QvxStatus FIRGetDlyLine(const QvxsFIRState_16s* pState, Qvx16s* pDlyLine) { return qvxsFIRGetDlyLine_16s(pState, pDlyLine);
    }

// qvxs_fir.h: Reads or replaces the last tapsLen samples, newest first; qvxsFIRSetDlyLine takes null for ...
inline QvxStatus FIRSetDlyLine(QvxsFIRState_32f* pState, const Qvx32f* pDlyLine) { return qvxsFIRSetDlyLine_32f(pState, pDlyLine);
    }
inline QvxStatus FIRSetDlyLine(QvxsFIRState_32fc* pState, const Qvx32fc* pDlyLine) { return qvxsFIRSetDlyLine_32fc(pState,
    pDlyLine); }
inline QvxStatus FIRSetDlyLine(QvxsFIRState32f_16s* pState, const Qvx16s* pDlyLine) { return qvxsFIRSetDlyLine32f_16s(pState,
    pDlyLine); }
inline QvxStatus FIRSetDlyLine(QvxsFIRState32fc_16sc* pState, const Qvx16sc* pDlyLine) { return qvxsFIRSetDlyLine32fc_16sc(pState,
    pDlyLine); }
inline QvxStatus FIRSetDlyLine(QvxsFIRState_64f* pState, const Qvx64f* pDlyLine) { return qvxsFIRSetDlyLine_64f(pState, pDlyLine);
    }
inline QvxStatus FIRSetDlyLine(QvxsFIRState_64fc* pState, const Qvx64fc* pDlyLine) { return qvxsFIRSetDlyLine_64fc(pState,
    pDlyLine); }
inline QvxStatus FIRSetDlyLine(QvxsFIRState64f_32f* pState, const Qvx32f* pDlyLine) { return qvxsFIRSetDlyLine64f_32f(pState,
    pDlyLine); }
inline QvxStatus FIRSetDlyLine(QvxsFIRState64fc_32fc* pState, const Qvx32fc* pDlyLine) { return qvxsFIRSetDlyLine64fc_32fc(pState,
    pDlyLine); }
inline QvxStatus FIRSetDlyLine(QvxsFIRState64f_32s* pState, const Qvx32s* pDlyLine) { return qvxsFIRSetDlyLine64f_32s(pState,
    pDlyLine); }
inline QvxStatus FIRSetDlyLine(QvxsFIRState64fc_32sc* pState, const Qvx32sc* pDlyLine) { return qvxsFIRSetDlyLine64fc_32sc(pState,
    pDlyLine); }
inline QvxStatus FIRSetDlyLine(QvxsFIRState64f_16s* pState, const Qvx16s* pDlyLine) { return qvxsFIRSetDlyLine64f_16s(pState,
    pDlyLine); }
inline QvxStatus FIRSetDlyLine(QvxsFIRState64fc_16sc* pState, const Qvx16sc* pDlyLine) { return qvxsFIRSetDlyLine64fc_16sc(pState,
    pDlyLine); }
inline QvxStatus FIRSetDlyLine(QvxsFIRState32s_16s* pState, const Qvx16s* pDlyLine) { return qvxsFIRSetDlyLine32s_16s(pState,
    pDlyLine); }
inline QvxStatus FIRSetDlyLine(QvxsFIRState32sc_16sc* pState, const Qvx16sc* pDlyLine) { return qvxsFIRSetDlyLine32sc_16sc(pState,
    pDlyLine); }
inline QvxStatus FIRSetDlyLine(QvxsFIRState_16s* pState, const Qvx16s* pDlyLine) { return qvxsFIRSetDlyLine_16s(pState, pDlyLine);
    }

// qvxs_fir.h: The record of 64f_32s with integer taps, which never goes through the FFT.
inline QvxStatus FIRInit(QvxsFIRState_32s** ppState, const Qvx32s* pTaps, int tapsLen, const Qvx32s* pDlyLine, Qvx8u* pBuffer) {
    return qvxsFIRInit_32s(ppState, pTaps, tapsLen, pDlyLine, pBuffer); }

// qvxs_fir.h: The record of 64f_32s with integer taps, which never goes through the FFT.
inline QvxStatus FIRInitAlloc(QvxsFIRState_32s** ppState, const Qvx32s* pTaps, int tapsLen, const Qvx32s* pDlyLine) { return
    qvxsFIRInitAlloc_32s(ppState, pTaps, tapsLen, pDlyLine); }

// qvxs_fir.h: The record of 64f_32s with integer taps, which never goes through the FFT.
inline QvxStatus FIRGetStateSize(Types<Qvx32s>, int tapsLen, int* pSize) { return qvxsFIRGetStateSize_32s(tapsLen, pSize); }

// qvxs_fir.h: The record of 64f_32s with integer taps, which never goes through the FFT.
inline QvxStatus FIRGetTaps(const QvxsFIRState_32s* pState, Qvx32s* pTaps) { return qvxsFIRGetTaps_32s(pState, pTaps); }

// qvxs_fir.h: The record of 64f_32s with integer taps, which never goes through the FFT.
inline QvxStatus FIRSetTaps(const Qvx32s* pTaps, QvxsFIRState_32s* pState) { return qvxsFIRSetTaps_32s(pTaps, pState); }

// qvxs_fir.h: The record of 64f_32s with integer taps, which never goes through the FFT.
inline QvxStatus FIRFree(Types<Qvx32s>, QvxsFIRState_32s* pState) { return qvxsFIRFree_32s(pState); }

// qvxs_fir.h: The records of 32s_16s and 32sc_16sc with taps given as floats: scaled by the power of two that ...
inline QvxStatus FIRInit(QvxsFIRState32s_16s** ppState, const Qvx32f* pTaps, int tapsLen, const Qvx16s* pDlyLine, Qvx8u* pBuffer)
    { return qvxsFIRInit32s_16s32f(ppState, pTaps, tapsLen, pDlyLine, pBuffer); }
inline QvxStatus FIRInit(QvxsFIRState32sc_16sc** ppState, const Qvx32fc* pTaps, int tapsLen, const Qvx16sc* pDlyLine, Qvx8u*
    pBuffer) { return qvxsFIRInit32sc_16sc32fc(ppState, pTaps, tapsLen, pDlyLine, pBuffer); }

// qvxs_fir.h: The records of 32s_16s and 32sc_16sc with taps given as floats: scaled by the power of two that ...
inline QvxStatus FIRInitAlloc(QvxsFIRState32s_16s** ppState, const Qvx32f* pTaps, int tapsLen, const Qvx16s* pDlyLine) { return
    qvxsFIRInitAlloc32s_16s32f(ppState, pTaps, tapsLen, pDlyLine); }
inline QvxStatus FIRInitAlloc(QvxsFIRState32sc_16sc** ppState, const Qvx32fc* pTaps, int tapsLen, const Qvx16sc* pDlyLine) {
    return qvxsFIRInitAlloc32sc_16sc32fc(ppState, pTaps, tapsLen, pDlyLine); }

// qvxs_fir.h: The records of 32s_16s and 32sc_16sc with taps given as floats: scaled by the power of two that ...
inline QvxStatus FIRGetStateSize(Types<Qvx32s, Qvx16s, Qvx32f>, int tapsLen, int* pSize) { return
    qvxsFIRGetStateSize32s_16s32f(tapsLen, pSize); }
inline QvxStatus FIRGetStateSize(Types<Qvx32sc, Qvx16sc, Qvx32fc>, int tapsLen, int* pSize) { return
    qvxsFIRGetStateSize32sc_16sc32fc(tapsLen, pSize); }

// qvxs_fir.h: The records of 32s_16s and 32sc_16sc with taps given as floats: scaled by the power of two that ...
inline QvxStatus FIRGetTaps(const QvxsFIRState32s_16s* pState, Qvx32f* pTaps) { return qvxsFIRGetTaps32s_16s32f(pState, pTaps); }
inline QvxStatus FIRGetTaps(const QvxsFIRState32sc_16sc* pState, Qvx32fc* pTaps) { return qvxsFIRGetTaps32sc_16sc32fc(pState,
    pTaps); }

// qvxs_fir.h: The records of 32s_16s and 32sc_16sc with taps given as floats: scaled by the power of two that ...
inline QvxStatus FIRSetTaps(const Qvx32f* pTaps, QvxsFIRState32s_16s* pState) { return qvxsFIRSetTaps32s_16s32f(pTaps, pState); }
inline QvxStatus FIRSetTaps(const Qvx32fc* pTaps, QvxsFIRState32sc_16sc* pState) { return qvxsFIRSetTaps32sc_16sc32fc(pTaps,
    pState); }

// qvxs_fir.h: The size of the records of the stream forms, as qvxsFIRGetStateSize.
inline QvxStatus FIRStreamGetStateSize(Types<Qvx16s>, int tapsLen, int* pSize) { return qvxsFIRStreamGetStateSize_16s(tapsLen,
    pSize); }
inline QvxStatus FIRStreamGetStateSize(Types<Qvx32f>, int tapsLen, int* pSize) { return qvxsFIRStreamGetStateSize_32f(tapsLen,
    pSize); }

// qvxs_fir.h: Filters numIters samples from pSrc to pDst, or in place; qvxsFIROne filters a single one. Any ...
inline QvxStatus FIR(const Qvx32f* pSrc, Qvx32f* pDst, int numIters, QvxsFIRState_32f* pState) { return qvxsFIR_32f(pSrc, pDst,
    numIters, pState); }
inline QvxStatus FIR(Qvx32f* pSrcDst, int numIters, QvxsFIRState_32f* pState) { return qvxsFIR_32f_I(pSrcDst, numIters, pState); }

// qvxs_fir.h: Filters numIters samples from pSrc to pDst, or in place; qvxsFIROne filters a single one. Any ...
inline QvxStatus FIROne(Qvx32f src, Qvx32f* pDstVal, QvxsFIRState_32f* pState) { return qvxsFIROne_32f(src, pDstVal, pState); }

// qvxs_fir.h: Filters numIters samples from pSrc to pDst, or in place; qvxsFIROne filters a single one. Any ...
inline QvxStatus FIR(const Qvx32fc* pSrc, Qvx32fc* pDst, int numIters, QvxsFIRState_32fc* pState) { return qvxsFIR_32fc(pSrc,
    pDst, numIters, pState); }
inline QvxStatus FIR(Qvx32fc* pSrcDst, int numIters, QvxsFIRState_32fc* pState) { return qvxsFIR_32fc_I(pSrcDst, numIters,
    pState); }

// qvxs_fir.h: Filters numIters samples from pSrc to pDst, or in place; qvxsFIROne filters a single one. Any ...
inline QvxStatus FIROne(Qvx32fc src, Qvx32fc* pDstVal, QvxsFIRState_32fc* pState) { return qvxsFIROne_32fc(src, pDstVal, pState);
    }

// qvxs_fir.h: Filters numIters samples from pSrc to pDst, or in place; qvxsFIROne filters a single one. Any ...
inline QvxStatus FIR(const Qvx16s* pSrc, Qvx16s* pDst, int numIters, QvxsFIRState32f_16s* pState, int scaleFactor) { return
    qvxsFIR32f_16s_Sfs(pSrc, pDst, numIters, pState, scaleFactor); }
inline QvxStatus FIR(Qvx16s* pSrcDst, int numIters, QvxsFIRState32f_16s* pState, int scaleFactor) { return
    qvxsFIR32f_16s_ISfs(pSrcDst, numIters, pState, scaleFactor); }

// qvxs_fir.h: Filters numIters samples from pSrc to pDst, or in place; qvxsFIROne filters a single one. Any ...
inline QvxStatus FIROne(Qvx16s src, Qvx16s* pDstVal, QvxsFIRState32f_16s* pState, int scaleFactor) { return
    qvxsFIROne32f_16s_Sfs(src, pDstVal, pState, scaleFactor); }

// qvxs_fir.h: Filters numIters samples from pSrc to pDst, or in place; qvxsFIROne filters a single one. Any ...
inline QvxStatus FIR(const Qvx16sc* pSrc, Qvx16sc* pDst, int numIters, QvxsFIRState32fc_16sc* pState, int scaleFactor) { return
    qvxsFIR32fc_16sc_Sfs(pSrc, pDst, numIters, pState, scaleFactor); }
inline QvxStatus FIR(Qvx16sc* pSrcDst, int numIters, QvxsFIRState32fc_16sc* pState, int scaleFactor) { return
    qvxsFIR32fc_16sc_ISfs(pSrcDst, numIters, pState, scaleFactor); }

// qvxs_fir.h: Filters numIters samples from pSrc to pDst, or in place; qvxsFIROne filters a single one. Any ...
inline QvxStatus FIROne(Qvx16sc src, Qvx16sc* pDstVal, QvxsFIRState32fc_16sc* pState, int scaleFactor) { return
    qvxsFIROne32fc_16sc_Sfs(src, pDstVal, pState, scaleFactor); }

// qvxs_fir.h: Filters numIters samples from pSrc to pDst, or in place; qvxsFIROne filters a single one. Any ...
inline QvxStatus FIR(const Qvx64f* pSrc, Qvx64f* pDst, int numIters, QvxsFIRState_64f* pState) { return qvxsFIR_64f(pSrc, pDst,
    numIters, pState); }
inline QvxStatus FIR(Qvx64f* pSrcDst, int numIters, QvxsFIRState_64f* pState) { return qvxsFIR_64f_I(pSrcDst, numIters, pState); }

// qvxs_fir.h: Filters numIters samples from pSrc to pDst, or in place; qvxsFIROne filters a single one. Any ...
inline QvxStatus FIROne(Qvx64f src, Qvx64f* pDstVal, QvxsFIRState_64f* pState) { return qvxsFIROne_64f(src, pDstVal, pState); }

// qvxs_fir.h: Filters numIters samples from pSrc to pDst, or in place; qvxsFIROne filters a single one. Any ...
inline QvxStatus FIR(const Qvx64fc* pSrc, Qvx64fc* pDst, int numIters, QvxsFIRState_64fc* pState) { return qvxsFIR_64fc(pSrc,
    pDst, numIters, pState); }
inline QvxStatus FIR(Qvx64fc* pSrcDst, int numIters, QvxsFIRState_64fc* pState) { return qvxsFIR_64fc_I(pSrcDst, numIters,
    pState); }

// qvxs_fir.h: Filters numIters samples from pSrc to pDst, or in place; qvxsFIROne filters a single one. Any ...
inline QvxStatus FIROne(Qvx64fc src, Qvx64fc* pDstVal, QvxsFIRState_64fc* pState) { return qvxsFIROne_64fc(src, pDstVal, pState);
    }

// qvxs_fir.h: Filters numIters samples from pSrc to pDst, or in place; qvxsFIROne filters a single one. Any ...
inline QvxStatus FIR(const Qvx32f* pSrc, Qvx32f* pDst, int numIters, QvxsFIRState64f_32f* pState) { return qvxsFIR64f_32f(pSrc,
    pDst, numIters, pState); }
inline QvxStatus FIR(Qvx32f* pSrcDst, int numIters, QvxsFIRState64f_32f* pState) { return qvxsFIR64f_32f_I(pSrcDst, numIters,
    pState); }

// qvxs_fir.h: Filters numIters samples from pSrc to pDst, or in place; qvxsFIROne filters a single one. Any ...
inline QvxStatus FIROne(Qvx32f src, Qvx32f* pDstVal, QvxsFIRState64f_32f* pState) { return qvxsFIROne64f_32f(src, pDstVal,
    pState); }

// qvxs_fir.h: Filters numIters samples from pSrc to pDst, or in place; qvxsFIROne filters a single one. Any ...
inline QvxStatus FIR(const Qvx32fc* pSrc, Qvx32fc* pDst, int numIters, QvxsFIRState64fc_32fc* pState) { return
    qvxsFIR64fc_32fc(pSrc, pDst, numIters, pState); }
inline QvxStatus FIR(Qvx32fc* pSrcDst, int numIters, QvxsFIRState64fc_32fc* pState) { return qvxsFIR64fc_32fc_I(pSrcDst, numIters,
    pState); }

// qvxs_fir.h: Filters numIters samples from pSrc to pDst, or in place; qvxsFIROne filters a single one. Any ...
inline QvxStatus FIROne(Qvx32fc src, Qvx32fc* pDstVal, QvxsFIRState64fc_32fc* pState) { return qvxsFIROne64fc_32fc(src, pDstVal,
    pState); }

// qvxs_fir.h: Filters numIters samples from pSrc to pDst, or in place; qvxsFIROne filters a single one. Any ...
inline QvxStatus FIR(const Qvx32s* pSrc, Qvx32s* pDst, int numIters, QvxsFIRState64f_32s* pState, int scaleFactor) { return
    qvxsFIR64f_32s_Sfs(pSrc, pDst, numIters, pState, scaleFactor); }
inline QvxStatus FIR(Qvx32s* pSrcDst, int numIters, QvxsFIRState64f_32s* pState, int scaleFactor) { return
    qvxsFIR64f_32s_ISfs(pSrcDst, numIters, pState, scaleFactor); }

// qvxs_fir.h: Filters numIters samples from pSrc to pDst, or in place; qvxsFIROne filters a single one. Any ...
inline QvxStatus FIROne(Qvx32s src, Qvx32s* pDstVal, QvxsFIRState64f_32s* pState, int scaleFactor) { return
    qvxsFIROne64f_32s_Sfs(src, pDstVal, pState, scaleFactor); }

// qvxs_fir.h: Filters numIters samples from pSrc to pDst, or in place; qvxsFIROne filters a single one. Any ...
inline QvxStatus FIR(const Qvx32sc* pSrc, Qvx32sc* pDst, int numIters, QvxsFIRState64fc_32sc* pState, int scaleFactor) { return
    qvxsFIR64fc_32sc_Sfs(pSrc, pDst, numIters, pState, scaleFactor); }
inline QvxStatus FIR(Qvx32sc* pSrcDst, int numIters, QvxsFIRState64fc_32sc* pState, int scaleFactor) { return
    qvxsFIR64fc_32sc_ISfs(pSrcDst, numIters, pState, scaleFactor); }

// qvxs_fir.h: Filters numIters samples from pSrc to pDst, or in place; qvxsFIROne filters a single one. Any ...
inline QvxStatus FIROne(Qvx32sc src, Qvx32sc* pDstVal, QvxsFIRState64fc_32sc* pState, int scaleFactor) { return
    qvxsFIROne64fc_32sc_Sfs(src, pDstVal, pState, scaleFactor); }

// qvxs_fir.h: Filters numIters samples from pSrc to pDst, or in place; qvxsFIROne filters a single one. Any ...
inline QvxStatus FIR(const Qvx16s* pSrc, Qvx16s* pDst, int numIters, QvxsFIRState64f_16s* pState, int scaleFactor) { return
    qvxsFIR64f_16s_Sfs(pSrc, pDst, numIters, pState, scaleFactor); }
inline QvxStatus FIR(Qvx16s* pSrcDst, int numIters, QvxsFIRState64f_16s* pState, int scaleFactor) { return
    qvxsFIR64f_16s_ISfs(pSrcDst, numIters, pState, scaleFactor); }

// qvxs_fir.h: Filters numIters samples from pSrc to pDst, or in place; qvxsFIROne filters a single one. Any ...
inline QvxStatus FIROne(Qvx16s src, Qvx16s* pDstVal, QvxsFIRState64f_16s* pState, int scaleFactor) { return
    qvxsFIROne64f_16s_Sfs(src, pDstVal, pState, scaleFactor); }

// qvxs_fir.h: Filters numIters samples from pSrc to pDst, or in place; qvxsFIROne filters a single one. Any ...
inline QvxStatus FIR(const Qvx16sc* pSrc, Qvx16sc* pDst, int numIters, QvxsFIRState64fc_16sc* pState, int scaleFactor) { return
    qvxsFIR64fc_16sc_Sfs(pSrc, pDst, numIters, pState, scaleFactor); }
inline QvxStatus FIR(Qvx16sc* pSrcDst, int numIters, QvxsFIRState64fc_16sc* pState, int scaleFactor) { return
    qvxsFIR64fc_16sc_ISfs(pSrcDst, numIters, pState, scaleFactor); }

// qvxs_fir.h: Filters numIters samples from pSrc to pDst, or in place; qvxsFIROne filters a single one. Any ...
inline QvxStatus FIROne(Qvx16sc src, Qvx16sc* pDstVal, QvxsFIRState64fc_16sc* pState, int scaleFactor) { return
    qvxsFIROne64fc_16sc_Sfs(src, pDstVal, pState, scaleFactor); }

// qvxs_fir.h: Filters numIters samples from pSrc to pDst, or in place; qvxsFIROne filters a single one. Any ...
inline QvxStatus FIR(const Qvx16s* pSrc, Qvx16s* pDst, int numIters, QvxsFIRState32s_16s* pState, int scaleFactor) { return
    qvxsFIR32s_16s_Sfs(pSrc, pDst, numIters, pState, scaleFactor); }
inline QvxStatus FIR(Qvx16s* pSrcDst, int numIters, QvxsFIRState32s_16s* pState, int scaleFactor) { return
    qvxsFIR32s_16s_ISfs(pSrcDst, numIters, pState, scaleFactor); }

// qvxs_fir.h: Filters numIters samples from pSrc to pDst, or in place; qvxsFIROne filters a single one. Any ...
inline QvxStatus FIROne(Qvx16s src, Qvx16s* pDstVal, QvxsFIRState32s_16s* pState, int scaleFactor) { return
    qvxsFIROne32s_16s_Sfs(src, pDstVal, pState, scaleFactor); }

// qvxs_fir.h: Filters numIters samples from pSrc to pDst, or in place; qvxsFIROne filters a single one. Any ...
inline QvxStatus FIR(const Qvx16sc* pSrc, Qvx16sc* pDst, int numIters, QvxsFIRState32sc_16sc* pState, int scaleFactor) { return
    qvxsFIR32sc_16sc_Sfs(pSrc, pDst, numIters, pState, scaleFactor); }
inline QvxStatus FIR(Qvx16sc* pSrcDst, int numIters, QvxsFIRState32sc_16sc* pState, int scaleFactor) { return
    qvxsFIR32sc_16sc_ISfs(pSrcDst, numIters, pState, scaleFactor); }

// qvxs_fir.h: Filters numIters samples from pSrc to pDst, or in place; qvxsFIROne filters a single one. Any ...
inline QvxStatus FIROne(Qvx16sc src, Qvx16sc* pDstVal, QvxsFIRState32sc_16sc* pState, int scaleFactor) { return
    qvxsFIROne32sc_16sc_Sfs(src, pDstVal, pState, scaleFactor); }

// qvxs_fir.h: Filters numIters samples from pSrc to pDst, or in place; qvxsFIROne filters a single one. Any ...
inline QvxStatus FIR(const Qvx16s* pSrc, Qvx16s* pDst, int numIters, QvxsFIRState_16s* pState, int scaleFactor) { return
    qvxsFIR_16s_Sfs(pSrc, pDst, numIters, pState, scaleFactor); }
inline QvxStatus FIR(Qvx16s* pSrcDst, int numIters, QvxsFIRState_16s* pState, int scaleFactor) { return qvxsFIR_16s_ISfs(pSrcDst,
    numIters, pState, scaleFactor); }

// qvxs_fir.h: Filters numIters samples from pSrc to pDst, or in place; qvxsFIROne filters a single one. Any ...
inline QvxStatus FIROne(Qvx16s src, Qvx16s* pDstVal, QvxsFIRState_16s* pState, int scaleFactor) { return qvxsFIROne_16s_Sfs(src,
    pDstVal, pState, scaleFactor); }

// qvxs_fir.h: Filters numIters samples from pSrc to pDst, or in place; qvxsFIROne filters a single one. Any ...
inline QvxStatus FIR(Types<Qvx32s>, const Qvx32s* pSrc, Qvx32s* pDst, int numIters, QvxsFIRState_32s* pState, int scaleFactor) {
    return qvxsFIR_32s_Sfs(pSrc, pDst, numIters, pState, scaleFactor); }
inline QvxStatus FIR(Types<Qvx32s>, Qvx32s* pSrcDst, int numIters, QvxsFIRState_32s* pState, int scaleFactor) { return
    qvxsFIR_32s_ISfs(pSrcDst, numIters, pState, scaleFactor); }

// qvxs_fir.h: Filters numIters samples from pSrc to pDst, or in place; qvxsFIROne filters a single one. Any ...
inline QvxStatus FIROne(Types<Qvx32s>, Qvx32s src, Qvx32s* pDstVal, QvxsFIRState_32s* pState, int scaleFactor) { return
    qvxsFIROne_32s_Sfs(src, pDstVal, pState, scaleFactor); }

// qvxs_multirate.h: *pSize = the bytes of a record, for a block of any alignment. With N = tapsLen, u = upFactor, d ...
inline QvxStatus FIRMRGetStateSize(Types<Qvx32f>, int tapsLen, int upFactor, int downFactor, int* pSize) { return
    qvxsFIRMRGetStateSize_32f(tapsLen, upFactor, downFactor, pSize); }
inline QvxStatus FIRMRGetStateSize(Types<Qvx32fc>, int tapsLen, int upFactor, int downFactor, int* pSize) { return
    qvxsFIRMRGetStateSize_32fc(tapsLen, upFactor, downFactor, pSize); }
inline QvxStatus FIRMRGetStateSize(Types<Qvx32f, Qvx16s>, int tapsLen, int upFactor, int downFactor, int* pSize) { return
    qvxsFIRMRGetStateSize32f_16s(tapsLen, upFactor, downFactor, pSize); }
inline QvxStatus FIRMRGetStateSize(Types<Qvx32fc, Qvx16sc>, int tapsLen, int upFactor, int downFactor, int* pSize) { return
    qvxsFIRMRGetStateSize32fc_16sc(tapsLen, upFactor, downFactor, pSize); }
inline QvxStatus FIRMRGetStateSize(Types<Qvx64f>, int tapsLen, int upFactor, int downFactor, int* pSize) { return
    qvxsFIRMRGetStateSize_64f(tapsLen, upFactor, downFactor, pSize); }
inline QvxStatus FIRMRGetStateSize(Types<Qvx64fc>, int tapsLen, int upFactor, int downFactor, int* pSize) { return
    qvxsFIRMRGetStateSize_64fc(tapsLen, upFactor, downFactor, pSize); }
inline QvxStatus FIRMRGetStateSize(Types<Qvx64f, Qvx32f>, int tapsLen, int upFactor, int downFactor, int* pSize) { return
    qvxsFIRMRGetStateSize64f_32f(tapsLen, upFactor, downFactor, pSize); }
inline QvxStatus FIRMRGetStateSize(Types<Qvx64fc, Qvx32fc>, int tapsLen, int upFactor, int downFactor, int* pSize) { return
    qvxsFIRMRGetStateSize64fc_32fc(tapsLen, upFactor, downFactor, pSize); }
inline QvxStatus FIRMRGetStateSize(Types<Qvx64f, Qvx32s>, int tapsLen, int upFactor, int downFactor, int* pSize) { return
    qvxsFIRMRGetStateSize64f_32s(tapsLen, upFactor, downFactor, pSize); }
inline QvxStatus FIRMRGetStateSize(Types<Qvx64fc, Qvx32sc>, int tapsLen, int upFactor, int downFactor, int* pSize) { return
    qvxsFIRMRGetStateSize64fc_32sc(tapsLen, upFactor, downFactor, pSize); }
inline QvxStatus FIRMRGetStateSize(Types<Qvx64f, Qvx16s>, int tapsLen, int upFactor, int downFactor, int* pSize) { return
    qvxsFIRMRGetStateSize64f_16s(tapsLen, upFactor, downFactor, pSize); }
inline QvxStatus FIRMRGetStateSize(Types<Qvx64fc, Qvx16sc>, int tapsLen, int upFactor, int downFactor, int* pSize) { return
    qvxsFIRMRGetStateSize64fc_16sc(tapsLen, upFactor, downFactor, pSize); }
inline QvxStatus FIRMRGetStateSize(Types<Qvx32s, Qvx16s>, int tapsLen, int upFactor, int downFactor, int* pSize) { return
    qvxsFIRMRGetStateSize32s_16s(tapsLen, upFactor, downFactor, pSize); }
inline QvxStatus FIRMRGetStateSize(Types<Qvx32sc, Qvx16sc>, int tapsLen, int upFactor, int downFactor, int* pSize) { return
    qvxsFIRMRGetStateSize32sc_16sc(tapsLen, upFactor, downFactor, pSize); }
inline QvxStatus FIRMRGetStateSize(Types<Qvx16s>, int tapsLen, int upFactor, int downFactor, int* pSize) { return
    qvxsFIRMRGetStateSize_16s(tapsLen, upFactor, downFactor, pSize); }

// qvxs_multirate.h: Builds a record in pBuffer, of the size that qvxsFIRMRGetStateSize gives, and stores its address ...
inline QvxStatus FIRMRInit(QvxsFIRState_32f** ppState, const Qvx32f* pTaps, int tapsLen, int upFactor, int upPhase, int
    downFactor, int downPhase, const Qvx32f* pDlyLine, Qvx8u* pBuffer) { return qvxsFIRMRInit_32f(ppState, pTaps, tapsLen,
    upFactor, upPhase, downFactor, downPhase, pDlyLine, pBuffer); }
inline QvxStatus FIRMRInit(QvxsFIRState_32fc** ppState, const Qvx32fc* pTaps, int tapsLen, int upFactor, int upPhase, int
    downFactor, int downPhase, const Qvx32fc* pDlyLine, Qvx8u* pBuffer) { return qvxsFIRMRInit_32fc(ppState, pTaps, tapsLen,
    upFactor, upPhase, downFactor, downPhase, pDlyLine, pBuffer); }
inline QvxStatus FIRMRInit(QvxsFIRState32f_16s** ppState, const Qvx32f* pTaps, int tapsLen, int upFactor, int upPhase, int
    downFactor, int downPhase, const Qvx16s* pDlyLine, Qvx8u* pBuffer) { return qvxsFIRMRInit32f_16s(ppState, pTaps, tapsLen,
    upFactor, upPhase, downFactor, downPhase, pDlyLine, pBuffer); }
inline QvxStatus FIRMRInit(QvxsFIRState32fc_16sc** ppState, const Qvx32fc* pTaps, int tapsLen, int upFactor, int upPhase, int
    downFactor, int downPhase, const Qvx16sc* pDlyLine, Qvx8u* pBuffer) { return qvxsFIRMRInit32fc_16sc(ppState, pTaps, tapsLen,
    upFactor, upPhase, downFactor, downPhase, pDlyLine, pBuffer); }
inline QvxStatus FIRMRInit(QvxsFIRState_64f** ppState, const Qvx64f* pTaps, int tapsLen, int upFactor, int upPhase, int
    downFactor, int downPhase, const Qvx64f* pDlyLine, Qvx8u* pBuffer) { return qvxsFIRMRInit_64f(ppState, pTaps, tapsLen,
    upFactor, upPhase, downFactor, downPhase, pDlyLine, pBuffer); }
inline QvxStatus FIRMRInit(QvxsFIRState_64fc** ppState, const Qvx64fc* pTaps, int tapsLen, int upFactor, int upPhase, int
    downFactor, int downPhase, const Qvx64fc* pDlyLine, Qvx8u* pBuffer) { return qvxsFIRMRInit_64fc(ppState, pTaps, tapsLen,
    upFactor, upPhase, downFactor, downPhase, pDlyLine, pBuffer); }
inline QvxStatus FIRMRInit(QvxsFIRState64f_32f** ppState, const Qvx64f* pTaps, int tapsLen, int upFactor, int upPhase, int
    downFactor, int downPhase, const Qvx32f* pDlyLine, Qvx8u* pBuffer) { return qvxsFIRMRInit64f_32f(ppState, pTaps, tapsLen,
    upFactor, upPhase, downFactor, downPhase, pDlyLine, pBuffer); }
inline QvxStatus FIRMRInit(QvxsFIRState64fc_32fc** ppState, const Qvx64fc* pTaps, int tapsLen, int upFactor, int upPhase, int
    downFactor, int downPhase, const Qvx32fc* pDlyLine, Qvx8u* pBuffer) { return qvxsFIRMRInit64fc_32fc(ppState, pTaps, tapsLen,
    upFactor, upPhase, downFactor, downPhase, pDlyLine, pBuffer); }
inline QvxStatus FIRMRInit(QvxsFIRState64f_32s** ppState, const Qvx64f* pTaps, int tapsLen, int upFactor, int upPhase, int
    downFactor, int downPhase, const Qvx32s* pDlyLine, Qvx8u* pBuffer) { return qvxsFIRMRInit64f_32s(ppState, pTaps, tapsLen,
    upFactor, upPhase, downFactor, downPhase, pDlyLine, pBuffer); }
inline QvxStatus FIRMRInit(QvxsFIRState64fc_32sc** ppState, const Qvx64fc* pTaps, int tapsLen, int upFactor, int upPhase, int
    downFactor, int downPhase, const Qvx32sc* pDlyLine, Qvx8u* pBuffer) { return qvxsFIRMRInit64fc_32sc(ppState, pTaps, tapsLen,
    upFactor, upPhase, downFactor, downPhase, pDlyLine, pBuffer); }
inline QvxStatus FIRMRInit(QvxsFIRState64f_16s** ppState, const Qvx64f* pTaps, int tapsLen, int upFactor, int upPhase, int
    downFactor, int downPhase, const Qvx16s* pDlyLine, Qvx8u* pBuffer) { return qvxsFIRMRInit64f_16s(ppState, pTaps, tapsLen,
    upFactor, upPhase, downFactor, downPhase, pDlyLine, pBuffer); }
inline QvxStatus FIRMRInit(QvxsFIRState64fc_16sc** ppState, const Qvx64fc* pTaps, int tapsLen, int upFactor, int upPhase, int
    downFactor, int downPhase, const Qvx16sc* pDlyLine, Qvx8u* pBuffer) { return qvxsFIRMRInit64fc_16sc(ppState, pTaps, tapsLen,
    upFactor, upPhase, downFactor, downPhase, pDlyLine, pBuffer); }
inline QvxStatus FIRMRInit(QvxsFIRState32s_16s** ppState, const Qvx32s* pTaps, int tapsLen, int tapsFactor, int upFactor, int
    upPhase, int downFactor, int downPhase, const Qvx16s* pDlyLine, Qvx8u* pBuffer) { return qvxsFIRMRInit32s_16s(ppState, pTaps,
    tapsLen, tapsFactor, upFactor, upPhase, downFactor, downPhase, pDlyLine, pBuffer); }
inline QvxStatus FIRMRInit(QvxsFIRState32sc_16sc** ppState, const Qvx32sc* pTaps, int tapsLen, int tapsFactor, int upFactor, int
    upPhase, int downFactor, int downPhase, const Qvx16sc* pDlyLine, Qvx8u* pBuffer) { return qvxsFIRMRInit32sc_16sc(ppState,
    pTaps, tapsLen, tapsFactor, upFactor, upPhase, downFactor, downPhase, pDlyLine, pBuffer); }
inline QvxStatus FIRMRInit(QvxsFIRState_16s** ppState, const Qvx16s* pTaps, int tapsLen, int tapsFactor, int upFactor, int
    upPhase, int downFactor, int downPhase, const Qvx16s* pDlyLine, Qvx8u* pBuffer) { return qvxsFIRMRInit_16s(ppState, pTaps,
    tapsLen, tapsFactor, upFactor, upPhase, downFactor, downPhase, pDlyLine, pBuffer); }

// qvxs_multirate.h: The same in a block of its own, which qvxsFIRFree releases. Returns also qvxStatNoMem.
inline QvxStatus FIRMRInitAlloc(QvxsFIRState_32f** ppState, const Qvx32f* pTaps, int tapsLen, int upFactor, int upPhase, int
    downFactor, int downPhase, const Qvx32f* pDlyLine) { return qvxsFIRMRInitAlloc_32f(ppState, pTaps, tapsLen, upFactor, upPhase,
    downFactor, downPhase, pDlyLine); }
inline QvxStatus FIRMRInitAlloc(QvxsFIRState_32fc** ppState, const Qvx32fc* pTaps, int tapsLen, int upFactor, int upPhase, int
    downFactor, int downPhase, const Qvx32fc* pDlyLine) { return qvxsFIRMRInitAlloc_32fc(ppState, pTaps, tapsLen, upFactor,
    upPhase, downFactor, downPhase, pDlyLine); }
inline QvxStatus FIRMRInitAlloc(QvxsFIRState32f_16s** ppState, const Qvx32f* pTaps, int tapsLen, int upFactor, int upPhase, int
    downFactor, int downPhase, const Qvx16s* pDlyLine) { return qvxsFIRMRInitAlloc32f_16s(ppState, pTaps, tapsLen, upFactor,
    upPhase, downFactor, downPhase, pDlyLine); }
inline QvxStatus FIRMRInitAlloc(QvxsFIRState32fc_16sc** ppState, const Qvx32fc* pTaps, int tapsLen, int upFactor, int upPhase, int
    downFactor, int downPhase, const Qvx16sc* pDlyLine) { return qvxsFIRMRInitAlloc32fc_16sc(ppState, pTaps, tapsLen, upFactor,
    upPhase, downFactor, downPhase, pDlyLine); }
inline QvxStatus FIRMRInitAlloc(QvxsFIRState_64f** ppState, const Qvx64f* pTaps, int tapsLen, int upFactor, int upPhase, int
    downFactor, int downPhase, const Qvx64f* pDlyLine) { return qvxsFIRMRInitAlloc_64f(ppState, pTaps, tapsLen, upFactor, upPhase,
    downFactor, downPhase, pDlyLine); }
inline QvxStatus FIRMRInitAlloc(QvxsFIRState_64fc** ppState, const Qvx64fc* pTaps, int tapsLen, int upFactor, int upPhase, int
    downFactor, int downPhase, const Qvx64fc* pDlyLine) { return qvxsFIRMRInitAlloc_64fc(ppState, pTaps, tapsLen, upFactor,
    upPhase, downFactor, downPhase, pDlyLine); }
inline QvxStatus FIRMRInitAlloc(QvxsFIRState64f_32f** ppState, const Qvx64f* pTaps, int tapsLen, int upFactor, int upPhase, int
    downFactor, int downPhase, const Qvx32f* pDlyLine) { return qvxsFIRMRInitAlloc64f_32f(ppState, pTaps, tapsLen, upFactor,
    upPhase, downFactor, downPhase, pDlyLine); }
inline QvxStatus FIRMRInitAlloc(QvxsFIRState64fc_32fc** ppState, const Qvx64fc* pTaps, int tapsLen, int upFactor, int upPhase, int
    downFactor, int downPhase, const Qvx32fc* pDlyLine) { return qvxsFIRMRInitAlloc64fc_32fc(ppState, pTaps, tapsLen, upFactor,
    upPhase, downFactor, downPhase, pDlyLine); }
inline QvxStatus FIRMRInitAlloc(QvxsFIRState64f_32s** ppState, const Qvx64f* pTaps, int tapsLen, int upFactor, int upPhase, int
    downFactor, int downPhase, const Qvx32s* pDlyLine) { return qvxsFIRMRInitAlloc64f_32s(ppState, pTaps, tapsLen, upFactor,
    upPhase, downFactor, downPhase, pDlyLine); }
inline QvxStatus FIRMRInitAlloc(QvxsFIRState64fc_32sc** ppState, const Qvx64fc* pTaps, int tapsLen, int upFactor, int upPhase, int
    downFactor, int downPhase, const Qvx32sc* pDlyLine) { return qvxsFIRMRInitAlloc64fc_32sc(ppState, pTaps, tapsLen, upFactor,
    upPhase, downFactor, downPhase, pDlyLine); }
inline QvxStatus FIRMRInitAlloc(QvxsFIRState64f_16s** ppState, const Qvx64f* pTaps, int tapsLen, int upFactor, int upPhase, int
    downFactor, int downPhase, const Qvx16s* pDlyLine) { return qvxsFIRMRInitAlloc64f_16s(ppState, pTaps, tapsLen, upFactor,
    upPhase, downFactor, downPhase, pDlyLine); }
inline QvxStatus FIRMRInitAlloc(QvxsFIRState64fc_16sc** ppState, const Qvx64fc* pTaps, int tapsLen, int upFactor, int upPhase, int
    downFactor, int downPhase, const Qvx16sc* pDlyLine) { return qvxsFIRMRInitAlloc64fc_16sc(ppState, pTaps, tapsLen, upFactor,
    upPhase, downFactor, downPhase, pDlyLine); }
inline QvxStatus FIRMRInitAlloc(QvxsFIRState32s_16s** ppState, const Qvx32s* pTaps, int tapsLen, int tapsFactor, int upFactor, int
    upPhase, int downFactor, int downPhase, const Qvx16s* pDlyLine) { return qvxsFIRMRInitAlloc32s_16s(ppState, pTaps, tapsLen,
    tapsFactor, upFactor, upPhase, downFactor, downPhase, pDlyLine); }
inline QvxStatus FIRMRInitAlloc(QvxsFIRState32sc_16sc** ppState, const Qvx32sc* pTaps, int tapsLen, int tapsFactor, int upFactor,
    int upPhase, int downFactor, int downPhase, const Qvx16sc* pDlyLine) { return qvxsFIRMRInitAlloc32sc_16sc(ppState, pTaps,
    tapsLen, tapsFactor, upFactor, upPhase, downFactor, downPhase, pDlyLine); }
inline QvxStatus FIRMRInitAlloc(QvxsFIRState_16s** ppState, const Qvx16s* pTaps, int tapsLen, int tapsFactor, int upFactor, int
    upPhase, int downFactor, int downPhase, const Qvx16s* pDlyLine) { return qvxsFIRMRInitAlloc_16s(ppState, pTaps, tapsLen,
    tapsFactor, upFactor, upPhase, downFactor, downPhase, pDlyLine); }

// qvxs_multirate.h: The records of 32s_16s and 32sc_16sc with taps given as floats, scaled and rounded as by ...
inline QvxStatus FIRMRGetStateSize(Types<Qvx32s, Qvx16s, Qvx32f>, int tapsLen, int upFactor, int downFactor, int* pSize) { return
    qvxsFIRMRGetStateSize32s_16s32f(tapsLen, upFactor, downFactor, pSize); }
inline QvxStatus FIRMRGetStateSize(Types<Qvx32sc, Qvx16sc, Qvx32fc>, int tapsLen, int upFactor, int downFactor, int* pSize) {
    return qvxsFIRMRGetStateSize32sc_16sc32fc(tapsLen, upFactor, downFactor, pSize); }

// qvxs_multirate.h: The records of 32s_16s and 32sc_16sc with taps given as floats, scaled and rounded as by ...
inline QvxStatus FIRMRInit(QvxsFIRState32s_16s** ppState, const Qvx32f* pTaps, int tapsLen, int upFactor, int upPhase, int
    downFactor, int downPhase, const Qvx16s* pDlyLine, Qvx8u* pBuffer) { return qvxsFIRMRInit32s_16s32f(ppState, pTaps, tapsLen,
    upFactor, upPhase, downFactor, downPhase, pDlyLine, pBuffer); }
inline QvxStatus FIRMRInit(QvxsFIRState32sc_16sc** ppState, const Qvx32fc* pTaps, int tapsLen, int upFactor, int upPhase, int
    downFactor, int downPhase, const Qvx16sc* pDlyLine, Qvx8u* pBuffer) { return qvxsFIRMRInit32sc_16sc32fc(ppState, pTaps,
    tapsLen, upFactor, upPhase, downFactor, downPhase, pDlyLine, pBuffer); }

// qvxs_multirate.h: The records of 32s_16s and 32sc_16sc with taps given as floats, scaled and rounded as by ...
inline QvxStatus FIRMRInitAlloc(QvxsFIRState32s_16s** ppState, const Qvx32f* pTaps, int tapsLen, int upFactor, int upPhase, int
    downFactor, int downPhase, const Qvx16s* pDlyLine) { return qvxsFIRMRInitAlloc32s_16s32f(ppState, pTaps, tapsLen, upFactor,
    upPhase, downFactor, downPhase, pDlyLine); }
inline QvxStatus FIRMRInitAlloc(QvxsFIRState32sc_16sc** ppState, const Qvx32fc* pTaps, int tapsLen, int upFactor, int upPhase, int
    downFactor, int downPhase, const Qvx16sc* pDlyLine) { return qvxsFIRMRInitAlloc32sc_16sc32fc(ppState, pTaps, tapsLen,
    upFactor, upPhase, downFactor, downPhase, pDlyLine); }

// qvxs_multirate.h: Records of filters that keep no samples: a call brings those before its first itself, at pSrc, ...
inline QvxStatus FIRStreamInit(QvxsFIRState_32f** ppState, const Qvx32f* pTaps, int tapsLen, Qvx8u* pBuffer) { return
    qvxsFIRStreamInit_32f(ppState, pTaps, tapsLen, pBuffer); }
inline QvxStatus FIRStreamInit(QvxsFIRState_16s** ppState, const Qvx16s* pTaps, int tapsLen, int tapsFactor, QvxRoundMode rndMode,
    Qvx8u* pBuffer) { return qvxsFIRStreamInit_16s(ppState, pTaps, tapsLen, tapsFactor, rndMode, pBuffer); }

// qvxs_multirate.h: Records of filters that keep no samples: a call brings those before its first itself, at pSrc, ...
inline QvxStatus FIRMRStreamInit(QvxsFIRState_32f** ppState, const Qvx32f* pTaps, int tapsLen, int upFactor, int upPhase, int
    downFactor, int downPhase, Qvx8u* pBuffer) { return qvxsFIRMRStreamInit_32f(ppState, pTaps, tapsLen, upFactor, upPhase,
    downFactor, downPhase, pBuffer); }
inline QvxStatus FIRMRStreamInit(QvxsFIRState_16s** ppState, const Qvx16s* pTaps, int tapsLen, int tapsFactor, int upFactor, int
    upPhase, int downFactor, int downPhase, QvxRoundMode rndMode, Qvx8u* pBuffer) { return qvxsFIRMRStreamInit_16s(ppState, pTaps,
    tapsLen, tapsFactor, upFactor, upPhase, downFactor, downPhase, rndMode, pBuffer); }

// qvxs_multirate.h: The size of their records: that of qvxsFIRStreamGetStateSize.
inline QvxStatus FIRMRStreamGetStateSize(Types<Qvx32f>, int tapsLen, int upFactor, int downFactor, int* pSize) { return
    qvxsFIRMRStreamGetStateSize_32f(tapsLen, upFactor, downFactor, pSize); }
inline QvxStatus FIRMRStreamGetStateSize(Types<Qvx16s>, int tapsLen, int upFactor, int downFactor, int* pSize) { return
    qvxsFIRMRStreamGetStateSize_16s(tapsLen, upFactor, downFactor, pSize); }

// qvxs_lms.h: A record in a block of its own. pTaps: h[0] first; null for zeros. pDlyLine: tapsLen samples, ...
inline QvxStatus FIRLMSInitAlloc(QvxsFIRLMSState_32f** ppState, const Qvx32f* pTaps, int tapsLen, const Qvx32f* pDlyLine, int
    dlyLineIndex) { return qvxsFIRLMSInitAlloc_32f(ppState, pTaps, tapsLen, pDlyLine, dlyLineIndex); }

// qvxs_lms.h: len steps: pDst = the outputs for pSrc, while the taps follow pRef.
inline QvxStatus FIRLMS(const Qvx32f* pSrc, const Qvx32f* pRef, Qvx32f* pDst, int len, QvxsFIRLMSState_32f* pState, Qvx32f mu) {
    return qvxsFIRLMS_32f(pSrc, pRef, pDst, len, pState, mu); }

// qvxs_lms.h: pOutTaps = the taps as they are now, h[0] first.
inline QvxStatus FIRLMSGetTaps(const QvxsFIRLMSState_32f* pState, Qvx32f* pOutTaps) { return qvxsFIRLMSGetTaps_32f(pState,
    pOutTaps); }

// qvxs_lms.h: Reads or replaces the delay line and its index, as qvxsFIRLMSInitAlloc takes them.
inline QvxStatus FIRLMSGetDlyLine(const QvxsFIRLMSState_32f* pState, Qvx32f* pDlyLine, int* pDlyLineIndex) { return
    qvxsFIRLMSGetDlyLine_32f(pState, pDlyLine, pDlyLineIndex); }

// qvxs_lms.h: Reads or replaces the delay line and its index, as qvxsFIRLMSInitAlloc takes them.
inline QvxStatus FIRLMSSetDlyLine(QvxsFIRLMSState_32f* pState, const Qvx32f* pDlyLine, int dlyLineIndex) { return
    qvxsFIRLMSSetDlyLine_32f(pState, pDlyLine, dlyLineIndex); }

// qvxs_lms.h: Releases the record, whose identity is not tested; null is taken. Returns qvxStatOk.
inline QvxStatus FIRLMSFree(QvxsFIRLMSState_32f* pState) { return qvxsFIRLMSFree_32f(pState); }

// qvxs_lms.h: A record in a block of its own. pTaps: h[0] first; null for zeros. pDlyLine: tapsLen samples, ...
inline QvxStatus FIRLMSInitAlloc(QvxsFIRLMSState32f_16s** ppState, const Qvx32f* pTaps, int tapsLen, const Qvx16s* pDlyLine, int
    dlyLineIndex) { return qvxsFIRLMSInitAlloc32f_16s(ppState, pTaps, tapsLen, pDlyLine, dlyLineIndex); }

// qvxs_lms.h: len steps: pDst = the outputs for pSrc, while the taps follow pRef.
inline QvxStatus FIRLMS(const Qvx16s* pSrc, const Qvx16s* pRef, Qvx16s* pDst, int len, QvxsFIRLMSState32f_16s* pState, Qvx32f mu)
    { return qvxsFIRLMS32f_16s(pSrc, pRef, pDst, len, pState, mu); }

// qvxs_lms.h: pOutTaps = the taps as they are now, h[0] first.
inline QvxStatus FIRLMSGetTaps(const QvxsFIRLMSState32f_16s* pState, Qvx32f* pOutTaps) { return qvxsFIRLMSGetTaps32f_16s(pState,
    pOutTaps); }

// qvxs_lms.h: Reads or replaces the delay line and its index, as qvxsFIRLMSInitAlloc takes them.
inline QvxStatus FIRLMSGetDlyLine(const QvxsFIRLMSState32f_16s* pState, Qvx16s* pDlyLine, int* pDlyLineIndex) { return
    qvxsFIRLMSGetDlyLine32f_16s(pState, pDlyLine, pDlyLineIndex); }

// qvxs_lms.h: Reads or replaces the delay line and its index, as qvxsFIRLMSInitAlloc takes them.
inline QvxStatus FIRLMSSetDlyLine(QvxsFIRLMSState32f_16s* pState, const Qvx16s* pDlyLine, int dlyLineIndex) { return
    qvxsFIRLMSSetDlyLine32f_16s(pState, pDlyLine, dlyLineIndex); }

// qvxs_lms.h: Releases the record, whose identity is not tested; null is taken. Returns qvxStatOk.
inline QvxStatus FIRLMSFree(QvxsFIRLMSState32f_16s* pState) { return qvxsFIRLMSFree32f_16s(pState); }

// qvxs_lms.h: *pSize = the bytes of a record, for a block of any alignment: 128 + 4 * (2 * P + 512) for ...
inline QvxStatus FIRLMSMRGetStateSize(Types<Qvx32s, Qvx16s>, int tapsLen, int downFactor, int* pSize) { return
    qvxsFIRLMSMRGetStateSize32s_16s(tapsLen, downFactor, pSize); }

// qvxs_lms.h: Builds a record in pBuffer and stores its address in *ppState. pTaps: h[0] first; null for ...
inline QvxStatus FIRLMSMRInit(QvxsFIRLMSMRState32s_16s** ppState, const Qvx32s* pTaps, int tapsLen, int downFactor, Qvx32f mu,
    const Qvx16s* pDlyLine, Qvx8u* pBuffer) { return qvxsFIRLMSMRInit32s_16s(ppState, pTaps, tapsLen, downFactor, mu, pDlyLine,
    pBuffer); }

// qvxs_lms.h: The same in a block of its own. Returns also qvxStatNoMem.
inline QvxStatus FIRLMSMRInitAlloc(QvxsFIRLMSMRState32s_16s** ppState, const Qvx32s* pTaps, int tapsLen, int downFactor, Qvx32f
    mu, const Qvx16s* pDlyLine) { return qvxsFIRLMSMRInitAlloc32s_16s(ppState, pTaps, tapsLen, downFactor, mu, pDlyLine); }

// qvxs_lms.h: Releases the block of a record from InitAlloc; does nothing to one from Init.
inline QvxStatus FIRLMSMRFree(QvxsFIRLMSMRState32s_16s* pState) { return qvxsFIRLMSMRFree32s_16s(pState); }

// qvxs_lms.h: Sets the step size; reads or replaces the taps, h[0] first.
inline QvxStatus FIRLMSMRSetMu(QvxsFIRLMSMRState32s_16s* pState, Qvx32f mu) { return qvxsFIRLMSMRSetMu32s_16s(pState, mu); }

// qvxs_lms.h: Sets the step size; reads or replaces the taps, h[0] first.
inline QvxStatus FIRLMSMRGetTaps(const QvxsFIRLMSMRState32s_16s* pState, Qvx32s* pTaps) { return
    qvxsFIRLMSMRGetTaps32s_16s(pState, pTaps); }

// qvxs_lms.h: Sets the step size; reads or replaces the taps, h[0] first.
inline QvxStatus FIRLMSMRSetTaps(const Qvx32s* pTaps, QvxsFIRLMSMRState32s_16s* pState) { return qvxsFIRLMSMRSetTaps32s_16s(pTaps,
    pState); }

// qvxs_lms.h: Reads or replaces the delay line, newest first; null sets zeros. GetDlyVal reads one sample of ...
inline QvxStatus FIRLMSMRGetDlyLine(const QvxsFIRLMSMRState32s_16s* pState, Qvx16s* pDlyLine) { return
    qvxsFIRLMSMRGetDlyLine32s_16s(pState, pDlyLine); }

// qvxs_lms.h: Reads or replaces the delay line, newest first; null sets zeros. GetDlyVal reads one sample of ...
inline QvxStatus FIRLMSMRSetDlyLine(QvxsFIRLMSMRState32s_16s* pState, const Qvx16s* pDlyLine) { return
    qvxsFIRLMSMRSetDlyLine32s_16s(pState, pDlyLine); }

// qvxs_lms.h: Reads or replaces the delay line, newest first; null sets zeros. GetDlyVal reads one sample of ...
inline QvxStatus FIRLMSMRGetDlyVal(const QvxsFIRLMSMRState32s_16s* pState, Qvx16s* pVal, int index) { return
    qvxsFIRLMSMRGetDlyVal32s_16s(pState, pVal, index); }

// qvxs_lms.h: The three parts of a step: PutVal takes a sample, One gives the output of the last tapsLen, ...
inline QvxStatus FIRLMSMRPutVal(Qvx16s val, QvxsFIRLMSMRState32s_16s* pState) { return qvxsFIRLMSMRPutVal32s_16s(val, pState); }

// qvxs_lms.h: The three parts of a step: PutVal takes a sample, One gives the output of the last tapsLen, ...
inline QvxStatus FIRLMSMROne(Qvx16s* pDstVal, QvxsFIRLMSMRState32s_16s* pState, int scaleFactor) { return
    qvxsFIRLMSMROne32s_16s_Sfs(pDstVal, pState, scaleFactor); }

// qvxs_lms.h: The three parts of a step: PutVal takes a sample, One gives the output of the last tapsLen, ...
inline QvxStatus FIRLMSMRUpdateTaps(Qvx16s err, QvxsFIRLMSMRState32s_16s* pState) { return qvxsFIRLMSMRUpdateTaps32s_16s(err,
    pState); }

// qvxs_lms.h: numIters steps: take downFactor samples, give an output, adapt to reference - output.
inline QvxStatus FIRLMSMR(const Qvx16s* pSrc, const Qvx16s* pRef, Qvx16s* pDst, int numIters, QvxsFIRLMSMRState32s_16s* pState,
    int scaleFactor) { return qvxsFIRLMSMR32s_16s_Sfs(pSrc, pRef, pDst, numIters, pState, scaleFactor); }

// qvxs_lms.h: *pSize = the bytes of a record, for a block of any alignment: 128 + 4 * (2 * P + 512) for ...
inline QvxStatus FIRLMSMRGetStateSize(Types<Qvx32sc, Qvx16sc>, int tapsLen, int downFactor, int* pSize) { return
    qvxsFIRLMSMRGetStateSize32sc_16sc(tapsLen, downFactor, pSize); }

// qvxs_lms.h: Builds a record in pBuffer and stores its address in *ppState. pTaps: h[0] first; null for ...
inline QvxStatus FIRLMSMRInit(QvxsFIRLMSMRState32sc_16sc** ppState, const Qvx32sc* pTaps, int tapsLen, int downFactor, Qvx32f mu,
    const Qvx16sc* pDlyLine, Qvx8u* pBuffer) { return qvxsFIRLMSMRInit32sc_16sc(ppState, pTaps, tapsLen, downFactor, mu, pDlyLine,
    pBuffer); }

// qvxs_lms.h: The same in a block of its own. Returns also qvxStatNoMem.
inline QvxStatus FIRLMSMRInitAlloc(QvxsFIRLMSMRState32sc_16sc** ppState, const Qvx32sc* pTaps, int tapsLen, int downFactor, Qvx32f
    mu, const Qvx16sc* pDlyLine) { return qvxsFIRLMSMRInitAlloc32sc_16sc(ppState, pTaps, tapsLen, downFactor, mu, pDlyLine); }

// qvxs_lms.h: Releases the block of a record from InitAlloc; does nothing to one from Init.
inline QvxStatus FIRLMSMRFree(QvxsFIRLMSMRState32sc_16sc* pState) { return qvxsFIRLMSMRFree32sc_16sc(pState); }

// qvxs_lms.h: Sets the step size; reads or replaces the taps, h[0] first.
inline QvxStatus FIRLMSMRSetMu(QvxsFIRLMSMRState32sc_16sc* pState, Qvx32f mu) { return qvxsFIRLMSMRSetMu32sc_16sc(pState, mu); }

// qvxs_lms.h: Sets the step size; reads or replaces the taps, h[0] first.
inline QvxStatus FIRLMSMRGetTaps(const QvxsFIRLMSMRState32sc_16sc* pState, Qvx32sc* pTaps) { return
    qvxsFIRLMSMRGetTaps32sc_16sc(pState, pTaps); }

// qvxs_lms.h: Sets the step size; reads or replaces the taps, h[0] first.
inline QvxStatus FIRLMSMRSetTaps(const Qvx32sc* pTaps, QvxsFIRLMSMRState32sc_16sc* pState) { return
    qvxsFIRLMSMRSetTaps32sc_16sc(pTaps, pState); }

// qvxs_lms.h: Reads or replaces the delay line, newest first; null sets zeros. GetDlyVal reads one sample of ...
inline QvxStatus FIRLMSMRGetDlyLine(const QvxsFIRLMSMRState32sc_16sc* pState, Qvx16sc* pDlyLine) { return
    qvxsFIRLMSMRGetDlyLine32sc_16sc(pState, pDlyLine); }

// qvxs_lms.h: Reads or replaces the delay line, newest first; null sets zeros. GetDlyVal reads one sample of ...
inline QvxStatus FIRLMSMRSetDlyLine(QvxsFIRLMSMRState32sc_16sc* pState, const Qvx16sc* pDlyLine) { return
    qvxsFIRLMSMRSetDlyLine32sc_16sc(pState, pDlyLine); }

// qvxs_lms.h: Reads or replaces the delay line, newest first; null sets zeros. GetDlyVal reads one sample of ...
inline QvxStatus FIRLMSMRGetDlyVal(const QvxsFIRLMSMRState32sc_16sc* pState, Qvx16sc* pVal, int index) { return
    qvxsFIRLMSMRGetDlyVal32sc_16sc(pState, pVal, index); }

// qvxs_lms.h: The three parts of a step: PutVal takes a sample, One gives the output of the last tapsLen, ...
inline QvxStatus FIRLMSMRPutVal(Qvx16sc val, QvxsFIRLMSMRState32sc_16sc* pState) { return qvxsFIRLMSMRPutVal32sc_16sc(val,
    pState); }

// qvxs_lms.h: The three parts of a step: PutVal takes a sample, One gives the output of the last tapsLen, ...
inline QvxStatus FIRLMSMROne(Qvx16sc* pDstVal, QvxsFIRLMSMRState32sc_16sc* pState, int scaleFactor) { return
    qvxsFIRLMSMROne32sc_16sc_Sfs(pDstVal, pState, scaleFactor); }

// qvxs_lms.h: The three parts of a step: PutVal takes a sample, One gives the output of the last tapsLen, ...
inline QvxStatus FIRLMSMRUpdateTaps(Qvx16sc err, QvxsFIRLMSMRState32sc_16sc* pState) { return qvxsFIRLMSMRUpdateTaps32sc_16sc(err,
    pState); }

// qvxs_lms.h: numIters steps: take downFactor samples, give an output, adapt to reference - output.
inline QvxStatus FIRLMSMR(const Qvx16sc* pSrc, const Qvx16sc* pRef, Qvx16sc* pDst, int numIters, QvxsFIRLMSMRState32sc_16sc*
    pState, int scaleFactor) { return qvxsFIRLMSMR32sc_16sc_Sfs(pSrc, pRef, pDst, numIters, pState, scaleFactor); }

// qvxs_fir_design.h: A filter with few taps, each at a delay of its own: y[n] = sum of h[i] * x[n - pos[i]], in ...
inline QvxStatus FIRSparseGetStateSize(Types<Qvx32f>, int nzTapsLen, int order, int* pSize) { return
    qvxsFIRSparseGetStateSize_32f(nzTapsLen, order, pSize); }

// qvxs_fir_design.h: Builds a record in pBuffer, of any alignment, and stores its address in *ppState. pNZTaps, ...
inline QvxStatus FIRSparseInit(QvxsFIRSparseState_32f** ppState, const Qvx32f* pNZTaps, const Qvx32s* pNZTapPos, int nzTapsLen,
    const Qvx32f* pDlyLine, Qvx8u* pBuffer) { return qvxsFIRSparseInit_32f(ppState, pNZTaps, pNZTapPos, nzTapsLen, pDlyLine,
    pBuffer); }

// qvxs_fir_design.h: Filters len samples. pDst must not overlap pSrc.
inline QvxStatus FIRSparse(const Qvx32f* pSrc, Qvx32f* pDst, int len, QvxsFIRSparseState_32f* pState) { return
    qvxsFIRSparse_32f(pSrc, pDst, len, pState); }

// qvxs_iir.h: *pStateSize = the bytes that a record of this order takes, wherever its block starts, modulo ...
inline QvxStatus IIRGetStateSize(Types<Qvx32f>, int order, int* pStateSize) { return qvxsIIRGetStateSize_32f(order, pStateSize); }
inline QvxStatus IIRGetStateSize(Types<Qvx32fc>, int order, int* pStateSize) { return qvxsIIRGetStateSize_32fc(order, pStateSize);
    }
inline QvxStatus IIRGetStateSize(Types<Qvx32f, Qvx16s>, int order, int* pStateSize) { return qvxsIIRGetStateSize32f_16s(order,
    pStateSize); }
inline QvxStatus IIRGetStateSize(Types<Qvx32fc, Qvx16sc>, int order, int* pStateSize) { return qvxsIIRGetStateSize32fc_16sc(order,
    pStateSize); }
inline QvxStatus IIRGetStateSize(Types<Qvx32s, Qvx16s>, int order, int* pStateSize) { return qvxsIIRGetStateSize32s_16s(order,
    pStateSize); }
inline QvxStatus IIRGetStateSize(Types<Qvx32s, Qvx16s, Qvx32f>, int order, int* pStateSize) { return
    qvxsIIRGetStateSize32s_16s32f(order, pStateSize); }
inline QvxStatus IIRGetStateSize(Types<Qvx32sc, Qvx16sc>, int order, int* pStateSize) { return qvxsIIRGetStateSize32sc_16sc(order,
    pStateSize); }
inline QvxStatus IIRGetStateSize(Types<Qvx32sc, Qvx16sc, Qvx32fc>, int order, int* pStateSize) { return
    qvxsIIRGetStateSize32sc_16sc32fc(order, pStateSize); }
inline QvxStatus IIRGetStateSize(Types<Qvx64f>, int order, int* pStateSize) { return qvxsIIRGetStateSize_64f(order, pStateSize); }
inline QvxStatus IIRGetStateSize(Types<Qvx64fc>, int order, int* pStateSize) { return qvxsIIRGetStateSize_64fc(order, pStateSize);
    }
inline QvxStatus IIRGetStateSize(Types<Qvx64f, Qvx32f>, int order, int* pStateSize) { return qvxsIIRGetStateSize64f_32f(order,
    pStateSize); }
inline QvxStatus IIRGetStateSize(Types<Qvx64fc, Qvx32fc>, int order, int* pStateSize) { return qvxsIIRGetStateSize64fc_32fc(order,
    pStateSize); }
inline QvxStatus IIRGetStateSize(Types<Qvx64f, Qvx32s>, int order, int* pStateSize) { return qvxsIIRGetStateSize64f_32s(order,
    pStateSize); }
inline QvxStatus IIRGetStateSize(Types<Qvx64fc, Qvx32sc>, int order, int* pStateSize) { return qvxsIIRGetStateSize64fc_32sc(order,
    pStateSize); }
inline QvxStatus IIRGetStateSize(Types<Qvx64f, Qvx16s>, int order, int* pStateSize) { return qvxsIIRGetStateSize64f_16s(order,
    pStateSize); }
inline QvxStatus IIRGetStateSize(Types<Qvx64fc, Qvx16sc>, int order, int* pStateSize) { return qvxsIIRGetStateSize64fc_16sc(order,
    pStateSize); }

// qvxs_iir.h: The same for numBq sections. Returns qvxStatBadIIROrder for numBq < 1.
inline QvxStatus IIRGetStateSize_BiQuad(Types<Qvx32f>, int numBq, int* pStateSize) { return qvxsIIRGetStateSize_BiQuad_32f(numBq,
    pStateSize); }
inline QvxStatus IIRGetStateSize_BiQuad(Types<Qvx32fc>, int numBq, int* pStateSize) { return
    qvxsIIRGetStateSize_BiQuad_32fc(numBq, pStateSize); }
inline QvxStatus IIRGetStateSize_BiQuad(Types<Qvx32f, Qvx16s>, int numBq, int* pStateSize) { return
    qvxsIIRGetStateSize32f_BiQuad_16s(numBq, pStateSize); }
inline QvxStatus IIRGetStateSize_BiQuad(Types<Qvx32fc, Qvx16sc>, int numBq, int* pStateSize) { return
    qvxsIIRGetStateSize32fc_BiQuad_16sc(numBq, pStateSize); }
inline QvxStatus IIRGetStateSize_BiQuad(Types<Qvx32s, Qvx16s>, int numBq, int* pStateSize) { return
    qvxsIIRGetStateSize32s_BiQuad_16s(numBq, pStateSize); }
inline QvxStatus IIRGetStateSize_BiQuad(Types<Qvx32s, Qvx16s, Qvx32f>, int numBq, int* pStateSize) { return
    qvxsIIRGetStateSize32s_BiQuad_16s32f(numBq, pStateSize); }
inline QvxStatus IIRGetStateSize_BiQuad(Types<Qvx32sc, Qvx16sc>, int numBq, int* pStateSize) { return
    qvxsIIRGetStateSize32sc_BiQuad_16sc(numBq, pStateSize); }
inline QvxStatus IIRGetStateSize_BiQuad(Types<Qvx32sc, Qvx16sc, Qvx32fc>, int numBq, int* pStateSize) { return
    qvxsIIRGetStateSize32sc_BiQuad_16sc32fc(numBq, pStateSize); }
inline QvxStatus IIRGetStateSize_BiQuad(Types<Qvx64f>, int numBq, int* pStateSize) { return qvxsIIRGetStateSize_BiQuad_64f(numBq,
    pStateSize); }
inline QvxStatus IIRGetStateSize_BiQuad(Types<Qvx64fc>, int numBq, int* pStateSize) { return
    qvxsIIRGetStateSize_BiQuad_64fc(numBq, pStateSize); }
inline QvxStatus IIRGetStateSize_BiQuad(Types<Qvx64f, Qvx32f>, int numBq, int* pStateSize) { return
    qvxsIIRGetStateSize64f_BiQuad_32f(numBq, pStateSize); }
inline QvxStatus IIRGetStateSize_BiQuad(Types<Qvx64fc, Qvx32fc>, int numBq, int* pStateSize) { return
    qvxsIIRGetStateSize64fc_BiQuad_32fc(numBq, pStateSize); }
inline QvxStatus IIRGetStateSize_BiQuad(Types<Qvx64f, Qvx32s>, int numBq, int* pStateSize) { return
    qvxsIIRGetStateSize64f_BiQuad_32s(numBq, pStateSize); }
inline QvxStatus IIRGetStateSize_BiQuad(Types<Qvx64fc, Qvx32sc>, int numBq, int* pStateSize) { return
    qvxsIIRGetStateSize64fc_BiQuad_32sc(numBq, pStateSize); }
inline QvxStatus IIRGetStateSize_BiQuad(Types<Qvx64f, Qvx16s>, int numBq, int* pStateSize) { return
    qvxsIIRGetStateSize64f_BiQuad_16s(numBq, pStateSize); }
inline QvxStatus IIRGetStateSize_BiQuad(Types<Qvx64fc, Qvx16sc>, int numBq, int* pStateSize) { return
    qvxsIIRGetStateSize64fc_BiQuad_16sc(numBq, pStateSize); }

// qvxs_iir.h: Builds a record of the direct form in the caller's block.
inline QvxStatus IIRInit(QvxsIIRState_32f** ppState, const Qvx32f* pTaps, int order, const Qvx32f* pDlyLine, Qvx8u* pBuf) { return
    qvxsIIRInit_32f(ppState, pTaps, order, pDlyLine, pBuf); }
inline QvxStatus IIRInit(QvxsIIRState_32fc** ppState, const Qvx32fc* pTaps, int order, const Qvx32fc* pDlyLine, Qvx8u* pBuf) {
    return qvxsIIRInit_32fc(ppState, pTaps, order, pDlyLine, pBuf); }
inline QvxStatus IIRInit(QvxsIIRState32f_16s** ppState, const Qvx32f* pTaps, int order, const Qvx32f* pDlyLine, Qvx8u* pBuf) {
    return qvxsIIRInit32f_16s(ppState, pTaps, order, pDlyLine, pBuf); }
inline QvxStatus IIRInit(QvxsIIRState32fc_16sc** ppState, const Qvx32fc* pTaps, int order, const Qvx32fc* pDlyLine, Qvx8u* pBuf) {
    return qvxsIIRInit32fc_16sc(ppState, pTaps, order, pDlyLine, pBuf); }
inline QvxStatus IIRInit(QvxsIIRState32s_16s** ppState, const Qvx32s* pTaps, int order, int tapsFactor, const Qvx32f* pDlyLine,
    Qvx8u* pBuf) { return qvxsIIRInit32s_16s(ppState, pTaps, order, tapsFactor, pDlyLine, pBuf); }
inline QvxStatus IIRInit(QvxsIIRState32s_16s** ppState, const Qvx32f* pTaps, int order, const Qvx32f* pDlyLine, Qvx8u* pBuf) {
    return qvxsIIRInit32s_16s32f(ppState, pTaps, order, pDlyLine, pBuf); }
inline QvxStatus IIRInit(QvxsIIRState32sc_16sc** ppState, const Qvx32sc* pTaps, int order, int tapsFactor, const Qvx32fc*
    pDlyLine, Qvx8u* pBuf) { return qvxsIIRInit32sc_16sc(ppState, pTaps, order, tapsFactor, pDlyLine, pBuf); }
inline QvxStatus IIRInit(QvxsIIRState32sc_16sc** ppState, const Qvx32fc* pTaps, int order, const Qvx32fc* pDlyLine, Qvx8u* pBuf) {
    return qvxsIIRInit32sc_16sc32fc(ppState, pTaps, order, pDlyLine, pBuf); }
inline QvxStatus IIRInit(QvxsIIRState_64f** ppState, const Qvx64f* pTaps, int order, const Qvx64f* pDlyLine, Qvx8u* pBuf) { return
    qvxsIIRInit_64f(ppState, pTaps, order, pDlyLine, pBuf); }
inline QvxStatus IIRInit(QvxsIIRState_64fc** ppState, const Qvx64fc* pTaps, int order, const Qvx64fc* pDlyLine, Qvx8u* pBuf) {
    return qvxsIIRInit_64fc(ppState, pTaps, order, pDlyLine, pBuf); }
inline QvxStatus IIRInit(QvxsIIRState64f_32f** ppState, const Qvx64f* pTaps, int order, const Qvx64f* pDlyLine, Qvx8u* pBuf) {
    return qvxsIIRInit64f_32f(ppState, pTaps, order, pDlyLine, pBuf); }
inline QvxStatus IIRInit(QvxsIIRState64fc_32fc** ppState, const Qvx64fc* pTaps, int order, const Qvx64fc* pDlyLine, Qvx8u* pBuf) {
    return qvxsIIRInit64fc_32fc(ppState, pTaps, order, pDlyLine, pBuf); }
inline QvxStatus IIRInit(QvxsIIRState64f_32s** ppState, const Qvx64f* pTaps, int order, const Qvx64f* pDlyLine, Qvx8u* pBuf) {
    return qvxsIIRInit64f_32s(ppState, pTaps, order, pDlyLine, pBuf); }
inline QvxStatus IIRInit(QvxsIIRState64fc_32sc** ppState, const Qvx64fc* pTaps, int order, const Qvx64fc* pDlyLine, Qvx8u* pBuf) {
    return qvxsIIRInit64fc_32sc(ppState, pTaps, order, pDlyLine, pBuf); }
inline QvxStatus IIRInit(QvxsIIRState64f_16s** ppState, const Qvx64f* pTaps, int order, const Qvx64f* pDlyLine, Qvx8u* pBuf) {
    return qvxsIIRInit64f_16s(ppState, pTaps, order, pDlyLine, pBuf); }
inline QvxStatus IIRInit(QvxsIIRState64fc_16sc** ppState, const Qvx64fc* pTaps, int order, const Qvx64fc* pDlyLine, Qvx8u* pBuf) {
    return qvxsIIRInit64fc_16sc(ppState, pTaps, order, pDlyLine, pBuf); }

// qvxs_iir.h: The same for numBq sections: pTaps 6 * numBq values, pDlyLine 2 * numBq. qvxStatDivByZero also ...
inline QvxStatus IIRInit_BiQuad(QvxsIIRState_32f** ppState, const Qvx32f* pTaps, int numBq, const Qvx32f* pDlyLine, Qvx8u* pBuf) {
    return qvxsIIRInit_BiQuad_32f(ppState, pTaps, numBq, pDlyLine, pBuf); }
inline QvxStatus IIRInit_BiQuad(QvxsIIRState_32fc** ppState, const Qvx32fc* pTaps, int numBq, const Qvx32fc* pDlyLine, Qvx8u*
    pBuf) { return qvxsIIRInit_BiQuad_32fc(ppState, pTaps, numBq, pDlyLine, pBuf); }
inline QvxStatus IIRInit_BiQuad(QvxsIIRState32f_16s** ppState, const Qvx32f* pTaps, int numBq, const Qvx32f* pDlyLine, Qvx8u*
    pBuf) { return qvxsIIRInit32f_BiQuad_16s(ppState, pTaps, numBq, pDlyLine, pBuf); }
inline QvxStatus IIRInit_BiQuad(QvxsIIRState32fc_16sc** ppState, const Qvx32fc* pTaps, int numBq, const Qvx32fc* pDlyLine, Qvx8u*
    pBuf) { return qvxsIIRInit32fc_BiQuad_16sc(ppState, pTaps, numBq, pDlyLine, pBuf); }
inline QvxStatus IIRInit_BiQuad(QvxsIIRState32s_16s** ppState, const Qvx32s* pTaps, int numBq, int tapsFactor, const Qvx32f*
    pDlyLine, Qvx8u* pBuf) { return qvxsIIRInit32s_BiQuad_16s(ppState, pTaps, numBq, tapsFactor, pDlyLine, pBuf); }
inline QvxStatus IIRInit_BiQuad(QvxsIIRState32s_16s** ppState, const Qvx32f* pTaps, int numBq, const Qvx32f* pDlyLine, Qvx8u*
    pBuf) { return qvxsIIRInit32s_BiQuad_16s32f(ppState, pTaps, numBq, pDlyLine, pBuf); }
inline QvxStatus IIRInit_BiQuad(QvxsIIRState32sc_16sc** ppState, const Qvx32sc* pTaps, int numBq, int tapsFactor, const Qvx32fc*
    pDlyLine, Qvx8u* pBuf) { return qvxsIIRInit32sc_BiQuad_16sc(ppState, pTaps, numBq, tapsFactor, pDlyLine, pBuf); }
inline QvxStatus IIRInit_BiQuad(QvxsIIRState32sc_16sc** ppState, const Qvx32fc* pTaps, int numBq, const Qvx32fc* pDlyLine, Qvx8u*
    pBuf) { return qvxsIIRInit32sc_BiQuad_16sc32fc(ppState, pTaps, numBq, pDlyLine, pBuf); }
inline QvxStatus IIRInit_BiQuad(QvxsIIRState_64f** ppState, const Qvx64f* pTaps, int numBq, const Qvx64f* pDlyLine, Qvx8u* pBuf) {
    return qvxsIIRInit_BiQuad_64f(ppState, pTaps, numBq, pDlyLine, pBuf); }
inline QvxStatus IIRInit_BiQuad(QvxsIIRState_64fc** ppState, const Qvx64fc* pTaps, int numBq, const Qvx64fc* pDlyLine, Qvx8u*
    pBuf) { return qvxsIIRInit_BiQuad_64fc(ppState, pTaps, numBq, pDlyLine, pBuf); }
inline QvxStatus IIRInit_BiQuad(QvxsIIRState64f_32f** ppState, const Qvx64f* pTaps, int numBq, const Qvx64f* pDlyLine, Qvx8u*
    pBuf) { return qvxsIIRInit64f_BiQuad_32f(ppState, pTaps, numBq, pDlyLine, pBuf); }
inline QvxStatus IIRInit_BiQuad(QvxsIIRState64fc_32fc** ppState, const Qvx64fc* pTaps, int numBq, const Qvx64fc* pDlyLine, Qvx8u*
    pBuf) { return qvxsIIRInit64fc_BiQuad_32fc(ppState, pTaps, numBq, pDlyLine, pBuf); }
inline QvxStatus IIRInit_BiQuad(QvxsIIRState64f_32s** ppState, const Qvx64f* pTaps, int numBq, const Qvx64f* pDlyLine, Qvx8u*
    pBuf) { return qvxsIIRInit64f_BiQuad_32s(ppState, pTaps, numBq, pDlyLine, pBuf); }
inline QvxStatus IIRInit_BiQuad(QvxsIIRState64fc_32sc** ppState, const Qvx64fc* pTaps, int numBq, const Qvx64fc* pDlyLine, Qvx8u*
    pBuf) { return qvxsIIRInit64fc_BiQuad_32sc(ppState, pTaps, numBq, pDlyLine, pBuf); }
inline QvxStatus IIRInit_BiQuad(QvxsIIRState64f_16s** ppState, const Qvx64f* pTaps, int numBq, const Qvx64f* pDlyLine, Qvx8u*
    pBuf) { return qvxsIIRInit64f_BiQuad_16s(ppState, pTaps, numBq, pDlyLine, pBuf); }
inline QvxStatus IIRInit_BiQuad(QvxsIIRState64fc_16sc** ppState, const Qvx64fc* pTaps, int numBq, const Qvx64fc* pDlyLine, Qvx8u*
    pBuf) { return qvxsIIRInit64fc_BiQuad_16sc(ppState, pTaps, numBq, pDlyLine, pBuf); }

// qvxs_iir.h: As qvxsIIRInit, in a block of the library's own, to be released with qvxsIIRFree.
inline QvxStatus IIRInitAlloc(QvxsIIRState_32f** ppState, const Qvx32f* pTaps, int order, const Qvx32f* pDlyLine) { return
    qvxsIIRInitAlloc_32f(ppState, pTaps, order, pDlyLine); }
inline QvxStatus IIRInitAlloc(QvxsIIRState_32fc** ppState, const Qvx32fc* pTaps, int order, const Qvx32fc* pDlyLine) { return
    qvxsIIRInitAlloc_32fc(ppState, pTaps, order, pDlyLine); }
inline QvxStatus IIRInitAlloc(QvxsIIRState32f_16s** ppState, const Qvx32f* pTaps, int order, const Qvx32f* pDlyLine) { return
    qvxsIIRInitAlloc32f_16s(ppState, pTaps, order, pDlyLine); }
inline QvxStatus IIRInitAlloc(QvxsIIRState32fc_16sc** ppState, const Qvx32fc* pTaps, int order, const Qvx32fc* pDlyLine) { return
    qvxsIIRInitAlloc32fc_16sc(ppState, pTaps, order, pDlyLine); }
inline QvxStatus IIRInitAlloc(QvxsIIRState32s_16s** ppState, const Qvx32s* pTaps, int order, int tapsFactor, const Qvx32f*
    pDlyLine) { return qvxsIIRInitAlloc32s_16s(ppState, pTaps, order, tapsFactor, pDlyLine); }
inline QvxStatus IIRInitAlloc(QvxsIIRState32s_16s** ppState, const Qvx32f* pTaps, int order, const Qvx32f* pDlyLine) { return
    qvxsIIRInitAlloc32s_16s32f(ppState, pTaps, order, pDlyLine); }
inline QvxStatus IIRInitAlloc(QvxsIIRState32sc_16sc** ppState, const Qvx32sc* pTaps, int order, int tapsFactor, const Qvx32fc*
    pDlyLine) { return qvxsIIRInitAlloc32sc_16sc(ppState, pTaps, order, tapsFactor, pDlyLine); }
inline QvxStatus IIRInitAlloc(QvxsIIRState32sc_16sc** ppState, const Qvx32fc* pTaps, int order, const Qvx32fc* pDlyLine) { return
    qvxsIIRInitAlloc32sc_16sc32fc(ppState, pTaps, order, pDlyLine); }
inline QvxStatus IIRInitAlloc(QvxsIIRState_64f** ppState, const Qvx64f* pTaps, int order, const Qvx64f* pDlyLine) { return
    qvxsIIRInitAlloc_64f(ppState, pTaps, order, pDlyLine); }
inline QvxStatus IIRInitAlloc(QvxsIIRState_64fc** ppState, const Qvx64fc* pTaps, int order, const Qvx64fc* pDlyLine) { return
    qvxsIIRInitAlloc_64fc(ppState, pTaps, order, pDlyLine); }
inline QvxStatus IIRInitAlloc(QvxsIIRState64f_32f** ppState, const Qvx64f* pTaps, int order, const Qvx64f* pDlyLine) { return
    qvxsIIRInitAlloc64f_32f(ppState, pTaps, order, pDlyLine); }
inline QvxStatus IIRInitAlloc(QvxsIIRState64fc_32fc** ppState, const Qvx64fc* pTaps, int order, const Qvx64fc* pDlyLine) { return
    qvxsIIRInitAlloc64fc_32fc(ppState, pTaps, order, pDlyLine); }
inline QvxStatus IIRInitAlloc(QvxsIIRState64f_32s** ppState, const Qvx64f* pTaps, int order, const Qvx64f* pDlyLine) { return
    qvxsIIRInitAlloc64f_32s(ppState, pTaps, order, pDlyLine); }
inline QvxStatus IIRInitAlloc(QvxsIIRState64fc_32sc** ppState, const Qvx64fc* pTaps, int order, const Qvx64fc* pDlyLine) { return
    qvxsIIRInitAlloc64fc_32sc(ppState, pTaps, order, pDlyLine); }
inline QvxStatus IIRInitAlloc(QvxsIIRState64f_16s** ppState, const Qvx64f* pTaps, int order, const Qvx64f* pDlyLine) { return
    qvxsIIRInitAlloc64f_16s(ppState, pTaps, order, pDlyLine); }
inline QvxStatus IIRInitAlloc(QvxsIIRState64fc_16sc** ppState, const Qvx64fc* pTaps, int order, const Qvx64fc* pDlyLine) { return
    qvxsIIRInitAlloc64fc_16sc(ppState, pTaps, order, pDlyLine); }

// qvxs_iir.h: The same for numBq sections.
inline QvxStatus IIRInitAlloc_BiQuad(QvxsIIRState_32f** ppState, const Qvx32f* pTaps, int numBq, const Qvx32f* pDlyLine) { return
    qvxsIIRInitAlloc_BiQuad_32f(ppState, pTaps, numBq, pDlyLine); }
inline QvxStatus IIRInitAlloc_BiQuad(QvxsIIRState_32fc** ppState, const Qvx32fc* pTaps, int numBq, const Qvx32fc* pDlyLine) {
    return qvxsIIRInitAlloc_BiQuad_32fc(ppState, pTaps, numBq, pDlyLine); }
inline QvxStatus IIRInitAlloc_BiQuad(QvxsIIRState32f_16s** ppState, const Qvx32f* pTaps, int numBq, const Qvx32f* pDlyLine) {
    return qvxsIIRInitAlloc32f_BiQuad_16s(ppState, pTaps, numBq, pDlyLine); }
inline QvxStatus IIRInitAlloc_BiQuad(QvxsIIRState32fc_16sc** ppState, const Qvx32fc* pTaps, int numBq, const Qvx32fc* pDlyLine) {
    return qvxsIIRInitAlloc32fc_BiQuad_16sc(ppState, pTaps, numBq, pDlyLine); }
inline QvxStatus IIRInitAlloc_BiQuad(QvxsIIRState32s_16s** ppState, const Qvx32s* pTaps, int numBq, int tapsFactor, const Qvx32f*
    pDlyLine) { return qvxsIIRInitAlloc32s_BiQuad_16s(ppState, pTaps, numBq, tapsFactor, pDlyLine); }
inline QvxStatus IIRInitAlloc_BiQuad(QvxsIIRState32s_16s** ppState, const Qvx32f* pTaps, int numBq, const Qvx32f* pDlyLine) {
    return qvxsIIRInitAlloc32s_BiQuad_16s32f(ppState, pTaps, numBq, pDlyLine); }
inline QvxStatus IIRInitAlloc_BiQuad(QvxsIIRState32sc_16sc** ppState, const Qvx32sc* pTaps, int numBq, int tapsFactor, const
    Qvx32fc* pDlyLine) { return qvxsIIRInitAlloc32sc_BiQuad_16sc(ppState, pTaps, numBq, tapsFactor, pDlyLine); }
inline QvxStatus IIRInitAlloc_BiQuad(QvxsIIRState32sc_16sc** ppState, const Qvx32fc* pTaps, int numBq, const Qvx32fc* pDlyLine) {
    return qvxsIIRInitAlloc32sc_BiQuad_16sc32fc(ppState, pTaps, numBq, pDlyLine); }
inline QvxStatus IIRInitAlloc_BiQuad(QvxsIIRState_64f** ppState, const Qvx64f* pTaps, int numBq, const Qvx64f* pDlyLine) { return
    qvxsIIRInitAlloc_BiQuad_64f(ppState, pTaps, numBq, pDlyLine); }
inline QvxStatus IIRInitAlloc_BiQuad(QvxsIIRState_64fc** ppState, const Qvx64fc* pTaps, int numBq, const Qvx64fc* pDlyLine) {
    return qvxsIIRInitAlloc_BiQuad_64fc(ppState, pTaps, numBq, pDlyLine); }
inline QvxStatus IIRInitAlloc_BiQuad(QvxsIIRState64f_32f** ppState, const Qvx64f* pTaps, int numBq, const Qvx64f* pDlyLine) {
    return qvxsIIRInitAlloc64f_BiQuad_32f(ppState, pTaps, numBq, pDlyLine); }
inline QvxStatus IIRInitAlloc_BiQuad(QvxsIIRState64fc_32fc** ppState, const Qvx64fc* pTaps, int numBq, const Qvx64fc* pDlyLine) {
    return qvxsIIRInitAlloc64fc_BiQuad_32fc(ppState, pTaps, numBq, pDlyLine); }
inline QvxStatus IIRInitAlloc_BiQuad(QvxsIIRState64f_32s** ppState, const Qvx64f* pTaps, int numBq, const Qvx64f* pDlyLine) {
    return qvxsIIRInitAlloc64f_BiQuad_32s(ppState, pTaps, numBq, pDlyLine); }
inline QvxStatus IIRInitAlloc_BiQuad(QvxsIIRState64fc_32sc** ppState, const Qvx64fc* pTaps, int numBq, const Qvx64fc* pDlyLine) {
    return qvxsIIRInitAlloc64fc_BiQuad_32sc(ppState, pTaps, numBq, pDlyLine); }
inline QvxStatus IIRInitAlloc_BiQuad(QvxsIIRState64f_16s** ppState, const Qvx64f* pTaps, int numBq, const Qvx64f* pDlyLine) {
    return qvxsIIRInitAlloc64f_BiQuad_16s(ppState, pTaps, numBq, pDlyLine); }
inline QvxStatus IIRInitAlloc_BiQuad(QvxsIIRState64fc_16sc** ppState, const Qvx64fc* pTaps, int numBq, const Qvx64fc* pDlyLine) {
    return qvxsIIRInitAlloc64fc_BiQuad_16sc(ppState, pTaps, numBq, pDlyLine); }

// qvxs_iir.h: Sections in the direct form I. As their BiQuad brothers, with 4 values a section in pDlyLine. ...
inline QvxStatus IIRGetStateSize_BiQuad_DF1(Types<Qvx32f>, int numBq, int* pStateSize) { return
    qvxsIIRGetStateSize_BiQuad_DF1_32f(numBq, pStateSize); }

// qvxs_iir.h: Sections in the direct form I. As their BiQuad brothers, with 4 values a section in pDlyLine. ...
inline QvxStatus IIRInit_BiQuad_DF1(QvxsIIRState_32f** ppState, const Qvx32f* pTaps, int numBq, const Qvx32f* pDlyLine, Qvx8u*
    pBuf) { return qvxsIIRInit_BiQuad_DF1_32f(ppState, pTaps, numBq, pDlyLine, pBuf); }

// qvxs_iir.h: Sections in the direct form I. As their BiQuad brothers, with 4 values a section in pDlyLine. ...
inline QvxStatus IIRGetStateSize_BiQuad_DF1(Types<Qvx64f, Qvx32s>, int numBq, int* pStateSize) { return
    qvxsIIRGetStateSize64f_BiQuad_DF1_32s(numBq, pStateSize); }

// qvxs_iir.h: Sections in the direct form I. As their BiQuad brothers, with 4 values a section in pDlyLine. ...
inline QvxStatus IIRInit_BiQuad_DF1(QvxsIIRState64f_32s** ppState, const Qvx64f* pTaps, int numBq, const Qvx32s* pDlyLine, Qvx8u*
    pBuf) { return qvxsIIRInit64f_BiQuad_DF1_32s(ppState, pTaps, numBq, pDlyLine, pBuf); }

// qvxs_iir.h: Sections in the direct form I. As their BiQuad brothers, with 4 values a section in pDlyLine. ...
inline QvxStatus IIRInitAlloc_BiQuad_DF1(QvxsIIRState_32f** ppState, const Qvx32f* pTaps, int numBq, const Qvx32f* pDlyLine) {
    return qvxsIIRInitAlloc_BiQuad_DF1_32f(ppState, pTaps, numBq, pDlyLine); }
inline QvxStatus IIRInitAlloc_BiQuad_DF1(QvxsIIRState64f_32s** ppState, const Qvx64f* pTaps, int numBq, const Qvx32s* pDlyLine) {
    return qvxsIIRInitAlloc64f_BiQuad_DF1_32s(ppState, pTaps, numBq, pDlyLine); }

// qvxs_iir.h: Releases a record of qvxsIIRInitAlloc; one in a caller's block is left as it is.
inline QvxStatus IIRFree(QvxsIIRState_32f* pState) { return qvxsIIRFree_32f(pState); }
inline QvxStatus IIRFree(QvxsIIRState_32fc* pState) { return qvxsIIRFree_32fc(pState); }
inline QvxStatus IIRFree(QvxsIIRState32f_16s* pState) { return qvxsIIRFree32f_16s(pState); }
inline QvxStatus IIRFree(QvxsIIRState32fc_16sc* pState) { return qvxsIIRFree32fc_16sc(pState); }
inline QvxStatus IIRFree(QvxsIIRState32s_16s* pState) { return qvxsIIRFree32s_16s(pState); }
inline QvxStatus IIRFree(QvxsIIRState32sc_16sc* pState) { return qvxsIIRFree32sc_16sc(pState); }
inline QvxStatus IIRFree(QvxsIIRState_64f* pState) { return qvxsIIRFree_64f(pState); }
inline QvxStatus IIRFree(QvxsIIRState_64fc* pState) { return qvxsIIRFree_64fc(pState); }
inline QvxStatus IIRFree(QvxsIIRState64f_32f* pState) { return qvxsIIRFree64f_32f(pState); }
inline QvxStatus IIRFree(QvxsIIRState64fc_32fc* pState) { return qvxsIIRFree64fc_32fc(pState); }
inline QvxStatus IIRFree(QvxsIIRState64f_32s* pState) { return qvxsIIRFree64f_32s(pState); }
inline QvxStatus IIRFree(QvxsIIRState64fc_32sc* pState) { return qvxsIIRFree64fc_32sc(pState); }
inline QvxStatus IIRFree(QvxsIIRState64f_16s* pState) { return qvxsIIRFree64f_16s(pState); }
inline QvxStatus IIRFree(QvxsIIRState64fc_16sc* pState) { return qvxsIIRFree64fc_16sc(pState); }

// qvxs_iir.h: pDlyLine = the delay line: order values in the direct form, 2 for each section, 4 in the direct ...
inline QvxStatus IIRGetDlyLine(QvxsIIRState_32f* pState, Qvx32f* pDlyLine) { return qvxsIIRGetDlyLine_32f(pState, pDlyLine); }
inline QvxStatus IIRGetDlyLine(QvxsIIRState_32fc* pState, Qvx32fc* pDlyLine) { return qvxsIIRGetDlyLine_32fc(pState, pDlyLine); }
inline QvxStatus IIRGetDlyLine(QvxsIIRState32f_16s* pState, Qvx32f* pDlyLine) { return qvxsIIRGetDlyLine32f_16s(pState, pDlyLine);
    }
inline QvxStatus IIRGetDlyLine(QvxsIIRState32fc_16sc* pState, Qvx32fc* pDlyLine) { return qvxsIIRGetDlyLine32fc_16sc(pState,
    pDlyLine); }
inline QvxStatus IIRGetDlyLine(QvxsIIRState32s_16s* pState, Qvx32f* pDlyLine) { return qvxsIIRGetDlyLine32s_16s(pState, pDlyLine);
    }
inline QvxStatus IIRGetDlyLine(QvxsIIRState32sc_16sc* pState, Qvx32fc* pDlyLine) { return qvxsIIRGetDlyLine32sc_16sc(pState,
    pDlyLine); }
inline QvxStatus IIRGetDlyLine(QvxsIIRState_64f* pState, Qvx64f* pDlyLine) { return qvxsIIRGetDlyLine_64f(pState, pDlyLine); }
inline QvxStatus IIRGetDlyLine(QvxsIIRState_64fc* pState, Qvx64fc* pDlyLine) { return qvxsIIRGetDlyLine_64fc(pState, pDlyLine); }
inline QvxStatus IIRGetDlyLine(QvxsIIRState64f_32f* pState, Qvx64f* pDlyLine) { return qvxsIIRGetDlyLine64f_32f(pState, pDlyLine);
    }
inline QvxStatus IIRGetDlyLine(QvxsIIRState64fc_32fc* pState, Qvx64fc* pDlyLine) { return qvxsIIRGetDlyLine64fc_32fc(pState,
    pDlyLine); }
inline QvxStatus IIRGetDlyLine(QvxsIIRState64f_32s* pState, Qvx64f* pDlyLine) { return qvxsIIRGetDlyLine64f_32s(pState, pDlyLine);
    }
inline QvxStatus IIRGetDlyLine(QvxsIIRState64fc_32sc* pState, Qvx64fc* pDlyLine) { return qvxsIIRGetDlyLine64fc_32sc(pState,
    pDlyLine); }
inline QvxStatus IIRGetDlyLine(QvxsIIRState64f_16s* pState, Qvx64f* pDlyLine) { return qvxsIIRGetDlyLine64f_16s(pState, pDlyLine);
    }
inline QvxStatus IIRGetDlyLine(QvxsIIRState64fc_16sc* pState, Qvx64fc* pDlyLine) { return qvxsIIRGetDlyLine64fc_16sc(pState,
    pDlyLine); }

// qvxs_iir.h: The delay line = pDlyLine, or zeros where it is null. Otherwise as qvxsIIRGetDlyLine.
inline QvxStatus IIRSetDlyLine(QvxsIIRState_32f* pState, const Qvx32f* pDlyLine) { return qvxsIIRSetDlyLine_32f(pState, pDlyLine);
    }
inline QvxStatus IIRSetDlyLine(QvxsIIRState_32fc* pState, const Qvx32fc* pDlyLine) { return qvxsIIRSetDlyLine_32fc(pState,
    pDlyLine); }
inline QvxStatus IIRSetDlyLine(QvxsIIRState32f_16s* pState, const Qvx32f* pDlyLine) { return qvxsIIRSetDlyLine32f_16s(pState,
    pDlyLine); }
inline QvxStatus IIRSetDlyLine(QvxsIIRState32fc_16sc* pState, const Qvx32fc* pDlyLine) { return qvxsIIRSetDlyLine32fc_16sc(pState,
    pDlyLine); }
inline QvxStatus IIRSetDlyLine(QvxsIIRState32s_16s* pState, const Qvx32f* pDlyLine) { return qvxsIIRSetDlyLine32s_16s(pState,
    pDlyLine); }
inline QvxStatus IIRSetDlyLine(QvxsIIRState32sc_16sc* pState, const Qvx32fc* pDlyLine) { return qvxsIIRSetDlyLine32sc_16sc(pState,
    pDlyLine); }
inline QvxStatus IIRSetDlyLine(QvxsIIRState_64f* pState, const Qvx64f* pDlyLine) { return qvxsIIRSetDlyLine_64f(pState, pDlyLine);
    }
inline QvxStatus IIRSetDlyLine(QvxsIIRState_64fc* pState, const Qvx64fc* pDlyLine) { return qvxsIIRSetDlyLine_64fc(pState,
    pDlyLine); }
inline QvxStatus IIRSetDlyLine(QvxsIIRState64f_32f* pState, const Qvx64f* pDlyLine) { return qvxsIIRSetDlyLine64f_32f(pState,
    pDlyLine); }
inline QvxStatus IIRSetDlyLine(QvxsIIRState64fc_32fc* pState, const Qvx64fc* pDlyLine) { return qvxsIIRSetDlyLine64fc_32fc(pState,
    pDlyLine); }
inline QvxStatus IIRSetDlyLine(QvxsIIRState64f_32s* pState, const Qvx64f* pDlyLine) { return qvxsIIRSetDlyLine64f_32s(pState,
    pDlyLine); }
inline QvxStatus IIRSetDlyLine(QvxsIIRState64fc_32sc* pState, const Qvx64fc* pDlyLine) { return qvxsIIRSetDlyLine64fc_32sc(pState,
    pDlyLine); }
inline QvxStatus IIRSetDlyLine(QvxsIIRState64f_16s* pState, const Qvx64f* pDlyLine) { return qvxsIIRSetDlyLine64f_16s(pState,
    pDlyLine); }
inline QvxStatus IIRSetDlyLine(QvxsIIRState64fc_16sc* pState, const Qvx64fc* pDlyLine) { return qvxsIIRSetDlyLine64fc_16sc(pState,
    pDlyLine); }

// qvxs_iir.h: The delay line of 64f_32s sections in the direct form I: x[n-2], x[n-1], y[n-2], y[n-1] for ...
inline QvxStatus IIRSetDlyLine_DF1(QvxsIIRState64f_32s* pState, const Qvx32s* pDlyLine) { return
    qvxsIIRSetDlyLine64f_DF1_32s(pState, pDlyLine); }

// qvxs_iir.h: The delay line of 64f_32s sections in the direct form I: x[n-2], x[n-1], y[n-2], y[n-1] for ...
inline QvxStatus IIRGetDlyLine_DF1(QvxsIIRState64f_32s* pState, Qvx32s* pDlyLine) { return qvxsIIRGetDlyLine64f_DF1_32s(pState,
    pDlyLine); }

// qvxs_iir.h: Replaces the taps; the delay line stays. pTaps as in the initialiser.
inline QvxStatus IIRSetTaps(const Qvx32f* pTaps, QvxsIIRState_32f* pState) { return qvxsIIRSetTaps_32f(pTaps, pState); }
inline QvxStatus IIRSetTaps(const Qvx32fc* pTaps, QvxsIIRState_32fc* pState) { return qvxsIIRSetTaps_32fc(pTaps, pState); }
inline QvxStatus IIRSetTaps(const Qvx32f* pTaps, QvxsIIRState32f_16s* pState) { return qvxsIIRSetTaps32f_16s(pTaps, pState); }
inline QvxStatus IIRSetTaps(const Qvx32fc* pTaps, QvxsIIRState32fc_16sc* pState) { return qvxsIIRSetTaps32fc_16sc(pTaps, pState);
    }
inline QvxStatus IIRSetTaps(const Qvx32s* pTaps, QvxsIIRState32s_16s* pState, int tapsFactor) { return
    qvxsIIRSetTaps32s_16s(pTaps, pState, tapsFactor); }
inline QvxStatus IIRSetTaps(const Qvx32f* pTaps, QvxsIIRState32s_16s* pState) { return qvxsIIRSetTaps32s_16s32f(pTaps, pState); }
inline QvxStatus IIRSetTaps(const Qvx32sc* pTaps, QvxsIIRState32sc_16sc* pState, int tapsFactor) { return
    qvxsIIRSetTaps32sc_16sc(pTaps, pState, tapsFactor); }
inline QvxStatus IIRSetTaps(const Qvx32fc* pTaps, QvxsIIRState32sc_16sc* pState) { return qvxsIIRSetTaps32sc_16sc32fc(pTaps,
    pState); }
inline QvxStatus IIRSetTaps(const Qvx64f* pTaps, QvxsIIRState_64f* pState) { return qvxsIIRSetTaps_64f(pTaps, pState); }
inline QvxStatus IIRSetTaps(const Qvx64fc* pTaps, QvxsIIRState_64fc* pState) { return qvxsIIRSetTaps_64fc(pTaps, pState); }
inline QvxStatus IIRSetTaps(const Qvx64f* pTaps, QvxsIIRState64f_32f* pState) { return qvxsIIRSetTaps64f_32f(pTaps, pState); }
inline QvxStatus IIRSetTaps(const Qvx64fc* pTaps, QvxsIIRState64fc_32fc* pState) { return qvxsIIRSetTaps64fc_32fc(pTaps, pState);
    }
inline QvxStatus IIRSetTaps(const Qvx64f* pTaps, QvxsIIRState64f_32s* pState) { return qvxsIIRSetTaps64f_32s(pTaps, pState); }
inline QvxStatus IIRSetTaps(const Qvx64fc* pTaps, QvxsIIRState64fc_32sc* pState) { return qvxsIIRSetTaps64fc_32sc(pTaps, pState);
    }
inline QvxStatus IIRSetTaps(const Qvx64f* pTaps, QvxsIIRState64f_16s* pState) { return qvxsIIRSetTaps64f_16s(pTaps, pState); }
inline QvxStatus IIRSetTaps(const Qvx64fc* pTaps, QvxsIIRState64fc_16sc* pState) { return qvxsIIRSetTaps64fc_16sc(pTaps, pState);
    }

// qvxs_iir.h: dst = the filter's output for src, and the record's delay line carried on: a stream may be cut ...
inline QvxStatus IIR(const Qvx32f* pSrc, Qvx32f* pDst, int len, QvxsIIRState_32f* pState) { return qvxsIIR_32f(pSrc, pDst, len,
    pState); }
inline QvxStatus IIR(Qvx32f* pSrcDst, int len, QvxsIIRState_32f* pState) { return qvxsIIR_32f_I(pSrcDst, len, pState); }

// qvxs_iir.h: dst = the filter's output for src, and the record's delay line carried on: a stream may be cut ...
inline QvxStatus IIROne(Qvx32f src, Qvx32f* pDstVal, QvxsIIRState_32f* pState) { return qvxsIIROne_32f(src, pDstVal, pState); }

// qvxs_iir.h: dst = the filter's output for src, and the record's delay line carried on: a stream may be cut ...
inline QvxStatus IIR(const Qvx32fc* pSrc, Qvx32fc* pDst, int len, QvxsIIRState_32fc* pState) { return qvxsIIR_32fc(pSrc, pDst,
    len, pState); }
inline QvxStatus IIR(Qvx32fc* pSrcDst, int len, QvxsIIRState_32fc* pState) { return qvxsIIR_32fc_I(pSrcDst, len, pState); }

// qvxs_iir.h: dst = the filter's output for src, and the record's delay line carried on: a stream may be cut ...
inline QvxStatus IIROne(Qvx32fc src, Qvx32fc* pDstVal, QvxsIIRState_32fc* pState) { return qvxsIIROne_32fc(src, pDstVal, pState);
    }

// qvxs_iir.h: dst = the filter's output for src, and the record's delay line carried on: a stream may be cut ...
inline QvxStatus IIR(const Qvx16s* pSrc, Qvx16s* pDst, int len, QvxsIIRState32f_16s* pState, int scaleFactor) { return
    qvxsIIR32f_16s_Sfs(pSrc, pDst, len, pState, scaleFactor); }
inline QvxStatus IIR(Qvx16s* pSrcDst, int len, QvxsIIRState32f_16s* pState, int scaleFactor) { return qvxsIIR32f_16s_ISfs(pSrcDst,
    len, pState, scaleFactor); }

// qvxs_iir.h: dst = the filter's output for src, and the record's delay line carried on: a stream may be cut ...
inline QvxStatus IIROne(Qvx16s src, Qvx16s* pDstVal, QvxsIIRState32f_16s* pState, int scaleFactor) { return
    qvxsIIROne32f_16s_Sfs(src, pDstVal, pState, scaleFactor); }

// qvxs_iir.h: dst = the filter's output for src, and the record's delay line carried on: a stream may be cut ...
inline QvxStatus IIR(const Qvx16sc* pSrc, Qvx16sc* pDst, int len, QvxsIIRState32fc_16sc* pState, int scaleFactor) { return
    qvxsIIR32fc_16sc_Sfs(pSrc, pDst, len, pState, scaleFactor); }
inline QvxStatus IIR(Qvx16sc* pSrcDst, int len, QvxsIIRState32fc_16sc* pState, int scaleFactor) { return
    qvxsIIR32fc_16sc_ISfs(pSrcDst, len, pState, scaleFactor); }

// qvxs_iir.h: dst = the filter's output for src, and the record's delay line carried on: a stream may be cut ...
inline QvxStatus IIROne(Qvx16sc src, Qvx16sc* pDstVal, QvxsIIRState32fc_16sc* pState, int scaleFactor) { return
    qvxsIIROne32fc_16sc_Sfs(src, pDstVal, pState, scaleFactor); }

// qvxs_iir.h: dst = the filter's output for src, and the record's delay line carried on: a stream may be cut ...
inline QvxStatus IIR(const Qvx16s* pSrc, Qvx16s* pDst, int len, QvxsIIRState32s_16s* pState, int scaleFactor) { return
    qvxsIIR32s_16s_Sfs(pSrc, pDst, len, pState, scaleFactor); }
inline QvxStatus IIR(Qvx16s* pSrcDst, int len, QvxsIIRState32s_16s* pState, int scaleFactor) { return qvxsIIR32s_16s_ISfs(pSrcDst,
    len, pState, scaleFactor); }

// qvxs_iir.h: dst = the filter's output for src, and the record's delay line carried on: a stream may be cut ...
inline QvxStatus IIROne(Qvx16s src, Qvx16s* pDstVal, QvxsIIRState32s_16s* pState, int scaleFactor) { return
    qvxsIIROne32s_16s_Sfs(src, pDstVal, pState, scaleFactor); }

// qvxs_iir.h: dst = the filter's output for src, and the record's delay line carried on: a stream may be cut ...
inline QvxStatus IIR(const Qvx16sc* pSrc, Qvx16sc* pDst, int len, QvxsIIRState32sc_16sc* pState, int scaleFactor) { return
    qvxsIIR32sc_16sc_Sfs(pSrc, pDst, len, pState, scaleFactor); }
inline QvxStatus IIR(Qvx16sc* pSrcDst, int len, QvxsIIRState32sc_16sc* pState, int scaleFactor) { return
    qvxsIIR32sc_16sc_ISfs(pSrcDst, len, pState, scaleFactor); }

// qvxs_iir.h: dst = the filter's output for src, and the record's delay line carried on: a stream may be cut ...
inline QvxStatus IIROne(Qvx16sc src, Qvx16sc* pDstVal, QvxsIIRState32sc_16sc* pState, int scaleFactor) { return
    qvxsIIROne32sc_16sc_Sfs(src, pDstVal, pState, scaleFactor); }

// qvxs_iir.h: dst = the filter's output for src, and the record's delay line carried on: a stream may be cut ...
inline QvxStatus IIR(const Qvx64f* pSrc, Qvx64f* pDst, int len, QvxsIIRState_64f* pState) { return qvxsIIR_64f(pSrc, pDst, len,
    pState); }
inline QvxStatus IIR(Qvx64f* pSrcDst, int len, QvxsIIRState_64f* pState) { return qvxsIIR_64f_I(pSrcDst, len, pState); }

// qvxs_iir.h: dst = the filter's output for src, and the record's delay line carried on: a stream may be cut ...
inline QvxStatus IIROne(Qvx64f src, Qvx64f* pDstVal, QvxsIIRState_64f* pState) { return qvxsIIROne_64f(src, pDstVal, pState); }

// qvxs_iir.h: dst = the filter's output for src, and the record's delay line carried on: a stream may be cut ...
inline QvxStatus IIR(const Qvx64fc* pSrc, Qvx64fc* pDst, int len, QvxsIIRState_64fc* pState) { return qvxsIIR_64fc(pSrc, pDst,
    len, pState); }
inline QvxStatus IIR(Qvx64fc* pSrcDst, int len, QvxsIIRState_64fc* pState) { return qvxsIIR_64fc_I(pSrcDst, len, pState); }

// qvxs_iir.h: dst = the filter's output for src, and the record's delay line carried on: a stream may be cut ...
inline QvxStatus IIROne(Qvx64fc src, Qvx64fc* pDstVal, QvxsIIRState_64fc* pState) { return qvxsIIROne_64fc(src, pDstVal, pState);
    }

// qvxs_iir.h: dst = the filter's output for src, and the record's delay line carried on: a stream may be cut ...
inline QvxStatus IIR(const Qvx32f* pSrc, Qvx32f* pDst, int len, QvxsIIRState64f_32f* pState) { return qvxsIIR64f_32f(pSrc, pDst,
    len, pState); }
inline QvxStatus IIR(Qvx32f* pSrcDst, int len, QvxsIIRState64f_32f* pState) { return qvxsIIR64f_32f_I(pSrcDst, len, pState); }

// qvxs_iir.h: dst = the filter's output for src, and the record's delay line carried on: a stream may be cut ...
inline QvxStatus IIROne(Qvx32f src, Qvx32f* pDstVal, QvxsIIRState64f_32f* pState) { return qvxsIIROne64f_32f(src, pDstVal,
    pState); }

// qvxs_iir.h: dst = the filter's output for src, and the record's delay line carried on: a stream may be cut ...
inline QvxStatus IIR(const Qvx32fc* pSrc, Qvx32fc* pDst, int len, QvxsIIRState64fc_32fc* pState) { return qvxsIIR64fc_32fc(pSrc,
    pDst, len, pState); }
inline QvxStatus IIR(Qvx32fc* pSrcDst, int len, QvxsIIRState64fc_32fc* pState) { return qvxsIIR64fc_32fc_I(pSrcDst, len, pState);
    }

// qvxs_iir.h: dst = the filter's output for src, and the record's delay line carried on: a stream may be cut ...
inline QvxStatus IIROne(Qvx32fc src, Qvx32fc* pDstVal, QvxsIIRState64fc_32fc* pState) { return qvxsIIROne64fc_32fc(src, pDstVal,
    pState); }

// qvxs_iir.h: dst = the filter's output for src, and the record's delay line carried on: a stream may be cut ...
inline QvxStatus IIR(const Qvx32s* pSrc, Qvx32s* pDst, int len, QvxsIIRState64f_32s* pState, int scaleFactor) { return
    qvxsIIR64f_32s_Sfs(pSrc, pDst, len, pState, scaleFactor); }
inline QvxStatus IIR(Qvx32s* pSrcDst, int len, QvxsIIRState64f_32s* pState, int scaleFactor) { return qvxsIIR64f_32s_ISfs(pSrcDst,
    len, pState, scaleFactor); }

// qvxs_iir.h: dst = the filter's output for src, and the record's delay line carried on: a stream may be cut ...
inline QvxStatus IIROne(Qvx32s src, Qvx32s* pDstVal, QvxsIIRState64f_32s* pState, int scaleFactor) { return
    qvxsIIROne64f_32s_Sfs(src, pDstVal, pState, scaleFactor); }

// qvxs_iir.h: dst = the filter's output for src, and the record's delay line carried on: a stream may be cut ...
inline QvxStatus IIR(const Qvx32sc* pSrc, Qvx32sc* pDst, int len, QvxsIIRState64fc_32sc* pState, int scaleFactor) { return
    qvxsIIR64fc_32sc_Sfs(pSrc, pDst, len, pState, scaleFactor); }
inline QvxStatus IIR(Qvx32sc* pSrcDst, int len, QvxsIIRState64fc_32sc* pState, int scaleFactor) { return
    qvxsIIR64fc_32sc_ISfs(pSrcDst, len, pState, scaleFactor); }

// qvxs_iir.h: dst = the filter's output for src, and the record's delay line carried on: a stream may be cut ...
inline QvxStatus IIROne(Qvx32sc src, Qvx32sc* pDstVal, QvxsIIRState64fc_32sc* pState, int scaleFactor) { return
    qvxsIIROne64fc_32sc_Sfs(src, pDstVal, pState, scaleFactor); }

// qvxs_iir.h: dst = the filter's output for src, and the record's delay line carried on: a stream may be cut ...
inline QvxStatus IIR(const Qvx16s* pSrc, Qvx16s* pDst, int len, QvxsIIRState64f_16s* pState, int scaleFactor) { return
    qvxsIIR64f_16s_Sfs(pSrc, pDst, len, pState, scaleFactor); }
inline QvxStatus IIR(Qvx16s* pSrcDst, int len, QvxsIIRState64f_16s* pState, int scaleFactor) { return qvxsIIR64f_16s_ISfs(pSrcDst,
    len, pState, scaleFactor); }

// qvxs_iir.h: dst = the filter's output for src, and the record's delay line carried on: a stream may be cut ...
inline QvxStatus IIROne(Qvx16s src, Qvx16s* pDstVal, QvxsIIRState64f_16s* pState, int scaleFactor) { return
    qvxsIIROne64f_16s_Sfs(src, pDstVal, pState, scaleFactor); }

// qvxs_iir.h: dst = the filter's output for src, and the record's delay line carried on: a stream may be cut ...
inline QvxStatus IIR(const Qvx16sc* pSrc, Qvx16sc* pDst, int len, QvxsIIRState64fc_16sc* pState, int scaleFactor) { return
    qvxsIIR64fc_16sc_Sfs(pSrc, pDst, len, pState, scaleFactor); }
inline QvxStatus IIR(Qvx16sc* pSrcDst, int len, QvxsIIRState64fc_16sc* pState, int scaleFactor) { return
    qvxsIIR64fc_16sc_ISfs(pSrcDst, len, pState, scaleFactor); }

// qvxs_iir.h: dst = the filter's output for src, and the record's delay line carried on: a stream may be cut ...
inline QvxStatus IIROne(Qvx16sc src, Qvx16sc* pDstVal, QvxsIIRState64fc_16sc* pState, int scaleFactor) { return
    qvxsIIROne64fc_16sc_Sfs(src, pDstVal, pState, scaleFactor); }

// qvxs_iir.h: nChannels vectors, each through a filter of its own: as qvxsIIR_32f and qvxsIIR64f_32s_Sfs. ...
inline QvxStatus IIR(const Qvx32f* const* ppSrc, Qvx32f* const* ppDst, int len, int nChannels, QvxsIIRState_32f* const* ppState) {
    return qvxsIIR_32f_P(ppSrc, ppDst, len, nChannels, ppState); }
inline QvxStatus IIR(Qvx32f* const* ppSrcDst, int len, int nChannels, QvxsIIRState_32f* const* ppState) { return
    qvxsIIR_32f_IP(ppSrcDst, len, nChannels, ppState); }
inline QvxStatus IIR(const Qvx32s* const* ppSrc, Qvx32s* const* ppDst, int len, int nChannels, QvxsIIRState64f_32s* const*
    ppState, const int* pScaleFactor) { return qvxsIIR64f_32s_PSfs(ppSrc, ppDst, len, nChannels, ppState, pScaleFactor); }
inline QvxStatus IIR(Qvx32s* const* ppSrcDst, int len, int nChannels, QvxsIIRState64f_32s* const* ppState, const int*
    pScaleFactor) { return qvxsIIR64f_32s_IPSfs(ppSrcDst, len, nChannels, ppState, pScaleFactor); }

// qvxs_iir.h: A filter with few taps, each at a delay of its own: y[n] = sum of b[i] * x[n - posB[i]] + sum of ...
inline QvxStatus IIRSparseGetStateSize(Types<Qvx32f>, int nzTapsLenB, int nzTapsLenA, int orderB, int orderA, int* pStateSize) {
    return qvxsIIRSparseGetStateSize_32f(nzTapsLenB, nzTapsLenA, orderB, orderA, pStateSize); }

// qvxs_iir.h: Builds the record in pBuf, of any alignment. pNZTaps, pNZTapPos: the nzTapsLenB taps b and then ...
inline QvxStatus IIRSparseInit(QvxsIIRSparseState_32f** ppState, const Qvx32f* pNZTaps, const Qvx32s* pNZTapPos, int nzTapsLenB,
    int nzTapsLenA, const Qvx32f* pDlyLine, Qvx8u* pBuf) { return qvxsIIRSparseInit_32f(ppState, pNZTaps, pNZTapPos, nzTapsLenB,
    nzTapsLenA, pDlyLine, pBuf); }

// qvxs_iir.h: Filters len samples. A stream may be cut anywhere: the sums are the same to the bit. pDst must ...
inline QvxStatus IIRSparse(const Qvx32f* pSrc, Qvx32f* pDst, int len, QvxsIIRSparseState_32f* pState) { return
    qvxsIIRSparse_32f(pSrc, pDst, len, pState); }

// qvxs_generate.h: *pSize = the bytes of a record for Qvx16s, 56.
inline QvxStatus RandUniformGetSize(Types<Qvx16s>, int* pSize) { return qvxsRandUniformGetSize_16s(pSize); }

// qvxs_generate.h: Makes a record. Init: in the caller's memory at pState, of any alignment. InitAlloc: in memory ...
inline QvxStatus RandUniformInit(QvxsRandUniformState_16s* pState, Qvx16s low, Qvx16s high, Qvx32u seed) { return
    qvxsRandUniformInit_16s(pState, low, high, seed); }

// qvxs_generate.h: Makes a record. Init: in the caller's memory at pState, of any alignment. InitAlloc: in memory ...
inline QvxStatus RandUniformInitAlloc(QvxsRandUniformState_8u** ppState, Qvx8u low, Qvx8u high, Qvx32u seed) { return
    qvxsRandUniformInitAlloc_8u(ppState, low, high, seed); }
inline QvxStatus RandUniformInitAlloc(QvxsRandUniformState_16s** ppState, Qvx16s low, Qvx16s high, Qvx32u seed) { return
    qvxsRandUniformInitAlloc_16s(ppState, low, high, seed); }
inline QvxStatus RandUniformInitAlloc(QvxsRandUniformState_32f** ppState, Qvx32f low, Qvx32f high, Qvx32u seed) { return
    qvxsRandUniformInitAlloc_32f(ppState, low, high, seed); }

// qvxs_generate.h: Gives a record of InitAlloc back; one in the caller's memory stays as it is.
inline QvxStatus RandUniformFree(QvxsRandUniformState_8u* pState) { return qvxsRandUniformFree_8u(pState); }
inline QvxStatus RandUniformFree(QvxsRandUniformState_16s* pState) { return qvxsRandUniformFree_16s(pState); }
inline QvxStatus RandUniformFree(QvxsRandUniformState_32f* pState) { return qvxsRandUniformFree_32f(pState); }

// qvxs_generate.h: dst[n] = r * scale + mid in doubles, two roundings, scale = (high - low) * 2.3283064365387e-10, ...
inline QvxStatus RandUniform(Qvx8u* pDst, int len, QvxsRandUniformState_8u* pState) { return qvxsRandUniform_8u(pDst, len,
    pState); }
inline QvxStatus RandUniform(Qvx16s* pDst, int len, QvxsRandUniformState_16s* pState) { return qvxsRandUniform_16s(pDst, len,
    pState); }
inline QvxStatus RandUniform(Qvx32f* pDst, int len, QvxsRandUniformState_32f* pState) { return qvxsRandUniform_32f(pDst, len,
    pState); }

// qvxs_generate.h: *pSize = the bytes of a record for Qvx16s, 64.
inline QvxStatus RandGaussGetSize(Types<Qvx16s>, int* pSize) { return qvxsRandGaussGetSize_16s(pSize); }

// qvxs_generate.h: Makes a record. Init: in the caller's memory at pState, of any alignment. InitAlloc: in memory ...
inline QvxStatus RandGaussInit(QvxsRandGaussState_16s* pState, Qvx16s mean, Qvx16s stdDev, Qvx32u seed) { return
    qvxsRandGaussInit_16s(pState, mean, stdDev, seed); }

// qvxs_generate.h: Makes a record. Init: in the caller's memory at pState, of any alignment. InitAlloc: in memory ...
inline QvxStatus RandGaussInitAlloc(QvxsRandGaussState_8u** ppState, Qvx8u mean, Qvx8u stdDev, Qvx32u seed) { return
    qvxsRandGaussInitAlloc_8u(ppState, mean, stdDev, seed); }
inline QvxStatus RandGaussInitAlloc(QvxsRandGaussState_16s** ppState, Qvx16s mean, Qvx16s stdDev, Qvx32u seed) { return
    qvxsRandGaussInitAlloc_16s(ppState, mean, stdDev, seed); }
inline QvxStatus RandGaussInitAlloc(QvxsRandGaussState_32f** ppState, Qvx32f mean, Qvx32f stdDev, Qvx32u seed) { return
    qvxsRandGaussInitAlloc_32f(ppState, mean, stdDev, seed); }

// qvxs_generate.h: Gives a record of InitAlloc back; one in the caller's memory stays as it is.
inline QvxStatus RandGaussFree(QvxsRandGaussState_8u* pState) { return qvxsRandGaussFree_8u(pState); }
inline QvxStatus RandGaussFree(QvxsRandGaussState_16s* pState) { return qvxsRandGaussFree_16s(pState); }
inline QvxStatus RandGaussFree(QvxsRandGaussState_32f* pState) { return qvxsRandGaussFree_32f(pState); }

// qvxs_generate.h: Normal deviates by the polar method: of two steps u = r1 * c and v = r2 * c, c = ...
inline QvxStatus RandGauss(Qvx8u* pDst, int len, QvxsRandGaussState_8u* pState) { return qvxsRandGauss_8u(pDst, len, pState); }
inline QvxStatus RandGauss(Qvx16s* pDst, int len, QvxsRandGaussState_16s* pState) { return qvxsRandGauss_16s(pDst, len, pState); }
inline QvxStatus RandGauss(Qvx32f* pDst, int len, QvxsRandGaussState_32f* pState) { return qvxsRandGauss_32f(pDst, len, pState); }

// qvxs_generate.h: *pSize = the bytes of a record, 48.
inline QvxStatus ToneGetStateSizeQ15(Types<Qvx16s>, int* pSize) { return qvxsToneGetStateSizeQ15_16s(pSize); }

// qvxs_generate.h: Makes a record. Init: in the caller's memory at pState, of any alignment; InitAlloc: in memory ...
inline QvxStatus ToneInitQ15(QvxsToneState* pState, Qvx16s magn, Qvx16s rFreqQ15, Qvx32s phaseQ15) { return
    qvxsToneInitQ15_16s(pState, magn, rFreqQ15, phaseQ15); }

// qvxs_generate.h: Makes a record. Init: in the caller's memory at pState, of any alignment; InitAlloc: in memory ...
inline QvxStatus ToneInitAllocQ15(QvxsToneState** ppState, Qvx16s magn, Qvx16s rFreqQ15, Qvx32s phaseQ15) { return
    qvxsToneInitAllocQ15_16s(ppState, magn, rFreqQ15, phaseQ15); }

// qvxs_generate.h: The next len samples of a record's tone: however a stream is cut, its samples are the same. Each ...
inline QvxStatus ToneQ15(Qvx16s* pDst, int len, QvxsToneState* pState) { return qvxsToneQ15_16s(pDst, len, pState); }

// qvxs_generate.h: Gives a record of InitAlloc back; one in the caller's memory stays as it is.
inline QvxStatus ToneFree(QvxsToneState* pState) { return qvxsToneFree(pState); }

// qvxs_generate.h: *pSize = the bytes of a record, 136.
inline QvxStatus TriangleGetStateSizeQ15(Types<Qvx16s>, int* pSize) { return qvxsTriangleGetStateSizeQ15_16s(pSize); }

// qvxs_generate.h: Makes a record. Init: in the caller's memory at pState, of any alignment; InitAlloc: in memory ...
inline QvxStatus TriangleInitQ15(QvxsTriangleState* pState, Qvx16s magn, Qvx16s rFreqQ15, Qvx32s asymQ15, Qvx32s phaseQ15) {
    return qvxsTriangleInitQ15_16s(pState, magn, rFreqQ15, asymQ15, phaseQ15); }

// qvxs_generate.h: Makes a record. Init: in the caller's memory at pState, of any alignment; InitAlloc: in memory ...
inline QvxStatus TriangleInitAllocQ15(QvxsTriangleState** ppState, Qvx16s magn, Qvx16s rFreqQ15, Qvx32s asymQ15, Qvx32s phaseQ15)
    { return qvxsTriangleInitAllocQ15_16s(ppState, magn, rFreqQ15, asymQ15, phaseQ15); }

// qvxs_generate.h: The next len samples of a record's wave: however a stream is cut, its samples are the same.
inline QvxStatus TriangleQ15(Qvx16s* pDst, int len, QvxsTriangleState* pState) { return qvxsTriangleQ15_16s(pDst, len, pState); }

// qvxs_generate.h: Gives a record of InitAlloc back; one in the caller's memory stays as it is.
inline QvxStatus TriangleFree(QvxsTriangleState* pState) { return qvxsTriangleFree(pState); }

// qvxs_wavelet.h: A record of a forward stage in a block of its own. The taps are copied, h[0] first.
inline QvxStatus WTFwdInitAlloc(QvxsWTFwdState_32f** ppState, const Qvx32f* pTapsLow, int lenLow, int offsLow, const Qvx32f*
    pTapsHigh, int lenHigh, int offsHigh) { return qvxsWTFwdInitAlloc_32f(ppState, pTapsLow, lenLow, offsLow, pTapsHigh, lenHigh,
    offsHigh); }

// qvxs_wavelet.h: pDstLow, pDstHigh = the two bands of the next 2 * dstLen samples.
inline QvxStatus WTFwd(const Qvx32f* pSrc, Qvx32f* pDstLow, Qvx32f* pDstHigh, int dstLen, QvxsWTFwdState_32f* pState) { return
    qvxsWTFwd_32f(pSrc, pDstLow, pDstHigh, dstLen, pState); }

// qvxs_wavelet.h: Replaces or reads what each band keeps of the stream: its last L + o - 1 samples, oldest first ...
inline QvxStatus WTFwdSetDlyLine(QvxsWTFwdState_32f* pState, const Qvx32f* pDlyLow, const Qvx32f* pDlyHigh) { return
    qvxsWTFwdSetDlyLine_32f(pState, pDlyLow, pDlyHigh); }

// qvxs_wavelet.h: Replaces or reads what each band keeps of the stream: its last L + o - 1 samples, oldest first ...
inline QvxStatus WTFwdGetDlyLine(const QvxsWTFwdState_32f* pState, Qvx32f* pDlyLow, Qvx32f* pDlyHigh) { return
    qvxsWTFwdGetDlyLine_32f(pState, pDlyLow, pDlyHigh); }

// qvxs_wavelet.h: Releases the record. Returns qvxStatOk; qvxStatNullPtr; qvxStatContextMismatch (no such record).
inline QvxStatus WTFwdFree(QvxsWTFwdState_32f* pState) { return qvxsWTFwdFree_32f(pState); }

// qvxs_wavelet.h: A record of a forward stage in a block of its own. The taps are copied, h[0] first.
inline QvxStatus WTFwdInitAlloc(QvxsWTFwdState_8u32f** ppState, const Qvx32f* pTapsLow, int lenLow, int offsLow, const Qvx32f*
    pTapsHigh, int lenHigh, int offsHigh) { return qvxsWTFwdInitAlloc_8u32f(ppState, pTapsLow, lenLow, offsLow, pTapsHigh,
    lenHigh, offsHigh); }

// qvxs_wavelet.h: pDstLow, pDstHigh = the two bands of the next 2 * dstLen samples.
inline QvxStatus WTFwd(const Qvx8u* pSrc, Qvx32f* pDstLow, Qvx32f* pDstHigh, int dstLen, QvxsWTFwdState_8u32f* pState) { return
    qvxsWTFwd_8u32f(pSrc, pDstLow, pDstHigh, dstLen, pState); }

// qvxs_wavelet.h: Replaces or reads what each band keeps of the stream: its last L + o - 1 samples, oldest first ...
inline QvxStatus WTFwdSetDlyLine(QvxsWTFwdState_8u32f* pState, const Qvx32f* pDlyLow, const Qvx32f* pDlyHigh) { return
    qvxsWTFwdSetDlyLine_8u32f(pState, pDlyLow, pDlyHigh); }

// qvxs_wavelet.h: Replaces or reads what each band keeps of the stream: its last L + o - 1 samples, oldest first ...
inline QvxStatus WTFwdGetDlyLine(const QvxsWTFwdState_8u32f* pState, Qvx32f* pDlyLow, Qvx32f* pDlyHigh) { return
    qvxsWTFwdGetDlyLine_8u32f(pState, pDlyLow, pDlyHigh); }

// qvxs_wavelet.h: Releases the record. Returns qvxStatOk; qvxStatNullPtr; qvxStatContextMismatch (no such record).
inline QvxStatus WTFwdFree(QvxsWTFwdState_8u32f* pState) { return qvxsWTFwdFree_8u32f(pState); }

// qvxs_wavelet.h: A record of a forward stage in a block of its own. The taps are copied, h[0] first.
inline QvxStatus WTFwdInitAlloc(QvxsWTFwdState_8s32f** ppState, const Qvx32f* pTapsLow, int lenLow, int offsLow, const Qvx32f*
    pTapsHigh, int lenHigh, int offsHigh) { return qvxsWTFwdInitAlloc_8s32f(ppState, pTapsLow, lenLow, offsLow, pTapsHigh,
    lenHigh, offsHigh); }

// qvxs_wavelet.h: pDstLow, pDstHigh = the two bands of the next 2 * dstLen samples.
inline QvxStatus WTFwd(const Qvx8s* pSrc, Qvx32f* pDstLow, Qvx32f* pDstHigh, int dstLen, QvxsWTFwdState_8s32f* pState) { return
    qvxsWTFwd_8s32f(pSrc, pDstLow, pDstHigh, dstLen, pState); }

// qvxs_wavelet.h: Replaces or reads what each band keeps of the stream: its last L + o - 1 samples, oldest first ...
inline QvxStatus WTFwdSetDlyLine(QvxsWTFwdState_8s32f* pState, const Qvx32f* pDlyLow, const Qvx32f* pDlyHigh) { return
    qvxsWTFwdSetDlyLine_8s32f(pState, pDlyLow, pDlyHigh); }

// qvxs_wavelet.h: Replaces or reads what each band keeps of the stream: its last L + o - 1 samples, oldest first ...
inline QvxStatus WTFwdGetDlyLine(const QvxsWTFwdState_8s32f* pState, Qvx32f* pDlyLow, Qvx32f* pDlyHigh) { return
    qvxsWTFwdGetDlyLine_8s32f(pState, pDlyLow, pDlyHigh); }

// qvxs_wavelet.h: Releases the record. Returns qvxStatOk; qvxStatNullPtr; qvxStatContextMismatch (no such record).
inline QvxStatus WTFwdFree(QvxsWTFwdState_8s32f* pState) { return qvxsWTFwdFree_8s32f(pState); }

// qvxs_wavelet.h: A record of a forward stage in a block of its own. The taps are copied, h[0] first.
inline QvxStatus WTFwdInitAlloc(QvxsWTFwdState_16u32f** ppState, const Qvx32f* pTapsLow, int lenLow, int offsLow, const Qvx32f*
    pTapsHigh, int lenHigh, int offsHigh) { return qvxsWTFwdInitAlloc_16u32f(ppState, pTapsLow, lenLow, offsLow, pTapsHigh,
    lenHigh, offsHigh); }

// qvxs_wavelet.h: pDstLow, pDstHigh = the two bands of the next 2 * dstLen samples.
inline QvxStatus WTFwd(const Qvx16u* pSrc, Qvx32f* pDstLow, Qvx32f* pDstHigh, int dstLen, QvxsWTFwdState_16u32f* pState) { return
    qvxsWTFwd_16u32f(pSrc, pDstLow, pDstHigh, dstLen, pState); }

// qvxs_wavelet.h: Replaces or reads what each band keeps of the stream: its last L + o - 1 samples, oldest first ...
inline QvxStatus WTFwdSetDlyLine(QvxsWTFwdState_16u32f* pState, const Qvx32f* pDlyLow, const Qvx32f* pDlyHigh) { return
    qvxsWTFwdSetDlyLine_16u32f(pState, pDlyLow, pDlyHigh); }

// qvxs_wavelet.h: Replaces or reads what each band keeps of the stream: its last L + o - 1 samples, oldest first ...
inline QvxStatus WTFwdGetDlyLine(const QvxsWTFwdState_16u32f* pState, Qvx32f* pDlyLow, Qvx32f* pDlyHigh) { return
    qvxsWTFwdGetDlyLine_16u32f(pState, pDlyLow, pDlyHigh); }

// qvxs_wavelet.h: Releases the record. Returns qvxStatOk; qvxStatNullPtr; qvxStatContextMismatch (no such record).
inline QvxStatus WTFwdFree(QvxsWTFwdState_16u32f* pState) { return qvxsWTFwdFree_16u32f(pState); }

// qvxs_wavelet.h: A record of a forward stage in a block of its own. The taps are copied, h[0] first.
inline QvxStatus WTFwdInitAlloc(QvxsWTFwdState_16s32f** ppState, const Qvx32f* pTapsLow, int lenLow, int offsLow, const Qvx32f*
    pTapsHigh, int lenHigh, int offsHigh) { return qvxsWTFwdInitAlloc_16s32f(ppState, pTapsLow, lenLow, offsLow, pTapsHigh,
    lenHigh, offsHigh); }

// qvxs_wavelet.h: pDstLow, pDstHigh = the two bands of the next 2 * dstLen samples.
inline QvxStatus WTFwd(const Qvx16s* pSrc, Qvx32f* pDstLow, Qvx32f* pDstHigh, int dstLen, QvxsWTFwdState_16s32f* pState) { return
    qvxsWTFwd_16s32f(pSrc, pDstLow, pDstHigh, dstLen, pState); }

// qvxs_wavelet.h: Replaces or reads what each band keeps of the stream: its last L + o - 1 samples, oldest first ...
inline QvxStatus WTFwdSetDlyLine(QvxsWTFwdState_16s32f* pState, const Qvx32f* pDlyLow, const Qvx32f* pDlyHigh) { return
    qvxsWTFwdSetDlyLine_16s32f(pState, pDlyLow, pDlyHigh); }

// qvxs_wavelet.h: Replaces or reads what each band keeps of the stream: its last L + o - 1 samples, oldest first ...
inline QvxStatus WTFwdGetDlyLine(const QvxsWTFwdState_16s32f* pState, Qvx32f* pDlyLow, Qvx32f* pDlyHigh) { return
    qvxsWTFwdGetDlyLine_16s32f(pState, pDlyLow, pDlyHigh); }

// qvxs_wavelet.h: Releases the record. Returns qvxStatOk; qvxStatNullPtr; qvxStatContextMismatch (no such record).
inline QvxStatus WTFwdFree(QvxsWTFwdState_16s32f* pState) { return qvxsWTFwdFree_16s32f(pState); }

// qvxs_wavelet.h: A record of an inverse stage, made as that of a forward stage, with the same refusals.
inline QvxStatus WTInvInitAlloc(QvxsWTInvState_32f** ppState, const Qvx32f* pTapsLow, int lenLow, int offsLow, const Qvx32f*
    pTapsHigh, int lenHigh, int offsHigh) { return qvxsWTInvInitAlloc_32f(ppState, pTapsLow, lenLow, offsLow, pTapsHigh, lenHigh,
    offsHigh); }

// qvxs_wavelet.h: pDst = the next 2 * srcLen samples of the two bands joined.
inline QvxStatus WTInv(const Qvx32f* pSrcLow, const Qvx32f* pSrcHigh, int srcLen, Qvx32f* pDst, QvxsWTInvState_32f* pState) {
    return qvxsWTInv_32f(pSrcLow, pSrcHigh, srcLen, pDst, pState); }

// qvxs_wavelet.h: Replaces or reads what each band keeps: its last (L + o - 1) / 2 values, rounded down, oldest ...
inline QvxStatus WTInvSetDlyLine(QvxsWTInvState_32f* pState, const Qvx32f* pDlyLow, const Qvx32f* pDlyHigh) { return
    qvxsWTInvSetDlyLine_32f(pState, pDlyLow, pDlyHigh); }

// qvxs_wavelet.h: Replaces or reads what each band keeps: its last (L + o - 1) / 2 values, rounded down, oldest ...
inline QvxStatus WTInvGetDlyLine(const QvxsWTInvState_32f* pState, Qvx32f* pDlyLow, Qvx32f* pDlyHigh) { return
    qvxsWTInvGetDlyLine_32f(pState, pDlyLow, pDlyHigh); }

// qvxs_wavelet.h: Releases the record. Returns qvxStatOk; qvxStatNullPtr; qvxStatContextMismatch (no such record).
inline QvxStatus WTInvFree(QvxsWTInvState_32f* pState) { return qvxsWTInvFree_32f(pState); }

// qvxs_wavelet.h: A record of an inverse stage, made as that of a forward stage, with the same refusals.
inline QvxStatus WTInvInitAlloc(QvxsWTInvState_32f8u** ppState, const Qvx32f* pTapsLow, int lenLow, int offsLow, const Qvx32f*
    pTapsHigh, int lenHigh, int offsHigh) { return qvxsWTInvInitAlloc_32f8u(ppState, pTapsLow, lenLow, offsLow, pTapsHigh,
    lenHigh, offsHigh); }

// qvxs_wavelet.h: pDst = the next 2 * srcLen samples of the two bands joined.
inline QvxStatus WTInv(const Qvx32f* pSrcLow, const Qvx32f* pSrcHigh, int srcLen, Qvx8u* pDst, QvxsWTInvState_32f8u* pState) {
    return qvxsWTInv_32f8u(pSrcLow, pSrcHigh, srcLen, pDst, pState); }

// qvxs_wavelet.h: Replaces or reads what each band keeps: its last (L + o - 1) / 2 values, rounded down, oldest ...
inline QvxStatus WTInvSetDlyLine(QvxsWTInvState_32f8u* pState, const Qvx32f* pDlyLow, const Qvx32f* pDlyHigh) { return
    qvxsWTInvSetDlyLine_32f8u(pState, pDlyLow, pDlyHigh); }

// qvxs_wavelet.h: Replaces or reads what each band keeps: its last (L + o - 1) / 2 values, rounded down, oldest ...
inline QvxStatus WTInvGetDlyLine(const QvxsWTInvState_32f8u* pState, Qvx32f* pDlyLow, Qvx32f* pDlyHigh) { return
    qvxsWTInvGetDlyLine_32f8u(pState, pDlyLow, pDlyHigh); }

// qvxs_wavelet.h: Releases the record. Returns qvxStatOk; qvxStatNullPtr; qvxStatContextMismatch (no such record).
inline QvxStatus WTInvFree(QvxsWTInvState_32f8u* pState) { return qvxsWTInvFree_32f8u(pState); }

// qvxs_wavelet.h: A record of an inverse stage, made as that of a forward stage, with the same refusals.
inline QvxStatus WTInvInitAlloc(QvxsWTInvState_32f8s** ppState, const Qvx32f* pTapsLow, int lenLow, int offsLow, const Qvx32f*
    pTapsHigh, int lenHigh, int offsHigh) { return qvxsWTInvInitAlloc_32f8s(ppState, pTapsLow, lenLow, offsLow, pTapsHigh,
    lenHigh, offsHigh); }

// qvxs_wavelet.h: pDst = the next 2 * srcLen samples of the two bands joined.
inline QvxStatus WTInv(const Qvx32f* pSrcLow, const Qvx32f* pSrcHigh, int srcLen, Qvx8s* pDst, QvxsWTInvState_32f8s* pState) {
    return qvxsWTInv_32f8s(pSrcLow, pSrcHigh, srcLen, pDst, pState); }

// qvxs_wavelet.h: Replaces or reads what each band keeps: its last (L + o - 1) / 2 values, rounded down, oldest ...
inline QvxStatus WTInvSetDlyLine(QvxsWTInvState_32f8s* pState, const Qvx32f* pDlyLow, const Qvx32f* pDlyHigh) { return
    qvxsWTInvSetDlyLine_32f8s(pState, pDlyLow, pDlyHigh); }

// qvxs_wavelet.h: Replaces or reads what each band keeps: its last (L + o - 1) / 2 values, rounded down, oldest ...
inline QvxStatus WTInvGetDlyLine(const QvxsWTInvState_32f8s* pState, Qvx32f* pDlyLow, Qvx32f* pDlyHigh) { return
    qvxsWTInvGetDlyLine_32f8s(pState, pDlyLow, pDlyHigh); }

// qvxs_wavelet.h: Releases the record. Returns qvxStatOk; qvxStatNullPtr; qvxStatContextMismatch (no such record).
inline QvxStatus WTInvFree(QvxsWTInvState_32f8s* pState) { return qvxsWTInvFree_32f8s(pState); }

// qvxs_wavelet.h: A record of an inverse stage, made as that of a forward stage, with the same refusals.
inline QvxStatus WTInvInitAlloc(QvxsWTInvState_32f16u** ppState, const Qvx32f* pTapsLow, int lenLow, int offsLow, const Qvx32f*
    pTapsHigh, int lenHigh, int offsHigh) { return qvxsWTInvInitAlloc_32f16u(ppState, pTapsLow, lenLow, offsLow, pTapsHigh,
    lenHigh, offsHigh); }

// qvxs_wavelet.h: pDst = the next 2 * srcLen samples of the two bands joined.
inline QvxStatus WTInv(const Qvx32f* pSrcLow, const Qvx32f* pSrcHigh, int srcLen, Qvx16u* pDst, QvxsWTInvState_32f16u* pState) {
    return qvxsWTInv_32f16u(pSrcLow, pSrcHigh, srcLen, pDst, pState); }

// qvxs_wavelet.h: Replaces or reads what each band keeps: its last (L + o - 1) / 2 values, rounded down, oldest ...
inline QvxStatus WTInvSetDlyLine(QvxsWTInvState_32f16u* pState, const Qvx32f* pDlyLow, const Qvx32f* pDlyHigh) { return
    qvxsWTInvSetDlyLine_32f16u(pState, pDlyLow, pDlyHigh); }

// qvxs_wavelet.h: Replaces or reads what each band keeps: its last (L + o - 1) / 2 values, rounded down, oldest ...
inline QvxStatus WTInvGetDlyLine(const QvxsWTInvState_32f16u* pState, Qvx32f* pDlyLow, Qvx32f* pDlyHigh) { return
    qvxsWTInvGetDlyLine_32f16u(pState, pDlyLow, pDlyHigh); }

// qvxs_wavelet.h: Releases the record. Returns qvxStatOk; qvxStatNullPtr; qvxStatContextMismatch (no such record).
inline QvxStatus WTInvFree(QvxsWTInvState_32f16u* pState) { return qvxsWTInvFree_32f16u(pState); }

// qvxs_wavelet.h: A record of an inverse stage, made as that of a forward stage, with the same refusals.
inline QvxStatus WTInvInitAlloc(QvxsWTInvState_32f16s** ppState, const Qvx32f* pTapsLow, int lenLow, int offsLow, const Qvx32f*
    pTapsHigh, int lenHigh, int offsHigh) { return qvxsWTInvInitAlloc_32f16s(ppState, pTapsLow, lenLow, offsLow, pTapsHigh,
    lenHigh, offsHigh); }

// qvxs_wavelet.h: pDst = the next 2 * srcLen samples of the two bands joined.
inline QvxStatus WTInv(const Qvx32f* pSrcLow, const Qvx32f* pSrcHigh, int srcLen, Qvx16s* pDst, QvxsWTInvState_32f16s* pState) {
    return qvxsWTInv_32f16s(pSrcLow, pSrcHigh, srcLen, pDst, pState); }

// qvxs_wavelet.h: Replaces or reads what each band keeps: its last (L + o - 1) / 2 values, rounded down, oldest ...
inline QvxStatus WTInvSetDlyLine(QvxsWTInvState_32f16s* pState, const Qvx32f* pDlyLow, const Qvx32f* pDlyHigh) { return
    qvxsWTInvSetDlyLine_32f16s(pState, pDlyLow, pDlyHigh); }

// qvxs_wavelet.h: Replaces or reads what each band keeps: its last (L + o - 1) / 2 values, rounded down, oldest ...
inline QvxStatus WTInvGetDlyLine(const QvxsWTInvState_32f16s* pState, Qvx32f* pDlyLow, Qvx32f* pDlyHigh) { return
    qvxsWTInvGetDlyLine_32f16s(pState, pDlyLow, pDlyHigh); }

// qvxs_wavelet.h: Releases the record. Returns qvxStatOk; qvxStatNullPtr; qvxStatContextMismatch (no such record).
inline QvxStatus WTInvFree(QvxsWTInvState_32f16s* pState) { return qvxsWTInvFree_32f16s(pState); }

// The record of a stem for element types, in the order of its name: taps first.
template <class Stem, class... T>
struct RecordOf;
struct FFT_CStem;
template <> struct RecordOf<FFT_CStem, Qvx32fc> { using type = QvxsFFTSpec_C_32fc; };
template <> struct RecordOf<FFT_CStem, Qvx32f> { using type = QvxsFFTSpec_C_32f; };
template <> struct RecordOf<FFT_CStem, Qvx64fc> { using type = QvxsFFTSpec_C_64fc; };
template <> struct RecordOf<FFT_CStem, Qvx64f> { using type = QvxsFFTSpec_C_64f; };
struct FFT_RStem;
template <> struct RecordOf<FFT_RStem, Qvx32f> { using type = QvxsFFTSpec_R_32f; };
template <> struct RecordOf<FFT_RStem, Qvx64f> { using type = QvxsFFTSpec_R_64f; };
template <> struct RecordOf<FFT_CStem, Qvx16sc> { using type = QvxsFFTSpec_C_16sc; };
template <> struct RecordOf<FFT_CStem, Qvx16s> { using type = QvxsFFTSpec_C_16s; };
template <> struct RecordOf<FFT_RStem, Qvx16s> { using type = QvxsFFTSpec_R_16s; };
template <> struct RecordOf<FFT_CStem, Qvx32sc> { using type = QvxsFFTSpec_C_32sc; };
template <> struct RecordOf<FFT_CStem, Qvx32s> { using type = QvxsFFTSpec_C_32s; };
template <> struct RecordOf<FFT_RStem, Qvx32s> { using type = QvxsFFTSpec_R_32s; };
template <> struct RecordOf<FFT_RStem, Qvx16s, Qvx32s> { using type = QvxsFFTSpec_R_16s32s; };
struct DFT_CStem;
template <> struct RecordOf<DFT_CStem, Qvx32fc> { using type = QvxsDFTSpec_C_32fc; };
template <> struct RecordOf<DFT_CStem, Qvx32f> { using type = QvxsDFTSpec_C_32f; };
struct DFT_RStem;
template <> struct RecordOf<DFT_RStem, Qvx32f> { using type = QvxsDFTSpec_R_32f; };
template <> struct RecordOf<DFT_CStem, Qvx64fc> { using type = QvxsDFTSpec_C_64fc; };
template <> struct RecordOf<DFT_CStem, Qvx64f> { using type = QvxsDFTSpec_C_64f; };
template <> struct RecordOf<DFT_RStem, Qvx64f> { using type = QvxsDFTSpec_R_64f; };
template <> struct RecordOf<DFT_CStem, Qvx16sc> { using type = QvxsDFTSpec_C_16sc; };
template <> struct RecordOf<DFT_CStem, Qvx16s> { using type = QvxsDFTSpec_C_16s; };
template <> struct RecordOf<DFT_RStem, Qvx16s> { using type = QvxsDFTSpec_R_16s; };
struct DFTOutOrd_CStem;
template <> struct RecordOf<DFTOutOrd_CStem, Qvx32fc> { using type = QvxsDFTOutOrdSpec_C_32fc; };
template <> struct RecordOf<DFTOutOrd_CStem, Qvx64fc> { using type = QvxsDFTOutOrdSpec_C_64fc; };
struct DCTFwdStem;
template <> struct RecordOf<DCTFwdStem, Qvx32f> { using type = QvxsDCTFwdSpec_32f; };
struct DCTInvStem;
template <> struct RecordOf<DCTInvStem, Qvx32f> { using type = QvxsDCTInvSpec_32f; };
template <> struct RecordOf<DCTFwdStem, Qvx64f> { using type = QvxsDCTFwdSpec_64f; };
template <> struct RecordOf<DCTInvStem, Qvx64f> { using type = QvxsDCTInvSpec_64f; };
template <> struct RecordOf<DCTFwdStem, Qvx16s> { using type = QvxsDCTFwdSpec_16s; };
template <> struct RecordOf<DCTInvStem, Qvx16s> { using type = QvxsDCTInvSpec_16s; };
struct HilbertStem;
template <> struct RecordOf<HilbertStem, Qvx32f, Qvx32fc> { using type = QvxsHilbertSpec_32f32fc; };
template <> struct RecordOf<HilbertStem, Qvx16s, Qvx32fc> { using type = QvxsHilbertSpec_16s32fc; };
template <> struct RecordOf<HilbertStem, Qvx16s, Qvx16sc> { using type = QvxsHilbertSpec_16s16sc; };
struct FIRStem;
template <> struct RecordOf<FIRStem, Qvx32f> { using type = QvxsFIRState_32f; };
template <> struct RecordOf<FIRStem, Qvx32fc> { using type = QvxsFIRState_32fc; };
template <> struct RecordOf<FIRStem, Qvx32f, Qvx16s> { using type = QvxsFIRState32f_16s; };
template <> struct RecordOf<FIRStem, Qvx32fc, Qvx16sc> { using type = QvxsFIRState32fc_16sc; };
template <> struct RecordOf<FIRStem, Qvx64f> { using type = QvxsFIRState_64f; };
template <> struct RecordOf<FIRStem, Qvx64fc> { using type = QvxsFIRState_64fc; };
template <> struct RecordOf<FIRStem, Qvx64f, Qvx32f> { using type = QvxsFIRState64f_32f; };
template <> struct RecordOf<FIRStem, Qvx64fc, Qvx32fc> { using type = QvxsFIRState64fc_32fc; };
template <> struct RecordOf<FIRStem, Qvx64f, Qvx32s> { using type = QvxsFIRState64f_32s; };
template <> struct RecordOf<FIRStem, Qvx64fc, Qvx32sc> { using type = QvxsFIRState64fc_32sc; };
template <> struct RecordOf<FIRStem, Qvx64f, Qvx16s> { using type = QvxsFIRState64f_16s; };
template <> struct RecordOf<FIRStem, Qvx64fc, Qvx16sc> { using type = QvxsFIRState64fc_16sc; };
template <> struct RecordOf<FIRStem, Qvx32s, Qvx16s> { using type = QvxsFIRState32s_16s; };
template <> struct RecordOf<FIRStem, Qvx32sc, Qvx16sc> { using type = QvxsFIRState32sc_16sc; };
template <> struct RecordOf<FIRStem, Qvx16s> { using type = QvxsFIRState_16s; };
template <> struct RecordOf<FIRStem, Qvx32s> { using type = QvxsFIRState_32s; };
struct FIRLMSStem;
template <> struct RecordOf<FIRLMSStem, Qvx32f> { using type = QvxsFIRLMSState_32f; };
template <> struct RecordOf<FIRLMSStem, Qvx32f, Qvx16s> { using type = QvxsFIRLMSState32f_16s; };
struct FIRLMSMRStem;
template <> struct RecordOf<FIRLMSMRStem, Qvx32s, Qvx16s> { using type = QvxsFIRLMSMRState32s_16s; };
template <> struct RecordOf<FIRLMSMRStem, Qvx32sc, Qvx16sc> { using type = QvxsFIRLMSMRState32sc_16sc; };
struct FIRSparseStem;
template <> struct RecordOf<FIRSparseStem, Qvx32f> { using type = QvxsFIRSparseState_32f; };
struct IIRStem;
template <> struct RecordOf<IIRStem, Qvx32f> { using type = QvxsIIRState_32f; };
template <> struct RecordOf<IIRStem, Qvx32fc> { using type = QvxsIIRState_32fc; };
template <> struct RecordOf<IIRStem, Qvx32f, Qvx16s> { using type = QvxsIIRState32f_16s; };
template <> struct RecordOf<IIRStem, Qvx32fc, Qvx16sc> { using type = QvxsIIRState32fc_16sc; };
template <> struct RecordOf<IIRStem, Qvx32s, Qvx16s> { using type = QvxsIIRState32s_16s; };
template <> struct RecordOf<IIRStem, Qvx32sc, Qvx16sc> { using type = QvxsIIRState32sc_16sc; };
template <> struct RecordOf<IIRStem, Qvx64f> { using type = QvxsIIRState_64f; };
template <> struct RecordOf<IIRStem, Qvx64fc> { using type = QvxsIIRState_64fc; };
template <> struct RecordOf<IIRStem, Qvx64f, Qvx32f> { using type = QvxsIIRState64f_32f; };
template <> struct RecordOf<IIRStem, Qvx64fc, Qvx32fc> { using type = QvxsIIRState64fc_32fc; };
template <> struct RecordOf<IIRStem, Qvx64f, Qvx32s> { using type = QvxsIIRState64f_32s; };
template <> struct RecordOf<IIRStem, Qvx64fc, Qvx32sc> { using type = QvxsIIRState64fc_32sc; };
template <> struct RecordOf<IIRStem, Qvx64f, Qvx16s> { using type = QvxsIIRState64f_16s; };
template <> struct RecordOf<IIRStem, Qvx64fc, Qvx16sc> { using type = QvxsIIRState64fc_16sc; };
struct IIRSparseStem;
template <> struct RecordOf<IIRSparseStem, Qvx32f> { using type = QvxsIIRSparseState_32f; };
struct RandUniformStem;
template <> struct RecordOf<RandUniformStem, Qvx8u> { using type = QvxsRandUniformState_8u; };
template <> struct RecordOf<RandUniformStem, Qvx16s> { using type = QvxsRandUniformState_16s; };
template <> struct RecordOf<RandUniformStem, Qvx32f> { using type = QvxsRandUniformState_32f; };
struct RandGaussStem;
template <> struct RecordOf<RandGaussStem, Qvx8u> { using type = QvxsRandGaussState_8u; };
template <> struct RecordOf<RandGaussStem, Qvx16s> { using type = QvxsRandGaussState_16s; };
template <> struct RecordOf<RandGaussStem, Qvx32f> { using type = QvxsRandGaussState_32f; };
struct ToneStem;
template <> struct RecordOf<ToneStem> { using type = QvxsToneState; };
struct TriangleStem;
template <> struct RecordOf<TriangleStem> { using type = QvxsTriangleState; };
struct WTFwdStem;
template <> struct RecordOf<WTFwdStem, Qvx32f> { using type = QvxsWTFwdState_32f; };
template <> struct RecordOf<WTFwdStem, Qvx8u, Qvx32f> { using type = QvxsWTFwdState_8u32f; };
template <> struct RecordOf<WTFwdStem, Qvx8s, Qvx32f> { using type = QvxsWTFwdState_8s32f; };
template <> struct RecordOf<WTFwdStem, Qvx16u, Qvx32f> { using type = QvxsWTFwdState_16u32f; };
template <> struct RecordOf<WTFwdStem, Qvx16s, Qvx32f> { using type = QvxsWTFwdState_16s32f; };
struct WTInvStem;
template <> struct RecordOf<WTInvStem, Qvx32f> { using type = QvxsWTInvState_32f; };
template <> struct RecordOf<WTInvStem, Qvx32f, Qvx8u> { using type = QvxsWTInvState_32f8u; };
template <> struct RecordOf<WTInvStem, Qvx32f, Qvx8s> { using type = QvxsWTInvState_32f8s; };
template <> struct RecordOf<WTInvStem, Qvx32f, Qvx16u> { using type = QvxsWTInvState_32f16u; };
template <> struct RecordOf<WTInvStem, Qvx32f, Qvx16s> { using type = QvxsWTInvState_32f16s; };

}  // namespace qvx::handles

#endif
