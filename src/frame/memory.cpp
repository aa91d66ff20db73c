// Vectors from the core library's allocator.
#include <qvx/qvxcore.h>

#include "frame/api.h"

namespace {

template <class T> T* vectorOf(int len) {
  if (len < 1) return nullptr;
  // The size of 2-byte elements is formed in 32 bits: from 2^30 elements on it turns negative, which the core refuses.
  const int64_t bytes = sizeof(T) == 2 ? static_cast<int32_t>(static_cast<uint32_t>(len) * 2) : int64_t{len} * sizeof(T);
  return static_cast<T*>(qvxMalloc(bytes));
}

}  // namespace

// clang-format off
Qvx8u*   qvxsMalloc_8u  (int len) { return vectorOf<Qvx8u>(len); }
Qvx16u*  qvxsMalloc_16u (int len) { return vectorOf<Qvx16u>(len); }
Qvx32u*  qvxsMalloc_32u (int len) { return vectorOf<Qvx32u>(len); }
Qvx8s*   qvxsMalloc_8s  (int len) { return vectorOf<Qvx8s>(len); }
Qvx16s*  qvxsMalloc_16s (int len) { return vectorOf<Qvx16s>(len); }
Qvx32s*  qvxsMalloc_32s (int len) { return vectorOf<Qvx32s>(len); }
Qvx64s*  qvxsMalloc_64s (int len) { return vectorOf<Qvx64s>(len); }
Qvx32f*  qvxsMalloc_32f (int len) { return vectorOf<Qvx32f>(len); }
Qvx64f*  qvxsMalloc_64f (int len) { return vectorOf<Qvx64f>(len); }
Qvx8sc*  qvxsMalloc_8sc (int len) { return vectorOf<Qvx8sc>(len); }
Qvx16sc* qvxsMalloc_16sc(int len) { return vectorOf<Qvx16sc>(len); }
Qvx32sc* qvxsMalloc_32sc(int len) { return vectorOf<Qvx32sc>(len); }
Qvx64sc* qvxsMalloc_64sc(int len) { return vectorOf<Qvx64sc>(len); }
Qvx32fc* qvxsMalloc_32fc(int len) { return vectorOf<Qvx32fc>(len); }
Qvx64fc* qvxsMalloc_64fc(int len) { return vectorOf<Qvx64fc>(len); }

void qvxsFree(void* ptr) { qvxFree(ptr); }
// clang-format on
