// Floats of twice the precision: sums of two, to nearest whatever the processor's mode.
#pragma once

#include "frame/quiet.h"

#if QVXS_AVX512
namespace qvx {

// As those of full registers, for vectors of any width.
namespace nearest {

template <class V> V product(V a, V b) {
  detail::partOf(_mm512_mul_round_ps(detail::whole(a.raw), detail::whole(b.raw), detail::kNearest), a.raw);
  return a;
}
template <class V> V sum(V a, V b) {
  detail::partOf(_mm512_add_round_ps(detail::whole(a.raw), detail::whole(b.raw), detail::kNearest), a.raw);
  return a;
}
template <class V> V difference(V a, V b) {
  detail::partOf(_mm512_sub_round_ps(detail::whole(a.raw), detail::whole(b.raw), detail::kNearest), a.raw);
  return a;
}
template <class V> V mulSub(V a, V b, V c) {  // a * b - c
  detail::partOf(_mm512_fmsub_round_ps(detail::whole(a.raw), detail::whole(b.raw), detail::whole(c.raw), detail::kNearest),
                 a.raw);
  return a;
}
template <class V> V negMulAdd(V a, V b, V c) {  // c - a * b
  detail::partOf(_mm512_fnmadd_round_ps(detail::whole(a.raw), detail::whole(b.raw), detail::whole(c.raw), detail::kNearest),
                 a.raw);
  return a;
}
template <class V> V nearReciprocalRoot(V v) {
  detail::partOf(_mm512_rsqrt14_ps(detail::whole(v.raw)), v.raw);
  return v;
}

}  // namespace nearest

template <class V> struct Twofold {
  V near;
  V rest;
};

// Exact, but for a product below 2^-102.
template <class V> Twofold<V> exactProduct(V a, V b) {
  const V near = nearest::product(a, b);
  return {near, nearest::mulSub(a, b, near)};
}

// whole - |v|^2 where that is small beside the whole: off by 2^-23 of itself and 2^-47 of the whole.
template <class V> V squareLacking(Twofold<V> whole, Pair<Twofold<V>> v) {
  using namespace nearest;
  const auto [a, b] = v;
  const auto square = exactProduct(a.near, a.near);
  const V left = difference(whole.near, square.near);
  const V lost = difference(difference(whole.near, left), square.near);  // by that rounding
  const V rests = mulAddNearest(b.near, b.rest, product(a.near, a.rest));
  const V small = negMulAdd(rests, same<V>(2), sum(difference(lost, square.rest), whole.rest));
  return sum(negMulAdd(b.near, b.near, left), small);
}

}  // namespace qvx
#endif
