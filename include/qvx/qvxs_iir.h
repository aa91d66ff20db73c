/* Recursive filters: direct form, cascades of second-order sections, sparse ones, and design. */
#ifndef QVX_QVXS_IIR_H
#define QVX_QVXS_IIR_H

#include <qvx/qvxdefs.h>

#ifdef __cplusplus
extern "C" {
#endif

/* A filter's record: taps, delay line and what is derived from them, in one block of memory.
 *
 *     stem                       taps      memory    samples
 *     _32f  _32fc  _64f  _64fc   as the samples      as named
 *     32f_16s   32fc_16sc        Qvx32f[c] Qvx32f[c] Qvx16s[c]
 *     32s_16s   32sc_16sc        Qvx32s[c] Qvx32f[c] Qvx16s[c]   taps times 2^-tapsFactor
 *     32s_16s32f 32sc_16sc32fc   Qvx32f[c] Qvx32f[c] Qvx16s[c]   float taps for the same record
 *     64f_32f   64fc_32fc        Qvx64f[c] Qvx64f[c] Qvx32f[c]
 *     64f_32s   64fc_32sc        Qvx64f[c] Qvx64f[c] Qvx32s[c]
 *     64f_16s   64fc_16sc        Qvx64f[c] Qvx64f[c] Qvx16s[c]
 *
 * The memory is the delay line of the transposed direct form II: with taps b[0..N], a[0..N], normalised so that a[0] is 1,
 *
 *     y = b[0] * x + d[0];  d[i] = b[i+1] * x - a[i+1] * y + d[i+1] for i = 0..N-1, d[N] = 0
 *
 * A record is of one of three forms, set by its initialiser:
 *   direct       one filter of any order N; taps b[0..N], a[0..N]; line d[0..N-1]
 *   BiQuad       numBq sections of second order, one after the other; taps b0, b1, b2, a0, a1, a2 for each; line d[0], d[1]
 *                for each
 *   BiQuad_DF1   the same sections in the direct form I; line x[n-2], x[n-1], y[n-2], y[n-1] for each
 *
 * The same functions filter all forms. Each is written by one thread at a time. */
typedef struct QvxsIIRState_32f QvxsIIRState_32f;
typedef struct QvxsIIRState_32fc QvxsIIRState_32fc;
typedef struct QvxsIIRState32f_16s QvxsIIRState32f_16s;
typedef struct QvxsIIRState32fc_16sc QvxsIIRState32fc_16sc;
typedef struct QvxsIIRState32s_16s QvxsIIRState32s_16s;
typedef struct QvxsIIRState32sc_16sc QvxsIIRState32sc_16sc;
typedef struct QvxsIIRState_64f QvxsIIRState_64f;
typedef struct QvxsIIRState_64fc QvxsIIRState_64fc;
typedef struct QvxsIIRState64f_32f QvxsIIRState64f_32f;
typedef struct QvxsIIRState64fc_32fc QvxsIIRState64fc_32fc;
typedef struct QvxsIIRState64f_32s QvxsIIRState64f_32s;
typedef struct QvxsIIRState64fc_32sc QvxsIIRState64fc_32sc;
typedef struct QvxsIIRState64f_16s QvxsIIRState64f_16s;
typedef struct QvxsIIRState64fc_16sc QvxsIIRState64fc_16sc;
typedef struct QvxsIIRSparseState_32f QvxsIIRSparseState_32f;

/** *pStateSize = the bytes that a record of this order takes, wherever its block starts, modulo 2^32. One of 2^31 bytes or
 *  more is not for qvxsIIRInit, and qvxsIIRInitAlloc refuses it.
 *  Returns qvxStatOk; qvxStatNullPtr; qvxStatBadIIROrder (order < 1). */
QVXS_API(QvxStatus, qvxsIIRGetStateSize_32f, (int order, int* pStateSize));
QVXS_API(QvxStatus, qvxsIIRGetStateSize_32fc, (int order, int* pStateSize));
QVXS_API(QvxStatus, qvxsIIRGetStateSize32f_16s, (int order, int* pStateSize));
QVXS_API(QvxStatus, qvxsIIRGetStateSize32fc_16sc, (int order, int* pStateSize));
QVXS_API(QvxStatus, qvxsIIRGetStateSize32s_16s, (int order, int* pStateSize));
QVXS_API(QvxStatus, qvxsIIRGetStateSize32s_16s32f, (int order, int* pStateSize));
QVXS_API(QvxStatus, qvxsIIRGetStateSize32sc_16sc, (int order, int* pStateSize));
QVXS_API(QvxStatus, qvxsIIRGetStateSize32sc_16sc32fc, (int order, int* pStateSize));
QVXS_API(QvxStatus, qvxsIIRGetStateSize_64f, (int order, int* pStateSize));
QVXS_API(QvxStatus, qvxsIIRGetStateSize_64fc, (int order, int* pStateSize));
QVXS_API(QvxStatus, qvxsIIRGetStateSize64f_32f, (int order, int* pStateSize));
QVXS_API(QvxStatus, qvxsIIRGetStateSize64fc_32fc, (int order, int* pStateSize));
QVXS_API(QvxStatus, qvxsIIRGetStateSize64f_32s, (int order, int* pStateSize));
QVXS_API(QvxStatus, qvxsIIRGetStateSize64fc_32sc, (int order, int* pStateSize));
QVXS_API(QvxStatus, qvxsIIRGetStateSize64f_16s, (int order, int* pStateSize));
QVXS_API(QvxStatus, qvxsIIRGetStateSize64fc_16sc, (int order, int* pStateSize));

/** The same for numBq sections. Returns qvxStatBadIIROrder for numBq < 1. */
QVXS_API(QvxStatus, qvxsIIRGetStateSize_BiQuad_32f, (int numBq, int* pStateSize));
QVXS_API(QvxStatus, qvxsIIRGetStateSize_BiQuad_32fc, (int numBq, int* pStateSize));
QVXS_API(QvxStatus, qvxsIIRGetStateSize32f_BiQuad_16s, (int numBq, int* pStateSize));
QVXS_API(QvxStatus, qvxsIIRGetStateSize32fc_BiQuad_16sc, (int numBq, int* pStateSize));
QVXS_API(QvxStatus, qvxsIIRGetStateSize32s_BiQuad_16s, (int numBq, int* pStateSize));
QVXS_API(QvxStatus, qvxsIIRGetStateSize32s_BiQuad_16s32f, (int numBq, int* pStateSize));
QVXS_API(QvxStatus, qvxsIIRGetStateSize32sc_BiQuad_16sc, (int numBq, int* pStateSize));
QVXS_API(QvxStatus, qvxsIIRGetStateSize32sc_BiQuad_16sc32fc, (int numBq, int* pStateSize));
QVXS_API(QvxStatus, qvxsIIRGetStateSize_BiQuad_64f, (int numBq, int* pStateSize));
QVXS_API(QvxStatus, qvxsIIRGetStateSize_BiQuad_64fc, (int numBq, int* pStateSize));
QVXS_API(QvxStatus, qvxsIIRGetStateSize64f_BiQuad_32f, (int numBq, int* pStateSize));
QVXS_API(QvxStatus, qvxsIIRGetStateSize64fc_BiQuad_32fc, (int numBq, int* pStateSize));
QVXS_API(QvxStatus, qvxsIIRGetStateSize64f_BiQuad_32s, (int numBq, int* pStateSize));
QVXS_API(QvxStatus, qvxsIIRGetStateSize64fc_BiQuad_32sc, (int numBq, int* pStateSize));
QVXS_API(QvxStatus, qvxsIIRGetStateSize64f_BiQuad_16s, (int numBq, int* pStateSize));
QVXS_API(QvxStatus, qvxsIIRGetStateSize64fc_BiQuad_16sc, (int numBq, int* pStateSize));

/** Builds a record of the direct form in the caller's block.
 *  *ppState: the record, inside pBuf. pBuf: as many bytes as qvxsIIRGetStateSize says, any alignment.
 *  pTaps: b[0..order], a[0..order]; all are multiplied by 1 / a[0], a complex a[0] by its reciprocal. Qvx32s taps count times
 *  2^-tapsFactor, where those of FIR filters count times 2^tapsFactor. pDlyLine: order values, or null for zeros. Neither is read
 *  again.
 *  Returns qvxStatOk; qvxStatNullPtr; qvxStatBadIIROrder (order < 1); qvxStatNoMem (Qvx32s taps: no room to convert them);
 *  qvxStatDivByZero (a[0] is 0: *ppState is set, but the filter is not to be used until its taps are set). */
QVXS_API(QvxStatus, qvxsIIRInit_32f,
         (QvxsIIRState_32f** ppState, const Qvx32f* pTaps, int order, const Qvx32f* pDlyLine, Qvx8u* pBuf));
QVXS_API(QvxStatus, qvxsIIRInit_32fc,
         (QvxsIIRState_32fc** ppState, const Qvx32fc* pTaps, int order, const Qvx32fc* pDlyLine, Qvx8u* pBuf));
QVXS_API(QvxStatus, qvxsIIRInit32f_16s,
         (QvxsIIRState32f_16s** ppState, const Qvx32f* pTaps, int order, const Qvx32f* pDlyLine, Qvx8u* pBuf));
QVXS_API(QvxStatus, qvxsIIRInit32fc_16sc,
         (QvxsIIRState32fc_16sc** ppState, const Qvx32fc* pTaps, int order, const Qvx32fc* pDlyLine, Qvx8u* pBuf));
QVXS_API(QvxStatus, qvxsIIRInit32s_16s,
         (QvxsIIRState32s_16s** ppState, const Qvx32s* pTaps, int order, int tapsFactor, const Qvx32f* pDlyLine, Qvx8u* pBuf));
QVXS_API(QvxStatus, qvxsIIRInit32s_16s32f,
         (QvxsIIRState32s_16s** ppState, const Qvx32f* pTaps, int order, const Qvx32f* pDlyLine, Qvx8u* pBuf));
QVXS_API(QvxStatus, qvxsIIRInit32sc_16sc,
         (QvxsIIRState32sc_16sc** ppState, const Qvx32sc* pTaps, int order, int tapsFactor, const Qvx32fc* pDlyLine,
          Qvx8u* pBuf));
QVXS_API(QvxStatus, qvxsIIRInit32sc_16sc32fc,
         (QvxsIIRState32sc_16sc** ppState, const Qvx32fc* pTaps, int order, const Qvx32fc* pDlyLine, Qvx8u* pBuf));
QVXS_API(QvxStatus, qvxsIIRInit_64f,
         (QvxsIIRState_64f** ppState, const Qvx64f* pTaps, int order, const Qvx64f* pDlyLine, Qvx8u* pBuf));
QVXS_API(QvxStatus, qvxsIIRInit_64fc,
         (QvxsIIRState_64fc** ppState, const Qvx64fc* pTaps, int order, const Qvx64fc* pDlyLine, Qvx8u* pBuf));
QVXS_API(QvxStatus, qvxsIIRInit64f_32f,
         (QvxsIIRState64f_32f** ppState, const Qvx64f* pTaps, int order, const Qvx64f* pDlyLine, Qvx8u* pBuf));
QVXS_API(QvxStatus, qvxsIIRInit64fc_32fc,
         (QvxsIIRState64fc_32fc** ppState, const Qvx64fc* pTaps, int order, const Qvx64fc* pDlyLine, Qvx8u* pBuf));
QVXS_API(QvxStatus, qvxsIIRInit64f_32s,
         (QvxsIIRState64f_32s** ppState, const Qvx64f* pTaps, int order, const Qvx64f* pDlyLine, Qvx8u* pBuf));
QVXS_API(QvxStatus, qvxsIIRInit64fc_32sc,
         (QvxsIIRState64fc_32sc** ppState, const Qvx64fc* pTaps, int order, const Qvx64fc* pDlyLine, Qvx8u* pBuf));
QVXS_API(QvxStatus, qvxsIIRInit64f_16s,
         (QvxsIIRState64f_16s** ppState, const Qvx64f* pTaps, int order, const Qvx64f* pDlyLine, Qvx8u* pBuf));
QVXS_API(QvxStatus, qvxsIIRInit64fc_16sc,
         (QvxsIIRState64fc_16sc** ppState, const Qvx64fc* pTaps, int order, const Qvx64fc* pDlyLine, Qvx8u* pBuf));

/** The same for numBq sections: pTaps 6 * numBq values, pDlyLine 2 * numBq. qvxStatDivByZero also for a b0 of 0, which the direct
 *  form takes, and the direct form I of Qvx32f. */
QVXS_API(QvxStatus, qvxsIIRInit_BiQuad_32f,
         (QvxsIIRState_32f** ppState, const Qvx32f* pTaps, int numBq, const Qvx32f* pDlyLine, Qvx8u* pBuf));
QVXS_API(QvxStatus, qvxsIIRInit_BiQuad_32fc,
         (QvxsIIRState_32fc** ppState, const Qvx32fc* pTaps, int numBq, const Qvx32fc* pDlyLine, Qvx8u* pBuf));
QVXS_API(QvxStatus, qvxsIIRInit32f_BiQuad_16s,
         (QvxsIIRState32f_16s** ppState, const Qvx32f* pTaps, int numBq, const Qvx32f* pDlyLine, Qvx8u* pBuf));
QVXS_API(QvxStatus, qvxsIIRInit32fc_BiQuad_16sc,
         (QvxsIIRState32fc_16sc** ppState, const Qvx32fc* pTaps, int numBq, const Qvx32fc* pDlyLine, Qvx8u* pBuf));
QVXS_API(QvxStatus, qvxsIIRInit32s_BiQuad_16s,
         (QvxsIIRState32s_16s** ppState, const Qvx32s* pTaps, int numBq, int tapsFactor, const Qvx32f* pDlyLine, Qvx8u* pBuf));
QVXS_API(QvxStatus, qvxsIIRInit32s_BiQuad_16s32f,
         (QvxsIIRState32s_16s** ppState, const Qvx32f* pTaps, int numBq, const Qvx32f* pDlyLine, Qvx8u* pBuf));
QVXS_API(QvxStatus, qvxsIIRInit32sc_BiQuad_16sc,
         (QvxsIIRState32sc_16sc** ppState, const Qvx32sc* pTaps, int numBq, int tapsFactor, const Qvx32fc* pDlyLine,
          Qvx8u* pBuf));
QVXS_API(QvxStatus, qvxsIIRInit32sc_BiQuad_16sc32fc,
         (QvxsIIRState32sc_16sc** ppState, const Qvx32fc* pTaps, int numBq, const Qvx32fc* pDlyLine, Qvx8u* pBuf));
QVXS_API(QvxStatus, qvxsIIRInit_BiQuad_64f,
         (QvxsIIRState_64f** ppState, const Qvx64f* pTaps, int numBq, const Qvx64f* pDlyLine, Qvx8u* pBuf));
QVXS_API(QvxStatus, qvxsIIRInit_BiQuad_64fc,
         (QvxsIIRState_64fc** ppState, const Qvx64fc* pTaps, int numBq, const Qvx64fc* pDlyLine, Qvx8u* pBuf));
QVXS_API(QvxStatus, qvxsIIRInit64f_BiQuad_32f,
         (QvxsIIRState64f_32f** ppState, const Qvx64f* pTaps, int numBq, const Qvx64f* pDlyLine, Qvx8u* pBuf));
QVXS_API(QvxStatus, qvxsIIRInit64fc_BiQuad_32fc,
         (QvxsIIRState64fc_32fc** ppState, const Qvx64fc* pTaps, int numBq, const Qvx64fc* pDlyLine, Qvx8u* pBuf));
QVXS_API(QvxStatus, qvxsIIRInit64f_BiQuad_32s,
         (QvxsIIRState64f_32s** ppState, const Qvx64f* pTaps, int numBq, const Qvx64f* pDlyLine, Qvx8u* pBuf));
QVXS_API(QvxStatus, qvxsIIRInit64fc_BiQuad_32sc,
         (QvxsIIRState64fc_32sc** ppState, const Qvx64fc* pTaps, int numBq, const Qvx64fc* pDlyLine, Qvx8u* pBuf));
QVXS_API(QvxStatus, qvxsIIRInit64f_BiQuad_16s,
         (QvxsIIRState64f_16s** ppState, const Qvx64f* pTaps, int numBq, const Qvx64f* pDlyLine, Qvx8u* pBuf));
QVXS_API(QvxStatus, qvxsIIRInit64fc_BiQuad_16sc,
         (QvxsIIRState64fc_16sc** ppState, const Qvx64fc* pTaps, int numBq, const Qvx64fc* pDlyLine, Qvx8u* pBuf));

/** As qvxsIIRInit, in a block of the library's own, to be released with qvxsIIRFree.
 *  Returns as qvxsIIRInit, and qvxStatNoMem. On any error there is no block, and *ppState must not be used. */
QVXS_API(QvxStatus, qvxsIIRInitAlloc_32f, (QvxsIIRState_32f** ppState, const Qvx32f* pTaps, int order, const Qvx32f* pDlyLine));
QVXS_API(QvxStatus, qvxsIIRInitAlloc_32fc,
         (QvxsIIRState_32fc** ppState, const Qvx32fc* pTaps, int order, const Qvx32fc* pDlyLine));
QVXS_API(QvxStatus, qvxsIIRInitAlloc32f_16s,
         (QvxsIIRState32f_16s** ppState, const Qvx32f* pTaps, int order, const Qvx32f* pDlyLine));
QVXS_API(QvxStatus, qvxsIIRInitAlloc32fc_16sc,
         (QvxsIIRState32fc_16sc** ppState, const Qvx32fc* pTaps, int order, const Qvx32fc* pDlyLine));
QVXS_API(QvxStatus, qvxsIIRInitAlloc32s_16s,
         (QvxsIIRState32s_16s** ppState, const Qvx32s* pTaps, int order, int tapsFactor, const Qvx32f* pDlyLine));
QVXS_API(QvxStatus, qvxsIIRInitAlloc32s_16s32f,
         (QvxsIIRState32s_16s** ppState, const Qvx32f* pTaps, int order, const Qvx32f* pDlyLine));
QVXS_API(QvxStatus, qvxsIIRInitAlloc32sc_16sc,
         (QvxsIIRState32sc_16sc** ppState, const Qvx32sc* pTaps, int order, int tapsFactor, const Qvx32fc* pDlyLine));
QVXS_API(QvxStatus, qvxsIIRInitAlloc32sc_16sc32fc,
         (QvxsIIRState32sc_16sc** ppState, const Qvx32fc* pTaps, int order, const Qvx32fc* pDlyLine));
QVXS_API(QvxStatus, qvxsIIRInitAlloc_64f, (QvxsIIRState_64f** ppState, const Qvx64f* pTaps, int order, const Qvx64f* pDlyLine));
QVXS_API(QvxStatus, qvxsIIRInitAlloc_64fc,
         (QvxsIIRState_64fc** ppState, const Qvx64fc* pTaps, int order, const Qvx64fc* pDlyLine));
QVXS_API(QvxStatus, qvxsIIRInitAlloc64f_32f,
         (QvxsIIRState64f_32f** ppState, const Qvx64f* pTaps, int order, const Qvx64f* pDlyLine));
QVXS_API(QvxStatus, qvxsIIRInitAlloc64fc_32fc,
         (QvxsIIRState64fc_32fc** ppState, const Qvx64fc* pTaps, int order, const Qvx64fc* pDlyLine));
QVXS_API(QvxStatus, qvxsIIRInitAlloc64f_32s,
         (QvxsIIRState64f_32s** ppState, const Qvx64f* pTaps, int order, const Qvx64f* pDlyLine));
QVXS_API(QvxStatus, qvxsIIRInitAlloc64fc_32sc,
         (QvxsIIRState64fc_32sc** ppState, const Qvx64fc* pTaps, int order, const Qvx64fc* pDlyLine));
QVXS_API(QvxStatus, qvxsIIRInitAlloc64f_16s,
         (QvxsIIRState64f_16s** ppState, const Qvx64f* pTaps, int order, const Qvx64f* pDlyLine));
QVXS_API(QvxStatus, qvxsIIRInitAlloc64fc_16sc,
         (QvxsIIRState64fc_16sc** ppState, const Qvx64fc* pTaps, int order, const Qvx64fc* pDlyLine));

/** The same for numBq sections. */
QVXS_API(QvxStatus, qvxsIIRInitAlloc_BiQuad_32f,
         (QvxsIIRState_32f** ppState, const Qvx32f* pTaps, int numBq, const Qvx32f* pDlyLine));
QVXS_API(QvxStatus, qvxsIIRInitAlloc_BiQuad_32fc,
         (QvxsIIRState_32fc** ppState, const Qvx32fc* pTaps, int numBq, const Qvx32fc* pDlyLine));
QVXS_API(QvxStatus, qvxsIIRInitAlloc32f_BiQuad_16s,
         (QvxsIIRState32f_16s** ppState, const Qvx32f* pTaps, int numBq, const Qvx32f* pDlyLine));
QVXS_API(QvxStatus, qvxsIIRInitAlloc32fc_BiQuad_16sc,
         (QvxsIIRState32fc_16sc** ppState, const Qvx32fc* pTaps, int numBq, const Qvx32fc* pDlyLine));
QVXS_API(QvxStatus, qvxsIIRInitAlloc32s_BiQuad_16s,
         (QvxsIIRState32s_16s** ppState, const Qvx32s* pTaps, int numBq, int tapsFactor, const Qvx32f* pDlyLine));
QVXS_API(QvxStatus, qvxsIIRInitAlloc32s_BiQuad_16s32f,
         (QvxsIIRState32s_16s** ppState, const Qvx32f* pTaps, int numBq, const Qvx32f* pDlyLine));
QVXS_API(QvxStatus, qvxsIIRInitAlloc32sc_BiQuad_16sc,
         (QvxsIIRState32sc_16sc** ppState, const Qvx32sc* pTaps, int numBq, int tapsFactor, const Qvx32fc* pDlyLine));
QVXS_API(QvxStatus, qvxsIIRInitAlloc32sc_BiQuad_16sc32fc,
         (QvxsIIRState32sc_16sc** ppState, const Qvx32fc* pTaps, int numBq, const Qvx32fc* pDlyLine));
QVXS_API(QvxStatus, qvxsIIRInitAlloc_BiQuad_64f,
         (QvxsIIRState_64f** ppState, const Qvx64f* pTaps, int numBq, const Qvx64f* pDlyLine));
QVXS_API(QvxStatus, qvxsIIRInitAlloc_BiQuad_64fc,
         (QvxsIIRState_64fc** ppState, const Qvx64fc* pTaps, int numBq, const Qvx64fc* pDlyLine));
QVXS_API(QvxStatus, qvxsIIRInitAlloc64f_BiQuad_32f,
         (QvxsIIRState64f_32f** ppState, const Qvx64f* pTaps, int numBq, const Qvx64f* pDlyLine));
QVXS_API(QvxStatus, qvxsIIRInitAlloc64fc_BiQuad_32fc,
         (QvxsIIRState64fc_32fc** ppState, const Qvx64fc* pTaps, int numBq, const Qvx64fc* pDlyLine));
QVXS_API(QvxStatus, qvxsIIRInitAlloc64f_BiQuad_32s,
         (QvxsIIRState64f_32s** ppState, const Qvx64f* pTaps, int numBq, const Qvx64f* pDlyLine));
QVXS_API(QvxStatus, qvxsIIRInitAlloc64fc_BiQuad_32sc,
         (QvxsIIRState64fc_32sc** ppState, const Qvx64fc* pTaps, int numBq, const Qvx64fc* pDlyLine));
QVXS_API(QvxStatus, qvxsIIRInitAlloc64f_BiQuad_16s,
         (QvxsIIRState64f_16s** ppState, const Qvx64f* pTaps, int numBq, const Qvx64f* pDlyLine));
QVXS_API(QvxStatus, qvxsIIRInitAlloc64fc_BiQuad_16sc,
         (QvxsIIRState64fc_16sc** ppState, const Qvx64fc* pTaps, int numBq, const Qvx64fc* pDlyLine));

/** Sections in the direct form I. As their BiQuad brothers, with 4 values a section in pDlyLine. _32f: taps with an a0 of just 1
 *  are taken bit by bit, and a b0 of 0 is allowed. */
QVXS_API(QvxStatus, qvxsIIRGetStateSize_BiQuad_DF1_32f, (int numBq, int* pStateSize));
QVXS_API(QvxStatus, qvxsIIRInit_BiQuad_DF1_32f,
         (QvxsIIRState_32f** ppState, const Qvx32f* pTaps, int numBq, const Qvx32f* pDlyLine, Qvx8u* pBuf));
QVXS_API(QvxStatus, qvxsIIRGetStateSize64f_BiQuad_DF1_32s, (int numBq, int* pStateSize));
QVXS_API(QvxStatus, qvxsIIRInit64f_BiQuad_DF1_32s,
         (QvxsIIRState64f_32s** ppState, const Qvx64f* pTaps, int numBq, const Qvx32s* pDlyLine, Qvx8u* pBuf));
QVXS_API(QvxStatus, qvxsIIRInitAlloc_BiQuad_DF1_32f,
         (QvxsIIRState_32f** ppState, const Qvx32f* pTaps, int numBq, const Qvx32f* pDlyLine));
QVXS_API(QvxStatus, qvxsIIRInitAlloc64f_BiQuad_DF1_32s,
         (QvxsIIRState64f_32s** ppState, const Qvx64f* pTaps, int numBq, const Qvx32s* pDlyLine));

/** Releases a record of qvxsIIRInitAlloc; one in a caller's block is left as it is.
 *  Returns qvxStatOk; qvxStatNullPtr; qvxStatContextMismatch (not a record of this stem). */
QVXS_API(QvxStatus, qvxsIIRFree_32f, (QvxsIIRState_32f* pState));
QVXS_API(QvxStatus, qvxsIIRFree_32fc, (QvxsIIRState_32fc* pState));
QVXS_API(QvxStatus, qvxsIIRFree32f_16s, (QvxsIIRState32f_16s* pState));
QVXS_API(QvxStatus, qvxsIIRFree32fc_16sc, (QvxsIIRState32fc_16sc* pState));
QVXS_API(QvxStatus, qvxsIIRFree32s_16s, (QvxsIIRState32s_16s* pState));
QVXS_API(QvxStatus, qvxsIIRFree32sc_16sc, (QvxsIIRState32sc_16sc* pState));
QVXS_API(QvxStatus, qvxsIIRFree_64f, (QvxsIIRState_64f* pState));
QVXS_API(QvxStatus, qvxsIIRFree_64fc, (QvxsIIRState_64fc* pState));
QVXS_API(QvxStatus, qvxsIIRFree64f_32f, (QvxsIIRState64f_32f* pState));
QVXS_API(QvxStatus, qvxsIIRFree64fc_32fc, (QvxsIIRState64fc_32fc* pState));
QVXS_API(QvxStatus, qvxsIIRFree64f_32s, (QvxsIIRState64f_32s* pState));
QVXS_API(QvxStatus, qvxsIIRFree64fc_32sc, (QvxsIIRState64fc_32sc* pState));
QVXS_API(QvxStatus, qvxsIIRFree64f_16s, (QvxsIIRState64f_16s* pState));
QVXS_API(QvxStatus, qvxsIIRFree64fc_16sc, (QvxsIIRState64fc_16sc* pState));

/** pDlyLine = the delay line: order values in the direct form, 2 for each section, 4 in the direct form I (_32f).
 *  It is in units of the unscaled output. 64f_32s: direct form and BiQuad only.
 *  Returns qvxStatOk; qvxStatNullPtr; qvxStatContextMismatch (not a record of this stem). */
QVXS_API(QvxStatus, qvxsIIRGetDlyLine_32f, (QvxsIIRState_32f* pState, Qvx32f* pDlyLine));
QVXS_API(QvxStatus, qvxsIIRGetDlyLine_32fc, (QvxsIIRState_32fc* pState, Qvx32fc* pDlyLine));
QVXS_API(QvxStatus, qvxsIIRGetDlyLine32f_16s, (QvxsIIRState32f_16s* pState, Qvx32f* pDlyLine));
QVXS_API(QvxStatus, qvxsIIRGetDlyLine32fc_16sc, (QvxsIIRState32fc_16sc* pState, Qvx32fc* pDlyLine));
QVXS_API(QvxStatus, qvxsIIRGetDlyLine32s_16s, (QvxsIIRState32s_16s* pState, Qvx32f* pDlyLine));
QVXS_API(QvxStatus, qvxsIIRGetDlyLine32sc_16sc, (QvxsIIRState32sc_16sc* pState, Qvx32fc* pDlyLine));
QVXS_API(QvxStatus, qvxsIIRGetDlyLine_64f, (QvxsIIRState_64f* pState, Qvx64f* pDlyLine));
QVXS_API(QvxStatus, qvxsIIRGetDlyLine_64fc, (QvxsIIRState_64fc* pState, Qvx64fc* pDlyLine));
QVXS_API(QvxStatus, qvxsIIRGetDlyLine64f_32f, (QvxsIIRState64f_32f* pState, Qvx64f* pDlyLine));
QVXS_API(QvxStatus, qvxsIIRGetDlyLine64fc_32fc, (QvxsIIRState64fc_32fc* pState, Qvx64fc* pDlyLine));
QVXS_API(QvxStatus, qvxsIIRGetDlyLine64f_32s, (QvxsIIRState64f_32s* pState, Qvx64f* pDlyLine));
QVXS_API(QvxStatus, qvxsIIRGetDlyLine64fc_32sc, (QvxsIIRState64fc_32sc* pState, Qvx64fc* pDlyLine));
QVXS_API(QvxStatus, qvxsIIRGetDlyLine64f_16s, (QvxsIIRState64f_16s* pState, Qvx64f* pDlyLine));
QVXS_API(QvxStatus, qvxsIIRGetDlyLine64fc_16sc, (QvxsIIRState64fc_16sc* pState, Qvx64fc* pDlyLine));

/** The delay line = pDlyLine, or zeros where it is null. Otherwise as qvxsIIRGetDlyLine. */
QVXS_API(QvxStatus, qvxsIIRSetDlyLine_32f, (QvxsIIRState_32f* pState, const Qvx32f* pDlyLine));
QVXS_API(QvxStatus, qvxsIIRSetDlyLine_32fc, (QvxsIIRState_32fc* pState, const Qvx32fc* pDlyLine));
QVXS_API(QvxStatus, qvxsIIRSetDlyLine32f_16s, (QvxsIIRState32f_16s* pState, const Qvx32f* pDlyLine));
QVXS_API(QvxStatus, qvxsIIRSetDlyLine32fc_16sc, (QvxsIIRState32fc_16sc* pState, const Qvx32fc* pDlyLine));
QVXS_API(QvxStatus, qvxsIIRSetDlyLine32s_16s, (QvxsIIRState32s_16s* pState, const Qvx32f* pDlyLine));
QVXS_API(QvxStatus, qvxsIIRSetDlyLine32sc_16sc, (QvxsIIRState32sc_16sc* pState, const Qvx32fc* pDlyLine));
QVXS_API(QvxStatus, qvxsIIRSetDlyLine_64f, (QvxsIIRState_64f* pState, const Qvx64f* pDlyLine));
QVXS_API(QvxStatus, qvxsIIRSetDlyLine_64fc, (QvxsIIRState_64fc* pState, const Qvx64fc* pDlyLine));
QVXS_API(QvxStatus, qvxsIIRSetDlyLine64f_32f, (QvxsIIRState64f_32f* pState, const Qvx64f* pDlyLine));
QVXS_API(QvxStatus, qvxsIIRSetDlyLine64fc_32fc, (QvxsIIRState64fc_32fc* pState, const Qvx64fc* pDlyLine));
QVXS_API(QvxStatus, qvxsIIRSetDlyLine64f_32s, (QvxsIIRState64f_32s* pState, const Qvx64f* pDlyLine));
QVXS_API(QvxStatus, qvxsIIRSetDlyLine64fc_32sc, (QvxsIIRState64fc_32sc* pState, const Qvx64fc* pDlyLine));
QVXS_API(QvxStatus, qvxsIIRSetDlyLine64f_16s, (QvxsIIRState64f_16s* pState, const Qvx64f* pDlyLine));
QVXS_API(QvxStatus, qvxsIIRSetDlyLine64fc_16sc, (QvxsIIRState64fc_16sc* pState, const Qvx64fc* pDlyLine));

/** The delay line of 64f_32s sections in the direct form I: x[n-2], x[n-1], y[n-2], y[n-1] for each, rounded to integers with
 *  ties to even, saturated. Set takes null for zeros. Returns as qvxsIIRGetDlyLine; qvxStatContextMismatch for the other forms. */
QVXS_API(QvxStatus, qvxsIIRSetDlyLine64f_DF1_32s, (QvxsIIRState64f_32s* pState, const Qvx32s* pDlyLine));
QVXS_API(QvxStatus, qvxsIIRGetDlyLine64f_DF1_32s, (QvxsIIRState64f_32s* pState, Qvx32s* pDlyLine));

/** Replaces the taps; the delay line stays. pTaps as in the initialiser.
 *  Returns qvxStatOk; qvxStatNullPtr; qvxStatContextMismatch (not a record of this stem); qvxStatDivByZero, as the initialiser:
 *  the direct form keeps its taps then, of sections those before the refused one are replaced.
 *  32s_16s: sets the taps of a right record, but returns qvxStatContextMismatch always (qvxStatNoMem: no room to convert them).
 *  32sc_16sc, 32sc_16sc32fc: refuse the records of their own initialisers with qvxStatContextMismatch. They take those of _32fc,
 *  and 32sc_16sc returns qvxStatContextMismatch even then. Use qvxsIIRInit to change the taps of such a record. */
QVXS_API(QvxStatus, qvxsIIRSetTaps_32f, (const Qvx32f* pTaps, QvxsIIRState_32f* pState));
QVXS_API(QvxStatus, qvxsIIRSetTaps_32fc, (const Qvx32fc* pTaps, QvxsIIRState_32fc* pState));
QVXS_API(QvxStatus, qvxsIIRSetTaps32f_16s, (const Qvx32f* pTaps, QvxsIIRState32f_16s* pState));
QVXS_API(QvxStatus, qvxsIIRSetTaps32fc_16sc, (const Qvx32fc* pTaps, QvxsIIRState32fc_16sc* pState));
QVXS_API(QvxStatus, qvxsIIRSetTaps32s_16s, (const Qvx32s* pTaps, QvxsIIRState32s_16s* pState, int tapsFactor));
QVXS_API(QvxStatus, qvxsIIRSetTaps32s_16s32f, (const Qvx32f* pTaps, QvxsIIRState32s_16s* pState));
QVXS_API(QvxStatus, qvxsIIRSetTaps32sc_16sc, (const Qvx32sc* pTaps, QvxsIIRState32sc_16sc* pState, int tapsFactor));
QVXS_API(QvxStatus, qvxsIIRSetTaps32sc_16sc32fc, (const Qvx32fc* pTaps, QvxsIIRState32sc_16sc* pState));
QVXS_API(QvxStatus, qvxsIIRSetTaps_64f, (const Qvx64f* pTaps, QvxsIIRState_64f* pState));
QVXS_API(QvxStatus, qvxsIIRSetTaps_64fc, (const Qvx64fc* pTaps, QvxsIIRState_64fc* pState));
QVXS_API(QvxStatus, qvxsIIRSetTaps64f_32f, (const Qvx64f* pTaps, QvxsIIRState64f_32f* pState));
QVXS_API(QvxStatus, qvxsIIRSetTaps64fc_32fc, (const Qvx64fc* pTaps, QvxsIIRState64fc_32fc* pState));
QVXS_API(QvxStatus, qvxsIIRSetTaps64f_32s, (const Qvx64f* pTaps, QvxsIIRState64f_32s* pState));
QVXS_API(QvxStatus, qvxsIIRSetTaps64fc_32sc, (const Qvx64fc* pTaps, QvxsIIRState64fc_32sc* pState));
QVXS_API(QvxStatus, qvxsIIRSetTaps64f_16s, (const Qvx64f* pTaps, QvxsIIRState64f_16s* pState));
QVXS_API(QvxStatus, qvxsIIRSetTaps64fc_16sc, (const Qvx64fc* pTaps, QvxsIIRState64fc_16sc* pState));

/** dst = the filter's output for src, and the record's delay line carried on: a stream may be cut anywhere and its pieces go
 *  through any of these functions. _I and _ISfs work in place, One takes one sample.
 *  Floats: outputs differ from those of the plain recursion by rounding. 32-bit memory is computed in 64-bit floats, but for a
 *  few samples, which leaves less than the plain recursion's error; with 64-bit memory, and in sections of 32f on SSSE3, the error
 *  is at most 4 times as large, in the mean over signals longer than the filter's memory.
 *  What is beyond the range of the type turns infinite and stays in the delay line.
 *  Integers: the output times 2^-scaleFactor, rounded to nearest with ties to even, saturated. Neither scale nor saturation comes
 *  back into the filter.
 *  pSrc, pDst: len samples, any alignment; they may be one vector.
 *  One does not take records of the direct form I.
 *  Returns qvxStatOk; qvxStatNullPtr; qvxStatBadSize (len < 1); qvxStatContextMismatch (not a record of this stem). */
QVXS_API(QvxStatus, qvxsIIR_32f, (const Qvx32f* pSrc, Qvx32f* pDst, int len, QvxsIIRState_32f* pState));
QVXS_API(QvxStatus, qvxsIIR_32f_I, (Qvx32f* pSrcDst, int len, QvxsIIRState_32f* pState));
QVXS_API(QvxStatus, qvxsIIROne_32f, (Qvx32f src, Qvx32f* pDstVal, QvxsIIRState_32f* pState));
QVXS_API(QvxStatus, qvxsIIR_32fc, (const Qvx32fc* pSrc, Qvx32fc* pDst, int len, QvxsIIRState_32fc* pState));
QVXS_API(QvxStatus, qvxsIIR_32fc_I, (Qvx32fc* pSrcDst, int len, QvxsIIRState_32fc* pState));
QVXS_API(QvxStatus, qvxsIIROne_32fc, (Qvx32fc src, Qvx32fc* pDstVal, QvxsIIRState_32fc* pState));
QVXS_API(QvxStatus, qvxsIIR32f_16s_Sfs,
         (const Qvx16s* pSrc, Qvx16s* pDst, int len, QvxsIIRState32f_16s* pState, int scaleFactor));
QVXS_API(QvxStatus, qvxsIIR32f_16s_ISfs, (Qvx16s* pSrcDst, int len, QvxsIIRState32f_16s* pState, int scaleFactor));
QVXS_API(QvxStatus, qvxsIIROne32f_16s_Sfs, (Qvx16s src, Qvx16s* pDstVal, QvxsIIRState32f_16s* pState, int scaleFactor));
QVXS_API(QvxStatus, qvxsIIR32fc_16sc_Sfs,
         (const Qvx16sc* pSrc, Qvx16sc* pDst, int len, QvxsIIRState32fc_16sc* pState, int scaleFactor));
QVXS_API(QvxStatus, qvxsIIR32fc_16sc_ISfs, (Qvx16sc* pSrcDst, int len, QvxsIIRState32fc_16sc* pState, int scaleFactor));
QVXS_API(QvxStatus, qvxsIIROne32fc_16sc_Sfs, (Qvx16sc src, Qvx16sc* pDstVal, QvxsIIRState32fc_16sc* pState, int scaleFactor));
QVXS_API(QvxStatus, qvxsIIR32s_16s_Sfs,
         (const Qvx16s* pSrc, Qvx16s* pDst, int len, QvxsIIRState32s_16s* pState, int scaleFactor));
QVXS_API(QvxStatus, qvxsIIR32s_16s_ISfs, (Qvx16s* pSrcDst, int len, QvxsIIRState32s_16s* pState, int scaleFactor));
QVXS_API(QvxStatus, qvxsIIROne32s_16s_Sfs, (Qvx16s src, Qvx16s* pDstVal, QvxsIIRState32s_16s* pState, int scaleFactor));
QVXS_API(QvxStatus, qvxsIIR32sc_16sc_Sfs,
         (const Qvx16sc* pSrc, Qvx16sc* pDst, int len, QvxsIIRState32sc_16sc* pState, int scaleFactor));
QVXS_API(QvxStatus, qvxsIIR32sc_16sc_ISfs, (Qvx16sc* pSrcDst, int len, QvxsIIRState32sc_16sc* pState, int scaleFactor));
QVXS_API(QvxStatus, qvxsIIROne32sc_16sc_Sfs, (Qvx16sc src, Qvx16sc* pDstVal, QvxsIIRState32sc_16sc* pState, int scaleFactor));
QVXS_API(QvxStatus, qvxsIIR_64f, (const Qvx64f* pSrc, Qvx64f* pDst, int len, QvxsIIRState_64f* pState));
QVXS_API(QvxStatus, qvxsIIR_64f_I, (Qvx64f* pSrcDst, int len, QvxsIIRState_64f* pState));
QVXS_API(QvxStatus, qvxsIIROne_64f, (Qvx64f src, Qvx64f* pDstVal, QvxsIIRState_64f* pState));
QVXS_API(QvxStatus, qvxsIIR_64fc, (const Qvx64fc* pSrc, Qvx64fc* pDst, int len, QvxsIIRState_64fc* pState));
QVXS_API(QvxStatus, qvxsIIR_64fc_I, (Qvx64fc* pSrcDst, int len, QvxsIIRState_64fc* pState));
QVXS_API(QvxStatus, qvxsIIROne_64fc, (Qvx64fc src, Qvx64fc* pDstVal, QvxsIIRState_64fc* pState));
QVXS_API(QvxStatus, qvxsIIR64f_32f, (const Qvx32f* pSrc, Qvx32f* pDst, int len, QvxsIIRState64f_32f* pState));
QVXS_API(QvxStatus, qvxsIIR64f_32f_I, (Qvx32f* pSrcDst, int len, QvxsIIRState64f_32f* pState));
QVXS_API(QvxStatus, qvxsIIROne64f_32f, (Qvx32f src, Qvx32f* pDstVal, QvxsIIRState64f_32f* pState));
QVXS_API(QvxStatus, qvxsIIR64fc_32fc, (const Qvx32fc* pSrc, Qvx32fc* pDst, int len, QvxsIIRState64fc_32fc* pState));
QVXS_API(QvxStatus, qvxsIIR64fc_32fc_I, (Qvx32fc* pSrcDst, int len, QvxsIIRState64fc_32fc* pState));
QVXS_API(QvxStatus, qvxsIIROne64fc_32fc, (Qvx32fc src, Qvx32fc* pDstVal, QvxsIIRState64fc_32fc* pState));
QVXS_API(QvxStatus, qvxsIIR64f_32s_Sfs,
         (const Qvx32s* pSrc, Qvx32s* pDst, int len, QvxsIIRState64f_32s* pState, int scaleFactor));
QVXS_API(QvxStatus, qvxsIIR64f_32s_ISfs, (Qvx32s* pSrcDst, int len, QvxsIIRState64f_32s* pState, int scaleFactor));
QVXS_API(QvxStatus, qvxsIIROne64f_32s_Sfs, (Qvx32s src, Qvx32s* pDstVal, QvxsIIRState64f_32s* pState, int scaleFactor));
QVXS_API(QvxStatus, qvxsIIR64fc_32sc_Sfs,
         (const Qvx32sc* pSrc, Qvx32sc* pDst, int len, QvxsIIRState64fc_32sc* pState, int scaleFactor));
QVXS_API(QvxStatus, qvxsIIR64fc_32sc_ISfs, (Qvx32sc* pSrcDst, int len, QvxsIIRState64fc_32sc* pState, int scaleFactor));
QVXS_API(QvxStatus, qvxsIIROne64fc_32sc_Sfs, (Qvx32sc src, Qvx32sc* pDstVal, QvxsIIRState64fc_32sc* pState, int scaleFactor));
QVXS_API(QvxStatus, qvxsIIR64f_16s_Sfs,
         (const Qvx16s* pSrc, Qvx16s* pDst, int len, QvxsIIRState64f_16s* pState, int scaleFactor));
QVXS_API(QvxStatus, qvxsIIR64f_16s_ISfs, (Qvx16s* pSrcDst, int len, QvxsIIRState64f_16s* pState, int scaleFactor));
QVXS_API(QvxStatus, qvxsIIROne64f_16s_Sfs, (Qvx16s src, Qvx16s* pDstVal, QvxsIIRState64f_16s* pState, int scaleFactor));
QVXS_API(QvxStatus, qvxsIIR64fc_16sc_Sfs,
         (const Qvx16sc* pSrc, Qvx16sc* pDst, int len, QvxsIIRState64fc_16sc* pState, int scaleFactor));
QVXS_API(QvxStatus, qvxsIIR64fc_16sc_ISfs, (Qvx16sc* pSrcDst, int len, QvxsIIRState64fc_16sc* pState, int scaleFactor));
QVXS_API(QvxStatus, qvxsIIROne64fc_16sc_Sfs, (Qvx16sc src, Qvx16sc* pDstVal, QvxsIIRState64fc_16sc* pState, int scaleFactor));

/** A direct form without a record: integer taps b[0..order], s, a[1..order], all in units of 2^-s, and order values of delay
 *  line. The block functions compute as 32f_16s with scale factor 0, and round the delay line half away from zero, saturated above
 *  2^31; 2^31 itself becomes -2^31. The One functions compute in 32 bits, wrapping:
 *  y = (acc + (acc >> s & 1) + 2^(s-1) - 1) >> s, acc = b[0] * x + d[0], where an s of 0 adds 2^31 - 1; only the
 *  result is saturated. So the two are not equal bit for bit.
 *  Returns qvxStatOk; qvxStatBadIIROrder (order < 1); qvxStatNullPtr; qvxStatBadOrderIndex (s < 0); qvxStatBadSize (len < 1);
 *  qvxStatNoMem (a block function found no room for its filter). */
QVXS_API(QvxStatus, qvxsIIR_Direct_16s,
         (const Qvx16s* pSrc, Qvx16s* pDst, int len, const Qvx16s* pTaps, int order, Qvx32s* pDlyLine));
QVXS_API(QvxStatus, qvxsIIR_Direct_16s_I, (Qvx16s* pSrcDst, int len, const Qvx16s* pTaps, int order, Qvx32s* pDlyLine));
QVXS_API(QvxStatus, qvxsIIROne_Direct_16s, (Qvx16s src, Qvx16s* pDstVal, const Qvx16s* pTaps, int order, Qvx32s* pDlyLine));
QVXS_API(QvxStatus, qvxsIIROne_Direct_16s_I, (Qvx16s* pSrcDst, const Qvx16s* pTaps, int order, Qvx32s* pDlyLine));

/** nChannels vectors, each through a filter of its own: as qvxsIIR_32f and qvxsIIR64f_32s_Sfs. Arrays of nChannels pointers.
 *  32f: sections only, in either form, but all channels in that of the first. A channel that is refused leaves those before it
 *  filtered. 64f_32s: all forms; pScaleFactor has one for each channel.
 *  Returns qvxStatOk; qvxStatNullPtr (an array; or a channel's vector or record); qvxStatBadSize (len < 1); qvxStatBadChannels
 *  (32f: nChannels < 1); qvxStatContextMismatch (the first record, and only then the others; 64f_32s: nChannels < 1). */
QVXS_API(QvxStatus, qvxsIIR_32f_P,
         (const Qvx32f* const* ppSrc, Qvx32f* const* ppDst, int len, int nChannels, QvxsIIRState_32f* const* ppState));
QVXS_API(QvxStatus, qvxsIIR_32f_IP, (Qvx32f* const* ppSrcDst, int len, int nChannels, QvxsIIRState_32f* const* ppState));
QVXS_API(QvxStatus, qvxsIIR64f_32s_PSfs,
         (const Qvx32s* const* ppSrc, Qvx32s* const* ppDst, int len, int nChannels, QvxsIIRState64f_32s* const* ppState,
          const int* pScaleFactor));
QVXS_API(QvxStatus, qvxsIIR64f_32s_IPSfs,
         (Qvx32s* const* ppSrcDst, int len, int nChannels, QvxsIIRState64f_32s* const* ppState, const int* pScaleFactor));

/** Sections without a record: integer taps b0, b1, b2, s, a1, a2 for each, in units of 2^-s, and 2 values of delay line for each.
 *  Otherwise as qvxsIIR_Direct, but: the block functions round the delay line to even; in the One functions a negative s is found
 *  as the sections run, and those before it have moved on.
 *  Returns qvxStatOk; qvxStatBadIIROrder (numBq < 1); qvxStatNullPtr; qvxStatBadSize (len < 1); qvxStatNoMem;
 *  qvxStatBadOrderIndex (an s < 0). */
QVXS_API(QvxStatus, qvxsIIR_BiQuadDirect_16s,
         (const Qvx16s* pSrc, Qvx16s* pDst, int len, const Qvx16s* pTaps, int numBq, Qvx32s* pDlyLine));
QVXS_API(QvxStatus, qvxsIIR_BiQuadDirect_16s_I, (Qvx16s* pSrcDst, int len, const Qvx16s* pTaps, int numBq, Qvx32s* pDlyLine));
QVXS_API(QvxStatus, qvxsIIROne_BiQuadDirect_16s, (Qvx16s src, Qvx16s* pDstVal, const Qvx16s* pTaps, int numBq, Qvx32s* pDlyLine));
QVXS_API(QvxStatus, qvxsIIROne_BiQuadDirect_16s_I, (Qvx16s* pSrcDst, const Qvx16s* pTaps, int numBq, Qvx32s* pDlyLine));

/** A filter with few taps, each at a delay of its own: y[n] = sum of b[i] * x[n - posB[i]] + sum of a[j] * y[n - posA[j]]. The
 *  feedback is added.
 *  GetStateSize: *pStateSize = the bytes of a record for so many taps and these last positions, modulo 2^32: so orderB + orderA
 *  has to be below 2^28.
 *  Returns qvxStatOk; qvxStatNullPtr; qvxStatBadIIROrder (nzTapsLenB < 1, nzTapsLenA < 0); qvxStatBadSparsePos (an order < 0). */
QVXS_API(QvxStatus, qvxsIIRSparseGetStateSize_32f, (int nzTapsLenB, int nzTapsLenA, int orderB, int orderA, int* pStateSize));

/** Builds the record in pBuf, of any alignment. pNZTaps, pNZTapPos: the nzTapsLenB taps b and then the nzTapsLenA taps a, and
 *  their positions, increasing on each side, from 0 on for b and from 1 on for a. pDlyLine: the last posB inputs, then the last
 *  posA outputs, newest first on each side; null for zeros.
 *  Returns qvxStatOk; qvxStatNullPtr; qvxStatBadIIROrder (nzTapsLenB or nzTapsLenA < 1); qvxStatBadSparsePos. */
QVXS_API(QvxStatus, qvxsIIRSparseInit_32f,
         (QvxsIIRSparseState_32f** ppState, const Qvx32f* pNZTaps, const Qvx32s* pNZTapPos, int nzTapsLenB, int nzTapsLenA,
          const Qvx32f* pDlyLine, Qvx8u* pBuf));

/** Filters len samples. A stream may be cut anywhere: the sums are the same to the bit. pDst must not overlap pSrc.
 *  Returns qvxStatOk; qvxStatNullPtr; qvxStatBadSize (len < 1). The record is not tested. */
QVXS_API(QvxStatus, qvxsIIRSparse_32f, (const Qvx32f* pSrc, Qvx32f* pDst, int len, QvxsIIRSparseState_32f* pState));

/** Designs a low-pass or a high-pass filter: an analog prototype, its cut-off pre-warped, through the bilinear transform.
 *  pTaps: b[0..order], a[0..order] with a[0] = 1, for qvxsIIRInit_64f.
 *  rFreq: the cut-off relative to the sampling rate, inside (0, 0.5).
 *  filterType 0: Butterworth, gain 1 far inside the pass band and 1/sqrt(2) at rFreq; ripple is not looked at. 1: Chebyshev type I,
 *  gain between 1 and 10^(-ripple/20) in the pass band and the latter at rFreq; ripple in dB, inside (0, 29].
 *  Each tap is the correctly expanded one rounded to double; an a that nearly vanishes, as every second one does near 0.25, is
 *  within 2^-60 of the largest. A high order at a low cut-off is ill-conditioned in this form whoever computes it: order 12 at 0.01
 *  is unstable even though each tap is right to the last bit. Up to order 4 any cut-off from 0.001 to 0.499 is sound, up to order
 *  12 any from 0.05 to 0.45.
 *  Returns qvxStatOk; qvxStatNullPtr; qvxStatBadGenOrder (order outside 1 to 12); qvxStatBadCutoff (rFreq); qvxStatBadGenParam
 *  (filterType, or the ripple of a Chebyshev filter). */
QVXS_API(QvxStatus, qvxsIIRGenLowpass_64f, (Qvx64f rFreq, Qvx64f ripple, int order, Qvx64f* pTaps, int filterType));
QVXS_API(QvxStatus, qvxsIIRGenHighpass_64f, (Qvx64f rFreq, Qvx64f ripple, int order, Qvx64f* pTaps, int filterType));

#ifdef __cplusplus
}
#endif

#endif
