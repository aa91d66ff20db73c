// Filters with integer taps: one sample in wrapping 32 bits, a vector in floats.
#include <gtest/gtest.h>
#include <qvx/qvxs.h>

#include <algorithm>
#include <cmath>

#include "support/values.h"

namespace {

using tests::Random;

// Wraps to 32 bits.
int64_t wrapped(int64_t v) { return static_cast<int32_t>(static_cast<uint32_t>(v)); }
int64_t shifted(int64_t acc, int s) {
  return wrapped(acc + wrapped((acc >> (s % 32)) & 1) + wrapped(int64_t{1} << ((s + 31) % 32)) - 1) >> (s % 32);
}
Qvx16s saturated(int64_t v) { return static_cast<Qvx16s>(std::clamp<int64_t>(v, -32768, 32767)); }

int64_t directOracle(int64_t x, const Qvx16s* t, int order, Qvx32s* d) {
  const int64_t y = shifted(wrapped(t[0] * x + d[0]), t[order + 1]);
  for (int i = 0; i < order; ++i) {
    const int64_t next = i + 1 < order ? d[i + 1] : 0;
    d[i] = static_cast<Qvx32s>(wrapped(wrapped(t[i + 1] * x) - wrapped(t[order + 2 + i] * y) + next));
  }
  return y;
}

// A section is a direct form of order 2 with the same order of taps.
int64_t sectionsOracle(int64_t x, const Qvx16s* t, int n, Qvx32s* d) {
  for (int k = 0; k < n; ++k) x = directOracle(x, t + 6 * k, 2, d + 2 * k);
  return x;
}

TEST(IirIntegerTaps, OneSampleWraps) {
  Random random(tests::seed());
  for (const int s : {0, 1, 2, 15, 16, 30, 31, 32, 33, 32767}) {
    for (const int n : {1, 2, 3, 9}) {
      for (const bool isDirect : {true, false}) {
        auto t = tests::values<Qvx16s>(static_cast<size_t>(isDirect ? 2 * n + 2 : 6 * n), random);
        if (isDirect) t[static_cast<size_t>(n) + 1] = static_cast<Qvx16s>(s);
        for (size_t k = 3; !isDirect && k < t.size(); k += 6) t[k] = static_cast<Qvx16s>(s);
        auto line = tests::values<Qvx32s>(static_cast<size_t>(2 * n), random);
        auto expected = line;
        for (int i = 0; i < 300; ++i) {
          const auto x = tests::value<Qvx16s>(random);
          Qvx16s y = x;
          const auto one = isDirect ? qvxsIIROne_Direct_16s : qvxsIIROne_BiQuadDirect_16s;
          const auto inPlace = isDirect ? qvxsIIROne_Direct_16s_I : qvxsIIROne_BiQuadDirect_16s_I;
          ASSERT_EQ(i % 2 == 0 ? one(x, &y, t.data(), n, line.data()) : inPlace(&y, t.data(), n, line.data()), qvxStatOk);
          const int64_t exact = (isDirect ? directOracle : sectionsOracle)(x, t.data(), n, expected.data());
          ASSERT_EQ(y, saturated(exact)) << "shift " << s << ", " << n;
          ASSERT_EQ(line, expected) << "shift " << s << ", " << n;
        }
      }
    }
  }
}

// Feedback of a quarter at most, and its delay line, in doubles.
TEST(IirIntegerTaps, VectorsAreThoseOfTheFloatFilter) {
  Random random(tests::seed());
  for (const bool isDirect : {true, false}) {
    for (const int n : {1, 2, 5, 20}) {
      for (const int len : {1, 7, 100, 3000}) {
        const int s = 12;
        const size_t order = isDirect ? static_cast<size_t>(n) : 2;
        std::vector<Qvx16s> t;
        for (int k = 0; k < (isDirect ? 1 : n); ++k) {
          for (size_t i = 0; i < 2 * order + 2; ++i) {
            const int most = i <= order ? 2000 : 3000 / static_cast<int>(order);
            t.push_back(static_cast<Qvx16s>(i == order + 1 ? s : static_cast<int>(random() % (2 * most + 1)) - most));
          }
        }
        std::vector<Qvx32s> line(static_cast<size_t>(isDirect ? n : 2 * n));
        for (Qvx32s& d : line) d = static_cast<Qvx32s>(random() % 2000000) - 1000000;
        std::vector<double> d(line.begin(), line.end());
        auto x = tests::values<Qvx16s>(static_cast<size_t>(len), random);
        std::vector<Qvx16s> y(x.size());
        ASSERT_EQ((isDirect ? qvxsIIR_Direct_16s : qvxsIIR_BiQuadDirect_16s)(x.data(), y.data(), len, t.data(), n, line.data()),
                  qvxStatOk);
        for (size_t i = 0; i < y.size(); ++i) {
          double v = x[i];
          for (size_t first = 0, k = 0; first < t.size(); first += 2 * order + 2, k += order) {
            const double out = std::ldexp(t[first] * v + d[k], -s);
            for (size_t j = 0; j < order; ++j) {
              d[k + j] = t[first + j + 1] * v - t[first + order + 2 + j] * out + (j + 1 < order ? d[k + j + 1] : 0);
            }
            v = out;
          }
          ASSERT_NEAR(y[i], std::clamp(v, -32768.0, 32767.0), 0.51) << n << ", output " << i;
        }
        for (size_t i = 0; i < line.size(); ++i) ASSERT_NEAR(line[i], d[i], 1 + std::abs(d[i]) * 1e-5) << n << ", line " << i;
      }
    }
  }
}

TEST(IirIntegerTaps, DelayLinesRoundByTheirForm) {
  // With s = 0 the line is whole, and comes back as it is.
  const Qvx16s passing[] = {1, 0, 0, 0};
  const Qvx16s section[] = {1, 0, 0, 0, 0, 0};
  Qvx16s y = 0;
  const Qvx16s x = 0;
  for (const Qvx32s v : {INT32_MIN, -16777216, -5, 0, 5, 16777216, INT32_MAX}) {
    Qvx32s line[2] = {0, v};
    ASSERT_EQ(qvxsIIR_BiQuadDirect_16s(&x, &y, 1, section, 1, line), qvxStatOk);
    EXPECT_EQ(line[0], v == INT32_MAX ? INT32_MIN : v) << "2^31 is not above 2^31";
    EXPECT_EQ(line[1], 0);
  }
  // d0 = 32767 x + 32768 y saturates on both sides.
  const Qvx16s large[] = {1, 32767, 0, -32768};
  const Qvx16s largeSection[] = {1, 32767, 0, 0, -32768, 0};
  for (const Qvx16s sign : {-1, 1}) {
    const auto most = static_cast<Qvx16s>(32767 * sign);
    Qvx32s direct = 100000 * sign, sections[2] = {direct, 0};
    ASSERT_EQ(qvxsIIR_Direct_16s(&most, &y, 1, large, 1, &direct), qvxStatOk);
    EXPECT_EQ(direct, sign < 0 ? INT32_MIN : INT32_MAX);
    ASSERT_EQ(qvxsIIR_BiQuadDirect_16s(&most, &y, 1, largeSection, 1, sections), qvxStatOk);
    EXPECT_EQ(sections[0], direct);
  }
  Qvx32s line = 7;
  ASSERT_EQ(qvxsIIR_Direct_16s(&x, &y, 1, passing, 1, &line), qvxStatOk);
  EXPECT_EQ(y, 7);
  EXPECT_EQ(line, 0);
  // What has grown beyond floats, until infinities cancel out, is the least integer.
  const Qvx16s growing[] = {1, 0, 0, 0, -32767, 32767};
  std::vector<Qvx16s> v(200, 1);
  for (const bool inSections : {false, true}) {
    Qvx32s lost[2] = {};
    ASSERT_EQ(inSections ? qvxsIIR_BiQuadDirect_16s_I(v.data(), 200, growing, 1, lost)
                         : qvxsIIR_Direct_16s_I(v.data(), 200, growing, 2, lost),
              qvxStatOk);
    EXPECT_EQ(lost[0], INT32_MIN);
    EXPECT_EQ(lost[1], INT32_MIN);
  }
  // With s = 1 and a1 of -1/2, a line of d0 leaves half of it, which may end in a half.
  const Qvx16s feedback[] = {0, 0, 1, -1};
  const Qvx16s feedbackSection[] = {0, 0, 0, 1, -1, 0};
  const int expected[][3] = {{5, 3, 2}, {7, 4, 4}, {-5, -3, -2}, {-7, -4, -4}, {4, 2, 2}};
  for (const auto& [d0, halfAway, halfToEven] : expected) {
    Qvx32s direct = d0;
    Qvx32s sections[2] = {d0, 0};
    ASSERT_EQ(qvxsIIR_Direct_16s(&x, &y, 1, feedback, 1, &direct), qvxStatOk);
    EXPECT_EQ(direct, halfAway) << d0;
    ASSERT_EQ(qvxsIIR_BiQuadDirect_16s(&x, &y, 1, feedbackSection, 1, sections), qvxStatOk);
    EXPECT_EQ(sections[0], halfToEven) << d0;
  }
}

TEST(IirIntegerTaps, RefusesAShiftBelow0WhereItStands) {
  Qvx16s taps[12] = {1, 0, -1, 0, 0, 0, 1, 0, 0, -1, 0, 0};  // in the direct form of order 1, in the second section
  Qvx16s fine[12] = {1};
  Qvx32s line[4] = {9, 9, 9, 9};
  Qvx16s v[2] = {5, 5};
  EXPECT_EQ(qvxsIIR_Direct_16s(v, v, 0, taps, 1, line), qvxStatBadOrderIndex);
  EXPECT_EQ(qvxsIIR_Direct_16s(v, v, 0, fine, 1, line), qvxStatBadSize);
  EXPECT_EQ(qvxsIIROne_Direct_16s(5, v, taps, 1, line), qvxStatBadOrderIndex);
  EXPECT_EQ(qvxsIIR_BiQuadDirect_16s(v, v, 0, taps, 2, line), qvxStatBadSize);
  EXPECT_EQ(qvxsIIR_BiQuadDirect_16s(v, v, 2, taps, 2, line), qvxStatBadOrderIndex);
  EXPECT_TRUE(v[0] == 5 && line[0] == 9);
  EXPECT_EQ(qvxsIIROne_BiQuadDirect_16s(5, v, taps, 2, line), qvxStatBadOrderIndex);
  EXPECT_EQ((std::vector<Qvx32s>(line, line + 4)), (std::vector<Qvx32s>{9, -5, 9, 9})) << "the first section has moved on";
  EXPECT_EQ(v[0], 5);
}

}  // namespace
