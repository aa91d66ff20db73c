// Components at any frequency against the sum that defines them, in long double.
#include <gtest/gtest.h>
#include <qvx/qvxs.h>

#include <cmath>
#include <complex>
#include <numbers>

#include "support/placements.h"
#include "support/rounding.h"

namespace {

using tests::Placements;
using tests::Random;
using Sum = std::complex<long double>;

template <class T> Sum number(T v) {
  if constexpr (tests::isComplex<T>) return {static_cast<long double>(v.re), static_cast<long double>(v.im)};
  else return v;
}

struct Exact {
  Sum sum;
  long double magnitudes = 0;
};

// Turns are reduced before they are multiplied, so that 10^6 samples are as exact as one.
template <class T> Exact exact(const T* x, size_t n, double frequency) {
  Exact all;
  for (size_t i = 0; i < n; ++i) {
    const long double turns = std::fmod(static_cast<long double>(frequency) * static_cast<long double>(n - i), 1.0L);
    all.sum += number(x[i]) * std::polar(1.0L, 2 * std::numbers::pi_v<long double> * turns);
    all.magnitudes += std::abs(number(x[i]));
  }
  return all;
}

const double kFrequencies[] = {0, 1e-7, 1e-5, 0.001, 0.1, 0.25, 1.0 / 3, 0.4999, 0.5, 0.73, 0.99999994};

template <class R> double distance(R r, const Exact& e) {
  return static_cast<double>(std::abs(Sum(r.re, r.im) - e.sum) / e.magnitudes);
}

template <class T, class R, class F>
double worstOf(size_t n, QvxStatus (*one)(const T*, int, R*, F), QvxStatus (*two)(const T*, int, R*, const F*)) {
  Random random(tests::seed());
  std::vector<T> x = tests::values<T>(n, random);
  double worst = 0;
  Placements<T>(n).run(x, [&](size_t count, const T* p) {
    for (size_t k = 0; k < std::size(kFrequencies); ++k) {
      const F f[] = {static_cast<F>(kFrequencies[k]), static_cast<F>(kFrequencies[(k + 3) % std::size(kFrequencies)])};
      R r, both[2];
      ASSERT_EQ(one(p, static_cast<int>(count), &r, f[0]), qvxStatOk);
      ASSERT_EQ(two(p, static_cast<int>(count), both, f), qvxStatOk);
      const Exact first = exact(p, count, f[0]), second = exact(p, count, f[1]);
      if (first.magnitudes == 0) continue;
      worst = std::max({worst, distance(r, first), distance(both[0], first), distance(both[1], second)});
      if (k == 0 && !tests::isComplex<T>) {
        ASSERT_EQ(r.im, 0) << "the sum of reals is real";
      }
    }
  });
  return worst;
}

TEST(Goertzel, IsTheSumThatDefinesIt) {
  constexpr double kEps = 0x1p-23, kEps64 = 0x1p-52;
  EXPECT_LE((worstOf<Qvx32f, Qvx32fc, Qvx32f>(700, qvxsGoertz_32f, qvxsGoertzTwo_32f)), kEps);
  EXPECT_LE((worstOf<Qvx32fc, Qvx32fc, Qvx32f>(700, qvxsGoertz_32fc, qvxsGoertzTwo_32fc)), kEps);
  EXPECT_LE((worstOf<Qvx64f, Qvx64fc, Qvx64f>(700, qvxsGoertz_64f, qvxsGoertzTwo_64f)), 100 * kEps64);
  EXPECT_LE((worstOf<Qvx64fc, Qvx64fc, Qvx64f>(700, qvxsGoertz_64fc, qvxsGoertzTwo_64fc)), 100 * kEps64);
}

TEST(Goertzel, LosesNoDigitInAnyRoundingMode) {
  Random random(tests::seed());
  std::uniform_real_distribution<double> level(-1, 1);
  std::vector<Qvx64f> x(700);
  for (Qvx64f& v : x) v = level(random);
  for (const double f : kFrequencies) {
    const Exact expected = exact(x.data(), x.size(), f);
    for (const int mode : tests::kRoundings) {
      Qvx64fc r;
      {
        const tests::CallersRounding callers(mode);
        ASSERT_EQ(qvxsGoertz_64f(x.data(), 700, &r, f), qvxStatOk);
      }
      EXPECT_LE(distance(r, expected), 100 * 0x1p-52) << "frequency " << f << ", mode " << mode;
    }
  }
}

// Where a recursion has lost all digits: its states grow with the inverse of a low frequency.
TEST(Goertzel, LongVectorsOfLowFrequencies) {
  constexpr size_t kMost = 1000000;
  Random random(tests::seed());
  std::uniform_real_distribution<float> level(-1, 1);
  std::vector<Qvx32f> x(kMost);
  for (Qvx32f& v : x) v = level(random);
  std::vector<Qvx32f> tone(kMost);
  double worst = 0;
  for (const float f : {0.0F, 1e-9F, 1e-6F, 3.3e-5F, 0.0123F, 0.5F, 0.99999994F}) {
    for (size_t i = 0; i < kMost; ++i)
      tone[i] = static_cast<float>(std::cos(2 * M_PI * std::fmod(double{f} * static_cast<double>(i), 1.0)));
    for (const std::vector<Qvx32f>* v : {&x, &tone}) {
      Qvx32fc r;
      ASSERT_EQ(qvxsGoertz_32f(v->data(), static_cast<int>(kMost), &r, f), qvxStatOk);
      worst = std::max(worst, distance(r, exact(v->data(), kMost, f)));
    }
  }
  EXPECT_LE(worst, 4 * 0x1p-23);
}

template <class T> void expectScaled(int scale, QvxStatus (*one)(const T*, int, Qvx16sc*, Qvx32f, int)) {
  Random random(tests::seed());
  const auto x = tests::values<T>(333, random);
  for (const double frequency : kFrequencies) {
    for (const size_t n : {size_t{1}, size_t{7}, size_t{64}, x.size()}) {
      Qvx16sc r;
      ASSERT_EQ(one(x.data(), static_cast<int>(n), &r, static_cast<float>(frequency), scale), qvxStatOk);
      const Sum sum = exact(x.data(), n, static_cast<float>(frequency)).sum * std::ldexp(1.0L, -scale);
      ASSERT_LE(std::fabs(r.re - std::clamp(sum.real(), -32768.0L, 32767.0L)), 1)
          << "frequency " << frequency << ", scale " << scale;
      ASSERT_LE(std::fabs(r.im - std::clamp(sum.imag(), -32768.0L, 32767.0L)), 1)
          << "frequency " << frequency << ", scale " << scale;
    }
  }
}

TEST(Goertzel, IntegersAreScaledAndLimited) {
  for (const int scale : {0, 3, 8, 15, -3}) {
    expectScaled<Qvx16s>(scale, qvxsGoertz_16s_Sfs);
    expectScaled<Qvx16sc>(scale, qvxsGoertz_16sc_Sfs);
  }
  const Qvx16sc x[] = {{100, -200}, {3000, 30000}, {-32768, 32767}};
  for (const int scale : {INT32_MIN, -20, 40, INT32_MAX}) {
    Qvx16sc r;
    ASSERT_EQ(qvxsGoertz_16sc_Sfs(x, 3, &r, 0, scale), qvxStatOk);
    EXPECT_TRUE(scale < 0 ? r.re == -32768 && r.im == 32767 : r.re == 0 && r.im == 0) << "scale " << scale;
  }
  const Qvx16s q15[] = {12345, 32767};
  const Qvx32f same[] = {12345 / 32768.0F, 32767 / 32768.0F};
  Qvx16sc ours[2], both[2], one;
  ASSERT_EQ(qvxsGoertzTwoQ15_16sc_Sfs(x, 3, ours, q15, 1), qvxStatOk);
  ASSERT_EQ(qvxsGoertzTwo_16sc_Sfs(x, 3, both, same, 1), qvxStatOk);
  for (size_t k = 0; k < 2; ++k) {
    EXPECT_TRUE(ours[k].re == both[k].re && ours[k].im == both[k].im);
    ASSERT_EQ(qvxsGoertzQ15_16sc_Sfs(x, 3, &one, q15[k], 1), qvxStatOk);
    EXPECT_TRUE(one.re == both[k].re && one.im == both[k].im);
  }
}

TEST(Goertzel, FrequenciesEndBelowOne) {
  const Qvx32f x[] = {1, 2};
  const Qvx16sc z[] = {{1, 2}};
  Qvx32fc r;
  Qvx16sc s;
  for (const float f : {1.0F, -1e-45F, NAN, INFINITY}) EXPECT_EQ(qvxsGoertz_32f(x, 2, &r, f), qvxStatBadRelFreq);
  EXPECT_EQ(qvxsGoertz_32f(x, 2, &r, -0.0F), qvxStatOk);
  EXPECT_EQ(qvxsGoertzQ15_16sc_Sfs(nullptr, 0, nullptr, -1, 0), qvxStatBadRelFreq) << "before the pointers";
  EXPECT_EQ(qvxsGoertzQ15_16sc_Sfs(z, 1, nullptr, 0, 0), qvxStatNullPtr);
  const Qvx16s negative[] = {5, -1};
  EXPECT_EQ(qvxsGoertzTwoQ15_16sc_Sfs(nullptr, 0, &s, negative, 0), qvxStatBadRelFreq);
  EXPECT_EQ(qvxsGoertzTwoQ15_16sc_Sfs(z, 1, &s, nullptr, 0), qvxStatNullPtr);
  const float second[] = {0.5F, 1};
  EXPECT_EQ(qvxsGoertzTwo_32f(x, 2, &r, second), qvxStatBadRelFreq);
  EXPECT_EQ(qvxsGoertzTwo_32f(x, 0, &r, second), qvxStatBadSize);
}

}  // namespace
