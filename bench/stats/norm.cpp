// Norms of a vector and of differences.
#include <algorithm>
#include <cmath>
#include <cstdlib>

#include "frame/families.h"
#include "peers/plain_reduce.h"

namespace bench {

namespace {

constexpr auto kSummed = Agreement::kSummed;
constexpr auto kDiffers = Agreement::kDiffers;  // by scale and saturation

template <class Wide>
constexpr auto difference = [](auto a, auto... b) { return (static_cast<Wide>(a) - ... - static_cast<Wide>(b)); };
template <class Wide> constexpr auto magnitude = [](auto... x) { return std::abs(difference<Wide>(x...)); };
template <class Wide>
constexpr auto square = [](auto... x) {
  const Wide d = difference<Wide>(x...);
  return d * d;
};
template <class Wide>
constexpr auto radiusSquare = [](auto a, auto... b) {
  const Wide re = difference<Wide>(a.re, b.re...);
  const Wide im = difference<Wide>(a.im, b.im...);
  return re * re + im * im;
};

constexpr auto largest = [](auto size) {
  return [=](auto all, auto... x) { return std::max(all, static_cast<decltype(all)>(size(x...))); };
};
constexpr auto summed = [](auto size) {
  return [=](auto all, auto... x) { return all + static_cast<decltype(all)>(size(x...)); };
};
template <class Wide> constexpr auto radius = [](auto... x) { return std::sqrt(radiusSquare<Wide>(x...)); };

template <class Acc, auto kAdd> using G = plain::Gathered<Acc, kAdd>;

// Takes the root of Peer's result, which is the argument after the length.
template <class Peer> struct Root {
  template <class... A> void operator()(A... arguments) const {
    Peer()(arguments...);
    root(arguments...);
  }
  template <class A, class R, class... X> static void root(const A*, int, R* r, X...) { *r = static_cast<R>(std::sqrt(*r)); }
  template <class A, class R, class... X> static void root(const A*, const A*, int, R* r, X...) {
    *r = static_cast<R>(std::sqrt(*r));
  }
};
template <class Acc, auto kAdd> using Rooted = Root<G<Acc, kAdd>>;

}  // namespace

void norm(Suite& s) {
  s.reduction("Norm_Inf_32f", qvxsNorm_Inf_32f).against("plain", G<float, largest(magnitude<float>)>());
  s.reduction("Norm_Inf_64f", qvxsNorm_Inf_64f).against("plain", G<double, largest(magnitude<double>)>());
  s.reduction("Norm_Inf_16s32f", qvxsNorm_Inf_16s32f).against("plain", G<int, largest(magnitude<int>)>());
  s.reduction("Norm_Inf_32fc32f", qvxsNorm_Inf_32fc32f).against("plain", Rooted<float, largest(radiusSquare<float>)>(), kSummed);
  s.reduction("Norm_Inf_64fc64f", qvxsNorm_Inf_64fc64f)
      .against("plain", Rooted<double, largest(radiusSquare<double>)>(), kSummed);
  s.reduction("Norm_L1_32f", qvxsNorm_L1_32f).against("plain", G<float, summed(magnitude<float>)>(), kSummed);
  s.reduction("Norm_L1_64f", qvxsNorm_L1_64f).against("plain", G<double, summed(magnitude<double>)>(), kSummed);
  s.reduction("Norm_L1_16s64s_Sfs", qvxsNorm_L1_16s64s_Sfs, 0).against("plain", G<int64_t, summed(magnitude<int>)>());
  s.reduction("Norm_L1_64fc64f", qvxsNorm_L1_64fc64f).against("plain", G<double, summed(radius<double>)>(), kSummed);
  s.reduction("Norm_L1_32fc64f", qvxsNorm_L1_32fc64f).against("plain", G<double, summed(radius<double>)>(), kSummed);
  s.reduction("Norm_L2_32f", qvxsNorm_L2_32f).against("plain", Rooted<float, summed(square<float>)>(), kSummed);
  s.reduction("Norm_L2_64f", qvxsNorm_L2_64f).against("plain", Rooted<double, summed(square<double>)>(), kSummed);
  s.reduction("Norm_L2_16s32s_Sfs, scale 4", qvxsNorm_L2_16s32s_Sfs, 4)
      .against("plain", G<int64_t, summed(square<int>)>(), kDiffers);
  s.reduction("Norm_L2Sqr_16s64s_Sfs, scale 0", qvxsNorm_L2Sqr_16s64s_Sfs, 0).against("plain", G<int64_t, summed(square<int>)>());
  s.reduction("Norm_L2_32fc64f", qvxsNorm_L2_32fc64f).against("plain", Rooted<double, summed(radiusSquare<double>)>(), kSummed);

  s.reduction("NormDiff_Inf_32f", qvxsNormDiff_Inf_32f).against("plain", G<float, largest(magnitude<float>)>());
  s.reduction("NormDiff_Inf_16s32f", qvxsNormDiff_Inf_16s32f).against("plain", G<int, largest(magnitude<int>)>());
  s.reduction("NormDiff_Inf_32fc32f", qvxsNormDiff_Inf_32fc32f)
      .against("plain", G<float, largest(radiusSquare<float>)>(), kDiffers);
  s.reduction("NormDiff_L1_32f", qvxsNormDiff_L1_32f).against("plain", G<float, summed(magnitude<float>)>(), kSummed);
  s.reduction("NormDiff_L1_16s64s_Sfs", qvxsNormDiff_L1_16s64s_Sfs, 0).against("plain", G<int64_t, summed(magnitude<int>)>());
  s.reduction("NormDiff_L1_32fc64f", qvxsNormDiff_L1_32fc64f).against("plain", G<double, summed(radius<double>)>(), kSummed);
  s.reduction("NormDiff_L2_32f", qvxsNormDiff_L2_32f).against("plain", Rooted<float, summed(square<float>)>(), kSummed);
  s.reduction("NormDiff_L2_64f", qvxsNormDiff_L2_64f).against("plain", Rooted<double, summed(square<double>)>(), kSummed);
  s.reduction("NormDiff_L2Sqr_16s64s_Sfs, scale 0", qvxsNormDiff_L2Sqr_16s64s_Sfs, 0)
      .against("plain", G<int64_t, summed(square<int64_t>)>());
}

}  // namespace bench
