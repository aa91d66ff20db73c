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

}  // namespace ofast
