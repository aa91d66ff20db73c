// Transforms of R * C points, both up to 32, on complex numbers as they stand in memory: R points down each column of a grid,
// twiddles, C points along each row.
//
// A vector holds P columns, then, transposed in squares, P rows. Where they do not divide C or R, the last ones are done twice.
// What stands between is whole vectors on the stack, each loaded as it was stored: 48 points take 24 ns, where parts in planes
// and rows of another length than a vector's take 70. P rows stay in registers: 24 points take 14 ns, 18 through the stack.
#pragma once

#include "transform/mixed_plan.h"
#include "transform/small_interleaved.h"

namespace qvx::transform {

inline constexpr size_t kWidestGrid = 32;
inline constexpr uint8_t kGridRadices[] = {2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 15, 16, 18, 20, 24, 25, 27, 30, 32};
template <class Step> QVX_INLINE void withGridRadix(size_t radix, Step step) {
  switch (radix) {
    case 18:
      return step(std::integral_constant<size_t, 18>());
    case 21:  // is none of them: its kernels would take a third of the time of compiling them all
      return;
    case 30:
      return step(std::integral_constant<size_t, 30>());
    case 32:
      return step(std::integral_constant<size_t, 32>());
    default:
      return withLaterRadix(radix, step);
  }
}
constexpr uint32_t costInGrid(size_t radix) {
  switch (radix) {
    case 18:
      return 330;
    case 20:
      return 330;
    case 24:
      return 400;
    case 25:
      return 560;
    case 27:
      return 560;
    case 30:
      return 620;
    case 32:
      return 640;
    default:
      return costOfRadix(radix);
  }
}
constexpr uint32_t costDownGrid(uint32_t radix) { return kHasMasks ? costInGrid(radix) + 4 * radix : costInterleaved(radix); }
constexpr uint32_t costAcrossGrid(uint32_t radix) { return kHasMasks ? costDownGrid(radix) : costOfLastInterleaved(radix); }
inline constexpr size_t kMostWithShortRows = 3 << 10;  // bytes of points
// Columns in a vector: half of the widest register, since 5 columns are seldom worth 8; or twice as many.
template <class T> inline constexpr size_t kGridColumns = std::min<size_t>(kVectorBytes, 32) / (2 * sizeof(T));
template <class T> inline constexpr size_t kMostGridColumns = kVectorBytes / (2 * sizeof(T));

template <class T> struct GridPlan {
  uint8_t down;       // R
  uint8_t across;     // C
  uint8_t lanes;      // P
  const T* twiddles;  // for each vector of columns, for j = 1..R-1: P real parts twice, then P imaginary parts with both signs
};

constexpr size_t vectorsOf(size_t count, size_t lanes) { return (count + lanes - 1) / lanes; }

template <class T, class Step> QVX_INLINE constexpr void withGridColumns(size_t lanes, Step step) {
  if constexpr (kGridColumns<T> < kMostGridColumns<T>) {
    if (lanes == kMostGridColumns<T>) return step(std::integral_constant<size_t, kMostGridColumns<T>>());
  }
  step(std::integral_constant<size_t, kGridColumns<T>>());
}

// A column of as many points as a vector has columns: all stay in registers. Where there are 32 of the widest, up to 32 vectors
// do so: 80 to 128 complex doubles take 0.77 to 0.83 of what they take by the cheapest grid through memory, 144 to 240 floats
// 0.81 to 0.95; in half registers, of as many halves, 36 to 60 doubles 1.0 to 1.4.
template <class T> constexpr bool isInRegisters(size_t down, size_t across, size_t lanes) {
  return down == lanes && across <= (kHasMasks && lanes == kMostGridColumns<T> ? 32 : 16);
}

// False where n is no such product.
template <class T> constexpr bool chooseGrid(GridPlan<T>& plan, uint32_t n) {
  uint64_t best = UINT64_MAX;
  for (size_t P = kGridColumns<T>; P <= kMostGridColumns<T>; P *= 2) {
    for (const uint32_t across : kGridRadices) {
      const uint32_t down = n / across;
      if (n % across != 0 || down < P || !std::binary_search(std::begin(kGridRadices), std::end(kGridRadices), down)) continue;
      uint64_t cost = vectorsOf(across, P) * costDownGrid(down) + vectorsOf(down, P) * costAcrossGrid(across);
      // Measured: registers of 64 bytes take half as long again as the count says, the way through memory 150 more, 300 where
      // there are 32 registers.
      if (P > kGridColumns<T>) cost = cost * 3 / 2;
      if (!isInRegisters<T>(down, across, P)) cost += kHasMasks ? 300 : 150;
      // The longer transforms go down where the wait for the last rows is a good part of the time, else along rows, without
      // twiddles: 240 complex doubles take 0.94 by 12 down and 20 across of what they take the other way, 120 take 1.09 by 8
      // and 15, 300 floats 1.1 by 15 and 20.
      if (cost > best || (cost == best && n * 2 * sizeof(T) <= kMostWithShortRows)) continue;
      best = cost;
      plan = {static_cast<uint8_t>(down), static_cast<uint8_t>(across), static_cast<uint8_t>(P), nullptr};
    }
  }
  return best != UINT64_MAX;
}

// The radices that are ever chosen for P columns in a vector, powers of two having a transform of their own: with AVX-512 three
// in five. Only their kernels are compiled. And the most vectors that go through memory: 24 KiB of stack are all that a call
// takes.
template <class T, size_t P> struct GridRadices {
  bool down[kWidestGrid + 1] = {};
  bool downOfFew[kWidestGrid + 1] = {};
  bool across[kWidestGrid + 1] = {};
  bool inRegisters[kWidestGrid + 1] = {};
  size_t vectors = 1;

  constexpr GridRadices() {
    for (const uint32_t a : kGridRadices) {
      for (const uint32_t b : kGridRadices) {
        GridPlan<T> plan{};
        if (std::has_single_bit(a * b) || !chooseGrid(plan, a * b) || plan.lanes != P) continue;
        if (isInRegisters<T>(plan.down, plan.across, P)) {
          inRegisters[plan.across] = true;
        } else {
          (plan.across < P ? downOfFew : down)[plan.down] = across[plan.across] = true;
          vectors = std::max(vectors, vectorsOf(plan.across, P) * plan.down);
        }
      }
    }
  }
};
template <class T, size_t P> inline constexpr GridRadices<T, P> kGridRadicesOf;

constexpr size_t gridColumn(size_t vector, size_t columns, size_t lanes) {
  return columns < lanes ? 0 : std::min(vector * lanes, columns - lanes);
}
template <class T> constexpr size_t gridTwiddles(const GridPlan<T>& plan) {
  return vectorsOf(plan.across, plan.lanes) * (plan.down - 1U) * plan.lanes;
}
template <class T, class Write> constexpr void writeGridTwiddles(const GridPlan<T>& plan, T* out, Write write) {
  const size_t P = plan.lanes;
  const size_t across = plan.across;
  const auto column = [=](size_t vector, size_t lane) { return gridColumn(vector, across, P) + lane; };
  write(plan.down * across, gridTwiddles(plan), inTurn(P, plan.down - 1U, column), [=](size_t i, double re, double im) {
    const size_t lane = i & (P - 1);
    T* const at = out + 4 * (i - lane) + 2 * lane;
    at[0] = at[1] = static_cast<T>(re);
    at[2 * P] = static_cast<T>(-im);
    at[2 * P + 1] = static_cast<T>(im);
  });
}

// Up to here tables are constants of the code: records of cosine transforms have no room for them.
inline constexpr uint32_t kLongestReadyGrid = 50;

struct BySeries {
  template <class Index, class Put> constexpr void operator()(size_t n, size_t count, Index x, Put put) const {
    for (size_t i = 0; i < count; ++i) {
      const size_t at = x(i);
      put(i, cosineOfTurn(at, n), -sineOfTurn(at, n));
    }
  }
};
template <class T, uint32_t n>
constexpr GridPlan<T> kGridPlan = [] {
  GridPlan<T> plan{};
  return chooseGrid(plan, n) ? plan : GridPlan<T>{};
}();
template <class T, uint32_t n> struct ReadyGrid {
  T twiddles[4 * std::max<size_t>(gridTwiddles(kGridPlan<T, n>), 1)] = {};
  constexpr ReadyGrid() { writeGridTwiddles(kGridPlan<T, n>, twiddles, BySeries()); }
};
template <class T, uint32_t n> alignas(64) inline constexpr ReadyGrid<T, n> kReadyGrid;
template <class T, uint32_t n> constexpr const T* readyTwiddles() {
  if constexpr (kGridPlan<T, n>.down == 0) return nullptr;
  else return kReadyGrid<T, n>.twiddles;
}
template <class T> const T* readyGrid(uint32_t n) {
  static constexpr auto kAll = []<uint32_t... i>(std::integer_sequence<uint32_t, i...>) {
    return std::array<const T*, sizeof...(i)>{readyTwiddles<T, i>()...};
  }
  (std::make_integer_sequence<uint32_t, kLongestReadyGrid + 1>());
  return kAll[n];
}

template <class T> bool isReady(const GridPlan<T>& plan) { return size_t{plan.down} * plan.across <= kLongestReadyGrid; }
template <class T> size_t tableLength(const GridPlan<T>& plan) {
  return isReady(plan) ? 0 : 4 * gridTwiddles(plan) + Carver::kLine / sizeof(T);
}
template <class T> void writeGrid(GridPlan<T>& plan, T* block) {
  if (isReady(plan)) {
    plan.twiddles = readyGrid<T>(uint32_t{plan.down} * plan.across);
    return;
  }
  T* const out = alignedUp(block, Carver::kLine);
  plan.twiddles = out;
  writeGridTwiddles(plan, out, BySines());
}

template <class T, size_t P> using GridVector = Vec<Lanes<T, 2 * P>>;

// Points of P columns, `apart` from each other. kFew: there are fewer columns.
template <size_t P, bool kFew, class T, class Ends> struct GridColumns {
  const T* first;
  size_t apart;
  const Ends& ends;
  QVX_INLINE auto operator()(auto j) const {
    const Lanes<T, 2 * P> d;
    const T* const at = first + j * apart;
    return ComplexVector<GridVector<T, P>, false>{point(ends.point(kFew ? firstLanes(d, at, apart) : load(d, at)))};
  }
};
// Their results, rotated, to vectors of an array or in memory.
template <size_t P, class T, class To> struct GridTwiddles {
  const T* twiddles;
  To to;
  template <class Z> QVX_INLINE void operator()(auto j, Z z) const {
    if constexpr (j > 0) z.v = twiddled<false>(z.v, twiddles + (j - 1) * 4 * P);
    to(j, z.v);
  }
};
template <size_t kApart, class T> struct InMemory {
  T* first;
  template <class V> QVX_INLINE void operator()(auto k, V v) const { store(v, TagOf<V>(), first + k * kApart); }
};
template <size_t R, size_t P, bool kFew, class T, class Ends>
[[gnu::noinline]] void downGrid(const T* src, T* y, size_t across, const T* twiddles, const Ends& given) {
  const Ends ends = given;
  for (size_t h = 0; h < vectorsOf(across, P); ++h, y += R * 2 * P, twiddles += (R - 1) * 4 * P) {
    transformAny<R>(GridColumns<P, kFew, T, Ends>{src + 2 * gridColumn(h, across, P), 2 * across, ends},
                    GridTwiddles<P, T, InMemory<2 * P, T>>{twiddles, {y}});
  }
}

// Two rows of numbers of 64 or 128 bits need no shuffle: a point of both is two loads.
template <class T, size_t P> inline constexpr bool kJoinsRows = !kHasMasks && P == 2;
template <size_t C, size_t P, class T> struct JoinedRows {
  const T* first;
  size_t down;
  QVX_INLINE auto operator()(auto k) const {
    using V = GridVector<T, P>;
    constexpr size_t h = k / P;
    const T* const at = first + h * down * 2 * P + 2 * (k - gridColumn(h, C, P));
    if constexpr (P == 1) return ComplexVector<V, false>{point(load(TagOf<V>(), at))};
    else return ComplexVector<V, false>{fromHalves<V>(at, at + 2 * P)};
  }
};

template <size_t C, size_t P, class T, class Ends>
[[gnu::noinline]] void acrossGrid(const T* y, T* dst, size_t down, const Ends& given) {
  const Lanes<T, 2 * P> d;
  using V = GridVector<T, P>;
  using Z = ComplexVector<V, false>;
  const Ends ends = given;
  for (size_t q = 0; q < down; q += P) {
    const size_t row = std::min(q, down - P);
    const ResultsApart<T, Ends> results{dst + 2 * row, 2 * down, ends};
    if constexpr (P == 1 || kJoinsRows<T, P>) {
      transformAny<C>(JoinedRows<C, P, T>{y + row * 2 * P, down}, results);
    } else {
      Z x[C];
      unrolled<vectorsOf(C, P)>([&](auto h) __attribute__((always_inline)) {
        V r[P];
        unrolled<P>([&](auto l) __attribute__((always_inline)) { r[l] = load(d, y + (h * down + row + l) * 2 * P); });
        transposePoints(r);
        constexpr size_t kFirst = gridColumn(h, C, P);
        unrolled<std::min(P, C)>([&](auto l) __attribute__((always_inline)) { x[kFirst + l].v = r[l]; });
      });
      transformAny<C>(InArray<1, Z>{x}, results);
    }
  }
}

// P * C points without leaving registers.
template <size_t C, size_t P, bool kPlain, class T>
[[gnu::noinline]] void gridInRegisters(const T* src, T* dst, const T* twiddles, bool isInverse, T factor) {
  using V = GridVector<T, P>;
  using Z = ComplexVector<V, false>;
  using Ends = InterleavedEnds<V, kPlain>;
  const Ends ends(isInverse, factor);
  Z x[C];
  unrolled<vectorsOf(C, P)>([&](auto h) __attribute__((always_inline)) {
    constexpr size_t kFirst = gridColumn(h, C, P);
    V r[P];
    transformAny<P>(GridColumns<P, (C < P), T, Ends>{src + 2 * kFirst, 2 * C, ends},
                    GridTwiddles<P, T, InArray<1, V>>{twiddles + h * (P - 1) * 4 * P, {r}});
    transposePoints(r);
    unrolled<std::min(P, C)>([&](auto l) __attribute__((always_inline)) { x[kFirst + l].v = r[l]; });
  });
  transformAny<C>(InArray<1, Z>{x}, ResultsApart<T, Ends>{dst, 2 * P, ends});
}

template <size_t P, bool kPlain, class T> void runGrid(const GridPlan<T>& plan, bool isInverse, const T* src, T* dst, T factor) {
  constexpr auto& kUsed = kGridRadicesOf<T, P>;
  if constexpr (P > 1) {
    if (isInRegisters<T>(plan.down, plan.across, P)) {
      return withGridRadix(plan.across, [&](auto C) {
        if constexpr (kUsed.inRegisters[C]) gridInRegisters<C, P, kPlain>(src, dst, plan.twiddles, isInverse, factor);
      });
    }
  }
  alignas(64) T y[kUsed.vectors * 2 * P];
  const InterleavedEnds<GridVector<T, P>, kPlain> ends(isInverse, factor);
  withGridRadix(plan.down, [&](auto R) {
    if constexpr (kUsed.downOfFew[R]) {
      if (plan.across < P) return downGrid<R, P, true>(src, y, plan.across, plan.twiddles, ends);
    }
    if constexpr (kUsed.down[R]) downGrid<R, P, false>(src, y, plan.across, plan.twiddles, ends);
  });
  withGridRadix(plan.across, [&](auto C) {
    if constexpr (kUsed.across[C]) acrossGrid<C, P>(y, dst, plan.down, ends);
  });
}
template <class T> void runGrid(const GridPlan<T>& plan, bool isInverse, const T* src, T* dst, T factor) {
  withGridColumns<T>(plan.lanes, [&](auto P) {
    if (!isInverse && factor == 1) runGrid<P, true>(plan, isInverse, src, dst, factor);
    else runGrid<P, false>(plan, isInverse, src, dst, factor);
  });
}

}  // namespace qvx::transform
