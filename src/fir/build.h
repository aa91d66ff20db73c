// How a record is laid out and built, in a block of the size that sizes.h reports.
#pragma once

#include "fir/contents.h"
#include "fir/sizes.h"

namespace qvx::fir {

// A cache line, so that transforms and filters meet their buffers at its beginning.
using Layout = Carver<64>;

template <class C> void place(FloatRecord<C>& record, Layout& layout, const TransformSizes& transform) {
  record.fftLen = -1;
  record.spec = nullptr;
  if (transform.length == 0) return;
  const auto length = static_cast<size_t>(transform.length);
  auto* specMemory = layout.take<Qvx8u>(transform.spec);
  record.threads = ownGetNumThreads();
  record.workSize = transform.work;
  record.spectrum = layout.take<C>(transform.length);
  record.blocks = layout.take<C>(transform.length * int64_t{record.threads});
  record.work = layout.take<Qvx8u>(transform.work * int64_t{record.threads});
  const QvxStatus status =
      Transform<C>::kInit(&record.spec, transform.order, kInverseDivides, 0, specMemory, layout.take<Qvx8u>(transform.init));
  if (status == qvxStatOk) record.fftLen = static_cast<int>(length);
  else record.spec = nullptr;
}

template <class S, class T> void place(IntegerRecord<S, T>& record, Layout& layout, const TransformSizes&) {
  record.pairs = layout.take<Qvx16sc>(2 * static_cast<int64_t>(pairsOf(static_cast<size_t>(record.tapsLen), S())));
  if constexpr (std::is_same_v<S, T>) record.shortTaps = record.taps;
  else record.shortTaps = layout.take<S>(record.tapsLen);
}

template <class S> S* layOut(Qvx8u* block, int tapsLen, const TransformSizes& transform) {
  Layout layout(block);
  auto* state = layout.take<S>(1);
  state->magic = S::kSingleRate;
  state->tapsLen = tapsLen;
  state->ownsBlock = false;
  state->taps = layout.take<typename S::Taps>(tapsLen);
  state->delay = {layout.take<typename S::Kernel>(static_cast<int64_t>(S::windowLen(static_cast<size_t>(tapsLen)))), 0};
  place(*state, layout, transform);
  return state;
}

// factor: of integer taps.
template <class S, class H, class... Factor>
S* build(Qvx8u* block, const TransformSizes& transform, const H* taps, int tapsLen, const typename S::Sample* delay,
         Factor... factor) {
  S* state = layOut<S>(block, tapsLen, transform);
  setTaps(*state, taps, factor...);
  setDelay(*state, delay);
  return state;
}

template <class S, class H, class... Factor>
QvxStatus init(PlanFor planFor, S** ppState, const H* taps, int tapsLen, const typename S::Sample* delay, Qvx8u* block,
               Factor... factor) {
  if (isNull(ppState) || isNull(taps) || isNull(block)) return qvxStatNullPtr;
  if (tapsLen < 1) return qvxStatBadTapsLen;
  *ppState = build<S>(block, planFor(tapsLen).transform, taps, tapsLen, delay, factor...);
  return qvxStatOk;
}

template <class S, class H, class... Factor>
QvxStatus initAlloc(PlanFor planFor, S** ppState, const H* taps, int tapsLen, const typename S::Sample* delay, Factor... factor) {
  if (isNull(ppState) || isNull(taps)) return qvxStatNullPtr;
  if (tapsLen < 1) return qvxStatBadTapsLen;
  const Plan plan = planFor(tapsLen);
  Block block(plan.bytes);
  if (!block) return qvxStatNoMem;
  *ppState = build<S>(block.get(), plan.transform, taps, tapsLen, delay, factor...);
  (*ppState)->ownsBlock = true;
  block.keep();
  return qvxStatOk;
}

// A block's own address is that of its record: both are at a multiple of 64.
template <class S, class... Id> QvxStatus release(S* state, Id... others) {
  const QvxStatus status = checkRecord(state, S::kSingleRate, S::kMultiRate, others...);
  if (status == qvxStatOk && state->ownsBlock) qvxFree(state);
  return status;
}

}  // namespace qvx::fir
