// Quotients of floats: IEEE division, the complex quotient by its formula, constants by their reciprocal.
#include <qvx/qvxs.h>

#include <cmath>

#include "support/rounding.h"
#include "vector/divisors.h"

namespace {

using namespace tests;

// Every operation rounded by itself, also at zeros, infinities and where the squares leave the range.
const auto kQuotient = []<class T>(T a, T b) {
  if constexpr (isComplex<T>) {
    const auto squares = a.re * a.re + a.im * a.im;
    return T{(a.re * b.re + a.im * b.im) / squares, (a.re * b.im - a.im * b.re) / squares};
  } else {
    return b / a;
  }
};

template <class T> std::vector<T> special() {
  using L = std::numeric_limits<T>;
  const T all[] = {0,
                   -T(0),
                   1,
                   T(-3),
                   L::infinity(),
                   -L::infinity(),
                   L::quiet_NaN(),
                   L::max(),
                   -L::max(),
                   L::min(),
                   L::denorm_min(),
                   std::sqrt(L::max()),
                   std::sqrt(L::denorm_min())};
  return {std::begin(all), std::end(all)};
}

// Numbers, then every pair of special ones: the first zero comes after the first vectors.
template <class T> auto hardOperands() {
  auto data = operands<T>(700, 137);
  auto& [a, b] = data;
  const auto specials = special<Part<T>>();
  for (const auto x : specials) {
    for (const auto y : specials) {
      if constexpr (isComplex<T>) a.insert(a.end(), {T{x, y}, T{2, -3}}), b.insert(b.end(), {T{1, 5}, T{x, y}});
      else a.push_back(x), b.push_back(y);
    }
  }
  return data;
}

// All quotients b / a that are as near as can be to the middle of two floats: b * 2^places = a * m + 1 or - 1 for an odd m of 25
// bits. To an odd a there is one m for each sign and number of places.
TEST(Div, NextToTheMiddleInEveryRounding) {
  constexpr size_t kMany = 8192, kVector = 16;
  std::vector<float> a(kVector, 1.0F), b(kVector, 1.0F), y(kMany + 2 * kVector);
  size_t all = 0;
  const auto compare = [&] {
    for (const int mode : kRoundings) {
      const CallersRounding scope(mode);
      for (const size_t from : {size_t{0}, kVector}) {  // each in either vector of a pair
        ASSERT_EQ(qvxsDiv_32f(a.data() + from, b.data() + from, y.data(), static_cast<int>(a.size() - from)), qvxStatOk);
        size_t differ = 0;
        for (size_t i = from; i < a.size(); ++i) differ += y[i - from] != b[i] / a[i];
        ASSERT_EQ(differ, 0U) << "mode " << mode;
      }
    }
    all += a.size() - kVector;
    a.resize(kVector);
    b.resize(kVector);
  };
  for (uint64_t divisor = (1 << 23) + 1; divisor < 1 << 24; divisor += 2) {
    uint64_t inverse = divisor;
    for (int i = 0; i < 5; ++i) inverse *= 2 - divisor * inverse;
    for (const int places : {24, 25}) {
      for (const uint64_t rest : {uint64_t{1}, ~uint64_t{0}}) {
        const uint64_t m = (uint64_t{0} - rest * inverse) % (uint64_t{1} << places) | 1 << 24;
        const uint64_t product = divisor * m + rest;
        const uint64_t dividend = product >> places;
        if (product % (uint64_t{1} << places) != 0 || dividend < 1 << 23 || dividend >= 1 << 24) continue;
        a.push_back(static_cast<float>(divisor));
        b.push_back(static_cast<float>(dividend));
      }
    }
    if (a.size() >= kMany) compare();
    if (HasFatalFailure()) return;
  }
  compare();
  EXPECT_GT(all, size_t{1} << 22);
}

template <class T> void divides(QvxStatus (*f)(const T*, const T*, T*, int)) {
  Elementwise<T, T, T>(hardOperands<T>(), kQuotient).warns(kWarnsOfZero).run(f);
}

TEST(Div, Floats) {
  divides(qvxsDiv_32f);
  divides(qvxsDiv_64f);
  divides(qvxsDiv_32fc);
  divides(qvxsDiv_64fc);
}

// Only a divisor that is zero warns, not one whose square is; and both are written by the formula.
TEST(Div, ComplexZerosAndUnderflow) {
  const Qvx32fc b = {1, 2}, small = {1e-30F, 0}, zero = {-0.0F, 0};
  Qvx32fc d;
  EXPECT_EQ(qvxsDiv_32fc(&small, &b, &d, 1), qvxStatOk);
  EXPECT_TRUE(std::isinf(d.re) && std::isinf(d.im));
  EXPECT_EQ(qvxsDiv_32fc(&zero, &b, &d, 1), qvxWarnDivByZero);
  EXPECT_TRUE(std::isnan(d.re) && std::isnan(d.im));
}

// A product with the reciprocal, rounded to the element's type first.
TEST(DivC, Floats) {
  const auto oracle = []<class T>(T b, T val) {
    if constexpr (isComplex<T>) {
      const auto r = 1 / (val.re * val.re + val.im * val.im);
      const T inverse{val.re * r, -val.im * r};
      return T{b.re * inverse.re - b.im * inverse.im, b.re * inverse.im + b.im * inverse.re};
    } else {
      return b * (1 / val);
    }
  };
  const auto with = [&]<class T>(QvxStatus (*f)(const T*, T, T*, int)) {
    for (T val : constants<T>()) {
      if (isZero(val)) continue;
      SCOPED_TRACE("divisor " + show(val));
      Elementwise<T, T> trial(std::make_tuple(std::get<1>(hardOperands<T>())), [=](T b) { return oracle(b, val); });
      trial.run([=](const T* b, T* d, int n) { return f(b, val, d, n); });
    }
  };
  with(qvxsDivC_32f);
  with(qvxsDivC_64f);
  with(qvxsDivC_32fc);
  with(qvxsDivC_64fc);
}

TEST(DivCRev, Floats) {
  for (const Qvx32f val : special<Qvx32f>()) {
    SCOPED_TRACE("dividend " + show(val));
    Elementwise<Qvx32f, Qvx32f> trial(std::make_tuple(std::get<0>(hardOperands<Qvx32f>())), [=](Qvx32f a) { return val / a; });
    trial.warns(kWarnsOfZero);
    trial.run([=](const Qvx32f* a, Qvx32f* d, int n) { return qvxsDivCRev_32f(a, val, d, n); });
  }
}

}  // namespace
