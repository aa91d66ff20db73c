// Loads and stores: of whole vectors, of the first lanes, of lanes at addresses of their own.
#pragma once

#include <cstring>

#include "frame/vectors.h"

namespace qvx {

template <class D> Vec<D> load(D d, const hn::TFromD<D>* p) { return hn::LoadU(d, p); }

template <class D> void store(Vec<D> v, D d, hn::TFromD<D>* p) { hn::StoreU(v, d, p); }

namespace detail {

// The first `bytes` (0 to 16) bytes at p, zeros after them: two overlapping loads of the largest width that fits, since a
// round trip through the stack costs a failed store forwarding (about 4 ns).
inline __m128i loadBytes(const uint8_t* p, size_t bytes) {
  const auto at = [p](size_t offset, auto word) { return std::memcpy(&word, p + offset, sizeof(word)), word; };
  uint64_t low = 0;
  uint64_t high = 0;
  if (bytes >= 8) {
    low = at(0, uint64_t{});
    const size_t half = 4 * (16 - bytes);  // shifted twice, because bytes == 8 needs a shift by 64
    high = at(bytes - 8, uint64_t{}) >> half >> half;
  } else if (bytes >= 4) {
    low = at(0, uint32_t{}) | uint64_t{at(bytes - 4, uint32_t{})} << (8 * (bytes - 4));
  } else if (bytes >= 2) {
    low = at(0, uint16_t{}) | uint64_t{at(bytes - 2, uint16_t{})} << (8 * (bytes - 2));
  } else if (bytes == 1) {
    low = *p;
  }
  return _mm_set_epi64x(static_cast<int64_t>(high), static_cast<int64_t>(low));
}

inline void storeBytes(__m128i v, uint8_t* p, size_t bytes) {
  const auto put = [p](size_t offset, auto word) { std::memcpy(p + offset, &word, sizeof(word)); };
  const auto low = static_cast<uint64_t>(_mm_cvtsi128_si64(v));
  if (bytes >= 8) {
    const auto high = static_cast<uint64_t>(_mm_cvtsi128_si64(_mm_unpackhi_epi64(v, v)));
    const size_t half = 4 * (bytes - 8);
    put(0, low);
    put(bytes - 8, (low >> half >> half) | (bytes == 8 ? 0 : high << (8 * (16 - bytes))));
  } else if (bytes >= 4) {
    put(0, static_cast<uint32_t>(low));
    put(bytes - 4, static_cast<uint32_t>(low >> (8 * (bytes - 4))));
  } else if (bytes >= 2) {
    put(0, static_cast<uint16_t>(low));
    put(bytes - 2, static_cast<uint16_t>(low >> (8 * (bytes - 2))));
  } else if (bytes == 1) {
    *p = static_cast<uint8_t>(low);
  }
}

// Loads part of a register without a mask: by halves down to 16 bytes, and these by words.
template <size_t kBytes> auto loadPieces(const uint8_t* p, size_t bytes) {
  const Lanes<uint8_t, kBytes> d;
  if constexpr (kBytes <= 16) {
    return Vec<decltype(d)>{loadBytes(p, bytes)};
  } else {
    constexpr size_t kHalf = kBytes / 2;
    if (bytes < kHalf) return hn::ZeroExtendVector(d, loadPieces<kHalf>(p, bytes));
    return hn::Combine(d, loadPieces<kHalf>(p + kHalf, bytes - kHalf), load(Lanes<uint8_t, kHalf>(), p));
  }
}
template <size_t kBytes> void storePieces(Vec<Lanes<uint8_t, kBytes>> v, uint8_t* p, size_t bytes) {
  if constexpr (kBytes <= 16) {
    storeBytes(v.raw, p, bytes);
  } else {
    constexpr size_t kHalf = kBytes / 2;
    const Lanes<uint8_t, kHalf> half;
    if (bytes < kHalf) return storePieces<kHalf>(hn::LowerHalf(half, v), p, bytes);
    store(hn::LowerHalf(half, v), half, p);
    storePieces<kHalf>(hn::UpperHalf(half, v), p + kHalf, bytes - kHalf);
  }
}

// Whether masks select what is loaded or stored.
template <class T, size_t kBytes> inline constexpr bool kMasked = kHasMasks || (kBytes == 32 && sizeof(T) >= 4);

// Lanes that a mask leaves out do not fault, but the processor takes 150 ns to find that out where their page is not mapped or
// was never touched, 8 ns where it is. Pieces take 2 to 4 ns; they are inlined, because a call would give each kernel a stack
// frame.
template <size_t kBytes> bool reachesNextPage(const void* p) {
  constexpr uintptr_t kPage = 4096;
  return reinterpret_cast<uintptr_t>(p) % kPage > kPage - kBytes;
}

}  // namespace detail

// The first n lanes (0 to all) from memory, the rest zero. Nothing past them is read.
template <class D> Vec<D> loadFirst(D d, const hn::TFromD<D>* p, size_t n) {
  using T = hn::TFromD<D>;
  constexpr size_t kBytes = hn::MaxLanes(D()) * sizeof(T);
  const auto* bytes = reinterpret_cast<const uint8_t*>(p);
  if constexpr (detail::kMasked<T, kBytes>) {
    if (!detail::reachesNextPage<kBytes>(p)) [[likely]]
      return hn::MaskedLoad(hn::FirstN(d, n), d, p);
  }
  return hn::BitCast(d, detail::loadPieces<kBytes>(bytes, n * sizeof(T)));
}

// The first n lanes (0 to all) from memory, the rest a value of the caller's choice.
template <class D> Vec<D> loadFirstOr(D d, const hn::TFromD<D>* p, size_t n, hn::TFromD<D> padding) {
  return hn::IfThenElse(hn::FirstN(d, n), loadFirst(d, p, n), hn::Set(d, padding));
}

// Stores the first n lanes (0 to all). Nothing past them is written.
template <class D> void storeFirst(Vec<D> v, D d, hn::TFromD<D>* p, size_t n) {
  using T = hn::TFromD<D>;
  constexpr size_t kBytes = hn::MaxLanes(D()) * sizeof(T);
  auto* bytes = reinterpret_cast<uint8_t*>(p);
  const Lanes<uint8_t, kBytes> untyped;
  if constexpr (detail::kMasked<T, kBytes>) {
    if (!detail::reachesNextPage<kBytes>(p)) [[likely]]
      return hn::BlendedStore(v, hn::FirstN(d, n), d, p);
  }
  detail::storePieces<kBytes>(hn::BitCast(untyped, v), bytes, n * sizeof(T));
}

// Orders streamed stores before all later ones.
inline void storeFence() { _mm_sfence(); }

// Whether each lane can be loaded from its own address: the 32 bits at p + 2 * at[i] bytes.
inline constexpr bool kGathers = QVXS_AVX2;
template <class V> V loadEach(const uint16_t* p, V at) {
  return hn::GatherOffset(TagOf<V>(), reinterpret_cast<const int32_t*>(p), at + at);
}

}  // namespace qvx
