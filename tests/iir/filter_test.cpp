// Recursive filters against the recursion in long double: streams cut anywhere, filters near the unit circle, rounding.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstring>
#include <numbers>

#include "iir/members.h"
#include "support/blocks.h"

namespace {

using tests::Exact;
using tests::exact;
using tests::forEachStem;
using tests::isComplex;
using tests::Part;
using tests::Random;
using tests::Recursion;

double uniform(Random& random, double low, double high) { return low + (high - low) * 0x1p-64 * static_cast<double>(random()); }

// A section with its poles and zeros at random, real or complex.
template <class T> std::vector<T> section(Random& random, double radius, double angle, long double gain = 0.5) {
  using N = std::complex<long double>;
  const N p = std::polar<long double>(radius, angle);
  const N q = isComplex<T> ? std::polar<long double>(radius * uniform(random, 0.3, 1), uniform(random, -3, 3)) : std::conj(p);
  const N z = std::polar<long double>(uniform(random, 0.2, 1), uniform(random, 0, 3.1));
  const N w = isComplex<T> ? std::polar<long double>(uniform(random, 0.2, 1), uniform(random, -3, 3)) : std::conj(z);
  const N a0 = isComplex<T> ? N(0, 2) : N(2);
  std::vector<T> t;
  for (const N v : {N(gain), -gain * (z + w), gain * z * w, N(1), -(p + q), p * q}) {
    const N scaled = v * a0;
    if constexpr (isComplex<T>) t.push_back({static_cast<Part<T>>(scaled.real()), static_cast<Part<T>>(scaled.imag())});
    else t.push_back(static_cast<T>(scaled.real()));
  }
  return t;
}

// Two sections as one direct form.
template <class T> std::vector<T> inOneForm(const std::vector<T>& s, const std::vector<T>& t) {
  std::vector<T> all;
  for (size_t side = 0; side < 6; side += 3) {
    for (size_t k = 0; k < 5; ++k) {
      Exact<T> v = 0;
      for (size_t i = 0; i < 3; ++i) {
        if (k >= i && k - i < 3) v += exact(s[side + i]) * exact(t[side + k - i]);
      }
      all.push_back(tests::rounded<T>(v));
    }
  }
  return all;
}

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

template <class T> std::vector<T> samples(size_t n, Random& random) {
  std::vector<T> x(n);
  const double most = std::is_integral_v<Part<T>> ? std::min<double>(std::numeric_limits<Part<T>>::max(), 1e9) / 8 : 1;
  for (size_t i = 0; i < n * sizeof(T) / sizeof(Part<T>); ++i) {
    reinterpret_cast<Part<T>*>(x.data())[i] = static_cast<Part<T>>(uniform(random, -most, most));
  }
  return x;
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

// ---- near the unit circle

// The mean square error of y; what it is if only the truth is rounded.
template <class T> long double error(const std::vector<T>& y, const std::vector<Exact<T>>& truth) {
  long double all = 0;
  for (size_t i = 0; i < y.size(); ++i) all += std::norm(std::complex<long double>(exact(y[i]) - truth[i]));
  return all / y.size();
}

template <class T> long double rounding(const std::vector<Exact<T>>& truth) {
  constexpr long double kRounding = std::numeric_limits<Part<T>>::epsilon() / 4;
  long double squares = 0;
  for (const auto& v : truth) squares += std::norm(std::complex<long double>(v));
  return squares / truth.size() * kRounding * kRounding;
}

template <class N, class T> std::vector<N> through(std::vector<Recursion<N>> sections, const std::vector<T>& x) {
  std::vector<N> y;
  for (const T& v : x) {
    N in = static_cast<N>(exact(v));
    for (auto& r : sections) in = r(in);
    y.push_back(in);
  }
  return y;
}

template <class T> struct PlainOf { using Type = T; };
template <class T>
requires isComplex<T>
struct PlainOf<T> {
  using Type = std::complex<Part<T>>;
};

TEST(IirFilter, IsAsAccurateAsThePlainLoopNearTheUnitCircle) {
  forEachStem([](const auto& m) {
    using M = std::decay_t<decltype(m)>;
    using T = typename M::Internal;
    if constexpr (std::is_same_v<T, typename M::Data>) {
      using Plain = typename PlainOf<T>::Type;
      Random random(tests::seed());
      Random others(tests::seed() + 1);
      for (const double radius : {0.5, 0.9, 0.99, 0.999, 0.9999}) {
        std::vector<double> angles = {0.001, 0.003, 0.01, 0.03, 0.1, 0.3, 1, 2, 3, 3.1, 3.13, 3.14};
        for (int k = 1; k < 16; ++k) {  // where the poles that look-ahead adds come close to the true ones
          for (const double off : {0.0, 0.0002, 0.004, 0.05}) angles.push_back(std::numbers::pi * k / 16 + off);
        }
        for (const double angle : angles) {
          for (const int form : {0, 1}) {
            const bool isLong = random() % 4 == 0;
            const int n = form == 0 ? (isLong ? 4 : 2) : isLong ? (random() % 2 ? 6 : 2) : 1;
            std::vector<T> taps;
            for (int k = 0; k < (form == 0 ? 1 : n); ++k) {
              const bool isAtEase = k > 0 && k == n - 1;  // it must not speak for those before it
              const auto one = section<T>(random, isAtEase ? 0.5 : radius, angle, 0.1);
              taps.insert(taps.end(), one.begin(), one.end());
            }
            if (form == 0 && isLong) {
              // Two pairs near the circle seldom go by vectors, one often.
              const auto second = uniform(random, 0.1, 3);
              const bool isFar = others() % 2 == 0;
              taps = inOneForm<T>(taps, section<T>(random, isFar ? uniform(others, 0.1, 0.6) : radius, second));
            }
            const size_t piece = random() % 2 == 0 ? 8 : 3000;  // the least that goes by vectors, or all
            // The error of one signal is a matter of chance where the filter remembers a third of it or more: of equal means one
            // may be five times the other.
            const int signals = radius > 0.9995 ? 8 : radius > 0.98 ? 2 : 1;
            long double errors = 0;
            long double plain[3] = {};  // of the output's rounding, of the loop, of the loop with fused multiplications
            for (int signal = 0; signal < signals; ++signal) {
              const auto x = samples<T>(3000, random);
              const auto truth = through(tests::recursions<Exact<T>>(taps, n, form == 0 ? 0 : n), x);
              // No filter is closer than the rounding of its output. At a quarter of the sampling rate the errors of separately
              // rounded products happen to cancel; those of a fused loop are 3 times as large.
              plain[0] += rounding<T>(truth);
              for (const bool fuses : {false, true}) {
                auto loop = tests::recursions<Plain>(taps, n, form == 0 ? 0 : n);
                for (auto& r : loop) r.fuses = fuses;
                std::vector<T> y;
                for (const Plain v : through(loop, x)) y.push_back(tests::rounded<T>(static_cast<Exact<T>>(v)));
                plain[fuses ? 2 : 1] += error(y, truth);
              }
              typename M::State* s = nullptr;
              ASSERT_EQ(m.initAlloc[form](&s, taps.data(), n, nullptr), qvxStatOk);
              auto y = x;
              for (size_t at = 0; at < y.size(); at += piece)
                ASSERT_EQ(m.inPlace(&y[at], static_cast<int>(std::min(piece, y.size() - at)), s), qvxStatOk);
              m.free(s);
              errors += error(y, truth);
            }
            const auto ratio = static_cast<double>(std::sqrt(errors / *std::max_element(std::begin(plain), std::end(plain))));
            EXPECT_LE(ratio, 4) << m.name << ", form " << form << ", sections " << n << ", radius " << radius << ", angle "
                                << angle;
          }
        }
      }
    }
  });
}

TEST(IirFilter, WhatIsNotFiniteComesInWhereItStands) {
  for (const int order : {1, 2, 3, 12}) {
    QvxsIIRState_64f* s = nullptr;
    std::vector<Qvx64f> t;
    for (int i = 0; i <= order; ++i) t.push_back(1.0 / (1 << i));
    for (int i = 0; i <= order; ++i) t.push_back(std::pow(-0.5, i));
    ASSERT_EQ(qvxsIIRInitAlloc_64f(&s, t.data(), order, nullptr), qvxStatOk);
    for (const Qvx64f value : {static_cast<Qvx64f>(NAN), static_cast<Qvx64f>(INFINITY)}) {
      for (size_t at = 0; at < 24; ++at) {
        std::vector<Qvx64f> x(24, 1.0);
        x[at] = value;
        qvxsIIRSetDlyLine_64f(s, nullptr);
        ASSERT_EQ(qvxsIIR_64f_I(x.data(), 24, s), qvxStatOk);
        for (size_t i = 0; i < 24; ++i)
          EXPECT_EQ(std::isfinite(x[i]), i < at) << "order " << order << ", " << value << " at " << at << ", output " << i;
      }
      for (size_t at = 0; at < static_cast<size_t>(order); ++at) {
        std::vector<Qvx64f> x(24, 1.0);
        std::vector<Qvx64f> line(static_cast<size_t>(order), 1.0);
        line[at] = value;
        qvxsIIRSetDlyLine_64f(s, line.data());
        ASSERT_EQ(qvxsIIR_64f_I(x.data(), 24, s), qvxStatOk);
        for (size_t i = 0; i < 24; ++i)
          EXPECT_EQ(std::isfinite(x[i]), i < at)
              << "order " << order << ", " << value << " in the line at " << at << ", output " << i;
      }
    }
    qvxsIIRFree_64f(s);
  }
}

// What a tap that is not finite reaches is not finite; the outputs before it are.
TEST(IirFilter, TapsThatAreNotFiniteComeInWhereTheyStand) {
  forEachStem([](const auto& m) {
    using M = std::decay_t<decltype(m)>;
    using T = typename M::Data;
    if constexpr (std::is_floating_point_v<T> && std::is_same_v<T, typename M::Internal>) {
      // taps: all others. isDivisor(i): tap i is what others are divided by. firstOf(i): the first output that tap i reaches.
      const auto expectFrom = [&](int form, int n, const std::vector<T>& taps, auto isDivisor, auto firstOf) {
        typename M::State* s = nullptr;
        ASSERT_EQ(m.initAlloc[form](&s, taps.data(), n, nullptr), qvxStatOk);
        for (const auto value : {std::numeric_limits<T>::quiet_NaN(), std::numeric_limits<T>::infinity()}) {
          for (size_t at = 0; at < taps.size(); ++at) {
            if (isDivisor(at)) continue;
            auto wrong = taps;
            wrong[at] = value;
            ASSERT_EQ(m.setTaps(wrong.data(), s), qvxStatOk);
            ASSERT_EQ(m.setLine(s, nullptr), qvxStatOk);
            std::vector<T> x(40, 1);
            ASSERT_EQ(m.inPlace(x.data(), 40, s), qvxStatOk);
            for (size_t i = 0; i < x.size(); ++i)
              ASSERT_EQ(std::isfinite(x[i]), i < firstOf(at))
                  << m.name << ", form " << form << ", " << n << ", " << value << " at " << at << ", output " << i;
          }
        }
        m.free(s);
      };
      for (const int order : {1, 2, 3, 7, 12, 20}) {
        const auto n = static_cast<size_t>(order);
        std::vector<T> taps(2 * n + 2, T(0.125));
        taps[n + 1] = 1;
        expectFrom(
            0, order, taps, [=](size_t i) { return i == n + 1; }, [=](size_t i) { return i % (n + 1); });
      }
      for (const int sections : {1, 2, 5, 9, 17}) {
        std::vector<T> taps(static_cast<size_t>(6 * sections), T(0.125));
        for (size_t i = 0; i < taps.size(); i += 3) taps[i] = 1;
        expectFrom(
            1, sections, taps, [](size_t i) { return i % 6 == 3; }, [](size_t i) { return i % 3; });
      }
    }
  });
}

// Powers of such taps are infinite, and so are products with a gain; zeros times infinity would not be silence.
TEST(IirFilter, SilenceThroughHugeFeedbackIsSilence) {
  forEachStem([](const auto& m) {
    using M = std::decay_t<decltype(m)>;
    using T = typename M::Internal;
    using D = typename M::Data;
    const auto expectSilence = [&](auto initAlloc, int n, const std::vector<T>& taps, const char* form) {
      typename M::State* s = nullptr;
      ASSERT_EQ(initAlloc(&s, taps.data(), n, nullptr), qvxStatOk);
      std::vector<D> x(33), y(33);
      reinterpret_cast<Part<D>&>(x.back()) = 1;
      ASSERT_EQ(m.filter(x.data(), y.data(), 33, s), qvxStatOk);
      EXPECT_EQ(std::memcmp(x.data(), y.data(), 32 * sizeof(D)), 0) << m.name << form << n;
      EXPECT_NE(std::memcmp(&x[0], &y[32], sizeof(D)), 0) << m.name << form << n;
      m.free(s);
    };
    constexpr auto kMost = std::numeric_limits<Part<T>>::max();
    for (const Part<T> feedback : {kMost / 4, std::sqrt(std::sqrt(kMost))}) {
      for (const int n : {1, 6}) {
        const Part<T> section[6] = {8, 0, 0, 1, feedback, feedback};
        std::vector<T> taps(static_cast<size_t>(6 * n), T{});
        for (size_t i = 0; i < taps.size(); ++i) reinterpret_cast<Part<T>&>(taps[i]) = section[i % 6];
        if (n == 1) expectSilence(m.initAlloc[0], 2, taps, ", direct form, ");
        expectSilence(m.initAlloc[1], n, taps, ", sections, ");
        if constexpr (std::is_same_v<typename M::State, QvxsIIRState_32f>) {
          expectSilence(qvxsIIRInitAlloc_BiQuad_DF1_32f, n, taps, ", direct form I, ");
        } else if constexpr (std::is_same_v<typename M::State, QvxsIIRState64f_32s>) {
          expectSilence(qvxsIIRInitAlloc64f_BiQuad_DF1_32s, n, taps, ", direct form I, ");
        }
      }
    }
  });
}

// ---- the direct form I

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
    const auto truth = through(tests::recursions<long double>(t, 2, n), x);
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
