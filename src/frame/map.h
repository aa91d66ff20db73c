// The loop engine of all element-wise functions: check the arguments, then dst[i] = kernel(src[i]...) for any number of sources.
//
// A kernel is a function of whole vectors. The ends of a vector go through the same kernel, so no element is computed in another
// way than its neighbours, and no byte outside the caller's vectors is read or written.
#pragma once

#include <algorithm>
#include <bit>
#include <utility>

#include "frame/check.h"
#include "frame/scale.h"
#include "frame/simd.h"

namespace qvx {

// ---- elements

// The lanes that a complex element is made of; a real element is its own.
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

// ---- sources and destinations: anything that can give, or take, N lanes at a lane index

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
  // Lanes up to the first address from which no store of N lanes is split between cache lines.
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

// A vector in which a zero counts against the caller: where others have zeros past the end, this one has ones.
template <class T> struct OnesBehind {
  using Lane = Part<T>;
  const T* p;

  template <size_t N> auto get(size_t at) const { return load(Lanes<Lane, N>(), parts(p) + at); }
  template <size_t N> auto get(size_t at, size_t n) const { return loadFirstOr(Lanes<Lane, N>(), parts(p) + at, n, Lane{1}); }
  OnesBehind from(size_t at) const { return {p + at / PartsOf<T>::kCount}; }
};

template <class T> OnesBehind(const T*) -> OnesBehind<T>;
template <class T> OnesBehind(T*) -> OnesBehind<T>;

// A vector past whose end stands an element that leaves a reduction as it is. By its address: a float beside a pointer would
// travel through the stack.
template <class T> struct PaddedWith {
  using Lane = T;
  const T* behind;
  const T* p;

  template <size_t N> auto get(size_t at) const { return load(Lanes<T, N>(), p + at); }
  template <size_t N> auto get(size_t at, size_t n) const { return loadFirstOr(Lanes<T, N>(), p + at, n, *behind); }
  PaddedWith from(size_t at) const { return {behind, p + at}; }
};

template <class T> PaddedWith(const T*, const T*) -> PaddedWith<T>;

// A real vector beside complex ones: every element stands for both parts.
template <class T> struct Doubled {
  using Lane = T;
  const T* p;

  template <size_t N> auto get(size_t at) const { return twice(load(Lanes<T, N / 2>(), p + at / 2)); }
  template <size_t N> auto get(size_t at, size_t n) const { return twice(loadFirst(Lanes<T, N / 2>(), p + at / 2, n / 2)); }
  Doubled from(size_t at) const { return {p + at / 2}; }
};

template <class T> Doubled(const T*) -> Doubled<T>;

// The same, every element once: for kernels that widen it to the size of a complex element.
template <class T> struct Beside {
  using Lane = T;
  const T* p;

  template <size_t N> auto get(size_t at) const { return load(Lanes<T, N / 2>(), p + at / 2); }
  template <size_t N> auto get(size_t at, size_t n) const { return loadFirst(Lanes<T, N / 2>(), p + at / 2, n / 2); }
  Beside from(size_t at) const { return {p + at / 2}; }
};

template <class T> Beside(const T*) -> Beside<T>;

// A vector of elements twice as wide as the destination's, for narrowInOrder: a whole register is stored at a time then, where
// half a register would be the store's bound (32s to 16s takes 1.4 times as long that way).
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

// The number of the first element and how many there are, for kernels that have to tell which one it was.
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
template <class T> OnesBehind<T> source(OnesBehind<T> v) { return v; }
template <class T> InPairs<T> source(InPairs<T> v) { return v; }
inline Places source(Places places) { return places; }
template <class T> Destination<T> destination(T* p) { return {parts(p)}; }

template <class T> const T* pointerOf(const T* p) { return p; }
template <class T> const T* pointerOf(Doubled<T> d) { return d.p; }
template <class T> const T* pointerOf(Beside<T> v) { return v.p; }
template <class T> const T* pointerOf(OnesBehind<T> v) { return v.p; }
template <class T> const T* pointerOf(InPairs<T> v) { return v.p; }
inline constexpr char kNotNull = 0;
template <class T> const char* pointerOf(Constant<T>) { return &kNotNull; }
inline const char* pointerOf(Places) { return &kNotNull; }

// ---- warnings: a kernel with a kWarning is called with a Flag before its vectors, which it raises in the lanes that have no
// proper result. The loop's status is then that warning.

class Flag {
 public:
  template <class D, class M> void raise(D d, M mask) { lanes_ |= maskBits(d, mask); }
  bool isRaised() const { return lanes_ != 0; }

 private:
  uint64_t lanes_ = 0;
};

// For two kinds of warning, of which the first element's stands: what a kernel with a type `Watch` is called with instead. A
// vector's two ends are computed before what is between them, so the elements are told apart by number.
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

// An operation's arguments brought to the right lanes before it is called, its warnings kept.
template <class Op, class Prepare> auto behind(Prepare prepare, Op op) {
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

// Bytes read per lane; constants read none.
template <class Src> constexpr size_t bytesRead() {
  if constexpr (requires(Src s) { s.value; }) return 0;
  else return sizeof(typename Src::Lane);
}

// From this many vectors on, the loop starts at the first address from which no store is split between cache lines. Misaligned
// 16-bit sums of 4096 elements take half the time that way; below 8 vectors there is nothing to gain.
inline constexpr size_t kWorthAligning = 8;

// The ends of a vector are whole vectors too, which overlap their neighbours: what they give is computed before anything is
// stored and stored after everything else, so that a source may be the destination. Only fewer elements than fill 16 bytes
// take a partial vector: masked stores cost 1 ns more than that.
//
// It gives the status so that the checked function can end in a jump to it: 1 ns at 16 elements.
//
// Flattened: a kernel that the compiler leaves as a function of its own finds its constants in memory, and takes twice the time.
template <size_t N, size_t kWidest, class Kernel, class Dst, class... Src>
[[gnu::flatten]] QvxStatus loopOf(Kernel kernel, Dst dst, size_t n, Src... src) {
  typename WatchFor<Kernel>::Type flag;
  const auto at = [&](size_t i) { return call(kernel, flag, src.template get<N>(i)...); };
  if (n < N) {
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
  constexpr bool kFills = ((bytesRead<Src>() == 0) && ...);  // with one and the same register
  if (kFills && n > 2 * N && n <= 4 * N) {
    dst.template put<N>(first, N);
    dst.template put<N>(first, n - 2 * N);
  } else if (N * kWidest == kVectorBytes && n > 2 * N) {
    size_t i = N;
    if (n >= kWorthAligning * N && dst.template misaligned<N>() != 0) i = dst.template misaligned<N>();
    // Two at a time: sums of 32-bit floats take 0.76 of the time. But fills beyond the first-level cache, which do nothing but
    // store, take up to 1.7 times as long in pairs.
    constexpr size_t kFillsInPairs = size_t{32} << 10;
    const bool inPairs = !kFills || n * sizeof(typename Dst::Lane) < kFillsInPairs;
    for (; inPairs && i + 2 * N < n; i += 2 * N) {
      dst.template put<N>(at(i), i);
      dst.template put<N>(at(i + N), i + N);
    }
    for (; i + N < n; i += N) dst.template put<N>(at(i), i);
  }
  dst.template put<N>(first, 0);
  dst.template put<N>(last, n - N);
  return statusOf<Kernel>(flag);
}

// As many lanes at a time as one register has of the widest type: that of a vector or, if the kernel computes in a wider one,
// that of Inner.
template <class Inner = uint8_t, class Kernel, class Dst, class... Src>
QvxStatus loop(Kernel kernel, Dst dst, size_t n, Src... src) {
  constexpr size_t kWidest = std::max({sizeof(Inner), sizeof(typename Dst::Lane), sizeof(typename Src::Lane)...});
  return loopOf<kVectorBytes / kWidest, kWidest>(kernel, dst, n, src...);
}

// Lanes of one type to lanes of another, by value; floats that do not fit round in the processor's mode.
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

// A source narrower than the destination is widened before the operation; one of another kind but no narrower is left to it.
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

// As it is: integers saturated.
struct AsIs {
  template <class Op, class Dst, class... Src> QvxStatus run(Op op, Dst dst, size_t n, Src... src) const {
    return loop(behind([](auto v) { return widened<typename Dst::Lane>(v); }, op), dst, n, src...);
  }
};

// Sources in lanes of their own: the operation sees to everything.
struct InOwnLanes {
  template <class Op, class Dst, class... Src> QvxStatus run(Op op, Dst dst, size_t n, Src... src) const {
    return loop(op, dst, n, src...);
  }
};

// Times 2^-scaleFactor. An operation brings three things: op(v...) saturates; Op::kMaxScale<T> is the last scale factor that
// can leave anything but zeros; Op::scaleDown<T>(s, with) runs `with` on the kernel for the places s above 0.
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
    // One place less than a signed lane's width, or all of an unsigned one's, already send every non-zero value out.
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
