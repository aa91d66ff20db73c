// Conversion of samples to the type that a filter computes in, and back.
#pragma once

#include "convolution/convolve.h"

namespace qvx::convolution {

namespace detail {

inline void convert(const Qvx16s* src, Qvx32f* dst, int n) { qvxsConvert_16s32f(src, dst, n); }
inline void convert(const Qvx16s* src, Qvx64f* dst, int n) { qvxsConvert_16s64f_Sfs(src, dst, n, 0); }
inline void convert(const Qvx32s* src, Qvx64f* dst, int n) { qvxsConvert_32s64f(src, dst, n); }
inline void convert(const Qvx32f* src, Qvx64f* dst, int n) { qvxsConvert_32f64f(src, dst, n); }

inline void convert(const Qvx32f* src, Qvx16s* dst, int n, int sf) {
  qvxsConvert_32f16s_Sfs(src, dst, n, qvxRoundNearestEven, sf);
}
inline void convert(const Qvx64f* src, Qvx16s* dst, int n, int sf) {
  qvxsConvert_64f16s_Sfs(src, dst, n, qvxRoundNearestEven, sf);
}
inline void convert(const Qvx64f* src, Qvx32s* dst, int n, int sf) {
  qvxsConvert_64f32s_Sfs(src, dst, n, qvxRoundNearestEven, sf);
}
inline void convert(const Qvx64f* src, Qvx32f* dst, int n, int) { qvxsConvert_64f32f(src, dst, n); }

}  // namespace detail

template <class S> int partsOf(size_t n) { return static_cast<int>(n * PartsOf<S>::kCount); }

template <class S, class C> void toKernel(const S* src, size_t n, C* dst) {
  if (n == 0) return;
  if constexpr (std::is_same_v<S, C>) std::copy_n(src, n, dst);
  else detail::convert(parts(src), parts(dst), partsOf<S>(n));
}

// Integers scaled by 2^-scaleFactor and rounded to nearest even.
template <class C, class S> void toSamples(const C* src, size_t n, S* dst, int scaleFactor) {
  if constexpr (std::is_same_v<S, C>) std::copy_n(src, n, dst);
  else detail::convert(parts(src), parts(dst), partsOf<S>(n), scaleFactor);
}

// One element by value, truncated.
template <class To, class From> To elementAs(From v) {
  if constexpr (PartsOf<To>::kCount == 2) return {static_cast<Part<To>>(v.re), static_cast<Part<To>>(v.im)};
  else return static_cast<To>(v);
}

// dst[i] = src[n - 1 - i], or zero without a source.
template <class From, class To> void copyReversed(const From* src, size_t n, To* dst) {
  for (size_t i = 0; i < n; ++i) dst[i] = isNull(src) ? To{} : elementAs<To>(src[n - 1 - i]);
}

// Copies by vectors, since most copies are short: with calls of memmove, 64 outputs of 16 taps take 52 ns, not 44. dst may lie
// before src and overlap it.
template <class T> void moveVectors(const T* src, size_t n, T* dst) {
  constexpr size_t N = kVectorElements<T>;
  constexpr size_t kParts = PartsOf<T>::kCount;
  constexpr Lanes<Part<T>, N * kParts> d;
  if (n < N) return storeFirst(loadFirst(d, parts(src), n * kParts), d, parts(dst), n * kParts);
  const auto last = load(d, parts(src + n - N));
  for (size_t i = 0; i + N < n; i += N) store(load(d, parts(src + i)), d, parts(dst + i));
  store(last, d, parts(dst + n - N));
}

}  // namespace qvx::convolution
