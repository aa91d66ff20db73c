// The source of all noise: a subtract-with-borrow generator plus a congruential one.
#pragma once

#include "frame/map.h"
#include "frame/unroll.h"

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

// Numbers made together: as many as hide the latencies of wide vectors, and half of that where a vector has four.
inline constexpr size_t kBlock = kVectorBytes > 16 ? 32 : 16;

namespace detail {

// The congruential part 1, 2, ... steps on is factor * cong + term.
struct StepsOn {
  uint32_t factor[kBlock];
  uint32_t term[kBlock];
  constexpr StepsOn() : factor(), term() {
    uint32_t f = 1;
    uint32_t t = 0;
    for (size_t i = 0; i < kBlock; ++i) {
      f *= kMultiplier;
      t = t * kMultiplier + kIncrement;
      factor[i] = f;
      term[i] = t;
    }
  }
};
alignas(64) inline constexpr StepsOn kStepsOn;

// The part with the borrow is x[n] = x[n-2] - x[n-3], less 1 if there was a borrow at n-1, less 18 if there is one at n, which is
// so where all but the 18 is negative. Without the borrows it is linear: each number of a block is a sum of multiples of the lags
// before the block. What the borrows of the block add is small beside 2^32, so the signs of these sums are the borrows
// themselves, unless a sum is as close to 0 or 2^31 as what may have to be added.
struct LinearPart {
  uint32_t ofLag[3][kBlock];
  // The sums of the numbers that four borrows, the bits of a row's index, add from the first of them on, after zeros.
  int32_t ofBorrows[16][2 * kBlock];
  uint32_t bound[kBlock];  // of what is added before the sign is taken

  constexpr LinearPart() : ofLag(), ofBorrows(), bound() {
    for (size_t lag = 0; lag < 3; ++lag) {
      uint32_t x[kBlock + 3] = {};
      x[2 - lag] = 1;
      for (size_t i = 0; i < kBlock; ++i) ofLag[lag][i] = x[i + 3] = x[i + 1] - x[i];
    }
    int32_t added[kBlock + 3] = {};  // by one borrow
    for (size_t i = 0; i < kBlock; ++i) {
      added[i + 3] = i == 0 ? -18 : added[i + 1] - added[i] - (i == 1);
      for (size_t k = 1; k <= i; ++k) bound[i] += static_cast<uint32_t>(added[k + 3] < 0 ? -added[k + 3] : added[k + 3]);
    }
    for (size_t row = 0; row < 16; ++row) {
      for (size_t bit = 0; bit < 4; ++bit) {
        for (size_t i = bit; i < kBlock && (row >> bit & 1) != 0; ++i) ofBorrows[row][kBlock + i] += added[i - bit + 3];
      }
    }
  }
};
alignas(64) inline constexpr LinearPart kLinear;

inline uint32_t signOf(uint32_t t) { return static_cast<uint32_t>(static_cast<int32_t>(t) >> 31); }

// A block by the rule, one number after the other; returns its borrows, a bit each.
[[gnu::noinline, gnu::cold]] inline uint32_t followRule(uint32_t lag1, uint32_t lag2, uint32_t lag3, uint32_t borrow,
                                                        uint32_t* r) {
  uint32_t borrows = 0;
  for (size_t i = 0; i < kBlock; ++i) {
    const uint32_t t = lag2 - lag3 + borrow;
    borrow = signOf(t);
    borrows |= (borrow & 1) << i;
    lag3 = lag2;
    lag2 = lag1;
    r[i] = lag1 = t - (borrow & 18);
  }
  return borrows;
}

template <size_t kLane, class V> V everyLaneOf(V v) {
  const TagOf<V> d;
  return hn::TableLookupLanes(v, hn::IndicesFromVec(d, hn::Set(d, kLane)));
}

}  // namespace detail

// The next n numbers, a block at a time: take(at, r) gets kBlock of them, from `at` on, takeLast(at, count, r) as many as are
// left, and returns how many it took, which is where the state stands then. By the rule each waits 3.2 cycles for the one before;
// in blocks of AVX-512 vectors it takes 1.9 with all that becomes of it. A block is made before the one before it is taken, which
// the processor then does beside: else it takes 1.2 times as long.
template <class Take, class TakeLast>
[[gnu::always_inline]] inline void advance(Generator& state, size_t n, Take take, TakeLast takeLast) {
  using namespace detail;
  constexpr size_t N = kVectorBytes / sizeof(uint32_t);
  constexpr size_t kVectors = kBlock / N;
  const Lanes<uint32_t, N> d;
  const Lanes<int32_t, N> numbers;
  using V = Vec<decltype(d)>;
  const auto areNegative = [=](V v) { return static_cast<uint32_t>(maskBits(numbers, as<int32_t>(v) < hn::Zero(numbers))); };
  alignas(64) uint32_t r[kBlock];  // of the part with the borrow
  alignas(64) int32_t made[2][kBlock];
  V lag1 = hn::Set(d, state.lag1);
  V lag2 = hn::Set(d, state.lag2);
  V lag3 = hn::Set(d, state.lag3);
  uint32_t borrow = state.borrow;
  uint32_t cong = state.cong;
  for (size_t at = 0;; at += kBlock) {
    const V third = lag3 - hn::Set(d, borrow);  // as if it had been greater: nothing else is made of it
    V sums[kVectors];
    V close = hn::Zero(d);
    uint32_t borrows = 0;
    unrolled<kVectors>([&](auto v) {
      constexpr size_t from = v * N;
      const auto times = [&](V lag, size_t number) { return lag * load(d, kLinear.ofLag[number] + from); };
      sums[v] = times(lag1, 0) + (times(lag2, 1) + times(third, 2));
      const V bound = load(d, kLinear.bound + from);
      close = close | ((sums[v] - bound) ^ (sums[v] + bound));
      borrows |= areNegative(sums[v]) << from;
    });
    if (areNegative(close) == 0) [[likely]] {
      unrolled<kBlock / 4>([&](auto four) {
        const int32_t* const row = kLinear.ofBorrows[borrows >> (4 * four) & 15] + kBlock - 4 * four;
        unrolled<kVectors>([&](auto v) {
          constexpr size_t from = v * N;
          if constexpr (from + N > 4 * four) sums[v] = sums[v] + as<uint32_t>(load(numbers, row + from));
        });
      });
    } else {
      borrows = followRule(hn::GetLane(lag1), hn::GetLane(lag2), hn::GetLane(lag3), borrow, r);
      unrolled<kVectors>([&](auto v) { sums[v] = load(d, r + v * N); });
    }
    int32_t* const here = made[at / kBlock % 2];
    unrolled<kVectors>([&](auto v) {
      constexpr size_t from = v * N;
      const V congs = hn::Set(d, cong) * load(d, kStepsOn.factor + from) + load(d, kStepsOn.term + from);
      store(as<int32_t>(sums[v] + congs), numbers, here + from);
    });
    if (n - at <= kBlock) {
      const hn::Half<decltype(d)> half;
      unrolled<kVectors>([&](auto v) {  // by halves: of a whole AVX-512 vector, a number in the upper one is loaded 5 ns later
        store(hn::LowerHalf(half, sums[v]), half, r + v * N);
        store(upperHalf(sums[v]), half, r + v * N + N / 2);
      });
      const uint32_t before[] = {hn::GetLane(lag1), hn::GetLane(lag2)};
      if (at > 0) take(at - kBlock, made[(at / kBlock - 1) % 2]);
      const size_t taken = takeLast(at, n - at, here);
      const auto back = [&](size_t steps) { return steps <= taken ? r[taken - steps] : before[steps - taken - 1]; };
      cong = cong * kStepsOn.factor[taken - 1] + kStepsOn.term[taken - 1];
      state = {cong, back(1), back(2), back(3), signOf(borrows << (32 - taken))};
      return;
    }
    cong = cong * kStepsOn.factor[kBlock - 1] + kStepsOn.term[kBlock - 1];
    borrow = signOf(borrows << (32 - kBlock));
    lag1 = everyLaneOf<N - 1>(sums[kVectors - 1]);
    lag2 = everyLaneOf<N - 2>(sums[kVectors - 1]);
    lag3 = everyLaneOf<N - 3>(sums[kVectors - 1]);
    if (at > 0) take(at - kBlock, made[(at / kBlock - 1) % 2]);
  }
}

// The next n numbers one after the other, by the rule: take(at, four) gets four at a time, takeLast(at, count, four) what is
// left. 2.6 cycles a number with all that becomes of it; 3.2 if the congruential part too were made of single numbers.
template <class Take, class TakeLast>
[[gnu::always_inline]] inline void advanceByRule(Generator& state, size_t n, Take take, TakeLast takeLast) {
  using namespace detail;
  const Lanes<uint32_t, 4> d;
  const Lanes<uint64_t, 2> d64;
  Generator now = state;
  const auto next = [&]() __attribute__((always_inline)) {
    uint32_t difference = now.lag2 - now.lag3;
    __asm__("" : "+r"(difference));  // else the borrow, which all waits for, is added before the subtraction
    const uint32_t t = difference + now.borrow;
    now.borrow = signOf(t);
    now.lag3 = now.lag2;
    now.lag2 = now.lag1;
    now.lag1 = t - (now.borrow & 18);
    return uint64_t{now.lag1};
  };
  const auto congs = [&](size_t i) __attribute__((always_inline)) {
    return hn::Set(d, now.cong) * load(d, kStepsOn.factor + i) + load(d, kStepsOn.term + i);
  };
  const auto together = [&](uint64_t lower, uint64_t upper, size_t i) __attribute__((always_inline)) {
    const auto both = hn::InterleaveLower(d64, hn::Set(d64, lower), hn::Set(d64, upper));
    return as<int32_t>(as<uint32_t>(both) + congs(i));
  };
  for (size_t from = 0; from < n; from += kBlock) {
    const size_t count = std::min(n - from, kBlock);
    size_t i = 0;
    for (; i + 4 <= count; i += 4) {
      const uint64_t first = next();
      const uint64_t lower = next() << 32 | first;
      const uint64_t third = next();
      take(from + i, together(lower, next() << 32 | third, i));
    }
    if (i < count) {
      uint64_t parts[2] = {};
      for (size_t k = 0; i + k < count; ++k) parts[k / 2] |= next() << (32 * (k % 2));
      takeLast(from + i, count - i, together(parts[0], parts[1], i));
    }
    now.cong = now.cong * kStepsOn.factor[count - 1] + kStepsOn.term[count - 1];
  }
  state = now;
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
