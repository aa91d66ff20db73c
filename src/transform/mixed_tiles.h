// Tiles: a few columns of a matrix, in whole vectors of neighbours. What goes between them and memory, as it stands or transposed
// with its twiddles, and the passes of a dimension down their columns.
#pragma once

#include "transform/mixed_block_plan.h"
#include "transform/mixed_run.h"
#include "transform/small_interleaved.h"

namespace qvx::transform {

// Columns in whole vectors.
template <class Points> struct Tile {
  using T = typename Points::Lane;
  static constexpr size_t kWhole = kPointsIn<Points>;
  Points points;
  size_t wide;

  Tile(T* p, size_t rows, size_t columns) : wide(up(columns)) {
    if constexpr (kAreNumbers<Points>) points = {p};
    else points = planes(p, p + rows * wide);
  }
  static size_t up(size_t columns) { return (columns + kWhole - 1) / kWhole * kWhole; }
};
template <class T> using TilePair = std::array<T*, 2>;
// Of points from or to Points.
template <class Points>
using TileOf = Tile<std::conditional_t<kAreNumbers<Points>, Numbers<typename Points::Lane>, Planes<typename Points::Lane>>>;

// Columns of rows that are `apart` into a tile.
template <class Src, class Points>
[[gnu::noinline]] void takeColumns(Src src, size_t apart, size_t columns, Tile<Points> tile, size_t rows) {
  constexpr size_t L = kPointsIn<Points>;
  for (size_t row = 0; row < rows; ++row, src = src.from(apart), tile.points = tile.points.from(tile.wide)) {
    for (size_t at = 0; at < columns; at += L) {
      tile.points.template put<L>(
          at + L <= columns ? src.template getInOrder<L>(at) : src.template getInOrder<L>(at, columns - at), at);
    }
  }
}

// As many vectors as one has points.
template <class V, size_t L> QVX_INLINE void transposeSquare(Complex<V> (&z)[L]) {
  V re[L];
  V im[L];
  unrolled<L>([&](auto i) __attribute__((always_inline)) { re[i] = z[i].re, im[i] = z[i].im; });
  transpose(re);
  transpose(im);
  unrolled<L>([&](auto i) __attribute__((always_inline)) { z[i] = {re[i], im[i]}; });
}
template <class V, size_t P> QVX_INLINE void transposeSquare(ComplexVector<V, false> (&z)[P]) {
  V r[P];
  unrolled<P>([&](auto i) __attribute__((always_inline)) { r[i] = z[i].v; });
  transposePoints(r);
  unrolled<P>([&](auto i) __attribute__((always_inline)) { z[i].v = r[i]; });
}

// step(row, column, here) for squares of L by L numbers, in the last of which only `here` columns are.
template <size_t L, class Step> QVX_INLINE void forEachSquare(size_t rows, size_t columns, Step step) {
  for (size_t r = 0; r < rows; r += L) {
    for (size_t c = 0; c < columns; c += L) step(r, c, std::min(L, columns - c));
  }
}
template <size_t L, class Dst, class Z> QVX_INLINE void putPart(Dst dst, Z z, size_t at, size_t count) {
  if (count == L) dst.template putInOrder<L>(z, at);
  else dst.template putFirst<L>(z, at, count);
}

// `count` rows from row `first` on, times their twiddles, into the columns of a tile.
template <class T, class Src, class Points>
[[gnu::noinline]] void takeRows(const MixedBlocks<T>& blocks, Src src, size_t first, size_t count, Tile<Points> tile) {
  constexpr size_t L = kPointsIn<Points>;
  const size_t length = blocks.rows.n;
  forEachSquare<L>(
      count, length, [=](size_t r, size_t b, size_t here) __attribute__((always_inline)) {
        decltype(src.template getInOrder<L>(0)) z[L];
        unrolled<L>([&](auto i) __attribute__((always_inline)) {
          const size_t row = first + std::min(r + i, count - 1);
          const size_t at = row * length + b;
          z[i] = here == L ? src.template getInOrder<L>(at) : src.template getInOrder<L>(at, here);
          z[i] = rotated(blocks, z[i], row, b);
        });
        transposeSquare(z);
        unrolled<L>([&](auto i) __attribute__((always_inline)) {
          if (i < here) tile.points.template put<L>(z[i], (b + i) * tile.wide + r);
        });
      });
}

// The columns of a tile, transposed, into rows: the way back.
template <class T, class Points, class Dst>
[[gnu::noinline]] void putRows(const MixedBlocks<T>& blocks, Tile<Points> tile, Dst dst, size_t first, size_t count) {
  constexpr size_t L = kPointsIn<Points>;
  const size_t length = blocks.rows.n;
  forEachSquare<L>(
      count, length, [=](size_t r, size_t b, size_t here) __attribute__((always_inline)) {
        decltype(tile.points.template get<L>(0)) z[L];
        unrolled<L>([&](auto i) __attribute__((always_inline)) {
          z[i] = tile.points.template get<L>((b + std::min<size_t>(i, here - 1)) * tile.wide + r);
        });
        transposeSquare(z);
        unrolled<L>([&](auto i) __attribute__((always_inline)) {
          if (r + i >= count) return;
          const size_t row = first + r + i;
          putPart<L>(dst, rotated(blocks, z[i], row, b), row * length + b, here);
        });
      });
}

// A square of L rows into rows of its columns, `apart`: of `columns` of these the first `here` numbers.
template <size_t L, class Dst, class Z>
QVX_INLINE void putTransposed(Dst dst, Z (&z)[L], size_t apart, size_t columns, size_t here) {
  transposeSquare(z);
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
template <class T, class Points, class Dst>
[[gnu::noinline]] void putColumnsAsRows(const MixedBlocks<T>& blocks, Tile<Points> tile, Dst dst, size_t first, size_t count) {
  constexpr size_t L = kPointsIn<Points>;
  const size_t length = blocks.columns.n;
  forEachSquare<L>(
      count, length, [=](size_t c, size_t a, size_t here) __attribute__((always_inline)) {
        decltype(tile.points.template get<L>(0)) z[L];
        unrolled<L>([&](auto i) __attribute__((always_inline)) {
          const size_t row = a + std::min<size_t>(i, here - 1);
          z[i] = rotated(blocks, tile.points.template get<L>(row * tile.wide + c), row, first + c);
        });
        putTransposed(dst.from((first + c) * length + a), z, length, count - c, here);
      });
}

// The first pass of a tile, into one of the two: a middle one of `columns` columns of rows that are `apart`.
template <size_t R, size_t L, class T, class Src>
[[gnu::noinline]] void firstTilePass(Src src, size_t apart, size_t columns, Tile<Planes<T>> tile, size_t m, const T* twiddles) {
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

template <class T, class Src>
void runFirstTilePass(size_t radix, Src src, size_t apart, size_t columns, Tile<Planes<T>> to, size_t m, const T* twiddles) {
  withMixedRadix(radix, [=](auto R) { firstTilePass<R, kWidest<T>>(src, apart, columns, to, m, twiddles); });
}
template <class T, class Src>
void runFirstTilePass(size_t radix, Src src, size_t apart, size_t columns, Tile<Numbers<T>> to, size_t m, const T* twiddles) {
  withEnds(src.sign, T(1), [=](const auto& ends) {
    withMixedRadix(radix,
                   [=](auto R) { firstInterleavedTilePass<R>(src.p, apart, columns, to.points.p, to.wide, m, twiddles, ends); });
  });
}

// Transforms down `columns` columns of src, whose rows are `apart`, by way of the tiles; result k of column c goes to
// k * toRow + c. The second tile may be the source; all is read before the first result is written.
template <class T, class Src, class Dst>
void transformTile(const MixedPlan<T>& plan, Src src, size_t apart, size_t columns, TilePair<T> tiles, Dst dst, size_t toRow,
                   T factor) {
  TileOf<Dst> to(tiles[0], plan.n, columns);
  TileOf<Dst> from(tiles[1], plan.n, columns);
  const T* tables = plan.tables;
  size_t s = to.wide;
  size_t m = plan.n;
  for (size_t pass = 0; pass + 1 < plan.count; ++pass) {
    const size_t radix = plan.radix[pass];
    const T* const twiddles = tables + matrixLength<T>(radix);
    m /= radix;
    if (pass == 0 && !isLargePrime(radix)) {
      runFirstTilePass(radix, src, apart, columns, to, m, twiddles);
    } else {
      if (pass == 0) takeColumns(src, apart, columns, from, plan.n);
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
template <class Points, class T> TileOf<Points> freeTile(const MixedPlan<T>& plan, TilePair<T> tiles, size_t columns) {
  return TileOf<Points>(tiles[(plan.count - 1U) % 2], plan.n, columns);
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

}  // namespace qvx::transform
