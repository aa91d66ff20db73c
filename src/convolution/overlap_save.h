// Long filters on long vectors: products of spectra, block by block (overlap-save). A block holds the old samples that its
// outputs need, then as many new ones as fit; the results at the old samples are wrapped around, and dropped.
#pragma once

#include "convolution/elements.h"
#include "fft/adapter.h"
#include "frame/team.h"

namespace qvx::convolution {

// Samples from which the blocks of a call are divided between threads, each with buffers of its own. A block takes 1 to 2 ns a
// sample, waking a thread 8 us.
inline constexpr size_t kBlocksWorthTeam = 32768;

// A filter as the spectrum of its taps, and the buffers of `threads` threads.
template <class C> struct SpectralFilter {
  typename fft::Transform<C>::Spec* spec;  // null: none
  C* spectrum;
  C* blocks;
  Qvx8u* work;
  int length;    // of a block
  int workSize;  // of one thread's
  int threads;

  QvxStatus setTaps(const C* reversed, size_t n) {
    std::reverse_copy(reversed, reversed + n, spectrum);
    std::fill(spectrum + n, spectrum + length, C{});
    return fft::Transform<C>::kForward(spectrum, spectrum, spec, work);
  }
};

// window: taps samples, of which the last taps - 1 come before src; the last `taps` samples of both when the call is done. src is
// of the samples' type or already of the kernel's; it may be dst, and must not overlap it otherwise.
template <class C, class Src, class Dst>
QvxStatus overlapSave(const SpectralFilter<C>& filter, size_t taps, C* window, const Src* src, Dst* dst, size_t n,
                      int scaleFactor) {
  const size_t old = taps - 1;
  const auto length = static_cast<size_t>(filter.length);
  const size_t fresh = length - old;
  const bool inPlace = static_cast<const void*>(src) == static_cast<const void*>(dst);
  // Over the end of what a block holds and of `count` samples, its own or more.
  const auto moveWindow = [&](const C* block, const Src* from, size_t count) {
    if (count <= old) std::copy_n(block + count - 1, taps, window);
    else toKernel(from + count - taps, taps, window);
  };

  const auto filterBlock = [&](size_t number, size_t thread) {
    C* const block = filter.blocks + thread * length;
    Qvx8u* const work = filter.work + thread * static_cast<size_t>(filter.workSize);
    const size_t at = number * fresh;
    const size_t count = std::min(fresh, n - at);
    const C* samples = block;
    if (number == 0 || inPlace) {  // the samples before it are in the window alone
      std::copy_n(window + 1, old, block);
      toKernel(src + at, count, block + old);
      moveWindow(block, src + at, inPlace ? count : n);
      std::fill(block + old + count, block + length, C{});
    } else if (std::is_same_v<Src, C> && count == fresh) {
      samples = reinterpret_cast<const C*>(src + at - old);
    } else {
      toKernel(src + at - old, old + count, block);
      std::fill(block + old + count, block + length, C{});
    }
    QvxStatus status = fft::Transform<C>::kForward(samples, block, filter.spec, work);
    if (status != qvxStatOk) return status;
    fft::multiply(filter.spectrum, block, filter.length);
    status = fft::Transform<C>::kInverse(block, block, filter.spec, work);
    if (status == qvxStatOk) toSamples(block + old, count, dst + at, scaleFactor);
    return status;
  };

  const auto all = [&](size_t from, size_t count, size_t thread) {
    QvxStatus worst = qvxStatOk;
    for (size_t number = from; number < from + count; ++number) worst = std::min(worst, filterBlock(number, thread));
    return worst;
  };
  const size_t blocks = (n + fresh - 1) / fresh;
  if (n < kBlocksWorthTeam || inPlace) return all(0, blocks, 0);
  return dividedBetween(std::min(ownGetNumThreads(), filter.threads), blocks, all);
}

}  // namespace qvx::convolution
