// Recursive filters of samples and taps that are not finite, or whose powers are not.
#include <gtest/gtest.h>

#include <cmath>
#include <cstring>

#include "iir/members.h"

namespace {

using tests::forEachStem;
using tests::Part;

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

}  // namespace
