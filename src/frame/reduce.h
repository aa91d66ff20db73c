// The reduction engine: one value of one or more vectors, on the sources of the loop engine.
//
// A reduction defines its accumulator A, a vector or a struct of vectors, by four functions:
//
//   A start(v...)        the accumulator after the first N lanes of each source
//   A add(A a, v...)     after N more
//   A join(A a, A b)     of two accumulators
//   Total total(A a)     of all lanes; totals of slices are added with +=
//
//   kSlice     elements that an accumulator takes without overflow, or without losing more accuracy than the reduction states;
//              longer vectors are reduced slice by slice
//   kFlight    accumulators in use at the same time, to hide the latency of `add`
//   kRepeats   whether an element may be added twice, as into a maximum. If so, the last vector overlaps its neighbour; if
//              not, it is a partial one, whose zeros must add nothing
//   Inner      the widest lane type of the computation
//
// The lane that an element is added to depends on its index alone, never on its address.
#pragma once

#include <bit>

#include "frame/map.h"

namespace qvx {

// More elements than a 32-bit length can state.
inline constexpr size_t kMostElements = size_t{1} << 31;

// The base of most reductions: sums that need no slices.
struct Reduction {
  using Inner = uint8_t;
  static constexpr size_t kSlice = kMostElements;
  static constexpr size_t kFlight = 4;
  static constexpr bool kRepeats = false;

  template <class V> static V join(V a, V b) { return a + b; }
  template <class V> static Pair<V> join(Pair<V> a, Pair<V> b) { return {a.lo + b.lo, a.hi + b.hi}; }
};

// Folds the lanes of v with join until M are left.
template <size_t M, class V, class Join> auto folded(V v, Join join) {
  if constexpr (kLanesOf<V> == M) {
    return v;
  } else {
    const hn::Half<TagOf<V>> half;
    return folded<M>(join(hn::LowerHalf(half, v), upperHalf(v)), join);
  }
}
template <size_t M, class V> auto folded(V v) {
  return folded<M>(v, [](auto a, auto b) { return a + b; });
}
template <class V> LaneOf<V> sumOfLanes(V v) { return hn::GetLane(folded<1>(v)); }

// Widens both halves of v to lanes of Wide, and adds them.
template <class Wide, class V> auto halvesAdded(V v) {
  const hn::Half<TagOf<V>> half;
  const hn::Rebind<Wide, decltype(half)> wide;
  return hn::PromoteTo(wide, hn::LowerHalf(half, v)) + hn::PromoteTo(wide, hn::UpperHalf(half, v));
}

// upper * 2^32 + rest: without integers of 128 bits, for which the compiler takes a stack frame.
struct Sum96 {
  int64_t upper;
  uint64_t rest;
};

// An exact sum that may exceed its lanes: the wrapped sum, and the sum of the lanes' upper halves, from which the number of wraps
// follows. It takes three instructions a vector, where widening takes four and a shuffle. For up to 2^16 lanes of 32 bits in all,
// 2^15 of pairs, or any number of 64 bits.
//
// kOfPairs: the lanes are sums of two products, one of which does not fit: four times the most negative number wraps to its own
// negative. The upper half of the lane less 1 is right for that one too, at the price of one instruction; the lower half then
// ranges from 1 to 2^16 instead of 0 to 2^16 - 1.
template <class V, bool kOfPairs = false> struct LongSum {
  using Lane = LaneOf<V>;
  static constexpr int kHalf = 4 * sizeof(Lane);
  V wrapped;
  V upper;

  static V upperHalf(V v) {
    if constexpr (kOfPairs) return shiftedRight(v - same<V>(1), kHalf);
    else return shiftedRight(v, kHalf);
  }
  static LongSum of(V v) { return {v, upperHalf(v)}; }
  LongSum plus(V v) const { return {wrapped + v, upper + upperHalf(v)}; }
  LongSum operator+(LongSum other) const { return {wrapped + other.wrapped, upper + other.upper}; }

  // The upper halves give the sum to within one wrap from below; the wrapped sum gives the rest.
  auto total() const {
    using Bits = std::make_unsigned_t<Lane>;
    const Lane above = sumOfLanes(upper);
    const auto rest = static_cast<Bits>(static_cast<Bits>(sumOfLanes(wrapped)) - (static_cast<Bits>(above) << kHalf));
    if constexpr (sizeof(Lane) == 8) return Sum96{above, rest};
    else return int64_t{above} * (int64_t{1} << kHalf) + rest;
  }
};

namespace detail {

// Joins a[kFrom] to a[kFrom + kCount - 1] as a tree.
template <class R, size_t kFrom, size_t kCount, class A> A treeJoined(const A* a) {
  if constexpr (kCount == 1) return a[kFrom];
  else return R::join(treeJoined<R, kFrom, kCount / 2>(a), treeJoined<R, kFrom + kCount / 2, kCount - kCount / 2>(a));
}

// n from 1 to N, in as few lanes as hold them: each halving saves a step of the total.
template <size_t N, class R, class... Src> [[gnu::always_inline]] inline auto reducedShort(R r, size_t n, Src... src) {
  constexpr size_t kNarrowest = R::kRepeats ? 16 : kVectorBytes / 2;
  if constexpr (N * std::max({sizeof(typename R::Inner), sizeof(typename Src::Lane)...}) > kNarrowest) {
    if (n <= N / 2) return reducedShort<N / 2>(r, n, src...);
    if constexpr (R::kRepeats)
      return r.total(r.add(r.start(src.template get<N / 2>(0)...), src.template get<N / 2>(n - N / 2)...));
  }
  if (n == N) return r.total(r.start(src.template get<N>(0)...));
  return r.total(r.start(src.template get<N>(0, n)...));
}

// n from 1 to kSlice.
template <size_t N, class R, class... Src> [[gnu::flatten]] auto reducedSlice(R r, size_t n, Src... src) {
  const auto started = [&](size_t i) { return r.start(src.template get<N>(i)...); };
  const auto added = [&](auto a, size_t i) { return r.add(a, src.template get<N>(i)...); };
  if (n < N) [[unlikely]] {
    constexpr size_t kNarrowest = 16 / std::max({sizeof(typename R::Inner), sizeof(typename Src::Lane)...});
    // For elements of at most 16 bits, whose totals take the most steps: norms of up to 15 elements take 0.76 of the time. For
    // wider elements the test takes as long as a step.
    if constexpr (2 * N >= kVectorBytes) return reducedShort<N>(r, n, src...);
    else if constexpr (R::kRepeats && N > kNarrowest) return reducedSlice<N / 2>(r, n, src...);
    else return r.total(r.start(src.template get<N>(0, n)...));
  }
  auto all = started(0);
  if (n == N) return r.total(all);
  size_t i = N;
  constexpr size_t kRound = R::kFlight * N;
  if (n >= kRound) [[unlikely]] {
    [&]<size_t... K>(std::index_sequence<K...>) {
      decltype(all) a[] = {all, started((K + 1) * N)...};
      for (i = kRound; i + kRound <= n; i += kRound) {
        a[0] = added(a[0], i);
        ((a[K + 1] = added(a[K + 1], i + (K + 1) * N)), ...);
      }
      all = treeJoined<R, 0, R::kFlight>(a);
    }
    (std::make_index_sequence<R::kFlight - 1>());
  }
  // The whole vectors that are left, without a loop: its jumps take longer than its additions (64 floats: 3.3 ns, not 3.9).
  const size_t left = n - i;
  const auto next = [&](size_t k) { return (k + 1) * N <= left && (all = added(all, i + k * N), true); };
  [&]<size_t... K>(std::index_sequence<K...>) { (void)(next(K) && ...); }
  (std::make_index_sequence<R::kFlight - 1>());
  if (const size_t rest = n % N; rest != 0) {
    all = R::kRepeats ? added(all, n - N) : r.add(all, src.template get<N>(n - rest, rest)...);
  }
  return r.total(all);
}

template <size_t N, class R, class... Src> [[gnu::noinline]] auto reducedInSlices(R r, size_t n, Src... src) {
  auto total = reducedSlice<N>(r, R::kSlice, src...);
  for (size_t at = R::kSlice; at < n; at += R::kSlice) total += reducedSlice<N>(r, std::min(n - at, R::kSlice), src.from(at)...);
  return total;
}

// As many lanes as one register has of the widest type.
template <class R, class... Src>
inline constexpr size_t kAtATime = kVectorBytes / std::max({sizeof(typename R::Inner), sizeof(typename Src::Lane)...});

}  // namespace detail

// The total over n lanes, 1 or more.
template <class R, class... Src> [[gnu::always_inline]] inline auto reduce(R r, size_t n, Src... src) {
  constexpr size_t N = detail::kAtATime<R, Src...>;
  if constexpr (R::kSlice < kMostElements) {
    if (n > R::kSlice) return detail::reducedInSlices<N>(r, n, src...);
  }
  return detail::reducedSlice<N>(r, n, src...);
}

namespace detail {

template <size_t N, class R, class D, class Finish, class... Src>
[[gnu::flatten]] QvxStatus reducedSliceTo(D* result, Finish finish, size_t n, Src... src) {
  *result = finish(reducedSlice<N>(R(), n, src...));
  return qvxStatOk;
}

template <size_t N, class R, class D, class Finish, class... Src>
[[gnu::noinline]] QvxStatus reducedInSlicesTo(D* result, Finish finish, size_t n, Src... src) {
  *result = finish(reducedInSlices<N>(R(), n, src...));
  return qvxStatOk;
}

}  // namespace detail

// *result = finish(the total over n lanes). Returns the status, so that the checked function can hold the kernel, if it is the
// only caller, or end in a jump to it: a call between them makes 3.3 ns of 2.4 for 16 elements, a jump takes 0.25. `finish`
// should fit two registers.
template <class R, class D, class Finish, class... Src>
[[gnu::always_inline]] inline QvxStatus reducedTo(D* result, size_t n, Finish finish, Src... src) {
  constexpr size_t N = detail::kAtATime<R, Src...>;
  if constexpr (R::kSlice < kMostElements) {
    if (n > R::kSlice) [[unlikely]]
      return detail::reducedInSlicesTo<N, R>(result, finish, n, src...);
  }
  return detail::reducedSliceTo<N, R>(result, finish, n, src...);
}

// The lanes of one element.
template <class Src> inline constexpr size_t kLanesEach = 1;
template <class T> inline constexpr size_t kLanesEach<const T*> = PartsOf<T>::kCount;

// The whole function: *result = finish(the total over len elements).
template <class R, class D, class Finish, class... Src>
[[gnu::always_inline]] inline QvxStatus reduceTo(D* result, int len, Finish finish, Src... src) {
  const QvxStatus status = check(len, pointerOf(src)..., result);
  if (status != qvxStatOk) return status;
  return reducedTo<R>(result, elements(len) * std::max({kLanesEach<Src>...}), finish, source(src)...);
}

// Prefetches a long vector a page ahead: for reductions of so many instructions that the processor's window holds too few loads
// to hide the memory's latency (products of 4 Mi 32-bit integers: 0.6 ms, not 0.8). Gains nothing where loads are the bound.
template <class T> struct FetchedAhead {
  using Lane = Part<T>;
  static constexpr size_t kWorthIt = size_t{1} << 20;  // bytes
  const Lane* p;

  template <size_t N> auto get(size_t at) const {
    __builtin_prefetch(p + at + 4096 / sizeof(Lane));
    return load(Lanes<Lane, N>(), p + at);
  }
  template <size_t N> auto get(size_t at, size_t n) const { return loadFirst(Lanes<Lane, N>(), p + at, n); }
  FetchedAhead from(size_t at) const { return {p + at}; }
};
template <class T> FetchedAhead<T> source(FetchedAhead<T> v) { return v; }
template <class T> const Part<T>* pointerOf(FetchedAhead<T> v) { return v.p; }
template <class T> inline constexpr size_t kLanesEach<FetchedAhead<T>> = PartsOf<T>::kCount;
template <class T> FetchedAhead<T> fetchedAhead(const T* p) { return {parts(p)}; }

namespace detail {

template <size_t N, class Is, class Src> [[gnu::flatten]] size_t firstOf(Is is, size_t n, Src src) {
  const auto found = [&](auto v) { return maskBits(TagOf<decltype(v)>(), is(v)); };
  const auto first = [](uint64_t lanes) { return static_cast<size_t>(std::countr_zero(lanes)); };
  if (n < N) {
    if constexpr (N * sizeof(typename Src::Lane) > 16) return firstOf<N / 2>(is, n, src);
    const size_t at = first(found(src.template get<N>(0, n)));
    return std::min(at, n);
  }
  size_t i = 0;
  for (; i + N <= n; i += N) {
    if (const uint64_t lanes = found(src.template get<N>(i))) return i + first(lanes);
  }
  if (i == n) return n;
  // The elements that this vector shares with the one before have been tested.
  const uint64_t lanes = found(src.template get<N>(n - N));
  return lanes == 0 ? n : n - N + first(lanes);
}

}  // namespace detail

// The index of the first of n elements, 1 or more, for which is(v) gives a lane of its mask; n if there is none.
template <class Is, class Src> size_t firstWhere(Is is, size_t n, Src src) {
  return detail::firstOf<kVectorBytes / sizeof(typename Src::Lane)>(is, n, src);
}

}  // namespace qvx
