// Norms: integers exactly, floats within the stated error of a long double norm.
#include <gtest/gtest.h>
#include <qvx/qvxs.h>

#include <cfenv>
#include <cmath>

#include "stats/products.h"
#include "support/placements.h"
#include "support/repeated.h"

namespace {

using reference::Wide;
using tests::Part;
using tests::Placements;
using tests::Random;

template <class T, class R, class... S> using Norm = QvxStatus (*)(const T*, int, R*, S...);
template <class T, class R, class... S> using NormDiff = QvxStatus (*)(const T*, const T*, int, R*, S...);

template <class T> T zero() { return T{}; }

// All norms of what stands in a, or in a - b.
template <class Number> struct Norms {
  Number inf = 0;
  Number l1 = 0;
  Number squares = 0;

  void add(Number magnitude, Number square) {
    inf = std::max(inf, magnitude);
    l1 += magnitude;
    squares += square;
  }
};
template <class T> auto normsOf(const T* a, const T* b, size_t n) {
  if constexpr (std::is_integral_v<T>) {
    Norms<Wide> norms;
    for (size_t i = 0; i < n; ++i) {
      const Wide d = Wide{a[i]} - (b == nullptr ? 0 : b[i]);
      norms.add(d < 0 ? -d : d, d * d);
    }
    return norms;
  } else {
    Norms<long double> norms;
    for (size_t i = 0; i < n; ++i) {
      const auto x = reference::number<long double>(a[i]);
      const auto y = reference::number<long double>(b == nullptr ? zero<T>() : b[i]);
      const long double re = x.re - y.re;
      const long double im = x.im - y.im;
      norms.add(std::sqrt(re * re + im * im), re * re + im * im);
    }
    return norms;
  }
}

// ---- integers

const std::vector<int> kScales = {INT32_MIN, -64, -33, -31, -16, -1, 0,  1,  2,  9,  16,
                                  17,        31,  32,  33,  47,  48, 49, 62, 63, 64, INT32_MAX};

template <class R, class Call> void expectScaled(Wide norm, Call call) {
  for (const int s : kScales) {
    R result = 0;
    ASSERT_EQ(call(&result, s), qvxStatOk);
    ASSERT_EQ(result, reference::scaled<R>(norm, s)) << "scale factor " << s;
  }
}
template <class Call> void expectScaledRoot(Wide squares, Call call) {
  for (const int s : kScales) {
    Qvx32s result = 0;
    ASSERT_EQ(call(&result, s), qvxStatOk);
    const auto exact = std::ldexp(std::sqrt(static_cast<long double>(squares)), -std::clamp(s, -9000, 9000));
    const long double inRange = std::min<long double>(exact, INT32_MAX);
    ASSERT_LE(std::abs(result - inRange), 0.5L + inRange * 0x1p-51L) << "scale factor " << s;
  }
}
template <class Call> void expectFloat(long double norm, Call call) {
  Qvx32f result = -1;
  ASSERT_EQ(call(&result), qvxStatOk);
  ASSERT_LE(std::abs(result - norm), norm * 0x1.00001p-24L);
}

const size_t kMost = 150000;  // two slices and a part

std::vector<std::vector<Qvx16s>> extremes() {
  std::vector<Qvx16s> steps(kMost);
  for (size_t i = 0; i < kMost; ++i) steps[i] = i % 3 == 0 ? INT16_MAX : INT16_MIN;
  return {std::vector<Qvx16s>(kMost, INT16_MIN), std::vector<Qvx16s>(kMost, INT16_MAX), steps};
}

// Members in the order of the lists below, bound to their vectors.
template <class Norms, class... F> void expectAll(const Norms& norms, std::tuple<F...> members) {
  const auto& [inf, l1, wideL1, squares, l2, floatInf, floatL1, floatL2] = members;
  expectScaled<Qvx32s>(norms.inf, inf);
  expectScaled<Qvx32s>(norms.l1, l1);
  expectScaled<Qvx64s>(norms.l1, wideL1);
  expectScaled<Qvx64s>(norms.squares, squares);
  expectScaledRoot(norms.squares, l2);
  expectFloat(static_cast<long double>(norms.inf), floatInf);
  expectFloat(static_cast<long double>(norms.l1), floatL1);
  expectFloat(std::sqrt(static_cast<long double>(norms.squares)), floatL2);
}

TEST(NormOfIntegers, IsExactAndScaled) {
  Random random(tests::seed());
  auto all = extremes();
  for (int i = 0; i < 2; ++i) all.push_back(tests::values<Qvx16s>(kMost, random));
  for (const auto& data : all) {
    Placements<Qvx16s>(kMost).run(data, [&](size_t n, const Qvx16s* a) {
      const auto bound = [=](auto... f) { return std::tuple([=](auto... r) { return f(a, static_cast<int>(n), r...); }...); };
      expectAll(normsOf(a, static_cast<const Qvx16s*>(nullptr), n),
                bound(qvxsNorm_Inf_16s32s_Sfs, qvxsNorm_L1_16s32s_Sfs, qvxsNorm_L1_16s64s_Sfs, qvxsNorm_L2Sqr_16s64s_Sfs,
                      qvxsNorm_L2_16s32s_Sfs, qvxsNorm_Inf_16s32f, qvxsNorm_L1_16s32f, qvxsNorm_L2_16s32f));
    });
  }
  for (size_t k = 0; k < 2 * all.size(); ++k) {  // each with the next one, both ways
    const auto &one = all[k / 2], &next = all[(k / 2 + 1) % all.size()];
    const auto check = [&](size_t n, const Qvx16s* a, const Qvx16s* b) {
      const auto bound = [=](auto... f) { return std::tuple([=](auto... r) { return f(a, b, static_cast<int>(n), r...); }...); };
      expectAll(normsOf(a, b, n), bound(qvxsNormDiff_Inf_16s32s_Sfs, qvxsNormDiff_L1_16s32s_Sfs, qvxsNormDiff_L1_16s64s_Sfs,
                                        qvxsNormDiff_L2Sqr_16s64s_Sfs, qvxsNormDiff_L2_16s32s_Sfs, qvxsNormDiff_Inf_16s32f,
                                        qvxsNormDiff_L1_16s32f, qvxsNormDiff_L2_16s32f));
    };
    Placements<Qvx16s, Qvx16s>(kMost).run(k % 2 == 0 ? one : next, k % 2 == 0 ? next : one, check);
  }
}

TEST(NormOfIntegers, TakesTheRootInTheProcessorsRoundingMode) {
  const Qvx16s v[] = {3, -4};  // 5 / 2 is a tie
  const std::pair<int, Qvx32s> expected[] = {{FE_TONEAREST, 2}, {FE_UPWARD, 3}, {FE_DOWNWARD, 2}, {FE_TOWARDZERO, 2}};
  for (const auto& [mode, root] : expected) {
    Qvx32s norm = 99, exact = 99, beyond = 99;
    std::fesetround(mode);
    qvxsNorm_L2_16s32s_Sfs(v, 2, &norm, 1);
    qvxsNorm_L1_16s32s_Sfs(v, 2, &exact, 1);  // 3.5, to nearest in every mode
    qvxsNorm_L2_16s32s_Sfs(v, 2, &beyond, INT32_MAX);
    std::fesetround(FE_TONEAREST);
    EXPECT_EQ(norm, root) << "mode " << mode;
    EXPECT_EQ(exact, 4) << "mode " << mode;
    EXPECT_EQ(beyond, mode == FE_UPWARD ? 1 : 0) << "mode " << mode;
  }
}

// 2^31 - 1 elements: no sum on the way may overflow.
TEST(NormOfIntegers, OfTheLongestVectors) {
  const std::vector<Qvx16s> least(1 << 20, INT16_MIN), most(1 << 20, INT16_MAX);
  const tests::Repeated<Qvx16s> v(least, INT32_MAX), w(most, INT32_MAX);
  const Wide n = INT32_MAX;
  Qvx64s norm = 0;
  const auto expectNorm = [&](QvxStatus status, Wide exact) {
    EXPECT_EQ(status, qvxStatOk);
    EXPECT_EQ(norm, static_cast<Qvx64s>(exact));
  };
  expectNorm(qvxsNorm_L1_16s64s_Sfs(v.as(), INT32_MAX, &norm, 0), n << 15);
  expectNorm(qvxsNorm_L2Sqr_16s64s_Sfs(v.as(), INT32_MAX, &norm, 0), n << 30);
  expectNorm(qvxsNormDiff_L1_16s64s_Sfs(v.as(), w.as(), INT32_MAX, &norm, 0), n * 65535);
  expectNorm(qvxsNormDiff_L2Sqr_16s64s_Sfs(v.as(), w.as(), INT32_MAX, &norm, 0), n * 65535 * 65535);
  expectNorm(qvxsNormDiff_L2Sqr_16s64s_Sfs(w.as(), v.as(), INT32_MAX, &norm, 63), 1);
}

// ---- floats

// The wider of the two is T's own; R is the result.
template <class T, class R> struct Members {
  Norm<T, R> inf, l1, l2;
  NormDiff<T, R> infDiff, l1Diff, l2Diff;
};

template <class R> void expectNear(R norm, long double exact, long double bound, const char* what) {
  const long double least = std::numeric_limits<R>::denorm_min();
  ASSERT_LE(std::abs(norm - exact), exact * bound + least) << what << ' ' << norm << " for " << exact;
}

template <class T, class R> void expectNorms(Members<T, R> members, long double unit) {
  const long double rounding = std::numeric_limits<R>::epsilon();
  const long double infBound = 2e-7L * rounding / std::numeric_limits<float>::epsilon();
  const long double sumBound = sizeof(Part<T>) == 4 && sizeof(R) == 4 ? 3.5e-5L : 4e-12L;
  constexpr size_t kLength = 40000;
  Random random(tests::seed());
  auto a = tests::values<T>(kLength, random);
  auto b = tests::values<T>(kLength, random);
  for (auto* v : {&a, &b}) {
    auto* p = reinterpret_cast<Part<T>*>(v->data());
    for (size_t i = 0; i < kLength * sizeof(T) / sizeof(*p); ++i) p[i] *= static_cast<Part<T>>(unit);
  }
  const auto expectAll = [&](size_t n, const T* x, const T* y, auto inf, auto l1, auto l2, auto... sources) {
    const auto norms = normsOf(x, y, n);
    const auto one = [&](auto function, long double exact, long double bound, const char* what) {
      if (function == nullptr) return;
      R norm = -1;
      ASSERT_EQ(function(sources..., static_cast<int>(n), &norm), qvxStatOk);
      expectNear(norm, exact, std::min(bound, static_cast<long double>(n + 4) * 2 * rounding), what);
    };
    one(inf, norms.inf, infBound, "Inf");
    one(l1, norms.l1, sumBound, "L1");
    one(l2, std::sqrt(norms.squares), sumBound, "L2");
  };
  Placements<T, T>(kLength).run(a, b, [&](size_t n, const T* x, const T* y) {
    expectAll(n, x, static_cast<const T*>(nullptr), members.inf, members.l1, members.l2, x);
    expectAll(n, x, y, members.infDiff, members.l1Diff, members.l2Diff, x, y);
  });
}

TEST(NormOfFloats, StaysWithinItsBound) {
  expectNorms<Qvx32f, Qvx32f>(
      {qvxsNorm_Inf_32f, qvxsNorm_L1_32f, qvxsNorm_L2_32f, qvxsNormDiff_Inf_32f, qvxsNormDiff_L1_32f, qvxsNormDiff_L2_32f}, 1);
  expectNorms<Qvx64f, Qvx64f>(
      {qvxsNorm_Inf_64f, qvxsNorm_L1_64f, qvxsNorm_L2_64f, qvxsNormDiff_Inf_64f, qvxsNormDiff_L1_64f, qvxsNormDiff_L2_64f}, 1);
  expectNorms<Qvx64fc, Qvx64f>({qvxsNorm_Inf_64fc64f, qvxsNorm_L1_64fc64f, qvxsNorm_L2_64fc64f, qvxsNormDiff_Inf_64fc64f,
                                qvxsNormDiff_L1_64fc64f, qvxsNormDiff_L2_64fc64f},
                               1);
  expectNorms<Qvx32fc, Qvx64f>(
      {nullptr, qvxsNorm_L1_32fc64f, qvxsNorm_L2_32fc64f, nullptr, qvxsNormDiff_L1_32fc64f, qvxsNormDiff_L2_32fc64f}, 1);
}

TEST(NormOfFloats, InfOfComplexFloatsHoldsAtAnyMagnitude) {
  for (const int exponent : {-140, -110, -75, -60, 0, 38, 60, 96}) {  // the largest element is near 2^23 * that
    SCOPED_TRACE(exponent);
    expectNorms<Qvx32fc, Qvx32f>({qvxsNorm_Inf_32fc32f, nullptr, nullptr, qvxsNormDiff_Inf_32fc32f, nullptr, nullptr},
                                 std::ldexp(1.0L, exponent));
  }
}

// The largest of those that are numbers, wherever the others stand; every sum is a NaN.
template <class T, class R> void expectNaNRule(Members<T, R> members) {
  using P = Part<T>;
  const P nan = std::numeric_limits<P>::quiet_NaN();
  const P inf = std::numeric_limits<P>::infinity();
  for (const size_t n : {1, 2, 3, 7, 16, 33, 64, 300}) {
    for (size_t at = 0; at < n; ++at) {
      std::vector<T> v(n), zeros(n);
      auto* p = reinterpret_cast<P*>(v.data());
      const size_t parts = sizeof(T) / sizeof(P);
      for (size_t i = 0; i < n; ++i) p[i * parts] = static_cast<P>(i + 1) * (i % 2 == 0 ? 1 : -1);
      p[at * parts + at % parts] = nan;
      const R most = static_cast<R>(at + 1 == n ? n - 1 : n);
      R norm = -1, diff = -1;
      const int len = static_cast<int>(n);
      members.inf(v.data(), len, &norm);
      members.infDiff(zeros.data(), v.data(), len, &diff);
      ASSERT_EQ(norm, most) << "length " << n << ", NaN at " << at;
      ASSERT_EQ(diff, most) << "length " << n << ", NaN at " << at;
      for (const auto sum : {members.l1, members.l2}) {
        if (sum == nullptr) continue;
        sum(v.data(), len, &norm);
        ASSERT_TRUE(std::isnan(norm)) << "length " << n << ", NaN at " << at;
      }
      if (n - 1 - at == at) continue;
      p[(n - 1 - at) * parts] = -inf;
      members.inf(v.data(), len, &norm);
      ASSERT_EQ(norm, static_cast<R>(inf)) << "length " << n << ", infinity and NaN";
    }
  }
}

TEST(NormOfFloats, InfPassesOverNaN) {
  expectNaNRule<Qvx32f, Qvx32f>({qvxsNorm_Inf_32f, qvxsNorm_L1_32f, qvxsNorm_L2_32f, qvxsNormDiff_Inf_32f, nullptr, nullptr});
  expectNaNRule<Qvx64f, Qvx64f>({qvxsNorm_Inf_64f, qvxsNorm_L1_64f, qvxsNorm_L2_64f, qvxsNormDiff_Inf_64f, nullptr, nullptr});
  expectNaNRule<Qvx32fc, Qvx32f>({qvxsNorm_Inf_32fc32f, nullptr, nullptr, qvxsNormDiff_Inf_32fc32f, nullptr, nullptr});
  expectNaNRule<Qvx64fc, Qvx64f>(
      {qvxsNorm_Inf_64fc64f, qvxsNorm_L1_64fc64f, qvxsNorm_L2_64fc64f, qvxsNormDiff_Inf_64fc64f, nullptr, nullptr});
}

}  // namespace
