// The Haar transform: integers exactly, at every scale; floats in the order of their operations.
#include <gtest/gtest.h>
#include <qvx/qvxs.h>

#include "reference/scaled.h"
#include "support/elementwise.h"

namespace {

using reference::Mode;
using reference::Wide;
using tests::Block;
using tests::Random;

// (a + b) / 2 * 2^-scale and (b - a) / 2 * 2^-scale, and back.
template <class T> T half(Wide sum, int scale) { return scale == INT32_MAX ? 0 : reference::scaled<T>(sum, scale + 1); }

template <class T> struct Haar {
  using Forward = QvxStatus (*)(const T*, int, T*, T*, int);
  using Inverse = QvxStatus (*)(const T*, const T*, T*, int, int);

  // Every length up to some vectors, at ends and at odd places.
  static void expect(const std::vector<T>& x, Forward forward, Inverse inverse, int scale) {
    const size_t bytes = x.size() * sizeof(T);
    Block source(bytes + 64), first(bytes + 64), second(bytes + 64);
    const size_t most = std::min<size_t>(x.size(), 4 * 64 / sizeof(T) * 2 + 3);
    for (size_t step = 1; step <= most + 1; ++step) {
      const size_t n = step <= most ? step : x.size();
      const bool atEnd = n % 3 != 0;
      const auto place = [&](Block& block, size_t count) {
        return reinterpret_cast<T*>(atEnd ? block.atEnd(count * sizeof(T)) : block.atOffset(n % 61, count * sizeof(T)));
      };
      T* const a = place(source, n);
      T* const low = place(first, (n + 1) / 2);
      T* const high = place(second, n / 2);
      std::copy_n(x.begin(), n, a);
      ASSERT_EQ(forward(a, static_cast<int>(n), low, high, scale), qvxStatOk);
      ASSERT_TRUE(source.isIntact() && first.isIntact() && second.isIntact());
      for (size_t k = 0; k < n / 2; ++k) {
        const Wide p = x[2 * k], q = x[2 * k + 1];
        ASSERT_EQ(low[k], half<T>(p + q, scale)) << "pair " << k << " of " << n << ", scale " << scale;
        ASSERT_EQ(high[k], half<T>(q - p, scale)) << "pair " << k << " of " << n << ", scale " << scale;
      }
      if (n % 2 != 0) {
        ASSERT_EQ(low[n / 2], reference::scaled<T>(x[n - 1], scale));
      }

      std::copy_n(x.begin(), (n + 1) / 2, low);
      std::copy_n(x.end() - static_cast<std::ptrdiff_t>(n / 2), n / 2, high);
      ASSERT_EQ(inverse(low, high, a, static_cast<int>(n), scale), qvxStatOk);
      ASSERT_TRUE(source.isIntact() && first.isIntact() && second.isIntact());
      for (size_t k = 0; k < n / 2; ++k) {
        ASSERT_EQ(a[2 * k], reference::scaled<T>(Wide{low[k]} - high[k], scale)) << k << " of " << n << ", scale " << scale;
        ASSERT_EQ(a[2 * k + 1], reference::scaled<T>(Wide{low[k]} + high[k], scale)) << k << " of " << n << ", scale " << scale;
      }
      if (n % 2 != 0) {
        ASSERT_EQ(a[n - 1], reference::scaled<T>(low[n / 2], scale));
      }
    }
  }

  template <class F, class I> static void expectAll(F plainForward, I plainInverse, Forward forward, Inverse inverse) {
    Random random(tests::seed());
    std::vector<T> x = tests::values<T>(1001, random);
    const T least = std::numeric_limits<T>::min(), most = std::numeric_limits<T>::max();
    const T ends[] = {least, most, least, least, most, most, most, least, 0, most, least, -1};
    std::copy(std::begin(ends), std::end(ends), x.begin());
    std::copy(std::begin(ends), std::end(ends), x.end() - 12);
    static F forwardOf;
    static I inverseOf;
    forwardOf = plainForward;
    inverseOf = plainInverse;
    expect(
        x, [](const T* a, int n, T* low, T* high, int) { return forwardOf(a, n, low, high); },
        [](const T* low, const T* high, T* d, int n, int) { return inverseOf(low, high, d, n); }, 0);
    constexpr int kBits = 8 * sizeof(T);
    for (const int scale : {0,         1,  2,  3,  kBits / 2,  kBits - 2, kBits - 1, kBits,      kBits + 1, kBits + 2, 200,
                            INT32_MAX, -1, -2, -3, -kBits / 2, 1 - kBits, -kBits,    -kBits - 1, -200,      INT32_MIN}) {
      expect(x, forward, inverse, scale);
    }
  }
};

TEST(Haar, IntegersAreTheExactValueRoundedOnce) {
  Haar<Qvx8s>::expectAll(qvxsWTHaarFwd_8s, qvxsWTHaarInv_8s, qvxsWTHaarFwd_8s_Sfs, qvxsWTHaarInv_8s_Sfs);
  Haar<Qvx16s>::expectAll(qvxsWTHaarFwd_16s, qvxsWTHaarInv_16s, qvxsWTHaarFwd_16s_Sfs, qvxsWTHaarInv_16s_Sfs);
  Haar<Qvx32s>::expectAll(qvxsWTHaarFwd_32s, qvxsWTHaarInv_32s, qvxsWTHaarFwd_32s_Sfs, qvxsWTHaarInv_32s_Sfs);
  Haar<Qvx64s>::expectAll(qvxsWTHaarFwd_64s, qvxsWTHaarInv_64s, qvxsWTHaarFwd_64s_Sfs, qvxsWTHaarInv_64s_Sfs);
}

// All pairs of bytes: ties of both parities and signs.
TEST(Haar, AllPairsOfBytes) {
  std::vector<Qvx8s> x;
  for (int a = -128; a < 128; ++a) {
    for (int b = -128; b < 128; ++b) x.insert(x.end(), {static_cast<Qvx8s>(a), static_cast<Qvx8s>(b)});
  }
  std::vector<Qvx8s> low(65536), high(65536), back(131072);
  ASSERT_EQ(qvxsWTHaarFwd_8s(x.data(), 131072, low.data(), high.data()), qvxStatOk);
  for (size_t k = 0; k < low.size(); ++k) {
    ASSERT_EQ(low[k], half<Qvx8s>(Wide{x[2 * k]} + x[2 * k + 1], 0));
    ASSERT_EQ(high[k], half<Qvx8s>(Wide{x[2 * k + 1]} - x[2 * k], 0));
  }
  Qvx32s pair[] = {INT32_MIN, INT32_MAX}, sum, difference;
  ASSERT_EQ(qvxsWTHaarFwd_32s(pair, 2, &sum, &difference), qvxStatOk);
  EXPECT_EQ(difference, INT32_MAX);
  EXPECT_EQ(sum, 0);
}

template <class T, class F, class I> void expectFloats(F forward, I inverse) {
  Random random(tests::seed());
  const auto x = tests::values<T>(301, random);
  for (size_t n = 1; n <= x.size(); ++n) {
    std::vector<T> low((n + 1) / 2), high(n / 2 + 1), back(n);
    ASSERT_EQ(forward(x.data(), static_cast<int>(n), low.data(), high.data()), qvxStatOk);
    ASSERT_EQ(inverse(low.data(), high.data(), back.data(), static_cast<int>(n)), qvxStatOk);
    for (size_t k = 0; k < n / 2; ++k) {
      const T h = (x[2 * k + 1] - x[2 * k]) * T(0.5), l = x[2 * k] + h;
      ASSERT_TRUE(tests::sameBits(&low[k], &l, 1) && tests::sameBits(&high[k], &h, 1)) << k << " of " << n;
      const T even = l - h, odd = l + h;
      ASSERT_TRUE(tests::sameBits(&back[2 * k], &even, 1) && tests::sameBits(&back[2 * k + 1], &odd, 1));
      const T error = std::numeric_limits<T>::epsilon() * 2 * std::max(std::fabs(x[2 * k]), std::fabs(x[2 * k + 1]));
      ASSERT_TRUE(std::fabs(even - x[2 * k]) <= error && std::fabs(odd - x[2 * k + 1]) <= error) << "not reconstructed";
    }
    if (n % 2 != 0) {
      ASSERT_TRUE(tests::sameBits(&low[n / 2], &x[n - 1], 1) && tests::sameBits(&back[n - 1], &x[n - 1], 1));
    }
  }
}

TEST(Haar, FloatsInTheirOrder) {
  expectFloats<Qvx32f>(qvxsWTHaarFwd_32f, qvxsWTHaarInv_32f);
  expectFloats<Qvx64f>(qvxsWTHaarFwd_64f, qvxsWTHaarInv_64f);
}

}  // namespace
