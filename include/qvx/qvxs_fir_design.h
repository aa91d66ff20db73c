/* FIR filters of few taps, and the design of FIR filters. */
#ifndef QVX_QVXS_FIR_DESIGN_H
#define QVX_QVXS_FIR_DESIGN_H

#include <qvx/qvxdefs.h>

#ifdef __cplusplus
extern "C" {
#endif

/** A filter with few taps, each at a delay of its own: y[n] = sum of h[i] * x[n - pos[i]], in 32-bit floats. Products and sums
 *  are rounded apart, tap by tap from the last to the first, so that a stream may be cut anywhere and gives the same to the bit.
 *  GetStateSize: *pSize = the bytes of a record for nzTapsLen taps, the last of which is at order (1 for 0), modulo 2^32:
 *  so order has to be below 2^28.
 *  Returns qvxStatOk; qvxStatNullPtr; qvxStatBadTapsLen (nzTapsLen or order < 1). */
typedef struct QvxsFIRSparseState_32f QvxsFIRSparseState_32f;
QVXS_API(QvxStatus, qvxsFIRSparseGetStateSize_32f, (int nzTapsLen, int order, int* pSize));

/** Builds a record in pBuffer, of any alignment, and stores its address in *ppState. pNZTaps, pNZTapPos: nzTapsLen taps and their
 *  positions, from 0 on, increasing. pDlyLine: as many samples as the last position says, newest first; null for zeros.
 *  Returns qvxStatOk; qvxStatNullPtr; qvxStatBadTapsLen (nzTapsLen < 1); qvxStatBadSparsePos. */
QVXS_API(QvxStatus, qvxsFIRSparseInit_32f, (QvxsFIRSparseState_32f** ppState, const Qvx32f* pNZTaps, const Qvx32s* pNZTapPos, int nzTapsLen, const Qvx32f* pDlyLine, Qvx8u* pBuffer));

/** Filters len samples. pDst must not overlap pSrc.
 *  Returns qvxStatOk; qvxStatNullPtr; qvxStatBadSize (len < 1). The record is not tested. */
QVXS_API(QvxStatus, qvxsFIRSparse_32f, (const Qvx32f* pSrc, Qvx32f* pDst, int len, QvxsFIRSparseState_32f* pState));

/** Designs a filter of tapsLen taps, a sinc under a window; the delay is (tapsLen - 1) / 2 samples. Frequencies are relative to
 *  the sampling rate, inside (0, 0.5). With m the distance of a tap from the middle, the taps before the window are
 *    Lowpass:  sin(2 pi f m) / (pi m), in the middle 2f;
 *    Highpass: -sin(2 pi f m) / (pi m), in the middle 1 - 2f; of an even tapsLen cos(2 pi f m) / (pi m), negated after it;
 *    Bandpass: the low-pass filter of rHighFreq less that of rLowFreq;
 *    Bandstop: that of rLowFreq less that of rHighFreq, in the middle 1 more. An even tapsLen has no middle, so that what is left
 *              is an inverted band-pass filter: take an odd one.
 *  winType: 0 Bartlett, 1 Blackman of best side lobes (WinBlackmanOpt), 2 Hamming, 3 Hann, any other none. Bartlett, Blackman and
 *  Hann windows are 0 at the ends.
 *  doNormal: 0 leaves the gain as it is, any other value makes it 1 (in magnitude): at frequency 0 for Lowpass and Bandstop, 0.5
 *  for Highpass, half way between the two for Bandpass.
 *  Each tap is the true value to a few units in the last place of the largest, and to what its window's weight is true to. A
 *  high-pass or band-pass filter of even length with its frequencies next to 0.5, whose taps before normalisation nearly vanish, has
 *  them to 2^-52 of 1.
 *  Returns qvxStatOk; qvxStatNullPtr; qvxStatBadSize (tapsLen < 5; a frequency outside (0, 0.5); rLowFreq >= rHighFreq). */
QVXS_API(QvxStatus, qvxsFIRGenLowpass_64f, (Qvx64f rFreq, Qvx64f* pTaps, int tapsLen, int winType, int doNormal));
QVXS_API(QvxStatus, qvxsFIRGenHighpass_64f, (Qvx64f rFreq, Qvx64f* pTaps, int tapsLen, int winType, int doNormal));
QVXS_API(QvxStatus, qvxsFIRGenBandpass_64f, (Qvx64f rLowFreq, Qvx64f rHighFreq, Qvx64f* pTaps, int tapsLen, int winType, int doNormal));
QVXS_API(QvxStatus, qvxsFIRGenBandstop_64f, (Qvx64f rLowFreq, Qvx64f rHighFreq, Qvx64f* pTaps, int tapsLen, int winType, int doNormal));

#ifdef __cplusplus
}
#endif

#endif
