#include "frame/vectors.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <new>
#include <random>

namespace bench {

namespace {

// More elements than a branch predictor learns; longer vectors repeat them, so that filling takes no longer than copying.
constexpr size_t kPeriod = 65536;

template <class T, class Next> void fillPeriodic(T* p, size_t count, Next next) {
  std::generate(p, p + std::min(count, kPeriod), next);
  for (size_t i = kPeriod; i < count; i += kPeriod) std::memcpy(p + i, p, std::min(kPeriod, count - i) * sizeof(T));
}

template <class T> void fillUniform(T* p, size_t count, uint64_t seed) {
  fillPeriodic(p, count, [random = std::mt19937_64(seed), range = std::uniform_real_distribution<T>(-1000, 1000)]() mutable {
    return range(random);
  });
}

}  // namespace

Slabs::Slabs() : memory_(static_cast<std::byte*>(std::aligned_alloc(4096, 5 * (kSlabBytes + 8192)))) {
  if (memory_ == nullptr) throw std::bad_alloc();
  for (size_t i = 0; i < slabs_.size(); ++i) slabs_[i] = memory_ + i * (kSlabBytes + 8192) + i * 17 * 64;
}

Slabs::~Slabs() { std::free(memory_); }

void fillBits(void* p, size_t bytes, uint64_t seed) {
  fillPeriodic(static_cast<uint8_t*>(p), bytes, [random = std::mt19937_64(seed), word = uint64_t{}, left = 0]() mutable {
    if (left == 0) {
      word = random();
      left = 8;
    }
    const auto byte = static_cast<uint8_t>(word);
    word >>= 8;
    --left;
    return byte;
  });
}

void fillFloats(float* p, size_t count, uint64_t seed) { fillUniform(p, count, seed); }
void fillFloats(double* p, size_t count, uint64_t seed) { fillUniform(p, count, seed); }

}  // namespace bench
