// Up to 30 real numbers: an even number as half as many points, which stay in registers, a vector each; 3, 5 and 7 by themselves.
#pragma once

#include "dft/direct.h"
#include "transform/small_real.h"

namespace qvx::dft {

constexpr bool isInRegisters(size_t n) { return n == 3 || n == 5 || n == 7 || (n % 2 == 0 && n <= 30); }

// f W^k of small_real.h, for any N = 2H.
template <class T, size_t H, bool kInverse> struct RealRoots {
  T root[H][4] = {};
  constexpr RealRoots() {
    for (size_t k = 0; k < H; ++k) {
      const size_t turn = kInverse ? 6 * H - 4 * k : 2 * H + 4 * k;  // of 8H
      const double re = (kInverse ? 1 : 0.5) * cosineOfTurn(turn, 8 * H);
      const double im = (kInverse ? -1 : -0.5) * sineOfTurn(turn, 8 * H);
      root[k][0] = root[k][1] = static_cast<T>(re);
      root[k][2] = static_cast<T>(-im);
      root[k][3] = static_cast<T>(im);
    }
  }
};
template <class T, size_t H, bool kInverse> alignas(64) inline constexpr RealRoots<T, H, kInverse> kRealRoots;

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
    recombinePairs<false>(z[k].v, z[H - k].v, kRealRoots<T, H, false>.root[k]);
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
    recombinePairs<true>(z[k].v, z[H - k].v, kRealRoots<T, H, true>.root[k]);
  });
  if constexpr (H % 2 == 0) z[H / 2].v = z[H / 2].v * alternating<V, 4>();
  anyDft(z);
  const V f = same<V>(factor);
  store(z[0].v * f, d, dst);
  unrolled<H - 1>([&](auto k) __attribute__((always_inline)) { store(z[k + 1].v * f, d, dst + 2 * (H - 1 - k)); });
}

template <size_t P, class T> [[gnu::noinline]] void forwardOfPrime(SpectrumLayout layout, const T* src, T* dst, T factor) {
  constexpr size_t H = P / 2;
  const Lanes<T, 1> d;
  using V = Vec<Lanes<T, 1>>;
  V sums[H];
  V differences[H];
  const V first = load(d, src);
  V total = first;
  unrolled<H>([&](auto k) __attribute__((always_inline)) {
    const V a = load(d, src + k + 1);
    const V b = load(d, src + P - 1 - k);
    sums[k] = a + b;
    differences[k] = b - a;
    total = total + sums[k];
  });
  V re[H];
  V im[H];
  unrolled<H>([&](auto at) __attribute__((always_inline)) {
    constexpr size_t j = at + 1;
    re[at] = first;
    unrolled<H>([&](auto k) __attribute__((always_inline)) {
      constexpr size_t turn = j * (k + 1) % P;
      const V cosine = same<V>(static_cast<T>(cosineOfTurn(turn, P)));
      const V sine = same<V>(static_cast<T>(sineOfTurn(turn, P)));
      re[at] = hn::MulAdd(cosine, sums[k], re[at]);
      im[at] = k == 0 ? sine * differences[k] : hn::MulAdd(sine, differences[k], im[at]);
    });
  });
  const V f = same<V>(factor);
  T* const pairs = dst + placeOfPair(layout, P, 1);
  unrolled<H>([&](auto k) __attribute__((always_inline)) {
    store(re[k] * f, d, pairs + 2 * k);
    store(im[k] * f, d, pairs + 2 * k + 1);
  });
  store(total * f, d, dst);
  if (layout == SpectrumLayout::kCcs) dst[1] = 0;
}

template <size_t P, class T> [[gnu::noinline]] void inverseOfPrime(SpectrumLayout layout, const T* src, T* dst, T factor) {
  constexpr size_t H = P / 2;
  const Lanes<T, 1> d;
  using V = Vec<Lanes<T, 1>>;
  const T* const pairs = src + placeOfPair(layout, P, 1);
  const V two = same<V>(T(2));
  const V first = load(d, src);
  V re[H];
  V im[H];
  V total = first;
  unrolled<H>([&](auto k) __attribute__((always_inline)) {
    re[k] = two * load(d, pairs + 2 * k);
    im[k] = two * load(d, pairs + 2 * k + 1);
    total = total + re[k];
  });
  const V f = same<V>(factor);
  store(total * f, d, dst);
  unrolled<H>([&](auto at) __attribute__((always_inline)) {
    constexpr size_t n = at + 1;
    V even = first;
    V odd = hn::Zero(d);
    unrolled<H>([&](auto k) __attribute__((always_inline)) {
      constexpr size_t turn = n * (k + 1) % P;
      even = hn::MulAdd(same<V>(static_cast<T>(cosineOfTurn(turn, P))), re[k], even);
      odd = hn::MulAdd(same<V>(static_cast<T>(sineOfTurn(turn, P))), im[k], odd);
    });
    store((even - odd) * f, d, dst + n);
    store((even + odd) * f, d, dst + P - n);
  });
}

// even(H), prime(P): by what n is.
template <class Even, class Prime> QVX_INLINE void withSmallReal(size_t n, Even even, Prime prime) {
  switch (n) {
    case 3:
      return prime(std::integral_constant<size_t, 3>());
    case 5:
      return prime(std::integral_constant<size_t, 5>());
    case 7:
      return prime(std::integral_constant<size_t, 7>());
    case 28:
      return even(std::integral_constant<size_t, 14>());
    default:
      return withMixedRadix(n / 2, even);
  }
}
template <class T> void smallForward(size_t n, SpectrumLayout layout, const T* src, T* dst, T factor) {
  withSmallReal(
      n, [=](auto H) { forwardInRegisters<H>(layout, src, dst, factor); },
      [=](auto P) { forwardOfPrime<P>(layout, src, dst, factor); });
}
template <class T> void smallInverse(size_t n, SpectrumLayout layout, const T* src, T* dst, T factor) {
  withSmallReal(
      n, [=](auto H) { inverseInRegisters<H>(layout, src, dst, factor); },
      [=](auto P) { inverseOfPrime<P>(layout, src, dst, factor); });
}

}  // namespace qvx::dft
