// How a record is laid out and built, in a block of the size that sizes.h reports.
#pragma once

#include "fir/multirate.h"
#include "fir/sizes.h"
#include "fir/streams.h"

namespace qvx::fir {

template <class C> void place(FloatRecord<C>& record, Carver& carver, const FilterTransform& transform) {
  SpectralFilter<C>& spectral = record.spectral;
  if (transform.length == 0) return;
  auto* specMemory = carver.takeLines<Qvx8u>(transform.spec);
  spectral.length = transform.length;
  spectral.threads = transform.threads;
  spectral.workSize = transform.work;
  spectral.spectrum = carver.takeLines<C>(transform.length);
  spectral.blocks = carver.takeLines<C>(transform.length * int64_t{spectral.threads});
  spectral.work = carver.takeLines<Qvx8u>(transform.work * int64_t{spectral.threads});
  auto* initMemory = carver.takeLines<Qvx8u>(transform.init);
  fft::Transform<C>::kInit(&spectral.spec, transform.order, fft::kInverseDivides, 0, specMemory, initMemory);
  if constexpr (kHasPartitions<C>) {
    if (record.tapsLen < kLeastPartitioned) return;
    // The spectra of the samples lie in the block of a long transform, whose length they do not exceed: a call that takes the
    // transform forgets them. The reported size of a record for doubles has no room for both.
    record.partitions = carver.take<Partitions<C>>(1);
    Partitions<C>& partitions = *record.partitions = {};
    const auto most = static_cast<int64_t>(partitions.mostPoints(static_cast<size_t>(record.tapsLen)));
    partitions.taps = carver.takeLines<C>(2 * record.tapsLen + most);
    partitions.samples = spectral.blocks;
    partitions.block = carver.takeLines<C>(most);
    partitions.spectrum = carver.takeLines<C>(most);
    partitions.work = spectral.work;
  }
}

template <class S, class T> void place(IntegerRecord<S, T>& record, Carver& carver, const FilterTransform&) {
  record.pairs = carver.takeLines<Qvx16sc>(2 * static_cast<int64_t>(pairsOf(static_cast<size_t>(record.tapsLen), S())));
  if constexpr (std::is_same_v<S, T>) record.shortTaps = record.taps;
  else record.shortTaps = carver.takeLines<S>(record.tapsLen);
}

// Vectors begin at a cache line, so that the buffers of transforms and filters are aligned.
template <class S> void layOut(S& state, Carver& carver, int tapsLen, const FilterTransform& transform) {
  state.magic = S::kId;
  state.tapsLen = tapsLen;
  state.taps = carver.takeLines<typename S::Taps>(tapsLen);
  state.delay = {carver.takeLines<typename S::Kernel>(static_cast<int64_t>(S::windowLen(static_cast<size_t>(tapsLen)))), 0};
  place(state, carver, transform);
}

// factor: of integer taps.
template <class S, class H, class... Factor>
QvxStatus build(S** ppState, Qvx8u* block, const FilterTransform& transform, const H* taps, int tapsLen,
                const typename S::Sample* delay, Factor... factor) {
  return initRecord(ppState, block, [&](S& state, Carver& carver) {
    layOut(state, carver, tapsLen, transform);
    setTaps(state, taps, factor...);
    setDelay(state, delay);
    return qvxStatOk;
  });
}

template <class S, class H, class... Factor>
QvxStatus init(FootprintOf footprintOf, S** ppState, const H* taps, int tapsLen, const typename S::Sample* delay, Qvx8u* block,
               Factor... factor) {
  if (isNull(ppState) || isNull(taps) || isNull(block)) return qvxStatNullPtr;
  if (tapsLen < 1) return qvxStatBadTapsLen;
  return build(ppState, block, footprintOf(tapsLen).transform, taps, tapsLen, delay, factor...);
}

template <class S, class H, class... Factor>
QvxStatus initAlloc(FootprintOf footprintOf, S** ppState, const H* taps, int tapsLen, const typename S::Sample* delay,
                    Factor... factor) {
  if (isNull(ppState) || isNull(taps)) return qvxStatNullPtr;
  if (tapsLen < 1) return qvxStatBadTapsLen;
  const Footprint footprint = footprintOf(tapsLen);
  return allocateRecord(ppState, footprint.bytes, [&](S** pp, Qvx8u* block) {
    return build(pp, block, footprint.transform, taps, tapsLen, delay, factor...);
  });
}

template <class S> QvxStatus release(S* state) {
  const bool isOther = !isNull(state) && (isMultirate(state) || isStream(state));
  const QvxStatus status = isOther ? qvxStatOk : checkRecord(state, S::kId);
  return releaseRecord(state, status, InCallersBlock::kUntouched);
}

}  // namespace qvx::fir
