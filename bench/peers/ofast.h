// Plain loops compiled with -Ofast, in a file of their own: the compiler calls the C library's vector functions then, of about
// 4 ULP, and handles no special values.
#pragma once

namespace ofast {

void exp(const float* a, float* d, int n);
void exp(const double* a, double* d, int n);
void ln(const float* a, float* d, int n);
void ln(const double* a, double* d, int n);
void sumLn(const float* a, int n, float* sum);
void sumLn(const double* a, int n, double* sum);

// magn cos(w i + phase), and x[i] times a window: a cosine for each element.
void tone(float* d, int n, float magn, float w, float phase);
void tone(double* d, int n, double magn, double w, double phase);
void hann(float* x, int n);
void hann(double* x, int n);
void hamming(float* x, int n);
void blackman(float* x, int n);
void bartlett(float* x, int n);

}  // namespace ofast
