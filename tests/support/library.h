// The file that a loaded library is in, and copies of it, which to the loader are libraries of their own.
#pragma once

#include <dlfcn.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <string>

namespace tests {

// data: an address in it, not of a function, which may be the program's own entry to it.
inline std::string fileOf(const void* data) {
  Dl_info info;
  return dladdr(data, &info) != 0 ? info.dli_fname : "";
}

// The caller removes it.
inline std::string copyOf(const std::string& library) {
  std::string copy = "/tmp/qvxs-copy-XXXXXX";
  const int file = mkstemp(copy.data());
  if (file < 0) std::abort();
  close(file);
  std::filesystem::copy_file(library, copy, std::filesystem::copy_options::overwrite_existing);
  return copy;
}

}  // namespace tests
