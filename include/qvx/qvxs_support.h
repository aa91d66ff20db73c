/* Memory and identity of the library. */
#ifndef QVX_QVXS_SUPPORT_H
#define QVX_QVXS_SUPPORT_H

#include <qvx/qvxdefs.h>

#ifdef __cplusplus
extern "C" {
#endif

/** Allocates an uninitialised vector of len elements, 64-byte aligned, to be released with qvxsFree.
 *  Null if len is below 1 or memory is out. The vectors of 2-byte elements count their bytes in 32 bits, so they are
 *  refused from 2^30 elements on; all others reach as far as memory does. */
QVXS_API(Qvx8u*, qvxsMalloc_8u, (int len));
QVXS_API(Qvx16u*, qvxsMalloc_16u, (int len));
QVXS_API(Qvx32u*, qvxsMalloc_32u, (int len));
QVXS_API(Qvx8s*, qvxsMalloc_8s, (int len));
QVXS_API(Qvx16s*, qvxsMalloc_16s, (int len));
QVXS_API(Qvx32s*, qvxsMalloc_32s, (int len));
QVXS_API(Qvx64s*, qvxsMalloc_64s, (int len));
QVXS_API(Qvx32f*, qvxsMalloc_32f, (int len));
QVXS_API(Qvx64f*, qvxsMalloc_64f, (int len));
QVXS_API(Qvx8sc*, qvxsMalloc_8sc, (int len));
QVXS_API(Qvx16sc*, qvxsMalloc_16sc, (int len));
QVXS_API(Qvx32sc*, qvxsMalloc_32sc, (int len));
QVXS_API(Qvx64sc*, qvxsMalloc_64sc, (int len));
QVXS_API(Qvx32fc*, qvxsMalloc_32fc, (int len));
QVXS_API(Qvx64fc*, qvxsMalloc_64fc, (int len));

/** Releases a vector from any qvxsMalloc function. A null pointer is allowed and does nothing. */
QVXS_API(void, qvxsFree, (void* ptr));

/** Identity of the loaded library: a constant record, the same at every call, never to be freed.
 *  cpuTag tells which variant the loader chose: u8 (SSSE3), w3 (AVX2) or w4 (AVX-512). */
QVXS_SLOTLESS(QVXS_API(const QvxLibraryVersion*, qvxsGetLibVersion, (void)));

#ifdef __cplusplus
}
#endif

#endif
