// The numbers of a vector's lanes. hn::Iota stores them one by one where the compiler does not see through its loop, which it
// does not for the eight floats of AVX2: a window of 16 floats took 25 ns with that, and takes 7.
#pragma once

#include <array>

#include "frame/simd.h"

namespace qvx {

namespace detail {
template <class T>
inline constexpr auto kLaneNumbers = [] {
  std::array<T, kVectorBytes / sizeof(T)> numbers = {};
  for (size_t k = 0; k < numbers.size(); ++k) numbers[k] = static_cast<T>(k);
  return numbers;
}();
}  // namespace detail

// 0, 1, 2, ...
template <class D> auto laneNumbersOf(D d) { return load(d, detail::kLaneNumbers<hn::TFromD<D>>.data()); }

}  // namespace qvx
