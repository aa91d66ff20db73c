/* Squares, roots, absolute values, exponentials, logarithms, arctangents. */
#ifndef QVX_QVXS_MATH_H
#define QVX_QVXS_MATH_H

#include <qvx/qvxdefs.h>

#ifdef __cplusplus
extern "C" {
#endif

/** dst[n] = square root of src[n], the principal one; the _I forms: of srcDst[n].
 *  Floats: correctly rounded. A real element below 0 becomes the processor's quiet NaN.
 *  pSrc, pDst: len elements each, any alignment. Long vectors may be divided between two threads.
 *  Returns qvxStatOk; qvxWarnSqrtNegArg if a real element was below 0 (the others are complete); qvxStatNullPtr;
 *  qvxStatBadSize (len < 1). */
QVXS_API(QvxStatus, qvxsSqrt_32f, (const Qvx32f* pSrc, Qvx32f* pDst, int len));
QVXS_API(QvxStatus, qvxsSqrt_32f_I, (Qvx32f* pSrcDst, int len));
QVXS_API(QvxStatus, qvxsSqrt_64f, (const Qvx64f* pSrc, Qvx64f* pDst, int len));
QVXS_API(QvxStatus, qvxsSqrt_64f_I, (Qvx64f* pSrcDst, int len));

/** dst[n] = cube root of src[n], with its sign.
 *  Accuracy: 0.51 ULP, the same bits in every variant. Zeros and infinities give themselves, NaN gives NaN.
 *  pSrc, pDst: len elements each, any alignment.
 *  Returns qvxStatOk; qvxStatNullPtr; qvxStatBadSize (len < 1). */
QVXS_API(QvxStatus, qvxsCubrt_32f, (const Qvx32f* pSrc, Qvx32f* pDst, int len));

/** dst[n] = e to the power of src[n]; the _I forms: of srcDst[n]. 32f64f: from a float, computed and given as a double.
 *  Accuracy: 1.0 ULP, with AVX-512 0.80 ULP, subnormal results included. -infinity gives 0, results too
 *  large infinity, NaN gives NaN; all without a warning.
 *  pSrc, pDst: len elements each, any alignment.
 *  Returns qvxStatOk; qvxStatNullPtr; qvxStatBadSize (len < 1). */
QVXS_API(QvxStatus, qvxsExp_32f, (const Qvx32f* pSrc, Qvx32f* pDst, int len));
QVXS_API(QvxStatus, qvxsExp_32f_I, (Qvx32f* pSrcDst, int len));
QVXS_API(QvxStatus, qvxsExp_64f, (const Qvx64f* pSrc, Qvx64f* pDst, int len));
QVXS_API(QvxStatus, qvxsExp_64f_I, (Qvx64f* pSrcDst, int len));
QVXS_API(QvxStatus, qvxsExp_32f64f, (const Qvx32f* pSrc, Qvx64f* pDst, int len));

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
