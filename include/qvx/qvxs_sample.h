/* Sampling: zeros put between samples, and samples left out. Neither filters. */
#ifndef QVX_QVXS_SAMPLE_H
#define QVX_QVXS_SAMPLE_H

#include <qvx/qvxdefs.h>

#ifdef __cplusplus
extern "C" {
#endif

/** Up: dst[n * factor + phase] = src[n], zeros everywhere else. The phase is read, not changed, so that a stream may be cut anywhere.
 *  pSrc: srcLen elements; pDst: srcLen * factor, which is stored in *pDstLen (modulo 2^32); any alignment, apart.
 *  Returns qvxStatOk; qvxStatNullPtr; qvxStatBadSize (srcLen < 1); qvxStatBadSampleFactor (factor < 1); qvxStatBadSamplePhase (*pPhase not
 *  from 0 to factor - 1). */
QVXS_API(QvxStatus, qvxsSampleUp_16s, (const Qvx16s* pSrc, int srcLen, Qvx16s* pDst, int* pDstLen, int factor, int* pPhase));
QVXS_API(QvxStatus, qvxsSampleUp_16sc, (const Qvx16sc* pSrc, int srcLen, Qvx16sc* pDst, int* pDstLen, int factor, int* pPhase));
QVXS_API(QvxStatus, qvxsSampleUp_32f, (const Qvx32f* pSrc, int srcLen, Qvx32f* pDst, int* pDstLen, int factor, int* pPhase));
QVXS_API(QvxStatus, qvxsSampleUp_32fc, (const Qvx32fc* pSrc, int srcLen, Qvx32fc* pDst, int* pDstLen, int factor, int* pPhase));
QVXS_API(QvxStatus, qvxsSampleUp_64f, (const Qvx64f* pSrc, int srcLen, Qvx64f* pDst, int* pDstLen, int factor, int* pPhase));
QVXS_API(QvxStatus, qvxsSampleUp_64fc, (const Qvx64fc* pSrc, int srcLen, Qvx64fc* pDst, int* pDstLen, int factor, int* pPhase));

/** Down: dst = src[phase], src[phase + factor] and so on while the index stays below srcLen; *pDstLen = how many. Afterwards *pPhase is the
 *  next index less srcLen, where the next piece of the stream begins; there may be no result at all.
 *  pSrc: srcLen elements; pDst: (srcLen - phase + factor - 1) / factor; any alignment, apart.
 *  Returns as qvxsSampleUp. */
QVXS_API(QvxStatus, qvxsSampleDown_16s, (const Qvx16s* pSrc, int srcLen, Qvx16s* pDst, int* pDstLen, int factor, int* pPhase));
QVXS_API(QvxStatus, qvxsSampleDown_16sc, (const Qvx16sc* pSrc, int srcLen, Qvx16sc* pDst, int* pDstLen, int factor, int* pPhase));
QVXS_API(QvxStatus, qvxsSampleDown_32f, (const Qvx32f* pSrc, int srcLen, Qvx32f* pDst, int* pDstLen, int factor, int* pPhase));
QVXS_API(QvxStatus, qvxsSampleDown_32fc, (const Qvx32fc* pSrc, int srcLen, Qvx32fc* pDst, int* pDstLen, int factor, int* pPhase));
QVXS_API(QvxStatus, qvxsSampleDown_64f, (const Qvx64f* pSrc, int srcLen, Qvx64f* pDst, int* pDstLen, int factor, int* pPhase));
QVXS_API(QvxStatus, qvxsSampleDown_64fc, (const Qvx64fc* pSrc, int srcLen, Qvx64fc* pDst, int* pDstLen, int factor, int* pPhase));

#ifdef __cplusplus
}
#endif

#endif
