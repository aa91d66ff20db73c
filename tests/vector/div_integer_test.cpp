// Quotients of integers: exact, rounded and saturated, with zero divisors and far scale factors.
#include <qvx/qvxs.h>

#include <cmath>

#include "reference/quotient.h"
#include "vector/divisors.h"

namespace {

using namespace tests;
using reference::Mode;
using reference::quotient;
using reference::ScaleWindow;
using reference::Wide;

constexpr ScaleWindow kShort = {-30, 15};
constexpr ScaleWindow kShortRounded = {-30, 16};
constexpr ScaleWindow kComplex = {-32, 32};
constexpr ScaleWindow kLong = {-62, 32};

const auto kShortQuotient = []<class T>(T a, T b, int s) { return quotient<T>(a, b, s, kShort); };

// b * conj(a) / |a|^2, or b's own signs for a divisor of zero.
auto complexQuotient(ScaleWindow window) {
  return [=](Qvx16sc a, Qvx16sc b, int s) {
    const Wide squares = Wide{a.re} * a.re + Wide{a.im} * a.im;
    const Wide re = squares == 0 ? b.re : Wide{b.re} * a.re + Wide{b.im} * a.im;
    const Wide im = squares == 0 ? b.im : Wide{b.im} * a.re - Wide{b.re} * a.im;
    return Qvx16sc{quotient<Qvx16s>(squares, re, s, window), quotient<Qvx16s>(squares, im, s, window)};
  };
}

// In 64-bit floats, as it is defined: the quotient is rounded before it becomes an integer.
template <class D> D throughDoubles(Qvx32s a, Qvx32s b, int s) {
  if (a == 0 || b == 0 || s < kLong.least || s > kLong.most) return quotient<D>(a, b, s, kLong);
  const double q = std::ldexp(double(b), -s) / a;
  constexpr double kLeast = std::numeric_limits<D>::min();
  constexpr double kMost = std::numeric_limits<D>::max();
  return static_cast<D>(std::nearbyint(std::min(std::max(q, kLeast), kMost)));
}

// With a zero in the middle, so that prefixes of the vector have both statuses.
template <class D, class A, class Oracle> void divides(Oracle oracle, QvxStatus (*f)(const A*, const A*, D*, int, int)) {
  const auto at = [&](int s, auto data, bool everyLength) {
    SCOPED_TRACE("scale factor " + std::to_string(s));
    Elementwise<D, A, A> trial(data, [=](A a, A b) { return oracle(a, b, s); });
    const auto call = [=](const A* a, const A* b, D* d, int n) { return f(a, b, d, n, s); };
    trial.warns(kWarnsOfZero).runAt(everyLength, call);
  };
  for (const int s : scaleFactors()) at(s, operands<A>(600, s % 2 == 0 ? 600 : 599, static_cast<unsigned>(s)), false);
  for (const int s : {-40, -15, -1, 0, 3, 20, 40}) at(s, operands<A>(700, 137), true);
}

TEST(DivInteger, Members) {
  divides(kShortQuotient, qvxsDiv_8u_Sfs);
  divides(kShortQuotient, qvxsDiv_16u_Sfs);
  divides(kShortQuotient, qvxsDiv_16s_Sfs);
  divides(complexQuotient(kComplex), qvxsDiv_16sc_Sfs);
  divides(throughDoubles<Qvx32s>, qvxsDiv_32s_Sfs);
  divides(throughDoubles<Qvx16s>, qvxsDiv_32s16s_Sfs);
}

template <auto kFunction, Mode kMode, class T> void dividesRounded(T) {
  SCOPED_TRACE("mode " + std::to_string(static_cast<int>(kMode)));
  divides<T, T>(
      [](T a, T b, int s) { return quotient<T>(a, b, s, kShortRounded, kMode); },
      [](const T* a, const T* b, T* d, int n, int s) { return kFunction(a, b, d, n, static_cast<QvxRoundMode>(kMode), s); });
}

template <auto kFunction> void dividesInEveryMode(auto type) {
  dividesRounded<kFunction, Mode::kTowardZero>(type);
  dividesRounded<kFunction, Mode::kNearestEven>(type);
  dividesRounded<kFunction, Mode::kHalfAway>(type);
}

TEST(DivRound, Members) {
  dividesInEveryMode<qvxsDiv_Round_8u_Sfs>(Qvx8u());
  dividesInEveryMode<qvxsDiv_Round_16u_Sfs>(Qvx16u());
  dividesInEveryMode<qvxsDiv_Round_16s_Sfs>(Qvx16s());
}

// ---- proof by exhaustion

// All dividends by one divisor, against the oracle: without the blocks and canaries of the other tests, which cover those, and
// in pieces too short for two threads, which wait for each other for milliseconds on a busy machine.
template <class T, class Call, class Oracle> void dividesAll(T divisor, Call call, Oracle oracle) {
  static const std::vector<T> dividends = allOf<T>();
  constexpr size_t kPiece = 8192;
  std::vector<T> d(std::min(kPiece, dividends.size()));
  const std::vector<T> divisors(d.size(), divisor);
  const QvxStatus status = divisor == 0 ? qvxWarnDivByZero : qvxStatOk;
  for (auto b = dividends.begin(); b != dividends.end(); b += static_cast<ptrdiff_t>(d.size())) {
    ASSERT_EQ(call(divisors.data(), &*b, d.data(), static_cast<int>(d.size())), status);
    for (size_t i = 0; i < d.size(); ++i) {
      const T expected = oracle(divisor, b[static_cast<ptrdiff_t>(i)]);
      if (d[i] != expected) {
        FAIL() << show(b[static_cast<ptrdiff_t>(i)]) << " / " << show(divisor) << ": " << show(d[i]) << ", not "
               << show(expected);
      }
    }
  }
}

template <class T, class F> void inEveryMode(F f, T divisor, int s) {
  for (const Mode mode : {Mode::kTowardZero, Mode::kNearestEven, Mode::kHalfAway}) {
    SCOPED_TRACE("scale factor " + std::to_string(s) + ", mode " + std::to_string(static_cast<int>(mode)));
    dividesAll<T>(
        divisor, [=](const T* a, const T* b, T* d, int n) { return f(a, b, d, n, static_cast<QvxRoundMode>(mode), s); },
        [=](T a, T b) { return quotient<T>(a, b, s, kShortRounded, mode); });
  }
}

TEST(DivInteger, AllBytes) {
  for (const Qvx8u divisor : allOf<Qvx8u>()) {
    for (int s = -32; s <= 18; ++s) {
      SCOPED_TRACE("scale factor " + std::to_string(s));
      const auto oracle = [=](Qvx8u a, Qvx8u b) { return quotient<Qvx8u>(a, b, s, kShort); };
      dividesAll<Qvx8u>(
          divisor, [=](auto a, auto b, auto d, int n) { return qvxsDiv_8u_Sfs(a, b, d, n, s); }, oracle);
      if (divisor != 0) {
        dividesAll<Qvx8u>(
            divisor, [=](auto, auto b, auto d, int n) { return qvxsDivC_8u_Sfs(b, divisor, d, n, s); }, oracle);
      }
      inEveryMode<Qvx8u>(qvxsDiv_Round_8u_Sfs, divisor, s);
      if (HasFailure()) return;
    }
  }
}

// Divisors that are powers of two, which make ties, and their neighbours, which come nearest to one; and some others.
template <class T> std::vector<T> aimedDivisors() {
  std::vector<T> v = {T(3), T(5), T(7), T(10), T(12), T(100), T(-3), T(-7), T(-1000), T(12345), T(30030), T(32749)};
  for (const int power : {0, 1, 2, 7, 8, 13, 14, 15, 16}) {
    for (const int near : {-1, 0, 1}) v.push_back(static_cast<T>((1 << power) + near));
  }
  return v;
}

template <class T, class Div, class DivC, class Round> void all16Bits(Div div, DivC divC, Round round) {
  for (const T divisor : aimedDivisors<T>()) {
    for (const int s : {-31, -30, -17, -16, -15, -14, -9, -8, -2, -1, 0, 1, 2, 7, 14, 15, 16, 17}) {
      SCOPED_TRACE("scale factor " + std::to_string(s));
      const auto oracle = [=](T a, T b) { return quotient<T>(a, b, s, kShort); };
      if (divisor != 0)
        dividesAll<T>(
            divisor, [=](auto, auto b, auto d, int n) { return divC(b, divisor, d, n, s); }, oracle);
      if (s % 2 == 0)
        dividesAll<T>(
            divisor, [=](auto a, auto b, auto d, int n) { return div(a, b, d, n, s); }, oracle);
      else inEveryMode<T>(round, divisor, s);
      if (testing::Test::HasFailure()) return;
    }
  }
}

TEST(DivInteger, All16BitDividends) {
  all16Bits<Qvx16u>(qvxsDiv_16u_Sfs, qvxsDivC_16u_Sfs, qvxsDiv_Round_16u_Sfs);
  all16Bits<Qvx16s>(qvxsDiv_16s_Sfs, qvxsDivC_16s_Sfs, qvxsDiv_Round_16s_Sfs);
}

// Complex quotients that are ties, or miss one by the least there is.
TEST(DivInteger, ComplexTies) {
  Random random(seed());
  for (const int s : {-33, -32, -31, -16, -15, -14, -8, -3, -1, 0, 1, 2, 8, 15, 16}) {
    SCOPED_TRACE("scale factor " + std::to_string(s));
    std::vector<Qvx16sc> a(20000);
    std::vector<Qvx16sc> b(a.size());
    for (size_t i = 0; i < a.size(); ++i) {
      // b = a * (k + 1/2) * 2^s in one part, where that is whole, or a neighbour of it.
      const auto width = static_cast<int>(random() % 15);
      a[i] = value<Qvx16sc>(random);
      a[i].re = static_cast<Qvx16s>(a[i].re >> width);
      a[i].im = static_cast<Qvx16s>((i & 1) != 0 ? 0 : a[i].im >> width);
      const double half = std::ldexp(static_cast<double>(random() % 64) - 32 + 0.5, s);
      const auto near = [&](double v) {
        return static_cast<Qvx16s>(std::clamp(v, -32767.0, 32766.0) + static_cast<int>(random() % 3) - 1);
      };
      b[i] = {near(a[i].re * half), near(a[i].im * half)};
    }
    Elementwise<Qvx16sc, Qvx16sc, Qvx16sc> trial(std::make_tuple(a, b),
                                                 [=](Qvx16sc x, Qvx16sc y) { return complexQuotient(kComplex)(x, y, s); });
    trial.warns(kWarnsOfZero).runOnce([=](const Qvx16sc* x, const Qvx16sc* y, Qvx16sc* d, int n) {
      return qvxsDiv_16sc_Sfs(x, y, d, n, s);
    });
    if (HasFailure()) return;
  }
}

// ---- constants

template <class T, class Oracle> void dividesByConstant(Oracle oracle, QvxStatus (*f)(const T*, T, T*, int, int)) {
  std::vector<T> divisors = constants<T>();
  std::erase_if(divisors, [](T c) { return isZero(c); });
  byConstants<T>([=](T b, T c, int s) { return oracle(c, b, s); }, f, divisors, harmless<T>(), {-40, -15, 0, 3, 20});
}

TEST(DivC, Integers) {
  dividesByConstant(kShortQuotient, qvxsDivC_8u_Sfs);
  dividesByConstant(kShortQuotient, qvxsDivC_16u_Sfs);
  dividesByConstant(kShortQuotient, qvxsDivC_16s_Sfs);
  dividesByConstant(complexQuotient(kShort), qvxsDivC_16sc_Sfs);
}

TEST(DivCRev, Integers) {
  for (const Qvx16u val : {Qvx16u{0}, Qvx16u{1}, Qvx16u{2}, Qvx16u{1000}, Qvx16u{32768}, Qvx16u{65535}}) {
    SCOPED_TRACE("dividend " + show(val));
    const auto oracle = [=](Qvx16u a) { return quotient<Qvx16u>(a, val, 0, kShort); };
    Elementwise<Qvx16u, Qvx16u> trial(std::make_tuple(std::get<0>(operands<Qvx16u>(700, 137, val))), oracle);
    trial.warns(kWarnsOfZero);
    trial.run([=](const Qvx16u* a, Qvx16u* d, int n) { return qvxsDivCRev_16u(a, val, d, n); });
    Elementwise<Qvx16u, Qvx16u> every(std::make_tuple(allOf<Qvx16u>()), oracle);
    every.warns(kWarnsOfZero).runOnce([=](const Qvx16u* a, Qvx16u* d, int n) { return qvxsDivCRev_16u(a, val, d, n); });
  }
}

// ---- 64 bits: not a division but a product

// 2^(63 + shift) / divisor bit by bit, for the shift that leaves 63 bits.
struct LongDivision {
  Qvx64u quotient = 0;
  int shift = 0;

  explicit LongDivision(Qvx64u divisor) {
    while (shift < 62 && (Qvx64u{2} << shift) < divisor) ++shift;
    Wide remainder = 1;
    for (int bit = 0; bit < 63 + shift; ++bit) {
      remainder *= 2;
      quotient *= 2;
      if (remainder >= Wide{divisor}) remainder -= Wide{divisor}, ++quotient;
    }
  }
};

TEST(DivC, SixtyFourBits) {
  for (const Qvx64s val : {Qvx64s{2}, Qvx64s{3}, Qvx64s{-3}, Qvx64s{4}, Qvx64s{7}, Qvx64s{10}, Qvx64s{1} << 40,
                           (Qvx64s{1} << 40) + 1, INT64_MAX, -INT64_MAX, INT64_MIN, INT64_MIN + 2, Qvx64s{1}, Qvx64s{-1}}) {
    for (const int s : {INT32_MIN, -64, -20, -1, 0, 1, 5, 63, 64, 70, INT32_MAX}) {
      SCOPED_TRACE("divisor " + show(val) + ", scale factor " + std::to_string(s));
      const bool isOne = val == 1 || val == -1;
      const LongDivision inverse(isOne ? 2 : val < 0 ? Qvx64u{0} - static_cast<Qvx64u>(val) : static_cast<Qvx64u>(val));
      const Wide factor = isOne ? Wide{val} : val < 0 ? -Wide{inverse.quotient} : Wide{inverse.quotient};
      const auto scale = static_cast<int>(std::min(int64_t{s} + (isOne ? 0 : inverse.shift + 63), int64_t{127}));
      Random random(seed());
      Elementwise<Qvx64s, Qvx64s> trial(300, random, [=](Qvx64s b) { return reference::scaled<Qvx64s>(b * factor, scale); });
      trial.run([=](const Qvx64s*, Qvx64s* d, int n) { return qvxsDivC_64s_ISfs(val, d, static_cast<Qvx32u>(n), s); }, 0);
      if (HasFailure()) return;
    }
  }
}

// What the product is for: multiples come out whole, whatever the divisor.
TEST(DivC, SixtyFourBitMultiples) {
  Random random(seed());
  for (int i = 0; i < 2000; ++i) {
    const auto val = static_cast<Qvx64s>(random()) >> (random() % 63);
    if (val == 0) continue;
    const Qvx64s most = INT64_MAX / std::max<Qvx64s>(std::abs(std::max(val, -INT64_MAX)), 1);
    const Qvx64s expected = static_cast<Qvx64s>(random() >> 1) % (most / 2 + 1);
    Qvx64s d[3] = {expected * val, -expected * val, 0};
    EXPECT_EQ(qvxsDivC_64s_ISfs(val, d, 3, 0), qvxStatOk);
    ASSERT_TRUE(d[0] == expected && d[1] == -expected && d[2] == 0) << val << " times " << expected << ": " << d[0];
  }
}

TEST(DivC, SixtyFourBitsByZero) {
  Random random(seed());
  Elementwise<Qvx64s, Qvx64s> trial(300, random, [](Qvx64s b) { return b == 0 ? 0 : b < 0 ? INT64_MIN : INT64_MAX; });
  trial.warns([](Qvx64s) { return qvxWarnDivByZero; });
  trial.run([](const Qvx64s*, Qvx64s* d, int n) { return qvxsDivC_64s_ISfs(0, d, static_cast<Qvx32u>(n), 5); }, 0);
}

}  // namespace
