/* Sorting, with and without indices. */
#ifndef QVX_QVXS_SORT_H
#define QVX_QVXS_SORT_H

#include <qvx/qvxdefs.h>

#ifdef __cplusplus
extern "C" {
#endif

/* The order of floats, of all functions here but qvxsSortIndex: ascending, the NaN of negative sign, -infinity, numbers with -0.0 before
 * 0.0, infinity, the other NaN; NaN of one sign by their bits. Descending, all of that reversed. So results are the same to the bit in
 * all variants. */

/** The elements of pSrcDst in ascending or descending order.
 *  pSrcDst: len elements, any alignment. No more than O(len log len) steps in any case, and no slower where many elements are equal;
 *  8-bit and long 16-bit vectors in O(len). Long vectors of 32-bit and 64-bit elements are divided between two threads.
 *  Returns qvxStatOk; qvxStatNullPtr; qvxStatBadSize (len < 1). */
QVXS_API(QvxStatus, qvxsSortAscend_8u_I, (Qvx8u* pSrcDst, int len));
QVXS_API(QvxStatus, qvxsSortAscend_16s_I, (Qvx16s* pSrcDst, int len));
QVXS_API(QvxStatus, qvxsSortAscend_16u_I, (Qvx16u* pSrcDst, int len));
QVXS_API(QvxStatus, qvxsSortAscend_32s_I, (Qvx32s* pSrcDst, int len));
QVXS_API(QvxStatus, qvxsSortAscend_32f_I, (Qvx32f* pSrcDst, int len));
QVXS_API(QvxStatus, qvxsSortAscend_64f_I, (Qvx64f* pSrcDst, int len));
QVXS_API(QvxStatus, qvxsSortDescend_8u_I, (Qvx8u* pSrcDst, int len));
QVXS_API(QvxStatus, qvxsSortDescend_16s_I, (Qvx16s* pSrcDst, int len));
QVXS_API(QvxStatus, qvxsSortDescend_16u_I, (Qvx16u* pSrcDst, int len));
QVXS_API(QvxStatus, qvxsSortDescend_32s_I, (Qvx32s* pSrcDst, int len));
QVXS_API(QvxStatus, qvxsSortDescend_32f_I, (Qvx32f* pSrcDst, int len));
QVXS_API(QvxStatus, qvxsSortDescend_64f_I, (Qvx64f* pSrcDst, int len));

/** The same, and pDstIndx[i] = the place, 0 to len-1, that pSrcDst[i] had before. Comparisons are those of numbers: -0.0 equals 0.0.
 *  pSrcDst, pDstIndx: len elements each, apart, any alignment.
 *  Different elements are sorted in O(len log len) steps. Equal elements keep no order of theirs: they are left as a quicksort with the
 *  median of three leaves them, the same in all variants, whose steps for a range lo..hi of n > 9 elements are
 *    order x[lo], x[hi]; then x[lo + n / 2], x[hi]; then x[lo], x[lo + n / 2], exchanging what is strictly out of order; p = x[lo + n / 2];
 *    i = lo + 1, j = hi; while i < j: skip x[i] <= p; lower j past x[j] > p; exchange x[i] and x[j], ++i, --j;
 *    lower i past x[i] >= p, raise j past x[j] <= p, no further than lo and hi; go on with lo..i and j..hi;
 *  shorter ranges by taking the first of the largest elements to the end. If there are equal elements, vectors made to defeat the median of
 *  three take O(len^2) steps. Where stability matters use qvxsSortRadixIndex. Long vectors of different elements of 32 and 64 bits are divided
 *  between two threads.
 *  With a NaN among the elements their order is not defined; each still has its index.
 *  Returns qvxStatOk; qvxStatNullPtr; qvxStatBadSize (len < 1). */
QVXS_API(QvxStatus, qvxsSortIndexAscend_8u_I, (Qvx8u* pSrcDst, Qvx32s* pDstIndx, int len));
QVXS_API(QvxStatus, qvxsSortIndexAscend_16s_I, (Qvx16s* pSrcDst, Qvx32s* pDstIndx, int len));
QVXS_API(QvxStatus, qvxsSortIndexAscend_16u_I, (Qvx16u* pSrcDst, Qvx32s* pDstIndx, int len));
QVXS_API(QvxStatus, qvxsSortIndexAscend_32s_I, (Qvx32s* pSrcDst, Qvx32s* pDstIndx, int len));
QVXS_API(QvxStatus, qvxsSortIndexAscend_32f_I, (Qvx32f* pSrcDst, Qvx32s* pDstIndx, int len));
QVXS_API(QvxStatus, qvxsSortIndexAscend_64f_I, (Qvx64f* pSrcDst, Qvx32s* pDstIndx, int len));
QVXS_API(QvxStatus, qvxsSortIndexDescend_8u_I, (Qvx8u* pSrcDst, Qvx32s* pDstIndx, int len));
QVXS_API(QvxStatus, qvxsSortIndexDescend_16s_I, (Qvx16s* pSrcDst, Qvx32s* pDstIndx, int len));
QVXS_API(QvxStatus, qvxsSortIndexDescend_16u_I, (Qvx16u* pSrcDst, Qvx32s* pDstIndx, int len));
QVXS_API(QvxStatus, qvxsSortIndexDescend_32s_I, (Qvx32s* pSrcDst, Qvx32s* pDstIndx, int len));
QVXS_API(QvxStatus, qvxsSortIndexDescend_32f_I, (Qvx32f* pSrcDst, Qvx32s* pDstIndx, int len));
QVXS_API(QvxStatus, qvxsSortIndexDescend_64f_I, (Qvx64f* pSrcDst, Qvx32s* pDstIndx, int len));

/** The elements of pSrcDst in ascending order, as qvxsSortAscend leaves them. Long vectors of 32-bit and 64-bit elements are divided between
 *  two threads.
 *  pSrcDst, pTmp: len elements each, apart, any alignment. What pTmp holds afterwards is not defined.
 *  Returns qvxStatOk; qvxStatNullPtr; qvxStatBadSize (len < 1). */
QVXS_API(QvxStatus, qvxsSortRadixAscend_8u_I, (Qvx8u* pSrcDst, Qvx8u* pTmp, int len));
QVXS_API(QvxStatus, qvxsSortRadixAscend_16s_I, (Qvx16s* pSrcDst, Qvx16s* pTmp, int len));
QVXS_API(QvxStatus, qvxsSortRadixAscend_16u_I, (Qvx16u* pSrcDst, Qvx16u* pTmp, int len));
QVXS_API(QvxStatus, qvxsSortRadixAscend_32s_I, (Qvx32s* pSrcDst, Qvx32s* pTmp, int len));
QVXS_API(QvxStatus, qvxsSortRadixAscend_32u_I, (Qvx32u* pSrcDst, Qvx32u* pTmp, int len));
QVXS_API(QvxStatus, qvxsSortRadixAscend_32f_I, (Qvx32f* pSrcDst, Qvx32f* pTmp, int len));
QVXS_API(QvxStatus, qvxsSortRadixAscend_64f_I, (Qvx64f* pSrcDst, Qvx64f* pTmp, int len));

/** pDstIndx[i] = the number, 0 to len-1, of the element that is in place i in ascending order; equal elements in the order of their numbers.
 *  Nothing is moved. Long vectors of elements longer than a byte are divided between two threads.
 *  pSrc: len elements, srcStride bytes from the start of one to that of the next, any alignment; a negative stride goes down from pSrc.
 *  pDstIndx, pTmpIndx: len elements each, apart; what pTmpIndx holds afterwards is not defined.
 *  Returns qvxStatOk; qvxStatNullPtr; qvxStatBadSize (len < 1; 8u: srcStride 0; 16s, 16u: srcStride < 2; 32s, 32u, 32f: srcStride 0 to 3). */
QVXS_API(QvxStatus, qvxsSortRadixIndexAscend_8u, (const Qvx8u* pSrc, int srcStride, Qvx32s* pDstIndx, Qvx32s* pTmpIndx, int len));
QVXS_API(QvxStatus, qvxsSortRadixIndexAscend_16s, (const Qvx16s* pSrc, int srcStride, Qvx32s* pDstIndx, Qvx32s* pTmpIndx, int len));
QVXS_API(QvxStatus, qvxsSortRadixIndexAscend_16u, (const Qvx16u* pSrc, int srcStride, Qvx32s* pDstIndx, Qvx32s* pTmpIndx, int len));
QVXS_API(QvxStatus, qvxsSortRadixIndexAscend_32s, (const Qvx32s* pSrc, int srcStride, Qvx32s* pDstIndx, Qvx32s* pTmpIndx, int len));
QVXS_API(QvxStatus, qvxsSortRadixIndexAscend_32u, (const Qvx32u* pSrc, int srcStride, Qvx32s* pDstIndx, Qvx32s* pTmpIndx, int len));
QVXS_API(QvxStatus, qvxsSortRadixIndexAscend_32f, (const Qvx32f* pSrc, int srcStride, Qvx32s* pDstIndx, Qvx32s* pTmpIndx, int len));

/** As qvxsSortRadixAscend, in descending order. */
QVXS_API(QvxStatus, qvxsSortRadixDescend_8u_I, (Qvx8u* pSrcDst, Qvx8u* pTmp, int len));
QVXS_API(QvxStatus, qvxsSortRadixDescend_16s_I, (Qvx16s* pSrcDst, Qvx16s* pTmp, int len));
QVXS_API(QvxStatus, qvxsSortRadixDescend_16u_I, (Qvx16u* pSrcDst, Qvx16u* pTmp, int len));
QVXS_API(QvxStatus, qvxsSortRadixDescend_32s_I, (Qvx32s* pSrcDst, Qvx32s* pTmp, int len));
QVXS_API(QvxStatus, qvxsSortRadixDescend_32u_I, (Qvx32u* pSrcDst, Qvx32u* pTmp, int len));
QVXS_API(QvxStatus, qvxsSortRadixDescend_32f_I, (Qvx32f* pSrcDst, Qvx32f* pTmp, int len));
QVXS_API(QvxStatus, qvxsSortRadixDescend_64f_I, (Qvx64f* pSrcDst, Qvx64f* pTmp, int len));

/** As qvxsSortRadixIndexAscend, in descending order; equal elements still in the order of their numbers. */
QVXS_API(QvxStatus, qvxsSortRadixIndexDescend_8u, (const Qvx8u* pSrc, int srcStride, Qvx32s* pDstIndx, Qvx32s* pTmpIndx, int len));
QVXS_API(QvxStatus, qvxsSortRadixIndexDescend_16s, (const Qvx16s* pSrc, int srcStride, Qvx32s* pDstIndx, Qvx32s* pTmpIndx, int len));
QVXS_API(QvxStatus, qvxsSortRadixIndexDescend_16u, (const Qvx16u* pSrc, int srcStride, Qvx32s* pDstIndx, Qvx32s* pTmpIndx, int len));
QVXS_API(QvxStatus, qvxsSortRadixIndexDescend_32s, (const Qvx32s* pSrc, int srcStride, Qvx32s* pDstIndx, Qvx32s* pTmpIndx, int len));
QVXS_API(QvxStatus, qvxsSortRadixIndexDescend_32u, (const Qvx32u* pSrc, int srcStride, Qvx32s* pDstIndx, Qvx32s* pTmpIndx, int len));
QVXS_API(QvxStatus, qvxsSortRadixIndexDescend_32f, (const Qvx32f* pSrc, int srcStride, Qvx32s* pDstIndx, Qvx32s* pTmpIndx, int len));

#ifdef __cplusplus
}
#endif

#endif
