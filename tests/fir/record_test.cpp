// Records: their sizes, how taps are kept, and their numbers.
#include <gtest/gtest.h>

#include <map>

#include "fir/pairs.h"

namespace {

using namespace tests;

// ---- sizes

struct Size {
  int tapsLen;
  int threads;
  int bytes;
};
// clang-format off
const std::map<std::string, std::vector<Size>> kSizes = {
    {"32f", {{1, 1, 16752}, {15, 5, 17504}, {16, 2, 17440}, {31, 1, 18192}, {32, 3, 18224}, {63, 2, 19744}, {64, 1, 25264}, {127, 2, 30432}, {128, 1, 33584}, {1000, 4, 158336}, {20000, 1, 2386032}}},
    {"32fc", {{1, 1, 33328}, {15, 5, 35392}, {16, 2, 38656}, {31, 1, 39568}, {32, 3, 45984}, {63, 2, 47920}, {64, 1, 50016}, {127, 2, 62384}, {128, 1, 66656}, {1000, 4, 329664}, {20000, 1, 4821664}}},
    {"64f", {{1, 1, 33152}, {15, 5, 34096}, {16, 2, 34048}, {31, 1, 34848}, {32, 3, 34976}, {63, 2, 36672}, {64, 1, 47360}, {127, 2, 55040}, {128, 1, 61312}, {1000, 4, 275008}, {20000, 1, 3938752}}},
    {"64fc", {{1, 1, 65968}, {15, 5, 67328}, {16, 2, 67344}, {31, 1, 68848}, {32, 3, 85744}, {63, 2, 84656}, {64, 1, 88880}, {127, 2, 103216}, {128, 1, 111664}, {1000, 4, 496080}, {20000, 1, 6377072}}},
    {"32s", {{1, 1, 33087}, {15, 5, 33887}, {16, 2, 33807}, {31, 1, 34527}, {32, 3, 34607}, {63, 2, 36095}, {64, 1, 36079}, {127, 2, 39167}, {128, 1, 39151}, {1000, 4, 81103}, {20000, 1, 993007}}},
    {"16s", {{1, 1, 16624}, {15, 5, 16864}, {16, 2, 16864}, {31, 1, 17120}, {32, 3, 17120}, {63, 2, 17632}, {64, 1, 17632}, {127, 2, 18656}, {128, 1, 18656}, {1000, 4, 32608}, {20000, 1, 336608}}},
    {"32s_16s", {{1, 1, 16624}, {15, 5, 16896}, {16, 2, 16896}, {31, 1, 17184}, {32, 3, 17184}, {63, 2, 17760}, {64, 1, 17760}, {127, 2, 18912}, {128, 1, 18912}, {1000, 4, 34608}, {20000, 1, 376608}}},
    {"32sc_16sc", {{1, 1, 16576}, {15, 5, 17088}, {16, 2, 17104}, {31, 1, 17664}, {32, 3, 17680}, {63, 2, 18816}, {64, 1, 18832}, {127, 2, 21120}, {128, 1, 21136}, {1000, 4, 52528}, {20000, 1, 736528}}},
};
// clang-format on

const std::vector<Size>& sizesOf(std::string pair) {
  if (pair.find("32f_") == 0 || pair.find("32fc_") == 0 || pair.find("64") == 0) pair = pair.substr(0, pair.find('_'));
  return kSizes.at(pair.substr(0, pair.find("16s32f") == 4 ? 7 : pair.find("16sc32fc") == 5 ? 9 : pair.size()));
}

TEST(FirRecord, SizesToTheByte) {
  forEachPair([](const auto& pair) {
    for (const Size& size : sizesOf(pair.name)) {
      qvxSetNumThreads(size.threads);
      EXPECT_EQ(pair.size(size.tapsLen), size.bytes) << pair.name << ", taps " << size.tapsLen << ", threads " << size.threads;
    }
  });
  for (const Size& size : kSizes.at("32f")) {
    qvxSetNumThreads(size.threads);
    int bytes = 0;
    EXPECT_EQ(qvxsFIRStreamGetStateSize_32f(size.tapsLen, &bytes), qvxStatOk);
    EXPECT_EQ(bytes, size.bytes);
    EXPECT_EQ(qvxsFIRStreamGetStateSize_16s(size.tapsLen, &bytes), qvxStatOk);
    EXPECT_EQ(bytes, 128 + (2 * size.tapsLen + 15) / 16 * 16);
  }
  qvxSetNumThreads(0);
}

// ---- taps

// What goes in comes out, or what it was reduced to; nothing else of the record changes.
TEST(FirTaps, AreThoseThatWereSet) {
  forEachPair([](const auto& pair) {
    using P = std::remove_cvref_t<decltype(pair)>;
    if constexpr (!P::kHasFactor && !std::is_same_v<typename P::State, QvxsFIRState32s_16s> &&
                  !std::is_same_v<typename P::State, QvxsFIRState32sc_16sc>) {
      Random random(seed());
      const auto line = values<typename P::Sample>(100, random);
      auto* state = pair.allocate(values<typename P::Taps>(100, random), 0, line.data());
      const auto h = values<typename P::Taps>(100, random);
      EXPECT_EQ(pair.setTaps(h.data(), state), qvxStatOk);
      std::vector<typename P::Taps> got(100);
      EXPECT_EQ(pair.getTaps(state, got.data()), qvxStatOk);
      EXPECT_EQ(std::memcmp(got.data(), h.data(), h.size() * sizeof(h[0])), 0) << pair.name;
      std::vector<typename P::Sample> kept(100);
      EXPECT_EQ(pair.getLine(state, kept.data()), qvxStatOk);
      EXPECT_EQ(std::memcmp(kept.data(), line.data(), line.size() * sizeof(line[0])), 0) << pair.name;
      EXPECT_EQ(pair.setLine(state, nullptr), qvxStatOk);
      EXPECT_EQ(pair.getLine(state, kept.data()), qvxStatOk);
      for (const auto& x : kept) EXPECT_EQ(exact(x), exact(typename P::Sample{}));
      EXPECT_EQ(pair.free(state), qvxStatOk);
    }
  });
}

template <class T> struct Reduction {
  std::vector<T> taps;
  int factor;
  std::vector<T> reduced;
  int reducedFactor;
};

TEST(FirTaps, OfIntegersAreReducedTo16Bits) {
  const Reduction<Qvx16s> of16[] = {{{32767, -32767, 1}, -15, {32767, -32767, 1}, -15},
                                    {{-32768, 32767, -1, 1}, -15, {-16384, 16383, -1, 0}, -14}};
  for (const auto& r : of16) {
    QvxsFIRState_16s* state = nullptr;
    ASSERT_EQ(qvxsFIRInitAlloc_16s(&state, r.taps.data(), static_cast<int>(r.taps.size()), r.factor, nullptr), qvxStatOk);
    std::vector<Qvx16s> got(r.taps.size());
    int factor = 0;
    EXPECT_EQ(qvxsFIRGetTaps_16s(state, got.data(), &factor), qvxStatOk);
    EXPECT_EQ(got, r.reduced);
    EXPECT_EQ(factor, r.reducedFactor);
    EXPECT_EQ(qvxsFIRFree_16s(state), qvxStatOk);
  }
  const Reduction<Qvx32s> of32[] = {{{32766, -5}, 3, {32766, -5}, 3},
                                    {{32767, -5}, 3, {16383, -3}, 4},
                                    {{-32767, 7}, 0, {-16384, 3}, 1},
                                    {{INT32_MAX, -1}, 0, {16383, -1}, 17},
                                    {{INT32_MIN, 9}, 0, {INT32_MIN, 9}, 0},
                                    {{INT32_MIN, 70000}, -2, {INT32_MIN >> 2, 17500}, 0},
                                    {{0, 0}, 5, {0, 0}, 5}};
  for (const auto& r : of32) {
    QvxsFIRState32s_16s* state = nullptr;
    ASSERT_EQ(qvxsFIRInitAlloc32s_16s(&state, r.taps.data(), static_cast<int>(r.taps.size()), r.factor, nullptr), qvxStatOk);
    std::vector<Qvx32s> got(r.taps.size());
    int factor = 0;
    EXPECT_EQ(qvxsFIRSetTaps32s_16s(got.data(), state, 1), qvxStatOk);
    EXPECT_EQ(qvxsFIRSetTaps32s_16s(r.taps.data(), state, r.factor), qvxStatOk);
    EXPECT_EQ(qvxsFIRGetTaps32s_16s(state, got.data(), &factor), qvxStatOk);
    EXPECT_EQ(got, r.reduced);
    EXPECT_EQ(factor, r.reducedFactor);
    EXPECT_EQ(qvxsFIRFree32s_16s(state), qvxStatOk);
  }
  // A complex tap whose imaginary part has no negative in 16 bits: the product is exact nevertheless.
  const Qvx32sc h[] = {{5, INT32_MIN}, {2147418112, 3}};  // shifted by 16: {0, -32768}, {32766, 0}
  const Qvx16sc x[] = {{100, 3}, {-7, -32768}, {1, 1}};
  QvxsFIRState32sc_16sc* state = nullptr;
  ASSERT_EQ(qvxsFIRInitAlloc32sc_16sc(&state, h, 2, 0, nullptr), qvxStatOk);
  Qvx16sc y[3];
  EXPECT_EQ(qvxsFIR32sc_16sc_Sfs(x, y, 3, state, 32), qvxStatOk);  // places: 16 - 32
  const int re[] = {32768 * 3, 32768 * -32768 + 32766 * 100, 32768 + 32766 * -7};
  const int im[] = {-32768 * 100, 32768 * 7 + 32766 * 3, -32768 + 32766 * -32768};
  for (int i = 0; i < 3; ++i) {
    EXPECT_EQ(y[i].re, reference::scaled<int16_t>(re[i], 16)) << i;
    EXPECT_EQ(y[i].im, reference::scaled<int16_t>(im[i], 16)) << i;
  }
  EXPECT_EQ(qvxsFIRFree32sc_16sc(state), qvxStatOk);
}

TEST(FirTaps, OfFloatsBecomeIntegersWithAPowerOfTwo) {
  struct Row {
    float most;
    int factor;
    int reduced;
  };
  const Row rows[] = {{1.0F, -14, 16384},   {0.9999F, -15, 32765},  {0.99999F, -14, 16384}, {32767.0F, 0, 32767},
                      {32767.5F, 1, 16384}, {-65534.0F, 1, -32767}, {100000.0F, 2, 25000},  {0x1p47F, 33, 16384},
                      {0x1p-30F, -33, 8},   {16383.25F, -1, 32767}, {16383.5F, 0, 16384}};
  for (const Row& row : rows) {
    const float h[] = {row.most / 4, row.most};
    QvxsFIRState32s_16s* state = nullptr;
    ASSERT_EQ(qvxsFIRInitAlloc32s_16s32f(&state, h, 2, nullptr), qvxStatOk);
    Qvx32s got[2];
    int factor = 0;
    EXPECT_EQ(qvxsFIRGetTaps32s_16s(state, got, &factor), qvxStatOk);
    EXPECT_EQ(factor, row.factor) << row.most;
    EXPECT_EQ(got[1], row.reduced) << row.most;
    EXPECT_EQ(got[0], static_cast<int>(std::round(std::ldexp(static_cast<double>(h[0]), -row.factor)))) << row.most;
    float back[2];
    EXPECT_EQ(qvxsFIRGetTaps32s_16s32f(state, back), qvxStatOk);
    EXPECT_EQ(back[1], std::ldexp(static_cast<float>(row.reduced), row.factor));
    EXPECT_EQ(qvxsFIRFree32s_16s(state), qvxStatOk);
  }
}

// ---- life and identity

// Of one rate, of several, and of streams.
const std::map<std::string, std::vector<int>> kNumbers = {
    {"32f", {1, 3, 33, 34}}, {"32fc", {2, 4}},           {"32f_16s", {5, 7}},       {"32fc_16sc", {6, 8}},
    {"32s_16s", {9, 11}},    {"32sc_16sc", {10, 12}},    {"64f", {13, 15}},         {"64fc", {14, 16}},
    {"64f_32f", {17, 19}},   {"64fc_32fc", {18, 20}},    {"64f_32s", {21, 23}},     {"64fc_32sc", {22, 24}},
    {"64f_16s", {25, 27}},   {"64fc_16sc", {26, 28}},    {"16s", {29, 30, 31, 32}}, {"32s", {21}},
    {"32s_16s32f", {9, 11}}, {"32sc_16sc32fc", {10, 12}}};

TEST(FirRecord, IsFreedByItsNumbersOnly) {
  forEachPair([](const auto& pair) {
    using P = std::remove_cvref_t<decltype(pair)>;
    const std::vector<typename P::Taps> h(70);
    std::vector<uint8_t> memory(static_cast<size_t>(pair.size(70)));
    auto* state = pair.build(h, 0, nullptr, memory.data());
    auto* magic = reinterpret_cast<uint32_t*>(state);
    const std::vector<int>& mine = kNumbers.at(pair.name);
    const auto magicOf = [](int number) { return 0x46490000U + static_cast<uint32_t>(0x3030 + number / 10 * 256 + number % 10); };
    EXPECT_EQ(*magic, magicOf(mine[0])) << pair.name;
    for (int number = 0; number < 36; ++number) {
      *magic = magicOf(number);
      const bool isMine = std::find(mine.begin(), mine.end(), number) != mine.end();
      EXPECT_EQ(pair.free(state), isMine ? qvxStatOk : qvxStatContextMismatch) << pair.name << ", number " << number;
    }
  });
}

}  // namespace
