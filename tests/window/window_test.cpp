// Windows: weights, symmetry, middles, rounding of integers, refusals that are a family's own.
#include <gtest/gtest.h>
#include <qvx/qvxs.h>

#include <cmath>
#include <cstring>
#include <functional>

#include "reference/window.h"
#include "support/values.h"

namespace {

using reference::Real;
using tests::Part;

template <class T> using Call = std::function<QvxStatus(const T*, T*, int)>;

// A window of one type and its formula, for the first half.
template <class T> struct Window {
  const char* name;
  Call<T> call;
  std::function<Real(int n, int len)> weight;
  double ulps;    // of the weight, in floats of 24 or 53 digits
  int least = 3;  // the shortest length
};

constexpr Qvx32f kAlpha = 0.3F;
constexpr Real kStandard = -0.16F;

// The Kaiser window's alpha that makes a beta of 8.
double kaiserAlpha(int len) { return static_cast<Qvx32f>(16.0 / std::max(len - 1, 1)); }

template <class T, class B, class H, class M, class K, class S, class O, class Z>
std::vector<Window<T>> windows(B bartlett, H hann, M hamming, K blackman, S standard, O optimal, Z kaiser) {
  constexpr bool kWide = sizeof(Part<T>) == 8;
  const double few = kWide ? 256 : 8, squared = 2 * few;  // the square of a square has twice its error
  const double series = kWide ? 5.6e-6 * 0x1p53 : 4e-7 * 0x1p24;
  return {{"Bartlett", bartlett, reference::bartlett, 4},
          {"Hann", hann, reference::hann, few},
          {"Hamming", hamming, reference::hamming, few},
          {"Blackman", [=](const T* a, T* d, int n) { return blackman(a, d, n, kAlpha); },
           [](int n, int len) { return reference::blackman(n, len, kAlpha); }, squared},
          {"BlackmanStd", standard, [](int n, int len) { return reference::blackman(n, len, kStandard); }, squared},
          {"BlackmanOpt", optimal, reference::optimalBlackman, squared, 4},
          {"Kaiser", [=](const T* a, T* d, int n) { return kaiser(a, d, n, static_cast<Qvx32f>(kaiserAlpha(n))); },
           [](int n, int len) { return reference::kaiser(n, len, kaiserAlpha(len)); }, series, 1}};
}
template <class T> std::vector<Window<T>> windowsOf();
template <> std::vector<Window<Qvx32f>> windowsOf() {
  return windows<Qvx32f>(qvxsWinBartlett_32f, qvxsWinHann_32f, qvxsWinHamming_32f, qvxsWinBlackman_32f, qvxsWinBlackmanStd_32f,
                         qvxsWinBlackmanOpt_32f, qvxsWinKaiser_32f);
}
template <> std::vector<Window<Qvx64f>> windowsOf() {
  return windows<Qvx64f>(qvxsWinBartlett_64f, qvxsWinHann_64f, qvxsWinHamming_64f, qvxsWinBlackman_64f, qvxsWinBlackmanStd_64f,
                         qvxsWinBlackmanOpt_64f, qvxsWinKaiser_64f);
}
template <> std::vector<Window<Qvx32fc>> windowsOf() {
  return windows<Qvx32fc>(qvxsWinBartlett_32fc, qvxsWinHann_32fc, qvxsWinHamming_32fc, qvxsWinBlackman_32fc,
                          qvxsWinBlackmanStd_32fc, qvxsWinBlackmanOpt_32fc, qvxsWinKaiser_32fc);
}
template <> std::vector<Window<Qvx64fc>> windowsOf() {
  return windows<Qvx64fc>(qvxsWinBartlett_64fc, qvxsWinHann_64fc, qvxsWinHamming_64fc, qvxsWinBlackman_64fc,
                          qvxsWinBlackmanStd_64fc, qvxsWinBlackmanOpt_64fc, qvxsWinKaiser_64fc);
}
template <> std::vector<Window<Qvx16s>> windowsOf() {
  return windows<Qvx16s>(qvxsWinBartlett_16s, qvxsWinHann_16s, qvxsWinHamming_16s, qvxsWinBlackman_16s, qvxsWinBlackmanStd_16s,
                         qvxsWinBlackmanOpt_16s, qvxsWinKaiser_16s);
}
template <> std::vector<Window<Qvx16sc>> windowsOf() {
  return windows<Qvx16sc>(qvxsWinBartlett_16sc, qvxsWinHann_16sc, qvxsWinHamming_16sc, qvxsWinBlackman_16sc,
                          qvxsWinBlackmanStd_16sc, qvxsWinBlackmanOpt_16sc, qvxsWinKaiser_16sc);
}

// All short ones, and those about the lengths from which on angles are rotated, in each variant.
std::vector<int> lengths(int least) {
  std::vector<int> all;
  for (int n = least; n <= 300; ++n) all.push_back(n);
  for (const int from : {550, 1010}) {
    for (int n = from; n < from + 60; ++n) all.push_back(n);
  }
  all.insert(all.end(), {2048, 2049, 4100, 8191, 50001});
  return all;
}

template <class T> class Windows : public testing::Test {};
using Types = testing::Types<Qvx16s, Qvx16sc, Qvx32f, Qvx32fc, Qvx64f, Qvx64fc>;
TYPED_TEST_SUITE(Windows, Types);

// Everywhere near the formula, relative to the weight; the middle of odd lengths to the bit, where a rounded 1 would show.
TYPED_TEST(Windows, AreTheirFormulas) {
  using T = TypeParam;
  using P = Part<T>;
  constexpr int kParts = sizeof(T) / sizeof(P);
  tests::Random random(tests::seed());
  for (const Window<T>& w : windowsOf<T>()) {
    double worst = 0;
    for (const int len : lengths(w.least)) {
      std::vector<T> x(static_cast<size_t>(len)), y(x.size());
      auto* const in = reinterpret_cast<P*>(x.data());
      const auto* const out = reinterpret_cast<const P*>(y.data());
      for (int i = 0; i < kParts * len; ++i) {
        const auto bits = static_cast<int32_t>(random());
        in[i] = std::is_integral_v<P> ? static_cast<P>(bits >> 16) : static_cast<P>(1 + std::abs(bits) * 0x1p-31);
      }
      ASSERT_EQ(w.call(x.data(), y.data(), len), qvxStatOk) << w.name;
      for (int i = 0; i < kParts * len; ++i) {
        const int n = i / kParts, m = std::min(n, len - 1 - n);
        if (len % 2 != 0 && n == len / 2) {
          ASSERT_EQ(out[i], in[i]) << w.name << ", length " << len;
          continue;
        }
        const Real weight = w.weight(m, len), exact = weight * in[i];
        const bool isTruncated = w.name == std::string("Hamming") && m == 0;
        if constexpr (std::is_integral_v<P>) {
          const Real limited = std::clamp(exact, -32768.0L, 32767.0L);
          ASSERT_LE(std::abs(out[i] - (isTruncated ? std::trunc(exact) : limited)), 0.51L + std::abs(exact) * 4e-7L)
              << w.name << ", length " << len << ", element " << n;
        } else {
          // The terms of the optimal window cancel where they are tan^2(pi / (N-1)) s each.
          const Real scale =
              std::abs(in[i]) *
              (w.least == 4 ? reference::hann(m, len) * reference::hann(1, len) + std::abs(weight) : std::abs(weight));
          const double error = scale == 0 ? std::abs(out[i]) : static_cast<double>(std::abs(out[i] - exact) / scale);
          worst = std::max(worst, error / (std::numeric_limits<P>::epsilon() / 2));
          ASSERT_LE(worst, w.ulps) << w.name << ", length " << len << ", element " << n;
        }
      }
    }
    if (!std::is_integral_v<P>) this->RecordProperty(w.name, std::to_string(worst));
  }
}

// Equal samples leave equal halves, to the bit.
TYPED_TEST(Windows, AreSymmetric) {
  using T = TypeParam;
  T value;
  auto* const parts = reinterpret_cast<Part<T>*>(&value);
  for (size_t k = 0; k < sizeof(T) / sizeof(Part<T>); ++k) parts[k] = static_cast<Part<T>>(k == 0 ? 12345 : -777);
  for (const Window<T>& w : windowsOf<T>()) {
    for (const int len : lengths(w.least)) {
      std::vector<T> x(static_cast<size_t>(len), value);
      ASSERT_EQ(w.call(x.data(), x.data(), len), qvxStatOk);
      for (size_t n = 0; n < x.size() / 2; ++n) {
        ASSERT_EQ(std::memcmp(&x[n], &x[x.size() - 1 - n], sizeof(T)), 0) << w.name << ", length " << len << ", element " << n;
      }
    }
  }
}

TEST(WindowEnds, OfThreeSamplesAreZeroWhateverTheyWere) {
  for (const Window<Qvx32f>& w : windowsOf<Qvx32f>()) {
    if (w.least == 4 || w.name == std::string("Hamming") || w.name == std::string("Kaiser")) continue;
    Qvx32f x[] = {NAN, 7, -INFINITY};
    ASSERT_EQ(w.call(x, x, 3), qvxStatOk);
    EXPECT_TRUE(x[0] == 0 && !std::signbit(x[0]) && x[1] == 7 && x[2] == 0 && !std::signbit(x[2])) << w.name;
  }
}

TEST(WindowEnds, OfHammingOnIntegersAreTruncated) {
  for (const Qvx16s v : {32767, -32768, 31, 37, -37, 12}) {  // 12 * 0.08 is next to 1, 31 * 0.08 = 2.48, 37 * 0.08 = 2.96
    Qvx16s x[] = {v, v, v, v, v};
    ASSERT_EQ(qvxsWinHamming_16s_I(x, 5), qvxStatOk);
    EXPECT_EQ(x[0], static_cast<Qvx16s>(std::trunc(v * 0.08))) << v;
    EXPECT_EQ(x[4], x[0]);
    EXPECT_EQ(x[1], static_cast<Qvx16s>(std::nearbyint(v * 0.54))) << v;
  }
}

TEST(WindowRefusals, InTheirOrder) {
  Qvx32f x[3000] = {};
  EXPECT_EQ(qvxsWinBlackmanOpt_32f(nullptr, nullptr, 3), qvxStatBadSize);
  EXPECT_EQ(qvxsWinBlackmanOpt_32f(nullptr, nullptr, 4), qvxStatNullPtr);
  EXPECT_EQ(qvxsWinBlackman_32f_I(x, 3, 0), qvxStatOk);
  EXPECT_EQ(qvxsWinBlackman_32f(nullptr, x, 2, 0), qvxStatNullPtr);
}

// The limit of alpha (N-1) / 2 is each type's own.
TEST(Kaiser, LimitsAlphaByTypeAndCopiesOneElement) {
  Qvx32f x[39] = {5};
  Qvx64f y[39] = {5};
  Qvx16s z[39] = {5};
  EXPECT_EQ(qvxsWinKaiser_32f_I(x, 39, 2), qvxStatOk);
  EXPECT_EQ(qvxsWinKaiser_32f_I(x, 39, std::nextafter(2.0F, 3.0F)), qvxStatBadKaiserAlpha);
  EXPECT_EQ(qvxsWinKaiser_32f_I(x, 39, -2.5F), qvxStatBadKaiserAlpha);
  EXPECT_EQ(qvxsWinKaiser_64f_I(y, 39, 2.5F), qvxStatOk);
  EXPECT_EQ(qvxsWinKaiser_64f_I(y, 39, 16.3F), qvxStatBadKaiserAlpha);
  EXPECT_EQ(qvxsWinKaiser_16s_I(z, 39, 16.2F), qvxStatOk);
  EXPECT_EQ(qvxsWinKaiserQ15_16s_I(z, 39, 32768 * 17), qvxStatBadKaiserAlpha);
  EXPECT_EQ(qvxsWinKaiser_32f_I(x, 39, NAN), qvxStatBadKaiserAlpha);
  x[0] = 5;
  EXPECT_EQ(qvxsWinKaiser_32f_I(x, 1, 1e30F), qvxStatOk);
  EXPECT_EQ(x[0], 5);
}

// On both sides of where the polynomials meet, and up to the limits; alpha's sign does not matter.
TEST(Kaiser, IsTheBesselRatioForEveryAlpha) {
  double worst32 = 0, worst64 = 0;
  for (const int len : {2, 3, 10, 77, 1001}) {
    for (double beta = 0; beta <= 300; beta = beta < 10 ? beta + 0.37 : beta * 1.4) {
      const auto alpha = static_cast<Qvx32f>(2 * beta / (len - 1));
      std::vector<Qvx32f> x(static_cast<size_t>(len), 1.0F), other = x;
      std::vector<Qvx64f> y(static_cast<size_t>(len), 1.0);
      const bool isSmall = alpha * (len - 1.0) * 0.5 <= 38;
      ASSERT_EQ(qvxsWinKaiser_64f_I(y.data(), len, -alpha), qvxStatOk);
      ASSERT_EQ(qvxsWinKaiser_32f_I(x.data(), len, alpha), isSmall ? qvxStatOk : qvxStatBadKaiserAlpha);
      ASSERT_EQ(qvxsWinKaiser_32f_I(other.data(), len, -alpha), isSmall ? qvxStatOk : qvxStatBadKaiserAlpha);
      ASSERT_EQ(x, other);
      for (int n = 0; n < len / 2; ++n) {
        const auto at = static_cast<size_t>(n);
        const Real exact = reference::kaiser(n, len, alpha);
        worst64 = std::max(worst64, static_cast<double>(std::abs(y[at] / exact - 1)));
        if (isSmall && exact > 1e-30L) worst32 = std::max(worst32, static_cast<double>(std::abs(x[at] / exact - 1)));
      }
    }
  }
  EXPECT_LT(worst32, 4e-7);
  EXPECT_LT(worst64, 5.6e-6);
}

// Weights of up to 10^4 that fall back to 1 in the middle: what cancels there would be units in floats.
TEST(WindowSteepBlackman, IsWithinAUnit) {
  tests::Random random(tests::seed());
  for (const int len : {16, 17, 500, 1999, 5000}) {
    std::vector<Qvx16s> x(static_cast<size_t>(len)), y(x.size());
    for (Qvx16s& v : x) v = static_cast<Qvx16s>(random());
    for (const Qvx32f alpha : {100.0F, -100.0F, 1e4F}) {
      ASSERT_EQ(qvxsWinBlackman_16s(x.data(), y.data(), len, alpha), qvxStatOk);
      for (int n = 0; n < len; ++n) {
        const auto at = static_cast<size_t>(n);
        const Real w = len % 2 != 0 && n == len / 2 ? 1 : reference::blackman(std::min(n, len - 1 - n), len, alpha);
        ASSERT_LE(std::abs(y[at] - std::clamp(w * x[at], -32768.0L, 32767.0L)), 0.52L)
            << "length " << len << ", alpha " << alpha << ", element " << n;
      }
    }
  }
}

// Where one of the terms all but vanishes, or does, in windows so long that their angles are rotated.
TEST(WindowBlackman, IsNearlyHannForAlphasNearZero) {
  for (const int len : {900, 4100}) {
    for (const double alpha : {0.0, -1e-13, 1e-13, -1e-7, 1e-7}) {
      std::vector<Qvx32f> x(static_cast<size_t>(len), 1.0F);
      std::vector<Qvx64f> y(static_cast<size_t>(len), 1.0);
      ASSERT_EQ(qvxsWinBlackman_32f_I(x.data(), len, static_cast<Qvx32f>(alpha)), qvxStatOk);
      ASSERT_EQ(qvxsWinBlackman_64f_I(y.data(), len, alpha), qvxStatOk);
      for (int n = 0; n < len / 2; ++n) {
        const auto at = static_cast<size_t>(n);
        const Real w = reference::blackman(n, len, alpha);
        ASSERT_LE(std::abs(x[at] - w), 0x1p-20L * w) << "length " << len << ", alpha " << alpha << ", element " << n;
        ASSERT_LE(std::abs(y[at] - w), 0x1p-44L * w) << "length " << len << ", alpha " << alpha << ", element " << n;
      }
    }
  }
}

// Q15 alphas, and the one scaled form, whose middle is scaled like the others.
TEST(WindowQ15, IsTheFloatAlphaScaled) {
  tests::Random random(tests::seed());
  for (const int len : {3, 4, 17, 64, 501}) {
    std::vector<Qvx16s> x(static_cast<size_t>(len)), a(x.size()), b(x.size());
    for (Qvx16s& v : x) v = static_cast<Qvx16s>(random());
    for (const int q15 : {0, -5243, 9830, -32768}) {
      ASSERT_EQ(qvxsWinBlackmanQ15_16s(x.data(), a.data(), len, q15), qvxStatOk);
      ASSERT_EQ(qvxsWinBlackman_16s(x.data(), b.data(), len, static_cast<Qvx32f>(q15) / 32768), qvxStatOk);
      ASSERT_EQ(a, b) << q15;
      for (const int scale : {-40, -3, 0, 2, 16, 200, -2000}) {
        std::vector<Qvx16s> y = x;
        ASSERT_EQ(qvxsWinBlackmanQ15_16s_ISfs(y.data(), len, q15, scale), qvxStatOk);
        for (int n = 0; n < len; ++n) {
          const auto at = static_cast<size_t>(n);
          const int m = std::min(n, len - 1 - n);
          const Real w = len % 2 != 0 && n == len / 2 ? 1 : reference::blackman(m, len, q15 / 32768.0L);
          const Real exact = std::clamp(std::ldexp(w * x[at], -scale), -32768.0L, 32767.0L);
          // Left shifts scale the weight's own error too.
          const Real weightError = std::ldexp(std::abs(x[at]) * 6e-7L, std::min(-scale, 60));
          ASSERT_LE(std::abs(y[at] - exact), 0.51L + weightError)
              << "length " << len << ", alpha " << q15 << ", scale " << scale << ", element " << n;
        }
      }
    }
    ASSERT_EQ(qvxsWinKaiserQ15_16s(x.data(), a.data(), len, -300), qvxStatOk);
    ASSERT_EQ(qvxsWinKaiser_16s(x.data(), b.data(), len, 300.0F / 32768), qvxStatOk);
    ASSERT_EQ(a, b);
  }
}

}  // namespace
