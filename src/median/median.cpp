// Median filters.
#include "median/long_masks.h"
#include "median/short_masks.h"
#include "median/sorted_windows.h"
#include "median/three.h"

using namespace qvx;
using namespace qvx::median;

namespace {

// The longest masks that sorted windows serve sooner than what long masks have, as the elements are wide and the vectors
// AVX-512's: other vectors hold fewer windows.
constexpr size_t kLongestInLanes[] = {0, 127, 255, 0, 155, 0, 0, 0, 301};
template <class T> inline constexpr size_t kLongestSorted = kLongestInLanes[sizeof(T)] * kVectorBytes / 64;

template <class T> QvxStatus filterLong(const T* src, T* dst, size_t len, size_t mask) {
  if (mask <= kLongestSorted<T>) {
    if (compareAsTheyAre(src, len)) return filterBySortedWindows<AsTheyAre<T>>(src, dst, len, mask);
    return filterBySortedWindows<AsKey<T>>(src, dst, len, mask);
  }
  if constexpr (sizeof(T) == 1) return filterByHistogram(src, dst, len, mask);
  else return filterByRanks(src, dst, len, mask);
}

template <class T> QvxStatus filterBy(const T* src, T* dst, size_t len, size_t mask) {
  switch (mask) {
    case 5:
      return filterByNetwork<Median5>(src, dst, len);
    case 7:
      return filterByNetwork<Median7>(src, dst, len);
    case 9:
      return filterByNetwork<Median9>(src, dst, len);
    default:
      return filterLong(src, dst, len, mask);
  }
}

template <class T> QvxStatus filterMedian(const T* src, T* dst, int len, int maskSize) {
  if (isNull(src) || isNull(dst)) return qvxStatNullPtr;
  if (len < 1 || maskSize < 1) return qvxStatBadSize;
  const QvxStatus status = maskSize % 2 == 0 ? qvxWarnEvenMask : qvxStatOk;
  const size_t n = elements(len);
  if (n > 2 && (maskSize == 3 || maskSize == 4)) return Three<T>::filter(src, dst, n, status);
  const size_t mask = effectiveMask(elements(maskSize), n);
  if (mask == 1 || n <= 2) {
    if (src != dst) std::copy_n(src, n, dst);
    return status;
  }
  const QvxStatus done = filterBy(src, dst, n, mask);
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
