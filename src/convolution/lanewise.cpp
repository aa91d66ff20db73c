#include "convolution/lanewise.h"

#include "convolution/sum_shift.h"

namespace qvx::convolution {

namespace {

// What the lanes add up. Floats: an element is picked at a time.
template <class C> struct Sums {
  using Source = C;
  using Picked = std::conditional_t<sizeof(C) == 4, float, double>;
  using T = Part<C>;
  using V = Vec<Lanes<T, kVectorBytes / sizeof(T)>>;
  static constexpr size_t kChannels = PartsOf<C>::kCount;
  static constexpr int kStep = 1;

  V of[kChannels];

  static V taps(const T* p, size_t channel) { return load(TagOf<V>(), p + channel * kLanesOf<V>); }
  void add(V v, const V (&tap)[kChannels]) {
#pragma GCC unroll 2
    for (size_t c = 0; c < kChannels; ++c) of[c] = hn::MulAdd(tap[c], v, of[c]);
  }
  V total(SumShift) const {
    if constexpr (kChannels == 1) {
      return of[0];
    } else {
      const V crossed = swapped(of[1]);
      return hn::OddEven(of[0] + crossed, of[0] - crossed);
    }
  }
};
// Integers: a sample and the one after it.
template <> struct Sums<Qvx16s> {
  using Source = Qvx16sc;
  using Picked = int32_t;
  using T = Qvx16s;
  using V = Vec<Lanes<int16_t, kVectorBytes / sizeof(int16_t)>>;
  static constexpr size_t kChannels = 1;
  static constexpr int kStep = 2;

  Vec<Lanes<int32_t, kVectorBytes / sizeof(int32_t)>> of[kChannels];

  static V taps(const Qvx16sc* p, size_t) { return load(TagOf<V>(), parts(p)); }
  void add(V v, const V (&tap)[kChannels]) { of[0] = of[0] + pairProducts(v, tap[0]); }
  auto total(SumShift shift) const { return hn::DemoteTo(Lanes<int16_t, kVectorBytes / sizeof(int32_t)>(), shift(of[0])); }
};

// The same outputs of kPeriods periods, which share their taps: four of them leave no addition waiting for the one before.
template <size_t kPeriods, class C>
[[gnu::always_inline]] inline void group(const Lanewise<C>& filter, int number, const typename Sums<C>::Source* x, C* y,
                                         SumShift shift) {
  using S = Sums<C>;
  using V = typename S::V;
  using T = typename S::T;
  using Picked = typename S::Picked;
  constexpr TagOf<V> d;
  constexpr auto kParts = static_cast<int>(PartsOf<C>::kCount);
  const LaneGroup g = filter.groups[number];
  const Lanes<Picked, Lanewise<C>::kLanes> picked;
  const auto order = hn::SetTableIndices(picked, filter.order + number * Lanewise<C>::kLanes);
  const auto* tap = filter.taps + int64_t{number} * filter.stepCount * Lanewise<C>::kEach;
  S sums[kPeriods];
#pragma GCC unroll 4
  for (auto& sum : sums) {
    for (auto& part : sum.of) part = hn::Zero(TagOf<std::remove_reference_t<decltype(part)>>());
  }
  x += g.sample;
  for (int step = 0; step < filter.stepCount; ++step, x += S::kStep, tap += Lanewise<C>::kEach) {
    V h[S::kChannels];
#pragma GCC unroll 2
    for (size_t c = 0; c < S::kChannels; ++c) h[c] = held(S::taps(tap, c));
#pragma GCC unroll 4
    for (size_t p = 0; p < kPeriods; ++p) {
      const auto v = load(d, parts(x + static_cast<int64_t>(p) * filter.down));
      sums[p].add(as<T>(hn::TableLookupLanes(as<Picked>(v), order)), h);
    }
  }
  // What lies past its own is the next group's, unless there is none.
  const bool isWhole = g.output + Lanewise<C>::kLanes <= filter.up;
#pragma GCC unroll 4
  for (size_t p = 0; p < kPeriods; ++p) {
    T* const to = parts(y + static_cast<int64_t>(p) * filter.up + g.output);
    const auto total = sums[p].total(shift);
    if (isWhole) store(total, TagOf<decltype(total)>(), to);
    else storeFirst(total, TagOf<decltype(total)>(), to, static_cast<size_t>(g.count * kParts));
  }
}

template <class C>
void run(const Lanewise<C>& filter, const typename Sums<C>::Source* x, size_t periods, C* y, SumShift shift = {}) {
  const auto all = [&](auto count) {
    for (; periods >= count; periods -= count, x += count * filter.down, y += count * filter.up) {
      for (int number = 0; number < filter.groupCount; ++number) group<count>(filter, number, x, y, shift);
    }
  };
  all(std::integral_constant<size_t, 4>());
  all(std::integral_constant<size_t, 2>());
  all(std::integral_constant<size_t, 1>());
}

}  // namespace

void convolve(const Lanewise<Qvx32f>& filter, const Qvx32f* x, size_t periods, Qvx32f* y) { run(filter, x, periods, y); }
void convolve(const Lanewise<Qvx64f>& filter, const Qvx64f* x, size_t periods, Qvx64f* y) {
  if constexpr (Lanewise<Qvx64f>::kPays) run(filter, x, periods, y);
}
void convolve(const Lanewise<Qvx32fc>& filter, const Qvx32fc* x, size_t periods, Qvx32fc* y) {
  if constexpr (Lanewise<Qvx32fc>::kPays) run(filter, x, periods, y);
}

void convolve(const Lanewise<Qvx16s>& filter, const Qvx16s* x, size_t periods, Qvx16s* y, int64_t places) {
  constexpr size_t N = kVectorElements<Qvx16s>;
  constexpr Lanes<Qvx16s, N> d;
  Qvx16sc pairs[kMostPaired + 2 * N];
  const int first = filter.groups[0].sample;
  const size_t count = static_cast<size_t>(filter.down) * periods - static_cast<size_t>(int64_t{first}) + N;
  for (size_t i = 0; i < count; i += N) {
    const auto both = interleaved(Pair<Vec<Lanes<Qvx16s, N>>>{load(d, x + first + static_cast<int64_t>(i)),
                                                              load(d, x + first + static_cast<int64_t>(i) + 1)});
    store(both.lo, d, parts(pairs + i));
    store(both.hi, d, parts(pairs + i + N / 2));
  }
  run(filter, pairs - first, periods, y, SumShift::of(places));
}

}  // namespace qvx::convolution
