// Transforms too long for the caches, in place, with a tile of working memory.
//
// N = n * m * n with n = 256. Point (a, b, c) is at (a * m + b) * n + c. Transforms down a, then down b, then along c leave
// result ka + n * (kb + m * kc) at (ka, kb, kc); swapping ka and kc puts it in order. So each point goes through memory three
// times: down a by tiles of neighbouring columns, then block by block of m * n points, then in the swap, which follows as soon as
// the blocks it needs are done.
//
// Two threads take half of the columns each; then half of the blocks, and of the swap what these need; then half of what is left
// of the swap.
#pragma once

#include <atomic>

#include "frame/stream.h"
#include "frame/team.h"
#include "transform/interleaved_passes.h"
#include "transform/plan.h"

namespace qvx::transform {

inline constexpr size_t kBlockPoints = 256;

// The points of the longest tile: 128 KiB, the working memory reported for the longest transforms.
template <class T> inline constexpr size_t kMostOfTile = (size_t{128} << 10) / (2 * sizeof(T));

// step(N) for the lanes that go down the columns of a block of `rows`. From 2^27 points on a tile has room for 4 or 8 columns.
template <size_t L, class T, class Step> QVX_INLINE void withBlockLanes(size_t rows, Step step) {
  if constexpr (L > 4) {
    if (rows > kMostOfTile<T> / L) return step(std::integral_constant<size_t, 4>());
  }
  step(std::integral_constant<size_t, L>());
}

struct Range {
  size_t from;
  size_t to;
};

// The twiddles of transforms down `rows` rows of `columns` points: of their passes, and those of row k of column c,
// exp(-2 pi i k c / (rows * columns)), as products of one that depends on k and the column within its tile, and one on k and the
// tile.
template <class T> struct ColumnTwiddles {
  const T* levels;
  const T* lanes;
  const T* tiles;
};

template <class T> struct BlockedPlan {
  ColumnTwiddles<T> outer;
  ColumnTwiddles<T> inner;
};

// Where a vector of points is two cache lines, transforms out of place that the last-level cache still holds take two passes, and
// no swap (transposed.h).
template <size_t L, class T> inline constexpr bool kTransposes = sizeof(T) == 8 && L == 8;
inline constexpr size_t kMostTransposed = size_t{1} << 18;

// The levels of transforms down columns: where either way may be taken, those of the rows, whose results are the same to the bit.
template <size_t L, class T> constexpr Levels columnLevels(size_t rows) {
  if (!kTransposes<L, T> || rows != kBlockPoints) return levelsFor(rows);
  const Levels rest = levelsFor(rows / L);
  Levels levels{static_cast<uint8_t>(rest.count + 1), {L}};
  std::copy_n(rest.radix, rest.count, levels.radix + 1);
  return levels;
}

template <size_t L, class LaneOrder, class T>
T* writeColumnTwiddles(ColumnTwiddles<T>& twiddles, size_t rows, size_t columns, T* out) {
  constexpr size_t C = kRowRadix<L>;
  const size_t n = rows * columns;
  twiddles.levels = out;
  T* lanes = alignedUp(writeLevelTwiddles(columnLevels<L, T>(rows), rows, out), Carver::kLine);
  twiddles.lanes = lanes;
  writeTwiddles(
      n, rows * C, [](size_t i) { return i / C * (i % C / L * L + LaneOrder::template element<L>(i % L)); },
      intoGroups<L>(lanes));
  T* tiles = lanes + rows * C * 2;
  twiddles.tiles = tiles;
  writeTwiddles(
      n, n / C, [rows](size_t i) { return i % rows * (i / rows) * C; }, intoPairs(tiles));
  return alignedUp(tiles + n / C * 2, Carver::kLine);
}

// The twiddle of result `at` of a tile, its row and its column within the tile.
template <size_t L, class T> QVX_INLINE auto twiddleAt(const T* lanes, const T* tile, size_t at) {
  const size_t row = at / kRowRadix<L>;
  return product(group<L>(lanes + 2 * at), tile[2 * row], tile[2 * row + 1]);
}

// The row that holds a result after all levels in place.
class DigitsReversed {
 public:
  explicit DigitsReversed(const Levels& levels) : levels_(levels) {}
  size_t operator()(size_t row) const {
    size_t reversed = 0;
    for (size_t i = 0; i < levels_.count; ++i) {
      const size_t radix = levels_.radix[i];
      reversed = reversed * radix + row % radix;
      row /= radix;
    }
    return reversed;
  }

 private:
  Levels levels_;
};

// The columns of a tile, side by side in the work array.
template <size_t L, class T> struct ColumnTile {
  T* y;
  size_t rows;
  size_t wide;

  T* at(size_t row, size_t column) const { return y + (row * wide + column) * 2; }
};

// kAhead: prefetch the rows of the next step. The processor's prefetcher follows none of 4 or 8 streams a power of two apart
// (2^20 complex doubles take 0.86 to 0.95 of the whole time); where the caches hold everything, 2^18 take 1.07.

// The first level, from the caller's rows.
template <bool kAhead, size_t R, size_t L, class T, class Src>
[[gnu::noinline, gnu::flatten]] void loadColumns(Src src, size_t columns, ColumnTile<L, T> tile, const T* twiddles) {
  const size_t part = tile.rows / R;
  for (size_t q = 0; q < part; ++q, twiddles += (R - 1) * 2) {
    for (size_t at = 0; at < tile.wide; at += L) {
      transformPoints<R>(
          [&](auto m) {
            if constexpr (kAhead) src.template prefetch<L>((q + 1 + m * part) * columns + at);
            return src.template get<L>((q + m * part) * columns + at);
          },
          [&](auto k, auto z) {
            T* const to = tile.at(q + k * part, at);
            putGroup<L>(timesTwiddle<k>(z, twiddles), to);
          });
    }
  }
}

// The levels between the first and the last, in place.
template <size_t L, class T> void middleLevels(const Levels& levels, ColumnTile<L, T> tile, const T* twiddles, size_t level) {
  if (level + 1 >= levels.count) return;
  const size_t radix = levels.radix[level];
  const size_t part = tile.rows / radix;
  withRadix(radix, [=](auto R) { innerPass<R, L>(tile.y, part, twiddles, 0, part, tile.wide / L); });
  for (size_t a = 0; level + 2 < levels.count && a < radix; ++a) {
    middleLevels<L>(levels, ColumnTile<L, T>{tile.at(a * part, 0), part, tile.wide}, twiddles + part * (radix - 1) * 2,
                    level + 1);
  }
}

// The last level, for rows k = first, first + step .. and the rows that share a butterfly with them; multiplies the results by
// their twiddles and stores them in natural order.
template <bool kAhead, size_t R, size_t L, class T, class Dst>
[[gnu::noinline, gnu::flatten]] void storeColumns(ColumnTile<L, T> tile, const DigitsReversed& place, size_t first, size_t step,
                                                  const T* lanes, const T* tiles, Dst dst, size_t columns) {
  constexpr size_t C = kRowRadix<L>;
  const size_t part = tile.rows / R;
  for (size_t k = first; k < part; k += step) {
    const size_t from = place(k);
    for (size_t at = 0; at < tile.wide; at += L) {
      transformPoints<R>(
          [&](auto m) {
            if constexpr (kAhead) dst.template prefetch<L>((k + step + m * part) * columns + at);
            return group<L>(tile.at(from + m, at));
          },
          [&](auto m, auto z) {
            const size_t row = k + m * part;
            const auto twiddle = twiddleAt<L>(lanes, tiles + at / C * 2 * tile.rows, row * C + at % C);
            dst.template put<L>(product(z, twiddle), row * columns + at);
          });
    }
  }
}

// The first radix or the last. The pass that looks ahead has kBlockPoints rows, so there is one, and one large kernel to compile.
template <bool kAhead, bool kLast, size_t L, class T, class Step>
QVX_INLINE void withColumnRadix(const Levels& levels, Step step) {
  constexpr Levels kBlock = columnLevels<L, T>(kBlockPoints);
  if constexpr (kAhead) step(std::integral_constant<size_t, kBlock.radix[kLast ? kBlock.count - 1 : 0]>());
  else withRadix(levels.radix[kLast ? levels.count - 1 : 0], step);
}

// Transforms down the rows, each column in its place. Tiles of them go through the work array, so that the caller's memory is
// read and written in runs of 512 bytes: rows a power of two apart leave the caches no room for more, and runs of 128 bytes are
// written at 15 GB/s where these are at 50. The results of the first level for a tile go through the other levels part by part,
// in the first-level cache.
template <bool kAhead, size_t L, class T, class Src, class Dst>
[[gnu::noinline]] void downColumns(Src src, Dst dst, size_t rows, size_t columns, Range range, size_t wide,
                                   const ColumnTwiddles<T>& twiddles, T* y) {
  constexpr size_t C = kRowRadix<L>;
  const Levels levels = columnLevels<L, T>(rows);
  const DigitsReversed place(levels);
  const ColumnTile<L, T> tile{y, rows, wide};
  const size_t parts = levels.radix[0];
  const size_t part = rows / parts;
  for (size_t c = range.from; c < range.to; c += wide) {
    withColumnRadix<kAhead, false, L, T>(levels,
                                         [=](auto R) { loadColumns<kAhead, R>(src.from(c), columns, tile, twiddles.levels); });
    for (size_t a = 0; a < parts; ++a) {
      middleLevels<L>(levels, ColumnTile<L, T>{tile.at(a * part, 0), part, wide}, twiddles.levels + part * (parts - 1) * 2, 1);
      withColumnRadix<kAhead, true, L, T>(levels, [=, &place](auto R) {
        storeColumns<kAhead, R>(tile, place, a, parts, twiddles.lanes, twiddles.tiles + c / C * 2 * rows, dst.from(c), columns);
      });
    }
  }
}

// The same for as many rows as go through registers at once.
template <size_t R, size_t L, class T, class Dst>
[[gnu::noinline, gnu::flatten]] void downShortColumns(Dst dst, size_t columns, const ColumnTwiddles<T>& twiddles) {
  constexpr size_t C = kRowRadix<L>;
  using V = Vec<Lanes<T, L>>;
  for (size_t c = 0; c < columns; c += L) {
    const T* tile = twiddles.tiles + c / C * 2 * R;
    Complex<V> x[R];
    unrolled<R>([&](auto m) { x[m] = dst.template get<L>(m * columns + c); });
    dft(x);
    unrolled<R>(
        [&](auto m) { dst.template put<L>(product(x[m], twiddleAt<L>(twiddles.lanes, tile, m * C + c % C)), m * columns + c); });
  }
}

// L rows of L points at `from`, transposed, to rows of the work array `apart` points apart.
template <size_t L, class T, class Points> QVX_INLINE void takeTransposed(Points from, size_t stride, T* y, size_t apart) {
  using V = Vec<Lanes<T, L>>;
  constexpr auto element = &Points::template element<L>;
  V re[L];
  V im[L];
  unrolled<L>([&](auto i) {
    const Complex<V> z = from.template get<L>(element(i) * stride);
    re[i] = z.re;
    im[i] = z.im;
  });
  transpose(re);
  transpose(im);
  unrolled<L>([&](auto i) { putGroup<L>(Complex<V>{re[i], im[i]}, y + element(i) * apart * 2); });
}

// Exchanges squares of 512-byte runs on both sides of the diagonal.
template <class T> inline constexpr size_t kSquare = 512 / (2 * sizeof(T));

template <size_t L, class T, class Points> [[gnu::noinline, gnu::flatten]] void takeSquare(Points from, size_t stride, T* y) {
  constexpr size_t kSide = kSquare<T>;
  for (size_t row = 0; row < kSide; row += L) {
    for (size_t column = 0; column < kSide; column += L) {
      takeTransposed<L>(from.from(row * stride + column), stride, y + (column * kSide + row) * 2, kSide);
    }
  }
}
template <size_t L, class T, class Points> [[gnu::noinline, gnu::flatten]] void putSquare(const T* y, Points to, size_t stride) {
  constexpr size_t kSide = kSquare<T>;
  for (size_t row = 0; row < kSide; ++row) {
    for (size_t column = 0; column < kSide; column += L) {
      to.template put<L>(group<L>(y + (row * kSide + column) * 2), row * stride + column);
    }
  }
}

// The squares of rows i, i + 1 .. and of these columns, none of them past the rows.
template <size_t L, class T, class Points> void swapSquares(Points points, size_t i, Range columns, size_t stride, T* y) {
  constexpr size_t kSide = kSquare<T>;
  T* const other = y + 2 * kSide * kSide;
  for (size_t j = columns.from; j < columns.to; j += kSide) {
    const Points left = points.from(i * stride + j);
    const Points upper = points.from(j * stride + i);
    takeSquare<L>(left, stride, y);
    if (i != j) takeSquare<L>(upper, stride, other);
    putSquare<L>(y, upper, stride);
    if (i != j) putSquare<L>(other, left, stride);
  }
}

// Whether source and destination together take no more than half of the cache.
inline bool isCached(size_t bytes) { return !isStreamed(2 * bytes); }

// The first pass. If source and destination exceed the caches, what it writes is evicted before it is read again: it is then
// stored to memory at once (0.92 of the whole transform's time for 2^21 doubles).
template <size_t L, class T, bool kSwapped, class... Rest>
void firstColumns(Interleaved<const T, kSwapped> src, Interleaved<T, kSwapped> dst, size_t rows, size_t columns, Rest... rest) {
  const size_t bytes = 2 * rows * columns * 2 * sizeof(T);
  if (isCached(bytes)) return downColumns<false, L>(src, dst, rows, columns, rest...);
  const bool isAligned = reinterpret_cast<uintptr_t>(dst.p) % kVectorBytes == 0;
  if (src.p == dst.p || !isAligned || !isStreamed(bytes)) return downColumns<true, L>(src, dst, rows, columns, rest...);
  downColumns<true, L>(src, Streamed<T, kSwapped>{dst.p}, rows, columns, rest...);
  storeFence();
}
template <size_t L, class T, class... Rest>
void firstColumns(Split<const T> src, Split<T> dst, size_t rows, size_t columns, Rest... rest) {
  if (isCached(2 * rows * columns * 2 * sizeof(T))) return downColumns<false, L>(src, dst, rows, columns, rest...);
  downColumns<true, L>(src, dst, rows, columns, rest...);
}

// n points in place.
template <size_t L, class T, class Points, class Scale>
QVX_INLINE void rowTransform(const Plan<T>& plan, Points row, T* y, Scale scale) {
  if constexpr (L * L == kBlockPoints) foldedTransform<kBlockPoints, L>(row.asSource(), row, plan.rowTwiddles, scale);
  else if constexpr (kServesInterleaved<Points>) interleavedPasses(kBlockPoints, plan, row.asSource(), row, y, scale);
  else runPasses<L>(plan, row.asSource(), row, y, scale);
}

// Working memory of `points` for each part of a divided call. The first part always runs on the caller's thread, in the caller's
// memory. A later part finds that free again, or runs on another thread, whose stack has room for a tile.
template <class T, class Step> [[gnu::noinline]] void onOwnTile(size_t points, Step step) {
  alignas(Carver::kLine) T own[2 * kMostOfTile<T>];
  step(own, std::min(points, kMostOfTile<T>));
}

// step(range, y, points) for all of 0 to count, or for two halves.
template <class T, class Step> void dividedWithTiles(size_t parts, size_t count, T* y, size_t points, Step step) {
  if (parts == 1) return step(Range{0, count}, y, points);
  std::atomic<bool> isFree{false};
  inParts(static_cast<int>(parts), [&](size_t part) {
    const Range range{count * part / parts, count * (part + 1) / parts};
    if (part > 0 && !isFree.load()) {
      onOwnTile<T>(points, [&](T* own, size_t room) { step(range, own, room); });
    } else {
      step(range, y, points);
      isFree.store(true);
    }
    return qvxStatOk;
  });
}

// The blocks of these ka; afterwards the squares of their rows and columns are swapped.
template <size_t L, class Dst, class T>
[[gnu::noinline]] void transformBlocks(const Plan<T>& rowPlan, const ColumnTwiddles<T>& inner, size_t block, size_t tile, Dst dst,
                                       Range range, T* y, ScaledBy<T> scale) {
  constexpr size_t n = kBlockPoints;
  const size_t m = block / n;
  for (size_t ka = range.from; ka < range.to; ++ka) {
    const Dst here = dst.from(ka * block);
    if (m > kWidestRadix) {
      withBlockLanes<L, T>(m, [&](auto N) {
        downColumns<false, N>(here.asSource(), here, m, n, {0, n}, std::min(tile / m, n), inner, y);
      });
    } else if (m > 1) {
      withRadix(m, [&](auto R) { downShortColumns<R, L>(here, n, inner); });
    }
    for (size_t kb = 0; kb < m; ++kb) {
      const Dst row = here.from(kb * n);
      rowTransform<L>(rowPlan, row, y, scale);
    }
    const size_t done = ka + 1;
    if (done % kSquare<T> != 0) continue;
    for (size_t kb = 0; kb < m; ++kb) {
      swapSquares<L>(dst.from(kb * n), done - kSquare<T>, {range.from, done}, block, y);
    }
  }
}

// tile: the points of working memory.
template <size_t L, class Src, class Dst, class T>
void blockedTransform(size_t threads, const Plan<T>& rowPlan, const BlockedPlan<T>& plan, size_t points, size_t tile, Src src,
                      Dst dst, T* y, ScaledBy<T> scale) {
  constexpr size_t n = kBlockPoints;
  const size_t block = points / n;
  dividedWithTiles(threads, block, y, tile, [=, &plan](Range columns, T* own, size_t room) {
    firstColumns<L>(src, dst, n, block, columns, std::min({room / n, block / 2, kSquare<T>}), plan.outer, own);
  });
  dividedWithTiles(threads, n, y, tile, [=, &rowPlan, &plan](Range blocks, T* own, size_t room) {
    transformBlocks<L>(rowPlan, plan.inner, block, room, dst, blocks, own, scale);
  });
  if (threads == 1) return;
  dividedWithTiles(threads, n / 2 / kSquare<T>, y, tile, [=](Range squares, T* own, size_t) {
    for (size_t i = squares.from; i < squares.to; ++i) {
      for (size_t kb = 0; kb < block / n; ++kb) {
        swapSquares<L>(dst.from(kb * n), n / 2 + i * kSquare<T>, {0, n / 2}, block, own);
      }
    }
  });
}

}  // namespace qvx::transform
