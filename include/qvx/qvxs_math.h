/* Squares, roots, absolute values, exponentials, logarithms, arctangents. */
#ifndef QVX_QVXS_MATH_H
#define QVX_QVXS_MATH_H

#include <qvx/qvxdefs.h>

#ifdef __cplusplus
extern "C" {
#endif

/** dst[n] = src[n]^2; integers times 2^-scaleFactor, nearest even, saturated; the _I and _ISfs forms: of srcDst[n].
 *  Exact but for that one rounding. Floats: one multiplication; complex floats: re*re - im*im and re*im + im*re, each operation
 *  rounded by itself.
 *  pSrc, pDst: len elements each, any alignment.
 *  Returns qvxStatOk; qvxStatNullPtr; qvxStatBadSize (len < 1). */
QVXS_API(QvxStatus, qvxsSqr_32f, (const Qvx32f* pSrc, Qvx32f* pDst, int len));
QVXS_API(QvxStatus, qvxsSqr_32f_I, (Qvx32f* pSrcDst, int len));
QVXS_API(QvxStatus, qvxsSqr_32fc, (const Qvx32fc* pSrc, Qvx32fc* pDst, int len));
QVXS_API(QvxStatus, qvxsSqr_32fc_I, (Qvx32fc* pSrcDst, int len));
QVXS_API(QvxStatus, qvxsSqr_64f, (const Qvx64f* pSrc, Qvx64f* pDst, int len));
QVXS_API(QvxStatus, qvxsSqr_64f_I, (Qvx64f* pSrcDst, int len));
QVXS_API(QvxStatus, qvxsSqr_64fc, (const Qvx64fc* pSrc, Qvx64fc* pDst, int len));
QVXS_API(QvxStatus, qvxsSqr_64fc_I, (Qvx64fc* pSrcDst, int len));
QVXS_API(QvxStatus, qvxsSqr_8u_Sfs, (const Qvx8u* pSrc, Qvx8u* pDst, int len, int scaleFactor));
QVXS_API(QvxStatus, qvxsSqr_8u_ISfs, (Qvx8u* pSrcDst, int len, int scaleFactor));
QVXS_API(QvxStatus, qvxsSqr_16u_Sfs, (const Qvx16u* pSrc, Qvx16u* pDst, int len, int scaleFactor));
QVXS_API(QvxStatus, qvxsSqr_16u_ISfs, (Qvx16u* pSrcDst, int len, int scaleFactor));
QVXS_API(QvxStatus, qvxsSqr_16s_Sfs, (const Qvx16s* pSrc, Qvx16s* pDst, int len, int scaleFactor));
QVXS_API(QvxStatus, qvxsSqr_16s_ISfs, (Qvx16s* pSrcDst, int len, int scaleFactor));
QVXS_API(QvxStatus, qvxsSqr_16sc_Sfs, (const Qvx16sc* pSrc, Qvx16sc* pDst, int len, int scaleFactor));
QVXS_API(QvxStatus, qvxsSqr_16sc_ISfs, (Qvx16sc* pSrcDst, int len, int scaleFactor));

/** dst[n] = square root of src[n], the principal one; integers times 2^-scaleFactor, nearest even, saturated; the _I and _ISfs
 *  forms: of srcDst[n].
 *  Real floats: correctly rounded. Integers: the root of the exact value, rounded once, at every scale factor; of 16sc each part
 *  of the exact complex root. Complex floats: each part within 0.501 (32fc) and 2 (64fc) units in its last place, without
 *  overflow or loss for parts of any size; zeros, infinities and NaN as csqrt has them.
 *  A real element below 0 has no root: floats become the processor's quiet NaN, integers 0.
 *  pSrc, pDst: len elements each, any alignment. Long vectors may be divided between two threads.
 *  Returns qvxStatOk; qvxWarnSqrtNegArg if a real element was below 0 (the others are complete); qvxStatNullPtr;
 *  qvxStatBadSize (len < 1). */
QVXS_API(QvxStatus, qvxsSqrt_32f, (const Qvx32f* pSrc, Qvx32f* pDst, int len));
QVXS_API(QvxStatus, qvxsSqrt_32f_I, (Qvx32f* pSrcDst, int len));
QVXS_API(QvxStatus, qvxsSqrt_32fc, (const Qvx32fc* pSrc, Qvx32fc* pDst, int len));
QVXS_API(QvxStatus, qvxsSqrt_32fc_I, (Qvx32fc* pSrcDst, int len));
QVXS_API(QvxStatus, qvxsSqrt_64f, (const Qvx64f* pSrc, Qvx64f* pDst, int len));
QVXS_API(QvxStatus, qvxsSqrt_64f_I, (Qvx64f* pSrcDst, int len));
QVXS_API(QvxStatus, qvxsSqrt_64fc, (const Qvx64fc* pSrc, Qvx64fc* pDst, int len));
QVXS_API(QvxStatus, qvxsSqrt_64fc_I, (Qvx64fc* pSrcDst, int len));
QVXS_API(QvxStatus, qvxsSqrt_8u_Sfs, (const Qvx8u* pSrc, Qvx8u* pDst, int len, int scaleFactor));
QVXS_API(QvxStatus, qvxsSqrt_8u_ISfs, (Qvx8u* pSrcDst, int len, int scaleFactor));
QVXS_API(QvxStatus, qvxsSqrt_16u_Sfs, (const Qvx16u* pSrc, Qvx16u* pDst, int len, int scaleFactor));
QVXS_API(QvxStatus, qvxsSqrt_16u_ISfs, (Qvx16u* pSrcDst, int len, int scaleFactor));
QVXS_API(QvxStatus, qvxsSqrt_16s_Sfs, (const Qvx16s* pSrc, Qvx16s* pDst, int len, int scaleFactor));
QVXS_API(QvxStatus, qvxsSqrt_16s_ISfs, (Qvx16s* pSrcDst, int len, int scaleFactor));
QVXS_API(QvxStatus, qvxsSqrt_16sc_Sfs, (const Qvx16sc* pSrc, Qvx16sc* pDst, int len, int scaleFactor));
QVXS_API(QvxStatus, qvxsSqrt_16sc_ISfs, (Qvx16sc* pSrcDst, int len, int scaleFactor));
QVXS_API(QvxStatus, qvxsSqrt_64s_Sfs, (const Qvx64s* pSrc, Qvx64s* pDst, int len, int scaleFactor));
QVXS_API(QvxStatus, qvxsSqrt_64s_ISfs, (Qvx64s* pSrcDst, int len, int scaleFactor));
QVXS_API(QvxStatus, qvxsSqrt_32s16s_Sfs, (const Qvx32s* pSrc, Qvx16s* pDst, int len, int scaleFactor));
QVXS_API(QvxStatus, qvxsSqrt_64s16s_Sfs, (const Qvx64s* pSrc, Qvx16s* pDst, int len, int scaleFactor));

/** dst[n] = cube root of src[n], with its sign.
 *  Accuracy: 0.52 ULP, the same bits in every variant. Zeros and infinities give themselves, NaN gives NaN.
 *  pSrc, pDst: len elements each, any alignment.
 *  Returns qvxStatOk; qvxStatNullPtr; qvxStatBadSize (len < 1). */
QVXS_API(QvxStatus, qvxsCubrt_32f, (const Qvx32f* pSrc, Qvx32f* pDst, int len));

/** dst[n] = cube root of src[n], times 2^-scaleFactor, half a unit rounded up, saturated. Exact but for that one rounding.
 *  pSrc, pDst: len elements each, any alignment.
 *  Returns qvxStatOk; qvxStatNullPtr; qvxStatBadSize (len < 1). */
QVXS_API(QvxStatus, qvxsCubrt_32s16s_Sfs, (const Qvx32s* pSrc, Qvx16s* pDst, int len, int scaleFactor));

/** dst[n] = |src[n]|; the _I forms: of srcDst[n]. The most negative integer becomes the largest; floats lose their sign bit.
 *  pSrc, pDst: len elements each, any alignment.
 *  Returns qvxStatOk; qvxStatNullPtr; qvxStatBadSize (len < 1). */
QVXS_API(QvxStatus, qvxsAbs_16s, (const Qvx16s* pSrc, Qvx16s* pDst, int len));
QVXS_API(QvxStatus, qvxsAbs_16s_I, (Qvx16s* pSrcDst, int len));
QVXS_API(QvxStatus, qvxsAbs_32s, (const Qvx32s* pSrc, Qvx32s* pDst, int len));
QVXS_API(QvxStatus, qvxsAbs_32s_I, (Qvx32s* pSrcDst, int len));
QVXS_API(QvxStatus, qvxsAbs_32f, (const Qvx32f* pSrc, Qvx32f* pDst, int len));
QVXS_API(QvxStatus, qvxsAbs_32f_I, (Qvx32f* pSrcDst, int len));
QVXS_API(QvxStatus, qvxsAbs_64f, (const Qvx64f* pSrc, Qvx64f* pDst, int len));
QVXS_API(QvxStatus, qvxsAbs_64f_I, (Qvx64f* pSrcDst, int len));

/** dst[n] = e to the power of src[n]; the _I forms: of srcDst[n]. 32f64f: from a float, computed and given as a double.
 *  Accuracy: 1.0 ULP, with AVX-512 0.81 ULP, subnormal results included. -infinity gives 0, results too large
 *  infinity, NaN gives NaN; all without a warning.
 *  pSrc, pDst: len elements each, any alignment.
 *  Returns qvxStatOk; qvxStatNullPtr; qvxStatBadSize (len < 1). */
QVXS_API(QvxStatus, qvxsExp_32f, (const Qvx32f* pSrc, Qvx32f* pDst, int len));
QVXS_API(QvxStatus, qvxsExp_32f_I, (Qvx32f* pSrcDst, int len));
QVXS_API(QvxStatus, qvxsExp_64f, (const Qvx64f* pSrc, Qvx64f* pDst, int len));
QVXS_API(QvxStatus, qvxsExp_64f_I, (Qvx64f* pSrcDst, int len));
QVXS_API(QvxStatus, qvxsExp_32f64f, (const Qvx32f* pSrc, Qvx64f* pDst, int len));

/** dst[n] = e^src[n], times 2^-scaleFactor, half a unit rounded up, saturated; the _ISfs forms: of srcDst[n].
 *  e^x is taken as the nearest double: results of 64 bits have its 53. Where it is beyond all doubles, from x = 710 on, the result
 *  is the largest number at any scale factor.
 *  pSrc, pDst: len elements each, any alignment.
 *  Returns qvxStatOk; qvxStatNullPtr; qvxStatBadSize (len < 1). */
QVXS_API(QvxStatus, qvxsExp_16s_Sfs, (const Qvx16s* pSrc, Qvx16s* pDst, int len, int scaleFactor));
QVXS_API(QvxStatus, qvxsExp_16s_ISfs, (Qvx16s* pSrcDst, int len, int scaleFactor));
QVXS_API(QvxStatus, qvxsExp_32s_Sfs, (const Qvx32s* pSrc, Qvx32s* pDst, int len, int scaleFactor));
QVXS_API(QvxStatus, qvxsExp_32s_ISfs, (Qvx32s* pSrcDst, int len, int scaleFactor));
QVXS_API(QvxStatus, qvxsExp_64s_Sfs, (const Qvx64s* pSrc, Qvx64s* pDst, int len, int scaleFactor));
QVXS_API(QvxStatus, qvxsExp_64s_ISfs, (Qvx64s* pSrcDst, int len, int scaleFactor));

/** dst[n] = natural logarithm of src[n]; the _I forms: of srcDst[n]. 64f32f: of a double, given as a float.
 *  Accuracy: 0.85 ULP, 64f with AVX-512 1.1 ULP, subnormal arguments included; 64f32f: 0.51 ULP.
 *  +0 gives -infinity, a negative number and -0 the NaN 0xFFC00000 (0xFFF8000000000000), infinity and NaN themselves.
 *  pSrc, pDst: len elements each, any alignment.
 *  Returns qvxStatOk; as the first element that was 0 or negative decides, qvxWarnLnZeroArg (it was +0) or qvxWarnLnNegArg, the
 *  vector being complete; qvxStatNullPtr; qvxStatBadSize (len < 1). */
QVXS_API(QvxStatus, qvxsLn_32f, (const Qvx32f* pSrc, Qvx32f* pDst, int len));
QVXS_API(QvxStatus, qvxsLn_32f_I, (Qvx32f* pSrcDst, int len));
QVXS_API(QvxStatus, qvxsLn_64f, (const Qvx64f* pSrc, Qvx64f* pDst, int len));
QVXS_API(QvxStatus, qvxsLn_64f_I, (Qvx64f* pSrcDst, int len));
QVXS_API(QvxStatus, qvxsLn_64f32f, (const Qvx64f* pSrc, Qvx32f* pDst, int len));

/** dst[n] = natural logarithm of src[n], times 2^-scaleFactor, nearest even, saturated; the _ISfs forms: of srcDst[n].
 *  Rounded once, from the exact logarithm. An element below 1 gives the most negative number of the destination's type.
 *  pSrc, pDst: len elements each, any alignment.
 *  Returns qvxStatOk; if elements were below 1 (everything is written), by the first of them: qvxWarnLnZeroArg if it was 0,
 *  qvxWarnLnNegArg if it was less; qvxStatNullPtr; qvxStatBadSize (len < 1). */
QVXS_API(QvxStatus, qvxsLn_16s_Sfs, (const Qvx16s* pSrc, Qvx16s* pDst, int len, int scaleFactor));
QVXS_API(QvxStatus, qvxsLn_16s_ISfs, (Qvx16s* pSrcDst, int len, int scaleFactor));
QVXS_API(QvxStatus, qvxsLn_32s_Sfs, (const Qvx32s* pSrc, Qvx32s* pDst, int len, int scaleFactor));
QVXS_API(QvxStatus, qvxsLn_32s_ISfs, (Qvx32s* pSrcDst, int len, int scaleFactor));
QVXS_API(QvxStatus, qvxsLn_32s16s_Sfs, (const Qvx32s* pSrc, Qvx16s* pDst, int len, int scaleFactor));

/** dst[n] = 10 times the decimal logarithm of src[n], the rest as with integer logarithms qvxsLn. */
QVXS_API(QvxStatus, qvxs10Log10_32s_Sfs, (const Qvx32s* pSrc, Qvx32s* pDst, int len, int scaleFactor));
QVXS_API(QvxStatus, qvxs10Log10_32s_ISfs, (Qvx32s* pSrcDst, int len, int scaleFactor));

/** *pSum = sum of the natural logarithms of src[0] to src[len - 1]. 32f64f: of floats, given as a double; 16s32f: of integers.
 *  Accuracy: that of a sum in double, and len * 2^-53 where the source is narrower.
 *  An element of +0 makes it -infinity, a negative one or -0 NaN.
 *  pSrc: len elements, any alignment.
 *  Returns qvxStatOk; as the first element that was 0 or negative decides, qvxWarnLnZeroArg (it was 0, not -0) or qvxWarnLnNegArg,
 *  the sum being written; qvxStatNullPtr; qvxStatBadSize (len < 1). */
QVXS_API(QvxStatus, qvxsSumLn_32f, (const Qvx32f* pSrc, int len, Qvx32f* pSum));
QVXS_API(QvxStatus, qvxsSumLn_64f, (const Qvx64f* pSrc, int len, Qvx64f* pSum));
QVXS_API(QvxStatus, qvxsSumLn_32f64f, (const Qvx32f* pSrc, int len, Qvx64f* pSum));
QVXS_API(QvxStatus, qvxsSumLn_16s32f, (const Qvx16s* pSrc, int len, Qvx32f* pSum));

/** dst[n] = arctangent of src[n], from -pi/2 to pi/2; the _I forms: of srcDst[n].
 *  Accuracy: 1.0 ULP (32f), 1.25 ULP (64f). Zeros give themselves, infinities +-pi/2, NaN gives NaN.
 *  pSrc, pDst: len elements each, any alignment.
 *  Returns qvxStatOk; qvxStatNullPtr; qvxStatBadSize (len < 1). */
QVXS_API(QvxStatus, qvxsArctan_32f, (const Qvx32f* pSrc, Qvx32f* pDst, int len));
QVXS_API(QvxStatus, qvxsArctan_32f_I, (Qvx32f* pSrcDst, int len));
QVXS_API(QvxStatus, qvxsArctan_64f, (const Qvx64f* pSrc, Qvx64f* pDst, int len));
QVXS_API(QvxStatus, qvxsArctan_64f_I, (Qvx64f* pSrcDst, int len));

#ifdef __cplusplus
}
#endif

#endif
