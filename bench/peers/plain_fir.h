// A filter as it is written where there is no library: old samples and new ones in a buffer, one sum for each output.
#pragma once

#include <algorithm>
#include <cstdint>
#include <vector>

#include "frame/vectors.h"

namespace plain {

// Before the first of n new samples, the last taps - 1; all zero where the data is new.
template <class T> class History {
 public:
  explicit History(size_t taps) : old_(taps - 1) {}

  const T* with(const T* src, int n) {
    buffer_.resize(old_ + static_cast<size_t>(n));
    if (seen_ != bench::freshData) std::fill_n(buffer_.begin(), old_, T{});
    seen_ = bench::freshData;
    std::copy_n(src, n, buffer_.begin() + static_cast<ptrdiff_t>(old_));
    return buffer_.data();
  }
  void keep(int n) { std::copy_n(buffer_.begin() + n, old_, buffer_.begin()); }

 private:
  size_t old_;
  std::vector<T> buffer_;
  int seen_ = -1;
};

template <class T> struct Multiply {
  T operator()(T sum, T x, T p) const { return sum + x * p; }
};
template <class T>
requires requires(T v) { v.re; }
struct Multiply<T> {
  T operator()(T sum, T x, T p) const { return {sum.re + (x.re * p.re - x.im * p.im), sum.im + (x.re * p.im + x.im * p.re)}; }
};

template <class T> void filter(const T* x, const T* p, int taps, T* y, int n) {
  for (int i = 0; i < n; ++i) {
    T sum{};
    for (int k = 0; k < taps; ++k) sum = Multiply<T>()(sum, x[i + k], p[k]);
    y[i] = sum;
  }
}
inline void filter(const int16_t* x, const int16_t* p, int taps, int16_t* y, int n) {
  for (int i = 0; i < n; ++i) {
    int32_t sum = 0;
    for (int k = 0; k < taps; ++k) sum += x[i + k] * p[k];
    sum = (sum + 0x3FFF + (sum >> 15 & 1)) >> 15;
    y[i] = static_cast<int16_t>(std::clamp(sum, -32768, 32767));
  }
}

}  // namespace plain
