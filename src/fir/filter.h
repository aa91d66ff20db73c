// The filters with a record: block, in place, one sample.
#pragma once

#include "convolution/kernel.h"
#include "fir/dot.h"
#include "fir/multirate_filter.h"
#include "fir/sizes.h"
#include "fir/streams.h"

namespace qvx::fir {

// ---- by partitions

template <class C> bool isLive(const FloatRecord<C>& state) { return !isNull(state.partitions) && state.partitions->isLive; }

// Copies the samples to the end of the window before it filters them, so src may be dst. The window moves on in its memory, and
// back to the beginning when it reaches the end.
template <class C, class T>
[[gnu::noinline]] void throughPartitions(FloatRecord<C>& state, const T* src, T* dst, size_t n, int scaleFactor) {
  Partitions<C>& partitions = *state.partitions;
  const auto taps = static_cast<size_t>(state.tapsLen);
  const size_t length = partitions.length;
  const C* const first = state.taps + taps - length;
  const Call call = callOf(n);
  for (size_t some; n > 0; n -= some, src += some, dst += some) {
    const size_t filled = partitions.filled;
    some = std::min(n, length - filled);
    const size_t end = static_cast<size_t>(state.delay.index) + taps + some + kVectorElements<C>;
    if (end > state.windowLen(taps)) state.delay.settled(state.tapsLen);
    C* const fresh = state.delay.window + state.delay.index + taps;
    toKernel(src, some, fresh);
    state.delay.index += static_cast<int>(some);
    if (some == length) {
      partitions.take(fresh + length);
      partitions.addUp(0);
      toSamples(partitions.block + length, length, dst, scaleFactor);
      continue;
    }
    if (filled == 0) partitions.addUp(1);
    const C* const tail = partitions.block + length + filled;
    if (some < kVectorElements<C>) std::fill_n(fresh + some, kVectorElements<C> - some, C{});
    if constexpr (std::is_same_v<C, T>) {
      convolve(fresh - (length - 1), first, length, some, dst, call);
      addTo(dst, tail, some);
    } else {
      convolve(fresh - (length - 1), first, length, some, partitions.spectrum, call);
      addTo(partitions.spectrum, tail, some);
      toSamples(partitions.spectrum, some, dst, scaleFactor);
    }
    partitions.filled += some;
    if (filled + some < length) continue;
    partitions.take(fresh + some);
    partitions.filled = 0;
  }
}

// The samples of a call from which the long transform is faster: three quarters of what fills one.
template <class C> size_t mostPartitioned(const FloatRecord<C>& state) {
  return static_cast<size_t>(state.spectral.length - state.tapsLen) / 4 * 3;
}

// Whether a call of n samples takes the partitions; makes their spectra where they are missing and pay.
template <class C> [[gnu::noinline]] bool takesPartitions(FloatRecord<C>& state, size_t n) {
  if (n >= mostPartitioned(state)) return false;
  if (!isLive(state)) state.delay.settled(state.tapsLen);
  return state.partitions->serve(n, state.taps, state.delay.window + state.delay.index, static_cast<size_t>(state.tapsLen));
}

// ---- one sample

template <class C, class T> void oneSample(FloatRecord<C>& state, T x, T* y, int scaleFactor) {
  if constexpr (kHasPartitions<C>) {
    if (isLive(state)) return throughPartitions(state, &x, y, 1, scaleFactor);
    state.forgetSamples();
  }
  const C* window = state.delay.push(elementAs<C>(x), state.tapsLen);
  const C sum = dot(window, state.taps, state.tapsLen);
  toSamples(&sum, 1, y, scaleFactor);
}
template <class S, class H> int64_t placesOf(const IntegerRecord<S, H>& state, int scaleFactor) {
  return int64_t{state.tapsFactor} - scaleFactor;
}
template <class S, class H> void oneSample(IntegerRecord<S, H>& state, S x, S* y, int scaleFactor) {
  *y = scaledDot(state.delay.push(x, state.tapsLen), state.shortTaps, state.tapsLen, placesOf(state, scaleFactor));
}

// ---- blocks

// Moves the window on by the n samples that follow it in memory.
template <class R> void advance(R& state, size_t n) {
  auto* window = state.delay.window;
  moveVectors(window + n, static_cast<size_t>(state.tapsLen), window);
}

// Copies the samples to the end of the window before it filters them, so src may be dst.
template <class C, class T> void throughWindow(FloatRecord<C>& state, const T* src, T* dst, size_t n, int scaleFactor) {
  constexpr bool kConverts = !std::is_same_v<C, T>;
  constexpr size_t kMost = kConverts ? FloatRecord<C>::kChunk / 2 : FloatRecord<C>::kChunk;
  const auto taps = static_cast<size_t>(state.tapsLen);
  const Call call = callOf(n);
  C* const window = state.delay.window;
  for (size_t some; n > 0; n -= some, src += some, dst += some) {
    some = std::min(n, kMost);
    if constexpr (kConverts) toKernel(src, some, window + taps);
    else moveVectors(src, some, window + taps);
    if (some < kVectorElements<C>) std::fill_n(window + taps + some, kVectorElements<C> - some, C{});
    if constexpr (kConverts) {
      C* const sum = window + taps + std::max(some, kVectorElements<C>);
      convolve(window + 1, state.taps, taps, some, sum, call);
      toSamples(sum, some, dst, scaleFactor);
    } else {
      convolve(window + 1, state.taps, taps, some, dst, call);
    }
    advance(state, some);
  }
}

// Filters the first outputs, whose windows begin before src, in the window's memory, and the others straight from src, unless
// copying them costs less than two steps: 256 outputs of 16 taps take 65 ns with the copy, 88 in two steps. With 4 taps two steps
// are faster even for 64 outputs, 20 ns to 23; the balance turns between 6 and 8 taps.
template <class C> void straight(FloatRecord<C>& state, const C* src, C* dst, size_t n) {
  const auto taps = static_cast<size_t>(state.tapsLen);
  const size_t head = (taps - 1 + kVectorElements<C> - 1) / kVectorElements<C> * kVectorElements<C>;
  const size_t worthTwo = (taps > 6 ? 16 : 2) * kVectorElements<C>;
  if (n < head + worthTwo) return throughWindow(state, src, dst, n, 0);
  const Call call = callOf(n);
  C* const window = state.delay.window;
  if (head > 0) {
    moveVectors(src, head, window + taps);
    convolve(window + 1, state.taps, taps, head, dst, call);
  }
  moveVectors(src + n - taps, taps, window);
  convolve(src + head - (taps - 1), state.taps, taps, n - head, dst + head, call);
}

#if QVXS_AVX512
// Few taps on short blocks: each vector is permuted with the one before it, so that nothing is loaded that has just been stored
// in parts. The number of taps is a constant of the code, so the compiler keeps taps and permutations in registers. 64 outputs of
// 4 taps take 13 ns, 25 with a loop over the taps; 20 outputs 12 ns, 24 through the window; with 16 taps up to 1024 outputs gain.
// The sums are those of convolve(), to the bit. src may be dst.
template <class C> bool fitsRegisters(size_t taps, size_t n) {
  constexpr size_t N = kVectorElements<C>;
  return taps <= N && n <= 64 * N;
}
template <class C, Call kCall, size_t kTaps>
[[gnu::noinline]] void inRegisters(FloatRecord<C>& state, const C* src, C* dst, size_t n) {
  constexpr size_t N = kVectorElements<C>;
  constexpr size_t kSums = kCall == Call::kShort ? ShortOrder<1>::kSums : 1;
  constexpr size_t kWhole = kTaps / kSums * kSums;
  const Lanes<C, N> d;
  using V = Vec<decltype(d)>;
  V tap[kTaps];
  decltype(laneNumbers<V>(0)) order[kTaps];
#pragma GCC unroll 16
  for (size_t k = 0; k < kTaps; ++k) {
    tap[k] = hn::Set(d, state.taps[k]);
    order[k] = laneNumbers<V>(N + 1 - kTaps + k);
  }
  const V window = load(d, state.delay.window);
  V before = lanesOfTwo(window, window, laneNumbers<V>(kTaps));
  const auto filtered = [&](V now) __attribute__((always_inline)) {
    V sums[kSums];
#pragma GCC unroll 4
    for (V& s : sums) s = hn::Zero(d);
#pragma GCC unroll 16
    for (size_t k = 0; k < kTaps; ++k) {
      V& s = sums[k < kWhole ? k % kSums : 0];
      s = hn::MulAdd(tap[k], lanesOfTwo(before, now, order[k]), s);
    }
#pragma GCC unroll 4
    for (size_t s = 1; s < kSums; ++s) sums[0] = sums[0] + sums[s];
    return sums[0];
  };
  size_t i = 0;
  for (; i + N <= n; i += N) {
    const V now = held(load(d, src + i));
    store(filtered(now), d, dst + i);
    before = now;
  }
  const size_t rest = n - i;
  V now = before;
  if (rest > 0) {
    now = loadFirst(d, src + i, rest);
    storeFirst(filtered(now), d, dst + i, rest);
  }
  store(lanesOfTwo(before, now, laneNumbers<V>(N + rest - kTaps)), d, state.delay.window);
}
template <class C> void inRegisters(FloatRecord<C>& state, const C* src, C* dst, size_t n) {
  constexpr size_t N = kVectorElements<C>;
  const auto with = [&](auto taps) {
    constexpr size_t kTaps = taps();
    if (static_cast<size_t>(state.tapsLen) != kTaps) return false;
    if (callOf(n) == Call::kShort) inRegisters<C, Call::kShort, kTaps>(state, src, dst, n);
    else inRegisters<C, Call::kLong, kTaps>(state, src, dst, n);
    return true;
  };
  [&]<size_t... K>(std::index_sequence<K...>) { (void)(with(std::integral_constant<size_t, K + 1>()) || ...); }
  (std::make_index_sequence<N>());
}
#endif

template <class C, class T> QvxStatus direct(FloatRecord<C>& state, const T* src, T* dst, size_t n, int scaleFactor) {
#if QVXS_AVX512
  if constexpr (std::is_same_v<C, T> && PartsOf<C>::kCount == 1) {
    if (fitsRegisters<C>(static_cast<size_t>(state.tapsLen), n)) {
      inRegisters(state, src, dst, n);
      return qvxStatOk;
    }
  }
#endif
  if constexpr (std::is_same_v<C, T>) {
    if (src != dst) return straight(state, src, dst, n), qvxStatOk;
  }
  throughWindow(state, src, dst, n, scaleFactor);
  return qvxStatOk;
}

template <class S, class T> QvxStatus direct(IntegerRecord<S, T>& state, const S* src, S* dst, size_t n, int scaleFactor) {
  using Record = IntegerRecord<S, T>;
  if (!state.isPaired) {
    for (size_t i = 0; i < n; ++i) oneSample(state, src[i], dst + i, scaleFactor);
    return qvxStatOk;
  }
  const auto taps = static_cast<size_t>(state.tapsLen);
  const PairedTaps pairs = {state.pairs, pairsOf(taps, S())};
  S* const window = state.delay.window;
  for (size_t some; n > 0; n -= some, src += some, dst += some) {
    some = std::min(n, Record::kChunk);
    moveVectors(src, some, window + taps);
    convolve(window + 1, pairs, some, dst, placesOf(state, scaleFactor));
    advance(state, some);
  }
  return qvxStatOk;
}

// ---- which way a call goes

// The fewest taps for which a transform is faster than the sum of products. Wide vectors gain more in the sums: for 16 taps of
// 32fc they take 0.4 of the transform's time in AVX-512, 0.9 in SSSE3.
constexpr int byRegisters(int avx512, int avx2, int ssse3) { return kHasMasks ? avx512 : kFuses ? avx2 : ssse3; }
template <class C> inline constexpr int kTransformPaysFrom = byRegisters(128, 80, 64);
template <> inline constexpr int kTransformPaysFrom<Qvx64f> = byRegisters(100, 64, 64);
template <> inline constexpr int kTransformPaysFrom<Qvx32fc> = byRegisters(38, 32, 18);
template <> inline constexpr int kTransformPaysFrom<Qvx64fc> = 32;

// Whether a call of n samples takes the transform. Where samples are converted, only the transform's blocks are divided between
// threads, so long calls always take it: the sums of 64 to 127 taps of 32f take 0.6 to 0.8 of its time with one thread, 1.2 to
// 1.6 with two.
template <class S> bool isWorthTransform(int tapsLen, size_t n) {
  using C = typename S::Kernel;
  constexpr size_t kAbove = PartsOf<C>::kCount == 1 ? 511 : 255;
  const bool divides = !std::is_same_v<C, typename S::Sample> && n >= kBlocksWorthTeam;
  return n > kAbove && (divides || tapsLen >= kTransformPaysFrom<C>);
}
template <class S> bool takesTransform(const S& state, size_t n) {
  if constexpr (std::is_integral_v<Part<typename S::Kernel>>) return false;
  else return !isNull(state.spectral.spec) && isWorthTransform<S>(state.tapsLen, n);
}

// src may be dst.
template <class S>
QvxStatus filterBlock(S& state, const typename S::Sample* src, typename S::Sample* dst, size_t n, int scaleFactor) {
  if constexpr (kHasPartitions<typename S::Kernel>) {
    if (!isNull(state.partitions) && takesPartitions(state, n)) {
      return throughPartitions(state, src, dst, n, scaleFactor), qvxStatOk;
    }
  }
  state.delay.settled(state.tapsLen);
  if constexpr (!std::is_integral_v<Part<typename S::Kernel>>) {
    if (takesTransform(state, n)) {
      state.forgetSamples();
      return overlapSave(state.spectral, static_cast<size_t>(state.tapsLen), state.delay.window, src, dst, n, scaleFactor);
    }
  }
  return direct(state, src, dst, n, scaleFactor);
}

// ---- the checked functions

// Tests the arguments that come before the record's identity.
template <class S, class... T> QvxStatus checkFilter(const S* state, int numIters, const T*... vectors) {
  if ((isNull(vectors) || ...) || isNull(state)) return qvxStatNullPtr;
  return numIters < 1 ? qvxStatBadSize : qvxStatOk;
}

template <class S, class T> QvxStatus filter(const T* src, T* dst, int numIters, S* state, int scaleFactor = 0) {
  const QvxStatus status = checkFilter(state, numIters, src, dst);
  if (status != qvxStatOk) return status;
  if (state->magic == S::kId) return filterBlock(*state, src, dst, elements(numIters), scaleFactor);
  if (isMultirate(state)) return filterMultirateBlock(asMultirate(state), src, dst, numIters, scaleFactor);
  if constexpr (kHasStreams<S>) {
    if (isStream(state)) return filterStream(asStream(state), src, dst, numIters, scaleFactor);
  }
  return qvxStatContextMismatch;
}

template <class S, class T> QvxStatus filterInPlace(T* srcDst, int numIters, S* state, int scaleFactor = 0) {
  return filter(const_cast<const T*>(srcDst), srcDst, numIters, state, scaleFactor);
}

template <class S, class T> QvxStatus filterOne(T src, T* dst, S* state, int scaleFactor = 0) {
  if (isNull(state) || isNull(dst)) return qvxStatNullPtr;
  const QvxStatus status = checkRecord(state, S::kId);
  if (status == qvxStatOk) oneSample(*state, src, dst, scaleFactor);
  return status;
}

}  // namespace qvx::fir
