// Plain loops compiled with -Ofast, in a file of their own: the compiler calls the C library's vector functions then, of about
// 4 ULP, and handles no special values.
#pragma once

#include <qvx/qvxs.h>

namespace ofast {

void exp(const float* a, float* d, int n);
void exp(const double* a, double* d, int n);
void ln(const float* a, float* d, int n);
void ln(const double* a, double* d, int n);
void sumLn(const float* a, int n, float* sum);
void sumLn(const double* a, int n, double* sum);

void root(const float* a, float* d, int n);
void quotient(const float* a, const float* b, float* d, int n);
void magnitude(const float* re, const float* im, float* d, int n);
void product(const Qvx32fc* a, const Qvx32fc* b, Qvx32fc* d, int n);

void demodulateFm(const Qvx16s* re, const Qvx16s* im, Qvx16s* d, int n, int p, int q);
template <int kType, class T> void zeroCrossing(const T* a, int n, float* count);
void cauchy(float* x, int n, float c);
void cauchyD(float* x, int n, float c);
void cauchyDD2(float* x, float* second, int n, float c);
void normalize(const float* a, float* d, int n, float vSub, float vDiv);
void normalize(const double* a, double* d, int n, double vSub, double vDiv);
void normalize(const Qvx32fc* a, Qvx32fc* d, int n, Qvx32fc vSub, float vDiv);
void normalize(const Qvx16s* a, Qvx16s* d, int n, Qvx16s vSub, int vDiv, int scaleFactor);
// magn cos(w i + phase), and x[i] times a window: a cosine for each element.
void tone(float* d, int n, float magn, float w, float phase);
void tone(double* d, int n, double magn, double w, double phase);
void tone(Qvx16s* d, int n, float magn, float w, float phase);
void chirp(float* d, int n, float magn);  // magn sin(pi i^2 / (2 n))
void hann(float* x, int n);
void hann(double* x, int n);
void hamming(float* x, int n);
void blackman(float* x, int n);
void bartlett(float* x, int n);

}  // namespace ofast
