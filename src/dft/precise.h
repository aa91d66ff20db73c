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

template <class W> Complex<W> preciseProduct(Complex<W> a, Complex<W> b) {
  return {a.re * b.re - a.im * b.im, a.re * b.im + a.im * b.re};
}

// Forward, in place, of n points with prime factors up to 7, whose parts stand apart.
class PreciseTransform {
 public:
  explicit PreciseTransform(size_t n) : n_(n) {
    for (const uint8_t p : {7, 5, 3, 2}) {
      for (; n % p == 0; n /= p) factors_[count_++] = p;
    }
  }

  template <class W> void run(W* re, W* im) const {
    size_t m = n_;
    for (size_t i = 0; i < count_; ++i) {
      const size_t p = factors_[i];
      m /= p;
      Complex<W> radixTwiddles[kMost];
      for (size_t j = 0; j < p; ++j) radixTwiddles[j] = preciseTwiddle<W>(j, p);
      const Complex<W> step = preciseTwiddle<W>(1, m * p);
      Complex<W> twiddle = {};
      for (size_t q = 0; q < m; ++q) {
        twiddle = q % 64 == 0 ? preciseTwiddle<W>(q, m * p) : preciseProduct(twiddle, step);
        for (size_t at = q; at < n_; at += m * p) {
          if (p == 2) pair(re + at, im + at, m, twiddle);
          else several(re + at, im + at, m, p, radixTwiddles, twiddle);
        }
      }
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
  static constexpr size_t kMost = 7;
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
  template <class W> static void pair(W* re, W* im, size_t m, Complex<W> twiddle) {
    const Complex<W> off = preciseProduct(Complex<W>{re[0] - re[m], im[0] - im[m]}, twiddle);
    re[0] += re[m];
    im[0] += im[m];
    re[m] = off.re;
    im[m] = off.im;
  }
  template <class W> static void several(W* re, W* im, size_t m, size_t p, const Complex<W>* radixTwiddles, Complex<W> twiddle) {
    Complex<W> z[kMost];
    for (size_t k = 0; k < p; ++k) z[k] = {re[k * m], im[k * m]};
    Complex<W> power = {1, 0};
    for (size_t j = 0; j < p; ++j, power = preciseProduct(power, twiddle)) {
      Complex<W> sum = z[0];
      for (size_t k = 1; k < p; ++k) {
        const Complex<W> term = preciseProduct(z[k], radixTwiddles[j * k % p]);
        sum = {sum.re + term.re, sum.im + term.im};
      }
      const Complex<W> result = preciseProduct(sum, power);
      re[j * m] = result.re;
      im[j * m] = result.im;
    }
  }

  size_t n_;
  size_t count_ = 0;
  uint8_t factors_[kMostFactors];
};

}  // namespace qvx::dft
