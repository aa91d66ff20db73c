// The sums of the wavelet filter bank over windows: from one stream to two of half its rate, and from two to one.
#pragma once

#include "frame/complex.h"
#include "frame/unroll.h"
#include "wavelet/bank.h"

namespace qvx::wavelet {

using V = Vec<Lanes<Qvx32f, kVectorBytes / sizeof(Qvx32f)>>;
inline constexpr size_t N = kLanesOf<V>;
inline constexpr size_t kTile = 4;  // vectors of results that stay in registers while the taps pass

// How far vectors that reach past the last result read, in the window only.
inline constexpr int64_t kPast = 2 * N;

// ---- forward

// evenAndOdd() keeps to blocks of 128 bits; this puts the lanes of its results in order.
inline V inOrder(V v) {
  [[maybe_unused]] const TagOf<V> d;
#if QVXS_AVX512
  alignas(64) static constexpr int32_t kOrder[16] = {0, 1, 4, 5, 8, 9, 12, 13, 2, 3, 6, 7, 10, 11, 14, 15};
  return hn::TableLookupLanes(v, hn::SetTableIndices(d, kOrder));
#elif QVXS_AVX2
  alignas(32) static constexpr int32_t kOrder[8] = {0, 1, 4, 5, 2, 3, 6, 7};
  return hn::TableLookupLanes(v, hn::SetTableIndices(d, kOrder));
#else
  return v;
#endif
}

// Where the vectors of a tile begin. The last ones of a call overlap, so that all are whole where at least one is.
template <size_t kVectors> struct Tile {
  size_t at[kVectors];
  Tile(size_t from, size_t count) {
    unrolled<kVectors>([&](auto i) { at[i] = count < N ? 0 : std::min(from + N * i, count - N); });
  }
};

// with(places) for tiles that cover `count` results.
template <class With> [[gnu::always_inline]] inline void tiled(size_t count, With with) {
  size_t at = 0;
  for (; at + 2 * N < count; at += kTile * N) with(Tile<kTile>(at, count));
  if (at + N < count) with(Tile<2>(at, count));
  else if (at < count) with(Tile<1>(at, count));
}

// kVectors vectors of results from the window at x on, for bands whose filters are alike in length and offset. Each sum is in the
// order of the window, so that a result does not depend on the cut of the stream, nor on the bands that are computed with it.
template <size_t kVectors, size_t kBands>
[[gnu::always_inline]] inline void split(const SplittingBand& shape, const Qvx32f* const (&taps)[kBands], const Qvx32f* x,
                                         const Tile<kVectors>& tile, V (&sum)[kBands][kVectors]) {
  const TagOf<V> d;
  unrolled<kBands * kVectors>([&](auto i) { sum[i / kVectors][i % kVectors] = hn::Zero(d); });
  const auto add = [&](int p, auto withEven) __attribute__((always_inline)) {
    Complex<V> v[kVectors];
    unrolled<kVectors>([&](auto i) {
      const Qvx32f* at = x + 2 * p + 2 * tile.at[i];
      v[i] = evenAndOdd(load(d, at), load(d, at + N));
    });
    unrolled<kBands>([&](auto b) {
      if constexpr (withEven) {
        const V even = same<V>(taps[b][2 * p]);
        unrolled<kVectors>([&](auto i) { sum[b][i] = hn::MulAdd(even, v[i].re, sum[b][i]); });
      }
      const V odd = same<V>(taps[b][2 * p + 1]);
      unrolled<kVectors>([&](auto i) { sum[b][i] = hn::MulAdd(odd, v[i].im, sum[b][i]); });
    });
  };
  if (shape.isOdd) add(0, std::false_type());
  for (int p = shape.isOdd ? 1 : 0; p < shape.pairs; ++p) add(p, std::true_type());
  unrolled<kBands * kVectors>([&](auto i) { sum[i / kVectors][i % kVectors] = inOrder(sum[i / kVectors][i % kVectors]); });
}

// `count` results. Less than a vector reads past its windows.
template <size_t kBands>
[[gnu::flatten]] void splitMany(const SplittingBand& shape, const Qvx32f* const (&taps)[kBands], const Qvx32f* x, size_t count,
                                Qvx32f* const (&dst)[kBands]) {
  const TagOf<V> d;
  tiled(count, [&]<size_t kVectors>(const Tile<kVectors>& tile) {
    V sum[kBands][kVectors];
    split(shape, taps, x, tile, sum);
    unrolled<kBands * kVectors>([&](auto i) {
      const V v = sum[i / kVectors][i % kVectors];
      Qvx32f* to = dst[i / kVectors] + tile.at[i % kVectors];
      if (kVectors == 1 && count < N) storeFirst(v, d, to, count);
      else store(v, d, to);
    });
  });
}

// ---- inverse

// kVectors vectors of first and of second results.
template <size_t kVectors>
[[gnu::always_inline]] inline void addBand(const JoiningBand& band, const Qvx32f* x, const Tile<kVectors>& tile,
                                           Pair<V> (&sum)[kVectors]) {
  const TagOf<V> d;
  const auto add = [&](int p, auto toFirst, auto toSecond) __attribute__((always_inline)) {
    const V first = same<V>(band.taps[2 * p]);
    const V second = same<V>(band.taps[2 * p + 1]);
    unrolled<kVectors>([&](auto i) {
      const V v = load(d, x + p + tile.at[i]);
      if constexpr (toFirst) sum[i].lo = hn::MulAdd(first, v, sum[i].lo);
      if constexpr (toSecond) sum[i].hi = hn::MulAdd(second, v, sum[i].hi);
    });
  };
  constexpr std::true_type kYes;
  constexpr std::false_type kNo;
  const int end = band.pairs - (band.newestInSecondOnly ? 1 : 0);
  int p = 0;
  if (band.oldestInFirstOnly) add(p++, kYes, kNo);
  for (; p < end; ++p) add(p, kYes, kYes);
  if (band.newestInSecondOnly) add(end, kNo, kYes);
}

// `count` pairs of results. Less than a vector reads past its windows.
[[gnu::flatten]] inline void joinMany(const Bank<JoiningBand>& bank, const Qvx32f* low, const Qvx32f* high, size_t count,
                                      Qvx32f* dst) {
  const TagOf<V> d;
  const InterleavedDestination<Qvx32f> to{dst};
  tiled(count, [&]<size_t kVectors>(const Tile<kVectors>& tile) {
    Pair<V> sum[kVectors];
    unrolled<kVectors>([&](auto i) { sum[i] = {hn::Zero(d), hn::Zero(d)}; });
    addBand(*bank.low, low, tile, sum);
    addBand(*bank.high, high, tile, sum);
    unrolled<kVectors>([&](auto i) {
      if (kVectors == 1 && count < N) to.put<N>(sum[i], 0, count);
      else to.put<N>(sum[i], tile.at[i]);
    });
  });
}

}  // namespace qvx::wavelet
