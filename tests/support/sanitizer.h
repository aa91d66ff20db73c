// Whether a sanitizer's runtime is in the process: linked with the program, or preloaded for the library alone. What the memory
// sanitizer, where it is there, is to know of memory that programs without its instrumentation write.
#pragma once

#include <dlfcn.h>

#include <cstddef>

extern "C" {
__attribute__((weak)) void __msan_poison(const volatile void* at, size_t bytes);
__attribute__((weak)) void __msan_unpoison(const volatile void* at, size_t bytes);
__attribute__((weak)) ptrdiff_t __msan_test_shadow(const volatile void* at, size_t bytes);
}

namespace tests {

inline void markWritten(const void* at, size_t bytes, bool isWritten = true) {
  if (__msan_poison != nullptr) (isWritten ? __msan_unpoison : __msan_poison)(at, bytes);
}
inline bool isWritten(const void* at, size_t bytes) { return __msan_test_shadow == nullptr || __msan_test_shadow(at, bytes) < 0; }

inline bool isSanitized() {
  return dlsym(RTLD_DEFAULT, "__asan_init") != nullptr || dlsym(RTLD_DEFAULT, "__tsan_init") != nullptr;
}

}  // namespace tests
