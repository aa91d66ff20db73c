// Float exponentials, logarithms, arctangents and cube roots: how exact, which special values, which warning.
#include <gtest/gtest.h>

#include "support/elementwise.h"
#include "vector/math_accuracy.h"

namespace {

using namespace tests;

// Every 64th float: 2^26.
TEST(Math, IsAsExactAsStated) {
  for (const Accuracy& a : mathAccuracy(64, 1 << 18)) EXPECT_LE(a.ulp, a.bound) << a.name << " at " << a.at;
}

template <class T> using Function = QvxStatus (*)(const T*, T*, int);

// In another rounding mode a few ULP more, and nothing worse.
template <class T, class Oracle> void holdsInAllModes(Function<T> f, Oracle oracle, T low, T high) {
  std::vector<T> x(5001);
  for (size_t i = 0; i < x.size(); ++i) x[i] = low + (high - low) * static_cast<T>(i) / 5000;
  for (const int mode : kRoundings) {
    std::vector<T> y(x.size());
    {
      const CallersRounding scope(mode);
      f(x.data(), y.data(), 5001);
    }
    for (size_t i = 0; i < x.size(); ++i) {
      ASSERT_LE(ulpError(y[i], oracle(static_cast<long double>(x[i]))), 4) << "at " << x[i] << ", mode " << mode;
    }
  }
}

TEST(Math, HoldsInAllRoundingModes) {
  const auto exp = [](long double x) { return std::exp(x); };
  const auto ln = [](long double x) { return std::log(x); };
  const auto arctan = [](long double x) { return std::atan(x); };
  holdsInAllModes<float>(qvxsExp_32f, exp, -87, 88);
  holdsInAllModes<double>(qvxsExp_64f, exp, -708, 709);
  holdsInAllModes<float>(qvxsLn_32f, ln, 0.1F, 3);
  holdsInAllModes<double>(qvxsLn_64f, ln, 0.1, 3);
  holdsInAllModes<float>(qvxsArctan_32f, arctan, -5, 5);
  holdsInAllModes<double>(qvxsArctan_64f, arctan, -5, 5);
  holdsInAllModes<float>(
      qvxsCubrt_32f, [](long double x) { return std::cbrt(x); }, -9, 9);
}

// ---- special values, by their bits

uint32_t bitsOf(float v) { return std::bit_cast<uint32_t>(v); }
uint64_t bitsOf(double v) { return std::bit_cast<uint64_t>(v); }

template <class T> T one(Function<T> f, T x) {
  T y = 0;
  f(&x, &y, 1);
  return y;
}

template <class T> void logarithmsOfSpecials(Function<T> ln, T ownNan) {
  const T quietNan = std::numeric_limits<T>::quiet_NaN();
  EXPECT_EQ(bitsOf(one<T>(ln, 0)), bitsOf(static_cast<T>(-INFINITY)));
  for (const T x : {T(-0.0), T(-1), T(-1e-44), T(-INFINITY)}) EXPECT_EQ(bitsOf(one<T>(ln, x)), bitsOf(ownNan)) << x;
  for (const T x : {quietNan, -quietNan, T(INFINITY)}) EXPECT_EQ(bitsOf(one<T>(ln, x)), bitsOf(x)) << x;
  EXPECT_EQ(bitsOf(one<T>(ln, 1)), bitsOf(T(0)));
}

TEST(Ln, OfSpecials) {
  logarithmsOfSpecials<Qvx32f>(qvxsLn_32f, std::bit_cast<Qvx32f>(0xFFC00000U));
  logarithmsOfSpecials<Qvx64f>(qvxsLn_64f, std::bit_cast<Qvx64f>(uint64_t{0xFFF8000000000000}));
  Qvx64f x[] = {0, -0.0, -3, NAN};
  Qvx32f y[4];
  EXPECT_EQ(qvxsLn_64f32f(x, y, 4), qvxWarnLnZeroArg);
  EXPECT_EQ(bitsOf(y[0]), 0xFF800000U);
  EXPECT_EQ(bitsOf(y[1]), 0xFFC00000U);
  EXPECT_EQ(bitsOf(y[2]), 0xFFC00000U);
  EXPECT_EQ(bitsOf(y[3]), 0x7FC00000U);
}

template <class T> void signedZerosAndInfinities(Function<T> exp, Function<T> arctan, T halfPi) {
  EXPECT_EQ(bitsOf(one<T>(exp, -INFINITY)), bitsOf(T(0)));
  EXPECT_EQ(bitsOf(one<T>(exp, 0)), bitsOf(T(1)));
  EXPECT_EQ(bitsOf(one<T>(exp, INFINITY)), bitsOf(T(INFINITY)));
  for (const T sign : {T(1), T(-1)}) {
    EXPECT_EQ(bitsOf(one<T>(arctan, sign * T(0))), bitsOf(sign * T(0)));
    EXPECT_EQ(one<T>(arctan, sign * T(INFINITY)), sign * halfPi);
  }
}

TEST(Math, OfZerosAndInfinities) {
  signedZerosAndInfinities<Qvx32f>(qvxsExp_32f, qvxsArctan_32f, static_cast<Qvx32f>(M_PI_2));
  signedZerosAndInfinities<Qvx64f>(qvxsExp_64f, qvxsArctan_64f, M_PI_2);
  for (const Qvx32f x : {0.0F, -0.0F, INFINITY, -INFINITY}) EXPECT_EQ(bitsOf(one<Qvx32f>(qvxsCubrt_32f, x)), bitsOf(x));
}

// ---- sums of logarithms

template <class T, class R> void sums(QvxStatus (*f)(const T*, int, R*), T (*element)(Random&)) {
  Random random(seed());
  Block block(70000 * sizeof(T));
  for (size_t n = 1; n < 70000; n += n < 140 ? 1 : n / 2) {
    T* x = reinterpret_cast<T*>(block.atEnd(n * sizeof(T)));
    long double sum = 0;
    long double size = 0;
    for (size_t i = 0; i < n; ++i) {
      x[i] = element(random);
      const long double logarithm = std::log(static_cast<long double>(x[i]));
      sum += logarithm;
      size += std::abs(logarithm);
    }
    R y = 0;
    ASSERT_EQ(f(x, static_cast<int>(n), &y), qvxStatOk);
    // Products of elements narrower than double round to 2^-53 each.
    const long double products = sizeof(T) < sizeof(double) ? static_cast<long double>(n) * 0x1p-53L : 0;
    const long double sumInDoubles = size * std::numeric_limits<double>::epsilon() * 4 + products;
    ASSERT_LE(std::abs(static_cast<long double>(y) - sum), sumInDoubles + std::abs(sum) * std::numeric_limits<R>::epsilon() / 2)
        << n;
  }
}

TEST(SumLn, IsASumInDoubles) {
  const auto anyFloat = [](Random& r) { return std::bit_cast<Qvx32f>(static_cast<uint32_t>(1 + r() % 0x7F7FFFFF)); };
  const auto nearOne = [](Random& r) { return 1 + static_cast<Qvx32f>(static_cast<int>(r() % 200) - 100) * 0x1p-23F; };
  const auto anyDouble = [](Random& r) { return std::bit_cast<Qvx64f>(1 + r() % 0x7FEFFFFFFFFFFFFF); };
  sums<Qvx32f, Qvx32f>(qvxsSumLn_32f, anyFloat);
  sums<Qvx32f, Qvx32f>(qvxsSumLn_32f, nearOne);
  sums<Qvx32f, Qvx64f>(qvxsSumLn_32f64f, anyFloat);
  sums<Qvx64f, Qvx64f>(qvxsSumLn_64f, anyDouble);
  sums<Qvx16s, Qvx32f>(qvxsSumLn_16s32f, [](Random& r) { return static_cast<Qvx16s>(1 + r() % 32767); });
}

template <class T, class R> void sumsOfBad(QvxStatus (*f)(const T*, int, R*)) {
  std::vector<T> x(300);
  for (size_t bad = 0; bad < 300; ++bad) {
    std::fill(x.begin(), x.end(), T(3));
    R y = 0;
    x[bad] = 0;
    EXPECT_EQ(f(x.data(), 300, &y), qvxWarnLnZeroArg);
    EXPECT_EQ(y, -INFINITY) << bad;
    if (bad + 1 < 300) x[bad + 1] = T(-1);
    EXPECT_EQ(f(x.data(), 300, &y), qvxWarnLnZeroArg) << bad;
    x[bad] = T(-2);
    EXPECT_EQ(f(x.data(), 300, &y), qvxWarnLnNegArg) << bad;
    EXPECT_TRUE(std::isnan(y));
  }
}

TEST(SumLn, OfBadElements) {
  sumsOfBad(qvxsSumLn_32f);
  sumsOfBad(qvxsSumLn_64f);
  sumsOfBad(qvxsSumLn_32f64f);
  sumsOfBad(qvxsSumLn_16s32f);
  const Qvx32f infinite[] = {INFINITY, 2};
  Qvx32f y;
  EXPECT_EQ(qvxsSumLn_32f(infinite, 2, &y), qvxStatOk);
  EXPECT_EQ(y, INFINITY);
}

}  // namespace
