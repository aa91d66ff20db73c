// Median filters.
#include "median/long_masks.h"
#include "median/short_masks.h"
#include "median/sorted_windows.h"

using namespace qvx;
using namespace qvx::median;

namespace {

// The longest masks that sorted windows serve sooner, by a measurement.
template <class T> inline constexpr size_t kLongestSorted = 301;

template <class As, class T> QvxStatus filterInOrder(const T* src, T* dst, size_t len, size_t mask) {
  using Lane = typename As::Lane;
  switch (mask) {
    case 3:
      return filterByNetwork<Median3<Lane>, As>(src, dst, len), qvxStatOk;
    case 5:
      return filterByNetwork<Median5<Lane>, As>(src, dst, len), qvxStatOk;
    case 7:
      return filterByNetwork<Median7<Lane>, As>(src, dst, len), qvxStatOk;
    case 9:
      return filterByNetwork<Median9<Lane>, As>(src, dst, len), qvxStatOk;
    default:
      return filterBySortedWindows<As>(src, dst, len, mask);
  }
}

template <class T> QvxStatus filterMedian(const T* src, T* dst, int len, int maskSize) {
  if (isNull(src) || isNull(dst)) return qvxStatNullPtr;
  if (len < 1 || maskSize < 1) return qvxStatBadSize;
  const QvxStatus status = maskSize % 2 == 0 ? qvxWarnEvenMask : qvxStatOk;
  const size_t n = elements(len);
  const size_t mask = effectiveMask(elements(maskSize), n);
  if (mask == 1 || n <= 2) {
    if (src != dst) std::copy_n(src, n, dst);
    return status;
  }
  if (mask > kLongestSorted<T>) {
    QvxStatus done = qvxStatOk;
    if constexpr (sizeof(T) == 1) done = filterByHistogram(src, dst, n, mask);
    else done = filterByRanks(src, dst, n, mask);
    return done == qvxStatOk ? status : done;
  }
  const bool isPlain = compareAsTheyAre(src, n);
  const QvxStatus done = isPlain ? filterInOrder<AsTheyAre<T>>(src, dst, n, mask) : filterInOrder<AsKey<T>>(src, dst, n, mask);
  return done == qvxStatOk ? status : done;
}

}  // namespace

QvxStatus qvxsFilterMedian_32f(const Qvx32f* a, Qvx32f* d, int len, int mask) { return filterMedian(a, d, len, mask); }
QvxStatus qvxsFilterMedian_32f_I(Qvx32f* d, int len, int mask) { return filterMedian<Qvx32f>(d, d, len, mask); }
QvxStatus qvxsFilterMedian_64f(const Qvx64f* a, Qvx64f* d, int len, int mask) { return filterMedian(a, d, len, mask); }
QvxStatus qvxsFilterMedian_64f_I(Qvx64f* d, int len, int mask) { return filterMedian<Qvx64f>(d, d, len, mask); }
QvxStatus qvxsFilterMedian_8u(const Qvx8u* a, Qvx8u* d, int len, int mask) { return filterMedian(a, d, len, mask); }
QvxStatus qvxsFilterMedian_8u_I(Qvx8u* d, int len, int mask) { return filterMedian<Qvx8u>(d, d, len, mask); }
QvxStatus qvxsFilterMedian_16s(const Qvx16s* a, Qvx16s* d, int len, int mask) { return filterMedian(a, d, len, mask); }
QvxStatus qvxsFilterMedian_16s_I(Qvx16s* d, int len, int mask) { return filterMedian<Qvx16s>(d, d, len, mask); }
QvxStatus qvxsFilterMedian_32s(const Qvx32s* a, Qvx32s* d, int len, int mask) { return filterMedian(a, d, len, mask); }
QvxStatus qvxsFilterMedian_32s_I(Qvx32s* d, int len, int mask) { return filterMedian<Qvx32s>(d, d, len, mask); }
