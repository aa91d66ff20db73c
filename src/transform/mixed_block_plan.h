// The plan of a transform in two dimensions, for mixed_blocks.h: its factors, and the twiddles between them.
#pragma once

#include "transform/mixed_plan.h"

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
  writeTwiddles(n, rows * vectors, inTurn(rows, 1, [](size_t vector, size_t row) { return vector * L * row; }), intoPairs(out));
  out += rows * vectors * 2;
  writeMixedColumns(blocks.rows, writeMixedColumns(blocks.columns, out));
}

// The twiddle of a row and the columns of a vector.
template <size_t L, class T> QVX_INLINE auto twiddleOf(const MixedBlocks<T>& blocks, size_t row, size_t vector) {
  const T* begin = blocks.begins + (vector * blocks.columns.n + row) * 2;
  return product(group<L>(blocks.lanes + row * 2 * L), begin[0], begin[1]);
}

}  // namespace qvx::transform
