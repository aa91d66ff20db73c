// Complex elements clipped to a magnitude or replaced beyond it.
#include <cmath>
#include <cstdlib>

#include "convert/level.h"
#include "convert/magnitude.h"

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

// 32-bit elements as they lie in memory: a whole one is as wide as the double of its square, so the comparison's mask chooses
// among elements (0.6 of the time of parts that are put together again).
template <Side kSide> struct ReplaceSingle {
  double level;

  template <class V> V operator()(V x, V value) const {
    const auto m = measured(partsOf(x));
    return as<float>(hn::IfThenElse(passes<kSide>(m, level), as<double>(value), as<double>(x)));
  }
};

// level / |x| * x. Most vectors have nothing to clip, and then a root and a division less to wait for.
template <Side kSide> struct Clip {
  double level;

  template <class V> Pair<V> operator()(Pair<V> x) const {
    if constexpr (std::is_same_v<LaneOf<V>, double>) {
      const V square = squareOf(x);
      if (needNoUnit(square)) [[likely]]
        return unscaled(x, square);
    }
    const auto m = measured(x);
    const auto beyond = passes<kSide>(m, level);
    if (!isAny(beyond, m.square)) return x;
    return replaced(beyond, fromDoubles<V>(onSide(m)), x);
  }
  template <class W> Pair<W> onSide(const Measured<W>& m) const {
    if constexpr (kSide == Side::kBelow) return raised(m);
    else return lowered(m);
  }

 private:
  // One division an element. The root of a subnormal element is down to 2^-51: a large level is divided in parts.
  template <class W> Pair<W> onLevel(Pair<W> value, W square) const {
    const double large = kSide == Side::kBelow && level > 1 ? 0x1p64 : 1;
    const W factor = same<W>(level / large) / hn::Sqrt(square);
    return each(value, [&](W part) {
      if constexpr (kSide == Side::kBelow) part = part * same<W>(large);
      return part * factor;
    });
  }

  // Units are powers of two, so squares that stay within a double's range without them give the same bits (8 elements: 12 cycles,
  // not 15).
  template <class V> bool needNoUnit(V square) const {
    constexpr double kLeast = 0x1p-900;
    constexpr double kMost = 0x1p1000;
    if (!(level * level > kLeast && level * level < kMost)) return false;
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
  // So has an infinite element.
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

template <Side kSide> struct ClipSingle {
  double level;

  template <class V> V operator()(V x) const {
    const auto m = measured(partsOf(x));
    const auto beyond = passes<kSide>(m, level);
    if (!isAny(beyond, m.square)) return x;
    using Half = Vec<hn::Half<TagOf<V>>>;
    const Pair<Half> clipped = fromDoubles<Half>(Clip<kSide>{level}.onSide(m));
    return as<float>(hn::IfThenElse(beyond, as<double>(inTurn(clipped)), as<double>(x)));
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
// no middle of two integers to meet.
int32_t exactPart(int32_t part, uint32_t square, int level) {
  const uint64_t product = static_cast<uint64_t>(std::abs(part)) * static_cast<uint64_t>(level);
  const auto isAbove = [twice = 4 * product * product, square](uint64_t odd) { return twice > odd * odd * square; };
  auto whole = static_cast<uint64_t>(static_cast<double>(product) / std::sqrt(static_cast<double>(square)));
  if (isAbove(2 * whole + 1)) ++whole;
  else if (whole > 0 && !isAbove(2 * whole - 1)) --whole;
  return part < 0 ? -static_cast<int32_t>(whole) : static_cast<int32_t>(whole);
}

// The quotients come from doubles, which are off by 2^-31 at most whatever the rounding mode. One of those nearer than 2^-24 to
// the middle of two integers, 1 in 10^7, sends its vector to exactPart.
template <Side kSide> struct Clip16 {
  int level;

  template <class V> V operator()(V x) const {
    const auto less1 = squareLess1(x);
    const auto beyond = passes<kSide>(less1, level);
    using W = std::remove_const_t<decltype(less1)>;
    const TagOf<W> d;
    if (hn::AllFalse(d, beyond)) return x;
    const W both = as<int32_t>(x);
    // A zero counts as a one here, so that its quotients are numbers.
    const auto perLevel = factor(kSide == Side::kBelow ? hn::Max(less1, same<W>(0)) : less1);
    const auto re = fixedPoint(hn::ShiftRight<16>(hn::ShiftLeft<16>(both)), perLevel);
    const auto im = fixedPoint(hn::ShiftRight<16>(both), perLevel);
    const auto fractions = hn::OddEven(as<uint32_t>(hn::ShiftLeft<32>(im)), as<uint32_t>(re));
    using Fractions = std::remove_const_t<decltype(fractions)>;
    constexpr uint32_t kDoubt = 1 << (32 - 24);
    if (!hn::AllFalse(TagOf<Fractions>(), fractions + same<Fractions>(kDoubt) < same<Fractions>(2 * kDoubt))) [[unlikely]]
      return as<int16_t>(hn::IfThenElse(beyond, exact(both, less1), both));
    const auto whole = as<uint64_t>(hn::OddEven(as<int16_t>(hn::ShiftRight<16>(im)), as<int16_t>(hn::ShiftRight<32>(re))));
    W clipped = as<int32_t>(hn::TruncateTo(hn::RebindToUnsigned<TagOf<W>>(), whole));
    if constexpr (kSide == Side::kBelow) clipped = hn::IfThenElse(less1 == same<W>(-1), same<W>(level), clipped);
    return as<int16_t>(hn::IfThenElse(beyond, clipped, both));
  }

 private:
  template <class W> auto factor(W less1) const {
    const auto square = convertLanes<double>(less1);
    using F = std::remove_const_t<decltype(square)>;
    return same<F>(level) / hn::Sqrt(square + same<F>(1));
  }
  // part * factor + 1/2 with 32 bits behind the point, in the lower bits of a double whose last bit counts 2^-32: the 16 bits
  // before the point are the integer nearest to the product, and next to the middle of two all behind it are zeros or ones.
  template <class W, class F> static auto fixedPoint(W part, F factor) {
    return as<uint64_t>(hn::MulAdd(convertLanes<double>(part), factor, same<F>(0x1.8p20 + 0.5)));
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

// Runs a kernel over all elements, with as many at a time as fill a register with what it computes in: 16-bit elements, or the
// real parts of floats as doubles.
template <class Inner = uint8_t, class Kernel, class T, class... Src> QvxStatus over(Kernel kernel, T* dst, int len, Src... src) {
  return loop<Inner>(kernel, destination(dst), 2 * elements(len), source(src)...);
}
template <class Kernel, class T> QvxStatus overParts(Kernel kernel, const T* src, T* dst, int len) {
  return loop<double>(kernel, InterleavedDestination<Part<T>>{parts(dst)}, elements(len), deinterleaved(src));
}

template <Side kSide, class T> QvxStatus clip(const T* src, T* dst, int len, Part<T> level) {
  const QvxStatus status = checkLevel(len, src, dst, level);
  if (status != qvxStatOk) return status;
  if constexpr (std::is_same_v<T, Qvx16sc>) return over<Qvx32s>(Clip16<kSide>{level}, dst, len, src);
  else if constexpr (std::is_same_v<T, Qvx32fc>) return over(ClipSingle<kSide>{level}, dst, len, src);
  else return overParts(Clip<kSide>{level}, src, dst, len);
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
