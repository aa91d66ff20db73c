// Channels of floats joined to interleaved 16-bit integers, and split again.
//
// One channel is a conversion. Two are 32-bit lanes with a sample in each half; six and eight are three and four of such. Three
// and four are split by whole registers, in a quarter of the time of tiles. Any other number goes through transposed tiles: 8
// frames by 8 channels, by 4 up to four channels.
#include <array>

#include "convert/few_frames.h"
#include "frame/rounding.h"

using namespace qvx;

namespace {

struct Clipped16 {
  static constexpr Rounding kNeeds = kRoundsByInstruction ? Rounding::kCallers : Rounding::kNearest;
  template <class V> auto operator()(V x) const { return toIntNearest(hn::Max(hn::Min(x, same<V>(32767)), same<V>(-32768))); }
};

struct Scaled16 {
  static constexpr Rounding kNeeds = Rounding::kNearest;
  template <class V> auto operator()(V x) const { return toIntNearest(fullScale(x) * same<V>(32767.5F) + same<V>(-0.5F)); }
};

struct FullScaleOf16 {
  template <class V> auto operator()(V x) const {
    const auto v = convertLanes<float>(x);
    using F = std::remove_const_t<decltype(v)>;
    return v * same<F>(2.0F / 65535) + same<F>(1.0F / 65535);
  }
};

using Eight16 = Lanes<int16_t, 8>;

// As many of eight floats as one register holds.
constexpr size_t kAtOnce = std::min<size_t>(8, kVectorBytes / sizeof(Qvx32f));

// `count` of eight floats from p on, zeros after them.
template <class Sample> Vec<Eight16> load8(Sample sample, const Qvx32f* p, size_t count) {
  const Lanes<float, kAtOnce> d;
  if constexpr (kAtOnce == 8) {
    return hn::DemoteTo(Eight16(), sample(count == 8 ? load(d, p) : loadFirst(d, p, count)));
  } else {
    if (count == 8) return narrow<int16_t>(each(Pair<Vec<decltype(d)>>{load(d, p), load(d, p + 4)}, sample));
    const size_t low = std::min<size_t>(count, 4);
    return narrow<int16_t>(each(Pair<Vec<decltype(d)>>{loadFirst(d, p, low), loadFirst(d, p + low, count - low)}, sample));
  }
}

template <class V> void store8(V v, Qvx32f* p, size_t count) {
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

// G channels of 8 frames are G vectors, each of one channel or, transposed, of 8 / G rows.
template <size_t G> struct Tile16 {
  static constexpr int kToRows = std::countr_zero(G);
  using Row = Lanes<int16_t, G>;

  static Vec<Row> row(const Vec<Eight16> (&v)[G], size_t i) {
    if constexpr (G == 8) return v[i];
    else return i % 2 == 0 ? hn::LowerHalf(Row(), v[i / 2]) : hn::UpperHalf(Row(), v[i / 2]);
  }

  template <Rows kRows, class Sample> static void join(Sample sample, const Qvx32f* const* src, const Tile& t, Qvx16s* dst) {
    constexpr bool kWhole = kRows != Rows::kInParts;
    Vec<Eight16> v[G];
#pragma GCC unroll 8
    for (size_t c = 0; c < G; ++c) {
      v[c] = load8(sample, src[t.channel + std::min(c, t.channels - 1)] + t.frame, kWhole ? 8 : t.frames);
    }
    shuffle<kToRows>(v);
#pragma GCC unroll 8
    for (size_t i = 0; i < 8; ++i) {
      if (kWhole || i < t.whole) store(row(v, i), Row(), dst + t.at(i));
      else if (i < t.frames) storeFirst(row(v, i), Row(), dst + t.at(i), t.channels);
    }
  }

  template <Rows kRows> static void split(const Qvx16s* src, const Tile& t, Qvx32f* const* dst) {
    constexpr bool kWhole = kRows != Rows::kInParts;
    Vec<Row> rows[8];
#pragma GCC unroll 8
    for (size_t i = 0; i < 8; ++i) {
      if (kRows == Rows::kLastEarly && i == 7) rows[i] = loadRow(Row(), src + t.at(i), t.early);
      else if (kWhole || i < t.whole) rows[i] = load(Row(), src + t.at(i));
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
      if (c < t.channels) store8(v[c], dst[t.channel + c] + t.frame, kWhole ? 8 : t.frames);
    }
  }
};

// Calls f with the width of the tiles that suits a number of channels.
template <class F> void byWidth16(size_t channels, F f) {
  if (channels <= 4) f(std::integral_constant<size_t, 4>());
  else f(std::integral_constant<size_t, 8>());
}

// Two samples of 16 bits in each 32-bit lane.
struct ToPair {
  template <class V> auto operator()(V low, V high) const { return (low & same<V>(0xFFFF)) | hn::ShiftLeft<16>(high); }
};
struct OfPair {
  template <class V> auto operator()(V v) const {
    const auto low = FullScaleOf16()(hn::ShiftRight<16>(hn::ShiftLeft<16>(v)));
    return std::array{low, FullScaleOf16()(hn::ShiftRight<16>(v))};
  }
};

// Six and eight channels are three and four of pairs: they take 0.2 to 0.45 of the time of tiles in AVX-512, 0.4 to 0.75 in AVX2,
// 0.6 to 0.95 in SSSE3.
inline constexpr size_t kFewestPairs = 4;  // frames: 2 take 14 ns, of a tile 5

// N frames of channels of their own.
template <size_t K> struct Channels {
  using Lane = Qvx32f;
  const Qvx32f* const* p;

  template <size_t N> auto get(size_t at) const {
    return gathered([=](const Qvx32f* channel) { return load(Lanes<Lane, N>(), channel + at); });
  }
  template <size_t N> auto get(size_t at, size_t n) const {
    return gathered([=](const Qvx32f* channel) { return loadFirst(Lanes<Lane, N>(), channel + at, n); });
  }

 private:
  template <class Load> auto gathered(Load load) const {
    std::array<decltype(load(p[0])), K> v;
#pragma GCC unroll 8
    for (size_t c = 0; c < K; ++c) v[c] = load(p[c]);
    return v;
  }
};
// N frames of K pairs.
template <size_t K> struct ToFrames {
  using Lane = Qvx32s;
  Qvx32s* p;

  template <size_t N, class V> void put(const std::array<V, K>& v, size_t at) const { store(v, p + K * at); }
  template <size_t N, class V> void put(const std::array<V, K>& v, size_t at, size_t n) const {
    Qvx32s some[K * N];
    store(v, some);
    std::memcpy(p + K * at, some, K * n * sizeof(Qvx32s));
  }
  template <size_t N> size_t misaligned() const { return 0; }

 private:
  template <class V> static void store(const std::array<V, K>& v, Qvx32s* to) {
    if constexpr (K == 3) hn::StoreInterleaved3(v[0], v[1], v[2], TagOf<V>(), to);
    else hn::StoreInterleaved4(v[0], v[1], v[2], v[3], TagOf<V>(), to);
  }
};
template <size_t K, class Sample>
[[gnu::noinline]] void joinPairs(Sample sample, const Qvx32f* const* src, size_t n, Qvx16s* dst) {
  const auto pairs = [sample](auto v) {
    std::array<decltype(ToPair()(sample(v[0]), sample(v[0]))), K> all;
#pragma GCC unroll 4
    for (size_t i = 0; i < K; ++i) all[i] = ToPair()(sample(v[2 * i]), sample(v[2 * i + 1]));
    return all;
  };
  loop(pairs, ToFrames<K>{reinterpret_cast<Qvx32s*>(dst)}, n, Channels<2 * K>{src});
}

// Three channels or more. Apart from fewer, whose short calls would save registers that only tiles need.
template <class Sample>
[[gnu::noinline]] void joinTiles16(Sample sample, const Qvx32f* const* src, size_t channels, size_t n, Qvx16s* dst) {
  const RoundingScope scope(Sample::kNeeds);
  if (channels == 6 && n >= kFewestPairs) return joinPairs<3>(sample, src, n, dst);
  if (channels == 8 && n >= kFewestPairs) return joinPairs<4>(sample, src, n, dst);
  if (n < kFewFrames) {
    return joinFewFrames<2>(src, channels, n, dst, [sample](auto v) { return hn::DemoteTo(Lanes<int16_t, 4>(), sample(v)); });
  }
  byWidth16(channels, [=](auto width) {
    constexpr size_t G = decltype(width)::value;
    forEachTile<8, G, 2 * G, true>(
        channels, n, 2, [=](const Tile& t, auto rows) { Tile16<G>::template join<decltype(rows)::value>(sample, src, t, dst); });
  });
}

template <class Sample> void join16(Sample sample, const Qvx32f* const* src, size_t channels, size_t n, Qvx16s* dst) {
  if (channels > 2) return joinTiles16(sample, src, channels, n, dst);
  const RoundingScope scope(Sample::kNeeds);
  if (channels == 1) {
    loop([sample](auto pair) { return narrowInOrder<int16_t>(each(pair, sample)); }, destination(dst), n, InPairs{src[0]});
  } else {
    const auto both = [sample](auto left, auto right) { return ToPair()(sample(left), sample(right)); };
    loop(both, destination(reinterpret_cast<Qvx32s*>(dst)), n, source(src[0]), source(src[1]));
  }
}

// Destinations: a channel for each vector that a kernel gives.
template <size_t K> struct ToChannels {
  using Lane = Qvx32f;
  Qvx32f* const* p;

  template <size_t N, class V> void put(const std::array<V, K>& v, size_t at) const {
#pragma GCC unroll 8
    for (size_t c = 0; c < K; ++c) store(v[c], TagOf<V>(), p[c] + at);
  }
  template <size_t N, class V> void put(const std::array<V, K>& v, size_t at, size_t n) const {
#pragma GCC unroll 8
    for (size_t c = 0; c < K; ++c) storeFirst(v[c], TagOf<V>(), p[c] + at, n);
  }
  template <size_t N> size_t misaligned() const { return destination(p[0]).template misaligned<N>(); }
};

// N frames of three or four channels, or pairs of channels.
template <size_t K, class T = Qvx16s> struct Frames {
  using Lane = T;
  const T* p;

  template <size_t N> auto get(size_t at) const { return channelsOf<N>(p + K * at); }
  template <size_t N> auto get(size_t at, size_t n) const {
    T some[K * N] = {};
    std::memcpy(some, p + K * at, K * n * sizeof(T));
    return channelsOf<N>(some);
  }

 private:
  template <size_t N> static auto channelsOf(const T* from) {
    const Lanes<T, N> d;
    std::array<Vec<decltype(d)>, K> v;
    if constexpr (K == 3) hn::LoadInterleaved3(d, from, v[0], v[1], v[2]);
    else hn::LoadInterleaved4(d, from, v[0], v[1], v[2], v[3]);
    return v;
  }
};

[[gnu::noinline]] void splitTiles16(const Qvx16s* src, size_t channels, size_t n, Qvx32f* const* dst) {
  if (n < kFewFrames) {
    return splitFewFrames<2>(src, channels, n, dst, [](auto row) { return FullScaleOf16()(hn::LowerHalf(as<int16_t>(row))); });
  }
  forEachTile<8, 8, 16, false>(channels, n, 2,
                               [=](const Tile& t, auto rows) { Tile16<8>::template split<decltype(rows)::value>(src, t, dst); });
}

// 2 * K channels.
template <size_t K> [[gnu::noinline]] void splitPairs(const Qvx32s* src, size_t n, Qvx32f* const* dst) {
  const auto ofPairs = [](auto v) {
    std::array<decltype(FullScaleOf16()(v[0])), 2 * K> all;
#pragma GCC unroll 4
    for (size_t i = 0; i < K; ++i) {
      const auto two = OfPair()(v[i]);
      all[2 * i] = two[0];
      all[2 * i + 1] = two[1];
    }
    return all;
  };
  loop(ofPairs, ToChannels<2 * K>{dst}, n, Frames<K, Qvx32s>{src});
}

void split16(const Qvx16s* src, size_t channels, size_t n, Qvx32f* const* dst) {
  const auto* pairs = reinterpret_cast<const Qvx32s*>(src);
  if (channels == 1) {
    loop(FullScaleOf16(), destination(dst[0]), n, source(src));
  } else if (channels == 2) {
    loop(OfPair(), ToChannels<2>{dst}, n, source(pairs));
  } else if (channels == 3) {
    const auto fullScaled = [to = FullScaleOf16()](auto v) { return std::array{to(v[0]), to(v[1]), to(v[2])}; };
    loop(fullScaled, ToChannels<3>{dst}, n, Frames<3>{src});
  } else if (channels == 4) {
    const auto fullScaled = [to = FullScaleOf16()](auto v) { return std::array{to(v[0]), to(v[1]), to(v[2]), to(v[3])}; };
    loop(fullScaled, ToChannels<4>{dst}, n, Frames<4>{src});
  } else if (channels == 6 && n >= kFewestPairs) {
    splitPairs<3>(pairs, n, dst);
  } else if (channels == 8 && n >= kFewestPairs) {
    splitPairs<4>(pairs, n, dst);
  } else {
    splitTiles16(src, channels, n, dst);
  }
}

template <class Sample> QvxStatus join(const Qvx32f* const* src, int channels, int frames, Qvx16s* dst) {
  const QvxStatus status = checkChannels(dst, channels, frames, src);
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

QvxStatus qvxsSplitScaled_16s32f_D2L(const Qvx16s* src, Qvx32f* const* dst, int channels, int frames) {
  const QvxStatus status = checkChannels(src, channels, frames, dst);
  if (status == qvxStatOk) split16(src, elements(channels), elements(frames), dst);
  return status;
}
