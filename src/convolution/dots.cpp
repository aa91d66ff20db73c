#include "convolution/dots.h"

#include "convolution/sum_shift.h"
#include "frame/reduce.h"
#include "frame/unroll.h"

namespace qvx::convolution {

namespace {

template <class V> V onto(V sum, V tap, V x) { return hn::MulAdd(tap, x, sum); }
template <class Sum, class V> Sum onto(Sum sum, V tap, V x) { return sum + pairProducts(tap, x); }

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

// The vector of samples from a place on.
template <class C> struct InOneLine {
  const C* x;
  const C* from(ptrdiff_t place) const { return x + place; }
  auto at(const C* p) const { return load(Lanes<C, kVectorElements<C>>(), p); }
};
#if QVXS_AVX512
template <class C> struct InTwoLines {
  Samples<C> of;
  ptrdiff_t from(ptrdiff_t place) const { return place; }
  auto at(ptrdiff_t place) const {
    constexpr ptrdiff_t N = kVectorElements<C>;
    constexpr Lanes<C, kVectorElements<C>> d;
    if (place >= 0) return load(d, of.x + place);
    const ptrdiff_t whole = place & -N;
    const auto a = load(d, of.before + whole);
    const auto b = load(d, whole == -N ? of.x : of.before + whole + N);
    return lanesOfTwo(a, b, laneNumbers<decltype(a)>(static_cast<size_t>(place - whole)));
  }
};
#else
template <class C> struct InTwoLines {
  Samples<C> of;
  const C* from(ptrdiff_t place) const { return (place < 0 ? of.before : of.x) + place; }
  auto at(const C* p) const { return load(Lanes<C, kVectorElements<C>>(), p); }
};
#endif

// Outputs at a time. Those of many taps need as many sums as leave no addition waiting for the one before: 8 outputs of 2048
// doubles take 0.42 of the time that they take two by two, 8 of 256 floats 0.9 of four by four.
inline constexpr size_t kFew = 4;
inline constexpr size_t kMany = 8;
inline constexpr size_t kWorthMany = 16;  // vectors of taps

// put(sums, at) takes as many outputs as fill 16 bytes, put(sums, at, n) the first n of them.
template <class C, class Sum, class Put>
[[gnu::flatten]] void run(Samples<C> x, ptrdiff_t first, size_t apart, const C* p, size_t taps, size_t count, Put put) {
  constexpr size_t N = kVectorElements<C>;
  constexpr size_t kFolded = 16 / sizeof(LaneOf<Sum>);
  constexpr Lanes<C, N> d;
  const size_t length = dotsLen<C>(taps);
  const auto beforeTaps = hn::FirstN(d, length - taps);
  const auto step = static_cast<ptrdiff_t>(apart);
  size_t n = 0;
  // The next outputs, of which the first `some` are there.
  const auto together = [&]<size_t kOutputs>(std::integral_constant<size_t, kOutputs>, const auto& samples, auto... some)
      __attribute__((always_inline)) {
    decltype(samples.from(0)) at[kOutputs];
    Sum sum[kOutputs / kFolded][kFolded];
    // What lies before the taps may be infinite.
    const auto tap = load(d, p);
    unrolled<kOutputs>([&](auto i) {
      at[i] = samples.from(first + static_cast<ptrdiff_t>(std::min({size_t{i}, some - 1 ...})) * step);
      const auto v = hn::IfThenZeroElse(beforeTaps, samples.at(at[i]));
      sum[i / kFolded][i % kFolded] = onto(hn::Zero(TagOf<Sum>()), tap, v);
    });
    for (size_t k = N; k < length; k += N) {
      const auto tap = load(d, p + k);
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
  const InOneLine<C> one{x.x};
  if (length >= kWorthMany * N) {
    while (n + kMany <= count) together(std::integral_constant<size_t, kMany>(), one);
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
  using V = Vec<Lanes<C, kVectorElements<C>>>;
  run<C, V>(x, first, apart, p, taps, count, [y](auto sums, size_t at, auto... n) { put(sums, y + at, n...); });
}

}  // namespace

void convolveApart(Samples<Qvx32f> x, ptrdiff_t first, size_t apart, const Qvx32f* p, size_t taps, size_t count, Qvx32f* y) {
  floats(x, first, apart, p, taps, count, y);
}
void convolveApart(Samples<Qvx64f> x, ptrdiff_t first, size_t apart, const Qvx64f* p, size_t taps, size_t count, Qvx64f* y) {
  floats(x, first, apart, p, taps, count, y);
}
void convolveApart(Samples<Qvx16s> x, ptrdiff_t first, size_t apart, const Qvx16s* p, size_t taps, size_t count, Qvx16s* y,
                   int64_t places) {
  using Sum = Vec<Lanes<int32_t, kVectorBytes / sizeof(int32_t)>>;
  run<Qvx16s, Sum>(x, first, apart, p, taps, count, [y, shift = SumShift::of(places)](auto sums, size_t at, auto... n) {
    put(hn::DemoteTo(Lanes<int16_t, 4>(), shift(sums)), y + at, n...);
  });
}

}  // namespace qvx::convolution
