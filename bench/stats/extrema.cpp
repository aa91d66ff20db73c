// Extreme values, with and without their places, and searches.
#include <algorithm>
#include <array>
#include <bit>
#include <cmath>

#include "frame/families.h"
#include "peers/plain_math.h"
#include "peers/plain_reduce.h"
#include "peers/volk.h"

namespace bench {

namespace {

constexpr auto kMax = plain::Picked<plain::greaterOf>();
constexpr auto kMin = plain::Picked<plain::lessOf>();
constexpr auto kMaxAbs = plain::Picked<plain::greaterOf, plain::magnitude>();
constexpr auto kMinAbs = plain::Picked<plain::lessOf, plain::magnitude>();
constexpr auto kMaxIndex = plain::PickedIndex<plain::isGreater>();
constexpr auto kMinIndex = plain::PickedIndex<plain::isLess>();
constexpr auto kMaxAbsIndex = plain::PickedIndex<plain::isGreater, plain::magnitude>();
constexpr auto kMinMax = plain::LeastAndGreatest();
constexpr auto kMinMaxIndex = plain::LeastAndGreatestIndex();

template <class T> [[gnu::noipa]] void orderOf(const T* a, int n, int* order) {
  if constexpr (std::is_integral_v<T>) {
    std::make_unsigned_t<T> bits = 0;
    for (int i = 0; i < n; ++i) bits |= static_cast<std::make_unsigned_t<T>>(a[i] < 0 ? -int64_t{a[i]} : a[i]);
    *order = std::bit_width(bits);
  } else {
    T most = 0;
    for (int i = 0; i < n; ++i) most = plain::greaterOf(std::abs(a[i]), most);
    std::frexp(most, order);
  }
}
constexpr auto kOrder = [](const auto* a, int n, int* order) { orderOf(a, n, order); };

[[gnu::noipa]] void countInRange(const Qvx32s* a, int n, int* counts, Qvx32s lower, Qvx32s upper) {
  int count = 0;
  for (int i = 0; i < n; ++i) count += a[i] > lower && a[i] < upper;
  *counts = count;
}

// A table of kEntries different entries, and room for the values found, which the harness has no vector for.
template <int kEntries> const Qvx16u* table() {
  static const auto entries = [] {
    std::array<Qvx16u, kEntries> t;
    fillBits(t.data(), sizeof(t), 5);
    constexpr int kApart = 65536 / kEntries;
    for (int i = 0; i < kEntries; ++i)
      t[static_cast<size_t>(i)] = static_cast<Qvx16u>(i * kApart + t[static_cast<size_t>(i)] % kApart);
    return t;
  }();
  return entries.data();
}
Qvx16u* found() {
  static std::vector<Qvx16u> values(kSizes.back());
  return values.data();
}
template <int kEntries> QvxStatus findNearest(const Qvx16u* vals, int* indices, int n) {
  return qvxsFindNearest_16u(vals, found(), indices, n, table<kEntries>(), kEntries);
}
template <int kEntries> [[gnu::noipa]] void lowerBounds(const Qvx16u* vals, int* indices, int n) {
  const Qvx16u* first = table<kEntries>();
  Qvx16u* values = found();
  for (int i = 0; i < n; ++i) {
    const Qvx16u* at = std::lower_bound(first, first + kEntries, vals[i]);
    if (at == first + kEntries) --at;
    if (at != first && *at - vals[i] >= vals[i] - at[-1]) --at;
    values[i] = *at;
    indices[i] = static_cast<int>(at - first);
  }
}

}  // namespace

void extrema(Suite& s) {
  s.reduction("Max_16s", qvxsMax_16s).against("plain", kMax);
  s.reduction("Max_32s", qvxsMax_32s).against("plain", kMax);
  s.reduction("Max_32f", qvxsMax_32f).against("plain", kMax);
  s.reduction("Max_64f", qvxsMax_64f).against("plain", kMax);
  s.reduction("Min_32f", qvxsMin_32f).against("plain", kMin);
  s.reduction("MinMax_8u", qvxsMinMax_8u).against("plain", kMinMax);
  s.reduction("MinMax_16u", qvxsMinMax_16u).against("plain", kMinMax);
  s.reduction("MinMax_16s", qvxsMinMax_16s).against("plain", kMinMax);
  s.reduction("MinMax_32u", qvxsMinMax_32u).against("plain", kMinMax);
  s.reduction("MinMax_32s", qvxsMinMax_32s).against("plain", kMinMax);
  s.reduction("MinMax_32f", qvxsMinMax_32f).against("plain", kMinMax);
  s.reduction("MinMax_64f", qvxsMinMax_64f).against("plain", kMinMax);
  s.reduction("MaxAbs_16s", qvxsMaxAbs_16s).against("plain", kMaxAbs);
  s.reduction("MaxAbs_32s", qvxsMaxAbs_32s).against("plain", kMaxAbs);
  s.reduction("MinAbs_16s", qvxsMinAbs_16s).against("plain", kMinAbs);
  s.reduction("MinAbs_32s", qvxsMinAbs_32s).against("plain", kMinAbs);

  s.reduction("MaxIndx_16s", qvxsMaxIndx_16s).against("plain", kMaxIndex);
  s.reduction("MaxIndx_32s", qvxsMaxIndx_32s).against("plain", kMaxIndex);
  s.reduction("MaxIndx_32f", qvxsMaxIndx_32f).against("plain", kMaxIndex).against("VOLK", volk::maxIndex32f);
  s.reduction("MaxIndx_64f", qvxsMaxIndx_64f).against("plain", kMaxIndex);
  s.reduction("MinIndx_32f", qvxsMinIndx_32f).against("plain", kMinIndex).against("VOLK", volk::minIndex32f);
  s.reduction("MinMaxIndx_8u", qvxsMinMaxIndx_8u).against("plain", kMinMaxIndex);
  s.reduction("MinMaxIndx_16s", qvxsMinMaxIndx_16s).against("plain", kMinMaxIndex);
  s.reduction("MinMaxIndx_32f", qvxsMinMaxIndx_32f).against("plain", kMinMaxIndex);
  s.reduction("MinMaxIndx_64f", qvxsMinMaxIndx_64f).against("plain", kMinMaxIndex);
  s.reduction("MaxAbsIndx_16s", qvxsMaxAbsIndx_16s).against("plain", kMaxAbsIndex);
  s.reduction("MaxAbsIndx_32s", qvxsMaxAbsIndx_32s).against("plain", kMaxAbsIndex);

  const auto greater = plain::Each<plain::greaterOf>();
  const auto less = plain::Each<plain::lessOf>();
  s.row("MaxEvery_8u", qvxsMaxEvery_8u).plain(greater);
  s.row("MaxEvery_16u", qvxsMaxEvery_16u).plain(greater);
  s.row("MaxEvery_32f", qvxsMaxEvery_32f).plain(greater).against("VOLK", volk::maxEvery32f);
  s.row("MaxEvery_64f", qvxsMaxEvery_64f).plain(greater).against("VOLK", volk::maxEvery64f);
  s.row("MinEvery_32f", qvxsMinEvery_32f).plain(less).against("VOLK", volk::minEvery32f);

  s.reduction("MaxOrder_16s", qvxsMaxOrder_16s).against("plain", kOrder);
  s.reduction("MaxOrder_32s", qvxsMaxOrder_32s).against("plain", kOrder);
  s.reduction("MaxOrder_32f", qvxsMaxOrder_32f).against("plain", kOrder);
  s.reduction("MaxOrder_64f", qvxsMaxOrder_64f).against("plain", kOrder);

  s.reduction("CountInRange_32s", qvxsCountInRange_32s, -(1 << 30), 1 << 30).against("plain", countInRange);
  s.row("FindNearest_16u, 16 entries", findNearest<16>).against("lower_bound", lowerBounds<16>);
  s.row("FindNearest_16u, 1000 entries", findNearest<1000>).against("lower_bound", lowerBounds<1000>);
}

}  // namespace bench
