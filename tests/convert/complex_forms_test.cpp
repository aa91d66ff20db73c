// Parts, conjugates, order and power of complex vectors.
#include <qvx/qvxs.h>

#include "reference/scaled.h"
#include "support/elementwise.h"

namespace {

using reference::Wide;
using tests::Block;
using tests::Elementwise;
using tests::kOutOfPlace;
using tests::Part;
using tests::Random;

constexpr size_t kMost = 3000;

template <class D, class... S, class Call, class Oracle> void check(Call call, Oracle oracle, int inPlaceOf = kOutOfPlace) {
  Random random(tests::seed());
  Elementwise<D, S...>(kMost, random, oracle).run(call, inPlaceOf);
}

// ---- parts

template <class C>
void checkParts(QvxStatus (*real)(const C*, Part<C>*, int), QvxStatus (*imaginary)(const C*, Part<C>*, int),
                QvxStatus (*both)(const C*, Part<C>*, Part<C>*, int)) {
  using T = Part<C>;
  check<T, C>(real, [](C z) { return z.re; });
  check<T, C>(imaginary, [](C z) { return z.im; });
  std::vector<T> other(kMost + 1);
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

  T part[2] = {1, 2};
  C dst[2] = {{7, 7}, {7, 7}};
  EXPECT_EQ(join(part, part, static_cast<C*>(nullptr), 0), qvxStatNullPtr);
  EXPECT_EQ(join(nullptr, nullptr, dst, 0), qvxStatBadSize);
  EXPECT_EQ(join(nullptr, nullptr, dst, 1), qvxStatNullPtr);
  EXPECT_EQ(join(part, nullptr, dst, -1), qvxStatBadSize);
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

template <class C> void checkConjugate(QvxStatus (*conj)(const C*, C*, int), QvxStatus (*inPlace)(C*, int)) {
  check<C, C>(conj, conjugate<C>);
  check<C, C>([=](const C*, C* dst, int n) { return inPlace(dst, n); }, conjugate<C>, 0);
}

TEST(Conjugate, NegatesTheImaginaryPart) {
  checkConjugate(qvxsConj_16sc, qvxsConj_16sc_I);
  checkConjugate(qvxsConj_32fc, qvxsConj_32fc_I);
  checkConjugate(qvxsConj_64fc, qvxsConj_64fc_I);
}

// ---- reversal

// call(src, dst, n) reverses; in place if src is not read.
template <class T, class Call, class Of> void checkFlip(Call call, bool inPlace, Of of) {
  Random random(tests::seed());
  const std::vector<T> data = tests::values<T>(kMost, random);
  Block srcBlock(sizeof(T) * kMost + 128);
  Block dstBlock(sizeof(T) * kMost + 128);
  const auto once = [&](size_t n, bool atEnd, size_t srcOffset, size_t dstOffset) {
    const size_t bytes = n * sizeof(T);
    T* src = reinterpret_cast<T*>(atEnd ? srcBlock.atEnd(bytes) : srcBlock.atOffset(srcOffset, bytes));
    T* dst = reinterpret_cast<T*>(atEnd ? dstBlock.atEnd(bytes) : dstBlock.atOffset(dstOffset, bytes));
    std::memcpy(static_cast<void*>(src), data.data(), bytes);
    if (inPlace) std::memcpy(static_cast<void*>(dst), data.data(), bytes);
    std::vector<T> expected(data.begin(), data.begin() + static_cast<ptrdiff_t>(n));
    std::reverse(expected.begin(), expected.end());
    for (T& v : expected) v = of(v);
    ASSERT_EQ(call(src, dst, static_cast<int>(n)), qvxStatOk);
    ASSERT_TRUE(dstBlock.isIntact() && srcBlock.isIntact()) << "length " << n;
    ASSERT_EQ(std::memcmp(dst, expected.data(), bytes), 0) << "length " << n << ", offsets " << srcOffset << ", " << dstOffset;
  };
  for (size_t n = 1; n <= kMost && !testing::Test::HasFailure(); n += n < 300 ? 1 : n / 3) once(n, true, 0, 0);
  for (size_t offset = 0; offset < 64 && !testing::Test::HasFailure(); offset += alignof(T))
    once(777, false, 64 + alignof(T), offset);
}

template <class T> T itself(T v) { return v; }

template <class T> void checkFlips(QvxStatus (*flip)(const T*, T*, int), QvxStatus (*flipInPlace)(T*, int)) {
  checkFlip<T>(flip, false, itself<T>);
  checkFlip<T>([=](const T*, T* dst, int n) { return flipInPlace(dst, n); }, true, itself<T>);
}

TEST(Flip, ReversesEveryLength) {
  checkFlips(qvxsFlip_8u, qvxsFlip_8u_I);
  checkFlips(qvxsFlip_16u, qvxsFlip_16u_I);
  checkFlips(qvxsFlip_32f, qvxsFlip_32f_I);
  checkFlips(qvxsFlip_64f, qvxsFlip_64f_I);
  checkFlips(qvxsFlip_32fc, qvxsFlip_32fc_I);
  checkFlips(qvxsFlip_64fc, qvxsFlip_64fc_I);
}

TEST(Flip, WithConjugate) {
  checkFlip<Qvx16sc>(qvxsConjFlip_16sc, false, conjugate<Qvx16sc>);
  checkFlip<Qvx32fc>(qvxsConjFlip_32fc, false, conjugate<Qvx32fc>);
  checkFlip<Qvx64fc>(qvxsConjFlip_64fc, false, conjugate<Qvx64fc>);
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
  std::vector<int> scales = {INT32_MIN, -1000, 1000, INT32_MAX};
  for (int s = -35; s <= 67; ++s) scales.push_back(s);
  for (const int s : scales) {
    check<Qvx16s, Qvx16sc>([=](auto... a) { return qvxsPowerSpectr_16sc_Sfs(a..., s); },
                           [=](Qvx16sc z) { return reference::scaled<Qvx16s>(exactPower(z.re, z.im), s); });
    check<Qvx16s, Qvx16s, Qvx16s>([=](auto... a) { return qvxsPowerSpectr_16s_Sfs(a..., s); },
                                  [=](Qvx16s re, Qvx16s im) { return reference::scaled<Qvx16s>(exactPower(re, im), s); });
    check<Qvx32s, Qvx32sc>([=](auto... a) { return qvxsMagSquared_32sc32s_Sfs(a..., s); },
                           [=](Qvx32sc z) { return reference::scaled<Qvx32s>(exactPower(z.re, z.im), s); });
  }
}

}  // namespace
