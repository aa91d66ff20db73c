// re^2 + im^2 in lanes: of floats in their own type, of integers exactly.
#pragma once

#include "frame/complex.h"

namespace qvx {

struct Power {
  template <class V> V operator()(V re, V im) const { return re * re + im * im; }
  template <class V> V operator()(Pair<V> z) const { return (*this)(z.lo, z.hi); }
};

// Of 16-bit parts side by side: exact, up to 2^31 in lanes of 32 bits.
template <class V> auto powerOf16(V z) { return as<uint32_t>(pairProducts(as<int16_t>(z), as<int16_t>(z))); }

// The same as floats, rounded once. As a signed integer only 2^31 is negative, and its magnitude is right.
template <class V> auto toFloat(V power) {
  const auto i = as<int32_t>(power);
  return hn::Abs(hn::ConvertTo(hn::Rebind<float, TagOf<std::remove_const_t<decltype(i)>>>(), i));
}

struct Power16ToFloat {
  template <class V> auto operator()(V z) const { return toFloat(powerOf16(z)); }
  // Split parts, widened: put side by side again.
  template <class V> auto operator()(V re, V im) const {
    const auto low = [](V v) { return hn::PromoteTo(hn::Rebind<uint32_t, TagOf<V>>(), as<uint16_t>(v)); };
    return (*this)(low(re) | hn::ShiftLeft<16>(low(im)));
  }
};

// 32-bit parts: exact, up to 2^63 in lanes of 64 bits.
struct PowerOf32 {
  template <class V> auto operator()(V z) const {
    const auto magnitude = as<uint32_t>(hn::Abs(as<int32_t>(z)));
    const auto odd = as<uint32_t>(hn::ShiftRight<32>(as<uint64_t>(magnitude)));
    return hn::MulEven(magnitude, magnitude) + hn::MulEven(odd, odd);
  }
};

// Powers as signed lanes: these end one below the largest of them, half the range of unsigned ones.
template <class V> auto belowSign(V power) {
  constexpr int kSign = 8 * sizeof(LaneOf<V>) - 1;
  return as<std::make_signed_t<LaneOf<V>>>(power - hn::ShiftRight<kSign>(power));
}

}  // namespace qvx
