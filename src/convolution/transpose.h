// Samples dealt among rows, and rows joined again.
#pragma once

#include "frame/map.h"

namespace qvx::convolution {

// dst[c * dstStride + r] = src[r * srcStride + c] for r below rows, c below columns.
void transpose(const uint16_t* src, size_t srcStride, size_t rows, size_t columns, uint16_t* dst, size_t dstStride);
void transpose(const uint32_t* src, size_t srcStride, size_t rows, size_t columns, uint32_t* dst, size_t dstStride);
void transpose(const uint64_t* src, size_t srcStride, size_t rows, size_t columns, uint64_t* dst, size_t dstStride);
void transpose(const Qvx64fc* src, size_t srcStride, size_t rows, size_t columns, Qvx64fc* dst, size_t dstStride);

template <class T> void transposeElements(const T* src, size_t srcStride, size_t rows, size_t columns, T* dst, size_t dstStride) {
  if constexpr (sizeof(T) == 16) {
    transpose(src, srcStride, rows, columns, dst, dstStride);
  } else {
    using Bits = hwy::UnsignedFromSize<sizeof(T)>;
    transpose(reinterpret_cast<const Bits*>(src), srcStride, rows, columns, reinterpret_cast<Bits*>(dst), dstStride);
  }
}

}  // namespace qvx::convolution
