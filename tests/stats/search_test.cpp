// Orders, counts and nearest entries.
#include <gtest/gtest.h>
#include <immintrin.h>
#include <qvx/qvxs.h>

#include <algorithm>
#include <bit>
#include <climits>
#include <cmath>

#include "reference/extrema.h"
#include "support/placements.h"
#include "support/repeated.h"

namespace {

using tests::Placements;
using tests::Random;

// ---- orders

struct Order {
  int order;
  QvxStatus status;
};

// The digits of the largest finite magnitude: frexp's exponent, but for subnormal numbers.
template <class T> Order expectedOrder(const T* src, size_t n) {
  long double most = 0;
  QvxStatus status = qvxStatOk;
  for (size_t i = 0; i < n; ++i) {
    if (std::isfinite(static_cast<long double>(src[i]))) most = std::max(most, std::abs(static_cast<long double>(src[i])));
    else status = qvxWarnNotFinite;
  }
  if (most == 0) return {0, status};
  int exponent = 0;
  std::frexp(most, &exponent);
  if (std::is_floating_point_v<T>) exponent = std::max(exponent, std::numeric_limits<T>::min_exponent - 1);
  return {exponent, status};
}

template <class T> void expectOrders(QvxStatus (*function)(const T*, int, int*), const std::vector<T>& data) {
  Placements<T>(data.size()).run(data, [&](size_t n, const T* src) {
    const Order expected = expectedOrder(src, n);
    int order = -9999;
    ASSERT_EQ(function(src, static_cast<int>(n), &order), expected.status);
    ASSERT_EQ(order, expected.order);
  });
}

// Every power of two and its neighbours, alone at either end of a vector of smaller magnitudes.
template <class T> void expectOrdersOfPowers(QvxStatus (*function)(const T*, int, int*)) {
  for (int digit = 0; digit < std::numeric_limits<T>::digits; ++digit) {
    const auto power = static_cast<int64_t>(uint64_t{1} << digit);
    for (const int64_t v : {power, power - 1, -power, -power - 1}) {
      for (const size_t at : {0, 40}) {
        std::vector<T> data(41, static_cast<T>(v / 2));
        data[at] = static_cast<T>(v);
        expectOrders(function, data);
      }
    }
  }
  Random random(tests::seed());
  expectOrders(function, tests::values<T>(3000, random));
}

template <class T> void expectOrdersOfFloats(QvxStatus (*function)(const T*, int, int*)) {
  using Limits = std::numeric_limits<T>;
  Random random(tests::seed());
  const auto some = [&](auto each) {
    std::vector<T> v(1000);
    for (T& x : v) x = each();
    expectOrders(function, v);
  };
  for (const T x : {T(0), -T(0), T(1), T(0.5), T(-0.75), Limits::max(), Limits::lowest(), Limits::min(), Limits::denorm_min(),
                    -Limits::denorm_min(), Limits::min() - Limits::denorm_min(), std::ldexp(T(1), Limits::min_exponent - 20),
                    Limits::infinity(), -Limits::infinity(), Limits::quiet_NaN(), Limits::signaling_NaN()}) {
    some([&] { return x; });
    some([&] { return random() % 20 == 0 ? x : T(0); });
    some([&] { return random() % 20 == 0 ? x : T(random() % 3) * Limits::denorm_min(); });
    some([&] { return random() % 20 == 0 ? x : std::ldexp(T(random() % 1000), -static_cast<int>(random() % 100)); });
  }
}

TEST(MaxOrder, IsTheDigitsOfTheLargestMagnitude) {
  expectOrdersOfPowers(qvxsMaxOrder_16s);
  expectOrdersOfPowers(qvxsMaxOrder_32s);
  expectOrdersOfFloats(qvxsMaxOrder_32f);
  expectOrdersOfFloats(qvxsMaxOrder_64f);
}

TEST(MaxOrder, OfSubnormalNumbersIsTheSameWhereTheCallerFlushesThem) {
  const auto expect = [](auto function, auto least) {
    using T = decltype(least);
    std::vector<T> v(100, T(0));
    v[70] = least;
    int order = 0;
    const unsigned control = _mm_getcsr();
    _mm_setcsr(control | 0x8040);
    const QvxStatus status = function(v.data(), 100, &order);
    _mm_setcsr(control);
    EXPECT_EQ(status, qvxStatOk);
    EXPECT_EQ(order, std::numeric_limits<T>::min_exponent - 1);
  };
  expect(qvxsMaxOrder_32f, std::numeric_limits<Qvx32f>::denorm_min());
  expect(qvxsMaxOrder_64f, std::numeric_limits<Qvx64f>::denorm_min());
}

// ---- counts

TEST(CountInRange, LeavesOutItsBounds) {
  Random random(tests::seed());
  const auto data = tests::values<Qvx32s>(5000, random);
  const std::vector<Qvx32s> bounds = {INT_MIN, INT_MIN + 1, -1000, -1, 0, 1, 2, 30000, INT_MAX - 1, INT_MAX};
  for (const Qvx32s lower : bounds) {
    for (const Qvx32s upper : bounds) {
      Placements<Qvx32s>(data.size()).run(data, [&](size_t n, const Qvx32s* src) {
        const auto expected = std::count_if(src, src + n, [=](Qvx32s v) { return v > lower && v < upper; });
        int count = -1;
        ASSERT_EQ(qvxsCountInRange_32s(src, static_cast<int>(n), &count, lower, upper), qvxStatOk);
        ASSERT_EQ(count, expected) << "between " << lower << " and " << upper;
      });
    }
  }
}

TEST(CountInRange, HoldsAtTheGreatestLength) {
  tests::Repeated<Qvx32s> all(INT_MAX, 5);
  int count = -1;
  ASSERT_EQ(qvxsCountInRange_32s(all.data(), INT_MAX, &count, 4, 6), qvxStatOk);
  EXPECT_EQ(count, INT_MAX);
  all.last()[0] = 6;
  ASSERT_EQ(qvxsCountInRange_32s(all.data(), INT_MAX, &count, 4, 6), qvxStatOk);
  EXPECT_EQ(count, INT_MAX - 1);
}

// ---- nearest entries

// Which of equal entries a value has: the first up to the first entry, the last from the last entry on; between, the last if it
// is at or below the value, else the first.
int indexOf(Qvx16u entry, const std::vector<Qvx16u>& entries, Qvx16u v) {
  const auto [first, end] = std::equal_range(entries.begin(), entries.end(), entry);
  const bool isLast = v > entries.front() && (v >= entries.back() || entry <= v);
  return static_cast<int>((isLast ? end - 1 : first) - entries.begin());
}

void expectNearest(const std::vector<Qvx16u>& entries, const std::vector<Qvx16u>& values) {
  const int n = static_cast<int>(entries.size());
  Placements<Qvx16u>(values.size()).run(values, [&](size_t len, const Qvx16u* src) {
    std::vector<Qvx16u> out(len);
    std::vector<int> index(len);
    ASSERT_EQ(qvxsFindNearest_16u(src, out.data(), index.data(), static_cast<int>(len), entries.data(), n), qvxStatOk);
    for (size_t i = 0; i < len; ++i) {
      ASSERT_EQ(out[i], reference::nearest(entries, src[i])) << "value " << src[i] << " in " << n << " entries";
      ASSERT_EQ(index[i], indexOf(out[i], entries, src[i])) << "value " << src[i] << " in " << n << " entries";
    }
  });
  for (size_t i = 0; i < values.size(); i += 5) {
    Qvx16u out = 0;
    int index = -1;
    ASSERT_EQ(qvxsFindNearestOne_16u(values[i], &out, &index, entries.data(), n), qvxStatOk);
    ASSERT_EQ(out, reference::nearest(entries, values[i]));
    ASSERT_EQ(index, indexOf(out, entries, values[i]));
  }
}

TEST(FindNearest, TakesTheLowerOfATie) {
  Random random(tests::seed());
  for (const size_t n : {1, 2, 3, 4, 5, 6, 7, 8, 9, 15, 16, 17, 31, 33, 100, 1000, 65536, 65537, 65538, 150000}) {
    for (const int range : {20, 3000, 65536}) {
      std::vector<Qvx16u> entries(n);
      for (Qvx16u& e : entries)
        e = static_cast<Qvx16u>((65536 - range) / 2 + static_cast<int>(random() % static_cast<uint64_t>(range)));
      std::sort(entries.begin(), entries.end());
      std::vector<Qvx16u> values = tests::values<Qvx16u>(2000, random);
      for (size_t i = 0; i < values.size(); i += 2) {  // entries, and half the way between them
        values[i] = static_cast<Qvx16u>((entries[random() % n] + entries[random() % n]) / 2);
        if (i % 4 == 0) values[i] = static_cast<Qvx16u>(entries[random() % n] + random() % 5 - 2);
      }
      expectNearest(entries, values);
    }
  }
}

}  // namespace
