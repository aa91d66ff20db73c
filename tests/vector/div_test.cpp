// Quotients of floats: IEEE division, the complex quotient by its formula, constants by their reciprocal.
#include <qvx/qvxs.h>

#include <cmath>

#include "vector/scaled_members.h"

namespace {

using namespace tests;

template <class T> T two() {
  if constexpr (isComplex<T>) return {2, 0};
  else return 2;
}

template <class T> bool isZero(T v) {
  if constexpr (isComplex<T>) return v.re == 0 && v.im == 0;
  else return v == 0;
}

const auto kWarnsOfZero = [](auto divisor, auto...) { return isZero(divisor) ? qvxWarnDivByZero : qvxStatOk; };

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
  using Limits = std::numeric_limits<T>;
  return {T(0),
          -T(0),
          Limits::infinity(),
          -Limits::infinity(),
          Limits::quiet_NaN(),
          Limits::max(),
          -Limits::max(),
          Limits::min(),
          Limits::denorm_min(),
          T(1),
          T(-3),
          std::sqrt(Limits::max()),
          std::sqrt(Limits::denorm_min())};
}

// Numbers, then every pair of special ones: the first zero comes behind the first vectors.
template <class T> std::tuple<std::vector<T>, std::vector<T>> operands(size_t n) {
  Random random(seed());
  std::vector<T> a = values<T>(n, random);
  std::vector<T> b = values<T>(n, random);
  for (size_t i = 0; i < n && i < 137; ++i) {
    if (isZero(a[i])) a[i] = two<T>();
  }
  if constexpr (isComplex<T>) {
    for (const auto re : special<decltype(T::re)>()) {
      for (const auto im : special<decltype(T::re)>()) {
        a.insert(a.end(), {T{re, im}, T{2, -3}});
        b.insert(b.end(), {T{1, 5}, T{re, im}});
      }
    }
  } else {
    for (const T x : special<T>()) {
      for (const T y : special<T>()) a.push_back(x), b.push_back(y);
    }
  }
  return {a, b};
}

template <class T> void divides(QvxStatus (*f)(const T*, const T*, T*, int), QvxStatus (*inPlace)(const T*, T*, int)) {
  Elementwise<T, T, T> trial(operands<T>(700), kQuotient);
  trial.warns(kWarnsOfZero);
  trial.run(f);
  trial.run([=](const T* a, const T*, T* d, int n) { return inPlace(a, d, n); }, 1);
}

TEST(Div, Floats) {
  divides(qvxsDiv_32f, qvxsDiv_32f_I);
  divides(qvxsDiv_64f, qvxsDiv_64f_I);
  divides(qvxsDiv_32fc, qvxsDiv_32fc_I);
  divides(qvxsDiv_64fc, qvxsDiv_64fc_I);
}

// Only a divisor that is zero warns, not one whose square is; and both are written by the formula wherever they stand.
TEST(Div, ComplexZerosAndUnderflow) {
  for (size_t n : {1, 2, 3, 4, 7, 8, 9, 31}) {
    for (size_t at = 0; at < n; ++at) {
      std::vector<Qvx32fc> a(n, {3, 4});
      const std::vector<Qvx32fc> b(n, {1, 2});
      std::vector<Qvx32fc> d(n);
      a[at] = {1e-30F, 0};
      EXPECT_EQ(qvxsDiv_32fc(a.data(), b.data(), d.data(), static_cast<int>(n)), qvxStatOk);
      EXPECT_TRUE(std::isinf(d[at].re) && std::isinf(d[at].im));
      a[at] = {-0.0F, 0};
      EXPECT_EQ(qvxsDiv_32fc(a.data(), b.data(), d.data(), static_cast<int>(n)), qvxWarnDivByZero);
      EXPECT_TRUE(std::isnan(d[at].re) && std::isnan(d[at].im));
      for (size_t i = 0; i < n; ++i) EXPECT_TRUE(i == at || (d[i].re == 0.44F && d[i].im == 0.08F)) << i << " beside " << at;
    }
  }
}

template <class T> void dividesInTeam(QvxStatus (*f)(const T*, const T*, T*, int)) {
  for (const size_t zero : {size_t{1}, size_t{66000}, size_t{66001}}) {
    SCOPED_TRACE("zero at " + std::to_string(zero));
    Random random(seed());
    std::vector<T> a = values<T>(66001, random);
    for (T& x : a) x = isZero(x) ? two<T>() : x;
    if (zero < a.size()) a[zero] = T{};
    Elementwise<T, T, T> trial(std::make_tuple(a, values<T>(66001, random)), kQuotient);
    trial.warns(kWarnsOfZero).runOnce(f);
  }
}

TEST(Div, InTeam) {
  dividesInTeam(qvxsDiv_32f);
  dividesInTeam(qvxsDiv_64f);
  dividesInTeam(qvxsDiv_32fc);
  dividesInTeam(qvxsDiv_64fc);
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
  const auto with = [&]<class T>(QvxStatus (*f)(const T*, T, T*, int), QvxStatus (*inPlace)(T, T*, int)) {
    for (T val : constants<T>()) {
      if (isZero(val)) continue;
      SCOPED_TRACE("divisor " + show(val));
      Elementwise<T, T> trial(std::make_tuple(std::get<1>(operands<T>(700))), [=](T b) { return oracle(b, val); });
      trial.run([=](const T* b, T* d, int n) { return f(b, val, d, n); });
      trial.run([=](const T*, T* d, int n) { return inPlace(val, d, n); }, 0);
    }
  };
  with(qvxsDivC_32f, qvxsDivC_32f_I);
  with(qvxsDivC_64f, qvxsDivC_64f_I);
  with(qvxsDivC_32fc, qvxsDivC_32fc_I);
  with(qvxsDivC_64fc, qvxsDivC_64fc_I);
}

TEST(DivCRev, Floats) {
  for (const Qvx32f val : special<Qvx32f>()) {
    SCOPED_TRACE("dividend " + show(val));
    Elementwise<Qvx32f, Qvx32f> trial(std::make_tuple(std::get<0>(operands<Qvx32f>(700))), [=](Qvx32f a) { return val / a; });
    trial.warns(kWarnsOfZero);
    trial.run([=](const Qvx32f* a, Qvx32f* d, int n) { return qvxsDivCRev_32f(a, val, d, n); });
    trial.run([=](const Qvx32f*, Qvx32f* d, int n) { return qvxsDivCRev_32f_I(val, d, n); }, 0);
  }
}

}  // namespace
