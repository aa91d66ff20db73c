// Channels of floats joined to interleaved 24-bit integers, and split again.
//
// One channel is a conversion. Two are interleaved in registers. Any other number goes through transposed tiles of 4 frames by 4
// channels.
#include "convert/few_frames.h"
#include "frame/packed24.h"
#include "frame/rounding.h"

using namespace qvx;

namespace {

// Calls f on doubles: as many as there are lanes, or half of them at a time where they need two registers.
template <class V, class F> auto throughDoubles(V v, F f) {
  constexpr size_t N = kLanesOf<V>;
  if constexpr (N * sizeof(double) <= kVectorBytes) {
    return f(hn::PromoteTo(Lanes<double, N>(), v));
  } else {
    const Lanes<LaneOf<V>, N / 2> half;
    const auto upper = throughDoubles(hn::UpperHalf(half, v), f);
    const auto lower = throughDoubles(hn::LowerHalf(half, v), f);
    return hn::Combine(hn::Twice<TagOf<decltype(lower)>>(), upper, lower);
  }
}

struct Scaled24 {
  static constexpr Rounding kNeeds = Rounding::kNearest;
  template <class V> auto operator()(V x) const {
    return throughDoubles(fullScale(x), [](auto d) {
      using D = decltype(d);
      return toIntNearest(d * same<D>(8388607.5) + same<D>(-0.5));
    });
  }
};

struct FullScaleOf24 {
  template <class V> auto operator()(V x) const {
    return throughDoubles(x, [](auto d) {
      using D = decltype(d);
      return convertLanes<float>(d * same<D>(2.0 / 16777215) + same<D>(1.0 / 16777215));
    });
  }
};

using Four32 = Lanes<int32_t, 4>;
using Row24 = Lanes<uint8_t, 16>;  // 12 bytes of four channels, and four after

// Two channels, a frame an element: as a source, and as a destination, of quads in which their samples are in turn; and the
// packed frames.
template <class T> struct TwoChannels {
  using Lane = uint16_t;
  T* const* p;

  template <size_t N> auto get(size_t at) const {
    const Lanes<Qvx32f, N / 2> d;
    return quad([=, this](size_t c, size_t from) { return load(d, p[c] + at + from * N / 2); });
  }
  template <size_t N> auto get(size_t at, size_t n) const {
    const Lanes<Qvx32f, N / 2> d;
    return quad([=, this](size_t c, size_t from) {
      return loadFirst(d, p[c] + at + std::min(n, from * N / 2), shareOf<N / 2>(from, n));
    });
  }
  template <size_t N, class V> void put(Quad<V> q, size_t at) const {
    each(q, [=, this](V v, size_t c, size_t from) { store(v, TagOf<V>(), p[c] + at + from * N / 2); });
  }
  template <size_t N, class V> void put(Quad<V> q, size_t at, size_t n) const {
    each(q, [=, this](V v, size_t c, size_t from) {
      storeFirst(v, TagOf<V>(), p[c] + at + std::min(n, from * N / 2), shareOf<N / 2>(from, n));
    });
  }
  template <size_t N> size_t misaligned() const { return destination(p[0]).template misaligned<N / 2>(); }

 private:
  // Of both channels, by their number, the first half of the frames and the second.
  template <class F> static auto quad(F of) {
    const auto first = interleaved(Pair<decltype(of(0, 0))>{of(0, 0), of(1, 0)});
    const auto second = interleaved(Pair<decltype(of(0, 0))>{of(0, 1), of(1, 1)});
    return Quad<decltype(of(0, 0))>{first.lo, first.hi, second.lo, second.hi};
  }
  template <class V, class F> static void each(Quad<V> q, F to) {
    const auto first = deinterleaved(Pair<V>{q.a, q.b});
    const auto second = deinterleaved(Pair<V>{q.c, q.d});
    to(first.lo, 0, 0);
    to(first.hi, 1, 0);
    to(second.lo, 0, 1);
    to(second.hi, 1, 1);
  }
};

struct PackedFrom {
  using Lane = uint16_t;
  From24<Qvx32s> samples;

  template <size_t N> auto get(size_t at) const { return samples.get<2 * N>(2 * at); }
  template <size_t N> auto get(size_t at, size_t n) const { return samples.get<2 * N>(2 * at, 2 * n); }
};

struct PackedTo {
  using Lane = uint16_t;
  To24<Qvx32s> samples;

  template <size_t N, class V> void put(Quad<V> q, size_t at) const { samples.put<2 * N>(q, 2 * at); }
  template <size_t N, class V> void put(Quad<V> q, size_t at, size_t n) const { samples.put<2 * N>(q, 2 * at, 2 * n); }
  template <size_t N> size_t misaligned() const {
    const size_t lanes = samples.misaligned<2 * N>();
    return lanes % 2 == 0 ? lanes / 2 : 0;
  }
};

template <Rows kRows> void join24Tile(const Qvx32f* const* src, const Tile& t, Qvx8u* dst) {
  constexpr bool kWhole = kRows != Rows::kInParts;
  const Lanes<float, 4> d;
  Vec<Four32> v[4];
#pragma GCC unroll 4
  for (size_t c = 0; c < 4; ++c) {
    const Qvx32f* from = src[t.channel + std::min(c, t.channels - 1)] + t.frame;
    v[c] = Scaled24()(kWhole || t.frames == 4 ? load(d, from) : loadFirst(d, from, t.frames));
  }
  shuffle<2>(v);
#pragma GCC unroll 4
  for (size_t i = 0; i < 4; ++i) {
    const auto row = packed24(v[i]);
    if (kWhole || i < t.whole) store(row, Row24(), dst + 3 * t.at(i));
    else if (i < t.frames) storeFirst(row, Row24(), dst + 3 * t.at(i), 3 * t.channels);
  }
}

template <Rows kRows> void split24Tile(const Qvx8u* src, const Tile& t, Qvx32f* const* dst) {
  constexpr bool kWhole = kRows != Rows::kInParts;
  Vec<Four32> v[4];
#pragma GCC unroll 4
  for (size_t i = 0; i < 4; ++i) {
    const Qvx8u* row = src + 3 * t.at(std::min(i, t.frames - 1));
    if (kRows == Rows::kLastEarly && i == 3) v[i] = unpacked24(loadRow(Row24(), row, t.early));
    else v[i] = unpacked24(kWhole || i < t.whole ? load(Row24(), row) : loadFirst(Row24(), row, 3 * t.channels));
  }
  shuffle<2>(v);
#pragma GCC unroll 4
  for (size_t c = 0; c < 4; ++c) {
    if (c >= t.channels) break;
    const auto x = FullScaleOf24()(v[c]);
    Qvx32f* to = dst[t.channel + c] + t.frame;
    if (kWhole || t.frames == 4) store(x, Lanes<float, 4>(), to);
    else storeFirst(x, Lanes<float, 4>(), to, t.frames);
  }
}

// Three channels or more.
[[gnu::noinline]] void joinTiles24(const Qvx32f* const* src, size_t channels, size_t n, Qvx8u* dst) {
  const RoundingScope scope(Scaled24::kNeeds);
  if (n < kFewFrames) {
    return joinFewFrames<3>(src, channels, n, dst, [](auto v) { return packed24(Scaled24()(v)); });
  }
  forEachTile<4, 4, 16, true>(channels, n, 3, [=](const Tile& t, auto rows) { join24Tile<decltype(rows)::value>(src, t, dst); });
}
[[gnu::noinline]] void splitTiles24(const Qvx8u* src, size_t channels, size_t n, Qvx32f* const* dst) {
  if (n < kFewFrames) {
    return splitFewFrames<3>(src, channels, n, dst, [](auto row) { return FullScaleOf24()(unpacked24(row)); });
  }
  forEachTile<4, 4, 16, false>(channels, n, 3,
                               [=](const Tile& t, auto rows) { split24Tile<decltype(rows)::value>(src, t, dst); });
}

}  // namespace

QvxStatus qvxsJoinScaled_32f24s_D2L(const Qvx32f* const* src, int channels, int frames, Qvx8u* dst) {
  const QvxStatus status = checkChannels(dst, channels, frames, src);
  if (status != qvxStatOk) return status;
  if (channels > 2) {
    joinTiles24(src, elements(channels), elements(frames), dst);
    return qvxStatOk;
  }
  const RoundingScope scope(Scaled24::kNeeds);
  const auto kernel = [](auto quad) { return each(quad, Scaled24()); };
  if (channels == 1) return loop(kernel, To24<Qvx32s>{dst}, elements(frames), Quads{src[0]});
  return loop(kernel, PackedTo{{dst}}, elements(frames), TwoChannels<const Qvx32f>{src});
}

QvxStatus qvxsSplitScaled_24s32f_D2L(const Qvx8u* src, Qvx32f* const* dst, int channels, int frames) {
  const QvxStatus status = checkChannels(src, channels, frames, dst);
  if (status != qvxStatOk) return status;
  if (channels > 2) {
    splitTiles24(src, elements(channels), elements(frames), dst);
    return qvxStatOk;
  }
  const auto kernel = [](auto quad) { return each(quad, FullScaleOf24()); };
  if (channels == 1) return loop(kernel, Quads{dst[0]}, elements(frames), From24<Qvx32s>{src});
  return loop(kernel, TwoChannels<Qvx32f>{dst}, elements(frames), PackedFrom{{src}});
}
