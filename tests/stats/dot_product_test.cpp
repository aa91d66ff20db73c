// Dot products: integers exactly, floats within the stated error of a long double sum.
#include <gtest/gtest.h>
#include <qvx/qvxs.h>

#include <cmath>

#include "stats/products.h"
#include "support/placements.h"
#include "support/repeated.h"

namespace {

using reference::Wide;
using tests::Part;
using tests::Placements;
using tests::Random;

template <class A, class B, class R> using Plain = QvxStatus (*)(const A*, const B*, int, R*);
template <class A, class B, class R> using Scaled = QvxStatus (*)(const A*, const B*, int, R*, int);

// ---- integers

constexpr size_t kMost = 150000;  // two slices of 16-bit products and a part
const std::vector<int> kScales = {INT32_MIN, -64, -33, -20, -15, -14, -13, -1, 0,  1,  2,  15, 16,  30,
                                  31,        33,  46,  47,  48,  62,  63,  64, 65, 77, 78, 94, 200, INT32_MAX};

template <class R> void expectParts(R result, Wide re, Wide im, const char* what, int s) {
  if constexpr (tests::isComplex<R>) {
    ASSERT_EQ(result.re, static_cast<Part<R>>(re)) << what << s;
    ASSERT_EQ(result.im, static_cast<Part<R>>(im)) << what << s;
  } else {
    ASSERT_EQ(result, static_cast<R>(re)) << what << s;
  }
}

// As it is, in integers or rounded once to floats.
template <class A, class B, class R> void check(Plain<A, B, R> function, const A* a, const B* b, size_t n, Wide re, Wide im) {
  R result{};
  ASSERT_EQ(function(a, b, static_cast<int>(n), &result), qvxStatOk);
  expectParts(result, re, im, "as it is", 0);
}
// The scale factors that count are from `least` to `most`.
template <class A, class B, class R>
void check(Scaled<A, B, R> function, const A* a, const B* b, size_t n, Wide re, Wide im, int least, int most,
           const std::vector<int>& scales = kScales) {
  for (const int s : scales) {
    R result{};
    const int counted = std::clamp(s, least, most);
    ASSERT_EQ(function(a, b, static_cast<int>(n), &result, s), qvxStatOk);
    expectParts(result, reference::scaled<Part<R>>(re, counted), reference::scaled<Part<R>>(im, counted), "scale factor ", s);
  }
}

template <class A, class B> struct Data {
  std::vector<A> a;
  std::vector<B> b;
};

// Random, and what comes nearest to an overflow: the most negative numbers, squared and with the most positive ones.
template <class A, class B> std::vector<Data<A, B>> exactData() {
  Random random(tests::seed());
  const auto all = [](auto element, auto v) {
    using T = decltype(element);
    if constexpr (tests::isComplex<T>) return std::vector<T>(kMost, {static_cast<Part<T>>(v), static_cast<Part<T>>(v)});
    else return std::vector<T>(kMost, static_cast<T>(v));
  };
  const auto least = std::numeric_limits<Part<A>>::min();
  return {{tests::values<A>(kMost, random), tests::values<B>(kMost, random)},
          {all(A{}, least), all(B{}, std::numeric_limits<Part<B>>::min())},
          {all(A{}, least), all(B{}, std::numeric_limits<Part<B>>::max())},
          {all(A{}, 0), all(B{}, 0)}};
}

// Each check is called with sources, length and exact parts.
template <class A, class B, class Check> void expectExact(Check checkAll) {
  for (const auto& [a, b] : exactData<A, B>()) {
    Placements<A, B>(kMost).run(a, b, [&](size_t n, const A* pa, const B* pb) {
      const reference::DotProduct<Wide> exact(pa, pb, n);
      checkAll(pa, pb, n, exact.sum.re, exact.sum.im);
    });
  }
}

constexpr int kAnyLeast = INT32_MIN, kAnyMost = INT32_MAX;

TEST(DotProductOfIntegers, Of16BitsIsExact) {
  expectExact<Qvx16s, Qvx16s>([](auto... v) {
    check(qvxsDotProd_16s64s, v...);
    check(qvxsDotProd_16s32f, v...);
    check(qvxsDotProd_16s_Sfs, v..., -14, kAnyMost);
    check(qvxsDotProd_16s32s_Sfs, v..., kAnyLeast, kAnyMost);
  });
  expectExact<Qvx16sc, Qvx16sc>([](auto... v) {
    check(qvxsDotProd_16sc64sc, v...);
    check(qvxsDotProd_16sc32fc, v...);
    check(qvxsDotProd_16sc_Sfs, v..., kAnyLeast, kAnyMost);
    check(qvxsDotProd_16sc32sc_Sfs, v..., kAnyLeast, kAnyMost);
  });
  expectExact<Qvx16s, Qvx16sc>([](auto... v) {
    check(qvxsDotProd_16s16sc64sc, v...);
    check(qvxsDotProd_16s16sc32fc, v...);
    check(qvxsDotProd_16s16sc_Sfs, v..., kAnyLeast, kAnyMost);
    check(qvxsDotProd_16s16sc32sc_Sfs, v..., kAnyLeast, kAnyMost);
  });
  const Qvx16s one = 1, numbers[] = {1, -1, 2, -3};
  const Qvx16s below[] = {0x4000, -0x4000, INT16_MAX, INT16_MIN};
  for (const int scaleFactor : {-14, -15, -100, INT32_MIN}) {
    for (size_t i = 0; i < std::size(numbers); ++i) {
      Qvx16s dot = 0;
      ASSERT_EQ(qvxsDotProd_16s_Sfs(&one, &numbers[i], 1, &dot, scaleFactor), qvxStatOk);
      EXPECT_EQ(dot, below[i]) << "scale factor " << scaleFactor;
    }
  }
}

TEST(DotProductOfIntegers, Of32BitsIsExact) {
  expectExact<Qvx32s, Qvx32s>([](auto... v) { check(qvxsDotProd_32s_Sfs, v..., kAnyLeast, 93); });
  expectExact<Qvx32sc, Qvx32sc>([](auto... v) { check(qvxsDotProd_32sc_Sfs, v..., kAnyLeast, 93); });
  expectExact<Qvx32s, Qvx32sc>([](auto... v) { check(qvxsDotProd_32s32sc_Sfs, v..., kAnyLeast, 93); });
  expectExact<Qvx16s, Qvx32s>([](auto... v) { check(qvxsDotProd_16s32s32s_Sfs, v..., kAnyLeast, 93); });
}

// Halves of a unit, and what is nearest to them on either side, wherever the last bits of the sum come to lie.
TEST(DotProductOfIntegers, Of32BitsRoundsHalvesToEven) {
  for (int scaleFactor = 1; scaleFactor <= 60; ++scaleFactor) {
    const int places = scaleFactor - 1;
    const Qvx32s halves = 1 << places / 2;
    for (const Qvx32s odd : {-3, -1, 1, 3}) {
      for (const Qvx32s beside : {-1, 0, 1}) {
        const Qvx32s a[] = {odd * halves, beside};
        const Qvx32s b[] = {1 << (places - places / 2), 1};
        const Wide sum = Wide{odd} * (Wide{1} << places) + beside;
        check(qvxsDotProd_32s_Sfs, a, b, 2, sum, Wide{0}, kAnyLeast, 93, {scaleFactor});
      }
    }
  }
}

// 2^31 - 1 elements: no sum on the way may overflow.
TEST(DotProductOfIntegers, OfTheLongestVectors) {
  constexpr size_t kPeriod = 1 << 20;
  constexpr int64_t kLength = INT32_MAX;
  const auto repeated = [](auto least, auto most) {
    using T = decltype(least);
    std::vector<T> data(kPeriod, std::numeric_limits<T>::min());
    data[12345] = most;
    return data;
  };
  const auto sumOf = [](auto one, auto... data) {  // of all elements by that of one period
    Wide whole = 0;
    for (size_t i = 0; i < kPeriod; ++i) whole += one(data[i]...);
    return whole * (int64_t{1} << 11) - one(data[kPeriod - 1]...);
  };
  const auto product = [](auto x, auto y) { return Wide{x} * y; };

  const auto data16 = repeated(Qvx16s{0}, Qvx16s{77});
  const tests::Repeated<Qvx16s> v16(data16, 2 * size_t{kLength});
  const auto* a16 = v16.as();
  const auto* ac = v16.as<Qvx16sc>();
  const Wide squares = sumOf(product, data16, data16);
  check(qvxsDotProd_16s64s, a16, a16, kLength, squares, Wide{0});
  // Of complex elements (l, l) all products are real or imaginary by cancellation. One in 2^19 is not: (l, 77).
  const Wide l = INT16_MIN;
  const Wide n = kLength;
  const Wide others = (n + (1 << 19) - 1 - 12345 / 2) / (1 << 19);
  check(qvxsDotProd_16sc64sc, ac, ac, kLength, others * (l * l - 77 * 77), (n - others) * 2 * l * l + others * 2 * l * 77);

  const auto data32 = repeated(Qvx32s{0}, Qvx32s{-1});
  const tests::Repeated<Qvx32s> v32(data32, kLength);
  const Wide squares32 = sumOf(product, data32, data32);
  check(qvxsDotProd_32s_Sfs, v32.as(), v32.as(), kLength, squares32, Wide{0}, kAnyLeast, 93, {61, 62, 63, 92, 93, 94});
  const Wide mixed = sumOf(product, data16, data32);
  check(qvxsDotProd_16s32s32s_Sfs, a16, v32.as(), kLength, mixed, Wide{0}, kAnyLeast, 93, {45, 46, 47, 76, 77, 78});
}

// ---- floats

// bound: of the sum of magnitudes. The result's own rounding is added.
template <class A, class B, class R> void expectNear(Plain<A, B, R> function) {
  const long double bound = sizeof(Part<R>) == 4 ? 3.5e-5L : 4e-12L;
  const long double rounding = std::numeric_limits<Part<R>>::epsilon() / 2;
  Random random(tests::seed());
  const auto a = tests::illConditioned<A>(40000, random, 1e5F, 1e3F);
  const auto b = tests::illConditioned<B>(40000, random, 1e5F, 1e3F);
  Placements<A, B>(a.size()).run(a, b, [&](size_t n, const A* pa, const B* pb) {
    const reference::DotProduct<long double> exact(pa, pb, n);
    R result{};
    ASSERT_EQ(function(pa, pb, static_cast<int>(n), &result), qvxStatOk);
    const auto found = reference::number<long double>(result);
    // Short sums have few roundings: one for each product and addition of a lane.
    const long double most = std::min(bound, 2 * static_cast<long double>(n + 4) * rounding);
    ASSERT_LE(std::abs(found.re - exact.sum.re), most * exact.magnitudes.re + std::abs(exact.sum.re) * rounding);
    ASSERT_LE(std::abs(found.im - exact.sum.im), most * exact.magnitudes.im + std::abs(exact.sum.im) * rounding);
  });
}

TEST(DotProductOfFloats, StaysWithinItsBound) {
  expectNear(qvxsDotProd_32f);
  expectNear(qvxsDotProd_64f);
  expectNear(qvxsDotProd_32fc);
  expectNear(qvxsDotProd_64fc);
  expectNear(qvxsDotProd_32f32fc);
  expectNear(qvxsDotProd_64f64fc);
  expectNear(qvxsDotProd_32f64f);
  expectNear(qvxsDotProd_32fc64fc);
  expectNear(qvxsDotProd_32f32fc64fc);
}

TEST(DotProductOfFloats, WidensBeforeItMultiplies) {
  // (2^13 + 1)^2 has 27 bits, and squares of 1e30 are beyond 32-bit floats.
  const std::vector<Qvx32f> a(5, 0x1p13F + 1), big(3, 1e30F);
  Qvx64f dp = 0;
  ASSERT_EQ(qvxsDotProd_32f64f(a.data(), a.data(), 5, &dp), qvxStatOk);
  EXPECT_EQ(dp, 5 * (0x1p13 + 1) * (0x1p13 + 1));
  ASSERT_EQ(qvxsDotProd_32f64f(big.data(), big.data(), 3, &dp), qvxStatOk);
  EXPECT_NEAR(dp, 3e60, 1e54);
}

}  // namespace
