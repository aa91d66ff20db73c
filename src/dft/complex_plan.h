// Complex transforms of any length: what complex_plan_32f.cpp and complex_plan_64f.cpp compile.
#pragma once

#include "dft/convolution.h"

namespace qvx::transform {
extern template void runGrid<float>(const GridPlan<float>& plan, bool isInverse, const float* src, float* dst, float factor);
extern template void runGrid<double>(const GridPlan<double>& plan, bool isInverse, const double* src, double* dst, double factor);
}  // namespace qvx::transform

namespace qvx::dft {

template <class T> Factors<T> factorsOf(uint32_t n, int flag) {
  const RoundingScope nearest(Rounding::kNearest);
  const T all = RoundingScope::pinned(static_cast<T>(n));
  const T factor = RoundingScope::pinned(flag == QVX_FFT_SCALE_BOTH_SQRT ? fft::reciprocalRoot(all) : 1 / all);
  return {flag == QVX_FFT_SCALE_FWD || flag == QVX_FFT_SCALE_BOTH_SQRT ? factor : 1,
          flag == QVX_FFT_SCALE_INV || flag == QVX_FFT_SCALE_BOTH_SQRT ? factor : 1};
}

// ---- Any length

// 640 KiB of points: with source, destination and working memory about what the second-level cache holds. 48000 complex doubles
// take 0.89 of the time by blocks, 60000 take 0.80, 30000 take 1.09; 96000 floats 0.88, 60000 floats 1.06. Numbers, which need
// fewer passes, go by factors up to 1600 KiB: 44100 to 100000 complex doubles take 0.72 to 0.81 of the time by blocks in AVX2,
// 0.8 to 0.9 in SSSE3, on one thread.
template <class T> constexpr bool areForBlocks(uint32_t n, bool isApart) {
  const size_t most = size_t{kHasMasks || isApart ? 640U : 1600U} << 10;
  return n * 2 * sizeof(T) > most;
}

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
  if (n <= kMostDirect<2, T> && isPrime(n)) {
    plan.way = Way::kDirect;
    return chooseDirect<2>(plan.direct, n);
  }
  if (!isApart && chooseGrid(plan.grid, n)) {
    plan.way = Way::kGrid;
    return {static_cast<int64_t>(tableLength(plan.grid) * sizeof(T)), 0};
  }
  const auto planOf = [&](auto points) {
    return planBlocks<typename decltype(points)::type>(n, plan.blocks.columns, plan.blocks.rows);
  };
  if (areForBlocks<T>(n, isApart) && (isApart ? planOf(std::type_identity<Planes<T>>()) : withBlockPoints<T>(n, planOf))) {
    plan.way = Way::kBlocks;
    return {static_cast<int64_t>(tableLength(plan.blocks.columns, plan.blocks.rows) * sizeof(T)),
            bytesOfPoints<T>(n) + Carver::kLine};
  }
  if (isApart ? planMixed<Planes<T>>(n, plan.mixed) : planMixed<PointsInMemory<T>>(n, plan.mixed)) {
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
      if (plan.n > kMostSmall) writeDirect<2>(plan.direct, block);
      break;
    case Way::kGrid:
      writeGrid(plan.grid, reinterpret_cast<T*>(block));
      break;
    case Way::kFactors:
      if (plan.isApart) writeMixed<Planes<T>>(plan.mixed, reinterpret_cast<T*>(block));
      else writeMixed<PointsInMemory<T>>(plan.mixed, reinterpret_cast<T*>(block));
      break;
    case Way::kBlocks:
      if (plan.isApart) return writeBlocks<Planes<T>>(plan.blocks, reinterpret_cast<T*>(block));
      return withBlockPoints<T>(
          plan.n, [&](auto points) { writeBlocks<typename decltype(points)::type>(plan.blocks, reinterpret_cast<T*>(block)); });
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
      small(plan.direct, isInverse, src, dst, factor);
      return;
    case Way::kGrid:
      return runGrid(plan.grid, isInverse, src, dst, factor);
    case Way::kConvolution:
      return convolve(plan.convolution, n, isInverse, src, dst, factor, work);
    case Way::kRegisters:
    case Way::kBlocks:
    case Way::kFactors:
      break;
  }
  const T sign = isInverse ? T(-0.0) : T(0);
  T* const y = Carver(work, Carver::kLine).template take<T>(0);
  if (plan.way == Way::kBlocks) {
    return withBlockPoints<T>(n, [&](auto points) {
      const typename decltype(points)::type from = {const_cast<T*>(src), sign};
      const typename decltype(points)::type to = {dst, sign};
      if constexpr (kHasOwnOrder<T>) {
        if (plan.isOutOfOrder && isInverse) return inverseOutOfOrder(plan.blocks, asConst(from), to, y, factor);
        if (plan.isOutOfOrder) return forwardOutOfOrder(plan.blocks, asConst(from), to, y, factor);
      }
      if (src == dst) runBlocksInPlace(plan.blocks, asConst(from), to, y, factor);
      else runBlocks(plan.blocks, asConst(from), to, y, factor);
    });
  }
  using Points = PointsInMemory<T>;
  const PointsInMemory<const T> points = {src, sign};
  const auto between = [&](T* p) {
    if constexpr (kAreNumbers<Points>) return Numbers<T>{p};
    else return planes(p, p + n);
  };
  if (src != dst || plan.mixed.count % 2 == 0)
    return runMixed(plan.mixed, points, Points{dst, sign}, between(y), between(dst), factor);
  runMixed(plan.mixed, points, Points{y, sign}, between(dst), between(y), factor);
  std::copy_n(y, 2 * n, dst);
}

template <class T> QvxStatus runSmall(const ComplexPlan<T>& plan, bool isInverse, const T* src, T* dst) {
  return small(plan.direct, isInverse, src, dst, isInverse ? plan.inverseFactor : plan.forwardFactor);
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
    T points[2 * kMostDirect<2, T>];
    for (size_t i = 0; i < n; ++i) points[2 * i] = srcRe[i], points[2 * i + 1] = srcIm[i];
    small(plan.direct, false, points, points, factor);
    for (size_t i = 0; i < n; ++i) dstRe[i] = points[2 * i], dstIm[i] = points[2 * i + 1];
    return;
  }
  T* const y = Carver(work, Carver::kLine).template take<T>(0);
  const Planes<T> inWork = planes(y, y + n);
  const Planes<T> inDst = planes(dstRe, dstIm);
  const bool isInPlace = srcRe == dstRe || srcIm == dstIm || srcRe == dstIm || srcIm == dstRe;
  if (plan.way == Way::kBlocks) {
    const Planes<const T> from = planes(srcRe, srcIm);
    return isInPlace ? runBlocksInPlace(plan.blocks, from, inDst, y, factor) : runBlocks(plan.blocks, from, inDst, y, factor);
  }
  if (!isInPlace || plan.mixed.count % 2 == 0) return runMixed(plan.mixed, planes(srcRe, srcIm), inDst, inWork, inDst, factor);
  runMixed(plan.mixed, planes(srcRe, srcIm), inWork, inDst, inWork, factor);
  std::copy_n(inWork.re, n, dstRe);
  std::copy_n(inWork.im, n, dstIm);
}

template <class T> void spectrumByChirp(const ComplexPlan<T>& plan, const T* src, T* dst, T factor, uint8_t* work) {
  convolveReals(plan.convolution, plan.n, src, dst, factor, work);
}

}  // namespace qvx::dft
