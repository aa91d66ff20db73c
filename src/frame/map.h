// The loop engine of all element-wise functions: check the arguments, then dst[i] = kernel(src[i]...) for any number of sources.
//
// A kernel works on whole vectors, at the ends of the caller's arrays too: every element is computed in the same way, and no byte
// outside the arrays is read or written.
#pragma once

#include <algorithm>
#include <bit>
#include <utility>

#include "frame/check.h"
#include "frame/scale.h"
#include "frame/sources.h"
#include "frame/warnings.h"

namespace qvx {

// ---- the loop

template <class Src> inline constexpr bool kIsConstant = requires(Src s) { s.value; };
template <class Src> inline constexpr bool kIsBackwards = requires { Src::kIsBackwards; };

// From this many vectors on, the loop starts at the first address from which no store is split between cache lines. Misaligned
// 16-bit sums of 4096 elements take half the time that way; below 8 vectors there is nothing to gain.
inline constexpr size_t kWorthAligning = 8;

// The first and the last vector may overlap their neighbours. They are computed before anything is stored, and stored after
// everything else, so that a source may be the destination. Only fewer elements than fill 16 bytes take a partial vector: masked
// stores cost 1 ns more than that.
//
// Returns the status, so that the checked function can end in a jump here: that saves 1 ns at 16 elements. The code of
// short vectors stands in a line, since every jump that is taken costs 0.3 ns.
//
// Flattened: a kernel that is not inlined reloads its constants from memory, and takes twice the time.
template <size_t N, size_t kWidest, class Kernel, class Dst, class... Src>
[[gnu::flatten]] QvxStatus loopOf(Kernel kernel, Dst dst, size_t n, Src... src) {
  typename WatchFor<Kernel>::Type flag;
  const auto at = [&](size_t i) { return call(kernel, flag, src.template get<N>(i)...); };
  if (n < N) [[unlikely]] {
    if constexpr (N * kWidest > 16) {
      return loopOf<N / 2, kWidest>(kernel, dst, n, src...);
    } else {
      dst.template put<N>(call(kernel, flag, src.template get<N>(0, n)...), 0, n);
      return statusOf<Kernel>(flag);
    }
  }
  const auto first = at(0);
  if (n == N) {
    dst.template put<N>(first, 0);
    return statusOf<Kernel>(flag);
  }
  const auto last = at(n - N);
  const auto putEnds = [&] {
    dst.template put<N>(first, 0);
    dst.template put<N>(last, n - N);
    return statusOf<Kernel>(flag);
  };
  if (N * kWidest < kVectorBytes || n <= 2 * N) return putEnds();
  constexpr bool kFills = (kIsConstant<Src> && ...);  // with one and the same register
  if (kFills && n <= 4 * N) {
    dst.template put<N>(first, N);
    dst.template put<N>(first, n - 2 * N);
    return putEnds();
  }
  size_t i = N;
  if (n >= kWorthAligning * N) [[unlikely]] {
    if (dst.template misaligned<N>() != 0) i = dst.template misaligned<N>();
  }
  // No destination is fetched ahead: what one make gains by it, 0.07 of the time of sums of 8192 floats, another loses twice from
  // the first-level cache on, and 0.4 of the time or more in place.
  //
  // Two at a time: sums of 32-bit floats take 0.76 of the time. But fills beyond the first-level cache, which do nothing but
  // store, take up to 1.7 times as long in pairs; so do vectors that AVX2 reads from their end, since one make fetches them ahead
  // only where a single instruction reads them: 65536 floats take 0.6 of the time.
  constexpr bool kOneByOneFarAway = kFills || (QVXS_AVX2 && !kHasMasks && (kIsBackwards<Src> || ...));
  constexpr size_t kMostInPairs = size_t{32} << 10;
  const bool inPairs = !kOneByOneFarAway || n * sizeof(typename Dst::Lane) < kMostInPairs;
  const auto putPair = [&] {
    dst.template put<N>(at(i), i);
    dst.template put<N>(at(i + N), i + N);
  };
  // Narrower registers by two pairs: sums with a constant take 0.8 of the time in AVX2.
  if constexpr (!kHasMasks) {
    for (; inPairs && i + 4 * N < n; i += 2 * N) {
      putPair();
      i += 2 * N;
      putPair();
    }
  }
  for (; inPairs && i + 2 * N < n; i += 2 * N) putPair();
  if (kOneByOneFarAway) {
    for (; i + N < n; i += N) dst.template put<N>(at(i), i);
  } else if (i + N < n) {
    dst.template put<N>(at(i), i);
  }
  return putEnds();
}

// Takes as many lanes at a time as a register holds of the widest type: of the vectors, or Inner if the kernel computes in a
// wider one.
template <class Inner = uint8_t, class Kernel, class Dst, class... Src>
QvxStatus loop(Kernel kernel, Dst dst, size_t n, Src... src) {
  constexpr size_t kWidest = std::max({sizeof(Inner), sizeof(typename Dst::Lane), sizeof(typename Src::Lane)...});
  return loopOf<kVectorBytes / kWidest, kWidest>(kernel, dst, n, src...);
}

// ---- fits: how an operation's result becomes the destination's element

// Widens a source that is narrower than the destination before the operation; others are passed on.
template <class Lane, class V> auto widened(V v) {
  if constexpr (std::is_same_v<V, Place>) return v;
  else if constexpr (sizeof(LaneOf<V>) < sizeof(Lane)) return convertLanes<Lane>(v);
  else return v;
}
template <class Lane, class V> auto widened(Complex<V> v) {
  const auto re = widened<Lane>(v.re);
  return Complex<std::remove_const_t<decltype(re)>>{re, widened<Lane>(v.im)};
}

template <class Lane, class V> auto widened(Pair<V> v) {
  return each(v, [](auto part) { return widened<Lane>(part); });
}

// Two vectors at a time of a source or a destination that has one.
template <class One> struct InTwos {
  using Lane = hwy::UnsignedFromSize<sizeof(typename One::Lane) / 2>;
  static constexpr size_t kParts = 1;
  One one;

  template <size_t N> auto get(size_t at) const {
    const auto lo = one.template get<N / 2>(at);
    return Pair<std::remove_const_t<decltype(lo)>>{lo, one.template get<N / 2>(at + N / 2)};
  }
  template <size_t N> auto get(size_t at, size_t n) const {
    const size_t low = std::min(n, N / 2);
    const auto lo = one.template get<N / 2>(at, low);
    return Pair<std::remove_const_t<decltype(lo)>>{lo, one.template get<N / 2>(at + low, n - low)};
  }
  template <size_t N, class V> void put(Pair<V> v, size_t at) const {
    one.template put<N / 2>(v.lo, at);
    one.template put<N / 2>(v.hi, at + N / 2);
  }
  template <size_t N, class V> void put(Pair<V> v, size_t at, size_t n) const {
    const size_t low = std::min(n, N / 2);
    one.template put<N / 2>(v.lo, at, low);
    if (n > low) one.template put<N / 2>(v.hi, at + low, n - low);
  }
  template <size_t N> size_t misaligned() const { return one.template misaligned<N / 2>(); }
  InTwos from(size_t at) const { return {one.from(at)}; }
};
template <class One> InTwos(One) -> InTwos<One>;

// Whether sources are widened a whole register at a time. SSSE3 takes two instructions to widen half a register as it is loaded,
// and three to four for both halves: 4096 integers of 16 bits to 32 take 0.7 of the time.
template <class To, class Src> inline constexpr bool kWidensWhole = false;
template <class To, class T>
inline constexpr bool kWidensWhole<To, Source<T>> =
    !QVXS_AVX2 && std::is_integral_v<T> && sizeof(To) == 2 * sizeof(T) && sizeof(To) <= 4;

template <class To, class V> auto widenedWhole(V v) {
  using Wide =
      std::conditional_t<std::is_signed_v<LaneOf<V>>, hwy::SignedFromSize<sizeof(To)>, hwy::UnsignedFromSize<sizeof(To)>>;
  const auto wide = widen<Wide>(v);
  using P = Pair<decltype(convertLanes<To>(wide.lo))>;
  return P{convertLanes<To>(wide.lo), convertLanes<To>(wide.hi)};
}

// Stores the result as it is; integers saturate.
struct AsIs {
  template <class Op, class Dst, class... Src> QvxStatus run(Op op, Dst dst, size_t n, Src... src) const {
    using Lane = typename Dst::Lane;
    if constexpr ((kWidensWhole<Lane, Src> && ...)) {
      const auto halves = [op](auto... wide) {
        const auto lo = op(wide.lo...);
        return Pair<std::remove_const_t<decltype(lo)>>{lo, op(wide.hi...)};
      };
      return loop([halves](auto... v) { return halves(widenedWhole<Lane>(v)...); }, InTwos{dst}, n, src...);
    } else {
      return loop(prepared([](auto v) { return widened<Lane>(v); }, op), dst, n, src...);
    }
  }
};

// Passes every source in lanes of its own type: the operation widens and narrows.
struct InOwnLanes {
  template <class Op, class Dst, class... Src> QvxStatus run(Op op, Dst dst, size_t n, Src... src) const {
    return loop(op, dst, n, src...);
  }
};

// Multiplies by 2^-scaleFactor. An operation provides three things: op(v...), which saturates; Op::kMaxScale<T>, the largest
// scale factor with a result other than zeros; Op::scaleDown<T>(s, with), which runs `with` on the kernel for shifts s above 0.
struct Scaled {
  int scaleFactor;

  template <class Op, class Dst, class... Src> QvxStatus run(Op op, Dst dst, size_t n, Src... src) const {
    using Lane = typename Dst::Lane;
    const auto with = [&](auto kernel) {
      return loop([kernel](auto... v) { return kernel(widened<Lane>(v)...); }, dst, n, src...);
    };
    if (scaleFactor == 0) return with(op);
    if (scaleFactor > Op::template kMaxScale<Lane>) return loop([](auto zero) { return zero; }, dst, n, Constant<Lane>{0});
    if (scaleFactor > 0) return Op::template scaleDown<Lane>(scaleFactor, with);
    // A shift by one bit less than a signed lane's width, or by an unsigned lane's width, already saturates all but zeros.
    constexpr int kMost = 8 * sizeof(Lane) - std::is_signed_v<Lane>;
    const int places = scaleFactor < -kMost ? kMost : -scaleFactor;
    return with([op, places](auto... v) { return saturatedShiftLeft(op(v...), places); });
  }
};

// ---- the whole function

// dst = Op(src...) over len elements; len is an int, a LengthFirst or an Unsigned.
template <class Op, class Length, class Fit, class T, class... Src> QvxStatus map(T* dst, Length len, Fit fit, Src... src) {
  const QvxStatus status = check(len, pointerOf(src)..., dst);
  if (status != qvxStatOk) return status;
  return fit.run(Op(), destination(dst), elements(len) * PartsOf<T>::kCount, source(src)...);
}

}  // namespace qvx
