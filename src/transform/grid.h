// Transforms of R * C points, both up to 32, on complex numbers as they stand in memory: R points down each column of a grid,
// twiddles, C points along each row.
//
// A vector holds P columns, then, transposed in squares, P rows. Where they do not divide C or R, the last ones are done twice.
// What stands between is whole vectors on the stack, each loaded as it was stored: 48 points take 20 ns, where parts in planes and
// rows of another length than a vector's take 70.
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
    case 20:
      return step(std::integral_constant<size_t, 20>());
    case 24:
      return step(std::integral_constant<size_t, 24>());
    case 25:
      return step(std::integral_constant<size_t, 25>());
    case 27:
      return step(std::integral_constant<size_t, 27>());
    case 30:
      return step(std::integral_constant<size_t, 30>());
    case 32:
      return step(std::integral_constant<size_t, 32>());
    default:
      return withMixedRadix(radix, step);
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
      return 520;
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
// Columns in a vector. Half of the widest register: 5 columns are seldom worth 8.
template <class T> inline constexpr size_t kGridColumns = std::min<size_t>(kVectorBytes, 32) / (2 * sizeof(T));

template <class T> struct GridPlan {
  uint8_t down;    // R
  uint8_t across;  // C
  const T* twiddles;  // for each vector of columns, for j = 1..R-1: P real parts twice, then P imaginary parts with both signs
};

constexpr size_t vectorsOf(size_t count, size_t lanes) { return (count + lanes - 1) / lanes; }

// False where n is no such product.
template <class T> bool chooseGrid(GridPlan<T>& plan, uint32_t n) {
  constexpr size_t P = kGridColumns<T>;
  uint64_t best = UINT64_MAX;
  for (const uint32_t across : kGridRadices) {
    const uint32_t down = n / across;
    if (n % across != 0 || down < P || !std::binary_search(std::begin(kGridRadices), std::end(kGridRadices), down)) continue;
    const uint64_t cost = vectorsOf(across, P) * (costInGrid(down) + 4 * down) + vectorsOf(down, P) * (costInGrid(across) + 4 * across);
    if (cost >= best) continue;
    best = cost;
    plan = {static_cast<uint8_t>(down), static_cast<uint8_t>(across), nullptr};
  }
  return best != UINT64_MAX;
}
template <class T> size_t tableLength(const GridPlan<T>& plan) {
  return vectorsOf(plan.across, kGridColumns<T>) * (plan.down - 1U) * 4 * kGridColumns<T> + Carver::kLine / sizeof(T);
}
constexpr size_t gridColumn(size_t vector, size_t columns, size_t lanes) {
  return columns < lanes ? 0 : std::min(vector * lanes, columns - lanes);
}
template <class T> void writeGrid(GridPlan<T>& plan, T* block) {
  constexpr size_t P = kGridColumns<T>;
  T* const out = alignedUp(block, Carver::kLine);
  plan.twiddles = out;
  const size_t others = plan.down - 1U;
  const size_t across = plan.across;
  writeTwiddles(
      plan.down * across, vectorsOf(across, P) * others * P,
      [=](size_t i) { return (i / P % others + 1) * (gridColumn(i / (P * others), across, P) + i % P); },
      [out](size_t i, double re, double im) {
        T* const at = out + i / P * 4 * P + 2 * (i % P);
        at[0] = at[1] = static_cast<T>(re);
        at[2 * P] = static_cast<T>(-im);
        at[2 * P + 1] = static_cast<T>(im);
      });
}

// signs: -0 where an inverse transform takes the conjugate.
template <size_t R, class T>
[[gnu::noinline]] void downGrid(const T* src, T* y, size_t across, const T* twiddles, const T* signs) {
  constexpr size_t P = kGridColumns<T>;
  const Lanes<T, 2 * P> d;
  using V = Vec<Lanes<T, 2 * P>>;
  const V sign = load(d, signs);
  for (size_t h = 0; h < vectorsOf(across, P); ++h, y += R * 2 * P) {
    const T* column = src + 2 * gridColumn(h, across, P);
    ComplexVector<V, false> x[R];
    if (across >= P) {
      unrolled<R>([&](auto j) __attribute__((always_inline)) { x[j].v = hn::Xor(load(d, column + j * 2 * across), sign); });
    } else {
      unrolled<R>([&](auto j) __attribute__((always_inline)) {
        x[j].v = hn::Xor(firstLanes(d, column + j * 2 * across, 2 * across), sign);
      });
    }
    anyDft(x);
    store(x[0].v, d, y);
    unrolled<R - 1>([&](auto j) __attribute__((always_inline)) {
      store(twiddled<false>(x[j + 1].v, twiddles), d, y + (j + 1) * 2 * P);
      twiddles += 4 * P;
    });
  }
}

// factors: that of the transform, its sign turned for imaginary parts where the result is to be conjugate.
template <size_t C, class T> [[gnu::noinline]] void acrossGrid(const T* y, T* dst, size_t down, const T* factors) {
  constexpr size_t P = kGridColumns<T>;
  const Lanes<T, 2 * P> d;
  using V = Vec<Lanes<T, 2 * P>>;
  const V factor = load(d, factors);
  for (size_t q = 0; q < down; q += P) {
    const size_t row = std::min(q, down - P);
    ComplexVector<V, false> x[C];
    unrolled<vectorsOf(C, P)>([&](auto h) __attribute__((always_inline)) {
      V r[P];
      unrolled<P>([&](auto l) __attribute__((always_inline)) { r[l] = load(d, y + (h * down + row + l) * 2 * P); });
      transposePoints(r);
      constexpr size_t kFirst = gridColumn(h, C, P);
      unrolled<std::min(P, C)>([&](auto l) __attribute__((always_inline)) { x[kFirst + l].v = r[l]; });
    });
    anyDft(x);
    unrolled<C>([&](auto k) __attribute__((always_inline)) { store(x[k].v * factor, d, dst + 2 * (row + k * down)); });
  }
}

template <class T> void runGrid(const GridPlan<T>& plan, bool isInverse, const T* src, T* dst, T factor) {
  constexpr size_t P = kGridColumns<T>;
  alignas(64) T y[(kWidestGrid + P) * kWidestGrid * 2];
  alignas(64) T signs[2 * P];
  alignas(64) T factors[2 * P];
  const Lanes<T, 2 * P> d;
  using V = Vec<Lanes<T, 2 * P>>;
  const V turn = isInverse ? alternating<V>() : same<V>(T(1));
  store(hn::And(turn, same<V>(T(-0.0))), d, signs);
  store(turn * same<V>(factor), d, factors);
  withGridRadix(plan.down, [&](auto R) { downGrid<R>(src, y, plan.across, plan.twiddles, signs); });
  withGridRadix(plan.across, [&](auto C) { acrossGrid<C>(y, dst, plan.down, factors); });
}

}  // namespace qvx::transform
