// The plan of a transform in two dimensions, for mixed_blocks.h: its factors, and the twiddles between them.
#pragma once

#include "transform/mixed_plan.h"

namespace qvx::transform {

template <class T> struct MixedBlocks {
  MixedPlan<T> columns;  // of A points
  MixedPlan<T> rows;     // of B points
  // exp(-2 pi i ka b / N) as a product: lane i of vector ka of `lanes`, or number i where these are whole, has that of ka and
  // b = i; `begins` has for each b at which a vector begins the A numbers of all ka.
  const T* lanes;
  const T* begins;
};

// Whether n points stand in many pages.
template <class T> constexpr bool areManyPages(size_t n) { return n * 2 * sizeof(T) > size_t{4} << 20; }

// The columns of a tile, and so the points of the runs that memory is read and written in: 128 bytes, so that a tile stays in the
// near caches (100000 doubles take 0.87 of the time that runs of 256 bytes take); in vectors of many pages 256, for half as many
// visits to each page (10^6 doubles 0.9).
template <class T> size_t columnsOfTile(size_t n) {
  const size_t points = areManyPages<T>(n) ? 128 / sizeof(T) : 64 / sizeof(T);
  return std::max(points, kWidest<T>);
}
template <class T> size_t columnsOfTile(const MixedBlocks<T>& blocks) {
  return columnsOfTile<T>(size_t{blocks.columns.n} * blocks.rows.n);
}

// step(Conjugable or ConjugableNumbers): what n interleaved points are. In many pages whole lines of parts are loaded at a time:
// 10^6 complex doubles would take 1.4 of the time as numbers of half a line.
template <class T, class Step> auto withBlockPoints(size_t n, Step step) {
  if (areManyPages<T>(n)) return step(std::type_identity<Conjugable<T>>());
  return step(std::type_identity<PointsInMemory<T>>());
}

template <class T> size_t vectorsOfRow(size_t count) { return (count + kWidest<T> - 1) / kWidest<T>; }

// False where n has no two fitting factors: in place two tiles share the destination with the rows made of two others.
template <class Points, class T = typename Points::Lane>
[[gnu::noinline]] bool planBlocks(uint32_t n, MixedPlan<T>& columns, MixedPlan<T>& rows) {
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
      MixedPlanner<Points> planner;
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

template <class Src, class T> void writeBlocks(MixedBlocks<T>& blocks, T* block) {
  constexpr size_t L = kWidest<T>;
  T* out = alignedUp(block, Carver::kLine);
  const size_t rows = blocks.columns.n;
  const size_t vectors = vectorsOfRow<T>(blocks.rows.n);
  const size_t n = rows * blocks.rows.n;
  blocks.lanes = out;
  const auto power = [](size_t i) { return i / L * (i % L); };
  if constexpr (kAreNumbers<Src>) writeTwiddles(n, rows * L, power, intoPairs(out));
  else writeTwiddles(n, rows * L, power, intoGroups<L>(out));
  out += rows * L * 2;
  blocks.begins = out;
  writeTwiddles(n, rows * vectors, inTurn(rows, 1, [](size_t vector, size_t row) { return vector * L * row; }), intoPairs(out));
  out += rows * vectors * 2;
  writeMixedColumns(blocks.rows, writeMixedColumns(blocks.columns, out));
}

// z, a vector of row `row` from `column` on, times its twiddles.
template <class T, class V> QVX_INLINE Complex<V> rotated(const MixedBlocks<T>& blocks, Complex<V> z, size_t row, size_t column) {
  constexpr size_t L = kWidest<T>;
  const T* begin = blocks.begins + (column / L * blocks.columns.n + row) * 2;
  return product(z, product(group<L>(blocks.lanes + row * 2 * L), begin[0], begin[1]));
}
template <class T, class V>
QVX_INLINE ComplexVector<V, false> rotated(const MixedBlocks<T>& blocks, ComplexVector<V, false> z, size_t row, size_t column) {
  constexpr size_t L = kWidest<T>;
  const T* begin = blocks.begins + (column / L * blocks.columns.n + row) * 2;
  return rotatedBy(product(z, begin[0], begin[1]), blocks.lanes + (row * L + column % L) * 2);
}

}  // namespace qvx::transform
