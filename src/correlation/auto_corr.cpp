// Autocorrelation, as it is and with either norm.
#include "correlation/band.h"
#include "correlation/doubles.h"

using namespace qvx;
using namespace qvx::correlation;

namespace {

// The number of lags from which whole numbers need not give exact sums.
template <class C> inline constexpr size_t kAnyWayFrom = 856;
template <> inline constexpr size_t kAnyWayFrom<Qvx32fc> = 152;
template <> inline constexpr size_t kAnyWayFrom<Qvx64fc> = 368;

// How the sums of the first lags of a vector of `length` elements are normalised.
struct Unnormed {
  template <class C> void operator()(C*, size_t, size_t) const {}
};
// The biased estimate.
struct NormA {
  template <class C> void operator()(C* y, size_t lags, size_t length) const {
    const Constant factor{1 / static_cast<Part<C>>(length)};
    loop([](auto v, auto f) { return v * f; }, destination(y), lags * PartsOf<C>::kCount, source(std::as_const(y)), factor);
  }
};
// The unbiased one.
struct NormB {
  template <class C> void operator()(C* y, size_t lags, size_t length) const {
    constexpr size_t kMany = 256;
    Part<C> products[kMany];
    for (size_t at = 0; at < lags; at += kMany) {
      const size_t some = std::min(lags - at, kMany);
      for (size_t i = 0; i < some; ++i) products[i] = static_cast<Part<C>>(static_cast<int64_t>(length - at - i));
      const auto by = [&] {
        if constexpr (PartsOf<C>::kCount == 1) return source(std::as_const(products));
        else return Doubled{std::as_const(products)};
      };
      loop([](auto v, auto d) { return v / d; }, destination(y + at), some * PartsOf<C>::kCount, source(y + at), by());
    }
  }
};

// The lags of a vector with itself; lags up to its length.
template <class C> QvxStatus autoCorrelate(const C* x, size_t length, C* y, size_t lags, size_t anyWayFrom) {
  return correlateBand(Band<C>{x, length, x, length, false, 0, lags}, y, lags < anyWayFrom ? Way::kDirect : Way::kAny);
}

template <class Norm, class C> QvxStatus checkedAutoCorrelate(const C* x, int length, C* y, int lags) {
  if (isNull(x) || isNull(y)) return qvxStatNullPtr;
  if (length < 1 || lags < 1) return qvxStatBadSize;
  const size_t some = elements(std::min(length, lags));
  const QvxStatus status = autoCorrelate(x, elements(length), y, some, kAnyWayFrom<C>);
  if (status != qvxStatOk) return status;
  Norm()(y, some, elements(length));
  std::fill(y + some, y + lags, C{});
  return qvxStatOk;
}

template <class Norm> QvxStatus checkedAutoCorrelate(const Qvx16s* x, int length, Qvx16s* y, int lags, int scaleFactor) {
  if (isNull(x) || isNull(y)) return qvxStatNullPtr;
  if (length < 1 || lags < 1) return qvxStatBadSize;
  const size_t some = elements(std::min(length, lags));
  const auto correlate = [=](const Qvx64f* a, size_t n, const Qvx64f*, size_t, Qvx64f* sums) {
    return autoCorrelate(a, n, sums, some, kAnyWayFrom<Qvx32f>);
  };
  const QvxStatus status = inDoubles(x, elements(length), x, elements(length), some, y, scaleFactor, correlate,
                                     [=](Qvx64f* sums) { Norm()(sums, some, elements(length)); });
  if (status == qvxStatOk) std::fill(y + some, y + lags, Qvx16s{0});
  return status;
}

}  // namespace

// clang-format off
QvxStatus qvxsAutoCorr_32f(const Qvx32f* x, int len, Qvx32f* y, int lags) { return checkedAutoCorrelate<Unnormed>(x, len, y, lags); }
QvxStatus qvxsAutoCorr_64f(const Qvx64f* x, int len, Qvx64f* y, int lags) { return checkedAutoCorrelate<Unnormed>(x, len, y, lags); }
QvxStatus qvxsAutoCorr_32fc(const Qvx32fc* x, int len, Qvx32fc* y, int lags) { return checkedAutoCorrelate<Unnormed>(x, len, y, lags); }
QvxStatus qvxsAutoCorr_64fc(const Qvx64fc* x, int len, Qvx64fc* y, int lags) { return checkedAutoCorrelate<Unnormed>(x, len, y, lags); }
QvxStatus qvxsAutoCorr_16s_Sfs(const Qvx16s* x, int len, Qvx16s* y, int lags, int sf) { return checkedAutoCorrelate<Unnormed>(x, len, y, lags, sf); }
QvxStatus qvxsAutoCorr_NormA_32f(const Qvx32f* x, int len, Qvx32f* y, int lags) { return checkedAutoCorrelate<NormA>(x, len, y, lags); }
QvxStatus qvxsAutoCorr_NormA_64f(const Qvx64f* x, int len, Qvx64f* y, int lags) { return checkedAutoCorrelate<NormA>(x, len, y, lags); }
QvxStatus qvxsAutoCorr_NormA_32fc(const Qvx32fc* x, int len, Qvx32fc* y, int lags) { return checkedAutoCorrelate<NormA>(x, len, y, lags); }
QvxStatus qvxsAutoCorr_NormA_64fc(const Qvx64fc* x, int len, Qvx64fc* y, int lags) { return checkedAutoCorrelate<NormA>(x, len, y, lags); }
QvxStatus qvxsAutoCorr_NormA_16s_Sfs(const Qvx16s* x, int len, Qvx16s* y, int lags, int sf) { return checkedAutoCorrelate<NormA>(x, len, y, lags, sf); }
QvxStatus qvxsAutoCorr_NormB_32f(const Qvx32f* x, int len, Qvx32f* y, int lags) { return checkedAutoCorrelate<NormB>(x, len, y, lags); }
QvxStatus qvxsAutoCorr_NormB_64f(const Qvx64f* x, int len, Qvx64f* y, int lags) { return checkedAutoCorrelate<NormB>(x, len, y, lags); }
QvxStatus qvxsAutoCorr_NormB_32fc(const Qvx32fc* x, int len, Qvx32fc* y, int lags) { return checkedAutoCorrelate<NormB>(x, len, y, lags); }
QvxStatus qvxsAutoCorr_NormB_64fc(const Qvx64fc* x, int len, Qvx64fc* y, int lags) { return checkedAutoCorrelate<NormB>(x, len, y, lags); }
QvxStatus qvxsAutoCorr_NormB_16s_Sfs(const Qvx16s* x, int len, Qvx16s* y, int lags, int sf) { return checkedAutoCorrelate<NormB>(x, len, y, lags, sf); }
// clang-format on
