// How a program without the library makes its signals.
#pragma once

#include <cmath>
#include <memory>
#include <random>
#include <type_traits>
#include <vector>

namespace plain {

// The standard library's generator and a scaled store.
template <class T> struct Twister {
  mutable std::mt19937 source;
  void operator()(T* dst, int n, auto...) const {
    const auto low = static_cast<float>(std::is_integral_v<T> ? -1000 : -1);
    for (int i = 0; i < n; ++i) dst[i] = static_cast<T>(low + static_cast<float>(source()) * (-low * 0x1p-31F));
  }
};
template <class T> struct NormalTwister {
  mutable std::mt19937 source;
  mutable std::normal_distribution<double> normal{0, std::is_integral_v<T> ? 1000 : 1};
  void operator()(T* dst, int n, auto...) const {
    for (int i = 0; i < n; ++i) dst[i] = static_cast<T>(normal(source));
  }
};

// The recurrence of our own noise alone, one number after the other: what no way around it can beat.
struct BorrowChain {
  template <class T> void operator()(T* dst, int n, auto...) const {
    uint32_t a = 1, b = 2, c = 3, borrow = 0;
    const auto next = [&](uint32_t x, uint32_t y) {
      const uint32_t t = x - y + borrow;
      borrow = static_cast<uint32_t>(static_cast<int32_t>(t) >> 31);
      return t - (borrow & 18);
    };
    for (int i = 0; i + 3 <= n; i += 3) {
      c = next(b, c);
      b = next(a, b);
      a = next(c, a);
      __asm__ volatile("" : "+r"(a), "+r"(b), "+r"(c));
    }
    dst[0] = static_cast<T>(a);
  }
};

template <class T> struct Fill {
  void operator()(T* dst, int n, auto...) const {
    for (int i = 0; i < n; ++i) dst[i] = T(0.75);
  }
};

// Shared, since a contender is copied for every repetition.
template <class T> struct WindowTable {
  std::shared_ptr<std::vector<T>> weights = std::make_shared<std::vector<T>>();
  template <class X> void operator()(X* x, int n, auto...) const {
    if (weights->size() != static_cast<size_t>(n)) {
      weights->resize(static_cast<size_t>(n));
      for (int i = 0; i < n; ++i)
        (*weights)[static_cast<size_t>(i)] = static_cast<T>(0.5 - 0.5 * std::cos(6.283185307179586 * i / (n - 1)));
    }
    const T* const w = weights->data();
    for (int i = 0; i < n; ++i) x[i] = static_cast<X>(static_cast<T>(x[i]) * w[i]);
  }
};

inline double besselI0(double x) {
  double sum = 1, term = 1;
  for (int k = 1; term > sum * 1e-9; ++k) {
    term *= x * x / (4.0 * k * k);
    sum += term;
  }
  return sum;
}
template <class T> struct KaiserSeries {
  void operator()(T* x, int n, auto...) const {
    const double beta = 8, norm = 1 / besselI0(beta);
    for (int i = 0; i < n; ++i) {
      const double u = 2.0 * i / (n - 1) - 1;
      x[i] *= static_cast<T>(besselI0(beta * std::sqrt(1 - u * u)) * norm);
    }
  }
};

}  // namespace plain
