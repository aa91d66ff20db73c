// Transforms of lengths with a large prime factor, by way of a circular convolution: with a chirp, or in another order of the
// points.
#pragma once

#include "dft/plan.h"
#include "dft/powers.h"
#include "dft/sizes.h"
#include "fft/record.h"
#include "transform/mixed_run.h"

namespace qvx::dft {

// ---- The library's own transforms of powers of two, in memory that is brought

template <class T> Bytes bytesOfFft(uint32_t n) {
  int spec = 0;
  int init = 0;
  int work = 0;
  Fft<T>::kGetSize(std::countr_zero(n), QVX_FFT_SCALE_NONE, 0, &spec, &init, &work);
  return {spec, work};
}
// No transform of the library's uses the memory that its making is brought; it tests that there is some.
template <class T, class Spec>
void makeFft(Spec*& spec, QvxStatus (*init)(Spec**, int, int, int, Qvx8u*, Qvx8u*), uint32_t n, int flag, uint8_t* block) {
  init(&spec, std::countr_zero(n), flag, 0, block, block);
}

// ---- Convolution

template <class T> constexpr int64_t bytesOfPoints(int64_t n) { return n * 2 * static_cast<int64_t>(sizeof(T)); }

// The length of least cost from 2n - 1 on: a power of two, or one that is shorter, past the nearest cache by however little.
// Within it a transform of a power of two takes 0.7 of the time of other lengths for a point, past it 1.1 to 1.7: 5507 complex
// doubles take 0.46 by 11520 points of what they take by 16384. `told` bytes have room for it: twice the points of a transform by
// factors.
template <class T> uint32_t lengthOfConvolution(uint32_t n, int64_t told) {
  const uint32_t least = 2 * n - 1;
  uint32_t best = std::bit_ceil(least);
  if (bytesOfPoints<T>(best) + bytesOfFft<T>(best).work + Carver::kLine - fft::kWorkSlack > told) best = 2 * best;
  double cost = isInNearestCache<T>(best / 2) ? 0.7 * best : best;  // half, since it goes in place
  for (const uint32_t odd : {3, 5, 7, 9, 15, 21, 25, 27, 45, 63, 75, 81, 125, 135, 225}) {
    uint32_t length = odd * 16;
    while (length < least) length *= 2;
    if (length >= cost || 2 * bytesOfPoints<T>(length) + Carver::kLine > told) continue;
    best = length;
    cost = length;
  }
  return best;
}

// By powers a convolution is one point shorter than they are: half of what a chirp takes. With factors up to 13 it takes 0.2 to
// 0.8 of the time: 8191 complex doubles 0.51, in registers of 32 bytes 0.41, of 16 bytes 0.44. Points go to the other order and
// back one by one, so wide vectors lose by it where transforms are short: 241 complex floats would take 1.3 in registers of 64
// bytes, 127 doubles 1.2.
template <class T> inline constexpr uint32_t kLeastPermuted = kWidest<T> <= 4 ? 0 : kWidest<T> == 8 ? 128 : 500;
template <class T> bool isPermuted(uint32_t n) {
  const uint32_t odd = (n - 1) >> std::countr_zero(n - 1);
  return (n > kLeastPermuted<T> || odd <= 3) && isPrimeByPowers(n);
}

// Points between passes, in lines of the cache. A chirp's lengths are multiples of 16.
template <class T> constexpr int64_t inLines(int64_t points) {
  return up<Carver::kLine / static_cast<int64_t>(sizeof(T))>(points);
}

template <class T> Bytes choose(ConvolutionPlan<T>& plan, uint32_t n) {
  plan.isPermuted = isPermuted<T>(n);
  const uint32_t length = plan.isPermuted ? n - 1 : lengthOfConvolution<T>(n, *complexWork<T>(n));
  plan.length = length;
  const int64_t spare = kVectorBytes * 3;  // past the chirp, for whole vectors
  const int64_t ofPoints = plan.isPermuted ? int64_t{length} * 8 : bytesOfPoints<T>(n) + spare;
  const int64_t points = bytesOfPoints<T>(inLines<T>(length));
  const Bytes bytes = {bytesOfPoints<T>(length) + ofPoints + 4 * Carver::kLine, points + Carver::kLine};
  if (std::has_single_bit(length)) {
    const Bytes fft = bytesOfFft<T>(length);
    return {bytes.tables + fft.tables, bytes.work + fft.work - fft::kWorkSlack};
  }
  planMixed<PointsInMemory<T>>(plan.length, plan.mixed);
  return {bytes.tables + static_cast<int64_t>(tableLength(plan.mixed) * sizeof(T)), bytes.work + points};
}

// The points of a convolution, and room for a transform: y is in its place, and where it leaves its results becomes y.
template <class T> struct ConvolutionWork {
  T* y;
  T* other;

  ConvolutionWork(const ConvolutionPlan<T>& plan, uint8_t* work) {
    Carver carver(work, Carver::kLine);
    y = carver.take<T>(2 * inLines<T>(plan.length));
    other = reinterpret_cast<T*>(carver.rest());
  }
  void transform(const ConvolutionPlan<T>& plan, bool isInverse) {
    if (!isNull(plan.fft)) {
      using C = typename FftOf<T>::C;
      auto* const points = reinterpret_cast<C*>(y);
      (isInverse ? Fft<T>::kInverse : Fft<T>::kForward)(points, points, plan.fft, reinterpret_cast<uint8_t*>(other));
      return;
    }
    using Points = PointsInMemory<T>;
    const T sign = isInverse ? T(-0.0) : T(0);
    const auto between = [plane = inLines<T>(plan.length)](T* p) {
      if constexpr (kAreNumbers<Points>) return Numbers<T>{p};
      else return planes(p, p + plane);
    };
    const PointsInMemory<const T> src = {y, sign};
    if (plan.mixed.count % 2 == 0) return runMixed(plan.mixed, src, Points{y, sign}, between(other), between(y), T(1));
    runMixed(plan.mixed, src, Points{other, sign}, between(y), between(other), T(1));
    std::swap(y, other);
  }
  // by the spectrum
  void multiply(const ConvolutionPlan<T>& plan) {
    constexpr size_t L = kWidest<T>;
    const Lanes<T, L> d;
    using V = Vec<Lanes<T, L>>;
    const auto times = [](V z, V w) { return product(ComplexVector<V, false>{z}, evensTwice(w), oddsTwice(w)).v; };
    const size_t parts = 2 * plan.length;
    size_t i = 0;
    for (; i + L <= parts; i += L) store(times(load(d, y + i), load(d, plan.spectrum + i)), d, y + i);
    if (i == parts) return;
    putFirstLanes(times(firstLanes(d, y + i, parts - i), firstLanes(d, plan.spectrum + i, parts - i)), d, y + i, parts - i);
  }
};

// ---- Of a prime number of points, by powers

template <class T> void writePermuted(ConvolutionPlan<T>& plan, uint32_t n, uint8_t* block, uint8_t* work) {
  const size_t length = plan.length;
  Carver carver(block, Carver::kLine);
  T* const spectrum = carver.takeLines<T>(2 * static_cast<int64_t>(length));
  auto* const powers = carver.takeLines<uint32_t>(static_cast<int64_t>(length));
  auto* const places = carver.takeLines<uint32_t>(static_cast<int64_t>(length));
  if (std::has_single_bit(plan.length)) makeFft<T>(plan.fft, Fft<T>::kInit, plan.length, QVX_FFT_SCALE_NONE, carver.rest());
  else writeMixed<PointsInMemory<T>>(plan.mixed, reinterpret_cast<T*>(carver.rest()));
  writePowers(n, powers, places);
  plan.powers = powers;
  plan.places = places;
  plan.spectrum = spectrum;
  const Wider<T> factor = 1 / static_cast<Wider<T>>(length);
  const auto fill = [=](auto* re, auto* im) {
    writeTwiddles(
        n, length, [=](size_t m) { return powers[m == 0 ? 0 : length - m]; },
        [=](size_t m, double cosine, double sine) { re[m] = factor * cosine, im[m] = factor * sine; });
  };
  writeSpectrum(length, spectrum, work, fill, [=](size_t k, T re, T im) { spectrum[2 * k] = re, spectrum[2 * k + 1] = im; });
}

// get(k): points from the second on, `first` the one before. Where the results are; the first one is returned.
//
// Results are fetched from all over in the order of the destination, not left there in their own: loads wait for the cache side
// by side, stores one after another.
template <class T, class Get>
T* convolveByPowers(const ConvolutionPlan<T>& plan, Complex<T> first, Complex<T>& sum, Get get, uint8_t* work) {
  ConvolutionWork<T> points(plan, work);
  const size_t length = plan.length;
  const uint32_t* const powers = plan.powers;
  for (size_t m = 0; m < length; ++m) get(powers[m], points.y + 2 * m);
  points.transform(plan, false);
  sum = {first.re + points.y[0], first.im + points.y[1]};
  points.multiply(plan);
  points.y[0] += first.re;  // and so each result is greater by it
  points.y[1] += first.im;
  points.transform(plan, true);
  return points.y;
}

// src may be dst. Inverse: results in the opposite order.
template <class T>
void convolvePermuted(const ConvolutionPlan<T>& plan, bool isInverse, const T* src, T* dst, T factor, uint8_t* work) {
  const Lanes<T, 2> d;
  using V = Vec<Lanes<T, 2>>;
  Complex<T> sum;
  const auto get = [=](size_t k, T* to) { store(load(d, src + 2 * k), d, to); };
  const T* const results = convolveByPowers(plan, {src[0], src[1]}, sum, get, work);
  dst[0] = factor * sum.re;
  dst[1] = factor * sum.im;
  const size_t length = plan.length;
  const auto put = [=, places = plan.places](size_t i, size_t k) {
    store(load(d, results + 2 * places[i]) * same<V>(factor), d, dst + 2 * k);
  };
  if (isInverse) {
    for (size_t i = 0; i < length; ++i) put(i, length - i);
  } else {
    for (size_t i = 0; i < length; ++i) put(i, i + 1);
  }
}

// ---- With a chirp

template <class T> void writeTables(ConvolutionPlan<T>& plan, uint32_t n, uint8_t* block, uint8_t* work) {
  const RoundingScope nearest(Rounding::kNearest);
  const WiderScope widerNearest;
  if (plan.isPermuted) return writePermuted(plan, n, block, work);
  const size_t length = plan.length;
  Carver carver(block, Carver::kLine);
  T* const chirp = carver.take<T>(2 * int64_t{n} + 2 * static_cast<int64_t>(kWidest<T>));
  T* const spectrum = carver.takeLines<T>(2 * static_cast<int64_t>(length));
  if (std::has_single_bit(plan.length)) makeFft<T>(plan.fft, Fft<T>::kInit, plan.length, QVX_FFT_SCALE_NONE, carver.rest());
  else writeMixed<PointsInMemory<T>>(plan.mixed, reinterpret_cast<T*>(carver.rest()));
  // exp(-pi i k^2 / n): k^2 mod 2n never exceeds 2^55.
  writeTwiddles(
      2 * size_t{n}, n, [n](size_t k) { return k * k % (2 * size_t{n}); },
      [=](size_t k, double re, double im) {
        chirp[k] = static_cast<T>(re);
        chirp[n + k] = static_cast<T>(im);
      });
  std::fill_n(chirp + 2 * size_t{n}, 2 * kWidest<T>, T(0));  // whole vectors read it, and raise nothing
  plan.chirp = chirp;
  plan.spectrum = spectrum;
  const Wider<T> factor = 1 / static_cast<Wider<T>>(length);
  const auto fill = [=](auto* re, auto* im) {
    for (size_t k = 0; k < n; ++k) {
      const size_t mirrored = (length - k) % length;
      re[k] = re[mirrored] = factor * chirp[k];
      im[k] = im[mirrored] = -factor * chirp[n + k];
    }
  };
  writeSpectrum(length, spectrum, work, fill, [=](size_t k, T re, T im) { spectrum[2 * k] = re, spectrum[2 * k + 1] = im; });
}

// get(k, count), put(z, k, count): points k on, in vectors.
template <class T, class Get, class Put>
void convolve(const ConvolutionPlan<T>& plan, size_t n, size_t results, Get get, Put put, uint8_t* work) {
  constexpr size_t L = kWidest<T>;
  using V = Vec<Lanes<T, L>>;
  const size_t length = plan.length;
  ConvolutionWork<T> points(plan, work);
  const Planes<const T> chirp = planes(plan.chirp, plan.chirp + n);
  for (size_t k = 0; k < n; k += L) {
    const Complex<V> z = product(get(k, std::min(L, n - k)), chirp.template get<L>(k));
    Interleaved<T, false>{points.y}.template putInOrder<L>(z, k);
  }
  std::fill(points.y + 2 * n, points.y + 2 * length, T(0));
  points.transform(plan, false);
  points.multiply(plan);
  points.transform(plan, true);
  const Interleaved<const T, false> y = {points.y};
  for (size_t j = 0; j < results; j += L) {
    put(product(y.template getInOrder<L>(j), chirp.template get<L>(j)), j, std::min(L, results - j));
  }
}

template <class T>
void convolve(const ConvolutionPlan<T>& plan, size_t n, bool isInverse, const T* src, T* dst, T factor, uint8_t* work) {
  if (plan.isPermuted) return convolvePermuted(plan, isInverse, src, dst, factor, work);
  constexpr size_t L = kWidest<T>;
  using V = Vec<Lanes<T, L>>;
  const T sign = isInverse ? T(-0.0) : T(0);
  convolve(
      plan, n, n,
      [=](size_t k, size_t count) __attribute__((always_inline)) {
        return Conjugable<const T>{src, sign}.template getInOrder<L>(k, count);
      },
      [=](Complex<V> z, size_t k, size_t count) __attribute__((always_inline)) {
        const Conjugable<T> to = {dst, sign};
        z = ScaledBy<T>{factor}(z);
        if (count == L) to.template putInOrder<L>(z, k);
        else to.template putFirst<L>(z, k, count);
      },
      work);
}
template <class T>
void convolve(const ConvolutionPlan<T>& plan, size_t n, const T* srcRe, const T* srcIm, T* dstRe, T* dstIm, T factor,
              uint8_t* work) {
  if (plan.isPermuted) {
    Complex<T> sum;
    const auto get = [=](size_t k, T* to) { to[0] = srcRe[k], to[1] = srcIm[k]; };
    const T* const results = convolveByPowers(plan, {srcRe[0], srcIm[0]}, sum, get, work);
    dstRe[0] = factor * sum.re;
    dstIm[0] = factor * sum.im;
    for (size_t i = 0; i < plan.length; ++i) {
      const T* const result = results + 2 * plan.places[i];
      dstRe[i + 1] = factor * result[0];
      dstIm[i + 1] = factor * result[1];
    }
    return;
  }
  constexpr size_t L = kWidest<T>;
  using V = Vec<Lanes<T, L>>;
  convolve(
      plan, n, n,
      [=](size_t k, size_t count) __attribute__((always_inline)) { return planes(srcRe, srcIm).template getFirst<L>(k, count); },
      [=](Complex<V> z, size_t k, size_t count)
          __attribute__((always_inline)) { planes(dstRe, dstIm).template putFirst<L>(ScaledBy<T>{factor}(z), k, count); },
      work);
}

// Of real numbers, forward: the half of the spectrum that is not conjugate to the other, as pairs.
template <class T> void convolveReals(const ConvolutionPlan<T>& plan, size_t n, const T* src, T* dst, T factor, uint8_t* work) {
  constexpr size_t L = kWidest<T>;
  using V = Vec<Lanes<T, L>>;
  const Lanes<T, L> d;
  convolve(
      plan, n, n / 2 + 1,
      [=](size_t k, size_t count) __attribute__((always_inline)) {
        return Complex<V>{firstLanes(d, src + k, count), hn::Zero(d)};
      },
      [=](Complex<V> z, size_t k, size_t count) __attribute__((always_inline)) {
        Conjugable<T>{dst, 0}.template putFirst<L>(ScaledBy<T>{factor}(z), k, count);
      },
      work);
}

}  // namespace qvx::dft
