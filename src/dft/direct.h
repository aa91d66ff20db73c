// Few points by the definition: vectors of results, into which every point goes with the cosines and sines that belong to it.
// Points at equal distances from the first are added and subtracted before; so are results.
//
// Parts stay interleaved. 13 complex floats take 20 operations of a vector of 64 bytes, where a network of sums takes 250 of
// single numbers, and nothing but the last results is shuffled.
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

inline constexpr uint32_t kMostDirect = 89;

constexpr bool isPrime(uint32_t n) {
  for (uint32_t p = 2; p * p <= n; ++p) {
    if (n % p == 0) return false;
  }
  return n > 1;
}

// Row k = 0..H, H = n/2, for results 0..H, filled up to whole vectors: of complex points each cosine twice, then each sine twice;
// of real numbers each cosine and sine side by side.
template <class T> struct DirectPlan {
  uint32_t n;
  bool isNarrow;  // half of the widest vector holds all
  const T* rows;

  size_t lanes() const { return isNarrow ? kWidest<T> / 2 : kWidest<T>; }
  size_t rowLength(bool isReal) const {
    const size_t row = (2 * (n / 2 + 1) + lanes() - 1) / lanes() * lanes();
    return isReal ? row : 2 * row;
  }
};

template <class T> Bytes chooseDirect(DirectPlan<T>& plan, uint32_t n, bool isReal) {
  plan.n = n;
  plan.isNarrow = kWidest<T> > 4 && 2 * (n / 2 + 1) <= kWidest<T> / 2;
  return {static_cast<int64_t>((n / 2 + 1) * plan.rowLength(isReal) * sizeof(T)) + Carver::kLine, 0};
}
template <class T> void writeDirect(DirectPlan<T>& plan, bool isReal, uint8_t* block) {
  T* const rows = alignedUp(reinterpret_cast<T*>(block), Carver::kLine);
  plan.rows = rows;
  const size_t row = plan.rowLength(isReal);
  const size_t results = isReal ? row / 2 : row / 4;
  T cosines[kMostDirect];
  T sines[kMostDirect];
  writeTwiddles(
      plan.n, plan.n, [](size_t i) { return i; },
      [&](size_t i, double re, double im) { cosines[i] = static_cast<T>(re), sines[i] = static_cast<T>(-im); });
  for (size_t k = 0; k <= plan.n / 2; ++k) {
    T* const out = rows + k * row;
    for (size_t j = 0; j < results; ++j) {
      const size_t turn = k * j % plan.n;
      out[2 * j] = cosines[turn];
      out[2 * j + 1] = isReal ? sines[turn] : cosines[turn];
      if (!isReal) out[2 * (results + j)] = out[2 * (results + j) + 1] = sines[turn];
    }
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

// The first n pairs in the opposite order, then anything.
template <class V> QVX_INLINE V pairsBackwards(V v, size_t n) {
  const TagOf<V> d;
  using I = hn::RebindToSigned<TagOf<V>>;
  using Int = hn::TFromD<I>;
  const auto lane = hn::Xor(hn::Set(I(), static_cast<Int>(2 * n - 1)) - hn::Iota(I(), 0), hn::Set(I(), Int{1}));
  return hn::TableLookupLanes(v, hn::IndicesFromVec(d, hn::And(lane, hn::Set(I(), static_cast<Int>(kLanesOf<V> - 1)))));
}

template <size_t L, class T> QVX_INLINE void direct(const DirectPlan<T>& plan, bool isInverse, const T* src, T* dst, T factor) {
  constexpr size_t P = L / 2;
  const Lanes<T, L> d;
  using V = Vec<Lanes<T, L>>;
  const size_t n = plan.n;
  const size_t half = n / 2;
  const size_t pairs = (n - 1) / 2;
  const size_t row = plan.rowLength(false);
  // Forward, a result is even - i odd, and the one at the same distance from the end even + i odd.
  const V signs = alternating<V>() * same<V>(isInverse ? -factor : factor);
  T points[2 * kMostDirect];
  if (half >= P && src == dst) {
    std::copy_n(src, 2 * n, points);
    src = points;
  }
  for (size_t at = 0; at <= half; at += P) {
    const T* cosines = plan.rows + 2 * at;
    const T* sines = cosines + row / 2;
    V even = everyPair<V>(src);
    V odd = hn::Zero(d);
    V even2 = odd;
    V odd2 = odd;
    const auto take = [&](size_t k, V & c, V & s) __attribute__((always_inline)) {
      cosines += row;
      sines += row;
      const V x = everyPair<V>(src + 2 * k);
      const V y = everyPair<V>(src + 2 * (n - k));
      c = hn::MulAdd(load(d, cosines), x + y, c);
      s = hn::MulAdd(load(d, sines), x - y, s);
    };
    size_t k = 1;
    for (; k + 1 <= pairs; k += 2) {
      take(k, even, odd);
      take(k + 1, even2, odd2);
    }
    if (k <= pairs) take(k, even, odd);
    if (half > pairs) even2 = hn::MulAdd(load(d, cosines + row), everyPair<V>(src + 2 * half), even2);
    const V both = (even + even2) * same<V>(factor);
    const V turned = swapped(odd + odd2);
    putFirstLanes(hn::MulAdd(turned, signs, both), d, dst + 2 * at, 2 * std::min(P, half + 1 - at));
    // Results at + 1 on, or 1 on; the last first.
    const size_t last = std::min(at + P - 1, pairs);
    const size_t count = last + 1 - std::max<size_t>(at, 1);
    if (last + 1 <= std::max<size_t>(at, 1)) continue;
    putFirstLanes(pairsBackwards(hn::NegMulAdd(turned, signs, both), last + 1 - at), d, dst + 2 * (n - last), 2 * count);
  }
}

template <class T> [[gnu::noinline]] void direct(const DirectPlan<T>& plan, bool isInverse, const T* src, T* dst, T factor) {
  if constexpr (kWidest < T >> 4) {
    if (plan.isNarrow) return direct<kWidest<T> / 2>(plan, isInverse, src, dst, factor);
  }
  direct<kWidest<T>>(plan, isInverse, src, dst, factor);
}

// The spectrum of n real numbers, as pairs.
template <size_t L, class T> QVX_INLINE void directForward(const DirectPlan<T>& plan, const T* src, T* dst, T factor) {
  const Lanes<T, L> d;
  using V = Vec<Lanes<T, L>>;
  const size_t n = plan.n;
  const size_t half = n / 2;
  const size_t pairs = (n - 1) / 2;
  const size_t row = plan.rowLength(true);
  const V minusI = alternating<V>() * same<V>(T(-1));
  for (size_t at = 0; at < 2 * (half + 1); at += L) {
    const T* coefficients = plan.rows + at;
    V sums = load(d, coefficients) * same<V>(src[0]);
    V sums2 = hn::Zero(d);
    // x + y where there is a cosine, y - x where a sine: the lanes of x times 1 and -1 in turn.
    const auto take = [&](size_t k, V & to) __attribute__((always_inline)) {
      coefficients += row;
      to = hn::MulAdd(load(d, coefficients), hn::NegMulAdd(same<V>(src[k]), minusI, same<V>(src[n - k])), to);
    };
    size_t k = 1;
    for (; k + 1 <= pairs; k += 2) {
      take(k, sums);
      take(k + 1, sums2);
    }
    if (k <= pairs) take(k, sums);
    if (half > pairs) sums2 = hn::MulAdd(load(d, coefficients + row), same<V>(src[half]), sums2);
    putFirstLanes((sums + sums2) * same<V>(factor), d, dst + at, std::min(L, 2 * (half + 1) - at));
  }
  dst[1] = 0;
  if (half > pairs) dst[n + 1] = 0;
}

template <class T>
[[gnu::noinline]] void directForward(const DirectPlan<T>& plan, SpectrumLayout layout, const T* src, T* dst, T factor) {
  const size_t n = plan.n;
  T spectrum[kMostDirect + 2];
  const bool isDirect = layout == SpectrumLayout::kCcs && (n < kWidest<T> || src != dst);
  T* const to = isDirect ? dst : spectrum;
  if (plan.isNarrow) directForward<std::max<size_t>(kWidest<T> / 2, 2)>(plan, src, to, factor);
  else directForward<kWidest<T>>(plan, src, to, factor);
  if (isDirect) return;
  const T first = spectrum[0];
  const T middle = spectrum[2 * (n / 2)];
  std::copy_n(spectrum + 2, 2 * ((n - 1) / 2), dst + placeOfPair(layout, n, 1));
  dst[0] = first;
  if (n % 2 == 0) dst[placeOfMiddle(layout, n)] = middle;
  if (layout != SpectrumLayout::kCcs) return;
  dst[1] = 0;
  if (n % 2 == 0) dst[n + 1] = 0;
}

template <size_t L, class T>
QVX_INLINE void directInverse(const DirectPlan<T>& plan, SpectrumLayout layout, const T* src, T* dst, T factor) {
  const Lanes<T, L> d;
  using V = Vec<Lanes<T, L>>;
  const size_t n = plan.n;
  const size_t half = n / 2;
  const size_t pairs = (n - 1) / 2;
  const size_t row = plan.rowLength(true);
  const V first = same<V>(T(0.5) * src[0]);
  const V middle = half > pairs ? same<V>(T(0.5) * src[placeOfMiddle(layout, n)]) : hn::Zero(d);
  src += placeOfPair(layout, n, 1);
  T numbers[kMostDirect];
  if (half >= L / 2 && 2 * (half + 1) > L) {
    std::copy_n(src, 2 * pairs, numbers);
    src = numbers;
  }
  const V f = same<V>(2 * factor);
  // Sums with cosines and with sines, side by side.
  const auto sumsAt = [&](size_t at) __attribute__((always_inline)) {
    const T* coefficients = plan.rows + at;
    V sums = load(d, coefficients) * first;
    V sums2 = hn::Zero(d);
    size_t k = 0;
    for (; k + 2 <= pairs; k += 2) {
      sums = hn::MulAdd(load(d, coefficients + (k + 1) * row), everyPair<V>(src + 2 * k), sums);
      sums2 = hn::MulAdd(load(d, coefficients + (k + 2) * row), everyPair<V>(src + 2 * k + 2), sums2);
    }
    if (k < pairs) sums = hn::MulAdd(load(d, coefficients + (k + 1) * row), everyPair<V>(src + 2 * k), sums);
    if (half > pairs) sums2 = hn::MulAdd(load(d, coefficients + half * row), middle, sums2);
    return sums + sums2;
  };
  constexpr size_t P = L / 2;
  for (size_t at = 0; at <= half; at += L) {
    const V low = sumsAt(2 * at);
    const V high = at + P <= half ? sumsAt(2 * at + L) : hn::Zero(d);
    const auto parts = deinterleaved(Pair<V>{low, high});
    const size_t last = std::min(at + L - 1, pairs);
    const size_t from = std::max<size_t>(at, 1);
    putFirstLanes((parts.lo - parts.hi) * f, d, dst + at, std::min(L, half + 1 - at));
    if (last < from) continue;
    T mirrored[L];
    store((parts.lo + parts.hi) * f, d, mirrored);
    for (size_t k = from; k <= last; ++k) dst[n - k] = mirrored[k - at];
  }
}

template <class T>
[[gnu::noinline]] void directInverse(const DirectPlan<T>& plan, SpectrumLayout layout, const T* src, T* dst, T factor) {
  if (plan.isNarrow) directInverse<std::max<size_t>(kWidest<T> / 2, 2)>(plan, layout, src, dst, factor);
  else directInverse<kWidest<T>>(plan, layout, src, dst, factor);
}

}  // namespace qvx::dft
