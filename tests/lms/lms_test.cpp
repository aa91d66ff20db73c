// Adaptive filters: each step against its definition, blocks against steps, records.
#include <gtest/gtest.h>
#include <qvx/qvxs.h>

#include "reference/lms.h"
#include "support/blocks.h"
#include "support/values.h"

namespace {

using tests::Block;
using tests::Random;

constexpr double kEps = 0x1p-24;

// Around whole vectors of all widths, around what registers hold, and more than that.
const int kLengths[] = {1, 2, 3, 4, 5, 7, 8, 9, 15, 16, 17, 31, 32, 33, 47, 63, 64, 65, 100, 127, 128, 129, 255, 256, 257, 300};

float unit(Random& random) { return static_cast<float>(static_cast<int32_t>(random())) * 0x1p-31F; }
template <class T> T sample(Random& random) {
  if constexpr (std::is_integral_v<T>) return static_cast<T>(random());
  else return unit(random);
}
template <class T> std::vector<T> samples(size_t n, Random& random) {
  std::vector<T> x(n);
  for (T& v : x) v = sample<T>(random);
  return x;
}
// Half of the largest step at which taps settle.
template <class T> float settling(int taps) {
  const double power = std::is_integral_v<T> ? 0x1p30 / 3 : 1.0 / 3;
  return static_cast<float>(0.25 / (taps * power));
}

// The exports of one type of samples.
template <class S, class T> struct Family {
  using Sample = T;
  QvxStatus (*allocate)(S**, const Qvx32f*, int, const T*, int);
  QvxStatus (*run)(const T*, const T*, T*, int, S*, Qvx32f);
  QvxStatus (*getTaps)(const S*, Qvx32f*);
  QvxStatus (*getLine)(const S*, T*, int*);
  QvxStatus (*setLine)(S*, const T*, int);
  QvxStatus (*release)(S*);
  QvxStatus (*one)(T, T, Qvx32f, T*, Qvx32f*, int, T*, int*);
};
const Family<QvxsFIRLMSState_32f, Qvx32f> kFloats = {qvxsFIRLMSInitAlloc_32f,  qvxsFIRLMS_32f,           qvxsFIRLMSGetTaps_32f,
                                                     qvxsFIRLMSGetDlyLine_32f, qvxsFIRLMSSetDlyLine_32f, qvxsFIRLMSFree_32f,
                                                     qvxsFIRLMSOne_Direct_32f};
const Family<QvxsFIRLMSState32f_16s, Qvx16s> kShorts = {
    qvxsFIRLMSInitAlloc32f_16s,  qvxsFIRLMS32f_16s,     qvxsFIRLMSGetTaps32f_16s,   qvxsFIRLMSGetDlyLine32f_16s,
    qvxsFIRLMSSetDlyLine32f_16s, qvxsFIRLMSFree32f_16s, qvxsFIRLMSOne_Direct32f_16s};

// What the output of a sum y may be, off by `error`.
template <class T> void expectOutput(T got, long double y, long double error, const std::string& where) {
  if constexpr (std::is_integral_v<T>) {
    const auto integer = [](long double v) { return std::clamp<long double>(std::nearbyint(v), INT16_MIN, INT16_MAX); };
    ASSERT_TRUE(got >= integer(y - error) && got <= integer(y + error)) << where << ": " << got << ", not " << y;
  } else {
    ASSERT_LE(std::abs(got - y), error) << where;
  }
}

// A step from any taps and any line, before unreadable pages: output, taps, line and index.
template <class S, class T> void expectSteps(const Family<S, T>& family) {
  Random random(tests::seed());
  Block tapsBlock(2048), lineBlock(8192);
  for (const int n : kLengths) {
    for (int round = 0; round < 20; ++round) {
      const auto size = static_cast<size_t>(n);
      auto* taps = reinterpret_cast<float*>(tapsBlock.atEnd(size * sizeof(float)));
      auto* line = reinterpret_cast<T*>(lineBlock.atEnd(2 * size * sizeof(T)));
      const auto h = samples<float>(size, random);
      const auto x = samples<T>(size, random);
      int index = static_cast<int>(random() % size);
      const auto oldest = static_cast<size_t>(index);
      std::copy(h.begin(), h.end(), taps);
      for (size_t i = 0; i < 2 * size; ++i) line[i] = x[i % size];
      reference::Lms exact;
      for (size_t k = 0; k < size; ++k) {
        exact.h.push_back(h[size - 1 - k]);
        exact.x.push_back(x[(oldest + size - 1 - k) % size]);
      }
      const T v = sample<T>(random), ref = sample<T>(random);
      const float mu = settling<T>(n) * unit(random);
      T y;
      ASSERT_EQ(family.one(v, ref, mu, &y, taps, n, line, &index), qvxStatOk);
      ASSERT_TRUE(tapsBlock.isIntact() && lineBlock.isIntact());
      const std::string where = std::to_string(n) + " taps, index " + std::to_string(oldest);
      const long double sum = exact.step(v, ref, mu), error = (n + 1) * kEps * exact.magnitude;
      expectOutput(y, sum, error, where);
      for (size_t k = 0; k < size; ++k) {
        const long double change = 2 * mu * exact.x[k];
        const long double most = std::abs(change) * (error + 4 * kEps * std::abs(ref - sum)) + 2 * kEps * std::abs(exact.h[k]);
        ASSERT_LE(std::abs(taps[size - 1 - k] - exact.h[k]), most) << where << ", tap " << k;
        ASSERT_EQ(line[(oldest + 2 * size - k) % size], static_cast<T>(exact.x[k])) << where;
        ASSERT_EQ(line[(oldest + 2 * size - k) % size + size], static_cast<T>(exact.x[k])) << where;
      }
      ASSERT_EQ(index, static_cast<int>((oldest + 1) % size));
      if (testing::Test::HasFatalFailure()) return;
    }
  }
}
TEST(Lms, OneStepIsAsDefined) {
  expectSteps(kFloats);
  expectSteps(kShorts);
}

template <class S, class T> struct Stream {
  std::vector<T> y;
  std::vector<float> taps;
  std::vector<T> line;
  int index = -1;
};

// Pieces of up to `most` samples, in separate vectors or on one of the sources.
template <class S, class T>
Stream<S, T> streamed(const Family<S, T>& family, const std::vector<float>& h, const std::vector<T>& line, int index,
                      const std::vector<T>& x, const std::vector<T>& ref, float mu, size_t most, int place, Random& random) {
  S* state = nullptr;
  EXPECT_EQ(family.allocate(&state, h.data(), static_cast<int>(h.size()), line.data(), index), qvxStatOk);
  Stream<S, T> out;
  for (size_t at = 0; at < x.size();) {
    const size_t n = std::min(x.size() - at, 1 + random() % most);
    std::vector<T> a(x.begin() + static_cast<int64_t>(at), x.begin() + static_cast<int64_t>(at + n));
    std::vector<T> r(ref.begin() + static_cast<int64_t>(at), ref.begin() + static_cast<int64_t>(at + n)), d(n);
    std::vector<T>& dst = place == 1 ? a : place == 2 ? r : d;
    EXPECT_EQ(family.run(a.data(), r.data(), dst.data(), static_cast<int>(n), state, mu), qvxStatOk);
    out.y.insert(out.y.end(), dst.begin(), dst.end());
    at += n;
  }
  out.taps.resize(h.size());
  out.line.resize(h.size());
  EXPECT_EQ(family.getTaps(state, out.taps.data()), qvxStatOk);
  EXPECT_EQ(family.getLine(state, out.line.data(), &out.index), qvxStatOk);
  EXPECT_EQ(family.release(state), qvxStatOk);
  return out;
}

// A stream, whatever its cut, gives what the definition gives to rounding, which does not grow while the taps settle: 3000
// samples are off by no more than a few steps are. In place it gives the same to the bit.
template <class S, class T> void expectStreams(const Family<S, T>& family) {
  Random random(tests::seed());
  for (const int n : kLengths) {
    const auto size = static_cast<size_t>(n);
    const auto h = samples<float>(size, random);
    const auto line = samples<T>(size, random), x = samples<T>(3000, random);
    auto ref = samples<T>(3000, random);
    for (T& r : ref) r = static_cast<T>(r / 8);
    const int index = static_cast<int>(random() % size);
    const float mu = settling<T>(n);
    reference::Lms exact;
    for (size_t k = 0; k < size; ++k) {
      exact.h.push_back(h[k]);
      exact.x.push_back(line[(static_cast<size_t>(index) + size - 1 - k) % size]);
    }
    long double most = 0;
    std::vector<long double> y;
    for (size_t i = 0; i < x.size(); ++i) {
      y.push_back(exact.step(x[i], ref[i], mu));
      most = std::max(most, exact.magnitude);
    }
    const long double error = 8 * (std::sqrt(static_cast<double>(n)) + 4) * kEps * most;
    for (const size_t cut : {1, 7, 200, 1500, 1 << 20}) {
      const std::string where = std::to_string(n) + " taps, cut " + std::to_string(cut);
      const Random start = random;
      const auto got = streamed(family, h, line, index, x, ref, mu, cut, 0, random);
      for (const int place : {1, 2}) {
        random = start;
        const auto other = streamed(family, h, line, index, x, ref, mu, cut, place, random);
        ASSERT_TRUE(other.y == got.y && other.taps == got.taps && other.line == got.line) << where;
      }
      ASSERT_EQ(got.index, 0);
      for (size_t i = 0; i < x.size(); ++i) {
        expectOutput(got.y[i], y[i], error, where + ", sample " + std::to_string(i));
        if (testing::Test::HasFatalFailure()) return;
      }
      const double unitOfSamples = std::is_integral_v<T> ? 32768 : 1;
      for (size_t k = 0; k < size; ++k) {
        ASSERT_LE(std::abs(got.taps[k] - exact.h[k]), 32 * kEps * (1 + static_cast<double>(most) / unitOfSamples))
            << where << ", tap " << k;
        ASSERT_EQ(got.line[k], x[x.size() - size + k]) << where;
      }
    }
  }
}
TEST(Lms, StreamsAreAsDefinedWhateverTheCut) {
  expectStreams(kFloats);
  expectStreams(kShorts);
}

// A step of size 0 filters, and leaves the taps as they are.
TEST(Lms, WithoutAStepItIsAFilter) {
  Random random(tests::seed());
  const auto h = samples<float>(20, random), x = samples<float>(500, random), ref = samples<float>(500, random);
  const auto got = streamed(kFloats, h, std::vector<float>(20), 0, x, ref, 0, 600, 0, random);
  EXPECT_EQ(got.taps, h);
  for (size_t i = 0; i < x.size(); ++i) {
    double y = 0;
    for (size_t k = 0; k <= std::min<size_t>(i, 19); ++k) y += double{h[k]} * x[i - k];
    ASSERT_NEAR(got.y[i], y, 20 * 20 * kEps);
  }
}

// Samples whose products with each other are infinite, though those with the taps are not.
TEST(Lms, LargeSamplesAreOnlyMultipliedByTaps) {
  Random random(tests::seed());
  const auto h = samples<float>(9, random);
  auto x = samples<float>(100, random);
  for (size_t i = 40; i < 60; ++i) x[i] *= 1e30F;
  const auto got = streamed(kFloats, h, std::vector<float>(9), 0, x, x, 0, 600, 0, random);
  EXPECT_EQ(got.taps, h);
  for (size_t i = 0; i < x.size(); ++i) {
    double y = 0, magnitude = 0;
    for (size_t k = 0; k <= std::min<size_t>(i, 8); ++k) {
      y += double{h[k]} * x[i - k];
      magnitude += std::abs(double{h[k]} * x[i - k]);
    }
    ASSERT_LE(std::abs(got.y[i] - y), 10 * kEps * magnitude) << i;
  }
}

// Lanes past the last tap take no part, even where a step is infinite.
TEST(Lms, InfiniteStepsStayAmongTheTaps) {
  for (const int n : {1, 3, 17, 300}) {
    QvxsFIRLMSState_32f* state = nullptr;
    ASSERT_EQ(qvxsFIRLMSInitAlloc_32f(&state, nullptr, n, nullptr, 0), qvxStatOk);
    const float x[] = {1e30F, 1e30F}, ref[] = {1, 1};
    float y[2];
    ASSERT_EQ(qvxsFIRLMS_32f(x, ref, y, 2, state, 1e10F), qvxStatOk);
    EXPECT_EQ(y[0], 0);
    if (n == 1) {
      EXPECT_EQ(y[1], INFINITY);
    }
    qvxsFIRLMSFree_32f(state);
  }
}

// ---- delay lines and records

template <class S, class T> void expectLines(const Family<S, T>& family) {
  Random random(tests::seed());
  const auto line = samples<T>(9, random), other = samples<T>(9, random);
  S* state = nullptr;
  std::vector<T> got(9);
  std::vector<float> taps(9, 1);
  int index = -1;
  ASSERT_EQ(family.allocate(&state, nullptr, 9, line.data(), 4), qvxStatOk);
  EXPECT_EQ(family.getTaps(state, taps.data()), qvxStatOk);
  EXPECT_EQ(taps, std::vector<float>(9));
  EXPECT_EQ(family.getLine(state, got.data(), &index), qvxStatOk);
  EXPECT_TRUE(got == line && index == 4);
  for (const auto& [given, kept] : {std::pair(8, 8), std::pair(9, 0), std::pair(-1, 0), std::pair(INT32_MAX, 0)}) {
    EXPECT_EQ(family.setLine(state, other.data(), given), qvxStatOk);
    EXPECT_EQ(family.getLine(state, got.data(), &index), qvxStatOk);
    EXPECT_TRUE(got == other && index == kept) << given;
  }
  EXPECT_EQ(family.setLine(state, nullptr, 3), qvxStatOk);
  EXPECT_EQ(family.getLine(state, got.data(), &index), qvxStatOk);
  EXPECT_TRUE(got == std::vector<T>(9) && index == 3);
  EXPECT_EQ(family.release(state), qvxStatOk);
  EXPECT_EQ(family.release(nullptr), qvxStatOk);
}
TEST(Lms, DelayLinesAreGivenBackAsTheyCame) {
  expectLines(kFloats);
  expectLines(kShorts);
}

// ---- Q15

// Integers, against sums of any size: taps and samples at their extremes, ties, sums that wrap.
TEST(Lms, Q15IsExact) {
  Random random(tests::seed());
  Block tapsBlock(2048), lineBlock(2048);
  for (const int n : kLengths) {
    for (int round = 0; round < 60; ++round) {
      const auto size = static_cast<size_t>(n);
      auto* taps = reinterpret_cast<Qvx32s*>(tapsBlock.atEnd(size * sizeof(Qvx32s)));
      auto* line = reinterpret_cast<Qvx16s*>(lineBlock.atEnd(2 * size * sizeof(Qvx16s)));
      const auto h = tests::values<Qvx32s>(size, random);
      auto x = tests::values<Qvx16s>(size, random);
      const auto v = tests::value<Qvx16s>(random), ref = tests::value<Qvx16s>(random);
      const int mu = round % 3 == 0 ? 1 << random() % 31 : tests::value<int>(random);
      std::copy(h.begin(), h.end(), taps);
      for (size_t i = 0; i < 2 * size; ++i) line[i] = x[i % size];
      int index = static_cast<int>(random() % size);
      x[static_cast<size_t>(index)] = v;
      const auto oldest = (static_cast<size_t>(index) + 1) % size;
      Qvx16s y;
      ASSERT_EQ(qvxsFIRLMSOne_DirectQ15_16s(v, ref, mu, &y, taps, n, line, &index), qvxStatOk);
      ASSERT_TRUE(tapsBlock.isIntact() && lineBlock.isIntact());
      reference::Wide sum = 0;
      for (size_t i = 0; i < size; ++i) sum += reference::Wide{h[i]} * x[(oldest + i) % size];
      ASSERT_EQ(y, reference::scaled<Qvx16s>(sum, 15)) << n << " taps";
      const reference::Wide error = reference::saturated<Qvx16s>(reference::Wide{ref} - y);
      for (size_t i = 0; i < size; ++i) {
        const reference::Wide tap = (reference::Wide{h[i]} << 30) + 2 * reference::Wide{mu} * error * x[(oldest + i) % size];
        ASSERT_EQ(taps[i], reference::scaled<Qvx32s>(tap, 30)) << n << " taps, step " << mu;
      }
    }
  }
}

}  // namespace
