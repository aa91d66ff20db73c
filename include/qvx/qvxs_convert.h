/* Conversion between element types. */
#ifndef QVX_QVXS_CONVERT_H
#define QVX_QVXS_CONVERT_H

#include <qvx/qvxdefs.h>

#ifdef __cplusplus
extern "C" {
#endif

/** dst[n] = src[n] in a type that holds every value of the source's; exact.
 *  24u and 24s: three bytes an element without gaps, the lowest first, two's complement; pointers are to bytes.
 *  Here and below: len elements, any alignment, no overlap of src and dst. No function leaves the caller's rounding mode changed.
 *  Returns qvxStatOk; qvxStatNullPtr; qvxStatBadSize (len < 1). */
QVXS_API(QvxStatus, qvxsConvert_8s16s, (const Qvx8s* pSrc, Qvx16s* pDst, int len));
QVXS_API(QvxStatus, qvxsConvert_16s32s, (const Qvx16s* pSrc, Qvx32s* pDst, int len));
QVXS_API(QvxStatus, qvxsConvert_8s32f, (const Qvx8s* pSrc, Qvx32f* pDst, int len));
QVXS_API(QvxStatus, qvxsConvert_8u32f, (const Qvx8u* pSrc, Qvx32f* pDst, int len));
QVXS_API(QvxStatus, qvxsConvert_16s32f, (const Qvx16s* pSrc, Qvx32f* pDst, int len));
QVXS_API(QvxStatus, qvxsConvert_16u32f, (const Qvx16u* pSrc, Qvx32f* pDst, int len));
QVXS_API(QvxStatus, qvxsConvert_32s64f, (const Qvx32s* pSrc, Qvx64f* pDst, int len));
QVXS_API(QvxStatus, qvxsConvert_32f64f, (const Qvx32f* pSrc, Qvx64f* pDst, int len));
QVXS_API(QvxStatus, qvxsConvert_24u32u, (const Qvx8u* pSrc, Qvx32u* pDst, int len));
QVXS_API(QvxStatus, qvxsConvert_24s32s, (const Qvx8u* pSrc, Qvx32s* pDst, int len));
QVXS_API(QvxStatus, qvxsConvert_24u32f, (const Qvx8u* pSrc, Qvx32f* pDst, int len));
QVXS_API(QvxStatus, qvxsConvert_24s32f, (const Qvx8u* pSrc, Qvx32f* pDst, int len));

/** dst[n] = src[n], rounded in the caller's rounding mode. */
QVXS_API(QvxStatus, qvxsConvert_32s32f, (const Qvx32s* pSrc, Qvx32f* pDst, int len));
QVXS_API(QvxStatus, qvxsConvert_64s64f, (const Qvx64s* pSrc, Qvx64f* pDst, int len));
QVXS_API(QvxStatus, qvxsConvert_64f32f, (const Qvx64f* pSrc, Qvx32f* pDst, int len));

/** dst[n] = src[n], saturated. */
QVXS_API(QvxStatus, qvxsConvert_32s16s, (const Qvx32s* pSrc, Qvx16s* pDst, int len));

/** dst[n] = src[n] * 2^-scaleFactor. The factor is exact; scaleFactor is limited to -112 to 126 (32f) or -1008 to 1022 (64f). */
QVXS_API(QvxStatus, qvxsConvert_16s32f_Sfs, (const Qvx16s* pSrc, Qvx32f* pDst, int len, int scaleFactor));
QVXS_API(QvxStatus, qvxsConvert_16s64f_Sfs, (const Qvx16s* pSrc, Qvx64f* pDst, int len, int scaleFactor));
QVXS_API(QvxStatus, qvxsConvert_32s32f_Sfs, (const Qvx32s* pSrc, Qvx32f* pDst, int len, int scaleFactor));
QVXS_API(QvxStatus, qvxsConvert_32s64f_Sfs, (const Qvx32s* pSrc, Qvx64f* pDst, int len, int scaleFactor));

/** dst[n] = src[n] * 2^-scaleFactor, rounded as rndMode says and saturated. rndMode: qvxRoundTowardZero, qvxRoundNearestEven;
 *  anything else is qvxRoundHalfAway.
 *  The factor and the product are of the source's type: far scale factors underflow to 0 or overflow to infinity, which makes a
 *  NaN of 0. But 64f16s limits scaleFactor to -1008 to 1022, and 64f64s multiplies by any power of two down to 2^-1074;
 *  above scale factor 1074 it gives zeros, of infinities too.
 *  Half away adds 0.5 to the magnitude in the source's type and truncates, so that the float just below 0.5 gives 1 from 32f
 *  sources; from 64f sources to 16s and 64s it gives 0, and to 32s what the caller's rounding mode makes of that sum.
 *  A NaN gives the upper limit; 0 for the destinations 8u, 16u and 64s.
 *  64f64s: len is unsigned, and only 0 is refused. Returns as above. */
QVXS_API(QvxStatus, qvxsConvert_32f8s_Sfs, (const Qvx32f* pSrc, Qvx8s* pDst, int len, QvxRoundMode rndMode, int scaleFactor));
QVXS_API(QvxStatus, qvxsConvert_32f8u_Sfs, (const Qvx32f* pSrc, Qvx8u* pDst, int len, QvxRoundMode rndMode, int scaleFactor));
QVXS_API(QvxStatus, qvxsConvert_32f16s_Sfs, (const Qvx32f* pSrc, Qvx16s* pDst, int len, QvxRoundMode rndMode, int scaleFactor));
QVXS_API(QvxStatus, qvxsConvert_32f16u_Sfs, (const Qvx32f* pSrc, Qvx16u* pDst, int len, QvxRoundMode rndMode, int scaleFactor));
QVXS_API(QvxStatus, qvxsConvert_32f32s_Sfs, (const Qvx32f* pSrc, Qvx32s* pDst, int len, QvxRoundMode rndMode, int scaleFactor));
QVXS_API(QvxStatus, qvxsConvert_64f32s_Sfs, (const Qvx64f* pSrc, Qvx32s* pDst, int len, QvxRoundMode rndMode, int scaleFactor));
QVXS_API(QvxStatus, qvxsConvert_64f16s_Sfs, (const Qvx64f* pSrc, Qvx16s* pDst, int len, QvxRoundMode rndMode, int scaleFactor));
QVXS_API(QvxStatus, qvxsConvert_64f64s_Sfs, (const Qvx64f* pSrc, Qvx64s* pDst, Qvx32u len, QvxRoundMode rndMode, int scaleFactor));

/** dst[n] = src[n] * 2^-scaleFactor, nearest even, saturated to the destination: 24 bits for 24u and 24s.
 *  scaleFactor is limited to -15 to 31 for 32s16s, to -31 to 31 for the others. */
QVXS_API(QvxStatus, qvxsConvert_32s16s_Sfs, (const Qvx32s* pSrc, Qvx16s* pDst, int len, int scaleFactor));
QVXS_API(QvxStatus, qvxsConvert_32u24u_Sfs, (const Qvx32u* pSrc, Qvx8u* pDst, int len, int scaleFactor));
QVXS_API(QvxStatus, qvxsConvert_32s24s_Sfs, (const Qvx32s* pSrc, Qvx8u* pDst, int len, int scaleFactor));

/** dst[n] = src[n] * 2^-scaleFactor, rounded as rndMode says (anything but 0 and 1 is qvxRoundHalfAway), saturated.
 *  16s8s: len is unsigned, and only 0 is refused. 64s32s: scaleFactor is limited to -31 to 63. */
QVXS_API(QvxStatus, qvxsConvert_16s8s_Sfs, (const Qvx16s* pSrc, Qvx8s* pDst, Qvx32u len, QvxRoundMode rndMode, int scaleFactor));
QVXS_API(QvxStatus, qvxsConvert_64s32s_Sfs, (const Qvx64s* pSrc, Qvx32s* pDst, int len, QvxRoundMode rndMode, int scaleFactor));

/** dst[n] = src[n] * 2^-scaleFactor, saturated to 24 bits, rounded to nearest even whatever the caller's rounding mode.
 *  A NaN gives the lower limit, and so does 0 where 2^-scaleFactor overflows to infinity: below -127. */
QVXS_API(QvxStatus, qvxsConvert_32f24u_Sfs, (const Qvx32f* pSrc, Qvx8u* pDst, int len, int scaleFactor));
QVXS_API(QvxStatus, qvxsConvert_32f24s_Sfs, (const Qvx32f* pSrc, Qvx8u* pDst, int len, int scaleFactor));

/** Conversions from and to binary16, overflow to infinity as in IEEE 754 and subnormal numbers kept.
 *  32f16f, 16s16f: rndMode qvxRoundNearestEven, else toward zero (then an overflow gives the largest number). 16f16s: the value
 *  times 2^-scaleFactor, rounded as rndMode says and saturated; a NaN gives 32767. Between floats a NaN stays one.
 *  Returns as above; qvxStatBadRoundMode (rndMode is qvxRoundHalfAway). */
QVXS_API(QvxStatus, qvxsConvert_16f32f, (const Qvx16f* pSrc, Qvx32f* pDst, int len));
QVXS_API(QvxStatus, qvxsConvert_32f16f, (const Qvx32f* pSrc, Qvx16f* pDst, int len, QvxRoundMode rndMode));
QVXS_API(QvxStatus, qvxsConvert_16s16f, (const Qvx16s* pSrc, Qvx16f* pDst, int len, QvxRoundMode rndMode));
QVXS_API(QvxStatus, qvxsConvert_16f16s_Sfs, (const Qvx16f* pSrc, Qvx16s* pDst, int len, QvxRoundMode rndMode, int scaleFactor));

#ifdef __cplusplus
}
#endif

#endif
