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
#include "transform/mixed_tiles.h"

namespace qvx::transform {

// Of a tile that serves either dimension, and of two, in T.
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
  const auto results = freeTile<Dst>(blocks.columns, tiles, count);
  transformTile(blocks.columns, src, apart, count, tiles, results.points, results.wide, T(1));
  putColumnsAsRows(blocks, results, dst, first, count);
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
template <class Src, class Dst> void packColumns(Src src, size_t apart, size_t columns, Dst to, size_t rows) {
  constexpr size_t L = kPointsIn<Src>;
  for (size_t row = 0; row < rows; ++row, src = src.from(apart), to = to.from(columns)) {
    for (size_t at = 0; at < columns; at += L) {
      const size_t here = std::min(L, columns - at);
      putPart<L>(to, here == L ? src.template getInOrder<L>(at) : src.template getInOrder<L>(at, here), at, here);
    }
  }
}

// Room for two tiles at the end of N points.
template <class Points, class T = typename Points::Lane> TilePair<T> tilesAtEnd(Points dst, size_t n, size_t tile) {
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
  using Packed = std::conditional_t<kAreNumbers<Src>, ConjugableNumbers<T>, Conjugable<T>>;
  const auto packed = [=](size_t c) { return y + 2 * c * rows; };
  const auto countFrom = [=](size_t c) { return std::min(wide, columns - c); };
  forEachTile(blocks, columns, [=](size_t c, size_t count, size_t) {
    packColumns(src.from(c), columns, count, Packed{packed(c), 0}, rows);
  });
  for (size_t c = 0; c < columns; c += wide) {
    const TilePair<T> tiles = c < 2 * wide ? tilesAtEnd(dst, rows * columns, tile) : TilePair<T>{y, y + tile};
    columnsToRows(blocks, asConst(Packed{packed(c), 0}), countFrom(c), c, countFrom(c), tiles, dst);
  }
  downRows(blocks, dst, y, factor);
}

// ---- Out of order: src may be dst

// Transforms along the rows, in place: the results of a tile's rows stay where these were, result by result.
template <class Points, class T> void transformRows(const MixedBlocks<T>& blocks, Points points, TilePair<T> tiles, T factor) {
  const size_t rows = blocks.columns.n;
  const size_t length = blocks.rows.n;
  const size_t wide = columnsOfTile(blocks);
  for (size_t r = 0; r < rows; r += wide) {
    const size_t count = std::min(wide, rows - r);
    const TileOf<Points> tile(tiles[1], length, count);
    takeRows(blocks, asConst(points), r, count, tile);
    transformTile(blocks.rows, asConst(tile.points), tile.wide, count, tiles, points.from(r * length), count, factor);
  }
}

template <class T, class Src, class Dst>
void forwardOutOfOrder(const MixedBlocks<T>& blocks, Src src, Dst dst, T* work, T factor) {
  const TilePair<T> tiles = tilesIn(blocks, work);
  transformColumns(blocks.columns, src, dst, blocks.rows.n, tiles, T(1));
  transformRows(blocks, dst, tiles, factor);
}

// The same steps from the end to the beginning. src and dst are conjugate, what is between is not.
template <class T, class Src, class Dst>
void inverseOutOfOrder(const MixedBlocks<T>& blocks, Src src, Dst dst, T* work, T factor) {
  const Dst between = {dst.p, 0};
  const size_t rows = blocks.columns.n;
  const size_t length = blocks.rows.n;
  const size_t wide = columnsOfTile(blocks);
  const TilePair<T> tiles = tilesIn(blocks, work);
  for (size_t r = 0; r < rows; r += wide) {
    const size_t count = std::min(wide, rows - r);
    const auto results = freeTile<Dst>(blocks.rows, tiles, count);
    transformTile(blocks.rows, src.from(r * length), count, count, tiles, results.points, results.wide, T(1));
    putRows(blocks, results, between, r, count);
  }
  transformColumns(blocks.columns, asConst(between), dst, length, tiles, factor);
}

}  // namespace qvx::transform
