/* Norms, norms of differences, dot products. */
#ifndef QVX_QVXS_NORM_H
#define QVX_QVXS_NORM_H

#include <qvx/qvxdefs.h>

#ifdef __cplusplus
extern "C" {
#endif

/** *pNorm = the norm of src: qvxsNorm_Inf the largest magnitude, qvxsNorm_L1 the sum of the magnitudes, qvxsNorm_L2 the root of
 *  the sum of their squares, qvxsNorm_L2Sqr that sum itself. Of a complex element, sqrt(re * re + im * im) is the magnitude.
 *  Floats: the sums are those of 32-bit floats for 32f, which are added to 64-bit ones after some hundred elements, and of 64-bit
 *  floats for all others; the order of the additions is not that of the elements. The relative error is at most 3.5e-5 for 32f
 *  and 1e-11 otherwise, for qvxsNorm_Inf_32fc32f 2e-7 at any magnitude. The squares of other elements must be finite and
 *  normal: from 1.8e19 on for 32f and 1.3e154 for 64f and 64fc the norm is infinite, and below 1e-19 and 1e-154 it loses
 *  digits or is 0 (qvxsNorm_L2, and all norms of 64fc). A NaN gives a NaN, but in qvxsNorm_Inf, where an element that is one or
 *  has one as a part does not count: the norm of nothing else is 0.
 *  Integers: the magnitudes and their sums are exact at any length, -32768 counts as 32768. 16s32f: rounded once, after the root
 *  in 64-bit floats. Scaled results: times 2^-scaleFactor, rounded to nearest with ties to even, saturated; any scaleFactor is
 *  allowed. qvxsNorm_L2_16s32s_Sfs takes the root in 64-bit floats and rounds in the processor's rounding mode.
 *  pSrc: len elements, any alignment. Returns qvxStatOk; qvxStatNullPtr; qvxStatBadSize (len < 1). */
QVXS_API(QvxStatus, qvxsNorm_Inf_32f, (const Qvx32f* pSrc, int len, Qvx32f* pNorm));
QVXS_API(QvxStatus, qvxsNorm_Inf_64f, (const Qvx64f* pSrc, int len, Qvx64f* pNorm));
QVXS_API(QvxStatus, qvxsNorm_Inf_16s32f, (const Qvx16s* pSrc, int len, Qvx32f* pNorm));
QVXS_API(QvxStatus, qvxsNorm_Inf_16s32s_Sfs, (const Qvx16s* pSrc, int len, Qvx32s* pNorm, int scaleFactor));
QVXS_API(QvxStatus, qvxsNorm_Inf_32fc32f, (const Qvx32fc* pSrc, int len, Qvx32f* pNorm));
QVXS_API(QvxStatus, qvxsNorm_Inf_64fc64f, (const Qvx64fc* pSrc, int len, Qvx64f* pNorm));
QVXS_API(QvxStatus, qvxsNorm_L1_32f, (const Qvx32f* pSrc, int len, Qvx32f* pNorm));
QVXS_API(QvxStatus, qvxsNorm_L1_64f, (const Qvx64f* pSrc, int len, Qvx64f* pNorm));
QVXS_API(QvxStatus, qvxsNorm_L1_16s32f, (const Qvx16s* pSrc, int len, Qvx32f* pNorm));
QVXS_API(QvxStatus, qvxsNorm_L1_16s32s_Sfs, (const Qvx16s* pSrc, int len, Qvx32s* pNorm, int scaleFactor));
QVXS_API(QvxStatus, qvxsNorm_L1_64fc64f, (const Qvx64fc* pSrc, int len, Qvx64f* pNorm));
QVXS_API(QvxStatus, qvxsNorm_L1_32fc64f, (const Qvx32fc* pSrc, int len, Qvx64f* pNorm));
QVXS_API(QvxStatus, qvxsNorm_L2_32f, (const Qvx32f* pSrc, int len, Qvx32f* pNorm));
QVXS_API(QvxStatus, qvxsNorm_L2_64f, (const Qvx64f* pSrc, int len, Qvx64f* pNorm));
QVXS_API(QvxStatus, qvxsNorm_L2_16s32f, (const Qvx16s* pSrc, int len, Qvx32f* pNorm));
QVXS_API(QvxStatus, qvxsNorm_L2_16s32s_Sfs, (const Qvx16s* pSrc, int len, Qvx32s* pNorm, int scaleFactor));
QVXS_API(QvxStatus, qvxsNorm_L2_64fc64f, (const Qvx64fc* pSrc, int len, Qvx64f* pNorm));
QVXS_API(QvxStatus, qvxsNorm_L2_32fc64f, (const Qvx32fc* pSrc, int len, Qvx64f* pNorm));
QVXS_API(QvxStatus, qvxsNorm_L1_16s64s_Sfs, (const Qvx16s* pSrc, int len, Qvx64s* pNorm, int scaleFactor));
QVXS_API(QvxStatus, qvxsNorm_L2Sqr_16s64s_Sfs, (const Qvx16s* pSrc, int len, Qvx64s* pNorm, int scaleFactor));

/** *pNorm = the norm of src1 - src2, as qvxsNorm: the differences of integers are exact, those of floats are formed in the type
 *  of the sum, and of 32fc in 32-bit floats for qvxsNormDiff_Inf. A difference that is a NaN does not count there, either.
 *  pSrc1, pSrc2: len elements each, any alignment; they may overlap. */
QVXS_API(QvxStatus, qvxsNormDiff_Inf_32f, (const Qvx32f* pSrc1, const Qvx32f* pSrc2, int len, Qvx32f* pNorm));
QVXS_API(QvxStatus, qvxsNormDiff_Inf_64f, (const Qvx64f* pSrc1, const Qvx64f* pSrc2, int len, Qvx64f* pNorm));
QVXS_API(QvxStatus, qvxsNormDiff_Inf_16s32f, (const Qvx16s* pSrc1, const Qvx16s* pSrc2, int len, Qvx32f* pNorm));
QVXS_API(QvxStatus, qvxsNormDiff_Inf_16s32s_Sfs, (const Qvx16s* pSrc1, const Qvx16s* pSrc2, int len, Qvx32s* pNorm, int scaleFactor));
QVXS_API(QvxStatus, qvxsNormDiff_Inf_32fc32f, (const Qvx32fc* pSrc1, const Qvx32fc* pSrc2, int len, Qvx32f* pNorm));
QVXS_API(QvxStatus, qvxsNormDiff_Inf_64fc64f, (const Qvx64fc* pSrc1, const Qvx64fc* pSrc2, int len, Qvx64f* pNorm));
QVXS_API(QvxStatus, qvxsNormDiff_L1_32f, (const Qvx32f* pSrc1, const Qvx32f* pSrc2, int len, Qvx32f* pNorm));
QVXS_API(QvxStatus, qvxsNormDiff_L1_64f, (const Qvx64f* pSrc1, const Qvx64f* pSrc2, int len, Qvx64f* pNorm));
QVXS_API(QvxStatus, qvxsNormDiff_L1_16s32f, (const Qvx16s* pSrc1, const Qvx16s* pSrc2, int len, Qvx32f* pNorm));
QVXS_API(QvxStatus, qvxsNormDiff_L1_16s32s_Sfs, (const Qvx16s* pSrc1, const Qvx16s* pSrc2, int len, Qvx32s* pNorm, int scaleFactor));
QVXS_API(QvxStatus, qvxsNormDiff_L1_64fc64f, (const Qvx64fc* pSrc1, const Qvx64fc* pSrc2, int len, Qvx64f* pNorm));
QVXS_API(QvxStatus, qvxsNormDiff_L1_32fc64f, (const Qvx32fc* pSrc1, const Qvx32fc* pSrc2, int len, Qvx64f* pNorm));
QVXS_API(QvxStatus, qvxsNormDiff_L2_32f, (const Qvx32f* pSrc1, const Qvx32f* pSrc2, int len, Qvx32f* pNorm));
QVXS_API(QvxStatus, qvxsNormDiff_L2_64f, (const Qvx64f* pSrc1, const Qvx64f* pSrc2, int len, Qvx64f* pNorm));
QVXS_API(QvxStatus, qvxsNormDiff_L2_16s32f, (const Qvx16s* pSrc1, const Qvx16s* pSrc2, int len, Qvx32f* pNorm));
QVXS_API(QvxStatus, qvxsNormDiff_L2_16s32s_Sfs, (const Qvx16s* pSrc1, const Qvx16s* pSrc2, int len, Qvx32s* pNorm, int scaleFactor));
QVXS_API(QvxStatus, qvxsNormDiff_L2_64fc64f, (const Qvx64fc* pSrc1, const Qvx64fc* pSrc2, int len, Qvx64f* pNorm));
QVXS_API(QvxStatus, qvxsNormDiff_L2_32fc64f, (const Qvx32fc* pSrc1, const Qvx32fc* pSrc2, int len, Qvx64f* pNorm));
QVXS_API(QvxStatus, qvxsNormDiff_L1_16s64s_Sfs, (const Qvx16s* pSrc1, const Qvx16s* pSrc2, int len, Qvx64s* pNorm, int scaleFactor));
QVXS_API(QvxStatus, qvxsNormDiff_L2Sqr_16s64s_Sfs, (const Qvx16s* pSrc1, const Qvx16s* pSrc2, int len, Qvx64s* pNorm, int scaleFactor));

/** *pDp = src1[0] * src2[0] + ... + src1[len - 1] * src2[len - 1]; of complex elements without conjugation.
 *  Floats: products and sums in the type of the result; the order of the additions is not that of the elements, and the real
 *  and the imaginary part are each a sum over the first and one over the second products of all elements. 32-bit sums come to
 *  64-bit ones after some hundred elements. The error is at most 3.5e-5 (results of 32 bits) or 1e-11 (of 64) of the sum of the
 *  products' magnitudes. What the sources' infinities and NaNs give is what those sums give: a complex product with an infinity
 *  may be a NaN.
 *  Integers: the sum is exact at any length. 64s and 64sc: as it is; 32f and 32fc: rounded once. Scaled results: times
 *  2^-scaleFactor, rounded to nearest with ties to even, saturated; any scaleFactor is allowed, but in qvxsDotProd_16s_Sfs one
 *  below -14 counts as -14, and where a source has 32 bits one above 93 counts as 93.
 *  pSrc1, pSrc2: len elements each, any alignment; they may overlap.
 *  Returns qvxStatOk; qvxStatNullPtr; qvxStatBadSize (len < 1). */
QVXS_API(QvxStatus, qvxsDotProd_32f, (const Qvx32f* pSrc1, const Qvx32f* pSrc2, int len, Qvx32f* pDp));
QVXS_API(QvxStatus, qvxsDotProd_64f, (const Qvx64f* pSrc1, const Qvx64f* pSrc2, int len, Qvx64f* pDp));
QVXS_API(QvxStatus, qvxsDotProd_32fc, (const Qvx32fc* pSrc1, const Qvx32fc* pSrc2, int len, Qvx32fc* pDp));
QVXS_API(QvxStatus, qvxsDotProd_64fc, (const Qvx64fc* pSrc1, const Qvx64fc* pSrc2, int len, Qvx64fc* pDp));
QVXS_API(QvxStatus, qvxsDotProd_32f32fc, (const Qvx32f* pSrc1, const Qvx32fc* pSrc2, int len, Qvx32fc* pDp));
QVXS_API(QvxStatus, qvxsDotProd_64f64fc, (const Qvx64f* pSrc1, const Qvx64fc* pSrc2, int len, Qvx64fc* pDp));
QVXS_API(QvxStatus, qvxsDotProd_32f64f, (const Qvx32f* pSrc1, const Qvx32f* pSrc2, int len, Qvx64f* pDp));
QVXS_API(QvxStatus, qvxsDotProd_32fc64fc, (const Qvx32fc* pSrc1, const Qvx32fc* pSrc2, int len, Qvx64fc* pDp));
QVXS_API(QvxStatus, qvxsDotProd_32f32fc64fc, (const Qvx32f* pSrc1, const Qvx32fc* pSrc2, int len, Qvx64fc* pDp));
QVXS_API(QvxStatus, qvxsDotProd_16s32f, (const Qvx16s* pSrc1, const Qvx16s* pSrc2, int len, Qvx32f* pDp));
QVXS_API(QvxStatus, qvxsDotProd_16sc32fc, (const Qvx16sc* pSrc1, const Qvx16sc* pSrc2, int len, Qvx32fc* pDp));
QVXS_API(QvxStatus, qvxsDotProd_16s16sc32fc, (const Qvx16s* pSrc1, const Qvx16sc* pSrc2, int len, Qvx32fc* pDp));
QVXS_API(QvxStatus, qvxsDotProd_16s64s, (const Qvx16s* pSrc1, const Qvx16s* pSrc2, int len, Qvx64s* pDp));
QVXS_API(QvxStatus, qvxsDotProd_16sc64sc, (const Qvx16sc* pSrc1, const Qvx16sc* pSrc2, int len, Qvx64sc* pDp));
QVXS_API(QvxStatus, qvxsDotProd_16s16sc64sc, (const Qvx16s* pSrc1, const Qvx16sc* pSrc2, int len, Qvx64sc* pDp));
QVXS_API(QvxStatus, qvxsDotProd_16s_Sfs, (const Qvx16s* pSrc1, const Qvx16s* pSrc2, int len, Qvx16s* pDp, int scaleFactor));
QVXS_API(QvxStatus, qvxsDotProd_16sc_Sfs, (const Qvx16sc* pSrc1, const Qvx16sc* pSrc2, int len, Qvx16sc* pDp, int scaleFactor));
QVXS_API(QvxStatus, qvxsDotProd_16s16sc_Sfs, (const Qvx16s* pSrc1, const Qvx16sc* pSrc2, int len, Qvx16sc* pDp, int scaleFactor));
QVXS_API(QvxStatus, qvxsDotProd_16s32s_Sfs, (const Qvx16s* pSrc1, const Qvx16s* pSrc2, int len, Qvx32s* pDp, int scaleFactor));
QVXS_API(QvxStatus, qvxsDotProd_16sc32sc_Sfs, (const Qvx16sc* pSrc1, const Qvx16sc* pSrc2, int len, Qvx32sc* pDp, int scaleFactor));
QVXS_API(QvxStatus, qvxsDotProd_16s16sc32sc_Sfs, (const Qvx16s* pSrc1, const Qvx16sc* pSrc2, int len, Qvx32sc* pDp, int scaleFactor));
QVXS_API(QvxStatus, qvxsDotProd_32s_Sfs, (const Qvx32s* pSrc1, const Qvx32s* pSrc2, int len, Qvx32s* pDp, int scaleFactor));
QVXS_API(QvxStatus, qvxsDotProd_32sc_Sfs, (const Qvx32sc* pSrc1, const Qvx32sc* pSrc2, int len, Qvx32sc* pDp, int scaleFactor));
QVXS_API(QvxStatus, qvxsDotProd_32s32sc_Sfs, (const Qvx32s* pSrc1, const Qvx32sc* pSrc2, int len, Qvx32sc* pDp, int scaleFactor));
QVXS_API(QvxStatus, qvxsDotProd_16s32s32s_Sfs, (const Qvx16s* pSrc1, const Qvx32s* pSrc2, int len, Qvx32s* pDp, int scaleFactor));

#ifdef __cplusplus
}
#endif

#endif
