// Tones, triangle waves, ramps and chirps beside their definitions in long double.
#include <gtest/gtest.h>
#include <qvx/qvxs.h>

#include <cmath>
#include <numbers>

#include "support/blocks.h"
#include "support/values.h"

namespace {

using Real = long double;
using tests::Part;
constexpr Real kPi = std::numbers::pi_v<Real>;

// Whole turns are taken off before the cosine, so that a long tone's last samples are as sure as its first.
Real turnsAt(int n, Real rFreq, Real phase) {
  const Real turns = n * rFreq + phase / (2 * kPi);
  return turns - std::floor(turns);
}
Real triangleAt(Real turns, Real asym) {
  turns -= std::floor(turns);
  const Real theta = 2 * kPi * turns, fall = kPi + asym, rise = kPi - asym;
  return theta < fall ? 1 - 2 * theta / fall : (theta - fall) * 2 / rise - 1;
}
template <class T, class... Where> void expectSample(T y, Real exact, Real error, const Where&... where) {
  if constexpr (std::is_integral_v<T>) error += 0.5L;
  ASSERT_LE(std::abs(y - exact), error) << (testing::Message() << ... << where);
}

constexpr double kFrequencies[] = {0, 1e-7, 0.001, 0.01234567, 0.125, 0.25, 0.3333, 0.49999};

template <class T, class Phase, class Run> void expectTone(Run run, double magn, double error) {
  constexpr bool kIsComplex = sizeof(T) > sizeof(Part<T>);
  for (const double f : kFrequencies) {
    for (const int len : {1, 2, 7, 8, 16, 33, 64, 65, 100, 257, 1024, 1025, 3000, 70001}) {
      for (const int hint : {0, 1}) {
        const auto rFreq = static_cast<Phase>(f), start = static_cast<Phase>(len % 5 * 1.25);
        std::vector<T> y(static_cast<size_t>(len));
        Phase phase = start;
        ASSERT_EQ(run(y.data(), len, static_cast<Part<T>>(magn), rFreq, &phase, hint), qvxStatOk);
        const auto* const parts = reinterpret_cast<const Part<T>*>(y.data());
        for (int n = 0; n < len; ++n) {
          const Real angle = 2 * kPi * turnsAt(n, rFreq, start);
          const Real values[] = {std::cos(angle) * magn, std::sin(angle) * magn};
          for (int k = 0; k < 1 + kIsComplex; ++k) {
            const Part<T> sample = parts[(1 + kIsComplex) * n + k];
            expectSample(sample, values[k], error * magn, f, ", length ", len, ", sample ", n);
          }
        }
        const Real left = 2 * kPi * turnsAt(len, rFreq, start), apart = std::abs(phase - left);
        const Real allowed = (static_cast<Real>(len) + 8) * std::numeric_limits<double>::epsilon() * 8 +
                             4 * static_cast<Real>(std::numeric_limits<Phase>::epsilon());
        ASSERT_TRUE(phase >= 0 && phase < static_cast<Phase>(2 * kPi));
        ASSERT_LE(std::min(apart, 2 * kPi - apart), allowed) << f << ", length " << len;
        ASSERT_TRUE(f != 0 || phase == start);
      }
    }
  }
}

TEST(Tone, IsACosine) {
  expectTone<Qvx32f, Qvx32f>(qvxsTone_Direct_32f, 3.5, 0x1p-21 * 0.7);
  expectTone<Qvx32fc, Qvx32f>(qvxsTone_Direct_32fc, 1e-3F, 0x1p-21 * 0.7);
  expectTone<Qvx64f, Qvx64f>(qvxsTone_Direct_64f, 0.9, 0x1p-45);
  expectTone<Qvx64fc, Qvx64f>(qvxsTone_Direct_64fc, 1e5, 0x1p-45);
  expectTone<Qvx16s, Qvx32f>(qvxsTone_Direct_16s, 32767, 0x1p-21 * 0.7);
  expectTone<Qvx16sc, Qvx32f>(qvxsTone_Direct_16sc, 1000, 0x1p-21 * 0.7);
}

// The peaks of the greatest magnitudes are numbers.
template <class T, class Run> void expectFinite(Run run) {
  constexpr auto kMost = std::numeric_limits<Part<T>>::max();
  std::vector<T> y(20000);
  const auto* const parts = reinterpret_cast<const Part<T>*>(y.data());
  const size_t count = y.size() * sizeof(T) / sizeof(Part<T>);
  for (int i = 0; i < 100; ++i) {
    const auto f = static_cast<Part<T>>(0.00493 * i);
    Part<T> phase = 0;
    ASSERT_EQ(run(y.data(), static_cast<int>(y.size()), kMost, f, &phase, 0), qvxStatOk);
    ASSERT_TRUE(std::all_of(parts, parts + count, [](Part<T> v) { return std::isfinite(v); })) << f;
  }
}
TEST(Tone, OfTheGreatestMagnitudeIsFinite) {
  expectFinite<Qvx32f>(qvxsTone_Direct_32f);
  expectFinite<Qvx32fc>(qvxsTone_Direct_32fc);
  expectFinite<Qvx64f>(qvxsTone_Direct_64f);
  expectFinite<Qvx64fc>(qvxsTone_Direct_64fc);
}

// Two calls as one: the phase is all there is between them.
TEST(Tone, ContinuesByItsPhase) {
  std::vector<Qvx64f> whole(5000), cut(5000);
  for (const double f : kFrequencies) {
    Qvx64f phase = 1, cutPhase = 1;
    ASSERT_EQ(qvxsTone_Direct_64f(whole.data(), 5000, 2, f, &phase, 1), qvxStatOk);
    for (int at = 0, len = 1; at < 5000; at += len, len = std::min(2 * len + 1, 5000 - at)) {
      ASSERT_EQ(qvxsTone_Direct_64f(&cut[static_cast<size_t>(at)], len, 2, f, &cutPhase, 1), qvxStatOk);
    }
    for (size_t i = 0; i < whole.size(); ++i) ASSERT_NEAR(whole[i], cut[i], 1e-11) << f << ", " << i;
  }
  // The phase is stored as it is though the destination is refused.
  Qvx32f phase = 6.2831855F;
  EXPECT_EQ(qvxsTone_Direct_32f(nullptr, 0, 1, 0.1F, &phase, 0), qvxStatBadTonePhase);
  phase = 1;
  EXPECT_EQ(qvxsTone_Direct_32f(nullptr, 0, 1, 0.1F, &phase, 0), qvxStatNullPtr);
  EXPECT_EQ(phase, 1);
}

template <class T, class Phase, class Run> void expectTriangle(Run run, double magn, double flat, double steep) {
  constexpr bool kIsComplex = sizeof(T) > sizeof(Part<T>);
  for (const double f : kFrequencies) {
    for (const double a : {0.0, 1.0, -2.5, 2.587852, -2.912759, 3.14, -3.1415926}) {
      for (const int len : {1, 2, 9, 31, 64, 77, 1025, 20001}) {
        const auto rFreq = static_cast<Phase>(f), asym = static_cast<Phase>(a), start = static_cast<Phase>(len % 5 * 1.57);
        std::vector<T> y(static_cast<size_t>(len));
        Phase phase = start;
        ASSERT_EQ(run(y.data(), len, static_cast<Part<T>>(magn), rFreq, asym, &phase), qvxStatOk);
        const auto* const parts = reinterpret_cast<const Part<T>*>(y.data());
        const Real slope = kPi / (kPi - std::abs(static_cast<Real>(asym)));
        for (int n = 0; n < len; ++n) {
          const Real turns = turnsAt(n, rFreq, start);
          for (int k = 0; k < 1 + kIsComplex; ++k) {
            const Part<T> sample = parts[(1 + kIsComplex) * n + k];
            const Real exact = magn * triangleAt(turns - 0.25L * k, asym);
            ASSERT_LE(std::abs(static_cast<double>(sample)), magn);
            expectSample(sample, exact, magn * (flat + (steep + n * 0x1p-62) * slope), f, ", asymmetry ", a, ", length ", len,
                         ", sample ", n);
          }
        }
      }
    }
  }
}

TEST(Triangle, IsItsLines) {
  expectTriangle<Qvx32f, Qvx32f>(qvxsTriangle_Direct_32f, 3.5, 0x1p-23, 0x1p-21);
  expectTriangle<Qvx32f, Qvx32f>(qvxsTriangle_Direct_32f, 0x1p126, 0x1p-23, 0x1p-21);
  expectTriangle<Qvx32f, Qvx32f>(qvxsTriangle_Direct_32f, 0x1p-100, 0x1p-23, 0x1p-21);
  expectTriangle<Qvx32fc, Qvx32f>(qvxsTriangle_Direct_32fc, 100, 0x1p-23, 0x1p-21);
  expectTriangle<Qvx64f, Qvx64f>(qvxsTriangle_Direct_64f, 0.75, 0x1p-50, 0x1p-49);
  expectTriangle<Qvx64fc, Qvx64f>(qvxsTriangle_Direct_64fc, 1, 0x1p-50, 0x1p-49);
  expectTriangle<Qvx16s, Qvx32f>(qvxsTriangle_Direct_16s, 32767, 0x1p-50, 0x1p-49);
  expectTriangle<Qvx16sc, Qvx32f>(qvxsTriangle_Direct_16sc, 999, 0x1p-50, 0x1p-49);
}

// Of -pi the wave falls in no time, of pi it would rise in none.
TEST(Triangle, TakesAsymmetriesFromMinusPiToBelowPi) {
  Qvx32f y, phase = 0;
  Qvx64f z, widePhase = 0;
  EXPECT_EQ(qvxsTriangle_Direct_32f(&y, 1, 1, 0.01F, -3.1415927F, &phase), qvxStatOk);
  EXPECT_EQ(qvxsTriangle_Direct_32f(&y, 1, 1, 0.01F, 3.1415925F, &phase), qvxStatOk);
  EXPECT_EQ(qvxsTriangle_Direct_32f(&y, 1, 1, 0.01F, 3.1415927F, &phase), qvxStatBadTriangleAsym);
  EXPECT_EQ(qvxsTriangle_Direct_64f(&z, 1, 1, 0.01, 3.141592653589793, &widePhase), qvxStatBadTriangleAsym);
  EXPECT_EQ(qvxsTriangle_Direct_64f(&z, 1, 1, 0.01, 3.1415926535897927, &widePhase), qvxStatOk);
}

TEST(Triangle, WithoutAFallStaysWithinItsMagnitude) {
  std::vector<Qvx32f> y(1000);
  std::vector<Qvx64f> z(1000);
  Qvx32f phase = 0.5F;
  Qvx64f widePhase = 0.5;
  ASSERT_EQ(qvxsTriangle_Direct_32f(y.data(), 1000, 3e38F, 0.01F, -3.1415927F, &phase), qvxStatOk);
  ASSERT_EQ(qvxsTriangle_Direct_64f(z.data(), 1000, 3, 0.01, -std::numbers::pi, &widePhase), qvxStatOk);
  for (size_t i = 0; i < y.size(); ++i) {
    const Real rising = 2 * turnsAt(static_cast<int>(i), 0.01L, 0.5L) - 1;
    ASSERT_LE(std::abs(y[i]), 3e38F);
    ASSERT_NEAR(z[i], static_cast<double>(3 * rising), 1e-9) << i;
  }
}

// Exact halves: at frequencies that are powers of two, and magnitudes of 1 and 3, every value is known.
TEST(Triangle, RoundsHalvesAwayFromZero) {
  Qvx16s y[16];
  Qvx32f phase = 0;
  ASSERT_EQ(qvxsTriangle_Direct_16s(y, 16, 3, 0.0625F, 0, &phase), qvxStatOk);  // 3, 2.25, 1.5, 0.75, 0, -0.75, -1.5 ...
  EXPECT_EQ(std::vector<int>(y, y + 16), (std::vector<int>{3, 2, 2, 1, 0, -1, -2, -2, -3, -2, -2, -1, 0, 1, 2, 2}));
}

// Q15: samples of one stream wherever it is cut, in the caller's memory and in its own.
template <class State, class Init, class InitAlloc, class Run, class Direct, class Free, class Oracle>
void expectQ15(int size, Init init, InitAlloc initAlloc, Run run, Direct direct, Free release, Oracle oracle) {
  tests::Block block(256);
  std::vector<Qvx16s> y(6000), z(6000);
  for (const int f : {0, 1, 333, 4096, 16383}) {
    for (const int start : {0, 1, 100000, 205886}) {
      auto* here = reinterpret_cast<State*>(block.atOffset(static_cast<size_t>(f % 9), static_cast<size_t>(size)));
      State* there = nullptr;
      ASSERT_EQ(init(here, 30001, f, start), qvxStatOk);
      ASSERT_EQ(initAlloc(&there, 30001, f, start), qvxStatOk);
      ASSERT_EQ(run(y.data(), 6000, here), qvxStatOk);
      for (int at = 0, len = 1; at < 6000; at += len, len = std::min(len % 41 * 3 + 1, 6000 - at)) {
        ASSERT_EQ(run(&z[static_cast<size_t>(at)], len, there), qvxStatOk);
      }
      ASSERT_EQ(y, z) << f << ", phase " << start;
      ASSERT_EQ(direct(z.data(), 6000, 30001, f, start), qvxStatOk);
      for (size_t n = 0; n < y.size(); ++n) {
        const Real turns = turnsAt(static_cast<int>(n), f / 32768.0L, start / 32768.0L);
        ASSERT_LE(std::abs(y[n] - 30001 * oracle(turns)), 0.5001L) << f << ", phase " << start << ", sample " << n;
        ASSERT_LE(std::abs(y[n] - z[n]), 1);
      }
      ASSERT_EQ(release(here), qvxStatOk);
      ASSERT_EQ(run(z.data(), 1, here), qvxStatOk);
      ASSERT_EQ(release(there), qvxStatOk);
      ASSERT_TRUE(block.isIntact());
    }
  }
}
TEST(Q15, StreamsAreTheSameHoweverCut) {
  int size = 0;
  ASSERT_EQ(qvxsToneGetStateSizeQ15_16s(&size), qvxStatOk);
  ASSERT_EQ(size, 48);
  expectQ15<QvxsToneState>(size, qvxsToneInitQ15_16s, qvxsToneInitAllocQ15_16s, qvxsToneQ15_16s, qvxsToneQ15_Direct_16s,
                           qvxsToneFree, [](Real turns) { return std::cos(2 * kPi * turns); });
  ASSERT_EQ(qvxsTriangleGetStateSizeQ15_16s(&size), qvxStatOk);
  ASSERT_EQ(size, 136);
  constexpr Qvx32s kAsym = -20000;
  expectQ15<QvxsTriangleState>(
      size, [](auto* s, Qvx16s m, int f, Qvx32s p) { return qvxsTriangleInitQ15_16s(s, m, static_cast<Qvx16s>(f), kAsym, p); },
      [](auto** s, Qvx16s m, int f, Qvx32s p) { return qvxsTriangleInitAllocQ15_16s(s, m, static_cast<Qvx16s>(f), kAsym, p); },
      qvxsTriangleQ15_16s,
      [](Qvx16s* d, int len, Qvx16s m, int f, Qvx32s p) {
        return qvxsTriangleQ15_Direct_16s(d, len, m, static_cast<Qvx16s>(f), kAsym, p);
      },
      qvxsTriangleFree, [](Real turns) { return triangleAt(turns, kAsym / 32768.0L); });
}

// ---- lines and chirps

template <class T> T elementOf(double v) {
  if constexpr (std::is_floating_point_v<T>) {
    return static_cast<T>(v);
  } else {
    const double away = v > 0 ? std::floor(v + 0.5) : std::ceil(v - 0.5);
    if (away >= static_cast<double>(std::numeric_limits<T>::max())) return std::numeric_limits<T>::max();
    if (away <= static_cast<double>(std::numeric_limits<T>::min())) return std::numeric_limits<T>::min();
    return static_cast<T>(away);
  }
}
template <class T, class Ramp> void expectRamp(Ramp ramp, Ramp slopeOf) {
  using Line = std::conditional_t<sizeof(T) == 8, Qvx64f, Qvx32f>;
  std::vector<T> y(3000), z(3000);
  // At 683 the last slope brings 1 to a hair above the middle of two floats, which is the middle in doubles.
  for (const double offset : {0.0, 1.0, 2.5, -2.5, 100.25, 32000.0, -3e9, 4.2e9}) {
    for (const double slope : {0.0, 0.5, -0.5, 0.0078125, 1000.0, -1e-3, 0.1, 3e6, -1e9, 12576771 * 0x1p-57}) {
      const auto from = static_cast<Line>(offset), by = static_cast<Line>(slope);
      for (const int len : {1, 5, 31, 130, 3000}) {
        ASSERT_EQ(ramp(y.data(), len, from, by), qvxStatOk);
        ASSERT_EQ(slopeOf(z.data(), len, from, by), qvxStatOk);
        for (int n = 0; n < len; ++n) {
          const auto at = static_cast<size_t>(n);
          ASSERT_EQ(y[at], elementOf<T>(n * static_cast<double>(by) + static_cast<double>(from)))
              << offset << " + " << slope << " * " << n;
          ASSERT_EQ(z[at], y[at]);
        }
      }
    }
  }
}
TEST(Ramp, IsRoundedOnce) {
  expectRamp<Qvx8u>(qvxsVectorRamp_8u, qvxsVectorSlope_8u);
  expectRamp<Qvx8s>(qvxsVectorRamp_8s, qvxsVectorSlope_8s);
  expectRamp<Qvx16u>(qvxsVectorRamp_16u, qvxsVectorSlope_16u);
  expectRamp<Qvx16s>(qvxsVectorRamp_16s, qvxsVectorSlope_16s);
  expectRamp<Qvx32u>(qvxsVectorRamp_32u, qvxsVectorSlope_32u);
  expectRamp<Qvx32s>(qvxsVectorRamp_32s, qvxsVectorSlope_32s);
  expectRamp<Qvx32f>(qvxsVectorRamp_32f, qvxsVectorSlope_32f);
  expectRamp<Qvx64f>(qvxsVectorRamp_64f, qvxsVectorSlope_64f);
}

template <class T, class Chirp> void expectChirp(Chirp chirp, T magn, double error) {
  constexpr bool kShifts = std::is_unsigned_v<T>;
  for (const int len : {1, 2, 5, 16, 100, 1001, 60000}) {
    std::vector<T> y(static_cast<size_t>(len));
    ASSERT_EQ(chirp(y.data(), len, magn), qvxStatOk);
    const Real size = kShifts ? static_cast<Real>(magn) / 2 : static_cast<Real>(magn);
    std::vector<Real> exact;
    for (int64_t n = 0; n < len; ++n) exact.push_back(size * std::sin(kPi / 2 * static_cast<Real>(n * n % (4LL * len)) / len));
    const Real least = kShifts ? -std::round(-*std::min_element(exact.begin(), exact.end())) : 0;
    for (size_t n = 0; n < exact.size(); ++n) {
      const Real wanted = std::min(exact[n] - least, static_cast<Real>(std::numeric_limits<T>::max()));
      ASSERT_LE(std::abs(y[n] - wanted), (std::is_integral_v<T> ? 0.5L : 0) + error * size) << "length " << len << ", " << n;
      if (std::is_same_v<T, Qvx32f>) {
        ASSERT_LE(std::abs(y[n] - wanted), 1.2L * 0x1p-24L * std::abs(wanted) + 0x1p-60L * size) << "length " << len << ", " << n;
      }
    }
    ASSERT_TRUE(!kShifts || *std::min_element(y.begin(), y.end()) == 0) << len;
  }
}
TEST(Chirp, SweepsToHalfTheRate) {
  expectChirp<Qvx8u>(qvxsVectorJaehne_8u, 255, 1e-12);
  expectChirp<Qvx8s>(qvxsVectorJaehne_8s, 127, 1e-12);
  expectChirp<Qvx16u>(qvxsVectorJaehne_16u, 65535, 1e-12);
  expectChirp<Qvx16s>(qvxsVectorJaehne_16s, 32767, 1e-12);
  expectChirp<Qvx32u>(qvxsVectorJaehne_32u, 4000000000U, 1e-12);
  expectChirp<Qvx32s>(qvxsVectorJaehne_32s, 2147483647, 1e-12);
  expectChirp<Qvx32f>(qvxsVectorJaehne_32f, 2.5F, 0x1p-24);
  expectChirp<Qvx64f>(qvxsVectorJaehne_64f, 1e6, 0x1p-50);
  Qvx32f x = 9;
  EXPECT_EQ(qvxsVectorJaehne_32f(&x, 1, -1), qvxStatBadJaehneMagn);
  EXPECT_EQ(x, 9);
}

}  // namespace
