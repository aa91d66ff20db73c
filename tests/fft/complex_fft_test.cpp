// Complex transforms: against the definition, and what must not change them: place, alignment, layout, threads.
#include <qvx/qvxcore.h>
#include <unistd.h>

#include <cstring>
#include <thread>

#include "fft/transforms.h"
#include "support/rounding.h"
#include "support/sanitizer.h"

namespace {

using tests::Exact;
using tests::Random;

// ---- One face for interleaved and separate parts

template <class T_, class C_, class Spec_> struct Interleaved {
  using T = T_;
  using C = C_;
  using Spec = Spec_;
  tests::Life<Spec> life;
  QvxStatus (*fwd)(const C*, C*, const Spec*, Qvx8u*);
  QvxStatus (*inv)(const C*, C*, const Spec*, Qvx8u*);
  QvxStatus (*fwdI)(C*, const Spec*, Qvx8u*);
  QvxStatus (*invI)(C*, const Spec*, Qvx8u*);
  int top;

  void run(bool inverse, const C* src, C* dst, size_t, const Spec* spec, Qvx8u* buffer) const {
    if (src == dst) EXPECT_EQ((inverse ? invI : fwdI)(dst, spec, buffer), qvxStatOk);
    else EXPECT_EQ((inverse ? inv : fwd)(src, dst, spec, buffer), qvxStatOk);
  }
};

template <class T_, class C_, class Spec_> struct Apart {
  using T = T_;
  using C = C_;
  using Spec = Spec_;
  tests::Life<Spec> life;
  QvxStatus (*fwd)(const T*, const T*, T*, T*, const Spec*, Qvx8u*);
  QvxStatus (*inv)(const T*, const T*, T*, T*, const Spec*, Qvx8u*);
  QvxStatus (*fwdI)(T*, T*, const Spec*, Qvx8u*);
  QvxStatus (*invI)(T*, T*, const Spec*, Qvx8u*);
  int top;

  void run(bool inverse, const C* src, C* dst, size_t n, const Spec* spec, Qvx8u* buffer) const {
    std::vector<T> re(n), im(n), outRe(n), outIm(n);
    for (size_t i = 0; i < n; ++i) re[i] = src[i].re, im[i] = src[i].im;
    if (src == dst) {
      EXPECT_EQ((inverse ? invI : fwdI)(re.data(), im.data(), spec, buffer), qvxStatOk);
      outRe = re, outIm = im;
    } else {
      EXPECT_EQ((inverse ? inv : fwd)(re.data(), im.data(), outRe.data(), outIm.data(), spec, buffer), qvxStatOk);
    }
    for (size_t i = 0; i < n; ++i) dst[i] = {outRe[i], outIm[i]};
  }
};

// clang-format off
const Interleaved<Qvx32f, Qvx32fc, QvxsFFTSpec_C_32fc> k32fc = {
    {qvxsFFTGetSize_C_32fc, qvxsFFTInit_C_32fc, qvxsFFTInitAlloc_C_32fc, qvxsFFTFree_C_32fc, qvxsFFTGetBufSize_C_32fc},
    qvxsFFTFwd_CToC_32fc, qvxsFFTInv_CToC_32fc, qvxsFFTFwd_CToC_32fc_I, qvxsFFTInv_CToC_32fc_I, 28};
const Interleaved<Qvx64f, Qvx64fc, QvxsFFTSpec_C_64fc> k64fc = {
    {qvxsFFTGetSize_C_64fc, qvxsFFTInit_C_64fc, qvxsFFTInitAlloc_C_64fc, qvxsFFTFree_C_64fc, qvxsFFTGetBufSize_C_64fc},
    qvxsFFTFwd_CToC_64fc, qvxsFFTInv_CToC_64fc, qvxsFFTFwd_CToC_64fc_I, qvxsFFTInv_CToC_64fc_I, 27};
const Apart<Qvx32f, Qvx32fc, QvxsFFTSpec_C_32f> k32f = {
    {qvxsFFTGetSize_C_32f, qvxsFFTInit_C_32f, qvxsFFTInitAlloc_C_32f, qvxsFFTFree_C_32f, qvxsFFTGetBufSize_C_32f},
    qvxsFFTFwd_CToC_32f, qvxsFFTInv_CToC_32f, qvxsFFTFwd_CToC_32f_I, qvxsFFTInv_CToC_32f_I, 28};
const Apart<Qvx64f, Qvx64fc, QvxsFFTSpec_C_64f> k64f = {
    {qvxsFFTGetSize_C_64f, qvxsFFTInit_C_64f, qvxsFFTInitAlloc_C_64f, qvxsFFTFree_C_64f, qvxsFFTGetBufSize_C_64f},
    qvxsFFTFwd_CToC_64f, qvxsFFTInv_CToC_64f, qvxsFFTFwd_CToC_64f_I, qvxsFFTInv_CToC_64f_I, 27};
// clang-format on

template <class Step> void forEachType(Step step) {
  step(k32fc, "32fc");
  step(k64fc, "64fc");
  step(k32f, "32f");
  step(k64f, "64f");
}

template <class C> std::vector<C> noise(size_t n, Random& random) {
  using T = decltype(C::re);
  std::uniform_real_distribution<T> uniform(-1, 1);
  std::vector<C> v(n);
  for (C& z : v) z = {uniform(random), uniform(random)};
  return v;
}
template <class C> std::vector<Exact> exact(const std::vector<C>& v) {
  std::vector<Exact> e;
  for (const C& z : v) e.push_back({z.re, z.im});
  return e;
}
template <class C> bool sameBits(const std::vector<C>& a, const C* b) {
  return std::memcmp(a.data(), b, a.size() * sizeof(C)) == 0;
}

// The error of few points is a matter of luck, so short transforms are drawn often: 256 points of each order at least.
TEST(ComplexFft, IsTheDefinition) {
  Random random(tests::seed());
  forEachType([&](const auto& type, const char* name) {
    using C = typename std::decay_t<decltype(type)>::C;
    using T = typename std::decay_t<decltype(type)>::T;
    for (int order = 0; order <= 15; ++order) {
      const size_t n = size_t{1} << order;
      const size_t all = std::max<size_t>(n, 256);
      const std::vector<C> x = noise<C>(all, random);
      for (const bool inverse : {false, true}) {
        std::vector<Exact> expected;
        for (size_t i = 0; i < all; i += n) {
          for (const Exact& z : tests::dft(exact(std::vector<C>(&x[i], &x[i] + n)), inverse ? 1 : -1)) expected.push_back(z);
        }
        for (const int flag : tests::kFlags) {
          SCOPED_TRACE(testing::Message() << name << ", order " << order << (inverse ? ", inverse" : ", forward") << ", flag "
                                          << flag);
          const tests::Record record(type.life, order, flag);
          std::vector<C> found(all);
          for (size_t i = 0; i < all; i += n) type.run(inverse, &x[i], &found[i], n, record.get(), nullptr);
          std::vector<Exact> scaled = expected;
          for (Exact& z : scaled) z *= tests::factorOf(flag, inverse, order);
          // The factor of flag 4 in single precision is an estimate.
          const long double slack = flag == QVX_FFT_SCALE_BOTH_SQRT ? 3 * std::numeric_limits<T>::epsilon() : 0;
          EXPECT_LE(tests::relativeError(found, scaled), tests::allowedError<T>(order) + slack);
        }
      }
    }
  });
}

// The C library takes this from the stack of each thread; the library's own threads still need room for their tiles.
thread_local volatile char threadLocal[128 << 10];

// Longer ones, which take other ways: the same accuracy, and back.
TEST(ComplexFft, LongTransforms) {
  threadLocal[0] = 1;
  Random random(tests::seed());
  const auto check = [&](const auto& type, int order) {
    using C = typename std::decay_t<decltype(type)>::C;
    using T = typename std::decay_t<decltype(type)>::T;
    SCOPED_TRACE(testing::Message() << "order " << order << ", " << sizeof(T) << " bytes");
    const size_t n = size_t{1} << order;
    const tests::Record record(type.life, order, QVX_FFT_SCALE_INV);
    const std::vector<C> x = noise<C>(n, random);
    std::vector<C> found(n);
    type.run(false, x.data(), found.data(), n, record.get(), nullptr);
    EXPECT_LE(tests::relativeError(found, tests::dft(exact(x), -1)), tests::allowedError<T>(order));
    std::vector<C> inPlace = x;
    type.run(false, inPlace.data(), inPlace.data(), n, record.get(), nullptr);
    EXPECT_TRUE(sameBits(found, inPlace.data())) << "in place";
    std::vector<C> back(n);
    type.run(true, found.data(), back.data(), n, record.get(), nullptr);
    EXPECT_LE(tests::relativeError(back, exact(x)), 2 * tests::allowedError<T>(order));
    type.run(true, found.data(), found.data(), n, record.get(), nullptr);
    EXPECT_TRUE(sameBits(back, found.data())) << "inverse in place";
  };
  for (const int order : {15, 16, 17, 18, 19, 20}) {
    check(k32fc, order);
    check(k64fc, order);
  }
  check(k32f, 18);
  check(k64f, 19);
}

// Beyond what an oracle can follow: a few impulses, whose spectrum is known at any point. Out of place, what goes past the
// caches.
TEST(ComplexFft, ImpulsesInVeryLongTransforms) {
  const auto check = [&](const auto& type, int order) {
    using C = typename std::decay_t<decltype(type)>::C;
    using T = typename std::decay_t<decltype(type)>::T;
    SCOPED_TRACE(testing::Message() << "order " << order << ", " << sizeof(T) << " bytes");
    const size_t n = size_t{1} << order;
    const tests::Record record(type.life, order, QVX_FFT_SCALE_NONE);
    std::vector<C> x(n);
    const size_t at[] = {1, n / 2 + 3, n / 3, n - 7};
    for (size_t i = 0; i < 4; ++i) x[at[i]] = {T(1) + T(i), T(0.5) - T(i)};
    std::vector<Exact> impulses;
    for (const size_t i : at) impulses.push_back({x[i].re, x[i].im});
    tests::Block place(n * sizeof(C));
    auto* spectrum = reinterpret_cast<C*>(place.atOffset(0, n * sizeof(C)));
    if (order == 22) {
      std::vector<C> inPlace = x;
      type.run(true, inPlace.data(), inPlace.data(), n, record.get(), nullptr);
      type.run(true, x.data(), spectrum, n, record.get(), nullptr);
      EXPECT_TRUE(sameBits(inPlace, spectrum)) << "inverse";
    }
    type.run(false, x.data(), spectrum, n, record.get(), nullptr);
    type.run(false, x.data(), x.data(), n, record.get(), nullptr);
    EXPECT_TRUE(sameBits(x, spectrum));
    for (size_t k = 0; k < n; k += n / 4093 + 1) {
      Exact expected = 0;
      for (size_t i = 0; i < 4; ++i) expected += impulses[i] * std::conj(tests::rootOfUnity(at[i] * k, n));
      ASSERT_LE(std::abs(Exact(x[k].re, x[k].im) - expected), 12 * 8 * std::numeric_limits<T>::epsilon()) << k;
    }
  };
  for (const int order : {21, 22, 23, 24}) check(k32fc, order);
  for (const int order : {21, 22, 23}) check(k64fc, order);
}

// The longest orders, whose tiles have room for no more than 4 columns.
TEST(ComplexFft, AnImpulseInTheLongestTransforms) {
  const int64_t memory = sysconf(_SC_PHYS_PAGES) * int64_t{sysconf(_SC_PAGESIZE)};
  if (tests::isSanitized() || memory < int64_t{8} << 30) GTEST_SKIP() << "takes 3 GiB, under a sanitizer more than 6";
  const auto check = [](const auto& type, int order) {
    using C = typename std::decay_t<decltype(type)>::C;
    using T = typename std::decay_t<decltype(type)>::T;
    SCOPED_TRACE(testing::Message() << "order " << order << ", " << sizeof(T) << " bytes");
    const size_t n = size_t{1} << order;
    const tests::Record record(type.life, order, QVX_FFT_SCALE_NONE);
    std::vector<C> x(n);
    x[n / 3] = {1, 0};
    type.run(false, x.data(), x.data(), n, record.get(), nullptr);
    for (size_t k = 0; k < n; k += 8191) {
      const Exact expected = std::conj(tests::rootOfUnity(n / 3 * k, n));
      ASSERT_LE(std::abs(Exact(x[k].re, x[k].im) - expected), 12 * std::numeric_limits<T>::epsilon()) << k;
    }
  };
  check(k32fc, k32fc.top);
  check(k64fc, k64fc.top);
}

// Vectors and buffer at any address, up to the last byte before an unreadable page, buffer or none: the same bits.
TEST(ComplexFft, PlaceDoesNotMatter) {
  Random random(tests::seed());
  const auto check = [&](const auto& type, int order) {
    using C = typename std::decay_t<decltype(type)>::C;
    using T = typename std::decay_t<decltype(type)>::T;
    SCOPED_TRACE(testing::Message() << "order " << order << ", " << sizeof(T) << " bytes");
    const size_t n = size_t{1} << order;
    const size_t bytes = n * sizeof(C);
    const tests::Record record(type.life, order, QVX_FFT_SCALE_FWD);
    const auto needed = static_cast<size_t>(record.bufferSize());
    const std::vector<C> x = noise<C>(n, random);
    std::vector<C> expected(n);
    type.run(false, x.data(), expected.data(), n, record.get(), nullptr);
    tests::Block src(bytes + 64), dst(bytes + 64), buffer(needed + 64);
    for (size_t offset = 0; offset < 72; offset += sizeof(T)) {
      const bool atEnd = offset >= 64;
      const auto place = [&](tests::Block& block, size_t size, size_t shift) {
        return atEnd ? block.atEnd(size) : block.atOffset((offset + shift) % 64, size);
      };
      auto* from = reinterpret_cast<C*>(place(src, bytes, 0));
      auto* to = reinterpret_cast<C*>(place(dst, bytes, sizeof(T)));
      Qvx8u* work = needed == 0 ? nullptr : place(buffer, needed, 3);
      std::memcpy(static_cast<void*>(from), x.data(), bytes);
      type.run(false, from, to, n, record.get(), work);
      ASSERT_TRUE(sameBits(expected, to)) << offset;
      ASSERT_TRUE(sameBits(x, from)) << "the source was written, " << offset;
      type.run(false, from, from, n, record.get(), work);
      ASSERT_TRUE(sameBits(expected, from)) << "in place, " << offset;
      ASSERT_TRUE(src.isIntact() && dst.isIntact() && (needed == 0 || buffer.isIntact())) << offset;
    }
  };
  for (int order = 0; order <= 12; ++order) {
    check(k32fc, order);
    check(k64fc, order);
  }
  for (const int order : {13, 16, 17, 18, 19}) check(k32fc, order);
  for (const int order : {15, 16, 17, 18}) check(k64fc, order);
}

// Separate parts in place of each other's neighbours: each of the four vectors at the end of a block.
TEST(ComplexFft, SeparatePartsStayWithinTheirVectors) {
  Random random(tests::seed());
  for (int order = 0; order <= 18; order += order < 8 ? 1 : 5) {
    const size_t n = size_t{1} << order;
    const size_t bytes = n * sizeof(float);
    const tests::Record record(k32f.life, order, QVX_FFT_SCALE_NONE);
    const std::vector<Qvx32fc> x = noise<Qvx32fc>(n, random);
    std::vector<Qvx32fc> expected(n);
    k32f.run(false, x.data(), expected.data(), n, record.get(), nullptr);
    tests::Block blocks[4] = {tests::Block(bytes), tests::Block(bytes), tests::Block(bytes), tests::Block(bytes)};
    float* v[4];
    for (int i = 0; i < 4; ++i) v[i] = reinterpret_cast<float*>(blocks[i].atEnd(bytes));
    for (size_t i = 0; i < n; ++i) v[0][i] = x[i].re, v[1][i] = x[i].im;
    EXPECT_EQ(qvxsFFTFwd_CToC_32f(v[0], v[1], v[2], v[3], record.get(), nullptr), qvxStatOk);
    for (size_t i = 0; i < n; ++i) ASSERT_TRUE(v[2][i] == expected[i].re && v[3][i] == expected[i].im) << order << ", " << i;
    for (const tests::Block& block : blocks) EXPECT_TRUE(block.isIntact());
  }
}

// With a team of two, where the machine grants one, the same bits as alone.
TEST(ComplexFft, NobodyCanTellTheThreads) {
  Random random(tests::seed());
  const auto check = [&](const auto& type, int order) {
    using C = typename std::decay_t<decltype(type)>::C;
    SCOPED_TRACE(testing::Message() << "order " << order << ", " << sizeof(C) << " bytes");
    const size_t n = size_t{1} << order;
    const std::vector<C> x = noise<C>(n, random);
    std::vector<C> found[3], back[3];
    for (const int threads : {1, 2}) {
      qvxSetNumThreads(threads);
      const tests::Record record(type.life, order, QVX_FFT_SCALE_FWD);
      for (const int now : {threads, 1}) {  // a record for two may be used by one
        qvxSetNumThreads(now);
        const auto at = static_cast<size_t>(threads + now - 2);
        found[at].resize(n);
        type.run(false, x.data(), found[at].data(), n, record.get(), nullptr);
        back[at] = found[at];
        type.run(true, back[at].data(), back[at].data(), n, record.get(), nullptr);
      }
    }
    qvxSetNumThreads(0);
    EXPECT_TRUE(sameBits(found[0], found[1].data()) && sameBits(found[0], found[2].data()));
    EXPECT_TRUE(sameBits(back[0], back[1].data()) && sameBits(back[0], back[2].data())) << "inverse in place";
  };
  for (const int order : {13, 14, 15, 16, 17, 18, 21}) check(k32fc, order);
  for (const int order : {12, 13, 14, 15, 16, 17, 18}) check(k64fc, order);
  check(k32f, 15);
  check(k32f, 18);
  check(k64f, 17);
}

// Records are made to nearest, whatever the caller's mode: tables, and factors of 1/sqrt(512).
TEST(ComplexFft, RecordsOfAllRoundingModesAreTheSame) {
  Random random(tests::seed());
  const auto check = [&](const auto& transform) {
    using C = typename std::remove_cvref_t<decltype(transform)>::C;
    constexpr size_t n = 512;
    const std::vector<C> x = noise<C>(n, random);
    std::vector<C> expected(n), found(n);
    for (const int mode : tests::kRoundings) {
      std::vector<C>& y = mode == FE_TONEAREST ? expected : found;
      typename std::remove_cvref_t<decltype(transform)>::Spec* record = nullptr;
      {
        const tests::CallersRounding callers(mode);
        ASSERT_EQ(transform.life.initAlloc(&record, 9, QVX_FFT_SCALE_BOTH_SQRT, 0), qvxStatOk);
      }
      transform.run(false, x.data(), y.data(), n, record, nullptr);
      EXPECT_EQ(transform.life.free(record), qvxStatOk);
      EXPECT_TRUE(sameBits(expected, y.data())) << mode;
    }
  };
  check(k32fc);
  check(k64fc);
}

// The record is only read: calls at the same time do not meet.
TEST(ComplexFft, OneRecordForManyThreads) {
  Random random(tests::seed());
  for (const int order : {8, 14, 18}) {
    const size_t n = size_t{1} << order;
    const tests::Record record(k32fc.life, order, QVX_FFT_SCALE_NONE);
    const std::vector<Qvx32fc> x = noise<Qvx32fc>(n, random);
    std::vector<Qvx32fc> expected(n);
    k32fc.run(false, x.data(), expected.data(), n, record.get(), nullptr);
    std::vector<std::vector<Qvx32fc>> found(4, std::vector<Qvx32fc>(n));
    std::vector<std::thread> threads;
    for (auto& v : found) threads.emplace_back([&] { k32fc.run(false, x.data(), v.data(), n, record.get(), nullptr); });
    for (std::thread& t : threads) t.join();
    for (const auto& v : found) EXPECT_TRUE(sameBits(expected, v.data())) << order;
  }
}

}  // namespace
