// Records as objects: they give what C gives, move, and know their lengths.
#include <gtest/gtest.h>

#include <array>
#include <complex>
#include <cstring>
#include <thread>
#include <vector>

#include <qvx/qvxs.hpp>

namespace {

template <class T> std::vector<T> noise(size_t count, int most = 1000) {
  std::vector<T> numbers;
  uint32_t state = 1;
  for (size_t i = 0; i < count; ++i) {
    state = state * 1664525U + 1013904223U;
    numbers.push_back(static_cast<T>(static_cast<int>(state >> 16) % (2 * most) - most));
  }
  return numbers;
}

TEST(Transforms, GiveWhatCGives) {
  const std::vector<Qvx32f> x = noise<Qvx32f>(64);
  QvxsFFTSpec_R_32f* record = nullptr;
  ASSERT_EQ(qvxsFFTInitAlloc_R_32f(&record, 6, QVX_FFT_SCALE_BOTH_SQRT, 0), qvxStatOk);
  auto fft = qvx::Fft<Qvx32f>::make(6, qvx::Scale::kBothSqrt).value();
  EXPECT_EQ(fft.size(), 64U);
  std::vector<Qvx32f> face(66);
  std::vector<Qvx32f> c(66);
  EXPECT_EQ(fft.toCcs(x, face), qvxStatOk);
  EXPECT_EQ(qvxsFFTFwd_RToCCS_32f(x.data(), c.data(), record, nullptr), qvxStatOk);
  EXPECT_EQ(face, c);
  std::vector<std::complex<Qvx32f>> spectrum(fft.spectrumSize());
  EXPECT_EQ(fft.forward(x, spectrum), qvxStatOk);
  EXPECT_EQ(std::memcmp(spectrum.data(), c.data(), sizeof(Qvx32f) * 66), 0);
  face.resize(64);
  EXPECT_EQ(fft.inverse(spectrum, face), qvxStatOk);
  EXPECT_EQ(qvxsFFTInv_CCSToR_32f(c.data(), c.data(), record, nullptr), qvxStatOk);
  c.resize(64);
  EXPECT_EQ(face, c);
  std::vector<Qvx32f> back(64);
  EXPECT_EQ(fft.toPerm(x, face), qvxStatOk);
  EXPECT_EQ(fft.fromPerm(face, back), qvxStatOk);
  for (size_t i = 0; i < 64; ++i) EXPECT_NEAR(back[i], x[i], 1e-3);
  EXPECT_EQ(fft.toPack(x, face), qvxStatOk);
  EXPECT_EQ(fft.fromPack(face, back), qvxStatOk);
  for (size_t i = 0; i < 64; ++i) EXPECT_NEAR(back[i], x[i], 1e-3);
  EXPECT_EQ(qvxsFFTFree_R_32f(record), qvxStatOk);
}

// Each kind there and back, with scale factors where results are integers.
TEST(Transforms, ThereAndBack) {
  std::vector<std::complex<Qvx64f>> complexes(12);
  complexes[1] = {1, 2};
  std::vector<std::complex<Qvx64f>> original = complexes;
  auto dft = qvx::Dft<Qvx64fc>::make(12).value();
  EXPECT_EQ(dft.forward(complexes), qvxStatOk);
  EXPECT_NEAR(std::abs(complexes[7]), std::abs(original[1]), 1e-12);
  EXPECT_EQ(dft.inverse(complexes), qvxStatOk);
  EXPECT_NEAR(std::abs(complexes[1] - original[1]), 0, 1e-12);
  auto unordered = qvx::DftOutOfOrder<Qvx64fc>::make(12).value();
  EXPECT_EQ(unordered.forward(complexes), qvxStatOk);
  EXPECT_EQ(unordered.inverse(complexes), qvxStatOk);
  EXPECT_NEAR(std::abs(complexes[1] - original[1]), 0, 1e-12);

  std::vector<Qvx32f> re = noise<Qvx32f>(16);
  std::vector<Qvx32f> im(16);
  auto split = qvx::SplitFft<Qvx32f>::make(4).value();
  const std::vector<Qvx32f> reBefore = re;
  EXPECT_EQ(split.forward(re, im, re, im), qvxStatOk);
  EXPECT_EQ(split.inverse(re, im, re, im), qvxStatOk);
  for (size_t i = 0; i < 16; ++i) EXPECT_NEAR(re[i], reBefore[i], 1e-3);

  const std::vector<Qvx16s> x = noise<Qvx16s>(32);
  std::vector<Qvx16s> y(32);
  auto wide = qvx::Fft<Qvx16s, Qvx32s>::make(5, qvx::Scale::kInverse).value();
  std::vector<Qvx32sc> bins(wide.spectrumSize());
  EXPECT_EQ(wide.forward(x, bins, -4), qvxStatOk);  // 4 bits after the point
  EXPECT_EQ(wide.inverse(bins, y, 4), qvxStatOk);
  EXPECT_EQ(y, x);
  auto cosine = qvx::Dct<Qvx16s>::make(32).value();
  EXPECT_EQ(cosine.forward(y, 0), qvxStatOk);
  EXPECT_EQ(cosine.inverse(y, 0), qvxStatOk);
  for (size_t i = 0; i < 32; ++i) EXPECT_NEAR(y[i], x[i], 3);
  const auto hilbert = qvx::Hilbert<Qvx16s>::make(32).value();
  std::vector<Qvx16sc> analytic(32);
  EXPECT_EQ(hilbert.analytic(x, analytic, 0), qvxStatOk);
  EXPECT_EQ(analytic[5].re, x[5]);
}

TEST(Transforms, MoveAndAreShared) {
  const std::vector<Qvx32f> x = noise<Qvx32f>(1024);
  std::vector<Qvx32f> expected(1026);
  auto first = qvx::Fft<Qvx32f>::make(10).value();
  ASSERT_GT(first.bufferSize(), 0U);
  EXPECT_EQ(first.toCcs(x, expected), qvxStatOk);
  auto fft = std::move(first);
  first = qvx::Fft<Qvx32f>::make(3).value();
  EXPECT_EQ(first.size(), 8U);
  std::swap(first, fft);
  EXPECT_EQ(fft.size(), 8U);
  fft = std::move(first);
  std::vector<Qvx32f> y(1026);
  EXPECT_EQ(fft.toCcs(x, y), qvxStatOk);
  EXPECT_EQ(y, expected);

  const auto& record = fft;  // only read: threads bring working memory, or none
  std::array<std::vector<Qvx32f>, 2> results;
  std::vector<std::thread> threads;
  for (std::vector<Qvx32f>& result : results) {
    threads.emplace_back([&] {
      result.resize(1026);
      qvx::Vector<Qvx8u> memory;
      if (&result == results.data()) memory = qvx::Vector<Qvx8u>::make(record.bufferSize()).value();
      auto calls = record.on(memory);
      for (int i = 0; i < 100; ++i) EXPECT_EQ(calls.toCcs(x, result), qvxStatOk);
    });
  }
  for (std::thread& thread : threads) thread.join();
  EXPECT_EQ(results[0], expected);
  EXPECT_EQ(results[1], expected);
}

TEST(Records, RefuseWhatTheyCannotDo) {
  EXPECT_EQ(qvx::Fft<Qvx32f>::make(40).error(), qvxStatBadFFTOrder);
  EXPECT_FALSE(qvx::Dft<Qvx32f>::make(0));
  EXPECT_THROW(static_cast<void>(qvx::Dct<Qvx32f>::make(-1).value()), qvx::Error);
  EXPECT_EQ(qvx::Fir<Qvx32f>::make(std::vector<Qvx32f>()).error().refused(), true);
  const std::vector<Qvx32f> taps(6, 1);
  EXPECT_EQ(qvx::Fir<Qvx32f>::make(taps, std::vector<Qvx32f>(5)).error(), qvxStatBadSize);
  EXPECT_EQ(qvx::Iir<Qvx32f>::makeSections(std::vector<Qvx32f>(11)).error(), qvxStatBadSize);
  EXPECT_EQ(qvx::Resampler<Qvx32f>::make(taps, {.up = 0}).error(), qvxStatBadMRFactor);

  const std::vector<Qvx32f> x(32);
  std::vector<Qvx32f> y(33);
  auto fft = qvx::Fft<Qvx32f>::make(5).value();
  EXPECT_EQ(fft.toCcs(x, y), qvxStatBadSize);  // 34 numbers
  EXPECT_EQ(fft.toPack(x, y), qvxStatBadSize);
  auto resampler = qvx::Resampler<Qvx32f>::make(taps, {.up = 3, .down = 2}).value();
  EXPECT_EQ(resampler.filter(x, y), qvxStatBadSize);
  EXPECT_EQ(resampler.filter(std::span(x).first(21), y), qvxStatBadSize);
  EXPECT_EQ(resampler.filter(std::span(x).first(22), y), qvxStatOk);
  auto bank = qvx::WaveletForward<Qvx32f>::make({taps, 0}, {taps, 0}).value();
  EXPECT_EQ(bank.split(x, std::span(y).first(15), std::span(y).first(15)), qvxStatBadSize);
  EXPECT_EQ(bank.delayLines(std::span(y).first(4), y), qvxStatBadSize);
}

// Of 2^32 + 8 taps an int would hold 8, a filter like any other. They are refused before anyone reads them.
TEST(Records, RefuseMoreTapsThanAnIntCounts) {
  static const std::vector<Qvx64fc> some(8, {1, 1});
  const auto many = []<class T>(T) { return std::span(reinterpret_cast<const T*>(some.data()), (size_t{1} << 32) + 8); };
  const auto reals = many(Qvx32f());
  EXPECT_EQ(qvx::Fir<Qvx32f>::make(reals).error(), qvxStatBadSize);
  EXPECT_EQ(qvx::Fir<Qvx16s>::make(many(Qvx16s()), 0).error(), qvxStatBadSize);
  EXPECT_EQ(qvx::Resampler<Qvx64fc>::make(many(Qvx64fc()), {.up = 2}).error(), qvxStatBadSize);
  EXPECT_EQ(qvx::StreamFir<Qvx32f>::make(reals).error(), qvxStatBadSize);
  EXPECT_EQ(qvx::SparseFir::make(reals, many(Qvx32s())).error(), qvxStatBadSize);
  EXPECT_EQ(qvx::SparseIir::make(reals, many(Qvx32s()), 4).error(), qvxStatBadSize);
  EXPECT_EQ(qvx::Iir<Qvx32f>::make(reals).error(), qvxStatBadSize);
  const auto sections = std::span(reals.data(), size_t{6} * ((size_t{1} << 32) + 1));
  EXPECT_EQ(qvx::Iir<Qvx32f>::makeSections(sections).error(), qvxStatBadSize);
  EXPECT_EQ(qvx::Iir<Qvx32f>::makeSectionsDirect1(sections).error(), qvxStatBadSize);
  EXPECT_EQ(qvx::Lms<Qvx32f>::make(reals).error(), qvxStatBadSize);
  EXPECT_EQ(qvx::LmsDecimator<Qvx16s>::make(many(Qvx32s()), 2, 1).error(), qvxStatBadSize);
  const qvx::Band few = {reals.first(4), 0};
  const qvx::Band band = {reals, 0};
  for (const auto& [low, high] : {std::pair(few, band), std::pair(band, few)}) {
    EXPECT_EQ(qvx::WaveletForward<Qvx32f>::make(low, high).error(), qvxStatBadSize);
    EXPECT_EQ(qvx::WaveletInverse<Qvx32f>::make(low, high).error(), qvxStatBadSize);
  }
}

// One that is empty or was moved from is refused by whatever it is used for. What it had before is gone: by the record of a
// longer filter its vectors would be too short.
TEST(Records, AreEmptyOnceMovedFrom) {
  const std::vector<Qvx32f> longer(100, 1), taps(6, 1), pair = {1, 0.5F};
  const std::vector<Qvx32s> far = {2, 90}, near = {2, 6};
  std::vector<Qvx32f> x(32), y(32);
  qvx::Fir<Qvx32f> empty;
  EXPECT_EQ(empty.filter(y), qvxStatNullPtr);

  const auto expectEmpty = [](auto first, auto second, const auto& use) {
    first = std::move(second);
    EXPECT_TRUE(use(second).refused());  // NOLINT(bugprone-use-after-move)
    EXPECT_EQ(use(first), qvxStatOk);
    auto third = std::move(first);
    EXPECT_TRUE(use(first).refused());  // NOLINT(bugprone-use-after-move)
    EXPECT_EQ(use(third), qvxStatOk);
  };
  const auto onPlace = [&](auto& filter) { return filter.filter(y); };
  const auto apart = [&](auto& filter) { return filter.filter(x, y); };
  const auto afterHistory = [&](auto& filter) { return filter.filter(x, std::span(y).first(27)); };
  const auto itsTaps = [&](auto& filter) { return filter.taps(std::span(y).first(6)); };
  const auto toPack = [&](auto& fft) { return fft.toPack(x, y); };
  const auto forward = [&](auto& dct) { return dct.forward(x, y); };
  expectEmpty(qvx::Fir<Qvx32f>::make(longer).value(), qvx::Fir<Qvx32f>::make(taps).value(), onPlace);
  expectEmpty(qvx::Fir<Qvx32f>::make(longer).value(), qvx::Fir<Qvx32f>::make(taps).value(), itsTaps);
  expectEmpty(qvx::Iir<Qvx32f>::make(longer).value(), qvx::Iir<Qvx32f>::make(taps).value(), onPlace);
  expectEmpty(qvx::StreamFir<Qvx32f>::make(longer).value(), qvx::StreamFir<Qvx32f>::make(taps).value(), afterHistory);
  expectEmpty(qvx::SparseFir::make(pair, far).value(), qvx::SparseFir::make(pair, near).value(), apart);
  expectEmpty(qvx::SparseIir::make(pair, far, 1).value(), qvx::SparseIir::make(pair, near, 1).value(), apart);
  expectEmpty(qvx::Fft<Qvx32f>::make(9).value(), qvx::Fft<Qvx32f>::make(5).value(), toPack);
  expectEmpty(qvx::Dct<Qvx32f>::make(500).value(), qvx::Dct<Qvx32f>::make(32).value(), forward);

  auto block = qvx::Vector<Qvx16s>::make(40).value();
  block = qvx::Vector<Qvx16s>::make(7).value();
  auto taken = std::move(block);
  EXPECT_EQ(taken.size(), 7U);
  EXPECT_TRUE(block.empty());  // NOLINT(bugprone-use-after-move)
}

// A stream in pieces through an object is the stream in one through C.
template <class T, class Tap, class... S> void expectFir(const std::vector<Tap>& taps, S... scaleFactor) {
  const std::vector<T> x = noise<T>(300);
  const auto make = [&] {
    if constexpr (qvx::records::kTapsHaveFactor<T, Tap>) return qvx::Fir<T, Tap>::make(taps, 0).value();
    else return qvx::Fir<T, Tap>::make(taps).value();
  };
  auto filter = make(), reference = make();
  std::vector<T> pieces = x;
  std::vector<T> whole(300);
  EXPECT_EQ(filter.filter(std::span(pieces).first(7), scaleFactor...), qvxStatOk);
  EXPECT_EQ(filter.filterOne(pieces[7], pieces[7], scaleFactor...), qvxStatOk);
  EXPECT_EQ(filter.filter(std::span(pieces).subspan(8), scaleFactor...), qvxStatOk);
  EXPECT_EQ(reference.filter(x, whole, scaleFactor...), qvxStatOk);
  double plain = 0;  // the last result by the definition
  for (size_t k = 0; k < taps.size(); ++k) plain += static_cast<double>(taps[k]) * static_cast<double>(x[299 - k]);
  EXPECT_NEAR(static_cast<double>(whole[299]), plain, 1);
  for (size_t i = 0; i < 300; ++i) EXPECT_NEAR(static_cast<double>(pieces[i]), static_cast<double>(whole[i]), 1) << i;
  std::vector<T> last(taps.size());
  EXPECT_EQ(filter.delayLine(last), qvxStatOk);
  EXPECT_EQ(last[0], x[299]);
  EXPECT_EQ(last[1], x[298]);
  EXPECT_EQ(filter.setDelayLine(), qvxStatOk);
  T zero = 1;
  EXPECT_EQ(filter.filterOne(T{}, zero, scaleFactor...), qvxStatOk);
  EXPECT_EQ(zero, T{});
}

TEST(Filters, FirOfEachArithmetic) {
  expectFir<Qvx32f, Qvx32f>({0.5F, 0.25F, -2});
  expectFir<Qvx32f, Qvx64f>({0.5, 0.25, -2});
  expectFir<Qvx16s, Qvx16s>({1, 2, -3}, 0);
  expectFir<Qvx16s, Qvx32s>({1, 2, -3}, 0);
  expectFir<Qvx16s, Qvx64f>({0.5, 0.25, -2}, 0);
  expectFir<Qvx32s, Qvx64f>({0.5, 0.25, -2}, 0);
  expectFir<Qvx64f, Qvx64f>({0.5, 0.25, -2});
}

// Integer taps of 32-bit samples share a record type with taps of doubles.
TEST(Filters, FirOfIntegerTaps) {
  const std::vector<Qvx32s> x = noise<Qvx32s>(20);
  std::vector<Qvx32s> y(20);
  const std::vector<Qvx32s> taps = {3, -1};
  auto filter = qvx::Fir<Qvx32s>::make(taps).value();
  EXPECT_EQ(filter.filter(x, y, 0), qvxStatOk);
  EXPECT_EQ(y[19], 3 * x[19] - x[18]);
  std::vector<Qvx32s> read(2);
  EXPECT_EQ(filter.taps(read), qvxStatOk);
  EXPECT_EQ(read, taps);
}

TEST(Filters, RatesOfStreams) {
  const std::vector<Qvx32f> taps = noise<Qvx32f>(9, 3);
  const std::vector<Qvx32f> x = noise<Qvx32f>(40);
  std::vector<Qvx32f> face(60);
  std::vector<Qvx32f> c(60);
  const qvx::Rates rates = {.up = 3, .down = 2, .upPhase = 1, .downPhase = 1};
  auto resampler = qvx::Resampler<Qvx32f>::make(taps, rates).value();
  EXPECT_EQ(resampler.filter(std::span(x).first(10), std::span(face).first(15)), qvxStatOk);
  EXPECT_EQ(resampler.filter(std::span(x).subspan(10), std::span(face).subspan(15)), qvxStatOk);
  std::vector<Qvx32f> delayLine(resampler.delayLineSize());
  EXPECT_EQ(qvx::FIRMR_Direct(x, c, 20, taps, 3, 1, 2, 1, delayLine), qvxStatOk);
  for (size_t i = 0; i < 60; ++i) EXPECT_NEAR(face[i], c[i], 1e-2);

  auto stream = qvx::StreamFir<Qvx32f>::make(taps).value();
  auto fir = qvx::Fir<Qvx32f>::make(taps).value();
  std::vector<Qvx32f> ofStream(40 - stream.historySize());
  std::vector<Qvx32f> ofFir(40);
  EXPECT_EQ(stream.filter(x, ofStream), qvxStatOk);
  EXPECT_EQ(fir.filter(x, ofFir), qvxStatOk);
  for (size_t i = 0; i < ofStream.size(); ++i) EXPECT_NEAR(ofStream[i], ofFir[i + stream.historySize()], 1e-2);

  auto sparse = qvx::SparseFir::make(std::vector<Qvx32f>{1, 2}, std::vector<Qvx32s>{0, 30}).value();
  EXPECT_EQ(sparse.filter(x, ofFir), qvxStatOk);
  EXPECT_EQ(ofFir[35], x[35] + 2 * x[5]);
  auto echo = qvx::SparseIir::make(std::vector<Qvx32f>{1, 0.5F}, std::vector<Qvx32s>{0, 7}, 1).value();
  EXPECT_EQ(echo.filter(x, ofFir), qvxStatOk);
  EXPECT_EQ(ofFir[16], x[16] + 0.5F * x[9] + 0.25F * x[2]);
}

TEST(Filters, RecursiveOnes) {
  const std::vector<Qvx64f> taps = {0.5, 0.25, 0.125, 1, -0.5, 0.25};
  std::vector<Qvx64f> x = noise<Qvx64f>(50);
  std::vector<Qvx64f> direct(50);
  auto filter = qvx::Iir<Qvx64f>::make(taps).value();
  auto sections = qvx::Iir<Qvx64f>::makeSections(taps).value();
  EXPECT_EQ(filter.filter(x, direct), qvxStatOk);
  EXPECT_NEAR(direct[1], 0.5 * x[1] + 0.25 * x[0] + 0.5 * direct[0], 1e-9);
  EXPECT_EQ(sections.filter(x), qvxStatOk);
  for (size_t i = 0; i < 50; ++i) EXPECT_NEAR(x[i], direct[i], 1e-9);
  std::vector<Qvx64f> memory(filter.delayLineSize());
  EXPECT_EQ(filter.delayLine(memory), qvxStatOk);
  auto resumed = qvx::Iir<Qvx64f>::make(taps, memory).value();
  Qvx64f one = 0;
  Qvx64f other = 0;
  EXPECT_EQ(filter.filterOne(5, one), qvxStatOk);
  EXPECT_EQ(resumed.filterOne(5, other), qvxStatOk);
  EXPECT_EQ(one, other);

  // Integer taps in units of 2^-2, samples in 16 bits, memory in floats.
  auto integers = qvx::Iir<Qvx16s, Qvx32s>::makeSections(std::vector<Qvx32s>{4, 0, 0, 4, -2, 0}, 2).value();
  std::vector<Qvx16s> step(20, 100);
  EXPECT_EQ(integers.filter(step, 0), qvxStatOk);
  EXPECT_EQ(step[0], 100);
  EXPECT_EQ(step[1], 150);
  EXPECT_EQ(step[19], 200);
}

TEST(Filters, AdaptiveOnesFollow) {
  const std::vector<Qvx32f> x = noise<Qvx32f>(4000, 100);
  std::vector<Qvx32f> reference(4000);
  std::vector<Qvx32f> y(4000);
  auto system = qvx::Fir<Qvx32f>::make(std::vector<Qvx32f>{1, -0.5F, 0.25F}).value();
  EXPECT_EQ(system.filter(x, reference), qvxStatOk);
  auto lms = qvx::Lms<Qvx32f>::make(3).value();
  EXPECT_EQ(lms.filter(x, reference, y, 1e-5F), qvxStatOk);
  std::vector<Qvx32f> taps(3);
  EXPECT_EQ(lms.taps(taps), qvxStatOk);
  EXPECT_NEAR(taps[1], -0.5F, 1e-2);

  const std::vector<Qvx32s> start = {1 << 15, 0};
  auto decimator = qvx::LmsDecimator<Qvx16s>::make(start, 2, 0).value();
  const std::vector<Qvx16s> samples = noise<Qvx16s>(20);
  std::vector<Qvx16s> ten(10);
  EXPECT_EQ(decimator.filter(samples, ten, ten, 0), qvxStatOk);
  Qvx16s last = 0;
  EXPECT_EQ(decimator.delayed(1, last), qvxStatOk);
  EXPECT_EQ(last, samples[18]);
  std::vector<Qvx32s> kept(2);
  EXPECT_EQ(decimator.taps(kept), qvxStatOk);
  EXPECT_EQ(kept, start);
}

TEST(Filters, WaveletBanksJoinWhatTheySplit) {
  const std::array<Qvx32f, 2> low = {0.5F, 0.5F};
  const std::array<Qvx32f, 2> high = {0.5F, -0.5F};
  auto forward = qvx::WaveletForward<Qvx16s>::make({low, -1}, {high, -1}).value();
  const std::array<Qvx32f, 2> lowBack = {1, 1};
  const std::array<Qvx32f, 2> highBack = {-1, 1};
  auto inverse = qvx::WaveletInverse<Qvx16s>::make({lowBack, 0}, {highBack, 0}).value();
  const std::vector<Qvx16s> x = noise<Qvx16s>(40);
  std::vector<Qvx32f> lows(20);
  std::vector<Qvx32f> highs(20);
  std::vector<Qvx16s> y(40);
  EXPECT_EQ(forward.split(x, lows, highs), qvxStatOk);
  EXPECT_EQ(inverse.join(lows, highs, y), qvxStatOk);
  EXPECT_EQ(y, x);

  std::vector<Qvx32f> nothing(inverse.lowSize() + forward.highSize());
  EXPECT_TRUE(nothing.empty());
  EXPECT_EQ(inverse.delayLines(nothing, nothing), qvxStatOk);
  EXPECT_EQ(inverse.setDelayLines(nothing, nothing), qvxStatOk);
  EXPECT_EQ(forward.delayLines(nothing, nothing), qvxStatOk);
  EXPECT_EQ(forward.setDelayLines(nothing, nothing), qvxStatOk);
}

TEST(Generators, GoOnWhereTheyWere) {
  auto whole = qvx::GaussNoise<Qvx32f>::make(0, 1, 7).value();
  auto cut = qvx::GaussNoise<Qvx32f>::make(0, 1, 7).value();
  std::vector<Qvx32f> a(101);
  std::vector<Qvx32f> b(101);
  EXPECT_EQ(whole.generate(a), qvxStatOk);
  EXPECT_EQ(cut.generate(std::span(b).first(13)), qvxStatOk);
  EXPECT_EQ(cut.generate(std::span(b).subspan(13)), qvxStatOk);
  EXPECT_EQ(a, b);
  auto uniform = qvx::UniformNoise<Qvx8u>::make(10, 20, 3).value();
  std::vector<Qvx8u> bytes(500);
  EXPECT_EQ(uniform.generate(bytes), qvxStatOk);
  for (const Qvx8u byte : bytes) EXPECT_TRUE(byte >= 10 && byte <= 20);
  auto tone = qvx::ToneStream::make(1000, 8192, 0).value();  // a quarter of the rate
  std::array<Qvx16s, 4> period;
  EXPECT_EQ(tone.generate(period), qvxStatOk);
  EXPECT_EQ(period, (std::array<Qvx16s, 4>{1000, 0, -1000, 0}));
  EXPECT_EQ(qvx::TriangleStream::make(0, 1, 0, 0).error(), qvxStatBadTriangleMagn);
}

}  // namespace
