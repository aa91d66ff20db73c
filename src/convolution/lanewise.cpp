#include "convolution/lanewise.h"

namespace qvx::convolution {

namespace {

// The lanes as they are picked, an element each.
template <class C> using Picked = std::conditional_t<sizeof(C) == 4, float, double>;

template <class C> struct Sums {
  using T = Part<C>;
  using V = Vec<Lanes<T, kVectorBytes / sizeof(T)>>;
  static constexpr size_t kChannels = PartsOf<C>::kCount;

  V of[kChannels];

  void add(V v, const V (&tap)[kChannels]) {
#pragma GCC unroll 2
    for (size_t c = 0; c < kChannels; ++c) of[c] = hn::MulAdd(tap[c], v, of[c]);
  }
  V total() const {
    if constexpr (kChannels == 1) {
      return of[0];
    } else {
      const V crossed = swapped(of[1]);
      return hn::OddEven(of[0] + crossed, of[0] - crossed);
    }
  }
};

// The same outputs of kPeriods periods, which share their taps: four of them leave no addition waiting for the one before.
template <size_t kPeriods, class C>
[[gnu::always_inline]] inline void group(const Lanewise<C>& filter, int number, const C* x, C* y) {
  using T = Part<C>;
  using V = typename Sums<C>::V;
  constexpr Lanes<T, kVectorBytes / sizeof(T)> d;
  constexpr Lanes<Picked<C>, kVectorElements<C>> picked;
  constexpr auto kParts = static_cast<int>(PartsOf<C>::kCount);
  const LaneGroup g = filter.groups[number];
  const auto order = hn::SetTableIndices(picked, filter.order + number * Lanewise<C>::kLanes);
  const T* tap = filter.taps + int64_t{number} * filter.tapCount * Lanewise<C>::kEach;
  Sums<C> sums[kPeriods];
#pragma GCC unroll 4
  for (auto& sum : sums) {
    for (auto& part : sum.of) part = hn::Zero(d);
  }
  x += g.sample;
  for (int t = 0; t < filter.tapCount; ++t, ++x, tap += Lanewise<C>::kEach) {
    V h[kParts];
#pragma GCC unroll 2
    for (int c = 0; c < kParts; ++c) h[c] = held(load(d, tap + c * Lanewise<C>::kLanes * kParts));
#pragma GCC unroll 4
    for (size_t p = 0; p < kPeriods; ++p) {
      const auto v = load(d, parts(x + static_cast<int64_t>(p) * filter.down));
      sums[p].add(as<T>(hn::TableLookupLanes(as<Picked<C>>(v), order)), h);
    }
  }
  // What lies past its own is the next group's, unless there is none.
  const bool isWhole = g.output + Lanewise<C>::kLanes <= filter.up;
#pragma GCC unroll 4
  for (size_t p = 0; p < kPeriods; ++p) {
    T* const to = parts(y + static_cast<int64_t>(p) * filter.up + g.output);
    if (isWhole) store(sums[p].total(), d, to);
    else storeFirst(sums[p].total(), d, to, static_cast<size_t>(g.count * kParts));
  }
}

template <class C> void run(const Lanewise<C>& filter, const C* x, size_t periods, C* y) {
  const auto all = [&](auto count) {
    for (; periods >= count; periods -= count, x += count * filter.down, y += count * filter.up) {
      for (int number = 0; number < filter.groupCount; ++number) group<count>(filter, number, x, y);
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

}  // namespace qvx::convolution
