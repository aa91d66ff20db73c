// Lanes partitioned by a mask, for quicksort.
#pragma once

#include <algorithm>

#include "frame/masks.h"

namespace qvx {

namespace detail {

// For each mask of kLanes lanes: the numbers of the lanes in it, then of the others; each lane as kUnits units.
template <class Index, size_t kLanes, size_t kUnits> struct PartitionOrder {
  Index of[size_t{1} << kLanes][kLanes * kUnits];
  constexpr PartitionOrder() : of{} {
    for (size_t mask = 0; mask < size_t{1} << kLanes; ++mask) {
      size_t to = 0;
      for (const bool isIn : {true, false}) {
        for (size_t i = 0; i < kLanes; ++i) {
          if ((mask >> i & 1) != isIn) continue;
          for (size_t unit = 0; unit < kUnits; ++unit) of[mask][to++] = static_cast<Index>(i * kUnits + unit);
        }
      }
    }
  }
};
template <class Index, size_t kLanes, size_t kUnits>
alignas(64) inline constexpr PartitionOrder<Index, kLanes, kUnits> kPartitionOrder;

template <size_t kBytes> __m128i partitionedBy(__m128i v, uint64_t mask) {
  return _mm_shuffle_epi8(
      v, _mm_load_si128(reinterpret_cast<const __m128i*>(kPartitionOrder<uint8_t, 16 / kBytes, kBytes>.of[mask])));
}
#if QVXS_AVX2
template <size_t kBytes> __m256i partitionedBy(__m256i v, uint64_t mask) {
  const auto* order = kPartitionOrder<uint32_t, 32 / kBytes, kBytes / 4>.of[mask];
  return _mm256_permutevar8x32_epi32(v, _mm256_load_si256(reinterpret_cast<const __m256i*>(order)));
}
#endif
#if QVXS_AVX512
template <size_t kBytes> __m512i partitionedBy(__m512i v, uint64_t mask) {
  static_assert(kBytes == 8);
  const auto* order = kPartitionOrder<uint8_t, 8, 1>.of[mask];
  return _mm512_permutexvar_epi64(_mm512_cvtepu8_epi64(_mm_loadl_epi64(reinterpret_cast<const __m128i*>(order))), v);
}
// 16 lanes are gathered by the instruction, between registers: one make of processor takes 100 times as long where it stores to
// memory. 8 lanes are gathered by a table, whose one shuffle serves both parts: a partition takes 0.9 of the time.
template <class V> inline constexpr bool kGathersLanes = sizeof(V) == 64 && sizeof(LaneOf<V>) == 4;
template <class V, class M> auto gathered(V v, M mask) { return _mm512_maskz_compress_epi32(mask.raw, as<uint8_t>(v).raw); }
#else
template <class V> inline constexpr bool kGathersLanes = false;
#endif

}  // namespace detail

// The lanes in a mask of bits, then the others.
template <class V> [[gnu::always_inline]] inline V partitioned(V v, uint64_t bits) {
  return V{detail::partitionedBy<sizeof(LaneOf<V>)>(v.raw, bits)};
}

// Partitions lanes by the bits of a mask: those in it are stored from `low` on, which moves to their end; the others so that they
// end at `high`, which moves to their start. There is room for a whole vector at either.
template <class V> [[gnu::always_inline]] inline void partitionLanes(V v, uint64_t bits, LaneOf<V>*& low, LaneOf<V>*& high) {
  const TagOf<V> d;
  constexpr size_t N = kLanesOf<V>;
  const size_t count = countLanes<N>(bits);
  const V both = partitioned(v, bits);
  hn::StoreU(both, d, low);
  hn::StoreU(both, d, high - N);
  low += count;
  high -= N - count;
}
template <class V, class M> [[gnu::always_inline]] inline void partitionLanes(V v, M mask, LaneOf<V>*& low, LaneOf<V>*& high) {
  const TagOf<V> d;
  if constexpr (!detail::kGathersLanes<V>) {
    partitionLanes(v, maskBits(d, mask), low, high);
  } else {
#if QVXS_AVX512
    constexpr size_t N = kLanesOf<V>;
    const size_t count = countLanes<N>(maskBits(d, mask));
    hn::StoreU(V{detail::gathered(v, mask)}, d, low);
    low += count;
    high -= N - count;
    hn::BlendedStore(V{detail::gathered(v, hn::Not(mask))}, hn::FirstN(d, N - count), d, high);
#endif
  }
}

// The same, but the others are stored from `high` on. Returns how many lanes are in the mask.
template <class V> size_t partitionLanesUp(V v, uint64_t bits, LaneOf<V>* low, LaneOf<V>* high) {
  const TagOf<V> d;
  constexpr uint64_t kAll = (uint64_t{1} << kLanesOf<V>)-1;
  hn::StoreU(partitioned(v, bits), d, low);
  hn::StoreU(partitioned(v, bits ^ kAll), d, high);
  return countLanes<kLanesOf<V>>(bits);
}
template <class V, class M> size_t partitionLanesUp(V v, M mask, LaneOf<V>* low, LaneOf<V>* high) {
  const TagOf<V> d;
  if constexpr (!detail::kGathersLanes<V>) {
    return partitionLanesUp(v, maskBits(d, mask), low, high);
  } else {
#if QVXS_AVX512
    hn::StoreU(V{detail::gathered(v, mask)}, d, low);
    hn::StoreU(V{detail::gathered(v, hn::Not(mask))}, d, high);
    return countLanes<kLanesOf<V>>(maskBits(d, mask));
#endif
  }
}

// The lanes of vectors that are partitioned: as many as the instruction takes, or as a table of a few KiB serves.
#if QVXS_AVX512
template <class T> inline constexpr size_t kPartitionLanes = kVectorBytes / sizeof(T) / (sizeof(T) == 2 ? 4 : 1);
#else
template <class T> inline constexpr size_t kPartitionLanes = std::min(kVectorBytes / sizeof(T), size_t{8});
#endif

}  // namespace qvx
