// Analytic signals: the definition at all lengths, from floats and integers, and what they say of a tone.
#include <gtest/gtest.h>
#include <qvx/qvxs.h>

#include <climits>
#include <cstring>
#include <limits>
#include <optional>
#include <random>

#include "reference/hilbert.h"
#include "support/blocks.h"
#include "support/owned.h"
#include "support/rounding.h"
#include "support/ulp.h"
#include "support/values.h"

namespace {

using tests::Owned;
using tests::Random;

struct Of32f : Owned<QvxsHilbertSpec_32f32fc> {
  explicit Of32f(size_t len) : Owned(qvxsHilbertFree_32f32fc, qvxsHilbertInitAlloc_32f32fc, static_cast<int>(len), 0) {}
};
struct Of16s32fc : Owned<QvxsHilbertSpec_16s32fc> {
  explicit Of16s32fc(size_t len) : Owned(qvxsHilbertFree_16s32fc, qvxsHilbertInitAlloc_16s32fc, static_cast<int>(len), 0) {}
};
struct Of16s16sc : Owned<QvxsHilbertSpec_16s16sc> {
  explicit Of16s16sc(size_t len) : Owned(qvxsHilbertFree_16s16sc, qvxsHilbertInitAlloc_16s16sc, static_cast<int>(len), 0) {}
};

// The error allowed for two transforms.
long double allowedError(size_t n) {
  const long double factor = (tests::largestPrimeFactor(n) > 13 ? 1.2L : 0.6L) * tests::unfused();
  return std::numeric_limits<float>::epsilon() * std::max(0.5L, factor * std::sqrt(std::log2(static_cast<long double>(n))));
}

template <class C> void expectNear(const std::vector<C>& found, const std::vector<long double>& h) {
  long double error = 0;
  long double size = 0;
  for (size_t i = 0; i < h.size(); ++i) {
    error += std::pow(static_cast<long double>(found[i].im) - h[i], 2);
    size += h[i] * h[i];
  }
  if (h.size() < 3) EXPECT_EQ(error, 0);
  else EXPECT_LE(std::sqrt(error / size), allowedError(h.size())) << h.size();
}

std::vector<size_t> lengths() {
  std::vector<size_t> all = {256, 300, 509, 512, 1000, 1001, 1009, 1024, 2048, 3000, 4096, 4410, 8192, 10007, 16384};
  for (size_t n = 1; n <= 200; ++n) all.push_back(n);
  return all;
}

TEST(Hilbert, IsTheDefinition) {
  Random random(tests::seed());
  std::normal_distribution<float> normal;
  for (const size_t n : lengths()) {
    std::vector<Qvx32f> x(n);
    for (Qvx32f& v : x) v = normal(random);
    const Of32f record(n);
    tests::Block src(n * 4), dst(n * 8);
    auto* from = reinterpret_cast<Qvx32f*>(src.atEnd(n * 4));
    auto* to = reinterpret_cast<Qvx32fc*>(dst.atEnd(n * 8));
    std::copy(x.begin(), x.end(), from);
    EXPECT_EQ(qvxsHilbert_32f32fc(from, to, record.get()), qvxStatOk);
    EXPECT_TRUE(src.isIntact() && dst.isIntact()) << n;
    const std::vector<Qvx32fc> found(to, to + n);
    for (size_t i = 0; i < n; ++i) EXPECT_EQ(found[i].re, x[i]) << n;
    expectNear(found, tests::hilbertTransform(x));
    // Beginning where the source does.
    auto* same = reinterpret_cast<Qvx32f*>(to);
    std::copy(x.begin(), x.end(), same);
    EXPECT_EQ(qvxsHilbert_32f32fc(same, to, record.get()), qvxStatOk);
    EXPECT_EQ(std::memcmp(to, found.data(), n * 8), 0) << n;
  }
}

TEST(Hilbert, OfIntegers) {
  Random random(tests::seed());
  for (const size_t n : lengths()) {
    std::vector<Qvx16s> x(n);
    for (Qvx16s& v : x) v = static_cast<Qvx16s>(random() >> 48);
    const std::vector<long double> h = tests::hilbertTransform(x);
    const Of16s32fc floats(n);
    std::vector<Qvx32fc> z(n);
    EXPECT_EQ(qvxsHilbert_16s32fc(x.data(), z.data(), floats.get()), qvxStatOk);
    for (size_t i = 0; i < n; ++i) EXPECT_EQ(z[i].re, x[i]) << n;
    expectNear(z, h);
    const Of16s16sc integers(n);
    for (const int scaleFactor : {0, 1, 5, -2, 40}) {
      std::vector<Qvx16sc> y(n);
      EXPECT_EQ(qvxsHilbert_16s16sc_Sfs(x.data(), y.data(), integers.get(), scaleFactor), qvxStatOk);
      for (size_t i = 0; i < n; ++i) {
        const auto scaled = [=](long double v) { return std::clamp(std::ldexp(v, -scaleFactor), -32768.0L, 32767.0L); };
        EXPECT_LE(std::fabs(scaled(x[i]) - static_cast<long double>(y[i].re)), 0.5L) << n;
        EXPECT_LE(std::fabs(scaled(h[i]) - static_cast<long double>(y[i].im)), 0.6L) << n << ", " << scaleFactor;
      }
    }
  }
}

// A whole number of periods: the magnitude is the amplitude, and the phase goes on by the frequency.
TEST(Hilbert, OfATone) {
  for (const size_t n : {48, 100, 101, 1024, 44100}) {
    const Of32f record(n);
    const double step = 2 * M_PI * 7 / static_cast<double>(n);
    std::vector<Qvx32f> x(n);
    for (size_t i = 0; i < n; ++i) x[i] = static_cast<Qvx32f>(0.75 * std::cos(step * static_cast<double>(i)));
    std::vector<Qvx32fc> z(n);
    EXPECT_EQ(qvxsHilbert_32f32fc(x.data(), z.data(), record.get()), qvxStatOk);
    for (size_t i = 0; i < n; ++i) {
      EXPECT_NEAR(z[i].re, 0.75 * std::cos(step * static_cast<double>(i)), 2e-6) << n;
      EXPECT_NEAR(z[i].im, 0.75 * std::sin(step * static_cast<double>(i)), 2e-6) << n;
    }
  }
}

TEST(HilbertRecord, OfAllRoundingModesAreTheSame) {
  for (const size_t n : {17, 64, 97, 211}) {
    std::vector<Qvx32f> x(n);
    for (size_t i = 0; i < n; ++i) x[i] = static_cast<Qvx32f>(i * 7919 % 2001);
    std::vector<Qvx32fc> expected(n), found(n);
    for (const int mode : tests::kRoundings) {
      std::optional<Of32f> record;
      {
        const tests::CallersRounding callers(mode);
        record.emplace(n);
      }
      std::vector<Qvx32fc>& y = mode == FE_TONEAREST ? expected : found;
      EXPECT_EQ(qvxsHilbert_32f32fc(x.data(), y.data(), record->get()), qvxStatOk);
      EXPECT_EQ(std::memcmp(y.data(), expected.data(), n * sizeof(Qvx32fc)), 0) << n << ", " << mode;
    }
  }
}

// Before anything is allocated for it.
TEST(HilbertRecord, RefusesWhatIsTooLong) {
  QvxsHilbertSpec_32f32fc* spec = nullptr;
  EXPECT_EQ(qvxsHilbertInitAlloc_32f32fc(&spec, 1 << 29, 0), qvxStatBadFFTOrder);
  EXPECT_EQ(qvxsHilbertInitAlloc_32f32fc(&spec, 1 << 30, 0), qvxStatBadFFTOrder);
  EXPECT_EQ(qvxsHilbertInitAlloc_32f32fc(&spec, (1 << 27) + 2, 0), qvxStatBadSize);
  EXPECT_EQ(qvxsHilbertInitAlloc_32f32fc(&spec, INT_MAX, 0), qvxStatBadSize);
  EXPECT_EQ(qvxsHilbertInitAlloc_32f32fc(&spec, (1 << 26) + 15, 0), qvxStatBadSize);  // a prime
  EXPECT_EQ(spec, nullptr);
}

}  // namespace
