// Long transforms out of place, in two passes over memory where blocks in place take three (blocked.h), with the same results to
// the bit.
//
// Point (a, b, c) of the source becomes, by transforms down a and b, number ka + n * kb of row c of the destination: as tiles of
// columns are read, the first level transposes them into rows, and the other levels go along these, in the first-level cache.
// Then transforms down c leave each result where it belongs. 2^17 and 2^18 complex doubles take 0.7 of the time of blocks, with 2
// MiB of cache to a core.
#pragma once

#include "transform/blocked.h"

namespace qvx::transform {

// Points between the passes: as the work array has them.
template <class T> struct Groups {
  const T* p;

  template <size_t L> QVX_INLINE auto get(size_t at) const { return group<L>(p + 2 * at); }
};
// Results on their way into a row, times the product of two twiddles each.
template <class T> struct TwistedRow {
  T* p;
  const T* lanes;
  const T* tile;

  template <size_t L, class V> QVX_INLINE void put(Complex<V> z, size_t at) const {
    putGroup<L>(product(z, product(group<L>(lanes + 2 * at), group<L>(tile + 2 * at))), p + 2 * at);
  }
};
// A column of vectors, one in each row of `columns` points.
template <class Dst> struct Column {
  Dst dst;
  size_t columns;

  template <size_t L, class V> QVX_INLINE void put(Complex<V> z, size_t at) const { dst.template put<L>(z, at / L * columns); }
};

// The twiddles of number ka of column b * n + c, as blocks have it, for vectors of neighbouring ka: both factors in groups. The
// tables follow all others; a record has no room for where.
template <class T> struct TransposedTwiddles {
  T* lanes;
  T* tiles;
};
template <size_t L, class T> TransposedTwiddles<T> transposedTwiddles(T* lanes) { return {lanes, lanes + 2 * L * kBlockPoints}; }
template <size_t L, class T> const T* endOfTwiddles(const BlockedPlan<T>& plan, size_t block) {
  return alignedUp(plan.inner.tiles + block / kRowRadix<L> * 2, Carver::kLine);
}
template <size_t L, class LaneOrder, class T> T* writeTransposedTwiddles(size_t columns, T* out) {
  constexpr size_t n = kBlockPoints;
  const auto row = [](size_t i) { return i % n / L * L + LaneOrder::template element<L>(i % L); };
  const TransposedTwiddles<T> to = transposedTwiddles<L>(out);
  writeTwiddles(
      n * columns, L * n, [=](size_t i) { return i / n * row(i); }, intoGroups<L>(to.lanes));
  writeTwiddles(
      n * columns, columns / L * n, [=](size_t i) { return i / n * L * row(i); }, intoGroups<L>(to.tiles));
  return to.tiles + columns / L * n * 2;
}

// The first level of transforms down R * part rows, for L columns; what belongs to column i goes to row i of dst, rows `apart`
// points apart.
template <size_t R, size_t L, class T, class Src>
[[gnu::noinline, gnu::flatten]] void transposeColumns(Src src, size_t columns, size_t part, T* dst, size_t apart,
                                                      const T* twiddles) {
  using V = Vec<Lanes<T, L>>;
  constexpr auto element = &Src::template element<L>;
  for (size_t q = 0; q < part; ++q, twiddles += (R - 1) * 2) {
    Complex<V> x[R];
    dft(x, [&](auto m) { return src.template get<L>((q + m * part) * columns); });
    unrolled<R / L>([&](auto w) {
      V re[L];
      V im[L];
      unrolled<L>([&](auto i) {
        constexpr size_t k = w * L + element(i);
        const Complex<V> z = timesTwiddle<k>(x[k], twiddles);
        re[i] = z.re;
        im[i] = z.im;
      });
      transpose(re);
      transpose(im);
      unrolled<L>([&](auto i) { putGroup<L>(Complex<V>{re[i], im[i]}, dst + 2 * (element(i) * apart + q * R + w * L)); });
    });
  }
}

// Transforms of R points n apart along a row, and the twiddles of column c, all as downShortColumns has them.
template <size_t R, size_t L, class LaneOrder, class T>
[[gnu::noinline, gnu::flatten]] void alongRow(T* row, const ColumnTwiddles<T>& twiddles, size_t c) {
  using V = Vec<Lanes<T, L>>;
  constexpr size_t n = kBlockPoints;
  size_t lane = 0;
  while (LaneOrder::template element<L>(lane) != c % L) ++lane;
  Complex<V> twiddle[R];
  for (size_t k = 0; k < R; ++k) {
    const T* const fine = twiddles.lanes + 2 * k * L + lane;
    const T* const tile = twiddles.tiles + 2 * (c / L * R + k);
    twiddle[k] = product(Complex<V>{same<V>(fine[0]), same<V>(fine[L])}, tile[0], tile[1]);
  }
  for (size_t at = 0; at < n; at += L) {
    Complex<V> x[R];
    unrolled<R>([&](auto m) { x[m] = group<L>(row + 2 * (m * n + at)); });
    dft(x);
    unrolled<R>([&](auto m) { putGroup<L>(product(x[m], twiddle[m]), row + 2 * (m * n + at)); });
  }
}

// The first pass, for a range of c: to rows of dst.
template <size_t L, class T, class Src>
[[gnu::noinline]] void columnsToRows(const BlockedPlan<T>& plan, const Levels& levels, Src src, T* dst, size_t block,
                                     Range range) {
  constexpr size_t n = kBlockPoints;
  alignas(Carver::kLine) T own[2 * n];
  T* const y = own;
  const auto twiddles = transposedTwiddles<L>(endOfTwiddles<L>(plan, block));
  const T* const rest = plan.outer.levels + n / L * (L - 1) * 2;
  for (size_t c = range.from; c < range.to; c += L) {
    for (size_t b = 0; b < block; b += n) {
      transposeColumns<L, L>(src.from(b + c), block, n / L, dst + 2 * (c * block + b), block, plan.outer.levels);
    }
    for (size_t i = c; i < c + L; ++i) {
      T* const row = dst + 2 * i * block;
      for (size_t b = 0; b < block; b += n) {
        const TwistedRow<T> to{row + 2 * b, twiddles.lanes + 2 * n * (i % L), twiddles.tiles + 2 * n * ((b + i) / L)};
        const Columns<L, T, TwistedRow<T>, Unscaled> columns{levels, to, {}};
        withRadix(levels.radix[0], [=](auto R) {
          loadColumns<false, R>(Groups<T>{row + 2 * b}, L, ColumnTile<L, T>{y, n / L, L}, rest);
        });
        columns.within(y, n / L, rest, 0, 0, 1, 0, levels.radix[0]);
      }
      withRadix(block / n, [&](auto R) {
        if constexpr (R <= kMostTransposed / n / n) alongRow<R, L, Src>(row, plan.inner, i);
      });
    }
  }
}

// The second, for a range of columns: all of one are read before any is written.
template <size_t L, class T, class Dst>
[[gnu::noinline]] void downRows(const BlockedPlan<T>& plan, const Levels& levels, Dst dst, size_t block, Range range, T* y,
                                ScaledBy<T> scale) {
  constexpr size_t n = kBlockPoints;
  const T* const rest = plan.outer.levels + n / L * (L - 1) * 2;
  for (size_t k = range.from; k < range.to; k += L) {
    const Dst here = dst.from(k);
    loadColumns<false, L>(Groups<T>{here.p}, block, ColumnTile<L, T>{y, n, L}, plan.outer.levels);
    const Columns<L, T, Column<Dst>, ScaledBy<T>> columns{levels, {here, block}, scale};
    for (size_t a = 0; a < L; ++a) columns.block(y + a * n * 2, n / L, rest, 0, a, L);
  }
}

template <size_t L, class Src, class Dst, class T>
void transposedTransform(size_t threads, const BlockedPlan<T>& plan, size_t points, size_t tile, Src src, Dst dst, T* y,
                         ScaledBy<T> scale) {
  constexpr size_t n = kBlockPoints;
  const size_t block = points / n;
  const Levels levels = levelsFor(n / L);
  dividedWithTiles(threads, n, y, tile,
                   [=, &plan](Range range, T*, size_t) { columnsToRows<L>(plan, levels, src, dst.p, block, range); });
  dividedWithTiles(threads, block, y, tile,
                   [=, &plan](Range range, T* own, size_t) { downRows<L>(plan, levels, dst, block, range, own, scale); });
}

}  // namespace qvx::transform
