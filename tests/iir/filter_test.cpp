// Recursive filters against the recursion in long double: streams cut anywhere, rounding, the direct form I.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "iir/signals.h"
#include "support/blocks.h"

namespace {

using tests::Exact;
using tests::exact;
using tests::forEachStem;
using tests::isComplex;
using tests::Part;
using tests::Random;
using tests::samples;
using tests::section;
using tests::uniform;

// A stable direct form: feedback that shrinks whatever the order.
template <class T> std::vector<T> direct(Random& random, int order) {
  std::vector<T> t(static_cast<size_t>(2 * order + 2));
  for (size_t i = 0; i < t.size(); ++i) {
    const bool isFeedback = i > static_cast<size_t>(order) + 1;
    for (size_t k = 0; k < sizeof(T) / sizeof(Part<T>); ++k) {
      reinterpret_cast<Part<T>*>(&t[i])[k] = static_cast<Part<T>>(uniform(random, -1, 1) * (isFeedback ? 0.8 / order : 0.5));
    }
  }
  if constexpr (isComplex<T>) t[static_cast<size_t>(order) + 1] = {0, 2};
  else t[static_cast<size_t>(order) + 1] = 2;
  return t;
}

long double partsDiffer(long double got, long double expected, long double unit, bool isInteger, long double least,
                        long double most) {
  if (!isInteger) return std::abs(got - expected);
  const long double scaled = std::clamp(expected * unit, least, most);
  return std::max(0.0L, std::abs(got - scaled) - 0.5L) / unit;
}
// How far a sample is from what rounding makes of the exact one, in units of the unscaled output.
template <class D> long double distance(D got, Exact<D> expected, int sf) {
  using P = Part<D>;
  constexpr bool kIsInteger = std::is_integral_v<P>;
  const auto one = [&](long double g, long double e) {
    return partsDiffer(g, e, std::ldexp(1.0L, -sf), kIsInteger, std::numeric_limits<P>::lowest(), std::numeric_limits<P>::max());
  };
  if constexpr (isComplex<D>) return std::max(one(got.re, expected.real()), one(got.im, expected.imag()));
  else return one(got, expected);
}

// Filters x in random pieces, in all forms, and compares with the truth: off by at most `allowed` epsilons of the greatest
// magnitude.
template <class M, class T>
void expectStream(const M& m, int form, int n, const std::vector<T>& taps, size_t len, int sf, long double allowed,
                  Random& random) {
  using D = typename M::Data;
  SCOPED_TRACE(testing::Message() << m.name << ", form " << form << ", " << n << ", scale " << sf << ", seed " << tests::seed());
  auto truth = tests::recursions<Exact<T>>(taps, n, form == 0 ? 0 : n);
  // In a block of just the size, at any alignment, before an unreadable page or among canaries.
  int size = 0;
  ASSERT_EQ(m.size[form](n, &size), qvxStatOk);
  const auto bytes = static_cast<size_t>(size);
  tests::Block block(bytes + 64);
  const size_t offset = random() % 64;
  typename M::State* s = nullptr;
  Qvx8u* place = offset % 2 == 0 ? block.atEnd(bytes) : block.atOffset(offset, bytes);
  ASSERT_EQ(m.init[form](&s, taps.data(), n, nullptr, place), qvxStatOk);
  const auto x = samples<D>(len, random);
  std::vector<D> y(len);
  for (size_t at = 0; at < len;) {
    const size_t most = std::min<size_t>(len - at, random() % 4 == 0 ? 1500 : random() % 4 == 0 ? 40 : 12);
    const size_t count = 1 + random() % most;
    const int way = static_cast<int>(random() % 3);
    if (way == 0 && count < 30) {
      for (size_t i = at; i < at + count; ++i) ASSERT_EQ(m.one(x[i], &y[i], s, sf), qvxStatOk);
    } else if (way == 1) {
      std::copy_n(&x[at], count, &y[at]);
      ASSERT_EQ(m.inPlace(&y[at], static_cast<int>(count), s, sf), qvxStatOk);
    } else {
      ASSERT_EQ(m.filter(&x[at], &y[at], static_cast<int>(count), s, sf), qvxStatOk);
    }
    at += count;
  }
  long double greatest = 0;
  long double worst = 0;
  for (size_t i = 0; i < len; ++i) {
    Exact<T> v = exact(x[i]);
    for (auto& r : truth) {
      greatest = std::max(greatest, std::abs(v));
      v = r(v);
    }
    greatest = std::max(greatest, std::abs(v));
    worst = std::max(worst, distance(y[i], v, sf));
  }
  const long double tolerance =
      allowed * greatest * std::numeric_limits<Part<T>>::epsilon() + (std::is_same_v<Part<D>, float> ? greatest * 0x1p-24L : 0);
  EXPECT_LE(worst, tolerance);
  std::vector<T> line(static_cast<size_t>(form == 0 ? n : 2 * n));
  m.getLine(s, line.data());
  size_t i = 0;
  for (auto& r : truth) {
    for (const auto& d : r.d) {
      EXPECT_LE(std::abs(exact(line[i]) - d), allowed * greatest * std::numeric_limits<Part<T>>::epsilon()) << "line " << i;
      ++i;
    }
  }
  EXPECT_TRUE(block.isIntact()) << "bytes outside the record";
  m.free(s);
}

TEST(IirFilter, StreamsMayBeCutAnywhere) {
  forEachStem([](const auto& m) {
    using T = typename std::decay_t<decltype(m)>::Internal;
    Random random(tests::seed());
    for (const int order : {1, 2, 3, 4, 5, 7, 8, 9, 15, 16, 17, 31, 63, 64, 65, 130, 300, 512, 513}) {
      expectStream(m, 0, order, direct<T>(random, order), 4000, 0, 16, random);
    }
    for (const int n : {1, 2, 3, 4, 5, 7, 8, 9, 12, 15, 16, 17, 24, 33, 64}) {
      std::vector<T> taps;
      for (int k = 0; k < n; ++k) {
        const auto one = section<T>(random, uniform(random, 0.1, 0.9), uniform(random, 0, 3.1));
        taps.insert(taps.end(), one.begin(), one.end());
      }
      expectStream(m, 1, n, taps, 4000, 0, 64, random);
    }
  });
}

TEST(IirFilter, IntegersAreScaledRoundedAndSaturated) {
  forEachStem([](const auto& m) {
    using M = std::decay_t<decltype(m)>;
    using T = typename M::Internal;
    using D = typename M::Data;
    if constexpr (M::kIsScaled) {
      Random random(tests::seed());
      const auto taps = section<T>(random, 0.8, 1);
      for (const int sf : {-9, -1, 1, 4, 40}) expectStream(m, 1, 1, taps, 3000, sf, 64, random);
      // Halves go to even, from all kernels and for one sample; what saturates does not come back.
      for (const int n : {1, 5}) {
        std::vector<T> taps(static_cast<size_t>(6 * n));
        for (size_t i = 0; i < taps.size(); i += 3) reinterpret_cast<Part<T>&>(taps[i]) = 1;
        typename M::State* s = nullptr;
        ASSERT_EQ(m.initAlloc[1](&s, taps.data(), n, nullptr), qvxStatOk);
        std::vector<D> x(40), y(40);
        for (size_t i = 0; i < 40; ++i) reinterpret_cast<Part<D>&>(x[i]) = static_cast<Part<D>>(static_cast<int>(i) - 20);
        const auto real = [](D v) { return reinterpret_cast<const Part<D>&>(v); };
        for (const int len : {1, 2, 5, 9, 40}) {
          ASSERT_EQ(m.filter(x.data(), y.data(), len, s, 1), qvxStatOk);
          for (size_t i = 0; i < static_cast<size_t>(len); ++i) EXPECT_EQ(real(y[i]), std::nearbyint(real(x[i]) / 2.0)) << m.name;
        }
        for (const int sf : {-2000, -64, 64, 2000}) {
          ASSERT_EQ(m.filter(x.data(), y.data(), 40, s, sf), qvxStatOk);
          EXPECT_EQ(real(y[0]), sf > 0 ? 0 : std::numeric_limits<Part<D>>::min());
          EXPECT_EQ(real(y[20]), 0);
          EXPECT_EQ(real(y[39]), sf > 0 ? 0 : std::numeric_limits<Part<D>>::max());
        }
        m.free(s);
      }
    }
  });
}

// Several sections of the direct form I are those of the BiQuad form, whatever the cut.
TEST(IirDf1, IsTheSameFilter) {
  Random random(tests::seed());
  for (const int n : {1, 2, 7, 20}) {
    std::vector<Qvx32f> t;
    std::vector<Qvx64f> wide;
    for (int k = 0; k < n; ++k) {
      for (const Qvx32f v : section<Qvx32f>(random, 0.8, uniform(random, 0, 3))) t.push_back(v), wide.push_back(v);
    }
    QvxsIIRState_32f* s = nullptr;
    QvxsIIRState64f_32s* w = nullptr;
    QvxsIIRState64f_32s* reference = nullptr;
    ASSERT_EQ(qvxsIIRInitAlloc_BiQuad_DF1_32f(&s, t.data(), n, nullptr), qvxStatOk);
    ASSERT_EQ(qvxsIIRInitAlloc64f_BiQuad_DF1_32s(&w, wide.data(), n, nullptr), qvxStatOk);
    ASSERT_EQ(qvxsIIRInitAlloc64f_BiQuad_32s(&reference, wide.data(), n, nullptr), qvxStatOk);
    const auto x = samples<Qvx32f>(3000, random);
    const auto integers = samples<Qvx32s>(3000, random);
    const auto truth = tests::through(tests::recursions<long double>(t, 2, n), x);
    auto y = x;
    auto z = integers;
    auto expected = integers;
    ASSERT_EQ(qvxsIIR64f_32s_ISfs(expected.data(), 3000, reference, 0), qvxStatOk);
    for (size_t at = 0; at < y.size();) {
      const size_t count = std::min<size_t>(1 + random() % (random() % 3 == 0 ? 900 : 5), y.size() - at);
      ASSERT_EQ(qvxsIIR_32f(&x[at], &y[at], static_cast<int>(count), s), qvxStatOk);
      ASSERT_EQ(qvxsIIR64f_32s_ISfs(&z[at], static_cast<int>(count), w, 0), qvxStatOk);
      at += count;
    }
    for (size_t i = 0; i < y.size(); ++i) {
      ASSERT_NEAR(static_cast<double>(y[i]), static_cast<double>(truth[i]), 1e-5 * n) << n << " sections, output " << i;
      ASSERT_LE(std::abs(int64_t{z[i]} - expected[i]), 1) << n << " sections, output " << i;
    }
    qvxsIIRFree_32f(s), qvxsIIRFree64f_32s(w), qvxsIIRFree64f_32s(reference);
  }
}

}  // namespace
