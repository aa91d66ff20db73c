/* Windows: a vector times a symmetric weight, w[N-1-n] = w[n]. */
#ifndef QVX_QVXS_WINDOW_H
#define QVX_QVXS_WINDOW_H

#include <qvx/qvxdefs.h>

#ifdef __cplusplus
extern "C" {
#endif

/* dst[n] = src[n] * w[n] for n = 0..N-1, N = len, in all of them. Both parts of a complex element take the same weight. The middle
 * element of an odd length is copied as it is, in every window; w[n] below is that of the first half. pDst may be pSrc; the _I
 * forms are that.
 *
 * Weights are made for each call, without a table: a pair of products for a vector of them. Floats are multiplied by them and
 * rounded; integers are rounded to nearest, ties to even, saturated, and are within one unit of the exact product.
 * Accuracy of a weight, relative to it also where the window goes to 0:
 *     32f, 32fc, 16s, 16sc   2^-21 (Bartlett 2^-22, Blackman 2^-20)
 *     64f, 64fc              2^-45 (Bartlett 2^-51, Blackman 2^-44)
 * The Kaiser window and a Blackman window whose alpha makes its terms cancel are described separately. */

/** Bartlett: w[n] = 2 n / (N-1). With N = 3 the ends become 0 whatever they were.
 *  Returns qvxStatOk; qvxStatNullPtr; qvxStatBadSize (len < 3). */
QVXS_API(QvxStatus, qvxsWinBartlett_16s, (const Qvx16s* pSrc, Qvx16s* pDst, int len));
QVXS_API(QvxStatus, qvxsWinBartlett_16s_I, (Qvx16s* pSrcDst, int len));
QVXS_API(QvxStatus, qvxsWinBartlett_16sc, (const Qvx16sc* pSrc, Qvx16sc* pDst, int len));
QVXS_API(QvxStatus, qvxsWinBartlett_16sc_I, (Qvx16sc* pSrcDst, int len));
QVXS_API(QvxStatus, qvxsWinBartlett_32f, (const Qvx32f* pSrc, Qvx32f* pDst, int len));
QVXS_API(QvxStatus, qvxsWinBartlett_32f_I, (Qvx32f* pSrcDst, int len));
QVXS_API(QvxStatus, qvxsWinBartlett_32fc, (const Qvx32fc* pSrc, Qvx32fc* pDst, int len));
QVXS_API(QvxStatus, qvxsWinBartlett_32fc_I, (Qvx32fc* pSrcDst, int len));
QVXS_API(QvxStatus, qvxsWinBartlett_64f, (const Qvx64f* pSrc, Qvx64f* pDst, int len));
QVXS_API(QvxStatus, qvxsWinBartlett_64f_I, (Qvx64f* pSrcDst, int len));
QVXS_API(QvxStatus, qvxsWinBartlett_64fc, (const Qvx64fc* pSrc, Qvx64fc* pDst, int len));
QVXS_API(QvxStatus, qvxsWinBartlett_64fc_I, (Qvx64fc* pSrcDst, int len));

/** Hann: w[n] = 0.5 - 0.5 cos(2 pi n / (N-1)). With N = 3 the ends become 0 whatever they were.
 *  Returns qvxStatOk; qvxStatNullPtr; qvxStatBadSize (len < 3). */
QVXS_API(QvxStatus, qvxsWinHann_16s, (const Qvx16s* pSrc, Qvx16s* pDst, int len));
QVXS_API(QvxStatus, qvxsWinHann_16s_I, (Qvx16s* pSrcDst, int len));
QVXS_API(QvxStatus, qvxsWinHann_16sc, (const Qvx16sc* pSrc, Qvx16sc* pDst, int len));
QVXS_API(QvxStatus, qvxsWinHann_16sc_I, (Qvx16sc* pSrcDst, int len));
QVXS_API(QvxStatus, qvxsWinHann_32f, (const Qvx32f* pSrc, Qvx32f* pDst, int len));
QVXS_API(QvxStatus, qvxsWinHann_32f_I, (Qvx32f* pSrcDst, int len));
QVXS_API(QvxStatus, qvxsWinHann_32fc, (const Qvx32fc* pSrc, Qvx32fc* pDst, int len));
QVXS_API(QvxStatus, qvxsWinHann_32fc_I, (Qvx32fc* pSrcDst, int len));
QVXS_API(QvxStatus, qvxsWinHann_64f, (const Qvx64f* pSrc, Qvx64f* pDst, int len));
QVXS_API(QvxStatus, qvxsWinHann_64f_I, (Qvx64f* pSrcDst, int len));
QVXS_API(QvxStatus, qvxsWinHann_64fc, (const Qvx64fc* pSrc, Qvx64fc* pDst, int len));
QVXS_API(QvxStatus, qvxsWinHann_64fc_I, (Qvx64fc* pSrcDst, int len));

/** Hamming: w[n] = 0.54 - 0.46 cos(2 pi n / (N-1)). Integers: the first and the last element are truncated, not rounded.
 *  Returns qvxStatOk; qvxStatNullPtr; qvxStatBadSize (len < 3). */
QVXS_API(QvxStatus, qvxsWinHamming_16s, (const Qvx16s* pSrc, Qvx16s* pDst, int len));
QVXS_API(QvxStatus, qvxsWinHamming_16s_I, (Qvx16s* pSrcDst, int len));
QVXS_API(QvxStatus, qvxsWinHamming_16sc, (const Qvx16sc* pSrc, Qvx16sc* pDst, int len));
QVXS_API(QvxStatus, qvxsWinHamming_16sc_I, (Qvx16sc* pSrcDst, int len));
QVXS_API(QvxStatus, qvxsWinHamming_32f, (const Qvx32f* pSrc, Qvx32f* pDst, int len));
QVXS_API(QvxStatus, qvxsWinHamming_32f_I, (Qvx32f* pSrcDst, int len));
QVXS_API(QvxStatus, qvxsWinHamming_32fc, (const Qvx32fc* pSrc, Qvx32fc* pDst, int len));
QVXS_API(QvxStatus, qvxsWinHamming_32fc_I, (Qvx32fc* pSrcDst, int len));
QVXS_API(QvxStatus, qvxsWinHamming_64f, (const Qvx64f* pSrc, Qvx64f* pDst, int len));
QVXS_API(QvxStatus, qvxsWinHamming_64f_I, (Qvx64f* pSrcDst, int len));
QVXS_API(QvxStatus, qvxsWinHamming_64fc, (const Qvx64fc* pSrc, Qvx64fc* pDst, int len));
QVXS_API(QvxStatus, qvxsWinHamming_64fc_I, (Qvx64fc* pSrcDst, int len));

/** Blackman: w[n] = (alpha + 1)/2 - 0.5 cos(2 pi n / (N-1)) - alpha/2 cos(4 pi n / (N-1)), for any alpha. A negative one
 *  is usual. Below -0.25, or where it comes near, the two terms s (1 + 4 alpha) and -4 alpha s^2, s = sin^2(pi n / (N-1)), cancel:
 *  the weight is as accurate as stated, relative to them. With N = 3 the ends become 0 whatever they were.
 *  Returns qvxStatOk; qvxStatNullPtr; qvxStatBadSize (len < 3). */
QVXS_API(QvxStatus, qvxsWinBlackman_16s, (const Qvx16s* pSrc, Qvx16s* pDst, int len, Qvx32f alpha));
QVXS_API(QvxStatus, qvxsWinBlackman_16s_I, (Qvx16s* pSrcDst, int len, Qvx32f alpha));
QVXS_API(QvxStatus, qvxsWinBlackman_16sc, (const Qvx16sc* pSrc, Qvx16sc* pDst, int len, Qvx32f alpha));
QVXS_API(QvxStatus, qvxsWinBlackman_16sc_I, (Qvx16sc* pSrcDst, int len, Qvx32f alpha));
QVXS_API(QvxStatus, qvxsWinBlackman_32f, (const Qvx32f* pSrc, Qvx32f* pDst, int len, Qvx32f alpha));
QVXS_API(QvxStatus, qvxsWinBlackman_32f_I, (Qvx32f* pSrcDst, int len, Qvx32f alpha));
QVXS_API(QvxStatus, qvxsWinBlackman_32fc, (const Qvx32fc* pSrc, Qvx32fc* pDst, int len, Qvx32f alpha));
QVXS_API(QvxStatus, qvxsWinBlackman_32fc_I, (Qvx32fc* pSrcDst, int len, Qvx32f alpha));
QVXS_API(QvxStatus, qvxsWinBlackman_64f, (const Qvx64f* pSrc, Qvx64f* pDst, int len, Qvx64f alpha));
QVXS_API(QvxStatus, qvxsWinBlackman_64f_I, (Qvx64f* pSrcDst, int len, Qvx64f alpha));
QVXS_API(QvxStatus, qvxsWinBlackman_64fc, (const Qvx64fc* pSrc, Qvx64fc* pDst, int len, Qvx64f alpha));
QVXS_API(QvxStatus, qvxsWinBlackman_64fc_I, (Qvx64fc* pSrcDst, int len, Qvx64f alpha));

/** Blackman with alpha = -0.16 (as a Qvx32f, in all types).
 *  Returns qvxStatOk; qvxStatNullPtr; qvxStatBadSize (len < 3). */
QVXS_API(QvxStatus, qvxsWinBlackmanStd_16s, (const Qvx16s* pSrc, Qvx16s* pDst, int len));
QVXS_API(QvxStatus, qvxsWinBlackmanStd_16s_I, (Qvx16s* pSrcDst, int len));
QVXS_API(QvxStatus, qvxsWinBlackmanStd_16sc, (const Qvx16sc* pSrc, Qvx16sc* pDst, int len));
QVXS_API(QvxStatus, qvxsWinBlackmanStd_16sc_I, (Qvx16sc* pSrcDst, int len));
QVXS_API(QvxStatus, qvxsWinBlackmanStd_32f, (const Qvx32f* pSrc, Qvx32f* pDst, int len));
QVXS_API(QvxStatus, qvxsWinBlackmanStd_32f_I, (Qvx32f* pSrcDst, int len));
QVXS_API(QvxStatus, qvxsWinBlackmanStd_32fc, (const Qvx32fc* pSrc, Qvx32fc* pDst, int len));
QVXS_API(QvxStatus, qvxsWinBlackmanStd_32fc_I, (Qvx32fc* pSrcDst, int len));
QVXS_API(QvxStatus, qvxsWinBlackmanStd_64f, (const Qvx64f* pSrc, Qvx64f* pDst, int len));
QVXS_API(QvxStatus, qvxsWinBlackmanStd_64f_I, (Qvx64f* pSrcDst, int len));
QVXS_API(QvxStatus, qvxsWinBlackmanStd_64fc, (const Qvx64fc* pSrc, Qvx64fc* pDst, int len));
QVXS_API(QvxStatus, qvxsWinBlackmanStd_64fc_I, (Qvx64fc* pSrcDst, int len));

/** Blackman with alpha = -(0.5 / cos(pi / (N-1)))^2, computed in doubles: the fastest fall of the side lobes.
 *  Returns qvxStatOk; qvxStatBadSize (len < 4, before the pointers); qvxStatNullPtr. */
QVXS_API(QvxStatus, qvxsWinBlackmanOpt_16s, (const Qvx16s* pSrc, Qvx16s* pDst, int len));
QVXS_API(QvxStatus, qvxsWinBlackmanOpt_16s_I, (Qvx16s* pSrcDst, int len));
QVXS_API(QvxStatus, qvxsWinBlackmanOpt_16sc, (const Qvx16sc* pSrc, Qvx16sc* pDst, int len));
QVXS_API(QvxStatus, qvxsWinBlackmanOpt_16sc_I, (Qvx16sc* pSrcDst, int len));
QVXS_API(QvxStatus, qvxsWinBlackmanOpt_32f, (const Qvx32f* pSrc, Qvx32f* pDst, int len));
QVXS_API(QvxStatus, qvxsWinBlackmanOpt_32f_I, (Qvx32f* pSrcDst, int len));
QVXS_API(QvxStatus, qvxsWinBlackmanOpt_32fc, (const Qvx32fc* pSrc, Qvx32fc* pDst, int len));
QVXS_API(QvxStatus, qvxsWinBlackmanOpt_32fc_I, (Qvx32fc* pSrcDst, int len));
QVXS_API(QvxStatus, qvxsWinBlackmanOpt_64f, (const Qvx64f* pSrc, Qvx64f* pDst, int len));
QVXS_API(QvxStatus, qvxsWinBlackmanOpt_64f_I, (Qvx64f* pSrcDst, int len));
QVXS_API(QvxStatus, qvxsWinBlackmanOpt_64fc, (const Qvx64fc* pSrc, Qvx64fc* pDst, int len));
QVXS_API(QvxStatus, qvxsWinBlackmanOpt_64fc_I, (Qvx64fc* pSrcDst, int len));

/** Kaiser: w[n] = I0(|alpha| sqrt(n (N-1-n))) / I0(|alpha| (N-1) / 2), I0 the modified Bessel function of the first kind.
 *  |alpha| (N-1) / 2 is called beta elsewhere. I0 comes from the polynomials of Abramowitz and Stegun, 9.8.1 and 9.8.2, and
 *  for 64f and 64fc from two of higher degree that meet at an argument of 4, where the upper one is off by 5.53e-6. Computed in
 *  doubles they make w differ from the true ratio, relative to it, by less than
 *     32f, 32fc    4.0e-7
 *     16s, 16sc    7.0e-7, what is above an argument of 38 counted in
 *     64f, 64fc    5.6e-6
 *  Returns qvxStatOk; qvxStatNullPtr; qvxStatBadSize (len < 1); qvxStatBadKaiserAlpha (|alpha| (N-1) / 2 above 38 for 32f and
 *  32fc, above 308 for the others, or a NaN). A vector of one element is copied. */
QVXS_API(QvxStatus, qvxsWinKaiser_16s, (const Qvx16s* pSrc, Qvx16s* pDst, int len, Qvx32f alpha));
QVXS_API(QvxStatus, qvxsWinKaiser_16s_I, (Qvx16s* pSrcDst, int len, Qvx32f alpha));
QVXS_API(QvxStatus, qvxsWinKaiser_16sc, (const Qvx16sc* pSrc, Qvx16sc* pDst, int len, Qvx32f alpha));
QVXS_API(QvxStatus, qvxsWinKaiser_16sc_I, (Qvx16sc* pSrcDst, int len, Qvx32f alpha));
QVXS_API(QvxStatus, qvxsWinKaiser_32f, (const Qvx32f* pSrc, Qvx32f* pDst, int len, Qvx32f alpha));
QVXS_API(QvxStatus, qvxsWinKaiser_32f_I, (Qvx32f* pSrcDst, int len, Qvx32f alpha));
QVXS_API(QvxStatus, qvxsWinKaiser_32fc, (const Qvx32fc* pSrc, Qvx32fc* pDst, int len, Qvx32f alpha));
QVXS_API(QvxStatus, qvxsWinKaiser_32fc_I, (Qvx32fc* pSrcDst, int len, Qvx32f alpha));
QVXS_API(QvxStatus, qvxsWinKaiser_64f, (const Qvx64f* pSrc, Qvx64f* pDst, int len, Qvx32f alpha));
QVXS_API(QvxStatus, qvxsWinKaiser_64f_I, (Qvx64f* pSrcDst, int len, Qvx32f alpha));
QVXS_API(QvxStatus, qvxsWinKaiser_64fc, (const Qvx64fc* pSrc, Qvx64fc* pDst, int len, Qvx32f alpha));
QVXS_API(QvxStatus, qvxsWinKaiser_64fc_I, (Qvx64fc* pSrcDst, int len, Qvx32f alpha));

/** Blackman with alpha = alphaQ15 * 2^-15. _ISfs: each product times 2^-scaleFactor before it is rounded, the middle element too.
 *  Returns qvxStatOk; qvxStatNullPtr; qvxStatBadSize (len < 3). */
QVXS_API(QvxStatus, qvxsWinBlackmanQ15_16s, (const Qvx16s* pSrc, Qvx16s* pDst, int len, int alphaQ15));
QVXS_API(QvxStatus, qvxsWinBlackmanQ15_16s_I, (Qvx16s* pSrcDst, int len, int alphaQ15));
QVXS_API(QvxStatus, qvxsWinBlackmanQ15_16sc, (const Qvx16sc* pSrc, Qvx16sc* pDst, int len, int alphaQ15));
QVXS_API(QvxStatus, qvxsWinBlackmanQ15_16sc_I, (Qvx16sc* pSrcDst, int len, int alphaQ15));
QVXS_API(QvxStatus, qvxsWinBlackmanQ15_16s_ISfs, (Qvx16s* pSrcDst, int len, int alphaQ15, int scaleFactor));

/** Kaiser with alpha = alphaQ15 * 2^-15, of any sign.
 *  Returns what the Kaiser window of Qvx16s returns. */
QVXS_API(QvxStatus, qvxsWinKaiserQ15_16s, (const Qvx16s* pSrc, Qvx16s* pDst, int len, int alphaQ15));
QVXS_API(QvxStatus, qvxsWinKaiserQ15_16s_I, (Qvx16s* pSrcDst, int len, int alphaQ15));
QVXS_API(QvxStatus, qvxsWinKaiserQ15_16sc, (const Qvx16sc* pSrc, Qvx16sc* pDst, int len, int alphaQ15));
QVXS_API(QvxStatus, qvxsWinKaiserQ15_16sc_I, (Qvx16sc* pSrcDst, int len, int alphaQ15));

#ifdef __cplusplus
}
#endif

#endif
