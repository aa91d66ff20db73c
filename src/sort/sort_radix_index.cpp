// Stable sorts that leave the elements where they are and tell their order.
#include "frame/check.h"
#include "sort/pairs.h"
#include "sort/sort_keys.h"

using namespace qvx;

namespace {

// What lies `stride` bytes apart.
template <class T> class Strided {
 public:
  Strided(const T* first, ptrdiff_t stride) : first_(reinterpret_cast<const uint8_t*>(first)), stride_(stride) {}
  Key<T> operator[](size_t i) const {
    Key<T> x;
    std::memcpy(&x, first_ + static_cast<ptrdiff_t>(i) * stride_, sizeof x);
    return x;
  }

 private:
  const uint8_t* first_;
  ptrdiff_t stride_;
};

template <class T> bool isStride(int stride) {
  if (sizeof(T) == 1) return stride != 0;
  return sizeof(T) == 2 ? stride >= 2 : stride < 0 || stride >= 4;
}

// Bytes by counting.
void sortNumbers(Strided<Qvx8u> src, Qvx32s* numbers, size_t n, KeyMap<int8_t> map) {
  uint32_t next[257] = {};
  for (size_t i = 0; i < n; ++i) ++next[map.key(src[i]) + 129];
  for (size_t v = 1; v < 256; ++v) next[v] += next[v - 1];
  for (size_t i = 0; i < n; ++i) numbers[next[map.key(src[i]) + 128]++] = static_cast<Qvx32s>(i);
}

template <Order kOrder, class T> QvxStatus sortRadixIndex(const T* src, int stride, Qvx32s* dstIndx, Qvx32s* keys, int len) {
  const QvxStatus status = check(isStride<T>(stride) ? len : 0, src, dstIndx, keys);
  if (status != qvxStatOk) return status;
  const size_t n = elements(len);
  const Strided<T> elements(src, stride);
  const auto map = keyMap<T>(kOrder);
  if constexpr (sizeof(T) == 1) {
    sortNumbers(elements, dstIndx, n, map);
  } else {
    for (size_t i = 0; i < n; ++i) keys[i] = map.key(elements[i]);
    fillNumbers(dstIndx, n);
    sortPairs(keys, dstIndx, n);
  }
  return qvxStatOk;
}

}  // namespace

// clang-format off
QvxStatus qvxsSortRadixIndexAscend_8u(const Qvx8u* src, int stride, Qvx32s* indx, Qvx32s* keys, int len) { return sortRadixIndex<kUp>(src, stride, indx, keys, len); }
QvxStatus qvxsSortRadixIndexAscend_16s(const Qvx16s* src, int stride, Qvx32s* indx, Qvx32s* keys, int len) { return sortRadixIndex<kUp>(src, stride, indx, keys, len); }
QvxStatus qvxsSortRadixIndexAscend_16u(const Qvx16u* src, int stride, Qvx32s* indx, Qvx32s* keys, int len) { return sortRadixIndex<kUp>(src, stride, indx, keys, len); }
QvxStatus qvxsSortRadixIndexAscend_32s(const Qvx32s* src, int stride, Qvx32s* indx, Qvx32s* keys, int len) { return sortRadixIndex<kUp>(src, stride, indx, keys, len); }
QvxStatus qvxsSortRadixIndexAscend_32u(const Qvx32u* src, int stride, Qvx32s* indx, Qvx32s* keys, int len) { return sortRadixIndex<kUp>(src, stride, indx, keys, len); }
QvxStatus qvxsSortRadixIndexAscend_32f(const Qvx32f* src, int stride, Qvx32s* indx, Qvx32s* keys, int len) { return sortRadixIndex<kUp>(src, stride, indx, keys, len); }
QvxStatus qvxsSortRadixIndexDescend_8u(const Qvx8u* src, int stride, Qvx32s* indx, Qvx32s* keys, int len) { return sortRadixIndex<kDown>(src, stride, indx, keys, len); }
QvxStatus qvxsSortRadixIndexDescend_16s(const Qvx16s* src, int stride, Qvx32s* indx, Qvx32s* keys, int len) { return sortRadixIndex<kDown>(src, stride, indx, keys, len); }
QvxStatus qvxsSortRadixIndexDescend_16u(const Qvx16u* src, int stride, Qvx32s* indx, Qvx32s* keys, int len) { return sortRadixIndex<kDown>(src, stride, indx, keys, len); }
QvxStatus qvxsSortRadixIndexDescend_32s(const Qvx32s* src, int stride, Qvx32s* indx, Qvx32s* keys, int len) { return sortRadixIndex<kDown>(src, stride, indx, keys, len); }
QvxStatus qvxsSortRadixIndexDescend_32u(const Qvx32u* src, int stride, Qvx32s* indx, Qvx32s* keys, int len) { return sortRadixIndex<kDown>(src, stride, indx, keys, len); }
QvxStatus qvxsSortRadixIndexDescend_32f(const Qvx32f* src, int stride, Qvx32s* indx, Qvx32s* keys, int len) { return sortRadixIndex<kDown>(src, stride, indx, keys, len); }
// clang-format on
