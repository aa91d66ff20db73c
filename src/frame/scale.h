// Scaled integer arithmetic: an exact result times 2^-scaleFactor, rounded to nearest with ties to even, saturated.
//
// `scaled` is the definition. The vector forms below it compute the same for results that do not fit a lane: a sum keeps its 17th
// (33rd, 65th) bit apart, a product is held in two halves. They stay in lanes of their operands' width as long as possible, which
// makes the speed: 16-bit sums take 8 instructions for 32 elements, in 32-bit lanes 18.
#pragma once

#include <algorithm>
#include <limits>

#include <qvx/qvxdefs.h>
#include "frame/simd.h"

namespace qvx {

// Saturates by one comparison: clamping 128 bits takes five times as long.
template <class T, class Wide> constexpr T saturate(Wide v) {
  const auto low = static_cast<T>(v);
  return low == v ? low : v < 0 ? std::numeric_limits<T>::min() : std::numeric_limits<T>::max();
}

// For |v| up to 2^126, which all products of 64-bit elements are.
template <class T> constexpr T scaled(__int128 v, int scaleFactor) {
  if (scaleFactor > 126) return 0;
  if (scaleFactor > 0) {
    const __int128 half = __int128{1} << (scaleFactor - 1);
    return saturate<T>((v + half - 1 + ((v >> scaleFactor) & 1)) >> scaleFactor);
  }
  // A shift by 63 saturates every value but 0, and a value beyond the range stays saturated.
  return saturate<T>(__int128{saturate<T>(v)} << std::min(-static_cast<int64_t>(scaleFactor), int64_t{63}));
}

// The same for all values of 64 bits: nothing here leaves them.
template <class T> constexpr T scaled(int64_t v, int scaleFactor) {
  if (scaleFactor > 63) return 0;  // half a unit at most, and 0 is even
  if (scaleFactor > 0) {
    const int64_t quotient = v >> scaleFactor;
    const uint64_t fraction = static_cast<uint64_t>(v) << (64 - scaleFactor);  // of 2^64; its last bit is free for the tie
    const bool isOdd = (quotient & 1) != 0;
    return saturate<T>(quotient + (fraction + isOdd > uint64_t{1} << 63));
  }
  const auto places = static_cast<int>(std::min(-static_cast<int64_t>(scaleFactor), int64_t{63}));
  const auto shifted = static_cast<int64_t>(static_cast<uint64_t>(v) << places);
  if (shifted >> places != v) return v < 0 ? std::numeric_limits<T>::min() : std::numeric_limits<T>::max();
  return saturate<T>(shifted);
}

// ---- lanes that hold the result

template <class V> V saturatedAdd(V a, V b) {
  using T = LaneOf<V>;
  if constexpr (std::is_floating_point_v<T>) {
    return a + b;
  } else if constexpr (sizeof(T) <= 2) {
    return hn::SaturatedAdd(a, b);
  } else if constexpr (std::is_same_v<T, uint32_t> && !QVXS_AVX2) {
    // SSSE3 compares signed lanes alone: a sum that wrapped is below its operands, with the offset of its sign bit too.
    const auto offset = as<int32_t>(a ^ same<V>(T{1} << 31));
    using Signed = std::remove_const_t<decltype(offset)>;
    const Signed sum = offset + as<int32_t>(b);
    return as<T>((sum ^ same<Signed>(INT32_MIN)) | hn::VecFromMask(TagOf<Signed>(), offset > sum));
  } else if constexpr (std::is_unsigned_v<T>) {
    return hn::Min(a, hn::Not(b)) + b;
  } else {
    const V sum = a + b;
    const V extreme = hn::BroadcastSignBit(a) ^ same<V>(std::numeric_limits<T>::max());
    return ifNegative(hn::AndNot(a ^ b, a ^ sum), extreme, sum);
  }
}

// a - b
template <class V> V saturatedSub(V a, V b) {
  using T = LaneOf<V>;
  if constexpr (std::is_floating_point_v<T>) {
    return a - b;
  } else if constexpr (sizeof(T) <= 2) {
    return hn::SaturatedSub(a, b);
  } else {
    static_assert(std::is_signed_v<T>);
    const V difference = a - b;
    const V extreme = hn::BroadcastSignBit(a) ^ same<V>(std::numeric_limits<T>::max());
    return ifNegative((a ^ b) & (a ^ difference), extreme, difference);
  }
}

// v / 2^s, floored, for s from 0 to the lane's width - 1. Signed lanes of 64 bits have no such instruction below AVX-512: there
// the sign passes through a logical shift as an offset.
template <class V> V shiftedRight(V v, int s) {
  if constexpr (std::is_same_v<LaneOf<V>, int64_t> && !kHasMasks) {
    const auto offset = as<uint64_t>(v + same<V>(INT64_MIN));
    return as<int64_t>(hn::ShiftRightSame(offset, s)) - same<V>(int64_t{1} << (63 - s));
  } else {
    return hn::ShiftRightSame(v, s);
  }
}

// v * 2^places, saturated. From the lane's width on every non-zero lane is beyond the range.
template <class V> V saturatedShiftLeft(V v, int places) {
  using T = LaneOf<V>;
  const V shifted = hn::ShiftLeftSame(v, places);
  const auto kept = shiftedRight(shifted, places) == v;
  V extreme = same<V>(std::numeric_limits<T>::max());
  if constexpr (std::is_signed_v<T>) extreme = extreme ^ hn::BroadcastSignBit(v);
  return hn::IfThenElse(kept, shifted, extreme);
}

// 1 where the quotient v / 2^s is even. Taking it from v turns "half up" into "half to even": only an exact half can tell.
template <class V> V evenQuotient(V v, int s) {
  using T = LaneOf<V>;
  return hn::AndNot(as<T>(hn::ShiftRightSame(as<std::make_unsigned_t<T>>(v), s)), same<V>(1));
}

// (v - less + 2^(s-1)) / 2^s, floored, for s from 1 to the lane's width - 1 (16 for unsigned 16-bit lanes) and less of 0 or 1.
// No intermediate overflows.
template <class V> V halfUp(V v, V less, int s) {
  using T = LaneOf<V>;
  if constexpr (std::is_same_v<T, int16_t>) {
    // The Q15 product with 2^(15-s) is the shift with a half added, in 17 bits.
    return hn::MulFixedPoint15(hn::SaturatedSub(v, less), same<V>(static_cast<T>(1 << (15 - s))));
  } else if constexpr (std::is_same_v<T, uint16_t>) {
    // The average adds in 17 bits and halves.
    const V half = same<V>(static_cast<T>((1 << (s - 1)) - 1));
    return hn::ShiftRightSame(hn::AverageRound(hn::SaturatedSub(v, less), half), s - 1);
  } else {
    using U = std::make_unsigned_t<T>;
    const V fraction = v & same<V>(static_cast<T>((U{1} << s) - 1));
    const V carry = fraction + same<V>(static_cast<T>(U{1} << (s - 1))) - less;
    return shiftedRight(v, s) + as<T>(hn::ShiftRightSame(as<U>(carry), s));
  }
}

// v / 2^s, nearest even; s as above.
template <class V> V roundedShift(V v, int s) { return halfUp(v, evenQuotient(v, s), s); }

// The same for lanes in which v + 2^(s-1) does not overflow: three instructions fewer.
template <class V> V roundedShiftRoomy(V v, int s) {
  using T = LaneOf<V>;
  return shiftedRight(v - evenQuotient(v, s) + same<V>(static_cast<T>(T{1} << (s - 1))), s);
}

// ---- sums and differences: one bit more than a lane

// The exact value 2 * half + (odd & 1); the other bits of odd mean nothing.
template <class V> struct Halved {
  V half;
  V odd;
};

template <class V> Halved<V> halvedSum(V a, V b) {
  a = held(a);
  b = held(b);
  const V differing = a ^ b;
  return {(a & b) + hn::ShiftRight<1>(differing), differing};
}

// a - b, signed
template <class V> Halved<V> halvedDifference(V a, V b) {
  a = held(a);
  b = held(b);
  const V differing = a ^ b;
  return {hn::ShiftRight<1>(differing) - hn::AndNot(a, b), differing};
}

// The two forms of value / 2^s, nearest even. From s = 2 on the odd bit is below the half unit: without it an even quotient has
// to be kept from rounding up at an exact half, with it there is none.
struct ShiftOne {
  template <class V> V operator()(Halved<V> v) const {
    using T = LaneOf<V>;
    const V up = v.odd & v.half & same<V>(1);
    // A difference can round up to one above the largest lane.
    if constexpr (sizeof(T) <= 2) return hn::SaturatedAdd(v.half, up);
    const V sum = v.half + up;
    if constexpr (std::is_unsigned_v<T>) return sum;
    else return sum + hn::BroadcastSignBit(hn::AndNot(v.half, sum));
  }
};
struct ShiftMore {
  int s;
  template <class V> V operator()(Halved<V> v) const {
    using T = LaneOf<V>;
    using U = std::make_unsigned_t<T>;
    const int t = s - 1;
    const V tieDown = neither(as<T>(hn::ShiftRightSame(as<U>(v.half), t)), v.odd, same<V>(1));
    return halfUp(v.half, tieDown, t);
  }
};

// The same with a round mode. A value that fits its lane is {v >> 1, v}.
template <int kMode> struct ShiftByMode {
  int s;
  template <class V> V operator()(Halved<V> v) const {
    using T = LaneOf<V>;
    const V one = same<V>(1);
    const V odd = v.odd & one;
    const int t = s - 1;
    V negative = same<V>(0);
    if constexpr (std::is_signed_v<T>) negative = hn::BroadcastSignBit(v.half);
    if constexpr (kMode == qvxRoundNearestEven) {
      return s == 1 ? ShiftOne()(v) : ShiftMore{s}(v);
    } else if constexpr (kMode == qvxRoundTowardZero) {
      const V fraction = v.half & same<V>(static_cast<T>((std::make_unsigned_t<T>{1} << t) - 1));
      const V exact = hn::VecFromMask(TagOf<V>(), (fraction | odd) == same<V>(0));
      return shiftedRight(v.half, t) - hn::AndNot(exact, negative);
    } else {
      // A negative half stays at the floor, which is the side away from zero.
      return s == 1 ? v.half + hn::AndNot(negative, odd) : halfUp(v.half, hn::AndNot(odd, negative & one), t);
    }
  }
};

// ---- products: twice the bits of a lane

// Low and high half of every 16-bit product.
template <class Low, class High> struct SplitProduct {
  Low low;
  High high;
};

template <class A, class B> auto splitProduct(A a, B b) {
  a = held(a);
  b = held(b);
  if constexpr (std::is_same_v<A, B>) {
    return SplitProduct<decltype(as<uint16_t>(a)), A>{as<uint16_t>(a * b), hn::MulHigh(a, b)};
  } else {  // unsigned by signed: the unsigned high half is too large by a where b is negative
    const auto unsignedB = as<uint16_t>(b);
    const auto high = hn::MulHigh(a, unsignedB) - (a & as<uint16_t>(hn::BroadcastSignBit(b)));
    return SplitProduct<A, B>{a * unsignedB, as<int16_t>(high)};
  }
}

// Joins the halves of the products, in the order of widen().
template <class Low, class High> auto joined(SplitProduct<Low, High> v) {
  using Wide = std::conditional_t<std::is_signed_v<LaneOf<High>>, int32_t, uint32_t>;
  const TagOf<High> d;
  const High low = as<LaneOf<High>>(v.low);
  return Pair<Vec<hn::Repartition<Wide, TagOf<High>>>>{as<Wide>(hn::InterleaveLower(d, low, v.high)),
                                                       as<Wide>(hn::InterleaveUpper(d, low, v.high))};
}

// Applies f to both halves.
template <class V, class F> auto each(Pair<V> v, F f) { return Pair<decltype(f(v.lo))>{f(v.lo), f(v.hi)}; }

// The forms of a 16-bit product / 2^s. Up to s = 16 an even quotient is taken off in the low half: only an exact half can tell
// the difference, and there the low half is not zero. The quotient's last bit is in that half too, but for s = 16.
template <bool kBy16> struct ShiftLow {
  int s;
  template <class Low, class High> auto operator()(SplitProduct<Low, High> v) const {
    if constexpr (kBy16) v.low = hn::SaturatedSub(v.low, evenQuotient(as<uint16_t>(v.high), 0));
    else v.low = hn::SaturatedSub(v.low, evenQuotient(v.low, s));
    return narrow<LaneOf<High>>(each(joined(v), [s = s](auto wide) {
      using W = decltype(wide);
      return hn::ShiftRightSame(wide + same<W>(static_cast<LaneOf<W>>(LaneOf<W>{1} << (s - 1))), s);
    }));
  }
};
// For s > 16 the low half is only a sticky bit.
struct ShiftHigh {
  int s;
  template <class Low, class High> auto operator()(SplitProduct<Low, High> v) const {
    return ShiftMore{s - 15}(Halved<High>{v.high, as<LaneOf<High>>(hn::Min(v.low, same<Low>(1)))});
  }
};

// Saturates 64-bit products to 32-bit lanes.
template <class V> auto narrow(EvenOdd<V> v) {
#if QVXS_AVX512
  if constexpr (sizeof(v.even.raw) == 64) {
    alignas(64) static constexpr int32_t kInTurn[16] = {0, 16, 1, 17, 2, 18, 3, 19, 4, 20, 5, 21, 6, 22, 7, 23};
    const Lanes<int32_t, 16> d;
    return lanesOfTwo(hn::ZeroExtendVector(d, saturatedTo32(v.even)), hn::ZeroExtendVector(d, saturatedTo32(v.odd)), kInTurn);
  }
  const auto clamp = [](V x) { return hn::Min(hn::Max(x, same<V>(INT32_MIN)), same<V>(INT32_MAX)); };
  const auto odd = as<int32_t>(hn::ShiftLeft<32>(clamp(v.odd)));
  return hn::OddEven(odd, as<int32_t>(clamp(v.even)));
#else
  return wordsInTurn(saturatedWords(v.even, v.odd));
#endif
}

template <class V, class F> auto each(EvenOdd<V> v, F f) { return EvenOdd<decltype(f(v.even))>{f(v.even), f(v.odd)}; }

}  // namespace qvx
