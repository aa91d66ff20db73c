#include "convolution/transpose.h"

#include "convert/interleave.h"

namespace qvx::convolution {

namespace {

template <class T> struct Matrix {
  const T* src;
  size_t srcStride;
  T* dst;
  size_t dstStride;

  Matrix from(size_t row, size_t column) const {
    return {src + row * srcStride + column, srcStride, dst + column * dstStride + row, dstStride};
  }
  void some(size_t rows, size_t columns) const {
    for (size_t c = 0; c < columns; ++c) {
      for (size_t r = 0; r < rows; ++r) dst[c * dstStride + r] = src[r * srcStride + c];
    }
  }
};

// f(i) for vectors of n elements, of which the last begins early enough to be whole; false if there is none.
template <size_t N, class F> bool forEachWhole(size_t n, F f) {
  if (n < N) return false;
  for (size_t i = 0; i + N < n; i += N) f(i);
  f(n - N);
  return true;
}

// ---- 2, 4 and 8 columns that are whole rows, and as many rows that are whole columns: whole vectors only. Moving the lowest bit
// of each element's index to the highest place, once for each bit of the number of columns, leaves a vector for each column.
template <size_t K, class T, size_t N> using Group = Vec<Lanes<T, N>>[K];

// f(N) for the widest vectors that n elements fill; false if they fill none.
template <class T, size_t N = kVectorBytes / sizeof(T), class F> bool byWidest(size_t n, F f) {
  if (n >= N) return f(std::integral_constant<size_t, N>());
  if constexpr (N * sizeof(T) > 16) return byWidest<T, N / 2>(n, f);
  return false;
}

template <size_t K, class V> [[gnu::always_inline]] inline void split(V (&v)[K]) {
#pragma GCC unroll 3
  for (size_t bits = 1; bits < K; bits *= 2) {
    V to[K];
#pragma GCC unroll 4
    for (size_t i = 0; i < K / 2; ++i) {
      const auto both = deinterleaved(Pair<V>{v[2 * i], v[2 * i + 1]});
      to[i] = both.lo;
      to[i + K / 2] = both.hi;
    }
#pragma GCC unroll 8
    for (size_t i = 0; i < K; ++i) v[i] = to[i];
  }
}
template <size_t K, class V> [[gnu::always_inline]] inline void join(V (&v)[K]) {
#pragma GCC unroll 3
  for (size_t bits = 1; bits < K; bits *= 2) {
    V to[K];
#pragma GCC unroll 4
    for (size_t i = 0; i < K / 2; ++i) {
      const auto both = interleaved(Pair<V>{v[i], v[i + K / 2]});
      to[2 * i] = both.lo;
      to[2 * i + 1] = both.hi;
    }
#pragma GCC unroll 8
    for (size_t i = 0; i < K; ++i) v[i] = to[i];
  }
}
template <size_t K, size_t N, class T> bool split(const Matrix<T>& m, size_t rows) {
  constexpr Lanes<T, N> d;
  return forEachWhole<N>(rows, [&](size_t r) {
    Group<K, T, N> v;
#pragma GCC unroll 8
    for (size_t i = 0; i < K; ++i) v[i] = load(d, m.src + K * r + i * N);
    split(v);
#pragma GCC unroll 8
    for (size_t i = 0; i < K; ++i) store(v[i], d, m.dst + i * m.dstStride + r);
  });
}
template <size_t K, size_t N, class T> bool join(const Matrix<T>& m, size_t columns) {
  constexpr Lanes<T, N> d;
  return forEachWhole<N>(columns, [&](size_t c) {
    Group<K, T, N> v;
#pragma GCC unroll 8
    for (size_t i = 0; i < K; ++i) v[i] = load(d, m.src + i * m.srcStride + c);
    join(v);
#pragma GCC unroll 8
    for (size_t i = 0; i < K; ++i) store(v[i], d, m.dst + K * c + i * N);
  });
}
template <size_t N, class T> bool splitThree(const Matrix<T>& m, size_t rows) {
  constexpr Lanes<T, N> d;
  return forEachWhole<N>(rows, [&](size_t r) {
    Group<3, T, N> v;
    hn::LoadInterleaved3(d, m.src + 3 * r, v[0], v[1], v[2]);
    for (size_t i = 0; i < 3; ++i) store(v[i], d, m.dst + i * m.dstStride + r);
  });
}
template <size_t N, class T> bool joinThree(const Matrix<T>& m, size_t columns) {
  constexpr Lanes<T, N> d;
  return forEachWhole<N>(columns, [&](size_t c) {
    const auto row = [&](size_t i) { return load(d, m.src + i * m.srcStride + c); };
    hn::StoreInterleaved3(row(0), row(1), row(2), d, m.dst + 3 * c);
  });
}
template <class T> bool wholeVectors(const Matrix<T>& m, size_t rows, size_t columns) {
  if (m.srcStride == columns) {
    if (columns == 2) return byWidest<T>(rows, [&](auto n) { return split<2, n()>(m, rows); });
    if (columns == 4) return byWidest<T>(rows, [&](auto n) { return split<4, n()>(m, rows); });
    if (columns == 8) return byWidest<T>(rows, [&](auto n) { return split<8, n()>(m, rows); });
    if (columns == 3) return byWidest<T>(rows, [&](auto n) { return splitThree<n()>(m, rows); });
  }
  if (m.dstStride == rows) {
    if (rows == 2) return byWidest<T>(columns, [&](auto n) { return join<2, n()>(m, columns); });
    if (rows == 4) return byWidest<T>(columns, [&](auto n) { return join<4, n()>(m, columns); });
    if (rows == 8) return byWidest<T>(columns, [&](auto n) { return join<8, n()>(m, columns); });
    if (rows == 3) return byWidest<T>(columns, [&](auto n) { return joinThree<n()>(m, columns); });
  }
  return false;
}

// ---- any other shape: tiles of as many rows or columns as a 128-bit register has elements, by twice as many of the others where
// registers are wider

template <class T> inline constexpr size_t kSide = 16 / sizeof(T);
template <class T> inline constexpr size_t kLong = std::min<size_t>(kVectorBytes, 32) / sizeof(T);

template <class T> void tall(const Matrix<T>& m) {
  constexpr size_t N = kSide<T>;
  constexpr Lanes<T, N> block;
  constexpr Lanes<T, kLong<T>> d;
  Vec<Lanes<T, kLong<T>>> v[N];
#pragma GCC unroll 8
  for (size_t i = 0; i < N; ++i) {
    const auto first = load(block, m.src + i * m.srcStride);
    if constexpr (kLong<T> == N) v[i] = first;
    else v[i] = hn::Combine(d, load(block, m.src + (N + i) * m.srcStride), first);
  }
  shuffle<std::countr_zero(N)>(v);
#pragma GCC unroll 8
  for (size_t i = 0; i < N; ++i) store(v[i], d, m.dst + i * m.dstStride);
}
template <class T> void wide(const Matrix<T>& m) {
  constexpr size_t N = kSide<T>;
  constexpr Lanes<T, N> block;
  constexpr Lanes<T, kLong<T>> d;
  Vec<Lanes<T, kLong<T>>> v[N];
#pragma GCC unroll 8
  for (size_t i = 0; i < N; ++i) v[i] = load(d, m.src + i * m.srcStride);
  shuffle<std::countr_zero(N)>(v);
#pragma GCC unroll 8
  for (size_t i = 0; i < N; ++i) {
    if constexpr (kLong<T> == N) {
      store(v[i], d, m.dst + i * m.dstStride);
    } else {
      store(hn::LowerHalf(block, v[i]), block, m.dst + i * m.dstStride);
      store(hn::UpperHalf(block, v[i]), block, m.dst + (N + i) * m.dstStride);
    }
  }
}

template <class T> void run(const Matrix<T>& m, size_t rows, size_t columns) {
  constexpr size_t N = kSide<T>;
  constexpr size_t L = kLong<T>;
  if (wholeVectors(m, rows, columns)) return;
  if (columns >= L && rows >= N) {
    forEachWhole<L>(columns, [&](size_t c) { forEachWhole<N>(rows, [&](size_t r) { wide(m.from(r, c)); }); });
  } else if (rows >= L && columns >= N) {
    forEachWhole<N>(columns, [&](size_t c) { forEachWhole<L>(rows, [&](size_t r) { tall(m.from(r, c)); }); });
  } else {
    m.some(rows, columns);
  }
}

}  // namespace

void transpose(const uint16_t* src, size_t srcStride, size_t rows, size_t columns, uint16_t* dst, size_t dstStride) {
  run(Matrix<uint16_t>{src, srcStride, dst, dstStride}, rows, columns);
}
void transpose(const uint32_t* src, size_t srcStride, size_t rows, size_t columns, uint32_t* dst, size_t dstStride) {
  run(Matrix<uint32_t>{src, srcStride, dst, dstStride}, rows, columns);
}
void transpose(const uint64_t* src, size_t srcStride, size_t rows, size_t columns, uint64_t* dst, size_t dstStride) {
  run(Matrix<uint64_t>{src, srcStride, dst, dstStride}, rows, columns);
}
void transpose(const Qvx64fc* src, size_t srcStride, size_t rows, size_t columns, Qvx64fc* dst, size_t dstStride) {
  Matrix<Qvx64fc>{src, srcStride, dst, dstStride}.some(rows, columns);
}

}  // namespace qvx::convolution
