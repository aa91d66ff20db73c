// Sums of the products of two vectors.
#pragma once

#include "stats/moments.h"

namespace qvx {

struct Products {
  template <class V> static V first(V a, V b) { return a * b; }
  template <class V> static V onto(V sum, V a, V b) { return hn::MulAdd(a, b, sum); }
};

// Of two complex vectors: the products of like parts, which make the real part, and those of unlike parts; one shuffle in all.
template <class Lane> struct ComplexProducts : Reduction {
  using Like = FloatSum<Lane, Products, 2>;
  using Inner = Lane;
  // Half as many accumulators: half the slice keeps a 32-bit lane at 512 elements.
  static constexpr size_t kSlice = sizeof(Lane) == 4 ? Like::kSlice / 2 : Like::kSlice;

  template <class U, class V> auto start(U v, V w) const {
    const auto a = widened<Lane>(v);
    const auto b = widened<Lane>(w);
    using A = std::remove_const_t<decltype(a)>;
    return Pair<A>{a * b, a * swapped(b)};
  }
  template <class A, class U, class V> Pair<A> add(Pair<A> sum, U v, V w) const {
    const A a = widened<Lane>(v);
    const A b = widened<Lane>(w);
    return {hn::MulAdd(a, b, sum.lo), hn::MulAdd(a, swapped(b), sum.hi)};
  }
  template <class A> ComplexTotal<double> total(Pair<A> sum) const {
    const ComplexTotal<double> like = Like().total(sum.lo);
    const ComplexTotal<double> unlike = Like().total(sum.hi);
    return {like.re - like.im, unlike.re + unlike.im};
  }
};

}  // namespace qvx
