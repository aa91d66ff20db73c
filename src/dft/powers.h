// The points of a prime number but the first in the order of the powers of a generator g, in which a transform is a circular
// convolution:
//
//   X[0] = sum of all x     X[g^-q] = x[0] + sum over m of x[g^m] w^(g^(m - q)), w = exp(-2 pi i / n)
#pragma once

#include "dft/direct.h"
#include "dft/precise.h"
#include "transform/plan.h"

namespace qvx::dft {

// Whether a convolution of n - 1 points has good factors.
inline bool isPrimeByPowers(uint32_t n) {
  uint32_t rest = n - 1;
  for (const uint8_t p : kPreciseFactors) {
    while (rest % p == 0) rest /= p;
  }
  return rest == 1 && isPrime(n);
}

inline uint32_t generatorOf(uint32_t n) {
  const auto power = [n](uint64_t base, uint32_t exponent) {
    uint64_t result = 1;
    for (; exponent > 0; exponent /= 2, base = base * base % n) {
      if (exponent % 2 != 0) result = result * base % n;
    }
    return result;
  };
  uint32_t g = 2;
  const auto generates = [&] {
    for (const uint8_t p : kPreciseFactors) {
      if ((n - 1) % p == 0 && power(g, (n - 1) / p) == 1) return false;
    }
    return true;
  };
  while (!generates()) ++g;
  return g;
}

// powers: g^m. places: of the results from the second on, result k = g^-q at q.
inline void writePowers(uint32_t n, uint32_t* powers, uint32_t* places) {
  const uint64_t g = generatorOf(n);
  uint64_t power = 1;
  for (uint32_t m = 0; m + 1 < n; ++m, power = power * g % n) {
    powers[m] = static_cast<uint32_t>(power);
    places[power - 1] = m == 0 ? 0 : n - 1 - m;
  }
}

// The spectrum of numbers in a wider type, put(k, re, im): fill(re, im) writes those that are not 0. Real parts stand where the
// spectrum will, imaginary ones in the work memory.
template <class T, class Fill, class Put> void writeSpectrum(size_t length, T* spectrum, uint8_t* work, Fill fill, Put put) {
  using Wide = Wider<T>;
  auto* const re = reinterpret_cast<Wide*>(spectrum);
  auto* const im = Carver(work, Carver::kLine).template take<Wide>(static_cast<int64_t>(length));
  std::fill_n(re, length, Wide(0));
  std::fill_n(im, length, Wide(0));
  fill(re, im);
  const PreciseTransform transform(length);
  transform.run(re, im);
  transform.forEachResult<T>(re, im, put);
}

}  // namespace qvx::dft
