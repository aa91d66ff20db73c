// Quotients of 8, 16 and 32-bit integers by way of floats: (b * 2^-s) / a, rounded to an integer once more, saturated.
//
// The result is the exact quotient Q rounded unless a float quotient lies on a limit t, an integer or the middle between two, and
// Q does not. The limit is a float itself, so rounding Q to a float never passes it; what counts is how near Q comes to it:
//   s >= 0: Q = b / (a * 2^s), and for t = m / 2 the difference is a multiple of 1 / (2 * a * 2^s), or 1 / 2b of Q.
//           16-bit dividends stay away by 2^-17 of Q, those of 32 bits by 2^-32.
//   s < 0:  the difference is a multiple of 1 / 2a, which is 1 / (2 * a * t) of Q: 2^-17 for 8-bit divisors and results, 2^-33
//           for those of 16 bits.
// A 32-bit float is right to 2^-23 in any rounding mode, a 64-bit one to 2^-52. So 32-bit floats do for all but 16-bit elements
// at negative scale factors, which need a quotient that tells on which side of it the exact one lies.
#pragma once

#include "frame/power.h"
#include "frame/rounding.h"
#include "frame/team.h"
#include "frame/to_int.h"

namespace qvx {

// Scale factors beyond these give 0 or saturate, however near the quotient is to the rest of the range.
struct Window {
  int least;
  int most;
};

// Powers of two that take any quotient but 0 out of every range, below any half, or, as a divisor, out of every range at any
// scale factor. Their products stay within the float's exponents.
template <class F> struct Far;
template <> struct Far<float> {
  static constexpr int kUp = 48;
  static constexpr int kDown = -40;
  static constexpr float kTiny = 0x1p-60F;
};
template <> struct Far<double> {
  static constexpr int kUp = 100;
  static constexpr int kDown = -100;
  static constexpr double kTiny = 0x1p-200;
};

template <class F> F scaleOf(int scaleFactor, Window window) {
  if (scaleFactor < window.least) return powerOfTwo<F>(Far<F>::kUp);
  if (scaleFactor > window.most) return powerOfTwo<F>(Far<F>::kDown);
  return powerOfTwo<F>(-scaleFactor);
}

struct Nearest {
  template <class V> V operator()(V x, V a) const { return x / a; }
};

// Rounded to odd: truncated, with the last bit set if anything was cut off. No such float is a limit of a rounding, so the next
// one sees the exact quotient; and the remainder of a division is a float.
struct ToOdd {
  template <class V> V operator()(V x, V a) const {
    const TagOf<V> d;
    const hn::RebindToSigned<TagOf<V>> di;
    using I = Vec<decltype(di)>;
    const V q = x / a;
    const V remainder = hn::NegMulAdd(q, a, x);
    const auto inexact = hn::RebindMask(di, remainder != hn::Zero(d));
    const I tooLarge = hn::BroadcastSignBit(hn::BitCast(di, remainder ^ x));
    const I bits = hn::BitCast(di, q);
    return hn::BitCast(d, hn::IfThenElse(inexact, (bits + tooLarge) | same<I>(1), bits));
  }
};

// A kernel in lanes of F.
template <class T, class F, class Divide, class Convert> auto quotientKernel(F scale, Divide divide, Convert convert) {
  return warns<qvxWarnDivByZero>([=](Flag& flag, auto a, auto b) {
    const auto divisor = convertLanes<F>(a);
    using V = std::remove_const_t<decltype(divisor)>;
    const TagOf<V> d;
    const auto zero = divisor == hn::Zero(d);
    flag.raise(d, zero);
    const V x = convertLanes<F>(b) * same<V>(scale);
    const V q = divide(x, hn::IfThenElse(zero, same<V>(Far<F>::kTiny), divisor));
    return convertLanes<T>(convert(clippedAbove(q, std::numeric_limits<T>::max())));
  });
}

// As a fit, for sources divisor and dividend.
template <int kMode, Window kWindow> struct IntegerQuotient {
  int scaleFactor;

  template <class Op, class Dst, class... Src> QvxStatus run(Op, Dst dst, size_t n, Src... src) const {
    using T = typename Dst::Lane;
    constexpr size_t kBytes = std::max({sizeof(T), sizeof(typename Src::Lane)...});
    const RoundingScope scope(kMode == qvxRoundNearestEven && !kRoundsByInstruction ? Rounding::kNearest : Rounding::kCallers);
    const auto with = [&]<class F, class Divide>(F, Divide divide) {
      return loop<F>(quotientKernel<T>(scaleOf<F>(scaleFactor, kWindow), divide, ToInt<kMode>()), dst, n, src...);
    };
    if constexpr (kBytes == 4) {
      return with(double(), Nearest());
    } else if (kBytes == 1 || scaleFactor >= 0) {
      return with(float(), Nearest());
    } else if constexpr (kFuses) {
      return with(float(), ToOdd());
    } else if constexpr (kBytes == 2) {
      return with(double(), Nearest());
    }
  }
};

struct IntegerDivision {};

}  // namespace qvx
