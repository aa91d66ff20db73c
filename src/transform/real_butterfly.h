// Transforms of an odd number of real numbers, each a vector, to results 0 to the middle of their spectrum, and back: the others
// are conjugate. Result 0 has no imaginary part.
//
// get(k) and put(k, ..) as in odd_butterfly.h.
#pragma once

#include "transform/mirror.h"
#include "transform/odd_butterfly.h"

namespace qvx::transform {

template <size_t R, class Get, class Put> QVX_INLINE void transformReals(Get get, Put put);
template <size_t R, class Get, class Put> QVX_INLINE void transformToReals(Get get, Put put);

// Sums and differences of the numbers at equal distances from the first, by the definition.
template <size_t P, class Get, class Put> QVX_INLINE void transformRealPairs(Get get, Put put) {
  constexpr size_t H = P / 2;
  using V = std::remove_const_t<decltype(get(Index<0>()))>;
  using T = LaneOf<V>;
  const V first = get(Index<0>());
  V sums[H];
  V differences[H];
  V total = first;
  unrolled<H>([&](auto k) __attribute__((always_inline)) {
    const V a = get(Index<k + 1>());
    const V b = get(Index<P - 1 - k>());
    sums[k] = a + b;
    differences[k] = b - a;
    total = total + sums[k];
  });
  put(Index<0>(), Complex<V>{total, hn::Zero(TagOf<V>())});
  unrolled<H>([&](auto at) __attribute__((always_inline)) {
    constexpr size_t j = at + 1;
    V re = hn::MulAdd(same<V>(static_cast<T>(kOddTwiddles<P>.cosine[j])), sums[0], first);
    V im = same<V>(static_cast<T>(kOddTwiddles<P>.sine[j])) * differences[0];
    unrolled<H - 1>([&](auto i) __attribute__((always_inline)) {
      constexpr size_t k = i + 1;
      re = hn::MulAdd(same<V>(static_cast<T>(kOddTwiddles<P>.cosine[j * (k + 1) % P])), sums[k], re);
      im = hn::MulAdd(same<V>(static_cast<T>(kOddTwiddles<P>.sine[j * (k + 1) % P])), differences[k], im);
    });
    put(Index<j>(), Complex<V>{re, im});
  });
}
template <size_t P, class Get, class Put> QVX_INLINE void transformPairsToReals(Get get, Put put) {
  constexpr size_t H = P / 2;
  using Z = std::remove_const_t<decltype(get(Index<0>()))>;
  using V = decltype(Z::re);
  using T = LaneOf<V>;
  const V first = get(Index<0>()).re;
  Z z[H];  // twice
  V total = first;
  unrolled<H>([&](auto k) __attribute__((always_inline)) {
    const Z once = get(Index<k + 1>());
    z[k] = sum(once, once);
    total = total + z[k].re;
  });
  put(Index<0>(), total);
  unrolled<H>([&](auto at) __attribute__((always_inline)) {
    constexpr size_t j = at + 1;
    V even = hn::MulAdd(same<V>(static_cast<T>(kOddTwiddles<P>.cosine[j])), z[0].re, first);
    V odd = same<V>(static_cast<T>(kOddTwiddles<P>.sine[j])) * z[0].im;
    unrolled<H - 1>([&](auto i) __attribute__((always_inline)) {
      constexpr size_t k = i + 1;
      even = hn::MulAdd(same<V>(static_cast<T>(kOddTwiddles<P>.cosine[j * (k + 1) % P])), z[k].re, even);
      odd = hn::MulAdd(same<V>(static_cast<T>(kOddTwiddles<P>.sine[j * (k + 1) % P])), z[k].im, odd);
    });
    put(Index<j>(), even - odd);
    put(Index<P - j>(), even + odd);
  });
}

// A * B numbers: B transforms of A reals, twiddles, one of B reals and A / 2 of B points.
template <size_t A, size_t B, class Get, class Put> QVX_INLINE void transformRealProduct(Get get, Put put) {
  constexpr size_t N = A * B;
  using Z = Complex<std::remove_const_t<decltype(get(Index<0>()))>>;
  Z y[A / 2 + 1][B];
  unrolled<B>([&](auto b) __attribute__((always_inline)) {
    transformReals<A>(
        [&](auto a) __attribute__((always_inline)) { return get(Index<B * a + b>()); },
        [&](auto k, Z z) __attribute__((always_inline)) {
          if constexpr (b > 0 && k > 0) y[k][b] = rotated<b * k, N>(z);
          else y[k][b] = z;
        });
  });
  transformReals<B>(
      [&](auto b) __attribute__((always_inline)) { return y[0][b].re; }, [&](auto q, Z z) __attribute__((
                                                                             always_inline)) { put(Index<A * q>(), z); });
  unrolled<A / 2>([&](auto i) __attribute__((always_inline)) {
    constexpr size_t k = i + 1;
    transformAny<B>(
        [&](auto b) __attribute__((always_inline)) { return y[k][b]; },
        [&](auto q, Z z) __attribute__((always_inline)) {
          constexpr size_t at = k + A * q;
          if constexpr (at <= N / 2) put(Index<at>(), z);
          else put(Index<N - at>(), conjugate(z));
        });
  });
}
template <size_t A, size_t B, class Get, class Put> QVX_INLINE void transformProductToReals(Get get, Put put) {
  constexpr size_t N = A * B;
  using Z = std::remove_const_t<decltype(get(Index<0>()))>;
  Z y[A / 2 + 1][B];
  transformToReals<B>(
      [&](auto q) __attribute__((always_inline)) { return get(Index<A * q>()); }, [&](auto b, auto v) __attribute__((
                                                                                      always_inline)) { y[0][b].re = v; });
  unrolled<A / 2>([&](auto i) __attribute__((always_inline)) {
    constexpr size_t k = i + 1;
    transformAny<B>(
        [&](auto q) __attribute__((always_inline)) {
          constexpr size_t at = k + A * q;
          if constexpr (at <= N / 2) return get(Index<at>());
          else return conjugate(get(Index<N - at>()));
        },
        [&](auto r, Z z) __attribute__((always_inline)) {
          constexpr size_t b = (B - r) % B;  // the inverse of a forward transform
          if constexpr (b > 0) y[k][b] = rotated<N - b * k, N>(z);
          else y[k][b] = z;
        });
  });
  unrolled<B>([&](auto b) __attribute__((always_inline)) {
    transformToReals<A>(
        [&](auto k) __attribute__((always_inline)) { return y[k][b]; }, [&](auto a, auto v) __attribute__((
                                                                            always_inline)) { put(Index<B * a + b>(), v); });
  });
}

template <size_t R, class Get, class Put> QVX_INLINE void transformReals(Get get, Put put) {
  if constexpr (R == 9) transformRealProduct<3, 3>(get, put);
  else if constexpr (R == 15) transformRealProduct<5, 3>(get, put);
  else if constexpr (R == 25) transformRealProduct<5, 5>(get, put);
  else if constexpr (R == 27) transformRealProduct<9, 3>(get, put);
  else transformRealPairs<R>(get, put);
}
template <size_t R, class Get, class Put> QVX_INLINE void transformToReals(Get get, Put put) {
  if constexpr (R == 9) transformProductToReals<3, 3>(get, put);
  else if constexpr (R == 15) transformProductToReals<5, 3>(get, put);
  else if constexpr (R == 25) transformProductToReals<5, 5>(get, put);
  else if constexpr (R == 27) transformProductToReals<9, 3>(get, put);
  else transformPairsToReals<R>(get, put);
}

}  // namespace qvx::transform
