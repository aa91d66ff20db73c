// Vectors: the variant's instructions, the types of vectors and what holds several, the same bits in other lanes.
#pragma once

#include <hwy/highway.h>

#include <cstddef>
#include <cstdint>
#include <type_traits>

// The variant's instructions, for the preprocessor.
#define QVXS_AVX512 (HWY_TARGET == HWY_AVX3)
#define QVXS_AVX2 (HWY_TARGET <= HWY_AVX2)  // or more

namespace qvx {

namespace hn = hwy::HWY_NAMESPACE;

// Highway falls back to a lower target without a word if a flag is missing: then the variant would be one in name only.
static_assert(HWY_TARGET == QVXS_EXPECTED_TARGET, "the compiler's flags do not give this variant its instruction set");
inline constexpr bool kHasMasks = QVXS_AVX512;
inline constexpr bool kFuses = HWY_NATIVE_FMA;  // multiplication and addition with one rounding

inline constexpr size_t kVectorBytes = HWY_LANES(uint8_t);

template <class T, size_t N> using Lanes = hn::FixedTag<T, N>;
template <class D> using Vec = hn::Vec<D>;
template <class V> using TagOf = hn::DFromV<V>;
template <class V> using LaneOf = hn::TFromV<V>;
template <class V> inline constexpr size_t kLanesOf = hn::MaxLanes(TagOf<V>());

// A vector of the same bits.
template <class T, class V> auto as(V v) { return hn::BitCast(hn::Repartition<T, TagOf<V>>(), v); }

template <class V> V same(LaneOf<V> value) { return hn::Set(TagOf<V>(), value); }

// Keeps v in a register. Compilers load an operand again for each use; with two uses of two sources, those loads bound the loop
// (16-bit scaled sums take 0.8 of the time with it).
template <class V> V held(V v) {
  __asm__("" : "+v"(v.raw));
  return v;
}

// Two vectors: one with its lanes widened, or neighbours in memory.
template <class V> struct Pair {
  V lo;
  V hi;
};

// The real and the imaginary parts of complex elements.
template <class V> struct Complex {
  V re;
  V im;
};

namespace detail {

#if QVXS_AVX2
constexpr int kNearest = _MM_FROUND_TO_NEAREST_INT | _MM_FROUND_NO_EXC;
#endif
#if QVXS_AVX512
// Instructions that take a rounding mode or a table of two registers exist for the widest register, or are as fast there.
// Narrower vectors go through it, which costs nothing: the results of the upper lanes are dropped.
inline __m512 whole(__m128 v) { return _mm512_castps128_ps512(v); }
inline __m512 whole(__m256 v) { return _mm512_castps256_ps512(v); }
inline __m512 whole(__m512 v) { return v; }
inline __m512d whole(__m128d v) { return _mm512_castpd128_pd512(v); }
inline __m512d whole(__m256d v) { return _mm512_castpd256_pd512(v); }
inline __m512d whole(__m512d v) { return v; }
inline __m512i whole(__m128i v) { return _mm512_castsi128_si512(v); }
inline __m512i whole(__m256i v) { return _mm512_castsi256_si512(v); }
inline __m512i whole(__m512i v) { return v; }

// Hides from GCC that a vector is part of a wider one: it would merge the extraction with a masked store into one instruction,
// which faults on lanes that are not stored.
template <class R> void hideOrigin(R& part) { __asm__("" : "+v"(part)); }
inline void partOf(__m512 v, __m128& part) {
  part = _mm512_castps512_ps128(v);
  hideOrigin(part);
}
inline void partOf(__m512 v, __m256& part) {
  part = _mm512_castps512_ps256(v);
  hideOrigin(part);
}
inline void partOf(__m512 v, __m512& part) { part = v; }
inline void partOf(__m512d v, __m128d& part) {
  part = _mm512_castpd512_pd128(v);
  hideOrigin(part);
}
inline void partOf(__m512d v, __m256d& part) {
  part = _mm512_castpd512_pd256(v);
  hideOrigin(part);
}
inline void partOf(__m512d v, __m512d& part) { part = v; }
inline void partOf(__m256 v, __m128& part) {
  part = _mm256_castps256_ps128(v);
  hideOrigin(part);
}
inline void partOf(__m256 v, __m256& part) { part = v; }
#endif

}  // namespace detail

}  // namespace qvx
