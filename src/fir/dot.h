// One output: the sum of products of a window and the reversed taps.
#pragma once

#include "fir/state.h"

namespace qvx::fir {

template <class C> C dot(const C* x, const C* p, int n) {
  C sum;
  if constexpr (std::is_same_v<C, Qvx32f>) qvxsDotProd_32f(x, p, n, &sum);
  else if constexpr (std::is_same_v<C, Qvx64f>) qvxsDotProd_64f(x, p, n, &sum);
  else if constexpr (std::is_same_v<C, Qvx32fc>) qvxsDotProd_32fc(x, p, n, &sum);
  else qvxsDotProd_64fc(x, p, n, &sum);
  return sum;
}
// Of integers exactly: the lower 32 bits are the sum that wraps.
inline Qvx16s scaledDot(const Qvx16s* x, const Qvx16s* p, int n, int64_t places) {
  Qvx64s sum;
  qvxsDotProd_16s64s(x, p, n, &sum);
  return scaledSum(sum, places);
}
inline Qvx16sc scaledDot(const Qvx16sc* x, const Qvx16sc* p, int n, int64_t places) {
  Qvx64sc sum;
  qvxsDotProd_16sc64sc(x, p, n, &sum);
  return {scaledSum(sum.re, places), scaledSum(sum.im, places)};
}

}  // namespace qvx::fir
