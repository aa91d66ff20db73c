// Long real filters on short vectors: the taps are cut into partitions of one length, and each of them meets the samples as
// products of spectra. A block of as many samples is transformed once, when it is full, and its spectrum kept until the last
// partition has met it. What the earlier blocks add to the present one, its tail, is known when the block begins, so that an
// output waits for nothing: the first partition is a sum of products in a block that comes in pieces.
#pragma once

#include "convolution/delay_line.h"
#include "convolution/elements.h"
#include "fft/adapter.h"
#include "fft/ready.h"

namespace qvx::convolution {

// The fewest taps that are partitioned. Of 512 taps, 64 outputs of 32f take 0.5 of the direct way's time, of 384 0.7, of 256 all
// of it; 512 of 64f take 0.2.
inline constexpr int kLeastPartitioned = 512;
// New spectra of all partitions take as long as filtering 30 to 70 samples directly: they are made once calls have brought as
// many samples since the taps changed or samples took another way. Partitions of another length, or blocks that begin where calls
// begin, save less: they are made once they would have served four times as many samples as there are taps.
inline constexpr size_t kWorthSpectra = 64;
inline constexpr size_t kTapsWorthChange = 4;

template <class C> inline constexpr bool kHasPartitions = std::is_same_v<C, Qvx32f> || std::is_same_v<C, Qvx64f>;

template <class T> struct Partitions {
  using Spec = typename fft::Transform<T>::Spec;

  bool hasTaps;  // the spectra are those of the taps
  bool isLive;   // and of the samples
  T* taps;       // the spectra of the partitions
  T* samples;    // those of the last `count` blocks, the newest at `newest`, older ones after it, in a ring
  T* block;      // in its second half the present block's tail
  T* spectrum;   // room for one
  Qvx8u* work;
  const Spec* spec;
  size_t length;  // of a partition and a block, half of a transform's
  size_t count;
  size_t newest;
  size_t filled;   // samples of the present block
  size_t pending;  // samples that other spectra would have served better

  // The longest that divides a call's samples, so that there is no piece of a block: of 2048 taps 1024 samples take 2.0 us by
  // partitions of 512, 2.6 by those of 128. For other calls a piece's sums of products must not be long, nor the partitions many.
  static size_t lengthFor(size_t samples, size_t tapsLen) {
    const size_t least = size_t{1} << (std::bit_width(tapsLen) / 2 + 1);
    return std::clamp(samples & -samples, std::clamp<size_t>(least, 64, kMostPoints / 2), mostPoints(tapsLen) / 2);
  }
  static size_t mostPoints(size_t tapsLen) { return std::clamp(std::bit_floor(tapsLen) / 2, 2048 / sizeof(T), kMostPoints); }
  size_t points() const { return 2 * length; }

  // After samples that took another way.
  void forgetSamples() { isLive = false, pending = 0; }

  // Whether there are spectra for a call of n samples; makes them where that pays. window: the last tapsLen samples, in the order
  // of the reversed taps.
  bool serve(size_t n, const T* reversed, const T* window, size_t tapsLen) {
    const size_t best = lengthFor(n, tapsLen);
    const bool fits = isLive && best == length && (filled == 0 || n < length);
    pending = fits ? 0 : pending + n;
    if (pending < (isLive ? kTapsWorthChange * tapsLen : kWorthSpectra)) return isLive;
    enliven(best, reversed, window, tapsLen);
    return true;
  }
  // Takes a full block. The last two blocks end at `end`.
  void take(const T* end);
  // Adds up the outputs of the present block, by the partitions from `first` on, in the second half of `block`: all of them once
  // the block is taken, before that its tail.
  void addUp(size_t first);

 private:
  static constexpr size_t kMostPoints = 4096;

  void enliven(size_t newLength, const T* reversed, const T* window, size_t tapsLen);
  void transform(const T* from, T* spectra, size_t slot);
};

inline void addTo(Qvx32f* sums, const Qvx32f* v, size_t n) { qvxsAdd_32f_I(v, sums, static_cast<int>(n)); }
inline void addTo(Qvx64f* sums, const Qvx64f* v, size_t n) { qvxsAdd_64f_I(v, sums, static_cast<int>(n)); }

extern template struct Partitions<Qvx32f>;
extern template struct Partitions<Qvx64f>;

}  // namespace qvx::convolution
