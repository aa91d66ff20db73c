// Real transforms of any length: what real_plan_32f.cpp and real_plan_64f.cpp compile.
#pragma once

#include <cstring>

#include "dft/odd_real.h"
#include "dft/real_convolution.h"
#include "dft/small_real.h"
#include "transform/real_transform.h"

namespace qvx::dft {

template <class T> struct RealFft;
template <> struct RealFft<float> {
  static constexpr auto kGetSize = qvxsFFTGetSize_R_32f;
  static constexpr auto kInit = qvxsFFTInit_R_32f;
  static constexpr decltype(&qvxsFFTFwd_RToPerm_32f) kForward[] = {qvxsFFTFwd_RToPerm_32f, qvxsFFTFwd_RToPack_32f,
                                                                   qvxsFFTFwd_RToCCS_32f};
  static constexpr decltype(&qvxsFFTFwd_RToPerm_32f) kInverse[] = {qvxsFFTInv_PermToR_32f, qvxsFFTInv_PackToR_32f,
                                                                   qvxsFFTInv_CCSToR_32f};
};
template <> struct RealFft<double> {
  static constexpr auto kGetSize = qvxsFFTGetSize_R_64f;
  static constexpr auto kInit = qvxsFFTInit_R_64f;
  static constexpr decltype(&qvxsFFTFwd_RToPerm_64f) kForward[] = {qvxsFFTFwd_RToPerm_64f, qvxsFFTFwd_RToPack_64f,
                                                                   qvxsFFTFwd_RToCCS_64f};
  static constexpr decltype(&qvxsFFTFwd_RToPerm_64f) kInverse[] = {qvxsFFTInv_PermToR_64f, qvxsFFTInv_PackToR_64f,
                                                                   qvxsFFTInv_CCSToR_64f};
};

// Pairs k .. k + L - 1 and h - k .. of a spectrum and of the points it comes from (recombine.h). c, d: of k = 1 on.
template <size_t L, bool kInverse, class T>
QVX_INLINE void recombineAt(const T* src, T* dst, size_t h, size_t k, const T* c, const T* d) {
  using V = Vec<Lanes<T, L>>;
  const auto inReverse = [](Complex<V> z) __attribute__((always_inline)) {
    if constexpr (L == 1) return z;
    else return Complex<V>{reversed(z.re), reversed(z.im)};
  };
  const auto get = [=](size_t at) __attribute__((always_inline)) {
    const Lanes<T, L> tag;
    if constexpr (L == 1) return Complex<V>{load(tag, src + 2 * at), load(tag, src + 2 * at + 1)};
    else return Interleaved<const T, false>{src}.template getInOrder<L>(at);
  };
  const auto put = [=](Complex<V> z, size_t at) __attribute__((always_inline)) {
    const Lanes<T, L> tag;
    if constexpr (L == 1) store(z.re, tag, dst + 2 * at), store(z.im, tag, dst + 2 * at + 1);
    else Interleaved<T, false>{dst}.template putInOrder<L>(z, at);
  };
  const Lanes<T, L> tag;
  Complex<V> a = get(k);
  Complex<V> b = inReverse(get(h - k - L + 1));
  transform::recombine<V, kInverse>(a, b, Complex<V>{load(tag, c + k - 1), load(tag, d + k - 1)});
  put(a, k);
  put(inReverse(b), h - k - L + 1);
}

template <bool kInverse, class T> void recombinePairs(const T* src, T* dst, size_t h, const T* c, const T* d) {
  constexpr size_t L = kWidest<T>;
  constexpr size_t M = std::min<size_t>(4, L);
  const size_t pairs = (h - 1) / 2;
  size_t k = 1;
  for (; k + L <= pairs + 1; k += L) recombineAt<L, kInverse>(src, dst, h, k, c, d);
  for (; k + M <= pairs + 1; k += M) recombineAt<M, kInverse>(src, dst, h, k, c, d);
  for (; k <= pairs; ++k) recombineAt<1, kInverse>(src, dst, h, k, c, d);
  if (h % 2 != 0 || h == 0) return;
  dst[h] = src[h];
  dst[h + 1] = -src[h + 1];
}

// Up to here any odd number goes by the definition, beyond only primes.
template <class T>
inline constexpr uint32_t kMostDirectOdd = kWidest<T> == 2   ? 43
                                           : kWidest<T> == 4 ? 69
                                           : kWidest<T> == 8 ? 95
                                                             : 145;
// Beyond, a prime number whose neighbour has good factors goes by powers: 127 doubles take 0.56 of the time of the definition in
// registers of 16 bytes, 0.52 in those of 64; 181 floats 0.49 and 0.59. 73 to 89 doubles would take 0.8 to 0.9 in those of 16,
// with a third more error.
template <class T>
inline constexpr uint32_t kMostDirectPrime = kWidest<T> <= 4    ? 90
                                             : kWidest<T> == 16 ? 160
                                             : sizeof(T) == 4   ? 150
                                                                : 110;
// Not where the convolution is a transform of 81 points and more by threes: of 1459 doubles it is off by 2.05 eps, complex points
// by 1.95.
inline bool isByPowers(uint32_t n) { return isPrimeByPowers(n) && (n - 1) % 81 != 0; }
template <class T> bool isDirect(uint32_t n) {
  if (n % 2 == 0 || n > kMostDirect<1, T> || (n > kMostDirectPrime<T> && isByPowers(n))) return false;
  return n <= kMostDirectOdd<T> || isPrime(n);
}

template <class T> void setFactors(RealPlan<T>& plan, int flag) {
  const auto factors = factorsOf<T>(plan.n, flag);
  plan.forwardFactor = factors.forward;
  plan.inverseFactor = factors.inverse;
}
template <class T> Bytes choose(RealPlan<T>& plan, uint32_t n, int flag) {
  plan.n = n;
  if (std::has_single_bit(n)) {
    plan.way = Way::kFft;
    int spec = 0;
    int init = 0;
    int work = 0;
    RealFft<T>::kGetSize(std::countr_zero(n), flag, 0, &spec, &init, &work);
    return {spec, work};
  }
  if (!isInRegisters(n) && !isDirect<T>(n)) return chooseLong(plan, n, flag);
  setFactors(plan, flag);
  plan.way = isInRegisters(n) ? Way::kRegisters : Way::kDirect;
  return plan.way == Way::kRegisters ? Bytes{0, 0} : chooseDirect<1>(plan.direct, n);
}
template <class T> Bytes chooseLong(RealPlan<T>& plan, uint32_t n, int flag) {
  plan.n = n;
  setFactors(plan, flag);
  if (isByPowers(n)) {
    plan.way = Way::kConvolution;
    return choose(plan.convolution, n);
  }
  plan.way = Way::kFactors;
  if (n % 2 != 0) chooseRealColumns(plan.columns, n);
  if (plan.columns.radix != 0) return chooseOddReals(plan);
  Bytes bytes = choose(plan.complex, n % 2 == 0 ? n / 2 : n, false, QVX_FFT_SCALE_NONE);
  constexpr int64_t kNumber = sizeof(T);
  if (n % 2 == 0) bytes.tables += (n + 3) / 4 * 2 * kNumber + Carver::kLine;
  else bytes.work += (isByChirp(plan.complex) ? n + 1 : 2 * int64_t{n}) * kNumber + Carver::kLine;
  plan.complex.forwardFactor = plan.forwardFactor;
  plan.complex.inverseFactor = n % 2 == 0 ? 2 * plan.inverseFactor : plan.inverseFactor;
  return bytes;
}

template <class T> void writeTables(RealPlan<T>& plan, int flag, uint8_t* block, uint8_t* work) {
  const size_t n = plan.n;
  if (plan.way == Way::kRegisters) return;
  if (plan.way == Way::kDirect) return writeDirect<1>(plan.direct, block);
  if (plan.way == Way::kConvolution) return writeTables(plan.convolution, block, work);
  if (plan.way == Way::kFft) {
    RealFft<T>::kInit(&plan.fft, std::countr_zero(n), flag, 0, block, block);
    return;
  }
  Carver carver(block, Carver::kLine);
  if (n % 2 == 0) {
    const size_t count = (n + 3) / 4;
    T* const c = carver.take<T>(static_cast<int64_t>(2 * count));
    plan.recombination = c;
    writeTwiddles(
        n, count, [](size_t i) { return i + 1; },
        [=](size_t i, double re, double im) {
          c[i] = static_cast<T>(0.5 * re);
          c[count + i] = static_cast<T>(0.5 + 0.5 * im);
        });
  }
  if (plan.columns.radix != 0) carver = Carver(writeRealColumns(plan.columns, carver.take<T>(0)), 1);
  writeTables(plan.complex, QVX_FFT_SCALE_NONE, carver.rest(), work);
}

template <class T> void forward(const RealPlan<T>& plan, SpectrumLayout layout, const T* src, T* dst, uint8_t* work) {
  const size_t n = plan.n;
  if (plan.way == Way::kRegisters) return smallForward(n, layout, src, dst, plan.forwardFactor);
  if (plan.way == Way::kDirect) return directForward(plan.direct, layout, src, dst, plan.forwardFactor);
  if (plan.way == Way::kFft) {
    RealFft<T>::kForward[static_cast<int>(layout)](src, dst, plan.fft, work);
    return;
  }
  if (n % 2 == 0) {
    run(plan.complex, false, src, dst, work);
    const T even = dst[0];
    const T odd = dst[1];
    dst[0] = even + odd;
    dst[1] = even - odd;
    const T* c = plan.recombination;
    recombinePairs<false>(dst, dst, n / 2, c, c + (n + 3) / 4);
    if (layout == SpectrumLayout::kPack) fromPerm<SpectrumLayout::kPack>(dst, n);
    if (layout == SpectrumLayout::kCcs) fromPerm<SpectrumLayout::kCcs>(dst, n);
    return;
  }
  if (plan.way == Way::kConvolution) {
    dst[0] = convolveForward(plan.convolution, src, dst + placeOfPair(layout, n, 1), plan.forwardFactor, work);
    if (layout == SpectrumLayout::kCcs) dst[1] = 0;
    return;
  }
  if (plan.columns.radix != 0) return forwardOddReals(plan, layout, src, dst, work);
  if (isByChirp(plan.complex)) return forwardByChirp(plan, layout, src, dst, work);
  Carver carver(work, Carver::kLine);
  T* const points = carver.take<T>(static_cast<int64_t>(2 * n));
  for (size_t i = 0; i < n; ++i) {
    points[2 * i] = src[i];
    points[2 * i + 1] = 0;
  }
  run(plan.complex, false, points, points, carver.rest());
  dst[0] = points[0];
  if (layout == SpectrumLayout::kCcs) dst[1] = 0;
  std::copy_n(points + 2, n - 1, dst + placeOfPair(layout, n, 1));
}

template <class T> void inverse(const RealPlan<T>& plan, SpectrumLayout layout, const T* src, T* dst, uint8_t* work) {
  const size_t n = plan.n;
  if (plan.way == Way::kRegisters) return smallInverse(n, layout, src, dst, plan.inverseFactor);
  if (plan.way == Way::kDirect) return directInverse(plan.direct, layout, src, dst, plan.inverseFactor);
  if (plan.way == Way::kFft) {
    RealFft<T>::kInverse[static_cast<int>(layout)](src, dst, plan.fft, work);
    return;
  }
  if (n % 2 == 0) {
    const T nyquist = src[placeOfMiddle(layout, n)];
    const T mean = src[0];
    if (layout == SpectrumLayout::kPack) {
      std::memmove(dst + 2, src + 1, (n - 2) * sizeof(T));
      src = dst;
    }
    const T* c = plan.recombination;
    recombinePairs<true>(src, dst, n / 2, c, c + (n + 3) / 4);
    dst[0] = T(0.5) * (mean + nyquist);
    dst[1] = T(0.5) * (mean - nyquist);
    run(plan.complex, true, dst, dst, work);
    return;
  }
  const T* pairs = src + placeOfPair(layout, n, 1);
  if (plan.way == Way::kConvolution) return convolveInverse(plan.convolution, src[0], pairs, dst, plan.inverseFactor, work);
  if (plan.columns.radix != 0) return inverseOddReals(plan, layout, src, dst, work);
  if (isByChirp(plan.complex)) return inverseByChirp(plan, layout, src, dst, work);
  Carver carver(work, Carver::kLine);
  T* const points = carver.take<T>(static_cast<int64_t>(2 * n));
  points[0] = src[0];
  points[1] = 0;
  for (size_t k = 1; k <= n / 2; ++k, pairs += 2) {
    points[2 * k] = pairs[0];
    points[2 * k + 1] = pairs[1];
    points[2 * (n - k)] = pairs[0];
    points[2 * (n - k) + 1] = -pairs[1];
  }
  run(plan.complex, true, points, points, carver.rest());
  for (size_t i = 0; i < n; ++i) dst[i] = points[2 * i];
}

}  // namespace qvx::dft
