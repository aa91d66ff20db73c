// Principal square roots of complex numbers: the real part is not negative, the imaginary part has the source's sign.
//
// With the magnitude |z|, the larger part of the root is t = sqrt((|z| + |re|) / 2) and the smaller one |im| / (2t), so nothing
// cancels. Where re is negative, they change places.
#include "frame/complex.h"
#include "frame/power.h"
#include "frame/rounding.h"
#include "frame/team.h"
#include "vector/product.h"

using namespace qvx;

namespace {

// The root made of t and `smaller`.
template <class V> Complex<V> placed(V t, V smaller, V re, V im) {
  const auto isLeft = re < hn::Zero(TagOf<V>());
  return {hn::IfThenElse(isLeft, smaller, t), hn::CopySign(hn::IfThenElse(isLeft, t, smaller), im)};
}

// Zeros and infinities as the C library has them: the root of 0 is 0, of an infinite part infinite. All other
// values, NaN included, come out right by themselves.
template <class V> Complex<V> placedWithLimits(V t, V re, V im) {
  const V infinity = same<V>(std::numeric_limits<LaneOf<V>>::infinity());
  const V height = hn::Abs(im);
  const auto isHigh = height == infinity;
  t = hn::IfThenElse(hn::Or(isHigh, hn::Abs(re) == infinity), infinity, t);
  const V divisor = hn::IfThenElse(t == hn::Zero(TagOf<V>()), same<V>(1), t + t);
  return placed(t, hn::IfThenElse(isHigh, infinity, height / divisor), re, im);
}

template <class V> V half(V v) { return v * same<V>(LaneOf<V>(0.5)); }

// Through doubles, in which no square overflows or vanishes: each part is wrong by less than 0.50001 of a unit in its last place.
struct Root32 {
  template <class V> V operator()(V z) const {
    constexpr size_t N = kLanesOf<V> / 2;
    const TagOf<V> d;
    const Lanes<double, N> wide;
    const Lanes<float, N> narrow;
    const Lanes<uint64_t, N> both;
    const Lanes<uint32_t, N> one;
    const auto re = hn::PromoteTo(wide, hn::LowerHalf(narrow, hn::ConcatEven(d, z, z)));
    const auto im = hn::PromoteTo(wide, hn::LowerHalf(narrow, hn::ConcatOdd(d, z, z)));
    const auto root = placedWithLimits(hn::Sqrt(half(hn::Sqrt(re * re + im * im) + hn::Abs(re))), re, im);
    const auto bits = [&](auto v) { return hn::PromoteTo(both, hn::BitCast(one, hn::DemoteTo(narrow, v))); };
    return as<float>(bits(root.re) | hn::ShiftLeft<32>(bits(root.im)));
  }
};

// By a power of 4 near the larger part, so that no square overflows and only those vanish that do not count. The smaller part of
// the root is divided out of the source as it was: a far smaller im would lose its last bits in the scaling.
struct Root64 {
  template <class V> Complex<V> operator()(Complex<V> z) const {
    using U = Vec<hn::RebindToUnsigned<TagOf<V>>>;
    constexpr uint64_t kOne = uint64_t{1023} << 52;
    const U exponents = same<U>(uint64_t{0x7FF} << 52);
    const V least = same<V>(std::numeric_limits<double>::min());
    const U larger = as<uint64_t>(hn::Max(hn::Max(hn::Abs(z.re), hn::Abs(z.im)), least)) & exponents;
    const U up = hn::ShiftRight<1>(larger + same<U>(kOne)) & exponents;  // 2^h
    const V down = as<double>(same<U>(3 * kOne) - (up + up));            // 4^-h
    const V re = z.re * down;
    const V im = z.im * down;
    const V t = hn::Sqrt(half(hn::Sqrt(re * re + im * im) + hn::Abs(re))) * as<double>(up);
    return placedWithLimits(t, z.re, z.im);
  }
};

// Each part of the exact root times 2^-scaleFactor, nearest even, saturated. In doubles: over all sources and scale factors no
// part other than an exact one comes nearer to a tie than 2^-31 of its result's last bit, 16 times as far as the arithmetic can
// be wrong in any rounding mode; and at a tie t, the smaller part and |z| are integers.
struct Root16 {
  double factor;

  template <class V> V operator()(V z) const {
    const hn::Repartition<int32_t, TagOf<V>> d;
    const hn::Half<decltype(d)> dh;
    using W = Vec<decltype(d)>;
    const W pairs = as<int32_t>(z);
    const W re = hn::ShiftRight<16>(hn::ShiftLeft<16>(pairs));
    const W im = hn::ShiftRight<16>(pairs);
    const W norm = pairProducts(z, z);
    const auto low = roots(hn::LowerHalf(dh, re), hn::LowerHalf(dh, im), hn::LowerHalf(dh, norm));
    const auto high = roots(hn::UpperHalf(dh, re), hn::UpperHalf(dh, im), hn::UpperHalf(dh, norm));
    const W rootRe = hn::Combine(d, high.re, low.re);
    const W rootIm = hn::Combine(d, high.im, low.im);
    return narrow<int16_t>(Pair<W>{hn::InterleaveLower(d, rootRe, rootIm), hn::InterleaveUpper(d, rootRe, rootIm)});
  }

 private:
  template <class W> Complex<W> roots(W re32, W im32, W norm32) const {
    const Lanes<double, kLanesOf<W>> d;
    using V = Vec<decltype(d)>;
    const V re = hn::PromoteTo(d, re32);
    const V im = hn::PromoteTo(d, im32);
    const V norm = hn::Abs(hn::PromoteTo(d, norm32));  // 2^31 has come out negative
    const V t = hn::Sqrt(half(hn::Sqrt(norm) + hn::Abs(re)));
    const V smaller = hn::Abs(im) / hn::Max(t + t, same<V>(1));
    const auto scaled = [this](V v) { return hn::Min(v * same<V>(factor), same<V>(32768)); };
    const auto root = placed(scaled(t), scaled(smaller), re, im);
    return {toIntNearest(root.re), toIntNearest(root.im)};
  }
};

// Lengths that take one thread 3 to 4 us.
constexpr TeamRule kRoot32fc = {.worthIt = 4096};
constexpr TeamRule kRoot64fc = {.worthIt = 4096};
constexpr TeamRule kRoot16sc = {.worthIt = 4096};

QvxStatus root16sc(const Qvx16sc* src, Qvx16sc* dst, int len, int sf) {
  const QvxStatus status = check(len, src, dst);
  if (status != qvxStatOk) return status;
  // The parts are 0 or between 2^-8.5 and 199: beyond these all are 0, or all but 0 saturate.
  const double factor = powerOfTwo<double>(-std::clamp(sf, -24, 9));
  return inTeam<kRoot16sc>(elements(len), [=](size_t from, size_t count) {
    const RoundingScope nearest(kRoundsByInstruction ? Rounding::kCallers : Rounding::kNearest);
    return loop(Root16{factor}, destination(dst + from), 2 * count, source(src + from));
  });
}

}  // namespace

// clang-format off
QvxStatus qvxsSqrt_32fc(const Qvx32fc* a, Qvx32fc* d, int len) { return map<Root32>(d, len, InTeam<kRoot32fc>{}, a); }
QvxStatus qvxsSqrt_32fc_I(Qvx32fc* d, int len) { return map<Root32>(d, len, InTeam<kRoot32fc>{}, d); }
QvxStatus qvxsSqrt_64fc(const Qvx64fc* a, Qvx64fc* d, int len) { return mapByParts<Root64>(d, len, InTeam<kRoot64fc, InOwnLanes>{}, ByParts{a}); }
QvxStatus qvxsSqrt_64fc_I(Qvx64fc* d, int len) { return mapByParts<Root64>(d, len, InTeam<kRoot64fc, InOwnLanes>{}, ByParts<Qvx64fc>{d}); }
QvxStatus qvxsSqrt_16sc_Sfs(const Qvx16sc* a, Qvx16sc* d, int len, int sf) { return root16sc(a, d, len, sf); }
QvxStatus qvxsSqrt_16sc_ISfs(Qvx16sc* d, int len, int sf) { return root16sc(d, d, len, sf); }
// clang-format on
