// Transforms of 3 to 32 points of any factors, each point a vector of real and one of imaginary parts, beside those of powers of
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

template <size_t P> struct OddTwiddles {
  static constexpr size_t kHalf = P / 2;
  double cosine[kHalf + 1] = {};
  double sine[kHalf + 1] = {};
  constexpr OddTwiddles() {
    for (size_t k = 0; k <= kHalf; ++k) {
      cosine[k] = cosineOfTurn(k, P);
      sine[k] = sineOfTurn(k, P);
    }
  }
};
template <size_t P> inline constexpr OddTwiddles<P> kOddTwiddles;

// Z: a vector of real and one of imaginary parts, or of both side by side.
template <class V> QVX_INLINE Complex<V> scaledBy(double factor, Complex<V> z) {
  const V f = same<V>(static_cast<LaneOf<V>>(factor));
  return {f * z.re, f * z.im};
}

// a - i factor b and a + i factor b
template <class V> QVX_INLINE void addWithI(double factor, Complex<V> a, Complex<V> b, Complex<V>& minus, Complex<V>& plus) {
  const V f = same<V>(static_cast<LaneOf<V>>(factor));
  minus = {hn::MulAdd(f, b.im, a.re), hn::NegMulAdd(f, b.re, a.im)};
  plus = {hn::NegMulAdd(f, b.im, a.re), hn::MulAdd(f, b.re, a.im)};
}
template <class Z> QVX_INLINE void addWithI(double factor, Z a, Z b, Z& minus, Z& plus) {
  const Z scaled = scaledBy(factor, b);
  minus = differenceWithI(a, scaled);
  plus = sumWithI(a, scaled);
}

// An odd number of points: x[k] and x[P - k] come from the sums and the differences of the points at equal distances from x[0].
template <size_t P, class Z> QVX_INLINE void dftOfPairs(Z (&x)[P]) {
  constexpr size_t H = P / 2;
  Z sums[H];
  Z differences[H];
  unrolled<H>([&](auto k) __attribute__((always_inline)) {
    sums[k] = sum(x[k + 1], x[P - 1 - k]);
    differences[k] = difference(x[k + 1], x[P - 1 - k]);
  });
  const Z first = x[0];
  unrolled<H>([&](auto k) __attribute__((always_inline)) { x[0] = sum(x[0], sums[k]); });
  unrolled<H>([&](auto at) __attribute__((always_inline)) {
    constexpr size_t j = at + 1;
    Z even = sumWith(kOddTwiddles<P>.cosine[j], first, sums[0]);
    // Divided by the first one's sine, which goes into the last addition: radix 5 takes 32 operations, not 36.
    Z odd = differences[0];
    unrolled<H - 1>([&](auto i) __attribute__((always_inline)) {
      constexpr size_t k = i + 1;
      constexpr size_t turn = j * (k + 1) % P;
      constexpr size_t folded = turn <= H ? turn : P - turn;
      constexpr double kRatio = kOddTwiddles<P>.sine[folded] / kOddTwiddles<P>.sine[j];
      even = sumWith(kOddTwiddles<P>.cosine[folded], even, sums[k]);
      if constexpr (turn <= H) odd = sumWith(kRatio, odd, differences[k]);
      else odd = differenceWith(kRatio, odd, differences[k]);
    });
    addWithI(kOddTwiddles<P>.sine[j], even, odd, x[j], x[P - j]);
  });
}

template <size_t R, class Z> QVX_INLINE void anyDft(Z (&x)[R]);

// A * B points without common factors: two dimensions without twiddles between them.
template <size_t A, size_t B, class Z> QVX_INLINE void dftOfCoprimes(Z (&x)[A * B]) {
  constexpr size_t N = A * B;
  constexpr auto inverseOf = [](size_t n, size_t modulus) {
    size_t i = 1;
    while (n * i % modulus != 1) ++i;
    return i;
  };
  constexpr size_t kStepA = B * inverseOf(B % A, A);
  constexpr size_t kStepB = A * inverseOf(A % B, B);
  Z y[B][A];
  unrolled<B>([&](auto b) __attribute__((always_inline)) {
    unrolled<A>([&](auto a) __attribute__((always_inline)) { y[b][a] = x[(B * a + A * b) % N]; });
    anyDft(y[b]);
  });
  unrolled<A>([&](auto a) __attribute__((always_inline)) {
    Z z[B];
    unrolled<B>([&](auto b) __attribute__((always_inline)) { z[b] = y[b][a]; });
    anyDft(z);
    unrolled<B>([&](auto b) __attribute__((always_inline)) { x[(kStepA * a + kStepB * b) % N] = z[b]; });
  });
}

// z exp(-2 pi i kTurn / N)
template <size_t kTurn, size_t N, class Z> QVX_INLINE Z rotated(Z z) {
  constexpr double kCosine = cosineOfTurn(kTurn, N);
  constexpr double kSine = sineOfTurn(kTurn, N);
  return product(z, kCosine, -kSine);
}

// A * B points of any factors: B transforms of A points, twiddles, A transforms of B points.
template <size_t A, size_t B, class Z> QVX_INLINE void dftOfProduct(Z (&x)[A * B]) {
  Z y[B][A];
  unrolled<B>([&](auto b) __attribute__((always_inline)) {
    unrolled<A>([&](auto a) __attribute__((always_inline)) { y[b][a] = x[B * a + b]; });
    anyDft(y[b]);
    if constexpr (b > 0) {
      unrolled<A - 1>([&](auto k) __attribute__((always_inline)) { y[b][k + 1] = rotated<b*(k + 1), A * B>(y[b][k + 1]); });
    }
  });
  unrolled<A>([&](auto k) __attribute__((always_inline)) {
    Z z[B];
    unrolled<B>([&](auto b) __attribute__((always_inline)) { z[b] = y[b][k]; });
    anyDft(z);
    unrolled<B>([&](auto b) __attribute__((always_inline)) { x[k + A * b] = z[b]; });
  });
}

template <size_t R, class Z> QVX_INLINE void anyDft(Z (&x)[R]) {
  if constexpr ((R & (R - 1)) == 0 && R <= 16) dft(x);
  else if constexpr (R == 6) dftOfCoprimes<2, 3>(x);
  else if constexpr (R == 9) dftOfProduct<3, 3>(x);
  else if constexpr (R == 10) dftOfCoprimes<2, 5>(x);
  else if constexpr (R == 12) dftOfCoprimes<4, 3>(x);
  else if constexpr (R == 14) dftOfCoprimes<2, 7>(x);
  else if constexpr (R == 15) dftOfCoprimes<3, 5>(x);
  else if constexpr (R == 18) dftOfCoprimes<2, 9>(x);
  else if constexpr (R == 20) dftOfCoprimes<4, 5>(x);
  else if constexpr (R == 21) dftOfCoprimes<7, 3>(x);
  else if constexpr (R == 24) dftOfCoprimes<8, 3>(x);
  else if constexpr (R == 25) dftOfProduct<5, 5>(x);
  else if constexpr (R == 27) dftOfProduct<9, 3>(x);
  else if constexpr (R == 30) dftOfCoprimes<2, 15>(x);
  else if constexpr (R == 32) dftOfProduct<8, 4>(x);
  else dftOfPairs(x);
}

}  // namespace qvx::transform
