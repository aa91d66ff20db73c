// Complex vectors as two real ones, in memory or in registers: sources and destinations of the loop engine.
#pragma once

#include "frame/map.h"

namespace qvx {

// Half registers of SSSE3, for parts that are widened: one load and two shuffles, where two loads take four. Squares of 256
// floats in doubles take 0.7 of the time.
template <class T, size_t N> inline constexpr bool kLoadsAtOnce = !QVXS_AVX2 && N == 2 && std::is_same_v<T, float>;
inline auto loadedParts(const float* p) {
  const Lanes<float, 4> d;
  const auto both = load(d, p);
  const auto parts = evenAndOdd(both, both);
  const hn::Half<decltype(d)> half;
  return Complex<Vec<decltype(half)>>{hn::LowerHalf(half, parts.re), hn::LowerHalf(half, parts.im)};
}

// A real source beside InTwos of complex ones: one load for both vectors, which eachTwice() shuffles. SSSE3 loads half registers
// otherwise, which bounds its products: 4096 floats by complex ones take 556 ns, not 669.
template <class T> struct BesideTwos {
  using Lane = hwy::UnsignedFromSize<sizeof(T) / 2>;
  const T* p;

  template <size_t N> auto get(size_t at) const { return load(Lanes<T, N / 2>(), p + at / 2); }
  template <size_t N> auto get(size_t at, size_t n) const { return loadFirst(Lanes<T, N / 2>(), p + at / 2, n / 2); }
  BesideTwos from(size_t at) const { return {p + at / 2}; }
};
template <class T> BesideTwos(const T*) -> BesideTwos<T>;
template <class V> Pair<V> eachTwice(V v) { return interleaved(Pair<V>{v, v}); }

// Interleaved parts, loaded as a Pair of real and imaginary parts. kPastEnd: the real part of the elements past the end.
template <class T, int kPastEnd = 0> struct Deinterleaved {
  using Lane = T;
  const T* p;

  template <size_t N> auto get(size_t at) const {
    const Lanes<T, N> d;
    using P = Pair<Vec<Lanes<T, N>>>;
    if constexpr (kLoadsAtOnce<T, N>) {
      const auto z = loadedParts(p + 2 * at);
      return P{z.re, z.im};
    } else {
      return deinterleaved(P{load(d, p + 2 * at), load(d, p + 2 * at + N)});
    }
  }
  template <size_t N> auto get(size_t at, size_t n) const {
    const Lanes<T, N> d;
    const size_t low = std::min(2 * n, N);
    const auto high = 2 * n == low ? hn::Zero(d) : loadFirst(d, p + 2 * at + low, 2 * n - low);
    auto both = deinterleaved(Pair<Vec<Lanes<T, N>>>{loadFirst(d, p + 2 * at, low), high});
    if constexpr (kPastEnd != 0) both.lo = hn::IfThenElse(hn::FirstN(d, n), both.lo, hn::Set(d, T{kPastEnd}));
    return both;
  }
  Deinterleaved from(size_t at) const { return {p + 2 * at}; }
};
template <class T> Deinterleaved<Part<T>> deinterleaved(const T* p) { return {parts(p)}; }
template <class T> Deinterleaved<Part<T>, 1> deinterleavedOnesPastEnd(const T* p) { return {parts(p)}; }

// The same as a Complex, N of each part, with the elements in another order: a shuffle within blocks of 128 bits costs a third of
// one across them. For reductions, and for ComplexDestination, which restores the order. kPastEnd: the real part of the elements
// past the end.
template <class T, int kPastEnd = 0> struct ByParts {
  using Lane = Part<T>;
  const T* p;

  template <size_t N> auto get(size_t at) const {
    const Lanes<Lane, N> d;
    if constexpr (kLoadsAtOnce<Lane, N>) return loadedParts(parts(p + at));
    else return evenAndOdd(load(d, parts(p + at)), load(d, parts(p + at) + N));
  }
  template <size_t N> auto get(size_t at, size_t n) const {
    const Lanes<Lane, N> d;
    const size_t low = std::min(2 * n, N);
    const auto first = loadFirst(d, parts(p + at), low);
    auto z = evenAndOdd(first, 2 * n == low ? hn::Zero(d) : loadFirst(d, parts(p + at) + low, 2 * n - low));
    // A partial vector is one block, within which the elements stay in order.
    if constexpr (kPastEnd != 0) z.re = hn::IfThenElse(hn::FirstN(d, n), z.re, hn::Set(d, Lane{kPastEnd}));
    return z;
  }
  ByParts from(size_t at) const { return {p + at}; }
};

template <class T> ByParts(const T*) -> ByParts<T>;

template <class T> struct ComplexDestination {
  using Lane = Part<T>;
  static constexpr size_t kParts = 1;
  T* p;

  template <size_t N, class V> void put(Complex<V> v, size_t at) const {
    const Lanes<Lane, N> d;
    store(hn::InterleaveLower(d, v.re, v.im), d, parts(p + at));
    store(hn::InterleaveUpper(d, v.re, v.im), d, parts(p + at) + N);
  }
  template <size_t N, class V> void put(Complex<V> v, size_t at, size_t n) const {
    const Lanes<Lane, N> d;
    const size_t low = std::min(2 * n, N);
    storeFirst(hn::InterleaveLower(d, v.re, v.im), d, parts(p + at), low);
    if (2 * n > low) storeFirst(hn::InterleaveUpper(d, v.re, v.im), d, parts(p + at) + low, 2 * n - low);
  }
  template <size_t N> size_t misaligned() const { return Destination<T>{parts(p)}.template misaligned<N>() / 2; }
  ComplexDestination from(size_t at) const { return {p + at}; }
};

// Stores a Pair of real and imaginary parts to two vectors.
template <class T> struct SplitDestination {
  using Lane = T;
  static constexpr size_t kParts = 1;
  T* re;
  T* im;

  template <size_t N, class V> void put(Pair<V> v, size_t at) const {
    store(v.lo, Lanes<T, N>(), re + at);
    store(v.hi, Lanes<T, N>(), im + at);
  }
  template <size_t N, class V> void put(Pair<V> v, size_t at, size_t n) const {
    storeFirst(v.lo, Lanes<T, N>(), re + at, n);
    storeFirst(v.hi, Lanes<T, N>(), im + at, n);
  }
  template <size_t N> size_t misaligned() const { return Destination<T>{re}.template misaligned<N>(); }
  SplitDestination from(size_t at) const { return {re + at, im + at}; }
};

// Stores a Pair of real and imaginary parts interleaved.
template <class T> struct InterleavedDestination {
  using Lane = T;
  static constexpr size_t kParts = 1;
  T* p;

  template <size_t N, class V> void put(Pair<V> v, size_t at) const {
    const Lanes<T, N> d;
    const Pair<V> both = interleaved(v);
    store(both.lo, d, p + 2 * at);
    store(both.hi, d, p + 2 * at + N);
  }
  template <size_t N, class V> void put(Pair<V> v, size_t at, size_t n) const {
    const Lanes<T, N> d;
    const Pair<V> both = interleaved(v);
    const size_t low = std::min(2 * n, N);
    storeFirst(both.lo, d, p + 2 * at, low);
    if (2 * n > low) storeFirst(both.hi, d, p + 2 * at + low, 2 * n - low);
  }
  template <size_t N> size_t misaligned() const {
    const size_t bytes = reinterpret_cast<uintptr_t>(p) % (N * sizeof(T));
    return bytes % (2 * sizeof(T)) == 0 ? (N - bytes / sizeof(T)) % N / 2 : 0;
  }
  InterleavedDestination from(size_t at) const { return {p + 2 * at}; }
};

// A part of ByParts, or a result of both, in the order of the elements.
template <class V> V inOrder(V v) {
  static_assert(sizeof(V) <= 32);
#if QVXS_AVX2
  if constexpr (sizeof(V) == 32) return as<LaneOf<V>>(Vec<Lanes<int64_t, 4>>{_mm256_permute4x64_epi64(as<int64_t>(v).raw, 0xD8)});
#endif
  return v;
}

template <class T, int kPastEnd> Deinterleaved<T, kPastEnd> source(Deinterleaved<T, kPastEnd> v) { return v; }
template <class T, int kPastEnd> const T* pointerOf(Deinterleaved<T, kPastEnd> v) { return v.p; }
template <class T, int kPastEnd> ByParts<T, kPastEnd> source(ByParts<T, kPastEnd> v) { return v; }
template <class T, int kPastEnd> const T* pointerOf(ByParts<T, kPastEnd> v) { return v.p; }
template <class T> InterleavedDestination<T> destination(InterleavedDestination<T> v) { return v; }

// map() for operations on the parts: dst = Op(sources...) over len complex elements.
template <class Op, class Fit, class T, class... Src> QvxStatus mapByParts(T* dst, int len, Fit fit, Src... src) {
  const QvxStatus status = check(len, pointerOf(src)..., dst);
  if (status != qvxStatOk) return status;
  return fit.run(Op(), ComplexDestination<T>{dst}, elements(len), src...);
}

}  // namespace qvx
