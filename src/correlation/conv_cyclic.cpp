// Cyclic convolution of fixed lengths. The second operand is rotated in registers, and each of its rotations multiplied by an
// element of the first one. Rotations loaded from a copy that is stored twice in a row took twice the time.
#include "frame/map.h"
#include "frame/unroll.h"

using namespace qvx;

namespace {

template <class V> struct Halves { V lo, hi; };

// Eight lanes in two vectors, kLanes places on; those from the end come first.
template <size_t kLanes, class V> Halves<V> rotated(Halves<V> b) {
  constexpr size_t kApart = kLanes % 4;
  if constexpr (kLanes >= 4) b = {b.hi, b.lo};
  if constexpr (kApart == 0) return b;
  else
    return {hn::CombineShiftRightBytes<(4 - kApart) * sizeof(LaneOf<V>)>(TagOf<V>(), b.lo, b.hi),
            hn::CombineShiftRightBytes<(4 - kApart) * sizeof(LaneOf<V>)>(TagOf<V>(), b.hi, b.lo)};
}

// y[n] = the sum over k of a[k] * b[(n - k) mod kSize], for 8 lanes. In two sums, so that fewer additions wait for each other.
template <size_t kSize> void cyclic(const Qvx32f* a, const Qvx32f* b, Qvx32f* y) {
  constexpr Lanes<float, 4> d;
  using V = Vec<Lanes<float, 4>>;
  const Halves<V> all{load(d, b), load(d, b + 4)};
  const V zero = hn::Zero(d);
  Halves<V> sums[2] = {{zero, zero}, {zero, zero}};
  unrolled<kSize>([&](auto k) {
    const V tap = hn::Set(d, a[k]);
    const Halves<V> v = rotated<k*(8 / kSize)>(all);
    Halves<V>& sum = sums[k % 2];
    sum = {hn::MulAdd(tap, v.lo, sum.lo), hn::MulAdd(tap, v.hi, sum.hi)};
  });
  store(sums[0].lo + sums[1].lo, d, y);
  store(sums[0].hi + sums[1].hi, d, y + 4);
}

// The same for integers, two taps at a time; sums wrap.
Halves<Vec<Lanes<int32_t, 4>>> cyclicSums(const Qvx16s* a, const Qvx16s* b) {
  constexpr Lanes<int16_t, 8> d;
  constexpr Lanes<int32_t, 4> wide;
  const auto taps = hn::BitCast(wide, load(d, a));
  const auto all = load(d, b);
  const auto rotated = [&](auto places) {
    if constexpr (places == 0) return all;
    else return hn::CombineShiftRightBytes<(8 - places) * sizeof(Qvx16s)>(d, all, all);
  };
  Halves<Vec<decltype(wide)>> sum{hn::Zero(wide), hn::Zero(wide)};
  unrolled<4>([&](auto pair) {
    const auto tap = as<int16_t>(hn::Broadcast<pair>(taps));
    const auto v = rotated(std::integral_constant<size_t, 2 * pair>());
    const auto next = rotated(std::integral_constant<size_t, 2 * pair + 1>());
    sum.lo = sum.lo + pairProducts(tap, hn::InterleaveLower(d, v, next));
    sum.hi = sum.hi + pairProducts(tap, hn::InterleaveUpper(d, v, next));
  });
  return sum;
}

}  // namespace

QvxStatus qvxsConvCyclic8x8_32f(const Qvx32f* a, const Qvx32f* b, Qvx32f* y) {
  if (isNull(a) || isNull(b) || isNull(y)) return qvxStatNullPtr;
  cyclic<8>(a, b, y);
  return qvxStatOk;
}

QvxStatus qvxsConvCyclic4x4_32f32fc(const Qvx32f* a, const Qvx32fc* b, Qvx32fc* y) {
  if (isNull(a) || isNull(b) || isNull(y)) return qvxStatNullPtr;
  cyclic<4>(a, parts(b), parts(y));
  return qvxStatOk;
}

QvxStatus qvxsConvCyclic8x8_16s_Sfs(const Qvx16s* a, const Qvx16s* b, Qvx16s* y, int scaleFactor) {
  if (isNull(a) || isNull(b) || isNull(y)) return qvxStatNullPtr;
  const int places = std::clamp(scaleFactor, -31, 31);
  const auto scaled = [places](auto v) {
    if (places > 0) return roundedShift(v, places);
    return saturatedShiftLeft(v, -places);
  };
  const auto sums = cyclicSums(a, b);
  constexpr Lanes<int16_t, 4> half;
  store(hn::DemoteTo(half, scaled(sums.lo)), half, y);
  store(hn::DemoteTo(half, scaled(sums.hi)), half, y + 4);
  return qvxStatOk;
}
