/* Wavelets: a filter bank of any two filters, and the Haar transform of neighbouring pairs. */
#ifndef QVX_QVXS_WAVELET_H
#define QVX_QVXS_WAVELET_H

#include <qvx/qvxdefs.h>

#ifdef __cplusplus
extern "C" {
#endif

/* A stage of a wavelet filter bank: two filters, given by their taps, each with an offset. The forward stage splits a stream into
 * two of half its rate, the inverse one joins two such streams into one of the full rate:
 *   forward: low[k] = sum of h[j] * x[2k - o - j], j from 0 to L - 1, with the L taps h of the low band and their offset o; high
 *            alike;
 *   inverse: y[n] = sum of h[j] * u[n - o - j], where u[2k] = low[k] and u[2k + 1] = 0, plus the same of the high band.
 * An offset is 0 or more, or -1, with which the forward stage looks one sample ahead. The inverse stage takes -1 as 1, but for
 * the length of its delay line. Offsets only delay: an orthogonal pair of L taps (L even), their reverse in the inverse stage,
 * and the same offset for both bands of a stage give x back d = L - 1 + forward offset + inverse offset samples later.
 *
 * Before the first call all samples are zero. The record keeps the samples that later calls need, so that a stream may be cut between
 * any two pairs of samples: results are the same to the bit. Sums are in 32-bit floats, whatever the samples' type; integers of
 * the inverse stage are rounded to nearest with ties to even and saturated. A record serves one call at a time. */
typedef struct QvxsWTFwdState_32f QvxsWTFwdState_32f;
typedef struct QvxsWTFwdState_8u32f QvxsWTFwdState_8u32f;
typedef struct QvxsWTFwdState_8s32f QvxsWTFwdState_8s32f;
typedef struct QvxsWTFwdState_16u32f QvxsWTFwdState_16u32f;
typedef struct QvxsWTFwdState_16s32f QvxsWTFwdState_16s32f;
typedef struct QvxsWTInvState_32f QvxsWTInvState_32f;
typedef struct QvxsWTInvState_32f8u QvxsWTInvState_32f8u;
typedef struct QvxsWTInvState_32f8s QvxsWTInvState_32f8s;
typedef struct QvxsWTInvState_32f16u QvxsWTInvState_32f16u;
typedef struct QvxsWTInvState_32f16s QvxsWTInvState_32f16s;

/** A record of a forward stage in a block of its own. The taps are copied, h[0] first.
 *  Returns qvxStatOk; qvxStatNullPtr (ppState, pTapsLow); qvxStatBadSize (lenLow < 1); qvxStatNullPtr (pTapsHigh); qvxStatBadSize
 *  (lenHigh < 1); qvxStatBadWTOffset (an offset < -1); qvxStatNoMem (and *ppState = null). */
QVXS_API(QvxStatus, qvxsWTFwdInitAlloc_32f, (QvxsWTFwdState_32f** ppState, const Qvx32f* pTapsLow, int lenLow, int offsLow, const Qvx32f* pTapsHigh, int lenHigh, int offsHigh));

/** pDstLow, pDstHigh = the two bands of the next 2 * dstLen samples.
 *  pSrc: 2 * dstLen samples; pDstLow, pDstHigh: dstLen each. Any alignment; they must not overlap.
 *  Returns qvxStatOk; qvxStatNullPtr (the record); qvxStatContextMismatch (no such record); qvxStatNullPtr; qvxStatBadSize
 *  (dstLen < 1). */
QVXS_API(QvxStatus, qvxsWTFwd_32f, (const Qvx32f* pSrc, Qvx32f* pDstLow, Qvx32f* pDstHigh, int dstLen, QvxsWTFwdState_32f* pState));

/** Replaces or reads what each band keeps of the stream: its last L + o - 1 samples, oldest first (none if that is below 1).
 *  Returns qvxStatOk; qvxStatNullPtr (the record); qvxStatContextMismatch (no such record); qvxStatNullPtr. */
QVXS_API(QvxStatus, qvxsWTFwdSetDlyLine_32f, (QvxsWTFwdState_32f* pState, const Qvx32f* pDlyLow, const Qvx32f* pDlyHigh));
QVXS_API(QvxStatus, qvxsWTFwdGetDlyLine_32f, (const QvxsWTFwdState_32f* pState, Qvx32f* pDlyLow, Qvx32f* pDlyHigh));

/** Releases the record. Returns qvxStatOk; qvxStatNullPtr; qvxStatContextMismatch (no such record). */
QVXS_API(QvxStatus, qvxsWTFwdFree_32f, (QvxsWTFwdState_32f* pState));

/* The same for samples of other types. */
QVXS_API(QvxStatus, qvxsWTFwdInitAlloc_8u32f, (QvxsWTFwdState_8u32f** ppState, const Qvx32f* pTapsLow, int lenLow, int offsLow, const Qvx32f* pTapsHigh, int lenHigh, int offsHigh));
QVXS_API(QvxStatus, qvxsWTFwd_8u32f, (const Qvx8u* pSrc, Qvx32f* pDstLow, Qvx32f* pDstHigh, int dstLen, QvxsWTFwdState_8u32f* pState));
QVXS_API(QvxStatus, qvxsWTFwdSetDlyLine_8u32f, (QvxsWTFwdState_8u32f* pState, const Qvx32f* pDlyLow, const Qvx32f* pDlyHigh));
QVXS_API(QvxStatus, qvxsWTFwdGetDlyLine_8u32f, (const QvxsWTFwdState_8u32f* pState, Qvx32f* pDlyLow, Qvx32f* pDlyHigh));
QVXS_API(QvxStatus, qvxsWTFwdFree_8u32f, (QvxsWTFwdState_8u32f* pState));
QVXS_API(QvxStatus, qvxsWTFwdInitAlloc_8s32f, (QvxsWTFwdState_8s32f** ppState, const Qvx32f* pTapsLow, int lenLow, int offsLow, const Qvx32f* pTapsHigh, int lenHigh, int offsHigh));
QVXS_API(QvxStatus, qvxsWTFwd_8s32f, (const Qvx8s* pSrc, Qvx32f* pDstLow, Qvx32f* pDstHigh, int dstLen, QvxsWTFwdState_8s32f* pState));
QVXS_API(QvxStatus, qvxsWTFwdSetDlyLine_8s32f, (QvxsWTFwdState_8s32f* pState, const Qvx32f* pDlyLow, const Qvx32f* pDlyHigh));
QVXS_API(QvxStatus, qvxsWTFwdGetDlyLine_8s32f, (const QvxsWTFwdState_8s32f* pState, Qvx32f* pDlyLow, Qvx32f* pDlyHigh));
QVXS_API(QvxStatus, qvxsWTFwdFree_8s32f, (QvxsWTFwdState_8s32f* pState));
QVXS_API(QvxStatus, qvxsWTFwdInitAlloc_16u32f, (QvxsWTFwdState_16u32f** ppState, const Qvx32f* pTapsLow, int lenLow, int offsLow, const Qvx32f* pTapsHigh, int lenHigh, int offsHigh));
QVXS_API(QvxStatus, qvxsWTFwd_16u32f, (const Qvx16u* pSrc, Qvx32f* pDstLow, Qvx32f* pDstHigh, int dstLen, QvxsWTFwdState_16u32f* pState));
QVXS_API(QvxStatus, qvxsWTFwdSetDlyLine_16u32f, (QvxsWTFwdState_16u32f* pState, const Qvx32f* pDlyLow, const Qvx32f* pDlyHigh));
QVXS_API(QvxStatus, qvxsWTFwdGetDlyLine_16u32f, (const QvxsWTFwdState_16u32f* pState, Qvx32f* pDlyLow, Qvx32f* pDlyHigh));
QVXS_API(QvxStatus, qvxsWTFwdFree_16u32f, (QvxsWTFwdState_16u32f* pState));
QVXS_API(QvxStatus, qvxsWTFwdInitAlloc_16s32f, (QvxsWTFwdState_16s32f** ppState, const Qvx32f* pTapsLow, int lenLow, int offsLow, const Qvx32f* pTapsHigh, int lenHigh, int offsHigh));
QVXS_API(QvxStatus, qvxsWTFwd_16s32f, (const Qvx16s* pSrc, Qvx32f* pDstLow, Qvx32f* pDstHigh, int dstLen, QvxsWTFwdState_16s32f* pState));
QVXS_API(QvxStatus, qvxsWTFwdSetDlyLine_16s32f, (QvxsWTFwdState_16s32f* pState, const Qvx32f* pDlyLow, const Qvx32f* pDlyHigh));
QVXS_API(QvxStatus, qvxsWTFwdGetDlyLine_16s32f, (const QvxsWTFwdState_16s32f* pState, Qvx32f* pDlyLow, Qvx32f* pDlyHigh));
QVXS_API(QvxStatus, qvxsWTFwdFree_16s32f, (QvxsWTFwdState_16s32f* pState));

/** A record of an inverse stage, made as that of a forward stage, with the same refusals. */
QVXS_API(QvxStatus, qvxsWTInvInitAlloc_32f, (QvxsWTInvState_32f** ppState, const Qvx32f* pTapsLow, int lenLow, int offsLow, const Qvx32f* pTapsHigh, int lenHigh, int offsHigh));

/** pDst = the next 2 * srcLen samples of the two bands joined.
 *  pSrcLow, pSrcHigh: srcLen values each; pDst: 2 * srcLen samples. Any alignment; they must not overlap.
 *  Returns qvxStatOk; qvxStatNullPtr (the record); qvxStatContextMismatch (no such record); qvxStatNullPtr (pSrcLow, pSrcHigh);
 *  qvxStatBadSize (srcLen < 1); qvxStatNullPtr (pDst). */
QVXS_API(QvxStatus, qvxsWTInv_32f, (const Qvx32f* pSrcLow, const Qvx32f* pSrcHigh, int srcLen, Qvx32f* pDst, QvxsWTInvState_32f* pState));

/** Replaces or reads what each band keeps: its last (L + o - 1) / 2 values, rounded down, oldest first (none if that is below 1).
 *  With an offset of -1 that is one less than the sums need, and replacing makes the oldest 0.
 *  Returns qvxStatOk; qvxStatNullPtr (the record); qvxStatContextMismatch (no such record); qvxStatNullPtr. */
QVXS_API(QvxStatus, qvxsWTInvSetDlyLine_32f, (QvxsWTInvState_32f* pState, const Qvx32f* pDlyLow, const Qvx32f* pDlyHigh));
QVXS_API(QvxStatus, qvxsWTInvGetDlyLine_32f, (const QvxsWTInvState_32f* pState, Qvx32f* pDlyLow, Qvx32f* pDlyHigh));

/** Releases the record. Returns qvxStatOk; qvxStatNullPtr; qvxStatContextMismatch (no such record). */
QVXS_API(QvxStatus, qvxsWTInvFree_32f, (QvxsWTInvState_32f* pState));

/* The same for results of other types. */
QVXS_API(QvxStatus, qvxsWTInvInitAlloc_32f8u, (QvxsWTInvState_32f8u** ppState, const Qvx32f* pTapsLow, int lenLow, int offsLow, const Qvx32f* pTapsHigh, int lenHigh, int offsHigh));
QVXS_API(QvxStatus, qvxsWTInv_32f8u, (const Qvx32f* pSrcLow, const Qvx32f* pSrcHigh, int srcLen, Qvx8u* pDst, QvxsWTInvState_32f8u* pState));
QVXS_API(QvxStatus, qvxsWTInvSetDlyLine_32f8u, (QvxsWTInvState_32f8u* pState, const Qvx32f* pDlyLow, const Qvx32f* pDlyHigh));
QVXS_API(QvxStatus, qvxsWTInvGetDlyLine_32f8u, (const QvxsWTInvState_32f8u* pState, Qvx32f* pDlyLow, Qvx32f* pDlyHigh));
QVXS_API(QvxStatus, qvxsWTInvFree_32f8u, (QvxsWTInvState_32f8u* pState));
QVXS_API(QvxStatus, qvxsWTInvInitAlloc_32f8s, (QvxsWTInvState_32f8s** ppState, const Qvx32f* pTapsLow, int lenLow, int offsLow, const Qvx32f* pTapsHigh, int lenHigh, int offsHigh));
QVXS_API(QvxStatus, qvxsWTInv_32f8s, (const Qvx32f* pSrcLow, const Qvx32f* pSrcHigh, int srcLen, Qvx8s* pDst, QvxsWTInvState_32f8s* pState));
QVXS_API(QvxStatus, qvxsWTInvSetDlyLine_32f8s, (QvxsWTInvState_32f8s* pState, const Qvx32f* pDlyLow, const Qvx32f* pDlyHigh));
QVXS_API(QvxStatus, qvxsWTInvGetDlyLine_32f8s, (const QvxsWTInvState_32f8s* pState, Qvx32f* pDlyLow, Qvx32f* pDlyHigh));
QVXS_API(QvxStatus, qvxsWTInvFree_32f8s, (QvxsWTInvState_32f8s* pState));
QVXS_API(QvxStatus, qvxsWTInvInitAlloc_32f16u, (QvxsWTInvState_32f16u** ppState, const Qvx32f* pTapsLow, int lenLow, int offsLow, const Qvx32f* pTapsHigh, int lenHigh, int offsHigh));
QVXS_API(QvxStatus, qvxsWTInv_32f16u, (const Qvx32f* pSrcLow, const Qvx32f* pSrcHigh, int srcLen, Qvx16u* pDst, QvxsWTInvState_32f16u* pState));
QVXS_API(QvxStatus, qvxsWTInvSetDlyLine_32f16u, (QvxsWTInvState_32f16u* pState, const Qvx32f* pDlyLow, const Qvx32f* pDlyHigh));
QVXS_API(QvxStatus, qvxsWTInvGetDlyLine_32f16u, (const QvxsWTInvState_32f16u* pState, Qvx32f* pDlyLow, Qvx32f* pDlyHigh));
QVXS_API(QvxStatus, qvxsWTInvFree_32f16u, (QvxsWTInvState_32f16u* pState));
QVXS_API(QvxStatus, qvxsWTInvInitAlloc_32f16s, (QvxsWTInvState_32f16s** ppState, const Qvx32f* pTapsLow, int lenLow, int offsLow, const Qvx32f* pTapsHigh, int lenHigh, int offsHigh));
QVXS_API(QvxStatus, qvxsWTInv_32f16s, (const Qvx32f* pSrcLow, const Qvx32f* pSrcHigh, int srcLen, Qvx16s* pDst, QvxsWTInvState_32f16s* pState));
QVXS_API(QvxStatus, qvxsWTInvSetDlyLine_32f16s, (QvxsWTInvState_32f16s* pState, const Qvx32f* pDlyLow, const Qvx32f* pDlyHigh));
QVXS_API(QvxStatus, qvxsWTInvGetDlyLine_32f16s, (const QvxsWTInvState_32f16s* pState, Qvx32f* pDlyLow, Qvx32f* pDlyHigh));
QVXS_API(QvxStatus, qvxsWTInvFree_32f16s, (QvxsWTInvState_32f16s* pState));

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
