// Extreme values and their places: the scan with a strict comparison, whatever the length, the alignment and the variant.
#include <gtest/gtest.h>
#include <qvx/qvxs.h>

#include <cmath>
#include <cstring>

#include "reference/extrema.h"
#include "support/elementwise.h"
#include "support/placements.h"
#include "support/repeated.h"

namespace {

using reference::element;
using reference::Found;
using reference::saturatedMagnitude;
using tests::Placements;
using tests::Random;
using tests::sameBits;
using tests::show;

template <class T> using Value = QvxStatus (*)(const T*, int, T*);
template <class T> using Place = QvxStatus (*)(const T*, int, T*, int*);
template <class T> using Values = QvxStatus (*)(const T*, int, T*, T*);
template <class T> using Places = QvxStatus (*)(const T*, int, T*, int*, T*, int*);

constexpr size_t kMost = 20000;  // several blocks of 4 KiB, and a part of one

template <class T> constexpr T kNaN = std::numeric_limits<T>::quiet_NaN();
template <class T> constexpr T kInfinity = std::numeric_limits<T>::infinity();

// Everything; then what is full of ties, of one sign, and of numbers that are none.
template <class T> std::vector<std::vector<T>> dataOf() {
  Random random(tests::seed());
  std::vector<std::vector<T>> all = {tests::values<T>(kMost, random)};
  const auto make = [&](auto each) {
    std::vector<T> v(kMost);
    for (T& x : v) {
      if constexpr (std::is_integral_v<T>) x = static_cast<T>(static_cast<int64_t>(each()));
      else x = static_cast<T>(each());
    }
    all.push_back(v);
    return v;
  };
  make([&] { return random() % 3 + 5; });
  make([&] { return -static_cast<double>(random() % 100) - 1; });
  if constexpr (std::is_signed_v<T>) {
    make([&] { return random() % 40 == 0 ? std::numeric_limits<T>::min() : std::numeric_limits<T>::max() - T(random() % 2); });
    make([&] { return random() % 2 == 0 ? std::numeric_limits<T>::min() : std::numeric_limits<T>::lowest(); });
  }
  if constexpr (std::is_floating_point_v<T>) {
    const auto zero = [&] { return random() % 2 == 0 ? T(0) : -T(0); };
    make(zero);
    make([&] { return random() % 4 == 0 ? zero() : -T(random() % 5); });
    make([&] { return random() % 4 == 0 ? zero() : T(random() % 5); });
    make([&] { return random() % 3 == 0 ? kNaN<T> : T(random() % 1000); });
    auto v = make([&] { return random() % 50 == 0 ? (random() % 2 == 0 ? kInfinity<T> : -kInfinity<T>) : T(1); });
    v[0] = kNaN<T>;
    all.push_back(v);
    v.assign(kMost, kNaN<T>);
    v[0] = -kInfinity<T>;
    all.push_back(v);
  }
  return all;
}

template <class T> void expectValue(T result, T expected) {
  ASSERT_TRUE(sameBits(&result, &expected, 1)) << show(result) << ", not " << show(expected);
}

template <bool kLess, class T, class Key> void expectExtremes(Value<T> value, Place<T> place, Key key) {
  for (const auto& data : dataOf<T>()) {
    Placements<T>(data.size()).run(data, [&](size_t n, const T* src) {
      const Found<T> expected = reference::extreme<kLess>(src, n, key);
      T alone{};
      T without{};
      T with{};
      int index = -1;
      ASSERT_EQ(value(src, static_cast<int>(n), &alone), qvxStatOk);
      ASSERT_EQ(place(src, static_cast<int>(n), &without, nullptr), qvxStatOk);
      ASSERT_EQ(place(src, static_cast<int>(n), &with, &index), qvxStatOk);
      expectValue(alone, expected.value);
      expectValue(without, expected.value);
      expectValue(with, expected.value);
      ASSERT_EQ(index, expected.index);
    });
  }
}

template <class T> void expectBoth(Values<T> values, Places<T> places) {
  for (const auto& data : dataOf<T>()) {
    Placements<T>(data.size()).run(data, [&](size_t n, const T* src) {
      const T least = reference::extreme<true>(src, n, element).value;
      const T greatest = reference::extreme<false>(src, n, element).value;
      T min{}, max{}, minAt{}, maxAt{};
      int minIndex = -1, maxIndex = -1;
      ASSERT_EQ(values(src, static_cast<int>(n), &min, &max), qvxStatOk);
      ASSERT_EQ(places(src, static_cast<int>(n), &minAt, &minIndex, &maxAt, &maxIndex), qvxStatOk);
      expectValue(min, least);
      expectValue(max, greatest);
      expectValue(minAt, least);
      expectValue(maxAt, greatest);
      ASSERT_EQ(minIndex, reference::firstEqual(src, n, least));
      ASSERT_EQ(maxIndex, reference::firstEqual(src, n, greatest));
    });
  }
}

TEST(Extrema, AreThoseOfAScan) {
  expectExtremes<false>(qvxsMax_16s, qvxsMaxIndx_16s, element);
  expectExtremes<false>(qvxsMax_32s, qvxsMaxIndx_32s, element);
  expectExtremes<false>(qvxsMax_32f, qvxsMaxIndx_32f, element);
  expectExtremes<false>(qvxsMax_64f, qvxsMaxIndx_64f, element);
  expectExtremes<true>(qvxsMin_16s, qvxsMinIndx_16s, element);
  expectExtremes<true>(qvxsMin_32s, qvxsMinIndx_32s, element);
  expectExtremes<true>(qvxsMin_32f, qvxsMinIndx_32f, element);
  expectExtremes<true>(qvxsMin_64f, qvxsMinIndx_64f, element);
}

TEST(Extrema, OfSaturatedMagnitudes) {
  expectExtremes<false>(qvxsMaxAbs_16s, qvxsMaxAbsIndx_16s, saturatedMagnitude);
  expectExtremes<false>(qvxsMaxAbs_32s, qvxsMaxAbsIndx_32s, saturatedMagnitude);
  expectExtremes<true>(qvxsMinAbs_16s, qvxsMinAbsIndx_16s, saturatedMagnitude);
  expectExtremes<true>(qvxsMinAbs_32s, qvxsMinAbsIndx_32s, saturatedMagnitude);
}

TEST(Extrema, BothAtOnce) {
  expectBoth(qvxsMinMax_8u, qvxsMinMaxIndx_8u);
  expectBoth(qvxsMinMax_16u, qvxsMinMaxIndx_16u);
  expectBoth(qvxsMinMax_16s, qvxsMinMaxIndx_16s);
  expectBoth(qvxsMinMax_32u, qvxsMinMaxIndx_32u);
  expectBoth(qvxsMinMax_32s, qvxsMinMaxIndx_32s);
  expectBoth(qvxsMinMax_32f, qvxsMinMaxIndx_32f);
  expectBoth(qvxsMinMax_64f, qvxsMinMaxIndx_64f);
}

// The greatest element twice, the first time at every place.
template <class T> void expectFirstOfTwo(Place<T> place, Places<T> places) {
  const size_t n = 3 * 4096 / sizeof(T) + 77;
  std::vector<T> v(n, T(1));
  for (size_t at = 0; at < n; ++at) {
    const size_t again = at + (at * 7919 + 1) % (n - at);
    v[at] = v[again] = T(2);
    T value{}, least{};
    int index = -1, leastIndex = -1;
    ASSERT_EQ(place(v.data(), static_cast<int>(n), &value, &index), qvxStatOk);
    ASSERT_EQ(index, static_cast<int>(at)) << "and at " << again;
    index = -1;
    ASSERT_EQ(places(v.data(), static_cast<int>(n), &least, &leastIndex, &value, &index), qvxStatOk);
    ASSERT_EQ(index, static_cast<int>(at)) << "and at " << again;
    ASSERT_EQ(leastIndex, reference::firstEqual(v.data(), n, T(1)));
    v[at] = v[again] = T(1);
  }
}

TEST(Extrema, FirstOfTwoAtEveryPlace) {
  expectFirstOfTwo(qvxsMaxIndx_16s, qvxsMinMaxIndx_16s);
  expectFirstOfTwo(qvxsMaxIndx_32f, qvxsMinMaxIndx_32f);
  expectFirstOfTwo(qvxsMaxIndx_64f, qvxsMinMaxIndx_64f);
}

// ---- element by element

template <class Pick, class T> void expectEvery(Pick pick, std::type_identity<T>, auto call, int inPlaceOf = tests::kOutOfPlace) {
  const auto sources = dataOf<T>();
  for (size_t i = 0; i < sources.size(); ++i) {
    std::vector<T> other = sources[(i + 1) % sources.size()];
    std::rotate(other.begin(), other.begin() + 1, other.end());
    tests::Elementwise<T, T, T>(std::tuple(sources[i], other), pick).run(call, inPlaceOf);
  }
}
template <class Pick, class... T> void expectEvery(Pick pick, QvxStatus (*... f)(const T*, const T*, T*, int)) {
  (expectEvery(pick, std::type_identity<T>(), f), ...);
}
// Some stand in place only.
template <class Pick, class... T> void expectEvery(Pick pick, QvxStatus (*... f)(const T*, T*, int)) {
  (expectEvery(
       pick, std::type_identity<T>(), [=](const T* a, const T*, T* d, int n) { return f(a, d, n); }, 1),
   ...);
}
constexpr auto greater = [](auto a, auto b) { return a > b ? a : b; };
constexpr auto less = [](auto a, auto b) { return a < b ? a : b; };

TEST(Every, KeepsTheSecondUnlessTheFirstIsBeyondIt) {
  expectEvery(greater, qvxsMaxEvery_8u, qvxsMaxEvery_16u, qvxsMaxEvery_32f, qvxsMaxEvery_64f);
  expectEvery(greater, qvxsMaxEvery_16s_I, qvxsMaxEvery_32s_I);
  expectEvery(less, qvxsMinEvery_8u, qvxsMinEvery_16u, qvxsMinEvery_32f, qvxsMinEvery_64f);
  expectEvery(less, qvxsMinEvery_16s_I, qvxsMinEvery_32s_I);
}

// ---- as many elements as a length can tell

TEST(Extrema, IndicesHoldAtTheGreatestLength) {
  constexpr size_t n = INT_MAX;
  tests::Repeated<Qvx8u> bytes(n, 7);
  bytes.last()[-1] = 9;
  bytes.last()[0] = 3;
  Qvx8u min{}, max{};
  int minIndex = -1, maxIndex = -1;
  ASSERT_EQ(qvxsMinMaxIndx_8u(bytes.data(), INT_MAX, &min, &minIndex, &max, &maxIndex), qvxStatOk);
  EXPECT_EQ(min, 3);
  EXPECT_EQ(minIndex, INT_MAX - 1);
  EXPECT_EQ(max, 9);
  EXPECT_EQ(maxIndex, INT_MAX - 2);

  tests::Repeated<Qvx16s> shorts(n, -5);
  shorts.last()[0] = -4;
  Qvx16s greatest{};
  ASSERT_EQ(qvxsMaxIndx_16s(shorts.data(), INT_MAX, &greatest, &maxIndex), qvxStatOk);
  EXPECT_EQ(greatest, -4);
  EXPECT_EQ(maxIndex, INT_MAX - 1);
}

}  // namespace
