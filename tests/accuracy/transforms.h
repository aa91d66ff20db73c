// How far transforms of noise are from those in long double: the root of the mean square of the error over that of the result, in
// units of eps sqrt(log2 N).
#pragma once

#include <qvx/qvxs.h>

#include <array>
#include <limits>
#include <random>

#include "reference/dct.h"

namespace tests {

inline constexpr double kTransformBound = 0.35;
inline constexpr double kSmoothBound = 0.4;
inline constexpr double kPrimeBound = 0.6;
inline constexpr double kCosineBound = 0.5;
inline constexpr double kPrimeCosineBound = 0.6;

inline bool isLargePrime(int n) { return n > 100 && largestPrimeFactor(static_cast<size_t>(n)) == static_cast<size_t>(n); }

template <class T> double inUnits(long double error, long double size, size_t n) {
  return static_cast<double>(std::sqrt(error / size / std::log2(static_cast<long double>(n))) /
                             std::numeric_limits<T>::epsilon());
}

template <class T> std::vector<T> noise(size_t count) {
  std::mt19937_64 random(20240229);
  std::uniform_real_distribution<T> uniform(-1, 1);
  std::vector<T> v(count);
  for (T& x : v) x = uniform(random);
  return v;
}

// size: what the record is made for, an order or a length. Spectra of reals are in CCS, which has the parts of X[k] side by side.
template <class T, class C, class Record>
double fourierError(size_t n, int size, bool isReal, QvxStatus (*make)(Record**, int, int, int),
                    QvxStatus (*run)(const C*, C*, const Record*, Qvx8u*), QvxStatus (*release)(Record*)) {
  const std::vector<T> x = noise<T>(2 * n);
  std::vector<Exact> exact(n);
  for (size_t i = 0; i < n; ++i) exact[i] = isReal ? Exact(x[i]) : Exact(x[2 * i], x[2 * i + 1]);
  std::vector<T> found(isReal ? 2 * (n / 2 + 1) : 2 * n);
  Record* record = nullptr;
  if (make(&record, size, QVX_FFT_SCALE_NONE, 0) != qvxStatOk) return INFINITY;
  run(reinterpret_cast<const C*>(x.data()), reinterpret_cast<C*>(found.data()), record, nullptr);
  release(record);
  const std::vector<Exact> expected = dft(exact, -1);
  long double error = 0;
  long double magnitude = 0;
  for (size_t k = 0; k < found.size() / 2; ++k) {
    error += std::norm(Exact(found[2 * k], found[2 * k + 1]) - expected[k]);
    magnitude += std::norm(expected[k]);
  }
  return inUnits<T>(error, magnitude, n);
}

// 32fc, 64fc, real 32f, real 64f.
inline std::array<double, 4> transformErrors(int order) {
  const size_t n = size_t{1} << order;
  return {fourierError<Qvx32f>(n, order, false, qvxsFFTInitAlloc_C_32fc, qvxsFFTFwd_CToC_32fc, qvxsFFTFree_C_32fc),
          fourierError<Qvx64f>(n, order, false, qvxsFFTInitAlloc_C_64fc, qvxsFFTFwd_CToC_64fc, qvxsFFTFree_C_64fc),
          fourierError<Qvx32f>(n, order, true, qvxsFFTInitAlloc_R_32f, qvxsFFTFwd_RToCCS_32f, qvxsFFTFree_R_32f),
          fourierError<Qvx64f>(n, order, true, qvxsFFTInitAlloc_R_64f, qvxsFFTFwd_RToCCS_64f, qvxsFFTFree_R_64f)};
}
inline std::array<double, 4> anyLengthErrors(int length) {
  const auto n = static_cast<size_t>(length);
  return {fourierError<Qvx32f>(n, length, false, qvxsDFTInitAlloc_C_32fc, qvxsDFTFwd_CToC_32fc, qvxsDFTFree_C_32fc),
          fourierError<Qvx64f>(n, length, false, qvxsDFTInitAlloc_C_64fc, qvxsDFTFwd_CToC_64fc, qvxsDFTFree_C_64fc),
          fourierError<Qvx32f>(n, length, true, qvxsDFTInitAlloc_R_32f, qvxsDFTFwd_RToCCS_32f, qvxsDFTFree_R_32f),
          fourierError<Qvx64f>(n, length, true, qvxsDFTInitAlloc_R_64f, qvxsDFTFwd_RToCCS_64f, qvxsDFTFree_R_64f)};
}

// Short ones many times.
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
  long double magnitude = 0;
  for (size_t at = 0; at < all.size(); at += count) {
    const std::vector<T> x(all.begin() + static_cast<std::ptrdiff_t>(at), all.begin() + static_cast<std::ptrdiff_t>(at + count));
    std::vector<T> found(count);
    run(x.data(), found.data(), record, nullptr);
    const std::vector<long double> expected = exact.all(x, isInverse);
    for (size_t k = 0; k < count; ++k) {
      error += std::pow(found[k] - expected[k], 2);
      magnitude += std::pow(expected[k], 2);
    }
  }
  release(record);
  return inUnits<T>(error, magnitude, count);
}
inline std::array<double, 4> cosineErrors(int n) {
  return {cosineError(n, false, qvxsDCTFwdInitAlloc_32f, qvxsDCTFwd_32f, qvxsDCTFwdFree_32f),
          cosineError(n, false, qvxsDCTFwdInitAlloc_64f, qvxsDCTFwd_64f, qvxsDCTFwdFree_64f),
          cosineError(n, true, qvxsDCTInvInitAlloc_32f, qvxsDCTInv_32f, qvxsDCTInvFree_32f),
          cosineError(n, true, qvxsDCTInvInitAlloc_64f, qvxsDCTInv_64f, qvxsDCTInvFree_64f)};
}

}  // namespace tests
