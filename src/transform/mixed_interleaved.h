// The passes of mixed_passes.h over complex numbers as they stand in memory, P to a vector: for 16 registers, which hold twice as
// many points here as in a vector of real and one of imaginary parts. 2000 to 10000 complex doubles take 0.7 to 0.85 of the time
// in AVX2 and SSSE3.
//
// What is left of columns at a tile's end goes through `edge`, points in whole vectors.
#pragma once

#include "transform/interleaved_passes.h"
#include "transform/mixed_passes.h"

namespace qvx::transform {

template <class T> struct Numbers {
  using Lane = std::remove_const_t<T>;
  static constexpr size_t kLanesOfPoint = 2;
  static constexpr size_t kPoints = kWidest<Lane> / 2;
  static constexpr Lane sign = 0;
  using V = Vec<Lanes<Lane, 2 * kPoints>>;
  using Z = ComplexVector<V, false>;
  T* p;

  template <size_t P> QVX_INLINE Z get(size_t at) const { return {load(TagOf<V>(), p + 2 * at)}; }
  template <size_t P> QVX_INLINE Z getFirst(size_t at, size_t n) const { return {firstLanes(TagOf<V>(), p + 2 * at, 2 * n)}; }
  template <size_t P> QVX_INLINE Z getInOrder(size_t at) const { return get<P>(at); }
  template <size_t P> QVX_INLINE Z getInOrder(size_t at, size_t n) const { return getFirst<P>(at, n); }
  template <size_t P> QVX_INLINE void put(Z z, size_t at) const { store(z.v, TagOf<V>(), p + 2 * at); }
  template <size_t P> QVX_INLINE void putFirst(Z z, size_t at, size_t n) const {
    putFirstLanes(z.v, TagOf<V>(), p + 2 * at, 2 * n);
  }
  // Of the numbers of a vector the first `count`, `apart` from each other.
  template <class> QVX_INLINE void putApart(Z z, size_t at, size_t apart, size_t count) const {
    Lane kept[2 * kPoints];
    store(z.v, TagOf<V>(), kept);
    for (size_t i = 0; i < count; ++i) std::copy_n(kept + 2 * i, 2, p + 2 * (at + i * apart));
  }
  Numbers from(size_t at) const { return {p + 2 * at}; }
};
template <class T> Numbers<const T> asConst(Numbers<T> z) { return {z.p}; }

// The same, conjugate if `sign` is -0: so an inverse transform is a forward one, by the same code.
template <class T> struct ConjugableNumbers {
  using Lane = std::remove_const_t<T>;
  static constexpr size_t kLanesOfPoint = 2;
  using Z = typename Numbers<T>::Z;
  T* p;
  Lane sign;

  template <size_t P> static constexpr size_t element(size_t lane) { return lane; }
  QVX_INLINE Z signedAs(Z z) const {
    using V = decltype(z.v);
    return {hn::Xor(z.v, hn::And(alternating<V>(), same<V>(sign)))};
  }
  Numbers<T> plain() const { return {p}; }
  template <size_t P> QVX_INLINE Z getInOrder(size_t at) const { return signedAs(plain().template get<P>(at)); }
  template <size_t P> QVX_INLINE Z getInOrder(size_t at, size_t n) const { return signedAs(plain().template getFirst<P>(at, n)); }
  template <size_t P> QVX_INLINE Z getFirst(size_t at, size_t n) const { return getInOrder<P>(at, n); }
  template <size_t P> QVX_INLINE void putInOrder(Z z, size_t at) const { plain().template put<P>(signedAs(z), at); }
  template <size_t P> QVX_INLINE void putFirst(Z z, size_t at, size_t n) const {
    plain().template putFirst<P>(signedAs(z), at, n);
  }
  ConjugableNumbers from(size_t at) const { return {p + 2 * at, sign}; }
};
template <class T> ConjugableNumbers<const T> asConst(ConjugableNumbers<T> z) { return {z.p, z.sign}; }

template <class V> QVX_INLINE ComplexVector<V, false> rotatedBy(ComplexVector<V, false> z, const LaneOf<V>* twiddles) {
  const V w = load(TagOf<V>(), twiddles);
  return product(z, evensTwice(w), oddsTwice(w));
}
// The same of aligned twiddles, by two pointers, so that parts are loaded twice: see interleavedRowPass().
template <class V>
QVX_INLINE ComplexVector<V, false> rotatedBy(ComplexVector<V, false> z, const LaneOf<V>* twiddles, const LaneOf<V>* again) {
  const TagOf<V> d;
  if constexpr (kLanesOf<V> == 2) return product(z, same<V>(twiddles[0]), same<V>(twiddles[1]));
  else return product(z, evensTwice(hn::Load(d, twiddles)), oddsTwice(hn::Load(d, again)));
}

// A result of P columns, or two, into P rows that are `row` apart.
template <class V> QVX_INLINE void putOne(V v, LaneOf<V>* y, size_t row) {
  const TagOf<V> d;
  if constexpr (kLanesOf<V> == 2) {
    store(v, d, y);
  } else if constexpr (kLanesOf<V> * sizeof(LaneOf<V>) == 16 || sizeof(LaneOf<V>) == 8) {
    storeHalves(v, y, y + row);
  } else {
    const hn::Half<TagOf<V>> half;
    storeHalves(hn::LowerHalf(half, v), y, y + row);
    storeHalves(hn::UpperHalf(half, v), y + 2 * row, y + 3 * row);
  }
}
template <class V> QVX_INLINE void putPair(V a, V b, LaneOf<V>* y, size_t row) {
  auto even = as<double>(a);
  auto odd = as<double>(b);
  transposeInBlocks(even, odd);
  if constexpr (kLanesOf<V> == 4) {
    store(as<float>(even), TagOf<V>(), y);
    store(as<float>(odd), TagOf<V>(), y + row);
  } else {
    storeHalves(as<float>(even), y, y + 2 * row);
    storeHalves(as<float>(odd), y + row, y + 3 * row);
  }
}
// Points and results of a transform, `apart` lanes from each other, as `ends` has them on either way.
template <class V, class Ends> struct PointsApart {
  const LaneOf<V>* first;
  size_t apart;
  const Ends& ends;
  QVX_INLINE auto operator()(auto k) const {
    return ComplexVector<V, false>{point(ends.point(load(TagOf<V>(), first + k * apart)))};
  }
};
template <class T, class Ends> struct ResultsApart {
  T* first;
  size_t apart;
  const Ends& ends;
  template <class V> QVX_INLINE void operator()(auto k, ComplexVector<V, false> z) const {
    store(ends.result(z.v), TagOf<V>(), first + k * apart);
  }
};
// Results times the twiddles of a run.
template <class T> struct TurnedApart {
  T* first;
  size_t apart;
  const T* twiddles;
  template <class V> QVX_INLINE void operator()(auto k, ComplexVector<V, false> z) const {
    if constexpr (k > 0) z = product(z, same<V>(twiddles[2 * k - 2]), same<V>(twiddles[2 * k - 1]));
    store(z.v, TagOf<V>(), first + k * apart);
  }
};
// Results of a first pass to rows of R numbers. Doubles go at once: of floats two results are transposed, later.
template <size_t R, class V> struct IntoRows {
  LaneOf<V>* rows;
  ComplexVector<V, false>* made;
  const LaneOf<V>* twiddles;
  const LaneOf<V>* again;
  QVX_INLINE void operator()(auto k, ComplexVector<V, false> z) const {
    if constexpr (k > 0) z = rotatedBy(z, twiddles + (k - 1) * kLanesOf<V>, again + (k - 1) * kLanesOf<V>);
    if constexpr (sizeof(LaneOf<V>) == 8) putOne(z.v, rows + 2 * k, 2 * R);
    else made[k] = z;
  }
};

// m is P or more.
template <size_t R, class T, class Ends>
[[gnu::noinline, gnu::flatten]] void firstInterleavedPass(const T* src, T* y, size_t m, const T* twiddles, const Ends& given) {
  using V = typename Numbers<T>::V;
  constexpr size_t P = Numbers<T>::kPoints;
  const Ends ends = given;
  const T* again = twiddles;
  __asm__("" : "+r"(again));
  for (size_t begin = 0; begin < m; begin += P, twiddles += (R - 1) * 2 * P, again += (R - 1) * 2 * P) {
    const size_t p = std::min(begin, m - P);
    T* const to = y + 2 * p * R;
    typename Numbers<T>::Z made[R];
    transformAny<R>(PointsApart<V, Ends>{src + 2 * p, 2 * m, ends}, IntoRows<R, V>{to, made, twiddles, again});
    if constexpr (sizeof(T) == 4) {
      unrolled<R / 2>([&](auto i) { putPair(made[2 * i].v, made[2 * i + 1].v, to + 4 * i, 2 * R); });
      if constexpr (R % 2 != 0) putOne(made[R - 1].v, to + 2 * (R - 1), 2 * R);
    }
  }
}

template <class T> QVX_INLINE void copyRows(const T* from, size_t apart, T* to, size_t toApart, size_t rows, size_t count) {
  for (size_t row = 0; row < rows; ++row) std::copy_n(from + 2 * row * apart, 2 * count, to + 2 * row * toApart);
}

// s is P or more.
template <size_t R, class T>
[[gnu::noinline, gnu::flatten]] void middleInterleavedPass(const T* x, T* y, size_t s, size_t m, const T* twiddles) {
  using V = typename Numbers<T>::V;
  using Ends = InterleavedEnds<V, true>;
  constexpr size_t P = Numbers<T>::kPoints;
  const Ends asTheyAre(false, 1);
  for (size_t p = 0; p < m; ++p, x += 2 * s, y += 2 * s * R, twiddles += (R - 1) * 2) {
    for (size_t begin = 0; begin < s; begin += P) {
      const size_t q = 2 * std::min(begin, s - P);
      transformAny<R>(PointsApart<V, Ends>{x + q, 2 * s * m, asTheyAre}, TurnedApart<T>{y + q, 2 * s, twiddles});
    }
  }
}

template <size_t R, class T, class Ends>
[[gnu::noinline, gnu::flatten]] void lastInterleavedPass(const T* x, T* dst, LastSteps steps, const Ends& given) {
  using V = typename Numbers<T>::V;
  using Plain = InterleavedEnds<V, true>;
  constexpr size_t P = Numbers<T>::kPoints;
  const Ends ends = given;
  const Plain asTheyAre(false, 1);
  const size_t columns = steps.columns;
  T edge[2][R * 2 * P];
  for (size_t run = 0; run < steps.runs; ++run, x += 2 * steps.fromRun, dst += 2 * steps.toRun) {
    for (size_t begin = 0; begin < columns; begin += P) {
      const size_t q = !steps.isPadded && columns >= P ? std::min(begin, columns - P) : begin;
      const size_t wide = std::min(P, columns - q);
      const bool isWhole = wide == P;
      if (!isWhole) copyRows(x + 2 * q, steps.points, edge[0], P, R, wide);
      transformAny<R>(PointsApart<V, Plain>{isWhole ? x + 2 * q : edge[0], 2 * (isWhole ? steps.points : P), asTheyAre},
                      ResultsApart<T, Ends>{isWhole ? dst + 2 * q : edge[1], 2 * (isWhole ? steps.results : P), ends});
      if (!isWhole) copyRows(edge[1], P, dst + 2 * q, steps.results, R, wide);
    }
  }
}

// The first pass of a tile, whose rows are whole vectors.
template <size_t R, class T, class Ends>
[[gnu::noinline, gnu::flatten]] void firstInterleavedTilePass(const T* src, size_t apart, size_t columns, T* tile, size_t wide,
                                                              size_t m, const T* twiddles, const Ends& given) {
  using V = typename Numbers<T>::V;
  constexpr size_t P = Numbers<T>::kPoints;
  const Ends ends = given;
  T edge[R * 2 * P];
  for (size_t p = 0; p < m; ++p, src += 2 * apart, tile += 2 * wide * R, twiddles += (R - 1) * 2) {
    for (size_t at = 0; at < columns; at += P) {
      const size_t here = std::min(P, columns - at);
      if (here < P) copyRows(src + 2 * at, apart * m, edge, P, R, here);
      transformAny<R>(PointsApart<V, Ends>{here < P ? edge : src + 2 * at, 2 * (here < P ? P : apart * m), ends},
                      TurnedApart<T>{tile + 2 * at, 2 * wide, twiddles});
    }
  }
}

}  // namespace qvx::transform
