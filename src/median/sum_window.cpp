// Sums of sliding windows, exact in integers: each window gains one element and loses one.
#include "frame/map.h"

using namespace qvx;

namespace {

// Sums of 32 bits that begin anew with every block: a block adds to no more than its window.
template <class Sum, class T> void sumWindows(const T* src, Qvx32f* dst, size_t len, size_t mask) {
  Sum sum = 0;
  for (size_t i = 0; i < mask; ++i) sum += src[i];
  for (size_t n = 0; n < len; ++n) {
    dst[n] = static_cast<Qvx32f>(sum);
    if (n + 1 < len) sum += src[n + mask] - src[n];
  }
}

template <class T> QvxStatus sumWindow(const T* src, Qvx32f* dst, int len, int maskSize) {
  if (isNull(src) || isNull(dst)) return qvxStatNullPtr;
  if (maskSize < 1) return qvxStatBadMaskSize;
  if (len < 1) return qvxStatOk;
  // Up to here no window's sum leaves 31 bits.
  constexpr int kNarrow = 1 << (8 * (4 - sizeof(T)) - 1);
  if (maskSize <= kNarrow) sumWindows<int32_t>(src, dst, elements(len), elements(maskSize));
  else sumWindows<int64_t>(src, dst, elements(len), elements(maskSize));
  return qvxStatOk;
}

}  // namespace

QvxStatus qvxsSumWindow_8u32f(const Qvx8u* a, Qvx32f* d, int len, int mask) { return sumWindow(a, d, len, mask); }
QvxStatus qvxsSumWindow_16s32f(const Qvx16s* a, Qvx32f* d, int len, int mask) { return sumWindow(a, d, len, mask); }
