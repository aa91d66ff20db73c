#include "convolution/dots.h"

#include "convolution/sum_shift.h"
#include "frame/reduce.h"
#include "frame/unroll.h"

namespace qvx::convolution {

namespace {

// A vector of elements, by the lanes of their parts.
template <class C> inline constexpr Lanes<Part<C>, kVectorElements<C> * PartsOf<C>::kCount> kTag;
template <class C> using VectorOf = Vec<std::remove_const_t<decltype(kTag<C>)>>;

template <class V> V onto(V sum, V tap, V x) { return hn::MulAdd(tap, x, sum); }
template <class Sum, class V> Sum onto(Sum sum, V tap, V x) { return sum + pairProducts(tap, x); }
// The products with the real parts of taps, and with their imaginary ones. Held, or GCC loads x for each of them.
template <class V> Pair<V> onto(Pair<V> sum, Pair<V> tap, V x) {
  x = held(x);
  return {onto(sum.lo, tap.lo, x), onto(sum.hi, tap.hi, x)};
}

template <class Sum> Sum none() {
  if constexpr (requires(Sum s) { s.lo; }) return {none<decltype(Sum::lo)>(), none<decltype(Sum::hi)>()};
  else return hn::Zero(TagOf<Sum>());
}

template <class C> auto tapsAt(const C* p, size_t k) {
  if constexpr (PartsOf<C>::kCount == 1) {
    return load(kTag<C>, p + k);
  } else {
    const C* const both = p + 2 * k;
    return Pair<VectorOf<C>>{load(kTag<C>, parts(both)), load(kTag<C>, parts(both + kVectorElements<C>))};
  }
}

// The sums of the lanes of as many vectors as fill 16 bytes.
template <class V> [[gnu::always_inline]] inline auto sumsOfLanes(const V (&v)[2]) {
  const TagOf<V> d;
  return folded<2>(hn::InterleaveLower(d, v[0], v[1]) + hn::InterleaveUpper(d, v[0], v[1]));
}
template <class V> [[gnu::always_inline]] inline auto sumsOfLanes(const V (&v)[4]) {
  const TagOf<V> d;
  using Lane = LaneOf<V>;
  const auto pairs = [=](V a, V b) { return as<double>(hn::InterleaveLower(d, a, b) + hn::InterleaveUpper(d, a, b)); };
  const auto low = pairs(v[0], v[1]);
  const auto high = pairs(v[2], v[3]);
  const TagOf<std::remove_const_t<decltype(low)>> wide;
  return folded<4>(as<Lane>(hn::InterleaveLower(wide, low, high)) + as<Lane>(hn::InterleaveUpper(wide, low, high)));
}
template <class V> [[gnu::always_inline]] inline auto sumsOfLanes(const Pair<V> (&v)[2]) {
  const auto total = [](Pair<V> sum) { return as<double>(minusPlus(sum.lo, swapped(sum.hi))); };
  const auto first = total(v[0]);
  const auto second = total(v[1]);
  const TagOf<std::remove_const_t<decltype(first)>> d;
  return folded<4>(as<float>(hn::InterleaveLower(d, first, second)) + as<float>(hn::InterleaveUpper(d, first, second)));
}

// The vector of samples from a place on.
template <class C> struct InOneLine {
  const C* x;
  const C* from(ptrdiff_t place) const { return x + place; }
  auto at(const C* p) const { return load(kTag<C>, parts(p)); }
};
#if QVXS_AVX512
template <class C> struct InTwoLines {
  Samples<C> of;
  ptrdiff_t from(ptrdiff_t place) const { return place; }
  auto at(ptrdiff_t place) const {
    constexpr ptrdiff_t N = kVectorElements<C>;
    if (place >= 0) return load(kTag<C>, parts(of.x + place));
    const ptrdiff_t whole = place & -N;
    const auto a = load(kTag<C>, parts(of.before + whole));
    const auto b = load(kTag<C>, parts(whole == -N ? of.x : of.before + whole + N));
    return lanesOfTwo(a, b, laneNumbers<VectorOf<C>>(static_cast<size_t>(place - whole) * PartsOf<C>::kCount));
  }
};
#else
template <class C> struct InTwoLines {
  Samples<C> of;
  const C* from(ptrdiff_t place) const { return (place < 0 ? of.before : of.x) + place; }
  auto at(const C* p) const { return load(kTag<C>, parts(p)); }
};
#endif

// Outputs at a time. Those of many taps need as many sums as leave no addition waiting for the one before: 8 outputs of 2048
// doubles take 0.42 of the time that they take two by two, 8 of 256 floats 0.9 of four by four.
inline constexpr size_t kFew = 4;
inline constexpr size_t kMany = 8;
inline constexpr size_t kWorthMany = 16;  // vectors of taps

// Outputs a vector apart meet the same vectors of samples, of which each is loaded once for all of them: 128 outputs of 64
// doubles take 190 ns in AVX-512, not 316, of 64 floats 157, not 231, in AVX2. SSSE3 gains nothing.
template <class C> inline constexpr bool kShares = kVectorBytes > 16 && !std::is_integral_v<C>;
inline constexpr size_t kMostShared = 8;  // vectors of taps

// As many outputs as there are sets of kMany; returns their number. Apart from run, whose short calls it would slow down by a
// tenth.
template <size_t kVectors, class C, class Sum, size_t kFolded, class Put>
[[gnu::noinline, gnu::flatten]] size_t runShared(const C* x, const C* p, size_t taps, size_t count, Put put) {
  constexpr size_t N = kVectorElements<C>;
  const auto beforeTaps = hn::FirstN(kTag<C>, (kVectors * N - taps) * PartsOf<C>::kCount);
  size_t n = 0;
  for (; n + kMany <= count; n += kMany) {
    Sum sum[kMany / kFolded][kFolded];
    unrolled<kMany + kVectors - 1>([&](auto j) {
      const auto v = load(kTag<C>, parts(x + (n + j) * N));
      unrolled<kMany>([&](auto i) {
        Sum& s = sum[i / kFolded][i % kFolded];
        if constexpr (i == j) s = onto(none<Sum>(), tapsAt(p, 0), hn::IfThenZeroElse(beforeTaps, v));
        else if constexpr (i < j && j < i + kVectors) s = onto(s, tapsAt(p, (j - i) * N), v);
      });
    });
    unrolled<kMany / kFolded>([&](auto i) { put(sumsOfLanes(sum[i]), n + i * kFolded); });
  }
  return n;
}
template <class C, class Sum, size_t kFolded, size_t kVectors = 1, class Put>
size_t shared(size_t vectors, const C* x, const C* p, size_t taps, size_t count, Put put) {
  if (vectors == kVectors) return runShared<kVectors, C, Sum, kFolded>(x, p, taps, count, put);
  if constexpr (kVectors < kMostShared) return shared<C, Sum, kFolded, kVectors + 1>(vectors, x, p, taps, count, put);
  return 0;
}

// put(sums, at) takes kFolded outputs, whose sums fill 16 bytes, put(sums, at, n) the first n of them.
template <class C, class Sum, size_t kFolded, class Put>
[[gnu::flatten]] void run(Samples<C> x, ptrdiff_t first, size_t apart, const C* p, size_t taps, size_t count, Put put) {
  constexpr size_t N = kVectorElements<C>;
  const size_t length = dotsLen<C>(taps);
  const auto beforeTaps = hn::FirstN(kTag<C>, (length - taps) * PartsOf<C>::kCount);
  const auto step = static_cast<ptrdiff_t>(apart);
  size_t n = 0;
  // The next outputs, of which the first `some` are there.
  const auto together = [&]<size_t kOutputs>(std::integral_constant<size_t, kOutputs>, const auto& samples, auto... some)
      __attribute__((always_inline)) {
    decltype(samples.from(0)) at[kOutputs];
    Sum sum[kOutputs / kFolded][kFolded];
    // What lies before the taps may be infinite.
    const auto tap = tapsAt(p, 0);
    unrolled<kOutputs>([&](auto i) {
      at[i] = samples.from(first + static_cast<ptrdiff_t>(std::min({size_t{i}, some - 1 ...})) * step);
      const auto v = hn::IfThenZeroElse(beforeTaps, samples.at(at[i]));
      sum[i / kFolded][i % kFolded] = onto(none<Sum>(), tap, v);
    });
    for (size_t k = N; k < length; k += N) {
      const auto tap = tapsAt(p, k);
      unrolled<kOutputs>([&](auto i) {
        Sum& s = sum[i / kFolded][i % kFolded];
        s = onto(s, tap, samples.at(at[i] + static_cast<ptrdiff_t>(k)));
      });
    }
    unrolled<kOutputs / kFolded>([&](auto i) { put(sumsOfLanes(sum[i]), n + i * kFolded, some...); });
    n += kOutputs;
    first += static_cast<ptrdiff_t>(kOutputs) * step;
  };
  constexpr std::integral_constant<size_t, kFolded> kFold;
  // Apart from the other loops: among them it made 32 outputs of 16 doubles in SSSE3 take 82 ns, not 62.
  if (x.before != x.x) [[unlikely]] {
    const InTwoLines<C> both{x};
    while (n + kFolded <= count && first < 0) together(kFold, both);
    if (n < count && n + kFolded > count) return together(kFold, both, count - n);
  }
  if constexpr (kShares<C>) {
    if (apart == N && length <= kMostShared * N && n + kMany <= count) {
      const size_t done =
          shared<C, Sum, kFolded>(length / N, x.x + first, p, taps, count - n, [=](auto sums, size_t at) { put(sums, n + at); });
      n += done;
      first += static_cast<ptrdiff_t>(done) * step;
    }
  }
  const InOneLine<C> one{x.x};
  if constexpr (PartsOf<C>::kCount == 1) {
    if (length >= kWorthMany * N) {
      while (n + kMany <= count) together(std::integral_constant<size_t, kMany>(), one);
    }
  }
  while (n + kFew <= count) together(std::integral_constant<size_t, kFew>(), one);
  if constexpr (kFolded < kFew) {
    while (n + kFolded <= count) together(kFold, one);
  }
  if (n < count) together(kFold, one, count - n);
}

template <class V> void put(V v, LaneOf<V>* to) { store(v, TagOf<V>(), to); }
template <class V> void put(V v, LaneOf<V>* to, size_t n) { storeFirst(v, TagOf<V>(), to, n); }

template <class C> void floats(Samples<C> x, ptrdiff_t first, size_t apart, const C* p, size_t taps, size_t count, C* y) {
  constexpr size_t kParts = PartsOf<C>::kCount;
  using V = VectorOf<C>;
  using Sum = std::conditional_t<kParts == 1, V, Pair<V>>;
  run<C, Sum, 16 / sizeof(C)>(x, first, apart, p, taps, count,
                              [y](auto sums, size_t at, auto... n) { put(sums, parts(y + at), n * kParts...); });
}

}  // namespace

void convolveApart(Samples<Qvx32f> x, ptrdiff_t first, size_t apart, const Qvx32f* p, size_t taps, size_t count, Qvx32f* y) {
  floats(x, first, apart, p, taps, count, y);
}
void convolveApart(Samples<Qvx64f> x, ptrdiff_t first, size_t apart, const Qvx64f* p, size_t taps, size_t count, Qvx64f* y) {
  floats(x, first, apart, p, taps, count, y);
}
void convolveApart(Samples<Qvx32fc> x, ptrdiff_t first, size_t apart, const Qvx32fc* p, size_t taps, size_t count, Qvx32fc* y) {
  floats(x, first, apart, p, taps, count, y);
}
void convolveApart(Samples<Qvx16s> x, ptrdiff_t first, size_t apart, const Qvx16s* p, size_t taps, size_t count, Qvx16s* y,
                   int64_t places) {
  using Sum = Vec<Lanes<int32_t, kVectorBytes / sizeof(int32_t)>>;
  run<Qvx16s, Sum, 4>(x, first, apart, p, taps, count, [y, shift = SumShift::of(places)](auto sums, size_t at, auto... n) {
    put(hn::DemoteTo(Lanes<int16_t, 4>(), shift(sums)), y + at, n...);
  });
}

}  // namespace qvx::convolution
