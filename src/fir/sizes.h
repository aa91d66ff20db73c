// The sizes of the records that users allocate: fixed values of the interface. The layout (build.h) needs less, whatever the
// number of taps and threads.
#pragma once

#include <qvx/qvxcore.h>

#include <bit>

#include "fir/state.h"

namespace qvx::fir {

constexpr int64_t up16(int64_t bytes) { return up<16>(bytes); }

// Without a transform, of n taps and t threads.
constexpr int64_t bytesOf(const FloatRecord<Qvx32f>*, int64_t n, int64_t t) {
  return 16544 + 16 * t + up16(4 * t) + up16(12 * n + 16) + 16 * ((n + 6) & ~3) + 5 * up16(4 * n);
}
constexpr int64_t bytesOf(const FloatRecord<Qvx32fc>*, int64_t n, int64_t t) {
  return 32976 + 64 * t + up16(4 * t) + up16(24 * n + 32) + 13 * up16(8 * n);
}
constexpr int64_t bytesOf(const FloatRecord<Qvx64f>*, int64_t n, int64_t t) {
  return 32976 + 32 * t + up16(4 * t) + ((24 * n + 63) & ~31) + 32 * ((n + 2) & ~1);
}
constexpr int64_t bytesOf(const FloatRecord<Qvx64fc>*, int64_t n, int64_t t) {
  return 65728 + up16(4 * t) + ((48 * n + 95) & ~31) + 3 * ((16 * n + 31) & ~31);
}
// 64f taps from integers.
constexpr int64_t bytesOfIntegerTaps(int64_t n, int64_t t) { return 32943 + 32 * t + up16(24 * n + 32) + 3 * up16(8 * n); }

constexpr int64_t bytesOfRows(int64_t n) {
  const int64_t stride = (n + 11) & ~7;
  return (((stride + 2 * n) * 2 + 23) & ~15) + 8 * stride;
}
constexpr int64_t bytesOf(const IntegerRecord<Qvx16s, Qvx16s>*, int64_t n, int64_t) {
  return 16512 + up16(2 * n) + bytesOfRows(n);
}
constexpr int64_t bytesOf(const IntegerRecord<Qvx16s, Qvx32s>*, int64_t n, int64_t) {
  return 16512 + up16(4 * n) + bytesOfRows(n);
}
constexpr int64_t bytesOf(const IntegerRecord<Qvx16sc, Qvx32sc>*, int64_t n, int64_t) {
  return 16512 + up16(12 * n + 16) + 16 * n + up16(8 * n);
}

// The fewest taps that a filter has a transform for.
template <class C> inline constexpr int kLeastTransformed = 64;
template <> inline constexpr int kLeastTransformed<Qvx32fc> = 16;
template <> inline constexpr int kLeastTransformed<Qvx64fc> = 32;

// The transform of a filter, and the number of threads that the record has memory for. It is read once, since another thread may
// change it between the record's size and its layout.
struct FilterTransform : fft::TransformSizes {
  int threads = 1;
};

template <class C> FilterTransform transformOf(int tapsLen, int threads) {
  if (tapsLen < kLeastTransformed<C>) return {};
  return {fft::TransformSizes::ofOrder<C>(std::bit_width(static_cast<uint32_t>(tapsLen)) + 1), threads};
}

// The bytes of a record of a number of taps, and its transform.
struct Footprint {
  int64_t bytes;
  FilterTransform transform;
};

template <class S> Footprint footprintOf(int tapsLen) {
  const int threads = ownGetNumThreads();
  const int64_t bytes = bytesOf(static_cast<const S*>(nullptr), tapsLen, threads);
  if constexpr (std::is_integral_v<Part<typename S::Kernel>>) {
    return {bytes, {}};
  } else {
    const auto transform = transformOf<typename S::Kernel>(tapsLen, threads);
    const int64_t block = up16(int64_t{sizeof(typename S::Kernel)} * transform.length);
    return {bytes + transform.spec + transform.init + block + threads * (transform.work + block), transform};
  }
}
inline Footprint footprintOfStream16s(int tapsLen) { return {128 + up16(2 * int64_t{tapsLen}), {}}; }
inline Footprint footprintOfIntegerTaps(int tapsLen) { return {bytesOfIntegerTaps(tapsLen, ownGetNumThreads()), {}}; }

using FootprintOf = Footprint (*)(int tapsLen);

inline QvxStatus reportSize(int tapsLen, int* pSize, FootprintOf footprintOf) {
  if (isNull(pSize)) return qvxStatNullPtr;
  if (tapsLen < 1) return qvxStatBadTapsLen;
  return reportBytes(footprintOf(tapsLen).bytes, pSize);
}

}  // namespace qvx::fir
