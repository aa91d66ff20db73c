// The places of a vector's lanes. hn::Iota stores them one by one where the compiler does not see through its loop, which it does
// not for the eight floats of AVX2: a window of 16 floats took 25 ns with that, and takes 7.
#pragma once

#include <array>

#include "frame/simd.h"

namespace qvx {

namespace detail {
template <class T>
inline constexpr auto kPlaces = [] {
  std::array<T, kVectorBytes / sizeof(T)> places = {};
  for (size_t k = 0; k < places.size(); ++k) places[k] = static_cast<T>(k);
  return places;
}();
}  // namespace detail

// 0, 1, 2, ...
template <class D> auto placesOf(D d) { return load(d, detail::kPlaces<hn::TFromD<D>>.data()); }

}  // namespace qvx
