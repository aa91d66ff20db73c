// Transforms of any factors, too long for the caches: N = A * B points, in two dimensions.
//
// Point a * B + b takes part in a transform of A points down column b, whose result ka is multiplied by a twiddle, and then in
// one of B points whose result kb is that of ka + A * kb. A few columns at a time go through the passes of a dimension in two
// tiles of working memory, in whole vectors of neighbours. The columns of the first dimension leave their tile by transposition:
// column b becomes row b of the destination, of A points; so the second one goes down columns, too, and its results stay where
// its points were, in natural order. Each point goes twice through memory, and between the passes it is in the destination:
// source, destination and two tiles are all that the caches have to hold.
//
// Out of order the first dimension stays where it is, the second goes along rows, and results remain where they are made: with
// no memory but the destination and two tiles, even in place.
#pragma once

#include "frame/team.h"
#include "transform/mixed_plan.h"
#include "transform/small_interleaved.h"

namespace qvx::transform {

template <class T> struct MixedBlocks {
  MixedPlan<T> columns;  // of A points
  MixedPlan<T> rows;     // of B points
  // exp(-2 pi i ka b / N) as a product: lane i of vector ka of `lanes` has that of ka and b = i; `begins` has for each b at which
  // a vector begins the A numbers of all ka.
  const T* lanes;
  const T* begins;
};

// The columns of a tile, and so the points of the runs that memory is read and written in: 128 bytes, so that a tile stays in the
// near caches (100000 doubles take 0.87 of the time that runs of 256 bytes take); in vectors of many pages 256, for half as many
// visits to each page (10^6 doubles 0.9).
template <class T> size_t columnsOfTile(size_t n) {
  constexpr size_t kManyPages = size_t{4} << 20;
  const size_t points = n * 2 * sizeof(T) <= kManyPages ? 64 / sizeof(T) : 128 / sizeof(T);
  return std::max(points, kWidest<T>);
}
template <class T> size_t columnsOfTile(const MixedBlocks<T>& blocks) {
  return columnsOfTile<T>(size_t{blocks.columns.n} * blocks.rows.n);
}

template <class T> size_t vectorsOfRow(size_t count) { return (count + kWidest<T> - 1) / kWidest<T>; }

// False where n has no two fitting factors: in place two tiles share the destination with the rows made of two others.
template <class T> [[gnu::noinline]] bool planBlocks(uint32_t n, MixedPlan<T>& columns, MixedPlan<T>& rows) {
  const size_t wide = columnsOfTile<T>(n);
  const auto least = static_cast<uint32_t>(4 * wide + 1);
  const auto root = static_cast<uint32_t>(std::sqrt(n));
  constexpr uint32_t kApart = 4;  // neither factor is that far from the root
  uint64_t best = UINT64_MAX;
  for (uint32_t a = std::max(least, root / kApart); a <= root * kApart && n / a >= least; ++a) {
    const uint32_t b = n / a;
    if (n % a != 0) continue;
    MixedPlan<T> planA;
    MixedPlan<T> planB;
    const auto costOf = [wide](uint32_t length, uint64_t others, MixedPlan<T>& plan) {
      MixedPlanner<T> planner;
      return planner.plan(length, wide, plan) ? planner.cost() * ((others + wide - 1) / wide) : UINT64_MAX / 2;
    };
    const uint64_t cost = costOf(a, b, planA) + costOf(b, a, planB);
    if (cost >= std::min(best, UINT64_MAX / 2)) continue;
    best = cost;
    columns = planA;
    rows = planB;
  }
  return best != UINT64_MAX;
}

template <class T> size_t tableLength(const MixedPlan<T>& columns, const MixedPlan<T>& rows) {
  return tableLengthOfColumns(columns) + tableLengthOfColumns(rows) + columns.n * 2 * (kWidest<T> + vectorsOfRow<T>(rows.n)) +
         2 * Carver::kLine / sizeof(T);
}

template <class T> void writeBlocks(MixedBlocks<T>& blocks, T* block) {
  constexpr size_t L = kWidest<T>;
  T* out = alignedUp(block, Carver::kLine);
  const size_t rows = blocks.columns.n;
  const size_t vectors = vectorsOfRow<T>(blocks.rows.n);
  const size_t n = rows * blocks.rows.n;
  blocks.lanes = out;
  writeTwiddles(
      n, rows * L, [](size_t i) { return i / L * (i % L); }, intoGroups<L>(out));
  out += rows * L * 2;
  blocks.begins = out;
  writeTwiddles(
      n, rows * vectors, [rows](size_t i) { return i / rows * L * (i % rows); }, intoPairs(out));
  out += rows * vectors * 2;
  writeMixedColumns(blocks.rows, writeMixedColumns(blocks.columns, out));
}

// Columns in whole vectors.
template <class T> struct Tile {
  static constexpr size_t kLanes = kWidest<T>;
  Planes<T> points;
  size_t wide;

  Tile(T* p, size_t rows, size_t columns) : points(planes(p, p + rows * up(columns))), wide(up(columns)) {}
  static size_t up(size_t columns) { return (columns + kLanes - 1) / kLanes * kLanes; }
};
template <class T> using TilePair = std::array<T*, 2>;

// Columns of rows that are `apart` into a tile.
template <size_t L, class Src, class T>
[[gnu::noinline]] void takeColumns(Src src, size_t apart, size_t columns, Tile<T> tile, size_t rows) {
  for (size_t row = 0; row < rows; ++row, src = src.from(apart), tile.points = tile.points.from(tile.wide)) {
    for (size_t at = 0; at < columns; at += L) {
      tile.points.template put<L>(
          at + L <= columns ? src.template getInOrder<L>(at) : src.template getInOrder<L>(at, columns - at), at);
    }
  }
}

// The twiddle of a row and the columns of a vector.
template <size_t L, class T> QVX_INLINE auto twiddleOf(const MixedBlocks<T>& blocks, size_t row, size_t vector) {
  const T* begin = blocks.begins + (vector * blocks.columns.n + row) * 2;
  return product(group<L>(blocks.lanes + row * 2 * L), begin[0], begin[1]);
}

template <class V, size_t L> QVX_INLINE void transposeParts(Complex<V> (&z)[L]) {
  V re[L];
  V im[L];
  unrolled<L>([&](auto i) __attribute__((always_inline)) { re[i] = z[i].re, im[i] = z[i].im; });
  transpose(re);
  transpose(im);
  unrolled<L>([&](auto i) __attribute__((always_inline)) { z[i] = {re[i], im[i]}; });
}

// step(row, column, here) for squares of L by L numbers, in the last of which only `here` columns are.
template <size_t L, class Step> QVX_INLINE void forEachSquare(size_t rows, size_t columns, Step step) {
  for (size_t r = 0; r < rows; r += L) {
    for (size_t c = 0; c < columns; c += L) step(r, c, std::min(L, columns - c));
  }
}
template <size_t L, class Dst, class V> QVX_INLINE void putPart(Dst dst, Complex<V> z, size_t at, size_t count) {
  if (count == L) dst.template putInOrder<L>(z, at);
  else dst.template putFirst<L>(z, at, count);
}

// `count` rows from row `first` on, times their twiddles, into the columns of a tile.
template <size_t L, class T>
[[gnu::noinline]] void takeRows(const MixedBlocks<T>& blocks, Conjugable<const T> src, size_t first, size_t count, Tile<T> tile) {
  const size_t length = blocks.rows.n;
  forEachSquare<L>(
      count, length, [=](size_t r, size_t b, size_t here) __attribute__((always_inline)) {
        Complex<Vec<Lanes<T, L>>> z[L];
        unrolled<L>([&](auto i) __attribute__((always_inline)) {
          const size_t row = first + std::min(r + i, count - 1);
          const size_t at = row * length + b;
          z[i] = here == L ? src.template getInOrder<L>(at) : src.template getInOrder<L>(at, here);
          z[i] = product(z[i], twiddleOf<L>(blocks, row, b / L));
        });
        transposeParts(z);
        unrolled<L>([&](auto i) __attribute__((always_inline)) {
          if (i < here) tile.points.template put<L>(z[i], (b + i) * tile.wide + r);
        });
      });
}

// The columns of a tile, transposed, into rows: the way back.
template <size_t L, class T>
[[gnu::noinline]] void putRows(const MixedBlocks<T>& blocks, Tile<T> tile, Conjugable<T> dst, size_t first, size_t count) {
  const size_t length = blocks.rows.n;
  forEachSquare<L>(
      count, length, [=](size_t r, size_t b, size_t here) __attribute__((always_inline)) {
        Complex<Vec<Lanes<T, L>>> z[L];
        unrolled<L>([&](auto i) __attribute__((always_inline)) {
          z[i] = tile.points.template get<L>((b + std::min<size_t>(i, here - 1)) * tile.wide + r);
        });
        transposeParts(z);
        unrolled<L>([&](auto i) __attribute__((always_inline)) {
          if (r + i >= count) return;
          const size_t row = first + r + i;
          putPart<L>(dst, product(z[i], twiddleOf<L>(blocks, row, b / L)), row * length + b, here);
        });
      });
}

// A square of L rows into rows of its columns, `apart`: of `columns` of these the first `here` numbers.
template <size_t L, class T, class V>
QVX_INLINE void putTransposed(Planes<T> dst, Complex<V> (&z)[L], size_t apart, size_t columns, size_t here) {
  transposeParts(z);
  unrolled<L>([&](auto i) __attribute__((always_inline)) {
    if (i < columns) putPart<L>(dst, z[i], i * apart, here);
  });
}
// Whole numbers need three quarters of the shuffles that two parts and their interleaving do.
template <size_t L, class T, class V>
QVX_INLINE void putTransposed(Conjugable<T> dst, Complex<V> (&z)[L], size_t apart, size_t columns, size_t here) {
  const TagOf<V> d;
  constexpr size_t P = L / 2;          // numbers in a vector
  constexpr size_t B = 8 / sizeof(T);  // in 128 bits
  unrolled<2>([&](auto lower) __attribute__((always_inline)) {
    V low[P];
    V high[P];
    unrolled<P>([&](auto i) __attribute__((always_inline)) {
      const Complex<V> row = z[lower * P + i];
      const V im = dst.signedAs(row.im);
      low[i] = hn::InterleaveLower(d, row.re, im);
      high[i] = hn::InterleaveUpper(d, row.re, im);
    });
    transposePoints(low);
    transposePoints(high);
    const size_t begin = lower * P;
    if (begin >= here) return;
    const size_t count = std::min(P, here - begin);
    const auto put = [&](V v, size_t column) __attribute__((always_inline)) {
      if (column >= columns) return;
      T* const to = dst.p + 2 * (column * apart + begin);
      if (count == P) store(v, d, to);
      else putFirstLanes(v, d, to, 2 * count);
    };
    unrolled<P>([&](auto j) __attribute__((always_inline)) {
      constexpr size_t kColumn = j / B * 2 * B + j % B;
      put(low[j], kColumn);
      put(high[j], kColumn + B);
    });
  });
}

// The columns of a tile, `count` from column `first` on of the whole, transposed, into rows of the length of a column.
template <size_t L, class T, class Dst>
[[gnu::noinline]] void putColumnsAsRows(const MixedBlocks<T>& blocks, Tile<T> tile, Dst dst, size_t first, size_t count) {
  const size_t length = blocks.columns.n;
  forEachSquare<L>(
      count, length, [=](size_t c, size_t a, size_t here) __attribute__((always_inline)) {
        Complex<Vec<Lanes<T, L>>> z[L];
        unrolled<L>([&](auto i) __attribute__((always_inline)) {
          const size_t row = a + std::min<size_t>(i, here - 1);
          z[i] = product(tile.points.template get<L>(row * tile.wide + c), twiddleOf<L>(blocks, row, (first + c) / L));
        });
        putTransposed(dst.from((first + c) * length + a), z, length, count - c, here);
      });
}

// The first pass of a tile, into one of the two: a middle one of `columns` columns of rows that are `apart`.
template <size_t R, size_t L, class T, class Src>
[[gnu::noinline]] void firstTilePass(Src src, size_t apart, size_t columns, Tile<T> tile, size_t m, const T* twiddles) {
  for (size_t p = 0; p < m; ++p, src = src.from(apart), twiddles += (R - 1) * 2) {
    for (size_t at = 0; at < columns; at += L) {
      Complex<Vec<Lanes<T, L>>> z[R];
      takeAll<L>(src.from(at), apart * m, columns - at, z);
      anyDft(z);
      putAll<L, R>(
          tile.points.from(at + tile.wide * R * p), tile.wide, L, [&](auto j) __attribute__((always_inline)) {
            if constexpr (j == 0) return z[0];
            else return product(z[j], twiddles[2 * j - 2], twiddles[2 * j - 1]);
          });
    }
  }
}

// Transforms down `columns` columns of src, whose rows are `apart`, by way of the tiles; result k of column c goes to
// k * toRow + c. The second tile may be the source; all is read before the first result is written.
template <class T, class Src, class Dst>
void transformTile(const MixedPlan<T>& plan, Src src, size_t apart, size_t columns, TilePair<T> tiles, Dst dst, size_t toRow,
                   T factor) {
  constexpr size_t L = kWidest<T>;
  Tile<T> to(tiles[0], plan.n, columns);
  Tile<T> from(tiles[1], plan.n, columns);
  const T* tables = plan.tables;
  size_t s = to.wide;
  size_t m = plan.n;
  for (size_t pass = 0; pass + 1 < plan.count; ++pass) {
    const size_t radix = plan.radix[pass];
    const T* const twiddles = tables + matrixLength<T>(radix);
    m /= radix;
    if (pass == 0 && !isLargePrime(radix)) {
      withMixedRadix(radix, [=](auto R) { firstTilePass<R, L>(src, apart, columns, to, m, twiddles); });
    } else {
      if (pass == 0) takeColumns<L>(src, apart, columns, from, plan.n);
      runMiddlePass(radix, tables, asConst(from.points), to.points, s, m, twiddles);
    }
    tables = twiddles + m * (radix - 1) * 2;
    s *= radix;
    std::swap(from, to);
  }
  const size_t runs = s / from.wide;
  const LastSteps steps = {.columns = columns,
                           .points = s,
                           .results = runs * toRow,
                           .runs = runs,
                           .fromRun = from.wide,
                           .toRun = toRow,
                           .isPadded = true};
  runLastPass(m, tables, asConst(from.points), dst, steps, factor);
}
// The tile that the last pass does not read.
template <class T> Tile<T> freeTile(const MixedPlan<T>& plan, TilePair<T> tiles, size_t columns) {
  return Tile<T>(tiles[(plan.count - 1U) % 2], plan.n, columns);
}

// Transforms down all columns; src may be dst.
template <class T, class Src, class Dst>
void transformColumns(const MixedPlan<T>& plan, Src src, Dst dst, size_t columns, TilePair<T> tiles, T factor) {
  const size_t wide = columnsOfTile<T>(plan.n * columns);
  for (size_t c = 0; c < columns; c += wide) {
    const size_t count = std::min(wide, columns - c);
    transformTile(plan, src.from(c), columns, count, tiles, dst.from(c), columns, factor);
  }
}

// Two tiles, for either dimension.
template <class T> size_t lengthOfTile(const MixedBlocks<T>& blocks) {
  return size_t{std::max(blocks.columns.n, blocks.rows.n)} * columnsOfTile(blocks) * 2;
}
template <class T> size_t lengthOfTiles(const MixedBlocks<T>& blocks) {
  return 2 * (lengthOfTile(blocks) + Carver::kLine / sizeof(T));
}
// part: of a divided call, whose working memory of N points has room for the tiles of two.
template <class T> TilePair<T> tilesIn(const MixedBlocks<T>& blocks, T* work, size_t part = 0) {
  T* const first = alignedUp(work + part * lengthOfTiles(blocks), Carver::kLine);
  return {first, alignedUp(first + lengthOfTile(blocks), Carver::kLine)};
}

// step(column, count, part) for the columns of each tile; two threads take half of the tiles each.
template <class T, class Step> void forEachTile(const MixedBlocks<T>& blocks, size_t columns, Step step) {
  const size_t wide = columnsOfTile(blocks);
  dividedBetween(std::min(ownGetNumThreads(), 2), (columns + wide - 1) / wide, [=](size_t first, size_t count, size_t part) {
    for (size_t c = first * wide; c < std::min((first + count) * wide, columns); c += wide)
      step(c, std::min(wide, columns - c), part);
    return qvxStatOk;
  });
}

// ---- In order

// The first dimension, of the columns from `first` on that stand in src, in rows that are `apart`.
template <class T, class Src, class Dst>
void columnsToRows(const MixedBlocks<T>& blocks, Src src, size_t apart, size_t first, size_t count, TilePair<T> tiles, Dst dst) {
  const Tile<T> results = freeTile(blocks.columns, tiles, count);
  transformTile(blocks.columns, src, apart, count, tiles, results.points, results.wide, T(1));
  putColumnsAsRows<kWidest<T>>(blocks, results, dst, first, count);
}

// The second dimension, in place.
template <class T, class Dst> void downRows(const MixedBlocks<T>& blocks, Dst dst, T* y, T factor) {
  const size_t columns = blocks.columns.n;
  forEachTile(blocks, columns, [=, &blocks](size_t c, size_t count, size_t part) {
    transformTile(blocks.rows, asConst(dst.from(c)), columns, count, tilesIn(blocks, y, part), dst.from(c), columns, factor);
  });
}

// y: working memory of N points.
template <class T, class Src, class Dst> void runBlocks(const MixedBlocks<T>& blocks, Src src, Dst dst, T* y, T factor) {
  const size_t columns = blocks.rows.n;
  forEachTile(blocks, columns, [=, &blocks](size_t c, size_t count, size_t part) {
    columnsToRows(blocks, src.from(c), columns, c, count, tilesIn(blocks, y, part), dst);
  });
  downRows(blocks, dst, y, factor);
}

// Columns of rows that are `apart`, without what is between them.
template <size_t L, class Src, class T> void packColumns(Src src, size_t apart, size_t columns, Conjugable<T> to, size_t rows) {
  for (size_t row = 0; row < rows; ++row, src = src.from(apart), to = to.from(columns)) {
    for (size_t at = 0; at < columns; at += L) {
      const size_t here = std::min(L, columns - at);
      putPart<L>(to, here == L ? src.template getInOrder<L>(at) : src.template getInOrder<L>(at, here), at, here);
    }
  }
}

// Room for two tiles at the end of N points.
template <class T> TilePair<T> tilesAtEnd(Conjugable<T> dst, size_t n, size_t tile) {
  T* const first = alignedUp(dst.p + 2 * (n - tile) - Carver::kLine / sizeof(T), Carver::kLine);
  return {first, first + tile};
}
template <class T> TilePair<T> tilesAtEnd(Planes<T> dst, size_t n, size_t tile) {
  const size_t begin = n - tile - Carver::kLine / sizeof(T);
  return {alignedUp(dst.re + begin, Carver::kLine), alignedUp(dst.im + begin, Carver::kLine)};
}

// The same where src is dst. The columns go into y tile by tile; what the first two were has room for tiles. Until then these are
// in the last rows.
template <class T, class Src, class Dst> void runBlocksInPlace(const MixedBlocks<T>& blocks, Src src, Dst dst, T* y, T factor) {
  const size_t rows = blocks.columns.n;
  const size_t columns = blocks.rows.n;
  const size_t wide = columnsOfTile(blocks);
  const size_t tile = 2 * wide * rows;
  const auto packed = [=](size_t c) { return y + 2 * c * rows; };
  const auto countFrom = [=](size_t c) { return std::min(wide, columns - c); };
  forEachTile(blocks, columns, [=](size_t c, size_t count, size_t) {
    packColumns<kWidest<T>>(src.from(c), columns, count, Conjugable<T>{packed(c), 0}, rows);
  });
  for (size_t c = 0; c < columns; c += wide) {
    const TilePair<T> tiles = c < 2 * wide ? tilesAtEnd(dst, rows * columns, tile) : TilePair<T>{y, y + tile};
    columnsToRows(blocks, Conjugable<const T>{packed(c), 0}, countFrom(c), c, countFrom(c), tiles, dst);
  }
  downRows(blocks, dst, y, factor);
}

// ---- Out of order: src may be dst

// Transforms along the rows, in place: the results of a tile's rows stay where these were, result by result.
template <class T> void transformRows(const MixedBlocks<T>& blocks, T* points, TilePair<T> tiles, T factor) {
  const size_t rows = blocks.columns.n;
  const size_t length = blocks.rows.n;
  const size_t wide = columnsOfTile(blocks);
  for (size_t r = 0; r < rows; r += wide) {
    const size_t count = std::min(wide, rows - r);
    const Tile<T> tile(tiles[1], length, count);
    takeRows<kWidest<T>>(blocks, Conjugable<const T>{points, 0}, r, count, tile);
    transformTile(blocks.rows, asConst(tile.points), tile.wide, count, tiles, Conjugable<T>{points, 0}.from(r * length), count,
                  factor);
  }
}

template <class T> void forwardOutOfOrder(const MixedBlocks<T>& blocks, const T* src, T* dst, T* work, T factor) {
  const TilePair<T> tiles = tilesIn(blocks, work);
  transformColumns(blocks.columns, Conjugable<const T>{src, 0}, Conjugable<T>{dst, 0}, blocks.rows.n, tiles, T(1));
  transformRows(blocks, dst, tiles, factor);
}

// The same steps from the end to the beginning.
template <class T> void inverseOutOfOrder(const MixedBlocks<T>& blocks, const T* src, T* dst, T* work, T factor) {
  const T sign = T(-0.0);
  const size_t rows = blocks.columns.n;
  const size_t length = blocks.rows.n;
  const size_t wide = columnsOfTile(blocks);
  const TilePair<T> tiles = tilesIn(blocks, work);
  for (size_t r = 0; r < rows; r += wide) {
    const size_t count = std::min(wide, rows - r);
    const Tile<T> results = freeTile(blocks.rows, tiles, count);
    transformTile(blocks.rows, Conjugable<const T>{src, sign}.from(r * length), count, count, tiles, results.points, results.wide,
                  T(1));
    putRows<kWidest<T>>(blocks, results, Conjugable<T>{dst, 0}, r, count);
  }
  transformColumns(blocks.columns, Conjugable<const T>{dst, 0}, Conjugable<T>{dst, sign}, length, tiles, factor);
}

}  // namespace qvx::transform
