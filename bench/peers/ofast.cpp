#include "peers/ofast.h"

#include <cmath>

namespace ofast {

namespace {

template <class T, class F> void each(const T* __restrict a, T* __restrict d, int n, F f) {
#pragma GCC ivdep
  for (int i = 0; i < n; ++i) d[i] = f(a[i]);
}

template <class T> T sumOfLogarithms(const T* a, int n) {
  T sum = 0;
  for (int i = 0; i < n; ++i) sum += std::log(a[i]);
  return sum;
}

template <class T> void cosines(T* __restrict d, int n, T magn, T w, T phase) {
  for (int i = 0; i < n; ++i) d[i] = magn * std::cos(w * static_cast<T>(i) + phase);
}
template <class T, class Weight> void weigh(T* x, int n, Weight weight) {
  const T step = T(6.283185307179586) / static_cast<T>(n - 1);
  for (int i = 0; i < n; ++i) x[i] *= weight(std::cos(step * static_cast<T>(i)));
}

}  // namespace

void exp(const float* a, float* d, int n) {
  each(a, d, n, [](float x) { return std::exp(x); });
}
void exp(const double* a, double* d, int n) {
  each(a, d, n, [](double x) { return std::exp(x); });
}
void ln(const float* a, float* d, int n) {
  each(a, d, n, [](float x) { return std::log(x); });
}
void ln(const double* a, double* d, int n) {
  each(a, d, n, [](double x) { return std::log(x); });
}
void sumLn(const float* a, int n, float* sum) { *sum = sumOfLogarithms(a, n); }
void sumLn(const double* a, int n, double* sum) { *sum = sumOfLogarithms(a, n); }
void tone(float* d, int n, float magn, float w, float phase) { cosines(d, n, magn, w, phase); }
void tone(double* d, int n, double magn, double w, double phase) { cosines(d, n, magn, w, phase); }
void hann(float* x, int n) {
  weigh(x, n, [](float c) { return 0.5F - 0.5F * c; });
}
void hann(double* x, int n) {
  weigh(x, n, [](double c) { return 0.5 - 0.5 * c; });
}
void hamming(float* x, int n) {
  weigh(x, n, [](float c) { return 0.54F - 0.46F * c; });
}
void blackman(float* x, int n) {
  weigh(x, n, [](float c) { return 0.34F + c * (0.16F * c - 0.5F); });
}
void bartlett(float* x, int n) {
  const float middle = 0.5F * static_cast<float>(n - 1);
  for (int i = 0; i < n; ++i) x[i] *= 1 - std::abs(static_cast<float>(i) / middle - 1);
}

}  // namespace ofast
