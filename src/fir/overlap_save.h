// Long filters on long calls: products of spectra, block by block. A block holds tapsLen - 1 old samples and as many new ones as
// fit behind them; what the transform gives for the old ones is wrapped around and dropped.
#pragma once

#include <omp.h>

#include "fir/state.h"
#include "frame/team.h"

namespace qvx::fir {

// Samples from which the blocks of a call are divided between threads, each with buffers of its own. They may be from 1601 real
// and 801 complex ones on, but a block is done at 1 to 2 ns a sample, and a region costs up to 5 us.
inline constexpr size_t kBlocksThreaded = 16384;

// src: of the samples' type or already of the kernel's; it must not overlap dst. The delay line must be settled.
template <class S, class Src>
QvxStatus overlapSave(S& state, const Src* src, typename S::Sample* dst, size_t n, int scaleFactor) {
  using C = typename S::Kernel;
  const auto old = static_cast<size_t>(state.tapsLen) - 1;
  const auto length = static_cast<size_t>(state.fftLen);
  const size_t fresh = length - old;

  const auto one = [&](size_t number, size_t thread) {
    C* const block = state.blocks + thread * length;
    Qvx8u* const work = state.work + thread * static_cast<size_t>(state.workSize);
    const size_t at = number * fresh;
    const size_t count = std::min(fresh, n - at);
    const C* samples = block;
    if (number == 0) {
      C* const window = state.delay.window;
      std::copy_n(window + 1, old, block);
      toKernel(src, count, block + old);
      // The new window is the end of old samples and new ones.
      if (n <= old) std::copy_n(block + n - 1, old + 1, window);
      else toKernel(src + n - old - 1, old + 1, window);
      std::fill(block + old + count, block + length, C{});
    } else if (std::is_same_v<Src, C> && count == fresh) {
      samples = reinterpret_cast<const C*>(src + at - old);
    } else {
      toKernel(src + at - old, old + count, block);
      std::fill(block + old + count, block + length, C{});
    }
    QvxStatus status = Transform<C>::kForward(samples, block, state.spec, work);
    if (status != qvxStatOk) return status;
    multiply(state.spectrum, block, state.fftLen);
    status = Transform<C>::kInverse(block, block, state.spec, work);
    if (status == qvxStatOk) toSamples(block + old, count, dst + at, scaleFactor);
    return status;
  };

  const auto all = [&](size_t from, size_t count, size_t thread) {
    QvxStatus worst = qvxStatOk;
    for (size_t number = from; number < from + count; ++number) worst = std::min(worst, one(number, thread));
    return worst;
  };
  const size_t blocks = (n + fresh - 1) / fresh;
  if (n < kBlocksThreaded) return all(0, blocks, 0);
  return dividedBetween(std::min(ownGetNumThreads(), state.threads), blocks, all);
}

}  // namespace qvx::fir
