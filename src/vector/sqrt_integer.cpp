// Square roots of integers: exactly rounded at every scale factor.
#include "frame/remainder.h"
#include "frame/team.h"
#include "frame/to_int64.h"
#include "vector/integer_root.h"

using namespace qvx;

namespace {

// A root in lanes as wide as it needs, from elements From to elements To.
template <class From, class To> struct IntegerRoot {
  static constexpr int kBits = std::numeric_limits<To>::digits;
  static constexpr bool kInDoubles = sizeof(From) == 8;
  static constexpr int kMaxScale = 4 * sizeof(From);  // beyond, the root of the largest source is below 1/2

  template <class Root> static auto kernel(Root root) {
    if constexpr (std::is_unsigned_v<From>) {
      return [root](auto v) { return inLanes(root, v); };
    } else {
      return warns<qvxWarnSqrtNegArg>([root](Flag& flag, auto v) { return inLanes(root, each(flag, v)); });
    }
  }

 private:
  // The root of a negative number is 0.
  template <class V> static V each(Flag& flag, V v) {
    const TagOf<V> d;
    flag.raise(d, v < hn::Zero(d));
    return hn::Max(v, hn::Zero(d));
  }
  template <class V> static Pair<V> each(Flag& flag, Pair<V> v) { return {each(flag, v.lo), each(flag, v.hi)}; }

  template <class Root, class V> static auto inLanes(Root root, V v) {
    if constexpr (sizeof(From) == 1) {
      const auto roots = [&](auto half) { return inLanes16<uint16_t>(root, half); };
      return narrow<uint8_t>(qvx::each(widen<uint16_t>(v), roots));
    } else if constexpr (sizeof(From) == 2) {
      return inLanes16<From>(root, v);
    } else if constexpr (sizeof(From) == 4) {
      return narrowInOrder<To>(qvx::each(v, root));
    } else if constexpr (sizeof(To) == 2) {
      return convertLanes<To>(saturatedTo32(root(v)));
    } else {
      return root(v);
    }
  }

  template <class T, class Root, class V> static V inLanes16(Root root, V v) {
    using Wide = std::conditional_t<std::is_signed_v<T>, int32_t, uint32_t>;
    return narrow<T>(qvx::each(widen<Wide>(v), [&](auto half) { return root(as<int32_t>(half)); }));
  }
};

// ---- 64 bits times a power of two: from 19 places on the result outgrows a double

constexpr int kPlacesInLanes = 18;  // a root of 2^49.5 is wrong by 0.3 at most, in any rounding mode

// The integer nearest to sqrt(x) * 2^s, for s from kPlacesInLanes on: a step of Newton's method takes the double's root, which is
// off by 2^10 where the result is largest, to a sixteenth from it. Only where that falls between two integers do the squares
// decide, modulo 2^64: they differ by less than 2^63 there.
struct RootLengthened {
  int s;

  template <class V> V operator()(V x) const {
    const TagOf<V> d;
    const auto whole = hn::Max(x, same<V>(1));
    const auto low = unsignedToDouble(whole & same<V>(1023));  // in two parts that are exact in every rounding mode
    using Real = std::remove_const_t<decltype(low)>;
    const auto high = unsignedToDouble(hn::AndNot(same<V>(1023), whole));
    const auto value = high + low;
    const auto root = hn::Sqrt(value);
    const auto rest = remainderOf(root, root, value) + (low - (value - high));
    const auto factor = same<Real>(powerOfTwo<double>(s));
    const auto scaled = root * factor;
    const auto integer = nearWhole(hn::Min(scaled, same<Real>(0x1.fffffffffffffp62)));
    const auto beyond = (scaled - integer) + rest * halfReciprocal(value, root) * factor;
    const auto floor = shortFloor(hn::Min(beyond, same<Real>(4096)));
    const auto fraction = beyond - floor;
    const V k = wholeToInt64(integer) + shortWholeToInt64(floor);
    const V square = hn::ShiftLeftSame(hn::ShiftLeftSame(whole, s), s);
    const auto isBeyondTie = square - k * (k + same<V>(1)) > hn::Zero(d);
    const auto isUp = hn::And(hn::Or(isBeyondTie, hn::RebindMask(d, fraction > same<Real>(0.75))),
                              hn::RebindMask(d, fraction > same<Real>(0.25)));
    const V nearest = k - hn::VecFromMask(d, isUp);
    return hn::IfThenElseZero(x > hn::Zero(d), ifNegative(nearest, same<V>(INT64_MAX), nearest));
  }

 private:
  template <class V> static V nearWhole(V v) {
    if constexpr (kRoundsByInstruction) return hn::Trunc(v);
    const V unit = same<V>(0x1p52);
    return hn::IfThenElse(v < unit, (v + unit) - unit, v);
  }

  // 1 / (2 * sqrt(value)), to 2^-13 of it.
  template <class V> static V halfReciprocal([[maybe_unused]] V value, [[maybe_unused]] V root) {
    if constexpr (kHasMasks) {
      return nearReciprocalRoot(value) * same<V>(0.5);
    } else if constexpr (kLanesOf<V> == 4) {
      const hn::Rebind<float, TagOf<V>> single;
      return hn::PromoteTo(TagOf<V>(), hn::Set(single, 0.5F) / hn::DemoteTo(single, root));
    } else {
      return same<V>(0.5) / root;
    }
  }
};

// The same up to 31 places, where nothing saturates, with a step of full precision: it leaves 1 vector in 1000 to the squares.
struct NearRootLengthened {
  static constexpr int kMaxPlaces = 31;
  int s;

  template <class V> V operator()(V x) const {
    const auto [value, low] = inTwoParts(x);
    using Real = std::remove_const_t<decltype(value)>;
    const Real root = hn::Sqrt(value);
    const Real scaled = root * same<Real>(powerOfTwo<double>(s));
    const auto [coarse, fine] = split(scaled);
    const Real beyond = fine + step(remainderOf(root, root, value) + low, value, root);
    const Real whole = shortNearest(beyond);
    if (!hn::AllTrue(TagOf<Real>(), hn::Abs(beyond - whole) < same<Real>(0.5 - 0x1p-14))) [[unlikely]]
      return bySquares(x);
    return coarse + shortWholeToInt64(whole);
  }

 private:
  template <class Whole, class Real> struct Split {
    Whole coarse;
    Real fine;
  };

  // x as a double and what that lacks.
  template <class V> static auto inTwoParts(V x) {
#if QVXS_AVX512
    const auto value = toDouble(x);
    return Pair<std::remove_const_t<decltype(value)>>{value, toDouble(x - toInt64(value))};  // 2^63 becomes -2^63: as good
#else
    const auto halves = halvesAsDoubles(x);
    const auto value = halves.hi + halves.lo;
    return Pair<std::remove_const_t<decltype(value)>>{value, halves.lo - (value - halves.hi)};
#endif
  }

  // A whole number that leaves less than 2^32 of v.
  template <class V> static auto split(V v) {
    if constexpr (kHasMasks) {
      const V whole = hn::Round(v);
      const auto coarse = toInt64(whole);
      return Split<std::remove_const_t<decltype(coarse)>, V>{coarse, v - whole};
    } else {
      const V middle = same<V>(0x1.8p52);
      const V upper = v * same<V>(0x1p-32) + middle;
      const auto coarse = hn::ShiftLeft<32>(as<int64_t>(upper));
      return Split<std::remove_const_t<decltype(coarse)>, V>{coarse, v - (upper - middle) * same<V>(0x1p32)};
    }
  }

  // Of Newton's method: what the square lacks, over twice the root.
  template <class V> V step(V rest, [[maybe_unused]] V value, [[maybe_unused]] V root) const {
    const V half = same<V>(powerOfTwo<double>(s - 1));
    const V one = same<V>(1);  // instead of zeros
#if QVXS_AVX512
    const V near = nearReciprocalRoot(hn::Max(value, one));
    return rest * (hn::MulAdd(near, hn::NegMulAdd(root, near, one), near) * half);
#else
    return rest * half / hn::Max(root, one);
#endif
  }

  template <class V> [[gnu::noinline]] V bySquares(V x) const { return RootLengthened{s}(x); }
};

QvxStatus root64(const Qvx64s* src, Qvx64s* dst, int len, int sf) {
  using Root64s = IntegerRoot<Qvx64s, Qvx64s>;
  if (sf >= -kPlacesInLanes) return map<Root64s>(dst, len, ScaledRoot{sf}, src);
  const QvxStatus status = check(len, src, dst);
  if (status != qvxStatOk) return status;
  const int s = sf < -63 ? 63 : -sf;  // 1 times 2^63 saturates already
  const RoundingScope scope(kRootMode);
  const auto with = [&](auto root) { return loop(Root64s::kernel(root), destination(dst), elements(len), source(src)); };
  return s <= NearRootLengthened::kMaxPlaces ? with(NearRootLengthened{s}) : with(RootLengthened{s});
}

using Root8u = IntegerRoot<Qvx8u, Qvx8u>;
using Root16u = IntegerRoot<Qvx16u, Qvx16u>;
using Root16s = IntegerRoot<Qvx16s, Qvx16s>;
using Root32s16s = IntegerRoot<Qvx32s, Qvx16s>;
using Root64s16s = IntegerRoot<Qvx64s, Qvx16s>;

// Lengths that take one thread 3 to 4 us.
constexpr TeamRule kRoot8u = {.worthIt = 32768};
constexpr TeamRule kRoot16 = {.worthIt = 32768};
constexpr TeamRule kRoot32s16s = {.worthIt = 32768};
constexpr TeamRule kRoot64s16s = {.worthIt = 8192};

}  // namespace

// clang-format off
QvxStatus qvxsSqrt_8u_Sfs(const Qvx8u* a, Qvx8u* d, int len, int sf) { return map<Root8u>(d, len, InTeam<kRoot8u, ScaledRoot>{{sf}}, a); }
QvxStatus qvxsSqrt_8u_ISfs(Qvx8u* d, int len, int sf) { return map<Root8u>(d, len, InTeam<kRoot8u, ScaledRoot>{{sf}}, d); }
QvxStatus qvxsSqrt_16u_Sfs(const Qvx16u* a, Qvx16u* d, int len, int sf) { return map<Root16u>(d, len, InTeam<kRoot16, ScaledRoot>{{sf}}, a); }
QvxStatus qvxsSqrt_16u_ISfs(Qvx16u* d, int len, int sf) { return map<Root16u>(d, len, InTeam<kRoot16, ScaledRoot>{{sf}}, d); }
QvxStatus qvxsSqrt_16s_Sfs(const Qvx16s* a, Qvx16s* d, int len, int sf) { return map<Root16s>(d, len, InTeam<kRoot16, ScaledRoot>{{sf}}, a); }
QvxStatus qvxsSqrt_16s_ISfs(Qvx16s* d, int len, int sf) { return map<Root16s>(d, len, InTeam<kRoot16, ScaledRoot>{{sf}}, d); }
QvxStatus qvxsSqrt_64s_Sfs(const Qvx64s* a, Qvx64s* d, int len, int sf) { return root64(a, d, len, sf); }
QvxStatus qvxsSqrt_64s_ISfs(Qvx64s* d, int len, int sf) { return root64(d, d, len, sf); }
QvxStatus qvxsSqrt_32s16s_Sfs(const Qvx32s* a, Qvx16s* d, int len, int sf) { return map<Root32s16s>(d, len, InTeam<kRoot32s16s, ScaledRoot>{{sf}}, InPairs{a}); }
QvxStatus qvxsSqrt_64s16s_Sfs(const Qvx64s* a, Qvx16s* d, int len, int sf) { return map<Root64s16s>(d, len, InTeam<kRoot64s16s, ScaledRoot>{{sf}}, a); }
// clang-format on
