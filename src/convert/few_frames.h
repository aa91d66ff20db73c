// Buffers of fewer frames than a tile of interleave.h, and of three channels or more: tiles of up to four frames by three or four
// channels. Their numbers are constants, so whatever a tile loads or stores is one to three pieces of whole words, and nothing
// outside. 2 frames of 6 channels of 16 bits take 8 ns, 25 by rows of which each finds out how much of it exists.
#pragma once

#include "convert/interleave.h"

namespace qvx {

inline constexpr size_t kFewFrames = 8;

using FourSamples = Vec<Lanes<float, 4>>;
using RowBytes = Vec<Lanes<uint8_t, 16>>;

template <class V> RowBytes rowBytes(V v) { return RowBytes{hn::BitCast(hn::Repartition<uint8_t, TagOf<V>>(), v).raw}; }

namespace detail {

// The first kBytes of a register: the largest word, then the rest of them.
template <size_t kBytes> RowBytes loadWords(const uint8_t* p) {
  constexpr size_t kWord = std::bit_floor(kBytes);
  const RowBytes v{load(Lanes<uint8_t, kWord>(), p).raw};
  if constexpr (kWord == kBytes) return v;
  else return v | hn::ShiftLeftBytes<kWord>(loadWords<kBytes - kWord>(p + kWord));
}
template <size_t kBytes> void storeWords(RowBytes v, uint8_t* p) {
  constexpr size_t kWord = std::bit_floor(kBytes);
  const Lanes<uint8_t, kWord> d;
  store(Vec<decltype(d)>{v.raw}, d, p);
  if constexpr (kWord < kBytes) storeWords<kBytes - kWord>(hn::ShiftRightBytes<kWord>(Lanes<uint8_t, 16>(), v), p + kWord);
}

template <size_t kCount> FourSamples loadSamples(const Qvx32f* p) {
  return as<float>(loadWords<kCount * sizeof(Qvx32f)>(reinterpret_cast<const uint8_t*>(p)));
}
template <size_t kCount> void storeSamples(FourSamples v, Qvx32f* p) {
  storeWords<kCount * sizeof(Qvx32f)>(rowBytes(v), reinterpret_cast<uint8_t*>(p));
}

// Calls f with a tile, the number of its frames and that of its channels; the last tiles overlap their neighbours.
template <class F> void forEachSmallTile(size_t channels, size_t frames, F f) {
  const auto cover = [=](auto ofFrames, auto ofChannels) {
    constexpr size_t kFrames = decltype(ofFrames)::value;
    constexpr size_t kChannels = decltype(ofChannels)::value;
    for (size_t channel = 0; channel < channels; channel += kChannels) {
      Tile t{};
      t.stride = channels;
      t.channel = std::min(channel, channels - kChannels);
      f(t, ofFrames, ofChannels);
      if (frames == kFrames) continue;
      t.frame = frames - kFrames;
      f(t, ofFrames, ofChannels);
    }
  };
  const auto ofFrames = [=](auto count) {
    if (channels == 3) cover(count, std::integral_constant<size_t, 3>());
    else cover(count, std::integral_constant<size_t, 4>());
  };
  if (frames == 1) ofFrames(std::integral_constant<size_t, 1>());
  else if (frames == 2) ofFrames(std::integral_constant<size_t, 2>());
  else if (frames == 3) ofFrames(std::integral_constant<size_t, 3>());
  else ofFrames(std::integral_constant<size_t, 4>());
}

}  // namespace detail

// Elements of kBytes; toRow(samples) packs those of four channels, fromRow(bytes) is its inverse.
template <size_t kBytes, class ToRow>
void joinFewFrames(const Qvx32f* const* src, size_t channels, size_t frames, void* dst, ToRow toRow) {
  detail::forEachSmallTile(channels, frames, [=](const Tile& t, auto ofFrames, auto ofChannels) {
    constexpr size_t kFrames = decltype(ofFrames)::value;
    constexpr size_t kChannels = decltype(ofChannels)::value;
    FourSamples v[4];
#pragma GCC unroll 4
    for (size_t c = 0; c < 4; ++c) {
      v[c] = c < kChannels ? detail::loadSamples<kFrames>(src[t.channel + c] + t.frame) : v[0];
    }
    shuffle<2>(v);
#pragma GCC unroll 4
    for (size_t i = 0; i < kFrames; ++i) {
      detail::storeWords<kBytes * kChannels>(rowBytes(toRow(v[i])), static_cast<uint8_t*>(dst) + kBytes * t.at(i));
    }
  });
}

template <size_t kBytes, class FromRow>
void splitFewFrames(const void* src, size_t channels, size_t frames, Qvx32f* const* dst, FromRow fromRow) {
  detail::forEachSmallTile(channels, frames, [=](const Tile& t, auto ofFrames, auto ofChannels) {
    constexpr size_t kFrames = decltype(ofFrames)::value;
    constexpr size_t kChannels = decltype(ofChannels)::value;
    FourSamples v[4];
#pragma GCC unroll 4
    for (size_t i = 0; i < 4; ++i) {
      const auto* row = static_cast<const uint8_t*>(src) + kBytes * t.at(i);
      v[i] = i < kFrames ? fromRow(detail::loadWords<kBytes * kChannels>(row)) : v[0];
    }
    shuffle<2>(v);
#pragma GCC unroll 4
    for (size_t c = 0; c < kChannels; ++c) detail::storeSamples<kFrames>(v[c], dst[t.channel + c] + t.frame);
  });
}

}  // namespace qvx
