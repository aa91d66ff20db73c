// Sorts that return the old indices of the elements.
#include <gtest/gtest.h>
#include <immintrin.h>
#include <qvx/qvxcore.h>
#include <qvx/qvxs.h>

#include <chrono>
#include <cmath>

#include "sort/killer.h"
#include "sort/vectors.h"
#include "support/blocks.h"

namespace {

using tests::Pattern;
using tests::Random;

template <class T> using SortIndex = QvxStatus (*)(T*, Qvx32s*, int);
template <class T> using RadixIndex = QvxStatus (*)(const T*, int, Qvx32s*, Qvx32s*, int);

template <class T> struct Sorted {
  std::vector<T> x;
  std::vector<Qvx32s> places;
};

template <class T> Sorted<T> sorted(SortIndex<T> function, std::vector<T> x) {
  std::vector<Qvx32s> places(x.size(), -1);
  EXPECT_EQ(function(x.data(), places.data(), static_cast<int>(x.size())), qvxStatOk);
  return {std::move(x), std::move(places)};
}

template <class T> bool hasNaN(const std::vector<T>& x) {
  return std::any_of(x.begin(), x.end(), [](T v) { return v != v; });
}

// Each element beside its place, and each place once.
template <class T> void expectPlaces(const Sorted<T>& s, const std::vector<T>& x) {
  std::vector<bool> seen(x.size());
  for (size_t i = 0; i < x.size(); ++i) {
    const auto place = static_cast<size_t>(s.places[i]);
    ASSERT_LT(place, x.size());
    ASSERT_FALSE(seen[place]);
    seen[place] = true;
    ASSERT_EQ(std::memcmp(&s.x[i], &x[place], sizeof(T)), 0);
  }
}

template <class T> void expectDocumentedOrder(SortIndex<T> function, bool isDescending) {
  Random random(tests::seed());
  std::vector<size_t> lengths;
  for (size_t n = 1; n < 150; ++n) lengths.push_back(n);
  for (const size_t n : {200, 255, 256, 257, 300, 777, 1023, 1024, 1025, 2000, 5000, 65536, 65537}) lengths.push_back(n);
  for (const size_t n : lengths) {
    for (const Pattern pattern : tests::kPatterns) {
      if (n > 30000 && pattern != Pattern::kRandom && pattern != Pattern::kWide && pattern != Pattern::kSorted) continue;
      const std::vector<T> x = tests::vectorOf<T>(pattern, n, random);
      SCOPED_TRACE(testing::Message() << "length " << n << ", pattern " << static_cast<int>(pattern));
      const Sorted<T> s = sorted(function, x);
      expectPlaces(s, x);
      if (hasNaN(x) || testing::Test::HasFailure()) continue;
      std::vector<std::pair<T, Qvx32s>> expected(n);
      for (size_t i = 0; i < n; ++i) expected[i] = {x[i], static_cast<Qvx32s>(i)};
      reference::quicksort(expected, 0, static_cast<int>(n) - 1,
                           [=](const auto& a, const auto& b) { return isDescending ? a.first < b.first : a.first > b.first; });
      for (size_t i = 0; i < n; ++i) ASSERT_EQ(s.places[i], expected[i].second) << "in place " << i;
    }
  }
}

template <class T> void expectDocumentedOrder(SortIndex<T> ascend, SortIndex<T> descend) {
  expectDocumentedOrder(ascend, false);
  expectDocumentedOrder(descend, true);
}

TEST(SortIndex, LeavesEqualElementsAsTheDocumentedStepsDo) {
  expectDocumentedOrder(qvxsSortIndexAscend_8u_I, qvxsSortIndexDescend_8u_I);
  expectDocumentedOrder(qvxsSortIndexAscend_16s_I, qvxsSortIndexDescend_16s_I);
  expectDocumentedOrder(qvxsSortIndexAscend_16u_I, qvxsSortIndexDescend_16u_I);
  expectDocumentedOrder(qvxsSortIndexAscend_32s_I, qvxsSortIndexDescend_32s_I);
  expectDocumentedOrder(qvxsSortIndexAscend_32f_I, qvxsSortIndexDescend_32f_I);
  expectDocumentedOrder(qvxsSortIndexAscend_64f_I, qvxsSortIndexDescend_64f_I);
}

TEST(SortIndex, KeepsElementsBesideTheirPlacesWhateverNaNDoes) {
  Random random(tests::seed());
  const auto expect = [&](auto ascend, auto descend, auto zero) {
    using T = decltype(zero);
    for (size_t n = 1; n < 3000; n += n / 8 + 1) {
      for (const size_t every : {1, 2, 7, 50}) {
        std::vector<T> x = tests::values<T>(n, random);
        for (T& v : x) v = random() % every == 0 ? std::numeric_limits<T>::quiet_NaN() : v;
        expectPlaces(sorted<T>(ascend, x), x);
        expectPlaces(sorted<T>(descend, x), x);
      }
      // A NaN at the end of a vector whose other elements are all below it.
      std::vector<T> x(n, T(1));
      x.back() = std::numeric_limits<T>::quiet_NaN();
      expectPlaces(sorted<T>(ascend, x), x);
      std::reverse(x.begin(), x.end());
      expectPlaces(sorted<T>(descend, x), x);
    }
  };
  expect(qvxsSortIndexAscend_32f_I, qvxsSortIndexDescend_32f_I, Qvx32f());
  expect(qvxsSortIndexAscend_64f_I, qvxsSortIndexDescend_64f_I, Qvx64f());
}

// One element far off, so that the others share all bits but their last.
TEST(SortIndex, TellsElementsThatDifferInTheirLastBits) {
  Random random(tests::seed());
  const auto expect = [&](auto function, auto least) {
    using T = decltype(least);
    for (size_t n = 2; n < 1100; n += n / 16 + 1) {
      std::vector<T> x(n, least);
      for (size_t i = 1; i < n; ++i) {
        if constexpr (std::is_integral_v<T>) x[i] = static_cast<T>(i);
        else x[i] = std::nextafter(i == 1 ? T(1) : x[i - 1], T(2));
      }
      std::shuffle(x.begin(), x.end(), random);
      const Sorted<T> s = sorted<T>(function, x);
      expectPlaces(s, x);
      ASSERT_TRUE(std::is_sorted(s.x.begin(), s.x.end())) << "length " << n;
      // Only two that do, the greater one first, a few places from the end of the order.
      for (size_t i = 1; i < n; ++i) x[i] = static_cast<T>(i * 4096);
      x[0] = least;
      const size_t lesser = n - std::min<size_t>(n, 2 + random() % 20);
      if (lesser == 0) continue;
      if constexpr (std::is_integral_v<T>) x[lesser + 1] = x[lesser] + 1;
      else x[lesser + 1] = std::nextafter(x[lesser], std::numeric_limits<T>::max());
      std::shuffle(x.begin(), x.begin() + static_cast<ptrdiff_t>(lesser), random);
      std::reverse(x.begin(), x.end());
      const Sorted<T> t = sorted<T>(function, x);
      expectPlaces(t, x);
      ASSERT_TRUE(std::is_sorted(t.x.begin(), t.x.end())) << "length " << n << ", " << n - lesser << " from the end";
    }
  };
  expect(qvxsSortIndexAscend_32s_I, std::numeric_limits<Qvx32s>::min());
  expect(qvxsSortIndexAscend_32f_I, std::numeric_limits<Qvx32f>::lowest());
  expect(qvxsSortIndexAscend_64f_I, std::numeric_limits<Qvx64f>::lowest());
}

// Among equal elements, which make the difference between two ways of sorting.
TEST(SortIndex, TellsSubnormalNumbersFromZerosWhereTheCallerFlushesThem) {
  Random random(tests::seed());
  const auto expect = [&](auto function, auto least) {
    using T = decltype(least);
    for (size_t n = 2; n < 600; n += n / 8 + 1) {
      std::vector<T> x(n);
      for (T& v : x) v = static_cast<T>(static_cast<int64_t>(random() % 9) - 4) * (random() % 8 == 0 ? T(1) : least);
      const Sorted<T> usual = sorted<T>(function, x);
      const unsigned control = _mm_getcsr();
      _mm_setcsr(control | 0x8040);
      const Sorted<T> flushed = sorted<T>(function, x);
      const unsigned after = _mm_getcsr();
      _mm_setcsr(control);
      EXPECT_EQ(after | _MM_EXCEPT_MASK, control | 0x8040 | _MM_EXCEPT_MASK);
      ASSERT_EQ(flushed.places, usual.places) << "length " << n;
      ASSERT_EQ(std::memcmp(flushed.x.data(), usual.x.data(), n * sizeof(T)), 0) << "length " << n;
    }
  };
  expect(qvxsSortIndexAscend_32f_I, std::numeric_limits<Qvx32f>::denorm_min());
  expect(qvxsSortIndexDescend_32f_I, std::numeric_limits<Qvx32f>::denorm_min());
  expect(qvxsSortIndexAscend_64f_I, std::numeric_limits<Qvx64f>::denorm_min());
}

// The least time of several runs, in seconds.
template <class T> double secondsOf(SortIndex<T> function, const std::vector<T>& x) {
  double least = 1e9;
  for (int i = 0; i < 3; ++i) {
    std::vector<T> data = x;
    std::vector<Qvx32s> places(x.size());
    const auto start = std::chrono::steady_clock::now();
    function(data.data(), places.data(), static_cast<int>(x.size()));
    least = std::min(least, std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count());
  }
  return least;
}

// The steps that the header documents would take 150 times as long as on random elements.
TEST(SortIndex, IsQuickOnDifferentElementsInAnyOrder) {
  constexpr int kLength = 30000;
  const std::vector<int> killer = reference::killerOfQuicksort(kLength);
  std::vector<int> random = killer;
  std::shuffle(random.begin(), random.end(), Random(tests::seed()));
  const auto expect = [&](auto function, auto zero) {
    using T = decltype(zero);
    const double usual = secondsOf<T>(function, std::vector<T>(random.begin(), random.end()));
    EXPECT_LT(secondsOf<T>(function, std::vector<T>(killer.begin(), killer.end())), 20 * usual);
  };
  expect(qvxsSortIndexAscend_32s_I, Qvx32s());
  expect(qvxsSortIndexAscend_32f_I, Qvx32f());
  expect(qvxsSortIndexAscend_64f_I, Qvx64f());
  expect(qvxsSortIndexAscend_16u_I, Qvx16u());
}

// From some level on pivots are not medians. Without that, SSSE3 would take 50 to 140 times as long as on random elements.
TEST(SortIndex, IsQuickWhereMediansAreBadPivots) {
  const auto expect = [](auto function, auto element, bool hasNumbers) {
    using T = decltype(element);
    using K = std::conditional_t<sizeof(T) == 8, int64_t, int32_t>;
    const std::vector<K> killer = tests::killerOfMedians<K>(30000, hasNumbers);
    const std::vector<T> x(killer.begin(), killer.end());
    std::vector<T> random = x;
    std::shuffle(random.begin(), random.end(), Random(tests::seed()));
    const std::vector<T> inOrder = sorted<T>(function, x).x;
    EXPECT_TRUE(std::is_sorted(inOrder.begin(), inOrder.end()));
    EXPECT_LT(secondsOf<T>(function, x), 20 * secondsOf<T>(function, random));
  };
  qvxSetNumThreads(1);
  expect([](Qvx32s* x, Qvx32s*, int n) { return qvxsSortAscend_32s_I(x, n); }, Qvx32s(), false);
  expect([](Qvx64f* x, Qvx32s*, int n) { return qvxsSortAscend_64f_I(x, n); }, Qvx64f(), false);
  expect(qvxsSortIndexAscend_32s_I, Qvx32s(), true);
  expect(qvxsSortIndexAscend_64f_I, Qvx64f(), true);
  qvxSetNumThreads(0);
}

// ---- stable ones

template <class T> void expectStable(RadixIndex<T> function, bool isDescending) {
  Random random(tests::seed());
  for (size_t n = 1; n < 30000; n += n < 300 ? 1 : n) {
    for (const Pattern pattern : tests::kPatterns) {
      if (pattern == Pattern::kKiller || (n < 300 && (n + static_cast<size_t>(pattern)) % 3 != 0)) continue;
      const std::vector<T> x = tests::vectorOf<T>(pattern, n, random);
      const std::vector<Qvx32s> expected = reference::stableOrder(x, isDescending);
      constexpr int kSize = sizeof(T);
      for (const int stride : {kSize, kSize + 1, 3 * kSize, -kSize, -2 * kSize, -1}) {
        if (sizeof(T) == 2 && stride < 0) continue;
        if (stride == -1 && sizeof(T) > 1) continue;  // elements that share bytes; a test of their own
        const auto step = static_cast<size_t>(std::abs(stride));
        const size_t bytes = (n - 1) * step + sizeof(T);
        tests::Block block(bytes);
        uint8_t* const first = block.atEnd(bytes);
        const auto at = [&](size_t i) { return first + (stride < 0 ? n - 1 - i : i) * step; };
        for (size_t i = 0; i < n; ++i) std::memcpy(at(i), &x[i], sizeof(T));
        std::vector<Qvx32s> order(n), tmp(n);
        ASSERT_EQ(function(reinterpret_cast<const T*>(at(0)), stride, order.data(), tmp.data(), static_cast<int>(n)), qvxStatOk);
        ASSERT_EQ(order, expected) << "length " << n << ", pattern " << static_cast<int>(pattern) << ", stride " << stride;
      }
    }
  }
}

template <class T> void expectStable(RadixIndex<T> ascend, RadixIndex<T> descend) {
  expectStable(ascend, false);
  expectStable(descend, true);
}

TEST(SortRadixIndex, IsStableAtAnyStride) {
  expectStable(qvxsSortRadixIndexAscend_8u, qvxsSortRadixIndexDescend_8u);
  expectStable(qvxsSortRadixIndexAscend_16s, qvxsSortRadixIndexDescend_16s);
  expectStable(qvxsSortRadixIndexAscend_16u, qvxsSortRadixIndexDescend_16u);
  expectStable(qvxsSortRadixIndexAscend_32s, qvxsSortRadixIndexDescend_32s);
  expectStable(qvxsSortRadixIndexAscend_32u, qvxsSortRadixIndexDescend_32u);
  expectStable(qvxsSortRadixIndexAscend_32f, qvxsSortRadixIndexDescend_32f);
}

TEST(SortRadixIndex, TakesElementsThatShareBytes) {
  const uint8_t bytes[] = {1, 0, 0, 0, 2, 0, 0, 0};  // the integers at 4, 3, 2, 1, 0: 2, 2^9, 2^17, 2^25, 1
  Qvx32s order[5], tmp[5], four;
  std::memcpy(&four, bytes + 4, 4);
  ASSERT_EQ(four, 2);
  ASSERT_EQ(qvxsSortRadixIndexDescend_32s(reinterpret_cast<const Qvx32s*>(bytes + 4), -1, order, tmp, 5), qvxStatOk);
  EXPECT_EQ(std::vector<Qvx32s>(order, order + 5), (std::vector<Qvx32s>{3, 2, 1, 0, 4}));
}

}  // namespace
