// Vectors of the greatest lengths in the memory of short ones: the same pages are mapped again and again.
#pragma once

#include <sys/mman.h>
#include <unistd.h>

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <vector>

namespace tests {

template <class T> class Repeated {
 public:
  // n elements, and more up to the end of their last page; the data must fill whole pages. A write to one stretch is a write to
  // all of them, except in the last page.
  Repeated(const std::vector<T>& data, size_t n) : n_(n), bytes_((n * sizeof(T) + kPage - 1) / kPage * kPage) {
    const size_t stretch = data.size() * sizeof(T);
    const int file = memfd_create("repeated", 0);
    base_ = static_cast<uint8_t*>(mmap(nullptr, bytes_, PROT_NONE, MAP_PRIVATE | MAP_ANONYMOUS | MAP_NORESERVE, -1, 0));
    if (file < 0 || base_ == MAP_FAILED || write(file, data.data(), stretch) != static_cast<ssize_t>(stretch)) std::abort();
    const size_t last = bytes_ - kPage;
    for (size_t at = 0; at < last; at += stretch) map(at, std::min(stretch, last - at), MAP_SHARED | MAP_POPULATE, file, 0);
    map(last, kPage, MAP_PRIVATE, file, last % stretch);
    *static_cast<volatile uint8_t*>(base_ + last) = base_[last];  // its own from here on, whatever becomes of the file
    close(file);
  }
  // All of one value.
  Repeated(size_t n, T value) : Repeated(std::vector<T>((size_t{16} << 20) / sizeof(T), value), n) {}
  ~Repeated() { munmap(base_, bytes_); }
  Repeated(const Repeated&) = delete;
  Repeated& operator=(const Repeated&) = delete;

  template <class U = T> const U* as() const { return reinterpret_cast<const U*>(base_); }
  const T* data() const { return as(); }
  T* data() { return reinterpret_cast<T*>(base_); }
  T* last() { return data() + n_ - 1; }

 private:
  static constexpr size_t kPage = 4096;

  void map(size_t at, size_t bytes, int flags, int file, size_t from) {
    const auto offset = static_cast<off_t>(from);
    if (mmap(base_ + at, bytes, PROT_READ | PROT_WRITE, flags | MAP_FIXED, file, offset) == MAP_FAILED) std::abort();
  }

  size_t n_, bytes_;
  uint8_t* base_;
};

}  // namespace tests
