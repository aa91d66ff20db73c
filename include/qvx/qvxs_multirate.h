/* Multi-rate FIR filters: interpolation and decimation by whole factors in one step, and filters of streams without a delay line. */
#ifndef QVX_QVXS_MULTIRATE_H
#define QVX_QVXS_MULTIRATE_H

#include <qvx/qvxs_fir.h>

#ifdef __cplusplus
extern "C" {
#endif

/* A multi-rate filter puts upFactor - 1 zeros beside each sample, whose place among them is upPhase, filters with tapsLen
 * taps, and keeps one result in downFactor, that at place downPhase:
 *
 *   y[j] = sum of h[k] * x[i] over all i and k with k = downFactor * j + downPhase - (upFactor * i + upPhase), 0 <= k < tapsLen.
 *
 * Only these products are computed: none with the zeros, none for the results that are dropped. A call counts in groups: numIters
 * groups of downFactor samples give numIters groups of upFactor results. It looks back at D = (tapsLen + upFactor - 1) / upFactor
 * samples (division of integers), which the record keeps from call to call.
 *
 * The records are those of qvxs_fir.h, and so are their functions: qvxsFIR_32f and its kin filter with them, in place too,
 * qvxsFIRGetTaps, qvxsFIRSetTaps, qvxsFIRGetDlyLine, qvxsFIRSetDlyLine and qvxsFIRFree take them; qvxsFIROne and the functions of
 * QvxsFIRState_32s do not. Arithmetic and types are described there as well.
 *
 * All results have as many products: phases with a tap fewer than others are padded with a zero. So an infinite sample or a NaN,
 * whose product with zero is a NaN, spoils a result more of such a phase than the formula says.
 *
 * Results of integer arithmetic do not depend on how a stream is cut into calls; those of floats agree to rounding. To the bit: in
 * place equals out of place, and no result depends on the address of a vector or on the number of threads. */

/** *pSize = the bytes of a record, for a block of any alignment. With N = tapsLen, u = upFactor, d = downFactor, S the smallest
 *  multiple of u from N + 3d on, D as above, r = ceil(D / d), E the bytes of a tap's arithmetic (32f: 4; 32fc, 64f: 8; 64fc: 16;
 *  of integers as 64f, of complex ones as 64fc), b = 4d(S / u / (4d) + 1) + 1 + d(-r mod 4), and up(x) the next multiple of 16:
 *    176 + up(EN) + up(4u + 4) + 4ES + E max(4S, 4096) + up(E(D + b) + 4)   where N / (N + 3d) >= 0.3 (u = 1: > 0.5), else
 *    160 + up(EN) + up(16u + 4) + 4ES + E max(8S, 4096) + up(E(D + b) + 4).
 *  With u = d = 1 as qvxsFIRGetStateSize, and modulo 2^32 as there.
 *  Returns qvxStatOk; qvxStatNullPtr; qvxStatBadTapsLen (tapsLen < 1); qvxStatBadMRFactor (upFactor or downFactor < 1). */
QVXS_API(QvxStatus, qvxsFIRMRGetStateSize_32f, (int tapsLen, int upFactor, int downFactor, int* pSize));
QVXS_API(QvxStatus, qvxsFIRMRGetStateSize_32fc, (int tapsLen, int upFactor, int downFactor, int* pSize));
QVXS_API(QvxStatus, qvxsFIRMRGetStateSize32f_16s, (int tapsLen, int upFactor, int downFactor, int* pSize));
QVXS_API(QvxStatus, qvxsFIRMRGetStateSize32fc_16sc, (int tapsLen, int upFactor, int downFactor, int* pSize));
QVXS_API(QvxStatus, qvxsFIRMRGetStateSize_64f, (int tapsLen, int upFactor, int downFactor, int* pSize));
QVXS_API(QvxStatus, qvxsFIRMRGetStateSize_64fc, (int tapsLen, int upFactor, int downFactor, int* pSize));
QVXS_API(QvxStatus, qvxsFIRMRGetStateSize64f_32f, (int tapsLen, int upFactor, int downFactor, int* pSize));
QVXS_API(QvxStatus, qvxsFIRMRGetStateSize64fc_32fc, (int tapsLen, int upFactor, int downFactor, int* pSize));
QVXS_API(QvxStatus, qvxsFIRMRGetStateSize64f_32s, (int tapsLen, int upFactor, int downFactor, int* pSize));
QVXS_API(QvxStatus, qvxsFIRMRGetStateSize64fc_32sc, (int tapsLen, int upFactor, int downFactor, int* pSize));
QVXS_API(QvxStatus, qvxsFIRMRGetStateSize64f_16s, (int tapsLen, int upFactor, int downFactor, int* pSize));
QVXS_API(QvxStatus, qvxsFIRMRGetStateSize64fc_16sc, (int tapsLen, int upFactor, int downFactor, int* pSize));
QVXS_API(QvxStatus, qvxsFIRMRGetStateSize32s_16s, (int tapsLen, int upFactor, int downFactor, int* pSize));
QVXS_API(QvxStatus, qvxsFIRMRGetStateSize32sc_16sc, (int tapsLen, int upFactor, int downFactor, int* pSize));
QVXS_API(QvxStatus, qvxsFIRMRGetStateSize_16s, (int tapsLen, int upFactor, int downFactor, int* pSize));

/** Builds a record in pBuffer, of the size that qvxsFIRMRGetStateSize gives, and stores its address in *ppState. The taps are
 *  copied; integer ones are taken times 2^tapsFactor and reduced to 16 bits as by qvxsFIRInit. pDlyLine: the D samples before the
 *  first, newest first; null for zeros. With upFactor = downFactor = 1 the record is that of qvxsFIRInit.
 *  Returns qvxStatOk; qvxStatNullPtr; qvxStatBadTapsLen (tapsLen < 1); qvxStatBadMRFactor (upFactor or downFactor < 1);
 *  qvxStatBadMRPhase (upPhase outside 0 to upFactor - 1, or downPhase outside 0 to downFactor - 1). */
QVXS_API(QvxStatus, qvxsFIRMRInit_32f, (QvxsFIRState_32f** ppState, const Qvx32f* pTaps, int tapsLen, int upFactor, int upPhase, int downFactor, int downPhase, const Qvx32f* pDlyLine, Qvx8u* pBuffer));
QVXS_API(QvxStatus, qvxsFIRMRInit_32fc, (QvxsFIRState_32fc** ppState, const Qvx32fc* pTaps, int tapsLen, int upFactor, int upPhase, int downFactor, int downPhase, const Qvx32fc* pDlyLine, Qvx8u* pBuffer));
QVXS_API(QvxStatus, qvxsFIRMRInit32f_16s, (QvxsFIRState32f_16s** ppState, const Qvx32f* pTaps, int tapsLen, int upFactor, int upPhase, int downFactor, int downPhase, const Qvx16s* pDlyLine, Qvx8u* pBuffer));
QVXS_API(QvxStatus, qvxsFIRMRInit32fc_16sc, (QvxsFIRState32fc_16sc** ppState, const Qvx32fc* pTaps, int tapsLen, int upFactor, int upPhase, int downFactor, int downPhase, const Qvx16sc* pDlyLine, Qvx8u* pBuffer));
QVXS_API(QvxStatus, qvxsFIRMRInit_64f, (QvxsFIRState_64f** ppState, const Qvx64f* pTaps, int tapsLen, int upFactor, int upPhase, int downFactor, int downPhase, const Qvx64f* pDlyLine, Qvx8u* pBuffer));
QVXS_API(QvxStatus, qvxsFIRMRInit_64fc, (QvxsFIRState_64fc** ppState, const Qvx64fc* pTaps, int tapsLen, int upFactor, int upPhase, int downFactor, int downPhase, const Qvx64fc* pDlyLine, Qvx8u* pBuffer));
QVXS_API(QvxStatus, qvxsFIRMRInit64f_32f, (QvxsFIRState64f_32f** ppState, const Qvx64f* pTaps, int tapsLen, int upFactor, int upPhase, int downFactor, int downPhase, const Qvx32f* pDlyLine, Qvx8u* pBuffer));
QVXS_API(QvxStatus, qvxsFIRMRInit64fc_32fc, (QvxsFIRState64fc_32fc** ppState, const Qvx64fc* pTaps, int tapsLen, int upFactor, int upPhase, int downFactor, int downPhase, const Qvx32fc* pDlyLine, Qvx8u* pBuffer));
QVXS_API(QvxStatus, qvxsFIRMRInit64f_32s, (QvxsFIRState64f_32s** ppState, const Qvx64f* pTaps, int tapsLen, int upFactor, int upPhase, int downFactor, int downPhase, const Qvx32s* pDlyLine, Qvx8u* pBuffer));
QVXS_API(QvxStatus, qvxsFIRMRInit64fc_32sc, (QvxsFIRState64fc_32sc** ppState, const Qvx64fc* pTaps, int tapsLen, int upFactor, int upPhase, int downFactor, int downPhase, const Qvx32sc* pDlyLine, Qvx8u* pBuffer));
QVXS_API(QvxStatus, qvxsFIRMRInit64f_16s, (QvxsFIRState64f_16s** ppState, const Qvx64f* pTaps, int tapsLen, int upFactor, int upPhase, int downFactor, int downPhase, const Qvx16s* pDlyLine, Qvx8u* pBuffer));
QVXS_API(QvxStatus, qvxsFIRMRInit64fc_16sc, (QvxsFIRState64fc_16sc** ppState, const Qvx64fc* pTaps, int tapsLen, int upFactor, int upPhase, int downFactor, int downPhase, const Qvx16sc* pDlyLine, Qvx8u* pBuffer));
QVXS_API(QvxStatus, qvxsFIRMRInit32s_16s, (QvxsFIRState32s_16s** ppState, const Qvx32s* pTaps, int tapsLen, int tapsFactor, int upFactor, int upPhase, int downFactor, int downPhase, const Qvx16s* pDlyLine, Qvx8u* pBuffer));
QVXS_API(QvxStatus, qvxsFIRMRInit32sc_16sc, (QvxsFIRState32sc_16sc** ppState, const Qvx32sc* pTaps, int tapsLen, int tapsFactor, int upFactor, int upPhase, int downFactor, int downPhase, const Qvx16sc* pDlyLine, Qvx8u* pBuffer));
QVXS_API(QvxStatus, qvxsFIRMRInit_16s, (QvxsFIRState_16s** ppState, const Qvx16s* pTaps, int tapsLen, int tapsFactor, int upFactor, int upPhase, int downFactor, int downPhase, const Qvx16s* pDlyLine, Qvx8u* pBuffer));

/** The same in a block of its own, which qvxsFIRFree releases. Returns also qvxStatNoMem. */
QVXS_API(QvxStatus, qvxsFIRMRInitAlloc_32f, (QvxsFIRState_32f** ppState, const Qvx32f* pTaps, int tapsLen, int upFactor, int upPhase, int downFactor, int downPhase, const Qvx32f* pDlyLine));
QVXS_API(QvxStatus, qvxsFIRMRInitAlloc_32fc, (QvxsFIRState_32fc** ppState, const Qvx32fc* pTaps, int tapsLen, int upFactor, int upPhase, int downFactor, int downPhase, const Qvx32fc* pDlyLine));
QVXS_API(QvxStatus, qvxsFIRMRInitAlloc32f_16s, (QvxsFIRState32f_16s** ppState, const Qvx32f* pTaps, int tapsLen, int upFactor, int upPhase, int downFactor, int downPhase, const Qvx16s* pDlyLine));
QVXS_API(QvxStatus, qvxsFIRMRInitAlloc32fc_16sc, (QvxsFIRState32fc_16sc** ppState, const Qvx32fc* pTaps, int tapsLen, int upFactor, int upPhase, int downFactor, int downPhase, const Qvx16sc* pDlyLine));
QVXS_API(QvxStatus, qvxsFIRMRInitAlloc_64f, (QvxsFIRState_64f** ppState, const Qvx64f* pTaps, int tapsLen, int upFactor, int upPhase, int downFactor, int downPhase, const Qvx64f* pDlyLine));
QVXS_API(QvxStatus, qvxsFIRMRInitAlloc_64fc, (QvxsFIRState_64fc** ppState, const Qvx64fc* pTaps, int tapsLen, int upFactor, int upPhase, int downFactor, int downPhase, const Qvx64fc* pDlyLine));
QVXS_API(QvxStatus, qvxsFIRMRInitAlloc64f_32f, (QvxsFIRState64f_32f** ppState, const Qvx64f* pTaps, int tapsLen, int upFactor, int upPhase, int downFactor, int downPhase, const Qvx32f* pDlyLine));
QVXS_API(QvxStatus, qvxsFIRMRInitAlloc64fc_32fc, (QvxsFIRState64fc_32fc** ppState, const Qvx64fc* pTaps, int tapsLen, int upFactor, int upPhase, int downFactor, int downPhase, const Qvx32fc* pDlyLine));
QVXS_API(QvxStatus, qvxsFIRMRInitAlloc64f_32s, (QvxsFIRState64f_32s** ppState, const Qvx64f* pTaps, int tapsLen, int upFactor, int upPhase, int downFactor, int downPhase, const Qvx32s* pDlyLine));
QVXS_API(QvxStatus, qvxsFIRMRInitAlloc64fc_32sc, (QvxsFIRState64fc_32sc** ppState, const Qvx64fc* pTaps, int tapsLen, int upFactor, int upPhase, int downFactor, int downPhase, const Qvx32sc* pDlyLine));
QVXS_API(QvxStatus, qvxsFIRMRInitAlloc64f_16s, (QvxsFIRState64f_16s** ppState, const Qvx64f* pTaps, int tapsLen, int upFactor, int upPhase, int downFactor, int downPhase, const Qvx16s* pDlyLine));
QVXS_API(QvxStatus, qvxsFIRMRInitAlloc64fc_16sc, (QvxsFIRState64fc_16sc** ppState, const Qvx64fc* pTaps, int tapsLen, int upFactor, int upPhase, int downFactor, int downPhase, const Qvx16sc* pDlyLine));
QVXS_API(QvxStatus, qvxsFIRMRInitAlloc32s_16s, (QvxsFIRState32s_16s** ppState, const Qvx32s* pTaps, int tapsLen, int tapsFactor, int upFactor, int upPhase, int downFactor, int downPhase, const Qvx16s* pDlyLine));
QVXS_API(QvxStatus, qvxsFIRMRInitAlloc32sc_16sc, (QvxsFIRState32sc_16sc** ppState, const Qvx32sc* pTaps, int tapsLen, int tapsFactor, int upFactor, int upPhase, int downFactor, int downPhase, const Qvx16sc* pDlyLine));
QVXS_API(QvxStatus, qvxsFIRMRInitAlloc_16s, (QvxsFIRState_16s** ppState, const Qvx16s* pTaps, int tapsLen, int tapsFactor, int upFactor, int upPhase, int downFactor, int downPhase, const Qvx16s* pDlyLine));

/** The records of 32s_16s and 32sc_16sc with taps given as floats, scaled and rounded as by qvxsFIRInit32s_16s32f. */
QVXS_API(QvxStatus, qvxsFIRMRGetStateSize32s_16s32f, (int tapsLen, int upFactor, int downFactor, int* pSize));
QVXS_API(QvxStatus, qvxsFIRMRGetStateSize32sc_16sc32fc, (int tapsLen, int upFactor, int downFactor, int* pSize));
QVXS_API(QvxStatus, qvxsFIRMRInit32s_16s32f, (QvxsFIRState32s_16s** ppState, const Qvx32f* pTaps, int tapsLen, int upFactor, int upPhase, int downFactor, int downPhase, const Qvx16s* pDlyLine, Qvx8u* pBuffer));
QVXS_API(QvxStatus, qvxsFIRMRInit32sc_16sc32fc, (QvxsFIRState32sc_16sc** ppState, const Qvx32fc* pTaps, int tapsLen, int upFactor, int upPhase, int downFactor, int downPhase, const Qvx16sc* pDlyLine, Qvx8u* pBuffer));
QVXS_API(QvxStatus, qvxsFIRMRInitAlloc32s_16s32f, (QvxsFIRState32s_16s** ppState, const Qvx32f* pTaps, int tapsLen, int upFactor, int upPhase, int downFactor, int downPhase, const Qvx16s* pDlyLine));
QVXS_API(QvxStatus, qvxsFIRMRInitAlloc32sc_16sc32fc, (QvxsFIRState32sc_16sc** ppState, const Qvx32fc* pTaps, int tapsLen, int upFactor, int upPhase, int downFactor, int downPhase, const Qvx16sc* pDlyLine));

/** The same without a record: the caller keeps the taps and, at pDlyLine, the last D samples, newest first.
 *  pSrc: numIters * downFactor samples. pDst: numIters * upFactor results; the vectors must not overlap. pSrcDst: as many as the
 *  longer of both. pDlyLine: read and updated.
 *  Integer taps: of 16s, h[k] = pTaps[k] * 2^-15; of 32s and 32sc, pTaps[k] * 2^tapsFactor, taken as they are, in sums of 32 bits
 *  that wrap; the sum is multiplied by 2^s as by qvxsFIR, s = tapsFactor - scaleFactor, but for 32s and 32sc s counts as 31 above 31.
 *  Results in integers of float arithmetic are scaled, saturated and rounded half away from zero, by adding a half.
 *  Returns qvxStatOk; qvxStatNullPtr; qvxStatBadSize (numIters < 1); qvxStatBadTapsLen (tapsLen < 1); qvxStatBadMRFactor;
 *  qvxStatBadMRPhase; qvxStatNoMem. */
QVXS_API(QvxStatus, qvxsFIRMR_Direct_32f, (const Qvx32f* pSrc, Qvx32f* pDst, int numIters, const Qvx32f* pTaps, int tapsLen, int upFactor, int upPhase, int downFactor, int downPhase, Qvx32f* pDlyLine));
QVXS_API(QvxStatus, qvxsFIRMR_Direct_32f_I, (Qvx32f* pSrcDst, int numIters, const Qvx32f* pTaps, int tapsLen, int upFactor, int upPhase, int downFactor, int downPhase, Qvx32f* pDlyLine));
QVXS_API(QvxStatus, qvxsFIRMR_Direct_32fc, (const Qvx32fc* pSrc, Qvx32fc* pDst, int numIters, const Qvx32fc* pTaps, int tapsLen, int upFactor, int upPhase, int downFactor, int downPhase, Qvx32fc* pDlyLine));
QVXS_API(QvxStatus, qvxsFIRMR_Direct_32fc_I, (Qvx32fc* pSrcDst, int numIters, const Qvx32fc* pTaps, int tapsLen, int upFactor, int upPhase, int downFactor, int downPhase, Qvx32fc* pDlyLine));
QVXS_API(QvxStatus, qvxsFIRMR32f_Direct_16s_Sfs, (const Qvx16s* pSrc, Qvx16s* pDst, int numIters, const Qvx32f* pTaps, int tapsLen, int upFactor, int upPhase, int downFactor, int downPhase, Qvx16s* pDlyLine, int scaleFactor));
QVXS_API(QvxStatus, qvxsFIRMR32f_Direct_16s_ISfs, (Qvx16s* pSrcDst, int numIters, const Qvx32f* pTaps, int tapsLen, int upFactor, int upPhase, int downFactor, int downPhase, Qvx16s* pDlyLine, int scaleFactor));
QVXS_API(QvxStatus, qvxsFIRMR32fc_Direct_16sc_Sfs, (const Qvx16sc* pSrc, Qvx16sc* pDst, int numIters, const Qvx32fc* pTaps, int tapsLen, int upFactor, int upPhase, int downFactor, int downPhase, Qvx16sc* pDlyLine, int scaleFactor));
QVXS_API(QvxStatus, qvxsFIRMR32fc_Direct_16sc_ISfs, (Qvx16sc* pSrcDst, int numIters, const Qvx32fc* pTaps, int tapsLen, int upFactor, int upPhase, int downFactor, int downPhase, Qvx16sc* pDlyLine, int scaleFactor));
QVXS_API(QvxStatus, qvxsFIRMR_Direct_64f, (const Qvx64f* pSrc, Qvx64f* pDst, int numIters, const Qvx64f* pTaps, int tapsLen, int upFactor, int upPhase, int downFactor, int downPhase, Qvx64f* pDlyLine));
QVXS_API(QvxStatus, qvxsFIRMR_Direct_64f_I, (Qvx64f* pSrcDst, int numIters, const Qvx64f* pTaps, int tapsLen, int upFactor, int upPhase, int downFactor, int downPhase, Qvx64f* pDlyLine));
QVXS_API(QvxStatus, qvxsFIRMR_Direct_64fc, (const Qvx64fc* pSrc, Qvx64fc* pDst, int numIters, const Qvx64fc* pTaps, int tapsLen, int upFactor, int upPhase, int downFactor, int downPhase, Qvx64fc* pDlyLine));
QVXS_API(QvxStatus, qvxsFIRMR_Direct_64fc_I, (Qvx64fc* pSrcDst, int numIters, const Qvx64fc* pTaps, int tapsLen, int upFactor, int upPhase, int downFactor, int downPhase, Qvx64fc* pDlyLine));
QVXS_API(QvxStatus, qvxsFIRMR64f_Direct_32f, (const Qvx32f* pSrc, Qvx32f* pDst, int numIters, const Qvx64f* pTaps, int tapsLen, int upFactor, int upPhase, int downFactor, int downPhase, Qvx32f* pDlyLine));
QVXS_API(QvxStatus, qvxsFIRMR64f_Direct_32f_I, (Qvx32f* pSrcDst, int numIters, const Qvx64f* pTaps, int tapsLen, int upFactor, int upPhase, int downFactor, int downPhase, Qvx32f* pDlyLine));
QVXS_API(QvxStatus, qvxsFIRMR64fc_Direct_32fc, (const Qvx32fc* pSrc, Qvx32fc* pDst, int numIters, const Qvx64fc* pTaps, int tapsLen, int upFactor, int upPhase, int downFactor, int downPhase, Qvx32fc* pDlyLine));
QVXS_API(QvxStatus, qvxsFIRMR64fc_Direct_32fc_I, (Qvx32fc* pSrcDst, int numIters, const Qvx64fc* pTaps, int tapsLen, int upFactor, int upPhase, int downFactor, int downPhase, Qvx32fc* pDlyLine));
QVXS_API(QvxStatus, qvxsFIRMR64f_Direct_32s_Sfs, (const Qvx32s* pSrc, Qvx32s* pDst, int numIters, const Qvx64f* pTaps, int tapsLen, int upFactor, int upPhase, int downFactor, int downPhase, Qvx32s* pDlyLine, int scaleFactor));
QVXS_API(QvxStatus, qvxsFIRMR64f_Direct_32s_ISfs, (Qvx32s* pSrcDst, int numIters, const Qvx64f* pTaps, int tapsLen, int upFactor, int upPhase, int downFactor, int downPhase, Qvx32s* pDlyLine, int scaleFactor));
QVXS_API(QvxStatus, qvxsFIRMR64fc_Direct_32sc_Sfs, (const Qvx32sc* pSrc, Qvx32sc* pDst, int numIters, const Qvx64fc* pTaps, int tapsLen, int upFactor, int upPhase, int downFactor, int downPhase, Qvx32sc* pDlyLine, int scaleFactor));
QVXS_API(QvxStatus, qvxsFIRMR64fc_Direct_32sc_ISfs, (Qvx32sc* pSrcDst, int numIters, const Qvx64fc* pTaps, int tapsLen, int upFactor, int upPhase, int downFactor, int downPhase, Qvx32sc* pDlyLine, int scaleFactor));
QVXS_API(QvxStatus, qvxsFIRMR64f_Direct_16s_Sfs, (const Qvx16s* pSrc, Qvx16s* pDst, int numIters, const Qvx64f* pTaps, int tapsLen, int upFactor, int upPhase, int downFactor, int downPhase, Qvx16s* pDlyLine, int scaleFactor));
QVXS_API(QvxStatus, qvxsFIRMR64f_Direct_16s_ISfs, (Qvx16s* pSrcDst, int numIters, const Qvx64f* pTaps, int tapsLen, int upFactor, int upPhase, int downFactor, int downPhase, Qvx16s* pDlyLine, int scaleFactor));
QVXS_API(QvxStatus, qvxsFIRMR64fc_Direct_16sc_Sfs, (const Qvx16sc* pSrc, Qvx16sc* pDst, int numIters, const Qvx64fc* pTaps, int tapsLen, int upFactor, int upPhase, int downFactor, int downPhase, Qvx16sc* pDlyLine, int scaleFactor));
QVXS_API(QvxStatus, qvxsFIRMR64fc_Direct_16sc_ISfs, (Qvx16sc* pSrcDst, int numIters, const Qvx64fc* pTaps, int tapsLen, int upFactor, int upPhase, int downFactor, int downPhase, Qvx16sc* pDlyLine, int scaleFactor));
QVXS_API(QvxStatus, qvxsFIRMR32s_Direct_16s_Sfs, (const Qvx16s* pSrc, Qvx16s* pDst, int numIters, const Qvx32s* pTaps, int tapsLen, int tapsFactor, int upFactor, int upPhase, int downFactor, int downPhase, Qvx16s* pDlyLine, int scaleFactor));
QVXS_API(QvxStatus, qvxsFIRMR32s_Direct_16s_ISfs, (Qvx16s* pSrcDst, int numIters, const Qvx32s* pTaps, int tapsLen, int tapsFactor, int upFactor, int upPhase, int downFactor, int downPhase, Qvx16s* pDlyLine, int scaleFactor));
QVXS_API(QvxStatus, qvxsFIRMR32sc_Direct_16sc_Sfs, (const Qvx16sc* pSrc, Qvx16sc* pDst, int numIters, const Qvx32sc* pTaps, int tapsLen, int tapsFactor, int upFactor, int upPhase, int downFactor, int downPhase, Qvx16sc* pDlyLine, int scaleFactor));
QVXS_API(QvxStatus, qvxsFIRMR32sc_Direct_16sc_ISfs, (Qvx16sc* pSrcDst, int numIters, const Qvx32sc* pTaps, int tapsLen, int tapsFactor, int upFactor, int upPhase, int downFactor, int downPhase, Qvx16sc* pDlyLine, int scaleFactor));
QVXS_API(QvxStatus, qvxsFIRMR_Direct_16s_Sfs, (const Qvx16s* pSrc, Qvx16s* pDst, int numIters, const Qvx16s* pTaps, int tapsLen, int upFactor, int upPhase, int downFactor, int downPhase, Qvx16s* pDlyLine, int scaleFactor));
QVXS_API(QvxStatus, qvxsFIRMR_Direct_16s_ISfs, (Qvx16s* pSrcDst, int numIters, const Qvx16s* pTaps, int tapsLen, int upFactor, int upPhase, int downFactor, int downPhase, Qvx16s* pDlyLine, int scaleFactor));

/** Records of filters that keep no samples: a call brings those before its first itself, at pSrc, oldest first. qvxsFIR_32f,
 *  qvxsFIR_16s_Sfs, their forms in place and qvxsFIRFree take these records; qvxsFIRGetTaps and its like do not.
 *  qvxsFIRStreamInit: pSrc has tapsLen - 1 + numIters samples, and result i is that of the tapsLen samples from pSrc[i] on.
 *  qvxsFIRMRStreamInit: pSrc has D - 1 + numIters * downFactor samples, D as above, x[0] at pSrc[D - 1], and pDst receives
 *  numIters * upFactor results. Where upPhase is above downPhase, the first of them may look back at x[-D]: it counts as 0.
 *  In place, pSrcDst has as many elements as the longer of both.
 *  16s: the taps are taken times 2^tapsFactor; if one of them is -32768, all are shifted right by one place and the factor grows by
 *  1. The sum, of 32 bits that wrap, is multiplied by 2^s, s = tapsFactor - scaleFactor, within -31 and 31, rounded as rndMode says
 *  (qvxRoundTowardZero, qvxRoundNearestEven, qvxRoundHalfAway), wrapped at 32 bits and saturated.
 *  Returns qvxStatOk; qvxStatNullPtr; qvxStatBadTapsLen (tapsLen < 1); qvxStatBadMRFactor; qvxStatBadMRPhase;
 *  qvxStatBadRoundMode. */
QVXS_API(QvxStatus, qvxsFIRStreamInit_32f, (QvxsFIRState_32f** ppState, const Qvx32f* pTaps, int tapsLen, Qvx8u* pBuffer));
QVXS_API(QvxStatus, qvxsFIRStreamInit_16s, (QvxsFIRState_16s** ppState, const Qvx16s* pTaps, int tapsLen, int tapsFactor, QvxRoundMode rndMode, Qvx8u* pBuffer));
QVXS_API(QvxStatus, qvxsFIRMRStreamInit_32f, (QvxsFIRState_32f** ppState, const Qvx32f* pTaps, int tapsLen, int upFactor, int upPhase, int downFactor, int downPhase, Qvx8u* pBuffer));
QVXS_API(QvxStatus, qvxsFIRMRStreamInit_16s, (QvxsFIRState_16s** ppState, const Qvx16s* pTaps, int tapsLen, int tapsFactor, int upFactor, int upPhase, int downFactor, int downPhase, QvxRoundMode rndMode, Qvx8u* pBuffer));

/** The size of their records: that of qvxsFIRStreamGetStateSize.
 *  Returns qvxStatOk; qvxStatNullPtr; qvxStatBadTapsLen (tapsLen < 1); qvxStatBadMRFactor (upFactor or downFactor < 1). */
QVXS_API(QvxStatus, qvxsFIRMRStreamGetStateSize_32f, (int tapsLen, int upFactor, int downFactor, int* pSize));
QVXS_API(QvxStatus, qvxsFIRMRStreamGetStateSize_16s, (int tapsLen, int upFactor, int downFactor, int* pSize));

#ifdef __cplusplus
}
#endif

#endif
