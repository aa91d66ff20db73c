// Thresholds of real elements.
#include <qvx/qvxs.h>

#include <bit>

#include "convert/conversion.h"
#include "reference/level.h"

namespace {

using namespace tests;
using reference::withSign;

// Random elements, the levels and their neighbours, zeros of both signs, and NaN.
template <class T> std::vector<T> around(std::vector<T> levels) {
  Random random(seed());
  std::vector<T> v = values<T>(500, random);
  for (const T level : levels) {
    if constexpr (std::is_integral_v<T>) {
      for (const int64_t x : {int64_t{level} - 1, int64_t{level}, int64_t{level} + 1}) {
        v.push_back(reference::saturated<T>(x)), v.push_back(reference::saturated<T>(-x));
      }
    } else {
      const T inf = std::numeric_limits<T>::infinity();
      for (const T x : {std::nextafter(level, -inf), level, std::nextafter(level, inf), T(0), inf})
        v.push_back(x), v.push_back(-x);
      v.push_back(std::numeric_limits<T>::quiet_NaN());
    }
  }
  return v;
}

template <class T> std::vector<T> levelsOf() {
  if constexpr (std::is_integral_v<T>) {
    return {0, 1, 100, -100, std::numeric_limits<T>::max(), std::numeric_limits<T>::min()};
  } else {
    return {0, T(-0.0), 1, T(1.5), -3, std::numeric_limits<T>::infinity(), std::numeric_limits<T>::quiet_NaN(), T(1e-40)};
  }
}

template <class T> T below(T x, T level, T value) { return x < level ? value : x; }
template <class T> T above(T x, T level, T value) { return x > level ? value : x; }

// Each function, with what follows the length.
template <class T, class Oracle, class... X>
void expect(QvxStatus (*f)(const T*, T*, int, X...), Oracle oracle, std::vector<T> levels, std::type_identity_t<X>... x) {
  Elementwise<T, T> trial(std::make_tuple(around<T>(levels)), [=](T v) { return oracle(v, x...); });
  trial.run([=](const T* a, T* d, int n) { return f(a, d, n, x...); });
}

template <class T, class F> void atAllLevels(F f) {
  for (const T level : levelsOf<T>()) {
    SCOPED_TRACE("level " + show(level));
    f(level);
  }
}

template <class T> void oneLevel(QvxStatus (*lt)(const T*, T*, int, T), QvxStatus (*gt)(const T*, T*, int, T)) {
  atAllLevels<T>([=](T level) {
    expect<T>(
        lt, [](T x, T l) { return below(x, l, l); }, {level}, level);
    expect<T>(
        gt, [](T x, T l) { return above(x, l, l); }, {level}, level);
  });
}

TEST(Threshold, OneLevel) {
  oneLevel(qvxsThreshold_LT_16s, qvxsThreshold_GT_16s);
  oneLevel(qvxsThreshold_LT_32s, qvxsThreshold_GT_32s);
  oneLevel(qvxsThreshold_LT_32f, qvxsThreshold_GT_32f);
  oneLevel(qvxsThreshold_LT_64f, qvxsThreshold_GT_64f);
}

template <class T> void twoWay(QvxStatus (*f)(const T*, T*, int, T, int)) {
  atAllLevels<T>([=](T level) {
    for (const int relOp : {0, 4}) {
      expect<T>(
          f, [](T x, T l, int op) { return op == 0 ? below(x, l, l) : above(x, l, l); }, {level}, level, relOp);
    }
  });
}

TEST(Threshold, TwoWay) {
  twoWay(qvxsThreshold_16s);
  twoWay(qvxsThreshold_32f);
  twoWay(qvxsThreshold_64f);
}

template <class T> void oneValue(QvxStatus (*lt)(const T*, T*, int, T, T), QvxStatus (*gt)(const T*, T*, int, T, T)) {
  atAllLevels<T>([=](T level) {
    expect<T>(lt, below<T>, {level}, level, T(7));
    expect<T>(gt, above<T>, {level}, level, T(-7));
  });
}

template <class T> void twoValues(QvxStatus (*f)(const T*, T*, int, T, T, T, T)) {
  const auto oracle = [](T x, T lt, T ltValue, T gt, T gtValue) { return x < lt ? ltValue : x > gt ? gtValue : x; };
  for (const auto& [lt, gt] :
       {std::pair<T, T>{-5, 20}, {3, 3}, {std::numeric_limits<T>::lowest(), std::numeric_limits<T>::max()}}) {
    expect<T>(f, oracle, {lt, gt}, lt, T(100), gt, T(-100));  // the values lie beyond the other level
  }
}

TEST(Threshold, Values) {
  oneValue(qvxsThreshold_LTVal_16s, qvxsThreshold_GTVal_16s);
  oneValue(qvxsThreshold_LTVal_32f, qvxsThreshold_GTVal_32f);
  oneValue(qvxsThreshold_LTVal_64f, qvxsThreshold_GTVal_64f);
  twoValues(qvxsThreshold_LTValGTVal_16s);
  twoValues(qvxsThreshold_LTValGTVal_32s);
  twoValues(qvxsThreshold_LTValGTVal_32f);
  twoValues(qvxsThreshold_LTValGTVal_64f);
}

template <class T> void magnitudes(QvxStatus (*lt)(const T*, T*, int, T), QvxStatus (*gt)(const T*, T*, int, T)) {
  using Room = std::conditional_t<std::is_integral_v<T>, int64_t, T>;
  const auto size = [](T x) { return x < 0 ? -Room{x} : Room{x}; };
  atAllLevels<T>([=](T level) {
    if (level < 0) return;
    expect<T>(
        lt, [=](T x, T l) { return size(x) < l ? withSign(l, x) : x; }, {level}, level);
    expect<T>(
        gt, [=](T x, T l) { return size(x) > l ? withSign(l, x) : x; }, {level}, level);
  });
}

TEST(Threshold, Magnitudes) {
  magnitudes(qvxsThreshold_LTAbs_16s, qvxsThreshold_GTAbs_16s);
  magnitudes(qvxsThreshold_LTAbs_32s, qvxsThreshold_GTAbs_32s);
  magnitudes(qvxsThreshold_LTAbs_32f, qvxsThreshold_GTAbs_32f);
  magnitudes(qvxsThreshold_LTAbs_64f, qvxsThreshold_GTAbs_64f);
}

// Even the payload, wherever it stands.
TEST(Threshold, NaNStaysBitForBit) {
  const auto payload = std::bit_cast<Qvx32f>(0xFFC12345U);
  for (const int n : {1, 3, 16, 37}) {
    const std::vector<Qvx32f> source(static_cast<size_t>(n), payload);
    std::vector<Qvx32f> d(source.size());
    const auto expectKept = [&](QvxStatus status, const char* what) {
      EXPECT_EQ(status, qvxStatOk);
      EXPECT_EQ(std::memcmp(d.data(), source.data(), d.size() * sizeof(Qvx32f)), 0) << what << ", length " << n;
      std::fill(d.begin(), d.end(), 0.0F);
    };
    expectKept(qvxsThreshold_LT_32f(source.data(), d.data(), n, 1), "below");
    expectKept(qvxsThreshold_GT_32f(source.data(), d.data(), n, 1), "above");
    expectKept(qvxsThreshold_LTVal_32f(source.data(), d.data(), n, 1, 2), "value below");
    expectKept(qvxsThreshold_LTValGTVal_32f(source.data(), d.data(), n, -1, 2, 1, 2), "values");
    expectKept(qvxsThreshold_LTAbs_32f(source.data(), d.data(), n, 1), "magnitude below");
    expectKept(qvxsThreshold_GTAbs_32f(source.data(), d.data(), n, 1), "magnitude above");
  }
}

}  // namespace
