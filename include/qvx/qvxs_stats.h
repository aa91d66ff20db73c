/* Reductions: sums, means, deviations, extrema, norms, dot products. */
#ifndef QVX_QVXS_STATS_H
#define QVX_QVXS_STATS_H

#include <qvx/qvxdefs.h>

#ifdef __cplusplus
extern "C" {
#endif

/** *pSum = src[0] + ... + src[len - 1].
 *  32f, 32fc: hint 1 adds in 32-bit floats: the error is at most 2e-5 of the sum of the magnitudes; any other hint adds in
 *  64-bit floats and rounds once. 64f, 64fc: added in 64-bit floats, the error is at most 3e-12 of the sum of the magnitudes.
 *  The order of the additions is not that of the elements.
 *  Integers: the exact sum times 2^-scaleFactor, rounded to nearest with ties to even, saturated; any scaleFactor is allowed.
 *  pSrc: len elements, any alignment. An infinity or NaN among the elements gives what its addition gives.
 *  Returns qvxStatOk; qvxStatNullPtr; qvxStatBadSize (len < 1). */
QVXS_API(QvxStatus, qvxsSum_32f, (const Qvx32f* pSrc, int len, Qvx32f* pSum, int hint));
QVXS_API(QvxStatus, qvxsSum_32fc, (const Qvx32fc* pSrc, int len, Qvx32fc* pSum, int hint));
QVXS_API(QvxStatus, qvxsSum_64f, (const Qvx64f* pSrc, int len, Qvx64f* pSum));
QVXS_API(QvxStatus, qvxsSum_64fc, (const Qvx64fc* pSrc, int len, Qvx64fc* pSum));
QVXS_API(QvxStatus, qvxsSum_16s_Sfs, (const Qvx16s* pSrc, int len, Qvx16s* pSum, int scaleFactor));
QVXS_API(QvxStatus, qvxsSum_16sc_Sfs, (const Qvx16sc* pSrc, int len, Qvx16sc* pSum, int scaleFactor));
QVXS_API(QvxStatus, qvxsSum_16s32s_Sfs, (const Qvx16s* pSrc, int len, Qvx32s* pSum, int scaleFactor));
QVXS_API(QvxStatus, qvxsSum_16sc32sc_Sfs, (const Qvx16sc* pSrc, int len, Qvx32sc* pSum, int scaleFactor));
QVXS_API(QvxStatus, qvxsSum_32s_Sfs, (const Qvx32s* pSrc, int len, Qvx32s* pSum, int scaleFactor));

/** *pMean = the sum of the elements, as qvxsSum adds them, divided by len.
 *  Integers: the exact sum divided by len as a 64-bit float, times 2^-scaleFactor, rounded to nearest with ties to even,
 *  saturated. Otherwise as qvxsSum. */
QVXS_API(QvxStatus, qvxsMean_32f, (const Qvx32f* pSrc, int len, Qvx32f* pMean, int hint));
QVXS_API(QvxStatus, qvxsMean_32fc, (const Qvx32fc* pSrc, int len, Qvx32fc* pMean, int hint));
QVXS_API(QvxStatus, qvxsMean_64f, (const Qvx64f* pSrc, int len, Qvx64f* pMean));
QVXS_API(QvxStatus, qvxsMean_64fc, (const Qvx64fc* pSrc, int len, Qvx64fc* pMean));
QVXS_API(QvxStatus, qvxsMean_16s_Sfs, (const Qvx16s* pSrc, int len, Qvx16s* pMean, int scaleFactor));
QVXS_API(QvxStatus, qvxsMean_16sc_Sfs, (const Qvx16sc* pSrc, int len, Qvx16sc* pMean, int scaleFactor));
QVXS_API(QvxStatus, qvxsMean_32s_Sfs, (const Qvx32s* pSrc, int len, Qvx32s* pMean, int scaleFactor));

/** *pStdDev = the sample standard deviation sqrt((Q * len - S * S) / (len * (len - 1))), S the sum of the elements and Q that
 *  of their squares; a numerator that rounding drives below 0 counts as 0. In 64-bit floats: where the deviation is less than
 *  1e-8 of the mean, little of it is left. qvxsMeanStdDev gives *pMean = S / len as well, from the same pass.
 *  32f: hint 1 gathers S and Q in 32-bit floats, any other hint in 64-bit ones.
 *  Integers: S and Q are exact; the results times 2^-scaleFactor, rounded to nearest with ties to even, saturated.
 *  Returns as qvxsSum, but qvxStatBadSize for len < 2. */
QVXS_API(QvxStatus, qvxsStdDev_32f, (const Qvx32f* pSrc, int len, Qvx32f* pStdDev, int hint));
QVXS_API(QvxStatus, qvxsStdDev_64f, (const Qvx64f* pSrc, int len, Qvx64f* pStdDev));
QVXS_API(QvxStatus, qvxsStdDev_16s_Sfs, (const Qvx16s* pSrc, int len, Qvx16s* pStdDev, int scaleFactor));
QVXS_API(QvxStatus, qvxsStdDev_16s32s_Sfs, (const Qvx16s* pSrc, int len, Qvx32s* pStdDev, int scaleFactor));
QVXS_API(QvxStatus, qvxsMeanStdDev_32f, (const Qvx32f* pSrc, int len, Qvx32f* pMean, Qvx32f* pStdDev, int hint));
QVXS_API(QvxStatus, qvxsMeanStdDev_64f, (const Qvx64f* pSrc, int len, Qvx64f* pMean, Qvx64f* pStdDev));
QVXS_API(QvxStatus, qvxsMeanStdDev_16s_Sfs, (const Qvx16s* pSrc, int len, Qvx16s* pMean, Qvx16s* pStdDev, int scaleFactor));
QVXS_API(QvxStatus, qvxsMeanStdDev_16s32s_Sfs, (const Qvx16s* pSrc, int len, Qvx32s* pMean, Qvx32s* pStdDev, int scaleFactor));

#ifdef __cplusplus
}
#endif

#endif
