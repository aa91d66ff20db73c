/* Fast Fourier transforms of 2^order points: complex and real, in single and double precision. */
#ifndef QVX_QVXS_FFT_H
#define QVX_QVXS_FFT_H

#include <qvx/qvxdefs.h>

#ifdef __cplusplus
extern "C" {
#endif

/** The factor of a transform, one of these values: both directions of a record are built with it. N is the length.
 *  In 64-bit records 1/sqrt(N) is rounded; in 32-bit ones it is the processor's estimate after one step of Newton's method, off by
 *  up to 3 eps (2^-23). The relative errors stated for transforms do not include that of the factor. */
#define QVX_FFT_SCALE_FWD 1       /* forward by 1/N */
#define QVX_FFT_SCALE_INV 2       /* inverse by 1/N */
#define QVX_FFT_SCALE_BOTH_SQRT 4 /* both by 1/sqrt(N) */
#define QVX_FFT_SCALE_NONE 8      /* neither */

typedef struct QvxsFFTSpec_C_32fc QvxsFFTSpec_C_32fc;
typedef struct QvxsFFTSpec_C_32f QvxsFFTSpec_C_32f;
typedef struct QvxsFFTSpec_C_64fc QvxsFFTSpec_C_64fc;
typedef struct QvxsFFTSpec_C_64f QvxsFFTSpec_C_64f;
typedef struct QvxsFFTSpec_R_32f QvxsFFTSpec_R_32f;
typedef struct QvxsFFTSpec_R_64f QvxsFFTSpec_R_64f;

/** A record for transforms of 2^order points: its order, factor, tables.
 *  qvxsFFTGetSize: *pSpecSize bytes for the record, *pInitSize for its making alone (0 up to order 10), *pWorkSize for each
 *  transform (0 up to order 5). qvxsFFTInit makes the record in pSpec, from its first multiple of 32 bytes on, and needs pInit only
 *  above order 10; it points into itself, so it must not be copied. qvxsFFTInitAlloc allocates it; qvxsFFTFree ends either, and
 *  releases what was allocated. qvxsFFTGetBufSize: the bytes of working memory that a transform with this record takes, 0 for none.
 *  order: 0 to 28 for 32fc and 32f, 27 for 64fc and 64f; flag: one of QVX_FFT_SCALE_; hint: has no effect, any value.
 *  A record is only read by transforms: any number of them may use it at once, each with its own working memory.
 *  Returns qvxStatOk; qvxStatBadFFTOrder; qvxStatNullPtr; qvxStatBadFFTFlag; qvxStatNoMem; qvxStatContextMismatch (a record
 *  freed or of another type). */
QVXS_API(QvxStatus, qvxsFFTGetSize_C_32fc, (int order, int flag, int hint, int* pSpecSize, int* pInitSize, int* pWorkSize));
QVXS_API(QvxStatus, qvxsFFTInit_C_32fc, (QvxsFFTSpec_C_32fc** ppSpec, int order, int flag, int hint, Qvx8u* pSpec, Qvx8u* pInit));
QVXS_API(QvxStatus, qvxsFFTInitAlloc_C_32fc, (QvxsFFTSpec_C_32fc** ppSpec, int order, int flag, int hint));
QVXS_API(QvxStatus, qvxsFFTFree_C_32fc, (QvxsFFTSpec_C_32fc* pSpec));
QVXS_API(QvxStatus, qvxsFFTGetBufSize_C_32fc, (const QvxsFFTSpec_C_32fc* pSpec, int* pSize));
QVXS_API(QvxStatus, qvxsFFTGetSize_C_32f, (int order, int flag, int hint, int* pSpecSize, int* pInitSize, int* pWorkSize));
QVXS_API(QvxStatus, qvxsFFTInit_C_32f, (QvxsFFTSpec_C_32f** ppSpec, int order, int flag, int hint, Qvx8u* pSpec, Qvx8u* pInit));
QVXS_API(QvxStatus, qvxsFFTInitAlloc_C_32f, (QvxsFFTSpec_C_32f** ppSpec, int order, int flag, int hint));
QVXS_API(QvxStatus, qvxsFFTFree_C_32f, (QvxsFFTSpec_C_32f* pSpec));
QVXS_API(QvxStatus, qvxsFFTGetBufSize_C_32f, (const QvxsFFTSpec_C_32f* pSpec, int* pSize));
QVXS_API(QvxStatus, qvxsFFTGetSize_C_64fc, (int order, int flag, int hint, int* pSpecSize, int* pInitSize, int* pWorkSize));
QVXS_API(QvxStatus, qvxsFFTInit_C_64fc, (QvxsFFTSpec_C_64fc** ppSpec, int order, int flag, int hint, Qvx8u* pSpec, Qvx8u* pInit));
QVXS_API(QvxStatus, qvxsFFTInitAlloc_C_64fc, (QvxsFFTSpec_C_64fc** ppSpec, int order, int flag, int hint));
QVXS_API(QvxStatus, qvxsFFTFree_C_64fc, (QvxsFFTSpec_C_64fc* pSpec));
QVXS_API(QvxStatus, qvxsFFTGetBufSize_C_64fc, (const QvxsFFTSpec_C_64fc* pSpec, int* pSize));
QVXS_API(QvxStatus, qvxsFFTGetSize_C_64f, (int order, int flag, int hint, int* pSpecSize, int* pInitSize, int* pWorkSize));
QVXS_API(QvxStatus, qvxsFFTInit_C_64f, (QvxsFFTSpec_C_64f** ppSpec, int order, int flag, int hint, Qvx8u* pSpec, Qvx8u* pInit));
QVXS_API(QvxStatus, qvxsFFTInitAlloc_C_64f, (QvxsFFTSpec_C_64f** ppSpec, int order, int flag, int hint));
QVXS_API(QvxStatus, qvxsFFTFree_C_64f, (QvxsFFTSpec_C_64f* pSpec));
QVXS_API(QvxStatus, qvxsFFTGetBufSize_C_64f, (const QvxsFFTSpec_C_64f* pSpec, int* pSize));

/** The complex transform of N = 2^order points, of 32fc and 64fc with interleaved parts, of 32f and 64f with separate ones:
 *    Fwd   dst[k] = f * sum over n of src[n] * exp(-2 pi i n k / N)
 *    Inv   dst[n] = f * sum over k of src[k] * exp(+2 pi i n k / N)
 *  with the factor f of the record. pSrc, pDst: N elements each, any alignment; they may be the same vector, but not overlap
 *  otherwise. The result is the same to the bit in place and out of place, at any alignment, with one thread and with two.
 *  The relative error of noise (root of the mean square) is at most 0.35 eps sqrt(order), eps 2^-23 or 2^-52, at least 0.2 eps;
 *  that of a single vector, such as a tone or one of a few points, up to twice as large.
 *  pBuffer: the bytes of qvxsFFTGetBufSize, any alignment, best at a multiple of 64; or null, then the call allocates them.
 *  Returns qvxStatOk; qvxStatNullPtr (record first); qvxStatContextMismatch; qvxStatNoMem. */
QVXS_API(QvxStatus, qvxsFFTFwd_CToC_32fc, (const Qvx32fc* pSrc, Qvx32fc* pDst, const QvxsFFTSpec_C_32fc* pSpec, Qvx8u* pBuffer));
QVXS_API(QvxStatus, qvxsFFTFwd_CToC_32fc_I, (Qvx32fc* pSrcDst, const QvxsFFTSpec_C_32fc* pSpec, Qvx8u* pBuffer));
QVXS_API(QvxStatus, qvxsFFTInv_CToC_32fc, (const Qvx32fc* pSrc, Qvx32fc* pDst, const QvxsFFTSpec_C_32fc* pSpec, Qvx8u* pBuffer));
QVXS_API(QvxStatus, qvxsFFTInv_CToC_32fc_I, (Qvx32fc* pSrcDst, const QvxsFFTSpec_C_32fc* pSpec, Qvx8u* pBuffer));
QVXS_API(QvxStatus, qvxsFFTFwd_CToC_32f, (const Qvx32f* pSrcRe, const Qvx32f* pSrcIm, Qvx32f* pDstRe, Qvx32f* pDstIm, const QvxsFFTSpec_C_32f* pSpec, Qvx8u* pBuffer));
QVXS_API(QvxStatus, qvxsFFTFwd_CToC_32f_I, (Qvx32f* pSrcDstRe, Qvx32f* pSrcDstIm, const QvxsFFTSpec_C_32f* pSpec, Qvx8u* pBuffer));
QVXS_API(QvxStatus, qvxsFFTInv_CToC_32f, (const Qvx32f* pSrcRe, const Qvx32f* pSrcIm, Qvx32f* pDstRe, Qvx32f* pDstIm, const QvxsFFTSpec_C_32f* pSpec, Qvx8u* pBuffer));
QVXS_API(QvxStatus, qvxsFFTInv_CToC_32f_I, (Qvx32f* pSrcDstRe, Qvx32f* pSrcDstIm, const QvxsFFTSpec_C_32f* pSpec, Qvx8u* pBuffer));
QVXS_API(QvxStatus, qvxsFFTFwd_CToC_64fc, (const Qvx64fc* pSrc, Qvx64fc* pDst, const QvxsFFTSpec_C_64fc* pSpec, Qvx8u* pBuffer));
QVXS_API(QvxStatus, qvxsFFTFwd_CToC_64fc_I, (Qvx64fc* pSrcDst, const QvxsFFTSpec_C_64fc* pSpec, Qvx8u* pBuffer));
QVXS_API(QvxStatus, qvxsFFTInv_CToC_64fc, (const Qvx64fc* pSrc, Qvx64fc* pDst, const QvxsFFTSpec_C_64fc* pSpec, Qvx8u* pBuffer));
QVXS_API(QvxStatus, qvxsFFTInv_CToC_64fc_I, (Qvx64fc* pSrcDst, const QvxsFFTSpec_C_64fc* pSpec, Qvx8u* pBuffer));
QVXS_API(QvxStatus, qvxsFFTFwd_CToC_64f, (const Qvx64f* pSrcRe, const Qvx64f* pSrcIm, Qvx64f* pDstRe, Qvx64f* pDstIm, const QvxsFFTSpec_C_64f* pSpec, Qvx8u* pBuffer));
QVXS_API(QvxStatus, qvxsFFTFwd_CToC_64f_I, (Qvx64f* pSrcDstRe, Qvx64f* pSrcDstIm, const QvxsFFTSpec_C_64f* pSpec, Qvx8u* pBuffer));
QVXS_API(QvxStatus, qvxsFFTInv_CToC_64f, (const Qvx64f* pSrcRe, const Qvx64f* pSrcIm, Qvx64f* pDstRe, Qvx64f* pDstIm, const QvxsFFTSpec_C_64f* pSpec, Qvx8u* pBuffer));
QVXS_API(QvxStatus, qvxsFFTInv_CToC_64f_I, (Qvx64f* pSrcDstRe, Qvx64f* pSrcDstIm, const QvxsFFTSpec_C_64f* pSpec, Qvx8u* pBuffer));

/** Records for transforms of 2^order real numbers, as those for complex ones; order: 0 to 29 for 32f, 28 for 64f;
 *  *pWorkSize is 0 up to order 6. */
QVXS_API(QvxStatus, qvxsFFTGetSize_R_32f, (int order, int flag, int hint, int* pSpecSize, int* pInitSize, int* pWorkSize));
QVXS_API(QvxStatus, qvxsFFTInit_R_32f, (QvxsFFTSpec_R_32f** ppSpec, int order, int flag, int hint, Qvx8u* pSpec, Qvx8u* pInit));
QVXS_API(QvxStatus, qvxsFFTInitAlloc_R_32f, (QvxsFFTSpec_R_32f** ppSpec, int order, int flag, int hint));
QVXS_API(QvxStatus, qvxsFFTFree_R_32f, (QvxsFFTSpec_R_32f* pSpec));
QVXS_API(QvxStatus, qvxsFFTGetBufSize_R_32f, (const QvxsFFTSpec_R_32f* pSpec, int* pSize));
QVXS_API(QvxStatus, qvxsFFTGetSize_R_64f, (int order, int flag, int hint, int* pSpecSize, int* pInitSize, int* pWorkSize));
QVXS_API(QvxStatus, qvxsFFTInit_R_64f, (QvxsFFTSpec_R_64f** ppSpec, int order, int flag, int hint, Qvx8u* pSpec, Qvx8u* pInit));
QVXS_API(QvxStatus, qvxsFFTInitAlloc_R_64f, (QvxsFFTSpec_R_64f** ppSpec, int order, int flag, int hint));
QVXS_API(QvxStatus, qvxsFFTFree_R_64f, (QvxsFFTSpec_R_64f* pSpec));
QVXS_API(QvxStatus, qvxsFFTGetBufSize_R_64f, (const QvxsFFTSpec_R_64f* pSpec, int* pSize));

/** The transform of N = 2^order real numbers, and back. X[k] = f * sum over n of src[n] * exp(-2 pi i n k / N) for k = 0..N/2;
 *  the other half is conjugate to it. X[0] and X[N/2] are real, so N numbers hold the spectrum. Three ways to store it:
 *
 *            0        1        2       3       ...  N-2         N-1         N         N+1
 *    Perm    X[0]     X[N/2]   Re X[1] Im X[1]      Re X[N/2-1] Im X[N/2-1]
 *    Pack    X[0]     Re X[1]  Im X[1] Re X[2]      Im X[N/2-1] X[N/2]
 *    CCS     X[0]     0        Re X[1] Im X[1]      Re X[N/2-1] Im X[N/2-1] X[N/2]    0
 *
 *  N = 1: X[0] in Perm and Pack; X[0], 0 in CCS. The inverse forms do not read the two zeros of CCS.
 *  pSrc, pDst: N numbers, N + 2 where they hold CCS (2 if N is 1), so the in-place forms of CCS as well; any alignment; the same
 *  vector or apart. pBuffer, accuracy, statuses: as the complex transform. */
QVXS_API(QvxStatus, qvxsFFTFwd_RToPerm_32f, (const Qvx32f* pSrc, Qvx32f* pDst, const QvxsFFTSpec_R_32f* pSpec, Qvx8u* pBuffer));
QVXS_API(QvxStatus, qvxsFFTFwd_RToPerm_32f_I, (Qvx32f* pSrcDst, const QvxsFFTSpec_R_32f* pSpec, Qvx8u* pBuffer));
QVXS_API(QvxStatus, qvxsFFTFwd_RToPerm_64f, (const Qvx64f* pSrc, Qvx64f* pDst, const QvxsFFTSpec_R_64f* pSpec, Qvx8u* pBuffer));
QVXS_API(QvxStatus, qvxsFFTFwd_RToPerm_64f_I, (Qvx64f* pSrcDst, const QvxsFFTSpec_R_64f* pSpec, Qvx8u* pBuffer));
QVXS_API(QvxStatus, qvxsFFTFwd_RToPack_32f, (const Qvx32f* pSrc, Qvx32f* pDst, const QvxsFFTSpec_R_32f* pSpec, Qvx8u* pBuffer));
QVXS_API(QvxStatus, qvxsFFTFwd_RToPack_32f_I, (Qvx32f* pSrcDst, const QvxsFFTSpec_R_32f* pSpec, Qvx8u* pBuffer));
QVXS_API(QvxStatus, qvxsFFTFwd_RToPack_64f, (const Qvx64f* pSrc, Qvx64f* pDst, const QvxsFFTSpec_R_64f* pSpec, Qvx8u* pBuffer));
QVXS_API(QvxStatus, qvxsFFTFwd_RToPack_64f_I, (Qvx64f* pSrcDst, const QvxsFFTSpec_R_64f* pSpec, Qvx8u* pBuffer));
QVXS_API(QvxStatus, qvxsFFTFwd_RToCCS_32f, (const Qvx32f* pSrc, Qvx32f* pDst, const QvxsFFTSpec_R_32f* pSpec, Qvx8u* pBuffer));
QVXS_API(QvxStatus, qvxsFFTFwd_RToCCS_32f_I, (Qvx32f* pSrcDst, const QvxsFFTSpec_R_32f* pSpec, Qvx8u* pBuffer));
QVXS_API(QvxStatus, qvxsFFTFwd_RToCCS_64f, (const Qvx64f* pSrc, Qvx64f* pDst, const QvxsFFTSpec_R_64f* pSpec, Qvx8u* pBuffer));
QVXS_API(QvxStatus, qvxsFFTFwd_RToCCS_64f_I, (Qvx64f* pSrcDst, const QvxsFFTSpec_R_64f* pSpec, Qvx8u* pBuffer));
QVXS_API(QvxStatus, qvxsFFTInv_PermToR_32f, (const Qvx32f* pSrc, Qvx32f* pDst, const QvxsFFTSpec_R_32f* pSpec, Qvx8u* pBuffer));
QVXS_API(QvxStatus, qvxsFFTInv_PermToR_32f_I, (Qvx32f* pSrcDst, const QvxsFFTSpec_R_32f* pSpec, Qvx8u* pBuffer));
QVXS_API(QvxStatus, qvxsFFTInv_PermToR_64f, (const Qvx64f* pSrc, Qvx64f* pDst, const QvxsFFTSpec_R_64f* pSpec, Qvx8u* pBuffer));
QVXS_API(QvxStatus, qvxsFFTInv_PermToR_64f_I, (Qvx64f* pSrcDst, const QvxsFFTSpec_R_64f* pSpec, Qvx8u* pBuffer));
QVXS_API(QvxStatus, qvxsFFTInv_PackToR_32f, (const Qvx32f* pSrc, Qvx32f* pDst, const QvxsFFTSpec_R_32f* pSpec, Qvx8u* pBuffer));
QVXS_API(QvxStatus, qvxsFFTInv_PackToR_32f_I, (Qvx32f* pSrcDst, const QvxsFFTSpec_R_32f* pSpec, Qvx8u* pBuffer));
QVXS_API(QvxStatus, qvxsFFTInv_PackToR_64f, (const Qvx64f* pSrc, Qvx64f* pDst, const QvxsFFTSpec_R_64f* pSpec, Qvx8u* pBuffer));
QVXS_API(QvxStatus, qvxsFFTInv_PackToR_64f_I, (Qvx64f* pSrcDst, const QvxsFFTSpec_R_64f* pSpec, Qvx8u* pBuffer));
QVXS_API(QvxStatus, qvxsFFTInv_CCSToR_32f, (const Qvx32f* pSrc, Qvx32f* pDst, const QvxsFFTSpec_R_32f* pSpec, Qvx8u* pBuffer));
QVXS_API(QvxStatus, qvxsFFTInv_CCSToR_32f_I, (Qvx32f* pSrcDst, const QvxsFFTSpec_R_32f* pSpec, Qvx8u* pBuffer));
QVXS_API(QvxStatus, qvxsFFTInv_CCSToR_64f, (const Qvx64f* pSrc, Qvx64f* pDst, const QvxsFFTSpec_R_64f* pSpec, Qvx8u* pBuffer));
QVXS_API(QvxStatus, qvxsFFTInv_CCSToR_64f_I, (Qvx64f* pSrcDst, const QvxsFFTSpec_R_64f* pSpec, Qvx8u* pBuffer));

#ifdef __cplusplus
}
#endif

#endif
