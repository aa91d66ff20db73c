// The records of the filter bank: delay lines, and tests of what a record points to.
#include "wavelet/bank.h"
#include "wavelet/streams.h"

namespace {

using namespace tests;
using reference::Filter;

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
