// Copy, move, zero and set. Vectors are handled as bytes; only set needs the element's width.
#include <bit>
#include <cstring>

#include "frame/map.h"
#include "frame/processor.h"
#include "frame/stream.h"

using namespace qvx;

namespace {

struct Same {
  template <class V> V operator()(V v) const { return v; }
};

// Lengths from which the C library is called. Its copies are as fast as AVX-512 from 32 KiB on (1.8 times as slow at 4 KiB); by
// string instructions they are faster than AVX2 from 8 KiB on (16 KiB: 0.85 of the time) and than SSE from 2 KiB on (4 KiB:
// 0.45). Its fills are faster from 1 MiB on (0.8 of the loop's time at 4 MiB, 1.5 times at 256 KiB); of bytes, with SSE, from 2
// KiB on.
constexpr size_t kLibraryCopies = size_t{kHasMasks ? 32 : QVXS_AVX2 ? 8 : 2} << 10;
template <class T> constexpr size_t kLibraryFills = sizeof(T) == 1 && !QVXS_AVX2 ? size_t{2} << 10 : size_t{1} << 20;

// Up to two registers of N bytes, or of fewer where those do not fit: both are loaded before either is stored, the second counted
// from the end. Inlined into the exported functions, in the order of the tests: a taken jump costs 0.3 ns, and 16 bytes took five
// more of them.
template <size_t N> [[gnu::always_inline]] inline QvxStatus copyUpTo(const uint8_t* src, uint8_t* dst, size_t bytes) {
  if constexpr (N > 1) {
    if (__builtin_expect_with_probability(bytes < N, N < kVectorBytes, 0.6)) return copyUpTo<N / 2>(src, dst, bytes);
  }
  if constexpr (N >= 16) {
    const Lanes<uint8_t, N> d;
    const auto first = load(d, src);
    const auto last = load(d, src + bytes - N);
    store(first, d, dst);
    store(last, d, dst + bytes - N);
  } else {
    hwy::UnsignedFromSize<N> first;
    hwy::UnsignedFromSize<N> last;
    std::memcpy(&first, src, N);
    std::memcpy(&last, src + bytes - N, N);
    std::memcpy(dst, &first, N);
    std::memcpy(dst + bytes - N, &last, N);
  }
  return qvxStatOk;
}

// Three to eight registers: all loads before all stores, the second half counted from the end. Saves the loop's 1 ns.
template <size_t kHalf> QvxStatus copyShort(const uint8_t* src, uint8_t* dst, size_t bytes) {
  constexpr size_t N = kVectorBytes;
  const Lanes<uint8_t, N> d;
  Vec<Lanes<uint8_t, N>> v[2 * kHalf];
  const size_t back = bytes - kHalf * N;
#pragma GCC unroll 4
  for (size_t k = 0; k < kHalf; ++k) {
    v[k] = load(d, src + k * N);
    v[kHalf + k] = load(d, src + back + k * N);
  }
#pragma GCC unroll 4
  for (size_t k = 0; k < kHalf; ++k) {
    store(v[k], d, dst + k * N);
    store(v[kHalf + k], d, dst + back + k * N);
  }
  return qvxStatOk;
}

struct Four {
  Vec<Lanes<uint8_t, kVectorBytes>> a, b, c, d;
};

// From nine registers on. Both ends are loaded before anything is stored, and the stores between them are aligned. Four at a
// time: 1 KiB takes 0.8 of the time of two at a time.
QvxStatus copyInFours(const uint8_t* src, uint8_t* dst, size_t bytes) {
  constexpr size_t N = kVectorBytes;
  const Lanes<uint8_t, N> d;
  const auto loaded = [=](size_t at) {
    return Four{load(d, src + at), load(d, src + at + N), load(d, src + at + 2 * N), load(d, src + at + 3 * N)};
  };
  const auto put = [=](Four v, size_t at) {
    store(v.a, d, dst + at);
    store(v.b, d, dst + at + N);
    store(v.c, d, dst + at + 2 * N);
    store(v.d, d, dst + at + 3 * N);
  };
  const auto first = load(d, src);
  const Four last = loaded(bytes - 4 * N);
  for (size_t i = N - reinterpret_cast<uintptr_t>(dst) % N; i + 4 * N < bytes; i += 4 * N) put(loaded(i), i);
  store(first, d, dst);
  put(last, bytes - 4 * N);
  return qvxStatOk;
}

// From kLibraryCopies on. Out of line, as the other ways of long vectors are, so that the short ones save no registers for it.
[[gnu::noinline]] QvxStatus copyFar(const uint8_t* src, uint8_t* dst, size_t bytes, bool apart) {
  if (!apart || !isStreamed(bytes)) {
    std::memmove(dst, src, bytes);
    return qvxStatOk;
  }
  // Prefetching 1 KiB ahead hides the memory's latency; the processor's own prefetch does not, beside streamed stores.
  stream(dst, bytes, [src](size_t i) {
    __builtin_prefetch(src + i + 1024);
    return load(Lanes<uint8_t, kVectorBytes>(), src + i);
  });
  return qvxStatOk;
}

// More than two registers. The source may start anywhere at or after dst: no byte is read after it was stored to. apart: they do
// not overlap.
[[gnu::flatten, gnu::noinline]] QvxStatus copyForward(const uint8_t* src, uint8_t* dst, size_t bytes, bool apart) {
  if (bytes <= 4 * kVectorBytes) return copyShort<2>(src, dst, bytes);
  if (bytes <= 8 * kVectorBytes) return copyShort<4>(src, dst, bytes);
  if (bytes < kLibraryCopies) return copyInFours(src, dst, bytes);
  return copyFar(src, dst, bytes, apart);
}

template <class T> QvxStatus copy(const T* src, T* dst, int len) {
  const QvxStatus status = check(len, src, dst);
  if (status != qvxStatOk) return status;
  const auto* from = reinterpret_cast<const uint8_t*>(src);
  auto* to = reinterpret_cast<uint8_t*>(dst);
  const size_t bytes = elements(len) * sizeof(T);
  if (bytes > 2 * kVectorBytes) [[unlikely]]
    return copyForward(from, to, bytes, true);
  return copyUpTo<kVectorBytes>(from, to, bytes);
}

// More than two registers, from anywhere.
[[gnu::noinline]] QvxStatus moveAny(const uint8_t* src, uint8_t* dst, size_t bytes) {
  const size_t ahead = static_cast<size_t>(dst - src);  // huge if dst lies before src
  const size_t back = static_cast<size_t>(src - dst);
  if (ahead >= bytes) return copyForward(src, dst, bytes, back >= bytes);
  std::memmove(dst, src, bytes);
  return qvxStatOk;
}

template <class T> QvxStatus move(const T* src, T* dst, int len) {
  const QvxStatus status = check(len, src, dst);
  if (status != qvxStatOk) return status;
  const auto* from = reinterpret_cast<const uint8_t*>(src);
  auto* to = reinterpret_cast<uint8_t*>(dst);
  const size_t bytes = elements(len) * sizeof(T);
  if (bytes > 2 * kVectorBytes) [[unlikely]]
    return moveAny(from, to, bytes);
  return copyUpTo<kVectorBytes>(from, to, bytes);
}

// The fill value as the bits of an element, so that types of one size share their code. 16 bytes are passed in a vector register:
// a struct of two words would go through the stack at every call (16 elements: 9.7 ns, not 2.1).
template <class T> struct Filling {
  using Element = hwy::UnsignedFromSize<sizeof(T)>;
  static auto of(T value) { return Constant{std::bit_cast<Element>(value)}; }
};
struct Block {
  using Lane = double;
  Vec<Lanes<double, 2>> value;

  template <size_t N> auto get(size_t) const {
    if constexpr (N == 2) return value;
    else return hn::Combine(Lanes<double, N>(), get<N / 2>(0), get<N / 2>(0));
  }
  template <size_t N> auto get(size_t at, size_t) const { return get<N>(at); }
};
template <class T>
requires(sizeof(T) == 16) struct Filling<T> {
  using Element = Qvx64fc;
  static Block of(T value) {
    const Lanes<double, 2> d;
    return {hn::OddEven(hn::Set(d, std::bit_cast<double>(value.im)), hn::Set(d, std::bit_cast<double>(value.re)))};
  }
};

// From kLibraryFills on. T: an Element of Filling.
template <class T, class Value> [[gnu::noinline]] QvxStatus fillFar(Value value, T* dst, size_t len) {
  constexpr size_t kLanes = kVectorBytes / sizeof(Part<T>);
  const size_t bytes = len * sizeof(T);
  // A streamed store is aligned, and a misaligned element would have to be rotated for it.
  if (isStreamed(bytes) && reinterpret_cast<uintptr_t>(dst) % sizeof(T) == 0) {
    stream(reinterpret_cast<uint8_t*>(dst), bytes, [value](size_t) { return as<uint8_t>(value.template get<kLanes>(0)); });
    return qvxStatOk;
  }
  if constexpr (sizeof(T) == 1) {
    std::memset(dst, value.value, bytes);
    return qvxStatOk;
  } else {
    return loop(Same(), destination(dst), len * PartsOf<T>::kCount, value);
  }
}

// 2 kHalf registers of N lanes and no loop, half of them counted from the end: 512 bytes take 2.5 ns, not 3.9.
template <size_t kHalf, size_t N, class T, class Value>
[[gnu::always_inline]] inline QvxStatus fillEnds(Value value, T* dst, size_t lanes) {
  const Lanes<T, N> d;
  const auto v = value.template get<N>(0);
#pragma GCC unroll 4
  for (size_t k = 0; k < kHalf; ++k) {
    store(v, d, dst + k * N);
    store(v, d, dst + lanes - (k + 1) * N);
  }
  return qvxStatOk;
}

// From nine registers on, within the first-level cache; beyond it, one store at a time is faster in AVX-512 (64 KiB: 279 ns, not
// 348), and on some processors.
constexpr size_t kFillsInFours = size_t{32} << 10;
template <size_t N, class T, class Value> QvxStatus fillInFours(Value value, Destination<T> dst, size_t lanes) {
  const auto v = value.template get<N>(0);
  const auto four = [=](size_t at) {
#pragma GCC unroll 4
    for (size_t k = 0; k < 4; ++k) dst.template put<N>(v, at + k * N);
  };
  dst.template put<N>(v, 0);
  const size_t misaligned = dst.template misaligned<N>();
  for (size_t i = misaligned == 0 ? N : misaligned; i + 4 * N < lanes; i += 4 * N) four(i);
  four(lanes - 4 * N);
  return qvxStatOk;
}

// More than two registers.
template <class T, class Value> [[gnu::noinline]] QvxStatus fillLong(Value value, T* dst, size_t len) {
  constexpr size_t N = kVectorBytes / sizeof(Part<T>);
  const size_t lanes = len * PartsOf<T>::kCount;
  if (lanes <= 4 * N) return fillEnds<2, N>(value, parts(dst), lanes);
  if (lanes <= 8 * N) return fillEnds<4, N>(value, parts(dst), lanes);
  if (len * sizeof(T) >= kLibraryFills<T>) [[unlikely]]
    return fillFar(value, dst, len);
  if (len * sizeof(T) <= kFillsInFours || (!kHasMasks && kStoresInFours)) [[likely]]
    return fillInFours<N>(value, destination(dst), lanes);
  return loop(Same(), destination(dst), lanes, value);
}

// As copyUpTo.
template <size_t N, class T, class Value> [[gnu::always_inline]] inline QvxStatus fillUpTo(Value value, T* dst, size_t lanes) {
  if (lanes < N) [[likely]] {
    if constexpr (N * sizeof(T) > 16) return fillUpTo<N / 2>(value, dst, lanes);
    else return loop(Same(), destination(dst), lanes, value);
  }
  return fillEnds<1, N>(value, dst, lanes);
}

template <class T, class Value> QvxStatus filled(Value value, T* dst, size_t len) {
  constexpr size_t N = kVectorBytes / sizeof(Part<T>);
  const size_t lanes = len * PartsOf<T>::kCount;
  if (lanes > 2 * N) [[unlikely]]
    return fillLong(value, dst, len);
  return fillUpTo<N>(value, parts(dst), lanes);
}

template <class T> QvxStatus fill(T val, T* dst, int len) {
  const QvxStatus status = check(len, dst);
  if (status != qvxStatOk) return status;
  return filled(Filling<T>::of(val), reinterpret_cast<typename Filling<T>::Element*>(dst), elements(len));
}

template <class T> QvxStatus zero(T* dst, int len) {
  const QvxStatus status = check(len, dst);
  if (status != qvxStatOk) return status;
  return filled(Constant{uint8_t{0}}, reinterpret_cast<uint8_t*>(dst), elements(len) * sizeof(T));
}

}  // namespace

// clang-format off
QvxStatus qvxsCopy_8u(const Qvx8u* a, Qvx8u* d, int len) { return copy(a, d, len); }
QvxStatus qvxsCopy_16s(const Qvx16s* a, Qvx16s* d, int len) { return copy(a, d, len); }
QvxStatus qvxsCopy_16sc(const Qvx16sc* a, Qvx16sc* d, int len) { return copy(a, d, len); }
QvxStatus qvxsCopy_32s(const Qvx32s* a, Qvx32s* d, int len) { return copy(a, d, len); }
QvxStatus qvxsCopy_32sc(const Qvx32sc* a, Qvx32sc* d, int len) { return copy(a, d, len); }
QvxStatus qvxsCopy_32f(const Qvx32f* a, Qvx32f* d, int len) { return copy(a, d, len); }
QvxStatus qvxsCopy_32fc(const Qvx32fc* a, Qvx32fc* d, int len) { return copy(a, d, len); }
QvxStatus qvxsCopy_64s(const Qvx64s* a, Qvx64s* d, int len) { return copy(a, d, len); }
QvxStatus qvxsCopy_64sc(const Qvx64sc* a, Qvx64sc* d, int len) { return copy(a, d, len); }
QvxStatus qvxsCopy_64f(const Qvx64f* a, Qvx64f* d, int len) { return copy(a, d, len); }
QvxStatus qvxsCopy_64fc(const Qvx64fc* a, Qvx64fc* d, int len) { return copy(a, d, len); }

QvxStatus qvxsMove_8u(const Qvx8u* a, Qvx8u* d, int len) { return move(a, d, len); }
QvxStatus qvxsMove_16s(const Qvx16s* a, Qvx16s* d, int len) { return move(a, d, len); }
QvxStatus qvxsMove_16sc(const Qvx16sc* a, Qvx16sc* d, int len) { return move(a, d, len); }
QvxStatus qvxsMove_32s(const Qvx32s* a, Qvx32s* d, int len) { return move(a, d, len); }
QvxStatus qvxsMove_32sc(const Qvx32sc* a, Qvx32sc* d, int len) { return move(a, d, len); }
QvxStatus qvxsMove_32f(const Qvx32f* a, Qvx32f* d, int len) { return move(a, d, len); }
QvxStatus qvxsMove_32fc(const Qvx32fc* a, Qvx32fc* d, int len) { return move(a, d, len); }
QvxStatus qvxsMove_64s(const Qvx64s* a, Qvx64s* d, int len) { return move(a, d, len); }
QvxStatus qvxsMove_64sc(const Qvx64sc* a, Qvx64sc* d, int len) { return move(a, d, len); }
QvxStatus qvxsMove_64f(const Qvx64f* a, Qvx64f* d, int len) { return move(a, d, len); }
QvxStatus qvxsMove_64fc(const Qvx64fc* a, Qvx64fc* d, int len) { return move(a, d, len); }

QvxStatus qvxsZero_8u(Qvx8u* d, int len) { return zero(d, len); }
QvxStatus qvxsZero_16s(Qvx16s* d, int len) { return zero(d, len); }
QvxStatus qvxsZero_16sc(Qvx16sc* d, int len) { return zero(d, len); }
QvxStatus qvxsZero_32s(Qvx32s* d, int len) { return zero(d, len); }
QvxStatus qvxsZero_32sc(Qvx32sc* d, int len) { return zero(d, len); }
QvxStatus qvxsZero_32f(Qvx32f* d, int len) { return zero(d, len); }
QvxStatus qvxsZero_32fc(Qvx32fc* d, int len) { return zero(d, len); }
QvxStatus qvxsZero_64s(Qvx64s* d, int len) { return zero(d, len); }
QvxStatus qvxsZero_64sc(Qvx64sc* d, int len) { return zero(d, len); }
QvxStatus qvxsZero_64f(Qvx64f* d, int len) { return zero(d, len); }
QvxStatus qvxsZero_64fc(Qvx64fc* d, int len) { return zero(d, len); }

QvxStatus qvxsSet_8u(Qvx8u val, Qvx8u* d, int len) { return fill(val, d, len); }
QvxStatus qvxsSet_16s(Qvx16s val, Qvx16s* d, int len) { return fill(val, d, len); }
QvxStatus qvxsSet_16sc(Qvx16sc val, Qvx16sc* d, int len) { return fill(val, d, len); }
QvxStatus qvxsSet_32s(Qvx32s val, Qvx32s* d, int len) { return fill(val, d, len); }
QvxStatus qvxsSet_32sc(Qvx32sc val, Qvx32sc* d, int len) { return fill(val, d, len); }
QvxStatus qvxsSet_32f(Qvx32f val, Qvx32f* d, int len) { return fill(val, d, len); }
QvxStatus qvxsSet_32fc(Qvx32fc val, Qvx32fc* d, int len) { return fill(val, d, len); }
QvxStatus qvxsSet_64s(Qvx64s val, Qvx64s* d, int len) { return fill(val, d, len); }
// Passed as floats, bit for bit: two integers in general registers would go through the stack after all.
QvxStatus qvxsSet_64sc(Qvx64sc val, Qvx64sc* d, int len) { return qvxsSet_64fc({std::bit_cast<Qvx64f>(val.re), std::bit_cast<Qvx64f>(val.im)}, reinterpret_cast<Qvx64fc*>(d), len); }
QvxStatus qvxsSet_64f(Qvx64f val, Qvx64f* d, int len) { return fill(val, d, len); }
QvxStatus qvxsSet_64fc(Qvx64fc val, Qvx64fc* d, int len) { return fill(val, d, len); }
// clang-format on
