// Logarithms of integers: the true logarithm rounded once, and the warning of the first element that has none.
#include <qvx/qvxs.h>

#include <cmath>

#include "vector/members.h"

namespace {

using namespace tests;

long double natural(int64_t x) { return std::log(static_cast<long double>(x)); }
long double tenDecimal(int64_t x) { return 10 * std::log10(static_cast<long double>(x)); }

// v * 2^-s, nearest even. Only powers of ten have exact ties, and those are no farther than a long double's error.
template <class D> D nearest(long double v, int s) {
  v = std::ldexp(v, -std::clamp(s, -200, 200));
  if (v > 1e15L) return std::numeric_limits<D>::max();
  const long double floor = std::floor(v);
  const long double aboveHalf = v - floor - 0.5L;
  const auto n = static_cast<int64_t>(floor);
  const bool up = std::fabs(aboveHalf) < v * 0x1p-60L ? n % 2 != 0 : aboveHalf > 0;
  return reference::saturated<D>(n + up);
}

template <class D> auto logarithm(long double (*of)(int64_t)) {
  return [of](auto x, int s) { return x < 1 ? std::numeric_limits<D>::min() : nearest<D>(of(x), s); };
}

const auto kWarning = [](auto x) { return x == 0 ? qvxWarnLnZeroArg : x < 0 ? qvxWarnLnNegArg : qvxStatOk; };
const std::vector<int> kFar = {INT32_MIN, -100, 100, INT32_MAX};

TEST(Ln, All16BitSources) {
  scaledUnary(qvxsLn_16s_Sfs, allOf<Qvx16s>(), logarithm<Qvx16s>(natural), range(-19, 7, kFar), {-15, -5, 0, 2}, kWarning);
  std::vector<Qvx16s> positive;
  for (int x = 1; x <= 32767; ++x) positive.push_back(static_cast<Qvx16s>(x));
  scaledUnary(qvxsLn_16s_Sfs, positive, logarithm<Qvx16s>(natural), range(-16, 5), {-13, 0}, kWarning);
}

// The boundaries between results as they are written about it: the first source of each.
TEST(Ln, KnownBoundaries) {
  const auto resultOf = [](Qvx16s x, int s) {
    qvxsLn_16s_ISfs(&x, 1, s);
    return x;
  };
  const Qvx16s firsts[] = {2, 5, 13, 34, 91, 245, 666, 1809, 4915, 13360};
  for (int k = 0; k < 10; ++k) {
    EXPECT_EQ(resultOf(firsts[k], 0), k + 1);
    EXPECT_EQ(resultOf(static_cast<Qvx16s>(firsts[k] - 1), 0), k);
  }
  const Qvx16s at14[] = {0, 11357, 18000, 22713, 26369, 29356, 31882, 32767};
  for (int x = 1; x <= 8; ++x) EXPECT_EQ(resultOf(static_cast<Qvx16s>(x), -14), at14[x - 1]);
  EXPECT_EQ(resultOf(2, -15), 22713);
  EXPECT_EQ(resultOf(3, -15), 32767);
}

// Where a result of one scale factor steps to the next, with the neighbours; negative numbers and zeros last.
std::vector<Qvx32s> steps(long double (*inverse)(long double), int s) {
  Random random(seed());
  std::vector<Qvx32s> v;
  const long double most = 93.4L;
  const auto count = static_cast<int>(std::min(20000.0L, std::ldexp(most, -s)));
  for (int k = 0; k <= count; ++k) {
    const auto result = count < 20000 ? static_cast<long double>(k) : std::floor(std::ldexp(most * k / count, -s));
    const long double x = inverse(std::ldexp(result + 0.5L, s));
    for (int near = -1; near <= 2 && x < 2147483640.0L; ++near) v.push_back(std::max(1, static_cast<Qvx32s>(x) + near));
  }
  for (Qvx32s x = 1; x < 1000000000; x *= 10) v.push_back(x);
  for (const Qvx32s x : values<Qvx32s>(500, random)) v.push_back(x);
  return v;
}
long double toE(long double y) { return std::exp(y); }
long double toTen(long double y) { return std::pow(10.0L, y / 10); }

TEST(Ln, Of32BitsAroundEveryStep) {
  const auto expect = [](auto f, auto inverse, auto oracle, const std::vector<int>& paths) {
    for (const int s : range(-33, 9, kFar)) {
      scaledUnary(f, steps(inverse, std::clamp(s, -40, 40)), oracle, {s}, {}, kWarning);
      if (HasFailure()) return;
    }
    scaledUnary(f, steps(inverse, -3), oracle, {}, paths, kWarning);
  };
  expect(qvxsLn_32s_Sfs, toE, logarithm<Qvx32s>(natural), {-27, -3, 0, 2});
  expect(qvxsLn_32s16s_Sfs, toE, logarithm<Qvx16s>(natural), {-11, -3, 0, 2});
  expect(qvxs10Log10_32s_Sfs, toTen, logarithm<Qvx32s>(tenDecimal), {-25, -3, 0, 2});
}

// Many sources, of which some fall so near to a half that a double can't tell.
TEST(Ln, Of32BitsAtRandom) {
  constexpr int kCount = 1 << 21;
  Random random(seed());
  std::vector<Qvx32s> x(kCount);
  for (Qvx32s& v : x) v = std::max(1, static_cast<Qvx32s>((random() >> 33) >> (random() % 8)));
  std::vector<Qvx32s> y(kCount);
  for (const bool decimal : {false, true}) {
    std::vector<long double> exact(kCount);
    for (int i = 0; i < kCount; ++i) exact[i] = decimal ? tenDecimal(x[i]) : natural(x[i]);
    for (int s = -28; s <= 4; s += s < -20 ? 1 : 3) {
      ASSERT_EQ((decimal ? qvxs10Log10_32s_Sfs : qvxsLn_32s_Sfs)(x.data(), y.data(), kCount, s), qvxStatOk);
      for (int i = 0; i < kCount; ++i) {
        if (y[i] != nearest<Qvx32s>(exact[i], s))
          FAIL() << x[i] << " gave " << y[i] << ", scale factor " << s << ", decimal " << decimal;
      }
    }
  }
}

}  // namespace
