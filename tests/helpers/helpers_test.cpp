// Pre-emphasis, FM demodulation, running averages, zero crossings, normalisation.
#include <gtest/gtest.h>
#include <qvx/qvxs.h>

#include <cmath>
#include <numbers>

#include "reference/scaled.h"
#include "support/elementwise.h"
#include "support/placements.h"

namespace {

using tests::Block;
using tests::Placements;
using tests::Random;
using tests::sameBits;
using tests::values;

const std::vector<size_t> kLengths = {1, 2, 3, 7, 8, 15, 16, 17, 31, 32, 33, 63, 64, 65, 127, 128, 129, 500};

// In place, at the end of a block and at odd places.
template <class T, class Call, class Expected> void expectInPlace(const std::vector<T>& x, Call call, Expected expected) {
  Block block(x.size() * sizeof(T) + 128);
  for (const size_t n : kLengths) {
    for (const bool atEnd : {true, false}) {
      T* p = reinterpret_cast<T*>(atEnd ? block.atEnd(n * sizeof(T)) : block.atOffset(n % 64, n * sizeof(T)));
      std::copy_n(x.begin(), n, p);
      ASSERT_EQ(call(p, static_cast<int>(n)), qvxStatOk);
      ASSERT_TRUE(block.isIntact());
      for (size_t i = 0; i < n; ++i) {
        const T y = expected(x, i);
        ASSERT_TRUE(sameBits(p + i, &y, 1)) << "element " << i << " of " << n << " is " << +p[i] << ", not " << +y;
      }
    }
  }
}

TEST(Preemphasize, TakesAPartOfTheSampleBefore) {
  Random random(tests::seed());
  for (const float val : {0.0F, 0.97F, -1.0F, 1e30F}) {
    expectInPlace(
        values<Qvx32f>(500, random), [=](Qvx32f* p, int n) { return qvxsPreemphasize_32f(p, n, val); },
        [=](const std::vector<Qvx32f>& x, size_t i) {
          volatile float product = i == 0 ? 0 : val * x[i - 1];  // a rounding of its own
          return i == 0 ? x[0] : x[i] - product;
        });
    expectInPlace(
        values<Qvx16s>(500, random), [=](Qvx16s* p, int n) { return qvxsPreemphasize_16s(p, n, val); },
        [=](const std::vector<Qvx16s>& x, size_t i) {
          volatile float product = i == 0 ? 0 : val * x[i - 1];
          const float y = static_cast<float>(x[i]) - (i == 0 ? 0.0F : product);
          return static_cast<Qvx16s>(std::nearbyint(std::fmax(-32768.0F, std::fmin(y, 32767.0F))));
        });
  }
}

// ---- FM

int32_t wrapped(int64_t v) { return static_cast<int32_t>(static_cast<uint32_t>(v)); }

// Units of the exact angle, the far end of the half turn apart.
double angle(Qvx16sc now, Qvx16sc before) {
  const double y = wrapped(int64_t{before.re} * now.im - int64_t{before.im} * now.re);
  const double x = wrapped(int64_t{before.re} * now.re + int64_t{before.im} * now.im);
  return std::atan2(y, x) * 32768 / std::numbers::pi;
}

void expectAngles(const std::vector<Qvx16s>& re, const std::vector<Qvx16s>& im) {
  Placements<Qvx16s, Qvx16s>(re.size()).run(re, im, [](size_t n, const Qvx16s* a, const Qvx16s* b) {
    for (const int place : {0, 1, 2}) {  // of its own, and in either source's
      std::vector<Qvx16s> x(a, a + n), y(b, b + n), own(n);
      Qvx16sc point = {-32768, 12345}, before = point;
      Qvx16s* const dst = place == 0 ? own.data() : place == 1 ? x.data() : y.data();
      ASSERT_EQ(qvxsDemodulateFM_CToR_16s(place == 0 ? a : x.data(), place == 0 ? b : y.data(), dst, static_cast<int>(n), &point),
                qvxStatOk);
      for (size_t i = 0; i < n; ++i) {
        const Qvx16sc now = {a[i], b[i]};
        const double exact = angle(now, before);
        ASSERT_LE(std::fabs(dst[i] - std::min(exact, 32767.0)), 1) << "element " << i << " of " << n;
        if (exact == std::trunc(exact) && std::fabs(exact) != 32768) {
          ASSERT_EQ(dst[i], exact) << "an axis is no estimate";
        }
        before = now;
      }
      ASSERT_TRUE(point.re == a[n - 1] && point.im == b[n - 1]);
    }
  });
}

TEST(DemodulateFM, IsWithinOneUnitOfTheAngle) {
  Random random(tests::seed());
  expectAngles(values<Qvx16s>(3000, random), values<Qvx16s>(3000, random));  // extremes, axes, zeros: all octants
  std::vector<Qvx16s> re, im;
  for (double i = 0; i < 40000; ++i) {  // a growing spiral at a rising frequency, both ways
    const double phase = 1e-8 * i * i * (std::fmod(i, 2) == 0 ? 1 : -1), radius = 3 + i * 0.8;
    re.push_back(static_cast<Qvx16s>(std::lrint(radius * std::cos(phase))));
    im.push_back(static_cast<Qvx16s>(std::lrint(radius * std::sin(phase))));
  }
  expectAngles(re, im);
}

TEST(DemodulateFM, KnowsTheAxes) {
  const auto of = [](Qvx16sc before, Qvx16sc now) {
    Qvx16s units = 99;
    EXPECT_EQ(qvxsDemodulateFM_CToR_16s(&now.re, &now.im, &units, 1, &before), qvxStatOk);
    return units;
  };
  EXPECT_EQ(of({5, 0}, {0, 0}), 0);
  EXPECT_EQ(of({5, 0}, {3, 0}), 0);
  EXPECT_EQ(of({5, 0}, {0, 3}), 16384);
  EXPECT_EQ(of({5, 0}, {0, -3}), -16384);
  EXPECT_EQ(of({5, 0}, {3, 3}), 8192);
  EXPECT_EQ(of({5, 0}, {-3, 0}), 32767);
  EXPECT_EQ(of({-32768, 0}, {32767, 1}), -32768);
  EXPECT_EQ(of({-32768, -32768}, {-32768, -32768}), 32767) << "2^31 reads as its opposite";
}

// Cut anywhere, a stream is what it is in one piece.
TEST(DemodulateFM, CarriesThePointBefore) {
  Random random(tests::seed());
  const auto re = values<Qvx16s>(1000, random), im = values<Qvx16s>(1000, random);
  std::vector<Qvx16s> whole(1000), cut(1000);
  Qvx16sc point = {1, 2}, other = point;
  ASSERT_EQ(qvxsDemodulateFM_CToR_16s(re.data(), im.data(), whole.data(), 1000, &point), qvxStatOk);
  for (size_t at = 0; at < 1000;) {
    const size_t n = std::min<size_t>(1 + random() % 70, 1000 - at);
    ASSERT_EQ(qvxsDemodulateFM_CToR_16s(&re[at], &im[at], &cut[at], static_cast<int>(n), &other), qvxStatOk);
    at += n;
  }
  EXPECT_EQ(cut, whole);
}

// ---- running averages

TEST(RunningAverage, IsExactlyRounded) {
  Random random(tests::seed());
  for (int trial = 0; trial < 400; ++trial) {
    const auto x = values<Qvx16s>(1 + random() % 60, random);
    const auto alpha = tests::value<Qvx16s>(random);
    const auto start = tests::value<Qvx32s>(random);
    const int shift = trial % 3 == 0   ? static_cast<int>(random() % 16)
                      : trial % 3 == 1 ? -static_cast<int>(random() % 9)
                                       : 14 + trial;
    reference::Wide linear = start, power = start;
    for (const Qvx16s v : x) {
      const auto step = [&](reference::Wide y, int value) {
        return reference::scaled<Qvx32s>(alpha * y + reference::Wide{32768 - alpha} * value, 15);
      };
      linear = step(linear, v >> std::clamp(shift, 0, 15));
      power = step(power, v * v >> std::clamp(shift, 0, 31));
    }
    for (const int hint : {0, 1, 7}) {
      Qvx32s y = start, z = start;
      ASSERT_EQ(qvxsUpdateLinear_16s32s_I(x.data(), static_cast<int>(x.size()), &y, shift, alpha, hint), qvxStatOk);
      ASSERT_EQ(qvxsUpdatePower_16s32s_I(x.data(), static_cast<int>(x.size()), &z, shift, alpha, hint), qvxStatOk);
      ASSERT_TRUE(y == linear && z == power) << "alpha " << alpha << ", shift " << shift;
    }
  }
}

// ---- zero crossings

template <class T> int side(T x) { return x > 0 ? 1 : x < 0 ? -1 : 0; }
template <class T> bool isNegative(T x) {
  if constexpr (std::is_floating_point_v<T>) return std::signbit(x) && x != 0;
  else return x < 0;
}

template <class T, class Call> void expectCrossings(const std::vector<T>& x, Call call) {
  Placements<T>(x.size()).run(x, [&](size_t n, const T* p) {
    int opposite = 0, signs = 0, steps = 0;
    for (size_t i = 1; i < n; ++i) {
      opposite += side(p[i]) * side(p[i - 1]) < 0;
      signs += isNegative(p[i]) != isNegative(p[i - 1]);
      steps += std::abs(side(p[i]) - side(p[i - 1]));
    }
    const double expected[] = {static_cast<double>(opposite), static_cast<double>(signs), steps / 2.0};
    for (const int type : {0, 1, 2}) {
      Qvx32f count = -1;
      ASSERT_EQ(call(p, static_cast<int>(n), &count, type), qvxStatOk);
      ASSERT_EQ(count, expected[type]) << "type " << type << ", length " << n;
    }
  });
}

TEST(ZeroCrossing, CountsByItsType) {
  Random random(tests::seed());
  auto integers = values<Qvx16s>(2000, random);
  for (Qvx16s& x : integers) x = random() % 3 == 0 ? 0 : x;
  expectCrossings(integers, qvxsZeroCrossing_16s32f);
  auto floats = values<Qvx32f>(2000, random);
  const float special[] = {0.0F, -0.0F, 1e-45F, -1e-45F, INFINITY, -INFINITY, NAN, -NAN};
  for (Qvx32f& x : floats) x = random() % 3 == 0 ? special[random() % 8] : x;
  expectCrossings(floats, qvxsZeroCrossing_32f);
  // Every pair of kinds: random ones may lack some.
  for (const float a : special) {
    for (const float b : special) expectCrossings(std::vector<Qvx32f>{a, b, a}, qvxsZeroCrossing_32f);
  }
  // More of them than lanes of 16 bits count in one go.
  std::vector<Qvx16s> alternating(300000);
  for (size_t i = 0; i < alternating.size(); ++i) alternating[i] = i % 2 == 0 ? 1 : -1;
  for (const int type : {0, 1, 2}) {
    Qvx32f count;
    ASSERT_EQ(qvxsZeroCrossing_16s32f(alternating.data(), 300000, &count, type), qvxStatOk);
    EXPECT_EQ(count, 299999) << type;
  }
  const Qvx16s step[] = {1, 0, -1};
  const float expected[] = {0, 1, 1};
  for (const int type : {0, 1, 2}) {
    Qvx32f count;
    ASSERT_EQ(qvxsZeroCrossing_16s32f(step, 3, &count, type), qvxStatOk);
    EXPECT_EQ(count, expected[type]);
  }
}

// ---- Normalize

template <class T> void expectNormalized(std::initializer_list<T> divisors, QvxStatus (*call)(const T*, T*, int, T, T)) {
  Random random(tests::seed());
  for (const T vDiv : divisors) {
    const T vSub = tests::value<T>(random);
    tests::Elementwise<T, T> all(600, random, [=](T x) {
      volatile T difference = x - vSub, reciprocal = 1 / vDiv;
      return std::fabs(reciprocal) < std::numeric_limits<T>::min() ? difference / vDiv : difference * reciprocal;
    });
    all.run([=](const T* a, T* d, int n) { return call(a, d, n, vSub, vDiv); });
    all.run([=](const T*, T* d, int n) { return call(d, d, n, vSub, vDiv); }, 0);
  }
  T x = 1, y = 77;
  for (const T vDiv :
       {T(0), std::numeric_limits<T>::min() / 2, -std::numeric_limits<T>::denorm_min(), std::numeric_limits<T>::quiet_NaN()}) {
    EXPECT_EQ(call(&x, &y, 1, 0, vDiv), qvxStatDivByZero);
    EXPECT_EQ(y, 77);
  }
}

TEST(Normalize, FloatsWithTheReciprocal) {
  expectNormalized<Qvx32f>({3, -0.7F, 0x1p-126F, 3e38F, -INFINITY}, qvxsNormalize_32f);
  expectNormalized<Qvx64f>({3, -0.7, 0x1p-1022, 1.7e308}, qvxsNormalize_64f);
}

TEST(Normalize, ComplexPartsApart) {
  Random random(tests::seed());
  const Qvx32fc sub = {1.5F, -7};
  tests::Elementwise<Qvx32fc, Qvx32fc> floats(300, random, [=](Qvx32fc x) {
    volatile float re = x.re - sub.re, im = x.im - sub.im;
    return Qvx32fc{re * (1 / 3.0F), im * (1 / 3.0F)};
  });
  floats.run([=](const Qvx32fc* a, Qvx32fc* d, int n) { return qvxsNormalize_32fc(a, d, n, sub, 3); });
  tests::Elementwise<Qvx64fc, Qvx64fc> doubles(300, random, [=](Qvx64fc x) {
    volatile double re = x.re - 1.5, im = x.im + 7;
    return Qvx64fc{re * (1 / 3.0), im * (1 / 3.0)};
  });
  doubles.run([=](const Qvx64fc* a, Qvx64fc* d, int n) { return qvxsNormalize_64fc(a, d, n, {1.5, -7}, 3); });
}

// The quotient rounded to a float, times a power of two made of an exponent's field of which 7 bits count.
Qvx16s normalized(int difference, int vDiv, int scaleFactor) {
  volatile float divisor = static_cast<float>(vDiv), quotient = static_cast<float>(difference) / divisor;
  const unsigned places = (scaleFactor < 0 ? 0U - static_cast<unsigned>(scaleFactor) : static_cast<unsigned>(scaleFactor)) % 128;
  const double factor = places == 127 && scaleFactor > 0
                            ? 0
                            : std::ldexp(1.0, scaleFactor < 0 ? static_cast<int>(places) : -static_cast<int>(places));
  return static_cast<Qvx16s>(std::nearbyint(std::clamp(quotient * factor, -32768.0, 32767.0)));
}

TEST(Normalize, IntegersWithTheirScale) {
  Random random(tests::seed());
  for (const int scale : {0, 1, 3, 16, 126, 127, 128, 131, -1, -3, -16, -127, -128, INT32_MIN, INT32_MAX}) {
    for (const int vDiv : {1, -1, 2, 3, 14, -100, 32767, 65535, 16777215, 16777217, INT32_MAX, INT32_MIN}) {
      const auto vSub = tests::value<Qvx16s>(random);
      tests::Elementwise<Qvx16s, Qvx16s> all(150, random, [=](Qvx16s x) { return normalized(x - vSub, vDiv, scale); });
      all.run([=](const Qvx16s* a, Qvx16s* d, int n) { return qvxsNormalize_16s_Sfs(a, d, n, vSub, vDiv, scale); });
    }
  }
  const Qvx16sc sub = {-32768, 32767};
  tests::Elementwise<Qvx16sc, Qvx16sc> parts(300, random, [=](Qvx16sc x) {
    return Qvx16sc{normalized(x.re - sub.re, 6, 1), normalized(x.im - sub.im, 6, 1)};
  });
  parts.run([=](const Qvx16sc* a, Qvx16sc* d, int n) { return qvxsNormalize_16sc_Sfs(a, d, n, sub, 6, 1); });
}

// Each dividend with divisors that leave quotients next to a rounding's edge: the nearest float, not the one beside it.
TEST(Normalize, QuotientsAreTheNearest) {
  std::vector<Qvx16s> x(65536), y(65536);
  for (size_t i = 0; i < x.size(); ++i) x[i] = static_cast<Qvx16s>(static_cast<int>(i) - 32768);
  Random random(tests::seed());
  for (int trial = 0; trial < 150; ++trial) {
    const int vDiv = trial < 50 ? 1 + 2 * trial : static_cast<int>(random() >> (33 + random() % 24)) + 1;
    const int scale = -static_cast<int>(random() % 20);
    const Qvx16s vSub = trial % 2 == 0 ? 32767 : -32768;
    ASSERT_EQ(qvxsNormalize_16s_Sfs(x.data(), y.data(), 65536, vSub, vDiv, scale), qvxStatOk);
    for (size_t i = 0; i < x.size(); ++i)
      ASSERT_EQ(y[i], normalized(x[i] - vSub, vDiv, scale)) << x[i] << " - " << vSub << ", " << vDiv;
  }
}

}  // namespace
