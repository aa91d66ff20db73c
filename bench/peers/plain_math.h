// Functions of one element for the plain loops.
#pragma once

#include <cmath>
#include <complex>

#include "peers/plain_loop.h"

namespace plain {

// kFunction(elements..., scalars...)
template <auto kFunction> struct Each {
  static constexpr bool kAccumulates = false;
  template <class D, class... E, class Run, class... X> static void dispatch(const Run& loop, X... scalars) {
    loop([=](auto... e) { return static_cast<D>(kFunction(e..., scalars...)); });
  }
};

inline constexpr auto squareRoot = [](auto x) { return std::sqrt(x); };

// Each element as a complex number of the standard library.
inline constexpr auto complexRoot = [](auto z) {
  const auto root = std::sqrt(std::complex(z.re, z.im));
  return decltype(z){root.real(), root.imag()};
};
inline constexpr auto absolute = [](auto x) {
  using T = decltype(x);
  if constexpr (std::is_floating_point_v<T>) return std::abs(x);
  else return x == std::numeric_limits<T>::min() ? std::numeric_limits<T>::max() : static_cast<T>(x < 0 ? -x : x);
};

// An operation of two elements on one and itself.
template <class Op> struct WithItself {
  static constexpr bool kAccumulates = false;
  template <class D, class E, class L, class... X> static void dispatch(const L& loop, X... scalars) {
    Op::template dispatch<D, E, E>([&](auto kernel) { loop([kernel](E e) { return kernel(e, e); }); }, scalars...);
  }
};

// A function of one real, times 2^-s, to an integer. kScalar: one element at a time, as where the function is a call.
template <auto kFunction, class Real, bool kScalar = false> struct RoundedFunction {
  static constexpr bool kAccumulates = false;
  template <class D, class E, class L> static void dispatch(const L& loop, int s) {
    const Real factor = powerOfTwo<Real>(-s);
    using Limits = std::numeric_limits<Part<D>>;
    const auto limited = [](Real v) {
      const Real whole = std::nearbyint(v);
      if (whole >= static_cast<Real>(Limits::max())) return Limits::max();
      return whole > static_cast<Real>(Limits::min()) ? static_cast<Part<D>>(whole) : Limits::min();
    };
    loop([=](E x) {
      if constexpr (kScalar) __asm__ volatile("");
      if constexpr (kIsComplex<E>) {
        const auto y = kFunction(std::complex<Real>(x.re, x.im));
        return D{limited(y.real() * factor), limited(y.imag() * factor)};
      } else {
        return limited(kFunction(static_cast<Real>(x)) * factor);
      }
    });
  }
};
inline constexpr auto rootOrZero = [](auto x) {
  if constexpr (std::is_floating_point_v<decltype(x)>) return std::sqrt(x > 0 ? x : 0);
  else return std::sqrt(x);
};

// Tries one bit of the result after another.
inline constexpr auto bitTrials = [](const int64_t* src, int64_t* dst, int n, int s) {
  for (int i = 0; i < n; ++i) {
    const auto x = static_cast<unsigned __int128>(src[i] > 0 ? src[i] : 0);
    uint64_t root = 0;
    for (int bit = 31 - s; bit >= 0; --bit) {
      const uint64_t trial = root | uint64_t{1} << bit;
      if (static_cast<unsigned __int128>(trial) * trial <= x << (-2 * s)) root = trial;
    }
    dst[i] = static_cast<int64_t>(root);
  }
};

}  // namespace plain
