// Convolution: linear, in part, cyclic.
#include <qvx/qvxcore.h>

#include <cstring>

#include "correlation/operands.h"
#include "reference/scaled.h"

namespace {

using namespace tests;

struct Conv32f {
  using T = Qvx32f;
  static constexpr auto kFunction = qvxsConv_32f;
};
struct Conv64f {
  using T = Qvx64f;
  static constexpr auto kFunction = qvxsConv_64f;
};
template <class F> class Convolution : public testing::Test {};
using Floats = testing::Types<Conv32f, Conv64f>;
TYPED_TEST_SUITE(Convolution, Floats);

constexpr std::pair<size_t, size_t> kDirect[] = {{1, 1},     {1, 700},   {2, 3},      {8, 8},     {16, 17},
                                                 {33, 100},  {64, 448},  {255, 256},  {250, 262}, {63, 450},
                                                 {63, 4095}, {63, 4096}, {63, 20000}, {5, 70000}};

// Either operand may be the longer one; results that whole numbers give directly are exact.
TYPED_TEST(Convolution, OfWholeNumbersIsExactWhereItIsShort) {
  using T = typename TypeParam::T;
  Random random(1);
  const auto check = [&](size_t aLen, size_t bLen) {
    const auto a = wholeNumbers<T>(aLen, 64, random), b = wholeNumbers<T>(bLen, 64, random);
    Bounded<T> x(a), y(b), z(aLen + bLen - 1);
    ASSERT_EQ(TypeParam::kFunction(x, static_cast<int>(aLen), y, static_cast<int>(bLen), z), qvxStatOk);
    const size_t step = aLen * bLen > 100000 ? 37 : 1;
    for (size_t n = 0; n < aLen + bLen - 1; n += n < 200 || n + 200 > aLen + bLen ? 1 : step) {
      ASSERT_EQ(reference::wide(z[n]), reference::convolution(a, b, static_cast<int64_t>(n))) << aLen << 'x' << bLen << ", " << n;
    }
    ASSERT_TRUE(z.isIntact());
  };
  for (size_t aLen = 1; aLen <= 20; ++aLen) {
    for (size_t bLen = 1; bLen <= 40; ++bLen) check(aLen, bLen);
  }
  for (const auto& [aLen, bLen] : kDirect) {
    check(aLen, bLen);
    check(bLen, aLen);
  }
}

// What lies outside an operand multiplies nothing, not even an infinite element of the other.
TYPED_TEST(Convolution, OfAnInfiniteElementIsFiniteElsewhere) {
  using T = typename TypeParam::T;
  Random random(9);
  for (const auto& [aLen, bLen] : {std::pair<size_t, size_t>{1, 3}, {3, 3}, {8, 8}, {17, 20}, {70, 100}, {5, 3000}}) {
    const auto whole = wholeNumbers<T>(aLen, 64, random), b = wholeNumbers<T>(bLen, 64, random);
    for (const size_t at : {size_t{0}, aLen / 2, aLen - 1}) {
      const Spoiled<T> a(whole, at);
      std::vector<T> y(aLen + bLen - 1), z(y.size());
      const int n1 = static_cast<int>(aLen), n2 = static_cast<int>(bLen);
      TypeParam::kFunction(a.data.data(), n1, b.data(), n2, y.data());
      TypeParam::kFunction(b.data(), n2, a.data.data(), n1, z.data());
      for (size_t n = 0; n < y.size(); ++n) {
        const auto place = static_cast<int64_t>(n);
        const bool isTouched = reference::convolution(a.marks, ones<T>(bLen), place) != 0;
        ASSERT_EQ(isFinite(y[n]), !isTouched) << aLen << 'x' << bLen << ", " << at << ", " << n;
        ASSERT_EQ(isFinite(z[n]), !isTouched) << bLen << 'x' << aLen << ", " << at << ", " << n;
        if (isTouched) continue;
        ASSERT_EQ(reference::wide(y[n]), reference::convolution(whole, b, place));
      }
    }
  }
}

// The lengths where the way changes; one transform, several blocks, the last of them almost empty or full.
TYPED_TEST(Convolution, StaysWithinTheErrorOfATransform) {
  using T = typename TypeParam::T;
  constexpr std::pair<size_t, size_t> kLong[] = {{64, 449},     {300, 300},   {500, 500},     {513, 513},    {1000, 1000},
                                                 {1024, 1025},  {1000, 3000}, {200, 16385},   {600, 50000},  {4097, 4097},
                                                 {9000, 20000}, {3000, 9001}, {30000, 30001}, {100000, 8000}};
  Random random(2);
  for (const auto& [aLen, bLen] : kLong) {
    const auto a = unevenNumbers<T>(aLen, random), b = unevenNumbers<T>(bLen, random);
    Bounded<T> x(a), y(b), z(aLen + bLen - 1);
    ASSERT_EQ(TypeParam::kFunction(x, static_cast<int>(aLen), y, static_cast<int>(bLen), z), qvxStatOk);
    const long double bound = transformError(a, b);
    const size_t step = 1 + aLen * bLen / 200000;
    for (size_t n = 0; n < aLen + bLen - 1; n += step) {
      ASSERT_LE(distance(z[n], reference::convolution(a, b, static_cast<int64_t>(n))), bound) << aLen << 'x' << bLen << ", " << n;
    }
    ASSERT_TRUE(z.isIntact());
  }
}

TYPED_TEST(Convolution, IsThatOfOneThreadWithTwo) {
  using T = typename TypeParam::T;
  Random random(3);
  for (const size_t taps : {40, 512, 3000, 20000, 100000}) {
    const auto a = unevenNumbers<T>(100000, random), b = unevenNumbers<T>(taps, random);
    std::vector<T> alone(a.size() + b.size() - 1), together(alone.size());
    for (const int threads : {1, 2}) {
      qvxSetNumThreads(threads);
      TypeParam::kFunction(a.data(), static_cast<int>(a.size()), b.data(), static_cast<int>(taps),
                           (threads == 1 ? alone : together).data());
    }
    qvxSetNumThreads(0);
    EXPECT_TRUE(alone == together) << taps;
  }
}

// Exact sums however large, rounded once; by way of a transform within a unit.
TEST(Convolution16s, IsRoundedOnce) {
  Random random(4);
  constexpr std::pair<size_t, size_t> kLengths[] = {{1, 1}, {7, 30}, {30, 7}, {200, 200}, {40, 5000}, {700, 700}, {5000, 300}};
  for (const auto& [aLen, bLen] : kLengths) {
    for (const int scaleFactor : {-3, 0, 1, 9, 17, 24, 31, 100, -100}) {
      std::vector<Qvx16s> a(aLen), b(bLen, -32768), y(aLen + bLen - 1);
      for (Qvx16s& v : a) v = value<Qvx16s>(random);
      if (scaleFactor == 24) std::fill(a.begin(), a.end(), Qvx16s{-32768});
      else
        for (Qvx16s& v : b) v = value<Qvx16s>(random);
      ASSERT_EQ(qvxsConv_16s_Sfs(a.data(), static_cast<int>(aLen), b.data(), static_cast<int>(bLen), y.data(), scaleFactor),
                qvxStatOk);
      const int slack = std::min(aLen, bLen) >= 64 && aLen + bLen > 512 ? 1 : 0;
      for (size_t n = 0; n < y.size(); ++n) {
        const Qvx16s exact = reference::scaled<Qvx16s>(reference::convolution(a, b, static_cast<int64_t>(n)), scaleFactor);
        ASSERT_LE(std::abs(y[n] - exact), slack) << aLen << 'x' << bLen << " scale " << scaleFactor << ", " << n;
      }
    }
  }
}

// The sum over k of a[k] * b[n - k + bias] with b wherever it is, which is the convolution moved on.
TEST(ConvolutionBiased, TakesAnyPart) {
  Random random(5);
  std::uniform_int_distribution<int> length(1, 90);
  for (int i = 0; i < 600; ++i) {
    const bool isEven = i < 4;  // shapes of one length that have their own place in the rule
    const auto n = static_cast<size_t>(isEven ? 40 + 20 * (i % 2) : i % 7 == 0 ? 3 * length(random) : length(random));
    const auto m = static_cast<size_t>(isEven ? static_cast<int>(n) : i % 11 == 0 ? 40 * length(random) : length(random));
    const int outputs = isEven ? static_cast<int>(n) : 3 * length(random), bias = isEven ? 0 : length(random) * (i % 5 - 2);
    const auto a = wholeNumbers<Qvx32f>(n, 30, random), b = wholeNumbers<Qvx32f>(m, 30, random);
    Bounded<Qvx32f> x(a), y(b), z(static_cast<size_t>(outputs));
    ASSERT_EQ(qvxsConvBiased_32f(x, static_cast<int>(n), y, static_cast<int>(m), z, outputs, bias), qvxStatOk);
    for (int k = 0; k < outputs; ++k) {
      ASSERT_EQ(reference::wide(z[k]), reference::convolution(a, b, int64_t{k} + bias))
          << n << 'x' << m << " bias " << bias << ", " << k;
    }
    ASSERT_TRUE(z.isIntact());
  }
}

// They know nothing of the bias, and the second operand goes on before its pointer.
TEST(ConvolutionBiased, OfFiveShapesReadsAhead) {
  struct Shape {
    int aLen, bLen, outputs, bias;
  };
  Random random(6);
  for (const Shape& s : {Shape{4, 45, 41, 4}, {11, 50, 40, 10}, {16, 56, 40, 16}, {31, 70, 40, 30}, {31, 110, 80, 30}}) {
    const int ahead = s.aLen - 1;
    const auto a = wholeNumbers<Qvx32f>(static_cast<size_t>(s.aLen), 30, random);
    const auto b = wholeNumbers<Qvx32f>(static_cast<size_t>(ahead + s.bLen), 30, random);
    Bounded<Qvx32f> x(a), y(b), z(static_cast<size_t>(s.outputs));
    ASSERT_EQ(qvxsConvBiased_32f(x, s.aLen, y + ahead, s.bLen, z, s.outputs, s.bias), qvxStatOk);
    for (int n = 0; n < s.outputs; ++n)
      ASSERT_EQ(reference::wide(z[n]), reference::convolution(a, b, n + ahead)) << s.aLen << ", " << n;
    EXPECT_EQ(qvxsConvBiased_32f(x, s.aLen, y + ahead, s.bLen - 1, z, s.outputs, s.bias), qvxStatOk);
    const std::vector<Qvx32f> alone(b.begin() + ahead, b.end() - 1);
    for (int n = 0; n < s.outputs; ++n)
      ASSERT_EQ(reference::wide(z[n]), reference::convolution(a, alone, n + s.bias)) << "not " << s.aLen;
  }
}

template <class A, class B> auto cyclic(const std::vector<A>& a, const std::vector<B>& b, size_t n) {
  decltype(reference::wide(B())) sum = 0;
  for (size_t k = 0; k < a.size(); ++k) sum += reference::wide(a[k]) * reference::wide(b[(n + a.size() - k) % a.size()]);
  return sum;
}

TEST(ConvolutionCyclic, GoesAround) {
  Random random(7);
  for (int i = 0; i < 50; ++i) {
    const auto a = wholeNumbers<Qvx32f>(8, 100, random), b = wholeNumbers<Qvx32f>(8, 100, random);
    Bounded<Qvx32f> x(a), y(b);
    ASSERT_EQ(qvxsConvCyclic8x8_32f(x, y, i % 2 == 0 ? y : x), qvxStatOk);
    for (size_t n = 0; n < 8; ++n) ASSERT_EQ(reference::wide((i % 2 == 0 ? y : x)[n]), cyclic(a, b, n));

    const auto c = wholeNumbers<Qvx32f>(4, 100, random);
    const auto d = wholeNumbers<Qvx32fc>(4, 100, random);
    Bounded<Qvx32f> u(c);
    Bounded<Qvx32fc> v(d);
    ASSERT_EQ(qvxsConvCyclic4x4_32f32fc(u, v, v), qvxStatOk);
    for (size_t n = 0; n < 4; ++n) ASSERT_EQ(reference::wide(v[n]), cyclic(c, d, n));
  }
}

TEST(ConvolutionCyclic, WrapsAt32Bits) {
  Random random(8);
  for (int i = 0; i < 400; ++i) {
    std::vector<Qvx16s> a(8, -32768), b(8, i == 0 ? -32768 : 32767), y(8);
    for (size_t k = 0; i > 1 && k < 8; ++k) a[k] = value<Qvx16s>(random), b[k] = value<Qvx16s>(random);
    const int scaleFactor = i % 80 - 40;
    ASSERT_EQ(qvxsConvCyclic8x8_16s_Sfs(a.data(), b.data(), y.data(), scaleFactor), qvxStatOk);
    for (size_t n = 0; n < 8; ++n) {
      const auto wrapped = static_cast<int32_t>(static_cast<uint32_t>(cyclic(a, b, n)));
      ASSERT_EQ(y[n], reference::scaled<Qvx16s>(wrapped, std::clamp(scaleFactor, -31, 31))) << scaleFactor;
    }
  }
}

}  // namespace
