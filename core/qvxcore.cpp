#include <qvx/qvxcore.h>

#include <cstdlib>

namespace {

// One cache line, and the widest vector register: no vector that starts here is split by either.
constexpr size_t kAlignment = 64;

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
