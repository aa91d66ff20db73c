// Which passes a transform of any factors takes, and its twiddles.
#pragma once

#include <array>
#include <bit>
#include <span>

#include "transform/large_prime_passes.h"
#include "transform/mixed_interleaved.h"
#include "transform/plan.h"

namespace qvx::transform {

// Radices of first passes and of tiles, and of later passes: from 20 on half of their vectors wait on the stack, which costs less
// than two passes over more than the first-level cache holds. Larger primes go through memory.
inline constexpr uint8_t kRadices[] = {2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16};
inline constexpr uint8_t kLaterRadices[] = {2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16, 20, 21, 24, 25, 27};
inline constexpr size_t kWidestMixed = 16;
constexpr bool isLargePrime(size_t radix) { return radix > kWidestMixed && radix % 2 != 0 && radix % 3 != 0 && radix % 5 != 0; }

template <class Step> QVX_INLINE void withMixedRadix(size_t radix, Step step) {
  const auto with = [&](auto R) __attribute__((always_inline)) { step(R); };
  switch (radix) {
    case 2:
      return with(std::integral_constant<size_t, 2>());
    case 3:
      return with(std::integral_constant<size_t, 3>());
    case 4:
      return with(std::integral_constant<size_t, 4>());
    case 5:
      return with(std::integral_constant<size_t, 5>());
    case 6:
      return with(std::integral_constant<size_t, 6>());
    case 7:
      return with(std::integral_constant<size_t, 7>());
    case 8:
      return with(std::integral_constant<size_t, 8>());
    case 9:
      return with(std::integral_constant<size_t, 9>());
    case 10:
      return with(std::integral_constant<size_t, 10>());
    case 11:
      return with(std::integral_constant<size_t, 11>());
    case 12:
      return with(std::integral_constant<size_t, 12>());
    case 13:
      return with(std::integral_constant<size_t, 13>());
    case 14:
      return with(std::integral_constant<size_t, 14>());
    case 15:
      return with(std::integral_constant<size_t, 15>());
    default:
      return with(std::integral_constant<size_t, 16>());
  }
}

template <class Step> QVX_INLINE void withLaterRadix(size_t radix, Step step) {
  switch (radix) {
    case 20:
      return step(std::integral_constant<size_t, 20>());
    case 21:
      return step(std::integral_constant<size_t, 21>());
    case 24:
      return step(std::integral_constant<size_t, 24>());
    case 25:
      return step(std::integral_constant<size_t, 25>());
    case 27:
      return step(std::integral_constant<size_t, 27>());
    default:
      return withMixedRadix(radix, step);
  }
}

template <class T> struct MixedPlan {
  static constexpr size_t kMostPasses = 17;  // 3^17 < 2^27
  uint32_t n;
  uint8_t count;
  uint8_t radix[kMostPasses];
  const T* tables;  // a pass's after another's: the matrix of a large radix, then twiddles
};

// Points of a vector whose parts stand side by side are transformed as such where 16 registers are all.
template <class T> using PointsInMemory = std::conditional_t<kHasMasks, Conjugable<T>, ConjugableNumbers<T>>;
template <class Points> inline constexpr bool kAreNumbers = Points::kLanesOfPoint == 2;
// In the widest vector, and in one of a large prime's pass.
template <class Points> inline constexpr size_t kPointsIn = kWidest<typename Points::Lane> / Points::kLanesOfPoint;
template <class Points> inline constexpr size_t kManyPoints = kManyLanes<typename Points::Lane> / Points::kLanesOfPoint;

// What a pass takes of time, in operations of a vector, on processors with 32 registers of 64 bytes: between those that spill at
// the price of the count and those where radices from 20 on take a third more (5000 complex doubles take 0.9 by 8, 5, 25 and 5 of
// what they take by 8, 25 and 25).
constexpr uint32_t costOfRadix(size_t radix) {
  constexpr uint16_t kCosts[] = {0,   0,   12,  24, 32, 48, 64,  88,  80, 130, 120, 190, 150, 250,
                                 250, 225, 236, 0,  0,  0,  345, 470, 0,  0,   470, 520, 0,   640};
  if (isLargePrime(radix)) return static_cast<uint32_t>(radix / 2 * (radix / 2) * 6 + 20 * radix);
  return kHasMasks || radix < 8 ? kCosts[radix] : kCosts[radix] * 5 / 4;
}

// The same of Numbers, in tenths of a nanosecond with AVX2 (SSSE3: 0.9 to 1.2 of that), and without twiddles. Radix 16 of doubles
// takes twice as long as 15 where its results go.
constexpr uint32_t costInterleaved(size_t radix) {
  constexpr uint16_t kCosts[] = {0, 8,   8, 14,  18,  33, 35, 60,  45,  88, 76,  133, 86, 183, 135, 148, 330,
                                 0, 190, 0, 186, 240, 0,  0,  214, 328, 0,  373, 0,   0,  335, 0,   370};
  return isLargePrime(radix) ? costOfRadix(radix) : kCosts[radix];
}
constexpr uint32_t costOfLastInterleaved(size_t radix) { return costInterleaved(radix) - static_cast<uint32_t>(radix * 5 / 2); }

// Whether the first-level cache holds what each pass takes its n points from, and what its results go into.
template <class T> constexpr bool isInNearestCache(size_t n) { return n * 4 * sizeof(T) <= 48 << 10; }

// Points: of the transform.
template <class Points> class MixedPlanner {
  using T = typename Points::Lane;

 public:
  static constexpr size_t kMostDivisors = 720;

  // columns: transforms side by side, 1 or whole vectors. False where a prime factor is too large, or n a radix itself.
  bool plan(uint32_t n, size_t columns, MixedPlan<T>& plan) {
    columns_ = columns;
    if (!factor(n)) return false;
    findDivisors();
    for (size_t i = 1; i < divisors_; ++i) {
      best_[i] = UINT64_MAX;
      if (kAreNumbers<Points> ? divisor_[i] == n && columns > 1 : divisor_[i] == n || columns > 1) consider(i, n, kRadices);
      else consider(i, n, kLaterRadices);
      consider(i, n, std::span(large_, larges_));
    }
    if (best_[divisors_ - 1] == UINT64_MAX) return false;
    plan.n = n;
    plan.count = 0;
    for (uint32_t rest = n; rest > 1; rest /= plan.radix[plan.count++]) plan.radix[plan.count] = radix_[indexOf(rest)];
    return plan.count > 1;
  }
  // What a planned transform takes, in operations of a vector.
  uint64_t cost() const { return best_[divisors_ - 1]; }

 private:
  bool factor(uint32_t n) {
    for (uint32_t p = 2; n > 1; p += 1 + p % 2) {
      if (p * p > n) p = n;
      if (p > kLargestFactor) return false;
      if (n % p != 0) continue;
      primes_[kinds_] = static_cast<uint8_t>(p);
      for (; n % p == 0; n /= p) ++powers_[kinds_];
      if (p > kWidestMixed) large_[larges_++] = static_cast<uint8_t>(p);
      ++kinds_;
    }
    return true;
  }
  void findDivisors() {
    divisor_[divisors_++] = 1;
    for (size_t k = 0; k < kinds_; ++k) {
      const size_t before = divisors_;
      for (size_t i = 0; i < before * powers_[k]; ++i, ++divisors_)
        divisor_[divisors_] = divisor_[divisors_ - before] * primes_[k];
    }
    std::sort(divisor_, divisor_ + divisors_);
  }
  size_t indexOf(uint32_t d) const { return static_cast<size_t>(std::lower_bound(divisor_, divisor_ + divisors_, d) - divisor_); }
  // The passes from divisor i on, of which n / i are done.
  void consider(size_t i, uint32_t n, std::span<const uint8_t> radices) {
    const uint32_t d = divisor_[i];
    const bool fitsNearest = columns_ > 1 || isInNearestCache<T>(n);
    const uint64_t pass = kPass + (fitsNearest ? 0 : vectors(n) * kAwayFromNearest * 3 / 8);
    for (const uint8_t radix : radices) {
      if (d % radix != 0) continue;
      const uint32_t m = d / radix;
      if (kAreNumbers<Points> && d == n && columns_ == 1 && !fillVectors(radix, m)) continue;
      const uint64_t after = m == 1 ? 0 : best_[indexOf(m)];
      if (after == UINT64_MAX) continue;
      const uint64_t s = n / d * columns_;
      if constexpr (kAreNumbers<Points>) {
        take(i, radix, costOfInterleaved(n, s, m, radix) + after);
        continue;
      }
      const bool isAligned = s % kWidest<T> == 0 || (m == 1 && s <= kMostPadded);
      const uint32_t memory = columns_ > 1 ? kAwayFromNearest : isAligned ? 0 : kUnaligned;
      const uint64_t here =
          s == 1 ? uint64_t{vectors(m)} * costOfFirst(radix) : uint64_t{vectors(s)} * m * (costOfRadix(radix) + radix * memory);
      // The last pass has no twiddles, but interleaves, for which large radices lack registers: 1536 complex doubles take 0.87 by
      // 8, 16 and 12 of what they take by 8, 12 and 16. A tile's first pass lacks them sooner. Past the nearest cache results go
      // to that many places, twice the lines: 10000 complex doubles take 0.94 by 8, 10, 25 and 5 of what they take by 8, 5, 25
      // and 10.
      const bool isLarge = radix >= (!kHasMasks || columns_ > 1 ? 24 : fitsNearest ? 15 : 6);
      const uint64_t last = !isLarge ? here - vectors(s) * radix : radix < 24 ? here : here + here / 16;
      take(i, radix, (m > 1 ? here : last) + after + pass);
    }
  }
  // A first pass of Numbers takes whole vectors of columns, and leaves runs of that length.
  static bool fillVectors(size_t radix, size_t m) {
    return isLargePrime(radix) || (radix >= kPointsIn<Points> && m >= kPointsIn<Points>);
  }
  void take(size_t i, uint8_t radix, uint64_t cost) {
    if (cost >= best_[i]) return;
    best_[i] = cost;
    radix_[i] = radix;
  }
  // A vector that the first-level cache does not hold, in a tile or not, and one in two lines of it, take a nanosecond.
  uint64_t costOfInterleaved(uint32_t n, uint64_t s, uint32_t m, size_t radix) const {
    constexpr size_t P = kPointsIn<Points>;
    const uint64_t all = s == 1 ? (m + P - 1) / P : (s + P - 1) / P * m;
    const bool isFar = columns_ > 1 || !isInNearestCache<T>(n);
    const bool isAligned = s % P == 0 || s == 1;
    const size_t rows = s == 1 && P > 1 ? radix : 0;
    const size_t cost = m == 1 ? costOfLastInterleaved(radix) : costInterleaved(radix);
    return all * (cost + radix * (isFar + !isAligned) + rows) + kPass;
  }
  // With two transpositions most vectors of 64 bytes wait on the stack: 4800 complex doubles take 0.92 by 8, 5, 10 and 12 of what
  // they take by 16, 15 and 20.
  static uint32_t costOfFirst(size_t radix) {
    const auto transpositions = static_cast<uint32_t>((radix + kWidest<T> / 2 - 1) / kWidest<T>);
    const uint32_t cut = kHasMasks && radix % kWidest<T> != 0 ? kCutRows : 0;
    const uint32_t cost = costOfRadix(radix) + transpositions * kTransposition + cut;
    return kHasMasks && transpositions > 1 ? cost + cost / 16 : cost;
  }
  static uint64_t vectors(uint64_t count) { return (count + kWidest<T> - 1) / kWidest<T>; }
  static constexpr uint32_t kPass = 100;
  static constexpr uint32_t kAwayFromNearest = 8;  // a vector of a tile that the first-level cache does not hold, there and back
  static constexpr uint32_t kUnaligned = 3;        // a vector in two lines of the cache
  static constexpr uint32_t kTransposition = kWidest<T> * (log2Of(kWidest<T>) + 1);
  // Rows stored under masks: 1001 complex doubles take 0.93 by 13, 7 and 11 of what they take by 7, 11 and 13.
  static constexpr uint32_t kCutRows = 64;

  size_t columns_ = 1;
  uint8_t primes_[10] = {};
  uint8_t powers_[10] = {};
  uint8_t large_[10] = {};
  size_t kinds_ = 0;
  size_t larges_ = 0;
  size_t divisors_ = 0;
  uint32_t divisor_[kMostDivisors];
  uint64_t best_[kMostDivisors];
  uint8_t radix_[kMostDivisors];
};

// The planner is some KiB of the stack, which callers need not hold while they go on.
template <class Points> [[gnu::noinline]] bool planMixed(uint32_t n, MixedPlan<typename Points::Lane>& plan) {
  return MixedPlanner<Points>().plan(n, 1, plan);
}

// The numbers of a plan's tables, with what aligns the first.
template <class T> size_t matrixLength(size_t radix) { return isLargePrime(radix) ? radix / 2 * (radix / 2) * 2 : 0; }
template <class T> size_t lanesOfFirst(size_t radix) { return isLargePrime(radix) ? kManyLanes<T> : kWidest<T>; }
template <class T> size_t tableLength(const MixedPlan<T>& plan) {
  size_t length = Carver::kLine / sizeof(T);
  size_t m = plan.n;
  for (size_t pass = 0; pass < plan.count; ++pass) {
    const size_t radix = plan.radix[pass];
    m /= radix;
    length += matrixLength<T>(radix);
    const size_t lanes = pass == 0 ? lanesOfFirst<T>(radix) : 1;
    if (m > 1) length += (m + lanes - 1) / lanes * lanes * (radix - 1) * 2;
  }
  return length;
}

// The same of transforms side by side, all of whose passes are middle ones.
template <class T> size_t tableLengthOfColumns(const MixedPlan<T>& plan) {
  size_t length = 0;
  size_t m = plan.n;
  for (size_t pass = 0; pass < plan.count; ++pass) {
    m /= plan.radix[pass];
    length += matrixLength<T>(plan.radix[pass]) + (m > 1 ? m * (plan.radix[pass] - 1U) * 2 : 0);
  }
  return length;
}

template <class T> void writeMatrix(size_t radix, T* out) {
  const size_t half = radix / 2;
  writeTwiddles(
      radix, half * half, [half](size_t i) { return (i / half + 1) * (i % half + 1); },
      [out](size_t i, double re, double im) {
        out[2 * i] = static_cast<T>(re);
        out[2 * i + 1] = static_cast<T>(-im);
      });
}

// Of a pass that transforms n points and is not the first of a row; the end of them.
template <class T> T* writeMiddle(size_t n, size_t radix, T* out) {
  const size_t m = n / radix;
  const size_t others = radix - 1;
  writeTwiddles(n, m * others, inTurn(1, others, [](size_t group, size_t) { return group; }), intoPairs(out));
  return out + m * others * 2;
}

template <class T> T* writeMixedColumns(MixedPlan<T>& plan, T* out) {
  plan.tables = out;
  for (size_t pass = 0, n = plan.n; pass < plan.count; n /= plan.radix[pass++]) {
    const size_t radix = plan.radix[pass];
    if (isLargePrime(radix)) writeMatrix(radix, out);
    out += matrixLength<T>(radix);
    if (n > radix) out = writeMiddle(n, radix, out);
  }
  return out;
}

// Src: in the order of whose lanes the twiddles of the first pass stand.
template <class Src, class T> void writeMixed(MixedPlan<T>& plan, T* block) {
  T* out = alignedUp(block, Carver::kLine);
  plan.tables = out;
  size_t m = plan.n;
  for (size_t pass = 0; pass < plan.count; ++pass) {
    const size_t radix = plan.radix[pass];
    const size_t others = radix - 1;
    const size_t n = m;
    m /= radix;
    if (isLargePrime(radix)) writeMatrix(radix, out);
    out += matrixLength<T>(radix);
    if (m == 1) break;
    if (pass > 0) {
      out = writeMiddle(n, radix, out);
      continue;
    }
    const auto write = [&](auto L) {
      const bool overlaps = !isLargePrime(radix) && m >= L;  // the last vector ends where the columns do
      const auto column = [=](size_t group, size_t lane) {
        return (overlaps ? std::min<size_t>(group * L, m - L) : group * L) + Src::template element<L>(lane);
      };
      const size_t count = (m + L - 1) / L * L * others;
      if constexpr (kAreNumbers<Src>) writeTwiddles(n, count, inTurn(L, others, column), intoPairs(out));
      else writeTwiddles(n, count, inTurn(L, others, column), intoGroups<L>(out));
      out += 2 * count;
    };
    if (isLargePrime(radix)) write(std::integral_constant<size_t, kManyPoints<Src>>());
    else write(std::integral_constant<size_t, kPointsIn<Src>>());
  }
}

}  // namespace qvx::transform
