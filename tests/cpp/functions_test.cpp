// Functions by stem: each picks the export that its elements mean, and refuses lengths that do not fit together.
#include <gtest/gtest.h>

#include <array>
#include <complex>
#include <vector>

#include <qvx/qvxs.hpp>

namespace {

template <class T> std::vector<T> ramp(int first, int count) {
  std::vector<T> numbers;
  for (int i = 0; i < count; ++i) numbers.push_back(static_cast<T>(first + i));
  return numbers;
}

TEST(Functions, VectorsAndConstantsOfOneType) {
  const std::vector<Qvx32f> a = ramp<Qvx32f>(-20, 37);
  const std::vector<Qvx32f> b = ramp<Qvx32f>(3, 37);
  std::vector<Qvx32f> face(37);
  std::vector<Qvx32f> c(37);
  EXPECT_EQ(qvx::Sub(a, b, face), qvxStatOk);
  EXPECT_EQ(qvxsSub_32f(a.data(), b.data(), c.data(), 37), qvxStatOk);
  EXPECT_EQ(face, c);
  EXPECT_EQ(qvx::SubCRev(a, 100, face), qvxStatOk);  // a number becomes one of the elements' type
  EXPECT_EQ(qvxsSubCRev_32f(a.data(), 100, c.data(), 37), qvxStatOk);
  EXPECT_EQ(face, c);
  EXPECT_EQ(qvx::MulC(0.3, face), qvxStatOk);  // one vector: in place
  EXPECT_EQ(qvxsMulC_32f_I(0.3F, c.data(), 37), qvxStatOk);
  EXPECT_EQ(face, c);
  EXPECT_EQ(qvx::Div(b, face), qvxStatOk);
  EXPECT_EQ(qvxsDiv_32f_I(b.data(), c.data(), 37), qvxStatOk);
  EXPECT_EQ(face, c);
}

TEST(Functions, ScaleFactorsComeLast) {
  const std::vector<Qvx16s> a = ramp<Qvx16s>(-300, 61);
  const std::vector<Qvx16s> b = ramp<Qvx16s>(200, 61);
  std::vector<Qvx16s> face(61);
  std::vector<Qvx16s> c(61);
  EXPECT_EQ(qvx::Mul(a, b, face, 3), qvxStatOk);
  EXPECT_EQ(qvxsMul_16s_Sfs(a.data(), b.data(), c.data(), 61, 3), qvxStatOk);
  EXPECT_EQ(face, c);
  EXPECT_EQ(qvx::Mul(a, b, face), qvxStatOk);  // saturates
  EXPECT_EQ(qvxsMul_16s(a.data(), b.data(), c.data(), 61), qvxStatOk);
  EXPECT_EQ(face, c);
  std::vector<Qvx32s> wideFace(61);
  std::vector<Qvx32s> wide(61);
  EXPECT_EQ(qvx::Mul(a, b, wideFace, 1), qvxStatOk);  // the destination's type counts too
  EXPECT_EQ(qvxsMul_16s32s_Sfs(a.data(), b.data(), wide.data(), 61, 1), qvxStatOk);
  EXPECT_EQ(wideFace, wide);

  // Where C has another order, and a rounding mode.
  const std::vector<Qvx64s> longs = ramp<Qvx64s>(-9, 19);
  std::vector<Qvx64s> longFace(19);
  std::vector<Qvx64s> longC(19);
  EXPECT_EQ(qvx::AddC(longs, 4, longFace, qvx::Rounding::kHalfAway, 1), qvxStatOk);
  EXPECT_EQ(qvxsAddC_64s_Sfs(longs.data(), 4, longC.data(), 19, 1, qvxRoundHalfAway), qvxStatOk);
  EXPECT_EQ(longFace, longC);
  EXPECT_EQ(qvx::MulC(0.25, longFace, 0), qvxStatOk);  // by a fraction, not by an integer
  EXPECT_EQ(qvxsMulC_64f64s_ISfs(0.25, longC.data(), 19, 0), qvxStatOk);
  EXPECT_EQ(longFace, longC);
  EXPECT_EQ(qvx::MulC(3, longFace, 1), qvxStatOk);
  EXPECT_EQ(qvxsMulC_64s_ISfs(3, longC.data(), 19, 1), qvxStatOk);
  EXPECT_EQ(longFace, longC);
}

// Elements that C tells by the name of the function alone.
TEST(Functions, PackedAndHalfElements) {
  const std::array<qvx::Int24, 2> packed = {{{{1, 0, 0x80}}, {{0xFF, 0xFF, 0xFF}}}};
  std::array<Qvx32s, 2> integers;
  EXPECT_EQ(qvx::Convert(packed, integers), qvxStatOk);
  EXPECT_EQ(integers[0], -0x7FFFFF);
  EXPECT_EQ(integers[1], -1);
  const std::array<qvx::UInt24, 2> positive = {{{{1, 0, 0x80}}, {{0xFF, 0xFF, 0xFF}}}};
  std::array<Qvx32u, 2> unsignedOnes;
  EXPECT_EQ(qvx::Convert(positive, unsignedOnes), qvxStatOk);
  EXPECT_EQ(unsignedOnes[0], 0x800001U);

  const std::array<Qvx32f, 2> numbers = {1, -2};
  std::array<qvx::Half, 2> halves;
  EXPECT_EQ(qvx::Convert(numbers, halves, qvx::Rounding::kNearestEven), qvxStatOk);
  EXPECT_EQ(halves[0], qvx::Half{0x3C00});
  std::array<Qvx32f, 2> back;
  EXPECT_EQ(qvx::Convert(halves, back), qvxStatOk);
  EXPECT_EQ(back, numbers);
}

TEST(Functions, ComplexNumbersOfTheStandardLibrary) {
  const std::vector<std::complex<Qvx32f>> a = {{1, 2}, {3, -4}, {0, 1}};
  std::vector<std::complex<Qvx32f>> product(3);
  EXPECT_EQ(qvx::Mul(a, a, product), qvxStatOk);
  EXPECT_EQ(product[1], a[1] * a[1]);
  EXPECT_EQ(qvx::AddC(std::complex<Qvx32f>(1, -1), product), qvxStatOk);
  EXPECT_EQ(product[2], std::complex<Qvx32f>(0, -1));
  EXPECT_EQ(qvx::MulC(2, product), qvxStatOk);  // a real number is a complex one
  EXPECT_EQ(product[2], std::complex<Qvx32f>(0, -2));
  std::complex<Qvx32f> sum;
  EXPECT_EQ(qvx::Sum(a, sum), qvxStatOk);
  EXPECT_EQ(sum, std::complex<Qvx32f>(4, -1));
  std::vector<Qvx32f> magnitudes(3);
  EXPECT_EQ(qvx::Magnitude(a, magnitudes), qvxStatOk);
  EXPECT_FLOAT_EQ(magnitudes[1], 5);
}

TEST(Functions, ResultsOfOneElement) {
  const std::vector<Qvx16s> x = {5, -7, 30000, 2};
  Qvx16s least = 0;
  Qvx16s most = 0;
  int leastAt = 0;
  int mostAt = 0;
  EXPECT_EQ(qvx::MinMaxIndx(x, least, leastAt, most, mostAt), qvxStatOk);
  EXPECT_EQ(least, -7);
  EXPECT_EQ(leastAt, 1);
  EXPECT_EQ(most, 30000);
  EXPECT_EQ(mostAt, 2);
  Qvx32s sum = 0;
  EXPECT_EQ(qvx::Sum(x, sum, 0), qvxStatOk);
  EXPECT_EQ(sum, 30000);
  Qvx32f norm = 0;
  EXPECT_EQ(qvx::Norm_L1(x, norm), qvxStatOk);
  EXPECT_EQ(norm, 30014);
}

TEST(Functions, ChannelsArePointers) {
  std::vector<Qvx32f> left = {0.5F, 0.25F};
  std::vector<Qvx32f> right = {-1, 1};
  std::vector<Qvx16s> frames(4);
  const std::array<Qvx32f*, 2> channels = {left.data(), right.data()};
  EXPECT_EQ(qvx::JoinScaled(channels, 2, frames), qvxStatOk);
  EXPECT_EQ(frames[1], -32768);
  left.assign(2, 0);
  EXPECT_EQ(qvx::SplitScaled(frames, channels, 2), qvxStatOk);
  EXPECT_NEAR(left[1], 0.25, 1e-4);
  frames.pop_back();
  EXPECT_EQ(qvx::JoinScaled(channels, 2, frames), qvxStatBadSize);
}

// An optional vector is left out by an empty span.
TEST(Functions, OptionalVectors) {
  const std::vector<Qvx32f> parts = {1, 2, 3};
  std::vector<Qvx32fc> complexes(3);
  EXPECT_EQ(qvx::RealToCplx(std::span<Qvx32f>(), parts, complexes), qvxStatOk);
  EXPECT_EQ(complexes[2].re, 0);
  EXPECT_EQ(complexes[2].im, 3);
  EXPECT_EQ(qvx::RealToCplx(std::span(parts).first(2), parts, complexes), qvxStatBadSize);
}

// Destinations are one element short of what the table of extents says, which an unchecked call would write past.
TEST(Functions, WrongLengthsAreRefused) {
  const std::vector<Qvx32f> x = ramp<Qvx32f>(1, 10);
  std::vector<Qvx32f> y(10, -5);
  const std::vector<Qvx32f> untouched = y;
  const auto some = [&](size_t count) { return std::span(y).first(count); };
  EXPECT_EQ(qvx::Add(x, x, some(9)), qvxStatBadSize);
  EXPECT_EQ(qvx::Add(std::span(x).first(9), x, y), qvxStatBadSize);
  EXPECT_EQ(qvx::Conv(std::span(x).first(6), std::span(x).first(6), y), qvxStatBadSize);  // 11 results
  int phase = 1;
  int count = 0;
  EXPECT_EQ(qvx::SampleDown(x, some(2), count, 3, phase), qvxStatBadSize);  // 3 results from the second on
  EXPECT_EQ(qvx::SampleUp(std::span(x).first(4), y, count, 3, phase), qvxStatBadSize);
  EXPECT_EQ(qvx::SampleUp(x, y, count, 2'000'000'000, phase), qvxStatBadSize);
  EXPECT_EQ(qvx::WTHaarFwd(x, some(5), some(4)), qvxStatBadSize);
  std::vector<Qvx32fc> spectrum(10);
  EXPECT_EQ(qvx::ConjCcs(x, spectrum), qvxStatBadSize);  // 12 numbers hold it
  EXPECT_EQ(qvx::FIR_Direct(x, y, std::span(x).first(4), some(7), count), qvxStatBadSize);
  const std::vector<Qvx8u> keys(9);
  std::vector<Qvx32s> places(5);
  std::vector<Qvx32s> scratch(6);
  EXPECT_EQ(qvx::SortRadixIndexAscend(keys, 2, places, scratch), qvxStatOk);  // scratch may be longer
  EXPECT_EQ(qvx::SortRadixIndexAscend(keys, 3, places, scratch), qvxStatBadSize);
  EXPECT_EQ(qvx::SortRadixIndexAscend(keys, -2, places, scratch), qvxStatBadSize);
  std::vector<Qvx8u> bytes(3);
  int bits = 0;
  const std::array<Qvx32u, 3> values = {1, 2, 3};
  EXPECT_EQ(qvx::PackBits(values, std::array<int, 3>{8, 16, -40}, bytes, 1, bits), qvxStatBadSize);
  EXPECT_EQ(qvx::PackBits(values, std::array<int, 3>{8, 16, -40}, bytes, 0, bits), qvxWarnBadBitLen);
  EXPECT_EQ(y, untouched);

  // Whatever else the library refuses comes as its own status.
  EXPECT_EQ(qvx::SampleDown(x, y, count, 0, phase), qvxStatBadSampleFactor);
  EXPECT_EQ(qvx::Add(std::span<Qvx32f>(), std::span<Qvx32f>(), std::span<Qvx32f>()), qvxStatNullPtr);
  EXPECT_EQ(qvx::Zero(some(0)), qvxStatBadSize);
}

TEST(Results, TellRefusalsFromWarnings) {
  std::vector<Qvx32f> x = {4, -1};
  EXPECT_TRUE(qvx::Sqrt(x).orThrow());  // of a negative number
  x = {4, 1};
  EXPECT_FALSE(qvx::Sqrt(x).orThrow());
  try {
    qvx::DivC(0, x).orThrow();
    FAIL() << "not refused";
  } catch (const qvx::Error& error) {
    EXPECT_EQ(error.status(), qvxStatDivByZero);
    EXPECT_STREQ(error.what(), "qvxStatDivByZero: a constant divisor or a leading tap is zero");
  }
}

TEST(Functions, MemoryOfTheLibrary) {
  qvx::Vector<Qvx32fc> x = qvx::Vector<Qvx32fc>::make(5).value();
  EXPECT_EQ(reinterpret_cast<uintptr_t>(x.data()) % 64, 0U);
  EXPECT_EQ(qvx::Zero(x), qvxStatOk);
  const Qvx32fc* const where = x.data();
  qvx::Vector<Qvx32fc> y = std::move(x);
  EXPECT_EQ(y.data(), where);
  EXPECT_TRUE(x.empty());  // NOLINT(bugprone-use-after-move): what is promised of it
  EXPECT_EQ(qvx::Vector<Qvx8u>::make(size_t{1} << 40).error(), qvxStatBadSize);
}

}  // namespace
