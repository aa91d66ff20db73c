// Medians and sums of sliding windows.
#include <gtest/gtest.h>
#include <qvx/qvxs.h>

#include <cstring>

#include "reference/sort.h"
#include "support/blocks.h"
#include "support/values.h"

namespace {

using namespace tests;

template <class T_, auto kApart_, auto kInPlace_> struct Filter {
  using T = T_;
  static constexpr auto kApart = kApart_;
  static constexpr auto kInPlace = kInPlace_;
};
template <class F> class Median : public testing::Test {};
using Types = testing::Types<
    Filter<Qvx32f, qvxsFilterMedian_32f, qvxsFilterMedian_32f_I>, Filter<Qvx64f, qvxsFilterMedian_64f, qvxsFilterMedian_64f_I>,
    Filter<Qvx8u, qvxsFilterMedian_8u, qvxsFilterMedian_8u_I>, Filter<Qvx16s, qvxsFilterMedian_16s, qvxsFilterMedian_16s_I>,
    Filter<Qvx32s, qvxsFilterMedian_32s, qvxsFilterMedian_32s_I>>;
TYPED_TEST_SUITE(Median, Types);

template <class T> std::vector<T> filtered(const std::vector<T>& x, size_t mask) {
  std::vector<T> y(x.size()), window(mask);
  const auto last = static_cast<int64_t>(x.size()) - 1;
  for (int64_t n = 0; n <= last; ++n) {
    for (size_t k = 0; k < mask; ++k) {
      const int64_t at = n - static_cast<int64_t>(mask / 2) + static_cast<int64_t>(k);
      window[k] = x[static_cast<size_t>(std::clamp<int64_t>(at, 0, last))];
    }
    const auto middle = window.begin() + static_cast<int64_t>(mask / 2);
    std::nth_element(window.begin(), middle, window.end(), reference::isBefore<T>);
    y[static_cast<size_t>(n)] = *middle;
  }
  return y;
}

template <class F> void check(const std::vector<typename F::T>& x, int mask) {
  using T = typename F::T;
  const size_t n = x.size(), bytes = n * sizeof(T);
  const auto odd = static_cast<size_t>(mask - (mask % 2 == 0 ? 1 : 0));
  const std::vector<T> wanted = n <= 2 ? x : filtered(x, odd);
  Block source(bytes), destination(bytes);
  auto* src = reinterpret_cast<T*>(source.atEnd(bytes));
  auto* dst = reinterpret_cast<T*>(destination.atOffset(mask % 3, bytes));
  std::memcpy(src, x.data(), bytes);
  const QvxStatus status = mask % 2 == 0 ? qvxWarnEvenMask : qvxStatOk;
  ASSERT_EQ(F::kApart(src, dst, static_cast<int>(n), mask), status);
  const auto expectWanted = [&](const T* got, const char* what) {
    for (size_t i = 0; i < n; ++i) {
      ASSERT_EQ(std::memcmp(got + i, &wanted[i], sizeof(T)), 0)
          << what << ", " << n << " elements, mask " << mask << ", at " << i << ": " << +got[i] << ", not " << +wanted[i];
    }
  };
  expectWanted(dst, "apart");
  ASSERT_EQ(F::kInPlace(src, static_cast<int>(n), mask), status);
  expectWanted(src, "in place");
  ASSERT_TRUE(source.isIntact() && destination.isIntact());
}

template <class T> std::vector<T> drawn(size_t n, Random& random, int style) {
  std::vector<T> x(n);
  for (size_t i = 0; i < n; ++i) {
    const uint64_t bits = random();
    if (style == 0) x[i] = value<T>(random);                       // with all that is special
    if (style == 1) x[i] = static_cast<T>(bits % 3);               // few values
    if (style == 2) x[i] = static_cast<T>(i * 7 / 50 + bits % 5);  // nearly sorted
    if (style == 3) x[i] = static_cast<T>(static_cast<int64_t>(bits) >> 40);
    if constexpr (std::is_floating_point_v<T>) {
      if (style == 0 && bits % 9 == 0) x[i] = std::copysign(std::numeric_limits<T>::quiet_NaN(), bits % 2 == 0 ? T(1) : T(-1));
      if (style == 0 && bits % 9 == 1) x[i] = bits % 2 == 0 ? T(0) : T(-0.0);
      if (style == 0 && bits % 9 == 2) x[i] = std::numeric_limits<T>::infinity();
    }
  }
  return x;
}

TYPED_TEST(Median, OfShortVectorsAndAnyMask) {
  Random random(1);
  for (size_t n = 1; n <= 70; n += n < 20 ? 1 : 7) {
    for (int mask = 1; mask <= 40; mask += mask < 14 ? 1 : 5)
      check<TypeParam>(drawn<typename TypeParam::T>(n, random, mask % 4), mask);
    check<TypeParam>(drawn<typename TypeParam::T>(n, random, 3), 301);
  }
  const auto x = drawn<typename TypeParam::T>(5, random, 3);
  auto y = x, z = x;
  EXPECT_EQ(TypeParam::kInPlace(y.data(), 5, std::numeric_limits<int>::max()), qvxStatOk);  // as the longest mask that counts
  EXPECT_EQ(TypeParam::kInPlace(z.data(), 5, 9), qvxStatOk);
  EXPECT_EQ(y, z);
}

// Blocks, rounds, and the places where they meet.
TYPED_TEST(Median, OfLongVectors) {
  using T = typename TypeParam::T;
  Random random(2);
  for (int style = 0; style < 4; ++style) {
    for (const int mask : {3, 4, 5, 7, 9}) check<TypeParam>(drawn<T>(5000 + static_cast<size_t>(mask), random, style), mask);
    for (const int mask : {11, 31, 101, 255}) check<TypeParam>(drawn<T>(3000 + static_cast<size_t>(style), random, style), mask);
    check<TypeParam>(drawn<T>(2500, random, style), 1001);
  }
  check<TypeParam>(drawn<T>(40000, random, 3), 13);
  check<TypeParam>(drawn<T>(9000, random, 0), 601);
}

// Medians of three test a block at a time for elements that minima and maxima get wrong: one of them, at any index.
TYPED_TEST(Median, OfThreeWithOneSpecialElement) {
  using T = typename TypeParam::T;
  Random random(4);
  for (size_t n = 3; n <= 140; ++n) {
    check<TypeParam>(drawn<T>(n, random, 3), 3);
    if constexpr (std::is_floating_point_v<T>) {
      for (size_t at = 0; at < n; ++at) {
        auto x = drawn<T>(n, random, 1);
        x[at] =
            (n + at) % 3 == 0 ? T(-0.0) : std::copysign(std::numeric_limits<T>::quiet_NaN(), (n + at) % 3 == 1 ? T(1) : T(-1));
        check<TypeParam>(x, 3);
      }
    }
  }
}

template <class T> void checkSums(QvxStatus (*function)(const T*, Qvx32f*, int, int), int len, int mask, T least) {
  Random random(3);
  std::vector<T> x(static_cast<size_t>(len + mask - 1), least);
  if (least == 0) {
    for (T& v : x) v = value<T>(random);
  }
  const size_t bytes = x.size() * sizeof(T), resultBytes = static_cast<size_t>(len) * sizeof(Qvx32f);
  Block source(bytes), destination(resultBytes);
  auto* src = reinterpret_cast<T*>(source.atEnd(bytes));
  std::memcpy(src, x.data(), bytes);
  auto* dst = reinterpret_cast<Qvx32f*>(destination.atEnd(resultBytes));
  ASSERT_EQ(function(src, dst, len, mask), qvxStatOk);
  int64_t sum = 0;
  for (int i = 0; i < mask - 1; ++i) sum += x[static_cast<size_t>(i)];
  for (int n = 0; n < len; ++n) {
    sum += x[static_cast<size_t>(n + mask - 1)];
    ASSERT_EQ(dst[n], static_cast<Qvx32f>(sum)) << "mask " << mask << ", at " << n << " of " << len;
    sum -= x[static_cast<size_t>(n)];
  }
  ASSERT_TRUE(destination.isIntact());
}

// Exact however long the window is: sums of 32 bits would overflow, floats drift.
TEST(SumWindow, IsRoundedOnce) {
  for (const int mask : {1, 2, 3, 7, 16, 33, 1000}) {
    for (const int len : {1, 2, 15, 16, 17, 100, 1025, 5000}) {
      checkSums<Qvx8u>(qvxsSumWindow_8u32f, len, mask, 0);
      checkSums<Qvx16s>(qvxsSumWindow_16s32f, len, mask, 0);
    }
  }
  checkSums<Qvx16s>(qvxsSumWindow_16s32f, 300, 65537, -32768);
  checkSums<Qvx16s>(qvxsSumWindow_16s32f, 3000, 70001, 0);
  checkSums<Qvx8u>(qvxsSumWindow_8u32f, 300, 8500000, 255);
}

}  // namespace
