// Transforms of 2, 4, 8 and 16 points, each point a vector of real and one of imaginary parts: the steps of every longer one.
//
// All are forward; an inverse transform is a forward one with real and imaginary parts exchanged on the way in and on the way
// out.
#pragma once

#include "frame/simd.h"
#include "frame/unroll.h"

namespace qvx::transform {

// Without this, GCC calls some of these functions with their operands in memory.
#define QVX_INLINE [[gnu::always_inline]] inline

template <class V> QVX_INLINE Complex<V> sum(Complex<V> a, Complex<V> b) { return {a.re + b.re, a.im + b.im}; }
template <class V> QVX_INLINE Complex<V> difference(Complex<V> a, Complex<V> b) { return {a.re - b.re, a.im - b.im}; }
template <class V> QVX_INLINE Complex<V> sumWithI(Complex<V> a, Complex<V> b) { return {a.re - b.im, a.im + b.re}; }
template <class V> QVX_INLINE Complex<V> differenceWithI(Complex<V> a, Complex<V> b) { return {a.re + b.im, a.im - b.re}; }

template <class V> QVX_INLINE Complex<V> product(Complex<V> z, Complex<V> w) {
  return {hn::NegMulAdd(z.im, w.im, z.re * w.re), hn::MulAdd(z.re, w.im, z.im * w.re)};
}
template <class V> QVX_INLINE Complex<V> product(Complex<V> z, LaneOf<V> re, LaneOf<V> im) {
  return product(z, Complex<V>{same<V>(re), same<V>(im)});
}
template <class V> QVX_INLINE Complex<V> timesMinusI(Complex<V> z) { return {z.im, hn::Neg(z.re)}; }
// a + factor * b and a - factor * b
template <class V> QVX_INLINE Complex<V> sumWith(double factor, Complex<V> a, Complex<V> b) {
  const V f = same<V>(static_cast<LaneOf<V>>(factor));
  return {hn::MulAdd(f, b.re, a.re), hn::MulAdd(f, b.im, a.im)};
}
template <class V> QVX_INLINE Complex<V> differenceWith(double factor, Complex<V> a, Complex<V> b) {
  const V f = same<V>(static_cast<LaneOf<V>>(factor));
  return {hn::NegMulAdd(f, b.re, a.re), hn::NegMulAdd(f, b.im, a.im)};
}

template <class V> QVX_INLINE Complex<V> addProduct(V factor, Complex<V> a, Complex<V> b) {
  return {hn::MulAdd(factor, b.re, a.re), hn::MulAdd(factor, b.im, a.im)};
}

// Z: a vector of real and one of imaginary parts, or of both side by side.
template <class Z> QVX_INLINE void dft4(Z& x0, Z& x1, Z& x2, Z& x3) {
  const Z even = sum(x0, x2);
  const Z evenOff = difference(x0, x2);
  const Z odd = sum(x1, x3);
  const Z oddOff = difference(x1, x3);
  x0 = sum(even, odd);
  x1 = differenceWithI(evenOff, oddOff);
  x2 = difference(even, odd);
  x3 = sumWithI(evenOff, oddOff);
}

// Two terms of the odd results are multiplied by eighth roots of unity, whose factor sqrt(1/2) is fused into the last sums.
template <class Z> QVX_INLINE void dft8(Z (&x)[8]) {
  constexpr double kHalf = 0.70710678118654752440;
  Z even[] = {sum(x[0], x[4]), sum(x[1], x[5]), sum(x[2], x[6]), sum(x[3], x[7])};
  const Z odd[] = {difference(x[0], x[4]), difference(x[1], x[5]), difference(x[2], x[6]), difference(x[3], x[7])};
  dft4(even[0], even[1], even[2], even[3]);
  const Z a = differenceWithI(odd[0], odd[2]);
  const Z b = sumWithI(odd[0], odd[2]);
  const Z c = difference(odd[1], odd[3]);
  const Z d = sum(odd[1], odd[3]);
  const Z one = differenceWithI(c, d);
  const Z three = sumWithI(c, d);
  x[0] = even[0];
  x[1] = sumWith(kHalf, a, one);
  x[2] = even[1];
  x[3] = differenceWith(kHalf, b, three);
  x[4] = even[2];
  x[5] = differenceWith(kHalf, a, one);
  x[6] = even[3];
  x[7] = sumWith(kHalf, b, three);
}

// The first of two steps, of points from get(n): 4 transforms down the columns of a square, and the twiddles. 16 points fill all
// registers, so that loads stand beside the sums that take them.
template <class Z, class Get> QVX_INLINE void dft16Columns(Z (&x)[16], Get get) {
  constexpr double kCos = 0.92387953251128675613;
  constexpr double kSin = 0.38268343236508977173;
  constexpr double kHalf = 0.70710678118654752440;
  unrolled<4>([&](auto i) __attribute__((always_inline)) {
    unrolled<4>([&](auto m) __attribute__((always_inline)) { x[i + 4 * m] = get(std::integral_constant<size_t, i + 4 * m>()); });
    dft4(x[i], x[i + 4], x[i + 8], x[i + 12]);
  });
  x[5] = product(x[5], kCos, -kSin);
  x[6] = product(x[6], kHalf, -kHalf);
  x[7] = product(x[7], kSin, -kCos);
  x[9] = product(x[9], kHalf, -kHalf);
  x[10] = timesMinusI(x[10]);
  x[11] = product(x[11], -kHalf, -kHalf);
  x[13] = product(x[13], kSin, -kCos);
  x[14] = product(x[14], -kHalf, -kHalf);
  x[15] = product(x[15], -kCos, kSin);
}
template <class Z, class Get> QVX_INLINE void dft16(Z (&x)[16], Get get) {
  dft16Columns(x, get);
  unrolled<4>([&](auto i) __attribute__((always_inline)) { dft4(x[4 * i], x[4 * i + 1], x[4 * i + 2], x[4 * i + 3]); });
  unrolled<4>([&](auto i) __attribute__((always_inline)) {
    unrolled<i>([&](auto m) __attribute__((always_inline)) { std::swap(x[4 * i + m], x[4 * m + i]); });
  });
}

// x[k] = sum of x[n] exp(-2 pi i n k / R)
template <class Z, size_t R> QVX_INLINE void dft(Z (&x)[R]) {
  static_assert(R == 1 || R == 2 || R == 4 || R == 8 || R == 16);
  if constexpr (R == 2) {
    const Z off = difference(x[0], x[1]);
    x[0] = sum(x[0], x[1]);
    x[1] = off;
  } else if constexpr (R == 4) {
    dft4(x[0], x[1], x[2], x[3]);
  } else if constexpr (R == 8) {
    dft8(x);
  } else if constexpr (R == 16) {
    dft16(
        x, [&](auto n) __attribute__((always_inline)) { return x[n]; });
  }
}
// The same of points from get(n).
template <class Z, size_t R, class Get> QVX_INLINE void dft(Z (&x)[R], Get get) {
  if constexpr (R == 16) {
    dft16(x, get);
  } else {
    unrolled<R>([&](auto n) __attribute__((always_inline)) { x[n] = get(n); });
    dft(x);
  }
}

// The same, with put(k, z) for each result: of 16, as soon as it is there (0.92 to 0.98 of the time of transforms of floats up to
// 2^12 points).
template <size_t R, class Get, class Put> QVX_INLINE void transformPoints(Get get, Put put) {
  decltype(get(std::integral_constant<size_t, 0>())) x[R];
  if constexpr (R == 16) {
    dft16Columns(x, get);
    unrolled<4>([&](auto i) __attribute__((always_inline)) {
      dft4(x[4 * i], x[4 * i + 1], x[4 * i + 2], x[4 * i + 3]);
      unrolled<4>([&](auto m) __attribute__((always_inline)) { put(std::integral_constant<size_t, i + 4 * m>(), x[4 * i + m]); });
    });
  } else {
    dft(x, get);
    unrolled<R>([&](auto k) __attribute__((always_inline)) { put(k, x[k]); });
  }
}

// ---- Transposition of as many vectors as they have lanes

template <class V> QVX_INLINE void transposeInBlocks(V& a, V& b) {
  const TagOf<V> d;
  const V upper = hn::InterleaveUpper(d, a, b);
  a = hn::InterleaveLower(d, a, b);
  b = upper;
}
template <class V> QVX_INLINE void transposeInBlocks(V& a, V& b, V& c, V& e) {
  const TagOf<V> d;
  const auto lowA = as<double>(hn::InterleaveLower(d, a, b));
  const auto highA = as<double>(hn::InterleaveUpper(d, a, b));
  const auto lowC = as<double>(hn::InterleaveLower(d, c, e));
  const auto highC = as<double>(hn::InterleaveUpper(d, c, e));
  const TagOf<std::remove_const_t<decltype(lowA)>> pairs;
  a = as<float>(hn::InterleaveLower(pairs, lowA, lowC));
  b = as<float>(hn::InterleaveUpper(pairs, lowA, lowC));
  c = as<float>(hn::InterleaveLower(pairs, highA, highC));
  e = as<float>(hn::InterleaveUpper(pairs, highA, highC));
}

template <class V> QVX_INLINE void transposeInBlocks(V (&)[1]) {}
template <class V> QVX_INLINE void transposeInBlocks(V (&r)[2]) { transposeInBlocks(r[0], r[1]); }
template <class V> QVX_INLINE void transposeInBlocks(V (&r)[4]) { transposeInBlocks(r[0], r[1], r[2], r[3]); }

template <class V> QVX_INLINE void transposeBlocks(V (&)[1]) {}
template <class V> QVX_INLINE void transposeBlocks(V (&r)[2]) {
  const V odd = oddBlocks(r[0], r[1]);
  r[0] = evenBlocks(r[0], r[1]);
  r[1] = odd;
}
template <class V> QVX_INLINE void transposeBlocks(V (&r)[4]) {
  const V even01 = evenBlocks(r[0], r[1]);
  const V odd01 = oddBlocks(r[0], r[1]);
  const V even23 = evenBlocks(r[2], r[3]);
  const V odd23 = oddBlocks(r[2], r[3]);
  r[0] = evenBlocks(even01, even23);
  r[1] = evenBlocks(odd01, odd23);
  r[2] = oddBlocks(even01, even23);
  r[3] = oddBlocks(odd01, odd23);
}

// Lane i of r[k] goes to lane k of r[i].
template <class V> QVX_INLINE void transpose(V (&)[1]) {}
template <class V, size_t L> QVX_INLINE void transpose(V (&r)[L]) {
  static_assert(L == kLanesOf<V>);
  constexpr size_t kBlock = 16 / sizeof(LaneOf<V>);
  unrolled<L / kBlock>([&](auto q) __attribute__((always_inline)) {
    if constexpr (kBlock == 2) transposeInBlocks(r[2 * q], r[2 * q + 1]);
    else transposeInBlocks(r[4 * q], r[4 * q + 1], r[4 * q + 2], r[4 * q + 3]);
  });
  unrolled<kBlock>([&](auto i) __attribute__((always_inline)) {
    V blocks[L / kBlock];
    unrolled<L / kBlock>([&](auto q) __attribute__((always_inline)) { blocks[q] = r[kBlock * q + i]; });
    transposeBlocks(blocks);
    unrolled<L / kBlock>([&](auto q) __attribute__((always_inline)) { r[kBlock * q + i] = blocks[q]; });
  });
}

}  // namespace qvx::transform
