// A vector as long as a length can say, in the memory of a short one: the same pages mapped again and again.
#pragma once

#include <sys/mman.h>
#include <unistd.h>

#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <vector>

namespace tests {

template <class T> class Repeated {
 public:
  // At least n elements; the data must fill whole pages.
  Repeated(const std::vector<T>& data, size_t n) {
    const size_t bytes = data.size() * sizeof(T);
    const size_t times = (n + data.size() - 1) / data.size();
    bytes_ = bytes * times;
    const int file = memfd_create("repeated", 0);
    void* p = mmap(nullptr, bytes_, PROT_NONE, MAP_PRIVATE | MAP_ANONYMOUS | MAP_NORESERVE, -1, 0);
    if (file < 0 || p == MAP_FAILED || write(file, data.data(), bytes) != static_cast<ssize_t>(bytes)) std::abort();
    base_ = static_cast<uint8_t*>(p);
    for (size_t i = 0; i < times; ++i) {
      if (mmap(base_ + i * bytes, bytes, PROT_READ, MAP_SHARED | MAP_FIXED | MAP_POPULATE, file, 0) == MAP_FAILED) std::abort();
    }
    close(file);
  }
  ~Repeated() { munmap(base_, bytes_); }
  Repeated(const Repeated&) = delete;
  Repeated& operator=(const Repeated&) = delete;

  template <class U = T> const U* as() const { return reinterpret_cast<const U*>(base_); }

 private:
  uint8_t* base_;
  size_t bytes_;
};

}  // namespace tests
