/* One or two spectral components of a vector, without a transform. */
#ifndef QVX_QVXS_GOERTZEL_H
#define QVX_QVXS_GOERTZEL_H

#include <qvx/qvxdefs.h>

#ifdef __cplusplus
extern "C" {
#endif

/** *pVal = sum of x[n] * e^(jw(len - n)) for n = 0 .. len - 1, w = 2 pi rFreq: the component at rFreq, its phase turned by w * len.
 *  Computed in Qvx64f; 32f and 32fc: off by less than 4 eps of the sum of |x| (eps = 2^-23), to 10^6 samples at any frequency. 16s and
 *  16sc: both parts times 2^-scaleFactor, rounded to nearest, saturated: within one unit.
 *  pSrc: len elements, any alignment. rFreq: relative to the sampling rate, from 0 to below 1; of a real vector one above 0.5 is a
 *  mirrored frequency.
 *  Returns qvxStatOk; qvxStatNullPtr; qvxStatBadSize (len < 1); qvxStatBadRelFreq (rFreq outside [0, 1), or a NaN). */
QVXS_API(QvxStatus, qvxsGoertz_32f, (const Qvx32f* pSrc, int len, Qvx32fc* pVal, Qvx32f rFreq));
QVXS_API(QvxStatus, qvxsGoertz_64f, (const Qvx64f* pSrc, int len, Qvx64fc* pVal, Qvx64f rFreq));
QVXS_API(QvxStatus, qvxsGoertz_32fc, (const Qvx32fc* pSrc, int len, Qvx32fc* pVal, Qvx32f rFreq));
QVXS_API(QvxStatus, qvxsGoertz_64fc, (const Qvx64fc* pSrc, int len, Qvx64fc* pVal, Qvx64f rFreq));
QVXS_API(QvxStatus, qvxsGoertz_16s_Sfs, (const Qvx16s* pSrc, int len, Qvx16sc* pVal, Qvx32f rFreq, int scaleFactor));
QVXS_API(QvxStatus, qvxsGoertz_16sc_Sfs, (const Qvx16sc* pSrc, int len, Qvx16sc* pVal, Qvx32f rFreq, int scaleFactor));

/** The same for two frequencies in one pass. pVal, pRFreq: two elements each. */
QVXS_API(QvxStatus, qvxsGoertzTwo_32f, (const Qvx32f* pSrc, int len, Qvx32fc* pVal, const Qvx32f* pRFreq));
QVXS_API(QvxStatus, qvxsGoertzTwo_32fc, (const Qvx32fc* pSrc, int len, Qvx32fc* pVal, const Qvx32f* pRFreq));
QVXS_API(QvxStatus, qvxsGoertzTwo_64f, (const Qvx64f* pSrc, int len, Qvx64fc* pVal, const Qvx64f* pRFreq));
QVXS_API(QvxStatus, qvxsGoertzTwo_64fc, (const Qvx64fc* pSrc, int len, Qvx64fc* pVal, const Qvx64f* pRFreq));
QVXS_API(QvxStatus, qvxsGoertzTwo_16sc_Sfs, (const Qvx16sc* pSrc, int len, Qvx16sc* pVal, const Qvx32f* pRFreq, int scaleFactor));

/** The same for frequencies in units of 2^-15 of the sampling rate.
 *  Returns qvxStatOk; qvxStatNullPtr (pRFreqQ15); qvxStatBadRelFreq (a frequency below 0); then what the functions above return. */
QVXS_API(QvxStatus, qvxsGoertzQ15_16sc_Sfs, (const Qvx16sc* pSrc, int len, Qvx16sc* pVal, Qvx16s rFreqQ15, int scaleFactor));
QVXS_API(QvxStatus, qvxsGoertzTwoQ15_16sc_Sfs, (const Qvx16sc* pSrc, int len, Qvx16sc* pVal, const Qvx16s* pRFreqQ15, int scaleFactor));

#ifdef __cplusplus
}
#endif

#endif
