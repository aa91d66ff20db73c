// Median filters by masks, and window sums.
#include "frame/families.h"
#include "peers/plain_median.h"

namespace bench {

namespace {

template <int kMask>
constexpr auto network = [](const auto* src, auto* dst, int n, int) { plain::medianByNetwork<kMask>(src, dst, n); };
constexpr auto sortedWindow = [](const auto* src, auto* dst, int n, int mask) { plain::medianBySortedWindow(src, dst, n, mask); };

template <int kMask, class F> void shortRow(Suite& s, const std::string& name, F ours) {
  s.row(name + ", mask " + std::to_string(kMask), ours, kMask).against("networks", network<kMask>);
}
template <class F> void longRow(Suite& s, const std::string& name, F ours, int mask) {
  s.row(name + ", mask " + std::to_string(mask), ours, mask).against("sorted window", sortedWindow).large(65536);
}
template <class F> void rows(Suite& s, const std::string& name, F ours) {
  shortRow<3>(s, name, ours);
  shortRow<5>(s, name, ours);
  shortRow<7>(s, name, ours);
  shortRow<9>(s, name, ours);
  for (const int mask : {11, 31, 101, 501, 2001}) longRow(s, name, ours, mask);
}

// The running sum in floats, which drifts.
constexpr auto runningSum = [](const auto* src, float* dst, int n, int mask) {
  float sum = 0;
  for (int i = 0; i < mask; ++i) sum += static_cast<float>(src[i]);
  dst[0] = sum;
  for (int i = 1; i < n; ++i) {
    sum += static_cast<float>(src[i + mask - 1]) - static_cast<float>(src[i - 1]);
    dst[i] = sum;
  }
};

}  // namespace

void medians(Suite& s) {
  rows(s, "FilterMedian_32f", qvxsFilterMedian_32f);
  rows(s, "FilterMedian_64f", qvxsFilterMedian_64f);
  rows(s, "FilterMedian_8u", qvxsFilterMedian_8u);
  rows(s, "FilterMedian_16s", qvxsFilterMedian_16s);
  rows(s, "FilterMedian_32s", qvxsFilterMedian_32s);
  for (const int mask : {3, 31}) {
    s.row("SumWindow_8u32f, mask " + std::to_string(mask), qvxsSumWindow_8u32f, mask)
        .against("plain", runningSum, Agreement::kDiffers);
    s.row("SumWindow_16s32f, mask " + std::to_string(mask), qvxsSumWindow_16s32f, mask)
        .against("plain", runningSum, Agreement::kDiffers);
  }
}

}  // namespace bench
