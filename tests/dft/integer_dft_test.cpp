// Transforms of integers: those of the definition, scaled, rounded and saturated, to a unit.
#include "dft/transforms.h"
#include "reference/scaled.h"

namespace {

using tests::Exact;
using tests::Random;

template <class Spec> tests::Owned<Spec> recordOf(const tests::DftLife<Spec>& life, size_t n) {
  return {life.free, life.initAlloc, static_cast<int>(n), QVX_FFT_SCALE_FWD, 0};
}

Qvx16s saturated(long double v) { return static_cast<Qvx16s>(std::min(std::max(std::rint(v), -32768.0L), 32767.0L)); }
void expectNear(Qvx16s found, long double exact) {
  EXPECT_LE(std::abs(found - saturated(exact)), 1) << found << " for " << exact;
}

std::vector<Qvx16s> numbers(size_t n, Random& random) {
  std::uniform_int_distribution<int> uniform(-32768, 32767);
  std::vector<Qvx16s> v(n);
  for (Qvx16s& x : v) x = static_cast<Qvx16s>(uniform(random));
  return v;
}

TEST(DftOfIntegers, IsTheDefinitionToAUnit) {
  Random random(tests::seed());
  for (const size_t n : {1, 2, 3, 7, 16, 17, 20, 45, 53, 60, 101, 300, 323}) {
    for (const int scaleFactor : {0, 3}) {
      SCOPED_TRACE(testing::Message() << n << " points, scale factor " << scaleFactor);
      const auto complex = recordOf(tests::kDft16sc, n);
      const auto split = recordOf(tests::kDft16s, n);
      const auto re = numbers(n, random);
      const auto im = numbers(n, random);
      std::vector<Exact> x;
      std::vector<Qvx16sc> src;
      for (size_t i = 0; i < n; ++i) {
        x.push_back({static_cast<long double>(re[i]), static_cast<long double>(im[i])});
        src.push_back({re[i], im[i]});
      }
      const long double scale = std::ldexp(1.0L, -scaleFactor);
      for (const bool isInverse : {false, true}) {
        const auto expected = tests::dft(x, isInverse ? 1 : -1);
        const long double factor = scale / (isInverse ? 1 : static_cast<long double>(n));
        std::vector<Qvx16sc> dst(n);
        const auto call = isInverse ? qvxsDFTInv_CToC_16sc_Sfs : qvxsDFTFwd_CToC_16sc_Sfs;
        ASSERT_EQ(call(src.data(), dst.data(), complex.get(), scaleFactor, nullptr), qvxStatOk);
        std::vector<Qvx16s> dstRe(n), dstIm(n);
        const auto apart = isInverse ? qvxsDFTInv_CToC_16s_Sfs : qvxsDFTFwd_CToC_16s_Sfs;
        ASSERT_EQ(apart(re.data(), im.data(), dstRe.data(), dstIm.data(), split.get(), scaleFactor, nullptr), qvxStatOk);
        for (size_t k = 0; k < n; ++k) {
          expectNear(dst[k].re, factor * expected[k].real());
          expectNear(dst[k].im, factor * expected[k].imag());
          expectNear(dstRe[k], factor * expected[k].real());
          expectNear(dstIm[k], factor * expected[k].imag());
        }
      }
    }
  }
}

TEST(DftOfIntegers, OfRealsThereAndBack) {
  Random random(tests::seed());
  for (const size_t n : {1, 2, 3, 16, 17, 30, 45, 101, 210}) {
    SCOPED_TRACE(n);
    const auto record = recordOf(tests::kRealDft16s, n);
    const auto src = numbers(n, random);
    std::vector<Exact> x;
    for (const Qvx16s v : src) x.push_back(static_cast<long double>(v));
    const auto expected = tests::dft(x, -1);
    const size_t pairs = (n - 1) / 2;
    const auto all = static_cast<long double>(n);
    std::vector<Qvx16s> perm(n), pack(n), ccs(2 * (n / 2 + 1)), back(n);
    ASSERT_EQ(qvxsDFTFwd_RToPerm_16s_Sfs(src.data(), perm.data(), record.get(), 0, nullptr), qvxStatOk);
    ASSERT_EQ(qvxsDFTFwd_RToPack_16s_Sfs(src.data(), pack.data(), record.get(), 0, nullptr), qvxStatOk);
    ASSERT_EQ(qvxsDFTFwd_RToCCS_16s_Sfs(src.data(), ccs.data(), record.get(), 0, nullptr), qvxStatOk);
    expectNear(ccs[0], expected[0].real() / all);
    EXPECT_EQ(ccs[1], 0);
    EXPECT_EQ(perm[0], ccs[0]);
    EXPECT_EQ(pack[0], ccs[0]);
    for (size_t k = 1; k <= pairs; ++k) {
      expectNear(ccs[2 * k], expected[k].real() / all);
      expectNear(ccs[2 * k + 1], expected[k].imag() / all);
      EXPECT_EQ(pack[2 * k - 1], ccs[2 * k]);
      EXPECT_EQ(perm[2 * k - n % 2], ccs[2 * k]);
      EXPECT_EQ(perm[2 * k + 1 - n % 2], ccs[2 * k + 1]);
    }
    if (n % 2 == 0) {
      expectNear(ccs[n], expected[n / 2].real() / all);
      EXPECT_EQ(perm[1], ccs[n]);
      EXPECT_EQ(pack[n - 1], ccs[n]);
    }
    // Each of n roundings adds up to half a unit.
    std::vector<Qvx16s> other(n);
    ASSERT_EQ(qvxsDFTInv_CCSToR_16s_Sfs(ccs.data(), back.data(), record.get(), 0, nullptr), qvxStatOk);
    for (size_t i = 0; i < n; ++i) EXPECT_LE(std::abs(back[i] - src[i]), n / 2 + 1) << i;
    ASSERT_EQ(qvxsDFTInv_PermToR_16s_Sfs(perm.data(), other.data(), record.get(), 0, nullptr), qvxStatOk);
    EXPECT_EQ(back, other);
    ASSERT_EQ(qvxsDFTInv_PackToR_16s_Sfs(pack.data(), other.data(), record.get(), 0, nullptr), qvxStatOk);
    EXPECT_EQ(back, other);
  }
}

}  // namespace
