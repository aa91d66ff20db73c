#include "peers/ofast.h"

#include <algorithm>
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
void root(const float* a, float* d, int n) {
  each(a, d, n, [](float x) { return std::sqrt(x); });
}
void quotient(const float* __restrict a, const float* __restrict b, float* __restrict d, int n) {
  for (int i = 0; i < n; ++i) d[i] = b[i] / a[i];
}
void magnitude(const float* __restrict re, const float* __restrict im, float* __restrict d, int n) {
  for (int i = 0; i < n; ++i) d[i] = std::sqrt(re[i] * re[i] + im[i] * im[i]);
}
void product(const Qvx32fc* __restrict a, const Qvx32fc* __restrict b, Qvx32fc* __restrict d, int n) {
  for (int i = 0; i < n; ++i) d[i] = {a[i].re * b[i].re - a[i].im * b[i].im, a[i].re * b[i].im + a[i].im * b[i].re};
}
void tone(float* d, int n, float magn, float w, float phase) { cosines(d, n, magn, w, phase); }
void tone(double* d, int n, double magn, double w, double phase) { cosines(d, n, magn, w, phase); }
void tone(Qvx16s* __restrict d, int n, float magn, float w, float phase) {
  for (int i = 0; i < n; ++i) d[i] = static_cast<Qvx16s>(magn * std::cos(w * static_cast<float>(i) + phase));
}
void chirp(float* __restrict d, int n, float magn) {
  const double rate = 1.5707963267948966 / n;
  for (int i = 0; i < n; ++i) d[i] = magn * static_cast<float>(std::sin(rate * i * i));
}
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

void demodulateFm(const Qvx16s* __restrict re, const Qvx16s* __restrict im, Qvx16s* __restrict d, int n, int p, int q) {
  const auto units = [](int re, int im, int p, int q) {
    const auto y = static_cast<float>(p * im - q * re);
    const auto x = static_cast<float>(p * re + q * im);
    return static_cast<Qvx16s>(std::min(std::atan2(y, x) * 10430.378F, 32767.0F));
  };
  d[0] = units(re[0], im[0], p, q);
  for (int i = 1; i < n; ++i) d[i] = units(re[i], im[i], re[i - 1], im[i - 1]);
}

template <int kType, class T> void zeroCrossing(const T* a, int n, float* count) {
  int all = 0;
  const auto side = [](T x) { return (x > 0) - (x < 0); };
  for (int i = 1; i < n; ++i) {
    if (kType == 0) all += side(a[i]) * side(a[i - 1]) < 0;
    if (kType == 1) all += (a[i] < 0) != (a[i - 1] < 0);
    if (kType == 2) all += std::abs(side(a[i]) - side(a[i - 1]));
  }
  *count = kType == 2 ? static_cast<float>(all / 2.0) : static_cast<float>(all);
}
template void zeroCrossing<0>(const Qvx16s*, int, float*);
template void zeroCrossing<1>(const Qvx16s*, int, float*);
template void zeroCrossing<2>(const Qvx16s*, int, float*);
template void zeroCrossing<0>(const float*, int, float*);
template void zeroCrossing<1>(const float*, int, float*);
template void zeroCrossing<2>(const float*, int, float*);

void cauchy(float* x, int n, float c) {
  for (int i = 0; i < n; ++i) x[i] = 0.5F * std::log(1 + (x[i] / c) * (x[i] / c));
}
void cauchyD(float* x, int n, float c) {
  for (int i = 0; i < n; ++i) x[i] = x[i] / (c * c + x[i] * x[i]);
}
void cauchyDD2(float* __restrict x, float* __restrict second, int n, float c) {
  for (int i = 0; i < n; ++i) {
    const float v = x[i];
    const float r = 1 / (c * c + v * v);
    x[i] = v * r;
    second[i] = r * r * (c * c - v * v);
  }
}

void normalize(const float* __restrict a, float* __restrict d, int n, float vSub, float vDiv) {
  for (int i = 0; i < n; ++i) d[i] = (a[i] - vSub) / vDiv;
}
void normalize(const double* __restrict a, double* __restrict d, int n, double vSub, double vDiv) {
  for (int i = 0; i < n; ++i) d[i] = (a[i] - vSub) / vDiv;
}
void normalize(const Qvx32fc* __restrict a, Qvx32fc* __restrict d, int n, Qvx32fc vSub, float vDiv) {
  for (int i = 0; i < n; ++i) d[i] = {(a[i].re - vSub.re) / vDiv, (a[i].im - vSub.im) / vDiv};
}
void normalize(const Qvx16s* __restrict a, Qvx16s* __restrict d, int n, Qvx16s vSub, int vDiv, int scaleFactor) {
  const float factor = std::ldexp(1.0F, -scaleFactor) / static_cast<float>(vDiv);
  for (int i = 0; i < n; ++i) {
    const float y = std::rint(static_cast<float>(a[i] - vSub) * factor);
    d[i] = static_cast<Qvx16s>(std::max(-32768.0F, std::min(y, 32767.0F)));
  }
}

}  // namespace ofast
