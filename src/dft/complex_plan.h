// Complex transforms of any length: what complex_32f.cpp and complex_64f.cpp compile.
#pragma once

#include "dft/plan.h"
#include "dft/sizes.h"
#include "fft/record.h"

namespace qvx::transform {
extern template void runGrid<float>(const GridPlan<float>& plan, bool isInverse, const float* src, float* dst, float factor);
extern template void runGrid<double>(const GridPlan<double>& plan, bool isInverse, const double* src, double* dst, double factor);
}  // namespace qvx::transform

namespace qvx::dft {

template <class T> Factors<T> factorsOf(uint32_t n, int flag) {
  const T all = static_cast<T>(n);
  const T factor = flag == QVX_FFT_SCALE_BOTH_SQRT ? fft::reciprocalRoot(all) : 1 / all;
  return {flag == QVX_FFT_SCALE_FWD || flag == QVX_FFT_SCALE_BOTH_SQRT ? factor : 1,
          flag == QVX_FFT_SCALE_INV || flag == QVX_FFT_SCALE_BOTH_SQRT ? factor : 1};
}

// ---- The library's own transforms of powers of two, in memory that is brought

template <class T> struct Fft;
template <> struct Fft<float> {
  static constexpr auto kGetSize = qvxsFFTGetSize_C_32fc;
  static constexpr auto kInit = qvxsFFTInit_C_32fc;
  static constexpr auto kForward = qvxsFFTFwd_CToC_32fc;
  static constexpr auto kInverse = qvxsFFTInv_CToC_32fc;
  static constexpr auto kInitApart = qvxsFFTInit_C_32f;
  static constexpr auto kForwardApart = qvxsFFTFwd_CToC_32f;
  static constexpr auto kInverseApart = qvxsFFTInv_CToC_32f;
};
template <> struct Fft<double> {
  static constexpr auto kGetSize = qvxsFFTGetSize_C_64fc;
  static constexpr auto kInit = qvxsFFTInit_C_64fc;
  static constexpr auto kForward = qvxsFFTFwd_CToC_64fc;
  static constexpr auto kInverse = qvxsFFTInv_CToC_64fc;
  static constexpr auto kInitApart = qvxsFFTInit_C_64f;
  static constexpr auto kForwardApart = qvxsFFTFwd_CToC_64f;
  static constexpr auto kInverseApart = qvxsFFTInv_CToC_64f;
};

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

// The length of least cost from 2n - 1 on: a power of two, or, since its transform takes 0.7 of the time of other lengths for a
// point, one that is much shorter. `told` bytes have room for it: twice the points of a transform by factors.
template <class T> uint32_t lengthOfConvolution(uint32_t n, int64_t told) {
  const uint32_t least = 2 * n - 1;
  uint32_t best = std::bit_ceil(least);
  if (bytesOfPoints<T>(best) + bytesOfFft<T>(best).work + Carver::kLine - fft::kWorkSlack > told) best = 2 * best;
  double cost = 0.7 * best;
  for (const uint32_t odd : {3, 5, 7, 9, 15, 21, 25, 27, 45, 63, 75, 81, 125, 135, 225}) {
    uint32_t length = odd * 16;
    while (length < least) length *= 2;
    if (length >= cost || 2 * bytesOfPoints<T>(length) + Carver::kLine > told) continue;
    best = length;
    cost = length;
  }
  return best;
}

template <class T> Bytes choose(ConvolutionPlan<T>& plan, uint32_t n) {
  const uint32_t length = lengthOfConvolution<T>(n, *complexWork<T>(n));
  plan.length = length;
  const int64_t spare = kVectorBytes * 3;  // past the chirp, for whole vectors
  Bytes bytes = {bytesOfPoints<T>(int64_t{n} + length) + spare + 3 * Carver::kLine, bytesOfPoints<T>(length) + Carver::kLine};
  if (std::has_single_bit(length)) {
    const Bytes fft = bytesOfFft<T>(length);
    return {bytes.tables + fft.tables, bytes.work + fft.work - fft::kWorkSlack};
  }
  MixedPlanner<T>().plan(length, plan.mixed);
  return {bytes.tables + static_cast<int64_t>(tableLength(plan.mixed) * sizeof(T)), bytes.work + bytesOfPoints<T>(length)};
}

// The points of a convolution, and room for a transform: y is in its place, and where it leaves its results becomes y.
template <class T> struct ConvolutionWork {
  Planes<T> y;
  Planes<T> other;
  uint8_t* rest;

  ConvolutionWork(const ConvolutionPlan<T>& plan, uint8_t* work) {
    const auto length = static_cast<int64_t>(plan.length);
    Carver carver(work, Carver::kLine);
    T* const re = carver.take<T>(length);
    y = planes(re, carver.take<T>(length));
    rest = carver.rest();
    auto* const next = reinterpret_cast<T*>(rest);
    other = planes(next, next + length);
  }
  void transform(const ConvolutionPlan<T>& plan) {
    if (!isNull(plan.fft)) {
      Fft<T>::kForwardApart(y.re, y.im, y.re, y.im, plan.fft, rest);
    } else if (plan.mixed.count % 2 == 0) {
      runMixed(plan.mixed, asConst(y), y, other, y, T(1));
    } else {
      runMixed(plan.mixed, asConst(y), other, y, other, T(1));
      std::swap(y, other);
    }
  }
  void exchangeParts() {
    std::swap(y.re, y.im);
    std::swap(other.re, other.im);
  }
};

template <class T> void writeTables(ConvolutionPlan<T>& plan, uint32_t n, uint8_t* block, uint8_t* work) {
  const size_t length = plan.length;
  Carver carver(block, Carver::kLine);
  T* const chirp = carver.take<T>(2 * int64_t{n} + 2 * static_cast<int64_t>(kWidest<T>));
  T* const spectrum = carver.takeLines<T>(2 * static_cast<int64_t>(length));
  if (std::has_single_bit(plan.length)) makeFft<T>(plan.fft, Fft<T>::kInitApart, plan.length, QVX_FFT_SCALE_NONE, carver.rest());
  else writeMixed<Planes<T>>(plan.mixed, reinterpret_cast<T*>(carver.rest()));
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
  ConvolutionWork<T> points(plan, work);
  const T factor = 1 / static_cast<T>(length);
  std::fill_n(points.y.re, length, T(0));
  std::fill_n(points.y.im, length, T(0));
  for (size_t k = 0; k < n; ++k) {
    for (const size_t at : {k, (length - k) % length}) {
      points.y.re[at] = chirp[k] * factor;
      points.y.im[at] = -chirp[n + k] * factor;
    }
  }
  points.transform(plan);
  // The spectrum is symmetric as the chirp is: the mean of both halves has an error that is a third less.
  for (size_t k = 0; k < length; ++k) {
    const size_t mirrored = (length - k) % length;
    spectrum[k] = T(0.5) * (points.y.re[k] + points.y.re[mirrored]);
    spectrum[length + k] = T(0.5) * (points.y.im[k] + points.y.im[mirrored]);
  }
}

// get(k, count), put(z, k, count): points k on, in vectors.
template <class T, class Get, class Put>
void convolve(const ConvolutionPlan<T>& plan, size_t n, size_t results, Get get, Put put, uint8_t* work) {
  constexpr size_t L = kWidest<T>;
  using V = Vec<Lanes<T, L>>;
  const Lanes<T, L> d;
  const size_t length = plan.length;
  ConvolutionWork<T> points(plan, work);
  const Planes<const T> chirp = planes(plan.chirp, plan.chirp + n);
  for (size_t k = 0; k < n; k += L) {
    const Complex<V> z = product(get(k, std::min(L, n - k)), chirp.template get<L>(k));
    points.y.template put<L>(z, k);
  }
  std::fill(points.y.re + n, points.y.re + length, T(0));
  std::fill(points.y.im + n, points.y.im + length, T(0));
  points.transform(plan);
  const Planes<const T> spectrum = planes(plan.spectrum, plan.spectrum + length);
  size_t k = 0;
  for (; k + L <= length; k += L) points.y.template put<L>(product(points.y.template get<L>(k), spectrum.template get<L>(k)), k);
  if (k < length) {
    const Complex<V> z = product(points.y.template getFirst<L>(k, length - k), spectrum.template getFirst<L>(k, length - k));
    points.y.template putFirst<L>(z, k, length - k);
  }
  points.exchangeParts();
  points.transform(plan);
  points.exchangeParts();
  for (size_t j = 0; j < results; j += L) {
    put(product(points.y.template get<L>(j), chirp.template get<L>(j)), j, std::min(L, results - j));
  }
  (void)d;
}

template <class T>
void convolve(const ConvolutionPlan<T>& plan, size_t n, bool isInverse, const T* src, T* dst, T factor, uint8_t* work) {
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

// ---- Any length

template <class T> Bytes choose(ComplexPlan<T>& plan, uint32_t n, bool isApart, int flag) {
  plan.n = n;
  plan.isApart = isApart;
  const auto factors = factorsOf<T>(n, flag);
  plan.forwardFactor = factors.forward;
  plan.inverseFactor = factors.inverse;
  if (std::has_single_bit(n)) {
    plan.way = Way::kFft;
    return bytesOfFft<T>(n);
  }
  if (n <= kMostSmall) {  // in registers, with constants of the code
    plan.way = Way::kDirect;
    plan.direct.n = n;
    return {0, 0};
  }
  if (n <= kMostDirect && isPrime(n)) {
    plan.way = Way::kDirect;
    return chooseDirect(plan.direct, n, false);
  }
  if (!isApart && chooseGrid(plan.grid, n)) {
    plan.way = Way::kGrid;
    return {static_cast<int64_t>(tableLength(plan.grid) * sizeof(T)), 0};
  }
  MixedPlanner<T> planner;
  if (planner.plan(n, plan.mixed)) {
    plan.way = Way::kFactors;
    return {static_cast<int64_t>(tableLength(plan.mixed) * sizeof(T)), bytesOfPoints<T>(n) + Carver::kLine};
  }
  plan.way = Way::kConvolution;
  return choose(plan.convolution, n);
}

template <class T> void writeTables(ComplexPlan<T>& plan, int flag, uint8_t* block, uint8_t* work) {
  switch (plan.way) {
    case Way::kRegisters:
      break;
    case Way::kFft:
      if (plan.isApart) makeFft<T>(plan.splitFft, Fft<T>::kInitApart, plan.n, flag, block);
      else makeFft<T>(plan.fft, Fft<T>::kInit, plan.n, flag, block);
      break;
    case Way::kDirect:
      if (plan.n > kMostSmall) writeDirect(plan.direct, false, block);
      break;
    case Way::kGrid:
      writeGrid(plan.grid, reinterpret_cast<T*>(block));
      break;
    case Way::kFactors:
      if (plan.isApart) writeMixed<Planes<T>>(plan.mixed, reinterpret_cast<T*>(block));
      else writeMixed<Conjugable<T>>(plan.mixed, reinterpret_cast<T*>(block));
      break;
    case Way::kConvolution:
      return writeTables(plan.convolution, plan.n, block, work);
  }
}

template <class T> void run(const ComplexPlan<T>& plan, bool isInverse, const T* src, T* dst, uint8_t* work) {
  using C = typename FftOf<T>::C;
  const T factor = isInverse ? plan.inverseFactor : plan.forwardFactor;
  const size_t n = plan.n;
  switch (plan.way) {
    case Way::kFft:
      (isInverse ? Fft<T>::kInverse : Fft<T>::kForward)(reinterpret_cast<const C*>(src), reinterpret_cast<C*>(dst), plan.fft,
                                                        work);
      return;
    case Way::kDirect:
      return small(plan.direct, isInverse, src, dst, factor);
    case Way::kGrid:
      return runGrid(plan.grid, isInverse, src, dst, factor);
    case Way::kConvolution:
      return convolve(plan.convolution, n, isInverse, src, dst, factor, work);
    case Way::kRegisters:
    case Way::kFactors:
      break;
  }
  const T sign = isInverse ? T(-0.0) : T(0);
  T* const y = Carver(work, Carver::kLine).template take<T>(0);
  const Conjugable<const T> points = {src, sign};
  const Planes<T> own = planes(y, y + n);
  const Planes<T> theirs = planes(dst, dst + n);
  if (src != dst || plan.mixed.count % 2 == 0) return runMixed(plan.mixed, points, Conjugable<T>{dst, sign}, own, theirs, factor);
  runMixed(plan.mixed, points, Conjugable<T>{y, sign}, theirs, own, factor);
  std::copy_n(y, 2 * n, dst);
}

template <class T>
void run(const ComplexPlan<T>& plan, bool isInverse, const T* srcRe, const T* srcIm, T* dstRe, T* dstIm, uint8_t* work) {
  const T factor = isInverse ? plan.inverseFactor : plan.forwardFactor;
  if (plan.way == Way::kFft) {
    (isInverse ? Fft<T>::kInverseApart : Fft<T>::kForwardApart)(srcRe, srcIm, dstRe, dstIm, plan.splitFft, work);
    return;
  }
  if (isInverse) {
    std::swap(srcRe, srcIm);
    std::swap(dstRe, dstIm);
  }
  if (plan.way == Way::kConvolution) return convolve(plan.convolution, plan.n, srcRe, srcIm, dstRe, dstIm, factor, work);
  const size_t n = plan.n;
  if (plan.way == Way::kDirect) {
    T points[2 * kMostDirect];
    for (size_t i = 0; i < n; ++i) points[2 * i] = srcRe[i], points[2 * i + 1] = srcIm[i];
    small(plan.direct, false, points, points, factor);
    for (size_t i = 0; i < n; ++i) dstRe[i] = points[2 * i], dstIm[i] = points[2 * i + 1];
    return;
  }
  T* const y = Carver(work, Carver::kLine).template take<T>(0);
  const Planes<T> own = planes(y, y + n);
  const Planes<T> theirs = planes(dstRe, dstIm);
  const bool isInPlace = srcRe == dstRe || srcIm == dstIm || srcRe == dstIm || srcIm == dstRe;
  if (!isInPlace || plan.mixed.count % 2 == 0) return runMixed(plan.mixed, planes(srcRe, srcIm), theirs, own, theirs, factor);
  runMixed(plan.mixed, planes(srcRe, srcIm), own, theirs, own, factor);
  std::copy_n(own.re, n, dstRe);
  std::copy_n(own.im, n, dstIm);
}

template <class T> void spectrumByConvolution(const ComplexPlan<T>& plan, const T* src, T* dst, uint8_t* work) {
  convolveReals(plan.convolution, plan.n, src, dst, plan.forwardFactor, work);
}

}  // namespace qvx::dft
