/* The analytic signal of a real sequence of any length. */
#ifndef QVX_QVXS_HILBERT_H
#define QVX_QVXS_HILBERT_H

#include <qvx/qvxdefs.h>

#ifdef __cplusplus
extern "C" {
#endif

typedef struct QvxsHilbertSpec_32f32fc QvxsHilbertSpec_32f32fc;
typedef struct QvxsHilbertSpec_16s32fc QvxsHilbertSpec_16s32fc;
typedef struct QvxsHilbertSpec_16s16sc QvxsHilbertSpec_16s16sc;

/** A record for sequences of len numbers: qvxsHilbertInitAlloc makes it, qvxsHilbertFree releases it.
 *  len: from 1 on, below 2^27; powers of two up to 2^28. hint: has no effect, any value.
 *  A record is only read by transforms: any number of them may use it at once.
 *  Returns qvxStatOk; qvxStatNullPtr; qvxStatBadSize (len < 1, or too large, or above 2^26 with a large prime factor);
 *  qvxStatBadFFTOrder (too large a power of two); qvxStatNoMem; qvxStatContextMismatch (a record of another type). */
QVXS_API(QvxStatus, qvxsHilbertInitAlloc_32f32fc, (QvxsHilbertSpec_32f32fc** ppSpec, int len, int hint));
QVXS_API(QvxStatus, qvxsHilbertFree_32f32fc, (QvxsHilbertSpec_32f32fc* pSpec));
QVXS_API(QvxStatus, qvxsHilbertInitAlloc_16s32fc, (QvxsHilbertSpec_16s32fc** ppSpec, int len, int hint));
QVXS_API(QvxStatus, qvxsHilbertFree_16s32fc, (QvxsHilbertSpec_16s32fc* pSpec));
QVXS_API(QvxStatus, qvxsHilbertInitAlloc_16s16sc, (QvxsHilbertSpec_16s16sc** ppSpec, int len, int hint));
QVXS_API(QvxStatus, qvxsHilbertFree_16s16sc, (QvxsHilbertSpec_16s16sc* pSpec));

/** The analytic signal: dst[n] = src[n] + i h[n], h the Hilbert transform of the sequence taken as one period. With X the
 *  discrete Fourier transform of src and N the record's length, h is that of -i X[k] for 0 < k < N/2, i X[k] for k > N/2 and 0 at
 *  k = 0 and N/2: the spectrum of dst is 2 X[k] below N/2, X[k] at 0 and N/2, and 0 above. Lengths 1 and 2 have no h but 0.
 *  Real parts are the source, to the bit in floats. _Sfs: times 2^-scaleFactor, rounded to nearest, ties to even, saturated;
 *  imaginary parts are computed in floats, so they are within one unit of the exact ones; below a scaleFactor of -127, whose
 *  power of two no float holds, a 0 becomes 32767. The relative error of h for noise (root of the mean square) is at most
 *  0.6 eps sqrt(log2 N), eps 2^-23, at least 0.5 eps; twice that where N has a prime factor above 13; a tenth more on SSSE3. That
 *  of a single vector is up to twice as large, relative to the source, since h may be much smaller.
 *  pSrc, pDst: N elements each, any alignment, which may begin at one address, but not overlap otherwise. Long calls allocate
 *  working memory for their time.
 *  Returns qvxStatOk; qvxStatNullPtr; qvxStatContextMismatch; qvxStatNoMem. */
QVXS_API(QvxStatus, qvxsHilbert_32f32fc, (const Qvx32f* pSrc, Qvx32fc* pDst, const QvxsHilbertSpec_32f32fc* pSpec));
QVXS_API(QvxStatus, qvxsHilbert_16s32fc, (const Qvx16s* pSrc, Qvx32fc* pDst, const QvxsHilbertSpec_16s32fc* pSpec));
QVXS_API(QvxStatus, qvxsHilbert_16s16sc_Sfs, (const Qvx16s* pSrc, Qvx16sc* pDst, const QvxsHilbertSpec_16s16sc* pSpec, int scaleFactor));

#ifdef __cplusplus
}
#endif

#endif
