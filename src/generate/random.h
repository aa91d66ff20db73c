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

// One step of the part with the borrow. 2.5 cycles each, for the chain over two of them is a difference, the borrow, its sign,
// the 18 and their difference.
inline uint32_t difference(uint32_t lag2, uint32_t lag3, uint32_t& borrow) {
  const uint32_t t = lag2 - lag3 + borrow;
  borrow = static_cast<uint32_t>(static_cast<int32_t>(t) >> 31);
  return t - (borrow & 18);
}

// The next n numbers, as whole vectors: r has room for a register more.
inline void advance(Generator& state, size_t n, int32_t* r) {
  uint32_t a = state.lag1;
  uint32_t b = state.lag2;
  uint32_t c = state.lag3;
  uint32_t borrow = state.borrow;
  size_t i = 0;
  for (; i + 3 <= n; i += 3) {
    c = difference(b, c, borrow);
    b = difference(a, b, borrow);
    a = difference(c, a, borrow);
    r[i] = static_cast<int32_t>(c);
    r[i + 1] = static_cast<int32_t>(b);
    r[i + 2] = static_cast<int32_t>(a);
  }
  for (; i < n; ++i) {
    const uint32_t t = difference(b, c, borrow);
    c = b;
    b = a;
    a = t;
    r[i] = static_cast<int32_t>(t);
  }
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
  state = {cong, a, b, c, borrow};
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
