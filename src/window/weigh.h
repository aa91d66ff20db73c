// A vector times a symmetric window: every weight is made once, and serves both ends from its register.
#pragma once

#include "frame/map.h"
#include "frame/rounding.h"

namespace qvx::window {

// N = 3 where a window is 0 at both ends: zeros whatever they were.
template <class T> void clearEnds(const T* src, T* dst) {
  const T middle = src[1];
  dst[0] = dst[2] = T{};
  dst[1] = middle;
}

template <class T> QvxStatus checkWindow(const T* src, const T* dst, int len) {
  if (isNull(src) || isNull(dst)) return qvxStatNullPtr;
  return len < 3 ? qvxStatBadSize : qvxStatOk;
}

// The type in which the weights of an element are computed.
template <class T> using Weight = std::conditional_t<std::is_same_v<Part<T>, Qvx64f>, Qvx64f, Qvx32f>;

// Floats as they come. Integers to nearest, saturated, with weights below 2^15, so that 32 bits hold the product.
template <class T> struct Weighed {
  template <class V> static auto rounded(V x, V w) { return toIntNearest(x * w); }
  template <class V, class W> auto operator()(V x, W w) const {
    if constexpr (std::is_floating_point_v<Part<T>>) return x * w;
    else return convertLanes<Part<T>>(rounded(convertLanes<float>(x), w));
  }
};
// With weights up to 1, which saturate nothing.
struct WeighedDown : Weighed<Qvx16s> {};
template <class T> using WeighedUpToOne = std::conditional_t<std::is_same_v<T, Qvx16s>, WeighedDown, Weighed<T>>;

// Integers times any weight and a power of two.
struct WeighedTimes {
  Qvx32f factor;

  template <class V> auto rounded(V x, V w) const {
    const V product = x * w * same<V>(factor);
    // What is below the range becomes the least integer by itself.
    return toIntNearest(hn::Min(product, same<V>(std::numeric_limits<Qvx16s>::max())));
  }
  template <class V, class W> auto operator()(V x, W w) const { return convertLanes<Qvx16s>(rounded(convertLanes<float>(x), w)); }
};

// Two vectors of 16-bit numbers as one.
template <class Kernel, class V> auto weighedTogether(Kernel kernel, Pair<V> x, Pair<V> w) {
  if constexpr (kHasMasks && std::is_same_v<Kernel, WeighedDown>) {
    // The lowest bits of a sum, which one instruction gathers: 4096 numbers take 0.84 of the time.
    const auto lower = as<Qvx16s>(hn::MulAdd(x.lo, w.lo, same<V>(0x1.8p23F)));
    const auto upper = as<Qvx16s>(hn::MulAdd(x.hi, w.hi, same<V>(0x1.8p23F)));
    return hn::ConcatEven(TagOf<std::remove_const_t<decltype(lower)>>(), upper, lower);
  } else {
    using Integers = decltype(kernel.rounded(x.lo, w.lo));
    return narrowInOrder<Qvx16s>(Pair<Integers>{kernel.rounded(x.lo, w.lo), kernel.rounded(x.hi, w.hi)});
  }
}

// One after the other they take eight instructions more. Real: what weights are computed in; of doubles two vectors may be one.
template <class T, class Real> inline constexpr bool kInPairs = sizeof(Real) == sizeof(float) && std::is_same_v<T, Qvx16s>;

// put() for `count` weights, of which next() makes a vector at a time.
template <class T, class Real, class Next, class Put>
[[gnu::always_inline]] inline void putInOrder(size_t count, Next next, const Put& put) {
  using V = decltype(next());
  constexpr size_t N = kLanesOf<V>;
  size_t from = 0;
  if constexpr (kInPairs<T, Real>) {
    for (; from + 2 * N <= count; from += 2 * N) {
      const V first = next();
      put(from, Pair<V>{first, next()});
    }
  }
  if constexpr (!kHasMasks) {
    for (; from + 2 * N <= count; from += 2 * N) {
      put(from, next());
      put(from + N, next());
    }
  }
  for (; from + N <= count; from += N) put(from, next());
  if (from < count) put(from, next(), count - from);
}

// dst[n] = src[n] * w[n], w[len-1-n] = w[n], as far as vectors of the first half's weights come: `at` is the place of the first.
template <class T, class Kernel> struct BothEnds {
  const T* src;
  T* dst;
  size_t len;
  Kernel kernel;

  template <class V> void operator()(size_t at, V weights) const {
    weighBoth(at, weights, len - at - kLanesOf<V>, reversed(weights));
  }
  // Two vectors that follow each other.
  template <class V> void operator()(size_t at, Pair<V> weights) const requires kInPairs<T, LaneOf<V>> {
    constexpr size_t N = kLanesOf<V>;
    const auto weighed = [&](size_t i, V lower, V upper) {
      const Source<T> x{src + i};
      const Pair<V> values{convertLanes<float>(x.template get<N>(0)), convertLanes<float>(x.template get<N>(N))};
      return weighedTogether(kernel, values, Pair<V>{lower, upper});
    };
    const size_t back = len - at - 2 * N;
    const auto first = weighed(at, weights.lo, weights.hi);
    const auto last = weighed(back, reversed(weights.hi), reversed(weights.lo));
    Destination<T>{dst}.template put<2 * N>(first, at);
    Destination<T>{dst}.template put<2 * N>(last, back);
  }
  // Of which the first `rest` count: whole halves as far as they go. 16-bit numbers under a mask go at once: 20 of them take 15
  // ns, by halves 41, since the last few wait for what was stored before them. Just a half needs no mask: 16 take 5.5 ns,
  // not 7.4.
  template <class V> void operator()(size_t at, V weights, size_t rest) const {
    const TagOf<V> d;
    constexpr size_t kHalf = kLanesOf<V> / 2;
    constexpr bool kUnderMask = kHasMasks && sizeof(Part<T>) == 2;
    if constexpr (2 * kHalf * sizeof(Part<T>) > 16 && !kUnderMask) {
      const hn::Half<decltype(d)> half;
      const auto lower = hn::LowerHalf(half, weights);
      if (rest < kHalf) return (*this)(at, lower, rest);
      (*this)(at, lower);
      if (rest > kHalf) (*this)(at + kHalf, upperHalf(weights), rest - kHalf);
    } else {
      if constexpr (kUnderMask && kHalf * sizeof(Part<T>) == 16) {
        if (rest == kHalf) return (*this)(at, hn::LowerHalf(hn::Half<decltype(d)>(), weights));
      }
      const hn::RebindToSigned<decltype(d)> places;
      const auto last = hn::Set(places, static_cast<hn::TFromD<decltype(places)>>(rest - 1));
      const auto order = hn::Max(last - hn::Iota(places, 0), hn::Zero(places));
      weighBoth(at, weights, len - at - rest, hn::TableLookupLanes(weights, hn::IndicesFromVec(d, order)), rest);
    }
  }

 private:
  // Both are loaded before one is stored: parts of a vector that lie closer than a whole one would wait for each other.
  template <class V, class... Rest> void weighBoth(size_t front, V atFront, size_t back, V atBack, Rest... rest) const {
    if constexpr (PartsOf<T>::kCount == 1) {
      const auto first = product(front, atFront, rest...);
      const auto last = product(back, atBack, rest...);
      put(first, front, rest...);
      put(last, back, rest...);
    } else {
      weighPairs(front, atFront, rest...);
      weighPairs(back, atBack, rest...);
    }
  }
  // A weight for each complex number from `at` on.
  template <class V, class... Rest> void weighPairs(size_t at, V weights, Rest... rest) const {
    constexpr size_t N = kLanesOf<V>;
    const auto twice = interleaved(Pair<V>{weights, weights});
    const auto each = [&](size_t i, V w, auto... count) { put(product(i, w, count...), i, count...); };
    if constexpr (sizeof...(rest) == 0) {
      each(2 * at, twice.lo);
      each(2 * at + N, twice.hi);
    } else {
      const size_t all = 2 * (rest + ...);
      each(2 * at, twice.lo, std::min(all, N));
      if (all > N) each(2 * at + N, twice.hi, all - N);
    }
  }
  // Parts from i on.
  template <class V, class... Rest> auto product(size_t i, V weights, Rest... rest) const {
    return kernel(Source<Part<T>>{parts(src)}.template get<kLanesOf<V>>(i, rest...), weights);
  }
  template <class V, class... Rest> void put(V v, size_t i, Rest... rest) const {
    Destination<Part<T>>{parts(dst)}.template put<kLanesOf<V>>(v, i, rest...);
  }
};

// The middle of odd lengths stays as it is. make(count, put) makes weights for put, a BothEnds.
template <class T, class Kernel, class Make> void weigh(const T* src, T* dst, size_t len, Kernel kernel, Make make) {
  make(len / 2, BothEnds<T, Kernel>{src, dst, len, kernel});
  if (len % 2 != 0) dst[len / 2] = src[len / 2];
}

// Integers are rounded to nearest in any mode of the processor; on SSSE3 the elementary functions need it for floats as well.
template <class T>
inline constexpr Rounding kMode = std::is_integral_v<Part<T>> || !kRoundsByInstruction ? Rounding::kNearest : Rounding::kCallers;

}  // namespace qvx::window
