// The benchmarks of every family, one function a file.
#pragma once

#include "frame/suite.h"

namespace bench {

void add(Suite& suite);
void sub(Suite& suite);
void mul(Suite& suite);
void div(Suite& suite);
void sqr(Suite& suite);
void sqrt(Suite& suite);
void math(Suite& suite);
void integerMath(Suite& suite);
void copy(Suite& suite);
void logic(Suite& suite);
void shift(Suite& suite);
void widen(Suite& suite);
void narrow(Suite& suite);
void floatToInt(Suite& suite);
void half(Suite& suite);
void complexForms(Suite& suite);
void polar(Suite& suite);
void compand(Suite& suite);
void channels(Suite& suite);
void threshold(Suite& suite);
void sum(Suite& suite);
void extrema(Suite& suite);
void norm(Suite& suite);
void dotProduct(Suite& suite);
void fft32fc(Suite& suite);
void fft64fc(Suite& suite);
void fft32f(Suite& suite);
void fft64f(Suite& suite);
void fftRecords(Suite& suite);
void integerFft(Suite& suite);
void dft(Suite& suite);
void dftRecords(Suite& suite);
void spectrum(Suite& suite);
void cosines(Suite& suite);
void analytic(Suite& suite);
void fir(Suite& suite);
void multirate(Suite& suite);
void sparse(Suite& suite);
void firDesign(Suite& suite);
void correlations(Suite& suite);
void medians(Suite& suite);
void sampling(Suite& suite);
void iir(Suite& suite);
void lms(Suite& suite);
void haar(Suite& suite);
void filterBank(Suite& suite);
void goertzel(Suite& suite);
void decode(Suite& suite);
void helpers(Suite& suite);
void sort(Suite& suite);
void generators(Suite& suite);
void windows(Suite& suite);

// What is measured in one run, of a minute or so. Its name is that of its file in a report.
struct Family {
  const char* name;
  void (*rows)(Suite&);
};

// In the order of the library's entry table.
inline constexpr Family kFamilies[] = {
    {"add", add},
    {"sub", sub},
    {"mul", mul},
    {"div", div},
    {"sqr", sqr},
    {"sqrt", sqrt},
    {"math", math},
    {"integer_math", integerMath},
    {"copy", copy},
    {"logic", logic},
    {"shift", shift},
    {"widen", widen},
    {"narrow", narrow},
    {"float_to_int", floatToInt},
    {"half", half},
    {"complex_forms", complexForms},
    {"polar", polar},
    {"compand", compand},
    {"channels", channels},
    {"threshold", threshold},
    {"sum", sum},
    {"extrema", extrema},
    {"norm", norm},
    {"dot_product", dotProduct},
    {"fft_32fc", fft32fc},
    {"fft_64fc", fft64fc},
    {"fft_32f", fft32f},
    {"fft_64f", fft64f},
    {"fft_records", fftRecords},
    {"fft_integer", integerFft},
    {"dft", dft},
    {"dft_records", dftRecords},
    {"spectrum", spectrum},
    {"dct", cosines},
    {"hilbert", analytic},
    {"fir", fir},
    {"multirate", multirate},
    {"sparse", sparse},
    {"fir_design", firDesign},
    {"correlation", correlations},
    {"median", medians},
    {"sample", sampling},
    {"iir", iir},
    {"lms", lms},
    {"haar", haar},
    {"filter_bank", filterBank},
    {"goertzel", goertzel},
    {"decode", decode},
    {"helpers", helpers},
    {"sort", sort},
    {"generators", generators},
    {"windows", windows},
};

}  // namespace bench
