// Operands of divisions.
#pragma once

#include "vector/members.h"

namespace tests {

template <class T> bool isZero(T v) {
  if constexpr (isComplex<T>) return v.re == 0 && v.im == 0;
  else return v == 0;
}
template <class T> T harmless() {
  if constexpr (isComplex<T>) return T{3, -4};
  else return T(3);
}

inline constexpr auto kWarnsOfZero = [](auto divisor, auto...) { return isZero(divisor) ? qvxWarnDivByZero : qvxStatOk; };

// Divisors, of which none before the first zero is one, and dividends.
template <class T> std::tuple<std::vector<T>, std::vector<T>> operands(size_t n, size_t firstZero, unsigned seedMore = 0) {
  Random random(seed() + seedMore);
  std::vector<T> a = values<T>(n, random);
  for (size_t i = 0; i < n && i < firstZero; ++i) a[i] = isZero(a[i]) ? harmless<T>() : a[i];
  if (firstZero < n) a[firstZero] = T{};
  return {a, values<T>(n, random)};
}

}  // namespace tests
