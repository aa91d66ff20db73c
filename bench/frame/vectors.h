// The memory that all contenders of a benchmark share, and the random data in it.
#pragma once

#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <type_traits>

#include "qvx/qvxs.h"

namespace bench {

// Counts how often the vectors were filled: filters restart with new data.
inline int freshData = 0;

inline constexpr size_t kSlabBytes = (size_t{64} << 20) + 4096;

// Three sources, a destination and room for a copy of the destination, 64-byte aligned, at different offsets within a page.
class Slabs {
 public:
  Slabs();
  ~Slabs();
  Slabs(const Slabs&) = delete;
  Slabs& operator=(const Slabs&) = delete;

  std::byte* source(size_t i) const { return slabs_[i]; }
  std::byte* destination() const { return slabs_[3]; }
  std::byte* saved() const { return slabs_[4]; }

 private:
  std::byte* memory_;
  std::array<std::byte*, 5> slabs_;
};

// What a function of one signature is called on.
struct Vectors {
  const Slabs& slabs;
  int n;
  int misaligned = 0;  // elements after a 64-byte boundary
  int overlap = 0;     // if not 0, the first source lies that many elements after the destination in the same slab
};

template <class T> struct PartOf { using Type = T; };
template <class T>
requires requires(T v) { v.re; }
struct PartOf<T> {
  using Type = decltype(T::re);
};
template <class T> using Part = typename PartOf<T>::Type;

// Bytes of n elements. A vector of bytes may hold elements of three.
template <class T> size_t bytesOf(int n) {
  const size_t bytes = static_cast<size_t>(n) * (sizeof(T) == 1 ? 3 : sizeof(T));
  return bytes < kSlabBytes - 4096 ? bytes : kSlabBytes - 4096;
}

void fillBits(void* p, size_t bytes, uint64_t seed);
void fillFloats(float* p, size_t count, uint64_t seed);
void fillFloats(double* p, size_t count, uint64_t seed);

// Integers over their full range, floats within +-1000.
template <class T> void fill(void* p, int n, uint64_t seed) {
  using Lane = Part<T>;
  if constexpr (std::is_floating_point_v<Lane>) fillFloats(static_cast<Lane*>(p), bytesOf<T>(n) / sizeof(Lane), seed);
  else fillBits(p, bytesOf<T>(n), seed);
}

// Maps the output of fill() to a range.
template <class T> void fit(T* p, size_t count, double least, double most) {
  for (size_t i = 0; i < count; ++i) {
    if constexpr (std::is_floating_point_v<T>) {
      p[i] = static_cast<T>(least + (static_cast<double>(p[i]) + 1000) / 2000 * (most - least));
    } else {
      const auto range = static_cast<uint64_t>(most - least) + 1;
      p[i] = static_cast<T>(static_cast<int64_t>(least) + static_cast<int64_t>(static_cast<uint64_t>(p[i]) % range));
    }
  }
}

}  // namespace bench
