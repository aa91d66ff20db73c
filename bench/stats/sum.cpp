// Sums, means, deviations.
#include <cmath>

#include "frame/families.h"
#include "peers/plain_reduce.h"
#include "peers/volk.h"

namespace bench {

namespace {

constexpr auto kSummed = Agreement::kSummed;

// Both sums in one pass, in Acc.
template <class Acc, class A, class R> [[gnu::noipa]] void meanAndDeviation(const A* a, int n, R* mean, R* deviation) {
  Acc sum = 0;
  Acc squares = 0;
  for (int i = 0; i < n; ++i) {
    sum += a[i];
    squares += static_cast<Acc>(a[i]) * a[i];
  }
  const double s = static_cast<double>(sum);
  *mean = static_cast<R>(s / n);
  *deviation = static_cast<R>(std::sqrt((static_cast<double>(squares) * n - s * s) / (n * (n - 1.0))));
}
template <class Acc>
constexpr auto kPlainMoments =
    [](const auto* a, int n, auto* mean, auto* deviation, auto...) { meanAndDeviation<Acc>(a, n, mean, deviation); };

}  // namespace

void sum(Suite& s) {
  const auto floats = plain::Gathered<float, plain::addTo>();
  const auto doubles = plain::Gathered<double, plain::addTo>();
  const auto integers = plain::Gathered<int64_t, plain::addTo>();
  s.reduction("Sum_32f, hint 1", qvxsSum_32f, 1).against("plain", floats, kSummed).against("VOLK", volk::sum32f, kSummed);
  s.reduction("Sum_32f, hint 0", qvxsSum_32f, 0).against("plain", doubles, kSummed);
  s.reduction("Sum_64f", qvxsSum_64f).against("plain", doubles, kSummed);
  s.reduction("Sum_16s32s_Sfs, scale 4", qvxsSum_16s32s_Sfs, 4).against("plain", integers, Agreement::kDiffers);
  s.reduction("Sum_32s_Sfs, scale 4", qvxsSum_32s_Sfs, 4).against("plain", integers, Agreement::kDiffers);
  s.reduction("Mean_16s_Sfs, scale 0", qvxsMean_16s_Sfs, 0).against("plain", integers, Agreement::kDiffers);

  s.reduction("MeanStdDev_32f, hint 1", qvxsMeanStdDev_32f, 1)
      .against("plain", kPlainMoments<float>, kSummed)
      .against("VOLK", volk::meanStdDev32f, kSummed);
  s.reduction("MeanStdDev_32f, hint 0", qvxsMeanStdDev_32f, 0)
      .against("plain", kPlainMoments<double>, kSummed)
      .against("VOLK", volk::meanStdDev32f, kSummed);
  s.reduction("MeanStdDev_64f", qvxsMeanStdDev_64f).against("plain", kPlainMoments<double>, kSummed);
  s.reduction("MeanStdDev_16s32s_Sfs, scale -2", qvxsMeanStdDev_16s32s_Sfs, -2)
      .against("plain", kPlainMoments<int64_t>, Agreement::kDiffers);
}

}  // namespace bench
