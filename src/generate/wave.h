// What tones and triangle waves have in common: the phase a call leaves, and samples on their way to the destination.
#pragma once

#include "frame/complex.h"
#include "frame/each_vector.h"
#include "frame/rounding.h"
#include "frame/to_int64.h"
#include "frame/unroll.h"

namespace qvx::generate {

inline constexpr double kTwoPi = 6.283185307179586;
inline constexpr double kTurn = 0.15915494309189535;  // 1 / (2 pi)

// Where the phase stands after len samples.
template <class Phase> Phase phaseAfter(Phase phase, double rFreq, int len) {
  double p = static_cast<double>(phase) + len * (kTwoPi * rFreq);
  p -= static_cast<double>(static_cast<int64_t>(p * kTurn)) * kTwoPi;
  const auto left = static_cast<Phase>(p);
  return left >= 0 && left < static_cast<Phase>(kTwoPi) ? left : 0;
}

// Turns and frequencies as fractions of 2^64, which wrap by themselves: a stream's phase never loses anything.
inline uint64_t fixedTurns(double turns) {
  return static_cast<uint64_t>(static_cast<int64_t>((turns - (turns >= 0.5)) * 0x1p64));
}

// Of 48 bits, that a double holds after any number of steps which are multiples of 2^-48: each sample is the same however a
// stream is cut.
inline uint64_t shortTurns(double turns) { return fixedTurns(turns) & ~uint64_t{0xFFFF}; }

template <class T, class V> auto toSamples(V v) {
  if constexpr (std::is_floating_point_v<T>) {
    return convertLanes<T>(v);
  } else if constexpr (kHasMasks) {
    // Halves away from zero: an ULP or two farther they are none any more.
    return convertLanes<T>(toIntNearest(hn::MulAdd(v, same<V>(std::numeric_limits<LaneOf<V>>::epsilon()), v)));
  } else {
    return convertLanes<T>(toIntTruncated(v + hn::CopySignToAbs(same<V>(LaneOf<V>(0.5)), v)));
  }
}

// Samples from `at` on, a real number or a pair of parts each: of all lanes, or of the first `rest`.
template <class T, class V, class... Rest>
[[gnu::always_inline]] inline void putSamples(T* dst, size_t at, V re, V im, Rest... rest) {
  constexpr size_t N = kLanesOf<V>;
  if constexpr (PartsOf<T>::kCount == 1) {
    destination(dst).template put<N>(toSamples<T>(re), at, rest...);
  } else {
    const auto first = toSamples<Part<T>>(re);
    const Pair<std::remove_const_t<decltype(first)>> samples{first, toSamples<Part<T>>(im)};
    InterleavedDestination<Part<T>>{parts(dst)}.template put<N>(samples, at, rest...);
  }
}

// Vectors whose phases are the sums of one and the same with what is theirs: it comes from a 64-bit number, at the price of two
// additions, and no vector waits for the one before it.
inline constexpr size_t kTogether = 4;

// Phases of samples, fractions of 2^64, as reals from minus a half to a half of a turn. Each is exact before it becomes a real,
// so that nothing accumulates.
template <class Real, size_t kVectors = kTogether> class Phases {
 public:
  static constexpr size_t N = kVectorBytes / sizeof(Real);
  // Integers that wrap by themselves, where an instruction converts them; else turns, which are reduced.
  static constexpr bool kCounts = sizeof(Real) == 4 || kHasMasks;
  static constexpr double kUnit = !kCounts ? 1 : sizeof(Real) == 4 ? 0x1p-32 : 0x1p-64;  // turns

  Phases(size_t n, uint64_t step) {
    for (size_t k = 0; k < N; ++k) steps_[k] = lane(k * step);
    for (size_t i = 1; i < kVectors && i * N < n; ++i)
      store(load(d_, steps_) + hn::Set(d_, lane(i * N * step)), d_, steps_ + i * N);
  }
  // Those of a vector, i vectors after `first`.
  [[gnu::always_inline]] auto operator()(uint64_t first, size_t i) const {
    const auto sum = hn::Set(d_, lane(first)) + load(d_, steps_ + i * N);
    if constexpr (kCounts) return hn::ConvertTo(Lanes<Real, N>(), sum);
    else return sum - shortNearest(sum);
  }

 private:
  using Lane = std::conditional_t<!kCounts, Real, std::conditional_t<sizeof(Real) == 4, int32_t, int64_t>>;
  static Lane lane(uint64_t phase) {
    const auto count = static_cast<int64_t>(phase);
    if constexpr (kCounts) return static_cast<Lane>(count >> (64 - 8 * sizeof(Lane)));
    else return static_cast<Real>(count) * 0x1p-64;
  }

  static constexpr Lanes<Lane, N> d_ = {};
  alignas(64) Lane steps_[kVectors * N];
};

// Samples of wave(phase, i), where i vectors have been made of that phase; an imaginary part is a quarter of a turn late.
template <size_t N, class T, class Wave>
[[gnu::always_inline]] inline void putWave(T* dst, size_t n, Wave wave, uint64_t step, uint64_t phase) {
  constexpr uint64_t kQuarterTurn = uint64_t{1} << 62;
  const auto put = [&](size_t i, size_t at, auto... rest) __attribute__((always_inline)) {
    const auto v = wave(phase, i);
    if constexpr (PartsOf<T>::kCount == 1) putSamples(dst, at, v, v, rest...);
    else putSamples(dst, at, v, wave(phase - kQuarterTurn, i), rest...);
  };
  size_t from = 0;
  for (; from + kTogether * N <= n; from += kTogether * N, phase += kTogether * N * step) {
    unrolled<kTogether>([&](auto i) __attribute__((always_inline)) { put(i, from + i * N); });
  }
  eachVector<N>(
      n - from, [&](size_t at, auto... rest) __attribute__((always_inline)) { put(at / N, from + at, rest...); });
}

}  // namespace qvx::generate
