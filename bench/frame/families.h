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
void fft(Suite& suite);
void integerFft(Suite& suite);
void spectrum(Suite& suite);
void fir(Suite& suite);
void iir(Suite& suite);

// clang-format off
// In the order of the library's entry table.
inline constexpr void (*kFamilies[])(Suite&) = {
    add,
    sub,
    mul,
    div,
    sqr,
    sqrt,
    math,
    integerMath,
    copy,
    logic,
    shift,
    widen,
    narrow,
    floatToInt,
    half,
    complexForms,
    polar,
    compand,
    channels,
    threshold,
    sum,
    extrema,
    norm,
    dotProduct,
    fft,
    integerFft,
    spectrum,
    fir,
    iir,
};
// clang-format on

}  // namespace bench
