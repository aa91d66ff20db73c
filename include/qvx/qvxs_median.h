/* Sliding windows: their medians and sums. */
#ifndef QVX_QVXS_MEDIAN_H
#define QVX_QVXS_MEDIAN_H

#include <qvx/qvxdefs.h>

#ifdef __cplusplus
extern "C" {
#endif

/** Median filter: each element becomes the median of the maskSize elements around it, itself in the middle. The ends behave as if the first
 *  and the last element went on for ever; vectors of one or two elements stay as they are. An even mask is reduced by one.
 *  A result is always an element of the window, bit for bit. Floats are ordered as the sorts have them: the NaN of negative sign,
 *  -infinity, numbers with -0.0 before 0.0, infinity, the other NaN; NaN of one sign by their bits. Where the processor is set to
 *  take subnormal numbers for zeros, they may come out as such.
 *  pSrc, pDst: len elements each, any alignment; pDst may be pSrc. Masks above 9 take memory of the core library for the time of the call.
 *  Returns qvxStatOk; qvxWarnEvenMask (even maskSize); qvxStatNullPtr; qvxStatBadSize (len < 1 or maskSize < 1); qvxStatNoMem (nothing is
 *  written). */
QVXS_API(QvxStatus, qvxsFilterMedian_32f, (const Qvx32f* pSrc, Qvx32f* pDst, int len, int maskSize));
QVXS_API(QvxStatus, qvxsFilterMedian_32f_I, (Qvx32f* pSrcDst, int len, int maskSize));
QVXS_API(QvxStatus, qvxsFilterMedian_64f, (const Qvx64f* pSrc, Qvx64f* pDst, int len, int maskSize));
QVXS_API(QvxStatus, qvxsFilterMedian_64f_I, (Qvx64f* pSrcDst, int len, int maskSize));
QVXS_API(QvxStatus, qvxsFilterMedian_8u, (const Qvx8u* pSrc, Qvx8u* pDst, int len, int maskSize));
QVXS_API(QvxStatus, qvxsFilterMedian_8u_I, (Qvx8u* pSrcDst, int len, int maskSize));
QVXS_API(QvxStatus, qvxsFilterMedian_16s, (const Qvx16s* pSrc, Qvx16s* pDst, int len, int maskSize));
QVXS_API(QvxStatus, qvxsFilterMedian_16s_I, (Qvx16s* pSrcDst, int len, int maskSize));
QVXS_API(QvxStatus, qvxsFilterMedian_32s, (const Qvx32s* pSrc, Qvx32s* pDst, int len, int maskSize));
QVXS_API(QvxStatus, qvxsFilterMedian_32s_I, (Qvx32s* pSrcDst, int len, int maskSize));

/** Window sums: dst[n] = src[n] + ... + src[n + maskSize - 1], the exact sum rounded to a float.
 *  pSrc: len + maskSize - 1 elements; pDst: len, any alignment, apart from the source.
 *  Returns qvxStatOk, also where len < 1, with nothing written; qvxStatNullPtr; qvxStatBadMaskSize (maskSize < 1). */
QVXS_API(QvxStatus, qvxsSumWindow_8u32f, (const Qvx8u* pSrc, Qvx32f* pDst, int len, int maskSize));
QVXS_API(QvxStatus, qvxsSumWindow_16s32f, (const Qvx16s* pSrc, Qvx32f* pDst, int len, int maskSize));

#ifdef __cplusplus
}
#endif

#endif
