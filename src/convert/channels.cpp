// Channels of floats joined to interleaved integers, and split again.
//
// One channel is a conversion. Two 16-bit channels are 32-bit lanes with one sample in each half. Three and four are
// split by whole registers (a quarter of the time of tiles). All other counts go through transposed tiles: 8 channels of 8 frames
// (4 of 8 up to four channels) of 16 bits, 4 of 4 frames of 24 bits.
#include <array>

#include "convert/interleave.h"
#include "frame/packed24.h"
#include "frame/rounding.h"

using namespace qvx;

namespace {

// ---- samples: float lanes to 32-bit integer lanes, and back

struct Clipped16 {
  static constexpr Rounding kNeeds = kRoundsByInstruction ? Rounding::kCallers : Rounding::kNearest;
  template <class V> auto operator()(V x) const { return toIntNearest(hn::Max(hn::Min(x, same<V>(32767)), same<V>(-32768))); }
};

template <class V> V fullScale(V x) { return hn::Max(hn::Min(x, same<V>(1)), same<V>(-1)); }

struct Scaled16 {
  static constexpr Rounding kNeeds = Rounding::kNearest;
  template <class V> auto operator()(V x) const { return toIntNearest(fullScale(x) * same<V>(32767.5F) + same<V>(-0.5F)); }
};

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

struct FullScaleOf16 {
  template <class V> auto operator()(V x) const {
    const auto v = convertLanes<float>(x);
    using F = std::remove_const_t<decltype(v)>;
    return v * same<F>(2.0F / 65535) + same<F>(1.0F / 65535);
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

// ---- 16 bits

using Eight16 = Lanes<int16_t, 8>;

// As many of eight floats as one register holds.
constexpr size_t kAtOnce = std::min<size_t>(8, kVectorBytes / sizeof(Qvx32f));

// `count` of eight floats from p on, zeros after them.
template <class Sample> Vec<Eight16> joined8(Sample sample, const Qvx32f* p, size_t count) {
  const Lanes<float, kAtOnce> d;
  if constexpr (kAtOnce == 8) {
    return hn::DemoteTo(Eight16(), sample(count == 8 ? load(d, p) : loadFirst(d, p, count)));
  } else {
    if (count == 8) return narrow<int16_t>(each(Pair<Vec<decltype(d)>>{load(d, p), load(d, p + 4)}, sample));
    const size_t low = std::min<size_t>(count, 4);
    return narrow<int16_t>(each(Pair<Vec<decltype(d)>>{loadFirst(d, p, low), loadFirst(d, p + low, count - low)}, sample));
  }
}

template <class V> void split8(V v, Qvx32f* p, size_t count) {
  const Lanes<float, kAtOnce> d;
  if constexpr (kAtOnce == 8) {
    if (count == 8) store(FullScaleOf16()(v), d, p);
    else storeFirst(FullScaleOf16()(v), d, p, count);
  } else {
    const hn::Half<TagOf<V>> half;
    const auto lower = FullScaleOf16()(hn::LowerHalf(half, v));
    const auto upper = FullScaleOf16()(hn::UpperHalf(half, v));
    if (count >= 4) store(lower, d, p);
    else storeFirst(lower, d, p, count);
    if (count == 8) store(upper, d, p + 4);
    else if (count > 4) storeFirst(upper, d, p + 4, count - 4);
  }
}

// G channels of 8 frames are G vectors: of a channel each, or of 8 / G rows.
template <size_t G> struct Tile16 {
  static constexpr int kToRows = std::countr_zero(G);
  using Row = Lanes<int16_t, G>;

  static Vec<Row> row(const Vec<Eight16> (&v)[G], size_t i) {
    if constexpr (G == 8) return v[i];
    else return i % 2 == 0 ? hn::LowerHalf(Row(), v[i / 2]) : hn::UpperHalf(Row(), v[i / 2]);
  }

  template <bool kWhole, class Sample> static void join(Sample sample, const Qvx32f* const* src, const Tile& t, Qvx16s* dst) {
    Vec<Eight16> v[G];
#pragma GCC unroll 8
    for (size_t c = 0; c < G; ++c) {
      v[c] = joined8(sample, src[t.channel + std::min(c, t.channels - 1)] + t.frame, kWhole ? 8 : t.frames);
    }
    shuffle<kToRows>(v);
#pragma GCC unroll 8
    for (size_t i = 0; i < 8; ++i) {
      if (kWhole || i < t.whole) store(row(v, i), Row(), dst + t.at(i));
      else if (i < t.frames) storeFirst(row(v, i), Row(), dst + t.at(i), t.channels);
    }
  }

  template <bool kWhole> static void split(const Qvx16s* src, const Tile& t, Qvx32f* const* dst) {
    Vec<Row> rows[8];
#pragma GCC unroll 8
    for (size_t i = 0; i < 8; ++i) {
      if (kWhole || i < t.whole) rows[i] = load(Row(), src + t.at(i));
      else rows[i] = loadFirst(Row(), src + t.at(std::min(i, t.frames - 1)), t.channels);
    }
    Vec<Eight16> v[G];
#pragma GCC unroll 8
    for (size_t i = 0; i < G; ++i) {
      if constexpr (G == 8) v[i] = rows[i];
      else v[i] = hn::Combine(Eight16(), rows[2 * i + 1], rows[2 * i]);
    }
    shuffle<3>(v);
#pragma GCC unroll 8
    for (size_t c = 0; c < G; ++c) {
      if (c < t.channels) split8(v[c], dst[t.channel + c] + t.frame, kWhole ? 8 : t.frames);
    }
  }
};

// Calls f with the width of the tiles that suits a number of channels.
template <class F> void byWidth16(size_t channels, F f) {
  if (channels <= 4) f(std::integral_constant<size_t, 4>());
  else f(std::integral_constant<size_t, 8>());
}

template <class Sample> void join16(Sample sample, const Qvx32f* const* src, size_t channels, size_t n, Qvx16s* dst) {
  const RoundingScope scope(Sample::kNeeds);
  if (channels == 1) {
    loop([sample](auto pair) { return narrowInOrder<int16_t>(each(pair, sample)); }, destination(dst), n, InPairs{src[0]});
  } else if (channels == 2) {
    const auto both = [sample](auto left, auto right) {
      const auto low = sample(left);
      return (low & same<std::remove_const_t<decltype(low)>>(0xFFFF)) | hn::ShiftLeft<16>(sample(right));
    };
    loop(both, destination(reinterpret_cast<Qvx32s*>(dst)), n, source(src[0]), source(src[1]));
  } else {
    byWidth16(channels, [=](auto width) {
      constexpr size_t G = decltype(width)::value;
      forEachTile<8, G, 2 * G>(channels, n, 2, true, [=](const Tile& t, auto whole) {
        Tile16<G>::template join<decltype(whole)::value>(sample, src, t, dst);
      });
    });
  }
}

// Destinations: a channel for each vector that a kernel gives.
template <size_t K> struct Channels {
  using Lane = Qvx32f;
  Qvx32f* const* p;

  template <size_t N, class V> void put(const std::array<V, K>& v, size_t at) const {
#pragma GCC unroll 4
    for (size_t c = 0; c < K; ++c) store(v[c], TagOf<V>(), p[c] + at);
  }
  template <size_t N, class V> void put(const std::array<V, K>& v, size_t at, size_t n) const {
#pragma GCC unroll 4
    for (size_t c = 0; c < K; ++c) storeFirst(v[c], TagOf<V>(), p[c] + at, n);
  }
  template <size_t N> size_t misaligned() const { return destination(p[0]).template misaligned<N>(); }
};

// N frames of three or four channels.
template <size_t K> struct Frames {
  using Lane = Qvx16s;
  const Qvx16s* p;

  template <size_t N> auto get(size_t at) const { return channelsOf<N>(p + K * at); }
  template <size_t N> auto get(size_t at, size_t n) const {
    Qvx16s some[K * N] = {};
    std::memcpy(some, p + K * at, K * n * sizeof(Qvx16s));
    return channelsOf<N>(some);
  }

 private:
  template <size_t N> static auto channelsOf(const Qvx16s* from) {
    const Lanes<Qvx16s, N> d;
    std::array<Vec<decltype(d)>, K> v;
    if constexpr (K == 3) hn::LoadInterleaved3(d, from, v[0], v[1], v[2]);
    else hn::LoadInterleaved4(d, from, v[0], v[1], v[2], v[3]);
    return v;
  }
};

void split16(const Qvx16s* src, size_t channels, size_t n, Qvx32f* const* dst) {
  if (channels == 1) {
    loop(FullScaleOf16(), destination(dst[0]), n, source(src));
  } else if (channels == 2) {
    const auto both = [](auto v) {
      const auto left = FullScaleOf16()(hn::ShiftRight<16>(hn::ShiftLeft<16>(v)));
      return std::array{left, FullScaleOf16()(hn::ShiftRight<16>(v))};
    };
    loop(both, Channels<2>{dst}, n, source(reinterpret_cast<const Qvx32s*>(src)));
  } else if (channels == 3) {
    const auto each = [to = FullScaleOf16()](auto v) { return std::array{to(v[0]), to(v[1]), to(v[2])}; };
    loop(each, Channels<3>{dst}, n, Frames<3>{src});
  } else if (channels == 4) {
    const auto each = [to = FullScaleOf16()](auto v) { return std::array{to(v[0]), to(v[1]), to(v[2]), to(v[3])}; };
    loop(each, Channels<4>{dst}, n, Frames<4>{src});
  } else {
    byWidth16(channels, [=](auto width) {
      constexpr size_t G = decltype(width)::value;
      forEachTile<8, G, 2 * G>(channels, n, 2, false, [=](const Tile& t, auto whole) {
        Tile16<G>::template split<decltype(whole)::value>(src, t, dst);
      });
    });
  }
}

// ---- 24 bits

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

template <bool kWhole> void join24Tile(const Qvx32f* const* src, const Tile& t, Qvx8u* dst) {
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

template <bool kWhole> void split24Tile(const Qvx8u* src, const Tile& t, Qvx32f* const* dst) {
  Vec<Four32> v[4];
#pragma GCC unroll 4
  for (size_t i = 0; i < 4; ++i) {
    const Qvx8u* row = src + 3 * t.at(std::min(i, t.frames - 1));
    v[i] = unpacked24(kWhole || i < t.whole ? load(Row24(), row) : loadFirst(Row24(), row, 3 * t.channels));
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

// ---- arguments

template <class T> QvxStatus check(const void* interleaved, int channels, int frames, T* const* each) {
  if (isNull(interleaved)) return qvxStatNullPtr;
  if (channels < 1 || frames < 1) return qvxStatBadSize;
  if (isNull(each)) return qvxStatNullPtr;
  for (int c = 0; c < channels; ++c) {
    if (isNull(each[c])) return qvxStatNullPtr;
  }
  return qvxStatOk;
}

template <class Sample> QvxStatus join(const Qvx32f* const* src, int channels, int frames, Qvx16s* dst) {
  const QvxStatus status = check(dst, channels, frames, src);
  if (status == qvxStatOk) join16(Sample(), src, elements(channels), elements(frames), dst);
  return status;
}

}  // namespace

QvxStatus qvxsJoin_32f16s_D2L(const Qvx32f* const* src, int channels, int frames, Qvx16s* dst) {
  return join<Clipped16>(src, channels, frames, dst);
}

QvxStatus qvxsJoinScaled_32f16s_D2L(const Qvx32f* const* src, int channels, int frames, Qvx16s* dst) {
  return join<Scaled16>(src, channels, frames, dst);
}

QvxStatus qvxsJoinScaled_32f24s_D2L(const Qvx32f* const* src, int channels, int frames, Qvx8u* dst) {
  const QvxStatus status = check(dst, channels, frames, src);
  if (status != qvxStatOk) return status;
  const RoundingScope scope(Scaled24::kNeeds);
  if (channels == 1) {
    return loop([](auto quad) { return each(quad, Scaled24()); }, To24<Qvx32s>{dst}, elements(frames), Quads{src[0]});
  }
  if (channels == 2) {
    return loop([](auto quad) { return each(quad, Scaled24()); }, PackedTo{{dst}}, elements(frames),
                TwoChannels<const Qvx32f>{src});
  }
  forEachTile<4, 4, 16>(elements(channels), elements(frames), 3, true,
                        [=](const Tile& t, auto whole) { join24Tile<decltype(whole)::value>(src, t, dst); });
  return qvxStatOk;
}

QvxStatus qvxsSplitScaled_16s32f_D2L(const Qvx16s* src, Qvx32f* const* dst, int channels, int frames) {
  const QvxStatus status = check(src, channels, frames, dst);
  if (status == qvxStatOk) split16(src, elements(channels), elements(frames), dst);
  return status;
}

QvxStatus qvxsSplitScaled_24s32f_D2L(const Qvx8u* src, Qvx32f* const* dst, int channels, int frames) {
  const QvxStatus status = check(src, channels, frames, dst);
  if (status != qvxStatOk) return status;
  if (channels == 1) {
    return loop([](auto quad) { return each(quad, FullScaleOf24()); }, Quads{dst[0]}, elements(frames), From24<Qvx32s>{src});
  }
  if (channels == 2) {
    return loop([](auto quad) { return each(quad, FullScaleOf24()); }, TwoChannels<Qvx32f>{dst}, elements(frames),
                PackedFrom{{src}});
  }
  forEachTile<4, 4, 16>(elements(channels), elements(frames), 3, false,
                        [=](const Tile& t, auto whole) { split24Tile<decltype(whole)::value>(src, t, dst); });
  return qvxStatOk;
}
