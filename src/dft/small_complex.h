// Up to 15 points, in registers. An inverse transform is a forward one with its results in the opposite order.
//
// Registers of two points halve the work of nearly all: one half has what sums need, the other what differences do.
#pragma once

#include "dft/direct.h"

namespace qvx::dft {

// A point to a vector.
template <size_t N, class T> [[gnu::noinline]] QvxStatus inRegisters(bool isInverse, const T* src, T* dst, T factor) {
  const Lanes<T, 2> d;
  using V = Vec<Lanes<T, 2>>;
  ComplexVector<V, false> x[N];
  unrolled<N>([&](auto k) __attribute__((always_inline)) { x[k].v = load(d, src + 2 * k); });
  anyDft(x);
  const V f = same<V>(factor);
  store(x[0].v * f, d, dst);
  T* const to = isInverse ? dst + 2 * N : dst;
  const std::ptrdiff_t step = isInverse ? -2 : 2;
  unrolled<N - 1>([&](auto k) __attribute__((always_inline)) {
    store(x[k + 1].v * f, d, to + static_cast<std::ptrdiff_t>(k + 1) * step);
  });
  return qvxStatOk;
}

template <class T> inline constexpr bool kInHalves = kVectorBytes >= 32;

// +-1, the sign of the upper half and of every other number.
template <class T> struct HalfSigns {
  T upper[4] = {1, 1, -1, -1};
  T turn[2][4] = {{1, 1, 1, -1}, {1, 1, -1, 1}};  // of parts exchanged above: forward, inverse
};
template <class T> alignas(64) inline constexpr HalfSigns<T> kHalfSigns;

// a + b below, a - b above.
template <class T, class V = Vec<Lanes<T, 4>>> QVX_INLINE V sumAndDifference(const T* a, const T* b) {
  return hn::MulAdd(everyPair<V>(b), load(TagOf<V>(), kHalfSigns<T>.upper), everyPair<V>(a));
}

template <class V> QVX_INLINE void putHalves(V v, LaneOf<V>* low, LaneOf<V>* high) {
  const hn::Half<TagOf<V>> d;
  store(hn::LowerHalf(d, v), d, low);
  store(hn::UpperHalf(d, v), d, high);
}
// Results 1 on in the opposite order.
template <class Z, size_t M> QVX_INLINE void backwards(Z (&z)[M]) {
  unrolled<(M - 1) / 2>([&](auto k) __attribute__((always_inline)) { std::swap(z[k + 1], z[M - 1 - k]); });
}

// cos twice, then sin twice, of 2 pi k / N.
template <class T, size_t N> struct HalvesOfTurns {
  T turn[N][4] = {};
  constexpr HalvesOfTurns() {
    for (size_t k = 0; k < N; ++k) {
      turn[k][0] = turn[k][1] = static_cast<T>(cosineOfTurn(k, N));
      turn[k][2] = turn[k][3] = static_cast<T>(sineOfTurn(k, N));
    }
  }
};
template <class T, size_t N> alignas(64) inline constexpr HalvesOfTurns<T, N> kHalvesOfTurns;

// An odd number of points by the definition: sums with cosines below, differences with sines above.
template <size_t N, class T> [[gnu::noinline]] QvxStatus oddInHalves(bool isInverse, const T* src, T* dst, T factor) {
  constexpr size_t H = N / 2;
  const Lanes<T, 4> d;
  using V = Vec<Lanes<T, 4>>;
  using Half = Vec<Lanes<T, 2>>;
  const V first = hn::ZeroExtendVector(d, load(Lanes<T, 2>(), src));
  const V f = same<V>(factor);
  const Half turn = alternating<Half>() * same<Half>(isInverse ? T(-1) : T(1));
  V z[H];
  V total = first;
  unrolled<H>([&](auto k) __attribute__((always_inline)) {
    z[k] = sumAndDifference(src + 2 * (k + 1), src + 2 * (N - 1 - k));
    total = total + z[k];
  });
  store(hn::LowerHalf(total * f), Lanes<T, 2>(), dst);
  unrolled<H>([&](auto at) __attribute__((always_inline)) {
    constexpr size_t j = at + 1;
    V both = first;
    unrolled<H>([&](auto k) __attribute__((always_inline)) {
      both = hn::MulAdd(z[k], load(d, kHalvesOfTurns<T, N>.turn[j * (k + 1) % N]), both);
    });
    both = both * f;
    const Half even = hn::LowerHalf(both);
    const Half odd = hn::LowerHalf(hn::Reverse(d, both));
    store(hn::MulAdd(odd, turn, even), Lanes<T, 2>(), dst + 2 * j);
    store(hn::NegMulAdd(odd, turn, even), Lanes<T, 2>(), dst + 2 * (N - j));
  });
  return qvxStatOk;
}

// Twice an odd number of points: in either half a transform of M.
template <size_t M, class T> [[gnu::noinline]] QvxStatus twiceInHalves(bool isInverse, const T* src, T* dst, T factor) {
  constexpr size_t N = 2 * M;
  using V = Vec<Lanes<T, 4>>;
  ComplexVector<V, false> z[M];
  unrolled<M>([&](auto k) __attribute__((always_inline)) {
    z[k].v = sumAndDifference(src + 2 * (2 * k % N), src + 2 * ((2 * k + M) % N));
  });
  anyDft(z);
  if (isInverse) backwards(z);
  const V f = same<V>(factor);
  unrolled<M>([&](auto k) __attribute__((always_inline)) {
    constexpr size_t at = (M + 1) * k % N;  // (M + 1) / 2 is the inverse of 2
    putHalves(z[k].v * f, dst + 2 * at, dst + 2 * ((at + M) % N));
  });
  return qvxStatOk;
}

// 12 points: three transforms of 4, the sums and differences of their first step in halves, through the transforms of 3.
template <class T> [[gnu::noinline]] QvxStatus twelveInHalves(bool isInverse, const T* src, T* dst, T factor) {
  using V = Vec<Lanes<T, 4>>;
  ComplexVector<V, false> even[3];
  ComplexVector<V, false> odd[3];
  unrolled<3>([&](auto k) __attribute__((always_inline)) {
    const auto at = [=](size_t quarter) { return src + 2 * ((3 * quarter + 4 * k) % 12); };
    even[k].v = sumAndDifference(at(0), at(2));
    odd[k].v = sumAndDifference(at(1), at(3));
  });
  anyDft(even);
  anyDft(odd);
  if (isInverse) {
    backwards(even);
    backwards(odd);
  }
  const V f = same<V>(factor);
  const V turn = f * load(TagOf<V>(), kHalfSigns<T>.turn[isInverse]);
  unrolled<3>([&](auto k) __attribute__((always_inline)) {
    const V exchanged = hn::ConcatUpperLower(TagOf<V>(), swapped(odd[k].v), odd[k].v);
    const V first = even[k].v * f;
    const auto at = [=](size_t quarter) { return dst + 2 * ((9 * quarter + 4 * k) % 12); };
    putHalves(hn::MulAdd(exchanged, turn, first), at(0), at(1));
    putHalves(hn::NegMulAdd(exchanged, turn, first), at(2), at(3));
  });
  return qvxStatOk;
}

// The way of each length that was measured to be faster.
template <size_t N, class T> QVX_INLINE QvxStatus ofPoints(bool isInverse, const T* src, T* dst, T factor) {
  if constexpr (!kInHalves<T> || N == 3 || N == 15) return inRegisters<N>(isInverse, src, dst, factor);
  else if constexpr (N == 12) return twelveInHalves(isInverse, src, dst, factor);
  else if constexpr (N % 2 == 0) return twiceInHalves<N / 2>(isInverse, src, dst, factor);
  else return oddInHalves<N>(isInverse, src, dst, factor);
}

template <class T> QVX_INLINE QvxStatus small(const DirectPlan<T>& plan, bool isInverse, const T* src, T* dst, T factor) {
  switch (plan.n) {
    case 3:
      return ofPoints<3>(isInverse, src, dst, factor);
    case 5:
      return ofPoints<5>(isInverse, src, dst, factor);
    case 6:
      return ofPoints<6>(isInverse, src, dst, factor);
    case 7:
      return ofPoints<7>(isInverse, src, dst, factor);
    case 9:
      return ofPoints<9>(isInverse, src, dst, factor);
    case 10:
      return ofPoints<10>(isInverse, src, dst, factor);
    case 11:
      return ofPoints<11>(isInverse, src, dst, factor);
    case 12:
      return ofPoints<12>(isInverse, src, dst, factor);
    case 13:
      return ofPoints<13>(isInverse, src, dst, factor);
    case 14:
      return ofPoints<14>(isInverse, src, dst, factor);
    case 15:
      return ofPoints<15>(isInverse, src, dst, factor);
    default:
      return direct(plan, isInverse, src, dst, factor), qvxStatOk;
  }
}

}  // namespace qvx::dft
