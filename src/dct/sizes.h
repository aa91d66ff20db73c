// The sizes reported to callers: fixed values of the interface. The tables need no more.
#pragma once

#include <bit>
#include <limits>

#include "fft/sizes.h"

namespace qvx::dct {

using fft::kWorkSlack;
using fft::Sizes;

inline constexpr Sizes kSmallSizes = {152, 0, 0};
inline constexpr int kLongestDirect = 100;

constexpr bool isPowerOf2(int n) { return std::has_single_bit(static_cast<unsigned>(n)); }
// As the transform's own functions report them.
constexpr Sizes reported(Sizes sizes) { return {sizes.spec, sizes.init, sizes.work > 0 ? sizes.work + kWorkSlack : 0}; }

// n from 1 on. A length beyond the family's transforms has an endless record.
template <class T> constexpr Sizes sizesOf(int n) {
  constexpr int64_t kElement = sizeof(T);
  constexpr Sizes kTooLarge = {std::numeric_limits<int64_t>::max(), 0, 0};
  if (n <= 8 && isPowerOf2(n)) return kSmallSizes;
  Sizes sizes{up<32>(kElement * n), 0, kElement * n};
  if (isPowerOf2(n) && n > 32) {
    const int order = std::bit_width(static_cast<unsigned>(n));  // of twice the length
    if (order > fft::Orders<T>::kReal) return kTooLarge;
    sizes = reported(fft::realSizes<T>(order));
    sizes.spec += 2 * kElement * n;
    sizes.work += 2 * kElement * n;
  } else if (!isPowerOf2(n) && n <= kLongestDirect) {
    sizes.spec = up<32>(4 * kElement * n);
  } else if (!isPowerOf2(n)) {
    const int order = std::bit_width(2 * static_cast<uint64_t>(n) - 2);  // of the least power of two from 2n - 1 on
    if (order > fft::Orders<T>::kComplex) return kTooLarge;
    const int64_t length = int64_t{1} << order;
    sizes = reported(fft::complexSizes<T>(order));
    sizes.init = std::max(sizes.init, sizes.work);
    sizes.spec += 2 * kElement * (3 * int64_t{n} + length);
    sizes.work += 2 * kElement * length;
  }
  return {sizes.spec + 160, sizes.init > 0 ? sizes.init + 32 : 0, sizes.work > 0 ? sizes.work + 32 : 0};
}

// For 16-bit numbers, which go through floats except where there is a single one.
constexpr Sizes sizesOf16(int n) {
  if (n == 1) return {64, 0, 0};
  const Sizes floats = sizesOf<float>(n);
  if (floats.spec > std::numeric_limits<int>::max()) return floats;
  return {floats.spec + 64, floats.init, floats.work + int64_t{4} * n + 32};
}

constexpr bool fitsInt(Sizes sizes) { return std::max({sizes.spec, sizes.init, sizes.work}) <= std::numeric_limits<int>::max(); }

}  // namespace qvx::dct
