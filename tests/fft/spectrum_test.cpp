// Products of packed spectra and whole spectra made of them.
#include <qvx/qvxs.h>

#include "reference/packed.h"
#include "reference/scaled.h"
#include "support/elementwise.h"
#include "support/placements.h"

namespace {

using reference::Layout;
using reference::Place;
using reference::placeOf;
using reference::Wide;
using tests::Random;

constexpr size_t kMost = 3000;

// ---- products

// call(a, b, dst, n); pair(a, b) and real(a, b) are the products of single values. Of a call in place dst is b.
template <class T, class Call, class Pair, class Real> void checkProduct(Layout layout, Call call, Pair pair, Real real) {
  Random random(tests::seed());
  const auto data = tests::values<T>(kMost, random), others = tests::values<T>(kMost, random);
  tests::Placements<T, T>(kMost).run(data, others, [&](size_t n, const T* a, const T* b) {
    std::vector<T> expected(n);
    for (size_t k = 0; k <= n / 2; ++k) {
      const Place p = placeOf(layout, n, k);
      expected[p.re] = real(a[p.re], b[p.re]);
      if (!p.isReal) std::tie(expected[p.re], expected[p.im]) = pair(a[p.re], a[p.im], b[p.re], b[p.im]);
    }
    std::vector<T> dst(b, b + n);
    ASSERT_EQ(call(a, b, dst.data(), static_cast<int>(n)), qvxStatOk);
    for (size_t i = 0; i < n; ++i) {
      ASSERT_TRUE(tests::sameBits(&dst[i], &expected[i], 1))
          << "value " << i << " of " << n << ": " << tests::show(dst[i]) << ", not " << tests::show(expected[i]);
    }
  });
}

template <class T> struct Direct {
  static T real(T a, T b) { return a * b; }
  static std::pair<T, T> pair(T ar, T ai, T br, T bi) { return {ar * br - ai * bi, ar * bi + ai * br}; }
  static std::pair<T, T> conjugatePair(T ar, T ai, T br, T bi) { return {ar * br + ai * bi, ar * bi - ai * br}; }
};

template <class T> void checkFloats(Layout layout, QvxStatus (*f)(const T*, const T*, T*, int)) {
  checkProduct<T>(layout, f, Direct<T>::pair, Direct<T>::real);
}
template <class T> void checkConjugate(QvxStatus (*f)(const T*, T*, int)) {
  const auto call = [=](const T* a, const T*, T* d, int n) { return f(a, d, n); };
  checkProduct<T>(Layout::kPack, call, Direct<T>::conjugatePair, Direct<T>::real);
}

TEST(PackedProduct, OfFloats) {
  checkFloats(Layout::kPack, qvxsMulPack_32f);
  checkFloats(Layout::kPack, qvxsMulPack_64f);
  checkFloats(Layout::kPerm, qvxsMulPerm_32f);
  checkFloats(Layout::kPerm, qvxsMulPerm_64f);
  checkConjugate(qvxsMulPackConj_32f_I);
  checkConjugate(qvxsMulPackConj_64f_I);
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
    for (const Layout layout : {Layout::kPack, Layout::kPerm}) {
      const auto f = layout == Layout::kPack ? qvxsMulPack_16s_Sfs : qvxsMulPerm_16s_Sfs;
      checkProduct<Qvx16s>(
          layout, [=](auto... v) { return f(v..., s); }, pair, real);
    }
  }
  const Qvx16s least[3] = {-3, -32768, -32768};
  Qvx16s d[3];
  ASSERT_EQ(qvxsMulPack_16s_Sfs(least, least, d, 3, 1), qvxStatOk);
  EXPECT_EQ(d[0], 4);      // 9 / 2, floored
  EXPECT_EQ(d[2], 32767);  // 2^31 / 2
  for (const int s : {30, 31, 32, INT32_MAX}) {
    ASSERT_EQ(qvxsMulPack_16s_Sfs(least + 1, least + 1, d, 1, s), qvxStatOk);
    EXPECT_EQ(d[0], s == 30 ? 1 : 0) << "2^30 * 2^-" << s;
  }
}

// ---- whole spectra

template <class T> T negative(T v) {
  if constexpr (std::is_integral_v<T>) return reference::saturated<T>(-Wide{v});
  else return -v;
}

template <class C, class T> void checkUnfold(Layout layout, QvxStatus (*f)(const T*, C*, int), QvxStatus (*inPlace)(C*, int)) {
  Random random(tests::seed());
  for (size_t n = 1; n <= kMost; n += n < 140 ? 1 : n / 3) {
    const auto src = tests::values<T>(reference::sizeOf(layout, n), random);
    std::vector<C> expected(n), dst(n);
    for (size_t k = 0; k <= n / 2; ++k) {
      const Place p = placeOf(layout, n, k);
      expected[k] = {src[p.re], p.isReal ? T{0} : src[p.im]};
      if (k > 0 && 2 * k < n) expected[n - k] = {expected[k].re, negative(expected[k].im)};
    }
    ASSERT_EQ(f(src.data(), dst.data(), static_cast<int>(n)), qvxStatOk);
    for (size_t k = 0; k < n; ++k) {
      ASSERT_EQ(std::memcmp(&dst[k], &expected[k], sizeof(C)), 0)
          << "value " << k << " of " << n << ": " << tests::show(dst[k]) << ", not " << tests::show(expected[k]);
    }
    std::memcpy(static_cast<void*>(dst.data()), src.data(), src.size() * sizeof(T));
    ASSERT_EQ(inPlace(dst.data(), static_cast<int>(n)), qvxStatOk);
    ASSERT_EQ(std::memcmp(dst.data(), expected.data(), n * sizeof(C)), 0) << n << " in place";
  }
}

TEST(WholeSpectrum, OfEveryLayout) {
  checkUnfold(Layout::kPack, qvxsConjPack_32fc, qvxsConjPack_32fc_I);
  checkUnfold(Layout::kPack, qvxsConjPack_64fc, qvxsConjPack_64fc_I);
  checkUnfold(Layout::kPack, qvxsConjPack_16sc, qvxsConjPack_16sc_I);
  checkUnfold(Layout::kPerm, qvxsConjPerm_32fc, qvxsConjPerm_32fc_I);
  checkUnfold(Layout::kPerm, qvxsConjPerm_64fc, qvxsConjPerm_64fc_I);
  checkUnfold(Layout::kPerm, qvxsConjPerm_16sc, qvxsConjPerm_16sc_I);
  checkUnfold(Layout::kCcs, qvxsConjCcs_32fc, qvxsConjCcs_32fc_I);
  checkUnfold(Layout::kCcs, qvxsConjCcs_64fc, qvxsConjCcs_64fc_I);
  checkUnfold(Layout::kCcs, qvxsConjCcs_16sc, qvxsConjCcs_16sc_I);
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
