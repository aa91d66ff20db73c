/* libqvxcore: the allocator and the thread count that the signal library uses. It knows nothing of signals. */
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

/** The number of threads that the library may use, 1 or more: that of qvxSetNumThreads; else that of an OpenMP runtime which the
 *  program has loaded, or OMP_NUM_THREADS, or the processors that affinity and quota leave to the process, as they are at the first
 *  call. */
int ownGetNumThreads(void);

/** Sets that number for the whole process; n below 1 goes back to the other. Results never depend on it. */
void qvxSetNumThreads(int n);

/** part(argument, i) for i = 0 to count - 1, each once: on this thread and on others of the library's own, at most
 *  ownGetNumThreads() in all. One call at a time is divided; this thread alone does the work where the threads are taken by another
 *  call, where none can be made, and inside a part or an OpenMP region. A part must not wait for another. */
void ownRunParts(int count, void (*part)(void* argument, int i), void* argument);

#ifdef __cplusplus
}
#endif

#endif
