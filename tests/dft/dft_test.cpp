// Transforms of any length: against the definition, and all forms against each other.
#include <qvx/qvxcore.h>

#include <cstring>

#include "dft/transforms.h"

namespace {

using tests::Exact;
using tests::Random;

constexpr int kFlags[] = {QVX_FFT_SCALE_FWD, QVX_FFT_SCALE_INV, QVX_FFT_SCALE_BOTH_SQRT, QVX_FFT_SCALE_NONE};

long double factorOf(int flag, bool isInverse, size_t n) {
  const auto all = static_cast<long double>(n);
  if (flag == QVX_FFT_SCALE_BOTH_SQRT) return 1 / std::sqrt(all);
  return flag == (isInverse ? QVX_FFT_SCALE_INV : QVX_FFT_SCALE_FWD) ? 1 / all : 1;
}

// The factor is rounded too, and that of flag 4 in single precision an estimate.
template <class T> long double slackOf(int flag, bool isInverse) {
  const long double eps = std::numeric_limits<T>::epsilon();
  return flag == QVX_FFT_SCALE_BOTH_SQRT ? 3 * eps : factorOf(flag, isInverse, 2) != 1 ? 0.5L * eps : 0;
}

// Of short transforms the error is a matter of luck: so many are drawn that all together have 512 points.
size_t repetitions(size_t n) { return 512 / n + 1; }

template <class Transform> void checkComplex(const Transform& transform, size_t n, Random& random) {
  using T = typename Transform::T;
  const size_t count = repetitions(n);
  std::vector<std::vector<Exact>> sources;
  std::vector<std::vector<Exact>> spectra[2];
  for (size_t i = 0; i < count; ++i) {
    sources.push_back(tests::rounded<T>(tests::noise(n, random)));
    spectra[0].push_back(tests::dft(sources[i], -1));
    spectra[1].push_back(tests::dft(sources[i], 1));
  }
  for (const int flag : kFlags) {
    const tests::DftRecord record(transform, n, flag);
    for (const bool isInverse : {false, true}) {
      SCOPED_TRACE(testing::Message() << transform.name << ", " << n << " points, flag " << flag
                                      << (isInverse ? ", inverse" : ""));
      tests::Error error;
      for (size_t i = 0; i < count; ++i) {
        const auto found = record.run(isInverse, sources[i], tests::Place::kApart);
        error.add(found, spectra[isInverse][i], factorOf(flag, isInverse, n));
        if (i > 0) continue;
        EXPECT_EQ(found, record.run(isInverse, sources[i], tests::Place::kSame)) << "in place";
      }
      const long double slack = slackOf<T>(flag, isInverse);
      EXPECT_LE(error.relative(), tests::allowedError<T>(n) + slack);
    }
  }
}

// The oracle takes the definition apart by fours and twos.
TEST(Dft, TheOracleIsTheDefinition) {
  Random random(tests::seed());
  for (const size_t n : {1, 2, 3, 4, 6, 7, 8, 12, 16, 20, 24, 32, 36, 64, 72, 80, 96}) {
    const std::vector<Exact> x = tests::noise(n, random);
    for (const int sign : {-1, 1}) {
      const std::vector<Exact> found = tests::dft(x, sign);
      for (size_t k = 0; k < n; ++k) {
        Exact sum = 0;
        for (size_t i = 0; i < n; ++i) {
          const Exact root = tests::rootOfUnity(i * k, n);
          sum += x[i] * (sign < 0 ? std::conj(root) : root);
        }
        EXPECT_LE(std::abs(found[k] - sum), 1e-17L * static_cast<long double>(n)) << n << " points, result " << k;
      }
    }
  }
}

TEST(Dft, IsTheDefinition) {
  Random random(tests::seed());
  for (size_t n = 1; n <= 300; ++n) {
    tests::forEachComplex([&](const auto& transform) { checkComplex(transform, n, random); });
  }
}

std::vector<long double> packed(const std::vector<Exact>& spectrum, tests::Layout layout) {
  return reference::packed<long double>(layout, spectrum);
}

template <class Transform> void checkReal(const Transform& transform, size_t n, Random& random) {
  using T = typename Transform::T;
  const size_t count = repetitions(n);
  std::vector<std::vector<long double>> sequences;
  std::vector<std::vector<Exact>> spectra;
  for (size_t i = 0; i < count; ++i) {
    std::vector<Exact> x = tests::rounded<T>(tests::noise(n, random));
    for (Exact& z : x) z = z.real();
    sequences.emplace_back();
    for (const Exact& z : x) sequences[i].push_back(z.real());
    spectra.push_back(tests::dft(x, -1));
  }
  for (const int flag : kFlags) {
    const tests::DftRecord record(transform, n, flag);
    for (const auto layout : {tests::Layout::kPerm, tests::Layout::kPack, tests::Layout::kCcs}) {
      SCOPED_TRACE(testing::Message() << transform.name << ", " << n << " numbers, flag " << flag << ", layout "
                                      << static_cast<int>(layout));
      tests::Error forward;
      tests::Error inverse;
      for (size_t i = 0; i < count; ++i) {
        const auto found = record.run(layout, false, sequences[i], tests::Place::kApart);
        forward.add(found, packed(spectra[i], layout), factorOf(flag, false, n));
        std::vector<long double> spectrum;
        for (const long double v : packed(spectra[i], layout)) spectrum.push_back(static_cast<T>(v));
        // What the inverse takes is the definition's, rounded: to the sequence that this is the spectrum of, it adds an error.
        const auto back = record.run(layout, true, spectrum, tests::Place::kApart);
        inverse.add(back, sequences[i], factorOf(flag, true, n) * static_cast<long double>(n));
        if (i > 0) continue;
        EXPECT_EQ(found, record.run(layout, false, sequences[i], tests::Place::kSame)) << "in place";
        if (layout == tests::Layout::kCcs) {
          spectrum[1] = std::numeric_limits<T>::quiet_NaN();
          if (n % 2 == 0) spectrum[n + 1] = std::numeric_limits<T>::quiet_NaN();
        }
        EXPECT_EQ(back, record.run(layout, true, spectrum, tests::Place::kSame)) << "inverse in place";
      }
      EXPECT_LE(forward.relative(), tests::allowedError<T>(n) + slackOf<T>(flag, false));
      // What is brought back was rounded before.
      EXPECT_LE(inverse.relative(),
                tests::allowedError<T>(n) + slackOf<T>(flag, true) + 0.3L * std::numeric_limits<T>::epsilon());
    }
  }
}

TEST(Dft, OfRealsIsTheDefinition) {
  Random random(tests::seed());
  for (size_t n = 1; n <= 300; ++n) {
    tests::forEachReal([&](const auto& transform) { checkReal(transform, n, random); });
  }
}

// Longer ones, each a way of its own to do it: impulses, whose spectrum is known at any point, there and back. Of primes whose
// other order has factors up to 13, the powers of the least number that 2 and 3 allow do not reach all points of 8191 (for 5),
// 4733 (for 7 and 13) and 3631 (for 11).
TEST(Dft, LongImpulses) {
  const auto check = [](const auto& transform, size_t n) {
    using T = typename std::decay_t<decltype(transform)>::T;
    SCOPED_TRACE(testing::Message() << transform.name << ", " << n << " points");
    std::vector<Exact> x(n);
    const size_t at[] = {0, 1, n / 3, n - 2};
    for (size_t i = 0; i < 4; ++i) x[at[i]] = {1.0L + i, 0.5L - i};
    const tests::DftRecord record(transform, n, QVX_FFT_SCALE_INV);
    const std::vector<Exact> spectrum = record.run(false, x, tests::Place::kApart);
    const long double bound = 12 * 8 * std::numeric_limits<T>::epsilon();
    for (size_t k = 0; k < n; k += n / 4093 + 1) {
      Exact expected = 0;
      for (const size_t i : at) expected += x[i] * std::conj(tests::rootOfUnity(i * k, n));
      ASSERT_LE(std::abs(spectrum[k] - expected), bound) << k;
    }
    const std::vector<Exact> back = record.run(true, spectrum, tests::Place::kApart);
    EXPECT_EQ(back, record.run(true, spectrum, tests::Place::kSame)) << "in place";
    for (size_t i = 0; i < n; ++i) ASSERT_LE(std::abs(back[i] - x[i]), bound) << i;
  };
  for (const size_t n : {323,   509,   961,    1000,   1001,   1009,   1849,   2000,   2001,   2003,   2187,  2520,
                         2880,  3631,  4099,   4410,   4733,   5000,   5041,   5507,   8191,   10000,  44100, 48000,
                         65537, 99999, 100000, 131070, 148225, 177147, 215441, 262143, 300000, 1058400}) {
    tests::forEachComplex([&](const auto& transform) { check(transform, n); });
  }
}

// Long real sequences, whose transforms of half the length go by two dimensions: noise, against the complex transform.
template <class Real, class Complex> void checkLongReal(const Real& real, const Complex& complex, size_t n) {
  using T = typename Real::T;
  SCOPED_TRACE(testing::Message() << real.name << ", " << n << " numbers");
  Random random(tests::seed());
  std::vector<Exact> x = tests::rounded<T>(tests::noise(n, random));
  std::vector<long double> numbers;
  for (Exact& z : x) z = z.real(), numbers.push_back(z.real());
  const std::vector<Exact> whole = tests::DftRecord(complex, n, QVX_FFT_SCALE_NONE).run(false, x, tests::Place::kApart);
  const tests::DftRecord record(real, n, QVX_FFT_SCALE_INV);
  for (const auto layout : {tests::Layout::kPerm, tests::Layout::kPack, tests::Layout::kCcs}) {
    const auto found = record.run(layout, false, numbers, tests::Place::kApart);
    tests::Error forward;
    forward.add(found, packed(whole, layout), 1);
    EXPECT_LE(forward.relative(), 2 * tests::allowedError<T>(n));
    EXPECT_EQ(found, record.run(layout, false, numbers, tests::Place::kSame)) << "in place";
    const auto back = record.run(layout, true, found, tests::Place::kApart);
    tests::Error inverse;
    inverse.add(back, numbers, 1);
    EXPECT_LE(inverse.relative(), 2 * tests::allowedError<T>(n));
    EXPECT_EQ(back, record.run(layout, true, found, tests::Place::kSame)) << "inverse in place";
  }
}

// Long ones are divided between two threads: by tiles, of which each thread has its own; in place all steps but one.
TEST(Dft, AnyNumberOfThreadsGivesTheSame) {
  Random random(tests::seed());
  const auto check = [&](const auto& transform, size_t n) {
    using T = typename std::decay_t<decltype(transform)>::T;
    const std::vector<Exact> x = tests::rounded<T>(tests::noise(n, random));
    const tests::DftRecord record(transform, n, QVX_FFT_SCALE_NONE);
    for (const bool isInverse : {false, true}) {
      for (const auto place : {tests::Place::kApart, tests::Place::kSame}) {
        qvxSetNumThreads(1);
        const auto alone = record.run(isInverse, x, place);
        qvxSetNumThreads(2);
        for (int i = 0; i < 3; ++i) EXPECT_EQ(record.run(isInverse, x, place), alone) << transform.name << ", " << n << " points";
      }
    }
    qvxSetNumThreads(0);
  };
  for (const size_t n : {100000, 177147}) {
    tests::forEachComplex([&](const auto& transform) { check(transform, n); });
  }
}

TEST(Dft, OfLongReals) {
  for (const size_t n : {375, 625, 729, 1459, 2003, 3125, 59049, 65537, 96000, 177147, 2 * 177147}) {
    checkLongReal(tests::kRealDft32f, tests::kDft32fc, n);
    checkLongReal(tests::kRealDft64f, tests::kDft64fc, n);
  }
}

}  // namespace
