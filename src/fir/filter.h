// The filters with a record: block, in place, one sample.
#pragma once

#include "fir/multi_rate.h"
#include "fir/overlap_save.h"

namespace qvx::fir {

// ---- one sample

template <class C> C dot(const C* x, const C* p, int n) {
  C sum;
  if constexpr (std::is_same_v<C, Qvx32f>) qvxsDotProd_32f(x, p, n, &sum);
  else if constexpr (std::is_same_v<C, Qvx64f>) qvxsDotProd_64f(x, p, n, &sum);
  else if constexpr (std::is_same_v<C, Qvx32fc>) qvxsDotProd_32fc(x, p, n, &sum);
  else qvxsDotProd_64fc(x, p, n, &sum);
  return sum;
}
// Of integers exactly: the lower 32 bits are the sum that wraps.
inline Qvx16s scaledDot(const Qvx16s* x, const Qvx16s* p, int n, int64_t places) {
  Qvx64s sum;
  qvxsDotProd_16s64s(x, p, n, &sum);
  return scaledSum(sum, places);
}
inline Qvx16sc scaledDot(const Qvx16sc* x, const Qvx16sc* p, int n, int64_t places) {
  Qvx64sc sum;
  qvxsDotProd_16sc64sc(x, p, n, &sum);
  return {scaledSum(sum.re, places), scaledSum(sum.im, places)};
}

template <class C, class T> void one(FloatRecord<C>& state, T x, T* y, int scaleFactor) {
  const C* window = state.delay.push(elementAs<C>(x), state.tapsLen);
  const C sum = dot(window, state.taps, state.tapsLen);
  toSamples(&sum, 1, y, scaleFactor);
}
template <class S, class H> int64_t placesOf(const IntegerRecord<S, H>& state, int scaleFactor) {
  return int64_t{state.tapsFactor} - scaleFactor;
}
template <class S, class H> void one(IntegerRecord<S, H>& state, S x, S* y, int scaleFactor) {
  *y = scaledDot(state.delay.push(x, state.tapsLen), state.shortTaps, state.tapsLen, placesOf(state, scaleFactor));
}

// ---- blocks

// In vectors, as most copies are of a few: with calls of memmove, 64 outputs of 16 taps take 52 ns, not 44. dst may lie before
// src and overlap it.
template <class T> void moveVectors(const T* src, size_t n, T* dst) {
  constexpr size_t N = kVectorElements<T>;
  constexpr size_t kParts = PartsOf<T>::kCount;
  constexpr Lanes<Part<T>, N * kParts> d;
  if (n < N) return storeFirst(loadFirst(d, parts(src), n * kParts), d, parts(dst), n * kParts);
  const auto last = load(d, parts(src + n - N));
  for (size_t i = 0; i + N < n; i += N) store(load(d, parts(src + i)), d, parts(dst + i));
  store(last, d, parts(dst + n - N));
}

// The new samples stand behind the window; the end of both becomes the next window.
template <class R> void advance(R& state, size_t n) {
  auto* window = state.delay.window;
  moveVectors(window + n, static_cast<size_t>(state.tapsLen), window);
}

// Some samples, behind the window, which may be those that dst has room for.
template <class C, class T> void throughWindow(FloatRecord<C>& state, const T* src, T* dst, size_t n, int scaleFactor) {
  constexpr bool kConverts = !std::is_same_v<C, T>;
  constexpr size_t kMost = kConverts ? FloatRecord<C>::kChunk / 2 : FloatRecord<C>::kChunk;
  const auto taps = static_cast<size_t>(state.tapsLen);
  C* const window = state.delay.window;
  for (size_t some; n > 0; n -= some, src += some, dst += some) {
    some = std::min(n, kMost);
    if constexpr (kConverts) toKernel(src, some, window + taps);
    else moveVectors(src, some, window + taps);
    if (some < kVectorElements<C>) std::fill_n(window + taps + some, kVectorElements<C> - some, C{});
    if constexpr (kConverts) {
      C* const sum = window + taps + std::max(some, kVectorElements<C>);
      sums(window + 1, state.taps, taps, some, sum);
      toSamples(sum, some, dst, scaleFactor);
    } else {
      sums(window + 1, state.taps, taps, some, dst);
    }
    advance(state, some);
  }
}

// The first outputs, whose windows reach back behind src, by way of the window's memory; the others straight from src, unless a
// copy of them costs less than going in two steps: 256 outputs of 16 taps take 65 ns with the copy, 88 in two steps. Of 4 taps,
// two steps take less even for 64 outputs, 20 ns to 23; between 6 and 8 taps that turns.
template <class C> void straight(FloatRecord<C>& state, const C* src, C* dst, size_t n) {
  const auto taps = static_cast<size_t>(state.tapsLen);
  const size_t head = (taps - 1 + kVectorElements<C> - 1) / kVectorElements<C> * kVectorElements<C>;
  const size_t worthTwo = (taps > 6 ? 16 : 2) * kVectorElements<C>;
  if (n < head + worthTwo) return throughWindow(state, src, dst, n, 0);
  C* const window = state.delay.window;
  if (head > 0) {
    moveVectors(src, head, window + taps);
    sums(window + 1, state.taps, taps, head, dst);
  }
  moveVectors(src + n - taps, taps, window);
  sums(src + head - (taps - 1), state.taps, taps, n - head, dst + head);
}

template <class C, class T> QvxStatus direct(FloatRecord<C>& state, const T* src, T* dst, size_t n, int scaleFactor) {
  if constexpr (std::is_same_v<C, T>) straight(state, src, dst, n);
  else throughWindow(state, src, dst, n, scaleFactor);
  return qvxStatOk;
}

template <class S, class T> QvxStatus direct(IntegerRecord<S, T>& state, const S* src, S* dst, size_t n, int scaleFactor) {
  using Record = IntegerRecord<S, T>;
  if (!state.isPaired) {
    for (size_t i = 0; i < n; ++i) one(state, src[i], dst + i, scaleFactor);
    return qvxStatOk;
  }
  const auto taps = static_cast<size_t>(state.tapsLen);
  const PairedTaps pairs = {state.pairs, pairsOf(taps, S())};
  S* const window = state.delay.window;
  for (size_t some; n > 0; n -= some, src += some, dst += some) {
    some = std::min(n, Record::kChunk);
    moveVectors(src, some, window + taps);
    sums(window + 1, pairs, some, dst, placesOf(state, scaleFactor));
    advance(state, some);
  }
  return qvxStatOk;
}

// ---- which way a call goes

// Whether `left` samples, those of a call's block, are worth the transform. Of samples that are converted, only the transform's
// blocks are divided between threads, so long calls always take it: 64 to 127 taps of 32f take 0.6 to 0.8 of its time with one
// thread, 1.2 to 1.6 with two.
template <class S> bool isWorthTransform(int tapsLen, size_t left) {
  using C = typename S::Kernel;
  const bool divides = !std::is_same_v<C, typename S::Sample> && left >= kBlocksThreaded;
  return left > Transform<C>::kAbove && (divides || tapsLen >= Transform<C>::kPaysFrom);
}
template <class S> bool takesTransform(const S& state, size_t left) {
  if constexpr (std::is_integral_v<Part<typename S::Kernel>>) return false;
  else return state.fftLen > 0 && isWorthTransform<S>(state.tapsLen, left);
}

template <class S>
QvxStatus filterBlock(S& state, const typename S::Sample* src, typename S::Sample* dst, size_t n, int scaleFactor) {
  state.delay.settled(state.tapsLen);
  if (takesTransform(state, n)) {
    if constexpr (!std::is_integral_v<Part<typename S::Kernel>>) return overlapSave(state, src, dst, n, scaleFactor);
  }
  return direct(state, src, dst, n, scaleFactor);
}

// Piece by piece. What is left behind a piece decides about its way, not the piece.
template <class S> QvxStatus filterInPlace(S& state, typename S::Sample* srcDst, size_t n, int scaleFactor) {
  constexpr size_t kPiece = 4096;
  state.delay.settled(state.tapsLen);
  QvxStatus status = qvxStatOk;
  for (size_t some; n > 0 && status == qvxStatOk; srcDst += some) {
    some = std::min(n, kPiece);
    n -= some;
    if constexpr (std::is_integral_v<Part<typename S::Kernel>>) {
      status = direct(state, srcDst, srcDst, some, scaleFactor);
    } else if (takesTransform(state, n)) {
      auto* const behind = state.delay.window + state.tapsLen;
      toKernel(srcDst, some, behind);
      status = overlapSave(state, behind, srcDst, some, scaleFactor);
    } else {
      throughWindow(state, srcDst, srcDst, some, scaleFactor);
    }
  }
  return status;
}

// ---- the checked functions

template <class S, class... T> QvxStatus checkFilter(const S* state, int numIters, const T*... vectors) {
  if ((isNull(vectors) || ...) || isNull(state)) return qvxStatNullPtr;
  if (numIters < 1) return qvxStatBadSize;
  return checkRecord(state, S::kSingleRate, S::kMultiRate);
}

template <class S, class T> QvxStatus filter(const T* src, T* dst, int numIters, S* state, int scaleFactor = 0) {
  const QvxStatus status = checkFilter(state, numIters, src, dst);
  if (status != qvxStatOk) return status;
  if (isMultiRate(*state)) return filterMultiRate(*state);
  return filterBlock(*state, src, dst, elements(numIters), scaleFactor);
}

template <class S, class T> QvxStatus filterInPlace(T* srcDst, int numIters, S* state, int scaleFactor = 0) {
  const QvxStatus status = checkFilter(state, numIters, srcDst);
  if (status != qvxStatOk) return status;
  if (isMultiRate(*state)) return filterMultiRate(*state);
  return filterInPlace(*state, srcDst, elements(numIters), scaleFactor);
}

template <class S, class T> QvxStatus filterOne(T src, T* dst, S* state, int scaleFactor = 0) {
  if (isNull(state) || isNull(dst)) return qvxStatNullPtr;
  const QvxStatus status = checkRecord(state, S::kSingleRate);
  if (status == qvxStatOk) one(*state, src, dst, scaleFactor);
  return status;
}

}  // namespace qvx::fir
