// Lengths that no plan serves: a convolution with a chirp, with the period that the spectrum of n real numbers needs.
//
// With c[m] = exp(-pi i m^2 / n), exp(-2 pi i j k / n) = c[j] c[k] conj c[k - j]. The spectrum V of the numbers in halves
// (even.h) is needed up to k = n/2, so a period of n + n/2 serves both directions:
//
//   V[k] = c[k] * sum over j of (v[j] c[j]) conj c[k - j]
//   y[k] = re t[k] V[k]     y[n - k] = -im t[k] V[k]     t[k] = sqrt(2/n) exp(-2 pi i k / (4n)), sqrt(1/n) at 0
//
// and, read backwards, v[j] = re c[j] * sum over k of (t[k] c[k] (y[k] + i y[n - k])) conj c[j - k].
#pragma once

#include "dct/even.h"
#include "dct/plan.h"
#include "dft/precise.h"
#include "fft/adapter.h"

namespace qvx::dct {

template <class T> struct Chirp {
  size_t period;
  const dft::ComplexPlan<T>* plan;
  const T* chirp;     // c[j], j < n, in pairs
  const T* twiddles;  // t[k] c[k], k <= n/2, in pairs
  const T* spectrum;  // of conj c over the period, divided by its length; in pairs
};

// The least sufficient period for n numbers that has small factors.
inline size_t shortPeriodOf(size_t n) {
  const size_t least = n + n / 2;
  size_t best = std::bit_ceil(least);
  for (const size_t factor : {3, 5, 9, 15}) best = std::min(best, factor * std::bit_ceil((least + factor - 1) / factor));
  return best;
}

template <class T> Needs needsOfChirp(size_t n, size_t period) {
  const auto plan = needsOfPlan<dft::ComplexPlan<T>>(period);
  constexpr int64_t kPair = 2 * sizeof(T);
  return {static_cast<int64_t>(sizeof(Chirp<T>)) + static_cast<int64_t>(n + n / 2 + 1 + period) * kPair + plan.tables,
          static_cast<int64_t>(period) * kPair + plan.work, plan.work};
}

// The same where the spectrum is computed in a wider type: in its own place and in that of the plan, which is made later.
template <class T> Needs needsOfPrecise(size_t n, size_t period) {
  Needs needs = needsOfChirp<T>(n, period);
  const auto beyond = static_cast<int64_t>(2 * period * sizeof(T)) - needsOfPlan<dft::ComplexPlan<T>>(period).tables;
  needs.tables += std::max<int64_t>(beyond, 0) + Carver::kRecordAlignment;
  return needs;
}

// isPrecise: there is room for what needsOfPrecise() says.
template <class T>
void writeChirp(Chirp<T>& chirp, size_t n, size_t period, bool isInverse, bool isPrecise, Carver& tables, Qvx8u* work) {
  const size_t half = n / 2;
  T* const c = tables.take<T>(static_cast<int64_t>(2 * n));
  T* const twiddles = tables.take<T>(static_cast<int64_t>(2 * (half + 1)));
  using Wide = dft::Wider<T>;
  T* const spectrum = isPrecise ? tables.take<T, Carver::kRecordAlignment>(static_cast<int64_t>(2 * period))
                                : tables.take<T>(static_cast<int64_t>(2 * period));
  const auto square = [n](size_t j) { return j * j % (2 * n); };  // j^2 is below 2^56
  writeTwiddles(2 * n, n, square, transform::intoPairs(c));
  const long double factor = std::sqrt(2 / static_cast<long double>(n));
  writeTwiddles(
      4 * n, half + 1, [=](size_t k) { return k + 2 * square(k); },
      [=](size_t k, double re, double im) {
        // A number that is its own mirror image counts once.
        const long double f = k == 0 ? factor * std::sqrt(0.5L) : isInverse && 2 * k == n ? factor / 2 : factor;
        twiddles[2 * k] = static_cast<T>(f * re);
        twiddles[2 * k + 1] = static_cast<T>(f * im);
      });
  const size_t before = isInverse ? half : n - 1;
  const size_t after = isInverse ? n - 1 : half;
  const Wide scale = 1 / static_cast<Wide>(period);
  const auto fill = [&](auto put) {
    for (size_t j = 0; j < before + 1 + after; ++j) {
      const size_t from = j < before ? before - j : j - before;
      put((period + j - before) % period, static_cast<Wide>(c[2 * from]) * scale, -static_cast<Wide>(c[2 * from + 1]) * scale);
    }
  };
  if (!isPrecise) {
    std::fill_n(spectrum, 2 * period, T(0));
    fill([=](size_t at, Wide re, Wide im) { spectrum[2 * at] = static_cast<T>(re), spectrum[2 * at + 1] = static_cast<T>(im); });
    chirp = {period, makePlan<dft::ComplexPlan<T>>(period, tables, work), c, twiddles, spectrum};
    dft::run(*chirp.plan, false, spectrum, spectrum, work);
    return;
  }
  auto* const re = reinterpret_cast<Wide*>(spectrum);
  Wide* const im = re + period;
  std::fill_n(re, 2 * period, Wide(0));
  fill([=](size_t at, Wide zRe, Wide zIm) { re[at] = zRe, im[at] = zIm; });
  const dft::PreciseTransform transform(period);
  transform.run(re, im);
  transform.forEachResult<T>(re, im, [=](size_t k, T zRe, T zIm) { spectrum[2 * k] = zRe, spectrum[2 * k + 1] = zIm; });
  chirp = {period, makePlan<dft::ComplexPlan<T>>(period, tables, work), c, twiddles, spectrum};
}

// Pairs of numbers, in place: by those of another vector.
template <class T> void convolve(const Chirp<T>& chirp, T* z, Qvx8u* work) {
  dft::run(*chirp.plan, false, z, z, work);
  fft::multiply(reinterpret_cast<const ComplexOf<T>*>(chirp.spectrum), reinterpret_cast<ComplexOf<T>*>(z),
                static_cast<int>(chirp.period));
  dft::run(*chirp.plan, true, z, z, work);
}

template <class T> void forwardByChirp(const Chirp<T>& chirp, size_t n, const T* x, T* y, Carver work) {
  const size_t period = chirp.period;
  T* const z = work.take<T>(static_cast<int64_t>(2 * period));
  const T* const c = chirp.chirp;
  for (size_t j = 0; j < n; ++j) {
    const T v = x[2 * j < n ? 2 * j : 2 * (n - j) - 1];
    z[2 * j] = v * c[2 * j];
    z[2 * j + 1] = v * c[2 * j + 1];
  }
  std::fill(z + 2 * n, z + 2 * period, T(0));
  convolve(chirp, z, work.rest());
  const T* const t = chirp.twiddles;
  for (size_t k = 0; k <= n / 2; ++k) {
    const T re = t[2 * k] * z[2 * k] - t[2 * k + 1] * z[2 * k + 1];
    const T im = t[2 * k] * z[2 * k + 1] + t[2 * k + 1] * z[2 * k];
    if (k > 0) y[n - k] = -im;
    y[k] = re;
  }
}

template <class T> void inverseByChirp(const Chirp<T>& chirp, size_t n, const T* y, T* x, Carver work) {
  const size_t period = chirp.period;
  T* const z = work.take<T>(static_cast<int64_t>(2 * period));
  const T* const t = chirp.twiddles;
  for (size_t k = 0; k <= n / 2; ++k) {
    const T re = y[k];
    const T im = k == 0 ? T(0) : y[n - k];
    z[2 * k] = t[2 * k] * re - t[2 * k + 1] * im;
    z[2 * k + 1] = t[2 * k] * im + t[2 * k + 1] * re;
  }
  std::fill(z + 2 * (n / 2 + 1), z + 2 * period, T(0));
  convolve(chirp, z, work.rest());
  const T* const c = chirp.chirp;
  for (size_t j = 0; j < n; ++j) {
    x[2 * j < n ? 2 * j : 2 * (n - j) - 1] = c[2 * j] * z[2 * j] - c[2 * j + 1] * z[2 * j + 1];
  }
}

}  // namespace qvx::dct
