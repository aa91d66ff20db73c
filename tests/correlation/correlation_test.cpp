// Cross-correlation and autocorrelation.
#include <qvx/qvxcore.h>

#include <cstring>

#include "correlation/operands.h"
#include "reference/scaled.h"

namespace {

using namespace tests;

struct In32f {
  using T = Qvx32f;
  static constexpr auto kCross = qvxsCrossCorr_32f;
  static constexpr QvxStatus (*kAuto[])(const T*, int, T*, int) = {qvxsAutoCorr_32f, qvxsAutoCorr_NormA_32f,
                                                                   qvxsAutoCorr_NormB_32f};
};
struct In64f {
  using T = Qvx64f;
  static constexpr auto kCross = qvxsCrossCorr_64f;
  static constexpr QvxStatus (*kAuto[])(const T*, int, T*, int) = {qvxsAutoCorr_64f, qvxsAutoCorr_NormA_64f,
                                                                   qvxsAutoCorr_NormB_64f};
};
struct In32fc {
  using T = Qvx32fc;
  static constexpr auto kCross = qvxsCrossCorr_32fc;
  static constexpr QvxStatus (*kAuto[])(const T*, int, T*, int) = {qvxsAutoCorr_32fc, qvxsAutoCorr_NormA_32fc,
                                                                   qvxsAutoCorr_NormB_32fc};
};
struct In64fc {
  using T = Qvx64fc;
  static constexpr auto kCross = qvxsCrossCorr_64fc;
  static constexpr QvxStatus (*kAuto[])(const T*, int, T*, int) = {qvxsAutoCorr_64fc, qvxsAutoCorr_NormA_64fc,
                                                                   qvxsAutoCorr_NormB_64fc};
};
template <class F> class Correlation : public testing::Test {
 public:
  using T = typename F::T;
  // All lags from lowLag on, each off by no more than the bound.
  static void check(const std::vector<T>& a, const std::vector<T>& b, int lags, int lowLag, long double bound) {
    Bounded<T> x(a), y(b), z(static_cast<size_t>(lags));
    const int aLen = static_cast<int>(a.size()), bLen = static_cast<int>(b.size());
    ASSERT_EQ(F::kCross(x, aLen, y, bLen, z, lags, lowLag), qvxStatOk);
    const int step = 1 + static_cast<int>(static_cast<int64_t>(std::min(aLen, bLen)) * lags / 400000);
    for (int n = 0; n < lags; n += step) {
      ASSERT_LE(distance(z[n], reference::correlation(a, b, int64_t{n} + lowLag)), bound)
          << aLen << " with " << bLen << ", lags " << lags << " from " << lowLag << ", at " << n;
    }
    ASSERT_TRUE(z.isIntact());
  }
};
using Types = testing::Types<In32f, In64f, In32fc, In64fc>;
TYPED_TEST_SUITE(Correlation, Types);

// Bands of every kind: short of the overlap on both sides, cut within, and lags at which nothing meets.
TYPED_TEST(Correlation, OfWholeNumbersIsExactWhereItIsShort) {
  using T = typename TypeParam::T;
  Random random(1);
  const auto check = [&](size_t aLen, size_t bLen, int lags, int lowLag) {
    TestFixture::check(wholeNumbers<T>(aLen, 30, random), wholeNumbers<T>(bLen, 30, random), lags, lowLag, 0);
  };
  for (size_t aLen = 1; aLen <= 11; ++aLen) {
    for (size_t bLen = 1; bLen <= 11; ++bLen) {
      for (int lowLag = -13; lowLag <= 13; lowLag += 2) check(aLen, bLen, 1 + (lowLag + 13) % 25, lowLag);
    }
  }
  for (const auto& [aLen, bLen] : {std::pair<size_t, size_t>{100, 9000}, {150, 150}, {40, 3000}, {1, 600}, {700, 4000}}) {
    const int total = static_cast<int>(aLen + bLen);
    for (const int lags : {1, 3, 60, 200}) {
      for (const int lowLag : {-total, -static_cast<int>(aLen) / 2, 0, static_cast<int>(bLen) - 100, total}) {
        check(aLen, bLen, lags, lowLag);
        check(bLen, aLen, lags, lowLag);
      }
    }
  }
  check(100, 9000, 9400, -200);
  check(9000, 100, 9400, -9200);
  check(20000, 20000, 5, -2);  // few lags of long vectors
  check(5, 5, 9, std::numeric_limits<int>::max());
  check(5, 5, 9, std::numeric_limits<int>::min());
}

TYPED_TEST(Correlation, OfAnInfiniteElementIsFiniteElsewhere) {
  using T = typename TypeParam::T;
  Random random(7);
  for (const auto& [aLen, bLen] : {std::pair<size_t, size_t>{3, 3}, {8, 9}, {9, 8}, {40, 60}, {60, 40}, {30, 3000}, {5000, 4}}) {
    const auto whole = wholeNumbers<T>(aLen, 30, random), b = wholeNumbers<T>(bLen, 30, random);
    const int n1 = static_cast<int>(aLen), n2 = static_cast<int>(bLen);
    for (const size_t at : {size_t{0}, aLen / 2, aLen - 1}) {
      const Spoiled<T> a(whole, at);
      std::vector<T> y(aLen + bLen + 1), z(y.size());
      TypeParam::kCross(a.data.data(), n1, b.data(), n2, y.data(), n1 + n2 + 1, -n1);
      TypeParam::kCross(b.data(), n2, a.data.data(), n1, z.data(), n1 + n2 + 1, -n2);
      for (int n = 0; n <= n1 + n2; ++n) {
        const bool isTouched =
            reference::correlation(a.marks, ones<T>(bLen), int64_t{n} - n1) != decltype(reference::wide(T()))(0);
        ASSERT_EQ(isFinite(y[static_cast<size_t>(n)]), !isTouched) << aLen << " with " << bLen << ", " << at << ", " << n;
        ASSERT_EQ(isFinite(z[static_cast<size_t>(n1 + n2 - n)]), !isTouched)
            << bLen << " with " << aLen << ", " << at << ", " << n;
        if (isTouched) continue;
        ASSERT_EQ(reference::wide(y[static_cast<size_t>(n)]), reference::correlation(whole, b, int64_t{n} - n1));
      }
    }
  }
}

TYPED_TEST(Correlation, StaysWithinTheErrorOfATransform) {
  using T = typename TypeParam::T;
  struct Call {
    size_t aLen, bLen;
    int lags, lowLag;
  };
  Random random(2);
  for (const Call& c : {Call{500, 500, 999, -499},
                        {500, 9000, 9499, -499},
                        {9000, 500, 9499, -8999},
                        {1000, 1100, 700, -300},
                        {1000, 1100, 3000, -1500},
                        {600, 20000, 15000, 2000},
                        {20000, 20000, 500, -250},
                        {20000, 15000, 700, 3000},
                        {5000, 5000, 9999, -4999},
                        {20000, 120000, 130000, -11000},
                        {15000, 15000, 14000, 0}}) {
    const auto a = unevenNumbers<T>(c.aLen, random), b = unevenNumbers<T>(c.bLen, random);
    TestFixture::check(a, b, c.lags, c.lowLag, transformError(a, b));
  }
}

// Every lag, by an operand of three elements among zeros: lengths that fill the cycle of a long product, or of 1024, to the last
// element, and one more, which must not come round; and the ends of the parts that a long one is cut into.
TYPED_TEST(Correlation, FillsCyclesToTheLastElement) {
  using T = typename TypeParam::T;
  constexpr int kCycle = 2 * 25 * 1024;
  struct Call {
    int aLen, bLen, lags, lowLag;
  };
  Random random(7);
  const auto spikes = [&](size_t length) {
    std::vector<T> v(length);
    for (const size_t at : {size_t{0}, length / 3, length - 1}) v[at] = unevenNumbers<T>(1, random)[0];
    return v;
  };
  const auto expectEach = [](const std::vector<T>& a, const std::vector<T>& b, const std::vector<T>& y, int64_t lowLag) {
    const long double bound = transformError(a, b);
    for (size_t n = 0; n < y.size(); ++n) {
      decltype(reference::wide(T())) sum = 0;
      for (const size_t i : {size_t{0}, a.size() / 3, a.size() - 1}) {
        const int64_t at = static_cast<int64_t>(i + n) + lowLag;
        if (at < 0 || at >= static_cast<int64_t>(b.size())) continue;
        const auto x = reference::wide(a[i]), z = reference::wide(b[static_cast<size_t>(at)]);
        if constexpr (std::is_floating_point_v<T>) sum += x * z;
        else sum += std::conj(x) * z;
      }
      ASSERT_LE(distance(y[n], sum), bound) << a.size() << " with " << b.size() << ", at " << n << " of " << y.size();
    }
  };
  for (const int more : {0, 1}) {
    for (const Call& c : {Call{kCycle / 2, kCycle / 2 + 1 + more, kCycle + more, 1 - kCycle / 2},
                          Call{kCycle / 2, 60000, kCycle / 2 + 1 + more, 1000}, Call{20000, 120000, 130000 + more, -11000},
                          Call{400, 900, 725 + more, -100}, Call{400, 924 + more, 700, -100}}) {
      const auto a = spikes(static_cast<size_t>(c.aLen)), b = wholeNumbers<T>(static_cast<size_t>(c.bLen), 20, random);
      std::vector<T> y(static_cast<size_t>(c.lags));
      ASSERT_EQ(TypeParam::kCross(a.data(), c.aLen, b.data(), c.bLen, y.data(), c.lags, c.lowLag), qvxStatOk);
      expectEach(a, b, y, c.lowLag);
    }
    const auto a = spikes(30000);
    std::vector<T> y(static_cast<size_t>(kCycle - 29999 + more));
    ASSERT_EQ(TypeParam::kAuto[0](a.data(), 30000, y.data(), static_cast<int>(y.size())), qvxStatOk);
    expectEach(a, a, y, 0);
  }
}

// The first lag is the power; norms divide by the length, or by the number of products.
TYPED_TEST(Correlation, WithItselfIsNormed) {
  using T = typename TypeParam::T;
  Random random(3);
  for (const size_t length : {1, 2, 3, 17, 64, 150, 368, 700, 855, 856, 2000, 9000}) {
    for (const int lags : {1, 2, 40, 151, 152, 367, 368, 855, 856, 1500}) {
      if (length > 1000 && lags < 300 && lags > 2) continue;
      const auto a = wholeNumbers<T>(length, 20, random);
      const long double bound = transformError(a, a);
      for (int norm = 0; norm < 3; ++norm) {
        Bounded<T> x(a), y(static_cast<size_t>(lags));
        ASSERT_EQ(TypeParam::kAuto[norm](x, static_cast<int>(length), y, lags), qvxStatOk);
        const int meeting = std::min(static_cast<int>(length), lags), step = 1 + static_cast<int>(length) * lags / 400000;
        for (int n = 0; n < lags; n += step) {
          const long double by = norm == 0   ? 1
                                 : norm == 1 ? static_cast<long double>(length)
                                             : static_cast<long double>(length) - n;
          const auto exact = n < meeting ? reference::correlation(a, a, n) / by : decltype(reference::wide(T()))(0);
          // Below all limits the sums are exact, and two roundings are left.
          const long double rounded = norm == 0 ? 0 : 2 * std::numeric_limits<Part<T>>::epsilon() * std::abs(exact);
          ASSERT_LE(distance(y[n], exact), meeting < 152 || n >= meeting ? rounded : bound / by + rounded)
              << "length " << length << ", norm " << norm << ", lag " << n << " of " << lags;
        }
      }
    }
  }
}

TYPED_TEST(Correlation, IsThatOfOneThreadWithTwo) {
  using T = typename TypeParam::T;
  Random random(4);
  const auto a = unevenNumbers<T>(700, random), b = unevenNumbers<T>(40000, random);
  std::vector<T> results[2];
  for (const int threads : {1, 2}) {
    qvxSetNumThreads(threads);
    std::vector<T>& y = results[threads - 1];
    y.resize(41000);
    TypeParam::kCross(a.data(), 700, b.data(), 40000, y.data(), 41000, -800);
  }
  qvxSetNumThreads(0);
  EXPECT_EQ(std::memcmp(results[0].data(), results[1].data(), sizeof(T) * results[0].size()), 0);
}

TEST(Correlation16s, IsExactIn64Bits) {
  Random random(5);
  for (const auto& [aLen, bLen] : {std::pair<size_t, size_t>{1, 1}, {7, 300}, {300, 7}, {3000, 3100}}) {
    std::vector<Qvx16s> a(aLen, -32768), b(bLen, -32768);
    for (const bool isExtreme : {true, false}) {
      if (!isExtreme) {
        for (Qvx16s& v : a) v = value<Qvx16s>(random);
        for (Qvx16s& v : b) v = value<Qvx16s>(random);
      }
      const int lags = 50 + static_cast<int>(bLen), lowLag = -20;
      Bounded<Qvx64s> y(static_cast<size_t>(lags));
      ASSERT_EQ(qvxsCrossCorr_16s64s(Bounded(a), static_cast<int>(aLen), Bounded(b), static_cast<int>(bLen), y, lags, lowLag),
                qvxStatOk);
      for (int n = 0; n < lags; ++n) ASSERT_EQ(y[n], static_cast<int64_t>(reference::correlation(a, b, n + lowLag))) << n;
    }
  }
}

TEST(Correlation16s, IsWithinAUnit) {
  Random random(6);
  for (const auto& [aLen, bLen] : {std::pair<size_t, size_t>{1, 1}, {50, 60}, {300, 7}, {1000, 1000}, {600, 5000}}) {
    for (const int scaleFactor : {-2, 0, 3, 19, 26, 40}) {
      std::vector<Qvx16s> a(aLen), b(bLen);
      for (Qvx16s& v : a) v = value<Qvx16s>(random);
      for (Qvx16s& v : b) v = value<Qvx16s>(random);
      const int lags = static_cast<int>(aLen + bLen) + 10, lowLag = -static_cast<int>(aLen) - 5;
      std::vector<Qvx16s> y(static_cast<size_t>(lags));
      ASSERT_EQ(qvxsCrossCorr_16s_Sfs(a.data(), static_cast<int>(aLen), b.data(), static_cast<int>(bLen), y.data(), lags, lowLag,
                                      scaleFactor),
                qvxStatOk);
      for (int n = 0; n < lags; ++n) {
        const Qvx16s exact = reference::scaled<Qvx16s>(reference::correlation(a, b, n + lowLag), scaleFactor);
        ASSERT_LE(std::abs(y[static_cast<size_t>(n)] - exact), 1)
            << aLen << " with " << bLen << ", scale " << scaleFactor << ", " << n;
      }
      for (const auto& [norm, function] :
           {std::pair{0, &qvxsAutoCorr_16s_Sfs}, {1, &qvxsAutoCorr_NormA_16s_Sfs}, {2, &qvxsAutoCorr_NormB_16s_Sfs}}) {
        const int few = static_cast<int>(aLen) + 3;
        std::vector<Qvx16s> z(static_cast<size_t>(few), 77);
        ASSERT_EQ(function(a.data(), static_cast<int>(aLen), z.data(), few, scaleFactor), qvxStatOk);
        for (int n = 0; n < few; ++n) {
          const auto sum = static_cast<long double>(reference::correlation(a, a, n));
          const long double by = norm == 0   ? 1
                                 : norm == 1 ? static_cast<long double>(aLen)
                                             : std::max(1.0L, static_cast<long double>(aLen) - n);
          const long double exact = std::clamp(std::ldexp(sum / by, -scaleFactor), -32768.0L, 32767.0L);
          ASSERT_LE(std::abs(z[static_cast<size_t>(n)] - exact), 1)
              << aLen << " norm " << norm << ", scale " << scaleFactor << ", " << n;
        }
      }
    }
  }
}

}  // namespace
