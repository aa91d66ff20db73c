// The source of all noise: a subtract-with-borrow generator plus a congruential one.
#pragma once

#include "frame/map.h"

namespace qvx::generate {

inline constexpr uint32_t kMultiplier = 69069;
inline constexpr uint32_t kIncrement = 1013904243;

struct Generator {
  uint32_t cong;
  uint32_t lag1;
  uint32_t lag2;
  uint32_t lag3;
  uint32_t borrow;  // 0 or -1

  static Generator of(uint32_t seed) {
    const uint32_t lag2 = seed * kMultiplier + kIncrement;
    return {1131199209, seed, lag2, lag2 * kMultiplier + kIncrement, ~uint32_t{0}};
  }
};

namespace detail {

// The congruential part 1, 2, ... steps on is factor * cong + term: as many of each as a register has lanes.
struct StepsOn {
  static constexpr size_t kMost = 16;
  uint32_t factor[kMost];
  uint32_t term[kMost];
  constexpr StepsOn() : factor(), term() {
    uint32_t f = 1;
    uint32_t t = 0;
    for (size_t i = 0; i < kMost; ++i) {
      f *= kMultiplier;
      t = t * kMultiplier + kIncrement;
      factor[i] = f;
      term[i] = t;
    }
  }
};
alignas(64) inline constexpr StepsOn kStepsOn;

}  // namespace detail

// Numbers of the part with the borrow, one after the other: three at a time, so that they keep their registers. `step` takes lags
// 2 and 3 and the borrow.
template <class Step> [[gnu::always_inline]] inline void chain(Generator& state, size_t n, int32_t* r, Step step) {
  uint32_t a = state.lag1;
  uint32_t b = state.lag2;
  uint32_t c = state.lag3;
  uint32_t borrow = state.borrow;
  size_t i = 0;
  for (; i + 3 <= n; i += 3) {
    c = step(b, c, borrow);
    b = step(a, b, borrow);
    a = step(c, a, borrow);
    r[i] = static_cast<int32_t>(c);
    r[i + 1] = static_cast<int32_t>(b);
    r[i + 2] = static_cast<int32_t>(a);
  }
  for (; i < n; ++i) {
    const uint32_t t = step(b, c, borrow);
    c = b;
    b = a;
    a = t;
    r[i] = static_cast<int32_t>(t);
  }
  state = {state.cong, a, b, c, borrow};
}

inline uint32_t signOf(uint32_t t) { return static_cast<uint32_t>(static_cast<int32_t>(t) >> 31); }

// By the rule the borrow is the sign of the difference less the borrow before, for which each step waits: 3.2 cycles a number.
// The difference has that sign by itself unless it is 0 or -2^31, which 2^-31 of them are: 2.5 cycles, and a look at them
// afterwards.
inline void makeBorrowed(Generator& state, size_t n, int32_t* r) {
  Generator next = state;
  chain(next, n, r, [](uint32_t lag2, uint32_t lag3, uint32_t& borrow) {
    const uint32_t t = lag2 - lag3 + borrow;
    borrow = signOf(lag2 - lag3);
    return t - (borrow & 18);
  });
  constexpr size_t N = kVectorBytes / sizeof(int32_t);
  const Lanes<int32_t, N> d;
  const auto zero = hn::Zero(d);
  const auto areTold = [&](auto difference) { return hn::AllFalse(d, difference + difference == zero); };
  bool told = (state.lag2 - state.lag3) << 1 != 0 && (state.lag1 - state.lag2) << 1 != 0;
  if (n > 2) told &= (static_cast<uint32_t>(r[0]) - state.lag1) << 1 != 0;
  for (size_t i = 0; told && i + 3 < n; i += N) {
    const auto difference = load(d, r + i + 1) - load(d, r + i);
    told = areTold(n - 3 - i >= N ? difference : hn::IfThenElse(hn::FirstN(d, n - 3 - i), difference, hn::Set(d, 1)));
  }
  if (!told) [[unlikely]] {
    next = state;
    chain(next, n, r, [](uint32_t lag2, uint32_t lag3, uint32_t& borrow) {
      const uint32_t t = lag2 - lag3 + borrow;
      borrow = signOf(t);
      return t - (borrow & 18);
    });
  }
  state = next;
}

// The next n numbers, as whole vectors: r has room for a register more.
inline void advance(Generator& state, size_t n, int32_t* r) {
  makeBorrowed(state, n, r);
  constexpr size_t N = kVectorBytes / sizeof(uint32_t);
  const Lanes<uint32_t, N> d;
  const auto factor = load(d, detail::kStepsOn.factor);
  const auto term = load(d, detail::kStepsOn.term);
  uint32_t cong = state.cong;
  for (size_t at = 0; at < n; at += N) {
    const auto congs = hn::Set(d, cong) * factor + term;
    auto* const place = reinterpret_cast<uint32_t*>(r) + at;
    store(load(d, place) + congs, d, place);
    const size_t steps = std::min(N, n - at);
    cong = cong * detail::kStepsOn.factor[steps - 1] + detail::kStepsOn.term[steps - 1];
  }
  state.cong = cong;
}

// Reals to the elements of T, in the mode to nearest; limited to their range.
template <class T, class V> auto rounded(V v) {
  if constexpr (std::is_floating_point_v<T>) {
    return convertLanes<T>(v);
  } else {
    const V limited = hn::Min(hn::Max(v, same<V>(std::numeric_limits<T>::min())), same<V>(std::numeric_limits<T>::max()));
    return convertLanes<T>(toIntNearest(limited));
  }
}

}  // namespace qvx::generate
