// Extreme values and where they are first found.
#include "stats/extrema.h"

using namespace qvx;

namespace {

// One pass finds the value and remembers the block in which it first appeared; only that block is searched for the place. The
// blocks follow each other but for the last, which ends where the vector does.
constexpr size_t kBlockBytes = 4096;

template <class T, class Take> void overBlocks(size_t n, Take take) {
  const size_t count = std::min(n, kBlockBytes / sizeof(T));
  for (size_t at = 0;; at = std::min(at + count, n - count)) {
    take(at, count);
    if (at + count == n) return;
  }
}

template <class Order, class Key, class T> struct Held {
  T value;
  size_t block;

  void offer(T v, size_t at) {
    if (at != 0 && !Order::replaces(v, value)) return;
    value = v;
    block = at;
  }
  // A NaN equals no element: then the index stays 0.
  size_t index(const T* src, size_t n) const {
    const size_t count = std::min(n, kBlockBytes / sizeof(T));
    const size_t at = firstEqual<Key>(value, src + block, count);
    return at == count ? 0 : block + at;
  }
};

template <class Order, class Key = Element, class T> QvxStatus oneWithIndex(const T* src, int len, T* result, int* index) {
  const QvxStatus status = check(len, src, result);
  if (status != qvxStatOk) return status;
  const size_t n = elements(len);
  Held<Order, Key, T> held{};
  overBlocks<T>(n, [&](size_t at, size_t count) { held.offer(extreme<Order, Key>(src, src + at, count), at); });
  const size_t place = held.index(src, n);
  // An element is taken from its place, since lanes lose which of two zeros came first.
  *result = std::is_same_v<Key, Element> ? src[place] : held.value;
  *index = static_cast<int>(place);
  return qvxStatOk;
}

template <class T> QvxStatus bothWithIndex(const T* src, int len, T* min, int* minIndex, T* max, int* maxIndex) {
  const QvxStatus status = check(len, src, min, minIndex, max, maxIndex);
  if (status != qvxStatOk) return status;
  const size_t n = elements(len);
  Held<Least, Element, T> least{};
  Held<Greatest, Element, T> greatest{};
  overBlocks<T>(n, [&](size_t at, size_t count) {
    const Range<T> range = extremes(src, src + at, count);
    least.offer(range.least, at);
    greatest.offer(range.greatest, at);
  });
  const size_t minPlace = least.index(src, n);
  const size_t maxPlace = greatest.index(src, n);
  const T leastElement = src[minPlace];
  const T greatestElement = src[maxPlace];
  *min = leastElement;
  *minIndex = static_cast<int>(minPlace);
  *max = greatestElement;
  *maxIndex = static_cast<int>(maxPlace);
  return qvxStatOk;
}

}  // namespace

// clang-format off
QvxStatus qvxsMaxIndx_16s(const Qvx16s* a, int len, Qvx16s* max, int* index) { return index == nullptr ? qvxsMax_16s(a, len, max) : oneWithIndex<Greatest>(a, len, max, index); }
QvxStatus qvxsMaxIndx_32s(const Qvx32s* a, int len, Qvx32s* max, int* index) { return index == nullptr ? qvxsMax_32s(a, len, max) : oneWithIndex<Greatest>(a, len, max, index); }
QvxStatus qvxsMaxIndx_32f(const Qvx32f* a, int len, Qvx32f* max, int* index) { return index == nullptr ? qvxsMax_32f(a, len, max) : oneWithIndex<Greatest>(a, len, max, index); }
QvxStatus qvxsMaxIndx_64f(const Qvx64f* a, int len, Qvx64f* max, int* index) { return index == nullptr ? qvxsMax_64f(a, len, max) : oneWithIndex<Greatest>(a, len, max, index); }
QvxStatus qvxsMinIndx_16s(const Qvx16s* a, int len, Qvx16s* min, int* index) { return index == nullptr ? qvxsMin_16s(a, len, min) : oneWithIndex<Least>(a, len, min, index); }
QvxStatus qvxsMinIndx_32s(const Qvx32s* a, int len, Qvx32s* min, int* index) { return index == nullptr ? qvxsMin_32s(a, len, min) : oneWithIndex<Least>(a, len, min, index); }
QvxStatus qvxsMinIndx_32f(const Qvx32f* a, int len, Qvx32f* min, int* index) { return index == nullptr ? qvxsMin_32f(a, len, min) : oneWithIndex<Least>(a, len, min, index); }
QvxStatus qvxsMinIndx_64f(const Qvx64f* a, int len, Qvx64f* min, int* index) { return index == nullptr ? qvxsMin_64f(a, len, min) : oneWithIndex<Least>(a, len, min, index); }

QvxStatus qvxsMinMaxIndx_8u (const Qvx8u*  a, int len, Qvx8u*  min, int* minIndex, Qvx8u*  max, int* maxIndex) { return bothWithIndex(a, len, min, minIndex, max, maxIndex); }
QvxStatus qvxsMinMaxIndx_16u(const Qvx16u* a, int len, Qvx16u* min, int* minIndex, Qvx16u* max, int* maxIndex) { return bothWithIndex(a, len, min, minIndex, max, maxIndex); }
QvxStatus qvxsMinMaxIndx_16s(const Qvx16s* a, int len, Qvx16s* min, int* minIndex, Qvx16s* max, int* maxIndex) { return bothWithIndex(a, len, min, minIndex, max, maxIndex); }
QvxStatus qvxsMinMaxIndx_32u(const Qvx32u* a, int len, Qvx32u* min, int* minIndex, Qvx32u* max, int* maxIndex) { return bothWithIndex(a, len, min, minIndex, max, maxIndex); }
QvxStatus qvxsMinMaxIndx_32s(const Qvx32s* a, int len, Qvx32s* min, int* minIndex, Qvx32s* max, int* maxIndex) { return bothWithIndex(a, len, min, minIndex, max, maxIndex); }
QvxStatus qvxsMinMaxIndx_32f(const Qvx32f* a, int len, Qvx32f* min, int* minIndex, Qvx32f* max, int* maxIndex) { return bothWithIndex(a, len, min, minIndex, max, maxIndex); }
QvxStatus qvxsMinMaxIndx_64f(const Qvx64f* a, int len, Qvx64f* min, int* minIndex, Qvx64f* max, int* maxIndex) { return bothWithIndex(a, len, min, minIndex, max, maxIndex); }

QvxStatus qvxsMaxAbsIndx_16s(const Qvx16s* a, int len, Qvx16s* max, int* index) { return index == nullptr ? qvxsMaxAbs_16s(a, len, max) : oneWithIndex<Greatest, Magnitude>(a, len, max, index); }
QvxStatus qvxsMaxAbsIndx_32s(const Qvx32s* a, int len, Qvx32s* max, int* index) { return index == nullptr ? qvxsMaxAbs_32s(a, len, max) : oneWithIndex<Greatest, Magnitude>(a, len, max, index); }
QvxStatus qvxsMinAbsIndx_16s(const Qvx16s* a, int len, Qvx16s* min, int* index) { return index == nullptr ? qvxsMinAbs_16s(a, len, min) : oneWithIndex<Least, Magnitude>(a, len, min, index); }
QvxStatus qvxsMinAbsIndx_32s(const Qvx32s* a, int len, Qvx32s* min, int* index) { return index == nullptr ? qvxsMinAbs_32s(a, len, min) : oneWithIndex<Least, Magnitude>(a, len, min, index); }
// clang-format on
