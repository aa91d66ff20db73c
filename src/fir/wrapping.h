// Integer filters without a record: their sums and scale factors.
#pragma once

#include "fir/state.h"
#include "stats/moments.h"

namespace qvx::fir {

// Products of 32-bit taps and 16-bit samples in sums of 32 bits that wrap.
struct Wrapping : Reduction {
  using Inner = int32_t;
  template <class V, class W> W start(V x, W p) const { return widened<int32_t>(x) * p; }
  template <class V, class W> W add(W sum, V x, W p) const { return sum + start(x, p); }
  template <class W> int64_t total(W sum) const { return sumOfLanes(sum); }
};
struct ComplexWrapping : Reduction {
  using Inner = int32_t;
  template <class V, class W> Pair<W> start(V x, W p) const {
    const W wide = widened<int32_t>(x);
    return {wide * p, wide * swapped(p)};
  }
  template <class V, class W> Pair<W> add(Pair<W> sum, V x, W p) const { return join(sum, start(x, p)); }
  template <class W> ComplexTotal<int64_t> total(Pair<W> sum) const {
    const auto like = folded<2>(sum.lo);
    const auto unlike = folded<2>(sum.hi);
    return {int64_t{hn::ExtractLane(like, 0)} - hn::ExtractLane(like, 1),
            int64_t{hn::ExtractLane(unlike, 0)} + hn::ExtractLane(unlike, 1)};
  }
};

// Scale factors count up to 31 places only here.
inline int64_t placesOf(int tapsFactor, int scaleFactor) {
  return std::clamp<int64_t>(int64_t{tapsFactor} - scaleFactor, -31, 31);
}

template <class H> Qvx16s wrappingDot(const Qvx16s* window, const H* p, size_t n, int64_t places) {
  return scaledSum(reduce(Wrapping(), n, source(window), source(p)), places);
}
template <class H> Qvx16sc wrappingDot(const Qvx16sc* window, const H* p, size_t n, int64_t places) {
  const auto sum = reduce(ComplexWrapping(), 2 * n, source(window), source(p));
  return {scaledSum(sum.re, places), scaledSum(sum.im, places)};
}

// 16-bit taps are fractions of 2^15.
inline constexpr int kFraction = -15;

}  // namespace qvx::fir
