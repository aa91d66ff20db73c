// Zeros between samples, and samples left out.
#include <bit>
#include <cstring>

#include "frame/words.h"

using namespace qvx;

namespace {

QvxStatus checkSampling(const void* src, int srcLen, const void* dst, const int* dstLen, int factor, const int* phase) {
  if (isNull(src) || isNull(dst) || isNull(dstLen) || isNull(phase)) return qvxStatNullPtr;
  if (srcLen < 1) return qvxStatBadSize;
  if (factor < 1) return qvxStatBadSampleFactor;
  return *phase < 0 || *phase >= factor ? qvxStatBadSamplePhase : qvxStatOk;
}

// A zero before or after each sample; returns how many samples are done, as many as fill vectors.
template <class W> size_t spreadByTwo(const W* src, size_t n, W* dst, bool isAfterZero) {
  constexpr size_t N = kVectorBytes / sizeof(W);
  constexpr Lanes<W, N> d;
  const auto zero = hn::Zero(d);
  size_t i = 0;
  for (; i + N <= n; i += N) {
    const auto v = load(d, src + i);
    const auto both = isAfterZero ? interleaved(Pair<Vec<decltype(d)>>{zero, v}) : interleaved(Pair<Vec<decltype(d)>>{v, zero});
    store(both.lo, d, dst + 2 * i);
    store(both.hi, d, dst + 2 * i + N);
  }
  return i;
}

// Every second sample; of n, those that fill vectors. Not inlined: aligning a stack for vectors takes 1 ns of each call.
template <class W> [[gnu::noinline]] size_t everySecond(const W* src, size_t n, W* dst) {
  constexpr size_t N = kVectorBytes / sizeof(W);
  constexpr Lanes<W, N> d;
  size_t i = 0;
  for (; 2 * (i + N) <= n; i += N) store(hn::ConcatEven(d, load(d, src + 2 * i + N), load(d, src + 2 * i)), d, dst + i);
  return i;
}
// Every fourth.
template <class W> [[gnu::noinline]] size_t everyFourth(const W* src, size_t n, W* dst) {
  constexpr size_t N = kVectorBytes / sizeof(W);
  constexpr Lanes<W, N> d;
  const auto second = [&](const W* p) { return hn::ConcatEven(d, load(d, p + N), load(d, p)); };
  size_t i = 0;
  for (; 4 * (i + N) <= n; i += N) store(hn::ConcatEven(d, second(src + 4 * i + 2 * N), second(src + 4 * i)), d, dst + i);
  return i;
}

// Results that are zeroed at a time, so that they are still in the first-level cache when the samples are stored.
constexpr size_t kSlice = 16384;

template <class T> QvxStatus sampleUp(const T* src, int srcLen, T* dst, int* dstLen, int factor, const int* phase) {
  const QvxStatus status = checkSampling(src, srcLen, dst, dstLen, factor, phase);
  if (status != qvxStatOk) return status;
  const size_t apart = elements(factor);
  const size_t first = elements(*phase);
  const size_t n = elements(srcLen);
  *dstLen = static_cast<int>(static_cast<uint32_t>(srcLen) * static_cast<uint32_t>(factor));
  if (apart == 1) return std::copy_n(src, n, dst), qvxStatOk;
  size_t at = 0;
  if constexpr (kWords<T> == 1) {
    if (apart == 2) at = spreadByTwo(words(src), n, words(dst), first != 0);
  }
  const size_t slice = std::max<size_t>(1, kSlice / sizeof(T) / apart);
  for (size_t some; at < n; at += some) {
    some = std::min(slice, n - at);
    T* const to = dst + at * apart;
    std::memset(static_cast<void*>(to), 0, some * apart * sizeof(T));
    for (size_t i = 0; i < some; ++i) to[i * apart + first] = src[at + i];
  }
  return qvxStatOk;
}

// Adds up the distance: multiplying it would bound the loop.
template <class T> void copyApart(const T* src, size_t apart, T* dst, size_t count) {
  size_t i = 0;
  size_t at = 0;
  for (; i + 4 <= count; i += 4, at += 4 * apart) {
    dst[i] = src[at];
    dst[i + 1] = src[at + apart];
    dst[i + 2] = src[at + 2 * apart];
    dst[i + 3] = src[at + 3 * apart];
  }
  for (; i < count; ++i, at += apart) dst[i] = src[at];
}

// A division takes 5 ns, as long as 16 samples.
size_t quotientUp(size_t n, size_t by) {
  const auto most = static_cast<uint32_t>(n + by - 1);
  return std::has_single_bit(by) ? most >> std::countr_zero(by) : most / static_cast<uint32_t>(by);
}

template <class T> QvxStatus sampleDown(const T* src, int srcLen, T* dst, int* dstLen, int factor, int* phase) {
  const QvxStatus status = checkSampling(src, srcLen, dst, dstLen, factor, phase);
  if (status != qvxStatOk) return status;
  const size_t apart = elements(factor);
  const size_t first = elements(*phase);
  const size_t n = elements(srcLen);
  if (apart == 1) {
    *dstLen = srcLen;
    return std::copy_n(src, n, dst), qvxStatOk;
  }
  const size_t count = n > first ? quotientUp(n - first, apart) : 0;
  *dstLen = static_cast<int>(count);
  *phase = static_cast<int>(first + count * apart - n);
  src += first;
  size_t i = 0;
  if constexpr (kWords<T> == 1) {
    if (apart == 2 && n > first) i = everySecond(words(src), n - first, words(dst));
    if (apart == 4 && n > first) i = everyFourth(words(src), n - first, words(dst));
  }
  copyApart(src + i * apart, apart, dst + i, count - i);
  return qvxStatOk;
}

}  // namespace

// clang-format off
QvxStatus qvxsSampleUp_16s(const Qvx16s* a, int len, Qvx16s* d, int* dLen, int factor, int* phase) { return sampleUp(a, len, d, dLen, factor, phase); }
QvxStatus qvxsSampleUp_16sc(const Qvx16sc* a, int len, Qvx16sc* d, int* dLen, int factor, int* phase) { return sampleUp(a, len, d, dLen, factor, phase); }
QvxStatus qvxsSampleUp_32f(const Qvx32f* a, int len, Qvx32f* d, int* dLen, int factor, int* phase) { return sampleUp(a, len, d, dLen, factor, phase); }
QvxStatus qvxsSampleUp_32fc(const Qvx32fc* a, int len, Qvx32fc* d, int* dLen, int factor, int* phase) { return sampleUp(a, len, d, dLen, factor, phase); }
QvxStatus qvxsSampleUp_64f(const Qvx64f* a, int len, Qvx64f* d, int* dLen, int factor, int* phase) { return sampleUp(a, len, d, dLen, factor, phase); }
QvxStatus qvxsSampleUp_64fc(const Qvx64fc* a, int len, Qvx64fc* d, int* dLen, int factor, int* phase) { return sampleUp(a, len, d, dLen, factor, phase); }
QvxStatus qvxsSampleDown_16s(const Qvx16s* a, int len, Qvx16s* d, int* dLen, int factor, int* phase) { return sampleDown(a, len, d, dLen, factor, phase); }
QvxStatus qvxsSampleDown_16sc(const Qvx16sc* a, int len, Qvx16sc* d, int* dLen, int factor, int* phase) { return sampleDown(a, len, d, dLen, factor, phase); }
QvxStatus qvxsSampleDown_32f(const Qvx32f* a, int len, Qvx32f* d, int* dLen, int factor, int* phase) { return sampleDown(a, len, d, dLen, factor, phase); }
QvxStatus qvxsSampleDown_32fc(const Qvx32fc* a, int len, Qvx32fc* d, int* dLen, int factor, int* phase) { return sampleDown(a, len, d, dLen, factor, phase); }
QvxStatus qvxsSampleDown_64f(const Qvx64f* a, int len, Qvx64f* d, int* dLen, int factor, int* phase) { return sampleDown(a, len, d, dLen, factor, phase); }
QvxStatus qvxsSampleDown_64fc(const Qvx64fc* a, int len, Qvx64fc* d, int* dLen, int factor, int* phase) { return sampleDown(a, len, d, dLen, factor, phase); }
// clang-format on
