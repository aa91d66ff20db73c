// Cyclic convolution of fixed lengths. The second operand is stored twice in a row, so that each of its rotations is a load; each
// is multiplied by an element of the first operand.
#include "frame/map.h"

using namespace qvx;

namespace {

// y[n] = the sum over k of a[k] * b[(n - k) mod kSize], for elements of kParts lanes.
template <size_t kSize, size_t kParts, class T> void cyclic(const T* a, const T* b, T* y) {
  constexpr size_t kLanes = kSize * kParts;
  constexpr size_t N = std::min(kLanes, kVectorBytes / sizeof(T));
  constexpr Lanes<T, N> d;
  T twice[2 * kLanes];
  for (size_t i = 0; i < kLanes; i += N) {
    const auto v = load(d, b + i);
    store(v, d, twice + i);
    store(v, d, twice + kLanes + i);
  }
  Vec<decltype(d)> sums[kLanes / N];
  for (size_t i = 0; i < kLanes / N; ++i) sums[i] = hn::Zero(d);
  for (size_t k = 0; k < kSize; ++k) {
    const auto tap = hn::Set(d, a[k]);
    for (size_t i = 0; i < kLanes / N; ++i) {
      const auto v = load(d, twice + kLanes - k * kParts + i * N);
      if constexpr (std::is_floating_point_v<T>) sums[i] = hn::MulAdd(tap, v, sums[i]);
      else sums[i] = sums[i] + tap * v;
    }
  }
  for (size_t i = 0; i < kLanes / N; ++i) store(sums[i], d, y + i * N);
}

}  // namespace

QvxStatus qvxsConvCyclic8x8_32f(const Qvx32f* a, const Qvx32f* b, Qvx32f* y) {
  if (isNull(a) || isNull(b) || isNull(y)) return qvxStatNullPtr;
  cyclic<8, 1>(a, b, y);
  return qvxStatOk;
}

QvxStatus qvxsConvCyclic4x4_32f32fc(const Qvx32f* a, const Qvx32fc* b, Qvx32fc* y) {
  if (isNull(a) || isNull(b) || isNull(y)) return qvxStatNullPtr;
  cyclic<4, 2>(a, parts(b), parts(y));
  return qvxStatOk;
}

QvxStatus qvxsConvCyclic8x8_16s_Sfs(const Qvx16s* a, const Qvx16s* b, Qvx16s* y, int scaleFactor) {
  if (isNull(a) || isNull(b) || isNull(y)) return qvxStatNullPtr;
  int32_t left[8];
  int32_t right[8];
  int32_t sums[8];
  std::copy_n(a, 8, left);
  std::copy_n(b, 8, right);
  cyclic<8, 1>(left, right, sums);
  for (size_t i = 0; i < 8; ++i) y[i] = scaled<Qvx16s>(int64_t{sums[i]}, std::clamp(scaleFactor, -31, 31));
  return qvxStatOk;
}
