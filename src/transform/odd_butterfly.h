// Transforms of 3 to 16 points of any factors, each point a vector of real and one of imaginary parts, beside those of powers of
// two in butterfly.h.
#pragma once

#include "transform/butterfly.h"

namespace qvx::transform {

// cos and sin of 2 pi k / n, to a double's last digit: series up to an eighth of a turn.
constexpr double cosineOfTurn(size_t k, size_t n);
constexpr double sineOfTurn(size_t k, size_t n);
namespace detail {
constexpr long double sineOrCosine(long double x, int first) {
  long double term = first == 0 ? 1 : x;
  long double sum = term;
  for (int i = first + 2; i < 28; i += 2) {
    term *= -x * x / (i * (i - 1));
    sum += term;
  }
  return sum;
}
constexpr long double angleOf(size_t k, size_t n) {
  return 6.283185307179586476925286766559005768L * static_cast<long double>(k) / static_cast<long double>(n);
}
}  // namespace detail
constexpr double cosineOfTurn(size_t k, size_t n) {
  k %= n;
  if (2 * k > n) k = n - k;
  if (4 * k > n) return -cosineOfTurn(n - 2 * k, 2 * n);
  if (8 * k > n) return sineOfTurn(n - 4 * k, 4 * n);
  return static_cast<double>(detail::sineOrCosine(detail::angleOf(k, n), 0));
}
constexpr double sineOfTurn(size_t k, size_t n) {
  k %= n;
  if (2 * k > n) return -sineOfTurn(n - k, n);
  if (4 * k > n) return sineOfTurn(n - 2 * k, 2 * n);
  if (8 * k > n) return cosineOfTurn(n - 4 * k, 4 * n);
  return static_cast<double>(detail::sineOrCosine(detail::angleOf(k, n), 1));
}

template <size_t P> struct PrimeRoots {
  static constexpr size_t kHalf = P / 2;
  double cosine[kHalf + 1] = {};
  double sine[kHalf + 1] = {};
  constexpr PrimeRoots() {
    for (size_t k = 0; k <= kHalf; ++k) {
      cosine[k] = cosineOfTurn(k, P);
      sine[k] = sineOfTurn(k, P);
    }
  }
};
template <size_t P> inline constexpr PrimeRoots<P> kPrimeRoots;

// An odd number of points: x[k] and x[P - k] come from the sums and the differences of the points at equal distances from x[0].
template <size_t P, class V> QVX_INLINE void dftOfPairs(Complex<V> (&x)[P]) {
  constexpr size_t H = P / 2;
  Complex<V> sums[H];
  Complex<V> differences[H];
  unrolled<H>([&](auto k) __attribute__((always_inline)) {
    sums[k] = sum(x[k + 1], x[P - 1 - k]);
    differences[k] = difference(x[k + 1], x[P - 1 - k]);
  });
  const Complex<V> first = x[0];
  unrolled<H>([&](auto k) __attribute__((always_inline)) { x[0] = sum(x[0], sums[k]); });
  unrolled<H>([&](auto at) __attribute__((always_inline)) {
    constexpr size_t j = at + 1;
    Complex<V> even = first;
    Complex<V> odd;
    unrolled<H>([&](auto k) __attribute__((always_inline)) {
      constexpr size_t turn = j * (k + 1) % P;
      constexpr size_t folded = turn <= H ? turn : P - turn;
      const V cosine = same<V>(static_cast<LaneOf<V>>(kPrimeRoots<P>.cosine[folded]));
      const V sine = same<V>(static_cast<LaneOf<V>>(kPrimeRoots<P>.sine[folded]));
      even = {hn::MulAdd(cosine, sums[k].re, even.re), hn::MulAdd(cosine, sums[k].im, even.im)};
      if constexpr (k == 0) odd = {sine * differences[k].re, sine * differences[k].im};  // turn <= H here
      else if constexpr (turn <= H) odd = {hn::MulAdd(sine, differences[k].re, odd.re), hn::MulAdd(sine, differences[k].im, odd.im)};
      else odd = {hn::NegMulAdd(sine, differences[k].re, odd.re), hn::NegMulAdd(sine, differences[k].im, odd.im)};
    });
    x[j] = differenceWithI(even, odd);
    x[P - j] = sumWithI(even, odd);
  });
}

template <size_t R, class V> QVX_INLINE void anyDft(Complex<V> (&x)[R]);

// A * B points without common factors: two dimensions without twiddles between them.
template <size_t A, size_t B, class V> QVX_INLINE void dftOfCoprimes(Complex<V> (&x)[A * B]) {
  constexpr size_t N = A * B;
  constexpr auto inverseOf = [](size_t n, size_t modulus) {
    size_t i = 1;
    while (n * i % modulus != 1) ++i;
    return i;
  };
  constexpr size_t kStepA = B * inverseOf(B % A, A);
  constexpr size_t kStepB = A * inverseOf(A % B, B);
  Complex<V> y[B][A];
  unrolled<B>([&](auto b) __attribute__((always_inline)) {
    unrolled<A>([&](auto a) __attribute__((always_inline)) { y[b][a] = x[(B * a + A * b) % N]; });
    anyDft(y[b]);
  });
  unrolled<A>([&](auto a) __attribute__((always_inline)) {
    Complex<V> z[B];
    unrolled<B>([&](auto b) __attribute__((always_inline)) { z[b] = y[b][a]; });
    anyDft(z);
    unrolled<B>([&](auto b) __attribute__((always_inline)) { x[(kStepA * a + kStepB * b) % N] = z[b]; });
  });
}

template <class V> QVX_INLINE void dft9(Complex<V> (&x)[9]) {
  Complex<V> y[3][3];
  unrolled<3>([&](auto b) __attribute__((always_inline)) {
    unrolled<3>([&](auto a) __attribute__((always_inline)) { y[b][a] = x[3 * a + b]; });
    dftOfPairs(y[b]);
    if constexpr (b > 0) {
      unrolled<2>([&](auto k) __attribute__((always_inline)) {
        constexpr size_t turn = b * (k + 1);
        y[b][k + 1] = product(y[b][k + 1], static_cast<LaneOf<V>>(cosineOfTurn(turn, 9)), static_cast<LaneOf<V>>(-sineOfTurn(turn, 9)));
      });
    }
  });
  unrolled<3>([&](auto k) __attribute__((always_inline)) {
    Complex<V> z[] = {y[0][k], y[1][k], y[2][k]};
    dftOfPairs(z);
    unrolled<3>([&](auto a) __attribute__((always_inline)) { x[k + 3 * a] = z[a]; });
  });
}

template <size_t R, class V> QVX_INLINE void anyDft(Complex<V> (&x)[R]) {
  if constexpr ((R & (R - 1)) == 0) dft(x);
  else if constexpr (R == 6) dftOfCoprimes<2, 3>(x);
  else if constexpr (R == 9) dft9(x);
  else if constexpr (R == 10) dftOfCoprimes<2, 5>(x);
  else if constexpr (R == 12) dftOfCoprimes<4, 3>(x);
  else if constexpr (R == 14) dftOfCoprimes<2, 7>(x);
  else if constexpr (R == 15) dftOfCoprimes<3, 5>(x);
  else dftOfPairs(x);
}

}  // namespace qvx::transform
