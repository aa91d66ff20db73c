// How far forward transforms of noise are from those in long double.
#pragma once

#include <qvx/qvxs.h>

#include <limits>
#include <random>

#include "reference/dct.h"

namespace tests {

inline constexpr double kTransformBound = 0.35;

// The root of the mean square of the error over that of the spectrum, in units of eps sqrt(order).
template <class T, class At> double inUnits(const std::vector<Exact>& expected, size_t count, int order, At at) {
  long double error = 0;
  long double size = 0;
  for (size_t k = 0; k < count; ++k) {
    error += std::norm(at(k) - expected[k]);
    size += std::norm(expected[k]);
  }
  const long double unit = std::numeric_limits<T>::epsilon() * std::sqrt(static_cast<long double>(order));
  return static_cast<double>(std::sqrt(error / size) / unit);
}

template <class T> std::vector<T> noise(size_t count) {
  std::mt19937_64 random(20240229);
  std::uniform_real_distribution<T> uniform(-1, 1);
  std::vector<T> v(count);
  for (T& x : v) x = uniform(random);
  return v;
}

template <class T, class C, class Record>
double complexError(int order, QvxStatus (*make)(Record**, int, int, int), QvxStatus (*run)(const C*, C*, const Record*, Qvx8u*),
                    QvxStatus (*release)(Record*)) {
  const size_t n = size_t{1} << order;
  const std::vector<T> x = noise<T>(2 * n);
  std::vector<Exact> exact(n);
  for (size_t i = 0; i < n; ++i) exact[i] = {x[2 * i], x[2 * i + 1]};
  std::vector<C> found(n);
  Record* record = nullptr;
  if (make(&record, order, QVX_FFT_SCALE_NONE, 0) != qvxStatOk) return INFINITY;
  run(reinterpret_cast<const C*>(x.data()), found.data(), record, nullptr);
  release(record);
  return inUnits<T>(dft(exact, -1), n, order, [&](size_t k) { return Exact(found[k].re, found[k].im); });
}

// In CCS, which has the parts of X[k] side by side.
template <class T, class Record>
double realError(int order, QvxStatus (*make)(Record**, int, int, int), QvxStatus (*run)(const T*, T*, const Record*, Qvx8u*),
                 QvxStatus (*release)(Record*)) {
  const size_t n = size_t{1} << order;
  const std::vector<T> x = noise<T>(n);
  std::vector<T> found(n + 2);
  Record* record = nullptr;
  if (make(&record, order, QVX_FFT_SCALE_NONE, 0) != qvxStatOk) return INFINITY;
  run(x.data(), found.data(), record, nullptr);
  release(record);
  return inUnits<T>(dft(std::vector<Exact>(x.begin(), x.end()), -1), n / 2 + 1, order,
                    [&](size_t k) { return Exact(found[2 * k], found[2 * k + 1]); });
}

struct TransformErrors {
  int order;
  double of[4];  // 32fc, 64fc, real 32f, real 64f
};

inline TransformErrors transformErrors(int order) {
  return {order,
          {complexError<Qvx32f>(order, qvxsFFTInitAlloc_C_32fc, qvxsFFTFwd_CToC_32fc, qvxsFFTFree_C_32fc),
           complexError<Qvx64f>(order, qvxsFFTInitAlloc_C_64fc, qvxsFFTFwd_CToC_64fc, qvxsFFTFree_C_64fc),
           realError(order, qvxsFFTInitAlloc_R_32f, qvxsFFTFwd_RToCCS_32f, qvxsFFTFree_R_32f),
           realError(order, qvxsFFTInitAlloc_R_64f, qvxsFFTFwd_RToCCS_64f, qvxsFFTFree_R_64f)}};
}

// Transforms of any length, in units of eps sqrt(log2 n).
inline constexpr double kSmoothBound = 0.4;
inline constexpr double kPrimeBound = 0.6;

template <class T, class N> double inUnits(const std::vector<Exact>& expected, const std::vector<N>& found) {
  long double error = 0;
  long double size = 0;
  for (size_t k = 0; k < found.size() / 2; ++k) {
    error += std::norm(Exact(found[2 * k], found[2 * k + 1]) - expected[k]);
    size += std::norm(expected[k]);
  }
  const auto n = static_cast<long double>(expected.size());
  return static_cast<double>(std::sqrt(error / size / std::log2(n)) / std::numeric_limits<T>::epsilon());
}
template <class T, class C, class Record>
double anyLengthError(int n, bool isReal, QvxStatus (*make)(Record**, int, int, int),
                      QvxStatus (*run)(const C*, C*, const Record*, Qvx8u*), QvxStatus (*release)(Record*)) {
  const auto count = static_cast<size_t>(n);
  std::vector<T> x = noise<T>(2 * count);
  std::vector<Exact> exact(count);
  for (size_t i = 0; i < count; ++i) exact[i] = isReal ? Exact(x[i]) : Exact(x[2 * i], x[2 * i + 1]);
  std::vector<T> found(isReal ? 2 * (count / 2 + 1) : 2 * count);
  Record* record = nullptr;
  if (make(&record, n, QVX_FFT_SCALE_NONE, 0) != qvxStatOk) return INFINITY;
  run(reinterpret_cast<const C*>(x.data()), reinterpret_cast<C*>(found.data()), record, nullptr);
  release(record);
  return inUnits<T>(dft(exact, -1), found);
}
inline TransformErrors anyLengthErrors(int n) {
  return {n,
          {anyLengthError<Qvx32f>(n, false, qvxsDFTInitAlloc_C_32fc, qvxsDFTFwd_CToC_32fc, qvxsDFTFree_C_32fc),
           anyLengthError<Qvx64f>(n, false, qvxsDFTInitAlloc_C_64fc, qvxsDFTFwd_CToC_64fc, qvxsDFTFree_C_64fc),
           anyLengthError<Qvx32f>(n, true, qvxsDFTInitAlloc_R_32f, qvxsDFTFwd_RToCCS_32f, qvxsDFTFree_R_32f),
           anyLengthError<Qvx64f>(n, true, qvxsDFTInitAlloc_R_64f, qvxsDFTFwd_RToCCS_64f, qvxsDFTFree_R_64f)}};
}

// Cosine transforms there and back, in the same units; short ones many times.
inline constexpr double kCosineBound = 0.5;
inline constexpr double kPrimeCosineBound = 0.6;

template <class T, class Record>
double cosineError(int n, bool isInverse, QvxStatus (*make)(Record**, int, int),
                   QvxStatus (*run)(const T*, T*, const Record*, Qvx8u*), QvxStatus (*release)(Record*)) {
  constexpr size_t kLeast = 2048;  // numbers
  const auto count = static_cast<size_t>(n);
  const std::vector<T> all = noise<T>((kLeast + count - 1) / count * count);
  const CosineTransform exact(count);
  Record* record = nullptr;
  if (make(&record, n, 0) != qvxStatOk) return INFINITY;
  long double error = 0;
  long double size = 0;
  for (size_t at = 0; at < all.size(); at += count) {
    const std::vector<T> x(all.begin() + static_cast<std::ptrdiff_t>(at), all.begin() + static_cast<std::ptrdiff_t>(at + count));
    std::vector<T> found(count);
    run(x.data(), found.data(), record, nullptr);
    const std::vector<long double> expected = exact.all(x, isInverse);
    for (size_t k = 0; k < count; ++k) {
      error += std::pow(found[k] - expected[k], 2);
      size += std::pow(expected[k], 2);
    }
  }
  release(record);
  return static_cast<double>(std::sqrt(error / size / std::log2(static_cast<long double>(n))) /
                             std::numeric_limits<T>::epsilon());
}
inline TransformErrors cosineErrors(int n) {
  return {n,
          {cosineError(n, false, qvxsDCTFwdInitAlloc_32f, qvxsDCTFwd_32f, qvxsDCTFwdFree_32f),
           cosineError(n, false, qvxsDCTFwdInitAlloc_64f, qvxsDCTFwd_64f, qvxsDCTFwdFree_64f),
           cosineError(n, true, qvxsDCTInvInitAlloc_32f, qvxsDCTInv_32f, qvxsDCTInvFree_32f),
           cosineError(n, true, qvxsDCTInvInitAlloc_64f, qvxsDCTInv_64f, qvxsDCTInvFree_64f)}};
}

}  // namespace tests
