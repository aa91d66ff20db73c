/* libqvxcore: the allocator and the thread count that the signal library stands on. It knows nothing of signals. */
#ifndef QVX_QVXCORE_H
#define QVX_QVXCORE_H

#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

/** A block of at least the given number of bytes, 64-byte aligned, uninitialised; null for bytes below 1 or if memory is out. */
void* qvxMalloc(int64_t bytes);

/** Releases a block from qvxMalloc. A null pointer is allowed and does nothing. */
void qvxFree(void* ptr);

/** ptr rounded up to the next multiple of alignment, a power of two. */
void* qvxAlignPtr(void* ptr, int alignment);

/** The number of threads that the library may use, 1 or more: that of qvxSetNumThreads, else what OpenMP would use. */
int ownGetNumThreads(void);

/** Sets that number for the whole process; n below 1 goes back to OpenMP's. Results never depend on it. */
void qvxSetNumThreads(int n);

#ifdef __cplusplus
}
#endif

#endif
