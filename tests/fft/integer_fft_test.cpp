// Transforms of integers: the definition, rounded and saturated; and what records and calls refuse.
#include <qvx/qvxcore.h>

#include <array>
#include <cstring>

#include "fft/integer_calls.h"
#include "fft/life.h"
#include "support/rounding.h"

namespace {

using namespace tests::integers;
using tests::Life;
using tests::Sizes;
using tests::up;

template <class Spec, class Call>
void checkWay(const Life<Spec>& life, const Call& call, const Way& way, std::initializer_list<int> orders,
              std::initializer_list<int> hints = {0}) {
  tests::Random random(tests::seed());
  for (const int order : orders) {
    const size_t n = size_t{1} << order;
    const size_t length = way.inverse ? sequenceLength(way.layout, n) : spectrumLength(way.layout, n);
    for (int kind = 0; kind < 5; ++kind) {
      const Numbers src = sourceOf<typename Call::From>(
          kind, way.inverse ? spectrumLength(way.layout, n) : sequenceLength(way.layout, n), random);
      const Reals unscaled = defined(way, src, n);
      long double rms = 0, peak = 0, sum = 0;
      for (const long double v : unscaled) rms += v * v, peak = std::max(peak, std::abs(v));
      for (const int64_t v : src) sum += std::abs(static_cast<long double>(v));
      rms = std::sqrt(rms / static_cast<long double>(unscaled.size()));
      for (const int flag : tests::kFlags) {
        for (const int hint : hints) {
          const tests::Record record(life, order, flag, hint);
          const int bufferSize = record.bufferSize();
          for (const int scaleFactor : {0, 1, order / 2 + 1, -4}) {
            SCOPED_TRACE(testing::Message() << "layout " << way.layout << (way.inverse ? " inverse" : " forward") << ", order "
                                            << order << ", flag " << flag << ", hint " << hint << ", scale factor " << scaleFactor
                                            << ", source " << kind);
            const long double factor = tests::factorOf(flag, way.inverse, order) * std::ldexp(1.0L, -scaleFactor);
            const bool isRoot = flag == QVX_FFT_SCALE_BOTH_SQRT;
            // Errors are noise, some of which is more than most; where the results are one peak, so may the errors be. The factor
            // of flag 4 in single precision is an estimate.
            const long double noise =
                std::max(0.2L, 0.35L * std::sqrt(static_cast<long double>(order))) * std::max(5 * rms, peak);
            long double error = (noise + (isRoot ? 3 * peak : 0)) * way.eps;
            if (hints.size() > 1 && order <= 3 && (hint == 0 || hint == 1))
              error = (order == 3 ? 2.1e-5L * sum : 0) + (isRoot && order % 2 != 0 ? 0x1p-12L : 0);
            if (hints.size() > 1 && order == 0) error = 0;
            Reals exact = unscaled;
            for (long double& v : exact) v *= factor;
            expectRounded<typename Call::To>(called(call, src, length, record.get(), scaleFactor, bufferSize), exact,
                                             error * factor);
          }
        }
      }
      if (testing::Test::HasFatalFailure()) return;
    }
  }
}

// ---- The table

// clang-format off
const Life<QvxsFFTSpec_C_16sc> kC16sc = {qvxsFFTGetSize_C_16sc, qvxsFFTInit_C_16sc, qvxsFFTInitAlloc_C_16sc, qvxsFFTFree_C_16sc, qvxsFFTGetBufSize_C_16sc};
const Life<QvxsFFTSpec_C_16s> kC16s = {qvxsFFTGetSize_C_16s, qvxsFFTInit_C_16s, qvxsFFTInitAlloc_C_16s, qvxsFFTFree_C_16s, qvxsFFTGetBufSize_C_16s};
const Life<QvxsFFTSpec_R_16s> kR16s = {qvxsFFTGetSize_R_16s, qvxsFFTInit_R_16s, qvxsFFTInitAlloc_R_16s, qvxsFFTFree_R_16s, qvxsFFTGetBufSize_R_16s};
const Life<QvxsFFTSpec_C_32sc> kC32sc = {qvxsFFTGetSize_C_32sc, qvxsFFTInit_C_32sc, qvxsFFTInitAlloc_C_32sc, qvxsFFTFree_C_32sc, qvxsFFTGetBufSize_C_32sc};
const Life<QvxsFFTSpec_C_32s> kC32s = {qvxsFFTGetSize_C_32s, qvxsFFTInit_C_32s, qvxsFFTInitAlloc_C_32s, qvxsFFTFree_C_32s, qvxsFFTGetBufSize_C_32s};
const Life<QvxsFFTSpec_R_32s> kR32s = {qvxsFFTGetSize_R_32s, qvxsFFTInit_R_32s, qvxsFFTInitAlloc_R_32s, qvxsFFTFree_R_32s, qvxsFFTGetBufSize_R_32s};
const Life<QvxsFFTSpec_R_16s32s> kR16s32s = {qvxsFFTGetSize_R_16s32s, qvxsFFTInit_R_16s32s, qvxsFFTInitAlloc_R_16s32s, qvxsFFTFree_R_16s32s, qvxsFFTGetBufSize_R_16s32s};

using C16 = Joined<Qvx16sc, Qvx16sc, QvxsFFTSpec_C_16sc>;
using C32 = Joined<Qvx32sc, Qvx32sc, QvxsFFTSpec_C_32sc>;
using R16 = Joined<Qvx16s, Qvx16s, QvxsFFTSpec_R_16s>;
using R32 = Joined<Qvx32s, Qvx32s, QvxsFFTSpec_R_32s>;
using S16 = Split<Qvx16s, QvxsFFTSpec_C_16s>;
using S32 = Split<Qvx32s, QvxsFFTSpec_C_32s>;
constexpr long double kSingle = 0x1p-23L;
constexpr long double kDouble = 0x1p-52L;

template <class Step> void forEachWay(Step step) {
  step(kC16sc, C16{qvxsFFTFwd_CToC_16sc_Sfs, qvxsFFTFwd_CToC_16sc_ISfs}, Way{kComplex, false, kSingle});
  step(kC16sc, C16{qvxsFFTInv_CToC_16sc_Sfs, qvxsFFTInv_CToC_16sc_ISfs}, Way{kComplex, true, kSingle});
  step(kC16s, S16{qvxsFFTFwd_CToC_16s_Sfs, qvxsFFTFwd_CToC_16s_ISfs}, Way{kComplex, false, kSingle});
  step(kC16s, S16{qvxsFFTInv_CToC_16s_Sfs, qvxsFFTInv_CToC_16s_ISfs}, Way{kComplex, true, kSingle});
  step(kC32sc, C32{qvxsFFTFwd_CToC_32sc_Sfs, qvxsFFTFwd_CToC_32sc_ISfs}, Way{kComplex, false, kDouble});
  step(kC32sc, C32{qvxsFFTInv_CToC_32sc_Sfs, qvxsFFTInv_CToC_32sc_ISfs}, Way{kComplex, true, kDouble});
  step(kC32s, S32{qvxsFFTFwd_CToC_32s_Sfs, qvxsFFTFwd_CToC_32s_ISfs}, Way{kComplex, false, kDouble});
  step(kC32s, S32{qvxsFFTInv_CToC_32s_Sfs, qvxsFFTInv_CToC_32s_ISfs}, Way{kComplex, true, kDouble});
  step(kR16s, R16{qvxsFFTFwd_RToPerm_16s_Sfs, qvxsFFTFwd_RToPerm_16s_ISfs}, Way{kPerm, false, kSingle});
  step(kR16s, R16{qvxsFFTFwd_RToPack_16s_Sfs, qvxsFFTFwd_RToPack_16s_ISfs}, Way{kPack, false, kSingle});
  step(kR16s, R16{qvxsFFTFwd_RToCCS_16s_Sfs, qvxsFFTFwd_RToCCS_16s_ISfs}, Way{kCcs, false, kSingle});
  step(kR16s, R16{qvxsFFTInv_PermToR_16s_Sfs, qvxsFFTInv_PermToR_16s_ISfs}, Way{kPerm, true, kSingle});
  step(kR16s, R16{qvxsFFTInv_PackToR_16s_Sfs, qvxsFFTInv_PackToR_16s_ISfs}, Way{kPack, true, kSingle});
  step(kR16s, R16{qvxsFFTInv_CCSToR_16s_Sfs, qvxsFFTInv_CCSToR_16s_ISfs}, Way{kCcs, true, kSingle});
  step(kR32s, R32{qvxsFFTFwd_RToPerm_32s_Sfs, qvxsFFTFwd_RToPerm_32s_ISfs}, Way{kPerm, false, kDouble});
  step(kR32s, R32{qvxsFFTFwd_RToPack_32s_Sfs, qvxsFFTFwd_RToPack_32s_ISfs}, Way{kPack, false, kDouble});
  step(kR32s, R32{qvxsFFTFwd_RToCCS_32s_Sfs, qvxsFFTFwd_RToCCS_32s_ISfs}, Way{kCcs, false, kDouble});
  step(kR32s, R32{qvxsFFTInv_PermToR_32s_Sfs, qvxsFFTInv_PermToR_32s_ISfs}, Way{kPerm, true, kDouble});
  step(kR32s, R32{qvxsFFTInv_PackToR_32s_Sfs, qvxsFFTInv_PackToR_32s_ISfs}, Way{kPack, true, kDouble});
  step(kR32s, R32{qvxsFFTInv_CCSToR_32s_Sfs, qvxsFFTInv_CCSToR_32s_ISfs}, Way{kCcs, true, kDouble});
  step(kR16s32s, Joined<Qvx16s, Qvx32s, QvxsFFTSpec_R_16s32s>{qvxsFFTFwd_RToCCS_16s32s_Sfs, nullptr}, Way{kCcs, false, kSingle});
  step(kR16s32s, Joined<Qvx32s, Qvx16s, QvxsFFTSpec_R_16s32s>{qvxsFFTInv_CCSToR_32s16s_Sfs, nullptr}, Way{kCcs, true, kSingle});
}
// clang-format on

TEST(IntegerFft, IsTheRoundedDefinition) {
  forEachWay([](const auto& life, const auto& call, const Way& way) {
    using Call = std::decay_t<decltype(call)>;
    constexpr bool kMayBeInIntegers = sizeof(typename Call::From) == 2 && sizeof(typename Call::To) == 2;
    if (kMayBeInIntegers) checkWay(life, call, way, {0, 1, 2, 3, 4}, {0, 1, 2, -7});
    else checkWay(life, call, way, {0, 1, 2, 3, 4});
    checkWay(life, call, way, {5, 6, 7, 11});
  });
}

// Scale factors far out, on both routes: zeros, or the extreme of each sign.
TEST(IntegerFft, ExtremeScaleFactors) {
  forEachWay([](const auto& life, const auto& call, const Way& way) {
    using To = typename std::decay_t<decltype(call)>::To;
    for (const int hint : {0, 2}) {
      const tests::Record record(life, 3, QVX_FFT_SCALE_FWD, hint);
      const Numbers src = {5, 0, 5, 0, 5, 0, 5, 0, 5, 0, 5, 0, 5, 0, 5, 0};
      const size_t from = way.inverse ? spectrumLength(way.layout, 8) : sequenceLength(way.layout, 8);
      const size_t length = way.inverse ? sequenceLength(way.layout, 8) : spectrumLength(way.layout, 8);
      const Numbers x(src.begin(), src.begin() + static_cast<std::ptrdiff_t>(from));
      EXPECT_EQ(called(call, x, length, record.get(), INT_MAX, record.bufferSize()), Numbers(length, 0)) << hint;
      const Numbers large = called(call, x, length, record.get(), -200, record.bufferSize());
      EXPECT_EQ(*std::max_element(large.begin(), large.end()), std::numeric_limits<To>::max());
      EXPECT_EQ(large[0], std::numeric_limits<To>::max());
    }
  });
}

// Ties to even in every rounding mode of the processor, in registers and through memory: an impulse of 3, halved.
TEST(IntegerFft, RoundsToNearestInEveryMode) {
  forEachWay([](const auto& life, const auto& call, const Way& way) {
    for (const int order : {3, 4, 8}) {
      const tests::Record record(life, order, QVX_FFT_SCALE_NONE, 2);
      const size_t n = size_t{1} << order;
      const size_t from = way.inverse ? spectrumLength(way.layout, n) : sequenceLength(way.layout, n);
      const size_t length = way.inverse ? sequenceLength(way.layout, n) : spectrumLength(way.layout, n);
      Numbers impulse(from);
      impulse[0] = 3;
      Reals exact = defined(way, impulse, n);
      for (long double& v : exact) v = std::nearbyint(v) / 2;
      for (const int mode : tests::kRoundings) {
        const Numbers found = [&] {
          const tests::CallersRounding rounding(mode);
          return called(call, impulse, length, record.get(), 1, record.bufferSize());
        }();
        for (size_t i = 0; i < length; ++i) EXPECT_EQ(found[i], std::rint(exact[i])) << "order " << order << ", mode " << mode;
      }
    }
  });
}

// Where the floats' transform takes two threads, the same numbers as with one.
TEST(IntegerFft, NobodyCanTellTheThreads) {
  forEachWay([](const auto& life, const auto& call, const Way& way) {
    using From = typename std::decay_t<decltype(call)>::From;
    tests::Random random(tests::seed());
    for (const int order : {14, 16}) {
      const size_t n = size_t{1} << order;
      const size_t length = way.inverse ? sequenceLength(way.layout, n) : spectrumLength(way.layout, n);
      const size_t from = way.inverse ? spectrumLength(way.layout, n) : sequenceLength(way.layout, n);
      const Numbers src = sourceOf<From>(0, from, random);
      Numbers found[2];
      for (const int threads : {1, 2}) {
        qvxSetNumThreads(threads);
        const tests::Record record(life, order, QVX_FFT_SCALE_FWD);
        found[threads - 1] = called(call, src, length, record.get(), -order / 2, record.bufferSize());
      }
      qvxSetNumThreads(0);
      EXPECT_EQ(found[0], found[1]) << "layout " << way.layout << (way.inverse ? " inverse" : " forward") << ", order " << order;
    }
  });
}

// ---- Records

// With the floats' own sizes.
template <class Inner> Sizes sizesOf(Inner getSize, int order) {
  int spec = -1, init = -1, work = -1;
  EXPECT_EQ(getSize(order, 8, 0, &spec, &init, &work), qvxStatOk);
  return {spec, init, work};
}
template <class Inner> Sizes sizes16(Inner getSize, int order, int hint, Sizes inIntegers, int64_t vector) {
  if (order == 0) return {104, 0, 0};
  Sizes s = inIntegers;
  if (order > 3 || (hint != 0 && hint != 1)) {
    s = sizesOf(getSize, order);
    s.work += vector;
  }
  return {s.spec + 128, s.init + 32, s.work + 32};
}
template <class Inner> Sizes sizes32(Inner getSize, int order, int64_t vector) {
  const Sizes s = sizesOf(getSize, order);
  return {s.spec + 64, s.init + (s.init == 0 ? 0 : 32), s.work + vector + 32};
}

TEST(IntegerFft, RecordsToTheByte) {
  const auto complex16 = [](int64_t n, int64_t work) {
    return Sizes{up(8 * n) + up(4 * (n / 4) + 4), up(2 * (n / 4) + 2), work * n};
  };
  const auto n = [](int order) { return int64_t{1} << order; };
  tests::checkLife(
      kC16sc, [=](int m, int hint) { return sizes16(qvxsFFTGetSize_C_32fc, m, hint, complex16(n(m), 8), 8 * n(m)); }, 27, 31,
      "C_16sc");
  tests::checkLife(
      kC16s, [=](int m, int hint) { return sizes16(qvxsFFTGetSize_C_32fc, m, hint, complex16(n(m), 12), 8 * n(m)); }, 27, 31,
      "C_16s");
  tests::checkLife(
      kR16s,
      [=](int m, int hint) {
        return sizes16(qvxsFFTGetSize_R_32f, m, hint, {up(4 * n(m)) + up(n(m) / 2 + 4), up(2 * (n(m) / 4) + 2), 4 * n(m) + 8},
                       4 * n(m) + 8);
      },
      28, 31, "R_16s");
  tests::checkLife(
      kC32sc, [=](int m, int) { return sizes32(qvxsFFTGetSize_C_64fc, m, 16 * n(m)); }, 26, 31, "C_32sc");
  tests::checkLife(
      kC32s, [=](int m, int) { return sizes32(qvxsFFTGetSize_C_64fc, m, 16 * n(m)); }, 26, 31, "C_32s");
  tests::checkLife(
      kR32s, [=](int m, int) { return sizes32(qvxsFFTGetSize_R_64f, m, 8 * n(m) + 16); }, 27, 31, "R_32s");
  tests::checkLife(
      kR16s32s, [=](int m, int) { return sizes32(qvxsFFTGetSize_R_32f, m, 4 * n(m) + 8); }, 28, 31, "R_16s32s");
}

TEST(IntegerFft, Identities) {
  const auto identities = [] {
    std::vector<uint32_t> all;
    forEachWay([&](const auto& life, const auto&, const Way&) {
      all.push_back(*reinterpret_cast<const uint32_t*>(tests::Record(life, 2, 8).get()));
    });
    return all;
  }();
  const std::vector<uint32_t> expected = {
      1, 1, 2, 2,          0x434D414C, 0x434D414C, 0x434D414D, 0x434D414D, 3,          3,          3,
      3, 3, 3, 0x434D414E, 0x434D414E, 0x434D414E, 0x434D414E, 0x434D414E, 0x434D414E, 0x434D414F, 0x434D414F};
  EXPECT_EQ(identities, expected);
}

// A transform of one number is that number, whatever the flag: 3 halves are 2, not the 1 that an estimated root of 1 would leave.
TEST(IntegerFft, OfOneNumberIsExact) {
  for (const int flag : tests::kFlags) {
    QvxsFFTSpec_R_16s32s* spec = nullptr;
    ASSERT_EQ(qvxsFFTInitAlloc_R_16s32s(&spec, 0, flag, 0), qvxStatOk);
    const Qvx16s x = 3;
    Qvx32s spectrum[2] = {9, 9};
    EXPECT_EQ(qvxsFFTFwd_RToCCS_16s32s_Sfs(&x, spectrum, spec, 1, nullptr), qvxStatOk);
    EXPECT_EQ(spectrum[0], 2) << "flag " << flag;
    EXPECT_EQ(spectrum[1], 0);
    EXPECT_EQ(qvxsFFTFree_R_16s32s(spec), qvxStatOk);
    QvxsFFTSpec_C_32fc* complex = nullptr;
    ASSERT_EQ(qvxsFFTInitAlloc_C_32fc(&complex, 0, flag, 0), qvxStatOk);
    const Qvx32fc z = {0x1.FFFFFEp-1F, -0x1.000002p3F};
    Qvx32fc both[2];
    EXPECT_EQ(qvxsFFTFwd_CToC_32fc(&z, &both[0], complex, nullptr), qvxStatOk);
    EXPECT_EQ(qvxsFFTInv_CToC_32fc(&z, &both[1], complex, nullptr), qvxStatOk);
    for (const Qvx32fc& one : both) EXPECT_TRUE(one.re == z.re && one.im == z.im) << "flag " << flag;
    EXPECT_EQ(qvxsFFTFree_C_32fc(complex), qvxStatOk);
  }
}

}  // namespace
