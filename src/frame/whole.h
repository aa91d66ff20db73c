// Doubles to 64-bit integers. Only AVX-512 has an instruction; elsewhere sums leave the integer in the lower bits of a double,
// whatever the rounding mode. Shifts of each lane by its exponent take twice the time (256 numbers with AVX2: 309 ns, not 156).
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

// The integer part of numbers from 0 to 2^51.
template <class V> auto shortToInt64(V v) {
  if constexpr (kHasMasks) {
    return toInt64(v);
  } else {
    const V unit = same<V>(0x1p52);
    V whole = hn::Zero(TagOf<V>());
    if constexpr (kRoundsByInstruction) {
      whole = hn::Trunc(v);
    } else {
      const V near = (v + unit) - unit;
      whole = near - hn::IfThenElseZero(near > v, same<V>(1));
    }
    return as<int64_t>(whole + unit) ^ as<int64_t>(unit);
  }
}

}  // namespace qvx
