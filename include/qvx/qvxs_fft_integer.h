/* Fast Fourier transforms of 2^order points of integers. */
#ifndef QVX_QVXS_FFT_INTEGER_H
#define QVX_QVXS_FFT_INTEGER_H

#include <qvx/qvxs_fft.h>

#ifdef __cplusplus
extern "C" {
#endif

typedef struct QvxsFFTSpec_C_16sc QvxsFFTSpec_C_16sc;
typedef struct QvxsFFTSpec_C_16s QvxsFFTSpec_C_16s;
typedef struct QvxsFFTSpec_R_16s QvxsFFTSpec_R_16s;
typedef struct QvxsFFTSpec_C_32sc QvxsFFTSpec_C_32sc;
typedef struct QvxsFFTSpec_C_32s QvxsFFTSpec_C_32s;
typedef struct QvxsFFTSpec_R_32s QvxsFFTSpec_R_32s;
typedef struct QvxsFFTSpec_R_16s32s QvxsFFTSpec_R_16s32s;

/** Records for transforms of integers, as those for floats (qvxs_fft.h): sizes, making, release, sharing.
 *  order: 0 to 27 for C_16sc and C_16s, 28 for R_16s and R_16s32s, 26 for C_32sc and C_32s, 27 for R_32s; flag: one of
 *  QVX_FFT_SCALE_. hint: of 16 bits and orders 1 to 3, 0 and 1 choose a transform in integers, any other value one in floats; it
 *  has no other effect. pInit is needed only above order 10, but has a size from order 1 on for 16 bits. pWorkSize: 0 for 16 bits
 *  and order 0, a transform of more in floats takes room for them.
 *  Returns qvxStatOk; qvxStatBadFFTOrder; qvxStatNullPtr; qvxStatBadFFTFlag; qvxStatNoMem; qvxStatContextMismatch (a record
 *  freed or of another type). */
QVXS_API(QvxStatus, qvxsFFTGetSize_C_16sc, (int order, int flag, int hint, int* pSpecSize, int* pInitSize, int* pWorkSize));
QVXS_API(QvxStatus, qvxsFFTInit_C_16sc, (QvxsFFTSpec_C_16sc** ppSpec, int order, int flag, int hint, Qvx8u* pSpec, Qvx8u* pInit));
QVXS_API(QvxStatus, qvxsFFTInitAlloc_C_16sc, (QvxsFFTSpec_C_16sc** ppSpec, int order, int flag, int hint));
QVXS_API(QvxStatus, qvxsFFTFree_C_16sc, (QvxsFFTSpec_C_16sc* pSpec));
QVXS_API(QvxStatus, qvxsFFTGetBufSize_C_16sc, (const QvxsFFTSpec_C_16sc* pSpec, int* pSize));
QVXS_API(QvxStatus, qvxsFFTGetSize_C_16s, (int order, int flag, int hint, int* pSpecSize, int* pInitSize, int* pWorkSize));
QVXS_API(QvxStatus, qvxsFFTInit_C_16s, (QvxsFFTSpec_C_16s** ppSpec, int order, int flag, int hint, Qvx8u* pSpec, Qvx8u* pInit));
QVXS_API(QvxStatus, qvxsFFTInitAlloc_C_16s, (QvxsFFTSpec_C_16s** ppSpec, int order, int flag, int hint));
QVXS_API(QvxStatus, qvxsFFTFree_C_16s, (QvxsFFTSpec_C_16s* pSpec));
QVXS_API(QvxStatus, qvxsFFTGetBufSize_C_16s, (const QvxsFFTSpec_C_16s* pSpec, int* pSize));
QVXS_API(QvxStatus, qvxsFFTGetSize_R_16s, (int order, int flag, int hint, int* pSpecSize, int* pInitSize, int* pWorkSize));
QVXS_API(QvxStatus, qvxsFFTInit_R_16s, (QvxsFFTSpec_R_16s** ppSpec, int order, int flag, int hint, Qvx8u* pSpec, Qvx8u* pInit));
QVXS_API(QvxStatus, qvxsFFTInitAlloc_R_16s, (QvxsFFTSpec_R_16s** ppSpec, int order, int flag, int hint));
QVXS_API(QvxStatus, qvxsFFTFree_R_16s, (QvxsFFTSpec_R_16s* pSpec));
QVXS_API(QvxStatus, qvxsFFTGetBufSize_R_16s, (const QvxsFFTSpec_R_16s* pSpec, int* pSize));
QVXS_API(QvxStatus, qvxsFFTGetSize_C_32sc, (int order, int flag, int hint, int* pSpecSize, int* pInitSize, int* pWorkSize));
QVXS_API(QvxStatus, qvxsFFTInit_C_32sc, (QvxsFFTSpec_C_32sc** ppSpec, int order, int flag, int hint, Qvx8u* pSpec, Qvx8u* pInit));
QVXS_API(QvxStatus, qvxsFFTInitAlloc_C_32sc, (QvxsFFTSpec_C_32sc** ppSpec, int order, int flag, int hint));
QVXS_API(QvxStatus, qvxsFFTFree_C_32sc, (QvxsFFTSpec_C_32sc* pSpec));
QVXS_API(QvxStatus, qvxsFFTGetBufSize_C_32sc, (const QvxsFFTSpec_C_32sc* pSpec, int* pSize));
QVXS_API(QvxStatus, qvxsFFTGetSize_C_32s, (int order, int flag, int hint, int* pSpecSize, int* pInitSize, int* pWorkSize));
QVXS_API(QvxStatus, qvxsFFTInit_C_32s, (QvxsFFTSpec_C_32s** ppSpec, int order, int flag, int hint, Qvx8u* pSpec, Qvx8u* pInit));
QVXS_API(QvxStatus, qvxsFFTInitAlloc_C_32s, (QvxsFFTSpec_C_32s** ppSpec, int order, int flag, int hint));
QVXS_API(QvxStatus, qvxsFFTFree_C_32s, (QvxsFFTSpec_C_32s* pSpec));
QVXS_API(QvxStatus, qvxsFFTGetBufSize_C_32s, (const QvxsFFTSpec_C_32s* pSpec, int* pSize));
QVXS_API(QvxStatus, qvxsFFTGetSize_R_32s, (int order, int flag, int hint, int* pSpecSize, int* pInitSize, int* pWorkSize));
QVXS_API(QvxStatus, qvxsFFTInit_R_32s, (QvxsFFTSpec_R_32s** ppSpec, int order, int flag, int hint, Qvx8u* pSpec, Qvx8u* pInit));
QVXS_API(QvxStatus, qvxsFFTInitAlloc_R_32s, (QvxsFFTSpec_R_32s** ppSpec, int order, int flag, int hint));
QVXS_API(QvxStatus, qvxsFFTFree_R_32s, (QvxsFFTSpec_R_32s* pSpec));
QVXS_API(QvxStatus, qvxsFFTGetBufSize_R_32s, (const QvxsFFTSpec_R_32s* pSpec, int* pSize));
QVXS_API(QvxStatus, qvxsFFTGetSize_R_16s32s, (int order, int flag, int hint, int* pSpecSize, int* pInitSize, int* pWorkSize));
QVXS_API(QvxStatus, qvxsFFTInit_R_16s32s, (QvxsFFTSpec_R_16s32s** ppSpec, int order, int flag, int hint, Qvx8u* pSpec, Qvx8u* pInit));
QVXS_API(QvxStatus, qvxsFFTInitAlloc_R_16s32s, (QvxsFFTSpec_R_16s32s** ppSpec, int order, int flag, int hint));
QVXS_API(QvxStatus, qvxsFFTFree_R_16s32s, (QvxsFFTSpec_R_16s32s* pSpec));
QVXS_API(QvxStatus, qvxsFFTGetBufSize_R_16s32s, (const QvxsFFTSpec_R_16s32s* pSpec, int* pSize));

/** The complex transform of N = 2^order points times 2^-scaleFactor, rounded to nearest and saturated:
 *    Fwd   dst[k] = 2^-scaleFactor * f * sum over n of src[n] * exp(-2 pi i n k / N)
 *    Inv   dst[n] = 2^-scaleFactor * f * sum over k of src[k] * exp(+2 pi i n k / N)
 *  with the factor f of the record; of 16sc and 32sc with interleaved parts, of 16s and 32s with separate ones. Below a
 *  scaleFactor of -127 (32sc, 32s: -1023), whose power of two no float (double) holds, a 0 may become the largest number.
 *  pSrc, pDst: N elements each, any alignment; they may be the same vector, but not overlap otherwise.
 *  Accuracy before the rounding: in floats (16 bits) and doubles (32 bits) as those transforms, that is an error of 0.35 eps
 *  sqrt(order) times the root of the mean square of the results, eps 2^-23 or 2^-52, and of no more than that times the largest or
 *  five times the mean in any one; in integers at most 2.1e-5 of the sum of the
 *  source's magnitudes, from roots of 16 bits. Transforms in integers give the same bits in all variants of the library.
 *  pBuffer: the bytes of qvxsFFTGetBufSize, any alignment; or null, then the call allocates them.
 *  Returns qvxStatOk; qvxStatNullPtr (record first); qvxStatContextMismatch; qvxStatNoMem. */
QVXS_API(QvxStatus, qvxsFFTFwd_CToC_16sc_Sfs, (const Qvx16sc* pSrc, Qvx16sc* pDst, const QvxsFFTSpec_C_16sc* pSpec, int scaleFactor, Qvx8u* pBuffer));
QVXS_API(QvxStatus, qvxsFFTFwd_CToC_16sc_ISfs, (Qvx16sc* pSrcDst, const QvxsFFTSpec_C_16sc* pSpec, int scaleFactor, Qvx8u* pBuffer));
QVXS_API(QvxStatus, qvxsFFTInv_CToC_16sc_Sfs, (const Qvx16sc* pSrc, Qvx16sc* pDst, const QvxsFFTSpec_C_16sc* pSpec, int scaleFactor, Qvx8u* pBuffer));
QVXS_API(QvxStatus, qvxsFFTInv_CToC_16sc_ISfs, (Qvx16sc* pSrcDst, const QvxsFFTSpec_C_16sc* pSpec, int scaleFactor, Qvx8u* pBuffer));
QVXS_API(QvxStatus, qvxsFFTFwd_CToC_32sc_Sfs, (const Qvx32sc* pSrc, Qvx32sc* pDst, const QvxsFFTSpec_C_32sc* pSpec, int scaleFactor, Qvx8u* pBuffer));
QVXS_API(QvxStatus, qvxsFFTFwd_CToC_32sc_ISfs, (Qvx32sc* pSrcDst, const QvxsFFTSpec_C_32sc* pSpec, int scaleFactor, Qvx8u* pBuffer));
QVXS_API(QvxStatus, qvxsFFTInv_CToC_32sc_Sfs, (const Qvx32sc* pSrc, Qvx32sc* pDst, const QvxsFFTSpec_C_32sc* pSpec, int scaleFactor, Qvx8u* pBuffer));
QVXS_API(QvxStatus, qvxsFFTInv_CToC_32sc_ISfs, (Qvx32sc* pSrcDst, const QvxsFFTSpec_C_32sc* pSpec, int scaleFactor, Qvx8u* pBuffer));
QVXS_API(QvxStatus, qvxsFFTFwd_CToC_16s_Sfs, (const Qvx16s* pSrcRe, const Qvx16s* pSrcIm, Qvx16s* pDstRe, Qvx16s* pDstIm, const QvxsFFTSpec_C_16s* pSpec, int scaleFactor, Qvx8u* pBuffer));
QVXS_API(QvxStatus, qvxsFFTFwd_CToC_16s_ISfs, (Qvx16s* pSrcDstRe, Qvx16s* pSrcDstIm, const QvxsFFTSpec_C_16s* pSpec, int scaleFactor, Qvx8u* pBuffer));
QVXS_API(QvxStatus, qvxsFFTInv_CToC_16s_Sfs, (const Qvx16s* pSrcRe, const Qvx16s* pSrcIm, Qvx16s* pDstRe, Qvx16s* pDstIm, const QvxsFFTSpec_C_16s* pSpec, int scaleFactor, Qvx8u* pBuffer));
QVXS_API(QvxStatus, qvxsFFTInv_CToC_16s_ISfs, (Qvx16s* pSrcDstRe, Qvx16s* pSrcDstIm, const QvxsFFTSpec_C_16s* pSpec, int scaleFactor, Qvx8u* pBuffer));
QVXS_API(QvxStatus, qvxsFFTFwd_CToC_32s_Sfs, (const Qvx32s* pSrcRe, const Qvx32s* pSrcIm, Qvx32s* pDstRe, Qvx32s* pDstIm, const QvxsFFTSpec_C_32s* pSpec, int scaleFactor, Qvx8u* pBuffer));
QVXS_API(QvxStatus, qvxsFFTFwd_CToC_32s_ISfs, (Qvx32s* pSrcDstRe, Qvx32s* pSrcDstIm, const QvxsFFTSpec_C_32s* pSpec, int scaleFactor, Qvx8u* pBuffer));
QVXS_API(QvxStatus, qvxsFFTInv_CToC_32s_Sfs, (const Qvx32s* pSrcRe, const Qvx32s* pSrcIm, Qvx32s* pDstRe, Qvx32s* pDstIm, const QvxsFFTSpec_C_32s* pSpec, int scaleFactor, Qvx8u* pBuffer));
QVXS_API(QvxStatus, qvxsFFTInv_CToC_32s_ISfs, (Qvx32s* pSrcDstRe, Qvx32s* pSrcDstIm, const QvxsFFTSpec_C_32s* pSpec, int scaleFactor, Qvx8u* pBuffer));

/** The transform of N = 2^order real integers, and back, with the spectrum in one of the layouts of qvxs_fft.h, times 2^-scaleFactor,
 *  rounded to nearest and saturated. pSrc, pDst: N numbers, N + 2 where they hold CCS (2 if N is 1); any alignment; the same vector
 *  or apart. 16s32s takes 16-bit sequences to 32-bit spectra and 32s16s brings them back, in single precision. What stands in
 *  the place of the two zeros of CCS has no effect. pBuffer, accuracy, statuses: as the complex transform. */
QVXS_API(QvxStatus, qvxsFFTFwd_RToPerm_16s_Sfs, (const Qvx16s* pSrc, Qvx16s* pDst, const QvxsFFTSpec_R_16s* pSpec, int scaleFactor, Qvx8u* pBuffer));
QVXS_API(QvxStatus, qvxsFFTFwd_RToPerm_16s_ISfs, (Qvx16s* pSrcDst, const QvxsFFTSpec_R_16s* pSpec, int scaleFactor, Qvx8u* pBuffer));
QVXS_API(QvxStatus, qvxsFFTFwd_RToPerm_32s_Sfs, (const Qvx32s* pSrc, Qvx32s* pDst, const QvxsFFTSpec_R_32s* pSpec, int scaleFactor, Qvx8u* pBuffer));
QVXS_API(QvxStatus, qvxsFFTFwd_RToPerm_32s_ISfs, (Qvx32s* pSrcDst, const QvxsFFTSpec_R_32s* pSpec, int scaleFactor, Qvx8u* pBuffer));
QVXS_API(QvxStatus, qvxsFFTFwd_RToPack_16s_Sfs, (const Qvx16s* pSrc, Qvx16s* pDst, const QvxsFFTSpec_R_16s* pSpec, int scaleFactor, Qvx8u* pBuffer));
QVXS_API(QvxStatus, qvxsFFTFwd_RToPack_16s_ISfs, (Qvx16s* pSrcDst, const QvxsFFTSpec_R_16s* pSpec, int scaleFactor, Qvx8u* pBuffer));
QVXS_API(QvxStatus, qvxsFFTFwd_RToPack_32s_Sfs, (const Qvx32s* pSrc, Qvx32s* pDst, const QvxsFFTSpec_R_32s* pSpec, int scaleFactor, Qvx8u* pBuffer));
QVXS_API(QvxStatus, qvxsFFTFwd_RToPack_32s_ISfs, (Qvx32s* pSrcDst, const QvxsFFTSpec_R_32s* pSpec, int scaleFactor, Qvx8u* pBuffer));
QVXS_API(QvxStatus, qvxsFFTFwd_RToCCS_16s_Sfs, (const Qvx16s* pSrc, Qvx16s* pDst, const QvxsFFTSpec_R_16s* pSpec, int scaleFactor, Qvx8u* pBuffer));
QVXS_API(QvxStatus, qvxsFFTFwd_RToCCS_16s_ISfs, (Qvx16s* pSrcDst, const QvxsFFTSpec_R_16s* pSpec, int scaleFactor, Qvx8u* pBuffer));
QVXS_API(QvxStatus, qvxsFFTFwd_RToCCS_32s_Sfs, (const Qvx32s* pSrc, Qvx32s* pDst, const QvxsFFTSpec_R_32s* pSpec, int scaleFactor, Qvx8u* pBuffer));
QVXS_API(QvxStatus, qvxsFFTFwd_RToCCS_32s_ISfs, (Qvx32s* pSrcDst, const QvxsFFTSpec_R_32s* pSpec, int scaleFactor, Qvx8u* pBuffer));
QVXS_API(QvxStatus, qvxsFFTInv_PermToR_16s_Sfs, (const Qvx16s* pSrc, Qvx16s* pDst, const QvxsFFTSpec_R_16s* pSpec, int scaleFactor, Qvx8u* pBuffer));
QVXS_API(QvxStatus, qvxsFFTInv_PermToR_16s_ISfs, (Qvx16s* pSrcDst, const QvxsFFTSpec_R_16s* pSpec, int scaleFactor, Qvx8u* pBuffer));
QVXS_API(QvxStatus, qvxsFFTInv_PermToR_32s_Sfs, (const Qvx32s* pSrc, Qvx32s* pDst, const QvxsFFTSpec_R_32s* pSpec, int scaleFactor, Qvx8u* pBuffer));
QVXS_API(QvxStatus, qvxsFFTInv_PermToR_32s_ISfs, (Qvx32s* pSrcDst, const QvxsFFTSpec_R_32s* pSpec, int scaleFactor, Qvx8u* pBuffer));
QVXS_API(QvxStatus, qvxsFFTInv_PackToR_16s_Sfs, (const Qvx16s* pSrc, Qvx16s* pDst, const QvxsFFTSpec_R_16s* pSpec, int scaleFactor, Qvx8u* pBuffer));
QVXS_API(QvxStatus, qvxsFFTInv_PackToR_16s_ISfs, (Qvx16s* pSrcDst, const QvxsFFTSpec_R_16s* pSpec, int scaleFactor, Qvx8u* pBuffer));
QVXS_API(QvxStatus, qvxsFFTInv_PackToR_32s_Sfs, (const Qvx32s* pSrc, Qvx32s* pDst, const QvxsFFTSpec_R_32s* pSpec, int scaleFactor, Qvx8u* pBuffer));
QVXS_API(QvxStatus, qvxsFFTInv_PackToR_32s_ISfs, (Qvx32s* pSrcDst, const QvxsFFTSpec_R_32s* pSpec, int scaleFactor, Qvx8u* pBuffer));
QVXS_API(QvxStatus, qvxsFFTInv_CCSToR_16s_Sfs, (const Qvx16s* pSrc, Qvx16s* pDst, const QvxsFFTSpec_R_16s* pSpec, int scaleFactor, Qvx8u* pBuffer));
QVXS_API(QvxStatus, qvxsFFTInv_CCSToR_16s_ISfs, (Qvx16s* pSrcDst, const QvxsFFTSpec_R_16s* pSpec, int scaleFactor, Qvx8u* pBuffer));
QVXS_API(QvxStatus, qvxsFFTInv_CCSToR_32s_Sfs, (const Qvx32s* pSrc, Qvx32s* pDst, const QvxsFFTSpec_R_32s* pSpec, int scaleFactor, Qvx8u* pBuffer));
QVXS_API(QvxStatus, qvxsFFTInv_CCSToR_32s_ISfs, (Qvx32s* pSrcDst, const QvxsFFTSpec_R_32s* pSpec, int scaleFactor, Qvx8u* pBuffer));
QVXS_API(QvxStatus, qvxsFFTFwd_RToCCS_16s32s_Sfs, (const Qvx16s* pSrc, Qvx32s* pDst, const QvxsFFTSpec_R_16s32s* pSpec, int scaleFactor, Qvx8u* pBuffer));
QVXS_API(QvxStatus, qvxsFFTInv_CCSToR_32s16s_Sfs, (const Qvx32s* pSrc, Qvx16s* pDst, const QvxsFFTSpec_R_16s32s* pSpec, int scaleFactor, Qvx8u* pBuffer));

#ifdef __cplusplus
}
#endif

#endif
