// Elements, sources and destinations: whatever can load or store N lanes at a lane index.
#pragma once

#include <algorithm>

#include "frame/api.h"
#include "frame/simd.h"

namespace qvx {

// The type and number of an element's parts: two for a complex element, one for a real one.
template <class T, size_t kParts> struct Made {
  using Type = T;
  static constexpr size_t kCount = kParts;
};
template <class T> struct PartsOf : Made<T, 1> {};
template <> struct PartsOf<Qvx16sc> : Made<Qvx16s, 2> {};
template <> struct PartsOf<Qvx32sc> : Made<Qvx32s, 2> {};
template <> struct PartsOf<Qvx64sc> : Made<Qvx64s, 2> {};
template <> struct PartsOf<Qvx32fc> : Made<Qvx32f, 2> {};
template <> struct PartsOf<Qvx64fc> : Made<Qvx64f, 2> {};
template <class T> using Part = typename PartsOf<T>::Type;

template <class T> Part<T>* parts(T* p) { return reinterpret_cast<Part<T>*>(p); }
template <class T> const Part<T>* parts(const T* p) { return reinterpret_cast<const Part<T>*>(p); }

template <class T> struct Source {
  using Lane = Part<T>;
  const Lane* p;

  template <size_t N> auto get(size_t at) const { return load(Lanes<Lane, N>(), p + at); }
  template <size_t N> auto get(size_t at, size_t n) const { return loadFirst(Lanes<Lane, N>(), p + at, n); }
  Source from(size_t at) const { return {p + at}; }
};

template <class T> struct Destination {
  using Lane = Part<T>;
  static constexpr size_t kParts = PartsOf<T>::kCount;
  Lane* p;

  Destination from(size_t at) const { return {p + at}; }

  template <size_t N, class V> void put(V v, size_t at) const { store(v, Lanes<Lane, N>(), p + at); }
  template <size_t N, class V> void put(V v, size_t at, size_t n) const { storeFirst(v, Lanes<Lane, N>(), p + at, n); }
  // Lanes before the first address at which stores of N lanes no longer cross cache lines.
  template <size_t N> size_t misaligned() const {
    const size_t bytes = reinterpret_cast<uintptr_t>(p) % (N * sizeof(Lane));
    return bytes % sizeof(T) == 0 ? (N - bytes / sizeof(Lane)) % N : 0;
  }
};

// One value for all elements.
template <class T> struct Constant {
  using Lane = Part<T>;
  T value;

  template <size_t N> auto get(size_t) const {
    const Lanes<Lane, N> d;
    if constexpr (PartsOf<T>::kCount == 1) {
      return hn::Set(d, value);
    } else {
      return hn::OddEven(hn::Set(d, value.im), hn::Set(d, value.re));
    }
  }
  template <size_t N> auto get(size_t at, size_t) const { return get<N>(at); }
  Constant from(size_t) const { return *this; }
};

template <class T> Constant(T) -> Constant<T>;

// For kernels that report zeros as errors: lanes past the end hold ones instead of zeros.
template <class T> struct OnesPastEnd {
  using Lane = Part<T>;
  const T* p;

  template <size_t N> auto get(size_t at) const { return load(Lanes<Lane, N>(), parts(p) + at); }
  template <size_t N> auto get(size_t at, size_t n) const { return loadFirstOr(Lanes<Lane, N>(), parts(p) + at, n, Lane{1}); }
  OnesPastEnd from(size_t at) const { return {p + at / PartsOf<T>::kCount}; }
};

template <class T> OnesPastEnd(const T*) -> OnesPastEnd<T>;
template <class T> OnesPastEnd(T*) -> OnesPastEnd<T>;

// For reductions: lanes past the end hold a neutral element. It is passed by address, since a struct of a pointer and a float
// would travel through the stack.
template <class T> struct PaddedWith {
  using Lane = T;
  const T* padding;
  const T* p;

  template <size_t N> auto get(size_t at) const { return load(Lanes<T, N>(), p + at); }
  template <size_t N> auto get(size_t at, size_t n) const { return loadFirstOr(Lanes<T, N>(), p + at, n, *padding); }
  PaddedWith from(size_t at) const { return {padding, p + at}; }
};

template <class T> PaddedWith(const T*, const T*) -> PaddedWith<T>;

// A real source beside complex ones: loads every element twice, once for each part.
template <class T> struct Doubled {
  using Lane = T;
  const T* p;

  template <size_t N> auto get(size_t at) const { return twice(load(Lanes<T, N / 2>(), p + at / 2)); }
  template <size_t N> auto get(size_t at, size_t n) const { return twice(loadFirst(Lanes<T, N / 2>(), p + at / 2, n / 2)); }
  Doubled from(size_t at) const { return {p + at / 2}; }
};

template <class T> Doubled(const T*) -> Doubled<T>;

// A real source beside complex ones: loads every element once, for kernels that widen it to the size of a complex element.
template <class T> struct Beside {
  using Lane = T;
  const T* p;

  template <size_t N> auto get(size_t at) const { return load(Lanes<T, N / 2>(), p + at / 2); }
  template <size_t N> auto get(size_t at, size_t n) const { return loadFirst(Lanes<T, N / 2>(), p + at / 2, n / 2); }
  Beside from(size_t at) const { return {p + at / 2}; }
};

template <class T> Beside(const T*) -> Beside<T>;

// Loads two vectors of elements twice as wide as the destination's, for narrowInOrder, so that whole registers are stored: with
// half registers, 32s to 16s takes 1.4 times as long.
template <class T> struct InPairs {
  using Lane = hwy::UnsignedFromSize<sizeof(T) / 2>;
  const T* p;

  template <size_t N> auto get(size_t at) const {
    const Lanes<T, N / 2> d;
    return Pair<Vec<Lanes<T, N / 2>>>{load(d, p + at), load(d, p + at + N / 2)};
  }
  template <size_t N> auto get(size_t at, size_t n) const {
    const Lanes<T, N / 2> d;
    const size_t low = std::min(n, N / 2);
    return Pair<Vec<Lanes<T, N / 2>>>{loadFirst(d, p + at, low), n == low ? hn::Zero(d) : loadFirst(d, p + at + low, n - low)};
  }
  InPairs from(size_t at) const { return {p + at}; }
};
template <class T> InPairs(const T*) -> InPairs<T>;

// Tells a kernel which elements it works on: the index of the first, and how many there are.
struct Place {
  size_t at;
  size_t count;
};
struct Places {
  using Lane = uint8_t;
  size_t first = 0;

  template <size_t N> Place get(size_t at) const { return {first + at, N}; }
  template <size_t N> Place get(size_t at, size_t n) const { return {first + at, n}; }
  Places from(size_t at) const { return {first + at}; }
};

template <class T> Source<T> source(const T* p) { return {parts(p)}; }
template <class T> Constant<T> source(Constant<T> c) { return c; }
template <class T> Doubled<T> source(Doubled<T> d) { return d; }
template <class T> Beside<T> source(Beside<T> v) { return v; }
template <class T> OnesPastEnd<T> source(OnesPastEnd<T> v) { return v; }
template <class T> InPairs<T> source(InPairs<T> v) { return v; }
inline Places source(Places places) { return places; }
template <class T> Destination<T> destination(T* p) { return {parts(p)}; }

template <class T> const T* pointerOf(const T* p) { return p; }
template <class T> const T* pointerOf(Doubled<T> d) { return d.p; }
template <class T> const T* pointerOf(Beside<T> v) { return v.p; }
template <class T> const T* pointerOf(OnesPastEnd<T> v) { return v.p; }
template <class T> const T* pointerOf(InPairs<T> v) { return v.p; }
inline constexpr char kNotNull = 0;
template <class T> const char* pointerOf(Constant<T>) { return &kNotNull; }
inline const char* pointerOf(Places) { return &kNotNull; }

}  // namespace qvx
