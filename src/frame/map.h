// The loop engine of all element-wise functions: check the arguments, then dst[i] = kernel(src[i]...) for any number of sources.
//
// A kernel works on whole vectors, at the ends of the caller's arrays too: every element is computed in the same way, and no byte
// outside the arrays is read or written.
#pragma once

#include <algorithm>
#include <bit>
#include <utility>

#include "frame/check.h"
#include "frame/scale.h"
#include "frame/simd.h"

namespace qvx {

// ---- elements

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

// ---- sources and destinations: whatever can load or store N lanes at a lane index

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

// ---- warnings: a kernel that declares a kWarning takes a Flag as its first argument, and raises it in the lanes that have no
// proper result. The loop then returns that warning.

class Flag {
 public:
  template <class D, class M> void raise(D d, M mask) { lanes_ |= maskBits(d, mask); }
  bool isRaised() const { return lanes_ != 0; }

 private:
  uint64_t lanes_ = 0;
};

// For kernels with two kinds of warning: the first element that has one decides. They declare this class as their type `Watch`.
// Both ends of a vector are computed before its middle, so elements are compared by index.
class FirstFlag {
 public:
  // kind(lane) is the warning for a raised lane.
  template <class Kind> void raise(Place place, uint64_t lanes, Kind kind) {
    if (lanes == 0) return;
    const auto lane = static_cast<size_t>(std::countr_zero(lanes));
    if (place.at + lane >= at_) return;
    at_ = place.at + lane;
    status_ = kind(lane);
  }
  QvxStatus status() const { return status_; }

 private:
  size_t at_ = ~size_t{0};
  QvxStatus status_ = qvxStatOk;
};

template <QvxStatus kStatus, class Kernel> struct Warns : Kernel { static constexpr QvxStatus kWarning = kStatus; };
template <QvxStatus kStatus, class Kernel> Warns<kStatus, Kernel> warns(Kernel kernel) { return {kernel}; }
template <class Type, class Kernel> struct Watched : Kernel { using Watch = Type; };
template <class Type, class Kernel> Watched<Type, Kernel> watched(Kernel kernel) { return {kernel}; }

template <class Kernel> inline constexpr bool kWarnsOfFirst = requires { typename Kernel::Watch; };
template <class Kernel> inline constexpr bool kWarns = kWarnsOfFirst<Kernel> || requires { Kernel::kWarning; };

template <class Kernel> struct WatchFor { using Type = Flag; };
template <class Kernel>
requires kWarnsOfFirst<Kernel>
struct WatchFor<Kernel> {
  using Type = typename Kernel::Watch;
};

template <class Kernel, class Watch, class... V> auto call(const Kernel& kernel, [[maybe_unused]] Watch& watch, V... v) {
  if constexpr (kWarns<Kernel>) return kernel(watch, v...);
  else return kernel(v...);
}

template <class Kernel, class Watch> QvxStatus statusOf([[maybe_unused]] const Watch& watch) {
  if constexpr (kWarnsOfFirst<Kernel>) return watch.status();
  else if constexpr (kWarns<Kernel>) return watch.isRaised() ? Kernel::kWarning : qvxStatOk;
  else return qvxStatOk;
}

// Calls op with its arguments passed through `prepare`, and keeps its warnings.
template <class Op, class Prepare> auto prepared(Prepare prepare, Op op) {
  if constexpr (kWarnsOfFirst<Op>) {
    using Watch = typename Op::Watch;
    return watched<Watch>([=](Watch& watch, auto... v) { return op(watch, prepare(v)...); });
  } else if constexpr (kWarns<Op>) {
    return warns<Op::kWarning>([=](Flag& flag, auto... v) { return op(flag, prepare(v)...); });
  } else {
    return [=](auto... v) { return op(prepare(v)...); };
  }
}

// ---- the loop

template <class Src> inline constexpr bool kIsConstant = requires(Src s) { s.value; };

// From this many vectors on, the loop starts at the first address from which no store is split between cache lines. Misaligned
// 16-bit sums of 4096 elements take half the time that way; below 8 vectors there is nothing to gain.
inline constexpr size_t kWorthAligning = 8;

// The first and the last vector may overlap their neighbours. They are computed before anything is stored, and stored after
// everything else, so that a source may be the destination. Only fewer elements than fill 16 bytes take a partial vector: masked
// stores cost 1 ns more than that.
//
// Returns the status, so that the checked function can end in a jump here: that saves 1 ns at 16 elements. The code of
// short vectors stands in a line, since every jump that is taken costs 0.3 ns.
//
// Flattened: a kernel that is not inlined reloads its constants from memory, and takes twice the time.
template <size_t N, size_t kWidest, class Kernel, class Dst, class... Src>
[[gnu::flatten]] QvxStatus loopOf(Kernel kernel, Dst dst, size_t n, Src... src) {
  typename WatchFor<Kernel>::Type flag;
  const auto at = [&](size_t i) { return call(kernel, flag, src.template get<N>(i)...); };
  if (n < N) [[unlikely]] {
    if constexpr (N * kWidest > 16) {
      return loopOf<N / 2, kWidest>(kernel, dst, n, src...);
    } else {
      dst.template put<N>(call(kernel, flag, src.template get<N>(0, n)...), 0, n);
      return statusOf<Kernel>(flag);
    }
  }
  const auto first = at(0);
  if (n == N) {
    dst.template put<N>(first, 0);
    return statusOf<Kernel>(flag);
  }
  const auto last = at(n - N);
  const auto putEnds = [&] {
    dst.template put<N>(first, 0);
    dst.template put<N>(last, n - N);
    return statusOf<Kernel>(flag);
  };
  if (N * kWidest < kVectorBytes || n <= 2 * N) return putEnds();
  constexpr bool kFills = (kIsConstant<Src> && ...);  // with one and the same register
  if (kFills && n <= 4 * N) {
    dst.template put<N>(first, N);
    dst.template put<N>(first, n - 2 * N);
    return putEnds();
  }
  size_t i = N;
  if (n >= kWorthAligning * N) [[unlikely]] {
    if (dst.template misaligned<N>() != 0) i = dst.template misaligned<N>();
  }
  // No destination is fetched ahead: what one make gains by it, 0.07 of the time of sums of 8192 floats, another loses twice from
  // the first-level cache on, and 0.4 of the time or more in place.
  //
  // Two at a time: sums of 32-bit floats take 0.76 of the time. But fills beyond the first-level cache, which do nothing but
  // store, take up to 1.7 times as long in pairs.
  constexpr size_t kFillsInPairs = size_t{32} << 10;
  const bool inPairs = !kFills || n * sizeof(typename Dst::Lane) < kFillsInPairs;
  const auto putPair = [&] {
    dst.template put<N>(at(i), i);
    dst.template put<N>(at(i + N), i + N);
  };
  // Narrower registers by two pairs: sums with a constant take 0.8 of the time in AVX2.
  if constexpr (!kHasMasks) {
    for (; inPairs && i + 4 * N < n; i += 2 * N) {
      putPair();
      i += 2 * N;
      putPair();
    }
  }
  for (; inPairs && i + 2 * N < n; i += 2 * N) putPair();
  if (kFills) {
    for (; i + N < n; i += N) dst.template put<N>(at(i), i);
  } else if (i + N < n) {
    dst.template put<N>(at(i), i);
  }
  return putEnds();
}

// Takes as many lanes at a time as a register holds of the widest type: of the vectors, or Inner if the kernel computes in a
// wider one.
template <class Inner = uint8_t, class Kernel, class Dst, class... Src>
QvxStatus loop(Kernel kernel, Dst dst, size_t n, Src... src) {
  constexpr size_t kWidest = std::max({sizeof(Inner), sizeof(typename Dst::Lane), sizeof(typename Src::Lane)...});
  return loopOf<kVectorBytes / kWidest, kWidest>(kernel, dst, n, src...);
}

// Converts lanes to another type by value; what a float cannot hold is rounded in the processor's mode.
template <class To, class V> auto convertLanes(V v) {
  using From = LaneOf<V>;
  const hn::Rebind<To, TagOf<V>> d;
  if constexpr (std::is_same_v<To, From>) {
    return v;
  } else if constexpr (std::is_same_v<To, float> && std::is_integral_v<From>) {
    if constexpr (std::is_same_v<From, uint32_t>) return hn::ConvertTo(d, as<int32_t>(v));  // callers have no more than 31 bits
    else return hn::ConvertTo(d, convertLanes<int32_t>(v));
  } else if constexpr (std::is_same_v<To, double> && sizeof(From) == 2) {
    return hn::PromoteTo(d, convertLanes<int32_t>(v));
  } else if constexpr (std::is_same_v<To, double> && sizeof(From) == 8) {
    return toDouble(v);
  } else if constexpr (sizeof(From) > sizeof(To)) {
    return hn::DemoteTo(d, v);
  } else {
    return hn::PromoteTo(d, v);
  }
}

// ---- fits: how an operation's result becomes the destination's element

// Widens a source that is narrower than the destination before the operation; others are passed on.
template <class Lane, class V> auto widened(V v) {
  if constexpr (std::is_same_v<V, Place>) return v;
  else if constexpr (sizeof(LaneOf<V>) < sizeof(Lane)) return convertLanes<Lane>(v);
  else return v;
}
template <class Lane, class V> auto widened(Complex<V> v) {
  const auto re = widened<Lane>(v.re);
  return Complex<std::remove_const_t<decltype(re)>>{re, widened<Lane>(v.im)};
}

template <class Lane, class V> auto widened(Pair<V> v) {
  return each(v, [](auto part) { return widened<Lane>(part); });
}

// Stores the result as it is; integers saturate.
struct AsIs {
  template <class Op, class Dst, class... Src> QvxStatus run(Op op, Dst dst, size_t n, Src... src) const {
    return loop(prepared([](auto v) { return widened<typename Dst::Lane>(v); }, op), dst, n, src...);
  }
};

// Passes every source in lanes of its own type: the operation widens and narrows.
struct InOwnLanes {
  template <class Op, class Dst, class... Src> QvxStatus run(Op op, Dst dst, size_t n, Src... src) const {
    return loop(op, dst, n, src...);
  }
};

// Multiplies by 2^-scaleFactor. An operation provides three things: op(v...), which saturates; Op::kMaxScale<T>, the largest
// scale factor with a result other than zeros; Op::scaleDown<T>(s, with), which runs `with` on the kernel for shifts s above 0.
struct Scaled {
  int scaleFactor;

  template <class Op, class Dst, class... Src> QvxStatus run(Op op, Dst dst, size_t n, Src... src) const {
    using Lane = typename Dst::Lane;
    const auto with = [&](auto kernel) {
      return loop([kernel](auto... v) { return kernel(widened<Lane>(v)...); }, dst, n, src...);
    };
    if (scaleFactor == 0) return with(op);
    if (scaleFactor > Op::template kMaxScale<Lane>) return loop([](auto zero) { return zero; }, dst, n, Constant<Lane>{0});
    if (scaleFactor > 0) return Op::template scaleDown<Lane>(scaleFactor, with);
    // A shift by one bit less than a signed lane's width, or by an unsigned lane's width, already saturates all but zeros.
    constexpr int kMost = 8 * sizeof(Lane) - std::is_signed_v<Lane>;
    const int places = scaleFactor < -kMost ? kMost : -scaleFactor;
    return with([op, places](auto... v) { return saturatedShiftLeft(op(v...), places); });
  }
};

// ---- the whole function

// dst = Op(src...) over len elements; len is an int, a LengthFirst or an Unsigned.
template <class Op, class Length, class Fit, class T, class... Src> QvxStatus map(T* dst, Length len, Fit fit, Src... src) {
  const QvxStatus status = check(len, pointerOf(src)..., dst);
  if (status != qvxStatOk) return status;
  return fit.run(Op(), destination(dst), elements(len) * PartsOf<T>::kCount, source(src)...);
}

}  // namespace qvx
