// Transforms of 2^15 and 2^16 points in two passes over the second-level cache, which then holds source, destination and little
// else: work array and twiddles of passes one after another would overflow it.
//
// Point (a, c) of n / 256 rows of 256 points becomes, by transforms down a, number ka of row c, as tiles of columns are
// transposed into rows in the first-level cache (transposed.h). Transforms down c then leave result ka + n / 256 * kc at (kc,
// ka). Either transform is of two levels, the last of which has radix 16. Of the time of passes, 2^15 complex doubles take 0.88
// out of place and 1.00 in place, 2^16 floats 0.89 and 0.95; of that of blocks and three levels, 2^16 doubles 0.96 and 0.90.
#pragma once

#include <cstring>

#include "frame/processor.h"
#include "transform/transposed.h"

namespace qvx::transform {

inline constexpr size_t kTileRows = 256;
inline constexpr size_t kLastRadix = 16;

// Whether n points go this way: with registers for 16 of them. 2^15 floats take 1.02 of the time of passes, 2^13 doubles 0.99.
template <class T, class Points> inline constexpr bool kHasTiles = kHasMasks&& kIsInterleaved<Points>;
template <class T> bool isTiled(size_t n) {
  constexpr size_t kMost = size_t{1} << 16;
  return sizeof(T) == 4 ? n == kMost : n == kMost / 2 || (n == kMost && kTilesFillFarCache);
}

// The twiddles of number ka = L * v + l of row c: exp(-2 pi i c l / n) in groups, one for each c, and exp(-2 pi i c L v / n) for
// each c and each v. Of outer twiddles they are lanes and tiles.
template <size_t L, class LaneOrder, class T> T* writeTiledTwiddles(BlockedPlan<T>& plan, size_t n, T* out) {
  constexpr size_t R = kLastRadix;
  const size_t rows = n / kTileRows;
  const size_t vectors = rows / L;
  plan.outer.levels = out;
  out = writeLevelTwiddles(Levels{2, {static_cast<uint8_t>(rows / R), R}}, rows, out);
  plan.inner.levels = out;
  T* const lanes = alignedUp(writeLevelTwiddles(Levels{2, {kTileRows / R, R}}, kTileRows, out), Carver::kLine);
  plan.outer.lanes = lanes;
  writeTwiddles(
      n, kTileRows * L, [](size_t i) { return i / L * LaneOrder::template element<L>(i % L); }, intoGroups<L>(lanes));
  T* const tiles = lanes + kTileRows * L * 2;
  plan.outer.tiles = tiles;
  writeTwiddles(
      n, kTileRows * vectors, [=](size_t i) { return i / vectors * (i % vectors * L); }, intoPairs(tiles));
  return tiles + kTileRows * vectors * 2;
}

// The last level of a row of A * kLastRadix points, in place, and the twiddles of row c.
template <size_t A, size_t L, class T>
[[gnu::noinline, gnu::flatten]] void lastAlongRow(T* row, const ColumnTwiddles<T>& twiddles, size_t c) {
  constexpr size_t kWide = A / L;
  constexpr size_t kVectors = A * kLastRadix / L;
  const auto lanes = group<L>(twiddles.lanes + 2 * c * L);
  const T* const tile = twiddles.tiles + 2 * c * kVectors;
  for (size_t w = 0; w < kWide; ++w) {
    transformPoints<kLastRadix>([&](auto m) { return group<L>(row + (m * kWide + w) * 2 * L); },
                                [&](auto k, auto z) {
                                  const size_t v = k * kWide + w;
                                  putGroup<L>(product(z, product(lanes, tile[2 * v], tile[2 * v + 1])), row + v * 2 * L);
                                });
  }
}

// The last level of a tile. Its last results, those of the last rows, go to `last`.
template <size_t L, class T, class Dst, class Scale>
[[gnu::noinline, gnu::flatten]] void lastOfTile(const T* y, Dst dst, Dst last, size_t columns, Scale scale) {
  constexpr size_t R = kLastRadix;
  constexpr size_t kStep = kTileRows / R;
  for (size_t b = 0; b < kStep; ++b) {
    transformPoints<R>([&](auto m) { return group<L>(y + (b * R + m) * 2 * L); },
                       [&](auto k, auto z) {
                         const Dst to = k + 1 == R ? last : dst;
                         to.template put<L>(scale(z), (b + k * kStep) * columns);
                       });
  }
}

// Between the passes, points are in the destination, and a tile is in the work array. In place, or where vectors of the
// destination would straddle cache lines, it is the other way round: the last rows, where the tile lies, are the last to get
// their results.
template <size_t A, size_t L, class Src, class Dst, class T, class Scale>
void tiledTransform(size_t threads, const BlockedPlan<T>& plan, Src src, Dst dst, T* y, Scale scale) {
  constexpr size_t rows = A * kLastRadix;
  constexpr size_t kLastRows = kTileRows / kLastRadix * rows;
  constexpr size_t kTile = kTileRows * L;
  static_assert(kTile <= kLastRows);
  T* const last = dst.p + 2 * (rows * kTileRows - kLastRows);
  const bool isInDestination = src.p != dst.p && reinterpret_cast<uintptr_t>(dst.p) % kVectorBytes == 0;
  T* const points = isInDestination ? dst.p : y;
  dividedWithTiles(threads, kTileRows, y, kTile, [=, &plan](Range range, T*, size_t) {
    for (size_t c = range.from; c < range.to; c += L) {
      T* const tile = points + 2 * c * rows;
      transposeColumns<A, L>(src.from(c), kTileRows, kLastRadix, tile, rows, plan.outer.levels);
      for (size_t i = 0; i < L; ++i) lastAlongRow<A, L>(tile + 2 * i * rows, plan.outer, c + i);
    }
  });
  dividedWithTiles(threads, rows, isInDestination ? y : last, kTile, [=, &plan](Range range, T* own, size_t) {
    for (size_t k = range.from; k < range.to; k += L) {
      loadColumns<false, kTileRows / kLastRadix>(Groups<T>{points + 2 * k}, rows, ColumnTile<L, T>{own, kTileRows, L},
                                                 plan.inner.levels);
      lastOfTile<L>(own, dst.from(k), Dst{points}.from(k), rows, scale);
    }
  });
  if (!isInDestination) std::memcpy(last, y + (last - dst.p), 2 * kLastRows * sizeof(T));
}
template <size_t L, class Src, class Dst, class T, class Scale>
void tiledTransform(size_t threads, const BlockedPlan<T>& plan, size_t n, Src src, Dst dst, T* y, Scale scale) {
  if constexpr (L == 8) {
    if (n == 8 * kLastRadix * kTileRows) return tiledTransform<8, L>(threads, plan, src, dst, y, scale);
  }
  tiledTransform<16, L>(threads, plan, src, dst, y, scale);
}

}  // namespace qvx::transform
