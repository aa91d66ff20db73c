// Errors in units of the last place, and the inputs over which they are measured.
#pragma once

#include <qvx/qvxs.h>

#include <bit>
#include <cmath>
#include <cstdint>
#include <limits>
#include <random>
#include <string>
#include <vector>

namespace tests {

// What a bound on an error gains on the variant without fused multiplications, where every product is rounded before it is added.
inline long double unfused() { return std::string(qvxsGetLibVersion()->cpuTag, 2) == "u8" ? 1.1L : 1; }

// A unit of T's last place at |v|: that of the subnormal numbers below the normal ones.
template <class T> long double unitAt(long double v) {
  constexpr int kDigits = std::numeric_limits<T>::digits;
  constexpr int kLeast = std::numeric_limits<T>::min_exponent - kDigits;
  const int exponent = v == 0 ? kLeast : std::ilogb(v) + 1 - kDigits;
  return std::ldexp(1.0L, std::max(exponent, kLeast));
}

template <class T> struct Worst {
  double ulp = 0;
  T at = 0;
};

// The error of y where the exact result is `exact`. Infinity is right for what rounds to it; infinite where only one is a number.
template <class T> double ulpError(T y, long double exact) {
  if (std::isnan(exact) || std::isnan(y)) return std::isnan(exact) && std::isnan(y) ? 0 : INFINITY;
  const long double most = std::numeric_limits<T>::max();
  if (std::abs(exact) >= most + unitAt<T>(most) / 2) return std::isinf(y) && (y > 0) == (exact > 0) ? 0 : INFINITY;
  if (std::isinf(y)) return INFINITY;
  return static_cast<double>(std::abs(static_cast<long double>(y) - exact) / unitAt<T>(exact));
}

// The same for floats with a double beside them, in double: 2^26 of them take a second.
inline double ulpError(float y, double exact) {
  constexpr double kOverflow = 0x1.FFFFFFp127;  // rounds to infinity
  if (!(std::abs(exact) < kOverflow) || !(std::abs(y) <= std::numeric_limits<float>::max())) {
    return ulpError(y, static_cast<long double>(exact));
  }
  const auto exponent = static_cast<int64_t>(std::bit_cast<uint64_t>(exact) >> 52 & 0x7FF) - 23;
  constexpr int64_t kLeast = 1023 - 149;
  return std::abs(y - exact) * std::bit_cast<double>((2046 - std::max(exponent, kLeast)) << 52);
}

// function(src, dst, len) against oracle(element).
template <class A, class D, class Function, class Oracle>
Worst<A> worstOf(Function function, Oracle oracle, const std::vector<A>& x) {
  std::vector<D> y(x.size());
  function(x.data(), y.data(), static_cast<int>(x.size()));
  Worst<A> worst;
  for (size_t i = 0; i < x.size(); ++i) {
    const double error = ulpError(y[i], oracle(x[i]));
    if (!(error <= worst.ulp)) worst = {error, x[i]};
  }
  return worst;
}

// Every kStep-th float, all exponents and both signs.
inline constexpr uint64_t kAllFloats = uint64_t{1} << 32;
template <class Function, class Oracle> Worst<float> worstOverFloats(Function function, Oracle oracle, uint64_t step) {
  constexpr size_t kBlock = 1 << 14;
  Worst<float> worst;
  std::vector<float> x;
  uint64_t bits = 0;
  while (bits < kAllFloats) {
    x.clear();
    for (; x.size() < kBlock && bits < kAllFloats; bits += step) x.push_back(std::bit_cast<float>(static_cast<uint32_t>(bits)));
    const Worst<float> one = worstOf<float, float>(function, oracle, x);
    if (!(one.ulp <= worst.ulp)) worst = one;
  }
  return worst;
}

// Doubles of all exponents and both signs, and `count` more within low and high, where it is hard.
inline std::vector<double> hardDoubles(size_t count, double low, double high) {
  std::mt19937_64 random(20240229);
  std::vector<double> x;
  for (size_t i = 0; i < count; ++i) {
    x.push_back(std::bit_cast<double>(random()));
    x.push_back(low + (high - low) * 0x1p-64 * static_cast<double>(random()));
  }
  for (int exponent = -1074; exponent < 1024; ++exponent) {
    for (const double near : {-0x1p-52, 0.0, 0x1p-52}) x.push_back(std::ldexp(1 + near, exponent));
  }
  for (const double special :
       {0.0, -0.0, 1.0, -1.0, static_cast<double>(INFINITY), -static_cast<double>(INFINITY), static_cast<double>(NAN)}) {
    x.push_back(special);
  }
  return x;
}

}  // namespace tests
