// Magnitude, phase, and polar coordinates to complex numbers.
#include <qvx/qvxs.h>

#include <cmath>
#include <tuple>

#include "reference/roots.h"
#include "reference/scaled.h"
#include "support/elementwise.h"
#include "support/rounding.h"
#include "support/ulp.h"

namespace {

using reference::Wide;
using tests::check;
using tests::Elementwise;
using tests::kChecked;
using tests::Random;

template <class T> T anyFloat(Random& random) {
  if constexpr (sizeof(T) == 4) return std::bit_cast<T>(static_cast<uint32_t>(random()));
  else return std::bit_cast<T>(static_cast<uint64_t>(random()));
}

// Pairs of all exponents, pairs of like size, pairs about the seams of the phase's ranges, and everything special.
template <class T> std::pair<std::vector<T>, std::vector<T>> pairs(size_t n) {
  Random random(tests::seed());
  std::vector<T> re, im;
  const auto add = [&](T x, T y) { re.push_back(x), im.push_back(y); };
  std::uniform_real_distribution<double> unit(-1, 1);
  for (size_t i = 0; i < n; ++i) {
    add(anyFloat<T>(random), anyFloat<T>(random));
    add(static_cast<T>(unit(random)), static_cast<T>(unit(random)));
    const T x = std::ldexp(static_cast<T>(unit(random)), static_cast<int>(random() % 60) - 30);
    add(x, std::ldexp(static_cast<T>(unit(random)), std::ilogb(x) + static_cast<int>(random() % 5) - 2));
    const T seam = T(i % 2 ? 1.5 : 2.0 / 3) * (1 + static_cast<T>(unit(random)) * std::numeric_limits<T>::epsilon() * 8);
    add(x, i % 4 < 2 ? x * seam : -x * seam);
  }
  using L = std::numeric_limits<T>;
  const T special[] = {0,      1,       L::denorm_min(), L::min(), L::max(), L::infinity(), L::quiet_NaN(), L::epsilon(),
                       T(1.5), T(1e30), T(1e-30)};
  for (const T x : special) {
    for (const T y : special) {
      for (const int signs : {0, 1, 2, 3}) add(signs & 1 ? -x : x, signs & 2 ? -y : y);
    }
  }
  return {re, im};
}

// ---- phase

template <class T, class C>
void checkPhase(QvxStatus (*split)(const T*, const T*, T*, int), QvxStatus (*complex)(const C*, T*, int), double bound) {
  const auto [re, im] = pairs<T>(200000);
  std::vector<C> z(re.size());
  for (size_t i = 0; i < re.size(); ++i) z[i] = {re[i], im[i]};
  std::vector<T> angle(re.size()), same(re.size());
  ASSERT_EQ(split(re.data(), im.data(), angle.data(), static_cast<int>(re.size())), qvxStatOk);
  ASSERT_EQ(complex(z.data(), same.data(), static_cast<int>(re.size())), qvxStatOk);
  ASSERT_TRUE(tests::sameBits(angle.data(), same.data(), re.size()));
  for (size_t i = 0; i < re.size(); ++i) {
    const long double exact = std::atan2(static_cast<long double>(im[i]), static_cast<long double>(re[i]));
    ASSERT_LE(tests::ulpError(angle[i], exact), bound) << re[i] << ", " << im[i] << ": " << angle[i] << ", not " << exact;
    if (exact != 0) continue;
    ASSERT_EQ(std::signbit(angle[i]), std::signbit(exact)) << re[i] << ", " << im[i];
  }
}

TEST(Phase, StaysWithinItsBound) {
  checkPhase(qvxsPhase_32f, qvxsPhase_32fc, 1.0);
  checkPhase(qvxsPhase_64f, qvxsPhase_64fc, 1.5);
}

TEST(Phase, OfIntegersToFloats) {
  Random random(tests::seed());
  const auto z = tests::values<Qvx16sc>(100000, random);
  std::vector<Qvx16s> re, im;
  for (const Qvx16sc& v : z) re.push_back(v.re), im.push_back(v.im);
  std::vector<Qvx32f> a(z.size()), b(z.size());
  ASSERT_EQ(qvxsPhase_16sc32f(z.data(), a.data(), static_cast<int>(z.size())), qvxStatOk);
  ASSERT_EQ(qvxsPhase_16s32f(re.data(), im.data(), b.data(), static_cast<int>(z.size())), qvxStatOk);
  for (size_t i = 0; i < z.size(); ++i) {
    const long double exact = std::atan2(static_cast<long double>(im[i]), static_cast<long double>(re[i]));
    ASSERT_LE(tests::ulpError(a[i], exact), 1.0) << re[i] << ", " << im[i];
    ASSERT_EQ(a[i], b[i]);
  }
}

// The stated rule in its own words: a float, times the factor, half away, within the range.
template <class T> T scaledPhase(double re, double im, int s) {
  const float scaled = static_cast<float>(std::atan2(im, re)) * static_cast<float>(std::exp2(-s));
  const float away = scaled + std::copysign(0.5F, scaled);
  if (away > static_cast<float>(std::numeric_limits<T>::max())) return std::numeric_limits<T>::max();
  if (away < static_cast<float>(std::numeric_limits<T>::min())) return std::numeric_limits<T>::min();
  return away >= 0x1p31F ? std::numeric_limits<T>::max() : static_cast<T>(away);
}

TEST(Phase, OfIntegersIsScaled) {
  for (const int s : {-127, -40, -30, -29, -28, -20, -14, -13, -12, -5, -1, 0, 1, 2, 3, 40}) {
    const auto complex = [s](auto z) { return scaledPhase<decltype(z.re)>(z.re, z.im, s); };
    check<Qvx16s, Qvx16sc>([=](auto... a) { return qvxsPhase_16sc_Sfs(a..., s); }, complex);
    check<Qvx16s, Qvx16s, Qvx16s>([=](auto... a) { return qvxsPhase_16s_Sfs(a..., s); },
                                  [=](Qvx16s re, Qvx16s im) { return scaledPhase<Qvx16s>(re, im, s); });
    check<Qvx32s, Qvx32sc>([=](auto... a) { return qvxsPhase_32sc_Sfs(a..., s); }, complex);
  }
}

// ---- magnitude

template <class T> T magnitude(T re, T im) {
  const T a = re * re;
  const T b = im * im;
  return std::sqrt(a + b);
}

TEST(Magnitude, OfFloatsIsThePlainFormula) {
  const auto complex = [](auto z) { return magnitude(z.re, z.im); };
  check<Qvx32f, Qvx32fc>(qvxsMagnitude_32fc, complex);
  check<Qvx64f, Qvx64fc>(qvxsMagnitude_64fc, complex);
  check<Qvx32f, Qvx32f, Qvx32f>(qvxsMagnitude_32f, magnitude<Qvx32f>);
  check<Qvx64f, Qvx64f, Qvx64f>(qvxsMagnitude_64f, magnitude<Qvx64f>);
}

template <class T> Wide power(T re, T im) { return Wide{re} * re + Wide{im} * im; }

TEST(Magnitude, OfIntegersToFloats) {
  const auto exact = [](Qvx16s re, Qvx16s im) { return std::sqrt(static_cast<Qvx32f>(power(re, im))); };
  check<Qvx32f, Qvx16sc>(qvxsMagnitude_16sc32f, [=](Qvx16sc z) { return exact(z.re, z.im); });
  check<Qvx32f, Qvx16s, Qvx16s>(qvxsMagnitude_16s32f, exact);
}

// Pythagorean triples, whose roots meet ties, beside anything.
template <class C> std::vector<C> corners(size_t n, Random& random) {
  auto z = tests::values<C>(n, random);
  using T = tests::Part<C>;
  for (size_t i = 0; i < n; i += 3) {
    const auto m = static_cast<int64_t>(random() % 180);
    const auto k = static_cast<int64_t>(random() % 180);
    const int64_t odd = static_cast<int64_t>(random() % 2) + 1;
    z[i] = {reference::saturated<T>((m * m - k * k) * odd), reference::saturated<T>(2 * m * k * odd)};
  }
  return z;
}

template <class T, class C> void checkScaledMagnitude(QvxStatus (*complex)(const C*, T*, int, int)) {
  for (const int s : tests::range(-35, 35, {INT32_MIN, -1000, 1000, INT32_MAX})) {
    Random random(tests::seed());
    Elementwise<T, C>(std::tuple(corners<C>(kChecked, random)), [=](C z) {
      return reference::scaledRoot<T>(power(z.re, z.im), s);
    }).run([=](auto... a) { return complex(a..., s); });
  }
}

TEST(Magnitude, OfIntegersIsExact) {
  checkScaledMagnitude(qvxsMagnitude_16sc_Sfs);
  checkScaledMagnitude(qvxsMagnitude_32sc_Sfs);
  for (const int s : {-16, -15, -3, 0, 1, 4, 15, 16, 17}) {
    check<Qvx16s, Qvx16s, Qvx16s>([=](auto... a) { return qvxsMagnitude_16s_Sfs(a..., s); },
                                  [=](Qvx16s a, Qvx16s b) { return reference::scaledRoot<Qvx16s>(power(a, b), s); });
  }
}

// ---- both

TEST(CartToPolar, IsMagnitudeAndPhase) {
  Random random(tests::seed());
  const auto z = tests::values<Qvx32fc>(777, random);
  std::vector<Qvx32f> magn(777), phase(777), magn1(777), phase1(777);
  ASSERT_EQ(qvxsCartToPolar_32fc(z.data(), magn.data(), phase.data(), 777), qvxStatOk);
  qvxsMagnitude_32fc(z.data(), magn1.data(), 777);
  qvxsPhase_32fc(z.data(), phase1.data(), 777);
  EXPECT_TRUE(tests::sameBits(magn.data(), magn1.data(), 777));
  EXPECT_TRUE(tests::sameBits(phase.data(), phase1.data(), 777));
  // The phase comes even where the magnitude can't.
  std::fill(phase.begin(), phase.end(), 99.0F);
  EXPECT_EQ(qvxsCartToPolar_32fc(z.data(), nullptr, phase.data(), 777), qvxStatNullPtr);
  EXPECT_TRUE(tests::sameBits(phase.data(), phase1.data(), 777));
  // In 16 bits it does not, and each part has its own scale factor.
  const Qvx16sc v[1] = {{-300, -400}};
  Qvx16s m[1] = {7}, p[1] = {7};
  EXPECT_EQ(qvxsCartToPolar_16sc_Sfs(v, nullptr, p, 1, 0, 0), qvxStatNullPtr);
  EXPECT_EQ(p[0], 7);
  EXPECT_EQ(qvxsCartToPolar_16sc_Sfs(v, m, p, 1, 2, -10), qvxStatOk);
  EXPECT_EQ(m[0], 125);
  EXPECT_EQ(p[0], static_cast<Qvx16s>(std::lround(std::atan2(-400.0, -300.0) * 1024)));
}

template <class T> std::vector<T> phases(size_t n, Random& random) {
  std::uniform_real_distribution<double> turns(-8, 8), far(-1.6e6, 1.6e6), farther(-1e9, 1e9);
  std::vector<T> v;
  for (size_t i = 0; i < n; ++i) {
    for (const double x : {turns(random), far(random), farther(random)}) v.push_back(static_cast<T>(x));
    v.push_back(static_cast<T>(std::round(far(random)) * 1.57079632679489661923));  // beside a zero of one of the two
    v.push_back(anyFloat<T>(random));
  }
  for (const double x : {0.0, -0.0, 1.57, 1e300, double{INFINITY}, -double{INFINITY}, double{NAN}})
    v.push_back(static_cast<T>(x));
  return v;
}

template <class T, class C>
void checkPolar(QvxStatus (*complex)(const T*, const T*, C*, int), QvxStatus (*split)(const T*, const T*, T*, T*, int),
                double bound) {
  Random random(tests::seed());
  const std::vector<T> phase = phases<T>(60000, random);
  std::vector<T> magn(phase.size());
  for (T& m : magn) m = static_cast<T>(1 + static_cast<double>(random() % 1000) / 7);
  const int n = static_cast<int>(phase.size());
  std::vector<C> z(phase.size());
  std::vector<T> re(phase.size()), im(phase.size());
  ASSERT_EQ(complex(magn.data(), phase.data(), z.data(), n), qvxStatOk);
  ASSERT_EQ(split(magn.data(), phase.data(), re.data(), im.data(), n), qvxStatOk);
  for (size_t i = 0; i < phase.size(); ++i) {
    const auto near = [&](T result, long double turn) {
      ASSERT_LE(tests::ulpError(result, magn[i] * turn), bound) << magn[i] << " at " << phase[i] << ": " << result;
    };
    near(z[i].re, std::cos(static_cast<long double>(phase[i])));
    near(z[i].im, std::sin(static_cast<long double>(phase[i])));
    ASSERT_TRUE(tests::sameBits(&z[i].re, &re[i], 1) && tests::sameBits(&z[i].im, &im[i], 1)) << "at " << phase[i];
    ASSERT_TRUE(phase[i] != 0 || std::signbit(im[i]) == std::signbit(phase[i]));
  }
}

TEST(PolarToCart, StaysWithinItsBound) {
  checkPolar(qvxsPolarToCart_32fc, qvxsPolarToCart_32f, 0.6);
  checkPolar(qvxsPolarToCart_64fc, qvxsPolarToCart_64f, 1.5);
}

// Quarters of a turn that are rounded another way would take the polynomials out of their interval.
TEST(PolarToCart, LosesNoDigitInAnyRoundingMode) {
  Random random(tests::seed());
  std::uniform_real_distribution<double> turns(-20, 20);
  std::vector<Qvx64f> phase(1000), re(1000), im(1000);
  std::vector<Qvx32f> phase32(1000);
  for (size_t i = 0; i < phase.size(); ++i) phase[i] = phase32[i] = static_cast<Qvx32f>(turns(random));
  const std::vector<Qvx64f> magn(1000, 1);
  const std::vector<Qvx32f> magn32(1000, 1);
  std::vector<Qvx32fc> z(1000);
  for (const int mode : tests::kRoundings) {
    {
      const tests::CallersRounding callers(mode);
      ASSERT_EQ(qvxsPolarToCart_64f(magn.data(), phase.data(), re.data(), im.data(), 1000), qvxStatOk);
      ASSERT_EQ(qvxsPolarToCart_32fc(magn32.data(), phase32.data(), z.data(), 1000), qvxStatOk);
    }
    for (size_t i = 0; i < phase.size(); ++i) {
      ASSERT_LE(std::hypot(re[i] - std::cos(phase[i]), im[i] - std::sin(phase[i])), 0x1p-50) << mode << ", " << phase[i];
      ASSERT_LE(std::hypot(z[i].re - std::cos(phase[i]), z[i].im - std::sin(phase[i])), 0x1p-22) << mode << ", " << phase[i];
    }
  }
}

// Nearest, but for what the sine may be wrong by.
template <class C> void expectNearest(C z, double magnitude, double phase) {
  using T = tests::Part<C>;
  const auto near = [&](T result, long double exact) {
    const auto inRange = std::clamp<long double>(exact, std::numeric_limits<T>::min(), std::numeric_limits<T>::max());
    ASSERT_LE(std::abs(result - inRange), 0.5L + std::abs(exact) * 0x1p-50L) << magnitude << " at " << phase;
  };
  near(z.re, magnitude * std::cos(static_cast<long double>(phase)));
  near(z.im, magnitude * std::sin(static_cast<long double>(phase)));
}

TEST(PolarToCart, OfIntegersIsNearest) {
  Random random(tests::seed());
  const auto magn = tests::values<Qvx16s>(2000, random), phase = tests::values<Qvx16s>(2000, random);
  const auto magn32 = tests::values<Qvx32s>(2000, random), phase32 = tests::values<Qvx32s>(2000, random);
  std::vector<Qvx16sc> z(2000);
  std::vector<Qvx32sc> z32(2000);
  for (const auto& [magnScale, phaseScale] : {std::pair{0, 13}, {3, 12}, {-4, 0}, {99, 5}, {-99, -99}, {1, -3}}) {
    ASSERT_EQ(qvxsPolarToCart_16sc_Sfs(magn.data(), phase.data(), z.data(), 2000, magnScale, phaseScale), qvxStatOk);
    for (size_t i = 0; i < z.size(); ++i) {
      expectNearest(z[i], std::ldexp(magn[i], -std::clamp(magnScale, -31, 31)),
                    std::ldexp(phase[i], -std::clamp(phaseScale, -31, 31)));
    }
  }
  for (const int point : {0, 1, 13, 15}) {
    ASSERT_EQ(qvxsPolarToCart_16sc(magn.data(), phase.data(), point, z.data(), 2000), qvxStatOk);
    for (size_t i = 0; i < z.size(); ++i) expectNearest(z[i], magn[i], std::ldexp(phase[i], -point));
  }
  for (const int point : {0, 7, 29, 31}) {
    ASSERT_EQ(qvxsPolarToCart_32sc(magn32.data(), phase32.data(), point, z32.data(), 2000), qvxStatOk);
    for (size_t i = 0; i < z32.size(); ++i) expectNearest(z32[i], magn32[i], std::ldexp(phase32[i], -point));
  }
  EXPECT_EQ(qvxsPolarToCart_16sc(magn.data(), phase.data(), 16, z.data(), 1), qvxStatBadSize);
}

}  // namespace
