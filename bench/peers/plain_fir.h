// A filter as one writes it without a library: old samples and new ones in a buffer, one sum for each output.
#pragma once

#include <algorithm>
#include <cstdint>
#include <vector>

#include "frame/vectors.h"

namespace plain {

// The last taps - 1 samples, followed by n new ones; zeros where the data is new.
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

// A polyphase filter as one writes it: for each output of a period its list of taps, and where its samples begin.
struct Ratio {
  int up;
  int down;
  int taps;  // of a list
  std::vector<int> start;

  Ratio(int up_, int down_, int tapsLen) : up(up_), down(down_), taps((tapsLen + up_ - 1) / up_) {
    for (int j = 0; j < up; ++j) start.push_back(j * down / up);
  }
  template <class T> std::vector<T> lists(const std::vector<T>& h) const {
    std::vector<T> all(static_cast<size_t>(up) * static_cast<size_t>(taps));
    for (int j = 0; j < up; ++j) {
      for (int k = 0; k < taps; ++k) {
        const auto from = static_cast<size_t>(j * down % up + up * (taps - 1 - k));
        if (from < h.size()) all[static_cast<size_t>(j * taps + k)] = h[from];
      }
    }
    return all;
  }
};
template <class T> void polyphase(const T* x, const T* lists, const Ratio& q, T* y, int periods) {
  for (int i = 0; i < periods; ++i, x += q.down) {
    for (int j = 0; j < q.up; ++j) filter(x + q.start[static_cast<size_t>(j)], lists + j * q.taps, q.taps, y++, 1);
  }
}

}  // namespace plain
