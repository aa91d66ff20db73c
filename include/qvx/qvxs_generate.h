/* Generators: noise, tones, triangle waves, ramps and test chirps. */
#ifndef QVX_QVXS_GENERATE_H
#define QVX_QVXS_GENERATE_H

#include <qvx/qvxdefs.h>

#ifdef __cplusplus
extern "C" {
#endif

/* ---- noise
 *
 * One source of 32-bit numbers feeds all of it, the sum of a subtract-with-borrow generator and a congruential one, so that a seed s
 * stands for one sequence, the same in every release and variant:
 *
 *     cong = 1131199209; lag1 = s; lag2 = lag1 * 69069 + 1013904243; lag3 = lag2 * 69069 + 1013904243; borrow = -1
 *     step: t = lag2 - lag3 + borrow, taken as signed; borrow = t < 0 ? -1 : 0; if t < 0: t = t - 18
 *           lag3 = lag2; lag2 = lag1; lag1 = t; cong = cong * 69069 + 1013904243; r = t + cong, taken as signed
 *
 * all modulo 2^32. A record continues its sequence over calls of any length and is written by one thread at a time. The _Direct_
 * forms start from *pSeed with each call and leave the last lag1 there: calls form a chain, but not the sequence of a longer call. */
typedef struct QvxsRandUniformState_8u QvxsRandUniformState_8u;
typedef struct QvxsRandUniformState_16s QvxsRandUniformState_16s;
typedef struct QvxsRandUniformState_32f QvxsRandUniformState_32f;
typedef struct QvxsRandGaussState_8u QvxsRandGaussState_8u;
typedef struct QvxsRandGaussState_16s QvxsRandGaussState_16s;
typedef struct QvxsRandGaussState_32f QvxsRandGaussState_32f;

/** *pSize = the bytes of a record for Qvx16s, 56.
 *  Returns qvxStatOk; qvxStatNullPtr. */
QVXS_API(QvxStatus, qvxsRandUniformGetSize_16s, (int* pSize));

/** Makes a record. Init: in the caller's memory at pState, of any alignment. InitAlloc: in memory of its own, to be given back by Free.
 *  Numbers between low and high; high below low turns the mapping round.
 *  Returns qvxStatOk; qvxStatNullPtr; qvxStatNoMem (InitAlloc). */
QVXS_API(QvxStatus, qvxsRandUniformInit_16s, (QvxsRandUniformState_16s* pState, Qvx16s low, Qvx16s high, Qvx32u seed));
QVXS_API(QvxStatus, qvxsRandUniformInitAlloc_8u, (QvxsRandUniformState_8u** ppState, Qvx8u low, Qvx8u high, Qvx32u seed));
QVXS_API(QvxStatus, qvxsRandUniformInitAlloc_16s, (QvxsRandUniformState_16s** ppState, Qvx16s low, Qvx16s high, Qvx32u seed));
QVXS_API(QvxStatus, qvxsRandUniformInitAlloc_32f, (QvxsRandUniformState_32f** ppState, Qvx32f low, Qvx32f high, Qvx32u seed));

/** Gives a record of InitAlloc back; one in the caller's memory stays as it is.
 *  Returns qvxStatOk; qvxStatNullPtr; qvxStatContextMismatch. */
QVXS_API(QvxStatus, qvxsRandUniformFree_8u, (QvxsRandUniformState_8u* pState));
QVXS_API(QvxStatus, qvxsRandUniformFree_16s, (QvxsRandUniformState_16s* pState));
QVXS_API(QvxStatus, qvxsRandUniformFree_32f, (QvxsRandUniformState_32f* pState));

/** dst[n] = r * scale + mid in doubles, two roundings, scale = (high - low) * 2.3283064365387e-10, mid = (low + high) / 2. The constant
 *  is that decimal number, a hair above 2^-32. Integers are rounded to nearest, ties to even; floats are rounded once more.
 *  Each value is the same to the bit in all variants.
 *  Returns qvxStatOk; qvxStatNullPtr; qvxStatBadSize (len < 1); qvxStatContextMismatch (pState). */
QVXS_API(QvxStatus, qvxsRandUniform_8u, (Qvx8u* pDst, int len, QvxsRandUniformState_8u* pState));
QVXS_API(QvxStatus, qvxsRandUniform_16s, (Qvx16s* pDst, int len, QvxsRandUniformState_16s* pState));
QVXS_API(QvxStatus, qvxsRandUniform_32f, (Qvx32f* pDst, int len, QvxsRandUniformState_32f* pState));
QVXS_API(QvxStatus, qvxsRandUniform_Direct_16s, (Qvx16s* pDst, int len, Qvx16s low, Qvx16s high, Qvx32u* pSeed));
QVXS_API(QvxStatus, qvxsRandUniform_Direct_32f, (Qvx32f* pDst, int len, Qvx32f low, Qvx32f high, Qvx32u* pSeed));
QVXS_API(QvxStatus, qvxsRandUniform_Direct_64f, (Qvx64f* pDst, int len, Qvx64f low, Qvx64f high, Qvx32u* pSeed));

/** *pSize = the bytes of a record for Qvx16s, 64.
 *  Returns qvxStatOk; qvxStatNullPtr. */
QVXS_API(QvxStatus, qvxsRandGaussGetSize_16s, (int* pSize));

/** Makes a record. Init: in the caller's memory at pState, of any alignment. InitAlloc: in memory of its own, to be given back by Free.
 *  Any mean and stdDev are taken as they are.
 *  Returns qvxStatOk; qvxStatNullPtr; qvxStatNoMem (InitAlloc). */
QVXS_API(QvxStatus, qvxsRandGaussInit_16s, (QvxsRandGaussState_16s* pState, Qvx16s mean, Qvx16s stdDev, Qvx32u seed));
QVXS_API(QvxStatus, qvxsRandGaussInitAlloc_8u, (QvxsRandGaussState_8u** ppState, Qvx8u mean, Qvx8u stdDev, Qvx32u seed));
QVXS_API(QvxStatus, qvxsRandGaussInitAlloc_16s, (QvxsRandGaussState_16s** ppState, Qvx16s mean, Qvx16s stdDev, Qvx32u seed));
QVXS_API(QvxStatus, qvxsRandGaussInitAlloc_32f, (QvxsRandGaussState_32f** ppState, Qvx32f mean, Qvx32f stdDev, Qvx32u seed));

/** Gives a record of InitAlloc back; one in the caller's memory stays as it is.
 *  Returns qvxStatOk; qvxStatNullPtr; qvxStatContextMismatch. */
QVXS_API(QvxStatus, qvxsRandGaussFree_8u, (QvxsRandGaussState_8u* pState));
QVXS_API(QvxStatus, qvxsRandGaussFree_16s, (QvxsRandGaussState_16s* pState));
QVXS_API(QvxStatus, qvxsRandGaussFree_32f, (QvxsRandGaussState_32f* pState));

/** Normal deviates by the polar method: of two steps u = r1 * c and v = r2 * c, c = 4.656612873077e-10, with q = u^2 + v^2 (again
 *  unless 0 < q < 1), factor = sqrt(-2 ln(q) / q); then first stdDev * factor * v + mean, second stdDev * factor * u + mean, in doubles.
 *  Integers are rounded to nearest, ties to even, and limited to their range; of floats the product is rounded and the mean added in
 *  floats. A record keeps the second of a pair for the next call; a _Direct_ call of odd length drops it. The logarithm is good to
 *  1.1 ULP, so values of two variants are within a few units of their last place, integers within one.
 *  Returns qvxStatOk; qvxStatNullPtr; qvxStatBadSize (len < 1); qvxStatContextMismatch (pState). */
QVXS_API(QvxStatus, qvxsRandGauss_8u, (Qvx8u* pDst, int len, QvxsRandGaussState_8u* pState));
QVXS_API(QvxStatus, qvxsRandGauss_16s, (Qvx16s* pDst, int len, QvxsRandGaussState_16s* pState));
QVXS_API(QvxStatus, qvxsRandGauss_32f, (Qvx32f* pDst, int len, QvxsRandGaussState_32f* pState));
QVXS_API(QvxStatus, qvxsRandGauss_Direct_16s, (Qvx16s* pDst, int len, Qvx16s mean, Qvx16s stdDev, Qvx32u* pSeed));
QVXS_API(QvxStatus, qvxsRandGauss_Direct_32f, (Qvx32f* pDst, int len, Qvx32f mean, Qvx32f stdDev, Qvx32u* pSeed));
QVXS_API(QvxStatus, qvxsRandGauss_Direct_64f, (Qvx64f* pDst, int len, Qvx64f mean, Qvx64f stdDev, Qvx32u* pSeed));

/* ---- waves
 *
 * rFreq counts periods a sample. Phases are in radians. A _Direct_ call leaves at *pPhase where the next one continues:
 * p = *pPhase + len * 2 pi rFreq, less 2 pi * floor(p / (2 pi)), in doubles, rounded to the phase's type; 0 if that is not in
 * [0, 2 pi). Q15 arguments count 2^-15. */
typedef struct QvxsToneState QvxsToneState;
typedef struct QvxsTriangleState QvxsTriangleState;

/** dst[n] = magn * cos(2 pi rFreq n + phase); the imaginary part of complex elements is magn * sin(...).
 *  magn above 0; rFreq in [0, 0.5); *pPhase in [0, 2 pi); any hint. Integers are rounded, halves away from zero, and saturated. A
 *  complex tone of a negative frequency is the conjugate (qvxsConj) of that with -rFreq and the phase 2 pi - phase.
 *  hint 1 promises the error of a recursion that starts anew every 1024 (64f, 64fc: 2048) samples; there is no faster way with more,
 *  so other hints give the same. The error is below magn * 2^-21.5 (64f, 64fc: 2^-45) at any length, and that of rFreq's and phase's
 *  own representation; phase is rounded at a cut.
 *  Returns qvxStatOk; qvxStatNullPtr (pPhase); qvxStatBadToneMagn; qvxStatBadToneFreq; qvxStatBadTonePhase; qvxStatNullPtr (pDst);
 *  qvxStatBadSize (len < 1). */
QVXS_API(QvxStatus, qvxsTone_Direct_64f, (Qvx64f* pDst, int len, Qvx64f magn, Qvx64f rFreq, Qvx64f* pPhase, int hint));
QVXS_API(QvxStatus, qvxsTone_Direct_32f, (Qvx32f* pDst, int len, Qvx32f magn, Qvx32f rFreq, Qvx32f* pPhase, int hint));
QVXS_API(QvxStatus, qvxsTone_Direct_16s, (Qvx16s* pDst, int len, Qvx16s magn, Qvx32f rFreq, Qvx32f* pPhase, int hint));
QVXS_API(QvxStatus, qvxsTone_Direct_64fc, (Qvx64fc* pDst, int len, Qvx64f magn, Qvx64f rFreq, Qvx64f* pPhase, int hint));
QVXS_API(QvxStatus, qvxsTone_Direct_32fc, (Qvx32fc* pDst, int len, Qvx32f magn, Qvx32f rFreq, Qvx32f* pPhase, int hint));
QVXS_API(QvxStatus, qvxsTone_Direct_16sc, (Qvx16sc* pDst, int len, Qvx16s magn, Qvx32f rFreq, Qvx32f* pPhase, int hint));

/** *pSize = the bytes of a record, 48.
 *  Returns qvxStatOk; qvxStatNullPtr. */
QVXS_API(QvxStatus, qvxsToneGetStateSizeQ15_16s, (int* pSize));

/** Makes a record. Init: in the caller's memory at pState, of any alignment; InitAlloc: in memory of its own, to be given back by Free.
 *  magn above 0, rFreqQ15 in 0..16383, phaseQ15 in 0..205886.
 *  Returns qvxStatOk; qvxStatNullPtr; qvxStatBadToneMagn; qvxStatBadToneFreq; qvxStatBadTonePhase; qvxStatNoMem (InitAlloc). */
QVXS_API(QvxStatus, qvxsToneInitQ15_16s, (QvxsToneState* pState, Qvx16s magn, Qvx16s rFreqQ15, Qvx32s phaseQ15));
QVXS_API(QvxStatus, qvxsToneInitAllocQ15_16s, (QvxsToneState** ppState, Qvx16s magn, Qvx16s rFreqQ15, Qvx32s phaseQ15));

/** The next len samples of a record's tone: however a stream is cut, its samples are the same. Each is good to 2^-50 of magn before
 *  it is rounded, halves away from zero, after any number of samples.
 *  Returns qvxStatOk; qvxStatNullPtr; qvxStatBadSize (len < 1); qvxStatContextMismatch. */
QVXS_API(QvxStatus, qvxsToneQ15_16s, (Qvx16s* pDst, int len, QvxsToneState* pState));

/** The first len samples of such a tone, without a record.
 *  Returns qvxStatOk; qvxStatNullPtr; qvxStatBadSize (len < 1); qvxStatBadToneMagn; qvxStatBadToneFreq; qvxStatBadTonePhase. */
QVXS_API(QvxStatus, qvxsToneQ15_Direct_16s, (Qvx16s* pDst, int len, Qvx16s magn, Qvx16s rFreqQ15, Qvx32s phaseQ15));

/** Gives a record of InitAlloc back; one in the caller's memory stays as it is.
 *  Returns qvxStatOk; qvxStatNullPtr; qvxStatContextMismatch. */
QVXS_API(QvxStatus, qvxsToneFree, (QvxsToneState* pState));

/** A triangle wave: from magn at phase 0 straight down to -magn at phase pi + asym, straight up to magn at 2 pi. The imaginary part of
 *  complex elements is the same wave a quarter of a period later. magn above 0; rFreq in [0, 0.5); asym in [-pi, pi); *pPhase in
 *  [0, 2 pi). Each sample comes from its own phase, so that nothing accumulates, and lies within magn. The error is below
 *  magn * (2^-23 + 2^-21 s), s = pi / (pi - |asym|), by which the steeper slope exceeds that of a symmetric wave (64f, 64fc:
 *  magn * (2^-50 + 2^-49 s + n 2^-62 s), since rFreq counts to 2^-64). Integers are rounded from doubles, halves away from zero. asym = -pi leaves the rise alone, without a fall.
 *  Returns qvxStatOk; qvxStatNullPtr (pPhase); qvxStatBadTriangleMagn; qvxStatBadTriangleFreq; qvxStatBadTriangleAsym;
 *  qvxStatBadTrianglePhase; qvxStatNullPtr (pDst); qvxStatBadSize (len < 1). */
QVXS_API(QvxStatus, qvxsTriangle_Direct_64f, (Qvx64f* pDst, int len, Qvx64f magn, Qvx64f rFreq, Qvx64f asym, Qvx64f* pPhase));
QVXS_API(QvxStatus, qvxsTriangle_Direct_32f, (Qvx32f* pDst, int len, Qvx32f magn, Qvx32f rFreq, Qvx32f asym, Qvx32f* pPhase));
QVXS_API(QvxStatus, qvxsTriangle_Direct_16s, (Qvx16s* pDst, int len, Qvx16s magn, Qvx32f rFreq, Qvx32f asym, Qvx32f* pPhase));
QVXS_API(QvxStatus, qvxsTriangle_Direct_64fc, (Qvx64fc* pDst, int len, Qvx64f magn, Qvx64f rFreq, Qvx64f asym, Qvx64f* pPhase));
QVXS_API(QvxStatus, qvxsTriangle_Direct_32fc, (Qvx32fc* pDst, int len, Qvx32f magn, Qvx32f rFreq, Qvx32f asym, Qvx32f* pPhase));
QVXS_API(QvxStatus, qvxsTriangle_Direct_16sc, (Qvx16sc* pDst, int len, Qvx16s magn, Qvx32f rFreq, Qvx32f asym, Qvx32f* pPhase));

/** *pSize = the bytes of a record, 136.
 *  Returns qvxStatOk; qvxStatNullPtr. */
QVXS_API(QvxStatus, qvxsTriangleGetStateSizeQ15_16s, (int* pSize));

/** Makes a record. Init: in the caller's memory at pState, of any alignment; InitAlloc: in memory of its own, to be given back by Free.
 *  magn above 0, rFreqQ15 in 0..16383, phaseQ15 in 0..205886, asymQ15 in -102943..102943.
 *  Returns qvxStatOk; qvxStatNullPtr; qvxStatBadTriangleMagn; qvxStatBadTriangleFreq; qvxStatBadTrianglePhase;
 *  qvxStatBadTriangleAsym; qvxStatNoMem (InitAlloc). */
QVXS_API(QvxStatus, qvxsTriangleInitQ15_16s, (QvxsTriangleState* pState, Qvx16s magn, Qvx16s rFreqQ15, Qvx32s asymQ15, Qvx32s phaseQ15));
QVXS_API(QvxStatus, qvxsTriangleInitAllocQ15_16s, (QvxsTriangleState** ppState, Qvx16s magn, Qvx16s rFreqQ15, Qvx32s asymQ15, Qvx32s phaseQ15));

/** The next len samples of a record's wave: however a stream is cut, its samples are the same.
 *  Returns qvxStatOk; qvxStatNullPtr; qvxStatBadSize (len < 1); qvxStatContextMismatch. */
QVXS_API(QvxStatus, qvxsTriangleQ15_16s, (Qvx16s* pDst, int len, QvxsTriangleState* pState));

/** The first len samples of such a wave, without a record.
 *  Returns qvxStatOk; qvxStatNullPtr; qvxStatBadSize (len < 1); qvxStatBadTriangleMagn; qvxStatBadTriangleFreq;
 *  qvxStatBadTrianglePhase; qvxStatBadTriangleAsym. */
QVXS_API(QvxStatus, qvxsTriangleQ15_Direct_16s, (Qvx16s* pDst, int len, Qvx16s magn, Qvx16s rFreqQ15, Qvx32s asymQ15, Qvx32s phaseQ15));

/** Gives a record of InitAlloc back; one in the caller's memory stays as it is.
 *  Returns qvxStatOk; qvxStatNullPtr; qvxStatContextMismatch. */
QVXS_API(QvxStatus, qvxsTriangleFree, (QvxsTriangleState* pState));

/* ---- lines and chirps */

/** dst[n] = offset + slope * n: a product and a sum in doubles, then one rounding, of integers with halves away from zero; saturated.
 *  A NaN becomes the largest integer. The same to the bit in all variants.
 *  Returns qvxStatOk; qvxStatNullPtr; qvxStatBadSize (len < 1). */
QVXS_API(QvxStatus, qvxsVectorRamp_8u, (Qvx8u* pDst, int len, Qvx32f offset, Qvx32f slope));
QVXS_API(QvxStatus, qvxsVectorRamp_8s, (Qvx8s* pDst, int len, Qvx32f offset, Qvx32f slope));
QVXS_API(QvxStatus, qvxsVectorRamp_16u, (Qvx16u* pDst, int len, Qvx32f offset, Qvx32f slope));
QVXS_API(QvxStatus, qvxsVectorRamp_16s, (Qvx16s* pDst, int len, Qvx32f offset, Qvx32f slope));
QVXS_API(QvxStatus, qvxsVectorRamp_32u, (Qvx32u* pDst, int len, Qvx32f offset, Qvx32f slope));
QVXS_API(QvxStatus, qvxsVectorRamp_32s, (Qvx32s* pDst, int len, Qvx32f offset, Qvx32f slope));
QVXS_API(QvxStatus, qvxsVectorRamp_32f, (Qvx32f* pDst, int len, Qvx32f offset, Qvx32f slope));
QVXS_API(QvxStatus, qvxsVectorRamp_64f, (Qvx64f* pDst, int len, Qvx64f offset, Qvx64f slope));

/** The same as Ramp, value for value.
 *  Returns qvxStatOk; qvxStatNullPtr; qvxStatBadSize (len < 1). */
QVXS_API(QvxStatus, qvxsVectorSlope_8u, (Qvx8u* pDst, int len, Qvx32f offset, Qvx32f slope));
QVXS_API(QvxStatus, qvxsVectorSlope_8s, (Qvx8s* pDst, int len, Qvx32f offset, Qvx32f slope));
QVXS_API(QvxStatus, qvxsVectorSlope_16u, (Qvx16u* pDst, int len, Qvx32f offset, Qvx32f slope));
QVXS_API(QvxStatus, qvxsVectorSlope_16s, (Qvx16s* pDst, int len, Qvx32f offset, Qvx32f slope));
QVXS_API(QvxStatus, qvxsVectorSlope_32u, (Qvx32u* pDst, int len, Qvx32f offset, Qvx32f slope));
QVXS_API(QvxStatus, qvxsVectorSlope_32s, (Qvx32s* pDst, int len, Qvx32f offset, Qvx32f slope));
QVXS_API(QvxStatus, qvxsVectorSlope_32f, (Qvx32f* pDst, int len, Qvx32f offset, Qvx32f slope));
QVXS_API(QvxStatus, qvxsVectorSlope_64f, (Qvx64f* pDst, int len, Qvx64f offset, Qvx64f slope));

/** A chirp that sweeps from 0 to half the sampling rate: dst[n] = magn * sin(pi/2 n^2 / len), integers with halves away from zero.
 *  Unsigned types: magn / 2 in place of magn, and the rounded values shifted so that the smallest is 0, saturated. A vector of one
 *  element becomes 0. The angle is exact up to 2^26 elements; integers are within one unit, floats within 2 ULP (64f: 2^-50 of magn).
 *  Returns qvxStatOk; qvxStatNullPtr; qvxStatBadSize (len < 1); qvxStatBadJaehneMagn (signed types and floats: magn < 0, or not a
 *  number). */
QVXS_API(QvxStatus, qvxsVectorJaehne_8u, (Qvx8u* pDst, int len, Qvx8u magn));
QVXS_API(QvxStatus, qvxsVectorJaehne_8s, (Qvx8s* pDst, int len, Qvx8s magn));
QVXS_API(QvxStatus, qvxsVectorJaehne_16u, (Qvx16u* pDst, int len, Qvx16u magn));
QVXS_API(QvxStatus, qvxsVectorJaehne_16s, (Qvx16s* pDst, int len, Qvx16s magn));
QVXS_API(QvxStatus, qvxsVectorJaehne_32u, (Qvx32u* pDst, int len, Qvx32u magn));
QVXS_API(QvxStatus, qvxsVectorJaehne_32s, (Qvx32s* pDst, int len, Qvx32s magn));
QVXS_API(QvxStatus, qvxsVectorJaehne_32f, (Qvx32f* pDst, int len, Qvx32f magn));
QVXS_API(QvxStatus, qvxsVectorJaehne_64f, (Qvx64f* pDst, int len, Qvx64f magn));

#ifdef __cplusplus
}
#endif

#endif
