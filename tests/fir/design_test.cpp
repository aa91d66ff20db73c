// FIR design: each tap against the sinc and the window that define it, in long double; gains where they are promised.
#include <gtest/gtest.h>
#include <qvx/qvxs.h>

#include <cmath>
#include <complex>
#include <numbers>

#include "reference/window.h"

namespace {

using Real = long double;
constexpr Real kPi = std::numbers::pi_v<Real>;

enum Kind { kLow, kHigh, kPass, kStop };

struct Filter {
  Kind kind;
  double f1, f2;

  QvxStatus design(double* taps, int n, int window, int normal) const {
    if (kind == kLow) return qvxsFIRGenLowpass_64f(f1, taps, n, window, normal);
    if (kind == kHigh) return qvxsFIRGenHighpass_64f(f1, taps, n, window, normal);
    return kind == kPass ? qvxsFIRGenBandpass_64f(f1, f2, taps, n, window, normal)
                         : qvxsFIRGenBandstop_64f(f1, f2, taps, n, window, normal);
  }
  // m from the middle, which only odd lengths have.
  Real tap(Real m) const {
    const auto low = [m](Real f) { return m == 0 ? 2 * f : std::sin(2 * kPi * f * m) / (kPi * m); };
    const Real one = m == 0 ? 1 : 0;
    const bool isBetween = m != std::floor(m);
    switch (kind) {
      case kLow:
        return low(f1);
      case kHigh:
        return isBetween ? std::cos(2 * kPi * f1 * m) / (kPi * m) : one - low(f1);
      case kPass:
        return low(f2) - low(f1);
      default:
        return one + low(f1) - low(f2);
    }
  }
  double passes() const { return kind == kHigh ? 0.5 : kind == kPass ? (f1 + f2) / 2 : 0; }
};

// Symmetric: by the near end.
Real weight(int window, int i, int n) {
  const int near = std::min(i, n - 1 - i);
  if (window == 0) return reference::bartlett(near, n);
  if (window == 1) return reference::optimalBlackman(near, n);
  if (window == 2) return reference::hamming(near, n);
  return window == 3 ? reference::hann(near, n) : 1;
}

// What the windows promise.
Real ulpsOf(int window) { return window == 0 ? 4 : window == 1 ? 512 : window == 2 || window == 3 ? 256 : 0; }

const Filter kFilters[] = {{kLow, 0.1, 0},      {kLow, 0.25, 0},      {kLow, 0.4999, 0},  {kLow, 1e-5, 0},
                           {kHigh, 0.1, 0},     {kHigh, 0.25, 0},     {kHigh, 0.3333, 0}, {kPass, 0.1, 0.2},
                           {kPass, 0.01, 0.49}, {kPass, 0.25, 0.251}, {kStop, 0.1, 0.2},  {kStop, 0.001, 0.3}};

TEST(FirDesign, TapsAreThoseOfTheDefinition) {
  for (const Filter& filter : kFilters) {
    for (const int n : {5, 6, 7, 8, 31, 64, 255, 1000, 20001}) {
      for (const int window : {0, 1, 2, 3, 4, -1}) {
        const std::string where =
            "kind " + std::to_string(filter.kind) + ", " + std::to_string(n) + " taps, window " + std::to_string(window);
        std::vector<double> taps(static_cast<size_t>(n) + 1, 99), normal(taps);
        ASSERT_EQ(filter.design(taps.data(), n, window, 0), qvxStatOk);
        ASSERT_EQ(filter.design(normal.data(), n, window, 7), qvxStatOk);
        ASSERT_TRUE(taps.back() == 99 && normal.back() == 99) << where;
        taps.pop_back();
        normal.pop_back();
        Real largest = 0;
        std::vector<Real> exact;
        for (int i = 0; i < n; ++i) {
          const Real m = (n - 1) / Real{2} - i;
          const bool isNegated = filter.kind == kHigh && n % 2 == 0 && m < 0;
          exact.push_back((isNegated ? -1 : 1) * filter.tap(std::abs(m)) * weight(window, i, n));
          largest = std::max(largest, std::abs(exact.back()));
        }
        const auto widest = static_cast<size_t>(
            std::max_element(taps.begin(), taps.end(), [](double a, double b) { return std::abs(a) < std::abs(b); }) -
            taps.begin());
        const Real gain = normal[widest] / Real{taps[widest]};
        std::complex<Real> response = 0;
        for (size_t i = 0; i < exact.size(); ++i) {
          ASSERT_LE(std::abs(taps[i] - exact[i]), 0x1p-53L * (4 * largest + ulpsOf(window) * std::abs(exact[i])))
              << where << ", tap " << i;
          ASSERT_LE(std::abs(normal[i] - gain * taps[i]), 4 * 0x1p-53L * std::abs(gain) * largest) << where << ", tap " << i;
          const auto other = exact.size() - 1 - i;
          ASSERT_EQ(normal[i], filter.kind == kHigh && n % 2 == 0 ? -normal[other] : normal[other]) << where << ", tap " << i;
          response += Real{normal[i]} * std::polar(Real{1}, 2 * kPi * std::fmod(filter.passes() * static_cast<Real>(i), Real{1}));
        }
        Real sum = 0;
        for (const double tap : normal) sum += std::abs(tap);
        ASSERT_NEAR(static_cast<double>(std::abs(response)), 1, 1e-15 * static_cast<double>(4 + sum)) << where;
      }
    }
  }
}

TEST(FirDesign, BandsAreInOrder) {
  double taps[9] = {7};
  EXPECT_EQ(qvxsFIRGenBandpass_64f(0.3, 0.2, taps, 9, 2, 1), qvxStatBadSize);
  EXPECT_EQ(qvxsFIRGenBandpass_64f(0.2, 0.2, taps, 9, 2, 1), qvxStatBadSize);
  EXPECT_EQ(qvxsFIRGenBandstop_64f(0.2, 0.2, taps, 9, 2, 1), qvxStatBadSize);
  EXPECT_EQ(taps[0], 7);
}

}  // namespace
