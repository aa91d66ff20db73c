#include "convolution/dots.h"

#include "convolution/sum_shift.h"
#include "frame/reduce.h"
#include "frame/unroll.h"

namespace qvx::convolution {

namespace {

template <class V> V onto(V sum, V tap, V x) { return hn::MulAdd(tap, x, sum); }
template <class Sum, class V> Sum onto(Sum sum, V tap, V x) { return sum + pairProducts(tap, x); }

// The sums of the lanes of as many vectors as fill 16 bytes.
template <class V> auto sumsOfLanes(const V (&v)[2]) {
  const TagOf<V> d;
  return folded<2>(hn::InterleaveLower(d, v[0], v[1]) + hn::InterleaveUpper(d, v[0], v[1]));
}
template <class V> auto sumsOfLanes(const V (&v)[4]) {
  const TagOf<V> d;
  using Lane = LaneOf<V>;
  const auto pairs = [=](V a, V b) { return as<double>(hn::InterleaveLower(d, a, b) + hn::InterleaveUpper(d, a, b)); };
  const auto low = pairs(v[0], v[1]);
  const auto high = pairs(v[2], v[3]);
  const TagOf<std::remove_const_t<decltype(low)>> wide;
  return folded<4>(as<Lane>(hn::InterleaveLower(wide, low, high)) + as<Lane>(hn::InterleaveUpper(wide, low, high)));
}

// put(sums, at) takes kTogether outputs, put(sums, at, n) the first n of them.
template <class C, class Sum, class Put>
[[gnu::flatten]] void run(const C* x, size_t apart, const C* p, size_t taps, size_t count, Put put) {
  constexpr size_t N = kVectorElements<C>;
  constexpr size_t kTogether = 16 / sizeof(LaneOf<Sum>);
  constexpr Lanes<C, N> d;
  const size_t last = dotsLen<C>(taps) - N;
  const auto inLast = hn::FirstN(d, taps - last);
  const auto together = [&](const C* const(&from)[kTogether]) {
    Sum sum[kTogether];
    unrolled<kTogether>([&](auto i) { sum[i] = hn::Zero(TagOf<Sum>()); });
    for (size_t k = 0; k < last; k += N) {
      const auto tap = load(d, p + k);
      unrolled<kTogether>([&](auto i) { sum[i] = onto(sum[i], tap, load(d, from[i] + k)); });
    }
    // What lies past the taps may be infinite.
    const auto tap = load(d, p + last);
    unrolled<kTogether>([&](auto i) { sum[i] = onto(sum[i], tap, hn::IfThenElseZero(inLast, load(d, from[i] + last))); });
    return sumsOfLanes(sum);
  };
  const C* from[kTogether];
  size_t n = 0;
  for (; n + kTogether <= count; n += kTogether) {
    unrolled<kTogether>([&](auto i) { from[i] = x + (n + i) * apart; });
    put(together(from), n);
  }
  if (n == count) return;
  unrolled<kTogether>([&](auto i) { from[i] = x + std::min(n + i, count - 1) * apart; });
  put(together(from), n, count - n);
}

template <class V> void put(V v, LaneOf<V>* to) { store(v, TagOf<V>(), to); }
template <class V> void put(V v, LaneOf<V>* to, size_t n) { storeFirst(v, TagOf<V>(), to, n); }

template <class C> void floats(const C* x, size_t apart, const C* p, size_t taps, size_t count, C* y) {
  using V = Vec<Lanes<C, kVectorElements<C>>>;
  run<C, V>(x, apart, p, taps, count, [y](auto sums, size_t at, auto... n) { put(sums, y + at, n...); });
}

}  // namespace

void convolveApart(const Qvx32f* x, size_t apart, const Qvx32f* p, size_t taps, size_t count, Qvx32f* y) {
  floats(x, apart, p, taps, count, y);
}
void convolveApart(const Qvx64f* x, size_t apart, const Qvx64f* p, size_t taps, size_t count, Qvx64f* y) {
  floats(x, apart, p, taps, count, y);
}
void convolveApart(const Qvx16s* x, size_t apart, const Qvx16s* p, size_t taps, size_t count, Qvx16s* y, int64_t places) {
  using Sum = Vec<Lanes<int32_t, kVectorBytes / sizeof(int32_t)>>;
  run<Qvx16s, Sum>(x, apart, p, taps, count, [y, shift = SumShift::of(places)](auto sums, size_t at, auto... n) {
    put(hn::DemoteTo(Lanes<int16_t, 4>(), shift(sums)), y + at, n...);
  });
}

}  // namespace qvx::convolution
