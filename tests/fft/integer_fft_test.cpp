// Transforms of integers: the definition, rounded and saturated; and what records and calls refuse.
#include <qvx/qvxcore.h>

#include <array>
#include <cstring>

#include "fft/life.h"
#include "reference/packed.h"
#include "support/rounding.h"

namespace {

using tests::Exact;
using tests::Life;
using tests::Sizes;
using tests::up;
using Numbers = std::vector<int64_t>;  // complex elements as two of them
using Reals = std::vector<long double>;

// ---- One face for all: a call is made out of place and in place, with a buffer and without, at the ends of blocks

enum Layout { kComplex, kPerm, kPack, kCcs };

reference::Layout ofReals(Layout layout) { return static_cast<reference::Layout>(layout - kPerm); }
size_t sequenceLength(Layout layout, size_t n) { return layout == kComplex ? 2 * n : n; }
size_t spectrumLength(Layout layout, size_t n) { return layout == kComplex ? 2 * n : reference::sizeOf(ofReals(layout), n); }

template <class T> class Vectors {  // parts apart, each at the end of its own block
 public:
  Vectors(const Numbers& numbers, size_t parts)
      : blocks_{tests::Block(bytes(numbers, parts)), tests::Block(parts == 2 ? bytes(numbers, 2) : 1)}, parts_(parts) {
    for (size_t i = 0; i < parts; ++i) p[i] = reinterpret_cast<T*>(blocks_[i].atEnd(bytes(numbers, parts)));
    for (size_t i = 0; i < numbers.size(); ++i) p[i % parts][i / parts] = static_cast<T>(numbers[i]);
  }
  Numbers numbers(size_t count) const {
    Numbers all(count);
    for (size_t i = 0; i < count; ++i) all[i] = p[i % parts_][i / parts_];
    return all;
  }
  bool isIntact() const { return blocks_[0].isIntact() && (parts_ == 1 || blocks_[1].isIntact()); }
  T* p[2] = {};

 private:
  static size_t bytes(const Numbers& numbers, size_t parts) { return numbers.size() / parts * sizeof(T); }
  tests::Block blocks_[2];
  size_t parts_;
};

template <class In, class Out, class Spec> struct Joined {
  static constexpr size_t kParts = 1;
  QvxStatus (*out)(const In*, Out*, const Spec*, int, Qvx8u*);
  QvxStatus (*in)(Out*, const Spec*, int, Qvx8u*);
  using From = tests::Part<In>;
  using To = tests::Part<Out>;
  QvxStatus apart(From* const* s, To* const* d, const Spec* spec, int sf, Qvx8u* w) const {
    return out(reinterpret_cast<const In*>(s[0]), reinterpret_cast<Out*>(d[0]), spec, sf, w);
  }
  QvxStatus inPlace(To* const* d, const Spec* spec, int sf, Qvx8u* w) const {
    return in(reinterpret_cast<Out*>(d[0]), spec, sf, w);
  }
};
template <class T, class Spec> struct Split {
  static constexpr size_t kParts = 2;
  QvxStatus (*out)(const T*, const T*, T*, T*, const Spec*, int, Qvx8u*);
  QvxStatus (*in)(T*, T*, const Spec*, int, Qvx8u*);
  using From = T;
  using To = T;
  QvxStatus apart(T* const* s, T* const* d, const Spec* spec, int sf, Qvx8u* w) const {
    return out(s[0], s[1], d[0], d[1], spec, sf, w);
  }
  QvxStatus inPlace(T* const* d, const Spec* spec, int sf, Qvx8u* w) const { return in(d[0], d[1], spec, sf, w); }
};

template <class Call, class Spec>
Numbers called(const Call& call, const Numbers& src, size_t length, const Spec* spec, int scaleFactor, int bufferSize) {
  using To = typename Call::To;
  const Vectors<typename Call::From> from(src, Call::kParts);
  const Vectors<To> to(Numbers(length, 99), Call::kParts);
  EXPECT_EQ(call.apart(from.p, to.p, spec, scaleFactor, nullptr), qvxStatOk);
  const Numbers found = to.numbers(length);
  EXPECT_EQ(from.numbers(src.size()), src) << "the source was written";
  tests::Block work(static_cast<size_t>(bufferSize) + 1);
  Qvx8u* buffer = bufferSize == 0 ? nullptr : work.atEnd(static_cast<size_t>(bufferSize));
  EXPECT_EQ(call.apart(from.p, to.p, spec, scaleFactor, buffer), qvxStatOk);
  EXPECT_EQ(to.numbers(length), found) << "with a buffer";
  EXPECT_TRUE(from.isIntact() && to.isIntact() && (buffer == nullptr || work.isIntact()));
  if (call.in != nullptr) {
    Numbers both = src;
    both.resize(std::max(src.size(), length));
    const Vectors<To> place(both, Call::kParts);
    EXPECT_EQ(call.inPlace(place.p, spec, scaleFactor, buffer), qvxStatOk);
    EXPECT_EQ(place.numbers(length), found) << "in place";
    EXPECT_TRUE(place.isIntact());
  }
  return found;
}

// ---- The definition

// The spectrum in a layout, and the spectrum that a layout stands for.
Reals packed(Layout layout, const std::vector<Exact>& spectrum) {
  if (layout != kComplex) return reference::packed<long double>(ofReals(layout), spectrum);
  Reals v;
  for (const Exact& z : spectrum) v.push_back(z.real()), v.push_back(z.imag());
  return v;
}
std::vector<Exact> unpacked(Layout layout, const Numbers& v, size_t n) {
  const auto at = [&](size_t i) { return static_cast<long double>(v[i]); };
  std::vector<Exact> spectrum(n);
  for (size_t k = 0; k < n; ++k) {
    if (layout == kComplex) spectrum[k] = {at(2 * k), at(2 * k + 1)};
    else if (2 * k > n) spectrum[k] = std::conj(spectrum[n - k]);
    else if (const reference::Place p = reference::placeOf(ofReals(layout), n, k); k == 0 || 2 * k == n) spectrum[k] = at(p.re);
    else spectrum[k] = {at(p.re), at(p.im)};
  }
  return spectrum;
}

struct Way {
  Layout layout;
  bool inverse;
  long double eps;  // of the floats it goes through
};

Reals defined(const Way& way, const Numbers& src, size_t n) {
  std::vector<Exact> x;
  if (way.inverse || way.layout == kComplex) x = unpacked(way.layout, src, n);
  else x.assign(src.begin(), src.end());
  const std::vector<Exact> result = tests::dft(x, way.inverse ? 1 : -1);
  if (!way.inverse || way.layout == kComplex) return packed(way.layout, result);
  Reals v;
  for (const Exact& z : result) v.push_back(z.real());
  return v;
}

// Either number that an error of this size before the rounding may lead to; no error: the one.
template <class T> void expectRounded(const Numbers& found, const Reals& exact, long double error) {
  ASSERT_EQ(found.size(), exact.size());
  const auto rounded = [](long double v) {
    return std::rint(std::clamp<long double>(v, std::numeric_limits<T>::min(), std::numeric_limits<T>::max()));
  };
  for (size_t i = 0; i < found.size(); ++i) {
    const auto v = static_cast<long double>(found[i]);
    ASSERT_TRUE(rounded(exact[i] - error) <= v && v <= rounded(exact[i] + error))
        << i << ": " << v << " for " << exact[i] << " +- " << error;
  }
}

// Noise at several levels, extremes that all add up, one impulse.
template <class T> Numbers sourceOf(int kind, size_t count, tests::Random& random) {
  constexpr int64_t kLeast = std::numeric_limits<T>::min();
  constexpr int64_t kMost = std::numeric_limits<T>::max();
  Numbers v(count);
  for (size_t i = 0; i < count; ++i) {
    const auto any = static_cast<T>(random());
    v[i] = kind == 0        ? any
           : kind == 1      ? any >> 7
           : kind == 2      ? kLeast
           : kind == 3      ? (i % 2 != 0 ? kMost : kLeast)
           : i == 3 % count ? kMost
                            : 0;
  }
  return v;
}

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
