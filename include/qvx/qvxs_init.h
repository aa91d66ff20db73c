/* Copy and fill, logic, shifts, byte order. */
#ifndef QVX_QVXS_INIT_H
#define QVX_QVXS_INIT_H

#include <qvx/qvxdefs.h>

#ifdef __cplusplus
extern "C" {
#endif

/** dst[n] = src[n]. The vectors may not overlap; see qvxsMove. From the size of the last-level cache on, the data passes it by.
 *  Returns qvxStatOk; qvxStatNullPtr; qvxStatBadSize (len < 1). */
QVXS_API(QvxStatus, qvxsCopy_8u, (const Qvx8u* pSrc, Qvx8u* pDst, int len));
QVXS_API(QvxStatus, qvxsCopy_16s, (const Qvx16s* pSrc, Qvx16s* pDst, int len));
QVXS_API(QvxStatus, qvxsCopy_16sc, (const Qvx16sc* pSrc, Qvx16sc* pDst, int len));
QVXS_API(QvxStatus, qvxsCopy_32s, (const Qvx32s* pSrc, Qvx32s* pDst, int len));
QVXS_API(QvxStatus, qvxsCopy_32sc, (const Qvx32sc* pSrc, Qvx32sc* pDst, int len));
QVXS_API(QvxStatus, qvxsCopy_32f, (const Qvx32f* pSrc, Qvx32f* pDst, int len));
QVXS_API(QvxStatus, qvxsCopy_32fc, (const Qvx32fc* pSrc, Qvx32fc* pDst, int len));
QVXS_API(QvxStatus, qvxsCopy_64s, (const Qvx64s* pSrc, Qvx64s* pDst, int len));
QVXS_API(QvxStatus, qvxsCopy_64sc, (const Qvx64sc* pSrc, Qvx64sc* pDst, int len));
QVXS_API(QvxStatus, qvxsCopy_64f, (const Qvx64f* pSrc, Qvx64f* pDst, int len));
QVXS_API(QvxStatus, qvxsCopy_64fc, (const Qvx64fc* pSrc, Qvx64fc* pDst, int len));

/** dst[n] = src[n], where the vectors may overlap in any way. Returns as qvxsCopy. */
QVXS_API(QvxStatus, qvxsMove_8u, (const Qvx8u* pSrc, Qvx8u* pDst, int len));
QVXS_API(QvxStatus, qvxsMove_16s, (const Qvx16s* pSrc, Qvx16s* pDst, int len));
QVXS_API(QvxStatus, qvxsMove_16sc, (const Qvx16sc* pSrc, Qvx16sc* pDst, int len));
QVXS_API(QvxStatus, qvxsMove_32s, (const Qvx32s* pSrc, Qvx32s* pDst, int len));
QVXS_API(QvxStatus, qvxsMove_32sc, (const Qvx32sc* pSrc, Qvx32sc* pDst, int len));
QVXS_API(QvxStatus, qvxsMove_32f, (const Qvx32f* pSrc, Qvx32f* pDst, int len));
QVXS_API(QvxStatus, qvxsMove_32fc, (const Qvx32fc* pSrc, Qvx32fc* pDst, int len));
QVXS_API(QvxStatus, qvxsMove_64s, (const Qvx64s* pSrc, Qvx64s* pDst, int len));
QVXS_API(QvxStatus, qvxsMove_64sc, (const Qvx64sc* pSrc, Qvx64sc* pDst, int len));
QVXS_API(QvxStatus, qvxsMove_64f, (const Qvx64f* pSrc, Qvx64f* pDst, int len));
QVXS_API(QvxStatus, qvxsMove_64fc, (const Qvx64fc* pSrc, Qvx64fc* pDst, int len));

/** dst[n] = 0. Returns as qvxsCopy. */
QVXS_API(QvxStatus, qvxsZero_8u, (Qvx8u* pDst, int len));
QVXS_API(QvxStatus, qvxsZero_16s, (Qvx16s* pDst, int len));
QVXS_API(QvxStatus, qvxsZero_16sc, (Qvx16sc* pDst, int len));
QVXS_API(QvxStatus, qvxsZero_32s, (Qvx32s* pDst, int len));
QVXS_API(QvxStatus, qvxsZero_32sc, (Qvx32sc* pDst, int len));
QVXS_API(QvxStatus, qvxsZero_32f, (Qvx32f* pDst, int len));
QVXS_API(QvxStatus, qvxsZero_32fc, (Qvx32fc* pDst, int len));
QVXS_API(QvxStatus, qvxsZero_64s, (Qvx64s* pDst, int len));
QVXS_API(QvxStatus, qvxsZero_64sc, (Qvx64sc* pDst, int len));
QVXS_API(QvxStatus, qvxsZero_64f, (Qvx64f* pDst, int len));
QVXS_API(QvxStatus, qvxsZero_64fc, (Qvx64fc* pDst, int len));

/** dst[n] = val, bit for bit. Returns as qvxsCopy. */
QVXS_API(QvxStatus, qvxsSet_8u, (Qvx8u val, Qvx8u* pDst, int len));
QVXS_API(QvxStatus, qvxsSet_16s, (Qvx16s val, Qvx16s* pDst, int len));
QVXS_API(QvxStatus, qvxsSet_16sc, (Qvx16sc val, Qvx16sc* pDst, int len));
QVXS_API(QvxStatus, qvxsSet_32s, (Qvx32s val, Qvx32s* pDst, int len));
QVXS_API(QvxStatus, qvxsSet_32sc, (Qvx32sc val, Qvx32sc* pDst, int len));
QVXS_API(QvxStatus, qvxsSet_32f, (Qvx32f val, Qvx32f* pDst, int len));
QVXS_API(QvxStatus, qvxsSet_32fc, (Qvx32fc val, Qvx32fc* pDst, int len));
QVXS_API(QvxStatus, qvxsSet_64s, (Qvx64s val, Qvx64s* pDst, int len));
QVXS_API(QvxStatus, qvxsSet_64sc, (Qvx64sc val, Qvx64sc* pDst, int len));
QVXS_API(QvxStatus, qvxsSet_64f, (Qvx64f val, Qvx64f* pDst, int len));
QVXS_API(QvxStatus, qvxsSet_64fc, (Qvx64fc val, Qvx64fc* pDst, int len));

/** Copies len bits. Bit 0 of a byte is its most significant one; an offset counts bits from the first byte on and may be above
 *  7. The bits of dst around the copied ones are kept. The vectors may not overlap.
 *  Returns qvxStatOk; qvxStatNullPtr; qvxStatBadSize (len < 1 or a negative offset). */
QVXS_API(QvxStatus, qvxsCopy_1u, (const Qvx8u* pSrc, int srcBitOffset, Qvx8u* pDst, int dstBitOffset, int len));

/** dst[n] = src1[n] & src2[n]; the _I form: srcDst[n] &= src[n].
 *  Here and in the bit operations below: len elements, any alignment; pDst may be a source.
 *  Returns qvxStatOk; qvxStatNullPtr; qvxStatBadSize (len < 1). */
QVXS_API(QvxStatus, qvxsAnd_8u, (const Qvx8u* pSrc1, const Qvx8u* pSrc2, Qvx8u* pDst, int len));
QVXS_API(QvxStatus, qvxsAnd_8u_I, (const Qvx8u* pSrc, Qvx8u* pSrcDst, int len));
QVXS_API(QvxStatus, qvxsAnd_16u, (const Qvx16u* pSrc1, const Qvx16u* pSrc2, Qvx16u* pDst, int len));
QVXS_API(QvxStatus, qvxsAnd_16u_I, (const Qvx16u* pSrc, Qvx16u* pSrcDst, int len));
QVXS_API(QvxStatus, qvxsAnd_32u, (const Qvx32u* pSrc1, const Qvx32u* pSrc2, Qvx32u* pDst, int len));
QVXS_API(QvxStatus, qvxsAnd_32u_I, (const Qvx32u* pSrc, Qvx32u* pSrcDst, int len));

/** dst[n] = src1[n] | src2[n]; the _I form: srcDst[n] |= src[n]. */
QVXS_API(QvxStatus, qvxsOr_8u, (const Qvx8u* pSrc1, const Qvx8u* pSrc2, Qvx8u* pDst, int len));
QVXS_API(QvxStatus, qvxsOr_8u_I, (const Qvx8u* pSrc, Qvx8u* pSrcDst, int len));
QVXS_API(QvxStatus, qvxsOr_16u, (const Qvx16u* pSrc1, const Qvx16u* pSrc2, Qvx16u* pDst, int len));
QVXS_API(QvxStatus, qvxsOr_16u_I, (const Qvx16u* pSrc, Qvx16u* pSrcDst, int len));
QVXS_API(QvxStatus, qvxsOr_32u, (const Qvx32u* pSrc1, const Qvx32u* pSrc2, Qvx32u* pDst, int len));
QVXS_API(QvxStatus, qvxsOr_32u_I, (const Qvx32u* pSrc, Qvx32u* pSrcDst, int len));

/** dst[n] = src1[n] ^ src2[n]; the _I form: srcDst[n] ^= src[n]. */
QVXS_API(QvxStatus, qvxsXor_8u, (const Qvx8u* pSrc1, const Qvx8u* pSrc2, Qvx8u* pDst, int len));
QVXS_API(QvxStatus, qvxsXor_8u_I, (const Qvx8u* pSrc, Qvx8u* pSrcDst, int len));
QVXS_API(QvxStatus, qvxsXor_16u, (const Qvx16u* pSrc1, const Qvx16u* pSrc2, Qvx16u* pDst, int len));
QVXS_API(QvxStatus, qvxsXor_16u_I, (const Qvx16u* pSrc, Qvx16u* pSrcDst, int len));
QVXS_API(QvxStatus, qvxsXor_32u, (const Qvx32u* pSrc1, const Qvx32u* pSrc2, Qvx32u* pDst, int len));
QVXS_API(QvxStatus, qvxsXor_32u_I, (const Qvx32u* pSrc, Qvx32u* pSrcDst, int len));

/** dst[n] = src[n] & val; the _I form: srcDst[n] &= val. */
QVXS_API(QvxStatus, qvxsAndC_8u, (const Qvx8u* pSrc, Qvx8u val, Qvx8u* pDst, int len));
QVXS_API(QvxStatus, qvxsAndC_8u_I, (Qvx8u val, Qvx8u* pSrcDst, int len));
QVXS_API(QvxStatus, qvxsAndC_16u, (const Qvx16u* pSrc, Qvx16u val, Qvx16u* pDst, int len));
QVXS_API(QvxStatus, qvxsAndC_16u_I, (Qvx16u val, Qvx16u* pSrcDst, int len));
QVXS_API(QvxStatus, qvxsAndC_32u, (const Qvx32u* pSrc, Qvx32u val, Qvx32u* pDst, int len));
QVXS_API(QvxStatus, qvxsAndC_32u_I, (Qvx32u val, Qvx32u* pSrcDst, int len));

/** dst[n] = src[n] | val; the _I form: srcDst[n] |= val. */
QVXS_API(QvxStatus, qvxsOrC_8u, (const Qvx8u* pSrc, Qvx8u val, Qvx8u* pDst, int len));
QVXS_API(QvxStatus, qvxsOrC_8u_I, (Qvx8u val, Qvx8u* pSrcDst, int len));
QVXS_API(QvxStatus, qvxsOrC_16u, (const Qvx16u* pSrc, Qvx16u val, Qvx16u* pDst, int len));
QVXS_API(QvxStatus, qvxsOrC_16u_I, (Qvx16u val, Qvx16u* pSrcDst, int len));
QVXS_API(QvxStatus, qvxsOrC_32u, (const Qvx32u* pSrc, Qvx32u val, Qvx32u* pDst, int len));
QVXS_API(QvxStatus, qvxsOrC_32u_I, (Qvx32u val, Qvx32u* pSrcDst, int len));

/** dst[n] = src[n] ^ val; the _I form: srcDst[n] ^= val. */
QVXS_API(QvxStatus, qvxsXorC_8u, (const Qvx8u* pSrc, Qvx8u val, Qvx8u* pDst, int len));
QVXS_API(QvxStatus, qvxsXorC_8u_I, (Qvx8u val, Qvx8u* pSrcDst, int len));
QVXS_API(QvxStatus, qvxsXorC_16u, (const Qvx16u* pSrc, Qvx16u val, Qvx16u* pDst, int len));
QVXS_API(QvxStatus, qvxsXorC_16u_I, (Qvx16u val, Qvx16u* pSrcDst, int len));
QVXS_API(QvxStatus, qvxsXorC_32u, (const Qvx32u* pSrc, Qvx32u val, Qvx32u* pDst, int len));
QVXS_API(QvxStatus, qvxsXorC_32u_I, (Qvx32u val, Qvx32u* pSrcDst, int len));

/** dst[n] = ~src[n]; the _I form: srcDst[n] = ~srcDst[n]. */
QVXS_API(QvxStatus, qvxsNot_8u, (const Qvx8u* pSrc, Qvx8u* pDst, int len));
QVXS_API(QvxStatus, qvxsNot_8u_I, (Qvx8u* pSrcDst, int len));
QVXS_API(QvxStatus, qvxsNot_16u, (const Qvx16u* pSrc, Qvx16u* pDst, int len));
QVXS_API(QvxStatus, qvxsNot_16u_I, (Qvx16u* pSrcDst, int len));
QVXS_API(QvxStatus, qvxsNot_32u, (const Qvx32u* pSrc, Qvx32u* pDst, int len));
QVXS_API(QvxStatus, qvxsNot_32u_I, (Qvx32u* pSrcDst, int len));

/** dst[n] = src[n] shifted left by val bits; bits beyond the element are lost, signed elements too. A val of the element's
 *  width or above gives 0. Returns as qvxsAnd; qvxStatNegShift (val < 0, tested last). */
QVXS_API(QvxStatus, qvxsLShiftC_8u, (const Qvx8u* pSrc, int val, Qvx8u* pDst, int len));
QVXS_API(QvxStatus, qvxsLShiftC_8u_I, (int val, Qvx8u* pSrcDst, int len));
QVXS_API(QvxStatus, qvxsLShiftC_16u, (const Qvx16u* pSrc, int val, Qvx16u* pDst, int len));
QVXS_API(QvxStatus, qvxsLShiftC_16u_I, (int val, Qvx16u* pSrcDst, int len));
QVXS_API(QvxStatus, qvxsLShiftC_16s, (const Qvx16s* pSrc, int val, Qvx16s* pDst, int len));
QVXS_API(QvxStatus, qvxsLShiftC_16s_I, (int val, Qvx16s* pSrcDst, int len));
QVXS_API(QvxStatus, qvxsLShiftC_32s, (const Qvx32s* pSrc, int val, Qvx32s* pDst, int len));
QVXS_API(QvxStatus, qvxsLShiftC_32s_I, (int val, Qvx32s* pSrcDst, int len));

/** dst[n] = src[n] shifted right by val bits, without rounding: unsigned elements fill with zeros, signed ones with their sign.
 *  From the element's width on: 0, or -1 for a negative element. Returns as qvxsLShiftC. */
QVXS_API(QvxStatus, qvxsRShiftC_8u, (const Qvx8u* pSrc, int val, Qvx8u* pDst, int len));
QVXS_API(QvxStatus, qvxsRShiftC_8u_I, (int val, Qvx8u* pSrcDst, int len));
QVXS_API(QvxStatus, qvxsRShiftC_16u, (const Qvx16u* pSrc, int val, Qvx16u* pDst, int len));
QVXS_API(QvxStatus, qvxsRShiftC_16u_I, (int val, Qvx16u* pSrcDst, int len));
QVXS_API(QvxStatus, qvxsRShiftC_16s, (const Qvx16s* pSrc, int val, Qvx16s* pDst, int len));
QVXS_API(QvxStatus, qvxsRShiftC_16s_I, (int val, Qvx16s* pSrcDst, int len));
QVXS_API(QvxStatus, qvxsRShiftC_32s, (const Qvx32s* pSrc, int val, Qvx32s* pDst, int len));
QVXS_API(QvxStatus, qvxsRShiftC_32s_I, (int val, Qvx32s* pSrcDst, int len));

/** The byte order of every element reversed. 24u: elements of three bytes, without gaps. Returns as qvxsAnd. */
QVXS_API(QvxStatus, qvxsSwapBytes_16u, (const Qvx16u* pSrc, Qvx16u* pDst, int len));
QVXS_API(QvxStatus, qvxsSwapBytes_16u_I, (Qvx16u* pSrcDst, int len));
QVXS_API(QvxStatus, qvxsSwapBytes_24u, (const Qvx8u* pSrc, Qvx8u* pDst, int len));
QVXS_API(QvxStatus, qvxsSwapBytes_24u_I, (Qvx8u* pSrcDst, int len));
QVXS_API(QvxStatus, qvxsSwapBytes_32u, (const Qvx32u* pSrc, Qvx32u* pDst, int len));
QVXS_API(QvxStatus, qvxsSwapBytes_32u_I, (Qvx32u* pSrcDst, int len));
QVXS_API(QvxStatus, qvxsSwapBytes_64u, (const Qvx64u* pSrc, Qvx64u* pDst, int len));
QVXS_API(QvxStatus, qvxsSwapBytes_64u_I, (Qvx64u* pSrcDst, int len));

#ifdef __cplusplus
}
#endif

#endif
