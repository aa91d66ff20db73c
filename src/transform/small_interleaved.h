// Transforms of up to 128 points on complex numbers as they stand in memory, one, two, four or eight to a vector.
//
// There is nothing to deinterleave, and a quarter turn costs an exchange of parts. What counts for so few points is the way from
// a load to a store: 3 cycles for any shuffle or sum, 5 for a fused one, and 10 more from that store to the next call's load
// where one works on the other's result (2 more in registers of 64 bytes, and 7 where a load joins two stores).
#pragma once

#include "frame/interleaved.h"
#include "transform/folded.h"
#include "transform/odd_butterfly.h"

namespace qvx::transform {

// kSwapped: with real and imaginary parts exchanged.
template <class V, bool kSwapped> struct ComplexVector { V v; };

// kHalves halves, with alternating signs.
template <class T, int kHalves> struct Alternating {
  T v[16];
  constexpr Alternating() : v() {
    for (int i = 0; i < 16; ++i) v[i] = static_cast<T>((i % 2 == 0 ? 0.5 : -0.5) * kHalves);
  }
};
template <class T, int kHalves> alignas(64) inline constexpr Alternating<T, kHalves> kAlternating;
template <class V, int kHalves = 2> QVX_INLINE V alternating() { return load(TagOf<V>(), kAlternating<LaneOf<V>, kHalves>.v); }

template <class V> QVX_INLINE V plusI(V a, V b) { return minusPlus(a, swapped(b)); }
template <class V> QVX_INLINE V minusI(V a, V b) {
  if constexpr (kFuses) return hn::MulAdd(swapped(b), alternating<V>(), a);
  else return a + hn::Xor(swapped(b), alternating<V, 0>());
}

template <class V, bool kSwapped> QVX_INLINE auto sum(ComplexVector<V, kSwapped> a, ComplexVector<V, kSwapped> b) {
  return ComplexVector<V, kSwapped>{a.v + b.v};
}
template <class V, bool kSwapped> QVX_INLINE auto difference(ComplexVector<V, kSwapped> a, ComplexVector<V, kSwapped> b) {
  return ComplexVector<V, kSwapped>{a.v - b.v};
}
template <class V, bool kSwapped> QVX_INLINE auto sumWithI(ComplexVector<V, kSwapped> a, ComplexVector<V, kSwapped> b) {
  return ComplexVector<V, kSwapped>{kSwapped ? minusI(a.v, b.v) : plusI(a.v, b.v)};
}
template <class V, bool kSwapped> QVX_INLINE auto differenceWithI(ComplexVector<V, kSwapped> a, ComplexVector<V, kSwapped> b) {
  return ComplexVector<V, kSwapped>{kSwapped ? plusI(a.v, b.v) : minusI(a.v, b.v)};
}
template <class V, bool kSwapped>
QVX_INLINE auto sumWith(double factor, ComplexVector<V, kSwapped> a, ComplexVector<V, kSwapped> b) {
  return ComplexVector<V, kSwapped>{hn::MulAdd(b.v, same<V>(static_cast<LaneOf<V>>(factor)), a.v)};
}
template <class V, bool kSwapped>
QVX_INLINE auto differenceWith(double factor, ComplexVector<V, kSwapped> a, ComplexVector<V, kSwapped> b) {
  return ComplexVector<V, kSwapped>{hn::NegMulAdd(b.v, same<V>(static_cast<LaneOf<V>>(factor)), a.v)};
}
template <class V, bool kSwapped> QVX_INLINE auto scaledBy(double factor, ComplexVector<V, kSwapped> z) {
  return ComplexVector<V, kSwapped>{z.v * same<V>(static_cast<LaneOf<V>>(factor))};
}
// re, im: the parts of a factor, each in both lanes of a number.
template <class V, bool kSwapped> QVX_INLINE auto product(ComplexVector<V, kSwapped> z, V re, V im) {
  const V crossed = swapped(z.v) * im;
  return ComplexVector<V, kSwapped>{kSwapped ? plusMinus(z.v, re, crossed) : minusPlus(z.v, re, crossed)};
}
template <class V, bool kSwapped> QVX_INLINE auto product(ComplexVector<V, kSwapped> z, LaneOf<V> re, LaneOf<V> im) {
  if constexpr (kFuses && !kHasMasks) return product(z, same<V>(re), same<V>(im));
  else return ComplexVector<V, kSwapped>{minusPlus(z.v * same<V>(re), swapped(z.v) * same<V>(kSwapped ? -im : im))};
}
// a + factor * b
template <class V> QVX_INLINE auto addProduct(V factor, ComplexVector<V, false> a, ComplexVector<V, false> b) {
  return ComplexVector<V, false>{hn::MulAdd(factor, b.v, a.v)};
}
template <class V, bool kSwapped> QVX_INLINE auto timesMinusI(ComplexVector<V, kSwapped> z) {
  return ComplexVector<V, kSwapped>{swapped(z.v) * alternating < V, kSwapped ? -2 : 2 > ()};
}

// Of parts side by side with one rounding less: the sine with both signs.
template <class T, size_t kTurn, size_t N> struct SignedSine {
  T v[16];
  constexpr SignedSine() : v() {
    for (size_t i = 0; i < 16; ++i) v[i] = static_cast<T>((i % 2 == 0 ? 1 : -1) * sineOfTurn(kTurn, N));
  }
};
template <class T, size_t kTurn, size_t N> alignas(64) inline constexpr SignedSine<T, kTurn, N> kSignedSine;
template <size_t kTurn, size_t N, class V> QVX_INLINE ComplexVector<V, false> rotated(ComplexVector<V, false> z) {
  constexpr double kCosine = cosineOfTurn(kTurn, N);
  const V cosine = same<V>(static_cast<LaneOf<V>>(kCosine));
  return {hn::MulAdd(swapped(z.v), load(TagOf<V>(), kSignedSine<LaneOf<V>, kTurn, N>.v), z.v * cosine)};
}

// What a transform does beside: conjugates its points and its results where it is inverse, and multiplies results by a factor.
// Plain ones, forward and not scaled, do neither: 20 to 768 complex doubles take 0.80 to 0.97 of the time.
template <class V, bool kPlain> struct InterleavedEnds {
  V sign;
  V factor;

  QVX_INLINE InterleavedEnds(bool isInverse, LaneOf<V> by) {
    const V turn = isInverse ? alternating<V>() : same<V>(LaneOf<V>(1));
    sign = hn::And(turn, same<V>(LaneOf<V>(-0.0)));
    factor = turn * same<V>(by);
  }
  QVX_INLINE V point(V v) const { return hn::Xor(v, sign); }
  QVX_INLINE V result(V v) const { return v * factor; }
};
template <class V> struct InterleavedEnds<V, true> {
  QVX_INLINE InterleavedEnds(bool, LaneOf<V>) {}
  QVX_INLINE V point(V v) const { return v; }
  QVX_INLINE V result(V v) const { return v; }
};

// Twiddles for vectors of P numbers, number l of vector i being exp(-2 pi i x(i, l) / 128) times `factor`: the real part twice,
// the imaginary part with both signs.
template <class T, size_t P, size_t kVectors, class Index> struct InterleavedTwiddles {
  T twiddle[kVectors][4 * P];
  constexpr InterleavedTwiddles() : twiddle() {
    for (size_t i = 0; i < kVectors * P; ++i) {
      const auto re = static_cast<T>(Index::kFactor * cosineOf128(Index()(i / P, i % P)));
      const auto minusIm = static_cast<T>(Index::kFactor * -cosineOf128(Index()(i / P, i % P) + 32));
      T* at = twiddle[i / P] + 2 * (i % P);
      at[0] = at[1] = re;
      at[2 * P] = minusIm;
      at[2 * P + 1] = -minusIm;
    }
  }
};
template <bool kSwapped, class V> QVX_INLINE V twiddled(V v, const LaneOf<V>* twiddle) {
  const TagOf<V> d;
  const V re = v * load(d, twiddle);
  const V im = load(d, twiddle + kLanesOf<V>);
  return kSwapped ? hn::NegMulAdd(swapped(v), im, re) : hn::MulAdd(swapped(v), im, re);
}

// Transposes as many vectors as one has numbers.
template <class V, size_t P> QVX_INLINE void transposePoints(V (&r)[P]) {
  if constexpr (sizeof(LaneOf<V>) == 8) {
    transposeBlocks(r);
  } else {
    Vec<hn::Repartition<double, TagOf<V>>> numbers[P];
    unrolled<P>([&](auto i) __attribute__((always_inline)) { numbers[i] = as<double>(r[i]); });
    transpose(numbers);
    unrolled<P>([&](auto i) __attribute__((always_inline)) { r[i] = as<float>(numbers[i]); });
  }
}

// The points of a transform, R down a column and C along a row.
template <class T_, size_t N> struct Shape {
  using T = T_;
  static constexpr size_t R = N <= 8 ? N : N == 16 ? 4 : 8;
  static constexpr size_t C = N / R;
  static constexpr size_t P = N <= 8 ? 1 : std::min<size_t>(N == 16 ? 2 : N < 128 ? 4 : 8, kWidest<T> / 2);
  using V = Vec<Lanes<T, 2 * P>>;

  static constexpr double kFactor = 1;
  constexpr size_t operator()(size_t vector, size_t l) const { return (vector % (C / P) * P + l) * (vector / (C / P)) * 128 / N; }
};
template <class S, size_t kVectors>
alignas(64) inline constexpr InterleavedTwiddles<typename S::T, S::P, kVectors, S> kInterleavedTwiddles;

// A point that a sum and a difference take: of 16 registers one has it, and it is loaded once. Loads of a column conflict in the
// banks of the cache: 512 floats take 0.95 of the time, 2^11 doubles of AVX2 0.95.
template <class V> QVX_INLINE V point(V v) {
  if constexpr (kHasMasks) return v;
  else return held(v);
}

// put(at, v): results at, at + 1
template <size_t N, bool kSwapped, class T, class Get, class Put> QVX_INLINE void transformInterleavedPoints(Get get, Put put) {
  using S = Shape<T, N>;
  constexpr size_t P = S::P;
  using Z = ComplexVector<typename S::V, kSwapped>;
  Z x[S::C / P][S::R];
  unrolled<S::C / P>([&](auto h) __attribute__((always_inline)) {
    unrolled<S::R>([&](auto m) __attribute__((always_inline)) { x[h][m].v = point(get(m * S::C + h * P)); });
    dft(x[h]);
    if constexpr (P > 1 || h > 0) {  // else all twiddles are 1
      unrolled<S::R - 1>([&](auto m) __attribute__((always_inline)) {
        x[h][m + 1].v = twiddled<kSwapped>(x[h][m + 1].v, kInterleavedTwiddles<S, N / P>.twiddle[(m + 1) * (S::C / P) + h]);
      });
    }
  });
  unrolled<S::R / P>([&](auto q) __attribute__((always_inline)) {
    Z y[S::C];
    unrolled<S::C / P>([&](auto h) __attribute__((always_inline)) {
      typename S::V r[P];
      unrolled<P>([&](auto l) __attribute__((always_inline)) { r[l] = x[h][q * P + l].v; });
      transposePoints(r);
      unrolled<P>([&](auto l) __attribute__((always_inline)) { y[h * P + l].v = r[l]; });
    });
    dft(y);
    unrolled<S::C>([&](auto k) __attribute__((always_inline)) { put(q * P + k * S::R, y[k].v); });
  });
}

}  // namespace qvx::transform
