// Principal square roots of complex numbers.
#include <qvx/qvxs.h>

#include <cmath>
#include <complex>

#include "support/ulp.h"
#include "vector/members.h"

namespace {

using namespace tests;
using LongComplex = std::complex<long double>;

// ---- floats

// Parts of all sizes that the type has, near and far from each other; some on the axes.
template <class C> std::vector<C> ofEverySize(size_t n) {
  using T = Part<C>;
  using Limits = std::numeric_limits<T>;
  Random random(seed());
  const auto part = [&](int exponent) {
    const T fraction = 1 + std::ldexp(static_cast<T>(random() >> 12), -52);
    return std::ldexp((random() & 1) != 0 ? fraction : -fraction, exponent);
  };
  const auto exponent = [&] {
    const int least = Limits::min_exponent - Limits::digits;
    return least + static_cast<int>(random() % static_cast<unsigned>(Limits::max_exponent - least));
  };
  std::vector<C> v;
  for (size_t i = 0; i < n; ++i) {
    const int e = exponent();
    const int near =
        std::clamp(e + static_cast<int>(random() % 9) - 4, Limits::min_exponent - Limits::digits, Limits::max_exponent - 1);
    C z = {part(e), part(i % 2 != 0 ? near : exponent())};
    if (random() % 16 == 0) z.re = 0;
    if (random() % 16 == 0) z.im = std::copysign(T(0), z.im);
    v.push_back(z);
  }
  for (const T x : {Limits::max(), Limits::min(), Limits::denorm_min()}) {
    v.insert(v.end(), {{x, x}, {-x, x}, {x, -x}, {-x, -x}, {0, x}, {x, 0}, {-x, 0}, {0, -x}, {-x, -T(0)}});
  }
  return v;
}

template <class C> void accurate(QvxStatus (*f)(const C*, C*, int), double most) {
  const std::vector<C> sources = ofEverySize<C>(60000);
  std::vector<C> roots(sources.size());
  ASSERT_EQ(f(sources.data(), roots.data(), static_cast<int>(sources.size())), qvxStatOk);
  double worst = 0;
  for (size_t i = 0; i < sources.size(); ++i) {
    const LongComplex exact = std::sqrt(LongComplex(sources[i].re, sources[i].im));
    const double error = std::max(ulpError(roots[i].re, exact.real()), ulpError(roots[i].im, exact.imag()));
    EXPECT_EQ(std::signbit(roots[i].im), std::signbit(sources[i].im)) << show(sources[i]);
    EXPECT_FALSE(std::signbit(roots[i].re)) << show(sources[i]);
    ASSERT_LE(error, most) << show(sources[i]) << " gave " << show(roots[i]);
    worst = std::max(worst, error);
  }
  testing::Test::RecordProperty("worst error in ULP", std::to_string(worst));
}

TEST(ComplexSqrt, Accuracy) {
  accurate(qvxsSqrt_32fc, 0.501);
  accurate(qvxsSqrt_64fc, 2.0);
}

// Zeros, infinities and NaN: the C library's csqrt is the rule.
template <class C> void special(QvxStatus (*f)(const C*, C*, int)) {
  using T = Part<C>;
  const T inf = std::numeric_limits<T>::infinity();
  const T nan = std::numeric_limits<T>::quiet_NaN();
  const T parts[] = {0, -T(0), 2, -2, inf, -inf, nan, std::numeric_limits<T>::max()};
  for (const T re : parts) {
    for (const T im : parts) {
      const C z = {re, im};
      C root;
      ASSERT_EQ(f(&z, &root, 1), qvxStatOk);
      const std::complex<T> rule = std::sqrt(std::complex<T>(re, im));
      const auto isSame = [](T a, T b) {
        if (std::isnan(a) || std::isnan(b)) return std::isnan(a) && std::isnan(b);
        return std::signbit(a) == std::signbit(b) &&
               (a == b || std::fabs(a - b) <= 2 * std::numeric_limits<T>::epsilon() * std::fabs(b));
      };
      const bool signIsOpen = re == -inf && std::isnan(im);
      EXPECT_TRUE(isSame(root.re, rule.real())) << show(z) << ": " << show(root);
      EXPECT_TRUE(isSame(signIsOpen ? std::fabs(root.im) : root.im, signIsOpen ? std::fabs(rule.imag()) : rule.imag()))
          << show(z) << ": " << show(root);
    }
  }
}

TEST(ComplexSqrt, Specials) {
  special(qvxsSqrt_32fc);
  special(qvxsSqrt_64fc);
}

// ---- 16 bits

// sqrt((sqrt(re^2 + im^2) + re) / 2) * 2^-s, nearest even, of magnitude `most` at most. Within 1e-12 of a half it is one: the
// roots of integers come as near to a half as 1e-10, and long doubles are wrong by 1e-17.
int nearestPart(int re, int im, int s, int most) {
  const long double z = std::sqrt(static_cast<long double>(re) * re + static_cast<long double>(im) * im);
  const long double sum = re >= 0 ? z + re : static_cast<long double>(im) * im / (z - re);
  const long double value = std::ldexp(std::sqrt(sum / 2), -std::clamp(s, -30, 30));
  if (value > most) return most;
  const auto n = static_cast<int>(value);
  const long double aboveHalf = value - n - 0.5L;
  const bool up = std::fabs(aboveHalf) < 1e-12L ? n % 2 != 0 : aboveHalf > 0;
  return std::min(most, n + up);
}

Qvx16sc nearestRoot(Qvx16sc z, int s) {
  const int re = nearestPart(z.re, z.im, s, 32767);
  const int im = nearestPart(-z.re, z.im, s, z.im < 0 ? 32768 : 32767);
  return {static_cast<Qvx16s>(re), static_cast<Qvx16s>(z.im < 0 ? -im : im)};
}

std::vector<Qvx16sc> hardIntegers() {
  Random random(seed());
  std::vector<Qvx16sc> v = values<Qvx16sc>(4000, random);
  // Squares of complex integers have exact roots, with ties at s = 1 and 2; near them there are roots close to ties.
  for (int re = 0; re <= 181; re += 3) {
    for (int im = -181; im <= 181; im += 5) {
      const int a = re * re - im * im;
      const int b = 2 * re * im;
      for (int near = -1; near <= 1; ++near) {
        if (std::abs(a) < 32767 && std::abs(b) < 32767) v.push_back({static_cast<Qvx16s>(a + near), static_cast<Qvx16s>(b)});
      }
    }
  }
  for (const int a : {-32768, 32767, -1, 0, 1}) {
    for (const int b : {-32768, 32767, -1, 0, 1}) v.push_back({static_cast<Qvx16s>(a), static_cast<Qvx16s>(b)});
  }
  return v;
}

TEST(ComplexSqrt, Scaled16) {
  scaledUnary(qvxsSqrt_16sc_Sfs, hardIntegers(), nearestRoot, range(-27, 11, {INT32_MIN, INT32_MAX}), {-24, -8, 0, 1, 8});
}

}  // namespace
