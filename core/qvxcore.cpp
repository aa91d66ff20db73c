#include <qvx/qvxcore.h>

#include <omp.h>

#include <atomic>
#include <cstdlib>

namespace {

// One cache line, and the widest vector register: no vector that starts here is split by either.
constexpr size_t kAlignment = 64;

std::atomic<int> requestedThreads{0};  // 0: as OpenMP would

}  // namespace

void* qvxMalloc(int64_t bytes) {
  if (bytes < 1 || bytes > INT64_MAX - int64_t{kAlignment}) return nullptr;
  const size_t rounded = (static_cast<size_t>(bytes) + kAlignment - 1) / kAlignment * kAlignment;
  return std::aligned_alloc(kAlignment, rounded);
}

void qvxFree(void* ptr) { std::free(ptr); }

void* qvxAlignPtr(void* ptr, int alignment) {
  const auto mask = static_cast<uintptr_t>(alignment) - 1;
  return reinterpret_cast<void*>((reinterpret_cast<uintptr_t>(ptr) + mask) & ~mask);
}

int ownGetNumThreads() {
  const int requested = requestedThreads.load(std::memory_order_relaxed);
  return requested > 0 ? requested : omp_get_max_threads();
}

void qvxSetNumThreads(int n) { requestedThreads.store(n > 0 ? n : 0, std::memory_order_relaxed); }
