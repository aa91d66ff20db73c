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

template <Side kSide> struct Replace {
  double level;

  template <class V> V operator()(V x, V value) const { return replaced(passes<kSide>(measured(x), level), value, x); }
};

// level * x / |x|. Most vectors have nothing to clip, and then a root and a division less to wait for.
template <Side kSide> struct Clip {
  double level;

  template <class V> V operator()(V x) const {
    const auto m = measured(x);
    const auto beyond = passes<kSide>(m, level);
    if (!isAny(beyond, m.value)) return x;
    return replaced(beyond, fromDoubles<V>(kSide == Side::kBelow ? raised(m) : lowered(m)), x);
  }

 private:
  template <class W> W onLevel(W value, W square) const { return value / hn::Sqrt(square) * same<W>(level); }

  // A zero has the phase of its signs.
  template <class W> W raised(const Measured<W>& m) const {
    return hn::IfThenElse(m.isZero(), hn::CopySign(byPart<W>(level, 0), m.value), onLevel(m.value, m.square));
  }
  // So has an infinite element.
  template <class W> W lowered(const Measured<W>& m) const {
    if (!isAny(m.isInfinite(), m.value)) return onLevel(m.value, m.square);
    const W part = hn::Abs(m.value);
    const W one = hn::IfThenElseZero(part == same<W>(std::numeric_limits<double>::infinity()), same<W>(1));
    const W value = hn::IfThenElse(m.isInfinite(), hn::CopySign(one, m.value), m.value);
    return onLevel(value, squareOf(value));
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

// The quotients come from doubles, which are off by 2^-36 at most whatever the rounding mode. One of those nearer than 2^-30 to
// the middle of two integers, 1 in 10^9, sends its vector to exactPart.
template <Side kSide> struct Clip16 {
  int level;

  template <class V> V operator()(V x) const {
    const auto less1 = squareLess1(x);
    const auto beyond = passes<kSide>(less1, level);
    using W = std::remove_const_t<decltype(less1)>;
    const TagOf<W> d;
    if (hn::AllFalse(d, beyond)) return x;
    const W both = as<int32_t>(x);
    bool isClear = true;
    const auto perLevel = factor(less1);
    W re = rounded(hn::ShiftRight<16>(hn::ShiftLeft<16>(both)), perLevel, isClear);
    const W im = rounded(hn::ShiftRight<16>(both), perLevel, isClear);
    if constexpr (kSide == Side::kBelow) re = hn::IfThenElse(less1 == same<W>(-1), same<W>(level), re);
    W clipped = hn::ShiftLeft<16>(im) | (re & same<W>(0xFFFF));
    if (!isClear) clipped = exact(both, less1);
    return as<int16_t>(hn::IfThenElse(beyond, clipped, both));
  }

 private:
  template <class W> auto factor(W less1) const {
    const auto square = convertLanes<double>(less1);
    using F = std::remove_const_t<decltype(square)>;
    const F one = same<F>(1);
    const F root = hn::Sqrt(square + one);
    return hn::IfThenElseZero(root > hn::Zero(TagOf<F>()), same<F>(level) / root);
  }

  template <class W, class F> W rounded(W part, F factor, bool& isClear) const {
    const F quotient = convertLanes<double>(part) * factor;
    const F up = quotient + hn::CopySign(same<F>(0.5), quotient);
    const W whole = toIntTruncated(up);
    const F behind = hn::Abs(up - convertLanes<double>(whole)) - same<F>(0.5);
    isClear = isClear && hn::AllTrue(TagOf<F>(), hn::Abs(behind) < same<F>(0.5 - 0x1p-30));
    return whole;
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

// Runs a kernel over all elements, with as many at a time as fill a register with what it computes in: doubles of all parts, or
// of one part of 16-bit elements.
template <class Inner = uint8_t, class Kernel, class T, class... Src> QvxStatus over(Kernel kernel, T* dst, int len, Src... src) {
  return loop<Inner>(kernel, destination(dst), 2 * elements(len), source(src)...);
}

template <Side kSide, class T> QvxStatus clip(const T* src, T* dst, int len, Part<T> level) {
  const QvxStatus status = checkLevel(len, src, dst, level);
  if (status != qvxStatOk) return status;
  if constexpr (std::is_same_v<T, Qvx16sc>) return over<Qvx32s>(Clip16<kSide>{level}, dst, len, src);
  else return over<Qvx64f>(Clip<kSide>{level}, dst, len, src);
}

template <Side kSide, class T> QvxStatus replace(const T* src, T* dst, int len, Part<T> level, T value) {
  const QvxStatus status = checkLevel(len, src, dst, level);
  if (status != qvxStatOk) return status;
  if constexpr (std::is_same_v<T, Qvx16sc>) return over(Replace16<kSide>{level}, dst, len, src, Constant{value});
  else return over<Qvx64f>(Replace<kSide>{level}, dst, len, src, Constant{value});
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
