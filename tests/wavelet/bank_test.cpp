// The filter bank: sums against their definition, whatever the cut of the stream; perfect reconstruction.
#include "wavelet/streams.h"

namespace {

using namespace tests;
using reference::Filter;
using reference::Sum;

constexpr double kEps = 0x1p-24;

void expectSum(float got, const Sum& sum, int taps, const std::string& where) {
  ASSERT_LE(std::abs(got - sum.value), (taps + 1) * kEps * static_cast<double>(sum.magnitude)) << where;
}

template <class S, class T> void expectSplits(const Stage<S, T>& stage) {
  Random random(tests::seed());
  for (const Shape& shape : kShapes) {
    const Filter low = taps(shape.lenLow, random), high = taps(shape.lenHigh, random);
    const auto x = samples<T>(2 * 1300, random);
    const std::vector<float> exact(x.begin(), x.end());
    std::vector<float> whole[2];
    for (int style = 0; style < 5; ++style) {
      S* state = make(stage, low, shape.offsLow, high, shape.offsHigh);
      std::vector<float> got[2];
      split(stage, state, x, cutOf(1300, style, random), got[0], got[1]);
      EXPECT_EQ(stage.release(state), qvxStatOk);
      if (style == 0) {
        for (size_t k = 0; k < 1300; ++k) {
          const std::string where = describe(stage, shape) + ", pair " + std::to_string(k);
          const auto at = static_cast<int64_t>(k);
          expectSum(got[0][k], reference::split(low, shape.offsLow, exact, at), shape.lenLow, "low, " + where);
          expectSum(got[1][k], reference::split(high, shape.offsHigh, exact, at), shape.lenHigh, "high, " + where);
          if (testing::Test::HasFailure()) return;
        }
        std::copy_n(got, 2, whole);
      }
      ASSERT_TRUE(got[0] == whole[0] && got[1] == whole[1]) << describe(stage, shape) << ", cut " << style;
    }
  }
}
TEST(FilterBank, SplitsAsDefinedWhateverTheCut) {
  forEachForward([](const auto& stage) { expectSplits(stage); });
}

// Taps and values whose sums are exact, halves among them, so that integers are those of the definition, and many saturate.
template <class S, class T> void expectJoins(const InverseStage<S, T>& stage) {
  constexpr bool kIsFloat = std::is_floating_point_v<T>;
  Random random(tests::seed());
  for (const Shape& shape : kShapes) {
    const auto few = [&](int n) {
      Filter h = taps(n, random);
      for (size_t i = 0; !kIsFloat && i < h.size(); ++i) h[i] = i < 9 ? std::round(h[i] * 4) / 4 : 0;
      return h;
    };
    const Filter low = few(shape.lenLow), high = few(shape.lenHigh);
    std::vector<float> a[2] = {samples<float>(1300, random), samples<float>(1300, random)};
    constexpr float kReach = sizeof(T) == 1 ? 100 : 20000;
    for (auto& band : a) {
      for (float& v : band) v = kIsFloat ? v : std::round(v / 8 * kReach);
    }
    std::vector<T> whole;
    for (int style = 0; style < 5; ++style) {
      S* state = make(stage, low, shape.offsLow, high, shape.offsHigh);
      std::vector<T> got;
      join(stage, state, a[0], a[1], cutOf(1300, style, random), got);
      EXPECT_EQ(stage.release(state), qvxStatOk);
      for (size_t n = 0; style == 0 && n < got.size(); ++n) {
        Sum sum;
        reference::join(low, shape.offsLow, a[0], static_cast<int64_t>(n), sum);
        reference::join(high, shape.offsHigh, a[1], static_cast<int64_t>(n), sum);
        const std::string where = describe(stage, shape) + ", sample " + std::to_string(n);
        if constexpr (kIsFloat) {
          expectSum(got[n], sum, shape.lenLow + shape.lenHigh, where);
        } else {
          constexpr long double kLeast = std::numeric_limits<T>::min(), kMost = std::numeric_limits<T>::max();
          ASSERT_EQ(got[n], std::clamp(std::nearbyint(sum.value), kLeast, kMost)) << where;
        }
        if (testing::Test::HasFailure()) return;
      }
      if (style == 0) whole = got;
      ASSERT_TRUE(got == whole) << describe(stage, shape) << ", cut " << style;
    }
  }
}
TEST(FilterBank, JoinsAsDefinedWhateverTheCut) {
  forEachInverse([](const auto& stage) { expectJoins(stage); });
}

// No window reaches further than its filter: what is infinite elsewhere does not become 0 * infinity.
TEST(FilterBank, InfinitySpreadsNoFurtherThanTheFilter) {
  for (const int length : {1, 2, 3, 5, 8}) {
    for (const int offset : {-1, 0, 1, 2}) {
      const Filter h(static_cast<size_t>(length), 1);
      std::vector<float> x(400, 1), low, high, a(200, 1), back;
      x[133] = x[350] = a[67] = a[180] = INFINITY;
      auto* forward = make(kForward, h, offset, h, offset);
      auto* inverse = make(kInverse, h, offset, h, offset);
      split(kForward, forward, x, {30, 140, 30}, low, high);
      join(kInverse, inverse, a, a, {30, 140, 30}, back);
      for (int64_t k = 0; k < 200; ++k) {
        const auto isInfinite = std::isinf(static_cast<double>(reference::split(h, offset, x, k).value));
        EXPECT_EQ(std::isfinite(low[static_cast<size_t>(k)]), !isInfinite) << length << " taps, offset " << offset << ", " << k;
      }
      for (int64_t n = 0; n < 400; ++n) {
        Sum sum;
        reference::join(h, offset, a, n, sum);
        const auto isInfinite = std::isinf(static_cast<double>(sum.value));
        EXPECT_EQ(std::isfinite(back[static_cast<size_t>(n)]), !isInfinite) << length << " taps, offset " << offset << ", " << n;
      }
      qvxsWTFwdFree_32f(forward);
      qvxsWTInvFree_32f(inverse);
    }
  }
}

// To rounding: relative to the sum of magnitudes that go into a sample.
TEST(FilterBank, ReconstructsPerfectly) {
  Random random(tests::seed());
  const auto x = samples<float>(2400, random);
  for (const reference::Wavelet& w : reference::wavelets()) {
    for (const auto& [offset, backOffset] :
         {std::pair(0, 0), std::pair(-1, 0), std::pair(0, -1), std::pair(3, 2), std::pair(1, 5)}) {
      auto* forward = make(kForward, w.low, offset, w.high, offset);
      auto* inverse = make(kInverse, w.backLow, backOffset, w.backHigh, backOffset);
      std::vector<float> low, high, back;
      split(kForward, forward, x, {1, 9, 500, 690}, low, high);
      join(kInverse, inverse, low, high, {700, 17, 3, 480}, back);
      qvxsWTFwdFree_32f(forward);
      qvxsWTInvFree_32f(inverse);
      double gain = 0;
      for (const auto& [h, g] : {std::pair(w.low, w.backLow), std::pair(w.high, w.backHigh)}) {
        double forwards = 0, backwards = 0;
        for (const float tap : h) forwards += std::abs(tap);
        for (const float tap : g) backwards += std::abs(tap);
        gain += forwards * backwards / 2;
      }
      const auto delay = static_cast<size_t>(w.delay + offset + std::abs(backOffset));
      double worst = 0;
      for (size_t n = delay; n < x.size(); ++n) worst = std::max(worst, std::abs(double{back[n]} - x[n - delay]));
      EXPECT_LE(worst, 4 * kEps * gain * 8) << w.name << ", " << w.low.size() << " taps, offsets " << offset << " and "
                                            << backOffset;
    }
  }
}

}  // namespace
