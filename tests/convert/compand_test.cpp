// Companding against the recommendation's own tables, and bits packed one at a time.
#include <qvx/qvxs.h>

#include <numeric>

#include "convert/conversion.h"
#include "reference/g711.h"

namespace {

using namespace tests;
using reference::aCode;
using reference::aLaw;
using reference::Law;
using reference::muCode;
using reference::muLaw;

enum Kind { kA, kMu };
Law lawOf(Kind kind) { return kind == kA ? aLaw() : muLaw(); }

constexpr int kSteps = 4;  // of 16 bits to the unit of the laws' tables

uint8_t codeOf(Kind kind, int number, bool isNegative) {
  return kind == kA ? aCode(number, isNegative) : muCode(number, isNegative);
}

// Magnitudes of negative values are counted from -1: what is cut off is cut toward minus infinity.
uint8_t encoded(Kind kind, Qvx16s x, bool isNegative) {
  static const Law laws[] = {aLaw(), muLaw()};
  const int magnitude = x < 0 ? -1 - x : x;
  return codeOf(kind, reference::numberOf(laws[kind], magnitude / kSteps), isNegative);
}

std::vector<Qvx16s> decodedAll(Kind kind) {
  std::vector<Qvx16s> value(256);
  const Law law = lawOf(kind);
  for (int number = 0; number < 128; ++number) {
    for (const bool isNegative : {false, true}) {
      const int magnitude = law.values[static_cast<size_t>(number)] * kSteps;
      value[codeOf(kind, number, isNegative)] = static_cast<Qvx16s>(isNegative ? -magnitude : magnitude);
    }
  }
  return value;
}

template <class T> std::vector<T> count(size_t n) {
  std::vector<T> v(n);
  std::iota(v.begin(), v.end(), T(0));
  return v;
}

void decodes(Kind kind, QvxStatus (*to16)(const Qvx8u*, Qvx16s*, int), QvxStatus (*toFloat)(const Qvx8u*, Qvx32f*, int)) {
  const auto values = decodedAll(kind);
  Elementwise<Qvx16s, Qvx8u> integers(std::make_tuple(count<Qvx8u>(700)), [&](Qvx8u code) { return values[code]; });
  integers.run(to16);
  Elementwise<Qvx32f, Qvx8u> floats(std::make_tuple(count<Qvx8u>(700)),
                                    [&](Qvx8u code) { return std::ldexp(values[code], -15); });
  floats.run(toFloat);
  floats.runInEveryRounding(toFloat);  // no zero becomes negative
}

TEST(Companding, AllCodesDecode) {
  decodes(kA, qvxsALawToLin_8u16s, qvxsALawToLin_8u32f);
  decodes(kMu, qvxsMuLawToLin_8u16s, qvxsMuLawToLin_8u32f);
}

// Rounded half away with the half added in 32 bits, and clipped.
Qvx16s to16(Qvx32f v) {
  volatile Qvx32f product = v * 32768;
  if (!(product <= 32767)) return 32767;
  if (product < -32768) return -32768;
  volatile Qvx32f sum = product + (product < 0 ? -0.5F : 0.5F);
  return static_cast<Qvx16s>(sum);
}

void encodes(Kind kind, QvxStatus (*from16)(const Qvx16s*, Qvx8u*, int), QvxStatus (*fromFloat)(const Qvx32f*, Qvx8u*, int)) {
  Elementwise<Qvx8u, Qvx16s> integers(std::make_tuple(count<Qvx16s>(65536)), [=](Qvx16s x) { return encoded(kind, x, x < 0); });
  integers.run(from16);
  integers.runOnce(from16);

  std::vector<Qvx32f> source = hardFloats<Qvx32f>();
  for (Qvx32f& v : source) v /= 32768;
  for (const Qvx32f v : hardFloats<Qvx32f>()) source.push_back(v);
  for (int i = -32800; i <= 32800; i += 3) source.push_back(static_cast<Qvx32f>(i) / 65536);
  const auto oracle = [=](Qvx32f v) {
    const Qvx16s x = to16(v);
    return encoded(kind, x, kind == kA ? x < 0 : v < 0);  // only mu-law knows a negative zero
  };
  Elementwise<Qvx8u, Qvx32f> floats(std::make_tuple(source), oracle);
  floats.run(fromFloat);
  floats.runInEveryRounding(fromFloat);
}

TEST(Companding, AllValuesEncode) {
  encodes(kA, qvxsLinToALaw_16s8u, qvxsLinToALaw_32f8u);
  encodes(kMu, qvxsLinToMuLaw_16s8u, qvxsLinToMuLaw_32f8u);
}

TEST(Companding, KnownCodes) {
  const Qvx16s zero[1] = {0};
  const Qvx32f zeros[3] = {0.0F, -0.0F, -1e-9F};
  Qvx8u code[3];
  qvxsLinToALaw_16s8u(zero, code, 1);
  EXPECT_EQ(code[0], 0xD5);
  qvxsLinToMuLaw_32f8u(zeros, code, 3);
  EXPECT_TRUE(code[0] == 0xFF && code[1] == 0xFF && code[2] == 0x7F);
  const Qvx8u aCodes[4] = {0, 1, 2, 3};
  std::vector<Qvx16s> linear(4);
  qvxsALawToLin_8u16s(aCodes, linear.data(), 4);
  EXPECT_EQ(linear, (std::vector<Qvx16s>{-5504, -5248, -6016, -5760}));
  qvxsMuLawToLin_8u16s(aCodes, linear.data(), 4);
  EXPECT_TRUE(linear[0] == -32124 && linear[3] == -29052);
}

// ---- from law to law: the runs of the recommendation's tables 3 and 4, with both laws counted from 0

struct Run {
  int from, to;  // numbers of the source law
  int value;     // of the first
  int repeat;    // how many numbers share a value
  int step;      // from one value to the next
};

std::vector<int> table(const std::vector<Run>& runs) {
  std::vector<int> t;
  for (const Run& r : runs) {
    for (int n = r.from; n <= r.to; ++n) t.push_back(r.value + (n - r.from) / r.repeat * r.step);
  }
  return t;
}
// clang-format off
std::vector<int> muToA() {
  return table({{0, 15, 0, 2, 1}, {16, 31, 8, 1, 1}, {32, 35, 24, 1, 2}, {36, 47, 32, 1, 1}, {48, 49, 45, 1, 2},
                {50, 63, 48, 1, 1}, {64, 64, 63, 1, 1}, {65, 79, 64, 1, 1}, {80, 127, 80, 1, 1}});
}
std::vector<int> aToMu() {
  return table({{0, 7, 1, 1, 2}, {8, 23, 16, 1, 1}, {24, 31, 32, 2, 1}, {32, 43, 36, 1, 1}, {44, 47, 48, 2, 1},
                {48, 61, 50, 1, 1}, {62, 63, 64, 2, 1}, {64, 78, 65, 1, 1}, {79, 79, 79, 1, 1}, {80, 127, 80, 1, 1}});
}
// clang-format on

void converts(Kind from, const std::vector<int>& numbers, QvxStatus (*f)(const Qvx8u*, Qvx8u*, int)) {
  ASSERT_EQ(numbers.size(), 128U);
  std::vector<Qvx8u> codes(256);
  for (int n = 0; n < 128; ++n) {
    for (const bool isNegative : {false, true}) {
      codes[codeOf(from, n, isNegative)] = codeOf(from == kA ? kMu : kA, numbers[static_cast<size_t>(n)], isNegative);
    }
  }
  Elementwise<Qvx8u, Qvx8u>(std::make_tuple(count<Qvx8u>(700)), [&](Qvx8u code) { return codes[code]; }).run(f);
}

TEST(Companding, LawToLaw) {
  converts(kA, aToMu(), qvxsALawToMuLaw_8u);
  converts(kMu, muToA(), qvxsMuLawToALaw_8u);
}

// What the recommendation says of there and back: which numbers change, and that only their last bit does.
std::vector<int> changedThereAndBack(Kind kind) {
  std::vector<int> changed;
  for (int n = 0; n < 128; ++n) {
    const Qvx8u code = codeOf(kind, n, false);
    Qvx8u there;
    Qvx8u back;
    (kind == kA ? qvxsALawToMuLaw_8u : qvxsMuLawToALaw_8u)(&code, &there, 1);
    (kind == kA ? qvxsMuLawToALaw_8u : qvxsALawToMuLaw_8u)(&there, &back, 1);
    EXPECT_EQ(code & 0xFE, back & 0xFE);
    if (code != back) changed.push_back(n);
  }
  return changed;
}

TEST(Companding, ThereAndBack) {
  EXPECT_EQ(changedThereAndBack(kMu), (std::vector<int>{0, 2, 4, 6, 8, 10, 12, 14}));
  EXPECT_EQ(changedThereAndBack(kA), (std::vector<int>{25, 27, 29, 31, 44, 46, 62, 79}));
}

// Nearly all conversions give the nearest value of the other law. A-law overloads at 3.14 dBm0, mu-law at 3.17. The one exception
// is the pair in which a mu-law interval has its larger part, but not its middle, in the next A-law interval: it goes there, and
// its neighbour gives way for the sake of the way back.
TEST(Companding, LawToLawIsNearest) {
  const Law a = aLaw();
  const Law mu = muLaw();
  const double unit = 8159.0 / 8192 / std::pow(10, (3.17 - 3.14) / 20);
  const auto strays = [](const Law& from, double fromUnit, const Law& to, double toUnit, const std::vector<int>& numbers) {
    std::vector<int> all;
    for (size_t n = 0; n < 128; ++n) {
      const auto distance = [&](int k) {
        return std::abs(from.values[n] * fromUnit - to.values[static_cast<size_t>(std::clamp(k, 0, 127))] * toUnit);
      };
      const int k = numbers[n];
      if (distance(k) > std::min(distance(k - 1), distance(k + 1))) all.push_back(static_cast<int>(n));
    }
    return all;
  };
  EXPECT_EQ(strays(mu, 1, a, unit, muToA()), std::vector<int>{80});
  EXPECT_EQ(strays(a, unit, mu, 1, aToMu()), std::vector<int>{79});
}

// ---- bits

struct Bits {
  std::vector<Qvx32u> word;
  std::vector<int> length;
};

Bits someBits(size_t n, int most, Random& random) {
  Bits b;
  for (size_t i = 0; i < n; ++i) {
    b.word.push_back(static_cast<Qvx32u>(random()));
    b.length.push_back(static_cast<int>(random() % static_cast<uint64_t>(most + 1)));
    if (most > 32 && random() % 8 == 0) b.length.back() = random() % 2 == 0 ? -1 : INT32_MIN;
  }
  return b;
}

void packs(const Bits& b, int offset) {
  SCOPED_TRACE(std::to_string(b.word.size()) + " words, offset " + std::to_string(offset));
  std::vector<bool> wanted;
  for (int i = 0; i < offset; ++i) wanted.push_back((0xC9 >> (7 - i % 8) & 1) != 0);
  QvxStatus status = qvxStatOk;
  for (size_t i = 0; i < b.word.size(); ++i) {
    const int length = std::clamp(b.length[i], 0, 32);
    if (length != b.length[i]) status = qvxWarnBadBitLen;
    for (int bit = length - 1; bit >= 0; --bit) wanted.push_back((b.word[i] >> bit & 1) != 0);
  }
  const int count = static_cast<int>(wanted.size()) - offset;
  while (wanted.size() % 8 != 0) wanted.push_back(false);
  std::vector<Qvx8u> dst(wanted.size() / 8 + 1, 0xC9);  // and a byte after
  int total = -1;
  const int n = static_cast<int>(b.word.size());
  ASSERT_EQ(qvxsPackBits_32u8u(b.word.data(), b.length.data(), n, dst.data(), offset, &total), status);
  ASSERT_EQ(total, count);
  ASSERT_EQ(dst.back(), 0xC9);
  for (size_t i = 0; i < wanted.size(); ++i) ASSERT_EQ((dst[i / 8] >> (7 - i % 8) & 1) != 0, wanted[i]) << "bit " << i;
}

TEST(PackBits, BitByBit) {
  Random random(seed());
  for (const int most : {0, 1, 3, 8, 31, 32, 40}) {
    for (int offset = 0; offset < 20; ++offset) {
      for (const size_t n : {1, 2, 3, 7, 16, 65}) packs(someBits(n, most, random), offset);
    }
  }
  packs({{0xFFFFFFFF, 0x12345678, 5}, {32, 33, -1}}, 0);
  packs({std::vector<Qvx32u>(9, 0xFFFFFFFF), std::vector<int>(9, 32)}, 7);
}

}  // namespace
