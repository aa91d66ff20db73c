// The filter bank: sums against their definition, whatever the cut of the stream; perfect reconstruction; records.
#include "wavelet/bank.h"

#include <gtest/gtest.h>
#include <qvx/qvxs.h>

#include "reference/filter_bank.h"
#include "support/blocks.h"
#include "support/values.h"

namespace {

using reference::Filter;
using reference::Sum;
using tests::Random;

constexpr double kEps = 0x1p-24;

// The exports of one stage.
template <class S, class T> struct Stage {
  const char* name;
  QvxStatus (*allocate)(S**, const Qvx32f*, int, int, const Qvx32f*, int, int);
  QvxStatus (*run)(const T*, Qvx32f*, Qvx32f*, int, S*);
  QvxStatus (*setLines)(S*, const Qvx32f*, const Qvx32f*);
  QvxStatus (*getLines)(const S*, Qvx32f*, Qvx32f*);
  QvxStatus (*release)(S*);
};
template <class S, class T> struct InverseStage : Stage<S, T> { QvxStatus (*back)(const Qvx32f*, const Qvx32f*, int, T*, S*); };

// clang-format off
const Stage<QvxsWTFwdState_32f, Qvx32f> kForward = {"32f", qvxsWTFwdInitAlloc_32f, qvxsWTFwd_32f, qvxsWTFwdSetDlyLine_32f, qvxsWTFwdGetDlyLine_32f, qvxsWTFwdFree_32f};
const InverseStage<QvxsWTInvState_32f, Qvx32f> kInverse = {{"32f", qvxsWTInvInitAlloc_32f, nullptr, qvxsWTInvSetDlyLine_32f, qvxsWTInvGetDlyLine_32f, qvxsWTInvFree_32f}, qvxsWTInv_32f};

template <class F> void forEachForward(F f) {
  f(kForward);
  f(Stage<QvxsWTFwdState_8u32f, Qvx8u>{"8u", qvxsWTFwdInitAlloc_8u32f, qvxsWTFwd_8u32f, qvxsWTFwdSetDlyLine_8u32f, qvxsWTFwdGetDlyLine_8u32f, qvxsWTFwdFree_8u32f});
  f(Stage<QvxsWTFwdState_8s32f, Qvx8s>{"8s", qvxsWTFwdInitAlloc_8s32f, qvxsWTFwd_8s32f, qvxsWTFwdSetDlyLine_8s32f, qvxsWTFwdGetDlyLine_8s32f, qvxsWTFwdFree_8s32f});
  f(Stage<QvxsWTFwdState_16u32f, Qvx16u>{"16u", qvxsWTFwdInitAlloc_16u32f, qvxsWTFwd_16u32f, qvxsWTFwdSetDlyLine_16u32f, qvxsWTFwdGetDlyLine_16u32f, qvxsWTFwdFree_16u32f});
  f(Stage<QvxsWTFwdState_16s32f, Qvx16s>{"16s", qvxsWTFwdInitAlloc_16s32f, qvxsWTFwd_16s32f, qvxsWTFwdSetDlyLine_16s32f, qvxsWTFwdGetDlyLine_16s32f, qvxsWTFwdFree_16s32f});
}
template <class F> void forEachInverse(F f) {
  f(kInverse);
  f(InverseStage<QvxsWTInvState_32f8u, Qvx8u>{{"8u", qvxsWTInvInitAlloc_32f8u, nullptr, qvxsWTInvSetDlyLine_32f8u, qvxsWTInvGetDlyLine_32f8u, qvxsWTInvFree_32f8u}, qvxsWTInv_32f8u});
  f(InverseStage<QvxsWTInvState_32f8s, Qvx8s>{{"8s", qvxsWTInvInitAlloc_32f8s, nullptr, qvxsWTInvSetDlyLine_32f8s, qvxsWTInvGetDlyLine_32f8s, qvxsWTInvFree_32f8s}, qvxsWTInv_32f8s});
  f(InverseStage<QvxsWTInvState_32f16u, Qvx16u>{{"16u", qvxsWTInvInitAlloc_32f16u, nullptr, qvxsWTInvSetDlyLine_32f16u, qvxsWTInvGetDlyLine_32f16u, qvxsWTInvFree_32f16u}, qvxsWTInv_32f16u});
  f(InverseStage<QvxsWTInvState_32f16s, Qvx16s>{{"16s", qvxsWTInvInitAlloc_32f16s, nullptr, qvxsWTInvSetDlyLine_32f16s, qvxsWTInvGetDlyLine_32f16s, qvxsWTInvFree_32f16s}, qvxsWTInv_32f16s});
}
// clang-format on

struct Shape {
  int lenLow, offsLow, lenHigh, offsHigh;
};
// Lengths and offsets of each parity; bands alike, which are computed together; filters and offsets longer than short calls.
const Shape kShapes[] = {{1, 0, 1, 0},   {1, -1, 1, 1},  {1, -1, 2, -1},   {2, 0, 2, 0},     {2, -1, 2, -1},   {3, -1, 3, -1},
                         {3, 0, 2, 1},   {4, 1, 4, 1},   {5, 0, 3, -1},    {5, 2, 5, 2},     {8, 0, 8, 0},     {9, -1, 7, 0},
                         {20, 0, 20, 0}, {20, 5, 19, 6}, {37, -1, 33, 64}, {2, 301, 1, 400}, {700, 3, 3, 700}, {333, 0, 333, 0}};

template <class S> std::string describe(const S& stage, const Shape& shape) {
  return std::string(stage.name) + ", taps " + std::to_string(shape.lenLow) + " and " + std::to_string(shape.lenHigh) +
         ", offsets " + std::to_string(shape.offsLow) + " and " + std::to_string(shape.offsHigh);
}

Filter taps(int n, Random& random) {
  Filter h(static_cast<size_t>(n));
  for (float& tap : h) tap = static_cast<float>(static_cast<int>(random() % 2001) - 1000) * 0.001F;
  return h;
}

// Lengths of calls: single pairs, some, and more than pass through a window or an integer record's buffer as a whole.
std::vector<int> cutOf(int total, int style, Random& random) {
  std::vector<int> pieces;
  const int most[] = {total, 1, 5, 40, 700};
  for (int left = total; left > 0; left -= pieces.back()) {
    pieces.push_back(std::min(left, style == 0 ? total : 1 + static_cast<int>(random() % static_cast<uint64_t>(most[style]))));
  }
  return pieces;
}

template <class T> std::vector<T> samples(size_t n, Random& random) {
  if constexpr (std::is_floating_point_v<T>) {
    std::vector<T> x(n);
    for (T& v : x) v = static_cast<T>(static_cast<int64_t>(random())) * T(0x1p-60);
    return x;
  } else {
    return tests::values<T>(n, random);
  }
}

// A vector between unreadable pages, at their edge.
template <class T> class Guarded {
 public:
  explicit Guarded(size_t most) : block_(most * sizeof(T) + 64) {}
  T* of(const T* values, size_t n) {
    T* at = of(n);
    std::copy_n(values, n, at);
    return at;
  }
  T* of(size_t n) {
    return reinterpret_cast<T*>(turn_++ % 3 != 0 ? block_.atEnd(n * sizeof(T)) : block_.atOffset(turn_ % 61, n * sizeof(T)));
  }
  bool isIntact() const { return block_.isIntact(); }

 private:
  tests::Block block_;
  size_t turn_ = 0;
};

template <class S, class T> S* make(const Stage<S, T>& stage, const Filter& low, int offsLow, const Filter& high, int offsHigh) {
  S* state = nullptr;
  EXPECT_EQ(stage.allocate(&state, low.data(), static_cast<int>(low.size()), offsLow, high.data(), static_cast<int>(high.size()),
                           offsHigh),
            qvxStatOk);
  return state;
}

// The stream in pieces.
template <class S, class T>
void split(const Stage<S, T>& stage, S* state, const std::vector<T>& x, const std::vector<int>& pieces, std::vector<float>& low,
           std::vector<float>& high) {
  Guarded<T> source(x.size());
  Guarded<float> first(x.size()), second(x.size());
  size_t at = 0;
  for (const int piece : pieces) {
    const auto n = static_cast<size_t>(piece);
    const T* a = source.of(x.data() + 2 * at, 2 * n);
    float *l = first.of(n), *h = second.of(n);
    ASSERT_EQ(stage.run(a, l, h, piece, state), qvxStatOk);
    ASSERT_TRUE(first.isIntact() && second.isIntact());
    low.insert(low.end(), l, l + n);
    high.insert(high.end(), h, h + n);
    at += n;
  }
}
template <class S, class T>
void join(const InverseStage<S, T>& stage, S* state, const std::vector<float>& low, const std::vector<float>& high,
          const std::vector<int>& pieces, std::vector<T>& x) {
  Guarded<float> first(low.size()), second(low.size());
  Guarded<T> result(2 * low.size());
  size_t at = 0;
  for (const int piece : pieces) {
    const auto n = static_cast<size_t>(piece);
    T* d = result.of(2 * n);
    ASSERT_EQ(stage.back(first.of(low.data() + at, n), second.of(high.data() + at, n), piece, d, state), qvxStatOk);
    ASSERT_TRUE(result.isIntact());
    x.insert(x.end(), d, d + 2 * n);
    at += n;
  }
}

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

// ---- delay lines

template <class S, class T, class Run> void expectLines(const Stage<S, T>& stage, bool isInverse, Run run) {
  Random random(tests::seed());
  for (const Shape& shape : kShapes) {
    const Filter low = taps(shape.lenLow, random), high = taps(shape.lenHigh, random);
    const auto lengthOf = [&](int taps, int offset) {
      return static_cast<size_t>(std::max(taps + offset - 1, 0) / (isInverse ? 2 : 1));
    };
    const size_t n[] = {lengthOf(shape.lenLow, shape.offsLow), lengthOf(shape.lenHigh, shape.offsHigh)};
    S *one = make(stage, low, shape.offsLow, high, shape.offsHigh),
      *other = make(stage, low, shape.offsLow, high, shape.offsHigh);
    // What one stream leaves is taken by another, which then goes on in the same way.
    run(one, random(), 450);
    Guarded<float> lines[2] = {Guarded<float>(1500), Guarded<float>(1500)};
    float* at[] = {lines[0].of(n[0]), lines[1].of(n[1])};
    ASSERT_EQ(stage.getLines(one, at[0], at[1]), qvxStatOk);
    ASSERT_TRUE(lines[0].isIntact() && lines[1].isIntact()) << describe(stage, shape);
    run(other, random(), 33);
    ASSERT_EQ(stage.setLines(other, at[0], at[1]), qvxStatOk);
    std::vector<float> again[] = {std::vector<float>(n[0] + 1), std::vector<float>(n[1] + 1)};
    ASSERT_EQ(stage.getLines(other, again[0].data(), again[1].data()), qvxStatOk);
    for (const size_t b : {0, 1}) ASSERT_TRUE(std::equal(at[b], at[b] + n[b], again[b].begin())) << describe(stage, shape);
    const bool isShort = isInverse && (shape.offsLow < 0 || shape.offsHigh < 0);  // the line lacks a value that is needed
    if (isShort) {
      ASSERT_EQ(stage.setLines(one, at[0], at[1]), qvxStatOk);
    }
    const uint64_t seed = random();
    EXPECT_EQ(run(one, seed, 77), run(other, seed, 77)) << describe(stage, shape);
    stage.release(one);
    stage.release(other);
  }
}

TEST(FilterBank, DelayLinesCarryTheStream) {
  expectLines(kForward, false, [](auto* state, uint64_t seed, size_t n) {
    Random random(seed);
    const auto x = samples<float>(2 * n, random);
    std::vector<float> low, high;
    split(kForward, state, x, {static_cast<int>(n)}, low, high);
    low.insert(low.end(), high.begin(), high.end());
    return low;
  });
  expectLines(kInverse, true, [](auto* state, uint64_t seed, size_t n) {
    Random random(seed);
    const auto a = samples<float>(n, random), b = samples<float>(n, random);
    std::vector<float> x;
    join(kInverse, state, a, b, {static_cast<int>(n)}, x);
    return x;
  });
}

// Oldest first; of an inverse stage whose offset is -1 the oldest that is needed is not among them, and becomes 0.
TEST(FilterBank, DelayLinesAreOldestFirst) {
  const Filter h = {1, 10, 100, 1000};
  float low = 0, high = 0, line[6] = {1, 2, 3, 4, 5, 6}, pair[2];
  auto* forward = make(kForward, h, 2, h, -1);  // 5 samples, 2 samples
  EXPECT_EQ(qvxsWTFwdSetDlyLine_32f(forward, line, line), qvxStatOk);
  const float x[] = {7, 8};
  EXPECT_EQ(qvxsWTFwd_32f(x, &low, &high, 1, forward), qvxStatOk);
  EXPECT_EQ(low, 4 + 30 + 200 + 1000);   // x[-2] = 4, before it 3, 2, 1
  EXPECT_EQ(high, 8 + 70 + 200 + 1000);  // from the sample ahead on
  EXPECT_EQ(qvxsWTFwdGetDlyLine_32f(forward, line, line + 4), qvxStatOk);
  EXPECT_EQ(std::vector<float>(line, line + 6), (std::vector<float>{3, 4, 5, 7, 7, 8}));
  qvxsWTFwdFree_32f(forward);

  auto* inverse = make(kInverse, h, -1, h, 1);  // 1 value, 2 values
  const float lines[2][2] = {{5, -1}, {6, 7}};
  EXPECT_EQ(qvxsWTInvSetDlyLine_32f(inverse, lines[0], lines[1]), qvxStatOk);
  const float zero = 0;
  EXPECT_EQ(qvxsWTInv_32f(&zero, &zero, 1, pair, inverse), qvxStatOk);
  EXPECT_EQ(pair[0], 10 * 5 + (10 * 7 + 1000 * 6));  // u[-2] and u[-4] by the odd taps
  EXPECT_EQ(pair[1], 100 * 5 + 100 * 7);             // u[0] and u[-2] by the even ones
  qvxsWTInvFree_32f(inverse);
}

// Bands of one length and offset whose pasts differ until calls have made them one.
TEST(FilterBank, DelayLinesOfBandsAlikeMayDiffer) {
  const Filter h = {1, 10};
  auto* state = make(kForward, h, 0, h, 0);
  float first = 5, second = 7, low, high;
  const float x[] = {1, 2};
  for (const auto& [wantedLow, wantedHigh] : {std::pair(51.0F, 71.0F), std::pair(21.0F, 21.0F)}) {
    EXPECT_EQ(qvxsWTFwdSetDlyLine_32f(state, &first, &second), qvxStatOk);
    EXPECT_EQ(qvxsWTFwd_32f(x, &low, &high, 1, state), qvxStatOk);
    EXPECT_TRUE(low == wantedLow && high == wantedHigh) << low << ", " << high;
    EXPECT_EQ(qvxsWTFwdGetDlyLine_32f(state, &first, &second), qvxStatOk);
    EXPECT_TRUE(first == 2 && second == 2) << first << ", " << second;
  }
  qvxsWTFwdFree_32f(state);
}

// ---- records

// Each way in which a record may be broken is found by each function, before anything else is looked at.
template <class S, class T, class Part>
void expectChecks(const Stage<S, T>& stage, uint32_t magic, const std::function<QvxStatus(S*)>& run) {
  const Filter h = {1, 2, 3};
  S* state = make(stage, h, 1, h, 1);
  auto& bank = *reinterpret_cast<qvx::wavelet::Bank<Part>*>(state);
  EXPECT_EQ(bank.magic, magic);
  const auto expectAll = [&](QvxStatus status, const char* what) {
    EXPECT_EQ(run(state), status) << stage.name << ", " << what;
    EXPECT_EQ(stage.setLines(state, nullptr, nullptr), status == qvxStatOk ? qvxStatNullPtr : status)
        << stage.name << ", " << what;
    EXPECT_EQ(stage.getLines(state, nullptr, nullptr), status == qvxStatOk ? qvxStatNullPtr : status)
        << stage.name << ", " << what;
    if (status != qvxStatOk) {
      EXPECT_EQ(stage.release(state), status) << stage.name << ", " << what;
    }
  };
  const auto with = [&](auto& field, auto value, const char* what) {
    const auto saved = field;
    field = value;
    expectAll(qvxStatContextMismatch, what);
    field = saved;
  };
  const bool hasBuffer = !std::is_same_v<T, Qvx32f>;
  float elsewhere = 0;
  EXPECT_EQ(bank.buffer != nullptr, hasBuffer);
  EXPECT_EQ(bank.bufferLen, hasBuffer ? 1024 : 0);
  with(bank.magic, magic + 1, "magic");
  with(bank.low, nullptr, "no low band");
  with(bank.high, nullptr, "no high band");
  for (Part* band : {bank.low, bank.high}) {
    with(band->taps, nullptr, "no taps");
    with(band->window, nullptr, "no window");
  }
  with(bank.bufferLen, -1, "negative buffer");
  if (hasBuffer) with(bank.buffer, nullptr, "no buffer");
  else with(bank.buffer, &elsewhere, "buffer without a length");
  with(bank.bufferLen, hasBuffer ? 0 : 1024, "length without a buffer");
  expectAll(qvxStatOk, "as it was");
  EXPECT_EQ(stage.release(state), qvxStatOk);
}
TEST(FilterBank, RecordsAreCheckedInDepth) {
  uint32_t magic = 41;
  forEachForward([&]<class S, class T>(const Stage<S, T>& stage) {
    expectChecks<S, T, qvx::wavelet::SplittingBand>(stage, magic++, [&](S* state) {
      const T x[2] = {};
      float low, high;
      return stage.run(x, &low, &high, 1, state);
    });
  });
  magic = 50;
  forEachInverse([&]<class S, class T>(const InverseStage<S, T>& stage) {
    expectChecks<S, T, qvx::wavelet::JoiningBand>(stage, magic++, [&](S* state) {
      const float a = 0;
      T x[2];
      return stage.back(&a, &a, 1, x, state);
    });
  });
}

// A filter that no memory holds: the caller's pointer is null then, whatever it was.
TEST(FilterBank, WithoutMemoryThereIsNoRecord) {
  const float h[2] = {1, 1};
  auto* forward = reinterpret_cast<QvxsWTFwdState_32f*>(1);
  EXPECT_EQ(qvxsWTFwdInitAlloc_32f(&forward, h, 2, INT32_MAX, h, 2, 0), qvxStatNoMem);
  EXPECT_EQ(forward, nullptr);
  auto* inverse = reinterpret_cast<QvxsWTInvState_32f16s*>(1);
  EXPECT_EQ(qvxsWTInvInitAlloc_32f16s(&inverse, h, 2, 0, h, 2, INT32_MAX), qvxStatNoMem);
  EXPECT_EQ(inverse, nullptr);
}

}  // namespace
