// Integers that a short transform in floats takes and gives: converted on their way into registers and out of them. Through a
// vector of floats in memory a transform of 8 points took three times as long: what is stored in pieces can't be loaded as a
// whole for 20 cycles.
#pragma once

#include "fft/record.h"
#include "frame/map.h"
#include "frame/power.h"
#include "frame/rounding.h"
#include "frame/to_int.h"

namespace qvx::fft {

template <class T, class Int> struct FromIntegers {
  const Int* p;

  template <class D> QVX_INLINE auto get(D, size_t at) const { return convertLanes<T>(load(hn::Rebind<Int, D>(), p + at)); }
};

// factor: that of the transform, times the power of two that a scale factor stands for.
template <class T, class Int> struct ToIntegers {
  Int* p;
  T factor;

  template <class V> QVX_INLINE void put(V v, size_t at) const {
    const auto ints = convertLanes<Int>(toIntsBelow<Int>(v * same<V>(factor), ToInt<qvxRoundNearestEven>()));
    store(ints, TagOf<decltype(ints)>(), p + at);
  }
};

// Points of them, with their parts interleaved and in two vectors. Ints: one of the two above.
template <class T, class Ints, bool kSwapped_> struct InterleavedIntegers {
  using Lane = T;
  static constexpr bool kSwapped = kSwapped_;
  Ints all;

  Ints raw() const { return all; }
};
template <class T, class Ints> struct SplitIntegers {
  using Lane = T;
  Ints re;
  Ints im;

  template <size_t L> static constexpr size_t element(size_t lane) { return lane; }
  template <size_t L> QVX_INLINE auto get(size_t at) const {
    const Lanes<T, L> d;
    return Complex<Vec<Lanes<T, L>>>{re.get(d, at), im.get(d, at)};
  }
  template <size_t L, class V> QVX_INLINE void put(Complex<V> z, size_t at) const {
    re.put(z.re, at);
    im.put(z.im, at);
  }
  template <size_t L> QVX_INLINE auto getInOrder(size_t at) const { return get<L>(at); }
  template <size_t L, class V> QVX_INLINE void putInOrder(Complex<V> z, size_t at) const { put<L>(z, at); }
};

// run(factor) with what the flag says of this direction and the scale factor, in one: their product is exact.
template <bool kInverse, class Spec, class Run> QVX_INLINE QvxStatus inRegisters(const Spec& spec, int scaleFactor, Run run) {
  using T = typename Spec::T;
  const RoundingScope scope(kRoundsByInstruction ? Rounding::kCallers : Rounding::kNearest);
  const bool isScaled = kInverse ? spec.invScaled : spec.fwdScaled;
  return run(powerOfTwo<T>(-int64_t{scaleFactor}) * (isScaled ? spec.normFactor : T{1}));
}

}  // namespace qvx::fft
