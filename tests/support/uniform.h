// Vectors larger than memory: one block, mapped again and again.
#pragma once

#include <sys/mman.h>
#include <unistd.h>

#include <algorithm>
#include <cstdint>
#include <cstdlib>

namespace tests {

// n equal elements; only what lies in the page of the last can be set.
template <class T> class Uniform {
 public:
  Uniform(size_t n, T value) : n_(n), bytes_((n * sizeof(T) + kPage - 1) / kPage * kPage) {
    const int file = memfd_create("repeated", 0);
    if (file < 0 || ftruncate(file, kBlock) != 0) std::abort();
    base_ = static_cast<uint8_t*>(mmap(nullptr, bytes_, PROT_NONE, MAP_PRIVATE | MAP_ANONYMOUS | MAP_NORESERVE, -1, 0));
    if (base_ == MAP_FAILED) std::abort();
    for (size_t at = 0; at < bytes_; at += kBlock) map(at, std::min(kBlock, bytes_ - at), MAP_SHARED, file);
    map(bytes_ - kPage, kPage, MAP_PRIVATE, file);
    close(file);
    std::fill_n(reinterpret_cast<T*>(base_), std::min(n, kBlock / sizeof(T)), value);
    std::fill_n(reinterpret_cast<T*>(base_ + bytes_ - kPage), kPage / sizeof(T), value);
  }
  ~Uniform() { munmap(base_, bytes_); }
  Uniform(const Uniform&) = delete;
  Uniform& operator=(const Uniform&) = delete;

  const T* data() const { return reinterpret_cast<const T*>(base_); }
  T* last() { return reinterpret_cast<T*>(base_) + n_ - 1; }

 private:
  static constexpr size_t kPage = 4096;
  static constexpr size_t kBlock = size_t{16} << 20;

  void map(size_t at, size_t bytes, int flags, int file) {
    if (mmap(base_ + at, bytes, PROT_READ | PROT_WRITE, flags | MAP_FIXED, file, 0) == MAP_FAILED) std::abort();
  }

  size_t n_;
  size_t bytes_;
  uint8_t* base_;
};

}  // namespace tests
