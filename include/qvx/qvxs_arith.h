/* Element-wise arithmetic: sums, differences, products, quotients. */
#ifndef QVX_QVXS_ARITH_H
#define QVX_QVXS_ARITH_H

#include <qvx/qvxdefs.h>

#ifdef __cplusplus
extern "C" {
#endif

/** dst[n] = src1[n] + src2[n]; the _I forms: srcDst[n] = srcDst[n] + src[n].
 *  Integer results are exact, times 2^-scaleFactor where there is one, rounded to nearest with ties to even, saturated. The
 *  joined types widen: 8u16u is exact, 16s32f converts first, 16s32s_I adds 16-bit elements to 32-bit ones.
 *  64s_Sfs departs in two cases. Where the signs of the operands differ or one is zero, the sum is not negative and
 *  scaleFactor is 2 to 63, an exact tie gives 0 (6 + 0 at scale factor 2 gives 0; 3 + 3 gives 2). Above scale factor 63 the
 *  result is 0, also where the sum exceeds 2^63, half a unit at 64.
 *  Float results are one IEEE addition in the element's type and the caller's rounding mode.
 *  pSrc1, pSrc2, pDst: len elements each, any alignment. Any scaleFactor is allowed. pDst may be a source of its own type; other
 *  overlaps have no defined result.
 *  Returns qvxStatOk; qvxStatNullPtr; qvxStatBadSize (len < 1). The complex forms test len before the pointers. */
QVXS_API(QvxStatus, qvxsAdd_8u_Sfs, (const Qvx8u* pSrc1, const Qvx8u* pSrc2, Qvx8u* pDst, int len, int scaleFactor));
QVXS_API(QvxStatus, qvxsAdd_8u_ISfs, (const Qvx8u* pSrc, Qvx8u* pSrcDst, int len, int scaleFactor));
QVXS_API(QvxStatus, qvxsAdd_8u16u, (const Qvx8u* pSrc1, const Qvx8u* pSrc2, Qvx16u* pDst, int len));
QVXS_API(QvxStatus, qvxsAdd_16s, (const Qvx16s* pSrc1, const Qvx16s* pSrc2, Qvx16s* pDst, int len));
QVXS_API(QvxStatus, qvxsAdd_16s_I, (const Qvx16s* pSrc, Qvx16s* pSrcDst, int len));
QVXS_API(QvxStatus, qvxsAdd_16s_Sfs, (const Qvx16s* pSrc1, const Qvx16s* pSrc2, Qvx16s* pDst, int len, int scaleFactor));
QVXS_API(QvxStatus, qvxsAdd_16s_ISfs, (const Qvx16s* pSrc, Qvx16s* pSrcDst, int len, int scaleFactor));
QVXS_API(QvxStatus, qvxsAdd_16u, (const Qvx16u* pSrc1, const Qvx16u* pSrc2, Qvx16u* pDst, int len));
QVXS_API(QvxStatus, qvxsAdd_16u_Sfs, (const Qvx16u* pSrc1, const Qvx16u* pSrc2, Qvx16u* pDst, int len, int scaleFactor));
QVXS_API(QvxStatus, qvxsAdd_16u_ISfs, (const Qvx16u* pSrc, Qvx16u* pSrcDst, int len, int scaleFactor));
QVXS_API(QvxStatus, qvxsAdd_16sc_Sfs, (const Qvx16sc* pSrc1, const Qvx16sc* pSrc2, Qvx16sc* pDst, int len, int scaleFactor));
QVXS_API(QvxStatus, qvxsAdd_16sc_ISfs, (const Qvx16sc* pSrc, Qvx16sc* pSrcDst, int len, int scaleFactor));
QVXS_API(QvxStatus, qvxsAdd_16s32f, (const Qvx16s* pSrc1, const Qvx16s* pSrc2, Qvx32f* pDst, int len));
QVXS_API(QvxStatus, qvxsAdd_16s32s_I, (const Qvx16s* pSrc, Qvx32s* pSrcDst, int len));
QVXS_API(QvxStatus, qvxsAdd_32u, (const Qvx32u* pSrc1, const Qvx32u* pSrc2, Qvx32u* pDst, int len));
QVXS_API(QvxStatus, qvxsAdd_32s_Sfs, (const Qvx32s* pSrc1, const Qvx32s* pSrc2, Qvx32s* pDst, int len, int scaleFactor));
QVXS_API(QvxStatus, qvxsAdd_32s_ISfs, (const Qvx32s* pSrc, Qvx32s* pSrcDst, int len, int scaleFactor));
QVXS_API(QvxStatus, qvxsAdd_32sc_Sfs, (const Qvx32sc* pSrc1, const Qvx32sc* pSrc2, Qvx32sc* pDst, int len, int scaleFactor));
QVXS_API(QvxStatus, qvxsAdd_32sc_ISfs, (const Qvx32sc* pSrc, Qvx32sc* pSrcDst, int len, int scaleFactor));
QVXS_API(QvxStatus, qvxsAdd_32f, (const Qvx32f* pSrc1, const Qvx32f* pSrc2, Qvx32f* pDst, int len));
QVXS_API(QvxStatus, qvxsAdd_32f_I, (const Qvx32f* pSrc, Qvx32f* pSrcDst, int len));
QVXS_API(QvxStatus, qvxsAdd_32fc, (const Qvx32fc* pSrc1, const Qvx32fc* pSrc2, Qvx32fc* pDst, int len));
QVXS_API(QvxStatus, qvxsAdd_32fc_I, (const Qvx32fc* pSrc, Qvx32fc* pSrcDst, int len));
QVXS_API(QvxStatus, qvxsAdd_64f, (const Qvx64f* pSrc1, const Qvx64f* pSrc2, Qvx64f* pDst, int len));
QVXS_API(QvxStatus, qvxsAdd_64f_I, (const Qvx64f* pSrc, Qvx64f* pSrcDst, int len));
QVXS_API(QvxStatus, qvxsAdd_64fc, (const Qvx64fc* pSrc1, const Qvx64fc* pSrc2, Qvx64fc* pDst, int len));
QVXS_API(QvxStatus, qvxsAdd_64fc_I, (const Qvx64fc* pSrc, Qvx64fc* pSrcDst, int len));
QVXS_API(QvxStatus, qvxsAdd_64s_Sfs, (const Qvx64s* pSrc1, const Qvx64s* pSrc2, Qvx64s* pDst, int len, int scaleFactor));

/** dst[n] = src[n] + val; the _I forms: srcDst[n] = srcDst[n] + val. Rounding, saturation and shapes as qvxsAdd.
 *  A real float val of 0 (of either sign) leaves every bit of the source as it is.
 *  64s_Sfs and 64u_Sfs take the rounding of the scaled result as an argument, the last one: toward zero, nearest even, or
 *  nearest with ties away from zero (2, and any other value); their len is unsigned. They give zeros at scale factors above
 *  64, but for val = -2^63 at 65 with rndMode 2 itself, where -2^64 gives -1.
 *  Returns qvxStatOk; qvxStatNullPtr; qvxStatBadSize (len < 1; for 64s_Sfs and 64u_Sfs len 0, and a len from 2^31 on where
 *  the call comes down to a copy (val 0, scale factor 0) or to zeros). */
QVXS_API(QvxStatus, qvxsAddC_8u_Sfs, (const Qvx8u* pSrc, Qvx8u val, Qvx8u* pDst, int len, int scaleFactor));
QVXS_API(QvxStatus, qvxsAddC_8u_ISfs, (Qvx8u val, Qvx8u* pSrcDst, int len, int scaleFactor));
QVXS_API(QvxStatus, qvxsAddC_16s_I, (Qvx16s val, Qvx16s* pSrcDst, int len));
QVXS_API(QvxStatus, qvxsAddC_16s_Sfs, (const Qvx16s* pSrc, Qvx16s val, Qvx16s* pDst, int len, int scaleFactor));
QVXS_API(QvxStatus, qvxsAddC_16s_ISfs, (Qvx16s val, Qvx16s* pSrcDst, int len, int scaleFactor));
QVXS_API(QvxStatus, qvxsAddC_16u_Sfs, (const Qvx16u* pSrc, Qvx16u val, Qvx16u* pDst, int len, int scaleFactor));
QVXS_API(QvxStatus, qvxsAddC_16u_ISfs, (Qvx16u val, Qvx16u* pSrcDst, int len, int scaleFactor));
QVXS_API(QvxStatus, qvxsAddC_16sc_Sfs, (const Qvx16sc* pSrc, Qvx16sc val, Qvx16sc* pDst, int len, int scaleFactor));
QVXS_API(QvxStatus, qvxsAddC_16sc_ISfs, (Qvx16sc val, Qvx16sc* pSrcDst, int len, int scaleFactor));
QVXS_API(QvxStatus, qvxsAddC_32s_Sfs, (const Qvx32s* pSrc, Qvx32s val, Qvx32s* pDst, int len, int scaleFactor));
QVXS_API(QvxStatus, qvxsAddC_32s_ISfs, (Qvx32s val, Qvx32s* pSrcDst, int len, int scaleFactor));
QVXS_API(QvxStatus, qvxsAddC_32sc_Sfs, (const Qvx32sc* pSrc, Qvx32sc val, Qvx32sc* pDst, int len, int scaleFactor));
QVXS_API(QvxStatus, qvxsAddC_32sc_ISfs, (Qvx32sc val, Qvx32sc* pSrcDst, int len, int scaleFactor));
QVXS_API(QvxStatus, qvxsAddC_32f, (const Qvx32f* pSrc, Qvx32f val, Qvx32f* pDst, int len));
QVXS_API(QvxStatus, qvxsAddC_32f_I, (Qvx32f val, Qvx32f* pSrcDst, int len));
QVXS_API(QvxStatus, qvxsAddC_32fc, (const Qvx32fc* pSrc, Qvx32fc val, Qvx32fc* pDst, int len));
QVXS_API(QvxStatus, qvxsAddC_32fc_I, (Qvx32fc val, Qvx32fc* pSrcDst, int len));
QVXS_API(QvxStatus, qvxsAddC_64f, (const Qvx64f* pSrc, Qvx64f val, Qvx64f* pDst, int len));
QVXS_API(QvxStatus, qvxsAddC_64f_I, (Qvx64f val, Qvx64f* pSrcDst, int len));
QVXS_API(QvxStatus, qvxsAddC_64fc, (const Qvx64fc* pSrc, Qvx64fc val, Qvx64fc* pDst, int len));
QVXS_API(QvxStatus, qvxsAddC_64fc_I, (Qvx64fc val, Qvx64fc* pSrcDst, int len));
QVXS_API(QvxStatus, qvxsAddC_64s_Sfs, (const Qvx64s* pSrc, Qvx64s val, Qvx64s* pDst, Qvx32u len, int scaleFactor, QvxRoundMode rndMode));
QVXS_API(QvxStatus, qvxsAddC_64u_Sfs, (const Qvx64u* pSrc, Qvx64u val, Qvx64u* pDst, Qvx32u len, int scaleFactor, QvxRoundMode rndMode));

/** srcDst[n] = srcDst[n] + src1[n] * src2[n].
 *  16s_Sfs, 16s32s_Sfs: the exact sum of both times 2^-scaleFactor, nearest even, saturated; zeros above scale factor 31.
 *  32s_Sfs goes through Qvx64f: ((src1 * 2^-scaleFactor) * src2) + srcDst * 2^-scaleFactor, every step rounded to nearest,
 *  then saturated and rounded to nearest even. It is exact while the product needs no more than 53 bits.
 *  Float forms round the product and then the sum; they do not fuse the two.
 *  All vectors: len elements, any alignment. Returns qvxStatOk; qvxStatNullPtr; qvxStatBadSize (len < 1). */
QVXS_API(QvxStatus, qvxsAddProduct_16s_Sfs, (const Qvx16s* pSrc1, const Qvx16s* pSrc2, Qvx16s* pSrcDst, int len, int scaleFactor));
QVXS_API(QvxStatus, qvxsAddProduct_16s32s_Sfs, (const Qvx16s* pSrc1, const Qvx16s* pSrc2, Qvx32s* pSrcDst, int len, int scaleFactor));
QVXS_API(QvxStatus, qvxsAddProduct_32s_Sfs, (const Qvx32s* pSrc1, const Qvx32s* pSrc2, Qvx32s* pSrcDst, int len, int scaleFactor));
QVXS_API(QvxStatus, qvxsAddProduct_32f, (const Qvx32f* pSrc1, const Qvx32f* pSrc2, Qvx32f* pSrcDst, int len));
QVXS_API(QvxStatus, qvxsAddProduct_64f, (const Qvx64f* pSrc1, const Qvx64f* pSrc2, Qvx64f* pSrcDst, int len));
QVXS_API(QvxStatus, qvxsAddProduct_32fc, (const Qvx32fc* pSrc1, const Qvx32fc* pSrc2, Qvx32fc* pSrcDst, int len));
QVXS_API(QvxStatus, qvxsAddProduct_64fc, (const Qvx64fc* pSrc1, const Qvx64fc* pSrc2, Qvx64fc* pSrcDst, int len));

/** srcDst[n] = srcDst[n] + src[n] * val; otherwise as qvxsAddProduct. */
QVXS_API(QvxStatus, qvxsAddProductC_32f, (const Qvx32f* pSrc, Qvx32f val, Qvx32f* pSrcDst, int len));

/** dst[n] = src2[n] - src1[n]: the second source minus the first. The _I forms: srcDst[n] = srcDst[n] - src[n].
 *  Rounding, saturation (unsigned differences at 0), shapes and returns as qvxsAdd; the complex forms test len first. */
QVXS_API(QvxStatus, qvxsSub_8u_Sfs, (const Qvx8u* pSrc1, const Qvx8u* pSrc2, Qvx8u* pDst, int len, int scaleFactor));
QVXS_API(QvxStatus, qvxsSub_8u_ISfs, (const Qvx8u* pSrc, Qvx8u* pSrcDst, int len, int scaleFactor));
QVXS_API(QvxStatus, qvxsSub_16s, (const Qvx16s* pSrc1, const Qvx16s* pSrc2, Qvx16s* pDst, int len));
QVXS_API(QvxStatus, qvxsSub_16s_I, (const Qvx16s* pSrc, Qvx16s* pSrcDst, int len));
QVXS_API(QvxStatus, qvxsSub_16s_Sfs, (const Qvx16s* pSrc1, const Qvx16s* pSrc2, Qvx16s* pDst, int len, int scaleFactor));
QVXS_API(QvxStatus, qvxsSub_16s_ISfs, (const Qvx16s* pSrc, Qvx16s* pSrcDst, int len, int scaleFactor));
QVXS_API(QvxStatus, qvxsSub_16u_Sfs, (const Qvx16u* pSrc1, const Qvx16u* pSrc2, Qvx16u* pDst, int len, int scaleFactor));
QVXS_API(QvxStatus, qvxsSub_16u_ISfs, (const Qvx16u* pSrc, Qvx16u* pSrcDst, int len, int scaleFactor));
QVXS_API(QvxStatus, qvxsSub_16sc_Sfs, (const Qvx16sc* pSrc1, const Qvx16sc* pSrc2, Qvx16sc* pDst, int len, int scaleFactor));
QVXS_API(QvxStatus, qvxsSub_16sc_ISfs, (const Qvx16sc* pSrc, Qvx16sc* pSrcDst, int len, int scaleFactor));
QVXS_API(QvxStatus, qvxsSub_16s32f, (const Qvx16s* pSrc1, const Qvx16s* pSrc2, Qvx32f* pDst, int len));
QVXS_API(QvxStatus, qvxsSub_32s_Sfs, (const Qvx32s* pSrc1, const Qvx32s* pSrc2, Qvx32s* pDst, int len, int scaleFactor));
QVXS_API(QvxStatus, qvxsSub_32s_ISfs, (const Qvx32s* pSrc, Qvx32s* pSrcDst, int len, int scaleFactor));
QVXS_API(QvxStatus, qvxsSub_32sc_Sfs, (const Qvx32sc* pSrc1, const Qvx32sc* pSrc2, Qvx32sc* pDst, int len, int scaleFactor));
QVXS_API(QvxStatus, qvxsSub_32sc_ISfs, (const Qvx32sc* pSrc, Qvx32sc* pSrcDst, int len, int scaleFactor));
QVXS_API(QvxStatus, qvxsSub_32f, (const Qvx32f* pSrc1, const Qvx32f* pSrc2, Qvx32f* pDst, int len));
QVXS_API(QvxStatus, qvxsSub_32f_I, (const Qvx32f* pSrc, Qvx32f* pSrcDst, int len));
QVXS_API(QvxStatus, qvxsSub_32fc, (const Qvx32fc* pSrc1, const Qvx32fc* pSrc2, Qvx32fc* pDst, int len));
QVXS_API(QvxStatus, qvxsSub_32fc_I, (const Qvx32fc* pSrc, Qvx32fc* pSrcDst, int len));
QVXS_API(QvxStatus, qvxsSub_64f, (const Qvx64f* pSrc1, const Qvx64f* pSrc2, Qvx64f* pDst, int len));
QVXS_API(QvxStatus, qvxsSub_64f_I, (const Qvx64f* pSrc, Qvx64f* pSrcDst, int len));
QVXS_API(QvxStatus, qvxsSub_64fc, (const Qvx64fc* pSrc1, const Qvx64fc* pSrc2, Qvx64fc* pDst, int len));
QVXS_API(QvxStatus, qvxsSub_64fc_I, (const Qvx64fc* pSrc, Qvx64fc* pSrcDst, int len));

/** dst[n] = src[n] - val; the _I forms: srcDst[n] = srcDst[n] - val. Otherwise as qvxsAddC: a real float val of 0 leaves every
 *  bit as it is. */
QVXS_API(QvxStatus, qvxsSubC_8u_Sfs, (const Qvx8u* pSrc, Qvx8u val, Qvx8u* pDst, int len, int scaleFactor));
QVXS_API(QvxStatus, qvxsSubC_8u_ISfs, (Qvx8u val, Qvx8u* pSrcDst, int len, int scaleFactor));
QVXS_API(QvxStatus, qvxsSubC_16s_I, (Qvx16s val, Qvx16s* pSrcDst, int len));
QVXS_API(QvxStatus, qvxsSubC_16s_Sfs, (const Qvx16s* pSrc, Qvx16s val, Qvx16s* pDst, int len, int scaleFactor));
QVXS_API(QvxStatus, qvxsSubC_16s_ISfs, (Qvx16s val, Qvx16s* pSrcDst, int len, int scaleFactor));
QVXS_API(QvxStatus, qvxsSubC_16u_Sfs, (const Qvx16u* pSrc, Qvx16u val, Qvx16u* pDst, int len, int scaleFactor));
QVXS_API(QvxStatus, qvxsSubC_16u_ISfs, (Qvx16u val, Qvx16u* pSrcDst, int len, int scaleFactor));
QVXS_API(QvxStatus, qvxsSubC_16sc_Sfs, (const Qvx16sc* pSrc, Qvx16sc val, Qvx16sc* pDst, int len, int scaleFactor));
QVXS_API(QvxStatus, qvxsSubC_16sc_ISfs, (Qvx16sc val, Qvx16sc* pSrcDst, int len, int scaleFactor));
QVXS_API(QvxStatus, qvxsSubC_32s_Sfs, (const Qvx32s* pSrc, Qvx32s val, Qvx32s* pDst, int len, int scaleFactor));
QVXS_API(QvxStatus, qvxsSubC_32s_ISfs, (Qvx32s val, Qvx32s* pSrcDst, int len, int scaleFactor));
QVXS_API(QvxStatus, qvxsSubC_32sc_Sfs, (const Qvx32sc* pSrc, Qvx32sc val, Qvx32sc* pDst, int len, int scaleFactor));
QVXS_API(QvxStatus, qvxsSubC_32sc_ISfs, (Qvx32sc val, Qvx32sc* pSrcDst, int len, int scaleFactor));
QVXS_API(QvxStatus, qvxsSubC_32f, (const Qvx32f* pSrc, Qvx32f val, Qvx32f* pDst, int len));
QVXS_API(QvxStatus, qvxsSubC_32f_I, (Qvx32f val, Qvx32f* pSrcDst, int len));
QVXS_API(QvxStatus, qvxsSubC_32fc, (const Qvx32fc* pSrc, Qvx32fc val, Qvx32fc* pDst, int len));
QVXS_API(QvxStatus, qvxsSubC_32fc_I, (Qvx32fc val, Qvx32fc* pSrcDst, int len));
QVXS_API(QvxStatus, qvxsSubC_64f, (const Qvx64f* pSrc, Qvx64f val, Qvx64f* pDst, int len));
QVXS_API(QvxStatus, qvxsSubC_64f_I, (Qvx64f val, Qvx64f* pSrcDst, int len));
QVXS_API(QvxStatus, qvxsSubC_64fc, (const Qvx64fc* pSrc, Qvx64fc val, Qvx64fc* pDst, int len));
QVXS_API(QvxStatus, qvxsSubC_64fc_I, (Qvx64fc val, Qvx64fc* pSrcDst, int len));

/** dst[n] = val - src[n]; the _I forms: srcDst[n] = val - srcDst[n]. Otherwise as qvxsSubC. */
QVXS_API(QvxStatus, qvxsSubCRev_8u_Sfs, (const Qvx8u* pSrc, Qvx8u val, Qvx8u* pDst, int len, int scaleFactor));
QVXS_API(QvxStatus, qvxsSubCRev_8u_ISfs, (Qvx8u val, Qvx8u* pSrcDst, int len, int scaleFactor));
QVXS_API(QvxStatus, qvxsSubCRev_16s_Sfs, (const Qvx16s* pSrc, Qvx16s val, Qvx16s* pDst, int len, int scaleFactor));
QVXS_API(QvxStatus, qvxsSubCRev_16s_ISfs, (Qvx16s val, Qvx16s* pSrcDst, int len, int scaleFactor));
QVXS_API(QvxStatus, qvxsSubCRev_16u_Sfs, (const Qvx16u* pSrc, Qvx16u val, Qvx16u* pDst, int len, int scaleFactor));
QVXS_API(QvxStatus, qvxsSubCRev_16u_ISfs, (Qvx16u val, Qvx16u* pSrcDst, int len, int scaleFactor));
QVXS_API(QvxStatus, qvxsSubCRev_16sc_Sfs, (const Qvx16sc* pSrc, Qvx16sc val, Qvx16sc* pDst, int len, int scaleFactor));
QVXS_API(QvxStatus, qvxsSubCRev_16sc_ISfs, (Qvx16sc val, Qvx16sc* pSrcDst, int len, int scaleFactor));
QVXS_API(QvxStatus, qvxsSubCRev_32s_Sfs, (const Qvx32s* pSrc, Qvx32s val, Qvx32s* pDst, int len, int scaleFactor));
QVXS_API(QvxStatus, qvxsSubCRev_32s_ISfs, (Qvx32s val, Qvx32s* pSrcDst, int len, int scaleFactor));
QVXS_API(QvxStatus, qvxsSubCRev_32sc_Sfs, (const Qvx32sc* pSrc, Qvx32sc val, Qvx32sc* pDst, int len, int scaleFactor));
QVXS_API(QvxStatus, qvxsSubCRev_32sc_ISfs, (Qvx32sc val, Qvx32sc* pSrcDst, int len, int scaleFactor));
QVXS_API(QvxStatus, qvxsSubCRev_32f, (const Qvx32f* pSrc, Qvx32f val, Qvx32f* pDst, int len));
QVXS_API(QvxStatus, qvxsSubCRev_32f_I, (Qvx32f val, Qvx32f* pSrcDst, int len));
QVXS_API(QvxStatus, qvxsSubCRev_32fc, (const Qvx32fc* pSrc, Qvx32fc val, Qvx32fc* pDst, int len));
QVXS_API(QvxStatus, qvxsSubCRev_32fc_I, (Qvx32fc val, Qvx32fc* pSrcDst, int len));
QVXS_API(QvxStatus, qvxsSubCRev_64f, (const Qvx64f* pSrc, Qvx64f val, Qvx64f* pDst, int len));
QVXS_API(QvxStatus, qvxsSubCRev_64f_I, (Qvx64f val, Qvx64f* pSrcDst, int len));
QVXS_API(QvxStatus, qvxsSubCRev_64fc, (const Qvx64fc* pSrc, Qvx64fc val, Qvx64fc* pDst, int len));
QVXS_API(QvxStatus, qvxsSubCRev_64fc_I, (Qvx64fc val, Qvx64fc* pSrcDst, int len));

/** dst[n] = src1[n] * src2[n]; the _I forms: srcDst[n] = srcDst[n] * src[n].
 *  Integer results are exact, times 2^-scaleFactor where there is one, rounded to nearest with ties to even, saturated. A
 *  complex product is (re1*re2 - im1*im2, re1*im2 + im1*re2); for integers each part is scaled, rounded and saturated once.
 *  32s_Sfs and 32s_ISfs go through Qvx64f: (src1 * 2^-scaleFactor) * src2, nearest even twice, so the last bits of a result
 *  near the top of the range can differ from the exact product's; qvxsMulC_32s_Sfs is exact.
 *  16u16s multiplies an unsigned by a signed vector; 32s32sc and 32f32fc a real (src1, or src) by a complex one; 8u16u, 16s32s
 *  and 16s32f widen. Float products round every operation once in the element's type; nothing is fused.
 *  Shapes and returns as qvxsAdd, but len is tested after the pointers in all forms. */
QVXS_API(QvxStatus, qvxsMul_8u_Sfs, (const Qvx8u* pSrc1, const Qvx8u* pSrc2, Qvx8u* pDst, int len, int scaleFactor));
QVXS_API(QvxStatus, qvxsMul_8u_ISfs, (const Qvx8u* pSrc, Qvx8u* pSrcDst, int len, int scaleFactor));
QVXS_API(QvxStatus, qvxsMul_8u16u, (const Qvx8u* pSrc1, const Qvx8u* pSrc2, Qvx16u* pDst, int len));
QVXS_API(QvxStatus, qvxsMul_16s, (const Qvx16s* pSrc1, const Qvx16s* pSrc2, Qvx16s* pDst, int len));
QVXS_API(QvxStatus, qvxsMul_16s_I, (const Qvx16s* pSrc, Qvx16s* pSrcDst, int len));
QVXS_API(QvxStatus, qvxsMul_16s_Sfs, (const Qvx16s* pSrc1, const Qvx16s* pSrc2, Qvx16s* pDst, int len, int scaleFactor));
QVXS_API(QvxStatus, qvxsMul_16s_ISfs, (const Qvx16s* pSrc, Qvx16s* pSrcDst, int len, int scaleFactor));
QVXS_API(QvxStatus, qvxsMul_16u_Sfs, (const Qvx16u* pSrc1, const Qvx16u* pSrc2, Qvx16u* pDst, int len, int scaleFactor));
QVXS_API(QvxStatus, qvxsMul_16u_ISfs, (const Qvx16u* pSrc, Qvx16u* pSrcDst, int len, int scaleFactor));
QVXS_API(QvxStatus, qvxsMul_16u16s_Sfs, (const Qvx16u* pSrc1, const Qvx16s* pSrc2, Qvx16s* pDst, int len, int scaleFactor));
QVXS_API(QvxStatus, qvxsMul_16s32s_Sfs, (const Qvx16s* pSrc1, const Qvx16s* pSrc2, Qvx32s* pDst, int len, int scaleFactor));
QVXS_API(QvxStatus, qvxsMul_16s32f, (const Qvx16s* pSrc1, const Qvx16s* pSrc2, Qvx32f* pDst, int len));
QVXS_API(QvxStatus, qvxsMul_16sc_Sfs, (const Qvx16sc* pSrc1, const Qvx16sc* pSrc2, Qvx16sc* pDst, int len, int scaleFactor));
QVXS_API(QvxStatus, qvxsMul_16sc_ISfs, (const Qvx16sc* pSrc, Qvx16sc* pSrcDst, int len, int scaleFactor));
QVXS_API(QvxStatus, qvxsMul_32s_Sfs, (const Qvx32s* pSrc1, const Qvx32s* pSrc2, Qvx32s* pDst, int len, int scaleFactor));
QVXS_API(QvxStatus, qvxsMul_32s_ISfs, (const Qvx32s* pSrc, Qvx32s* pSrcDst, int len, int scaleFactor));
QVXS_API(QvxStatus, qvxsMul_32sc_Sfs, (const Qvx32sc* pSrc1, const Qvx32sc* pSrc2, Qvx32sc* pDst, int len, int scaleFactor));
QVXS_API(QvxStatus, qvxsMul_32sc_ISfs, (const Qvx32sc* pSrc, Qvx32sc* pSrcDst, int len, int scaleFactor));
QVXS_API(QvxStatus, qvxsMul_32s32sc_Sfs, (const Qvx32s* pSrc1, const Qvx32sc* pSrc2, Qvx32sc* pDst, int len, int scaleFactor));
QVXS_API(QvxStatus, qvxsMul_32s32sc_ISfs, (const Qvx32s* pSrc, Qvx32sc* pSrcDst, int len, int scaleFactor));
QVXS_API(QvxStatus, qvxsMul_32f, (const Qvx32f* pSrc1, const Qvx32f* pSrc2, Qvx32f* pDst, int len));
QVXS_API(QvxStatus, qvxsMul_32f_I, (const Qvx32f* pSrc, Qvx32f* pSrcDst, int len));
QVXS_API(QvxStatus, qvxsMul_32fc, (const Qvx32fc* pSrc1, const Qvx32fc* pSrc2, Qvx32fc* pDst, int len));
QVXS_API(QvxStatus, qvxsMul_32fc_I, (const Qvx32fc* pSrc, Qvx32fc* pSrcDst, int len));
QVXS_API(QvxStatus, qvxsMul_32f32fc, (const Qvx32f* pSrc1, const Qvx32fc* pSrc2, Qvx32fc* pDst, int len));
QVXS_API(QvxStatus, qvxsMul_32f32fc_I, (const Qvx32f* pSrc, Qvx32fc* pSrcDst, int len));
QVXS_API(QvxStatus, qvxsMul_64f, (const Qvx64f* pSrc1, const Qvx64f* pSrc2, Qvx64f* pDst, int len));
QVXS_API(QvxStatus, qvxsMul_64f_I, (const Qvx64f* pSrc, Qvx64f* pSrcDst, int len));
QVXS_API(QvxStatus, qvxsMul_64fc, (const Qvx64fc* pSrc1, const Qvx64fc* pSrc2, Qvx64fc* pDst, int len));
QVXS_API(QvxStatus, qvxsMul_64fc_I, (const Qvx64fc* pSrc, Qvx64fc* pSrcDst, int len));

/** The low 32 bits of src1[n] * src2[n] / 2^scaleFactor: the exact product is shifted (right: arithmetically, without
 *  rounding) and its low word kept, so a result beyond 32 bits wraps. Above scale factor 62 the result is 0; below -31 it is
 *  the extreme of the product's sign, or 0. Returns as qvxsMul. */
QVXS_API(QvxStatus, qvxsMul_Low_32s_Sfs, (const Qvx32s* pSrc1, const Qvx32s* pSrc2, Qvx32s* pDst, int len, int scaleFactor));

/** dst[n] = src[n] * val; the _I forms: srcDst[n] = srcDst[n] * val.
 *  Integer results are exact, times 2^-scaleFactor where there is one, rounded to nearest with ties to even, saturated.
 *  32f16s_Sfs: the float product src * (val * 2^-scaleFactor), scaleFactor limited to -127 to 126, saturated to 16 bits and
 *  rounded to nearest even whatever the caller's rounding mode; a product that is a NaN gives 32767.
 *  64f64s_ISfs multiplies integers by a float exactly: the product with its 53-bit fraction takes its power of two along with
 *  the scale factor. If val's bits, as a signed integer, have the absolute value 0x90000012CD94, every element but 0 goes to the
 *  64-bit extreme of the product's sign.
 *  The len of 64s_ISfs and 64f64s_ISfs is unsigned: only 0 is refused. Otherwise as qvxsMul. */
QVXS_API(QvxStatus, qvxsMulC_8u_Sfs, (const Qvx8u* pSrc, Qvx8u val, Qvx8u* pDst, int len, int scaleFactor));
QVXS_API(QvxStatus, qvxsMulC_8u_ISfs, (Qvx8u val, Qvx8u* pSrcDst, int len, int scaleFactor));
QVXS_API(QvxStatus, qvxsMulC_16s_I, (Qvx16s val, Qvx16s* pSrcDst, int len));
QVXS_API(QvxStatus, qvxsMulC_16s_Sfs, (const Qvx16s* pSrc, Qvx16s val, Qvx16s* pDst, int len, int scaleFactor));
QVXS_API(QvxStatus, qvxsMulC_16s_ISfs, (Qvx16s val, Qvx16s* pSrcDst, int len, int scaleFactor));
QVXS_API(QvxStatus, qvxsMulC_16u_Sfs, (const Qvx16u* pSrc, Qvx16u val, Qvx16u* pDst, int len, int scaleFactor));
QVXS_API(QvxStatus, qvxsMulC_16u_ISfs, (Qvx16u val, Qvx16u* pSrcDst, int len, int scaleFactor));
QVXS_API(QvxStatus, qvxsMulC_16sc_Sfs, (const Qvx16sc* pSrc, Qvx16sc val, Qvx16sc* pDst, int len, int scaleFactor));
QVXS_API(QvxStatus, qvxsMulC_16sc_ISfs, (Qvx16sc val, Qvx16sc* pSrcDst, int len, int scaleFactor));
QVXS_API(QvxStatus, qvxsMulC_32s_Sfs, (const Qvx32s* pSrc, Qvx32s val, Qvx32s* pDst, int len, int scaleFactor));
QVXS_API(QvxStatus, qvxsMulC_32s_ISfs, (Qvx32s val, Qvx32s* pSrcDst, int len, int scaleFactor));
QVXS_API(QvxStatus, qvxsMulC_32sc_Sfs, (const Qvx32sc* pSrc, Qvx32sc val, Qvx32sc* pDst, int len, int scaleFactor));
QVXS_API(QvxStatus, qvxsMulC_32sc_ISfs, (Qvx32sc val, Qvx32sc* pSrcDst, int len, int scaleFactor));
QVXS_API(QvxStatus, qvxsMulC_32f, (const Qvx32f* pSrc, Qvx32f val, Qvx32f* pDst, int len));
QVXS_API(QvxStatus, qvxsMulC_32f_I, (Qvx32f val, Qvx32f* pSrcDst, int len));
QVXS_API(QvxStatus, qvxsMulC_32fc, (const Qvx32fc* pSrc, Qvx32fc val, Qvx32fc* pDst, int len));
QVXS_API(QvxStatus, qvxsMulC_32fc_I, (Qvx32fc val, Qvx32fc* pSrcDst, int len));
QVXS_API(QvxStatus, qvxsMulC_64f, (const Qvx64f* pSrc, Qvx64f val, Qvx64f* pDst, int len));
QVXS_API(QvxStatus, qvxsMulC_64f_I, (Qvx64f val, Qvx64f* pSrcDst, int len));
QVXS_API(QvxStatus, qvxsMulC_64fc, (const Qvx64fc* pSrc, Qvx64fc val, Qvx64fc* pDst, int len));
QVXS_API(QvxStatus, qvxsMulC_64fc_I, (Qvx64fc val, Qvx64fc* pSrcDst, int len));
QVXS_API(QvxStatus, qvxsMulC_32f16s_Sfs, (const Qvx32f* pSrc, Qvx32f val, Qvx16s* pDst, int len, int scaleFactor));
QVXS_API(QvxStatus, qvxsMulC_64s_ISfs, (Qvx64s val, Qvx64s* pSrcDst, Qvx32u len, int scaleFactor));
QVXS_API(QvxStatus, qvxsMulC_64f64s_ISfs, (Qvx64f val, Qvx64s* pSrcDst, Qvx32u len, int scaleFactor));

/** dst[n] = src[n] * val as a float product, converted in the caller's rounding mode and saturated from 32 bits to 16: what
 *  32 bits cannot hold (2^31 and above, a NaN) becomes -32768, whatever its sign. Returns as qvxsMul. */
QVXS_API(QvxStatus, qvxsMulC_Low_32f16s, (const Qvx32f* pSrc, Qvx32f val, Qvx16s* pDst, int len));

/** dst[n] = src2[n] / src1[n], the first source being the divisor; the _I forms: srcDst[n] = srcDst[n] / src[n].
 *  Floats: one IEEE division in the element's type and the caller's rounding mode, at zero divisors too (infinity, NaN).
 *  Complex floats, for a divisor c + di and a dividend a + bi: ((ac + bd) + (bc - ad)i) / (cc + dd), every operation rounded by
 *  itself. So a divisor whose cc + dd leaves the range of the type gives what the formula gives: 0 or NaN above (|c + di| from
 *  1.8e19 on in 32fc, 1.3e154 in 64fc), infinities and NaN below (under 2.6e-23 and 1.5e-162), and less than full accuracy where
 *  cc + dd is subnormal (under 1.1e-19 and 1.5e-154). A zero divisor gives NaN in both parts.
 *  Integers: the exact quotient times 2^-scaleFactor, rounded to nearest with ties to even, saturated. 32s and 32s16s go through
 *  Qvx64f: (src2 * 2^-scaleFactor) / src1 is rounded to 53 bits before it is rounded to an integer, which only negative scale
 *  factors can show. 16sc: both parts of the exact complex quotient. 32s16s has two Qvx32s sources and saturates to 16 bits.
 *  Zero divisors in integers: the largest number for a positive dividend, the smallest for a negative one, 0 for 0 (in 16sc by
 *  the sign of each part). Far scale factors: beyond -30 to 15 (8u, 16u, 16s), -32 to 32 (16sc) and -62 to 32 (32s, 32s16s) a
 *  quotient of 0 stays 0; any other saturates by its sign below and becomes 0 above, unless its divisor is zero.
 *  pSrc1, pSrc2, pDst: len elements each, any alignment; pDst may be a source of its own type. Long vectors may be divided
 *  between two threads.
 *  Returns qvxStatOk; qvxWarnDivByZero if a divisor was zero (the others are complete); qvxStatNullPtr; qvxStatBadSize
 *  (len < 1). */
QVXS_API(QvxStatus, qvxsDiv_32f, (const Qvx32f* pSrc1, const Qvx32f* pSrc2, Qvx32f* pDst, int len));
QVXS_API(QvxStatus, qvxsDiv_64f, (const Qvx64f* pSrc1, const Qvx64f* pSrc2, Qvx64f* pDst, int len));
QVXS_API(QvxStatus, qvxsDiv_32fc, (const Qvx32fc* pSrc1, const Qvx32fc* pSrc2, Qvx32fc* pDst, int len));
QVXS_API(QvxStatus, qvxsDiv_64fc, (const Qvx64fc* pSrc1, const Qvx64fc* pSrc2, Qvx64fc* pDst, int len));
QVXS_API(QvxStatus, qvxsDiv_8u_Sfs, (const Qvx8u* pSrc1, const Qvx8u* pSrc2, Qvx8u* pDst, int len, int scaleFactor));
QVXS_API(QvxStatus, qvxsDiv_16u_Sfs, (const Qvx16u* pSrc1, const Qvx16u* pSrc2, Qvx16u* pDst, int len, int scaleFactor));
QVXS_API(QvxStatus, qvxsDiv_16s_Sfs, (const Qvx16s* pSrc1, const Qvx16s* pSrc2, Qvx16s* pDst, int len, int scaleFactor));
QVXS_API(QvxStatus, qvxsDiv_16sc_Sfs, (const Qvx16sc* pSrc1, const Qvx16sc* pSrc2, Qvx16sc* pDst, int len, int scaleFactor));
QVXS_API(QvxStatus, qvxsDiv_32s_Sfs, (const Qvx32s* pSrc1, const Qvx32s* pSrc2, Qvx32s* pDst, int len, int scaleFactor));
QVXS_API(QvxStatus, qvxsDiv_32s16s_Sfs, (const Qvx32s* pSrc1, const Qvx32s* pSrc2, Qvx16s* pDst, int len, int scaleFactor));
QVXS_API(QvxStatus, qvxsDiv_32f_I, (const Qvx32f* pSrc, Qvx32f* pSrcDst, int len));
QVXS_API(QvxStatus, qvxsDiv_64f_I, (const Qvx64f* pSrc, Qvx64f* pSrcDst, int len));
QVXS_API(QvxStatus, qvxsDiv_32fc_I, (const Qvx32fc* pSrc, Qvx32fc* pSrcDst, int len));
QVXS_API(QvxStatus, qvxsDiv_64fc_I, (const Qvx64fc* pSrc, Qvx64fc* pSrcDst, int len));
QVXS_API(QvxStatus, qvxsDiv_8u_ISfs, (const Qvx8u* pSrc, Qvx8u* pSrcDst, int len, int scaleFactor));
QVXS_API(QvxStatus, qvxsDiv_16u_ISfs, (const Qvx16u* pSrc, Qvx16u* pSrcDst, int len, int scaleFactor));
QVXS_API(QvxStatus, qvxsDiv_16s_ISfs, (const Qvx16s* pSrc, Qvx16s* pSrcDst, int len, int scaleFactor));
QVXS_API(QvxStatus, qvxsDiv_16sc_ISfs, (const Qvx16sc* pSrc, Qvx16sc* pSrcDst, int len, int scaleFactor));
QVXS_API(QvxStatus, qvxsDiv_32s_ISfs, (const Qvx32s* pSrc, Qvx32s* pSrcDst, int len, int scaleFactor));

/** dst[n] = src[n] / val; the _I forms: srcDst[n] = srcDst[n] / val.
 *  Floats are multiplied by the reciprocal of val, which is rounded to the element's type first: the last bit can differ from
 *  the quotient's, and a subnormal val has no finite reciprocal. A complex val: r = 1 / (re*re + im*im), then a product with
 *  (re * r, -im * r).
 *  Integers: as qvxsDiv, the exact quotient scaled, rounded to nearest even and saturated; far scale factors are those beyond
 *  -30 to 15.
 *  64s_ISfs multiplies too: by floor(2^(63 + k) / |val|), k being the largest with 2^k below |val|, at the scale factor
 *  scaleFactor + k + 63 of qvxsMulC_64s_ISfs; a val of 1 or -1 goes there as it is. So an exact tie rounds toward 0, and large
 *  quotients can be off by two. Its len is unsigned (only 0 is refused), and a val of 0 is a warning: every element but 0 becomes
 *  the largest or smallest number by its sign.
 *  Returns qvxStatOk; qvxStatNullPtr; qvxStatBadSize; qvxStatDivByZero if val is 0 (a complex one in both parts), when nothing is
 *  written; qvxWarnDivByZero (64s_ISfs only). */
QVXS_API(QvxStatus, qvxsDivC_32f, (const Qvx32f* pSrc, Qvx32f val, Qvx32f* pDst, int len));
QVXS_API(QvxStatus, qvxsDivC_64f, (const Qvx64f* pSrc, Qvx64f val, Qvx64f* pDst, int len));
QVXS_API(QvxStatus, qvxsDivC_32fc, (const Qvx32fc* pSrc, Qvx32fc val, Qvx32fc* pDst, int len));
QVXS_API(QvxStatus, qvxsDivC_64fc, (const Qvx64fc* pSrc, Qvx64fc val, Qvx64fc* pDst, int len));
QVXS_API(QvxStatus, qvxsDivC_8u_Sfs, (const Qvx8u* pSrc, Qvx8u val, Qvx8u* pDst, int len, int scaleFactor));
QVXS_API(QvxStatus, qvxsDivC_16u_Sfs, (const Qvx16u* pSrc, Qvx16u val, Qvx16u* pDst, int len, int scaleFactor));
QVXS_API(QvxStatus, qvxsDivC_16s_Sfs, (const Qvx16s* pSrc, Qvx16s val, Qvx16s* pDst, int len, int scaleFactor));
QVXS_API(QvxStatus, qvxsDivC_16sc_Sfs, (const Qvx16sc* pSrc, Qvx16sc val, Qvx16sc* pDst, int len, int scaleFactor));
QVXS_API(QvxStatus, qvxsDivC_32f_I, (Qvx32f val, Qvx32f* pSrcDst, int len));
QVXS_API(QvxStatus, qvxsDivC_64f_I, (Qvx64f val, Qvx64f* pSrcDst, int len));
QVXS_API(QvxStatus, qvxsDivC_32fc_I, (Qvx32fc val, Qvx32fc* pSrcDst, int len));
QVXS_API(QvxStatus, qvxsDivC_64fc_I, (Qvx64fc val, Qvx64fc* pSrcDst, int len));
QVXS_API(QvxStatus, qvxsDivC_8u_ISfs, (Qvx8u val, Qvx8u* pSrcDst, int len, int scaleFactor));
QVXS_API(QvxStatus, qvxsDivC_16u_ISfs, (Qvx16u val, Qvx16u* pSrcDst, int len, int scaleFactor));
QVXS_API(QvxStatus, qvxsDivC_16s_ISfs, (Qvx16s val, Qvx16s* pSrcDst, int len, int scaleFactor));
QVXS_API(QvxStatus, qvxsDivC_16sc_ISfs, (Qvx16sc val, Qvx16sc* pSrcDst, int len, int scaleFactor));
QVXS_API(QvxStatus, qvxsDivC_64s_ISfs, (Qvx64s val, Qvx64s* pSrcDst, Qvx32u len, int scaleFactor));

/** dst[n] = val / src[n]; the _I forms: val / srcDst[n]. 16u is rounded to nearest even. Otherwise as qvxsDiv, with val for
 *  every dividend: a zero element warns, and gives infinity or NaN in 32f, 65535 (0 if val is 0) in 16u. */
QVXS_API(QvxStatus, qvxsDivCRev_32f, (const Qvx32f* pSrc, Qvx32f val, Qvx32f* pDst, int len));
QVXS_API(QvxStatus, qvxsDivCRev_16u, (const Qvx16u* pSrc, Qvx16u val, Qvx16u* pDst, int len));
QVXS_API(QvxStatus, qvxsDivCRev_32f_I, (Qvx32f val, Qvx32f* pSrcDst, int len));
QVXS_API(QvxStatus, qvxsDivCRev_16u_I, (Qvx16u val, Qvx16u* pSrcDst, int len));

/** qvxsDiv with a round mode: qvxRoundTowardZero, qvxRoundNearestEven, qvxRoundHalfAway. Far scale factors are those beyond -30
 *  to 16. Long vectors may be divided between all threads there are.
 *  Returns as qvxsDiv; qvxStatBadRoundMode for any other mode. */
QVXS_API(QvxStatus, qvxsDiv_Round_8u_Sfs,
         (const Qvx8u* pSrc1, const Qvx8u* pSrc2, Qvx8u* pDst, int len, QvxRoundMode rndMode, int scaleFactor));
QVXS_API(QvxStatus, qvxsDiv_Round_8u_ISfs, (const Qvx8u* pSrc, Qvx8u* pSrcDst, int len, QvxRoundMode rndMode, int scaleFactor));
QVXS_API(QvxStatus, qvxsDiv_Round_16u_Sfs,
         (const Qvx16u* pSrc1, const Qvx16u* pSrc2, Qvx16u* pDst, int len, QvxRoundMode rndMode, int scaleFactor));
QVXS_API(QvxStatus, qvxsDiv_Round_16u_ISfs, (const Qvx16u* pSrc, Qvx16u* pSrcDst, int len, QvxRoundMode rndMode, int scaleFactor));
QVXS_API(QvxStatus, qvxsDiv_Round_16s_Sfs,
         (const Qvx16s* pSrc1, const Qvx16s* pSrc2, Qvx16s* pDst, int len, QvxRoundMode rndMode, int scaleFactor));
QVXS_API(QvxStatus, qvxsDiv_Round_16s_ISfs, (const Qvx16s* pSrc, Qvx16s* pSrcDst, int len, QvxRoundMode rndMode, int scaleFactor));

#ifdef __cplusplus
}
#endif

#endif
