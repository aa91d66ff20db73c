/* Adaptive FIR filters: taps that follow a reference by the least-mean-squares rule. */
#ifndef QVX_QVXS_LMS_H
#define QVX_QVXS_LMS_H

#include <qvx/qvxdefs.h>

#ifdef __cplusplus
extern "C" {
#endif

/* One step, with the sample x, the reference r and the step size mu:
 *   y = h[0] * x[n] + h[1] * x[n - 1] + ... + h[tapsLen - 1] * x[n - tapsLen + 1];
 *   e = (r - y) * 2 * mu;
 *   h[k] = h[k] + e * x[n - k], for all k.
 * Every output is that of the taps which the step before has left. Sums are in 32-bit floats, in an order that differs between
 * variants, and between one-sample forms, streams cut in one way and in another: by rounding. 32f_16s: taps and arithmetic are
 * 32f, samples are 16s; an output is y rounded to nearest with ties to even, saturated, and the error is that of y before it is
 * rounded.
 *
 * The delay line holds the last tapsLen samples around an index: the oldest is at the index, the newest before it, tapsLen
 * counting as 0. A record serves one call at a time and must not be copied. */
typedef struct QvxsFIRLMSState_32f QvxsFIRLMSState_32f;
typedef struct QvxsFIRLMSState32f_16s QvxsFIRLMSState32f_16s;

/** A record in a block of its own. pTaps: h[0] first; null for zeros. pDlyLine: tapsLen samples, the oldest at dlyLineIndex; null
 *  for zeros. An index outside 0 to tapsLen - 1 counts as 0.
 *  Returns qvxStatOk; qvxStatNullPtr; qvxStatBadSize (tapsLen < 1); qvxStatNoMem. */
QVXS_API(QvxStatus, qvxsFIRLMSInitAlloc_32f, (QvxsFIRLMSState_32f** ppState, const Qvx32f* pTaps, int tapsLen, const Qvx32f* pDlyLine, int dlyLineIndex));

/** len steps: pDst = the outputs for pSrc, while the taps follow pRef.
 *  pSrc, pRef, pDst: len samples, any alignment; pDst may be pSrc or pRef. Afterwards the delay line's index is 0.
 *  Returns qvxStatOk; qvxStatNullPtr; qvxStatBadSize (len < 1); qvxStatContextMismatch (not such a record). */
QVXS_API(QvxStatus, qvxsFIRLMS_32f, (const Qvx32f* pSrc, const Qvx32f* pRef, Qvx32f* pDst, int len, QvxsFIRLMSState_32f* pState, Qvx32f mu));

/** pOutTaps = the taps as they are now, h[0] first.
 *  Returns qvxStatOk; qvxStatNullPtr; qvxStatContextMismatch (not such a record). */
QVXS_API(QvxStatus, qvxsFIRLMSGetTaps_32f, (const QvxsFIRLMSState_32f* pState, Qvx32f* pOutTaps));

/** Reads or replaces the delay line and its index, as qvxsFIRLMSInitAlloc takes them.
 *  Returns qvxStatOk; qvxStatNullPtr; qvxStatContextMismatch (not such a record). */
QVXS_API(QvxStatus, qvxsFIRLMSGetDlyLine_32f, (const QvxsFIRLMSState_32f* pState, Qvx32f* pDlyLine, int* pDlyLineIndex));
QVXS_API(QvxStatus, qvxsFIRLMSSetDlyLine_32f, (QvxsFIRLMSState_32f* pState, const Qvx32f* pDlyLine, int dlyLineIndex));

/** Releases the record, whose identity is not tested; null is taken. Returns qvxStatOk. */
QVXS_API(QvxStatus, qvxsFIRLMSFree_32f, (QvxsFIRLMSState_32f* pState));

/* The same for 16-bit samples. */
QVXS_API(QvxStatus, qvxsFIRLMSInitAlloc32f_16s, (QvxsFIRLMSState32f_16s** ppState, const Qvx32f* pTaps, int tapsLen, const Qvx16s* pDlyLine, int dlyLineIndex));
QVXS_API(QvxStatus, qvxsFIRLMS32f_16s, (const Qvx16s* pSrc, const Qvx16s* pRef, Qvx16s* pDst, int len, QvxsFIRLMSState32f_16s* pState, Qvx32f mu));
QVXS_API(QvxStatus, qvxsFIRLMSGetTaps32f_16s, (const QvxsFIRLMSState32f_16s* pState, Qvx32f* pOutTaps));
QVXS_API(QvxStatus, qvxsFIRLMSGetDlyLine32f_16s, (const QvxsFIRLMSState32f_16s* pState, Qvx16s* pDlyLine, int* pDlyLineIndex));
QVXS_API(QvxStatus, qvxsFIRLMSSetDlyLine32f_16s, (QvxsFIRLMSState32f_16s* pState, const Qvx16s* pDlyLine, int dlyLineIndex));
QVXS_API(QvxStatus, qvxsFIRLMSFree32f_16s, (QvxsFIRLMSState32f_16s* pState));

/** One step without a record. pTaps: in stored order, h[tapsLen - 1], the tap of the oldest sample, first. pDlyLine: 2 * tapsLen
 *  samples, each of which is stored twice, tapsLen apart; zeros to begin with. *pDlyLineIndex: that of the oldest;
 *  the step writes the new sample there and moves it on.
 *  DirectQ15_16s: taps in units of 2^-15, muQ15 too. y = the exact sum times 2^-15, rounded to nearest with ties to even,
 *  saturated to 16 bits; e = r - y, saturated to 16 bits; a tap becomes tap + 2 * muQ15 * e * x * 2^-30, exact, rounded once to
 *  nearest with ties to even, saturated to 32 bits. The sum wraps at 64 bits.
 *  Returns qvxStatOk; qvxStatNullPtr; qvxStatBadSize (tapsLen < 1); qvxStatBadDlyIndex (an index outside 0 to tapsLen - 1). */
QVXS_API(QvxStatus, qvxsFIRLMSOne_Direct_32f, (Qvx32f src, Qvx32f ref, Qvx32f mu, Qvx32f* pDstVal, Qvx32f* pTaps, int tapsLen, Qvx32f* pDlyLine, int* pDlyLineIndex));
QVXS_API(QvxStatus, qvxsFIRLMSOne_Direct32f_16s, (Qvx16s src, Qvx16s ref, Qvx32f mu, Qvx16s* pDstVal, Qvx32f* pTaps, int tapsLen, Qvx16s* pDlyLine, int* pDlyLineIndex));
QVXS_API(QvxStatus, qvxsFIRLMSOne_DirectQ15_16s, (Qvx16s src, Qvx16s ref, int muQ15, Qvx16s* pDstVal, Qvx32s* pTaps, int tapsLen, Qvx16s* pDlyLine, int* pDlyLineIndex));

/* An adaptive filter that decimates, as in a fractionally spaced equaliser: tapsLen taps over the samples at the full rate,
 * downFactor samples for each output and step.
 *   y = the sum of h[k] * x[n - k] in 64 bits, which wrap, times 2^-scaleFactor, rounded to nearest with ties to even, saturated
 *       to 16 bits; err = reference - y, saturated to 16 bits;
 *   h[k] = h[k] + rint(2 * mu * err * x[n - k]), saturated to 32 bits; of complex numbers the conjugate of x. err * x is exact,
 *       what it is multiplied by is 2 * mu in a 64-bit float, rint rounds ties to even; a NaN counts as the least.
 * Delay lines are newest first here. All results are the same to the bit in all variants. */
typedef struct QvxsFIRLMSMRState32s_16s QvxsFIRLMSMRState32s_16s;
typedef struct QvxsFIRLMSMRState32sc_16sc QvxsFIRLMSMRState32sc_16sc;

/** *pSize = the bytes of a record, for a block of any alignment: 128 + 4 * (2 * P + 512) for 32s_16s, 128 + 8 * (2 * P + 512)
 *  for 32sc_16sc, P being tapsLen rounded up to a multiple of 16; modulo 2^32.
 *  Returns qvxStatOk; qvxStatNullPtr; qvxStatBadTapsLen (tapsLen < 1); qvxStatBadMRFactor (downFactor < 1). */
QVXS_API(QvxStatus, qvxsFIRLMSMRGetStateSize32s_16s, (int tapsLen, int downFactor, int* pSize));

/** Builds a record in pBuffer and stores its address in *ppState. pTaps: h[0] first; null for zeros. pDlyLine: tapsLen samples,
 *  newest first; null for zeros.
 *  Returns qvxStatOk; qvxStatNullPtr; qvxStatBadTapsLen (tapsLen < 1); qvxStatBadMRFactor (downFactor < 1). */
QVXS_API(QvxStatus, qvxsFIRLMSMRInit32s_16s, (QvxsFIRLMSMRState32s_16s** ppState, const Qvx32s* pTaps, int tapsLen, int downFactor, Qvx32f mu, const Qvx16s* pDlyLine, Qvx8u* pBuffer));

/** The same in a block of its own. Returns also qvxStatNoMem. */
QVXS_API(QvxStatus, qvxsFIRLMSMRInitAlloc32s_16s, (QvxsFIRLMSMRState32s_16s** ppState, const Qvx32s* pTaps, int tapsLen, int downFactor, Qvx32f mu, const Qvx16s* pDlyLine));

/** Releases the block of a record from InitAlloc; does nothing to one from Init.
 *  Returns qvxStatOk; qvxStatNullPtr; qvxStatContextMismatch (not such a record). */
QVXS_API(QvxStatus, qvxsFIRLMSMRFree32s_16s, (QvxsFIRLMSMRState32s_16s* pState));

/** Sets the step size; reads or replaces the taps, h[0] first.
 *  Returns as qvxsFIRLMSMRFree. */
QVXS_API(QvxStatus, qvxsFIRLMSMRSetMu32s_16s, (QvxsFIRLMSMRState32s_16s* pState, Qvx32f mu));
QVXS_API(QvxStatus, qvxsFIRLMSMRGetTaps32s_16s, (const QvxsFIRLMSMRState32s_16s* pState, Qvx32s* pTaps));
QVXS_API(QvxStatus, qvxsFIRLMSMRSetTaps32s_16s, (const Qvx32s* pTaps, QvxsFIRLMSMRState32s_16s* pState));

/** Reads or replaces the delay line, newest first; null sets zeros. GetDlyVal reads one sample of it, 0 being the newest.
 *  Returns as qvxsFIRLMSMRFree; qvxStatBadArg (an index outside 0 to tapsLen - 1). */
QVXS_API(QvxStatus, qvxsFIRLMSMRGetDlyLine32s_16s, (const QvxsFIRLMSMRState32s_16s* pState, Qvx16s* pDlyLine));
QVXS_API(QvxStatus, qvxsFIRLMSMRSetDlyLine32s_16s, (QvxsFIRLMSMRState32s_16s* pState, const Qvx16s* pDlyLine));
QVXS_API(QvxStatus, qvxsFIRLMSMRGetDlyVal32s_16s, (const QvxsFIRLMSMRState32s_16s* pState, Qvx16s* pVal, int index));

/** The three parts of a step: PutVal takes a sample, One gives the output of the last tapsLen, UpdateTaps adapts to one error.
 *  Returns as qvxsFIRLMSMRFree. */
QVXS_API(QvxStatus, qvxsFIRLMSMRPutVal32s_16s, (Qvx16s val, QvxsFIRLMSMRState32s_16s* pState));
QVXS_API(QvxStatus, qvxsFIRLMSMROne32s_16s_Sfs, (Qvx16s* pDstVal, QvxsFIRLMSMRState32s_16s* pState, int scaleFactor));
QVXS_API(QvxStatus, qvxsFIRLMSMRUpdateTaps32s_16s, (Qvx16s err, QvxsFIRLMSMRState32s_16s* pState));

/** numIters steps: take downFactor samples, give an output, adapt to reference - output.
 *  pSrc: numIters * downFactor samples; pRef, pDst: numIters. Any alignment; pDst may be pRef, and pSrc if downFactor is 1.
 *  Returns qvxStatOk; qvxStatNullPtr; qvxStatBadSize (numIters < 1); qvxStatContextMismatch (not such a record). */
QVXS_API(QvxStatus, qvxsFIRLMSMR32s_16s_Sfs, (const Qvx16s* pSrc, const Qvx16s* pRef, Qvx16s* pDst, int numIters, QvxsFIRLMSMRState32s_16s* pState, int scaleFactor));

/* The same for complex samples. */
QVXS_API(QvxStatus, qvxsFIRLMSMRGetStateSize32sc_16sc, (int tapsLen, int downFactor, int* pSize));
QVXS_API(QvxStatus, qvxsFIRLMSMRInit32sc_16sc, (QvxsFIRLMSMRState32sc_16sc** ppState, const Qvx32sc* pTaps, int tapsLen, int downFactor, Qvx32f mu, const Qvx16sc* pDlyLine, Qvx8u* pBuffer));
QVXS_API(QvxStatus, qvxsFIRLMSMRInitAlloc32sc_16sc, (QvxsFIRLMSMRState32sc_16sc** ppState, const Qvx32sc* pTaps, int tapsLen, int downFactor, Qvx32f mu, const Qvx16sc* pDlyLine));
QVXS_API(QvxStatus, qvxsFIRLMSMRFree32sc_16sc, (QvxsFIRLMSMRState32sc_16sc* pState));
QVXS_API(QvxStatus, qvxsFIRLMSMRSetMu32sc_16sc, (QvxsFIRLMSMRState32sc_16sc* pState, Qvx32f mu));
QVXS_API(QvxStatus, qvxsFIRLMSMRGetTaps32sc_16sc, (const QvxsFIRLMSMRState32sc_16sc* pState, Qvx32sc* pTaps));
QVXS_API(QvxStatus, qvxsFIRLMSMRSetTaps32sc_16sc, (const Qvx32sc* pTaps, QvxsFIRLMSMRState32sc_16sc* pState));
QVXS_API(QvxStatus, qvxsFIRLMSMRGetDlyLine32sc_16sc, (const QvxsFIRLMSMRState32sc_16sc* pState, Qvx16sc* pDlyLine));
QVXS_API(QvxStatus, qvxsFIRLMSMRSetDlyLine32sc_16sc, (QvxsFIRLMSMRState32sc_16sc* pState, const Qvx16sc* pDlyLine));
QVXS_API(QvxStatus, qvxsFIRLMSMRGetDlyVal32sc_16sc, (const QvxsFIRLMSMRState32sc_16sc* pState, Qvx16sc* pVal, int index));
QVXS_API(QvxStatus, qvxsFIRLMSMRPutVal32sc_16sc, (Qvx16sc val, QvxsFIRLMSMRState32sc_16sc* pState));
QVXS_API(QvxStatus, qvxsFIRLMSMROne32sc_16sc_Sfs, (Qvx16sc* pDstVal, QvxsFIRLMSMRState32sc_16sc* pState, int scaleFactor));
QVXS_API(QvxStatus, qvxsFIRLMSMRUpdateTaps32sc_16sc, (Qvx16sc err, QvxsFIRLMSMRState32sc_16sc* pState));
QVXS_API(QvxStatus, qvxsFIRLMSMR32sc_16sc_Sfs, (const Qvx16sc* pSrc, const Qvx16sc* pRef, Qvx16sc* pDst, int numIters, QvxsFIRLMSMRState32sc_16sc* pState, int scaleFactor));

#ifdef __cplusplus
}
#endif

#endif
