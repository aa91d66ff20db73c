// Reverses elements of any type, as words, and conjugates complex ones.
#pragma once

#include "frame/words.h"

namespace qvx {

template <size_t kWordsOfElement, class V> V flipped(V v) {
  if constexpr (kWordsOfElement == 1) return reversed(v);
  else return hn::Reverse2(TagOf<V>(), reversed(v));
}

// The first n elements of a vector that they do not fill, flipped, at its front.
template <size_t kElementBytes, class V> V flippedFirst(V v, size_t n) {
  const Lanes<uint8_t, 16> d;
  const auto last = hn::Set(d, static_cast<uint8_t>((n - 1) * kElementBytes));
  const auto element = hn::AndNot(hn::Set(d, kElementBytes - 1), hn::Iota(d, 0));
  const auto within = hn::And(hn::Set(d, kElementBytes - 1), hn::Iota(d, 0));
  return as<LaneOf<V>>(hn::TableLookupBytesOr0(as<uint8_t>(v), last - element + within));
}

// Conjugates of complex elements C, in their words.
template <class C, class V> V conjugateWords(V v) {
  if constexpr (std::is_same_v<C, Qvx16sc>) {
    const auto z = as<int16_t>(v);
    const TagOf<std::remove_const_t<decltype(z)>> d;
    return as<uint32_t>(hn::OddEven(hn::SaturatedSub(hn::Zero(d), z), z));
  } else if constexpr (std::is_same_v<C, Qvx32fc>) {
    return v ^ same<V>(uint64_t{1} << 63);
  } else {
    return hn::OddEven(hn::Neg(v), v);
  }
}

}  // namespace qvx
