// Sums, means and deviations: integers exactly, floats within the stated error of a long double sum.
#include <gtest/gtest.h>
#include <qvx/qvxs.h>

#include <cmath>

#include "stats/products.h"
#include "support/placements.h"
#include "support/rounding.h"

namespace {

using reference::Wide;
using tests::Placements;
using tests::Random;

constexpr size_t kMost = 40000;  // two slices of the shortest kind, and a part
const std::vector<int> kScales = {-2000, -64, -33, -31, -16, -9, -1, 0, 1, 2, 9, 15, 16, 31, 32, 62, 63, 64, 1100};

// ---- integers

template <class T> auto partsOf(T v) {
  if constexpr (tests::isComplex<T>) return std::vector<Wide>{v.re, v.im};
  else return std::vector<Wide>{v};
}

template <class T> std::vector<Wide> exactSum(const T* src, size_t n) {
  std::vector<Wide> sum = partsOf(src[0]);
  for (size_t i = 1; i < n; ++i) {
    const auto parts = partsOf(src[i]);
    for (size_t k = 0; k < sum.size(); ++k) sum[k] += parts[k];
  }
  return sum;
}

template <class T, class R> using Scaled = QvxStatus (*)(const T*, int, R*, int);

template <class T, class R> void expectExactSums(Scaled<T, R> function, const std::vector<T>& data) {
  Placements<T>(data.size()).run(data, [&](size_t n, const T* src) {
    const auto sum = exactSum(src, n);
    for (const int s : kScales) {
      R result{};
      ASSERT_EQ(function(src, static_cast<int>(n), &result, s), qvxStatOk);
      const auto parts = partsOf(result);
      for (size_t k = 0; k < sum.size(); ++k) {
        ASSERT_EQ(static_cast<int64_t>(parts[k]), reference::scaled<tests::Part<R>>(sum[k], s))
            << "scale factor " << s << ", part " << k;
      }
    }
  });
}

// A mean may differ from the exact one by what two roundings of a double are worth.
template <class R> void expectMean(R result, Wide sum, size_t n, int s) {
  const long double exact = std::ldexp(static_cast<long double>(sum) / n, -s);
  const long double inRange = std::clamp<long double>(exact, std::numeric_limits<R>::min(), std::numeric_limits<R>::max());
  ASSERT_LE(std::abs(result - inRange), 0.5L + std::abs(inRange) * 0x1p-51L) << "scale factor " << s;
}

template <class T> void expectMeans(Scaled<T, T> function, const std::vector<T>& data) {
  Placements<T>(data.size()).run(data, [&](size_t n, const T* src) {
    const auto sum = exactSum(src, n);
    for (const int s : kScales) {
      T result{};
      ASSERT_EQ(function(src, static_cast<int>(n), &result, s), qvxStatOk);
      if constexpr (tests::isComplex<T>) {
        expectMean(result.re, sum[0], n, s);
        expectMean(result.im, sum[1], n, s);
      } else {
        expectMean(result, sum[0], n, s);
      }
    }
  });
}

// Anything, and what overflows first.
template <class T, class... Test> void overData(Test... test) {
  Random random(tests::seed());
  T least = T();
  if constexpr (tests::isComplex<T>) least = {std::numeric_limits<tests::Part<T>>::min(), -1};
  else least = std::numeric_limits<T>::min();
  for (const auto& data : {tests::values<T>(kMost, random), std::vector<T>(300000, least)}) (test(data), ...);
}
const auto exactSums = [](auto f) { return [=](const auto& data) { expectExactSums(f, data); }; };
const auto means = [](auto f) { return [=](const auto& data) { expectMeans(f, data); }; };

TEST(SumOfIntegers, IsExactAndScaled) {
  overData<Qvx16s>(exactSums(qvxsSum_16s_Sfs), exactSums(qvxsSum_16s32s_Sfs));
  overData<Qvx16sc>(exactSums(qvxsSum_16sc_Sfs), exactSums(qvxsSum_16sc32sc_Sfs));
  overData<Qvx32s>(exactSums(qvxsSum_32s_Sfs));
}

TEST(MeanOfIntegers, IsNearest) {
  overData<Qvx16s>(means(qvxsMean_16s_Sfs));
  overData<Qvx16sc>(means(qvxsMean_16sc_Sfs));
  overData<Qvx32s>(means(qvxsMean_32s_Sfs));
}

TEST(MeanOfIntegers, RoundsTiesToEvenInEveryMode) {
  const Qvx16s halves[][2] = {{0, 1}, {1, 2}, {-1, 0}, {-1, -2}, {2, 3}};
  const Qvx16s expected[] = {0, 2, 0, -2, 2};
  for (const int mode : tests::kRoundings) {
    for (size_t i = 0; i < std::size(expected); ++i) {
      const tests::CallersRounding scope(mode);
      Qvx16s mean = 99;
      qvxsMean_16s_Sfs(halves[i], 2, &mean, 0);
      EXPECT_EQ(mean, expected[i]) << "mode " << mode << ", " << halves[i][0] << " and " << halves[i][1];
    }
  }
}

// ---- floats

struct Bounds {
  long double sum = 0;
  long double magnitudes = 0;
};
template <class T, class Get> Bounds sums(const T* src, size_t n, Get get) {
  Bounds b;
  for (size_t i = 0; i < n; ++i) {
    b.sum += get(src[i]);
    b.magnitudes += std::abs(static_cast<long double>(get(src[i])));
  }
  return b;
}

constexpr auto real = [](auto v) {
  if constexpr (tests::isComplex<decltype(v)>) return v.re;
  else return v;
};
constexpr auto imaginary = [](auto v) {
  if constexpr (tests::isComplex<decltype(v)>) return v.im;
  else return decltype(v){0};
};

// call(src, len, result): the sum, or the mean, in which case the sum is divided.
template <class T, class Call> void expectNear(bool mean, long double bound, long double rounding, Call call) {
  Random random(tests::seed());
  const auto data = tests::illConditioned<T>(kMost, random, 1e7F, 1e6F);
  Placements<T>(data.size()).run(data, [&](size_t n, const T* src) {
    T result{};
    ASSERT_EQ(call(src, static_cast<int>(n), &result), qvxStatOk);
    const auto part = [&](auto get) {
      const Bounds b = sums(src, n, get);
      const long double scale = mean ? n : 1;
      const long double allowed = bound * b.magnitudes / scale + std::abs(b.sum) / scale * rounding;
      ASSERT_LE(std::abs(get(result) - b.sum / scale), allowed) << "sum " << b.sum << " of magnitudes " << b.magnitudes;
    };
    part(real);
    part(imaginary);
  });
}

constexpr long double kFast = 3.1e-5L, kAccurate = 1e-12L, kDouble = 4.1e-12L, kTo32 = 0x1p-24L, kTo64 = 0x1p-53L;

TEST(SumOfFloats, StaysWithinItsBound) {
  for (const int hint : {0, 1, 2, -1}) {
    const auto bound = hint == 1 ? kFast : kAccurate;
    expectNear<Qvx32f>(false, bound, kTo32, [=](auto... a) { return qvxsSum_32f(a..., hint); });
    expectNear<Qvx32fc>(false, bound, kTo32, [=](auto... a) { return qvxsSum_32fc(a..., hint); });
    expectNear<Qvx32f>(true, bound, 2 * kTo32, [=](auto... a) { return qvxsMean_32f(a..., hint); });
    expectNear<Qvx32fc>(true, bound, 2 * kTo32, [=](auto... a) { return qvxsMean_32fc(a..., hint); });
  }
  expectNear<Qvx64f>(false, kDouble, kTo64, qvxsSum_64f);
  expectNear<Qvx64fc>(false, kDouble, kTo64, qvxsSum_64fc);
  expectNear<Qvx64f>(true, kDouble, 2 * kTo64, qvxsMean_64f);
  expectNear<Qvx64fc>(true, kDouble, 2 * kTo64, qvxsMean_64fc);
}

TEST(SumOfFloats, HintOneAddsInFloats) {
  // 2^24 and ones: a float lane that has come to 2^24 takes no more of them, a double does.
  std::vector<Qvx32f> data(1 << 14, 1.0F);
  for (size_t i = 0; i < 1024; ++i) data[i] = 0x1p24F;
  const double exact = 1024 * 0x1p24 + static_cast<double>(data.size() - 1024);
  Qvx32f fast = 0;
  Qvx32f accurate = 0;
  ASSERT_EQ(qvxsSum_32f(data.data(), 1 << 14, &fast, 1), qvxStatOk);
  ASSERT_EQ(qvxsSum_32f(data.data(), 1 << 14, &accurate, 0), qvxStatOk);
  EXPECT_EQ(accurate, static_cast<float>(exact));
  EXPECT_LT(fast, accurate);
}

// ---- deviations

// The variance of a deviation, against two passes in long double. S and Q lose what is small beside Q: that is the bound.
template <class T, class Call>
void expectDeviation(const std::vector<T>& data, long double bound, long double rounding, Call call) {
  Placements<T>(data.size()).run(data, [&](size_t n, const T* src) {
    if (n < 2) return;
    const long double mean = sums(src, n, real).sum / n;
    long double squares = 0;
    long double variance = 0;
    for (size_t i = 0; i < n; ++i) {
      squares += static_cast<long double>(src[i]) * src[i];
      variance += (src[i] - mean) * (src[i] - mean);
    }
    variance /= n - 1;
    long double deviation = std::sqrt(variance);  // what saturated is left as it is
    long double meanFound = mean;
    call(src, static_cast<int>(n), meanFound, deviation);
    const long double allowed = bound * squares / (n - 1);
    const long double low = std::sqrt(std::max(0.0L, variance - allowed)) * (1 - rounding) - rounding;
    const long double high = std::sqrt(variance + allowed) * (1 + rounding) + rounding;
    ASSERT_TRUE(deviation >= low && deviation <= high) << low << " <= " << deviation << " <= " << high;
    const long double error = bound * std::sqrt(squares / n) + rounding * (1 + std::abs(mean));
    ASSERT_LE(std::abs(meanFound - mean), error);
  });
}

TEST(DeviationOfFloats, MatchesTwoPasses) {
  Random random(tests::seed());
  std::vector<Qvx32f> data(kMost);
  std::vector<Qvx64f> wide(kMost);
  std::normal_distribution<double> normal(3, 2);
  for (size_t i = 0; i < kMost; ++i) data[i] = static_cast<Qvx32f>(wide[i] = normal(random));
  for (const int hint : {0, 1}) {
    const long double bound = hint == 1 ? 1e-4L : 1e-12L;
    expectDeviation(data, bound, kTo32, [=](const Qvx32f* src, int n, long double& mean, long double& dev) {
      Qvx32f m = 0, d = 0, alone = 0;
      ASSERT_EQ(qvxsMeanStdDev_32f(src, n, &m, &d, hint), qvxStatOk);
      ASSERT_EQ(qvxsStdDev_32f(src, n, &alone, hint), qvxStatOk);
      ASSERT_EQ(alone, d);
      mean = m, dev = d;
    });
  }
  expectDeviation(wide, 1e-12L, kTo64, [](const Qvx64f* src, int n, long double& mean, long double& dev) {
    Qvx64f m = 0, d = 0, alone = 0;
    ASSERT_EQ(qvxsMeanStdDev_64f(src, n, &m, &d), qvxStatOk);
    ASSERT_EQ(qvxsStdDev_64f(src, n, &alone), qvxStatOk);
    ASSERT_EQ(alone, d);
    mean = m, dev = d;
  });
}

TEST(DeviationOfFloats, OfEqualElementsIsZero) {
  // Rounding drives the numerator below 0 for some of these; it must not become a NaN.
  for (const float c : {0.1F, 1e-3F, 7.3F, 1e10F}) {
    for (int n = 2; n < 300; ++n) {
      const std::vector<Qvx64f> data(static_cast<size_t>(n), static_cast<double>(c) / 3);
      Qvx64f dev = -1;
      qvxsStdDev_64f(data.data(), n, &dev);
      ASSERT_GE(dev, 0);
      ASSERT_LE(dev, 1e-7 * c) << "element " << c / 3 << ", length " << n;
    }
  }
}

TEST(Deviation, TakesTwoElements) {
  const Qvx32f x[] = {5, 7};
  const Qvx64f w[] = {5, 7};
  const Qvx16s v[] = {5, 7};
  Qvx32f m = 9, d = 9;
  Qvx64f wideM = 9, wideD = 9;
  Qvx16s m16 = 9, d16 = 9;
  Qvx32s m32 = 9, d32 = 9;
  for (const int n : {1, 2}) {
    const QvxStatus status = n == 1 ? qvxStatBadSize : qvxStatOk;
    EXPECT_EQ(qvxsStdDev_32f(x, n, &d, 1), status);
    EXPECT_EQ(qvxsMeanStdDev_32f(x, n, &m, &d, 2), status);
    EXPECT_EQ(qvxsStdDev_64f(w, n, &wideD), status);
    EXPECT_EQ(qvxsMeanStdDev_64f(w, n, &wideM, &wideD), status);
    EXPECT_EQ(qvxsStdDev_16s_Sfs(v, n, &d16, -4), status);
    EXPECT_EQ(qvxsMeanStdDev_16s_Sfs(v, n, &m16, &d16, -4), status);
    EXPECT_EQ(qvxsStdDev_16s32s_Sfs(v, n, &d32, -4), status);
    EXPECT_EQ(qvxsMeanStdDev_16s32s_Sfs(v, n, &m32, &d32, -4), status);
    const bool isRefused = n == 1;
    EXPECT_EQ(m, isRefused ? 9 : 6);
    EXPECT_EQ(wideM, isRefused ? 9 : 6);
    EXPECT_EQ(m16, isRefused ? 9 : 96);
    EXPECT_EQ(m32, isRefused ? 9 : 96);
    EXPECT_EQ(d16, isRefused ? 9 : 23);  // 16 * sqrt(2)
    EXPECT_EQ(d32, isRefused ? 9 : 23);
  }
}

TEST(DeviationOfIntegers, IsScaledAndRounded) {
  const auto deviations = [](const std::vector<Qvx16s>& data) {
    for (const int s : {-40, -3, 0, 1, 5, 20}) {
      const long double unit = std::ldexp(1.0L, s);
      expectDeviation(data, 1e-14L, 0.5001L * unit, [=](const Qvx16s* src, int n, long double& mean, long double& dev) {
        Qvx32s m = 0, d = 0, alone = 0;
        ASSERT_EQ(qvxsMeanStdDev_16s32s_Sfs(src, n, &m, &d, s), qvxStatOk);
        ASSERT_EQ(qvxsStdDev_16s32s_Sfs(src, n, &alone, s), qvxStatOk);
        ASSERT_EQ(alone, d);
        Qvx16s m16 = 0, d16 = 0, alone16 = 0;
        ASSERT_EQ(qvxsMeanStdDev_16s_Sfs(src, n, &m16, &d16, s), qvxStatOk);
        ASSERT_EQ(qvxsStdDev_16s_Sfs(src, n, &alone16, s), qvxStatOk);
        ASSERT_EQ(m16, reference::saturated<Qvx16s>(m));
        ASSERT_EQ(d16, reference::saturated<Qvx16s>(d));
        ASSERT_EQ(alone16, d16);
        const auto isClamped = [](Qvx32s v) { return v == INT32_MAX || v == INT32_MIN; };
        if (!isClamped(m)) mean = m * unit;
        if (!isClamped(d)) dev = d * unit;
      });
    }
  };
  overData<Qvx16s>(deviations);
  // Equal elements deviate by 0 even if the sum of their squares overflows; these do not.
  std::vector<Qvx16s> extremes(300000, INT16_MIN);
  for (size_t i = 0; i < extremes.size(); i += 2) extremes[i] = INT16_MAX;
  deviations(extremes);
}

}  // namespace
