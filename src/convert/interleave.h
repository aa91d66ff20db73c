// Channels side by side and channels interleaved, a tile of a few frames and channels at a time in registers.
//
// A row is the part of a frame that a tile holds. Rows are loaded and stored as whole registers even where the channels end
// before the register: the bytes after them belong to the next row, which is stored later. Only a row from which a register would
// reach past the last frame is loaded and stored in part.
#pragma once

#include <bit>

#include "frame/map.h"

namespace qvx {

// Perfect shuffles of K vectors taken as one sequence, kTimes in a row. Each moves the highest bit of an element's index to the
// lowest place, so a transposition takes one shuffle for each bit of the number of rows.
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

// Clipped to full scale, which is 1.
template <class V> V fullScale(V x) { return hn::Max(hn::Min(x, same<V>(1)), same<V>(-1)); }

// The arguments of both directions, in the order of their tests; vectors: one for each channel.
template <class T> QvxStatus checkChannels(const void* interleaved, int channels, int frames, T* const* vectors) {
  if (isNull(interleaved)) return qvxStatNullPtr;
  if (channels < 1 || frames < 1) return qvxStatBadSize;
  if (isNull(vectors)) return qvxStatNullPtr;
  for (int c = 0; c < channels; ++c) {
    if (isNull(vectors[c])) return qvxStatNullPtr;
  }
  return qvxStatOk;
}

// Where a tile lies in an interleaved buffer.
struct Tile {
  size_t frame;     // its first frame
  size_t frames;    // frames that exist, of those it has room for
  size_t channel;   // its first channel
  size_t channels;  // channels that exist, of those it has room for
  size_t stride;    // channels of the buffer
  size_t whole;     // leading rows that may be whole registers

  size_t at(size_t row) const { return (frame + row) * stride + channel; }
};

template <class F> [[gnu::noinline]] void cutTile(F f, const Tile& t) { f(t, std::false_type()); }

// Covers a buffer by tiles of kFrames frames and kGroup channels; the last ones overlap their neighbours, so that they are full
// wherever the buffer is as large as a tile. Calls f with a tile and a constant that tells whether all its rows may be whole
// registers. Tiles with rows in part are a function of their own: in line, their branches keep the vectors of all tiles in memory
// (1.7 times the time).
// writes: a whole row overwrites what follows it. That may be a group of channels still to come, but not the next frame, whose
// first group is already stored.
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
