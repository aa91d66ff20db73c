// Transforms of up to 32 real numbers, as half as many complex ones that stay in registers.
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

// Where the real part of pair k stands.
template <SpectrumLayout kLayout> constexpr size_t placeOf(size_t k) { return placeOfPair(kLayout, 2, k); }

template <class V> QVX_INLINE V exchanged(V v) { return hn::ConcatLowerUpper(TagOf<V>(), v, v); }
template <class V> QVX_INLINE auto firstLane(V v) { return hn::Set(Lanes<LaneOf<V>, 1>(), hn::GetLane(v)); }
template <class V> QVX_INLINE V firstAndSecond(V a, V b) { return hn::ConcatUpperLower(TagOf<V>(), b, a); }

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
template <SpectrumLayout kLayout, size_t N, class V, class Dst> QVX_INLINE void putEnds(V first, V last, Dst dst) {
  if constexpr (kLayout == SpectrumLayout::kCcs) {
    dst.put(hn::InterleaveLower(first, hn::Zero(TagOf<V>())), 0);
    dst.put(hn::InterleaveLower(last, hn::Zero(TagOf<V>())), N);
  } else if constexpr (kLayout == SpectrumLayout::kPerm) {
    dst.put(hn::InterleaveLower(first, last), 0);
  } else {
    dst.put(firstLane(first), 0);
    dst.put(firstLane(last), N - 1);
  }
}

template <SpectrumLayout kLayout, size_t N, class T, class Src, class Dst, class Scale>
[[gnu::noinline]] QvxStatus smallForward(Src src, Dst dst, Scale scale) {
  constexpr size_t H = N / 2;
  using S = RealShape<T, H, false>;
  using V = typename S::V;
  constexpr size_t P = S::P;
  constexpr size_t kVectors = S::kVectors;
  V z[kVectors];
  transformInterleavedPoints<H, false, T>(
      [=](size_t at) __attribute__((always_inline)) { return src.get(TagOf<V>(), 2 * at); },
      [&](size_t at, V v) __attribute__((always_inline)) { z[at / P] = v; });

  const auto put = [=](size_t k, auto v) __attribute__((always_inline)) { dst.put(scale(v), placeOf<kLayout>(k)); };
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
    const Lanes<T, 2> one;
    put(H / 2, hn::LowerHalf(one, z[kVectors / 2] * alternating<V>()));
    unrolled<kVectors / 2>([&](auto q) __attribute__((always_inline)) {
      constexpr size_t k = 2 * q;
      V a = z[q];
      V b = firstAndSecond(z[(kVectors - q) % kVectors], z[kVectors - 1 - q]);
      recombinePairs<false>(a, b, kInterleavedTwiddles<S, kVectors>.twiddle[q]);
      if constexpr (k == 0) {
        put(1, hn::UpperHalf(one, a));
        put(H - 1, hn::UpperHalf(one, b));
      } else {
        put(k, a);
        put(H - k - 1, exchanged(b));
      }
    });
  }
  if constexpr (P == 1) {
    putEnds<kLayout, N>(scale(first), scale(last), dst);
  } else {
    const Lanes<T, 2> pair;
    putEnds<kLayout, N>(hn::LowerHalf(pair, scale(first)), hn::LowerHalf(pair, scale(last)), dst);
  }
  return qvxStatOk;
}

// Of eight numbers, by sums of their own: from load to store 11 cycles instead of 25.
template <SpectrumLayout kLayout, class T, class Src, class Dst, class Scale>
[[gnu::noinline]] QvxStatus forwardOfEight(Src src, Dst dst, Scale scale) {
  constexpr T kHalf = 0.70710678118654752440;
  alignas(16) static constexpr T kTurn[] = {kHalf, -kHalf};
  const Lanes<T, 2> d;
  using V = Vec<Lanes<T, 2>>;
  const V x0 = src.get(d, 0);
  const V x2 = src.get(d, 2);
  const V x4 = src.get(d, 4);
  const V x6 = src.get(d, 6);
  const V a0 = x0 + x4;
  const V a2 = x2 + x6;
  const V b0 = x0 - x4;
  const V b2 = x2 - x6;
  const V mean = a0 + a2;
  const V even = hn::InterleaveLower(b0, b2);
  const V odd = minusPlus(hn::DupOdd(b0), hn::DupOdd(b2));
  dst.put(scale(hn::MulAdd(odd, load(d, kTurn), even * alternating<V>())), placeOf<kLayout>(1));
  dst.put(scale((a0 - a2) * alternating<V>()), placeOf<kLayout>(2));
  dst.put(scale(hn::NegMulAdd(odd, same<V>(kHalf), even)), placeOf<kLayout>(3));
  putEnds<kLayout, 8>(scale(mean + swapped(mean)), scale(mean - swapped(mean)), dst);
  return qvxStatOk;
}

template <SpectrumLayout kLayout, size_t N, class T, class Src, class Dst, class Scale>
[[gnu::noinline]] QvxStatus smallInverse(Src src, Dst dst, Scale scale) {
  constexpr size_t H = N / 2;
  using S = RealShape<T, H, true>;
  using V = typename S::V;
  constexpr size_t P = S::P;
  constexpr size_t kVectors = S::kVectors;
  const TagOf<V> d;
  const Lanes<T, 2> one;
  const auto get = [=](auto tag, size_t k) __attribute__((always_inline)) { return src.get(tag, placeOf<kLayout>(k)); };
  const auto both = [=](size_t k) __attribute__((always_inline)) {
    if constexpr (P == 1) return get(one, k);
    else return hn::Combine(d, get(one, k), get(one, k));
  };
  V z[kVectors];
  const auto everywhere = [=](size_t at) __attribute__((always_inline)) {
    return same<V>(hn::GetLane(src.get(Lanes<T, 1>(), at)));
  };
  V mirrored[kVectors];  // numbers H - k and H - k - 1, k = 0, 2 ..
  const V ends = swapped(minusPlus(everywhere(0), everywhere(placeOfMiddle(kLayout, N))));
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
    mirrored[kVectors / 2] = both(H / 2) * alternating<V, 4>();
    unrolled<kVectors / 2>([&](auto q) __attribute__((always_inline)) {
      constexpr size_t k = 2 * q;
      z[q] = k == 0 ? both(1) : get(d, k);
      mirrored[q] = k == 0 ? both(H - 1) : exchanged(get(d, H - k - 1));
      recombinePairs<true>(z[q], mirrored[q], kInterleavedTwiddles<S, kVectors>.twiddle[q]);
    });
    z[0] = firstAndSecond(ends, z[0]);
    unrolled<kVectors / 2>([&](auto q) __attribute__((always_inline)) {
      z[kVectors - 1 - q] = firstAndSecond(mirrored[q + 1], mirrored[q]);
    });
  }
  transformInterleavedPoints<H, true, T>(
      [&](size_t at) __attribute__((always_inline)) { return z[at / P]; }, [=
  ](size_t at, V v) __attribute__((always_inline)) { dst.put(scale(v), 2 * at); });
  return qvxStatOk;
}

}  // namespace qvx::transform
