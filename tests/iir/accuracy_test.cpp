// Recursive filters near the unit circle: errors beside those of the plain loop.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <numbers>

#include "iir/signals.h"

namespace {

using tests::Exact;
using tests::exact;
using tests::forEachStem;
using tests::isComplex;
using tests::Part;
using tests::Random;
using tests::samples;
using tests::section;
using tests::through;
using tests::uniform;

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

}  // namespace
