// Quotients for the plain loops: by the rule in integers, in 64-bit floats, and of floats.
#pragma once

#include <cmath>

#include "peers/plain_loop.h"

namespace plain {

// The second operand by the first; kReversed: the first by the second, which is how a constant divides.
template <bool kReversed> struct InOrder {
  static constexpr bool kAccumulates = false;
  template <class F> static auto ordered(F f) {
    return [f](auto a, auto b) { return kReversed ? f(b, a) : f(a, b); };
  }
};

// The rule in 64-bit integers: the remainder decides.
template <class T, class A, class B> T quotientByRule(A a, B b, int s) {
  using Limits = std::numeric_limits<T>;
  if (a == 0) return b == 0 ? T(0) : b > 0 ? Limits::max() : Limits::min();
  const int64_t divisor = int64_t{a} * (int64_t{1} << std::max(s, 0));
  const int64_t dividend = int64_t{b} * (int64_t{1} << std::max(-s, 0));
  const int64_t q = dividend / divisor;
  const int64_t twice = 2 * std::abs(dividend % divisor);
  const int64_t size = std::abs(divisor);
  const bool up = twice > size || (twice == size && (q & 1) != 0);
  return saturate<T>(q + (up ? ((dividend < 0) != (divisor < 0) ? -1 : 1) : 0));
}

template <bool kReversed = false> struct QuotientByRule : InOrder<kReversed> {
  template <class D, class A, class B, class L> static void dispatch(const L& loop, int s = 0) {
    loop([s](A x, B y) { return InOrder<kReversed>::ordered([s](auto a, auto b) { return quotientByRule<D>(a, b, s); })(x, y); });
  }
};

// The same in 64-bit floats, without a branch.
template <class T> T roundedQuotient(double a, double b, double factor) {
  const double q = b * factor / a;
  const double limited = std::min(std::max(q, double(std::numeric_limits<T>::min())), double(std::numeric_limits<T>::max()));
  return static_cast<T>(static_cast<int32_t>(std::rint(b == 0 ? 0.0 : limited)));
}

template <bool kReversed = false> struct QuotientInDoubles : InOrder<kReversed> {
  template <class D, class A, class B, class L> static void dispatch(const L& loop, int s = 0) {
    const double factor = powerOfTwo<double>(-s);
    loop([factor](A x, B y) {
      return InOrder<kReversed>::ordered([factor](auto a, auto b) { return roundedQuotient<D>(a, b, factor); })(x, y);
    });
  }
};

// Rounded by a mode.
struct RoundedQuotient : InOrder<false> {
  template <class D, class A, class B, class L> static void dispatch(const L& loop, QvxRoundMode mode, int s) {
    const double factor = powerOfTwo<double>(-s);
    const auto with = [&](auto round) {
      loop([=](A a, B b) {
        const double q = double(b) * factor / double(a);
        const double limited =
            std::min(std::max(q, double(std::numeric_limits<D>::min())), double(std::numeric_limits<D>::max()));
        return static_cast<D>(static_cast<int32_t>(round(b == 0 ? 0.0 : limited)));
      });
    };
    if (mode == qvxRoundTowardZero) with([](double v) { return std::trunc(v); });
    else if (mode == qvxRoundNearestEven) with([](double v) { return std::rint(v); });
    else with([](double v) { return std::trunc(v + std::copysign(0.5, v)); });
  }
};

// Complex integers in 64-bit floats: two divisions for an element.
template <bool kReversed = false> struct ComplexQuotientInDoubles : InOrder<kReversed> {
  template <class D, class... E, class L> static void dispatch(const L& loop, int s) {
    const double factor = powerOfTwo<double>(-s);
    loop([factor](D x, D y) {
      return InOrder<kReversed>::ordered([factor](D a, D b) {
        const double squares = double(a.re) * a.re + double(a.im) * a.im;
        const double re = double(b.re) * a.re + double(b.im) * a.im;
        const double im = double(b.im) * a.re - double(b.re) * a.im;
        return squares == 0 ? D{roundedQuotient<int16_t>(0, b.re, 1), roundedQuotient<int16_t>(0, b.im, 1)}
                            : D{roundedQuotient<int16_t>(squares, re, factor), roundedQuotient<int16_t>(squares, im, factor)};
      })(x, y);
    });
  }
};

template <class T> T dividedFloats(T a, T b) {
  if constexpr (kIsComplex<T>) {
    const auto squares = a.re * a.re + a.im * a.im;
    return {(a.re * b.re + a.im * b.im) / squares, (a.re * b.im - a.im * b.re) / squares};
  } else {
    return b / a;
  }
}

template <bool kReversed = false> struct FloatQuotient : InOrder<kReversed> {
  template <class D, class... E, class L> static void dispatch(const L& loop) {
    loop([](D x, D y) { return kReversed ? dividedFloats(y, x) : dividedFloats(x, y); });
  }
};

// A complex quotient as a compiler makes it that may reorder and take reciprocals.
template <class T>
[[gnu::noipa, gnu::optimize("O3,fast-math")]] void fastComplexQuotient(const T* __restrict a, const T* __restrict b,
                                                                       T* __restrict d, int n) {
  for (int i = 0; i < n; ++i) {
    const auto r = 1 / (a[i].re * a[i].re + a[i].im * a[i].im);
    d[i] = {(a[i].re * b[i].re + a[i].im * b[i].im) * r, (a[i].re * b[i].im - a[i].im * b[i].re) * r};
  }
}

}  // namespace plain
