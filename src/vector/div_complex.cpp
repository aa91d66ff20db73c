// Quotients of complex 16-bit integers: dst = src2 / src1 and dst = src / val
//
// b * conj(a) and |a|^2 are exact in 32 bits, and one 64-bit division serves both parts. The product with a reciprocal is not
// the quotient Q, but Q comes no nearer than 2^-33 to the middle between two integers without being it: for s >= 0 by 1 / (2 *
// |a|^2 * 2^s), where only |a|^2 * 2^s up to 2^32 has results other than 0, for s < 0 by 1 / (2 * |a|^2). The error stays below
// 2^-36 for all results that do not saturate, so rounding to multiples of 2^-34 first gives the quotient's own side.
#include "vector/divisor.h"
#include "vector/product.h"
#include "vector/quotient.h"

using namespace qvx;

namespace {

constexpr int kFractionBits = 34;

struct ComplexQuotient {
  static constexpr QvxStatus kWarning = qvxWarnDivByZero;
  double scale;  // 2^(kFractionBits - scaleFactor)

  template <class V> V operator()(Flag& flag, V a, V b) const {
    const hn::RepartitionToWide<TagOf<V>> d32;
    const hn::Rebind<double, decltype(d32)> df;
    using I = Vec<decltype(d32)>;
    using F = Vec<decltype(df)>;
    const V divisor = oneForZero(a);
    // 2^31 wraps to a negative number.
    const F magnitude = hn::Abs(hn::PromoteTo(df, pairProducts(a, a)));
    const auto zero = magnitude == hn::Zero(df);
    flag.raise(df, zero);
    const F reciprocal = same<F>(scale) / hn::IfThenElse(zero, same<F>(Far<double>::kTiny), magnitude);
    const auto toInts = [=](I numerator) {
      const F rounded = hn::Round(hn::PromoteTo(df, numerator) * reciprocal);
      return toIntNearest(
          clippedBelow(clippedAbove(rounded * same<F>(powerOfTwo<double>(-kFractionBits)), INT16_MAX), INT16_MIN));
    };
    // The one product that is 2^31 is taken as 2^31 - 1, which changes nothing: its quotient is 1 * 2^-scaleFactor.
    const I product = pairProducts(b, divisor);
    const I re = toInts(product + hn::VecFromMask(d32, product == same<I>(INT32_MIN)));
    const I im = toInts(differencesOfProducts(swapped(b), divisor));
    return hn::OddEven(as<int16_t>(hn::ShiftLeft<16>(im)), as<int16_t>(re));
  }

 private:
  // Divided by 1, a dividend keeps the signs of its parts.
  template <class V> static V oneForZero(V v) {
    const auto pair = as<int32_t>(v);
    using I = std::remove_const_t<decltype(pair)>;
    return as<int16_t>(hn::IfThenElse(pair == same<I>(0), same<I>(1), pair));
  }
};

template <Window kWindow> struct ComplexQuotientFit {
  int scaleFactor;

  template <class Op, class Dst, class... Src> QvxStatus run(Op, Dst dst, size_t n, Src... src) const {
    const RoundingScope scope(kRoundsByInstruction ? Rounding::kCallers : Rounding::kNearest);
    const double scale = scaleOf<double>(scaleFactor, kWindow) * powerOfTwo<double>(kFractionBits);
    return loop<float>(ComplexQuotient{scale}, dst, n, src...);
  }
};

constexpr TeamRule kQuotient = {.worthIt = 8192};
constexpr TeamRule kByConstant = {.worthIt = 16384};

QvxStatus divide(const Qvx16sc* divisor, const Qvx16sc* dividend, Qvx16sc* dst, int len, int sf) {
  using Fit = ComplexQuotientFit<Window{-32, 32}>;
  return map<IntegerDivision>(dst, len, InTeam<kQuotient, Fit>{{sf}}, OnesPastEnd{divisor}, dividend);
}

QvxStatus divideBy(Qvx16sc val, const Qvx16sc* src, Qvx16sc* dst, int len, int sf) {
  if (isZero(val)) return refused(len, src, dst);
  using Fit = ComplexQuotientFit<Window{-30, 15}>;
  return map<IntegerDivision>(dst, len, InTeam<kByConstant, Fit>{{sf}}, Constant{val}, src);
}

}  // namespace

// clang-format off
QvxStatus qvxsDiv_16sc_Sfs(const Qvx16sc* a, const Qvx16sc* b, Qvx16sc* d, int len, int sf) { return divide(a, b, d, len, sf); }
QvxStatus qvxsDiv_16sc_ISfs(const Qvx16sc* a, Qvx16sc* d, int len, int sf) { return divide(a, d, d, len, sf); }
QvxStatus qvxsDivC_16sc_Sfs(const Qvx16sc* a, Qvx16sc val, Qvx16sc* d, int len, int sf) { return divideBy(val, a, d, len, sf); }
QvxStatus qvxsDivC_16sc_ISfs(Qvx16sc val, Qvx16sc* d, int len, int sf) { return divideBy(val, d, d, len, sf); }
// clang-format on
