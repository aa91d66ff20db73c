// Of a prime number of reals, by powers (powers.h), as one circular convolution of reals. With c and s the cosines and sines of
// 2 pi g^m / n and H = (n - 1) / 2, c repeats after H places and s does with the opposite sign. So what the points make with c +
// s,
//
//   Y[q] = sum over m of x[g^m] (c + s)[m - q]     X[g^-q] = x[0] + (Y[q] + Y[q + H]) / 2 - i (Y[q] - Y[q + H]) / 2
//
// and the way back is the same convolution, of the differences of a spectrum's real and imaginary parts:
//
//   x[g^-q] = X[0] + sum over m of (re X - im X)[g^m] (c + s)[m - q]
//
// It goes by transforms of H complex points: with Z that of pairs of neighbours, F that of (c + s)[-m] over 2H points,
// S, D = (F[k] + F[k + H], F[k] - F[k + H]) / 2 and t = pi k / H, the product is
//
//   (S - D sin t) Z[k] + i D cos t conj Z[H - k]
//
// Half as many points as those of the complex transform: 65537 doubles take half of the time.
#pragma once

#include "dft/plan.h"
#include "dft/powers.h"
#include "transform/small_real.h"

namespace qvx::dft {

template <class T> Bytes choose(RealConvolution<T>& plan, uint32_t n) {
  plan.n = n;
  const int64_t length = n - 1;
  const Bytes bytes = choose(plan.half, n / 2, false, QVX_FFT_SCALE_NONE);
  const int64_t numbers = length * static_cast<int64_t>(sizeof(T)) + Carver::kLine;
  // Two vectors of points, with one more for the first one again; making the spectrum takes as much.
  return {bytes.tables + 2 * numbers + 2 * (length * 4 + Carver::kLine), 2 * (numbers + Carver::kLine) + bytes.work};
}

template <class T> void writeTables(RealConvolution<T>& plan, uint8_t* block, uint8_t* work) {
  const RoundingScope nearest(Rounding::kNearest);
  const WiderScope widerNearest;
  const uint32_t n = plan.n;
  const size_t length = n - 1;
  const size_t half = n / 2;
  Carver carver(block, Carver::kLine);
  T* const spectrum = carver.takeLines<T>(2 * static_cast<int64_t>(length));
  auto* const powers = carver.takeLines<uint32_t>(static_cast<int64_t>(length));
  auto* const places = carver.takeLines<uint32_t>(static_cast<int64_t>(length));
  writeTables(plan.half, QVX_FFT_SCALE_NONE, carver.rest(), work);
  writePowers(n, powers, places);
  plan.powers = powers;
  plan.places = places;
  plan.spectrum = spectrum;
  const Wider<T> factor = Wider<T>(0.5) / static_cast<Wider<T>>(half);
  const auto fill = [=](auto* re, auto*) {
    writeTwiddles(
        n, length, [=](size_t m) { return powers[m == 0 ? 0 : length - m]; },
        [=](size_t m, double cosine, double minusSine) { re[m] = factor * (Wider<T>(cosine) - minusSine); });
  };
  writeSpectrum(length, spectrum, work, fill, [=](size_t k, T re, T im) { spectrum[2 * k] = re, spectrum[2 * k + 1] = im; });
  writeTwiddles(
      length, half, [](size_t k) { return k; },
      [=](size_t k, double cosine, double minusSine) {
        T* const a = spectrum + 2 * k;
        T* const b = a + 2 * half;
        const T re = T(0.5) * (a[0] - b[0]);
        const T im = T(0.5) * (a[1] - b[1]);
        a[0] = T(0.5) * (a[0] + b[0]) + static_cast<T>(minusSine) * re;
        a[1] = T(0.5) * (a[1] + b[1]) + static_cast<T>(minusSine) * im;
        b[0] = -static_cast<T>(cosine) * im;
        b[1] = static_cast<T>(cosine) * re;
      });
}

// z[0] is also z[half].
template <class T> void multiply(const T* z, const T* spectrum, size_t half, T* out) {
  constexpr size_t L = kWidest<T>;
  const auto product = [=](auto d, size_t k) __attribute__((always_inline)) {
    constexpr size_t P = hn::MaxLanes(d) / 2;
    using Z = ComplexVector<Vec<decltype(d)>, false>;
    const auto times = [=](auto v, const T* by) __attribute__((always_inline)) {
      const auto w = load(d, by + 2 * k);
      return transform::product(Z{v}, evensTwice(w), oddsTwice(w)).v;
    };
    const auto conjugate = numbersReversed(load(d, z + 2 * (half - k - P + 1))) * alternating<Vec<decltype(d)>>();
    store(times(load(d, z + 2 * k), spectrum) + times(conjugate, spectrum + 2 * half), d, out + 2 * k);
  };
  size_t k = 0;
  for (; k + L / 2 <= half; k += L / 2) product(Lanes<T, L>(), k);
  for (; k < half; ++k) product(Lanes<T, 2>(), k);
}

// get(k): what stands for point k. The results Y, each without the first point.
template <class T, class Get> const T* convolveByPowers(const RealConvolution<T>& plan, T& sum, Get get, uint8_t* work) {
  const size_t length = plan.n - 1;
  const size_t half = length / 2;
  Carver carver(work, Carver::kLine);
  T* const y = carver.takeLines<T>(static_cast<int64_t>(length));
  T* const z = carver.takeLines<T>(static_cast<int64_t>(length + 2));
  const uint32_t* const powers = plan.powers;
  for (size_t m = 0; m < length; ++m) y[m] = get(powers[m]);
  run(plan.half, false, y, z, carver.rest());
  z[length] = z[0];
  z[length + 1] = z[1];
  sum = z[0] + z[1];
  multiply(z, plan.spectrum, half, y);
  run(plan.half, true, y, z, carver.rest());
  return z;
}

// pairs: where the spectrum's second number goes. Returns the first.
template <class T> T convolveForward(const RealConvolution<T>& plan, const T* src, T* pairs, T factor, uint8_t* work) {
  const size_t half = plan.n / 2;
  const T first = src[0];
  T sum;
  const T* const y = convolveByPowers(
      plan, sum, [=](size_t k) { return src[k]; }, work);
  const uint32_t* const places = plan.places;
  for (size_t k = 0; k < half; ++k) {
    const size_t place = places[k];
    const T a = y[place];
    const T b = y[place < half ? place + half : place - half];
    pairs[2 * k] = factor * (first + (a + b));
    pairs[2 * k + 1] = factor * (b - a);
  }
  return factor * (first + sum);
}

template <class T>
void convolveInverse(const RealConvolution<T>& plan, T first, const T* pairs, T* dst, T factor, uint8_t* work) {
  const size_t n = plan.n;
  const auto get = [=](size_t k) {
    return k <= n / 2 ? pairs[2 * k - 2] - pairs[2 * k - 1] : pairs[2 * (n - k) - 2] + pairs[2 * (n - k) - 1];
  };
  T sum;
  const T* const y = convolveByPowers(plan, sum, get, work);
  dst[0] = factor * (first + sum);
  const uint32_t* const places = plan.places;
  for (size_t k = 1; k < n; ++k) dst[k] = factor * (first + 2 * y[places[k - 1]]);
}

}  // namespace qvx::dft
