/* Complex vectors: their parts, conjugates, order, power, and polar coordinates. Where a function takes complex data in two real
 * vectors, its name has the real type. */
#ifndef QVX_QVXS_COMPLEX_H
#define QVX_QVXS_COMPLEX_H

#include <qvx/qvxdefs.h>

#ifdef __cplusplus
extern "C" {
#endif

/** dst[n] = the real part of src[n].
 *  pSrc, pDst: len elements each, any alignment, here and below; a destination may be a source of its own type, but not overlap
 *  otherwise.
 *  Returns qvxStatOk; qvxStatNullPtr; qvxStatBadSize (len < 1). */
QVXS_API(QvxStatus, qvxsReal_16sc, (const Qvx16sc* pSrc, Qvx16s* pDst, int len));
QVXS_API(QvxStatus, qvxsReal_32fc, (const Qvx32fc* pSrc, Qvx32f* pDst, int len));
QVXS_API(QvxStatus, qvxsReal_64fc, (const Qvx64fc* pSrc, Qvx64f* pDst, int len));

/** dst[n] = the imaginary part of src[n]. As qvxsReal. */
QVXS_API(QvxStatus, qvxsImag_16sc, (const Qvx16sc* pSrc, Qvx16s* pDst, int len));
QVXS_API(QvxStatus, qvxsImag_32fc, (const Qvx32fc* pSrc, Qvx32f* pDst, int len));
QVXS_API(QvxStatus, qvxsImag_64fc, (const Qvx64fc* pSrc, Qvx64f* pDst, int len));

/** dstRe[n] and dstIm[n] = the parts of src[n]. As qvxsReal. */
QVXS_API(QvxStatus, qvxsCplxToReal_16sc, (const Qvx16sc* pSrc, Qvx16s* pDstRe, Qvx16s* pDstIm, int len));
QVXS_API(QvxStatus, qvxsCplxToReal_32fc, (const Qvx32fc* pSrc, Qvx32f* pDstRe, Qvx32f* pDstIm, int len));
QVXS_API(QvxStatus, qvxsCplxToReal_64fc, (const Qvx64fc* pSrc, Qvx64f* pDstRe, Qvx64f* pDstIm, int len));

/** dst[n] = srcRe[n] + i srcIm[n]. One source may be null: that part is 0 then.
 *  Returns qvxStatOk; qvxStatNullPtr (pDst null); qvxStatBadSize (len < 1); qvxStatNullPtr (both sources null). */
QVXS_API(QvxStatus, qvxsRealToCplx_16s, (const Qvx16s* pSrcRe, const Qvx16s* pSrcIm, Qvx16sc* pDst, int len));
QVXS_API(QvxStatus, qvxsRealToCplx_32f, (const Qvx32f* pSrcRe, const Qvx32f* pSrcIm, Qvx32fc* pDst, int len));
QVXS_API(QvxStatus, qvxsRealToCplx_64f, (const Qvx64f* pSrcRe, const Qvx64f* pSrcIm, Qvx64fc* pDst, int len));

/** dst[n] = the conjugate of src[n]; the _I forms: of srcDst[n]. Imaginary parts of -32768 become 32767; those of floats have
 *  their sign bit turned, zeros and NaN too. As qvxsReal. */
QVXS_API(QvxStatus, qvxsConj_16sc, (const Qvx16sc* pSrc, Qvx16sc* pDst, int len));
QVXS_API(QvxStatus, qvxsConj_16sc_I, (Qvx16sc* pSrcDst, int len));
QVXS_API(QvxStatus, qvxsConj_32fc, (const Qvx32fc* pSrc, Qvx32fc* pDst, int len));
QVXS_API(QvxStatus, qvxsConj_32fc_I, (Qvx32fc* pSrcDst, int len));
QVXS_API(QvxStatus, qvxsConj_64fc, (const Qvx64fc* pSrc, Qvx64fc* pDst, int len));
QVXS_API(QvxStatus, qvxsConj_64fc_I, (Qvx64fc* pSrcDst, int len));

/** dst[n] = the conjugate of src[len - 1 - n]. As qvxsConj, but the vectors must not overlap. */
QVXS_API(QvxStatus, qvxsConjFlip_16sc, (const Qvx16sc* pSrc, Qvx16sc* pDst, int len));
QVXS_API(QvxStatus, qvxsConjFlip_32fc, (const Qvx32fc* pSrc, Qvx32fc* pDst, int len));
QVXS_API(QvxStatus, qvxsConjFlip_64fc, (const Qvx64fc* pSrc, Qvx64fc* pDst, int len));

/** dst[n] = src[len - 1 - n], the vectors apart; the _I forms reverse srcDst. As qvxsReal. */
QVXS_API(QvxStatus, qvxsFlip_8u, (const Qvx8u* pSrc, Qvx8u* pDst, int len));
QVXS_API(QvxStatus, qvxsFlip_8u_I, (Qvx8u* pSrcDst, int len));
QVXS_API(QvxStatus, qvxsFlip_16u, (const Qvx16u* pSrc, Qvx16u* pDst, int len));
QVXS_API(QvxStatus, qvxsFlip_16u_I, (Qvx16u* pSrcDst, int len));
QVXS_API(QvxStatus, qvxsFlip_32f, (const Qvx32f* pSrc, Qvx32f* pDst, int len));
QVXS_API(QvxStatus, qvxsFlip_32f_I, (Qvx32f* pSrcDst, int len));
QVXS_API(QvxStatus, qvxsFlip_64f, (const Qvx64f* pSrc, Qvx64f* pDst, int len));
QVXS_API(QvxStatus, qvxsFlip_64f_I, (Qvx64f* pSrcDst, int len));
QVXS_API(QvxStatus, qvxsFlip_32fc, (const Qvx32fc* pSrc, Qvx32fc* pDst, int len));
QVXS_API(QvxStatus, qvxsFlip_32fc_I, (Qvx32fc* pSrcDst, int len));
QVXS_API(QvxStatus, qvxsFlip_64fc, (const Qvx64fc* pSrc, Qvx64fc* pDst, int len));
QVXS_API(QvxStatus, qvxsFlip_64fc_I, (Qvx64fc* pSrcDst, int len));

/** dst[n] = sqrt(re^2 + im^2) of src[n], or of srcRe[n] and srcIm[n].
 *  Floats: two products, a sum and a root in the element's type, by the plain formula: it overflows from parts of 1.8e19
 *  (1.3e154 in 64f) on and loses what is below 1.1e-19 (1.5e-154). 32f results of 16-bit sources: the exact power rounded to
 *  32f, and its root. Integers: the exact root times 2^-scaleFactor, rounded to nearest with ties to even, saturated; any
 *  scaleFactor is allowed. Long vectors may be divided between two threads. As qvxsReal. */
QVXS_API(QvxStatus, qvxsMagnitude_32fc, (const Qvx32fc* pSrc, Qvx32f* pDst, int len));
QVXS_API(QvxStatus, qvxsMagnitude_64fc, (const Qvx64fc* pSrc, Qvx64f* pDst, int len));
QVXS_API(QvxStatus, qvxsMagnitude_16sc32f, (const Qvx16sc* pSrc, Qvx32f* pDst, int len));
QVXS_API(QvxStatus, qvxsMagnitude_16sc_Sfs, (const Qvx16sc* pSrc, Qvx16s* pDst, int len, int scaleFactor));
QVXS_API(QvxStatus, qvxsMagnitude_32sc_Sfs, (const Qvx32sc* pSrc, Qvx32s* pDst, int len, int scaleFactor));
QVXS_API(QvxStatus, qvxsMagnitude_32f, (const Qvx32f* pSrcRe, const Qvx32f* pSrcIm, Qvx32f* pDst, int len));
QVXS_API(QvxStatus, qvxsMagnitude_64f, (const Qvx64f* pSrcRe, const Qvx64f* pSrcIm, Qvx64f* pDst, int len));
QVXS_API(QvxStatus, qvxsMagnitude_16s_Sfs,
         (const Qvx16s* pSrcRe, const Qvx16s* pSrcIm, Qvx16s* pDst, int len, int scaleFactor));
QVXS_API(QvxStatus, qvxsMagnitude_16s32f, (const Qvx16s* pSrcRe, const Qvx16s* pSrcIm, Qvx32f* pDst, int len));

/** dst[n] = the angle of src[n], or of srcRe[n] + i srcIm[n], in radians from -pi to pi; zeros, infinities and NaN as atan2 has
 *  them.
 *  32f results: within 1.0 ULP, 64f: within 1.5 ULP.
 *  Scaled results: the angle as a 32-bit float, times 2^-scaleFactor, rounded to nearest with halves away from zero (the half
 *  is added in 32-bit floats), saturated to the destination. Any scaleFactor is allowed. As qvxsReal. */
QVXS_API(QvxStatus, qvxsPhase_32fc, (const Qvx32fc* pSrc, Qvx32f* pDst, int len));
QVXS_API(QvxStatus, qvxsPhase_64fc, (const Qvx64fc* pSrc, Qvx64f* pDst, int len));
QVXS_API(QvxStatus, qvxsPhase_16sc32f, (const Qvx16sc* pSrc, Qvx32f* pDst, int len));
QVXS_API(QvxStatus, qvxsPhase_16sc_Sfs, (const Qvx16sc* pSrc, Qvx16s* pDst, int len, int scaleFactor));
QVXS_API(QvxStatus, qvxsPhase_32sc_Sfs, (const Qvx32sc* pSrc, Qvx32s* pDst, int len, int scaleFactor));
QVXS_API(QvxStatus, qvxsPhase_32f, (const Qvx32f* pSrcRe, const Qvx32f* pSrcIm, Qvx32f* pDst, int len));
QVXS_API(QvxStatus, qvxsPhase_64f, (const Qvx64f* pSrcRe, const Qvx64f* pSrcIm, Qvx64f* pDst, int len));
QVXS_API(QvxStatus, qvxsPhase_16s_Sfs,
         (const Qvx16s* pSrcRe, const Qvx16s* pSrcIm, Qvx16s* pDst, int len, int scaleFactor));
QVXS_API(QvxStatus, qvxsPhase_16s32f, (const Qvx16s* pSrcRe, const Qvx16s* pSrcIm, Qvx32f* pDst, int len));

/** dst[n] = re^2 + im^2 of src[n], or of srcRe[n] and srcIm[n].
 *  Floats: two products and a sum in the element's type; they overflow from parts of 1.8e19 (1.3e154 in 64f) on and lose what
 *  is below 1.1e-19 (1.5e-154). 16-bit sources: exact; 32f results are rounded once, 16-bit ones are times 2^-scaleFactor,
 *  rounded to nearest with ties to even and limited to 32767. Any scaleFactor is allowed. As qvxsReal. */
QVXS_API(QvxStatus, qvxsPowerSpectr_32fc, (const Qvx32fc* pSrc, Qvx32f* pDst, int len));
QVXS_API(QvxStatus, qvxsPowerSpectr_64fc, (const Qvx64fc* pSrc, Qvx64f* pDst, int len));
QVXS_API(QvxStatus, qvxsPowerSpectr_16sc32f, (const Qvx16sc* pSrc, Qvx32f* pDst, int len));
QVXS_API(QvxStatus, qvxsPowerSpectr_16sc_Sfs, (const Qvx16sc* pSrc, Qvx16s* pDst, int len, int scaleFactor));
QVXS_API(QvxStatus, qvxsPowerSpectr_32f, (const Qvx32f* pSrcRe, const Qvx32f* pSrcIm, Qvx32f* pDst, int len));
QVXS_API(QvxStatus, qvxsPowerSpectr_64f, (const Qvx64f* pSrcRe, const Qvx64f* pSrcIm, Qvx64f* pDst, int len));
QVXS_API(QvxStatus, qvxsPowerSpectr_16s_Sfs,
         (const Qvx16s* pSrcRe, const Qvx16s* pSrcIm, Qvx16s* pDst, int len, int scaleFactor));
QVXS_API(QvxStatus, qvxsPowerSpectr_16s32f, (const Qvx16s* pSrcRe, const Qvx16s* pSrcIm, Qvx32f* pDst, int len));

/** dst[n] = re^2 + im^2 of src[n] in a wider type: 32fc64f widens the parts first. 32sc32s_Sfs: the exact value times
 *  2^-scaleFactor, rounded to nearest with ties to even and limited to 2^31 - 1. As qvxsReal. */
QVXS_API(QvxStatus, qvxsMagSquared_32fc64f, (const Qvx32fc* pSrc, Qvx64f* pDst, int len));
QVXS_API(QvxStatus, qvxsMagSquared_32sc32s_Sfs, (const Qvx32sc* pSrc, Qvx32s* pDst, int len, int scaleFactor));

/** dstMagn[n] and dstPhase[n] = magnitude and phase of src[n], or of srcRe[n] + i srcIm[n], as qvxsMagnitude and qvxsPhase give
 *  them. pDstMagn and pDstPhase may be pSrcRe and pSrcIm, either way. The float forms compute the phase even if the magnitude is
 *  refused, and return the magnitude's status first; 16sc_Sfs stops after a refused magnitude. */
QVXS_API(QvxStatus, qvxsCartToPolar_32fc, (const Qvx32fc* pSrc, Qvx32f* pDstMagn, Qvx32f* pDstPhase, int len));
QVXS_API(QvxStatus, qvxsCartToPolar_64fc, (const Qvx64fc* pSrc, Qvx64f* pDstMagn, Qvx64f* pDstPhase, int len));
QVXS_API(QvxStatus, qvxsCartToPolar_32f,
         (const Qvx32f* pSrcRe, const Qvx32f* pSrcIm, Qvx32f* pDstMagn, Qvx32f* pDstPhase, int len));
QVXS_API(QvxStatus, qvxsCartToPolar_64f,
         (const Qvx64f* pSrcRe, const Qvx64f* pSrcIm, Qvx64f* pDstMagn, Qvx64f* pDstPhase, int len));
QVXS_API(QvxStatus, qvxsCartToPolar_16sc_Sfs,
         (const Qvx16sc* pSrc, Qvx16s* pDstMagn, Qvx16s* pDstPhase, int len, int magnScaleFactor, int phaseScaleFactor));

/** dst[n] = srcMagn[n] * (cos(srcPhase[n]) + i sin(srcPhase[n])), phases in radians over the whole range of the type.
 *  Floats: the product in 64-bit floats of a sine or cosine; 32f within 0.6 ULP, 64f within 2.2 ULP of the product. An infinite
 *  phase gives NaN.
 *  16sc_Sfs: magnitudes times 2^-magnScaleFactor, phases times 2^-phaseScaleFactor, both scale factors limited to -31 to 31.
 *  16sc, 32sc: phases with phaseFixedPoint places after the point, 0 to 15 (32sc: 0 to 31).
 *  Integer results are rounded to nearest with ties to even and saturated. pDstRe and pDstIm may be pSrcMagn and pSrcPhase, either
 *  way.
 *  Returns qvxStatOk; qvxStatNullPtr; qvxStatBadSize (len < 1, or phaseFixedPoint out of range). */
QVXS_API(QvxStatus, qvxsPolarToCart_32fc, (const Qvx32f* pSrcMagn, const Qvx32f* pSrcPhase, Qvx32fc* pDst, int len));
QVXS_API(QvxStatus, qvxsPolarToCart_64fc, (const Qvx64f* pSrcMagn, const Qvx64f* pSrcPhase, Qvx64fc* pDst, int len));
QVXS_API(QvxStatus, qvxsPolarToCart_32f,
         (const Qvx32f* pSrcMagn, const Qvx32f* pSrcPhase, Qvx32f* pDstRe, Qvx32f* pDstIm, int len));
QVXS_API(QvxStatus, qvxsPolarToCart_64f,
         (const Qvx64f* pSrcMagn, const Qvx64f* pSrcPhase, Qvx64f* pDstRe, Qvx64f* pDstIm, int len));
QVXS_API(QvxStatus, qvxsPolarToCart_16sc_Sfs,
         (const Qvx16s* pSrcMagn, const Qvx16s* pSrcPhase, Qvx16sc* pDst, int len, int magnScaleFactor, int phaseScaleFactor));
QVXS_API(QvxStatus, qvxsPolarToCart_16sc,
         (const Qvx16s* pSrcMagn, const Qvx16s* pSrcPhase, int phaseFixedPoint, Qvx16sc* pDst, int len));
QVXS_API(QvxStatus, qvxsPolarToCart_32sc,
         (const Qvx32s* pSrcMagn, const Qvx32s* pSrcPhase, int phaseFixedPoint, Qvx32sc* pDst, int len));

#ifdef __cplusplus
}
#endif

#endif
