// A complex transform, whatever its length and whoever asks for it.
#pragma once

#include "fft/small.h"
#include "fft/spec.h"

namespace qvx::fft {

// The lanes of a transform that keeps its roots in a record.
template <class T, class Step> QVX_INLINE void withLanes(int order, Step step) {
  constexpr size_t kFull = kWidest<T>;
  if constexpr (kFull * kFull > 64) {
    if (lanesFor<T>(order) != kFull) return step(std::integral_constant<size_t, kFull / 2>());
  }
  step(std::integral_constant<size_t, kFull>());
}

// The roots of a transform of 2^order points, from `block` on. Order: that of the lanes in its source.
template <class Order, class T> T* writePlan(Plan<T>& plan, int order, T* block) {
  T* row = alignedUp<64>(block);
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
  if (order <= Orders<T>::kSmall) return block;
  if (order <= Orders<T>::kThreaded) return writePlan<Order>(spec.plan, order, block);
  constexpr size_t L = kWidest<T>;
  const size_t n = size_t{1} << blockBits(order);
  const size_t m = (size_t{1} << order) / n / n;
  T* end = writePlan<Order>(spec.plan, blockBits(order), block);
  end = writeColumnRoots<L, Order>(spec.blocked.outer, n, m * n, end);
  return m > 1 ? writeColumnRoots<L, Order>(spec.blocked.inner, m, n, end) : end;
}

template <class T, class Src, class Dst, class Fit>
void complexTransform(const Spec<T>& spec, int order, Src src, Dst dst, T* y, Fit fit) {
  if (order <= Orders<T>::kSmall) return smallTransform(order, src, dst, fit);
  if (order > Orders<T>::kThreaded) {
    return blockedTransform<kWidest<T>>(spec.plan, spec.blocked, order, src, dst, y, fit);
  }
  withLanes<T>(order, [&](auto L) { transform<L>(spec.plan, order, src, dst, y, fit); });
}

// As called: what the flag says of this direction, and working memory.
template <bool kInverse, class Record, class Src, class Dst, class Run>
QvxStatus called(const Record* spec, uint32_t id, Src src, Dst dst, Qvx8u* pBuffer, Run run) {
  const QvxStatus status = checkRecord(spec, id);
  if (status != qvxStatOk) return status;
  if (isMissing(src) || isMissing(dst)) return qvxStatNullPtr;
  const Scratch<32> scratch(pBuffer, spec->workSize);
  if (scratch.isMissing(spec->workSize)) return qvxStatNoMem;
  using T = std::remove_const_t<decltype(spec->normFactor)>;
  T* y = scratch.carver().template take<T>(0);
  if (kInverse ? spec->invScaled : spec->fwdScaled) run(*spec, y, Times<T>{spec->normFactor});
  else run(*spec, y, Plain{});
  return qvxStatOk;
}

}  // namespace qvx::fft
