// Three-byte integers as a source and a destination of the loop engine. Lanes are 32-bit.
#pragma once

#include "frame/map.h"

namespace qvx {

// Byte order tables for one 128-bit block of four elements; -1 gives zero.
inline constexpr int8_t kUnsigned24[16] = {0, 1, 2, -1, 3, 4, 5, -1, 6, 7, 8, -1, 9, 10, 11, -1};
inline constexpr int8_t kSigned24[16] = {-1, 0, 1, 2, -1, 3, 4, 5, -1, 6, 7, 8, -1, 9, 10, 11};  // in the high bytes
inline constexpr int8_t kPacked24[16] = {0, 1, 2, 4, 5, 6, 8, 9, 10, 12, 13, 14, -1, -1, -1, -1};

template <class T> struct Range24 {
  static constexpr T kLeast = std::is_signed_v<T> ? -(1 << 23) : 0;
  static constexpr T kMost = std::is_signed_v<T> ? (1 << 23) - 1 : (1 << 24) - 1;
};

template <class T> struct From24 {
  using Lane = T;
  const uint8_t* p;

  // Every block gets the 12 bytes of its elements, and nothing behind the last one is read.
  template <size_t N> auto get(size_t at) const {
    const uint8_t* bytes = p + 3 * at;
    const Lanes<uint8_t, 4 * N> d;
    if constexpr (N == 16) {
      alignas(64) static constexpr int32_t kSpread[16] = {0, 1, 2, 3, 3, 4, 5, 6, 6, 7, 8, 9, 9, 10, 11, 12};
      const Lanes<int32_t, N> d32;
      const auto dense = hn::MaskedLoad(hn::FirstN(d32, 12), d32, reinterpret_cast<const int32_t*>(bytes));
      return ordered<N>(as<uint8_t>(hn::TableLookupLanes(dense, hn::SetTableIndices(d32, kSpread))), 0);
    } else if constexpr (N == 8) {
      const Lanes<uint8_t, 16> half;
      return ordered<N>(hn::Combine(d, load(half, bytes + 8), load(half, bytes)), 4);
    } else {
      return get<N>(at, N);
    }
  }
  template <size_t N> auto get(size_t at, size_t n) const {
    static_assert(N == 4);
    return ordered<N>(loadFirst(Lanes<uint8_t, 16>(), p + 3 * at, 3 * n), 0);
  }

 private:
  // highOffset: where the elements begin in the upper half.
  template <size_t N> static auto ordered(Vec<Lanes<uint8_t, 4 * N>> bytes, int8_t highOffset) {
    const Lanes<int8_t, 4 * N> d;
    auto order = hn::LoadDup128(d, std::is_signed_v<T> ? kSigned24 : kUnsigned24);
    if constexpr (N == 8) {
      const auto offset = hn::ConcatUpperLower(d, hn::Set(d, highOffset), hn::Zero(d));
      order = hn::IfThenElse(order < hn::Zero(d), order, order + offset);
    }
    const auto lanes = as<T>(hn::TableLookupBytesOr0(bytes, as<uint8_t>(order)));
    if constexpr (std::is_signed_v<T>) return hn::ShiftRight<8>(lanes);
    else return lanes;
  }
};

// Takes lanes that fit 24 bits.
template <class T> struct To24 {
  using Lane = T;
  uint8_t* p;

  template <size_t N> static constexpr size_t misaligned() { return 0; }
  template <size_t N, class V> void put(V v, size_t at) const {
    uint8_t* bytes = p + 3 * at;
    const auto packed = packedBlocks(v);
    if constexpr (N == 16) {
      alignas(64) static constexpr int32_t kDense[16] = {0, 1, 2, 4, 5, 6, 8, 9, 10, 12, 13, 14, 15, 15, 15, 15};
      const Lanes<int32_t, N> d32;
      const auto dense = hn::TableLookupLanes(as<int32_t>(packed), hn::SetTableIndices(d32, kDense));
      hn::BlendedStore(dense, hn::FirstN(d32, 12), d32, reinterpret_cast<int32_t*>(bytes));
    } else if constexpr (N == 8) {
      const Lanes<uint8_t, 16> half;
      store(hn::LowerHalf(half, packed), half, bytes);  // four bytes too far, which the next store mends
      storeFirst(hn::UpperHalf(half, packed), half, bytes + 12, 12);
    } else {
      put<N>(v, at, N);
    }
  }
  template <size_t N, class V> void put(V v, size_t at, size_t n) const {
    static_assert(N == 4);
    storeFirst(packedBlocks(v), Lanes<uint8_t, 16>(), p + 3 * at, 3 * n);
  }

 private:
  template <class V> static auto packedBlocks(V v) {
    const auto bytes = as<int8_t>(v);
    return as<uint8_t>(hn::TableLookupBytesOr0(bytes, hn::LoadDup128(TagOf<decltype(bytes)>(), kPacked24)));
  }
};

}  // namespace qvx
