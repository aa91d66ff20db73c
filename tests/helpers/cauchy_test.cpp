// The Cauchy function and its derivatives within 2 ULP of their true values.
#include <gtest/gtest.h>
#include <qvx/qvxs.h>

#include <cfenv>
#include <cmath>
#include <cstring>

#include "support/elementwise.h"
#include "support/rounding.h"
#include "support/ulp.h"

namespace {

using tests::Random;
using tests::ulpError;

long double cauchy(long double x, long double c) { return std::log1p(x / c * (x / c)) / 2; }
long double first(long double x, long double c) { return x / (c * c + x * x); }
long double second(long double x, long double c) { return (c - x) * (c + x) / ((c * c + x * x) * (c * c + x * x)); }

// All magnitudes of a float, those around C, and its next neighbours, where the second derivative passes zero. And some that,
// with C = 0x1.000f5ap+0 or 0x1.67e9bp-8, tell whether C^2 or 1 / C^2 was rounded to a float, with 0x1.261feep+0 the first part
// of the logarithm's sum.
std::vector<Qvx32f> arguments(Qvx32f c, Random& random) {
  std::vector<Qvx32f> x = {0.0F,
                           -0.0F,
                           c,
                           -c,
                           std::nextafter(c, 0.0F),
                           std::nextafter(c, INFINITY),
                           3.4e38F,
                           -3.4e38F,
                           1e-45F,
                           0x1.fbf0f4p-10F,
                           0x1.5e7e2cp-20F,
                           0x1.61352ep-20F,
                           0x1.26cefp-3F};
  for (int i = 0; i < 30; ++i) x.push_back(c + static_cast<float>(i - 15) * std::max(c * 0x1p-23F, 0x1p-149F));
  for (int i = 0; i < 4000; ++i) {
    const auto any = std::bit_cast<Qvx32f>(static_cast<uint32_t>(random()));
    if (std::isfinite(any)) x.push_back(any);
    const double near =
        std::ldexp(static_cast<double>(random() >> 11), -52) * c * std::ldexp(1, static_cast<int>(random() % 40) - 20);
    if (near < 3e38) x.push_back(static_cast<Qvx32f>(near));
  }
  return x;
}

// call(from, length) for parts of n elements: the first half in ones from one to more than two registers long.
template <class Call> void inParts(int n, Call call) {
  int from = 0;
  for (int length = 1; from + length < n / 2; length = length % 40 + 1) {
    call(from, length);
    from += length;
  }
  call(from, n - from);
}

TEST(Cauchy, IsWithinTwoUlpInAnyRoundingMode) {
  Random random(tests::seed());
  for (const Qvx32f c : {1.0F, 1.5F, 0.37F, 2.3849F, 0x1.000f5ap+0F, 0x1.67e9bp-8F, 0x1.261feep+0F, 1e-3F, 1e19F, 1e20F, 3.4e38F,
                         1e-19F, 1e-23F, 1e-38F, 1e-45F}) {
    const auto x = arguments(c, random);
    const auto n = static_cast<int>(x.size());
    for (const int mode : {FE_TONEAREST, FE_UPWARD, FE_DOWNWARD, FE_TOWARDZERO}) {
      std::vector<Qvx32f> y = x, d = x, e = x, dd(x.size());
      inParts(n, [&](int from, int length) {
        const tests::CallersRounding rounding(mode);
        ASSERT_EQ(qvxsCauchy_32f_I(y.data() + from, length, c), qvxStatOk);
        ASSERT_EQ(qvxsCauchyD_32f_I(d.data() + from, length, c), qvxStatOk);
        ASSERT_EQ(qvxsCauchyDD2_32f_I(e.data() + from, dd.data() + from, length, c), qvxStatOk);
      });
      for (size_t i = 0; i < x.size(); ++i) {
        const double errors[] = {ulpError(y[i], cauchy(x[i], c)), ulpError(d[i], first(x[i], c)), ulpError(e[i], first(x[i], c)),
                                 ulpError(dd[i], second(x[i], c))};
        for (int k = 0; k < 4; ++k) {
          ASSERT_LE(errors[k], 2) << "function " << k << " at " << x[i] << ", C " << c << ", mode " << mode;
        }
      }
    }
  }
}

TEST(Cauchy, TakesWhatIsNotFinite) {
  Qvx32f x[] = {INFINITY, -INFINITY, NAN}, d[] = {INFINITY, -INFINITY, NAN};
  ASSERT_EQ(qvxsCauchy_32f_I(x, 3, 2), qvxStatOk);
  EXPECT_TRUE(x[0] == INFINITY && x[1] == INFINITY && std::isnan(x[2]));
  Qvx32f kept = 5;
  for (const Qvx32f c : {0.0F, -1.0F, NAN}) {
    EXPECT_EQ(qvxsCauchy_32f_I(&kept, 1, c), qvxStatBadParam);
    EXPECT_EQ(qvxsCauchyD_32f_I(&kept, 1, c), qvxStatBadParam);
    EXPECT_EQ(qvxsCauchyDD2_32f_I(&kept, d, 1, c), qvxStatBadParam);
  }
  EXPECT_EQ(kept, 5);
  // C^2 + x^2 is infinite, so the derivative is 0 and not what an estimate of 1 / infinity is refined to.
  Qvx32f y[] = {0, -1, 450.5F, 1e30F}, z[] = {0, -1, 450.5F, 1e30F}, second[4];
  ASSERT_EQ(qvxsCauchyD_32f_I(y, 4, INFINITY), qvxStatOk);
  ASSERT_EQ(qvxsCauchyDD2_32f_I(z, second, 4, INFINITY), qvxStatOk);
  for (int i = 0; i < 4; ++i) EXPECT_TRUE(y[i] == 0 && z[i] == 0) << i;
}

// At every distance of the two vectors: one element after the other, read, written, and its second value written.
TEST(Cauchy, DerivativesInOverlappingVectors) {
  Random random(tests::seed());
  constexpr int kMost = 200;
  const auto data = tests::values<Qvx32f>(4 * kMost + 8, random);
  for (const int n : {1, 2, 15, 16, 17, 40, kMost}) {
    for (int distance = -n - 1; distance <= n + 1; ++distance) {
      std::vector<Qvx32f> expected = data, found = data;
      for (int i = 0; i < n; ++i) {
        const Qvx32f x = expected[static_cast<size_t>(2 * kMost + i)];
        Qvx32f y = x, z;
        ASSERT_EQ(qvxsCauchyDD2_32f_I(&y, &z, 1, 1.5F), qvxStatOk);
        expected[static_cast<size_t>(2 * kMost + i)] = y;
        expected[static_cast<size_t>(2 * kMost + distance + i)] = z;
      }
      const auto at = [&](int i) { return found.data() + 2 * kMost + i; };
      ASSERT_EQ(qvxsCauchyDD2_32f_I(at(0), at(distance), n, 1.5F), qvxStatOk);
      ASSERT_TRUE(tests::sameBits(found.data(), expected.data(), found.size())) << n << " elements, distance " << distance;
    }
  }
}

}  // namespace
