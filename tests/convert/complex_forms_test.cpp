// Parts, conjugates, order and power of complex vectors.
#include <qvx/qvxs.h>

#include "reference/scaled.h"
#include "support/elementwise.h"
#include "support/placements.h"

namespace {

using reference::Wide;
using tests::check;
using tests::kChecked;
using tests::Part;
using tests::Random;

// ---- parts

template <class C>
void checkParts(QvxStatus (*real)(const C*, Part<C>*, int), QvxStatus (*imaginary)(const C*, Part<C>*, int),
                QvxStatus (*both)(const C*, Part<C>*, Part<C>*, int)) {
  using T = Part<C>;
  check<T, C>(real, [](C z) { return z.re; });
  check<T, C>(imaginary, [](C z) { return z.im; });
  std::vector<T> other(kChecked + 1);
  check<T, C>([&](const C* src, T* dst, int n) { return both(src, dst, other.data(), n); }, [](C z) { return z.re; });
  check<T, C>([&](const C* src, T* dst, int n) { return both(src, other.data() + 1, dst, n); }, [](C z) { return z.im; });
}

TEST(Parts, AreTakenApart) {
  checkParts<Qvx16sc>(qvxsReal_16sc, qvxsImag_16sc, qvxsCplxToReal_16sc);
  checkParts<Qvx32fc>(qvxsReal_32fc, qvxsImag_32fc, qvxsCplxToReal_32fc);
  checkParts<Qvx64fc>(qvxsReal_64fc, qvxsImag_64fc, qvxsCplxToReal_64fc);
}

template <class C> void checkJoin(QvxStatus (*join)(const Part<C>*, const Part<C>*, C*, int)) {
  using T = Part<C>;
  check<C, T, T>(join, [](T re, T im) { return C{re, im}; });
  check<C, T>([=](const T* re, C* dst, int n) { return join(re, nullptr, dst, n); }, [](T re) { return C{re, 0}; });
  check<C, T>([=](const T* im, C* dst, int n) { return join(nullptr, im, dst, n); }, [](T im) { return C{0, im}; });
  C dst[2] = {{7, 7}, {7, 7}};
  EXPECT_EQ(join(nullptr, nullptr, dst, 0), qvxStatBadSize);
  EXPECT_EQ(join(nullptr, nullptr, dst, 1), qvxStatNullPtr);
  EXPECT_EQ(dst[0].re, 7);
}

TEST(Parts, ArePutTogether) {
  checkJoin<Qvx16sc>(qvxsRealToCplx_16s);
  checkJoin<Qvx32fc>(qvxsRealToCplx_32f);
  checkJoin<Qvx64fc>(qvxsRealToCplx_64f);
}

// ---- conjugates

template <class C> C conjugate(C z) {
  if constexpr (std::is_integral_v<Part<C>>) return {z.re, reference::saturated<Part<C>>(-Wide{z.im})};
  else return {z.re, -z.im};
}

TEST(Conjugate, NegatesTheImaginaryPart) {
  check<Qvx16sc, Qvx16sc>(qvxsConj_16sc, conjugate<Qvx16sc>);
  check<Qvx32fc, Qvx32fc>(qvxsConj_32fc, conjugate<Qvx32fc>);
  check<Qvx64fc, Qvx64fc>(qvxsConj_64fc, conjugate<Qvx64fc>);
}

// ---- reversal

template <class T>
void checkFlip(
    QvxStatus (*flip)(const T*, T*, int), T (*of)(T) = [](T v) { return v; }) {
  Random random(tests::seed());
  const std::vector<T> data = tests::values<T>(kChecked, random);
  tests::Placements<T>(kChecked).run(data, [&](size_t n, const T* src) {
    std::vector<T> expected(src, src + n), dst(n);
    std::reverse(expected.begin(), expected.end());
    std::transform(expected.begin(), expected.end(), expected.begin(), of);
    ASSERT_EQ(flip(src, dst.data(), static_cast<int>(n)), qvxStatOk);
    ASSERT_TRUE(tests::sameBits(dst.data(), expected.data(), n));
  });
}

TEST(Flip, ReversesEveryLength) {
  checkFlip(qvxsFlip_8u);
  checkFlip(qvxsFlip_16u);
  checkFlip(qvxsFlip_32f);
  checkFlip(qvxsFlip_64f);
  checkFlip(qvxsFlip_32fc);
  checkFlip(qvxsFlip_64fc);
  checkFlip(qvxsConjFlip_16sc, conjugate<Qvx16sc>);
  checkFlip(qvxsConjFlip_32fc, conjugate<Qvx32fc>);
  checkFlip(qvxsConjFlip_64fc, conjugate<Qvx64fc>);
}

// ---- power

template <class T> T power(T re, T im) {
  const T a = re * re;
  const T b = im * im;
  return a + b;
}

TEST(Power, OfFloats) {
  check<Qvx32f, Qvx32fc>(qvxsPowerSpectr_32fc, [](Qvx32fc z) { return power(z.re, z.im); });
  check<Qvx64f, Qvx64fc>(qvxsPowerSpectr_64fc, [](Qvx64fc z) { return power(z.re, z.im); });
  check<Qvx32f, Qvx32f, Qvx32f>(qvxsPowerSpectr_32f, power<Qvx32f>);
  check<Qvx64f, Qvx64f, Qvx64f>(qvxsPowerSpectr_64f, power<Qvx64f>);
  check<Qvx64f, Qvx32fc>(qvxsMagSquared_32fc64f, [](Qvx32fc z) { return power<Qvx64f>(z.re, z.im); });
}

Wide exactPower(Wide re, Wide im) { return re * re + im * im; }

TEST(Power, OfIntegersToFloatsIsRoundedOnce) {
  check<Qvx32f, Qvx16sc>(qvxsPowerSpectr_16sc32f, [](Qvx16sc z) { return static_cast<Qvx32f>(exactPower(z.re, z.im)); });
  check<Qvx32f, Qvx16s, Qvx16s>(qvxsPowerSpectr_16s32f,
                                [](Qvx16s re, Qvx16s im) { return static_cast<Qvx32f>(exactPower(re, im)); });
}

TEST(Power, OfIntegersIsScaled) {
  for (const int s : tests::range(-35, 67, {INT32_MIN, -1000, 1000, INT32_MAX})) {
    check<Qvx16s, Qvx16sc>([=](auto... a) { return qvxsPowerSpectr_16sc_Sfs(a..., s); },
                           [=](Qvx16sc z) { return reference::scaled<Qvx16s>(exactPower(z.re, z.im), s); });
    check<Qvx16s, Qvx16s, Qvx16s>([=](auto... a) { return qvxsPowerSpectr_16s_Sfs(a..., s); },
                                  [=](Qvx16s re, Qvx16s im) { return reference::scaled<Qvx16s>(exactPower(re, im), s); });
    check<Qvx32s, Qvx32sc>([=](auto... a) { return qvxsMagSquared_32sc32s_Sfs(a..., s); },
                           [=](Qvx32sc z) { return reference::scaled<Qvx32s>(exactPower(z.re, z.im), s); });
  }
}

}  // namespace
