// Exponentials and cube roots of integers: half a unit rounded up.
#include <qvx/qvxs.h>

#include <cmath>

#include "vector/members.h"

namespace {

using namespace tests;

// e^x * 2^-s; nothing below the range of doubles, everything above.
long double scaledPower(int64_t x, int s) {
  if (x > 709) return INFINITY;
  return x < -745 ? 0 : std::ldexp(std::exp(static_cast<long double>(x)), -std::clamp(s, -5000, 5000));
}

const auto kHalfUp = []<class T>(T x, int s) {
  const long double v = std::floor(scaledPower(x, s) + 0.5L);
  return v < static_cast<long double>(std::numeric_limits<T>::max()) ? static_cast<T>(v) : std::numeric_limits<T>::max();
};

// The scale factors at which anything changes, and those at which the doubles end.
const std::vector<int> kFarScales = {INT32_MIN, -1200, -1080, -1000, -300, 200, 1000, 1016, 1022, 1030, 1200, INT32_MAX};

TEST(Exp, All16BitSources) {
  scaledUnary(qvxsExp_16s_Sfs, allOf<Qvx16s>(), kHalfUp, range(-40, 60, kFarScales), {-33, -16, -3, 0, 1, 16, 32});
}

// What is written about it, in numbers.
TEST(Exp, KnownRows) {
  Qvx16s x[13];
  for (int i = 0; i < 13; ++i) x[i] = static_cast<Qvx16s>(i);
  Qvx16s y[13];
  const Qvx16s rows[2][13] = {{1, 3, 7, 20, 55, 148, 403, 1097, 2981, 8103, 22026, 32767, 32767},
                              {1, 1, 4, 10, 27, 74, 202, 548, 1490, 4052, 11013, 29937, 32767}};
  for (int s = 0; s < 2; ++s) {
    ASSERT_EQ(qvxsExp_16s_Sfs(x, y, 13, s), qvxStatOk);
    for (int i = 0; i < 13; ++i) EXPECT_EQ(y[i], rows[s][i]) << i << ", scale factor " << s;
  }
}

// Around the few sources that give anything but 0 and the limit, and everywhere.
template <class T> std::vector<T> exponents(int s) {
  Random random(seed());
  std::vector<T> v = values<T>(300, random);
  const auto middle = static_cast<int>(std::clamp(s, -2000, 2000) * 0.6931471805599453);
  for (int x = middle - 60; x <= middle + 60; ++x) v.push_back(static_cast<T>(x));
  for (int x = -760; x <= 720; x += 7) v.push_back(static_cast<T>(x));
  return v;
}

TEST(Exp, Of32Bits) {
  for (const int s : range(-80, 80, kFarScales)) {
    scaledUnary(qvxsExp_32s_Sfs, exponents<Qvx32s>(s), kHalfUp, {s}, {});
    if (HasFailure()) return;
  }
  scaledUnary(qvxsExp_32s_Sfs, exponents<Qvx32s>(0), kHalfUp, {}, {-31, 0, 1, 20});
}

// Rounded twice, to a double and to an integer; beyond 2^53 only to a double.
TEST(Exp, Of64Bits) {
  for (const int s : range(-110, 110, kFarScales)) {
    const std::vector<Qvx64s> x = exponents<Qvx64s>(s);
    std::vector<Qvx64s> y(x.size());
    ASSERT_EQ(qvxsExp_64s_Sfs(x.data(), y.data(), static_cast<int>(x.size()), s), qvxStatOk);
    for (size_t i = 0; i < x.size(); ++i) {
      const long double v = scaledPower(x[i], s);
      if (v >= 0x1p63L) {
        ASSERT_EQ(y[i], INT64_MAX) << x[i] << ", scale factor " << s;
      } else {
        const long double ofDouble = v == 0 ? 0 : std::ldexp(0.5002L, std::ilogb(v) - 52);
        const long double ofInteger = v < 0x1p53L ? 0.5L : 0;
        ASSERT_LE(std::fabs(static_cast<long double>(y[i]) - v), ofDouble + ofInteger) << x[i] << ", scale factor " << s;
      }
    }
  }
}

// The largest n with n - 1/2 <= cbrt(x) * 2^-s, that is with (2n - 1)^3 * 8^s <= 8x.
Qvx16s nearestCubeRoot(Qvx32s x, int s) {
  using Wide = __int128;
  s = std::clamp(s, -20, 25);
  const Wide right = (Wide{x} * 8) << std::max(-3 * s, 0);
  const auto fits = [&](Wide n) { return ((2 * n - 1) * (2 * n - 1) * (2 * n - 1) << std::max(3 * s, 0)) <= right; };
  auto n = static_cast<Wide>(std::floor(std::ldexp(std::cbrt(static_cast<long double>(x)), -s)));
  while (!fits(n)) --n;
  while (fits(n + 1)) ++n;
  return reference::saturated<Qvx16s>(n);
}

// Cubes and half-integers cubed, with their neighbours.
std::vector<Qvx32s> cubes(int s) {
  Random random(seed());
  std::vector<Qvx32s> v = values<Qvx32s>(3000, random);
  for (int i = -2590; i <= 2590; ++i) {
    const long double root = std::ldexp(std::floor(std::ldexp(i / 2.0L, -s)) + 0.5L, s);
    for (const long double x : {std::pow(root, 3.0L), std::pow(std::floor(i / 2.0L), 3.0L)}) {
      for (int near = -1; near <= 1; ++near) {
        if (std::fabs(x) < 2147483640.0L) v.push_back(static_cast<Qvx32s>(x) + near);
      }
    }
  }
  return v;
}

TEST(Cubrt, Of32Bits) {
  for (const int s : range(-17, 14, {INT32_MIN, INT32_MAX})) {
    scaledUnary(qvxsCubrt_32s16s_Sfs, cubes(std::clamp(s, -20, 20)), nearestCubeRoot, {s}, {});
    if (HasFailure()) return;
  }
  scaledUnary(qvxsCubrt_32s16s_Sfs, cubes(1), nearestCubeRoot, {}, {-15, -4, 0, 1, 3});
}

}  // namespace
