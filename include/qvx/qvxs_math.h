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

#ifdef __cplusplus
}
#endif

#endif
