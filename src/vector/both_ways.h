// Roots and quotients of floats in two ways at once: of two vectors one goes through the divider, which takes up to 18 cycles,
// and the other meanwhile through multiplications. Both are rounded correctly, in the caller's mode: 256 roots take 27 ns, by the
// divider alone 55, by multiplications alone 33.
//
// The multiplications. An estimate with an error of 2^-14 is improved once to the result r, by the remainder, x - r * r or b - a
// * r, times the estimate: r is then off by 2^-27 and rounded to nearest. Its own remainder is a float, and so exact; one fused
// addition of it, times a factor of full precision, gives the result.
//   - Directed modes: a result that comes nearer than 2^-40 to a float has that float for r; what is left over tells its side, or
//     is 0. Others are not near enough for the last addition, which is off by 2^-46, to matter.
//   - To nearest: what counts is how near a result comes to the middle m of two floats. Of roots, all mantissas were tried with
//     all r and all factors that an estimate of that error can lead to: right but for two mantissas, the neighbours of 1, whose
//     vectors take the divider. For a quotient, b - a * m is a multiple of the last place of a * m, which is more than the
//     factor, 1 / a rounded to nearest, can be off by, unless all bits of a's mantissa are set: such vectors take the divider
//     too. The tests try all b and a for which it is just one of them.
#pragma once

#include "frame/map.h"
#include "frame/processor.h"
#include "frame/simd.h"
#include "frame/team.h"

namespace qvx {

// The ways to take a root or a quotient, and which operands they serve.
struct Divider {
  template <class V> static constexpr bool kServes = false;  // needs no test
};

struct Steps {
  template <class V> static constexpr bool kServes = kHasMasks && sizeof(V) == 64 && std::is_same_v<LaneOf<V>, float>;

#if QVXS_AVX512
  using V = nearest::V;
  using Bits = Vec<Lanes<uint32_t, 16>>;

  // Whether no step underflows or overflows, and x is none of the numbers for which a factor may be off.
  static bool takes(V x) {
    const Lanes<int32_t, 16> d;
    const auto aroundPower = hn::Abs(as<int32_t>(hn::ShiftLeft<9>(as<uint32_t>(x))));  // 512: one place from a power of two
    return hn::AllTrue(TagOf<Bits>(),
                       hn::And(areWithin<-71, 127>(x), hn::RebindMask(TagOf<Bits>(), aroundPower != hn::Set(d, 512))));
  }
  static bool takes(V b, V a) {
    const auto isOrdinary = (as<uint32_t>(a) | same<Bits>(0xFF800000)) != same<Bits>(0xFFFFFFFF);
    const auto within = hn::And(areWithin<-60, 60>(hn::Abs(a)), areWithin<-60, 60>(hn::Abs(b)));
    return hn::AllTrue(TagOf<Bits>(), hn::And(isOrdinary, within));
  }

  static V root(V x) {
    const V half = same<V>(0.5F);
    const V estimate = nearest::nearReciprocalRoot(x);
    const V near = nearest::product(x, estimate);
    const V factor = nearest::product(half, estimate);
    const V nearer = nearest::mulAdd(nearest::negMulAdd(near, near, x), factor, near);
    const V better = nearest::mulAdd(factor, nearest::negMulAdd(near, factor, half), factor);
    return hn::MulAdd(nearest::negMulAdd(nearer, nearer, x), better, nearer);
  }
  static V quotient(V b, V a) {
    const V estimate = nearest::nearReciprocal(a);
    const V near = nearest::product(b, estimate);
    const V error = nearest::negMulAdd(a, estimate, same<V>(1));
    const V factor = nearest::mulAdd(estimate, nearest::mulAdd(error, error, error), estimate);
    const V nearer = nearest::mulAdd(nearest::negMulAdd(a, near, b), factor, near);
    return hn::MulAdd(nearest::negMulAdd(a, nearer, b), factor, nearer);
  }

 private:
  // From 2^least to below 2^most.
  template <int kLeast, int kMost> static hn::Mask<TagOf<Bits>> areWithin(V v) {
    const auto above = as<uint32_t>(v) - same<Bits>(uint32_t{127 + kLeast} << 23);
    return above < same<Bits>(uint32_t{kMost - kLeast} << 23);
  }
#endif
};

// The first of two vectors by the divider, the second by multiplications if they serve it. An operation takes the way as its last
// argument.
template <class Op> struct BothWays : Op {
  template <class... V> auto operator()(Flag& flag, Pair<V>... v) const {
    return pair(Op::operator()(flag, v.lo..., Divider()), Op::operator()(flag, v.hi..., Steps()));
  }
  template <class... V> auto operator()(Pair<V>... v) const {
    return pair(Op::operator()(v.lo..., Divider()), Op::operator()(v.hi..., Steps()));
  }

 private:
  template <class V> static Pair<V> pair(V lo, V hi) { return {lo, hi}; }
};

// dst = Op(sources...) over len elements, as map().
template <class Op, TeamRule kRule, class T, class... Src> QvxStatus mapBothWays(T* dst, int len, Src... src) {
  if constexpr (!kHasMasks) {
    return map<Op>(dst, len, InTeam<kRule>{}, src...);
  } else {
    const QvxStatus status = check(len, pointerOf(src)..., dst);
    if (status != qvxStatOk) return status;
    return InTeam<kRule, InOwnLanes>{}.run(BothWays<Op>(), InTwos{destination(dst)}, elements(len), InTwos{source(src)}...);
  }
}

// The same, but by the divider alone where that is faster: quotients, 160 ns for 4096 and not 320, and magnitudes of interleaved
// parts, 292 ns and not 352. Other roots take 1.1 to 1.3 times as long by a fast divider as both ways.
template <class Op, TeamRule kRule, class T, class... Src> QvxStatus mapFastWay(T* dst, int len, Src... src) {
  if constexpr (kHasMasks) {
    if (!kDividesFast) return mapBothWays<Op, kRule>(dst, len, src...);
  }
  return map<Op>(dst, len, InTeam<kRule>{}, src...);
}

}  // namespace qvx
