// Transforms of any factors, too long for the caches: N = A * B points, in two dimensions.
//
// Point a * B + b takes part in a transform of A points down column b, whose result ka a twiddle turns, and then in one of B
// points along row ka, whose result kb is that of ka + A * kb. So each point goes twice through memory, however many passes a
// dimension has: a few columns, or rows, at a time stand side by side in a tile of working memory, and passes run over whole
// vectors of them. Rows come into a tile by transposition.
//
// The results of a tile go where they belong, or back to where its rows were: out of order they stay there.
#pragma once

#include "transform/mixed_plan.h"

namespace qvx::transform {

template <class T> struct MixedBlocks {
  MixedPlan<T> columns;  // of A points
  MixedPlan<T> rows;     // of B points
  // exp(-2 pi i ka b / N) as a product: lane i of a vector of `lanes` has that of ka and b = i, a number of `begins` that of ka
  // and of the b at which a vector begins.
  const T* lanes;
  const T* begins;
};

// The columns of a tile, and so the points of the runs that memory is read and written in: 128 bytes, so that a tile stays in the
// nearer caches (100000 doubles take 0.87 of the time that runs of 256 bytes take); in vectors of many pages 256, for half as
// many visits to each page (10^6 doubles 0.9).
template <class T> size_t columnsOfTile(size_t n) {
  constexpr size_t kManyPages = size_t{4} << 20;
  const size_t points = n * 2 * sizeof(T) <= kManyPages ? 64 / sizeof(T) : 128 / sizeof(T);
  return std::max(points, kWidest<T>);
}
template <class T> size_t columnsOfTile(const MixedBlocks<T>& blocks) {
  return columnsOfTile<T>(size_t{blocks.columns.n} * blocks.rows.n);
}

template <class T> size_t vectorsOfRow(size_t count) { return (count + kWidest<T> - 1) / kWidest<T>; }

// False where n has no two fitting factors: two tiles have room in the memory of the points.
template <class T> [[gnu::noinline]] bool planBlocks(uint32_t n, MixedPlan<T>& columns, MixedPlan<T>& rows) {
  const size_t wide = columnsOfTile<T>(n);
  const auto least = static_cast<uint32_t>(2 * wide + Carver::kLine / sizeof(T));
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
      n, rows * vectors, [vectors](size_t i) { return i / vectors * (i % vectors * L); }, intoPairs(out));
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
  const T* begin = blocks.begins + (row * vectorsOfRow<T>(blocks.rows.n) + vector) * 2;
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

// `count` rows from row `first` on, turned by their twiddles, into the columns of a tile.
template <size_t L, class T>
[[gnu::noinline]] void takeRows(const MixedBlocks<T>& blocks, Conjugable<const T> src, size_t first, size_t count, Tile<T> tile) {
  using V = Vec<Lanes<T, L>>;
  const size_t length = blocks.rows.n;
  for (size_t r = 0; r < count; r += L) {
    for (size_t b = 0; b < length; b += L) {
      const size_t here = std::min(L, length - b);
      Complex<V> z[L];
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
    }
  }
}

// The columns of a tile, turned, into rows.
template <size_t L, class T>
[[gnu::noinline]] void putRows(const MixedBlocks<T>& blocks, Tile<T> tile, Conjugable<T> dst, size_t first, size_t count) {
  using V = Vec<Lanes<T, L>>;
  const size_t length = blocks.rows.n;
  for (size_t r = 0; r < count; r += L) {
    for (size_t b = 0; b < length; b += L) {
      const size_t here = std::min(L, length - b);
      Complex<V> z[L];
      unrolled<L>([&](auto i) __attribute__((always_inline)) {
        z[i] = tile.points.template get<L>((b + std::min<size_t>(i, here - 1)) * tile.wide + r);
      });
      transposeParts(z);
      unrolled<L>([&](auto i) __attribute__((always_inline)) {
        if (r + i >= count) return;
        const size_t row = first + r + i;
        const auto turned = product(z[i], twiddleOf<L>(blocks, row, b / L));
        if (here == L) dst.template putInOrder<L>(turned, row * length + b);
        else dst.template putFirst<L>(turned, row * length + b, here);
      });
    }
  }
}

// Transforms down the columns of tile `from`, by way of `to` and back; result k of column c goes to k * apart + c.
template <class T, class Dst>
void transformTile(const MixedPlan<T>& plan, Tile<T> from, Tile<T> to, size_t columns, Dst dst, size_t apart, T factor) {
  const T* tables = plan.tables;
  size_t s = from.wide;
  size_t m = plan.n;
  for (size_t pass = 0; pass + 1 < plan.count; ++pass) {
    const size_t radix = plan.radix[pass];
    m /= radix;
    runMiddlePass(radix, tables, asConst(from.points), to.points, s, m, tables + rootsOf<T>(radix));
    tables += rootsOf<T>(radix) + m * (radix - 1) * 2;
    s *= radix;
    std::swap(from, to);
  }
  const size_t runs = s / from.wide;
  const LastSteps steps = {.columns = columns,
                           .points = s,
                           .results = runs * apart,
                           .runs = runs,
                           .fromRun = from.wide,
                           .toRun = apart,
                           .isPadded = true};
  runLastPass(m, tables, asConst(from.points), dst, steps, factor);
}

// Transforms down all columns; src may be dst.
template <class T, class Src>
void transformColumns(const MixedPlan<T>& plan, Src src, Conjugable<T> dst, size_t columns, TilePair<T> tiles, T factor) {
  const size_t wide = columnsOfTile<T>(plan.n * columns);
  for (size_t c = 0; c < columns; c += wide) {
    const size_t count = std::min(wide, columns - c);
    const Tile<T> tile(tiles[0], plan.n, count);
    takeColumns<kWidest<T>>(src.from(c), columns, count, tile, plan.n);
    transformTile(plan, tile, Tile<T>(tiles[1], plan.n, count), count, dst.from(c), columns, factor);
  }
}

// Transforms along the rows, in place: the results of a tile's rows stay where these were, result by result.
template <class T> void transformRows(const MixedBlocks<T>& blocks, T* points, TilePair<T> tiles, T sign, T factor) {
  const size_t rows = blocks.columns.n;
  const size_t length = blocks.rows.n;
  const size_t wide = columnsOfTile(blocks);
  for (size_t r = 0; r < rows; r += wide) {
    const size_t count = std::min(wide, rows - r);
    const Tile<T> tile(tiles[0], length, count);
    takeRows<kWidest<T>>(blocks, Conjugable<const T>{points, 0}, r, count, tile);
    transformTile(blocks.rows, tile, Tile<T>(tiles[1], length, count), count, Conjugable<T>{points, sign}.from(r * length), count,
                  factor);
  }
}

// A run of points.
template <class T> QVX_INLINE void copyRun(const T* from, size_t count, Conjugable<T> to) {
  constexpr size_t L = kWidest<T>;
  const Lanes<T, L> d;
  if (2 * count % L != 0) return void(std::copy_n(from, 2 * count, to.p));
  for (size_t i = 0; i < 2 * count; i += L) store(load(d, from + i), d, to.p + i);
}
template <class T> QVX_INLINE void copyRun(const T* from, size_t count, Planes<T> to) {
  for (size_t i = 0; i < count; ++i) to.re[i] = from[2 * i], to.im[i] = from[2 * i + 1];
}

// What transformRows() left, into natural order: a few rows of results at a time, so that a page is visited once for many runs.
template <class T, class Dst> void putInOrder(const MixedBlocks<T>& blocks, const T* points, Dst dst) {
  constexpr size_t kAtATime = 16;
  const size_t rows = blocks.columns.n;
  const size_t length = blocks.rows.n;
  const size_t wide = columnsOfTile(blocks);
  for (size_t begin = 0; begin < length; begin += kAtATime) {
    const size_t end = std::min(length, begin + kAtATime);
    for (size_t r = 0; r < rows; r += wide) {
      const size_t count = std::min(wide, rows - r);
      for (size_t k = begin; k < end; ++k) copyRun(points + 2 * (r * length + k * count), count, dst.from(k * rows + r));
    }
  }
}

// The same two steps at once: results go from the tiles to their places. The destination is no room for tiles any more, so they
// lie in the first rows, once these are taken.
template <class T, class Dst> void transformRowsInOrder(const MixedBlocks<T>& blocks, T* points, T* spare, Dst dst, T factor) {
  constexpr size_t L = kWidest<T>;
  const Conjugable<const T> from = {points, 0};
  const size_t rows = blocks.columns.n;
  const size_t length = blocks.rows.n;
  const size_t wide = columnsOfTile(blocks);
  for (size_t r = 0; r < rows; r += wide) {
    const size_t count = std::min(wide, rows - r);
    const Tile<T> one(points, length, count);
    const Tile<T> other(points + 2 * wide * length, length, count);
    if (r > 0) {
      takeRows<L>(blocks, from, r, count, one);
      transformTile(blocks.rows, one, other, count, dst.from(r), rows, factor);
      continue;
    }
    // The first rows are where their own tile is, and the other one in the destination: there the last pass must not find them.
    const Tile<T> outside(spare, length, count);
    takeRows<L>(blocks, from, 0, count, outside);
    if (blocks.rows.count % 2 == 0) {
      transformTile(blocks.rows, outside, one, count, dst, rows, factor);
    } else {
      std::copy_n(outside.points.re, 2 * wide * length, points);
      transformTile(blocks.rows, one, outside, count, dst, rows, factor);
    }
  }
}

// y: N points of working memory, which may be the source. spare: two blocks of N / 2 points in the destination, where the tiles
// are. sign: -0 if results are conjugates. Straight into natural order 100000 doubles take 0.9 of the time, 10^6 take 1.2: a run
// of each row of a tile's results is a page of its own, and 2000 such pages are all that the processor keeps addresses of.
template <class T, class Src, class Dst>
void runBlocks(const MixedBlocks<T>& blocks, Src src, Dst dst, T* y, TilePair<T> spare, T sign, T factor) {
  constexpr size_t kMostStraight = size_t{8} << 20;
  const size_t columns = blocks.rows.n;
  for (T*& p : spare) p = alignedUp(p, Carver::kLine);
  transformColumns(blocks.columns, src, Conjugable<T>{y, 0}, columns, spare, T(1));
  if (blocks.columns.n * columns * 2 * sizeof(T) <= kMostStraight) return transformRowsInOrder(blocks, y, spare[0], dst, factor);
  transformRows(blocks, y, spare, sign, factor);
  putInOrder(blocks, y, dst);
}

// ---- Out of order: no memory but that of the destination and of two tiles; src may be dst

template <class T> size_t lengthOfTiles(const MixedBlocks<T>& blocks) {
  return 2 * (std::max(blocks.columns.n, blocks.rows.n) * columnsOfTile(blocks) * 2 + Carver::kLine / sizeof(T));
}

template <class T> TilePair<T> tilesIn(const MixedBlocks<T>& blocks, T* work) {
  return {alignedUp(work, Carver::kLine), alignedUp(work + lengthOfTiles(blocks) / 2, Carver::kLine)};
}

template <class T> void forwardOutOfOrder(const MixedBlocks<T>& blocks, const T* src, T* dst, T* work, T factor) {
  const TilePair<T> tiles = tilesIn(blocks, work);
  transformColumns(blocks.columns, Conjugable<const T>{src, 0}, Conjugable<T>{dst, 0}, blocks.rows.n, tiles, T(1));
  transformRows(blocks, dst, tiles, T(0), factor);
}

// The same steps from the end to the beginning.
template <class T> void inverseOutOfOrder(const MixedBlocks<T>& blocks, const T* src, T* dst, T* work, T factor) {
  constexpr size_t L = kWidest<T>;
  const T sign = T(-0.0);
  const size_t rows = blocks.columns.n;
  const size_t length = blocks.rows.n;
  const size_t wide = columnsOfTile(blocks);
  const TilePair<T> tiles = tilesIn(blocks, work);
  for (size_t r = 0; r < rows; r += wide) {
    const size_t count = std::min(wide, rows - r);
    const Tile<T> one(tiles[0], length, count);
    const Tile<T> other(tiles[1], length, count);
    const Tile<T>& last = blocks.rows.count % 2 == 0 ? one : other;
    takeColumns<L>(Conjugable<const T>{src, sign}.from(r * length), count, count, one, length);
    transformTile(blocks.rows, one, other, count, last.points, last.wide, T(1));
    putRows<L>(blocks, last, Conjugable<T>{dst, 0}, r, count);
  }
  transformColumns(blocks.columns, Conjugable<const T>{dst, 0}, Conjugable<T>{dst, sign}, length, tiles, factor);
}

}  // namespace qvx::transform
