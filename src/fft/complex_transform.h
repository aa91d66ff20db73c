// A complex transform, whatever its length and whoever asks for it.
#pragma once

#include "fft/record.h"
#include "fft/small.h"

namespace qvx::fft {

// The lanes of a transform that keeps its roots in a record.
template <class T, class Step> QVX_INLINE void withLanes(int order, Step step) {
  constexpr size_t kFull = kWidest<T>;
  if constexpr (kFull * kFull > 64) {
    if (lanesFor<T>(order) != kFull) return step(std::integral_constant<size_t, kFull / 2>());
  }
  step(std::integral_constant<size_t, kFull>());
}

// Orders that the widest registers hold whole, and how.
enum class Fold { kNone, kSquare, kHalves };
template <class T> constexpr Fold foldOf(int order) {
  constexpr int kSquare = 2 * log2Of(kWidest<T>);
  if (order <= Orders<T>::kSmall || order > kSquare) return Fold::kNone;
  return order == kSquare ? Fold::kSquare : order == kSquare - 1 ? Fold::kHalves : Fold::kNone;
}

// The roots of a transform of 2^order points, from `block` on. Order: that of the lanes in its source.
template <class Order, class T> T* writePlan(Plan<T>& plan, int order, T* block) {
  T* row = alignedUp<64>(block);
  if (foldOf<T>(order) == Fold::kHalves) {
    constexpr size_t L = kWidest<T>;
    const size_t n = size_t{1} << order;
    plan = {row, nullptr};
    writeRoots(
        n, n - L, [](size_t i) { return i % L * (i / L + 1); }, intoGroups<L>(row));
    return row + 2 * (n - L);
  }
  T* levels = row + rootSizes<T>(order).row;
  plan = {row, levels};
  T* end = levels;
  withLanes<T>(order, [&](auto L) {
    writeRowRoots<L, Order>(order, row);
    const size_t rows = (size_t{1} << order) / kRowRadix<L>;
    end = writeLevelRoots(levelsFor(log2Of(rows)), rows, levels);
  });
  return end;
}
template <class Order, class T> T* writeRootsOf(Spec<T>& spec, int order, T* block) {
  if (order <= kShortOrder<Order>) return block;
  if (order <= Orders<T>::kThreaded) return writePlan<Order>(spec.plan, order, block);
  constexpr size_t L = kWidest<T>;
  const size_t n = size_t{1} << kBlockBits;
  const size_t m = (size_t{1} << order) / n / n;
  T* end = writePlan<Order>(spec.plan, kBlockBits, block);
  end = writeColumnRoots<L, Order>(spec.blocked.outer, n, m * n, end);
  return writeColumnRoots<L, Order>(spec.blocked.inner, m, n, end);
}

// From here on two threads are faster than one.
template <class T> inline constexpr int kTeamOrder = sizeof(T) == 4 ? 14 : 13;

// More than those of smallTransform.
template <class T, class Src, class Dst, class Fit>
[[gnu::noinline]] void longTransform(const Spec<T>& spec, int order, Src src, Dst dst, T* y, Fit fit) {
  if (order > Orders<T>::kThreaded) {
    return blockedTransform<kWidest<T>>(spec.plan, spec.blocked, order, static_cast<size_t>(spec.workSize) / (2 * sizeof(T)), src,
                                        dst, y, fit);
  }
  constexpr size_t L = kWidest<T>;
  if (spec.threads > 1 && order >= kTeamOrder<T>) {
    const int threads = std::min(int{spec.threads}, ownGetNumThreads());
    if (threads > 1) return transformInThreads<L>(threads, spec.plan, order, src, dst, y, fit);
  }
  switch (foldOf<T>(order)) {
    case Fold::kSquare:
      if constexpr (L >= 8) return transformInSquare<L>(src, dst, spec.plan.rowRoots, fit);
      break;
    case Fold::kHalves:
      if constexpr (L >= 16) return transformInHalves<L>(src, dst, spec.plan.rowRoots, fit);
      break;
    case Fold::kNone:
      break;
  }
  withLanes<T>(order, [&](auto L) { transform<L>(spec.plan, order, src, dst, y, fit); });
}

template <class T, class Src, class Dst, class Fit>
QVX_INLINE void complexTransform(const Spec<T>& spec, int order, Src src, Dst dst, T* y, Fit fit) {
  if (order <= kShortOrder<Src>) smallTransform(order, src, dst, fit);
  else longTransform(spec, order, src, dst, y, fit);
}

// A record and vectors that may be used.
template <class Record, class Src, class Dst> QvxStatus checkCall(const Record* spec, Src src, Dst dst) {
  const QvxStatus status = checkSpec(spec);
  return status == qvxStatOk && (isMissing(src) || isMissing(dst)) ? qvxStatNullPtr : status;
}

// run(fit) with what the flag says of this direction.
template <bool kInverse, class T, class Run> QVX_INLINE QvxStatus withFit(const Spec<T>& spec, Run run) {
  return (kInverse ? spec.invScaled : spec.fwdScaled) ? run(Times<T>{spec.normFactor}) : run(Plain{});
}

// run(y, fit), y being the working memory that the record asks for.
template <bool kInverse, class T, class Run> QVX_INLINE QvxStatus withWork(const Spec<T>& spec, Qvx8u* pBuffer, Run run) {
  const Scratch<32> scratch(pBuffer, spec.workSize);
  if (scratch.isMissing(spec.workSize)) return qvxStatNoMem;
  T* y = scratch.carver().template take<T>(0);
  return withFit<kInverse>(spec, [=](auto fit) { return run(y, fit), qvxStatOk; });
}

// ---- The functions of complex record types. Order: that of the lanes in their sources.

template <class Order, class Record>
QvxStatus initComplex(Record** ppSpec, int order, int flag, int hint, Qvx8u* pMemory, const Qvx8u* pInitBuffer) {
  using T = typename Record::T;
  return init(ppSpec, order, flag, hint, Orders<T>::kComplex, pMemory, pInitBuffer, [order](Record& spec, Qvx8u* tables) {
    spec.workSize = static_cast<int32_t>(complexSizes<T>(order).work);
    if (order > Orders<T>::kCached && order <= Orders<T>::kThreaded) spec.threads = threadsOf();
    writeRootsOf<Order>(spec, order, reinterpret_cast<T*>(tables));
  });
}

template <bool kInverse, class T, class Src, class Dst>
[[gnu::noinline]] QvxStatus longCall(const Spec<T>& spec, Src src, Dst dst, Qvx8u* pBuffer) {
  return withWork<kInverse>(spec, pBuffer, [&](T* y, auto fit) { longTransform(spec, spec.order, src, dst, y, fit); });
}
// A short transform ends in a jump to its code, without a stack frame of its own: that is a third of its time.
template <bool kInverse, class Record, class Src, class Dst>
QVX_INLINE QvxStatus transformed(const Record* spec, Src src, Dst dst, Qvx8u* pBuffer) {
  using T = typename Record::T;
  const QvxStatus status = checkCall(spec, src, dst);
  if (status != qvxStatOk) return status;
  if (spec->order > kShortOrder<Src>) return longCall<kInverse, T>(*spec, src, dst, pBuffer);
  return withFit<kInverse, T>(
      *spec, [=](auto fit) __attribute__((always_inline)) { return smallTransform(spec->order, src, dst, fit); });
}
template <bool kInverse, class C, class Record>
QvxStatus interleavedTransform(const C* src, C* dst, const Record* spec, Qvx8u* pBuffer) {
  using T = typename Record::T;
  return transformed<kInverse>(spec, Interleaved<const T, kInverse>{parts(src)}, Interleaved<T, kInverse>{parts(dst)}, pBuffer);
}
// An inverse one has its parts exchanged; then it takes the factor of its direction.
template <bool kInverse, class T, class Record>
QvxStatus apartTransform(const T* srcRe, const T* srcIm, T* dstRe, T* dstIm, const Record* spec, Qvx8u* pBuffer) {
  const Apart<const T> src = kInverse ? Apart<const T>{srcIm, srcRe} : Apart<const T>{srcRe, srcIm};
  const Apart<T> dst = kInverse ? Apart<T>{dstIm, dstRe} : Apart<T>{dstRe, dstIm};
  return transformed<kInverse>(spec, src, dst, pBuffer);
}

}  // namespace qvx::fft
