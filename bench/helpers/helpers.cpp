// Helpers of speech and radio beside loops under -Ofast.
#include "frame/families.h"
#include "peers/ofast.h"

namespace bench {

namespace {

template <int kType>
constexpr auto kCrossings = [](const auto* a, int n, float* count, int) { ofast::zeroCrossing<kType>(a, n, count); };
constexpr auto kNormalize = [](const auto* a, auto* d, int n, auto vSub, auto vDiv, auto... scale) {
  ofast::normalize(a, d, n, vSub, vDiv, scale...);
};

// These work in place, which changes the vector: both contenders copy it first.
template <auto kCall> QvxStatus cauchy(const Qvx32f* a, Qvx32f* d, int n) {
  std::memcpy(d, a, sizeof(*a) * static_cast<size_t>(n));
  return kCall(d, n, 1.5F);
}
template <void (*kCall)(float*, int, float)> void ofastCauchy(const Qvx32f* a, Qvx32f* d, int n) {
  std::memcpy(d, a, sizeof(*a) * static_cast<size_t>(n));
  kCall(d, n, 1.5F);
}
QvxStatus bothDerivatives(const Qvx32f* a, Qvx32f* d, Qvx32f* second, int n) {
  std::memcpy(d, a, sizeof(*a) * static_cast<size_t>(n));
  return qvxsCauchyDD2_32f_I(d, second, n, 1.5F);
}
void ofastBoth(const Qvx32f* a, Qvx32f* d, Qvx32f* second, int n) {
  std::memcpy(d, a, sizeof(*a) * static_cast<size_t>(n));
  ofast::cauchyDD2(d, second, n, 1.5F);
}

QvxStatus demodulate(const Qvx16s* re, const Qvx16s* im, Qvx16s* d, int n) {
  Qvx16sc before = {1, 2};
  return qvxsDemodulateFM_CToR_16s(re, im, d, n, &before);
}
void ofastDemodulate(const Qvx16s* re, const Qvx16s* im, Qvx16s* d, int n) { ofast::demodulateFm(re, im, d, n, 1, 2); }

}  // namespace

void helpers(Suite& s) {
  constexpr auto kDiffers = Agreement::kDiffers;  // by a unit, or in the last places
  s.row("DemodulateFM_CToR_16s", demodulate).against("-Ofast", ofastDemodulate, kDiffers);
  s.reduction("ZeroCrossing_16s32f, type 0", qvxsZeroCrossing_16s32f, 0).against("-Ofast", kCrossings<0>);
  s.reduction("ZeroCrossing_16s32f, type 1", qvxsZeroCrossing_16s32f, 1).against("-Ofast", kCrossings<1>);
  s.reduction("ZeroCrossing_16s32f, type 2", qvxsZeroCrossing_16s32f, 2).against("-Ofast", kCrossings<2>);
  s.reduction("ZeroCrossing_32f, type 0", qvxsZeroCrossing_32f, 0).against("-Ofast", kCrossings<0>);
  s.reduction("ZeroCrossing_32f, type 1", qvxsZeroCrossing_32f, 1).against("-Ofast", kCrossings<1>);
  s.reduction("ZeroCrossing_32f, type 2", qvxsZeroCrossing_32f, 2).against("-Ofast", kCrossings<2>);
  s.row("Cauchy_32f_I", cauchy<qvxsCauchy_32f_I>).against("-Ofast", ofastCauchy<ofast::cauchy>, kDiffers);
  s.row("CauchyD_32f_I", cauchy<qvxsCauchyD_32f_I>).against("-Ofast", ofastCauchy<ofast::cauchyD>, kDiffers);
  s.row("CauchyDD2_32f_I", bothDerivatives).against("-Ofast", ofastBoth, kDiffers);
  s.row("Normalize_32f", qvxsNormalize_32f, 1.5F, 3.0F).against("-Ofast", kNormalize, kDiffers);
  s.row("Normalize_64f", qvxsNormalize_64f, 1.5, 3.0).against("-Ofast", kNormalize, kDiffers);
  s.row("Normalize_32fc", qvxsNormalize_32fc, Qvx32fc{1.5F, 2}, 3.0F).against("-Ofast", kNormalize, kDiffers);
  s.row("Normalize_16s_Sfs, scale 1", qvxsNormalize_16s_Sfs, Qvx16s{5}, 3, 1).against("-Ofast", kNormalize, kDiffers);
}

}  // namespace bench
