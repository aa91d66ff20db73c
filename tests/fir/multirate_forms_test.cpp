// Multi-rate filters: sizes of their records, filters of one rate, forms without a record and without a delay line.
#include "fir/multirate_pairs.h"
#include "support/blocks.h"

namespace {

using namespace tests;

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

// Outputs one by one in calls of all kinds: the memory for their samples is filled in place, then samples stay where they are;
// phases put the first sample of an output at any distance from those of a call. Whole numbers, so that sums are exact.
template <class T, class State, class Init, class Filter>
void expectExactDecimation(Init init, Filter filter, QvxStatus (*inPlace)(T*, int, State*), QvxStatus (*free)(State*)) {
  constexpr std::pair<int, bool> kCalls[] = {{64, true},   {3, false}, {60, false}, {16, true},
                                             {100, false}, {1, false}, {9, false},  {17, false}};
  Random random(seed());
  const auto whole = [&](int n) {  // none is 0
    std::vector<T> x(static_cast<size_t>(n));
    for (T& v : x)
      v = static_cast<T>(random() % 2 == 0 ? 1 + static_cast<int>(random() % 3) : -1 - static_cast<int>(random() % 3));
    return x;
  };
  Vectors<T> vectors;
  for (const auto& [down, tapsLen] : {std::pair{4, 16}, {4, 60}, {8, 8}, {8, 16}, {8, 40}, {100, 700}}) {
    for (int phase = 0; phase < down; phase += std::max(1, down / 8)) {
      const Case c = {tapsLen, {1, 0, down, phase}};
      const auto h = whole(tapsLen);
      State* state = nullptr;
      ASSERT_EQ(init(&state, h.data(), c), qvxStatOk);
      std::vector<T> signal(static_cast<size_t>(tapsLen));
      for (const auto& [groups, isInPlace] : kCalls) {
        const auto x = whole(groups * down);
        vectors.place(x, static_cast<size_t>(groups), isInPlace);
        const T* const src = vectors.src;
        EXPECT_EQ(isInPlace ? inPlace(vectors.dst, groups, state) : filter(src, vectors.dst, groups, state), qvxStatOk);
        const size_t done = signal.size();
        signal.insert(signal.end(), x.begin(), x.end());
        for (int j = 0; j < groups; ++j) {
          const auto newest = signal.begin() + static_cast<ptrdiff_t>(done) + j * down + phase;
          T sum = 0;
          for (int k = 0; k < tapsLen; ++k) sum = static_cast<T>(sum + h[static_cast<size_t>(k)] * newest[-k]);
          ASSERT_EQ(vectors.dst[j], sum) << describe("", c) << ", output " << j << " of " << groups;
        }
      }
      EXPECT_EQ(free(state), qvxStatOk);
    }
  }
}

TEST(Multirate, DecimatesExactlyInCallsOfAllKinds) {
  const auto init = [](auto f, auto... scale) {
    return [=](auto** state, const auto* h, const Case& c) {
      return f(state, h, c.tapsLen, scale..., 1, 0, c.factors.down, c.factors.downPhase, nullptr);
    };
  };
  expectExactDecimation<Qvx32f>(init(qvxsFIRMRInitAlloc_32f), qvxsFIR_32f, qvxsFIR_32f_I, qvxsFIRFree_32f);
  expectExactDecimation<Qvx64f>(init(qvxsFIRMRInitAlloc_64f), qvxsFIR_64f, qvxsFIR_64f_I, qvxsFIRFree_64f);
  expectExactDecimation<Qvx16s, QvxsFIRState_16s>(
      init(qvxsFIRMRInitAlloc_16s, 0), [](auto... arguments) { return qvxsFIR_16s_Sfs(arguments..., 0); },
      [](Qvx16s* x, int groups, QvxsFIRState_16s* state) { return qvxsFIR_16s_ISfs(x, groups, state, 0); }, qvxsFIRFree_16s);
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
