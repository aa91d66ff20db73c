// Transforms too long for the caches, in place, with a tile of working memory.
//
// N = n * m * n with n = 256. Point (a, b, c) stands at (a * m + b) * n + c. Transforms down a, then down b, then along c leave
// result ka + n * (kb + m * kc) at (ka, kb, kc); the swap of ka and kc puts it where it belongs. So each point goes through
// memory three times: down a by tiles of neighbouring columns, then a block of m * n points after the other, then the swap.
#pragma once

#include "fft/folded.h"
#include "fft/plan.h"

namespace qvx::fft {

inline constexpr int kBlockBits = 8;

// The roots of transforms down `rows` rows of `columns` points: of their passes, and those that turn row k of column c by
// exp(-2 pi i k c / (rows * columns)), as products of one that depends on k and the column within its tile, and one on k and the
// tile.
template <class T> struct ColumnRoots {
  const T* levels;
  const T* lanes;
  const T* tiles;
};

template <class T> struct BlockedPlan {
  ColumnRoots<T> outer;
  ColumnRoots<T> inner;
};

template <size_t L, class Order, class T> T* writeColumnRoots(ColumnRoots<T>& roots, size_t rows, size_t columns, T* out) {
  constexpr size_t C = kRowRadix<L>;
  const size_t n = rows * columns;
  roots.levels = out;
  T* lanes = alignedUp<64>(writeLevelRoots(levelsFor(log2Of(rows)), rows, out));
  roots.lanes = lanes;
  writeRoots(
      n, rows * C, [](size_t i) { return i / C * (i % C / L * L + Order::template element<L>(i % L)); },
      [lanes](size_t i, double re, double im) {
        lanes[i / L * 2 * L + i % L] = static_cast<T>(re);
        lanes[i / L * 2 * L + i % L + L] = static_cast<T>(im);
      });
  T* tiles = lanes + rows * C * 2;
  roots.tiles = tiles;
  writeRoots(
      n, n / C, [rows](size_t i) { return i % rows * (i / rows) * C; },
      [tiles](size_t i, double re, double im) {
        tiles[2 * i] = static_cast<T>(re);
        tiles[2 * i + 1] = static_cast<T>(im);
      });
  return alignedUp<64>(tiles + n / C * 2);
}

// Results of a tile, turned, to their rows.
template <size_t L, class T, class Dst> struct Turned {
  Dst dst;
  size_t columns;
  const T* lanes;
  const T* tile;

  template <size_t, class V> QVX_INLINE void put(Complex<V> z, size_t at) const {
    constexpr size_t C = kRowRadix<L>;
    const size_t row = at / C;
    const Complex<V> root = product(group<L>(lanes + 2 * at), tile[2 * row], tile[2 * row + 1]);
    dst.template put<L>(product(z, root), row * columns + at % C);
  }
};

// Transforms down the rows, each column in its place. `wide` columns at a time come to the work array, so that the caller's
// memory is read in runs of some cache lines: rows a power of two apart leave the caches no room for more.
template <size_t L, class T, class Src, class Dst>
void downColumns(Src src, Dst dst, size_t rows, size_t columns, size_t wide, const ColumnRoots<T>& roots, T* y) {
  constexpr size_t C = kRowRadix<L>;
  const Levels levels = levelsFor(log2Of(rows));
  const T* tile = roots.tiles;
  for (size_t c = 0; c < columns; c += wide) {
    for (size_t row = 0; row < rows; ++row) {
      for (size_t at = 0; at < wide; at += L) {
        putGroup<L>(src.template get<L>(row * columns + c + at), y + (at / C * rows * C + row * C + at % C) * 2);
      }
    }
    for (size_t at = 0; at < wide; at += C, tile += 2 * rows) {
      const Turned<L, T, Dst> turned{dst.from(c + at), columns, roots.lanes, tile};
      Columns<L, T, Turned<L, T, Dst>, Plain>{levels, turned, Plain{}}.block(y + at * rows * 2, rows, roots.levels, 0, 0, 1);
    }
  }
}

// The same for as many rows as go through registers at once.
template <size_t R, size_t L, class T, class Dst>
[[gnu::noinline]] void downShortColumns(Dst dst, size_t columns, const ColumnRoots<T>& roots) {
  constexpr size_t C = kRowRadix<L>;
  using V = Vec<Lanes<T, L>>;
  for (size_t c = 0; c < columns; c += L) {
    const Turned<L, T, Dst> turned{dst.from(c / C * C), columns, roots.lanes, roots.tiles + c / C * 2 * R};
    Complex<V> x[R];
    unrolled<R>([&](auto m) __attribute__((always_inline)) { x[m] = dst.template get<L>(m * columns + c); });
    dft(x);
    unrolled<R>([&](auto m) __attribute__((always_inline)) { turned.template put<L>(x[m], m * C + c % C); });
  }
}

// L rows of L points at `from`, transposed, to the work array; and from there to a place.
template <size_t L, class T, class Points> QVX_INLINE void takeTransposed(Points from, size_t stride, T* y) {
  using V = Vec<Lanes<T, L>>;
  constexpr auto element = &Points::template element<L>;
  V re[L];
  V im[L];
  unrolled<L>([&](auto i) __attribute__((always_inline)) {
    const Complex<V> z = from.template get<L>(element(i) * stride);
    re[i] = z.re;
    im[i] = z.im;
  });
  transpose(re);
  transpose(im);
  unrolled<L>([&](auto i) __attribute__((always_inline)) { putGroup<L>(Complex<V>{re[i], im[i]}, y + element(i) * 2 * L); });
}
template <size_t L, class T, class Points> QVX_INLINE void putRows(const T* y, Points to, size_t stride) {
  unrolled<L>([&](auto i) __attribute__((always_inline)) { to.template put<L>(group<L>(y + i * 2 * L), i * stride); });
}

template <size_t L, class T, class Points> void transposeInPlace(Points points, size_t n, size_t stride, T* y) {
  for (size_t i = 0; i < n; i += L) {
    for (size_t j = i; j < n; j += L) {
      const Points upper = points.from(i * stride + j);
      const Points lower = points.from(j * stride + i);
      takeTransposed<L>(upper, stride, y);
      if (i != j) takeTransposed<L>(lower, stride, y + 2 * L * L);
      putRows<L>(y, lower, stride);
      if (i != j) putRows<L>(y + 2 * L * L, upper, stride);
    }
  }
}

// n points in place.
template <size_t L, class T, class Points, class Fit>
QVX_INLINE void rowTransform(const Plan<T>& plan, Points row, T* y, Fit fit) {
  if constexpr (L * L == size_t{1} << kBlockBits) transformInSquare<L>(row, row, plan.rowRoots, fit);
  else transform<L>(plan, kBlockBits, row, row, y, fit);
}

// tile: the points of working memory.
template <size_t L, class Src, class Dst, class T, class Fit>
void blockedTransform(const Plan<T>& rowPlan, const BlockedPlan<T>& plan, int order, size_t tile, Src src, Dst dst, T* y,
                      Fit fit) {
  constexpr size_t n = size_t{1} << kBlockBits;
  const size_t block = (size_t{1} << order) / n;
  const size_t m = block / n;
  downColumns<L>(src, dst, n, block, std::min(tile / n, block), plan.outer, y);
  for (size_t ka = 0; ka < n; ++ka) {
    const Dst here = dst.from(ka * block);
    if (m <= kWidestRadix) withRadix(m, [&](auto R) { downShortColumns<R, L>(here, n, plan.inner); });
    else downColumns<L>(here, here, m, n, std::min(tile / m, n), plan.inner, y);
    for (size_t kb = 0; kb < m; ++kb) {
      const Dst row = here.from(kb * n);
      rowTransform<L>(rowPlan, row, y, fit);
    }
  }
  for (size_t kb = 0; kb < m; ++kb) transposeInPlace<L>(dst.from(kb * n), n, block, y);
}

}  // namespace qvx::fft
