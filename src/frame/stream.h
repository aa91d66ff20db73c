// Stores that bypass the caches, for vectors larger than those.
#pragma once

#include <unistd.h>

#include "frame/simd.h"

namespace qvx {

// Vectors larger than the last-level cache are streamed. Some processors report the sum of several caches (384 MiB where a core
// reaches 32), so the reported size counts up to 32 MiB, which is also assumed where nothing is reported. At 64 MiB a streamed
// fill takes 0.46 of the time of an ordinary one, a streamed copy 0.79.
inline bool isStreamed(size_t bytes) {
  constexpr size_t kLeast = size_t{1} << 20;  // below, nothing is asked: no last-level cache is smaller
  constexpr long kMost = 32L << 20;
  if (bytes < kLeast) return false;
  const long reported = sysconf(_SC_LEVEL3_CACHE_SIZE);
  return bytes > static_cast<size_t>(reported > 0 && reported < kMost ? reported : kMost);
}

// Prefetches kBytes from p on. p may lie past a vector's end: a prefetch never faults.
template <size_t kBytes, class T> void prefetchLines(const T* p) {
  for (size_t at = 0; at < kBytes; at += 64) __builtin_prefetch(reinterpret_cast<const char*>(p) + at);
}

// dst = get(byte) for whole vectors: an overlapping one at the start aligns dst, another covers its end. get must not depend on
// what is stored, and there are at least two vectors of bytes.
template <class Get> void stream(uint8_t* dst, size_t bytes, const Get& get) {
  constexpr size_t N = kVectorBytes;
  const Lanes<uint8_t, N> d;
  store(get(0), d, dst);
  size_t i = N - reinterpret_cast<uintptr_t>(dst) % N;
  for (; i + 4 * N <= bytes; i += 4 * N) {
    for (size_t k = 0; k < 4; ++k) hn::Stream(get(i + k * N), d, dst + i + k * N);
  }
  for (; i + N <= bytes; i += N) hn::Stream(get(i), d, dst + i);
  store(get(bytes - N), d, dst + bytes - N);
  storeFence();
}

}  // namespace qvx
