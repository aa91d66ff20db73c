/* The orthonormal discrete cosine transform of any length. */
#ifndef QVX_QVXS_DCT_H
#define QVX_QVXS_DCT_H

#include <qvx/qvxdefs.h>

#ifdef __cplusplus
extern "C" {
#endif

typedef struct QvxsDCTFwdSpec_32f QvxsDCTFwdSpec_32f;
typedef struct QvxsDCTInvSpec_32f QvxsDCTInvSpec_32f;
typedef struct QvxsDCTFwdSpec_64f QvxsDCTFwdSpec_64f;
typedef struct QvxsDCTInvSpec_64f QvxsDCTInvSpec_64f;
typedef struct QvxsDCTFwdSpec_16s QvxsDCTFwdSpec_16s;
typedef struct QvxsDCTInvSpec_16s QvxsDCTInvSpec_16s;

/** A record for transforms of len numbers in one direction: its length and tables.
 *  GetSize: *pSpecSize bytes for the record, *pInitSize for its making alone, *pWorkSize for each transform; the last two may be 0.
 *  Init makes the record in pSpec, from its first multiple of 32 bytes on, and needs pInit where its size is not 0; the record
 *  points into itself, so it must not be copied. InitAlloc allocates it; Free ends either, and releases what was allocated.
 *  GetBufSize: the bytes of working memory that a transform with this record takes, those of GetSize.
 *  len: from 1 on; the sizes of all lengths up to 2^24 fit an int. hint: has no effect, any value.
 *  A record is only read by transforms: any number of them may use it at once, each with its own working memory.
 *  Returns qvxStatOk; qvxStatBadSize (len < 1; before null pointers in GetSize); qvxStatNullPtr; qvxStatBadFFTOrder (a length whose
 *  sizes no int holds); qvxStatNoMem; qvxStatContextMismatch (a record freed or of another type). */
QVXS_API(QvxStatus, qvxsDCTFwdGetSize_32f, (int len, int hint, int* pSpecSize, int* pInitSize, int* pWorkSize));
QVXS_API(QvxStatus, qvxsDCTFwdInit_32f, (QvxsDCTFwdSpec_32f** ppSpec, int len, int hint, Qvx8u* pSpec, Qvx8u* pInit));
QVXS_API(QvxStatus, qvxsDCTFwdInitAlloc_32f, (QvxsDCTFwdSpec_32f** ppSpec, int len, int hint));
QVXS_API(QvxStatus, qvxsDCTFwdFree_32f, (QvxsDCTFwdSpec_32f* pSpec));
QVXS_API(QvxStatus, qvxsDCTFwdGetBufSize_32f, (const QvxsDCTFwdSpec_32f* pSpec, int* pSize));
QVXS_API(QvxStatus, qvxsDCTFwdGetSize_64f, (int len, int hint, int* pSpecSize, int* pInitSize, int* pWorkSize));
QVXS_API(QvxStatus, qvxsDCTFwdInit_64f, (QvxsDCTFwdSpec_64f** ppSpec, int len, int hint, Qvx8u* pSpec, Qvx8u* pInit));
QVXS_API(QvxStatus, qvxsDCTFwdInitAlloc_64f, (QvxsDCTFwdSpec_64f** ppSpec, int len, int hint));
QVXS_API(QvxStatus, qvxsDCTFwdFree_64f, (QvxsDCTFwdSpec_64f* pSpec));
QVXS_API(QvxStatus, qvxsDCTFwdGetBufSize_64f, (const QvxsDCTFwdSpec_64f* pSpec, int* pSize));
QVXS_API(QvxStatus, qvxsDCTFwdGetSize_16s, (int len, int hint, int* pSpecSize, int* pInitSize, int* pWorkSize));
QVXS_API(QvxStatus, qvxsDCTFwdInit_16s, (QvxsDCTFwdSpec_16s** ppSpec, int len, int hint, Qvx8u* pSpec, Qvx8u* pInit));
QVXS_API(QvxStatus, qvxsDCTFwdInitAlloc_16s, (QvxsDCTFwdSpec_16s** ppSpec, int len, int hint));
QVXS_API(QvxStatus, qvxsDCTFwdFree_16s, (QvxsDCTFwdSpec_16s* pSpec));
QVXS_API(QvxStatus, qvxsDCTFwdGetBufSize_16s, (const QvxsDCTFwdSpec_16s* pSpec, int* pSize));

/** The discrete cosine transform of type II, with the factors that make its matrix orthonormal; N is the record's length:
 *    dst[0] = 1/sqrt(N) * sum over n of src[n]
 *    dst[k] = sqrt(2/N) * sum over n of src[n] * cos(pi (2n + 1) k / (2N)),   k from 1 on
 *  _Sfs, _ISfs: times 2^-scaleFactor, rounded to nearest, ties to even, saturated; computed in floats, so results are within one
 *  unit of the exact ones, and below a scaleFactor of -127, whose power of two no float holds, a 0 may become 32767.
 *  pSrc, pDst: N elements each, any alignment; they may be the same vector, but not overlap otherwise.
 *  The result is the same to the bit in place and out of place and at any alignment. The relative error of noise (root of the
 *  mean square) is at most 0.5 eps sqrt(log2 N), eps 2^-23 or 2^-52, at least 0.5 eps; where N above 100 has a prime factor above
 *  47, 0.6, on SSSE3 0.66, and 0.75 above 2^15 numbers; that of a single vector, such as a tone or one of a few numbers, up to 2.5
 *  times as large.
 *  pBuffer: the bytes of GetBufSize, any alignment, best at a multiple of 64; or null, then the call allocates them.
 *  Returns qvxStatOk; qvxStatNullPtr (record first); qvxStatContextMismatch; qvxStatNoMem. */
QVXS_API(QvxStatus, qvxsDCTFwd_32f, (const Qvx32f* pSrc, Qvx32f* pDst, const QvxsDCTFwdSpec_32f* pSpec, Qvx8u* pBuffer));
QVXS_API(QvxStatus, qvxsDCTFwd_32f_I, (Qvx32f* pSrcDst, const QvxsDCTFwdSpec_32f* pSpec, Qvx8u* pBuffer));
QVXS_API(QvxStatus, qvxsDCTFwd_64f, (const Qvx64f* pSrc, Qvx64f* pDst, const QvxsDCTFwdSpec_64f* pSpec, Qvx8u* pBuffer));
QVXS_API(QvxStatus, qvxsDCTFwd_64f_I, (Qvx64f* pSrcDst, const QvxsDCTFwdSpec_64f* pSpec, Qvx8u* pBuffer));
QVXS_API(QvxStatus, qvxsDCTFwd_16s_Sfs, (const Qvx16s* pSrc, Qvx16s* pDst, const QvxsDCTFwdSpec_16s* pSpec, int scaleFactor, Qvx8u* pBuffer));
QVXS_API(QvxStatus, qvxsDCTFwd_16s_ISfs, (Qvx16s* pSrcDst, const QvxsDCTFwdSpec_16s* pSpec, int scaleFactor, Qvx8u* pBuffer));

/** The same for the way back: a record of this direction is of a type of its own. */
QVXS_API(QvxStatus, qvxsDCTInvGetSize_32f, (int len, int hint, int* pSpecSize, int* pInitSize, int* pWorkSize));
QVXS_API(QvxStatus, qvxsDCTInvInit_32f, (QvxsDCTInvSpec_32f** ppSpec, int len, int hint, Qvx8u* pSpec, Qvx8u* pInit));
QVXS_API(QvxStatus, qvxsDCTInvInitAlloc_32f, (QvxsDCTInvSpec_32f** ppSpec, int len, int hint));
QVXS_API(QvxStatus, qvxsDCTInvFree_32f, (QvxsDCTInvSpec_32f* pSpec));
QVXS_API(QvxStatus, qvxsDCTInvGetBufSize_32f, (const QvxsDCTInvSpec_32f* pSpec, int* pSize));
QVXS_API(QvxStatus, qvxsDCTInvGetSize_64f, (int len, int hint, int* pSpecSize, int* pInitSize, int* pWorkSize));
QVXS_API(QvxStatus, qvxsDCTInvInit_64f, (QvxsDCTInvSpec_64f** ppSpec, int len, int hint, Qvx8u* pSpec, Qvx8u* pInit));
QVXS_API(QvxStatus, qvxsDCTInvInitAlloc_64f, (QvxsDCTInvSpec_64f** ppSpec, int len, int hint));
QVXS_API(QvxStatus, qvxsDCTInvFree_64f, (QvxsDCTInvSpec_64f* pSpec));
QVXS_API(QvxStatus, qvxsDCTInvGetBufSize_64f, (const QvxsDCTInvSpec_64f* pSpec, int* pSize));
QVXS_API(QvxStatus, qvxsDCTInvGetSize_16s, (int len, int hint, int* pSpecSize, int* pInitSize, int* pWorkSize));
QVXS_API(QvxStatus, qvxsDCTInvInit_16s, (QvxsDCTInvSpec_16s** ppSpec, int len, int hint, Qvx8u* pSpec, Qvx8u* pInit));
QVXS_API(QvxStatus, qvxsDCTInvInitAlloc_16s, (QvxsDCTInvSpec_16s** ppSpec, int len, int hint));
QVXS_API(QvxStatus, qvxsDCTInvFree_16s, (QvxsDCTInvSpec_16s* pSpec));
QVXS_API(QvxStatus, qvxsDCTInvGetBufSize_16s, (const QvxsDCTInvSpec_16s* pSpec, int* pSize));

/** The way back, a transform of type III:
 *    dst[n] = 1/sqrt(N) * src[0] + sqrt(2/N) * sum over k from 1 on of src[k] * cos(pi (2n + 1) k / (2N))
 *  All else as for the forward transform. */
QVXS_API(QvxStatus, qvxsDCTInv_32f, (const Qvx32f* pSrc, Qvx32f* pDst, const QvxsDCTInvSpec_32f* pSpec, Qvx8u* pBuffer));
QVXS_API(QvxStatus, qvxsDCTInv_32f_I, (Qvx32f* pSrcDst, const QvxsDCTInvSpec_32f* pSpec, Qvx8u* pBuffer));
QVXS_API(QvxStatus, qvxsDCTInv_64f, (const Qvx64f* pSrc, Qvx64f* pDst, const QvxsDCTInvSpec_64f* pSpec, Qvx8u* pBuffer));
QVXS_API(QvxStatus, qvxsDCTInv_64f_I, (Qvx64f* pSrcDst, const QvxsDCTInvSpec_64f* pSpec, Qvx8u* pBuffer));
QVXS_API(QvxStatus, qvxsDCTInv_16s_Sfs, (const Qvx16s* pSrc, Qvx16s* pDst, const QvxsDCTInvSpec_16s* pSpec, int scaleFactor, Qvx8u* pBuffer));
QVXS_API(QvxStatus, qvxsDCTInv_16s_ISfs, (Qvx16s* pSrcDst, const QvxsDCTInvSpec_16s* pSpec, int scaleFactor, Qvx8u* pBuffer));

#ifdef __cplusplus
}
#endif

#endif
