// Doubles to 64-bit integers. Only AVX-512 has an instruction; elsewhere sums leave the integer in the lower bits of a double,
// whatever the rounding mode. Shifting each lane by its exponent takes twice the time (256 numbers with AVX2: 309 ns, not 156).
#pragma once

#include "frame/simd.h"

namespace qvx {

// Whole numbers from -2^63 to below 2^63; 2^63 gives INT64_MIN.
template <class V> auto wholeToInt64(V whole) {
  if constexpr (kHasMasks) {
    return toInt64(whole);
  } else {
    const V middle = same<V>(0x1.8p52);
    const V upper = whole * same<V>(0x1p-32) + middle;  // in units of 2^32, to either side
    const V lower = (whole - (upper - middle) * same<V>(0x1p32)) + middle;
    return hn::ShiftLeft<32>(as<int64_t>(upper)) + (as<int64_t>(lower) - as<int64_t>(middle));
  }
}

// Whole numbers between -2^51 and 2^51.
template <class V> auto shortWholeToInt64(V whole) {
  if constexpr (kHasMasks) {
    return toInt64(whole);
  } else {
    const V middle = same<V>(0x1.8p52);
    return as<int64_t>(whole + middle) - as<int64_t>(middle);
  }
}

// The largest whole number not above v, which lies between -2^51 and 2^51.
template <class V> V shortFloor(V v) {
  if constexpr (kRoundsByInstruction) return hn::Floor(v);
  const V middle = same<V>(0x1.8p52);
  const V near = (v + middle) - middle;
  return near - hn::IfThenElseZero(near > v, same<V>(1));
}

// The whole number nearest to v, which lies between -2^51 and 2^51. Without an instruction that rounds, the mode has to be to
// nearest.
template <class V> V shortNearest(V v) {
  if constexpr (kRoundsByInstruction) return hn::Round(v);
  const V middle = same<V>(0x1.8p52);
  return (v + middle) - middle;
}

#if !QVXS_AVX512
// Two whole numbers, either half of a 64-bit integer from 0 on in the lower bits of one; their sum is that integer.
template <class V> auto halvesAsDoubles(V v) {
  using W = Vec<hn::Rebind<double, TagOf<V>>>;
  const auto units = as<uint32_t>(same<W>(0x1p52));
  const W lower = as<double>(hn::OddEven(units, as<uint32_t>(v)));
  const W upper = as<double>(hn::ShiftRight<32>(as<uint64_t>(v)) | as<uint64_t>(same<W>(0x1p84)));
  return Pair<W>{lower, upper - same<W>(0x1p84 + 0x1p52)};
}
#endif

// 64-bit integers from 0 on to doubles in the processor's rounding mode, which may give 0 either sign.
template <class V> auto unsignedToDouble(V v) {
#if QVXS_AVX512
  return toDouble(v);
#else
  const auto halves = halvesAsDoubles(v);
  return halves.hi + halves.lo;
#endif
}

// The integer part of numbers from 0 to 2^51. Without an instruction that rounds, it may be one too small, and the mode has to be
// to nearest.
template <class V> auto shortToInt64(V v) {
  if constexpr (kHasMasks) {
    return toInt64(v);
  } else {
    const V unit = same<V>(0x1p52);
    const V whole = kRoundsByInstruction ? hn::Trunc(v) : hn::Max(v - same<V>(0.5), hn::Zero(TagOf<V>()));
    return as<int64_t>(whole + unit) ^ as<int64_t>(unit);
  }
}

}  // namespace qvx
