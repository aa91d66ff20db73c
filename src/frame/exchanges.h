// Exchanges of lanes by the bits of their numbers, for sorting networks and butterflies within a vector.
#pragma once

#include "frame/vectors.h"

namespace qvx {

namespace detail {

inline __m128i exchangedBlocks(__m128i v, std::integral_constant<size_t, 0>) { return v; }
#if QVXS_AVX2
template <size_t kBy> __m256i exchangedBlocks(__m256i v, std::integral_constant<size_t, kBy>) {
  return kBy == 0 ? v : _mm256_permute4x64_epi64(v, 0x4E);
}
#endif
#if QVXS_AVX512
template <size_t kBy> __m512i exchangedBlocks(__m512i v, std::integral_constant<size_t, kBy>) {
  return kBy == 0 ? v : _mm512_shuffle_i64x2(v, v, kBy == 1 ? 0xB1 : kBy == 2 ? 0x4E : 0x1B);
}
#endif

}  // namespace detail

// Lane i ^ kBy in the place of lane i.
template <size_t kBy, class V> V exchanged(V v) {
  using T = LaneOf<V>;
  constexpr size_t kInBlock = 16 / sizeof(T);
  constexpr size_t kInner = kBy % kInBlock;
  const V blocks{detail::exchangedBlocks(v.raw, std::integral_constant<size_t, kBy / kInBlock>())};
  if constexpr (kInner == 0) {
    return blocks;
  } else if constexpr (sizeof(T) >= 4) {
    const auto words = as<uint32_t>(blocks);
    constexpr size_t kWords = kInner * (sizeof(T) / 4);
    if constexpr (kWords == 1) return as<T>(hn::Shuffle2301(words));
    else if constexpr (kWords == 2) return as<T>(hn::Shuffle1032(words));
    else return as<T>(hn::Shuffle0123(words));
  } else {
    const auto bytes = as<uint8_t>(blocks);
    const TagOf<std::remove_const_t<decltype(bytes)>> d;
    alignas(16) constexpr auto kOrder = [] {
      struct {
        uint8_t at[16];
      } order{};
      for (size_t i = 0; i < 16; ++i) order.at[i] = static_cast<uint8_t>(i ^ (kInner * sizeof(T)));
      return order;
    }();
    return as<T>(hn::TableLookupBytes(bytes, hn::LoadDup128(d, kOrder.at)));
  }
}

// The lanes whose number has the bit kBit.
template <size_t kBit, class D> hn::Mask<D> lanesWithBit([[maybe_unused]] D d) {
#if QVXS_AVX512
  constexpr uint64_t kMask = [] {
    uint64_t mask = 0;
    for (size_t i = 0; i < hn::MaxLanes(D()); ++i) mask |= uint64_t{(i & kBit) != 0} << i;
    return mask;
  }();
  return {static_cast<decltype(hn::Mask<D>::raw)>(kMask)};
#else
  const hn::RebindToUnsigned<D> lanes;
  return hn::RebindMask(d, hn::And(hn::Iota(lanes, 0), hn::Set(lanes, kBit)) == hn::Set(lanes, kBit));
#endif
}

// `upper` in the lanes whose number has the bit kBit, `lower` in the others.
template <size_t kBit, class V> V lanesByBit(V lower, V upper) {
#if QVXS_AVX2 && !QVXS_AVX512
  if constexpr (sizeof(V) == 32 && kBit * sizeof(LaneOf<V>) >= 4) {
    constexpr int kMask = [] {
      int mask = 0;
      for (size_t word = 0; word < 8; ++word) mask |= static_cast<int>((word * 4 / sizeof(LaneOf<V>) & kBit) != 0) << word;
      return mask;
    }();
    return V{_mm256_blend_epi32(lower.raw, upper.raw, kMask)};
  } else if constexpr (sizeof(LaneOf<V>) == 2 && kBit == 1) {
    return hn::OddEven(upper, lower);
  } else
#endif
  {
    if constexpr (sizeof(V) == 16 && kBit * sizeof(LaneOf<V>) == 8) {
      return as<LaneOf<V>>(hn::OddEven(as<double>(upper), as<double>(lower)));
    } else {
      return hn::IfThenElse(lanesWithBit<kBit>(TagOf<V>()), upper, lower);
    }
  }
}

}  // namespace qvx
