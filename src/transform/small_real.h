// Transforms of up to 128 real numbers, as half as many complex ones that stay in registers.
//
// Between the transform Z of the complex ones and the spectrum X there is, with a = Z[k], b = Z[H - k], N = 2H,
//
//   s = a + conj b     t = f W^k (a - conj b)     X[k] = g s + t     X[H - k] = conj(g s - t)
//
// f = -i/2, g = 1/2 and W = exp(-2 pi i / N); and the same on the way back with X and Z exchanged, f = i, g = 1 and W = exp(2 pi
// i / N). X[H] takes the place of Z[0], b of k = 0.
#pragma once

#include "transform/layout.h"
#include "transform/small_interleaved.h"

namespace qvx::transform {

// A layout that is known when a kernel is compiled. Kernels of 64 numbers and more take one as a value: three of each would be
// half of what is compiled for real transforms.
template <SpectrumLayout kLayout> using KnownLayout = std::integral_constant<SpectrumLayout, kLayout>;
template <SpectrumLayout kLayout, size_t N> constexpr auto layoutFor() {
  if constexpr (N < 64) return KnownLayout<kLayout>();
  else return kLayout;
}

// Where the real part of pair k stands.
constexpr size_t placeOf(SpectrumLayout layout, size_t k) { return placeOfPair(layout, 2, k); }

template <class V> QVX_INLINE auto firstLane(V v) { return hn::Set(Lanes<LaneOf<V>, 1>(), hn::GetLane(v)); }

// Of vectors of 2 or 4 numbers: in the opposite order, and so after the first of another.
template <class V> QVX_INLINE V numbersReversed(V v) {
  if constexpr (kLanesOf<V> == 4) return hn::ConcatLowerUpper(TagOf<V>(), v, v);
  else if constexpr (sizeof(LaneOf<V>) == 4) return as<float>(reversed(as<double>(v)));
  else return hn::ReverseBlocks(TagOf<V>(), v);
}
template <class V> QVX_INLINE V firstThenReversed(V a, V b) {
  if constexpr (kLanesOf<V> == 4) return hn::ConcatUpperLower(TagOf<V>(), b, a);
  else if constexpr (sizeof(LaneOf<V>) == 4)
    return as<float>(delayed<1>(as<double>(numbersReversed(a)), as<double>(numbersReversed(b))));
  else return delayed<2>(numbersReversed(a), numbersReversed(b));
}
template <class V> QVX_INLINE auto number(V v) {
  if constexpr (kLanesOf<V> == 2) return v;
  else return number(hn::LowerHalf(hn::Half<TagOf<V>>(), v));
}
template <class V> QVX_INLINE auto secondNumber(V v) {
  if constexpr (kLanesOf<V> == 4) return hn::UpperHalf(hn::Half<TagOf<V>>(), v);
  else return secondNumber(hn::LowerHalf(hn::Half<TagOf<V>>(), v));
}
// The same number everywhere.
template <class D> QVX_INLINE Vec<D> everyNumber(D d, Vec<Lanes<hn::TFromD<D>, 2>> v) {
  if constexpr (hn::MaxLanes(D()) == 2) return v;
  else return hn::Combine(d, everyNumber(hn::Half<D>(), v), everyNumber(hn::Half<D>(), v));
}

// f W^k
template <class T_, size_t H, bool kInverse> struct RealShape {
  using T = T_;
  static constexpr size_t P = Shape<T, H>::P;
  using V = typename Shape<T, H>::V;
  static constexpr size_t kVectors = H / P;

  static constexpr double kFactor = kInverse ? 1 : 0.5;
  constexpr size_t operator()(size_t vector, size_t l) const {
    const size_t k = (vector * P + l) * 64 / H;
    return kInverse ? 96 - k : 32 + k;
  }
};

// Number k of each vector, and number H - k.
template <bool kInverse, class V> QVX_INLINE void recombinePairs(V& a, V& b, const LaneOf<V>* twiddle) {
  const V s = hn::MulAdd(b, alternating<V>(), a);
  const V t = twiddled<false>(hn::NegMulAdd(b, alternating<V>(), a), twiddle);
  a = hn::MulAdd(s, same<V>(LaneOf<V>(kInverse ? 1 : 0.5)), t);
  b = minusPlus(s * alternating < V, kInverse ? 2 : 1 > (), t);
}

// X[0] and X[N/2], each first in its pair. Whole pairs go out, where a call that works on this one's result loads pairs: of a
// number from two stores it would wait twice as long.
template <size_t N, class Layout, class V, class Dst> QVX_INLINE void putEnds(Layout layout, V first, V last, Dst dst) {
  if (layout == SpectrumLayout::kCcs) {
    dst.put(hn::InterleaveLower(first, hn::Zero(TagOf<V>())), 0);
    dst.put(hn::InterleaveLower(last, hn::Zero(TagOf<V>())), N);
  } else if (layout == SpectrumLayout::kPerm) {
    dst.put(hn::InterleaveLower(first, last), 0);
  } else {
    dst.put(firstLane(first), 0);
    dst.put(firstLane(last), N - 1);
  }
}

template <size_t N, class T, class Layout, class Src, class Dst, class Scale>
[[gnu::noinline]] QvxStatus smallForward(Layout layout, Src src, Dst dst, Scale scale) {
  constexpr size_t H = N / 2;
  using S = RealShape<T, H, false>;
  using V = typename S::V;
  constexpr size_t P = S::P;
  constexpr size_t kVectors = S::kVectors;
  V z[kVectors];
  transformInterleavedPoints<H, false, T>(
      [=](size_t at) __attribute__((always_inline)) { return src.get(TagOf<V>(), 2 * at); },
      [&](size_t at, V v) __attribute__((always_inline)) { z[at / P] = v; });

  const auto put = [=](size_t k, auto v) __attribute__((always_inline)) { dst.put(scale(v), placeOf(layout, k)); };
  const V first = z[0] + swapped(z[0]);
  const V last = z[0] - swapped(z[0]);
  if constexpr (P == 1) {
    if constexpr (H > 1) put(H / 2, z[H / 2] * alternating<V>());
    unrolled<(H > 2 ? H / 2 - 1 : 0)>([&](auto i) __attribute__((always_inline)) {
      constexpr size_t k = i + 1;
      V b = z[H - k];
      recombinePairs<false>(z[k], b, kInterleavedTwiddles<S, kVectors>.twiddle[k]);
      put(k, z[k]);
      put(H - k, b);
    });
  } else {
    put(H / 2, number(z[kVectors / 2] * alternating<V>()));
    unrolled<kVectors / 2>([&](auto q) __attribute__((always_inline)) {
      constexpr size_t k = P * q;
      V a = z[q];
      V b = firstThenReversed(z[(kVectors - q) % kVectors], z[kVectors - 1 - q]);
      recombinePairs<false>(a, b, kInterleavedTwiddles<S, kVectors>.twiddle[q]);
      if constexpr (k > 0) {
        put(k, a);
        put(H - k - (P - 1), numbersReversed(b));
        return;
      }
      put(1, secondNumber(a));
      put(H - 1, secondNumber(b));
      if constexpr (P == 4) {
        const hn::Half<TagOf<V>> half;
        put(2, hn::UpperHalf(half, a));
        put(H - 3, hn::LowerHalf(half, numbersReversed(b)));
      }
    });
  }
  if constexpr (P == 1) {
    putEnds<N>(layout, scale(first), scale(last), dst);
  } else {
    putEnds<N>(layout, number(scale(first)), number(scale(last)), dst);
  }
  return qvxStatOk;
}

// Of eight numbers, in pairs, by sums of their own: from load to store 11 cycles instead of 25. Result k is that of kStep * k.
template <size_t kStep, class Layout, class V, class Dst, class Scale>
QVX_INLINE void transformEight(Layout layout, V x0, V x2, V x4, V x6, Dst dst, Scale scale) {
  using T = LaneOf<V>;
  constexpr T kHalf = 0.70710678118654752440;
  alignas(16) static constexpr T kTurn[] = {kHalf, -kHalf};
  const V a0 = x0 + x4;
  const V a2 = x2 + x6;
  const V b0 = x0 - x4;
  const V b2 = x2 - x6;
  const V mean = a0 + a2;
  const V even = hn::InterleaveLower(b0, b2);
  const V odd = minusPlus(hn::DupOdd(b0), hn::DupOdd(b2));
  dst.put(scale(hn::MulAdd(odd, load(TagOf<V>(), kTurn), even * alternating<V>())), placeOf(layout, kStep));
  dst.put(scale((a0 - a2) * alternating<V>()), placeOf(layout, 2 * kStep));
  dst.put(scale(hn::NegMulAdd(odd, same<V>(kHalf), even)), placeOf(layout, 3 * kStep));
  putEnds<8 * kStep>(layout, scale(mean + swapped(mean)), scale(mean - swapped(mean)), dst);
}

template <class T, class Layout, class Src, class Dst, class Scale>
[[gnu::noinline]] QvxStatus forwardOfEight(Layout layout, Src src, Dst dst, Scale scale) {
  const Lanes<T, 2> d;
  transformEight<1>(layout, src.get(d, 0), src.get(d, 2), src.get(d, 4), src.get(d, 6), dst, scale);
  return qvxStatOk;
}

// exp(-2 pi i n / 16) and -i times that
template <class T, size_t n>
alignas(16) inline constexpr T kSixteenth[] = {static_cast<T>(cosineOf128(8 * n)), static_cast<T>(cosineOf128(8 * n + 32)),
                                               static_cast<T>(cosineOf128(8 * n + 32)), static_cast<T>(-cosineOf128(8 * n))};

// Of sixteen. With b the differences of numbers 8 apart, X[1], X[5], conj X[7] and conj X[3] are the transform of (b[n] - i b[n +
// 4]) exp(-2 pi i n / 16), n = 0 .. 3; where one call works on the last one's result, 0.8 of the time by complex numbers.
template <class T, class Layout, class Src, class Dst, class Scale>
[[gnu::noinline]] QvxStatus forwardOfSixteen(Layout layout, Src src, Dst dst, Scale scale) {
  const Lanes<T, 2> d;
  using V = Vec<Lanes<T, 2>>;
  V a[4];
  V b[4];
  unrolled<4>([&](auto i) __attribute__((always_inline)) {
    const V x = src.get(d, 2 * i);
    const V y = src.get(d, 2 * i + 8);
    a[i] = x + y;
    b[i] = x - y;
  });
  const auto turned = [&](auto n, V x, V y) __attribute__((always_inline)) {
    return hn::MulAdd(x, load(d, kSixteenth<T, n>), y * load(d, kSixteenth<T, n> + 2));
  };
  const V z0 = hn::InterleaveLower(b[0], b[2]) * alternating<V>();
  const V z1 = turned(Index<1>(), hn::DupOdd(b[0]), hn::DupOdd(b[2]));
  const V z2 = turned(Index<2>(), hn::DupEven(b[1]), hn::DupEven(b[3]));
  const V z3 = turned(Index<3>(), hn::DupOdd(b[1]), hn::DupOdd(b[3]));
  transformEight<2>(layout, a[0], a[1], a[2], a[3], dst, scale);
  const V evens = z0 + z2;
  const V odds = z1 + z3;
  const V even = z0 - z2;
  const V odd = z1 - z3;
  dst.put(scale(evens + odds), placeOf(layout, 1));
  dst.put(scale(plusI(even, odd) * alternating<V>()), placeOf(layout, 3));
  dst.put(scale(minusI(even, odd)), placeOf(layout, 5));
  dst.put(scale((evens - odds) * alternating<V>()), placeOf(layout, 7));
  return qvxStatOk;
}

template <size_t N, class T, class Layout, class Src, class Dst, class Scale>
[[gnu::noinline]] QvxStatus smallInverse(Layout layout, Src src, Dst dst, Scale scale) {
  constexpr size_t H = N / 2;
  using S = RealShape<T, H, true>;
  using V = typename S::V;
  constexpr size_t P = S::P;
  constexpr size_t kVectors = S::kVectors;
  const TagOf<V> d;
  const Lanes<T, 2> one;
  const auto get = [=](auto tag, size_t k) __attribute__((always_inline)) { return src.get(tag, placeOf(layout, k)); };
  const auto all = [=](size_t k) __attribute__((always_inline)) { return everyNumber(d, get(one, k)); };
  V z[kVectors];
  const auto everywhere = [=](size_t at) __attribute__((always_inline)) {
    return same<V>(hn::GetLane(src.get(Lanes<T, 1>(), at)));
  };
  V mirrored[kVectors];  // numbers H - k, H - k - 1 .., k = 0, P ..
  const V ends = swapped(minusPlus(everywhere(0), everywhere(placeOfMiddle(layout, N))));
  z[0] = ends;
  if constexpr (P == 1) {
    unrolled<(H > 2 ? H / 2 - 1 : 0)>([&](auto i) __attribute__((always_inline)) {
      constexpr size_t k = i + 1;
      z[k] = get(d, k);
      z[H - k] = get(d, H - k);
      recombinePairs<true>(z[k], z[H - k], kInterleavedTwiddles<S, kVectors>.twiddle[k]);
    });
    if constexpr (H > 1) z[H / 2] = get(d, H / 2) * alternating<V, 4>();
  } else {
    mirrored[kVectors / 2] = all(H / 2) * alternating<V, 4>();
    unrolled<kVectors / 2>([&](auto q) __attribute__((always_inline)) {
      constexpr size_t k = P * q;
      if constexpr (k > 0) {
        z[q] = get(d, k);
        mirrored[q] = numbersReversed(get(d, H - k - (P - 1)));
      } else if constexpr (P == 2) {
        z[0] = all(1);
        mirrored[0] = all(H - 1);
      } else {
        const hn::Half<TagOf<V>> half;
        z[0] = hn::Combine(d, get(half, 2), everyNumber(half, get(one, 1)));
        mirrored[0] = numbersReversed(hn::Combine(d, everyNumber(half, get(one, H - 1)), get(half, H - 3)));
      }
      recombinePairs<true>(z[q], mirrored[q], kInterleavedTwiddles<S, kVectors>.twiddle[q]);
    });
    z[0] = hn::IfThenElse(hn::FirstN(d, 2), ends, z[0]);
    unrolled<kVectors / 2>([&](auto q) __attribute__((always_inline)) {
      z[kVectors - 1 - q] = firstThenReversed(mirrored[q + 1], mirrored[q]);
    });
  }
  transformInterleavedPoints<H, true, T>(
      [&](size_t at) __attribute__((always_inline)) { return z[at / P]; }, [=
  ](size_t at, V v) __attribute__((always_inline)) { dst.put(scale(v), 2 * at); });
  return qvxStatOk;
}

}  // namespace qvx::transform
