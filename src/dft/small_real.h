// Up to 30 real numbers, and 36, 40 and 48 (36 doubles take 20 ns, by a grid 28): an even number as half as many points, a vector
// each; an odd number up to 15 by the definition, which takes (n/2)^2 operations of a pair, real part and imaginary part: 11
// doubles take 5.6 ns, by the vectors of results of direct.h 10.5.
#pragma once

#include "dft/direct.h"
#include "transform/small_real.h"

namespace qvx::dft {

constexpr bool isInRegisters(size_t n) { return n <= (n % 2 == 0 ? 30 : 15) || n == 36 || n == 40 || n == 48; }

// f W^k of small_real.h, for any N = 2H.
template <class T, size_t H, bool kInverse> struct SmallRealTwiddles {
  T of[H][4] = {};
  constexpr SmallRealTwiddles() {
    for (size_t k = 0; k < H; ++k) {
      const size_t turn = kInverse ? 6 * H - 4 * k : 2 * H + 4 * k;  // of 8H
      const double re = (kInverse ? 1 : 0.5) * cosineOfTurn(turn, 8 * H);
      const double im = (kInverse ? -1 : -0.5) * sineOfTurn(turn, 8 * H);
      of[k][0] = of[k][1] = static_cast<T>(re);
      of[k][2] = static_cast<T>(-im);
      of[k][3] = static_cast<T>(im);
    }
  }
};
template <class T, size_t H, bool kInverse> alignas(64) inline constexpr SmallRealTwiddles<T, H, kInverse> kSmallRealTwiddles;

template <size_t H, class T> [[gnu::noinline]] void forwardInRegisters(SpectrumLayout layout, const T* src, T* dst, T factor) {
  constexpr size_t N = 2 * H;
  const Lanes<T, 2> d;
  using V = Vec<Lanes<T, 2>>;
  ComplexVector<V, false> z[H];
  unrolled<H>([&](auto k) __attribute__((always_inline)) { z[k].v = load(d, src + 2 * k); });
  anyDft(z);
  const V f = same<V>(factor);
  T* const pairs = dst + placeOfPair(layout, N, 1) - 2;
  unrolled<(H - 1) / 2>([&](auto i) __attribute__((always_inline)) {
    constexpr size_t k = i + 1;
    recombinePairs<false>(z[k].v, z[H - k].v, kSmallRealTwiddles<T, H, false>.of[k]);
    store(z[k].v * f, d, pairs + 2 * k);
    store(z[H - k].v * f, d, pairs + 2 * (H - k));
  });
  if constexpr (H % 2 == 0) store(z[H / 2].v * alternating<V>() * f, d, pairs + H);
  const V first = (z[0].v + swapped(z[0].v)) * f;
  const V last = (z[0].v - swapped(z[0].v)) * f;
  if (layout == SpectrumLayout::kCcs) {
    store(hn::InterleaveLower(first, hn::Zero(d)), d, dst);
    store(hn::InterleaveLower(last, hn::Zero(d)), d, dst + N);
  } else {
    dst[0] = hn::GetLane(first);
    dst[placeOfMiddle(layout, N)] = hn::GetLane(last);
  }
}

template <size_t H, class T> [[gnu::noinline]] void inverseInRegisters(SpectrumLayout layout, const T* src, T* dst, T factor) {
  constexpr size_t N = 2 * H;
  const Lanes<T, 2> d;
  using V = Vec<Lanes<T, 2>>;
  ComplexVector<V, false> z[H];
  const T* const pairs = src + placeOfPair(layout, N, 1) - 2;
  z[0].v = swapped(minusPlus(same<V>(src[0]), same<V>(src[placeOfMiddle(layout, N)])));
  unrolled<H - 1>([&](auto k) __attribute__((always_inline)) { z[k + 1].v = load(d, pairs + 2 * (k + 1)); });
  unrolled<(H - 1) / 2>([&](auto i) __attribute__((always_inline)) {
    constexpr size_t k = i + 1;
    recombinePairs<true>(z[k].v, z[H - k].v, kSmallRealTwiddles<T, H, true>.of[k]);
  });
  if constexpr (H % 2 == 0) z[H / 2].v = z[H / 2].v * alternating<V, 4>();
  anyDft(z);
  const V f = same<V>(factor);
  store(z[0].v * f, d, dst);
  unrolled<H - 1>([&](auto k) __attribute__((always_inline)) { store(z[k + 1].v * f, d, dst + 2 * (H - 1 - k)); });
}

// cos and sin of 2 pi k / N, side by side.
template <class T, size_t N> struct PairsOfTurns {
  T pair[N][2] = {};
  constexpr PairsOfTurns() {
    for (size_t k = 0; k < N; ++k) {
      pair[k][0] = static_cast<T>(cosineOfTurn(k, N));
      pair[k][1] = static_cast<T>(sineOfTurn(k, N));
    }
  }
};
template <class T, size_t N> alignas(64) inline constexpr PairsOfTurns<T, N> kPairsOfTurns;

// first + z[0] times the pair of turn j + z[1] times that of 2j ..
template <size_t N, class V> QVX_INLINE V sumOfTurns(size_t j, V first, const V (&z)[N / 2]) {
  V sum = first;
  unrolled<N / 2>([&](auto k) __attribute__((always_inline)) {
    sum = hn::MulAdd(load(TagOf<V>(), kPairsOfTurns<LaneOf<V>, N>.pair[j * (k + 1) % N]), z[k], sum);
  });
  return sum;
}

template <size_t N, class T> [[gnu::noinline]] void forwardOfOdd(SpectrumLayout layout, const T* src, T* dst, T factor) {
  constexpr size_t H = N / 2;
  const Lanes<T, 2> d;
  using V = Vec<Lanes<T, 2>>;
  const V first = hn::InterleaveLower(same<V>(src[0]), hn::Zero(d));
  const V ones = alternating<V>();
  V z[H];  // x[k] + x[N - k] beside x[N - k] - x[k]
  V total = first;
  unrolled<H>([&](auto k) __attribute__((always_inline)) {
    z[k] = hn::MulAdd(same<V>(src[k + 1]), ones, same<V>(src[N - 1 - k]));
    total = total + z[k];
  });
  const V f = same<V>(factor);
  T* const pairs = dst + placeOfPair(layout, N, 1);
  V made[H];
  unrolled<H>([&](auto j) __attribute__((always_inline)) { made[j] = sumOfTurns<N>(j + 1, first, z); });
  unrolled<H>([&](auto j) __attribute__((always_inline)) { store(made[j] * f, d, pairs + 2 * j); });
  dst[0] = hn::GetLane(total * f);
  if (layout == SpectrumLayout::kCcs) dst[1] = 0;
}

template <size_t N, class T> [[gnu::noinline]] void inverseOfOdd(SpectrumLayout layout, const T* src, T* dst, T factor) {
  constexpr size_t H = N / 2;
  const Lanes<T, 2> d;
  using V = Vec<Lanes<T, 2>>;
  const T* const pairs = src + placeOfPair(layout, N, 1);
  const V first = hn::InterleaveLower(same<V>(src[0]), hn::Zero(d));
  V z[H];
  V total = first;
  unrolled<H>([&](auto k) __attribute__((always_inline)) {
    z[k] = load(d, pairs + 2 * k);
    z[k] = z[k] + z[k];
    total = total + z[k];
  });
  V made[H];  // the sums with cosines beside those with sines
  unrolled<H>([&](auto j) __attribute__((always_inline)) { made[j] = sumOfTurns<N>(j + 1, first, z); });
  const V f = same<V>(factor);
  dst[0] = hn::GetLane(total * f);
  unrolled<H>([&](auto at) __attribute__((always_inline)) {
    const V both = minusPlus(made[at], swapped(made[at])) * f;
    dst[at + 1] = hn::GetLane(both);
    dst[N - 1 - at] = hn::GetLane(swapped(both));
  });
}

// even(H), odd(N): by what n is.
template <class Even, class Odd> QVX_INLINE void withSmallReal(size_t n, Even even, Odd odd) {
  switch (n) {
    case 3:
      return odd(std::integral_constant<size_t, 3>());
    case 5:
      return odd(std::integral_constant<size_t, 5>());
    case 7:
      return odd(std::integral_constant<size_t, 7>());
    case 9:
      return odd(std::integral_constant<size_t, 9>());
    case 11:
      return odd(std::integral_constant<size_t, 11>());
    case 13:
      return odd(std::integral_constant<size_t, 13>());
    case 15:
      return odd(std::integral_constant<size_t, 15>());
    case 28:
      return even(std::integral_constant<size_t, 14>());
    case 36:
      return even(std::integral_constant<size_t, 18>());
    case 40:
      return even(std::integral_constant<size_t, 20>());
    case 48:
      return even(std::integral_constant<size_t, 24>());
    default:
      return withMixedRadix(n / 2, even);
  }
}
template <class T> void smallForward(size_t n, SpectrumLayout layout, const T* src, T* dst, T factor) {
  withSmallReal(
      n, [=](auto H) { forwardInRegisters<H>(layout, src, dst, factor); },
      [=](auto N) { forwardOfOdd<N>(layout, src, dst, factor); });
}
template <class T> void smallInverse(size_t n, SpectrumLayout layout, const T* src, T* dst, T factor) {
  withSmallReal(
      n, [=](auto H) { inverseInRegisters<H>(layout, src, dst, factor); },
      [=](auto N) { inverseOfOdd<N>(layout, src, dst, factor); });
}

}  // namespace qvx::dft
