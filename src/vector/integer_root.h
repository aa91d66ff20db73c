// Square roots of integers in lanes, exactly rounded at every scale factor.
#pragma once

#include "frame/map.h"
#include "frame/power.h"
#include "frame/rounding.h"
#include "frame/to_int64.h"

namespace qvx {

// Roots of 32-bit lanes through floats, of 64-bit ones through doubles. These are wrong by far less than 1/2, and so their
// integer part k is the result or one below it. The square of k + 1/2, in integers, decides which: no tie is lost to the float's
// rounding, and neither the processor's mode nor the variant shows. kEnlarges: the factor is above 1.
template <bool kEnlarges, class V> V integerPart(V x, double factor) {
  if constexpr (sizeof(LaneOf<V>) == 4) {
    const auto root = hn::Sqrt(convertLanes<float>(x));
    return toIntTruncated(root * same<decltype(root)>(static_cast<float>(factor)));
  } else {
    const auto root = hn::Sqrt(unsignedToDouble(x));
    auto scaled = root * same<decltype(root)>(factor);
    if constexpr (kEnlarges && !kHasMasks)
      scaled = hn::Min(scaled, same<decltype(root)>(0x1p51));  // more than any result that fits
    return shortToInt64(scaled);
  }
}

// k * (k + 1), which fits a lane; k has kBits bits.
template <int kBits, class V> V timesSuccessor(V k) {
  const V next = k + same<V>(1);
  if constexpr (sizeof(LaneOf<V>) == 8 && kBits <= 32) return as<int64_t>(hn::MulEven(as<uint32_t>(k), as<uint32_t>(next)));
  else return k * next;
}

// k + 1 in the lanes where x is beyond the tie. Both may have wrapped.
template <class V> V decided(V k, V x, V tie) {
  if constexpr (kHasMasks) return hn::IfThenElse(x - tie > hn::Zero(TagOf<V>()), k + same<V>(1), k);
  else if constexpr (sizeof(LaneOf<V>) == 8 && !QVXS_AVX2) return k + as<int64_t>(hn::ShiftRight<63>(as<uint64_t>(tie - x)));
  else return k - hn::VecFromMask(TagOf<V>(), x - tie > hn::Zero(TagOf<V>()));
}

// sqrt(x) * 2^s for destinations of kBits bits. There is no tie: (k + 1/2)^2 is not an integer. From 2^kBits on k saturates, and
// the squares may wrap.
template <int kBits> struct RootEnlarged {
  int s;
  int places() const { return s; }

  template <class V> V operator()(V x) const {
    const V k = integerPart<true>(x, powerOfTwo<double>(s));
    const V square = hn::ShiftLeftSame(hn::ShiftLeftSame(x, s), s);
    return decided(k, square, timesSuccessor<kBits>(k));
  }
};

// sqrt(x) * 2^-s for s from 0 on; that of 0, by far the most frequent, without a scale: 4096 magnitudes of 16 bits take 366 ns,
// not 405. At a tie only an odd k goes up.
template <bool kIsScaled> struct RootReduced {
  static constexpr bool kScales = kIsScaled;
  int scale;
  int places() const { return kScales ? -scale : 0; }

  template <class V> V operator()(V x) const {
    using T = LaneOf<V>;
    const int s = -places();
    const V k = integerPart<false>(x, powerOfTwo<double>(places()));
    V tie = timesSuccessor<32>(k);
    if (s > 0) tie = hn::ShiftLeftSame(hn::ShiftLeftSame(tie, s), s) + same<V>(T{1} << (2 * s - 2)) - (k & same<V>(1));
    return decided(k, x, tie);
  }
};

// Either of them in 64-bit lanes. The double is off by 2^-51.4 of itself at most, in any mode, so the integer next to it is the
// result unless it lies near the middle of two: a vector with such a root, with 8 places 1 in 100, takes the squares.
constexpr int kNearRootPlaces = 8;
template <class BySquares> struct NearRoot {
  BySquares bySquares;

  template <class V> V operator()(V x) const {
    const auto root = hn::Sqrt(unsignedToDouble(x));
    using Real = std::remove_const_t<decltype(root)>;
    const Real scaled = root * same<Real>(powerOfTwo<double>(bySquares.places()));
    const Real whole = shortNearest(scaled);
    const Real clear = same<Real>(0.5 - powerOfTwo<double>(bySquares.places() - 18));
    if (!hn::AllTrue(TagOf<Real>(), hn::Abs(scaled - whole) < clear)) [[unlikely]]
      return outOfLine(x);
    return shortWholeToInt64(whole);
  }

 private:
  template <class V> [[gnu::noinline]] V outOfLine(V x) const { return bySquares(x); }
};
template <class BySquares> NearRoot(BySquares) -> NearRoot<BySquares>;

// The mode for shortToInt64().
inline constexpr Rounding kRootMode = kRoundsByInstruction ? Rounding::kCallers : Rounding::kNearest;

struct NoRoot {
  template <class V> V operator()(V) const { return hn::Zero(TagOf<V>()); }
};

// A fit: roots times 2^-scaleFactor. The operation brings kBits, the digits of the destination, kInDoubles, whether it takes
// roots of 64-bit lanes, kMaxScale, beyond which the root of the largest source is below 1/2, and kernel(root), its kernel around
// one of the roots above.
struct ScaledRoot {
  int scaleFactor;

  template <class Op, class Dst, class... Src> QvxStatus run(Op, Dst dst, size_t n, Src... src) const {
    const RoundingScope scope(Op::kInDoubles ? kRootMode : Rounding::kCallers);
    const auto with = [&](auto root) { return loop(Op::kernel(root), dst, n, src...); };
    if (scaleFactor > Op::kMaxScale) return with(NoRoot());
    // Squares of lanes cost AVX-512 less than the test of NearRoot, but for ties that are shifted.
    constexpr bool kNear = Op::kInDoubles && !kHasMasks;
    const auto reduced = [&](auto root) {
      if constexpr (Op::kInDoubles && (kNear || decltype(root)::kScales)) return with(NearRoot{root});
      else return with(root);
    };
    if (scaleFactor == 0) return reduced(RootReduced<false>{0});
    if (scaleFactor > 0) return reduced(RootReduced<true>{scaleFactor});
    const RootEnlarged<Op::kBits> enlarged = {scaleFactor < -Op::kBits ? Op::kBits : -scaleFactor};
    if constexpr (kNear) {
      if (enlarged.s <= kNearRootPlaces) return with(NearRoot{enlarged});
    }
    return with(enlarged);
  }
};

}  // namespace qvx
