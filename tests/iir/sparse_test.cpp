// Sparse recursive filters, sample by sample; and the design of low-pass and high-pass filters by their frequency response.
#include <gtest/gtest.h>
#include <qvx/qvxs.h>

#include <cmath>
#include <complex>
#include <numbers>

#include "support/blocks.h"
#include "support/values.h"

namespace {

using tests::Random;

struct Sparse {
  std::vector<Qvx32f> taps;
  std::vector<Qvx32s> positions;
  int countB, countA;

  int orderB() const { return positions[static_cast<size_t>(countB) - 1]; }
  int orderA() const { return positions.back(); }
  int size() const {
    int bytes = 0;
    EXPECT_EQ(qvxsIIRSparseGetStateSize_32f(countB, countA, orderB(), orderA(), &bytes), qvxStatOk);
    return bytes;
  }
};

const std::vector<Sparse> kFilters = {
    {{1, 0.5F}, {1, 1}, 1, 1},
    {{1, 0.25F, -0.5F, 0.3F, -0.2F}, {0, 3, 100, 1, 5}, 3, 2},
    {{0.5F, 0.25F, 0.4F, -0.3F}, {7, 2000, 17, 1500}, 2, 2},
    {{2, 0.7F}, {0, 4000}, 1, 1},
};

TEST(IirSparse, IsItsDefinitionHoweverCut) {
  Random random(tests::seed());
  for (const Sparse& f : kFilters) {
    tests::Block block(static_cast<size_t>(f.size()) + 64);
    for (size_t offset = 0; offset < 17; ++offset) {
      const size_t past = static_cast<size_t>(f.orderB() + f.orderA());
      std::vector<Qvx32f> line(past);
      for (Qvx32f& v : line) v = static_cast<Qvx32f>(static_cast<int>(random() % 2001) - 1000) / 1000;
      const bool withLine = offset % 2 == 0;
      const auto bytes = static_cast<size_t>(f.size());
      uint8_t* p = offset == 16 ? block.atEnd(bytes) : block.atOffset(offset, bytes);
      QvxsIIRSparseState_32f* s = nullptr;
      ASSERT_EQ(
          qvxsIIRSparseInit_32f(&s, f.taps.data(), f.positions.data(), f.countB, f.countA, withLine ? line.data() : nullptr, p),
          qvxStatOk);
      std::vector<Qvx32f> x(9000), y(9000);
      for (Qvx32f& v : x) v = static_cast<Qvx32f>(static_cast<int>(random() % 2001) - 1000) / 1000;
      for (size_t at = 0; at < x.size();) {
        const size_t count = std::min<size_t>(1 + random() % (random() % 2 == 0 ? 3000 : 30), x.size() - at);
        ASSERT_EQ(qvxsIIRSparse_32f(&x[at], &y[at], static_cast<int>(count), s), qvxStatOk);
        at += count;
      }
      ASSERT_TRUE(block.isIntact()) << "offset " << offset;
      std::vector<double> truth;
      const auto before = [&](int first, int ago) { return withLine ? double{line[static_cast<size_t>(first + ago - 1)]} : 0.0; };
      for (int n = 0; n < static_cast<int>(x.size()); ++n) {
        double v = 0;
        for (int k = 0; k < f.countB + f.countA; ++k) {
          const int at = n - f.positions[static_cast<size_t>(k)];
          const bool isB = k < f.countB;
          const double past = at < 0 ? before(isB ? 0 : f.orderB(), -at)
                              : isB  ? x[static_cast<size_t>(at)]
                                     : truth[static_cast<size_t>(at)];
          v += f.taps[static_cast<size_t>(k)] * past;
        }
        truth.push_back(v);
        ASSERT_NEAR(y[static_cast<size_t>(n)], v, 1e-5) << "output " << n << ", offset " << offset;
      }
    }
  }
}

TEST(IirSparse, SizeAndPositions) {
  int bytes = 0;
  ASSERT_EQ(qvxsIIRSparseGetStateSize_32f(3, 2, 100, 5, &bytes), qvxStatOk);
  EXPECT_EQ(bytes, 2 * 16 + 2 * 16 + 848 + 80);
  EXPECT_EQ(qvxsIIRSparseGetStateSize_32f(1, 0, 1, 0, &bytes), qvxStatOk);

  const Qvx32f taps[4] = {1, 1, 1, 1};
  std::vector<Qvx8u> block(4096);
  QvxsIIRSparseState_32f* s = nullptr;
  const auto init = [&](std::vector<Qvx32s> at, int b, int a) {
    return qvxsIIRSparseInit_32f(&s, taps, at.data(), b, a, nullptr, block.data());
  };
  EXPECT_EQ(init({0, 1}, 1, 0), qvxStatBadIIROrder);
  for (const auto& bad : {std::vector<Qvx32s>{-1, 2, 1, 2}, {0, 1, 0, 2}, {1, 1, 1, 2}, {0, 1, 2, 2}, {2, 1, 1, 2}}) {
    EXPECT_EQ(init(bad, 2, 2), qvxStatBadSparsePos);
  }
  EXPECT_EQ(s, nullptr);
}

// ---- design

constexpr long double kPi = std::numbers::pi_v<long double>;

// |H| by the formula of the analog prototype, at the frequency that the bilinear transform brings there.
long double analytic(bool isLow, long double f, long double edge, int order, int type, long double ripple) {
  const long double ratio = std::tan(kPi * f) / std::tan(kPi * edge);
  const long double x = isLow ? ratio : 1 / ratio;
  if (type == 0) return 1 / std::sqrt(1 + std::pow(x, 2.0L * order));
  const long double square = std::pow(10.0L, ripple / 10) - 1;
  const long double polynomial = x <= 1 ? std::cos(order * std::acos(x)) : std::cosh(order * std::acosh(x));
  return 1 / std::sqrt(1 + square * polynomial * polynomial);
}

std::complex<long double> polynomial(const Qvx64f* c, int order, std::complex<long double> z) {
  std::complex<long double> v = 0;
  for (int k = order; k >= 0; --k) v = v * z + std::complex<long double>(c[k]);
  return v;
}

TEST(IirDesign, HasThePrototypesResponse) {
  for (int order = 1; order <= 12; ++order) {
    for (const double edge : {0.001, 0.01, 0.05, 0.1, 0.2, 0.25, 0.3, 0.45, 0.499}) {
      if (order > 4 && (edge < 0.05 || edge > 0.45)) continue;
      for (const bool isLow : {true, false}) {
        for (const int type : {0, 1}) {
          for (const double ripple : {0.01, 1.0, 29.0}) {
            Qvx64f t[26];
            ASSERT_EQ((isLow ? qvxsIIRGenLowpass_64f : qvxsIIRGenHighpass_64f)(edge, ripple, order, t, type), qvxStatOk);
            ASSERT_EQ(t[order + 1], 1);
            long double conditions = 0;  // what rounding the taps can do: their sum beside that of the polynomial they make
            for (int k = 0; k <= order; ++k) conditions += std::abs(t[order + 1 + k]);
            for (const double f : {0.0, edge / 4, edge / 2, edge, edge + (0.5 - edge) / 2, edge + (0.5 - edge) / 4, 0.4999}) {
              const auto z = std::polar(1.0L, -2 * kPi * f);
              const auto a = polynomial(t + order + 1, order, z);
              const long double got = std::abs(polynomial(t, order, z) / a);
              const long double expected = analytic(isLow, f, edge, order, type, ripple);
              const long double lost = (conditions / std::abs(a) + 4096) * 0x1p-52L;
              ASSERT_NEAR(static_cast<double>(got), static_cast<double>(expected), static_cast<double>(std::min(lost, 0.01L)))
                  << (isLow ? "low" : "high") << "-pass, type " << type << ", order " << order << ", edge " << edge << ", at "
                  << f;
            }
          }
        }
      }
    }
  }
}

// The taps of orders 1 and 2 in terms of tan(pi f), where poles are next to 1 or -1.
TEST(IirDesign, KeepsItsDigitsNextToTheEndsOfTheBand) {
  for (const double end : {1e-4, 1e-7, 1e-9, 1e-12}) {
    for (const bool isLow : {true, false}) {
      const double edge = isLow ? end : 0.5 - end;
      const long double near = std::tan(kPi * (isLow ? edge : 0.5 - edge));  // small; a high-pass has the taps of 1 / near
      for (const int order : {1, 2}) {
        Qvx64f t[6];
        ASSERT_EQ((isLow ? qvxsIIRGenLowpass_64f : qvxsIIRGenHighpass_64f)(edge, 1, order, t, 0), qvxStatOk);
        const long double below = order == 1 ? 1 + near : 1 + std::numbers::sqrt2_v<long double> * near + near * near;
        const auto first = static_cast<double>((order == 1 ? near : near * near) / below);
        EXPECT_DOUBLE_EQ(t[0], first) << "order " << order << ", edge " << edge;
        EXPECT_DOUBLE_EQ(std::abs(t[1]), order * first) << "order " << order << ", edge " << edge;
      }
    }
  }
}

TEST(IirDesign, RefusesARippleThatIsNone) {
  Qvx64f t[26];
  for (const auto design : {qvxsIIRGenLowpass_64f, qvxsIIRGenHighpass_64f}) {
    for (const double ripple : {0.0, -1.0, 29.1, static_cast<double>(NAN)}) {
      EXPECT_EQ(design(0.1, ripple, 3, t, 1), qvxStatBadGenParam);
    }
    EXPECT_EQ(design(0.1, NAN, 12, t, 0), qvxStatOk) << "no ripple in a Butterworth filter";
  }
}

}  // namespace
