// The benchmarks of every family, one function a file.
#pragma once

#include "frame/suite.h"

namespace bench {

void add(Suite& suite);
void sub(Suite& suite);
void mul(Suite& suite);
void copy(Suite& suite);
void logic(Suite& suite);
void shift(Suite& suite);
void widen(Suite& suite);
void narrow(Suite& suite);
void floatToInt(Suite& suite);
void half(Suite& suite);
void sqrt(Suite& suite);
void threshold(Suite& suite);
void compand(Suite& suite);
void channels(Suite& suite);

}  // namespace bench
