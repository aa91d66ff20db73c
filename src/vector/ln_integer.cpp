// Logarithms of integers: times 2^-scaleFactor, nearest even, saturated. Values below 1 give the most negative number.
#include <cmath>

#include "frame/power.h"
#include "frame/rounding.h"
#include "math/ln.h"

using namespace qvx;

namespace {

struct Natural {
  static constexpr double kOfE = 1;
  static long double of(long double x) { return std::log(x); }
};
struct TenDecimal {
  static constexpr double kOfE = 4.342944819032518;
  static long double of(long double x) { return 10 * std::log10(x); }
};

// A double's logarithm decides, unless it lies so near to a half that its error, in which variants differ, might decide. That is
// one element in 2^16 at most, where the result has 31 bits: a long double decides there. Its error is 2^-63, and nothing but the
// exact ties of powers of ten lies nearer than 2^-60.
template <class Base> struct NearestLogarithm {
  int scaleFactor;
  double factor;

  explicit NearestLogarithm(int s) : scaleFactor(std::clamp(s, -64, 64)), factor(Base::kOfE * powerOfTwo<double>(-scaleFactor)) {}

  template <class V> V operator()(V x) const {
    const hn::Half<TagOf<V>> half;
    return hn::Combine(TagOf<V>(), inDoubles(hn::UpperHalf(half, x)), inDoubles(hn::LowerHalf(half, x)));
  }

 private:
  template <class V> V inDoubles(V x) const {
    const Lanes<double, kLanesOf<V>> d;
    using W = Vec<decltype(d)>;
    const W y = hn::Min(ln(hn::PromoteTo(d, x)) * same<W>(factor), same<W>(INT32_MAX));
    const V result = toIntNearest(y);
    const W fromHalf = hn::Abs(hn::Abs(y - hn::PromoteTo(d, result)) - same<W>(0.5));
    if (maskBits(d, fromHalf < y * same<W>(0x1p-48)) != 0) [[unlikely]]
      return exactly(x, result);
    return result;
  }

  template <class V> V exactly(V x, V result) const {
    const TagOf<V> d;
    int32_t sources[kLanesOf<V>];
    int32_t results[kLanesOf<V>];
    store(x, d, sources);
    store(result, d, results);
    for (size_t i = 0; i < kLanesOf<V>; ++i) results[i] = exactly(sources[i]);
    return load(d, results);
  }
  [[gnu::noinline, gnu::cold]] int32_t exactly(int32_t x) const {
    const long double v = std::ldexp(Base::of(static_cast<long double>(x)), -scaleFactor);
    if (v >= INT32_MAX) return INT32_MAX;
    const auto n = static_cast<int32_t>(v);
    const long double aboveHalf = v - static_cast<long double>(n) - 0.5L;
    const bool isTie = std::fabs(aboveHalf) < v * 0x1p-60L;
    return n + (isTie ? n & 1 : aboveHalf > 0);
  }
};

// The lanes, as bits in the order of memory, in which x is below `limit`.
template <class V> uint64_t below(V x, LaneOf<V> limit) { return maskBits(TagOf<V>(), x < same<V>(limit)); }
template <class V> uint64_t below(Pair<V> x, LaneOf<V> limit) { return below(x.lo, limit) | below(x.hi, limit) << kLanesOf<V>; }

// The logarithms of lanes from 1 on, and in the others the least number.
template <class To, class Log, class V> V orLeast(const Log& log, V x) {
  const V one = same<V>(1);
  return hn::IfThenElse(x < one, same<V>(std::numeric_limits<To>::min()), log(hn::Max(x, one)));
}

template <class Base, class From, class To> QvxStatus logarithm(const From* src, To* dst, int len, int sf) {
  const QvxStatus status = check(len, src, dst);
  if (status != qvxStatOk) return status;
  const RoundingScope nearest(kRoundsByInstruction ? Rounding::kCallers : Rounding::kNearest);
  const NearestLogarithm<Base> log(sf);
  const auto inLanes = [log](auto x) {
    const auto one = [log](auto v) { return orLeast<To>(log, v); };
    if constexpr (sizeof(From) == 2) return narrow<To>(each(widen<int32_t>(x), one));
    else if constexpr (sizeof(To) == 2) return narrowInOrder<To>(each(x, one));
    else return one(x);
  };
  const auto kernel = watched<FirstFlag>([inLanes](FirstFlag& flag, Place place, auto x) {
    const uint64_t bad = below(x, 1) & (~uint64_t{0} >> (64 - place.count));  // not those past the end
    if (bad != 0) [[unlikely]] {
      const uint64_t negative = below(x, 0);
      flag.raise(place, bad, [=](size_t lane) { return (negative >> lane & 1) != 0 ? qvxWarnLnNegArg : qvxWarnLnZeroArg; });
    }
    return inLanes(x);
  });
  if constexpr (sizeof(From) > sizeof(To)) return loop(kernel, destination(dst), elements(len), Places{}, InPairs{src});
  else return loop(kernel, destination(dst), elements(len), Places{}, source(src));
}

}  // namespace

// clang-format off
QvxStatus qvxsLn_16s_Sfs(const Qvx16s* a, Qvx16s* d, int len, int sf) { return logarithm<Natural>(a, d, len, sf); }
QvxStatus qvxsLn_16s_ISfs(Qvx16s* d, int len, int sf) { return logarithm<Natural>(d, d, len, sf); }
QvxStatus qvxsLn_32s_Sfs(const Qvx32s* a, Qvx32s* d, int len, int sf) { return logarithm<Natural>(a, d, len, sf); }
QvxStatus qvxsLn_32s_ISfs(Qvx32s* d, int len, int sf) { return logarithm<Natural>(d, d, len, sf); }
QvxStatus qvxsLn_32s16s_Sfs(const Qvx32s* a, Qvx16s* d, int len, int sf) { return logarithm<Natural>(a, d, len, sf); }
QvxStatus qvxs10Log10_32s_Sfs(const Qvx32s* a, Qvx32s* d, int len, int sf) { return logarithm<TenDecimal>(a, d, len, sf); }
QvxStatus qvxs10Log10_32s_ISfs(Qvx32s* d, int len, int sf) { return logarithm<TenDecimal>(d, d, len, sf); }
// clang-format on
