#include "convolution/transpose.h"

#include "convert/interleave.h"

namespace qvx::convolution {

namespace {

template <class T> struct Matrix {
  const T* src;
  size_t srcStride;
  T* dst;
  size_t dstStride;

  void one(size_t r, size_t c) const { dst[c * dstStride + r] = src[r * srcStride + c]; }
  void some(size_t fromRow, size_t toRow, size_t fromColumn, size_t toColumn) const {
    for (size_t c = fromColumn; c < toColumn; ++c) {
      for (size_t r = fromRow; r < toRow; ++r) one(r, c);
    }
  }
};

// Two columns that follow each other, and two rows whose columns do.
template <class T> size_t split(const Matrix<T>& m, size_t rows) {
  constexpr size_t N = kVectorBytes / sizeof(T);
  constexpr Lanes<T, N> d;
  size_t r = 0;
  for (; r + N <= rows; r += N) {
    const auto both = deinterleaved(Pair<Vec<Lanes<T, N>>>{load(d, m.src + 2 * r), load(d, m.src + 2 * r + N)});
    store(both.lo, d, m.dst + r);
    store(both.hi, d, m.dst + m.dstStride + r);
  }
  return r;
}
template <class T> size_t join(const Matrix<T>& m, size_t columns) {
  constexpr size_t N = kVectorBytes / sizeof(T);
  constexpr Lanes<T, N> d;
  size_t c = 0;
  for (; c + N <= columns; c += N) {
    const auto both = interleaved(Pair<Vec<Lanes<T, N>>>{load(d, m.src + c), load(d, m.src + m.srcStride + c)});
    store(both.lo, d, m.dst + 2 * c);
    store(both.hi, d, m.dst + 2 * c + N);
  }
  return c;
}

// Square tiles of a 128-bit register.
template <class T> void run(const Matrix<T>& m, size_t rows, size_t columns) {
  if (columns == 2 && m.srcStride == 2) return m.some(split(m, rows), rows, 0, 2);
  if (rows == 2 && m.dstStride == 2) return m.some(0, 2, join(m, columns), columns);
  constexpr size_t N = 16 / sizeof(T);
  constexpr Lanes<T, N> d;
  const size_t wholeRows = rows / N * N;
  const size_t wholeColumns = columns / N * N;
  for (size_t c = 0; c < wholeColumns; c += N) {
    for (size_t r = 0; r < wholeRows; r += N) {
      Vec<Lanes<T, N>> v[N];
#pragma GCC unroll 8
      for (size_t i = 0; i < N; ++i) v[i] = load(d, m.src + (r + i) * m.srcStride + c);
      shuffle<std::countr_zero(N)>(v);
#pragma GCC unroll 8
      for (size_t i = 0; i < N; ++i) store(v[i], d, m.dst + (c + i) * m.dstStride + r);
    }
  }
  m.some(wholeRows, rows, 0, wholeColumns);
  m.some(0, rows, wholeColumns, columns);
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
  Matrix<Qvx64fc>{src, srcStride, dst, dstStride}.some(0, rows, 0, columns);
}

}  // namespace qvx::convolution
