/* The Haar transform of neighbouring pairs. */
#ifndef QVX_QVXS_WAVELET_H
#define QVX_QVXS_WAVELET_H

#include <qvx/qvxdefs.h>

#ifdef __cplusplus
extern "C" {
#endif

/** One level of the Haar transform of x[0] .. x[len - 1]: low[k] = (x[2k] + x[2k + 1]) / 2 and high[k] = (x[2k + 1] - x[2k]) / 2 for
 *  the len / 2 pairs; the last sample of an odd length is low[len / 2].
 *  Floats: high = (b - a) * 0.5, then low = a + high. Integers: the exact value, rounded to nearest with ties to even, saturated: only
 *  half the difference from the least to the largest number is. _Sfs: the exact value times 2^-scaleFactor, rounded once, the last sample
 *  of an odd length too; scaleFactor -1 gives sums and differences.
 *  pSrc: len elements. pDstLow: (len + 1) / 2, pDstHigh: len / 2. Any alignment; they must not overlap.
 *  Returns qvxStatOk; qvxStatNullPtr; qvxStatBadSize (len < 1). */
QVXS_API(QvxStatus, qvxsWTHaarFwd_8s, (const Qvx8s* pSrc, int len, Qvx8s* pDstLow, Qvx8s* pDstHigh));
QVXS_API(QvxStatus, qvxsWTHaarFwd_16s, (const Qvx16s* pSrc, int len, Qvx16s* pDstLow, Qvx16s* pDstHigh));
QVXS_API(QvxStatus, qvxsWTHaarFwd_32s, (const Qvx32s* pSrc, int len, Qvx32s* pDstLow, Qvx32s* pDstHigh));
QVXS_API(QvxStatus, qvxsWTHaarFwd_64s, (const Qvx64s* pSrc, int len, Qvx64s* pDstLow, Qvx64s* pDstHigh));
QVXS_API(QvxStatus, qvxsWTHaarFwd_32f, (const Qvx32f* pSrc, int len, Qvx32f* pDstLow, Qvx32f* pDstHigh));
QVXS_API(QvxStatus, qvxsWTHaarFwd_64f, (const Qvx64f* pSrc, int len, Qvx64f* pDstLow, Qvx64f* pDstHigh));
QVXS_API(QvxStatus, qvxsWTHaarFwd_8s_Sfs, (const Qvx8s* pSrc, int len, Qvx8s* pDstLow, Qvx8s* pDstHigh, int scaleFactor));
QVXS_API(QvxStatus, qvxsWTHaarFwd_16s_Sfs, (const Qvx16s* pSrc, int len, Qvx16s* pDstLow, Qvx16s* pDstHigh, int scaleFactor));
QVXS_API(QvxStatus, qvxsWTHaarFwd_32s_Sfs, (const Qvx32s* pSrc, int len, Qvx32s* pDstLow, Qvx32s* pDstHigh, int scaleFactor));
QVXS_API(QvxStatus, qvxsWTHaarFwd_64s_Sfs, (const Qvx64s* pSrc, int len, Qvx64s* pDstLow, Qvx64s* pDstHigh, int scaleFactor));

/** Back: dst[2k] = low[k] - high[k], dst[2k + 1] = low[k] + high[k]; the last element of an odd length is low[len / 2]. len counts the
 *  elements of pDst. Integers saturate; _Sfs: the exact value times 2^-scaleFactor, rounded to nearest with ties to even, saturated, the
 *  last element of an odd length too.
 *  pSrcLow: (len + 1) / 2 elements, pSrcHigh: len / 2, pDst: len. Any alignment; they must not overlap.
 *  Returns qvxStatOk; qvxStatNullPtr; qvxStatBadSize (len < 1). */
QVXS_API(QvxStatus, qvxsWTHaarInv_8s, (const Qvx8s* pSrcLow, const Qvx8s* pSrcHigh, Qvx8s* pDst, int len));
QVXS_API(QvxStatus, qvxsWTHaarInv_16s, (const Qvx16s* pSrcLow, const Qvx16s* pSrcHigh, Qvx16s* pDst, int len));
QVXS_API(QvxStatus, qvxsWTHaarInv_32s, (const Qvx32s* pSrcLow, const Qvx32s* pSrcHigh, Qvx32s* pDst, int len));
QVXS_API(QvxStatus, qvxsWTHaarInv_64s, (const Qvx64s* pSrcLow, const Qvx64s* pSrcHigh, Qvx64s* pDst, int len));
QVXS_API(QvxStatus, qvxsWTHaarInv_32f, (const Qvx32f* pSrcLow, const Qvx32f* pSrcHigh, Qvx32f* pDst, int len));
QVXS_API(QvxStatus, qvxsWTHaarInv_64f, (const Qvx64f* pSrcLow, const Qvx64f* pSrcHigh, Qvx64f* pDst, int len));
QVXS_API(QvxStatus, qvxsWTHaarInv_8s_Sfs, (const Qvx8s* pSrcLow, const Qvx8s* pSrcHigh, Qvx8s* pDst, int len, int scaleFactor));
QVXS_API(QvxStatus, qvxsWTHaarInv_16s_Sfs, (const Qvx16s* pSrcLow, const Qvx16s* pSrcHigh, Qvx16s* pDst, int len, int scaleFactor));
QVXS_API(QvxStatus, qvxsWTHaarInv_32s_Sfs, (const Qvx32s* pSrcLow, const Qvx32s* pSrcHigh, Qvx32s* pDst, int len, int scaleFactor));
QVXS_API(QvxStatus, qvxsWTHaarInv_64s_Sfs, (const Qvx64s* pSrcLow, const Qvx64s* pSrcHigh, Qvx64s* pDst, int len, int scaleFactor));

#ifdef __cplusplus
}
#endif

#endif
