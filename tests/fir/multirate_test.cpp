// Multi-rate filters beside their definition: zeros are put in, the signal is filtered, results are dropped.
#include "fir/multirate_pairs.h"
#include "support/blocks.h"

namespace {

using namespace tests;

struct Case {
  int tapsLen;
  Factors factors;
};

// Common ratios with few taps and many; factors with a common divisor, after which taps are left, or none; more zeros than taps;
// a period that is longer than what samples are converted in.
std::vector<Case> cases(Random& random, size_t drawn) {
  std::vector<Case> all = {
      {1, {1, 0, 2, 1}},        {1, {5, 4, 3, 0}},         {3, {1, 0, 2, 0}},    {7, {1, 0, 2, 1}},    {3, {2, 1, 2, 0}},
      {6, {2, 0, 5, 4}},        {64, {2, 1, 1, 0}},        {65, {1, 0, 4, 3}},   {33, {1, 0, 8, 2}},   {48, {3, 2, 2, 0}},
      {50, {2, 0, 3, 2}},       {40, {6, 5, 4, 1}},        {2, {8, 7, 12, 2}},   {2, {4, 0, 4, 3}},    {30, {4, 3, 4, 0}},
      {300, {1, 0, 3, 1}},      {257, {2, 1, 1, 0}},       {20, {37, 36, 1, 0}}, {90, {1, 0, 41, 40}}, {320, {16, 3, 15, 14}},
      {20, {160, 7, 147, 3}},   {700, {147, 0, 160, 159}}, {900, {2, 1, 1, 0}},  {700, {1, 0, 2, 1}},  {1100, {2, 1, 3, 2}},
      {90, {1, 0, 1100, 1099}},
  };
  const auto below = [&](int most) { return static_cast<int>(random() % static_cast<uint64_t>(most)); };
  for (size_t i = 0; i < drawn; ++i) {
    const int up = 1 + below(9);
    const int down = 1 + below(9);
    all.push_back({1 + below(i % 4 == 0 ? 300 : 40), {up, below(up), down, below(down)}});
  }
  return all;
}

std::string describe(const char* name, const Case& c) {
  const Factors& f = c.factors;
  const auto text = [](int i) { return std::to_string(i); };
  return std::string(name) + ", taps " + text(c.tapsLen) + ", up " + text(f.up) + " (" + text(f.upPhase) + "), down " +
         text(f.down) + " (" + text(f.downPhase) + "), seed " + std::to_string(seed());
}

template <class T> long double rootMeanSquare(const std::vector<T>& x) {
  long double sum = 0;
  for (const T v : x) sum += std::norm(exact(v));
  return std::sqrt(sum / static_cast<long double>(x.size()));
}

// Samples and outputs between unreadable pages.
template <class T> struct Vectors {
  Block input{1 << 20};
  Block output{1 << 20};
  T* src = nullptr;
  T* dst = nullptr;

  void place(const std::vector<T>& x, size_t outputs, bool inPlace) {
    const size_t bytes = x.size() * sizeof(T);
    src = reinterpret_cast<T*>(input.atEnd(bytes));
    std::memcpy(static_cast<void*>(src), x.data(), bytes);
    dst = reinterpret_cast<T*>(output.atEnd((inPlace ? std::max(x.size(), outputs) : outputs) * sizeof(T)));
    if (inPlace) std::memcpy(static_cast<void*>(dst), x.data(), bytes);
  }
  bool areIntact(const std::vector<T>& x) const {
    return input.isIntact() && output.isIntact() && std::memcmp(src, x.data(), x.size() * sizeof(T)) == 0;
  }
};

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

// What a cut changes in sums of floats is their order, at most; results of integers stay.
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
    const int groups = 1 + static_cast<int>(random() % (random() % 8 == 0 ? 70 : 8));
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
  const Case kCases[] = {{16, {1, 0, 8, 0}}, {20, {1, 0, 4, 1}}, {33, {2, 1, 3, 0}}, {7, {1, 0, 2, 0}}, {90, {3, 2, 5, 4}}};
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

// ---- sizes

struct Size {
  int tapsLen;
  int up;
  int down;
  int bytes[3];  // 32f; 32fc, 64f and integers; 64fc and complex integers
};

TEST(Multirate, SizesToTheByte) {
  // clang-format off
  const Size kSizes[] = {
      {1, 1, 2, {16784, 33344, 66464}},
      {3, 1, 2, {16848, 33488, 66752}},
      {7, 1, 2, {16928, 33648, 67072}},
      {3, 2, 2, {16832, 33456, 66704}},
      {6, 2, 5, {17136, 34048, 67888}},
      {16, 1, 8, {17680, 35152, 70112}},
      {24, 1, 8, {17840, 35472, 70752}},
      {25, 1, 8, {17840, 35472, 70720}},
      {64, 2, 1, {18208, 36208, 72224}},
      {64, 1, 4, {18640, 37072, 73952}},
      {256, 3, 2, {22576, 44944, 89696}},
      {256, 160, 147, {35184, 69520, 138192}},
      {2048, 147, 160, {98176, 195584, 390400}},
      {2048, 1, 8, {91216, 182224, 364256}},
      {5000, 1, 4, {220720, 441232, 882272}},
      {20, 1000, 1, {36704, 69200, 134208}},
      {20, 1, 1000, {173328, 346448, 692704}},
  };
  // clang-format on
  forEachMultirate([&](const auto& pair, const auto& multirate) {
    const std::string name = pair.name;
    const int kind = name.find("32f_") == 0 || name == "32f" ? 0 : name.find("64fc") == 0 || name.find("32sc") == 0 ? 2 : 1;
    for (const Size& size : kSizes) {
      EXPECT_EQ(multirate.size(size.tapsLen, {size.up, 0, size.down, 0}), size.bytes[kind])
          << name << ", taps " << size.tapsLen << ", up " << size.up << ", down " << size.down;
    }
    int bytes = 0;
    EXPECT_EQ(multirate.getSize(100, 1, 1, &bytes), qvxStatOk);
    EXPECT_EQ(bytes, pair.size(100)) << name;
  });
  for (const int tapsLen : {1, 63, 64, 1000}) {
    int stream = 0;
    int multirate = 0;
    EXPECT_EQ(qvxsFIRStreamGetStateSize_32f(tapsLen, &stream), qvxStatOk);
    EXPECT_EQ(qvxsFIRMRStreamGetStateSize_32f(tapsLen, 3, 2, &multirate), qvxStatOk);
    EXPECT_EQ(multirate, stream);
    EXPECT_EQ(qvxsFIRMRStreamGetStateSize_16s(tapsLen, 3, 2, &multirate), qvxStatOk);
    EXPECT_EQ(multirate, 128 + (2 * tapsLen + 15) / 16 * 16);
  }
}

// Every shape of a record fits its block, and so does what a call works on.
TEST(Multirate, RecordsFitTheirSizes) {
  forEachMultirate([](const auto& pair, const auto& multirate) {
    using P = std::remove_cvref_t<decltype(pair)>;
    using T = typename P::Sample;
    Random random(seed());
    Block memory(16 << 20);
    const auto check = [&](int tapsLen, int up, int down) {
      const Factors f = {up, up - 1, down, 0};
      const auto h = samples<typename P::Taps>(static_cast<size_t>(tapsLen), random);
      const auto bytes = static_cast<size_t>(multirate.size(tapsLen, f));
      // An odd place wastes what alignment can waste.
      memory.atEnd(bytes);
      auto* state =
          multirate.template build<typename P::State>(h, 0, f, static_cast<const T*>(nullptr), memory.atOffset(1, bytes));
      std::vector<T> x(static_cast<size_t>(40 * down));
      std::vector<T> y(static_cast<size_t>(40 * up));
      EXPECT_EQ(P::run(pair.block, 0, static_cast<const T*>(x.data()), y.data(), 40, state), qvxStatOk);
      EXPECT_TRUE(memory.isIntact()) << pair.name << ", taps " << tapsLen << ", up " << up << ", down " << down;
    };
    for (const int up : {1, 2, 7, 160, 1000}) {
      for (const int down : {1, 2, 3, 147, 1001}) {
        for (const int tapsLen : {1, 3, 40, 1000, 8000}) {
          if (!testing::Test::HasFailure()) check(tapsLen, up, down);
        }
      }
    }
  });
}

// ---- one rate, streams, and no record

TEST(Multirate, OfOneRateIsARecordOfOneRate) {
  forEachMultirate([](const auto& pair, const auto& multirate) {
    using P = std::remove_cvref_t<decltype(pair)>;
    using T = typename P::Sample;
    Random random(seed());
    const auto h = samples<typename P::Taps>(70, random);
    const auto line = samples<T>(70, random);
    std::vector<uint8_t> first(static_cast<size_t>(pair.size(70)));
    std::vector<uint8_t> second(first.size());
    auto* one = pair.build(h, 3, line.data(), first.data());
    auto* several = multirate.template build<typename P::State>(h, 3, {1, 0, 1, 0}, line.data(), second.data());
    EXPECT_EQ(std::memcmp(one, several, sizeof(uint32_t)), 0) << "another identity: " << pair.name;
    T x = sample<T>(random);
    T y[2];
    EXPECT_EQ(P::run(pair.one, 4, x, &y[0], one), qvxStatOk);
    EXPECT_EQ(P::run(pair.one, 4, x, &y[1], several), qvxStatOk);
    EXPECT_EQ(std::memcmp(&y[0], &y[1], sizeof(T)), 0) << pair.name;
  });
}

TEST(Multirate, RefusesAPhaseThatIsItsFactor) {
  const Qvx32f h[] = {1, 2, 3};
  QvxsFIRState_32f* state = nullptr;
  EXPECT_EQ(qvxsFIRMRInitAlloc_32f(&state, h, 3, 2, 2, 3, 0, nullptr), qvxStatBadMRPhase);
  EXPECT_EQ(qvxsFIRMRInitAlloc_32f(&state, h, 3, 2, 0, 3, 3, nullptr), qvxStatBadMRPhase);
  Qvx32f x[3] = {}, y[2] = {}, line[2] = {};
  EXPECT_EQ(qvxsFIRMR_Direct_32f(x, y, 1, h, 3, 2, 2, 3, 0, line), qvxStatBadMRPhase);
  EXPECT_EQ(qvxsFIRMR_Direct_32f(x, y, 1, h, 3, 2, 0, 3, 3, line), qvxStatBadMRPhase);
}

// Integer taps are held in records whose functions know one rate.
TEST(Multirate, IsNotForIntegerTaps) {
  const Qvx64f h[] = {1, 2, 3};
  QvxsFIRState64f_32s* state = nullptr;
  ASSERT_EQ(qvxsFIRMRInitAlloc64f_32s(&state, h, 3, 2, 0, 1, 0, nullptr), qvxStatOk);
  Qvx32s v[4] = {};
  EXPECT_EQ(qvxsFIR_32s_Sfs(v, v + 2, 1, state, 0), qvxStatContextMismatch);
  EXPECT_EQ(qvxsFIR_32s_ISfs(v, 1, state, 0), qvxStatContextMismatch);
  EXPECT_EQ(qvxsFIRGetTaps_32s(state, v), qvxStatContextMismatch);
  EXPECT_EQ(qvxsFIRSetTaps_32s(v, state), qvxStatContextMismatch);
  EXPECT_EQ(qvxsFIRFree_32s(state), qvxStatContextMismatch);
  EXPECT_EQ(qvxsFIRFree64f_32s(state), qvxStatOk);
}

TEST(Multirate, WithoutARecord) {
  forEachMultirate([](const auto& pair, const auto& multirate) {
    using P = std::remove_cvref_t<decltype(pair)>;
    using M = std::remove_cvref_t<decltype(multirate)>;
    using T = typename P::Sample;
    using H = typename P::Taps;
    if constexpr (!std::is_null_pointer_v<decltype(M::direct)>) {
      Random random(seed());
      Vectors<T> vectors;
      for (const Case& c : cases(random, 20)) {
        if (testing::Test::HasFailure()) return;
        const Factors& f = c.factors;
        const auto h = samples<H>(static_cast<size_t>(c.tapsLen), random);
        std::vector<T> line = samples<T>(static_cast<size_t>(f.delayLen(c.tapsLen)), random);
        Upsampled<T> signal(f, line, h.size());
        size_t done = 0;
        for (int call = 0; call < 3; ++call) {
          const int groups = 1 + static_cast<int>(random() % (call == 2 ? 2000 / static_cast<unsigned>(f.down + f.up) + 1 : 4));
          const int scaleFactor = static_cast<int>(random() % 6) - 1 + (kIsFloat<H> ? 0 : static_cast<int>(random() % 60) - 40);
          const auto x = samples<T>(static_cast<size_t>(groups * f.down), random);
          const auto outputs = static_cast<size_t>(groups * f.up);
          const bool inPlace = random() & 1;
          vectors.place(x, outputs, inPlace);
          const auto run = [&](auto function, auto... v) {
            const auto with = [&](auto... factor) {
              return P::run(function, scaleFactor, v..., groups, h.data(), c.tapsLen, factor..., f.up, f.upPhase, f.down,
                            f.downPhase, line.data());
            };
            if constexpr (std::is_same_v<H, Qvx32s> || std::is_same_v<H, Qvx32sc>) return with(kTapsFactor);
            else return with();
          };
          if (inPlace) EXPECT_EQ(run(multirate.inPlace, vectors.dst), qvxStatOk);
          else EXPECT_EQ(run(multirate.direct, static_cast<const T*>(vectors.src), vectors.dst), qvxStatOk);
          EXPECT_TRUE(vectors.areIntact(x)) << "bytes outside the outputs";
          for (const T sample : x) signal.append(sample);
          for (size_t j = 0; j < outputs && !testing::Test::HasFailure(); ++j) {
            EXPECT_TRUE(agrees<H>(vectors.dst[j], h, signal.at(done + j), scaleFactor, true))
                << describe(pair.name, c) << ", output " << j << (inPlace ? " in place" : "") << ", scale factor " << scaleFactor;
          }
          done += outputs;
          std::vector<T> all(x.rbegin(), x.rend());
          all.insert(all.end(), line.begin(), line.end());
          EXPECT_EQ(std::memcmp(line.data(), all.data(), std::min(line.size(), x.size()) * sizeof(T)), 0) << "delay line";
        }
      }
    }
  });
}

// Streams bring D - 1 samples before the first; one before those counts as 0.
TEST(Multirate, StreamsWithoutADelayLine) {
  Random random(seed());
  for (const Case& c : cases(random, 30)) {
    if (testing::Test::HasFailure()) return;
    const Factors& f = c.factors;
    const auto n = static_cast<size_t>(c.tapsLen);
    const auto before = static_cast<size_t>(f.delayLen(c.tapsLen) - 1);
    const int groups = 1 + static_cast<int>(random() % 70);
    const size_t outputs = static_cast<size_t>(groups) * static_cast<size_t>(f.up);
    const auto check = [&](auto init, auto& h, auto filter, auto filterInPlace, auto agrees) {
      using T = std::remove_cvref_t<decltype(h[0])>;
      auto x = samples<T>(before + static_cast<size_t>(groups) * static_cast<size_t>(f.down), random);
      Upsampled<T> signal(f, std::vector<T>(before + 1), n);
      signal = Upsampled<T>(f, {x.rend() - static_cast<ptrdiff_t>(before), x.rend()}, n);
      for (size_t i = before; i < x.size(); ++i) signal.append(x[i]);
      auto* state = init();
      Vectors<T> vectors;
      for (const bool inPlace : {false, true}) {
        vectors.place(x, outputs, inPlace);
        EXPECT_EQ(inPlace ? filterInPlace(vectors.dst, state) : filter(vectors.src, vectors.dst, state), qvxStatOk);
        EXPECT_TRUE(vectors.areIntact(x)) << "bytes outside the outputs";
        for (size_t j = 0; j < outputs && !testing::Test::HasFailure(); ++j) {
          EXPECT_TRUE(agrees(vectors.dst[j], signal.at(j)))
              << describe("stream", c) << ", output " << j << (inPlace ? " in place" : "");
        }
      }
    };
    std::vector<uint8_t> memory;
    const bool isOneRate = f.up == 1 && f.down == 1;
    const auto h = samples<Qvx32f>(n, random);
    check(
        [&] {
          QvxsFIRState_32f* state = nullptr;
          int bytes = 0;
          EXPECT_EQ(qvxsFIRMRStreamGetStateSize_32f(c.tapsLen, f.up, f.down, &bytes), qvxStatOk);
          memory.resize(static_cast<size_t>(bytes));
          EXPECT_EQ(isOneRate ? qvxsFIRStreamInit_32f(&state, h.data(), c.tapsLen, memory.data())
                              : qvxsFIRMRStreamInit_32f(&state, h.data(), c.tapsLen, f.up, f.upPhase, f.down, f.downPhase,
                                                        memory.data()),
                    qvxStatOk);
          return state;
        },
        h, [&](const Qvx32f* src, Qvx32f* dst, QvxsFIRState_32f* s) { return qvxsFIR_32f(src, dst, groups, s); },
        [&](Qvx32f* v, QvxsFIRState_32f* s) { return qvxsFIR_32f_I(v, groups, s); },
        [&](Qvx32f y, const Qvx32f* newest) { return FloatOracle<Qvx32f, Qvx32f>{h}.agrees(y, newest, 0); });
    auto h16 = samples<Qvx16s>(n, random);
    const int factor = static_cast<int>(random() % 100) - 40;
    const int scaleFactor = static_cast<int>(random() % 10);
    const int mode = static_cast<int>(random() % 3);
    const bool isHalved = std::count(h16.begin(), h16.end(), INT16_MIN) > 0;
    const int64_t places = std::clamp(factor + (isHalved ? 1 : 0) - scaleFactor, -31, 31);
    check(
        [&] {
          QvxsFIRState_16s* state = nullptr;
          int bytes = 0;
          EXPECT_EQ(qvxsFIRMRStreamGetStateSize_16s(c.tapsLen, f.up, f.down, &bytes), qvxStatOk);
          memory.resize(static_cast<size_t>(bytes));
          EXPECT_EQ(isOneRate ? qvxsFIRStreamInit_16s(&state, h16.data(), c.tapsLen, factor, mode, memory.data())
                              : qvxsFIRMRStreamInit_16s(&state, h16.data(), c.tapsLen, factor, f.up, f.upPhase, f.down,
                                                        f.downPhase, mode, memory.data()),
                    qvxStatOk);
          return state;
        },
        h16,
        [&](const Qvx16s* src, Qvx16s* dst, QvxsFIRState_16s* s) { return qvxsFIR_16s_Sfs(src, dst, groups, s, scaleFactor); },
        [&](Qvx16s* v, QvxsFIRState_16s* s) { return qvxsFIR_16s_ISfs(v, groups, s, scaleFactor); },
        [&](Qvx16s y, const Qvx16s* newest) {
          uint32_t sum = 0;
          for (size_t k = 0; k < n; ++k) {
            sum += static_cast<uint32_t>((isHalved ? h16[k] >> 1 : h16[k]) * newest[-static_cast<ptrdiff_t>(k)]);
          }
          if (places >= 0 || mode == qvxRoundNearestEven) return y == roundedSum(sum, places);
          const long double exact = std::ldexp(static_cast<long double>(static_cast<int32_t>(sum)), static_cast<int>(places));
          const long double whole = mode == qvxRoundTowardZero ? std::trunc(exact) : std::round(exact);
          return y == std::clamp<long double>(whole, INT16_MIN, INT16_MAX);
        });
  }
}

// Long ones in place go through memory of their own, piece by piece: no last piece is too short for a vector.
TEST(Multirate, LongStreamsInPlace) {
  Random random(seed());
  for (const int tapsLen : {1, 17}) {
    const auto n = static_cast<size_t>(tapsLen);
    const auto h = samples<Qvx32f>(n, random);
    int bytes = 0;
    ASSERT_EQ(qvxsFIRStreamGetStateSize_32f(tapsLen, &bytes), qvxStatOk);
    std::vector<uint8_t> memory(static_cast<size_t>(bytes));
    QvxsFIRState_32f* state = nullptr;
    ASSERT_EQ(qvxsFIRStreamInit_32f(&state, h.data(), tapsLen, memory.data()), qvxStatOk);
    for (const int outputs : {1024, 1025, 2047, 2048, 2049, 2063, 3073, 4100}) {
      const auto x = samples<Qvx32f>(static_cast<size_t>(outputs) + n - 1, random);
      std::vector<Qvx32f> y(static_cast<size_t>(outputs));
      ASSERT_EQ(qvxsFIR_32f(x.data(), y.data(), outputs, state), qvxStatOk);
      Vectors<Qvx32f> vectors;
      vectors.place(x, y.size(), true);
      ASSERT_EQ(qvxsFIR_32f_I(vectors.dst, outputs, state), qvxStatOk);
      EXPECT_TRUE(std::equal(y.begin(), y.end(), vectors.dst)) << tapsLen << " taps, " << outputs << " outputs";
    }
  }
}

}  // namespace
