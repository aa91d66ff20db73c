// What tones and triangle waves have in common: the phase a call leaves, and samples on their way to the destination.
#pragma once

#include "frame/complex.h"
#include "frame/rounding.h"

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

}  // namespace qvx::generate
