// Test data: random, with the values that break things mixed in.
#pragma once

#include <gtest/gtest.h>
#include <qvx/qvxdefs.h>

#include <bit>
#include <limits>
#include <random>
#include <type_traits>
#include <vector>

namespace tests {

using Random = std::mt19937_64;

template <class T> inline constexpr bool isComplex = std::is_class_v<T>;
template <class T> struct PartOf { using Type = T; };
template <class T>
requires isComplex<T>
struct PartOf<T> {
  using Type = decltype(T::re);
};
template <class T> using Part = typename PartOf<T>::Type;

// Three bytes as an element, so that a driver can count and place it.
template <class T> struct Packed24 {
  uint8_t byte[3];
  static Packed24 of(T v) { return {{static_cast<uint8_t>(v), static_cast<uint8_t>(v >> 8), static_cast<uint8_t>(v >> 16)}}; }
  T number() const {
    const uint32_t bits = byte[0] | byte[1] << 8 | static_cast<uint32_t>(byte[2]) << 16;
    return std::is_signed_v<T> ? static_cast<T>(bits << 8) >> 8 : static_cast<T>(bits);
  }
};
template <class T> inline constexpr bool isComplex<Packed24<T>> = false;
template <class T> inline constexpr bool isPacked24 = false;
template <class T> inline constexpr bool isPacked24<Packed24<T>> = true;

// Integers: the extremes and their neighbours, powers of two and their neighbours, everything else.
template <class T> T value(Random& random) {
  if constexpr (isPacked24<T>) {
    return T::of(value<decltype(T().number())>(random));
  } else if constexpr (isComplex<T>) {
    using Part = decltype(T::re);
    const Part re = value<Part>(random);
    return {re, value<Part>(random)};
  } else if constexpr (std::is_integral_v<T>) {
    using U = std::make_unsigned_t<T>;
    const uint64_t bits = random();
    const int shift = static_cast<int>(bits >> 8 & 63) % static_cast<int>(8 * sizeof(T));
    const int near = static_cast<int>(bits >> 16 & 3) - 1;
    switch (bits & 7) {
      case 0:
        return static_cast<T>(static_cast<U>(std::numeric_limits<T>::min()) + static_cast<U>(near < 0 ? 0 : near));
      case 1:
        return static_cast<T>(static_cast<U>(std::numeric_limits<T>::max()) - static_cast<U>(near < 0 ? 0 : near));
      case 2:
        return static_cast<T>((U{1} << shift) + static_cast<U>(near));
      case 3:
        return static_cast<T>(static_cast<U>(0) - ((U{1} << shift) + static_cast<U>(near)));
      case 4:
        return static_cast<T>(near);
      default:
        return static_cast<T>(static_cast<U>(random()) >> ((bits & 7) == 5 ? shift : 0));
    }
  } else {
    // Moderate numbers with fractions; some are whole, halves, zero or very small.
    const uint64_t bits = random();
    const T x = static_cast<T>(
        std::ldexp(static_cast<double>(static_cast<int64_t>(random())), -63 + static_cast<int>(bits >> 8 & 31) - 8));
    switch (bits & 7) {
      case 0:
        return std::copysign(T(0), x);
      case 1:
        return std::trunc(x);
      case 2:
        return std::trunc(x) + T(0.5);
      case 3:
        return x * T(1e-30);
      default:
        return x;
    }
  }
}

template <class T> std::vector<T> values(size_t n, Random& random) {
  std::vector<T> v(n);
  for (T& x : v) x = value<T>(random);
  return v;
}

// The numbers from one to another, after some more.
inline std::vector<int> range(int from, int to, std::vector<int> more = {}) {
  for (int s = from; s <= to; ++s) more.push_back(s);
  return more;
}

// The same data in every run; the seed is in the trace of a failure.
inline uint64_t seed() { return 20240229; }

}  // namespace tests
