// Sums, and sums of squares, of the elements of a vector.
#pragma once

#include "frame/power.h"
#include "frame/reduce.h"

namespace qvx {

inline constexpr int kFast = 1;  // the hint that asks for speed; any other asks for accuracy

// 2^-scaleFactor, kept finite and normal: the ends bring any integer but 0 out of every range, or to 0.
inline double scaleFactorOf(int scaleFactor) { return powerOfTwo<double>(-std::clamp(scaleFactor, -1023, 1022)); }

// The total of interleaved complex lanes.
template <class T> struct ComplexTotal {
  T re;
  T im;
  ComplexTotal& operator+=(ComplexTotal other) { return re += other.re, im += other.im, *this; }
};
template <size_t kParts, class V> auto laneTotals(V v) {
  using Total = std::conditional_t<std::is_same_v<LaneOf<V>, float>, double, LaneOf<V>>;
  if constexpr (kParts == 1) {
    return static_cast<Total>(sumOfLanes(v));
  } else {
    const auto two = folded<2>(v);
    return ComplexTotal<Total>{hn::ExtractLane(two, 0), hn::ExtractLane(two, 1)};
  }
}

// Part by part: a compiler that sees both converts them together through the stack, where the load waits 4 ns for the two stores.
template <class D> D complexOf(double re, double im) {
  const auto part = [](double v) {
    __asm__("" : "+x"(v));
    return static_cast<Part<D>>(v);
  };
  return {part(re), part(im)};
}

// A sum of floats in lanes of Lane, complex ones in lanes of their own. A Term is what it takes of the elements: first(v...) is
// that of the first lanes, onto(a, v...) that of later ones added. Lanes of 32-bit floats come to doubles after 512 elements at
// most.
template <class Lane, class Term, size_t kParts = 1> struct FloatSum : Reduction {
  using Inner = Lane;
  static constexpr size_t kFlight = 8;
  static constexpr size_t kSlice = sizeof(Lane) == 4 ? 1 << 14 : 1 << 16;

  template <class... V> auto start(V... v) const { return Term::first(widened<Lane>(v)...); }
  template <class A, class... V> A add(A a, V... v) const { return Term::onto(a, widened<Lane>(v)...); }
  template <class A> auto total(A a) const { return laneTotals<kParts>(a); }
};

struct Elements {
  template <class V> static V first(V v) { return v; }
  template <class V> static V onto(V a, V v) { return a + v; }
};

// 16-bit integers, exactly. Each lane takes two elements at a time: 65534 of them stay within 32 bits.
struct Sum16 : Reduction {
  static constexpr size_t kSlice = 1 << 17;
  template <class V> auto start(V v) const { return pairProducts(v, same<V>(1)); }
  template <class A, class V> A add(A a, V v) const { return a + pairProducts(v, same<V>(1)); }
  template <class A> int64_t total(A a) const { return sumOfLanes(halvesAdded<int64_t>(a)); }
};
struct Sum16Complex : Reduction {
  static constexpr size_t kFlight = kHasMasks ? 4 : 2;
  static constexpr size_t kSlice = 1 << 17;
  template <class V> auto start(V v) const {
    using A = decltype(pairProducts(v, v));
    return Pair<A>{pairProducts(v, as<int16_t>(same<A>(1))), pairProducts(v, as<int16_t>(same<A>(1 << 16)))};
  }
  template <class A, class V> Pair<A> add(Pair<A> a, V v) const { return join(a, start(v)); }
  template <class A> ComplexTotal<int64_t> total(Pair<A> a) const {
    return {sumOfLanes(halvesAdded<int64_t>(a.lo)), sumOfLanes(halvesAdded<int64_t>(a.hi))};
  }
};

// 32-bit integers in lanes of 64 bits, which no length can fill.
struct Sum32Widened : Reduction {
  using Inner = int64_t;
  static constexpr size_t kFlight = 8;
  template <class V> auto start(V v) const { return widened<int64_t>(v); }
  template <class A, class V> A add(A a, V v) const { return a + widened<int64_t>(v); }
  template <class A> int64_t total(A a) const { return sumOfLanes(a); }
};
// In lanes of their own width, where widening costs more than the load: 256 integers take 24 ns, not 77.
struct Sum32InLanes : Reduction {
  static constexpr size_t kSlice = 1 << 16;
  template <class V> auto start(V v) const { return LongSum<V>::of(v); }
  template <class V> auto add(LongSum<V> a, V v) const { return a.plus(v); }
  template <class A> static A join(A a, A b) { return a + b; }
  template <class A> int64_t total(A a) const { return a.total(); }
};
using Sum32 = std::conditional_t<QVXS_AVX2, Sum32Widened, Sum32InLanes>;

// Sum and sum of squares.
template <class T> struct Moments {
  T sum;
  T squares;
  Moments& operator+=(Moments other) { return sum += other.sum, squares += other.squares, *this; }
};

struct MomentsInDoubles : Reduction {
  using Inner = double;
  static constexpr size_t kSlice = 1 << 16;

  template <class V> auto start(V v) const {
    const auto x = widened<double>(v);
    return Pair<std::remove_const_t<decltype(x)>>{x, x * x};
  }
  template <class A, class V> Pair<A> add(Pair<A> a, V v) const {
    const auto x = widened<double>(v);
    return {a.lo + x, hn::MulAdd(x, x, a.hi)};
  }
  template <class A> Moments<double> total(Pair<A> a) const { return {sumOfLanes(a.lo), sumOfLanes(a.hi)}; }
};

struct MomentsInFloats : Reduction {
  static constexpr size_t kSlice = 1 << 14;

  template <class V> Pair<V> start(V v) const { return {v, v * v}; }
  template <class V> Pair<V> add(Pair<V> a, V v) const { return {a.lo + v, hn::MulAdd(v, v, a.hi)}; }
  template <class V> Moments<double> total(Pair<V> a) const {
    return {sumOfLanes(halvesAdded<double>(a.lo)), sumOfLanes(halvesAdded<double>(a.hi))};
  }
};

// 16-bit integers, exactly. A pair of squares is at most 2^31, an unsigned number.
struct Moments16 : Reduction {
  static constexpr size_t kFlight = kHasMasks ? 4 : 2;
  static constexpr size_t kSlice = 1 << 17;

  template <class V> struct Lanes {
    V sum;
    LongSum<Vec<hn::RebindToUnsigned<TagOf<V>>>> squares;
  };
  template <class V> auto start(V v) const {
    const auto sum = pairProducts(v, same<V>(1));
    using A = std::remove_const_t<decltype(sum)>;
    return Lanes<A>{sum, LongSum<decltype(as<uint32_t>(sum))>::of(as<uint32_t>(pairProducts(v, v)))};
  }
  template <class A, class V> Lanes<A> add(Lanes<A> a, V v) const {
    return {a.sum + pairProducts(v, same<V>(1)), a.squares.plus(as<uint32_t>(pairProducts(v, v)))};
  }
  template <class A> static Lanes<A> join(Lanes<A> a, Lanes<A> b) { return {a.sum + b.sum, a.squares + b.squares}; }
  template <class A> Moments<int64_t> total(Lanes<A> a) const {
    return {sumOfLanes(halvesAdded<int64_t>(a.sum)), a.squares.total()};
  }
};

}  // namespace qvx
