// Polynomials with coefficients that are known when the library is compiled; tools/minimax.py made those of this folder.
#pragma once

#include "frame/simd.h"

namespace qvx {

// The polynomial with these coefficients, lowest power first, by Horner's rule; `step` says how far apart they are.
template <size_t kFrom, size_t kStep, class V, size_t kCount> V horner(V x, const LaneOf<V> (&c)[kCount]) {
  if constexpr (kFrom + kStep >= kCount) return same<V>(c[kFrom]);
  else return hn::MulAdd(horner<kFrom + kStep, kStep>(x, c), x, same<V>(c[kFrom]));
}

// Even and odd powers apart: one more product, and half the latency.
template <class V, size_t kCount> V polynomial(V x, const LaneOf<V> (&c)[kCount]) {
  if constexpr (kCount <= 3) return horner<0, 1>(x, c);
  const V square = x * x;
  return hn::MulAdd(horner<1, 2>(square, c), x, horner<0, 2>(square, c));
}

}  // namespace qvx
