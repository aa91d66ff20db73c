/* Reductions: sums, means, deviations, extrema, norms, dot products. */
#ifndef QVX_QVXS_STATS_H
#define QVX_QVXS_STATS_H

#include <qvx/qvxdefs.h>

#ifdef __cplusplus
extern "C" {
#endif

/** *pSum = src[0] + ... + src[len - 1].
 *  32f, 32fc: hint 1 adds in 32-bit floats: the error is at most 3.1e-5 of the sum of the magnitudes; any other hint adds in
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

/** *pMax = the greatest element; *pMin = the least.
 *  Of all functions from here to qvxsMinMaxIndx: the first element is held, and replaced by a later one only if that is greater
 *  (less). So a NaN as the first element is the result, and any other is passed over; of equal zeros, the sign is that of the
 *  first.
 *  pSrc: len elements, any alignment.
 *  Returns qvxStatOk; qvxStatNullPtr; qvxStatBadSize (len < 1). */
QVXS_API(QvxStatus, qvxsMax_16s, (const Qvx16s* pSrc, int len, Qvx16s* pMax));
QVXS_API(QvxStatus, qvxsMax_32s, (const Qvx32s* pSrc, int len, Qvx32s* pMax));
QVXS_API(QvxStatus, qvxsMax_32f, (const Qvx32f* pSrc, int len, Qvx32f* pMax));
QVXS_API(QvxStatus, qvxsMax_64f, (const Qvx64f* pSrc, int len, Qvx64f* pMax));
QVXS_API(QvxStatus, qvxsMin_16s, (const Qvx16s* pSrc, int len, Qvx16s* pMin));
QVXS_API(QvxStatus, qvxsMin_32s, (const Qvx32s* pSrc, int len, Qvx32s* pMin));
QVXS_API(QvxStatus, qvxsMin_32f, (const Qvx32f* pSrc, int len, Qvx32f* pMin));
QVXS_API(QvxStatus, qvxsMin_64f, (const Qvx64f* pSrc, int len, Qvx64f* pMin));

/** As qvxsMax and qvxsMin, and *pIndx = the index of the first such element: 0 for a NaN, which is the first element.
 *  pIndx may be null: then this is qvxsMax or qvxsMin. */
QVXS_API(QvxStatus, qvxsMaxIndx_16s, (const Qvx16s* pSrc, int len, Qvx16s* pMax, int* pIndx));
QVXS_API(QvxStatus, qvxsMaxIndx_32s, (const Qvx32s* pSrc, int len, Qvx32s* pMax, int* pIndx));
QVXS_API(QvxStatus, qvxsMaxIndx_32f, (const Qvx32f* pSrc, int len, Qvx32f* pMax, int* pIndx));
QVXS_API(QvxStatus, qvxsMaxIndx_64f, (const Qvx64f* pSrc, int len, Qvx64f* pMax, int* pIndx));
QVXS_API(QvxStatus, qvxsMinIndx_16s, (const Qvx16s* pSrc, int len, Qvx16s* pMin, int* pIndx));
QVXS_API(QvxStatus, qvxsMinIndx_32s, (const Qvx32s* pSrc, int len, Qvx32s* pMin, int* pIndx));
QVXS_API(QvxStatus, qvxsMinIndx_32f, (const Qvx32f* pSrc, int len, Qvx32f* pMin, int* pIndx));
QVXS_API(QvxStatus, qvxsMinIndx_64f, (const Qvx64f* pSrc, int len, Qvx64f* pMin, int* pIndx));

/** *pMin = the least element and *pMax = the greatest, in one pass; otherwise as qvxsMax. */
QVXS_API(QvxStatus, qvxsMinMax_8u, (const Qvx8u* pSrc, int len, Qvx8u* pMin, Qvx8u* pMax));
QVXS_API(QvxStatus, qvxsMinMax_16u, (const Qvx16u* pSrc, int len, Qvx16u* pMin, Qvx16u* pMax));
QVXS_API(QvxStatus, qvxsMinMax_16s, (const Qvx16s* pSrc, int len, Qvx16s* pMin, Qvx16s* pMax));
QVXS_API(QvxStatus, qvxsMinMax_32u, (const Qvx32u* pSrc, int len, Qvx32u* pMin, Qvx32u* pMax));
QVXS_API(QvxStatus, qvxsMinMax_32s, (const Qvx32s* pSrc, int len, Qvx32s* pMin, Qvx32s* pMax));
QVXS_API(QvxStatus, qvxsMinMax_32f, (const Qvx32f* pSrc, int len, Qvx32f* pMin, Qvx32f* pMax));
QVXS_API(QvxStatus, qvxsMinMax_64f, (const Qvx64f* pSrc, int len, Qvx64f* pMin, Qvx64f* pMax));

/** As qvxsMinMax, and *pMinIndx, *pMaxIndx = the indices of the first such elements: 0 for a NaN. No pointer may be null. */
QVXS_API(QvxStatus, qvxsMinMaxIndx_8u, (const Qvx8u* pSrc, int len, Qvx8u* pMin, int* pMinIndx, Qvx8u* pMax, int* pMaxIndx));
QVXS_API(QvxStatus, qvxsMinMaxIndx_16u, (const Qvx16u* pSrc, int len, Qvx16u* pMin, int* pMinIndx, Qvx16u* pMax, int* pMaxIndx));
QVXS_API(QvxStatus, qvxsMinMaxIndx_16s, (const Qvx16s* pSrc, int len, Qvx16s* pMin, int* pMinIndx, Qvx16s* pMax, int* pMaxIndx));
QVXS_API(QvxStatus, qvxsMinMaxIndx_32u, (const Qvx32u* pSrc, int len, Qvx32u* pMin, int* pMinIndx, Qvx32u* pMax, int* pMaxIndx));
QVXS_API(QvxStatus, qvxsMinMaxIndx_32s, (const Qvx32s* pSrc, int len, Qvx32s* pMin, int* pMinIndx, Qvx32s* pMax, int* pMaxIndx));
QVXS_API(QvxStatus, qvxsMinMaxIndx_32f, (const Qvx32f* pSrc, int len, Qvx32f* pMin, int* pMinIndx, Qvx32f* pMax, int* pMaxIndx));
QVXS_API(QvxStatus, qvxsMinMaxIndx_64f, (const Qvx64f* pSrc, int len, Qvx64f* pMin, int* pMinIndx, Qvx64f* pMax, int* pMaxIndx));

/** *pMaxAbs = the greatest magnitude, *pMinAbs = the least, saturated: the most negative integer counts as the most positive.
 *  Otherwise as qvxsMax. */
QVXS_API(QvxStatus, qvxsMaxAbs_16s, (const Qvx16s* pSrc, int len, Qvx16s* pMaxAbs));
QVXS_API(QvxStatus, qvxsMaxAbs_32s, (const Qvx32s* pSrc, int len, Qvx32s* pMaxAbs));
QVXS_API(QvxStatus, qvxsMinAbs_16s, (const Qvx16s* pSrc, int len, Qvx16s* pMinAbs));
QVXS_API(QvxStatus, qvxsMinAbs_32s, (const Qvx32s* pSrc, int len, Qvx32s* pMinAbs));

/** As qvxsMaxAbs and qvxsMinAbs, and *pIndx = the index of the first element with this saturated magnitude.
 *  pIndx may be null: then this is qvxsMaxAbs or qvxsMinAbs. */
QVXS_API(QvxStatus, qvxsMaxAbsIndx_16s, (const Qvx16s* pSrc, int len, Qvx16s* pMaxAbs, int* pIndx));
QVXS_API(QvxStatus, qvxsMaxAbsIndx_32s, (const Qvx32s* pSrc, int len, Qvx32s* pMaxAbs, int* pIndx));
QVXS_API(QvxStatus, qvxsMinAbsIndx_16s, (const Qvx16s* pSrc, int len, Qvx16s* pMinAbs, int* pIndx));
QVXS_API(QvxStatus, qvxsMinAbsIndx_32s, (const Qvx32s* pSrc, int len, Qvx32s* pMinAbs, int* pIndx));

/** dst[n] = src1[n] if that is greater than src2[n], else src2[n]; qvxsMinEvery: if it is less. In place, pSrc is the first
 *  source and pSrcDst the second. So a NaN in the second source stays, one in the first is passed over, and of two equal zeros
 *  the second source's is taken.
 *  len elements each, any alignment; pDst may equal a source.
 *  Returns qvxStatOk; qvxStatNullPtr; qvxStatBadSize (len < 1). */
QVXS_API(QvxStatus, qvxsMaxEvery_8u, (const Qvx8u* pSrc1, const Qvx8u* pSrc2, Qvx8u* pDst, int len));
QVXS_API(QvxStatus, qvxsMaxEvery_16u, (const Qvx16u* pSrc1, const Qvx16u* pSrc2, Qvx16u* pDst, int len));
QVXS_API(QvxStatus, qvxsMaxEvery_32f, (const Qvx32f* pSrc1, const Qvx32f* pSrc2, Qvx32f* pDst, int len));
QVXS_API(QvxStatus, qvxsMaxEvery_64f, (const Qvx64f* pSrc1, const Qvx64f* pSrc2, Qvx64f* pDst, int len));
QVXS_API(QvxStatus, qvxsMaxEvery_8u_I, (const Qvx8u* pSrc, Qvx8u* pSrcDst, int len));
QVXS_API(QvxStatus, qvxsMaxEvery_16u_I, (const Qvx16u* pSrc, Qvx16u* pSrcDst, int len));
QVXS_API(QvxStatus, qvxsMaxEvery_16s_I, (const Qvx16s* pSrc, Qvx16s* pSrcDst, int len));
QVXS_API(QvxStatus, qvxsMaxEvery_32s_I, (const Qvx32s* pSrc, Qvx32s* pSrcDst, int len));
QVXS_API(QvxStatus, qvxsMaxEvery_32f_I, (const Qvx32f* pSrc, Qvx32f* pSrcDst, int len));
QVXS_API(QvxStatus, qvxsMaxEvery_64f_I, (const Qvx64f* pSrc, Qvx64f* pSrcDst, int len));
QVXS_API(QvxStatus, qvxsMinEvery_8u, (const Qvx8u* pSrc1, const Qvx8u* pSrc2, Qvx8u* pDst, int len));
QVXS_API(QvxStatus, qvxsMinEvery_16u, (const Qvx16u* pSrc1, const Qvx16u* pSrc2, Qvx16u* pDst, int len));
QVXS_API(QvxStatus, qvxsMinEvery_32f, (const Qvx32f* pSrc1, const Qvx32f* pSrc2, Qvx32f* pDst, int len));
QVXS_API(QvxStatus, qvxsMinEvery_64f, (const Qvx64f* pSrc1, const Qvx64f* pSrc2, Qvx64f* pDst, int len));
QVXS_API(QvxStatus, qvxsMinEvery_8u_I, (const Qvx8u* pSrc, Qvx8u* pSrcDst, int len));
QVXS_API(QvxStatus, qvxsMinEvery_16u_I, (const Qvx16u* pSrc, Qvx16u* pSrcDst, int len));
QVXS_API(QvxStatus, qvxsMinEvery_16s_I, (const Qvx16s* pSrc, Qvx16s* pSrcDst, int len));
QVXS_API(QvxStatus, qvxsMinEvery_32s_I, (const Qvx32s* pSrc, Qvx32s* pSrcDst, int len));
QVXS_API(QvxStatus, qvxsMinEvery_32f_I, (const Qvx32f* pSrc, Qvx32f* pSrcDst, int len));
QVXS_API(QvxStatus, qvxsMinEvery_64f_I, (const Qvx64f* pSrc, Qvx64f* pSrcDst, int len));

/** *pOrder = the number of binary digits that the largest magnitude takes before its point.
 *  Integers: the position of its highest set bit plus 1, 0 for zeros; -32768 has 16.
 *  Floats: e where the largest magnitude is in [2^(e-1), 2^e): 1 for 1.0, 0 for 0.5, negative below, 0 for zeros. Subnormal
 *  numbers count as just below the least normal one: -126 in 32f, -1022 in 64f. Infinities and NaNs count as 0.
 *  pSrc: len elements, any alignment.
 *  Returns qvxStatOk; qvxWarnNotFinite (an element was infinite or a NaN; *pOrder is that of the others); qvxStatBadSize
 *  (len < 1), before any pointer is looked at; qvxStatNullPtr. */
QVXS_API(QvxStatus, qvxsMaxOrder_16s, (const Qvx16s* pSrc, int len, int* pOrder));
QVXS_API(QvxStatus, qvxsMaxOrder_32s, (const Qvx32s* pSrc, int len, int* pOrder));
QVXS_API(QvxStatus, qvxsMaxOrder_32f, (const Qvx32f* pSrc, int len, int* pOrder));
QVXS_API(QvxStatus, qvxsMaxOrder_64f, (const Qvx64f* pSrc, int len, int* pOrder));

/** *pCounts = how many elements are greater than lowerBound and less than upperBound; 0 where the bounds leave nothing between.
 *  pSrc: len elements, any alignment.
 *  Returns qvxStatOk; qvxStatNullPtr; qvxStatBadSize (len < 1). */
QVXS_API(QvxStatus, qvxsCountInRange_32s, (const Qvx32s* pSrc, int len, int* pCounts, Qvx32s lowerBound, Qvx32s upperBound));

/** outVals[n] = the entry of the table that is nearest to vals[n], outIndx[n] = its index. Between two entries equally far the
 *  lower is taken. Of equal entries, the index is that of the first for values up to the first entry, that of the last for
 *  values from the last entry on; between, it is that of the last if it is at or below the value, that of the first if above.
 *  pVals, pOutVals, pOutIndx: len elements each, any alignment; pOutVals may equal pVals.
 *  pTable: tblLen entries in ascending order, which is not tested; in another order it gives some entry and its index.
 *  Returns qvxStatOk; qvxStatNullPtr; qvxStatBadSize (len < 1, tblLen < 1). */
QVXS_API(QvxStatus, qvxsFindNearest_16u,
         (const Qvx16u* pVals, Qvx16u* pOutVals, int* pOutIndx, int len, const Qvx16u* pTable, int tblLen));

/** The same for one value: *pOutVal and *pOutIndx. */
QVXS_API(QvxStatus, qvxsFindNearestOne_16u, (Qvx16u inpVal, Qvx16u* pOutVal, int* pOutIndx, const Qvx16u* pTable, int tblLen));

#ifdef __cplusplus
}
#endif

#endif
