/* Helpers of speech, radio and robust estimation: pre-emphasis, FM demodulation, running averages, zero crossings, the Cauchy
 * function, normalisation. */
#ifndef QVX_QVXS_HELPERS_H
#define QVX_QVXS_HELPERS_H

#include <qvx/qvxdefs.h>

#ifdef __cplusplus
extern "C" {
#endif

/** In place: y[0] = x[0], y[n] = x[n] - val * x[n - 1]. Nothing is carried from one call to the next.
 *  Product and difference are rounded in Qvx32f; 16s: the result to nearest, ties to even, saturated, a NaN to 32767.
 *  pSrcDst: len elements, any alignment.
 *  Returns qvxStatOk; qvxStatNullPtr; qvxStatBadSize (len < 1). */
QVXS_API(QvxStatus, qvxsPreemphasize_32f, (Qvx32f* pSrcDst, int len, Qvx32f val));
QVXS_API(QvxStatus, qvxsPreemphasize_16s, (Qvx16s* pSrcDst, int len, Qvx32f val));

/** FM demodulation: dst[n] = the angle from the point n - 1 to the point n, in units of pi / 32768: 16384 is a quarter turn, 32767 the
 *  half, -32768 the half in the other direction. With z = src[n] * conj(src[n - 1]), both parts in 32 bits, wrapped, dst is within
 *  one unit of the angle of z; where z is 0 it is 0.
 *  pSrcRe, pSrcIm, pDst: len elements each, any alignment; pDst may be one of the sources.
 *  *pDlyPoint: the point before the first; afterwards the last one, so that a stream may be cut anywhere.
 *  Returns qvxStatOk; qvxStatNullPtr; qvxStatBadSize (len < 1). */
QVXS_API(QvxStatus, qvxsDemodulateFM_CToR_16s, (const Qvx16s* pSrcRe, const Qvx16s* pSrcIm, Qvx16s* pDst, int len, Qvx16sc* pDlyPoint));

/** A running average y = *pSrcDst over the samples in turn: y = (alpha * y + (32768 - alpha) * v) / 32768, exact, rounded to nearest with
 *  ties to even, saturated. Linear: v = x >> srcShiftRight; Power: v = (x * x) >> srcShiftRight.
 *  pSrc: len elements, any alignment.
 *  srcShiftRight counts as the nearest of 0 to 15 (Linear), 0 to 31 (Power). alpha: any, in Q15. hint: of no effect.
 *  Returns qvxStatOk; qvxStatNullPtr; qvxStatBadSize (len < 1). */
QVXS_API(QvxStatus, qvxsUpdateLinear_16s32s_I, (const Qvx16s* pSrc, int len, Qvx32s* pSrcDst, int srcShiftRight, Qvx16s alpha, int hint));
QVXS_API(QvxStatus, qvxsUpdatePower_16s32s_I, (const Qvx16s* pSrc, int len, Qvx32s* pSrcDst, int srcShiftRight, Qvx16s alpha, int hint));

/** *pValZC = how often the sign changes between neighbours, the exact number rounded to a float:
 *    zcType 0   neighbours on different sides of zero: zeros count for nothing
 *           1   neighbours of different signs: either zero is positive
 *           2   half the sum of |sign(x[n]) - sign(x[n - 1])| with signs -1, 0 and 1: a passage through zero is one in two steps
 *  A NaN is on no side of zero (types 0 and 2) and has the sign of its sign bit (type 1).
 *  pSrc: len elements, any alignment.
 *  Returns qvxStatOk; qvxStatNullPtr; qvxStatBadSize (len < 1); qvxStatBadRange (another zcType). */
QVXS_API(QvxStatus, qvxsZeroCrossing_16s32f, (const Qvx16s* pSrc, int len, Qvx32f* pValZC, int zcType));
QVXS_API(QvxStatus, qvxsZeroCrossing_32f, (const Qvx32f* pSrc, int len, Qvx32f* pValZC, int zcType));

/** The Cauchy function of robust estimation, in place: y = ln(1 + (x / C)^2) / 2. Within 2 ULP of the true value for every finite x and
 *  C, also where (x / C)^2 has no float, and in any rounding mode: it is computed to nearest.
 *  pSrcDst: len elements, any alignment.
 *  Returns qvxStatOk; qvxStatNullPtr; qvxStatBadSize (len < 1); qvxStatBadParam (C not above 0). */
QVXS_API(QvxStatus, qvxsCauchy_32f_I, (Qvx32f* pSrcDst, int len, Qvx32f C));

/** Its derivative, in place: y = x / (C^2 + x^2), within 2 ULP. Otherwise as qvxsCauchy_32f_I. */
QVXS_API(QvxStatus, qvxsCauchyD_32f_I, (Qvx32f* pSrcDst, int len, Qvx32f C));

/** Both derivatives: y = x / (C^2 + x^2) in place, and pD2F[n] = (C^2 - x^2) / (C^2 + x^2)^2, each within 2 ULP.
 *  pSrcDst, pD2F: len elements each, any alignment. They may overlap in any way: the result is that of the elements one by one from 0
 *  on, each read, then written to pSrcDst, then to pD2F. Otherwise as qvxsCauchy_32f_I. */
QVXS_API(QvxStatus, qvxsCauchyDD2_32f_I, (Qvx32f* pSrcDst, Qvx32f* pD2F, int len, Qvx32f C));

/** dst = (src - vSub) / vDiv. Floats: the rounded difference times the rounded reciprocal of vDiv; divided where vDiv is so large that its
 *  reciprocal is no normal number. Integers: the exact difference divided by vDiv, both and the quotient rounded to Qvx32f, times
 *  2^-scaleFactor, rounded to nearest with ties to even, saturated. Of scaleFactor the magnitude modulo 128 counts, under its
 *  sign: 127 gives zeros, -127 is times 2^127.
 *  pSrc, pDst: len elements each, any alignment; pDst may be pSrc.
 *  Returns qvxStatOk; qvxStatNullPtr; qvxStatBadSize (len < 1); qvxStatDivByZero (|vDiv| below the smallest normal number, or a NaN;
 *  of integers 0). */
QVXS_API(QvxStatus, qvxsNormalize_32f, (const Qvx32f* pSrc, Qvx32f* pDst, int len, Qvx32f vSub, Qvx32f vDiv));
QVXS_API(QvxStatus, qvxsNormalize_64f, (const Qvx64f* pSrc, Qvx64f* pDst, int len, Qvx64f vSub, Qvx64f vDiv));
QVXS_API(QvxStatus, qvxsNormalize_32fc, (const Qvx32fc* pSrc, Qvx32fc* pDst, int len, Qvx32fc vSub, Qvx32f vDiv));
QVXS_API(QvxStatus, qvxsNormalize_64fc, (const Qvx64fc* pSrc, Qvx64fc* pDst, int len, Qvx64fc vSub, Qvx64f vDiv));
QVXS_API(QvxStatus, qvxsNormalize_16s_Sfs, (const Qvx16s* pSrc, Qvx16s* pDst, int len, Qvx16s vSub, int vDiv, int scaleFactor));
QVXS_API(QvxStatus, qvxsNormalize_16sc_Sfs, (const Qvx16sc* pSrc, Qvx16sc* pDst, int len, Qvx16sc vSub, int vDiv, int scaleFactor));

#ifdef __cplusplus
}
#endif

#endif
