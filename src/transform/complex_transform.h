// Complex transforms of powers of two: the plan of a length, and the kernel that it takes.
#pragma once

#include "transform/small.h"
#include "transform/tiled.h"

namespace qvx::transform {

// The longest transform that the caches serve whole; longer ones go by blocks.
template <class T> inline constexpr size_t kLongestInCache = size_t{1} << (sizeof(T) == 4 ? 17 : 16);
// From here on two threads are faster than one: points pass from one's caches to the other's. 2^15 floats take 1.25 of the time.
template <class T> inline constexpr size_t kWorthTeam = size_t{1} << (sizeof(T) == 4 ? 16 : 15);

// Passes and twiddles of n points.
template <class T> struct ComplexPlan {
  uint32_t n;
  int32_t workBytes;
  Plan<T> plan;  // of the transform, or of the rows of a blocked one
  BlockedPlan<T> blocked;

  // Between which a transform is divided now.
  int threads() const { return plan.threads > 1 && n >= kWorthTeam<T> ? std::min(int{plan.threads}, ownGetNumThreads()) : 1; }
};

// The lanes of a transform that keeps its twiddles in a record.
template <class T, class Step> QVX_INLINE constexpr void withLanes(size_t n, Step step) {
  constexpr size_t kFull = kWidest<T>;
  if constexpr (kFull * kFull > 64) {
    if (lanesFor<T>(n) != kFull) return step(std::integral_constant<size_t, kFull / 2>());
  }
  step(std::integral_constant<size_t, kFull>());
}

// Lengths that the widest registers hold whole, and how.
enum class Fold { kNone, kSquare, kHalves };
template <class T> constexpr Fold foldOf(size_t n) {
  constexpr size_t kSquare = kWidest<T> * kWidest<T>;
  if (n <= size_t{1} << kShortOrder<Split<T>>) return Fold::kNone;
  return n == kSquare ? Fold::kSquare : 2 * n == kSquare ? Fold::kHalves : Fold::kNone;
}

// The twiddles of n points, from `row` on, a cache line; the end of them. LaneOrder: that of the lanes in its source.
template <class LaneOrder, class T, class Write = BySines>
constexpr T* writePassesAt(Plan<T>& plan, size_t n, T* row, Write write = {}) {
  plan.rowTwiddles = row;
  if (foldOf<T>(n) == Fold::kHalves) {
    constexpr size_t L = kWidest<T>;
    write(
        n, n - L, [](size_t i) { return i % L * (i / L + 1); }, intoGroups<L>(row));
    return row + 2 * (n - L);
  }
  T* end = row;
  if constexpr (kServesInterleaved<LaneOrder>) {
    if (isInterleavedLength<T>(n)) return writeInterleavedPasses(plan, n, row, write);
  }
  withLanes<T>(n, [&](auto L) {
    plan.rows = static_cast<uint32_t>(n / kRowRadix<L>);
    plan.levels = passLevels(plan.rows);
    T* const levels = writeRowTwiddles<L, LaneOrder>(plan.rows, row, write);
    plan.levelTwiddles = levels;
    end = writeLevelTwiddles(plan.levels, plan.rows, levels, write);
  });
  return end;
}
template <class LaneOrder, class T> T* writePasses(Plan<T>& plan, size_t n, T* block) {
  return writePassesAt<LaneOrder>(plan, n, alignedUp(block, Carver::kLine));
}
template <class LaneOrder, class T> T* writePlan(ComplexPlan<T>& plan, size_t n, T* block) {
  plan.n = static_cast<uint32_t>(n);
  if (n <= size_t{1} << kShortOrder<LaneOrder>) return block;
  constexpr size_t L = kWidest<T>;
  if constexpr (kHasTiles<T, LaneOrder>) {
    if (isTiled<T>(n)) return writeTiledTwiddles<L, LaneOrder>(plan.blocked, n, alignedUp(block, Carver::kLine));
  }
  if (n <= kLongestInCache<T>) return writePasses<LaneOrder>(plan.plan, n, block);
  const size_t m = n / kBlockPoints / kBlockPoints;
  T* end = writePasses<LaneOrder>(plan.plan, kBlockPoints, block);
  end = writeColumnTwiddles<L, LaneOrder>(plan.blocked.outer, kBlockPoints, m * kBlockPoints, end);
  withBlockLanes<L, T>(m, [&](auto N) { end = writeColumnTwiddles<N, LaneOrder>(plan.blocked.inner, m, kBlockPoints, end); });
  if constexpr (kTransposes<L, T> && kIsInterleaved<LaneOrder>) {
    if (n <= kMostTransposed) end = writeTransposedTwiddles<L, LaneOrder>(m * kBlockPoints, end);
  }
  return end;
}

// More points than those of smallTransform.
template <class T, class Src, class Dst, class Scale>
[[gnu::noinline]] void longTransform(const ComplexPlan<T>& plan, Src src, Dst dst, T* y, Scale scale) {
  constexpr size_t L = kWidest<T>;
  const int threads = plan.threads();
  if constexpr (kHasTiles<T, Src>) {
    if (isTiled<T>(plan.n)) {
      return tiledTransform<L>(static_cast<size_t>(threads), plan.blocked, plan.n, src, dst, y, scale);
    }
  }
  if (plan.n > kLongestInCache<T>) {
    const size_t tile = static_cast<size_t>(plan.workBytes) / (2 * sizeof(T));
    if constexpr (kTransposes<L, T> && kIsInterleaved<Src>) {
      if (plan.n <= kMostTransposed && src.p != dst.p) {
        return transposedTransform<L>(static_cast<size_t>(threads), plan.blocked, plan.n, tile, src, dst, y, factorOf<T>(scale));
      }
    }
    return blockedTransform<L>(static_cast<size_t>(threads), plan.plan, plan.blocked, plan.n, tile, src, dst, y,
                               factorOf<T>(scale));
  }
  if (threads > 1) return runPassesInTeam<L>(threads, plan.plan, src, dst, y, scale);
  constexpr size_t kShort = size_t{1} << kShortOrder<Src>;
  switch (foldOf<T>(plan.n)) {
    case Fold::kSquare:
      if constexpr (L * L > kShort && !kServesInterleaved<Src>)
        return foldedTransform<L * L, L>(src, dst, plan.plan.rowTwiddles, scale);
      break;
    case Fold::kHalves:
      if constexpr (L * L / 2 > kShort) return foldedTransform<L * L / 2, L>(src, dst, plan.plan.rowTwiddles, scale);
      break;
    case Fold::kNone:
      break;
  }
  if constexpr (kHasMasks && kIsInterleaved<Src>) {
    const T* const row = plan.plan.rowTwiddles;
    const T* const inner = plan.plan.levelTwiddles;
    if (src.p != dst.p && reinterpret_cast<uintptr_t>(dst.p) % kVectorBytes == 0) {
      if (plan.plan.rows == 128) return passesInDestination<8, 16, L>(src, dst, row, inner, scale);
      if (plan.plan.rows == 256) return passesInDestination<16, 16, L>(src, dst, row, inner, scale);
    }
  }
  if constexpr (kServesInterleaved<Src>) {
    if (isInterleavedLength<T>(plan.n)) return interleavedPasses(plan.n, plan.plan, src, dst, y, scale);
  }
  withLanes<T>(plan.n, [&](auto L) { runPasses<L>(plan.plan, src, dst, y, scale); });
}

template <class T, class Src, class Dst, class Scale>
[[gnu::noinline]] void complexTransform(const ComplexPlan<T>& plan, Src src, Dst dst, T* y, Scale scale) {
  if (plan.n <= size_t{1} << kShortOrder<Src>) smallTransform(log2Of(plan.n), src, dst, scale);
  else longTransform(plan, src, dst, y, scale);
}

// Instantiated where the exports of complex numbers are; those of real ones call the same.
extern template void complexTransform(const ComplexPlan<float>&, Interleaved<const float, false>, Interleaved<float, false>,
                                      float*, Unscaled);
extern template void complexTransform(const ComplexPlan<float>&, Interleaved<const float, false>, Interleaved<float, false>,
                                      float*, ScaledBy<float>);
extern template void complexTransform(const ComplexPlan<float>&, Interleaved<const float, true>, Interleaved<float, true>, float*,
                                      ScaledBy<float>);
extern template void complexTransform(const ComplexPlan<double>&, Interleaved<const double, false>, Interleaved<double, false>,
                                      double*, Unscaled);
extern template void complexTransform(const ComplexPlan<double>&, Interleaved<const double, false>, Interleaved<double, false>,
                                      double*, ScaledBy<double>);
extern template void complexTransform(const ComplexPlan<double>&, Interleaved<const double, true>, Interleaved<double, true>,
                                      double*, ScaledBy<double>);

}  // namespace qvx::transform
