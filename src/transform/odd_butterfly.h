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

// Of all turns; those of k and P - k are the same to the last digit, but for the sine's sign.
template <size_t P> struct OddTwiddles {
  double cosine[P] = {};
  double sine[P] = {};
  constexpr OddTwiddles() {
    for (size_t k = 0; k < P; ++k) {
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

template <size_t i> using Index = std::integral_constant<size_t, i>;

// Below, get(k) gives a point and put(k, z) takes a result, each as an Index, once, and each as late or as early as it can be:
// points that come beside the sums that take them, and results that go at once, leave registers to what is between. Of 20 points
// in 16 registers half would wait on the stack twice (2000 complex doubles take 0.7 to 0.8 of the time in AVX2 and SSSE3).

template <size_t R, class Get, class Put> QVX_INLINE void transformAny(Get get, Put put);

// An odd number of points: x[k] and x[P - k] come from the sums and the differences of the points at equal distances from x[0].
template <size_t P, class Get, class Put> QVX_INLINE void transformPairs(Get get, Put put) {
  constexpr size_t H = P / 2;
  const auto first = get(Index<0>());
  using Z = std::remove_const_t<decltype(first)>;
  Z sums[H];
  Z differences[H];
  Z total = first;
  unrolled<H>([&](auto k) __attribute__((always_inline)) {
    const Z a = get(Index<k + 1>());
    const Z b = get(Index<P - 1 - k>());
    sums[k] = sum(a, b);
    differences[k] = difference(a, b);
    total = sum(total, sums[k]);
  });
  put(Index<0>(), total);
  unrolled<H>([&](auto at) __attribute__((always_inline)) {
    constexpr size_t j = at + 1;
    Z even = sumWith(kOddTwiddles<P>.cosine[j], first, sums[0]);
    // Divided by the first one's sine, which goes into the last addition: radix 5 takes 32 operations, not 36.
    Z odd = differences[0];
    unrolled<H - 1>([&](auto i) __attribute__((always_inline)) {
      constexpr size_t k = i + 1;
      constexpr size_t turn = j * (k + 1) % P;
      constexpr double kRatio = kOddTwiddles<P>.sine[turn] / kOddTwiddles<P>.sine[j];
      even = sumWith(kOddTwiddles<P>.cosine[turn], even, sums[k]);
      if constexpr (kRatio > 0) odd = sumWith(kRatio, odd, differences[k]);
      else odd = differenceWith(-kRatio, odd, differences[k]);
    });
    Z minus;
    Z plus;
    addWithI(kOddTwiddles<P>.sine[j], even, odd, minus, plus);
    put(Index<j>(), minus);
    put(Index<P - j>(), plus);
  });
}

// What the transforms within a longer one of N points take and leave: points or results kFirst + kStep * k of its own, or every
// kApart-th vector of an array. Named, since a lambda's type repeats those that its function has for parameters, twice a level:
// the compiler took half of its time for such names.
template <size_t kFirst, size_t kStep, size_t N, class Ends> struct Within {
  const Ends& ends;
  QVX_INLINE auto operator()(auto k) const { return ends(Index<(kFirst + kStep * k) % N>()); }
  template <class Z> QVX_INLINE void operator()(auto k, Z z) const { ends(Index<(kFirst + kStep * k) % N>(), z); }
};
template <size_t kApart, class Z> struct InArray {
  Z* first;
  QVX_INLINE Z operator()(auto k) const { return first[k * kApart]; }
  QVX_INLINE void operator()(auto k, Z z) const { first[k * kApart] = z; }
};

// A * B points without common factors: two dimensions without twiddles between them.
template <size_t A, size_t B, class Get, class Put> QVX_INLINE void transformCoprimes(Get get, Put put) {
  constexpr size_t N = A * B;
  constexpr auto inverseOf = [](size_t n, size_t modulus) {
    size_t i = 1;
    while (n * i % modulus != 1) ++i;
    return i;
  };
  constexpr size_t kStepA = B * inverseOf(B % A, A);
  constexpr size_t kStepB = A * inverseOf(A % B, B);
  using Z = decltype(get(Index<0>()));
  Z y[N];
  unrolled<B>([&](auto b)
                  __attribute__((always_inline)) { transformAny<A>(Within<A * b, B, N, Get>{get}, InArray<B, Z>{y + b}); });
  unrolled<A>([&](auto a) __attribute__((always_inline)) {
    transformAny<B>(InArray<1, Z>{y + B * a}, Within<kStepA * a, kStepB, N, Put>{put});
  });
}

// z exp(-2 pi i kTurn / N)
template <size_t kTurn, size_t N, class Z> QVX_INLINE Z rotated(Z z) {
  constexpr double kCosine = cosineOfTurn(kTurn, N);
  constexpr double kSine = sineOfTurn(kTurn, N);
  return product(z, kCosine, -kSine);
}
template <size_t kTurn, size_t N, size_t kApart, class Z> struct Rotated {
  Z* first;
  QVX_INLINE void operator()(auto k, Z z) const {
    if constexpr (k * kTurn > 0) first[k * kApart] = rotated<k * kTurn, N>(z);
    else first[k * kApart] = z;
  }
};

// A * B points of any factors: B transforms of A points, twiddles, A transforms of B points.
template <size_t A, size_t B, class Get, class Put> QVX_INLINE void transformProduct(Get get, Put put) {
  constexpr size_t N = A * B;
  using Z = decltype(get(Index<0>()));
  Z y[N];
  unrolled<B>([&](auto b)
                  __attribute__((always_inline)) { transformAny<A>(Within<b, B, N, Get>{get}, Rotated<b, N, B, Z>{y + b}); });
  unrolled<A>([&](auto k)
                  __attribute__((always_inline)) { transformAny<B>(InArray<1, Z>{y + B * k}, Within<k, A, N, Put>{put}); });
}

template <size_t R, class Get, class Put> QVX_INLINE void transformAny(Get get, Put put) {
  if constexpr ((R & (R - 1)) == 0 && R <= 16) transformPoints<R>(get, put);
  else if constexpr (R == 6) transformCoprimes<2, 3>(get, put);
  else if constexpr (R == 9) transformProduct<3, 3>(get, put);
  else if constexpr (R == 10) transformCoprimes<2, 5>(get, put);
  else if constexpr (R == 12) transformCoprimes<4, 3>(get, put);
  else if constexpr (R == 14) transformCoprimes<2, 7>(get, put);
  else if constexpr (R == 15) transformCoprimes<3, 5>(get, put);
  else if constexpr (R == 18) transformCoprimes<2, 9>(get, put);
  else if constexpr (R == 20) transformCoprimes<4, 5>(get, put);
  else if constexpr (R == 21) transformCoprimes<7, 3>(get, put);
  else if constexpr (R == 24) transformCoprimes<8, 3>(get, put);
  else if constexpr (R == 25) transformProduct<5, 5>(get, put);
  else if constexpr (R == 27) transformProduct<9, 3>(get, put);
  else if constexpr (R == 30) transformCoprimes<2, 15>(get, put);
  else if constexpr (R == 32) transformProduct<8, 4>(get, put);
  else transformPairs<R>(get, put);
}

// x[k] = sum of x[n] exp(-2 pi i n k / R)
template <size_t R, class Z> QVX_INLINE void anyDft(Z (&x)[R]) {
  Z y[R];
  transformAny<R>(InArray<1, Z>{x}, InArray<1, Z>{y});
  unrolled<R>([&](auto k) __attribute__((always_inline)) { x[k] = y[k]; });
}

}  // namespace qvx::transform
