// The transform of a table in more than the table's own precision, once for a record: rounded, it has an error of 0.2 eps. In the
// table's own type the error would be 1 eps, a third of the error of a convolution.
#pragma once

#include <type_traits>

#include "transform/odd_butterfly.h"

namespace qvx::dft {

template <class T> using Wider = std::conditional_t<sizeof(T) == 4, double, long double>;

// exp(-2 pi i k / n)
template <class W> Complex<W> preciseTwiddle(size_t k, size_t n) {
  using transform::detail::angleOf;
  using transform::detail::sineOrCosine;
  // By quarters of a turn, and from the nearer end of one.
  const size_t quarter = 4 * k / n % 4;
  const size_t rest = 4 * k % n;  // of 4n
  const bool isNearEnd = 2 * rest > n;
  const long double angle = angleOf(isNearEnd ? n - rest : rest, 4 * n);
  const long double a = sineOrCosine(angle, isNearEnd ? 1 : 0);
  const long double b = sineOrCosine(angle, isNearEnd ? 0 : 1);
  const W cosine = static_cast<W>(quarter == 0 ? a : quarter == 1 ? -b : quarter == 2 ? -a : b);
  const W sine = static_cast<W>(quarter == 0 ? b : quarter == 1 ? a : quarter == 2 ? -b : -a);
  return {cosine, -sine};
}

template <class W> Complex<W> preciseSum(Complex<W> a, Complex<W> b) { return {a.re + b.re, a.im + b.im}; }
template <class W> Complex<W> preciseDifference(Complex<W> a, Complex<W> b) { return {a.re - b.re, a.im - b.im}; }
template <class W> Complex<W> preciseProduct(Complex<W> a, Complex<W> b) {
  return {a.re * b.re - a.im * b.im, a.re * b.im + a.im * b.re};
}

// The prime factors that the lengths of precise transforms may have.
inline constexpr uint8_t kPreciseFactors[] = {13, 11, 7, 5, 3, 2};

// Forward, in place, of n points, whose parts stand apart.
class PreciseTransform {
 public:
  explicit PreciseTransform(size_t n) : n_(n) {
    for (const uint8_t p : kPreciseFactors) {
      for (; n % p == 0; n /= p) factors_[count_++] = p;
    }
  }

  template <class W> void run(W* re, W* im) const {
    for (size_t i = 0, m = n_; i < count_; ++i) {
      const size_t p = factors_[i];
      m /= p;
      if (p == 2) pass<2>(re, im, m, twos<W>);
      else odd(p, re, im, m);
    }
  }
  // put(k, re, im) for each result k, rounded. All move to the imaginary parts' place first, so that put() may write to the real
  // ones'.
  template <class T, class W, class Put> void forEachResult(const W* re, W* im, Put put) const {
    static_assert(2 * sizeof(T) <= sizeof(W));
    T* const rounded = reinterpret_cast<T*>(im);
    for (size_t i = 0; i < n_; ++i) rounded[i] = static_cast<T>(im[i]);
    for (size_t i = 0; i < n_; ++i) rounded[n_ + i] = static_cast<T>(re[i]);
    forEachPlace([=, n = n_](size_t k, size_t place) { put(k, rounded[n + place], rounded[place]); });
  }

 private:
  static constexpr size_t kMostFactors = 32;

  // step(k, place) for each result k, which stands at `place`: the digits of k in the opposite order.
  template <class Step> void forEachPlace(Step step) const {
    size_t parts[kMostFactors];
    size_t digits[kMostFactors] = {};
    for (size_t i = 0, part = n_; i < count_; ++i) parts[i] = part /= factors_[i];
    size_t place = 0;
    for (size_t k = 0; k < n_; ++k) {
      step(k, place);
      for (size_t i = 0; i < count_; ++i) {
        place += parts[i];
        if (++digits[i] < factors_[i]) break;
        place -= factors_[i] * parts[i];
        digits[i] = 0;
      }
    }
  }

  // P points, m apart, become their transform, result j times the j-th power of a twiddle.
  template <size_t P, class W, class Butterfly> void pass(W* re, W* im, size_t m, Butterfly butterfly) const {
    const Complex<W> step = preciseTwiddle<W>(1, m * P);
    Complex<W> twiddle = {};
    for (size_t q = 0; q < m; ++q) {
      twiddle = q % 64 == 0 ? preciseTwiddle<W>(q, m * P) : preciseProduct(twiddle, step);
      Complex<W> powers[P];
      powers[0] = twiddle;
      for (size_t j = 1; j + 1 < P; ++j) powers[j] = preciseProduct(powers[j - 1], twiddle);
      for (size_t at = q; at < n_; at += m * P) {
        Complex<W> z[P];
        for (size_t k = 0; k < P; ++k) z[k] = {re[at + k * m], im[at + k * m]};
        butterfly(z);
        for (size_t j = 1; j < P; ++j) z[j] = preciseProduct(z[j], powers[j - 1]);
        for (size_t k = 0; k < P; ++k) re[at + k * m] = z[k].re, im[at + k * m] = z[k].im;
      }
    }
  }
  template <class W> static void twos(Complex<W> (&z)[2]) {
    const Complex<W> a = z[0];
    z[0] = preciseSum(a, z[1]);
    z[1] = preciseDifference(a, z[1]);
  }

  // An odd prime P: result j and result P - j are a sum and a difference of what points at equal distances from the first make.
  template <size_t P, class W> void oddPass(W* re, W* im, size_t m) const {
    constexpr size_t H = P / 2;
    Complex<W> turns[P];
    for (size_t j = 0; j < P; ++j) turns[j] = preciseTwiddle<W>(j, P);
    pass<P>(re, im, m, [&](Complex<W>(&z)[P]) {
      Complex<W> sums[H];
      Complex<W> differences[H];
      const Complex<W> first = z[0];
      for (size_t k = 0; k < H; ++k) {
        sums[k] = preciseSum(z[k + 1], z[P - 1 - k]);
        differences[k] = preciseDifference(z[k + 1], z[P - 1 - k]);
        z[0] = preciseSum(z[0], sums[k]);
      }
      for (size_t j = 1; j <= H; ++j) {
        Complex<W> even = first;
        Complex<W> odd = {};
        for (size_t k = 0; k < H; ++k) {
          const Complex<W> turn = turns[j * (k + 1) % P];
          even = {even.re + turn.re * sums[k].re, even.im + turn.re * sums[k].im};
          odd = {odd.re - turn.im * differences[k].im, odd.im + turn.im * differences[k].re};
        }
        z[j] = preciseSum(even, odd);
        z[P - j] = preciseDifference(even, odd);
      }
    });
  }
  template <class W> void odd(size_t p, W* re, W* im, size_t m) const {
    switch (p) {
      case 3:
        return oddPass<3>(re, im, m);
      case 5:
        return oddPass<5>(re, im, m);
      case 7:
        return oddPass<7>(re, im, m);
      case 11:
        return oddPass<11>(re, im, m);
      default:
        return oddPass<13>(re, im, m);
    }
  }

  size_t n_;
  size_t count_ = 0;
  uint8_t factors_[kMostFactors];
};

}  // namespace qvx::dft
