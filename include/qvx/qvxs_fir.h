/* FIR filters: a record that is built once, and forms without one. */
#ifndef QVX_QVXS_FIR_H
#define QVX_QVXS_FIR_H

#include <qvx/qvxdefs.h>

#ifdef __cplusplus
extern "C" {
#endif

/* A filter of tapsLen taps h gives y[n] = h[0] * x[n] + h[1] * x[n - 1] + ... + h[tapsLen - 1] * x[n - tapsLen + 1].
 *
 * The names tell the types: first, before the underscore, that of the taps and the arithmetic, then that of the samples; one type
 * where both are the same. 32f, 32fc, 64f, 64fc compute in floats of that width, 16-bit samples with 32s, 32sc or 16s taps in
 * integers: products of 16 bits in sums of 32 bits that wrap.
 *
 * A record holds the taps and the last tapsLen samples of earlier calls, so that a stream cut into calls, in whatever pieces and
 * by whatever form, is filtered as if it were one, without a delay. It lies in one block, must not be copied to another address,
 * and serves one call at a time. Integers are filtered in the first of these ways, floats in all three:
 *
 * - Directly, as sums of products: whatever does not go through the FFT.
 * - By long transforms, of two to four times the taps: from 64 to 128 taps (real) or 18 to 38 taps (complex) on, as the
 *   processor's vectors are wide, in calls of more than 511 (real) or 255 (complex) samples. A filter that has partitions goes
 *   this way in calls that bring three quarters of the samples that a transform takes beside the taps, or more.
 * - By partitions of the taps, each of which meets the samples as a product of spectra: filters with 512 or more taps of 32f or
 *   64f, in shorter calls, as soon as such have brought 64 samples since the taps or the delay line were set, or since a call of
 *   the second way. From then on one-sample forms go this way as well. The call that turns to partitions transforms all taps:
 *   1.5 ns for each in AVX-512, 7 in a new block, 0.6 ms for 96000. A stream that cannot wait for that filters zeros first, as
 *   many as its calls will bring, 64 at least. Where a partition is longer than a call, the calls that fill one take longer than
 *   the others: 13 us, not 0.3, of 96000 taps with 64 samples.
 *
 * To the bit: in place equals out of place, and no result depends on the address of a vector or on the number of threads.
 * Results of integer arithmetic do not depend on how the stream is cut, either. Floats that are filtered directly are added up
 * in one order in calls of up to 64 samples, in another one in longer calls, whatever the cut; one-sample forms have an order of
 * their own. (One order for all would cost short calls up to half of their speed: 16 samples of 64 taps take 42 ns, in the order
 * of long calls 81.)
 *
 * To rounding: the three ways agree, and so do the orders of the first. An output of the first is as exact as its own products;
 * by the FFT the error goes with the largest samples of the transform, so that what is quiet beside a loud passage has its
 * noise. In the same way an infinite sample or a NaN spoils the outputs whose sums contain it, or all outputs of the transforms
 * that contain it.
 *
 * The types of the records are those of multi-rate filters and of streams without a delay line, too: qvxs_multirate.h. */
typedef struct QvxsFIRState_32f QvxsFIRState_32f;
typedef struct QvxsFIRState_32fc QvxsFIRState_32fc;
typedef struct QvxsFIRState32f_16s QvxsFIRState32f_16s;
typedef struct QvxsFIRState32fc_16sc QvxsFIRState32fc_16sc;
typedef struct QvxsFIRState_64f QvxsFIRState_64f;
typedef struct QvxsFIRState_64fc QvxsFIRState_64fc;
typedef struct QvxsFIRState64f_32f QvxsFIRState64f_32f;
typedef struct QvxsFIRState64fc_32fc QvxsFIRState64fc_32fc;
typedef struct QvxsFIRState64f_32s QvxsFIRState64f_32s;
typedef struct QvxsFIRState64fc_32sc QvxsFIRState64fc_32sc;
typedef struct QvxsFIRState64f_16s QvxsFIRState64f_16s;
typedef struct QvxsFIRState64fc_16sc QvxsFIRState64fc_16sc;
typedef struct QvxsFIRState32s_16s QvxsFIRState32s_16s;
typedef struct QvxsFIRState32sc_16sc QvxsFIRState32sc_16sc;
typedef struct QvxsFIRState_16s QvxsFIRState_16s;
typedef QvxsFIRState64f_32s QvxsFIRState_32s; /* integer taps, held as 64f */

/** *pSize = the bytes of a record of tapsLen taps, for a block of any alignment. It depends on the number of threads
 *  (ownGetNumThreads), which must be no higher at qvxsFIRInit than here. The number is modulo 2^32: a record of 2^31 bytes or
 *  more, which 8.4 million taps of 64fc and 23.7 million of 32f take, is not for qvxsFIRInit, and qvxsFIRInitAlloc refuses it.
 *  Returns qvxStatOk; qvxStatNullPtr; qvxStatBadTapsLen (tapsLen < 1). */
QVXS_API(QvxStatus, qvxsFIRGetStateSize_32f, (int tapsLen, int* pSize));
QVXS_API(QvxStatus, qvxsFIRGetStateSize_32fc, (int tapsLen, int* pSize));
QVXS_API(QvxStatus, qvxsFIRGetStateSize32f_16s, (int tapsLen, int* pSize));
QVXS_API(QvxStatus, qvxsFIRGetStateSize32fc_16sc, (int tapsLen, int* pSize));
QVXS_API(QvxStatus, qvxsFIRGetStateSize_64f, (int tapsLen, int* pSize));
QVXS_API(QvxStatus, qvxsFIRGetStateSize_64fc, (int tapsLen, int* pSize));
QVXS_API(QvxStatus, qvxsFIRGetStateSize64f_32f, (int tapsLen, int* pSize));
QVXS_API(QvxStatus, qvxsFIRGetStateSize64fc_32fc, (int tapsLen, int* pSize));
QVXS_API(QvxStatus, qvxsFIRGetStateSize64f_32s, (int tapsLen, int* pSize));
QVXS_API(QvxStatus, qvxsFIRGetStateSize64fc_32sc, (int tapsLen, int* pSize));
QVXS_API(QvxStatus, qvxsFIRGetStateSize64f_16s, (int tapsLen, int* pSize));
QVXS_API(QvxStatus, qvxsFIRGetStateSize64fc_16sc, (int tapsLen, int* pSize));
QVXS_API(QvxStatus, qvxsFIRGetStateSize32s_16s, (int tapsLen, int* pSize));
QVXS_API(QvxStatus, qvxsFIRGetStateSize32sc_16sc, (int tapsLen, int* pSize));
QVXS_API(QvxStatus, qvxsFIRGetStateSize_16s, (int tapsLen, int* pSize));

/** Builds a record in pBuffer, of the size that qvxsFIRGetStateSize gives, and stores its address in *ppState. The taps are
 *  copied. pDlyLine: the tapsLen samples before the first, newest first; null for zeros.
 *  Integer taps are taken times 2^tapsFactor (those of recursive filters times 2^-tapsFactor) and reduced to 16 bits. 16s: if one
 *  of them is -32768, all are shifted right by one place; 32s, 32sc: by as many as bring the largest magnitude to 32766 or less
 *  (-2147483648 does not count as large, and of what it is shifted to the filters take the low 16 bits). The factor grows by as
 *  much.
 *  Returns qvxStatOk; qvxStatNullPtr; qvxStatBadTapsLen (tapsLen < 1). */
QVXS_API(QvxStatus, qvxsFIRInit_32f, (QvxsFIRState_32f** ppState, const Qvx32f* pTaps, int tapsLen, const Qvx32f* pDlyLine, Qvx8u* pBuffer));
QVXS_API(QvxStatus, qvxsFIRInit_32fc, (QvxsFIRState_32fc** ppState, const Qvx32fc* pTaps, int tapsLen, const Qvx32fc* pDlyLine, Qvx8u* pBuffer));
QVXS_API(QvxStatus, qvxsFIRInit32f_16s, (QvxsFIRState32f_16s** ppState, const Qvx32f* pTaps, int tapsLen, const Qvx16s* pDlyLine, Qvx8u* pBuffer));
QVXS_API(QvxStatus, qvxsFIRInit32fc_16sc, (QvxsFIRState32fc_16sc** ppState, const Qvx32fc* pTaps, int tapsLen, const Qvx16sc* pDlyLine, Qvx8u* pBuffer));
QVXS_API(QvxStatus, qvxsFIRInit_64f, (QvxsFIRState_64f** ppState, const Qvx64f* pTaps, int tapsLen, const Qvx64f* pDlyLine, Qvx8u* pBuffer));
QVXS_API(QvxStatus, qvxsFIRInit_64fc, (QvxsFIRState_64fc** ppState, const Qvx64fc* pTaps, int tapsLen, const Qvx64fc* pDlyLine, Qvx8u* pBuffer));
QVXS_API(QvxStatus, qvxsFIRInit64f_32f, (QvxsFIRState64f_32f** ppState, const Qvx64f* pTaps, int tapsLen, const Qvx32f* pDlyLine, Qvx8u* pBuffer));
QVXS_API(QvxStatus, qvxsFIRInit64fc_32fc, (QvxsFIRState64fc_32fc** ppState, const Qvx64fc* pTaps, int tapsLen, const Qvx32fc* pDlyLine, Qvx8u* pBuffer));
QVXS_API(QvxStatus, qvxsFIRInit64f_32s, (QvxsFIRState64f_32s** ppState, const Qvx64f* pTaps, int tapsLen, const Qvx32s* pDlyLine, Qvx8u* pBuffer));
QVXS_API(QvxStatus, qvxsFIRInit64fc_32sc, (QvxsFIRState64fc_32sc** ppState, const Qvx64fc* pTaps, int tapsLen, const Qvx32sc* pDlyLine, Qvx8u* pBuffer));
QVXS_API(QvxStatus, qvxsFIRInit64f_16s, (QvxsFIRState64f_16s** ppState, const Qvx64f* pTaps, int tapsLen, const Qvx16s* pDlyLine, Qvx8u* pBuffer));
QVXS_API(QvxStatus, qvxsFIRInit64fc_16sc, (QvxsFIRState64fc_16sc** ppState, const Qvx64fc* pTaps, int tapsLen, const Qvx16sc* pDlyLine, Qvx8u* pBuffer));
QVXS_API(QvxStatus, qvxsFIRInit32s_16s, (QvxsFIRState32s_16s** ppState, const Qvx32s* pTaps, int tapsLen, int tapsFactor, const Qvx16s* pDlyLine, Qvx8u* pBuffer));
QVXS_API(QvxStatus, qvxsFIRInit32sc_16sc, (QvxsFIRState32sc_16sc** ppState, const Qvx32sc* pTaps, int tapsLen, int tapsFactor, const Qvx16sc* pDlyLine, Qvx8u* pBuffer));
QVXS_API(QvxStatus, qvxsFIRInit_16s, (QvxsFIRState_16s** ppState, const Qvx16s* pTaps, int tapsLen, int tapsFactor, const Qvx16s* pDlyLine, Qvx8u* pBuffer));

/** The same in a block of its own, which qvxsFIRFree releases. Returns also qvxStatNoMem. */
QVXS_API(QvxStatus, qvxsFIRInitAlloc_32f, (QvxsFIRState_32f** ppState, const Qvx32f* pTaps, int tapsLen, const Qvx32f* pDlyLine));
QVXS_API(QvxStatus, qvxsFIRInitAlloc_32fc, (QvxsFIRState_32fc** ppState, const Qvx32fc* pTaps, int tapsLen, const Qvx32fc* pDlyLine));
QVXS_API(QvxStatus, qvxsFIRInitAlloc32f_16s, (QvxsFIRState32f_16s** ppState, const Qvx32f* pTaps, int tapsLen, const Qvx16s* pDlyLine));
QVXS_API(QvxStatus, qvxsFIRInitAlloc32fc_16sc, (QvxsFIRState32fc_16sc** ppState, const Qvx32fc* pTaps, int tapsLen, const Qvx16sc* pDlyLine));
QVXS_API(QvxStatus, qvxsFIRInitAlloc_64f, (QvxsFIRState_64f** ppState, const Qvx64f* pTaps, int tapsLen, const Qvx64f* pDlyLine));
QVXS_API(QvxStatus, qvxsFIRInitAlloc_64fc, (QvxsFIRState_64fc** ppState, const Qvx64fc* pTaps, int tapsLen, const Qvx64fc* pDlyLine));
QVXS_API(QvxStatus, qvxsFIRInitAlloc64f_32f, (QvxsFIRState64f_32f** ppState, const Qvx64f* pTaps, int tapsLen, const Qvx32f* pDlyLine));
QVXS_API(QvxStatus, qvxsFIRInitAlloc64fc_32fc, (QvxsFIRState64fc_32fc** ppState, const Qvx64fc* pTaps, int tapsLen, const Qvx32fc* pDlyLine));
QVXS_API(QvxStatus, qvxsFIRInitAlloc64f_32s, (QvxsFIRState64f_32s** ppState, const Qvx64f* pTaps, int tapsLen, const Qvx32s* pDlyLine));
QVXS_API(QvxStatus, qvxsFIRInitAlloc64fc_32sc, (QvxsFIRState64fc_32sc** ppState, const Qvx64fc* pTaps, int tapsLen, const Qvx32sc* pDlyLine));
QVXS_API(QvxStatus, qvxsFIRInitAlloc64f_16s, (QvxsFIRState64f_16s** ppState, const Qvx64f* pTaps, int tapsLen, const Qvx16s* pDlyLine));
QVXS_API(QvxStatus, qvxsFIRInitAlloc64fc_16sc, (QvxsFIRState64fc_16sc** ppState, const Qvx64fc* pTaps, int tapsLen, const Qvx16sc* pDlyLine));
QVXS_API(QvxStatus, qvxsFIRInitAlloc32s_16s, (QvxsFIRState32s_16s** ppState, const Qvx32s* pTaps, int tapsLen, int tapsFactor, const Qvx16s* pDlyLine));
QVXS_API(QvxStatus, qvxsFIRInitAlloc32sc_16sc, (QvxsFIRState32sc_16sc** ppState, const Qvx32sc* pTaps, int tapsLen, int tapsFactor, const Qvx16sc* pDlyLine));
QVXS_API(QvxStatus, qvxsFIRInitAlloc_16s, (QvxsFIRState_16s** ppState, const Qvx16s* pTaps, int tapsLen, int tapsFactor, const Qvx16s* pDlyLine));

/** Releases the block of a record from qvxsFIRInitAlloc; does nothing to one from qvxsFIRInit.
 *  Returns qvxStatOk; qvxStatNullPtr; qvxStatContextMismatch (not such a record). */
QVXS_API(QvxStatus, qvxsFIRFree_32f, (QvxsFIRState_32f* pState));
QVXS_API(QvxStatus, qvxsFIRFree_32fc, (QvxsFIRState_32fc* pState));
QVXS_API(QvxStatus, qvxsFIRFree32f_16s, (QvxsFIRState32f_16s* pState));
QVXS_API(QvxStatus, qvxsFIRFree32fc_16sc, (QvxsFIRState32fc_16sc* pState));
QVXS_API(QvxStatus, qvxsFIRFree_64f, (QvxsFIRState_64f* pState));
QVXS_API(QvxStatus, qvxsFIRFree_64fc, (QvxsFIRState_64fc* pState));
QVXS_API(QvxStatus, qvxsFIRFree64f_32f, (QvxsFIRState64f_32f* pState));
QVXS_API(QvxStatus, qvxsFIRFree64fc_32fc, (QvxsFIRState64fc_32fc* pState));
QVXS_API(QvxStatus, qvxsFIRFree64f_32s, (QvxsFIRState64f_32s* pState));
QVXS_API(QvxStatus, qvxsFIRFree64fc_32sc, (QvxsFIRState64fc_32sc* pState));
QVXS_API(QvxStatus, qvxsFIRFree64f_16s, (QvxsFIRState64f_16s* pState));
QVXS_API(QvxStatus, qvxsFIRFree64fc_16sc, (QvxsFIRState64fc_16sc* pState));
QVXS_API(QvxStatus, qvxsFIRFree32s_16s, (QvxsFIRState32s_16s* pState));
QVXS_API(QvxStatus, qvxsFIRFree32sc_16sc, (QvxsFIRState32sc_16sc* pState));
QVXS_API(QvxStatus, qvxsFIRFree_16s, (QvxsFIRState_16s* pState));

/** Reads or replaces the taps, h[0] first; the delay line stays. Integer taps are read as they were reduced, with their factor.
 *  Returns qvxStatOk; qvxStatNullPtr; qvxStatContextMismatch (not such a record). */
QVXS_API(QvxStatus, qvxsFIRGetTaps_32f, (const QvxsFIRState_32f* pState, Qvx32f* pTaps));
QVXS_API(QvxStatus, qvxsFIRGetTaps_32fc, (const QvxsFIRState_32fc* pState, Qvx32fc* pTaps));
QVXS_API(QvxStatus, qvxsFIRGetTaps32f_16s, (const QvxsFIRState32f_16s* pState, Qvx32f* pTaps));
QVXS_API(QvxStatus, qvxsFIRGetTaps32fc_16sc, (const QvxsFIRState32fc_16sc* pState, Qvx32fc* pTaps));
QVXS_API(QvxStatus, qvxsFIRGetTaps_64f, (const QvxsFIRState_64f* pState, Qvx64f* pTaps));
QVXS_API(QvxStatus, qvxsFIRGetTaps_64fc, (const QvxsFIRState_64fc* pState, Qvx64fc* pTaps));
QVXS_API(QvxStatus, qvxsFIRGetTaps64f_32f, (const QvxsFIRState64f_32f* pState, Qvx64f* pTaps));
QVXS_API(QvxStatus, qvxsFIRGetTaps64fc_32fc, (const QvxsFIRState64fc_32fc* pState, Qvx64fc* pTaps));
QVXS_API(QvxStatus, qvxsFIRGetTaps64f_32s, (const QvxsFIRState64f_32s* pState, Qvx64f* pTaps));
QVXS_API(QvxStatus, qvxsFIRGetTaps64fc_32sc, (const QvxsFIRState64fc_32sc* pState, Qvx64fc* pTaps));
QVXS_API(QvxStatus, qvxsFIRGetTaps64f_16s, (const QvxsFIRState64f_16s* pState, Qvx64f* pTaps));
QVXS_API(QvxStatus, qvxsFIRGetTaps64fc_16sc, (const QvxsFIRState64fc_16sc* pState, Qvx64fc* pTaps));
QVXS_API(QvxStatus, qvxsFIRGetTaps32s_16s, (const QvxsFIRState32s_16s* pState, Qvx32s* pTaps, int* pTapsFactor));
QVXS_API(QvxStatus, qvxsFIRGetTaps32sc_16sc, (const QvxsFIRState32sc_16sc* pState, Qvx32sc* pTaps, int* pTapsFactor));
QVXS_API(QvxStatus, qvxsFIRGetTaps_16s, (const QvxsFIRState_16s* pState, Qvx16s* pTaps, int* pTapsFactor));
QVXS_API(QvxStatus, qvxsFIRSetTaps_32f, (const Qvx32f* pTaps, QvxsFIRState_32f* pState));
QVXS_API(QvxStatus, qvxsFIRSetTaps_32fc, (const Qvx32fc* pTaps, QvxsFIRState_32fc* pState));
QVXS_API(QvxStatus, qvxsFIRSetTaps32f_16s, (const Qvx32f* pTaps, QvxsFIRState32f_16s* pState));
QVXS_API(QvxStatus, qvxsFIRSetTaps32fc_16sc, (const Qvx32fc* pTaps, QvxsFIRState32fc_16sc* pState));
QVXS_API(QvxStatus, qvxsFIRSetTaps_64f, (const Qvx64f* pTaps, QvxsFIRState_64f* pState));
QVXS_API(QvxStatus, qvxsFIRSetTaps_64fc, (const Qvx64fc* pTaps, QvxsFIRState_64fc* pState));
QVXS_API(QvxStatus, qvxsFIRSetTaps64f_32f, (const Qvx64f* pTaps, QvxsFIRState64f_32f* pState));
QVXS_API(QvxStatus, qvxsFIRSetTaps64fc_32fc, (const Qvx64fc* pTaps, QvxsFIRState64fc_32fc* pState));
QVXS_API(QvxStatus, qvxsFIRSetTaps64f_32s, (const Qvx64f* pTaps, QvxsFIRState64f_32s* pState));
QVXS_API(QvxStatus, qvxsFIRSetTaps64fc_32sc, (const Qvx64fc* pTaps, QvxsFIRState64fc_32sc* pState));
QVXS_API(QvxStatus, qvxsFIRSetTaps64f_16s, (const Qvx64f* pTaps, QvxsFIRState64f_16s* pState));
QVXS_API(QvxStatus, qvxsFIRSetTaps64fc_16sc, (const Qvx64fc* pTaps, QvxsFIRState64fc_16sc* pState));
QVXS_API(QvxStatus, qvxsFIRSetTaps32s_16s, (const Qvx32s* pTaps, QvxsFIRState32s_16s* pState, int tapsFactor));
QVXS_API(QvxStatus, qvxsFIRSetTaps32sc_16sc, (const Qvx32sc* pTaps, QvxsFIRState32sc_16sc* pState, int tapsFactor));
QVXS_API(QvxStatus, qvxsFIRSetTaps_16s, (const Qvx16s* pTaps, QvxsFIRState_16s* pState, int tapsFactor));

/** Reads or replaces the last tapsLen samples, newest first; qvxsFIRSetDlyLine takes null for zeros. Of a multi-rate record, the
 *  last (tapsLen + upFactor - 1) / upFactor.
 *  Returns as qvxsFIRGetTaps. */
QVXS_API(QvxStatus, qvxsFIRGetDlyLine_32f, (const QvxsFIRState_32f* pState, Qvx32f* pDlyLine));
QVXS_API(QvxStatus, qvxsFIRGetDlyLine_32fc, (const QvxsFIRState_32fc* pState, Qvx32fc* pDlyLine));
QVXS_API(QvxStatus, qvxsFIRGetDlyLine32f_16s, (const QvxsFIRState32f_16s* pState, Qvx16s* pDlyLine));
QVXS_API(QvxStatus, qvxsFIRGetDlyLine32fc_16sc, (const QvxsFIRState32fc_16sc* pState, Qvx16sc* pDlyLine));
QVXS_API(QvxStatus, qvxsFIRGetDlyLine_64f, (const QvxsFIRState_64f* pState, Qvx64f* pDlyLine));
QVXS_API(QvxStatus, qvxsFIRGetDlyLine_64fc, (const QvxsFIRState_64fc* pState, Qvx64fc* pDlyLine));
QVXS_API(QvxStatus, qvxsFIRGetDlyLine64f_32f, (const QvxsFIRState64f_32f* pState, Qvx32f* pDlyLine));
QVXS_API(QvxStatus, qvxsFIRGetDlyLine64fc_32fc, (const QvxsFIRState64fc_32fc* pState, Qvx32fc* pDlyLine));
QVXS_API(QvxStatus, qvxsFIRGetDlyLine64f_32s, (const QvxsFIRState64f_32s* pState, Qvx32s* pDlyLine));
QVXS_API(QvxStatus, qvxsFIRGetDlyLine64fc_32sc, (const QvxsFIRState64fc_32sc* pState, Qvx32sc* pDlyLine));
QVXS_API(QvxStatus, qvxsFIRGetDlyLine64f_16s, (const QvxsFIRState64f_16s* pState, Qvx16s* pDlyLine));
QVXS_API(QvxStatus, qvxsFIRGetDlyLine64fc_16sc, (const QvxsFIRState64fc_16sc* pState, Qvx16sc* pDlyLine));
QVXS_API(QvxStatus, qvxsFIRGetDlyLine32s_16s, (const QvxsFIRState32s_16s* pState, Qvx16s* pDlyLine));
QVXS_API(QvxStatus, qvxsFIRGetDlyLine32sc_16sc, (const QvxsFIRState32sc_16sc* pState, Qvx16sc* pDlyLine));
QVXS_API(QvxStatus, qvxsFIRGetDlyLine_16s, (const QvxsFIRState_16s* pState, Qvx16s* pDlyLine));
QVXS_API(QvxStatus, qvxsFIRSetDlyLine_32f, (QvxsFIRState_32f* pState, const Qvx32f* pDlyLine));
QVXS_API(QvxStatus, qvxsFIRSetDlyLine_32fc, (QvxsFIRState_32fc* pState, const Qvx32fc* pDlyLine));
QVXS_API(QvxStatus, qvxsFIRSetDlyLine32f_16s, (QvxsFIRState32f_16s* pState, const Qvx16s* pDlyLine));
QVXS_API(QvxStatus, qvxsFIRSetDlyLine32fc_16sc, (QvxsFIRState32fc_16sc* pState, const Qvx16sc* pDlyLine));
QVXS_API(QvxStatus, qvxsFIRSetDlyLine_64f, (QvxsFIRState_64f* pState, const Qvx64f* pDlyLine));
QVXS_API(QvxStatus, qvxsFIRSetDlyLine_64fc, (QvxsFIRState_64fc* pState, const Qvx64fc* pDlyLine));
QVXS_API(QvxStatus, qvxsFIRSetDlyLine64f_32f, (QvxsFIRState64f_32f* pState, const Qvx32f* pDlyLine));
QVXS_API(QvxStatus, qvxsFIRSetDlyLine64fc_32fc, (QvxsFIRState64fc_32fc* pState, const Qvx32fc* pDlyLine));
QVXS_API(QvxStatus, qvxsFIRSetDlyLine64f_32s, (QvxsFIRState64f_32s* pState, const Qvx32s* pDlyLine));
QVXS_API(QvxStatus, qvxsFIRSetDlyLine64fc_32sc, (QvxsFIRState64fc_32sc* pState, const Qvx32sc* pDlyLine));
QVXS_API(QvxStatus, qvxsFIRSetDlyLine64f_16s, (QvxsFIRState64f_16s* pState, const Qvx16s* pDlyLine));
QVXS_API(QvxStatus, qvxsFIRSetDlyLine64fc_16sc, (QvxsFIRState64fc_16sc* pState, const Qvx16sc* pDlyLine));
QVXS_API(QvxStatus, qvxsFIRSetDlyLine32s_16s, (QvxsFIRState32s_16s* pState, const Qvx16s* pDlyLine));
QVXS_API(QvxStatus, qvxsFIRSetDlyLine32sc_16sc, (QvxsFIRState32sc_16sc* pState, const Qvx16sc* pDlyLine));
QVXS_API(QvxStatus, qvxsFIRSetDlyLine_16s, (QvxsFIRState_16s* pState, const Qvx16s* pDlyLine));

/** The record of 64f_32s with integer taps, which never goes through the FFT. */
QVXS_API(QvxStatus, qvxsFIRInit_32s, (QvxsFIRState_32s** ppState, const Qvx32s* pTaps, int tapsLen, const Qvx32s* pDlyLine, Qvx8u* pBuffer));
QVXS_API(QvxStatus, qvxsFIRInitAlloc_32s, (QvxsFIRState_32s** ppState, const Qvx32s* pTaps, int tapsLen, const Qvx32s* pDlyLine));
QVXS_API(QvxStatus, qvxsFIRGetStateSize_32s, (int tapsLen, int* pSize));
QVXS_API(QvxStatus, qvxsFIRGetTaps_32s, (const QvxsFIRState_32s* pState, Qvx32s* pTaps));
QVXS_API(QvxStatus, qvxsFIRSetTaps_32s, (const Qvx32s* pTaps, QvxsFIRState_32s* pState));
QVXS_API(QvxStatus, qvxsFIRFree_32s, (QvxsFIRState_32s* pState));

/** The records of 32s_16s and 32sc_16sc with taps given as floats: scaled by the power of two that brings the largest magnitude
 *  (of any part) to 16384 to 32767, within 2^-33 to 2^33, rounded half away from zero. qvxsFIRGetTaps gives what they were rounded
 *  to. Taps that are not finite count as 0. */
QVXS_API(QvxStatus, qvxsFIRInit32s_16s32f, (QvxsFIRState32s_16s** ppState, const Qvx32f* pTaps, int tapsLen, const Qvx16s* pDlyLine, Qvx8u* pBuffer));
QVXS_API(QvxStatus, qvxsFIRInit32sc_16sc32fc, (QvxsFIRState32sc_16sc** ppState, const Qvx32fc* pTaps, int tapsLen, const Qvx16sc* pDlyLine, Qvx8u* pBuffer));
QVXS_API(QvxStatus, qvxsFIRInitAlloc32s_16s32f, (QvxsFIRState32s_16s** ppState, const Qvx32f* pTaps, int tapsLen, const Qvx16s* pDlyLine));
QVXS_API(QvxStatus, qvxsFIRInitAlloc32sc_16sc32fc, (QvxsFIRState32sc_16sc** ppState, const Qvx32fc* pTaps, int tapsLen, const Qvx16sc* pDlyLine));
QVXS_API(QvxStatus, qvxsFIRGetStateSize32s_16s32f, (int tapsLen, int* pSize));
QVXS_API(QvxStatus, qvxsFIRGetStateSize32sc_16sc32fc, (int tapsLen, int* pSize));
QVXS_API(QvxStatus, qvxsFIRGetTaps32s_16s32f, (const QvxsFIRState32s_16s* pState, Qvx32f* pTaps));
QVXS_API(QvxStatus, qvxsFIRGetTaps32sc_16sc32fc, (const QvxsFIRState32sc_16sc* pState, Qvx32fc* pTaps));
QVXS_API(QvxStatus, qvxsFIRSetTaps32s_16s32f, (const Qvx32f* pTaps, QvxsFIRState32s_16s* pState));
QVXS_API(QvxStatus, qvxsFIRSetTaps32sc_16sc32fc, (const Qvx32fc* pTaps, QvxsFIRState32sc_16sc* pState));

/** The size of the records of the stream forms, as qvxsFIRGetStateSize. */
QVXS_API(QvxStatus, qvxsFIRStreamGetStateSize_16s, (int tapsLen, int* pSize));
QVXS_API(QvxStatus, qvxsFIRStreamGetStateSize_32f, (int tapsLen, int* pSize));

/** Filters numIters samples from pSrc to pDst, or in place; qvxsFIROne filters a single one. Any alignment; pSrc and pDst may not
 *  overlap.
 *  Results of 16s, 16sc, 32s, 32sc are scaled by 2^-scaleFactor and saturated, of float arithmetic rounded to nearest even first.
 *  Where that factor overflows to infinity, at -128 and less in 32-bit float arithmetic and at -1024 and less from 64f to 32s, 0
 *  becomes NaN and then the upper limit.
 *  Of integer arithmetic, the sum is multiplied by 2^s with s = tapsFactor - scaleFactor: s below 0 rounds to nearest even, and
 *  counts as -31 if it is less; s above 0 wraps at 32 bits, and from 32 on gives 0.
 *  Accuracy: float sums are added in an order that depends on the call. With noise, a result is off by 2.5 eps of the sum of
 *  |h[k] * x[n - k]| at most, for any number of taps, eps 2^-23 (32f, 32fc arithmetic) or 2^-52 (64f, 64fc); through the FFT by
 *  eps times the root mean square of x times the sum of |h[k]|, which is more where x is quiet beside what is near. An infinity or
 *  a NaN spoils all results of the transforms it enters, earlier ones of the same call too; once it has left them, the results are
 *  those of the samples again.
 *  The number of threads never changes a bit.
 *  A multi-rate record reads numIters * downFactor samples and gives numIters * upFactor; in place, with upFactor above downFactor,
 *  the samples are copied to memory of the call's own. qvxsFIROne refuses such records.
 *  Returns qvxStatOk; qvxStatNullPtr; then qvxStatBadSize (numIters < 1); then qvxStatContextMismatch (not such a record);
 *  qvxStatNoMem (no memory for that copy). */
QVXS_API(QvxStatus, qvxsFIR_32f, (const Qvx32f* pSrc, Qvx32f* pDst, int numIters, QvxsFIRState_32f* pState));
QVXS_API(QvxStatus, qvxsFIR_32f_I, (Qvx32f* pSrcDst, int numIters, QvxsFIRState_32f* pState));
QVXS_API(QvxStatus, qvxsFIROne_32f, (Qvx32f src, Qvx32f* pDstVal, QvxsFIRState_32f* pState));
QVXS_API(QvxStatus, qvxsFIR_32fc, (const Qvx32fc* pSrc, Qvx32fc* pDst, int numIters, QvxsFIRState_32fc* pState));
QVXS_API(QvxStatus, qvxsFIR_32fc_I, (Qvx32fc* pSrcDst, int numIters, QvxsFIRState_32fc* pState));
QVXS_API(QvxStatus, qvxsFIROne_32fc, (Qvx32fc src, Qvx32fc* pDstVal, QvxsFIRState_32fc* pState));
QVXS_API(QvxStatus, qvxsFIR32f_16s_Sfs, (const Qvx16s* pSrc, Qvx16s* pDst, int numIters, QvxsFIRState32f_16s* pState, int scaleFactor));
QVXS_API(QvxStatus, qvxsFIR32f_16s_ISfs, (Qvx16s* pSrcDst, int numIters, QvxsFIRState32f_16s* pState, int scaleFactor));
QVXS_API(QvxStatus, qvxsFIROne32f_16s_Sfs, (Qvx16s src, Qvx16s* pDstVal, QvxsFIRState32f_16s* pState, int scaleFactor));
QVXS_API(QvxStatus, qvxsFIR32fc_16sc_Sfs, (const Qvx16sc* pSrc, Qvx16sc* pDst, int numIters, QvxsFIRState32fc_16sc* pState, int scaleFactor));
QVXS_API(QvxStatus, qvxsFIR32fc_16sc_ISfs, (Qvx16sc* pSrcDst, int numIters, QvxsFIRState32fc_16sc* pState, int scaleFactor));
QVXS_API(QvxStatus, qvxsFIROne32fc_16sc_Sfs, (Qvx16sc src, Qvx16sc* pDstVal, QvxsFIRState32fc_16sc* pState, int scaleFactor));
QVXS_API(QvxStatus, qvxsFIR_64f, (const Qvx64f* pSrc, Qvx64f* pDst, int numIters, QvxsFIRState_64f* pState));
QVXS_API(QvxStatus, qvxsFIR_64f_I, (Qvx64f* pSrcDst, int numIters, QvxsFIRState_64f* pState));
QVXS_API(QvxStatus, qvxsFIROne_64f, (Qvx64f src, Qvx64f* pDstVal, QvxsFIRState_64f* pState));
QVXS_API(QvxStatus, qvxsFIR_64fc, (const Qvx64fc* pSrc, Qvx64fc* pDst, int numIters, QvxsFIRState_64fc* pState));
QVXS_API(QvxStatus, qvxsFIR_64fc_I, (Qvx64fc* pSrcDst, int numIters, QvxsFIRState_64fc* pState));
QVXS_API(QvxStatus, qvxsFIROne_64fc, (Qvx64fc src, Qvx64fc* pDstVal, QvxsFIRState_64fc* pState));
QVXS_API(QvxStatus, qvxsFIR64f_32f, (const Qvx32f* pSrc, Qvx32f* pDst, int numIters, QvxsFIRState64f_32f* pState));
QVXS_API(QvxStatus, qvxsFIR64f_32f_I, (Qvx32f* pSrcDst, int numIters, QvxsFIRState64f_32f* pState));
QVXS_API(QvxStatus, qvxsFIROne64f_32f, (Qvx32f src, Qvx32f* pDstVal, QvxsFIRState64f_32f* pState));
QVXS_API(QvxStatus, qvxsFIR64fc_32fc, (const Qvx32fc* pSrc, Qvx32fc* pDst, int numIters, QvxsFIRState64fc_32fc* pState));
QVXS_API(QvxStatus, qvxsFIR64fc_32fc_I, (Qvx32fc* pSrcDst, int numIters, QvxsFIRState64fc_32fc* pState));
QVXS_API(QvxStatus, qvxsFIROne64fc_32fc, (Qvx32fc src, Qvx32fc* pDstVal, QvxsFIRState64fc_32fc* pState));
QVXS_API(QvxStatus, qvxsFIR64f_32s_Sfs, (const Qvx32s* pSrc, Qvx32s* pDst, int numIters, QvxsFIRState64f_32s* pState, int scaleFactor));
QVXS_API(QvxStatus, qvxsFIR64f_32s_ISfs, (Qvx32s* pSrcDst, int numIters, QvxsFIRState64f_32s* pState, int scaleFactor));
QVXS_API(QvxStatus, qvxsFIROne64f_32s_Sfs, (Qvx32s src, Qvx32s* pDstVal, QvxsFIRState64f_32s* pState, int scaleFactor));
QVXS_API(QvxStatus, qvxsFIR64fc_32sc_Sfs, (const Qvx32sc* pSrc, Qvx32sc* pDst, int numIters, QvxsFIRState64fc_32sc* pState, int scaleFactor));
QVXS_API(QvxStatus, qvxsFIR64fc_32sc_ISfs, (Qvx32sc* pSrcDst, int numIters, QvxsFIRState64fc_32sc* pState, int scaleFactor));
QVXS_API(QvxStatus, qvxsFIROne64fc_32sc_Sfs, (Qvx32sc src, Qvx32sc* pDstVal, QvxsFIRState64fc_32sc* pState, int scaleFactor));
QVXS_API(QvxStatus, qvxsFIR64f_16s_Sfs, (const Qvx16s* pSrc, Qvx16s* pDst, int numIters, QvxsFIRState64f_16s* pState, int scaleFactor));
QVXS_API(QvxStatus, qvxsFIR64f_16s_ISfs, (Qvx16s* pSrcDst, int numIters, QvxsFIRState64f_16s* pState, int scaleFactor));
QVXS_API(QvxStatus, qvxsFIROne64f_16s_Sfs, (Qvx16s src, Qvx16s* pDstVal, QvxsFIRState64f_16s* pState, int scaleFactor));
QVXS_API(QvxStatus, qvxsFIR64fc_16sc_Sfs, (const Qvx16sc* pSrc, Qvx16sc* pDst, int numIters, QvxsFIRState64fc_16sc* pState, int scaleFactor));
QVXS_API(QvxStatus, qvxsFIR64fc_16sc_ISfs, (Qvx16sc* pSrcDst, int numIters, QvxsFIRState64fc_16sc* pState, int scaleFactor));
QVXS_API(QvxStatus, qvxsFIROne64fc_16sc_Sfs, (Qvx16sc src, Qvx16sc* pDstVal, QvxsFIRState64fc_16sc* pState, int scaleFactor));
QVXS_API(QvxStatus, qvxsFIR32s_16s_Sfs, (const Qvx16s* pSrc, Qvx16s* pDst, int numIters, QvxsFIRState32s_16s* pState, int scaleFactor));
QVXS_API(QvxStatus, qvxsFIR32s_16s_ISfs, (Qvx16s* pSrcDst, int numIters, QvxsFIRState32s_16s* pState, int scaleFactor));
QVXS_API(QvxStatus, qvxsFIROne32s_16s_Sfs, (Qvx16s src, Qvx16s* pDstVal, QvxsFIRState32s_16s* pState, int scaleFactor));
QVXS_API(QvxStatus, qvxsFIR32sc_16sc_Sfs, (const Qvx16sc* pSrc, Qvx16sc* pDst, int numIters, QvxsFIRState32sc_16sc* pState, int scaleFactor));
QVXS_API(QvxStatus, qvxsFIR32sc_16sc_ISfs, (Qvx16sc* pSrcDst, int numIters, QvxsFIRState32sc_16sc* pState, int scaleFactor));
QVXS_API(QvxStatus, qvxsFIROne32sc_16sc_Sfs, (Qvx16sc src, Qvx16sc* pDstVal, QvxsFIRState32sc_16sc* pState, int scaleFactor));
QVXS_API(QvxStatus, qvxsFIR_16s_Sfs, (const Qvx16s* pSrc, Qvx16s* pDst, int numIters, QvxsFIRState_16s* pState, int scaleFactor));
QVXS_API(QvxStatus, qvxsFIR_16s_ISfs, (Qvx16s* pSrcDst, int numIters, QvxsFIRState_16s* pState, int scaleFactor));
QVXS_API(QvxStatus, qvxsFIROne_16s_Sfs, (Qvx16s src, Qvx16s* pDstVal, QvxsFIRState_16s* pState, int scaleFactor));
QVXS_API(QvxStatus, qvxsFIR_32s_Sfs, (const Qvx32s* pSrc, Qvx32s* pDst, int numIters, QvxsFIRState_32s* pState, int scaleFactor));
QVXS_API(QvxStatus, qvxsFIR_32s_ISfs, (Qvx32s* pSrcDst, int numIters, QvxsFIRState_32s* pState, int scaleFactor));
QVXS_API(QvxStatus, qvxsFIROne_32s_Sfs, (Qvx32s src, Qvx32s* pDstVal, QvxsFIRState_32s* pState, int scaleFactor));

/** The same without a record: the caller keeps the taps and 2 * tapsLen samples at pDlyLine, zeros to begin with, and an index,
 *  0 to begin with. Every new sample is stored twice, at the index and tapsLen after it, and then the index moves on; so the last
 *  tapsLen samples are those from the index on, oldest first.
 *  pDlyLine, *pDlyLineIndex: read and updated. The forms of one type with 64 taps or more (32fc, 64f: 32; 64fc: 16), and those
 *  in place, leave the index as it is and renew only the tapsLen samples from it on. Those with fewer taps leave the newest
 *  tapsLen - 1 samples at the beginning of pDlyLine, oldest first, and nowhere else, with the index tapsLen - 1, where a call
 *  brings tapsLen samples or more. So a stream keeps to one form, or to qvxsFIROne_Direct and short filters, both of one type.
 *  qvxsFIR_Direct_16s reads the samples newest first and stores them newest first at the beginning, with an index of 0.
 *  Integer taps: of 16s, h[k] = pTaps[k] * 2^-15; of 32s and 32sc, pTaps[k] * 2^tapsFactor, taken as they are, in sums of 32 bits
 *  that wrap. Here, s above 31 counts as 31, but in qvxsFIR_Direct_16s.
 *  Results in integers of float arithmetic are scaled, saturated and rounded half away from zero, by adding a half.
 *  Returns as qvxsFIR, but for the record: qvxStatBadTapsLen (tapsLen < 1); qvxStatBadDlyIndex (index outside 0 to tapsLen - 1);
 *  qvxStatNoMem. */
QVXS_API(QvxStatus, qvxsFIR_Direct_32f, (const Qvx32f* pSrc, Qvx32f* pDst, int numIters, const Qvx32f* pTaps, int tapsLen, Qvx32f* pDlyLine, int* pDlyLineIndex));
QVXS_API(QvxStatus, qvxsFIR_Direct_32f_I, (Qvx32f* pSrcDst, int numIters, const Qvx32f* pTaps, int tapsLen, Qvx32f* pDlyLine, int* pDlyLineIndex));
QVXS_API(QvxStatus, qvxsFIROne_Direct_32f, (Qvx32f src, Qvx32f* pDstVal, const Qvx32f* pTaps, int tapsLen, Qvx32f* pDlyLine, int* pDlyLineIndex));
QVXS_API(QvxStatus, qvxsFIR_Direct_32fc, (const Qvx32fc* pSrc, Qvx32fc* pDst, int numIters, const Qvx32fc* pTaps, int tapsLen, Qvx32fc* pDlyLine, int* pDlyLineIndex));
QVXS_API(QvxStatus, qvxsFIR_Direct_32fc_I, (Qvx32fc* pSrcDst, int numIters, const Qvx32fc* pTaps, int tapsLen, Qvx32fc* pDlyLine, int* pDlyLineIndex));
QVXS_API(QvxStatus, qvxsFIROne_Direct_32fc, (Qvx32fc src, Qvx32fc* pDstVal, const Qvx32fc* pTaps, int tapsLen, Qvx32fc* pDlyLine, int* pDlyLineIndex));
QVXS_API(QvxStatus, qvxsFIR32f_Direct_16s_Sfs, (const Qvx16s* pSrc, Qvx16s* pDst, int numIters, const Qvx32f* pTaps, int tapsLen, Qvx16s* pDlyLine, int* pDlyLineIndex, int scaleFactor));
QVXS_API(QvxStatus, qvxsFIR32f_Direct_16s_ISfs, (Qvx16s* pSrcDst, int numIters, const Qvx32f* pTaps, int tapsLen, Qvx16s* pDlyLine, int* pDlyLineIndex, int scaleFactor));
QVXS_API(QvxStatus, qvxsFIROne32f_Direct_16s_Sfs, (Qvx16s src, Qvx16s* pDstVal, const Qvx32f* pTaps, int tapsLen, Qvx16s* pDlyLine, int* pDlyLineIndex, int scaleFactor));
QVXS_API(QvxStatus, qvxsFIR32fc_Direct_16sc_Sfs, (const Qvx16sc* pSrc, Qvx16sc* pDst, int numIters, const Qvx32fc* pTaps, int tapsLen, Qvx16sc* pDlyLine, int* pDlyLineIndex, int scaleFactor));
QVXS_API(QvxStatus, qvxsFIR32fc_Direct_16sc_ISfs, (Qvx16sc* pSrcDst, int numIters, const Qvx32fc* pTaps, int tapsLen, Qvx16sc* pDlyLine, int* pDlyLineIndex, int scaleFactor));
QVXS_API(QvxStatus, qvxsFIROne32fc_Direct_16sc_Sfs, (Qvx16sc src, Qvx16sc* pDstVal, const Qvx32fc* pTaps, int tapsLen, Qvx16sc* pDlyLine, int* pDlyLineIndex, int scaleFactor));
QVXS_API(QvxStatus, qvxsFIR_Direct_64f, (const Qvx64f* pSrc, Qvx64f* pDst, int numIters, const Qvx64f* pTaps, int tapsLen, Qvx64f* pDlyLine, int* pDlyLineIndex));
QVXS_API(QvxStatus, qvxsFIR_Direct_64f_I, (Qvx64f* pSrcDst, int numIters, const Qvx64f* pTaps, int tapsLen, Qvx64f* pDlyLine, int* pDlyLineIndex));
QVXS_API(QvxStatus, qvxsFIROne_Direct_64f, (Qvx64f src, Qvx64f* pDstVal, const Qvx64f* pTaps, int tapsLen, Qvx64f* pDlyLine, int* pDlyLineIndex));
QVXS_API(QvxStatus, qvxsFIR_Direct_64fc, (const Qvx64fc* pSrc, Qvx64fc* pDst, int numIters, const Qvx64fc* pTaps, int tapsLen, Qvx64fc* pDlyLine, int* pDlyLineIndex));
QVXS_API(QvxStatus, qvxsFIR_Direct_64fc_I, (Qvx64fc* pSrcDst, int numIters, const Qvx64fc* pTaps, int tapsLen, Qvx64fc* pDlyLine, int* pDlyLineIndex));
QVXS_API(QvxStatus, qvxsFIROne_Direct_64fc, (Qvx64fc src, Qvx64fc* pDstVal, const Qvx64fc* pTaps, int tapsLen, Qvx64fc* pDlyLine, int* pDlyLineIndex));
QVXS_API(QvxStatus, qvxsFIR64f_Direct_32f, (const Qvx32f* pSrc, Qvx32f* pDst, int numIters, const Qvx64f* pTaps, int tapsLen, Qvx32f* pDlyLine, int* pDlyLineIndex));
QVXS_API(QvxStatus, qvxsFIR64f_Direct_32f_I, (Qvx32f* pSrcDst, int numIters, const Qvx64f* pTaps, int tapsLen, Qvx32f* pDlyLine, int* pDlyLineIndex));
QVXS_API(QvxStatus, qvxsFIROne64f_Direct_32f, (Qvx32f src, Qvx32f* pDstVal, const Qvx64f* pTaps, int tapsLen, Qvx32f* pDlyLine, int* pDlyLineIndex));
QVXS_API(QvxStatus, qvxsFIR64fc_Direct_32fc, (const Qvx32fc* pSrc, Qvx32fc* pDst, int numIters, const Qvx64fc* pTaps, int tapsLen, Qvx32fc* pDlyLine, int* pDlyLineIndex));
QVXS_API(QvxStatus, qvxsFIR64fc_Direct_32fc_I, (Qvx32fc* pSrcDst, int numIters, const Qvx64fc* pTaps, int tapsLen, Qvx32fc* pDlyLine, int* pDlyLineIndex));
QVXS_API(QvxStatus, qvxsFIROne64fc_Direct_32fc, (Qvx32fc src, Qvx32fc* pDstVal, const Qvx64fc* pTaps, int tapsLen, Qvx32fc* pDlyLine, int* pDlyLineIndex));
QVXS_API(QvxStatus, qvxsFIR64f_Direct_32s_Sfs, (const Qvx32s* pSrc, Qvx32s* pDst, int numIters, const Qvx64f* pTaps, int tapsLen, Qvx32s* pDlyLine, int* pDlyLineIndex, int scaleFactor));
QVXS_API(QvxStatus, qvxsFIR64f_Direct_32s_ISfs, (Qvx32s* pSrcDst, int numIters, const Qvx64f* pTaps, int tapsLen, Qvx32s* pDlyLine, int* pDlyLineIndex, int scaleFactor));
QVXS_API(QvxStatus, qvxsFIROne64f_Direct_32s_Sfs, (Qvx32s src, Qvx32s* pDstVal, const Qvx64f* pTaps, int tapsLen, Qvx32s* pDlyLine, int* pDlyLineIndex, int scaleFactor));
QVXS_API(QvxStatus, qvxsFIR64fc_Direct_32sc_Sfs, (const Qvx32sc* pSrc, Qvx32sc* pDst, int numIters, const Qvx64fc* pTaps, int tapsLen, Qvx32sc* pDlyLine, int* pDlyLineIndex, int scaleFactor));
QVXS_API(QvxStatus, qvxsFIR64fc_Direct_32sc_ISfs, (Qvx32sc* pSrcDst, int numIters, const Qvx64fc* pTaps, int tapsLen, Qvx32sc* pDlyLine, int* pDlyLineIndex, int scaleFactor));
QVXS_API(QvxStatus, qvxsFIROne64fc_Direct_32sc_Sfs, (Qvx32sc src, Qvx32sc* pDstVal, const Qvx64fc* pTaps, int tapsLen, Qvx32sc* pDlyLine, int* pDlyLineIndex, int scaleFactor));
QVXS_API(QvxStatus, qvxsFIR64f_Direct_16s_Sfs, (const Qvx16s* pSrc, Qvx16s* pDst, int numIters, const Qvx64f* pTaps, int tapsLen, Qvx16s* pDlyLine, int* pDlyLineIndex, int scaleFactor));
QVXS_API(QvxStatus, qvxsFIR64f_Direct_16s_ISfs, (Qvx16s* pSrcDst, int numIters, const Qvx64f* pTaps, int tapsLen, Qvx16s* pDlyLine, int* pDlyLineIndex, int scaleFactor));
QVXS_API(QvxStatus, qvxsFIROne64f_Direct_16s_Sfs, (Qvx16s src, Qvx16s* pDstVal, const Qvx64f* pTaps, int tapsLen, Qvx16s* pDlyLine, int* pDlyLineIndex, int scaleFactor));
QVXS_API(QvxStatus, qvxsFIR64fc_Direct_16sc_Sfs, (const Qvx16sc* pSrc, Qvx16sc* pDst, int numIters, const Qvx64fc* pTaps, int tapsLen, Qvx16sc* pDlyLine, int* pDlyLineIndex, int scaleFactor));
QVXS_API(QvxStatus, qvxsFIR64fc_Direct_16sc_ISfs, (Qvx16sc* pSrcDst, int numIters, const Qvx64fc* pTaps, int tapsLen, Qvx16sc* pDlyLine, int* pDlyLineIndex, int scaleFactor));
QVXS_API(QvxStatus, qvxsFIROne64fc_Direct_16sc_Sfs, (Qvx16sc src, Qvx16sc* pDstVal, const Qvx64fc* pTaps, int tapsLen, Qvx16sc* pDlyLine, int* pDlyLineIndex, int scaleFactor));
QVXS_API(QvxStatus, qvxsFIR32s_Direct_16s_Sfs, (const Qvx16s* pSrc, Qvx16s* pDst, int numIters, const Qvx32s* pTaps, int tapsLen, int tapsFactor, Qvx16s* pDlyLine, int* pDlyLineIndex, int scaleFactor));
QVXS_API(QvxStatus, qvxsFIR32s_Direct_16s_ISfs, (Qvx16s* pSrcDst, int numIters, const Qvx32s* pTaps, int tapsLen, int tapsFactor, Qvx16s* pDlyLine, int* pDlyLineIndex, int scaleFactor));
QVXS_API(QvxStatus, qvxsFIROne32s_Direct_16s_Sfs, (Qvx16s src, Qvx16s* pDstVal, const Qvx32s* pTaps, int tapsLen, int tapsFactor, Qvx16s* pDlyLine, int* pDlyLineIndex, int scaleFactor));
QVXS_API(QvxStatus, qvxsFIR32sc_Direct_16sc_Sfs, (const Qvx16sc* pSrc, Qvx16sc* pDst, int numIters, const Qvx32sc* pTaps, int tapsLen, int tapsFactor, Qvx16sc* pDlyLine, int* pDlyLineIndex, int scaleFactor));
QVXS_API(QvxStatus, qvxsFIR32sc_Direct_16sc_ISfs, (Qvx16sc* pSrcDst, int numIters, const Qvx32sc* pTaps, int tapsLen, int tapsFactor, Qvx16sc* pDlyLine, int* pDlyLineIndex, int scaleFactor));
QVXS_API(QvxStatus, qvxsFIROne32sc_Direct_16sc_Sfs, (Qvx16sc src, Qvx16sc* pDstVal, const Qvx32sc* pTaps, int tapsLen, int tapsFactor, Qvx16sc* pDlyLine, int* pDlyLineIndex, int scaleFactor));
QVXS_API(QvxStatus, qvxsFIR_Direct_16s_Sfs, (const Qvx16s* pSrc, Qvx16s* pDst, int numIters, const Qvx16s* pTaps, int tapsLen, Qvx16s* pDlyLine, int* pDlyLineIndex, int scaleFactor));
QVXS_API(QvxStatus, qvxsFIR_Direct_16s_ISfs, (Qvx16s* pSrcDst, int numIters, const Qvx16s* pTaps, int tapsLen, Qvx16s* pDlyLine, int* pDlyLineIndex, int scaleFactor));
QVXS_API(QvxStatus, qvxsFIROne_Direct_16s_Sfs, (Qvx16s src, Qvx16s* pDstVal, const Qvx16s* pTaps, int tapsLen, Qvx16s* pDlyLine, int* pDlyLineIndex, int scaleFactor));

/** qvxsFIROne_Direct in place. */
QVXS_API(QvxStatus, qvxsFIROne_Direct_32f_I, (Qvx32f* pSrcDstVal, const Qvx32f* pTaps, int tapsLen, Qvx32f* pDlyLine, int* pDlyLineIndex));
QVXS_API(QvxStatus, qvxsFIROne_Direct_32fc_I, (Qvx32fc* pSrcDstVal, const Qvx32fc* pTaps, int tapsLen, Qvx32fc* pDlyLine, int* pDlyLineIndex));
QVXS_API(QvxStatus, qvxsFIROne32f_Direct_16s_ISfs, (Qvx16s* pSrcDstVal, const Qvx32f* pTaps, int tapsLen, Qvx16s* pDlyLine, int* pDlyLineIndex, int scaleFactor));
QVXS_API(QvxStatus, qvxsFIROne32fc_Direct_16sc_ISfs, (Qvx16sc* pSrcDstVal, const Qvx32fc* pTaps, int tapsLen, Qvx16sc* pDlyLine, int* pDlyLineIndex, int scaleFactor));
QVXS_API(QvxStatus, qvxsFIROne_Direct_64f_I, (Qvx64f* pSrcDstVal, const Qvx64f* pTaps, int tapsLen, Qvx64f* pDlyLine, int* pDlyLineIndex));
QVXS_API(QvxStatus, qvxsFIROne_Direct_64fc_I, (Qvx64fc* pSrcDstVal, const Qvx64fc* pTaps, int tapsLen, Qvx64fc* pDlyLine, int* pDlyLineIndex));
QVXS_API(QvxStatus, qvxsFIROne64f_Direct_32f_I, (Qvx32f* pSrcDstVal, const Qvx64f* pTaps, int tapsLen, Qvx32f* pDlyLine, int* pDlyLineIndex));
QVXS_API(QvxStatus, qvxsFIROne64fc_Direct_32fc_I, (Qvx32fc* pSrcDstVal, const Qvx64fc* pTaps, int tapsLen, Qvx32fc* pDlyLine, int* pDlyLineIndex));
QVXS_API(QvxStatus, qvxsFIROne64f_Direct_32s_ISfs, (Qvx32s* pSrcDstVal, const Qvx64f* pTaps, int tapsLen, Qvx32s* pDlyLine, int* pDlyLineIndex, int scaleFactor));
QVXS_API(QvxStatus, qvxsFIROne64fc_Direct_32sc_ISfs, (Qvx32sc* pSrcDstVal, const Qvx64fc* pTaps, int tapsLen, Qvx32sc* pDlyLine, int* pDlyLineIndex, int scaleFactor));
QVXS_API(QvxStatus, qvxsFIROne64f_Direct_16s_ISfs, (Qvx16s* pSrcDstVal, const Qvx64f* pTaps, int tapsLen, Qvx16s* pDlyLine, int* pDlyLineIndex, int scaleFactor));
QVXS_API(QvxStatus, qvxsFIROne64fc_Direct_16sc_ISfs, (Qvx16sc* pSrcDstVal, const Qvx64fc* pTaps, int tapsLen, Qvx16sc* pDlyLine, int* pDlyLineIndex, int scaleFactor));
QVXS_API(QvxStatus, qvxsFIROne32s_Direct_16s_ISfs, (Qvx16s* pSrcDstVal, const Qvx32s* pTaps, int tapsLen, int tapsFactor, Qvx16s* pDlyLine, int* pDlyLineIndex, int scaleFactor));
QVXS_API(QvxStatus, qvxsFIROne32sc_Direct_16sc_ISfs, (Qvx16sc* pSrcDstVal, const Qvx32sc* pTaps, int tapsLen, int tapsFactor, Qvx16sc* pDlyLine, int* pDlyLineIndex, int scaleFactor));
QVXS_API(QvxStatus, qvxsFIROne_Direct_16s_ISfs, (Qvx16s* pSrcDstVal, const Qvx16s* pTaps, int tapsLen, Qvx16s* pDlyLine, int* pDlyLineIndex, int scaleFactor));

#ifdef __cplusplus
}
#endif

#endif
