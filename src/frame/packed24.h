// Three-byte integers as a source and a destination of the loop engine, four registers of 32-bit lanes at a time: as many
// elements as bytes in a register, so that memory is read and written in whole registers. Masked or overlapping accesses, which
// fewer elements would need, take twice the time beyond the cache.
#pragma once

#include "frame/map.h"

namespace qvx {

template <class T> struct Range24 {
  static constexpr T kLeast = std::is_signed_v<T> ? -(1 << 23) : 0;
  static constexpr T kMost = std::is_signed_v<T> ? (1 << 23) - 1 : (1 << 24) - 1;
};

template <class V> struct Quad { V a, b, c, d; };

template <class V, class F> auto each(Quad<V> q, F f) { return Quad<decltype(f(q.a))>{f(q.a), f(q.b), f(q.c), f(q.d)}; }

// quadOf makes a quad of f(0) to f(3); forEach calls f with each register of a quad and its number. Written out, since a loop
// would keep the registers in memory.
template <class F> auto quadOf(F f) { return Quad<decltype(f(0))>{f(0), f(1), f(2), f(3)}; }
template <class V, class F> void forEach(Quad<V> q, F f) {
  f(q.a, size_t{0});
  f(q.b, size_t{1});
  f(q.c, size_t{2});
  f(q.d, size_t{3});
}

// How many of n elements register k holds, if a register has N.
template <size_t N> size_t shareOf(size_t k, size_t n) { return std::min(n - std::min(n, k * N), N); }

// The other side of a conversion: elements of 32 bits.
template <class T> struct Quads {
  using Lane = uint8_t;  // counts as one byte, for the engine to take as many elements as a register has bytes
  T* p;
  using Element = std::remove_const_t<T>;

  template <size_t N> auto get(size_t at) const {
    return quadOf([from = p + at](size_t k) { return load(Lanes<Element, N / 4>(), from + k * N / 4); });
  }
  template <size_t N> auto get(size_t at, size_t n) const {
    return quadOf([from = p + at, n](size_t k) {
      return loadFirst(Lanes<Element, N / 4>(), from + std::min(n, k * N / 4), shareOf<N / 4>(k, n));
    });
  }
  template <size_t N, class V> void put(Quad<V> q, size_t at) const {
    forEach(q, [to = p + at](V v, size_t k) { store(v, TagOf<V>(), to + k * N / 4); });
  }
  template <size_t N, class V> void put(Quad<V> q, size_t at, size_t n) const {
    forEach(q, [to = p + at, n](V v, size_t k) { storeFirst(v, TagOf<V>(), to + std::min(n, k * N / 4), shareOf<N / 4>(k, n)); });
  }
  template <size_t N> size_t misaligned() const {
    const size_t bytes = reinterpret_cast<uintptr_t>(p) % N;
    return bytes % sizeof(T) == 0 ? (N - bytes) % N / sizeof(T) : 0;
  }
};
template <class T> Quads(T*) -> Quads<T>;

namespace detail {

// Byte order tables for one 128-bit block of four elements; -1 gives zero.
inline constexpr int8_t kUnsigned24[16] = {0, 1, 2, -1, 3, 4, 5, -1, 6, 7, 8, -1, 9, 10, 11, -1};
inline constexpr int8_t kSigned24[16] = {-1, 0, 1, 2, -1, 3, 4, 5, -1, 6, 7, 8, -1, 9, 10, 11};  // in the high bytes
inline constexpr int8_t kReversed24[16] = {2, 1, 0, 5, 4, 3, 8, 7, 6, 11, 10, 9, -1, -1, -1, -1};
inline constexpr int8_t kPacked24[16] = {0, 1, 2, 4, 5, 6, 8, 9, 10, 12, 13, 14, -1, -1, -1, -1};

// For a register of four blocks. kSpread24: each block gets three dwords of packed bytes, from dword 0 or dword 4 on, and one to
// spare. The way back: packed register k of three is made of two neighbours among four.
alignas(64) inline constexpr int32_t kSpread24[2][16] = {{0, 1, 2, 3, 3, 4, 5, 6, 6, 7, 8, 9, 9, 10, 11, 12},
                                                         {4, 5, 6, 7, 7, 8, 9, 10, 10, 11, 12, 13, 13, 14, 15, 15}};
alignas(64) inline constexpr int32_t kDense24[3][16] = {{0, 1, 2, 4, 5, 6, 8, 9, 10, 12, 13, 14, 16, 17, 18, 20},
                                                        {5, 6, 8, 9, 10, 12, 13, 14, 16, 17, 18, 20, 21, 22, 24, 25},
                                                        {10, 12, 13, 14, 16, 17, 18, 20, 21, 22, 24, 25, 26, 28, 29, 30}};

// A byte order table whose bytes begin later in the block, in each block of a register of two by another number.
struct Order24 {
  alignas(32) int8_t bytes[32];
};
constexpr Order24 later24(const int8_t (&table)[16], int8_t inLower, int8_t inUpper) {
  Order24 order{};
  for (size_t i = 0; i < 16; ++i) {
    order.bytes[i] = static_cast<int8_t>(table[i] < 0 ? -1 : table[i] + inLower);
    order.bytes[i + 16] = static_cast<int8_t>(table[i] < 0 ? -1 : table[i] + inUpper);
  }
  return order;
}

// Stores four registers, each block of which holds 12 bytes, as three.
template <class V> void storeDense(Quad<V> q, uint8_t* to) {
  const TagOf<V> d;
#if QVXS_AVX512
  if constexpr (sizeof(q.a.raw) == 64) {
    store(lanesOfTwo(q.a, q.b, kDense24[0]), d, to);
    store(lanesOfTwo(q.b, q.c, kDense24[1]), d, to + 64);
    store(lanesOfTwo(q.c, q.d, kDense24[2]), d, to + 128);
    return;
  }
#endif
#if QVXS_AVX2
  if constexpr (sizeof(q.a.raw) == 32) {
    // Each register in the order in which its dwords are stored; those marked 7 come from its neighbour.
    const __m256i a = _mm256_permutevar8x32_epi32(q.a.raw, _mm256_setr_epi32(0, 1, 2, 4, 5, 6, 7, 7));
    const __m256i b = _mm256_permutevar8x32_epi32(q.b.raw, _mm256_setr_epi32(2, 4, 5, 6, 7, 7, 0, 1));
    const __m256i c = _mm256_permutevar8x32_epi32(q.c.raw, _mm256_setr_epi32(5, 6, 7, 7, 0, 1, 2, 4));
    const __m256i last = _mm256_permutevar8x32_epi32(q.d.raw, _mm256_setr_epi32(7, 7, 0, 1, 2, 4, 5, 6));
    store(V{_mm256_blend_epi32(a, b, 0b11000000)}, d, to);
    store(V{_mm256_blend_epi32(b, c, 0b11110000)}, d, to + 32);
    store(V{_mm256_blend_epi32(c, last, 0b11111100)}, d, to + 64);
    return;
  }
#endif
  if constexpr (sizeof(q.a.raw) == 16) {
    const auto middle = _mm_shuffle_ps(_mm_castsi128_ps(q.b.raw), _mm_castsi128_ps(q.c.raw), 0b01001001);
    store(q.a | hn::ShiftLeftBytes<12>(d, q.b), d, to);
    store(V{_mm_castps_si128(middle)}, d, to + 16);
    store(hn::CombineShiftRightBytes<12>(d, q.d, hn::ShiftLeftBytes<4>(d, q.c)), d, to + 32);
  }
}

}  // namespace detail

// packed24: the four 32-bit lanes of each block to 12 bytes and 4 zeros. unpacked24: 12 bytes to four signed lanes.
template <class V> auto packed24(V v) {
  const auto bytes = as<int8_t>(v);
  return as<uint8_t>(hn::TableLookupBytesOr0(bytes, hn::LoadDup128(TagOf<decltype(bytes)>(), detail::kPacked24)));
}
template <class V> auto unpacked24(V bytes) {
  const auto order = hn::LoadDup128(hn::Repartition<int8_t, TagOf<V>>(), detail::kSigned24);
  return hn::ShiftRight<8>(as<int32_t>(hn::TableLookupBytesOr0(bytes, as<uint8_t>(order))));
}

// What a block of 16 bytes holds: four 32-bit lanes, or twelve packed bytes, those of each element in reverse.
enum class Block24 { kLanes, kReversed };

template <class T, Block24 kBlock = Block24::kLanes> struct From24 {
  using Lane = uint8_t;
  const uint8_t* p;

  template <size_t N> auto get(size_t at) const {
    const uint8_t* bytes = p + 3 * at;
#if QVXS_AVX512
    if constexpr (N == 64) {
      // Loads whole registers 48 bytes apart; the last begins early enough not to end past the elements.
      const Lanes<int32_t, N / 4> d;
      return quadOf([bytes, d](size_t k) {
        const auto packed = as<int32_t>(load(Lanes<uint8_t, N>(), bytes + (k < 3 ? 48 * k : 128)));
        const auto spread = hn::TableLookupLanes(packed, hn::SetTableIndices(d, detail::kSpread24[k / 3]));
        return ordered(as<uint8_t>(spread), kFromStart);
      });
    }
#endif
    if constexpr (N == 32) {
      return quadOf([bytes](size_t k) {
        const Lanes<uint8_t, 16> half;
        const uint8_t* from = bytes + 24 * k;
        return ordered(hn::Combine(Lanes<uint8_t, N>(), load(half, from + 8), load(half, from)), kFromBothEnds);
      });
    } else if constexpr (N == 16) {
      const auto block = [bytes](size_t at, const detail::Order24& order) {
        return ordered(load(Lanes<uint8_t, N>(), bytes + at), order);
      };
      using V = decltype(block(0, kFromStart));
      return Quad<V>{block(0, kFromStart), block(12, kFromStart), block(24, kFromStart), block(32, kFromFour)};
    }
  }
  template <size_t N> auto get(size_t at, size_t n) const {
    static_assert(N == 16);
    return quadOf([bytes = p + 3 * at, n](size_t k) {
      return ordered(loadFirst(Lanes<uint8_t, 16>(), bytes + 3 * std::min(n, 4 * k), 3 * shareOf<4>(k, n)), kFromStart);
    });
  }

 private:
  static constexpr const int8_t (&kTable)[16] = kBlock == Block24::kReversed ? detail::kReversed24
                                                : std::is_signed_v<T>        ? detail::kSigned24
                                                                             : detail::kUnsigned24;
  // Where the elements begin in each block. The last block of a register ends with it, so that nothing past it is read.
  static constexpr detail::Order24 kFromStart = detail::later24(kTable, 0, 0);
  static constexpr detail::Order24 kFromFour = detail::later24(kTable, 4, 4);
  static constexpr detail::Order24 kFromBothEnds = detail::later24(kTable, 0, 4);

  template <class V> static auto ordered(V bytes, const detail::Order24& order) {
    const hn::Repartition<int8_t, TagOf<V>> d;
    Vec<decltype(d)> indices;
    if constexpr (kLanesOf<V> == 64) indices = hn::LoadDup128(d, order.bytes);
    else indices = load(d, order.bytes);
    const auto lanes = as<T>(hn::TableLookupBytesOr0(bytes, as<uint8_t>(indices)));
    if constexpr (std::is_signed_v<T>) return hn::ShiftRight<8>(lanes);
    else return lanes;
  }
};

// Takes lanes that fit 24 bits.
template <class T, Block24 kBlock = Block24::kLanes> struct To24 {
  using Lane = uint8_t;
  uint8_t* p;

  template <size_t N> size_t misaligned() const {
    // One of the next three boundaries is a whole number of elements away, since N is not a multiple of 3.
    size_t bytes = (N - reinterpret_cast<uintptr_t>(p) % N) % N;
    while (bytes % 3 != 0) bytes += N;
    return bytes / 3;
  }
  template <size_t N, class V> void put(Quad<V> q, size_t at) const {
    detail::storeDense(each(q, [](V v) { return packed(v); }), p + 3 * at);
  }
  template <size_t N, class V> void put(Quad<V> q, size_t at, size_t n) const {
    static_assert(N == 16);
    forEach(q, [bytes = p + 3 * at, n](V v, size_t k) {
      storeFirst(packed(v), Lanes<uint8_t, 16>(), bytes + 3 * std::min(n, 4 * k), 3 * shareOf<4>(k, n));
    });
  }

 private:
  template <class V> static auto packed(V v) {
    if constexpr (kBlock == Block24::kReversed) return as<uint8_t>(v);
    else return packed24(v);
  }
};

}  // namespace qvx
