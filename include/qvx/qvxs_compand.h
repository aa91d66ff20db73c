/* Companded speech, bit packing, and channels joined and split. */
#ifndef QVX_QVXS_COMPAND_H
#define QVX_QVXS_COMPAND_H

#include <qvx/qvxdefs.h>

#ifdef __cplusplus
extern "C" {
#endif

/** dst[n] = the linear value of an A-law or mu-law code of ITU-T G.711, in steps of 16 bits: A-law 8 to 32256, mu-law 0 to 32124.
 *  32f: the same times 2^-15.
 *  Here and below: len elements, any alignment, no overlap of src and dst.
 *  Returns qvxStatOk; qvxStatNullPtr; qvxStatBadSize (len < 1). */
QVXS_API(QvxStatus, qvxsALawToLin_8u16s, (const Qvx8u* pSrc, Qvx16s* pDst, int len));
QVXS_API(QvxStatus, qvxsALawToLin_8u32f, (const Qvx8u* pSrc, Qvx32f* pDst, int len));
QVXS_API(QvxStatus, qvxsMuLawToLin_8u16s, (const Qvx8u* pSrc, Qvx16s* pDst, int len));
QVXS_API(QvxStatus, qvxsMuLawToLin_8u32f, (const Qvx8u* pSrc, Qvx32f* pDst, int len));

/** dst[n] = the code whose interval holds src[n]: A-law codes tell 13 bits apart, mu-law codes 14, the rest is cut off.
 *  32f: src[n] * 32768 is rounded half away from zero, the half added in Qvx32f, and clipped to 16 bits first; a NaN
 *  gives the upper limit. A mu-law code is negative wherever its float is below 0, even if that rounds to 0.
 *  The caller's rounding mode has no influence. */
QVXS_API(QvxStatus, qvxsLinToALaw_16s8u, (const Qvx16s* pSrc, Qvx8u* pDst, int len));
QVXS_API(QvxStatus, qvxsLinToALaw_32f8u, (const Qvx32f* pSrc, Qvx8u* pDst, int len));
QVXS_API(QvxStatus, qvxsLinToMuLaw_16s8u, (const Qvx16s* pSrc, Qvx8u* pDst, int len));
QVXS_API(QvxStatus, qvxsLinToMuLaw_32f8u, (const Qvx32f* pSrc, Qvx8u* pDst, int len));

/** dst[n] = the code of the other law, by the conversion tables 3 and 4 of G.711: there and back, only the last bit of a code
 *  ever changes, and that in few of them. */
QVXS_API(QvxStatus, qvxsALawToMuLaw_8u, (const Qvx8u* pSrc, Qvx8u* pDst, int len));
QVXS_API(QvxStatus, qvxsMuLawToALaw_8u, (const Qvx8u* pSrc, Qvx8u* pDst, int len));

/** Writes the low pSrcBitLen[n] bits of every pSrcBit[n] one after another, the highest bit first, from dstBitOffset bits after
 *  pDst on; bit 0 of a byte is its highest. The bits of the first byte before that are kept, those of the last byte after the
 *  bits written become 0, also where none are written. *pDstLenBit = the number of bits written.
 *  A length below 0 counts as 0, one above 32 as 32.
 *  Returns qvxStatOk; qvxWarnBadBitLen if there was such a length (everything is written); qvxStatNullPtr; qvxStatBadSize
 *  (len < 1 or dstBitOffset < 0). */
QVXS_API(QvxStatus, qvxsPackBits_32u8u,
         (const Qvx32u* pSrcBit, const int* pSrcBitLen, int len, Qvx8u* pDst, int dstBitOffset, int* pDstLenBit));

/** pDst[frame * nChannels + channel] = pSrc[channel][frame], rounded to nearest even whatever the caller's rounding mode.
 *  Join: clipped to 16 bits. JoinScaled: full scale, so that -1 gives the least integer and 1 the largest: clipped to -1 and 1,
 *  times 32767.5 less 0.5 in Qvx32f (16s), or times 8388607.5 less 0.5 in Qvx64f (24s: three bytes, the lowest first).
 *  A NaN gives the largest integer.
 *  pSrc: nChannels pointers to chanLen elements each; pDst: nChannels * chanLen elements. Any alignment, no overlap.
 *  Returns qvxStatOk; in this order qvxStatNullPtr (pDst), qvxStatBadSize (nChannels or chanLen < 1), qvxStatNullPtr (pSrc or a
 *  pointer in it). */
QVXS_API(QvxStatus, qvxsJoin_32f16s_D2L, (const Qvx32f* const* pSrc, int nChannels, int chanLen, Qvx16s* pDst));
QVXS_API(QvxStatus, qvxsJoinScaled_32f16s_D2L, (const Qvx32f* const* pSrc, int nChannels, int chanLen, Qvx16s* pDst));
QVXS_API(QvxStatus, qvxsJoinScaled_32f24s_D2L, (const Qvx32f* const* pSrc, int nChannels, int chanLen, Qvx8u* pDst));

/** pDst[channel][frame] = the full-scale value of pSrc[frame * nChannels + channel]: -1 for the least integer, 1 for the largest;
 *  x * 2/65535 + 1/65535 in Qvx32f (16s), x * 2/16777215 + 1/16777215 in Qvx64f (24s).
 *  Returns as above, with pSrc and pDst in each other's place. */
QVXS_API(QvxStatus, qvxsSplitScaled_16s32f_D2L, (const Qvx16s* pSrc, Qvx32f* const* pDst, int nChannels, int chanLen));
QVXS_API(QvxStatus, qvxsSplitScaled_24s32f_D2L, (const Qvx8u* pSrc, Qvx32f* const* pDst, int nChannels, int chanLen));

#ifdef __cplusplus
}
#endif

#endif
