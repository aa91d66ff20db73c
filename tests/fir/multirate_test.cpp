// Multi-rate filters beside their definition: zeros are put in, the signal is filtered, results are dropped.
#include "fir/multirate_pairs.h"
#include "support/blocks.h"

namespace {

using namespace tests;

// Calls of any length, out of place and in place, with the record in a block of exactly the reported size at any alignment;
// between calls taps and delay line are read and replaced.
TEST(Multirate, StreamsAreOneSignalHoweverTheyAreCut) {
  forEachMultirate([](const auto& pair, const auto& multirate) {
    using P = std::remove_cvref_t<decltype(pair)>;
    using T = typename P::Sample;
    using H = typename P::Taps;
    Random random(seed());
    Vectors<T> vectors;
    for (const Case& c : cases(random, 20)) {
      const Factors& f = c.factors;
      if (testing::Test::HasFailure() || (f.up == 1 && f.down == 1)) continue;
      SCOPED_TRACE(describe(pair.name, c));
      const auto n = static_cast<size_t>(c.tapsLen);
      auto h = samples<H>(n, random);
      const int factor = static_cast<int>(random() % 40) - 30;
      std::vector<T> line = samples<T>(static_cast<size_t>(f.delayLen(c.tapsLen)), random);
      const auto bytes = static_cast<size_t>(multirate.size(c.tapsLen, f));
      Block memory(bytes + 128);
      uint8_t* block = random() & 1 ? memory.atEnd(bytes) : memory.atOffset(random() % 64, bytes);
      auto* state = multirate.template build<typename P::State>(h, factor, f, line.data(), block);
      auto oracle = oracleOf(pair, state, h);
      Upsampled<T> signal(f, line, n);
      size_t done = 0;
      for (int piece = 0; piece < 6 && !testing::Test::HasFailure(); ++piece) {
        static const int kGroups[] = {1, 2, 3, 6, 13, 17, 40, 64, 65, 130, 700};
        const int most = 10000 / std::max(f.up, f.down);
        const int groups = std::min(kGroups[random() % std::size(kGroups)], std::max(most, 1));
        const int scaleFactor = static_cast<int>(random() % 5) + (P::kHasFactor ? static_cast<int>(random() % 40) - 10 : 0);
        const auto x = samples<T>(static_cast<size_t>(groups) * static_cast<size_t>(f.down), random);
        const size_t outputs = static_cast<size_t>(groups) * static_cast<size_t>(f.up);
        const bool inPlace = random() % 3 == 0;
        vectors.place(x, outputs, inPlace);
        if constexpr (requires { oracle.around; }) oracle.around = c.tapsLen < 500 ? 0 : rootMeanSquare(x);
        if (inPlace) EXPECT_EQ(P::run(pair.inPlace, scaleFactor, vectors.dst, groups, state), qvxStatOk);
        else
          EXPECT_EQ(P::run(pair.block, scaleFactor, static_cast<const T*>(vectors.src), vectors.dst, groups, state), qvxStatOk);
        EXPECT_TRUE(vectors.areIntact(x)) << "bytes outside the outputs";
        for (const T sample : x) {
          signal.append(sample);
          line.insert(line.begin(), sample);
          line.pop_back();
        }
        for (size_t j = 0; j < outputs && !testing::Test::HasFailure(); ++j) {
          EXPECT_TRUE(oracle.agrees(vectors.dst[j], signal.at(done + j), scaleFactor))
              << "output " << j << " of " << groups << " groups" << (inPlace ? " in place" : "") << ", call " << piece;
        }
        done += outputs;
        std::vector<T> kept(line.size());
        EXPECT_EQ(pair.getLine(state, kept.data()), qvxStatOk);
        EXPECT_EQ(std::memcmp(kept.data(), line.data(), line.size() * sizeof(T)), 0) << "delay line";
        if (piece == 3) {
          h = samples<H>(n, random);
          EXPECT_EQ(P::run(pair.setTaps, factor, static_cast<const H*>(h.data()), state), qvxStatOk);
          oracle = oracleOf(pair, state, h);
        }
        if (piece == 4) {
          line = samples<T>(line.size(), random);
          const bool zeros = random() & 1;
          if (zeros) std::fill(line.begin(), line.end(), T{});
          EXPECT_EQ(pair.setLine(state, zeros ? nullptr : line.data()), qvxStatOk);
          signal = Upsampled<T>(f, line, n);
          done = 0;
        }
      }
      T one = {};
      EXPECT_EQ(P::run(pair.one, 0, one, &one, state), qvxStatContextMismatch);
      EXPECT_TRUE(memory.isIntact()) << "bytes outside the record";
      EXPECT_EQ(pair.free(state), qvxStatOk);
    }
  });
}

// Blocks at all places in a line hold the same rows and the same transforms: 836 taps at 2:4 had a transform twice as long where
// the block was aligned.
TEST(Multirate, OutputsDoNotDependOnThePlaceOfTheRecord) {
  forEachMultirate([](const auto& pair, const auto& multirate) {
    using P = std::remove_cvref_t<decltype(pair)>;
    using T = typename P::Sample;
    Random random(seed());
    std::vector<Case> all = {{836, {2, 1, 4, 3}}};
    for (int i = 0; i < 12; ++i) all.push_back({130 + static_cast<int>(random() % 1500), {1 + i % 3, 0, 2 + i % 5, 0}});
    for (const Case& c : all) {
      SCOPED_TRACE(describe(pair.name, c));
      const auto h = samples<typename P::Taps>(static_cast<size_t>(c.tapsLen), random);
      constexpr int kGroups = 1100;
      const auto x = samples<T>(static_cast<size_t>(kGroups * c.factors.down), random);
      std::vector<T> y(static_cast<size_t>(kGroups * c.factors.up)), first;
      Block memory(static_cast<size_t>(multirate.size(c.tapsLen, c.factors)) + 64);
      for (const size_t place : {0, 1, 16, 33, 48}) {
        uint8_t* const block = memory.atOffset(place, static_cast<size_t>(multirate.size(c.tapsLen, c.factors)));
        auto* state = multirate.template build<typename P::State>(h, 10, c.factors, static_cast<const T*>(nullptr), block);
        EXPECT_EQ(P::run(pair.block, 8, x.data(), y.data(), kGroups, state), qvxStatOk);
        if (first.empty()) first = y;
        ASSERT_EQ(std::memcmp(y.data(), first.data(), y.size() * sizeof(T)), 0) << "at " << place;
        EXPECT_TRUE(memory.isIntact()) << "bytes outside the record";
      }
    }
  });
}

// Outputs one by one, for longer than the memory of such calls holds their samples.
TEST(Multirate, SingleGroupsInARow) {
  forEachMultirate([](const auto& pair, const auto& multirate) {
    using P = std::remove_cvref_t<decltype(pair)>;
    using T = typename P::Sample;
    Random random(seed());
    for (const Case& c : {Case{63, {1, 0, 16, 3}}, Case{90, {2, 1, 41, 0}}, Case{20, {3, 0, 64, 63}}}) {
      const Factors& f = c.factors;
      SCOPED_TRACE(describe(pair.name, c));
      const auto h = samples<typename P::Taps>(static_cast<size_t>(c.tapsLen), random);
      std::vector<uint8_t> memory(static_cast<size_t>(multirate.size(c.tapsLen, f)));
      auto* state = multirate.template build<typename P::State>(h, 0, f, static_cast<const T*>(nullptr), memory.data());
      auto oracle = oracleOf(pair, state, h);
      const auto up = static_cast<size_t>(f.up);
      Upsampled<T> signal(f, std::vector<T>(static_cast<size_t>(f.delayLen(c.tapsLen))), h.size());
      for (size_t call = 0; call < 100 && !testing::Test::HasFailure(); ++call) {
        const auto x = samples<T>(static_cast<size_t>(f.down), random);
        for (const T sample : x) signal.append(sample);
        std::vector<T> y(up);
        EXPECT_EQ(P::run(pair.block, 2, x.data(), y.data(), 1, state), qvxStatOk);
        for (size_t j = 0; j < up; ++j) EXPECT_TRUE(oracle.agrees(y[j], signal.at(call * up + j), 2)) << "call " << call;
      }
    }
  });
}

// More samples in a call than the lanes of integers take at a time, with as many taps as go by lanes.
TEST(Multirate, IntegersByLanesAreTheSameHoweverTheyAreCut) {
  constexpr int kTaps = 39000;
  constexpr int kGroups = 21;
  Random random(seed());
  const auto h = samples<Qvx16s>(kTaps, random);
  const auto x = samples<Qvx16s>(size_t{kGroups} * 101, random);
  std::vector<Qvx16s> whole(size_t{kGroups} * 100), pieces(whole.size());
  const auto filter = [&](int groups, std::vector<Qvx16s>& y) {
    QvxsFIRState_16s* state = nullptr;
    ASSERT_EQ(qvxsFIRMRInitAlloc_16s(&state, h.data(), kTaps, 0, 100, 0, 101, 0, nullptr), qvxStatOk);
    for (int i = 0; i < kGroups; i += groups) EXPECT_EQ(qvxsFIR_16s_Sfs(&x[i * 101], &y[i * 100], groups, state, 20), qvxStatOk);
    qvxsFIRFree_16s(state);
  };
  filter(kGroups, whole);
  filter(1, pieces);
  EXPECT_EQ(whole, pieces);
}

// The same calls in place and out of place.
TEST(Multirate, InPlaceIsOutOfPlaceToTheBit) {
  Random random(seed());
  for (const Case& c : cases(random, 10)) {
    const Factors& f = c.factors;
    const auto h = samples<Qvx32f>(static_cast<size_t>(c.tapsLen), random);
    const int groups = 1 + static_cast<int>(random() % 200);
    auto x = samples<Qvx32f>(static_cast<size_t>(groups * std::max(f.up, f.down)), random);
    std::vector<Qvx32f> y(static_cast<size_t>(groups * f.up));
    for (const bool inPlace : {false, true}) {
      QvxsFIRState_32f* state = nullptr;
      ASSERT_EQ(qvxsFIRMRInitAlloc_32f(&state, h.data(), c.tapsLen, f.up, f.upPhase, f.down, f.downPhase, nullptr), qvxStatOk);
      if (inPlace) EXPECT_EQ(qvxsFIR_32f_I(x.data(), groups, state), qvxStatOk);
      else EXPECT_EQ(qvxsFIR_32f(x.data(), y.data(), groups, state), qvxStatOk);
      EXPECT_EQ(qvxsFIRFree_32f(state), qvxStatOk);
    }
    EXPECT_EQ(std::memcmp(x.data(), y.data(), y.size() * sizeof(Qvx32f)), 0) << describe("32f", c);
  }
}

// What a record still holds of samples long gone, or past those of a call, must not come in even by a product with zero.
template <class T, class Init, class Filter, class Free>
void expectFiniteElsewhere(const Case& c, Init init, Filter filter, Free free) {
  Random random(seed());
  const Factors& f = c.factors;
  const std::vector<T> taps(static_cast<size_t>(c.tapsLen), T(0.5));
  std::vector<T> x(2000, T(1));
  const int infinite = 200 + static_cast<int>(random() % 400);
  x[static_cast<size_t>(infinite)] = std::numeric_limits<T>::infinity();
  auto* state = init(taps);
  for (int done = 0; !testing::Test::HasFailure();) {
    const int groups = 1 + static_cast<int>(random() % (random() % 4 == 0 ? 70 : 8));
    if ((done + groups) * f.down > 2000) break;
    std::vector<T> y(static_cast<size_t>(groups * f.up));
    EXPECT_EQ(filter(x.data() + done * f.down, y.data(), groups, state), qvxStatOk);
    for (size_t j = 0; j < y.size(); ++j) {
      const int tap = f.down * (done * f.up + static_cast<int>(j)) + f.downPhase - (f.up * infinite + f.upPhase);
      if (tap >= 0 && tap < c.tapsLen) {
        EXPECT_FALSE(std::isfinite(y[j])) << describe("tap ", c) << tap;
      } else if (tap < 0 || tap >= c.tapsLen + f.up) {  // a phase may have a tap more than the filter, of zero
        EXPECT_TRUE(std::isfinite(y[j])) << describe("tap ", c) << tap;
      }
    }
    done += groups;
  }
  EXPECT_EQ(free(state), qvxStatOk);
}

TEST(Multirate, OfAnInfiniteSampleIsFiniteElsewhere) {
  const Case kCases[] = {{16, {1, 0, 8, 0}}, {57, {1, 0, 8, 0}}, {20, {1, 0, 4, 1}}, {13, {1, 0, 4, 1}},
                         {33, {2, 1, 3, 0}}, {7, {1, 0, 2, 0}},  {90, {3, 2, 5, 4}}};
  for (const Case& c : kCases) {
    const Factors& f = c.factors;
    const auto with = [&](auto alloc, auto filter, auto free, auto* state, auto zero) {
      using T = decltype(zero);
      const auto init = [&](const std::vector<T>& h) {
        EXPECT_EQ(alloc(&state, h.data(), c.tapsLen, f.up, f.upPhase, f.down, f.downPhase, nullptr), qvxStatOk);
        return state;
      };
      expectFiniteElsewhere<T>(c, init, filter, free);
    };
    with(qvxsFIRMRInitAlloc_32f, qvxsFIR_32f, qvxsFIRFree_32f, static_cast<QvxsFIRState_32f*>(nullptr), Qvx32f());
    with(qvxsFIRMRInitAlloc_64f, qvxsFIR_64f, qvxsFIRFree_64f, static_cast<QvxsFIRState_64f*>(nullptr), Qvx64f());
  }
}

}  // namespace
