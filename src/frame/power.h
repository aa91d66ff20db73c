// Powers of two as floats, assembled from bits: exact in any rounding mode.
#pragma once

#include <bit>
#include <cstdint>

namespace qvx {

// 2^exponent; 0 below the smallest subnormal number, infinity above the largest finite one.
template <class T> constexpr T powerOfTwo(int64_t exponent) {
  constexpr bool kIsFloat = sizeof(T) == 4;
  using Bits = std::conditional_t<kIsFloat, uint32_t, uint64_t>;
  constexpr int kFraction = kIsFloat ? 23 : 52;
  constexpr int kBias = kIsFloat ? 127 : 1023;
  if (exponent > kBias) return std::bit_cast<T>(Bits{2 * kBias + 1} << kFraction);
  if (exponent > -kBias) return std::bit_cast<T>(static_cast<Bits>(exponent + kBias) << kFraction);
  if (exponent > -kBias - kFraction) return std::bit_cast<T>(Bits{1} << (exponent + kBias + kFraction - 1));
  return 0;
}

}  // namespace qvx
