// Cross-correlation at a range of lags.
#include "correlation/direct.h"
#include "correlation/doubles.h"

using namespace qvx;
using namespace qvx::correlation;

namespace {

// Whole numbers have to give exact sums up to this value of shorter length * lags / longer length.
template <class C> inline constexpr int kDirectTo = 511;
template <> inline constexpr int kDirectTo<Qvx32f> = 383;
template <> inline constexpr int kDirectTo<Qvx32fc> = 255;

void turn(Qvx32f* y, int n) { qvxsFlip_32f_I(y, n); }
void turn(Qvx64f* y, int n) { qvxsFlip_64f_I(y, n); }
void turn(Qvx32fc* y, int n) {
  qvxsFlip_32fc_I(y, n);
  qvxsConj_32fc_I(y, n);
}
void turn(Qvx64fc* y, int n) {
  qvxsFlip_64fc_I(y, n);
  qvxsConj_64fc_I(y, n);
}

// The shorter vector becomes the taps. If that is the second one, the lags run the other way, and sums are conjugates.
template <class C>
QvxStatus crossCorrelate(const C* a, size_t aLen, const C* b, size_t bLen, C* y, size_t lags, int64_t lowLag, int directTo) {
  return whereMeeting(Band<C>{b, bLen, a, aLen, false, lowLag, lags}, y, [=](const Band<C>& band, C* sums) {
    const auto [less, more] = std::minmax({static_cast<float>(aLen), static_cast<float>(bLen)});
    const Way way = less * static_cast<float>(band.outputs) / more < static_cast<float>(directTo + 1) ? Way::kDirect : Way::kAny;
    if (aLen <= bLen) return correlateBand(band, sums, way);
    const int64_t from = 1 - band.from - static_cast<int64_t>(band.outputs);
    const QvxStatus status = correlateBand(Band<C>{a, aLen, b, bLen, false, from, band.outputs}, sums, way);
    if (status == qvxStatOk) turn(sums, static_cast<int>(band.outputs));
    return status;
  });
}

QvxStatus checkCall(const void* a, int aLen, const void* b, int bLen, const void* y, int lags) {
  if (isNull(a) || isNull(b) || isNull(y)) return qvxStatNullPtr;
  return aLen < 1 || bLen < 1 || lags < 1 ? qvxStatBadSize : qvxStatOk;
}

template <class C> QvxStatus checkedCorrelate(const C* a, int aLen, const C* b, int bLen, C* y, int lags, int lowLag) {
  const QvxStatus status = checkCall(a, aLen, b, bLen, y, lags);
  if (status != qvxStatOk) return status;
  if constexpr (kInRegisters < C >> 0) {
    const Band<C> band{b, elements(bLen), a, elements(aLen), false, lowLag, elements(lags)};
    if (fitsRegisters(band) && correlateInRegisters(band, y)) return qvxStatOk;
  }
  return crossCorrelate(a, elements(aLen), b, elements(bLen), y, elements(lags), lowLag, kDirectTo<C>);
}

}  // namespace

// clang-format off
QvxStatus qvxsCrossCorr_32f(const Qvx32f* a, int aLen, const Qvx32f* b, int bLen, Qvx32f* y, int lags, int low) { return checkedCorrelate(a, aLen, b, bLen, y, lags, low); }
QvxStatus qvxsCrossCorr_64f(const Qvx64f* a, int aLen, const Qvx64f* b, int bLen, Qvx64f* y, int lags, int low) { return checkedCorrelate(a, aLen, b, bLen, y, lags, low); }
QvxStatus qvxsCrossCorr_32fc(const Qvx32fc* a, int aLen, const Qvx32fc* b, int bLen, Qvx32fc* y, int lags, int low) { return checkedCorrelate(a, aLen, b, bLen, y, lags, low); }
QvxStatus qvxsCrossCorr_64fc(const Qvx64fc* a, int aLen, const Qvx64fc* b, int bLen, Qvx64fc* y, int lags, int low) { return checkedCorrelate(a, aLen, b, bLen, y, lags, low); }
// clang-format on

QvxStatus qvxsCrossCorr_16s_Sfs(const Qvx16s* a, int aLen, const Qvx16s* b, int bLen, Qvx16s* y, int lags, int low,
                                int scaleFactor) {
  const QvxStatus status = checkCall(a, aLen, b, bLen, y, lags);
  if (status != qvxStatOk) return status;
  return inDoubles(a, elements(aLen), b, elements(bLen), elements(lags), y, scaleFactor,
                   [=](auto... operands) { return crossCorrelate(operands..., elements(lags), low, kDirectTo<Qvx32f>); });
}

QvxStatus qvxsCrossCorr_16s64s(const Qvx16s* a, int aLen, const Qvx16s* b, int bLen, Qvx64s* y, int lags, int low) {
  const QvxStatus status = checkCall(a, aLen, b, bLen, y, lags);
  if (status != qvxStatOk) return status;
  for (int64_t n = 0; n < lags; ++n) {
    const int64_t lag = n + low;
    const int64_t from = std::max<int64_t>(0, -lag);
    const int64_t to = std::min<int64_t>(aLen, bLen - lag);
    y[n] = 0;
    if (from < to) qvxsDotProd_16s64s(a + from, b + from + lag, static_cast<int>(to - from), y + n);
  }
  return qvxStatOk;
}
