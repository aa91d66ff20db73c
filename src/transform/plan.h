// Which passes a transform takes, and their twiddles.
#pragma once

#include <algorithm>
#include <array>

#include "frame/record.h"
#include "frame/rounding.h"
#include "frame/team.h"
#include "math/sin_cos.h"
#include "transform/passes.h"

namespace qvx::transform {

// The lanes of a transform of n points: as many as give the row pass a whole register in both directions.
template <class T> inline constexpr size_t kWidest = kVectorBytes / sizeof(T);
template <class T> constexpr size_t lanesFor(size_t n) {
  size_t lanes = kWidest<T>;
  while (lanes > 2 && lanes * lanes > n) lanes /= 2;
  return lanes;
}

constexpr int log2Of(size_t n) {
  int bits = 0;
  while (n >> bits > 1) ++bits;
  return bits;
}

// The radices of the passes down a number of rows, the last pass's last.
struct Levels {
  static constexpr size_t kMost = 7;
  uint8_t count = 0;
  uint8_t radix[kMost] = {};
};

// Of a power of two. Measured: radices of large strides stay small, since points a power of two apart share a set of the cache;
// and 16 points need 32 registers.
constexpr Levels levelsFor(size_t rows) {
  // log2 of each
  constexpr const char* kWide[] = {"", "1", "2", "3", "4", "23", "33", "34", "233", "333", "343", "3422", "3333", "3433"};
  constexpr const char* kNarrow[] = {"",    "1",   "2",    "3",    "22",    "23",    "33",    "223",
                                     "233", "333", "2233", "3233", "32322", "32323", "33332", "333222"};
  Levels levels;
  const int log2Rows = log2Of(rows);
  for (const char* bits = kHasMasks ? kWide[log2Rows] : kNarrow[log2Rows]; *bits != 0; ++bits) {
    levels.radix[levels.count++] = static_cast<uint8_t>(1 << (*bits - '0'));
  }
  return levels;
}

// Of the passes in a work array: two of 16 for 256 rows take 0.92 of the time of three where they do not go by tiles.
constexpr Levels passLevels(size_t rows) { return kHasMasks && rows == 256 ? Levels{2, {16, 16}} : levelsFor(rows); }

// A transform of rows * kRowRadix<L> points.
template <class T> struct Plan {
  const T* rowTwiddles;
  const T* levelTwiddles;  // one level's after another's
  uint32_t rows;
  Levels levels;
  uint8_t threads;
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

// All passes after the row pass, block by block, each in the nearest cache that holds it.
template <size_t L, class T, class Dst, class Scale> struct Columns {
  static constexpr size_t kRow = kRowRadix<L> * 2;  // of y, in T

  Levels levels;
  Dst dst;
  Scale scale;

  static void inner(size_t radix, T* y, size_t stride, const T* twiddles, size_t from, size_t to) {
    withRadix(radix, [=](auto R) { innerPass<R, L>(y, stride, twiddles, from, to); });
  }
  void last(const T* y, size_t count, size_t at, size_t step) const {
    withRadix(levels.radix[levels.count - 1], [=, this](auto R) { lastPass<R, L>(y, count, dst, at, step, scale); });
  }
  // One block of `rows` rows, whose results go to rows at, at + step ...
  void block(T* y, size_t rows, const T* twiddles, size_t level, size_t at, size_t step) const {
    if (level + 1 == levels.count) return last(y, 1, at, step);
    const size_t radix = levels.radix[level];
    inner(radix, y, rows / radix, twiddles, 0, rows / radix);
    within(y, rows, twiddles, level, at, step, 0, radix);
  }
  // The parts `from` to `to` that the inner pass of this level has made of a block.
  void within(T* y, size_t rows, const T* twiddles, size_t level, size_t at, size_t step, size_t from, size_t to) const {
    const size_t radix = levels.radix[level];
    const size_t part = rows / radix;
    if (level + 2 == levels.count && from == 0 && to == radix) return last(y, radix, at, step);
    for (size_t a = from; a < to; ++a) {
      block(y + a * part * kRow, part, twiddles + part * (radix - 1) * 2, level + 1, at + a * step, step * radix);
    }
  }
};

template <size_t L, class T, class Src, class Dst, class Scale>
void runPasses(const Plan<T>& plan, Src src, Dst dst, T* y, Scale scale) {
  rowPass<L>(src, y, plan.rows, plan.rowTwiddles, 0, plan.rows);
  Columns<L, T, Dst, Scale>{plan.levels, dst, scale}.block(y, plan.rows, plan.levelTwiddles, 0, 0, 1);
}

// The same by some threads, one after another: the row pass by its blocks, the first inner pass by its rows, and the parts that
// it has made.
template <size_t L, class T, class Src, class Dst, class Scale>
void runPassesInTeam(int threads, const Plan<T>& plan, Src src, Dst dst, T* y, Scale scale) {
  const size_t rows = plan.rows;
  const Columns<L, T, Dst, Scale> columns{plan.levels, dst, scale};
  const size_t radix = columns.levels.radix[0];
  const auto divide = [=](size_t parts, auto step) {
    const auto count = static_cast<size_t>(threads);
    inParts(threads, [=](size_t i) { return step(parts * i / count, parts * (i + 1) / count), qvxStatOk; });
  };
  divide(rows / L, [=](size_t from, size_t to) { rowPass<L>(src, y, rows, plan.rowTwiddles, from * L, to * L); });
  divide(rows / radix, [=](size_t from, size_t to) { columns.inner(radix, y, rows / radix, plan.levelTwiddles, from, to); });
  divide(radix, [=](size_t from, size_t to) { columns.within(y, rows, plan.levelTwiddles, 0, 0, 1, from, to); });
}

// ---- Twiddles

// For i = 0..count-1: put(i, cos, sin) of -2 pi x(i) / n. Many at a time: what goes through memory between scalars and vectors
// has arrived when it is read: 3 ns for a twiddle instead of 5. Where n is no power of two, a fraction of a turn is not exact:
// what exceeds whole quarters is reduced as a number of n-ths, and only then divided. A record is made once, for callers in any
// rounding mode: to nearest. In another, SSSE3 would find the wrong quarters, and transforms of doubles be off by 1e-7.
template <class Index, class Put> void writeTwiddles(size_t n, size_t count, Index x, Put put) {
  const RoundingScope nearest(Rounding::kNearest);
  constexpr size_t kMany = 64;
  constexpr size_t kLanes = kVectorBytes / sizeof(double);
  const Lanes<double, kLanes> d;
  using V = Vec<Lanes<double, kLanes>>;
  const double step = -1 / static_cast<double>(n);
  const bool isExact = (n & (n - 1)) == 0;
  double turns[kMany] = {};
  double cosine[kMany];
  double sine[kMany];
  const auto ofNths = [n, step, d](V nths) {
    const V all = same<V>(static_cast<double>(n));
    const V k = hn::Round(nths * same<V>(-4 * step));
    const V r = hn::NegMulAdd(k, all, same<V>(4) * nths);
    const V quarters = r / all;
    const V quarter = same<V>(0x1.921fb54442d18p+0);  // the angle, and 0x1.1a62633145c07p-54 more
    const V angle = quarters * quarter;
    V rest = hn::Zero(d);
    if constexpr (kFuses) {  // what division and product have lost: half of a twiddle's error
      const V lost = hn::NegMulAdd(quarters, all, r) / all;
      rest = hn::MulAdd(quarters, same<V>(0x1.1a62633145c07p-54), hn::MulSub(quarters, quarter, angle));
      rest = hn::MulAdd(lost, quarter, rest);
    }
    return sinCosOfQuarters<53>(k, angle, rest);
  };
  for (size_t i = 0; i < count; i += kMany) {
    const size_t here = std::min(kMany, count - i);
    for (size_t k = 0; k < here; ++k) {
      const size_t at = isExact ? x(i + k) & (n - 1) : x(i + k);
      turns[k] = static_cast<double>(static_cast<int64_t>(at)) * (isExact ? step : -1);
    }
    for (size_t k = 0; k < here; k += kLanes) {
      const auto twiddle = isExact ? sinCosOfTurns(load(d, turns + k)) : ofNths(load(d, turns + k));
      store(twiddle.cosine, d, cosine + k);
      store(twiddle.sine, d, sine + k);
    }
    for (size_t k = 0; k < here; ++k) put(i + k, cosine[k], sine[k]);
  }
}

// Where they go: into groups of L, or each with its parts side by side.
template <size_t L, class T> constexpr auto intoGroups(T* out) {
  return [out](size_t i, double re, double im) {
    T* at = out + i / L * 2 * L + i % L;
    at[0] = static_cast<T>(re);
    at[L] = static_cast<T>(im);
  };
}
template <class T> constexpr auto intoPairs(T* out) {
  return [out](size_t i, double re, double im) {
    out[2 * i] = static_cast<T>(re);
    out[2 * i + 1] = static_cast<T>(im);
  };
}

// x(i) for i = 0, 1, 2 ... in turn: of(group, lane) * j of the twiddles of a pass, in groups of so many lanes, for each of their
// columns j = 1..others. It counts, since divisions were three quarters of the time to make a record of 360 complex floats.
template <class Of> constexpr auto inTurn(size_t lanes, size_t others, Of of) {
  return [=, group = size_t{0}, j = size_t{1}, lane = size_t{0}](size_t) mutable {
    const size_t x = of(group, lane) * j;
    if (++lane == lanes) {
      lane = 0;
      if (++j > others) j = 1, ++group;
    }
    return x;
  };
}

// How a plan gets its twiddles: constant tables have a way of their own.
struct BySines {
  template <class Index, class Put> void operator()(size_t n, size_t count, Index x, Put put) const {
    writeTwiddles(n, count, x, put);
  }
};

template <size_t L, class LaneOrder, class T, class Write = BySines>
constexpr T* writeRowTwiddles(size_t rows, T* out, Write write = {}) {
  constexpr size_t R = kRowRadix<L>;
  const size_t count = rows * (R - 1);
  write(
      rows * R, count,
      [](size_t i) { return (i / (L * (R - 1)) * L + LaneOrder::template element<L>(i % L)) * (i / L % (R - 1) + 1); },
      intoGroups<L>(out));
  return out + 2 * count;
}

template <class T, class Write = BySines>
constexpr T* writeLevelTwiddles(const Levels& levels, size_t rows, T* out, Write write = {}) {
  for (size_t level = 0; level + 1 < levels.count; ++level) {
    const size_t k = levels.radix[level] - 1U;
    write(rows, rows / (k + 1) * k, inTurn(1, k, [](size_t group, size_t) { return group; }), intoPairs(out));
    rows /= k + 1;
    out += rows * k * 2;
  }
  return out;
}

}  // namespace qvx::transform
