// Which passes a transform takes, and their roots.
#pragma once

#include <algorithm>
#include <array>

#include "fft/passes.h"
#include "frame/record.h"
#include "frame/team.h"
#include "vector/sin_cos.h"

namespace qvx::fft {

// The lanes of a transform of 2^order points: as many as give the row pass a whole register in both directions.
template <class T> inline constexpr size_t kWidest = kVectorBytes / sizeof(T);
template <class T> constexpr size_t lanesFor(int order) {
  size_t lanes = kWidest<T>;
  while (lanes > 2 && lanes * lanes > size_t{1} << order) lanes /= 2;
  return lanes;
}

// The radices down 2^logRows rows, the last pass's last. Measured: those of large strides stay small, since points a power of two
// apart share a set of the cache; and 16 points need 32 registers.
struct Levels {
  size_t count = 0;
  size_t radix[6] = {};
};
constexpr Levels levelsFor(int logRows) {
  // log2 of each
  constexpr const char* kWide[] = {"", "1", "2", "3", "4", "23", "33", "34", "233", "333", "343", "3422", "22422", "33322"};
  constexpr const char* kNarrow[] = {"",    "1",   "2",    "3",    "22",    "23",    "33",    "223",
                                     "233", "333", "2233", "3233", "32322", "32323", "33332", "333222"};
  Levels levels;
  for (const char* bits = kHasMasks ? kWide[logRows] : kNarrow[logRows]; *bits != 0; ++bits) {
    levels.radix[levels.count++] = size_t{1} << (*bits - '0');
  }
  return levels;
}

constexpr int log2Of(size_t n) {
  int bits = 0;
  while (n >> bits > 1) ++bits;
  return bits;
}

template <class T> struct Plan {
  const T* rowRoots;
  const T* levelRoots;  // one level's behind another's
};

inline constexpr size_t kWidestRadix = kHasMasks ? 16 : 8;

template <class Step> QVX_INLINE void withRadix(size_t radix, Step step) {
  switch (radix) {
    case 2:
      return step(std::integral_constant<size_t, 2>());
    case 4:
      return step(std::integral_constant<size_t, 4>());
    case 8:
      return step(std::integral_constant<size_t, 8>());
    default:
      if constexpr (kHasMasks) return step(std::integral_constant<size_t, 16>());
  }
}

// Everything behind the row pass, block by block so that each is in the nearest cache that holds it.
template <size_t L, class T, class Dst, class Fit> struct Columns {
  static constexpr size_t kRow = kRowRadix<L> * 2;  // of y, in T

  Levels levels;
  Dst dst;
  Fit fit;

  static void inner(size_t radix, T* y, size_t stride, const T* roots, size_t from, size_t to) {
    withRadix(radix, [=](auto R) { innerPass<R, L>(y, stride, roots, from, to); });
  }
  void last(const T* y, size_t count, size_t at, size_t step) const {
    withRadix(levels.radix[levels.count - 1], [=, this](auto R) { lastPass<R, L>(y, count, dst, at, step, fit); });
  }
  // One block of `rows` rows, whose results go to rows at, at + step ...
  void block(T* y, size_t rows, const T* roots, size_t level, size_t at, size_t step) const {
    if (level + 1 == levels.count) return last(y, 1, at, step);
    const size_t radix = levels.radix[level];
    inner(radix, y, rows / radix, roots, 0, rows / radix);
    within(y, rows, roots, level, at, step, 0, radix);
  }
  // The parts `from` to `to` that the inner pass of this level has made of a block.
  void within(T* y, size_t rows, const T* roots, size_t level, size_t at, size_t step, size_t from, size_t to) const {
    const size_t radix = levels.radix[level];
    const size_t part = rows / radix;
    if (level + 2 == levels.count && from == 0 && to == radix) return last(y, radix, at, step);
    for (size_t a = from; a < to; ++a) {
      block(y + a * part * kRow, part, roots + part * (radix - 1) * 2, level + 1, at + a * step, step * radix);
    }
  }
};

template <size_t L, class T, class Src, class Dst, class Fit>
void transform(Plan<T> plan, int order, Src src, Dst dst, T* y, Fit fit) {
  const size_t rows = (size_t{1} << order) / kRowRadix<L>;
  rowPass<L>(src, y, rows, plan.rowRoots, 0, rows);
  Columns<L, T, Dst, Fit>{levelsFor(log2Of(rows)), dst, fit}.block(y, rows, plan.levelRoots, 0, 0, 1);
}

// The same on some threads: the row pass by its blocks, the first inner pass by its rows, and then the parts that has made.
template <size_t L, class T, class Src, class Dst, class Fit>
void transformInThreads(int threads, Plan<T> plan, int order, Src src, Dst dst, T* y, Fit fit) {
  const size_t rows = (size_t{1} << order) / kRowRadix<L>;
  const Columns<L, T, Dst, Fit> columns{levelsFor(log2Of(rows)), dst, fit};
  const size_t radix = columns.levels.radix[0];
  inThreads(threads, [&](size_t thread, size_t count) {
    const auto from = [=](size_t parts) { return parts * thread / count; };
    const auto to = [=](size_t parts) { return parts * (thread + 1) / count; };
    rowPass<L>(src, y, rows, plan.rowRoots, from(rows / L) * L, to(rows / L) * L);
#pragma omp barrier
    columns.inner(radix, y, rows / radix, plan.levelRoots, from(rows / radix), to(rows / radix));
#pragma omp barrier
    columns.within(y, rows, plan.levelRoots, 0, 0, 1, from(radix), to(radix));
    return qvxStatOk;
  });
}

// ---- Roots

// For i = 0..count-1: put(i, cos, sin) of -2 pi x(i) / n. Many at a time: what goes through memory between scalars and vectors
// has arrived when it is read: 3 ns for a root instead of 5.
template <class Index, class Put> void writeRoots(size_t n, size_t count, Index x, Put put) {
  constexpr size_t kMany = 64;
  constexpr size_t kLanes = kVectorBytes / sizeof(double);
  const Lanes<double, kLanes> d;
  const double step = -1 / static_cast<double>(n);
  double turns[kMany] = {};
  double cosine[kMany];
  double sine[kMany];
  for (size_t i = 0; i < count; i += kMany) {
    const size_t here = std::min(kMany, count - i);
    for (size_t k = 0; k < here; ++k) turns[k] = static_cast<double>(static_cast<int64_t>(x(i + k) & (n - 1))) * step;
    for (size_t k = 0; k < here; k += kLanes) {
      const auto root = sinCosOfTurns(load(d, turns + k));
      store(root.cosine, d, cosine + k);
      store(root.sine, d, sine + k);
    }
    for (size_t k = 0; k < here; ++k) put(i + k, cosine[k], sine[k]);
  }
}

// Where they go: into groups of L, or each with its parts side by side.
template <size_t L, class T> auto intoGroups(T* out) {
  return [out](size_t i, double re, double im) {
    T* at = out + i / L * 2 * L + i % L;
    at[0] = static_cast<T>(re);
    at[L] = static_cast<T>(im);
  };
}
template <class T> auto intoPairs(T* out) {
  return [out](size_t i, double re, double im) {
    out[2 * i] = static_cast<T>(re);
    out[2 * i + 1] = static_cast<T>(im);
  };
}

template <class T> struct RootSizes {
  size_t row;
  size_t levels;
};
template <class T> constexpr RootSizes<T> rootSizes(int order) {
  const size_t n = size_t{1} << order;
  const size_t radix = lanesFor<T>(order) < 4 ? 4 : lanesFor<T>(order);
  size_t rows = n / radix;
  RootSizes<T> sizes{rows * (radix - 1) * 2, 0};
  const Levels levels = levelsFor(log2Of(rows));
  for (size_t i = 0; i + 1 < levels.count; ++i) {
    rows /= levels.radix[i];
    sizes.levels += rows * (levels.radix[i] - 1) * 2;
  }
  return sizes;
}

template <size_t L, class Order, class T> void writeRowRoots(int order, T* out) {
  constexpr size_t R = kRowRadix<L>;
  const size_t n = size_t{1} << order;
  writeRoots(
      n, n / R * (R - 1),
      [](size_t i) { return (i / (L * (R - 1)) * L + Order::template element<L>(i % L)) * (i / L % (R - 1) + 1); },
      intoGroups<L>(out));
}

template <class T> T* writeLevelRoots(Levels levels, size_t rows, T* out) {
  for (size_t level = 0; level + 1 < levels.count; ++level) {
    const size_t k = levels.radix[level] - 1;
    writeRoots(
        rows, rows / (k + 1) * k, [k](size_t i) { return i / k * (i % k + 1); }, intoPairs(out));
    rows /= k + 1;
    out += rows * k * 2;
  }
  return out;
}

}  // namespace qvx::fft
