// Whether a sanitizer's runtime is in the process: linked with the program, or preloaded for the library alone.
#pragma once

#include <dlfcn.h>

namespace tests {

inline bool isSanitized() {
  return dlsym(RTLD_DEFAULT, "__asan_init") != nullptr || dlsym(RTLD_DEFAULT, "__tsan_init") != nullptr;
}

}  // namespace tests
