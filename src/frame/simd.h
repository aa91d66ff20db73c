// The library's vocabulary of vectors: Highway's operations under the name hn::, what it lacks or does slowly, and raw
// intrinsics, which are nowhere else.
//
// Kernels are written on whole vectors of the variant's widest register and on `Lanes<T, N>`, a tag for N elements of T;
// N times the size of T may be anything from 4 bytes to a register.
#pragma once

#include "frame/arithmetic.h"
#include "frame/conversions.h"
#include "frame/exchanges.h"
#include "frame/lane_partition.h"
#include "frame/load_store.h"
#include "frame/masks.h"
#include "frame/quiet.h"
#include "frame/shuffles.h"
#include "frame/vectors.h"
