// The Hamming window.
#include "window/cosine.h"
#include "window/weigh.h"

using namespace qvx;
using namespace qvx::window;

namespace {

// The ends of integers are truncated, where all others are rounded.
Qvx16s atEnd(Qvx16s v) { return static_cast<Qvx16s>(static_cast<Qvx32f>(v) * (0.54F - 0.46F)); }
Qvx16sc atEnd(Qvx16sc v) { return {atEnd(v.re), atEnd(v.im)}; }

template <class T> QvxStatus hamming(const T* src, T* dst, int len) {
  if constexpr (std::is_floating_point_v<Part<T>>) {
    return cosineWindow(src, dst, len, Hamming{});
  } else {
    const QvxStatus status = checkWindow(src, dst, len);
    if (status != qvxStatOk) return status;
    const RoundingScope nearest(Rounding::kNearest);
    const T first = atEnd(src[0]);
    const T last = atEnd(src[len - 1]);
    cosineWindow(src, dst, len, Hamming{});
    dst[0] = first;
    dst[len - 1] = last;
    return qvxStatOk;
  }
}

}  // namespace

// clang-format off
QvxStatus qvxsWinHamming_16s(const Qvx16s* a, Qvx16s* d, int len) { return hamming(a, d, len); }
QvxStatus qvxsWinHamming_16s_I(Qvx16s* d, int len) { return hamming(d, d, len); }
QvxStatus qvxsWinHamming_16sc(const Qvx16sc* a, Qvx16sc* d, int len) { return hamming(a, d, len); }
QvxStatus qvxsWinHamming_16sc_I(Qvx16sc* d, int len) { return hamming(d, d, len); }
QvxStatus qvxsWinHamming_32f(const Qvx32f* a, Qvx32f* d, int len) { return hamming(a, d, len); }
QvxStatus qvxsWinHamming_32f_I(Qvx32f* d, int len) { return hamming(d, d, len); }
QvxStatus qvxsWinHamming_32fc(const Qvx32fc* a, Qvx32fc* d, int len) { return hamming(a, d, len); }
QvxStatus qvxsWinHamming_32fc_I(Qvx32fc* d, int len) { return hamming(d, d, len); }
QvxStatus qvxsWinHamming_64f(const Qvx64f* a, Qvx64f* d, int len) { return hamming(a, d, len); }
QvxStatus qvxsWinHamming_64f_I(Qvx64f* d, int len) { return hamming(d, d, len); }
QvxStatus qvxsWinHamming_64fc(const Qvx64fc* a, Qvx64fc* d, int len) { return hamming(a, d, len); }
QvxStatus qvxsWinHamming_64fc_I(Qvx64fc* d, int len) { return hamming(d, d, len); }
// clang-format on
