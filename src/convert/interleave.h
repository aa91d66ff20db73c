// Channels side by side and channels interleaved, a tile of a few frames and channels at a time in registers.
//
// A row is what a tile has of one frame. Rows are stored and loaded with whole registers, also where the channels end before the
// register: the bytes after are the next row's, which is stored later. Only rows from which a register would reach beyond the
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

template <class F> [[gnu::noinline]] void cutTile(F f, const Tile& t) { f(t, std::false_type()); }

// Tiles of kFrames and kGroup channels over a buffer; the last ones begin early enough to be full where there is enough for that.
// f is called with a tile and a constant: whether all rows may be whole registers. The others stand apart, for their branches
// would keep the vectors of all tiles in memory (1.7 times the time).
// writes: whole rows spoil what follows them. After the first group of channels that must be groups yet to come, not the next
// frame, whose first group is there already.
template <size_t kFrames, size_t kGroup, size_t kRowBytes, class F>
void forEachTile(size_t channels, size_t frames, size_t elementBytes, bool writes, F f) {
  const size_t groups = (channels + kGroup - 1) / kGroup;
  const size_t perGroup = std::min(channels, kGroup);
  const size_t inAll = channels * frames * elementBytes;
  for (size_t frame = 0; frame < frames; frame += kFrames) {
    const size_t first = frames < kFrames ? 0 : std::min(frame, frames - kFrames);
    for (size_t g = 0; g < groups; ++g) {
      const size_t channel = std::min(g * kGroup, channels - perGroup);
      Tile t{first, std::min(frames, kFrames), channel, perGroup, channels, std::min(frames, kFrames)};
      while (t.whole > 0 && t.at(t.whole - 1) * elementBytes + kRowBytes > inAll) --t.whole;
      if (writes && g > 0 && channel * elementBytes + kRowBytes > channels * elementBytes) t.whole = 0;
      if (t.whole == kFrames) f(t, std::true_type());
      else cutTile(f, t);
    }
  }
}

}  // namespace qvx
