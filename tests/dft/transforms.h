// One face for the transforms of any length, and their records.
#pragma once

#include <gtest/gtest.h>
#include <qvx/qvxs.h>

#include <limits>
#include <random>

#include "reference/dft.h"
#include "reference/packed.h"
#include "support/bounded.h"
#include "support/owned.h"
#include "support/ulp.h"
#include "support/values.h"

namespace tests {

using reference::Layout;

enum class Place { kApart, kSame };

template <class Spec> struct DftLife {
  QvxStatus (*initAlloc)(Spec**, int, int, int);
  QvxStatus (*free)(Spec*);
  QvxStatus (*getBufSize)(const Spec*, int*);
};

template <class T_, class C_, class Spec_> struct InterleavedDft {
  using T = T_;
  using C = C_;
  using Spec = Spec_;
  const char* name;
  DftLife<Spec> life;
  QvxStatus (*call[2])(const C*, C*, const Spec*, Qvx8u*);

  std::vector<Exact> run(const Spec* spec, bool isInverse, const std::vector<Exact>& x, Place place, Qvx8u* buffer) const {
    std::vector<C> points;
    for (const Exact& z : x) points.push_back({static_cast<T>(z.real()), static_cast<T>(z.imag())});
    Bounded<C> src(points), dst(points);
    EXPECT_EQ(call[isInverse](place == Place::kSame ? dst : src, dst, spec, buffer), qvxStatOk);
    EXPECT_TRUE(src.isIntact() && dst.isIntact());
    std::vector<Exact> found;
    for (size_t i = 0; i < x.size(); ++i) found.push_back({dst[i].re, dst[i].im});
    return found;
  }
};

template <class T_, class Spec_> struct SplitDft {
  using T = T_;
  using Spec = Spec_;
  const char* name;
  DftLife<Spec> life;
  QvxStatus (*call[2])(const T*, const T*, T*, T*, const Spec*, Qvx8u*);

  std::vector<Exact> run(const Spec* spec, bool isInverse, const std::vector<Exact>& x, Place place, Qvx8u* buffer) const {
    std::vector<T> all[2];
    for (const Exact& z : x) all[0].push_back(static_cast<T>(z.real())), all[1].push_back(static_cast<T>(z.imag()));
    Bounded<T> re(all[0]), im(all[1]), dstRe(all[0]), dstIm(all[1]);
    const bool same = place == Place::kSame;
    EXPECT_EQ(call[isInverse](same ? dstRe : re, same ? dstIm : im, dstRe, dstIm, spec, buffer), qvxStatOk);
    EXPECT_TRUE(re.isIntact() && im.isIntact() && dstRe.isIntact() && dstIm.isIntact());
    std::vector<Exact> found;
    for (size_t i = 0; i < x.size(); ++i) found.push_back({dstRe[i], dstIm[i]});
    return found;
  }
};

template <class T_, class Spec_> struct RealDft {
  using T = T_;
  using Spec = Spec_;
  const char* name;
  DftLife<Spec> life;
  QvxStatus (*call[2][3])(const T*, T*, const Spec*, Qvx8u*);  // forward and inverse, by layout
};

// clang-format off
inline const InterleavedDft<Qvx32f, Qvx32fc, QvxsDFTSpec_C_32fc> kDft32fc = {"32fc", {qvxsDFTInitAlloc_C_32fc, qvxsDFTFree_C_32fc, qvxsDFTGetBufSize_C_32fc}, {qvxsDFTFwd_CToC_32fc, qvxsDFTInv_CToC_32fc}};
inline const InterleavedDft<Qvx64f, Qvx64fc, QvxsDFTSpec_C_64fc> kDft64fc = {"64fc", {qvxsDFTInitAlloc_C_64fc, qvxsDFTFree_C_64fc, qvxsDFTGetBufSize_C_64fc}, {qvxsDFTFwd_CToC_64fc, qvxsDFTInv_CToC_64fc}};
inline const SplitDft<Qvx32f, QvxsDFTSpec_C_32f> kDft32f = {"32f", {qvxsDFTInitAlloc_C_32f, qvxsDFTFree_C_32f, qvxsDFTGetBufSize_C_32f}, {qvxsDFTFwd_CToC_32f, qvxsDFTInv_CToC_32f}};
inline const SplitDft<Qvx64f, QvxsDFTSpec_C_64f> kDft64f = {"64f", {qvxsDFTInitAlloc_C_64f, qvxsDFTFree_C_64f, qvxsDFTGetBufSize_C_64f}, {qvxsDFTFwd_CToC_64f, qvxsDFTInv_CToC_64f}};
inline const RealDft<Qvx32f, QvxsDFTSpec_R_32f> kRealDft32f = {"R_32f", {qvxsDFTInitAlloc_R_32f, qvxsDFTFree_R_32f, qvxsDFTGetBufSize_R_32f},
    {{qvxsDFTFwd_RToPerm_32f, qvxsDFTFwd_RToPack_32f, qvxsDFTFwd_RToCCS_32f}, {qvxsDFTInv_PermToR_32f, qvxsDFTInv_PackToR_32f, qvxsDFTInv_CCSToR_32f}}};
inline const RealDft<Qvx64f, QvxsDFTSpec_R_64f> kRealDft64f = {"R_64f", {qvxsDFTInitAlloc_R_64f, qvxsDFTFree_R_64f, qvxsDFTGetBufSize_R_64f},
    {{qvxsDFTFwd_RToPerm_64f, qvxsDFTFwd_RToPack_64f, qvxsDFTFwd_RToCCS_64f}, {qvxsDFTInv_PermToR_64f, qvxsDFTInv_PackToR_64f, qvxsDFTInv_CCSToR_64f}}};
inline const InterleavedDft<Qvx32f, Qvx32fc, QvxsDFTOutOrdSpec_C_32fc> kDftOutOfOrder32fc = {"out of order, 32fc", {qvxsDFTOutOrdInitAlloc_C_32fc, qvxsDFTOutOrdFree_C_32fc, qvxsDFTOutOrdGetBufSize_C_32fc}, {qvxsDFTOutOrdFwd_CToC_32fc, qvxsDFTOutOrdInv_CToC_32fc}};
inline const InterleavedDft<Qvx64f, Qvx64fc, QvxsDFTOutOrdSpec_C_64fc> kDftOutOfOrder64fc = {"out of order, 64fc", {qvxsDFTOutOrdInitAlloc_C_64fc, qvxsDFTOutOrdFree_C_64fc, qvxsDFTOutOrdGetBufSize_C_64fc}, {qvxsDFTOutOrdFwd_CToC_64fc, qvxsDFTOutOrdInv_CToC_64fc}};
inline const DftLife<QvxsDFTSpec_C_16sc> kDft16sc = {qvxsDFTInitAlloc_C_16sc, qvxsDFTFree_C_16sc, qvxsDFTGetBufSize_C_16sc};
inline const DftLife<QvxsDFTSpec_C_16s> kDft16s = {qvxsDFTInitAlloc_C_16s, qvxsDFTFree_C_16s, qvxsDFTGetBufSize_C_16s};
inline const DftLife<QvxsDFTSpec_R_16s> kRealDft16s = {qvxsDFTInitAlloc_R_16s, qvxsDFTFree_R_16s, qvxsDFTGetBufSize_R_16s};
// clang-format on

template <class Step> void forEachComplex(Step step) {
  step(kDft32fc);
  step(kDft64fc);
  step(kDft32f);
  step(kDft64f);
}
template <class Step> void forEachReal(Step step) {
  step(kRealDft32f);
  step(kRealDft64f);
}

template <class Transform> class DftRecord {
 public:
  using T = typename Transform::T;
  using Spec = typename Transform::Spec;
  DftRecord(const Transform& transform, size_t n, int flag)
      : transform_(transform), n_(n), spec_(transform.life.free, transform.life.initAlloc, static_cast<int>(n), flag, 0) {}

  std::vector<Exact> run(bool isInverse, const std::vector<Exact>& x, Place place, Qvx8u* buffer = nullptr) const {
    return transform_.run(spec_.get(), isInverse, x, place, buffer);
  }
  std::vector<long double> run(Layout layout, bool isInverse, const std::vector<long double>& x, Place place,
                               Qvx8u* buffer = nullptr) const {
    const size_t packed = reference::sizeOf(layout, n_);
    std::vector<T> numbers(x.begin(), x.end());
    Bounded<T> src(numbers);
    numbers.resize(packed);
    Bounded<T> dst(numbers);
    EXPECT_EQ(transform_.call[isInverse][static_cast<int>(layout)](place == Place::kSame ? dst : src, dst, spec_.get(), buffer),
              qvxStatOk);
    EXPECT_TRUE(src.isIntact() && dst.isIntact());
    const T* const found = dst;
    return {found, found + (isInverse ? n_ : packed)};
  }

 private:
  const Transform& transform_;
  size_t n_;
  Owned<Spec> spec_;
};

inline std::vector<Exact> noise(size_t n, Random& random) {
  std::normal_distribution<double> gaussian;
  std::vector<Exact> v(n);
  for (Exact& z : v) z = {gaussian(random), gaussian(random)};
  return v;
}
template <class T> std::vector<Exact> rounded(std::vector<Exact> v) {
  for (Exact& z : v) z = {static_cast<T>(z.real()), static_cast<T>(z.imag())};
  return v;
}

// The relative error over all results added: root of the sum of squares.
class Error {
 public:
  template <class N> void add(const std::vector<N>& found, const std::vector<N>& expected, long double factor) {
    ASSERT_EQ(found.size(), expected.size());
    for (size_t i = 0; i < found.size(); ++i) {
      squares_ += std::norm(found[i] - factor * expected[i]);
      all_ += std::norm(factor * expected[i]);
    }
  }
  long double relative() const { return std::sqrt(squares_ / all_); }

 private:
  long double squares_ = 0;
  long double all_ = 0;
};

// Whether a prime factor is so large that lengths go by a convolution.
inline bool hasLargeFactor(size_t n) {
  for (size_t p = 2; p <= 89; ++p) {
    while (n % p == 0) n /= p;
  }
  return n > 1;
}
template <class T> long double allowedError(size_t n) {
  const long double eps = std::numeric_limits<T>::epsilon();
  const long double root = std::sqrt(std::log2(static_cast<long double>(std::max<size_t>(n, 2))));
  return std::max(0.5L * eps, (hasLargeFactor(n) ? 0.6L : 0.4L) * unfused() * eps * root);
}

}  // namespace tests
