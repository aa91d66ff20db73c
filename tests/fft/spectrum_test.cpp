// Products of packed spectra and whole spectra made of them.
#include <qvx/qvxs.h>

#include "reference/packed.h"
#include "reference/scaled.h"
#include "support/elementwise.h"

namespace {

using reference::Layout;
using reference::Place;
using reference::placeOf;
using reference::Wide;
using tests::Block;
using tests::Random;

constexpr size_t kMost = 3000;

// check(n, offset) for every length up to some vectors and a few more, at the end of a block; then every misalignment.
constexpr size_t kAtEnd = ~size_t{0};
template <class Check> void forEachPlacement(size_t alignment, Check check) {
  const auto ok = [] { return !testing::Test::HasFailure(); };
  for (size_t n = 1; n <= kMost && ok(); n += n < 140 ? 1 : n / 3) check(n, kAtEnd);
  for (size_t offset = 0; offset < 64 && ok(); offset += alignment) check(776, offset), check(777, offset);
}

template <class T> T* place(Block& block, const std::vector<T>& from, size_t n, size_t offset) {
  T* p = reinterpret_cast<T*>(offset == kAtEnd ? block.atEnd(n * sizeof(T)) : block.atOffset(offset, n * sizeof(T)));
  if (!from.empty()) std::memcpy(p, from.data(), n * sizeof(T));
  return p;
}

// ---- products

// call(a, b, dst, n); pair(a, b) and real(a, b) are the products of single values. Of a call in place dst is b.
template <class T, class Call, class Pair, class Real>
void checkProduct(Layout layout, Call call, bool inPlace, Pair pair, Real real) {
  Random random(tests::seed());
  const auto a = tests::values<T>(kMost, random);
  const auto b = tests::values<T>(kMost, random);
  Block blocks[3] = {Block((kMost + 64) * sizeof(T)), Block((kMost + 64) * sizeof(T)), Block((kMost + 64) * sizeof(T))};
  forEachPlacement(alignof(T), [&](size_t n, size_t offset) {
    std::vector<T> expected(n);
    for (size_t k = 0; k <= n / 2; ++k) {
      const Place p = placeOf(layout, n, k);
      expected[p.re] = real(a[p.re], b[p.re]);
      if (!p.isReal) std::tie(expected[p.re], expected[p.im]) = pair(a[p.re], a[p.im], b[p.re], b[p.im]);
    }
    const T* src1 = place(blocks[0], a, n, offset);
    const T* src2 = place(blocks[1], b, n, offset == kAtEnd ? offset : offset + alignof(T));
    T* dst = place(blocks[2], inPlace ? b : a, n, offset);
    ASSERT_EQ(call(src1, src2, dst, static_cast<int>(n)), qvxStatOk);
    ASSERT_TRUE(blocks[2].isIntact()) << "length " << n;
    for (size_t i = 0; i < n; ++i) {
      ASSERT_TRUE(tests::sameBits(dst + i, expected.data() + i, 1))
          << "value " << i << " of " << n << ", offset " << offset << ": " << tests::show(dst[i]) << ", not "
          << tests::show(expected[i]);
    }
  });
}

template <class T> struct Direct {
  static T real(T a, T b) { return a * b; }
  static std::pair<T, T> pair(T ar, T ai, T br, T bi) { return {ar * br - ai * bi, ar * bi + ai * br}; }
  static std::pair<T, T> conjugatePair(T ar, T ai, T br, T bi) { return {ar * br + ai * bi, ar * bi - ai * br}; }
};

template <class T, class F, class FI> void checkFloats(Layout layout, F outOfPlace, FI inPlace) {
  checkProduct<T>(layout, outOfPlace, false, Direct<T>::pair, Direct<T>::real);
  checkProduct<T>(
      layout, [=](const T* a, const T*, T* d, int n) { return inPlace(a, d, n); }, true, Direct<T>::pair, Direct<T>::real);
}

TEST(PackedProduct, OfFloats) {
  checkFloats<Qvx32f>(Layout::kPack, qvxsMulPack_32f, qvxsMulPack_32f_I);
  checkFloats<Qvx64f>(Layout::kPack, qvxsMulPack_64f, qvxsMulPack_64f_I);
  checkFloats<Qvx32f>(Layout::kPerm, qvxsMulPerm_32f, qvxsMulPerm_32f_I);
  checkFloats<Qvx64f>(Layout::kPerm, qvxsMulPerm_64f, qvxsMulPerm_64f_I);
}

template <class T> void checkConjugate(QvxStatus (*f)(const T*, T*, int)) {
  checkProduct<T>(
      Layout::kPack, [=](const T* a, const T*, T* d, int n) { return f(a, d, n); }, true, Direct<T>::conjugatePair,
      Direct<T>::real);
}

TEST(PackedProduct, OfAConjugate) {
  checkConjugate<Qvx32f>(qvxsMulPackConj_32f_I);
  checkConjugate<Qvx64f>(qvxsMulPackConj_64f_I);
}

Qvx16s floored(Wide product, int s) {
  if (s >= 0) return reference::saturated<Qvx16s>(product >> std::min(s, 100));
  return reference::saturated<Qvx16s>(Wide{reference::saturated<Qvx16s>(product)} << std::min(-int64_t{s}, int64_t{100}));
}

TEST(PackedProduct, Of16BitsShiftsRealValuesAndRoundsPairs) {
  for (const int s : {0, 1, 2, 14, 15, 16, 17, 30, 31, 32, 33, 1000, INT32_MAX, -1, -3, -15, -16, -17, -1000, INT32_MIN}) {
    SCOPED_TRACE("scale factor " + std::to_string(s));
    const auto real = [s](Wide a, Wide b) { return floored(a * b, s); };
    const auto pair = [s](Wide ar, Wide ai, Wide br, Wide bi) {
      return std::pair{reference::scaled<Qvx16s>(ar * br - ai * bi, s), reference::scaled<Qvx16s>(ar * bi + ai * br, s)};
    };
    using T = Qvx16s;
    const auto check = [&](Layout layout, auto f, auto inPlace) {
      checkProduct<T>(
          layout, [=](const T* a, const T* b, T* d, int n) { return f(a, b, d, n, s); }, false, pair, real);
      checkProduct<T>(
          layout, [=](const T* a, const T*, T* d, int n) { return inPlace(a, d, n, s); }, true, pair, real);
    };
    check(Layout::kPack, qvxsMulPack_16s_Sfs, qvxsMulPack_16s_ISfs);
    check(Layout::kPerm, qvxsMulPerm_16s_Sfs, qvxsMulPerm_16s_ISfs);
  }
  const Qvx16s least[3] = {-3, -32768, -32768};
  Qvx16s d[3];
  ASSERT_EQ(qvxsMulPack_16s_Sfs(least, least, d, 3, 1), qvxStatOk);
  EXPECT_EQ(d[0], 4);      // 9 / 2, floored
  EXPECT_EQ(d[2], 32767);  // 2^31 / 2
}

// ---- whole spectra

template <class T> T negative(T v) {
  if constexpr (std::is_integral_v<T>) return reference::saturated<T>(-Wide{v});
  else return -v;
}

template <class C, class F, class FI> void checkUnfold(Layout layout, F f, FI inPlace) {
  using T = decltype(C::re);
  Random random(tests::seed());
  const auto data = tests::values<T>(kMost + 2, random);
  Block srcBlock((kMost + 64) * sizeof(T));
  Block dstBlock((kMost + 64) * sizeof(C));
  forEachPlacement(alignof(T), [&](size_t n, size_t offset) {
    std::vector<C> expected(n);
    for (size_t k = 0; k <= n / 2; ++k) {
      const Place p = placeOf(layout, n, k);
      expected[k] = {data[p.re], p.isReal ? T{0} : data[p.im]};
      if (k > 0 && 2 * k < n) expected[n - k] = {expected[k].re, negative(expected[k].im)};
    }
    const size_t kept = reference::sizeOf(layout, n);
    const auto verify = [&](const C* dst, const char* what) {
      ASSERT_TRUE(dstBlock.isIntact()) << what << ", length " << n;
      for (size_t k = 0; k < n; ++k) {
        ASSERT_EQ(std::memcmp(dst + k, expected.data() + k, sizeof(C)), 0)
            << what << ", value " << k << " of " << n << ", offset " << offset << ": " << tests::show(dst[k]) << ", not "
            << tests::show(expected[k]);
      }
    };
    const T* src = place(srcBlock, data, kept, offset == kAtEnd ? offset : offset + alignof(T));
    C* dst = place(dstBlock, std::vector<C>(), n, offset);
    ASSERT_EQ(f(src, dst, static_cast<int>(n)), qvxStatOk);
    verify(dst, "out of place");
    dst = place(dstBlock, std::vector<C>(), n, offset);
    std::memcpy(static_cast<void*>(dst), data.data(), kept * sizeof(T));
    ASSERT_EQ(inPlace(dst, static_cast<int>(n)), qvxStatOk);
    verify(dst, "in place");
  });
}

TEST(WholeSpectrum, OfEveryLayout) {
  checkUnfold<Qvx32fc>(Layout::kPack, qvxsConjPack_32fc, qvxsConjPack_32fc_I);
  checkUnfold<Qvx64fc>(Layout::kPack, qvxsConjPack_64fc, qvxsConjPack_64fc_I);
  checkUnfold<Qvx16sc>(Layout::kPack, qvxsConjPack_16sc, qvxsConjPack_16sc_I);
  checkUnfold<Qvx32fc>(Layout::kPerm, qvxsConjPerm_32fc, qvxsConjPerm_32fc_I);
  checkUnfold<Qvx64fc>(Layout::kPerm, qvxsConjPerm_64fc, qvxsConjPerm_64fc_I);
  checkUnfold<Qvx16sc>(Layout::kPerm, qvxsConjPerm_16sc, qvxsConjPerm_16sc_I);
  checkUnfold<Qvx32fc>(Layout::kCcs, qvxsConjCcs_32fc, qvxsConjCcs_32fc_I);
  checkUnfold<Qvx64fc>(Layout::kCcs, qvxsConjCcs_64fc, qvxsConjCcs_64fc_I);
  checkUnfold<Qvx16sc>(Layout::kCcs, qvxsConjCcs_16sc, qvxsConjCcs_16sc_I);
}

// ---- what they are for: the transforms that write the same layouts

TEST(PackedProduct, IsACircularConvolutionOrCorrelation) {
  constexpr size_t n = 16;
  QvxsFFTSpec_R_64f* spec = nullptr;
  ASSERT_EQ(qvxsFFTInitAlloc_R_64f(&spec, 4, QVX_FFT_SCALE_INV, 0), qvxStatOk);
  Random random(tests::seed());
  std::uniform_real_distribution<double> uniform(-1, 1);
  const auto expect = [&](auto forward, auto multiply, auto inverse, auto partner) {
    double x[n], y[n], a[n], b[n];
    for (size_t i = 0; i < n; ++i) x[i] = uniform(random), y[i] = uniform(random);
    ASSERT_EQ(forward(x, a, spec, nullptr), qvxStatOk);
    ASSERT_EQ(forward(y, b, spec, nullptr), qvxStatOk);
    ASSERT_EQ(multiply(a, b, static_cast<int>(n)), qvxStatOk);
    ASSERT_EQ(inverse(b, a, spec, nullptr), qvxStatOk);
    for (size_t lag = 0; lag < n; ++lag) {
      double want = 0;
      for (size_t i = 0; i < n; ++i) want += x[i] * y[partner(lag, i) % n];
      EXPECT_NEAR(a[lag], want, 1e-13) << "lag " << lag;
    }
  };
  const auto back = [](size_t lag, size_t i) { return lag + n - i; };
  expect(qvxsFFTFwd_RToPack_64f, qvxsMulPack_64f_I, qvxsFFTInv_PackToR_64f, back);
  expect(qvxsFFTFwd_RToPerm_64f, qvxsMulPerm_64f_I, qvxsFFTInv_PermToR_64f, back);
  expect(qvxsFFTFwd_RToPack_64f, qvxsMulPackConj_64f_I, qvxsFFTInv_PackToR_64f, [](size_t lag, size_t i) { return lag + i; });
  qvxsFFTFree_R_64f(spec);
}

}  // namespace
