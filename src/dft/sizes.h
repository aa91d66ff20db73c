// Lengths, and the sizes of working memory reported to callers: fixed values of the interface. No transform needs more, except of
// odd numbers of reals with a prime factor above 13.
//
// They follow from steps of mixed radix: fours, one two where the power of two is odd, odd primes up to a limit, the last factor
// last. Where a length has no such steps, it is that of the definition, or of a convolution.
#pragma once

#include <optional>

#include "fft/sizes.h"
#include "transform/layout.h"

namespace qvx::dft {

inline constexpr uint32_t kMostSmall = 16;
template <class T> inline constexpr uint32_t kEndOfFactors = sizeof(T) == 4 ? 0x8000000 : 0x4000000;
template <class T> inline constexpr uint32_t kEndOfConvolution = kEndOfFactors<T> / 2;
// Up to here a length without steps is transformed as defined; primes beyond are no factors.
template <class T> inline constexpr uint32_t kLongestDirect = sizeof(T) == 4 ? 50 : 90;
inline constexpr uint32_t kLargestFactorBesideFour = 150;

struct Steps {
  static constexpr size_t kMost = 20;
  uint32_t factor[kMost];
  size_t count = 0;
};

template <class T> std::optional<Steps> stepsOf(uint32_t length) {
  Steps steps;
  uint32_t n = length;
  const auto take = [&](uint32_t factor) {
    steps.factor[steps.count++] = factor;
    n /= factor;
  };
  while (n % 4 == 0) take(4);
  if (n % 2 == 0) {
    take(2);
    std::swap(steps.factor[0], steps.factor[steps.count - 1]);
  }
  for (uint32_t p = 3; n >= 9 && n >= p * p;) {
    if (n % p != 0) {
      p += 2;
      if (p > kLongestDirect<T>) return std::nullopt;
      continue;
    }
    take(p);
    if (p == 3 && steps.factor[0] == 2 && steps.factor[1] != 4) {
      steps.factor[0] = 6;
      --steps.count;
    }
  }
  if (steps.count == 0 || n > (length % 4 == 0 ? kLargestFactorBesideFour : kLongestDirect<T>)) return std::nullopt;
  take(n);
  return steps;
}

// In natural order an even factor goes last, and joins a four that follows.
inline void finish(Steps& steps) {
  uint32_t* f = steps.factor;
  if (f[1] == 4 && f[0] != 6) {
    f[1] = 4 * f[0];
    std::copy(f + 1, f + steps.count, f);
    --steps.count;
  }
  if (f[0] % 2 == 0) std::swap(f[0], f[steps.count - 1]);
}

// Points of working memory beside those of the transform: a factor that has no kernel of its own takes its own number, four times
// that where what follows is a multiple of 4.
inline uint32_t pointsOf(const Steps& steps) {
  uint32_t most = 0;
  uint32_t rest = 1;
  for (size_t i = steps.count; i-- > 0; rest *= steps.factor[i]) {
    const uint32_t factor = steps.factor[i];
    if (factor >= 14 && factor % 2 != 0) most = std::max(most, rest % 4 == 0 ? 4 * factor : factor);
  }
  return most;
}

template <class T> inline constexpr int64_t kPoint = 2 * sizeof(T);

// The length of the convolution that serves n points.
inline uint32_t convolutionLength(uint32_t n) {
  constexpr uint16_t kFriendly[] = {128,  144,  160,  192,  200,  256,  288,  320,  384,  400,  512,  576,  640,  768,  800, 1024,
                                    1152, 1280, 1536, 1600, 2048, 2304, 2560, 3072, 3200, 4096, 4608, 5120, 6144, 6400, 8192};
  const uint32_t least = 2 * n - 1;
  for (const uint16_t length : kFriendly) {
    if (length >= least) return length;
  }
  uint32_t length = 8192;
  while (length < least) length *= 2;
  return length;
}

// None where the length is beyond the limits. Powers of two are those of the fast transform.
template <class T> std::optional<int64_t> complexWork(uint32_t n) {
  if (n <= kMostSmall) return 0;
  if ((n & (n - 1)) == 0) {
    int order = 0;
    while (n >> order > 1) ++order;
    const int64_t work = fft::complexSizes<T>(order).work;
    return work > 0 ? work + fft::kWorkSlack : 0;
  }
  if (n >= kEndOfFactors<T>) return std::nullopt;
  if (auto steps = stepsOf<T>(n)) {
    finish(*steps);
    return (n + pointsOf(*steps)) * kPoint<T> + 64;
  }
  if (n <= kLongestDirect<T>) return n * kPoint<T> + 32;
  if (n >= kEndOfConvolution<T>) return std::nullopt;
  const uint32_t length = convolutionLength(n);
  return *complexWork<T>(length) + length * kPoint<T> + 32;
}

// The same for results out of order.
template <class T> std::optional<int64_t> complexWorkOutOfOrder(uint32_t n) {
  if (n > kMostSmall && (n & (n - 1)) != 0 && n < kEndOfFactors<T>) {
    if (const auto steps = stepsOf<T>(n)) {
      const uint32_t points = pointsOf(*steps);
      return points == 0 ? 0 : points * kPoint<T> + 64;
    }
  }
  return complexWork<T>(n);
}

template <class T> std::optional<int64_t> realWork(uint32_t n) {
  if (n <= kMostSmall) return 0;
  if ((n & (n - 1)) == 0) {
    int order = 0;
    while (n >> order > 1) ++order;
    const int64_t work = fft::realSizes<T>(order).work;
    return work > 0 ? work + fft::kWorkSlack : 0;
  }
  if (n >= kEndOfFactors<T>) return std::nullopt;
  if (n % 2 == 0) return complexWork<T>(n / 2);
  if (auto steps = stepsOf<T>(n)) return (n + pointsOf(*steps)) * static_cast<int64_t>(sizeof(T)) + 64;
  if (n <= kLongestDirect<T>) return n * static_cast<int64_t>(sizeof(T)) + 32;
  if (n >= kEndOfConvolution<T>) return std::nullopt;
  return complexWork<T>(n);
}

}  // namespace qvx::dft
