/* Discrete Fourier transforms of any number of points: complex and real, in floats, doubles and 16-bit integers. */
#ifndef QVX_QVXS_DFT_H
#define QVX_QVXS_DFT_H

#include <qvx/qvxs_fft_integer.h>

#ifdef __cplusplus
extern "C" {
#endif

typedef struct QvxsDFTSpec_C_32fc QvxsDFTSpec_C_32fc;
typedef struct QvxsDFTSpec_C_32f QvxsDFTSpec_C_32f;
typedef struct QvxsDFTSpec_R_32f QvxsDFTSpec_R_32f;
typedef struct QvxsDFTSpec_C_64fc QvxsDFTSpec_C_64fc;
typedef struct QvxsDFTSpec_C_64f QvxsDFTSpec_C_64f;
typedef struct QvxsDFTSpec_R_64f QvxsDFTSpec_R_64f;
typedef struct QvxsDFTSpec_C_16sc QvxsDFTSpec_C_16sc;
typedef struct QvxsDFTSpec_C_16s QvxsDFTSpec_C_16s;
typedef struct QvxsDFTSpec_R_16s QvxsDFTSpec_R_16s;
typedef struct QvxsDFTOutOrdSpec_C_32fc QvxsDFTOutOrdSpec_C_32fc;
typedef struct QvxsDFTOutOrdSpec_C_64fc QvxsDFTOutOrdSpec_C_64fc;

/** A record for transforms of len points (len real numbers where its name has an R): length, factor, tables. len: from 1 on.
 *  qvxsDFTInitAlloc allocates it, qvxsDFTFree releases it. qvxsDFTGetBufSize: the bytes of working memory that a transform with
 *  this record takes, 0 for none: so in floats for up to 16 points, and for even numbers of reals up to 32.
 *  flag: one of QVX_FFT_SCALE_ (qvxs_fft.h); hint: has no effect, any value.
 *  The longest: 2^27 - 1 points, 2^26 - 1 where the length has a large prime factor: above 47, or above 149 where the rest is a
 *  multiple of 4. Half of that for doubles, where 47 is 89. Powers of two go as far as the fast transform does, and are refused
 *  as it refuses them. An even number of reals counts as half as many points.
 *  A record is only read by transforms: any number of them may use it at once, each with its own working memory.
 *  Returns qvxStatOk; qvxStatNullPtr; qvxStatBadSize (len below 1); qvxStatBadFFTFlag; qvxStatBadSize or, of a power of two,
 *  qvxStatBadFFTOrder (too long); qvxStatNoMem. Free and GetBufSize: qvxStatNullPtr; qvxStatContextMismatch (a record of another
 *  type). */
QVXS_API(QvxStatus, qvxsDFTInitAlloc_C_32fc, (QvxsDFTSpec_C_32fc** ppSpec, int len, int flag, int hint));
QVXS_API(QvxStatus, qvxsDFTFree_C_32fc, (QvxsDFTSpec_C_32fc* pSpec));
QVXS_API(QvxStatus, qvxsDFTGetBufSize_C_32fc, (const QvxsDFTSpec_C_32fc* pSpec, int* pSize));
QVXS_API(QvxStatus, qvxsDFTInitAlloc_C_32f, (QvxsDFTSpec_C_32f** ppSpec, int len, int flag, int hint));
QVXS_API(QvxStatus, qvxsDFTFree_C_32f, (QvxsDFTSpec_C_32f* pSpec));
QVXS_API(QvxStatus, qvxsDFTGetBufSize_C_32f, (const QvxsDFTSpec_C_32f* pSpec, int* pSize));
QVXS_API(QvxStatus, qvxsDFTInitAlloc_R_32f, (QvxsDFTSpec_R_32f** ppSpec, int len, int flag, int hint));
QVXS_API(QvxStatus, qvxsDFTFree_R_32f, (QvxsDFTSpec_R_32f* pSpec));
QVXS_API(QvxStatus, qvxsDFTGetBufSize_R_32f, (const QvxsDFTSpec_R_32f* pSpec, int* pSize));
QVXS_API(QvxStatus, qvxsDFTInitAlloc_C_64fc, (QvxsDFTSpec_C_64fc** ppSpec, int len, int flag, int hint));
QVXS_API(QvxStatus, qvxsDFTFree_C_64fc, (QvxsDFTSpec_C_64fc* pSpec));
QVXS_API(QvxStatus, qvxsDFTGetBufSize_C_64fc, (const QvxsDFTSpec_C_64fc* pSpec, int* pSize));
QVXS_API(QvxStatus, qvxsDFTInitAlloc_C_64f, (QvxsDFTSpec_C_64f** ppSpec, int len, int flag, int hint));
QVXS_API(QvxStatus, qvxsDFTFree_C_64f, (QvxsDFTSpec_C_64f* pSpec));
QVXS_API(QvxStatus, qvxsDFTGetBufSize_C_64f, (const QvxsDFTSpec_C_64f* pSpec, int* pSize));
QVXS_API(QvxStatus, qvxsDFTInitAlloc_R_64f, (QvxsDFTSpec_R_64f** ppSpec, int len, int flag, int hint));
QVXS_API(QvxStatus, qvxsDFTFree_R_64f, (QvxsDFTSpec_R_64f* pSpec));
QVXS_API(QvxStatus, qvxsDFTGetBufSize_R_64f, (const QvxsDFTSpec_R_64f* pSpec, int* pSize));
QVXS_API(QvxStatus, qvxsDFTInitAlloc_C_16sc, (QvxsDFTSpec_C_16sc** ppSpec, int len, int flag, int hint));
QVXS_API(QvxStatus, qvxsDFTFree_C_16sc, (QvxsDFTSpec_C_16sc* pSpec));
QVXS_API(QvxStatus, qvxsDFTGetBufSize_C_16sc, (const QvxsDFTSpec_C_16sc* pSpec, int* pSize));
QVXS_API(QvxStatus, qvxsDFTInitAlloc_C_16s, (QvxsDFTSpec_C_16s** ppSpec, int len, int flag, int hint));
QVXS_API(QvxStatus, qvxsDFTFree_C_16s, (QvxsDFTSpec_C_16s* pSpec));
QVXS_API(QvxStatus, qvxsDFTGetBufSize_C_16s, (const QvxsDFTSpec_C_16s* pSpec, int* pSize));
QVXS_API(QvxStatus, qvxsDFTInitAlloc_R_16s, (QvxsDFTSpec_R_16s** ppSpec, int len, int flag, int hint));
QVXS_API(QvxStatus, qvxsDFTFree_R_16s, (QvxsDFTSpec_R_16s* pSpec));
QVXS_API(QvxStatus, qvxsDFTGetBufSize_R_16s, (const QvxsDFTSpec_R_16s* pSpec, int* pSize));

/** The complex transform of N points, of 32fc and 64fc with interleaved parts, of 32f and 64f with separate ones:
 *    Fwd   dst[k] = f * sum over n of src[n] * exp(-2 pi i n k / N)
 *    Inv   dst[n] = f * sum over k of src[k] * exp(+2 pi i n k / N)
 *  with the factor f of the record. _Sfs: of integers, times 2^-scaleFactor, rounded to nearest and saturated;
 *  below a scaleFactor of -127, whose power of two no float holds, a 0 may become 32767.
 *  pSrc, pDst: N elements each, any alignment; they may be the same vector, but not overlap otherwise. The result is the same to
 *  the bit in place and out of place, and at any alignment.
 *  The relative error of noise (root of the mean square) is at most 0.4 eps sqrt(log2 N), eps 2^-23 or 2^-52, at least 0.5 eps;
 *  of lengths with a large prime factor 0.6 eps sqrt(log2 N), above 2^15 points 0.7; of powers of 3 above 2^16 doubles 0.45; a
 *  tenth more on SSSE3, where products are rounded before they are added; that of a single vector, such as a tone or one of a few
 *  points, up to 2.5 times as large. That of integers before they are rounded is the same, with the eps of floats.
 *  pBuffer: the bytes of qvxsDFTGetBufSize, any alignment, best at a multiple of 64; or null, then the call allocates them.
 *  Returns qvxStatOk; qvxStatNullPtr (record first); qvxStatContextMismatch; qvxStatNoMem. */
QVXS_API(QvxStatus, qvxsDFTFwd_CToC_32fc, (const Qvx32fc* pSrc, Qvx32fc* pDst, const QvxsDFTSpec_C_32fc* pSpec, Qvx8u* pBuffer));
QVXS_API(QvxStatus, qvxsDFTInv_CToC_32fc, (const Qvx32fc* pSrc, Qvx32fc* pDst, const QvxsDFTSpec_C_32fc* pSpec, Qvx8u* pBuffer));
QVXS_API(QvxStatus, qvxsDFTFwd_CToC_32f, (const Qvx32f* pSrcRe, const Qvx32f* pSrcIm, Qvx32f* pDstRe, Qvx32f* pDstIm, const QvxsDFTSpec_C_32f* pSpec, Qvx8u* pBuffer));
QVXS_API(QvxStatus, qvxsDFTInv_CToC_32f, (const Qvx32f* pSrcRe, const Qvx32f* pSrcIm, Qvx32f* pDstRe, Qvx32f* pDstIm, const QvxsDFTSpec_C_32f* pSpec, Qvx8u* pBuffer));
QVXS_API(QvxStatus, qvxsDFTFwd_CToC_64fc, (const Qvx64fc* pSrc, Qvx64fc* pDst, const QvxsDFTSpec_C_64fc* pSpec, Qvx8u* pBuffer));
QVXS_API(QvxStatus, qvxsDFTInv_CToC_64fc, (const Qvx64fc* pSrc, Qvx64fc* pDst, const QvxsDFTSpec_C_64fc* pSpec, Qvx8u* pBuffer));
QVXS_API(QvxStatus, qvxsDFTFwd_CToC_64f, (const Qvx64f* pSrcRe, const Qvx64f* pSrcIm, Qvx64f* pDstRe, Qvx64f* pDstIm, const QvxsDFTSpec_C_64f* pSpec, Qvx8u* pBuffer));
QVXS_API(QvxStatus, qvxsDFTInv_CToC_64f, (const Qvx64f* pSrcRe, const Qvx64f* pSrcIm, Qvx64f* pDstRe, Qvx64f* pDstIm, const QvxsDFTSpec_C_64f* pSpec, Qvx8u* pBuffer));
QVXS_API(QvxStatus, qvxsDFTFwd_CToC_16sc_Sfs, (const Qvx16sc* pSrc, Qvx16sc* pDst, const QvxsDFTSpec_C_16sc* pSpec, int scaleFactor, Qvx8u* pBuffer));
QVXS_API(QvxStatus, qvxsDFTInv_CToC_16sc_Sfs, (const Qvx16sc* pSrc, Qvx16sc* pDst, const QvxsDFTSpec_C_16sc* pSpec, int scaleFactor, Qvx8u* pBuffer));
QVXS_API(QvxStatus, qvxsDFTFwd_CToC_16s_Sfs, (const Qvx16s* pSrcRe, const Qvx16s* pSrcIm, Qvx16s* pDstRe, Qvx16s* pDstIm, const QvxsDFTSpec_C_16s* pSpec, int scaleFactor, Qvx8u* pBuffer));
QVXS_API(QvxStatus, qvxsDFTInv_CToC_16s_Sfs, (const Qvx16s* pSrcRe, const Qvx16s* pSrcIm, Qvx16s* pDstRe, Qvx16s* pDstIm, const QvxsDFTSpec_C_16s* pSpec, int scaleFactor, Qvx8u* pBuffer));

/** The transform of N real numbers, and back. X[k] = f * sum over n of src[n] * exp(-2 pi i n k / N) for k = 0..N/2; the other half
 *  is conjugate to it. X[0] is real, and X[N/2] too where N is even, so N numbers hold the spectrum. Three ways to store it:
 *
 *    N even   0        1        2       3       ...  N-2         N-1         N         N+1
 *    Perm     X[0]     X[N/2]   Re X[1] Im X[1]      Re X[N/2-1] Im X[N/2-1]
 *    Pack     X[0]     Re X[1]  Im X[1] Re X[2]      Im X[N/2-1] X[N/2]
 *    CCS      X[0]     0        Re X[1] Im X[1]      Re X[N/2-1] Im X[N/2-1] X[N/2]    0
 *
 *    N odd, M = (N-1)/2                              N-2         N-1         N
 *    Perm     X[0]     Re X[1]  Im X[1] Re X[2]      Re X[M]     Im X[M]
 *    Pack     X[0]     Re X[1]  Im X[1] Re X[2]      Re X[M]     Im X[M]
 *    CCS      X[0]     0        Re X[1] Im X[1]      Im X[M-1]   Re X[M]     Im X[M]
 *
 *  The inverse forms do not read the zeros of CCS. pSrc, pDst: N numbers, 2 * (N/2 + 1) where they hold CCS; any alignment; the
 *  same vector or apart. pBuffer, accuracy, statuses: as the complex transform. */
QVXS_API(QvxStatus, qvxsDFTFwd_RToPerm_32f, (const Qvx32f* pSrc, Qvx32f* pDst, const QvxsDFTSpec_R_32f* pSpec, Qvx8u* pBuffer));
QVXS_API(QvxStatus, qvxsDFTFwd_RToPerm_64f, (const Qvx64f* pSrc, Qvx64f* pDst, const QvxsDFTSpec_R_64f* pSpec, Qvx8u* pBuffer));
QVXS_API(QvxStatus, qvxsDFTFwd_RToPerm_16s_Sfs, (const Qvx16s* pSrc, Qvx16s* pDst, const QvxsDFTSpec_R_16s* pSpec, int scaleFactor, Qvx8u* pBuffer));
QVXS_API(QvxStatus, qvxsDFTFwd_RToPack_32f, (const Qvx32f* pSrc, Qvx32f* pDst, const QvxsDFTSpec_R_32f* pSpec, Qvx8u* pBuffer));
QVXS_API(QvxStatus, qvxsDFTFwd_RToPack_64f, (const Qvx64f* pSrc, Qvx64f* pDst, const QvxsDFTSpec_R_64f* pSpec, Qvx8u* pBuffer));
QVXS_API(QvxStatus, qvxsDFTFwd_RToPack_16s_Sfs, (const Qvx16s* pSrc, Qvx16s* pDst, const QvxsDFTSpec_R_16s* pSpec, int scaleFactor, Qvx8u* pBuffer));
QVXS_API(QvxStatus, qvxsDFTFwd_RToCCS_32f, (const Qvx32f* pSrc, Qvx32f* pDst, const QvxsDFTSpec_R_32f* pSpec, Qvx8u* pBuffer));
QVXS_API(QvxStatus, qvxsDFTFwd_RToCCS_64f, (const Qvx64f* pSrc, Qvx64f* pDst, const QvxsDFTSpec_R_64f* pSpec, Qvx8u* pBuffer));
QVXS_API(QvxStatus, qvxsDFTFwd_RToCCS_16s_Sfs, (const Qvx16s* pSrc, Qvx16s* pDst, const QvxsDFTSpec_R_16s* pSpec, int scaleFactor, Qvx8u* pBuffer));
QVXS_API(QvxStatus, qvxsDFTInv_PermToR_32f, (const Qvx32f* pSrc, Qvx32f* pDst, const QvxsDFTSpec_R_32f* pSpec, Qvx8u* pBuffer));
QVXS_API(QvxStatus, qvxsDFTInv_PermToR_64f, (const Qvx64f* pSrc, Qvx64f* pDst, const QvxsDFTSpec_R_64f* pSpec, Qvx8u* pBuffer));
QVXS_API(QvxStatus, qvxsDFTInv_PermToR_16s_Sfs, (const Qvx16s* pSrc, Qvx16s* pDst, const QvxsDFTSpec_R_16s* pSpec, int scaleFactor, Qvx8u* pBuffer));
QVXS_API(QvxStatus, qvxsDFTInv_PackToR_32f, (const Qvx32f* pSrc, Qvx32f* pDst, const QvxsDFTSpec_R_32f* pSpec, Qvx8u* pBuffer));
QVXS_API(QvxStatus, qvxsDFTInv_PackToR_64f, (const Qvx64f* pSrc, Qvx64f* pDst, const QvxsDFTSpec_R_64f* pSpec, Qvx8u* pBuffer));
QVXS_API(QvxStatus, qvxsDFTInv_PackToR_16s_Sfs, (const Qvx16s* pSrc, Qvx16s* pDst, const QvxsDFTSpec_R_16s* pSpec, int scaleFactor, Qvx8u* pBuffer));
QVXS_API(QvxStatus, qvxsDFTInv_CCSToR_32f, (const Qvx32f* pSrc, Qvx32f* pDst, const QvxsDFTSpec_R_32f* pSpec, Qvx8u* pBuffer));
QVXS_API(QvxStatus, qvxsDFTInv_CCSToR_64f, (const Qvx64f* pSrc, Qvx64f* pDst, const QvxsDFTSpec_R_64f* pSpec, Qvx8u* pBuffer));
QVXS_API(QvxStatus, qvxsDFTInv_CCSToR_16s_Sfs, (const Qvx16s* pSrc, Qvx16s* pDst, const QvxsDFTSpec_R_16s* pSpec, int scaleFactor, Qvx8u* pBuffer));

/** Records for transforms out of order: as those above. */
QVXS_API(QvxStatus, qvxsDFTOutOrdInitAlloc_C_32fc, (QvxsDFTOutOrdSpec_C_32fc** ppSpec, int len, int flag, int hint));
QVXS_API(QvxStatus, qvxsDFTOutOrdFree_C_32fc, (QvxsDFTOutOrdSpec_C_32fc* pSpec));
QVXS_API(QvxStatus, qvxsDFTOutOrdGetBufSize_C_32fc, (const QvxsDFTOutOrdSpec_C_32fc* pSpec, int* pSize));
QVXS_API(QvxStatus, qvxsDFTOutOrdInitAlloc_C_64fc, (QvxsDFTOutOrdSpec_C_64fc** ppSpec, int len, int flag, int hint));
QVXS_API(QvxStatus, qvxsDFTOutOrdFree_C_64fc, (QvxsDFTOutOrdSpec_C_64fc* pSpec));
QVXS_API(QvxStatus, qvxsDFTOutOrdGetBufSize_C_64fc, (const QvxsDFTOutOrdSpec_C_64fc* pSpec, int* pSize));

/** The complex transform with the spectrum in an order of its own, which Fwd writes and Inv takes. It is a fixed permutation of
 *  the natural order for a length and a type, the same for every record, and may be another in another variant of the library.
 *  The product of two spectra of a length, element by element, brought back by Inv, is a circular convolution. All else is as
 *  that of the transform in natural order, but for qvxsDFTOutOrdGetBufSize, which asks for less. */
QVXS_API(QvxStatus, qvxsDFTOutOrdFwd_CToC_32fc, (const Qvx32fc* pSrc, Qvx32fc* pDst, const QvxsDFTOutOrdSpec_C_32fc* pSpec, Qvx8u* pBuffer));
QVXS_API(QvxStatus, qvxsDFTOutOrdInv_CToC_32fc, (const Qvx32fc* pSrc, Qvx32fc* pDst, const QvxsDFTOutOrdSpec_C_32fc* pSpec, Qvx8u* pBuffer));
QVXS_API(QvxStatus, qvxsDFTOutOrdFwd_CToC_64fc, (const Qvx64fc* pSrc, Qvx64fc* pDst, const QvxsDFTOutOrdSpec_C_64fc* pSpec, Qvx8u* pBuffer));
QVXS_API(QvxStatus, qvxsDFTOutOrdInv_CToC_64fc, (const Qvx64fc* pSrc, Qvx64fc* pDst, const QvxsDFTOutOrdSpec_C_64fc* pSpec, Qvx8u* pBuffer));

#ifdef __cplusplus
}
#endif

#endif
