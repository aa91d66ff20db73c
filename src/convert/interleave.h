// Channels side by side and channels interleaved, a tile of a few frames and channels at a time in registers.
//
// A row is what a tile has of one frame. Rows are stored and loaded with whole registers, also where the channels end before the
// register: the bytes behind are the next row's, which is stored later. Only rows from which a register would reach beyond the
// last frame are cut to what they have.
#pragma once

#include <bit>

#include "frame/map.h"

namespace qvx {

// A perfect shuffle of K vectors as one sequence, kTimes over. Each takes the highest bit of an element's place and puts it
// lowest, so that a transposition is as many shuffles as that many bits.
template <int kTimes, size_t K, class V> struct Shuffle {
  static void run(V (&v)[K]) {
    V to[K];
#pragma GCC unroll 4
    for (size_t i = 0; i < K / 2; ++i) {
      to[2 * i] = hn::InterleaveLower(TagOf<V>(), v[i], v[i + K / 2]);
      to[2 * i + 1] = hn::InterleaveUpper(TagOf<V>(), v[i], v[i + K / 2]);
    }
    Shuffle<kTimes - 1, K, V>::run(to);
#pragma GCC unroll 8
    for (size_t i = 0; i < K; ++i) v[i] = to[i];
  }
};
template <size_t K, class V> struct Shuffle<0, K, V> {
  static void run(V (&)[K]) {}
};
template <int kTimes, size_t K, class V> void shuffle(V (&v)[K]) { Shuffle<kTimes, K, V>::run(v); }

// Where a tile lies among the frames and channels of an interleaved buffer, in elements of kBytes, and how many of them a row may
// touch without harm beyond those it has.
struct Tile {
  size_t frame;     // its first
  size_t frames;    // how many of its frames there are
  size_t channel;   // its first
  size_t channels;  // how many of its channels there are
  size_t stride;    // channels in all
  size_t whole;     // rows, from the first, that may be whole registers

  size_t at(size_t row) const { return (frame + row) * stride + channel; }
};

// Tiles of kFrames and kGroup channels over a buffer; the last ones begin early enough to be full where there is enough for that.
// writes: whether a whole row that is not its frame's last may spoil what follows, so that groups behind it must come later, and
// a frame's last, if it is not its only one, must be cut.
template <size_t kFrames, size_t kGroup, size_t kRowBytes, class F>
void forEachTile(size_t channels, size_t frames, size_t elementBytes, bool writes, F f) {
  const size_t groups = (channels + kGroup - 1) / kGroup;
  const size_t perGroup = std::min(channels, kGroup);
  // The last frames, in whose last row a register would end behind the buffer.
  const size_t beyond = kRowBytes - perGroup * elementBytes;
  const size_t cut = (beyond + channels * elementBytes - 1) / (channels * elementBytes);
  const size_t uncut = frames - std::min(frames, cut);
  for (size_t frame = 0; frame < frames; frame += kFrames) {
    const size_t first = frames < kFrames ? 0 : std::min(frame, frames - kFrames);
    for (size_t g = 0; g < groups; ++g) {
      const size_t channel = std::min(g * kGroup, channels - perGroup);
      const bool isLast = g + 1 == groups;
      size_t whole = !isLast ? kFrames : first < uncut ? std::min(uncut - first, kFrames) : 0;
      if (beyond > 0 && isLast && groups > 1 && writes) whole = 0;
      f(Tile{first, std::min(frames, kFrames), channel, perGroup, channels, whole});
    }
  }
}

}  // namespace qvx
