// Complex elements clipped to a magnitude or replaced beyond it.
#include <cmath>
#include <cstdlib>

#include "convert/level.h"
#include "convert/magnitude.h"
#include "frame/processor.h"

using namespace qvx;

namespace {

enum class Side { kBelow, kAbove };

// ---- floats

template <Side kSide, class W> auto passes(const Measured<W>& x, double level) {
  if constexpr (kSide == Side::kBelow) return x.isBelow(level);
  else return x.isAbove(level);
}

// 64-bit elements, by parts.
template <Side kSide, class T> struct Replace {
  double level;
  T value;

  template <class V> Pair<V> operator()(Pair<V> x) const {
    return replaced(passes<kSide>(measured(x), level), Pair<V>{same<V>(value.re), same<V>(value.im)}, x);
  }
};

// 32-bit elements as they lie in memory: an element is as wide as the double of its square, so the mask of the comparison selects
// whole elements (0.6 of the time of splitting and joining the parts).
template <Side kSide> struct ReplaceSingle {
  double level;

  template <class V> V operator()(V x, V value) const {
    const auto m = measured(partsOf(x));
    return as<float>(hn::IfThenElse(passes<kSide>(m, level), as<double>(value), as<double>(x)));
  }
};

// level / |x| * x. Most vectors have nothing to clip, and skip the root and the division.
template <Side kSide> struct Clip {
  double level;

  template <class V> Pair<V> operator()(Pair<V> x) const {
    if constexpr (std::is_same_v<LaneOf<V>, double>) {
      const V square = squareOf(x);
      if (needNoUnit(square)) [[likely]]
        return unscaled(x, square);
    }
    const auto m = measured(x, isMiddling() ? 0x1p500 : 0);
    const auto beyond = passes<kSide>(m, level);
    if (!isAny(beyond, m.square)) return x;
    return replaced(beyond, fromDoubles<V>(onSide(m)), x);
  }
  template <class W> Pair<W> onSide(const Measured<W>& m) const {
    if constexpr (kSide == Side::kBelow) return raised(m);
    else return lowered(m);
  }

 private:
  // One division an element. Divided by the magnitude of a subnormal element a large level overflows, so 2^64 of it multiplies
  // the element instead.
  template <class W> Pair<W> onLevel(Pair<W> value, W square) const {
    const double large = kSide == Side::kBelow && level > 1 ? 0x1p64 : 1;
    const W factor = same<W>(level / large) / hn::Sqrt(square);
    return each(value, [&](W part) {
      if constexpr (kSide == Side::kBelow) part = part * same<W>(large);
      return part * factor;
    });
  }

  static constexpr double kLeast = 0x1p-900;
  static constexpr double kMost = 0x1p1000;
  bool isMiddling() const { return level * level > kLeast && level * level < kMost; }

  // Units are powers of two, so squares that stay within a double's range without them give the same bits (8 elements: 12 cycles,
  // not 15).
  template <class V> bool needNoUnit(V square) const {
    if (!isMiddling()) return false;
    return hn::AllTrue(TagOf<V>(), kSide == Side::kBelow ? square > same<V>(kLeast) : square < same<V>(kMost));
  }
  template <class V> Pair<V> unscaled(Pair<V> x, V square) const {
    const V limit = same<V>(level * level);
    const auto beyond = kSide == Side::kBelow ? square < limit : square > limit;
    if (!isAny(beyond, square)) return x;
    const V factor = same<V>(level) / hn::Sqrt(square);
    return replaced(beyond, Pair<V>{x.lo * factor, x.hi * factor}, x);
  }

  // A zero has the phase of its signs.
  template <class W> Pair<W> raised(const Measured<W>& m) const {
    const Pair<W> v = onLevel(m.value, m.square);
    return {hn::IfThenElse(m.isZero(), hn::CopySign(same<W>(level), m.value.lo), v.lo),
            hn::IfThenElse(m.isZero(), hn::CopySign(same<W>(0), m.value.hi), v.hi)};
  }
  // So does an infinite element.
  template <class W> Pair<W> lowered(const Measured<W>& m) const {
    if (!isAny(m.isInfinite(), m.square)) [[likely]]
      return onLevel(m.value, m.square);
    const Pair<W> value = each(m.value, [&](W part) {
      const W one = hn::IfThenElseZero(hn::Abs(part) == same<W>(std::numeric_limits<double>::infinity()), same<W>(1));
      return hn::IfThenElse(m.isInfinite(), hn::CopySign(one, part), part);
    });
    return onLevel(value, squareOf(value));
  }
};

// By the divider, or by multiplications where that is slow: 4096 elements take 1719 ns and 2908 on a processor with a fast
// divider, 5493 and 3450 on another.
template <Side kSide, bool kDivides> struct ClipSingle {
  double level;
  float bound = static_cast<float>(boundOf(level * level));

  template <class V> V operator()(V x) const {
    if (areKept(x)) return x;
    const auto m = measured(partsOf(x));
    const auto beyond = passes<kSide>(m, level);
    if (!isAny(beyond, m.square)) return x;
    using Half = Vec<hn::Half<TagOf<V>>>;
#if QVXS_AVX512
    if constexpr (!kDivides) {
      // Factors slightly below and slightly above the true one give the same results for all but 1 element in 10^4, and NaN for
      // zeros and infinities.
      const auto factor = nearQuotientByRoot<Quiet>(same<decltype(m.square)>(level), m.square);
      const auto times = [&](double about) {
        return fromDoubles<Half>(each(m.value, [&](auto part) { return part * (factor * same<decltype(part)>(about)); }));
      };
      const Pair<Half> low = times(1 - 0x1p-39);
      const Pair<Half> high = times(1 + 0x1p-39);
      const auto isClear = hn::And(low.lo == high.lo, low.hi == high.hi);
      if (hn::AllFalse(TagOf<Half>(), hn::AndNot(isClear, maskAs(TagOf<Half>(), TagOf<decltype(m.square)>(), beyond)))) [[likely]]
        return chosen(beyond, low, x);
      return divided(x);
    }
#endif
    return chosen(beyond, fromDoubles<Half>(Clip<kSide>{level}.onSide(m)), x);
  }

 private:
  // A square of floats that lies on the far side of it is not clipped, however it was rounded; one that underflows or overflows
  // never does.
  static double boundOf(double square) {
    if constexpr (kSide == Side::kBelow) return std::max(square * (1 + 0x1p-20), 0x1p-100);
    else return square < 0x1p-100 ? 0 : std::min(square * (1 - 0x1p-20), 0x1p127);
  }
  // Whether squares in floats, off by 2^-21 at most, tell that no element is clipped: 4096 take 360 ns then, not 489. Where
  // half of them are, it costs a tenth.
  template <class V> bool areKept(V x) const {
    const V squares = x * x;
    const V sums = squares + hn::Shuffle2301(squares);
    const auto kept = kSide == Side::kBelow ? sums > same<V>(bound) : sums < same<V>(bound);
    return hn::AllTrue(TagOf<V>(), kept);
  }
  template <class M, class Half, class V> static V chosen(M beyond, Pair<Half> clipped, V x) {
    return as<float>(hn::IfThenElse(beyond, as<double>(inTurn(clipped)), as<double>(x)));
  }
  template <class V> [[gnu::noinline]] V divided(V x) const {
    const auto m = measured(partsOf(x));
    const auto clipped = fromDoubles<Vec<hn::Half<TagOf<V>>>>(Clip<kSide>{level}.onSide(m));
    return chosen(passes<kSide>(m, level), clipped, x);
  }
};

// ---- 16-bit integers, an element in every 32-bit lane

// |x|^2 - 1, which fits where 2^31 would not.
template <class V> auto squareLess1(V x) {
  const auto square = pairProducts(x, x);
  return square - same<std::remove_const_t<decltype(square)>>(1);
}

template <Side kSide, class W> auto passes(W squareLess1, int level) {
  const W limit = same<W>(level * level - 1);
  if constexpr (kSide == Side::kBelow) return squareLess1 < limit;
  else return squareLess1 > limit;
}

template <Side kSide> struct Replace16 {
  int level;

  template <class V> V operator()(V x, V value) const {
    const auto beyond = passes<kSide>(squareLess1(x), level);
    return as<int16_t>(hn::IfThenElse(beyond, as<int32_t>(value), as<int32_t>(x)));
  }
};

// part * level / sqrt(square) to the nearest integer without any rounding before: the square of twice the quotient is compared
// with that of an odd number. Both have less than 64 bits. They are never equal: a hypotenuse in lowest terms is odd, so there is
// no tie.
int32_t exactPart(int32_t part, uint32_t square, int level) {
  const uint64_t product = static_cast<uint64_t>(std::abs(part)) * static_cast<uint64_t>(level);
  const auto isAbove = [twice = 4 * product * product, square](uint64_t odd) { return twice > odd * odd * square; };
  auto whole = static_cast<uint64_t>(static_cast<double>(product) / std::sqrt(static_cast<double>(square)));
  if (isAbove(2 * whole + 1)) ++whole;
  else if (whole > 0 && !isAbove(2 * whole - 1)) --whole;
  return part < 0 ? -static_cast<int32_t>(whole) : static_cast<int32_t>(whole);
}

// The same quotients in three precisions, each for what the one before leaves in doubt. Floats give them within 2.5 roundings,
// and so the nearest integer unless a quotient lies close to the middle between two; a vector with such an element, 1 in 14, goes
// through doubles (16 elements: 20 cycles on average, 31 through doubles alone).
template <Side kSide> struct Clip16 {
  int level;
  float radius = static_cast<float>(level);

  template <class V> V operator()(V x) const {
    const auto less1 = squareLess1(x);
    const auto beyond = passes<kSide>(less1, level);
    using W = std::remove_const_t<decltype(less1)>;
    if (hn::AllFalse(TagOf<W>(), beyond)) return x;
    const W both = as<int32_t>(x);
    W square = less1 + same<W>(1);  // 2^31 becomes a negative number, which has no root: in doubt
    if constexpr (kSide == Side::kBelow) square = hn::Max(square, same<W>(1));  // zeros are dealt with later
    const auto size = Quiet::root(Quiet::floatOf(square));
    using F = std::remove_const_t<decltype(size)>;
    const F factor = Quiet::quotient(same<F>(radius), size);
    const F re = convertLanes<float>(hn::ShiftRight<16>(hn::ShiftLeft<16>(both)));
    const F im = convertLanes<float>(hn::ShiftRight<16>(both));
    const F wholeRe = hn::Round(re * factor);
    const F wholeIm = hn::Round(im * factor);
    const auto isClear = hn::And(isNearest(wholeRe, re, factor), isNearest(wholeIm, im, factor));
    if (!hn::AllFalse(TagOf<W>(), hn::AndNot(hn::RebindMask(TagOf<W>(), isClear), beyond))) [[unlikely]]
      return inDoubles(x);
    return clipped(less1, beyond, both, toIntTruncated(wholeRe), toIntTruncated(wholeIm));
  }

 private:
  // The relative error of a quotient of floats: 2.5 roundings to nearest, twice as much in other
  // modes, and another where the product cannot be fused.
  static constexpr float kError = kQuietByInstruction ? 0x1.5p-23F : 0x1p-21F;

  template <class F> static auto isNearest(F whole, F part, F factor) {
    const F distance = hn::Abs(hn::MulSub(part, factor, whole));
    return distance < hn::NegMulAdd(hn::Abs(whole), same<F>(kError), same<F>(0.5F - 0x1p-22F));
  }

  template <class W, class M> auto clipped(W less1, M beyond, W both, W re, W im) const {
    if constexpr (kSide == Side::kBelow) re = hn::IfThenElse(less1 == same<W>(-1), same<W>(level), re);
    const auto joined = hn::OddEven(as<int16_t>(hn::ShiftLeft<16>(im)), as<int16_t>(re));
    return as<int16_t>(hn::IfThenElse(beyond, as<int32_t>(joined), both));
  }

  template <class V> [[gnu::noinline]] V inDoubles(V x) const {
    const hn::Half<TagOf<V>> half;
    return hn::Combine(TagOf<V>(), halfInDoubles(hn::UpperHalf(half, x)), halfInDoubles(hn::LowerHalf(half, x)));
  }

  // Quotients in doubles, off by at most 2^-35 in any rounding mode. One nearer than 2^-30 to the middle between two integers, 1
  // in 10^9, sends its vector to exactPart.
  template <class V> V halfInDoubles(V x) const {
    const auto less1 = squareLess1(x);
    const auto beyond = passes<kSide>(less1, level);
    using W = std::remove_const_t<decltype(less1)>;
    const W both = as<int32_t>(x);
    // A zero counts as a one here, so that its quotients are no NaN.
    const auto perLevel = factorOf(hn::Max(less1, same<W>(0)));
    const auto re = convertLanes<double>(hn::ShiftRight<16>(hn::ShiftLeft<16>(both))) * perLevel;
    const auto im = convertLanes<double>(hn::ShiftRight<16>(both)) * perLevel;
    const W wholeRe = toIntNearest(re);
    const W wholeIm = toIntNearest(im);
    const auto distance = hn::Max(hn::Abs(re - convertLanes<double>(wholeRe)), hn::Abs(im - convertLanes<double>(wholeIm)));
    using F = std::remove_const_t<decltype(distance)>;
    if (!hn::AllTrue(TagOf<F>(), distance < same<F>(0.5 - 0x1p-30))) [[unlikely]]
      return as<int16_t>(hn::IfThenElse(beyond, exact(both, less1), both));
    return clipped(less1, beyond, both, wholeRe, wholeIm);
  }
  template <class W> auto factorOf(W less1) const {
    const auto square = convertLanes<double>(less1);
    using F = std::remove_const_t<decltype(square)>;
    return same<F>(level) / hn::Sqrt(square + same<F>(1));
  }

  template <class W> [[gnu::noinline]] W exact(W both, W less1) const {
    const TagOf<W> d;
    int32_t lane[kLanesOf<W>];
    int32_t square[kLanesOf<W>];
    store(both, d, lane);
    store(less1, d, square);
    for (size_t i = 0; i < kLanesOf<W>; ++i) {
      const uint32_t s = static_cast<uint32_t>(square[i]) + 1;
      const int32_t re = s == 0 ? level : exactPart(static_cast<int16_t>(lane[i]), s, level);
      const int32_t im = s == 0 ? 0 : exactPart(lane[i] >> 16, s, level);
      lane[i] = static_cast<int32_t>(static_cast<uint32_t>(im) << 16 | (static_cast<uint32_t>(re) & 0xFFFF));
    }
    return load(d, lane);
  }
};

// ---- the functions

// Runs a kernel over all elements: as they lie in memory, or by parts with as many at a time as fill a register as doubles.
template <class Kernel, class T, class... Src> QvxStatus over(Kernel kernel, T* dst, int len, Src... src) {
  return loop(kernel, destination(dst), 2 * elements(len), source(src)...);
}
template <class Kernel, class T> QvxStatus overParts(Kernel kernel, const T* src, T* dst, int len) {
  return loop<double>(kernel, InterleavedDestination<Part<T>>{parts(dst)}, elements(len), deinterleaved(src));
}

template <Side kSide, class T> QvxStatus clip(const T* src, T* dst, int len, Part<T> level) {
  const QvxStatus status = checkLevel(len, src, dst, level);
  if (status != qvxStatOk) return status;
  if constexpr (std::is_same_v<T, Qvx16sc>) {
    return over(Clip16<kSide>{level}, dst, len, src);
  } else if constexpr (std::is_same_v<T, Qvx32fc>) {
    if constexpr (kHasMasks) {
      if (!kDividesFast) return over(ClipSingle<kSide, false>{level}, dst, len, src);
    }
    return over(ClipSingle<kSide, true>{level}, dst, len, src);
  } else {
    return overParts(Clip<kSide>{level}, src, dst, len);
  }
}

template <Side kSide, class T> QvxStatus replace(const T* src, T* dst, int len, Part<T> level, T value) {
  const QvxStatus status = checkLevel(len, src, dst, level);
  if (status != qvxStatOk) return status;
  if constexpr (std::is_same_v<T, Qvx16sc>) return over(Replace16<kSide>{level}, dst, len, src, Constant{value});
  else if constexpr (std::is_same_v<T, Qvx32fc>) return over(ReplaceSingle<kSide>{level}, dst, len, src, Constant{value});
  else return overParts(Replace<kSide, T>{level, value}, src, dst, len);
}

template <class T> QvxStatus raise(const T* src, T* dst, int len, Part<T> level) {
  if (level != 0) return clip<Side::kBelow>(src, dst, len, level);
  const QvxStatus status = check(len, src, dst);
  if (status != qvxStatOk || src == dst) return status;
  return over([](auto v) { return v; }, dst, len, src);
}

template <class T> QvxStatus lower(const T* src, T* dst, int len, Part<T> level) {
  if (level != 0) return clip<Side::kAbove>(src, dst, len, level);
  const QvxStatus status = check(len, src, dst);
  if (status != qvxStatOk) return status;
  return over([](auto v) { return v; }, dst, len, Constant{T{0, 0}});
}

template <class T> QvxStatus twoWay(const T* src, T* dst, int len, Part<T> level, int relOp) {
  if (relOp == kLessThan) return raise(src, dst, len, level);
  if (relOp == kGreaterThan) return lower(src, dst, len, level);
  const QvxStatus status = check(len, src, dst);
  return status != qvxStatOk ? status : qvxStatBadArg;
}

}  // namespace

// clang-format off
QvxStatus qvxsThreshold_16sc(const Qvx16sc* a, Qvx16sc* d, int len, Qvx16s level, int relOp) { return twoWay(a, d, len, level, relOp); }
QvxStatus qvxsThreshold_16sc_I(Qvx16sc* d, int len, Qvx16s level, int relOp) { return twoWay(d, d, len, level, relOp); }
QvxStatus qvxsThreshold_32fc(const Qvx32fc* a, Qvx32fc* d, int len, Qvx32f level, int relOp) { return twoWay(a, d, len, level, relOp); }
QvxStatus qvxsThreshold_32fc_I(Qvx32fc* d, int len, Qvx32f level, int relOp) { return twoWay(d, d, len, level, relOp); }
QvxStatus qvxsThreshold_64fc(const Qvx64fc* a, Qvx64fc* d, int len, Qvx64f level, int relOp) { return twoWay(a, d, len, level, relOp); }
QvxStatus qvxsThreshold_64fc_I(Qvx64fc* d, int len, Qvx64f level, int relOp) { return twoWay(d, d, len, level, relOp); }

QvxStatus qvxsThreshold_LT_16sc(const Qvx16sc* a, Qvx16sc* d, int len, Qvx16s level) { return raise(a, d, len, level); }
QvxStatus qvxsThreshold_LT_16sc_I(Qvx16sc* d, int len, Qvx16s level) { return raise(d, d, len, level); }
QvxStatus qvxsThreshold_LT_32fc(const Qvx32fc* a, Qvx32fc* d, int len, Qvx32f level) { return raise(a, d, len, level); }
QvxStatus qvxsThreshold_LT_32fc_I(Qvx32fc* d, int len, Qvx32f level) { return raise(d, d, len, level); }
QvxStatus qvxsThreshold_LT_64fc(const Qvx64fc* a, Qvx64fc* d, int len, Qvx64f level) { return raise(a, d, len, level); }
QvxStatus qvxsThreshold_LT_64fc_I(Qvx64fc* d, int len, Qvx64f level) { return raise(d, d, len, level); }

QvxStatus qvxsThreshold_GT_16sc(const Qvx16sc* a, Qvx16sc* d, int len, Qvx16s level) { return lower(a, d, len, level); }
QvxStatus qvxsThreshold_GT_16sc_I(Qvx16sc* d, int len, Qvx16s level) { return lower(d, d, len, level); }
QvxStatus qvxsThreshold_GT_32fc(const Qvx32fc* a, Qvx32fc* d, int len, Qvx32f level) { return lower(a, d, len, level); }
QvxStatus qvxsThreshold_GT_32fc_I(Qvx32fc* d, int len, Qvx32f level) { return lower(d, d, len, level); }
QvxStatus qvxsThreshold_GT_64fc(const Qvx64fc* a, Qvx64fc* d, int len, Qvx64f level) { return lower(a, d, len, level); }
QvxStatus qvxsThreshold_GT_64fc_I(Qvx64fc* d, int len, Qvx64f level) { return lower(d, d, len, level); }

QvxStatus qvxsThreshold_LTVal_16sc(const Qvx16sc* a, Qvx16sc* d, int len, Qvx16s level, Qvx16sc value) { return replace<Side::kBelow>(a, d, len, level, value); }
QvxStatus qvxsThreshold_LTVal_16sc_I(Qvx16sc* d, int len, Qvx16s level, Qvx16sc value) { return replace<Side::kBelow>(d, d, len, level, value); }
QvxStatus qvxsThreshold_LTVal_32fc(const Qvx32fc* a, Qvx32fc* d, int len, Qvx32f level, Qvx32fc value) { return replace<Side::kBelow>(a, d, len, level, value); }
QvxStatus qvxsThreshold_LTVal_32fc_I(Qvx32fc* d, int len, Qvx32f level, Qvx32fc value) { return replace<Side::kBelow>(d, d, len, level, value); }
QvxStatus qvxsThreshold_LTVal_64fc(const Qvx64fc* a, Qvx64fc* d, int len, Qvx64f level, Qvx64fc value) { return replace<Side::kBelow>(a, d, len, level, value); }
QvxStatus qvxsThreshold_LTVal_64fc_I(Qvx64fc* d, int len, Qvx64f level, Qvx64fc value) { return replace<Side::kBelow>(d, d, len, level, value); }

QvxStatus qvxsThreshold_GTVal_16sc(const Qvx16sc* a, Qvx16sc* d, int len, Qvx16s level, Qvx16sc value) { return replace<Side::kAbove>(a, d, len, level, value); }
QvxStatus qvxsThreshold_GTVal_16sc_I(Qvx16sc* d, int len, Qvx16s level, Qvx16sc value) { return replace<Side::kAbove>(d, d, len, level, value); }
QvxStatus qvxsThreshold_GTVal_32fc(const Qvx32fc* a, Qvx32fc* d, int len, Qvx32f level, Qvx32fc value) { return replace<Side::kAbove>(a, d, len, level, value); }
QvxStatus qvxsThreshold_GTVal_32fc_I(Qvx32fc* d, int len, Qvx32f level, Qvx32fc value) { return replace<Side::kAbove>(d, d, len, level, value); }
QvxStatus qvxsThreshold_GTVal_64fc(const Qvx64fc* a, Qvx64fc* d, int len, Qvx64f level, Qvx64fc value) { return replace<Side::kAbove>(a, d, len, level, value); }
QvxStatus qvxsThreshold_GTVal_64fc_I(Qvx64fc* d, int len, Qvx64f level, Qvx64fc value) { return replace<Side::kAbove>(d, d, len, level, value); }
// clang-format on
