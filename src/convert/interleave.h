// Channels side by side and channels interleaved, a tile of a few frames and channels at a time in registers.
//
// A row is the part of a frame that a tile holds. Rows are loaded and stored as whole registers even where the channels end
// before the register: the bytes after them belong to the next row, which is stored later. A row from which a register would
// reach past the last frame is stored in part, and loaded from earlier bytes on.
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
  size_t early;     // bytes by which the register of a source's last row begins before the row

  size_t at(size_t row) const { return (frame + row) * stride + channel; }
};

// A row of full width, if its register begins `early` bytes before it.
template <class D> Vec<D> loadRow(D, const void* row, size_t early) {
  const Lanes<uint8_t, sizeof(hn::TFromD<D>) * hn::MaxLanes(D())> bytes;
  static constexpr uint8_t kFrom[32] = {0,   1,   2,   3,   4,   5,   6,   7,   8,   9,   10,  11,  12,  13,  14,  15,
                                        128, 128, 128, 128, 128, 128, 128, 128, 128, 128, 128, 128, 128, 128, 128, 128};
  const auto v = load(bytes, static_cast<const uint8_t*>(row) - early);
  return hn::BitCast(D(), hn::TableLookupBytesOr0(v, load(bytes, kFrom + early)));
}

// What a tile's rows are: whole registers; whole, but the last of them is loaded by loadRow; or partly less.
enum class Rows { kWhole, kLastEarly, kInParts };
template <Rows kRows> using RowsConstant = std::integral_constant<Rows, kRows>;

template <Rows kRows, class F> [[gnu::noinline]] void lastTile(F f, const Tile& t) { f(t, RowsConstant<kRows>()); }

// Covers a buffer by tiles of kFrames frames and kGroup channels; the last ones overlap their neighbours, so that they are full
// wherever the buffer is as large as a tile. Calls f with a tile and a constant that tells what its rows are. Tiles with other
// than whole rows are functions of their own: in line, their branches keep the vectors of all tiles in memory (1.7 times the
// time).
// writes: a whole row overwrites what follows it. That may be a group of channels still to come, but not the next frame, whose
// first group is already stored.
template <size_t kFrames, size_t kGroup, size_t kRowBytes, bool kWrites, class F>
void forEachTile(size_t channels, size_t frames, size_t elementBytes, F f) {
  const size_t groups = (channels + kGroup - 1) / kGroup;
  const size_t perGroup = std::min(channels, kGroup);
  const size_t inAll = channels * frames * elementBytes;
  for (size_t frame = 0; frame < frames; frame += kFrames) {
    const size_t first = frames < kFrames ? 0 : std::min(frame, frames - kFrames);
    for (size_t g = 0; g < groups; ++g) {
      const size_t channel = std::min(g * kGroup, channels - perGroup);
      Tile t{first, std::min(frames, kFrames), channel, perGroup, channels, std::min(frames, kFrames), 0};
      const auto end = [&](size_t row) { return t.at(row) * elementBytes + kRowBytes; };
      while (t.whole > 0 && end(t.whole - 1) > inAll) --t.whole;
      if (kWrites && g > 0 && channel * elementBytes + kRowBytes > channels * elementBytes) t.whole = 0;
      if (t.whole == kFrames) {
        f(t, RowsConstant<Rows::kWhole>());
      } else if (!kWrites && frames >= kFrames) {
        t.early = end(kFrames - 1) - inAll;
        lastTile<kWrites ? Rows::kInParts : Rows::kLastEarly>(f, t);
      } else {
        lastTile<Rows::kInParts>(f, t);
      }
    }
  }
}

}  // namespace qvx
