// Records of transforms of any length: the lengths that exist, the reported sizes, memory that runs out.
#include <qvx/qvxcore.h>

#include <numbers>
#include <optional>

#include "dft/transforms.h"
#include "support/rounding.h"

namespace {

template <class Spec> int reportedBytes(const tests::DftLife<Spec>& life, int len) {
  Spec* spec = nullptr;
  EXPECT_EQ(life.initAlloc(&spec, len, QVX_FFT_SCALE_NONE, 0), qvxStatOk) << len;
  int bytes = -1;
  EXPECT_EQ(life.getBufSize(spec, &bytes), qvxStatOk) << len;
  EXPECT_EQ(life.free(spec), qvxStatOk);
  return bytes;
}

struct Row {
  int len;
  int complex32;
  int complex64;
  int real32;
  int real64;
};
// Few points; powers of two; factors 4 and 5, 2 and 17, 4 and 17, 4 and 53; large primes by themselves, and beside a 2; half of
// 46, odd factors; the lengths of convolutions, of which some have factors themselves.
constexpr Row kRows[] = {
    {1, 0, 0, 0, 0},
    {16, 0, 0, 0, 0},
    {32, 0, 0, 0, 0},
    {64, 544, 1056, 0, 0},
    {17, 168, 304, 100, 168},   // as defined
    {18, 208, 352, 0, 0},       // 6 3
    {20, 224, 384, 0, 0},       // 5 4
    {34, 472, 880, 168, 304},   // 17 2
    {46, 616, 1168, 216, 400},  // 23 2
    {47, 408, 784, 220, 408},   //
    {51, 608, 1152, 336, 608},  // 3 17
    {53, 1024 + 1056 + 32, 53 * 16 + 32, 1024 + 1056 + 32, 53 * 8 + 32},
    {67, 1152 + 1216 + 32, 67 * 16 + 32, 1152 + 1216 + 32, 67 * 8 + 32},
    {68, (68 + 68) * 8 + 64, (68 + 68) * 16 + 64, (34 + 17) * 8 + 64, (34 + 17) * 16 + 64},
    {81, 81 * 8 + 64, 81 * 16 + 64, 81 * 4 + 64, 81 * 8 + 64},
    {101, 256 * 8 + 2080 + 32, 256 * 16 + 4128 + 32, 256 * 8 + 2080 + 32, 256 * 16 + 4128 + 32},
    {106, 256 * 8 + 2080 + 32, (106 + 53) * 16 + 64, 1024 + 1056 + 32, 53 * 16 + 32},
    {212, (212 + 212) * 8 + 64, (212 + 212) * 16 + 64, 256 * 8 + 2080 + 32, (106 + 53) * 16 + 64},
    {1000, 1000 * 8 + 64, 1000 * 16 + 64, 500 * 8 + 64, 500 * 16 + 64},
    {3200 - 1, 6400 * 8 + 6400 * 8 + 64 + 32, 6400 * 16 + 6400 * 16 + 64 + 32, 6400 * 8 + 6400 * 8 + 64 + 32,
     6400 * 16 + 6400 * 16 + 64 + 32},
};

TEST(DftRecord, ReportsTheBytesOfWorkingMemory) {
  for (const Row& row : kRows) {
    SCOPED_TRACE(row.len);
    EXPECT_EQ(reportedBytes(tests::kDft32fc.life, row.len), row.complex32);
    EXPECT_EQ(reportedBytes(tests::kDft32f.life, row.len), row.complex32);
    EXPECT_EQ(reportedBytes(tests::kDft64fc.life, row.len), row.complex64);
    EXPECT_EQ(reportedBytes(tests::kDft64f.life, row.len), row.complex64);
    EXPECT_EQ(reportedBytes(tests::kRealDft32f.life, row.len), row.real32);
    EXPECT_EQ(reportedBytes(tests::kRealDft64f.life, row.len), row.real64);
    const int integers = row.len == 1 ? 0 : 8 * row.len + 32;
    EXPECT_EQ(reportedBytes(tests::kDft16sc, row.len), row.complex32 + integers);
    EXPECT_EQ(reportedBytes(tests::kDft16s, row.len), row.complex32 + integers);
    EXPECT_EQ(reportedBytes(tests::kRealDft16s, row.len), row.real32 + integers);
  }
  // Out of order there is no vector to reorder, but for factors that have no kernel of their own.
  EXPECT_EQ(reportedBytes(tests::kDftOutOfOrder32fc.life, 1000), 0);
  EXPECT_EQ(reportedBytes(tests::kDftOutOfOrder64fc.life, 34), 17 * 16 + 64);
  EXPECT_EQ(reportedBytes(tests::kDftOutOfOrder32fc.life, 17), 168);
  EXPECT_EQ(reportedBytes(tests::kDftOutOfOrder32fc.life, 64), 544);
}

// highest: the longest power of two; others: the first of other lengths that is refused.
template <class Spec> void checkLimits(const tests::DftLife<Spec>& life, int highest, int others) {
  const auto status = [&](int len, int flag = QVX_FFT_SCALE_NONE) {
    Spec* spec = nullptr;
    const QvxStatus result = life.initAlloc(&spec, len, flag, 0);
    EXPECT_EQ(spec, nullptr);
    return result;
  };
  for (int order = highest + 1; order <= 30; ++order) EXPECT_EQ(status(1 << order), qvxStatBadFFTOrder) << order;
  for (const int len : {others + 1, others + 6, others * 2 - 1, std::numeric_limits<int>::max()})
    EXPECT_EQ(status(len), qvxStatBadSize) << len;
  EXPECT_EQ(status(others / 2 + 5), qvxStatBadSize);  // 3 * 11 * 251 * 4051 or 19 * 71 * 24877
  EXPECT_EQ(status(0), qvxStatBadSize);
  EXPECT_EQ(status(0, 3), qvxStatBadSize);
  EXPECT_EQ(status(others + 1, 3), qvxStatBadFFTFlag);
  EXPECT_EQ(life.initAlloc(nullptr, 0, 3, 0), qvxStatNullPtr);
}

TEST(DftRecord, RefusesLengthsBeyondTheLimits) {
  checkLimits(tests::kDft32fc.life, 28, 0x8000000);
  checkLimits(tests::kDft32f.life, 28, 0x8000000);
  checkLimits(tests::kDft64fc.life, 27, 0x4000000);
  checkLimits(tests::kDft64f.life, 27, 0x4000000);
  checkLimits(tests::kRealDft32f.life, 29, 0x8000000);
  checkLimits(tests::kRealDft64f.life, 28, 0x4000000);
  checkLimits(tests::kDftOutOfOrder32fc.life, 28, 0x8000000);
  checkLimits(tests::kDftOutOfOrder64fc.life, 27, 0x4000000);
}

// A product of spectra out of order is that of a convolution.
template <class Transform> void checkConvolution(const Transform& transform, size_t n, tests::Random& random) {
  using T = typename Transform::T;
  SCOPED_TRACE(testing::Message() << transform.name << ", " << n);
  const tests::DftRecord record(transform, n, QVX_FFT_SCALE_INV);
  const auto x = tests::rounded<T>(tests::noise(n, random));
  std::vector<tests::Exact> shift(n);
  shift[n / 3] = 2;
  auto product = record.run(false, x, tests::Place::kApart);
  const auto other = record.run(false, shift, tests::Place::kSame);
  EXPECT_EQ(product, record.run(false, x, tests::Place::kSame)) << "in place";
  for (size_t k = 0; k < n; ++k) product[k] *= other[k];
  std::vector<tests::Exact> expected(n);
  for (size_t i = 0; i < n; ++i) expected[(i + n / 3) % n] = 2.0L * x[i];
  tests::Error error;
  error.add(record.run(true, tests::rounded<T>(product), tests::Place::kApart), expected, 1);
  EXPECT_LE(error.relative(), 4 * tests::allowedError<T>(n));
}

TEST(DftOutOfOrder, ProductIsAConvolution) {
  tests::Random random(tests::seed());
  for (const size_t n : {1,    2,    3,    5,    12,   17,    32,    53,    60,    101,    210,   625,
                         1000, 1009, 1024, 3000, 4410, 10000, 44100, 65537, 71875, 177147, 200000}) {
    checkConvolution(tests::kDftOutOfOrder32fc, n, random);
    checkConvolution(tests::kDftOutOfOrder64fc, n, random);
  }
}

// Records are made to nearest, whatever the caller's mode: by factors, as defined, with a chirp, by the powers of a generator.
template <class Transform, class Run> void checkRoundings(const Transform& transform, size_t n, Run run) {
  SCOPED_TRACE(testing::Message() << transform.name << ", " << n);
  decltype(run(std::declval<const tests::DftRecord<Transform>&>())) expected;
  for (const int mode : tests::kRoundings) {
    std::optional<tests::DftRecord<Transform>> record;
    {
      const tests::CallersRounding callers(mode);
      record.emplace(transform, n, QVX_FFT_SCALE_BOTH_SQRT);
    }
    const auto found = run(*record);
    if (mode == FE_TONEAREST) expected = found;
    EXPECT_TRUE(found == expected) << mode;
  }
}
TEST(DftRecord, OfAllRoundingModesAreTheSame) {
  tests::Random random(tests::seed());
  for (const size_t n : {60, 89, 97, 211, 1009}) {
    const std::vector<tests::Exact> x = tests::noise(n, random);
    std::vector<long double> reals(n);
    for (size_t i = 0; i < n; ++i) reals[i] = x[i].real();
    tests::forEachComplex([&](const auto& transform) {
      checkRoundings(transform, n, [&](const auto& record) { return record.run(false, x, tests::Place::kApart); });
    });
    tests::forEachReal([&](const auto& transform) {
      checkRoundings(transform, n,
                     [&](const auto& record) { return record.run(tests::Layout::kPack, false, reals, tests::Place::kApart); });
    });
  }
}

// The order of the spectrum, as an impulse at 1 tells it, is that of any other spectrum too, and no result is missing.
template <class OutOfOrder, class InOrder> void checkOrder(const OutOfOrder& outOfOrder, const InOrder& inOrder, size_t n) {
  using T = typename OutOfOrder::T;
  SCOPED_TRACE(testing::Message() << outOfOrder.name << ", " << n);
  const tests::DftRecord record(outOfOrder, n, QVX_FFT_SCALE_NONE);
  std::vector<tests::Exact> impulse(n);
  impulse[1] = 1;
  std::vector<size_t> order;
  for (const tests::Exact& z : record.run(false, impulse, tests::Place::kApart)) {
    const long double turns = -std::arg(z) / (2 * std::numbers::pi_v<long double>);
    order.push_back((static_cast<size_t>(std::lround(turns * n) + static_cast<long>(n))) % n);
  }
  tests::Random random(tests::seed());
  const auto x = tests::rounded<T>(tests::noise(n, random));
  const auto found = record.run(false, x, tests::Place::kApart);
  std::vector<tests::Exact> placed(n, {std::numeric_limits<long double>::infinity(), 0});
  for (size_t i = 0; i < n; ++i) placed[order[i]] = found[i];
  tests::Error error;
  error.add(placed, tests::DftRecord(inOrder, n, QVX_FFT_SCALE_NONE).run(false, x, tests::Place::kApart), 1);
  EXPECT_LE(error.relative(), 2 * tests::allowedError<T>(n));
}

TEST(DftOutOfOrder, IsAPermutation) {
  for (const size_t n : {7, 60, 1001, 1024, 10000, 44100, 177147, 200000, 215441}) {
    checkOrder(tests::kDftOutOfOrder32fc, tests::kDft32fc, n);
    checkOrder(tests::kDftOutOfOrder64fc, tests::kDft64fc, n);
  }
}

}  // namespace
