// Odd numbers of points by the definition: vectors of results, into which every point goes with the cosines and sines that belong
// to it. Points at equal distances from the first are added and subtracted before; so are results.
//
// As many vectors of results as registers hold are made at a time, so the sums of two points are loaded once for all of them.
// Parts stay interleaved, and nothing but the last results is shuffled.
#pragma once

#include <cstring>

#include "transform/layout.h"
#include "transform/mixed_plan.h"
#include "transform/small_interleaved.h"

namespace qvx::dft {

using namespace transform;

// The bytes of a plan's tables, and of each transform's working memory.
struct Bytes {
  int64_t tables;
  int64_t work;
};

// The longest primes by the definition, of kInputs numbers (2: complex points, 1: reals): beyond, a convolution was measured to
// be faster. 97 complex doubles would take 1.28 to 1.53 of its time, floats of 16 bytes 1.14; 113 floats of 64 bytes 1.6; 181
// real doubles 1.2 to 1.4; 211 real floats of 64 bytes 1.17.
template <size_t kInputs, class T>
inline constexpr uint32_t kMostDirect = kInputs == 1                        ? (sizeof(T) == 4 ? 199 : 151)
                                        : kWidest<T> >= 8 && sizeof(T) == 4 ? 101
                                                                            : 89;

constexpr bool isPrime(uint32_t n) {
  for (uint32_t p = 2; p * p <= n; ++p) {
    if (n % p == 0) return false;
  }
  return n > 1;
}

// Pairs of numbers in a vector: complex points, or the cosine and the sine of a point.
template <class T> inline constexpr size_t kPairs = kWidest<T> / 2;

// For vectors of the results 1..H, H = n/2, by blocks: for k = 1..H, for each vector cosines and sines side by side; of complex
// points each cosine twice for each vector, then each sine twice. Where a vector is one point, each of them once.
template <class T> struct DirectPlan {
  uint32_t n;
  uint8_t block;   // vectors of results in a block
  uint8_t larger;  // blocks of one vector more, which go first
  const T* table;

  size_t sizeOf(size_t at) const { return block + (at < larger ? 1 : 0); }
};

constexpr size_t ceilingOf(size_t a, size_t b) { return (a + b - 1) / b; }

// Vectors of sums, of kInputs each, that stay in registers: two less than there are for points, and one for a product.
template <size_t kInputs> inline constexpr size_t kMostAtATime = (kHasMasks ? 28 : 12) / kInputs;
// The first result of vector v; the last one overlaps the one before.
template <class T> size_t firstResultOf(size_t v, size_t n) { return std::min(1 + v * kPairs<T>, n / 2 + 1 - kPairs<T>); }
template <class T> size_t vectorsOf(size_t n) { return ceilingOf(n / 2, kPairs<T>); }

template <size_t kInputs, class T> inline constexpr size_t kEntry = kInputs == 2 && kPairs<T> == 1 ? 1 : kWidest<T>;

template <size_t kInputs, class T> Bytes chooseDirect(DirectPlan<T>& plan, uint32_t n) {
  plan.n = n;
  const size_t blocks = ceilingOf(vectorsOf<T>(n), kMostAtATime<kInputs>);
  plan.block = static_cast<uint8_t>(vectorsOf<T>(n) / blocks);
  plan.larger = static_cast<uint8_t>(vectorsOf<T>(n) % blocks);
  const size_t numbers = n / 2 * vectorsOf<T>(n) * kInputs * kEntry<kInputs, T>;
  return {static_cast<int64_t>(numbers * sizeof(T)) + Carver::kLine, 0};
}
template <size_t kInputs, class T> void writeDirect(DirectPlan<T>& plan, uint8_t* block) {
  const size_t n = plan.n;
  T* out = alignedUp(reinterpret_cast<T*>(block), Carver::kLine);
  plan.table = out;
  T turns[2][kMostDirect<kInputs, T>];  // cosines, sines
  writeTwiddles(
      n, n, [](size_t i) { return i; },
      [&](size_t i, double re, double im) { turns[0][i] = static_cast<T>(re), turns[1][i] = static_cast<T>(-im); });
  constexpr size_t kEach = kEntry<kInputs, T>;
  const size_t vectors = vectorsOf<T>(n);
  for (size_t v = 0, count = 0, at = 0; v < vectors; v += count, ++at) {
    count = plan.sizeOf(at);
    const size_t row = count * kInputs * kEach;
    for (size_t i = 0; i < row; ++i) {
      const size_t vector = v + i / kEach % count;
      const size_t result = firstResultOf<T>(vector, n) + i % kEach / 2;
      const T* const numbers = turns[kInputs == 2 ? i / kEach / count : i % 2];
      for (size_t k = 0, turn = result; k < n / 2; ++k, turn = turn + result < n ? turn + result : turn + result - n) {
        out[k * row + i] = numbers[turn];
      }
    }
    out += n / 2 * row;
  }
}

// A pair of numbers in all lanes.
template <class V, class T = LaneOf<V>> QVX_INLINE V everyPair(const T* p) {
  if constexpr (sizeof(T) == 8) {
    return hn::LoadDup128(TagOf<V>(), p);
  } else {
    double pair;
    std::memcpy(&pair, p, sizeof(pair));
    return as<float>(hn::Set(hn::Repartition<double, TagOf<V>>(), pair));
  }
}

// The pairs of a vector in the opposite order.
template <class V> QVX_INLINE V pairsReversed(V v) {
  if constexpr (kLanesOf<V> == 2) return v;
  else return swapped(reversed(v));
}
template <class V> QVX_INLINE auto sumOfPairs(V v) {
  if constexpr (kLanesOf<V> == 2) {
    return v;
  } else {
    const hn::Half<TagOf<V>> d;
    return sumOfPairs(hn::LowerHalf(d, v) + hn::UpperHalf(d, v));
  }
}

// Room for the sums of two points each, or for their differences.
template <class T> inline constexpr size_t kRoom = (kMostDirect<2, T> + 15) / 16 * 16;

// sums[input][j] += the sum of table[k][input][j] * points[input][k] over H points. By parts of up to 24, since an error grows
// with the length of a sum.
template <size_t kInputs, size_t J, class V, class T = LaneOf<V>>
QVX_INLINE void sumsOfTurns(const T* table, const T* points, size_t H, V (&sums)[kInputs][J]) {
  constexpr size_t kEach = kEntry<kInputs, T>;
  constexpr size_t kChains = kInputs * J <= 6 ? 2 : 1;  // few sums would wait for one another
  constexpr size_t kAll = kInputs * J;
  for (size_t k = 0; k < H;) {
    const size_t end = std::min<size_t>(k + 24, H);
    V part[kChains][kAll];
    unrolled<kChains * kAll>([&](auto i) __attribute__((always_inline)) { part[i / kAll][i % kAll] = hn::Zero(TagOf<V>()); });
    const auto take = [&](V(&to)[kAll]) __attribute__((always_inline)) {
      unrolled<kInputs>([&](auto input) __attribute__((always_inline)) {
        const V point = everyPair<V>(points + input * kRoom<T>);
        unrolled<J>([&](auto j) __attribute__((always_inline)) {
          constexpr size_t i = input * J + j;
          const T* at = table + i * kEach;
          if constexpr (kEach == 1) to[i] = hn::MulAdd(same<V>(*at), point, to[i]);
          else to[i] = hn::MulAdd(load(TagOf<V>(), at), point, to[i]);
        });
      });
      table += kAll * kEach;
      points += 2;
    };
    if constexpr (kChains == 2) {
      for (; k + 2 <= end; k += 2) take(part[0]), take(part[1]);
    }
    for (; k < end; ++k) take(part[0]);
    unrolled<kAll>([&](auto i) __attribute__((always_inline)) {
      if constexpr (kChains == 2) part[0][i] = part[0][i] + part[1][i];
      sums[i / J][i % J] = sums[i / J][i % J] + part[0][i];
    });
  }
}

// put(v, sums): the sums of vector v, beginning with `first`.
template <size_t kInputs, size_t J, class T, class V, class Put>
QVX_INLINE void putBlock(const DirectPlan<T>& plan, size_t v, const T* table, const T* points, const V (&first)[kInputs],
                         Put put) {
  V sums[kInputs][J];
  unrolled<kInputs * J>([&](auto i) __attribute__((always_inline)) { sums[i / J][i % J] = first[i / J]; });
  sumsOfTurns(table, points, plan.n / 2, sums);
  unrolled<J>([&](auto j) __attribute__((always_inline)) {
    if constexpr (kInputs == 2) put(v + j, sums[0][j], sums[1][j]);
    else put(v + j, sums[0][j]);
  });
}
template <size_t kInputs, size_t J = kMostAtATime<kInputs>, class T, class V, class Put>
QVX_INLINE void putBlockOf(size_t count, const DirectPlan<T>& plan, size_t v, const T* table, const T* points,
                           const V (&first)[kInputs], Put put) {
  if (J == 1 || count == J) return putBlock<kInputs, J>(plan, v, table, points, first, put);
  if constexpr (J > 1) putBlockOf<kInputs, J - 1>(count, plan, v, table, points, first, put);
}
template <size_t kInputs, class T, class V, class Put>
QVX_INLINE void putSums(const DirectPlan<T>& plan, const T* points, const V (&first)[kInputs], Put put) {
  const size_t vectors = vectorsOf<T>(plan.n);
  const T* table = plan.table;
  for (size_t v = 0, count = 0, at = 0; v < vectors; v += count, ++at) {
    count = plan.sizeOf(at);
    putBlockOf<kInputs>(count, plan, v, table, points, first, put);
    table += count * (plan.n / 2) * kInputs * kEntry<kInputs, T>;
  }
}

// Points k = 1 .. H plus n - k, then minus. Returns the sum of all.
template <class T> QVX_INLINE auto foldPoints(const T* src, size_t n, T (&points)[2 * kRoom<T>]) {
  constexpr size_t P = kPairs<T>;
  const auto fold = [&](auto d, size_t k, size_t count) __attribute__((always_inline)) {
    const auto x = load(d, src + 2 * k);
    const auto y = pairsReversed(load(d, src + 2 * (n - k - count + 1)));
    store(x + y, d, points + 2 * k - 2);
    store(x - y, d, points + kRoom<T> + 2 * k - 2);
    return x + y;
  };
  auto totals = hn::Zero(Lanes<T, 2 * P>());
  size_t k = 1;
  for (; k + P <= n / 2 + 1; k += P) totals = totals + fold(Lanes<T, 2 * P>(), k, P);
  auto total = load(Lanes<T, 2>(), src) + sumOfPairs(totals);
  if constexpr (P > 1) {
    for (; k <= n / 2; ++k) total = total + fold(Lanes<T, 2>(), k, 1);
  }
  return total;
}

template <class T> [[gnu::noinline]] void direct(const DirectPlan<T>& plan, bool isInverse, const T* src, T* dst, T factor) {
  constexpr size_t P = kPairs<T>;
  const Lanes<T, 2 * P> d;
  using V = Vec<Lanes<T, 2 * P>>;
  const size_t n = plan.n;
  alignas(64) T points[2 * kRoom<T>];
  const V first[] = {everyPair<V>(src), hn::Zero(d)};
  const auto total = foldPoints(src, n, points);
  store(total * same<decltype(total)>(factor), Lanes<T, 2>(), dst);
  // Forward, a result is even - i odd, and the one at the same distance from the end even + i odd.
  const V signs = alternating<V>() * same<V>(isInverse ? -factor : factor);
  putSums<2>(
      plan, points, first, [=](size_t v, V even, V odd) __attribute__((always_inline)) {
        const size_t at = firstResultOf<T>(v, n);
        const V both = even * same<V>(factor);
        const V turned = swapped(odd);
        store(hn::MulAdd(turned, signs, both), d, dst + 2 * at);
        store(pairsReversed(hn::NegMulAdd(turned, signs, both)), d, dst + 2 * (n - at - P + 1));
      });
}

// To `pairs`: of numbers k = 1 .. H and n - k the sum, beside the difference with the sign of the spectrum's imaginary parts.
// Returns the sum of all.
template <class T> QVX_INLINE T foldNumbers(const T* src, size_t n, T* pairs) {
  constexpr size_t L = std::min<size_t>(kWidest<T>, 8);
  const Lanes<T, L> d;
  using V = Vec<Lanes<T, L>>;
  const size_t half = n / 2;
  V totals = hn::Zero(d);
  size_t k = 1;
  for (; k + L <= half + 1; k += L) {
    const V x = load(d, src + k);
    const V y = reversed(load(d, src + n - k - L + 1));
    const auto both = interleaved(Pair<V>{x + y, y - x});
    store(both.lo, d, pairs + 2 * k - 2);
    store(both.hi, d, pairs + 2 * k - 2 + L);
    totals = totals + (x + y);
  }
  // Written as pairs, since they are read as pairs.
  auto rest = hn::Zero(Lanes<T, 2>());
  for (; k <= half; ++k) {
    const auto x = same<decltype(rest)>(src[k]);
    const auto y = same<decltype(rest)>(src[n - k]);
    const auto both = hn::MulAdd(x, alternating<decltype(rest)>(), y);
    store(both, Lanes<T, 2>(), pairs + 2 * k - 2);
    rest = rest + both;
  }
  return src[0] + hn::GetLane(hn::SumOfLanes(d, totals)) + hn::GetLane(rest);
}

// first in every cosine's lane.
template <class V> QVX_INLINE V besideZeros(LaneOf<V> first) { return hn::OddEven(hn::Zero(TagOf<V>()), same<V>(first)); }

template <class T>
[[gnu::noinline]] void directForward(const DirectPlan<T>& plan, SpectrumLayout layout, const T* src, T* dst, T factor) {
  const Lanes<T, kWidest<T>> d;
  using V = Vec<Lanes<T, kWidest<T>>>;
  const size_t n = plan.n;
  alignas(64) T points[kMostDirect<1, T>];
  const V first[] = {besideZeros<V>(src[0])};
  const T total = foldNumbers(src, n, points);
  dst[0] = total * factor;
  if (layout == SpectrumLayout::kCcs) dst[1] = 0;
  T* const pairs = dst + placeOfPair(layout, n, 1) - 2;
  putSums<1>(
      plan, points, first, [=](size_t v, V sum) __attribute__((always_inline)) {
        store(sum * same<V>(factor), d, pairs + 2 * firstResultOf<T>(v, n));
      });
}

template <class T>
[[gnu::noinline]] void directInverse(const DirectPlan<T>& plan, SpectrumLayout layout, const T* src, T* dst, T factor) {
  constexpr size_t P = kPairs<T>;
  using V = Vec<Lanes<T, 2 * P>>;
  const size_t n = plan.n;
  const size_t half = n / 2;
  const T* pairs = src + placeOfPair(layout, n, 1);
  T copy[kMostDirect<1, T>];
  if (src == dst && vectorsOf<T>(n) > kMostAtATime<1>) {
    std::copy_n(pairs, 2 * half, copy);
    pairs = copy;
  }
  const V first[] = {besideZeros<V>(T(0.5) * src[0])};
  T total = T(0.5) * src[0];
  for (size_t k = 0; k < half; ++k) total += pairs[2 * k];
  factor *= 2;
  // Sums with cosines beside those with sines.
  putSums<1>(
      plan, pairs, first, [=](size_t v, V sum) __attribute__((always_inline)) {
        const size_t at = firstResultOf<T>(v, n);
        const V both = minusPlus(sum, swapped(sum)) * same<V>(factor);
        if constexpr (P == 1) {
          dst[at] = hn::GetLane(both);
          dst[n - at] = hn::GetLane(swapped(both));
        } else {
          const hn::Half<TagOf<V>> d;
          const auto parts = deinterleaved(Pair<V>{both, both});
          store(hn::LowerHalf(d, parts.lo), d, dst + at);
          store(reversed(hn::LowerHalf(d, parts.hi)), d, dst + n - at - P + 1);
        }
      });
  dst[0] = total * factor;
}

}  // namespace qvx::dft
