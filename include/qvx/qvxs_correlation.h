/* Convolution, cross-correlation and autocorrelation of vectors, without a record. */
#ifndef QVX_QVXS_CORRELATION_H
#define QVX_QVXS_CORRELATION_H

#include <qvx/qvxdefs.h>

#ifdef __cplusplus
extern "C" {
#endif

/* Short vectors are added up directly: where the values are whole numbers whose partial sums a float of the type holds, results are
 * exact. Long ones go through the FFT, with an error of at most 4 eps log2(N) times the product of the operands' norms, N being the
 * length of the transform and eps 2^-24 or 2^-53. A convolution is long from 512 results with at least 64 elements in the shorter vector
 * on, a correlation where (less * lags / more) exceeds 383 (64f, 64fc: 511, 32fc: 255), less and more being the shorter and the longer
 * length, and an autocorrelation from 856 lags on (32fc: 152, 64fc: 368); not all of those that are long gain by it. An infinite element
 * or a NaN spoils all results of the transforms it enters.
 *
 * 16-bit sums are those of integers, rounded once to nearest with ties to even and saturated: exact when added up directly, within one unit
 * of that otherwise. A scaleFactor beyond what can matter gives zeros or the ends of the range.
 *
 * All vectors may have any alignment; no destination may overlap a source. Long vectors take memory of the core library for the time of
 * the call, and so do 16-bit ones: without any, qvxStatNoMem is returned and nothing written. */

/** Convolution: dst[n] = the sum over k of src1[k] * src2[n - k].
 *  pSrc1: src1Len elements; pSrc2: src2Len; pDst: src1Len + src2Len - 1.
 *  Returns qvxStatOk; qvxStatNullPtr; qvxStatBadSize (src1Len < 1 or src2Len < 1); qvxStatNoMem. */
QVXS_API(QvxStatus, qvxsConv_32f, (const Qvx32f* pSrc1, int src1Len, const Qvx32f* pSrc2, int src2Len, Qvx32f* pDst));
QVXS_API(QvxStatus, qvxsConv_64f, (const Qvx64f* pSrc1, int src1Len, const Qvx64f* pSrc2, int src2Len, Qvx64f* pDst));
QVXS_API(QvxStatus, qvxsConv_16s_Sfs, (const Qvx16s* pSrc1, int src1Len, const Qvx16s* pSrc2, int src2Len, Qvx16s* pDst, int scaleFactor));

/** A part of a convolution: dst[n] = the sum over k of src1[k] * src2[bias + n - k], for n from 0 to dstLen - 1, where what lies outside
 *  src2 counts as zero. The bias may be negative. Always added up directly, without any memory.
 *  Five shapes, src1Len x src2Len to dstLen with a bias, are taken in another sense: 4 x 45 to 41 with 4, 11 x 50 to 40 with 10,
 *  16 x 56 to 40 with 16, 31 x 70 to 40 with 30 and 31 x 110 to 80 with 30 give the sum over all k of src1[k] * src2[n - k], where pSrc2
 *  points to a place within a longer vector: the src1Len - 1 elements before it are read.
 *  Returns qvxStatOk; qvxStatNullPtr; qvxStatBadSize (src1Len, src2Len or dstLen < 1). */
QVXS_API(QvxStatus, qvxsConvBiased_32f, (const Qvx32f* pSrc1, int src1Len, const Qvx32f* pSrc2, int src2Len, Qvx32f* pDst, int dstLen, int bias));

/** Cyclic convolution of 8 (4x4: of 4) elements: dst[n] = the sum over k of src1[k] * src2[(n - k) mod 8]. 16s: sums of 32 bits that wrap,
 *  times 2^-scaleFactor, rounded to nearest with ties to even, saturated. pDst may be a source.
 *  Returns qvxStatOk; qvxStatNullPtr. */
QVXS_API(QvxStatus, qvxsConvCyclic8x8_32f, (const Qvx32f* pSrc1, const Qvx32f* pSrc2, Qvx32f* pDst));
QVXS_API(QvxStatus, qvxsConvCyclic8x8_16s_Sfs, (const Qvx16s* pSrc1, const Qvx16s* pSrc2, Qvx16s* pDst, int scaleFactor));
QVXS_API(QvxStatus, qvxsConvCyclic4x4_32f32fc, (const Qvx32f* pSrc1, const Qvx32fc* pSrc2, Qvx32fc* pDst));

/** Cross-correlation: dst[n] = the sum over i of conj(src1[i]) * src2[i + n + lowLag], for n from 0 to dstLen - 1, where what lies outside
 *  the vectors counts as zero. Any lowLag; lags at which the vectors do not meet give zeros.
 *  pSrc1: src1Len elements; pSrc2: src2Len; pDst: dstLen. 16s64s: exact, never through the FFT, without any memory.
 *  Returns qvxStatOk; qvxStatNullPtr; qvxStatBadSize (src1Len, src2Len or dstLen < 1); qvxStatNoMem. */
QVXS_API(QvxStatus, qvxsCrossCorr_32f, (const Qvx32f* pSrc1, int src1Len, const Qvx32f* pSrc2, int src2Len, Qvx32f* pDst, int dstLen, int lowLag));
QVXS_API(QvxStatus, qvxsCrossCorr_64f, (const Qvx64f* pSrc1, int src1Len, const Qvx64f* pSrc2, int src2Len, Qvx64f* pDst, int dstLen, int lowLag));
QVXS_API(QvxStatus, qvxsCrossCorr_32fc, (const Qvx32fc* pSrc1, int src1Len, const Qvx32fc* pSrc2, int src2Len, Qvx32fc* pDst, int dstLen, int lowLag));
QVXS_API(QvxStatus, qvxsCrossCorr_64fc, (const Qvx64fc* pSrc1, int src1Len, const Qvx64fc* pSrc2, int src2Len, Qvx64fc* pDst, int dstLen, int lowLag));
QVXS_API(QvxStatus, qvxsCrossCorr_16s_Sfs, (const Qvx16s* pSrc1, int src1Len, const Qvx16s* pSrc2, int src2Len, Qvx16s* pDst, int dstLen, int lowLag, int scaleFactor));
QVXS_API(QvxStatus, qvxsCrossCorr_16s64s, (const Qvx16s* pSrc1, int src1Len, const Qvx16s* pSrc2, int src2Len, Qvx64s* pDst, int dstLen, int lowLag));

/** Autocorrelation: dst[n] = the sum over i of conj(src[i]) * src[i + n], for n from 0 to dstLen - 1; zeros from srcLen on.
 *  NormA: times the rounded reciprocal of srcLen (the biased estimate); NormB: divided by srcLen - n (the unbiased one).
 *  pSrc: srcLen elements; pDst: dstLen. 16s: the scale factor counts after the norm.
 *  Returns qvxStatOk; qvxStatNullPtr; qvxStatBadSize (srcLen < 1 or dstLen < 1); qvxStatNoMem. */
QVXS_API(QvxStatus, qvxsAutoCorr_32f, (const Qvx32f* pSrc, int srcLen, Qvx32f* pDst, int dstLen));
QVXS_API(QvxStatus, qvxsAutoCorr_64f, (const Qvx64f* pSrc, int srcLen, Qvx64f* pDst, int dstLen));
QVXS_API(QvxStatus, qvxsAutoCorr_32fc, (const Qvx32fc* pSrc, int srcLen, Qvx32fc* pDst, int dstLen));
QVXS_API(QvxStatus, qvxsAutoCorr_64fc, (const Qvx64fc* pSrc, int srcLen, Qvx64fc* pDst, int dstLen));
QVXS_API(QvxStatus, qvxsAutoCorr_16s_Sfs, (const Qvx16s* pSrc, int srcLen, Qvx16s* pDst, int dstLen, int scaleFactor));
QVXS_API(QvxStatus, qvxsAutoCorr_NormA_32f, (const Qvx32f* pSrc, int srcLen, Qvx32f* pDst, int dstLen));
QVXS_API(QvxStatus, qvxsAutoCorr_NormA_64f, (const Qvx64f* pSrc, int srcLen, Qvx64f* pDst, int dstLen));
QVXS_API(QvxStatus, qvxsAutoCorr_NormA_32fc, (const Qvx32fc* pSrc, int srcLen, Qvx32fc* pDst, int dstLen));
QVXS_API(QvxStatus, qvxsAutoCorr_NormA_64fc, (const Qvx64fc* pSrc, int srcLen, Qvx64fc* pDst, int dstLen));
QVXS_API(QvxStatus, qvxsAutoCorr_NormA_16s_Sfs, (const Qvx16s* pSrc, int srcLen, Qvx16s* pDst, int dstLen, int scaleFactor));
QVXS_API(QvxStatus, qvxsAutoCorr_NormB_32f, (const Qvx32f* pSrc, int srcLen, Qvx32f* pDst, int dstLen));
QVXS_API(QvxStatus, qvxsAutoCorr_NormB_64f, (const Qvx64f* pSrc, int srcLen, Qvx64f* pDst, int dstLen));
QVXS_API(QvxStatus, qvxsAutoCorr_NormB_32fc, (const Qvx32fc* pSrc, int srcLen, Qvx32fc* pDst, int dstLen));
QVXS_API(QvxStatus, qvxsAutoCorr_NormB_64fc, (const Qvx64fc* pSrc, int srcLen, Qvx64fc* pDst, int dstLen));
QVXS_API(QvxStatus, qvxsAutoCorr_NormB_16s_Sfs, (const Qvx16s* pSrc, int srcLen, Qvx16s* pDst, int dstLen, int scaleFactor));

#ifdef __cplusplus
}
#endif

#endif
