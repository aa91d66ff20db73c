// Sorts of values: the same elements, in the order of their keys.
#include <gtest/gtest.h>
#include <immintrin.h>
#include <qvx/qvxs.h>

#include <numeric>

#include "sort/vectors.h"
#include "support/blocks.h"

namespace {

using tests::Pattern;
using tests::Random;

template <class T> using Sort = QvxStatus (*)(T*, int);
template <class T> using RadixSort = QvxStatus (*)(T*, T*, int);

// Every length up to two of the largest networks, then some around what is buffered, sampled and counted.
std::vector<size_t> lengths() {
  std::vector<size_t> all;
  for (size_t n = 1; n <= 300; ++n) all.push_back(n);
  for (const size_t n :
       {511, 512, 513, 777, 1023, 1024, 1025, 2047, 2048, 2049, 4095, 4097, 8191, 8192, 8193, 16383, 16385, 20011, 70001})
    all.push_back(n);
  return all;
}

template <class T, class Call> void expectSorted(bool isDescending, Call call) {
  Random random(tests::seed());
  tests::Block block(70100 * sizeof(T));
  for (const size_t n : lengths()) {
    for (const Pattern pattern : tests::kPatterns) {
      if (pattern == Pattern::kKiller && n > 3000) continue;
      if (n < 300 && (n + static_cast<size_t>(pattern)) % 3 != 0) continue;
      const std::vector<T> x = tests::vectorOf<T>(pattern, n, random);
      std::vector<T> expected = x;
      std::sort(expected.begin(), expected.end(),
                [=](T a, T b) { return isDescending ? reference::isBefore(b, a) : reference::isBefore(a, b); });
      const size_t bytes = n * sizeof(T);
      auto* p = n % 2 == 0 ? block.atEnd(bytes) : block.atOffset(random() % 64, bytes);
      std::memcpy(p, x.data(), bytes);
      ASSERT_EQ(call(reinterpret_cast<T*>(p), static_cast<int>(n)), qvxStatOk);
      ASSERT_EQ(std::memcmp(p, expected.data(), bytes), 0) << "length " << n << ", pattern " << static_cast<int>(pattern);
      ASSERT_TRUE(block.isIntact()) << "length " << n;
    }
  }
}

template <class T> void expectSorts(Sort<T> ascend, Sort<T> descend) {
  expectSorted<T>(false, ascend);
  expectSorted<T>(true, descend);
}

template <class T> void expectRadixSorts(RadixSort<T> ascend, RadixSort<T> descend) {
  for (const bool isDescending : {false, true}) {
    expectSorted<T>(isDescending, [&](T* x, int n) {
      std::vector<T> tmp(static_cast<size_t>(n));
      return (isDescending ? descend : ascend)(x, tmp.data(), n);
    });
  }
}

TEST(Sort, OfBytes) { expectSorts(qvxsSortAscend_8u_I, qvxsSortDescend_8u_I); }
TEST(Sort, Of16Bits) {
  expectSorts(qvxsSortAscend_16s_I, qvxsSortDescend_16s_I);
  expectSorts(qvxsSortAscend_16u_I, qvxsSortDescend_16u_I);
}
TEST(Sort, Of32BitIntegers) { expectSorts(qvxsSortAscend_32s_I, qvxsSortDescend_32s_I); }
TEST(Sort, OfFloats) {
  expectSorts(qvxsSortAscend_32f_I, qvxsSortDescend_32f_I);
  expectSorts(qvxsSortAscend_64f_I, qvxsSortDescend_64f_I);
}

// In order but for two neighbours, wherever they are.
template <class T> void expectOneExchangeSeen(Sort<T> sort) {
  for (size_t n = 2; n <= 70; ++n) {
    std::vector<T> ordered(n);
    std::iota(ordered.begin(), ordered.end(), T(1));
    for (size_t i = 1; i < n; ++i) {
      auto x = ordered;
      std::swap(x[i - 1], x[i]);
      sort(x.data(), static_cast<int>(n));
      ASSERT_EQ(x, ordered) << n << " elements, exchanged before " << i;
    }
  }
}
TEST(Sort, SeesOneExchange) {
  expectOneExchangeSeen<Qvx8u>(qvxsSortAscend_8u_I);
  expectOneExchangeSeen<Qvx16s>(qvxsSortAscend_16s_I);
  expectOneExchangeSeen<Qvx32f>(qvxsSortAscend_32f_I);
  expectOneExchangeSeen<Qvx64f>(qvxsSortAscend_64f_I);
}

// Ordinary numbers with few among them that a minimum of floats does not tell apart or loses, with subnormal numbers and without.
template <class T> void expectRareOnesKept(Sort<T> sort, bool isDescending) {
  using Limits = std::numeric_limits<T>;
  Random random(tests::seed());
  const T rare[] = {T(0),
                    -T(0),
                    Limits::denorm_min(),
                    -Limits::denorm_min(),
                    Limits::min() - Limits::denorm_min(),
                    Limits::min(),
                    Limits::infinity(),
                    -Limits::infinity(),
                    Limits::quiet_NaN(),
                    -Limits::quiet_NaN()};
  for (const bool flushes : {false, true}) {
    for (int n = 1; n < 700; n += n < 20 ? 1 : 13) {
      for (const size_t kinds : {size_t{1}, size_t{2}, std::size(rare)}) {
        std::vector<T> x(static_cast<size_t>(n));
        for (T& v : x) {
          v = static_cast<T>(static_cast<int64_t>(random() >> 3)) * (random() % 2 == 0 ? 1 : -1);
          if (random() % 32 == 0) v = rare[random() % kinds];
        }
        auto expected = x;
        std::sort(expected.begin(), expected.end(),
                  [=](T a, T b) { return isDescending ? reference::isBefore(b, a) : reference::isBefore(a, b); });
        const unsigned control = _mm_getcsr();
        if (flushes) _mm_setcsr(control | 0x8040);
        sort(x.data(), n);
        _mm_setcsr(control);
        ASSERT_EQ(std::memcmp(x.data(), expected.data(), x.size() * sizeof(T)), 0) << n << " elements, flushes " << flushes;
      }
    }
  }
}
TEST(Sort, KeepsZerosAndSubnormalNumbers) {
  expectRareOnesKept<Qvx32f>(qvxsSortAscend_32f_I, false);
  expectRareOnesKept<Qvx64f>(qvxsSortAscend_64f_I, false);
  expectRareOnesKept<Qvx64f>(qvxsSortDescend_64f_I, true);
}

// More equal elements than 16 bits count in all lanes of a vector.
TEST(Sort, CountsMillions) {
  Random random(tests::seed());
  std::vector<Qvx16s> x(5000011);
  for (Qvx16s& v : x) v = static_cast<Qvx16s>(random() % 64 == 0 ? random() : random() % 2 * 1000);
  std::vector<Qvx16s> expected = x;
  std::sort(expected.begin(), expected.end());
  ASSERT_EQ(qvxsSortAscend_16s_I(x.data(), static_cast<int>(x.size())), qvxStatOk);
  EXPECT_TRUE(x == expected);
}

TEST(SortRadix, OfAllTypes) {
  expectRadixSorts(qvxsSortRadixAscend_8u_I, qvxsSortRadixDescend_8u_I);
  expectRadixSorts(qvxsSortRadixAscend_16s_I, qvxsSortRadixDescend_16s_I);
  expectRadixSorts(qvxsSortRadixAscend_16u_I, qvxsSortRadixDescend_16u_I);
  expectRadixSorts(qvxsSortRadixAscend_32s_I, qvxsSortRadixDescend_32s_I);
  expectRadixSorts(qvxsSortRadixAscend_32u_I, qvxsSortRadixDescend_32u_I);
  expectRadixSorts(qvxsSortRadixAscend_32f_I, qvxsSortRadixDescend_32f_I);
  expectRadixSorts(qvxsSortRadixAscend_64f_I, qvxsSortRadixDescend_64f_I);
}

}  // namespace
